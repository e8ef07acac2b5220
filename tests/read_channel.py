#!/usr/bin/env python3
# read_channel.py BEFORE AFTER FILE...: reads two channel files, sharing nothing with the editor, and fails unless in
# AFTER all checksums, sizes and places hold and exactly the FILEs differ from BEFORE ("names" stands for the header's
# names). Of a part without any of them the stored bytes are the same.
import hashlib
import struct
import sys


def word(data, at):
    return struct.unpack_from(">I", data, at)[0]


def check(holds, what):
    if not holds:
        sys.exit("read_channel: " + what)


# The bytes of an archive's files by their paths, in order; every byte of it is accounted for.
def u8(data):
    count, end = word(data, 0x28), 0x20 + word(data, 8)
    names, place = 0x20 + 12 * count, (end + 31) // 32 * 32
    check(data[:8] == b"U\xaa8-\0\0\0 " and word(data, 12) == place, "U8 header")
    files, folders = {}, [("", count)]
    for node in range(1, count):
        while node >= folders[-1][1]:
            folders.pop()
        kind, offset, size = struct.unpack_from(">III", data, 0x20 + 12 * node)
        start = names + (kind & 0xFFFFFF)
        path = folders[-1][0] + data[start:data.index(0, start)].decode()
        if kind >> 24:
            folders.append((path + "/", size))
            continue
        check(offset == place and not any(data[end:place]), path + " is not behind the file before it, filled up")
        files[path], end = data[offset:offset + size], offset + size
        place = (end + 31) // 32 * 32
    check(end <= len(data) <= place and not any(data[end:]), "end of the last file")
    return files


# What an IMD5 header and LZ77 of type 0x10 hold.
def unpacked(part, name):
    check(part[:4] == b"IMD5" and word(part, 4) == len(part) - 32, name + ": IMD5 length")
    check(hashlib.md5(part[32:]).digest() == part[16:32], name + ": IMD5 checksum")
    if part[32:36] != b"LZ77":
        return part[32:]
    check(part[36] == 0x10, name + ": LZ77 type")
    size, at, out = int.from_bytes(part[37:40], "little"), 40, bytearray()
    while len(out) < size:
        flags, at = part[at], at + 1
        for bit in range(7, -1, -1):
            if flags >> bit & 1 and len(out) < size:
                pair, at = part[at] << 8 | part[at + 1], at + 2
                check(pair & 0xFFF < len(out), name + ": LZ77 distance")
                for _ in range((pair >> 12) + 3):
                    out.append(out[-1 - (pair & 0xFFF)])
            elif len(out) < size:
                out.append(part[at])
                at += 1
    check(len(out) == size and not any(part[at:]) and len(part) - at < 4, name + ": LZ77 end")
    return bytes(out)


# The names, the stored parts, and every file by its path.
def channel(path):
    with open(path, "rb") as file:
        data = file.read()
    header = data[0x40:0x640]
    check(header[0x40:0x44] == b"IMET" and word(header, 0x44) == 0x600, "no IMET header")
    check(hashlib.md5(header[:0x5F0] + bytes(16)).digest() == header[0x5F0:], "IMET checksum")
    parts, files, sizes = u8(data[0x640:]), {}, []
    for name in ("meta/icon.bin", "meta/banner.bin", "meta/sound.bin"):
        content = unpacked(parts[name], name)
        sizes.append(len(content))
        inner = u8(content) if content[:4] == b"U\xaa8-" else {"": content}
        files.update({name + "/" + path: inner[path] for path in inner})
    check(sizes == [word(header, at) for at in (0x4C, 0x50, 0x54)], "IMET sizes")
    rest = data[:0x40] + header[:0x4C] + header[0x58:0x5C] + header[0x3A4:0x5F0]
    return header[0x5C:0x3A4], rest, parts, files


def main():
    (names, rest, parts, files), (new_names, new_rest, new_parts, new_files) = channel(sys.argv[1]), channel(sys.argv[2])
    check(rest == new_rest and list(files) == list(new_files) and list(parts) == list(new_parts), "another order, or tag")
    changed = sorted(path for path in files if files[path] != new_files[path]) + ["names"] * (names != new_names)
    check(changed == sorted(sys.argv[3:]), "other files changed: %s" % changed)
    for part in parts:
        touched = any(path.startswith(part) for path in changed)
        check(touched == (parts[part] != new_parts[part]), part + " was packed anew")


main()

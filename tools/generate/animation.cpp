#include "generate/animation.h"

#include "generate/layout_builder.h"

namespace bannersmith {

namespace {

std::uint32_t Word(std::size_t number) {
    return static_cast<std::uint32_t>(number);
}

/// A content entry: name, one kind in it, one target in that.
std::string Content(const Curve& curve) {
    constexpr unsigned Hermite = 2;
    constexpr std::uint32_t KindAt = 28, TargetAt = 12, KeysAt = 12;
    ByteWriter out;
    out.Name(curve.name, 20).U8(1).U8(curve.of_material).U16(0).U32(KindAt);
    out.Bytes(curve.kind).U8(1).Zeros(3).U32(TargetAt);
    out.U8(0).U8(curve.target).U8(Hermite).U8(0).U16(static_cast<unsigned>(curve.keys.size()));
    out.U16(0).U32(KeysAt);
    for (const CurveKey& key : curve.keys) out.F32(key.frame).F32(key.value).F32(key.slope);
    return out.Data();
}

}  // namespace

std::string Animation_File(unsigned frames, bool loops, const std::vector<Curve>& curves) {
    constexpr std::size_t TableAt = 0x14;
    ByteWriter offsets, contents;
    const std::size_t first = TableAt + 4 * curves.size();
    for (const Curve& curve : curves) {
        offsets.U32(Word(first + contents.Data().size()));
        contents.Bytes(Content(curve));
    }
    ByteWriter body;
    body.U16(frames).U8(loops).U8(0).U16(0).U16(static_cast<unsigned>(curves.size()));
    body.U32(TableAt).Bytes(offsets.Data()).Bytes(contents.Data());
    const std::string section = Section("pai1", body.Data());
    ByteWriter file;
    file.Bytes("RLAN").U16(0xFEFF).U16(0x0008).U32(Word(section.size() + 16)).U16(16).U16(1);
    return file.Bytes(section).Data();
}

}  // namespace bannersmith

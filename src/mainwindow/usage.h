#pragma once

namespace bannersmith {

/// What `--help` prints for the two programs that edit.
inline constexpr char Usage[] =
    R"(usage: bannersmith                          open the editor's window
       bannersmith --open FILE              the same, with that file
       bannersmith [PATH] -OPTION VALUE...  edit and save without a window
       bannersmith --help | --version

PATH is the layout file (banner.brlyt): a full path, or one below the program's
folder. Without it the file used last is edited. Each hyphen begins an option,
so neither paths nor values can hold one. Option words may be typed in any case.
Values lose the blanks around them and, but for a year, their double quotes; they
are not checked.
Unknown options, and texts for boxes that the layout lacks, are passed over.

  -TITLE TEXT    the game's name in every language        (^ is a line break)
  -YEAR YEAR     the release year, worded for every language
  -PLAY N        the highest number of players, worded for every language
  -ESRB RATING   the rating, worded for every language
  -SYSTEM TEXT   the console's name
  -T_xxx TEXT    the name in one language: ENG, GER, FRA, ITA, SPA, NED or JPN
  -Y_xxx YEAR    the year in one language
  -E_xxx RATING  the rating in one language
  -H_BOX TEXT    the raw text of any text box
  -COLOR NAME    apply the colour scheme schemes/NAME.vccs
  -LOGO FILE     replace the logo texture with a file of the folder logos,
                 or by a full path
  -FORCE xxx     let another language's items answer to this language
  -2, -3, -4, -5 fill the window's players field, which no save writes
  -PAD N         pad the file to N bytes (12000 unless given); +N adds N bytes;
                 0 adds none

Exit status: 0 saved; 1 a failure, nothing was changed; 2 no layout to edit.
)";

}  // namespace bannersmith

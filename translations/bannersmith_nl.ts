<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name></name>
    <message id="There is a scheme %1 already. Replace it?">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Being edited">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="These colors are in no scheme and would be lost.">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Save as a scheme">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Discard">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Cancel">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the bar at the top">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the console's name">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the shade over the ground">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the picture and its frame">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the picture's mirror image">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the picture's shadow">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the ground">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the first row of the pattern">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the second row of the pattern">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the third row of the pattern">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the fourth row of the pattern">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the fade to the floor">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the floor">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the line below the year">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the line below the players">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the game's name">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the year">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the number of players">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the rating">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Choose a scheme">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Colors of the layout file, or a saved scheme">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The layout file to read colors from">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Save all colors as a scheme">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Read the colors of that layout file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Pre&view">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="As the console &draws it">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Red">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Red, 0 to 255">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Green">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Green, 0 to 255">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Blue">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Blue, 0 to 255">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Hex">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="All three as six hexadecimal digits">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Color being edited">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Give the box being edited this color">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The game's name; ^ is a line break">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Language of the name">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the name for this language">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the name for every language">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The console's name">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the console's name">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The year of the release">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Language of the year">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the year for this language">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the year for every language">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The rating: E, T, M...">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Language of the rating">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the rating for this language">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the rating for every language">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Show and replace the text of any text box">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The language that is shown">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The highest number of players">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the number of players for every language">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Length to fill the file up to; +N appends N bytes; 0 for none">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The color scheme that the next save applies">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Edit colors and see the banner">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The logo texture that the next save puts into the banner">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Game Pic&ture...">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="See, replace and export the game's picture">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The language that the next save lets another one answer to">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="All Languages...">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The texts of all languages in one table">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Do not apply">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Take back what was chosen for another file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Channel names">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Up to 20 characters a line, as the console's menu shows them">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1, line %2">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the names that differ">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Game Picture">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Picture of the game">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="What happens to a picture whose sides are in another ratio">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Fit:">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Replace...">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Take another picture, for banner and icon">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Export...">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the picture into a PNG file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The manual is not there: %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Manual">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="How to work with the editor">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="About Bannersmith">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The editor for the banners of Virtual Console channels.">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Qt %1, used under the LGPL">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="All languages">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The text of this cell">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="All Languages">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Texts of all languages">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="A row for each language, a column for each field">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Values, around which the banner has the wording of each language; or its whole texts">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Type into a cell; Enter goes to the next language. Cells can be pasted from a spreadsheet.">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Show:">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The banner will say: %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="As the system">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="the text for all languages">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Korean">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="English">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="German">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="French">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Italian">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Spanish">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Dutch">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Japanese">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The banner as the console draws it">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Pl&ay">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Play the animation, from its beginning">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Sa&ve Picture...">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Which part of the channel is shown">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The shape of the screen">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&File">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Open...">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Open &Recent">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Re&load">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Save Changes">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Quit">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="No file yet">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="E&dit">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&All Languages...">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Hardcore Manual Text Editor">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Color Editor And Preview">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Game Picture...">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Undo %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Undo">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Redo %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Redo">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&View">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Play or Stop">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Language of the windows">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The windows speak this language from the next start on.">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Help">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Manual">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&About Bannersmith">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="This is a sample. Type a name, press Set All, and see the banner change; nothing is written before Save Changes. Open your own file with %1, or drop it here. %2 shows the manual.">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Got it">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Do not show this hint again">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="&Banner">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Channel na&mes">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The layout file; a path that begins with \ is below the program's folder">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Choose a layout file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Browse">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the layout file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Not enough memory">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="No layout is loaded">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Names no layout file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Holds no line; write one with any path into it">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Too short to be a layout">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Is no archive of a channel">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="IMET checksum does not hold">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="IMD5 checksum does not hold">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Holds neither banner.bin nor icon.bin">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Holds no layout">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Has no such channel name">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Is a program, not a layout file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Another run of Bannersmith is at work in its folder">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Not a whole number up to 268435456, with or without + in front of it">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Has no picture of the game">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture nor a texture">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Picture is cut off">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Picture is broken">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Is too large">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Is no texture, or is cut off">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Texture is broken">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="A scheme's name cannot begin with . or hold \ or /">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Not an ordinary file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Is a directory">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="No such file or directory">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Permission denied">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Read-only file system">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="No space left on device">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Disk quota exceeded">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="File too large">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The entries that hold what is searched for">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Search">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Leaves the entries that hold the text">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The text boxes of the layout, in the order of the file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="The box's text; ^ is a line break">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Write the text into the chosen box">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="red %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="green %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="blue %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Crop">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Border">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Stretch">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Values">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Whole texts">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Banner">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Icon">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here, or open one">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Approximate font">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 may not fit its width">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 may not fit its height">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="St&op">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Typed, but not set yet">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="all languages">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Colors">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Logo">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Game picture">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Region %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Padding">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Channel name (%1)">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Will be applied to this file, too">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Text editor">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Game picture: the next save writes it">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Not saved">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Saved">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="no colors applied">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Saved; the banner has no logo texture to replace">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Save with %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 is not a layout file. Save it all the same?">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1: %2. Force the region all the same?">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="one text for all languages">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="no titles">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="nothing changed">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="other texts changed">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="1 text changed:">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 texts changed:">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="1 line changed">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 lines changed">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Taken back: %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Brought again: %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Warning: %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 files in %2 bytes">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="No layout loaded">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="texts not saved">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="texts as in the file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="not a layout file">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 bytes">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Set it first">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Save">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 was typed and is not set.">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="What was typed is not set, and would not be saved: %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 does not have the latest changes.">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Not set yet: %1">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 was changed by another program since it was loaded.">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Reload">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Keep what is here">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="%1 was changed by another program since it was loaded. Save over it?">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message id="Overwrite">
        <source></source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

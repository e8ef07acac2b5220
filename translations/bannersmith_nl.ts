<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name></name>
    <message id="There is a scheme %1 already. Replace it?">
        <source></source>
        <translation>Het kleurenschema ‘%1’ bestaat al. Vervangen?</translation>
    </message>
    <message id="Being edited">
        <source></source>
        <translation>Wordt bewerkt</translation>
    </message>
    <message id="These colors are in no scheme and would be lost.">
        <source></source>
        <translation>Deze kleuren zitten in geen enkel kleurenschema en zouden verloren gaan.</translation>
    </message>
    <message id="Save as a scheme">
        <source></source>
        <translation>Opslaan als kleurenschema</translation>
    </message>
    <message id="Discard">
        <source></source>
        <translation>Verwerpen</translation>
    </message>
    <message id="Cancel">
        <source></source>
        <translation>Annuleren</translation>
    </message>
    <message id="the bar at the top">
        <source></source>
        <translation>Balk bovenaan</translation>
    </message>
    <message id="the console's name">
        <source></source>
        <translation>Naam van de console</translation>
    </message>
    <message id="the shade over the ground">
        <source></source>
        <translation>Schaduwlaag over de achtergrond</translation>
    </message>
    <message id="the picture and its frame">
        <source></source>
        <translation>Afbeelding met kader</translation>
    </message>
    <message id="the picture's mirror image">
        <source></source>
        <translation>Spiegelbeeld van de afbeelding</translation>
    </message>
    <message id="the picture's shadow">
        <source></source>
        <translation>Schaduw van de afbeelding</translation>
    </message>
    <message id="the ground">
        <source></source>
        <translation>Achtergrond</translation>
    </message>
    <message id="the first row of the pattern">
        <source></source>
        <translation>Eerste rij van het patroon</translation>
    </message>
    <message id="the second row of the pattern">
        <source></source>
        <translation>Tweede rij van het patroon</translation>
    </message>
    <message id="the third row of the pattern">
        <source></source>
        <translation>Derde rij van het patroon</translation>
    </message>
    <message id="the fourth row of the pattern">
        <source></source>
        <translation>Vierde rij van het patroon</translation>
    </message>
    <message id="the fade to the floor">
        <source></source>
        <translation>Overgang naar de vloer</translation>
    </message>
    <message id="the floor">
        <source></source>
        <translation>Vloer</translation>
    </message>
    <message id="the line below the year">
        <source></source>
        <translation>Lijn onder het jaar</translation>
    </message>
    <message id="the line below the players">
        <source></source>
        <translation>Lijn onder het aantal spelers</translation>
    </message>
    <message id="the game's name">
        <source></source>
        <translation>Naam van het spel</translation>
    </message>
    <message id="the year">
        <source></source>
        <translation>Jaar</translation>
    </message>
    <message id="the number of players">
        <source></source>
        <translation>Aantal spelers</translation>
    </message>
    <message id="the rating">
        <source></source>
        <translation>Leeftijdsclassificatie</translation>
    </message>
    <message id="Choose a scheme">
        <source></source>
        <translation>Kleurenschema kiezen</translation>
    </message>
    <message id="Colors of the layout file, or a saved scheme">
        <source></source>
        <translation>Kleuren van het layoutbestand of een opgeslagen kleurenschema</translation>
    </message>
    <message id="The layout file to read colors from">
        <source></source>
        <translation>Layoutbestand waaruit kleuren worden gelezen</translation>
    </message>
    <message id="Save all colors as a scheme">
        <source></source>
        <translation>Alle kleuren opslaan als kleurenschema</translation>
    </message>
    <message id="Read the colors of that layout file">
        <source></source>
        <translation>Kleuren van dat layoutbestand lezen</translation>
    </message>
    <message id="Pre&amp;view">
        <source></source>
        <translation>Voorbeeld</translation>
    </message>
    <message id="As the console &amp;draws it">
        <source></source>
        <translation>Zoals op de console</translation>
    </message>
    <message id="Red">
        <source></source>
        <translation>Rood</translation>
    </message>
    <message id="Red, 0 to 255">
        <source></source>
        <translation>Rood, 0 tot 255</translation>
    </message>
    <message id="Green">
        <source></source>
        <translation>Groen</translation>
    </message>
    <message id="Green, 0 to 255">
        <source></source>
        <translation>Groen, 0 tot 255</translation>
    </message>
    <message id="Blue">
        <source></source>
        <translation>Blauw</translation>
    </message>
    <message id="Blue, 0 to 255">
        <source></source>
        <translation>Blauw, 0 tot 255</translation>
    </message>
    <message id="Hex">
        <source></source>
        <translation>Hex</translation>
    </message>
    <message id="All three as six hexadecimal digits">
        <source></source>
        <translation>Alle drie als zes hexadecimale cijfers</translation>
    </message>
    <message id="Color being edited">
        <source></source>
        <translation>Kleur die wordt bewerkt</translation>
    </message>
    <message id="Give the box being edited this color">
        <source></source>
        <translation>Deze kleur instellen voor het vak dat wordt bewerkt</translation>
    </message>
    <message id="The game's name; ^ is a line break">
        <source></source>
        <translation>Naam van het spel; ^ is een regeleinde</translation>
    </message>
    <message id="Language of the name">
        <source></source>
        <translation>Taal van de naam</translation>
    </message>
    <message id="Write the name for this language">
        <source></source>
        <translation>Naam voor deze taal instellen</translation>
    </message>
    <message id="Write the name for every language">
        <source></source>
        <translation>Naam voor alle talen instellen</translation>
    </message>
    <message id="The console's name">
        <source></source>
        <translation>Naam van de console</translation>
    </message>
    <message id="Write the console's name">
        <source></source>
        <translation>Naam van de console instellen</translation>
    </message>
    <message id="The year of the release">
        <source></source>
        <translation>Jaar van uitgave</translation>
    </message>
    <message id="Language of the year">
        <source></source>
        <translation>Taal van het jaar</translation>
    </message>
    <message id="Write the year for this language">
        <source></source>
        <translation>Jaar voor deze taal instellen</translation>
    </message>
    <message id="Write the year for every language">
        <source></source>
        <translation>Jaar voor alle talen instellen</translation>
    </message>
    <message id="The rating: E, T, M...">
        <source></source>
        <translation>Leeftijdsclassificatie: E, T, M...</translation>
    </message>
    <message id="Language of the rating">
        <source></source>
        <translation>Taal van de leeftijdsclassificatie</translation>
    </message>
    <message id="Write the rating for this language">
        <source></source>
        <translation>Leeftijdsclassificatie voor deze taal instellen</translation>
    </message>
    <message id="Write the rating for every language">
        <source></source>
        <translation>Leeftijdsclassificatie voor alle talen instellen</translation>
    </message>
    <message id="Show and replace the text of any text box">
        <source></source>
        <translation>Tekst van elk gewenst tekstvak tonen en vervangen</translation>
    </message>
    <message id="The language that is shown">
        <source></source>
        <translation>Getoonde taal</translation>
    </message>
    <message id="The highest number of players">
        <source></source>
        <translation>Maximaal aantal spelers</translation>
    </message>
    <message id="Write the number of players for every language">
        <source></source>
        <translation>Aantal spelers voor alle talen instellen</translation>
    </message>
    <message id="Length to fill the file up to; +N appends N bytes; 0 for none">
        <source></source>
        <translation>Lengte tot waar het bestand wordt aangevuld; +N voegt N bytes toe; 0 voor geen opvulling</translation>
    </message>
    <message id="The color scheme that the next save applies">
        <source></source>
        <translation>Kleurenschema dat bij de volgende keer opslaan wordt toegepast</translation>
    </message>
    <message id="Edit colors and see the banner">
        <source></source>
        <translation>Kleuren bewerken en de banner bekijken</translation>
    </message>
    <message id="The logo texture that the next save puts into the banner">
        <source></source>
        <translation>Logotextuur die bij de volgende keer opslaan in de banner komt</translation>
    </message>
    <message id="Game Pic&amp;ture...">
        <source></source>
        <translation>Afbeelding van het spel...</translation>
    </message>
    <message id="See, replace and export the game's picture">
        <source></source>
        <translation>Afbeelding van het spel bekijken, vervangen en exporteren</translation>
    </message>
    <message id="The language that the next save lets another one answer to">
        <source></source>
        <translation>Taal waarvoor na de volgende keer opslaan een andere in de plaats komt</translation>
    </message>
    <message id="All Languages...">
        <source></source>
        <translation>Alle talen...</translation>
    </message>
    <message id="The texts of all languages in one table">
        <source></source>
        <translation>De teksten van alle talen in één tabel</translation>
    </message>
    <message id="Do not apply">
        <source></source>
        <translation>Niet toepassen</translation>
    </message>
    <message id="Take back what was chosen for another file">
        <source></source>
        <translation>Keuze voor een ander bestand terugnemen</translation>
    </message>
    <message id="Channel names">
        <source></source>
        <translation>Kanaalnamen</translation>
    </message>
    <message id="Up to 20 characters a line, as the console's menu shows them">
        <source></source>
        <translation>Maximaal 20 tekens per regel, zoals in het menu van de console</translation>
    </message>
    <message id="%1, line %2">
        <source></source>
        <translation>%1, regel %2</translation>
    </message>
    <message id="Write the names that differ">
        <source></source>
        <translation>Gewijzigde namen instellen</translation>
    </message>
    <message id="Game Picture">
        <source></source>
        <translation>Afbeelding van het spel</translation>
    </message>
    <message id="Picture of the game">
        <source></source>
        <translation>Afbeelding van het spel</translation>
    </message>
    <message id="What happens to a picture whose sides are in another ratio">
        <source></source>
        <translation>Wat er gebeurt met een afbeelding met andere verhoudingen</translation>
    </message>
    <message id="&amp;Fit:">
        <source></source>
        <translation>&amp;Passend maken:</translation>
    </message>
    <message id="&amp;Replace...">
        <source></source>
        <translation>&amp;Vervangen...</translation>
    </message>
    <message id="Take another picture, for banner and icon">
        <source></source>
        <translation>Andere afbeelding kiezen voor banner en pictogram</translation>
    </message>
    <message id="&amp;Export...">
        <source></source>
        <translation>&amp;Exporteren...</translation>
    </message>
    <message id="Write the picture into a PNG file">
        <source></source>
        <translation>Afbeelding opslaan als PNG-bestand</translation>
    </message>
    <message id="The manual is not there: %1">
        <source></source>
        <translation>De handleiding is niet gevonden: %1</translation>
    </message>
    <message id="Manual">
        <source></source>
        <translation>Handleiding</translation>
    </message>
    <message id="How to work with the editor">
        <source></source>
        <translation>Werken met de editor</translation>
    </message>
    <message id="About Bannersmith">
        <source></source>
        <translation>Over Bannersmith</translation>
    </message>
    <message id="The editor for the banners of Virtual Console channels.">
        <source></source>
        <translation>De editor voor de banners van Virtual Console-kanalen.</translation>
    </message>
    <message id="Qt %1, used under the LGPL">
        <source></source>
        <translation>Qt %1, gebruikt onder de LGPL</translation>
    </message>
    <message id="All languages">
        <source></source>
        <translation>Alle talen</translation>
    </message>
    <message id="The text of this cell">
        <source></source>
        <translation>Tekst van deze cel</translation>
    </message>
    <message id="All Languages">
        <source></source>
        <translation>Alle talen</translation>
    </message>
    <message id="Texts of all languages">
        <source></source>
        <translation>Teksten van alle talen</translation>
    </message>
    <message id="A row for each language, a column for each field">
        <source></source>
        <translation>Een rij per taal, een kolom per veld</translation>
    </message>
    <message id="Values, around which the banner has the wording of each language; or its whole texts">
        <source></source>
        <translation>Alleen de waarden, die de banner in de bewoording van elke taal plaatst, of de volledige teksten</translation>
    </message>
    <message id="Type into a cell; Enter goes to the next language. Cells can be pasted from a spreadsheet.">
        <source></source>
        <translation>Typ in een cel; Enter gaat naar de volgende taal. Cellen kunnen uit een rekenblad worden geplakt.</translation>
    </message>
    <message id="&amp;Show:">
        <source></source>
        <translation>&amp;Tonen:</translation>
    </message>
    <message id="The banner will say: %1">
        <source></source>
        <translation>Op de banner komt te staan: %1</translation>
    </message>
    <message id="As the system">
        <source></source>
        <translation>Systeemtaal</translation>
    </message>
    <message id="the text for all languages">
        <source></source>
        <translation>Tekst voor alle talen</translation>
    </message>
    <message id="Korean">
        <source></source>
        <translation>Koreaans</translation>
    </message>
    <message id="English">
        <source></source>
        <translation>Engels</translation>
    </message>
    <message id="German">
        <source></source>
        <translation>Duits</translation>
    </message>
    <message id="French">
        <source></source>
        <translation>Frans</translation>
    </message>
    <message id="Italian">
        <source></source>
        <translation>Italiaans</translation>
    </message>
    <message id="Spanish">
        <source></source>
        <translation>Spaans</translation>
    </message>
    <message id="Dutch">
        <source></source>
        <translation>Nederlands</translation>
    </message>
    <message id="Japanese">
        <source></source>
        <translation>Japans</translation>
    </message>
    <message id="The banner as the console draws it">
        <source></source>
        <translation>De banner zoals de console die toont</translation>
    </message>
    <message id="Pl&amp;ay">
        <source></source>
        <translation>Afspelen</translation>
    </message>
    <message id="Play the animation, from its beginning">
        <source></source>
        <translation>Animatie vanaf het begin afspelen</translation>
    </message>
    <message id="Sa&amp;ve Picture...">
        <source></source>
        <translation>Afbeelding opslaan...</translation>
    </message>
    <message id="Which part of the channel is shown">
        <source></source>
        <translation>Getoond deel van het kanaal</translation>
    </message>
    <message id="The shape of the screen">
        <source></source>
        <translation>Schermverhouding</translation>
    </message>
    <message id="&amp;File">
        <source></source>
        <translation>&amp;Bestand</translation>
    </message>
    <message id="&amp;Open...">
        <source></source>
        <translation>&amp;Openen...</translation>
    </message>
    <message id="Open &amp;Recent">
        <source></source>
        <translation>&amp;Recente bestanden</translation>
    </message>
    <message id="Re&amp;load">
        <source></source>
        <translation>Opnieuw &amp;laden</translation>
    </message>
    <message id="&amp;Save Changes">
        <source></source>
        <translation>&amp;Save Changes</translation>
    </message>
    <message id="&amp;Quit">
        <source></source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message id="No file yet">
        <source></source>
        <translation>Nog geen bestand</translation>
    </message>
    <message id="E&amp;dit">
        <source></source>
        <translation>Be&amp;werken</translation>
    </message>
    <message id="&amp;All Languages...">
        <source></source>
        <translation>Alle &amp;talen...</translation>
    </message>
    <message id="&amp;Hardcore Manual Text Editor">
        <source></source>
        <translation>&amp;Hardcore Manual Text Editor</translation>
    </message>
    <message id="&amp;Color Editor And Preview">
        <source></source>
        <translation>&amp;Color Editor And Preview</translation>
    </message>
    <message id="&amp;Game Picture...">
        <source></source>
        <translation>&amp;Afbeelding van het spel...</translation>
    </message>
    <message id="&amp;Undo %1">
        <source></source>
        <translation>&amp;Ongedaan maken: %1</translation>
    </message>
    <message id="&amp;Undo">
        <source></source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message id="&amp;Redo %1">
        <source></source>
        <translation>O&amp;pnieuw: %1</translation>
    </message>
    <message id="&amp;Redo">
        <source></source>
        <translation>O&amp;pnieuw</translation>
    </message>
    <message id="&amp;View">
        <source></source>
        <translation>Beel&amp;d</translation>
    </message>
    <message id="&amp;Play or Stop">
        <source></source>
        <translation>&amp;Afspelen of stoppen</translation>
    </message>
    <message id="&amp;Language of the windows">
        <source></source>
        <translation>&amp;Taal van de vensters</translation>
    </message>
    <message id="The windows speak this language from the next start on.">
        <source></source>
        <translation>De vensters gebruiken deze taal vanaf de volgende start.</translation>
    </message>
    <message id="&amp;Help">
        <source></source>
        <translation>&amp;Help</translation>
    </message>
    <message id="&amp;Manual">
        <source></source>
        <translation>&amp;Handleiding</translation>
    </message>
    <message id="&amp;About Bannersmith">
        <source></source>
        <translation>&amp;Over Bannersmith</translation>
    </message>
    <message id="This is a sample. Type a name, press Set All, and see the banner change; nothing is written before Save Changes. Open your own file with %1, or drop it here. %2 shows the manual.">
        <source></source>
        <translation>Dit is een voorbeeld. Typ een naam, klik op ‘Set All’ en zie de banner veranderen; er wordt niets geschreven vóór ‘Save Changes’. Open een eigen bestand met %1 of sleep het hierheen. %2 toont de handleiding.</translation>
    </message>
    <message id="Got it">
        <source></source>
        <translation>Begrepen</translation>
    </message>
    <message id="Do not show this hint again">
        <source></source>
        <translation>Deze tip niet meer tonen</translation>
    </message>
    <message id="&amp;Banner">
        <source></source>
        <translation>Banner</translation>
    </message>
    <message id="Channel na&amp;mes">
        <source></source>
        <translation>Kanaalnamen</translation>
    </message>
    <message id="The layout file; a path that begins with \ is below the program's folder">
        <source></source>
        <translation>Layoutbestand; een pad dat begint met \ ligt onder de programmamap</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here">
        <source></source>
        <translation>Sleep een kanaalbestand, layout of map hierheen</translation>
    </message>
    <message id="Choose a layout file">
        <source></source>
        <translation>Layoutbestand kiezen</translation>
    </message>
    <message id="Browse">
        <source></source>
        <translation>Bladeren</translation>
    </message>
    <message id="Write the layout file">
        <source></source>
        <translation>Layoutbestand opslaan</translation>
    </message>
    <message id="Not enough memory">
        <source></source>
        <translation>Onvoldoende geheugen</translation>
    </message>
    <message id="No layout is loaded">
        <source></source>
        <translation>Er is geen layout geladen</translation>
    </message>
    <message id="Names no layout file">
        <source></source>
        <translation>Geen layoutbestand opgegeven</translation>
    </message>
    <message id="Holds no line; write one with any path into it">
        <source></source>
        <translation>Bevat geen regel; schrijf er een regel met een willekeurig pad in</translation>
    </message>
    <message id="Too short to be a layout">
        <source></source>
        <translation>Te kort voor een layout</translation>
    </message>
    <message id="Is no archive of a channel">
        <source></source>
        <translation>Is geen kanaalarchief</translation>
    </message>
    <message id="IMET checksum does not hold">
        <source></source>
        <translation>IMET-controlesom klopt niet</translation>
    </message>
    <message id="IMD5 checksum does not hold">
        <source></source>
        <translation>IMD5-controlesom klopt niet</translation>
    </message>
    <message id="Holds neither banner.bin nor icon.bin">
        <source></source>
        <translation>Bevat noch banner.bin, noch icon.bin</translation>
    </message>
    <message id="Holds no layout">
        <source></source>
        <translation>Bevat geen layout</translation>
    </message>
    <message id="Has no such channel name">
        <source></source>
        <translation>Bevat geen dergelijke kanaalnaam</translation>
    </message>
    <message id="Is a program, not a layout file">
        <source></source>
        <translation>Is een programma, geen layoutbestand</translation>
    </message>
    <message id="Another run of Bannersmith is at work in its folder">
        <source></source>
        <translation>Een ander exemplaar van Bannersmith is bezig in de map van dit bestand</translation>
    </message>
    <message id="Not a whole number up to 268435456, with or without + in front of it">
        <source></source>
        <translation>Geen geheel getal tot 268435456, met of zonder + ervoor</translation>
    </message>
    <message id="Has no picture of the game">
        <source></source>
        <translation>Bevat geen afbeelding van het spel</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture nor a texture">
        <source></source>
        <translation>Is geen PNG- of JPEG-afbeelding en geen textuur</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture">
        <source></source>
        <translation>Is geen PNG- of JPEG-afbeelding</translation>
    </message>
    <message id="Picture is cut off">
        <source></source>
        <translation>De afbeelding is onvolledig</translation>
    </message>
    <message id="Picture is broken">
        <source></source>
        <translation>De afbeelding is beschadigd</translation>
    </message>
    <message id="Is too large">
        <source></source>
        <translation>Is te groot</translation>
    </message>
    <message id="Is no texture, or is cut off">
        <source></source>
        <translation>Is geen textuur of is onvolledig</translation>
    </message>
    <message id="Texture is broken">
        <source></source>
        <translation>De textuur is beschadigd</translation>
    </message>
    <message id="A scheme's name cannot begin with . or hold \ or /">
        <source></source>
        <translation>De naam van een kleurenschema mag niet met . beginnen en geen \ of / bevatten</translation>
    </message>
    <message id="Not an ordinary file">
        <source></source>
        <translation>Geen gewoon bestand</translation>
    </message>
    <message id="Is a directory">
        <source></source>
        <translation>Is een map</translation>
    </message>
    <message id="No such file or directory">
        <source></source>
        <translation>Bestand of map bestaat niet</translation>
    </message>
    <message id="Permission denied">
        <source></source>
        <translation>Toegang geweigerd</translation>
    </message>
    <message id="Read-only file system">
        <source></source>
        <translation>Bestandssysteem is alleen-lezen</translation>
    </message>
    <message id="No space left on device">
        <source></source>
        <translation>Geen ruimte meer op het apparaat</translation>
    </message>
    <message id="Disk quota exceeded">
        <source></source>
        <translation>Schijfquotum overschreden</translation>
    </message>
    <message id="File too large">
        <source></source>
        <translation>Bestand te groot</translation>
    </message>
    <message id="The entries that hold what is searched for">
        <source></source>
        <translation>Items die de gezochte tekst bevatten</translation>
    </message>
    <message id="Search">
        <source></source>
        <translation>Zoeken</translation>
    </message>
    <message id="Leaves the entries that hold the text">
        <source></source>
        <translation>Toont alleen de items die de tekst bevatten</translation>
    </message>
    <message id="The text boxes of the layout, in the order of the file">
        <source></source>
        <translation>Tekstvakken van de layout, in de volgorde van het bestand</translation>
    </message>
    <message id="The box's text; ^ is a line break">
        <source></source>
        <translation>Tekst van het vak; ^ is een regeleinde</translation>
    </message>
    <message id="Write the text into the chosen box">
        <source></source>
        <translation>Tekst instellen in het gekozen vak</translation>
    </message>
    <message id="red %1">
        <source></source>
        <translation>rood %1</translation>
    </message>
    <message id="green %1">
        <source></source>
        <translation>groen %1</translation>
    </message>
    <message id="blue %1">
        <source></source>
        <translation>blauw %1</translation>
    </message>
    <message id="Crop">
        <source></source>
        <translation>Bijsnijden</translation>
    </message>
    <message id="Border">
        <source></source>
        <translation>Rand</translation>
    </message>
    <message id="Stretch">
        <source></source>
        <translation>Uitrekken</translation>
    </message>
    <message id="Values">
        <source></source>
        <translation>Waarden</translation>
    </message>
    <message id="Whole texts">
        <source></source>
        <translation>Volledige teksten</translation>
    </message>
    <message id="Banner">
        <source></source>
        <translation>Banner</translation>
    </message>
    <message id="Icon">
        <source></source>
        <translation>Pictogram</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here, or open one">
        <source></source>
        <translation>Sleep een kanaalbestand, layout of map hierheen, of open er een</translation>
    </message>
    <message id="Approximate font">
        <source></source>
        <translation>Lettertype bij benadering</translation>
    </message>
    <message id="%1 may not fit its width">
        <source></source>
        <translation>%1 past mogelijk niet in de breedte</translation>
    </message>
    <message id="%1 may not fit its height">
        <source></source>
        <translation>%1 past mogelijk niet in de hoogte</translation>
    </message>
    <message id="St&amp;op">
        <source></source>
        <translation>Stoppen</translation>
    </message>
    <message id="Typed, but not set yet">
        <source></source>
        <translation>Getypt, maar nog niet ingesteld</translation>
    </message>
    <message id="all languages">
        <source></source>
        <translation>alle talen</translation>
    </message>
    <message id="Colors">
        <source></source>
        <translation>Kleuren</translation>
    </message>
    <message id="Logo">
        <source></source>
        <translation>Logo</translation>
    </message>
    <message id="Game picture">
        <source></source>
        <translation>Afbeelding van het spel</translation>
    </message>
    <message id="Region %1">
        <source></source>
        <translation>Regio %1</translation>
    </message>
    <message id="Padding">
        <source></source>
        <translation>Opvulling</translation>
    </message>
    <message id="Channel name (%1)">
        <source></source>
        <translation>Kanaalnaam (%1)</translation>
    </message>
    <message id="Will be applied to this file, too">
        <source></source>
        <translation>Wordt ook op dit bestand toegepast</translation>
    </message>
    <message id="Text editor">
        <source></source>
        <translation>Teksteditor</translation>
    </message>
    <message id="Game picture: the next save writes it">
        <source></source>
        <translation>Afbeelding van het spel: wordt bij de volgende keer opslaan geschreven</translation>
    </message>
    <message id="Not saved">
        <source></source>
        <translation>Niet opgeslagen</translation>
    </message>
    <message id="Saved">
        <source></source>
        <translation>Opgeslagen</translation>
    </message>
    <message id="no colors applied">
        <source></source>
        <translation>geen kleuren toegepast</translation>
    </message>
    <message id="Saved; the banner has no logo texture to replace">
        <source></source>
        <translation>Opgeslagen; de banner heeft geen logotextuur om te vervangen</translation>
    </message>
    <message id="Save with %1">
        <source></source>
        <translation>Opslaan met %1</translation>
    </message>
    <message id="%1 is not a layout file. Save it all the same?">
        <source></source>
        <translation>%1 is geen layoutbestand. Toch opslaan?</translation>
    </message>
    <message id="%1: %2. Force the region all the same?">
        <source></source>
        <translation>%1: %2. De regio toch forceren?</translation>
    </message>
    <message id="one text for all languages">
        <source></source>
        <translation>één tekst voor alle talen</translation>
    </message>
    <message id="no titles">
        <source></source>
        <translation>geen titels</translation>
    </message>
    <message id="nothing changed">
        <source></source>
        <translation>niets gewijzigd</translation>
    </message>
    <message id="other texts changed">
        <source></source>
        <translation>andere teksten gewijzigd</translation>
    </message>
    <message id="1 text changed:">
        <source></source>
        <translation>1 tekst gewijzigd:</translation>
    </message>
    <message id="%1 texts changed:">
        <source></source>
        <translation>%1 teksten gewijzigd:</translation>
    </message>
    <message id="1 line changed">
        <source></source>
        <translation>1 regel gewijzigd</translation>
    </message>
    <message id="%1 lines changed">
        <source></source>
        <translation>%1 regels gewijzigd</translation>
    </message>
    <message id="Taken back: %1">
        <source></source>
        <translation>Ongedaan gemaakt: %1</translation>
    </message>
    <message id="Brought again: %1">
        <source></source>
        <translation>Opnieuw uitgevoerd: %1</translation>
    </message>
    <message id="Warning: %1">
        <source></source>
        <translation>Waarschuwing: %1</translation>
    </message>
    <message id="%1 files in %2 bytes">
        <source></source>
        <translation>%1 bestanden, %2 bytes</translation>
    </message>
    <message id="No layout loaded">
        <source></source>
        <translation>Geen layout geladen</translation>
    </message>
    <message id="texts not saved">
        <source></source>
        <translation>teksten niet opgeslagen</translation>
    </message>
    <message id="texts as in the file">
        <source></source>
        <translation>teksten zoals in het bestand</translation>
    </message>
    <message id="not a layout file">
        <source></source>
        <translation>geen layoutbestand</translation>
    </message>
    <message id="%1 bytes">
        <source></source>
        <translation>%1 bytes</translation>
    </message>
    <message id="Set it first">
        <source></source>
        <translation>Eerst instellen</translation>
    </message>
    <message id="Save">
        <source></source>
        <translation>Opslaan</translation>
    </message>
    <message id="%1 was typed and is not set.">
        <source></source>
        <translation>De invoer voor %1 is niet ingesteld.</translation>
    </message>
    <message id="What was typed is not set, and would not be saved: %1">
        <source></source>
        <translation>Getypte tekst is niet ingesteld en zou niet worden opgeslagen: %1</translation>
    </message>
    <message id="%1 does not have the latest changes.">
        <source></source>
        <translation>De laatste wijzigingen zijn niet opgeslagen in %1.</translation>
    </message>
    <message id="Not set yet: %1">
        <source></source>
        <translation>Nog niet ingesteld: %1</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded.">
        <source></source>
        <translation>%1 is sinds het laden door een ander programma gewijzigd.</translation>
    </message>
    <message id="Reload">
        <source></source>
        <translation>Opnieuw laden</translation>
    </message>
    <message id="Keep what is here">
        <source></source>
        <translation>Geopende versie behouden</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded. Save over it?">
        <source></source>
        <translation>%1 is sinds het laden door een ander programma gewijzigd. Toch overschrijven?</translation>
    </message>
    <message id="Overwrite">
        <source></source>
        <translation>Overschrijven</translation>
    </message>
    <message id="Chinese, simplified">
        <source></source>
        <translation>Vereenvoudigd Chinees</translation>
    </message>
    <message id="Chinese, traditional">
        <source></source>
        <translation>Traditioneel Chinees</translation>
    </message>
</context>
</TS>

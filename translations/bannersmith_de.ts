<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name></name>
    <message id="There is a scheme %1 already. Replace it?">
        <source></source>
        <translation>Das Farbschema „%1“ ist bereits vorhanden. Ersetzen?</translation>
    </message>
    <message id="Being edited">
        <source></source>
        <translation>Wird bearbeitet</translation>
    </message>
    <message id="These colors are in no scheme and would be lost.">
        <source></source>
        <translation>Diese Farben gehören zu keinem Farbschema und würden verloren gehen.</translation>
    </message>
    <message id="Save as a scheme">
        <source></source>
        <translation>Als Farbschema speichern</translation>
    </message>
    <message id="Discard">
        <source></source>
        <translation>Verwerfen</translation>
    </message>
    <message id="Cancel">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="the bar at the top">
        <source></source>
        <translation>Leiste am oberen Rand</translation>
    </message>
    <message id="the console's name">
        <source></source>
        <translation>Name der Konsole</translation>
    </message>
    <message id="the shade over the ground">
        <source></source>
        <translation>Schattierung über dem Hintergrund</translation>
    </message>
    <message id="the picture and its frame">
        <source></source>
        <translation>Bild und Rahmen</translation>
    </message>
    <message id="the picture's mirror image">
        <source></source>
        <translation>Spiegelung des Bildes</translation>
    </message>
    <message id="the picture's shadow">
        <source></source>
        <translation>Schatten des Bildes</translation>
    </message>
    <message id="the ground">
        <source></source>
        <translation>Hintergrund</translation>
    </message>
    <message id="the first row of the pattern">
        <source></source>
        <translation>Erste Reihe des Musters</translation>
    </message>
    <message id="the second row of the pattern">
        <source></source>
        <translation>Zweite Reihe des Musters</translation>
    </message>
    <message id="the third row of the pattern">
        <source></source>
        <translation>Dritte Reihe des Musters</translation>
    </message>
    <message id="the fourth row of the pattern">
        <source></source>
        <translation>Vierte Reihe des Musters</translation>
    </message>
    <message id="the fade to the floor">
        <source></source>
        <translation>Übergang zum Boden</translation>
    </message>
    <message id="the floor">
        <source></source>
        <translation>Boden</translation>
    </message>
    <message id="the line below the year">
        <source></source>
        <translation>Linie unter dem Jahr</translation>
    </message>
    <message id="the line below the players">
        <source></source>
        <translation>Linie unter der Spielerzahl</translation>
    </message>
    <message id="the game's name">
        <source></source>
        <translation>Name des Spiels</translation>
    </message>
    <message id="the year">
        <source></source>
        <translation>Jahr</translation>
    </message>
    <message id="the number of players">
        <source></source>
        <translation>Spielerzahl</translation>
    </message>
    <message id="the rating">
        <source></source>
        <translation>Altersfreigabe</translation>
    </message>
    <message id="Choose a scheme">
        <source></source>
        <translation>Farbschema wählen</translation>
    </message>
    <message id="Colors of the layout file, or a saved scheme">
        <source></source>
        <translation>Farben der Layoutdatei oder ein gespeichertes Farbschema</translation>
    </message>
    <message id="The layout file to read colors from">
        <source></source>
        <translation>Layoutdatei, aus der Farben gelesen werden</translation>
    </message>
    <message id="Save all colors as a scheme">
        <source></source>
        <translation>Alle Farben als Farbschema speichern</translation>
    </message>
    <message id="Read the colors of that layout file">
        <source></source>
        <translation>Farben dieser Layoutdatei lesen</translation>
    </message>
    <message id="Pre&amp;view">
        <source></source>
        <translation>Vorschau</translation>
    </message>
    <message id="As the console &amp;draws it">
        <source></source>
        <translation>Wie auf der Konsole</translation>
    </message>
    <message id="Red">
        <source></source>
        <translation>Rot</translation>
    </message>
    <message id="Red, 0 to 255">
        <source></source>
        <translation>Rot, 0 bis 255</translation>
    </message>
    <message id="Green">
        <source></source>
        <translation>Grün</translation>
    </message>
    <message id="Green, 0 to 255">
        <source></source>
        <translation>Grün, 0 bis 255</translation>
    </message>
    <message id="Blue">
        <source></source>
        <translation>Blau</translation>
    </message>
    <message id="Blue, 0 to 255">
        <source></source>
        <translation>Blau, 0 bis 255</translation>
    </message>
    <message id="Hex">
        <source></source>
        <translation>Hex</translation>
    </message>
    <message id="All three as six hexadecimal digits">
        <source></source>
        <translation>Alle drei als sechs Hexadezimalziffern</translation>
    </message>
    <message id="Color being edited">
        <source></source>
        <translation>Bearbeitete Farbe</translation>
    </message>
    <message id="Give the box being edited this color">
        <source></source>
        <translation>Diese Farbe in das bearbeitete Farbfeld setzen</translation>
    </message>
    <message id="The game's name; ^ is a line break">
        <source></source>
        <translation>Name des Spiels; ^ ist ein Zeilenumbruch</translation>
    </message>
    <message id="Language of the name">
        <source></source>
        <translation>Sprache des Namens</translation>
    </message>
    <message id="Write the name for this language">
        <source></source>
        <translation>Namen für diese Sprache setzen</translation>
    </message>
    <message id="Write the name for every language">
        <source></source>
        <translation>Namen für alle Sprachen setzen</translation>
    </message>
    <message id="The console's name">
        <source></source>
        <translation>Name der Konsole</translation>
    </message>
    <message id="Write the console's name">
        <source></source>
        <translation>Namen der Konsole setzen</translation>
    </message>
    <message id="The year of the release">
        <source></source>
        <translation>Erscheinungsjahr</translation>
    </message>
    <message id="Language of the year">
        <source></source>
        <translation>Sprache des Jahres</translation>
    </message>
    <message id="Write the year for this language">
        <source></source>
        <translation>Jahr für diese Sprache setzen</translation>
    </message>
    <message id="Write the year for every language">
        <source></source>
        <translation>Jahr für alle Sprachen setzen</translation>
    </message>
    <message id="The rating: E, T, M...">
        <source></source>
        <translation>Altersfreigabe: E, T, M...</translation>
    </message>
    <message id="Language of the rating">
        <source></source>
        <translation>Sprache der Altersfreigabe</translation>
    </message>
    <message id="Write the rating for this language">
        <source></source>
        <translation>Altersfreigabe für diese Sprache setzen</translation>
    </message>
    <message id="Write the rating for every language">
        <source></source>
        <translation>Altersfreigabe für alle Sprachen setzen</translation>
    </message>
    <message id="Show and replace the text of any text box">
        <source></source>
        <translation>Texte beliebiger Textfelder anzeigen und ersetzen</translation>
    </message>
    <message id="The language that is shown">
        <source></source>
        <translation>Angezeigte Sprache</translation>
    </message>
    <message id="The highest number of players">
        <source></source>
        <translation>Maximale Spielerzahl</translation>
    </message>
    <message id="Write the number of players for every language">
        <source></source>
        <translation>Spielerzahl für alle Sprachen setzen</translation>
    </message>
    <message id="Length to fill the file up to; +N appends N bytes; 0 for none">
        <source></source>
        <translation>Länge, auf die die Datei aufgefüllt wird; +N hängt N Bytes an; 0 für keine Auffüllung</translation>
    </message>
    <message id="The color scheme that the next save applies">
        <source></source>
        <translation>Farbschema, das beim nächsten Speichern angewendet wird</translation>
    </message>
    <message id="Edit colors and see the banner">
        <source></source>
        <translation>Farben bearbeiten und das Banner ansehen</translation>
    </message>
    <message id="The logo texture that the next save puts into the banner">
        <source></source>
        <translation>Logotextur, die beim nächsten Speichern in das Banner eingesetzt wird</translation>
    </message>
    <message id="Game Pic&amp;ture...">
        <source></source>
        <translation>Bild des Spiels...</translation>
    </message>
    <message id="See, replace and export the game's picture">
        <source></source>
        <translation>Bild des Spiels ansehen, ersetzen und exportieren</translation>
    </message>
    <message id="The language that the next save lets another one answer to">
        <source></source>
        <translation>Sprache, für die ab dem nächsten Speichern eine andere einspringt</translation>
    </message>
    <message id="All Languages...">
        <source></source>
        <translation>Alle Sprachen...</translation>
    </message>
    <message id="The texts of all languages in one table">
        <source></source>
        <translation>Texte aller Sprachen in einer Tabelle</translation>
    </message>
    <message id="Do not apply">
        <source></source>
        <translation>Nicht anwenden</translation>
    </message>
    <message id="Take back what was chosen for another file">
        <source></source>
        <translation>Für eine andere Datei getroffene Auswahl zurücknehmen</translation>
    </message>
    <message id="Channel names">
        <source></source>
        <translation>Kanalnamen</translation>
    </message>
    <message id="Up to 20 characters a line, as the console's menu shows them">
        <source></source>
        <translation>Bis zu 20 Zeichen je Zeile, wie im Menü der Konsole</translation>
    </message>
    <message id="%1, line %2">
        <source></source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message id="Write the names that differ">
        <source></source>
        <translation>Geänderte Namen setzen</translation>
    </message>
    <message id="Game Picture">
        <source></source>
        <translation>Bild des Spiels</translation>
    </message>
    <message id="Picture of the game">
        <source></source>
        <translation>Bild des Spiels</translation>
    </message>
    <message id="What happens to a picture whose sides are in another ratio">
        <source></source>
        <translation>Umgang mit Bildern, deren Seitenverhältnis abweicht</translation>
    </message>
    <message id="&amp;Fit:">
        <source></source>
        <translation>&amp;Anpassung:</translation>
    </message>
    <message id="&amp;Replace...">
        <source></source>
        <translation>&amp;Ersetzen...</translation>
    </message>
    <message id="Take another picture, for banner and icon">
        <source></source>
        <translation>Anderes Bild für Banner und Symbol wählen</translation>
    </message>
    <message id="&amp;Export...">
        <source></source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message id="Write the picture into a PNG file">
        <source></source>
        <translation>Bild als PNG-Datei speichern</translation>
    </message>
    <message id="The manual is not there: %1">
        <source></source>
        <translation>Das Handbuch wurde nicht gefunden: %1</translation>
    </message>
    <message id="Manual">
        <source></source>
        <translation>Handbuch</translation>
    </message>
    <message id="How to work with the editor">
        <source></source>
        <translation>Anleitung zur Arbeit mit dem Editor</translation>
    </message>
    <message id="About Bannersmith">
        <source></source>
        <translation>Über Bannersmith</translation>
    </message>
    <message id="The editor for the banners of Virtual Console channels.">
        <source></source>
        <translation>Der Editor für die Banner von Virtual-Console-Kanälen.</translation>
    </message>
    <message id="Qt %1, used under the LGPL">
        <source></source>
        <translation>Qt %1, verwendet unter der LGPL</translation>
    </message>
    <message id="All languages">
        <source></source>
        <translation>Alle Sprachen</translation>
    </message>
    <message id="The text of this cell">
        <source></source>
        <translation>Text dieser Zelle</translation>
    </message>
    <message id="All Languages">
        <source></source>
        <translation>Alle Sprachen</translation>
    </message>
    <message id="Texts of all languages">
        <source></source>
        <translation>Texte aller Sprachen</translation>
    </message>
    <message id="A row for each language, a column for each field">
        <source></source>
        <translation>Eine Zeile je Sprache, eine Spalte je Feld</translation>
    </message>
    <message id="Values, around which the banner has the wording of each language; or its whole texts">
        <source></source>
        <translation>Nur die Werte, die das Banner in den Wortlaut der jeweiligen Sprache einsetzt, oder die vollständigen Texte</translation>
    </message>
    <message id="Type into a cell; Enter goes to the next language. Cells can be pasted from a spreadsheet.">
        <source></source>
        <translation>In eine Zelle tippen; die Eingabetaste führt zur nächsten Sprache. Zellen lassen sich aus einer Tabellenkalkulation einfügen.</translation>
    </message>
    <message id="&amp;Show:">
        <source></source>
        <translation>&amp;Anzeigen:</translation>
    </message>
    <message id="The banner will say: %1">
        <source></source>
        <translation>Im Banner steht dann: %1</translation>
    </message>
    <message id="As the system">
        <source></source>
        <translation>Systemsprache</translation>
    </message>
    <message id="the text for all languages">
        <source></source>
        <translation>Text für alle Sprachen</translation>
    </message>
    <message id="Korean">
        <source></source>
        <translation>Koreanisch</translation>
    </message>
    <message id="English">
        <source></source>
        <translation>Englisch</translation>
    </message>
    <message id="German">
        <source></source>
        <translation>Deutsch</translation>
    </message>
    <message id="French">
        <source></source>
        <translation>Französisch</translation>
    </message>
    <message id="Italian">
        <source></source>
        <translation>Italienisch</translation>
    </message>
    <message id="Spanish">
        <source></source>
        <translation>Spanisch</translation>
    </message>
    <message id="Dutch">
        <source></source>
        <translation>Niederländisch</translation>
    </message>
    <message id="Japanese">
        <source></source>
        <translation>Japanisch</translation>
    </message>
    <message id="The banner as the console draws it">
        <source></source>
        <translation>Das Banner, wie die Konsole es darstellt</translation>
    </message>
    <message id="Pl&amp;ay">
        <source></source>
        <translation>Abspielen</translation>
    </message>
    <message id="Play the animation, from its beginning">
        <source></source>
        <translation>Animation von Anfang an abspielen</translation>
    </message>
    <message id="Sa&amp;ve Picture...">
        <source></source>
        <translation>Bild speichern...</translation>
    </message>
    <message id="Which part of the channel is shown">
        <source></source>
        <translation>Angezeigter Teil des Kanals</translation>
    </message>
    <message id="The shape of the screen">
        <source></source>
        <translation>Bildschirmformat</translation>
    </message>
    <message id="&amp;File">
        <source></source>
        <translation>&amp;Datei</translation>
    </message>
    <message id="&amp;Open...">
        <source></source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message id="Open &amp;Recent">
        <source></source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message id="Re&amp;load">
        <source></source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message id="&amp;Save Changes">
        <source></source>
        <translation>&amp;Save Changes</translation>
    </message>
    <message id="&amp;Quit">
        <source></source>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="No file yet">
        <source></source>
        <translation>Noch keine Datei</translation>
    </message>
    <message id="E&amp;dit">
        <source></source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message id="&amp;All Languages...">
        <source></source>
        <translation>&amp;Alle Sprachen...</translation>
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
        <translation>&amp;Bild des Spiels...</translation>
    </message>
    <message id="&amp;Undo %1">
        <source></source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message id="&amp;Undo">
        <source></source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message id="&amp;Redo %1">
        <source></source>
        <translation>&amp;Wiederherstellen: %1</translation>
    </message>
    <message id="&amp;Redo">
        <source></source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message id="&amp;View">
        <source></source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message id="&amp;Play or Stop">
        <source></source>
        <translation>&amp;Abspielen oder anhalten</translation>
    </message>
    <message id="&amp;Language of the windows">
        <source></source>
        <translation>&amp;Sprache der Oberfläche</translation>
    </message>
    <message id="The windows speak this language from the next start on.">
        <source></source>
        <translation>Die Oberfläche verwendet diese Sprache ab dem nächsten Start.</translation>
    </message>
    <message id="&amp;Help">
        <source></source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="&amp;Manual">
        <source></source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message id="&amp;About Bannersmith">
        <source></source>
        <translation>Ü&amp;ber Bannersmith</translation>
    </message>
    <message id="This is a sample. Type a name, press Set All, and see the banner change; nothing is written before Save Changes. Open your own file with %1, or drop it here. %2 shows the manual.">
        <source></source>
        <translation>Dies ist ein Beispiel. Geben Sie einen Namen ein, klicken Sie auf „Set All“ und sehen Sie, wie sich das Banner ändert; geschrieben wird erst mit „Save Changes“. Öffnen Sie Ihre eigene Datei mit %1 oder legen Sie sie hier ab. %2 zeigt das Handbuch.</translation>
    </message>
    <message id="Got it">
        <source></source>
        <translation>Verstanden</translation>
    </message>
    <message id="Do not show this hint again">
        <source></source>
        <translation>Diesen Hinweis nicht mehr anzeigen</translation>
    </message>
    <message id="&amp;Banner">
        <source></source>
        <translation>Banner</translation>
    </message>
    <message id="Channel na&amp;mes">
        <source></source>
        <translation>Kanalnamen</translation>
    </message>
    <message id="The layout file; a path that begins with \ is below the program's folder">
        <source></source>
        <translation>Layoutdatei; ein Pfad, der mit \ beginnt, liegt unterhalb des Programmordners</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here">
        <source></source>
        <translation>Kanaldatei, Layout oder Ordner hier ablegen</translation>
    </message>
    <message id="Choose a layout file">
        <source></source>
        <translation>Layoutdatei wählen</translation>
    </message>
    <message id="Browse">
        <source></source>
        <translation>Durchsuchen</translation>
    </message>
    <message id="Write the layout file">
        <source></source>
        <translation>Layoutdatei speichern</translation>
    </message>
    <message id="Not enough memory">
        <source></source>
        <translation>Nicht genügend Arbeitsspeicher</translation>
    </message>
    <message id="No layout is loaded">
        <source></source>
        <translation>Es ist kein Layout geladen</translation>
    </message>
    <message id="Names no layout file">
        <source></source>
        <translation>Keine Layoutdatei angegeben</translation>
    </message>
    <message id="Holds no line; write one with any path into it">
        <source></source>
        <translation>Enthält keine Zeile; eine Zeile mit einem beliebigen Pfad hineinschreiben</translation>
    </message>
    <message id="Too short to be a layout">
        <source></source>
        <translation>Zu kurz für ein Layout</translation>
    </message>
    <message id="Is no archive of a channel">
        <source></source>
        <translation>Ist kein Kanalarchiv</translation>
    </message>
    <message id="IMET checksum does not hold">
        <source></source>
        <translation>Die IMET-Prüfsumme stimmt nicht</translation>
    </message>
    <message id="IMD5 checksum does not hold">
        <source></source>
        <translation>Die IMD5-Prüfsumme stimmt nicht</translation>
    </message>
    <message id="Holds neither banner.bin nor icon.bin">
        <source></source>
        <translation>Enthält weder banner.bin noch icon.bin</translation>
    </message>
    <message id="Holds no layout">
        <source></source>
        <translation>Enthält kein Layout</translation>
    </message>
    <message id="Has no such channel name">
        <source></source>
        <translation>Enthält keinen solchen Kanalnamen</translation>
    </message>
    <message id="Is a program, not a layout file">
        <source></source>
        <translation>Ist ein Programm, keine Layoutdatei</translation>
    </message>
    <message id="Another run of Bannersmith is at work in its folder">
        <source></source>
        <translation>Im Ordner dieser Datei arbeitet gerade eine andere Instanz von Bannersmith</translation>
    </message>
    <message id="Not a whole number up to 268435456, with or without + in front of it">
        <source></source>
        <translation>Keine ganze Zahl bis 268435456, mit oder ohne vorangestelltes +</translation>
    </message>
    <message id="Has no picture of the game">
        <source></source>
        <translation>Enthält kein Bild des Spiels</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture nor a texture">
        <source></source>
        <translation>Ist weder ein PNG- oder JPEG-Bild noch eine Textur</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture">
        <source></source>
        <translation>Ist weder ein PNG- noch ein JPEG-Bild</translation>
    </message>
    <message id="Picture is cut off">
        <source></source>
        <translation>Das Bild ist unvollständig</translation>
    </message>
    <message id="Picture is broken">
        <source></source>
        <translation>Das Bild ist beschädigt</translation>
    </message>
    <message id="Is too large">
        <source></source>
        <translation>Ist zu groß</translation>
    </message>
    <message id="Is no texture, or is cut off">
        <source></source>
        <translation>Ist keine Textur oder unvollständig</translation>
    </message>
    <message id="Texture is broken">
        <source></source>
        <translation>Die Textur ist beschädigt</translation>
    </message>
    <message id="A scheme's name cannot begin with . or hold \ or /">
        <source></source>
        <translation>Der Name eines Farbschemas darf nicht mit . beginnen und weder \ noch / enthalten</translation>
    </message>
    <message id="Not an ordinary file">
        <source></source>
        <translation>Keine gewöhnliche Datei</translation>
    </message>
    <message id="Is a directory">
        <source></source>
        <translation>Ist ein Verzeichnis</translation>
    </message>
    <message id="No such file or directory">
        <source></source>
        <translation>Datei oder Verzeichnis nicht gefunden</translation>
    </message>
    <message id="Permission denied">
        <source></source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message id="Read-only file system">
        <source></source>
        <translation>Das Dateisystem ist schreibgeschützt</translation>
    </message>
    <message id="No space left on device">
        <source></source>
        <translation>Kein Speicherplatz mehr auf dem Gerät</translation>
    </message>
    <message id="Disk quota exceeded">
        <source></source>
        <translation>Das Speicherkontingent ist überschritten</translation>
    </message>
    <message id="File too large">
        <source></source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message id="The entries that hold what is searched for">
        <source></source>
        <translation>Einträge, die den Suchtext enthalten</translation>
    </message>
    <message id="Search">
        <source></source>
        <translation>Suchen</translation>
    </message>
    <message id="Leaves the entries that hold the text">
        <source></source>
        <translation>Zeigt nur die Einträge, die den Text enthalten</translation>
    </message>
    <message id="The text boxes of the layout, in the order of the file">
        <source></source>
        <translation>Textfelder des Layouts in der Reihenfolge der Datei</translation>
    </message>
    <message id="The box's text; ^ is a line break">
        <source></source>
        <translation>Text des Textfelds; ^ ist ein Zeilenumbruch</translation>
    </message>
    <message id="Write the text into the chosen box">
        <source></source>
        <translation>Text in das gewählte Textfeld setzen</translation>
    </message>
    <message id="red %1">
        <source></source>
        <translation>Rot %1</translation>
    </message>
    <message id="green %1">
        <source></source>
        <translation>Grün %1</translation>
    </message>
    <message id="blue %1">
        <source></source>
        <translation>Blau %1</translation>
    </message>
    <message id="Crop">
        <source></source>
        <translation>Zuschneiden</translation>
    </message>
    <message id="Border">
        <source></source>
        <translation>Rand</translation>
    </message>
    <message id="Stretch">
        <source></source>
        <translation>Strecken</translation>
    </message>
    <message id="Values">
        <source></source>
        <translation>Werte</translation>
    </message>
    <message id="Whole texts">
        <source></source>
        <translation>Vollständige Texte</translation>
    </message>
    <message id="Banner">
        <source></source>
        <translation>Banner</translation>
    </message>
    <message id="Icon">
        <source></source>
        <translation>Symbol</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here, or open one">
        <source></source>
        <translation>Kanaldatei, Layout oder Ordner hier ablegen oder öffnen</translation>
    </message>
    <message id="Approximate font">
        <source></source>
        <translation>Angenäherte Schrift</translation>
    </message>
    <message id="%1 may not fit its width">
        <source></source>
        <translation>%1 ist möglicherweise zu breit</translation>
    </message>
    <message id="%1 may not fit its height">
        <source></source>
        <translation>%1 ist möglicherweise zu hoch</translation>
    </message>
    <message id="St&amp;op">
        <source></source>
        <translation>Anhalten</translation>
    </message>
    <message id="Typed, but not set yet">
        <source></source>
        <translation>Eingegeben, aber noch nicht gesetzt</translation>
    </message>
    <message id="all languages">
        <source></source>
        <translation>alle Sprachen</translation>
    </message>
    <message id="Colors">
        <source></source>
        <translation>Farben</translation>
    </message>
    <message id="Logo">
        <source></source>
        <translation>Logo</translation>
    </message>
    <message id="Game picture">
        <source></source>
        <translation>Bild des Spiels</translation>
    </message>
    <message id="Region %1">
        <source></source>
        <translation>Region %1</translation>
    </message>
    <message id="Padding">
        <source></source>
        <translation>Auffüllung</translation>
    </message>
    <message id="Channel name (%1)">
        <source></source>
        <translation>Kanalname (%1)</translation>
    </message>
    <message id="Will be applied to this file, too">
        <source></source>
        <translation>Wird auch auf diese Datei angewendet</translation>
    </message>
    <message id="Text editor">
        <source></source>
        <translation>Texteditor</translation>
    </message>
    <message id="Game picture: the next save writes it">
        <source></source>
        <translation>Bild des Spiels: wird beim nächsten Speichern geschrieben</translation>
    </message>
    <message id="Not saved">
        <source></source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message id="Saved">
        <source></source>
        <translation>Gespeichert</translation>
    </message>
    <message id="no colors applied">
        <source></source>
        <translation>keine Farben angewendet</translation>
    </message>
    <message id="Saved; the banner has no logo texture to replace">
        <source></source>
        <translation>Gespeichert; das Banner enthält keine Logotextur, die sich ersetzen ließe</translation>
    </message>
    <message id="Save with %1">
        <source></source>
        <translation>Speichern mit %1</translation>
    </message>
    <message id="%1 is not a layout file. Save it all the same?">
        <source></source>
        <translation>%1 ist keine Layoutdatei. Trotzdem speichern?</translation>
    </message>
    <message id="%1: %2. Force the region all the same?">
        <source></source>
        <translation>%1: %2. Region trotzdem erzwingen?</translation>
    </message>
    <message id="one text for all languages">
        <source></source>
        <translation>ein Text für alle Sprachen</translation>
    </message>
    <message id="no titles">
        <source></source>
        <translation>keine Titel</translation>
    </message>
    <message id="nothing changed">
        <source></source>
        <translation>nichts geändert</translation>
    </message>
    <message id="other texts changed">
        <source></source>
        <translation>andere Texte geändert</translation>
    </message>
    <message id="1 text changed:">
        <source></source>
        <translation>1 Text geändert:</translation>
    </message>
    <message id="%1 texts changed:">
        <source></source>
        <translation>%1 Texte geändert:</translation>
    </message>
    <message id="1 line changed">
        <source></source>
        <translation>1 Zeile geändert</translation>
    </message>
    <message id="%1 lines changed">
        <source></source>
        <translation>%1 Zeilen geändert</translation>
    </message>
    <message id="Taken back: %1">
        <source></source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message id="Brought again: %1">
        <source></source>
        <translation>Wiederhergestellt: %1</translation>
    </message>
    <message id="Warning: %1">
        <source></source>
        <translation>Warnung: %1</translation>
    </message>
    <message id="%1 files in %2 bytes">
        <source></source>
        <translation>%1 Dateien, %2 Bytes</translation>
    </message>
    <message id="No layout loaded">
        <source></source>
        <translation>Kein Layout geladen</translation>
    </message>
    <message id="texts not saved">
        <source></source>
        <translation>Texte nicht gespeichert</translation>
    </message>
    <message id="texts as in the file">
        <source></source>
        <translation>Texte wie in der Datei</translation>
    </message>
    <message id="not a layout file">
        <source></source>
        <translation>keine Layoutdatei</translation>
    </message>
    <message id="%1 bytes">
        <source></source>
        <translation>%1 Bytes</translation>
    </message>
    <message id="Set it first">
        <source></source>
        <translation>Zuerst setzen</translation>
    </message>
    <message id="Save">
        <source></source>
        <translation>Speichern</translation>
    </message>
    <message id="%1 was typed and is not set.">
        <source></source>
        <translation>Die Eingabe für %1 ist nicht gesetzt.</translation>
    </message>
    <message id="What was typed is not set, and would not be saved: %1">
        <source></source>
        <translation>Folgende Eingaben sind nicht gesetzt und würden nicht gespeichert: %1</translation>
    </message>
    <message id="%1 does not have the latest changes.">
        <source></source>
        <translation>Die letzten Änderungen sind nicht in %1 gespeichert.</translation>
    </message>
    <message id="Not set yet: %1">
        <source></source>
        <translation>Noch nicht gesetzt: %1</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded.">
        <source></source>
        <translation>%1 wurde seit dem Laden von einem anderen Programm geändert.</translation>
    </message>
    <message id="Reload">
        <source></source>
        <translation>Neu laden</translation>
    </message>
    <message id="Keep what is here">
        <source></source>
        <translation>Geöffnete Fassung behalten</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded. Save over it?">
        <source></source>
        <translation>%1 wurde seit dem Laden von einem anderen Programm geändert. Trotzdem überschreiben?</translation>
    </message>
    <message id="Overwrite">
        <source></source>
        <translation>Überschreiben</translation>
    </message>
    <message id="Chinese, simplified">
        <source></source>
        <translation>Chinesisch (vereinfacht)</translation>
    </message>
    <message id="Chinese, traditional">
        <source></source>
        <translation>Chinesisch (traditionell)</translation>
    </message>
</context>
</TS>

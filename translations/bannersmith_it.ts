<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name></name>
    <message id="There is a scheme %1 already. Replace it?">
        <source></source>
        <translation>Lo schema di colori “%1” esiste già. Sostituirlo?</translation>
    </message>
    <message id="Being edited">
        <source></source>
        <translation>In modifica</translation>
    </message>
    <message id="These colors are in no scheme and would be lost.">
        <source></source>
        <translation>Questi colori non sono in nessuno schema e andrebbero persi.</translation>
    </message>
    <message id="Save as a scheme">
        <source></source>
        <translation>Salva come schema di colori</translation>
    </message>
    <message id="Discard">
        <source></source>
        <translation>Scarta</translation>
    </message>
    <message id="Cancel">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <message id="the bar at the top">
        <source></source>
        <translation>Barra in alto</translation>
    </message>
    <message id="the console's name">
        <source></source>
        <translation>Nome della console</translation>
    </message>
    <message id="the shade over the ground">
        <source></source>
        <translation>Ombreggiatura sullo sfondo</translation>
    </message>
    <message id="the picture and its frame">
        <source></source>
        <translation>Immagine e cornice</translation>
    </message>
    <message id="the picture's mirror image">
        <source></source>
        <translation>Riflesso dell’immagine</translation>
    </message>
    <message id="the picture's shadow">
        <source></source>
        <translation>Ombra dell’immagine</translation>
    </message>
    <message id="the ground">
        <source></source>
        <translation>Sfondo</translation>
    </message>
    <message id="the first row of the pattern">
        <source></source>
        <translation>Prima fila del motivo</translation>
    </message>
    <message id="the second row of the pattern">
        <source></source>
        <translation>Seconda fila del motivo</translation>
    </message>
    <message id="the third row of the pattern">
        <source></source>
        <translation>Terza fila del motivo</translation>
    </message>
    <message id="the fourth row of the pattern">
        <source></source>
        <translation>Quarta fila del motivo</translation>
    </message>
    <message id="the fade to the floor">
        <source></source>
        <translation>Sfumatura verso il pavimento</translation>
    </message>
    <message id="the floor">
        <source></source>
        <translation>Pavimento</translation>
    </message>
    <message id="the line below the year">
        <source></source>
        <translation>Linea sotto l’anno</translation>
    </message>
    <message id="the line below the players">
        <source></source>
        <translation>Linea sotto il numero di giocatori</translation>
    </message>
    <message id="the game's name">
        <source></source>
        <translation>Nome del gioco</translation>
    </message>
    <message id="the year">
        <source></source>
        <translation>Anno</translation>
    </message>
    <message id="the number of players">
        <source></source>
        <translation>Numero di giocatori</translation>
    </message>
    <message id="the rating">
        <source></source>
        <translation>Classificazione</translation>
    </message>
    <message id="Choose a scheme">
        <source></source>
        <translation>Scegli uno schema di colori</translation>
    </message>
    <message id="Colors of the layout file, or a saved scheme">
        <source></source>
        <translation>Colori del file di layout o schema di colori salvato</translation>
    </message>
    <message id="The layout file to read colors from">
        <source></source>
        <translation>File di layout da cui leggere i colori</translation>
    </message>
    <message id="Save all colors as a scheme">
        <source></source>
        <translation>Salva tutti i colori come schema di colori</translation>
    </message>
    <message id="Read the colors of that layout file">
        <source></source>
        <translation>Leggi i colori di questo file di layout</translation>
    </message>
    <message id="Pre&amp;view">
        <source></source>
        <translation>Anteprima</translation>
    </message>
    <message id="As the console &amp;draws it">
        <source></source>
        <translation>Come sulla console</translation>
    </message>
    <message id="Red">
        <source></source>
        <translation>Rosso</translation>
    </message>
    <message id="Red, 0 to 255">
        <source></source>
        <translation>Rosso, da 0 a 255</translation>
    </message>
    <message id="Green">
        <source></source>
        <translation>Verde</translation>
    </message>
    <message id="Green, 0 to 255">
        <source></source>
        <translation>Verde, da 0 a 255</translation>
    </message>
    <message id="Blue">
        <source></source>
        <translation>Blu</translation>
    </message>
    <message id="Blue, 0 to 255">
        <source></source>
        <translation>Blu, da 0 a 255</translation>
    </message>
    <message id="Hex">
        <source></source>
        <translation>Hex</translation>
    </message>
    <message id="All three as six hexadecimal digits">
        <source></source>
        <translation>Tutti e tre come sei cifre esadecimali</translation>
    </message>
    <message id="Color being edited">
        <source></source>
        <translation>Colore in modifica</translation>
    </message>
    <message id="Give the box being edited this color">
        <source></source>
        <translation>Imposta questo colore per la casella in modifica</translation>
    </message>
    <message id="The game's name; ^ is a line break">
        <source></source>
        <translation>Nome del gioco; ^ è un’interruzione di riga</translation>
    </message>
    <message id="Language of the name">
        <source></source>
        <translation>Lingua del nome</translation>
    </message>
    <message id="Write the name for this language">
        <source></source>
        <translation>Imposta il nome per questa lingua</translation>
    </message>
    <message id="Write the name for every language">
        <source></source>
        <translation>Imposta il nome per tutte le lingue</translation>
    </message>
    <message id="The console's name">
        <source></source>
        <translation>Nome della console</translation>
    </message>
    <message id="Write the console's name">
        <source></source>
        <translation>Imposta il nome della console</translation>
    </message>
    <message id="The year of the release">
        <source></source>
        <translation>Anno di uscita</translation>
    </message>
    <message id="Language of the year">
        <source></source>
        <translation>Lingua dell’anno</translation>
    </message>
    <message id="Write the year for this language">
        <source></source>
        <translation>Imposta l’anno per questa lingua</translation>
    </message>
    <message id="Write the year for every language">
        <source></source>
        <translation>Imposta l’anno per tutte le lingue</translation>
    </message>
    <message id="The rating: E, T, M...">
        <source></source>
        <translation>Classificazione: E, T, M...</translation>
    </message>
    <message id="Language of the rating">
        <source></source>
        <translation>Lingua della classificazione</translation>
    </message>
    <message id="Write the rating for this language">
        <source></source>
        <translation>Imposta la classificazione per questa lingua</translation>
    </message>
    <message id="Write the rating for every language">
        <source></source>
        <translation>Imposta la classificazione per tutte le lingue</translation>
    </message>
    <message id="Show and replace the text of any text box">
        <source></source>
        <translation>Mostra e sostituisci il testo di qualsiasi casella di testo</translation>
    </message>
    <message id="The language that is shown">
        <source></source>
        <translation>Lingua mostrata</translation>
    </message>
    <message id="The highest number of players">
        <source></source>
        <translation>Numero massimo di giocatori</translation>
    </message>
    <message id="Write the number of players for every language">
        <source></source>
        <translation>Imposta il numero di giocatori per tutte le lingue</translation>
    </message>
    <message id="Length to fill the file up to; +N appends N bytes; 0 for none">
        <source></source>
        <translation>Lunghezza fino a cui riempire il file; +N aggiunge N byte; 0 per non riempire</translation>
    </message>
    <message id="The color scheme that the next save applies">
        <source></source>
        <translation>Schema di colori che verrà applicato al prossimo salvataggio</translation>
    </message>
    <message id="Edit colors and see the banner">
        <source></source>
        <translation>Modifica i colori e guarda il banner</translation>
    </message>
    <message id="The logo texture that the next save puts into the banner">
        <source></source>
        <translation>Texture del logo che verrà inserita nel banner al prossimo salvataggio</translation>
    </message>
    <message id="Game Pic&amp;ture...">
        <source></source>
        <translation>Immagine del gioco...</translation>
    </message>
    <message id="See, replace and export the game's picture">
        <source></source>
        <translation>Guarda, sostituisci ed esporta l’immagine del gioco</translation>
    </message>
    <message id="The language that the next save lets another one answer to">
        <source></source>
        <translation>Lingua al posto della quale ne verrà mostrata un’altra dal prossimo salvataggio</translation>
    </message>
    <message id="All Languages...">
        <source></source>
        <translation>Tutte le lingue...</translation>
    </message>
    <message id="The texts of all languages in one table">
        <source></source>
        <translation>Testi di tutte le lingue in un’unica tabella</translation>
    </message>
    <message id="Do not apply">
        <source></source>
        <translation>Non applicare</translation>
    </message>
    <message id="Take back what was chosen for another file">
        <source></source>
        <translation>Annulla la scelta fatta per un altro file</translation>
    </message>
    <message id="Channel names">
        <source></source>
        <translation>Nomi del canale</translation>
    </message>
    <message id="Up to 20 characters a line, as the console's menu shows them">
        <source></source>
        <translation>Fino a 20 caratteri per riga, come nel menu della console</translation>
    </message>
    <message id="%1, line %2">
        <source></source>
        <translation>%1, riga %2</translation>
    </message>
    <message id="Write the names that differ">
        <source></source>
        <translation>Imposta i nomi modificati</translation>
    </message>
    <message id="Game Picture">
        <source></source>
        <translation>Immagine del gioco</translation>
    </message>
    <message id="Picture of the game">
        <source></source>
        <translation>Immagine del gioco</translation>
    </message>
    <message id="What happens to a picture whose sides are in another ratio">
        <source></source>
        <translation>Trattamento delle immagini con proporzioni diverse</translation>
    </message>
    <message id="&amp;Fit:">
        <source></source>
        <translation>&amp;Adattamento:</translation>
    </message>
    <message id="&amp;Replace...">
        <source></source>
        <translation>&amp;Sostituisci...</translation>
    </message>
    <message id="Take another picture, for banner and icon">
        <source></source>
        <translation>Scegli un’altra immagine, per banner e icona</translation>
    </message>
    <message id="&amp;Export...">
        <source></source>
        <translation>&amp;Esporta...</translation>
    </message>
    <message id="Write the picture into a PNG file">
        <source></source>
        <translation>Salva l’immagine in un file PNG</translation>
    </message>
    <message id="The manual is not there: %1">
        <source></source>
        <translation>Manuale non trovato: %1</translation>
    </message>
    <message id="Manual">
        <source></source>
        <translation>Manuale</translation>
    </message>
    <message id="How to work with the editor">
        <source></source>
        <translation>Come usare l’editor</translation>
    </message>
    <message id="About Bannersmith">
        <source></source>
        <translation>Informazioni su Bannersmith</translation>
    </message>
    <message id="The editor for the banners of Virtual Console channels.">
        <source></source>
        <translation>L’editor per i banner dei canali Virtual Console.</translation>
    </message>
    <message id="Qt %1, used under the LGPL">
        <source></source>
        <translation>Qt %1, usato secondo la licenza LGPL</translation>
    </message>
    <message id="All languages">
        <source></source>
        <translation>Tutte le lingue</translation>
    </message>
    <message id="The text of this cell">
        <source></source>
        <translation>Testo di questa cella</translation>
    </message>
    <message id="All Languages">
        <source></source>
        <translation>Tutte le lingue</translation>
    </message>
    <message id="Texts of all languages">
        <source></source>
        <translation>Testi di tutte le lingue</translation>
    </message>
    <message id="A row for each language, a column for each field">
        <source></source>
        <translation>Una riga per ogni lingua, una colonna per ogni campo</translation>
    </message>
    <message id="Values, around which the banner has the wording of each language; or its whole texts">
        <source></source>
        <translation>Solo i valori, che il banner inserisce nella formulazione di ciascuna lingua, oppure i testi interi</translation>
    </message>
    <message id="Type into a cell; Enter goes to the next language. Cells can be pasted from a spreadsheet.">
        <source></source>
        <translation>Digitare in una cella; Invio passa alla lingua successiva. È possibile incollare celle da un foglio di calcolo.</translation>
    </message>
    <message id="&amp;Show:">
        <source></source>
        <translation>&amp;Mostra:</translation>
    </message>
    <message id="The banner will say: %1">
        <source></source>
        <translation>Il banner dirà: %1</translation>
    </message>
    <message id="As the system">
        <source></source>
        <translation>Lingua di sistema</translation>
    </message>
    <message id="the text for all languages">
        <source></source>
        <translation>Testo per tutte le lingue</translation>
    </message>
    <message id="Korean">
        <source></source>
        <translation>Coreano</translation>
    </message>
    <message id="English">
        <source></source>
        <translation>Inglese</translation>
    </message>
    <message id="German">
        <source></source>
        <translation>Tedesco</translation>
    </message>
    <message id="French">
        <source></source>
        <translation>Francese</translation>
    </message>
    <message id="Italian">
        <source></source>
        <translation>Italiano</translation>
    </message>
    <message id="Spanish">
        <source></source>
        <translation>Spagnolo</translation>
    </message>
    <message id="Dutch">
        <source></source>
        <translation>Olandese</translation>
    </message>
    <message id="Japanese">
        <source></source>
        <translation>Giapponese</translation>
    </message>
    <message id="The banner as the console draws it">
        <source></source>
        <translation>Il banner come lo mostra la console</translation>
    </message>
    <message id="Pl&amp;ay">
        <source></source>
        <translation>Riproduci</translation>
    </message>
    <message id="Play the animation, from its beginning">
        <source></source>
        <translation>Riproduci l’animazione dall’inizio</translation>
    </message>
    <message id="Sa&amp;ve Picture...">
        <source></source>
        <translation>Salva immagine...</translation>
    </message>
    <message id="Which part of the channel is shown">
        <source></source>
        <translation>Parte del canale mostrata</translation>
    </message>
    <message id="The shape of the screen">
        <source></source>
        <translation>Formato dello schermo</translation>
    </message>
    <message id="&amp;File">
        <source></source>
        <translation>&amp;File</translation>
    </message>
    <message id="&amp;Open...">
        <source></source>
        <translation>&amp;Apri...</translation>
    </message>
    <message id="Open &amp;Recent">
        <source></source>
        <translation>Apri &amp;recenti</translation>
    </message>
    <message id="Re&amp;load">
        <source></source>
        <translation>Ri&amp;carica</translation>
    </message>
    <message id="&amp;Save Changes">
        <source></source>
        <translation>&amp;Save Changes</translation>
    </message>
    <message id="&amp;Quit">
        <source></source>
        <translation>&amp;Esci</translation>
    </message>
    <message id="No file yet">
        <source></source>
        <translation>Ancora nessun file</translation>
    </message>
    <message id="E&amp;dit">
        <source></source>
        <translation>&amp;Modifica</translation>
    </message>
    <message id="&amp;All Languages...">
        <source></source>
        <translation>Tutte le &amp;lingue...</translation>
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
        <translation>&amp;Immagine del gioco...</translation>
    </message>
    <message id="&amp;Undo %1">
        <source></source>
        <translation>&amp;Annulla: %1</translation>
    </message>
    <message id="&amp;Undo">
        <source></source>
        <translation>&amp;Annulla</translation>
    </message>
    <message id="&amp;Redo %1">
        <source></source>
        <translation>&amp;Ripristina: %1</translation>
    </message>
    <message id="&amp;Redo">
        <source></source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message id="&amp;View">
        <source></source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message id="&amp;Play or Stop">
        <source></source>
        <translation>&amp;Riproduci o ferma</translation>
    </message>
    <message id="&amp;Language of the windows">
        <source></source>
        <translation>&amp;Lingua dell’interfaccia</translation>
    </message>
    <message id="The windows speak this language from the next start on.">
        <source></source>
        <translation>L’interfaccia userà questa lingua dal prossimo avvio.</translation>
    </message>
    <message id="&amp;Help">
        <source></source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message id="&amp;Manual">
        <source></source>
        <translation>&amp;Manuale</translation>
    </message>
    <message id="&amp;About Bannersmith">
        <source></source>
        <translation>&amp;Informazioni su Bannersmith</translation>
    </message>
    <message id="This is a sample. Type a name, press Set All, and see the banner change; nothing is written before Save Changes. Open your own file with %1, or drop it here. %2 shows the manual.">
        <source></source>
        <translation>Questo è un esempio. Digitare un nome, premere “Set All” e guardare come cambia il banner; nulla viene scritto prima di “Save Changes”. Per aprire un proprio file, premere %1 o trascinarlo qui. %2 mostra il manuale.</translation>
    </message>
    <message id="Got it">
        <source></source>
        <translation>Ho capito</translation>
    </message>
    <message id="Do not show this hint again">
        <source></source>
        <translation>Non mostrare più questo suggerimento</translation>
    </message>
    <message id="&amp;Banner">
        <source></source>
        <translation>Banner</translation>
    </message>
    <message id="Channel na&amp;mes">
        <source></source>
        <translation>Nomi del canale</translation>
    </message>
    <message id="The layout file; a path that begins with \ is below the program's folder">
        <source></source>
        <translation>File di layout; un percorso che inizia con \ parte dalla cartella del programma</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here">
        <source></source>
        <translation>Trascinare qui il file di un canale, un layout o una cartella</translation>
    </message>
    <message id="Choose a layout file">
        <source></source>
        <translation>Scegli un file di layout</translation>
    </message>
    <message id="Browse">
        <source></source>
        <translation>Sfoglia</translation>
    </message>
    <message id="Write the layout file">
        <source></source>
        <translation>Salva il file di layout</translation>
    </message>
    <message id="Not enough memory">
        <source></source>
        <translation>Memoria insufficiente</translation>
    </message>
    <message id="No layout is loaded">
        <source></source>
        <translation>Nessun layout caricato</translation>
    </message>
    <message id="Names no layout file">
        <source></source>
        <translation>Nessun file di layout indicato</translation>
    </message>
    <message id="Holds no line; write one with any path into it">
        <source></source>
        <translation>Non contiene alcuna riga; scriverne una con un percorso qualsiasi</translation>
    </message>
    <message id="Too short to be a layout">
        <source></source>
        <translation>Troppo corto per essere un layout</translation>
    </message>
    <message id="Is no archive of a channel">
        <source></source>
        <translation>Non è un archivio di canale</translation>
    </message>
    <message id="IMET checksum does not hold">
        <source></source>
        <translation>La somma di controllo IMET non corrisponde</translation>
    </message>
    <message id="IMD5 checksum does not hold">
        <source></source>
        <translation>La somma di controllo IMD5 non corrisponde</translation>
    </message>
    <message id="Holds neither banner.bin nor icon.bin">
        <source></source>
        <translation>Non contiene né banner.bin né icon.bin</translation>
    </message>
    <message id="Holds no layout">
        <source></source>
        <translation>Non contiene alcun layout</translation>
    </message>
    <message id="Has no such channel name">
        <source></source>
        <translation>Non contiene tale nome di canale</translation>
    </message>
    <message id="Is a program, not a layout file">
        <source></source>
        <translation>È un programma, non un file di layout</translation>
    </message>
    <message id="Another run of Bannersmith is at work in its folder">
        <source></source>
        <translation>Un’altra istanza di Bannersmith sta lavorando nella cartella di questo file</translation>
    </message>
    <message id="Not a whole number up to 268435456, with or without + in front of it">
        <source></source>
        <translation>Non è un numero intero fino a 268435456, con o senza + davanti</translation>
    </message>
    <message id="Has no picture of the game">
        <source></source>
        <translation>Non contiene un’immagine del gioco</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture nor a texture">
        <source></source>
        <translation>Non è un’immagine PNG o JPEG né una texture</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture">
        <source></source>
        <translation>Non è un’immagine PNG né JPEG</translation>
    </message>
    <message id="Picture is cut off">
        <source></source>
        <translation>L’immagine è incompleta</translation>
    </message>
    <message id="Picture is broken">
        <source></source>
        <translation>L’immagine è danneggiata</translation>
    </message>
    <message id="Is too large">
        <source></source>
        <translation>È troppo grande</translation>
    </message>
    <message id="Is no texture, or is cut off">
        <source></source>
        <translation>Non è una texture o è incompleta</translation>
    </message>
    <message id="Texture is broken">
        <source></source>
        <translation>La texture è danneggiata</translation>
    </message>
    <message id="A scheme's name cannot begin with . or hold \ or /">
        <source></source>
        <translation>Il nome di uno schema di colori non può iniziare con . né contenere \ o /</translation>
    </message>
    <message id="Not an ordinary file">
        <source></source>
        <translation>Non è un file ordinario</translation>
    </message>
    <message id="Is a directory">
        <source></source>
        <translation>È una cartella</translation>
    </message>
    <message id="No such file or directory">
        <source></source>
        <translation>File o cartella non esistente</translation>
    </message>
    <message id="Permission denied">
        <source></source>
        <translation>Permesso negato</translation>
    </message>
    <message id="Read-only file system">
        <source></source>
        <translation>File system in sola lettura</translation>
    </message>
    <message id="No space left on device">
        <source></source>
        <translation>Spazio esaurito sul dispositivo</translation>
    </message>
    <message id="Disk quota exceeded">
        <source></source>
        <translation>Quota disco superata</translation>
    </message>
    <message id="File too large">
        <source></source>
        <translation>File troppo grande</translation>
    </message>
    <message id="The entries that hold what is searched for">
        <source></source>
        <translation>Voci che contengono il testo cercato</translation>
    </message>
    <message id="Search">
        <source></source>
        <translation>Cerca</translation>
    </message>
    <message id="Leaves the entries that hold the text">
        <source></source>
        <translation>Mostra solo le voci che contengono il testo</translation>
    </message>
    <message id="The text boxes of the layout, in the order of the file">
        <source></source>
        <translation>Caselle di testo del layout, nell’ordine del file</translation>
    </message>
    <message id="The box's text; ^ is a line break">
        <source></source>
        <translation>Testo della casella; ^ è un’interruzione di riga</translation>
    </message>
    <message id="Write the text into the chosen box">
        <source></source>
        <translation>Imposta il testo nella casella scelta</translation>
    </message>
    <message id="red %1">
        <source></source>
        <translation>rosso %1</translation>
    </message>
    <message id="green %1">
        <source></source>
        <translation>verde %1</translation>
    </message>
    <message id="blue %1">
        <source></source>
        <translation>blu %1</translation>
    </message>
    <message id="Crop">
        <source></source>
        <translation>Ritaglia</translation>
    </message>
    <message id="Border">
        <source></source>
        <translation>Bordo</translation>
    </message>
    <message id="Stretch">
        <source></source>
        <translation>Estendi</translation>
    </message>
    <message id="Values">
        <source></source>
        <translation>Valori</translation>
    </message>
    <message id="Whole texts">
        <source></source>
        <translation>Testi interi</translation>
    </message>
    <message id="Banner">
        <source></source>
        <translation>Banner</translation>
    </message>
    <message id="Icon">
        <source></source>
        <translation>Icona</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here, or open one">
        <source></source>
        <translation>Trascinare qui il file di un canale, un layout o una cartella, oppure aprirne uno</translation>
    </message>
    <message id="Approximate font">
        <source></source>
        <translation>Carattere approssimato</translation>
    </message>
    <message id="%1 may not fit its width">
        <source></source>
        <translation>%1 potrebbe superare la larghezza disponibile</translation>
    </message>
    <message id="%1 may not fit its height">
        <source></source>
        <translation>%1 potrebbe superare l’altezza disponibile</translation>
    </message>
    <message id="St&amp;op">
        <source></source>
        <translation>Ferma</translation>
    </message>
    <message id="Typed, but not set yet">
        <source></source>
        <translation>Digitato, ma non ancora impostato</translation>
    </message>
    <message id="all languages">
        <source></source>
        <translation>tutte le lingue</translation>
    </message>
    <message id="Colors">
        <source></source>
        <translation>Colori</translation>
    </message>
    <message id="Logo">
        <source></source>
        <translation>Logo</translation>
    </message>
    <message id="Game picture">
        <source></source>
        <translation>Immagine del gioco</translation>
    </message>
    <message id="Region %1">
        <source></source>
        <translation>Regione %1</translation>
    </message>
    <message id="Padding">
        <source></source>
        <translation>Riempimento</translation>
    </message>
    <message id="Channel name (%1)">
        <source></source>
        <translation>Nome del canale (%1)</translation>
    </message>
    <message id="Will be applied to this file, too">
        <source></source>
        <translation>Verrà applicato anche a questo file</translation>
    </message>
    <message id="Text editor">
        <source></source>
        <translation>Editor di testo</translation>
    </message>
    <message id="Game picture: the next save writes it">
        <source></source>
        <translation>Immagine del gioco: verrà scritta al prossimo salvataggio</translation>
    </message>
    <message id="Not saved">
        <source></source>
        <translation>Non salvato</translation>
    </message>
    <message id="Saved">
        <source></source>
        <translation>Salvato</translation>
    </message>
    <message id="no colors applied">
        <source></source>
        <translation>nessun colore applicato</translation>
    </message>
    <message id="Saved; the banner has no logo texture to replace">
        <source></source>
        <translation>Salvato; il banner non ha una texture del logo da sostituire</translation>
    </message>
    <message id="Save with %1">
        <source></source>
        <translation>Salvataggio con %1</translation>
    </message>
    <message id="%1 is not a layout file. Save it all the same?">
        <source></source>
        <translation>%1 non è un file di layout. Salvarlo comunque?</translation>
    </message>
    <message id="%1: %2. Force the region all the same?">
        <source></source>
        <translation>%1: %2. Forzare comunque la regione?</translation>
    </message>
    <message id="one text for all languages">
        <source></source>
        <translation>un solo testo per tutte le lingue</translation>
    </message>
    <message id="no titles">
        <source></source>
        <translation>nessun titolo</translation>
    </message>
    <message id="nothing changed">
        <source></source>
        <translation>nessuna modifica</translation>
    </message>
    <message id="other texts changed">
        <source></source>
        <translation>altri testi modificati</translation>
    </message>
    <message id="1 text changed:">
        <source></source>
        <translation>1 testo modificato:</translation>
    </message>
    <message id="%1 texts changed:">
        <source></source>
        <translation>%1 testi modificati:</translation>
    </message>
    <message id="1 line changed">
        <source></source>
        <translation>1 riga modificata</translation>
    </message>
    <message id="%1 lines changed">
        <source></source>
        <translation>%1 righe modificate</translation>
    </message>
    <message id="Taken back: %1">
        <source></source>
        <translation>Annullato: %1</translation>
    </message>
    <message id="Brought again: %1">
        <source></source>
        <translation>Ripristinato: %1</translation>
    </message>
    <message id="Warning: %1">
        <source></source>
        <translation>Avviso: %1</translation>
    </message>
    <message id="%1 files in %2 bytes">
        <source></source>
        <translation>%1 file, %2 byte</translation>
    </message>
    <message id="No layout loaded">
        <source></source>
        <translation>Nessun layout caricato</translation>
    </message>
    <message id="texts not saved">
        <source></source>
        <translation>testi non salvati</translation>
    </message>
    <message id="texts as in the file">
        <source></source>
        <translation>testi come nel file</translation>
    </message>
    <message id="not a layout file">
        <source></source>
        <translation>non è un file di layout</translation>
    </message>
    <message id="%1 bytes">
        <source></source>
        <translation>%1 byte</translation>
    </message>
    <message id="Set it first">
        <source></source>
        <translation>Imposta prima</translation>
    </message>
    <message id="Save">
        <source></source>
        <translation>Salva</translation>
    </message>
    <message id="%1 was typed and is not set.">
        <source></source>
        <translation>Il testo digitato in %1 non è stato impostato.</translation>
    </message>
    <message id="What was typed is not set, and would not be saved: %1">
        <source></source>
        <translation>Testi digitati ma non impostati, che non verrebbero salvati: %1</translation>
    </message>
    <message id="%1 does not have the latest changes.">
        <source></source>
        <translation>Le ultime modifiche non sono salvate in %1.</translation>
    </message>
    <message id="Not set yet: %1">
        <source></source>
        <translation>Non ancora impostato: %1</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded.">
        <source></source>
        <translation>%1 è stato modificato da un altro programma dopo il caricamento.</translation>
    </message>
    <message id="Reload">
        <source></source>
        <translation>Ricarica</translation>
    </message>
    <message id="Keep what is here">
        <source></source>
        <translation>Mantieni la versione aperta</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded. Save over it?">
        <source></source>
        <translation>%1 è stato modificato da un altro programma dopo il caricamento. Sovrascriverlo?</translation>
    </message>
    <message id="Overwrite">
        <source></source>
        <translation>Sovrascrivi</translation>
    </message>
    <message id="Chinese, simplified">
        <source></source>
        <translation>Cinese semplificato</translation>
    </message>
    <message id="Chinese, traditional">
        <source></source>
        <translation>Cinese tradizionale</translation>
    </message>
</context>
</TS>

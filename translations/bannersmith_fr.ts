<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name></name>
    <message id="There is a scheme %1 already. Replace it?">
        <source></source>
        <translation>Le jeu de couleurs «&#xa0;%1&#xa0;» existe déjà. Le remplacer&#xa0;?</translation>
    </message>
    <message id="Being edited">
        <source></source>
        <translation>En cours de modification</translation>
    </message>
    <message id="These colors are in no scheme and would be lost.">
        <source></source>
        <translation>Ces couleurs ne font partie d’aucun jeu de couleurs et seraient perdues.</translation>
    </message>
    <message id="Save as a scheme">
        <source></source>
        <translation>Enregistrer comme jeu de couleurs</translation>
    </message>
    <message id="Discard">
        <source></source>
        <translation>Ne pas conserver</translation>
    </message>
    <message id="Cancel">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="the bar at the top">
        <source></source>
        <translation>Barre du haut</translation>
    </message>
    <message id="the console's name">
        <source></source>
        <translation>Nom de la console</translation>
    </message>
    <message id="the shade over the ground">
        <source></source>
        <translation>Ombrage sur l’arrière-plan</translation>
    </message>
    <message id="the picture and its frame">
        <source></source>
        <translation>Image et cadre</translation>
    </message>
    <message id="the picture's mirror image">
        <source></source>
        <translation>Reflet de l’image</translation>
    </message>
    <message id="the picture's shadow">
        <source></source>
        <translation>Ombre de l’image</translation>
    </message>
    <message id="the ground">
        <source></source>
        <translation>Arrière-plan</translation>
    </message>
    <message id="the first row of the pattern">
        <source></source>
        <translation>Première rangée du motif</translation>
    </message>
    <message id="the second row of the pattern">
        <source></source>
        <translation>Deuxième rangée du motif</translation>
    </message>
    <message id="the third row of the pattern">
        <source></source>
        <translation>Troisième rangée du motif</translation>
    </message>
    <message id="the fourth row of the pattern">
        <source></source>
        <translation>Quatrième rangée du motif</translation>
    </message>
    <message id="the fade to the floor">
        <source></source>
        <translation>Dégradé vers le sol</translation>
    </message>
    <message id="the floor">
        <source></source>
        <translation>Sol</translation>
    </message>
    <message id="the line below the year">
        <source></source>
        <translation>Ligne sous l’année</translation>
    </message>
    <message id="the line below the players">
        <source></source>
        <translation>Ligne sous le nombre de joueurs</translation>
    </message>
    <message id="the game's name">
        <source></source>
        <translation>Nom du jeu</translation>
    </message>
    <message id="the year">
        <source></source>
        <translation>Année</translation>
    </message>
    <message id="the number of players">
        <source></source>
        <translation>Nombre de joueurs</translation>
    </message>
    <message id="the rating">
        <source></source>
        <translation>Classification</translation>
    </message>
    <message id="Choose a scheme">
        <source></source>
        <translation>Choisir un jeu de couleurs</translation>
    </message>
    <message id="Colors of the layout file, or a saved scheme">
        <source></source>
        <translation>Couleurs du fichier de layout ou jeu de couleurs enregistré</translation>
    </message>
    <message id="The layout file to read colors from">
        <source></source>
        <translation>Fichier de layout dont lire les couleurs</translation>
    </message>
    <message id="Save all colors as a scheme">
        <source></source>
        <translation>Enregistrer toutes les couleurs comme jeu de couleurs</translation>
    </message>
    <message id="Read the colors of that layout file">
        <source></source>
        <translation>Lire les couleurs de ce fichier de layout</translation>
    </message>
    <message id="Pre&amp;view">
        <source></source>
        <translation>Aperçu</translation>
    </message>
    <message id="As the console &amp;draws it">
        <source></source>
        <translation>Rendu de la console</translation>
    </message>
    <message id="Red">
        <source></source>
        <translation>Rouge</translation>
    </message>
    <message id="Red, 0 to 255">
        <source></source>
        <translation>Rouge, de 0 à 255</translation>
    </message>
    <message id="Green">
        <source></source>
        <translation>Vert</translation>
    </message>
    <message id="Green, 0 to 255">
        <source></source>
        <translation>Vert, de 0 à 255</translation>
    </message>
    <message id="Blue">
        <source></source>
        <translation>Bleu</translation>
    </message>
    <message id="Blue, 0 to 255">
        <source></source>
        <translation>Bleu, de 0 à 255</translation>
    </message>
    <message id="Hex">
        <source></source>
        <translation>Hex</translation>
    </message>
    <message id="All three as six hexadecimal digits">
        <source></source>
        <translation>Les trois valeurs en six chiffres hexadécimaux</translation>
    </message>
    <message id="Color being edited">
        <source></source>
        <translation>Couleur en cours de modification</translation>
    </message>
    <message id="Give the box being edited this color">
        <source></source>
        <translation>Appliquer cette couleur à la case en cours de modification</translation>
    </message>
    <message id="The game's name; ^ is a line break">
        <source></source>
        <translation>Nom du jeu&#xa0;; ^ est un saut de ligne</translation>
    </message>
    <message id="Language of the name">
        <source></source>
        <translation>Langue du nom</translation>
    </message>
    <message id="Write the name for this language">
        <source></source>
        <translation>Appliquer le nom pour cette langue</translation>
    </message>
    <message id="Write the name for every language">
        <source></source>
        <translation>Appliquer le nom pour toutes les langues</translation>
    </message>
    <message id="The console's name">
        <source></source>
        <translation>Nom de la console</translation>
    </message>
    <message id="Write the console's name">
        <source></source>
        <translation>Appliquer le nom de la console</translation>
    </message>
    <message id="The year of the release">
        <source></source>
        <translation>Année de sortie</translation>
    </message>
    <message id="Language of the year">
        <source></source>
        <translation>Langue de l’année</translation>
    </message>
    <message id="Write the year for this language">
        <source></source>
        <translation>Appliquer l’année pour cette langue</translation>
    </message>
    <message id="Write the year for every language">
        <source></source>
        <translation>Appliquer l’année pour toutes les langues</translation>
    </message>
    <message id="The rating: E, T, M...">
        <source></source>
        <translation>Classification&#xa0;: E, T, M...</translation>
    </message>
    <message id="Language of the rating">
        <source></source>
        <translation>Langue de la classification</translation>
    </message>
    <message id="Write the rating for this language">
        <source></source>
        <translation>Appliquer la classification pour cette langue</translation>
    </message>
    <message id="Write the rating for every language">
        <source></source>
        <translation>Appliquer la classification pour toutes les langues</translation>
    </message>
    <message id="Show and replace the text of any text box">
        <source></source>
        <translation>Afficher et remplacer le texte de n’importe quelle zone de texte</translation>
    </message>
    <message id="The language that is shown">
        <source></source>
        <translation>Langue affichée</translation>
    </message>
    <message id="The highest number of players">
        <source></source>
        <translation>Nombre maximal de joueurs</translation>
    </message>
    <message id="Write the number of players for every language">
        <source></source>
        <translation>Appliquer le nombre de joueurs pour toutes les langues</translation>
    </message>
    <message id="Length to fill the file up to; +N appends N bytes; 0 for none">
        <source></source>
        <translation>Longueur jusqu’à laquelle compléter le fichier&#xa0;; +N ajoute N octets&#xa0;; 0 pour ne rien ajouter</translation>
    </message>
    <message id="The color scheme that the next save applies">
        <source></source>
        <translation>Jeu de couleurs que le prochain enregistrement appliquera</translation>
    </message>
    <message id="Edit colors and see the banner">
        <source></source>
        <translation>Modifier les couleurs et voir la bannière</translation>
    </message>
    <message id="The logo texture that the next save puts into the banner">
        <source></source>
        <translation>Texture de logo que le prochain enregistrement placera dans la bannière</translation>
    </message>
    <message id="Game Pic&amp;ture...">
        <source></source>
        <translation>Image du jeu...</translation>
    </message>
    <message id="See, replace and export the game's picture">
        <source></source>
        <translation>Voir, remplacer et exporter l’image du jeu</translation>
    </message>
    <message id="The language that the next save lets another one answer to">
        <source></source>
        <translation>Langue à la place de laquelle une autre s’affichera dès le prochain enregistrement</translation>
    </message>
    <message id="All Languages...">
        <source></source>
        <translation>Toutes les langues...</translation>
    </message>
    <message id="The texts of all languages in one table">
        <source></source>
        <translation>Textes de toutes les langues dans un tableau</translation>
    </message>
    <message id="Do not apply">
        <source></source>
        <translation>Ne pas appliquer</translation>
    </message>
    <message id="Take back what was chosen for another file">
        <source></source>
        <translation>Annuler le choix fait pour un autre fichier</translation>
    </message>
    <message id="Channel names">
        <source></source>
        <translation>Noms de la chaîne</translation>
    </message>
    <message id="Up to 20 characters a line, as the console's menu shows them">
        <source></source>
        <translation>Jusqu’à 20 caractères par ligne, comme dans le menu de la console</translation>
    </message>
    <message id="%1, line %2">
        <source></source>
        <translation>%1, ligne %2</translation>
    </message>
    <message id="Write the names that differ">
        <source></source>
        <translation>Appliquer les noms modifiés</translation>
    </message>
    <message id="Game Picture">
        <source></source>
        <translation>Image du jeu</translation>
    </message>
    <message id="Picture of the game">
        <source></source>
        <translation>Image du jeu</translation>
    </message>
    <message id="What happens to a picture whose sides are in another ratio">
        <source></source>
        <translation>Traitement d’une image dont les proportions diffèrent</translation>
    </message>
    <message id="&amp;Fit:">
        <source></source>
        <translation>&amp;Ajustement&#xa0;:</translation>
    </message>
    <message id="&amp;Replace...">
        <source></source>
        <translation>&amp;Remplacer...</translation>
    </message>
    <message id="Take another picture, for banner and icon">
        <source></source>
        <translation>Choisir une autre image, pour la bannière et l’icône</translation>
    </message>
    <message id="&amp;Export...">
        <source></source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message id="Write the picture into a PNG file">
        <source></source>
        <translation>Enregistrer l’image dans un fichier PNG</translation>
    </message>
    <message id="The manual is not there: %1">
        <source></source>
        <translation>Manuel introuvable&#xa0;: %1</translation>
    </message>
    <message id="Manual">
        <source></source>
        <translation>Manuel</translation>
    </message>
    <message id="How to work with the editor">
        <source></source>
        <translation>Comment utiliser l’éditeur</translation>
    </message>
    <message id="About Bannersmith">
        <source></source>
        <translation>À propos de Bannersmith</translation>
    </message>
    <message id="The editor for the banners of Virtual Console channels.">
        <source></source>
        <translation>L’éditeur de bannières pour les chaînes de la Console Virtuelle.</translation>
    </message>
    <message id="Qt %1, used under the LGPL">
        <source></source>
        <translation>Qt %1, utilisé sous licence LGPL</translation>
    </message>
    <message id="All languages">
        <source></source>
        <translation>Toutes les langues</translation>
    </message>
    <message id="The text of this cell">
        <source></source>
        <translation>Texte de cette cellule</translation>
    </message>
    <message id="All Languages">
        <source></source>
        <translation>Toutes les langues</translation>
    </message>
    <message id="Texts of all languages">
        <source></source>
        <translation>Textes de toutes les langues</translation>
    </message>
    <message id="A row for each language, a column for each field">
        <source></source>
        <translation>Une ligne par langue, une colonne par champ</translation>
    </message>
    <message id="Values, around which the banner has the wording of each language; or its whole texts">
        <source></source>
        <translation>Valeurs seules, que la bannière insère dans la formulation de chaque langue, ou textes entiers</translation>
    </message>
    <message id="Type into a cell; Enter goes to the next language. Cells can be pasted from a spreadsheet.">
        <source></source>
        <translation>Saisissez le texte dans une cellule&#xa0;; Entrée passe à la langue suivante. Il est possible de coller des cellules d’un tableur.</translation>
    </message>
    <message id="&amp;Show:">
        <source></source>
        <translation>A&amp;fficher&#xa0;:</translation>
    </message>
    <message id="The banner will say: %1">
        <source></source>
        <translation>La bannière affichera&#xa0;: %1</translation>
    </message>
    <message id="As the system">
        <source></source>
        <translation>Langue du système</translation>
    </message>
    <message id="the text for all languages">
        <source></source>
        <translation>Texte pour toutes les langues</translation>
    </message>
    <message id="Korean">
        <source></source>
        <translation>Coréen</translation>
    </message>
    <message id="English">
        <source></source>
        <translation>Anglais</translation>
    </message>
    <message id="German">
        <source></source>
        <translation>Allemand</translation>
    </message>
    <message id="French">
        <source></source>
        <translation>Français</translation>
    </message>
    <message id="Italian">
        <source></source>
        <translation>Italien</translation>
    </message>
    <message id="Spanish">
        <source></source>
        <translation>Espagnol</translation>
    </message>
    <message id="Dutch">
        <source></source>
        <translation>Néerlandais</translation>
    </message>
    <message id="Japanese">
        <source></source>
        <translation>Japonais</translation>
    </message>
    <message id="The banner as the console draws it">
        <source></source>
        <translation>La bannière telle que la console l’affiche</translation>
    </message>
    <message id="Pl&amp;ay">
        <source></source>
        <translation>Lire</translation>
    </message>
    <message id="Play the animation, from its beginning">
        <source></source>
        <translation>Lire l’animation depuis le début</translation>
    </message>
    <message id="Sa&amp;ve Picture...">
        <source></source>
        <translation>Enregistrer l’image...</translation>
    </message>
    <message id="Which part of the channel is shown">
        <source></source>
        <translation>Partie affichée de la chaîne</translation>
    </message>
    <message id="The shape of the screen">
        <source></source>
        <translation>Format de l’écran</translation>
    </message>
    <message id="&amp;File">
        <source></source>
        <translation>&amp;Fichier</translation>
    </message>
    <message id="&amp;Open...">
        <source></source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message id="Open &amp;Recent">
        <source></source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message id="Re&amp;load">
        <source></source>
        <translation>Re&amp;charger</translation>
    </message>
    <message id="&amp;Save Changes">
        <source></source>
        <translation>&amp;Save Changes</translation>
    </message>
    <message id="&amp;Quit">
        <source></source>
        <translation>&amp;Quitter</translation>
    </message>
    <message id="No file yet">
        <source></source>
        <translation>Aucun fichier pour l’instant</translation>
    </message>
    <message id="E&amp;dit">
        <source></source>
        <translation>Édi&amp;tion</translation>
    </message>
    <message id="&amp;All Languages...">
        <source></source>
        <translation>Toutes les &amp;langues...</translation>
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
        <translation>&amp;Image du jeu...</translation>
    </message>
    <message id="&amp;Undo %1">
        <source></source>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message id="&amp;Undo">
        <source></source>
        <translation>&amp;Annuler</translation>
    </message>
    <message id="&amp;Redo %1">
        <source></source>
        <translation>&amp;Rétablir&#xa0;: %1</translation>
    </message>
    <message id="&amp;Redo">
        <source></source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message id="&amp;View">
        <source></source>
        <translation>&amp;Affichage</translation>
    </message>
    <message id="&amp;Play or Stop">
        <source></source>
        <translation>&amp;Lire ou arrêter</translation>
    </message>
    <message id="&amp;Language of the windows">
        <source></source>
        <translation>Langue de l’&amp;interface</translation>
    </message>
    <message id="The windows speak this language from the next start on.">
        <source></source>
        <translation>L’interface utilisera cette langue au prochain démarrage.</translation>
    </message>
    <message id="&amp;Help">
        <source></source>
        <translation>Ai&amp;de</translation>
    </message>
    <message id="&amp;Manual">
        <source></source>
        <translation>&amp;Manuel</translation>
    </message>
    <message id="&amp;About Bannersmith">
        <source></source>
        <translation>À &amp;propos de Bannersmith</translation>
    </message>
    <message id="This is a sample. Type a name, press Set All, and see the banner change; nothing is written before Save Changes. Open your own file with %1, or drop it here. %2 shows the manual.">
        <source></source>
        <translation>Ceci est un exemple. Saisissez un nom, cliquez sur «&#xa0;Set All&#xa0;» et voyez la bannière changer&#xa0;; rien n’est écrit avant «&#xa0;Save Changes&#xa0;». Ouvrez votre propre fichier avec %1 ou déposez-le ici. %2 affiche le manuel.</translation>
    </message>
    <message id="Got it">
        <source></source>
        <translation>Compris</translation>
    </message>
    <message id="Do not show this hint again">
        <source></source>
        <translation>Ne plus afficher ce conseil</translation>
    </message>
    <message id="&amp;Banner">
        <source></source>
        <translation>Bannière</translation>
    </message>
    <message id="Channel na&amp;mes">
        <source></source>
        <translation>Noms de la chaîne</translation>
    </message>
    <message id="The layout file; a path that begins with \ is below the program's folder">
        <source></source>
        <translation>Fichier de layout&#xa0;; un chemin commençant par \ part du dossier du programme</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here">
        <source></source>
        <translation>Déposez ici un fichier de chaîne, un layout ou un dossier</translation>
    </message>
    <message id="Choose a layout file">
        <source></source>
        <translation>Choisir un fichier de layout</translation>
    </message>
    <message id="Browse">
        <source></source>
        <translation>Parcourir</translation>
    </message>
    <message id="Write the layout file">
        <source></source>
        <translation>Enregistrer le fichier de layout</translation>
    </message>
    <message id="Not enough memory">
        <source></source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message id="No layout is loaded">
        <source></source>
        <translation>Aucun layout n’est chargé</translation>
    </message>
    <message id="Names no layout file">
        <source></source>
        <translation>Aucun fichier de layout indiqué</translation>
    </message>
    <message id="Holds no line; write one with any path into it">
        <source></source>
        <translation>Ne contient aucune ligne&#xa0;; ajoutez-en une avec un chemin quelconque</translation>
    </message>
    <message id="Too short to be a layout">
        <source></source>
        <translation>Trop court pour être un layout</translation>
    </message>
    <message id="Is no archive of a channel">
        <source></source>
        <translation>N’est pas une archive de chaîne</translation>
    </message>
    <message id="IMET checksum does not hold">
        <source></source>
        <translation>La somme de contrôle IMET est incorrecte</translation>
    </message>
    <message id="IMD5 checksum does not hold">
        <source></source>
        <translation>La somme de contrôle IMD5 est incorrecte</translation>
    </message>
    <message id="Holds neither banner.bin nor icon.bin">
        <source></source>
        <translation>Ne contient ni banner.bin ni icon.bin</translation>
    </message>
    <message id="Holds no layout">
        <source></source>
        <translation>Ne contient aucun layout</translation>
    </message>
    <message id="Has no such channel name">
        <source></source>
        <translation>Ne contient pas ce nom de chaîne</translation>
    </message>
    <message id="Is a program, not a layout file">
        <source></source>
        <translation>Est un programme, pas un fichier de layout</translation>
    </message>
    <message id="Another run of Bannersmith is at work in its folder">
        <source></source>
        <translation>Une autre instance de Bannersmith travaille dans le dossier de ce fichier</translation>
    </message>
    <message id="Not a whole number up to 268435456, with or without + in front of it">
        <source></source>
        <translation>N’est pas un nombre entier inférieur ou égal à 268435456, précédé ou non de +</translation>
    </message>
    <message id="Has no picture of the game">
        <source></source>
        <translation>Ne contient pas d’image du jeu</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture nor a texture">
        <source></source>
        <translation>N’est ni une image PNG ou JPEG, ni une texture</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture">
        <source></source>
        <translation>N’est ni une image PNG, ni une image JPEG</translation>
    </message>
    <message id="Picture is cut off">
        <source></source>
        <translation>L’image est tronquée</translation>
    </message>
    <message id="Picture is broken">
        <source></source>
        <translation>L’image est endommagée</translation>
    </message>
    <message id="Is too large">
        <source></source>
        <translation>Est trop volumineux</translation>
    </message>
    <message id="Is no texture, or is cut off">
        <source></source>
        <translation>N’est pas une texture, ou est tronqué</translation>
    </message>
    <message id="Texture is broken">
        <source></source>
        <translation>La texture est endommagée</translation>
    </message>
    <message id="A scheme's name cannot begin with . or hold \ or /">
        <source></source>
        <translation>Le nom d’un jeu de couleurs ne peut ni commencer par . ni contenir \ ou /</translation>
    </message>
    <message id="Not an ordinary file">
        <source></source>
        <translation>N’est pas un fichier ordinaire</translation>
    </message>
    <message id="Is a directory">
        <source></source>
        <translation>Est un dossier</translation>
    </message>
    <message id="No such file or directory">
        <source></source>
        <translation>Aucun fichier ou dossier de ce nom</translation>
    </message>
    <message id="Permission denied">
        <source></source>
        <translation>Permission refusée</translation>
    </message>
    <message id="Read-only file system">
        <source></source>
        <translation>Système de fichiers en lecture seule</translation>
    </message>
    <message id="No space left on device">
        <source></source>
        <translation>Plus d’espace disponible sur le périphérique</translation>
    </message>
    <message id="Disk quota exceeded">
        <source></source>
        <translation>Quota d’espace disque dépassé</translation>
    </message>
    <message id="File too large">
        <source></source>
        <translation>Fichier trop volumineux</translation>
    </message>
    <message id="The entries that hold what is searched for">
        <source></source>
        <translation>Entrées contenant le texte recherché</translation>
    </message>
    <message id="Search">
        <source></source>
        <translation>Rechercher</translation>
    </message>
    <message id="Leaves the entries that hold the text">
        <source></source>
        <translation>N’affiche que les entrées contenant le texte</translation>
    </message>
    <message id="The text boxes of the layout, in the order of the file">
        <source></source>
        <translation>Zones de texte du layout, dans l’ordre du fichier</translation>
    </message>
    <message id="The box's text; ^ is a line break">
        <source></source>
        <translation>Texte de la zone&#xa0;; ^ est un saut de ligne</translation>
    </message>
    <message id="Write the text into the chosen box">
        <source></source>
        <translation>Appliquer le texte à la zone choisie</translation>
    </message>
    <message id="red %1">
        <source></source>
        <translation>rouge %1</translation>
    </message>
    <message id="green %1">
        <source></source>
        <translation>vert %1</translation>
    </message>
    <message id="blue %1">
        <source></source>
        <translation>bleu %1</translation>
    </message>
    <message id="Crop">
        <source></source>
        <translation>Rogner</translation>
    </message>
    <message id="Border">
        <source></source>
        <translation>Bordure</translation>
    </message>
    <message id="Stretch">
        <source></source>
        <translation>Étirer</translation>
    </message>
    <message id="Values">
        <source></source>
        <translation>Valeurs</translation>
    </message>
    <message id="Whole texts">
        <source></source>
        <translation>Textes entiers</translation>
    </message>
    <message id="Banner">
        <source></source>
        <translation>Bannière</translation>
    </message>
    <message id="Icon">
        <source></source>
        <translation>Icône</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here, or open one">
        <source></source>
        <translation>Déposez ici un fichier de chaîne, un layout ou un dossier, ou ouvrez-en un</translation>
    </message>
    <message id="Approximate font">
        <source></source>
        <translation>Police approximative</translation>
    </message>
    <message id="%1 may not fit its width">
        <source></source>
        <translation>%1&#xa0;: largeur peut-être insuffisante pour le texte</translation>
    </message>
    <message id="%1 may not fit its height">
        <source></source>
        <translation>%1&#xa0;: hauteur peut-être insuffisante pour le texte</translation>
    </message>
    <message id="St&amp;op">
        <source></source>
        <translation>Arrêter</translation>
    </message>
    <message id="Typed, but not set yet">
        <source></source>
        <translation>Saisi, mais pas encore appliqué</translation>
    </message>
    <message id="all languages">
        <source></source>
        <translation>toutes les langues</translation>
    </message>
    <message id="Colors">
        <source></source>
        <translation>Couleurs</translation>
    </message>
    <message id="Logo">
        <source></source>
        <translation>Logo</translation>
    </message>
    <message id="Game picture">
        <source></source>
        <translation>Image du jeu</translation>
    </message>
    <message id="Region %1">
        <source></source>
        <translation>Région %1</translation>
    </message>
    <message id="Padding">
        <source></source>
        <translation>Remplissage</translation>
    </message>
    <message id="Channel name (%1)">
        <source></source>
        <translation>Nom de la chaîne (%1)</translation>
    </message>
    <message id="Will be applied to this file, too">
        <source></source>
        <translation>S’appliquera aussi à ce fichier</translation>
    </message>
    <message id="Text editor">
        <source></source>
        <translation>Éditeur de texte</translation>
    </message>
    <message id="Game picture: the next save writes it">
        <source></source>
        <translation>Image du jeu&#xa0;: elle sera écrite au prochain enregistrement</translation>
    </message>
    <message id="Not saved">
        <source></source>
        <translation>Non enregistré</translation>
    </message>
    <message id="Saved">
        <source></source>
        <translation>Enregistré</translation>
    </message>
    <message id="no colors applied">
        <source></source>
        <translation>aucune couleur appliquée</translation>
    </message>
    <message id="Saved; the banner has no logo texture to replace">
        <source></source>
        <translation>Enregistré&#xa0;; la bannière n’a pas de texture de logo à remplacer</translation>
    </message>
    <message id="Save with %1">
        <source></source>
        <translation>Enregistrement avec %1</translation>
    </message>
    <message id="%1 is not a layout file. Save it all the same?">
        <source></source>
        <translation>%1 n’est pas un fichier de layout. L’enregistrer quand même&#xa0;?</translation>
    </message>
    <message id="%1: %2. Force the region all the same?">
        <source></source>
        <translation>%1&#xa0;: %2. Forcer la région quand même&#xa0;?</translation>
    </message>
    <message id="one text for all languages">
        <source></source>
        <translation>un seul texte pour toutes les langues</translation>
    </message>
    <message id="no titles">
        <source></source>
        <translation>aucun titre</translation>
    </message>
    <message id="nothing changed">
        <source></source>
        <translation>aucune modification</translation>
    </message>
    <message id="other texts changed">
        <source></source>
        <translation>autres textes modifiés</translation>
    </message>
    <message id="1 text changed:">
        <source></source>
        <translation>1 texte modifié&#xa0;:</translation>
    </message>
    <message id="%1 texts changed:">
        <source></source>
        <translation>%1 textes modifiés&#xa0;:</translation>
    </message>
    <message id="1 line changed">
        <source></source>
        <translation>1 ligne modifiée</translation>
    </message>
    <message id="%1 lines changed">
        <source></source>
        <translation>%1 lignes modifiées</translation>
    </message>
    <message id="Taken back: %1">
        <source></source>
        <translation>Annulé&#xa0;: %1</translation>
    </message>
    <message id="Brought again: %1">
        <source></source>
        <translation>Rétabli&#xa0;: %1</translation>
    </message>
    <message id="Warning: %1">
        <source></source>
        <translation>Avertissement&#xa0;: %1</translation>
    </message>
    <message id="%1 files in %2 bytes">
        <source></source>
        <translation>%1 fichiers, %2 octets</translation>
    </message>
    <message id="No layout loaded">
        <source></source>
        <translation>Aucun layout chargé</translation>
    </message>
    <message id="texts not saved">
        <source></source>
        <translation>textes non enregistrés</translation>
    </message>
    <message id="texts as in the file">
        <source></source>
        <translation>textes identiques au fichier</translation>
    </message>
    <message id="not a layout file">
        <source></source>
        <translation>pas un fichier de layout</translation>
    </message>
    <message id="%1 bytes">
        <source></source>
        <translation>%1 octets</translation>
    </message>
    <message id="Set it first">
        <source></source>
        <translation>Appliquer d’abord</translation>
    </message>
    <message id="Save">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="%1 was typed and is not set.">
        <source></source>
        <translation>La saisie dans %1 n’a pas été appliquée.</translation>
    </message>
    <message id="What was typed is not set, and would not be saved: %1">
        <source></source>
        <translation>Saisies non appliquées, qui ne seraient pas enregistrées&#xa0;: %1</translation>
    </message>
    <message id="%1 does not have the latest changes.">
        <source></source>
        <translation>Les dernières modifications ne sont pas enregistrées dans %1.</translation>
    </message>
    <message id="Not set yet: %1">
        <source></source>
        <translation>Pas encore appliqué&#xa0;: %1</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded.">
        <source></source>
        <translation>%1 a été modifié par un autre programme depuis son chargement.</translation>
    </message>
    <message id="Reload">
        <source></source>
        <translation>Recharger</translation>
    </message>
    <message id="Keep what is here">
        <source></source>
        <translation>Conserver la version ouverte</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded. Save over it?">
        <source></source>
        <translation>%1 a été modifié par un autre programme depuis son chargement. L’écraser&#xa0;?</translation>
    </message>
    <message id="Overwrite">
        <source></source>
        <translation>Écraser</translation>
    </message>
    <message id="Chinese, simplified">
        <source></source>
        <translation>Chinois simplifié</translation>
    </message>
    <message id="Chinese, traditional">
        <source></source>
        <translation>Chinois traditionnel</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name></name>
    <message id="There is a scheme %1 already. Replace it?">
        <source></source>
        <translation>Ya existe un esquema de color «%1». ¿Reemplazarlo?</translation>
    </message>
    <message id="Being edited">
        <source></source>
        <translation>En edición</translation>
    </message>
    <message id="These colors are in no scheme and would be lost.">
        <source></source>
        <translation>Estos colores no están en ningún esquema y se perderían.</translation>
    </message>
    <message id="Save as a scheme">
        <source></source>
        <translation>Guardar como esquema de color</translation>
    </message>
    <message id="Discard">
        <source></source>
        <translation>Descartar</translation>
    </message>
    <message id="Cancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="the bar at the top">
        <source></source>
        <translation>Barra superior</translation>
    </message>
    <message id="the console's name">
        <source></source>
        <translation>Nombre de la consola</translation>
    </message>
    <message id="the shade over the ground">
        <source></source>
        <translation>Sombreado sobre el fondo</translation>
    </message>
    <message id="the picture and its frame">
        <source></source>
        <translation>Imagen y marco</translation>
    </message>
    <message id="the picture's mirror image">
        <source></source>
        <translation>Reflejo de la imagen</translation>
    </message>
    <message id="the picture's shadow">
        <source></source>
        <translation>Sombra de la imagen</translation>
    </message>
    <message id="the ground">
        <source></source>
        <translation>Fondo</translation>
    </message>
    <message id="the first row of the pattern">
        <source></source>
        <translation>Primera fila del patrón</translation>
    </message>
    <message id="the second row of the pattern">
        <source></source>
        <translation>Segunda fila del patrón</translation>
    </message>
    <message id="the third row of the pattern">
        <source></source>
        <translation>Tercera fila del patrón</translation>
    </message>
    <message id="the fourth row of the pattern">
        <source></source>
        <translation>Cuarta fila del patrón</translation>
    </message>
    <message id="the fade to the floor">
        <source></source>
        <translation>Degradado hacia el suelo</translation>
    </message>
    <message id="the floor">
        <source></source>
        <translation>Suelo</translation>
    </message>
    <message id="the line below the year">
        <source></source>
        <translation>Línea bajo el año</translation>
    </message>
    <message id="the line below the players">
        <source></source>
        <translation>Línea bajo el número de jugadores</translation>
    </message>
    <message id="the game's name">
        <source></source>
        <translation>Nombre del juego</translation>
    </message>
    <message id="the year">
        <source></source>
        <translation>Año</translation>
    </message>
    <message id="the number of players">
        <source></source>
        <translation>Número de jugadores</translation>
    </message>
    <message id="the rating">
        <source></source>
        <translation>Clasificación</translation>
    </message>
    <message id="Choose a scheme">
        <source></source>
        <translation>Elegir un esquema de color</translation>
    </message>
    <message id="Colors of the layout file, or a saved scheme">
        <source></source>
        <translation>Colores del archivo de layout o un esquema de color guardado</translation>
    </message>
    <message id="The layout file to read colors from">
        <source></source>
        <translation>Archivo de layout del que se leen los colores</translation>
    </message>
    <message id="Save all colors as a scheme">
        <source></source>
        <translation>Guardar todos los colores como esquema de color</translation>
    </message>
    <message id="Read the colors of that layout file">
        <source></source>
        <translation>Leer los colores de ese archivo de layout</translation>
    </message>
    <message id="Pre&amp;view">
        <source></source>
        <translation>Vista previa</translation>
    </message>
    <message id="As the console &amp;draws it">
        <source></source>
        <translation>Como en la consola</translation>
    </message>
    <message id="Red">
        <source></source>
        <translation>Rojo</translation>
    </message>
    <message id="Red, 0 to 255">
        <source></source>
        <translation>Rojo, de 0 a 255</translation>
    </message>
    <message id="Green">
        <source></source>
        <translation>Verde</translation>
    </message>
    <message id="Green, 0 to 255">
        <source></source>
        <translation>Verde, de 0 a 255</translation>
    </message>
    <message id="Blue">
        <source></source>
        <translation>Azul</translation>
    </message>
    <message id="Blue, 0 to 255">
        <source></source>
        <translation>Azul, de 0 a 255</translation>
    </message>
    <message id="Hex">
        <source></source>
        <translation>Hex</translation>
    </message>
    <message id="All three as six hexadecimal digits">
        <source></source>
        <translation>Los tres como seis dígitos hexadecimales</translation>
    </message>
    <message id="Color being edited">
        <source></source>
        <translation>Color en edición</translation>
    </message>
    <message id="Give the box being edited this color">
        <source></source>
        <translation>Aplicar este color al recuadro en edición</translation>
    </message>
    <message id="The game's name; ^ is a line break">
        <source></source>
        <translation>Nombre del juego; ^ es un salto de línea</translation>
    </message>
    <message id="Language of the name">
        <source></source>
        <translation>Idioma del nombre</translation>
    </message>
    <message id="Write the name for this language">
        <source></source>
        <translation>Aplicar el nombre a este idioma</translation>
    </message>
    <message id="Write the name for every language">
        <source></source>
        <translation>Aplicar el nombre a todos los idiomas</translation>
    </message>
    <message id="The console's name">
        <source></source>
        <translation>Nombre de la consola</translation>
    </message>
    <message id="Write the console's name">
        <source></source>
        <translation>Aplicar el nombre de la consola</translation>
    </message>
    <message id="The year of the release">
        <source></source>
        <translation>Año de lanzamiento</translation>
    </message>
    <message id="Language of the year">
        <source></source>
        <translation>Idioma del año</translation>
    </message>
    <message id="Write the year for this language">
        <source></source>
        <translation>Aplicar el año a este idioma</translation>
    </message>
    <message id="Write the year for every language">
        <source></source>
        <translation>Aplicar el año a todos los idiomas</translation>
    </message>
    <message id="The rating: E, T, M...">
        <source></source>
        <translation>Clasificación: E, T, M...</translation>
    </message>
    <message id="Language of the rating">
        <source></source>
        <translation>Idioma de la clasificación</translation>
    </message>
    <message id="Write the rating for this language">
        <source></source>
        <translation>Aplicar la clasificación a este idioma</translation>
    </message>
    <message id="Write the rating for every language">
        <source></source>
        <translation>Aplicar la clasificación a todos los idiomas</translation>
    </message>
    <message id="Show and replace the text of any text box">
        <source></source>
        <translation>Mostrar y reemplazar el texto de cualquier cuadro de texto</translation>
    </message>
    <message id="The language that is shown">
        <source></source>
        <translation>Idioma mostrado</translation>
    </message>
    <message id="The highest number of players">
        <source></source>
        <translation>Número máximo de jugadores</translation>
    </message>
    <message id="Write the number of players for every language">
        <source></source>
        <translation>Aplicar el número de jugadores a todos los idiomas</translation>
    </message>
    <message id="Length to fill the file up to; +N appends N bytes; 0 for none">
        <source></source>
        <translation>Longitud hasta la que se rellena el archivo; +N añade N bytes; 0 para no rellenar</translation>
    </message>
    <message id="The color scheme that the next save applies">
        <source></source>
        <translation>Esquema de color que se aplicará al guardar</translation>
    </message>
    <message id="Edit colors and see the banner">
        <source></source>
        <translation>Editar los colores y ver el banner</translation>
    </message>
    <message id="The logo texture that the next save puts into the banner">
        <source></source>
        <translation>Textura del logotipo que se pondrá en el banner al guardar</translation>
    </message>
    <message id="Game Pic&amp;ture...">
        <source></source>
        <translation>Imagen del juego...</translation>
    </message>
    <message id="See, replace and export the game's picture">
        <source></source>
        <translation>Ver, reemplazar y exportar la imagen del juego</translation>
    </message>
    <message id="The language that the next save lets another one answer to">
        <source></source>
        <translation>Idioma en cuyo lugar se mostrará otro después de guardar</translation>
    </message>
    <message id="All Languages...">
        <source></source>
        <translation>Todos los idiomas...</translation>
    </message>
    <message id="The texts of all languages in one table">
        <source></source>
        <translation>Los textos de todos los idiomas en una tabla</translation>
    </message>
    <message id="Do not apply">
        <source></source>
        <translation>No aplicar</translation>
    </message>
    <message id="Take back what was chosen for another file">
        <source></source>
        <translation>Anular la elección hecha para otro archivo</translation>
    </message>
    <message id="Channel names">
        <source></source>
        <translation>Nombres del canal</translation>
    </message>
    <message id="Up to 20 characters a line, as the console's menu shows them">
        <source></source>
        <translation>Hasta 20 caracteres por línea, como en el menú de la consola</translation>
    </message>
    <message id="%1, line %2">
        <source></source>
        <translation>%1, línea %2</translation>
    </message>
    <message id="Write the names that differ">
        <source></source>
        <translation>Aplicar los nombres modificados</translation>
    </message>
    <message id="Game Picture">
        <source></source>
        <translation>Imagen del juego</translation>
    </message>
    <message id="Picture of the game">
        <source></source>
        <translation>Imagen del juego</translation>
    </message>
    <message id="What happens to a picture whose sides are in another ratio">
        <source></source>
        <translation>Qué hacer con una imagen de otras proporciones</translation>
    </message>
    <message id="&amp;Fit:">
        <source></source>
        <translation>&amp;Ajuste:</translation>
    </message>
    <message id="&amp;Replace...">
        <source></source>
        <translation>&amp;Reemplazar...</translation>
    </message>
    <message id="Take another picture, for banner and icon">
        <source></source>
        <translation>Elegir otra imagen para el banner y el icono</translation>
    </message>
    <message id="&amp;Export...">
        <source></source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message id="Write the picture into a PNG file">
        <source></source>
        <translation>Guardar la imagen en un archivo PNG</translation>
    </message>
    <message id="The manual is not there: %1">
        <source></source>
        <translation>No se encuentra el manual: %1</translation>
    </message>
    <message id="Manual">
        <source></source>
        <translation>Manual</translation>
    </message>
    <message id="How to work with the editor">
        <source></source>
        <translation>Cómo trabajar con el editor</translation>
    </message>
    <message id="About Bannersmith">
        <source></source>
        <translation>Acerca de Bannersmith</translation>
    </message>
    <message id="The editor for the banners of Virtual Console channels.">
        <source></source>
        <translation>El editor de banners para los canales de la Consola Virtual.</translation>
    </message>
    <message id="Qt %1, used under the LGPL">
        <source></source>
        <translation>Qt %1, usado bajo la licencia LGPL</translation>
    </message>
    <message id="All languages">
        <source></source>
        <translation>Todos los idiomas</translation>
    </message>
    <message id="The text of this cell">
        <source></source>
        <translation>Texto de esta celda</translation>
    </message>
    <message id="All Languages">
        <source></source>
        <translation>Todos los idiomas</translation>
    </message>
    <message id="Texts of all languages">
        <source></source>
        <translation>Textos de todos los idiomas</translation>
    </message>
    <message id="A row for each language, a column for each field">
        <source></source>
        <translation>Una fila por idioma y una columna por campo</translation>
    </message>
    <message id="Values, around which the banner has the wording of each language; or its whole texts">
        <source></source>
        <translation>Solo los valores, que el banner inserta en la redacción de cada idioma, o los textos completos</translation>
    </message>
    <message id="Type into a cell; Enter goes to the next language. Cells can be pasted from a spreadsheet.">
        <source></source>
        <translation>Escriba en una celda; Intro pasa al idioma siguiente. Se pueden pegar celdas de una hoja de cálculo.</translation>
    </message>
    <message id="&amp;Show:">
        <source></source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message id="The banner will say: %1">
        <source></source>
        <translation>El banner dirá: %1</translation>
    </message>
    <message id="As the system">
        <source></source>
        <translation>Idioma del sistema</translation>
    </message>
    <message id="the text for all languages">
        <source></source>
        <translation>Texto para todos los idiomas</translation>
    </message>
    <message id="Korean">
        <source></source>
        <translation>Coreano</translation>
    </message>
    <message id="English">
        <source></source>
        <translation>Inglés</translation>
    </message>
    <message id="German">
        <source></source>
        <translation>Alemán</translation>
    </message>
    <message id="French">
        <source></source>
        <translation>Francés</translation>
    </message>
    <message id="Italian">
        <source></source>
        <translation>Italiano</translation>
    </message>
    <message id="Spanish">
        <source></source>
        <translation>Español</translation>
    </message>
    <message id="Dutch">
        <source></source>
        <translation>Neerlandés</translation>
    </message>
    <message id="Japanese">
        <source></source>
        <translation>Japonés</translation>
    </message>
    <message id="The banner as the console draws it">
        <source></source>
        <translation>El banner tal como lo muestra la consola</translation>
    </message>
    <message id="Pl&amp;ay">
        <source></source>
        <translation>Reproducir</translation>
    </message>
    <message id="Play the animation, from its beginning">
        <source></source>
        <translation>Reproducir la animación desde el principio</translation>
    </message>
    <message id="Sa&amp;ve Picture...">
        <source></source>
        <translation>Guardar imagen...</translation>
    </message>
    <message id="Which part of the channel is shown">
        <source></source>
        <translation>Parte del canal que se muestra</translation>
    </message>
    <message id="The shape of the screen">
        <source></source>
        <translation>Formato de pantalla</translation>
    </message>
    <message id="&amp;File">
        <source></source>
        <translation>&amp;Archivo</translation>
    </message>
    <message id="&amp;Open...">
        <source></source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message id="Open &amp;Recent">
        <source></source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message id="Re&amp;load">
        <source></source>
        <translation>Re&amp;cargar</translation>
    </message>
    <message id="&amp;Save Changes">
        <source></source>
        <translation>&amp;Save Changes</translation>
    </message>
    <message id="&amp;Quit">
        <source></source>
        <translation>Sa&amp;lir</translation>
    </message>
    <message id="No file yet">
        <source></source>
        <translation>Ningún archivo todavía</translation>
    </message>
    <message id="E&amp;dit">
        <source></source>
        <translation>E&amp;ditar</translation>
    </message>
    <message id="&amp;All Languages...">
        <source></source>
        <translation>&amp;Todos los idiomas...</translation>
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
        <translation>&amp;Imagen del juego...</translation>
    </message>
    <message id="&amp;Undo %1">
        <source></source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message id="&amp;Undo">
        <source></source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message id="&amp;Redo %1">
        <source></source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message id="&amp;Redo">
        <source></source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message id="&amp;View">
        <source></source>
        <translation>&amp;Ver</translation>
    </message>
    <message id="&amp;Play or Stop">
        <source></source>
        <translation>&amp;Reproducir o detener</translation>
    </message>
    <message id="&amp;Language of the windows">
        <source></source>
        <translation>&amp;Idioma de la interfaz</translation>
    </message>
    <message id="The windows speak this language from the next start on.">
        <source></source>
        <translation>La interfaz usará este idioma a partir del próximo inicio.</translation>
    </message>
    <message id="&amp;Help">
        <source></source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message id="&amp;Manual">
        <source></source>
        <translation>&amp;Manual</translation>
    </message>
    <message id="&amp;About Bannersmith">
        <source></source>
        <translation>&amp;Acerca de Bannersmith</translation>
    </message>
    <message id="This is a sample. Type a name, press Set All, and see the banner change; nothing is written before Save Changes. Open your own file with %1, or drop it here. %2 shows the manual.">
        <source></source>
        <translation>Esto es una muestra. Escriba un nombre, pulse «Set All» y vea cómo cambia el banner; no se escribe nada hasta pulsar «Save Changes». Abra su propio archivo con %1 o suéltelo aquí. %2 muestra el manual.</translation>
    </message>
    <message id="Got it">
        <source></source>
        <translation>Entendido</translation>
    </message>
    <message id="Do not show this hint again">
        <source></source>
        <translation>No volver a mostrar este consejo</translation>
    </message>
    <message id="&amp;Banner">
        <source></source>
        <translation>Banner</translation>
    </message>
    <message id="Channel na&amp;mes">
        <source></source>
        <translation>Nombres del canal</translation>
    </message>
    <message id="The layout file; a path that begins with \ is below the program's folder">
        <source></source>
        <translation>Archivo de layout; una ruta que empieza por \ parte de la carpeta del programa</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here">
        <source></source>
        <translation>Suelte aquí el archivo de un canal, un layout o una carpeta</translation>
    </message>
    <message id="Choose a layout file">
        <source></source>
        <translation>Elegir un archivo de layout</translation>
    </message>
    <message id="Browse">
        <source></source>
        <translation>Examinar</translation>
    </message>
    <message id="Write the layout file">
        <source></source>
        <translation>Guardar el archivo de layout</translation>
    </message>
    <message id="Not enough memory">
        <source></source>
        <translation>Memoria insuficiente</translation>
    </message>
    <message id="No layout is loaded">
        <source></source>
        <translation>No hay ningún layout cargado</translation>
    </message>
    <message id="Names no layout file">
        <source></source>
        <translation>No se ha indicado ningún archivo de layout</translation>
    </message>
    <message id="Holds no line; write one with any path into it">
        <source></source>
        <translation>No contiene ninguna línea; escriba una con cualquier ruta</translation>
    </message>
    <message id="Too short to be a layout">
        <source></source>
        <translation>Demasiado corto para ser un layout</translation>
    </message>
    <message id="Is no archive of a channel">
        <source></source>
        <translation>No es un archivo contenedor de canal</translation>
    </message>
    <message id="IMET checksum does not hold">
        <source></source>
        <translation>La suma de comprobación IMET no coincide</translation>
    </message>
    <message id="IMD5 checksum does not hold">
        <source></source>
        <translation>La suma de comprobación IMD5 no coincide</translation>
    </message>
    <message id="Holds neither banner.bin nor icon.bin">
        <source></source>
        <translation>No contiene banner.bin ni icon.bin</translation>
    </message>
    <message id="Holds no layout">
        <source></source>
        <translation>No contiene ningún layout</translation>
    </message>
    <message id="Has no such channel name">
        <source></source>
        <translation>No contiene ese nombre de canal</translation>
    </message>
    <message id="Is a program, not a layout file">
        <source></source>
        <translation>Es un programa, no un archivo de layout</translation>
    </message>
    <message id="Another run of Bannersmith is at work in its folder">
        <source></source>
        <translation>Otra instancia de Bannersmith está trabajando en la carpeta de este archivo</translation>
    </message>
    <message id="Not a whole number up to 268435456, with or without + in front of it">
        <source></source>
        <translation>No es un número entero hasta 268435456, con o sin + delante</translation>
    </message>
    <message id="Has no picture of the game">
        <source></source>
        <translation>No contiene ninguna imagen del juego</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture nor a texture">
        <source></source>
        <translation>No es una imagen PNG o JPEG ni una textura</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture">
        <source></source>
        <translation>No es una imagen PNG ni JPEG</translation>
    </message>
    <message id="Picture is cut off">
        <source></source>
        <translation>La imagen está incompleta</translation>
    </message>
    <message id="Picture is broken">
        <source></source>
        <translation>La imagen está dañada</translation>
    </message>
    <message id="Is too large">
        <source></source>
        <translation>Es demasiado grande</translation>
    </message>
    <message id="Is no texture, or is cut off">
        <source></source>
        <translation>No es una textura o está incompleta</translation>
    </message>
    <message id="Texture is broken">
        <source></source>
        <translation>La textura está dañada</translation>
    </message>
    <message id="A scheme's name cannot begin with . or hold \ or /">
        <source></source>
        <translation>El nombre de un esquema de color no puede empezar por . ni contener \ o /</translation>
    </message>
    <message id="Not an ordinary file">
        <source></source>
        <translation>No es un archivo ordinario</translation>
    </message>
    <message id="Is a directory">
        <source></source>
        <translation>Es un directorio</translation>
    </message>
    <message id="No such file or directory">
        <source></source>
        <translation>No existe el archivo o el directorio</translation>
    </message>
    <message id="Permission denied">
        <source></source>
        <translation>Permiso denegado</translation>
    </message>
    <message id="Read-only file system">
        <source></source>
        <translation>Sistema de archivos de solo lectura</translation>
    </message>
    <message id="No space left on device">
        <source></source>
        <translation>No queda espacio en el dispositivo</translation>
    </message>
    <message id="Disk quota exceeded">
        <source></source>
        <translation>Se ha excedido la cuota de disco</translation>
    </message>
    <message id="File too large">
        <source></source>
        <translation>Archivo demasiado grande</translation>
    </message>
    <message id="The entries that hold what is searched for">
        <source></source>
        <translation>Entradas que contienen el texto buscado</translation>
    </message>
    <message id="Search">
        <source></source>
        <translation>Buscar</translation>
    </message>
    <message id="Leaves the entries that hold the text">
        <source></source>
        <translation>Muestra solo las entradas que contienen el texto</translation>
    </message>
    <message id="The text boxes of the layout, in the order of the file">
        <source></source>
        <translation>Cuadros de texto del layout, en el orden del archivo</translation>
    </message>
    <message id="The box's text; ^ is a line break">
        <source></source>
        <translation>Texto del cuadro; ^ es un salto de línea</translation>
    </message>
    <message id="Write the text into the chosen box">
        <source></source>
        <translation>Aplicar el texto al cuadro elegido</translation>
    </message>
    <message id="red %1">
        <source></source>
        <translation>rojo %1</translation>
    </message>
    <message id="green %1">
        <source></source>
        <translation>verde %1</translation>
    </message>
    <message id="blue %1">
        <source></source>
        <translation>azul %1</translation>
    </message>
    <message id="Crop">
        <source></source>
        <translation>Recortar</translation>
    </message>
    <message id="Border">
        <source></source>
        <translation>Borde</translation>
    </message>
    <message id="Stretch">
        <source></source>
        <translation>Estirar</translation>
    </message>
    <message id="Values">
        <source></source>
        <translation>Valores</translation>
    </message>
    <message id="Whole texts">
        <source></source>
        <translation>Textos completos</translation>
    </message>
    <message id="Banner">
        <source></source>
        <translation>Banner</translation>
    </message>
    <message id="Icon">
        <source></source>
        <translation>Icono</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here, or open one">
        <source></source>
        <translation>Suelte aquí el archivo de un canal, un layout o una carpeta, o abra uno</translation>
    </message>
    <message id="Approximate font">
        <source></source>
        <translation>Fuente aproximada</translation>
    </message>
    <message id="%1 may not fit its width">
        <source></source>
        <translation>Es posible que %1 no quepa a lo ancho</translation>
    </message>
    <message id="%1 may not fit its height">
        <source></source>
        <translation>Es posible que %1 no quepa a lo alto</translation>
    </message>
    <message id="St&amp;op">
        <source></source>
        <translation>Detener</translation>
    </message>
    <message id="Typed, but not set yet">
        <source></source>
        <translation>Escrito, pero aún no aplicado</translation>
    </message>
    <message id="all languages">
        <source></source>
        <translation>todos los idiomas</translation>
    </message>
    <message id="Colors">
        <source></source>
        <translation>Colores</translation>
    </message>
    <message id="Logo">
        <source></source>
        <translation>Logotipo</translation>
    </message>
    <message id="Game picture">
        <source></source>
        <translation>Imagen del juego</translation>
    </message>
    <message id="Region %1">
        <source></source>
        <translation>Región %1</translation>
    </message>
    <message id="Padding">
        <source></source>
        <translation>Relleno</translation>
    </message>
    <message id="Channel name (%1)">
        <source></source>
        <translation>Nombre del canal (%1)</translation>
    </message>
    <message id="Will be applied to this file, too">
        <source></source>
        <translation>También se aplicará a este archivo</translation>
    </message>
    <message id="Text editor">
        <source></source>
        <translation>Editor de texto</translation>
    </message>
    <message id="Game picture: the next save writes it">
        <source></source>
        <translation>Imagen del juego: se escribirá al guardar</translation>
    </message>
    <message id="Not saved">
        <source></source>
        <translation>No guardado</translation>
    </message>
    <message id="Saved">
        <source></source>
        <translation>Guardado</translation>
    </message>
    <message id="no colors applied">
        <source></source>
        <translation>ningún color aplicado</translation>
    </message>
    <message id="Saved; the banner has no logo texture to replace">
        <source></source>
        <translation>Guardado; el banner no tiene ninguna textura de logotipo que reemplazar</translation>
    </message>
    <message id="Save with %1">
        <source></source>
        <translation>Guardar con %1</translation>
    </message>
    <message id="%1 is not a layout file. Save it all the same?">
        <source></source>
        <translation>%1 no es un archivo de layout. ¿Guardarlo de todos modos?</translation>
    </message>
    <message id="%1: %2. Force the region all the same?">
        <source></source>
        <translation>%1: %2. ¿Forzar la región de todos modos?</translation>
    </message>
    <message id="one text for all languages">
        <source></source>
        <translation>un solo texto para todos los idiomas</translation>
    </message>
    <message id="no titles">
        <source></source>
        <translation>sin títulos</translation>
    </message>
    <message id="nothing changed">
        <source></source>
        <translation>sin cambios</translation>
    </message>
    <message id="other texts changed">
        <source></source>
        <translation>otros textos modificados</translation>
    </message>
    <message id="1 text changed:">
        <source></source>
        <translation>1 texto modificado:</translation>
    </message>
    <message id="%1 texts changed:">
        <source></source>
        <translation>%1 textos modificados:</translation>
    </message>
    <message id="1 line changed">
        <source></source>
        <translation>1 línea modificada</translation>
    </message>
    <message id="%1 lines changed">
        <source></source>
        <translation>%1 líneas modificadas</translation>
    </message>
    <message id="Taken back: %1">
        <source></source>
        <translation>Deshecho: %1</translation>
    </message>
    <message id="Brought again: %1">
        <source></source>
        <translation>Rehecho: %1</translation>
    </message>
    <message id="Warning: %1">
        <source></source>
        <translation>Advertencia: %1</translation>
    </message>
    <message id="%1 files in %2 bytes">
        <source></source>
        <translation>%1 archivos, %2 bytes</translation>
    </message>
    <message id="No layout loaded">
        <source></source>
        <translation>Ningún layout cargado</translation>
    </message>
    <message id="texts not saved">
        <source></source>
        <translation>textos sin guardar</translation>
    </message>
    <message id="texts as in the file">
        <source></source>
        <translation>textos como en el archivo</translation>
    </message>
    <message id="not a layout file">
        <source></source>
        <translation>no es un archivo de layout</translation>
    </message>
    <message id="%1 bytes">
        <source></source>
        <translation>%1 bytes</translation>
    </message>
    <message id="Set it first">
        <source></source>
        <translation>Aplicar primero</translation>
    </message>
    <message id="Save">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="%1 was typed and is not set.">
        <source></source>
        <translation>Lo escrito en %1 no se ha aplicado.</translation>
    </message>
    <message id="What was typed is not set, and would not be saved: %1">
        <source></source>
        <translation>Hay textos escritos sin aplicar que no se guardarían: %1</translation>
    </message>
    <message id="%1 does not have the latest changes.">
        <source></source>
        <translation>Los últimos cambios no están guardados en %1.</translation>
    </message>
    <message id="Not set yet: %1">
        <source></source>
        <translation>Aún sin aplicar: %1</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded.">
        <source></source>
        <translation>Otro programa ha modificado %1 desde que se cargó.</translation>
    </message>
    <message id="Reload">
        <source></source>
        <translation>Recargar</translation>
    </message>
    <message id="Keep what is here">
        <source></source>
        <translation>Conservar la versión abierta</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded. Save over it?">
        <source></source>
        <translation>Otro programa ha modificado %1 desde que se cargó. ¿Sobrescribirlo?</translation>
    </message>
    <message id="Overwrite">
        <source></source>
        <translation>Sobrescribir</translation>
    </message>
    <message id="Chinese, simplified">
        <source></source>
        <translation>Chino simplificado</translation>
    </message>
    <message id="Chinese, traditional">
        <source></source>
        <translation>Chino tradicional</translation>
    </message>
</context>
</TS>

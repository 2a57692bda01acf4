<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>MRVAutoReplaceEditor</name>
    <message>
        <source>a match cannot go over the end of a paragraph</source>
        <translation>un texto que se sustituye no puede pasar del final de un párrafo</translation>
    </message>
    <message>
        <source>“%1” -&gt; “%2” is in the list already; it can be enabled or disabled</source>
        <translation>«%1» -&gt; «%2» ya está en la lista; se puede activar o desactivar</translation>
    </message>
    <message>
        <source>ordinals stay in each list; disable “%1” instead</source>
        <translation>los ordinales se quedan en cada lista; en su lugar se puede desactivar «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%n entries have the match “%1”, and only one can apply; add its replacement</source>
        <translation>
            <numerusform>%n entrada tiene el texto «%1», y solo una puede aplicarse; hay que indicar también la sustitución</numerusform>
            <numerusform>%n entradas tienen el texto «%1», y solo una puede aplicarse; hay que indicar también la sustitución</numerusform>
        </translation>
    </message>
    <message>
        <source>no such entry: “%1”</source>
        <translation>no existe la entrada «%1»</translation>
    </message>
    <message>
        <source>no such entry: “%1” -&gt; “%2”</source>
        <translation>no existe la entrada «%1» -&gt; «%2»</translation>
    </message>
    <message>
        <source>an entry for “%1” is enabled already; disable or remove it first</source>
        <translation>ya hay una entrada activada para «%1»; primero hay que desactivarla o quitarla</translation>
    </message>
</context>
<context>
    <name>MRVAutoReplaceList</name>
    <message>
        <source>it is not an auto-replace list of a known version</source>
        <translation>no es una lista de reemplazo automático de una versión conocida</translation>
    </message>
    <message numerus="yes">
        <source>it is damaged or truncated; entries that could be read: %n</source>
        <translation>
            <numerusform>está dañada o incompleta; se pudo leer %n entrada</numerusform>
            <numerusform>está dañada o incompleta; se pudieron leer %n entradas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MRVBookList</name>
    <message>
        <source>line %1: there is no file %2</source>
        <translation>línea %1: no existe el archivo %2</translation>
    </message>
    <message>
        <source>the list names no manuscript</source>
        <translation>la lista no nombra ningún manuscrito</translation>
    </message>
</context>
<context>
    <name>MRVCheckForUpdatesDialog</name>
    <message>
        <source>Check For Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Progreso de la descarga</translation>
    </message>
    <message>
        <source>Download Update</source>
        <translation>Descargar la actualización</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Instalar la actualización</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>You are currently running %1 %2. Version %3 is available.

Click the Download Update button to begin the download. (You will not be able to use %1 while the update is downloading.) When the download has finished, click Install Update to close %1 and launch the update installer.

Choose Cancel if you do not wish to update at this time.</source>
        <translation>Está usando %1 %2. La versión %3 está disponible.

Haga clic en el botón «Descargar la actualización» para iniciar la descarga. (No podrá usar %1 mientras se descarga la actualización). Cuando termine la descarga, haga clic en «Instalar la actualización» para cerrar %1 e iniciar el instalador.

Elija «Cancelar» si no desea actualizar en este momento.</translation>
    </message>
    <message>
        <source>Downloading Update</source>
        <translation>Descargando la actualización</translation>
    </message>
    <message>
        <source>%1 Auto-Update</source>
        <translation>Actualización automática de %1</translation>
    </message>
    <message>
        <source>Administrative rights required.</source>
        <translation>Se requieren derechos de administrador.</translation>
    </message>
    <message>
        <source>To download and install automatic updates, you must run %1 from the same account that installed it.

You can also visit %2 to download and install the latest version manually.</source>
        <translation>Para descargar e instalar actualizaciones automáticas, debe ejecutar %1 desde la misma cuenta con la que se instaló.

También puede visitar %2 para descargar e instalar manualmente la última versión.</translation>
    </message>
    <message>
        <source>Installation and Runtime location mismatch.</source>
        <translation>La ubicación de instalación y la de ejecución no coinciden.</translation>
    </message>
    <message>
        <source>%1 is not currently running from its last installed location.

Runtime Location: &apos;%2&apos;
Installed Location: &apos;%3&apos;

To download and install the update, please uninstall or manually remove any copies of %1 not at the Installed Location path above, then restart %1 from there and select Help &gt; Check for Updates....</source>
        <translation>%1 no se está ejecutando desde la última ubicación en la que se instaló.

Ubicación de ejecución: «%2»
Ubicación de instalación: «%3»

Para descargar e instalar la actualización, desinstale o elimine manualmente las copias de %1 que no estén en la ubicación de instalación indicada, reinicie %1 desde allí y seleccione «Ayuda &gt; Buscar actualizaciones…».</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>The release notes cannot be shown.</source>
        <translation>No se pueden mostrar las notas de la versión.</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>quedan unos segundos</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds left</source>
        <translation>
            <numerusform>queda %n segundo</numerusform>
            <numerusform>quedan %n segundos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes left</source>
        <translation>
            <numerusform>queda %n minuto</numerusform>
            <numerusform>quedan %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours left</source>
        <translation>
            <numerusform>queda %n hora</numerusform>
            <numerusform>quedan %n horas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1, %2/s</source>
        <translation>%1, %2/s</translation>
    </message>
    <message>
        <source>%1, %2/s, %3</source>
        <translation>%1, %2/s, %3</translation>
    </message>
    <message>
        <source>The server has sent %1, which is not a text</source>
        <translation>El servidor ha enviado %1, que no es un texto</translation>
    </message>
    <message>
        <source>The page has too many parts</source>
        <translation>La página tiene demasiados elementos</translation>
    </message>
    <message>
        <source>It did not arrive within %1 s</source>
        <translation>No ha llegado en %1 s</translation>
    </message>
</context>
<context>
    <name>MRVCoreUtil</name>
    <message>
        <source>Cannot read the file &quot;%1&quot;: %2</source>
        <translation>No se puede leer el archivo «%1»: %2</translation>
    </message>
    <message>
        <source>the file has no name</source>
        <translation>el archivo no tiene nombre</translation>
    </message>
    <message>
        <source>its name holds a null character</source>
        <translation>su nombre contiene un carácter nulo</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>unknown text encoding &quot;%1&quot;</source>
        <translation>codificación de texto «%1» desconocida</translation>
    </message>
    <message>
        <source>it is not valid %1 text</source>
        <translation>no es un texto válido en %1</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: unknown text encoding &quot;%2&quot;</source>
        <translation>No se puede escribir el archivo «%1»: codificación de texto «%2» desconocida</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: the encoding %2 lacks some characters of the text</source>
        <translation>No se puede escribir el archivo «%1»: en la codificación %2 faltan algunos caracteres del texto</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
</context>
<context>
    <name>MRVDocumentArchive</name>
    <message>
        <source>the document is too large, or too complex, for this format</source>
        <translation>el documento es demasiado grande o demasiado complejo para este formato</translation>
    </message>
    <message>
        <source>it holds too many pictures</source>
        <translation>contiene demasiadas imágenes</translation>
    </message>
    <message>
        <source>the picture %1 has changed, or cannot be read any more</source>
        <translation>la imagen %1 ha cambiado o ya no se puede leer</translation>
    </message>
    <message>
        <source>it holds no document</source>
        <translation>no contiene ningún documento</translation>
    </message>
    <message>
        <source>it was made by a newer version of this program</source>
        <translation>fue creado por una versión más reciente de este programa</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está dañado</translation>
    </message>
    <message>
        <source>the document is damaged; its words were read, without formats and pictures</source>
        <translation>el documento está dañado; se leyeron sus palabras, sin formatos ni imágenes</translation>
    </message>
    <message>
        <source>the picture %1 is missing or damaged</source>
        <translation>la imagen %1 falta o está dañada</translation>
    </message>
    <message>
        <source>what the program keeps as %1 is damaged</source>
        <translation>lo que el programa guarda como %1 está dañado</translation>
    </message>
    <message>
        <source>there is no document to read it into</source>
        <translation>falta un documento en el que leerlo</translation>
    </message>
    <message>
        <source>the file is damaged; the document is whole, but other parts may be missing</source>
        <translation>el archivo está dañado; el documento está completo, pero pueden faltar otras partes</translation>
    </message>
    <message>
        <source>what the program keeps with the document may be missing, too</source>
        <translation>también puede faltar lo que el programa guarda con el documento</translation>
    </message>
</context>
<context>
    <name>MRVDocumentLosses</name>
    <message>
        <source>Fonts: %1</source>
        <translation>Tipos de letra: %1</translation>
    </message>
    <message>
        <source>Font sizes: %1</source>
        <translation>Tamaños de letra: %1</translation>
    </message>
    <message>
        <source>Text colors: %1</source>
        <translation>Colores del texto: %1</translation>
    </message>
    <message>
        <source>Highlights: %1</source>
        <translation>Resaltados: %1</translation>
    </message>
    <message>
        <source>Capitals, lines and spacing of letters: %1</source>
        <translation>Mayúsculas, líneas y espaciado de letras: %1</translation>
    </message>
    <message>
        <source>Languages of text: %1</source>
        <translation>Idiomas del texto: %1</translation>
    </message>
    <message>
        <source>Marks of revisions: %1</source>
        <translation>Marcas de revisión: %1</translation>
    </message>
    <message>
        <source>Annotations, which become text: %1</source>
        <translation>Anotaciones, que pasan a ser texto: %1</translation>
    </message>
    <message>
        <source>Footnotes within the text, which become others: %1</source>
        <translation>Notas dentro del texto, que pasan a ser otras: %1</translation>
    </message>
    <message>
        <source>Comments: %1</source>
        <translation>Comentarios: %1</translation>
    </message>
    <message>
        <source>Footnotes in the margin, which go to the end: %1</source>
        <translation>Notas al margen, que van al final: %1</translation>
    </message>
    <message>
        <source>Bold, italic and other styles of text: %1</source>
        <translation>Negrita, cursiva y otros estilos de texto: %1</translation>
    </message>
    <message>
        <source>Links, whose addresses become text: %1</source>
        <translation>Enlaces, cuyas direcciones pasan a ser texto: %1</translation>
    </message>
    <message>
        <source>Pictures, which give way to their names: %1</source>
        <translation>Imágenes, sustituidas por sus nombres: %1</translation>
    </message>
    <message>
        <source>Headings: %1</source>
        <translation>Títulos: %1</translation>
    </message>
    <message>
        <source>Quotations: %1</source>
        <translation>Citas: %1</translation>
    </message>
    <message>
        <source>Paragraph alignments: %1</source>
        <translation>Alineaciones de párrafos: %1</translation>
    </message>
    <message>
        <source>Paragraph indents: %1</source>
        <translation>Sangrías de párrafos: %1</translation>
    </message>
    <message>
        <source>Line spacings: %1</source>
        <translation>Interlineados: %1</translation>
    </message>
    <message>
        <source>Page breaks: %1</source>
        <translation>Saltos de página: %1</translation>
    </message>
    <message>
        <source>Paragraph backgrounds: %1</source>
        <translation>Fondos de párrafos: %1</translation>
    </message>
    <message>
        <source>List markers other than bullets and figures: %1</source>
        <translation>Marcas de lista que no son viñetas ni cifras: %1</translation>
    </message>
    <message>
        <source>Tables, whose rows become lines: %1</source>
        <translation>Tablas, cuyas filas pasan a ser líneas: %1</translation>
    </message>
    <message>
        <source>Frames: %1</source>
        <translation>Marcos: %1</translation>
    </message>
    <message>
        <source>Tabs and several blanks in a row: %1</source>
        <translation>Tabulaciones y espacios seguidos: %1</translation>
    </message>
    <message>
        <source>Lists: %1</source>
        <translation>Listas: %1</translation>
    </message>
    <message>
        <source>Comments in the margin: %1</source>
        <translation>Comentarios al margen: %1</translation>
    </message>
    <message>
        <source>Footnotes in the margin: %1</source>
        <translation>Notas al pie al margen: %1</translation>
    </message>
    <message>
        <source>Addresses of links: %1</source>
        <translation>Direcciones de enlaces: %1</translation>
    </message>
    <message>
        <source>Pictures: %1</source>
        <translation>Imágenes: %1</translation>
    </message>
    <message>
        <source>Tables, whose cells become paragraphs: %1</source>
        <translation>Tablas, cuyas celdas pasan a ser párrafos: %1</translation>
    </message>
    <message>
        <source>Marks of footnotes within the text: %1</source>
        <translation>Marcas de notas al pie dentro del texto: %1</translation>
    </message>
    <message>
        <source>Footnotes within the text, which become text in brackets: %1</source>
        <translation>Notas dentro del texto, que pasan a ser texto entre corchetes: %1</translation>
    </message>
    <message>
        <source>Titles of links: %1</source>
        <translation>Títulos de enlaces: %1</translation>
    </message>
    <message>
        <source>Languages of code: %1</source>
        <translation>Lenguajes de código: %1</translation>
    </message>
</context>
<context>
    <name>MRVDocumentPicture</name>
    <message>
        <source>its file has changed, or cannot be read any more</source>
        <translation>su archivo ha cambiado o ya no se puede leer</translation>
    </message>
    <message>
        <source>the document does not have it</source>
        <translation>el documento no la contiene</translation>
    </message>
</context>
<context>
    <name>MRVDomDoc</name>
    <message>
        <source>there is no document element</source>
        <translation>el documento no tiene elemento raíz</translation>
    </message>
    <message>
        <source>the document element is &apos;%1&apos;, not &apos;%2&apos;</source>
        <translation>el elemento raíz es «%1», no «%2»</translation>
    </message>
    <message>
        <source>there is no work element</source>
        <translation>no hay elemento de trabajo</translation>
    </message>
    <message>
        <source>nothing is above %1</source>
        <translation>no hay nada por encima de %1</translation>
    </message>
    <message>
        <source>no &apos;%1&apos; below %2</source>
        <translation>ningún «%1» debajo de %2</translation>
    </message>
    <message>
        <source>no &apos;%1&apos; below %2; did you mean &apos;%3&apos;?</source>
        <translation>ningún «%1» debajo de %2; ¿quiso decir «%3»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no name for an element</source>
        <translation>«%1» no es un nombre de elemento</translation>
    </message>
    <message>
        <source>a new document needs a path that begins with &apos;/&apos;</source>
        <translation>un documento nuevo necesita una ruta que empiece por «/»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be created</source>
        <translation>no se puede crear «%1»</translation>
    </message>
    <message>
        <source>elements are nested more deeply than %1 levels</source>
        <translation>hay elementos anidados a más de %1 niveles</translation>
    </message>
    <message>
        <source>XML does not allow the name &apos;%1&apos;</source>
        <translation>XML no permite el nombre «%1»</translation>
    </message>
</context>
<context>
    <name>MRVDomSource</name>
    <message>
        <source>its encoding writes some characters in several ways</source>
        <translation>su codificación escribe algunos caracteres de varias maneras</translation>
    </message>
    <message>
        <source>its document type declares entities</source>
        <translation>su tipo de documento declara entidades</translation>
    </message>
    <message>
        <source>the change goes beyond single elements</source>
        <translation>el cambio va más allá de elementos individuales</translation>
    </message>
    <message>
        <source>the whole document would be laid out anew: %1</source>
        <translation>se volvería a componer todo el documento: %1</translation>
    </message>
</context>
<context>
    <name>MRVDownloadAuthorize</name>
    <message>
        <source>Http authentication required</source>
        <translation>Se requiere autenticación HTTP</translation>
    </message>
    <message>
        <source>Supply Username and Password to access this site</source>
        <translation>Introduzca el nombre de usuario y la contraseña para acceder a este sitio</translation>
    </message>
    <message>
        <source>Site:</source>
        <translation>Sitio:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
</context>
<context>
    <name>MRVDownloadUrl</name>
    <message>
        <source>Only http and https addresses are downloaded, not %1</source>
        <translation>Solo se descargan direcciones http y https, no %1</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Operación cancelada</translation>
    </message>
    <message>
        <source>The server has sent nothing for %1 s</source>
        <translation>El servidor no ha enviado nada desde hace %1 s</translation>
    </message>
    <message>
        <source>It is larger than %1 bytes</source>
        <translation>Ocupa más de %1 bytes</translation>
    </message>
    <message>
        <source>Download Aborted</source>
        <translation>Descarga interrumpida</translation>
    </message>
    <message>
        <source>The connection ended before the download was complete</source>
        <translation>La conexión terminó antes de recibirlo todo</translation>
    </message>
    <message>
        <source>It redirects to %1, which is not an http or https address</source>
        <translation>Redirige a %1, que no es una dirección http ni https</translation>
    </message>
    <message>
        <source>It redirects to %1, where the connection is not encrypted</source>
        <translation>Redirige a %1, donde la conexión no está cifrada</translation>
    </message>
    <message>
        <source>Cannot write to file: &apos;%1&apos;
Error: %2</source>
        <translation>No se puede escribir en el archivo: «%1»
Error: %2</translation>
    </message>
    <message>
        <source>Network not accessible</source>
        <translation>Red no accesible</translation>
    </message>
    <message>
        <source>The server has not answered for %1 s</source>
        <translation>El servidor no ha respondido durante %1 s</translation>
    </message>
</context>
<context>
    <name>MRVEPubBook</name>
    <message>
        <source>The picture %1 cannot be read.</source>
        <translation>No se puede leer la imagen %1.</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Sección %1</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>The text can be read with a screen reader; headings and a table of contents guide through it.</source>
        <translation>El texto puede leerse con un lector de pantalla; los títulos y un índice permiten recorrerlo.</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Cubierta</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Title page</source>
        <translation>Portada</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Página de créditos</translation>
    </message>
    <message>
        <source>Dedication</source>
        <translation>Dedicatoria</translation>
    </message>
    <message>
        <source>Epigraph</source>
        <translation>Epígrafe</translation>
    </message>
    <message>
        <source>Foreword</source>
        <translation>Prólogo</translation>
    </message>
    <message>
        <source>Preface</source>
        <translation>Prefacio</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Agradecimientos</translation>
    </message>
    <message>
        <source>Appendix</source>
        <translation>Apéndice</translation>
    </message>
    <message>
        <source>Glossary</source>
        <translation>Glosario</translation>
    </message>
    <message>
        <source>Bibliography</source>
        <translation>Bibliografía</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Índice alfabético</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Colophon</source>
        <translation>Colofón</translation>
    </message>
    <message>
        <source>Not all pictures have a description.</source>
        <translation>No todas las imágenes tienen una descripción.</translation>
    </message>
    <message>
        <source>A list leads to the pages of the printed edition.</source>
        <translation>Una lista lleva a las páginas de la edición impresa.</translation>
    </message>
    <message>
        <source>Printed edition of %1</source>
        <translation>Edición impresa de %1</translation>
    </message>
</context>
<context>
    <name>MRVEPubCheck</name>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>e-books are checked by epubcheck, which is not installed; install the packages epubcheck and default-jre-headless</source>
        <translation>los libros electrónicos los comprueba epubcheck, que no está instalado; instale los paquetes epubcheck y default-jre-headless</translation>
    </message>
    <message>
        <source>no files can be made there</source>
        <translation>allí no se pueden crear archivos</translation>
    </message>
    <message>
        <source>epubcheck was not done after %1 seconds</source>
        <translation>epubcheck no terminó en %1 segundos</translation>
    </message>
    <message>
        <source>epubcheck gives no answer</source>
        <translation>epubcheck no da respuesta</translation>
    </message>
    <message>
        <source>it is no e-book, as it is no ZIP archive</source>
        <translation>no es un libro electrónico, ya que no es un archivo ZIP</translation>
    </message>
</context>
<context>
    <name>MRVEPubMetadata</name>
    <message>
        <source>the cover picture cannot be read: %1</source>
        <translation>no se puede leer la imagen de portada: %1</translation>
    </message>
    <message>
        <source>a role and a name such as &quot;translator: Ann Lee&quot;</source>
        <translation>un papel y un nombre como «translator: Ann Lee»</translation>
    </message>
    <message>
        <source>the tag of a language such as en-GB</source>
        <translation>la etiqueta de un idioma como en-GB</translation>
    </message>
    <message>
        <source>an ISBN, whose last digit proves the others</source>
        <translation>un ISBN cuya última cifra confirma las demás</translation>
    </message>
    <message>
        <source>a date such as 2026, 2026-01 or 2026-01-31</source>
        <translation>una fecha como 2026, 2026-01 o 2026-01-31</translation>
    </message>
    <message>
        <source>a number such as 2 or 2.5</source>
        <translation>un número como 2 o 2.5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no key of a book</source>
        <translation>«%1» no es una clave de un libro</translation>
    </message>
    <message>
        <source>a name</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not %3</source>
        <translation>%1: «%2» no es %3</translation>
    </message>
    <message>
        <source>this is neither &quot;key: value&quot; nor continues it</source>
        <translation>esto no es «clave: valor» ni lo continúa</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>the value cannot be read</source>
        <translation>el valor no se puede leer</translation>
    </message>
</context>
<context>
    <name>MRVEPubPackage</name>
    <message>
        <source>The e-book cannot be packed: %1</source>
        <translation>No se puede empaquetar el libro electrónico: %1</translation>
    </message>
    <message>
        <source>links that lead nowhere in the e-book, and are text there: %1 (%2%3)</source>
        <translation>enlaces que no llevan a ninguna parte en el libro y en él son texto: %1 (%2%3)</translation>
    </message>
    <message>
        <source>pictures on other machines that are not in the e-book: %1</source>
        <translation>imágenes en otras máquinas que no están en el libro: %1</translation>
    </message>
    <message>
        <source>a link that leads nowhere: %1</source>
        <translation>un enlace que no lleva a ninguna parte: %1</translation>
    </message>
    <message>
        <source>no alternative text: %1</source>
        <translation>sin texto alternativo: %1</translation>
    </message>
</context>
<context>
    <name>MRVEditLock</name>
    <message>
        <source>another program is changing it</source>
        <translation>otro programa lo está modificando</translation>
    </message>
</context>
<context>
    <name>MRVEngineChoice</name>
    <message>
        <source>neither side is RTF, so no choice is kept</source>
        <translation>ninguno de los dos formatos es RTF, por lo que no se guarda ninguna elección</translation>
    </message>
    <message>
        <source>it is the default, as nothing is stored</source>
        <translation>es el valor predeterminado, ya que no hay nada guardado</translation>
    </message>
    <message>
        <source>it is the stored choice</source>
        <translation>es la elección guardada</translation>
    </message>
    <message>
        <source>the stored choices do not include this format</source>
        <translation>las elecciones guardadas no incluyen este formato</translation>
    </message>
    <message>
        <source>the stored choice, %1, needs an application that is not available here</source>
        <translation>la elección guardada, %1, necesita una aplicación que no está disponible aquí</translation>
    </message>
    <message>
        <source>%1 cannot be imported</source>
        <translation>%1 no se puede importar</translation>
    </message>
    <message>
        <source>%1 cannot be exported</source>
        <translation>%1 no se puede exportar</translation>
    </message>
    <message>
        <source>%1: %2 cannot do that here; possible: %3</source>
        <translation>%1: %2 no puede hacerlo aquí; posibles: %3</translation>
    </message>
    <message>
        <source>choices for %1 are not kept: its name is not a suffix</source>
        <translation>las elecciones para %1 no se conservan: su nombre no es un sufijo</translation>
    </message>
</context>
<context>
    <name>MRVExportCheck</name>
    <message>
        <source>not in what was written, of the paragraph &quot;%1&quot;: %2</source>
        <translation>falta en lo escrito, del párrafo «%1»: %2</translation>
    </message>
    <message>
        <source>links within the text or to files that were not written: %1</source>
        <translation>enlaces dentro del texto o a archivos que no se escribieron: %1</translation>
    </message>
    <message>
        <source>a link that was not written: %1</source>
        <translation>un enlace que no se escribió: %1</translation>
    </message>
    <message>
        <source>pictures that were not written: %1</source>
        <translation>imágenes que no se escribieron: %1</translation>
    </message>
</context>
<context>
    <name>MRVFileKind</name>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it holds something else, which is not overwritten</source>
        <translation>contiene otra cosa, que no se sobrescribe</translation>
    </message>
</context>
<context>
    <name>MRVFileWriter</name>
    <message>
        <source>its symbolic links form a loop</source>
        <translation>sus enlaces simbólicos forman un círculo</translation>
    </message>
    <message>
        <source>it is another user&apos;s link in a shared folder</source>
        <translation>es un enlace de otro usuario en una carpeta compartida</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: %2</source>
        <translation>No se puede escribir el archivo «%1»: %2</translation>
    </message>
    <message>
        <source>the file has no name</source>
        <translation>el archivo no tiene nombre</translation>
    </message>
    <message>
        <source>its name holds a null character</source>
        <translation>su nombre contiene un carácter nulo</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>su carpeta no existe</translation>
    </message>
    <message>
        <source>not all of it was written</source>
        <translation>no se ha escrito todo</translation>
    </message>
    <message>
        <source>another program is writing it</source>
        <translation>otro programa lo está escribiendo</translation>
    </message>
</context>
<context>
    <name>MRVFinalDraft</name>
    <message>
        <source>this is not a Final Draft document</source>
        <translation>no es un documento de Final Draft</translation>
    </message>
    <message>
        <source>paragraphs of the type &quot;%1&quot; become another kind: %2</source>
        <translation>los párrafos del tipo «%1» pasan a ser de otra clase: %2</translation>
    </message>
    <message>
        <source>alternatives become notes: %1</source>
        <translation>las alternativas pasan a ser notas: %1</translation>
    </message>
    <message>
        <source>texts lose the mark that they were revised: %1</source>
        <translation>textos que pierden la marca de que se revisaron: %1</translation>
    </message>
    <message>
        <source>styles of text are left out: %1</source>
        <translation>se omiten estilos de texto: %1</translation>
    </message>
    <message>
        <source>the text of sections is left out: %1</source>
        <translation>se omite el texto de secciones: %1</translation>
    </message>
    <message>
        <source>the document cannot be changed there without losing something: %1</source>
        <translation>el documento no se puede cambiar ahí sin perder algo: %1</translation>
    </message>
    <message>
        <source>its encoding writes some characters in several ways</source>
        <translation>su codificación escribe algunos caracteres de varias maneras</translation>
    </message>
</context>
<context>
    <name>MRVFixedDate</name>
    <message>
        <source>SOURCE_DATE_EPOCH is not a number of seconds since 1970 that lies in the years 1 to 9999</source>
        <translation>SOURCE_DATE_EPOCH no es un número de segundos desde 1970 comprendido en los años 1 a 9999</translation>
    </message>
    <message>
        <source>the date is not one of ISO 8601 such as 2026-01-31T12:00:00Z, in the years 1 to 9999</source>
        <translation>la fecha no es una fecha ISO 8601 como 2026-01-31T12:00:00Z, de los años 1 a 9999</translation>
    </message>
</context>
<context>
    <name>MRVFountainHtml</name>
    <message>
        <source>the page has no paragraph of a script</source>
        <translation>la página no contiene ningún párrafo de un guion</translation>
    </message>
</context>
<context>
    <name>MRVGuiUtil</name>
    <message>
        <source>All Images</source>
        <translation>Todas las imágenes</translation>
    </message>
</context>
<context>
    <name>MRVHtmlReader</name>
    <message>
        <source>elements are nested more than %1 levels deep</source>
        <translation>los elementos están anidados a más de %1 niveles</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>un elemento tiene más de %1 atributos</translation>
    </message>
    <message>
        <source>too many elements such as &lt;%1&gt; are left open</source>
        <translation>demasiados elementos como &lt;%1&gt; quedan sin cerrar</translation>
    </message>
</context>
<context>
    <name>MRVManuscript</name>
    <message>
        <source>line %1: not in the document: %2</source>
        <translation>línea %1: no está en el documento: %2</translation>
    </message>
    <message>
        <source>style sheets that cannot be read: %1</source>
        <translation>hojas de estilo que no se pueden leer: %1</translation>
    </message>
    <message>
        <source>style sheets on other machines, which are not loaded: %1</source>
        <translation>hojas de estilo en otros equipos, que no se cargan: %1</translation>
    </message>
    <message>
        <source>words that the page hides, and the document does not hold: %1</source>
        <translation>palabras que la página oculta y que no están en el documento: %1</translation>
    </message>
    <message>
        <source>the Markdown is nested too deeply, or too complex</source>
        <translation>el Markdown tiene demasiados niveles o es demasiado complejo</translation>
    </message>
    <message>
        <source>not in the document: %1</source>
        <translation>no está en el documento: %1</translation>
    </message>
</context>
<context>
    <name>MRVManuscriptPdf</name>
    <message>
        <source>About %1 words</source>
        <translation>Unas %1 palabras</translation>
    </message>
    <message>
        <source>A paragraph, list or table is too long to be printed.</source>
        <translation>Un párrafo, una lista o una tabla es demasiado largo para imprimirse.</translation>
    </message>
    <message>
        <source>links that lead nowhere in the document, and are text there: %1 (%2)</source>
        <translation>enlaces que no llevan a ninguna parte en el documento y que allí son texto: %1 (%2)</translation>
    </message>
    <message>
        <source>tables that are wider than the paper, and cut off: %1</source>
        <translation>tablas más anchas que el papel y cortadas: %1</translation>
    </message>
    <message>
        <source>tables within four others, of which the rows are lines of text: %1</source>
        <translation>tablas dentro de otras cuatro, cuyas filas son líneas de texto: %1</translation>
    </message>
</context>
<context>
    <name>MRVManuscriptReader</name>
    <message>
        <source>unknown type of file</source>
        <translation>tipo de archivo desconocido</translation>
    </message>
    <message>
        <source>unknown encoding &apos;%1&apos;</source>
        <translation>codificación desconocida «%1»</translation>
    </message>
    <message>
        <source>not readable as %1</source>
        <translation>no se puede leer como %1</translation>
    </message>
    <message>
        <source>pictures that cannot be read: %1</source>
        <translation>imágenes que no se pueden leer: %1</translation>
    </message>
    <message>
        <source>it is %1, which its name does not say</source>
        <translation>es %1, lo que su nombre no dice</translation>
    </message>
    <message>
        <source>the comment %1</source>
        <translation>el comentario %1</translation>
    </message>
    <message>
        <source>%1 (after &quot;%2&quot;)</source>
        <translation>%1 (después de «%2»)</translation>
    </message>
    <message>
        <source>formats and pictures, as the file is damaged</source>
        <translation>formatos e imágenes, porque el archivo está dañado</translation>
    </message>
    <message>
        <source>it is missing or damaged</source>
        <translation>falta o está dañada</translation>
    </message>
</context>
<context>
    <name>MRVOfficeConverter</name>
    <message>
        <source>no program is known that reads %1</source>
        <translation>no se conoce ningún programa que lea %1</translation>
    </message>
    <message>
        <source>reading %1 needs the program %2, which is not installed (Debian: apt install %3)</source>
        <translation>para leer %1 hace falta el programa %2, que no está instalado (Debian: apt install %3)</translation>
    </message>
    <message>
        <source>it cannot be started</source>
        <translation>no se puede iniciar</translation>
    </message>
    <message>
        <source>it was not done after %1 seconds</source>
        <translation>no había terminado tras %1 segundos</translation>
    </message>
    <message>
        <source>its result is larger than %1 MB</source>
        <translation>su resultado supera %1 MB</translation>
    </message>
    <message>
        <source>it needs more than %1 MB of memory</source>
        <translation>necesita más de %1 MB de memoria</translation>
    </message>
    <message>
        <source>it has failed without a reason</source>
        <translation>ha fallado sin dar una razón</translation>
    </message>
    <message>
        <source>it is not %1, but %2</source>
        <translation>no es %1, sino %2</translation>
    </message>
    <message>
        <source>it is not %1</source>
        <translation>no es %1</translation>
    </message>
    <message>
        <source>its text is larger than %1 MB</source>
        <translation>su texto supera %1 MB</translation>
    </message>
</context>
<context>
    <name>MRVOptions</name>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Index cards</source>
        <translation>Fichas</translation>
    </message>
    <message>
        <source>Revisions</source>
        <translation>Revisiones</translation>
    </message>
    <message>
        <source>Backgrounds</source>
        <translation>Fondos</translation>
    </message>
    <message>
        <source>Scratch pad</source>
        <translation>Bloc de notas</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Ivory</source>
        <translation>Marfil</translation>
    </message>
    <message>
        <source>Manila</source>
        <translation>Manila</translation>
    </message>
    <message>
        <source>Mint</source>
        <translation>Menta</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>Azul cielo</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavanda</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Pizarra</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Línea divisoria</translation>
    </message>
    <message>
        <source>Notepad lines</source>
        <translation>Renglones</translation>
    </message>
    <message>
        <source>Status stamp</source>
        <translation>Sello de estado</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borde</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Ficha</translation>
    </message>
    <message>
        <source>Corkboard</source>
        <translation>Tablero de corcho</translation>
    </message>
    <message>
        <source>Around the page</source>
        <translation>Alrededor de la página</translation>
    </message>
    <message>
        <source>First revision</source>
        <translation>Primera revisión</translation>
    </message>
    <message>
        <source>Second revision</source>
        <translation>Segunda revisión</translation>
    </message>
    <message>
        <source>Third revision</source>
        <translation>Tercera revisión</translation>
    </message>
    <message>
        <source>Fourth revision</source>
        <translation>Cuarta revisión</translation>
    </message>
    <message>
        <source>Fifth revision</source>
        <translation>Quinta revisión</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>Visited links</source>
        <translation>Enlaces visitados</translation>
    </message>
    <message>
        <source>Invisible characters</source>
        <translation>Caracteres invisibles</translation>
    </message>
    <message>
        <source>Selected text</source>
        <translation>Texto seleccionado</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Inline annotations</source>
        <translation>Anotaciones en el texto</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Footnote text</source>
        <translation>Texto de las notas al pie</translation>
    </message>
    <message>
        <source>Footnotes</source>
        <translation>Notas al pie</translation>
    </message>
    <message>
        <source>Preserved formatting</source>
        <translation>Formato conservado</translation>
    </message>
    <message>
        <source>Project search</source>
        <translation>Búsqueda en el proyecto</translation>
    </message>
    <message>
        <source>Border of project search</source>
        <translation>Borde de la búsqueda en el proyecto</translation>
    </message>
    <message>
        <source>Found text</source>
        <translation>Texto encontrado</translation>
    </message>
    <message>
        <source>Found text, alternate</source>
        <translation>Texto encontrado, alterno</translation>
    </message>
    <message>
        <source>Text that was found</source>
        <translation>Letra del texto encontrado</translation>
    </message>
    <message>
        <source>Misspelt words</source>
        <translation>Palabras mal escritas</translation>
    </message>
    <message>
        <source>Document notes</source>
        <translation>Notas del documento</translation>
    </message>
    <message>
        <source>Project notes</source>
        <translation>Notas del proyecto</translation>
    </message>
    <message>
        <source>Recent search results</source>
        <translation>Resultados de búsqueda recientes</translation>
    </message>
    <message>
        <source>Binder</source>
        <translation>Archivador</translation>
    </message>
    <message>
        <source>Outliner</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>Outliner, every other row</source>
        <translation>Esquema, filas alternas</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantáneas</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from %2 to %3</source>
        <translation>«%1» no es un número entero de %2 a %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3</source>
        <translation>«%1» no es un número de %2 a %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>«%1» no es ninguno de estos valores: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither true nor false</source>
        <translation>«%1» no es ni true ni false</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a pair of an opening and a closing quote</source>
        <translation>«%1» no tiene dos mitades, una comilla de apertura y una de cierre</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a value such as &apos;%2&apos;</source>
        <translation>«%1» no es un valor como «%2»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is fully transparent</source>
        <translation>«%1» no se puede ver</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a colour such as #1f1f1f or navy</source>
        <translation>«%1» no es un color como #1f1f1f o navy</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31T18:30:00</source>
        <translation>«%1» no es una fecha como 2026-01-31T18:30:00</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a font such as Serif,12</source>
        <translation>«%1» no es una fuente como Serif,12</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number</source>
        <translation>«%1» no es un número entero</translation>
    </message>
    <message>
        <source>what follows &apos;base64:&apos; is not Base64</source>
        <translation>lo que sigue a «base64:» no es Base64</translation>
    </message>
    <message>
        <source>an empty text is not a value; reset the setting instead</source>
        <translation>nada no es un valor; restablezca el ajuste en su lugar</translation>
    </message>
    <message>
        <source>the bytes do not have the form of this setting</source>
        <translation>los bytes no son los que se guardan ahí</translation>
    </message>
    <message>
        <source>the text is not &apos;base64:&apos; followed by the bytes of a format</source>
        <translation>el texto no es «base64:» seguido de los bytes de un formato</translation>
    </message>
    <message>
        <source>no setting is called &apos;%1&apos;</source>
        <translation>no existe el ajuste «%1»</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>the list in %1: %2</source>
        <translation>la lista de %1: %2</translation>
    </message>
    <message>
        <source>the shortcut scheme in %1: %2</source>
        <translation>el esquema de atajos de %1: %2</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>Correcciones</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navegación</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Separadores</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Grabaciones</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>Import and export</source>
        <translation>Importación y exportación</translation>
    </message>
    <message>
        <source>OPML files</source>
        <translation>Archivos OPML</translation>
    </message>
    <message>
        <source>E-books</source>
        <translation>Libros electrónicos</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Archivos PDF</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>The other editor</source>
        <translation>El otro editor</translation>
    </message>
    <message>
        <source>The current editor</source>
        <translation>El editor actual</translation>
    </message>
    <message>
        <source>A reference panel</source>
        <translation>Un panel de referencia</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pulgadas</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Centímetros</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Milímetros</translation>
    </message>
    <message>
        <source>Picas</source>
        <translation>Picas</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Píxeles</translation>
    </message>
    <message>
        <source>Above the text</source>
        <translation>Encima del texto</translation>
    </message>
    <message>
        <source>Beside the text</source>
        <translation>Al lado del texto</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>De ninguna forma</translation>
    </message>
    <message>
        <source>As a pin</source>
        <translation>Con una chincheta</translation>
    </message>
    <message>
        <source>As a coloured corner</source>
        <translation>Con una esquina de color</translation>
    </message>
    <message>
        <source>As a stripe</source>
        <translation>Con una franja</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Rectas</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Redondeadas</translation>
    </message>
    <message>
        <source>Does nothing</source>
        <translation>No hace nada</translation>
    </message>
    <message>
        <source>Creates a card</source>
        <translation>Crea una ficha</translation>
    </message>
    <message>
        <source>Goes up to the folder above</source>
        <translation>Sube a la carpeta superior</translation>
    </message>
    <message>
        <source>Single return</source>
        <translation>Un solo salto</translation>
    </message>
    <message>
        <source>Empty line</source>
        <translation>Línea vacía</translation>
    </message>
    <message>
        <source>A separator of your own</source>
        <translation>Un separador propio</translation>
    </message>
    <message>
        <source>Last session ended normally</source>
        <translation>La última sesión terminó bien</translation>
    </message>
    <message>
        <source>Whether the session before this one was ended by the user and not by a failure.</source>
        <translation>Indica si la sesión anterior la terminó el usuario y no un fallo.</translation>
    </message>
    <message>
        <source>This session has ended normally</source>
        <translation>Esta sesión ha terminado bien</translation>
    </message>
    <message>
        <source>Whether the present session was ended by the user, which is stored when the application closes.</source>
        <translation>Indica si la sesión actual la terminó el usuario, lo que se guarda al cerrar la aplicación.</translation>
    </message>
    <message>
        <source>Reopen projects at start</source>
        <translation>Reabrir los proyectos al inicio</translation>
    </message>
    <message>
        <source>Opens the projects again that were open when the application was closed.</source>
        <translation>Vuelve a abrir los proyectos que estaban abiertos al cerrar la aplicación.</translation>
    </message>
    <message>
        <source>Show the start panel</source>
        <translation>Mostrar el panel de inicio</translation>
    </message>
    <message>
        <source>Shows a panel with templates and recent projects when no project is open.</source>
        <translation>Muestra un panel con plantillas y proyectos recientes cuando no hay ningún proyecto abierto.</translation>
    </message>
    <message>
        <source>Show the full path in the title bar</source>
        <translation>Mostrar la ruta completa en la barra de título</translation>
    </message>
    <message>
        <source>Shows the folder of a project with its name in the title bar of the window.</source>
        <translation>Muestra la carpeta del proyecto junto a su nombre en la barra de título de la ventana.</translation>
    </message>
    <message>
        <source>Allow overtyping</source>
        <translation>Permitir sobrescribir</translation>
    </message>
    <message>
        <source>Lets the Insert key switch between inserting text and typing over it.</source>
        <translation>Permite que la tecla Insertar alterne entre insertar texto y sobrescribirlo.</translation>
    </message>
    <message>
        <source>Set notes after punctuation</source>
        <translation>Poner las notas tras la puntuación</translation>
    </message>
    <message>
        <source>Places the mark of a footnote or comment after the punctuation that follows the selected words.</source>
        <translation>Coloca la marca de una nota o de un comentario tras el signo de puntuación que sigue a las palabras seleccionadas.</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Looks for a newer version of the application from time to time.</source>
        <translation>Busca de vez en cuando una versión más reciente de la aplicación.</translation>
    </message>
    <message>
        <source>Name untitled documents on saving</source>
        <translation>Dar nombre al guardar documentos sin título</translation>
    </message>
    <message>
        <source>Gives a document without a title its first words as a title when it is saved.</source>
        <translation>Da a un documento sin título sus primeras palabras como título al guardarlo.</translation>
    </message>
    <message>
        <source>Import web pages as text</source>
        <translation>Importar páginas web como texto</translation>
    </message>
    <message>
        <source>Converts a web page to text that can be edited when it is imported.</source>
        <translation>Convierte una página web en texto editable al importarla.</translation>
    </message>
    <message>
        <source>Import known file types only</source>
        <translation>Importar solo tipos de archivo conocidos</translation>
    </message>
    <message>
        <source>Leaves out files that the application cannot show when a folder is imported.</source>
        <translation>Omite los archivos que la aplicación no puede mostrar cuando se importa una carpeta.</translation>
    </message>
    <message>
        <source>Remove invalid characters from RTF</source>
        <translation>Quitar caracteres no válidos de RTF</translation>
    </message>
    <message>
        <source>Leaves out control characters that some programs write into RTF files.</source>
        <translation>Omite los caracteres de control que algunos programas escriben en los archivos RTF.</translation>
    </message>
    <message>
        <source>Use font hinting</source>
        <translation>Usar el ajuste de las fuentes</translation>
    </message>
    <message>
        <source>Fits the shapes of letters to the pixels of the screen in text that is read from the settings.</source>
        <translation>Ajusta la forma de las letras a los píxeles de la pantalla en el texto que se lee de las preferencias.</translation>
    </message>
    <message>
        <source>Use first lines as titles only</source>
        <translation>Usar las primeras líneas solo como títulos</translation>
    </message>
    <message>
        <source>Takes the first line of an imported Fernwick note as its title and leaves it out of the text.</source>
        <translation>Toma la primera línea de una nota de Fernwick importada como título y la omite en el texto.</translation>
    </message>
    <message>
        <source>Show the number of documents</source>
        <translation>Mostrar el número de documentos</translation>
    </message>
    <message>
        <source>Shows at each folder of the binder how many documents it contains.</source>
        <translation>Muestra en cada carpeta del archivador cuántos documentos contiene.</translation>
    </message>
    <message>
        <source>Show lines in document notes</source>
        <translation>Mostrar renglones en las notas de documento</translation>
    </message>
    <message>
        <source>Draws the lines of a notepad in the notes of a document.</source>
        <translation>Dibuja los renglones de un cuaderno en las notas de un documento.</translation>
    </message>
    <message>
        <source>Show lines in project notes</source>
        <translation>Mostrar renglones en las notas de proyecto</translation>
    </message>
    <message>
        <source>Draws the lines of a notepad in the notes of the project.</source>
        <translation>Dibuja los renglones de un cuaderno en las notas del proyecto.</translation>
    </message>
    <message>
        <source>Shade every other row</source>
        <translation>Sombrear filas alternas</translation>
    </message>
    <message>
        <source>Gives every other row of the outliner another background.</source>
        <translation>Da otro fondo a una de cada dos filas del esquema.</translation>
    </message>
    <message>
        <source>Folders in bold</source>
        <translation>Carpetas en negrita</translation>
    </message>
    <message>
        <source>Shows the titles of folders in the binder in bold type.</source>
        <translation>Muestra en negrita los títulos de las carpetas del archivador.</translation>
    </message>
    <message>
        <source>Folders in italics</source>
        <translation>Carpetas en cursiva</translation>
    </message>
    <message>
        <source>Shows the titles of folders in the binder in italics.</source>
        <translation>Muestra en cursiva los títulos de las carpetas del archivador.</translation>
    </message>
    <message>
        <source>Collections in bold</source>
        <translation>Colecciones en negrita</translation>
    </message>
    <message>
        <source>Shows the titles of collections in bold type.</source>
        <translation>Muestra en negrita los títulos de las colecciones.</translation>
    </message>
    <message>
        <source>Collections in italics</source>
        <translation>Colecciones en cursiva</translation>
    </message>
    <message>
        <source>Shows the titles of collections in italics.</source>
        <translation>Muestra en cursiva los títulos de las colecciones.</translation>
    </message>
    <message>
        <source>Show collections as folders</source>
        <translation>Mostrar las colecciones como carpetas</translation>
    </message>
    <message>
        <source>Shows a collection on the corkboard and in the outliner as if it were a folder.</source>
        <translation>Muestra una colección en el tablero de corcho y en el esquema como si fuera una carpeta.</translation>
    </message>
    <message>
        <source>Include the enclosing group</source>
        <translation>Incluir el grupo que los contiene</translation>
    </message>
    <message>
        <source>Adds the folder itself when its documents are shown as one text.</source>
        <translation>Añade la propia carpeta cuando sus documentos se muestran como un solo texto.</translation>
    </message>
    <message>
        <source>Open all results together</source>
        <translation>Abrir juntos todos los resultados</translation>
    </message>
    <message>
        <source>Shows all documents that a project search has found in the editor at once.</source>
        <translation>Muestra a la vez en el editor todos los documentos que ha encontrado una búsqueda en el proyecto.</translation>
    </message>
    <message>
        <source>Collapse items again after dragging</source>
        <translation>Contraer los elementos después de arrastrar</translation>
    </message>
    <message>
        <source>Closes the items of the outline that opened by themselves during a drag.</source>
        <translation>Contrae los elementos del esquema que se abrieron solos al arrastrar.</translation>
    </message>
    <message>
        <source>Return ends a synopsis</source>
        <translation>Intro termina una sinopsis</translation>
    </message>
    <message>
        <source>Ends the editing of a synopsis with the Return key, which otherwise begins a new line.</source>
        <translation>Termina de editar una sinopsis con la tecla Intro, que de otro modo empieza una línea nueva.</translation>
    </message>
    <message>
        <source>Return creates an item</source>
        <translation>Intro crea un elemento</translation>
    </message>
    <message>
        <source>Creates a new item with the Return key in the binder, the outliner and on the corkboard.</source>
        <translation>Crea un elemento con la tecla Intro en el archivador, en el esquema y en el tablero de corcho.</translation>
    </message>
    <message>
        <source>Allow dropping on cards</source>
        <translation>Permitir soltar sobre fichas</translation>
    </message>
    <message>
        <source>Lets an index card be dropped on another one, so that it becomes part of it.</source>
        <translation>Permite soltar una ficha sobre otra, de la que pasa a formar parte.</translation>
    </message>
    <message>
        <source>Check spelling in new projects</source>
        <translation>Revisar la ortografía en proyectos nuevos</translation>
    </message>
    <message>
        <source>Turns on the spelling check while typing in every new project.</source>
        <translation>Activa la revisión ortográfica mientras se escribe en cada proyecto nuevo.</translation>
    </message>
    <message>
        <source>Correct spelling while typing</source>
        <translation>Corregir la ortografía al escribir</translation>
    </message>
    <message>
        <source>Replaces a misspelt word by the likely one as soon as it is complete.</source>
        <translation>Sustituye una palabra mal escrita por la probable en cuanto está completa.</translation>
    </message>
    <message>
        <source>Capitalize a single i</source>
        <translation>Poner en mayúscula una i sola</translation>
    </message>
    <message>
        <source>Writes the English word I as a capital letter.</source>
        <translation>Escribe la palabra inglesa I en mayúscula.</translation>
    </message>
    <message>
        <source>Capitalize sentences</source>
        <translation>Empezar las frases con mayúscula</translation>
    </message>
    <message>
        <source>Begins each sentence with a capital letter.</source>
        <translation>Empieza cada frase con una letra mayúscula.</translation>
    </message>
    <message>
        <source>Use smart quotes</source>
        <translation>Usar comillas tipográficas</translation>
    </message>
    <message>
        <source>Replaces straight quotation marks by opening and closing ones while typing.</source>
        <translation>Sustituye al escribir las comillas rectas por comillas de apertura y de cierre.</translation>
    </message>
    <message>
        <source>Replace hyphens by em dashes</source>
        <translation>Sustituir guiones por rayas</translation>
    </message>
    <message>
        <source>Turns two hyphens into an em dash while typing.</source>
        <translation>Convierte dos guiones en una raya al escribir.</translation>
    </message>
    <message>
        <source>Replace dots by ellipses</source>
        <translation>Sustituir puntos por puntos suspensivos</translation>
    </message>
    <message>
        <source>Turns three full stops into an ellipsis while typing.</source>
        <translation>Convierte tres puntos en puntos suspensivos al escribir.</translation>
    </message>
    <message>
        <source>No correction in script mode</source>
        <translation>Sin correcciones en el modo de guion</translation>
    </message>
    <message>
        <source>Switches all corrections off while a script is written.</source>
        <translation>Desactiva todas las correcciones mientras se escribe un guion.</translation>
    </message>
    <message>
        <source>Raise ordinals</source>
        <translation>Volar los ordinales</translation>
    </message>
    <message>
        <source>Raises the letters of English ordinal numbers such as 1st.</source>
        <translation>Pone en superíndice las letras de los números ordinales ingleses como 1st.</translation>
    </message>
    <message>
        <source>Link web addresses</source>
        <translation>Enlazar direcciones web</translation>
    </message>
    <message>
        <source>Turns a web address into a link while it is typed.</source>
        <translation>Convierte una dirección web en un enlace al escribirla.</translation>
    </message>
    <message>
        <source>Link titles in brackets</source>
        <translation>Enlazar títulos entre corchetes</translation>
    </message>
    <message>
        <source>Turns the title of a document in double square brackets into a link to it.</source>
        <translation>Convierte el título de un documento entre dobles corchetes en un enlace al documento.</translation>
    </message>
    <message>
        <source>Replace text while typing</source>
        <translation>Sustituir texto al escribir</translation>
    </message>
    <message>
        <source>Replaces abbreviations by the texts in the list of replacements.</source>
        <translation>Sustituye las abreviaturas por los textos de la lista de sustituciones.</translation>
    </message>
    <message>
        <source>Typewriter scrolling</source>
        <translation>Desplazamiento de máquina de escribir</translation>
    </message>
    <message>
        <source>Keeps the line that is being written in the middle of the editor.</source>
        <translation>Mantiene la línea que se escribe en el centro del editor.</translation>
    </message>
    <message>
        <source>Typewriter scrolling in full screen</source>
        <translation>Desplazamiento de máquina de escribir a pantalla completa</translation>
    </message>
    <message>
        <source>Keeps the line that is being written in the middle of the screen.</source>
        <translation>Mantiene la línea que se escribe en el centro de la pantalla.</translation>
    </message>
    <message>
        <source>Complete words</source>
        <translation>Completar palabras</translation>
    </message>
    <message>
        <source>Offers words from the completion list of the project while typing.</source>
        <translation>Ofrece al escribir palabras de la lista de autocompletado del proyecto.</translation>
    </message>
    <message>
        <source>Complete words in script mode only</source>
        <translation>Completar palabras solo en el modo de guion</translation>
    </message>
    <message>
        <source>Offers completions in scripts and not in other text.</source>
        <translation>Ofrece el autocompletado en los guiones y no en otros textos.</translation>
    </message>
    <message>
        <source>Make backups</source>
        <translation>Hacer copias de seguridad</translation>
    </message>
    <message>
        <source>Makes backups of projects without being asked.</source>
        <translation>Hace copias de seguridad de los proyectos sin que se pida.</translation>
    </message>
    <message>
        <source>Back up when a project is opened</source>
        <translation>Hacer copia al abrir un proyecto</translation>
    </message>
    <message>
        <source>Makes a backup of a project before it is opened.</source>
        <translation>Hace una copia de seguridad de un proyecto antes de abrirlo.</translation>
    </message>
    <message>
        <source>Back up when a project is closed</source>
        <translation>Hacer copia al cerrar un proyecto</translation>
    </message>
    <message>
        <source>Makes a backup of a project when it is closed.</source>
        <translation>Hace una copia de seguridad de un proyecto cuando se cierra.</translation>
    </message>
    <message>
        <source>Back up on each manual save</source>
        <translation>Hacer copia al guardar a mano</translation>
    </message>
    <message>
        <source>Makes a backup whenever the project is saved by command.</source>
        <translation>Hace una copia de seguridad cada vez que se guarda el proyecto con la orden.</translation>
    </message>
    <message>
        <source>Compress backups</source>
        <translation>Comprimir las copias de seguridad</translation>
    </message>
    <message>
        <source>Stores each backup as one zip file.</source>
        <translation>Guarda cada copia de seguridad en un solo archivo zip.</translation>
    </message>
    <message>
        <source>Put the date into backup names</source>
        <translation>Poner la fecha en el nombre de las copias</translation>
    </message>
    <message>
        <source>Adds the date and the time to the name of each backup.</source>
        <translation>Añade la fecha y la hora al nombre de cada copia de seguridad.</translation>
    </message>
    <message>
        <source>No sound effects</source>
        <translation>Sin efectos de sonido</translation>
    </message>
    <message>
        <source>Switches the sounds of the application off.</source>
        <translation>Desactiva los sonidos de la aplicación.</translation>
    </message>
    <message>
        <source>Transparent scratch pad</source>
        <translation>Bloc de notas transparente</translation>
    </message>
    <message>
        <source>Lets the windows behind the scratch pad shine through.</source>
        <translation>Deja ver las ventanas que hay bajo el bloc de notas.</translation>
    </message>
    <message>
        <source>Wrap metadata fields</source>
        <translation>Ajustar los metadatos en varias líneas</translation>
    </message>
    <message>
        <source>Shows long values of custom metadata on several lines.</source>
        <translation>Muestra en varias líneas los valores largos de los metadatos personalizados.</translation>
    </message>
    <message>
        <source>Colour metadata fields</source>
        <translation>Colorear los campos de metadatos</translation>
    </message>
    <message>
        <source>Shows each field of custom metadata in its own colour.</source>
        <translation>Muestra cada campo de los metadatos personalizados en su color.</translation>
    </message>
    <message>
        <source>Keep windows on top</source>
        <translation>Mantener las ventanas delante</translation>
    </message>
    <message>
        <source>Keeps the tool windows of the application above all other windows.</source>
        <translation>Mantiene las ventanas de herramientas de la aplicación sobre todas las demás.</translation>
    </message>
    <message>
        <source>Keep reference panels on top</source>
        <translation>Mantener delante los paneles de referencia</translation>
    </message>
    <message>
        <source>Keeps quick reference panels above the main window.</source>
        <translation>Mantiene los paneles de referencia rápida sobre la ventana principal.</translation>
    </message>
    <message>
        <source>Export the entire binder</source>
        <translation>Exportar todo el archivador</translation>
    </message>
    <message>
        <source>Exports all of the binder to OPML, and not the selected items only.</source>
        <translation>Exporta todo el archivador a OPML y no solo los elementos seleccionados.</translation>
    </message>
    <message>
        <source>Create a folder for the import</source>
        <translation>Crear una carpeta para la importación</translation>
    </message>
    <message>
        <source>Puts what is imported from OPML into a new folder.</source>
        <translation>Pone lo que se importa de OPML en una carpeta nueva.</translation>
    </message>
    <message>
        <source>Position of the page</source>
        <translation>Posición de la página</translation>
    </message>
    <message>
        <source>Determines where on the screen the page stands in full screen.</source>
        <translation>Determina en qué lugar de la pantalla está la página a pantalla completa.</translation>
    </message>
    <message>
        <source>Save after</source>
        <translation>Guardar tras</translation>
    </message>
    <message>
        <source>Saves the project when nothing has been typed for this number of seconds.</source>
        <translation>Guarda el proyecto cuando no se ha escrito nada durante este número de segundos.</translation>
    </message>
    <message>
        <source>Days between checks for updates</source>
        <translation>Días entre búsquedas de actualizaciones</translation>
    </message>
    <message>
        <source>Determines how many days pass before a newer version is looked for again.</source>
        <translation>Determina cuántos días pasan hasta que se vuelve a buscar una versión más reciente.</translation>
    </message>
    <message>
        <source>Strength of label tints</source>
        <translation>Intensidad del color de las etiquetas</translation>
    </message>
    <message>
        <source>Determines how strongly the colour of a label shows, from 0 (not at all) to 255 (fully).</source>
        <translation>Determina con qué fuerza se ve el color de una etiqueta, de 0 (nada) a 255 (del todo).</translation>
    </message>
    <message>
        <source>Strength of the status stamp</source>
        <translation>Intensidad del sello de estado</translation>
    </message>
    <message>
        <source>Determines how strongly the status is stamped on an index card, from 0 to 255.</source>
        <translation>Determina con qué fuerza se estampa el estado en una ficha, de 0 a 255.</translation>
    </message>
    <message>
        <source>Strength of card shadows</source>
        <translation>Intensidad de las sombras de las fichas</translation>
    </message>
    <message>
        <source>Determines how dark the shadows of index cards are, from 0 (none) to 255.</source>
        <translation>Determina lo oscuras que son las sombras de las fichas, de 0 (ninguna) a 255.</translation>
    </message>
    <message>
        <source>Strength of the background</source>
        <translation>Intensidad del fondo</translation>
    </message>
    <message>
        <source>Determines how much the background of full screen hides the desktop, from 0 to 255.</source>
        <translation>Determina cuánto oculta el escritorio el fondo de la pantalla completa, de 0 a 255.</translation>
    </message>
    <message>
        <source>Width of the page</source>
        <translation>Anchura de la página</translation>
    </message>
    <message>
        <source>Sets the width of the page in full screen, in percent of that of the screen.</source>
        <translation>Fija la anchura de la página a pantalla completa, en tanto por ciento de la de la pantalla.</translation>
    </message>
    <message>
        <source>Height of the page</source>
        <translation>Altura de la página</translation>
    </message>
    <message>
        <source>Sets the height of the page in full screen, in percent of that of the screen.</source>
        <translation>Fija la altura de la página a pantalla completa, en tanto por ciento de la de la pantalla.</translation>
    </message>
    <message>
        <source>Width of the text cursor</source>
        <translation>Anchura del cursor de texto</translation>
    </message>
    <message>
        <source>Sets how wide the text cursor is; -1 is the width that the system uses.</source>
        <translation>Fija la anchura del cursor de texto; -1 es la anchura que usa el sistema.</translation>
    </message>
    <message>
        <source>Zoom of the editor</source>
        <translation>Zoom del editor</translation>
    </message>
    <message>
        <source>Determines which entry of the list of zoom factors the editor uses.</source>
        <translation>Determina qué entrada de la lista de factores de zoom usa el editor.</translation>
    </message>
    <message>
        <source>Zoom of project notes</source>
        <translation>Zoom de las notas de proyecto</translation>
    </message>
    <message>
        <source>Determines which entry of the list of zoom factors project notes use.</source>
        <translation>Determina qué entrada de la lista de factores de zoom usan las notas de proyecto.</translation>
    </message>
    <message>
        <source>Zoom of document notes</source>
        <translation>Zoom de las notas de documento</translation>
    </message>
    <message>
        <source>Determines which entry of the list of zoom factors document notes use.</source>
        <translation>Determina qué entrada de la lista de factores de zoom usan las notas de documento.</translation>
    </message>
    <message>
        <source>Rewind on pause</source>
        <translation>Retroceso al pausar</translation>
    </message>
    <message>
        <source>Determines how many seconds a recording goes back when it is paused, so that no word is missed.</source>
        <translation>Determina cuántos segundos retrocede una grabación al pausarla, para que no se pierda ninguna palabra.</translation>
    </message>
    <message>
        <source>Backups to keep</source>
        <translation>Copias de seguridad que se conservan</translation>
    </message>
    <message>
        <source>Determines how many backups of a project are kept before the oldest is removed.</source>
        <translation>Determina cuántas copias de un proyecto se conservan antes de quitar la más antigua.</translation>
    </message>
    <message>
        <source>Revision of new text</source>
        <translation>Revisión del texto nuevo</translation>
    </message>
    <message>
        <source>Determines as which revision new text is marked, from 1 to 5; 0 marks nothing.</source>
        <translation>Determina con qué revisión se marca el texto nuevo, de 1 a 5; 0 no marca nada.</translation>
    </message>
    <message>
        <source>Adapt indents to line spacing</source>
        <translation>Adaptar las sangrías al interlineado</translation>
    </message>
    <message>
        <source>Determines how the first-line indent follows when the line spacing is changed.</source>
        <translation>Determina cómo sigue la sangría de primera línea los cambios de interlineado.</translation>
    </message>
    <message>
        <source>Open links in</source>
        <translation>Abrir los enlaces en</translation>
    </message>
    <message>
        <source>Determines where the document opens that a clicked link leads to.</source>
        <translation>Determina dónde se abre el documento al que lleva un enlace pulsado.</translation>
    </message>
    <message>
        <source>Recent projects to list</source>
        <translation>Número de proyectos recientes</translation>
    </message>
    <message>
        <source>Determines how many projects the menu of recent projects shows.</source>
        <translation>Determina cuántos proyectos muestra el menú de proyectos recientes.</translation>
    </message>
    <message>
        <source>Last format of an OPML export</source>
        <translation>Último formato de exportación OPML</translation>
    </message>
    <message>
        <source>This is the format that the last export to OPML used.</source>
        <translation>Es el formato que usó la última exportación a OPML.</translation>
    </message>
    <message>
        <source>Content of OPML exports</source>
        <translation>Contenido de las exportaciones OPML</translation>
    </message>
    <message>
        <source>Determines which parts of the documents an export to OPML contains.</source>
        <translation>Determina qué partes de los documentos contiene una exportación a OPML.</translation>
    </message>
    <message>
        <source>Content of OPML imports</source>
        <translation>Contenido de las importaciones OPML</translation>
    </message>
    <message>
        <source>Determines what the notes of an OPML file become when it is imported.</source>
        <translation>Determina en qué se convierten las notas de un archivo OPML al importarlo.</translation>
    </message>
    <message>
        <source>Last choice for an OPML import</source>
        <translation>Última elección de importación OPML</translation>
    </message>
    <message>
        <source>This is the choice that the import dialog showed last.</source>
        <translation>Es la elección que mostró por última vez el diálogo de importación.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Sets how loud recordings are played, from 0 (silent) to 1 (full).</source>
        <translation>Fija el volumen con que se reproducen las grabaciones, de 0 (silencio) a 1 (máximo).</translation>
    </message>
    <message>
        <source>Margin of the editor</source>
        <translation>Margen del editor</translation>
    </message>
    <message>
        <source>Sets how many pixels are left free between the text and the edge of the editor.</source>
        <translation>Fija cuántos píxeles quedan libres entre el texto y el borde del editor.</translation>
    </message>
    <message>
        <source>Folder of templates</source>
        <translation>Carpeta de plantillas</translation>
    </message>
    <message>
        <source>This is the folder in which project templates of your own are kept.</source>
        <translation>Es la carpeta en la que están sus propias plantillas de proyecto.</translation>
    </message>
    <message>
        <source>Picture of the corkboard</source>
        <translation>Imagen del tablero de corcho</translation>
    </message>
    <message>
        <source>This is the picture file that covers the corkboard; without one it has a plain colour.</source>
        <translation>Es el archivo de imagen que cubre el tablero de corcho; sin él, es de un color liso.</translation>
    </message>
    <message>
        <source>Unit of the ruler</source>
        <translation>Unidad de la regla</translation>
    </message>
    <message>
        <source>This is the unit in which the ruler and the fields for lengths count.</source>
        <translation>Es la unidad en la que cuentan la regla y los campos de longitud.</translation>
    </message>
    <message>
        <source>Step of the ruler</source>
        <translation>Paso de la regla</translation>
    </message>
    <message>
        <source>This is the distance in which tab stops and indents move on the ruler; empty lets them move freely.</source>
        <translation>Es la distancia con que se mueven las tabulaciones y sangrías en la regla; vacía, se mueven libremente.</translation>
    </message>
    <message>
        <source>Language of the dictionary</source>
        <translation>Idioma del diccionario</translation>
    </message>
    <message>
        <source>This is the language in which spelling is checked, such as en_GB.</source>
        <translation>Es el idioma en que se revisa la ortografía, como es_ES.</translation>
    </message>
    <message>
        <source>Citation manager</source>
        <translation>Gestor de citas</translation>
    </message>
    <message>
        <source>This is the program that opens when citations are to be inserted.</source>
        <translation>Es el programa que se abre para insertar citas.</translation>
    </message>
    <message>
        <source>Folder of scratch pad notes</source>
        <translation>Carpeta de las notas del bloc</translation>
    </message>
    <message>
        <source>This is the folder in which the notes of the scratch pad are kept.</source>
        <translation>Es la carpeta en la que están las notas del bloc de notas.</translation>
    </message>
    <message>
        <source>Last scratch pad note</source>
        <translation>Última nota del bloc</translation>
    </message>
    <message>
        <source>This is the note that the scratch pad showed last.</source>
        <translation>Es la nota que mostró por última vez el bloc de notas.</translation>
    </message>
    <message>
        <source>Layout of the scratch pad</source>
        <translation>Disposición del bloc de notas</translation>
    </message>
    <message>
        <source>Determines whether the list of notes stands above the text or beside it.</source>
        <translation>Determina si la lista de notas está encima del texto o al lado.</translation>
    </message>
    <message>
        <source>Folder of backups</source>
        <translation>Carpeta de las copias de seguridad</translation>
    </message>
    <message>
        <source>This is the folder in which automatic backups are kept.</source>
        <translation>Es la carpeta en la que están las copias de seguridad automáticas.</translation>
    </message>
    <message>
        <source>Language of the application</source>
        <translation>Idioma de la aplicación</translation>
    </message>
    <message>
        <source>This is the language of menus and dialogs; it changes at the next start.</source>
        <translation>Es el idioma de los menús y diálogos; cambia en el próximo inicio.</translation>
    </message>
    <message>
        <source>Double quotes</source>
        <translation>Comillas dobles</translation>
    </message>
    <message>
        <source>These are the opening and the closing mark that replace straight double quotes.</source>
        <translation>Son los signos de apertura y de cierre que sustituyen a las comillas dobles rectas.</translation>
    </message>
    <message>
        <source>Single quotes</source>
        <translation>Comillas simples</translation>
    </message>
    <message>
        <source>These are the opening and the closing mark that replace straight single quotes.</source>
        <translation>Son los signos de apertura y de cierre que sustituyen a las comillas simples rectas.</translation>
    </message>
    <message>
        <source>Labels on index cards</source>
        <translation>Etiquetas en las fichas</translation>
    </message>
    <message>
        <source>Determines how an index card shows the colour of its label.</source>
        <translation>Determina cómo muestra una ficha el color de su etiqueta.</translation>
    </message>
    <message>
        <source>Corners of index cards</source>
        <translation>Esquinas de las fichas</translation>
    </message>
    <message>
        <source>Determines whether the corners of index cards are square or rounded.</source>
        <translation>Determina si las esquinas de las fichas son rectas o redondeadas.</translation>
    </message>
    <message>
        <source>Double click on the corkboard</source>
        <translation>Doble clic en el tablero de corcho</translation>
    </message>
    <message>
        <source>Determines what a double click between the cards does.</source>
        <translation>Determina qué hace un doble clic entre las fichas.</translation>
    </message>
    <message>
        <source>Kindle converter</source>
        <translation>Convertidor de Kindle</translation>
    </message>
    <message>
        <source>This is the program that makes Kindle books; without it, they are not offered.</source>
        <translation>Es el programa que crea los libros Kindle; sin él, no se ofrecen.</translation>
    </message>
    <message>
        <source>Last folder of an OPML import</source>
        <translation>Última carpeta de importación OPML</translation>
    </message>
    <message>
        <source>This is the folder from which an OPML file was last imported.</source>
        <translation>Es la carpeta de la que se importó por última vez un archivo OPML.</translation>
    </message>
    <message>
        <source>Personal dictionary</source>
        <translation>Diccionario personal</translation>
    </message>
    <message>
        <source>These are the words that you have added to the dictionary.</source>
        <translation>Son las palabras que ha añadido al diccionario.</translation>
    </message>
    <message>
        <source>This is the colour of the line below the title of an index card.</source>
        <translation>Es el color de la línea bajo el título de una ficha.</translation>
    </message>
    <message>
        <source>This is the colour of the lines on an index card.</source>
        <translation>Es el color de los renglones de una ficha.</translation>
    </message>
    <message>
        <source>This is the colour of the status that is stamped on an index card.</source>
        <translation>Es el color del estado que se estampa en una ficha.</translation>
    </message>
    <message>
        <source>This is the colour of the edge of an index card.</source>
        <translation>Es el color del borde de una ficha.</translation>
    </message>
    <message>
        <source>This is the colour of an index card without a label.</source>
        <translation>Es el color de una ficha sin etiqueta.</translation>
    </message>
    <message>
        <source>This is the colour of the corkboard where it has no picture.</source>
        <translation>Es el color del tablero de corcho cuando no tiene imagen.</translation>
    </message>
    <message>
        <source>This is the colour of the screen around the page in full screen.</source>
        <translation>Es el color de la pantalla alrededor de la página a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the first revision.</source>
        <translation>Es el color del texto escrito en la primera revisión.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the second revision.</source>
        <translation>Es el color del texto escrito en la segunda revisión.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the third revision.</source>
        <translation>Es el color del texto escrito en la tercera revisión.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the fourth revision.</source>
        <translation>Es el color del texto escrito en la cuarta revisión.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the fifth revision.</source>
        <translation>Es el color del texto escrito en la quinta revisión.</translation>
    </message>
    <message>
        <source>This is the colour of text in the editor that has none of its own.</source>
        <translation>Es el color del texto del editor que no tiene otro.</translation>
    </message>
    <message>
        <source>This is the colour of the page in the editor.</source>
        <translation>Es el color de la página en el editor.</translation>
    </message>
    <message>
        <source>This is the colour of links in the editor.</source>
        <translation>Es el color de los enlaces en el editor.</translation>
    </message>
    <message>
        <source>This is the colour of links in the editor that have been opened.</source>
        <translation>Es el color de los enlaces ya abiertos en el editor.</translation>
    </message>
    <message>
        <source>This is the colour of blanks, tabs and paragraph marks in the editor.</source>
        <translation>Es el color de los espacios, tabuladores y marcas de párrafo en el editor.</translation>
    </message>
    <message>
        <source>This is the colour of selected text in the editor.</source>
        <translation>Es el color del texto seleccionado en el editor.</translation>
    </message>
    <message>
        <source>This is the background of selected text in the editor.</source>
        <translation>Es el fondo del texto seleccionado en el editor.</translation>
    </message>
    <message>
        <source>This is the colour of annotations within the text.</source>
        <translation>Es el color de las anotaciones dentro del texto.</translation>
    </message>
    <message>
        <source>This is the background of text that has a comment.</source>
        <translation>Es el fondo del texto que tiene un comentario.</translation>
    </message>
    <message>
        <source>This is the colour of the text of footnotes.</source>
        <translation>Es el color del texto de las notas al pie.</translation>
    </message>
    <message>
        <source>This is the background of text that has a footnote.</source>
        <translation>Es el fondo del texto que tiene una nota al pie.</translation>
    </message>
    <message>
        <source>This is the background of text that keeps its formatting when the book is compiled.</source>
        <translation>Es el fondo del texto que conserva su formato al compilar el libro.</translation>
    </message>
    <message>
        <source>This is the background of what a project search has found in the editor.</source>
        <translation>Es el fondo de lo que ha encontrado en el editor una búsqueda en el proyecto.</translation>
    </message>
    <message>
        <source>This is the colour of the frame around what a project search has found in the editor.</source>
        <translation>Es el color del marco de lo que ha encontrado en el editor una búsqueda en el proyecto.</translation>
    </message>
    <message>
        <source>This is the background of what was found in the document.</source>
        <translation>Es el fondo de lo que se ha encontrado en el documento.</translation>
    </message>
    <message>
        <source>This is the background of every other match in the document.</source>
        <translation>Es el fondo de una de cada dos coincidencias en el documento.</translation>
    </message>
    <message>
        <source>This is the colour of text that was found in the document.</source>
        <translation>Es el color del texto encontrado en el documento.</translation>
    </message>
    <message>
        <source>This is the colour of the line below a misspelt word.</source>
        <translation>Es el color de la línea bajo una palabra mal escrita.</translation>
    </message>
    <message>
        <source>This is the colour of text in full screen that has none of its own.</source>
        <translation>Es el color del texto a pantalla completa que no tiene otro.</translation>
    </message>
    <message>
        <source>This is the colour of the page in full screen.</source>
        <translation>Es el color de la página a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the colour of links in full screen.</source>
        <translation>Es el color de los enlaces a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the colour of links in full screen that have been opened.</source>
        <translation>Es el color de los enlaces ya abiertos a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the colour of blanks, tabs and paragraph marks in full screen.</source>
        <translation>Es el color de los espacios, tabuladores y marcas de párrafo a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the colour of selected text in full screen.</source>
        <translation>Es el color del texto seleccionado a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the background of selected text in full screen.</source>
        <translation>Es el fondo del texto seleccionado a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the background of what a project search has found, in full screen.</source>
        <translation>Es el fondo de lo que ha encontrado una búsqueda en el proyecto, a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the colour of the frame around what a project search has found, in full screen.</source>
        <translation>Es el color del marco de lo que ha encontrado una búsqueda en el proyecto, a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the background of what was found in the document, in full screen.</source>
        <translation>Es el fondo de lo que se ha encontrado en el documento, a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the background of every other match in the document, in full screen.</source>
        <translation>Es el fondo de una de cada dos coincidencias en el documento, a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the colour of text that was found in the document, in full screen.</source>
        <translation>Es el color del texto encontrado en el documento, a pantalla completa.</translation>
    </message>
    <message>
        <source>This is the background of the notes of a document.</source>
        <translation>Es el fondo de las notas de un documento.</translation>
    </message>
    <message>
        <source>This is the background of the notes of the project.</source>
        <translation>Es el fondo de las notas del proyecto.</translation>
    </message>
    <message>
        <source>This is the background of the list of recent search results.</source>
        <translation>Es el fondo de la lista de los últimos resultados de búsqueda.</translation>
    </message>
    <message>
        <source>This is the background of the binder.</source>
        <translation>Es el fondo del archivador.</translation>
    </message>
    <message>
        <source>This is the background of the outliner.</source>
        <translation>Es el fondo del esquema.</translation>
    </message>
    <message>
        <source>This is the background of every other row of the outliner.</source>
        <translation>Es el fondo de una de cada dos filas del esquema.</translation>
    </message>
    <message>
        <source>This is the background of earlier versions of a document.</source>
        <translation>Es el fondo de las versiones anteriores de un documento.</translation>
    </message>
    <message>
        <source>This is the background of the scratch pad.</source>
        <translation>Es el fondo del bloc de notas.</translation>
    </message>
    <message>
        <source>This is the colour of text in the scratch pad.</source>
        <translation>Es el color del texto en el bloc de notas.</translation>
    </message>
    <message>
        <source>Last check for updates</source>
        <translation>Última búsqueda de actualizaciones</translation>
    </message>
    <message>
        <source>This is the time at which a newer version was last looked for.</source>
        <translation>Es el momento en que se buscó por última vez una versión más reciente.</translation>
    </message>
    <message>
        <source>Time of the start</source>
        <translation>Momento del inicio</translation>
    </message>
    <message>
        <source>This is the time at which the application was started.</source>
        <translation>Es el momento en que se inició la aplicación.</translation>
    </message>
    <message>
        <source>This is the font of the titles of index cards.</source>
        <translation>Es la fuente de los títulos de las fichas.</translation>
    </message>
    <message>
        <source>This is the font of the synopses on index cards.</source>
        <translation>Es la fuente de las sinopsis en las fichas.</translation>
    </message>
    <message>
        <source>This is the font of the synopses on small index cards.</source>
        <translation>Es la fuente de las sinopsis en las fichas pequeñas.</translation>
    </message>
    <message>
        <source>This is the font of the status that is stamped on index cards.</source>
        <translation>Es la fuente del estado que se estampa en las fichas.</translation>
    </message>
    <message>
        <source>This is the font of menus, buttons and dialogs.</source>
        <translation>Es la fuente de los menús, botones y diálogos.</translation>
    </message>
    <message>
        <source>This is the font of the notes of a document.</source>
        <translation>Es la fuente de las notas de un documento.</translation>
    </message>
    <message>
        <source>This is the font of the notes of the project.</source>
        <translation>Es la fuente de las notas del proyecto.</translation>
    </message>
    <message>
        <source>This is the font of the binder.</source>
        <translation>Es la fuente del archivador.</translation>
    </message>
    <message>
        <source>This is the font of the outliner.</source>
        <translation>Es la fuente del esquema.</translation>
    </message>
    <message>
        <source>This is the font of the bar above each editor.</source>
        <translation>Es la fuente de la barra que hay sobre cada editor.</translation>
    </message>
    <message>
        <source>This is the font of comments in the inspector.</source>
        <translation>Es la fuente de los comentarios en el inspector.</translation>
    </message>
    <message>
        <source>This is the font of footnotes in the inspector.</source>
        <translation>Es la fuente de las notas al pie en el inspector.</translation>
    </message>
    <message>
        <source>This is the font of the scratch pad.</source>
        <translation>Es la fuente del bloc de notas.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>This is the set of keys that the commands of the application have.</source>
        <translation>Son las teclas que tienen las órdenes de la aplicación.</translation>
    </message>
    <message>
        <source>Text presets</source>
        <translation>Estilos de texto predefinidos</translation>
    </message>
    <message>
        <source>These are the named formats for characters and paragraphs.</source>
        <translation>Son los formatos con nombre para caracteres y párrafos.</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Imagen de fondo</translation>
    </message>
    <message>
        <source>This is the picture that fills the screen around the page in full screen.</source>
        <translation>Es la imagen que llena la pantalla alrededor de la página a pantalla completa.</translation>
    </message>
    <message>
        <source>Replacements</source>
        <translation>Sustituciones</translation>
    </message>
    <message>
        <source>This is the list of texts that are replaced while typing.</source>
        <translation>Es la lista de los textos que se sustituyen al escribir.</translation>
    </message>
    <message>
        <source>PDF settings</source>
        <translation>Ajustes de PDF</translation>
    </message>
    <message>
        <source>These are the settings of PDF exports by their names.</source>
        <translation>Son los ajustes de las exportaciones a PDF con sus nombres.</translation>
    </message>
    <message>
        <source>Place of the spelling window</source>
        <translation>Lugar de la ventana de ortografía</translation>
    </message>
    <message>
        <source>This is the place and the size that the spelling window had last.</source>
        <translation>Son el lugar y el tamaño que tuvo por última vez la ventana de ortografía.</translation>
    </message>
    <message>
        <source>Import web pages as</source>
        <translation>Importar páginas web como tipo</translation>
    </message>
    <message>
        <source>Determines what a web page becomes when it is imported.</source>
        <translation>Determina en qué se convierte una página web al importarla.</translation>
    </message>
    <message>
        <source>Encoding of plain text</source>
        <translation>Codificación del texto sin formato</translation>
    </message>
    <message>
        <source>This is the encoding in which plain text files are read where they do not name one.</source>
        <translation>Es la codificación con que se leen los archivos de texto sin formato que no indican ninguna.</translation>
    </message>
    <message>
        <source>Converters for imports</source>
        <translation>Convertidores de importación</translation>
    </message>
    <message>
        <source>Determines which converter reads which file format.</source>
        <translation>Determina qué convertidor lee cada formato de archivo.</translation>
    </message>
    <message>
        <source>Converters for exports</source>
        <translation>Convertidores de exportación</translation>
    </message>
    <message>
        <source>Determines which converter writes which file format.</source>
        <translation>Determina qué convertidor escribe cada formato de archivo.</translation>
    </message>
    <message>
        <source>Characters of new documents</source>
        <translation>Caracteres de los documentos nuevos</translation>
    </message>
    <message>
        <source>This is the format of characters with which a new document begins.</source>
        <translation>Es el formato de caracteres con que empieza un documento nuevo.</translation>
    </message>
    <message>
        <source>Paragraphs of new documents</source>
        <translation>Párrafos de los documentos nuevos</translation>
    </message>
    <message>
        <source>This is the format of paragraphs with which a new document begins.</source>
        <translation>Es el formato de párrafo con que empieza un documento nuevo.</translation>
    </message>
    <message>
        <source>Between documents shown together</source>
        <translation>Entre documentos mostrados juntos</translation>
    </message>
    <message>
        <source>Determines what separates the texts of documents that are shown as one.</source>
        <translation>Determina qué separa los textos de los documentos que se muestran como uno.</translation>
    </message>
    <message>
        <source>Separator of your own between documents shown together</source>
        <translation>Separador propio entre documentos mostrados juntos</translation>
    </message>
    <message>
        <source>This is the text that separates documents shown as one where a separator of your own is chosen.</source>
        <translation>Es el texto que separa los documentos mostrados como uno cuando se elige un separador propio.</translation>
    </message>
    <message>
        <source>Between merged documents</source>
        <translation>Entre documentos combinados</translation>
    </message>
    <message>
        <source>Determines what separates the texts of documents that are merged.</source>
        <translation>Determina qué separa los textos de los documentos que se combinan.</translation>
    </message>
    <message>
        <source>Separator of your own between merged documents</source>
        <translation>Separador propio entre documentos combinados</translation>
    </message>
    <message>
        <source>This is the text that separates merged documents where a separator of your own is chosen.</source>
        <translation>Es el texto que separa los documentos combinados cuando se elige un separador propio.</translation>
    </message>
    <message>
        <source>Between clippings</source>
        <translation>Entre recortes</translation>
    </message>
    <message>
        <source>Determines what separates a clipping from the text to which it is added.</source>
        <translation>Determina qué separa un recorte del texto al que se añade.</translation>
    </message>
    <message>
        <source>Separator of your own between clippings</source>
        <translation>Separador propio entre recortes</translation>
    </message>
    <message>
        <source>This is the text that separates clippings where a separator of your own is chosen.</source>
        <translation>Es el texto que separa los recortes cuando se elige un separador propio.</translation>
    </message>
    <message>
        <source>the commas make a list of the bytes; they belong into quotation marks</source>
        <translation>las comas convierten los bytes en una lista; deben ir entre comillas</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>Font of card titles</source>
        <translation>Fuente de los títulos de ficha</translation>
    </message>
    <message>
        <source>Font of synopses</source>
        <translation>Fuente de las sinopsis</translation>
    </message>
    <message>
        <source>Font of synopses on small cards</source>
        <translation>Fuente de las sinopsis en fichas pequeñas</translation>
    </message>
    <message>
        <source>Font of status stamps</source>
        <translation>Fuente de los sellos de estado</translation>
    </message>
    <message>
        <source>Font of menus and dialogs</source>
        <translation>Fuente de menús y diálogos</translation>
    </message>
    <message>
        <source>Font of document notes</source>
        <translation>Fuente de las notas de documento</translation>
    </message>
    <message>
        <source>Font of project notes</source>
        <translation>Fuente de las notas de proyecto</translation>
    </message>
    <message>
        <source>Font of the binder</source>
        <translation>Fuente del archivador</translation>
    </message>
    <message>
        <source>Font of the outliner</source>
        <translation>Fuente del esquema</translation>
    </message>
    <message>
        <source>Font of header bars</source>
        <translation>Fuente de las barras de cabecera</translation>
    </message>
    <message>
        <source>Font of comments</source>
        <translation>Fuente de los comentarios</translation>
    </message>
    <message>
        <source>Font of footnotes</source>
        <translation>Fuente de las notas al pie</translation>
    </message>
    <message>
        <source>Font of the scratch pad</source>
        <translation>Fuente del bloc de notas</translation>
    </message>
    <message>
        <source>the value is damaged</source>
        <translation>el valor está dañado</translation>
    </message>
    <message>
        <source>%1; it can be reset</source>
        <translation>%1; se puede restablecer</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
</context>
<context>
    <name>MRVOptionsFile</name>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>su carpeta no existe</translation>
    </message>
    <message>
        <source>this is no settings file</source>
        <translation>no es un archivo de ajustes</translation>
    </message>
</context>
<context>
    <name>MRVOutputFiles</name>
    <message>
        <source>two inputs would be written to this file</source>
        <translation>dos entradas se escribirían en este archivo</translation>
    </message>
    <message>
        <source>the output would replace an input</source>
        <translation>la salida reemplazaría una entrada</translation>
    </message>
</context>
<context>
    <name>MRVPagePublisher</name>
    <message>
        <source>there is no document to be written</source>
        <translation>no hay ningún documento que escribir</translation>
    </message>
    <message>
        <source>the style sheet belongs to %1; choose another folder, or export these pages together</source>
        <translation>la hoja de estilo pertenece a %1; elija otra carpeta o exporte estas páginas juntas</translation>
    </message>
    <message>
        <source>this style sheet was not written for these pages; choose another folder</source>
        <translation>esta hoja de estilo no se escribió para estas páginas; elija otra carpeta</translation>
    </message>
</context>
<context>
    <name>MRVPdfWriter</name>
    <message>
        <source>the pages cannot be painted</source>
        <translation>las páginas no se pueden dibujar</translation>
    </message>
    <message>
        <source>The PDF document cannot be made: %1</source>
        <translation>El documento PDF no se puede crear: %1</translation>
    </message>
    <message>
        <source>characters that no installed font has, and that are empty boxes: %1 (%2%3)</source>
        <translation>caracteres que ninguna fuente instalada tiene y que son casillas vacías: %1 (%2%3)</translation>
    </message>
</context>
<context>
    <name>MRVPictureReader</name>
    <message>
        <source>it does not exist</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>no se puede abrir</translation>
    </message>
    <message>
        <source>its %1 by %2 pixels are more than can be read</source>
        <translation>sus %1 por %2 píxeles son más de lo que se puede leer</translation>
    </message>
    <message>
        <source>it claims %1 by %2 pixels, which a file of its length does not hold</source>
        <translation>declara %1 por %2 píxeles, que un archivo de su longitud no contiene</translation>
    </message>
    <message>
        <source>it is in no known picture format</source>
        <translation>no tiene un formato de imagen conocido</translation>
    </message>
    <message>
        <source>it is in a form that cannot be checked</source>
        <translation>tiene una forma que no se puede comprobar</translation>
    </message>
    <message>
        <source>it holds too much compressed text</source>
        <translation>contiene demasiado texto comprimido</translation>
    </message>
    <message>
        <source>it does not tell its size</source>
        <translation>no indica su tamaño</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está dañado</translation>
    </message>
    <message>
        <source>it holds more than %1 MiB of text</source>
        <translation>contiene más de %1 MiB de texto</translation>
    </message>
</context>
<context>
    <name>MRVProgressMeter</name>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
</context>
<context>
    <name>MRVRecovery</name>
    <message>
        <source>%1: no lock can be made there</source>
        <translation>%1: allí no se puede crear un bloqueo</translation>
    </message>
</context>
<context>
    <name>MRVScriptCheck</name>
    <message>
        <source>&apos;%1&apos; says nothing</source>
        <translation>«%1» no dice nada</translation>
    </message>
    <message>
        <source>&apos;%1&apos; looks like a cue, but is action</source>
        <translation>«%1» parece un nombre de personaje, pero es acción</translation>
    </message>
    <message>
        <source>the cue &apos;%1&apos; is one letter apart from &apos;%2&apos;</source>
        <translation>el nombre de personaje «%1» difiere en una letra de «%2»</translation>
    </message>
    <message>
        <source>the cue &apos;%1&apos; is spelled &apos;%2&apos;</source>
        <translation>el nombre de personaje «%1» se escribe en otra parte «%2»</translation>
    </message>
    <message>
        <source>the place &apos;%1&apos; is one letter apart from &apos;%2&apos;</source>
        <translation>el lugar «%1» difiere en una letra de «%2»</translation>
    </message>
    <message>
        <source>the place &apos;%1&apos; is spelled &apos;%2&apos;</source>
        <translation>el lugar «%1» se escribe en otra parte «%2»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; ends nothing</source>
        <translation>«%1» no termina nada</translation>
    </message>
    <message>
        <source>&apos;%1&apos; begins a note that does not end in its paragraph</source>
        <translation>«%1» empieza una nota que no termina en su párrafo</translation>
    </message>
    <message>
        <source>&apos;%1&apos; begins cut text that does not end</source>
        <translation>«%1» empieza texto cortado que no termina</translation>
    </message>
</context>
<context>
    <name>MRVScriptFile</name>
    <message>
        <source>unknown type of script</source>
        <translation>tipo de guion desconocido</translation>
    </message>
    <message>
        <source>files of this type name their encoding themselves</source>
        <translation>los archivos de este tipo indican ellos mismos su codificación</translation>
    </message>
    <message>
        <source>the encoding %1 lacks some characters of the changed text</source>
        <translation>a la codificación %1 le faltan algunos caracteres del texto cambiado</translation>
    </message>
</context>
<context>
    <name>MRVScriptMode</name>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a script mode: %2</source>
        <translation>«%1» no es un modo de guion: %2</translation>
    </message>
    <message>
        <source>Cannot read the file &quot;%1&quot;: %2</source>
        <translation>No se puede leer el archivo «%1»: %2</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: the script mode is too large</source>
        <translation>No se puede escribir el archivo «%1»: el modo de guion es demasiado grande</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of &quot;%2&quot;</source>
        <translation>«%1» no es un valor de «%2»</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is not expected in &quot;%2&quot;</source>
        <translation>el atributo «%1» no tiene cabida en «%2»</translation>
    </message>
    <message>
        <source>text between elements is ignored</source>
        <translation>el texto entre elementos se omite</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not expected in &quot;%2&quot; and is ignored</source>
        <translation>«%1» no tiene cabida en «%2» y se omite</translation>
    </message>
    <message>
        <source>the root element is &quot;%1&quot; and not &quot;%2&quot;</source>
        <translation>el elemento raíz es «%1» y no «%2»</translation>
    </message>
    <message>
        <source>the root element is in the namespace &quot;%1&quot;</source>
        <translation>el elemento raíz pertenece al espacio de nombres «%1»</translation>
    </message>
    <message>
        <source>the version is &quot;%1&quot; and not &quot;%2&quot;</source>
        <translation>la versión es «%1» y no «%2»</translation>
    </message>
    <message>
        <source>the mode has more than %1 script elements</source>
        <translation>hay más de %1 elementos de guion</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>ocupa más de %1 bytes</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: Return goes to &apos;%2&apos;, which is no element</source>
        <translation>«%1»: Intro lleva a «%2», que no es un elemento</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: Tab in an empty line goes to &apos;%2&apos;, which is no element</source>
        <translation>«%1»: Tab en una línea vacía lleva a «%2», que no es un elemento</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: Tab goes to &apos;%2&apos;, which is no element</source>
        <translation>«%1»: Tab lleva a «%2», que no es un elemento</translation>
    </message>
    <message>
        <source>the mode has no elements</source>
        <translation>el modo no tiene elementos</translation>
    </message>
    <message>
        <source>element %1 has no title</source>
        <translation>el elemento %1 no tiene título</translation>
    </message>
    <message>
        <source>two elements are called &apos;%1&apos;</source>
        <translation>dos elementos se llaman «%1»</translation>
    </message>
    <message>
        <source>the paragraphs of &apos;%1&apos; look like those of &apos;%2&apos;</source>
        <translation>los párrafos de «%1» son iguales a los de «%2»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither a factory mode nor a file</source>
        <translation>«%1» no es ni un modo incluido ni un archivo</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither a factory mode nor a file; did you mean &apos;%2&apos;?</source>
        <translation>«%1» no es ni un modo incluido ni un archivo; ¿quiso decir «%2»?</translation>
    </message>
</context>
<context>
    <name>MRVScriptPdf</name>
    <message>
        <source>Nobody called &quot;%1&quot; speaks.</source>
        <translation>No habla nadie llamado «%1».</translation>
    </message>
    <message>
        <source>The script has no such pages, or nothing to print.</source>
        <translation>El guion no tiene esas páginas o nada que imprimir.</translation>
    </message>
</context>
<context>
    <name>MRVSearchOutcome</name>
    <message>
        <source>the search was given up in paragraph %1, where the expression can match in too many ways</source>
        <translation>la búsqueda se abandonó en el párrafo %1, donde la expresión puede coincidir de demasiadas maneras</translation>
    </message>
    <message>
        <source>the search was given up in paragraph %1, since it took too long</source>
        <translation>la búsqueda se abandonó en el párrafo %1, porque tardaba demasiado</translation>
    </message>
    <message>
        <source>the search was cancelled in paragraph %1</source>
        <translation>la búsqueda se canceló en el párrafo %1</translation>
    </message>
</context>
<context>
    <name>MRVSettings</name>
    <message>
        <source>Cannot write the file &quot;%1&quot;: it is locked</source>
        <translation>No se puede escribir el archivo «%1»: está bloqueado</translation>
    </message>
    <message>
        <source>The settings have no file</source>
        <translation>Los ajustes no tienen archivo</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not hold settings</source>
        <translation>El archivo «%1» no contiene ajustes</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a regular file</source>
        <translation>«%1» no es un archivo normal</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: it cannot be locked</source>
        <translation>No se puede escribir el archivo «%1»: no se puede bloquear</translation>
    </message>
</context>
<context>
    <name>MRVShortcut</name>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Fullscreen Only</source>
        <translation>Solo a pantalla completa</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+N</source>
        <translation>Ctrl+G,Ctrl+N</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Toggle Scratch Pad</source>
        <translation>Mostrar u ocultar el bloc de notas</translation>
    </message>
    <message>
        <source>Ctrl+Shift+0</source>
        <translation>Ctrl+Shift+0</translation>
    </message>
    <message>
        <source>Show Spelling</source>
        <translation>Mostrar la ortografía</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Q</source>
        <translation>Ctrl+G,Ctrl+Q</translation>
    </message>
    <message>
        <source>Learn Spelling</source>
        <translation>Aprender la ortografía</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+L</source>
        <translation>Ctrl+G,Ctrl+L</translation>
    </message>
    <message>
        <source>Ignore Spelling</source>
        <translation>Ignorar la ortografía</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+L</source>
        <translation>Ctrl+G,Ctrl+Shift+L</translation>
    </message>
    <message>
        <source>Show Citations</source>
        <translation>Mostrar las citas</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+O</source>
        <translation>Ctrl+G,Ctrl+O</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>Morvane Manual</source>
        <translation>Manual de Morvane</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Duplicate Item With SubDocuments</source>
        <translation>Duplicar el elemento con sus subdocumentos</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Duplicate Item Without SubDocuments</source>
        <translation>Duplicar el elemento sin sus subdocumentos</translation>
    </message>
    <message>
        <source>Ctrl+Shift+D</source>
        <translation>Ctrl+Shift+D</translation>
    </message>
    <message>
        <source>Toggle Main Toolbar</source>
        <translation>Mostrar u ocultar la barra de herramientas principal</translation>
    </message>
    <message>
        <source>Ctrl+Shift+6</source>
        <translation>Ctrl+Shift+6</translation>
    </message>
    <message>
        <source>Toggle Collections</source>
        <translation>Mostrar u ocultar las colecciones</translation>
    </message>
    <message>
        <source>Ctrl+Shift+9</source>
        <translation>Ctrl+Shift+9</translation>
    </message>
    <message>
        <source>Toggle Header Bar</source>
        <translation>Mostrar u ocultar la barra superior</translation>
    </message>
    <message>
        <source>Ctrl+Shift+4</source>
        <translation>Ctrl+Shift+4</translation>
    </message>
    <message>
        <source>Toggle Footer Bar</source>
        <translation>Mostrar u ocultar la barra inferior</translation>
    </message>
    <message>
        <source>Ctrl+Shift+5</source>
        <translation>Ctrl+Shift+5</translation>
    </message>
    <message>
        <source>Search in Project</source>
        <translation>Buscar en el proyecto</translation>
    </message>
    <message>
        <source>Ctrl+Shift+F</source>
        <translation>Ctrl+Shift+F</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Abrir en el editor</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Return</source>
        <translation>Ctrl+Shift+Return</translation>
    </message>
    <message>
        <source>Open in Other Editor</source>
        <translation>Abrir en el otro editor</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Return</source>
        <translation>Ctrl+Alt+Return</translation>
    </message>
    <message>
        <source>Open in External Editor</source>
        <translation>Abrir en un editor externo</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
    </message>
    <message>
        <source>Group Selection</source>
        <translation>Agrupar la selección</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+U</source>
        <translation>Ctrl+G,Ctrl+U</translation>
    </message>
    <message>
        <source>Ungroup Selection</source>
        <translation>Desagrupar la selección</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+B</source>
        <translation>Ctrl+G,Ctrl+B</translation>
    </message>
    <message>
        <source>Merge Documents</source>
        <translation>Combinar los documentos</translation>
    </message>
    <message>
        <source>Ctrl+Shift+M</source>
        <translation>Ctrl+Shift+M</translation>
    </message>
    <message>
        <source>Back in Editor</source>
        <translation>Atrás en el editor</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Forward in Editor</source>
        <translation>Adelante en el editor</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>Back in Other Editor</source>
        <translation>Atrás en el otro editor</translation>
    </message>
    <message>
        <source>Ctrl+G,Alt+Left</source>
        <translation>Ctrl+G,Alt+Left</translation>
    </message>
    <message>
        <source>Forward in Other Editor</source>
        <translation>Adelante en el otro editor</translation>
    </message>
    <message>
        <source>Ctrl+G,Alt+Right</source>
        <translation>Ctrl+G,Alt+Right</translation>
    </message>
    <message>
        <source>Use Label Color in Binder</source>
        <translation>Usar el color de la etiqueta en el archivador</translation>
    </message>
    <message>
        <source>Use Label Color in Icons</source>
        <translation>Usar el color de la etiqueta en los iconos</translation>
    </message>
    <message>
        <source>Use Label Color in Index Cards</source>
        <translation>Usar el color de la etiqueta en las fichas</translation>
    </message>
    <message>
        <source>Use Label Color in Outliner Rows</source>
        <translation>Usar el color de la etiqueta en las filas del esquema</translation>
    </message>
    <message>
        <source>Move Focus to Next Area</source>
        <translation>Mover el foco al área siguiente</translation>
    </message>
    <message>
        <source>F6</source>
        <translation>F6</translation>
    </message>
    <message>
        <source>Edit Metadata</source>
        <translation>Editar los metadatos</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+M</source>
        <translation>Ctrl+G,Ctrl+Shift+M</translation>
    </message>
    <message>
        <source>Reveal in Binder</source>
        <translation>Mostrar en el archivador</translation>
    </message>
    <message>
        <source>Ctrl+Alt+B</source>
        <translation>Ctrl+Alt+B</translation>
    </message>
    <message>
        <source>Show Auto-Complete List</source>
        <translation>Mostrar la lista de autocompletado</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+Space</source>
        <translation>Ctrl+G,Shift+Space</translation>
    </message>
    <message>
        <source>Show Project Notes</source>
        <translation>Mostrar las notas del proyecto</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+P</source>
        <translation>Ctrl+G,Ctrl+Shift+P</translation>
    </message>
    <message>
        <source>Show Labels on Index Cards</source>
        <translation>Mostrar las etiquetas en las fichas</translation>
    </message>
    <message>
        <source>Show Status on Index Cards</source>
        <translation>Mostrar el estado en las fichas</translation>
    </message>
    <message>
        <source>Show Keywords on Index Cards</source>
        <translation>Mostrar las palabras clave en las fichas</translation>
    </message>
    <message>
        <source>New Text</source>
        <translation>Texto nuevo</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Carpeta nueva</translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>New From First Template</source>
        <translation>Nuevo a partir de la primera plantilla</translation>
    </message>
    <message>
        <source>Ctrl+Alt+N</source>
        <translation>Ctrl+Alt+N</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Del</source>
        <translation>Ctrl+Shift+Del</translation>
    </message>
    <message>
        <source>Convert to Default Formatting</source>
        <translation>Convertir al formato predeterminado</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+0</source>
        <translation>Ctrl+G,Ctrl+0</translation>
    </message>
    <message>
        <source>Toggle Binder</source>
        <translation>Mostrar u ocultar el archivador</translation>
    </message>
    <message>
        <source>Ctrl+Shift+B</source>
        <translation>Ctrl+Shift+B</translation>
    </message>
    <message>
        <source>Toggle Inspector</source>
        <translation>Mostrar u ocultar el inspector</translation>
    </message>
    <message>
        <source>Ctrl+Shift+I</source>
        <translation>Ctrl+Shift+I</translation>
    </message>
    <message>
        <source>Toggle Keywords Panel</source>
        <translation>Mostrar u ocultar el panel de palabras clave</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+W</source>
        <translation>Ctrl+G,Ctrl+W</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>Activar o desactivar la pantalla completa</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>Toggle Ruler</source>
        <translation>Mostrar u ocultar la regla</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Toggle Format Bar</source>
        <translation>Mostrar u ocultar la barra de formato</translation>
    </message>
    <message>
        <source>Ctrl+Shift+7</source>
        <translation>Ctrl+Shift+7</translation>
    </message>
    <message>
        <source>Toggle Typewriter Scrolling</source>
        <translation>Activar o desactivar el desplazamiento de máquina de escribir</translation>
    </message>
    <message>
        <source>Ctrl+Shift+T</source>
        <translation>Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>No Split</source>
        <translation>Sin división</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Split Horizontally</source>
        <translation>Dividir horizontalmente</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Split Vertically</source>
        <translation>Dividir verticalmente</translation>
    </message>
    <message>
        <source>Ctrl+6</source>
        <translation>Ctrl+6</translation>
    </message>
    <message>
        <source>Show Text</source>
        <translation>Mostrar el texto</translation>
    </message>
    <message>
        <source>Ctrl+1</source>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show Corkboard</source>
        <translation>Mostrar el tablero de corcho</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show Outliner</source>
        <translation>Mostrar el esquema</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Lock Editor</source>
        <translation>Bloquear el editor</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+K</source>
        <translation>Ctrl+G,Ctrl+K</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Configurar página</translation>
    </message>
    <message>
        <source>Ctrl+Shift+P</source>
        <translation>Ctrl+Shift+P</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>Ctrl+Alt+P</source>
        <translation>Ctrl+Alt+P</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Close Project</source>
        <translation>Cerrar proyecto</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compilar</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Import Files</source>
        <translation>Importar archivos</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+I</source>
        <translation>Ctrl+G,Ctrl+I</translation>
    </message>
    <message>
        <source>Import Web Page</source>
        <translation>Importar página web</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+I</source>
        <translation>Ctrl+G,Ctrl+Shift+I</translation>
    </message>
    <message>
        <source>Export Files</source>
        <translation>Exportar archivos</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+E</source>
        <translation>Ctrl+G,Ctrl+E</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Buscar anterior</translation>
    </message>
    <message>
        <source>Shift+F3</source>
        <translation>Shift+F3</translation>
    </message>
    <message>
        <source>Use Selection for Find</source>
        <translation>Usar la selección para buscar</translation>
    </message>
    <message>
        <source>Ctrl+Shift+G</source>
        <translation>Ctrl+Shift+G</translation>
    </message>
    <message>
        <source>Jump to Selection</source>
        <translation>Saltar a la selección</translation>
    </message>
    <message>
        <source>Ctrl+Alt+J</source>
        <translation>Ctrl+Alt+J</translation>
    </message>
    <message>
        <source>Replace and Find Next</source>
        <translation>Reemplazar y buscar siguiente</translation>
    </message>
    <message>
        <source>Ctrl+H</source>
        <translation>Ctrl+H</translation>
    </message>
    <message>
        <source>Find in Synopsis</source>
        <translation>Buscar en la sinopsis</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Y</source>
        <translation>Ctrl+G,Ctrl+Y</translation>
    </message>
    <message>
        <source>Find by Format</source>
        <translation>Buscar por formato</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+F</source>
        <translation>Ctrl+G,Ctrl+F</translation>
    </message>
    <message>
        <source>Find Next by Format</source>
        <translation>Buscar siguiente por formato</translation>
    </message>
    <message>
        <source>F4</source>
        <translation>F4</translation>
    </message>
    <message>
        <source>Find Previous by Format</source>
        <translation>Buscar anterior por formato</translation>
    </message>
    <message>
        <source>Shift+F4</source>
        <translation>Shift+F4</translation>
    </message>
    <message>
        <source>Find in PDF</source>
        <translation>Buscar en el PDF</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+F</source>
        <translation>Ctrl+G,Ctrl+Shift+F</translation>
    </message>
    <message>
        <source>Find Next in PDF</source>
        <translation>Buscar siguiente en el PDF</translation>
    </message>
    <message>
        <source>Ctrl+G,F3</source>
        <translation>Ctrl+G,F3</translation>
    </message>
    <message>
        <source>Find Previous in PDF</source>
        <translation>Buscar anterior en el PDF</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+F3</source>
        <translation>Ctrl+G,Shift+F3</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Expandir todo</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl++</source>
        <translation>Ctrl+G,Ctrl++</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Contraer todo</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+-</source>
        <translation>Ctrl+G,Ctrl+-</translation>
    </message>
    <message>
        <source>Collapse to Current Level</source>
        <translation>Contraer hasta el nivel actual</translation>
    </message>
    <message>
        <source>Previous Container</source>
        <translation>Contenedor anterior</translation>
    </message>
    <message>
        <source>Ctrl+PgUp</source>
        <translation>Ctrl+PgUp</translation>
    </message>
    <message>
        <source>Next Container</source>
        <translation>Contenedor siguiente</translation>
    </message>
    <message>
        <source>Ctrl+PgDown</source>
        <translation>Ctrl+PgDown</translation>
    </message>
    <message>
        <source>Next Collection</source>
        <translation>Colección siguiente</translation>
    </message>
    <message>
        <source>Ctrl+Shift+PgDown</source>
        <translation>Ctrl+Shift+PgDown</translation>
    </message>
    <message>
        <source>Previous Collection</source>
        <translation>Colección anterior</translation>
    </message>
    <message>
        <source>Ctrl+Shift+PgUp</source>
        <translation>Ctrl+Shift+PgUp</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>Mover el elemento hacia arriba</translation>
    </message>
    <message>
        <source>Alt+Shift+Up</source>
        <translation>Alt+Shift+Up</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>Mover el elemento hacia abajo</translation>
    </message>
    <message>
        <source>Alt+Shift+Down</source>
        <translation>Alt+Shift+Down</translation>
    </message>
    <message>
        <source>Move Item Left</source>
        <translation>Mover el elemento a la izquierda</translation>
    </message>
    <message>
        <source>Alt+Shift+Left</source>
        <translation>Alt+Shift+Left</translation>
    </message>
    <message>
        <source>Move Item Right</source>
        <translation>Mover el elemento a la derecha</translation>
    </message>
    <message>
        <source>Alt+Shift+Right</source>
        <translation>Alt+Shift+Right</translation>
    </message>
    <message>
        <source>Copy Selected PDF Text</source>
        <translation>Copiar el texto seleccionado del PDF</translation>
    </message>
    <message>
        <source>Ctrl+Alt+C</source>
        <translation>Ctrl+Alt+C</translation>
    </message>
    <message>
        <source>Zoom to Page Size</source>
        <translation>Ajustar a la página completa</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>Zoom to Page Width</source>
        <translation>Ajustar al ancho de la página</translation>
    </message>
    <message>
        <source>Ctrl+Alt+0</source>
        <translation>Ctrl+Alt+0</translation>
    </message>
    <message>
        <source>Single Page</source>
        <translation>Una sola página</translation>
    </message>
    <message>
        <source>Single Page Continuous</source>
        <translation>Una sola página, continua</translation>
    </message>
    <message>
        <source>Play or Pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>Avance rápido</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rebobinar</translation>
    </message>
    <message>
        <source>F7</source>
        <translation>F7</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Crear instantánea</translation>
    </message>
    <message>
        <source>Ctrl+Alt+S</source>
        <translation>Ctrl+Alt+S</translation>
    </message>
    <message>
        <source>Take Snapshot With Title</source>
        <translation>Crear instantánea con título</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+S</source>
        <translation>Ctrl+Alt+Shift+S</translation>
    </message>
    <message>
        <source>Project Statistics</source>
        <translation>Estadísticas del proyecto</translation>
    </message>
    <message>
        <source>Ctrl+9</source>
        <translation>Ctrl+9</translation>
    </message>
    <message>
        <source>Text Statistics</source>
        <translation>Estadísticas del texto</translation>
    </message>
    <message>
        <source>Ctrl+8</source>
        <translation>Ctrl+8</translation>
    </message>
    <message>
        <source>Project Targets</source>
        <translation>Objetivos del proyecto</translation>
    </message>
    <message>
        <source>Ctrl+7</source>
        <translation>Ctrl+7</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Strikethrough</source>
        <translation>Tachado</translation>
    </message>
    <message>
        <source>Ctrl+Shift+X</source>
        <translation>Ctrl+Shift+X</translation>
    </message>
    <message>
        <source>Small Caps</source>
        <translation>Versalitas</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+M</source>
        <translation>Ctrl+G,Ctrl+M</translation>
    </message>
    <message>
        <source>Bigger Font</source>
        <translation>Fuente más grande</translation>
    </message>
    <message>
        <source>Ctrl+&gt;</source>
        <translation>Ctrl+&gt;</translation>
    </message>
    <message>
        <source>Smaller Font</source>
        <translation>Fuente más pequeña</translation>
    </message>
    <message>
        <source>Ctrl+&lt;</source>
        <translation>Ctrl+&lt;</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>Superíndice</translation>
    </message>
    <message>
        <source>Ctrl+G,Up</source>
        <translation>Ctrl+G,Up</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>Subíndice</translation>
    </message>
    <message>
        <source>Ctrl+G,Down</source>
        <translation>Ctrl+G,Down</translation>
    </message>
    <message>
        <source>Convert to Title Case</source>
        <translation>Convertir a mayúsculas de título</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+T</source>
        <translation>Ctrl+G,Ctrl+T</translation>
    </message>
    <message>
        <source>Convert to Smart Quotes</source>
        <translation>Convertir a comillas tipográficas</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+Q</source>
        <translation>Ctrl+G,Ctrl+Shift+Q</translation>
    </message>
    <message>
        <source>Convert to Straight Quotes</source>
        <translation>Convertir a comillas rectas</translation>
    </message>
    <message>
        <source>Convert Multiple Spaces to Single</source>
        <translation>Convertir los espacios múltiples en uno solo</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>Alinear a la izquierda</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Align Center</source>
        <translation>Centrar</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Justificar</translation>
    </message>
    <message>
        <source>Ctrl+J</source>
        <translation>Ctrl+J</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>Alinear a la derecha</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Increase Left Indent</source>
        <translation>Aumentar la sangría izquierda</translation>
    </message>
    <message>
        <source>Ctrl+G,Right</source>
        <translation>Ctrl+G,Right</translation>
    </message>
    <message>
        <source>Decrease Left Indent</source>
        <translation>Reducir la sangría izquierda</translation>
    </message>
    <message>
        <source>Ctrl+G,Left</source>
        <translation>Ctrl+G,Left</translation>
    </message>
    <message>
        <source>Increase First-Line Indent</source>
        <translation>Aumentar la sangría de primera línea</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+Right</source>
        <translation>Ctrl+G,Shift+Right</translation>
    </message>
    <message>
        <source>Decrease First-Line Indent</source>
        <translation>Reducir la sangría de primera línea</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+Left</source>
        <translation>Ctrl+G,Shift+Left</translation>
    </message>
    <message>
        <source>Single Line Spacing</source>
        <translation>Interlineado sencillo</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+1</source>
        <translation>Ctrl+G,Ctrl+1</translation>
    </message>
    <message>
        <source>Double Line Spacing</source>
        <translation>Interlineado doble</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+2</source>
        <translation>Ctrl+G,Ctrl+2</translation>
    </message>
    <message>
        <source>One and a Half Line Spacing</source>
        <translation>Interlineado de línea y media</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+5</source>
        <translation>Ctrl+G,Ctrl+5</translation>
    </message>
    <message>
        <source>Complete Word</source>
        <translation>Completar la palabra</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Space</source>
        <translation>Ctrl+Alt+Space</translation>
    </message>
    <message>
        <source>Complete Document Title</source>
        <translation>Completar el título del documento</translation>
    </message>
    <message>
        <source>Ctrl+G,Space</source>
        <translation>Ctrl+G,Space</translation>
    </message>
    <message>
        <source>Add Selection to Auto-Complete List</source>
        <translation>Añadir la selección a la lista de autocompletado</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+A</source>
        <translation>Ctrl+G,Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Show Invisible Characters</source>
        <translation>Mostrar los caracteres invisibles</translation>
    </message>
    <message>
        <source>Ctrl+Shift+8</source>
        <translation>Ctrl+Shift+8</translation>
    </message>
    <message>
        <source>Ghost Notes</source>
        <translation>Atenuar las notas</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+H</source>
        <translation>Ctrl+G,Ctrl+H</translation>
    </message>
    <message>
        <source>Split at Selection</source>
        <translation>Dividir en la selección</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Y</source>
        <translation>Ctrl+Shift+Y</translation>
    </message>
    <message>
        <source>Split With Selection as Title</source>
        <translation>Dividir con la selección como título</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+Y</source>
        <translation>Ctrl+Alt+Shift+Y</translation>
    </message>
    <message>
        <source>Set Selection as Title</source>
        <translation>Usar la selección como título</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+T</source>
        <translation>Ctrl+G,Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Insert Image</source>
        <translation>Insertar imagen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+P</source>
        <translation>Ctrl+G,Ctrl+P</translation>
    </message>
    <message>
        <source>Insert Morvane Link</source>
        <translation>Insertar enlace de Morvane</translation>
    </message>
    <message>
        <source>Ctrl+Shift+K</source>
        <translation>Ctrl+Shift+K</translation>
    </message>
    <message>
        <source>Insert Current Date and Time</source>
        <translation>Insertar la fecha y la hora actuales</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+D</source>
        <translation>Ctrl+G,Ctrl+D</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>Inline Annotation</source>
        <translation>Anotación en el texto</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+M</source>
        <translation>Ctrl+Alt+Shift+M</translation>
    </message>
    <message>
        <source>Inline Footnote</source>
        <translation>Nota al pie en el texto</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+O</source>
        <translation>Ctrl+Alt+Shift+O</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Ctrl+Alt+M</source>
        <translation>Ctrl+Alt+M</translation>
    </message>
    <message>
        <source>Footnote</source>
        <translation>Nota al pie</translation>
    </message>
    <message>
        <source>Ctrl+Alt+O</source>
        <translation>Ctrl+Alt+O</translation>
    </message>
    <message>
        <source>Script Mode</source>
        <translation>Modo de guion</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+R</source>
        <translation>Ctrl+G,Ctrl+R</translation>
    </message>
    <message>
        <source>Script Elements</source>
        <translation>Elementos de guion</translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Ctrl+B</source>
        <translation>Ctrl+B</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Ctrl+I</source>
        <translation>Ctrl+I</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Subrayado</translation>
    </message>
    <message>
        <source>Ctrl+U</source>
        <translation>Ctrl+U</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Z</source>
        <translation>Ctrl+Shift+Z</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Ctrl+X</source>
        <translation>Ctrl+X</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Ctrl+V</source>
        <translation>Ctrl+V</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Ctrl+A</translation>
    </message>
    <message>
        <source>Copy Font</source>
        <translation>Copiar la fuente</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+C</source>
        <translation>Ctrl+G,Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Paste Font</source>
        <translation>Pegar la fuente</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+V</source>
        <translation>Ctrl+G,Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>Copy Ruler</source>
        <translation>Copiar la regla</translation>
    </message>
    <message>
        <source>Paste Ruler</source>
        <translation>Pegar la regla</translation>
    </message>
    <message>
        <source>Copy Formatting</source>
        <translation>Copiar el formato</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+C</source>
        <translation>Ctrl+Alt+Shift+C</translation>
    </message>
    <message>
        <source>Paste Formatting</source>
        <translation>Pegar el formato</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+V</source>
        <translation>Ctrl+Alt+Shift+V</translation>
    </message>
    <message>
        <source>Preserve Formatting</source>
        <translation>Conservar el formato</translation>
    </message>
    <message>
        <source>Paste and Match Style</source>
        <translation>Pegar con el mismo estilo</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>Insert Non-Breaking Space</source>
        <translation>Insertar espacio de no separación</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Space</source>
        <translation>Ctrl+Shift+Space</translation>
    </message>
    <message>
        <source>Insert Paragraph Break</source>
        <translation>Insertar salto de párrafo</translation>
    </message>
    <message>
        <source>Insert Line Break</source>
        <translation>Insertar salto de línea</translation>
    </message>
    <message>
        <source>Shift+Return</source>
        <translation>Shift+Return</translation>
    </message>
    <message>
        <source>Insert Page Break</source>
        <translation>Insertar salto de página</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Return</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Resaltar</translation>
    </message>
    <message>
        <source>Ctrl+Shift+H</source>
        <translation>Ctrl+Shift+H</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+C</source>
        <translation>Ctrl+G,Ctrl+C</translation>
    </message>
    <message>
        <source>Edit Link</source>
        <translation>Editar enlace</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>Previous Document</source>
        <translation>Documento anterior</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>Next Document</source>
        <translation>Documento siguiente</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Down</translation>
    </message>
    <message>
        <source>Enclosing Group</source>
        <translation>Grupo contenedor</translation>
    </message>
    <message>
        <source>Alt+Home</source>
        <translation>Alt+Home</translation>
    </message>
    <message>
        <source>Editor Selection</source>
        <translation>Selección en el editor</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+J</source>
        <translation>Ctrl+G,Ctrl+J</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>Ir a</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+G</source>
        <translation>Ctrl+G,Ctrl+G</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>orden desconocida «%1»</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;; did you mean &apos;%2&apos;?</source>
        <translation>orden desconocida «%1»; ¿quería decir «%2»?</translation>
    </message>
</context>
<context>
    <name>MRVShortcutCheck</name>
    <message>
        <source>%1 is the key of both “%2” and “%3”.</source>
        <translation>%1 es el atajo tanto de «%2» como de «%3».</translation>
    </message>
    <message>
        <source>%1 of “%2” is never reached, as %3 is the key of “%4”.</source>
        <translation>%1 de «%2» no se alcanza nunca, ya que %3 es el atajo de «%4».</translation>
    </message>
    <message>
        <source>Desktops or input methods take %1, the key of “%2”.</source>
        <translation>%1 de «%2» es un atajo que usan los entornos de escritorio o los métodos de entrada.</translation>
    </message>
    <message>
        <source>%1 of “%2” begins with a key that writing needs.</source>
        <translation>%1 de «%2» empieza por una tecla necesaria para escribir.</translation>
    </message>
    <message>
        <source>The key of “%1” has no name and cannot be stored.</source>
        <translation>El atajo de «%1» no tiene nombre y se pierde al guardarlo.</translation>
    </message>
    <message>
        <source>removed (%1)</source>
        <translation>eliminado (%1)</translation>
    </message>
    <message>
        <source>added (%1)</source>
        <translation>añadido (%1)</translation>
    </message>
    <message>
        <source>“%1” -&gt; “%2”</source>
        <translation>«%1» -&gt; «%2»</translation>
    </message>
</context>
<context>
    <name>MRVShortcutInfo</name>
    <message>
        <source>no key</source>
        <translation>sin tecla</translation>
    </message>
</context>
<context>
    <name>MRVShortcutScheme</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Morvane</source>
        <translation>Morvane</translation>
    </message>
    <message>
        <source>Mac Morvane</source>
        <translation>Mac Morvane</translation>
    </message>
    <message>
        <source>Open Office</source>
        <translation>Open Office</translation>
    </message>
    <message>
        <source>Microsoft Word</source>
        <translation>Microsoft Word</translation>
    </message>
    <message>
        <source>it is not a shortcut scheme of a known version</source>
        <translation>no es un esquema de atajos de una versión conocida</translation>
    </message>
    <message>
        <source>it is not a shortcut scheme</source>
        <translation>no es un esquema de atajos</translation>
    </message>
    <message numerus="yes">
        <source>it is damaged or truncated; shortcuts that could be read: %n</source>
        <translation>
            <numerusform>está dañado o incompleto; se pudo leer %n atajo</numerusform>
            <numerusform>está dañado o incompleto; se pudieron leer %n atajos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: there is no such file, and no predefined scheme of that name</source>
        <translation>%1: no existe ningún archivo ni esquema predefinido con ese nombre</translation>
    </message>
    <message>
        <source>%1: there is no such file, and no predefined scheme of that name; did you mean &apos;%2&apos;?</source>
        <translation>%1: no existe ningún archivo ni esquema predefinido con ese nombre; ¿quiso decir «%2»?</translation>
    </message>
</context>
<context>
    <name>MRVSignature</name>
    <message>
        <source>no valid key is set to check it with</source>
        <translation>no hay ninguna clave válida con la que comprobarla</translation>
    </message>
    <message>
        <source>the signature cannot be read</source>
        <translation>no se puede leer la firma</translation>
    </message>
    <message>
        <source>it was made with another key</source>
        <translation>se creó con otra clave</translation>
    </message>
    <message>
        <source>it was altered</source>
        <translation>fue alterada</translation>
    </message>
</context>
<context>
    <name>MRVSourceEdit</name>
    <message>
        <source>the changes overlap or belong to another text</source>
        <translation>los cambios se solapan o corresponden a otro texto</translation>
    </message>
    <message>
        <source>the new text would not be read back as it is</source>
        <translation>el texto nuevo no se volvería a leer tal como es</translation>
    </message>
    <message>
        <source>the encoding %1 cannot be written back as it was</source>
        <translation>la codificación %1 no se puede volver a escribir como estaba</translation>
    </message>
    <message>
        <source>a file of a word processor is read, but not changed</source>
        <translation>un archivo de un procesador de textos se lee, pero no se modifica</translation>
    </message>
    <message>
        <source>others: %1</source>
        <translation>otros: %1</translation>
    </message>
    <message>
        <source>the encoding %1 does not have all characters of the new text</source>
        <translation>la codificación %1 no tiene todos los caracteres del texto nuevo</translation>
    </message>
    <message>
        <source>only HTML can be written as a whole with new formats</source>
        <translation>solo el HTML se puede escribir entero con formatos nuevos</translation>
    </message>
</context>
<context>
    <name>MRVSourceFile</name>
    <message>
        <source>the file has been changed meanwhile</source>
        <translation>el archivo se ha modificado entretanto</translation>
    </message>
    <message>
        <source>the backup cannot be made</source>
        <translation>no se puede crear la copia de seguridad</translation>
    </message>
</context>
<context>
    <name>MRVSourceMisfit</name>
    <message>
        <source>it does not fit into the markup</source>
        <translation>no cabe en el marcado</translation>
    </message>
    <message>
        <source>the encoding %1 does not have all its characters</source>
        <translation>la codificación %1 no tiene todos sus caracteres</translation>
    </message>
    <message>
        <source>there it cannot have this format</source>
        <translation>allí no puede tener este formato</translation>
    </message>
    <message>
        <source>the new text would not be read back as it is</source>
        <translation>el texto nuevo no se volvería a leer tal como es</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot; cannot be replaced: %3</source>
        <translation>línea %1: «%2» no se puede sustituir: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: %2</source>
        <translation>«%1» no se puede sustituir: %2</translation>
    </message>
    <message>
        <source>too many others near it cannot be made</source>
        <translation>demasiados otros cerca no son posibles</translation>
    </message>
</context>
<context>
    <name>MRVStagedFiles</name>
    <message>
        <source>the folder cannot be made</source>
        <translation>no se puede crear la carpeta</translation>
    </message>
    <message>
        <source>no file can be made here (%1)</source>
        <translation>aquí no se puede crear ningún archivo (%1)</translation>
    </message>
    <message>
        <source>a folder is in the file&apos;s place</source>
        <translation>hay una carpeta en el lugar del archivo</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>el archivo está protegido contra escritura</translation>
    </message>
    <message>
        <source>%1; the old file is kept as %2</source>
        <translation>%1; el archivo anterior se conserva como %2</translation>
    </message>
</context>
<context>
    <name>MRVTextFault</name>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
</context>
<context>
    <name>MRVTextFormat</name>
    <message>
        <source>The picture has no file name.</source>
        <translation>La imagen no tiene nombre de archivo.</translation>
    </message>
    <message>
        <source>The picture cannot be encoded for the file &quot;%1&quot;.</source>
        <translation>No se puede codificar la imagen para el archivo «%1».</translation>
    </message>
</context>
<context>
    <name>MRVTextPresetJson</name>
    <message>
        <source>&apos;%1&apos; is not a list of characters and paragraphs</source>
        <translation>«%1» no es una lista de characters y paragraphs</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a value of the property %2</source>
        <translation>«%1» no es un valor de la propiedad %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of the properties %2</source>
        <translation>«%1» no es ninguna de las propiedades %2</translation>
    </message>
</context>
<context>
    <name>MRVTextPresetScheme</name>
    <message>
        <source>The text presets are damaged, or were stored by another version</source>
        <translation>Los estilos de texto predefinidos están dañados o los guardó otra versión</translation>
    </message>
    <message>
        <source>%1 is not a preset file, or is damaged</source>
        <translation>%1 no es un archivo de estilos de texto predefinidos, o está dañado</translation>
    </message>
</context>
<context>
    <name>MRVTextQuery</name>
    <message>
        <source>%1 (at character %2)</source>
        <translation>%1 (en el carácter %2)</translation>
    </message>
</context>
<context>
    <name>MRVTextXhtmlExporter</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>There is no document to export to %1.</source>
        <translation>No hay ningún documento que exportar a %1.</translation>
    </message>
    <message>
        <source>There is no e-book page to export to %1.</source>
        <translation>No hay ninguna página de libro electrónico que exportar a %1.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be written: %2</source>
        <translation>No se puede escribir la imagen %1: %2</translation>
    </message>
</context>
<context>
    <name>MRVUnit</name>
    <message>
        <source> inch(es)</source>
        <translation> pulgada(s)</translation>
    </message>
    <message>
        <source> dm</source>
        <translation> dm</translation>
    </message>
    <message>
        <source> cm</source>
        <translation> cm</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> pi</source>
        <translation> pi</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
</context>
<context>
    <name>MRVUnreadablePicture</name>
    <message>
        <source>line %1: the picture %2 cannot be read: %3</source>
        <translation>línea %1: no se puede leer la imagen %2: %3</translation>
    </message>
    <message>
        <source>the picture %1 cannot be read: %2</source>
        <translation>no se puede leer la imagen %1: %2</translation>
    </message>
</context>
<context>
    <name>MRVUpdateDownloader</name>
    <message>
        <source>The address of the download is not valid.</source>
        <translation>La dirección de la descarga no es válida.</translation>
    </message>
    <message>
        <source>The server redirected the download to an address that is not safe.</source>
        <translation>El servidor redirigió la descarga a una dirección que no es segura.</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>%1 is all up to date.</source>
        <translation>%1 está al día.</translation>
    </message>
    <message>
        <source>The installer was changed after it had been downloaded, and will not be opened.</source>
        <translation>El instalador se modificó después de descargarse y no se abrirá.</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>The server takes too long.</source>
        <translation>El servidor tarda demasiado.</translation>
    </message>
</context>
<context>
    <name>MRVUpdateFeed</name>
    <message>
        <source>its element &quot;%1&quot; is not valid</source>
        <translation>su elemento «%1» no es válido</translation>
    </message>
</context>
<context>
    <name>MRVUpdateManager</name>
    <message>
        <source>&amp;Check for Updates...</source>
        <translation>&amp;Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Morvane Update</source>
        <translation>Actualización de Morvane</translation>
    </message>
    <message>
        <source>No active network connection found
You need internet connection to check for updates</source>
        <translation>No se encontró ninguna conexión de red activa
Se necesita conexión a Internet para buscar actualizaciones</translation>
    </message>
    <message>
        <source>The installer cannot be opened: %1</source>
        <translation>No se puede abrir el instalador: %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
</context>
<context>
    <name>MRVUpdateModel</name>
    <message>
        <source>it is not this installer&apos;s</source>
        <translation>no corresponde a este instalador</translation>
    </message>
    <message>
        <source>it was made for another file</source>
        <translation>se creó para otro archivo</translation>
    </message>
    <message>
        <source>Failed to open update.ini file to determine update URL location and version. Please contact %1 so we can fix this problem quickly.</source>
        <translation>No se pudo abrir el archivo update.ini para determinar la dirección y la versión de la actualización. Póngase en contacto con %1 para que podamos solucionar este problema cuanto antes.</translation>
    </message>
    <message>
        <source>The update XML file contained empty values. Please contact %1 so we can help resolve this issue quickly.</source>
        <translation>El archivo XML de la actualización contenía valores vacíos. Póngase en contacto con %1 para que podamos resolver este problema cuanto antes.</translation>
    </message>
    <message>
        <source>The update XML file names an installer that is not a plain file name. Please contact %1 so we can help resolve this issue quickly.</source>
        <translation>El archivo XML de la actualización indica un instalador cuyo nombre no es un simple nombre de archivo. Póngase en contacto con %1 para que podamos resolver este problema cuanto antes.</translation>
    </message>
    <message>
        <source>Unable to compare version numbers. Please contact %1 so we can help resolve this issue quickly</source>
        <translation>No se pueden comparar los números de versión. Póngase en contacto con %1 para que podamos resolver este problema cuanto antes</translation>
    </message>
    <message>
        <source>Could not open the downloaded file to validate it: </source>
        <translation>No se pudo abrir el archivo descargado para validarlo: </translation>
    </message>
    <message>
        <source>The download file could not be found on our server. Please contact %1 so we can help resolve this issue quickly.</source>
        <translation>No se encontró en nuestro servidor el archivo que se iba a descargar. Póngase en contacto con %1 para que podamos resolver este problema cuanto antes.</translation>
    </message>
    <message>
        <source>The downloaded xml update file is not integral. Please contact %1 for additional support if this does not work.</source>
        <translation>El archivo XML de actualización descargado no está íntegro. Póngase en contacto con %1 para obtener más ayuda si esto no funciona.</translation>
    </message>
    <message>
        <source>Failed to read the downloaded update.xml file. Please try running &apos;Check for Update...&apos; again. Please contact %1 for additional support if this does not work.</source>
        <translation>No se pudo leer el archivo update.xml descargado. Ejecute de nuevo «Buscar actualizaciones…». Póngase en contacto con %1 para obtener más ayuda si esto no funciona.</translation>
    </message>
    <message>
        <source>Morvane couldn&apos;t find the update on our server.
This is probably an error on our part.
Please report this to %1.</source>
        <translation>Morvane no encontró la actualización en nuestro servidor.
Probablemente se trate de un error nuestro.
Comuníquelo a %1.</translation>
    </message>
    <message>
        <source>The installer does not carry a valid signature (%1) and will not be opened. Please report this to %2.</source>
        <translation>El instalador no lleva una firma válida (%1) y no se abrirá. Comuníquelo a %2.</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: %2</source>
        <translation>No se puede escribir el archivo «%1»: %2</translation>
    </message>
    <message>
        <source>The update feed is not accepted: %1. Please report this to %2.</source>
        <translation>No se aceptan los datos de la actualización: %1. Comuníquelo a %2.</translation>
    </message>
    <message>
        <source>it does not say when it was made</source>
        <translation>la firma no dice cuándo se creó</translation>
    </message>
    <message>
        <source>it is older than one that was seen before</source>
        <translation>son más antiguos que otros ya recibidos</translation>
    </message>
    <message>
        <source>it is not what was signed</source>
        <translation>no son lo que se firmó</translation>
    </message>
    <message>
        <source>it is another application&apos;s</source>
        <translation>son de otra aplicación</translation>
    </message>
    <message>
        <source>it has expired</source>
        <translation>han caducado</translation>
    </message>
    <message>
        <source>it was made for another version</source>
        <translation>es de otra versión</translation>
    </message>
    <message>
        <source>The installer is not the one that the update feed describes, and will not be opened. Please report this to %1.</source>
        <translation>El instalador no es el que describen los datos de la actualización y no se abrirá. Comuníquelo a %1.</translation>
    </message>
    <message>
        <source>it is not over a hash, as that of a large file has to be</source>
        <translation>no es de un resumen criptográfico, como exige un archivo grande</translation>
    </message>
    <message>
        <source>it was made in the future</source>
        <translation>se hizo en el futuro</translation>
    </message>
    <message>
        <source>it does not say which application it is for</source>
        <translation>no dice para qué aplicación es</translation>
    </message>
</context>
<context>
    <name>MRVXmlReader</name>
    <message>
        <source>elements are nested more deeply than %1 levels</source>
        <translation>hay elementos anidados a más de %1 niveles</translation>
    </message>
    <message>
        <source>entities expand to too long a text</source>
        <translation>las entidades se expanden a demasiado texto</translation>
    </message>
    <message>
        <source>an element has too many attributes</source>
        <translation>un elemento tiene demasiados atributos</translation>
    </message>
    <message>
        <source>an element has two attributes of one name</source>
        <translation>un elemento tiene dos atributos con el mismo nombre</translation>
    </message>
    <message>
        <source>the document type has too many declarations</source>
        <translation>el tipo de documento tiene demasiadas declaraciones</translation>
    </message>
    <message>
        <source>the entity &apos;%1&apos; is in another file, and other files are not read</source>
        <translation>la entidad «%1» está en otro archivo, y los demás archivos no se leen</translation>
    </message>
    <message>
        <source>a document type declaration does not belong here</source>
        <translation>una declaración de tipo de documento no tiene cabida aquí</translation>
    </message>
    <message>
        <source>a tag is longer than %1 characters</source>
        <translation>una etiqueta tiene más de %1 caracteres</translation>
    </message>
    <message>
        <source>XML does not allow the character %1</source>
        <translation>XML no permite el carácter %1</translation>
    </message>
</context>
<context>
    <name>MRVZipReader</name>
    <message>
        <source>it does not exist</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it is damaged, or no ZIP archive</source>
        <translation>está dañado o no es un archivo ZIP</translation>
    </message>
    <message>
        <source>it holds too many files</source>
        <translation>contiene demasiados archivos</translation>
    </message>
    <message>
        <source>it is damaged: its files are larger than it is</source>
        <translation>está dañado: sus archivos son más grandes que él</translation>
    </message>
    <message>
        <source>the name of a file in it leads out of it: %1</source>
        <translation>el nombre de un archivo que contiene lleva fuera de él: %1</translation>
    </message>
    <message>
        <source>it holds two files of one name: %1</source>
        <translation>contiene dos archivos con el mismo nombre: %1</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>it is encrypted, or packed in an unknown way</source>
        <translation>está cifrado o comprimido de una forma desconocida</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está dañado</translation>
    </message>
</context>
<context>
    <name>MTranslator</name>
    <message>
        <source>A language can only be chosen while an application object exists</source>
        <translation>Solo se puede elegir un idioma mientras exista una aplicación</translation>
    </message>
    <message>
        <source>No translation into the language &quot;%1&quot; exists</source>
        <translation>No hay traducción al idioma «%1»</translation>
    </message>
    <message>
        <source>The translation &quot;%1&quot; cannot be read</source>
        <translation>No se puede leer la traducción «%1»</translation>
    </message>
</context>
<context>
    <name>MVersion</name>
    <message>
        <source>beta</source>
        <translation>beta</translation>
    </message>
    <message>
        <source>Version: </source>
        <translation>Versión: </translation>
    </message>
    <message>
        <source>Application: </source>
        <translation>Aplicación: </translation>
    </message>
    <message>
        <source>Build: </source>
        <translation>Compilación: </translation>
    </message>
    <message>
        <source>Executable: </source>
        <translation>Ejecutable: </translation>
    </message>
    <message>
        <source>Compiler: </source>
        <translation>Compilador: </translation>
    </message>
    <message>
        <source>Qt-Compiled: </source>
        <translation>Qt al compilar: </translation>
    </message>
    <message>
        <source>Qt-Runtime: </source>
        <translation>Qt en ejecución: </translation>
    </message>
    <message>
        <source>Created: </source>
        <translation>Creado: </translation>
    </message>
    <message>
        <source>Warning! Different Qt versions: compiled </source>
        <translation>¡Atención! Versiones de Qt distintas. Al compilar: </translation>
    </message>
    <message>
        <source> runtime: </source>
        <translation> En ejecución: </translation>
    </message>
</context>
<context>
    <name>MrvHttpReply</name>
    <message>
        <source>The proxy was not found</source>
        <translation>No se encontró el proxy</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>No se encontró el servidor %1</translation>
    </message>
    <message>
        <source>No connection to %1: %2</source>
        <translation>Sin conexión con %1: %2</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 no responde</translation>
    </message>
    <message>
        <source>Connection closed without an answer</source>
        <translation>La conexión se cerró sin respuesta</translation>
    </message>
    <message>
        <source>Connection closed before the end</source>
        <translation>La conexión se cerró antes del final</translation>
    </message>
    <message>
        <source>Connection closed before the end: %2</source>
        <translation>La conexión se cerró antes del final: %2</translation>
    </message>
    <message>
        <source>SSL handshake failed: %2</source>
        <translation>La negociación SSL falló: %2</translation>
    </message>
    <message>
        <source>%1 does not answer in HTTP: %2</source>
        <translation>%1 no responde en HTTP: %2</translation>
    </message>
    <message>
        <source>The address is not valid: %2</source>
        <translation>La dirección no es válida: %2</translation>
    </message>
    <message>
        <source>Network access is disabled.</source>
        <translation>El acceso a la red está desactivado.</translation>
    </message>
    <message>
        <source>Protocol &quot;%1&quot; is not supported</source>
        <translation>El protocolo «%1» no se admite</translation>
    </message>
    <message>
        <source>The address names no host</source>
        <translation>La dirección no nombra ningún servidor</translation>
    </message>
    <message>
        <source>Only requests that fetch something are supported</source>
        <translation>Solo se admiten solicitudes que obtienen algo</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Operación cancelada</translation>
    </message>
    <message>
        <source>The compressed data is damaged</source>
        <translation>Los datos comprimidos están dañados</translation>
    </message>
    <message>
        <source>The server sends too much before it lets one in</source>
        <translation>El servidor envía demasiado antes de aceptar la identificación</translation>
    </message>
    <message>
        <source>SSL handshake failed: %1</source>
        <translation>La negociación SSL falló: %1</translation>
    </message>
    <message>
        <source>Host requires authentication</source>
        <translation>El servidor requiere autenticación</translation>
    </message>
    <message>
        <source>Proxy requires authentication</source>
        <translation>El proxy requiere autenticación</translation>
    </message>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Error al transferir %1: el servidor respondió: %2</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes of headers</source>
        <translation>El servidor envía más de %1 bytes de encabezados</translation>
    </message>
    <message>
        <source>The server states two different lengths</source>
        <translation>El servidor indica dos longitudes distintas</translation>
    </message>
    <message>
        <source>The server states a length that is not a number</source>
        <translation>El servidor indica una longitud que no es un número</translation>
    </message>
    <message>
        <source>The encrypted connection was cut off</source>
        <translation>La conexión cifrada se cortó</translation>
    </message>
    <message>
        <source>No connection to the proxy %1: %2</source>
        <translation>Sin conexión con el proxy %1: %2</translation>
    </message>
    <message>
        <source>The server asks for a login of a kind that is not supported</source>
        <translation>El servidor requiere un tipo de autenticación que no se admite</translation>
    </message>
    <message>
        <source>The server sends more than %1 headers</source>
        <translation>El servidor envía más de %1 encabezados</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>OpenDocument Text</source>
        <translation>Texto OpenDocument</translation>
    </message>
    <message>
        <source>OpenDocument Text Template</source>
        <translation>Plantilla de texto OpenDocument</translation>
    </message>
    <message>
        <source>Rich Text Format</source>
        <translation>Formato de texto enriquecido</translation>
    </message>
    <message>
        <source>Microsoft Word</source>
        <translation>Microsoft Word</translation>
    </message>
    <message>
        <source>Office Open XML Document</source>
        <translation>Documento Office Open XML</translation>
    </message>
    <message>
        <source>Microsoft Document Template</source>
        <translation>Plantilla de documento de Microsoft</translation>
    </message>
    <message>
        <source>Adobe Portable Document Format</source>
        <translation>Adobe Portable Document Format</translation>
    </message>
    <message>
        <source>Adobe PostScript</source>
        <translation>Adobe PostScript</translation>
    </message>
    <message>
        <source>Adobe Encapsulated PostScript</source>
        <translation>PostScript encapsulado de Adobe</translation>
    </message>
    <message>
        <source>Windows Media</source>
        <translation>Windows Media</translation>
    </message>
    <message>
        <source>Microsoft Enhanced Metafile</source>
        <translation>Metaarchivo mejorado de Microsoft</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics</source>
        <translation>Gráfico vectorial escalable</translation>
    </message>
    <message>
        <source>Adobe Flash File Format</source>
        <translation>Formato de archivo Adobe Flash</translation>
    </message>
    <message>
        <source>Microsoft XML Paper Specification</source>
        <translation>Microsoft XML Paper Specification</translation>
    </message>
    <message>
        <source>HP-GL plotter language</source>
        <translation>Lenguaje de trazador HP-GL</translation>
    </message>
    <message>
        <source>Printer Command Language Format</source>
        <translation>Formato Printer Command Language</translation>
    </message>
    <message>
        <source>Hypertext Mark-up Language</source>
        <translation>Lenguaje de marcado de hipertexto</translation>
    </message>
    <message>
        <source>eXtensible HyperText Markup Language</source>
        <translation>Lenguaje de marcado de hipertexto extensible</translation>
    </message>
    <message>
        <source>Plain Text Format</source>
        <translation>Formato de texto sin formato</translation>
    </message>
    <message>
        <source>eXtensible Markup Language</source>
        <translation>Lenguaje de marcado extensible</translation>
    </message>
    <message>
        <source>Joint Photographic Experts Group</source>
        <translation>Joint Photographic Experts Group</translation>
    </message>
    <message>
        <source>Joint Photographic Group</source>
        <translation>Joint Photographic Group</translation>
    </message>
    <message>
        <source>Tagged Image File Format</source>
        <translation>Tagged Image File Format</translation>
    </message>
    <message>
        <source>Windows Bitmap Image</source>
        <translation>Imagen de mapa de bits de Windows</translation>
    </message>
    <message>
        <source>Graphical Interchange Format</source>
        <translation>Graphics Interchange Format</translation>
    </message>
    <message>
        <source>Portable Network Graphics</source>
        <translation>Portable Network Graphics</translation>
    </message>
    <message>
        <source>Truevision Targa Image</source>
        <translation>Imagen Truevision Targa</translation>
    </message>
    <message>
        <source>ZSoft IBM PC Paintbrush file</source>
        <translation>Archivo ZSoft IBM PC Paintbrush</translation>
    </message>
    <message>
        <source>ePub Book</source>
        <translation>Libro ePub</translation>
    </message>
    <message>
        <source>Amazon Kindle(Mobi) Book</source>
        <translation>Libro Amazon Kindle (Mobi)</translation>
    </message>
    <message>
        <source>Final Draft</source>
        <translation>Final Draft</translation>
    </message>
    <message>
        <source>OPML Format</source>
        <translation>Formato OPML</translation>
    </message>
    <message>
        <source>Mind Mapping Format</source>
        <translation>Formato de mapa mental</translation>
    </message>
    <message>
        <source>Multimarkdown Format</source>
        <translation>Formato MultiMarkdown</translation>
    </message>
    <message>
        <source>Multimarkdown to HTML</source>
        <translation>MultiMarkdown a HTML</translation>
    </message>
    <message>
        <source>Multimarkdown to LaTeX</source>
        <translation>MultiMarkdown a LaTeX</translation>
    </message>
    <message>
        <source>Multimarkdown to OPML</source>
        <translation>MultiMarkdown a OPML</translation>
    </message>
    <message>
        <source>Multimarkdown to FODT</source>
        <translation>MultiMarkdown a FODT</translation>
    </message>
    <message>
        <source>Doc2Any</source>
        <translation>Doc2Any</translation>
    </message>
    <message>
        <source>Morvane</source>
        <translation>Morvane</translation>
    </message>
    <message>
        <source>RTF-Based</source>
        <translation>Basado en RTF</translation>
    </message>
    <message>
        <source>PDF Document via WebKit</source>
        <translation>Documento PDF mediante WebKit</translation>
    </message>
    <message>
        <source>PDF Document via Microsoft Office</source>
        <translation>Documento PDF mediante Microsoft Office</translation>
    </message>
    <message>
        <source>PDF Document via Internet Explorer</source>
        <translation>Documento PDF mediante Internet Explorer</translation>
    </message>
    <message>
        <source>Plain Text</source>
        <translation>Texto sin formato</translation>
    </message>
    <message>
        <source>Webpage Complete (MHT)</source>
        <translation>Página web completa (MHT)</translation>
    </message>
    <message>
        <source>Titles Only</source>
        <translation>Solo títulos</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Sinopsis</translation>
    </message>
    <message>
        <source>Main Text(with Synopsis)</source>
        <translation>Texto principal (con sinopsis)</translation>
    </message>
    <message>
        <source>Notes (with Synopsis)</source>
        <translation>Notas (con sinopsis)</translation>
    </message>
    <message>
        <source>File Download</source>
        <translation>Descarga de archivo</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Redirect to %1 ?</source>
        <translation>¿Redirigir a %1?</translation>
    </message>
    <message>
        <source>One or more SSL errors has occurred: %1</source>
        <translation>Se han producido uno o más errores de SSL: %1</translation>
    </message>
    <message>
        <source>Return: %1</source>
        <translation>Intro: %1</translation>
    </message>
    <message>
        <source>Tab in an empty line: %1</source>
        <translation>Tab en una línea vacía: %1</translation>
    </message>
    <message>
        <source>Tab: %1</source>
        <translation>Tab: %1</translation>
    </message>
    <message>
        <source>left indent %1</source>
        <translation>sangría izquierda %1</translation>
    </message>
    <message>
        <source>right indent %1</source>
        <translation>sangría derecha %1</translation>
    </message>
    <message>
        <source>first line %1</source>
        <translation>primera línea %1</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>antes %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>después %1</translation>
    </message>
    <message>
        <source>underlined twice</source>
        <translation>subrayado doble</translation>
    </message>
    <message>
        <source>blanks not underlined</source>
        <translation>espacios sin subrayar</translation>
    </message>
    <message>
        <source>capitals</source>
        <translation>mayúsculas</translation>
    </message>
    <message>
        <source>in parentheses</source>
        <translation>entre paréntesis</translation>
    </message>
    <message>
        <source>stays with the next</source>
        <translation>permanece con el siguiente</translation>
    </message>
    <message>
        <source>allows tabs</source>
        <translation>permite tabulaciones</translation>
    </message>
    <message>
        <source>offers the project’s phrases</source>
        <translation>ofrece las expresiones del proyecto</translation>
    </message>
    <message>
        <source>collects phrases</source>
        <translation>recopila expresiones</translation>
    </message>
    <message>
        <source>capitals up to %1</source>
        <translation>mayúsculas hasta %1</translation>
    </message>
    <message>
        <source>phrases begin after %1</source>
        <translation>las expresiones empiezan después de %1</translation>
    </message>
    <message>
        <source>phrases end before %1</source>
        <translation>las expresiones terminan antes de %1</translation>
    </message>
    <message>
        <source>aligned to the centre</source>
        <translation>centrado</translation>
    </message>
    <message>
        <source>aligned right</source>
        <translation>alineado a la derecha</translation>
    </message>
    <message>
        <source>aligned to both sides</source>
        <translation>justificado</translation>
    </message>
    <message>
        <source>aligned left</source>
        <translation>alineado a la izquierda</translation>
    </message>
    <message>
        <source>a phrase is followed by a next line</source>
        <translation>a una expresión le sigue una línea nueva</translation>
    </message>
    <message>
        <source>a phrase is followed by a tab</source>
        <translation>a una expresión le sigue una tabulación</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>negrita</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>cursiva</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>subrayado</translation>
    </message>
    <message>
        <source>lines exactly %1</source>
        <translation>líneas de exactamente %1</translation>
    </message>
    <message>
        <source>lines at least %1</source>
        <translation>líneas de al menos %1</translation>
    </message>
    <message>
        <source>line spacing %1</source>
        <translation>interlineado %1</translation>
    </message>
    <message>
        <source>tab at %1</source>
        <translation>tabulación en %1</translation>
    </message>
    <message>
        <source>inserts %1</source>
        <translation>inserta %1</translation>
    </message>
    <message>
        <source>offers %1</source>
        <translation>ofrece %1</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <source>the whole document was laid out anew: %1</source>
        <translation>se ha vuelto a componer todo el documento: %1</translation>
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
</context>
<context>
    <name>MRVFinalDraft</name>
    <message>
        <source>this is not a Final Draft document</source>
        <translation>no es un documento de Final Draft</translation>
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
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
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
    <name>MRVScriptFile</name>
    <message>
        <source>unknown type of script</source>
        <translation>tipo de guion desconocido</translation>
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
        <source>Cannot read the file &quot;%1&quot;: %2</source>
        <translation>No se puede leer el archivo «%1»: %2</translation>
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
    <name>MRVSourceEdit</name>
    <message>
        <source>the changes overlap or belong to another text</source>
        <translation>los cambios se solapan o corresponden a otro texto</translation>
    </message>
    <message>
        <source>the change in paragraph %1 does not fit into the markup there</source>
        <translation>el cambio en el párrafo %1 no encaja en el marcado de ese lugar</translation>
    </message>
    <message>
        <source>the new text would not be read back as it is</source>
        <translation>el texto nuevo no se volvería a leer tal como es</translation>
    </message>
    <message>
        <source>the encoding %1 does not have all characters of the new text</source>
        <translation>la codificación %1 no tiene todos los caracteres del texto nuevo</translation>
    </message>
    <message>
        <source>the encoding %1 cannot be written back as it was</source>
        <translation>la codificación %1 no se puede volver a escribir como estaba</translation>
    </message>
    <message>
        <source>a file of a word processor is read, but not changed</source>
        <translation>un archivo de un procesador de textos se lee, pero no se modifica</translation>
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
    <name>MRVStagedFiles</name>
    <message>
        <source>the folder cannot be made</source>
        <translation>no se puede crear la carpeta</translation>
    </message>
    <message>
        <source>no file can be made here</source>
        <translation>aquí no se puede crear ningún archivo</translation>
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
    <name>MRVTextPresetMgr</name>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
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
        <source>Checking for updates...</source>
        <translation>Buscando actualizaciones…</translation>
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
</context>
<context>
    <name>MRVUpdateModel</name>
    <message>
        <source>no valid key is set to check it with</source>
        <translation>no hay ninguna clave válida con la que comprobarla</translation>
    </message>
    <message>
        <source>the installer cannot be read</source>
        <translation>no se puede leer el instalador</translation>
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
        <source>it is not this installer&apos;s</source>
        <translation>no corresponde a este instalador</translation>
    </message>
    <message>
        <source>its comment was altered</source>
        <translation>su comentario fue alterado</translation>
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

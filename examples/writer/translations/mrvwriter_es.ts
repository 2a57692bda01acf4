<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message>
        <source>Free some space, or choose another disk.</source>
        <translation>Libere espacio o elija otro disco.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Check whether it was moved or has another name.</source>
        <translation>Compruebe si se ha movido o tiene otro nombre.</translation>
    </message>
    <message>
        <source>Close it in the other program, and try again.</source>
        <translation>Ciérrelo en el otro programa e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>A backup of the file may help.</source>
        <translation>Una copia de seguridad del archivo puede ayudar.</translation>
    </message>
    <message>
        <source>Divide it into several parts.</source>
        <translation>Divídalo en varias partes.</translation>
    </message>
    <message>
        <source>Install the program, and try again.</source>
        <translation>Instale el programa e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>El habitual</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>A5</source>
        <translation>A5</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>Carta EE. UU.</translation>
    </message>
    <message>
        <source>Several are separated by semicolons</source>
        <translation>Si hay varios, sepárelos con punto y coma</translation>
    </message>
    <message>
        <source>A tag such as en or pt-BR</source>
        <translation>Un código como es o pt-BR</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormato:</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Archivo:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Authors:</source>
        <translation>A&amp;utores:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>Co&amp;ver:</source>
        <translation>Cu&amp;bierta:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>&amp;Comments become notes</source>
        <translation>&amp;Convertir comentarios en notas</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>The manuscript could not be exported.</source>
        <translation>No se pudo exportar el manuscrito.</translation>
    </message>
    <message>
        <source>The manuscript was exported to %1.</source>
        <translation>El manuscrito se exportó a %1.</translation>
    </message>
    <message>
        <source>Exporting to %1...</source>
        <translation>Escribiendo %1...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>E-book (EPUB 3)</source>
        <translation>Libro electrónico (EPUB 3)</translation>
    </message>
    <message>
        <source>E-book for older readers (EPUB 2)</source>
        <translation>Libro electrónico para lectores antiguos (EPUB 2)</translation>
    </message>
    <message>
        <source>PDF as a book</source>
        <translation>PDF como libro</translation>
    </message>
    <message>
        <source>PDF as a manuscript for publishers</source>
        <translation>PDF como manuscrito para editoriales</translation>
    </message>
    <message>
        <source>Web page (XHTML)</source>
        <translation>Página web (XHTML)</translation>
    </message>
    <message>
        <source>Script (PDF)</source>
        <translation>Guion (PDF)</translation>
    </message>
    <message>
        <source>Script (Fountain)</source>
        <translation>Guion (Fountain)</translation>
    </message>
    <message>
        <source>Script (Final Draft)</source>
        <translation>Guion (Final Draft)</translation>
    </message>
    <message>
        <source>Script as an e-book (EPUB 3)</source>
        <translation>Guion como libro electrónico (EPUB 3)</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>notes in the margin that a script has no place for: %1</source>
        <translation>notas al margen para las que un guion no tiene lugar: %1</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Texto sin formato</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Reemplazar con</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Replace All...</source>
        <translation>Reemplazar todo...</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Palabras completas</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <source>The text is a regular expression; $1 stands for its first group.</source>
        <translation>El texto es una expresión regular; $1 representa su primer grupo.</translation>
    </message>
    <message>
        <source>Any quotes and dashes</source>
        <translation>Cualquier comilla y guion</translation>
    </message>
    <message>
        <source>Straight and curly quotes, hyphens and dashes count as the same.</source>
        <translation>Las comillas rectas y tipográficas, los guiones y las rayas cuentan como iguales.</translation>
    </message>
    <message>
        <source>Any accents</source>
        <translation>Cualquier acento</translation>
    </message>
    <message>
        <source>Letters count as the same with and without accents.</source>
        <translation>Las letras con y sin acento cuentan como iguales.</translation>
    </message>
    <message>
        <source>Across paragraphs</source>
        <translation>Entre párrafos</translation>
    </message>
    <message>
        <source>With expressions: \n is the end of a paragraph.</source>
        <translation>Con expresiones: \n es el final de un párrafo.</translation>
    </message>
    <message>
        <source>In selection</source>
        <translation>En la selección</translation>
    </message>
    <message>
        <source>Keep capitals</source>
        <translation>Conservar mayúsculas</translation>
    </message>
    <message>
        <source>The new text takes over how the old one is capitalized.</source>
        <translation>El texto nuevo adopta las mayúsculas del anterior.</translation>
    </message>
    <message>
        <source>Invalid expression</source>
        <translation>Expresión no válida</translation>
    </message>
    <message>
        <source>Search too costly</source>
        <translation>Búsqueda demasiado costosa</translation>
    </message>
    <message numerus="yes">
        <source>%n find(s)</source>
        <translation>
            <numerusform>%n resultado</numerusform>
            <numerusform>%n resultados</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1, from the other end</source>
        <translation>%1, desde el otro extremo</translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>%n reemplazo</numerusform>
            <numerusform>%n reemplazos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FontButton</name>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>family and size of a font</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>ManuscriptEditor</name>
    <message>
        <source>Manuscript</source>
        <translation>Manuscrito</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
</context>
<context>
    <name>ManuscriptFile</name>
    <message>
        <source>Morvane document</source>
        <translation>Documento de Morvane</translation>
    </message>
    <message>
        <source>HTML page</source>
        <translation>Página HTML</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Texto sin formato</translation>
    </message>
    <message>
        <source>Fountain script</source>
        <translation>Guion de Fountain</translation>
    </message>
    <message>
        <source>Final Draft script</source>
        <translation>Guion de Final Draft</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Manuscripts</source>
        <translation>Manuscritos</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>%1 has no suffix of a format.</source>
        <translation>%1 no tiene la extensión de ningún formato.</translation>
    </message>
    <message>
        <source>%1; read as Windows-1252</source>
        <translation>%1; leído como Windows-1252</translation>
    </message>
    <message>
        <source>Metadata: %1</source>
        <translation>Metadatos: %1</translation>
    </message>
    <message>
        <source>The page&apos;s own structure, classes and style sheets</source>
        <translation>La estructura, las clases y las hojas de estilo propias de la página</translation>
    </message>
    <message>
        <source>What the Final Draft document holds besides the script, such as its cast, revisions and tags</source>
        <translation>Lo que el documento de Final Draft contiene además del guion, como el reparto, las revisiones y las etiquetas</translation>
    </message>
</context>
<context>
    <name>NotesPanel</name>
    <message>
        <source>Footnote</source>
        <translation>Nota al pie</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>&amp;Remove Note</source>
        <translation>&amp;Quitar nota</translation>
    </message>
    <message>
        <source>Comments and footnotes</source>
        <translation>Comentarios y notas al pie</translation>
    </message>
    <message>
        <source>Text of the note</source>
        <translation>Texto de la nota</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>Comment: its text</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>No note at the caret</source>
        <translation>No hay ninguna nota en el cursor</translation>
    </message>
    <message>
        <source>There is no text here for a note</source>
        <translation>Aquí no hay texto para una nota</translation>
    </message>
</context>
<context>
    <name>PathEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Words of a setting or its description</source>
        <translation>Palabras de un ajuste o de su descripción</translation>
    </message>
    <message>
        <source>Groups of settings</source>
        <translation>Grupos de ajustes</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Ningún ajuste contiene estas palabras.</translation>
    </message>
    <message>
        <source>Not all settings could be stored.</source>
        <translation>No se pudieron guardar todos los ajustes.</translation>
    </message>
</context>
<context>
    <name>ReplacePreview</name>
    <message>
        <source>Replace All</source>
        <translation>Reemplazar todo</translation>
    </message>
    <message>
        <source>What is ticked will be replaced:</source>
        <translation>Se reemplazará lo que esté marcado:</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n</source>
        <translation>
            <numerusform>Reemplazar %n</numerusform>
            <numerusform>Reemplazar %n</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;All or None</source>
        <translation>&amp;Todo o nada</translation>
    </message>
</context>
<context>
    <name>SettingEditor</name>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Go back to the default: %1</source>
        <translation>Volver al valor predeterminado: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a setting and what is wrong with its value</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ShortcutEditor</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Órdenes</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Guardar co&amp;mo...</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>&amp;Scheme:</source>
        <translation>&amp;Esquema:</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>Bu&amp;scar:</translation>
    </message>
    <message>
        <source>&amp;Keys:</source>
        <translation>&amp;Teclas:</translation>
    </message>
    <message>
        <source>Reset A&amp;ll</source>
        <translation>Restablecer t&amp;odo</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Import Shortcuts</source>
        <translation>Importar atajos</translation>
    </message>
    <message>
        <source>Shortcut schemes (*.%1)</source>
        <translation>Esquemas de atajos (*.%1)</translation>
    </message>
    <message>
        <source>Save Shortcuts</source>
        <translation>Guardar atajos</translation>
    </message>
    <message>
        <source>Shortcut schemes (*.%1);;Text (*.txt)</source>
        <translation>Esquemas de atajos (*.%1);;Texto (*.txt)</translation>
    </message>
    <message>
        <source>Some keys will not work:</source>
        <translation>Algunas teclas no funcionarán:</translation>
    </message>
    <message>
        <source>Store them anyway?</source>
        <translation>¿Guardarlas de todos modos?</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>&amp;Check for Updates...</source>
        <translation>&amp;Buscar actualizaciones...</translation>
    </message>
</context>
<context>
    <name>WriterWindow</name>
    <message>
        <source>The file cannot be opened.</source>
        <translation>No se puede abrir el archivo.</translation>
    </message>
    <message>
        <source>The file was opened, but not all of it could be read as it is.</source>
        <translation>Se abrió el archivo, pero no todo se pudo leer tal como es.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened here. Replace what was written there?</source>
        <translation>Otro programa cambió %1 desde que se abrió aquí. ¿Desea reemplazar lo que se escribió allí?</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>%1 cannot hold all of the manuscript. A Morvane document can.</source>
        <translation>%1 no puede contener todo el manuscrito. Un documento de Morvane sí.</translation>
    </message>
    <message>
        <source>The manuscript is not saved. The file is as it was before.</source>
        <translation>El manuscrito no se ha guardado. El archivo está como estaba antes.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Save the changes of %1?</source>
        <translation>¿Guardar los cambios de %1?</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recuperación</translation>
    </message>
    <message>
        <source>The program ended without saving %1. Open what was kept on %2?</source>
        <translation>El programa terminó sin guardar %1. ¿Abrir lo que se conservó el %2?</translation>
    </message>
    <message>
        <source>Insert Picture</source>
        <translation>Insertar imagen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Guardar co&amp;mo...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar t&amp;odo</translation>
    </message>
    <message>
        <source>&amp;Find and Replace</source>
        <translation>&amp;Buscar y reemplazar</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Buscar &amp;anterior</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>Preferenc&amp;ias...</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation>Atajos de tec&amp;lado...</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormato</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Negrita</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Cursiva</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Subrayado</translation>
    </message>
    <message>
        <source>&amp;Strikethrough</source>
        <translation>&amp;Tachado</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Preajustes</translation>
    </message>
    <message>
        <source>Bulleted &amp;List</source>
        <translation>&amp;Lista con viñetas</translation>
    </message>
    <message>
        <source>&amp;Numbered List</source>
        <translation>Lista n&amp;umerada</translation>
    </message>
    <message>
        <source>&amp;Move Item Inward</source>
        <translation>&amp;Mover el elemento hacia dentro</translation>
    </message>
    <message>
        <source>Move Item &amp;Outward</source>
        <translation>Mover el elemento hacia &amp;fuera</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertar</translation>
    </message>
    <message>
        <source>&amp;Comment</source>
        <translation>&amp;Comentario</translation>
    </message>
    <message>
        <source>&amp;Footnote</source>
        <translation>&amp;Nota al pie</translation>
    </message>
    <message>
        <source>&amp;Picture...</source>
        <translation>&amp;Imagen...</translation>
    </message>
    <message>
        <source>&amp;Script</source>
        <translation>&amp;Guion</translation>
    </message>
    <message>
        <source>&amp;Prose</source>
        <translation>&amp;Prosa</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Pantalla completa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Script element</source>
        <translation>Elemento del guion</translation>
    </message>
    <message>
        <source>Comments and Footnotes</source>
        <translation>Comentarios y notas al pie</translation>
    </message>
    <message>
        <source>No copy can be kept for a crash: %1</source>
        <translation>No se puede conservar una copia para un fallo: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln word(s)</source>
        <translation>
            <numerusform>%Ln palabra</numerusform>
            <numerusform>%Ln palabras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln character(s)</source>
        <translation>
            <numerusform>%Ln carácter</numerusform>
            <numerusform>%Ln caracteres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected word(s)</source>
        <translation>
            <numerusform>%Ln palabra seleccionada</numerusform>
            <numerusform>%Ln palabras seleccionadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln page(s)</source>
        <translation>
            <numerusform>%Ln página</numerusform>
            <numerusform>%Ln páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>About Morvane Writer</source>
        <translation>Acerca de Morvane Writer</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Morvane Writer %1&lt;/h3&gt;&lt;p&gt;A small writing program, which shows what the base library of Morvane does for an application.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Morvane Writer %1&lt;/h3&gt;&lt;p&gt;Un pequeño programa de escritura que muestra lo que la biblioteca base de Morvane hace por una aplicación.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>The manuscript is saved, but not all of it could be taken along.</source>
        <translation>El manuscrito está guardado, pero no se pudo incluir todo.</translation>
    </message>
    <message>
        <source>&amp;Element...</source>
        <translation>&amp;Elemento...</translation>
    </message>
    <message>
        <source>The picture %1 is not inserted.</source>
        <translation>La imagen %1 no se inserta.</translation>
    </message>
    <message>
        <source>%1 is open in another window.</source>
        <translation>%1 está abierto en otra ventana.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A small writing program.</source>
        <translation>Un pequeño programa de escritura.</translation>
    </message>
    <message>
        <source>The manuscripts to open.</source>
        <translation>Los manuscritos que se abrirán.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message>
        <source>Free some space, or choose another disk.</source>
        <translation>Geben Sie Speicherplatz frei oder wählen Sie einen anderen Datenträger.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Check whether it was moved or has another name.</source>
        <translation>Prüfen Sie, ob es verschoben wurde oder anders heißt.</translation>
    </message>
    <message>
        <source>Close it in the other program, and try again.</source>
        <translation>Schließen Sie es im anderen Programm und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>A backup of the file may help.</source>
        <translation>Eine Sicherungskopie der Datei kann helfen.</translation>
    </message>
    <message>
        <source>Divide it into several parts.</source>
        <translation>Teilen Sie es in mehrere Teile.</translation>
    </message>
    <message>
        <source>Install the program, and try again.</source>
        <translation>Installieren Sie das Programm und versuchen Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Wie üblich</translation>
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
        <translation>US Letter</translation>
    </message>
    <message>
        <source>Several are separated by semicolons</source>
        <translation>Mehrere werden durch Semikolons getrennt</translation>
    </message>
    <message>
        <source>A tag such as en or pt-BR</source>
        <translation>Ein Kürzel wie de oder pt-BR</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Datei:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Authors:</source>
        <translation>&amp;Autoren:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>Co&amp;ver:</source>
        <translation>&amp;Umschlag:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>&amp;Comments become notes</source>
        <translation>&amp;Kommentare werden Anmerkungen</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 gibt es schon. Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>The manuscript could not be exported.</source>
        <translation>Das Manuskript konnte nicht exportiert werden.</translation>
    </message>
    <message>
        <source>The manuscript was exported to %1.</source>
        <translation>Das Manuskript wurde nach %1 exportiert.</translation>
    </message>
    <message>
        <source>Exporting to %1...</source>
        <translation>%1 wird geschrieben ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>E-book (EPUB 3)</source>
        <translation>E-Book (EPUB 3)</translation>
    </message>
    <message>
        <source>E-book for older readers (EPUB 2)</source>
        <translation>E-Book für ältere Lesegeräte (EPUB 2)</translation>
    </message>
    <message>
        <source>PDF as a book</source>
        <translation>PDF als Buch</translation>
    </message>
    <message>
        <source>PDF as a manuscript for publishers</source>
        <translation>PDF als Manuskript für Verlage</translation>
    </message>
    <message>
        <source>Web page (XHTML)</source>
        <translation>Webseite (XHTML)</translation>
    </message>
    <message>
        <source>Script (PDF)</source>
        <translation>Drehbuch (PDF)</translation>
    </message>
    <message>
        <source>Script (Fountain)</source>
        <translation>Drehbuch (Fountain)</translation>
    </message>
    <message>
        <source>Script (Final Draft)</source>
        <translation>Drehbuch (Final Draft)</translation>
    </message>
    <message>
        <source>Script as an e-book (EPUB 3)</source>
        <translation>Drehbuch als E-Book (EPUB 3)</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>notes in the margin that a script has no place for: %1</source>
        <translation>Anmerkungen am Rand, für die ein Drehbuch keinen Platz hat: %1</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Reiner Text</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächste</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace All...</source>
        <translation>Alle ersetzen ...</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß und klein beachten</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Ganze Wörter</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>The text is a regular expression; $1 stands for its first group.</source>
        <translation>Der Text ist ein regulärer Ausdruck; $1 steht für seine erste Gruppe.</translation>
    </message>
    <message>
        <source>Any quotes and dashes</source>
        <translation>Beliebige Anführungszeichen und Striche</translation>
    </message>
    <message>
        <source>Straight and curly quotes, hyphens and dashes count as the same.</source>
        <translation>Gerade und typografische Anführungszeichen, Binde- und Gedankenstriche gelten als gleich.</translation>
    </message>
    <message>
        <source>Any accents</source>
        <translation>Beliebige Akzente</translation>
    </message>
    <message>
        <source>Letters count as the same with and without accents.</source>
        <translation>Buchstaben mit und ohne Akzent gelten als gleich.</translation>
    </message>
    <message>
        <source>Across paragraphs</source>
        <translation>Über Absätze hinweg</translation>
    </message>
    <message>
        <source>With expressions: \n is the end of a paragraph.</source>
        <translation>Mit Ausdrücken: \n ist das Ende eines Absatzes.</translation>
    </message>
    <message>
        <source>In selection</source>
        <translation>In der Auswahl</translation>
    </message>
    <message>
        <source>Keep capitals</source>
        <translation>Großschreibung behalten</translation>
    </message>
    <message>
        <source>The new text takes over how the old one is capitalized.</source>
        <translation>Der neue Text übernimmt die Großschreibung des alten.</translation>
    </message>
    <message>
        <source>Invalid expression</source>
        <translation>Ungültiger Ausdruck</translation>
    </message>
    <message>
        <source>Search too costly</source>
        <translation>Suche zu aufwendig</translation>
    </message>
    <message numerus="yes">
        <source>%n find(s)</source>
        <translation>
            <numerusform>%n Fund</numerusform>
            <numerusform>%n Funde</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, from the other end</source>
        <translation>%1, vom anderen Ende</translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>%n ersetzt</numerusform>
            <numerusform>%n ersetzt</numerusform>
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
        <translation>Manuskript</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>ManuscriptFile</name>
    <message>
        <source>Morvane document</source>
        <translation>Morvane-Dokument</translation>
    </message>
    <message>
        <source>HTML page</source>
        <translation>HTML-Seite</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Reiner Text</translation>
    </message>
    <message>
        <source>Fountain script</source>
        <translation>Fountain-Drehbuch</translation>
    </message>
    <message>
        <source>Final Draft script</source>
        <translation>Final-Draft-Drehbuch</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Manuscripts</source>
        <translation>Manuskripte</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>%1 has no suffix of a format.</source>
        <translation>%1 hat keine Endung eines Formats.</translation>
    </message>
    <message>
        <source>%1; read as Windows-1252</source>
        <translation>%1; als Windows-1252 gelesen</translation>
    </message>
    <message>
        <source>Metadata: %1</source>
        <translation>Metadaten: %1</translation>
    </message>
    <message>
        <source>The page&apos;s own structure, classes and style sheets</source>
        <translation>Aufbau, Klassen und Formatvorlagen der Seite selbst</translation>
    </message>
    <message>
        <source>What the Final Draft document holds besides the script, such as its cast, revisions and tags</source>
        <translation>Was das Final-Draft-Dokument außer dem Drehbuch enthält, etwa Besetzung, Überarbeitungen und Markierungen</translation>
    </message>
</context>
<context>
    <name>NotesPanel</name>
    <message>
        <source>Footnote</source>
        <translation>Fußnote</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>&amp;Remove Note</source>
        <translation>Anmerkung &amp;entfernen</translation>
    </message>
    <message>
        <source>Comments and footnotes</source>
        <translation>Kommentare und Fußnoten</translation>
    </message>
    <message>
        <source>Text of the note</source>
        <translation>Text der Anmerkung</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>Comment: its text</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>No note at the caret</source>
        <translation>Keine Anmerkung an der Schreibmarke</translation>
    </message>
    <message>
        <source>There is no text here for a note</source>
        <translation>An dieser Stelle ist kein Text für eine Anmerkung</translation>
    </message>
</context>
<context>
    <name>PathEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen ...</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Words of a setting or its description</source>
        <translation>Wörter einer Einstellung oder ihrer Beschreibung</translation>
    </message>
    <message>
        <source>Groups of settings</source>
        <translation>Gruppen von Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Keine Einstellung hat diese Wörter.</translation>
    </message>
    <message>
        <source>Not all settings could be stored.</source>
        <translation>Nicht alle Einstellungen konnten gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>ReplacePreview</name>
    <message>
        <source>Replace All</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>What is ticked will be replaced:</source>
        <translation>Was angekreuzt ist, wird ersetzt:</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n</source>
        <translation>
            <numerusform>%n ersetzen</numerusform>
            <numerusform>%n ersetzen</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;All or None</source>
        <translation>&amp;Alle oder keine</translation>
    </message>
</context>
<context>
    <name>SettingEditor</name>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Go back to the default: %1</source>
        <translation>Zurück zur Vorgabe: %1</translation>
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
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren ...</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Scheme:</source>
        <translation>&amp;Schema:</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>Suc&amp;hen:</translation>
    </message>
    <message>
        <source>&amp;Keys:</source>
        <translation>&amp;Tasten:</translation>
    </message>
    <message>
        <source>Reset A&amp;ll</source>
        <translation>&amp;Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Import Shortcuts</source>
        <translation>Tastenkürzel importieren</translation>
    </message>
    <message>
        <source>Shortcut schemes (*.%1)</source>
        <translation>Schemata von Tastenkürzeln (*.%1)</translation>
    </message>
    <message>
        <source>Save Shortcuts</source>
        <translation>Tastenkürzel speichern</translation>
    </message>
    <message>
        <source>Shortcut schemes (*.%1);;Text (*.txt)</source>
        <translation>Schemata von Tastenkürzeln (*.%1);;Text (*.txt)</translation>
    </message>
    <message>
        <source>Some keys will not work:</source>
        <translation>Einige Tasten werden nicht funktionieren:</translation>
    </message>
    <message>
        <source>Store them anyway?</source>
        <translation>Trotzdem speichern?</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>&amp;Check for Updates...</source>
        <translation>&amp;Nach Updates suchen ...</translation>
    </message>
</context>
<context>
    <name>WriterWindow</name>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The file was opened, but not all of it could be read as it is.</source>
        <translation>Die Datei wurde geöffnet, aber nicht alles konnte so gelesen werden, wie es ist.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened here. Replace what was written there?</source>
        <translation>%1 wurde von einem anderen Programm geändert, seit die Datei hier geöffnet wurde. Soll ersetzt werden, was dort geschrieben wurde?</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 gibt es schon. Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>%1 cannot hold all of the manuscript. A Morvane document can.</source>
        <translation>%1 kann nicht alles vom Manuskript enthalten. Ein Morvane-Dokument kann es.</translation>
    </message>
    <message>
        <source>The manuscript is not saved. The file is as it was before.</source>
        <translation>Das Manuskript ist nicht gespeichert. Die Datei ist, wie sie war.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Save the changes of %1?</source>
        <translation>Sollen die Änderungen von %1 gespeichert werden?</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>The program ended without saving %1. Open what was kept on %2?</source>
        <translation>Das Programm wurde beendet, ohne %1 zu speichern. Soll geöffnet werden, was am %2 gesichert wurde?</translation>
    </message>
    <message>
        <source>Insert Picture</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
    <message>
        <source>&amp;Find and Replace</source>
        <translation>&amp;Suchen und ersetzen</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Nächstes suchen</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>&amp;Voriges suchen</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>E&amp;instellungen ...</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation>&amp;Tastenkürzel ...</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Unterstrichen</translation>
    </message>
    <message>
        <source>&amp;Strikethrough</source>
        <translation>&amp;Durchgestrichen</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Vorlagen</translation>
    </message>
    <message>
        <source>Bulleted &amp;List</source>
        <translation>&amp;Liste mit Punkten</translation>
    </message>
    <message>
        <source>&amp;Numbered List</source>
        <translation>&amp;Nummerierte Liste</translation>
    </message>
    <message>
        <source>&amp;Move Item Inward</source>
        <translation>Punkt nach &amp;innen</translation>
    </message>
    <message>
        <source>Move Item &amp;Outward</source>
        <translation>Punkt nach &amp;außen</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>&amp;Comment</source>
        <translation>&amp;Kommentar</translation>
    </message>
    <message>
        <source>&amp;Footnote</source>
        <translation>&amp;Fußnote</translation>
    </message>
    <message>
        <source>&amp;Picture...</source>
        <translation>&amp;Bild ...</translation>
    </message>
    <message>
        <source>&amp;Script</source>
        <translation>D&amp;rehbuch</translation>
    </message>
    <message>
        <source>&amp;Prose</source>
        <translation>&amp;Prosa</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Script element</source>
        <translation>Element des Drehbuchs</translation>
    </message>
    <message>
        <source>Comments and Footnotes</source>
        <translation>Kommentare und Fußnoten</translation>
    </message>
    <message>
        <source>No copy can be kept for a crash: %1</source>
        <translation>Für einen Absturz kann keine Kopie gesichert werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln word(s)</source>
        <translation>
            <numerusform>%Ln Wort</numerusform>
            <numerusform>%Ln Wörter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln character(s)</source>
        <translation>
            <numerusform>%Ln Zeichen</numerusform>
            <numerusform>%Ln Zeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected word(s)</source>
        <translation>
            <numerusform>%Ln ausgewähltes Wort</numerusform>
            <numerusform>%Ln ausgewählte Wörter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln page(s)</source>
        <translation>
            <numerusform>%Ln Seite</numerusform>
            <numerusform>%Ln Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>About Morvane Writer</source>
        <translation>Über Morvane Writer</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Morvane Writer %1&lt;/h3&gt;&lt;p&gt;A small writing program, which shows what the base library of Morvane does for an application.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Morvane Writer %1&lt;/h3&gt;&lt;p&gt;Ein kleines Schreibprogramm, das zeigt, was die Basisbibliothek von Morvane für eine Anwendung tut.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren ...</translation>
    </message>
    <message>
        <source>The manuscript is saved, but not all of it could be taken along.</source>
        <translation>Das Manuskript ist gespeichert, aber nicht alles konnte mitgenommen werden.</translation>
    </message>
    <message>
        <source>&amp;Element...</source>
        <translation>&amp;Element ...</translation>
    </message>
    <message>
        <source>The picture %1 is not inserted.</source>
        <translation>Das Bild %1 wird nicht eingefügt.</translation>
    </message>
    <message>
        <source>%1 is open in another window.</source>
        <translation>%1 ist in einem anderen Fenster geöffnet.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A small writing program.</source>
        <translation>Ein kleines Schreibprogramm.</translation>
    </message>
    <message>
        <source>The manuscripts to open.</source>
        <translation>Die Manuskripte, die geöffnet werden sollen.</translation>
    </message>
</context>
</TS>

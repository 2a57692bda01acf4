<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>MRVAutoReplaceEditor</name>
    <message>
        <source>a match cannot go over the end of a paragraph</source>
        <translation>ein Suchtext kann nicht über das Ende eines Absatzes gehen</translation>
    </message>
    <message>
        <source>“%1” -&gt; “%2” is in the list already; it can be enabled or disabled</source>
        <translation>„%1“ -&gt; „%2“ steht schon in der Liste; der Eintrag lässt sich ein- oder ausschalten</translation>
    </message>
    <message>
        <source>ordinals stay in each list; disable “%1” instead</source>
        <translation>Ordnungszahlen bleiben in jeder Liste; stattdessen lässt sich „%1“ ausschalten</translation>
    </message>
    <message numerus="yes">
        <source>%n entries have the match “%1”, and only one can apply; add its replacement</source>
        <translation>
            <numerusform>%n Eintrag hat den Suchtext „%1“, und nur einer kann gelten; die Ersetzung muss mit angegeben werden</numerusform>
            <numerusform>%n Einträge haben den Suchtext „%1“, und nur einer kann gelten; die Ersetzung muss mit angegeben werden</numerusform>
        </translation>
    </message>
    <message>
        <source>no such entry: “%1”</source>
        <translation>kein solcher Eintrag: „%1“</translation>
    </message>
    <message>
        <source>no such entry: “%1” -&gt; “%2”</source>
        <translation>kein solcher Eintrag: „%1“ -&gt; „%2“</translation>
    </message>
    <message>
        <source>an entry for “%1” is enabled already; disable or remove it first</source>
        <translation>ein Eintrag für „%1“ ist schon eingeschaltet; er muss zuerst ausgeschaltet oder entfernt werden</translation>
    </message>
</context>
<context>
    <name>MRVAutoReplaceList</name>
    <message>
        <source>it is not an auto-replace list of a known version</source>
        <translation>Das ist keine Autoersetzungsliste einer bekannten Version</translation>
    </message>
    <message numerus="yes">
        <source>it is damaged or truncated; entries that could be read: %n</source>
        <translation>
            <numerusform>Die Liste ist beschädigt oder abgeschnitten; %n Eintrag konnte gelesen werden</numerusform>
            <numerusform>Die Liste ist beschädigt oder abgeschnitten; %n Einträge konnten gelesen werden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MRVBookList</name>
    <message>
        <source>line %1: there is no file %2</source>
        <translation>Zeile %1: die Datei %2 gibt es nicht</translation>
    </message>
    <message>
        <source>the list names no manuscript</source>
        <translation>die Liste nennt kein Manuskript</translation>
    </message>
</context>
<context>
    <name>MRVCheckForUpdatesDialog</name>
    <message>
        <source>Check For Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Fortschritt des Downloads</translation>
    </message>
    <message>
        <source>Download Update</source>
        <translation>Update herunterladen</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Update installieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>You are currently running %1 %2. Version %3 is available.

Click the Download Update button to begin the download. (You will not be able to use %1 while the update is downloading.) When the download has finished, click Install Update to close %1 and launch the update installer.

Choose Cancel if you do not wish to update at this time.</source>
        <translation>Sie verwenden derzeit %1 %2. Version %3 ist verfügbar.

Klicken Sie auf die Schaltfläche „Update herunterladen“, um den Download zu starten. (Während das Update heruntergeladen wird, können Sie %1 nicht verwenden.) Klicken Sie nach dem Download auf „Update installieren“, um %1 zu beenden und das Installationsprogramm zu starten.

Klicken Sie auf „Abbrechen“, wenn Sie das Update jetzt nicht installieren möchten.</translation>
    </message>
    <message>
        <source>Downloading Update</source>
        <translation>Update wird heruntergeladen</translation>
    </message>
    <message>
        <source>%1 Auto-Update</source>
        <translation>Automatisches Update von %1</translation>
    </message>
    <message>
        <source>Administrative rights required.</source>
        <translation>Administratorrechte erforderlich.</translation>
    </message>
    <message>
        <source>To download and install automatic updates, you must run %1 from the same account that installed it.

You can also visit %2 to download and install the latest version manually.</source>
        <translation>Um automatische Updates herunterzuladen und zu installieren, müssen Sie %1 unter demselben Konto ausführen, unter dem es installiert wurde.

Sie können auch %2 besuchen, um die neueste Version von Hand herunterzuladen und zu installieren.</translation>
    </message>
    <message>
        <source>Installation and Runtime location mismatch.</source>
        <translation>Installationsort und Ausführungsort stimmen nicht überein.</translation>
    </message>
    <message>
        <source>%1 is not currently running from its last installed location.

Runtime Location: &apos;%2&apos;
Installed Location: &apos;%3&apos;

To download and install the update, please uninstall or manually remove any copies of %1 not at the Installed Location path above, then restart %1 from there and select Help &gt; Check for Updates....</source>
        <translation>%1 läuft derzeit nicht von dem Ort aus, an dem es zuletzt installiert wurde.

Ausführungsort: „%2“
Installationsort: „%3“

Um das Update herunterzuladen und zu installieren, deinstallieren oder entfernen Sie bitte alle Kopien von %1, die nicht am oben genannten Installationsort liegen, starten Sie %1 von dort aus neu und wählen Sie „Hilfe &gt; Nach Updates suchen&#xa0;…“.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>The release notes cannot be shown.</source>
        <translation>Die Versionshinweise können nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Nach Updates wird gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>noch wenige Sekunden</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds left</source>
        <translation>
            <numerusform>noch %n Sekunde</numerusform>
            <numerusform>noch %n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes left</source>
        <translation>
            <numerusform>noch %n Minute</numerusform>
            <numerusform>noch %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours left</source>
        <translation>
            <numerusform>noch %n Stunde</numerusform>
            <numerusform>noch %n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
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
        <translation>Der Server hat %1 gesendet, was kein Text ist</translation>
    </message>
    <message>
        <source>The page has too many parts</source>
        <translation>Die Seite hat zu viele Bestandteile</translation>
    </message>
    <message>
        <source>It did not arrive within %1 s</source>
        <translation>Sie ist nicht innerhalb von %1 s angekommen</translation>
    </message>
</context>
<context>
    <name>MRVCoreUtil</name>
    <message>
        <source>Cannot read the file &quot;%1&quot;: %2</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>the file has no name</source>
        <translation>Die Datei hat keinen Namen</translation>
    </message>
    <message>
        <source>its name holds a null character</source>
        <translation>Ihr Name enthält ein Nullzeichen</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>Es handelt sich um einen Ordner</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>Sie ist zu groß</translation>
    </message>
    <message>
        <source>unknown text encoding &quot;%1&quot;</source>
        <translation>Unbekannte Textkodierung „%1“</translation>
    </message>
    <message>
        <source>it is not valid %1 text</source>
        <translation>Sie enthält keinen gültigen Text in %1</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: unknown text encoding &quot;%2&quot;</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: Unbekannte Textkodierung „%2“</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: the encoding %2 lacks some characters of the text</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: In der Kodierung %2 fehlen Zeichen des Textes</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
</context>
<context>
    <name>MRVDocumentArchive</name>
    <message>
        <source>the document is too large, or too complex, for this format</source>
        <translation>das Dokument ist für dieses Format zu groß oder zu verschachtelt</translation>
    </message>
    <message>
        <source>it holds too many pictures</source>
        <translation>es enthält zu viele Bilder</translation>
    </message>
    <message>
        <source>the picture %1 has changed, or cannot be read any more</source>
        <translation>das Bild %1 hat sich geändert oder ist nicht mehr lesbar</translation>
    </message>
    <message>
        <source>it holds no document</source>
        <translation>sie enthält kein Dokument</translation>
    </message>
    <message>
        <source>it was made by a newer version of this program</source>
        <translation>sie stammt von einer neueren Version dieses Programms</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>sie ist beschädigt</translation>
    </message>
    <message>
        <source>the document is damaged; its words were read, without formats and pictures</source>
        <translation>das Dokument ist beschädigt; gelesen wurden seine Wörter ohne Formate und Bilder</translation>
    </message>
    <message>
        <source>the picture %1 is missing or damaged</source>
        <translation>das Bild %1 fehlt oder ist beschädigt</translation>
    </message>
    <message>
        <source>what the program keeps as %1 is damaged</source>
        <translation>was das Programm als %1 aufbewahrt, ist beschädigt</translation>
    </message>
    <message>
        <source>there is no document to read it into</source>
        <translation>es fehlt ein Dokument, in das sie gelesen wird</translation>
    </message>
    <message>
        <source>the file is damaged; the document is whole, but other parts may be missing</source>
        <translation>die Datei ist beschädigt; das Dokument ist vollständig, anderes kann aber fehlen</translation>
    </message>
    <message>
        <source>what the program keeps with the document may be missing, too</source>
        <translation>auch was das Programm mit dem Dokument aufbewahrt, kann fehlen</translation>
    </message>
</context>
<context>
    <name>MRVDocumentLosses</name>
    <message>
        <source>Fonts: %1</source>
        <translation>Schriftarten: %1</translation>
    </message>
    <message>
        <source>Font sizes: %1</source>
        <translation>Schriftgrößen: %1</translation>
    </message>
    <message>
        <source>Text colors: %1</source>
        <translation>Textfarben: %1</translation>
    </message>
    <message>
        <source>Highlights: %1</source>
        <translation>Hervorhebungen: %1</translation>
    </message>
    <message>
        <source>Capitals, lines and spacing of letters: %1</source>
        <translation>Großbuchstaben, Linien und Abstände von Buchstaben: %1</translation>
    </message>
    <message>
        <source>Languages of text: %1</source>
        <translation>Sprachen von Text: %1</translation>
    </message>
    <message>
        <source>Marks of revisions: %1</source>
        <translation>Markierungen von Überarbeitungen: %1</translation>
    </message>
    <message>
        <source>Annotations, which become text: %1</source>
        <translation>Anmerkungen, die zu Text werden: %1</translation>
    </message>
    <message>
        <source>Footnotes within the text, which become others: %1</source>
        <translation>Fußnoten im Text, die zu anderen werden: %1</translation>
    </message>
    <message>
        <source>Comments: %1</source>
        <translation>Kommentare: %1</translation>
    </message>
    <message>
        <source>Footnotes in the margin, which go to the end: %1</source>
        <translation>Fußnoten am Rand, die ans Ende kommen: %1</translation>
    </message>
    <message>
        <source>Bold, italic and other styles of text: %1</source>
        <translation>Fett, kursiv und andere Auszeichnungen von Text: %1</translation>
    </message>
    <message>
        <source>Links, whose addresses become text: %1</source>
        <translation>Links, deren Adressen zu Text werden: %1</translation>
    </message>
    <message>
        <source>Pictures, which give way to their names: %1</source>
        <translation>Bilder, an deren Stelle ihre Namen treten: %1</translation>
    </message>
    <message>
        <source>Headings: %1</source>
        <translation>Überschriften: %1</translation>
    </message>
    <message>
        <source>Quotations: %1</source>
        <translation>Zitate: %1</translation>
    </message>
    <message>
        <source>Paragraph alignments: %1</source>
        <translation>Ausrichtungen von Absätzen: %1</translation>
    </message>
    <message>
        <source>Paragraph indents: %1</source>
        <translation>Einzüge von Absätzen: %1</translation>
    </message>
    <message>
        <source>Line spacings: %1</source>
        <translation>Zeilenabstände: %1</translation>
    </message>
    <message>
        <source>Page breaks: %1</source>
        <translation>Seitenumbrüche: %1</translation>
    </message>
    <message>
        <source>Paragraph backgrounds: %1</source>
        <translation>Hintergründe von Absätzen: %1</translation>
    </message>
    <message>
        <source>List markers other than bullets and figures: %1</source>
        <translation>Listenzeichen außer Punkten und Ziffern: %1</translation>
    </message>
    <message>
        <source>Tables, whose rows become lines: %1</source>
        <translation>Tabellen, deren Zeilen zu Textzeilen werden: %1</translation>
    </message>
    <message>
        <source>Frames: %1</source>
        <translation>Rahmen: %1</translation>
    </message>
    <message>
        <source>Tabs and several blanks in a row: %1</source>
        <translation>Tabulatoren und mehrere Leerzeichen hintereinander: %1</translation>
    </message>
    <message>
        <source>Lists: %1</source>
        <translation>Listen: %1</translation>
    </message>
    <message>
        <source>Comments in the margin: %1</source>
        <translation>Kommentare am Rand: %1</translation>
    </message>
    <message>
        <source>Footnotes in the margin: %1</source>
        <translation>Fußnoten am Rand: %1</translation>
    </message>
    <message>
        <source>Addresses of links: %1</source>
        <translation>Adressen von Links: %1</translation>
    </message>
    <message>
        <source>Pictures: %1</source>
        <translation>Bilder: %1</translation>
    </message>
    <message>
        <source>Tables, whose cells become paragraphs: %1</source>
        <translation>Tabellen, deren Zellen zu Absätzen werden: %1</translation>
    </message>
    <message>
        <source>Marks of footnotes within the text: %1</source>
        <translation>Auszeichnungen von Fußnoten im Text: %1</translation>
    </message>
    <message>
        <source>Footnotes within the text, which become text in brackets: %1</source>
        <translation>Fußnoten im Text, die zu Text in eckigen Klammern werden: %1</translation>
    </message>
    <message>
        <source>Titles of links: %1</source>
        <translation>Titel von Links: %1</translation>
    </message>
    <message>
        <source>Languages of code: %1</source>
        <translation>Sprachen von Code: %1</translation>
    </message>
</context>
<context>
    <name>MRVDocumentPicture</name>
    <message>
        <source>its file has changed, or cannot be read any more</source>
        <translation>seine Datei hat sich geändert oder ist nicht mehr lesbar</translation>
    </message>
    <message>
        <source>the document does not have it</source>
        <translation>das Dokument enthält es nicht</translation>
    </message>
</context>
<context>
    <name>MRVDomDoc</name>
    <message>
        <source>there is no document element</source>
        <translation>das Dokument hat kein Wurzelelement</translation>
    </message>
    <message>
        <source>the document element is &apos;%1&apos;, not &apos;%2&apos;</source>
        <translation>das Wurzelelement ist „%1“, nicht „%2“</translation>
    </message>
    <message>
        <source>there is no work element</source>
        <translation>es gibt kein Arbeitselement</translation>
    </message>
    <message>
        <source>nothing is above %1</source>
        <translation>über %1 liegt nichts</translation>
    </message>
    <message>
        <source>no &apos;%1&apos; below %2</source>
        <translation>kein „%1“ unter %2</translation>
    </message>
    <message>
        <source>no &apos;%1&apos; below %2; did you mean &apos;%3&apos;?</source>
        <translation>kein „%1“ unter %2; meinten Sie „%3“?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no name for an element</source>
        <translation>„%1“ ist kein Name für ein Element</translation>
    </message>
    <message>
        <source>a new document needs a path that begins with &apos;/&apos;</source>
        <translation>ein neues Dokument braucht einen Pfad, der mit „/“ beginnt</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be created</source>
        <translation>„%1“ kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>elements are nested more deeply than %1 levels</source>
        <translation>Elemente sind mehr als %1 Ebenen tief verschachtelt</translation>
    </message>
    <message>
        <source>XML does not allow the name &apos;%1&apos;</source>
        <translation>XML erlaubt den Namen „%1“ nicht</translation>
    </message>
</context>
<context>
    <name>MRVDomSource</name>
    <message>
        <source>its encoding writes some characters in several ways</source>
        <translation>seine Kodierung schreibt manche Zeichen auf mehrere Arten</translation>
    </message>
    <message>
        <source>its document type declares entities</source>
        <translation>sein Dokumenttyp deklariert Entitäten</translation>
    </message>
    <message>
        <source>the change goes beyond single elements</source>
        <translation>die Änderung geht über einzelne Elemente hinaus</translation>
    </message>
    <message>
        <source>the whole document would be laid out anew: %1</source>
        <translation>das ganze Dokument würde neu gesetzt: %1</translation>
    </message>
</context>
<context>
    <name>MRVDownloadAuthorize</name>
    <message>
        <source>Http authentication required</source>
        <translation>HTTP-Anmeldung erforderlich</translation>
    </message>
    <message>
        <source>Supply Username and Password to access this site</source>
        <translation>Geben Sie Benutzernamen und Passwort ein, um auf diese Website zuzugreifen</translation>
    </message>
    <message>
        <source>Site:</source>
        <translation>Website:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
</context>
<context>
    <name>MRVDownloadUrl</name>
    <message>
        <source>Only http and https addresses are downloaded, not %1</source>
        <translation>Es werden nur http- und https-Adressen heruntergeladen, nicht %1</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Vorgang abgebrochen</translation>
    </message>
    <message>
        <source>The server has sent nothing for %1 s</source>
        <translation>Der Server hat seit %1 s nichts gesendet</translation>
    </message>
    <message>
        <source>It is larger than %1 bytes</source>
        <translation>Der Inhalt ist größer als %1 Bytes</translation>
    </message>
    <message>
        <source>Download Aborted</source>
        <translation>Download abgebrochen</translation>
    </message>
    <message>
        <source>The connection ended before the download was complete</source>
        <translation>Die Verbindung endete, bevor alles übertragen war</translation>
    </message>
    <message>
        <source>It redirects to %1, which is not an http or https address</source>
        <translation>Es wird zu %1 umgeleitet, was keine http- oder https-Adresse ist</translation>
    </message>
    <message>
        <source>It redirects to %1, where the connection is not encrypted</source>
        <translation>Es wird zu %1 umgeleitet, wo die Verbindung nicht verschlüsselt ist</translation>
    </message>
    <message>
        <source>Cannot write to file: &apos;%1&apos;
Error: %2</source>
        <translation>In die Datei „%1“ kann nicht geschrieben werden
Fehler: %2</translation>
    </message>
    <message>
        <source>Network not accessible</source>
        <translation>Netzwerk nicht erreichbar</translation>
    </message>
    <message>
        <source>The server has not answered for %1 s</source>
        <translation>Der Server hat seit %1 s nicht geantwortet</translation>
    </message>
</context>
<context>
    <name>MRVEPubBook</name>
    <message>
        <source>The picture %1 cannot be read.</source>
        <translation>Das Bild %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Abschnitt %1</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>The text can be read with a screen reader; headings and a table of contents guide through it.</source>
        <translation>Der Text kann mit einem Screenreader gelesen werden; Überschriften und ein Inhaltsverzeichnis führen durch ihn.</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Titelbild</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Title page</source>
        <translation>Titelseite</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Impressum</translation>
    </message>
    <message>
        <source>Dedication</source>
        <translation>Widmung</translation>
    </message>
    <message>
        <source>Epigraph</source>
        <translation>Motto</translation>
    </message>
    <message>
        <source>Foreword</source>
        <translation>Geleitwort</translation>
    </message>
    <message>
        <source>Preface</source>
        <translation>Vorwort</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Danksagung</translation>
    </message>
    <message>
        <source>Appendix</source>
        <translation>Anhang</translation>
    </message>
    <message>
        <source>Glossary</source>
        <translation>Glossar</translation>
    </message>
    <message>
        <source>Bibliography</source>
        <translation>Literaturverzeichnis</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>Colophon</source>
        <translation>Kolophon</translation>
    </message>
    <message>
        <source>Not all pictures have a description.</source>
        <translation>Nicht alle Bilder haben eine Beschreibung.</translation>
    </message>
    <message>
        <source>A list leads to the pages of the printed edition.</source>
        <translation>Eine Liste führt zu den Seiten der gedruckten Ausgabe.</translation>
    </message>
    <message>
        <source>Printed edition of %1</source>
        <translation>Druckausgabe von %1</translation>
    </message>
</context>
<context>
    <name>MRVEPubCheck</name>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>e-books are checked by epubcheck, which is not installed; install the packages epubcheck and default-jre-headless</source>
        <translation>E-Books prüft epubcheck, das nicht installiert ist; installieren Sie die Pakete epubcheck und default-jre-headless</translation>
    </message>
    <message>
        <source>no files can be made there</source>
        <translation>dort können keine Dateien angelegt werden</translation>
    </message>
    <message>
        <source>epubcheck was not done after %1 seconds</source>
        <translation>epubcheck war nach %1 Sekunden nicht fertig</translation>
    </message>
    <message>
        <source>epubcheck gives no answer</source>
        <translation>epubcheck gibt keine Antwort</translation>
    </message>
    <message>
        <source>it is no e-book, as it is no ZIP archive</source>
        <translation>sie ist kein E-Book, denn sie ist kein ZIP-Archiv</translation>
    </message>
</context>
<context>
    <name>MRVEPubMetadata</name>
    <message>
        <source>the cover picture cannot be read: %1</source>
        <translation>das Titelbild kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>a role and a name such as &quot;translator: Ann Lee&quot;</source>
        <translation>eine Rolle und ein Name wie „translator: Ann Lee“</translation>
    </message>
    <message>
        <source>the tag of a language such as en-GB</source>
        <translation>die Kennung einer Sprache wie en-GB</translation>
    </message>
    <message>
        <source>an ISBN, whose last digit proves the others</source>
        <translation>eine ISBN, deren letzte Ziffer die anderen bestätigt</translation>
    </message>
    <message>
        <source>a date such as 2026, 2026-01 or 2026-01-31</source>
        <translation>ein Datum wie 2026, 2026-01 oder 2026-01-31</translation>
    </message>
    <message>
        <source>a number such as 2 or 2.5</source>
        <translation>eine Zahl wie 2 oder 2.5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no key of a book</source>
        <translation>„%1“ ist kein Schlüssel eines Buches</translation>
    </message>
    <message>
        <source>a name</source>
        <translation>ein Name</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not %3</source>
        <translation>%1: „%2“ ist nicht %3</translation>
    </message>
    <message>
        <source>this is neither &quot;key: value&quot; nor continues it</source>
        <translation>das ist weder „Schlüssel: Wert“ noch setzt es ihn fort</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>the value cannot be read</source>
        <translation>der Wert ist nicht lesbar</translation>
    </message>
</context>
<context>
    <name>MRVEPubPackage</name>
    <message>
        <source>The e-book cannot be packed: %1</source>
        <translation>Das E-Book kann nicht gepackt werden: %1</translation>
    </message>
    <message>
        <source>links that lead nowhere in the e-book, and are text there: %1 (%2%3)</source>
        <translation>Links, die im E-Book nirgendwohin führen und dort Text sind: %1 (%2%3)</translation>
    </message>
    <message>
        <source>pictures on other machines that are not in the e-book: %1</source>
        <translation>Bilder auf anderen Rechnern, die nicht im E-Book sind: %1</translation>
    </message>
    <message>
        <source>a link that leads nowhere: %1</source>
        <translation>ein Link, der nirgendwohin führt: %1</translation>
    </message>
    <message>
        <source>no alternative text: %1</source>
        <translation>kein Alternativtext: %1</translation>
    </message>
</context>
<context>
    <name>MRVEditLock</name>
    <message>
        <source>another program is changing it</source>
        <translation>Ein anderes Programm ändert sie gerade</translation>
    </message>
</context>
<context>
    <name>MRVEngineChoice</name>
    <message>
        <source>neither side is RTF, so no choice is kept</source>
        <translation>keine der beiden Seiten ist RTF, daher wird keine Wahl gespeichert</translation>
    </message>
    <message>
        <source>it is the default, as nothing is stored</source>
        <translation>das ist die Vorgabe, da nichts gespeichert ist</translation>
    </message>
    <message>
        <source>it is the stored choice</source>
        <translation>das ist die gespeicherte Wahl</translation>
    </message>
    <message>
        <source>the stored choices do not include this format</source>
        <translation>in der gespeicherten Auswahl fehlt dieses Format</translation>
    </message>
    <message>
        <source>the stored choice, %1, needs an application that is not available here</source>
        <translation>die gespeicherte Wahl, %1, benötigt ein Programm, das hier nicht verfügbar ist</translation>
    </message>
    <message>
        <source>%1 cannot be imported</source>
        <translation>%1 kann nicht importiert werden</translation>
    </message>
    <message>
        <source>%1 cannot be exported</source>
        <translation>%1 kann nicht exportiert werden</translation>
    </message>
    <message>
        <source>%1: %2 cannot do that here; possible: %3</source>
        <translation>%1: %2 kann das hier nicht; möglich: %3</translation>
    </message>
    <message>
        <source>choices for %1 are not kept: its name is not a suffix</source>
        <translation>eine Wahl für %1 wird nicht gespeichert: Der Name ist keine Dateiendung</translation>
    </message>
</context>
<context>
    <name>MRVExportCheck</name>
    <message>
        <source>not in what was written, of the paragraph &quot;%1&quot;: %2</source>
        <translation>im Geschriebenen fehlt vom Absatz „%1“: %2</translation>
    </message>
    <message>
        <source>links within the text or to files that were not written: %1</source>
        <translation>Links im Text oder auf Dateien, die nicht geschrieben wurden: %1</translation>
    </message>
    <message>
        <source>a link that was not written: %1</source>
        <translation>ein Link, der nicht geschrieben wurde: %1</translation>
    </message>
    <message>
        <source>pictures that were not written: %1</source>
        <translation>Bilder, die nicht geschrieben wurden: %1</translation>
    </message>
</context>
<context>
    <name>MRVFileKind</name>
    <message>
        <source>it is not a regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it holds something else, which is not overwritten</source>
        <translation>sie enthält etwas anderes, das nicht überschrieben wird</translation>
    </message>
</context>
<context>
    <name>MRVFileWriter</name>
    <message>
        <source>its symbolic links form a loop</source>
        <translation>Ihre symbolischen Verknüpfungen führen im Kreis</translation>
    </message>
    <message>
        <source>it is another user&apos;s link in a shared folder</source>
        <translation>Sie ist die Verknüpfung eines anderen Benutzers in einem gemeinsamen Ordner</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the file has no name</source>
        <translation>Die Datei hat keinen Namen</translation>
    </message>
    <message>
        <source>its name holds a null character</source>
        <translation>Ihr Name enthält ein Nullzeichen</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>Es handelt sich um einen Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>Es handelt sich nicht um eine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>Ihr Ordner existiert nicht</translation>
    </message>
    <message>
        <source>not all of it was written</source>
        <translation>nicht alles davon wurde geschrieben</translation>
    </message>
    <message>
        <source>another program is writing it</source>
        <translation>ein anderes Programm schreibt sie gerade</translation>
    </message>
</context>
<context>
    <name>MRVFinalDraft</name>
    <message>
        <source>this is not a Final Draft document</source>
        <translation>Das ist kein Final-Draft-Dokument</translation>
    </message>
    <message>
        <source>paragraphs of the type &quot;%1&quot; become another kind: %2</source>
        <translation>Absätze vom Typ „%1“ werden zu einer anderen Art: %2</translation>
    </message>
    <message>
        <source>alternatives become notes: %1</source>
        <translation>Alternativen werden zu Notizen: %1</translation>
    </message>
    <message>
        <source>texts lose the mark that they were revised: %1</source>
        <translation>Texte verlieren das Zeichen, dass sie überarbeitet wurden: %1</translation>
    </message>
    <message>
        <source>styles of text are left out: %1</source>
        <translation>Textstile werden weggelassen: %1</translation>
    </message>
    <message>
        <source>the text of sections is left out: %1</source>
        <translation>der Text von Abschnitten wird weggelassen: %1</translation>
    </message>
    <message>
        <source>the document cannot be changed there without losing something: %1</source>
        <translation>das Dokument kann dort nicht geändert werden, ohne etwas zu verlieren: %1</translation>
    </message>
    <message>
        <source>its encoding writes some characters in several ways</source>
        <translation>seine Kodierung schreibt manche Zeichen auf mehrere Arten</translation>
    </message>
</context>
<context>
    <name>MRVFixedDate</name>
    <message>
        <source>SOURCE_DATE_EPOCH is not a number of seconds since 1970 that lies in the years 1 to 9999</source>
        <translation>SOURCE_DATE_EPOCH ist keine Anzahl von Sekunden seit 1970, die in den Jahren 1 bis 9999 liegt</translation>
    </message>
    <message>
        <source>the date is not one of ISO 8601 such as 2026-01-31T12:00:00Z, in the years 1 to 9999</source>
        <translation>das Datum ist keines nach ISO 8601 wie 2026-01-31T12:00:00Z, in den Jahren 1 bis 9999</translation>
    </message>
</context>
<context>
    <name>MRVFountainHtml</name>
    <message>
        <source>the page has no paragraph of a script</source>
        <translation>Die Seite enthält keinen Absatz eines Skripts</translation>
    </message>
</context>
<context>
    <name>MRVGuiUtil</name>
    <message>
        <source>All Images</source>
        <translation>Alle Bilder</translation>
    </message>
</context>
<context>
    <name>MRVHtmlReader</name>
    <message>
        <source>elements are nested more than %1 levels deep</source>
        <translation>die Elemente sind mehr als %1 Ebenen tief verschachtelt</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>ein Element hat mehr als %1 Attribute</translation>
    </message>
    <message>
        <source>too many elements such as &lt;%1&gt; are left open</source>
        <translation>zu viele Elemente wie &lt;%1&gt; sind nicht geschlossen</translation>
    </message>
</context>
<context>
    <name>MRVManuscript</name>
    <message>
        <source>line %1: not in the document: %2</source>
        <translation>Zeile %1: nicht im Dokument: %2</translation>
    </message>
    <message>
        <source>style sheets that cannot be read: %1</source>
        <translation>Stylesheets, die nicht gelesen werden können: %1</translation>
    </message>
    <message>
        <source>style sheets on other machines, which are not loaded: %1</source>
        <translation>Stylesheets auf anderen Rechnern, die nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>words that the page hides, and the document does not hold: %1</source>
        <translation>Wörter, die die Seite verbirgt und die nicht im Dokument stehen: %1</translation>
    </message>
    <message>
        <source>the Markdown is nested too deeply, or too complex</source>
        <translation>das Markdown ist zu tief verschachtelt oder zu komplex</translation>
    </message>
    <message>
        <source>not in the document: %1</source>
        <translation>nicht im Dokument: %1</translation>
    </message>
</context>
<context>
    <name>MRVManuscriptPdf</name>
    <message>
        <source>About %1 words</source>
        <translation>Etwa %1 Wörter</translation>
    </message>
    <message>
        <source>A paragraph, list or table is too long to be printed.</source>
        <translation>Ein Absatz, eine Liste oder eine Tabelle ist zu lang, um gedruckt zu werden.</translation>
    </message>
    <message>
        <source>links that lead nowhere in the document, and are text there: %1 (%2)</source>
        <translation>Verweise, die im Dokument nirgendwohin führen und dort Text sind: %1 (%2)</translation>
    </message>
    <message>
        <source>tables that are wider than the paper, and cut off: %1</source>
        <translation>Tabellen, die breiter als das Papier und abgeschnitten sind: %1</translation>
    </message>
    <message>
        <source>tables within four others, of which the rows are lines of text: %1</source>
        <translation>Tabellen in vier anderen, deren Zeilen Textzeilen sind: %1</translation>
    </message>
</context>
<context>
    <name>MRVManuscriptReader</name>
    <message>
        <source>unknown type of file</source>
        <translation>unbekannter Dateityp</translation>
    </message>
    <message>
        <source>unknown encoding &apos;%1&apos;</source>
        <translation>unbekannte Kodierung „%1“</translation>
    </message>
    <message>
        <source>not readable as %1</source>
        <translation>nicht als %1 lesbar</translation>
    </message>
    <message>
        <source>pictures that cannot be read: %1</source>
        <translation>Bilder, die nicht gelesen werden können: %1</translation>
    </message>
    <message>
        <source>it is %1, which its name does not say</source>
        <translation>es ist %1, was der Name nicht sagt</translation>
    </message>
    <message>
        <source>the comment %1</source>
        <translation>der Kommentar %1</translation>
    </message>
    <message>
        <source>%1 (after &quot;%2&quot;)</source>
        <translation>%1 (nach „%2“)</translation>
    </message>
    <message>
        <source>formats and pictures, as the file is damaged</source>
        <translation>Formate und Bilder, da die Datei beschädigt ist</translation>
    </message>
    <message>
        <source>it is missing or damaged</source>
        <translation>es fehlt oder ist beschädigt</translation>
    </message>
</context>
<context>
    <name>MRVOfficeConverter</name>
    <message>
        <source>no program is known that reads %1</source>
        <translation>es ist kein Programm bekannt, das %1 liest</translation>
    </message>
    <message>
        <source>reading %1 needs the program %2, which is not installed (Debian: apt install %3)</source>
        <translation>zum Lesen von %1 ist das Programm %2 nötig, das nicht installiert ist (Debian: apt install %3)</translation>
    </message>
    <message>
        <source>it cannot be started</source>
        <translation>es lässt sich nicht starten</translation>
    </message>
    <message>
        <source>it was not done after %1 seconds</source>
        <translation>es war nach %1 Sekunden nicht fertig</translation>
    </message>
    <message>
        <source>its result is larger than %1 MB</source>
        <translation>sein Ergebnis ist größer als %1 MB</translation>
    </message>
    <message>
        <source>it needs more than %1 MB of memory</source>
        <translation>es braucht mehr als %1 MB Speicher</translation>
    </message>
    <message>
        <source>it has failed without a reason</source>
        <translation>es ist ohne Angabe eines Grundes fehlgeschlagen</translation>
    </message>
    <message>
        <source>it is not %1, but %2</source>
        <translation>es ist kein %1, sondern %2</translation>
    </message>
    <message>
        <source>it is not %1</source>
        <translation>es ist kein %1</translation>
    </message>
    <message>
        <source>its text is larger than %1 MB</source>
        <translation>der Text darin ist größer als %1 MB</translation>
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
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Index cards</source>
        <translation>Karteikarten</translation>
    </message>
    <message>
        <source>Revisions</source>
        <translation>Überarbeitungen</translation>
    </message>
    <message>
        <source>Backgrounds</source>
        <translation>Hintergründe</translation>
    </message>
    <message>
        <source>Scratch pad</source>
        <translation>Notizblock</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Ivory</source>
        <translation>Elfenbein</translation>
    </message>
    <message>
        <source>Manila</source>
        <translation>Manila</translation>
    </message>
    <message>
        <source>Mint</source>
        <translation>Minze</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavendel</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Schiefer</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>Notepad lines</source>
        <translation>Schreiblinien</translation>
    </message>
    <message>
        <source>Status stamp</source>
        <translation>Statusstempel</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Corkboard</source>
        <translation>Pinnwand</translation>
    </message>
    <message>
        <source>Around the page</source>
        <translation>Um die Seite herum</translation>
    </message>
    <message>
        <source>First revision</source>
        <translation>Erste Überarbeitung</translation>
    </message>
    <message>
        <source>Second revision</source>
        <translation>Zweite Überarbeitung</translation>
    </message>
    <message>
        <source>Third revision</source>
        <translation>Dritte Überarbeitung</translation>
    </message>
    <message>
        <source>Fourth revision</source>
        <translation>Vierte Überarbeitung</translation>
    </message>
    <message>
        <source>Fifth revision</source>
        <translation>Fünfte Überarbeitung</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Visited links</source>
        <translation>Besuchte Links</translation>
    </message>
    <message>
        <source>Invisible characters</source>
        <translation>Unsichtbare Zeichen</translation>
    </message>
    <message>
        <source>Selected text</source>
        <translation>Ausgewählter Text</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Inline annotations</source>
        <translation>Anmerkungen im Text</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Footnote text</source>
        <translation>Fußnotentext</translation>
    </message>
    <message>
        <source>Footnotes</source>
        <translation>Fußnoten</translation>
    </message>
    <message>
        <source>Preserved formatting</source>
        <translation>Beibehaltene Formatierung</translation>
    </message>
    <message>
        <source>Project search</source>
        <translation>Projektsuche</translation>
    </message>
    <message>
        <source>Border of project search</source>
        <translation>Rahmen der Projektsuche</translation>
    </message>
    <message>
        <source>Found text</source>
        <translation>Fundstellen</translation>
    </message>
    <message>
        <source>Found text, alternate</source>
        <translation>Fundstellen, abwechselnd</translation>
    </message>
    <message>
        <source>Text that was found</source>
        <translation>Text der Fundstellen</translation>
    </message>
    <message>
        <source>Misspelt words</source>
        <translation>Falsch geschriebene Wörter</translation>
    </message>
    <message>
        <source>Document notes</source>
        <translation>Dokumentnotizen</translation>
    </message>
    <message>
        <source>Project notes</source>
        <translation>Projektnotizen</translation>
    </message>
    <message>
        <source>Recent search results</source>
        <translation>Letzte Suchergebnisse</translation>
    </message>
    <message>
        <source>Binder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Outliner</source>
        <translation>Gliederung</translation>
    </message>
    <message>
        <source>Outliner, every other row</source>
        <translation>Gliederung, jede zweite Zeile</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Schnappschüsse</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from %2 to %3</source>
        <translation>„%1“ ist keine ganze Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3</source>
        <translation>„%1“ ist keine Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>„%1“ ist nichts von Folgendem: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither true nor false</source>
        <translation>„%1“ ist weder true noch false</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a pair of an opening and a closing quote</source>
        <translation>„%1“ besteht nicht aus zwei Hälften, einem öffnenden und einem schließenden Anführungszeichen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a value such as &apos;%2&apos;</source>
        <translation>„%1“ ist kein Wert wie „%2“</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is fully transparent</source>
        <translation>„%1“ ist unsichtbar</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a colour such as #1f1f1f or navy</source>
        <translation>„%1“ ist keine Farbe wie #1f1f1f oder navy</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31T18:30:00</source>
        <translation>„%1“ ist kein Datum wie 2026-01-31T18:30:00</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a font such as Serif,12</source>
        <translation>„%1“ ist keine Schriftart wie Serif,12</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>what follows &apos;base64:&apos; is not Base64</source>
        <translation>Was auf „base64:“ folgt, ist kein Base64</translation>
    </message>
    <message>
        <source>an empty text is not a value; reset the setting instead</source>
        <translation>Nichts ist kein Wert; setzen Sie die Einstellung stattdessen zurück</translation>
    </message>
    <message>
        <source>the bytes do not have the form of this setting</source>
        <translation>Diese Bytes gehören nicht hierher</translation>
    </message>
    <message>
        <source>the text is not &apos;base64:&apos; followed by the bytes of a format</source>
        <translation>Der Text besteht nicht aus „base64:“ und den Bytes eines Formats</translation>
    </message>
    <message>
        <source>no setting is called &apos;%1&apos;</source>
        <translation>Es gibt keine Einstellung „%1“</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the list in %1: %2</source>
        <translation>die Liste in %1: %2</translation>
    </message>
    <message>
        <source>the shortcut scheme in %1: %2</source>
        <translation>das Tastenkürzelschema in %1: %2</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>Korrekturen</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungskopien</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Import and export</source>
        <translation>Import und Export</translation>
    </message>
    <message>
        <source>OPML files</source>
        <translation>OPML-Dateien</translation>
    </message>
    <message>
        <source>E-books</source>
        <translation>E-Books</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-Dateien</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Am linken Rand</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>In der Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Am rechten Rand</translation>
    </message>
    <message>
        <source>The other editor</source>
        <translation>Dem anderen Editor</translation>
    </message>
    <message>
        <source>The current editor</source>
        <translation>Dem aktuellen Editor</translation>
    </message>
    <message>
        <source>A reference panel</source>
        <translation>Einem Referenzfenster</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Picas</source>
        <translation>Pica</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Above the text</source>
        <translation>Über dem Text</translation>
    </message>
    <message>
        <source>Beside the text</source>
        <translation>Neben dem Text</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>Gar nicht</translation>
    </message>
    <message>
        <source>As a pin</source>
        <translation>Als Nadel</translation>
    </message>
    <message>
        <source>As a coloured corner</source>
        <translation>Als farbige Ecke</translation>
    </message>
    <message>
        <source>As a stripe</source>
        <translation>Als Streifen</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Eckig</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Abgerundet</translation>
    </message>
    <message>
        <source>Does nothing</source>
        <translation>Bewirkt nichts</translation>
    </message>
    <message>
        <source>Creates a card</source>
        <translation>Legt eine Karte an</translation>
    </message>
    <message>
        <source>Goes up to the folder above</source>
        <translation>Geht zum übergeordneten Ordner</translation>
    </message>
    <message>
        <source>Single return</source>
        <translation>Zeilenumbruch</translation>
    </message>
    <message>
        <source>Empty line</source>
        <translation>Leerzeile</translation>
    </message>
    <message>
        <source>A separator of your own</source>
        <translation>Eigenes Trennzeichen</translation>
    </message>
    <message>
        <source>Last session ended normally</source>
        <translation>Letzte Sitzung regulär beendet</translation>
    </message>
    <message>
        <source>Whether the session before this one was ended by the user and not by a failure.</source>
        <translation>Gibt an, ob die vorige Sitzung vom Benutzer beendet wurde und nicht durch einen Fehler.</translation>
    </message>
    <message>
        <source>This session has ended normally</source>
        <translation>Diese Sitzung regulär beendet</translation>
    </message>
    <message>
        <source>Whether the present session was ended by the user, which is stored when the application closes.</source>
        <translation>Gibt an, ob die jetzige Sitzung vom Benutzer beendet wurde, was beim Schließen der Anwendung gespeichert wird.</translation>
    </message>
    <message>
        <source>Reopen projects at start</source>
        <translation>Projekte beim Start wieder öffnen</translation>
    </message>
    <message>
        <source>Opens the projects again that were open when the application was closed.</source>
        <translation>Öffnet die Projekte wieder, die beim Schließen der Anwendung geöffnet waren.</translation>
    </message>
    <message>
        <source>Show the start panel</source>
        <translation>Startfenster anzeigen</translation>
    </message>
    <message>
        <source>Shows a panel with templates and recent projects when no project is open.</source>
        <translation>Zeigt ein Fenster mit Vorlagen und zuletzt benutzten Projekten an, wenn kein Projekt geöffnet ist.</translation>
    </message>
    <message>
        <source>Show the full path in the title bar</source>
        <translation>Vollständigen Pfad in der Titelleiste anzeigen</translation>
    </message>
    <message>
        <source>Shows the folder of a project with its name in the title bar of the window.</source>
        <translation>Zeigt in der Titelleiste des Fensters neben dem Namen des Projekts auch seinen Ordner an.</translation>
    </message>
    <message>
        <source>Allow overtyping</source>
        <translation>Überschreiben zulassen</translation>
    </message>
    <message>
        <source>Lets the Insert key switch between inserting text and typing over it.</source>
        <translation>Lässt die Einfügetaste zwischen Einfügen und Überschreiben wechseln.</translation>
    </message>
    <message>
        <source>Set notes after punctuation</source>
        <translation>Anmerkungszeichen nach Satzzeichen setzen</translation>
    </message>
    <message>
        <source>Places the mark of a footnote or comment after the punctuation that follows the selected words.</source>
        <translation>Setzt das Zeichen einer Fußnote oder eines Kommentars nach das Satzzeichen, das auf die ausgewählten Wörter folgt.</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Looks for a newer version of the application from time to time.</source>
        <translation>Sucht von Zeit zu Zeit nach einer neueren Version der Anwendung.</translation>
    </message>
    <message>
        <source>Name untitled documents on saving</source>
        <translation>Dokumente ohne Titel beim Speichern benennen</translation>
    </message>
    <message>
        <source>Gives a document without a title its first words as a title when it is saved.</source>
        <translation>Gibt einem Dokument ohne Titel beim Speichern seine ersten Wörter als Titel.</translation>
    </message>
    <message>
        <source>Import web pages as text</source>
        <translation>Webseiten als Text importieren</translation>
    </message>
    <message>
        <source>Converts a web page to text that can be edited when it is imported.</source>
        <translation>Wandelt eine Webseite beim Import in Text um, der sich bearbeiten lässt.</translation>
    </message>
    <message>
        <source>Import known file types only</source>
        <translation>Nur bekannte Dateitypen importieren</translation>
    </message>
    <message>
        <source>Leaves out files that the application cannot show when a folder is imported.</source>
        <translation>Lässt beim Import eines Ordners Dateien aus, die die Anwendung nicht anzeigen kann.</translation>
    </message>
    <message>
        <source>Remove invalid characters from RTF</source>
        <translation>Ungültige Zeichen aus RTF entfernen</translation>
    </message>
    <message>
        <source>Leaves out control characters that some programs write into RTF files.</source>
        <translation>Lässt Steuerzeichen aus, die manche Programme in RTF-Dateien schreiben.</translation>
    </message>
    <message>
        <source>Use font hinting</source>
        <translation>Schrift-Hinting verwenden</translation>
    </message>
    <message>
        <source>Fits the shapes of letters to the pixels of the screen in text that is read from the settings.</source>
        <translation>Passt die Formen der Buchstaben an die Pixel des Bildschirms an, wenn Textformate aus den Einstellungen gelesen werden.</translation>
    </message>
    <message>
        <source>Use first lines as titles only</source>
        <translation>Erste Zeilen nur als Titel verwenden</translation>
    </message>
    <message>
        <source>Takes the first line of an imported Fernwick note as its title and leaves it out of the text.</source>
        <translation>Nimmt die erste Zeile einer importierten Fernwick-Notiz als Titel und lässt sie im Text weg.</translation>
    </message>
    <message>
        <source>Show the number of documents</source>
        <translation>Anzahl der Dokumente anzeigen</translation>
    </message>
    <message>
        <source>Shows at each folder of the binder how many documents it contains.</source>
        <translation>Zeigt bei jedem Ordner der Mappe an, wie viele Dokumente er enthält.</translation>
    </message>
    <message>
        <source>Show lines in document notes</source>
        <translation>Linien in Dokumentnotizen anzeigen</translation>
    </message>
    <message>
        <source>Draws the lines of a notepad in the notes of a document.</source>
        <translation>Zeichnet in die Notizen eines Dokuments die Linien eines Schreibblocks.</translation>
    </message>
    <message>
        <source>Show lines in project notes</source>
        <translation>Linien in Projektnotizen anzeigen</translation>
    </message>
    <message>
        <source>Draws the lines of a notepad in the notes of the project.</source>
        <translation>Zeichnet in die Notizen des Projekts die Linien eines Schreibblocks.</translation>
    </message>
    <message>
        <source>Shade every other row</source>
        <translation>Jede zweite Zeile abtönen</translation>
    </message>
    <message>
        <source>Gives every other row of the outliner another background.</source>
        <translation>Gibt jeder zweiten Zeile der Gliederung einen anderen Hintergrund.</translation>
    </message>
    <message>
        <source>Folders in bold</source>
        <translation>Ordner fett</translation>
    </message>
    <message>
        <source>Shows the titles of folders in the binder in bold type.</source>
        <translation>Zeigt die Titel der Ordner in der Mappe fett an.</translation>
    </message>
    <message>
        <source>Folders in italics</source>
        <translation>Ordner kursiv</translation>
    </message>
    <message>
        <source>Shows the titles of folders in the binder in italics.</source>
        <translation>Zeigt die Titel der Ordner in der Mappe kursiv an.</translation>
    </message>
    <message>
        <source>Collections in bold</source>
        <translation>Sammlungen fett</translation>
    </message>
    <message>
        <source>Shows the titles of collections in bold type.</source>
        <translation>Zeigt die Titel der Sammlungen fett an.</translation>
    </message>
    <message>
        <source>Collections in italics</source>
        <translation>Sammlungen kursiv</translation>
    </message>
    <message>
        <source>Shows the titles of collections in italics.</source>
        <translation>Zeigt die Titel der Sammlungen kursiv an.</translation>
    </message>
    <message>
        <source>Show collections as folders</source>
        <translation>Sammlungen wie Ordner anzeigen</translation>
    </message>
    <message>
        <source>Shows a collection on the corkboard and in the outliner as if it were a folder.</source>
        <translation>Zeigt eine Sammlung auf der Pinnwand und in der Gliederung so an, als wäre sie ein Ordner.</translation>
    </message>
    <message>
        <source>Include the enclosing group</source>
        <translation>Umgebende Gruppe einbeziehen</translation>
    </message>
    <message>
        <source>Adds the folder itself when its documents are shown as one text.</source>
        <translation>Nimmt den Ordner selbst mit auf, wenn seine Dokumente als ein Text angezeigt werden.</translation>
    </message>
    <message>
        <source>Open all results together</source>
        <translation>Alle Treffer zusammen öffnen</translation>
    </message>
    <message>
        <source>Shows all documents that a project search has found in the editor at once.</source>
        <translation>Zeigt alle Dokumente, die eine Projektsuche gefunden hat, auf einmal im Editor an.</translation>
    </message>
    <message>
        <source>Collapse items again after dragging</source>
        <translation>Einträge nach dem Ziehen wieder schließen</translation>
    </message>
    <message>
        <source>Closes the items of the outline that opened by themselves during a drag.</source>
        <translation>Schließt die Einträge der Gliederung, die sich beim Ziehen von selbst geöffnet haben.</translation>
    </message>
    <message>
        <source>Return ends a synopsis</source>
        <translation>Eingabetaste beendet die Synopsis</translation>
    </message>
    <message>
        <source>Ends the editing of a synopsis with the Return key, which otherwise begins a new line.</source>
        <translation>Beendet mit der Eingabetaste das Bearbeiten einer Synopsis, statt eine neue Zeile zu beginnen.</translation>
    </message>
    <message>
        <source>Return creates an item</source>
        <translation>Eingabetaste legt einen Eintrag an</translation>
    </message>
    <message>
        <source>Creates a new item with the Return key in the binder, the outliner and on the corkboard.</source>
        <translation>Legt mit der Eingabetaste in der Mappe, der Gliederung und auf der Pinnwand einen neuen Eintrag an.</translation>
    </message>
    <message>
        <source>Allow dropping on cards</source>
        <translation>Ablegen auf Karten zulassen</translation>
    </message>
    <message>
        <source>Lets an index card be dropped on another one, so that it becomes part of it.</source>
        <translation>Erlaubt es, eine Karteikarte auf einer anderen abzulegen, sodass sie ein Teil von ihr wird.</translation>
    </message>
    <message>
        <source>Check spelling in new projects</source>
        <translation>Rechtschreibung in neuen Projekten prüfen</translation>
    </message>
    <message>
        <source>Turns on the spelling check while typing in every new project.</source>
        <translation>Schaltet in jedem neuen Projekt die Rechtschreibprüfung beim Tippen ein.</translation>
    </message>
    <message>
        <source>Correct spelling while typing</source>
        <translation>Rechtschreibung beim Tippen korrigieren</translation>
    </message>
    <message>
        <source>Replaces a misspelt word by the likely one as soon as it is complete.</source>
        <translation>Ersetzt ein falsch geschriebenes Wort durch das wahrscheinliche, sobald es fertig ist.</translation>
    </message>
    <message>
        <source>Capitalize a single i</source>
        <translation>Einzelnes i großschreiben</translation>
    </message>
    <message>
        <source>Writes the English word I as a capital letter.</source>
        <translation>Schreibt das englische Wort I als Großbuchstaben.</translation>
    </message>
    <message>
        <source>Capitalize sentences</source>
        <translation>Satzanfänge großschreiben</translation>
    </message>
    <message>
        <source>Begins each sentence with a capital letter.</source>
        <translation>Beginnt jeden Satz mit einem Großbuchstaben.</translation>
    </message>
    <message>
        <source>Use smart quotes</source>
        <translation>Typografische Anführungszeichen verwenden</translation>
    </message>
    <message>
        <source>Replaces straight quotation marks by opening and closing ones while typing.</source>
        <translation>Ersetzt gerade Anführungszeichen beim Tippen durch öffnende und schließende.</translation>
    </message>
    <message>
        <source>Replace hyphens by em dashes</source>
        <translation>Bindestriche durch Geviertstriche ersetzen</translation>
    </message>
    <message>
        <source>Turns two hyphens into an em dash while typing.</source>
        <translation>Macht beim Tippen aus zwei Bindestrichen einen Geviertstrich.</translation>
    </message>
    <message>
        <source>Replace dots by ellipses</source>
        <translation>Punkte durch Auslassungspunkte ersetzen</translation>
    </message>
    <message>
        <source>Turns three full stops into an ellipsis while typing.</source>
        <translation>Macht beim Tippen aus drei Punkten ein Auslassungszeichen.</translation>
    </message>
    <message>
        <source>No correction in script mode</source>
        <translation>Keine Korrekturen im Drehbuchmodus</translation>
    </message>
    <message>
        <source>Switches all corrections off while a script is written.</source>
        <translation>Schaltet alle Korrekturen aus, solange ein Drehbuch geschrieben wird.</translation>
    </message>
    <message>
        <source>Raise ordinals</source>
        <translation>Ordnungszahlen hochstellen</translation>
    </message>
    <message>
        <source>Raises the letters of English ordinal numbers such as 1st.</source>
        <translation>Stellt die Buchstaben englischer Ordnungszahlen wie 1st hoch.</translation>
    </message>
    <message>
        <source>Link web addresses</source>
        <translation>Webadressen verlinken</translation>
    </message>
    <message>
        <source>Turns a web address into a link while it is typed.</source>
        <translation>Macht aus einer Webadresse beim Tippen einen Link.</translation>
    </message>
    <message>
        <source>Link titles in brackets</source>
        <translation>Titel in Klammern verlinken</translation>
    </message>
    <message>
        <source>Turns the title of a document in double square brackets into a link to it.</source>
        <translation>Macht aus dem Titel eines Dokuments in doppelten eckigen Klammern einen Link auf das Dokument.</translation>
    </message>
    <message>
        <source>Replace text while typing</source>
        <translation>Text beim Tippen ersetzen</translation>
    </message>
    <message>
        <source>Replaces abbreviations by the texts in the list of replacements.</source>
        <translation>Ersetzt Abkürzungen durch die Texte der Ersetzungsliste.</translation>
    </message>
    <message>
        <source>Typewriter scrolling</source>
        <translation>Schreibmaschinenrollen</translation>
    </message>
    <message>
        <source>Keeps the line that is being written in the middle of the editor.</source>
        <translation>Hält die Zeile, in der geschrieben wird, in der Mitte des Editors.</translation>
    </message>
    <message>
        <source>Typewriter scrolling in full screen</source>
        <translation>Schreibmaschinenrollen im Vollbild</translation>
    </message>
    <message>
        <source>Keeps the line that is being written in the middle of the screen.</source>
        <translation>Hält die Zeile, in der geschrieben wird, in der Mitte des Bildschirms.</translation>
    </message>
    <message>
        <source>Complete words</source>
        <translation>Wörter vervollständigen</translation>
    </message>
    <message>
        <source>Offers words from the completion list of the project while typing.</source>
        <translation>Bietet beim Tippen Wörter aus der Vervollständigungsliste des Projekts an.</translation>
    </message>
    <message>
        <source>Complete words in script mode only</source>
        <translation>Wörter nur im Drehbuchmodus vervollständigen</translation>
    </message>
    <message>
        <source>Offers completions in scripts and not in other text.</source>
        <translation>Bietet Vervollständigungen in Drehbüchern an, in anderem Text nicht.</translation>
    </message>
    <message>
        <source>Make backups</source>
        <translation>Sicherungskopien anlegen</translation>
    </message>
    <message>
        <source>Makes backups of projects without being asked.</source>
        <translation>Legt von selbst Sicherungskopien der Projekte an.</translation>
    </message>
    <message>
        <source>Back up when a project is opened</source>
        <translation>Beim Öffnen eines Projekts sichern</translation>
    </message>
    <message>
        <source>Makes a backup of a project before it is opened.</source>
        <translation>Legt eine Sicherungskopie eines Projekts an, bevor es geöffnet wird.</translation>
    </message>
    <message>
        <source>Back up when a project is closed</source>
        <translation>Beim Schließen eines Projekts sichern</translation>
    </message>
    <message>
        <source>Makes a backup of a project when it is closed.</source>
        <translation>Legt eine Sicherungskopie eines Projekts an, wenn es geschlossen wird.</translation>
    </message>
    <message>
        <source>Back up on each manual save</source>
        <translation>Bei jedem manuellen Speichern sichern</translation>
    </message>
    <message>
        <source>Makes a backup whenever the project is saved by command.</source>
        <translation>Legt eine Sicherungskopie an, sooft das Projekt mit dem Befehl dafür gespeichert wird.</translation>
    </message>
    <message>
        <source>Compress backups</source>
        <translation>Sicherungskopien komprimieren</translation>
    </message>
    <message>
        <source>Stores each backup as one zip file.</source>
        <translation>Speichert jede Sicherungskopie als eine einzige ZIP-Datei.</translation>
    </message>
    <message>
        <source>Put the date into backup names</source>
        <translation>Datum in die Namen der Sicherungskopien aufnehmen</translation>
    </message>
    <message>
        <source>Adds the date and the time to the name of each backup.</source>
        <translation>Fügt dem Namen jeder Sicherungskopie Datum und Uhrzeit hinzu.</translation>
    </message>
    <message>
        <source>No sound effects</source>
        <translation>Keine Klangeffekte</translation>
    </message>
    <message>
        <source>Switches the sounds of the application off.</source>
        <translation>Schaltet die Klänge der Anwendung aus.</translation>
    </message>
    <message>
        <source>Transparent scratch pad</source>
        <translation>Durchsichtiger Notizblock</translation>
    </message>
    <message>
        <source>Lets the windows behind the scratch pad shine through.</source>
        <translation>Lässt die Fenster hinter dem Notizblock durchscheinen.</translation>
    </message>
    <message>
        <source>Wrap metadata fields</source>
        <translation>Metadatenfelder umbrechen</translation>
    </message>
    <message>
        <source>Shows long values of custom metadata on several lines.</source>
        <translation>Zeigt lange Werte eigener Metadaten auf mehreren Zeilen an.</translation>
    </message>
    <message>
        <source>Colour metadata fields</source>
        <translation>Metadatenfelder einfärben</translation>
    </message>
    <message>
        <source>Shows each field of custom metadata in its own colour.</source>
        <translation>Zeigt jedes Feld eigener Metadaten in seiner Farbe an.</translation>
    </message>
    <message>
        <source>Keep windows on top</source>
        <translation>Fenster im Vordergrund halten</translation>
    </message>
    <message>
        <source>Keeps the tool windows of the application above all other windows.</source>
        <translation>Hält die Werkzeugfenster der Anwendung über allen anderen Fenstern.</translation>
    </message>
    <message>
        <source>Keep reference panels on top</source>
        <translation>Referenzfenster im Vordergrund halten</translation>
    </message>
    <message>
        <source>Keeps quick reference panels above the main window.</source>
        <translation>Hält die Referenzfenster über dem Hauptfenster.</translation>
    </message>
    <message>
        <source>Export the entire binder</source>
        <translation>Gesamte Mappe exportieren</translation>
    </message>
    <message>
        <source>Exports all of the binder to OPML, and not the selected items only.</source>
        <translation>Exportiert die ganze Mappe nach OPML und nicht nur die ausgewählten Einträge.</translation>
    </message>
    <message>
        <source>Create a folder for the import</source>
        <translation>Ordner für den Import anlegen</translation>
    </message>
    <message>
        <source>Puts what is imported from OPML into a new folder.</source>
        <translation>Legt das, was aus OPML importiert wird, in einen neuen Ordner.</translation>
    </message>
    <message>
        <source>Position of the page</source>
        <translation>Lage der Seite</translation>
    </message>
    <message>
        <source>Determines where on the screen the page stands in full screen.</source>
        <translation>Legt fest, wo auf dem Bildschirm die Seite im Vollbild steht.</translation>
    </message>
    <message>
        <source>Save after</source>
        <translation>Speichern nach</translation>
    </message>
    <message>
        <source>Saves the project when nothing has been typed for this number of seconds.</source>
        <translation>Speichert das Projekt, wenn so viele Sekunden lang nichts getippt wurde.</translation>
    </message>
    <message>
        <source>Days between checks for updates</source>
        <translation>Tage zwischen zwei Suchen nach Updates</translation>
    </message>
    <message>
        <source>Determines how many days pass before a newer version is looked for again.</source>
        <translation>Legt fest, nach wie vielen Tagen wieder nach einer neueren Version gesucht wird.</translation>
    </message>
    <message>
        <source>Strength of label tints</source>
        <translation>Stärke der Etikettfarben</translation>
    </message>
    <message>
        <source>Determines how strongly the colour of a label shows, from 0 (not at all) to 255 (fully).</source>
        <translation>Legt fest, wie stark sich die Farbe eines Etiketts zeigt, von 0 (gar nicht) bis 255 (voll).</translation>
    </message>
    <message>
        <source>Strength of the status stamp</source>
        <translation>Stärke des Statusstempels</translation>
    </message>
    <message>
        <source>Determines how strongly the status is stamped on an index card, from 0 to 255.</source>
        <translation>Legt fest, wie stark der Status auf eine Karteikarte gestempelt wird, von 0 bis 255.</translation>
    </message>
    <message>
        <source>Strength of card shadows</source>
        <translation>Stärke der Kartenschatten</translation>
    </message>
    <message>
        <source>Determines how dark the shadows of index cards are, from 0 (none) to 255.</source>
        <translation>Legt fest, wie dunkel die Schatten der Karteikarten sind, von 0 (keine) bis 255.</translation>
    </message>
    <message>
        <source>Strength of the background</source>
        <translation>Stärke des Hintergrunds</translation>
    </message>
    <message>
        <source>Determines how much the background of full screen hides the desktop, from 0 to 255.</source>
        <translation>Legt fest, wie weit der Hintergrund des Vollbilds den Schreibtisch verdeckt, von 0 bis 255.</translation>
    </message>
    <message>
        <source>Width of the page</source>
        <translation>Breite der Seite</translation>
    </message>
    <message>
        <source>Sets the width of the page in full screen, in percent of that of the screen.</source>
        <translation>Legt die Breite der Seite im Vollbild fest, in Prozent der Breite des Bildschirms.</translation>
    </message>
    <message>
        <source>Height of the page</source>
        <translation>Höhe der Seite</translation>
    </message>
    <message>
        <source>Sets the height of the page in full screen, in percent of that of the screen.</source>
        <translation>Legt die Höhe der Seite im Vollbild fest, in Prozent der Höhe des Bildschirms.</translation>
    </message>
    <message>
        <source>Width of the text cursor</source>
        <translation>Breite der Schreibmarke</translation>
    </message>
    <message>
        <source>Sets how wide the text cursor is; -1 is the width that the system uses.</source>
        <translation>Legt fest, wie breit die Schreibmarke ist; -1 ist die Breite, die das System verwendet.</translation>
    </message>
    <message>
        <source>Zoom of the editor</source>
        <translation>Zoom des Editors</translation>
    </message>
    <message>
        <source>Determines which entry of the list of zoom factors the editor uses.</source>
        <translation>Legt fest, welchen Eintrag der Liste der Zoomstufen der Editor verwendet.</translation>
    </message>
    <message>
        <source>Zoom of project notes</source>
        <translation>Zoom der Projektnotizen</translation>
    </message>
    <message>
        <source>Determines which entry of the list of zoom factors project notes use.</source>
        <translation>Legt fest, welchen Eintrag der Liste der Zoomstufen die Projektnotizen verwenden.</translation>
    </message>
    <message>
        <source>Zoom of document notes</source>
        <translation>Zoom der Dokumentnotizen</translation>
    </message>
    <message>
        <source>Determines which entry of the list of zoom factors document notes use.</source>
        <translation>Legt fest, welchen Eintrag der Liste der Zoomstufen die Dokumentnotizen verwenden.</translation>
    </message>
    <message>
        <source>Rewind on pause</source>
        <translation>Zurückspulen bei Pause</translation>
    </message>
    <message>
        <source>Determines how many seconds a recording goes back when it is paused, so that no word is missed.</source>
        <translation>Legt fest, um wie viele Sekunden eine Aufnahme bei einer Pause zurückgeht, damit kein Wort verloren geht.</translation>
    </message>
    <message>
        <source>Backups to keep</source>
        <translation>Zu behaltende Sicherungskopien</translation>
    </message>
    <message>
        <source>Determines how many backups of a project are kept before the oldest is removed.</source>
        <translation>Legt fest, wie viele Sicherungskopien eines Projekts behalten werden, bevor die älteste entfernt wird.</translation>
    </message>
    <message>
        <source>Revision of new text</source>
        <translation>Überarbeitung für neuen Text</translation>
    </message>
    <message>
        <source>Determines as which revision new text is marked, from 1 to 5; 0 marks nothing.</source>
        <translation>Legt fest, als welche Überarbeitung neuer Text gekennzeichnet wird, von 1 bis 5; 0 kennzeichnet nichts.</translation>
    </message>
    <message>
        <source>Adapt indents to line spacing</source>
        <translation>Einzüge an den Zeilenabstand anpassen</translation>
    </message>
    <message>
        <source>Determines how the first-line indent follows when the line spacing is changed.</source>
        <translation>Legt fest, wie der Erstzeileneinzug folgt, wenn der Zeilenabstand geändert wird.</translation>
    </message>
    <message>
        <source>Open links in</source>
        <translation>Links öffnen in</translation>
    </message>
    <message>
        <source>Determines where the document opens that a clicked link leads to.</source>
        <translation>Legt fest, wo das Dokument geöffnet wird, auf das ein angeklickter Link führt.</translation>
    </message>
    <message>
        <source>Recent projects to list</source>
        <translation>Anzahl zuletzt benutzter Projekte</translation>
    </message>
    <message>
        <source>Determines how many projects the menu of recent projects shows.</source>
        <translation>Legt fest, wie viele Projekte das Menü der zuletzt benutzten Projekte zeigt.</translation>
    </message>
    <message>
        <source>Last format of an OPML export</source>
        <translation>Letztes Format eines OPML-Exports</translation>
    </message>
    <message>
        <source>This is the format that the last export to OPML used.</source>
        <translation>Dies ist das Format, das der letzte Export nach OPML verwendet hat.</translation>
    </message>
    <message>
        <source>Content of OPML exports</source>
        <translation>Inhalt von OPML-Exporten</translation>
    </message>
    <message>
        <source>Determines which parts of the documents an export to OPML contains.</source>
        <translation>Legt fest, welche Teile der Dokumente ein Export nach OPML enthält.</translation>
    </message>
    <message>
        <source>Content of OPML imports</source>
        <translation>Inhalt von OPML-Importen</translation>
    </message>
    <message>
        <source>Determines what the notes of an OPML file become when it is imported.</source>
        <translation>Legt fest, was beim Import aus den Notizen einer OPML-Datei wird.</translation>
    </message>
    <message>
        <source>Last choice for an OPML import</source>
        <translation>Letzte Wahl für einen OPML-Import</translation>
    </message>
    <message>
        <source>This is the choice that the import dialog showed last.</source>
        <translation>Dies ist die Wahl, die der Importdialog zuletzt angezeigt hat.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Sets how loud recordings are played, from 0 (silent) to 1 (full).</source>
        <translation>Legt fest, wie laut Aufnahmen abgespielt werden, von 0 (stumm) bis 1 (voll).</translation>
    </message>
    <message>
        <source>Margin of the editor</source>
        <translation>Rand des Editors</translation>
    </message>
    <message>
        <source>Sets how many pixels are left free between the text and the edge of the editor.</source>
        <translation>Legt fest, wie viele Pixel zwischen dem Text und dem Rand des Editors frei bleiben.</translation>
    </message>
    <message>
        <source>Folder of templates</source>
        <translation>Ordner der Vorlagen</translation>
    </message>
    <message>
        <source>This is the folder in which project templates of your own are kept.</source>
        <translation>Dies ist der Ordner, in dem eigene Projektvorlagen liegen.</translation>
    </message>
    <message>
        <source>Picture of the corkboard</source>
        <translation>Bild der Pinnwand</translation>
    </message>
    <message>
        <source>This is the picture file that covers the corkboard; without one it has a plain colour.</source>
        <translation>Dies ist die Bilddatei, die die Pinnwand bedeckt; ohne Bild ist sie einfarbig.</translation>
    </message>
    <message>
        <source>Unit of the ruler</source>
        <translation>Einheit des Lineals</translation>
    </message>
    <message>
        <source>This is the unit in which the ruler and the fields for lengths count.</source>
        <translation>Dies ist die Einheit, in der das Lineal und die Felder für Längen rechnen.</translation>
    </message>
    <message>
        <source>Step of the ruler</source>
        <translation>Schrittweite des Lineals</translation>
    </message>
    <message>
        <source>This is the distance in which tab stops and indents move on the ruler; empty lets them move freely.</source>
        <translation>Dies ist der Abstand, in dem sich Tabstopps und Einzüge auf dem Lineal bewegen; leer bewegen sie sich frei.</translation>
    </message>
    <message>
        <source>Language of the dictionary</source>
        <translation>Sprache des Wörterbuchs</translation>
    </message>
    <message>
        <source>This is the language in which spelling is checked, such as en_GB.</source>
        <translation>Dies ist die Sprache, in der die Rechtschreibung geprüft wird, etwa de_DE.</translation>
    </message>
    <message>
        <source>Citation manager</source>
        <translation>Literaturverwaltung</translation>
    </message>
    <message>
        <source>This is the program that opens when citations are to be inserted.</source>
        <translation>Dies ist das Programm, das zum Einfügen von Literaturangaben geöffnet wird.</translation>
    </message>
    <message>
        <source>Folder of scratch pad notes</source>
        <translation>Ordner des Notizblocks</translation>
    </message>
    <message>
        <source>This is the folder in which the notes of the scratch pad are kept.</source>
        <translation>Dies ist der Ordner, in dem die Notizen des Notizblocks liegen.</translation>
    </message>
    <message>
        <source>Last scratch pad note</source>
        <translation>Letzte Notiz des Notizblocks</translation>
    </message>
    <message>
        <source>This is the note that the scratch pad showed last.</source>
        <translation>Dies ist die Notiz, die der Notizblock zuletzt angezeigt hat.</translation>
    </message>
    <message>
        <source>Layout of the scratch pad</source>
        <translation>Aufteilung des Notizblocks</translation>
    </message>
    <message>
        <source>Determines whether the list of notes stands above the text or beside it.</source>
        <translation>Legt fest, ob die Liste der Notizen über oder neben dem Text steht.</translation>
    </message>
    <message>
        <source>Folder of backups</source>
        <translation>Ordner der Sicherungskopien</translation>
    </message>
    <message>
        <source>This is the folder in which automatic backups are kept.</source>
        <translation>Dies ist der Ordner, in dem die automatischen Sicherungskopien liegen.</translation>
    </message>
    <message>
        <source>Language of the application</source>
        <translation>Sprache der Anwendung</translation>
    </message>
    <message>
        <source>This is the language of menus and dialogs; it changes at the next start.</source>
        <translation>Dies ist die Sprache der Menüs und Dialoge; sie wechselt beim nächsten Start.</translation>
    </message>
    <message>
        <source>Double quotes</source>
        <translation>Doppelte Anführungszeichen</translation>
    </message>
    <message>
        <source>These are the opening and the closing mark that replace straight double quotes.</source>
        <translation>Dies sind das öffnende und das schließende Zeichen, die gerade doppelte Anführungszeichen ersetzen.</translation>
    </message>
    <message>
        <source>Single quotes</source>
        <translation>Einfache Anführungszeichen</translation>
    </message>
    <message>
        <source>These are the opening and the closing mark that replace straight single quotes.</source>
        <translation>Dies sind das öffnende und das schließende Zeichen, die gerade einfache Anführungszeichen ersetzen.</translation>
    </message>
    <message>
        <source>Labels on index cards</source>
        <translation>Etiketten auf Karteikarten</translation>
    </message>
    <message>
        <source>Determines how an index card shows the colour of its label.</source>
        <translation>Legt fest, wie eine Karteikarte die Farbe ihres Etiketts zeigt.</translation>
    </message>
    <message>
        <source>Corners of index cards</source>
        <translation>Ecken der Karteikarten</translation>
    </message>
    <message>
        <source>Determines whether the corners of index cards are square or rounded.</source>
        <translation>Legt fest, ob die Ecken der Karteikarten eckig oder abgerundet sind.</translation>
    </message>
    <message>
        <source>Double click on the corkboard</source>
        <translation>Doppelklick auf die Pinnwand</translation>
    </message>
    <message>
        <source>Determines what a double click between the cards does.</source>
        <translation>Legt fest, was ein Doppelklick zwischen die Karten bewirkt.</translation>
    </message>
    <message>
        <source>Kindle converter</source>
        <translation>Kindle-Konverter</translation>
    </message>
    <message>
        <source>This is the program that makes Kindle books; without it, they are not offered.</source>
        <translation>Dies ist das Programm, das Kindle-Bücher erzeugt; ohne das Programm werden sie nicht angeboten.</translation>
    </message>
    <message>
        <source>Last folder of an OPML import</source>
        <translation>Letzter Ordner eines OPML-Imports</translation>
    </message>
    <message>
        <source>This is the folder from which an OPML file was last imported.</source>
        <translation>Dies ist der Ordner, aus dem zuletzt eine OPML-Datei importiert wurde.</translation>
    </message>
    <message>
        <source>Personal dictionary</source>
        <translation>Eigenes Wörterbuch</translation>
    </message>
    <message>
        <source>These are the words that you have added to the dictionary.</source>
        <translation>Dies sind die Wörter, die Sie dem Wörterbuch hinzugefügt haben.</translation>
    </message>
    <message>
        <source>This is the colour of the line below the title of an index card.</source>
        <translation>Dies ist die Farbe der Linie unter dem Titel einer Karteikarte.</translation>
    </message>
    <message>
        <source>This is the colour of the lines on an index card.</source>
        <translation>Dies ist die Farbe der Schreiblinien auf einer Karteikarte.</translation>
    </message>
    <message>
        <source>This is the colour of the status that is stamped on an index card.</source>
        <translation>Dies ist die Farbe des Status, der auf eine Karteikarte gestempelt wird.</translation>
    </message>
    <message>
        <source>This is the colour of the edge of an index card.</source>
        <translation>Dies ist die Farbe des Rands einer Karteikarte.</translation>
    </message>
    <message>
        <source>This is the colour of an index card without a label.</source>
        <translation>Dies ist die Farbe einer Karteikarte ohne Etikett.</translation>
    </message>
    <message>
        <source>This is the colour of the corkboard where it has no picture.</source>
        <translation>Dies ist die Farbe der Pinnwand, wenn sie kein Bild hat.</translation>
    </message>
    <message>
        <source>This is the colour of the screen around the page in full screen.</source>
        <translation>Dies ist die Farbe des Bildschirms um die Seite im Vollbild.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the first revision.</source>
        <translation>Dies ist die Farbe von Text, der in der ersten Überarbeitung geschrieben wurde.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the second revision.</source>
        <translation>Dies ist die Farbe von Text, der in der zweiten Überarbeitung geschrieben wurde.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the third revision.</source>
        <translation>Dies ist die Farbe von Text, der in der dritten Überarbeitung geschrieben wurde.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the fourth revision.</source>
        <translation>Dies ist die Farbe von Text, der in der vierten Überarbeitung geschrieben wurde.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the fifth revision.</source>
        <translation>Dies ist die Farbe von Text, der in der fünften Überarbeitung geschrieben wurde.</translation>
    </message>
    <message>
        <source>This is the colour of text in the editor that has none of its own.</source>
        <translation>Dies ist die Farbe von Text im Editor, der keine eigene hat.</translation>
    </message>
    <message>
        <source>This is the colour of the page in the editor.</source>
        <translation>Dies ist die Farbe der Seite im Editor.</translation>
    </message>
    <message>
        <source>This is the colour of links in the editor.</source>
        <translation>Dies ist die Farbe der Links im Editor.</translation>
    </message>
    <message>
        <source>This is the colour of links in the editor that have been opened.</source>
        <translation>Dies ist die Farbe von Links im Editor, die schon geöffnet wurden.</translation>
    </message>
    <message>
        <source>This is the colour of blanks, tabs and paragraph marks in the editor.</source>
        <translation>Dies ist die Farbe von Leerzeichen, Tabulatoren und Absatzmarken im Editor.</translation>
    </message>
    <message>
        <source>This is the colour of selected text in the editor.</source>
        <translation>Dies ist die Farbe von ausgewähltem Text im Editor.</translation>
    </message>
    <message>
        <source>This is the background of selected text in the editor.</source>
        <translation>Dies ist der Hintergrund von ausgewähltem Text im Editor.</translation>
    </message>
    <message>
        <source>This is the colour of annotations within the text.</source>
        <translation>Dies ist die Farbe von Anmerkungen im Text.</translation>
    </message>
    <message>
        <source>This is the background of text that has a comment.</source>
        <translation>Dies ist der Hintergrund von Text mit einem Kommentar.</translation>
    </message>
    <message>
        <source>This is the colour of the text of footnotes.</source>
        <translation>Dies ist die Farbe des Textes von Fußnoten.</translation>
    </message>
    <message>
        <source>This is the background of text that has a footnote.</source>
        <translation>Dies ist der Hintergrund von Text mit einer Fußnote.</translation>
    </message>
    <message>
        <source>This is the background of text that keeps its formatting when the book is compiled.</source>
        <translation>Dies ist der Hintergrund von Text, der beim Kompilieren seine Formatierung behält.</translation>
    </message>
    <message>
        <source>This is the background of what a project search has found in the editor.</source>
        <translation>Dies ist der Hintergrund der Treffer einer Projektsuche im Editor.</translation>
    </message>
    <message>
        <source>This is the colour of the frame around what a project search has found in the editor.</source>
        <translation>Dies ist die Farbe des Rahmens um die Treffer einer Projektsuche im Editor.</translation>
    </message>
    <message>
        <source>This is the background of what was found in the document.</source>
        <translation>Dies ist der Hintergrund der Fundstellen im Dokument.</translation>
    </message>
    <message>
        <source>This is the background of every other match in the document.</source>
        <translation>Dies ist der Hintergrund jeder zweiten Fundstelle im Dokument.</translation>
    </message>
    <message>
        <source>This is the colour of text that was found in the document.</source>
        <translation>Dies ist die Farbe von Text, der im Dokument gefunden wurde.</translation>
    </message>
    <message>
        <source>This is the colour of the line below a misspelt word.</source>
        <translation>Dies ist die Farbe der Linie unter einem falsch geschriebenen Wort.</translation>
    </message>
    <message>
        <source>This is the colour of text in full screen that has none of its own.</source>
        <translation>Dies ist die Farbe von Text im Vollbild, der keine eigene hat.</translation>
    </message>
    <message>
        <source>This is the colour of the page in full screen.</source>
        <translation>Dies ist die Farbe der Seite im Vollbild.</translation>
    </message>
    <message>
        <source>This is the colour of links in full screen.</source>
        <translation>Dies ist die Farbe der Links im Vollbild.</translation>
    </message>
    <message>
        <source>This is the colour of links in full screen that have been opened.</source>
        <translation>Dies ist die Farbe von Links im Vollbild, die schon geöffnet wurden.</translation>
    </message>
    <message>
        <source>This is the colour of blanks, tabs and paragraph marks in full screen.</source>
        <translation>Dies ist die Farbe von Leerzeichen, Tabulatoren und Absatzmarken im Vollbild.</translation>
    </message>
    <message>
        <source>This is the colour of selected text in full screen.</source>
        <translation>Dies ist die Farbe von ausgewähltem Text im Vollbild.</translation>
    </message>
    <message>
        <source>This is the background of selected text in full screen.</source>
        <translation>Dies ist der Hintergrund von ausgewähltem Text im Vollbild.</translation>
    </message>
    <message>
        <source>This is the background of what a project search has found, in full screen.</source>
        <translation>Dies ist der Hintergrund der Treffer einer Projektsuche im Vollbild.</translation>
    </message>
    <message>
        <source>This is the colour of the frame around what a project search has found, in full screen.</source>
        <translation>Dies ist die Farbe des Rahmens um die Treffer einer Projektsuche im Vollbild.</translation>
    </message>
    <message>
        <source>This is the background of what was found in the document, in full screen.</source>
        <translation>Dies ist der Hintergrund der Fundstellen im Dokument, im Vollbild.</translation>
    </message>
    <message>
        <source>This is the background of every other match in the document, in full screen.</source>
        <translation>Dies ist der Hintergrund jeder zweiten Fundstelle im Dokument, im Vollbild.</translation>
    </message>
    <message>
        <source>This is the colour of text that was found in the document, in full screen.</source>
        <translation>Dies ist die Farbe von Text, der im Dokument gefunden wurde, im Vollbild.</translation>
    </message>
    <message>
        <source>This is the background of the notes of a document.</source>
        <translation>Dies ist der Hintergrund der Notizen eines Dokuments.</translation>
    </message>
    <message>
        <source>This is the background of the notes of the project.</source>
        <translation>Dies ist der Hintergrund der Notizen des Projekts.</translation>
    </message>
    <message>
        <source>This is the background of the list of recent search results.</source>
        <translation>Dies ist der Hintergrund der Liste der letzten Suchergebnisse.</translation>
    </message>
    <message>
        <source>This is the background of the binder.</source>
        <translation>Dies ist der Hintergrund der Mappe.</translation>
    </message>
    <message>
        <source>This is the background of the outliner.</source>
        <translation>Dies ist der Hintergrund der Gliederung.</translation>
    </message>
    <message>
        <source>This is the background of every other row of the outliner.</source>
        <translation>Dies ist der Hintergrund jeder zweiten Zeile der Gliederung.</translation>
    </message>
    <message>
        <source>This is the background of earlier versions of a document.</source>
        <translation>Dies ist der Hintergrund früherer Fassungen eines Dokuments.</translation>
    </message>
    <message>
        <source>This is the background of the scratch pad.</source>
        <translation>Dies ist der Hintergrund des Notizblocks.</translation>
    </message>
    <message>
        <source>This is the colour of text in the scratch pad.</source>
        <translation>Dies ist die Farbe von Text im Notizblock.</translation>
    </message>
    <message>
        <source>Last check for updates</source>
        <translation>Letzte Suche nach Updates</translation>
    </message>
    <message>
        <source>This is the time at which a newer version was last looked for.</source>
        <translation>Dies ist der Zeitpunkt, zu dem zuletzt nach einer neueren Version gesucht wurde.</translation>
    </message>
    <message>
        <source>Time of the start</source>
        <translation>Zeitpunkt des Starts</translation>
    </message>
    <message>
        <source>This is the time at which the application was started.</source>
        <translation>Dies ist der Zeitpunkt, zu dem die Anwendung gestartet wurde.</translation>
    </message>
    <message>
        <source>This is the font of the titles of index cards.</source>
        <translation>Dies ist die Schrift der Titel von Karteikarten.</translation>
    </message>
    <message>
        <source>This is the font of the synopses on index cards.</source>
        <translation>Dies ist die Schrift der Synopsen auf Karteikarten.</translation>
    </message>
    <message>
        <source>This is the font of the synopses on small index cards.</source>
        <translation>Dies ist die Schrift der Synopsen auf kleinen Karteikarten.</translation>
    </message>
    <message>
        <source>This is the font of the status that is stamped on index cards.</source>
        <translation>Dies ist die Schrift des Status, der auf Karteikarten gestempelt wird.</translation>
    </message>
    <message>
        <source>This is the font of menus, buttons and dialogs.</source>
        <translation>Dies ist die Schrift der Menüs, Knöpfe und Dialoge.</translation>
    </message>
    <message>
        <source>This is the font of the notes of a document.</source>
        <translation>Dies ist die Schrift der Notizen eines Dokuments.</translation>
    </message>
    <message>
        <source>This is the font of the notes of the project.</source>
        <translation>Dies ist die Schrift der Notizen des Projekts.</translation>
    </message>
    <message>
        <source>This is the font of the binder.</source>
        <translation>Dies ist die Schrift der Mappe.</translation>
    </message>
    <message>
        <source>This is the font of the outliner.</source>
        <translation>Dies ist die Schrift der Gliederung.</translation>
    </message>
    <message>
        <source>This is the font of the bar above each editor.</source>
        <translation>Dies ist die Schrift der Leiste über jedem Editor.</translation>
    </message>
    <message>
        <source>This is the font of comments in the inspector.</source>
        <translation>Dies ist die Schrift der Kommentare im Inspektor.</translation>
    </message>
    <message>
        <source>This is the font of footnotes in the inspector.</source>
        <translation>Dies ist die Schrift der Fußnoten im Inspektor.</translation>
    </message>
    <message>
        <source>This is the font of the scratch pad.</source>
        <translation>Dies ist die Schrift des Notizblocks.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>This is the set of keys that the commands of the application have.</source>
        <translation>Dies sind die Tasten, die die Befehle der Anwendung haben.</translation>
    </message>
    <message>
        <source>Text presets</source>
        <translation>Textvorlagen</translation>
    </message>
    <message>
        <source>These are the named formats for characters and paragraphs.</source>
        <translation>Dies sind die benannten Formate für Zeichen und Absätze.</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Hintergrundbild</translation>
    </message>
    <message>
        <source>This is the picture that fills the screen around the page in full screen.</source>
        <translation>Dies ist das Bild, das den Bildschirm um die Seite im Vollbild füllt.</translation>
    </message>
    <message>
        <source>Replacements</source>
        <translation>Ersetzungen</translation>
    </message>
    <message>
        <source>This is the list of texts that are replaced while typing.</source>
        <translation>Dies ist die Liste der Texte, die beim Tippen ersetzt werden.</translation>
    </message>
    <message>
        <source>PDF settings</source>
        <translation>PDF-Einstellungen</translation>
    </message>
    <message>
        <source>These are the settings of PDF exports by their names.</source>
        <translation>Dies sind die Einstellungen von PDF-Exporten mit ihren Namen.</translation>
    </message>
    <message>
        <source>Place of the spelling window</source>
        <translation>Lage des Rechtschreibfensters</translation>
    </message>
    <message>
        <source>This is the place and the size that the spelling window had last.</source>
        <translation>Dies sind die Lage und die Größe, die das Rechtschreibfenster zuletzt hatte.</translation>
    </message>
    <message>
        <source>Import web pages as</source>
        <translation>Webseiten importieren als</translation>
    </message>
    <message>
        <source>Determines what a web page becomes when it is imported.</source>
        <translation>Legt fest, was beim Import aus einer Webseite wird.</translation>
    </message>
    <message>
        <source>Encoding of plain text</source>
        <translation>Kodierung von reinem Text</translation>
    </message>
    <message>
        <source>This is the encoding in which plain text files are read where they do not name one.</source>
        <translation>Dies ist die Kodierung, in der reine Textdateien gelesen werden, die selbst keine nennen.</translation>
    </message>
    <message>
        <source>Converters for imports</source>
        <translation>Konverter für Importe</translation>
    </message>
    <message>
        <source>Determines which converter reads which file format.</source>
        <translation>Legt fest, welcher Konverter welches Dateiformat liest.</translation>
    </message>
    <message>
        <source>Converters for exports</source>
        <translation>Konverter für Exporte</translation>
    </message>
    <message>
        <source>Determines which converter writes which file format.</source>
        <translation>Legt fest, welcher Konverter welches Dateiformat schreibt.</translation>
    </message>
    <message>
        <source>Characters of new documents</source>
        <translation>Zeichen neuer Dokumente</translation>
    </message>
    <message>
        <source>This is the format of characters with which a new document begins.</source>
        <translation>Dies ist das Zeichenformat, mit dem ein neues Dokument beginnt.</translation>
    </message>
    <message>
        <source>Paragraphs of new documents</source>
        <translation>Absätze neuer Dokumente</translation>
    </message>
    <message>
        <source>This is the format of paragraphs with which a new document begins.</source>
        <translation>Dies ist das Absatzformat, mit dem ein neues Dokument beginnt.</translation>
    </message>
    <message>
        <source>Between documents shown together</source>
        <translation>Zwischen zusammen angezeigten Dokumenten</translation>
    </message>
    <message>
        <source>Determines what separates the texts of documents that are shown as one.</source>
        <translation>Legt fest, was die Texte von Dokumenten trennt, die als eines angezeigt werden.</translation>
    </message>
    <message>
        <source>Separator of your own between documents shown together</source>
        <translation>Eigenes Trennzeichen zwischen zusammen angezeigten Dokumenten</translation>
    </message>
    <message>
        <source>This is the text that separates documents shown as one where a separator of your own is chosen.</source>
        <translation>Dies ist der Text, der als eines angezeigte Dokumente trennt, wenn ein eigenes Trennzeichen gewählt ist.</translation>
    </message>
    <message>
        <source>Between merged documents</source>
        <translation>Zwischen verbundenen Dokumenten</translation>
    </message>
    <message>
        <source>Determines what separates the texts of documents that are merged.</source>
        <translation>Legt fest, was die Texte von Dokumenten trennt, die verbunden werden.</translation>
    </message>
    <message>
        <source>Separator of your own between merged documents</source>
        <translation>Eigenes Trennzeichen zwischen verbundenen Dokumenten</translation>
    </message>
    <message>
        <source>This is the text that separates merged documents where a separator of your own is chosen.</source>
        <translation>Dies ist der Text, der verbundene Dokumente trennt, wenn ein eigenes Trennzeichen gewählt ist.</translation>
    </message>
    <message>
        <source>Between clippings</source>
        <translation>Zwischen Ausschnitten</translation>
    </message>
    <message>
        <source>Determines what separates a clipping from the text to which it is added.</source>
        <translation>Legt fest, was einen Ausschnitt von dem Text trennt, an den er angefügt wird.</translation>
    </message>
    <message>
        <source>Separator of your own between clippings</source>
        <translation>Eigenes Trennzeichen zwischen Ausschnitten</translation>
    </message>
    <message>
        <source>This is the text that separates clippings where a separator of your own is chosen.</source>
        <translation>Dies ist der Text, der Ausschnitte trennt, wenn ein eigenes Trennzeichen gewählt ist.</translation>
    </message>
    <message>
        <source>the commas make a list of the bytes; they belong into quotation marks</source>
        <translation>die Kommas machen aus den Bytes eine Liste; sie gehören in Anführungszeichen</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Font of card titles</source>
        <translation>Schrift der Kartentitel</translation>
    </message>
    <message>
        <source>Font of synopses</source>
        <translation>Schrift der Synopsen</translation>
    </message>
    <message>
        <source>Font of synopses on small cards</source>
        <translation>Schrift der Synopsen auf kleinen Karten</translation>
    </message>
    <message>
        <source>Font of status stamps</source>
        <translation>Schrift der Statusstempel</translation>
    </message>
    <message>
        <source>Font of menus and dialogs</source>
        <translation>Schrift von Menüs und Dialogen</translation>
    </message>
    <message>
        <source>Font of document notes</source>
        <translation>Schrift der Dokumentnotizen</translation>
    </message>
    <message>
        <source>Font of project notes</source>
        <translation>Schrift der Projektnotizen</translation>
    </message>
    <message>
        <source>Font of the binder</source>
        <translation>Schrift der Mappe</translation>
    </message>
    <message>
        <source>Font of the outliner</source>
        <translation>Schrift der Gliederung</translation>
    </message>
    <message>
        <source>Font of header bars</source>
        <translation>Schrift der Kopfleisten</translation>
    </message>
    <message>
        <source>Font of comments</source>
        <translation>Schrift der Kommentare</translation>
    </message>
    <message>
        <source>Font of footnotes</source>
        <translation>Schrift der Fußnoten</translation>
    </message>
    <message>
        <source>Font of the scratch pad</source>
        <translation>Schrift des Notizblocks</translation>
    </message>
    <message>
        <source>the value is damaged</source>
        <translation>der Wert ist beschädigt</translation>
    </message>
    <message>
        <source>%1; it can be reset</source>
        <translation>%1; es lässt sich zurücksetzen</translation>
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
        <translation>Dies ist keine normale Datei</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>Der Ordner existiert nicht</translation>
    </message>
    <message>
        <source>this is no settings file</source>
        <translation>Dies ist keine Einstellungsdatei</translation>
    </message>
</context>
<context>
    <name>MRVOutputFiles</name>
    <message>
        <source>two inputs would be written to this file</source>
        <translation>zwei Eingaben würden in diese Datei geschrieben</translation>
    </message>
    <message>
        <source>the output would replace an input</source>
        <translation>die Ausgabe würde eine Eingabe ersetzen</translation>
    </message>
</context>
<context>
    <name>MRVPagePublisher</name>
    <message>
        <source>there is no document to be written</source>
        <translation>es gibt kein Dokument, das geschrieben werden kann</translation>
    </message>
    <message>
        <source>the style sheet belongs to %1; choose another folder, or export these pages together</source>
        <translation>das Stylesheet gehört zu %1; wählen Sie einen anderen Ordner oder exportieren Sie diese Seiten zusammen</translation>
    </message>
    <message>
        <source>this style sheet was not written for these pages; choose another folder</source>
        <translation>dieses Stylesheet wurde nicht für diese Seiten geschrieben; wählen Sie einen anderen Ordner</translation>
    </message>
</context>
<context>
    <name>MRVPdfWriter</name>
    <message>
        <source>the pages cannot be painted</source>
        <translation>die Seiten können nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>The PDF document cannot be made: %1</source>
        <translation>Das PDF-Dokument kann nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>characters that no installed font has, and that are empty boxes: %1 (%2%3)</source>
        <translation>Zeichen, die keine installierte Schrift hat und die leere Kästchen sind: %1 (%2%3)</translation>
    </message>
</context>
<context>
    <name>MRVPictureReader</name>
    <message>
        <source>it does not exist</source>
        <translation>sie existiert nicht</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>sie kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>its %1 by %2 pixels are more than can be read</source>
        <translation>ihre %1 mal %2 Pixel sind mehr, als gelesen werden kann</translation>
    </message>
    <message>
        <source>it claims %1 by %2 pixels, which a file of its length does not hold</source>
        <translation>sie gibt %1 mal %2 Pixel an, die eine Datei ihrer Länge nicht enthält</translation>
    </message>
    <message>
        <source>it is in no known picture format</source>
        <translation>sie hat kein bekanntes Bildformat</translation>
    </message>
    <message>
        <source>it is in a form that cannot be checked</source>
        <translation>sie hat eine Form, die nicht geprüft werden kann</translation>
    </message>
    <message>
        <source>it holds too much compressed text</source>
        <translation>sie enthält zu viel komprimierten Text</translation>
    </message>
    <message>
        <source>it does not tell its size</source>
        <translation>sie gibt ihre Größe nicht an</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>sie ist beschädigt</translation>
    </message>
    <message>
        <source>it holds more than %1 MiB of text</source>
        <translation>sie enthält mehr als %1 MiB Text</translation>
    </message>
</context>
<context>
    <name>MRVProgressMeter</name>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
</context>
<context>
    <name>MRVRecovery</name>
    <message>
        <source>%1: no lock can be made there</source>
        <translation>%1: dort kann keine Sperre angelegt werden</translation>
    </message>
</context>
<context>
    <name>MRVScriptCheck</name>
    <message>
        <source>&apos;%1&apos; says nothing</source>
        <translation>„%1“ sagt nichts</translation>
    </message>
    <message>
        <source>&apos;%1&apos; looks like a cue, but is action</source>
        <translation>„%1“ sieht wie ein Sprechername aus, ist aber Handlung</translation>
    </message>
    <message>
        <source>the cue &apos;%1&apos; is one letter apart from &apos;%2&apos;</source>
        <translation>der Sprechername „%1“ unterscheidet sich in einem Buchstaben von „%2“</translation>
    </message>
    <message>
        <source>the cue &apos;%1&apos; is spelled &apos;%2&apos;</source>
        <translation>der Sprechername „%1“ wird sonst „%2“ geschrieben</translation>
    </message>
    <message>
        <source>the place &apos;%1&apos; is one letter apart from &apos;%2&apos;</source>
        <translation>der Ort „%1“ unterscheidet sich in einem Buchstaben von „%2“</translation>
    </message>
    <message>
        <source>the place &apos;%1&apos; is spelled &apos;%2&apos;</source>
        <translation>der Ort „%1“ wird sonst „%2“ geschrieben</translation>
    </message>
    <message>
        <source>&apos;%1&apos; ends nothing</source>
        <translation>„%1“ beendet nichts</translation>
    </message>
    <message>
        <source>&apos;%1&apos; begins a note that does not end in its paragraph</source>
        <translation>„%1“ beginnt eine Notiz, die nicht in ihrem Absatz endet</translation>
    </message>
    <message>
        <source>&apos;%1&apos; begins cut text that does not end</source>
        <translation>„%1“ beginnt gestrichenen Text, der nicht endet</translation>
    </message>
</context>
<context>
    <name>MRVScriptFile</name>
    <message>
        <source>unknown type of script</source>
        <translation>Unbekannte Art von Drehbuch</translation>
    </message>
    <message>
        <source>files of this type name their encoding themselves</source>
        <translation>Dateien dieses Typs nennen ihre Kodierung selbst</translation>
    </message>
    <message>
        <source>the encoding %1 lacks some characters of the changed text</source>
        <translation>der Kodierung %1 fehlen einige Zeichen des geänderten Textes</translation>
    </message>
</context>
<context>
    <name>MRVScriptMode</name>
    <message>
        <source>it is a folder</source>
        <translation>Es handelt sich um einen Ordner</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a script mode: %2</source>
        <translation>„%1“ ist kein Skriptmodus: %2</translation>
    </message>
    <message>
        <source>Cannot read the file &quot;%1&quot;: %2</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: the script mode is too large</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: Der Skriptmodus ist zu groß</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of &quot;%2&quot;</source>
        <translation>„%1“ ist kein Wert von „%2“</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is not expected in &quot;%2&quot;</source>
        <translation>Das Attribut „%1“ gehört nicht in „%2“</translation>
    </message>
    <message>
        <source>text between elements is ignored</source>
        <translation>Text zwischen Elementen wird übergangen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not expected in &quot;%2&quot; and is ignored</source>
        <translation>„%1“ gehört nicht in „%2“ und wird übergangen</translation>
    </message>
    <message>
        <source>the root element is &quot;%1&quot; and not &quot;%2&quot;</source>
        <translation>Das Wurzelelement ist „%1“ und nicht „%2“</translation>
    </message>
    <message>
        <source>the root element is in the namespace &quot;%1&quot;</source>
        <translation>Das Wurzelelement gehört zum Namensraum „%1“</translation>
    </message>
    <message>
        <source>the version is &quot;%1&quot; and not &quot;%2&quot;</source>
        <translation>Die Version ist „%1“ und nicht „%2“</translation>
    </message>
    <message>
        <source>the mode has more than %1 script elements</source>
        <translation>Es gibt mehr als %1 Skriptelemente</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>Die Datei ist größer als %1 Bytes</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: Return goes to &apos;%2&apos;, which is no element</source>
        <translation>„%1“: Die Eingabetaste führt zu „%2“, das kein Element ist</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: Tab in an empty line goes to &apos;%2&apos;, which is no element</source>
        <translation>„%1“: Tab in einer leeren Zeile führt zu „%2“, das kein Element ist</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: Tab goes to &apos;%2&apos;, which is no element</source>
        <translation>„%1“: Tab führt zu „%2“, das kein Element ist</translation>
    </message>
    <message>
        <source>the mode has no elements</source>
        <translation>der Modus hat keine Elemente</translation>
    </message>
    <message>
        <source>element %1 has no title</source>
        <translation>Element %1 hat keinen Titel</translation>
    </message>
    <message>
        <source>two elements are called &apos;%1&apos;</source>
        <translation>zwei Elemente heißen „%1“</translation>
    </message>
    <message>
        <source>the paragraphs of &apos;%1&apos; look like those of &apos;%2&apos;</source>
        <translation>die Absätze von „%1“ sehen aus wie die von „%2“</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither a factory mode nor a file</source>
        <translation>„%1“ ist weder ein mitgelieferter Modus noch eine Datei</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither a factory mode nor a file; did you mean &apos;%2&apos;?</source>
        <translation>„%1“ ist weder ein mitgelieferter Modus noch eine Datei; meinten Sie „%2“?</translation>
    </message>
</context>
<context>
    <name>MRVScriptPdf</name>
    <message>
        <source>Nobody called &quot;%1&quot; speaks.</source>
        <translation>Niemand namens „%1“ spricht.</translation>
    </message>
    <message>
        <source>The script has no such pages, or nothing to print.</source>
        <translation>Das Drehbuch hat keine solchen Seiten oder nichts zu drucken.</translation>
    </message>
</context>
<context>
    <name>MRVSearchOutcome</name>
    <message>
        <source>the search was given up in paragraph %1, where the expression can match in too many ways</source>
        <translation>die Suche wurde in Absatz %1 aufgegeben, wo der Ausdruck auf zu viele Arten passen kann</translation>
    </message>
    <message>
        <source>the search was given up in paragraph %1, since it took too long</source>
        <translation>die Suche wurde in Absatz %1 aufgegeben, da sie zu lange dauerte</translation>
    </message>
    <message>
        <source>the search was cancelled in paragraph %1</source>
        <translation>die Suche wurde in Absatz %1 abgebrochen</translation>
    </message>
</context>
<context>
    <name>MRVSettings</name>
    <message>
        <source>Cannot write the file &quot;%1&quot;: it is locked</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: Sie ist gesperrt</translation>
    </message>
    <message>
        <source>The settings have no file</source>
        <translation>Die Einstellungen haben keine Datei</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not hold settings</source>
        <translation>Die Datei „%1“ enthält keine Einstellungen</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a regular file</source>
        <translation>„%1“ ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: it cannot be locked</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: Sie kann nicht gesperrt werden</translation>
    </message>
</context>
<context>
    <name>MRVShortcut</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Fullscreen Only</source>
        <translation>Nur im Vollbild</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+N</source>
        <translation>Ctrl+G,Ctrl+N</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Toggle Scratch Pad</source>
        <translation>Notizblock ein-/ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+0</source>
        <translation>Ctrl+Shift+0</translation>
    </message>
    <message>
        <source>Show Spelling</source>
        <translation>Rechtschreibung anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Q</source>
        <translation>Ctrl+G,Ctrl+Q</translation>
    </message>
    <message>
        <source>Learn Spelling</source>
        <translation>Schreibweise lernen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+L</source>
        <translation>Ctrl+G,Ctrl+L</translation>
    </message>
    <message>
        <source>Ignore Spelling</source>
        <translation>Schreibweise ignorieren</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+L</source>
        <translation>Ctrl+G,Ctrl+Shift+L</translation>
    </message>
    <message>
        <source>Show Citations</source>
        <translation>Literaturverweise anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+O</source>
        <translation>Ctrl+G,Ctrl+O</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>Morvane Manual</source>
        <translation>Handbuch zu Morvane</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Duplicate Item With SubDocuments</source>
        <translation>Element mit Unterdokumenten duplizieren</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Duplicate Item Without SubDocuments</source>
        <translation>Element ohne Unterdokumente duplizieren</translation>
    </message>
    <message>
        <source>Ctrl+Shift+D</source>
        <translation>Ctrl+Shift+D</translation>
    </message>
    <message>
        <source>Toggle Main Toolbar</source>
        <translation>Hauptsymbolleiste ein-/ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+6</source>
        <translation>Ctrl+Shift+6</translation>
    </message>
    <message>
        <source>Toggle Collections</source>
        <translation>Sammlungen ein-/ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+9</source>
        <translation>Ctrl+Shift+9</translation>
    </message>
    <message>
        <source>Toggle Header Bar</source>
        <translation>Kopfleiste ein-/ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+4</source>
        <translation>Ctrl+Shift+4</translation>
    </message>
    <message>
        <source>Toggle Footer Bar</source>
        <translation>Fußleiste ein-/ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+5</source>
        <translation>Ctrl+Shift+5</translation>
    </message>
    <message>
        <source>Search in Project</source>
        <translation>Im Projekt suchen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+F</source>
        <translation>Ctrl+Shift+F</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Im Editor öffnen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Return</source>
        <translation>Ctrl+Shift+Return</translation>
    </message>
    <message>
        <source>Open in Other Editor</source>
        <translation>Im anderen Editor öffnen</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Return</source>
        <translation>Ctrl+Alt+Return</translation>
    </message>
    <message>
        <source>Open in External Editor</source>
        <translation>In externem Editor öffnen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
    </message>
    <message>
        <source>Group Selection</source>
        <translation>Auswahl gruppieren</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+U</source>
        <translation>Ctrl+G,Ctrl+U</translation>
    </message>
    <message>
        <source>Ungroup Selection</source>
        <translation>Gruppierung der Auswahl aufheben</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+B</source>
        <translation>Ctrl+G,Ctrl+B</translation>
    </message>
    <message>
        <source>Merge Documents</source>
        <translation>Dokumente zusammenführen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+M</source>
        <translation>Ctrl+Shift+M</translation>
    </message>
    <message>
        <source>Back in Editor</source>
        <translation>Im Editor zurück</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Forward in Editor</source>
        <translation>Im Editor vorwärts</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>Back in Other Editor</source>
        <translation>Im anderen Editor zurück</translation>
    </message>
    <message>
        <source>Ctrl+G,Alt+Left</source>
        <translation>Ctrl+G,Alt+Left</translation>
    </message>
    <message>
        <source>Forward in Other Editor</source>
        <translation>Im anderen Editor vorwärts</translation>
    </message>
    <message>
        <source>Ctrl+G,Alt+Right</source>
        <translation>Ctrl+G,Alt+Right</translation>
    </message>
    <message>
        <source>Use Label Color in Binder</source>
        <translation>Etikettfarbe in der Mappe verwenden</translation>
    </message>
    <message>
        <source>Use Label Color in Icons</source>
        <translation>Etikettfarbe in Symbolen verwenden</translation>
    </message>
    <message>
        <source>Use Label Color in Index Cards</source>
        <translation>Etikettfarbe auf Karteikarten verwenden</translation>
    </message>
    <message>
        <source>Use Label Color in Outliner Rows</source>
        <translation>Etikettfarbe in Zeilen der Gliederung verwenden</translation>
    </message>
    <message>
        <source>Move Focus to Next Area</source>
        <translation>Fokus in den nächsten Bereich setzen</translation>
    </message>
    <message>
        <source>F6</source>
        <translation>F6</translation>
    </message>
    <message>
        <source>Edit Metadata</source>
        <translation>Metadaten bearbeiten</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+M</source>
        <translation>Ctrl+G,Ctrl+Shift+M</translation>
    </message>
    <message>
        <source>Reveal in Binder</source>
        <translation>In der Mappe zeigen</translation>
    </message>
    <message>
        <source>Ctrl+Alt+B</source>
        <translation>Ctrl+Alt+B</translation>
    </message>
    <message>
        <source>Show Auto-Complete List</source>
        <translation>Vervollständigungsliste anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+Space</source>
        <translation>Ctrl+G,Shift+Space</translation>
    </message>
    <message>
        <source>Show Project Notes</source>
        <translation>Projektnotizen anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+P</source>
        <translation>Ctrl+G,Ctrl+Shift+P</translation>
    </message>
    <message>
        <source>Show Labels on Index Cards</source>
        <translation>Etiketten auf Karteikarten anzeigen</translation>
    </message>
    <message>
        <source>Show Status on Index Cards</source>
        <translation>Status auf Karteikarten anzeigen</translation>
    </message>
    <message>
        <source>Show Keywords on Index Cards</source>
        <translation>Stichwörter auf Karteikarten anzeigen</translation>
    </message>
    <message>
        <source>New Text</source>
        <translation>Neuer Text</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>New From First Template</source>
        <translation>Neu aus erster Vorlage</translation>
    </message>
    <message>
        <source>Ctrl+Alt+N</source>
        <translation>Ctrl+Alt+N</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Del</source>
        <translation>Ctrl+Shift+Del</translation>
    </message>
    <message>
        <source>Convert to Default Formatting</source>
        <translation>In Standardformatierung umwandeln</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+0</source>
        <translation>Ctrl+G,Ctrl+0</translation>
    </message>
    <message>
        <source>Toggle Binder</source>
        <translation>Mappe ein-/ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+B</source>
        <translation>Ctrl+Shift+B</translation>
    </message>
    <message>
        <source>Toggle Inspector</source>
        <translation>Inspektor ein-/ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+I</source>
        <translation>Ctrl+Shift+I</translation>
    </message>
    <message>
        <source>Toggle Keywords Panel</source>
        <translation>Stichwortfenster ein-/ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+W</source>
        <translation>Ctrl+G,Ctrl+W</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>Vollbild ein-/ausschalten</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>Toggle Ruler</source>
        <translation>Lineal ein-/ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Toggle Format Bar</source>
        <translation>Formatleiste ein-/ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+7</source>
        <translation>Ctrl+Shift+7</translation>
    </message>
    <message>
        <source>Toggle Typewriter Scrolling</source>
        <translation>Schreibmaschinenrollen ein-/ausschalten</translation>
    </message>
    <message>
        <source>Ctrl+Shift+T</source>
        <translation>Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>No Split</source>
        <translation>Nicht teilen</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Split Horizontally</source>
        <translation>Waagerecht teilen</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Split Vertically</source>
        <translation>Senkrecht teilen</translation>
    </message>
    <message>
        <source>Ctrl+6</source>
        <translation>Ctrl+6</translation>
    </message>
    <message>
        <source>Show Text</source>
        <translation>Text anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+1</source>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show Corkboard</source>
        <translation>Pinnwand anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show Outliner</source>
        <translation>Gliederung anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Lock Editor</source>
        <translation>Editor sperren</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+K</source>
        <translation>Ctrl+G,Ctrl+K</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>Ctrl+Shift+P</source>
        <translation>Ctrl+Shift+P</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Ctrl+Alt+P</source>
        <translation>Ctrl+Alt+P</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Close Project</source>
        <translation>Projekt schließen</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Kompilieren</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Import Files</source>
        <translation>Dateien importieren</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+I</source>
        <translation>Ctrl+G,Ctrl+I</translation>
    </message>
    <message>
        <source>Import Web Page</source>
        <translation>Webseite importieren</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+I</source>
        <translation>Ctrl+G,Ctrl+Shift+I</translation>
    </message>
    <message>
        <source>Export Files</source>
        <translation>Dateien exportieren</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+E</source>
        <translation>Ctrl+G,Ctrl+E</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Rückwärts suchen</translation>
    </message>
    <message>
        <source>Shift+F3</source>
        <translation>Shift+F3</translation>
    </message>
    <message>
        <source>Use Selection for Find</source>
        <translation>Auswahl als Suchtext verwenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+G</source>
        <translation>Ctrl+Shift+G</translation>
    </message>
    <message>
        <source>Jump to Selection</source>
        <translation>Zur Auswahl springen</translation>
    </message>
    <message>
        <source>Ctrl+Alt+J</source>
        <translation>Ctrl+Alt+J</translation>
    </message>
    <message>
        <source>Replace and Find Next</source>
        <translation>Ersetzen und weitersuchen</translation>
    </message>
    <message>
        <source>Ctrl+H</source>
        <translation>Ctrl+H</translation>
    </message>
    <message>
        <source>Find in Synopsis</source>
        <translation>In der Synopsis suchen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Y</source>
        <translation>Ctrl+G,Ctrl+Y</translation>
    </message>
    <message>
        <source>Find by Format</source>
        <translation>Nach Format suchen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+F</source>
        <translation>Ctrl+G,Ctrl+F</translation>
    </message>
    <message>
        <source>Find Next by Format</source>
        <translation>Nach Format weitersuchen</translation>
    </message>
    <message>
        <source>F4</source>
        <translation>F4</translation>
    </message>
    <message>
        <source>Find Previous by Format</source>
        <translation>Nach Format rückwärts suchen</translation>
    </message>
    <message>
        <source>Shift+F4</source>
        <translation>Shift+F4</translation>
    </message>
    <message>
        <source>Find in PDF</source>
        <translation>Im PDF suchen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+F</source>
        <translation>Ctrl+G,Ctrl+Shift+F</translation>
    </message>
    <message>
        <source>Find Next in PDF</source>
        <translation>Im PDF weitersuchen</translation>
    </message>
    <message>
        <source>Ctrl+G,F3</source>
        <translation>Ctrl+G,F3</translation>
    </message>
    <message>
        <source>Find Previous in PDF</source>
        <translation>Im PDF rückwärts suchen</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+F3</source>
        <translation>Ctrl+G,Shift+F3</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Alles aufklappen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl++</source>
        <translation>Ctrl+G,Ctrl++</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Alles zuklappen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+-</source>
        <translation>Ctrl+G,Ctrl+-</translation>
    </message>
    <message>
        <source>Collapse to Current Level</source>
        <translation>Bis zur aktuellen Ebene zuklappen</translation>
    </message>
    <message>
        <source>Previous Container</source>
        <translation>Vorheriger Behälter</translation>
    </message>
    <message>
        <source>Ctrl+PgUp</source>
        <translation>Ctrl+PgUp</translation>
    </message>
    <message>
        <source>Next Container</source>
        <translation>Nächster Behälter</translation>
    </message>
    <message>
        <source>Ctrl+PgDown</source>
        <translation>Ctrl+PgDown</translation>
    </message>
    <message>
        <source>Next Collection</source>
        <translation>Nächste Sammlung</translation>
    </message>
    <message>
        <source>Ctrl+Shift+PgDown</source>
        <translation>Ctrl+Shift+PgDown</translation>
    </message>
    <message>
        <source>Previous Collection</source>
        <translation>Vorherige Sammlung</translation>
    </message>
    <message>
        <source>Ctrl+Shift+PgUp</source>
        <translation>Ctrl+Shift+PgUp</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>Element nach oben verschieben</translation>
    </message>
    <message>
        <source>Alt+Shift+Up</source>
        <translation>Alt+Shift+Up</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>Element nach unten verschieben</translation>
    </message>
    <message>
        <source>Alt+Shift+Down</source>
        <translation>Alt+Shift+Down</translation>
    </message>
    <message>
        <source>Move Item Left</source>
        <translation>Element nach links verschieben</translation>
    </message>
    <message>
        <source>Alt+Shift+Left</source>
        <translation>Alt+Shift+Left</translation>
    </message>
    <message>
        <source>Move Item Right</source>
        <translation>Element nach rechts verschieben</translation>
    </message>
    <message>
        <source>Alt+Shift+Right</source>
        <translation>Alt+Shift+Right</translation>
    </message>
    <message>
        <source>Copy Selected PDF Text</source>
        <translation>Markierten PDF-Text kopieren</translation>
    </message>
    <message>
        <source>Ctrl+Alt+C</source>
        <translation>Ctrl+Alt+C</translation>
    </message>
    <message>
        <source>Zoom to Page Size</source>
        <translation>Auf ganze Seite zoomen</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>Zoom to Page Width</source>
        <translation>Auf Seitenbreite zoomen</translation>
    </message>
    <message>
        <source>Ctrl+Alt+0</source>
        <translation>Ctrl+Alt+0</translation>
    </message>
    <message>
        <source>Single Page</source>
        <translation>Einzelne Seite</translation>
    </message>
    <message>
        <source>Single Page Continuous</source>
        <translation>Einzelne Seiten fortlaufend</translation>
    </message>
    <message>
        <source>Play or Pause</source>
        <translation>Wiedergabe oder Pause</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>Vorspulen</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Zurückspulen</translation>
    </message>
    <message>
        <source>F7</source>
        <translation>F7</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Schnappschuss anlegen</translation>
    </message>
    <message>
        <source>Ctrl+Alt+S</source>
        <translation>Ctrl+Alt+S</translation>
    </message>
    <message>
        <source>Take Snapshot With Title</source>
        <translation>Schnappschuss mit Titel anlegen</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+S</source>
        <translation>Ctrl+Alt+Shift+S</translation>
    </message>
    <message>
        <source>Project Statistics</source>
        <translation>Projektstatistik</translation>
    </message>
    <message>
        <source>Ctrl+9</source>
        <translation>Ctrl+9</translation>
    </message>
    <message>
        <source>Text Statistics</source>
        <translation>Textstatistik</translation>
    </message>
    <message>
        <source>Ctrl+8</source>
        <translation>Ctrl+8</translation>
    </message>
    <message>
        <source>Project Targets</source>
        <translation>Projektziele</translation>
    </message>
    <message>
        <source>Ctrl+7</source>
        <translation>Ctrl+7</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>Strikethrough</source>
        <translation>Durchgestrichen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+X</source>
        <translation>Ctrl+Shift+X</translation>
    </message>
    <message>
        <source>Small Caps</source>
        <translation>Kapitälchen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+M</source>
        <translation>Ctrl+G,Ctrl+M</translation>
    </message>
    <message>
        <source>Bigger Font</source>
        <translation>Größere Schrift</translation>
    </message>
    <message>
        <source>Ctrl+&gt;</source>
        <translation>Ctrl+&gt;</translation>
    </message>
    <message>
        <source>Smaller Font</source>
        <translation>Kleinere Schrift</translation>
    </message>
    <message>
        <source>Ctrl+&lt;</source>
        <translation>Ctrl+&lt;</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>Hochgestellt</translation>
    </message>
    <message>
        <source>Ctrl+G,Up</source>
        <translation>Ctrl+G,Up</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>Tiefgestellt</translation>
    </message>
    <message>
        <source>Ctrl+G,Down</source>
        <translation>Ctrl+G,Down</translation>
    </message>
    <message>
        <source>Convert to Title Case</source>
        <translation>In Titelschreibung umwandeln</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+T</source>
        <translation>Ctrl+G,Ctrl+T</translation>
    </message>
    <message>
        <source>Convert to Smart Quotes</source>
        <translation>In typografische Anführungszeichen umwandeln</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+Q</source>
        <translation>Ctrl+G,Ctrl+Shift+Q</translation>
    </message>
    <message>
        <source>Convert to Straight Quotes</source>
        <translation>In gerade Anführungszeichen umwandeln</translation>
    </message>
    <message>
        <source>Convert Multiple Spaces to Single</source>
        <translation>Mehrfache Leerzeichen in einfache umwandeln</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>Linksbündig</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Align Center</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Blocksatz</translation>
    </message>
    <message>
        <source>Ctrl+J</source>
        <translation>Ctrl+J</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>Rechtsbündig</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Increase Left Indent</source>
        <translation>Linken Einzug vergrößern</translation>
    </message>
    <message>
        <source>Ctrl+G,Right</source>
        <translation>Ctrl+G,Right</translation>
    </message>
    <message>
        <source>Decrease Left Indent</source>
        <translation>Linken Einzug verkleinern</translation>
    </message>
    <message>
        <source>Ctrl+G,Left</source>
        <translation>Ctrl+G,Left</translation>
    </message>
    <message>
        <source>Increase First-Line Indent</source>
        <translation>Erstzeileneinzug vergrößern</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+Right</source>
        <translation>Ctrl+G,Shift+Right</translation>
    </message>
    <message>
        <source>Decrease First-Line Indent</source>
        <translation>Erstzeileneinzug verkleinern</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+Left</source>
        <translation>Ctrl+G,Shift+Left</translation>
    </message>
    <message>
        <source>Single Line Spacing</source>
        <translation>Einfacher Zeilenabstand</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+1</source>
        <translation>Ctrl+G,Ctrl+1</translation>
    </message>
    <message>
        <source>Double Line Spacing</source>
        <translation>Doppelter Zeilenabstand</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+2</source>
        <translation>Ctrl+G,Ctrl+2</translation>
    </message>
    <message>
        <source>One and a Half Line Spacing</source>
        <translation>Anderthalbfacher Zeilenabstand</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+5</source>
        <translation>Ctrl+G,Ctrl+5</translation>
    </message>
    <message>
        <source>Complete Word</source>
        <translation>Wort vervollständigen</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Space</source>
        <translation>Ctrl+Alt+Space</translation>
    </message>
    <message>
        <source>Complete Document Title</source>
        <translation>Dokumenttitel vervollständigen</translation>
    </message>
    <message>
        <source>Ctrl+G,Space</source>
        <translation>Ctrl+G,Space</translation>
    </message>
    <message>
        <source>Add Selection to Auto-Complete List</source>
        <translation>Auswahl zur Vervollständigungsliste hinzufügen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+A</source>
        <translation>Ctrl+G,Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Show Invisible Characters</source>
        <translation>Unsichtbare Zeichen anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+8</source>
        <translation>Ctrl+Shift+8</translation>
    </message>
    <message>
        <source>Ghost Notes</source>
        <translation>Notizen abblenden</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+H</source>
        <translation>Ctrl+G,Ctrl+H</translation>
    </message>
    <message>
        <source>Split at Selection</source>
        <translation>An der Auswahl teilen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Y</source>
        <translation>Ctrl+Shift+Y</translation>
    </message>
    <message>
        <source>Split With Selection as Title</source>
        <translation>Mit Auswahl als Titel teilen</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+Y</source>
        <translation>Ctrl+Alt+Shift+Y</translation>
    </message>
    <message>
        <source>Set Selection as Title</source>
        <translation>Auswahl als Titel festlegen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+T</source>
        <translation>Ctrl+G,Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Insert Image</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+P</source>
        <translation>Ctrl+G,Ctrl+P</translation>
    </message>
    <message>
        <source>Insert Morvane Link</source>
        <translation>Morvane-Link einfügen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+K</source>
        <translation>Ctrl+Shift+K</translation>
    </message>
    <message>
        <source>Insert Current Date and Time</source>
        <translation>Aktuelles Datum und Uhrzeit einfügen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+D</source>
        <translation>Ctrl+G,Ctrl+D</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>Inline Annotation</source>
        <translation>Anmerkung im Text</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+M</source>
        <translation>Ctrl+Alt+Shift+M</translation>
    </message>
    <message>
        <source>Inline Footnote</source>
        <translation>Fußnote im Text</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+O</source>
        <translation>Ctrl+Alt+Shift+O</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Ctrl+Alt+M</source>
        <translation>Ctrl+Alt+M</translation>
    </message>
    <message>
        <source>Footnote</source>
        <translation>Fußnote</translation>
    </message>
    <message>
        <source>Ctrl+Alt+O</source>
        <translation>Ctrl+Alt+O</translation>
    </message>
    <message>
        <source>Script Mode</source>
        <translation>Skriptmodus</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+R</source>
        <translation>Ctrl+G,Ctrl+R</translation>
    </message>
    <message>
        <source>Script Elements</source>
        <translation>Skriptelemente</translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Ctrl+B</source>
        <translation>Ctrl+B</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Ctrl+I</source>
        <translation>Ctrl+I</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Ctrl+U</source>
        <translation>Ctrl+U</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Z</source>
        <translation>Ctrl+Shift+Z</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Ctrl+X</source>
        <translation>Ctrl+X</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Ctrl+V</source>
        <translation>Ctrl+V</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Ctrl+A</translation>
    </message>
    <message>
        <source>Copy Font</source>
        <translation>Schriftart kopieren</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+C</source>
        <translation>Ctrl+G,Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Paste Font</source>
        <translation>Schriftart einfügen</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+V</source>
        <translation>Ctrl+G,Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>Copy Ruler</source>
        <translation>Lineal kopieren</translation>
    </message>
    <message>
        <source>Paste Ruler</source>
        <translation>Lineal einfügen</translation>
    </message>
    <message>
        <source>Copy Formatting</source>
        <translation>Formatierung kopieren</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+C</source>
        <translation>Ctrl+Alt+Shift+C</translation>
    </message>
    <message>
        <source>Paste Formatting</source>
        <translation>Formatierung einfügen</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+V</source>
        <translation>Ctrl+Alt+Shift+V</translation>
    </message>
    <message>
        <source>Preserve Formatting</source>
        <translation>Formatierung beibehalten</translation>
    </message>
    <message>
        <source>Paste and Match Style</source>
        <translation>Einfügen und Stil anpassen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>Insert Non-Breaking Space</source>
        <translation>Geschütztes Leerzeichen einfügen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Space</source>
        <translation>Ctrl+Shift+Space</translation>
    </message>
    <message>
        <source>Insert Paragraph Break</source>
        <translation>Absatzumbruch einfügen</translation>
    </message>
    <message>
        <source>Insert Line Break</source>
        <translation>Zeilenumbruch einfügen</translation>
    </message>
    <message>
        <source>Shift+Return</source>
        <translation>Shift+Return</translation>
    </message>
    <message>
        <source>Insert Page Break</source>
        <translation>Seitenumbruch einfügen</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Return</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Hervorheben</translation>
    </message>
    <message>
        <source>Ctrl+Shift+H</source>
        <translation>Ctrl+Shift+H</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+C</source>
        <translation>Ctrl+G,Ctrl+C</translation>
    </message>
    <message>
        <source>Edit Link</source>
        <translation>Link bearbeiten</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>Previous Document</source>
        <translation>Vorheriges Dokument</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>Next Document</source>
        <translation>Nächstes Dokument</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Down</translation>
    </message>
    <message>
        <source>Enclosing Group</source>
        <translation>Übergeordnete Gruppe</translation>
    </message>
    <message>
        <source>Alt+Home</source>
        <translation>Alt+Home</translation>
    </message>
    <message>
        <source>Editor Selection</source>
        <translation>Auswahl im Editor</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+J</source>
        <translation>Ctrl+G,Ctrl+J</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+G</source>
        <translation>Ctrl+G,Ctrl+G</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>unbekannter Befehl „%1“</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;; did you mean &apos;%2&apos;?</source>
        <translation>unbekannter Befehl „%1“; meinten Sie „%2“?</translation>
    </message>
</context>
<context>
    <name>MRVShortcutCheck</name>
    <message>
        <source>%1 is the key of both “%2” and “%3”.</source>
        <translation>%1 ist das Tastenkürzel sowohl von „%2“ als auch von „%3“.</translation>
    </message>
    <message>
        <source>%1 of “%2” is never reached, as %3 is the key of “%4”.</source>
        <translation>%1 von „%2“ wird nie erreicht, da %3 das Tastenkürzel von „%4“ ist.</translation>
    </message>
    <message>
        <source>Desktops or input methods take %1, the key of “%2”.</source>
        <translation>%1 von „%2“ ist ein Tastenkürzel, das Arbeitsumgebungen oder Eingabemethoden für sich beanspruchen.</translation>
    </message>
    <message>
        <source>%1 of “%2” begins with a key that writing needs.</source>
        <translation>%1 von „%2“ beginnt mit einer Taste, die zum Schreiben gebraucht wird.</translation>
    </message>
    <message>
        <source>The key of “%1” has no name and cannot be stored.</source>
        <translation>Das Tastenkürzel von „%1“ hat keinen Namen und geht beim Speichern verloren.</translation>
    </message>
    <message>
        <source>removed (%1)</source>
        <translation>entfernt (%1)</translation>
    </message>
    <message>
        <source>added (%1)</source>
        <translation>hinzugefügt (%1)</translation>
    </message>
    <message>
        <source>“%1” -&gt; “%2”</source>
        <translation>„%1“ -&gt; „%2“</translation>
    </message>
</context>
<context>
    <name>MRVShortcutInfo</name>
    <message>
        <source>no key</source>
        <translation>keine Taste</translation>
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
        <translation>Das ist kein Tastenkürzelschema einer bekannten Version</translation>
    </message>
    <message>
        <source>it is not a shortcut scheme</source>
        <translation>Das ist kein Tastenkürzelschema</translation>
    </message>
    <message numerus="yes">
        <source>it is damaged or truncated; shortcuts that could be read: %n</source>
        <translation>
            <numerusform>Das Schema ist beschädigt oder abgeschnitten; %n Tastenkürzel konnte gelesen werden</numerusform>
            <numerusform>Das Schema ist beschädigt oder abgeschnitten; %n Tastenkürzel konnten gelesen werden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: there is no such file, and no predefined scheme of that name</source>
        <translation>%1: Es gibt weder eine solche Datei noch ein vordefiniertes Schema dieses Namens</translation>
    </message>
    <message>
        <source>%1: there is no such file, and no predefined scheme of that name; did you mean &apos;%2&apos;?</source>
        <translation>%1: Es gibt weder eine solche Datei noch ein vordefiniertes Schema dieses Namens; meinten Sie „%2“?</translation>
    </message>
</context>
<context>
    <name>MRVSignature</name>
    <message>
        <source>no valid key is set to check it with</source>
        <translation>es gibt keinen gültigen Schlüssel, um sie zu prüfen</translation>
    </message>
    <message>
        <source>the signature cannot be read</source>
        <translation>die Signatur kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>it was made with another key</source>
        <translation>sie wurde mit einem anderen Schlüssel erzeugt</translation>
    </message>
    <message>
        <source>it was altered</source>
        <translation>sie wurde verändert</translation>
    </message>
</context>
<context>
    <name>MRVSourceEdit</name>
    <message>
        <source>the changes overlap or belong to another text</source>
        <translation>die Änderungen überschneiden sich oder gehören zu einem anderen Text</translation>
    </message>
    <message>
        <source>the new text would not be read back as it is</source>
        <translation>der neue Text würde anders zurückgelesen, als er ist</translation>
    </message>
    <message>
        <source>the encoding %1 cannot be written back as it was</source>
        <translation>die Kodierung %1 lässt sich nicht so zurückschreiben, wie sie war</translation>
    </message>
    <message>
        <source>a file of a word processor is read, but not changed</source>
        <translation>eine Datei einer Textverarbeitung wird gelesen, aber nicht geändert</translation>
    </message>
    <message>
        <source>others: %1</source>
        <translation>weitere: %1</translation>
    </message>
    <message>
        <source>the encoding %1 does not have all characters of the new text</source>
        <translation>die Kodierung %1 hat nicht alle Zeichen des neuen Textes</translation>
    </message>
    <message>
        <source>only HTML can be written as a whole with new formats</source>
        <translation>nur HTML kann mit neuen Formaten als Ganzes geschrieben werden</translation>
    </message>
</context>
<context>
    <name>MRVSourceFile</name>
    <message>
        <source>the file has been changed meanwhile</source>
        <translation>die Datei wurde inzwischen geändert</translation>
    </message>
    <message>
        <source>the backup cannot be made</source>
        <translation>die Sicherungskopie kann nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>MRVSourceMisfit</name>
    <message>
        <source>it does not fit into the markup</source>
        <translation>sie passt nicht in die Auszeichnung</translation>
    </message>
    <message>
        <source>the encoding %1 does not have all its characters</source>
        <translation>die Kodierung %1 hat nicht alle ihre Zeichen</translation>
    </message>
    <message>
        <source>there it cannot have this format</source>
        <translation>dort kann sie dieses Format nicht haben</translation>
    </message>
    <message>
        <source>the new text would not be read back as it is</source>
        <translation>der neue Text würde anders zurückgelesen, als er ist</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot; cannot be replaced: %3</source>
        <translation>Zeile %1: „%2“ kann nicht ersetzt werden: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: %2</source>
        <translation>„%1“ kann nicht ersetzt werden: %2</translation>
    </message>
    <message>
        <source>too many others near it cannot be made</source>
        <translation>zu viele andere in ihrer Nähe sind nicht möglich</translation>
    </message>
</context>
<context>
    <name>MRVStagedFiles</name>
    <message>
        <source>the folder cannot be made</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>no file can be made here (%1)</source>
        <translation>hier kann keine Datei angelegt werden (%1)</translation>
    </message>
    <message>
        <source>a folder is in the file&apos;s place</source>
        <translation>an der Stelle der Datei liegt ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>Es handelt sich nicht um eine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>%1; the old file is kept as %2</source>
        <translation>%1; die alte Datei liegt unter %2</translation>
    </message>
</context>
<context>
    <name>MRVTextFault</name>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>MRVTextFormat</name>
    <message>
        <source>The picture has no file name.</source>
        <translation>Das Bild hat keinen Dateinamen.</translation>
    </message>
    <message>
        <source>The picture cannot be encoded for the file &quot;%1&quot;.</source>
        <translation>Das Bild kann für die Datei „%1“ nicht kodiert werden.</translation>
    </message>
</context>
<context>
    <name>MRVTextPresetJson</name>
    <message>
        <source>&apos;%1&apos; is not a list of characters and paragraphs</source>
        <translation>„%1“ ist keine Liste aus characters und paragraphs</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a value of the property %2</source>
        <translation>„%1“ ist kein Wert der Eigenschaft %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of the properties %2</source>
        <translation>„%1“ ist keine der Eigenschaften %2</translation>
    </message>
</context>
<context>
    <name>MRVTextPresetScheme</name>
    <message>
        <source>The text presets are damaged, or were stored by another version</source>
        <translation>Die Textvorlagen sind beschädigt oder wurden von einer anderen Version gespeichert</translation>
    </message>
    <message>
        <source>%1 is not a preset file, or is damaged</source>
        <translation>%1 ist keine Datei mit Textvorlagen oder ist beschädigt</translation>
    </message>
</context>
<context>
    <name>MRVTextQuery</name>
    <message>
        <source>%1 (at character %2)</source>
        <translation>%1 (bei Zeichen %2)</translation>
    </message>
</context>
<context>
    <name>MRVTextXhtmlExporter</name>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>There is no document to export to %1.</source>
        <translation>Es gibt kein Dokument, das nach %1 exportiert werden kann.</translation>
    </message>
    <message>
        <source>There is no e-book page to export to %1.</source>
        <translation>Es gibt keine E-Book-Seite, die nach %1 exportiert werden kann.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be written: %2</source>
        <translation>Das Bild %1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>MRVUnit</name>
    <message>
        <source> inch(es)</source>
        <translation> Zoll</translation>
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
        <translation>Zeile %1: Das Bild %2 kann nicht gelesen werden: %3</translation>
    </message>
    <message>
        <source>the picture %1 cannot be read: %2</source>
        <translation>das Bild %1 kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>MRVUpdateDownloader</name>
    <message>
        <source>The address of the download is not valid.</source>
        <translation>Die Adresse des Downloads ist ungültig.</translation>
    </message>
    <message>
        <source>The server redirected the download to an address that is not safe.</source>
        <translation>Der Server hat den Download an eine unsichere Adresse weitergeleitet.</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>%1 is all up to date.</source>
        <translation>%1 ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>The installer was changed after it had been downloaded, and will not be opened.</source>
        <translation>Das Installationsprogramm wurde nach dem Download verändert und wird nicht geöffnet.</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>The server takes too long.</source>
        <translation>Der Server braucht zu lange.</translation>
    </message>
</context>
<context>
    <name>MRVUpdateFeed</name>
    <message>
        <source>its element &quot;%1&quot; is not valid</source>
        <translation>deren Element „%1“ ist nicht gültig</translation>
    </message>
</context>
<context>
    <name>MRVUpdateManager</name>
    <message>
        <source>&amp;Check for Updates...</source>
        <translation>&amp;Nach Updates suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Morvane Update</source>
        <translation>Update von Morvane</translation>
    </message>
    <message>
        <source>No active network connection found
You need internet connection to check for updates</source>
        <translation>Keine aktive Netzwerkverbindung gefunden
Um nach Updates zu suchen, benötigen Sie eine Internetverbindung</translation>
    </message>
    <message>
        <source>The installer cannot be opened: %1</source>
        <translation>Das Installationsprogramm kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>MRVUpdateModel</name>
    <message>
        <source>it is not this installer&apos;s</source>
        <translation>sie gehört nicht zu diesem Installationsprogramm</translation>
    </message>
    <message>
        <source>it was made for another file</source>
        <translation>sie wurde für eine andere Datei erzeugt</translation>
    </message>
    <message>
        <source>Failed to open update.ini file to determine update URL location and version. Please contact %1 so we can fix this problem quickly.</source>
        <translation>Die Datei update.ini mit der Update-Adresse und der Version konnte nicht geöffnet werden. Bitte wenden Sie sich an %1, damit wir dieses Problem schnell beheben können.</translation>
    </message>
    <message>
        <source>The update XML file contained empty values. Please contact %1 so we can help resolve this issue quickly.</source>
        <translation>Die XML-Datei des Updates enthielt leere Werte. Bitte wenden Sie sich an %1, damit wir dieses Problem schnell lösen können.</translation>
    </message>
    <message>
        <source>The update XML file names an installer that is not a plain file name. Please contact %1 so we can help resolve this issue quickly.</source>
        <translation>Die XML-Datei des Updates nennt ein Installationsprogramm, dessen Name kein einfacher Dateiname ist. Bitte wenden Sie sich an %1, damit wir dieses Problem schnell lösen können.</translation>
    </message>
    <message>
        <source>Unable to compare version numbers. Please contact %1 so we can help resolve this issue quickly</source>
        <translation>Die Versionsnummern können nicht verglichen werden. Bitte wenden Sie sich an %1, damit wir dieses Problem schnell lösen können</translation>
    </message>
    <message>
        <source>Could not open the downloaded file to validate it: </source>
        <translation>Die heruntergeladene Datei konnte nicht zur Prüfung geöffnet werden: </translation>
    </message>
    <message>
        <source>The download file could not be found on our server. Please contact %1 so we can help resolve this issue quickly.</source>
        <translation>Die Download-Datei wurde auf unserem Server nicht gefunden. Bitte wenden Sie sich an %1, damit wir dieses Problem schnell lösen können.</translation>
    </message>
    <message>
        <source>The downloaded xml update file is not integral. Please contact %1 for additional support if this does not work.</source>
        <translation>Die heruntergeladene XML-Datei des Updates ist nicht vollständig. Bitte wenden Sie sich an %1, wenn Sie weitere Hilfe benötigen.</translation>
    </message>
    <message>
        <source>Failed to read the downloaded update.xml file. Please try running &apos;Check for Update...&apos; again. Please contact %1 for additional support if this does not work.</source>
        <translation>Die heruntergeladene Datei update.xml konnte nicht gelesen werden. Bitte führen Sie „Nach Updates suchen&#xa0;…“ erneut aus. Wenden Sie sich an %1, wenn das nicht hilft.</translation>
    </message>
    <message>
        <source>Morvane couldn&apos;t find the update on our server.
This is probably an error on our part.
Please report this to %1.</source>
        <translation>Morvane konnte das Update auf unserem Server nicht finden.
Wahrscheinlich liegt der Fehler bei uns.
Bitte melden Sie dies an %1.</translation>
    </message>
    <message>
        <source>The installer does not carry a valid signature (%1) and will not be opened. Please report this to %2.</source>
        <translation>Das Installationsprogramm trägt keine gültige Signatur (%1) und wird nicht geöffnet. Bitte melden Sie dies an %2.</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The update feed is not accepted: %1. Please report this to %2.</source>
        <translation>Die Angaben zum Update werden nicht angenommen: %1. Bitte melden Sie dies an %2.</translation>
    </message>
    <message>
        <source>it does not say when it was made</source>
        <translation>die Signatur nennt nicht die Zeit, zu der sie erzeugt wurde</translation>
    </message>
    <message>
        <source>it is older than one that was seen before</source>
        <translation>sie sind älter als solche, die schon empfangen wurden</translation>
    </message>
    <message>
        <source>it is not what was signed</source>
        <translation>sie sind nicht das, was signiert wurde</translation>
    </message>
    <message>
        <source>it is another application&apos;s</source>
        <translation>sie gehören zu einem anderen Programm</translation>
    </message>
    <message>
        <source>it has expired</source>
        <translation>sie sind abgelaufen</translation>
    </message>
    <message>
        <source>it was made for another version</source>
        <translation>sie gilt für eine andere Version</translation>
    </message>
    <message>
        <source>The installer is not the one that the update feed describes, and will not be opened. Please report this to %1.</source>
        <translation>Das Installationsprogramm ist nicht das in den Angaben zum Update beschriebene und wird nicht geöffnet. Bitte melden Sie dies an %1.</translation>
    </message>
    <message>
        <source>it is not over a hash, as that of a large file has to be</source>
        <translation>sie gilt keinem Hash, wie es bei einer großen Datei nötig ist</translation>
    </message>
    <message>
        <source>it was made in the future</source>
        <translation>sie wurde in der Zukunft erstellt</translation>
    </message>
    <message>
        <source>it does not say which application it is for</source>
        <translation>sie nennt die Anwendung nicht, für die sie ist</translation>
    </message>
</context>
<context>
    <name>MRVXmlReader</name>
    <message>
        <source>elements are nested more deeply than %1 levels</source>
        <translation>Elemente sind mehr als %1 Ebenen tief verschachtelt</translation>
    </message>
    <message>
        <source>entities expand to too long a text</source>
        <translation>Entitäten ergeben zu viel Text</translation>
    </message>
    <message>
        <source>an element has too many attributes</source>
        <translation>Ein Element hat zu viele Attribute</translation>
    </message>
    <message>
        <source>an element has two attributes of one name</source>
        <translation>Ein Element hat zwei Attribute desselben Namens</translation>
    </message>
    <message>
        <source>the document type has too many declarations</source>
        <translation>Der Dokumenttyp hat zu viele Deklarationen</translation>
    </message>
    <message>
        <source>the entity &apos;%1&apos; is in another file, and other files are not read</source>
        <translation>Die Entität „%1“ steht in einer anderen Datei, und andere Dateien werden nicht gelesen</translation>
    </message>
    <message>
        <source>a document type declaration does not belong here</source>
        <translation>Eine Dokumenttyp-Deklaration gehört nicht hierher</translation>
    </message>
    <message>
        <source>a tag is longer than %1 characters</source>
        <translation>Ein Tag ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>XML does not allow the character %1</source>
        <translation>XML erlaubt das Zeichen %1 nicht</translation>
    </message>
</context>
<context>
    <name>MRVZipReader</name>
    <message>
        <source>it does not exist</source>
        <translation>sie existiert nicht</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is damaged, or no ZIP archive</source>
        <translation>sie ist beschädigt oder kein ZIP-Archiv</translation>
    </message>
    <message>
        <source>it holds too many files</source>
        <translation>sie enthält zu viele Dateien</translation>
    </message>
    <message>
        <source>it is damaged: its files are larger than it is</source>
        <translation>sie ist beschädigt: ihre Dateien sind größer als sie selbst</translation>
    </message>
    <message>
        <source>the name of a file in it leads out of it: %1</source>
        <translation>der Name einer Datei darin führt aus ihr hinaus: %1</translation>
    </message>
    <message>
        <source>it holds two files of one name: %1</source>
        <translation>sie enthält zwei Dateien eines Namens: %1</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>sie fehlt</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>it is encrypted, or packed in an unknown way</source>
        <translation>sie ist verschlüsselt oder auf unbekannte Weise gepackt</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>sie ist beschädigt</translation>
    </message>
</context>
<context>
    <name>MTranslator</name>
    <message>
        <source>A language can only be chosen while an application object exists</source>
        <translation>Eine Sprache kann nur gewählt werden, während es eine Anwendung gibt</translation>
    </message>
    <message>
        <source>No translation into the language &quot;%1&quot; exists</source>
        <translation>Es gibt keine Übersetzung in die Sprache „%1“</translation>
    </message>
    <message>
        <source>The translation &quot;%1&quot; cannot be read</source>
        <translation>Die Übersetzung „%1“ kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>MVersion</name>
    <message>
        <source>beta</source>
        <translation>Beta</translation>
    </message>
    <message>
        <source>Version: </source>
        <translation>Version: </translation>
    </message>
    <message>
        <source>Application: </source>
        <translation>Anwendung: </translation>
    </message>
    <message>
        <source>Build: </source>
        <translation>Build: </translation>
    </message>
    <message>
        <source>Executable: </source>
        <translation>Programmdatei: </translation>
    </message>
    <message>
        <source>Compiler: </source>
        <translation>Compiler: </translation>
    </message>
    <message>
        <source>Qt-Compiled: </source>
        <translation>Qt beim Kompilieren: </translation>
    </message>
    <message>
        <source>Qt-Runtime: </source>
        <translation>Qt zur Laufzeit: </translation>
    </message>
    <message>
        <source>Created: </source>
        <translation>Erstellt: </translation>
    </message>
    <message>
        <source>Warning! Different Qt versions: compiled </source>
        <translation>Achtung! Verschiedene Qt-Versionen, kompiliert: </translation>
    </message>
    <message>
        <source> runtime: </source>
        <translation> zur Laufzeit: </translation>
    </message>
</context>
<context>
    <name>MrvHttpReply</name>
    <message>
        <source>The proxy was not found</source>
        <translation>Der Proxy wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Der Rechner %1 wurde nicht gefunden</translation>
    </message>
    <message>
        <source>No connection to %1: %2</source>
        <translation>Keine Verbindung zu %1: %2</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>Connection closed without an answer</source>
        <translation>Die Verbindung wurde ohne Antwort geschlossen</translation>
    </message>
    <message>
        <source>Connection closed before the end</source>
        <translation>Die Verbindung wurde vor dem Ende geschlossen</translation>
    </message>
    <message>
        <source>Connection closed before the end: %2</source>
        <translation>Die Verbindung wurde vor dem Ende geschlossen: %2</translation>
    </message>
    <message>
        <source>SSL handshake failed: %2</source>
        <translation>Der SSL-Handshake ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>%1 does not answer in HTTP: %2</source>
        <translation>%1 antwortet nicht in HTTP: %2</translation>
    </message>
    <message>
        <source>The address is not valid: %2</source>
        <translation>Die Adresse ist ungültig: %2</translation>
    </message>
    <message>
        <source>Network access is disabled.</source>
        <translation>Der Netzwerkzugriff ist abgeschaltet.</translation>
    </message>
    <message>
        <source>Protocol &quot;%1&quot; is not supported</source>
        <translation>Das Protokoll „%1“ wird nicht unterstützt</translation>
    </message>
    <message>
        <source>The address names no host</source>
        <translation>Die Adresse nennt keinen Rechner</translation>
    </message>
    <message>
        <source>Only requests that fetch something are supported</source>
        <translation>Nur Anfragen, die etwas abrufen, werden unterstützt</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Vorgang abgebrochen</translation>
    </message>
    <message>
        <source>The compressed data is damaged</source>
        <translation>Die komprimierten Daten sind beschädigt</translation>
    </message>
    <message>
        <source>The server sends too much before it lets one in</source>
        <translation>Der Server sendet zu viel, bevor er die Anmeldung annimmt</translation>
    </message>
    <message>
        <source>SSL handshake failed: %1</source>
        <translation>Der SSL-Handshake ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Host requires authentication</source>
        <translation>Der Server verlangt eine Anmeldung</translation>
    </message>
    <message>
        <source>Proxy requires authentication</source>
        <translation>Der Proxy verlangt eine Anmeldung</translation>
    </message>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Fehler beim Übertragen von %1 – der Server antwortete: %2</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes of headers</source>
        <translation>Der Server sendet mehr als %1 Bytes an Kopfzeilen</translation>
    </message>
    <message>
        <source>The server states two different lengths</source>
        <translation>Der Server nennt zwei verschiedene Längen</translation>
    </message>
    <message>
        <source>The server states a length that is not a number</source>
        <translation>Der Server nennt eine Länge, die keine Zahl ist</translation>
    </message>
    <message>
        <source>The encrypted connection was cut off</source>
        <translation>Die verschlüsselte Verbindung wurde abgeschnitten</translation>
    </message>
    <message>
        <source>No connection to the proxy %1: %2</source>
        <translation>Keine Verbindung zum Proxy %1: %2</translation>
    </message>
    <message>
        <source>The server asks for a login of a kind that is not supported</source>
        <translation>Der Server verlangt eine Anmeldung, deren Art nicht unterstützt wird</translation>
    </message>
    <message>
        <source>The server sends more than %1 headers</source>
        <translation>Der Server sendet mehr als %1 Kopfzeilen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>OpenDocument Text</source>
        <translation>OpenDocument-Text</translation>
    </message>
    <message>
        <source>OpenDocument Text Template</source>
        <translation>OpenDocument-Textvorlage</translation>
    </message>
    <message>
        <source>Rich Text Format</source>
        <translation>Rich Text Format</translation>
    </message>
    <message>
        <source>Microsoft Word</source>
        <translation>Microsoft Word</translation>
    </message>
    <message>
        <source>Office Open XML Document</source>
        <translation>Office-Open-XML-Dokument</translation>
    </message>
    <message>
        <source>Microsoft Document Template</source>
        <translation>Microsoft-Dokumentvorlage</translation>
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
        <translation>Adobe Encapsulated PostScript</translation>
    </message>
    <message>
        <source>Windows Media</source>
        <translation>Windows Media</translation>
    </message>
    <message>
        <source>Microsoft Enhanced Metafile</source>
        <translation>Microsoft Enhanced Metafile</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics</source>
        <translation>Skalierbare Vektorgrafik (SVG)</translation>
    </message>
    <message>
        <source>Adobe Flash File Format</source>
        <translation>Adobe-Flash-Dateiformat</translation>
    </message>
    <message>
        <source>Microsoft XML Paper Specification</source>
        <translation>Microsoft XML Paper Specification</translation>
    </message>
    <message>
        <source>HP-GL plotter language</source>
        <translation>Plottersprache HP-GL</translation>
    </message>
    <message>
        <source>Printer Command Language Format</source>
        <translation>Format Printer Command Language</translation>
    </message>
    <message>
        <source>Hypertext Mark-up Language</source>
        <translation>Hypertext Markup Language</translation>
    </message>
    <message>
        <source>eXtensible HyperText Markup Language</source>
        <translation>eXtensible HyperText Markup Language</translation>
    </message>
    <message>
        <source>Plain Text Format</source>
        <translation>Textformat ohne Formatierung</translation>
    </message>
    <message>
        <source>eXtensible Markup Language</source>
        <translation>eXtensible Markup Language</translation>
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
        <translation>Windows-Bitmap-Bild</translation>
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
        <translation>Truevision-Targa-Bild</translation>
    </message>
    <message>
        <source>ZSoft IBM PC Paintbrush file</source>
        <translation>ZSoft-IBM-PC-Paintbrush-Datei</translation>
    </message>
    <message>
        <source>ePub Book</source>
        <translation>ePub-Buch</translation>
    </message>
    <message>
        <source>Amazon Kindle(Mobi) Book</source>
        <translation>Amazon-Kindle-Buch (Mobi)</translation>
    </message>
    <message>
        <source>Final Draft</source>
        <translation>Final Draft</translation>
    </message>
    <message>
        <source>OPML Format</source>
        <translation>OPML-Format</translation>
    </message>
    <message>
        <source>Mind Mapping Format</source>
        <translation>Mindmap-Format</translation>
    </message>
    <message>
        <source>Multimarkdown Format</source>
        <translation>MultiMarkdown-Format</translation>
    </message>
    <message>
        <source>Multimarkdown to HTML</source>
        <translation>MultiMarkdown nach HTML</translation>
    </message>
    <message>
        <source>Multimarkdown to LaTeX</source>
        <translation>MultiMarkdown nach LaTeX</translation>
    </message>
    <message>
        <source>Multimarkdown to OPML</source>
        <translation>MultiMarkdown nach OPML</translation>
    </message>
    <message>
        <source>Multimarkdown to FODT</source>
        <translation>MultiMarkdown nach FODT</translation>
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
        <translation>RTF-basiert</translation>
    </message>
    <message>
        <source>PDF Document via WebKit</source>
        <translation>PDF-Dokument über WebKit</translation>
    </message>
    <message>
        <source>PDF Document via Microsoft Office</source>
        <translation>PDF-Dokument über Microsoft Office</translation>
    </message>
    <message>
        <source>PDF Document via Internet Explorer</source>
        <translation>PDF-Dokument über Internet Explorer</translation>
    </message>
    <message>
        <source>Plain Text</source>
        <translation>Reiner Text</translation>
    </message>
    <message>
        <source>Webpage Complete (MHT)</source>
        <translation>Vollständige Webseite (MHT)</translation>
    </message>
    <message>
        <source>Titles Only</source>
        <translation>Nur Titel</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Synopsis</translation>
    </message>
    <message>
        <source>Main Text(with Synopsis)</source>
        <translation>Haupttext (mit Synopsis)</translation>
    </message>
    <message>
        <source>Notes (with Synopsis)</source>
        <translation>Notizen (mit Synopsis)</translation>
    </message>
    <message>
        <source>File Download</source>
        <translation>Datei-Download</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>Redirect to %1 ?</source>
        <translation>Zu %1 umleiten?</translation>
    </message>
    <message>
        <source>One or more SSL errors has occurred: %1</source>
        <translation>SSL-Fehler sind aufgetreten: %1</translation>
    </message>
    <message>
        <source>Return: %1</source>
        <translation>Eingabetaste: %1</translation>
    </message>
    <message>
        <source>Tab in an empty line: %1</source>
        <translation>Tab in einer leeren Zeile: %1</translation>
    </message>
    <message>
        <source>Tab: %1</source>
        <translation>Tab: %1</translation>
    </message>
    <message>
        <source>left indent %1</source>
        <translation>Einzug links %1</translation>
    </message>
    <message>
        <source>right indent %1</source>
        <translation>Einzug rechts %1</translation>
    </message>
    <message>
        <source>first line %1</source>
        <translation>erste Zeile %1</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>davor %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>danach %1</translation>
    </message>
    <message>
        <source>underlined twice</source>
        <translation>doppelt unterstrichen</translation>
    </message>
    <message>
        <source>blanks not underlined</source>
        <translation>Leerzeichen nicht unterstrichen</translation>
    </message>
    <message>
        <source>capitals</source>
        <translation>Großbuchstaben</translation>
    </message>
    <message>
        <source>in parentheses</source>
        <translation>in Klammern</translation>
    </message>
    <message>
        <source>stays with the next</source>
        <translation>bleibt beim nächsten</translation>
    </message>
    <message>
        <source>allows tabs</source>
        <translation>erlaubt Tabulatoren</translation>
    </message>
    <message>
        <source>offers the project’s phrases</source>
        <translation>bietet die Ausdrücke des Projekts an</translation>
    </message>
    <message>
        <source>collects phrases</source>
        <translation>sammelt Ausdrücke</translation>
    </message>
    <message>
        <source>capitals up to %1</source>
        <translation>Großbuchstaben bis %1</translation>
    </message>
    <message>
        <source>phrases begin after %1</source>
        <translation>Ausdrücke beginnen nach %1</translation>
    </message>
    <message>
        <source>phrases end before %1</source>
        <translation>Ausdrücke enden vor %1</translation>
    </message>
    <message>
        <source>aligned to the centre</source>
        <translation>zentriert</translation>
    </message>
    <message>
        <source>aligned right</source>
        <translation>rechtsbündig</translation>
    </message>
    <message>
        <source>aligned to both sides</source>
        <translation>Blocksatz</translation>
    </message>
    <message>
        <source>aligned left</source>
        <translation>linksbündig</translation>
    </message>
    <message>
        <source>a phrase is followed by a next line</source>
        <translation>nach einem Ausdruck folgt eine neue Zeile</translation>
    </message>
    <message>
        <source>a phrase is followed by a tab</source>
        <translation>nach einem Ausdruck folgt ein Tabulator</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>fett</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>kursiv</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>unterstrichen</translation>
    </message>
    <message>
        <source>lines exactly %1</source>
        <translation>Zeilenhöhe genau %1</translation>
    </message>
    <message>
        <source>lines at least %1</source>
        <translation>Zeilenhöhe mindestens %1</translation>
    </message>
    <message>
        <source>line spacing %1</source>
        <translation>Zeilenabstand %1</translation>
    </message>
    <message>
        <source>tab at %1</source>
        <translation>Tabstopp bei %1</translation>
    </message>
    <message>
        <source>inserts %1</source>
        <translation>fügt %1 ein</translation>
    </message>
    <message>
        <source>offers %1</source>
        <translation>bietet an: %1</translation>
    </message>
</context>
</TS>

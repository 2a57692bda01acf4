<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message>
        <source>Free some space, or choose another disk.</source>
        <translation>Libérez de l’espace, ou choisissez un autre disque.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Check whether it was moved or has another name.</source>
        <translation>Vérifiez s’il a été déplacé ou porte un autre nom.</translation>
    </message>
    <message>
        <source>Close it in the other program, and try again.</source>
        <translation>Fermez-le dans l’autre programme, puis réessayez.</translation>
    </message>
    <message>
        <source>A backup of the file may help.</source>
        <translation>Une sauvegarde du fichier peut aider.</translation>
    </message>
    <message>
        <source>Divide it into several parts.</source>
        <translation>Divisez-le en plusieurs parties.</translation>
    </message>
    <message>
        <source>Install the program, and try again.</source>
        <translation>Installez le programme, puis réessayez.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Format habituel</translation>
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
        <translation>Lettre US</translation>
    </message>
    <message>
        <source>Several are separated by semicolons</source>
        <translation>Plusieurs sont séparés par des points-virgules</translation>
    </message>
    <message>
        <source>A tag such as en or pt-BR</source>
        <translation>Un code tel que fr ou pt-BR</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormat&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Fichier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Authors:</source>
        <translation>&amp;Auteurs&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue&#xa0;:</translation>
    </message>
    <message>
        <source>Co&amp;ver:</source>
        <translation>Cou&amp;verture&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Comments become notes</source>
        <translation>&amp;Changer les commentaires en notes</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 existe déjà. Faut-il le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>The manuscript could not be exported.</source>
        <translation>Le manuscrit n’a pas pu être exporté.</translation>
    </message>
    <message>
        <source>The manuscript was exported to %1.</source>
        <translation>Le manuscrit a été exporté vers %1.</translation>
    </message>
    <message>
        <source>Exporting to %1...</source>
        <translation>Écriture de %1...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>E-book (EPUB 3)</source>
        <translation>Livre numérique (EPUB 3)</translation>
    </message>
    <message>
        <source>E-book for older readers (EPUB 2)</source>
        <translation>Livre numérique pour anciennes liseuses (EPUB 2)</translation>
    </message>
    <message>
        <source>PDF as a book</source>
        <translation>PDF sous forme de livre</translation>
    </message>
    <message>
        <source>PDF as a manuscript for publishers</source>
        <translation>PDF sous forme de manuscrit pour éditeurs</translation>
    </message>
    <message>
        <source>Web page (XHTML)</source>
        <translation>Page web (XHTML)</translation>
    </message>
    <message>
        <source>Script (PDF)</source>
        <translation>Scénario (PDF)</translation>
    </message>
    <message>
        <source>Script (Fountain)</source>
        <translation>Scénario (Fountain)</translation>
    </message>
    <message>
        <source>Script (Final Draft)</source>
        <translation>Scénario (Final Draft)</translation>
    </message>
    <message>
        <source>Script as an e-book (EPUB 3)</source>
        <translation>Scénario en livre numérique (EPUB 3)</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>notes in the margin that a script has no place for: %1</source>
        <translation>notes dans la marge pour lesquelles un scénario n’a pas de place&#xa0;: %1</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Texte brut</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Remplacer par</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace All...</source>
        <translation>Tout remplacer...</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Mots entiers</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
    <message>
        <source>The text is a regular expression; $1 stands for its first group.</source>
        <translation>Le texte est une expression régulière&#xa0;; $1 désigne son premier groupe.</translation>
    </message>
    <message>
        <source>Any quotes and dashes</source>
        <translation>Guillemets et tirets équivalents</translation>
    </message>
    <message>
        <source>Straight and curly quotes, hyphens and dashes count as the same.</source>
        <translation>Les guillemets droits et typographiques, les traits d’union et les tirets sont équivalents.</translation>
    </message>
    <message>
        <source>Any accents</source>
        <translation>Accents équivalents</translation>
    </message>
    <message>
        <source>Letters count as the same with and without accents.</source>
        <translation>Les lettres avec et sans accent sont équivalentes.</translation>
    </message>
    <message>
        <source>Across paragraphs</source>
        <translation>À travers les paragraphes</translation>
    </message>
    <message>
        <source>With expressions: \n is the end of a paragraph.</source>
        <translation>Avec les expressions&#xa0;: \n est la fin d’un paragraphe.</translation>
    </message>
    <message>
        <source>In selection</source>
        <translation>Dans la sélection</translation>
    </message>
    <message>
        <source>Keep capitals</source>
        <translation>Garder les majuscules</translation>
    </message>
    <message>
        <source>The new text takes over how the old one is capitalized.</source>
        <translation>Le nouveau texte reprend les majuscules de l’ancien.</translation>
    </message>
    <message>
        <source>Invalid expression</source>
        <translation>Expression non valide</translation>
    </message>
    <message>
        <source>Search too costly</source>
        <translation>Recherche trop coûteuse</translation>
    </message>
    <message numerus="yes">
        <source>%n find(s)</source>
        <translation>
            <numerusform>%n occurrence</numerusform>
            <numerusform>%n occurrences</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1, from the other end</source>
        <translation>%1, depuis l’autre bout</translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>%n remplacement</numerusform>
            <numerusform>%n remplacements</numerusform>
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
        <translation>Manuscrit</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
</context>
<context>
    <name>ManuscriptFile</name>
    <message>
        <source>Morvane document</source>
        <translation>Document Morvane</translation>
    </message>
    <message>
        <source>HTML page</source>
        <translation>Page HTML</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Texte brut</translation>
    </message>
    <message>
        <source>Fountain script</source>
        <translation>Scénario Fountain</translation>
    </message>
    <message>
        <source>Final Draft script</source>
        <translation>Scénario Final Draft</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Manuscripts</source>
        <translation>Manuscrits</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>%1 has no suffix of a format.</source>
        <translation>%1 n’a pas l’extension d’un format.</translation>
    </message>
    <message>
        <source>%1; read as Windows-1252</source>
        <translation>%1&#xa0;; lu comme Windows-1252</translation>
    </message>
    <message>
        <source>Metadata: %1</source>
        <translation>Métadonnées&#xa0;: %1</translation>
    </message>
    <message>
        <source>The page&apos;s own structure, classes and style sheets</source>
        <translation>La structure, les classes et les feuilles de style propres à la page</translation>
    </message>
    <message>
        <source>What the Final Draft document holds besides the script, such as its cast, revisions and tags</source>
        <translation>Ce que le document Final Draft contient outre le scénario, comme la distribution, les révisions et les balises</translation>
    </message>
</context>
<context>
    <name>NotesPanel</name>
    <message>
        <source>Footnote</source>
        <translation>Note de bas de page</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>&amp;Remove Note</source>
        <translation>&amp;Supprimer la note</translation>
    </message>
    <message>
        <source>Comments and footnotes</source>
        <translation>Commentaires et notes de bas de page</translation>
    </message>
    <message>
        <source>Text of the note</source>
        <translation>Texte de la note</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>Comment: its text</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>No note at the caret</source>
        <translation>Aucune note au curseur</translation>
    </message>
    <message>
        <source>There is no text here for a note</source>
        <translation>Il n’y a pas ici de texte pour une note</translation>
    </message>
</context>
<context>
    <name>PathEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Words of a setting or its description</source>
        <translation>Mots d’un réglage ou de sa description</translation>
    </message>
    <message>
        <source>Groups of settings</source>
        <translation>Groupes de réglages</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Aucun réglage ne contient ces mots.</translation>
    </message>
    <message>
        <source>Not all settings could be stored.</source>
        <translation>Tous les réglages n’ont pas pu être enregistrés.</translation>
    </message>
</context>
<context>
    <name>ReplacePreview</name>
    <message>
        <source>Replace All</source>
        <translation>Tout remplacer</translation>
    </message>
    <message>
        <source>What is ticked will be replaced:</source>
        <translation>Ce qui est coché sera remplacé&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n</source>
        <translation>
            <numerusform>Remplacer %n</numerusform>
            <numerusform>Remplacer %n</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;All or None</source>
        <translation>&amp;Tout ou rien</translation>
    </message>
</context>
<context>
    <name>SettingEditor</name>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Go back to the default: %1</source>
        <translation>Revenir à la valeur par défaut&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a setting and what is wrong with its value</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ShortcutEditor</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Réi&amp;nitialiser</translation>
    </message>
    <message>
        <source>&amp;Scheme:</source>
        <translation>&amp;Jeu de raccourcis&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Keys:</source>
        <translation>&amp;Touches&#xa0;:</translation>
    </message>
    <message>
        <source>Reset A&amp;ll</source>
        <translation>To&amp;ut réinitialiser</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Import Shortcuts</source>
        <translation>Importer des raccourcis</translation>
    </message>
    <message>
        <source>Shortcut schemes (*.%1)</source>
        <translation>Jeux de raccourcis (*.%1)</translation>
    </message>
    <message>
        <source>Save Shortcuts</source>
        <translation>Enregistrer les raccourcis</translation>
    </message>
    <message>
        <source>Shortcut schemes (*.%1);;Text (*.txt)</source>
        <translation>Jeux de raccourcis (*.%1);;Texte (*.txt)</translation>
    </message>
    <message>
        <source>Some keys will not work:</source>
        <translation>Certaines touches ne fonctionneront pas&#xa0;:</translation>
    </message>
    <message>
        <source>Store them anyway?</source>
        <translation>Les enregistrer quand même&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>&amp;Check for Updates...</source>
        <translation>&amp;Rechercher des mises à jour...</translation>
    </message>
</context>
<context>
    <name>WriterWindow</name>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Le fichier ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The file was opened, but not all of it could be read as it is.</source>
        <translation>Le fichier a été ouvert, mais tout n’a pas pu être lu tel quel.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened here. Replace what was written there?</source>
        <translation>%1 a été modifié par un autre programme depuis son ouverture ici. Faut-il remplacer ce qui y a été écrit&#xa0;?</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 existe. Faut-il le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>%1 cannot hold all of the manuscript. A Morvane document can.</source>
        <translation>%1 ne peut pas contenir tout le manuscrit. Un document Morvane le peut.</translation>
    </message>
    <message>
        <source>The manuscript is not saved. The file is as it was before.</source>
        <translation>Le manuscrit n’est pas enregistré. Le fichier est tel qu’il était avant.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Save the changes of %1?</source>
        <translation>Enregistrer les modifications de %1&#xa0;?</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>The program ended without saving %1. Open what was kept on %2?</source>
        <translation>Le programme s’est terminé sans enregistrer %1. Ouvrir ce qui a été gardé le %2&#xa0;?</translation>
    </message>
    <message>
        <source>Insert Picture</source>
        <translation>Insérer une image</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Find and Replace</source>
        <translation>Rec&amp;hercher et remplacer</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Rechercher le &amp;suivant</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Rechercher le &amp;précédent</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>Pré&amp;férences...</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation>Raccourcis c&amp;lavier...</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>For&amp;mat</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Gras</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italique</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Souligné</translation>
    </message>
    <message>
        <source>&amp;Strikethrough</source>
        <translation>&amp;Barré</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Préréglages</translation>
    </message>
    <message>
        <source>Bulleted &amp;List</source>
        <translation>&amp;Liste à puces</translation>
    </message>
    <message>
        <source>&amp;Numbered List</source>
        <translation>Liste &amp;numérotée</translation>
    </message>
    <message>
        <source>&amp;Move Item Inward</source>
        <translation>&amp;Abaisser l’élément</translation>
    </message>
    <message>
        <source>Move Item &amp;Outward</source>
        <translation>&amp;Relever l’élément</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertion</translation>
    </message>
    <message>
        <source>&amp;Comment</source>
        <translation>&amp;Commentaire</translation>
    </message>
    <message>
        <source>&amp;Footnote</source>
        <translation>Note de &amp;bas de page</translation>
    </message>
    <message>
        <source>&amp;Picture...</source>
        <translation>&amp;Image...</translation>
    </message>
    <message>
        <source>&amp;Script</source>
        <translation>&amp;Scénario</translation>
    </message>
    <message>
        <source>&amp;Prose</source>
        <translation>&amp;Prose</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Plein écran</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Script element</source>
        <translation>Élément du scénario</translation>
    </message>
    <message>
        <source>Comments and Footnotes</source>
        <translation>Commentaires et notes</translation>
    </message>
    <message>
        <source>No copy can be kept for a crash: %1</source>
        <translation>Aucune copie ne peut être gardée en cas de plantage&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln word(s)</source>
        <translation>
            <numerusform>%Ln mot</numerusform>
            <numerusform>%Ln mots</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln character(s)</source>
        <translation>
            <numerusform>%Ln caractère</numerusform>
            <numerusform>%Ln caractères</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected word(s)</source>
        <translation>
            <numerusform>%Ln mot sélectionné</numerusform>
            <numerusform>%Ln mots sélectionnés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln page(s)</source>
        <translation>
            <numerusform>%Ln page</numerusform>
            <numerusform>%Ln pages</numerusform>
        </translation>
    </message>
    <message>
        <source>About Morvane Writer</source>
        <translation>À propos de Morvane Writer</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Morvane Writer %1&lt;/h3&gt;&lt;p&gt;A small writing program, which shows what the base library of Morvane does for an application.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Morvane Writer %1&lt;/h3&gt;&lt;p&gt;Un petit programme d’écriture, qui montre ce que la bibliothèque de base de Morvane fait pour une application.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>The manuscript is saved, but not all of it could be taken along.</source>
        <translation>Le manuscrit est enregistré, mais tout n’a pas pu être emporté.</translation>
    </message>
    <message>
        <source>&amp;Element...</source>
        <translation>É&amp;lément...</translation>
    </message>
    <message>
        <source>The picture %1 is not inserted.</source>
        <translation>L’image %1 n’est pas insérée.</translation>
    </message>
    <message>
        <source>%1 is open in another window.</source>
        <translation>%1 est ouvert dans une autre fenêtre.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A small writing program.</source>
        <translation>Un petit programme d’écriture.</translation>
    </message>
    <message>
        <source>The manuscripts to open.</source>
        <translation>Les manuscrits à ouvrir.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>MRVAutoReplaceEditor</name>
    <message>
        <source>a match cannot go over the end of a paragraph</source>
        <translation>un texte à remplacer ne peut pas dépasser la fin d’un paragraphe</translation>
    </message>
    <message>
        <source>“%1” -&gt; “%2” is in the list already; it can be enabled or disabled</source>
        <translation>«&#xa0;%1&#xa0;» -&gt; «&#xa0;%2&#xa0;» est déjà dans la liste&#xa0;; on peut l’activer ou le désactiver</translation>
    </message>
    <message>
        <source>ordinals stay in each list; disable “%1” instead</source>
        <translation>les ordinaux restent dans chaque liste&#xa0;; on peut désactiver «&#xa0;%1&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>%n entries have the match “%1”, and only one can apply; add its replacement</source>
        <translation>
            <numerusform>%n entrée a pour texte «&#xa0;%1&#xa0;», et une seule peut s’appliquer&#xa0;; il faut indiquer aussi son remplacement</numerusform>
            <numerusform>%n entrées ont pour texte «&#xa0;%1&#xa0;», et une seule peut s’appliquer&#xa0;; il faut indiquer aussi le remplacement</numerusform>
        </translation>
    </message>
    <message>
        <source>no such entry: “%1”</source>
        <translation>aucune entrée de ce genre&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>no such entry: “%1” -&gt; “%2”</source>
        <translation>aucune entrée de ce genre&#xa0;: «&#xa0;%1&#xa0;» -&gt; «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>an entry for “%1” is enabled already; disable or remove it first</source>
        <translation>une entrée pour «&#xa0;%1&#xa0;» est déjà activée&#xa0;; il faut d’abord la désactiver ou la supprimer</translation>
    </message>
</context>
<context>
    <name>MRVAutoReplaceList</name>
    <message>
        <source>it is not an auto-replace list of a known version</source>
        <translation>ce n’est pas une liste de remplacement automatique d’une version connue</translation>
    </message>
    <message numerus="yes">
        <source>it is damaged or truncated; entries that could be read: %n</source>
        <translation>
            <numerusform>elle est endommagée ou tronquée&#xa0;; %n entrée a pu être lue</numerusform>
            <numerusform>elle est endommagée ou tronquée&#xa0;; %n entrées ont pu être lues</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MRVBookList</name>
    <message>
        <source>line %1: there is no file %2</source>
        <translation>ligne %1&#xa0;: le fichier %2 n’existe pas</translation>
    </message>
    <message>
        <source>the list names no manuscript</source>
        <translation>la liste ne nomme aucun manuscrit</translation>
    </message>
</context>
<context>
    <name>MRVCheckForUpdatesDialog</name>
    <message>
        <source>Check For Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Progression du téléchargement</translation>
    </message>
    <message>
        <source>Download Update</source>
        <translation>Télécharger la mise à jour</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Installer la mise à jour</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>You are currently running %1 %2. Version %3 is available.

Click the Download Update button to begin the download. (You will not be able to use %1 while the update is downloading.) When the download has finished, click Install Update to close %1 and launch the update installer.

Choose Cancel if you do not wish to update at this time.</source>
        <translation>Vous utilisez actuellement %1 %2. La version %3 est disponible.

Cliquez sur le bouton «&#xa0;Télécharger la mise à jour&#xa0;» pour lancer le téléchargement. (Vous ne pourrez pas utiliser %1 pendant ce temps.) Une fois le téléchargement terminé, cliquez sur «&#xa0;Installer la mise à jour&#xa0;» pour fermer %1 et lancer le programme d’installation.

Choisissez «&#xa0;Annuler&#xa0;» si vous ne souhaitez pas effectuer la mise à jour maintenant.</translation>
    </message>
    <message>
        <source>Downloading Update</source>
        <translation>Téléchargement de la mise à jour</translation>
    </message>
    <message>
        <source>%1 Auto-Update</source>
        <translation>Mise à jour automatique de %1</translation>
    </message>
    <message>
        <source>Administrative rights required.</source>
        <translation>Droits d’administrateur requis.</translation>
    </message>
    <message>
        <source>To download and install automatic updates, you must run %1 from the same account that installed it.

You can also visit %2 to download and install the latest version manually.</source>
        <translation>Pour télécharger et installer les mises à jour automatiques, vous devez lancer %1 depuis le compte qui a servi à l’installer.

Vous pouvez aussi vous rendre sur %2 pour télécharger et installer manuellement la dernière version.</translation>
    </message>
    <message>
        <source>Installation and Runtime location mismatch.</source>
        <translation>Les emplacements d’installation et d’exécution ne correspondent pas.</translation>
    </message>
    <message>
        <source>%1 is not currently running from its last installed location.

Runtime Location: &apos;%2&apos;
Installed Location: &apos;%3&apos;

To download and install the update, please uninstall or manually remove any copies of %1 not at the Installed Location path above, then restart %1 from there and select Help &gt; Check for Updates....</source>
        <translation>%1 n’est pas lancé depuis son dernier emplacement d’installation.

Emplacement d’exécution&#xa0;: «&#xa0;%2&#xa0;»
Emplacement d’installation&#xa0;: «&#xa0;%3&#xa0;»

Pour télécharger et installer la mise à jour, veuillez désinstaller ou supprimer manuellement toutes les copies de %1 qui ne se trouvent pas à l’emplacement d’installation ci-dessus, puis relancez %1 depuis cet emplacement et choisissez «&#xa0;Aide &gt; Rechercher des mises à jour…&#xa0;».</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>The release notes cannot be shown.</source>
        <translation>Impossible d’afficher les notes de version.</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>encore quelques secondes</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds left</source>
        <translation>
            <numerusform>encore %n seconde</numerusform>
            <numerusform>encore %n secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes left</source>
        <translation>
            <numerusform>encore %n minute</numerusform>
            <numerusform>encore %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours left</source>
        <translation>
            <numerusform>encore %n heure</numerusform>
            <numerusform>encore %n heures</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
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
        <translation>Le serveur a envoyé %1, qui n’est pas un texte</translation>
    </message>
    <message>
        <source>The page has too many parts</source>
        <translation>La page a trop d’éléments</translation>
    </message>
    <message>
        <source>It did not arrive within %1 s</source>
        <translation>Elle n’est pas arrivée en %1 s</translation>
    </message>
</context>
<context>
    <name>MRVCoreUtil</name>
    <message>
        <source>Cannot read the file &quot;%1&quot;: %2</source>
        <translation>Impossible de lire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>the file has no name</source>
        <translation>le fichier n’a pas de nom</translation>
    </message>
    <message>
        <source>its name holds a null character</source>
        <translation>son nom contient un caractère nul</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop volumineux</translation>
    </message>
    <message>
        <source>unknown text encoding &quot;%1&quot;</source>
        <translation>encodage de texte «&#xa0;%1&#xa0;» inconnu</translation>
    </message>
    <message>
        <source>it is not valid %1 text</source>
        <translation>ce n’est pas un texte %1 valide</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: unknown text encoding &quot;%2&quot;</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: encodage de texte «&#xa0;%2&#xa0;» inconnu</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: the encoding %2 lacks some characters of the text</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: certains caractères du texte n’existent pas dans l’encodage %2</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
</context>
<context>
    <name>MRVDocumentArchive</name>
    <message>
        <source>the document is too large, or too complex, for this format</source>
        <translation>le document est trop grand ou trop complexe pour ce format</translation>
    </message>
    <message>
        <source>it holds too many pictures</source>
        <translation>il contient trop d’images</translation>
    </message>
    <message>
        <source>the picture %1 has changed, or cannot be read any more</source>
        <translation>l’image %1 a changé ou n’est plus lisible</translation>
    </message>
    <message>
        <source>it holds no document</source>
        <translation>il ne contient pas de document</translation>
    </message>
    <message>
        <source>it was made by a newer version of this program</source>
        <translation>il a été créé par une version plus récente de ce programme</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>il est endommagé</translation>
    </message>
    <message>
        <source>the document is damaged; its words were read, without formats and pictures</source>
        <translation>le document est endommagé&#xa0;; ses mots ont été lus, sans formats ni images</translation>
    </message>
    <message>
        <source>the picture %1 is missing or damaged</source>
        <translation>l’image %1 manque ou est endommagée</translation>
    </message>
    <message>
        <source>what the program keeps as %1 is damaged</source>
        <translation>ce que le programme conserve sous %1 est endommagé</translation>
    </message>
    <message>
        <source>there is no document to read it into</source>
        <translation>aucun document n’est prévu pour la recevoir</translation>
    </message>
    <message>
        <source>the file is damaged; the document is whole, but other parts may be missing</source>
        <translation>le fichier est endommagé&#xa0;; le document est complet, mais d’autres parties peuvent manquer</translation>
    </message>
    <message>
        <source>what the program keeps with the document may be missing, too</source>
        <translation>ce que le programme conserve avec le document peut manquer aussi</translation>
    </message>
</context>
<context>
    <name>MRVDocumentLosses</name>
    <message>
        <source>Fonts: %1</source>
        <translation>Polices&#xa0;: %1</translation>
    </message>
    <message>
        <source>Font sizes: %1</source>
        <translation>Tailles de police&#xa0;: %1</translation>
    </message>
    <message>
        <source>Text colors: %1</source>
        <translation>Couleurs du texte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Highlights: %1</source>
        <translation>Surlignages&#xa0;: %1</translation>
    </message>
    <message>
        <source>Capitals, lines and spacing of letters: %1</source>
        <translation>Majuscules, traits et espacement des lettres&#xa0;: %1</translation>
    </message>
    <message>
        <source>Languages of text: %1</source>
        <translation>Langues du texte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Marks of revisions: %1</source>
        <translation>Marques de révision&#xa0;: %1</translation>
    </message>
    <message>
        <source>Annotations, which become text: %1</source>
        <translation>Annotations, qui deviennent du texte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Footnotes within the text, which become others: %1</source>
        <translation>Notes dans le texte, qui deviennent d’autres notes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Comments: %1</source>
        <translation>Commentaires&#xa0;: %1</translation>
    </message>
    <message>
        <source>Footnotes in the margin, which go to the end: %1</source>
        <translation>Notes en marge, qui vont à la fin&#xa0;: %1</translation>
    </message>
    <message>
        <source>Bold, italic and other styles of text: %1</source>
        <translation>Gras, italique et autres styles de texte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Links, whose addresses become text: %1</source>
        <translation>Liens, dont les adresses deviennent du texte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Pictures, which give way to their names: %1</source>
        <translation>Images, remplacées par leurs noms&#xa0;: %1</translation>
    </message>
    <message>
        <source>Headings: %1</source>
        <translation>Titres&#xa0;: %1</translation>
    </message>
    <message>
        <source>Quotations: %1</source>
        <translation>Citations&#xa0;: %1</translation>
    </message>
    <message>
        <source>Paragraph alignments: %1</source>
        <translation>Alignements de paragraphes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Paragraph indents: %1</source>
        <translation>Retraits de paragraphes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Line spacings: %1</source>
        <translation>Interlignes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Page breaks: %1</source>
        <translation>Sauts de page&#xa0;: %1</translation>
    </message>
    <message>
        <source>Paragraph backgrounds: %1</source>
        <translation>Fonds de paragraphes&#xa0;: %1</translation>
    </message>
    <message>
        <source>List markers other than bullets and figures: %1</source>
        <translation>Marques de liste autres que puces et chiffres&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tables, whose rows become lines: %1</source>
        <translation>Tableaux, dont les rangées deviennent des lignes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Frames: %1</source>
        <translation>Cadres&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tabs and several blanks in a row: %1</source>
        <translation>Tabulations et suites d’espaces&#xa0;: %1</translation>
    </message>
    <message>
        <source>Lists: %1</source>
        <translation>Listes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Comments in the margin: %1</source>
        <translation>Commentaires en marge&#xa0;: %1</translation>
    </message>
    <message>
        <source>Footnotes in the margin: %1</source>
        <translation>Notes de bas de page en marge&#xa0;: %1</translation>
    </message>
    <message>
        <source>Addresses of links: %1</source>
        <translation>Adresses de liens&#xa0;: %1</translation>
    </message>
    <message>
        <source>Pictures: %1</source>
        <translation>Images&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tables, whose cells become paragraphs: %1</source>
        <translation>Tableaux, dont les cellules deviennent des paragraphes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Marks of footnotes within the text: %1</source>
        <translation>Marques de notes de bas de page dans le texte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Footnotes within the text, which become text in brackets: %1</source>
        <translation>Notes dans le texte, qui deviennent du texte entre crochets&#xa0;: %1</translation>
    </message>
    <message>
        <source>Titles of links: %1</source>
        <translation>Titres de liens&#xa0;: %1</translation>
    </message>
    <message>
        <source>Languages of code: %1</source>
        <translation>Langages de code&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MRVDocumentPicture</name>
    <message>
        <source>its file has changed, or cannot be read any more</source>
        <translation>son fichier a changé ou n’est plus lisible</translation>
    </message>
    <message>
        <source>the document does not have it</source>
        <translation>le document ne la contient pas</translation>
    </message>
</context>
<context>
    <name>MRVDomDoc</name>
    <message>
        <source>there is no document element</source>
        <translation>le document n’a pas d’élément racine</translation>
    </message>
    <message>
        <source>the document element is &apos;%1&apos;, not &apos;%2&apos;</source>
        <translation>l’élément racine est «&#xa0;%1&#xa0;» et non «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>there is no work element</source>
        <translation>il n’y a pas d’élément de travail</translation>
    </message>
    <message>
        <source>nothing is above %1</source>
        <translation>il n’y a rien au-dessus de %1</translation>
    </message>
    <message>
        <source>no &apos;%1&apos; below %2</source>
        <translation>pas de «&#xa0;%1&#xa0;» sous %2</translation>
    </message>
    <message>
        <source>no &apos;%1&apos; below %2; did you mean &apos;%3&apos;?</source>
        <translation>pas de «&#xa0;%1&#xa0;» sous %2&#xa0;; vouliez-vous dire «&#xa0;%3&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no name for an element</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nom d’élément</translation>
    </message>
    <message>
        <source>a new document needs a path that begins with &apos;/&apos;</source>
        <translation>un nouveau document demande un chemin qui commence par «&#xa0;/&#xa0;»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be created</source>
        <translation>impossible de créer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>elements are nested more deeply than %1 levels</source>
        <translation>des éléments sont imbriqués sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>XML does not allow the name &apos;%1&apos;</source>
        <translation>XML n’autorise pas le nom «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>MRVDomSource</name>
    <message>
        <source>its encoding writes some characters in several ways</source>
        <translation>son encodage écrit certains caractères de plusieurs façons</translation>
    </message>
    <message>
        <source>its document type declares entities</source>
        <translation>son type de document déclare des entités</translation>
    </message>
    <message>
        <source>the change goes beyond single elements</source>
        <translation>la modification va au-delà d’éléments isolés</translation>
    </message>
    <message>
        <source>the whole document would be laid out anew: %1</source>
        <translation>tout le document serait remis en forme&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MRVDownloadAuthorize</name>
    <message>
        <source>Http authentication required</source>
        <translation>Authentification HTTP requise</translation>
    </message>
    <message>
        <source>Supply Username and Password to access this site</source>
        <translation>Saisissez le nom d’utilisateur et le mot de passe pour accéder à ce site</translation>
    </message>
    <message>
        <source>Site:</source>
        <translation>Site&#xa0;:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nom d’utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
</context>
<context>
    <name>MRVDownloadUrl</name>
    <message>
        <source>Only http and https addresses are downloaded, not %1</source>
        <translation>Seules les adresses http et https sont téléchargées, et non %1</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Opération annulée</translation>
    </message>
    <message>
        <source>The server has sent nothing for %1 s</source>
        <translation>Le serveur n’a rien envoyé depuis %1 s</translation>
    </message>
    <message>
        <source>It is larger than %1 bytes</source>
        <translation>La taille dépasse %1 octets</translation>
    </message>
    <message>
        <source>Download Aborted</source>
        <translation>Téléchargement interrompu</translation>
    </message>
    <message>
        <source>The connection ended before the download was complete</source>
        <translation>La connexion a pris fin avant que tout soit reçu</translation>
    </message>
    <message>
        <source>It redirects to %1, which is not an http or https address</source>
        <translation>Redirection vers %1, qui n’est pas une adresse http ou https</translation>
    </message>
    <message>
        <source>It redirects to %1, where the connection is not encrypted</source>
        <translation>Redirection vers %1, où la connexion n’est pas chiffrée</translation>
    </message>
    <message>
        <source>Cannot write to file: &apos;%1&apos;
Error: %2</source>
        <translation>Impossible d’écrire dans le fichier&#xa0;: «&#xa0;%1&#xa0;»
Erreur&#xa0;: %2</translation>
    </message>
    <message>
        <source>Network not accessible</source>
        <translation>Réseau inaccessible</translation>
    </message>
    <message>
        <source>The server has not answered for %1 s</source>
        <translation>Le serveur n’a pas répondu depuis %1 s</translation>
    </message>
</context>
<context>
    <name>MRVEPubBook</name>
    <message>
        <source>The picture %1 cannot be read.</source>
        <translation>Impossible de lire l’image %1.</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Section %1</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>The text can be read with a screen reader; headings and a table of contents guide through it.</source>
        <translation>Le texte peut être lu avec un lecteur d’écran&#xa0;; des titres et une table des matières permettent de s’y repérer.</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Couverture</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Table des matières</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Title page</source>
        <translation>Page de titre</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Mentions légales</translation>
    </message>
    <message>
        <source>Dedication</source>
        <translation>Dédicace</translation>
    </message>
    <message>
        <source>Epigraph</source>
        <translation>Épigraphe</translation>
    </message>
    <message>
        <source>Foreword</source>
        <translation>Avant-propos</translation>
    </message>
    <message>
        <source>Preface</source>
        <translation>Préface</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Remerciements</translation>
    </message>
    <message>
        <source>Appendix</source>
        <translation>Annexe</translation>
    </message>
    <message>
        <source>Glossary</source>
        <translation>Glossaire</translation>
    </message>
    <message>
        <source>Bibliography</source>
        <translation>Bibliographie</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Colophon</source>
        <translation>Colophon</translation>
    </message>
    <message>
        <source>Not all pictures have a description.</source>
        <translation>Toutes les images n’ont pas de description.</translation>
    </message>
    <message>
        <source>A list leads to the pages of the printed edition.</source>
        <translation>Une liste mène aux pages de l’édition imprimée.</translation>
    </message>
    <message>
        <source>Printed edition of %1</source>
        <translation>Édition imprimée de %1</translation>
    </message>
</context>
<context>
    <name>MRVEPubCheck</name>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>e-books are checked by epubcheck, which is not installed; install the packages epubcheck and default-jre-headless</source>
        <translation>les livres électroniques sont vérifiés par epubcheck, qui n’est pas installé&#xa0;; installez les paquets epubcheck et default-jre-headless</translation>
    </message>
    <message>
        <source>no files can be made there</source>
        <translation>aucun fichier ne peut y être créé</translation>
    </message>
    <message>
        <source>epubcheck was not done after %1 seconds</source>
        <translation>epubcheck n’avait pas fini après %1 secondes</translation>
    </message>
    <message>
        <source>epubcheck gives no answer</source>
        <translation>epubcheck ne donne pas de réponse</translation>
    </message>
    <message>
        <source>it is no e-book, as it is no ZIP archive</source>
        <translation>ce n’est pas un livre numérique, car ce n’est pas une archive ZIP</translation>
    </message>
</context>
<context>
    <name>MRVEPubMetadata</name>
    <message>
        <source>the cover picture cannot be read: %1</source>
        <translation>l’image de couverture ne peut pas être lue&#xa0;: %1</translation>
    </message>
    <message>
        <source>a role and a name such as &quot;translator: Ann Lee&quot;</source>
        <translation>un rôle et un nom comme «&#xa0;translator: Ann Lee&#xa0;»</translation>
    </message>
    <message>
        <source>the tag of a language such as en-GB</source>
        <translation>le code d’une langue comme en-GB</translation>
    </message>
    <message>
        <source>an ISBN, whose last digit proves the others</source>
        <translation>un ISBN dont le dernier chiffre confirme les autres</translation>
    </message>
    <message>
        <source>a date such as 2026, 2026-01 or 2026-01-31</source>
        <translation>une date comme 2026, 2026-01 ou 2026-01-31</translation>
    </message>
    <message>
        <source>a number such as 2 or 2.5</source>
        <translation>un nombre comme 2 ou 2.5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no key of a book</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une clé d’un livre</translation>
    </message>
    <message>
        <source>a name</source>
        <translation>un nom</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not %3</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» n’est pas %3</translation>
    </message>
    <message>
        <source>this is neither &quot;key: value&quot; nor continues it</source>
        <translation>ceci n’est ni «&#xa0;clé: valeur&#xa0;» ni sa suite</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the value cannot be read</source>
        <translation>la valeur est illisible</translation>
    </message>
</context>
<context>
    <name>MRVEPubPackage</name>
    <message>
        <source>The e-book cannot be packed: %1</source>
        <translation>Impossible d’assembler le livre numérique&#xa0;: %1</translation>
    </message>
    <message>
        <source>links that lead nowhere in the e-book, and are text there: %1 (%2%3)</source>
        <translation>liens qui ne mènent nulle part dans le livre et y sont du texte&#xa0;: %1 (%2%3)</translation>
    </message>
    <message>
        <source>pictures on other machines that are not in the e-book: %1</source>
        <translation>images sur d’autres machines qui ne sont pas dans le livre&#xa0;: %1</translation>
    </message>
    <message>
        <source>a link that leads nowhere: %1</source>
        <translation>un lien qui ne mène nulle part&#xa0;: %1</translation>
    </message>
    <message>
        <source>no alternative text: %1</source>
        <translation>pas de texte alternatif&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MRVEditLock</name>
    <message>
        <source>another program is changing it</source>
        <translation>un autre programme est en train de le modifier</translation>
    </message>
</context>
<context>
    <name>MRVEngineChoice</name>
    <message>
        <source>neither side is RTF, so no choice is kept</source>
        <translation>aucun des deux formats n’est RTF, aucun choix n’est donc conservé</translation>
    </message>
    <message>
        <source>it is the default, as nothing is stored</source>
        <translation>c’est la valeur par défaut, car rien n’est enregistré</translation>
    </message>
    <message>
        <source>it is the stored choice</source>
        <translation>c’est le choix enregistré</translation>
    </message>
    <message>
        <source>the stored choices do not include this format</source>
        <translation>aucun choix n’est enregistré pour ce format</translation>
    </message>
    <message>
        <source>the stored choice, %1, needs an application that is not available here</source>
        <translation>le choix enregistré, %1, nécessite une application qui n’est pas disponible ici</translation>
    </message>
    <message>
        <source>%1 cannot be imported</source>
        <translation>%1 ne peut pas être importé</translation>
    </message>
    <message>
        <source>%1 cannot be exported</source>
        <translation>%1 ne peut pas être exporté</translation>
    </message>
    <message>
        <source>%1: %2 cannot do that here; possible: %3</source>
        <translation>%1&#xa0;: %2 ne peut pas le faire ici&#xa0;; possibles&#xa0;: %3</translation>
    </message>
    <message>
        <source>choices for %1 are not kept: its name is not a suffix</source>
        <translation>les choix pour %1 ne sont pas conservés&#xa0;: son nom n’est pas un suffixe</translation>
    </message>
</context>
<context>
    <name>MRVExportCheck</name>
    <message>
        <source>not in what was written, of the paragraph &quot;%1&quot;: %2</source>
        <translation>absent de ce qui a été écrit, du paragraphe «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>links within the text or to files that were not written: %1</source>
        <translation>liens dans le texte ou vers des fichiers qui n’ont pas été écrits&#xa0;: %1</translation>
    </message>
    <message>
        <source>a link that was not written: %1</source>
        <translation>un lien qui n’a pas été écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>pictures that were not written: %1</source>
        <translation>images qui n’ont pas été écrites&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MRVFileKind</name>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it holds something else, which is not overwritten</source>
        <translation>il contient autre chose, qui n’est pas écrasé</translation>
    </message>
</context>
<context>
    <name>MRVFileWriter</name>
    <message>
        <source>its symbolic links form a loop</source>
        <translation>ses liens symboliques tournent en rond</translation>
    </message>
    <message>
        <source>it is another user&apos;s link in a shared folder</source>
        <translation>c’est le lien d’un autre utilisateur dans un dossier partagé</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: %2</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>the file has no name</source>
        <translation>le fichier n’a pas de nom</translation>
    </message>
    <message>
        <source>its name holds a null character</source>
        <translation>son nom contient un caractère nul</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>son dossier n’existe pas</translation>
    </message>
    <message>
        <source>not all of it was written</source>
        <translation>tout n’a pas été écrit</translation>
    </message>
    <message>
        <source>another program is writing it</source>
        <translation>un autre programme est en train de l’écrire</translation>
    </message>
</context>
<context>
    <name>MRVFinalDraft</name>
    <message>
        <source>this is not a Final Draft document</source>
        <translation>ce n’est pas un document Final Draft</translation>
    </message>
    <message>
        <source>paragraphs of the type &quot;%1&quot; become another kind: %2</source>
        <translation>les paragraphes du type «&#xa0;%1&#xa0;» deviennent d’un autre genre&#xa0;: %2</translation>
    </message>
    <message>
        <source>alternatives become notes: %1</source>
        <translation>les variantes deviennent des notes&#xa0;: %1</translation>
    </message>
    <message>
        <source>texts lose the mark that they were revised: %1</source>
        <translation>des textes perdent la marque de leur révision&#xa0;: %1</translation>
    </message>
    <message>
        <source>styles of text are left out: %1</source>
        <translation>des styles de texte sont laissés de côté&#xa0;: %1</translation>
    </message>
    <message>
        <source>the text of sections is left out: %1</source>
        <translation>le texte de sections est laissé de côté&#xa0;: %1</translation>
    </message>
    <message>
        <source>the document cannot be changed there without losing something: %1</source>
        <translation>le document ne peut pas y être modifié sans rien perdre&#xa0;: %1</translation>
    </message>
    <message>
        <source>its encoding writes some characters in several ways</source>
        <translation>son encodage écrit certains caractères de plusieurs façons</translation>
    </message>
</context>
<context>
    <name>MRVFixedDate</name>
    <message>
        <source>SOURCE_DATE_EPOCH is not a number of seconds since 1970 that lies in the years 1 to 9999</source>
        <translation>SOURCE_DATE_EPOCH n’est pas un nombre de secondes depuis 1970 situé dans les années 1 à 9999</translation>
    </message>
    <message>
        <source>the date is not one of ISO 8601 such as 2026-01-31T12:00:00Z, in the years 1 to 9999</source>
        <translation>la date n’est pas une date ISO 8601 comme 2026-01-31T12:00:00Z, des années 1 à 9999</translation>
    </message>
</context>
<context>
    <name>MRVFountainHtml</name>
    <message>
        <source>the page has no paragraph of a script</source>
        <translation>la page ne contient aucun paragraphe de script</translation>
    </message>
</context>
<context>
    <name>MRVGuiUtil</name>
    <message>
        <source>All Images</source>
        <translation>Toutes les images</translation>
    </message>
</context>
<context>
    <name>MRVHtmlReader</name>
    <message>
        <source>elements are nested more than %1 levels deep</source>
        <translation>les éléments sont imbriqués sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>un élément a plus de %1 attributs</translation>
    </message>
    <message>
        <source>too many elements such as &lt;%1&gt; are left open</source>
        <translation>trop d’éléments tels que &lt;%1&gt; restent ouverts</translation>
    </message>
</context>
<context>
    <name>MRVManuscript</name>
    <message>
        <source>line %1: not in the document: %2</source>
        <translation>ligne %1&#xa0;: absent du document&#xa0;: %2</translation>
    </message>
    <message>
        <source>style sheets that cannot be read: %1</source>
        <translation>feuilles de style illisibles&#xa0;: %1</translation>
    </message>
    <message>
        <source>style sheets on other machines, which are not loaded: %1</source>
        <translation>feuilles de style sur d’autres machines, qui ne sont pas chargées&#xa0;: %1</translation>
    </message>
    <message>
        <source>words that the page hides, and the document does not hold: %1</source>
        <translation>mots que la page masque et qui ne sont pas dans le document&#xa0;: %1</translation>
    </message>
    <message>
        <source>the Markdown is nested too deeply, or too complex</source>
        <translation>le Markdown est trop imbriqué ou trop complexe</translation>
    </message>
    <message>
        <source>not in the document: %1</source>
        <translation>absent du document&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MRVManuscriptPdf</name>
    <message>
        <source>About %1 words</source>
        <translation>Environ %1 mots</translation>
    </message>
    <message>
        <source>A paragraph, list or table is too long to be printed.</source>
        <translation>Un paragraphe, une liste ou un tableau est trop long pour être imprimé.</translation>
    </message>
    <message>
        <source>links that lead nowhere in the document, and are text there: %1 (%2)</source>
        <translation>liens qui ne mènent nulle part dans le document, et y sont du texte&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>tables that are wider than the paper, and cut off: %1</source>
        <translation>tableaux plus larges que le papier, et coupés&#xa0;: %1</translation>
    </message>
    <message>
        <source>tables within four others, of which the rows are lines of text: %1</source>
        <translation>tableaux dans quatre autres, dont les rangées sont des lignes de texte&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MRVManuscriptReader</name>
    <message>
        <source>unknown type of file</source>
        <translation>type de fichier inconnu</translation>
    </message>
    <message>
        <source>unknown encoding &apos;%1&apos;</source>
        <translation>encodage inconnu «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>not readable as %1</source>
        <translation>illisible en %1</translation>
    </message>
    <message>
        <source>pictures that cannot be read: %1</source>
        <translation>images impossibles à lire&#xa0;: %1</translation>
    </message>
    <message>
        <source>it is %1, which its name does not say</source>
        <translation>c’est un fichier %1, ce que son nom ne dit pas</translation>
    </message>
    <message>
        <source>the comment %1</source>
        <translation>le commentaire %1</translation>
    </message>
    <message>
        <source>%1 (after &quot;%2&quot;)</source>
        <translation>%1 (après «&#xa0;%2&#xa0;»)</translation>
    </message>
    <message>
        <source>formats and pictures, as the file is damaged</source>
        <translation>formats et images, car le fichier est endommagé</translation>
    </message>
    <message>
        <source>it is missing or damaged</source>
        <translation>elle manque ou est endommagée</translation>
    </message>
</context>
<context>
    <name>MRVOfficeConverter</name>
    <message>
        <source>no program is known that reads %1</source>
        <translation>aucun programme connu ne lit %1</translation>
    </message>
    <message>
        <source>reading %1 needs the program %2, which is not installed (Debian: apt install %3)</source>
        <translation>lire %1 demande le programme %2, qui n’est pas installé (Debian&#xa0;: apt install %3)</translation>
    </message>
    <message>
        <source>it cannot be started</source>
        <translation>il ne peut pas être lancé</translation>
    </message>
    <message>
        <source>it was not done after %1 seconds</source>
        <translation>il n’avait pas terminé après %1 secondes</translation>
    </message>
    <message>
        <source>its result is larger than %1 MB</source>
        <translation>son résultat dépasse %1 Mo</translation>
    </message>
    <message>
        <source>it needs more than %1 MB of memory</source>
        <translation>il lui faut plus de %1 Mo de mémoire</translation>
    </message>
    <message>
        <source>it has failed without a reason</source>
        <translation>il a échoué sans donner de raison</translation>
    </message>
    <message>
        <source>it is not %1, but %2</source>
        <translation>ce n’est pas un fichier %1, mais %2</translation>
    </message>
    <message>
        <source>it is not %1</source>
        <translation>ce n’est pas un fichier %1</translation>
    </message>
    <message>
        <source>its text is larger than %1 MB</source>
        <translation>son texte dépasse %1 Mo</translation>
    </message>
</context>
<context>
    <name>MRVOptions</name>
    <message>
        <source>Editor</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Index cards</source>
        <translation>Fiches</translation>
    </message>
    <message>
        <source>Revisions</source>
        <translation>Révisions</translation>
    </message>
    <message>
        <source>Backgrounds</source>
        <translation>Arrière-plans</translation>
    </message>
    <message>
        <source>Scratch pad</source>
        <translation>Bloc-notes</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Ivory</source>
        <translation>Ivoire</translation>
    </message>
    <message>
        <source>Manila</source>
        <translation>Manille</translation>
    </message>
    <message>
        <source>Mint</source>
        <translation>Menthe</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>Bleu ciel</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavande</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Ardoise</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Ligne de séparation</translation>
    </message>
    <message>
        <source>Notepad lines</source>
        <translation>Lignes d’écriture</translation>
    </message>
    <message>
        <source>Status stamp</source>
        <translation>Tampon de statut</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordure</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Fiche</translation>
    </message>
    <message>
        <source>Corkboard</source>
        <translation>Tableau de liège</translation>
    </message>
    <message>
        <source>Around the page</source>
        <translation>Autour de la page</translation>
    </message>
    <message>
        <source>First revision</source>
        <translation>Première révision</translation>
    </message>
    <message>
        <source>Second revision</source>
        <translation>Deuxième révision</translation>
    </message>
    <message>
        <source>Third revision</source>
        <translation>Troisième révision</translation>
    </message>
    <message>
        <source>Fourth revision</source>
        <translation>Quatrième révision</translation>
    </message>
    <message>
        <source>Fifth revision</source>
        <translation>Cinquième révision</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>Visited links</source>
        <translation>Liens visités</translation>
    </message>
    <message>
        <source>Invisible characters</source>
        <translation>Caractères invisibles</translation>
    </message>
    <message>
        <source>Selected text</source>
        <translation>Texte sélectionné</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Inline annotations</source>
        <translation>Annotations dans le texte</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Footnote text</source>
        <translation>Texte des notes de bas de page</translation>
    </message>
    <message>
        <source>Footnotes</source>
        <translation>Notes de bas de page</translation>
    </message>
    <message>
        <source>Preserved formatting</source>
        <translation>Mise en forme conservée</translation>
    </message>
    <message>
        <source>Project search</source>
        <translation>Recherche dans le projet</translation>
    </message>
    <message>
        <source>Border of project search</source>
        <translation>Bordure de la recherche dans le projet</translation>
    </message>
    <message>
        <source>Found text</source>
        <translation>Texte trouvé</translation>
    </message>
    <message>
        <source>Found text, alternate</source>
        <translation>Texte trouvé, en alternance</translation>
    </message>
    <message>
        <source>Text that was found</source>
        <translation>Caractères du texte trouvé</translation>
    </message>
    <message>
        <source>Misspelt words</source>
        <translation>Mots mal orthographiés</translation>
    </message>
    <message>
        <source>Document notes</source>
        <translation>Notes du document</translation>
    </message>
    <message>
        <source>Project notes</source>
        <translation>Notes du projet</translation>
    </message>
    <message>
        <source>Recent search results</source>
        <translation>Résultats de recherche récents</translation>
    </message>
    <message>
        <source>Binder</source>
        <translation>Classeur</translation>
    </message>
    <message>
        <source>Outliner</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Outliner, every other row</source>
        <translation>Plan, une ligne sur deux</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantanés</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from %2 to %3</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre entier de %2 à %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre de %2 à %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>«&#xa0;%1&#xa0;» ne fait pas partie des valeurs possibles&#xa0;: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither true nor false</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni true ni false</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a pair of an opening and a closing quote</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas deux moitiés, un guillemet ouvrant et un guillemet fermant</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a value such as &apos;%2&apos;</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une valeur comme «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is fully transparent</source>
        <translation>«&#xa0;%1&#xa0;» est invisible</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a colour such as #1f1f1f or navy</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une couleur comme #1f1f1f ou navy</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31T18:30:00</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date comme 2026-01-31T18:30:00</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a font such as Serif,12</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une police comme Serif,12</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre entier</translation>
    </message>
    <message>
        <source>what follows &apos;base64:&apos; is not Base64</source>
        <translation>ce qui suit «&#xa0;base64:&#xa0;» n’est pas du Base64</translation>
    </message>
    <message>
        <source>an empty text is not a value; reset the setting instead</source>
        <translation>rien n’est pas une valeur&#xa0;; réinitialisez plutôt le réglage</translation>
    </message>
    <message>
        <source>the bytes do not have the form of this setting</source>
        <translation>ces octets ne sont pas de ceux que contient ce réglage</translation>
    </message>
    <message>
        <source>the text is not &apos;base64:&apos; followed by the bytes of a format</source>
        <translation>le texte n’est pas «&#xa0;base64:&#xa0;» suivi des octets d’une mise en forme</translation>
    </message>
    <message>
        <source>no setting is called &apos;%1&apos;</source>
        <translation>il n’existe pas de réglage «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossible d’écrire %1</translation>
    </message>
    <message>
        <source>the list in %1: %2</source>
        <translation>la liste de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the shortcut scheme in %1: %2</source>
        <translation>le jeu de raccourcis de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>Corrections</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspecteur</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Séparateurs</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copies de sauvegarde</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>Import and export</source>
        <translation>Importation et exportation</translation>
    </message>
    <message>
        <source>OPML files</source>
        <translation>Fichiers OPML</translation>
    </message>
    <message>
        <source>E-books</source>
        <translation>Livres numériques</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Fichiers PDF</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>The other editor</source>
        <translation>L’autre éditeur</translation>
    </message>
    <message>
        <source>The current editor</source>
        <translation>L’éditeur actuel</translation>
    </message>
    <message>
        <source>A reference panel</source>
        <translation>Un panneau de référence</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Centimètres</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimètres</translation>
    </message>
    <message>
        <source>Picas</source>
        <translation>Picas</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Above the text</source>
        <translation>Au-dessus du texte</translation>
    </message>
    <message>
        <source>Beside the text</source>
        <translation>À côté du texte</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>Pas du tout</translation>
    </message>
    <message>
        <source>As a pin</source>
        <translation>Par une épingle</translation>
    </message>
    <message>
        <source>As a coloured corner</source>
        <translation>Par un coin coloré</translation>
    </message>
    <message>
        <source>As a stripe</source>
        <translation>Par une bande</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carrés</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Arrondis</translation>
    </message>
    <message>
        <source>Does nothing</source>
        <translation>Ne fait rien</translation>
    </message>
    <message>
        <source>Creates a card</source>
        <translation>Crée une fiche</translation>
    </message>
    <message>
        <source>Goes up to the folder above</source>
        <translation>Remonte au dossier parent</translation>
    </message>
    <message>
        <source>Single return</source>
        <translation>Un seul retour</translation>
    </message>
    <message>
        <source>Empty line</source>
        <translation>Ligne vide</translation>
    </message>
    <message>
        <source>A separator of your own</source>
        <translation>Votre propre séparateur</translation>
    </message>
    <message>
        <source>Last session ended normally</source>
        <translation>Dernière session terminée normalement</translation>
    </message>
    <message>
        <source>Whether the session before this one was ended by the user and not by a failure.</source>
        <translation>Indique si la session précédente a été terminée par l’utilisateur et non par une défaillance.</translation>
    </message>
    <message>
        <source>This session has ended normally</source>
        <translation>Session actuelle terminée normalement</translation>
    </message>
    <message>
        <source>Whether the present session was ended by the user, which is stored when the application closes.</source>
        <translation>Indique si la session actuelle a été terminée par l’utilisateur, ce qui est enregistré à la fermeture de l’application.</translation>
    </message>
    <message>
        <source>Reopen projects at start</source>
        <translation>Rouvrir les projets au démarrage</translation>
    </message>
    <message>
        <source>Opens the projects again that were open when the application was closed.</source>
        <translation>Rouvre les projets qui étaient ouverts à la fermeture de l’application.</translation>
    </message>
    <message>
        <source>Show the start panel</source>
        <translation>Afficher le panneau d’accueil</translation>
    </message>
    <message>
        <source>Shows a panel with templates and recent projects when no project is open.</source>
        <translation>Affiche un panneau avec les modèles et les projets récents quand aucun projet n’est ouvert.</translation>
    </message>
    <message>
        <source>Show the full path in the title bar</source>
        <translation>Afficher le chemin complet dans la barre de titre</translation>
    </message>
    <message>
        <source>Shows the folder of a project with its name in the title bar of the window.</source>
        <translation>Affiche le dossier du projet avec son nom dans la barre de titre de la fenêtre.</translation>
    </message>
    <message>
        <source>Allow overtyping</source>
        <translation>Autoriser la frappe par-dessus</translation>
    </message>
    <message>
        <source>Lets the Insert key switch between inserting text and typing over it.</source>
        <translation>Permet à la touche Inser de passer de l’insertion au remplacement du texte.</translation>
    </message>
    <message>
        <source>Set notes after punctuation</source>
        <translation>Placer les notes après la ponctuation</translation>
    </message>
    <message>
        <source>Places the mark of a footnote or comment after the punctuation that follows the selected words.</source>
        <translation>Place l’appel d’une note ou d’un commentaire après la ponctuation qui suit les mots sélectionnés.</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Rechercher les mises à jour</translation>
    </message>
    <message>
        <source>Looks for a newer version of the application from time to time.</source>
        <translation>Recherche de temps en temps une version plus récente de l’application.</translation>
    </message>
    <message>
        <source>Name untitled documents on saving</source>
        <translation>Nommer les documents sans titre à l’enregistrement</translation>
    </message>
    <message>
        <source>Gives a document without a title its first words as a title when it is saved.</source>
        <translation>Donne à un document sans titre ses premiers mots pour titre quand il est enregistré.</translation>
    </message>
    <message>
        <source>Import web pages as text</source>
        <translation>Importer les pages web comme texte</translation>
    </message>
    <message>
        <source>Converts a web page to text that can be edited when it is imported.</source>
        <translation>Convertit une page web importée en texte modifiable.</translation>
    </message>
    <message>
        <source>Import known file types only</source>
        <translation>N’importer que les types de fichiers connus</translation>
    </message>
    <message>
        <source>Leaves out files that the application cannot show when a folder is imported.</source>
        <translation>Laisse de côté les fichiers que l’application ne peut pas afficher quand un dossier est importé.</translation>
    </message>
    <message>
        <source>Remove invalid characters from RTF</source>
        <translation>Supprimer les caractères non valides du RTF</translation>
    </message>
    <message>
        <source>Leaves out control characters that some programs write into RTF files.</source>
        <translation>Laisse de côté les caractères de commande que certains programmes écrivent dans les fichiers RTF.</translation>
    </message>
    <message>
        <source>Use font hinting</source>
        <translation>Utiliser le hinting des polices</translation>
    </message>
    <message>
        <source>Fits the shapes of letters to the pixels of the screen in text that is read from the settings.</source>
        <translation>Ajuste la forme des lettres aux pixels de l’écran dans le texte lu dans les préférences.</translation>
    </message>
    <message>
        <source>Use first lines as titles only</source>
        <translation>Utiliser les premières lignes comme titres seulement</translation>
    </message>
    <message>
        <source>Takes the first line of an imported Fernwick note as its title and leaves it out of the text.</source>
        <translation>Prend la première ligne d’une note Fernwick importée comme titre et ne la garde pas dans le texte.</translation>
    </message>
    <message>
        <source>Show the number of documents</source>
        <translation>Afficher le nombre de documents</translation>
    </message>
    <message>
        <source>Shows at each folder of the binder how many documents it contains.</source>
        <translation>Affiche à chaque dossier du classeur combien de documents il contient.</translation>
    </message>
    <message>
        <source>Show lines in document notes</source>
        <translation>Afficher les lignes dans les notes de document</translation>
    </message>
    <message>
        <source>Draws the lines of a notepad in the notes of a document.</source>
        <translation>Trace les lignes d’un carnet dans les notes d’un document.</translation>
    </message>
    <message>
        <source>Show lines in project notes</source>
        <translation>Afficher les lignes dans les notes de projet</translation>
    </message>
    <message>
        <source>Draws the lines of a notepad in the notes of the project.</source>
        <translation>Trace les lignes d’un carnet dans les notes du projet.</translation>
    </message>
    <message>
        <source>Shade every other row</source>
        <translation>Teinter une ligne sur deux</translation>
    </message>
    <message>
        <source>Gives every other row of the outliner another background.</source>
        <translation>Donne un autre fond à une ligne sur deux du plan.</translation>
    </message>
    <message>
        <source>Folders in bold</source>
        <translation>Dossiers en gras</translation>
    </message>
    <message>
        <source>Shows the titles of folders in the binder in bold type.</source>
        <translation>Affiche en gras les titres des dossiers dans le classeur.</translation>
    </message>
    <message>
        <source>Folders in italics</source>
        <translation>Dossiers en italique</translation>
    </message>
    <message>
        <source>Shows the titles of folders in the binder in italics.</source>
        <translation>Affiche en italique les titres des dossiers dans le classeur.</translation>
    </message>
    <message>
        <source>Collections in bold</source>
        <translation>Collections en gras</translation>
    </message>
    <message>
        <source>Shows the titles of collections in bold type.</source>
        <translation>Affiche en gras les titres des collections.</translation>
    </message>
    <message>
        <source>Collections in italics</source>
        <translation>Collections en italique</translation>
    </message>
    <message>
        <source>Shows the titles of collections in italics.</source>
        <translation>Affiche en italique les titres des collections.</translation>
    </message>
    <message>
        <source>Show collections as folders</source>
        <translation>Afficher les collections comme des dossiers</translation>
    </message>
    <message>
        <source>Shows a collection on the corkboard and in the outliner as if it were a folder.</source>
        <translation>Affiche une collection sur le tableau de liège et dans le plan comme si elle était un dossier.</translation>
    </message>
    <message>
        <source>Include the enclosing group</source>
        <translation>Inclure le groupe englobant</translation>
    </message>
    <message>
        <source>Adds the folder itself when its documents are shown as one text.</source>
        <translation>Ajoute le dossier lui-même quand ses documents sont affichés comme un seul texte.</translation>
    </message>
    <message>
        <source>Open all results together</source>
        <translation>Ouvrir tous les résultats ensemble</translation>
    </message>
    <message>
        <source>Shows all documents that a project search has found in the editor at once.</source>
        <translation>Affiche ensemble dans l’éditeur tous les documents trouvés par une recherche dans le projet.</translation>
    </message>
    <message>
        <source>Collapse items again after dragging</source>
        <translation>Replier les éléments après un glissement</translation>
    </message>
    <message>
        <source>Closes the items of the outline that opened by themselves during a drag.</source>
        <translation>Replie les éléments du plan qui se sont ouverts d’eux-mêmes pendant un glissement.</translation>
    </message>
    <message>
        <source>Return ends a synopsis</source>
        <translation>Entrée termine un synopsis</translation>
    </message>
    <message>
        <source>Ends the editing of a synopsis with the Return key, which otherwise begins a new line.</source>
        <translation>Termine la modification d’un synopsis par la touche Entrée, qui sinon commence une nouvelle ligne.</translation>
    </message>
    <message>
        <source>Return creates an item</source>
        <translation>Entrée crée un élément</translation>
    </message>
    <message>
        <source>Creates a new item with the Return key in the binder, the outliner and on the corkboard.</source>
        <translation>Crée un élément par la touche Entrée dans le classeur, dans le plan et sur le tableau de liège.</translation>
    </message>
    <message>
        <source>Allow dropping on cards</source>
        <translation>Autoriser le dépôt sur les fiches</translation>
    </message>
    <message>
        <source>Lets an index card be dropped on another one, so that it becomes part of it.</source>
        <translation>Permet de déposer une fiche sur une autre, dont elle devient une partie.</translation>
    </message>
    <message>
        <source>Check spelling in new projects</source>
        <translation>Vérifier l’orthographe dans les nouveaux projets</translation>
    </message>
    <message>
        <source>Turns on the spelling check while typing in every new project.</source>
        <translation>Active la vérification de l’orthographe pendant la frappe dans chaque nouveau projet.</translation>
    </message>
    <message>
        <source>Correct spelling while typing</source>
        <translation>Corriger l’orthographe pendant la frappe</translation>
    </message>
    <message>
        <source>Replaces a misspelt word by the likely one as soon as it is complete.</source>
        <translation>Remplace un mot mal orthographié par le mot probable dès qu’il est complet.</translation>
    </message>
    <message>
        <source>Capitalize a single i</source>
        <translation>Mettre en majuscule un i isolé</translation>
    </message>
    <message>
        <source>Writes the English word I as a capital letter.</source>
        <translation>Écrit le mot anglais I en majuscule.</translation>
    </message>
    <message>
        <source>Capitalize sentences</source>
        <translation>Mettre une majuscule aux phrases</translation>
    </message>
    <message>
        <source>Begins each sentence with a capital letter.</source>
        <translation>Commence chaque phrase par une majuscule.</translation>
    </message>
    <message>
        <source>Use smart quotes</source>
        <translation>Utiliser les guillemets typographiques</translation>
    </message>
    <message>
        <source>Replaces straight quotation marks by opening and closing ones while typing.</source>
        <translation>Remplace pendant la frappe les guillemets droits par des guillemets ouvrants et fermants.</translation>
    </message>
    <message>
        <source>Replace hyphens by em dashes</source>
        <translation>Remplacer les traits d’union par des tirets cadratins</translation>
    </message>
    <message>
        <source>Turns two hyphens into an em dash while typing.</source>
        <translation>Change deux traits d’union en un tiret cadratin pendant la frappe.</translation>
    </message>
    <message>
        <source>Replace dots by ellipses</source>
        <translation>Remplacer les points par des points de suspension</translation>
    </message>
    <message>
        <source>Turns three full stops into an ellipsis while typing.</source>
        <translation>Change trois points en points de suspension pendant la frappe.</translation>
    </message>
    <message>
        <source>No correction in script mode</source>
        <translation>Aucune correction en mode scénario</translation>
    </message>
    <message>
        <source>Switches all corrections off while a script is written.</source>
        <translation>Désactive toutes les corrections pendant l’écriture d’un scénario.</translation>
    </message>
    <message>
        <source>Raise ordinals</source>
        <translation>Mettre les ordinaux en exposant</translation>
    </message>
    <message>
        <source>Raises the letters of English ordinal numbers such as 1st.</source>
        <translation>Met en exposant les lettres des nombres ordinaux anglais comme 1st.</translation>
    </message>
    <message>
        <source>Link web addresses</source>
        <translation>Lier les adresses web</translation>
    </message>
    <message>
        <source>Turns a web address into a link while it is typed.</source>
        <translation>Change une adresse web en lien pendant la frappe.</translation>
    </message>
    <message>
        <source>Link titles in brackets</source>
        <translation>Lier les titres entre crochets</translation>
    </message>
    <message>
        <source>Turns the title of a document in double square brackets into a link to it.</source>
        <translation>Change en lien le titre d’un document placé entre doubles crochets.</translation>
    </message>
    <message>
        <source>Replace text while typing</source>
        <translation>Remplacer du texte pendant la frappe</translation>
    </message>
    <message>
        <source>Replaces abbreviations by the texts in the list of replacements.</source>
        <translation>Remplace les abréviations par les textes de la liste des remplacements.</translation>
    </message>
    <message>
        <source>Typewriter scrolling</source>
        <translation>Défilement de machine à écrire</translation>
    </message>
    <message>
        <source>Keeps the line that is being written in the middle of the editor.</source>
        <translation>Garde la ligne en cours d’écriture au milieu de l’éditeur.</translation>
    </message>
    <message>
        <source>Typewriter scrolling in full screen</source>
        <translation>Défilement de machine à écrire en plein écran</translation>
    </message>
    <message>
        <source>Keeps the line that is being written in the middle of the screen.</source>
        <translation>Garde la ligne en cours d’écriture au milieu de l’écran.</translation>
    </message>
    <message>
        <source>Complete words</source>
        <translation>Compléter les mots</translation>
    </message>
    <message>
        <source>Offers words from the completion list of the project while typing.</source>
        <translation>Propose pendant la frappe des mots de la liste de complétion du projet.</translation>
    </message>
    <message>
        <source>Complete words in script mode only</source>
        <translation>Compléter les mots en mode scénario seulement</translation>
    </message>
    <message>
        <source>Offers completions in scripts and not in other text.</source>
        <translation>Propose des complétions dans les scénarios et non dans les autres textes.</translation>
    </message>
    <message>
        <source>Make backups</source>
        <translation>Faire des copies de sauvegarde</translation>
    </message>
    <message>
        <source>Makes backups of projects without being asked.</source>
        <translation>Fait des copies de sauvegarde des projets sans qu’on le demande.</translation>
    </message>
    <message>
        <source>Back up when a project is opened</source>
        <translation>Sauvegarder à l’ouverture d’un projet</translation>
    </message>
    <message>
        <source>Makes a backup of a project before it is opened.</source>
        <translation>Fait une copie de sauvegarde d’un projet avant de l’ouvrir.</translation>
    </message>
    <message>
        <source>Back up when a project is closed</source>
        <translation>Sauvegarder à la fermeture d’un projet</translation>
    </message>
    <message>
        <source>Makes a backup of a project when it is closed.</source>
        <translation>Fait une copie de sauvegarde d’un projet quand il est fermé.</translation>
    </message>
    <message>
        <source>Back up on each manual save</source>
        <translation>Sauvegarder à chaque enregistrement manuel</translation>
    </message>
    <message>
        <source>Makes a backup whenever the project is saved by command.</source>
        <translation>Fait une copie de sauvegarde chaque fois que le projet est enregistré par la commande.</translation>
    </message>
    <message>
        <source>Compress backups</source>
        <translation>Compresser les copies de sauvegarde</translation>
    </message>
    <message>
        <source>Stores each backup as one zip file.</source>
        <translation>Enregistre chaque copie de sauvegarde dans un seul fichier zip.</translation>
    </message>
    <message>
        <source>Put the date into backup names</source>
        <translation>Mettre la date dans les noms des copies</translation>
    </message>
    <message>
        <source>Adds the date and the time to the name of each backup.</source>
        <translation>Ajoute la date et l’heure au nom de chaque copie de sauvegarde.</translation>
    </message>
    <message>
        <source>No sound effects</source>
        <translation>Aucun effet sonore</translation>
    </message>
    <message>
        <source>Switches the sounds of the application off.</source>
        <translation>Désactive les sons de l’application.</translation>
    </message>
    <message>
        <source>Transparent scratch pad</source>
        <translation>Bloc-notes transparent</translation>
    </message>
    <message>
        <source>Lets the windows behind the scratch pad shine through.</source>
        <translation>Laisse transparaître les fenêtres situées sous le bloc-notes.</translation>
    </message>
    <message>
        <source>Wrap metadata fields</source>
        <translation>Renvoyer les métadonnées à la ligne</translation>
    </message>
    <message>
        <source>Shows long values of custom metadata on several lines.</source>
        <translation>Affiche sur plusieurs lignes les longues valeurs des métadonnées personnalisées.</translation>
    </message>
    <message>
        <source>Colour metadata fields</source>
        <translation>Colorer les champs de métadonnées</translation>
    </message>
    <message>
        <source>Shows each field of custom metadata in its own colour.</source>
        <translation>Affiche chaque champ des métadonnées personnalisées dans sa couleur.</translation>
    </message>
    <message>
        <source>Keep windows on top</source>
        <translation>Garder les fenêtres au premier plan</translation>
    </message>
    <message>
        <source>Keeps the tool windows of the application above all other windows.</source>
        <translation>Garde les fenêtres d’outils de l’application au-dessus de toutes les autres.</translation>
    </message>
    <message>
        <source>Keep reference panels on top</source>
        <translation>Garder les panneaux de référence au premier plan</translation>
    </message>
    <message>
        <source>Keeps quick reference panels above the main window.</source>
        <translation>Garde les panneaux de référence rapide au-dessus de la fenêtre principale.</translation>
    </message>
    <message>
        <source>Export the entire binder</source>
        <translation>Exporter tout le classeur</translation>
    </message>
    <message>
        <source>Exports all of the binder to OPML, and not the selected items only.</source>
        <translation>Exporte tout le classeur en OPML, et pas seulement les éléments sélectionnés.</translation>
    </message>
    <message>
        <source>Create a folder for the import</source>
        <translation>Créer un dossier pour l’importation</translation>
    </message>
    <message>
        <source>Puts what is imported from OPML into a new folder.</source>
        <translation>Place ce qui est importé depuis OPML dans un nouveau dossier.</translation>
    </message>
    <message>
        <source>Position of the page</source>
        <translation>Position de la page</translation>
    </message>
    <message>
        <source>Determines where on the screen the page stands in full screen.</source>
        <translation>Détermine où se trouve la page sur l’écran en plein écran.</translation>
    </message>
    <message>
        <source>Save after</source>
        <translation>Enregistrer après</translation>
    </message>
    <message>
        <source>Saves the project when nothing has been typed for this number of seconds.</source>
        <translation>Enregistre le projet quand rien n’a été tapé pendant ce nombre de secondes.</translation>
    </message>
    <message>
        <source>Days between checks for updates</source>
        <translation>Jours entre deux recherches de mises à jour</translation>
    </message>
    <message>
        <source>Determines how many days pass before a newer version is looked for again.</source>
        <translation>Détermine après combien de jours une version plus récente est de nouveau recherchée.</translation>
    </message>
    <message>
        <source>Strength of label tints</source>
        <translation>Force des teintes d’étiquette</translation>
    </message>
    <message>
        <source>Determines how strongly the colour of a label shows, from 0 (not at all) to 255 (fully).</source>
        <translation>Détermine avec quelle force apparaît la couleur d’une étiquette, de 0 (pas du tout) à 255 (entièrement).</translation>
    </message>
    <message>
        <source>Strength of the status stamp</source>
        <translation>Force du tampon de statut</translation>
    </message>
    <message>
        <source>Determines how strongly the status is stamped on an index card, from 0 to 255.</source>
        <translation>Détermine avec quelle force le statut est tamponné sur une fiche, de 0 à 255.</translation>
    </message>
    <message>
        <source>Strength of card shadows</source>
        <translation>Force des ombres des fiches</translation>
    </message>
    <message>
        <source>Determines how dark the shadows of index cards are, from 0 (none) to 255.</source>
        <translation>Détermine à quel point les ombres des fiches sont foncées, de 0 (aucune) à 255.</translation>
    </message>
    <message>
        <source>Strength of the background</source>
        <translation>Force de l’arrière-plan</translation>
    </message>
    <message>
        <source>Determines how much the background of full screen hides the desktop, from 0 to 255.</source>
        <translation>Détermine à quel point l’arrière-plan du plein écran cache le bureau, de 0 à 255.</translation>
    </message>
    <message>
        <source>Width of the page</source>
        <translation>Largeur de la page</translation>
    </message>
    <message>
        <source>Sets the width of the page in full screen, in percent of that of the screen.</source>
        <translation>Fixe la largeur de la page en plein écran, en pour cent de celle de l’écran.</translation>
    </message>
    <message>
        <source>Height of the page</source>
        <translation>Hauteur de la page</translation>
    </message>
    <message>
        <source>Sets the height of the page in full screen, in percent of that of the screen.</source>
        <translation>Fixe la hauteur de la page en plein écran, en pour cent de celle de l’écran.</translation>
    </message>
    <message>
        <source>Width of the text cursor</source>
        <translation>Largeur du curseur de texte</translation>
    </message>
    <message>
        <source>Sets how wide the text cursor is; -1 is the width that the system uses.</source>
        <translation>Fixe la largeur du curseur de texte&#xa0;; -1 est la largeur qu’emploie le système.</translation>
    </message>
    <message>
        <source>Zoom of the editor</source>
        <translation>Zoom de l’éditeur</translation>
    </message>
    <message>
        <source>Determines which entry of the list of zoom factors the editor uses.</source>
        <translation>Détermine quelle entrée de la liste des facteurs de zoom l’éditeur emploie.</translation>
    </message>
    <message>
        <source>Zoom of project notes</source>
        <translation>Zoom des notes de projet</translation>
    </message>
    <message>
        <source>Determines which entry of the list of zoom factors project notes use.</source>
        <translation>Détermine quelle entrée de la liste des facteurs de zoom les notes de projet emploient.</translation>
    </message>
    <message>
        <source>Zoom of document notes</source>
        <translation>Zoom des notes de document</translation>
    </message>
    <message>
        <source>Determines which entry of the list of zoom factors document notes use.</source>
        <translation>Détermine quelle entrée de la liste des facteurs de zoom les notes de document emploient.</translation>
    </message>
    <message>
        <source>Rewind on pause</source>
        <translation>Retour en arrière à la pause</translation>
    </message>
    <message>
        <source>Determines how many seconds a recording goes back when it is paused, so that no word is missed.</source>
        <translation>Détermine de combien de secondes un enregistrement recule à la pause, pour qu’aucun mot ne manque.</translation>
    </message>
    <message>
        <source>Backups to keep</source>
        <translation>Copies de sauvegarde à garder</translation>
    </message>
    <message>
        <source>Determines how many backups of a project are kept before the oldest is removed.</source>
        <translation>Détermine combien de copies d’un projet sont gardées avant que la plus ancienne soit supprimée.</translation>
    </message>
    <message>
        <source>Revision of new text</source>
        <translation>Révision du nouveau texte</translation>
    </message>
    <message>
        <source>Determines as which revision new text is marked, from 1 to 5; 0 marks nothing.</source>
        <translation>Détermine la révision dont le nouveau texte porte la marque, de 1 à 5&#xa0;; 0 ne marque rien.</translation>
    </message>
    <message>
        <source>Adapt indents to line spacing</source>
        <translation>Adapter les retraits à l’interligne</translation>
    </message>
    <message>
        <source>Determines how the first-line indent follows when the line spacing is changed.</source>
        <translation>Détermine comment le retrait de première ligne suit un changement d’interligne.</translation>
    </message>
    <message>
        <source>Open links in</source>
        <translation>Ouvrir les liens dans</translation>
    </message>
    <message>
        <source>Determines where the document opens that a clicked link leads to.</source>
        <translation>Détermine où s’ouvre le document auquel mène un lien cliqué.</translation>
    </message>
    <message>
        <source>Recent projects to list</source>
        <translation>Nombre de projets récents</translation>
    </message>
    <message>
        <source>Determines how many projects the menu of recent projects shows.</source>
        <translation>Détermine combien de projets le menu des projets récents affiche.</translation>
    </message>
    <message>
        <source>Last format of an OPML export</source>
        <translation>Dernier format d’exportation OPML</translation>
    </message>
    <message>
        <source>This is the format that the last export to OPML used.</source>
        <translation>C’est le format employé par la dernière exportation en OPML.</translation>
    </message>
    <message>
        <source>Content of OPML exports</source>
        <translation>Contenu des exportations OPML</translation>
    </message>
    <message>
        <source>Determines which parts of the documents an export to OPML contains.</source>
        <translation>Détermine quelles parties des documents une exportation en OPML contient.</translation>
    </message>
    <message>
        <source>Content of OPML imports</source>
        <translation>Contenu des importations OPML</translation>
    </message>
    <message>
        <source>Determines what the notes of an OPML file become when it is imported.</source>
        <translation>Détermine ce que deviennent les notes d’un fichier OPML importé.</translation>
    </message>
    <message>
        <source>Last choice for an OPML import</source>
        <translation>Dernier choix d’importation OPML</translation>
    </message>
    <message>
        <source>This is the choice that the import dialog showed last.</source>
        <translation>C’est le dernier choix qu’a montré la boîte de dialogue d’importation.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Sets how loud recordings are played, from 0 (silent) to 1 (full).</source>
        <translation>Fixe le volume de lecture des enregistrements, de 0 (muet) à 1 (maximum).</translation>
    </message>
    <message>
        <source>Margin of the editor</source>
        <translation>Marge de l’éditeur</translation>
    </message>
    <message>
        <source>Sets how many pixels are left free between the text and the edge of the editor.</source>
        <translation>Fixe le nombre de pixels laissés libres entre le texte et le bord de l’éditeur.</translation>
    </message>
    <message>
        <source>Folder of templates</source>
        <translation>Dossier des modèles</translation>
    </message>
    <message>
        <source>This is the folder in which project templates of your own are kept.</source>
        <translation>C’est le dossier où se trouvent vos propres modèles de projet.</translation>
    </message>
    <message>
        <source>Picture of the corkboard</source>
        <translation>Image du tableau de liège</translation>
    </message>
    <message>
        <source>This is the picture file that covers the corkboard; without one it has a plain colour.</source>
        <translation>C’est le fichier d’image qui couvre le tableau de liège&#xa0;; sans lui, le tableau a une couleur unie.</translation>
    </message>
    <message>
        <source>Unit of the ruler</source>
        <translation>Unité de la règle</translation>
    </message>
    <message>
        <source>This is the unit in which the ruler and the fields for lengths count.</source>
        <translation>C’est l’unité dans laquelle comptent la règle et les champs de longueur.</translation>
    </message>
    <message>
        <source>Step of the ruler</source>
        <translation>Pas de la règle</translation>
    </message>
    <message>
        <source>This is the distance in which tab stops and indents move on the ruler; empty lets them move freely.</source>
        <translation>C’est la distance par laquelle les taquets et les retraits se déplacent sur la règle&#xa0;; vide, ils se déplacent librement.</translation>
    </message>
    <message>
        <source>Language of the dictionary</source>
        <translation>Langue du dictionnaire</translation>
    </message>
    <message>
        <source>This is the language in which spelling is checked, such as en_GB.</source>
        <translation>C’est la langue dans laquelle l’orthographe est vérifiée, comme fr_FR.</translation>
    </message>
    <message>
        <source>Citation manager</source>
        <translation>Gestionnaire de citations</translation>
    </message>
    <message>
        <source>This is the program that opens when citations are to be inserted.</source>
        <translation>C’est le programme qui s’ouvre pour insérer des citations.</translation>
    </message>
    <message>
        <source>Folder of scratch pad notes</source>
        <translation>Dossier des notes du bloc-notes</translation>
    </message>
    <message>
        <source>This is the folder in which the notes of the scratch pad are kept.</source>
        <translation>C’est le dossier où se trouvent les notes du bloc-notes.</translation>
    </message>
    <message>
        <source>Last scratch pad note</source>
        <translation>Dernière note du bloc-notes</translation>
    </message>
    <message>
        <source>This is the note that the scratch pad showed last.</source>
        <translation>C’est la dernière note que le bloc-notes a affichée.</translation>
    </message>
    <message>
        <source>Layout of the scratch pad</source>
        <translation>Disposition du bloc-notes</translation>
    </message>
    <message>
        <source>Determines whether the list of notes stands above the text or beside it.</source>
        <translation>Détermine si la liste des notes se trouve au-dessus du texte ou à côté.</translation>
    </message>
    <message>
        <source>Folder of backups</source>
        <translation>Dossier des copies de sauvegarde</translation>
    </message>
    <message>
        <source>This is the folder in which automatic backups are kept.</source>
        <translation>C’est le dossier où se trouvent les copies de sauvegarde automatiques.</translation>
    </message>
    <message>
        <source>Language of the application</source>
        <translation>Langue de l’application</translation>
    </message>
    <message>
        <source>This is the language of menus and dialogs; it changes at the next start.</source>
        <translation>C’est la langue des menus et des boîtes de dialogue&#xa0;; elle change au prochain démarrage.</translation>
    </message>
    <message>
        <source>Double quotes</source>
        <translation>Guillemets doubles</translation>
    </message>
    <message>
        <source>These are the opening and the closing mark that replace straight double quotes.</source>
        <translation>Ce sont les signes ouvrant et fermant qui remplacent les guillemets doubles droits.</translation>
    </message>
    <message>
        <source>Single quotes</source>
        <translation>Guillemets simples</translation>
    </message>
    <message>
        <source>These are the opening and the closing mark that replace straight single quotes.</source>
        <translation>Ce sont les signes ouvrant et fermant qui remplacent les guillemets simples droits.</translation>
    </message>
    <message>
        <source>Labels on index cards</source>
        <translation>Étiquettes sur les fiches</translation>
    </message>
    <message>
        <source>Determines how an index card shows the colour of its label.</source>
        <translation>Détermine comment une fiche montre la couleur de son étiquette.</translation>
    </message>
    <message>
        <source>Corners of index cards</source>
        <translation>Coins des fiches</translation>
    </message>
    <message>
        <source>Determines whether the corners of index cards are square or rounded.</source>
        <translation>Détermine si les coins des fiches sont carrés ou arrondis.</translation>
    </message>
    <message>
        <source>Double click on the corkboard</source>
        <translation>Double-clic sur le tableau de liège</translation>
    </message>
    <message>
        <source>Determines what a double click between the cards does.</source>
        <translation>Détermine ce que fait un double-clic entre les fiches.</translation>
    </message>
    <message>
        <source>Kindle converter</source>
        <translation>Convertisseur Kindle</translation>
    </message>
    <message>
        <source>This is the program that makes Kindle books; without it, they are not offered.</source>
        <translation>C’est le programme qui fait les livres Kindle&#xa0;; sans lui, ils ne sont pas proposés.</translation>
    </message>
    <message>
        <source>Last folder of an OPML import</source>
        <translation>Dernier dossier d’importation OPML</translation>
    </message>
    <message>
        <source>This is the folder from which an OPML file was last imported.</source>
        <translation>C’est le dossier d’où un fichier OPML a été importé la dernière fois.</translation>
    </message>
    <message>
        <source>Personal dictionary</source>
        <translation>Dictionnaire personnel</translation>
    </message>
    <message>
        <source>These are the words that you have added to the dictionary.</source>
        <translation>Ce sont les mots que vous avez ajoutés au dictionnaire.</translation>
    </message>
    <message>
        <source>This is the colour of the line below the title of an index card.</source>
        <translation>C’est la couleur de la ligne sous le titre d’une fiche.</translation>
    </message>
    <message>
        <source>This is the colour of the lines on an index card.</source>
        <translation>C’est la couleur des lignes sur une fiche.</translation>
    </message>
    <message>
        <source>This is the colour of the status that is stamped on an index card.</source>
        <translation>C’est la couleur du statut tamponné sur une fiche.</translation>
    </message>
    <message>
        <source>This is the colour of the edge of an index card.</source>
        <translation>C’est la couleur du bord d’une fiche.</translation>
    </message>
    <message>
        <source>This is the colour of an index card without a label.</source>
        <translation>C’est la couleur d’une fiche sans étiquette.</translation>
    </message>
    <message>
        <source>This is the colour of the corkboard where it has no picture.</source>
        <translation>C’est la couleur du tableau de liège quand il n’a pas d’image.</translation>
    </message>
    <message>
        <source>This is the colour of the screen around the page in full screen.</source>
        <translation>C’est la couleur de l’écran autour de la page en plein écran.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the first revision.</source>
        <translation>C’est la couleur du texte écrit pendant la première révision.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the second revision.</source>
        <translation>C’est la couleur du texte écrit pendant la deuxième révision.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the third revision.</source>
        <translation>C’est la couleur du texte écrit pendant la troisième révision.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the fourth revision.</source>
        <translation>C’est la couleur du texte écrit pendant la quatrième révision.</translation>
    </message>
    <message>
        <source>This is the colour of text that was written in the fifth revision.</source>
        <translation>C’est la couleur du texte écrit pendant la cinquième révision.</translation>
    </message>
    <message>
        <source>This is the colour of text in the editor that has none of its own.</source>
        <translation>C’est la couleur du texte de l’éditeur qui n’en a pas d’autre.</translation>
    </message>
    <message>
        <source>This is the colour of the page in the editor.</source>
        <translation>C’est la couleur de la page dans l’éditeur.</translation>
    </message>
    <message>
        <source>This is the colour of links in the editor.</source>
        <translation>C’est la couleur des liens dans l’éditeur.</translation>
    </message>
    <message>
        <source>This is the colour of links in the editor that have been opened.</source>
        <translation>C’est la couleur des liens déjà ouverts dans l’éditeur.</translation>
    </message>
    <message>
        <source>This is the colour of blanks, tabs and paragraph marks in the editor.</source>
        <translation>C’est la couleur des espaces, des tabulations et des marques de paragraphe dans l’éditeur.</translation>
    </message>
    <message>
        <source>This is the colour of selected text in the editor.</source>
        <translation>C’est la couleur du texte sélectionné dans l’éditeur.</translation>
    </message>
    <message>
        <source>This is the background of selected text in the editor.</source>
        <translation>C’est le fond du texte sélectionné dans l’éditeur.</translation>
    </message>
    <message>
        <source>This is the colour of annotations within the text.</source>
        <translation>C’est la couleur des annotations dans le texte.</translation>
    </message>
    <message>
        <source>This is the background of text that has a comment.</source>
        <translation>C’est le fond du texte qui porte un commentaire.</translation>
    </message>
    <message>
        <source>This is the colour of the text of footnotes.</source>
        <translation>C’est la couleur du texte des notes de bas de page.</translation>
    </message>
    <message>
        <source>This is the background of text that has a footnote.</source>
        <translation>C’est le fond du texte qui porte une note de bas de page.</translation>
    </message>
    <message>
        <source>This is the background of text that keeps its formatting when the book is compiled.</source>
        <translation>C’est le fond du texte qui garde sa mise en forme à la compilation du livre.</translation>
    </message>
    <message>
        <source>This is the background of what a project search has found in the editor.</source>
        <translation>C’est le fond de ce qu’une recherche dans le projet a trouvé dans l’éditeur.</translation>
    </message>
    <message>
        <source>This is the colour of the frame around what a project search has found in the editor.</source>
        <translation>C’est la couleur du cadre de ce qu’une recherche dans le projet a trouvé dans l’éditeur.</translation>
    </message>
    <message>
        <source>This is the background of what was found in the document.</source>
        <translation>C’est le fond de ce qui a été trouvé dans le document.</translation>
    </message>
    <message>
        <source>This is the background of every other match in the document.</source>
        <translation>C’est le fond d’une occurrence sur deux dans le document.</translation>
    </message>
    <message>
        <source>This is the colour of text that was found in the document.</source>
        <translation>C’est la couleur du texte trouvé dans le document.</translation>
    </message>
    <message>
        <source>This is the colour of the line below a misspelt word.</source>
        <translation>C’est la couleur de la ligne sous un mot mal orthographié.</translation>
    </message>
    <message>
        <source>This is the colour of text in full screen that has none of its own.</source>
        <translation>C’est la couleur du texte en plein écran qui n’en a pas d’autre.</translation>
    </message>
    <message>
        <source>This is the colour of the page in full screen.</source>
        <translation>C’est la couleur de la page en plein écran.</translation>
    </message>
    <message>
        <source>This is the colour of links in full screen.</source>
        <translation>C’est la couleur des liens en plein écran.</translation>
    </message>
    <message>
        <source>This is the colour of links in full screen that have been opened.</source>
        <translation>C’est la couleur des liens déjà ouverts en plein écran.</translation>
    </message>
    <message>
        <source>This is the colour of blanks, tabs and paragraph marks in full screen.</source>
        <translation>C’est la couleur des espaces, des tabulations et des marques de paragraphe en plein écran.</translation>
    </message>
    <message>
        <source>This is the colour of selected text in full screen.</source>
        <translation>C’est la couleur du texte sélectionné en plein écran.</translation>
    </message>
    <message>
        <source>This is the background of selected text in full screen.</source>
        <translation>C’est le fond du texte sélectionné en plein écran.</translation>
    </message>
    <message>
        <source>This is the background of what a project search has found, in full screen.</source>
        <translation>C’est le fond de ce qu’une recherche dans le projet a trouvé, en plein écran.</translation>
    </message>
    <message>
        <source>This is the colour of the frame around what a project search has found, in full screen.</source>
        <translation>C’est la couleur du cadre de ce qu’une recherche dans le projet a trouvé, en plein écran.</translation>
    </message>
    <message>
        <source>This is the background of what was found in the document, in full screen.</source>
        <translation>C’est le fond de ce qui a été trouvé dans le document, en plein écran.</translation>
    </message>
    <message>
        <source>This is the background of every other match in the document, in full screen.</source>
        <translation>C’est le fond d’une occurrence sur deux dans le document, en plein écran.</translation>
    </message>
    <message>
        <source>This is the colour of text that was found in the document, in full screen.</source>
        <translation>C’est la couleur du texte trouvé dans le document, en plein écran.</translation>
    </message>
    <message>
        <source>This is the background of the notes of a document.</source>
        <translation>C’est le fond des notes d’un document.</translation>
    </message>
    <message>
        <source>This is the background of the notes of the project.</source>
        <translation>C’est le fond des notes du projet.</translation>
    </message>
    <message>
        <source>This is the background of the list of recent search results.</source>
        <translation>C’est le fond de la liste des derniers résultats de recherche.</translation>
    </message>
    <message>
        <source>This is the background of the binder.</source>
        <translation>C’est le fond du classeur.</translation>
    </message>
    <message>
        <source>This is the background of the outliner.</source>
        <translation>C’est le fond du plan.</translation>
    </message>
    <message>
        <source>This is the background of every other row of the outliner.</source>
        <translation>C’est le fond d’une ligne sur deux du plan.</translation>
    </message>
    <message>
        <source>This is the background of earlier versions of a document.</source>
        <translation>C’est le fond des versions antérieures d’un document.</translation>
    </message>
    <message>
        <source>This is the background of the scratch pad.</source>
        <translation>C’est le fond du bloc-notes.</translation>
    </message>
    <message>
        <source>This is the colour of text in the scratch pad.</source>
        <translation>C’est la couleur du texte dans le bloc-notes.</translation>
    </message>
    <message>
        <source>Last check for updates</source>
        <translation>Dernière recherche de mises à jour</translation>
    </message>
    <message>
        <source>This is the time at which a newer version was last looked for.</source>
        <translation>C’est le moment où une version plus récente a été recherchée pour la dernière fois.</translation>
    </message>
    <message>
        <source>Time of the start</source>
        <translation>Moment du démarrage</translation>
    </message>
    <message>
        <source>This is the time at which the application was started.</source>
        <translation>C’est le moment où l’application a été démarrée.</translation>
    </message>
    <message>
        <source>This is the font of the titles of index cards.</source>
        <translation>C’est la police des titres des fiches.</translation>
    </message>
    <message>
        <source>This is the font of the synopses on index cards.</source>
        <translation>C’est la police des synopsis sur les fiches.</translation>
    </message>
    <message>
        <source>This is the font of the synopses on small index cards.</source>
        <translation>C’est la police des synopsis sur les petites fiches.</translation>
    </message>
    <message>
        <source>This is the font of the status that is stamped on index cards.</source>
        <translation>C’est la police du statut tamponné sur les fiches.</translation>
    </message>
    <message>
        <source>This is the font of menus, buttons and dialogs.</source>
        <translation>C’est la police des menus, des boutons et des boîtes de dialogue.</translation>
    </message>
    <message>
        <source>This is the font of the notes of a document.</source>
        <translation>C’est la police des notes d’un document.</translation>
    </message>
    <message>
        <source>This is the font of the notes of the project.</source>
        <translation>C’est la police des notes du projet.</translation>
    </message>
    <message>
        <source>This is the font of the binder.</source>
        <translation>C’est la police du classeur.</translation>
    </message>
    <message>
        <source>This is the font of the outliner.</source>
        <translation>C’est la police du plan.</translation>
    </message>
    <message>
        <source>This is the font of the bar above each editor.</source>
        <translation>C’est la police de la barre au-dessus de chaque éditeur.</translation>
    </message>
    <message>
        <source>This is the font of comments in the inspector.</source>
        <translation>C’est la police des commentaires dans l’inspecteur.</translation>
    </message>
    <message>
        <source>This is the font of footnotes in the inspector.</source>
        <translation>C’est la police des notes de bas de page dans l’inspecteur.</translation>
    </message>
    <message>
        <source>This is the font of the scratch pad.</source>
        <translation>C’est la police du bloc-notes.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>This is the set of keys that the commands of the application have.</source>
        <translation>Ce sont les touches attribuées aux commandes de l’application.</translation>
    </message>
    <message>
        <source>Text presets</source>
        <translation>Préréglages de texte</translation>
    </message>
    <message>
        <source>These are the named formats for characters and paragraphs.</source>
        <translation>Ce sont les formats nommés de caractères et de paragraphes.</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Image d’arrière-plan</translation>
    </message>
    <message>
        <source>This is the picture that fills the screen around the page in full screen.</source>
        <translation>C’est l’image qui remplit l’écran autour de la page en plein écran.</translation>
    </message>
    <message>
        <source>Replacements</source>
        <translation>Remplacements</translation>
    </message>
    <message>
        <source>This is the list of texts that are replaced while typing.</source>
        <translation>C’est la liste des textes remplacés pendant la frappe.</translation>
    </message>
    <message>
        <source>PDF settings</source>
        <translation>Réglages PDF</translation>
    </message>
    <message>
        <source>These are the settings of PDF exports by their names.</source>
        <translation>Ce sont les réglages des exportations PDF avec leurs noms.</translation>
    </message>
    <message>
        <source>Place of the spelling window</source>
        <translation>Place de la fenêtre d’orthographe</translation>
    </message>
    <message>
        <source>This is the place and the size that the spelling window had last.</source>
        <translation>Ce sont la place et la taille qu’avait la fenêtre d’orthographe la dernière fois.</translation>
    </message>
    <message>
        <source>Import web pages as</source>
        <translation>Importer les pages web en</translation>
    </message>
    <message>
        <source>Determines what a web page becomes when it is imported.</source>
        <translation>Détermine ce que devient une page web importée.</translation>
    </message>
    <message>
        <source>Encoding of plain text</source>
        <translation>Codage du texte brut</translation>
    </message>
    <message>
        <source>This is the encoding in which plain text files are read where they do not name one.</source>
        <translation>C’est le codage dans lequel sont lus les fichiers de texte brut qui n’en indiquent pas.</translation>
    </message>
    <message>
        <source>Converters for imports</source>
        <translation>Convertisseurs d’importation</translation>
    </message>
    <message>
        <source>Determines which converter reads which file format.</source>
        <translation>Détermine quel convertisseur lit quel format de fichier.</translation>
    </message>
    <message>
        <source>Converters for exports</source>
        <translation>Convertisseurs d’exportation</translation>
    </message>
    <message>
        <source>Determines which converter writes which file format.</source>
        <translation>Détermine quel convertisseur écrit quel format de fichier.</translation>
    </message>
    <message>
        <source>Characters of new documents</source>
        <translation>Caractères des nouveaux documents</translation>
    </message>
    <message>
        <source>This is the format of characters with which a new document begins.</source>
        <translation>C’est le format de caractères par lequel commence un nouveau document.</translation>
    </message>
    <message>
        <source>Paragraphs of new documents</source>
        <translation>Paragraphes des nouveaux documents</translation>
    </message>
    <message>
        <source>This is the format of paragraphs with which a new document begins.</source>
        <translation>C’est le format de paragraphe par lequel commence un nouveau document.</translation>
    </message>
    <message>
        <source>Between documents shown together</source>
        <translation>Entre les documents affichés ensemble</translation>
    </message>
    <message>
        <source>Determines what separates the texts of documents that are shown as one.</source>
        <translation>Détermine ce qui sépare les textes des documents affichés comme un seul.</translation>
    </message>
    <message>
        <source>Separator of your own between documents shown together</source>
        <translation>Votre séparateur entre les documents affichés ensemble</translation>
    </message>
    <message>
        <source>This is the text that separates documents shown as one where a separator of your own is chosen.</source>
        <translation>C’est le texte qui sépare les documents affichés comme un seul quand un séparateur personnel est choisi.</translation>
    </message>
    <message>
        <source>Between merged documents</source>
        <translation>Entre les documents fusionnés</translation>
    </message>
    <message>
        <source>Determines what separates the texts of documents that are merged.</source>
        <translation>Détermine ce qui sépare les textes des documents fusionnés.</translation>
    </message>
    <message>
        <source>Separator of your own between merged documents</source>
        <translation>Votre séparateur entre les documents fusionnés</translation>
    </message>
    <message>
        <source>This is the text that separates merged documents where a separator of your own is chosen.</source>
        <translation>C’est le texte qui sépare les documents fusionnés quand un séparateur personnel est choisi.</translation>
    </message>
    <message>
        <source>Between clippings</source>
        <translation>Entre les extraits</translation>
    </message>
    <message>
        <source>Determines what separates a clipping from the text to which it is added.</source>
        <translation>Détermine ce qui sépare un extrait du texte auquel il est ajouté.</translation>
    </message>
    <message>
        <source>Separator of your own between clippings</source>
        <translation>Votre séparateur entre les extraits</translation>
    </message>
    <message>
        <source>This is the text that separates clippings where a separator of your own is chosen.</source>
        <translation>C’est le texte qui sépare les extraits quand un séparateur personnel est choisi.</translation>
    </message>
    <message>
        <source>the commas make a list of the bytes; they belong into quotation marks</source>
        <translation>les virgules font une liste des octets&#xa0;; il faut les mettre entre guillemets</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Font of card titles</source>
        <translation>Police des titres de fiche</translation>
    </message>
    <message>
        <source>Font of synopses</source>
        <translation>Police des synopsis</translation>
    </message>
    <message>
        <source>Font of synopses on small cards</source>
        <translation>Police des synopsis sur les petites fiches</translation>
    </message>
    <message>
        <source>Font of status stamps</source>
        <translation>Police des tampons de statut</translation>
    </message>
    <message>
        <source>Font of menus and dialogs</source>
        <translation>Police des menus et boîtes de dialogue</translation>
    </message>
    <message>
        <source>Font of document notes</source>
        <translation>Police des notes de document</translation>
    </message>
    <message>
        <source>Font of project notes</source>
        <translation>Police des notes de projet</translation>
    </message>
    <message>
        <source>Font of the binder</source>
        <translation>Police du classeur</translation>
    </message>
    <message>
        <source>Font of the outliner</source>
        <translation>Police du plan</translation>
    </message>
    <message>
        <source>Font of header bars</source>
        <translation>Police des barres d’en-tête</translation>
    </message>
    <message>
        <source>Font of comments</source>
        <translation>Police des commentaires</translation>
    </message>
    <message>
        <source>Font of footnotes</source>
        <translation>Police des notes de bas de page</translation>
    </message>
    <message>
        <source>Font of the scratch pad</source>
        <translation>Police du bloc-notes</translation>
    </message>
    <message>
        <source>the value is damaged</source>
        <translation>la valeur est endommagée</translation>
    </message>
    <message>
        <source>%1; it can be reset</source>
        <translation>%1&#xa0;; il est possible de le réinitialiser</translation>
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
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>son dossier n’existe pas</translation>
    </message>
    <message>
        <source>this is no settings file</source>
        <translation>ce n’est pas un fichier de réglages</translation>
    </message>
</context>
<context>
    <name>MRVOutputFiles</name>
    <message>
        <source>two inputs would be written to this file</source>
        <translation>deux entrées seraient écrites dans ce fichier</translation>
    </message>
    <message>
        <source>the output would replace an input</source>
        <translation>la sortie remplacerait une entrée</translation>
    </message>
</context>
<context>
    <name>MRVPagePublisher</name>
    <message>
        <source>there is no document to be written</source>
        <translation>aucun document à écrire</translation>
    </message>
    <message>
        <source>the style sheet belongs to %1; choose another folder, or export these pages together</source>
        <translation>la feuille de style appartient à %1&#xa0;; choisissez un autre dossier ou exportez ces pages ensemble</translation>
    </message>
    <message>
        <source>this style sheet was not written for these pages; choose another folder</source>
        <translation>cette feuille de style n’a pas été écrite pour ces pages&#xa0;; choisissez un autre dossier</translation>
    </message>
</context>
<context>
    <name>MRVPdfWriter</name>
    <message>
        <source>the pages cannot be painted</source>
        <translation>les pages ne peuvent pas être dessinées</translation>
    </message>
    <message>
        <source>The PDF document cannot be made: %1</source>
        <translation>Le document PDF ne peut pas être créé&#xa0;: %1</translation>
    </message>
    <message>
        <source>characters that no installed font has, and that are empty boxes: %1 (%2%3)</source>
        <translation>caractères qu’aucune police installée ne contient, et qui sont des cases vides&#xa0;: %1 (%2%3)</translation>
    </message>
</context>
<context>
    <name>MRVPictureReader</name>
    <message>
        <source>it does not exist</source>
        <translation>il n’existe pas</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>il ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>its %1 by %2 pixels are more than can be read</source>
        <translation>ses %1 sur %2 pixels dépassent ce qui peut être lu</translation>
    </message>
    <message>
        <source>it claims %1 by %2 pixels, which a file of its length does not hold</source>
        <translation>il annonce %1 sur %2 pixels, qu’un fichier de sa longueur ne contient pas</translation>
    </message>
    <message>
        <source>it is in no known picture format</source>
        <translation>ce n’est pas un format d’image connu</translation>
    </message>
    <message>
        <source>it is in a form that cannot be checked</source>
        <translation>sa forme ne peut pas être vérifiée</translation>
    </message>
    <message>
        <source>it holds too much compressed text</source>
        <translation>il contient trop de texte compressé</translation>
    </message>
    <message>
        <source>it does not tell its size</source>
        <translation>il n’indique pas sa taille</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>il est endommagé</translation>
    </message>
    <message>
        <source>it holds more than %1 MiB of text</source>
        <translation>il contient plus de %1 Mio de texte</translation>
    </message>
</context>
<context>
    <name>MRVProgressMeter</name>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
</context>
<context>
    <name>MRVRecovery</name>
    <message>
        <source>%1: no lock can be made there</source>
        <translation>%1&#xa0;: aucun verrou ne peut y être créé</translation>
    </message>
</context>
<context>
    <name>MRVScriptCheck</name>
    <message>
        <source>&apos;%1&apos; says nothing</source>
        <translation>«&#xa0;%1&#xa0;» ne dit rien</translation>
    </message>
    <message>
        <source>&apos;%1&apos; looks like a cue, but is action</source>
        <translation>«&#xa0;%1&#xa0;» ressemble à un nom de personnage, mais c’est de l’action</translation>
    </message>
    <message>
        <source>the cue &apos;%1&apos; is one letter apart from &apos;%2&apos;</source>
        <translation>le nom de personnage «&#xa0;%1&#xa0;» diffère d’une lettre de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the cue &apos;%1&apos; is spelled &apos;%2&apos;</source>
        <translation>le nom de personnage «&#xa0;%1&#xa0;» s’écrit ailleurs «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the place &apos;%1&apos; is one letter apart from &apos;%2&apos;</source>
        <translation>le lieu «&#xa0;%1&#xa0;» diffère d’une lettre de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the place &apos;%1&apos; is spelled &apos;%2&apos;</source>
        <translation>le lieu «&#xa0;%1&#xa0;» s’écrit ailleurs «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; ends nothing</source>
        <translation>«&#xa0;%1&#xa0;» ne termine rien</translation>
    </message>
    <message>
        <source>&apos;%1&apos; begins a note that does not end in its paragraph</source>
        <translation>«&#xa0;%1&#xa0;» commence une note qui ne se termine pas dans son paragraphe</translation>
    </message>
    <message>
        <source>&apos;%1&apos; begins cut text that does not end</source>
        <translation>«&#xa0;%1&#xa0;» commence du texte coupé qui ne se termine pas</translation>
    </message>
</context>
<context>
    <name>MRVScriptFile</name>
    <message>
        <source>unknown type of script</source>
        <translation>type de script inconnu</translation>
    </message>
    <message>
        <source>files of this type name their encoding themselves</source>
        <translation>les fichiers de ce type indiquent eux-mêmes leur codage</translation>
    </message>
    <message>
        <source>the encoding %1 lacks some characters of the changed text</source>
        <translation>il manque au codage %1 certains caractères du texte modifié</translation>
    </message>
</context>
<context>
    <name>MRVScriptMode</name>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a script mode: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un mode script&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot read the file &quot;%1&quot;: %2</source>
        <translation>Impossible de lire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: the script mode is too large</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: le mode script est trop volumineux</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of &quot;%2&quot;</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une valeur de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is not expected in &quot;%2&quot;</source>
        <translation>l’attribut «&#xa0;%1&#xa0;» n’a pas sa place dans «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>text between elements is ignored</source>
        <translation>le texte entre les éléments est ignoré</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not expected in &quot;%2&quot; and is ignored</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas sa place dans «&#xa0;%2&#xa0;» et est ignoré</translation>
    </message>
    <message>
        <source>the root element is &quot;%1&quot; and not &quot;%2&quot;</source>
        <translation>l’élément racine est «&#xa0;%1&#xa0;» et non «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the root element is in the namespace &quot;%1&quot;</source>
        <translation>l’élément racine appartient à l’espace de noms «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the version is &quot;%1&quot; and not &quot;%2&quot;</source>
        <translation>la version est «&#xa0;%1&#xa0;» et non «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the mode has more than %1 script elements</source>
        <translation>il y a plus de %1 éléments de script</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>le fichier dépasse %1 octets</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: Return goes to &apos;%2&apos;, which is no element</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: Entrée mène à «&#xa0;%2&#xa0;», qui n’est pas un élément</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: Tab in an empty line goes to &apos;%2&apos;, which is no element</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: Tab dans une ligne vide mène à «&#xa0;%2&#xa0;», qui n’est pas un élément</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: Tab goes to &apos;%2&apos;, which is no element</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: Tab mène à «&#xa0;%2&#xa0;», qui n’est pas un élément</translation>
    </message>
    <message>
        <source>the mode has no elements</source>
        <translation>le mode n’a pas d’éléments</translation>
    </message>
    <message>
        <source>element %1 has no title</source>
        <translation>l’élément %1 n’a pas de titre</translation>
    </message>
    <message>
        <source>two elements are called &apos;%1&apos;</source>
        <translation>deux éléments s’appellent «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the paragraphs of &apos;%1&apos; look like those of &apos;%2&apos;</source>
        <translation>les paragraphes de «&#xa0;%1&#xa0;» ressemblent à ceux de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither a factory mode nor a file</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni un mode fourni ni un fichier</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither a factory mode nor a file; did you mean &apos;%2&apos;?</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni un mode fourni ni un fichier&#xa0;; vouliez-vous dire «&#xa0;%2&#xa0;»&#xa0;?</translation>
    </message>
</context>
<context>
    <name>MRVScriptPdf</name>
    <message>
        <source>Nobody called &quot;%1&quot; speaks.</source>
        <translation>Personne du nom de «&#xa0;%1&#xa0;» ne parle.</translation>
    </message>
    <message>
        <source>The script has no such pages, or nothing to print.</source>
        <translation>Le scénario n’a pas de telles pages, ou rien à imprimer.</translation>
    </message>
</context>
<context>
    <name>MRVSearchOutcome</name>
    <message>
        <source>the search was given up in paragraph %1, where the expression can match in too many ways</source>
        <translation>la recherche a été abandonnée au paragraphe %1, où l’expression peut correspondre de trop de façons</translation>
    </message>
    <message>
        <source>the search was given up in paragraph %1, since it took too long</source>
        <translation>la recherche a été abandonnée au paragraphe %1, car elle durait trop longtemps</translation>
    </message>
    <message>
        <source>the search was cancelled in paragraph %1</source>
        <translation>la recherche a été annulée au paragraphe %1</translation>
    </message>
</context>
<context>
    <name>MRVSettings</name>
    <message>
        <source>Cannot write the file &quot;%1&quot;: it is locked</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: il est verrouillé</translation>
    </message>
    <message>
        <source>The settings have no file</source>
        <translation>Les réglages n’ont pas de fichier</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not hold settings</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne contient pas de réglages</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a regular file</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: it cannot be locked</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: il ne peut pas être verrouillé</translation>
    </message>
</context>
<context>
    <name>MRVShortcut</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Fullscreen Only</source>
        <translation>Plein écran uniquement</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+N</source>
        <translation>Ctrl+G,Ctrl+N</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Toggle Scratch Pad</source>
        <translation>Afficher/masquer le bloc-notes</translation>
    </message>
    <message>
        <source>Ctrl+Shift+0</source>
        <translation>Ctrl+Shift+0</translation>
    </message>
    <message>
        <source>Show Spelling</source>
        <translation>Afficher l’orthographe</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Q</source>
        <translation>Ctrl+G,Ctrl+Q</translation>
    </message>
    <message>
        <source>Learn Spelling</source>
        <translation>Apprendre l’orthographe</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+L</source>
        <translation>Ctrl+G,Ctrl+L</translation>
    </message>
    <message>
        <source>Ignore Spelling</source>
        <translation>Ignorer l’orthographe</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+L</source>
        <translation>Ctrl+G,Ctrl+Shift+L</translation>
    </message>
    <message>
        <source>Show Citations</source>
        <translation>Afficher les citations</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+O</source>
        <translation>Ctrl+G,Ctrl+O</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>Morvane Manual</source>
        <translation>Manuel de Morvane</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Duplicate Item With SubDocuments</source>
        <translation>Dupliquer l’élément avec ses sous-documents</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Duplicate Item Without SubDocuments</source>
        <translation>Dupliquer l’élément sans ses sous-documents</translation>
    </message>
    <message>
        <source>Ctrl+Shift+D</source>
        <translation>Ctrl+Shift+D</translation>
    </message>
    <message>
        <source>Toggle Main Toolbar</source>
        <translation>Afficher/masquer la barre d’outils principale</translation>
    </message>
    <message>
        <source>Ctrl+Shift+6</source>
        <translation>Ctrl+Shift+6</translation>
    </message>
    <message>
        <source>Toggle Collections</source>
        <translation>Afficher/masquer les collections</translation>
    </message>
    <message>
        <source>Ctrl+Shift+9</source>
        <translation>Ctrl+Shift+9</translation>
    </message>
    <message>
        <source>Toggle Header Bar</source>
        <translation>Afficher/masquer la barre d’en-tête</translation>
    </message>
    <message>
        <source>Ctrl+Shift+4</source>
        <translation>Ctrl+Shift+4</translation>
    </message>
    <message>
        <source>Toggle Footer Bar</source>
        <translation>Afficher/masquer la barre de bas de page</translation>
    </message>
    <message>
        <source>Ctrl+Shift+5</source>
        <translation>Ctrl+Shift+5</translation>
    </message>
    <message>
        <source>Search in Project</source>
        <translation>Rechercher dans le projet</translation>
    </message>
    <message>
        <source>Ctrl+Shift+F</source>
        <translation>Ctrl+Shift+F</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Ouvrir dans l’éditeur</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Return</source>
        <translation>Ctrl+Shift+Return</translation>
    </message>
    <message>
        <source>Open in Other Editor</source>
        <translation>Ouvrir dans l’autre éditeur</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Return</source>
        <translation>Ctrl+Alt+Return</translation>
    </message>
    <message>
        <source>Open in External Editor</source>
        <translation>Ouvrir dans un éditeur externe</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
    </message>
    <message>
        <source>Group Selection</source>
        <translation>Grouper la sélection</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+U</source>
        <translation>Ctrl+G,Ctrl+U</translation>
    </message>
    <message>
        <source>Ungroup Selection</source>
        <translation>Dégrouper la sélection</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+B</source>
        <translation>Ctrl+G,Ctrl+B</translation>
    </message>
    <message>
        <source>Merge Documents</source>
        <translation>Fusionner les documents</translation>
    </message>
    <message>
        <source>Ctrl+Shift+M</source>
        <translation>Ctrl+Shift+M</translation>
    </message>
    <message>
        <source>Back in Editor</source>
        <translation>Reculer dans l’éditeur</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Forward in Editor</source>
        <translation>Avancer dans l’éditeur</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>Back in Other Editor</source>
        <translation>Reculer dans l’autre éditeur</translation>
    </message>
    <message>
        <source>Ctrl+G,Alt+Left</source>
        <translation>Ctrl+G,Alt+Left</translation>
    </message>
    <message>
        <source>Forward in Other Editor</source>
        <translation>Avancer dans l’autre éditeur</translation>
    </message>
    <message>
        <source>Ctrl+G,Alt+Right</source>
        <translation>Ctrl+G,Alt+Right</translation>
    </message>
    <message>
        <source>Use Label Color in Binder</source>
        <translation>Utiliser la couleur d’étiquette dans le classeur</translation>
    </message>
    <message>
        <source>Use Label Color in Icons</source>
        <translation>Utiliser la couleur d’étiquette dans les icônes</translation>
    </message>
    <message>
        <source>Use Label Color in Index Cards</source>
        <translation>Utiliser la couleur d’étiquette sur les fiches</translation>
    </message>
    <message>
        <source>Use Label Color in Outliner Rows</source>
        <translation>Utiliser la couleur d’étiquette dans les lignes du plan</translation>
    </message>
    <message>
        <source>Move Focus to Next Area</source>
        <translation>Placer le focus dans la zone suivante</translation>
    </message>
    <message>
        <source>F6</source>
        <translation>F6</translation>
    </message>
    <message>
        <source>Edit Metadata</source>
        <translation>Modifier les métadonnées</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+M</source>
        <translation>Ctrl+G,Ctrl+Shift+M</translation>
    </message>
    <message>
        <source>Reveal in Binder</source>
        <translation>Montrer dans le classeur</translation>
    </message>
    <message>
        <source>Ctrl+Alt+B</source>
        <translation>Ctrl+Alt+B</translation>
    </message>
    <message>
        <source>Show Auto-Complete List</source>
        <translation>Afficher la liste de saisie semi-automatique</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+Space</source>
        <translation>Ctrl+G,Shift+Space</translation>
    </message>
    <message>
        <source>Show Project Notes</source>
        <translation>Afficher les notes du projet</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+P</source>
        <translation>Ctrl+G,Ctrl+Shift+P</translation>
    </message>
    <message>
        <source>Show Labels on Index Cards</source>
        <translation>Afficher les étiquettes sur les fiches</translation>
    </message>
    <message>
        <source>Show Status on Index Cards</source>
        <translation>Afficher le statut sur les fiches</translation>
    </message>
    <message>
        <source>Show Keywords on Index Cards</source>
        <translation>Afficher les mots-clés sur les fiches</translation>
    </message>
    <message>
        <source>New Text</source>
        <translation>Nouveau texte</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>New From First Template</source>
        <translation>Nouveau d’après le premier modèle</translation>
    </message>
    <message>
        <source>Ctrl+Alt+N</source>
        <translation>Ctrl+Alt+N</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Déplacer vers la corbeille</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Del</source>
        <translation>Ctrl+Shift+Del</translation>
    </message>
    <message>
        <source>Convert to Default Formatting</source>
        <translation>Convertir à la mise en forme par défaut</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+0</source>
        <translation>Ctrl+G,Ctrl+0</translation>
    </message>
    <message>
        <source>Toggle Binder</source>
        <translation>Afficher/masquer le classeur</translation>
    </message>
    <message>
        <source>Ctrl+Shift+B</source>
        <translation>Ctrl+Shift+B</translation>
    </message>
    <message>
        <source>Toggle Inspector</source>
        <translation>Afficher/masquer l’inspecteur</translation>
    </message>
    <message>
        <source>Ctrl+Shift+I</source>
        <translation>Ctrl+Shift+I</translation>
    </message>
    <message>
        <source>Toggle Keywords Panel</source>
        <translation>Afficher/masquer le panneau des mots-clés</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+W</source>
        <translation>Ctrl+G,Ctrl+W</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>Activer/désactiver le plein écran</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>Toggle Ruler</source>
        <translation>Afficher/masquer la règle</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Toggle Format Bar</source>
        <translation>Afficher/masquer la barre de mise en forme</translation>
    </message>
    <message>
        <source>Ctrl+Shift+7</source>
        <translation>Ctrl+Shift+7</translation>
    </message>
    <message>
        <source>Toggle Typewriter Scrolling</source>
        <translation>Activer/désactiver le défilement de machine à écrire</translation>
    </message>
    <message>
        <source>Ctrl+Shift+T</source>
        <translation>Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>No Split</source>
        <translation>Ne pas diviser</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Split Horizontally</source>
        <translation>Diviser horizontalement</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Split Vertically</source>
        <translation>Diviser verticalement</translation>
    </message>
    <message>
        <source>Ctrl+6</source>
        <translation>Ctrl+6</translation>
    </message>
    <message>
        <source>Show Text</source>
        <translation>Afficher le texte</translation>
    </message>
    <message>
        <source>Ctrl+1</source>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show Corkboard</source>
        <translation>Afficher le tableau de liège</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show Outliner</source>
        <translation>Afficher le plan</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Lock Editor</source>
        <translation>Verrouiller l’éditeur</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+K</source>
        <translation>Ctrl+G,Ctrl+K</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Ctrl+Shift+P</source>
        <translation>Ctrl+Shift+P</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>Ctrl+Alt+P</source>
        <translation>Ctrl+Alt+P</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Close Project</source>
        <translation>Fermer le projet</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compiler</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Import Files</source>
        <translation>Importer des fichiers</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+I</source>
        <translation>Ctrl+G,Ctrl+I</translation>
    </message>
    <message>
        <source>Import Web Page</source>
        <translation>Importer une page web</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+I</source>
        <translation>Ctrl+G,Ctrl+Shift+I</translation>
    </message>
    <message>
        <source>Export Files</source>
        <translation>Exporter des fichiers</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+E</source>
        <translation>Ctrl+G,Ctrl+E</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Rechercher le suivant</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Rechercher le précédent</translation>
    </message>
    <message>
        <source>Shift+F3</source>
        <translation>Shift+F3</translation>
    </message>
    <message>
        <source>Use Selection for Find</source>
        <translation>Rechercher la sélection</translation>
    </message>
    <message>
        <source>Ctrl+Shift+G</source>
        <translation>Ctrl+Shift+G</translation>
    </message>
    <message>
        <source>Jump to Selection</source>
        <translation>Aller à la sélection</translation>
    </message>
    <message>
        <source>Ctrl+Alt+J</source>
        <translation>Ctrl+Alt+J</translation>
    </message>
    <message>
        <source>Replace and Find Next</source>
        <translation>Remplacer et rechercher le suivant</translation>
    </message>
    <message>
        <source>Ctrl+H</source>
        <translation>Ctrl+H</translation>
    </message>
    <message>
        <source>Find in Synopsis</source>
        <translation>Rechercher dans le synopsis</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Y</source>
        <translation>Ctrl+G,Ctrl+Y</translation>
    </message>
    <message>
        <source>Find by Format</source>
        <translation>Rechercher par mise en forme</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+F</source>
        <translation>Ctrl+G,Ctrl+F</translation>
    </message>
    <message>
        <source>Find Next by Format</source>
        <translation>Rechercher le suivant par mise en forme</translation>
    </message>
    <message>
        <source>F4</source>
        <translation>F4</translation>
    </message>
    <message>
        <source>Find Previous by Format</source>
        <translation>Rechercher le précédent par mise en forme</translation>
    </message>
    <message>
        <source>Shift+F4</source>
        <translation>Shift+F4</translation>
    </message>
    <message>
        <source>Find in PDF</source>
        <translation>Rechercher dans le PDF</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+F</source>
        <translation>Ctrl+G,Ctrl+Shift+F</translation>
    </message>
    <message>
        <source>Find Next in PDF</source>
        <translation>Rechercher le suivant dans le PDF</translation>
    </message>
    <message>
        <source>Ctrl+G,F3</source>
        <translation>Ctrl+G,F3</translation>
    </message>
    <message>
        <source>Find Previous in PDF</source>
        <translation>Rechercher le précédent dans le PDF</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+F3</source>
        <translation>Ctrl+G,Shift+F3</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Tout développer</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl++</source>
        <translation>Ctrl+G,Ctrl++</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Tout réduire</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+-</source>
        <translation>Ctrl+G,Ctrl+-</translation>
    </message>
    <message>
        <source>Collapse to Current Level</source>
        <translation>Réduire jusqu’au niveau actuel</translation>
    </message>
    <message>
        <source>Previous Container</source>
        <translation>Conteneur précédent</translation>
    </message>
    <message>
        <source>Ctrl+PgUp</source>
        <translation>Ctrl+PgUp</translation>
    </message>
    <message>
        <source>Next Container</source>
        <translation>Conteneur suivant</translation>
    </message>
    <message>
        <source>Ctrl+PgDown</source>
        <translation>Ctrl+PgDown</translation>
    </message>
    <message>
        <source>Next Collection</source>
        <translation>Collection suivante</translation>
    </message>
    <message>
        <source>Ctrl+Shift+PgDown</source>
        <translation>Ctrl+Shift+PgDown</translation>
    </message>
    <message>
        <source>Previous Collection</source>
        <translation>Collection précédente</translation>
    </message>
    <message>
        <source>Ctrl+Shift+PgUp</source>
        <translation>Ctrl+Shift+PgUp</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>Déplacer l’élément vers le haut</translation>
    </message>
    <message>
        <source>Alt+Shift+Up</source>
        <translation>Alt+Shift+Up</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>Déplacer l’élément vers le bas</translation>
    </message>
    <message>
        <source>Alt+Shift+Down</source>
        <translation>Alt+Shift+Down</translation>
    </message>
    <message>
        <source>Move Item Left</source>
        <translation>Déplacer l’élément vers la gauche</translation>
    </message>
    <message>
        <source>Alt+Shift+Left</source>
        <translation>Alt+Shift+Left</translation>
    </message>
    <message>
        <source>Move Item Right</source>
        <translation>Déplacer l’élément vers la droite</translation>
    </message>
    <message>
        <source>Alt+Shift+Right</source>
        <translation>Alt+Shift+Right</translation>
    </message>
    <message>
        <source>Copy Selected PDF Text</source>
        <translation>Copier le texte PDF sélectionné</translation>
    </message>
    <message>
        <source>Ctrl+Alt+C</source>
        <translation>Ctrl+Alt+C</translation>
    </message>
    <message>
        <source>Zoom to Page Size</source>
        <translation>Adapter à la page entière</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>Zoom to Page Width</source>
        <translation>Adapter à la largeur de la page</translation>
    </message>
    <message>
        <source>Ctrl+Alt+0</source>
        <translation>Ctrl+Alt+0</translation>
    </message>
    <message>
        <source>Single Page</source>
        <translation>Une seule page</translation>
    </message>
    <message>
        <source>Single Page Continuous</source>
        <translation>Une seule page en continu</translation>
    </message>
    <message>
        <source>Play or Pause</source>
        <translation>Lecture ou pause</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>Avance rapide</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Retour rapide</translation>
    </message>
    <message>
        <source>F7</source>
        <translation>F7</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Prendre un instantané</translation>
    </message>
    <message>
        <source>Ctrl+Alt+S</source>
        <translation>Ctrl+Alt+S</translation>
    </message>
    <message>
        <source>Take Snapshot With Title</source>
        <translation>Prendre un instantané avec titre</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+S</source>
        <translation>Ctrl+Alt+Shift+S</translation>
    </message>
    <message>
        <source>Project Statistics</source>
        <translation>Statistiques du projet</translation>
    </message>
    <message>
        <source>Ctrl+9</source>
        <translation>Ctrl+9</translation>
    </message>
    <message>
        <source>Text Statistics</source>
        <translation>Statistiques du texte</translation>
    </message>
    <message>
        <source>Ctrl+8</source>
        <translation>Ctrl+8</translation>
    </message>
    <message>
        <source>Project Targets</source>
        <translation>Objectifs du projet</translation>
    </message>
    <message>
        <source>Ctrl+7</source>
        <translation>Ctrl+7</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Strikethrough</source>
        <translation>Barré</translation>
    </message>
    <message>
        <source>Ctrl+Shift+X</source>
        <translation>Ctrl+Shift+X</translation>
    </message>
    <message>
        <source>Small Caps</source>
        <translation>Petites capitales</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+M</source>
        <translation>Ctrl+G,Ctrl+M</translation>
    </message>
    <message>
        <source>Bigger Font</source>
        <translation>Agrandir la police</translation>
    </message>
    <message>
        <source>Ctrl+&gt;</source>
        <translation>Ctrl+&gt;</translation>
    </message>
    <message>
        <source>Smaller Font</source>
        <translation>Réduire la police</translation>
    </message>
    <message>
        <source>Ctrl+&lt;</source>
        <translation>Ctrl+&lt;</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>Exposant</translation>
    </message>
    <message>
        <source>Ctrl+G,Up</source>
        <translation>Ctrl+G,Up</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>Ctrl+G,Down</source>
        <translation>Ctrl+G,Down</translation>
    </message>
    <message>
        <source>Convert to Title Case</source>
        <translation>Convertir en casse de titre</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+T</source>
        <translation>Ctrl+G,Ctrl+T</translation>
    </message>
    <message>
        <source>Convert to Smart Quotes</source>
        <translation>Convertir en guillemets typographiques</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+Q</source>
        <translation>Ctrl+G,Ctrl+Shift+Q</translation>
    </message>
    <message>
        <source>Convert to Straight Quotes</source>
        <translation>Convertir en guillemets droits</translation>
    </message>
    <message>
        <source>Convert Multiple Spaces to Single</source>
        <translation>Convertir les espaces multiples en espaces simples</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>Aligner à gauche</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Align Center</source>
        <translation>Centrer</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Justifier</translation>
    </message>
    <message>
        <source>Ctrl+J</source>
        <translation>Ctrl+J</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>Aligner à droite</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Increase Left Indent</source>
        <translation>Augmenter le retrait à gauche</translation>
    </message>
    <message>
        <source>Ctrl+G,Right</source>
        <translation>Ctrl+G,Right</translation>
    </message>
    <message>
        <source>Decrease Left Indent</source>
        <translation>Diminuer le retrait à gauche</translation>
    </message>
    <message>
        <source>Ctrl+G,Left</source>
        <translation>Ctrl+G,Left</translation>
    </message>
    <message>
        <source>Increase First-Line Indent</source>
        <translation>Augmenter le retrait de première ligne</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+Right</source>
        <translation>Ctrl+G,Shift+Right</translation>
    </message>
    <message>
        <source>Decrease First-Line Indent</source>
        <translation>Diminuer le retrait de première ligne</translation>
    </message>
    <message>
        <source>Ctrl+G,Shift+Left</source>
        <translation>Ctrl+G,Shift+Left</translation>
    </message>
    <message>
        <source>Single Line Spacing</source>
        <translation>Interligne simple</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+1</source>
        <translation>Ctrl+G,Ctrl+1</translation>
    </message>
    <message>
        <source>Double Line Spacing</source>
        <translation>Interligne double</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+2</source>
        <translation>Ctrl+G,Ctrl+2</translation>
    </message>
    <message>
        <source>One and a Half Line Spacing</source>
        <translation>Interligne 1,5</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+5</source>
        <translation>Ctrl+G,Ctrl+5</translation>
    </message>
    <message>
        <source>Complete Word</source>
        <translation>Compléter le mot</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Space</source>
        <translation>Ctrl+Alt+Space</translation>
    </message>
    <message>
        <source>Complete Document Title</source>
        <translation>Compléter le titre du document</translation>
    </message>
    <message>
        <source>Ctrl+G,Space</source>
        <translation>Ctrl+G,Space</translation>
    </message>
    <message>
        <source>Add Selection to Auto-Complete List</source>
        <translation>Ajouter la sélection à la liste de saisie semi-automatique</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+A</source>
        <translation>Ctrl+G,Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Show Invisible Characters</source>
        <translation>Afficher les caractères invisibles</translation>
    </message>
    <message>
        <source>Ctrl+Shift+8</source>
        <translation>Ctrl+Shift+8</translation>
    </message>
    <message>
        <source>Ghost Notes</source>
        <translation>Estomper les notes</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+H</source>
        <translation>Ctrl+G,Ctrl+H</translation>
    </message>
    <message>
        <source>Split at Selection</source>
        <translation>Diviser à la sélection</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Y</source>
        <translation>Ctrl+Shift+Y</translation>
    </message>
    <message>
        <source>Split With Selection as Title</source>
        <translation>Diviser avec la sélection comme titre</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+Y</source>
        <translation>Ctrl+Alt+Shift+Y</translation>
    </message>
    <message>
        <source>Set Selection as Title</source>
        <translation>Définir la sélection comme titre</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+T</source>
        <translation>Ctrl+G,Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Insert Image</source>
        <translation>Insérer une image</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+P</source>
        <translation>Ctrl+G,Ctrl+P</translation>
    </message>
    <message>
        <source>Insert Morvane Link</source>
        <translation>Insérer un lien Morvane</translation>
    </message>
    <message>
        <source>Ctrl+Shift+K</source>
        <translation>Ctrl+Shift+K</translation>
    </message>
    <message>
        <source>Insert Current Date and Time</source>
        <translation>Insérer la date et l’heure actuelles</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+D</source>
        <translation>Ctrl+G,Ctrl+D</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>Inline Annotation</source>
        <translation>Annotation dans le texte</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+M</source>
        <translation>Ctrl+Alt+Shift+M</translation>
    </message>
    <message>
        <source>Inline Footnote</source>
        <translation>Note de bas de page dans le texte</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+O</source>
        <translation>Ctrl+Alt+Shift+O</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Ctrl+Alt+M</source>
        <translation>Ctrl+Alt+M</translation>
    </message>
    <message>
        <source>Footnote</source>
        <translation>Note de bas de page</translation>
    </message>
    <message>
        <source>Ctrl+Alt+O</source>
        <translation>Ctrl+Alt+O</translation>
    </message>
    <message>
        <source>Script Mode</source>
        <translation>Mode script</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+R</source>
        <translation>Ctrl+G,Ctrl+R</translation>
    </message>
    <message>
        <source>Script Elements</source>
        <translation>Éléments de script</translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Ctrl+B</source>
        <translation>Ctrl+B</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Ctrl+I</source>
        <translation>Ctrl+I</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Souligné</translation>
    </message>
    <message>
        <source>Ctrl+U</source>
        <translation>Ctrl+U</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Z</source>
        <translation>Ctrl+Shift+Z</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Ctrl+X</source>
        <translation>Ctrl+X</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Ctrl+V</source>
        <translation>Ctrl+V</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Ctrl+A</translation>
    </message>
    <message>
        <source>Copy Font</source>
        <translation>Copier la police</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+C</source>
        <translation>Ctrl+G,Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Paste Font</source>
        <translation>Coller la police</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+Shift+V</source>
        <translation>Ctrl+G,Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>Copy Ruler</source>
        <translation>Copier la règle</translation>
    </message>
    <message>
        <source>Paste Ruler</source>
        <translation>Coller la règle</translation>
    </message>
    <message>
        <source>Copy Formatting</source>
        <translation>Copier la mise en forme</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+C</source>
        <translation>Ctrl+Alt+Shift+C</translation>
    </message>
    <message>
        <source>Paste Formatting</source>
        <translation>Coller la mise en forme</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+V</source>
        <translation>Ctrl+Alt+Shift+V</translation>
    </message>
    <message>
        <source>Preserve Formatting</source>
        <translation>Conserver la mise en forme</translation>
    </message>
    <message>
        <source>Paste and Match Style</source>
        <translation>Coller en adaptant le style</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>Insert Non-Breaking Space</source>
        <translation>Insérer une espace insécable</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Space</source>
        <translation>Ctrl+Shift+Space</translation>
    </message>
    <message>
        <source>Insert Paragraph Break</source>
        <translation>Insérer un saut de paragraphe</translation>
    </message>
    <message>
        <source>Insert Line Break</source>
        <translation>Insérer un saut de ligne</translation>
    </message>
    <message>
        <source>Shift+Return</source>
        <translation>Shift+Return</translation>
    </message>
    <message>
        <source>Insert Page Break</source>
        <translation>Insérer un saut de page</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Return</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Surligner</translation>
    </message>
    <message>
        <source>Ctrl+Shift+H</source>
        <translation>Ctrl+Shift+H</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+C</source>
        <translation>Ctrl+G,Ctrl+C</translation>
    </message>
    <message>
        <source>Edit Link</source>
        <translation>Modifier le lien</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>Previous Document</source>
        <translation>Document précédent</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>Next Document</source>
        <translation>Document suivant</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Down</translation>
    </message>
    <message>
        <source>Enclosing Group</source>
        <translation>Groupe parent</translation>
    </message>
    <message>
        <source>Alt+Home</source>
        <translation>Alt+Home</translation>
    </message>
    <message>
        <source>Editor Selection</source>
        <translation>Sélection dans l’éditeur</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+J</source>
        <translation>Ctrl+G,Ctrl+J</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>Aller à</translation>
    </message>
    <message>
        <source>Ctrl+G,Ctrl+G</source>
        <translation>Ctrl+G,Ctrl+G</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>commande inconnue «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;; did you mean &apos;%2&apos;?</source>
        <translation>commande inconnue «&#xa0;%1&#xa0;»&#xa0;; vouliez-vous dire «&#xa0;%2&#xa0;»&#xa0;?</translation>
    </message>
</context>
<context>
    <name>MRVShortcutCheck</name>
    <message>
        <source>%1 is the key of both “%2” and “%3”.</source>
        <translation>%1 est le raccourci de «&#xa0;%2&#xa0;» et de «&#xa0;%3&#xa0;» à la fois.</translation>
    </message>
    <message>
        <source>%1 of “%2” is never reached, as %3 is the key of “%4”.</source>
        <translation>%1 de «&#xa0;%2&#xa0;» n’est jamais atteint, car %3 est le raccourci de «&#xa0;%4&#xa0;».</translation>
    </message>
    <message>
        <source>Desktops or input methods take %1, the key of “%2”.</source>
        <translation>%1 de «&#xa0;%2&#xa0;» est un raccourci que prennent les environnements de bureau ou les méthodes de saisie.</translation>
    </message>
    <message>
        <source>%1 of “%2” begins with a key that writing needs.</source>
        <translation>%1 de «&#xa0;%2&#xa0;» commence par une touche nécessaire pour écrire.</translation>
    </message>
    <message>
        <source>The key of “%1” has no name and cannot be stored.</source>
        <translation>Le raccourci de «&#xa0;%1&#xa0;» n’a pas de nom et se perd à l’enregistrement.</translation>
    </message>
    <message>
        <source>removed (%1)</source>
        <translation>supprimé (%1)</translation>
    </message>
    <message>
        <source>added (%1)</source>
        <translation>ajouté (%1)</translation>
    </message>
    <message>
        <source>“%1” -&gt; “%2”</source>
        <translation>«&#xa0;%1&#xa0;» -&gt; «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>MRVShortcutInfo</name>
    <message>
        <source>no key</source>
        <translation>aucune touche</translation>
    </message>
</context>
<context>
    <name>MRVShortcutScheme</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
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
        <translation>ce n’est pas un jeu de raccourcis d’une version connue</translation>
    </message>
    <message>
        <source>it is not a shortcut scheme</source>
        <translation>ce n’est pas un jeu de raccourcis</translation>
    </message>
    <message numerus="yes">
        <source>it is damaged or truncated; shortcuts that could be read: %n</source>
        <translation>
            <numerusform>il est endommagé ou tronqué&#xa0;; %n raccourci a pu être lu</numerusform>
            <numerusform>il est endommagé ou tronqué&#xa0;; %n raccourcis ont pu être lus</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: there is no such file, and no predefined scheme of that name</source>
        <translation>%1&#xa0;: il n’existe ni fichier ni jeu prédéfini de ce nom</translation>
    </message>
    <message>
        <source>%1: there is no such file, and no predefined scheme of that name; did you mean &apos;%2&apos;?</source>
        <translation>%1&#xa0;: il n’existe ni fichier ni jeu prédéfini de ce nom&#xa0;; vouliez-vous dire «&#xa0;%2&#xa0;»&#xa0;?</translation>
    </message>
</context>
<context>
    <name>MRVSignature</name>
    <message>
        <source>no valid key is set to check it with</source>
        <translation>aucune clé valide ne permet de la vérifier</translation>
    </message>
    <message>
        <source>the signature cannot be read</source>
        <translation>impossible de lire la signature</translation>
    </message>
    <message>
        <source>it was made with another key</source>
        <translation>elle a été créée avec une autre clé</translation>
    </message>
    <message>
        <source>it was altered</source>
        <translation>elle a été modifiée</translation>
    </message>
</context>
<context>
    <name>MRVSourceEdit</name>
    <message>
        <source>the changes overlap or belong to another text</source>
        <translation>les modifications se chevauchent ou appartiennent à un autre texte</translation>
    </message>
    <message>
        <source>the new text would not be read back as it is</source>
        <translation>le nouveau texte ne serait pas relu tel quel</translation>
    </message>
    <message>
        <source>the encoding %1 cannot be written back as it was</source>
        <translation>l’encodage %1 ne peut pas être réécrit tel qu’il était</translation>
    </message>
    <message>
        <source>a file of a word processor is read, but not changed</source>
        <translation>un fichier de traitement de texte est lu, mais n’est pas modifié</translation>
    </message>
    <message>
        <source>others: %1</source>
        <translation>autres&#xa0;: %1</translation>
    </message>
    <message>
        <source>the encoding %1 does not have all characters of the new text</source>
        <translation>l’encodage %1 n’a pas tous les caractères du nouveau texte</translation>
    </message>
    <message>
        <source>only HTML can be written as a whole with new formats</source>
        <translation>seul le HTML peut être réécrit en entier avec de nouveaux formats</translation>
    </message>
</context>
<context>
    <name>MRVSourceFile</name>
    <message>
        <source>the file has been changed meanwhile</source>
        <translation>le fichier a été modifié entre-temps</translation>
    </message>
    <message>
        <source>the backup cannot be made</source>
        <translation>la copie de sauvegarde ne peut pas être créée</translation>
    </message>
</context>
<context>
    <name>MRVSourceMisfit</name>
    <message>
        <source>it does not fit into the markup</source>
        <translation>elle ne s’intègre pas au balisage</translation>
    </message>
    <message>
        <source>the encoding %1 does not have all its characters</source>
        <translation>l’encodage %1 n’a pas tous ses caractères</translation>
    </message>
    <message>
        <source>there it cannot have this format</source>
        <translation>elle ne peut pas avoir ce format à cet endroit</translation>
    </message>
    <message>
        <source>the new text would not be read back as it is</source>
        <translation>le nouveau texte ne serait pas relu tel quel</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot; cannot be replaced: %3</source>
        <translation>ligne %1&#xa0;: «&#xa0;%2&#xa0;» ne peut pas être remplacé&#xa0;: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: %2</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être remplacé&#xa0;: %2</translation>
    </message>
    <message>
        <source>too many others near it cannot be made</source>
        <translation>trop d’autres à proximité sont impossibles</translation>
    </message>
</context>
<context>
    <name>MRVStagedFiles</name>
    <message>
        <source>the folder cannot be made</source>
        <translation>le dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>no file can be made here (%1)</source>
        <translation>aucun fichier ne peut être créé ici (%1)</translation>
    </message>
    <message>
        <source>a folder is in the file&apos;s place</source>
        <translation>un dossier se trouve à la place du fichier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>le fichier est protégé en écriture</translation>
    </message>
    <message>
        <source>%1; the old file is kept as %2</source>
        <translation>%1&#xa0;; l’ancien fichier est conservé sous %2</translation>
    </message>
</context>
<context>
    <name>MRVTextFault</name>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>MRVTextFormat</name>
    <message>
        <source>The picture has no file name.</source>
        <translation>L’image n’a pas de nom de fichier.</translation>
    </message>
    <message>
        <source>The picture cannot be encoded for the file &quot;%1&quot;.</source>
        <translation>Impossible d’encoder l’image pour le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>MRVTextPresetJson</name>
    <message>
        <source>&apos;%1&apos; is not a list of characters and paragraphs</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une liste de characters et paragraphs</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a value of the property %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une valeur de la propriété %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of the properties %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas l’une des propriétés %2</translation>
    </message>
</context>
<context>
    <name>MRVTextPresetScheme</name>
    <message>
        <source>The text presets are damaged, or were stored by another version</source>
        <translation>Les préréglages de texte sont endommagés ou ont été enregistrés par une autre version</translation>
    </message>
    <message>
        <source>%1 is not a preset file, or is damaged</source>
        <translation>%1 n’est pas un fichier de préréglages de texte, ou est endommagé</translation>
    </message>
</context>
<context>
    <name>MRVTextQuery</name>
    <message>
        <source>%1 (at character %2)</source>
        <translation>%1 (au caractère %2)</translation>
    </message>
</context>
<context>
    <name>MRVTextXhtmlExporter</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>There is no document to export to %1.</source>
        <translation>Il n’y a pas de document à exporter vers %1.</translation>
    </message>
    <message>
        <source>There is no e-book page to export to %1.</source>
        <translation>Il n’y a pas de page de livre numérique à exporter vers %1.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be written: %2</source>
        <translation>Impossible d’écrire l’image %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>MRVUnit</name>
    <message>
        <source> inch(es)</source>
        <translation> pouce(s)</translation>
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
        <translation>ligne %1&#xa0;: impossible de lire l’image %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>the picture %1 cannot be read: %2</source>
        <translation>l’image %1 ne peut pas être lue&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>MRVUpdateDownloader</name>
    <message>
        <source>The address of the download is not valid.</source>
        <translation>L’adresse du téléchargement n’est pas valide.</translation>
    </message>
    <message>
        <source>The server redirected the download to an address that is not safe.</source>
        <translation>Le serveur a redirigé le téléchargement vers une adresse qui n’est pas sûre.</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>%1 is all up to date.</source>
        <translation>%1 est à jour.</translation>
    </message>
    <message>
        <source>The installer was changed after it had been downloaded, and will not be opened.</source>
        <translation>Le programme d’installation a été modifié après son téléchargement et ne sera pas ouvert.</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>The server takes too long.</source>
        <translation>Le serveur met trop de temps.</translation>
    </message>
</context>
<context>
    <name>MRVUpdateFeed</name>
    <message>
        <source>its element &quot;%1&quot; is not valid</source>
        <translation>leur élément «&#xa0;%1&#xa0;» n’est pas valide</translation>
    </message>
</context>
<context>
    <name>MRVUpdateManager</name>
    <message>
        <source>&amp;Check for Updates...</source>
        <translation>&amp;Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Morvane Update</source>
        <translation>Mise à jour de Morvane</translation>
    </message>
    <message>
        <source>No active network connection found
You need internet connection to check for updates</source>
        <translation>Aucune connexion réseau active
Une connexion Internet est nécessaire pour rechercher des mises à jour</translation>
    </message>
    <message>
        <source>The installer cannot be opened: %1</source>
        <translation>Impossible d’ouvrir le programme d’installation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
</context>
<context>
    <name>MRVUpdateModel</name>
    <message>
        <source>it is not this installer&apos;s</source>
        <translation>elle n’est pas celle de ce programme d’installation</translation>
    </message>
    <message>
        <source>it was made for another file</source>
        <translation>elle a été créée pour un autre fichier</translation>
    </message>
    <message>
        <source>Failed to open update.ini file to determine update URL location and version. Please contact %1 so we can fix this problem quickly.</source>
        <translation>Impossible d’ouvrir le fichier update.ini, qui indique l’adresse et la version de la mise à jour. Veuillez contacter %1 afin que nous puissions corriger rapidement ce problème.</translation>
    </message>
    <message>
        <source>The update XML file contained empty values. Please contact %1 so we can help resolve this issue quickly.</source>
        <translation>Le fichier XML de mise à jour contenait des valeurs vides. Veuillez contacter %1 afin que nous puissions résoudre rapidement ce problème.</translation>
    </message>
    <message>
        <source>The update XML file names an installer that is not a plain file name. Please contact %1 so we can help resolve this issue quickly.</source>
        <translation>Le fichier XML de mise à jour désigne un programme d’installation dont le nom n’est pas un simple nom de fichier. Veuillez contacter %1 afin que nous puissions résoudre rapidement ce problème.</translation>
    </message>
    <message>
        <source>Unable to compare version numbers. Please contact %1 so we can help resolve this issue quickly</source>
        <translation>Impossible de comparer les numéros de version. Veuillez contacter %1 afin que nous puissions résoudre rapidement ce problème</translation>
    </message>
    <message>
        <source>Could not open the downloaded file to validate it: </source>
        <translation>Impossible d’ouvrir le fichier téléchargé pour le vérifier&#xa0;: </translation>
    </message>
    <message>
        <source>The download file could not be found on our server. Please contact %1 so we can help resolve this issue quickly.</source>
        <translation>Le fichier à télécharger est introuvable sur notre serveur. Veuillez contacter %1 afin que nous puissions résoudre rapidement ce problème.</translation>
    </message>
    <message>
        <source>The downloaded xml update file is not integral. Please contact %1 for additional support if this does not work.</source>
        <translation>Le fichier XML de mise à jour téléchargé n’est pas intègre. Veuillez contacter %1 pour obtenir de l’aide si le problème persiste.</translation>
    </message>
    <message>
        <source>Failed to read the downloaded update.xml file. Please try running &apos;Check for Update...&apos; again. Please contact %1 for additional support if this does not work.</source>
        <translation>Impossible de lire le fichier update.xml téléchargé. Veuillez relancer «&#xa0;Rechercher des mises à jour…&#xa0;». Si cela ne suffit pas, contactez %1 pour obtenir de l’aide.</translation>
    </message>
    <message>
        <source>Morvane couldn&apos;t find the update on our server.
This is probably an error on our part.
Please report this to %1.</source>
        <translation>Morvane n’a pas trouvé la mise à jour sur notre serveur.
Il s’agit probablement d’une erreur de notre part.
Veuillez la signaler à %1.</translation>
    </message>
    <message>
        <source>The installer does not carry a valid signature (%1) and will not be opened. Please report this to %2.</source>
        <translation>Le programme d’installation ne porte pas de signature valide (%1) et ne sera pas ouvert. Veuillez le signaler à %2.</translation>
    </message>
    <message>
        <source>Cannot write the file &quot;%1&quot;: %2</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>The update feed is not accepted: %1. Please report this to %2.</source>
        <translation>Les données de mise à jour sont refusées&#xa0;: %1. Veuillez le signaler à %2.</translation>
    </message>
    <message>
        <source>it does not say when it was made</source>
        <translation>la signature n’indique pas quand elle a été créée</translation>
    </message>
    <message>
        <source>it is older than one that was seen before</source>
        <translation>elles sont plus anciennes que d’autres déjà reçues</translation>
    </message>
    <message>
        <source>it is not what was signed</source>
        <translation>elles ne correspondent pas à ce qui a été signé</translation>
    </message>
    <message>
        <source>it is another application&apos;s</source>
        <translation>elles concernent une autre application</translation>
    </message>
    <message>
        <source>it has expired</source>
        <translation>elles ont expiré</translation>
    </message>
    <message>
        <source>it was made for another version</source>
        <translation>elle concerne une autre version</translation>
    </message>
    <message>
        <source>The installer is not the one that the update feed describes, and will not be opened. Please report this to %1.</source>
        <translation>Le programme d’installation n’est pas celui que décrivent les données de mise à jour et ne sera pas ouvert. Veuillez le signaler à %1.</translation>
    </message>
    <message>
        <source>it is not over a hash, as that of a large file has to be</source>
        <translation>elle ne porte pas sur une empreinte, ce qu’exige un gros fichier</translation>
    </message>
    <message>
        <source>it was made in the future</source>
        <translation>elle a été créée dans le futur</translation>
    </message>
    <message>
        <source>it does not say which application it is for</source>
        <translation>il n’indique pas pour quelle application il est prévu</translation>
    </message>
</context>
<context>
    <name>MRVXmlReader</name>
    <message>
        <source>elements are nested more deeply than %1 levels</source>
        <translation>des éléments sont imbriqués sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>entities expand to too long a text</source>
        <translation>les entités produisent trop de texte</translation>
    </message>
    <message>
        <source>an element has too many attributes</source>
        <translation>un élément a trop d’attributs</translation>
    </message>
    <message>
        <source>an element has two attributes of one name</source>
        <translation>un élément a deux attributs du même nom</translation>
    </message>
    <message>
        <source>the document type has too many declarations</source>
        <translation>le type de document a trop de déclarations</translation>
    </message>
    <message>
        <source>the entity &apos;%1&apos; is in another file, and other files are not read</source>
        <translation>l’entité «&#xa0;%1&#xa0;» se trouve dans un autre fichier, et les autres fichiers ne sont pas lus</translation>
    </message>
    <message>
        <source>a document type declaration does not belong here</source>
        <translation>une déclaration de type de document n’a pas sa place ici</translation>
    </message>
    <message>
        <source>a tag is longer than %1 characters</source>
        <translation>une balise dépasse %1 caractères</translation>
    </message>
    <message>
        <source>XML does not allow the character %1</source>
        <translation>XML n’autorise pas le caractère %1</translation>
    </message>
</context>
<context>
    <name>MRVZipReader</name>
    <message>
        <source>it does not exist</source>
        <translation>il n’existe pas</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is damaged, or no ZIP archive</source>
        <translation>il est endommagé ou n’est pas une archive ZIP</translation>
    </message>
    <message>
        <source>it holds too many files</source>
        <translation>il contient trop de fichiers</translation>
    </message>
    <message>
        <source>it is damaged: its files are larger than it is</source>
        <translation>il est endommagé&#xa0;: ses fichiers sont plus grands que lui</translation>
    </message>
    <message>
        <source>the name of a file in it leads out of it: %1</source>
        <translation>le nom d’un fichier qu’il contient mène hors de lui&#xa0;: %1</translation>
    </message>
    <message>
        <source>it holds two files of one name: %1</source>
        <translation>il contient deux fichiers du même nom&#xa0;: %1</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>il manque</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
    <message>
        <source>it is encrypted, or packed in an unknown way</source>
        <translation>il est chiffré ou compressé d’une manière inconnue</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>il est endommagé</translation>
    </message>
</context>
<context>
    <name>MTranslator</name>
    <message>
        <source>A language can only be chosen while an application object exists</source>
        <translation>Une langue ne peut être choisie que lorsqu’une application est en cours</translation>
    </message>
    <message>
        <source>No translation into the language &quot;%1&quot; exists</source>
        <translation>Il n’existe pas de traduction dans la langue «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The translation &quot;%1&quot; cannot be read</source>
        <translation>Impossible de lire la traduction «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>MVersion</name>
    <message>
        <source>beta</source>
        <translation>bêta</translation>
    </message>
    <message>
        <source>Version: </source>
        <translation>Version&#xa0;: </translation>
    </message>
    <message>
        <source>Application: </source>
        <translation>Application&#xa0;: </translation>
    </message>
    <message>
        <source>Build: </source>
        <translation>Build&#xa0;: </translation>
    </message>
    <message>
        <source>Executable: </source>
        <translation>Exécutable&#xa0;: </translation>
    </message>
    <message>
        <source>Compiler: </source>
        <translation>Compilateur&#xa0;: </translation>
    </message>
    <message>
        <source>Qt-Compiled: </source>
        <translation>Qt à la compilation&#xa0;: </translation>
    </message>
    <message>
        <source>Qt-Runtime: </source>
        <translation>Qt à l’exécution&#xa0;: </translation>
    </message>
    <message>
        <source>Created: </source>
        <translation>Créé le&#xa0;: </translation>
    </message>
    <message>
        <source>Warning! Different Qt versions: compiled </source>
        <translation>Attention&#xa0;! Versions de Qt différentes. Compilation&#xa0;: </translation>
    </message>
    <message>
        <source> runtime: </source>
        <translation> Exécution&#xa0;: </translation>
    </message>
</context>
<context>
    <name>MrvHttpReply</name>
    <message>
        <source>The proxy was not found</source>
        <translation>Le proxy est introuvable</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>L’hôte %1 est introuvable</translation>
    </message>
    <message>
        <source>No connection to %1: %2</source>
        <translation>Pas de connexion à %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 ne répond pas</translation>
    </message>
    <message>
        <source>Connection closed without an answer</source>
        <translation>La connexion a été fermée sans réponse</translation>
    </message>
    <message>
        <source>Connection closed before the end</source>
        <translation>La connexion a été fermée avant la fin</translation>
    </message>
    <message>
        <source>Connection closed before the end: %2</source>
        <translation>La connexion a été fermée avant la fin&#xa0;: %2</translation>
    </message>
    <message>
        <source>SSL handshake failed: %2</source>
        <translation>La négociation SSL a échoué&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 does not answer in HTTP: %2</source>
        <translation>%1 ne répond pas en HTTP&#xa0;: %2</translation>
    </message>
    <message>
        <source>The address is not valid: %2</source>
        <translation>L’adresse n’est pas valable&#xa0;: %2</translation>
    </message>
    <message>
        <source>Network access is disabled.</source>
        <translation>L’accès au réseau est désactivé.</translation>
    </message>
    <message>
        <source>Protocol &quot;%1&quot; is not supported</source>
        <translation>Le protocole «&#xa0;%1&#xa0;» n’est pas pris en charge</translation>
    </message>
    <message>
        <source>The address names no host</source>
        <translation>L’adresse ne nomme aucun hôte</translation>
    </message>
    <message>
        <source>Only requests that fetch something are supported</source>
        <translation>Seules les requêtes qui récupèrent quelque chose sont prises en charge</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Opération annulée</translation>
    </message>
    <message>
        <source>The compressed data is damaged</source>
        <translation>Les données compressées sont endommagées</translation>
    </message>
    <message>
        <source>The server sends too much before it lets one in</source>
        <translation>Le serveur envoie trop de données avant d’accepter l’identification</translation>
    </message>
    <message>
        <source>SSL handshake failed: %1</source>
        <translation>La négociation SSL a échoué&#xa0;: %1</translation>
    </message>
    <message>
        <source>Host requires authentication</source>
        <translation>L’hôte demande une identification</translation>
    </message>
    <message>
        <source>Proxy requires authentication</source>
        <translation>Le proxy demande une identification</translation>
    </message>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Erreur lors du transfert de %1 – le serveur a répondu&#xa0;: %2</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes of headers</source>
        <translation>Le serveur envoie plus de %1 octets d’en-têtes</translation>
    </message>
    <message>
        <source>The server states two different lengths</source>
        <translation>Le serveur indique deux longueurs différentes</translation>
    </message>
    <message>
        <source>The server states a length that is not a number</source>
        <translation>Le serveur indique une longueur qui n’est pas un nombre</translation>
    </message>
    <message>
        <source>The encrypted connection was cut off</source>
        <translation>La connexion chiffrée a été coupée</translation>
    </message>
    <message>
        <source>No connection to the proxy %1: %2</source>
        <translation>Pas de connexion au proxy %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The server asks for a login of a kind that is not supported</source>
        <translation>Le serveur demande un type d’identification qui n’est pas pris en charge</translation>
    </message>
    <message>
        <source>The server sends more than %1 headers</source>
        <translation>Le serveur envoie plus de %1 en-têtes</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>OpenDocument Text</source>
        <translation>Texte OpenDocument</translation>
    </message>
    <message>
        <source>OpenDocument Text Template</source>
        <translation>Modèle de texte OpenDocument</translation>
    </message>
    <message>
        <source>Rich Text Format</source>
        <translation>Format RTF</translation>
    </message>
    <message>
        <source>Microsoft Word</source>
        <translation>Microsoft Word</translation>
    </message>
    <message>
        <source>Office Open XML Document</source>
        <translation>Document Office Open XML</translation>
    </message>
    <message>
        <source>Microsoft Document Template</source>
        <translation>Modèle de document Microsoft</translation>
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
        <translation>PostScript encapsulé d’Adobe</translation>
    </message>
    <message>
        <source>Windows Media</source>
        <translation>Windows Media</translation>
    </message>
    <message>
        <source>Microsoft Enhanced Metafile</source>
        <translation>Métafichier amélioré Microsoft</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics</source>
        <translation>Graphique vectoriel SVG</translation>
    </message>
    <message>
        <source>Adobe Flash File Format</source>
        <translation>Format de fichier Adobe Flash</translation>
    </message>
    <message>
        <source>Microsoft XML Paper Specification</source>
        <translation>Microsoft XML Paper Specification</translation>
    </message>
    <message>
        <source>HP-GL plotter language</source>
        <translation>Langage de traceur HP-GL</translation>
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
        <translation>Format texte brut</translation>
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
        <translation>Image bitmap Windows</translation>
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
        <translation>Image Truevision Targa</translation>
    </message>
    <message>
        <source>ZSoft IBM PC Paintbrush file</source>
        <translation>Fichier ZSoft IBM PC Paintbrush</translation>
    </message>
    <message>
        <source>ePub Book</source>
        <translation>Livre ePub</translation>
    </message>
    <message>
        <source>Amazon Kindle(Mobi) Book</source>
        <translation>Livre Amazon Kindle (Mobi)</translation>
    </message>
    <message>
        <source>Final Draft</source>
        <translation>Final Draft</translation>
    </message>
    <message>
        <source>OPML Format</source>
        <translation>Format OPML</translation>
    </message>
    <message>
        <source>Mind Mapping Format</source>
        <translation>Format de carte mentale</translation>
    </message>
    <message>
        <source>Multimarkdown Format</source>
        <translation>Format MultiMarkdown</translation>
    </message>
    <message>
        <source>Multimarkdown to HTML</source>
        <translation>MultiMarkdown vers HTML</translation>
    </message>
    <message>
        <source>Multimarkdown to LaTeX</source>
        <translation>MultiMarkdown vers LaTeX</translation>
    </message>
    <message>
        <source>Multimarkdown to OPML</source>
        <translation>MultiMarkdown vers OPML</translation>
    </message>
    <message>
        <source>Multimarkdown to FODT</source>
        <translation>MultiMarkdown vers FODT</translation>
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
        <translation>Basé sur RTF</translation>
    </message>
    <message>
        <source>PDF Document via WebKit</source>
        <translation>Document PDF via WebKit</translation>
    </message>
    <message>
        <source>PDF Document via Microsoft Office</source>
        <translation>Document PDF via Microsoft Office</translation>
    </message>
    <message>
        <source>PDF Document via Internet Explorer</source>
        <translation>Document PDF via Internet Explorer</translation>
    </message>
    <message>
        <source>Plain Text</source>
        <translation>Texte brut</translation>
    </message>
    <message>
        <source>Webpage Complete (MHT)</source>
        <translation>Page web complète (MHT)</translation>
    </message>
    <message>
        <source>Titles Only</source>
        <translation>Titres uniquement</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Synopsis</translation>
    </message>
    <message>
        <source>Main Text(with Synopsis)</source>
        <translation>Texte principal (avec synopsis)</translation>
    </message>
    <message>
        <source>Notes (with Synopsis)</source>
        <translation>Notes (avec synopsis)</translation>
    </message>
    <message>
        <source>File Download</source>
        <translation>Téléchargement de fichier</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Redirect to %1 ?</source>
        <translation>Rediriger vers %1&#xa0;?</translation>
    </message>
    <message>
        <source>One or more SSL errors has occurred: %1</source>
        <translation>Une ou plusieurs erreurs SSL se sont produites&#xa0;: %1</translation>
    </message>
    <message>
        <source>Return: %1</source>
        <translation>Entrée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tab in an empty line: %1</source>
        <translation>Tab dans une ligne vide&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tab: %1</source>
        <translation>Tab&#xa0;: %1</translation>
    </message>
    <message>
        <source>left indent %1</source>
        <translation>retrait à gauche %1</translation>
    </message>
    <message>
        <source>right indent %1</source>
        <translation>retrait à droite %1</translation>
    </message>
    <message>
        <source>first line %1</source>
        <translation>première ligne %1</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>avant %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>après %1</translation>
    </message>
    <message>
        <source>underlined twice</source>
        <translation>souligné deux fois</translation>
    </message>
    <message>
        <source>blanks not underlined</source>
        <translation>espaces non soulignées</translation>
    </message>
    <message>
        <source>capitals</source>
        <translation>majuscules</translation>
    </message>
    <message>
        <source>in parentheses</source>
        <translation>entre parenthèses</translation>
    </message>
    <message>
        <source>stays with the next</source>
        <translation>reste avec le suivant</translation>
    </message>
    <message>
        <source>allows tabs</source>
        <translation>autorise les tabulations</translation>
    </message>
    <message>
        <source>offers the project’s phrases</source>
        <translation>propose les expressions du projet</translation>
    </message>
    <message>
        <source>collects phrases</source>
        <translation>recueille des expressions</translation>
    </message>
    <message>
        <source>capitals up to %1</source>
        <translation>majuscules jusqu’à %1</translation>
    </message>
    <message>
        <source>phrases begin after %1</source>
        <translation>les expressions commencent après %1</translation>
    </message>
    <message>
        <source>phrases end before %1</source>
        <translation>les expressions finissent avant %1</translation>
    </message>
    <message>
        <source>aligned to the centre</source>
        <translation>centré</translation>
    </message>
    <message>
        <source>aligned right</source>
        <translation>aligné à droite</translation>
    </message>
    <message>
        <source>aligned to both sides</source>
        <translation>justifié</translation>
    </message>
    <message>
        <source>aligned left</source>
        <translation>aligné à gauche</translation>
    </message>
    <message>
        <source>a phrase is followed by a next line</source>
        <translation>une expression est suivie d’une nouvelle ligne</translation>
    </message>
    <message>
        <source>a phrase is followed by a tab</source>
        <translation>une expression est suivie d’une tabulation</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>gras</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>italique</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>souligné</translation>
    </message>
    <message>
        <source>lines exactly %1</source>
        <translation>lignes d’exactement %1</translation>
    </message>
    <message>
        <source>lines at least %1</source>
        <translation>lignes d’au moins %1</translation>
    </message>
    <message>
        <source>line spacing %1</source>
        <translation>interligne %1</translation>
    </message>
    <message>
        <source>tab at %1</source>
        <translation>tabulation à %1</translation>
    </message>
    <message>
        <source>inserts %1</source>
        <translation>insère %1</translation>
    </message>
    <message>
        <source>offers %1</source>
        <translation>propose %1</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Message</name>
    <message>
        <source>the backup of %1</source>
        <translation>la sauvegarde du %1</translation>
    </message>
    <message>
        <source>Other side: backup of %1, which holds: %2</source>
        <translation>Autre côté&#xa0;: sauvegarde du %1, qui contient&#xa0;: %2</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Settings and VFO bands</source>
        <translation>Réglages et bandes VFO</translation>
    </message>
    <message>
        <source>Bank sizes and links</source>
        <translation>Tailles et liens des banques</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>Tous les canaux</translation>
    </message>
    <message>
        <source>Take what was changed at the receiver</source>
        <translation>Reprendre les modifications du récepteur</translation>
    </message>
    <message>
        <source>Other side: the file %1, saved %2</source>
        <translation>Autre côté&#xa0;: le fichier %1, enregistré le %2</translation>
    </message>
    <message>
        <source>Other side: the receiver as it was read or written since %1, %2</source>
        <translation>Autre côté&#xa0;: le récepteur tel qu’il a été lu ou écrit depuis le %1, %2</translation>
    </message>
    <message>
        <source>Other side: the receiver as it was read at %1</source>
        <translation>Autre côté&#xa0;: le récepteur tel qu’il a été lu le %1</translation>
    </message>
    <message>
        <source>the last read</source>
        <translation>la dernière lecture</translation>
    </message>
    <message>
        <source>the receiver</source>
        <translation>le récepteur</translation>
    </message>
    <message>
        <source>Other side: the receiver, read just now (%1)</source>
        <translation>Autre côté&#xa0;: le récepteur, lu à l’instant (%1)</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Interrompu.</translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation>(rien)</translation>
    </message>
    <message>
        <source>Reply after %1 ms: %2</source>
        <translation>Réponse après %1 ms&#xa0;: %2</translation>
    </message>
    <message>
        <source>Received until the time-out after %1 ms: %2</source>
        <translation>Reçu jusqu’à la fin du délai, après %1 ms&#xa0;: %2</translation>
    </message>
    <message>
        <source>Nothing came back. Check the cable, the port, and that the receiver is on.</source>
        <translation>Aucune réponse. Vérifiez le câble et le port, et que le récepteur est allumé.</translation>
    </message>
    <message>
        <source>The receiver did not answer: only the echo of the command came back.</source>
        <translation>Le récepteur n’a pas répondu&#xa0;: seul l’écho de la commande est revenu.</translation>
    </message>
    <message>
        <source>The reply is too short: a whole one ends with 36 characters.</source>
        <translation>La réponse est trop courte&#xa0;: une réponse complète se termine par 36 caractères.</translation>
    </message>
    <message>
        <source>The reply is garbled: it does not end with a line of 32 characters.</source>
        <translation>La réponse est altérée&#xa0;: elle ne se termine pas par une ligne de 32 caractères.</translation>
    </message>
    <message>
        <source>An empty row.</source>
        <translation>Ligne vide.</translation>
    </message>
    <message>
        <source>%1 reads, %2 errors.</source>
        <translation>%1 lectures, %2 erreurs.</translation>
    </message>
    <message>
        <source>Round trip: lowest %1 ms, median %2 ms, highest %3 ms.</source>
        <translation>Aller-retour&#xa0;: min. %1 ms, médiane %2 ms, max. %3 ms.</translation>
    </message>
    <message>
        <source>%1 was removed or renamed by another program. Save will ask first.</source>
        <translation>%1 a été supprimé ou renommé par un autre programme. «&#xa0;Enregistrer&#xa0;» demandera d’abord confirmation.</translation>
    </message>
    <message>
        <source>%1 was changed by another program. You have unsaved changes; Save will ask first.</source>
        <translation>%1 a été modifié par un autre programme. Vous avez des modifications non enregistrées&#xa0;; «&#xa0;Enregistrer&#xa0;» demandera d’abord confirmation.</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>&amp;Load Again</source>
        <translation>Rec&amp;harger</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importer (%1)</translation>
    </message>
    <message>
        <source>Imported with %1.</source>
        <translation>Importé avec %1.</translation>
    </message>
    <message>
        <source>Imported from %1. %2.</source>
        <translation>Importé depuis %1. %2.</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>Dé&amp;tails</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept for recovery: %1</source>
        <translation>Les modifications non enregistrées ne peuvent pas être conservées pour la récupération&#xa0;: %1</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save.</source>
        <translation>Une virgule ou des guillemets dans une note seront perdus à l’enregistrement.</translation>
    </message>
    <message>
        <source>Notes whose comma or quotes will not survive a save: %1</source>
        <translation>Notes dont la virgule ou les guillemets seront perdus à l’enregistrement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Use ; and &apos;</source>
        <translation>Utiliser&#xa0;; et &apos;</translation>
    </message>
    <message>
        <source>Use ; and &apos; in notes</source>
        <translation>Utiliser&#xa0;; et &apos; dans les notes</translation>
    </message>
    <message>
        <source>Connect the receiver and choose Read &gt; ALL (Ctrl+R), or open a file.</source>
        <translation>Connectez le récepteur et choisissez Lecture &gt; TOUT (Ctrl+R), ou ouvrez un fichier.</translation>
    </message>
    <message>
        <source>Read ALL</source>
        <translation>Tout lire</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Ouvrir...</translation>
    </message>
    <message>
        <source>Backup and verify are off.</source>
        <translation>La sauvegarde et la vérification sont désactivées.</translation>
    </message>
    <message>
        <source>Turn Them On</source>
        <translation>Les activer</translation>
    </message>
    <message>
        <source>Rows outside the receiver&apos;s range (0.1 to 1299.995 MHz), which are written as they are: %1 (%2)</source>
        <translation>Lignes hors de la plage du récepteur (0.1 à 1299.995 MHz), écrites telles quelles&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save as a clone file: %1.</source>
        <translation>Une virgule ou des guillemets dans une note seront perdus dans un fichier clone&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 was saved with notes that it cannot bring back; change them and save again: %2.</source>
        <translation>%1 a été enregistré avec des notes qu’il ne pourra pas restituer&#xa0;; modifiez-les et enregistrez de nouveau&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Read Memory (%1)</source>
        <translation>Lire la mémoire (%1)</translation>
    </message>
    <message>
        <source>Read Settings</source>
        <translation>Lire les réglages</translation>
    </message>
    <message>
        <source>Read Bank</source>
        <translation>Lire les banques</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1, but the receiver holds something else.</source>
        <translation>%1, mais le récepteur contient autre chose.</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>il y a moins d’une minute</translation>
    </message>
    <message>
        <source>a minute ago</source>
        <translation>il y a une minute</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>il y a %1 minutes</translation>
    </message>
    <message>
        <source>an hour ago</source>
        <translation>il y a une heure</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>il y a %1 heures</translation>
    </message>
    <message>
        <source>a day ago</source>
        <translation>il y a un jour</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>il y a %1 jours</translation>
    </message>
    <message>
        <source>no progress, no closing line and no notes (also -q)</source>
        <translation>ni avancement, ni ligne finale, ni remarques (aussi -q)</translation>
    </message>
    <message>
        <source>every exchange with the receiver and every warning (also -v)</source>
        <translation>tous les échanges avec le récepteur et tous les avertissements (aussi -v)</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>option inconnue «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 n’accepte pas de valeur</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 demande une valeur&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 est indiqué deux fois</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 manque</translation>
    </message>
    <message>
        <source>too many arguments: &quot;%1&quot;</source>
        <translation>trop d’arguments&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 est vide</translation>
    </message>
    <message>
        <source>--json and --tsv are two forms; choose one</source>
        <translation>--json et --tsv sont deux formats&#xa0;; choisissez-en un</translation>
    </message>
    <message>
        <source>lines end in LF instead of CR LF; this program reads them, another may not</source>
        <translation>les lignes se terminent par LF au lieu de CR LF&#xa0;; ce programme les lit, d’autres peut-être pas</translation>
    </message>
    <message>
        <source>there is text behind the last line; a save drops it</source>
        <translation>il y a du texte après la dernière ligne&#xa0;; un enregistrement le supprime</translation>
    </message>
    <message>
        <source>line %1 (%2)</source>
        <translation>ligne %1 (%2)</translation>
    </message>
    <message>
        <source>characters other than upper-case hexadecimal digits may be read as 0; there are some in:</source>
        <translation>les caractères autres que 0-9 et A-F majuscules peuvent être lus comme 0&#xa0;; il y en a dans&#xa0;:</translation>
    </message>
    <message>
        <source>these values are read differently from what the file says:</source>
        <translation>ces valeurs ne sont pas lues comme elles figurent dans le fichier&#xa0;:</translation>
    </message>
    <message>
        <source>these rows are outside the receiver&apos;s range (%1):</source>
        <translation>ces lignes sont hors de la plage du récepteur (%1)&#xa0;:</translation>
    </message>
    <message>
        <source>a save loses these notes; take commas and quotes out of them:</source>
        <translation>ces notes seront perdues à l’enregistrement&#xa0;; retirez-en les virgules et les guillemets&#xa0;:</translation>
    </message>
    <message>
        <source>exported as CSV, a spreadsheet would run these notes as formulas:</source>
        <translation>après un export CSV, un tableur exécuterait ces notes comme des formules&#xa0;:</translation>
    </message>
    <message>
        <source>%1 of %2 files are whole.</source>
        <translation>Fichiers complets&#xa0;: %1 sur %2.</translation>
    </message>
    <message>
        <source>%1 is one of %2 names of a file (hard links); the others keep the old contents</source>
        <translation>%1 est l’un des %2 noms d’un fichier (liens physiques)&#xa0;; les autres gardent l’ancien contenu</translation>
    </message>
    <message>
        <source>a clone file cannot hold these values; they read back differently:</source>
        <translation>un fichier clone ne peut pas contenir ces valeurs&#xa0;; à la relecture, elles seront différentes&#xa0;:</translation>
    </message>
    <message>
        <source>%1 is written, but the file cannot bring back these notes; take commas and quotes out of them:</source>
        <translation>%1&#xa0;: écrit, mais le fichier ne pourra pas restituer ces notes&#xa0;; retirez-en les virgules et les guillemets&#xa0;:</translation>
    </message>
    <message>
        <source>%1 is saved, but not all that belonged to the old file could be kept:</source>
        <translation>%1&#xa0;: enregistré, mais tout ce qui appartenait à l’ancien fichier n’a pas pu être conservé&#xa0;:</translation>
    </message>
    <message>
        <source>%1: the name is not written in UTF-8. Rename the file, or use &quot;-&quot;.</source>
        <translation>%1&#xa0;: le nom n’est pas écrit en UTF-8. Renommez le fichier, ou utilisez «&#xa0;-&#xa0;».</translation>
    </message>
    <message>
        <source>%1: both names are the same file, which would be replaced; give another name</source>
        <translation>%1&#xa0;: les deux noms désignent le même fichier, qui serait remplacé&#xa0;; donnez un autre nom</translation>
    </message>
    <message>
        <source>%1: with these notes it could not be opened any more. --safe-notes stores them without commas and quotes, --force as they are:</source>
        <translation>%1&#xa0;: avec ces notes, le fichier ne pourrait plus être ouvert. --safe-notes les enregistre sans virgules ni guillemets, --force telles quelles&#xa0;:</translation>
    </message>
    <message>
        <source>%1: with the notes below it could not be opened any more; take commas and quotes out of them.</source>
        <translation>%1&#xa0;: avec les notes ci-dessous, le fichier ne pourrait plus être ouvert&#xa0;; retirez-en les virgules et les guillemets.</translation>
    </message>
    <message>
        <source>model region (default 0)</source>
        <translation>région du modèle (0 par défaut)</translation>
    </message>
    <message>
        <source>no banks: all 1000 channels unassigned</source>
        <translation>aucune banque&#xa0;: les 1000 canaux restent hors banque</translation>
    </message>
    <message>
        <source>replace FILE if it exists</source>
        <translation>remplacer FILE s’il existe</translation>
    </message>
    <message>
        <source>read everything twice and list each block that was different the second time</source>
        <translation>tout lire deux fois et lister chaque bloc différent la seconde fois</translation>
    </message>
    <message>
        <source>first read what will be replaced and save it as COPY, a new file</source>
        <translation>lire d’abord ce qui sera remplacé et l’enregistrer dans COPY, un nouveau fichier</translation>
    </message>
    <message>
        <source>read back afterwards and list each block that differs</source>
        <translation>relire ensuite et lister chaque bloc qui diffère</translation>
    </message>
    <message>
        <source>write only what the receiver holds otherwise; what is not known of it is read first</source>
        <translation>n’écrire que ce qui diffère dans le récepteur&#xa0;; ce qui n’en est pas connu est lu d’abord</translation>
    </message>
    <message>
        <source>with --changes: what the receiver held when it was last read or written</source>
        <translation>avec --changes&#xa0;: le contenu du récepteur à la dernière lecture ou écriture</translation>
    </message>
    <message>
        <source>write even if the backup shows that the receiver is another model</source>
        <translation>écrire même si la sauvegarde montre que le récepteur est un autre modèle</translation>
    </message>
    <message>
        <source>empty rows, too</source>
        <translation>lignes vides comprises</translation>
    </message>
    <message>
        <source>compare A with the receiver: COM number 1 to 14, or a device</source>
        <translation>comparer A avec le récepteur&#xa0;: numéro COM de 1 à 14, ou périphérique</translation>
    </message>
    <message>
        <source>write the pages to a PDF instead of the terminal</source>
        <translation>écrire les pages dans un PDF au lieu du terminal</translation>
    </message>
    <message>
        <source>print the settings</source>
        <translation>imprimer les réglages</translation>
    </message>
    <message>
        <source>print the VFO table</source>
        <translation>imprimer le tableau VFO</translation>
    </message>
    <message>
        <source>print the memory channels</source>
        <translation>imprimer les canaux mémoire</translation>
    </message>
    <message>
        <source>print empty rows, too</source>
        <translation>imprimer aussi les lignes vides</translation>
    </message>
    <message>
        <source>size of the PDF&apos;s pages; without it that of the country</source>
        <translation>format des pages du PDF&#xa0;; par défaut, celui du pays</translation>
    </message>
    <message>
        <source>turn the PDF&apos;s pages</source>
        <translation>pages du PDF en paysage</translation>
    </message>
    <message>
        <source>replace OUT.pdf whatever it holds</source>
        <translation>remplacer OUT.pdf quel que soit son contenu</translation>
    </message>
    <message>
        <source>export each FILE into this folder, under its own name with .csv</source>
        <translation>exporter chaque FILE dans ce dossier, sous son propre nom avec .csv</translation>
    </message>
    <message>
        <source>replace OUT.csv whatever it holds</source>
        <translation>remplacer OUT.csv quel que soit son contenu</translation>
    </message>
    <message>
        <source>read 145,5 as 145.5</source>
        <translation>lire 145,5 comme 145.5</translation>
    </message>
    <message>
        <source>what the columns of a list are, by title or number; such as &quot;Freq=frequency:kHz,3=note&quot;</source>
        <translation>champ de chaque colonne d’une liste, par titre ou numéro&#xa0;; par exemple &quot;Freq=frequency:kHz,3=note&quot;</translation>
    </message>
    <message>
        <source>where a list goes: from memory row 0 to 1209 on, or from BANK:CHANNEL, program-scan, search-pass or priority on; without it to the rows that it names</source>
        <translation>destination d’une liste&#xa0;: à partir de la ligne mémoire 0 à 1209, de BANK:CHANNEL, program-scan, search-pass ou priority&#xa0;; sinon, les lignes qu’elle indique</translation>
    </message>
    <message>
        <source>show what would change and write nothing</source>
        <translation>montrer ce qui changerait, sans rien écrire</translation>
    </message>
    <message>
        <source>keep FILE as it was as FILE~</source>
        <translation>conserver l’ancien FILE sous le nom FILE~</translation>
    </message>
    <message>
        <source>store notes without commas and quotes, which a clone file cannot hold</source>
        <translation>enregistrer les notes sans virgules ni guillemets, qu’un fichier clone ne peut pas contenir</translation>
    </message>
    <message>
        <source>write FILE even if its notes keep it from being opened again</source>
        <translation>écrire FILE même si ses notes empêchent de le rouvrir</translation>
    </message>
    <message>
        <source>write the repaired file under this name, which no file has yet</source>
        <translation>écrire le fichier réparé sous ce nom, encore inutilisé</translation>
    </message>
    <message>
        <source>replace FILE, which is kept as FILE~</source>
        <translation>remplacer FILE, conservé sous le nom FILE~</translation>
    </message>
    <message>
        <source>both names are the same file, which would be replaced</source>
        <translation>les deux noms désignent le même fichier, qui serait remplacé</translation>
    </message>
    <message>
        <source>--to writes another file than --in-place; choose one</source>
        <translation>--to écrit un autre fichier, --in-place le même&#xa0;; choisissez l’un ou l’autre</translation>
    </message>
    <message>
        <source>write the start-up image of a model region</source>
        <translation>écrire l’image initiale d’une région de modèle</translation>
    </message>
    <message>
        <source>It has default settings, VFO bands and bank sizes and no channels.</source>
        <translation>Elle contient les réglages, bandes VFO et tailles de banque par défaut, et aucun canal.</translation>
    </message>
    <message>
        <source>read the receiver into FILE</source>
        <translation>lire le récepteur dans FILE</translation>
    </message>
    <message>
        <source>If FILE exists, it is the starting point: notes and what is not read stay. If the transfer fails, FILE is left untouched. If a block arrives damaged or, with --verify, different the second time, it is listed, the status is 1, and the old file is kept as FILE~.</source>
        <translation>Si FILE existe, il sert de point de départ&#xa0;: ses notes et ce qui n’est pas lu restent. Si le transfert échoue, FILE reste inchangé. Si un bloc arrive endommagé ou, avec --verify, différent la seconde fois, il est listé, le code de retour est 1 et l’ancien fichier est conservé sous le nom FILE~.</translation>
    </message>
    <message>
        <source>write FILE to the receiver</source>
        <translation>écrire FILE dans le récepteur</translation>
    </message>
    <message>
        <source>Sends settings, VFO bands and presets, then banks and channels. Without --verify nothing is read back. If the backup fails, nothing is written. With --changes each block that is to be written is read first, and nothing is written if it was changed at the receiver, too.</source>
        <translation>Envoie les réglages, les bandes VFO et les préréglages, puis les banques et les canaux. Sans --verify, rien n’est relu. Si la sauvegarde échoue, rien n’est écrit. Avec --changes, chaque bloc à écrire est d’abord lu, et rien n’est écrit s’il a aussi été modifié dans le récepteur.</translation>
    </message>
    <message>
        <source>compare the receiver with FILE</source>
        <translation>comparer le récepteur avec FILE</translation>
    </message>
    <message>
        <source>Compares with what write of the same parts leaves behind. Prints nothing and ends with status 0 when they agree, else lists each block that differs, with the bytes in words.</source>
        <translation>Compare avec ce que write laisserait pour les mêmes parties. N’affiche rien et se termine avec le code de retour 0 s’il n’y a pas de différence&#xa0;; sinon, liste chaque bloc qui diffère, avec la signification des octets.</translation>
    </message>
    <message>
        <source>write FILE as CSV</source>
        <translation>écrire FILE au format CSV</translation>
    </message>
    <message>
        <source>The file holds the channels and VFO bands, for a spreadsheet. OUT.csv may be missing, empty or an older export. With --to, each FILE is exported into the folder.</source>
        <translation>Le fichier contient les canaux et les bandes VFO, pour un tableur. OUT.csv peut ne pas exister, être vide ou être un export plus ancien. Avec --to, chaque FILE est exporté dans le dossier.</translation>
    </message>
    <message>
        <source>take the rows of a CSV file or of a list into FILE</source>
        <translation>reprendre dans FILE les lignes d’un fichier CSV ou d’une liste</translation>
    </message>
    <message>
        <source>Rows that IN.csv does not name stay as they are. FILE is made when it does not exist. Notes with which FILE could not be opened again keep it from being written. Carrier codes of an export move one up. A file of another program is read as a list: how it is read is said, and what is not taken is listed by line.</source>
        <translation>Les lignes que IN.csv n’indique pas restent inchangées. FILE est créé s’il n’existe pas. Il n’est pas écrit si ses notes empêchent de le rouvrir. Les codes de porteuse d’un export augmentent d’un rang. Un fichier d’un autre programme est lu comme une liste&#xa0;: la façon dont il est lu est indiquée, et ce qui n’est pas repris est listé par ligne.</translation>
    </message>
    <message>
        <source>print the channels of each FILE in columns</source>
        <translation>afficher en colonnes les canaux de chaque FILE</translation>
    </message>
    <message>
        <source>Rows that hold a channel or a note; &quot;x&quot; marks a channel that is off.</source>
        <translation>Lignes qui contiennent un canal ou une note&#xa0;; «&#xa0;x&#xa0;» marque un canal désactivé.</translation>
    </message>
    <message>
        <source>print each FILE as text, or one as PDF</source>
        <translation>imprimer chaque FILE en texte, ou un seul en PDF</translation>
    </message>
    <message>
        <source>Settings, VFO table and memory channels in this order; without --settings, --vfo and --memory all three. &quot;Off&quot; marks a channel that is disabled.</source>
        <translation>Réglages, tableau VFO et canaux mémoire, dans cet ordre&#xa0;; sans --settings, --vfo ni --memory, les trois. «&#xa0;Off&#xa0;» marque un canal désactivé.</translation>
    </message>
    <message>
        <source>check that each FILE is complete, and say what it holds</source>
        <translation>vérifier que chaque FILE est complet, et dire ce qu’il contient</translation>
    </message>
    <message>
        <source>Names the line that is wrong and why. Warns of notes that a save loses or a spreadsheet would run, and of values that are read differently from what the file says. Several files take one line each; --verbose lists their warnings, --quiet names only those that are not whole.</source>
        <translation>Indique la ligne erronée et pourquoi. Avertit des notes qui seraient perdues à l’enregistrement ou exécutées par un tableur, et des valeurs qui ne sont pas lues comme elles figurent dans le fichier. Avec plusieurs fichiers, une ligne chacun&#xa0;; --verbose liste leurs avertissements, --quiet ne nomme que ceux qui ne sont pas complets.</translation>
    </message>
    <message>
        <source>mend a file that cannot be opened because of its notes</source>
        <translation>réparer un fichier que ses notes empêchent d’ouvrir</translation>
    </message>
    <message>
        <source>Commas in notes become semicolons, quotes apostrophes; each such note is shown. Without --to and --in-place nothing is written.</source>
        <translation>Dans les notes, les virgules deviennent des points-virgules et les guillemets des apostrophes&#xa0;; chaque note concernée est affichée. Sans --to ni --in-place, rien n’est écrit.</translation>
    </message>
    <message>
        <source>list what differs between two files, or a file and the receiver</source>
        <translation>lister les différences entre deux fichiers, ou avec le récepteur</translation>
    </message>
    <message>
        <source>Rows, settings, banks and notes are named. Status 1 when there is a difference.</source>
        <translation>Nomme les lignes, réglages, banques et notes. Code de retour 1 s’il y a une différence.</translation>
    </message>
    <message>
        <source>list serial ports</source>
        <translation>lister les ports série</translation>
    </message>
    <message>
        <source>Each COM number with its device and whether it can be opened.</source>
        <translation>Chaque numéro COM avec son périphérique, et s’il peut être ouvert.</translation>
    </message>
    <message>
        <source>read one block and show the reply as it came</source>
        <translation>lire un bloc et afficher la réponse brute</translation>
    </message>
    <message>
        <source>ADDRESS is hexadecimal and that of a block: 0000 to FFF0, the last digit 0.</source>
        <translation>ADDRESS est l’adresse hexadécimale d’un bloc&#xa0;: de 0000 à FFF0, dernier chiffre 0.</translation>
    </message>
    <message>
        <source>COM number 1 to 14, also as COM5, or a device or a link to one; without it the number in RQ-M5.ini</source>
        <translation>numéro COM de 1 à 14, aussi sous la forme COM5, ou un périphérique ou un lien vers lui&#xa0;; par défaut, le numéro dans RQ-M5.ini</translation>
    </message>
    <message>
        <source>leave the other part out</source>
        <translation>laisser l’autre partie de côté</translation>
    </message>
    <message>
        <source>bank 0 to 49, program-scan, search-pass, priority or all (default)</source>
        <translation>banque 0 à 49, program-scan, search-pass, priority ou all (par défaut)</translation>
    </message>
    <message>
        <source>the memory only: bank 0 to 49, program-scan, search-pass, priority or all; without it settings and all of the memory</source>
        <translation>la mémoire seulement&#xa0;: banque 0 à 49, program-scan, search-pass, priority ou all&#xa0;; sinon, les réglages et toute la mémoire</translation>
    </message>
    <message>
        <source>write JSON, as docs/json.md describes it</source>
        <translation>écrire en JSON, selon docs/json.md</translation>
    </message>
    <message>
        <source>write fields separated by tabs, titles first</source>
        <translation>écrire des champs séparés par des tabulations, titres en premier</translation>
    </message>
    <message>
        <source>take names of files from LIST, one on each line</source>
        <translation>lire les noms de fichiers dans LIST, un par ligne</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1&#xa0;; vouliez-vous dire «&#xa0;%2&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>--port compares one file with the receiver; leave B out</source>
        <translation>--port compare un fichier avec le récepteur&#xa0;; retirez B</translation>
    </message>
    <message>
        <source>%1 is about what is read from the receiver; add --port</source>
        <translation>%1 concerne ce qui est lu depuis le récepteur&#xa0;; ajoutez --port</translation>
    </message>
    <message>
        <source>B is missing; --port P compares with the receiver</source>
        <translation>B manque&#xa0;; --port P compare avec le récepteur</translation>
    </message>
    <message>
        <source>list what would change and write nothing</source>
        <translation>lister ce qui changerait, sans rien écrire</translation>
    </message>
    <message>
        <source>store notes without commas and quotes</source>
        <translation>enregistrer les notes sans virgules ni guillemets</translation>
    </message>
    <message>
        <source>what decides the order (default frequency)</source>
        <translation>critère de tri (frequency par défaut)</translation>
    </message>
    <message>
        <source>what is taken; as for set, and also settings and banks</source>
        <translation>ce qui est repris&#xa0;; comme pour set, avec en plus settings et banks</translation>
    </message>
    <message>
        <source>find channels in files</source>
        <translation>rechercher des canaux dans des fichiers</translation>
    </message>
    <message>
        <source>PATTERN is one or more words: frequencies, modes, notes, tones. A word such as 118..137, mode=AM, tone=88.5, note~tower, bank:3 or program-scan leaves the rows that meet it. Prints file, bank, channel, memory row and what it holds. Status 1 when nothing was found.</source>
        <translation>PATTERN est un ou plusieurs mots&#xa0;: fréquences, modes, notes, tonalités. Un mot comme 118..137, mode=AM, tone=88.5, note~tower, bank:3 ou program-scan ne garde que les lignes qui y répondent. Affiche le fichier, la banque, le canal, la ligne mémoire et son contenu. Code de retour 1 si rien n’est trouvé.</translation>
    </message>
    <message>
        <source>change fields of channels</source>
        <translation>modifier des champs de canaux</translation>
    </message>
    <message>
        <source>ROWS is one or more of all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority and vfo, with commas between; conditions such as mode=AM, freq:118..137 and note~airport leave those of them that meet them. FIELD is freq, mode, step, option, secret, carrier, tone, shift, offset, note, skip or enabled. The limits are those of the channel editor.</source>
        <translation>ROWS est une liste, séparée par des virgules, de all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority et vfo&#xa0;; des conditions comme mode=AM, freq:118..137 et note~airport n’en gardent que les lignes qui y répondent. FIELD est freq, mode, step, option, secret, carrier, tone, shift, offset, note, skip ou enabled. Les limites sont celles de l’éditeur de canal.</translation>
    </message>
    <message>
        <source>switch channels on</source>
        <translation>activer des canaux</translation>
    </message>
    <message>
        <source>ROWS is as for set.</source>
        <translation>ROWS comme pour set.</translation>
    </message>
    <message>
        <source>switch channels off</source>
        <translation>désactiver des canaux</translation>
    </message>
    <message>
        <source>empty rows, with their notes</source>
        <translation>effacer des lignes, avec leurs notes</translation>
    </message>
    <message>
        <source>copy channels to another place</source>
        <translation>copier des canaux à un autre emplacement</translation>
    </message>
    <message>
        <source>ROWS is as for set. TO is a bank or group, whose empty rows take the channels, or one row such as bank:3/12, from which on they replace what is there.</source>
        <translation>ROWS comme pour set. TO est une banque ou un groupe, dont les lignes vides reçoivent les canaux, ou une ligne comme bank:3/12, à partir de laquelle ils remplacent ce qui s’y trouve.</translation>
    </message>
    <message>
        <source>move channels to another place</source>
        <translation>déplacer des canaux vers un autre emplacement</translation>
    </message>
    <message>
        <source>As copy; the rows that they came from become empty.</source>
        <translation>Comme copy&#xa0;; les lignes d’origine deviennent vides.</translation>
    </message>
    <message>
        <source>sort the channels of banks and groups</source>
        <translation>trier les canaux de banques et de groupes</translation>
    </message>
    <message>
        <source>ROWS is one or more places, each sorted by itself; all sorts every bank and group. Empty rows come last.</source>
        <translation>ROWS est un ou plusieurs emplacements, triés chacun séparément&#xa0;; all trie toutes les banques et tous les groupes. Les lignes vides passent à la fin.</translation>
    </message>
    <message>
        <source>take rows of one file into another</source>
        <translation>reprendre des lignes d’un fichier dans un autre</translation>
    </message>
    <message>
        <source>Rows of OTHER that --take names go to the same places of FILE; notes and flags go with them.</source>
        <translation>Les lignes de OTHER indiquées par --take vont aux mêmes emplacements de FILE, avec leurs notes et leurs indicateurs.</translation>
    </message>
    <message>
        <source>print the completion script of a shell</source>
        <translation>afficher le script de complétion d’un shell</translation>
    </message>
    <message>
        <source>Installed with the program; for a shell of your own, source what it prints.</source>
        <translation>Installé avec le programme&#xa0;; sinon, chargez avec source ce qui est affiché.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>expliquer une commande</translation>
    </message>
    <message>
        <source>Without COMMAND it lists all of them.</source>
        <translation>Sans COMMAND, liste toutes les commandes.</translation>
    </message>
    <message>
        <source>TO %1 has room for %2 of %3 channels</source>
        <translation>TO %1 a de la place pour %2 canaux sur %3</translation>
    </message>
    <message>
        <source>sort takes places such as bank:3 or program-scan, and no conditions</source>
        <translation>sort demande des emplacements comme bank:3 ou program-scan, sans conditions</translation>
    </message>
    <message>
        <source>rows of two groups cannot be sorted as one; name them apart</source>
        <translation>des lignes de deux groupes ne peuvent pas être triées ensemble&#xa0;; indiquez-les séparément</translation>
    </message>
    <message>
        <source>the two edges of a Program Scan pair stay together; name whole pairs</source>
        <translation>les deux limites d’une paire Program Scan restent ensemble&#xa0;; indiquez des paires complètes</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 ligne</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 lignes</translation>
    </message>
    <message>
        <source>1 setting</source>
        <translation>1 réglage</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation>%1 réglages</translation>
    </message>
    <message>
        <source>1 bank value</source>
        <translation>1 valeur de banque</translation>
    </message>
    <message>
        <source>%1 bank values</source>
        <translation>%1 valeurs de banque</translation>
    </message>
    <message>
        <source>%1 changed in %2</source>
        <translation>Modifié dans %2&#xa0;: %1</translation>
    </message>
    <message>
        <source>ROWS names channels that are not there: %1</source>
        <translation>ROWS indique des canaux qui n’existent pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>none of the rows that ROWS names holds a channel</source>
        <translation>aucune des lignes indiquées par ROWS ne contient un canal</translation>
    </message>
    <message>
        <source>ROWS names no row of this file</source>
        <translation>ROWS n’indique aucune ligne de ce fichier</translation>
    </message>
    <message>
        <source>it is one place, such as bank:3 or bank:3/12</source>
        <translation>il faut un seul emplacement, comme bank:3 ou bank:3/12</translation>
    </message>
    <message>
        <source>it is frequency, note or mode</source>
        <translation>il faut frequency, note ou mode</translation>
    </message>
    <message>
        <source>it is bash, zsh or fish</source>
        <translation>il faut bash, zsh ou fish</translation>
    </message>
    <message>
        <source>FIELD=VALUE is missing, such as mode=AM</source>
        <translation>FIELD=VALUE manque, par exemple mode=AM</translation>
    </message>
    <message>
        <source>set changes rows, not settings or banks</source>
        <translation>set modifie des lignes, pas les réglages ni les banques</translation>
    </message>
    <message>
        <source>--take ROWS is missing: it says what is taken, such as bank:3 or all</source>
        <translation>--take ROWS manque&#xa0;: cette option indique ce qui est repris, par exemple bank:3 ou all</translation>
    </message>
    <message>
        <source>both names are the same file</source>
        <translation>les deux noms désignent le même fichier</translation>
    </message>
    <message>
        <source>several files need a folder: add --to FOLDER</source>
        <translation>il faut un dossier pour plusieurs fichiers&#xa0;: ajoutez --to FOLDER</translation>
    </message>
    <message>
        <source>--pdf takes one FILE</source>
        <translation>--pdf n’accepte qu’un FILE</translation>
    </message>
    <message>
        <source>a spreadsheet would run these notes as formulas:</source>
        <translation>un tableur exécuterait ces notes comme des formules&#xa0;:</translation>
    </message>
    <message>
        <source>%1: there is no such folder. Make it first.</source>
        <translation>%1&#xa0;: ce dossier n’existe pas. Créez-le d’abord.</translation>
    </message>
    <message>
        <source>%1: another file of this name went to %2 just now. Export it by itself.</source>
        <translation>%1&#xa0;: un autre fichier de ce nom vient d’aller dans %2. Exportez celui-ci séparément.</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1 existe déjà&#xa0;; --force le remplace</translation>
    </message>
    <message>
        <source>%1: the list names no file</source>
        <translation>%1&#xa0;: la liste n’indique aucun fichier</translation>
    </message>
    <message>
        <source>this text, or with a command the help of the command</source>
        <translation>ce texte, ou avec une commande l’aide de celle-ci</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>la version du programme</translation>
    </message>
    <message>
        <source>no progress, no closing line and no notes</source>
        <translation>ni avancement, ni ligne finale, ni remarques</translation>
    </message>
    <message>
        <source>every exchange with the receiver and every warning</source>
        <translation>tous les échanges avec le récepteur et tous les avertissements</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Utilisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Reads, keeps and writes the memory of a Tervan RQ-M5 receiver.</source>
        <translation>Lit, conserve et écrit la mémoire d’un récepteur Tervan RQ-M5.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>&quot;-&quot; as a file name is standard input or standard output.</source>
        <translation>Comme nom de fichier, «&#xa0;-&#xa0;» désigne l’entrée ou la sortie standard.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 the operation failed or found a difference, 2 wrong usage.</source>
        <translation>Code de retour&#xa0;: 0 terminé, 1 opération échouée ou différence trouvée, 2 mauvaise utilisation.</translation>
    </message>
    <message>
        <source>%1 would be taken from %2</source>
        <translation>Serait repris de %2&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 taken from %2</source>
        <translation>Repris de %2&#xa0;: %1</translation>
    </message>
    <message>
        <source>not everything was read as written; %1</source>
        <translation>tout n’a pas été lu tel quel&#xa0;; %1</translation>
    </message>
    <message>
        <source>the carrier code of %1 moved one up, as with every import of an export: 300Hz is stored as 400Hz</source>
        <translation>le code de porteuse de %1 a augmenté d’un rang, comme à chaque importation d’un export&#xa0;: 300Hz devient 400Hz</translation>
    </message>
    <message>
        <source>%1 holds no record of an RQ-M5; %2</source>
        <translation>%1 ne contient aucun enregistrement d’un RQ-M5&#xa0;; %2</translation>
    </message>
    <message>
        <source>Read as a list: %1</source>
        <translation>Lu comme une liste&#xa0;: %1</translation>
    </message>
    <message>
        <source>not taken: %1</source>
        <translation>non repris&#xa0;: %1</translation>
    </message>
    <message>
        <source>left out:</source>
        <translation>ignoré&#xa0;:</translation>
    </message>
    <message>
        <source>no row of %1 can be taken; %2</source>
        <translation>aucune ligne de %1 ne peut être reprise&#xa0;; %2</translation>
    </message>
    <message>
        <source>no titles; columns are 1 to %1</source>
        <translation>pas de titres&#xa0;; colonnes 1 à %1</translation>
    </message>
    <message>
        <source>the list has no column &quot;%1&quot;; it has %2</source>
        <translation>la liste n’a pas de colonne «&#xa0;%1&#xa0;»&#xa0;; elle a&#xa0;: %2</translation>
    </message>
    <message>
        <source>the list does not say which rows it belongs to; name the first one with --from-row, or the columns that name them with --map</source>
        <translation>la liste n’indique pas à quelles lignes elle correspond&#xa0;; indiquez la première avec --from-row, ou les colonnes qui les désignent avec --map</translation>
    </message>
    <message>
        <source>there is no row %1 in this file</source>
        <translation>il n’y a pas de ligne %1 dans ce fichier</translation>
    </message>
    <message>
        <source>a row is a number 0 to 1209, BANK:CHANNEL such as 3:12, program-scan, search-pass or priority</source>
        <translation>une ligne est un numéro de 0 à 1209, BANK:CHANNEL comme 3:12, program-scan, search-pass ou priority</translation>
    </message>
    <message>
        <source>bank %1 has other rows in OTHER than in FILE. Take &quot;banks&quot; as well, or name the rows as memory:0-199</source>
        <translation>la banque %1 n’a pas les mêmes lignes dans OTHER et dans FILE. Reprenez aussi «&#xa0;banks&#xa0;», ou indiquez les lignes sous la forme memory:0-199</translation>
    </message>
    <message>
        <source>ROWS names no row of OTHER</source>
        <translation>ROWS n’indique aucune ligne de OTHER</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;.</source>
        <translation>Utilisez «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>%1: the program that makes PDFs cannot be started. Install rq-m5 again, or print from the window.</source>
        <translation>%1&#xa0;: le programme qui produit les PDF ne peut pas être lancé. Réinstallez rq-m5, ou imprimez depuis la fenêtre.</translation>
    </message>
    <message>
        <source>Try &quot;%1&quot;.</source>
        <translation>Essayez «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>commande inconnue «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>il manque une commande</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>Port: %1, %2 (without --port, that of RQ-M5.ini)</source>
        <translation>Port&#xa0;: %1, %2 (sans --port, celui de RQ-M5.ini)</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>aucun périphérique</translation>
    </message>
    <message>
        <source>%1: there is a file already; choose another name</source>
        <translation>%1&#xa0;: il y a déjà un fichier&#xa0;; choisissez un autre nom</translation>
    </message>
    <message>
        <source>%1: more than 16 MiB came. No clone file and no CSV file of a receiver is as long; check what is sent.</source>
        <translation>%1&#xa0;: plus de 16 MiB reçus. Aucun fichier clone ni CSV d’un récepteur n’est aussi long&#xa0;; vérifiez ce qui est envoyé.</translation>
    </message>
    <message>
        <source>%1: it cannot be read. Give the name of a file.</source>
        <translation>%1&#xa0;: lecture impossible. Donnez le nom d’un fichier.</translation>
    </message>
    <message>
        <source>%1: it cannot be opened. Check its permissions.</source>
        <translation>%1&#xa0;: ouverture impossible. Vérifiez les permissions.</translation>
    </message>
    <message>
        <source>nothing is written</source>
        <translation>rien n’est écrit</translation>
    </message>
    <message>
        <source>%1 is as it was</source>
        <translation>%1 est inchangé</translation>
    </message>
    <message>
        <source>the output could not be written; is the disk full?</source>
        <translation>la sortie n’a pas pu être écrite&#xa0;; le disque est-il plein&#xa0;?</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>l’entrée standard</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>la sortie standard</translation>
    </message>
    <message>
        <source>%1: there is a file already, and a backup replaces none; choose another name</source>
        <translation>%1&#xa0;: il y a déjà un fichier, et une sauvegarde n’en remplace aucun&#xa0;; choisissez un autre nom</translation>
    </message>
    <message>
        <source>%1: first %2, then %3</source>
        <translation>%1&#xa0;: d’abord %2, puis %3</translation>
    </message>
    <message>
        <source>%1 is written with what came. Check the cable and read again.</source>
        <translation>%1 est écrit avec ce qui a été reçu. Vérifiez le câble et recommencez la lecture.</translation>
    </message>
    <message>
        <source>%1 is written with what came; as it was it is kept as %2. Check the cable and read again.</source>
        <translation>%1 est écrit avec ce qui a été reçu&#xa0;; l’ancien est conservé dans %2. Vérifiez le câble et recommencez la lecture.</translation>
    </message>
    <message>
        <source>Enable flags of other rows that differ from FILE: %1; the receiver keeps its own.</source>
        <translation>Indicateurs d’activation d’autres lignes qui diffèrent de FILE&#xa0;: %1&#xa0;; le récepteur garde les siens.</translation>
    </message>
    <message>
        <source>these rows are outside the receiver&apos;s range (%1) and are written as they are:</source>
        <translation>ces lignes sont hors de la plage du récepteur (%1) et sont écrites telles quelles&#xa0;:</translation>
    </message>
    <message>
        <source>%1 If that is meant, repeat with --force. The backup is in %2</source>
        <translation>%1 Si c’est voulu, recommencez avec --force. La sauvegarde est dans %2</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>regions are 0 to 3</source>
        <translation>les régions vont de 0 à 3</translation>
    </message>
    <message>
        <source>port numbers are 1 to 14; a device path such as /dev/ttyUSB0 is taken too</source>
        <translation>les numéros de port vont de 1 à 14&#xa0;; un chemin de périphérique comme /dev/ttyUSB0 est aussi accepté</translation>
    </message>
    <message>
        <source>it is settings or memory</source>
        <translation>il faut settings ou memory</translation>
    </message>
    <message>
        <source>it is a bank 0 to 49, %1 or %2</source>
        <translation>il faut une banque de 0 à 49, %1 ou %2</translation>
    </message>
    <message>
        <source>it is a4 or letter</source>
        <translation>il faut a4 ou letter</translation>
    </message>
    <message>
        <source>the name of a file is missing</source>
        <translation>il manque un nom de fichier</translation>
    </message>
    <message>
        <source>--bank chooses channels, and --only settings leaves them out</source>
        <translation>--bank choisit des canaux, et --only settings les exclut</translation>
    </message>
    <message>
        <source>%1 is about channels, which are not printed; add --memory</source>
        <translation>%1 concerne les canaux, qui ne sont pas imprimés&#xa0;; ajoutez --memory</translation>
    </message>
    <message>
        <source>%1 is about the pages of a PDF; add --pdf</source>
        <translation>%1 concerne les pages d’un PDF&#xa0;; ajoutez --pdf</translation>
    </message>
    <message>
        <source>The receiver holds what FILE says already; nothing was written.</source>
        <translation>Le récepteur contient déjà ce que contient FILE&#xa0;; rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Known of the receiver since %1.</source>
        <translation>Contenu du récepteur connu depuis le %1.</translation>
    </message>
    <message>
        <source>%1 If that is meant, repeat with --force.</source>
        <translation>%1 Si c’est voulu, recommencez avec --force.</translation>
    </message>
    <message>
        <source>What is to be written was changed at the receiver, too. Read it into another file and take over what is right, or write without --changes.</source>
        <translation>Ce qui doit être écrit a aussi été modifié dans le récepteur. Lisez-le dans un autre fichier et reprenez ce qui convient, ou écrivez sans --changes.</translation>
    </message>
    <message>
        <source>%1, %2: known %3, receiver %4, FILE %5</source>
        <translation>%1, %2&#xa0;: connu %3, récepteur %4, FILE %5</translation>
    </message>
    <message>
        <source>--known says what a write of changes begins with; add --changes</source>
        <translation>--known indique le point de départ d’une écriture de modifications&#xa0;; ajoutez --changes</translation>
    </message>
    <message>
        <source>--changes looks at all parts; leave out %1</source>
        <translation>--changes examine toutes les parties&#xa0;; retirez %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>%1 %2 left out</source>
        <translation>%1 %2&#xa0;: ignoré</translation>
    </message>
    <message>
        <source>%1 has lost digits to an exponent in a spreadsheet</source>
        <translation>%1 a perdu des chiffres&#xa0;: un tableur l’a écrit avec un exposant</translation>
    </message>
    <message>
        <source>%1 cannot be read for certain as a frequency</source>
        <translation>%1 ne peut pas être lu avec certitude comme une fréquence</translation>
    </message>
    <message>
        <source>a frequency of 0 is no channel</source>
        <translation>une fréquence de 0 n’est pas un canal</translation>
    </message>
    <message>
        <source>the receiver has no mode %1</source>
        <translation>le récepteur n’a pas le mode %1</translation>
    </message>
    <message>
        <source>the note is cut to 255 characters</source>
        <translation>la note est coupée à 255 caractères</translation>
    </message>
    <message>
        <source>it is a VFO band</source>
        <translation>c’est une bande VFO</translation>
    </message>
    <message>
        <source>there is no frequency</source>
        <translation>il n’y a pas de fréquence</translation>
    </message>
    <message>
        <source>there are more than 64 columns</source>
        <translation>il y a plus de 64 colonnes</translation>
    </message>
    <message>
        <source>there are more fields than titles</source>
        <translation>il y a plus de champs que de titres</translation>
    </message>
    <message>
        <source>it and all behind it are not read: no list of channels has more than 5000 rows</source>
        <translation>cette ligne et toutes les suivantes ne sont pas lues&#xa0;: une liste de canaux a au plus 5000 lignes</translation>
    </message>
    <message>
        <source>first line</source>
        <translation>première ligne</translation>
    </message>
    <message>
        <source>settings block %1</source>
        <translation>bloc de réglages %1</translation>
    </message>
    <message>
        <source>VFO row %1</source>
        <translation>ligne VFO %1</translation>
    </message>
    <message>
        <source>memory row %1</source>
        <translation>ligne mémoire %1</translation>
    </message>
    <message>
        <source>channel flags %1</source>
        <translation>indicateurs de canaux %1</translation>
    </message>
    <message>
        <source>note of VFO row %1</source>
        <translation>note de la ligne VFO %1</translation>
    </message>
    <message>
        <source>note of memory row %1</source>
        <translation>note de la ligne mémoire %1</translation>
    </message>
    <message>
        <source>bank sizes %1</source>
        <translation>tailles de banque %1</translation>
    </message>
    <message>
        <source>bank links</source>
        <translation>liens de banque</translation>
    </message>
    <message>
        <source>last line</source>
        <translation>dernière ligne</translation>
    </message>
    <message>
        <source>Take an older copy of the file, or read the receiver again.</source>
        <translation>Prenez une copie plus ancienne du fichier, ou relisez le récepteur.</translation>
    </message>
    <message>
        <source>line 1 is not &quot;%1&quot;, so this is no clone file. Choose a clone file (*.RQ5); a CSV file is imported instead.</source>
        <translation>la ligne 1 n’est pas «&#xa0;%1&#xa0;», ce n’est donc pas un fichier clone. Choisissez un fichier clone (*.RQ5)&#xa0;; un fichier CSV s’importe.</translation>
    </message>
    <message>
        <source>the file is empty.</source>
        <translation>le fichier est vide.</translation>
    </message>
    <message>
        <source>the file ends at line %1 of %2: it was cut short.</source>
        <translation>le fichier se termine à la ligne %1 sur %2&#xa0;: il a été tronqué.</translation>
    </message>
    <message>
        <source>line %1 (%2) has %3 characters, %4 are needed. Correct the line in a text editor, or take an older copy of the file.</source>
        <translation>la ligne %1 (%2) a %3 caractères, il en faut %4. Corrigez la ligne dans un éditeur de texte, ou prenez une copie plus ancienne du fichier.</translation>
    </message>
    <message>
        <source>line %1 (%2) is not &quot;%3&quot;: lines were added or the file is damaged.</source>
        <translation>la ligne %1 (%2) n’est pas «&#xa0;%3&#xa0;»&#xa0;: des lignes ont été ajoutées ou le fichier est endommagé.</translation>
    </message>
    <message>
        <source>line %1 (%2) holds a comma, which ends a note and shifts all that follows. File &gt; Repair, or &quot;rq-m5 repair&quot;, replaces it.</source>
        <translation>la ligne %1 (%2) contient une virgule, qui termine une note et décale tout ce qui suit. Fichier &gt; Réparer, ou «&#xa0;rq-m5 repair&#xa0;», la remplace.</translation>
    </message>
    <message>
        <source>%1 is none of the receiver&apos;s</source>
        <translation>%1 n’est pas une valeur du récepteur</translation>
    </message>
    <message>
        <source>%1 is out of range</source>
        <translation>%1 est hors limites</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma</source>
        <translation>%1 est lu comme %2&#xa0;: virgule décimale</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma, none of the receiver&apos;s</source>
        <translation>%1 est lu comme %2&#xa0;: virgule décimale, et ce n’est pas une valeur du récepteur</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma, out of range</source>
        <translation>%1 est lu comme %2&#xa0;: virgule décimale, hors limites</translation>
    </message>
    <message>
        <source>%1 is read as %2</source>
        <translation>%1 est lu comme %2</translation>
    </message>
    <message>
        <source>%1 is read as %2, none of the receiver&apos;s</source>
        <translation>%1 est lu comme %2, qui n’est pas une valeur du récepteur</translation>
    </message>
    <message>
        <source>%1 is read as %2, out of range</source>
        <translation>%1 est lu comme %2, hors limites</translation>
    </message>
    <message>
        <source>the row keeps what it has</source>
        <translation>la ligne garde sa valeur</translation>
    </message>
    <message>
        <source>the row keeps %1</source>
        <translation>la ligne garde %1</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 n’est pas un nombre</translation>
    </message>
    <message>
        <source>%1 is read as OFF</source>
        <translation>%1 est lu comme OFF</translation>
    </message>
    <message>
        <source>%1 MHz is outside the receiver&apos;s range (0.1 to 1299.995 MHz)</source>
        <translation>%1 MHz est hors de la plage du récepteur (0.1 à 1299.995 MHz)</translation>
    </message>
    <message>
        <source>the row is empty now</source>
        <translation>la ligne est maintenant vide</translation>
    </message>
    <message>
        <source>%1 is read as #FALSE#</source>
        <translation>%1 est lu comme #FALSE#</translation>
    </message>
    <message>
        <source>1 remark</source>
        <translation>1 remarque</translation>
    </message>
    <message>
        <source>%1 remarks</source>
        <translation>%1 remarques</translation>
    </message>
    <message>
        <source>1 row keeps an old value</source>
        <translation>1 ligne garde une ancienne valeur</translation>
    </message>
    <message>
        <source>%1 rows keep an old value</source>
        <translation>%1 lignes gardent une ancienne valeur</translation>
    </message>
    <message>
        <source>1 number has a decimal comma</source>
        <translation>1 nombre a une virgule décimale</translation>
    </message>
    <message>
        <source>%1 numbers have a decimal comma</source>
        <translation>%1 nombres ont une virgule décimale</translation>
    </message>
    <message>
        <source>it does not begin with %1 and is passed over</source>
        <translation>ne commence pas par %1 et est ignorée</translation>
    </message>
    <message>
        <source>there is no table &quot;%1&quot;; the record is passed over</source>
        <translation>il n’y a pas de tableau «&#xa0;%1&#xa0;»&#xa0;; l’enregistrement est ignoré</translation>
    </message>
    <message>
        <source>%1 has no channel &quot;%2&quot;; the record is passed over</source>
        <translation>%1 n’a pas de canal «&#xa0;%2&#xa0;»&#xa0;; l’enregistrement est ignoré</translation>
    </message>
    <message>
        <source>the record is short and is passed over</source>
        <translation>l’enregistrement est trop court et est ignoré</translation>
    </message>
    <message>
        <source>the record is short; what stands in the next line was read into it</source>
        <translation>l’enregistrement est trop court&#xa0;; le contenu de la ligne suivante y a été inclus</translation>
    </message>
    <message>
        <source>the record has more than 15 fields; the rest is passed over</source>
        <translation>l’enregistrement a plus de 15 champs&#xa0;; le reste est ignoré</translation>
    </message>
    <message>
        <source>the extended attribute %1 is gone</source>
        <translation>l’attribut étendu %1 est perdu</translation>
    </message>
    <message>
        <source>the owner was %1 and is %2</source>
        <translation>le propriétaire était %1 et est %2</translation>
    </message>
    <message>
        <source>the group was %1 and is %2</source>
        <translation>le groupe était %1 et est %2</translation>
    </message>
    <message>
        <source>the permissions were %1 and are %2</source>
        <translation>les permissions étaient %1 et sont %2</translation>
    </message>
    <message>
        <source>the access list is gone</source>
        <translation>la liste de contrôle d’accès est perdue</translation>
    </message>
    <message>
        <source>this is a clone file</source>
        <translation>c’est un fichier clone</translation>
    </message>
    <message>
        <source>this is a CSV file of this program</source>
        <translation>c’est un fichier CSV de ce programme</translation>
    </message>
    <message>
        <source>this is a PDF</source>
        <translation>c’est un PDF</translation>
    </message>
    <message>
        <source>this is a file of another kind</source>
        <translation>c’est un fichier d’un autre type</translation>
    </message>
    <message>
        <source>and not a clone file</source>
        <translation>et non un fichier clone</translation>
    </message>
    <message>
        <source>and not a CSV file of this program</source>
        <translation>et non un fichier CSV de ce programme</translation>
    </message>
    <message>
        <source>and not a PDF</source>
        <translation>et non un PDF</translation>
    </message>
    <message>
        <source>%1: %2 %3; give another name, or --force to replace it</source>
        <translation>%1&#xa0;: %2 %3&#xa0;; donnez un autre nom, ou --force pour le remplacer</translation>
    </message>
    <message>
        <source>there is a folder or a device of that name</source>
        <translation>il y a un dossier ou un périphérique de ce nom</translation>
    </message>
    <message>
        <source>%1: the old file cannot be kept under this name (%2), so nothing was changed. Make room for it, or save under another name.</source>
        <translation>%1&#xa0;: l’ancien fichier ne peut pas être conservé sous ce nom (%2)&#xa0;; rien n’a donc été modifié. Libérez ce nom, ou enregistrez sous un autre.</translation>
    </message>
    <message>
        <source>%1: another program wrote this file right after it was saved, so it holds something else. Look at it, then save again or under another name.</source>
        <translation>%1&#xa0;: un autre programme a écrit ce fichier juste après l’enregistrement&#xa0;; son contenu est donc différent. Vérifiez-le, puis enregistrez de nouveau ou sous un autre nom.</translation>
    </message>
    <message>
        <source>%1: the file does not hold what was written to it. The disk may be failing; save to another one.</source>
        <translation>%1&#xa0;: le fichier ne contient pas ce qui y a été écrit. Le disque est peut-être défaillant&#xa0;; enregistrez sur un autre.</translation>
    </message>
    <message>
        <source>%1 The new file is in place; only what it holds could not be compared with what was written.</source>
        <translation>%1 Le nouveau fichier est en place&#xa0;; seul son contenu n’a pas pu être comparé à ce qui a été écrit.</translation>
    </message>
    <message>
        <source>commas stand for decimals and between fields; separate the fields by tabs</source>
        <translation>la virgule sert à la fois aux décimales et entre les champs&#xa0;; séparez les champs par des tabulations</translation>
    </message>
    <message>
        <source>there is no encoding &quot;%1&quot;; one of them is WINDOWS-1252</source>
        <translation>il n’y a pas d’encodage «&#xa0;%1&#xa0;»&#xa0;; WINDOWS-1252 en est un</translation>
    </message>
    <message>
        <source>the delimiter is tab, semicolon, comma or none</source>
        <translation>@delimiter est tab, semicolon, comma ou none</translation>
    </message>
    <message>
        <source>the decimal sign is point or comma</source>
        <translation>@decimal est point ou comma</translation>
    </message>
    <message>
        <source>@titles is yes or no</source>
        <translation>@titles est yes ou no</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of @encoding, @delimiter, @decimal and @titles</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni @encoding, ni @delimiter, ni @decimal, ni @titles</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not followed by &quot;=&quot; and a field</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas suivi de «&#xa0;=&#xa0;» et d’un champ</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;; the fields are %2</source>
        <translation>il n’y a pas de champ «&#xa0;%1&#xa0;»&#xa0;; les champs sont&#xa0;: %2</translation>
    </message>
    <message>
        <source>one field a line</source>
        <translation>aucun, un champ par ligne</translation>
    </message>
    <message>
        <source>each number by itself</source>
        <translation>nombre par nombre</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>colonne %1</translation>
    </message>
    <message>
        <source>%1; fields: %2; decimals: %3</source>
        <translation>%1&#xa0;; séparateur de champs&#xa0;: %2&#xa0;; séparateur décimal&#xa0;: %3</translation>
    </message>
    <message>
        <source>not used: %1</source>
        <translation>non utilisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>line %1, %2: %3 -&gt; %4</source>
        <translation>ligne %1, %2&#xa0;: %3 -&gt; %4</translation>
    </message>
    <message>
        <source>%1: cannot be made</source>
        <translation>%1&#xa0;: création impossible</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission refusée</translation>
    </message>
    <message>
        <source>the new file gets no name here (%1)</source>
        <translation>le nouveau fichier ne reçoit pas de nom ici (%1)</translation>
    </message>
    <message>
        <source>What was read could not be kept elsewhere either: %1</source>
        <translation>Ce qui a été lu n’a pas pu être conservé ailleurs non plus&#xa0;: %1</translation>
    </message>
    <message>
        <source>What was read is kept in %1; rq-m5-clone offers it at its next start.</source>
        <translation>Ce qui a été lu est conservé dans %1&#xa0;; rq-m5-clone le proposera à son prochain démarrage.</translation>
    </message>
    <message>
        <source>%1: %2. %3</source>
        <translation>%1&#xa0;: %2. %3</translation>
    </message>
    <message>
        <source>no file name was given</source>
        <translation>aucun nom de fichier n’a été donné</translation>
    </message>
    <message>
        <source>Give one.</source>
        <translation>Donnez-en un.</translation>
    </message>
    <message>
        <source>this is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>Give the name of a file.</source>
        <translation>Donnez le nom d’un fichier.</translation>
    </message>
    <message>
        <source>this is a device or a pipe and no file</source>
        <translation>c’est un périphérique ou un tube, pas un fichier</translation>
    </message>
    <message>
        <source>Change the permissions of the file or save under another name.</source>
        <translation>Modifiez les permissions du fichier ou enregistrez sous un autre nom.</translation>
    </message>
    <message>
        <source>Check the name and the permissions of the folder, or save in another one.</source>
        <translation>Vérifiez le nom et les permissions du dossier, ou enregistrez dans un autre.</translation>
    </message>
    <message>
        <source>Free some space on the disk or save on another one, then repeat.</source>
        <translation>Libérez de l’espace sur le disque ou enregistrez sur un autre, puis recommencez.</translation>
    </message>
    <message>
        <source>Give a shorter name.</source>
        <translation>Donnez un nom plus court.</translation>
    </message>
    <message>
        <source>Too many files are open; close other programs, then repeat.</source>
        <translation>Trop de fichiers sont ouverts&#xa0;; fermez d’autres programmes, puis recommencez.</translation>
    </message>
    <message>
        <source>The disk may be failing; save on another one.</source>
        <translation>Le disque est peut-être défaillant&#xa0;; enregistrez sur un autre.</translation>
    </message>
    <message>
        <source>Save in another folder or on another disk.</source>
        <translation>Enregistrez dans un autre dossier ou sur un autre disque.</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>le dossier %1 n’existe pas</translation>
    </message>
    <message>
        <source>Make the folder or choose another one.</source>
        <translation>Créez le dossier ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>permission refusée</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>Check its name and its folder.</source>
        <translation>Vérifiez son nom et son dossier.</translation>
    </message>
    <message>
        <source>the file is larger than 16 MiB</source>
        <translation>le fichier dépasse 16 MiB</translation>
    </message>
    <message>
        <source>No clone file and no CSV file of a receiver is; choose another one.</source>
        <translation>Aucun fichier clone ni CSV d’un récepteur n’est aussi grand&#xa0;; choisissez-en un autre.</translation>
    </message>
    <message>
        <source>only %1 KiB are free on the disk, and the file needs %2</source>
        <translation>il ne reste que %1 KiB libres sur le disque, et il en faut %2 pour le fichier</translation>
    </message>
    <message>
        <source>%1; the new file is in place, but it may be lost when the power fails</source>
        <translation>%1&#xa0;; le nouveau fichier est en place, mais une coupure de courant pourrait le faire perdre</translation>
    </message>
    <message>
        <source>%1; nothing was changed</source>
        <translation>%1&#xa0;; rien n’a été modifié</translation>
    </message>
    <message>
        <source>Change the permissions of the file or open a copy.</source>
        <translation>Modifiez les permissions du fichier ou ouvrez une copie.</translation>
    </message>
    <message>
        <source>Open a copy from another disk.</source>
        <translation>Ouvrez une copie depuis un autre disque.</translation>
    </message>
    <message>
        <source>%1 (no device)</source>
        <translation>%1 (aucun périphérique)</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Compilation</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>MIT</source>
        <translation>MIT</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>%1, built with %2</source>
        <translation>%1, compilé avec %2</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Port number file</source>
        <translation>Fichier du numéro de port</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Secret code</source>
        <translation>Code secret</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>Porteuse</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Tonalité</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Shift frequency</source>
        <translation>Valeur du décalage</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Program Scan</source>
        <translation>Program Scan</translation>
    </message>
    <message>
        <source>Seach Pass</source>
        <translation>Seach Pass</translation>
    </message>
    <message>
        <source>Search Pass</source>
        <translation>Search Pass</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priority</translation>
    </message>
    <message>
        <source>An address is hexadecimal, such as 1000.</source>
        <translation>Une adresse est hexadécimale, par exemple 1000.</translation>
    </message>
    <message>
        <source>The highest address is %1.</source>
        <translation>L’adresse la plus haute est %1.</translation>
    </message>
    <message>
        <source>An address is that of a block of 16 bytes, so its last digit is 0.</source>
        <translation>Une adresse est celle d’un bloc de 16 octets&#xa0;; son dernier chiffre est donc 0.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Canal activé</translation>
    </message>
    <message>
        <source>Search Pass count</source>
        <translation>Nombre de canaux Search Pass</translation>
    </message>
    <message>
        <source>Region presets</source>
        <translation>Préréglages régionaux</translation>
    </message>
    <message>
        <source>Bank sizes</source>
        <translation>Tailles de banque</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>Bank %1 link</source>
        <translation>Lien de la banque %1</translation>
    </message>
    <message>
        <source>Enabled channels</source>
        <translation>Canaux activés</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>Block %1</source>
        <translation>Bloc %1</translation>
    </message>
    <message>
        <source>less than a second</source>
        <translation>moins d’une seconde</translation>
    </message>
    <message>
        <source>about one second</source>
        <translation>environ une seconde</translation>
    </message>
    <message>
        <source>about %1 seconds</source>
        <translation>environ %1 secondes</translation>
    </message>
    <message>
        <source>about one minute</source>
        <translation>environ une minute</translation>
    </message>
    <message>
        <source>about %1 minutes</source>
        <translation>environ %1 minutes</translation>
    </message>
    <message>
        <source>The receiver was never read in this run: %1 blocks, %2</source>
        <translation>Le récepteur n’a pas encore été lu depuis le lancement du programme&#xa0;: %1 blocs, %2</translation>
    </message>
    <message>
        <source>Not known of the receiver: %1 blocks, %2</source>
        <translation>Blocs du récepteur encore inconnus&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>1 channel on</source>
        <translation>1 canal activé</translation>
    </message>
    <message>
        <source>%1 channels on</source>
        <translation>%1 canaux activés</translation>
    </message>
    <message>
        <source>1 bank size</source>
        <translation>1 taille de banque</translation>
    </message>
    <message>
        <source>%1 bank sizes</source>
        <translation>%1 tailles de banque</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 lien</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 liens</translation>
    </message>
    <message>
        <source>1 VFO band</source>
        <translation>1 bande VFO</translation>
    </message>
    <message>
        <source>%1 VFO bands</source>
        <translation>%1 bandes VFO</translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation>aucune modification</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>modifications&#xa0;: %1</translation>
    </message>
    <message>
        <source>Read in %1 and verified: %2</source>
        <translation>Lu en %1 et vérifié&#xa0;: %2</translation>
    </message>
    <message>
        <source>Read in %1: %2</source>
        <translation>Lu en %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Written in %1 and verified</source>
        <translation>Écrit en %1 et vérifié</translation>
    </message>
    <message>
        <source>Written in %1</source>
        <translation>Écrit en %1</translation>
    </message>
    <message>
        <source>Compared in %1: no block differs</source>
        <translation>Comparé en %1&#xa0;: aucun bloc ne diffère</translation>
    </message>
    <message>
        <source>Compared in %1: 1 block differs</source>
        <translation>Comparé en %1&#xa0;: 1 bloc diffère</translation>
    </message>
    <message>
        <source>Compared in %1: %2 blocks differ</source>
        <translation>Comparé en %1&#xa0;: %2 blocs diffèrent</translation>
    </message>
    <message>
        <source>Settings 2 (Search Pass count)</source>
        <translation>Réglages 2 (nombre de canaux Search Pass)</translation>
    </message>
    <message>
        <source>1 block needed more than one attempt</source>
        <translation>1 bloc a demandé plus d’une tentative</translation>
    </message>
    <message>
        <source>%1 blocks needed more than one attempt</source>
        <translation>%1 blocs ont demandé plus d’une tentative</translation>
    </message>
    <message>
        <source>1 block was read with characters that are no hex digits</source>
        <translation>1 bloc a été lu avec des caractères qui ne sont pas des chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>%1 blocks were read with characters that are no hex digits</source>
        <translation>%1 blocs ont été lus avec des caractères qui ne sont pas des chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>1 block was different when it was read again</source>
        <translation>1 bloc était différent à la relecture</translation>
    </message>
    <message>
        <source>%1 blocks were different when they were read again</source>
        <translation>%1 blocs étaient différents à la relecture</translation>
    </message>
    <message>
        <source>%1, the first of them: %2. Check the cable, then repeat the operation.</source>
        <translation>%1&#xa0;; le premier&#xa0;: %2. Vérifiez le câble, puis recommencez l’opération.</translation>
    </message>
    <message>
        <source>Replies came late again and again, so that it cannot be told to which block each belongs. Check the cable and the receiver&apos;s battery, then read again.</source>
        <translation>Des réponses sont arrivées en retard à plusieurs reprises&#xa0;; on ne peut donc pas savoir à quel bloc chacune appartient. Vérifiez le câble et la batterie du récepteur, puis recommencez la lecture.</translation>
    </message>
    <message>
        <source>All was sent, but replies came late, so that an OK may have been another block&apos;s. Verify what the receiver holds, or repeat the write.</source>
        <translation>Tout a été envoyé, mais des réponses sont arrivées en retard&#xa0;; un OK peut donc être celui d’un autre bloc. Vérifiez le contenu du récepteur, ou recommencez l’écriture.</translation>
    </message>
    <message>
        <source>All was read, but not all of it could be read again to compare.</source>
        <translation>Tout a été lu, mais tout n’a pas pu être relu pour comparaison.</translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access to the device.</source>
        <translation>Demandez à l’administrateur de cet ordinateur l’accès au périphérique.</translation>
    </message>
    <message>
        <source>The group &quot;%1&quot; may use it. Add yourself with &quot;%2&quot;, then log out and in again.</source>
        <translation>Le groupe «&#xa0;%1&#xa0;» peut l’utiliser. Ajoutez-vous au groupe avec «&#xa0;%2&#xa0;», puis fermez la session et reconnectez-vous.</translation>
    </message>
    <message>
        <source>No serial port was found. Plug the adapter in and try again.</source>
        <translation>Aucun port série trouvé. Branchez l’adaptateur et réessayez.</translation>
    </message>
    <message>
        <source>Ports found: %1.</source>
        <translation>Ports trouvés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The receiver sent nothing.</source>
        <translation>Le récepteur n’a rien envoyé.</translation>
    </message>
    <message>
        <source>The reply was too short.</source>
        <translation>La réponse était trop courte.</translation>
    </message>
    <message>
        <source>The reply was garbled.</source>
        <translation>La réponse était altérée.</translation>
    </message>
    <message>
        <source>The receiver did not answer OK.</source>
        <translation>Le récepteur n’a pas répondu OK.</translation>
    </message>
    <message>
        <source>Another program uses the port. Close it and try again.</source>
        <translation>Un autre programme utilise le port. Fermez-le et réessayez.</translation>
    </message>
    <message>
        <source>Choose another port. %1</source>
        <translation>Choisissez un autre port. %1</translation>
    </message>
    <message>
        <source>Plug the adapter in again and repeat the operation.</source>
        <translation>Rebranchez l’adaptateur et recommencez l’opération.</translation>
    </message>
    <message>
        <source>Check the port and the cable, then repeat the operation.</source>
        <translation>Vérifiez le port et le câble, puis recommencez l’opération.</translation>
    </message>
    <message>
        <source>(no device)</source>
        <translation>(aucun périphérique)</translation>
    </message>
    <message>
        <source>the port failed</source>
        <translation>erreur du port</translation>
    </message>
    <message>
        <source>Block %1 was not asked for: replies had been missing, and then the line did not fall silent. Check the cable, and that nothing but the receiver is on the line.</source>
        <translation>Le bloc %1 n’a pas été demandé&#xa0;: des réponses avaient manqué, puis la ligne n’est pas redevenue silencieuse. Vérifiez le câble, et que seul le récepteur est sur la ligne.</translation>
    </message>
    <message>
        <source>one attempt</source>
        <translation>une tentative</translation>
    </message>
    <message>
        <source>%1 attempts</source>
        <translation>%1 tentatives</translation>
    </message>
    <message>
        <source>Check the cable, that the receiver is switched on and that it is in clone mode.</source>
        <translation>Vérifiez le câble, et que le récepteur est allumé et en mode clone.</translation>
    </message>
    <message>
        <source>Block %1 could not be written in %2. %3 %4</source>
        <translation>Le bloc %1 n’a pas pu être écrit en %2. %3 %4</translation>
    </message>
    <message>
        <source>Block %1 could not be read in %2. %3 %4</source>
        <translation>Le bloc %1 n’a pas pu être lu en %2. %3 %4</translation>
    </message>
    <message>
        <source>bank sizes</source>
        <translation>tailles de banque</translation>
    </message>
    <message>
        <source>enable flags</source>
        <translation>indicateurs d’activation</translation>
    </message>
    <message>
        <source>Bank links</source>
        <translation>Liens de banque</translation>
    </message>
    <message>
        <source>list of Search Pass channels</source>
        <translation>liste des canaux Search Pass</translation>
    </message>
    <message>
        <source>region presets</source>
        <translation>préréglages régionaux</translation>
    </message>
    <message>
        <source>Bank sizes %1 to %2</source>
        <translation>Tailles des banques %1 à %2</translation>
    </message>
    <message>
        <source>Enable flags of rows %1 to %2</source>
        <translation>Indicateurs d’activation des lignes %1 à %2</translation>
    </message>
    <message>
        <source>settings block</source>
        <translation>bloc de réglages</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>réglages</translation>
    </message>
    <message>
        <source>Settings %1</source>
        <translation>Réglages %1</translation>
    </message>
    <message>
        <source>settings %1</source>
        <translation>réglages %1</translation>
    </message>
    <message>
        <source>bank size block</source>
        <translation>bloc des tailles de banque</translation>
    </message>
    <message>
        <source>enable flag block</source>
        <translation>bloc d’indicateurs d’activation</translation>
    </message>
    <message>
        <source>Search Pass list block</source>
        <translation>bloc de la liste Search Pass</translation>
    </message>
    <message>
        <source>Search Pass list</source>
        <translation>liste Search Pass</translation>
    </message>
    <message>
        <source>Search Pass list %1</source>
        <translation>Liste Search Pass %1</translation>
    </message>
    <message>
        <source>region preset</source>
        <translation>préréglage régional</translation>
    </message>
    <message>
        <source>VFO band</source>
        <translation>bande VFO</translation>
    </message>
    <message>
        <source>VFO bands</source>
        <translation>Bandes VFO</translation>
    </message>
    <message>
        <source>VFO %1</source>
        <translation>VFO %1</translation>
    </message>
    <message>
        <source>row</source>
        <translation>ligne</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>lignes</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Sauter</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>The backup could not be made, so nothing was written.</source>
        <translation>La sauvegarde n’a pas pu être faite&#xa0;; rien n’a donc été écrit.</translation>
    </message>
    <message>
        <source>All was written, but not all of it could be verified.</source>
        <translation>Tout a été écrit, mais tout n’a pas pu être vérifié.</translation>
    </message>
    <message>
        <source>The receiver is an %1, and what is to be written is for an %2.</source>
        <translation>Le récepteur est un %1, mais les données à écrire sont pour un %2.</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <translation>%1 %2 à %3</translation>
    </message>
    <message>
        <source>Sent: nothing.</source>
        <translation>Envoyé&#xa0;: rien.</translation>
    </message>
    <message>
        <source>Sent: %1.</source>
        <translation>Envoyé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Refused: %1 (may hold its old or its new contents).</source>
        <translation>Refusé&#xa0;: %1 (le contenu peut être l’ancien ou le nouveau).</translation>
    </message>
    <message>
        <source>Without an answer: %1 (may hold its old or its new contents).</source>
        <translation>Sans réponse&#xa0;: %1 (le contenu peut être l’ancien ou le nouveau).</translation>
    </message>
    <message>
        <source>Not sent: %1.</source>
        <translation>Non envoyé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Repeating the write completes it.</source>
        <translation>Pour tout compléter, recommencez l’écriture.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Bank %1</source>
        <translation>Banque %1</translation>
    </message>
    <message>
        <source>Channels in no bank</source>
        <translation>Canaux hors banque</translation>
    </message>
    <message>
        <source>Bank %1 size</source>
        <translation>Taille de la banque %1</translation>
    </message>
    <message>
        <source>Link flag %1 link</source>
        <translation>Lien de l’indicateur %1</translation>
    </message>
    <message>
        <source>Bank %1 size: %2</source>
        <translation>Taille de la banque %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Move channels with their banks</source>
        <translation>Déplacer les canaux avec leurs banques</translation>
    </message>
    <message>
        <source>Link bank %1</source>
        <translation>Lier la banque %1</translation>
    </message>
    <message>
        <source>Unlink bank %1</source>
        <translation>Délier la banque %1</translation>
    </message>
    <message>
        <source>The receiver takes 0.1 to 1299.995 MHz.</source>
        <translation>Le récepteur accepte de 0.1 à 1299.995 MHz.</translation>
    </message>
    <message>
        <source>It is a frequency of the cellular phone, which this model refuses.</source>
        <translation>C’est une fréquence de téléphonie cellulaire, que ce modèle refuse.</translation>
    </message>
    <message>
        <source>Another Search Pass channel has the same frequency.</source>
        <translation>Un autre canal Search Pass a la même fréquence.</translation>
    </message>
    <message>
        <source>Cut (%1)</source>
        <translation>Couper (%1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Paste Special</source>
        <translation>Collage spécial</translation>
    </message>
    <message>
        <source>Fill Down</source>
        <translation>Recopier vers le bas</translation>
    </message>
    <message>
        <source>Fill Series</source>
        <translation>Remplir une série</translation>
    </message>
    <message>
        <source>Take from %1 (%2)</source>
        <translation>Reprendre depuis %1 (%2)</translation>
    </message>
    <message>
        <source>Moved: there at %1</source>
        <translation>Déplacé&#xa0;: là-bas en %1</translation>
    </message>
    <message>
        <source>Only here</source>
        <translation>Seulement ici</translation>
    </message>
    <message>
        <source>Moved: the one there is at %1 here</source>
        <translation>Déplacé&#xa0;: celui de là-bas est ici en %1</translation>
    </message>
    <message>
        <source>the one there is at %1 here</source>
        <translation>celui de là-bas est ici en %1</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>Seulement là-bas</translation>
    </message>
    <message>
        <source>%1, %2 differences</source>
        <translation>%1, %2 différences</translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation>%1 différences</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>%1 (off)</source>
        <translation>%1 (désactivé)</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>Hors banque</translation>
    </message>
    <message>
        <source>Not in the receiver</source>
        <translation>Hors récepteur</translation>
    </message>
    <message>
        <source>Bank layout</source>
        <translation>Organisation des banques</translation>
    </message>
    <message>
        <source>FM, AM or WFM</source>
        <translation>FM, AM ou WFM</translation>
    </message>
    <message>
        <source>a step of the receiver, such as 12.5KHz</source>
        <translation>un pas du récepteur, comme 12.5KHz</translation>
    </message>
    <message>
        <source>OFF, SCRT, Carrier, Tone or Rev.</source>
        <translation>OFF, SCRT, Carrier, Tone ou Rev.</translation>
    </message>
    <message>
        <source>0 to 16</source>
        <translation>0 à 16</translation>
    </message>
    <message>
        <source>300Hz to 3000Hz or JR</source>
        <translation>300Hz à 3000Hz ou JR</translation>
    </message>
    <message>
        <source>a CTCSS tone, such as 88.5Hz</source>
        <translation>une tonalité CTCSS, comme 88.5Hz</translation>
    </message>
    <message>
        <source>OFF, + or -</source>
        <translation>OFF, + ou -</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;: it is %3</source>
        <translation>%1 «&#xa0;%2&#xa0;»&#xa0;: il faut %3</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on ou off</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of MHz, such as 145.5</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre de MHz, comme 145.5</translation>
    </message>
    <message>
        <source>the %1 has no secret code</source>
        <translation>le %1 n’a pas de code secret</translation>
    </message>
    <message>
        <source>the %1 has no carrier</source>
        <translation>le %1 n’a pas de porteuse</translation>
    </message>
    <message>
        <source>This VFO band takes %1.</source>
        <translation>Cette bande VFO accepte %1.</translation>
    </message>
    <message>
        <source>a VFO band has no note</source>
        <translation>une bande VFO n’a pas de champ note</translation>
    </message>
    <message>
        <source>a VFO band has no skip</source>
        <translation>une bande VFO n’a pas de champ skip</translation>
    </message>
    <message>
        <source>a VFO band has no enabled</source>
        <translation>une bande VFO n’a pas de champ enabled</translation>
    </message>
    <message>
        <source>Offsets are below 100 MHz.</source>
        <translation>Les décalages sont inférieurs à 100 MHz.</translation>
    </message>
    <message>
        <source>the editor has no step %1</source>
        <translation>l’éditeur ne propose pas le pas %1</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no FIELD=VALUE, such as mode=AM</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas de la forme FIELD=VALUE, comme mode=AM</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no field; it is %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un champ&#xa0;; il faut %2</translation>
    </message>
    <message>
        <source>the model region does not have it</source>
        <translation>la région du modèle n’en dispose pas</translation>
    </message>
    <message>
        <source>the series ends at 0</source>
        <translation>la série s’arrête à 0</translation>
    </message>
    <message>
        <source>Show the operation buttons</source>
        <translation>Afficher les boutons d’opération</translation>
    </message>
    <message>
        <source>Hide the operation buttons</source>
        <translation>Masquer les boutons d’opération</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>Édition (%1)</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 canaux</translation>
    </message>
    <message>
        <source>%1  CH %2</source>
        <translation>%1  CH %2</translation>
    </message>
    <message>
        <source>Band %1</source>
        <translation>Bande %1</translation>
    </message>
    <message>
        <source>CH %1</source>
        <translation>CH %1</translation>
    </message>
    <message>
        <source>Modify (%1, %2 channels)</source>
        <translation>Modifier (%1, %2 canaux)</translation>
    </message>
    <message>
        <source>Modify (%1)</source>
        <translation>Modifier (%1)</translation>
    </message>
    <message>
        <source>%1 CH %2</source>
        <translation>%1 CH %2</translation>
    </message>
    <message>
        <source>Move (%1)</source>
        <translation>Déplacer (%1)</translation>
    </message>
    <message>
        <source>Every row of %1 from here on holds a channel or a note. Clear one, or make the bank larger on the Bank page.</source>
        <translation>%1&#xa0;: à partir d’ici, toutes les lignes contiennent un canal ou une note. Effacez-en une, ou agrandissez la banque sur la page Banque.</translation>
    </message>
    <message>
        <source>Insert Row (%1)</source>
        <translation>Insérer une ligne (%1)</translation>
    </message>
    <message>
        <source>Delete Row (%1)</source>
        <translation>Supprimer la ligne (%1)</translation>
    </message>
    <message>
        <source>Move to %1 (%2)</source>
        <translation>Déplacer vers %1 (%2)</translation>
    </message>
    <message>
        <source>Copy to %1 (%2)</source>
        <translation>Copier vers %1 (%2)</translation>
    </message>
    <message>
        <source>Sort by Frequency (%1)</source>
        <translation>Trier par fréquence (%1)</translation>
    </message>
    <message>
        <source>Sort by Note (%1)</source>
        <translation>Trier par note (%1)</translation>
    </message>
    <message>
        <source>Sort by Mode (%1)</source>
        <translation>Trier par mode (%1)</translation>
    </message>
    <message>
        <source>there is no memory row &quot;%1&quot;</source>
        <translation>il n’y a pas de ligne mémoire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the list names no row for it</source>
        <translation>la liste n’indique pas de ligne de destination</translation>
    </message>
    <message>
        <source>there is no channel &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>il n’y a pas de canal «&#xa0;%1&#xa0;» dans «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the row holds no channel, and no frequency comes</source>
        <translation>la ligne ne contient pas de canal, et aucune fréquence n’est fournie</translation>
    </message>
    <message>
        <source>there is no row left for it</source>
        <translation>il ne reste plus de ligne de destination</translation>
    </message>
    <message>
        <source>the list names this row twice</source>
        <translation>la liste indique cette ligne deux fois</translation>
    </message>
    <message>
        <source>Rows that are written: %1</source>
        <translation>Lignes écrites&#xa0;: %1</translation>
    </message>
    <message>
        <source>Rows that are written: %1, of which 1 holds a channel now</source>
        <translation>Lignes écrites&#xa0;: %1, dont 1 contient déjà un canal</translation>
    </message>
    <message>
        <source>Rows that are written: %1, of which %2 hold a channel now</source>
        <translation>Lignes écrites&#xa0;: %1, dont %2 contiennent déjà un canal</translation>
    </message>
    <message>
        <source>%1; refused: %2</source>
        <translation>%1&#xa0;; refusées&#xa0;: %2</translation>
    </message>
    <message>
        <source>0.1 to 1299.995 MHz</source>
        <translation>0.1 à 1299.995 MHz</translation>
    </message>
    <message>
        <source>%1: it is all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority, vfo, settings, banks, or a condition such as mode=AM, freq:118..137 or note~airport</source>
        <translation>%1&#xa0;: il faut all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority, vfo, settings, banks, ou une condition comme mode=AM, freq:118..137 ou note~airport</translation>
    </message>
    <message>
        <source>%1: its channels are %2 to %3</source>
        <translation>%1&#xa0;: ses canaux vont de %2 à %3</translation>
    </message>
    <message>
        <source>%1: memory rows are 0 to %2</source>
        <translation>%1&#xa0;: les lignes mémoire vont de 0 à %2</translation>
    </message>
    <message>
        <source>a condition chooses memory rows; vfo, settings and banks cannot stand beside it</source>
        <translation>une condition choisit des lignes mémoire&#xa0;; vfo, settings et banks ne peuvent pas l’accompagner</translation>
    </message>
    <message>
        <source>%1: VFO rows are 0 to %2</source>
        <translation>%1&#xa0;: les lignes VFO vont de 0 à %2</translation>
    </message>
    <message>
        <source>%1: banks are 0 to 49, as in bank:3, bank:0-4 or bank:2/5-9</source>
        <translation>%1&#xa0;: les banques vont de 0 à 49, comme dans bank:3, bank:0-4 ou bank:2/5-9</translation>
    </message>
    <message>
        <source>%1: channels of a bank count from 0, as in bank:2/5-9</source>
        <translation>%1&#xa0;: les canaux d’une banque se comptent à partir de 0, comme dans bank:2/5-9</translation>
    </message>
    <message>
        <source>%1: &quot;~&quot; looks for a text in the note, as in note~airport</source>
        <translation>%1&#xa0;: «&#xa0;~&#xa0;» cherche un texte dans la note, comme dans note~airport</translation>
    </message>
    <message>
        <source>%1: write it with &quot;=&quot;, as in mode=AM</source>
        <translation>%1&#xa0;: écrivez avec «&#xa0;=&#xa0;», comme dans mode=AM</translation>
    </message>
    <message>
        <source>%1: the lower end comes first</source>
        <translation>%1&#xa0;: la limite inférieure vient en premier</translation>
    </message>
    <message>
        <source>bank %1 has %2 channel</source>
        <translation>la banque %1 a %2 canal</translation>
    </message>
    <message>
        <source>bank %1 has %2 channels</source>
        <translation>la banque %1 a %2 canaux</translation>
    </message>
    <message>
        <source>This clears %1, %2.</source>
        <translation>Effacement&#xa0;: %1, %2.</translation>
    </message>
    <message>
        <source>This clears %1.</source>
        <translation>Effacement&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>This deletes %1, %2.</source>
        <translation>Suppression&#xa0;: %1, %2.</translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation>Supprimer (%1)</translation>
    </message>
    <message>
        <source>Insert (%1)</source>
        <translation>Insérer (%1)</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Désactiver</translation>
    </message>
    <message>
        <source>Enable All</source>
        <translation>Tout activer</translation>
    </message>
    <message>
        <source>Disable All</source>
        <translation>Tout désactiver</translation>
    </message>
    <message>
        <source>%1, channel %2</source>
        <translation>%1, canal %2</translation>
    </message>
    <message>
        <source>memory row %1 (%2)</source>
        <translation>ligne mémoire %1 (%2)</translation>
    </message>
    <message>
        <source>memory row %1 (in no bank)</source>
        <translation>ligne mémoire %1 (hors banque)</translation>
    </message>
    <message>
        <source>memory row %1 (not in the receiver)</source>
        <translation>ligne mémoire %1 (hors récepteur)</translation>
    </message>
    <message>
        <source>Row %1 (no bank)</source>
        <translation>Ligne %1 (hors banque)</translation>
    </message>
    <message>
        <source>Row %1 (%2)</source>
        <translation>Ligne %1 (%2)</translation>
    </message>
    <message>
        <source>%1, 1 channel</source>
        <translation>%1, 1 canal</translation>
    </message>
    <message>
        <source>%1, %2 channels</source>
        <translation>%1, %2 canaux</translation>
    </message>
    <message>
        <source>%1, the one channel shown of %2</source>
        <translation>%1, le seul canal affiché sur %2</translation>
    </message>
    <message>
        <source>%1, the %2 channels shown of %3</source>
        <translation>%1, les %2 canaux affichés sur %3</translation>
    </message>
    <message>
        <source>which is empty</source>
        <translation>qui est vide</translation>
    </message>
    <message>
        <source>No row moved</source>
        <translation>Aucune ligne décalée</translation>
    </message>
    <message>
        <source>row %1 was empty, so nothing is lost</source>
        <translation>la ligne %1 était vide, rien n’est donc perdu</translation>
    </message>
    <message>
        <source>lost: %1 MHz in row %2 (in no bank)</source>
        <translation>perdu&#xa0;: %1 MHz à la ligne %2 (hors banque)</translation>
    </message>
    <message>
        <source>lost: %1 MHz in row %2 (%3)</source>
        <translation>perdu&#xa0;: %1 MHz à la ligne %2 (%3)</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation>%1&#xa0;; %2.</translation>
    </message>
    <message>
        <source>Row %1 moved down</source>
        <translation>Ligne %1 décalée vers le bas</translation>
    </message>
    <message>
        <source>Rows %1 to %2 moved down</source>
        <translation>Lignes %1 à %2 décalées vers le bas</translation>
    </message>
    <message>
        <source>Row %1 moved up</source>
        <translation>Ligne %1 décalée vers le haut</translation>
    </message>
    <message>
        <source>Rows %1 to %2 moved up</source>
        <translation>Lignes %1 à %2 décalées vers le haut</translation>
    </message>
    <message>
        <source>The pages could not be made; there may be too little memory.</source>
        <translation>Les pages n’ont pas pu être créées&#xa0;; la mémoire est peut-être insuffisante.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>5sec</source>
        <translation>5sec</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Busy Scan</source>
        <translation>Sur occupation</translation>
    </message>
    <message>
        <source>Timer Scan</source>
        <translation>Temporisé</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Appui</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Bascule</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Moniteur</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Operating Mode</source>
        <translation>Mode de fonctionnement</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Squelch</source>
        <translation>Squelch</translation>
    </message>
    <message>
        <source>Scan Mode</source>
        <translation>Mode de balayage</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Auto Power Off (minutes)</source>
        <translation>Arrêt automatique (minutes)</translation>
    </message>
    <message>
        <source>Bug Sensitive Level</source>
        <translation>Sensibilité micros espions</translation>
    </message>
    <message>
        <source>MONI Key Function</source>
        <translation>Fonction de la touche MONI</translation>
    </message>
    <message>
        <source>MONI Key</source>
        <translation>Touche MONI</translation>
    </message>
    <message>
        <source>Battery Save</source>
        <translation>Économie de batterie</translation>
    </message>
    <message>
        <source>Keylock</source>
        <translation>Verrouillage touches</translation>
    </message>
    <message>
        <source>Write Protect</source>
        <translation>Protection en écriture</translation>
    </message>
    <message>
        <source>Beep</source>
        <translation>Bip</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Sonnerie</translation>
    </message>
    <message>
        <source>Attenuator</source>
        <translation>Atténuateur</translation>
    </message>
    <message>
        <source>Auto Step</source>
        <translation>Pas automatique</translation>
    </message>
    <message>
        <source>Earphone Antenna</source>
        <translation>Antenne écouteur</translation>
    </message>
    <message>
        <source>SW bar antenna</source>
        <translation>Antenne ferrite SW</translation>
    </message>
    <message>
        <source>AM bar antenna</source>
        <translation>Antenne ferrite AM</translation>
    </message>
    <message>
        <source>VFO</source>
        <translation>VFO</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>No bank</source>
        <translation>Hors banque</translation>
    </message>
    <message>
        <source>Not in receiver</source>
        <translation>Hors récepteur</translation>
    </message>
    <message>
        <source>COM Port Error</source>
        <translation>Erreur de port COM</translation>
    </message>
    <message>
        <source>Communication Error</source>
        <translation>Erreur de communication</translation>
    </message>
    <message>
        <source>Data Error</source>
        <translation>Erreur de données</translation>
    </message>
    <message>
        <source>File Open Error</source>
        <translation>Erreur d’ouverture de fichier</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERREUR</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1&#xa0;; %2</translation>
    </message>
    <message>
        <source>Nothing to change in %1</source>
        <translation>Rien à modifier dans %1</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Opération non permise</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Est un dossier</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Système de fichiers en lecture seule</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Plus d&apos;espace sur le disque</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Quota de disque dépassé</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Fichier trop volumineux</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Erreur d&apos;entrée/sortie</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Nom de fichier trop long</translation>
    </message>
</context>
<context>
    <name>MessageDialogs</name>
    <message>
        <source>Tervan RQ-M5 Clone Files (*.RQ5);;All Files (*.*)</source>
        <translation>Fichiers clone Tervan RQ-M5 (*.RQ5);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*.*)</source>
        <translation>Fichiers CSV (*.csv);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf);;All Files (*.*)</source>
        <translation>Fichiers PDF (*.pdf);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Text Files (*.txt);;All Files (*.*)</source>
        <translation>Fichiers texte (*.txt);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;All Files (*.*)</source>
        <translation>Images (*.png *.svg);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>Exporter une liste</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>Save as Text</source>
        <translation>Enregistrer en texte</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>&amp;Copy Command</source>
        <translation>&amp;Copier la commande</translation>
    </message>
</context>
<context>
    <name>Modify</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>Porteuse</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Tonalité</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inverse</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Modulation Mode</source>
        <translation>Mode de modulation</translation>
    </message>
    <message>
        <source>Tuning Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Décalage</translation>
    </message>
</context>
<context>
    <name>Parts</name>
    <message>
        <source>&amp;Frequency</source>
        <translation>&amp;Fréquence</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Mode</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation>&amp;Pas</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;Option</translation>
    </message>
    <message>
        <source>Secret &amp;code</source>
        <translation>Code &amp;secret</translation>
    </message>
    <message>
        <source>T&amp;rain tone</source>
        <translation>Tonalité t&amp;rain</translation>
    </message>
    <message>
        <source>CTCSS &amp;tone</source>
        <translation>Tonalité &amp;CTCSS</translation>
    </message>
    <message>
        <source>S&amp;hift</source>
        <translation>&amp;Décalage</translation>
    </message>
    <message>
        <source>Shift fre&amp;quency</source>
        <translation>&amp;Valeur du décalage</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Note</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Sau&amp;ter</translation>
    </message>
    <message>
        <source>&amp;Enabled</source>
        <translation>&amp;Activé</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Affiche l’aide sur les options de la ligne de commande.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Affiche l’aide, y compris les options propres à Qt.</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Affiche la version.</translation>
    </message>
</context>
<context>
    <name>QPrintPreviewDialog</name>
    <message>
        <source>Page setup</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
</context>
<context>
    <name>QSerialPort</name>
    <message>
        <source>Permission error while locking the device</source>
        <translation>impossible de verrouiller le périphérique</translation>
    </message>
    <message>
        <source>Permission error while creating lock file</source>
        <translation>impossible de créer le fichier de verrouillage</translation>
    </message>
    <message>
        <source>Error reading from device</source>
        <translation>erreur de lecture du périphérique</translation>
    </message>
    <message>
        <source>Error writing to device</source>
        <translation>erreur d’écriture sur le périphérique</translation>
    </message>
    <message>
        <source>Operation timed out</source>
        <translation>délai dépassé</translation>
    </message>
    <message>
        <source>Unsupported open mode</source>
        <translation>mode d’ouverture non pris en charge</translation>
    </message>
</context>
<context>
    <name>SavePrompts</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file was removed or renamed by another program.</source>
        <translation>Le fichier a été supprimé ou renommé par un autre programme.</translation>
    </message>
    <message>
        <source>Overwrite makes a file of this name again.</source>
        <translation>«&#xa0;Remplacer&#xa0;» recrée un fichier de ce nom.</translation>
    </message>
    <message>
        <source>The file was changed by another program.</source>
        <translation>Le fichier a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>Overwrite puts your version in its place, and what the other program saved is lost. Save As keeps both.</source>
        <translation>«&#xa0;Remplacer&#xa0;» met votre version à sa place, et ce que l’autre programme a enregistré est perdu. «&#xa0;Enregistrer sous&#xa0;» conserve les deux.</translation>
    </message>
    <message>
        <source>The file has more than one name.</source>
        <translation>Le fichier a plusieurs noms.</translation>
    </message>
    <message>
        <source>File: %1
It is one of %2 names (hard links) of the same file. A save gives this name a file of its own; the others keep the old contents.</source>
        <translation>Fichier&#xa0;: %1
C’est l’un des %2 noms (liens physiques) d’un même fichier. L’enregistrement donne à ce nom son propre fichier&#xa0;; les autres gardent l’ancien contenu.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Réparer</translation>
    </message>
    <message>
        <source>These notes keep the file from being opened.</source>
        <translation>Ces notes empêchent l’ouverture du fichier.</translation>
    </message>
    <message>
        <source>Commas become semicolons, quotes apostrophes:
%1

In Place keeps the old file as %2.</source>
        <translation>Les virgules deviennent des points-virgules, les guillemets des apostrophes&#xa0;:
%1

«&#xa0;Sur place&#xa0;» conserve l’ancien fichier sous le nom %2.</translation>
    </message>
    <message>
        <source>In Place</source>
        <translation>Sur place</translation>
    </message>
    <message>
        <source>%1 was no clone file; what it was is kept as %2.</source>
        <translation>%1 n’était pas un fichier clone&#xa0;; son ancien contenu est conservé dans %2.</translation>
    </message>
    <message>
        <source>Saved, but a clone file cannot hold these values; they read back otherwise: %1.</source>
        <translation>Enregistré, mais un fichier clone ne peut pas contenir ces valeurs&#xa0;; à la relecture, elles seront différentes&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Saved, but not all that belonged to the old file could be kept: %1.</source>
        <translation>Enregistré, mais tout ce qui appartenait à l’ancien fichier n’a pas pu être conservé&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>VFO</source>
        <translation>VFO</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>Busy Scan</source>
        <translation>Sur occupation</translation>
    </message>
    <message>
        <source>Timer Scan</source>
        <translation>Temporisé</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>The receiver&apos;s model region: its bands, limits and presets</source>
        <translation>Région du modèle&#xa0;: elle fixe les bandes, les limites et les préréglages du récepteur</translation>
    </message>
    <message>
        <source>Operating Mode</source>
        <translation>Mode de fonctionnement</translation>
    </message>
    <message>
        <source>What the receiver tunes with</source>
        <translation>Ce sur quoi le récepteur s’accorde&#xa0;: VFO, mémoires ou préréglages</translation>
    </message>
    <message>
        <source>Scan Mode</source>
        <translation>Mode de balayage</translation>
    </message>
    <message>
        <source>When a scan that has stopped on a signal goes on</source>
        <translation>Quand le balayage repart après s’être arrêté sur un signal</translation>
    </message>
    <message>
        <source>V&amp;olume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message>
        <source>Volume, 0 to 50</source>
        <translation>Volume, de 0 à 50</translation>
    </message>
    <message>
        <source>S&amp;quelch</source>
        <translation>S&amp;quelch</translation>
    </message>
    <message>
        <source>Squelch, 0 to 9</source>
        <translation>Squelch, de 0 à 9</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>5sec</source>
        <translation>5sec</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>30</source>
        <translation>30</translation>
    </message>
    <message>
        <source>60</source>
        <translation>60</translation>
    </message>
    <message>
        <source>90</source>
        <translation>90</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Appui</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Bascule</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Moniteur</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>How long the display stays lit</source>
        <translation>Durée d’éclairage de l’afficheur</translation>
    </message>
    <message>
        <source>Auto Power Off (minutes)</source>
        <translation>Arrêt automatique (minutes)</translation>
    </message>
    <message>
        <source>After how many minutes without use the receiver switches itself off</source>
        <translation>Nombre de minutes sans utilisation avant que le récepteur s’éteigne</translation>
    </message>
    <message>
        <source>Bug Sensitive Level</source>
        <translation>Sensibilité micros espions</translation>
    </message>
    <message>
        <source>How sensitive the search for hidden transmitters is</source>
        <translation>Sensibilité de la recherche d’émetteurs cachés</translation>
    </message>
    <message>
        <source>MONI Key Function</source>
        <translation>Fonction de la touche MONI</translation>
    </message>
    <message>
        <source>Whether the MONI key works while it is pushed or until it is pushed again</source>
        <translation>La touche MONI agit tant qu’elle est enfoncée, ou jusqu’à l’appui suivant</translation>
    </message>
    <message>
        <source>MONI Key</source>
        <translation>Touche MONI</translation>
    </message>
    <message>
        <source>What the MONI key does</source>
        <translation>Ce que fait la touche MONI</translation>
    </message>
    <message>
        <source>Power and keys</source>
        <translation>Alimentation et touches</translation>
    </message>
    <message>
        <source>Batter&amp;y Save</source>
        <translation>Économie de &amp;batterie</translation>
    </message>
    <message>
        <source>Save the battery while no signal is received</source>
        <translation>Économiser la batterie tant qu’aucun signal n’est reçu</translation>
    </message>
    <message>
        <source>&amp;Keylock</source>
        <translation>Verrouillage touc&amp;hes</translation>
    </message>
    <message>
        <source>Lock the receiver&apos;s keys</source>
        <translation>Verrouiller les touches du récepteur</translation>
    </message>
    <message>
        <source>Write &amp;Protect</source>
        <translation>&amp;Protection en écriture</translation>
    </message>
    <message>
        <source>Protect the receiver&apos;s memory channels from being overwritten on its keys</source>
        <translation>Empêcher d’écraser les canaux mémoire depuis les touches du récepteur</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>&amp;Beep</source>
        <translation>B&amp;ip</translation>
    </message>
    <message>
        <source>Beep when a key is pressed</source>
        <translation>Bip à chaque appui sur une touche</translation>
    </message>
    <message>
        <source>Be&amp;ll</source>
        <translation>So&amp;nnerie</translation>
    </message>
    <message>
        <source>Ring when a signal comes in</source>
        <translation>Sonner à l’arrivée d’un signal</translation>
    </message>
    <message>
        <source>Reception</source>
        <translation>Réception</translation>
    </message>
    <message>
        <source>Atten&amp;uator</source>
        <translation>A&amp;tténuateur</translation>
    </message>
    <message>
        <source>Weaken strong signals</source>
        <translation>Affaiblir les signaux forts</translation>
    </message>
    <message>
        <source>Aut&amp;o Step</source>
        <translation>Pas a&amp;utomatique</translation>
    </message>
    <message>
        <source>Let the receiver choose the tuning step of a band</source>
        <translation>Laisser le récepteur choisir le pas de chaque bande</translation>
    </message>
    <message>
        <source>Antennas</source>
        <translation>Antennes</translation>
    </message>
    <message>
        <source>Earphone &amp;Antenna</source>
        <translation>Antenne écout&amp;eur</translation>
    </message>
    <message>
        <source>Use the cord of the earphone as antenna</source>
        <translation>Utiliser le cordon de l’écouteur comme antenne</translation>
    </message>
    <message>
        <source>&amp;SW bar antenna</source>
        <translation>Antenne ferrite S&amp;W</translation>
    </message>
    <message>
        <source>Use the built-in bar antenna on short wave</source>
        <translation>Utiliser l’antenne ferrite intégrée en ondes courtes</translation>
    </message>
    <message>
        <source>A&amp;M bar antenna</source>
        <translation>Antenne ferrite A&amp;M</translation>
    </message>
    <message>
        <source>Use the built-in bar antenna on medium wave</source>
        <translation>Utiliser l’antenne ferrite intégrée en ondes moyennes</translation>
    </message>
</context>
<context>
    <name>Spectrum</name>
    <message>
        <source>VFO %1</source>
        <translation>VFO %1</translation>
    </message>
    <message>
        <source>No channels</source>
        <translation>Aucun canal</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>stored twice</source>
        <translation>en double</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>bloqué</translation>
    </message>
</context>
<context>
    <name>TransferProgress</name>
    <message>
        <source>Reading settings and VFO bands</source>
        <translation>Lecture des réglages et des bandes VFO</translation>
    </message>
    <message>
        <source>Reading banks and flags</source>
        <translation>Lecture des banques et des indicateurs</translation>
    </message>
    <message>
        <source>Reading channels</source>
        <translation>Lecture des canaux</translation>
    </message>
    <message>
        <source>Reading again to compare</source>
        <translation>Relecture pour comparaison</translation>
    </message>
    <message>
        <source>Backup of settings and VFO bands</source>
        <translation>Sauvegarde des réglages et des bandes VFO</translation>
    </message>
    <message>
        <source>Backup of banks and flags</source>
        <translation>Sauvegarde des banques et des indicateurs</translation>
    </message>
    <message>
        <source>Backup of channels</source>
        <translation>Sauvegarde des canaux</translation>
    </message>
    <message>
        <source>Writing settings and VFO bands</source>
        <translation>Écriture des réglages et des bandes VFO</translation>
    </message>
    <message>
        <source>Writing banks and flags</source>
        <translation>Écriture des banques et des indicateurs</translation>
    </message>
    <message>
        <source>Writing channels</source>
        <translation>Écriture des canaux</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>Reading what is not known</source>
        <translation>Lecture de ce qui n’est pas connu</translation>
    </message>
    <message>
        <source>Reading what is replaced</source>
        <translation>Lecture de ce qui sera remplacé</translation>
    </message>
    <message>
        <source>Writing changes</source>
        <translation>Écriture des modifications</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1&#xa0;: %2 sur %3</translation>
    </message>
    <message>
        <source>%1, about %2 left</source>
        <translation>%1, reste environ %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Reads, edits and writes the memory of an RQ-M5 receiver.</source>
        <translation>Lit, modifie et écrit la mémoire d’un récepteur RQ-M5.</translation>
    </message>
    <message>
        <source>Clone file to open.</source>
        <translation>Fichier clone à ouvrir.</translation>
    </message>
</context>
<context>
    <name>rqm5::BackupCommands</name>
    <message>
        <source>Write</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Write this backup to the receiver?</source>
        <translation>Écrire cette sauvegarde dans le récepteur&#xa0;?</translation>
    </message>
    <message>
        <source>%1
It replaces in the receiver: %2. The open image stays as it is.</source>
        <translation>%1
Elle remplace dans le récepteur&#xa0;: %2. L’image ouverte reste inchangée.</translation>
    </message>
</context>
<context>
    <name>rqm5::BankList</name>
    <message>
        <source>The group of channels that the table shows and a transfer moves</source>
        <translation>Groupe de canaux affiché dans le tableau et transféré</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>rqm5::BankMoveOffer</name>
    <message>
        <source>&amp;Leave the rows where they are</source>
        <translation>La&amp;isser les lignes en place</translation>
    </message>
    <message>
        <source>Nothing moves; the channels named here belong to other banks now</source>
        <translation>Rien ne bouge&#xa0;; les canaux nommés ici appartiennent désormais à d’autres banques</translation>
    </message>
    <message>
        <source>&amp;Move the channels so that every bank keeps its own</source>
        <translation>Dé&amp;placer les canaux pour que chaque banque garde les siens</translation>
    </message>
    <message>
        <source>What a smaller bank has no room for goes behind all banks; a larger one gets empty rows</source>
        <translation>Ce qui ne tient plus dans une banque réduite passe derrière toutes les banques&#xa0;; une banque agrandie reçoit des lignes vides</translation>
    </message>
    <message>
        <source>Channels that change their bank with these sizes: %1. Others that change their number: %2.</source>
        <translation>Canaux qui changent de banque avec ces tailles&#xa0;: %1. Autres canaux qui changent de numéro&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>rqm5::BankPage</name>
    <message>
        <source>Number of channels in bank %1; all banks together hold 1000 at most</source>
        <translation>Nombre de canaux de la banque %1&#xa0;; 1000 au plus pour toutes les banques</translation>
    </message>
    <message>
        <source>Link bank %1</source>
        <translation>Lier la banque %1</translation>
    </message>
    <message>
        <source>Scan bank %1 together with the other linked banks</source>
        <translation>Balayer la banque %1 avec les autres banques liées</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Read Ban&amp;k</source>
        <translation>Lire les &amp;banques</translation>
    </message>
    <message>
        <source>Write &amp;Bank</source>
        <translation>Éc&amp;rire les banques</translation>
    </message>
    <message>
        <source>Read bank sizes and links from the receiver</source>
        <translation>Lire les tailles et les liens des banques depuis le récepteur</translation>
    </message>
    <message>
        <source>Write bank sizes and links to the receiver</source>
        <translation>Écrire les tailles et les liens des banques dans le récepteur</translation>
    </message>
    <message>
        <source>Channels in all banks (1000 at most):</source>
        <translation>Canaux des banques (max. 1000)&#xa0;:</translation>
    </message>
    <message>
        <source>In no bank: %1 rows, %2 with a channel</source>
        <translation>Hors banque&#xa0;: %1 lignes, dont %2 occupées</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERREUR</translation>
    </message>
    <message>
        <source>The total of the number of channels exceeds 1000.
Please set for the total of the channel to become 1000 or less.</source>
        <translation>Le nombre total de canaux dépasse 1000.
Choisissez des tailles dont le total ne dépasse pas 1000.</translation>
    </message>
</context>
<context>
    <name>rqm5::BankStrip</name>
    <message>
        <source>What of each bank holds channels; a click goes to the bank&apos;s size</source>
        <translation>Part de chaque banque occupée par des canaux&#xa0;; un clic mène à la taille de la banque</translation>
    </message>
    <message>
        <source>All banks: %1 of %2 rows hold a channel, %3 rows are in no bank</source>
        <translation>Toutes les banques&#xa0;: %1 lignes sur %2 contiennent un canal, %3 lignes sont hors banque</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>Hors banque</translation>
    </message>
    <message>
        <source>%1: %2 of %3 rows hold a channel</source>
        <translation>%1&#xa0;: %2 lignes sur %3 contiennent un canal</translation>
    </message>
    <message>
        <source>no bank</source>
        <translation>hors banque</translation>
    </message>
</context>
<context>
    <name>rqm5::ChangeCommands</name>
    <message>
        <source>Write Changes</source>
        <translation>Écrire les modifications</translation>
    </message>
    <message>
        <source>What the receiver holds must be read first.</source>
        <translation>Il faut d’abord lire le contenu du récepteur.</translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation>&amp;Lire</translation>
    </message>
    <message>
        <source>Enable flags of other rows replaced by the receiver&apos;s: %1.</source>
        <translation>Indicateurs d’activation d’autres lignes remplacés par ceux du récepteur&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>rqm5::ChannelTable</name>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Sauter</translation>
    </message>
    <message>
        <source>Scrt</source>
        <translation>Scrt</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>Porteuse</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Tonalité</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>ShiftFreq.</source>
        <translation>Val. décal.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>rqm5::ClipboardCommands</name>
    <message>
        <source>There is no channel in it.</source>
        <translation>Le presse-papiers ne contient aucun canal.</translation>
    </message>
    <message>
        <source>Copy rows of this program, or lines with a frequency each: of a spreadsheet, a web page or a text.</source>
        <translation>Copiez des lignes de ce programme, ou des lignes avec une fréquence chacune, prises dans un tableur, une page web ou un texte.</translation>
    </message>
    <message>
        <source>Paste these columns onto the selected rows:</source>
        <translation>Coller ces colonnes sur les lignes sélectionnées&#xa0;:</translation>
    </message>
    <message>
        <source>Give the selected rows these columns of the first of them:</source>
        <translation>Donner aux lignes sélectionnées ces colonnes de la première d’entre elles&#xa0;:</translation>
    </message>
</context>
<context>
    <name>rqm5::ColumnWidths</name>
    <message>
        <source>&amp;Usual Column Widths</source>
        <translation>&amp;Largeurs de colonne normales</translation>
    </message>
</context>
<context>
    <name>rqm5::CompareTree</name>
    <message>
        <source>Place</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Open image</source>
        <translation>Image ouverte</translation>
    </message>
    <message>
        <source>Other side</source>
        <translation>Autre côté</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Ce qui diffère</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>diffère</translation>
    </message>
</context>
<context>
    <name>rqm5::DiagnosticsPanel</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostic</translation>
    </message>
    <message>
        <source>Bloc&amp;k address</source>
        <translation>Adresse (he&amp;x)</translation>
    </message>
    <message>
        <source>Read Block</source>
        <translation>Lire le bloc</translation>
    </message>
    <message>
        <source>Sends one read command and shows the reply as it comes</source>
        <translation>Envoie une commande de lecture et affiche la réponse brute</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>Link Test</source>
        <translation>Test de liaison</translation>
    </message>
    <message>
        <source>Reads one block a hundred times and shows the round-trip times</source>
        <translation>Lit cent fois un bloc et affiche les temps aller-retour</translation>
    </message>
    <message>
        <source>Exchanges with the receiver</source>
        <translation>Échanges avec le récepteur</translation>
    </message>
    <message>
        <source>Save Log...</source>
        <translation>Enregistrer le journal...</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Effacer le journal</translation>
    </message>
</context>
<context>
    <name>rqm5::ExchangeLog</name>
    <message>
        <source>(the port failed)</source>
        <translation>(erreur du port)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
</context>
<context>
    <name>rqm5::FileCommands</name>
    <message>
        <source>Save Changes</source>
        <translation>Enregistrer les modifications</translation>
    </message>
    <message>
        <source>Save changes to settings?</source>
        <translation>Enregistrer les modifications&#xa0;?</translation>
    </message>
    <message>
        <source>The file is saved, but a clone file cannot hold notes with a comma or quotes. While these notes stay as they are, the file cannot be opened again or shows them changed.</source>
        <translation>Le fichier est enregistré, mais un fichier clone ne peut pas contenir de notes avec une virgule ou des guillemets. Tant que ces notes restent ainsi, le fichier ne pourra pas être rouvert, ou les affichera modifiées.</translation>
    </message>
    <message>
        <source>The file is written. A spreadsheet may run these notes as formulas.</source>
        <translation>Le fichier est écrit. Un tableur risque d’exécuter ces notes comme des formules.</translation>
    </message>
    <message>
        <source>There was nothing to repair; the file is open.</source>
        <translation>Il n’y avait rien à réparer&#xa0;; le fichier est ouvert.</translation>
    </message>
    <message>
        <source>Repaired notes: %1</source>
        <translation>Notes réparées&#xa0;: %1</translation>
    </message>
    <message>
        <source> repaired</source>
        <translation> réparé</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
</context>
<context>
    <name>rqm5::FillBar</name>
    <message>
        <source>no rows</source>
        <translation>aucune ligne</translation>
    </message>
    <message>
        <source>%1 of %2 rows hold a channel</source>
        <translation>%1 lignes sur %2 contiennent un canal</translation>
    </message>
</context>
<context>
    <name>rqm5::FilterBox</name>
    <message>
        <source>All rows</source>
        <translation>Toutes les lignes</translation>
    </message>
    <message>
        <source>With a channel</source>
        <translation>Avec un canal</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Canal activé</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Canal désactivé</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Canal sauté</translation>
    </message>
    <message>
        <source>With a note</source>
        <translation>Avec une note</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Which rows of the group the table shows</source>
        <translation>Lignes du groupe affichées dans le tableau</translation>
    </message>
    <message>
        <source>Sh&amp;ow:</source>
        <translation>Affic&amp;her&#xa0;:</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 lignes sur %2</translation>
    </message>
</context>
<context>
    <name>rqm5::FindBar</name>
    <message>
        <source>Find channels</source>
        <translation>Rechercher des canaux</translation>
    </message>
    <message>
        <source>Find (Ctrl+F)</source>
        <translation>Rechercher (Ctrl+F)</translation>
    </message>
    <message>
        <source>Frequency, note, mode or tone, in all groups. Enter goes there, F3 to the next</source>
        <translation>Fréquence, note, mode ou tonalité, dans tous les groupes. Entrée y mène, F3 passe au suivant</translation>
    </message>
    <message>
        <source>Channels found</source>
        <translation>Canaux trouvés</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 trouvés</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>rqm5::HistoryCommands</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Changes, the latest at the end</source>
        <translation>Modifications, la plus récente à la fin</translation>
    </message>
    <message>
        <source>A click takes back or makes again every change down to there</source>
        <translation>Un clic annule ou rétablit toutes les modifications jusque-là</translation>
    </message>
    <message>
        <source>Before these changes</source>
        <translation>Avant ces modifications</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportCommands</name>
    <message>
        <source> list</source>
        <translation> liste</translation>
    </message>
    <message>
        <source>Channels written to %1: %2.</source>
        <translation>Canaux écrits dans %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportForm</name>
    <message>
        <source>Tab</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Point-virgule</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>None: one field a line</source>
        <translation>Aucun&#xa0;: un champ par ligne</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Detected: %1</source>
        <translation>Détecté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>Détecter</translation>
    </message>
    <message>
        <source>The first &amp;line holds titles</source>
        <translation>La première &amp;ligne contient les titres</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Garder</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Oublier</translation>
    </message>
    <message>
        <source>Type a name and press Keep to read other lists in the same way.</source>
        <translation>Tapez un nom et cliquez sur «&#xa0;Garder&#xa0;» pour lire d’autres listes de la même façon.</translation>
    </message>
    <message>
        <source>&amp;Encoding</source>
        <translation>&amp;Encodage</translation>
    </message>
    <message>
        <source>&amp;Between fields</source>
        <translation>&amp;Séparateur de champs</translation>
    </message>
    <message>
        <source>&amp;Decimals begin with</source>
        <translation>Séparateur &amp;décimal</translation>
    </message>
    <message>
        <source>&amp;Mapping</source>
        <translation>&amp;Correspondances</translation>
    </message>
    <message>
        <source>either, each number by itself</source>
        <translation>l’un ou l’autre, nombre par nombre</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportTarget</name>
    <message>
        <source>To the &amp;rows that the list names</source>
        <translation>Vers les lignes i&amp;ndiquées par la liste</translation>
    </message>
    <message>
        <source>From this row &amp;on</source>
        <translation>À &amp;partir de cette ligne</translation>
    </message>
    <message>
        <source>&amp;Skip rows that hold a channel</source>
        <translation>Sau&amp;ter les lignes occupées</translation>
    </message>
    <message>
        <source>Bank or group</source>
        <translation>Banque ou groupe</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>Hors banque</translation>
    </message>
</context>
<context>
    <name>rqm5::ListTableModel</name>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>is</source>
        <translation>est</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryPage</name>
    <message>
        <source>Ban&amp;k:</source>
        <translation>&amp;Banque&#xa0;:</translation>
    </message>
    <message>
        <source>Read &amp;Memory</source>
        <translation>Lire la &amp;mémoire</translation>
    </message>
    <message>
        <source>Write Memor&amp;y</source>
        <translation>Éc&amp;rire la mémoire</translation>
    </message>
    <message>
        <source>Read the channels of the selected group from the receiver</source>
        <translation>Lire les canaux du groupe choisi depuis le récepteur</translation>
    </message>
    <message>
        <source>Write the channels of the selected group to the receiver</source>
        <translation>Écrire les canaux du groupe choisi dans le récepteur</translation>
    </message>
    <message>
        <source>E&amp;nable</source>
        <translation>Acti&amp;ver</translation>
    </message>
    <message>
        <source>Enable the selected channels</source>
        <translation>Activer les canaux sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>Dé&amp;sactiver</translation>
    </message>
    <message>
        <source>Disable the selected channels; they keep their contents</source>
        <translation>Désactiver les canaux sélectionnés&#xa0;; leur contenu est conservé</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>I&amp;nsérer</translation>
    </message>
    <message>
        <source>Insert an empty row among memory rows 0 to 199; the channel in row 199 is lost</source>
        <translation>Insérer une ligne vide dans les lignes mémoire 0 à 199&#xa0;; le canal de la ligne 199 est perdu</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>Su&amp;pprimer</translation>
    </message>
    <message>
        <source>Delete a row among memory rows 0 to 199; the rows behind it move up</source>
        <translation>Supprimer une des lignes mémoire 0 à 199&#xa0;; les lignes suivantes remontent</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>Empty the selected channels</source>
        <translation>Effacer les canaux sélectionnés</translation>
    </message>
    <message>
        <source>Ena&amp;ble All</source>
        <translation>To&amp;ut activer</translation>
    </message>
    <message>
        <source>Enable every channel shown</source>
        <translation>Activer tous les canaux affichés</translation>
    </message>
    <message>
        <source>Di&amp;sable All</source>
        <translation>Tout désact&amp;iver</translation>
    </message>
    <message>
        <source>Disable every channel shown</source>
        <translation>Désactiver tous les canaux affichés</translation>
    </message>
    <message>
        <source>Clear &amp;All</source>
        <translation>&amp;Tout effacer</translation>
    </message>
    <message>
        <source>Empty every channel shown</source>
        <translation>Effacer tous les canaux affichés</translation>
    </message>
    <message>
        <source>Selected channel</source>
        <translation>Canal sélectionné</translation>
    </message>
    <message>
        <source>All channels shown</source>
        <translation>Canaux affichés</translation>
    </message>
    <message>
        <source>The offset is below 100 MHz.</source>
        <translation>Le décalage doit être inférieur à 100 MHz.</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryTable</name>
    <message>
        <source>Memory channels</source>
        <translation>Canaux mémoire</translation>
    </message>
    <message>
        <source>Enter edits the rows, typing a cell</source>
        <translation>Entrée modifie les lignes, la frappe modifie une cellule</translation>
    </message>
    <message>
        <source>An empty row begins with its frequency</source>
        <translation>Une ligne vide commence par sa fréquence</translation>
    </message>
    <message>
        <source>This model does not have it</source>
        <translation>Ce modèle n’en dispose pas</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryTableModel</name>
    <message>
        <source>In no bank</source>
        <translation>Hors banque</translation>
    </message>
</context>
<context>
    <name>rqm5::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Fermer ce message</translation>
    </message>
</context>
<context>
    <name>rqm5::ModifyForm</name>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Note</translation>
    </message>
    <message>
        <source>&amp;Frequency</source>
        <translation>&amp;Fréquence</translation>
    </message>
    <message>
        <source>Codes and tones</source>
        <translation>Codes et tonalités</translation>
    </message>
    <message>
        <source>&amp;Secret code</source>
        <translation>Code &amp;secret</translation>
    </message>
    <message>
        <source>T&amp;rain tone</source>
        <translation>Tonalité t&amp;rain</translation>
    </message>
    <message>
        <source>&amp;CTCSS tone</source>
        <translation>Tonalité &amp;CTCSS</translation>
    </message>
    <message>
        <source>&amp;Offset Frequency</source>
        <translation>Valeur du &amp;décalage</translation>
    </message>
    <message>
        <source>Offset Frequency</source>
        <translation>Valeur du décalage</translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>What is blank stays as it is in each channel</source>
        <translation>Ce qui est vide reste inchangé dans chaque canal</translation>
    </message>
</context>
<context>
    <name>rqm5::MoveCommands</name>
    <message>
        <source>Insert Row Here</source>
        <translation>Insérer une ligne ici</translation>
    </message>
    <message>
        <source>There is no empty row behind it.</source>
        <translation>Il n’y a pas de ligne vide plus bas.</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 sur %3)</translation>
    </message>
</context>
<context>
    <name>rqm5::NoteLine</name>
    <message>
        <source>&amp;Use ; and &apos;</source>
        <translation>&amp;Utiliser&#xa0;; et &apos;</translation>
    </message>
    <message>
        <source>Put semicolons for commas and apostrophes for quotes, in this note and all that follow</source>
        <translation>Mettre des points-virgules à la place des virgules et des apostrophes à la place des guillemets, dans cette note et toutes les suivantes</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save.</source>
        <translation>Une virgule ou des guillemets dans une note seront perdus à l’enregistrement.</translation>
    </message>
    <message>
        <source>A comma or quotes would not survive a save: replaced.</source>
        <translation>Une virgule ou des guillemets seraient perdus à l’enregistrement&#xa0;: remplacés.</translation>
    </message>
</context>
<context>
    <name>rqm5::PlanTableModel</name>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Holds now</source>
        <translation>Contenu actuel</translation>
    </message>
    <message>
        <source>What comes</source>
        <translation>Nouveau contenu</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation>Refusé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::PrintJob</name>
    <message>
        <source>Printing...</source>
        <translation>Impression...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>No printer is installed. Install one in the settings of the system, or print to a PDF file.</source>
        <translation>Aucune imprimante n’est installée. Installez-en une dans les paramètres du système, ou imprimez dans un fichier PDF.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot; any more. Choose another one, or print to a PDF file.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’existe plus. Choisissez-en une autre, ou imprimez dans un fichier PDF.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not take the pages. Check that it is switched on and connected, choose another one, or print to a PDF file.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’accepte pas les pages. Vérifiez qu’elle est allumée et connectée, choisissez-en une autre, ou imprimez dans un fichier PDF.</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERREUR</translation>
    </message>
    <message>
        <source>The listing was not printed.</source>
        <translation>Le listing n’a pas été imprimé.</translation>
    </message>
</context>
<context>
    <name>rqm5::QtSerialPort</name>
    <message>
        <source>no such device</source>
        <translation>périphérique introuvable</translation>
    </message>
    <message>
        <source>not a serial port</source>
        <translation>pas un port série</translation>
    </message>
    <message>
        <source>not a serial port (%1)</source>
        <translation>pas un port série (%1)</translation>
    </message>
    <message>
        <source>the device has gone</source>
        <translation>le périphérique a disparu</translation>
    </message>
</context>
<context>
    <name>rqm5::RecentFiles</name>
    <message>
        <source>Open Re&amp;cent</source>
        <translation>Fichiers ré&amp;cents</translation>
    </message>
    <message>
        <source>Open a clone file that was opened or saved lately</source>
        <translation>Ouvrir un fichier clone ouvert ou enregistré récemment</translation>
    </message>
    <message>
        <source>&amp;Empty This List</source>
        <translation>&amp;Vider cette liste</translation>
    </message>
    <message>
        <source>The files stay; only the list forgets them</source>
        <translation>Les fichiers restent&#xa0;; seule la liste les oublie</translation>
    </message>
</context>
<context>
    <name>rqm5::Recovery</name>
    <message>
        <source>changes that were in no file yet</source>
        <translation>modifications qui n’étaient encore dans aucun fichier</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>What was read from the receiver could not be saved. It was kept.</source>
        <translation>Ce qui a été lu depuis le récepteur n’a pas pu être enregistré. Ces données ont été conservées.</translation>
    </message>
    <message>
        <source>The program ended before your changes were saved. They were kept.</source>
        <translation>Le programme s’est arrêté avant l’enregistrement de vos modifications. Elles ont été conservées.</translation>
    </message>
    <message>
        <source>File: %1
Kept: %2</source>
        <translation>Fichier&#xa0;: %1
Conservé&#xa0;: %2</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
</context>
<context>
    <name>rqm5::RowActions</name>
    <message>
        <source>&amp;Modify...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>Edit the selected channels</source>
        <translation>Modifier les canaux sélectionnés</translation>
    </message>
</context>
<context>
    <name>rqm5::RowCommands</name>
    <message>
        <source>Edit &gt; Undo brings it back.</source>
        <translation>Édition &gt; Annuler permet de revenir en arrière.</translation>
    </message>
    <message>
        <source>CLEAR OK</source>
        <translation>CONFIRMER L’EFFACEMENT</translation>
    </message>
    <message>
        <source>Clear cannot be undone.
Are you sure that you want to do the clear?</source>
        <translation>L’effacement ne peut pas être annulé.
Voulez-vous vraiment effacer&#xa0;?</translation>
    </message>
    <message>
        <source>Clear cannot be undone.
Are you sure that you want to clear all memory?</source>
        <translation>L’effacement ne peut pas être annulé.
Voulez-vous vraiment effacer toute la mémoire&#xa0;?</translation>
    </message>
    <message>
        <source>DELETE OK</source>
        <translation>CONFIRMER LA SUPPRESSION</translation>
    </message>
    <message>
        <source>Delete cannot be undone.
Are you sure that you want to do the delete?</source>
        <translation>La suppression ne peut pas être annulée.
Voulez-vous vraiment supprimer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>rqm5::Settings1Page</name>
    <message>
        <source>VFO &amp;bands:</source>
        <translation>&amp;Bandes VFO&#xa0;:</translation>
    </message>
    <message>
        <source>A sibling model; kept when a file or receiver has it</source>
        <translation>Modèle apparenté&#xa0;; conservé quand un fichier ou un récepteur l’indique</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Rea&amp;d Settings</source>
        <translation>Lire les réglage&amp;s</translation>
    </message>
    <message>
        <source>Write Settin&amp;gs</source>
        <translation>Éc&amp;rire les réglages</translation>
    </message>
    <message>
        <source>Read all settings and VFO bands from the receiver</source>
        <translation>Lire tous les réglages et toutes les bandes VFO depuis le récepteur</translation>
    </message>
    <message>
        <source>Write all settings, VFO bands and presets to the receiver</source>
        <translation>Écrire tous les réglages, bandes VFO et préréglages dans le récepteur</translation>
    </message>
</context>
<context>
    <name>rqm5::Settings2Page</name>
    <message>
        <source>Rea&amp;d Settings</source>
        <translation>Lire les réglage&amp;s</translation>
    </message>
    <message>
        <source>Write Settin&amp;gs</source>
        <translation>Éc&amp;rire les réglages</translation>
    </message>
    <message>
        <source>Read all settings and VFO bands from the receiver</source>
        <translation>Lire tous les réglages et toutes les bandes VFO depuis le récepteur</translation>
    </message>
    <message>
        <source>Write all settings, VFO bands and presets to the receiver</source>
        <translation>Écrire tous les réglages, bandes VFO et préréglages dans le récepteur</translation>
    </message>
</context>
<context>
    <name>rqm5::SpectrumDock</name>
    <message>
        <source>Spectrum</source>
        <translation>Spectre</translation>
    </message>
    <message>
        <source>Zoom in (+, or the wheel)</source>
        <translation>Agrandir (+ ou molette)</translation>
    </message>
    <message>
        <source>Zoom out (-, or the wheel)</source>
        <translation>Réduire (- ou molette)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Show the whole range (Home)</source>
        <translation>Afficher toute la plage (Origine)</translation>
    </message>
    <message>
        <source>Save Picture...</source>
        <translation>Enregistrer l’image...</translation>
    </message>
    <message>
        <source>Save what is shown as PNG or SVG</source>
        <translation>Enregistrer ce qui est affiché en PNG ou SVG</translation>
    </message>
</context>
<context>
    <name>rqm5::SpectrumView</name>
    <message>
        <source>Spectrum of the channels</source>
        <translation>Spectre des canaux</translation>
    </message>
    <message>
        <source>Arrow keys go from channel to channel, Enter selects one; plus, minus and Home zoom</source>
        <translation>Les flèches passent d’un canal à l’autre, Entrée en sélectionne un&#xa0;; plus, moins et Origine règlent le zoom</translation>
    </message>
    <message>
        <source>%1 MHz</source>
        <translation>%1 MHz</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>stored twice</source>
        <translation>en double</translation>
    </message>
</context>
<context>
    <name>rqm5::StatusBar</name>
    <message>
        <source>Nothing was imported: the file holds no record of this receiver and no list.</source>
        <translation>Rien n’a été importé&#xa0;: le fichier ne contient ni enregistrement de ce récepteur, ni liste.</translation>
    </message>
    <message>
        <source>Sibling model</source>
        <translation>Modèle apparenté</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Channels enabled: %1</source>
        <translation>Canaux activés&#xa0;: %1</translation>
    </message>
    <message>
        <source>COM %1: %2</source>
        <translation>COM %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>aucun périphérique</translation>
    </message>
    <message>
        <source>%1, not present</source>
        <translation>%1, absent</translation>
    </message>
</context>
<context>
    <name>rqm5::ToolBar</name>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
</context>
<context>
    <name>rqm5::TransferBar</name>
    <message>
        <source>Cancel</source>
        <translation>Interrompre</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Avancement du transfert</translation>
    </message>
    <message>
        <source>Channel being transferred</source>
        <translation>Canal en cours de transfert</translation>
    </message>
    <message>
        <source>The channel that is being transferred</source>
        <translation>Le canal en cours de transfert</translation>
    </message>
    <message>
        <source>End the transfer now; what was transferred stays</source>
        <translation>Interrompre le transfert&#xa0;; ce qui est déjà transféré reste</translation>
    </message>
</context>
<context>
    <name>rqm5::TransferCommands</name>
    <message>
        <source>Read</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>%1. Check the cable, then read again.</source>
        <translation>%1. Vérifiez le câble, puis recommencez la lecture.</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>Read in %1 to compare; the open image is as it was.</source>
        <translation>Lu en %1 pour comparaison&#xa0;; l’image ouverte est inchangée.</translation>
    </message>
    <message>
        <source>You had unsaved changes; Undo brings back what was there before the read.</source>
        <translation>Vous aviez des modifications non enregistrées&#xa0;; «&#xa0;Annuler&#xa0;» rétablit ce qui était là avant la lecture.</translation>
    </message>
    <message>
        <source>Old backups deleted: %1.</source>
        <translation>Anciennes sauvegardes supprimées&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>The receiver is another model. Write to it all the same?</source>
        <translation>Le récepteur est un autre modèle. Y écrire quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Enable flags of other rows replaced by the receiver&apos;s: %1.</source>
        <translation>Indicateurs d’activation d’autres lignes remplacés par ceux du récepteur&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The write was cancelled.</source>
        <translation>L’écriture a été interrompue.</translation>
    </message>
    <message>
        <source>The receiver does not hold what was written. Write again.</source>
        <translation>Le récepteur ne contient pas ce qui a été écrit. Recommencez l’écriture.</translation>
    </message>
</context>
<context>
    <name>rqm5::VfoTable</name>
    <message>
        <source>VFO bands</source>
        <translation>Bandes VFO</translation>
    </message>
    <message>
        <source>One VFO setting per band. Enter or a double click edits the selected one.</source>
        <translation>Un réglage VFO par bande. Entrée ou un double clic modifie celui qui est sélectionné.</translation>
    </message>
</context>
<context>
    <name>rqm5::WriteOptionItems</name>
    <message>
        <source>Backup Folder</source>
        <translation>Dossier des sauvegardes</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgAbout</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copies all of this, for a bug report</source>
        <translation>Copie tout ceci, pour un rapport d’anomalie</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgBackups</name>
    <message>
        <source>rows: %1</source>
        <translation>lignes&#xa0;: %1</translation>
    </message>
    <message>
        <source>VFO bands: %1</source>
        <translation>bandes VFO&#xa0;: %1</translation>
    </message>
    <message>
        <source>bank layout</source>
        <translation>organisation des banques</translation>
    </message>
    <message>
        <source>settings: %1</source>
        <translation>réglages&#xa0;: %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sauvegardes</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Holds</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>What differs from the open image</source>
        <translation>Ce qui diffère de l’image ouverte</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>Dossier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Keep no &amp;more than</source>
        <translation>&amp;Nombre maximal</translation>
    </message>
    <message>
        <source> backups</source>
        <translation> sauvegardes</translation>
    </message>
    <message>
        <source>Keep no &amp;longer than</source>
        <translation>&amp;Durée maximale</translation>
    </message>
    <message>
        <source> days</source>
        <translation> jours</translation>
    </message>
    <message>
        <source>The oldest are deleted when the next backup has been kept</source>
        <translation>Les plus anciennes sont supprimées après la sauvegarde suivante</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Open the backup as a clone file</source>
        <translation>Ouvrir la sauvegarde comme fichier clone</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparer</translation>
    </message>
    <message>
        <source>List what differs from the open image, and take from the backup</source>
        <translation>Lister ce qui diffère de l’image ouverte, et reprendre des éléments de la sauvegarde</translation>
    </message>
    <message>
        <source>&amp;Write Back...</source>
        <translation>&amp;Réécrire...</translation>
    </message>
    <message>
        <source>Write what the backup holds to the receiver; the open image stays as it is</source>
        <translation>Écrire dans le récepteur le contenu de la sauvegarde&#xa0;; l’image ouverte reste inchangée</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>&amp;Supprimer...</translation>
    </message>
    <message>
        <source>Delete the selected backups</source>
        <translation>Supprimer les sauvegardes sélectionnées</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>illisible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Delete the selected backups? They cannot be brought back.</source>
        <translation>Supprimer les sauvegardes sélectionnées&#xa0;? Elles ne pourront pas être récupérées.</translation>
    </message>
    <message>
        <source>Not every backup could be deleted. Look who may write to the folder.</source>
        <translation>Certaines sauvegardes n’ont pas pu être supprimées. Vérifiez les droits d’écriture du dossier.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgCOM</name>
    <message>
        <source>COM Port Setup</source>
        <translation>Configuration du port COM</translation>
    </message>
    <message>
        <source>COM %1</source>
        <translation>COM %1</translation>
    </message>
    <message>
        <source>&amp;Found now:</source>
        <translation>Ports &amp;trouvés&#xa0;:</translation>
    </message>
    <message>
        <source>no serial port</source>
        <translation>aucun port série</translation>
    </message>
    <message>
        <source>choose a device</source>
        <translation>choisir un périphérique</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not present</source>
        <translation>absent</translation>
    </message>
    <message>
        <source>Set by the environment variable RQM5_COM%1</source>
        <translation>Défini par la variable d’environnement RQM5_COM%1</translation>
    </message>
    <message>
        <source>The device that this number stands for; empty for the usual one</source>
        <translation>Périphérique désigné par ce numéro&#xa0;; vide pour celui par défaut</translation>
    </message>
    <message>
        <source>&amp;Device of COM %1:</source>
        <translation>&amp;Périphérique de COM %1&#xa0;:</translation>
    </message>
    <message>
        <source>Find the &amp;Receiver</source>
        <translation>&amp;Chercher le récepteur</translation>
    </message>
    <message>
        <source>Send one read command to each port that is there and free</source>
        <translation>Envoyer une commande de lecture à chaque port présent et libre</translation>
    </message>
    <message>
        <source>Asking %1...</source>
        <translation>Interrogation de %1...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>unknown model</source>
        <translation>modèle inconnu</translation>
    </message>
    <message>
        <source>A receiver (%1) answers at %2. OK takes it as COM %3.</source>
        <translation>Un récepteur (%1) répond sur %2. OK l’adopte comme COM %3.</translation>
    </message>
    <message>
        <source>No receiver answers. Ports asked: %1. Switch the receiver on, check its cable, and try again.</source>
        <translation>Aucun récepteur ne répond. Ports interrogés&#xa0;: %1. Allumez le récepteur, vérifiez son câble et réessayez.</translation>
    </message>
    <message>
        <source>In use by another program: %1.</source>
        <translation>Utilisé par un autre programme&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is no port to ask. Plug the receiver&apos;s cable in.</source>
        <translation>Aucun port à interroger. Branchez le câble du récepteur.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgCompare</name>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Ce qui diffère</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>&amp;Fichier...</translation>
    </message>
    <message>
        <source>Compare with a clone file</source>
        <translation>Comparer avec un fichier clone</translation>
    </message>
    <message>
        <source>&amp;Backup...</source>
        <translation>Sau&amp;vegarde...</translation>
    </message>
    <message>
        <source>Compare with a backup</source>
        <translation>Comparer avec une sauvegarde</translation>
    </message>
    <message>
        <source>&amp;Last Read</source>
        <translation>&amp;Dernière lecture</translation>
    </message>
    <message>
        <source>Compare with what the receiver held when it was last read</source>
        <translation>Comparer avec ce que le récepteur contenait à la dernière lecture</translation>
    </message>
    <message>
        <source>&amp;Receiver Now</source>
        <translation>&amp;Récepteur (lecture)</translation>
    </message>
    <message>
        <source>Read the receiver and compare with what it holds; the open image stays as it is</source>
        <translation>Lire le récepteur et comparer avec son contenu&#xa0;; l’image ouverte reste inchangée</translation>
    </message>
    <message>
        <source>Compare the open image with:</source>
        <translation>Comparer l’image ouverte avec&#xa0;:</translation>
    </message>
    <message>
        <source>All differences</source>
        <translation>Toutes les différences</translation>
    </message>
    <message>
        <source>Only here</source>
        <translation>Seulement ici</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>Seulement là-bas</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Déplacé</translation>
    </message>
    <message>
        <source>Changed in place</source>
        <translation>Modifié sur place</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Groupe&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>Affic&amp;her&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Take Selected</source>
        <translation>Reprendre la &amp;sélection</translation>
    </message>
    <message>
        <source>Take the selected rows and groups from the other side</source>
        <translation>Reprendre de l’autre côté les lignes et groupes sélectionnés</translation>
    </message>
    <message>
        <source>Take &amp;All</source>
        <translation>&amp;Tout reprendre</translation>
    </message>
    <message>
        <source>Take everything that is shown from the other side</source>
        <translation>Reprendre de l’autre côté tout ce qui est affiché</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Fer&amp;mer</translation>
    </message>
    <message>
        <source>Choose above what the open image is compared with.</source>
        <translation>Choisissez ci-dessus avec quoi comparer l’image ouverte.</translation>
    </message>
    <message>
        <source>All groups</source>
        <translation>Tous les groupes</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Aucune différence.</translation>
    </message>
    <message>
        <source>%1 of %2 differences</source>
        <translation>%1 différences sur %2</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Différences&#xa0;: %1</translation>
    </message>
    <message>
        <source>Take &amp;All Shown</source>
        <translation>&amp;Tout reprendre (affiché)</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>The banks would hold more than 1000 channels together.</source>
        <translation>Les banques contiendraient plus de 1000 canaux en tout.</translation>
    </message>
    <message>
        <source>Nothing was taken. Take the whole group &quot;Bank layout&quot; instead of single sizes.</source>
        <translation>Rien n’a été repris. Reprenez tout le groupe «&#xa0;Organisation des banques&#xa0;» plutôt que des tailles isolées.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgDuplicates</name>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Frequencies that are stored more than once</source>
        <translation>Fréquences enregistrées plusieurs fois</translation>
    </message>
    <message>
        <source>Frequency and place</source>
        <translation>Fréquence et emplacement</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>%1 MHz, %2 times</source>
        <translation>%1 MHz, %2 fois</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>No frequency is stored more than once.</source>
        <translation>Aucune fréquence n’est enregistrée plusieurs fois.</translation>
    </message>
    <message>
        <source>1 frequency is stored more than once. A click goes to a place.</source>
        <translation>1 fréquence est enregistrée plusieurs fois. Un clic mène à l’emplacement.</translation>
    </message>
    <message>
        <source>%1 frequencies are stored more than once. A click goes to a place.</source>
        <translation>%1 fréquences sont enregistrées plusieurs fois. Un clic mène à l’emplacement.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgExportList</name>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>Exporter une liste</translation>
    </message>
    <message>
        <source>Point: 145.500000, commas between fields</source>
        <translation>Point&#xa0;: 145.500000, virgules entre les champs</translation>
    </message>
    <message>
        <source>Comma: 145,500000, semicolons between fields</source>
        <translation>Virgule&#xa0;: 145,500000, points-virgules entre les champs</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Groupes</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>&amp;Decimal sign</source>
        <translation>Séparateur &amp;décimal</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>Hors banque</translation>
    </message>
    <message>
        <source>Channels that are written: %1</source>
        <translation>Canaux écrits&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgFill</name>
    <message>
        <source>&amp;Number of channels</source>
        <translation>&amp;Nombre de canaux</translation>
    </message>
    <message>
        <source>&amp;Last frequency</source>
        <translation>&amp;Dernière fréquence</translation>
    </message>
    <message>
        <source>S&amp;kip rows that hold a channel</source>
        <translation>&amp;Sauter les lignes occupées</translation>
    </message>
    <message>
        <source>Fill Series</source>
        <translation>Remplir une série</translation>
    </message>
    <message>
        <source>What goes where</source>
        <translation>Destination des canaux</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>Dép&amp;art</translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>S&amp;pacing</source>
        <translation>&amp;Espacement</translation>
    </message>
    <message>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <source>&amp;Mode and the rest</source>
        <translation>&amp;Mode et le reste</translation>
    </message>
    <message>
        <source>Number of channels</source>
        <translation>Nombre de canaux</translation>
    </message>
    <message>
        <source>Last frequency</source>
        <translation>Dernière fréquence</translation>
    </message>
    <message>
        <source>As usual on the frequency</source>
        <translation>Valeurs usuelles à cette fréquence</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgImport</name>
    <message>
        <source>(not used)</source>
        <translation>(non utilisé)</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Frequency in MHz</source>
        <translation>Fréquence en MHz</translation>
    </message>
    <message>
        <source>Frequency in kHz</source>
        <translation>Fréquence en kHz</translation>
    </message>
    <message>
        <source>Frequency in Hz</source>
        <translation>Fréquence en Hz</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Secret code</source>
        <translation>Code secret</translation>
    </message>
    <message>
        <source>Train tone</source>
        <translation>Tonalité train</translation>
    </message>
    <message>
        <source>CTCSS tone</source>
        <translation>Tonalité CTCSS</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Shift frequency</source>
        <translation>Valeur du décalage</translation>
    </message>
    <message>
        <source>Shift frequency in MHz</source>
        <translation>Valeur du décalage en MHz</translation>
    </message>
    <message>
        <source>Shift frequency in kHz</source>
        <translation>Valeur du décalage en kHz</translation>
    </message>
    <message>
        <source>Shift frequency in Hz</source>
        <translation>Valeur du décalage en Hz</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Sauter</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Canal activé</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Banque</translation>
    </message>
    <message>
        <source>Channel in the bank</source>
        <translation>Canal dans la banque</translation>
    </message>
    <message>
        <source>Memory row</source>
        <translation>Ligne mémoire</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importer (%1)</translation>
    </message>
    <message>
        <source>What goes where</source>
        <translation>Destination des canaux</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>The list as it is read</source>
        <translation>La liste telle qu’elle est lue</translation>
    </message>
    <message>
        <source>What %1 is</source>
        <translation>Ce qu’est %1</translation>
    </message>
    <message>
        <source>Frequency (%1 by its size)</source>
        <translation>Fréquence (%1 selon la valeur)</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgImportDetails</name>
    <message>
        <source>Import (%1)</source>
        <translation>Importer (%1)</translation>
    </message>
    <message>
        <source>What was read otherwise</source>
        <translation>Ce qui a été lu autrement</translation>
    </message>
    <message>
        <source>&amp;Read again with decimal commas</source>
        <translation>&amp;Relire avec des virgules décimales</translation>
    </message>
    <message>
        <source>Edit &gt; Undo takes the import back.</source>
        <translation>Édition &gt; Annuler annule l’importation.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgModify</name>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Sui&amp;vant</translation>
    </message>
    <message>
        <source>OK and Next</source>
        <translation>OK et suivant</translation>
    </message>
    <message>
        <source>Store the row and go on with the next one (Ctrl+Enter)</source>
        <translation>Enregistrer la ligne et passer à la suivante (Ctrl+Entrée)</translation>
    </message>
    <message>
        <source>Store what was changed and go on (%1)</source>
        <translation>Enregistrer les modifications et continuer (%1)</translation>
    </message>
    <message>
        <source>Modify Memory</source>
        <translation>Modifier la mémoire</translation>
    </message>
    <message>
        <source>Modify VFO</source>
        <translation>Modifier le VFO</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>VFO</source>
        <translation>VFO</translation>
    </message>
    <message>
        <source>Frequency of the cellular phone</source>
        <translation>Fréquence de téléphonie cellulaire</translation>
    </message>
    <message>
        <source>It is a frequency of the cellular phone.
It is not possible to set it.</source>
        <translation>C’est une fréquence de téléphonie cellulaire.
Elle ne peut pas être réglée.</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERREUR</translation>
    </message>
    <message>
        <source>The same frequency as other channels cannot be set in Search Pass bank.</source>
        <translation>La banque Search Pass ne peut pas contenir deux fois la même fréquence.</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>C&amp;onserver</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Sau&amp;ter</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>Act&amp;iver</translation>
    </message>
    <message>
        <source>Scanning skips this channel</source>
        <translation>Le balayage saute ce canal</translation>
    </message>
    <message>
        <source>The channel is in use</source>
        <translation>Le canal est utilisé</translation>
    </message>
    <message>
        <source>The next empty channel starts with the values confirmed here</source>
        <translation>Le prochain canal vide commencera avec les valeurs validées ici</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgPaste</name>
    <message>
        <source>What goes where</source>
        <translation>Destination des canaux</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgPrint</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>What to print</source>
        <translation>Éléments à imprimer</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Réglages</translation>
    </message>
    <message>
        <source>&amp;VFO table</source>
        <translation>Tableau &amp;VFO</translation>
    </message>
    <message>
        <source>&amp;Memory channels</source>
        <translation>Canaux &amp;mémoire</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Groupe&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Leave out empty rows</source>
        <translation>Sans les &amp;lignes vides</translation>
    </message>
    <message>
        <source>Sp&amp;ectrum of all channels</source>
        <translation>&amp;Spectre de tous les canaux</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>P&amp;ortrait</source>
        <translation>&amp;Portrait</translation>
    </message>
    <message>
        <source>L&amp;andscape</source>
        <translation>P&amp;aysage</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientation&#xa0;:</translation>
    </message>
    <message>
        <source>Print to</source>
        <translation>Imprimer sur</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>no printer installed</source>
        <translation>aucune imprimante installée</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>&amp;Imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>P&amp;DF file</source>
        <translation>Fichier P&amp;DF</translation>
    </message>
    <message>
        <source>Previe&amp;w...</source>
        <translation>Aperç&amp;u...</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Imprim&amp;er</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgWriteChanges</name>
    <message>
        <source>Keep a &amp;backup of what is replaced</source>
        <translation>&amp;Sauvegarder ce qui est remplacé</translation>
    </message>
    <message>
        <source>&amp;Verify afterwards</source>
        <translation>&amp;Vérifier ensuite</translation>
    </message>
    <message>
        <source>Write Changes</source>
        <translation>Écrire les modifications</translation>
    </message>
    <message>
        <source>The receiver as it was read or written since %1, %2. Each block is read once more before the first one is written.</source>
        <translation>Le récepteur tel qu’il a été lu ou écrit depuis le %1, %2. Chaque bloc est relu une fois avant l’écriture du premier.</translation>
    </message>
    <message>
        <source>What is written</source>
        <translation>Éléments écrits</translation>
    </message>
    <message>
        <source>Row and field</source>
        <translation>Ligne et champ</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Récepteur</translation>
    </message>
    <message>
        <source>Will be</source>
        <translation>Après écriture</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>É&amp;crire</translation>
    </message>
    <message>
        <source>The receiver holds all of it already. There is nothing to write.</source>
        <translation>Le récepteur contient déjà tout cela. Il n’y a rien à écrire.</translation>
    </message>
    <message>
        <source>1 block is written, %1.</source>
        <translation>1 bloc à écrire, %1.</translation>
    </message>
    <message>
        <source>%1 blocks are written, %2.</source>
        <translation>%1 blocs à écrire, %2.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgWriteConflicts</name>
    <message>
        <source>Changed at the Receiver, Too</source>
        <translation>Modifié aussi dans le récepteur</translation>
    </message>
    <message>
        <source>What is to be written was changed at the receiver since it was last read. Nothing has been written yet. Decide for each row.</source>
        <translation>Ce qui doit être écrit a été modifié dans le récepteur depuis la dernière lecture. Rien n’a encore été écrit. Décidez pour chaque ligne.</translation>
    </message>
    <message>
        <source>Rows that were changed on both sides</source>
        <translation>Lignes modifiées des deux côtés</translation>
    </message>
    <message>
        <source>Row and field</source>
        <translation>Ligne et champ</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Receiver now</source>
        <translation>Récepteur actuel</translation>
    </message>
    <message>
        <source>To be written</source>
        <translation>À écrire</translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>Décision</translation>
    </message>
    <message>
        <source>Keep all &amp;mine</source>
        <translation>Garder partout &amp;ma version</translation>
    </message>
    <message>
        <source>Take all the &amp;receiver&apos;s</source>
        <translation>Reprendre partout celle du &amp;récepteur</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>É&amp;crire</translation>
    </message>
    <message>
        <source>Decision for %1</source>
        <translation>Décision pour %1</translation>
    </message>
    <message>
        <source>Decide</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Garder ma version</translation>
    </message>
    <message>
        <source>Take the receiver&apos;s</source>
        <translation>Reprendre celle du récepteur</translation>
    </message>
</context>
<context>
    <name>rqm5::frmHelp</name>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Page du manuel</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Rechercher dans le manuel</translation>
    </message>
    <message>
        <source>Lists the pages that hold every word; Enter goes to the next place</source>
        <translation>Liste les pages qui contiennent tous les mots&#xa0;; Entrée passe à l’occurrence suivante</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Larger Text</source>
        <translation>Texte plus grand</translation>
    </message>
    <message>
        <source>Smaller Text</source>
        <translation>Texte plus petit</translation>
    </message>
    <message>
        <source>Usual Text Size</source>
        <translation>Taille de texte normale</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>No page holds these words.</source>
        <translation>Aucune page ne contient ces mots.</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Ouvrir le lien</translation>
    </message>
    <message>
        <source>This link leads out of the manual. Open it in the web browser?</source>
        <translation>Ce lien mène hors du manuel. L’ouvrir dans le navigateur web&#xa0;?</translation>
    </message>
</context>
<context>
    <name>rqm5::frmMain</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>Choose the language of every window</source>
        <translation>Choisir la langue de toutes les fenêtres</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Système</translation>
    </message>
    <message>
        <source>Recovered changes came first; not opened: %1</source>
        <translation>Les modifications récupérées ont eu la priorité&#xa0;; non ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Afficha&amp;ge</translation>
    </message>
    <message>
        <source>Read(&amp;R)</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>Write(&amp;W)</source>
        <translation>É&amp;criture</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>Start with empty memories and default settings</source>
        <translation>Commencer avec une mémoire vide et les réglages par défaut</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Open a clone file</source>
        <translation>Ouvrir un fichier clone</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save to the current file</source>
        <translation>Enregistrer dans le fichier actuel</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Save to another file</source>
        <translation>Enregistrer dans un autre fichier</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Take channels from a CSV file or a list of another program</source>
        <translation>Reprendre des canaux d’un fichier CSV ou de la liste d’un autre programme</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>Write VFO bands and channels to a CSV file</source>
        <translation>Écrire les bandes VFO et les canaux dans un fichier CSV</translation>
    </message>
    <message>
        <source>Export &amp;List...</source>
        <translation>Exporter une &amp;liste...</translation>
    </message>
    <message>
        <source>Write channels as a list for spreadsheets</source>
        <translation>Écrire les canaux sous forme de liste pour tableur</translation>
    </message>
    <message>
        <source>&amp;Repair...</source>
        <translation>&amp;Réparer...</translation>
    </message>
    <message>
        <source>Open a clone file that is refused because of its notes</source>
        <translation>Ouvrir un fichier clone refusé à cause de ses notes</translation>
    </message>
    <message>
        <source>&amp;Backups...</source>
        <translation>Sau&amp;vegardes...</translation>
    </message>
    <message>
        <source>List the backups: open, compare, write back or delete them</source>
        <translation>Lister les sauvegardes&#xa0;: ouvrir, comparer, réécrire ou supprimer</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Im&amp;primer...</translation>
    </message>
    <message>
        <source>Print settings, VFO bands and channels</source>
        <translation>Imprimer les réglages, les bandes VFO et les canaux</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Fermer le programme</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>Annuler la dernière modification</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Rétablir la modification annulée</translation>
    </message>
    <message>
        <source>&amp;Modify...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>Edit the selected channels or VFO band; so does Enter</source>
        <translation>Modifier les canaux sélectionnés ou la bande VFO&#xa0;; comme Entrée</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>Rec&amp;hercher...</translation>
    </message>
    <message>
        <source>Find channels by frequency, note, mode or tone</source>
        <translation>Rechercher des canaux par fréquence, note, mode ou tonalité</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Rechercher le sui&amp;vant</translation>
    </message>
    <message>
        <source>Go to the next channel found</source>
        <translation>Aller au canal trouvé suivant</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Rechercher le &amp;précédent</translation>
    </message>
    <message>
        <source>Go to the previous channel found</source>
        <translation>Aller au canal trouvé précédent</translation>
    </message>
    <message>
        <source>&amp;Toolbar</source>
        <translation>&amp;Barre d’outils</translation>
    </message>
    <message>
        <source>Show or hide the toolbar</source>
        <translation>Afficher ou masquer la barre d’outils</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>Barre d’é&amp;tat</translation>
    </message>
    <message>
        <source>Show or hide the status bar</source>
        <translation>Afficher ou masquer la barre d’état</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historique</translation>
    </message>
    <message>
        <source>Show every change that can be taken back; a click goes there</source>
        <translation>Afficher toutes les modifications annulables&#xa0;; un clic revient à l’une d’elles</translation>
    </message>
    <message>
        <source>S&amp;pectrum</source>
        <translation>&amp;Spectre</translation>
    </message>
    <message>
        <source>Show every channel by its frequency; a click selects its row</source>
        <translation>Afficher chaque canal selon sa fréquence&#xa0;; un clic sélectionne sa ligne</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnostic</translation>
    </message>
    <message>
        <source>Send single read commands and see the replies</source>
        <translation>Envoyer des commandes de lecture une à une et voir les réponses</translation>
    </message>
    <message>
        <source>ALL(&amp;A)</source>
        <translation>&amp;TOUT</translation>
    </message>
    <message>
        <source>Read everything from the receiver</source>
        <translation>Tout lire depuis le récepteur</translation>
    </message>
    <message>
        <source>Memory(&amp;M)</source>
        <translation>&amp;Mémoire</translation>
    </message>
    <message>
        <source>Read the channels of the group shown on the Memory page</source>
        <translation>Lire les canaux du groupe affiché sur la page Mémoire</translation>
    </message>
    <message>
        <source>Settings(&amp;S)</source>
        <translation>&amp;Réglages</translation>
    </message>
    <message>
        <source>Read the settings and the VFO bands</source>
        <translation>Lire les réglages et les bandes VFO</translation>
    </message>
    <message>
        <source>&amp;Verify after reading</source>
        <translation>&amp;Vérifier après la lecture</translation>
    </message>
    <message>
        <source>Read everything twice, and list what was different</source>
        <translation>Tout lire deux fois et lister ce qui était différent</translation>
    </message>
    <message>
        <source>Write everything to the receiver</source>
        <translation>Tout écrire dans le récepteur</translation>
    </message>
    <message>
        <source>Write the channels of the group shown on the Memory page</source>
        <translation>Écrire les canaux du groupe affiché sur la page Mémoire</translation>
    </message>
    <message>
        <source>Write the settings and the VFO bands</source>
        <translation>Écrire les réglages et les bandes VFO</translation>
    </message>
    <message>
        <source>&amp;Changes...</source>
        <translation>M&amp;odifications...</translation>
    </message>
    <message>
        <source>Write only what the receiver holds otherwise, after showing it</source>
        <translation>N’écrire que ce qui diffère dans le récepteur, après l’avoir affiché</translation>
    </message>
    <message>
        <source>Keep a &amp;backup before writing</source>
        <translation>&amp;Sauvegarder avant l’écriture</translation>
    </message>
    <message>
        <source>Read what a write will replace, and save it, before anything is written</source>
        <translation>Lire et enregistrer ce qui sera remplacé, avant toute écriture</translation>
    </message>
    <message>
        <source>&amp;Verify after writing</source>
        <translation>&amp;Vérifier après l’écriture</translation>
    </message>
    <message>
        <source>Read back what was written, and list what differs</source>
        <translation>Relire ce qui a été écrit et lister ce qui diffère</translation>
    </message>
    <message>
        <source>Backup &amp;Folder...</source>
        <translation>&amp;Dossier des sauvegardes...</translation>
    </message>
    <message>
        <source>Choose where backups are kept</source>
        <translation>Choisir où les sauvegardes sont conservées</translation>
    </message>
    <message>
        <source>&amp;Duplicates...</source>
        <translation>&amp;Doublons...</translation>
    </message>
    <message>
        <source>List every frequency that is stored more than once</source>
        <translation>Lister les fréquences enregistrées plusieurs fois</translation>
    </message>
    <message>
        <source>Com&amp;pare...</source>
        <translation>&amp;Comparer...</translation>
    </message>
    <message>
        <source>Show what differs from a file, a backup or the receiver, and take it</source>
        <translation>Afficher ce qui diffère d’un fichier, d’une sauvegarde ou du récepteur, et le reprendre</translation>
    </message>
    <message>
        <source>COM Port Setup(&amp;C)</source>
        <translation>Configuration du &amp;port COM</translation>
    </message>
    <message>
        <source>Choose the serial port of the receiver&apos;s cable</source>
        <translation>Choisir le port série du câble du récepteur</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>Show the manual</source>
        <translation>Afficher le manuel</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>À &amp;propos...</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>À propos de ce programme</translation>
    </message>
    <message>
        <source>Settings 1</source>
        <translation>Réglages 1</translation>
    </message>
    <message>
        <source>Model, modes, volume, squelch and the VFO bands</source>
        <translation>Modèle, modes, volume, squelch et bandes VFO</translation>
    </message>
    <message>
        <source>Settings 2</source>
        <translation>Réglages 2</translation>
    </message>
    <message>
        <source>Display, power, keys, sound and antennas</source>
        <translation>Afficheur, alimentation, touches, son et antennes</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>The memory channels</source>
        <translation>Les canaux mémoire</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Banque</translation>
    </message>
    <message>
        <source>Sizes and links of the memory banks</source>
        <translation>Tailles et liens des banques de mémoire</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
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
        <source>Read ALL</source>
        <translation>Tout lire</translation>
    </message>
    <message>
        <source>Write ALL</source>
        <translation>Tout écrire</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>Put the selected rows on the clipboard and clear them</source>
        <translation>Mettre les lignes sélectionnées dans le presse-papiers et les effacer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Put the selected rows on the clipboard</source>
        <translation>Mettre les lignes sélectionnées dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Write the channels of the clipboard from the current row on</source>
        <translation>Écrire les canaux du presse-papiers à partir de la ligne actuelle</translation>
    </message>
    <message>
        <source>Paste Spec&amp;ial...</source>
        <translation>Colla&amp;ge spécial...</translation>
    </message>
    <message>
        <source>Write chosen columns of the clipboard into the selected rows</source>
        <translation>Écrire des colonnes choisies du presse-papiers dans les lignes sélectionnées</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select every row of the table</source>
        <translation>Sélectionner toutes les lignes du tableau</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>Empty the selected rows</source>
        <translation>Effacer les lignes sélectionnées</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>Act&amp;iver</translation>
    </message>
    <message>
        <source>Switch the selected channels on; Space switches on and off</source>
        <translation>Activer les canaux sélectionnés&#xa0;; Espace active et désactive</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>Dé&amp;sactiver</translation>
    </message>
    <message>
        <source>Switch the selected channels off; Space switches on and off</source>
        <translation>Désactiver les canaux sélectionnés&#xa0;; Espace active et désactive</translation>
    </message>
    <message>
        <source>Fill &amp;Series...</source>
        <translation>Remp&amp;lir une série...</translation>
    </message>
    <message>
        <source>Make channels at even distances</source>
        <translation>Créer des canaux à intervalles réguliers</translation>
    </message>
    <message>
        <source>Fill Do&amp;wn...</source>
        <translation>Recopier vers le &amp;bas...</translation>
    </message>
    <message>
        <source>Give the selected rows chosen columns of the first of them</source>
        <translation>Donner aux lignes sélectionnées des colonnes choisies de la première d’entre elles</translation>
    </message>
    <message>
        <source>Mo&amp;ve Up</source>
        <translation>Déplacer vers le &amp;haut</translation>
    </message>
    <message>
        <source>Move the selected rows up by one</source>
        <translation>Déplacer les lignes sélectionnées d’une ligne vers le haut</translation>
    </message>
    <message>
        <source>Move Dow&amp;n</source>
        <translation>&amp;Déplacer vers le bas</translation>
    </message>
    <message>
        <source>Move the selected rows down by one</source>
        <translation>Déplacer les lignes sélectionnées d’une ligne vers le bas</translation>
    </message>
    <message>
        <source>Copy to &amp;Bank</source>
        <translation>Co&amp;pier vers une banque</translation>
    </message>
    <message>
        <source>Copy the selected channels into empty rows of a bank</source>
        <translation>Copier les canaux sélectionnés dans des lignes vides d’une banque</translation>
    </message>
    <message>
        <source>Move to Ban&amp;k</source>
        <translation>Déplacer &amp;vers une banque</translation>
    </message>
    <message>
        <source>Move the selected channels into empty rows of a bank</source>
        <translation>Déplacer les canaux sélectionnés dans des lignes vides d’une banque</translation>
    </message>
    <message>
        <source>Insert Row &amp;Here</source>
        <translation>I&amp;nsérer une ligne ici</translation>
    </message>
    <message>
        <source>Put an empty row here; the rows behind it in the group shown move down</source>
        <translation>Mettre une ligne vide ici&#xa0;; les lignes suivantes du groupe affiché descendent</translation>
    </message>
    <message>
        <source>Delete Row and Close &amp;Up</source>
        <translation>Supprimer l&amp;a ligne et remonter</translation>
    </message>
    <message>
        <source>Take the selected rows out; the rows behind them in the group shown move up</source>
        <translation>Retirer les lignes sélectionnées&#xa0;; les lignes suivantes du groupe affiché remontent</translation>
    </message>
    <message>
        <source>Sort &amp;Group</source>
        <translation>T&amp;rier le groupe</translation>
    </message>
    <message>
        <source>Sort the rows of the group shown; empty rows come last</source>
        <translation>Trier les lignes du groupe affiché&#xa0;; les lignes vides passent à la fin</translation>
    </message>
    <message>
        <source>By &amp;Frequency</source>
        <translation>Par &amp;fréquence</translation>
    </message>
    <message>
        <source>By &amp;Note</source>
        <translation>Par &amp;note</translation>
    </message>
    <message>
        <source>By &amp;Mode</source>
        <translation>Par &amp;mode</translation>
    </message>
    <message>
        <source>R&amp;ows</source>
        <translation>Lig&amp;nes</translation>
    </message>
    <message>
        <source>Move, copy, insert, delete and sort rows of the group shown</source>
        <translation>Déplacer, copier, insérer, supprimer et trier les lignes du groupe affiché</translation>
    </message>
</context>
<context>
    <name>rqm5::frmSplash</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Reads, edits and writes the receiver&apos;s memory</source>
        <translation>Lit, modifie et écrit la mémoire du récepteur</translation>
    </message>
</context>
</TS>

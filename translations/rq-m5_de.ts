<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Message</name>
    <message>
        <source>the backup of %1</source>
        <translation>der Sicherung vom %1</translation>
    </message>
    <message>
        <source>Other side: backup of %1, which holds: %2</source>
        <translation>Andere Seite: Sicherung vom %1, enthält: %2</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Settings and VFO bands</source>
        <translation>Einstellungen und VFO-Bänder</translation>
    </message>
    <message>
        <source>Bank sizes and links</source>
        <translation>Bankgrößen und Verknüpfungen</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>Alle Kanäle</translation>
    </message>
    <message>
        <source>Take what was changed at the receiver</source>
        <translation>Am Empfänger Geändertes übernehmen</translation>
    </message>
    <message>
        <source>Other side: the file %1, saved %2</source>
        <translation>Andere Seite: Datei %1, gespeichert %2</translation>
    </message>
    <message>
        <source>Other side: the receiver as it was read or written since %1, %2</source>
        <translation>Andere Seite: Empfänger, gelesen oder beschrieben seit %1, %2</translation>
    </message>
    <message>
        <source>Other side: the receiver as it was read at %1</source>
        <translation>Andere Seite: Empfänger, gelesen um %1</translation>
    </message>
    <message>
        <source>the last read</source>
        <translation>dem letzten Lesen</translation>
    </message>
    <message>
        <source>the receiver</source>
        <translation>dem Empfänger</translation>
    </message>
    <message>
        <source>Other side: the receiver, read just now (%1)</source>
        <translation>Andere Seite: Empfänger, soeben gelesen (%1)</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation>(nichts)</translation>
    </message>
    <message>
        <source>Reply after %1 ms: %2</source>
        <translation>Antwort nach %1 ms: %2</translation>
    </message>
    <message>
        <source>Received until the time-out after %1 ms: %2</source>
        <translation>Empfangen bis zum Ende der Wartezeit nach %1 ms: %2</translation>
    </message>
    <message>
        <source>Nothing came back. Check the cable, the port, and that the receiver is on.</source>
        <translation>Es kam nichts zurück. Prüfen Sie das Kabel, den Anschluss, und ob der Empfänger eingeschaltet ist.</translation>
    </message>
    <message>
        <source>The receiver did not answer: only the echo of the command came back.</source>
        <translation>Der Empfänger hat nicht geantwortet: Nur das Echo des Befehls kam zurück.</translation>
    </message>
    <message>
        <source>The reply is too short: a whole one ends with 36 characters.</source>
        <translation>Die Antwort ist zu kurz: Eine ganze endet mit 36 Zeichen.</translation>
    </message>
    <message>
        <source>The reply is garbled: it does not end with a line of 32 characters.</source>
        <translation>Die Antwort ist verstümmelt: Sie endet nicht mit einer Zeile von 32 Zeichen.</translation>
    </message>
    <message>
        <source>An empty row.</source>
        <translation>Eine leere Zeile.</translation>
    </message>
    <message>
        <source>%1 reads, %2 errors.</source>
        <translation>%1 Lesevorgänge, %2 Fehler.</translation>
    </message>
    <message>
        <source>Round trip: lowest %1 ms, median %2 ms, highest %3 ms.</source>
        <translation>Laufzeit: min. %1 ms, Median %2 ms, max. %3 ms.</translation>
    </message>
    <message>
        <source>%1 was removed or renamed by another program. Save will ask first.</source>
        <translation>%1 wurde von einem anderen Programm gelöscht oder umbenannt. Vor dem Speichern wird gefragt.</translation>
    </message>
    <message>
        <source>%1 was changed by another program. You have unsaved changes; Save will ask first.</source>
        <translation>%1 wurde von einem anderen Programm geändert. Hier gibt es nicht gespeicherte Änderungen; vor dem Speichern wird gefragt.</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>&amp;Load Again</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importieren (%1)</translation>
    </message>
    <message>
        <source>Imported with %1.</source>
        <translation>Importiert mit %1.</translation>
    </message>
    <message>
        <source>Imported from %1. %2.</source>
        <translation>Importiert aus %1. %2.</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>De&amp;tails</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept for recovery: %1</source>
        <translation>Nicht gespeicherte Änderungen lassen sich nicht für die Wiederherstellung aufbewahren: %1</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save.</source>
        <translation>Kommas und Anführungszeichen in Notizen gehen beim Speichern verloren.</translation>
    </message>
    <message>
        <source>Notes whose comma or quotes will not survive a save: %1</source>
        <translation>Notizen, deren Kommas oder Anführungszeichen beim Speichern verloren gehen: %1</translation>
    </message>
    <message>
        <source>Use ; and &apos;</source>
        <translation>; und &apos; verwenden</translation>
    </message>
    <message>
        <source>Use ; and &apos; in notes</source>
        <translation>; und &apos; in Notizen verwenden</translation>
    </message>
    <message>
        <source>Connect the receiver and choose Read &gt; ALL (Ctrl+R), or open a file.</source>
        <translation>Empfänger anschließen und Lesen &gt; Alles wählen (Strg+R) oder eine Datei öffnen.</translation>
    </message>
    <message>
        <source>Read ALL</source>
        <translation>Alles lesen</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>Backup and verify are off.</source>
        <translation>Sicherung und Prüfung sind ausgeschaltet.</translation>
    </message>
    <message>
        <source>Turn Them On</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Rows outside the receiver&apos;s range (0.1 to 1299.995 MHz), which are written as they are: %1 (%2)</source>
        <translation>Zeilen außerhalb des Empfangsbereichs (0.1 bis 1299.995 MHz), die unverändert geschrieben werden: %1 (%2)</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save as a clone file: %1.</source>
        <translation>Kommas und Anführungszeichen in Notizen gehen beim Speichern als Klondatei verloren: %1.</translation>
    </message>
    <message>
        <source>%1 was saved with notes that it cannot bring back; change them and save again: %2.</source>
        <translation>%1 wurde mit Notizen gespeichert, die sich daraus nicht zurückholen lassen; bitte ändern und neu speichern: %2.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Read Memory (%1)</source>
        <translation>Speicher lesen (%1)</translation>
    </message>
    <message>
        <source>Read Settings</source>
        <translation>Einstellungen lesen</translation>
    </message>
    <message>
        <source>Read Bank</source>
        <translation>Bank lesen</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1, but the receiver holds something else.</source>
        <translation>%1, aber im Empfänger steht etwas anderes.</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>vor weniger als einer Minute</translation>
    </message>
    <message>
        <source>a minute ago</source>
        <translation>vor einer Minute</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>vor %1 Minuten</translation>
    </message>
    <message>
        <source>an hour ago</source>
        <translation>vor einer Stunde</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>vor %1 Stunden</translation>
    </message>
    <message>
        <source>a day ago</source>
        <translation>vor einem Tag</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>vor %1 Tagen</translation>
    </message>
    <message>
        <source>no progress, no closing line and no notes (also -q)</source>
        <translation>kein Fortschritt, keine Schlusszeile und keine Hinweise (auch -q)</translation>
    </message>
    <message>
        <source>every exchange with the receiver and every warning (also -v)</source>
        <translation>jeder Austausch mit dem Empfänger und jede Warnung (auch -v)</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>unbekannte Option „%1“</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nimmt keinen Wert an</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 braucht einen Wert: %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 ist doppelt angegeben</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>too many arguments: &quot;%1&quot;</source>
        <translation>zu viele Argumente: „%1“</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>--json and --tsv are two forms; choose one</source>
        <translation>--json und --tsv sind zwei Formate; wählen Sie eines</translation>
    </message>
    <message>
        <source>lines end in LF instead of CR LF; this program reads them, another may not</source>
        <translation>Zeilen enden mit LF statt mit CR LF; dieses Programm liest sie, ein anderes vielleicht nicht</translation>
    </message>
    <message>
        <source>there is text behind the last line; a save drops it</source>
        <translation>hinter der letzten Zeile steht Text; beim Speichern fällt er weg</translation>
    </message>
    <message>
        <source>line %1 (%2)</source>
        <translation>Zeile %1 (%2)</translation>
    </message>
    <message>
        <source>characters other than upper-case hexadecimal digits may be read as 0; there are some in:</source>
        <translation>andere Zeichen als Hexziffern in Großschreibung werden vielleicht als 0 gelesen; es gibt welche in:</translation>
    </message>
    <message>
        <source>these values are read differently from what the file says:</source>
        <translation>diese Werte werden anders gelesen, als die Datei sagt:</translation>
    </message>
    <message>
        <source>these rows are outside the receiver&apos;s range (%1):</source>
        <translation>diese Zeilen liegen außerhalb des Empfangsbereichs (%1):</translation>
    </message>
    <message>
        <source>a save loses these notes; take commas and quotes out of them:</source>
        <translation>beim Speichern gehen diese Notizen verloren; nehmen Sie Kommas und Anführungszeichen heraus:</translation>
    </message>
    <message>
        <source>exported as CSV, a spreadsheet would run these notes as formulas:</source>
        <translation>nach einem CSV-Export würde eine Tabellenkalkulation diese Notizen als Formeln ausführen:</translation>
    </message>
    <message>
        <source>%1 of %2 files are whole.</source>
        <translation>Vollständige Dateien: %1 von %2.</translation>
    </message>
    <message>
        <source>%1 is one of %2 names of a file (hard links); the others keep the old contents</source>
        <translation>%1 ist einer von %2 Namen einer Datei (Hardlinks); die anderen behalten den alten Inhalt</translation>
    </message>
    <message>
        <source>a clone file cannot hold these values; they read back differently:</source>
        <translation>eine Klondatei kann diese Werte nicht aufnehmen; sie werden anders zurückgelesen:</translation>
    </message>
    <message>
        <source>%1 is written, but the file cannot bring back these notes; take commas and quotes out of them:</source>
        <translation>%1 ist geschrieben, aber die Datei kann diese Notizen nicht zurückbringen; nehmen Sie Kommas und Anführungszeichen heraus:</translation>
    </message>
    <message>
        <source>%1 is saved, but not all that belonged to the old file could be kept:</source>
        <translation>%1 ist gespeichert, aber nicht alles, was zur alten Datei gehörte, blieb erhalten:</translation>
    </message>
    <message>
        <source>%1: the name is not written in UTF-8. Rename the file, or use &quot;-&quot;.</source>
        <translation>%1: Der Name ist nicht in UTF-8 geschrieben. Benennen Sie die Datei um, oder nehmen Sie „-“.</translation>
    </message>
    <message>
        <source>%1: both names are the same file, which would be replaced; give another name</source>
        <translation>%1: beide Namen sind dieselbe Datei, die ersetzt würde; geben Sie einen anderen Namen an</translation>
    </message>
    <message>
        <source>%1: with these notes it could not be opened any more. --safe-notes stores them without commas and quotes, --force as they are:</source>
        <translation>%1: Mit diesen Notizen ließe sich die Datei nicht mehr öffnen. --safe-notes speichert sie ohne Kommas und Anführungszeichen, --force so, wie sie sind:</translation>
    </message>
    <message>
        <source>%1: with the notes below it could not be opened any more; take commas and quotes out of them.</source>
        <translation>%1: Mit den Notizen unten ließe sich die Datei nicht mehr öffnen; nehmen Sie Kommas und Anführungszeichen heraus.</translation>
    </message>
    <message>
        <source>model region (default 0)</source>
        <translation>Modellregion (Vorgabe 0)</translation>
    </message>
    <message>
        <source>no banks: all 1000 channels unassigned</source>
        <translation>keine Bänke: alle 1000 Kanäle in keiner Bank</translation>
    </message>
    <message>
        <source>replace FILE if it exists</source>
        <translation>ersetzt FILE, wenn es sie schon gibt</translation>
    </message>
    <message>
        <source>read everything twice and list each block that was different the second time</source>
        <translation>liest alles zweimal und nennt jeden Block, der beim zweiten Mal anders war</translation>
    </message>
    <message>
        <source>first read what will be replaced and save it as COPY, a new file</source>
        <translation>liest zuerst, was ersetzt wird, und speichert es als COPY, eine neue Datei</translation>
    </message>
    <message>
        <source>read back afterwards and list each block that differs</source>
        <translation>liest danach zurück und nennt jeden abweichenden Block</translation>
    </message>
    <message>
        <source>write only what the receiver holds otherwise; what is not known of it is read first</source>
        <translation>schreibt nur, was im Empfänger anders ist; was von ihm nicht bekannt ist, wird zuerst gelesen</translation>
    </message>
    <message>
        <source>with --changes: what the receiver held when it was last read or written</source>
        <translation>mit --changes: was der Empfänger enthielt, als er zuletzt gelesen oder beschrieben wurde</translation>
    </message>
    <message>
        <source>write even if the backup shows that the receiver is another model</source>
        <translation>schreibt auch, wenn die Sicherung zeigt, dass der Empfänger ein anderes Modell ist</translation>
    </message>
    <message>
        <source>empty rows, too</source>
        <translation>auch leere Zeilen</translation>
    </message>
    <message>
        <source>compare A with the receiver: COM number 1 to 14, or a device</source>
        <translation>vergleicht A mit dem Empfänger: COM-Nummer 1 bis 14 oder ein Gerät</translation>
    </message>
    <message>
        <source>write the pages to a PDF instead of the terminal</source>
        <translation>schreibt die Seiten in ein PDF statt in das Terminal</translation>
    </message>
    <message>
        <source>print the settings</source>
        <translation>gibt die Einstellungen aus</translation>
    </message>
    <message>
        <source>print the VFO table</source>
        <translation>gibt die VFO-Tabelle aus</translation>
    </message>
    <message>
        <source>print the memory channels</source>
        <translation>gibt die Speicherkanäle aus</translation>
    </message>
    <message>
        <source>print empty rows, too</source>
        <translation>gibt auch leere Zeilen aus</translation>
    </message>
    <message>
        <source>size of the PDF&apos;s pages; without it that of the country</source>
        <translation>Format der PDF-Seiten; ohne die Option das des Landes</translation>
    </message>
    <message>
        <source>turn the PDF&apos;s pages</source>
        <translation>dreht die PDF-Seiten</translation>
    </message>
    <message>
        <source>replace OUT.pdf whatever it holds</source>
        <translation>ersetzt OUT.pdf, was auch darin steht</translation>
    </message>
    <message>
        <source>export each FILE into this folder, under its own name with .csv</source>
        <translation>exportiert jede FILE in diesen Ordner, unter ihrem Namen mit .csv</translation>
    </message>
    <message>
        <source>replace OUT.csv whatever it holds</source>
        <translation>ersetzt OUT.csv, was auch darin steht</translation>
    </message>
    <message>
        <source>read 145,5 as 145.5</source>
        <translation>liest 145,5 als 145.5</translation>
    </message>
    <message>
        <source>what the columns of a list are, by title or number; such as &quot;Freq=frequency:kHz,3=note&quot;</source>
        <translation>was die Spalten einer Liste sind, nach Titel oder Nummer; etwa &quot;Freq=frequency:kHz,3=note&quot;</translation>
    </message>
    <message>
        <source>where a list goes: from memory row 0 to 1209 on, or from BANK:CHANNEL, program-scan, search-pass or priority on; without it to the rows that it names</source>
        <translation>wohin eine Liste kommt: ab Speicherzeile 0 bis 1209 oder ab BANK:CHANNEL, program-scan, search-pass oder priority; ohne die Option in die Zeilen, die sie nennt</translation>
    </message>
    <message>
        <source>show what would change and write nothing</source>
        <translation>zeigt, was sich ändern würde, und schreibt nichts</translation>
    </message>
    <message>
        <source>keep FILE as it was as FILE~</source>
        <translation>behält FILE, wie sie war, als FILE~</translation>
    </message>
    <message>
        <source>store notes without commas and quotes, which a clone file cannot hold</source>
        <translation>speichert Notizen ohne Kommas und Anführungszeichen, die eine Klondatei nicht aufnehmen kann</translation>
    </message>
    <message>
        <source>write FILE even if its notes keep it from being opened again</source>
        <translation>schreibt FILE, auch wenn sie sich wegen ihrer Notizen nicht mehr öffnen lässt</translation>
    </message>
    <message>
        <source>write the repaired file under this name, which no file has yet</source>
        <translation>schreibt die reparierte Datei unter diesem Namen, den noch keine Datei hat</translation>
    </message>
    <message>
        <source>replace FILE, which is kept as FILE~</source>
        <translation>ersetzt FILE, die als FILE~ erhalten bleibt</translation>
    </message>
    <message>
        <source>both names are the same file, which would be replaced</source>
        <translation>beide Namen sind dieselbe Datei, die ersetzt würde</translation>
    </message>
    <message>
        <source>--to writes another file than --in-place; choose one</source>
        <translation>--to schreibt eine andere Datei als --in-place; wählen Sie eines</translation>
    </message>
    <message>
        <source>write the start-up image of a model region</source>
        <translation>schreibt das Startabbild einer Modellregion</translation>
    </message>
    <message>
        <source>It has default settings, VFO bands and bank sizes and no channels.</source>
        <translation>Es hat Standardeinstellungen, die üblichen VFO-Bänder und Bankgrößen und keine Kanäle.</translation>
    </message>
    <message>
        <source>read the receiver into FILE</source>
        <translation>liest den Empfänger in FILE</translation>
    </message>
    <message>
        <source>If FILE exists, it is the starting point: notes and what is not read stay. If the transfer fails, FILE is left untouched. If a block arrives damaged or, with --verify, different the second time, it is listed, the status is 1, and the old file is kept as FILE~.</source>
        <translation>Gibt es FILE schon, ist sie der Ausgangspunkt: Notizen und alles, was nicht gelesen wird, bleiben. Misslingt die Übertragung, bleibt FILE unberührt. Kommt ein Block beschädigt an oder, mit --verify, beim zweiten Mal anders, wird er genannt, der Status ist 1, und die alte Datei bleibt als FILE~ erhalten.</translation>
    </message>
    <message>
        <source>write FILE to the receiver</source>
        <translation>schreibt FILE in den Empfänger</translation>
    </message>
    <message>
        <source>Sends settings, VFO bands and presets, then banks and channels. Without --verify nothing is read back. If the backup fails, nothing is written. With --changes each block that is to be written is read first, and nothing is written if it was changed at the receiver, too.</source>
        <translation>Sendet Einstellungen, VFO-Bänder und Festsender, dann Bänke und Kanäle. Ohne --verify wird nichts zurückgelesen. Misslingt die Sicherung, wird nichts geschrieben. Mit --changes wird jeder Block, der geschrieben werden soll, zuerst gelesen, und nichts wird geschrieben, wenn er auch am Empfänger geändert wurde.</translation>
    </message>
    <message>
        <source>compare the receiver with FILE</source>
        <translation>vergleicht den Empfänger mit FILE</translation>
    </message>
    <message>
        <source>Compares with what write of the same parts leaves behind. Prints nothing and ends with status 0 when they agree, else lists each block that differs, with the bytes in words.</source>
        <translation>Vergleicht mit dem, was write für dieselben Teile hinterlässt. Gibt nichts aus und endet mit dem Status 0, wenn beide übereinstimmen; sonst wird jeder abweichende Block genannt, mit den Bytes in Worten.</translation>
    </message>
    <message>
        <source>write FILE as CSV</source>
        <translation>schreibt FILE als CSV</translation>
    </message>
    <message>
        <source>The file holds the channels and VFO bands, for a spreadsheet. OUT.csv may be missing, empty or an older export. With --to, each FILE is exported into the folder.</source>
        <translation>Die Datei enthält Kanäle und VFO-Bänder, für eine Tabellenkalkulation. OUT.csv darf fehlen, leer oder ein älterer Export sein. Mit --to wird jede FILE in den Ordner exportiert.</translation>
    </message>
    <message>
        <source>take the rows of a CSV file or of a list into FILE</source>
        <translation>übernimmt die Zeilen einer CSV-Datei oder einer Liste in FILE</translation>
    </message>
    <message>
        <source>Rows that IN.csv does not name stay as they are. FILE is made when it does not exist. Notes with which FILE could not be opened again keep it from being written. Carrier codes of an export move one up. A file of another program is read as a list: how it is read is said, and what is not taken is listed by line.</source>
        <translation>Zeilen, die IN.csv nicht nennt, bleiben, wie sie sind. Gibt es FILE nicht, wird sie angelegt. Ließe sich FILE wegen ihrer Notizen nicht mehr öffnen, wird sie nicht geschrieben. Zugfunktöne eines Exports rücken um eine Stufe nach oben. Eine Datei eines anderen Programms wird als Liste gelesen: Es wird gesagt, wie sie gelesen wird, und was nicht übernommen wird, steht Zeile für Zeile da.</translation>
    </message>
    <message>
        <source>print the channels of each FILE in columns</source>
        <translation>gibt die Kanäle jeder FILE in Spalten aus</translation>
    </message>
    <message>
        <source>Rows that hold a channel or a note; &quot;x&quot; marks a channel that is off.</source>
        <translation>Zeilen, die einen Kanal oder eine Notiz enthalten; „x“ kennzeichnet einen Kanal, der ausgeschaltet ist.</translation>
    </message>
    <message>
        <source>print each FILE as text, or one as PDF</source>
        <translation>gibt jede FILE als Text aus, oder eine als PDF</translation>
    </message>
    <message>
        <source>Settings, VFO table and memory channels in this order; without --settings, --vfo and --memory all three. &quot;Off&quot; marks a channel that is disabled.</source>
        <translation>Einstellungen, VFO-Tabelle und Speicherkanäle in dieser Reihenfolge; ohne --settings, --vfo und --memory alle drei. „Off“ kennzeichnet einen Kanal, der ausgeschaltet ist.</translation>
    </message>
    <message>
        <source>check that each FILE is complete, and say what it holds</source>
        <translation>prüft, ob jede FILE vollständig ist, und sagt, was sie enthält</translation>
    </message>
    <message>
        <source>Names the line that is wrong and why. Warns of notes that a save loses or a spreadsheet would run, and of values that are read differently from what the file says. Several files take one line each; --verbose lists their warnings, --quiet names only those that are not whole.</source>
        <translation>Nennt die Zeile, die falsch ist, und den Grund. Warnt vor Notizen, die beim Speichern verloren gehen oder die eine Tabellenkalkulation ausführen würde, und vor Werten, die anders gelesen werden, als die Datei sagt. Mehrere Dateien bekommen je eine Zeile; --verbose nennt ihre Warnungen, --quiet nur die Dateien, die nicht vollständig sind.</translation>
    </message>
    <message>
        <source>mend a file that cannot be opened because of its notes</source>
        <translation>repariert eine Datei, die sich wegen ihrer Notizen nicht öffnen lässt</translation>
    </message>
    <message>
        <source>Commas in notes become semicolons, quotes apostrophes; each such note is shown. Without --to and --in-place nothing is written.</source>
        <translation>Kommas in Notizen werden zu Semikolons, Anführungszeichen zu Apostrophen; jede solche Notiz wird gezeigt. Ohne --to und --in-place wird nichts geschrieben.</translation>
    </message>
    <message>
        <source>list what differs between two files, or a file and the receiver</source>
        <translation>nennt, was sich zwischen zwei Dateien unterscheidet, oder zwischen einer Datei und dem Empfänger</translation>
    </message>
    <message>
        <source>Rows, settings, banks and notes are named. Status 1 when there is a difference.</source>
        <translation>Genannt werden Zeilen, Einstellungen, Bänke und Notizen. Der Status ist 1, wenn es einen Unterschied gibt.</translation>
    </message>
    <message>
        <source>list serial ports</source>
        <translation>nennt die seriellen Anschlüsse</translation>
    </message>
    <message>
        <source>Each COM number with its device and whether it can be opened.</source>
        <translation>Jede COM-Nummer mit ihrem Gerät, und ob es sich öffnen lässt.</translation>
    </message>
    <message>
        <source>read one block and show the reply as it came</source>
        <translation>liest einen Block und zeigt die Antwort, wie sie kam</translation>
    </message>
    <message>
        <source>ADDRESS is hexadecimal and that of a block: 0000 to FFF0, the last digit 0.</source>
        <translation>ADDRESS ist hexadezimal und die eines Blocks: 0000 bis FFF0, die letzte Ziffer 0.</translation>
    </message>
    <message>
        <source>COM number 1 to 14, also as COM5, or a device or a link to one; without it the number in RQ-M5.ini</source>
        <translation>COM-Nummer 1 bis 14, auch als COM5, oder ein Gerät oder ein Link darauf; ohne die Option die Nummer in RQ-M5.ini</translation>
    </message>
    <message>
        <source>leave the other part out</source>
        <translation>lässt den anderen Teil aus</translation>
    </message>
    <message>
        <source>bank 0 to 49, program-scan, search-pass, priority or all (default)</source>
        <translation>Bank 0 bis 49, program-scan, search-pass, priority oder all (Vorgabe all)</translation>
    </message>
    <message>
        <source>the memory only: bank 0 to 49, program-scan, search-pass, priority or all; without it settings and all of the memory</source>
        <translation>nur der Speicher: Bank 0 bis 49, program-scan, search-pass, priority oder all; ohne die Option Einstellungen und der ganze Speicher</translation>
    </message>
    <message>
        <source>write JSON, as docs/json.md describes it</source>
        <translation>schreibt JSON, wie in docs/json.md beschrieben</translation>
    </message>
    <message>
        <source>write fields separated by tabs, titles first</source>
        <translation>schreibt durch Tabulatoren getrennte Felder, die Titel zuerst</translation>
    </message>
    <message>
        <source>take names of files from LIST, one on each line</source>
        <translation>nimmt die Namen der Dateien aus LIST, einen in jeder Zeile</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1; meinten Sie „%2“?</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>--port compares one file with the receiver; leave B out</source>
        <translation>--port vergleicht eine einzelne Datei mit dem Empfänger; lassen Sie B weg</translation>
    </message>
    <message>
        <source>%1 is about what is read from the receiver; add --port</source>
        <translation>%1 betrifft, was aus dem Empfänger gelesen wird; fügen Sie --port hinzu</translation>
    </message>
    <message>
        <source>B is missing; --port P compares with the receiver</source>
        <translation>B fehlt; --port P vergleicht mit dem Empfänger</translation>
    </message>
    <message>
        <source>list what would change and write nothing</source>
        <translation>nennt, was sich ändern würde, und schreibt nichts</translation>
    </message>
    <message>
        <source>store notes without commas and quotes</source>
        <translation>speichert Notizen ohne Kommas und Anführungszeichen</translation>
    </message>
    <message>
        <source>what decides the order (default frequency)</source>
        <translation>wonach sortiert wird (Vorgabe frequency)</translation>
    </message>
    <message>
        <source>what is taken; as for set, and also settings and banks</source>
        <translation>was übernommen wird; wie bei set, und auch settings und banks</translation>
    </message>
    <message>
        <source>find channels in files</source>
        <translation>sucht Kanäle in Dateien</translation>
    </message>
    <message>
        <source>PATTERN is one or more words: frequencies, modes, notes, tones. A word such as 118..137, mode=AM, tone=88.5, note~tower, bank:3 or program-scan leaves the rows that meet it. Prints file, bank, channel, memory row and what it holds. Status 1 when nothing was found.</source>
        <translation>PATTERN ist ein Wort oder mehrere: Frequenzen, Betriebsarten, Notizen, Töne. Ein Wort wie 118..137, mode=AM, tone=88.5, note~tower, bank:3 oder program-scan lässt nur die Zeilen übrig, auf die es passt. Ausgegeben werden Datei, Bank, Kanal, Speicherzeile und was sie enthält. Der Status ist 1, wenn nichts gefunden wurde.</translation>
    </message>
    <message>
        <source>change fields of channels</source>
        <translation>ändert Felder von Kanälen</translation>
    </message>
    <message>
        <source>ROWS is one or more of all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority and vfo, with commas between; conditions such as mode=AM, freq:118..137 and note~airport leave those of them that meet them. FIELD is freq, mode, step, option, secret, carrier, tone, shift, offset, note, skip or enabled. The limits are those of the channel editor.</source>
        <translation>ROWS ist eines oder mehrere von all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority und vfo, mit Kommas dazwischen; Bedingungen wie mode=AM, freq:118..137 und note~airport lassen nur die Zeilen davon übrig, auf die sie passen. FIELD ist freq, mode, step, option, secret, carrier, tone, shift, offset, note, skip oder enabled. Die Grenzen sind die des Kanaleditors.</translation>
    </message>
    <message>
        <source>switch channels on</source>
        <translation>schaltet Kanäle ein</translation>
    </message>
    <message>
        <source>ROWS is as for set.</source>
        <translation>ROWS wie bei set.</translation>
    </message>
    <message>
        <source>switch channels off</source>
        <translation>schaltet Kanäle aus</translation>
    </message>
    <message>
        <source>empty rows, with their notes</source>
        <translation>leert Zeilen, mit ihren Notizen</translation>
    </message>
    <message>
        <source>copy channels to another place</source>
        <translation>kopiert Kanäle an einen anderen Platz</translation>
    </message>
    <message>
        <source>ROWS is as for set. TO is a bank or group, whose empty rows take the channels, or one row such as bank:3/12, from which on they replace what is there.</source>
        <translation>ROWS wie bei set. TO ist eine Bank oder Gruppe, deren leere Zeilen die Kanäle aufnehmen, oder eine einzelne Zeile wie bank:3/12; von ihr an ersetzen sie, was dort ist.</translation>
    </message>
    <message>
        <source>move channels to another place</source>
        <translation>verschiebt Kanäle an einen anderen Platz</translation>
    </message>
    <message>
        <source>As copy; the rows that they came from become empty.</source>
        <translation>Wie copy; die Zeilen, aus denen sie kommen, werden leer.</translation>
    </message>
    <message>
        <source>sort the channels of banks and groups</source>
        <translation>sortiert die Kanäle von Bänken und Gruppen</translation>
    </message>
    <message>
        <source>ROWS is one or more places, each sorted by itself; all sorts every bank and group. Empty rows come last.</source>
        <translation>ROWS ist ein Platz oder mehrere, jeder für sich sortiert; all sortiert jede Bank und Gruppe. Leere Zeilen kommen ans Ende.</translation>
    </message>
    <message>
        <source>take rows of one file into another</source>
        <translation>übernimmt Zeilen einer Datei in eine andere</translation>
    </message>
    <message>
        <source>Rows of OTHER that --take names go to the same places of FILE; notes and flags go with them.</source>
        <translation>Zeilen von OTHER, die --take nennt, kommen an dieselben Plätze in FILE; Notizen und Marken gehen mit.</translation>
    </message>
    <message>
        <source>print the completion script of a shell</source>
        <translation>gibt das Vervollständigungsskript einer Shell aus</translation>
    </message>
    <message>
        <source>Installed with the program; for a shell of your own, source what it prints.</source>
        <translation>Wird mit dem Programm installiert; in einer eigenen Shell laden Sie mit source, was es ausgibt.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>erklärt einen Befehl</translation>
    </message>
    <message>
        <source>Without COMMAND it lists all of them.</source>
        <translation>Ohne COMMAND werden alle genannt.</translation>
    </message>
    <message>
        <source>TO %1 has room for %2 of %3 channels</source>
        <translation>TO %1 hat Platz für %2 von %3 Kanälen</translation>
    </message>
    <message>
        <source>sort takes places such as bank:3 or program-scan, and no conditions</source>
        <translation>sort nimmt Plätze wie bank:3 oder program-scan und keine Bedingungen</translation>
    </message>
    <message>
        <source>rows of two groups cannot be sorted as one; name them apart</source>
        <translation>Zeilen zweier Gruppen lassen sich nicht gemeinsam sortieren; nennen Sie sie getrennt</translation>
    </message>
    <message>
        <source>the two edges of a Program Scan pair stay together; name whole pairs</source>
        <translation>die beiden Grenzen eines Paars von Program Scan bleiben zusammen; nennen Sie ganze Paare</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>1 setting</source>
        <translation>1 Einstellung</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation>%1 Einstellungen</translation>
    </message>
    <message>
        <source>1 bank value</source>
        <translation>1 Bankwert</translation>
    </message>
    <message>
        <source>%1 bank values</source>
        <translation>%1 Bankwerte</translation>
    </message>
    <message>
        <source>%1 changed in %2</source>
        <translation>%1 geändert in %2</translation>
    </message>
    <message>
        <source>ROWS names channels that are not there: %1</source>
        <translation>ROWS nennt Kanäle, die es nicht gibt: %1</translation>
    </message>
    <message>
        <source>none of the rows that ROWS names holds a channel</source>
        <translation>keine der Zeilen, die ROWS nennt, enthält einen Kanal</translation>
    </message>
    <message>
        <source>ROWS names no row of this file</source>
        <translation>ROWS nennt keine Zeile dieser Datei</translation>
    </message>
    <message>
        <source>it is one place, such as bank:3 or bank:3/12</source>
        <translation>erlaubt ist ein einzelner Platz, etwa bank:3 oder bank:3/12</translation>
    </message>
    <message>
        <source>it is frequency, note or mode</source>
        <translation>erlaubt ist frequency, note oder mode</translation>
    </message>
    <message>
        <source>it is bash, zsh or fish</source>
        <translation>erlaubt ist bash, zsh oder fish</translation>
    </message>
    <message>
        <source>FIELD=VALUE is missing, such as mode=AM</source>
        <translation>FIELD=VALUE fehlt, etwa mode=AM</translation>
    </message>
    <message>
        <source>set changes rows, not settings or banks</source>
        <translation>set ändert Zeilen, keine Einstellungen oder Bänke</translation>
    </message>
    <message>
        <source>--take ROWS is missing: it says what is taken, such as bank:3 or all</source>
        <translation>--take ROWS fehlt: Die Option sagt, was übernommen wird, etwa bank:3 oder all</translation>
    </message>
    <message>
        <source>both names are the same file</source>
        <translation>beide Namen sind dieselbe Datei</translation>
    </message>
    <message>
        <source>several files need a folder: add --to FOLDER</source>
        <translation>mehrere Dateien brauchen einen Ordner: Fügen Sie --to FOLDER hinzu</translation>
    </message>
    <message>
        <source>--pdf takes one FILE</source>
        <translation>--pdf nimmt eine einzelne FILE</translation>
    </message>
    <message>
        <source>a spreadsheet would run these notes as formulas:</source>
        <translation>eine Tabellenkalkulation würde diese Notizen als Formeln ausführen:</translation>
    </message>
    <message>
        <source>%1: there is no such folder. Make it first.</source>
        <translation>%1: Diesen Ordner gibt es nicht. Legen Sie ihn zuerst an.</translation>
    </message>
    <message>
        <source>%1: another file of this name went to %2 just now. Export it by itself.</source>
        <translation>%1: Eine andere Datei dieses Namens wurde soeben nach %2 exportiert. Exportieren Sie diese für sich.</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1 gibt es schon; --force ersetzt die Datei</translation>
    </message>
    <message>
        <source>%1: the list names no file</source>
        <translation>%1: die Liste nennt keine Datei</translation>
    </message>
    <message>
        <source>this text, or with a command the help of the command</source>
        <translation>dieser Text, oder mit einem Befehl die Hilfe zu dem Befehl</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>die Version des Programms</translation>
    </message>
    <message>
        <source>no progress, no closing line and no notes</source>
        <translation>kein Fortschritt, keine Schlusszeile und keine Hinweise</translation>
    </message>
    <message>
        <source>every exchange with the receiver and every warning</source>
        <translation>jeder Austausch mit dem Empfänger und jede Warnung</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Reads, keeps and writes the memory of a Tervan RQ-M5 receiver.</source>
        <translation>Liest, bewahrt und schreibt den Speicher eines Empfängers Tervan RQ-M5.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>&quot;-&quot; as a file name is standard input or standard output.</source>
        <translation>„-“ als Dateiname ist die Standardeingabe oder die Standardausgabe.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 the operation failed or found a difference, 2 wrong usage.</source>
        <translation>Exit-Status: 0 erledigt, 1 der Vorgang misslang oder fand einen Unterschied, 2 falscher Gebrauch.</translation>
    </message>
    <message>
        <source>%1 would be taken from %2</source>
        <translation>Zu übernehmen aus %2: %1</translation>
    </message>
    <message>
        <source>%1 taken from %2</source>
        <translation>%1 aus %2 übernommen</translation>
    </message>
    <message>
        <source>not everything was read as written; %1</source>
        <translation>nicht alles wurde so gelesen, wie es dasteht; %1</translation>
    </message>
    <message>
        <source>the carrier code of %1 moved one up, as with every import of an export: 300Hz is stored as 400Hz</source>
        <translation>der Zugfunkton von %1 ist um eine Stufe nach oben gerückt, wie bei jedem Import eines Exports: 300Hz ist als 400Hz gespeichert</translation>
    </message>
    <message>
        <source>%1 holds no record of an RQ-M5; %2</source>
        <translation>%1 enthält keinen Datensatz eines RQ-M5; %2</translation>
    </message>
    <message>
        <source>Read as a list: %1</source>
        <translation>Als Liste gelesen: %1</translation>
    </message>
    <message>
        <source>not taken: %1</source>
        <translation>nicht übernommen: %1</translation>
    </message>
    <message>
        <source>left out:</source>
        <translation>ausgelassen:</translation>
    </message>
    <message>
        <source>no row of %1 can be taken; %2</source>
        <translation>aus %1 lässt sich keine Zeile übernehmen; %2</translation>
    </message>
    <message>
        <source>no titles; columns are 1 to %1</source>
        <translation>keine Titel; die Spalten sind 1 bis %1</translation>
    </message>
    <message>
        <source>the list has no column &quot;%1&quot;; it has %2</source>
        <translation>die Liste hat keine Spalte „%1“; sie hat %2</translation>
    </message>
    <message>
        <source>the list does not say which rows it belongs to; name the first one with --from-row, or the columns that name them with --map</source>
        <translation>die Liste sagt nicht, zu welchen Zeilen sie gehört; nennen Sie die erste mit --from-row, oder mit --map die Spalten, die sie nennen</translation>
    </message>
    <message>
        <source>there is no row %1 in this file</source>
        <translation>eine Zeile %1 gibt es in dieser Datei nicht</translation>
    </message>
    <message>
        <source>a row is a number 0 to 1209, BANK:CHANNEL such as 3:12, program-scan, search-pass or priority</source>
        <translation>eine Zeile ist eine Nummer 0 bis 1209, BANK:CHANNEL wie 3:12, program-scan, search-pass oder priority</translation>
    </message>
    <message>
        <source>bank %1 has other rows in OTHER than in FILE. Take &quot;banks&quot; as well, or name the rows as memory:0-199</source>
        <translation>Bank %1 hat in OTHER andere Zeilen als in FILE. Übernehmen Sie auch „banks“, oder nennen Sie die Zeilen in der Form memory:0-199</translation>
    </message>
    <message>
        <source>ROWS names no row of OTHER</source>
        <translation>ROWS nennt keine Zeile von OTHER</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;.</source>
        <translation>Benutzen Sie „%1“.</translation>
    </message>
    <message>
        <source>%1: the program that makes PDFs cannot be started. Install rq-m5 again, or print from the window.</source>
        <translation>%1: Das Programm, das PDFs erzeugt, lässt sich nicht starten. Installieren Sie rq-m5 noch einmal, oder drucken Sie im Fenster.</translation>
    </message>
    <message>
        <source>Try &quot;%1&quot;.</source>
        <translation>Hilfe gibt „%1“.</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>unbekannter Befehl „%1“</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>ein Befehl fehlt</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>Port: %1, %2 (without --port, that of RQ-M5.ini)</source>
        <translation>Anschluss: %1, %2 (ohne --port der aus RQ-M5.ini)</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>kein Gerät</translation>
    </message>
    <message>
        <source>%1: there is a file already; choose another name</source>
        <translation>%1: es gibt schon eine Datei; wählen Sie einen anderen Namen</translation>
    </message>
    <message>
        <source>%1: more than 16 MiB came. No clone file and no CSV file of a receiver is as long; check what is sent.</source>
        <translation>%1: Es kamen mehr als 16 MiB. Keine Klondatei oder CSV-Datei eines Empfängers ist so lang; prüfen Sie, was gesendet wird.</translation>
    </message>
    <message>
        <source>%1: it cannot be read. Give the name of a file.</source>
        <translation>%1: lässt sich nicht lesen. Geben Sie den Namen einer Datei an.</translation>
    </message>
    <message>
        <source>%1: it cannot be opened. Check its permissions.</source>
        <translation>%1: lässt sich nicht öffnen. Prüfen Sie die Berechtigungen.</translation>
    </message>
    <message>
        <source>nothing is written</source>
        <translation>nichts ist geschrieben</translation>
    </message>
    <message>
        <source>%1 is as it was</source>
        <translation>%1 ist unverändert</translation>
    </message>
    <message>
        <source>the output could not be written; is the disk full?</source>
        <translation>die Ausgabe ließ sich nicht schreiben; ist die Platte voll?</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>%1: there is a file already, and a backup replaces none; choose another name</source>
        <translation>%1: es gibt schon eine Datei, und eine Sicherung ersetzt keine; wählen Sie einen anderen Namen</translation>
    </message>
    <message>
        <source>%1: first %2, then %3</source>
        <translation>%1: zuerst %2, dann %3</translation>
    </message>
    <message>
        <source>%1 is written with what came. Check the cable and read again.</source>
        <translation>%1 ist mit dem geschrieben, was kam. Prüfen Sie das Kabel, und lesen Sie noch einmal.</translation>
    </message>
    <message>
        <source>%1 is written with what came; as it was it is kept as %2. Check the cable and read again.</source>
        <translation>%1 ist mit dem geschrieben, was kam; die alte Datei bleibt als %2 erhalten. Prüfen Sie das Kabel, und lesen Sie noch einmal.</translation>
    </message>
    <message>
        <source>Enable flags of other rows that differ from FILE: %1; the receiver keeps its own.</source>
        <translation>Einschaltmarken anderer Zeilen, die von FILE abweichen: %1; der Empfänger behält seine eigenen.</translation>
    </message>
    <message>
        <source>these rows are outside the receiver&apos;s range (%1) and are written as they are:</source>
        <translation>diese Zeilen liegen außerhalb des Empfangsbereichs (%1) und werden unverändert geschrieben:</translation>
    </message>
    <message>
        <source>%1 If that is meant, repeat with --force. The backup is in %2</source>
        <translation>%1 Ist das so gemeint, wiederholen Sie es mit --force. Die Sicherung ist in %2</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>regions are 0 to 3</source>
        <translation>Regionen gehen von 0 bis 3</translation>
    </message>
    <message>
        <source>port numbers are 1 to 14; a device path such as /dev/ttyUSB0 is taken too</source>
        <translation>Anschlussnummern gehen von 1 bis 14; auch ein Gerätepfad wie /dev/ttyUSB0 ist erlaubt</translation>
    </message>
    <message>
        <source>it is settings or memory</source>
        <translation>erlaubt ist settings oder memory</translation>
    </message>
    <message>
        <source>it is a bank 0 to 49, %1 or %2</source>
        <translation>erlaubt ist eine Bank 0 bis 49, %1 oder %2</translation>
    </message>
    <message>
        <source>it is a4 or letter</source>
        <translation>erlaubt ist a4 oder letter</translation>
    </message>
    <message>
        <source>the name of a file is missing</source>
        <translation>der Name einer Datei fehlt</translation>
    </message>
    <message>
        <source>--bank chooses channels, and --only settings leaves them out</source>
        <translation>--bank wählt Kanäle, und --only settings lässt sie aus</translation>
    </message>
    <message>
        <source>%1 is about channels, which are not printed; add --memory</source>
        <translation>%1 betrifft Kanäle, die nicht ausgegeben werden; fügen Sie --memory hinzu</translation>
    </message>
    <message>
        <source>%1 is about the pages of a PDF; add --pdf</source>
        <translation>%1 betrifft die Seiten eines PDF; fügen Sie --pdf hinzu</translation>
    </message>
    <message>
        <source>The receiver holds what FILE says already; nothing was written.</source>
        <translation>Im Empfänger steht schon, was FILE sagt; nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Known of the receiver since %1.</source>
        <translation>Stand des Empfängers bekannt seit %1.</translation>
    </message>
    <message>
        <source>%1 If that is meant, repeat with --force.</source>
        <translation>%1 Ist das so gemeint, wiederholen Sie es mit --force.</translation>
    </message>
    <message>
        <source>What is to be written was changed at the receiver, too. Read it into another file and take over what is right, or write without --changes.</source>
        <translation>Was geschrieben werden soll, wurde auch am Empfänger geändert. Lesen Sie ihn in eine andere Datei, und übernehmen Sie, was richtig ist, oder schreiben Sie ohne --changes.</translation>
    </message>
    <message>
        <source>%1, %2: known %3, receiver %4, FILE %5</source>
        <translation>%1, %2: bekannt %3, Empfänger %4, FILE %5</translation>
    </message>
    <message>
        <source>--known says what a write of changes begins with; add --changes</source>
        <translation>--known sagt, wovon ein Schreiben der Änderungen ausgeht; fügen Sie --changes hinzu</translation>
    </message>
    <message>
        <source>--changes looks at all parts; leave out %1</source>
        <translation>--changes betrachtet alle Teile; lassen Sie %1 weg</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1 %2 left out</source>
        <translation>%1 %2 ausgelassen</translation>
    </message>
    <message>
        <source>%1 has lost digits to an exponent in a spreadsheet</source>
        <translation>%1 hat in einer Tabellenkalkulation Ziffern an einen Exponenten verloren</translation>
    </message>
    <message>
        <source>%1 cannot be read for certain as a frequency</source>
        <translation>%1 lässt sich nicht sicher als Frequenz lesen</translation>
    </message>
    <message>
        <source>a frequency of 0 is no channel</source>
        <translation>eine Frequenz von 0 ist kein Kanal</translation>
    </message>
    <message>
        <source>the receiver has no mode %1</source>
        <translation>der Empfänger hat keine Betriebsart %1</translation>
    </message>
    <message>
        <source>the note is cut to 255 characters</source>
        <translation>die Notiz ist auf 255 Zeichen gekürzt</translation>
    </message>
    <message>
        <source>it is a VFO band</source>
        <translation>ist ein VFO-Band</translation>
    </message>
    <message>
        <source>there is no frequency</source>
        <translation>es gibt keine Frequenz</translation>
    </message>
    <message>
        <source>there are more than 64 columns</source>
        <translation>es gibt mehr als 64 Spalten</translation>
    </message>
    <message>
        <source>there are more fields than titles</source>
        <translation>es gibt mehr Felder als Titel</translation>
    </message>
    <message>
        <source>it and all behind it are not read: no list of channels has more than 5000 rows</source>
        <translation>diese Zeile und alle dahinter werden nicht gelesen: keine Kanalliste hat mehr als 5000 Zeilen</translation>
    </message>
    <message>
        <source>first line</source>
        <translation>erste Zeile</translation>
    </message>
    <message>
        <source>settings block %1</source>
        <translation>Einstellungsblock %1</translation>
    </message>
    <message>
        <source>VFO row %1</source>
        <translation>VFO-Zeile %1</translation>
    </message>
    <message>
        <source>memory row %1</source>
        <translation>Speicherzeile %1</translation>
    </message>
    <message>
        <source>channel flags %1</source>
        <translation>Kanalmarken %1</translation>
    </message>
    <message>
        <source>note of VFO row %1</source>
        <translation>Notiz der VFO-Zeile %1</translation>
    </message>
    <message>
        <source>note of memory row %1</source>
        <translation>Notiz der Speicherzeile %1</translation>
    </message>
    <message>
        <source>bank sizes %1</source>
        <translation>Bankgrößen %1</translation>
    </message>
    <message>
        <source>bank links</source>
        <translation>Bankverknüpfungen</translation>
    </message>
    <message>
        <source>last line</source>
        <translation>letzte Zeile</translation>
    </message>
    <message>
        <source>Take an older copy of the file, or read the receiver again.</source>
        <translation>Nehmen Sie eine ältere Kopie der Datei, oder lesen Sie den Empfänger noch einmal.</translation>
    </message>
    <message>
        <source>line 1 is not &quot;%1&quot;, so this is no clone file. Choose a clone file (*.RQ5); a CSV file is imported instead.</source>
        <translation>Zeile 1 ist nicht „%1“, also ist dies keine Klondatei. Wählen Sie eine Klondatei (*.RQ5); eine CSV-Datei wird stattdessen importiert.</translation>
    </message>
    <message>
        <source>the file is empty.</source>
        <translation>die Datei ist leer.</translation>
    </message>
    <message>
        <source>the file ends at line %1 of %2: it was cut short.</source>
        <translation>die Datei endet in Zeile %1 von %2: Sie ist abgeschnitten.</translation>
    </message>
    <message>
        <source>line %1 (%2) has %3 characters, %4 are needed. Correct the line in a text editor, or take an older copy of the file.</source>
        <translation>Zeile %1 (%2) hat %3 Zeichen, nötig sind %4. Berichtigen Sie die Zeile in einem Texteditor, oder nehmen Sie eine ältere Kopie der Datei.</translation>
    </message>
    <message>
        <source>line %1 (%2) is not &quot;%3&quot;: lines were added or the file is damaged.</source>
        <translation>Zeile %1 (%2) ist nicht „%3“: Es sind Zeilen hinzugekommen, oder die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>line %1 (%2) holds a comma, which ends a note and shifts all that follows. File &gt; Repair, or &quot;rq-m5 repair&quot;, replaces it.</source>
        <translation>Zeile %1 (%2) enthält ein Komma, das eine Notiz beendet und alles Folgende verschiebt. Datei &gt; Reparieren oder „rq-m5 repair“ ersetzt es.</translation>
    </message>
    <message>
        <source>%1 is none of the receiver&apos;s</source>
        <translation>%1 kennt der Empfänger nicht</translation>
    </message>
    <message>
        <source>%1 is out of range</source>
        <translation>%1 liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma</source>
        <translation>%1 wird als %2 gelesen (Dezimalkomma)</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma, none of the receiver&apos;s</source>
        <translation>%1 wird als %2 gelesen (Dezimalkomma), was der Empfänger nicht kennt</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma, out of range</source>
        <translation>%1 wird als %2 gelesen (Dezimalkomma), außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>%1 is read as %2</source>
        <translation>%1 wird als %2 gelesen</translation>
    </message>
    <message>
        <source>%1 is read as %2, none of the receiver&apos;s</source>
        <translation>%1 wird als %2 gelesen, was der Empfänger nicht kennt</translation>
    </message>
    <message>
        <source>%1 is read as %2, out of range</source>
        <translation>%1 wird als %2 gelesen, außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>the row keeps what it has</source>
        <translation>die Zeile behält, was sie hat</translation>
    </message>
    <message>
        <source>the row keeps %1</source>
        <translation>die Zeile behält %1</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 is read as OFF</source>
        <translation>%1 wird als OFF gelesen</translation>
    </message>
    <message>
        <source>%1 MHz is outside the receiver&apos;s range (0.1 to 1299.995 MHz)</source>
        <translation>%1 MHz liegt außerhalb des Empfangsbereichs (0.1 bis 1299.995 MHz)</translation>
    </message>
    <message>
        <source>the row is empty now</source>
        <translation>die Zeile ist jetzt leer</translation>
    </message>
    <message>
        <source>%1 is read as #FALSE#</source>
        <translation>%1 wird als #FALSE# gelesen</translation>
    </message>
    <message>
        <source>1 remark</source>
        <translation>1 Anmerkung</translation>
    </message>
    <message>
        <source>%1 remarks</source>
        <translation>%1 Anmerkungen</translation>
    </message>
    <message>
        <source>1 row keeps an old value</source>
        <translation>1 Zeile behält einen alten Wert</translation>
    </message>
    <message>
        <source>%1 rows keep an old value</source>
        <translation>%1 Zeilen behalten einen alten Wert</translation>
    </message>
    <message>
        <source>1 number has a decimal comma</source>
        <translation>1 Zahl hat ein Dezimalkomma</translation>
    </message>
    <message>
        <source>%1 numbers have a decimal comma</source>
        <translation>%1 Zahlen haben ein Dezimalkomma</translation>
    </message>
    <message>
        <source>it does not begin with %1 and is passed over</source>
        <translation>beginnt nicht mit %1 und wird übergangen</translation>
    </message>
    <message>
        <source>there is no table &quot;%1&quot;; the record is passed over</source>
        <translation>eine Tabelle „%1“ gibt es nicht; der Datensatz wird übergangen</translation>
    </message>
    <message>
        <source>%1 has no channel &quot;%2&quot;; the record is passed over</source>
        <translation>%1 hat keinen Kanal „%2“; der Datensatz wird übergangen</translation>
    </message>
    <message>
        <source>the record is short and is passed over</source>
        <translation>der Datensatz ist zu kurz und wird übergangen</translation>
    </message>
    <message>
        <source>the record is short; what stands in the next line was read into it</source>
        <translation>der Datensatz ist zu kurz; was in der nächsten Zeile steht, wurde dazugelesen</translation>
    </message>
    <message>
        <source>the record has more than 15 fields; the rest is passed over</source>
        <translation>der Datensatz hat mehr als 15 Felder; der Rest wird übergangen</translation>
    </message>
    <message>
        <source>the extended attribute %1 is gone</source>
        <translation>das erweiterte Attribut %1 ist verloren</translation>
    </message>
    <message>
        <source>the owner was %1 and is %2</source>
        <translation>der Eigentümer war %1 und ist %2</translation>
    </message>
    <message>
        <source>the group was %1 and is %2</source>
        <translation>die Gruppe war %1 und ist %2</translation>
    </message>
    <message>
        <source>the permissions were %1 and are %2</source>
        <translation>die Berechtigungen waren %1 und sind %2</translation>
    </message>
    <message>
        <source>the access list is gone</source>
        <translation>die Zugriffsliste ist verloren</translation>
    </message>
    <message>
        <source>this is a clone file</source>
        <translation>das ist eine Klondatei</translation>
    </message>
    <message>
        <source>this is a CSV file of this program</source>
        <translation>das ist eine CSV-Datei dieses Programms</translation>
    </message>
    <message>
        <source>this is a PDF</source>
        <translation>das ist ein PDF</translation>
    </message>
    <message>
        <source>this is a file of another kind</source>
        <translation>das ist eine Datei anderer Art</translation>
    </message>
    <message>
        <source>and not a clone file</source>
        <translation>und keine Klondatei</translation>
    </message>
    <message>
        <source>and not a CSV file of this program</source>
        <translation>und keine CSV-Datei dieses Programms</translation>
    </message>
    <message>
        <source>and not a PDF</source>
        <translation>und kein PDF</translation>
    </message>
    <message>
        <source>%1: %2 %3; give another name, or --force to replace it</source>
        <translation>%1: %2 %3; geben Sie einen anderen Namen an, oder --force, um die Datei zu ersetzen</translation>
    </message>
    <message>
        <source>there is a folder or a device of that name</source>
        <translation>es gibt einen Ordner oder ein Gerät mit diesem Namen</translation>
    </message>
    <message>
        <source>%1: the old file cannot be kept under this name (%2), so nothing was changed. Make room for it, or save under another name.</source>
        <translation>%1: Die alte Datei lässt sich unter diesem Namen nicht aufheben (%2), deshalb wurde nichts geändert. Schaffen Sie Platz dafür, oder speichern Sie unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>%1: another program wrote this file right after it was saved, so it holds something else. Look at it, then save again or under another name.</source>
        <translation>%1: Ein anderes Programm hat diese Datei gleich nach dem Speichern geschrieben; sie enthält deshalb etwas anderes. Sehen Sie sie sich an, und speichern Sie dann noch einmal, oder unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>%1: the file does not hold what was written to it. The disk may be failing; save to another one.</source>
        <translation>%1: Die Datei enthält nicht, was in sie geschrieben wurde. Die Festplatte ist vielleicht defekt; speichern Sie auf eine andere.</translation>
    </message>
    <message>
        <source>%1 The new file is in place; only what it holds could not be compared with what was written.</source>
        <translation>%1 Die neue Datei ist an ihrem Platz; nur ihr Inhalt ließ sich nicht mit dem Geschriebenen vergleichen.</translation>
    </message>
    <message>
        <source>commas stand for decimals and between fields; separate the fields by tabs</source>
        <translation>Kommas stehen als Dezimalzeichen und zwischen den Feldern; trennen Sie die Felder durch Tabulatoren</translation>
    </message>
    <message>
        <source>there is no encoding &quot;%1&quot;; one of them is WINDOWS-1252</source>
        <translation>eine Zeichencodierung „%1“ gibt es nicht; eine der vorhandenen ist WINDOWS-1252</translation>
    </message>
    <message>
        <source>the delimiter is tab, semicolon, comma or none</source>
        <translation>@delimiter ist tab, semicolon, comma oder none</translation>
    </message>
    <message>
        <source>the decimal sign is point or comma</source>
        <translation>@decimal ist point oder comma</translation>
    </message>
    <message>
        <source>@titles is yes or no</source>
        <translation>@titles ist yes oder no</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of @encoding, @delimiter, @decimal and @titles</source>
        <translation>„%1“ ist keines von @encoding, @delimiter, @decimal und @titles</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not followed by &quot;=&quot; and a field</source>
        <translation>auf „%1“ folgen nicht „=“ und ein Feld</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;; the fields are %2</source>
        <translation>ein Feld „%1“ gibt es nicht; die Felder sind %2</translation>
    </message>
    <message>
        <source>one field a line</source>
        <translation>ein Feld je Zeile</translation>
    </message>
    <message>
        <source>each number by itself</source>
        <translation>jede Zahl für sich</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>%1; fields: %2; decimals: %3</source>
        <translation>%1; Felder: %2; Dezimalzeichen: %3</translation>
    </message>
    <message>
        <source>not used: %1</source>
        <translation>nicht benutzt: %1</translation>
    </message>
    <message>
        <source>line %1, %2: %3 -&gt; %4</source>
        <translation>Zeile %1, %2: %3 -&gt; %4</translation>
    </message>
    <message>
        <source>%1: cannot be made</source>
        <translation>%1: lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>the new file gets no name here (%1)</source>
        <translation>die neue Datei bekommt hier keinen Namen (%1)</translation>
    </message>
    <message>
        <source>What was read could not be kept elsewhere either: %1</source>
        <translation>Auch anderswo ließ sich das Gelesene nicht aufheben: %1</translation>
    </message>
    <message>
        <source>What was read is kept in %1; rq-m5-clone offers it at its next start.</source>
        <translation>Das Gelesene ist in %1 aufgehoben; rq-m5-clone bietet es beim nächsten Start an.</translation>
    </message>
    <message>
        <source>%1: %2. %3</source>
        <translation>%1: %2. %3</translation>
    </message>
    <message>
        <source>no file name was given</source>
        <translation>es wurde kein Dateiname angegeben</translation>
    </message>
    <message>
        <source>Give one.</source>
        <translation>Geben Sie einen an.</translation>
    </message>
    <message>
        <source>this is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>Give the name of a file.</source>
        <translation>Geben Sie den Namen einer Datei an.</translation>
    </message>
    <message>
        <source>this is a device or a pipe and no file</source>
        <translation>das ist ein Gerät oder eine Pipe und keine Datei</translation>
    </message>
    <message>
        <source>Change the permissions of the file or save under another name.</source>
        <translation>Ändern Sie die Berechtigungen der Datei, oder speichern Sie unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>Check the name and the permissions of the folder, or save in another one.</source>
        <translation>Prüfen Sie den Namen und die Berechtigungen des Ordners, oder speichern Sie in einen anderen.</translation>
    </message>
    <message>
        <source>Free some space on the disk or save on another one, then repeat.</source>
        <translation>Schaffen Sie Platz auf der Platte, oder speichern Sie auf eine andere, und wiederholen Sie es dann.</translation>
    </message>
    <message>
        <source>Give a shorter name.</source>
        <translation>Geben Sie einen kürzeren Namen an.</translation>
    </message>
    <message>
        <source>Too many files are open; close other programs, then repeat.</source>
        <translation>Zu viele Dateien sind offen; schließen Sie andere Programme, und wiederholen Sie es dann.</translation>
    </message>
    <message>
        <source>The disk may be failing; save on another one.</source>
        <translation>Die Festplatte ist vielleicht defekt; speichern Sie auf eine andere.</translation>
    </message>
    <message>
        <source>Save in another folder or on another disk.</source>
        <translation>Speichern Sie in einen anderen Ordner oder auf eine andere Platte.</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>den Ordner %1 gibt es nicht</translation>
    </message>
    <message>
        <source>Make the folder or choose another one.</source>
        <translation>Legen Sie den Ordner an, oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>Check its name and its folder.</source>
        <translation>Prüfen Sie ihren Namen und ihren Ordner.</translation>
    </message>
    <message>
        <source>the file is larger than 16 MiB</source>
        <translation>die Datei ist größer als 16 MiB</translation>
    </message>
    <message>
        <source>No clone file and no CSV file of a receiver is; choose another one.</source>
        <translation>Keine Klondatei oder CSV-Datei eines Empfängers ist so groß; wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>only %1 KiB are free on the disk, and the file needs %2</source>
        <translation>auf der Platte sind nur %1 KiB frei, und die Datei braucht %2</translation>
    </message>
    <message>
        <source>%1; the new file is in place, but it may be lost when the power fails</source>
        <translation>%1; die neue Datei ist an ihrem Platz, kann aber bei einem Stromausfall verloren gehen</translation>
    </message>
    <message>
        <source>%1; nothing was changed</source>
        <translation>%1; nichts wurde geändert</translation>
    </message>
    <message>
        <source>Change the permissions of the file or open a copy.</source>
        <translation>Ändern Sie die Berechtigungen der Datei, oder öffnen Sie eine Kopie.</translation>
    </message>
    <message>
        <source>Open a copy from another disk.</source>
        <translation>Öffnen Sie eine Kopie von einer anderen Platte.</translation>
    </message>
    <message>
        <source>%1 (no device)</source>
        <translation>%1 (kein Gerät)</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Build</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
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
        <translation>%1, kompiliert mit %2</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Port number file</source>
        <translation>Datei der Anschlussnummer</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Secret code</source>
        <translation>Geheimcode</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>Träger</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Shift frequency</source>
        <translation>Ablagefrequenz</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
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
        <translation>Eine Adresse ist hexadezimal, zum Beispiel 1000.</translation>
    </message>
    <message>
        <source>The highest address is %1.</source>
        <translation>Die höchste Adresse ist %1.</translation>
    </message>
    <message>
        <source>An address is that of a block of 16 bytes, so its last digit is 0.</source>
        <translation>Eine Adresse ist die eines Blocks von 16 Bytes; ihre letzte Ziffer ist deshalb 0.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>Search Pass count</source>
        <translation>Anzahl Search Pass</translation>
    </message>
    <message>
        <source>Region presets</source>
        <translation>Festsender der Region</translation>
    </message>
    <message>
        <source>Bank sizes</source>
        <translation>Bankgrößen</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Bank %1 link</source>
        <translation>Verknüpfung von Bank %1</translation>
    </message>
    <message>
        <source>Enabled channels</source>
        <translation>Eingeschaltete Kanäle</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>Block %1</source>
        <translation>Block %1</translation>
    </message>
    <message>
        <source>less than a second</source>
        <translation>weniger als eine Sekunde</translation>
    </message>
    <message>
        <source>about one second</source>
        <translation>etwa eine Sekunde</translation>
    </message>
    <message>
        <source>about %1 seconds</source>
        <translation>etwa %1 Sekunden</translation>
    </message>
    <message>
        <source>about one minute</source>
        <translation>etwa eine Minute</translation>
    </message>
    <message>
        <source>about %1 minutes</source>
        <translation>etwa %1 Minuten</translation>
    </message>
    <message>
        <source>The receiver was never read in this run: %1 blocks, %2</source>
        <translation>Der Empfänger wurde in diesem Lauf noch nicht gelesen: %1 Blöcke, %2</translation>
    </message>
    <message>
        <source>Not known of the receiver: %1 blocks, %2</source>
        <translation>Unbekannte Blöcke des Empfängers: %1, %2</translation>
    </message>
    <message>
        <source>1 channel on</source>
        <translation>1 Kanal eingeschaltet</translation>
    </message>
    <message>
        <source>%1 channels on</source>
        <translation>%1 Kanäle eingeschaltet</translation>
    </message>
    <message>
        <source>1 bank size</source>
        <translation>1 Bankgröße</translation>
    </message>
    <message>
        <source>%1 bank sizes</source>
        <translation>%1 Bankgrößen</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 Verknüpfung</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 Verknüpfungen</translation>
    </message>
    <message>
        <source>1 VFO band</source>
        <translation>1 VFO-Band</translation>
    </message>
    <message>
        <source>%1 VFO bands</source>
        <translation>%1 VFO-Bänder</translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation>nichts geändert</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>Read in %1 and verified: %2</source>
        <translation>Gelesen in %1 und geprüft: %2</translation>
    </message>
    <message>
        <source>Read in %1: %2</source>
        <translation>Gelesen in %1: %2</translation>
    </message>
    <message>
        <source>Written in %1 and verified</source>
        <translation>Geschrieben in %1 und geprüft</translation>
    </message>
    <message>
        <source>Written in %1</source>
        <translation>Geschrieben in %1</translation>
    </message>
    <message>
        <source>Compared in %1: no block differs</source>
        <translation>Verglichen in %1: kein Block weicht ab</translation>
    </message>
    <message>
        <source>Compared in %1: 1 block differs</source>
        <translation>Verglichen in %1: 1 Block weicht ab</translation>
    </message>
    <message>
        <source>Compared in %1: %2 blocks differ</source>
        <translation>Verglichen in %1: %2 Blöcke weichen ab</translation>
    </message>
    <message>
        <source>Settings 2 (Search Pass count)</source>
        <translation>Einstellungen 2 (Anzahl Search Pass)</translation>
    </message>
    <message>
        <source>1 block needed more than one attempt</source>
        <translation>1 Block brauchte mehr als einen Versuch</translation>
    </message>
    <message>
        <source>%1 blocks needed more than one attempt</source>
        <translation>%1 Blöcke brauchten mehr als einen Versuch</translation>
    </message>
    <message>
        <source>1 block was read with characters that are no hex digits</source>
        <translation>1 Block wurde mit Zeichen gelesen, die keine Hexziffern sind</translation>
    </message>
    <message>
        <source>%1 blocks were read with characters that are no hex digits</source>
        <translation>%1 Blöcke wurden mit Zeichen gelesen, die keine Hexziffern sind</translation>
    </message>
    <message>
        <source>1 block was different when it was read again</source>
        <translation>1 Block war beim zweiten Lesen anders</translation>
    </message>
    <message>
        <source>%1 blocks were different when they were read again</source>
        <translation>%1 Blöcke waren beim zweiten Lesen anders</translation>
    </message>
    <message>
        <source>%1, the first of them: %2. Check the cable, then repeat the operation.</source>
        <translation>%1, der erste davon: %2. Prüfen Sie das Kabel, und wiederholen Sie dann den Vorgang.</translation>
    </message>
    <message>
        <source>Replies came late again and again, so that it cannot be told to which block each belongs. Check the cable and the receiver&apos;s battery, then read again.</source>
        <translation>Antworten kamen immer wieder zu spät; deshalb ist nicht zu erkennen, zu welchem Block jede gehört. Prüfen Sie das Kabel und den Akku des Empfängers, und lesen Sie dann noch einmal.</translation>
    </message>
    <message>
        <source>All was sent, but replies came late, so that an OK may have been another block&apos;s. Verify what the receiver holds, or repeat the write.</source>
        <translation>Alles wurde gesendet, aber Antworten kamen zu spät; ein OK kann deshalb das eines anderen Blocks gewesen sein. Prüfen Sie, was der Empfänger enthält, oder wiederholen Sie das Schreiben.</translation>
    </message>
    <message>
        <source>All was read, but not all of it could be read again to compare.</source>
        <translation>Alles wurde gelesen, aber nicht alles ließ sich zum Vergleich noch einmal lesen.</translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access to the device.</source>
        <translation>Bitten Sie den Administrator dieses Computers um Zugriff auf das Gerät.</translation>
    </message>
    <message>
        <source>The group &quot;%1&quot; may use it. Add yourself with &quot;%2&quot;, then log out and in again.</source>
        <translation>Die Gruppe „%1“ darf es benutzen. Treten Sie ihr mit „%2“ bei, und melden Sie sich dann ab und wieder an.</translation>
    </message>
    <message>
        <source>No serial port was found. Plug the adapter in and try again.</source>
        <translation>Kein serieller Anschluss gefunden. Stecken Sie den Adapter ein, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Ports found: %1.</source>
        <translation>Gefundene Anschlüsse: %1.</translation>
    </message>
    <message>
        <source>The receiver sent nothing.</source>
        <translation>Der Empfänger hat nichts gesendet.</translation>
    </message>
    <message>
        <source>The reply was too short.</source>
        <translation>Die Antwort war zu kurz.</translation>
    </message>
    <message>
        <source>The reply was garbled.</source>
        <translation>Die Antwort war verstümmelt.</translation>
    </message>
    <message>
        <source>The receiver did not answer OK.</source>
        <translation>Der Empfänger hat nicht mit OK geantwortet.</translation>
    </message>
    <message>
        <source>Another program uses the port. Close it and try again.</source>
        <translation>Ein anderes Programm benutzt den Anschluss. Schließen Sie es, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Choose another port. %1</source>
        <translation>Wählen Sie einen anderen Anschluss. %1</translation>
    </message>
    <message>
        <source>Plug the adapter in again and repeat the operation.</source>
        <translation>Stecken Sie den Adapter wieder ein, und wiederholen Sie den Vorgang.</translation>
    </message>
    <message>
        <source>Check the port and the cable, then repeat the operation.</source>
        <translation>Prüfen Sie den Anschluss und das Kabel, und wiederholen Sie dann den Vorgang.</translation>
    </message>
    <message>
        <source>(no device)</source>
        <translation>(kein Gerät)</translation>
    </message>
    <message>
        <source>the port failed</source>
        <translation>der Anschluss ist ausgefallen</translation>
    </message>
    <message>
        <source>Block %1 was not asked for: replies had been missing, and then the line did not fall silent. Check the cable, and that nothing but the receiver is on the line.</source>
        <translation>Block %1 wurde nicht angefordert: Antworten waren ausgeblieben, und danach wurde die Leitung nicht still. Prüfen Sie das Kabel, und ob nichts als der Empfänger an der Leitung ist.</translation>
    </message>
    <message>
        <source>one attempt</source>
        <translation>einem Versuch</translation>
    </message>
    <message>
        <source>%1 attempts</source>
        <translation>%1 Versuchen</translation>
    </message>
    <message>
        <source>Check the cable, that the receiver is switched on and that it is in clone mode.</source>
        <translation>Prüfen Sie das Kabel, und ob der Empfänger eingeschaltet und im Klonmodus ist.</translation>
    </message>
    <message>
        <source>Block %1 could not be written in %2. %3 %4</source>
        <translation>Block %1 ließ sich in %2 nicht schreiben. %3 %4</translation>
    </message>
    <message>
        <source>Block %1 could not be read in %2. %3 %4</source>
        <translation>Block %1 ließ sich in %2 nicht lesen. %3 %4</translation>
    </message>
    <message>
        <source>bank sizes</source>
        <translation>Bankgrößen</translation>
    </message>
    <message>
        <source>enable flags</source>
        <translation>Einschaltmarken</translation>
    </message>
    <message>
        <source>Bank links</source>
        <translation>Bankverknüpfungen</translation>
    </message>
    <message>
        <source>list of Search Pass channels</source>
        <translation>Liste der Search-Pass-Kanäle</translation>
    </message>
    <message>
        <source>region presets</source>
        <translation>Festsender der Region</translation>
    </message>
    <message>
        <source>Bank sizes %1 to %2</source>
        <translation>Bankgrößen %1 bis %2</translation>
    </message>
    <message>
        <source>Enable flags of rows %1 to %2</source>
        <translation>Einschaltmarken der Zeilen %1 bis %2</translation>
    </message>
    <message>
        <source>settings block</source>
        <translation>Einstellungsblock</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Settings %1</source>
        <translation>Einstellungen %1</translation>
    </message>
    <message>
        <source>settings %1</source>
        <translation>Einstellungen %1</translation>
    </message>
    <message>
        <source>bank size block</source>
        <translation>Bankgrößenblock</translation>
    </message>
    <message>
        <source>enable flag block</source>
        <translation>Einschaltmarkenblock</translation>
    </message>
    <message>
        <source>Search Pass list block</source>
        <translation>Block der Search-Pass-Liste</translation>
    </message>
    <message>
        <source>Search Pass list</source>
        <translation>Search-Pass-Liste</translation>
    </message>
    <message>
        <source>Search Pass list %1</source>
        <translation>Search-Pass-Liste %1</translation>
    </message>
    <message>
        <source>region preset</source>
        <translation>Festsender der Region</translation>
    </message>
    <message>
        <source>VFO band</source>
        <translation>VFO-Band</translation>
    </message>
    <message>
        <source>VFO bands</source>
        <translation>VFO-Bänder</translation>
    </message>
    <message>
        <source>VFO %1</source>
        <translation>VFO %1</translation>
    </message>
    <message>
        <source>row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>The backup could not be made, so nothing was written.</source>
        <translation>Die Sicherung kam nicht zustande, deshalb wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>All was written, but not all of it could be verified.</source>
        <translation>Alles wurde geschrieben, aber nicht alles ließ sich prüfen.</translation>
    </message>
    <message>
        <source>The receiver is an %1, and what is to be written is for an %2.</source>
        <translation>Der Empfänger ist ein %1; was geschrieben werden soll, ist für einen %2.</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <translation>%1 %2 bis %3</translation>
    </message>
    <message>
        <source>Sent: nothing.</source>
        <translation>Gesendet: nichts.</translation>
    </message>
    <message>
        <source>Sent: %1.</source>
        <translation>Gesendet: %1.</translation>
    </message>
    <message>
        <source>Refused: %1 (may hold its old or its new contents).</source>
        <translation>Abgelehnt: %1 (kann den alten oder den neuen Inhalt haben).</translation>
    </message>
    <message>
        <source>Without an answer: %1 (may hold its old or its new contents).</source>
        <translation>Ohne Antwort: %1 (kann den alten oder den neuen Inhalt haben).</translation>
    </message>
    <message>
        <source>Not sent: %1.</source>
        <translation>Nicht gesendet: %1.</translation>
    </message>
    <message>
        <source>Repeating the write completes it.</source>
        <translation>Wird das Schreiben wiederholt, ist es vollständig.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Bank %1</source>
        <translation>Bank %1</translation>
    </message>
    <message>
        <source>Channels in no bank</source>
        <translation>Kanäle in keiner Bank</translation>
    </message>
    <message>
        <source>Bank %1 size</source>
        <translation>Größe von Bank %1</translation>
    </message>
    <message>
        <source>Link flag %1 link</source>
        <translation>Verknüpfungsmarke %1</translation>
    </message>
    <message>
        <source>Bank %1 size: %2</source>
        <translation>Größe von Bank %1: %2</translation>
    </message>
    <message>
        <source>Move channels with their banks</source>
        <translation>Kanäle mit ihren Bänken verschieben</translation>
    </message>
    <message>
        <source>Link bank %1</source>
        <translation>Bank %1 verknüpfen</translation>
    </message>
    <message>
        <source>Unlink bank %1</source>
        <translation>Verknüpfung von Bank %1 lösen</translation>
    </message>
    <message>
        <source>The receiver takes 0.1 to 1299.995 MHz.</source>
        <translation>Der Empfänger nimmt 0.1 bis 1299.995 MHz an.</translation>
    </message>
    <message>
        <source>It is a frequency of the cellular phone, which this model refuses.</source>
        <translation>Das ist eine Frequenz des Mobiltelefonnetzes, die dieses Modell ablehnt.</translation>
    </message>
    <message>
        <source>Another Search Pass channel has the same frequency.</source>
        <translation>Ein anderer Search-Pass-Kanal hat dieselbe Frequenz.</translation>
    </message>
    <message>
        <source>Cut (%1)</source>
        <translation>Ausschneiden (%1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste Special</source>
        <translation>Inhalte einfügen</translation>
    </message>
    <message>
        <source>Fill Down</source>
        <translation>Nach unten ausfüllen</translation>
    </message>
    <message>
        <source>Fill Series</source>
        <translation>Reihe ausfüllen</translation>
    </message>
    <message>
        <source>Take from %1 (%2)</source>
        <translation>Übernahme aus %1 (%2)</translation>
    </message>
    <message>
        <source>Moved: there at %1</source>
        <translation>Verschoben: dort auf %1</translation>
    </message>
    <message>
        <source>Only here</source>
        <translation>Nur hier</translation>
    </message>
    <message>
        <source>Moved: the one there is at %1 here</source>
        <translation>Verschoben: der Kanal von dort steht hier auf %1</translation>
    </message>
    <message>
        <source>the one there is at %1 here</source>
        <translation>der Kanal von dort steht hier auf %1</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>Nur dort</translation>
    </message>
    <message>
        <source>%1, %2 differences</source>
        <translation>%1, %2 Unterschiede</translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation>%1 Unterschiede</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>%1 (off)</source>
        <translation>%1 (aus)</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>In keiner Bank</translation>
    </message>
    <message>
        <source>Not in the receiver</source>
        <translation>Nicht im Empfänger</translation>
    </message>
    <message>
        <source>Bank layout</source>
        <translation>Bankaufteilung</translation>
    </message>
    <message>
        <source>FM, AM or WFM</source>
        <translation>FM, AM oder WFM</translation>
    </message>
    <message>
        <source>a step of the receiver, such as 12.5KHz</source>
        <translation>eine Schrittweite des Empfängers, etwa 12.5KHz</translation>
    </message>
    <message>
        <source>OFF, SCRT, Carrier, Tone or Rev.</source>
        <translation>OFF, SCRT, Carrier, Tone oder Rev.</translation>
    </message>
    <message>
        <source>0 to 16</source>
        <translation>0 bis 16</translation>
    </message>
    <message>
        <source>300Hz to 3000Hz or JR</source>
        <translation>300Hz bis 3000Hz oder JR</translation>
    </message>
    <message>
        <source>a CTCSS tone, such as 88.5Hz</source>
        <translation>ein CTCSS-Ton, etwa 88.5Hz</translation>
    </message>
    <message>
        <source>OFF, + or -</source>
        <translation>OFF, + oder -</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;: it is %3</source>
        <translation>%1 „%2“: erlaubt ist %3</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on oder off</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of MHz, such as 145.5</source>
        <translation>„%1“ ist keine Zahl in MHz, etwa 145.5</translation>
    </message>
    <message>
        <source>the %1 has no secret code</source>
        <translation>der %1 hat keinen Geheimcode</translation>
    </message>
    <message>
        <source>the %1 has no carrier</source>
        <translation>der %1 hat keinen Träger (Zugfunkton)</translation>
    </message>
    <message>
        <source>This VFO band takes %1.</source>
        <translation>Dieses VFO-Band nimmt %1 an.</translation>
    </message>
    <message>
        <source>a VFO band has no note</source>
        <translation>ein VFO-Band hat keine Notiz</translation>
    </message>
    <message>
        <source>a VFO band has no skip</source>
        <translation>ein VFO-Band hat kein Überspringen</translation>
    </message>
    <message>
        <source>a VFO band has no enabled</source>
        <translation>ein VFO-Band lässt sich nicht ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Offsets are below 100 MHz.</source>
        <translation>Ablagefrequenzen liegen unter 100 MHz.</translation>
    </message>
    <message>
        <source>the editor has no step %1</source>
        <translation>die Schrittweite %1 gibt es im Editor nicht</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no FIELD=VALUE, such as mode=AM</source>
        <translation>„%1“ hat nicht die Form FIELD=VALUE, etwa mode=AM</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no field; it is %2</source>
        <translation>„%1“ ist kein Feld; erlaubt ist %2</translation>
    </message>
    <message>
        <source>the model region does not have it</source>
        <translation>gibt es bei dieser Modellregion nicht</translation>
    </message>
    <message>
        <source>the series ends at 0</source>
        <translation>die Reihe endet bei 0</translation>
    </message>
    <message>
        <source>Show the operation buttons</source>
        <translation>Schaltflächen zeigen</translation>
    </message>
    <message>
        <source>Hide the operation buttons</source>
        <translation>Schaltflächen verbergen</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>Bearbeiten (%1)</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 Kanäle</translation>
    </message>
    <message>
        <source>%1  CH %2</source>
        <translation>%1  CH %2</translation>
    </message>
    <message>
        <source>Band %1</source>
        <translation>Band %1</translation>
    </message>
    <message>
        <source>CH %1</source>
        <translation>CH %1</translation>
    </message>
    <message>
        <source>Modify (%1, %2 channels)</source>
        <translation>Ändern (%1, %2 Kanäle)</translation>
    </message>
    <message>
        <source>Modify (%1)</source>
        <translation>Ändern (%1)</translation>
    </message>
    <message>
        <source>%1 CH %2</source>
        <translation>%1 CH %2</translation>
    </message>
    <message>
        <source>Move (%1)</source>
        <translation>Verschieben (%1)</translation>
    </message>
    <message>
        <source>Every row of %1 from here on holds a channel or a note. Clear one, or make the bank larger on the Bank page.</source>
        <translation>In %1 ist ab hier jede Zeile mit einem Kanal oder einer Notiz belegt. Leeren Sie eine, oder vergrößern Sie die Bank auf der Seite „Bank“.</translation>
    </message>
    <message>
        <source>Insert Row (%1)</source>
        <translation>Leerzeile einfügen (%1)</translation>
    </message>
    <message>
        <source>Delete Row (%1)</source>
        <translation>Zeile löschen (%1)</translation>
    </message>
    <message>
        <source>Move to %1 (%2)</source>
        <translation>Verschieben nach %1 (%2)</translation>
    </message>
    <message>
        <source>Copy to %1 (%2)</source>
        <translation>Kopieren nach %1 (%2)</translation>
    </message>
    <message>
        <source>Sort by Frequency (%1)</source>
        <translation>Nach Frequenz sortieren (%1)</translation>
    </message>
    <message>
        <source>Sort by Note (%1)</source>
        <translation>Nach Notiz sortieren (%1)</translation>
    </message>
    <message>
        <source>Sort by Mode (%1)</source>
        <translation>Nach Betriebsart sortieren (%1)</translation>
    </message>
    <message>
        <source>there is no memory row &quot;%1&quot;</source>
        <translation>eine Speicherzeile „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>the list names no row for it</source>
        <translation>die Liste nennt dafür keine Zeile</translation>
    </message>
    <message>
        <source>there is no channel &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>einen Kanal „%1“ gibt es in „%2“ nicht</translation>
    </message>
    <message>
        <source>the row holds no channel, and no frequency comes</source>
        <translation>die Zeile enthält keinen Kanal, und es kommt keine Frequenz</translation>
    </message>
    <message>
        <source>there is no row left for it</source>
        <translation>dafür ist keine Zeile mehr übrig</translation>
    </message>
    <message>
        <source>the list names this row twice</source>
        <translation>die Liste nennt diese Zeile zweimal</translation>
    </message>
    <message>
        <source>Rows that are written: %1</source>
        <translation>Zeilen, die geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Rows that are written: %1, of which 1 holds a channel now</source>
        <translation>Zeilen, die geschrieben werden: %1, davon 1 jetzt belegt</translation>
    </message>
    <message>
        <source>Rows that are written: %1, of which %2 hold a channel now</source>
        <translation>Zeilen, die geschrieben werden: %1, davon %2 jetzt belegt</translation>
    </message>
    <message>
        <source>%1; refused: %2</source>
        <translation>%1; abgelehnt: %2</translation>
    </message>
    <message>
        <source>0.1 to 1299.995 MHz</source>
        <translation>0.1 bis 1299.995 MHz</translation>
    </message>
    <message>
        <source>%1: it is all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority, vfo, settings, banks, or a condition such as mode=AM, freq:118..137 or note~airport</source>
        <translation>%1: erlaubt ist all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority, vfo, settings, banks oder eine Bedingung wie mode=AM, freq:118..137 oder note~airport</translation>
    </message>
    <message>
        <source>%1: its channels are %2 to %3</source>
        <translation>%1: die Kanäle gehen von %2 bis %3</translation>
    </message>
    <message>
        <source>%1: memory rows are 0 to %2</source>
        <translation>%1: Speicherzeilen gehen von 0 bis %2</translation>
    </message>
    <message>
        <source>a condition chooses memory rows; vfo, settings and banks cannot stand beside it</source>
        <translation>eine Bedingung wählt Speicherzeilen aus; vfo, settings und banks passen nicht dazu</translation>
    </message>
    <message>
        <source>%1: VFO rows are 0 to %2</source>
        <translation>%1: VFO-Zeilen gehen von 0 bis %2</translation>
    </message>
    <message>
        <source>%1: banks are 0 to 49, as in bank:3, bank:0-4 or bank:2/5-9</source>
        <translation>%1: Bänke gehen von 0 bis 49, wie in bank:3, bank:0-4 oder bank:2/5-9</translation>
    </message>
    <message>
        <source>%1: channels of a bank count from 0, as in bank:2/5-9</source>
        <translation>%1: die Kanäle einer Bank zählen ab 0, wie in bank:2/5-9</translation>
    </message>
    <message>
        <source>%1: &quot;~&quot; looks for a text in the note, as in note~airport</source>
        <translation>%1: „~“ sucht einen Text in der Notiz, wie in note~airport</translation>
    </message>
    <message>
        <source>%1: write it with &quot;=&quot;, as in mode=AM</source>
        <translation>%1: schreiben Sie es mit „=“, wie in mode=AM</translation>
    </message>
    <message>
        <source>%1: the lower end comes first</source>
        <translation>%1: das untere Ende kommt zuerst</translation>
    </message>
    <message>
        <source>bank %1 has %2 channel</source>
        <translation>Bank %1 hat %2 Kanal</translation>
    </message>
    <message>
        <source>bank %1 has %2 channels</source>
        <translation>Bank %1 hat %2 Kanäle</translation>
    </message>
    <message>
        <source>This clears %1, %2.</source>
        <translation>Geleert wird: %1, %2.</translation>
    </message>
    <message>
        <source>This clears %1.</source>
        <translation>Geleert wird: %1.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alle leeren</translation>
    </message>
    <message>
        <source>This deletes %1, %2.</source>
        <translation>Gelöscht wird: %1, %2.</translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation>Löschen (%1)</translation>
    </message>
    <message>
        <source>Insert (%1)</source>
        <translation>Zeile einfügen (%1)</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Enable All</source>
        <translation>Alle einschalten</translation>
    </message>
    <message>
        <source>Disable All</source>
        <translation>Alle ausschalten</translation>
    </message>
    <message>
        <source>%1, channel %2</source>
        <translation>%1, Kanal %2</translation>
    </message>
    <message>
        <source>memory row %1 (%2)</source>
        <translation>Speicherzeile %1 (%2)</translation>
    </message>
    <message>
        <source>memory row %1 (in no bank)</source>
        <translation>Speicherzeile %1 (in keiner Bank)</translation>
    </message>
    <message>
        <source>memory row %1 (not in the receiver)</source>
        <translation>Speicherzeile %1 (nicht im Empfänger)</translation>
    </message>
    <message>
        <source>Row %1 (no bank)</source>
        <translation>Zeile %1 (keine Bank)</translation>
    </message>
    <message>
        <source>Row %1 (%2)</source>
        <translation>Zeile %1 (%2)</translation>
    </message>
    <message>
        <source>%1, 1 channel</source>
        <translation>%1, 1 Kanal</translation>
    </message>
    <message>
        <source>%1, %2 channels</source>
        <translation>%1, %2 Kanäle</translation>
    </message>
    <message>
        <source>%1, the one channel shown of %2</source>
        <translation>%1, der eine gezeigte Kanal von %2</translation>
    </message>
    <message>
        <source>%1, the %2 channels shown of %3</source>
        <translation>%1, die %2 gezeigten Kanäle von %3</translation>
    </message>
    <message>
        <source>which is empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>No row moved</source>
        <translation>Keine Zeile verschoben</translation>
    </message>
    <message>
        <source>row %1 was empty, so nothing is lost</source>
        <translation>Zeile %1 war leer, es ging also nichts verloren</translation>
    </message>
    <message>
        <source>lost: %1 MHz in row %2 (in no bank)</source>
        <translation>verloren: %1 MHz in Zeile %2 (in keiner Bank)</translation>
    </message>
    <message>
        <source>lost: %1 MHz in row %2 (%3)</source>
        <translation>verloren: %1 MHz in Zeile %2 (%3)</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation>%1; %2.</translation>
    </message>
    <message>
        <source>Row %1 moved down</source>
        <translation>Zeile %1 nach unten verschoben</translation>
    </message>
    <message>
        <source>Rows %1 to %2 moved down</source>
        <translation>Zeilen %1 bis %2 nach unten verschoben</translation>
    </message>
    <message>
        <source>Row %1 moved up</source>
        <translation>Zeile %1 nach oben verschoben</translation>
    </message>
    <message>
        <source>Rows %1 to %2 moved up</source>
        <translation>Zeilen %1 bis %2 nach oben verschoben</translation>
    </message>
    <message>
        <source>The pages could not be made; there may be too little memory.</source>
        <translation>Die Seiten ließen sich nicht erzeugen; vielleicht ist zu wenig Arbeitsspeicher da.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
        <translation>Trägergesteuert</translation>
    </message>
    <message>
        <source>Timer Scan</source>
        <translation>Zeitgesteuert</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Tastend</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Rastend</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Operating Mode</source>
        <translation>Arbeitsmodus</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Squelch</source>
        <translation>Rauschsperre</translation>
    </message>
    <message>
        <source>Scan Mode</source>
        <translation>Suchlaufart</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>Auto Power Off (minutes)</source>
        <translation>Abschaltautomatik (Minuten)</translation>
    </message>
    <message>
        <source>Bug Sensitive Level</source>
        <translation>Empfindlichkeit der Wanzensuche</translation>
    </message>
    <message>
        <source>MONI Key Function</source>
        <translation>Funktion der MONI-Taste</translation>
    </message>
    <message>
        <source>MONI Key</source>
        <translation>MONI-Taste</translation>
    </message>
    <message>
        <source>Battery Save</source>
        <translation>Stromsparen</translation>
    </message>
    <message>
        <source>Keylock</source>
        <translation>Tastensperre</translation>
    </message>
    <message>
        <source>Write Protect</source>
        <translation>Schreibschutz</translation>
    </message>
    <message>
        <source>Beep</source>
        <translation>Quittungston</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Klingel</translation>
    </message>
    <message>
        <source>Attenuator</source>
        <translation>Abschwächer</translation>
    </message>
    <message>
        <source>Auto Step</source>
        <translation>Automatische Schrittweite</translation>
    </message>
    <message>
        <source>Earphone Antenna</source>
        <translation>Ohrhörerantenne</translation>
    </message>
    <message>
        <source>SW bar antenna</source>
        <translation>KW-Ferritantenne</translation>
    </message>
    <message>
        <source>AM bar antenna</source>
        <translation>MW-Ferritantenne</translation>
    </message>
    <message>
        <source>VFO</source>
        <translation>VFO</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Festsender</translation>
    </message>
    <message>
        <source>No bank</source>
        <translation>Keine Bank</translation>
    </message>
    <message>
        <source>Not in receiver</source>
        <translation>Nicht im Empfänger</translation>
    </message>
    <message>
        <source>COM Port Error</source>
        <translation>Fehler am COM-Anschluss</translation>
    </message>
    <message>
        <source>Communication Error</source>
        <translation>Übertragungsfehler</translation>
    </message>
    <message>
        <source>Data Error</source>
        <translation>Datenfehler</translation>
    </message>
    <message>
        <source>File Open Error</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>Nothing to change in %1</source>
        <translation>Keine Änderung in %1</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Vorgang nicht erlaubt</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Ist ein Ordner</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Nur lesbares Dateisystem</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Kein Speicherplatz mehr frei</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Speicherkontingent erschöpft</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Datei zu groß</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Dateiname zu lang</translation>
    </message>
</context>
<context>
    <name>MessageDialogs</name>
    <message>
        <source>Tervan RQ-M5 Clone Files (*.RQ5);;All Files (*.*)</source>
        <translation>Tervan RQ-M5-Klondateien (*.RQ5);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*.*)</source>
        <translation>CSV-Dateien (*.csv);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf);;All Files (*.*)</source>
        <translation>PDF-Dateien (*.pdf);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Text Files (*.txt);;All Files (*.*)</source>
        <translation>Textdateien (*.txt);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;All Files (*.*)</source>
        <translation>Bilder (*.png *.svg);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>Liste exportieren</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>Save as Text</source>
        <translation>Als Text speichern</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>&amp;Copy Command</source>
        <translation>Befehl &amp;kopieren</translation>
    </message>
</context>
<context>
    <name>Modify</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>Träger</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Invers</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Modulation Mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>Tuning Step</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Ablage</translation>
    </message>
</context>
<context>
    <name>Parts</name>
    <message>
        <source>&amp;Frequency</source>
        <translation>&amp;Frequenz</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Betriebsart</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation>&amp;Schrittweite</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;Option</translation>
    </message>
    <message>
        <source>Secret &amp;code</source>
        <translation>&amp;Geheimcode</translation>
    </message>
    <message>
        <source>T&amp;rain tone</source>
        <translation>&amp;Zugfunkton</translation>
    </message>
    <message>
        <source>CTCSS &amp;tone</source>
        <translation>&amp;CTCSS-Ton</translation>
    </message>
    <message>
        <source>S&amp;hift</source>
        <translation>&amp;Ablage</translation>
    </message>
    <message>
        <source>Shift fre&amp;quency</source>
        <translation>Ablagef&amp;requenz</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Notiz</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Übers&amp;pringen</translation>
    </message>
    <message>
        <source>&amp;Enabled</source>
        <translation>&amp;Eingeschaltet</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Zeigt Hilfe zu den Optionen der Befehlszeile.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Zeigt Hilfe einschließlich der Optionen von Qt.</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Zeigt die Version.</translation>
    </message>
</context>
<context>
    <name>QPrintPreviewDialog</name>
    <message>
        <source>Page setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
</context>
<context>
    <name>QSerialPort</name>
    <message>
        <source>Permission error while locking the device</source>
        <translation>Das Gerät lässt sich nicht sperren</translation>
    </message>
    <message>
        <source>Permission error while creating lock file</source>
        <translation>Die Sperrdatei lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>Error reading from device</source>
        <translation>Fehler beim Lesen vom Gerät</translation>
    </message>
    <message>
        <source>Error writing to device</source>
        <translation>Fehler beim Schreiben auf das Gerät</translation>
    </message>
    <message>
        <source>Operation timed out</source>
        <translation>Zeit überschritten</translation>
    </message>
    <message>
        <source>Unsupported open mode</source>
        <translation>Das Gerät lässt sich so nicht öffnen</translation>
    </message>
</context>
<context>
    <name>SavePrompts</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>The file was removed or renamed by another program.</source>
        <translation>Ein anderes Programm hat die Datei gelöscht oder umbenannt.</translation>
    </message>
    <message>
        <source>Overwrite makes a file of this name again.</source>
        <translation>„Überschreiben“ legt wieder eine Datei mit diesem Namen an.</translation>
    </message>
    <message>
        <source>The file was changed by another program.</source>
        <translation>Ein anderes Programm hat die Datei geändert.</translation>
    </message>
    <message>
        <source>Overwrite puts your version in its place, and what the other program saved is lost. Save As keeps both.</source>
        <translation>„Überschreiben“ ersetzt sie durch Ihre Fassung; was das andere Programm gespeichert hat, geht verloren. „Speichern unter“ behält beide.</translation>
    </message>
    <message>
        <source>The file has more than one name.</source>
        <translation>Die Datei hat mehr als einen Namen.</translation>
    </message>
    <message>
        <source>File: %1
It is one of %2 names (hard links) of the same file. A save gives this name a file of its own; the others keep the old contents.</source>
        <translation>Datei: %1
Das ist einer von %2 Namen (Hardlinks) derselben Datei. Beim Speichern erhält dieser Name eine eigene Datei; die anderen behalten den alten Inhalt.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>These notes keep the file from being opened.</source>
        <translation>Wegen dieser Notizen lässt sich die Datei nicht öffnen.</translation>
    </message>
    <message>
        <source>Commas become semicolons, quotes apostrophes:
%1

In Place keeps the old file as %2.</source>
        <translation>Kommas werden zu Semikolons, Anführungszeichen zu Apostrophen:
%1

„Direkt ersetzen“ behält die alte Datei als %2.</translation>
    </message>
    <message>
        <source>In Place</source>
        <translation>Direkt ersetzen</translation>
    </message>
    <message>
        <source>%1 was no clone file; what it was is kept as %2.</source>
        <translation>%1 war keine Klondatei; der alte Inhalt ist als %2 aufbewahrt.</translation>
    </message>
    <message>
        <source>Saved, but a clone file cannot hold these values; they read back otherwise: %1.</source>
        <translation>Gespeichert, aber diese Werte kann eine Klondatei nicht aufnehmen; sie werden anders zurückgelesen: %1.</translation>
    </message>
    <message>
        <source>Saved, but not all that belonged to the old file could be kept: %1.</source>
        <translation>Gespeichert, aber nicht alles, was zur alten Datei gehörte, blieb erhalten: %1.</translation>
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
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Festsender</translation>
    </message>
    <message>
        <source>Busy Scan</source>
        <translation>Trägergesteuert</translation>
    </message>
    <message>
        <source>Timer Scan</source>
        <translation>Zeitgesteuert</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>The receiver&apos;s model region: its bands, limits and presets</source>
        <translation>Modellregion des Empfängers: seine Bänder, Grenzen und Festsender</translation>
    </message>
    <message>
        <source>Operating Mode</source>
        <translation>Arbeitsmodus</translation>
    </message>
    <message>
        <source>What the receiver tunes with</source>
        <translation>Womit der Empfänger abstimmt</translation>
    </message>
    <message>
        <source>Scan Mode</source>
        <translation>Suchlaufart</translation>
    </message>
    <message>
        <source>When a scan that has stopped on a signal goes on</source>
        <translation>Wann ein Suchlauf, der auf einem Signal steht, weiterläuft</translation>
    </message>
    <message>
        <source>V&amp;olume</source>
        <translation>Lau&amp;tstärke</translation>
    </message>
    <message>
        <source>Volume, 0 to 50</source>
        <translation>Lautstärke, 0 bis 50</translation>
    </message>
    <message>
        <source>S&amp;quelch</source>
        <translation>&amp;Rauschsperre</translation>
    </message>
    <message>
        <source>Squelch, 0 to 9</source>
        <translation>Rauschsperre, 0 bis 9</translation>
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
        <translation>Tastend</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Rastend</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>How long the display stays lit</source>
        <translation>Wie lange die Anzeige beleuchtet bleibt</translation>
    </message>
    <message>
        <source>Auto Power Off (minutes)</source>
        <translation>Abschaltautomatik (Minuten)</translation>
    </message>
    <message>
        <source>After how many minutes without use the receiver switches itself off</source>
        <translation>Nach wie vielen Minuten ohne Bedienung sich der Empfänger ausschaltet</translation>
    </message>
    <message>
        <source>Bug Sensitive Level</source>
        <translation>Empfindlichkeit der Wanzensuche</translation>
    </message>
    <message>
        <source>How sensitive the search for hidden transmitters is</source>
        <translation>Wie empfindlich nach versteckten Sendern gesucht wird</translation>
    </message>
    <message>
        <source>MONI Key Function</source>
        <translation>Funktion der MONI-Taste</translation>
    </message>
    <message>
        <source>Whether the MONI key works while it is pushed or until it is pushed again</source>
        <translation>Ob die MONI-Taste wirkt, solange sie gedrückt ist, oder bis zum nächsten Druck</translation>
    </message>
    <message>
        <source>MONI Key</source>
        <translation>MONI-Taste</translation>
    </message>
    <message>
        <source>What the MONI key does</source>
        <translation>Was die MONI-Taste bewirkt</translation>
    </message>
    <message>
        <source>Power and keys</source>
        <translation>Strom und Tasten</translation>
    </message>
    <message>
        <source>Batter&amp;y Save</source>
        <translation>Stroms&amp;paren</translation>
    </message>
    <message>
        <source>Save the battery while no signal is received</source>
        <translation>Akku schonen, solange kein Signal ankommt</translation>
    </message>
    <message>
        <source>&amp;Keylock</source>
        <translation>Tast&amp;ensperre</translation>
    </message>
    <message>
        <source>Lock the receiver&apos;s keys</source>
        <translation>Tasten des Empfängers sperren</translation>
    </message>
    <message>
        <source>Write &amp;Protect</source>
        <translation>Schreibs&amp;chutz</translation>
    </message>
    <message>
        <source>Protect the receiver&apos;s memory channels from being overwritten on its keys</source>
        <translation>Speicherkanäle vor dem Überschreiben am Empfänger schützen</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Signaltöne</translation>
    </message>
    <message>
        <source>&amp;Beep</source>
        <translation>&amp;Quittungston</translation>
    </message>
    <message>
        <source>Beep when a key is pressed</source>
        <translation>Ton bei jedem Tastendruck</translation>
    </message>
    <message>
        <source>Be&amp;ll</source>
        <translation>&amp;Klingel</translation>
    </message>
    <message>
        <source>Ring when a signal comes in</source>
        <translation>Klingeln, wenn ein Signal ankommt</translation>
    </message>
    <message>
        <source>Reception</source>
        <translation>Empfang</translation>
    </message>
    <message>
        <source>Atten&amp;uator</source>
        <translation>Absch&amp;wächer</translation>
    </message>
    <message>
        <source>Weaken strong signals</source>
        <translation>Starke Signale abschwächen</translation>
    </message>
    <message>
        <source>Aut&amp;o Step</source>
        <translation>A&amp;utomatische Schrittweite</translation>
    </message>
    <message>
        <source>Let the receiver choose the tuning step of a band</source>
        <translation>Der Empfänger wählt die Schrittweite eines Bandes</translation>
    </message>
    <message>
        <source>Antennas</source>
        <translation>Antennen</translation>
    </message>
    <message>
        <source>Earphone &amp;Antenna</source>
        <translation>Ohrhöreranten&amp;ne</translation>
    </message>
    <message>
        <source>Use the cord of the earphone as antenna</source>
        <translation>Ohrhörerkabel als Antenne benutzen</translation>
    </message>
    <message>
        <source>&amp;SW bar antenna</source>
        <translation>KW-&amp;Ferritantenne</translation>
    </message>
    <message>
        <source>Use the built-in bar antenna on short wave</source>
        <translation>Eingebaute Ferritantenne auf Kurzwelle benutzen</translation>
    </message>
    <message>
        <source>A&amp;M bar antenna</source>
        <translation>&amp;MW-Ferritantenne</translation>
    </message>
    <message>
        <source>Use the built-in bar antenna on medium wave</source>
        <translation>Eingebaute Ferritantenne auf Mittelwelle benutzen</translation>
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
        <translation>Keine Kanäle</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>stored twice</source>
        <translation>doppelt gespeichert</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>gesperrt</translation>
    </message>
</context>
<context>
    <name>TransferProgress</name>
    <message>
        <source>Reading settings and VFO bands</source>
        <translation>Einstellungen und VFO-Bänder lesen</translation>
    </message>
    <message>
        <source>Reading banks and flags</source>
        <translation>Bänke und Marken lesen</translation>
    </message>
    <message>
        <source>Reading channels</source>
        <translation>Kanäle lesen</translation>
    </message>
    <message>
        <source>Reading again to compare</source>
        <translation>Zum Vergleich noch einmal lesen</translation>
    </message>
    <message>
        <source>Backup of settings and VFO bands</source>
        <translation>Einstellungen und VFO-Bänder sichern</translation>
    </message>
    <message>
        <source>Backup of banks and flags</source>
        <translation>Bänke und Marken sichern</translation>
    </message>
    <message>
        <source>Backup of channels</source>
        <translation>Kanäle sichern</translation>
    </message>
    <message>
        <source>Writing settings and VFO bands</source>
        <translation>Einstellungen und VFO-Bänder schreiben</translation>
    </message>
    <message>
        <source>Writing banks and flags</source>
        <translation>Bänke und Marken schreiben</translation>
    </message>
    <message>
        <source>Writing channels</source>
        <translation>Kanäle schreiben</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Reading what is not known</source>
        <translation>Unbekanntes lesen</translation>
    </message>
    <message>
        <source>Reading what is replaced</source>
        <translation>Zu Ersetzendes lesen</translation>
    </message>
    <message>
        <source>Writing changes</source>
        <translation>Änderungen schreiben</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 von %3</translation>
    </message>
    <message>
        <source>%1, about %2 left</source>
        <translation>%1, noch etwa %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Reads, edits and writes the memory of an RQ-M5 receiver.</source>
        <translation>Liest, bearbeitet und schreibt den Speicher eines Empfängers RQ-M5.</translation>
    </message>
    <message>
        <source>Clone file to open.</source>
        <translation>Klondatei, die geöffnet wird.</translation>
    </message>
</context>
<context>
    <name>rqm5::BackupCommands</name>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Write this backup to the receiver?</source>
        <translation>Diese Sicherung in den Empfänger schreiben?</translation>
    </message>
    <message>
        <source>%1
It replaces in the receiver: %2. The open image stays as it is.</source>
        <translation>%1
Sie ersetzt im Empfänger: %2. Das offene Abbild bleibt, wie es ist.</translation>
    </message>
</context>
<context>
    <name>rqm5::BankList</name>
    <message>
        <source>The group of channels that the table shows and a transfer moves</source>
        <translation>Die Kanalgruppe, die in der Tabelle steht und übertragen wird</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>rqm5::BankMoveOffer</name>
    <message>
        <source>&amp;Leave the rows where they are</source>
        <translation>Zeil&amp;en an ihrem Platz lassen</translation>
    </message>
    <message>
        <source>Nothing moves; the channels named here belong to other banks now</source>
        <translation>Nichts wird verschoben; die genannten Kanäle gehören dann zu anderen Bänken</translation>
    </message>
    <message>
        <source>&amp;Move the channels so that every bank keeps its own</source>
        <translation>Kanäle &amp;verschieben, damit jede Bank ihre behält</translation>
    </message>
    <message>
        <source>What a smaller bank has no room for goes behind all banks; a larger one gets empty rows</source>
        <translation>Was in einer kleineren Bank keinen Platz hat, kommt hinter alle Bänke; eine größere erhält leere Zeilen</translation>
    </message>
    <message>
        <source>Channels that change their bank with these sizes: %1. Others that change their number: %2.</source>
        <translation>Kanäle, die mit diesen Größen die Bank wechseln: %1. Andere, die ihre Nummer ändern: %2.</translation>
    </message>
</context>
<context>
    <name>rqm5::BankPage</name>
    <message>
        <source>Number of channels in bank %1; all banks together hold 1000 at most</source>
        <translation>Anzahl der Kanäle in Bank %1; alle Bänke zusammen haben höchstens 1000</translation>
    </message>
    <message>
        <source>Link bank %1</source>
        <translation>Bank %1 verknüpfen</translation>
    </message>
    <message>
        <source>Scan bank %1 together with the other linked banks</source>
        <translation>Bank %1 zusammen mit den anderen verknüpften Bänken durchsuchen</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verkn.</translation>
    </message>
    <message>
        <source>Read Ban&amp;k</source>
        <translation>Ban&amp;k lesen</translation>
    </message>
    <message>
        <source>Write &amp;Bank</source>
        <translation>Bank s&amp;chreiben</translation>
    </message>
    <message>
        <source>Read bank sizes and links from the receiver</source>
        <translation>Bankgrößen und Verknüpfungen aus dem Empfänger lesen</translation>
    </message>
    <message>
        <source>Write bank sizes and links to the receiver</source>
        <translation>Bankgrößen und Verknüpfungen in den Empfänger schreiben</translation>
    </message>
    <message>
        <source>Channels in all banks (1000 at most):</source>
        <translation>Kanäle in allen Bänken (max. 1000):</translation>
    </message>
    <message>
        <source>In no bank: %1 rows, %2 with a channel</source>
        <translation>In keiner Bank: %1 Zeilen, %2 belegt</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>The total of the number of channels exceeds 1000.
Please set for the total of the channel to become 1000 or less.</source>
        <translation>Die Bänke haben zusammen mehr als 1000 Kanäle.
Bitte so einstellen, dass es zusammen höchstens 1000 sind.</translation>
    </message>
</context>
<context>
    <name>rqm5::BankStrip</name>
    <message>
        <source>What of each bank holds channels; a click goes to the bank&apos;s size</source>
        <translation>Was in jeder Bank belegt ist; ein Klick führt zur Bankgröße</translation>
    </message>
    <message>
        <source>All banks: %1 of %2 rows hold a channel, %3 rows are in no bank</source>
        <translation>Alle Bänke: %1 von %2 Zeilen belegt, %3 Zeilen in keiner Bank</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>In keiner Bank</translation>
    </message>
    <message>
        <source>%1: %2 of %3 rows hold a channel</source>
        <translation>%1: %2 von %3 Zeilen belegt</translation>
    </message>
    <message>
        <source>no bank</source>
        <translation>keine Bank</translation>
    </message>
</context>
<context>
    <name>rqm5::ChangeCommands</name>
    <message>
        <source>Write Changes</source>
        <translation>Änderungen schreiben</translation>
    </message>
    <message>
        <source>What the receiver holds must be read first.</source>
        <translation>Zuerst muss gelesen werden, was im Empfänger steht.</translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation>&amp;Lesen</translation>
    </message>
    <message>
        <source>Enable flags of other rows replaced by the receiver&apos;s: %1.</source>
        <translation>Einschaltmarken anderer Zeilen durch die des Empfängers ersetzt: %1.</translation>
    </message>
</context>
<context>
    <name>rqm5::ChannelTable</name>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspr.</translation>
    </message>
    <message>
        <source>Scrt</source>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>Träger</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>ShiftFreq.</source>
        <translation>Ablagefreq.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
</context>
<context>
    <name>rqm5::ClipboardCommands</name>
    <message>
        <source>There is no channel in it.</source>
        <translation>Darin ist kein Kanal.</translation>
    </message>
    <message>
        <source>Copy rows of this program, or lines with a frequency each: of a spreadsheet, a web page or a text.</source>
        <translation>Kopieren Sie Zeilen dieses Programms oder Zeilen mit je einer Frequenz: aus einer Tabellenkalkulation, einer Webseite oder einem Text.</translation>
    </message>
    <message>
        <source>Paste these columns onto the selected rows:</source>
        <translation>Diese Spalten in die markierten Zeilen einfügen:</translation>
    </message>
    <message>
        <source>Give the selected rows these columns of the first of them:</source>
        <translation>Die markierten Zeilen erhalten diese Spalten der ersten von ihnen:</translation>
    </message>
</context>
<context>
    <name>rqm5::ColumnWidths</name>
    <message>
        <source>&amp;Usual Column Widths</source>
        <translation>Übliche &amp;Spaltenbreiten</translation>
    </message>
</context>
<context>
    <name>rqm5::CompareTree</name>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Open image</source>
        <translation>Offenes Abbild</translation>
    </message>
    <message>
        <source>Other side</source>
        <translation>Andere Seite</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Unterschied</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>weicht ab</translation>
    </message>
</context>
<context>
    <name>rqm5::DiagnosticsPanel</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>Bloc&amp;k address</source>
        <translation>Bl&amp;ockadresse</translation>
    </message>
    <message>
        <source>Read Block</source>
        <translation>Block lesen</translation>
    </message>
    <message>
        <source>Sends one read command and shows the reply as it comes</source>
        <translation>Sendet einen Lesebefehl und zeigt die Antwort, wie sie kommt</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>Link Test</source>
        <translation>Verbindungstest</translation>
    </message>
    <message>
        <source>Reads one block a hundred times and shows the round-trip times</source>
        <translation>Liest einen Block hundertmal und zeigt die Laufzeiten</translation>
    </message>
    <message>
        <source>Exchanges with the receiver</source>
        <translation>Austausch mit dem Empfänger</translation>
    </message>
    <message>
        <source>Save Log...</source>
        <translation>Protokoll speichern...</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Protokoll leeren</translation>
    </message>
</context>
<context>
    <name>rqm5::ExchangeLog</name>
    <message>
        <source>(the port failed)</source>
        <translation>(der Anschluss ist ausgefallen)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Antwort</translation>
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
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>Save changes to settings?</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <source>The file is saved, but a clone file cannot hold notes with a comma or quotes. While these notes stay as they are, the file cannot be opened again or shows them changed.</source>
        <translation>Die Datei ist gespeichert, aber eine Klondatei kann Notizen mit Komma oder Anführungszeichen nicht aufnehmen. Solange diese Notizen so bleiben, lässt sich die Datei nicht wieder öffnen oder zeigt sie verändert.</translation>
    </message>
    <message>
        <source>The file is written. A spreadsheet may run these notes as formulas.</source>
        <translation>Die Datei ist geschrieben. Eine Tabellenkalkulation führt diese Notizen womöglich als Formeln aus.</translation>
    </message>
    <message>
        <source>There was nothing to repair; the file is open.</source>
        <translation>Es gab nichts zu reparieren; die Datei ist geöffnet.</translation>
    </message>
    <message>
        <source>Repaired notes: %1</source>
        <translation>Reparierte Notizen: %1</translation>
    </message>
    <message>
        <source> repaired</source>
        <translation> repariert</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
</context>
<context>
    <name>rqm5::FillBar</name>
    <message>
        <source>no rows</source>
        <translation>keine Zeilen</translation>
    </message>
    <message>
        <source>%1 of %2 rows hold a channel</source>
        <translation>%1 von %2 Zeilen belegt</translation>
    </message>
</context>
<context>
    <name>rqm5::FilterBox</name>
    <message>
        <source>All rows</source>
        <translation>Alle Zeilen</translation>
    </message>
    <message>
        <source>With a channel</source>
        <translation>Belegte</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Übersprungen</translation>
    </message>
    <message>
        <source>With a note</source>
        <translation>Mit Notiz</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doppelte</translation>
    </message>
    <message>
        <source>Which rows of the group the table shows</source>
        <translation>Welche Zeilen der Gruppe die Tabelle zeigt</translation>
    </message>
    <message>
        <source>Sh&amp;ow:</source>
        <translation>Zei&amp;gen:</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 von %2 Zeilen</translation>
    </message>
</context>
<context>
    <name>rqm5::FindBar</name>
    <message>
        <source>Find channels</source>
        <translation>Kanäle suchen</translation>
    </message>
    <message>
        <source>Find (Ctrl+F)</source>
        <translation>Suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Frequency, note, mode or tone, in all groups. Enter goes there, F3 to the next</source>
        <translation>Frequenz, Notiz, Betriebsart oder Ton, in allen Gruppen. Enter geht zum Treffer, F3 zum nächsten</translation>
    </message>
    <message>
        <source>Channels found</source>
        <translation>Gefundene Kanäle</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>rqm5::HistoryCommands</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Changes, the latest at the end</source>
        <translation>Änderungen, die neueste am Ende</translation>
    </message>
    <message>
        <source>A click takes back or makes again every change down to there</source>
        <translation>Ein Klick macht alle Änderungen bis dorthin rückgängig oder wiederholt sie</translation>
    </message>
    <message>
        <source>Before these changes</source>
        <translation>Vor diesen Änderungen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportCommands</name>
    <message>
        <source> list</source>
        <translation> Liste</translation>
    </message>
    <message>
        <source>Channels written to %1: %2.</source>
        <translation>In %1 geschriebene Kanäle: %2.</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportForm</name>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>None: one field a line</source>
        <translation>Keines: ein Feld je Zeile</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Detected: %1</source>
        <translation>Erkannt: %1</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>Erkennen</translation>
    </message>
    <message>
        <source>The first &amp;line holds titles</source>
        <translation>Erste Zeile enthält &amp;Titel</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Merken</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Vergessen</translation>
    </message>
    <message>
        <source>Type a name and press Keep to read other lists in the same way.</source>
        <translation>Namen eingeben und „Merken“ drücken, um andere Listen genauso zu lesen.</translation>
    </message>
    <message>
        <source>&amp;Encoding</source>
        <translation>Zei&amp;chencodierung</translation>
    </message>
    <message>
        <source>&amp;Between fields</source>
        <translation>&amp;Feldtrenner</translation>
    </message>
    <message>
        <source>&amp;Decimals begin with</source>
        <translation>&amp;Dezimalzeichen</translation>
    </message>
    <message>
        <source>&amp;Mapping</source>
        <translation>Zuo&amp;rdnung</translation>
    </message>
    <message>
        <source>either, each number by itself</source>
        <translation>beides, jede Zahl für sich</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportTarget</name>
    <message>
        <source>To the &amp;rows that the list names</source>
        <translation>In die Zeilen, die die &amp;Liste nennt</translation>
    </message>
    <message>
        <source>From this row &amp;on</source>
        <translation>A&amp;b dieser Zeile</translation>
    </message>
    <message>
        <source>&amp;Skip rows that hold a channel</source>
        <translation>Belegte Zeilen über&amp;springen</translation>
    </message>
    <message>
        <source>Bank or group</source>
        <translation>Bank oder Gruppe</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>In keiner Bank</translation>
    </message>
</context>
<context>
    <name>rqm5::ListTableModel</name>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>is</source>
        <translation>ist</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryPage</name>
    <message>
        <source>Ban&amp;k:</source>
        <translation>Ban&amp;k:</translation>
    </message>
    <message>
        <source>Read &amp;Memory</source>
        <translation>S&amp;peicher lesen</translation>
    </message>
    <message>
        <source>Write Memor&amp;y</source>
        <translation>Spei&amp;cher schreiben</translation>
    </message>
    <message>
        <source>Read the channels of the selected group from the receiver</source>
        <translation>Kanäle der gewählten Gruppe aus dem Empfänger lesen</translation>
    </message>
    <message>
        <source>Write the channels of the selected group to the receiver</source>
        <translation>Kanäle der gewählten Gruppe in den Empfänger schreiben</translation>
    </message>
    <message>
        <source>E&amp;nable</source>
        <translation>&amp;Einschalten</translation>
    </message>
    <message>
        <source>Enable the selected channels</source>
        <translation>Die markierten Kanäle einschalten</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>A&amp;usschalten</translation>
    </message>
    <message>
        <source>Disable the selected channels; they keep their contents</source>
        <translation>Die markierten Kanäle ausschalten; ihr Inhalt bleibt</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>Leerzeile ein&amp;fügen</translation>
    </message>
    <message>
        <source>Insert an empty row among memory rows 0 to 199; the channel in row 199 is lost</source>
        <translation>Eine leere Zeile in die Speicherzeilen 0 bis 199 einfügen; der Kanal in Zeile 199 geht verloren</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Zeile löschen</translation>
    </message>
    <message>
        <source>Delete a row among memory rows 0 to 199; the rows behind it move up</source>
        <translation>Eine der Speicherzeilen 0 bis 199 löschen; die Zeilen dahinter rücken nach oben</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>Lee&amp;ren</translation>
    </message>
    <message>
        <source>Empty the selected channels</source>
        <translation>Die markierten Kanäle leeren</translation>
    </message>
    <message>
        <source>Ena&amp;ble All</source>
        <translation>Alle e&amp;inschalten</translation>
    </message>
    <message>
        <source>Enable every channel shown</source>
        <translation>Jeden gezeigten Kanal einschalten</translation>
    </message>
    <message>
        <source>Di&amp;sable All</source>
        <translation>Alle ausschal&amp;ten</translation>
    </message>
    <message>
        <source>Disable every channel shown</source>
        <translation>Jeden gezeigten Kanal ausschalten</translation>
    </message>
    <message>
        <source>Clear &amp;All</source>
        <translation>Alle leere&amp;n</translation>
    </message>
    <message>
        <source>Empty every channel shown</source>
        <translation>Jeden gezeigten Kanal leeren</translation>
    </message>
    <message>
        <source>Selected channel</source>
        <translation>Markierter Kanal</translation>
    </message>
    <message>
        <source>All channels shown</source>
        <translation>Alle gezeigten Kanäle</translation>
    </message>
    <message>
        <source>The offset is below 100 MHz.</source>
        <translation>Die Ablagefrequenz muss unter 100 MHz liegen.</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryTable</name>
    <message>
        <source>Memory channels</source>
        <translation>Speicherkanäle</translation>
    </message>
    <message>
        <source>Enter edits the rows, typing a cell</source>
        <translation>Enter bearbeitet die Zeilen, Tippen eine Zelle</translation>
    </message>
    <message>
        <source>An empty row begins with its frequency</source>
        <translation>Eine leere Zeile beginnt mit ihrer Frequenz</translation>
    </message>
    <message>
        <source>This model does not have it</source>
        <translation>Gibt es bei diesem Modell nicht</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryTableModel</name>
    <message>
        <source>In no bank</source>
        <translation>In keiner Bank</translation>
    </message>
</context>
<context>
    <name>rqm5::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
</context>
<context>
    <name>rqm5::ModifyForm</name>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Notiz</translation>
    </message>
    <message>
        <source>&amp;Frequency</source>
        <translation>&amp;Frequenz</translation>
    </message>
    <message>
        <source>Codes and tones</source>
        <translation>Codes und Töne</translation>
    </message>
    <message>
        <source>&amp;Secret code</source>
        <translation>&amp;Geheimcode</translation>
    </message>
    <message>
        <source>T&amp;rain tone</source>
        <translation>&amp;Zugfunkton</translation>
    </message>
    <message>
        <source>&amp;CTCSS tone</source>
        <translation>&amp;CTCSS-Ton</translation>
    </message>
    <message>
        <source>&amp;Offset Frequency</source>
        <translation>&amp;Ablagefrequenz</translation>
    </message>
    <message>
        <source>Offset Frequency</source>
        <translation>Ablagefrequenz</translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>What is blank stays as it is in each channel</source>
        <translation>Leere Felder bleiben in jedem Kanal, wie sie sind</translation>
    </message>
</context>
<context>
    <name>rqm5::MoveCommands</name>
    <message>
        <source>Insert Row Here</source>
        <translation>Leerzeile hier einfügen</translation>
    </message>
    <message>
        <source>There is no empty row behind it.</source>
        <translation>Dahinter gibt es keine leere Zeile.</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 von %3)</translation>
    </message>
</context>
<context>
    <name>rqm5::NoteLine</name>
    <message>
        <source>&amp;Use ; and &apos;</source>
        <translation>; &amp;und &apos; verwenden</translation>
    </message>
    <message>
        <source>Put semicolons for commas and apostrophes for quotes, in this note and all that follow</source>
        <translation>Semikolon statt Komma und Apostroph statt Anführungszeichen setzen, in dieser und allen weiteren Notizen</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save.</source>
        <translation>Kommas und Anführungszeichen in Notizen gehen beim Speichern verloren.</translation>
    </message>
    <message>
        <source>A comma or quotes would not survive a save: replaced.</source>
        <translation>Kommas und Anführungszeichen gingen beim Speichern verloren: ersetzt.</translation>
    </message>
</context>
<context>
    <name>rqm5::PlanTableModel</name>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Holds now</source>
        <translation>Enthält jetzt</translation>
    </message>
    <message>
        <source>What comes</source>
        <translation>Neuer Inhalt</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation>Abgelehnt: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::PrintJob</name>
    <message>
        <source>Printing...</source>
        <translation>Wird gedruckt...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>No printer is installed. Install one in the settings of the system, or print to a PDF file.</source>
        <translation>Es ist kein Drucker installiert. Richten Sie einen in den Systemeinstellungen ein, oder drucken Sie in eine PDF-Datei.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot; any more. Choose another one, or print to a PDF file.</source>
        <translation>Den Drucker „%1“ gibt es nicht mehr. Wählen Sie einen anderen, oder drucken Sie in eine PDF-Datei.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not take the pages. Check that it is switched on and connected, choose another one, or print to a PDF file.</source>
        <translation>Der Drucker „%1“ nimmt die Seiten nicht an. Prüfen Sie, ob er eingeschaltet und angeschlossen ist, wählen Sie einen anderen, oder drucken Sie in eine PDF-Datei.</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>The listing was not printed.</source>
        <translation>Die Liste wurde nicht gedruckt.</translation>
    </message>
</context>
<context>
    <name>rqm5::QtSerialPort</name>
    <message>
        <source>no such device</source>
        <translation>kein solches Gerät</translation>
    </message>
    <message>
        <source>not a serial port</source>
        <translation>kein serieller Anschluss</translation>
    </message>
    <message>
        <source>not a serial port (%1)</source>
        <translation>kein serieller Anschluss (%1)</translation>
    </message>
    <message>
        <source>the device has gone</source>
        <translation>das Gerät ist nicht mehr da</translation>
    </message>
</context>
<context>
    <name>rqm5::RecentFiles</name>
    <message>
        <source>Open Re&amp;cent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open a clone file that was opened or saved lately</source>
        <translation>Eine kürzlich geöffnete oder gespeicherte Klondatei öffnen</translation>
    </message>
    <message>
        <source>&amp;Empty This List</source>
        <translation>&amp;Liste leeren</translation>
    </message>
    <message>
        <source>The files stay; only the list forgets them</source>
        <translation>Die Dateien bleiben; nur die Liste vergisst sie</translation>
    </message>
</context>
<context>
    <name>rqm5::Recovery</name>
    <message>
        <source>changes that were in no file yet</source>
        <translation>Änderungen, die noch in keiner Datei standen</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>What was read from the receiver could not be saved. It was kept.</source>
        <translation>Was aus dem Empfänger gelesen wurde, ließ sich nicht speichern. Es wurde aufbewahrt.</translation>
    </message>
    <message>
        <source>The program ended before your changes were saved. They were kept.</source>
        <translation>Das Programm endete, bevor Ihre Änderungen gespeichert waren. Sie wurden aufbewahrt.</translation>
    </message>
    <message>
        <source>File: %1
Kept: %2</source>
        <translation>Datei: %1
Aufbewahrt: %2</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
</context>
<context>
    <name>rqm5::RowActions</name>
    <message>
        <source>&amp;Modify...</source>
        <translation>Än&amp;dern...</translation>
    </message>
    <message>
        <source>Edit the selected channels</source>
        <translation>Die markierten Kanäle bearbeiten</translation>
    </message>
</context>
<context>
    <name>rqm5::RowCommands</name>
    <message>
        <source>Edit &gt; Undo brings it back.</source>
        <translation>Bearbeiten &gt; Rückgängig holt es zurück.</translation>
    </message>
    <message>
        <source>CLEAR OK</source>
        <translation>Leeren bestätigen</translation>
    </message>
    <message>
        <source>Clear cannot be undone.
Are you sure that you want to do the clear?</source>
        <translation>Leeren lässt sich nicht rückgängig machen.
Wirklich leeren?</translation>
    </message>
    <message>
        <source>Clear cannot be undone.
Are you sure that you want to clear all memory?</source>
        <translation>Leeren lässt sich nicht rückgängig machen.
Wirklich den ganzen Speicher leeren?</translation>
    </message>
    <message>
        <source>DELETE OK</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>Delete cannot be undone.
Are you sure that you want to do the delete?</source>
        <translation>Löschen lässt sich nicht rückgängig machen.
Wirklich löschen?</translation>
    </message>
</context>
<context>
    <name>rqm5::Settings1Page</name>
    <message>
        <source>VFO &amp;bands:</source>
        <translation>&amp;VFO-Bänder:</translation>
    </message>
    <message>
        <source>A sibling model; kept when a file or receiver has it</source>
        <translation>Ein Schwestermodell; bleibt erhalten, wenn Datei oder Empfänger es enthält</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Rea&amp;d Settings</source>
        <translation>E&amp;instellungen lesen</translation>
    </message>
    <message>
        <source>Write Settin&amp;gs</source>
        <translation>Einstellun&amp;gen schreiben</translation>
    </message>
    <message>
        <source>Read all settings and VFO bands from the receiver</source>
        <translation>Alle Einstellungen und VFO-Bänder aus dem Empfänger lesen</translation>
    </message>
    <message>
        <source>Write all settings, VFO bands and presets to the receiver</source>
        <translation>Alle Einstellungen, VFO-Bänder und Festsender in den Empfänger schreiben</translation>
    </message>
</context>
<context>
    <name>rqm5::Settings2Page</name>
    <message>
        <source>Rea&amp;d Settings</source>
        <translation>E&amp;instellungen lesen</translation>
    </message>
    <message>
        <source>Write Settin&amp;gs</source>
        <translation>Einstellun&amp;gen schreiben</translation>
    </message>
    <message>
        <source>Read all settings and VFO bands from the receiver</source>
        <translation>Alle Einstellungen und VFO-Bänder aus dem Empfänger lesen</translation>
    </message>
    <message>
        <source>Write all settings, VFO bands and presets to the receiver</source>
        <translation>Alle Einstellungen, VFO-Bänder und Festsender in den Empfänger schreiben</translation>
    </message>
</context>
<context>
    <name>rqm5::SpectrumDock</name>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Zoom in (+, or the wheel)</source>
        <translation>Vergrößern (+ oder Mausrad)</translation>
    </message>
    <message>
        <source>Zoom out (-, or the wheel)</source>
        <translation>Verkleinern (- oder Mausrad)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Show the whole range (Home)</source>
        <translation>Den ganzen Bereich zeigen (Pos1)</translation>
    </message>
    <message>
        <source>Save Picture...</source>
        <translation>Bild speichern...</translation>
    </message>
    <message>
        <source>Save what is shown as PNG or SVG</source>
        <translation>Das Gezeigte als PNG oder SVG speichern</translation>
    </message>
</context>
<context>
    <name>rqm5::SpectrumView</name>
    <message>
        <source>Spectrum of the channels</source>
        <translation>Spektrum der Kanäle</translation>
    </message>
    <message>
        <source>Arrow keys go from channel to channel, Enter selects one; plus, minus and Home zoom</source>
        <translation>Pfeiltasten gehen von Kanal zu Kanal, Enter markiert einen; Plus, Minus und Pos1 ändern den Ausschnitt</translation>
    </message>
    <message>
        <source>%1 MHz</source>
        <translation>%1 MHz</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>stored twice</source>
        <translation>doppelt gespeichert</translation>
    </message>
</context>
<context>
    <name>rqm5::StatusBar</name>
    <message>
        <source>Nothing was imported: the file holds no record of this receiver and no list.</source>
        <translation>Nichts wurde importiert: Die Datei enthält weder Datensätze dieses Empfängers noch eine Liste.</translation>
    </message>
    <message>
        <source>Sibling model</source>
        <translation>Schwestermodell</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Channels enabled: %1</source>
        <translation>Kanäle eingeschaltet: %1</translation>
    </message>
    <message>
        <source>COM %1: %2</source>
        <translation>COM %1: %2</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>kein Gerät</translation>
    </message>
    <message>
        <source>%1, not present</source>
        <translation>%1, nicht vorhanden</translation>
    </message>
</context>
<context>
    <name>rqm5::ToolBar</name>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
</context>
<context>
    <name>rqm5::TransferBar</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Fortschritt der Übertragung</translation>
    </message>
    <message>
        <source>Channel being transferred</source>
        <translation>Kanal in Übertragung</translation>
    </message>
    <message>
        <source>The channel that is being transferred</source>
        <translation>Der Kanal, der gerade übertragen wird</translation>
    </message>
    <message>
        <source>End the transfer now; what was transferred stays</source>
        <translation>Die Übertragung jetzt beenden; was übertragen ist, bleibt</translation>
    </message>
</context>
<context>
    <name>rqm5::TransferCommands</name>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>%1. Check the cable, then read again.</source>
        <translation>%1. Kabel prüfen, dann noch einmal lesen.</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Read in %1 to compare; the open image is as it was.</source>
        <translation>In %1 zum Vergleich gelesen; das offene Abbild ist unverändert.</translation>
    </message>
    <message>
        <source>You had unsaved changes; Undo brings back what was there before the read.</source>
        <translation>Es gab nicht gespeicherte Änderungen; „Rückgängig“ holt den Stand vor dem Lesen zurück.</translation>
    </message>
    <message>
        <source>Old backups deleted: %1.</source>
        <translation>Alte Sicherungen gelöscht: %1.</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>The receiver is another model. Write to it all the same?</source>
        <translation>Der Empfänger ist ein anderes Modell. Trotzdem schreiben?</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Enable flags of other rows replaced by the receiver&apos;s: %1.</source>
        <translation>Einschaltmarken anderer Zeilen durch die des Empfängers ersetzt: %1.</translation>
    </message>
    <message>
        <source>The write was cancelled.</source>
        <translation>Das Schreiben wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The receiver does not hold what was written. Write again.</source>
        <translation>Im Empfänger steht nicht, was geschrieben wurde. Bitte noch einmal schreiben.</translation>
    </message>
</context>
<context>
    <name>rqm5::VfoTable</name>
    <message>
        <source>VFO bands</source>
        <translation>VFO-Bänder</translation>
    </message>
    <message>
        <source>One VFO setting per band. Enter or a double click edits the selected one.</source>
        <translation>Eine VFO-Einstellung je Band. Enter oder ein Doppelklick bearbeitet die markierte.</translation>
    </message>
</context>
<context>
    <name>rqm5::WriteOptionItems</name>
    <message>
        <source>Backup Folder</source>
        <translation>Sicherungsordner</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgAbout</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies all of this, for a bug report</source>
        <translation>Kopiert dies alles, für einen Fehlerbericht</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgBackups</name>
    <message>
        <source>rows: %1</source>
        <translation>Zeilen: %1</translation>
    </message>
    <message>
        <source>VFO bands: %1</source>
        <translation>VFO-Bänder: %1</translation>
    </message>
    <message>
        <source>bank layout</source>
        <translation>Bankaufteilung</translation>
    </message>
    <message>
        <source>settings: %1</source>
        <translation>Einstellungen: %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Gesichert</translation>
    </message>
    <message>
        <source>Holds</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>What differs from the open image</source>
        <translation>Unterschiede zum offenen Abbild</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>Ordner: %1</translation>
    </message>
    <message>
        <source>Keep no &amp;more than</source>
        <translation>&amp;Höchstens behalten</translation>
    </message>
    <message>
        <source> backups</source>
        <translation> Sicherungen</translation>
    </message>
    <message>
        <source>Keep no &amp;longer than</source>
        <translation>&amp;Längstens behalten</translation>
    </message>
    <message>
        <source> days</source>
        <translation> Tage</translation>
    </message>
    <message>
        <source>The oldest are deleted when the next backup has been kept</source>
        <translation>Die ältesten werden gelöscht, sobald die nächste Sicherung angelegt ist</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open the backup as a clone file</source>
        <translation>Die Sicherung als Klondatei öffnen</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>List what differs from the open image, and take from the backup</source>
        <translation>Unterschiede zum offenen Abbild auflisten und aus der Sicherung übernehmen</translation>
    </message>
    <message>
        <source>&amp;Write Back...</source>
        <translation>&amp;Zurückschreiben...</translation>
    </message>
    <message>
        <source>Write what the backup holds to the receiver; the open image stays as it is</source>
        <translation>Den Inhalt der Sicherung in den Empfänger schreiben; das offene Abbild bleibt, wie es ist</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>Lös&amp;chen...</translation>
    </message>
    <message>
        <source>Delete the selected backups</source>
        <translation>Die markierten Sicherungen löschen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <source>Delete the selected backups? They cannot be brought back.</source>
        <translation>Die markierten Sicherungen löschen? Sie lassen sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>Not every backup could be deleted. Look who may write to the folder.</source>
        <translation>Nicht jede Sicherung ließ sich löschen. Prüfen Sie, wer in den Ordner schreiben darf.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgCOM</name>
    <message>
        <source>COM Port Setup</source>
        <translation>COM-Anschluss einrichten</translation>
    </message>
    <message>
        <source>COM %1</source>
        <translation>COM %1</translation>
    </message>
    <message>
        <source>&amp;Found now:</source>
        <translation>Ge&amp;funden:</translation>
    </message>
    <message>
        <source>no serial port</source>
        <translation>kein serieller Anschluss</translation>
    </message>
    <message>
        <source>choose a device</source>
        <translation>Gerät wählen</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not present</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>Set by the environment variable RQM5_COM%1</source>
        <translation>Festgelegt durch die Umgebungsvariable RQM5_COM%1</translation>
    </message>
    <message>
        <source>The device that this number stands for; empty for the usual one</source>
        <translation>Das Gerät, für das diese Nummer steht; leer für das übliche</translation>
    </message>
    <message>
        <source>&amp;Device of COM %1:</source>
        <translation>&amp;Gerät von COM %1:</translation>
    </message>
    <message>
        <source>Find the &amp;Receiver</source>
        <translation>&amp;Empfänger suchen</translation>
    </message>
    <message>
        <source>Send one read command to each port that is there and free</source>
        <translation>Einen Lesebefehl an jeden vorhandenen, freien Anschluss senden</translation>
    </message>
    <message>
        <source>Asking %1...</source>
        <translation>%1 wird abgefragt...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stopp</translation>
    </message>
    <message>
        <source>unknown model</source>
        <translation>unbekanntes Modell</translation>
    </message>
    <message>
        <source>A receiver (%1) answers at %2. OK takes it as COM %3.</source>
        <translation>Ein Empfänger (%1) antwortet an %2. OK übernimmt ihn als COM %3.</translation>
    </message>
    <message>
        <source>No receiver answers. Ports asked: %1. Switch the receiver on, check its cable, and try again.</source>
        <translation>Kein Empfänger antwortet. Abgefragte Anschlüsse: %1. Schalten Sie den Empfänger ein, prüfen Sie sein Kabel, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>In use by another program: %1.</source>
        <translation>Von einem anderen Programm belegt: %1.</translation>
    </message>
    <message>
        <source>There is no port to ask. Plug the receiver&apos;s cable in.</source>
        <translation>Es gibt keinen Anschluss zum Abfragen. Schließen Sie das Kabel des Empfängers an.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgCompare</name>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Unterschied</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>&amp;Datei...</translation>
    </message>
    <message>
        <source>Compare with a clone file</source>
        <translation>Mit einer Klondatei vergleichen</translation>
    </message>
    <message>
        <source>&amp;Backup...</source>
        <translation>&amp;Sicherung...</translation>
    </message>
    <message>
        <source>Compare with a backup</source>
        <translation>Mit einer Sicherung vergleichen</translation>
    </message>
    <message>
        <source>&amp;Last Read</source>
        <translation>&amp;Letztes Lesen</translation>
    </message>
    <message>
        <source>Compare with what the receiver held when it was last read</source>
        <translation>Mit dem vergleichen, was beim letzten Lesen im Empfänger stand</translation>
    </message>
    <message>
        <source>&amp;Receiver Now</source>
        <translation>&amp;Empfänger jetzt</translation>
    </message>
    <message>
        <source>Read the receiver and compare with what it holds; the open image stays as it is</source>
        <translation>Den Empfänger lesen und mit seinem Inhalt vergleichen; das offene Abbild bleibt, wie es ist</translation>
    </message>
    <message>
        <source>Compare the open image with:</source>
        <translation>Das offene Abbild vergleichen mit:</translation>
    </message>
    <message>
        <source>All differences</source>
        <translation>Alle Unterschiede</translation>
    </message>
    <message>
        <source>Only here</source>
        <translation>Nur hier</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>Nur dort</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Verschoben</translation>
    </message>
    <message>
        <source>Changed in place</source>
        <translation>Am Platz geändert</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppe:</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Zeigen:</translation>
    </message>
    <message>
        <source>&amp;Take Selected</source>
        <translation>Markiertes über&amp;nehmen</translation>
    </message>
    <message>
        <source>Take the selected rows and groups from the other side</source>
        <translation>Die markierten Zeilen und Gruppen von der anderen Seite übernehmen</translation>
    </message>
    <message>
        <source>Take &amp;All</source>
        <translation>&amp;Alles übernehmen</translation>
    </message>
    <message>
        <source>Take everything that is shown from the other side</source>
        <translation>Alles Gezeigte von der anderen Seite übernehmen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Choose above what the open image is compared with.</source>
        <translation>Wählen Sie oben, womit das offene Abbild verglichen wird.</translation>
    </message>
    <message>
        <source>All groups</source>
        <translation>Alle Gruppen</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Kein Unterschied.</translation>
    </message>
    <message>
        <source>%1 of %2 differences</source>
        <translation>%1 von %2 Unterschieden</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Unterschiede: %1</translation>
    </message>
    <message>
        <source>Take &amp;All Shown</source>
        <translation>&amp;Alles Gezeigte übernehmen</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>The banks would hold more than 1000 channels together.</source>
        <translation>Die Bänke hätten zusammen mehr als 1000 Kanäle.</translation>
    </message>
    <message>
        <source>Nothing was taken. Take the whole group &quot;Bank layout&quot; instead of single sizes.</source>
        <translation>Nichts wurde übernommen. Übernehmen Sie die ganze Gruppe „Bankaufteilung“ statt einzelner Größen.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgDuplicates</name>
    <message>
        <source>Duplicates</source>
        <translation>Doppelte</translation>
    </message>
    <message>
        <source>Frequencies that are stored more than once</source>
        <translation>Mehrfach gespeicherte Frequenzen</translation>
    </message>
    <message>
        <source>Frequency and place</source>
        <translation>Frequenz und Platz</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>%1 MHz, %2 times</source>
        <translation>%1 MHz, %2-mal</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>No frequency is stored more than once.</source>
        <translation>Keine Frequenz ist mehrfach gespeichert.</translation>
    </message>
    <message>
        <source>1 frequency is stored more than once. A click goes to a place.</source>
        <translation>1 Frequenz ist mehrfach gespeichert. Ein Klick führt zum Platz.</translation>
    </message>
    <message>
        <source>%1 frequencies are stored more than once. A click goes to a place.</source>
        <translation>%1 Frequenzen sind mehrfach gespeichert. Ein Klick führt zum Platz.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgExportList</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>Liste exportieren</translation>
    </message>
    <message>
        <source>Point: 145.500000, commas between fields</source>
        <translation>Punkt: 145.500000, Kommas zwischen den Feldern</translation>
    </message>
    <message>
        <source>Comma: 145,500000, semicolons between fields</source>
        <translation>Komma: 145,500000, Semikolons zwischen den Feldern</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Gruppen</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <source>&amp;Decimal sign</source>
        <translation>&amp;Dezimalzeichen</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>In keiner Bank</translation>
    </message>
    <message>
        <source>Channels that are written: %1</source>
        <translation>Kanäle, die geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgFill</name>
    <message>
        <source>&amp;Number of channels</source>
        <translation>&amp;Anzahl der Kanäle</translation>
    </message>
    <message>
        <source>&amp;Last frequency</source>
        <translation>&amp;Letzte Frequenz</translation>
    </message>
    <message>
        <source>S&amp;kip rows that hold a channel</source>
        <translation>Belegte Zeilen übers&amp;pringen</translation>
    </message>
    <message>
        <source>Fill Series</source>
        <translation>Reihe ausfüllen</translation>
    </message>
    <message>
        <source>What goes where</source>
        <translation>Was wohin kommt</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>S&amp;pacing</source>
        <translation>Abs&amp;tand</translation>
    </message>
    <message>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <source>&amp;Mode and the rest</source>
        <translation>&amp;Betriebsart und Übriges</translation>
    </message>
    <message>
        <source>Number of channels</source>
        <translation>Anzahl der Kanäle</translation>
    </message>
    <message>
        <source>Last frequency</source>
        <translation>Letzte Frequenz</translation>
    </message>
    <message>
        <source>As usual on the frequency</source>
        <translation>Wie auf der Frequenz üblich</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgImport</name>
    <message>
        <source>(not used)</source>
        <translation>(nicht benutzt)</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Frequency in MHz</source>
        <translation>Frequenz in MHz</translation>
    </message>
    <message>
        <source>Frequency in kHz</source>
        <translation>Frequenz in kHz</translation>
    </message>
    <message>
        <source>Frequency in Hz</source>
        <translation>Frequenz in Hz</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Secret code</source>
        <translation>Geheimcode</translation>
    </message>
    <message>
        <source>Train tone</source>
        <translation>Zugfunkton</translation>
    </message>
    <message>
        <source>CTCSS tone</source>
        <translation>CTCSS-Ton</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Shift frequency</source>
        <translation>Ablagefrequenz</translation>
    </message>
    <message>
        <source>Shift frequency in MHz</source>
        <translation>Ablagefrequenz in MHz</translation>
    </message>
    <message>
        <source>Shift frequency in kHz</source>
        <translation>Ablagefrequenz in kHz</translation>
    </message>
    <message>
        <source>Shift frequency in Hz</source>
        <translation>Ablagefrequenz in Hz</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Bank</translation>
    </message>
    <message>
        <source>Channel in the bank</source>
        <translation>Kanal in der Bank</translation>
    </message>
    <message>
        <source>Memory row</source>
        <translation>Speicherzeile</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importieren (%1)</translation>
    </message>
    <message>
        <source>What goes where</source>
        <translation>Was wohin kommt</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>The list as it is read</source>
        <translation>Die Liste, wie sie gelesen wird</translation>
    </message>
    <message>
        <source>What %1 is</source>
        <translation>Was %1 ist</translation>
    </message>
    <message>
        <source>Frequency (%1 by its size)</source>
        <translation>Frequenz (der Größe nach %1)</translation>
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
        <translation>Importieren (%1)</translation>
    </message>
    <message>
        <source>What was read otherwise</source>
        <translation>Was anders gelesen wurde</translation>
    </message>
    <message>
        <source>&amp;Read again with decimal commas</source>
        <translation>Mit Dezimalkomma neu &amp;lesen</translation>
    </message>
    <message>
        <source>Edit &gt; Undo takes the import back.</source>
        <translation>Bearbeiten &gt; Rückgängig nimmt den Import zurück.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgModify</name>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Voriger</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Näch&amp;ster</translation>
    </message>
    <message>
        <source>OK and Next</source>
        <translation>OK und weiter</translation>
    </message>
    <message>
        <source>Store the row and go on with the next one (Ctrl+Enter)</source>
        <translation>Die Zeile übernehmen und mit der nächsten fortfahren (Strg+Enter)</translation>
    </message>
    <message>
        <source>Store what was changed and go on (%1)</source>
        <translation>Änderungen übernehmen und weitergehen (%1)</translation>
    </message>
    <message>
        <source>Modify Memory</source>
        <translation>Kanal ändern</translation>
    </message>
    <message>
        <source>Modify VFO</source>
        <translation>VFO ändern</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>VFO</source>
        <translation>VFO</translation>
    </message>
    <message>
        <source>Frequency of the cellular phone</source>
        <translation>Frequenz des Mobiltelefonnetzes</translation>
    </message>
    <message>
        <source>It is a frequency of the cellular phone.
It is not possible to set it.</source>
        <translation>Das ist eine Frequenz des Mobiltelefonnetzes.
Sie lässt sich nicht einstellen.</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>The same frequency as other channels cannot be set in Search Pass bank.</source>
        <translation>In der Bank Search Pass darf keine Frequenz doppelt vorkommen.</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>&amp;Halten</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Übers&amp;pringen</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Einschalten</translation>
    </message>
    <message>
        <source>Scanning skips this channel</source>
        <translation>Der Suchlauf überspringt diesen Kanal</translation>
    </message>
    <message>
        <source>The channel is in use</source>
        <translation>Der Kanal wird benutzt</translation>
    </message>
    <message>
        <source>The next empty channel starts with the values confirmed here</source>
        <translation>Der nächste leere Kanal beginnt mit den hier bestätigten Werten</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgPaste</name>
    <message>
        <source>What goes where</source>
        <translation>Was wohin kommt</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgPrint</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>What to print</source>
        <translation>Was gedruckt wird</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>&amp;VFO table</source>
        <translation>&amp;VFO-Tabelle</translation>
    </message>
    <message>
        <source>&amp;Memory channels</source>
        <translation>&amp;Speicherkanäle</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppe:</translation>
    </message>
    <message>
        <source>&amp;Leave out empty rows</source>
        <translation>&amp;Leere Zeilen auslassen</translation>
    </message>
    <message>
        <source>Sp&amp;ectrum of all channels</source>
        <translation>Spe&amp;ktrum aller Kanäle</translation>
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
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>P&amp;ortrait</source>
        <translation>&amp;Hochformat</translation>
    </message>
    <message>
        <source>L&amp;andscape</source>
        <translation>&amp;Querformat</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>Print to</source>
        <translation>Drucken in</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>no printer installed</source>
        <translation>kein Drucker installiert</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>P&amp;DF file</source>
        <translation>&amp;PDF-Datei</translation>
    </message>
    <message>
        <source>Previe&amp;w...</source>
        <translation>V&amp;orschau...</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgWriteChanges</name>
    <message>
        <source>Keep a &amp;backup of what is replaced</source>
        <translation>&amp;Sicherung des Ersetzten anlegen</translation>
    </message>
    <message>
        <source>&amp;Verify afterwards</source>
        <translation>Danach &amp;prüfen</translation>
    </message>
    <message>
        <source>Write Changes</source>
        <translation>Änderungen schreiben</translation>
    </message>
    <message>
        <source>The receiver as it was read or written since %1, %2. Each block is read once more before the first one is written.</source>
        <translation>Stand des Empfängers: gelesen oder beschrieben seit %1, %2. Jeder Block wird noch einmal gelesen, bevor der erste geschrieben wird.</translation>
    </message>
    <message>
        <source>What is written</source>
        <translation>Was geschrieben wird</translation>
    </message>
    <message>
        <source>Row and field</source>
        <translation>Zeile und Feld</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Will be</source>
        <translation>Wird zu</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>S&amp;chreiben</translation>
    </message>
    <message>
        <source>The receiver holds all of it already. There is nothing to write.</source>
        <translation>Im Empfänger steht schon alles. Es gibt nichts zu schreiben.</translation>
    </message>
    <message>
        <source>1 block is written, %1.</source>
        <translation>1 Block wird geschrieben, %1.</translation>
    </message>
    <message>
        <source>%1 blocks are written, %2.</source>
        <translation>%1 Blöcke werden geschrieben, %2.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgWriteConflicts</name>
    <message>
        <source>Changed at the Receiver, Too</source>
        <translation>Auch am Empfänger geändert</translation>
    </message>
    <message>
        <source>What is to be written was changed at the receiver since it was last read. Nothing has been written yet. Decide for each row.</source>
        <translation>Was geschrieben werden soll, wurde seit dem letzten Lesen auch am Empfänger geändert. Noch ist nichts geschrieben. Bitte für jede Zeile entscheiden.</translation>
    </message>
    <message>
        <source>Rows that were changed on both sides</source>
        <translation>Auf beiden Seiten geänderte Zeilen</translation>
    </message>
    <message>
        <source>Row and field</source>
        <translation>Zeile und Feld</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Receiver now</source>
        <translation>Empfänger jetzt</translation>
    </message>
    <message>
        <source>To be written</source>
        <translation>Zu schreiben</translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>Entscheidung</translation>
    </message>
    <message>
        <source>Keep all &amp;mine</source>
        <translation>Alle ei&amp;genen behalten</translation>
    </message>
    <message>
        <source>Take all the &amp;receiver&apos;s</source>
        <translation>Alle vom &amp;Empfänger übernehmen</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>S&amp;chreiben</translation>
    </message>
    <message>
        <source>Decision for %1</source>
        <translation>Entscheidung für %1</translation>
    </message>
    <message>
        <source>Decide</source>
        <translation>Entscheiden</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Eigenes behalten</translation>
    </message>
    <message>
        <source>Take the receiver&apos;s</source>
        <translation>Vom Empfänger übernehmen</translation>
    </message>
</context>
<context>
    <name>rqm5::frmHelp</name>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Handbuchseite</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Handbuch durchsuchen</translation>
    </message>
    <message>
        <source>Lists the pages that hold every word; Enter goes to the next place</source>
        <translation>Zeigt die Seiten, auf denen alle Wörter stehen; Enter geht zur nächsten Stelle</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Larger Text</source>
        <translation>Text größer</translation>
    </message>
    <message>
        <source>Smaller Text</source>
        <translation>Text kleiner</translation>
    </message>
    <message>
        <source>Usual Text Size</source>
        <translation>Übliche Textgröße</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>No page holds these words.</source>
        <translation>Keine Seite enthält diese Wörter.</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Link öffnen</translation>
    </message>
    <message>
        <source>This link leads out of the manual. Open it in the web browser?</source>
        <translation>Dieser Link führt aus dem Handbuch hinaus. Im Webbrowser öffnen?</translation>
    </message>
</context>
<context>
    <name>rqm5::frmMain</name>
    <message>
        <source>&amp;Language</source>
        <translation>Sp&amp;rache</translation>
    </message>
    <message>
        <source>Choose the language of every window</source>
        <translation>Die Sprache aller Fenster wählen</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>Recovered changes came first; not opened: %1</source>
        <translation>Die wiederhergestellten Änderungen gingen vor; nicht geöffnet: %1</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Read(&amp;R)</source>
        <translation>&amp;Lesen</translation>
    </message>
    <message>
        <source>Write(&amp;W)</source>
        <translation>&amp;Schreiben</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Start with empty memories and default settings</source>
        <translation>Mit leerem Speicher und Standardeinstellungen beginnen</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open a clone file</source>
        <translation>Eine Klondatei öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save to the current file</source>
        <translation>In die aktuelle Datei speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save to another file</source>
        <translation>In eine andere Datei speichern</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>Take channels from a CSV file or a list of another program</source>
        <translation>Kanäle aus einer CSV-Datei oder der Liste eines anderen Programms übernehmen</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Write VFO bands and channels to a CSV file</source>
        <translation>VFO-Bänder und Kanäle in eine CSV-Datei schreiben</translation>
    </message>
    <message>
        <source>Export &amp;List...</source>
        <translation>&amp;Liste exportieren...</translation>
    </message>
    <message>
        <source>Write channels as a list for spreadsheets</source>
        <translation>Kanäle als Liste für Tabellenkalkulationen schreiben</translation>
    </message>
    <message>
        <source>&amp;Repair...</source>
        <translation>&amp;Reparieren...</translation>
    </message>
    <message>
        <source>Open a clone file that is refused because of its notes</source>
        <translation>Eine Klondatei öffnen, die wegen ihrer Notizen abgelehnt wird</translation>
    </message>
    <message>
        <source>&amp;Backups...</source>
        <translation>Si&amp;cherungen...</translation>
    </message>
    <message>
        <source>List the backups: open, compare, write back or delete them</source>
        <translation>Sicherungen auflisten: öffnen, vergleichen, zurückschreiben oder löschen</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Print settings, VFO bands and channels</source>
        <translation>Einstellungen, VFO-Bänder und Kanäle drucken</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>Die letzte Änderung rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Die rückgängig gemachte Änderung wiederholen</translation>
    </message>
    <message>
        <source>&amp;Modify...</source>
        <translation>Än&amp;dern...</translation>
    </message>
    <message>
        <source>Edit the selected channels or VFO band; so does Enter</source>
        <translation>Die markierten Kanäle oder das VFO-Band bearbeiten; wie Enter</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Find channels by frequency, note, mode or tone</source>
        <translation>Kanäle nach Frequenz, Notiz, Betriebsart oder Ton suchen</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Nä&amp;chsten suchen</translation>
    </message>
    <message>
        <source>Go to the next channel found</source>
        <translation>Zum nächsten gefundenen Kanal gehen</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>&amp;Vorigen suchen</translation>
    </message>
    <message>
        <source>Go to the previous channel found</source>
        <translation>Zum vorigen gefundenen Kanal gehen</translation>
    </message>
    <message>
        <source>&amp;Toolbar</source>
        <translation>&amp;Symbolleiste</translation>
    </message>
    <message>
        <source>Show or hide the toolbar</source>
        <translation>Die Symbolleiste zeigen oder verbergen</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>S&amp;tatusleiste</translation>
    </message>
    <message>
        <source>Show or hide the status bar</source>
        <translation>Die Statusleiste zeigen oder verbergen</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>Show every change that can be taken back; a click goes there</source>
        <translation>Jede Änderung zeigen, die sich rückgängig machen lässt; ein Klick geht dorthin</translation>
    </message>
    <message>
        <source>S&amp;pectrum</source>
        <translation>S&amp;pektrum</translation>
    </message>
    <message>
        <source>Show every channel by its frequency; a click selects its row</source>
        <translation>Jeden Kanal nach seiner Frequenz zeigen; ein Klick markiert seine Zeile</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnose</translation>
    </message>
    <message>
        <source>Send single read commands and see the replies</source>
        <translation>Einzelne Lesebefehle senden und die Antworten sehen</translation>
    </message>
    <message>
        <source>ALL(&amp;A)</source>
        <translation>&amp;Alles</translation>
    </message>
    <message>
        <source>Read everything from the receiver</source>
        <translation>Alles aus dem Empfänger lesen</translation>
    </message>
    <message>
        <source>Memory(&amp;M)</source>
        <translation>&amp;Speicher</translation>
    </message>
    <message>
        <source>Read the channels of the group shown on the Memory page</source>
        <translation>Die Kanäle der Gruppe lesen, die auf der Seite „Speicher“ gezeigt wird</translation>
    </message>
    <message>
        <source>Settings(&amp;S)</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>Read the settings and the VFO bands</source>
        <translation>Einstellungen und VFO-Bänder lesen</translation>
    </message>
    <message>
        <source>&amp;Verify after reading</source>
        <translation>Nach dem Lesen &amp;prüfen</translation>
    </message>
    <message>
        <source>Read everything twice, and list what was different</source>
        <translation>Alles zweimal lesen und auflisten, was anders war</translation>
    </message>
    <message>
        <source>Write everything to the receiver</source>
        <translation>Alles in den Empfänger schreiben</translation>
    </message>
    <message>
        <source>Write the channels of the group shown on the Memory page</source>
        <translation>Die Kanäle der Gruppe schreiben, die auf der Seite „Speicher“ gezeigt wird</translation>
    </message>
    <message>
        <source>Write the settings and the VFO bands</source>
        <translation>Einstellungen und VFO-Bänder schreiben</translation>
    </message>
    <message>
        <source>&amp;Changes...</source>
        <translation>Ä&amp;nderungen...</translation>
    </message>
    <message>
        <source>Write only what the receiver holds otherwise, after showing it</source>
        <translation>Nur schreiben, was im Empfänger anders ist; vorher wird es gezeigt</translation>
    </message>
    <message>
        <source>Keep a &amp;backup before writing</source>
        <translation>Vor dem Schreiben si&amp;chern</translation>
    </message>
    <message>
        <source>Read what a write will replace, and save it, before anything is written</source>
        <translation>Was ersetzt wird, vor dem Schreiben lesen und speichern</translation>
    </message>
    <message>
        <source>&amp;Verify after writing</source>
        <translation>Nach dem Schreiben &amp;prüfen</translation>
    </message>
    <message>
        <source>Read back what was written, and list what differs</source>
        <translation>Das Geschriebene zurücklesen und Abweichungen auflisten</translation>
    </message>
    <message>
        <source>Backup &amp;Folder...</source>
        <translation>Sicherungs&amp;ordner...</translation>
    </message>
    <message>
        <source>Choose where backups are kept</source>
        <translation>Wählen, wo Sicherungen liegen</translation>
    </message>
    <message>
        <source>&amp;Duplicates...</source>
        <translation>&amp;Doppelte...</translation>
    </message>
    <message>
        <source>List every frequency that is stored more than once</source>
        <translation>Jede mehrfach gespeicherte Frequenz auflisten</translation>
    </message>
    <message>
        <source>Com&amp;pare...</source>
        <translation>&amp;Vergleichen...</translation>
    </message>
    <message>
        <source>Show what differs from a file, a backup or the receiver, and take it</source>
        <translation>Unterschiede zu einer Datei, einer Sicherung oder dem Empfänger zeigen und übernehmen</translation>
    </message>
    <message>
        <source>COM Port Setup(&amp;C)</source>
        <translation>&amp;COM-Anschluss einrichten</translation>
    </message>
    <message>
        <source>Choose the serial port of the receiver&apos;s cable</source>
        <translation>Den seriellen Anschluss für das Kabel des Empfängers wählen</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Show the manual</source>
        <translation>Das Handbuch zeigen</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>In&amp;fo...</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Über dieses Programm</translation>
    </message>
    <message>
        <source>Settings 1</source>
        <translation>Einstellungen 1</translation>
    </message>
    <message>
        <source>Model, modes, volume, squelch and the VFO bands</source>
        <translation>Modell, Arbeitsmodus, Lautstärke, Rauschsperre und VFO-Bänder</translation>
    </message>
    <message>
        <source>Settings 2</source>
        <translation>Einstellungen 2</translation>
    </message>
    <message>
        <source>Display, power, keys, sound and antennas</source>
        <translation>Anzeige, Strom, Tasten, Töne und Antennen</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>The memory channels</source>
        <translation>Die Speicherkanäle</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Bank</translation>
    </message>
    <message>
        <source>Sizes and links of the memory banks</source>
        <translation>Größen und Verknüpfungen der Speicherbänke</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
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
        <source>Read ALL</source>
        <translation>Alles lesen</translation>
    </message>
    <message>
        <source>Write ALL</source>
        <translation>Alles schreiben</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>Put the selected rows on the clipboard and clear them</source>
        <translation>Die markierten Zeilen in die Zwischenablage legen und leeren</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Put the selected rows on the clipboard</source>
        <translation>Die markierten Zeilen in die Zwischenablage legen</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Einfü&amp;gen</translation>
    </message>
    <message>
        <source>Write the channels of the clipboard from the current row on</source>
        <translation>Die Kanäle der Zwischenablage ab der aktuellen Zeile schreiben</translation>
    </message>
    <message>
        <source>Paste Spec&amp;ial...</source>
        <translation>&amp;Inhalte einfügen...</translation>
    </message>
    <message>
        <source>Write chosen columns of the clipboard into the selected rows</source>
        <translation>Gewählte Spalten der Zwischenablage in die markierten Zeilen schreiben</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alles &amp;markieren</translation>
    </message>
    <message>
        <source>Select every row of the table</source>
        <translation>Jede Zeile der Tabelle markieren</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Empty the selected rows</source>
        <translation>Die markierten Zeilen leeren</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Einschalten</translation>
    </message>
    <message>
        <source>Switch the selected channels on; Space switches on and off</source>
        <translation>Die markierten Kanäle einschalten; Leertaste schaltet ein und aus</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>A&amp;usschalten</translation>
    </message>
    <message>
        <source>Switch the selected channels off; Space switches on and off</source>
        <translation>Die markierten Kanäle ausschalten; Leertaste schaltet ein und aus</translation>
    </message>
    <message>
        <source>Fill &amp;Series...</source>
        <translation>Rei&amp;he ausfüllen...</translation>
    </message>
    <message>
        <source>Make channels at even distances</source>
        <translation>Kanäle in gleichen Abständen anlegen</translation>
    </message>
    <message>
        <source>Fill Do&amp;wn...</source>
        <translation>&amp;Nach unten ausfüllen...</translation>
    </message>
    <message>
        <source>Give the selected rows chosen columns of the first of them</source>
        <translation>Den markierten Zeilen gewählte Spalten der ersten von ihnen geben</translation>
    </message>
    <message>
        <source>Mo&amp;ve Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move the selected rows up by one</source>
        <translation>Die markierten Zeilen um eine nach oben verschieben</translation>
    </message>
    <message>
        <source>Move Dow&amp;n</source>
        <translation>Nach un&amp;ten</translation>
    </message>
    <message>
        <source>Move the selected rows down by one</source>
        <translation>Die markierten Zeilen um eine nach unten verschieben</translation>
    </message>
    <message>
        <source>Copy to &amp;Bank</source>
        <translation>In &amp;Bank kopieren</translation>
    </message>
    <message>
        <source>Copy the selected channels into empty rows of a bank</source>
        <translation>Die markierten Kanäle in leere Zeilen einer Bank kopieren</translation>
    </message>
    <message>
        <source>Move to Ban&amp;k</source>
        <translation>In Bank &amp;verschieben</translation>
    </message>
    <message>
        <source>Move the selected channels into empty rows of a bank</source>
        <translation>Die markierten Kanäle in leere Zeilen einer Bank verschieben</translation>
    </message>
    <message>
        <source>Insert Row &amp;Here</source>
        <translation>Lee&amp;rzeile hier einfügen</translation>
    </message>
    <message>
        <source>Put an empty row here; the rows behind it in the group shown move down</source>
        <translation>Hier eine leere Zeile einfügen; die Zeilen dahinter in der gezeigten Gruppe rücken nach unten</translation>
    </message>
    <message>
        <source>Delete Row and Close &amp;Up</source>
        <translation>&amp;Zeile löschen und aufrücken</translation>
    </message>
    <message>
        <source>Take the selected rows out; the rows behind them in the group shown move up</source>
        <translation>Die markierten Zeilen herausnehmen; die Zeilen dahinter in der gezeigten Gruppe rücken nach oben</translation>
    </message>
    <message>
        <source>Sort &amp;Group</source>
        <translation>Gruppe &amp;sortieren</translation>
    </message>
    <message>
        <source>Sort the rows of the group shown; empty rows come last</source>
        <translation>Die Zeilen der gezeigten Gruppe sortieren; leere kommen ans Ende</translation>
    </message>
    <message>
        <source>By &amp;Frequency</source>
        <translation>Nach &amp;Frequenz</translation>
    </message>
    <message>
        <source>By &amp;Note</source>
        <translation>Nach &amp;Notiz</translation>
    </message>
    <message>
        <source>By &amp;Mode</source>
        <translation>Nach &amp;Betriebsart</translation>
    </message>
    <message>
        <source>R&amp;ows</source>
        <translation>&amp;Zeilen</translation>
    </message>
    <message>
        <source>Move, copy, insert, delete and sort rows of the group shown</source>
        <translation>Zeilen der gezeigten Gruppe verschieben, kopieren, einfügen, löschen und sortieren</translation>
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
        <translation>Liest, bearbeitet und schreibt den Speicher des Empfängers</translation>
    </message>
</context>
</TS>

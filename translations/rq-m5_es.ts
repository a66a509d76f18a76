<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Message</name>
    <message>
        <source>the backup of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other side: backup of %1, which holds: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings and VFO bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank sizes and links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take what was changed at the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other side: the file %1, saved %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other side: the receiver as it was read or written since %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other side: the receiver as it was read at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the last read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other side: the receiver, read just now (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reply after %1 ms: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received until the time-out after %1 ms: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing came back. Check the cable, the port, and that the receiver is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver did not answer: only the echo of the command came back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reply is too short: a whole one ends with 36 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reply is garbled: it does not end with a line of 32 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An empty row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 reads, %2 errors.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round trip: lowest %1 ms, median %2 ms, highest %3 ms.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was removed or renamed by another program. Save will ask first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was changed by another program. You have unsaved changes; Save will ask first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported with %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported from %1. %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept for recovery: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes whose comma or quotes will not survive a save: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use ; and &apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use ; and &apos; in notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect the receiver and choose Read &gt; ALL (Ctrl+R), or open a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read ALL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup and verify are off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn Them On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows outside the receiver&apos;s range (0.1 to 1299.995 MHz), which are written as they are: %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save as a clone file: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was saved with notes that it cannot bring back; change them and save again: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Memory (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, but the receiver holds something else.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a minute ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an hour ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a day ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no progress, no closing line and no notes (also -q)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every exchange with the receiver and every warning (also -v)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too many arguments: &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--json and --tsv are two forms; choose one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lines end in LF instead of CR LF; this program reads them, another may not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is text behind the last line; a save drops it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>characters other than upper-case hexadecimal digits may be read as 0; there are some in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>these values are read differently from what the file says:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>these rows are outside the receiver&apos;s range (%1):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a save loses these notes; take commas and quotes out of them:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exported as CSV, a spreadsheet would run these notes as formulas:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 files are whole.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is one of %2 names of a file (hard links); the others keep the old contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a clone file cannot hold these values; they read back differently:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is written, but the file cannot bring back these notes; take commas and quotes out of them:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is saved, but not all that belonged to the old file could be kept:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the name is not written in UTF-8. Rename the file, or use &quot;-&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: both names are the same file, which would be replaced; give another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: with these notes it could not be opened any more. --safe-notes stores them without commas and quotes, --force as they are:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: with the notes below it could not be opened any more; take commas and quotes out of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>model region (default 0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no banks: all 1000 channels unassigned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>replace FILE if it exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read everything twice and list each block that was different the second time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>first read what will be replaced and save it as COPY, a new file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read back afterwards and list each block that differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write only what the receiver holds otherwise; what is not known of it is read first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with --changes: what the receiver held when it was last read or written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write even if the backup shows that the receiver is another model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty rows, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>compare A with the receiver: COM number 1 to 14, or a device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write the pages to a PDF instead of the terminal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print the VFO table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print the memory channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print empty rows, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>size of the PDF&apos;s pages; without it that of the country</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>turn the PDF&apos;s pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>replace OUT.pdf whatever it holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>export each FILE into this folder, under its own name with .csv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>replace OUT.csv whatever it holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read 145,5 as 145.5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what the columns of a list are, by title or number; such as &quot;Freq=frequency:kHz,3=note&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>where a list goes: from memory row 0 to 1209 on, or from BANK:CHANNEL, program-scan, search-pass or priority on; without it to the rows that it names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show what would change and write nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keep FILE as it was as FILE~</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>store notes without commas and quotes, which a clone file cannot hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write FILE even if its notes keep it from being opened again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write the repaired file under this name, which no file has yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>replace FILE, which is kept as FILE~</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>both names are the same file, which would be replaced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--to writes another file than --in-place; choose one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write the start-up image of a model region</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has default settings, VFO bands and bank sizes and no channels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read the receiver into FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If FILE exists, it is the starting point: notes and what is not read stay. If the transfer fails, FILE is left untouched. If a block arrives damaged or, with --verify, different the second time, it is listed, the status is 1, and the old file is kept as FILE~.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write FILE to the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sends settings, VFO bands and presets, then banks and channels. Without --verify nothing is read back. If the backup fails, nothing is written. With --changes each block that is to be written is read first, and nothing is written if it was changed at the receiver, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>compare the receiver with FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compares with what write of the same parts leaves behind. Prints nothing and ends with status 0 when they agree, else lists each block that differs, with the bytes in words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write FILE as CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds the channels and VFO bands, for a spreadsheet. OUT.csv may be missing, empty or an older export. With --to, each FILE is exported into the folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>take the rows of a CSV file or of a list into FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows that IN.csv does not name stay as they are. FILE is made when it does not exist. Notes with which FILE could not be opened again keep it from being written. Carrier codes of an export move one up. A file of another program is read as a list: how it is read is said, and what is not taken is listed by line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print the channels of each FILE in columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows that hold a channel or a note; &quot;x&quot; marks a channel that is off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print each FILE as text, or one as PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings, VFO table and memory channels in this order; without --settings, --vfo and --memory all three. &quot;Off&quot; marks a channel that is disabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check that each FILE is complete, and say what it holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names the line that is wrong and why. Warns of notes that a save loses or a spreadsheet would run, and of values that are read differently from what the file says. Several files take one line each; --verbose lists their warnings, --quiet names only those that are not whole.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mend a file that cannot be opened because of its notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commas in notes become semicolons, quotes apostrophes; each such note is shown. Without --to and --in-place nothing is written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list what differs between two files, or a file and the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows, settings, banks and notes are named. Status 1 when there is a difference.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list serial ports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each COM number with its device and whether it can be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read one block and show the reply as it came</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ADDRESS is hexadecimal and that of a block: 0000 to FFF0, the last digit 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COM number 1 to 14, also as COM5, or a device or a link to one; without it the number in RQ-M5.ini</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leave the other part out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bank 0 to 49, program-scan, search-pass, priority or all (default)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the memory only: bank 0 to 49, program-scan, search-pass, priority or all; without it settings and all of the memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write JSON, as docs/json.md describes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write fields separated by tabs, titles first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>take names of files from LIST, one on each line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--port compares one file with the receiver; leave B out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is about what is read from the receiver; add --port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B is missing; --port P compares with the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list what would change and write nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>store notes without commas and quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what decides the order (default frequency)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is taken; as for set, and also settings and banks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>find channels in files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PATTERN is one or more words: frequencies, modes, notes, tones. A word such as 118..137, mode=AM, tone=88.5, note~tower, bank:3 or program-scan leaves the rows that meet it. Prints file, bank, channel, memory row and what it holds. Status 1 when nothing was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>change fields of channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROWS is one or more of all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority and vfo, with commas between; conditions such as mode=AM, freq:118..137 and note~airport leave those of them that meet them. FIELD is freq, mode, step, option, secret, carrier, tone, shift, offset, note, skip or enabled. The limits are those of the channel editor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switch channels on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROWS is as for set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switch channels off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty rows, with their notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>copy channels to another place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROWS is as for set. TO is a bank or group, whose empty rows take the channels, or one row such as bank:3/12, from which on they replace what is there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>move channels to another place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As copy; the rows that they came from become empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sort the channels of banks and groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROWS is one or more places, each sorted by itself; all sorts every bank and group. Empty rows come last.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>take rows of one file into another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows of OTHER that --take names go to the same places of FILE; notes and flags go with them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print the completion script of a shell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed with the program; for a shell of your own, source what it prints.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without COMMAND it lists all of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TO %1 has room for %2 of %3 channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sort takes places such as bank:3 or program-scan, and no conditions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rows of two groups cannot be sorted as one; name them apart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the two edges of a Program Scan pair stay together; name whole pairs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 bank value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bank values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changed in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROWS names channels that are not there: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none of the rows that ROWS names holds a channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROWS names no row of this file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is one place, such as bank:3 or bank:3/12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is frequency, note or mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is bash, zsh or fish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FIELD=VALUE is missing, such as mode=AM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set changes rows, not settings or banks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--take ROWS is missing: it says what is taken, such as bank:3 or all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>both names are the same file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>several files need a folder: add --to FOLDER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--pdf takes one FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a spreadsheet would run these notes as formulas:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no such folder. Make it first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: another file of this name went to %2 just now. Export it by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the list names no file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this text, or with a command the help of the command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no progress, no closing line and no notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every exchange with the receiver and every warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads, keeps and writes the memory of a Tervan RQ-M5 receiver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;-&quot; as a file name is standard input or standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 the operation failed or found a difference, 2 wrong usage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would be taken from %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 taken from %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not everything was read as written; %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the carrier code of %1 moved one up, as with every import of an export: 300Hz is stored as 400Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 holds no record of an RQ-M5; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read as a list: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not taken: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no row of %1 can be taken; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no titles; columns are 1 to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list has no column &quot;%1&quot;; it has %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list does not say which rows it belongs to; name the first one with --from-row, or the columns that name them with --map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no row %1 in this file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a row is a number 0 to 1209, BANK:CHANNEL such as 3:12, program-scan, search-pass or priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bank %1 has other rows in OTHER than in FILE. Take &quot;banks&quot; as well, or name the rows as memory:0-199</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROWS names no row of OTHER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the program that makes PDFs cannot be started. Install rq-m5 again, or print from the window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port: %1, %2 (without --port, that of RQ-M5.ini)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is a file already; choose another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: more than 16 MiB came. No clone file and no CSV file of a receiver is as long; check what is sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: it cannot be read. Give the name of a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: it cannot be opened. Check its permissions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing is written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is as it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the output could not be written; is the disk full?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is a file already, and a backup replaces none; choose another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: first %2, then %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is written with what came. Check the cable and read again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is written with what came; as it was it is kept as %2. Check the cable and read again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable flags of other rows that differ from FILE: %1; the receiver keeps its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>these rows are outside the receiver&apos;s range (%1) and are written as they are:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 If that is meant, repeat with --force. The backup is in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>regions are 0 to 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>port numbers are 1 to 14; a device path such as /dev/ttyUSB0 is taken too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is settings or memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a bank 0 to 49, %1 or %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a4 or letter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name of a file is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--bank chooses channels, and --only settings leaves them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is about channels, which are not printed; add --memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is about the pages of a PDF; add --pdf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver holds what FILE says already; nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Known of the receiver since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 If that is meant, repeat with --force.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is to be written was changed at the receiver, too. Read it into another file and take over what is right, or write without --changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2: known %3, receiver %4, FILE %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--known says what a write of changes begins with; add --changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--changes looks at all parts; leave out %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has lost digits to an exponent in a spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read for certain as a frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a frequency of 0 is no channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the receiver has no mode %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the note is cut to 255 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a VFO band</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are more than 64 columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are more fields than titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it and all behind it are not read: no list of channels has more than 5000 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>first line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings block %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VFO row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>memory row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>channel flags %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>note of VFO row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>note of memory row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bank sizes %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bank links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>last line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take an older copy of the file, or read the receiver again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line 1 is not &quot;%1&quot;, so this is no clone file. Choose a clone file (*.RQ5); a CSV file is imported instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file ends at line %1 of %2: it was cut short.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 (%2) has %3 characters, %4 are needed. Correct the line in a text editor, or take an older copy of the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 (%2) is not &quot;%3&quot;: lines were added or the file is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 (%2) holds a comma, which ends a note and shifts all that follows. File &gt; Repair, or &quot;rq-m5 repair&quot;, replaces it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is none of the receiver&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma, none of the receiver&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma, out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is read as %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is read as %2, none of the receiver&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is read as %2, out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the row keeps what it has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the row keeps %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is read as OFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MHz is outside the receiver&apos;s range (0.1 to 1299.995 MHz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the row is empty now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is read as #FALSE#</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 remark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 remarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 row keeps an old value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows keep an old value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 number has a decimal comma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 numbers have a decimal comma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not begin with %1 and is passed over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no table &quot;%1&quot;; the record is passed over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no channel &quot;%2&quot;; the record is passed over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the record is short and is passed over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the record is short; what stands in the next line was read into it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the record has more than 15 fields; the rest is passed over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the extended attribute %1 is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the owner was %1 and is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the group was %1 and is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the permissions were %1 and are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the access list is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is a clone file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is a CSV file of this program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is a PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is a file of another kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and not a clone file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and not a CSV file of this program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and not a PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 %3; give another name, or --force to replace it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is a folder or a device of that name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the old file cannot be kept under this name (%2), so nothing was changed. Make room for it, or save under another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: another program wrote this file right after it was saved, so it holds something else. Look at it, then save again or under another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the file does not hold what was written to it. The disk may be failing; save to another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 The new file is in place; only what it holds could not be compared with what was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>commas stand for decimals and between fields; separate the fields by tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no encoding &quot;%1&quot;; one of them is WINDOWS-1252</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the delimiter is tab, semicolon, comma or none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the decimal sign is point or comma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>@titles is yes or no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of @encoding, @delimiter, @decimal and @titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not followed by &quot;=&quot; and a field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;; the fields are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one field a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>each number by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; fields: %2; decimals: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not used: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, %2: %3 -&gt; %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: cannot be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the new file gets no name here (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was read could not be kept elsewhere either: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was read is kept in %1; rq-m5-clone offers it at its next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no file name was given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the name of a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is a device or a pipe and no file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the permissions of the file or save under another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the name and the permissions of the folder, or save in another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free some space on the disk or save on another one, then repeat.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give a shorter name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many files are open; close other programs, then repeat.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk may be failing; save on another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save in another folder or on another disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the folder or choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check its name and its folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is larger than 16 MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No clone file and no CSV file of a receiver is; choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only %1 KiB are free on the disk, and the file needs %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; the new file is in place, but it may be lost when the power fails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; nothing was changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the permissions of the file or open a copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a copy from another disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (no device)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MIT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, built with %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port number file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secret code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seach Pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An address is hexadecimal, such as 1000.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The highest address is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An address is that of a block of 16 bytes, so its last digit is 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Pass count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank %1 link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than a second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about one second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about %1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about one minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about %1 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver was never read in this run: %1 blocks, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not known of the receiver: %1 blocks, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 channel on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 channels on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 bank size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bank sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 VFO band</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 VFO bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read in %1 and verified: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read in %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written in %1 and verified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compared in %1: no block differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compared in %1: 1 block differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compared in %1: %2 blocks differ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings 2 (Search Pass count)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 block needed more than one attempt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 blocks needed more than one attempt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 block was read with characters that are no hex digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 blocks were read with characters that are no hex digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 block was different when it was read again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 blocks were different when they were read again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, the first of them: %2. Check the cable, then repeat the operation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replies came late again and again, so that it cannot be told to which block each belongs. Check the cable and the receiver&apos;s battery, then read again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All was sent, but replies came late, so that an OK may have been another block&apos;s. Verify what the receiver holds, or repeat the write.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All was read, but not all of it could be read again to compare.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access to the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The group &quot;%1&quot; may use it. Add yourself with &quot;%2&quot;, then log out and in again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No serial port was found. Plug the adapter in and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ports found: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver sent nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reply was too short.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reply was garbled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver did not answer OK.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program uses the port. Close it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another port. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug the adapter in again and repeat the operation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the port and the cable, then repeat the operation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no device)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the port failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block %1 was not asked for: replies had been missing, and then the line did not fall silent. Check the cable, and that nothing but the receiver is on the line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one attempt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 attempts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the cable, that the receiver is switched on and that it is in clone mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block %1 could not be written in %2. %3 %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block %1 could not be read in %2. %3 %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bank sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enable flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list of Search Pass channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>region presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank sizes %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable flags of rows %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bank size block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enable flag block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Pass list block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Pass list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Pass list %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>region preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VFO band</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VFO bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VFO %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup could not be made, so nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All was written, but not all of it could be verified.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver is an %1, and what is to be written is for an %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent: nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused: %1 (may hold its old or its new contents).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without an answer: %1 (may hold its old or its new contents).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not sent: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeating the write completes it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels in no bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank %1 size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link flag %1 link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank %1 size: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move channels with their banks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link bank %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlink bank %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver takes 0.1 to 1299.995 MHz.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is a frequency of the cellular phone, which this model refuses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another Search Pass channel has the same frequency.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Special</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill Series</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take from %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved: there at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved: the one there is at %1 here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the one there is at %1 here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (off)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not in the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FM, AM or WFM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a step of the receiver, such as 12.5KHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFF, SCRT, Carrier, Tone or Rev.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 to 16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>300Hz to 3000Hz or JR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a CTCSS tone, such as 88.5Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFF, + or -</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;: it is %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on or off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of MHz, such as 145.5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the %1 has no secret code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the %1 has no carrier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This VFO band takes %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a VFO band has no note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a VFO band has no skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a VFO band has no enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offsets are below 100 MHz.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the editor has no step %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no FIELD=VALUE, such as mode=AM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no field; it is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the model region does not have it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the series ends at 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the operation buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the operation buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  CH %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CH %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify (%1, %2 channels)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 CH %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every row of %1 from here on holds a channel or a note. Clear one, or make the bank larger on the Bank page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Row (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Row (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by Frequency (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by Note (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by Mode (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no memory row &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list names no row for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no channel &quot;%1&quot; in &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the row holds no channel, and no frequency comes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no row left for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list names this row twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows that are written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows that are written: %1, of which 1 holds a channel now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows that are written: %1, of which %2 hold a channel now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; refused: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0.1 to 1299.995 MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: it is all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority, vfo, settings, banks, or a condition such as mode=AM, freq:118..137 or note~airport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: its channels are %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: memory rows are 0 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a condition chooses memory rows; vfo, settings and banks cannot stand beside it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: VFO rows are 0 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: banks are 0 to 49, as in bank:3, bank:0-4 or bank:2/5-9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: channels of a bank count from 0, as in bank:2/5-9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &quot;~&quot; looks for a text in the note, as in note~airport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: write it with &quot;=&quot;, as in mode=AM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the lower end comes first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bank %1 has %2 channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bank %1 has %2 channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This clears %1, %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This clears %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This deletes %1, %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, channel %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>memory row %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>memory row %1 (in no bank)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>memory row %1 (not in the receiver)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1 (no bank)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, 1 channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, the one channel shown of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, the %2 channels shown of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>which is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No row moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row %1 was empty, so nothing is lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lost: %1 MHz in row %2 (in no bank)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lost: %1 MHz in row %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1 moved down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows %1 to %2 moved down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1 moved up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows %1 to %2 moved up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pages could not be made; there may be too little memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Busy Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timer Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Push</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operating Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Squelch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Power Off (minutes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bug Sensitive Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MONI Key Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MONI Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keylock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Protect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenuator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earphone Antenna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SW bar antenna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AM bar antenna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VFO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not in receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COM Port Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communication Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Open Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageDialogs</name>
    <message>
        <source>Tervan RQ-M5 Clone Files (*.RQ5);;All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF Files (*.pdf);;All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Files (*.txt);;All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Command</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Modify</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secret</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modulation Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tuning Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Parts</name>
    <message>
        <source>&amp;Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secret &amp;code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;rain tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CTCSS &amp;tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;hift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift fre&amp;quency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Enabled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QPrintPreviewDialog</name>
    <message>
        <source>Page setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SavePrompts</name>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was removed or renamed by another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite makes a file of this name again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was changed by another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite puts your version in its place, and what the other program saved is lost. Save As keeps both.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has more than one name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File: %1
It is one of %2 names (hard links) of the same file. A save gives this name a file of its own; the others keep the old contents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These notes keep the file from being opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commas become semicolons, quotes apostrophes:
%1

In Place keeps the old file as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was no clone file; what it was is kept as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved, but a clone file cannot hold these values; they read back otherwise: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved, but not all that belonged to the old file could be kept: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>VFO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Busy Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timer Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver&apos;s model region: its bands, limits and presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operating Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the receiver tunes with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When a scan that has stopped on a signal goes on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V&amp;olume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume, 0 to 50</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;quelch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Squelch, 0 to 9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>60</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>90</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Push</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the display stays lit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Power Off (minutes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After how many minutes without use the receiver switches itself off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bug Sensitive Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How sensitive the search for hidden transmitters is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MONI Key Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the MONI key works while it is pushed or until it is pushed again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MONI Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the MONI key does</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power and keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batter&amp;y Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the battery while no signal is received</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keylock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock the receiver&apos;s keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write &amp;Protect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protect the receiver&apos;s memory channels from being overwritten on its keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Beep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beep when a key is pressed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Be&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ring when a signal comes in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reception</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Atten&amp;uator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weaken strong signals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aut&amp;o Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the receiver choose the tuning step of a band</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Antennas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earphone &amp;Antenna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the cord of the earphone as antenna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;SW bar antenna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the built-in bar antenna on short wave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;M bar antenna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the built-in bar antenna on medium wave</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Spectrum</name>
    <message>
        <source>VFO %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stored twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>blocked</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TransferProgress</name>
    <message>
        <source>Reading settings and VFO bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading banks and flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading again to compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup of settings and VFO bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup of banks and flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup of channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing settings and VFO bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing banks and flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading what is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading what is replaced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, about %2 left</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Reads, edits and writes the memory of an RQ-M5 receiver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clone file to open.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::BackupCommands</name>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write this backup to the receiver?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
It replaces in the receiver: %2. The open image stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::BankList</name>
    <message>
        <source>The group of channels that the table shows and a transfer moves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::BankMoveOffer</name>
    <message>
        <source>&amp;Leave the rows where they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing moves; the channels named here belong to other banks now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move the channels so that every bank keeps its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a smaller bank has no room for goes behind all banks; a larger one gets empty rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels that change their bank with these sizes: %1. Others that change their number: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::BankPage</name>
    <message>
        <source>Number of channels in bank %1; all banks together hold 1000 at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link bank %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan bank %1 together with the other linked banks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Ban&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write &amp;Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read bank sizes and links from the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write bank sizes and links to the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels in all banks (1000 at most):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In no bank: %1 rows, %2 with a channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The total of the number of channels exceeds 1000.
Please set for the total of the channel to become 1000 or less.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::BankStrip</name>
    <message>
        <source>What of each bank holds channels; a click goes to the bank&apos;s size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All banks: %1 of %2 rows hold a channel, %3 rows are in no bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 of %3 rows hold a channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no bank</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ChangeCommands</name>
    <message>
        <source>Write Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the receiver holds must be read first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable flags of other rows replaced by the receiver&apos;s: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ChannelTable</name>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scrt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ShiftFreq.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ClipboardCommands</name>
    <message>
        <source>There is no channel in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy rows of this program, or lines with a frequency each: of a spreadsheet, a web page or a text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste these columns onto the selected rows:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the selected rows these columns of the first of them:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ColumnWidths</name>
    <message>
        <source>&amp;Usual Column Widths</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::CompareTree</name>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>differs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::DiagnosticsPanel</name>
    <message>
        <source>Diagnostics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bloc&amp;k address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sends one read command and shows the reply as it comes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads one block a hundred times and shows the round-trip times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exchanges with the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Log...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ExchangeLog</name>
    <message>
        <source>(the port failed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ms</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::FileCommands</name>
    <message>
        <source>Save Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save changes to settings?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is saved, but a clone file cannot hold notes with a comma or quotes. While these notes stay as they are, the file cannot be opened again or shows them changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is written. A spreadsheet may run these notes as formulas.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There was nothing to repair; the file is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repaired notes: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> repaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::FillBar</name>
    <message>
        <source>no rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 rows hold a channel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::FilterBox</name>
    <message>
        <source>All rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With a channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With a note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which rows of the group the table shows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sh&amp;ow:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::FindBar</name>
    <message>
        <source>Find channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency, note, mode or tone, in all groups. Enter goes there, F3 to the next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::HistoryCommands</name>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes, the latest at the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A click takes back or makes again every change down to there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before these changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ImportCommands</name>
    <message>
        <source> list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels written to %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ImportForm</name>
    <message>
        <source>Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None: one field a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detected: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first &amp;line holds titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a name and press Keep to read other lists in the same way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Between fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Decimals begin with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mapping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>either, each number by itself</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ImportTarget</name>
    <message>
        <source>To the &amp;rows that the list names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From this row &amp;on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Skip rows that hold a channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank or group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ListTableModel</name>
    <message>
        <source>Column %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryPage</name>
    <message>
        <source>Ban&amp;k:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read &amp;Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Memor&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the channels of the selected group from the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the channels of the selected group to the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;nable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable the selected channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable the selected channels; they keep their contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert an empty row among memory rows 0 to 199; the channel in row 199 is lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete a row among memory rows 0 to 199; the rows behind it move up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty the selected channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ena&amp;ble All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable every channel shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Di&amp;sable All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable every channel shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty every channel shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All channels shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The offset is below 100 MHz.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryTable</name>
    <message>
        <source>Memory channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter edits the rows, typing a cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An empty row begins with its frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This model does not have it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryTableModel</name>
    <message>
        <source>In no bank</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ModifyForm</name>
    <message>
        <source>&amp;Hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Codes and tones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Secret code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;rain tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;CTCSS tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Offset Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning skips this channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel is in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The next empty channel starts with the values confirmed here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is blank stays as it is in each channel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::MoveCommands</name>
    <message>
        <source>Insert Row Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no empty row behind it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::NoteLine</name>
    <message>
        <source>&amp;Use ; and &apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put semicolons for commas and apostrophes for quotes, in this note and all that follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A comma or quotes would not survive a save: replaced.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::PlanTableModel</name>
    <message>
        <source>Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holds now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What comes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::PrintJob</name>
    <message>
        <source>Printing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer is installed. Install one in the settings of the system, or print to a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot; any more. Choose another one, or print to a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not take the pages. Check that it is switched on and connected, choose another one, or print to a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The listing was not printed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::QtSerialPort</name>
    <message>
        <source>no such device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a serial port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a serial port (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device has gone</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::RecentFiles</name>
    <message>
        <source>Open Re&amp;cent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a clone file that was opened or saved lately</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Empty This List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files stay; only the list forgets them</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::Recovery</name>
    <message>
        <source>changes that were in no file yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was read from the receiver could not be saved. It was kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program ended before your changes were saved. They were kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File: %1
Kept: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::RowActions</name>
    <message>
        <source>&amp;Modify...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the selected channels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::RowCommands</name>
    <message>
        <source>Edit &gt; Undo brings it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLEAR OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear cannot be undone.
Are you sure that you want to do the clear?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear cannot be undone.
Are you sure that you want to clear all memory?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DELETE OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete cannot be undone.
Are you sure that you want to do the delete?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::Settings1Page</name>
    <message>
        <source>VFO &amp;bands:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sibling model; kept when a file or receiver has it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rea&amp;d Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Settin&amp;gs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read all settings and VFO bands from the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write all settings, VFO bands and presets to the receiver</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::Settings2Page</name>
    <message>
        <source>Rea&amp;d Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Settin&amp;gs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read all settings and VFO bands from the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write all settings, VFO bands and presets to the receiver</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::SpectrumDock</name>
    <message>
        <source>Spectrum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in (+, or the wheel)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out (-, or the wheel)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the whole range (Home)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Picture...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save what is shown as PNG or SVG</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::SpectrumView</name>
    <message>
        <source>Spectrum of the channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrow keys go from channel to channel, Enter selects one; plus, minus and Home zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stored twice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::StatusBar</name>
    <message>
        <source>Nothing was imported: the file holds no record of this receiver and no list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sibling model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels enabled: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COM %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, not present</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::ToolBar</name>
    <message>
        <source>Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::TransferBar</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel being transferred</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel that is being transferred</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End the transfer now; what was transferred stays</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::TransferCommands</name>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. Check the cable, then read again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read in %1 to compare; the open image is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You had unsaved changes; Undo brings back what was there before the read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old backups deleted: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver is another model. Write to it all the same?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable flags of other rows replaced by the receiver&apos;s: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The write was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver does not hold what was written. Write again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::VfoTable</name>
    <message>
        <source>VFO bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One VFO setting per band. Enter or a double click edits the selected one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::WriteOptionItems</name>
    <message>
        <source>Backup Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgAbout</name>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies all of this, for a bug report</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgBackups</name>
    <message>
        <source>rows: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VFO bands: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bank layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What differs from the open image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep no &amp;more than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep no &amp;longer than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The oldest are deleted when the next backup has been kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the backup as a clone file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List what differs from the open image, and take from the backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Write Back...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write what the backup holds to the receiver; the open image stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the selected backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the selected backups? They cannot be brought back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not every backup could be deleted. Look who may write to the folder.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgCOM</name>
    <message>
        <source>COM Port Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COM %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Found now:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no serial port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>choose a device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not present</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set by the environment variable RQM5_COM%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device that this number stands for; empty for the usual one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Device of COM %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find the &amp;Receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send one read command to each port that is there and free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A receiver (%1) answers at %2. OK takes it as COM %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No receiver answers. Ports asked: %1. Switch the receiver on, check its cable, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In use by another program: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no port to ask. Plug the receiver&apos;s cable in.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgCompare</name>
    <message>
        <source>Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare with a clone file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Backup...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare with a backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Last Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare with what the receiver held when it was last read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Receiver Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the receiver and compare with what it holds; the open image stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare the open image with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed in place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the selected rows and groups from the other side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take everything that is shown from the other side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose above what the open image is compared with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take &amp;All Shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The banks would hold more than 1000 channels together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was taken. Take the whole group &quot;Bank layout&quot; instead of single sizes.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgDuplicates</name>
    <message>
        <source>Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequencies that are stored more than once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency and place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MHz, %2 times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No frequency is stored more than once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 frequency is stored more than once. A click goes to a place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frequencies are stored more than once. A click goes to a place.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgExportList</name>
    <message>
        <source>Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point: 145.500000, commas between fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma: 145,500000, semicolons between fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Decimal sign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels that are written: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgFill</name>
    <message>
        <source>&amp;Number of channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Last frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;kip rows that hold a channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill Series</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What goes where</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;pacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mode and the rest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As usual on the frequency</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgImport</name>
    <message>
        <source>(not used)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency in MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency in kHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency in Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secret code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Train tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CTCSS tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift frequency in MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift frequency in kHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift frequency in Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel in the bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What goes where</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list as it is read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What %1 is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency (%1 by its size)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MHz</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgImportDetails</name>
    <message>
        <source>Import (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was read otherwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Read again with decimal commas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit &gt; Undo takes the import back.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgModify</name>
    <message>
        <source>&amp;Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK and Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Store the row and go on with the next one (Ctrl+Enter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Store what was changed and go on (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify VFO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VFO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency of the cellular phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is a frequency of the cellular phone.
It is not possible to set it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same frequency as other channels cannot be set in Search Pass bank.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgPaste</name>
    <message>
        <source>What goes where</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgPrint</name>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;VFO table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Memory channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave out empty rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sp&amp;ectrum of all channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;ortrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;andscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no printer installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;DF file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previe&amp;w...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgWriteChanges</name>
    <message>
        <source>Keep a &amp;backup of what is replaced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Verify afterwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver as it was read or written since %1, %2. Each block is read once more before the first one is written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row and field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Will be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receiver holds all of it already. There is nothing to write.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 block is written, %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 blocks are written, %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::dlgWriteConflicts</name>
    <message>
        <source>Changed at the Receiver, Too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is to be written was changed at the receiver since it was last read. Nothing has been written yet. Decide for each row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows that were changed on both sides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row and field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receiver now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep all &amp;mine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take all the &amp;receiver&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decision for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the receiver&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::frmHelp</name>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists the pages that hold every word; Enter goes to the next place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usual Text Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No page holds these words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This link leads out of the manual. Open it in the web browser?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::frmMain</name>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the language of every window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovered changes came first; not opened: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read(&amp;R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write(&amp;W)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start with empty memories and default settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a clone file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to the current file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to another file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take channels from a CSV file or a list of another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write VFO bands and channels to a CSV file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export &amp;List...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write channels as a list for spreadsheets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Repair...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a clone file that is refused because of its notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Backups...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the backups: open, compare, write back or delete them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print settings, VFO bands and channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Modify...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the selected channels or VFO band; so does Enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find channels by frequency, note, mode or tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the next channel found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the previous channel found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide the toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide the status bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show every change that can be taken back; a click goes there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;pectrum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show every channel by its frequency; a click selects its row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send single read commands and see the replies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALL(&amp;A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read everything from the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory(&amp;M)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the channels of the group shown on the Memory page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings(&amp;S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the settings and the VFO bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Verify after reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read everything twice, and list what was different</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write everything to the receiver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the channels of the group shown on the Memory page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the settings and the VFO bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Changes...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write only what the receiver holds otherwise, after showing it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep a &amp;backup before writing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read what a write will replace, and save it, before anything is written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Verify after writing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read back what was written, and list what differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup &amp;Folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose where backups are kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicates...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List every frequency that is stored more than once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Com&amp;pare...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what differs from a file, a backup or the receiver, and take it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COM Port Setup(&amp;C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the serial port of the receiver&apos;s cable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About this program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model, modes, volume, squelch and the VFO bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display, power, keys, sound and antennas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The memory channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sizes and links of the memory banks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read ALL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write ALL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the selected rows on the clipboard and clear them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the selected rows on the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the channels of the clipboard from the current row on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Spec&amp;ial...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write chosen columns of the clipboard into the selected rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select every row of the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty the selected rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the selected channels on; Space switches on and off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the selected channels off; Space switches on and off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill &amp;Series...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make channels at even distances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill Do&amp;wn...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the selected rows chosen columns of the first of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mo&amp;ve Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected rows up by one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Dow&amp;n</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected rows down by one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to &amp;Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected channels into empty rows of a bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Ban&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected channels into empty rows of a bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Row &amp;Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put an empty row here; the rows behind it in the group shown move down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Row and Close &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the selected rows out; the rows behind them in the group shown move up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort &amp;Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort the rows of the group shown; empty rows come last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By &amp;Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By &amp;Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By &amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;ows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move, copy, insert, delete and sort rows of the group shown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rqm5::frmSplash</name>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads, edits and writes the receiver&apos;s memory</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

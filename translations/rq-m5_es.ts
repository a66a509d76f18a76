<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Message</name>
    <message>
        <source>the backup of %1</source>
        <translation>la copia del %1</translation>
    </message>
    <message>
        <source>Other side: backup of %1, which holds: %2</source>
        <translation>Otro lado: copia de seguridad del %1, que contiene: %2</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Settings and VFO bands</source>
        <translation>Ajustes y bandas VFO</translation>
    </message>
    <message>
        <source>Bank sizes and links</source>
        <translation>Tamaños y enlaces de bancos</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>Todos los canales</translation>
    </message>
    <message>
        <source>Take what was changed at the receiver</source>
        <translation>Tomar lo modificado en el receptor</translation>
    </message>
    <message>
        <source>Other side: the file %1, saved %2</source>
        <translation>Otro lado: el archivo %1, guardado el %2</translation>
    </message>
    <message>
        <source>Other side: the receiver as it was read or written since %1, %2</source>
        <translation>Otro lado: el receptor según lo leído o escrito desde el %1, %2</translation>
    </message>
    <message>
        <source>Other side: the receiver as it was read at %1</source>
        <translation>Otro lado: el receptor según se leyó el %1</translation>
    </message>
    <message>
        <source>the last read</source>
        <translation>la última lectura</translation>
    </message>
    <message>
        <source>the receiver</source>
        <translation>el receptor</translation>
    </message>
    <message>
        <source>Other side: the receiver, read just now (%1)</source>
        <translation>Otro lado: el receptor, recién leído (%1)</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation>(nada)</translation>
    </message>
    <message>
        <source>Reply after %1 ms: %2</source>
        <translation>Respuesta tras %1 ms: %2</translation>
    </message>
    <message>
        <source>Received until the time-out after %1 ms: %2</source>
        <translation>Recibido hasta agotar el tiempo de espera, %1 ms: %2</translation>
    </message>
    <message>
        <source>Nothing came back. Check the cable, the port, and that the receiver is on.</source>
        <translation>No llegó nada. Compruebe el cable, el puerto y que el receptor esté encendido.</translation>
    </message>
    <message>
        <source>The receiver did not answer: only the echo of the command came back.</source>
        <translation>El receptor no respondió: solo volvió el eco de la orden.</translation>
    </message>
    <message>
        <source>The reply is too short: a whole one ends with 36 characters.</source>
        <translation>La respuesta es demasiado corta: una completa termina con 36 caracteres.</translation>
    </message>
    <message>
        <source>The reply is garbled: it does not end with a line of 32 characters.</source>
        <translation>La respuesta está alterada: no termina con una línea de 32 caracteres.</translation>
    </message>
    <message>
        <source>An empty row.</source>
        <translation>Una fila vacía.</translation>
    </message>
    <message>
        <source>%1 reads, %2 errors.</source>
        <translation>%1 lecturas, %2 errores.</translation>
    </message>
    <message>
        <source>Round trip: lowest %1 ms, median %2 ms, highest %3 ms.</source>
        <translation>Ida y vuelta: mínimo %1 ms, mediana %2 ms, máximo %3 ms.</translation>
    </message>
    <message>
        <source>%1 was removed or renamed by another program. Save will ask first.</source>
        <translation>Otro programa eliminó %1 o le cambió el nombre. Guardar preguntará antes.</translation>
    </message>
    <message>
        <source>%1 was changed by another program. You have unsaved changes; Save will ask first.</source>
        <translation>Otro programa modificó %1. Tiene cambios sin guardar; Guardar preguntará antes.</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>Otro programa modificó %1.</translation>
    </message>
    <message>
        <source>&amp;Load Again</source>
        <translation>Cargar otra ve&amp;z</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importar (%1)</translation>
    </message>
    <message>
        <source>Imported with %1.</source>
        <translation>Importado con %1.</translation>
    </message>
    <message>
        <source>Imported from %1. %2.</source>
        <translation>Importado de %1. %2.</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept for recovery: %1</source>
        <translation>Los cambios sin guardar no se pueden conservar para la recuperación: %1</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save.</source>
        <translation>Las comas o comillas de una nota se pierden al guardar.</translation>
    </message>
    <message>
        <source>Notes whose comma or quotes will not survive a save: %1</source>
        <translation>Notas cuyas comas o comillas se pierden al guardar: %1</translation>
    </message>
    <message>
        <source>Use ; and &apos;</source>
        <translation>Usar ; y &apos;</translation>
    </message>
    <message>
        <source>Use ; and &apos; in notes</source>
        <translation>Usar ; y &apos; en las notas</translation>
    </message>
    <message>
        <source>Connect the receiver and choose Read &gt; ALL (Ctrl+R), or open a file.</source>
        <translation>Conecte el receptor y elija Leer &gt; TODO (Ctrl+R), o abra un archivo.</translation>
    </message>
    <message>
        <source>Read ALL</source>
        <translation>Leer TODO</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Abrir...</translation>
    </message>
    <message>
        <source>Backup and verify are off.</source>
        <translation>La copia de seguridad y la verificación están desactivadas.</translation>
    </message>
    <message>
        <source>Turn Them On</source>
        <translation>Activarlas</translation>
    </message>
    <message>
        <source>Rows outside the receiver&apos;s range (0.1 to 1299.995 MHz), which are written as they are: %1 (%2)</source>
        <translation>Filas fuera del margen del receptor (0.1 a 1299.995 MHz), que se escriben tal cual: %1 (%2)</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save as a clone file: %1.</source>
        <translation>Las comas o comillas de una nota se pierden al guardar un archivo de clonación: %1.</translation>
    </message>
    <message>
        <source>%1 was saved with notes that it cannot bring back; change them and save again: %2.</source>
        <translation>%1 se guardó con notas que no se podrán recuperar de él; modifíquelas y guarde de nuevo: %2.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Read Memory (%1)</source>
        <translation>Leer memoria (%1)</translation>
    </message>
    <message>
        <source>Read Settings</source>
        <translation>Leer ajustes</translation>
    </message>
    <message>
        <source>Read Bank</source>
        <translation>Leer banco</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1, but the receiver holds something else.</source>
        <translation>%1, pero el receptor contiene otra cosa.</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>hace menos de un minuto</translation>
    </message>
    <message>
        <source>a minute ago</source>
        <translation>hace un minuto</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>hace %1 minutos</translation>
    </message>
    <message>
        <source>an hour ago</source>
        <translation>hace una hora</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>hace %1 horas</translation>
    </message>
    <message>
        <source>a day ago</source>
        <translation>hace un día</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>hace %1 días</translation>
    </message>
    <message>
        <source>no progress, no closing line and no notes (also -q)</source>
        <translation>sin progreso, línea final ni notas (también -q)</translation>
    </message>
    <message>
        <source>every exchange with the receiver and every warning (also -v)</source>
        <translation>todos los intercambios con el receptor y todas las advertencias (también -v)</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>opción desconocida «%1»</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 no admite ningún valor</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 necesita un valor: %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 aparece dos veces</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>falta %1</translation>
    </message>
    <message>
        <source>too many arguments: &quot;%1&quot;</source>
        <translation>demasiados argumentos: «%1»</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vacío</translation>
    </message>
    <message>
        <source>--json and --tsv are two forms; choose one</source>
        <translation>--json y --tsv son dos formatos; elija uno</translation>
    </message>
    <message>
        <source>lines end in LF instead of CR LF; this program reads them, another may not</source>
        <translation>las líneas terminan en LF en lugar de CR LF; este programa las lee, otro quizá no</translation>
    </message>
    <message>
        <source>there is text behind the last line; a save drops it</source>
        <translation>hay texto detrás de la última línea; se pierde al guardar</translation>
    </message>
    <message>
        <source>line %1 (%2)</source>
        <translation>línea %1 (%2)</translation>
    </message>
    <message>
        <source>characters other than upper-case hexadecimal digits may be read as 0; there are some in:</source>
        <translation>los caracteres que no son cifras hexadecimales en mayúsculas pueden leerse como 0; hay algunos en:</translation>
    </message>
    <message>
        <source>these values are read differently from what the file says:</source>
        <translation>estos valores se leen de otro modo que en el archivo:</translation>
    </message>
    <message>
        <source>these rows are outside the receiver&apos;s range (%1):</source>
        <translation>estas filas están fuera del margen del receptor (%1):</translation>
    </message>
    <message>
        <source>a save loses these notes; take commas and quotes out of them:</source>
        <translation>estas notas se pierden al guardar; quite de ellas las comas y comillas:</translation>
    </message>
    <message>
        <source>exported as CSV, a spreadsheet would run these notes as formulas:</source>
        <translation>exportadas como CSV, una hoja de cálculo ejecutaría estas notas como fórmulas:</translation>
    </message>
    <message>
        <source>%1 of %2 files are whole.</source>
        <translation>Archivos completos: %1 de %2.</translation>
    </message>
    <message>
        <source>%1 is one of %2 names of a file (hard links); the others keep the old contents</source>
        <translation>%1 es uno de los %2 nombres de un archivo (enlaces duros); los demás conservan el contenido anterior</translation>
    </message>
    <message>
        <source>a clone file cannot hold these values; they read back differently:</source>
        <translation>un archivo de clonación no admite estos valores; al leerlos de nuevo serán otros:</translation>
    </message>
    <message>
        <source>%1 is written, but the file cannot bring back these notes; take commas and quotes out of them:</source>
        <translation>se escribió %1, pero el archivo no puede devolver estas notas; quite de ellas las comas y comillas:</translation>
    </message>
    <message>
        <source>%1 is saved, but not all that belonged to the old file could be kept:</source>
        <translation>se guardó %1, pero no se pudo conservar todo lo que pertenecía al archivo anterior:</translation>
    </message>
    <message>
        <source>%1: the name is not written in UTF-8. Rename the file, or use &quot;-&quot;.</source>
        <translation>%1: el nombre no está escrito en UTF-8. Cambie el nombre del archivo o use «-».</translation>
    </message>
    <message>
        <source>%1: both names are the same file, which would be replaced; give another name</source>
        <translation>%1: ambos nombres son el mismo archivo, que se reemplazaría; dé otro nombre</translation>
    </message>
    <message>
        <source>%1: with these notes it could not be opened any more. --safe-notes stores them without commas and quotes, --force as they are:</source>
        <translation>%1: con estas notas ya no se podría abrir. --safe-notes las guarda sin comas ni comillas, --force las guarda como están:</translation>
    </message>
    <message>
        <source>%1: with the notes below it could not be opened any more; take commas and quotes out of them.</source>
        <translation>%1: con las notas siguientes ya no se podría abrir; quite de ellas las comas y comillas.</translation>
    </message>
    <message>
        <source>model region (default 0)</source>
        <translation>región del modelo (por omisión, 0)</translation>
    </message>
    <message>
        <source>no banks: all 1000 channels unassigned</source>
        <translation>sin bancos: los 1000 canales quedan sin asignar</translation>
    </message>
    <message>
        <source>replace FILE if it exists</source>
        <translation>reemplaza FILE si existe</translation>
    </message>
    <message>
        <source>read everything twice and list each block that was different the second time</source>
        <translation>lee todo dos veces y muestra cada bloque que fue distinto la segunda vez</translation>
    </message>
    <message>
        <source>first read what will be replaced and save it as COPY, a new file</source>
        <translation>lee primero lo que se va a reemplazar y lo guarda como COPY, un archivo nuevo</translation>
    </message>
    <message>
        <source>read back afterwards and list each block that differs</source>
        <translation>vuelve a leer después y muestra cada bloque que difiere</translation>
    </message>
    <message>
        <source>write only what the receiver holds otherwise; what is not known of it is read first</source>
        <translation>escribe solo lo que es distinto en el receptor; lo que no se conoce de él se lee antes</translation>
    </message>
    <message>
        <source>with --changes: what the receiver held when it was last read or written</source>
        <translation>con --changes: lo que contenía el receptor en la última lectura o escritura</translation>
    </message>
    <message>
        <source>write even if the backup shows that the receiver is another model</source>
        <translation>escribe aunque la copia de seguridad muestre que el receptor es de otro modelo</translation>
    </message>
    <message>
        <source>empty rows, too</source>
        <translation>también las filas vacías</translation>
    </message>
    <message>
        <source>compare A with the receiver: COM number 1 to 14, or a device</source>
        <translation>compara A con el receptor: número COM de 1 a 14, o un dispositivo</translation>
    </message>
    <message>
        <source>write the pages to a PDF instead of the terminal</source>
        <translation>escribe las páginas en un PDF en lugar del terminal</translation>
    </message>
    <message>
        <source>print the settings</source>
        <translation>imprime los ajustes</translation>
    </message>
    <message>
        <source>print the VFO table</source>
        <translation>imprime la tabla VFO</translation>
    </message>
    <message>
        <source>print the memory channels</source>
        <translation>imprime los canales de memoria</translation>
    </message>
    <message>
        <source>print empty rows, too</source>
        <translation>imprime también las filas vacías</translation>
    </message>
    <message>
        <source>size of the PDF&apos;s pages; without it that of the country</source>
        <translation>tamaño de las páginas del PDF; sin ella, el del país</translation>
    </message>
    <message>
        <source>turn the PDF&apos;s pages</source>
        <translation>gira las páginas del PDF</translation>
    </message>
    <message>
        <source>replace OUT.pdf whatever it holds</source>
        <translation>reemplaza OUT.pdf sea cual sea su contenido</translation>
    </message>
    <message>
        <source>export each FILE into this folder, under its own name with .csv</source>
        <translation>exporta cada FILE a esta carpeta, con su propio nombre y .csv</translation>
    </message>
    <message>
        <source>replace OUT.csv whatever it holds</source>
        <translation>reemplaza OUT.csv sea cual sea su contenido</translation>
    </message>
    <message>
        <source>read 145,5 as 145.5</source>
        <translation>lee 145,5 como 145.5</translation>
    </message>
    <message>
        <source>what the columns of a list are, by title or number; such as &quot;Freq=frequency:kHz,3=note&quot;</source>
        <translation>qué son las columnas de una lista, por título o número; por ejemplo, &quot;Freq=frequency:kHz,3=note&quot;</translation>
    </message>
    <message>
        <source>where a list goes: from memory row 0 to 1209 on, or from BANK:CHANNEL, program-scan, search-pass or priority on; without it to the rows that it names</source>
        <translation>adónde va una lista: desde la fila de memoria 0 a 1209, o desde BANK:CHANNEL, program-scan, search-pass o priority; sin ella, a las filas que indica la lista</translation>
    </message>
    <message>
        <source>show what would change and write nothing</source>
        <translation>muestra qué cambiaría y no escribe nada</translation>
    </message>
    <message>
        <source>keep FILE as it was as FILE~</source>
        <translation>conserva el FILE anterior como FILE~</translation>
    </message>
    <message>
        <source>store notes without commas and quotes, which a clone file cannot hold</source>
        <translation>guarda las notas sin comas ni comillas, que un archivo de clonación no admite</translation>
    </message>
    <message>
        <source>write FILE even if its notes keep it from being opened again</source>
        <translation>escribe FILE aunque sus notas impidan volver a abrirlo</translation>
    </message>
    <message>
        <source>write the repaired file under this name, which no file has yet</source>
        <translation>escribe el archivo reparado con este nombre, que aún no tiene ningún archivo</translation>
    </message>
    <message>
        <source>replace FILE, which is kept as FILE~</source>
        <translation>reemplaza FILE, que se conserva como FILE~</translation>
    </message>
    <message>
        <source>both names are the same file, which would be replaced</source>
        <translation>ambos nombres son el mismo archivo, que se reemplazaría</translation>
    </message>
    <message>
        <source>--to writes another file than --in-place; choose one</source>
        <translation>--to escribe otro archivo que --in-place; elija una de las dos</translation>
    </message>
    <message>
        <source>write the start-up image of a model region</source>
        <translation>escribe la imagen inicial de una región de modelo</translation>
    </message>
    <message>
        <source>It has default settings, VFO bands and bank sizes and no channels.</source>
        <translation>Tiene los ajustes, bandas VFO y tamaños de banco predeterminados y ningún canal.</translation>
    </message>
    <message>
        <source>read the receiver into FILE</source>
        <translation>lee el receptor y lo guarda en FILE</translation>
    </message>
    <message>
        <source>If FILE exists, it is the starting point: notes and what is not read stay. If the transfer fails, FILE is left untouched. If a block arrives damaged or, with --verify, different the second time, it is listed, the status is 1, and the old file is kept as FILE~.</source>
        <translation>Si FILE existe, es el punto de partida: las notas y lo que no se lee se conservan. Si la transferencia falla, FILE queda intacto. Si un bloque llega dañado o, con --verify, es distinto la segunda vez, se muestra, el código de salida es 1 y el archivo anterior se conserva como FILE~.</translation>
    </message>
    <message>
        <source>write FILE to the receiver</source>
        <translation>escribe FILE en el receptor</translation>
    </message>
    <message>
        <source>Sends settings, VFO bands and presets, then banks and channels. Without --verify nothing is read back. If the backup fails, nothing is written. With --changes each block that is to be written is read first, and nothing is written if it was changed at the receiver, too.</source>
        <translation>Envía los ajustes, las bandas VFO y los canales predefinidos, y después los bancos y los canales. Sin --verify no se vuelve a leer nada. Si la copia de seguridad falla, no se escribe nada. Con --changes se lee antes cada bloque por escribir, y no se escribe nada si también se modificó en el receptor.</translation>
    </message>
    <message>
        <source>compare the receiver with FILE</source>
        <translation>compara el receptor con FILE</translation>
    </message>
    <message>
        <source>Compares with what write of the same parts leaves behind. Prints nothing and ends with status 0 when they agree, else lists each block that differs, with the bytes in words.</source>
        <translation>Compara con lo que dejaría write con las mismas partes. Si coinciden, no muestra nada y termina con el código de salida 0; si no, muestra cada bloque que difiere, con los bytes en palabras.</translation>
    </message>
    <message>
        <source>write FILE as CSV</source>
        <translation>escribe FILE como CSV</translation>
    </message>
    <message>
        <source>The file holds the channels and VFO bands, for a spreadsheet. OUT.csv may be missing, empty or an older export. With --to, each FILE is exported into the folder.</source>
        <translation>El archivo contiene los canales y las bandas VFO, para una hoja de cálculo. OUT.csv puede faltar, estar vacío o ser una exportación anterior. Con --to, cada FILE se exporta a la carpeta.</translation>
    </message>
    <message>
        <source>take the rows of a CSV file or of a list into FILE</source>
        <translation>toma en FILE las filas de un archivo CSV o de una lista</translation>
    </message>
    <message>
        <source>Rows that IN.csv does not name stay as they are. FILE is made when it does not exist. Notes with which FILE could not be opened again keep it from being written. Carrier codes of an export move one up. A file of another program is read as a list: how it is read is said, and what is not taken is listed by line.</source>
        <translation>Las filas que IN.csv no nombra quedan como están. FILE se crea si no existe. Si alguna nota impidiera volver a abrir FILE, no se escribe. Los códigos de portadora de una exportación suben uno. Un archivo de otro programa se lee como lista: se indica cómo se lee, y lo que no se toma se muestra por líneas.</translation>
    </message>
    <message>
        <source>print the channels of each FILE in columns</source>
        <translation>muestra los canales de cada FILE en columnas</translation>
    </message>
    <message>
        <source>Rows that hold a channel or a note; &quot;x&quot; marks a channel that is off.</source>
        <translation>Filas con un canal o una nota; «x» marca un canal desactivado.</translation>
    </message>
    <message>
        <source>print each FILE as text, or one as PDF</source>
        <translation>imprime cada FILE como texto, o uno como PDF</translation>
    </message>
    <message>
        <source>Settings, VFO table and memory channels in this order; without --settings, --vfo and --memory all three. &quot;Off&quot; marks a channel that is disabled.</source>
        <translation>Ajustes, tabla VFO y canales de memoria, en este orden; sin --settings, --vfo ni --memory, los tres. «Off» marca un canal desactivado.</translation>
    </message>
    <message>
        <source>check that each FILE is complete, and say what it holds</source>
        <translation>comprueba que cada FILE está completo e indica qué contiene</translation>
    </message>
    <message>
        <source>Names the line that is wrong and why. Warns of notes that a save loses or a spreadsheet would run, and of values that are read differently from what the file says. Several files take one line each; --verbose lists their warnings, --quiet names only those that are not whole.</source>
        <translation>Nombra la línea errónea y el motivo. Advierte de las notas que se pierden al guardar o que una hoja de cálculo ejecutaría, y de los valores que se leen de otro modo que en el archivo. Con varios archivos hay una línea por archivo; --verbose muestra sus advertencias, --quiet nombra solo los que no están completos.</translation>
    </message>
    <message>
        <source>mend a file that cannot be opened because of its notes</source>
        <translation>repara un archivo que no se puede abrir por sus notas</translation>
    </message>
    <message>
        <source>Commas in notes become semicolons, quotes apostrophes; each such note is shown. Without --to and --in-place nothing is written.</source>
        <translation>Las comas de las notas pasan a punto y coma y las comillas a apóstrofos; se muestra cada nota afectada. Sin --to ni --in-place no se escribe nada.</translation>
    </message>
    <message>
        <source>list what differs between two files, or a file and the receiver</source>
        <translation>muestra qué difiere entre dos archivos, o entre un archivo y el receptor</translation>
    </message>
    <message>
        <source>Rows, settings, banks and notes are named. Status 1 when there is a difference.</source>
        <translation>Se nombran filas, ajustes, bancos y notas. El código de salida es 1 si hay diferencias.</translation>
    </message>
    <message>
        <source>list serial ports</source>
        <translation>muestra los puertos serie</translation>
    </message>
    <message>
        <source>Each COM number with its device and whether it can be opened.</source>
        <translation>Cada número COM con su dispositivo y si se puede abrir.</translation>
    </message>
    <message>
        <source>read one block and show the reply as it came</source>
        <translation>lee un bloque y muestra la respuesta tal como llegó</translation>
    </message>
    <message>
        <source>ADDRESS is hexadecimal and that of a block: 0000 to FFF0, the last digit 0.</source>
        <translation>ADDRESS es hexadecimal y la de un bloque: de 0000 a FFF0, con la última cifra 0.</translation>
    </message>
    <message>
        <source>COM number 1 to 14, also as COM5, or a device or a link to one; without it the number in RQ-M5.ini</source>
        <translation>número COM de 1 a 14, también como COM5, o un dispositivo o un enlace a uno; sin ella, el número de RQ-M5.ini</translation>
    </message>
    <message>
        <source>leave the other part out</source>
        <translation>deja fuera la otra parte</translation>
    </message>
    <message>
        <source>bank 0 to 49, program-scan, search-pass, priority or all (default)</source>
        <translation>banco de 0 a 49, program-scan, search-pass, priority o all (por omisión)</translation>
    </message>
    <message>
        <source>the memory only: bank 0 to 49, program-scan, search-pass, priority or all; without it settings and all of the memory</source>
        <translation>solo la memoria: banco de 0 a 49, program-scan, search-pass, priority o all; sin ella, los ajustes y toda la memoria</translation>
    </message>
    <message>
        <source>write JSON, as docs/json.md describes it</source>
        <translation>escribe JSON, como lo describe docs/json.md</translation>
    </message>
    <message>
        <source>write fields separated by tabs, titles first</source>
        <translation>escribe campos separados por tabuladores, primero los títulos</translation>
    </message>
    <message>
        <source>take names of files from LIST, one on each line</source>
        <translation>toma nombres de archivos de LIST, uno en cada línea</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1; ¿quiso decir «%2»?</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>--port compares one file with the receiver; leave B out</source>
        <translation>--port compara un solo archivo con el receptor; quite B</translation>
    </message>
    <message>
        <source>%1 is about what is read from the receiver; add --port</source>
        <translation>%1 se refiere a lo que se lee del receptor; añada --port</translation>
    </message>
    <message>
        <source>B is missing; --port P compares with the receiver</source>
        <translation>falta B; --port P compara con el receptor</translation>
    </message>
    <message>
        <source>list what would change and write nothing</source>
        <translation>muestra qué cambiaría y no escribe nada</translation>
    </message>
    <message>
        <source>store notes without commas and quotes</source>
        <translation>guarda las notas sin comas ni comillas</translation>
    </message>
    <message>
        <source>what decides the order (default frequency)</source>
        <translation>qué decide el orden (por omisión, frequency)</translation>
    </message>
    <message>
        <source>what is taken; as for set, and also settings and banks</source>
        <translation>qué se toma; como en set, y además settings y banks</translation>
    </message>
    <message>
        <source>find channels in files</source>
        <translation>busca canales en archivos</translation>
    </message>
    <message>
        <source>PATTERN is one or more words: frequencies, modes, notes, tones. A word such as 118..137, mode=AM, tone=88.5, note~tower, bank:3 or program-scan leaves the rows that meet it. Prints file, bank, channel, memory row and what it holds. Status 1 when nothing was found.</source>
        <translation>PATTERN es una o más palabras: frecuencias, modos, notas, tonos. Una palabra como 118..137, mode=AM, tone=88.5, note~tower, bank:3 o program-scan deja solo las filas que la cumplen. Muestra archivo, banco, canal, fila de memoria y su contenido. El código de salida es 1 si no se encontró nada.</translation>
    </message>
    <message>
        <source>change fields of channels</source>
        <translation>cambia campos de canales</translation>
    </message>
    <message>
        <source>ROWS is one or more of all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority and vfo, with commas between; conditions such as mode=AM, freq:118..137 and note~airport leave those of them that meet them. FIELD is freq, mode, step, option, secret, carrier, tone, shift, offset, note, skip or enabled. The limits are those of the channel editor.</source>
        <translation>ROWS es uno o más de all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority y vfo, separados por comas; las condiciones como mode=AM, freq:118..137 y note~airport dejan solo las filas que las cumplen. FIELD es freq, mode, step, option, secret, carrier, tone, shift, offset, note, skip o enabled. Los límites son los del editor de canales.</translation>
    </message>
    <message>
        <source>switch channels on</source>
        <translation>activa canales</translation>
    </message>
    <message>
        <source>ROWS is as for set.</source>
        <translation>ROWS es como en set.</translation>
    </message>
    <message>
        <source>switch channels off</source>
        <translation>desactiva canales</translation>
    </message>
    <message>
        <source>empty rows, with their notes</source>
        <translation>borra filas, con sus notas</translation>
    </message>
    <message>
        <source>copy channels to another place</source>
        <translation>copia canales a otro lugar</translation>
    </message>
    <message>
        <source>ROWS is as for set. TO is a bank or group, whose empty rows take the channels, or one row such as bank:3/12, from which on they replace what is there.</source>
        <translation>ROWS es como en set. TO es un banco o grupo, cuyas filas vacías reciben los canales, o una fila como bank:3/12, a partir de la cual reemplazan lo que haya.</translation>
    </message>
    <message>
        <source>move channels to another place</source>
        <translation>mueve canales a otro lugar</translation>
    </message>
    <message>
        <source>As copy; the rows that they came from become empty.</source>
        <translation>Como copy; las filas de origen quedan vacías.</translation>
    </message>
    <message>
        <source>sort the channels of banks and groups</source>
        <translation>ordena los canales de bancos y grupos</translation>
    </message>
    <message>
        <source>ROWS is one or more places, each sorted by itself; all sorts every bank and group. Empty rows come last.</source>
        <translation>ROWS es uno o más lugares, y cada uno se ordena por separado; all ordena todos los bancos y grupos. Las filas vacías quedan al final.</translation>
    </message>
    <message>
        <source>take rows of one file into another</source>
        <translation>toma filas de un archivo en otro</translation>
    </message>
    <message>
        <source>Rows of OTHER that --take names go to the same places of FILE; notes and flags go with them.</source>
        <translation>Las filas de OTHER que nombra --take van a los mismos lugares de FILE, con sus notas y marcas.</translation>
    </message>
    <message>
        <source>print the completion script of a shell</source>
        <translation>muestra el guion de autocompletado de un shell</translation>
    </message>
    <message>
        <source>Installed with the program; for a shell of your own, source what it prints.</source>
        <translation>Se instala con el programa; en otro shell propio, cargue con source lo que muestra.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>explica una orden</translation>
    </message>
    <message>
        <source>Without COMMAND it lists all of them.</source>
        <translation>Sin COMMAND las muestra todas.</translation>
    </message>
    <message>
        <source>TO %1 has room for %2 of %3 channels</source>
        <translation>TO %1 tiene sitio para %2 de %3 canales</translation>
    </message>
    <message>
        <source>sort takes places such as bank:3 or program-scan, and no conditions</source>
        <translation>sort admite lugares como bank:3 o program-scan, y ninguna condición</translation>
    </message>
    <message>
        <source>rows of two groups cannot be sorted as one; name them apart</source>
        <translation>las filas de dos grupos no se pueden ordenar juntas; nómbrelas por separado</translation>
    </message>
    <message>
        <source>the two edges of a Program Scan pair stay together; name whole pairs</source>
        <translation>los dos límites de un par de Program Scan van juntos; nombre pares completos</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 fila</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 filas</translation>
    </message>
    <message>
        <source>1 setting</source>
        <translation>1 ajuste</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation>%1 ajustes</translation>
    </message>
    <message>
        <source>1 bank value</source>
        <translation>1 valor de banco</translation>
    </message>
    <message>
        <source>%1 bank values</source>
        <translation>%1 valores de banco</translation>
    </message>
    <message>
        <source>%1 changed in %2</source>
        <translation>Cambios en %2: %1</translation>
    </message>
    <message>
        <source>ROWS names channels that are not there: %1</source>
        <translation>ROWS nombra canales que no existen: %1</translation>
    </message>
    <message>
        <source>none of the rows that ROWS names holds a channel</source>
        <translation>ninguna de las filas que nombra ROWS contiene un canal</translation>
    </message>
    <message>
        <source>ROWS names no row of this file</source>
        <translation>ROWS no nombra ninguna fila de este archivo</translation>
    </message>
    <message>
        <source>it is one place, such as bank:3 or bank:3/12</source>
        <translation>debe ser un solo lugar, como bank:3 o bank:3/12</translation>
    </message>
    <message>
        <source>it is frequency, note or mode</source>
        <translation>debe ser frequency, note o mode</translation>
    </message>
    <message>
        <source>it is bash, zsh or fish</source>
        <translation>debe ser bash, zsh o fish</translation>
    </message>
    <message>
        <source>FIELD=VALUE is missing, such as mode=AM</source>
        <translation>falta FIELD=VALUE, por ejemplo mode=AM</translation>
    </message>
    <message>
        <source>set changes rows, not settings or banks</source>
        <translation>set cambia filas, no ajustes ni bancos</translation>
    </message>
    <message>
        <source>--take ROWS is missing: it says what is taken, such as bank:3 or all</source>
        <translation>falta --take ROWS: indica qué se toma, por ejemplo bank:3 o all</translation>
    </message>
    <message>
        <source>both names are the same file</source>
        <translation>ambos nombres son el mismo archivo</translation>
    </message>
    <message>
        <source>several files need a folder: add --to FOLDER</source>
        <translation>varios archivos necesitan una carpeta: añada --to FOLDER</translation>
    </message>
    <message>
        <source>--pdf takes one FILE</source>
        <translation>--pdf admite un solo FILE</translation>
    </message>
    <message>
        <source>a spreadsheet would run these notes as formulas:</source>
        <translation>una hoja de cálculo ejecutaría estas notas como fórmulas:</translation>
    </message>
    <message>
        <source>%1: there is no such folder. Make it first.</source>
        <translation>%1: no existe esa carpeta. Créela primero.</translation>
    </message>
    <message>
        <source>%1: another file of this name went to %2 just now. Export it by itself.</source>
        <translation>%1: otro archivo con este nombre acaba de ir a %2. Expórtelo por separado.</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1 ya existe; --force lo reemplaza</translation>
    </message>
    <message>
        <source>%1: the list names no file</source>
        <translation>%1: la lista no nombra ningún archivo</translation>
    </message>
    <message>
        <source>this text, or with a command the help of the command</source>
        <translation>este texto o, con una orden, la ayuda de la orden</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>la versión del programa</translation>
    </message>
    <message>
        <source>no progress, no closing line and no notes</source>
        <translation>sin progreso, línea final ni notas</translation>
    </message>
    <message>
        <source>every exchange with the receiver and every warning</source>
        <translation>todos los intercambios con el receptor y todas las advertencias</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Reads, keeps and writes the memory of a Tervan RQ-M5 receiver.</source>
        <translation>Lee, conserva y escribe la memoria de un receptor Tervan RQ-M5.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Órdenes:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>&quot;-&quot; as a file name is standard input or standard output.</source>
        <translation>«-» como nombre de archivo es la entrada o la salida estándar.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 the operation failed or found a difference, 2 wrong usage.</source>
        <translation>Código de salida: 0 hecho, 1 la operación falló o encontró una diferencia, 2 uso incorrecto.</translation>
    </message>
    <message>
        <source>%1 would be taken from %2</source>
        <translation>Se tomaría de %2: %1</translation>
    </message>
    <message>
        <source>%1 taken from %2</source>
        <translation>Tomado de %2: %1</translation>
    </message>
    <message>
        <source>not everything was read as written; %1</source>
        <translation>no todo se leyó como estaba escrito; %1</translation>
    </message>
    <message>
        <source>the carrier code of %1 moved one up, as with every import of an export: 300Hz is stored as 400Hz</source>
        <translation>el código de portadora subió uno en %1, como en toda importación de una exportación: 300Hz se guarda como 400Hz</translation>
    </message>
    <message>
        <source>%1 holds no record of an RQ-M5; %2</source>
        <translation>%1 no contiene ningún registro de un RQ-M5; %2</translation>
    </message>
    <message>
        <source>Read as a list: %1</source>
        <translation>Leído como lista: %1</translation>
    </message>
    <message>
        <source>not taken: %1</source>
        <translation>sin tomar: %1</translation>
    </message>
    <message>
        <source>left out:</source>
        <translation>datos omitidos:</translation>
    </message>
    <message>
        <source>no row of %1 can be taken; %2</source>
        <translation>no se puede tomar ninguna fila de %1; %2</translation>
    </message>
    <message>
        <source>no titles; columns are 1 to %1</source>
        <translation>sin títulos, de la 1 a la %1</translation>
    </message>
    <message>
        <source>the list has no column &quot;%1&quot;; it has %2</source>
        <translation>la lista no tiene ninguna columna «%1»; columnas: %2</translation>
    </message>
    <message>
        <source>the list does not say which rows it belongs to; name the first one with --from-row, or the columns that name them with --map</source>
        <translation>la lista no dice a qué filas pertenece; indique la primera con --from-row, o las columnas que las nombran con --map</translation>
    </message>
    <message>
        <source>there is no row %1 in this file</source>
        <translation>no hay ninguna fila %1 en este archivo</translation>
    </message>
    <message>
        <source>a row is a number 0 to 1209, BANK:CHANNEL such as 3:12, program-scan, search-pass or priority</source>
        <translation>una fila es un número de 0 a 1209, BANK:CHANNEL como 3:12, program-scan, search-pass o priority</translation>
    </message>
    <message>
        <source>bank %1 has other rows in OTHER than in FILE. Take &quot;banks&quot; as well, or name the rows as memory:0-199</source>
        <translation>el banco %1 tiene otras filas en OTHER que en FILE. Tome también «banks», o nombre las filas como memory:0-199</translation>
    </message>
    <message>
        <source>ROWS names no row of OTHER</source>
        <translation>ROWS no nombra ninguna fila de OTHER</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;.</source>
        <translation>Use «%1».</translation>
    </message>
    <message>
        <source>%1: the program that makes PDFs cannot be started. Install rq-m5 again, or print from the window.</source>
        <translation>%1: no se puede iniciar el programa que crea los PDF. Vuelva a instalar rq-m5 o imprima desde la ventana.</translation>
    </message>
    <message>
        <source>Try &quot;%1&quot;.</source>
        <translation>Pruebe «%1».</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>orden desconocida «%1»</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>falta una orden</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>fila %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>faltan %1</translation>
    </message>
    <message>
        <source>Port: %1, %2 (without --port, that of RQ-M5.ini)</source>
        <translation>Puerto: %1, %2 (sin --port, el de RQ-M5.ini)</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>sin dispositivo</translation>
    </message>
    <message>
        <source>%1: there is a file already; choose another name</source>
        <translation>%1: ya existe un archivo; elija otro nombre</translation>
    </message>
    <message>
        <source>%1: more than 16 MiB came. No clone file and no CSV file of a receiver is as long; check what is sent.</source>
        <translation>%1: llegaron más de 16 MiB. Ningún archivo de clonación ni CSV de un receptor es tan largo; compruebe qué se envía.</translation>
    </message>
    <message>
        <source>%1: it cannot be read. Give the name of a file.</source>
        <translation>%1: no se puede leer. Dé el nombre de un archivo.</translation>
    </message>
    <message>
        <source>%1: it cannot be opened. Check its permissions.</source>
        <translation>%1: no se puede abrir. Compruebe sus permisos.</translation>
    </message>
    <message>
        <source>nothing is written</source>
        <translation>no se escribe nada</translation>
    </message>
    <message>
        <source>%1 is as it was</source>
        <translation>%1 queda como estaba</translation>
    </message>
    <message>
        <source>the output could not be written; is the disk full?</source>
        <translation>no se pudo escribir la salida; ¿está lleno el disco?</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>la entrada estándar</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>la salida estándar</translation>
    </message>
    <message>
        <source>%1: there is a file already, and a backup replaces none; choose another name</source>
        <translation>%1: ya existe un archivo, y una copia de seguridad no reemplaza ninguno; elija otro nombre</translation>
    </message>
    <message>
        <source>%1: first %2, then %3</source>
        <translation>%1: primero %2, después %3</translation>
    </message>
    <message>
        <source>%1 is written with what came. Check the cable and read again.</source>
        <translation>Se escribió %1 con lo que llegó. Compruebe el cable y lea de nuevo.</translation>
    </message>
    <message>
        <source>%1 is written with what came; as it was it is kept as %2. Check the cable and read again.</source>
        <translation>Se escribió %1 con lo que llegó; el anterior se conserva como %2. Compruebe el cable y lea de nuevo.</translation>
    </message>
    <message>
        <source>Enable flags of other rows that differ from FILE: %1; the receiver keeps its own.</source>
        <translation>Marcas de activación de otras filas que difieren de FILE: %1; el receptor conserva las suyas.</translation>
    </message>
    <message>
        <source>these rows are outside the receiver&apos;s range (%1) and are written as they are:</source>
        <translation>estas filas están fuera del margen del receptor (%1) y se escriben tal cual:</translation>
    </message>
    <message>
        <source>%1 If that is meant, repeat with --force. The backup is in %2</source>
        <translation>%1 Si es lo que desea, repita con --force. La copia de seguridad está en %2</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>No se escribió nada.</translation>
    </message>
    <message>
        <source>regions are 0 to 3</source>
        <translation>las regiones van de 0 a 3</translation>
    </message>
    <message>
        <source>port numbers are 1 to 14; a device path such as /dev/ttyUSB0 is taken too</source>
        <translation>los números de puerto van de 1 a 14; también se admite la ruta de un dispositivo, como /dev/ttyUSB0</translation>
    </message>
    <message>
        <source>it is settings or memory</source>
        <translation>debe ser settings o memory</translation>
    </message>
    <message>
        <source>it is a bank 0 to 49, %1 or %2</source>
        <translation>debe ser un banco de 0 a 49, %1 o %2</translation>
    </message>
    <message>
        <source>it is a4 or letter</source>
        <translation>debe ser a4 o letter</translation>
    </message>
    <message>
        <source>the name of a file is missing</source>
        <translation>falta el nombre de un archivo</translation>
    </message>
    <message>
        <source>--bank chooses channels, and --only settings leaves them out</source>
        <translation>--bank elige canales, y --only settings los deja fuera</translation>
    </message>
    <message>
        <source>%1 is about channels, which are not printed; add --memory</source>
        <translation>%1 se refiere a canales, que no se imprimen; añada --memory</translation>
    </message>
    <message>
        <source>%1 is about the pages of a PDF; add --pdf</source>
        <translation>%1 se refiere a las páginas de un PDF; añada --pdf</translation>
    </message>
    <message>
        <source>The receiver holds what FILE says already; nothing was written.</source>
        <translation>El receptor ya contiene lo que dice FILE; no se escribió nada.</translation>
    </message>
    <message>
        <source>Known of the receiver since %1.</source>
        <translation>Lo que se conoce del receptor es del %1.</translation>
    </message>
    <message>
        <source>%1 If that is meant, repeat with --force.</source>
        <translation>%1 Si es lo que desea, repita con --force.</translation>
    </message>
    <message>
        <source>What is to be written was changed at the receiver, too. Read it into another file and take over what is right, or write without --changes.</source>
        <translation>Lo que se va a escribir también se modificó en el receptor. Léalo en otro archivo y tome lo correcto, o escriba sin --changes.</translation>
    </message>
    <message>
        <source>%1, %2: known %3, receiver %4, FILE %5</source>
        <translation>%1, %2: conocido %3, receptor %4, FILE %5</translation>
    </message>
    <message>
        <source>--known says what a write of changes begins with; add --changes</source>
        <translation>--known dice de qué parte una escritura de cambios; añada --changes</translation>
    </message>
    <message>
        <source>--changes looks at all parts; leave out %1</source>
        <translation>--changes mira todas las partes; quite %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>%1 %2 left out</source>
        <translation>se omite %1 %2</translation>
    </message>
    <message>
        <source>%1 has lost digits to an exponent in a spreadsheet</source>
        <translation>%1 perdió cifras por un exponente de una hoja de cálculo</translation>
    </message>
    <message>
        <source>%1 cannot be read for certain as a frequency</source>
        <translation>%1 no se puede leer con certeza como frecuencia</translation>
    </message>
    <message>
        <source>a frequency of 0 is no channel</source>
        <translation>una frecuencia de 0 no es un canal</translation>
    </message>
    <message>
        <source>the receiver has no mode %1</source>
        <translation>el receptor no tiene el modo %1</translation>
    </message>
    <message>
        <source>the note is cut to 255 characters</source>
        <translation>la nota se corta a 255 caracteres</translation>
    </message>
    <message>
        <source>it is a VFO band</source>
        <translation>es una banda VFO</translation>
    </message>
    <message>
        <source>there is no frequency</source>
        <translation>no hay frecuencia</translation>
    </message>
    <message>
        <source>there are more than 64 columns</source>
        <translation>hay más de 64 columnas</translation>
    </message>
    <message>
        <source>there are more fields than titles</source>
        <translation>hay más campos que títulos</translation>
    </message>
    <message>
        <source>it and all behind it are not read: no list of channels has more than 5000 rows</source>
        <translation>no se lee desde aquí hasta el final: ninguna lista de canales tiene más de 5000 filas</translation>
    </message>
    <message>
        <source>first line</source>
        <translation>primera línea</translation>
    </message>
    <message>
        <source>settings block %1</source>
        <translation>bloque de ajustes %1</translation>
    </message>
    <message>
        <source>VFO row %1</source>
        <translation>fila VFO %1</translation>
    </message>
    <message>
        <source>memory row %1</source>
        <translation>fila de memoria %1</translation>
    </message>
    <message>
        <source>channel flags %1</source>
        <translation>marcas de canales %1</translation>
    </message>
    <message>
        <source>note of VFO row %1</source>
        <translation>nota de la fila VFO %1</translation>
    </message>
    <message>
        <source>note of memory row %1</source>
        <translation>nota de la fila de memoria %1</translation>
    </message>
    <message>
        <source>bank sizes %1</source>
        <translation>tamaños de banco %1</translation>
    </message>
    <message>
        <source>bank links</source>
        <translation>enlaces de bancos</translation>
    </message>
    <message>
        <source>last line</source>
        <translation>última línea</translation>
    </message>
    <message>
        <source>Take an older copy of the file, or read the receiver again.</source>
        <translation>Use una copia más antigua del archivo o lea de nuevo el receptor.</translation>
    </message>
    <message>
        <source>line 1 is not &quot;%1&quot;, so this is no clone file. Choose a clone file (*.RQ5); a CSV file is imported instead.</source>
        <translation>la línea 1 no es «%1», así que esto no es un archivo de clonación. Elija un archivo de clonación (*.RQ5); un archivo CSV se importa.</translation>
    </message>
    <message>
        <source>the file is empty.</source>
        <translation>el archivo está vacío.</translation>
    </message>
    <message>
        <source>the file ends at line %1 of %2: it was cut short.</source>
        <translation>el archivo termina en la línea %1 de %2: está cortado.</translation>
    </message>
    <message>
        <source>line %1 (%2) has %3 characters, %4 are needed. Correct the line in a text editor, or take an older copy of the file.</source>
        <translation>la línea %1 (%2) tiene %3 caracteres, se necesitan %4. Corrija la línea en un editor de texto o use una copia más antigua del archivo.</translation>
    </message>
    <message>
        <source>line %1 (%2) is not &quot;%3&quot;: lines were added or the file is damaged.</source>
        <translation>la línea %1 (%2) no es «%3»: se añadieron líneas o el archivo está dañado.</translation>
    </message>
    <message>
        <source>line %1 (%2) holds a comma, which ends a note and shifts all that follows. File &gt; Repair, or &quot;rq-m5 repair&quot;, replaces it.</source>
        <translation>la línea %1 (%2) contiene una coma, que termina una nota y desplaza todo lo que sigue. Archivo &gt; Reparar, o «rq-m5 repair», la reemplaza.</translation>
    </message>
    <message>
        <source>%1 is none of the receiver&apos;s</source>
        <translation>%1 no es un valor del receptor</translation>
    </message>
    <message>
        <source>%1 is out of range</source>
        <translation>%1 está fuera del margen</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma</source>
        <translation>%1 se lee como %2: tiene coma decimal</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma, none of the receiver&apos;s</source>
        <translation>%1 se lee como %2: tiene coma decimal y no es un valor del receptor</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma, out of range</source>
        <translation>%1 se lee como %2: tiene coma decimal y está fuera del margen</translation>
    </message>
    <message>
        <source>%1 is read as %2</source>
        <translation>%1 se lee como %2</translation>
    </message>
    <message>
        <source>%1 is read as %2, none of the receiver&apos;s</source>
        <translation>%1 se lee como %2, que no es un valor del receptor</translation>
    </message>
    <message>
        <source>%1 is read as %2, out of range</source>
        <translation>%1 se lee como %2, que está fuera del margen</translation>
    </message>
    <message>
        <source>the row keeps what it has</source>
        <translation>la fila conserva lo que tiene</translation>
    </message>
    <message>
        <source>the row keeps %1</source>
        <translation>la fila conserva %1</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 no es un número</translation>
    </message>
    <message>
        <source>%1 is read as OFF</source>
        <translation>%1 se lee como OFF</translation>
    </message>
    <message>
        <source>%1 MHz is outside the receiver&apos;s range (0.1 to 1299.995 MHz)</source>
        <translation>%1 MHz está fuera del margen del receptor (0.1 a 1299.995 MHz)</translation>
    </message>
    <message>
        <source>the row is empty now</source>
        <translation>la fila queda vacía</translation>
    </message>
    <message>
        <source>%1 is read as #FALSE#</source>
        <translation>%1 se lee como #FALSE#</translation>
    </message>
    <message>
        <source>1 remark</source>
        <translation>1 observación</translation>
    </message>
    <message>
        <source>%1 remarks</source>
        <translation>%1 observaciones</translation>
    </message>
    <message>
        <source>1 row keeps an old value</source>
        <translation>1 fila conserva un valor anterior</translation>
    </message>
    <message>
        <source>%1 rows keep an old value</source>
        <translation>%1 filas conservan un valor anterior</translation>
    </message>
    <message>
        <source>1 number has a decimal comma</source>
        <translation>1 número tiene coma decimal</translation>
    </message>
    <message>
        <source>%1 numbers have a decimal comma</source>
        <translation>%1 números tienen coma decimal</translation>
    </message>
    <message>
        <source>it does not begin with %1 and is passed over</source>
        <translation>no empieza por %1 y se pasa por alto</translation>
    </message>
    <message>
        <source>there is no table &quot;%1&quot;; the record is passed over</source>
        <translation>no hay ninguna tabla «%1»; el registro se pasa por alto</translation>
    </message>
    <message>
        <source>%1 has no channel &quot;%2&quot;; the record is passed over</source>
        <translation>%1 no tiene ningún canal «%2»; el registro se pasa por alto</translation>
    </message>
    <message>
        <source>the record is short and is passed over</source>
        <translation>el registro es corto y se pasa por alto</translation>
    </message>
    <message>
        <source>the record is short; what stands in the next line was read into it</source>
        <translation>el registro es corto; se completó con lo que hay en la línea siguiente</translation>
    </message>
    <message>
        <source>the record has more than 15 fields; the rest is passed over</source>
        <translation>el registro tiene más de 15 campos; el resto se pasa por alto</translation>
    </message>
    <message>
        <source>the extended attribute %1 is gone</source>
        <translation>se perdió el atributo extendido %1</translation>
    </message>
    <message>
        <source>the owner was %1 and is %2</source>
        <translation>el propietario era %1 y ahora es %2</translation>
    </message>
    <message>
        <source>the group was %1 and is %2</source>
        <translation>el grupo era %1 y ahora es %2</translation>
    </message>
    <message>
        <source>the permissions were %1 and are %2</source>
        <translation>los permisos eran %1 y ahora son %2</translation>
    </message>
    <message>
        <source>the access list is gone</source>
        <translation>se perdió la lista de acceso</translation>
    </message>
    <message>
        <source>this is a clone file</source>
        <translation>es un archivo de clonación</translation>
    </message>
    <message>
        <source>this is a CSV file of this program</source>
        <translation>es un archivo CSV de este programa</translation>
    </message>
    <message>
        <source>this is a PDF</source>
        <translation>es un PDF</translation>
    </message>
    <message>
        <source>this is a file of another kind</source>
        <translation>es un archivo de otro tipo</translation>
    </message>
    <message>
        <source>and not a clone file</source>
        <translation>y no un archivo de clonación</translation>
    </message>
    <message>
        <source>and not a CSV file of this program</source>
        <translation>y no un archivo CSV de este programa</translation>
    </message>
    <message>
        <source>and not a PDF</source>
        <translation>y no un PDF</translation>
    </message>
    <message>
        <source>%1: %2 %3; give another name, or --force to replace it</source>
        <translation>%1: %2 %3; dé otro nombre, o --force para reemplazarlo</translation>
    </message>
    <message>
        <source>there is a folder or a device of that name</source>
        <translation>existe una carpeta o un dispositivo con ese nombre</translation>
    </message>
    <message>
        <source>%1: the old file cannot be kept under this name (%2), so nothing was changed. Make room for it, or save under another name.</source>
        <translation>%1: el archivo anterior no se puede conservar con este nombre (%2), así que no se modificó nada. Haga sitio o guarde con otro nombre.</translation>
    </message>
    <message>
        <source>%1: another program wrote this file right after it was saved, so it holds something else. Look at it, then save again or under another name.</source>
        <translation>%1: otro programa escribió este archivo justo después de guardarlo, así que contiene otra cosa. Revíselo y guarde de nuevo o con otro nombre.</translation>
    </message>
    <message>
        <source>%1: the file does not hold what was written to it. The disk may be failing; save to another one.</source>
        <translation>%1: el archivo no contiene lo que se escribió en él. El disco puede estar fallando; guarde en otro.</translation>
    </message>
    <message>
        <source>%1 The new file is in place; only what it holds could not be compared with what was written.</source>
        <translation>%1 El archivo nuevo está en su lugar; solo faltó comparar su contenido con lo escrito.</translation>
    </message>
    <message>
        <source>commas stand for decimals and between fields; separate the fields by tabs</source>
        <translation>las comas separan decimales y también campos; separe los campos con tabuladores</translation>
    </message>
    <message>
        <source>there is no encoding &quot;%1&quot;; one of them is WINDOWS-1252</source>
        <translation>no existe la codificación «%1»; una de ellas es WINDOWS-1252</translation>
    </message>
    <message>
        <source>the delimiter is tab, semicolon, comma or none</source>
        <translation>el separador es tab, semicolon, comma o none</translation>
    </message>
    <message>
        <source>the decimal sign is point or comma</source>
        <translation>el signo decimal es point o comma</translation>
    </message>
    <message>
        <source>@titles is yes or no</source>
        <translation>@titles es yes o no</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of @encoding, @delimiter, @decimal and @titles</source>
        <translation>«%1» no es @encoding, @delimiter, @decimal ni @titles</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not followed by &quot;=&quot; and a field</source>
        <translation>a «%1» no le sigue «=» y un campo</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;; the fields are %2</source>
        <translation>no hay ningún campo «%1»; los campos son %2</translation>
    </message>
    <message>
        <source>one field a line</source>
        <translation>un campo por línea</translation>
    </message>
    <message>
        <source>each number by itself</source>
        <translation>según cada número</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>columna %1</translation>
    </message>
    <message>
        <source>%1; fields: %2; decimals: %3</source>
        <translation>%1; campos: %2; decimales: %3</translation>
    </message>
    <message>
        <source>not used: %1</source>
        <translation>sin usar: %1</translation>
    </message>
    <message>
        <source>line %1, %2: %3 -&gt; %4</source>
        <translation>línea %1, %2: %3 -&gt; %4</translation>
    </message>
    <message>
        <source>%1: cannot be made</source>
        <translation>%1: no se puede crear</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>the new file gets no name here (%1)</source>
        <translation>el archivo nuevo no recibe nombre aquí (%1)</translation>
    </message>
    <message>
        <source>What was read could not be kept elsewhere either: %1</source>
        <translation>Lo leído tampoco se pudo conservar en otro lugar: %1</translation>
    </message>
    <message>
        <source>What was read is kept in %1; rq-m5-clone offers it at its next start.</source>
        <translation>Lo leído se conserva en %1; rq-m5-clone lo ofrece la próxima vez que se inicie.</translation>
    </message>
    <message>
        <source>%1: %2. %3</source>
        <translation>%1: %2. %3</translation>
    </message>
    <message>
        <source>no file name was given</source>
        <translation>no se indicó ningún nombre de archivo</translation>
    </message>
    <message>
        <source>Give one.</source>
        <translation>Indique uno.</translation>
    </message>
    <message>
        <source>this is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>Give the name of a file.</source>
        <translation>Dé el nombre de un archivo.</translation>
    </message>
    <message>
        <source>this is a device or a pipe and no file</source>
        <translation>es un dispositivo o una tubería y no un archivo</translation>
    </message>
    <message>
        <source>Change the permissions of the file or save under another name.</source>
        <translation>Cambie los permisos del archivo o guarde con otro nombre.</translation>
    </message>
    <message>
        <source>Check the name and the permissions of the folder, or save in another one.</source>
        <translation>Compruebe el nombre y los permisos de la carpeta, o guarde en otra.</translation>
    </message>
    <message>
        <source>Free some space on the disk or save on another one, then repeat.</source>
        <translation>Libere espacio en el disco o guarde en otro, y repita.</translation>
    </message>
    <message>
        <source>Give a shorter name.</source>
        <translation>Dé un nombre más corto.</translation>
    </message>
    <message>
        <source>Too many files are open; close other programs, then repeat.</source>
        <translation>Hay demasiados archivos abiertos; cierre otros programas y repita.</translation>
    </message>
    <message>
        <source>The disk may be failing; save on another one.</source>
        <translation>El disco puede estar fallando; guarde en otro.</translation>
    </message>
    <message>
        <source>Save in another folder or on another disk.</source>
        <translation>Guarde en otra carpeta o en otro disco.</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>la carpeta %1 no existe</translation>
    </message>
    <message>
        <source>Make the folder or choose another one.</source>
        <translation>Cree la carpeta o elija otra.</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>permiso denegado</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>Check its name and its folder.</source>
        <translation>Compruebe su nombre y su carpeta.</translation>
    </message>
    <message>
        <source>the file is larger than 16 MiB</source>
        <translation>el archivo supera los 16 MiB</translation>
    </message>
    <message>
        <source>No clone file and no CSV file of a receiver is; choose another one.</source>
        <translation>Ningún archivo de clonación ni CSV de un receptor es tan grande; elija otro.</translation>
    </message>
    <message>
        <source>only %1 KiB are free on the disk, and the file needs %2</source>
        <translation>solo hay %1 KiB libres en el disco y el archivo necesita %2</translation>
    </message>
    <message>
        <source>%1; the new file is in place, but it may be lost when the power fails</source>
        <translation>%1; el archivo nuevo está en su lugar, pero podría perderse si falla la corriente</translation>
    </message>
    <message>
        <source>%1; nothing was changed</source>
        <translation>%1; no se modificó nada</translation>
    </message>
    <message>
        <source>Change the permissions of the file or open a copy.</source>
        <translation>Cambie los permisos del archivo o abra una copia.</translation>
    </message>
    <message>
        <source>Open a copy from another disk.</source>
        <translation>Abra una copia desde otro disco.</translation>
    </message>
    <message>
        <source>%1 (no device)</source>
        <translation>%1 (sin dispositivo)</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Compilación</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licencia</translation>
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
        <translation>%1, compilado con %2</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Port number file</source>
        <translation>Archivo del número de puerto</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Secret code</source>
        <translation>Código secreto</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>Portadora</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Shift frequency</source>
        <translation>Frec. de despl.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Program Scan</source>
        <translation>Program Scan</translation>
    </message>
    <message>
        <source>Seach Pass</source>
        <translation>Search Pass</translation>
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
        <translation>Una dirección es hexadecimal, por ejemplo 1000.</translation>
    </message>
    <message>
        <source>The highest address is %1.</source>
        <translation>La dirección más alta es %1.</translation>
    </message>
    <message>
        <source>An address is that of a block of 16 bytes, so its last digit is 0.</source>
        <translation>Una dirección es la de un bloque de 16 bytes, así que su última cifra es 0.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Search Pass count</source>
        <translation>Recuento de Search Pass</translation>
    </message>
    <message>
        <source>Region presets</source>
        <translation>Canales predefinidos de la región</translation>
    </message>
    <message>
        <source>Bank sizes</source>
        <translation>Tamaños de banco</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>Bank %1 link</source>
        <translation>Enlace del banco %1</translation>
    </message>
    <message>
        <source>Enabled channels</source>
        <translation>Canales activados</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacía</translation>
    </message>
    <message>
        <source>Block %1</source>
        <translation>Bloque %1</translation>
    </message>
    <message>
        <source>less than a second</source>
        <translation>menos de un segundo</translation>
    </message>
    <message>
        <source>about one second</source>
        <translation>aprox. un segundo</translation>
    </message>
    <message>
        <source>about %1 seconds</source>
        <translation>aprox. %1 segundos</translation>
    </message>
    <message>
        <source>about one minute</source>
        <translation>aprox. un minuto</translation>
    </message>
    <message>
        <source>about %1 minutes</source>
        <translation>aprox. %1 minutos</translation>
    </message>
    <message>
        <source>The receiver was never read in this run: %1 blocks, %2</source>
        <translation>El receptor no se ha leído desde que se inició el programa: %1 bloques, %2</translation>
    </message>
    <message>
        <source>Not known of the receiver: %1 blocks, %2</source>
        <translation>Bloques del receptor que no se conocen: %1, %2</translation>
    </message>
    <message>
        <source>1 channel on</source>
        <translation>1 canal activado</translation>
    </message>
    <message>
        <source>%1 channels on</source>
        <translation>%1 canales activados</translation>
    </message>
    <message>
        <source>1 bank size</source>
        <translation>1 tamaño de banco</translation>
    </message>
    <message>
        <source>%1 bank sizes</source>
        <translation>%1 tamaños de banco</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 enlace</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 enlaces</translation>
    </message>
    <message>
        <source>1 VFO band</source>
        <translation>1 banda VFO</translation>
    </message>
    <message>
        <source>%1 VFO bands</source>
        <translation>%1 bandas VFO</translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation>sin cambios</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>cambios: %1</translation>
    </message>
    <message>
        <source>Read in %1 and verified: %2</source>
        <translation>Leído en %1 y verificado: %2</translation>
    </message>
    <message>
        <source>Read in %1: %2</source>
        <translation>Leído en %1: %2</translation>
    </message>
    <message>
        <source>Written in %1 and verified</source>
        <translation>Escrito en %1 y verificado</translation>
    </message>
    <message>
        <source>Written in %1</source>
        <translation>Escrito en %1</translation>
    </message>
    <message>
        <source>Compared in %1: no block differs</source>
        <translation>Comparado en %1: ningún bloque difiere</translation>
    </message>
    <message>
        <source>Compared in %1: 1 block differs</source>
        <translation>Comparado en %1: 1 bloque difiere</translation>
    </message>
    <message>
        <source>Compared in %1: %2 blocks differ</source>
        <translation>Comparado en %1: %2 bloques difieren</translation>
    </message>
    <message>
        <source>Settings 2 (Search Pass count)</source>
        <translation>Ajustes 2 (recuento de Search Pass)</translation>
    </message>
    <message>
        <source>1 block needed more than one attempt</source>
        <translation>1 bloque necesitó más de un intento</translation>
    </message>
    <message>
        <source>%1 blocks needed more than one attempt</source>
        <translation>%1 bloques necesitaron más de un intento</translation>
    </message>
    <message>
        <source>1 block was read with characters that are no hex digits</source>
        <translation>1 bloque se leyó con caracteres que no son cifras hexadecimales</translation>
    </message>
    <message>
        <source>%1 blocks were read with characters that are no hex digits</source>
        <translation>%1 bloques se leyeron con caracteres que no son cifras hexadecimales</translation>
    </message>
    <message>
        <source>1 block was different when it was read again</source>
        <translation>1 bloque fue distinto al leerlo de nuevo</translation>
    </message>
    <message>
        <source>%1 blocks were different when they were read again</source>
        <translation>%1 bloques fueron distintos al leerlos de nuevo</translation>
    </message>
    <message>
        <source>%1, the first of them: %2. Check the cable, then repeat the operation.</source>
        <translation>%1; el primero de ellos: %2. Compruebe el cable y repita la operación.</translation>
    </message>
    <message>
        <source>Replies came late again and again, so that it cannot be told to which block each belongs. Check the cable and the receiver&apos;s battery, then read again.</source>
        <translation>Las respuestas llegaron tarde una y otra vez, y no se puede saber a qué bloque pertenece cada una. Compruebe el cable y la batería del receptor, y lea de nuevo.</translation>
    </message>
    <message>
        <source>All was sent, but replies came late, so that an OK may have been another block&apos;s. Verify what the receiver holds, or repeat the write.</source>
        <translation>Se envió todo, pero las respuestas llegaron tarde y algún OK pudo ser de otro bloque. Verifique lo que contiene el receptor o repita la escritura.</translation>
    </message>
    <message>
        <source>All was read, but not all of it could be read again to compare.</source>
        <translation>Se leyó todo, pero no todo se pudo leer de nuevo para comparar.</translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access to the device.</source>
        <translation>Pida acceso al dispositivo al administrador de este equipo.</translation>
    </message>
    <message>
        <source>The group &quot;%1&quot; may use it. Add yourself with &quot;%2&quot;, then log out and in again.</source>
        <translation>El grupo «%1» puede usarlo. Añádase con «%2», cierre la sesión y vuelva a entrar.</translation>
    </message>
    <message>
        <source>No serial port was found. Plug the adapter in and try again.</source>
        <translation>No se encontró ningún puerto serie. Conecte el adaptador e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Ports found: %1.</source>
        <translation>Puertos encontrados: %1.</translation>
    </message>
    <message>
        <source>The receiver sent nothing.</source>
        <translation>El receptor no envió nada.</translation>
    </message>
    <message>
        <source>The reply was too short.</source>
        <translation>La respuesta fue demasiado corta.</translation>
    </message>
    <message>
        <source>The reply was garbled.</source>
        <translation>La respuesta llegó alterada.</translation>
    </message>
    <message>
        <source>The receiver did not answer OK.</source>
        <translation>El receptor no respondió OK.</translation>
    </message>
    <message>
        <source>Another program uses the port. Close it and try again.</source>
        <translation>Otro programa usa el puerto. Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Choose another port. %1</source>
        <translation>Elija otro puerto. %1</translation>
    </message>
    <message>
        <source>Plug the adapter in again and repeat the operation.</source>
        <translation>Conecte de nuevo el adaptador y repita la operación.</translation>
    </message>
    <message>
        <source>Check the port and the cable, then repeat the operation.</source>
        <translation>Compruebe el puerto y el cable, y repita la operación.</translation>
    </message>
    <message>
        <source>(no device)</source>
        <translation>(sin dispositivo)</translation>
    </message>
    <message>
        <source>the port failed</source>
        <translation>falló el puerto</translation>
    </message>
    <message>
        <source>Block %1 was not asked for: replies had been missing, and then the line did not fall silent. Check the cable, and that nothing but the receiver is on the line.</source>
        <translation>El bloque %1 no se pidió: habían faltado respuestas y después la línea no quedó en silencio. Compruebe el cable y que en la línea no haya nada más que el receptor.</translation>
    </message>
    <message>
        <source>one attempt</source>
        <translation>un intento</translation>
    </message>
    <message>
        <source>%1 attempts</source>
        <translation>%1 intentos</translation>
    </message>
    <message>
        <source>Check the cable, that the receiver is switched on and that it is in clone mode.</source>
        <translation>Compruebe el cable, que el receptor esté encendido y que esté en modo de clonación.</translation>
    </message>
    <message>
        <source>Block %1 could not be written in %2. %3 %4</source>
        <translation>El bloque %1 no se pudo escribir en %2. %3 %4</translation>
    </message>
    <message>
        <source>Block %1 could not be read in %2. %3 %4</source>
        <translation>El bloque %1 no se pudo leer en %2. %3 %4</translation>
    </message>
    <message>
        <source>bank sizes</source>
        <translation>tamaños de banco</translation>
    </message>
    <message>
        <source>enable flags</source>
        <translation>marcas de activación</translation>
    </message>
    <message>
        <source>Bank links</source>
        <translation>Enlaces de bancos</translation>
    </message>
    <message>
        <source>list of Search Pass channels</source>
        <translation>lista de canales de Search Pass</translation>
    </message>
    <message>
        <source>region presets</source>
        <translation>canales predefinidos de la región</translation>
    </message>
    <message>
        <source>Bank sizes %1 to %2</source>
        <translation>Tamaños de banco %1 a %2</translation>
    </message>
    <message>
        <source>Enable flags of rows %1 to %2</source>
        <translation>Marcas de activación de las filas %1 a %2</translation>
    </message>
    <message>
        <source>settings block</source>
        <translation>bloque de ajustes</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>ajustes</translation>
    </message>
    <message>
        <source>Settings %1</source>
        <translation>Ajustes %1</translation>
    </message>
    <message>
        <source>settings %1</source>
        <translation>ajustes %1</translation>
    </message>
    <message>
        <source>bank size block</source>
        <translation>bloque de tamaños de banco</translation>
    </message>
    <message>
        <source>enable flag block</source>
        <translation>bloque de marcas de activación</translation>
    </message>
    <message>
        <source>Search Pass list block</source>
        <translation>bloque de la lista de Search Pass</translation>
    </message>
    <message>
        <source>Search Pass list</source>
        <translation>lista de Search Pass</translation>
    </message>
    <message>
        <source>Search Pass list %1</source>
        <translation>Lista de Search Pass %1</translation>
    </message>
    <message>
        <source>region preset</source>
        <translation>canal predefinido de la región</translation>
    </message>
    <message>
        <source>VFO band</source>
        <translation>banda VFO</translation>
    </message>
    <message>
        <source>VFO bands</source>
        <translation>Bandas VFO</translation>
    </message>
    <message>
        <source>VFO %1</source>
        <translation>VFO %1</translation>
    </message>
    <message>
        <source>row</source>
        <translation>fila</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>filas</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>The backup could not be made, so nothing was written.</source>
        <translation>No se pudo hacer la copia de seguridad, así que no se escribió nada.</translation>
    </message>
    <message>
        <source>All was written, but not all of it could be verified.</source>
        <translation>Se escribió todo, pero no se pudo verificar todo.</translation>
    </message>
    <message>
        <source>The receiver is an %1, and what is to be written is for an %2.</source>
        <translation>El receptor es un %1 y lo que se va a escribir es para un %2.</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <translation>%1 %2 a %3</translation>
    </message>
    <message>
        <source>Sent: nothing.</source>
        <translation>Enviado: nada.</translation>
    </message>
    <message>
        <source>Sent: %1.</source>
        <translation>Enviado: %1.</translation>
    </message>
    <message>
        <source>Refused: %1 (may hold its old or its new contents).</source>
        <translation>Rechazado: %1 (el contenido puede ser el antiguo o el nuevo).</translation>
    </message>
    <message>
        <source>Without an answer: %1 (may hold its old or its new contents).</source>
        <translation>Sin respuesta: %1 (el contenido puede ser el antiguo o el nuevo).</translation>
    </message>
    <message>
        <source>Not sent: %1.</source>
        <translation>Sin enviar: %1.</translation>
    </message>
    <message>
        <source>Repeating the write completes it.</source>
        <translation>Repetir la escritura la completa.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Bank %1</source>
        <translation>Banco %1</translation>
    </message>
    <message>
        <source>Channels in no bank</source>
        <translation>Canales en ningún banco</translation>
    </message>
    <message>
        <source>Bank %1 size</source>
        <translation>Tamaño del banco %1</translation>
    </message>
    <message>
        <source>Link flag %1 link</source>
        <translation>Marca de enlace %1</translation>
    </message>
    <message>
        <source>Bank %1 size: %2</source>
        <translation>Tamaño del banco %1: %2</translation>
    </message>
    <message>
        <source>Move channels with their banks</source>
        <translation>Mover los canales con sus bancos</translation>
    </message>
    <message>
        <source>Link bank %1</source>
        <translation>Enlazar el banco %1</translation>
    </message>
    <message>
        <source>Unlink bank %1</source>
        <translation>Desenlazar el banco %1</translation>
    </message>
    <message>
        <source>The receiver takes 0.1 to 1299.995 MHz.</source>
        <translation>El receptor admite de 0.1 a 1299.995 MHz.</translation>
    </message>
    <message>
        <source>It is a frequency of the cellular phone, which this model refuses.</source>
        <translation>Es una frecuencia de telefonía móvil, que este modelo rechaza.</translation>
    </message>
    <message>
        <source>Another Search Pass channel has the same frequency.</source>
        <translation>Otro canal de Search Pass tiene la misma frecuencia.</translation>
    </message>
    <message>
        <source>Cut (%1)</source>
        <translation>Cortar (%1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Paste Special</source>
        <translation>Pegado especial</translation>
    </message>
    <message>
        <source>Fill Down</source>
        <translation>Rellenar hacia abajo</translation>
    </message>
    <message>
        <source>Fill Series</source>
        <translation>Rellenar serie</translation>
    </message>
    <message>
        <source>Take from %1 (%2)</source>
        <translation>Tomar desde %1 (%2)</translation>
    </message>
    <message>
        <source>Moved: there at %1</source>
        <translation>Movido: allí está en %1</translation>
    </message>
    <message>
        <source>Only here</source>
        <translation>Solo aquí</translation>
    </message>
    <message>
        <source>Moved: the one there is at %1 here</source>
        <translation>Movido: el de allí está aquí en %1</translation>
    </message>
    <message>
        <source>the one there is at %1 here</source>
        <translation>el de allí está aquí en %1</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>Solo allí</translation>
    </message>
    <message>
        <source>%1, %2 differences</source>
        <translation>%1, %2 diferencias</translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation>%1 diferencias</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vacía)</translation>
    </message>
    <message>
        <source>%1 (off)</source>
        <translation>%1 (desactivado)</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>En ningún banco</translation>
    </message>
    <message>
        <source>Not in the receiver</source>
        <translation>No está en el receptor</translation>
    </message>
    <message>
        <source>Bank layout</source>
        <translation>Distribución de bancos</translation>
    </message>
    <message>
        <source>FM, AM or WFM</source>
        <translation>FM, AM o WFM</translation>
    </message>
    <message>
        <source>a step of the receiver, such as 12.5KHz</source>
        <translation>un paso del receptor, como 12.5KHz</translation>
    </message>
    <message>
        <source>OFF, SCRT, Carrier, Tone or Rev.</source>
        <translation>OFF, SCRT, Carrier, Tone o Rev.</translation>
    </message>
    <message>
        <source>0 to 16</source>
        <translation>de 0 a 16</translation>
    </message>
    <message>
        <source>300Hz to 3000Hz or JR</source>
        <translation>de 300Hz a 3000Hz o JR</translation>
    </message>
    <message>
        <source>a CTCSS tone, such as 88.5Hz</source>
        <translation>un tono CTCSS, como 88.5Hz</translation>
    </message>
    <message>
        <source>OFF, + or -</source>
        <translation>OFF, + o -</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;: it is %3</source>
        <translation>%1 «%2»: debe ser %3</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on u off</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of MHz, such as 145.5</source>
        <translation>«%1» no es un número de MHz, como 145.5</translation>
    </message>
    <message>
        <source>the %1 has no secret code</source>
        <translation>el %1 no tiene código secreto</translation>
    </message>
    <message>
        <source>the %1 has no carrier</source>
        <translation>el %1 no tiene portadora</translation>
    </message>
    <message>
        <source>This VFO band takes %1.</source>
        <translation>Esta banda VFO admite %1.</translation>
    </message>
    <message>
        <source>a VFO band has no note</source>
        <translation>una banda VFO no tiene el campo note</translation>
    </message>
    <message>
        <source>a VFO band has no skip</source>
        <translation>una banda VFO no tiene el campo skip</translation>
    </message>
    <message>
        <source>a VFO band has no enabled</source>
        <translation>una banda VFO no tiene el campo enabled</translation>
    </message>
    <message>
        <source>Offsets are below 100 MHz.</source>
        <translation>Los desplazamientos son inferiores a 100 MHz.</translation>
    </message>
    <message>
        <source>the editor has no step %1</source>
        <translation>el editor no tiene el paso %1</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no FIELD=VALUE, such as mode=AM</source>
        <translation>«%1» no es FIELD=VALUE, por ejemplo mode=AM</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no field; it is %2</source>
        <translation>«%1» no es un campo; debe ser %2</translation>
    </message>
    <message>
        <source>the model region does not have it</source>
        <translation>la región del modelo no lo tiene</translation>
    </message>
    <message>
        <source>the series ends at 0</source>
        <translation>la serie termina en 0</translation>
    </message>
    <message>
        <source>Show the operation buttons</source>
        <translation>Mostrar los botones de operación</translation>
    </message>
    <message>
        <source>Hide the operation buttons</source>
        <translation>Ocultar los botones de operación</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>Editar (%1)</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 canales</translation>
    </message>
    <message>
        <source>%1  CH %2</source>
        <translation>%1  CH %2</translation>
    </message>
    <message>
        <source>Band %1</source>
        <translation>Banda %1</translation>
    </message>
    <message>
        <source>CH %1</source>
        <translation>CH %1</translation>
    </message>
    <message>
        <source>Modify (%1, %2 channels)</source>
        <translation>Modificar (%1, %2 canales)</translation>
    </message>
    <message>
        <source>Modify (%1)</source>
        <translation>Modificar (%1)</translation>
    </message>
    <message>
        <source>%1 CH %2</source>
        <translation>%1 CH %2</translation>
    </message>
    <message>
        <source>Move (%1)</source>
        <translation>Mover (%1)</translation>
    </message>
    <message>
        <source>Every row of %1 from here on holds a channel or a note. Clear one, or make the bank larger on the Bank page.</source>
        <translation>Desde aquí, todas las filas de %1 contienen un canal o una nota. Borre una o amplíe el banco en la página Banco.</translation>
    </message>
    <message>
        <source>Insert Row (%1)</source>
        <translation>Insertar fila (%1)</translation>
    </message>
    <message>
        <source>Delete Row (%1)</source>
        <translation>Suprimir fila (%1)</translation>
    </message>
    <message>
        <source>Move to %1 (%2)</source>
        <translation>Mover a %1 (%2)</translation>
    </message>
    <message>
        <source>Copy to %1 (%2)</source>
        <translation>Copiar a %1 (%2)</translation>
    </message>
    <message>
        <source>Sort by Frequency (%1)</source>
        <translation>Ordenar por frecuencia (%1)</translation>
    </message>
    <message>
        <source>Sort by Note (%1)</source>
        <translation>Ordenar por nota (%1)</translation>
    </message>
    <message>
        <source>Sort by Mode (%1)</source>
        <translation>Ordenar por modo (%1)</translation>
    </message>
    <message>
        <source>there is no memory row &quot;%1&quot;</source>
        <translation>no hay ninguna fila de memoria «%1»</translation>
    </message>
    <message>
        <source>the list names no row for it</source>
        <translation>la lista no le indica ninguna fila</translation>
    </message>
    <message>
        <source>there is no channel &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>no hay ningún canal «%1» en «%2»</translation>
    </message>
    <message>
        <source>the row holds no channel, and no frequency comes</source>
        <translation>la fila no contiene ningún canal y no llega ninguna frecuencia</translation>
    </message>
    <message>
        <source>there is no row left for it</source>
        <translation>ya no quedan filas libres</translation>
    </message>
    <message>
        <source>the list names this row twice</source>
        <translation>la lista nombra esta fila dos veces</translation>
    </message>
    <message>
        <source>Rows that are written: %1</source>
        <translation>Filas que se escriben: %1</translation>
    </message>
    <message>
        <source>Rows that are written: %1, of which 1 holds a channel now</source>
        <translation>Filas que se escriben: %1, 1 de ellas ya contiene un canal</translation>
    </message>
    <message>
        <source>Rows that are written: %1, of which %2 hold a channel now</source>
        <translation>Filas que se escriben: %1, %2 de ellas ya contienen un canal</translation>
    </message>
    <message>
        <source>%1; refused: %2</source>
        <translation>%1; rechazadas: %2</translation>
    </message>
    <message>
        <source>0.1 to 1299.995 MHz</source>
        <translation>0.1 a 1299.995 MHz</translation>
    </message>
    <message>
        <source>%1: it is all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority, vfo, settings, banks, or a condition such as mode=AM, freq:118..137 or note~airport</source>
        <translation>%1: debe ser all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority, vfo, settings, banks, o una condición como mode=AM, freq:118..137 o note~airport</translation>
    </message>
    <message>
        <source>%1: its channels are %2 to %3</source>
        <translation>%1: sus canales van de %2 a %3</translation>
    </message>
    <message>
        <source>%1: memory rows are 0 to %2</source>
        <translation>%1: las filas de memoria van de 0 a %2</translation>
    </message>
    <message>
        <source>a condition chooses memory rows; vfo, settings and banks cannot stand beside it</source>
        <translation>una condición elige filas de memoria; no admite al lado vfo, settings ni banks</translation>
    </message>
    <message>
        <source>%1: VFO rows are 0 to %2</source>
        <translation>%1: las filas VFO van de 0 a %2</translation>
    </message>
    <message>
        <source>%1: banks are 0 to 49, as in bank:3, bank:0-4 or bank:2/5-9</source>
        <translation>%1: los bancos van de 0 a 49, como en bank:3, bank:0-4 o bank:2/5-9</translation>
    </message>
    <message>
        <source>%1: channels of a bank count from 0, as in bank:2/5-9</source>
        <translation>%1: los canales de un banco cuentan desde 0, como en bank:2/5-9</translation>
    </message>
    <message>
        <source>%1: &quot;~&quot; looks for a text in the note, as in note~airport</source>
        <translation>%1: «~» busca un texto en la nota, como en note~airport</translation>
    </message>
    <message>
        <source>%1: write it with &quot;=&quot;, as in mode=AM</source>
        <translation>%1: escríbalo con «=», como en mode=AM</translation>
    </message>
    <message>
        <source>%1: the lower end comes first</source>
        <translation>%1: el extremo inferior va primero</translation>
    </message>
    <message>
        <source>bank %1 has %2 channel</source>
        <translation>el banco %1 tiene %2 canal</translation>
    </message>
    <message>
        <source>bank %1 has %2 channels</source>
        <translation>el banco %1 tiene %2 canales</translation>
    </message>
    <message>
        <source>This clears %1, %2.</source>
        <translation>Se borra: %1, %2.</translation>
    </message>
    <message>
        <source>This clears %1.</source>
        <translation>Se borra: %1.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Borrar todo</translation>
    </message>
    <message>
        <source>This deletes %1, %2.</source>
        <translation>Se suprime: %1, %2.</translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation>Suprimir (%1)</translation>
    </message>
    <message>
        <source>Insert (%1)</source>
        <translation>Insertar (%1)</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Desactivar</translation>
    </message>
    <message>
        <source>Enable All</source>
        <translation>Activar todo</translation>
    </message>
    <message>
        <source>Disable All</source>
        <translation>Desactivar todo</translation>
    </message>
    <message>
        <source>%1, channel %2</source>
        <translation>%1, canal %2</translation>
    </message>
    <message>
        <source>memory row %1 (%2)</source>
        <translation>fila de memoria %1 (%2)</translation>
    </message>
    <message>
        <source>memory row %1 (in no bank)</source>
        <translation>fila de memoria %1 (en ningún banco)</translation>
    </message>
    <message>
        <source>memory row %1 (not in the receiver)</source>
        <translation>fila de memoria %1 (no está en el receptor)</translation>
    </message>
    <message>
        <source>Row %1 (no bank)</source>
        <translation>Fila %1 (sin banco)</translation>
    </message>
    <message>
        <source>Row %1 (%2)</source>
        <translation>Fila %1 (%2)</translation>
    </message>
    <message>
        <source>%1, 1 channel</source>
        <translation>%1, 1 canal</translation>
    </message>
    <message>
        <source>%1, %2 channels</source>
        <translation>%1, %2 canales</translation>
    </message>
    <message>
        <source>%1, the one channel shown of %2</source>
        <translation>%1, el único canal mostrado de %2</translation>
    </message>
    <message>
        <source>%1, the %2 channels shown of %3</source>
        <translation>%1, los %2 canales mostrados de %3</translation>
    </message>
    <message>
        <source>which is empty</source>
        <translation>sin contenido</translation>
    </message>
    <message>
        <source>No row moved</source>
        <translation>Ninguna fila se movió</translation>
    </message>
    <message>
        <source>row %1 was empty, so nothing is lost</source>
        <translation>la fila %1 estaba vacía, así que no se perdió nada</translation>
    </message>
    <message>
        <source>lost: %1 MHz in row %2 (in no bank)</source>
        <translation>se perdió: %1 MHz en la fila %2 (en ningún banco)</translation>
    </message>
    <message>
        <source>lost: %1 MHz in row %2 (%3)</source>
        <translation>se perdió: %1 MHz en la fila %2 (%3)</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation>%1; %2.</translation>
    </message>
    <message>
        <source>Row %1 moved down</source>
        <translation>La fila %1 bajó</translation>
    </message>
    <message>
        <source>Rows %1 to %2 moved down</source>
        <translation>Las filas %1 a %2 bajaron</translation>
    </message>
    <message>
        <source>Row %1 moved up</source>
        <translation>La fila %1 subió</translation>
    </message>
    <message>
        <source>Rows %1 to %2 moved up</source>
        <translation>Las filas %1 a %2 subieron</translation>
    </message>
    <message>
        <source>The pages could not be made; there may be too little memory.</source>
        <translation>No se pudieron crear las páginas; puede faltar memoria.</translation>
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
        <translation>Por señal (Busy)</translation>
    </message>
    <message>
        <source>Timer Scan</source>
        <translation>Por tiempo (Timer)</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Pulsar</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silencio</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Operating Mode</source>
        <translation>Modo de operación</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Squelch</source>
        <translation>Squelch</translation>
    </message>
    <message>
        <source>Scan Mode</source>
        <translation>Modo de exploración</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Iluminación</translation>
    </message>
    <message>
        <source>Auto Power Off (minutes)</source>
        <translation>Apagado auto. (min)</translation>
    </message>
    <message>
        <source>Bug Sensitive Level</source>
        <translation>Sensibilidad antiescuchas</translation>
    </message>
    <message>
        <source>MONI Key Function</source>
        <translation>Función tecla MONI</translation>
    </message>
    <message>
        <source>MONI Key</source>
        <translation>Tecla MONI</translation>
    </message>
    <message>
        <source>Battery Save</source>
        <translation>Ahorro de batería</translation>
    </message>
    <message>
        <source>Keylock</source>
        <translation>Bloqueo de teclas</translation>
    </message>
    <message>
        <source>Write Protect</source>
        <translation>Protección de escritura</translation>
    </message>
    <message>
        <source>Beep</source>
        <translation>Pitido</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Timbre</translation>
    </message>
    <message>
        <source>Attenuator</source>
        <translation>Atenuador</translation>
    </message>
    <message>
        <source>Auto Step</source>
        <translation>Paso automático</translation>
    </message>
    <message>
        <source>Earphone Antenna</source>
        <translation>Antena de auricular</translation>
    </message>
    <message>
        <source>SW bar antenna</source>
        <translation>Antena de ferrita OC</translation>
    </message>
    <message>
        <source>AM bar antenna</source>
        <translation>Antena de ferrita AM</translation>
    </message>
    <message>
        <source>VFO</source>
        <translation>VFO</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Predefinido</translation>
    </message>
    <message>
        <source>No bank</source>
        <translation>Sin banco</translation>
    </message>
    <message>
        <source>Not in receiver</source>
        <translation>No está en receptor</translation>
    </message>
    <message>
        <source>COM Port Error</source>
        <translation>Error del puerto COM</translation>
    </message>
    <message>
        <source>Communication Error</source>
        <translation>Error de comunicación</translation>
    </message>
    <message>
        <source>Data Error</source>
        <translation>Error de datos</translation>
    </message>
    <message>
        <source>File Open Error</source>
        <translation>Error al abrir el archivo</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERROR</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
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
        <translation>Nada que cambiar en %1</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operación no permitida</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Es una carpeta</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Sistema de archivos de solo lectura</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No queda espacio en el disco</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Cuota de disco agotada</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Archivo demasiado grande</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Error de entrada/salida</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Nombre de archivo demasiado largo</translation>
    </message>
</context>
<context>
    <name>MessageDialogs</name>
    <message>
        <source>Tervan RQ-M5 Clone Files (*.RQ5);;All Files (*.*)</source>
        <translation>Archivos de clonación Tervan RQ-M5 (*.RQ5);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*.*)</source>
        <translation>Archivos CSV (*.csv);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf);;All Files (*.*)</source>
        <translation>Archivos PDF (*.pdf);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Text Files (*.txt);;All Files (*.*)</source>
        <translation>Archivos de texto (*.txt);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;All Files (*.*)</source>
        <translation>Imágenes (*.png *.svg);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>Exportar lista</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>Save as Text</source>
        <translation>Guardar como texto</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>&amp;Copy Command</source>
        <translation>&amp;Copiar orden</translation>
    </message>
</context>
<context>
    <name>Modify</name>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secreto</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>Portadora</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inverso</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Modulation Mode</source>
        <translation>Modo de modulación</translation>
    </message>
    <message>
        <source>Tuning Step</source>
        <translation>Paso de sintonía</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Desplazamiento</translation>
    </message>
</context>
<context>
    <name>Parts</name>
    <message>
        <source>&amp;Frequency</source>
        <translation>&amp;Frecuencia</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modo</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation>&amp;Paso</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;Opción</translation>
    </message>
    <message>
        <source>Secret &amp;code</source>
        <translation>Código &amp;secreto</translation>
    </message>
    <message>
        <source>T&amp;rain tone</source>
        <translation>&amp;Tono ferroviario</translation>
    </message>
    <message>
        <source>CTCSS &amp;tone</source>
        <translation>Tono &amp;CTCSS</translation>
    </message>
    <message>
        <source>S&amp;hift</source>
        <translation>&amp;Desplazamiento</translation>
    </message>
    <message>
        <source>Shift fre&amp;quency</source>
        <translation>Frec. de desp&amp;lazamiento</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Nota</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Om&amp;itir</translation>
    </message>
    <message>
        <source>&amp;Enabled</source>
        <translation>&amp;Activado</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Muestra ayuda sobre las opciones de la línea de órdenes.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Muestra ayuda, incluidas las opciones propias de Qt.</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Muestra la versión.</translation>
    </message>
</context>
<context>
    <name>QPrintPreviewDialog</name>
    <message>
        <source>Page setup</source>
        <translation>Configurar página</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
</context>
<context>
    <name>QSerialPort</name>
    <message>
        <source>Permission error while locking the device</source>
        <translation>no se puede bloquear el dispositivo</translation>
    </message>
    <message>
        <source>Permission error while creating lock file</source>
        <translation>no se puede crear el archivo de bloqueo</translation>
    </message>
    <message>
        <source>Error reading from device</source>
        <translation>error al leer del dispositivo</translation>
    </message>
    <message>
        <source>Error writing to device</source>
        <translation>error al escribir en el dispositivo</translation>
    </message>
    <message>
        <source>Operation timed out</source>
        <translation>tiempo de espera agotado</translation>
    </message>
    <message>
        <source>Unsupported open mode</source>
        <translation>modo de apertura no admitido</translation>
    </message>
</context>
<context>
    <name>SavePrompts</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Archivo: %1</translation>
    </message>
    <message>
        <source>The file was removed or renamed by another program.</source>
        <translation>Otro programa eliminó el archivo o le cambió el nombre.</translation>
    </message>
    <message>
        <source>Overwrite makes a file of this name again.</source>
        <translation>Sobrescribir vuelve a crear un archivo con este nombre.</translation>
    </message>
    <message>
        <source>The file was changed by another program.</source>
        <translation>Otro programa modificó el archivo.</translation>
    </message>
    <message>
        <source>Overwrite puts your version in its place, and what the other program saved is lost. Save As keeps both.</source>
        <translation>Sobrescribir pone su versión en lugar de la otra, y lo que guardó el otro programa se pierde. Guardar como conserva ambas.</translation>
    </message>
    <message>
        <source>The file has more than one name.</source>
        <translation>El archivo tiene más de un nombre.</translation>
    </message>
    <message>
        <source>File: %1
It is one of %2 names (hard links) of the same file. A save gives this name a file of its own; the others keep the old contents.</source>
        <translation>Archivo: %1
Es uno de los %2 nombres (enlaces duros) del mismo archivo. Al guardar, este nombre recibe un archivo propio; los demás conservan el contenido anterior.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>These notes keep the file from being opened.</source>
        <translation>Estas notas impiden abrir el archivo.</translation>
    </message>
    <message>
        <source>Commas become semicolons, quotes apostrophes:
%1

In Place keeps the old file as %2.</source>
        <translation>Las comas pasan a punto y coma y las comillas a apóstrofos:
%1

Reemplazar conserva el archivo anterior como %2.</translation>
    </message>
    <message>
        <source>In Place</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>%1 was no clone file; what it was is kept as %2.</source>
        <translation>%1 no era un archivo de clonación; lo que contenía se conserva como %2.</translation>
    </message>
    <message>
        <source>Saved, but a clone file cannot hold these values; they read back otherwise: %1.</source>
        <translation>Guardado, pero un archivo de clonación no admite estos valores y se leen de otro modo al abrirlo: %1.</translation>
    </message>
    <message>
        <source>Saved, but not all that belonged to the old file could be kept: %1.</source>
        <translation>Guardado, pero no se pudo conservar todo lo que pertenecía al archivo anterior: %1.</translation>
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
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Predefinido</translation>
    </message>
    <message>
        <source>Busy Scan</source>
        <translation>Por señal (Busy)</translation>
    </message>
    <message>
        <source>Timer Scan</source>
        <translation>Por tiempo (Timer)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>The receiver&apos;s model region: its bands, limits and presets</source>
        <translation>La región del receptor: sus bandas, límites y canales predefinidos</translation>
    </message>
    <message>
        <source>Operating Mode</source>
        <translation>Modo de operación</translation>
    </message>
    <message>
        <source>What the receiver tunes with</source>
        <translation>Con qué sintoniza el receptor</translation>
    </message>
    <message>
        <source>Scan Mode</source>
        <translation>Modo de exploración</translation>
    </message>
    <message>
        <source>When a scan that has stopped on a signal goes on</source>
        <translation>Cuándo continúa una exploración que se detuvo en una señal</translation>
    </message>
    <message>
        <source>V&amp;olume</source>
        <translation>V&amp;olumen</translation>
    </message>
    <message>
        <source>Volume, 0 to 50</source>
        <translation>Volumen, de 0 a 50</translation>
    </message>
    <message>
        <source>S&amp;quelch</source>
        <translation>S&amp;quelch</translation>
    </message>
    <message>
        <source>Squelch, 0 to 9</source>
        <translation>Squelch, de 0 a 9</translation>
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
        <translation>Pulsar</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silencio</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Iluminación</translation>
    </message>
    <message>
        <source>How long the display stays lit</source>
        <translation>Cuánto tiempo queda iluminada la pantalla</translation>
    </message>
    <message>
        <source>Auto Power Off (minutes)</source>
        <translation>Apagado auto. (min)</translation>
    </message>
    <message>
        <source>After how many minutes without use the receiver switches itself off</source>
        <translation>Tras cuántos minutos sin uso se apaga el receptor</translation>
    </message>
    <message>
        <source>Bug Sensitive Level</source>
        <translation>Sensibilidad antiescuchas</translation>
    </message>
    <message>
        <source>How sensitive the search for hidden transmitters is</source>
        <translation>Sensibilidad de la búsqueda de transmisores ocultos</translation>
    </message>
    <message>
        <source>MONI Key Function</source>
        <translation>Función tecla MONI</translation>
    </message>
    <message>
        <source>Whether the MONI key works while it is pushed or until it is pushed again</source>
        <translation>Si la tecla MONI actúa mientras se pulsa o hasta que se pulsa otra vez</translation>
    </message>
    <message>
        <source>MONI Key</source>
        <translation>Tecla MONI</translation>
    </message>
    <message>
        <source>What the MONI key does</source>
        <translation>Qué hace la tecla MONI</translation>
    </message>
    <message>
        <source>Power and keys</source>
        <translation>Alimentación y teclas</translation>
    </message>
    <message>
        <source>Batter&amp;y Save</source>
        <translation>Ahorro de &amp;batería</translation>
    </message>
    <message>
        <source>Save the battery while no signal is received</source>
        <translation>Ahorra batería mientras no se recibe señal</translation>
    </message>
    <message>
        <source>&amp;Keylock</source>
        <translation>Blo&amp;queo de teclas</translation>
    </message>
    <message>
        <source>Lock the receiver&apos;s keys</source>
        <translation>Bloquea las teclas del receptor</translation>
    </message>
    <message>
        <source>Write &amp;Protect</source>
        <translation>Protección &amp;de escritura</translation>
    </message>
    <message>
        <source>Protect the receiver&apos;s memory channels from being overwritten on its keys</source>
        <translation>Impide que las teclas del receptor sobrescriban los canales de memoria</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>&amp;Beep</source>
        <translation>&amp;Pitido</translation>
    </message>
    <message>
        <source>Beep when a key is pressed</source>
        <translation>Pita al pulsar una tecla</translation>
    </message>
    <message>
        <source>Be&amp;ll</source>
        <translation>&amp;Timbre</translation>
    </message>
    <message>
        <source>Ring when a signal comes in</source>
        <translation>Suena cuando llega una señal</translation>
    </message>
    <message>
        <source>Reception</source>
        <translation>Recepción</translation>
    </message>
    <message>
        <source>Atten&amp;uator</source>
        <translation>Ate&amp;nuador</translation>
    </message>
    <message>
        <source>Weaken strong signals</source>
        <translation>Atenúa las señales fuertes</translation>
    </message>
    <message>
        <source>Aut&amp;o Step</source>
        <translation>Pas&amp;o automático</translation>
    </message>
    <message>
        <source>Let the receiver choose the tuning step of a band</source>
        <translation>El receptor elige el paso de sintonía de la banda</translation>
    </message>
    <message>
        <source>Antennas</source>
        <translation>Antenas</translation>
    </message>
    <message>
        <source>Earphone &amp;Antenna</source>
        <translation>Antena de auri&amp;cular</translation>
    </message>
    <message>
        <source>Use the cord of the earphone as antenna</source>
        <translation>Usa el cable del auricular como antena</translation>
    </message>
    <message>
        <source>&amp;SW bar antenna</source>
        <translation>Antena de &amp;ferrita OC</translation>
    </message>
    <message>
        <source>Use the built-in bar antenna on short wave</source>
        <translation>Usa la antena de ferrita interna en onda corta</translation>
    </message>
    <message>
        <source>A&amp;M bar antenna</source>
        <translation>Antena de ferrita A&amp;M</translation>
    </message>
    <message>
        <source>Use the built-in bar antenna on medium wave</source>
        <translation>Usa la antena de ferrita interna en onda media</translation>
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
        <translation>No hay canales</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>stored twice</source>
        <translation>duplicado</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>bloqueado</translation>
    </message>
</context>
<context>
    <name>TransferProgress</name>
    <message>
        <source>Reading settings and VFO bands</source>
        <translation>Leyendo ajustes y bandas VFO</translation>
    </message>
    <message>
        <source>Reading banks and flags</source>
        <translation>Leyendo bancos y marcas</translation>
    </message>
    <message>
        <source>Reading channels</source>
        <translation>Leyendo canales</translation>
    </message>
    <message>
        <source>Reading again to compare</source>
        <translation>Leyendo de nuevo para comparar</translation>
    </message>
    <message>
        <source>Backup of settings and VFO bands</source>
        <translation>Copia de ajustes y bandas VFO</translation>
    </message>
    <message>
        <source>Backup of banks and flags</source>
        <translation>Copia de bancos y marcas</translation>
    </message>
    <message>
        <source>Backup of channels</source>
        <translation>Copia de canales</translation>
    </message>
    <message>
        <source>Writing settings and VFO bands</source>
        <translation>Escribiendo ajustes y bandas VFO</translation>
    </message>
    <message>
        <source>Writing banks and flags</source>
        <translation>Escribiendo bancos y marcas</translation>
    </message>
    <message>
        <source>Writing channels</source>
        <translation>Escribiendo canales</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Verificando</translation>
    </message>
    <message>
        <source>Reading what is not known</source>
        <translation>Leyendo lo que no se conoce</translation>
    </message>
    <message>
        <source>Reading what is replaced</source>
        <translation>Leyendo lo que se reemplaza</translation>
    </message>
    <message>
        <source>Writing changes</source>
        <translation>Escribiendo cambios</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 de %3</translation>
    </message>
    <message>
        <source>%1, about %2 left</source>
        <translation>%1, faltan aprox. %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Reads, edits and writes the memory of an RQ-M5 receiver.</source>
        <translation>Lee, edita y escribe la memoria de un receptor RQ-M5.</translation>
    </message>
    <message>
        <source>Clone file to open.</source>
        <translation>Archivo de clonación que se abrirá.</translation>
    </message>
</context>
<context>
    <name>rqm5::BackupCommands</name>
    <message>
        <source>Write</source>
        <translation>Escribir</translation>
    </message>
    <message>
        <source>Write this backup to the receiver?</source>
        <translation>¿Escribir esta copia de seguridad en el receptor?</translation>
    </message>
    <message>
        <source>%1
It replaces in the receiver: %2. The open image stays as it is.</source>
        <translation>%1
Reemplaza en el receptor: %2. La imagen abierta queda como está.</translation>
    </message>
</context>
<context>
    <name>rqm5::BankList</name>
    <message>
        <source>The group of channels that the table shows and a transfer moves</source>
        <translation>El grupo de canales que muestra la tabla y que se transfiere</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>rqm5::BankMoveOffer</name>
    <message>
        <source>&amp;Leave the rows where they are</source>
        <translation>De&amp;jar las filas donde están</translation>
    </message>
    <message>
        <source>Nothing moves; the channels named here belong to other banks now</source>
        <translation>No se mueve nada; los canales aquí indicados pasan a otros bancos</translation>
    </message>
    <message>
        <source>&amp;Move the channels so that every bank keeps its own</source>
        <translation>&amp;Mover los canales para que cada banco conserve los suyos</translation>
    </message>
    <message>
        <source>What a smaller bank has no room for goes behind all banks; a larger one gets empty rows</source>
        <translation>Lo que no cabe en un banco más pequeño va detrás de todos los bancos; uno más grande recibe filas vacías</translation>
    </message>
    <message>
        <source>Channels that change their bank with these sizes: %1. Others that change their number: %2.</source>
        <translation>Canales que cambian de banco con estos tamaños: %1. Otros que cambian de número: %2.</translation>
    </message>
</context>
<context>
    <name>rqm5::BankPage</name>
    <message>
        <source>Number of channels in bank %1; all banks together hold 1000 at most</source>
        <translation>Número de canales del banco %1; entre todos los bancos, 1000 como máximo</translation>
    </message>
    <message>
        <source>Link bank %1</source>
        <translation>Enlazar el banco %1</translation>
    </message>
    <message>
        <source>Scan bank %1 together with the other linked banks</source>
        <translation>Explora el banco %1 junto con los demás bancos enlazados</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>Read Ban&amp;k</source>
        <translation>Leer ban&amp;co</translation>
    </message>
    <message>
        <source>Write &amp;Bank</source>
        <translation>Escribir &amp;banco</translation>
    </message>
    <message>
        <source>Read bank sizes and links from the receiver</source>
        <translation>Lee del receptor los tamaños y enlaces de bancos</translation>
    </message>
    <message>
        <source>Write bank sizes and links to the receiver</source>
        <translation>Escribe en el receptor los tamaños y enlaces de bancos</translation>
    </message>
    <message>
        <source>Channels in all banks (1000 at most):</source>
        <translation>Canales en los bancos (máx. 1000):</translation>
    </message>
    <message>
        <source>In no bank: %1 rows, %2 with a channel</source>
        <translation>En ningún banco: %1 filas, %2 con canal</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERROR</translation>
    </message>
    <message>
        <source>The total of the number of channels exceeds 1000.
Please set for the total of the channel to become 1000 or less.</source>
        <translation>El número total de canales supera 1000.
Ajuste los tamaños para que el total sea 1000 o menos.</translation>
    </message>
</context>
<context>
    <name>rqm5::BankStrip</name>
    <message>
        <source>What of each bank holds channels; a click goes to the bank&apos;s size</source>
        <translation>Qué parte de cada banco contiene canales; un clic lleva al tamaño del banco</translation>
    </message>
    <message>
        <source>All banks: %1 of %2 rows hold a channel, %3 rows are in no bank</source>
        <translation>Todos los bancos: %1 de %2 filas contienen un canal, %3 filas no están en ningún banco</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>En ningún banco</translation>
    </message>
    <message>
        <source>%1: %2 of %3 rows hold a channel</source>
        <translation>%1: %2 de %3 filas contienen un canal</translation>
    </message>
    <message>
        <source>no bank</source>
        <translation>sin banco</translation>
    </message>
</context>
<context>
    <name>rqm5::ChangeCommands</name>
    <message>
        <source>Write Changes</source>
        <translation>Escribir cambios</translation>
    </message>
    <message>
        <source>What the receiver holds must be read first.</source>
        <translation>Primero hay que leer lo que contiene el receptor.</translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation>&amp;Leer</translation>
    </message>
    <message>
        <source>Enable flags of other rows replaced by the receiver&apos;s: %1.</source>
        <translation>Marcas de activación de otras filas tomadas del receptor: %1.</translation>
    </message>
</context>
<context>
    <name>rqm5::ChannelTable</name>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Scrt</source>
        <translation>Secr.</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>Portadora</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Despl.</translation>
    </message>
    <message>
        <source>ShiftFreq.</source>
        <translation>Frec. despl.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>rqm5::ClipboardCommands</name>
    <message>
        <source>There is no channel in it.</source>
        <translation>No contiene ningún canal.</translation>
    </message>
    <message>
        <source>Copy rows of this program, or lines with a frequency each: of a spreadsheet, a web page or a text.</source>
        <translation>Copie filas de este programa, o líneas con una frecuencia cada una: de una hoja de cálculo, una página web o un texto.</translation>
    </message>
    <message>
        <source>Paste these columns onto the selected rows:</source>
        <translation>Pegar estas columnas en las filas seleccionadas:</translation>
    </message>
    <message>
        <source>Give the selected rows these columns of the first of them:</source>
        <translation>Dar a las filas seleccionadas estas columnas de la primera de ellas:</translation>
    </message>
</context>
<context>
    <name>rqm5::ColumnWidths</name>
    <message>
        <source>&amp;Usual Column Widths</source>
        <translation>Anchos de columna &amp;habituales</translation>
    </message>
</context>
<context>
    <name>rqm5::CompareTree</name>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Open image</source>
        <translation>Imagen abierta</translation>
    </message>
    <message>
        <source>Other side</source>
        <translation>Otro lado</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Qué difiere</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>difiere</translation>
    </message>
</context>
<context>
    <name>rqm5::DiagnosticsPanel</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>Bloc&amp;k address</source>
        <translation>Dirección del bloq&amp;ue</translation>
    </message>
    <message>
        <source>Read Block</source>
        <translation>Leer bloque</translation>
    </message>
    <message>
        <source>Sends one read command and shows the reply as it comes</source>
        <translation>Envía una orden de lectura y muestra la respuesta tal como llega</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Respuesta</translation>
    </message>
    <message>
        <source>Link Test</source>
        <translation>Prueba de conexión</translation>
    </message>
    <message>
        <source>Reads one block a hundred times and shows the round-trip times</source>
        <translation>Lee un bloque cien veces y muestra los tiempos de ida y vuelta</translation>
    </message>
    <message>
        <source>Exchanges with the receiver</source>
        <translation>Intercambios con el receptor</translation>
    </message>
    <message>
        <source>Save Log...</source>
        <translation>Guardar registro...</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Borrar registro</translation>
    </message>
</context>
<context>
    <name>rqm5::ExchangeLog</name>
    <message>
        <source>(the port failed)</source>
        <translation>(falló el puerto)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Respuesta</translation>
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
        <translation>Guardar cambios</translation>
    </message>
    <message>
        <source>Save changes to settings?</source>
        <translation>¿Guardar los cambios?</translation>
    </message>
    <message>
        <source>The file is saved, but a clone file cannot hold notes with a comma or quotes. While these notes stay as they are, the file cannot be opened again or shows them changed.</source>
        <translation>El archivo se guardó, pero un archivo de clonación no admite notas con comas o comillas. Mientras estas notas sigan así, el archivo no se podrá volver a abrir o las mostrará cambiadas.</translation>
    </message>
    <message>
        <source>The file is written. A spreadsheet may run these notes as formulas.</source>
        <translation>El archivo se escribió. Una hoja de cálculo podría ejecutar estas notas como fórmulas.</translation>
    </message>
    <message>
        <source>There was nothing to repair; the file is open.</source>
        <translation>No había nada que reparar; el archivo está abierto.</translation>
    </message>
    <message>
        <source>Repaired notes: %1</source>
        <translation>Notas reparadas: %1</translation>
    </message>
    <message>
        <source> repaired</source>
        <translation> reparado</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
</context>
<context>
    <name>rqm5::FillBar</name>
    <message>
        <source>no rows</source>
        <translation>sin filas</translation>
    </message>
    <message>
        <source>%1 of %2 rows hold a channel</source>
        <translation>%1 de %2 filas contienen un canal</translation>
    </message>
</context>
<context>
    <name>rqm5::FilterBox</name>
    <message>
        <source>All rows</source>
        <translation>Todas las filas</translation>
    </message>
    <message>
        <source>With a channel</source>
        <translation>Con canal</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activados</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivados</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Omitidos</translation>
    </message>
    <message>
        <source>With a note</source>
        <translation>Con nota</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplicados</translation>
    </message>
    <message>
        <source>Which rows of the group the table shows</source>
        <translation>Qué filas del grupo muestra la tabla</translation>
    </message>
    <message>
        <source>Sh&amp;ow:</source>
        <translation>&amp;Filtro:</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 de %2 filas</translation>
    </message>
</context>
<context>
    <name>rqm5::FindBar</name>
    <message>
        <source>Find channels</source>
        <translation>Buscar canales</translation>
    </message>
    <message>
        <source>Find (Ctrl+F)</source>
        <translation>Buscar (Ctrl+F)</translation>
    </message>
    <message>
        <source>Frequency, note, mode or tone, in all groups. Enter goes there, F3 to the next</source>
        <translation>Frecuencia, nota, modo o tono, en todos los grupos. Intro va al canal, F3 al siguiente</translation>
    </message>
    <message>
        <source>Channels found</source>
        <translation>Canales encontrados</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se encontró nada</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>Encontrados: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>rqm5::HistoryCommands</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Changes, the latest at the end</source>
        <translation>Cambios, el último al final</translation>
    </message>
    <message>
        <source>A click takes back or makes again every change down to there</source>
        <translation>Un clic deshace o rehace todos los cambios hasta ese punto</translation>
    </message>
    <message>
        <source>Before these changes</source>
        <translation>Antes de estos cambios</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Des&amp;hacer</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>Des&amp;hacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportCommands</name>
    <message>
        <source> list</source>
        <translation> lista</translation>
    </message>
    <message>
        <source>Channels written to %1: %2.</source>
        <translation>Canales escritos en %1: %2.</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportForm</name>
    <message>
        <source>Tab</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto y coma</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Coma</translation>
    </message>
    <message>
        <source>None: one field a line</source>
        <translation>Ninguno: un campo por línea</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Detected: %1</source>
        <translation>Detectado: %1</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>Detectar</translation>
    </message>
    <message>
        <source>The first &amp;line holds titles</source>
        <translation>La primera &amp;línea contiene títulos</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>Ol&amp;vidar</translation>
    </message>
    <message>
        <source>Type a name and press Keep to read other lists in the same way.</source>
        <translation>Escriba un nombre y pulse Guardar para leer del mismo modo otras listas.</translation>
    </message>
    <message>
        <source>&amp;Encoding</source>
        <translation>&amp;Codificación</translation>
    </message>
    <message>
        <source>&amp;Between fields</source>
        <translation>&amp;Separador</translation>
    </message>
    <message>
        <source>&amp;Decimals begin with</source>
        <translation>Signo &amp;decimal</translation>
    </message>
    <message>
        <source>&amp;Mapping</source>
        <translation>&amp;Asignación</translation>
    </message>
    <message>
        <source>either, each number by itself</source>
        <translation>cualquiera, según cada número</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportTarget</name>
    <message>
        <source>To the &amp;rows that the list names</source>
        <translation>A las &amp;filas que indica la lista</translation>
    </message>
    <message>
        <source>From this row &amp;on</source>
        <translation>D&amp;esde esta fila</translation>
    </message>
    <message>
        <source>&amp;Skip rows that hold a channel</source>
        <translation>&amp;Omitir filas con canal</translation>
    </message>
    <message>
        <source>Bank or group</source>
        <translation>Banco o grupo</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>En ningún banco</translation>
    </message>
</context>
<context>
    <name>rqm5::ListTableModel</name>
    <message>
        <source>Column %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>is</source>
        <translation>es</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryPage</name>
    <message>
        <source>Ban&amp;k:</source>
        <translation>&amp;Grupo:</translation>
    </message>
    <message>
        <source>Read &amp;Memory</source>
        <translation>Leer &amp;memoria</translation>
    </message>
    <message>
        <source>Write Memor&amp;y</source>
        <translation>Escribi&amp;r memoria</translation>
    </message>
    <message>
        <source>Read the channels of the selected group from the receiver</source>
        <translation>Lee del receptor los canales del grupo seleccionado</translation>
    </message>
    <message>
        <source>Write the channels of the selected group to the receiver</source>
        <translation>Escribe en el receptor los canales del grupo seleccionado</translation>
    </message>
    <message>
        <source>E&amp;nable</source>
        <translation>A&amp;ctivar</translation>
    </message>
    <message>
        <source>Enable the selected channels</source>
        <translation>Activa los canales seleccionados</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;Desactivar</translation>
    </message>
    <message>
        <source>Disable the selected channels; they keep their contents</source>
        <translation>Desactiva los canales seleccionados; conservan su contenido</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>I&amp;nsertar</translation>
    </message>
    <message>
        <source>Insert an empty row among memory rows 0 to 199; the channel in row 199 is lost</source>
        <translation>Inserta una fila vacía en las filas de memoria 0 a 199; el canal de la fila 199 se pierde</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>Su&amp;primir</translation>
    </message>
    <message>
        <source>Delete a row among memory rows 0 to 199; the rows behind it move up</source>
        <translation>Suprime una de las filas de memoria 0 a 199; las filas siguientes suben</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Empty the selected channels</source>
        <translation>Borra los canales seleccionados</translation>
    </message>
    <message>
        <source>Ena&amp;ble All</source>
        <translation>Activar &amp;todo</translation>
    </message>
    <message>
        <source>Enable every channel shown</source>
        <translation>Activa todos los canales mostrados</translation>
    </message>
    <message>
        <source>Di&amp;sable All</source>
        <translation>Desact&amp;ivar todo</translation>
    </message>
    <message>
        <source>Disable every channel shown</source>
        <translation>Desactiva todos los canales mostrados</translation>
    </message>
    <message>
        <source>Clear &amp;All</source>
        <translation>Borrar t&amp;odo</translation>
    </message>
    <message>
        <source>Empty every channel shown</source>
        <translation>Borra todos los canales mostrados</translation>
    </message>
    <message>
        <source>Selected channel</source>
        <translation>Canal seleccionado</translation>
    </message>
    <message>
        <source>All channels shown</source>
        <translation>Canales mostrados</translation>
    </message>
    <message>
        <source>The offset is below 100 MHz.</source>
        <translation>El desplazamiento es inferior a 100 MHz.</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryTable</name>
    <message>
        <source>Memory channels</source>
        <translation>Canales de memoria</translation>
    </message>
    <message>
        <source>Enter edits the rows, typing a cell</source>
        <translation>Intro edita las filas; al teclear se edita una celda</translation>
    </message>
    <message>
        <source>An empty row begins with its frequency</source>
        <translation>Una fila vacía empieza por su frecuencia</translation>
    </message>
    <message>
        <source>This model does not have it</source>
        <translation>Este modelo no lo tiene</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryTableModel</name>
    <message>
        <source>In no bank</source>
        <translation>En ningún banco</translation>
    </message>
</context>
<context>
    <name>rqm5::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Cerrar este mensaje</translation>
    </message>
</context>
<context>
    <name>rqm5::ModifyForm</name>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Nota</translation>
    </message>
    <message>
        <source>&amp;Frequency</source>
        <translation>&amp;Frecuencia</translation>
    </message>
    <message>
        <source>Codes and tones</source>
        <translation>Códigos y tonos</translation>
    </message>
    <message>
        <source>&amp;Secret code</source>
        <translation>Código &amp;secreto</translation>
    </message>
    <message>
        <source>T&amp;rain tone</source>
        <translation>&amp;Tono ferroviario</translation>
    </message>
    <message>
        <source>&amp;CTCSS tone</source>
        <translation>Tono &amp;CTCSS</translation>
    </message>
    <message>
        <source>&amp;Offset Frequency</source>
        <translation>Frec. de &amp;desplazamiento</translation>
    </message>
    <message>
        <source>Offset Frequency</source>
        <translation>Frecuencia de desplazamiento</translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>What is blank stays as it is in each channel</source>
        <translation>Lo que está en blanco queda como está en cada canal</translation>
    </message>
</context>
<context>
    <name>rqm5::MoveCommands</name>
    <message>
        <source>Insert Row Here</source>
        <translation>Insertar fila aquí</translation>
    </message>
    <message>
        <source>There is no empty row behind it.</source>
        <translation>No hay ninguna fila vacía más abajo.</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 de %3)</translation>
    </message>
</context>
<context>
    <name>rqm5::NoteLine</name>
    <message>
        <source>&amp;Use ; and &apos;</source>
        <translation>&amp;Usar ; y &apos;</translation>
    </message>
    <message>
        <source>Put semicolons for commas and apostrophes for quotes, in this note and all that follow</source>
        <translation>Pone punto y coma en lugar de comas y apóstrofos en lugar de comillas, en esta nota y en todas las siguientes</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save.</source>
        <translation>Las comas o comillas de una nota se pierden al guardar.</translation>
    </message>
    <message>
        <source>A comma or quotes would not survive a save: replaced.</source>
        <translation>Las comas o comillas se perderían al guardar; se han reemplazado.</translation>
    </message>
</context>
<context>
    <name>rqm5::PlanTableModel</name>
    <message>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Holds now</source>
        <translation>Contiene ahora</translation>
    </message>
    <message>
        <source>What comes</source>
        <translation>Contenido nuevo</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vacía)</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>fila %1</translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation>Rechazada: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::PrintJob</name>
    <message>
        <source>Printing...</source>
        <translation>Imprimiendo...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>No printer is installed. Install one in the settings of the system, or print to a PDF file.</source>
        <translation>No hay ninguna impresora instalada. Instale una en la configuración del sistema o imprima en un archivo PDF.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot; any more. Choose another one, or print to a PDF file.</source>
        <translation>La impresora «%1» ya no existe. Elija otra o imprima en un archivo PDF.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not take the pages. Check that it is switched on and connected, choose another one, or print to a PDF file.</source>
        <translation>La impresora «%1» no acepta las páginas. Compruebe que está encendida y conectada, elija otra o imprima en un archivo PDF.</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERROR</translation>
    </message>
    <message>
        <source>The listing was not printed.</source>
        <translation>El listado no se imprimió.</translation>
    </message>
</context>
<context>
    <name>rqm5::QtSerialPort</name>
    <message>
        <source>no such device</source>
        <translation>no existe ese dispositivo</translation>
    </message>
    <message>
        <source>not a serial port</source>
        <translation>no es un puerto serie</translation>
    </message>
    <message>
        <source>not a serial port (%1)</source>
        <translation>no es un puerto serie (%1)</translation>
    </message>
    <message>
        <source>the device has gone</source>
        <translation>el dispositivo ha desaparecido</translation>
    </message>
</context>
<context>
    <name>rqm5::RecentFiles</name>
    <message>
        <source>Open Re&amp;cent</source>
        <translation>Abrir recien&amp;te</translation>
    </message>
    <message>
        <source>Open a clone file that was opened or saved lately</source>
        <translation>Abre un archivo de clonación abierto o guardado hace poco</translation>
    </message>
    <message>
        <source>&amp;Empty This List</source>
        <translation>&amp;Vaciar esta lista</translation>
    </message>
    <message>
        <source>The files stay; only the list forgets them</source>
        <translation>Los archivos se conservan; solo la lista los olvida</translation>
    </message>
</context>
<context>
    <name>rqm5::Recovery</name>
    <message>
        <source>changes that were in no file yet</source>
        <translation>cambios que aún no estaban en ningún archivo</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recuperación</translation>
    </message>
    <message>
        <source>What was read from the receiver could not be saved. It was kept.</source>
        <translation>Lo que se leyó del receptor no se pudo guardar. Se ha conservado.</translation>
    </message>
    <message>
        <source>The program ended before your changes were saved. They were kept.</source>
        <translation>El programa terminó antes de guardar sus cambios. Se han conservado.</translation>
    </message>
    <message>
        <source>File: %1
Kept: %2</source>
        <translation>Archivo: %1
Conservado: %2</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
</context>
<context>
    <name>rqm5::RowActions</name>
    <message>
        <source>&amp;Modify...</source>
        <translation>&amp;Modificar...</translation>
    </message>
    <message>
        <source>Edit the selected channels</source>
        <translation>Edita los canales seleccionados</translation>
    </message>
</context>
<context>
    <name>rqm5::RowCommands</name>
    <message>
        <source>Edit &gt; Undo brings it back.</source>
        <translation>Edición &gt; Deshacer lo recupera.</translation>
    </message>
    <message>
        <source>CLEAR OK</source>
        <translation>Confirmar borrado</translation>
    </message>
    <message>
        <source>Clear cannot be undone.
Are you sure that you want to do the clear?</source>
        <translation>El borrado no se puede deshacer.
¿Seguro que desea borrar?</translation>
    </message>
    <message>
        <source>Clear cannot be undone.
Are you sure that you want to clear all memory?</source>
        <translation>El borrado no se puede deshacer.
¿Seguro que desea borrar toda la memoria?</translation>
    </message>
    <message>
        <source>DELETE OK</source>
        <translation>Confirmar supresión</translation>
    </message>
    <message>
        <source>Delete cannot be undone.
Are you sure that you want to do the delete?</source>
        <translation>La supresión no se puede deshacer.
¿Seguro que desea suprimir?</translation>
    </message>
</context>
<context>
    <name>rqm5::Settings1Page</name>
    <message>
        <source>VFO &amp;bands:</source>
        <translation>&amp;Bandas VFO:</translation>
    </message>
    <message>
        <source>A sibling model; kept when a file or receiver has it</source>
        <translation>Un modelo afín; se conserva si lo tiene un archivo o receptor</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Rea&amp;d Settings</source>
        <translation>Leer a&amp;justes</translation>
    </message>
    <message>
        <source>Write Settin&amp;gs</source>
        <translation>Escribi&amp;r ajustes</translation>
    </message>
    <message>
        <source>Read all settings and VFO bands from the receiver</source>
        <translation>Lee del receptor todos los ajustes y las bandas VFO</translation>
    </message>
    <message>
        <source>Write all settings, VFO bands and presets to the receiver</source>
        <translation>Escribe en el receptor todos los ajustes, bandas VFO y canales predefinidos</translation>
    </message>
</context>
<context>
    <name>rqm5::Settings2Page</name>
    <message>
        <source>Rea&amp;d Settings</source>
        <translation>Leer a&amp;justes</translation>
    </message>
    <message>
        <source>Write Settin&amp;gs</source>
        <translation>Escribi&amp;r ajustes</translation>
    </message>
    <message>
        <source>Read all settings and VFO bands from the receiver</source>
        <translation>Lee del receptor todos los ajustes y las bandas VFO</translation>
    </message>
    <message>
        <source>Write all settings, VFO bands and presets to the receiver</source>
        <translation>Escribe en el receptor todos los ajustes, bandas VFO y canales predefinidos</translation>
    </message>
</context>
<context>
    <name>rqm5::SpectrumDock</name>
    <message>
        <source>Spectrum</source>
        <translation>Espectro</translation>
    </message>
    <message>
        <source>Zoom in (+, or the wheel)</source>
        <translation>Acercar (+ o la rueda)</translation>
    </message>
    <message>
        <source>Zoom out (-, or the wheel)</source>
        <translation>Alejar (- o la rueda)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Show the whole range (Home)</source>
        <translation>Muestra todo el margen (Inicio)</translation>
    </message>
    <message>
        <source>Save Picture...</source>
        <translation>Guardar imagen...</translation>
    </message>
    <message>
        <source>Save what is shown as PNG or SVG</source>
        <translation>Guarda lo mostrado como PNG o SVG</translation>
    </message>
</context>
<context>
    <name>rqm5::SpectrumView</name>
    <message>
        <source>Spectrum of the channels</source>
        <translation>Espectro de los canales</translation>
    </message>
    <message>
        <source>Arrow keys go from channel to channel, Enter selects one; plus, minus and Home zoom</source>
        <translation>Las flechas van de canal en canal, Intro selecciona uno; más, menos e Inicio cambian la escala</translation>
    </message>
    <message>
        <source>%1 MHz</source>
        <translation>%1 MHz</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>stored twice</source>
        <translation>duplicado</translation>
    </message>
</context>
<context>
    <name>rqm5::StatusBar</name>
    <message>
        <source>Nothing was imported: the file holds no record of this receiver and no list.</source>
        <translation>No se importó nada: el archivo no contiene registros de este receptor ni una lista.</translation>
    </message>
    <message>
        <source>Sibling model</source>
        <translation>Modelo afín</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Channels enabled: %1</source>
        <translation>Canales activados: %1</translation>
    </message>
    <message>
        <source>COM %1: %2</source>
        <translation>COM %1: %2</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>sin dispositivo</translation>
    </message>
    <message>
        <source>%1, not present</source>
        <translation>%1, no presente</translation>
    </message>
</context>
<context>
    <name>rqm5::ToolBar</name>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
</context>
<context>
    <name>rqm5::TransferBar</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Progreso de la transferencia</translation>
    </message>
    <message>
        <source>Channel being transferred</source>
        <translation>Canal que se transfiere</translation>
    </message>
    <message>
        <source>The channel that is being transferred</source>
        <translation>El canal que se está transfiriendo</translation>
    </message>
    <message>
        <source>End the transfer now; what was transferred stays</source>
        <translation>Termina ya la transferencia; lo transferido se conserva</translation>
    </message>
</context>
<context>
    <name>rqm5::TransferCommands</name>
    <message>
        <source>Read</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>%1. Check the cable, then read again.</source>
        <translation>%1. Compruebe el cable y lea de nuevo.</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Read in %1 to compare; the open image is as it was.</source>
        <translation>Leído en %1 para comparar; la imagen abierta queda como estaba.</translation>
    </message>
    <message>
        <source>You had unsaved changes; Undo brings back what was there before the read.</source>
        <translation>Tenía cambios sin guardar; Deshacer recupera lo que había antes de la lectura.</translation>
    </message>
    <message>
        <source>Old backups deleted: %1.</source>
        <translation>Copias antiguas eliminadas: %1.</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Escribir</translation>
    </message>
    <message>
        <source>The receiver is another model. Write to it all the same?</source>
        <translation>El receptor es de otro modelo. ¿Escribir de todos modos?</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>No se escribió nada.</translation>
    </message>
    <message>
        <source>Enable flags of other rows replaced by the receiver&apos;s: %1.</source>
        <translation>Marcas de activación de otras filas tomadas del receptor: %1.</translation>
    </message>
    <message>
        <source>The write was cancelled.</source>
        <translation>La escritura se canceló.</translation>
    </message>
    <message>
        <source>The receiver does not hold what was written. Write again.</source>
        <translation>El receptor no contiene lo que se escribió. Escriba de nuevo.</translation>
    </message>
</context>
<context>
    <name>rqm5::VfoTable</name>
    <message>
        <source>VFO bands</source>
        <translation>Bandas VFO</translation>
    </message>
    <message>
        <source>One VFO setting per band. Enter or a double click edits the selected one.</source>
        <translation>Un ajuste VFO por banda. Intro o un doble clic edita el seleccionado.</translation>
    </message>
</context>
<context>
    <name>rqm5::WriteOptionItems</name>
    <message>
        <source>Backup Folder</source>
        <translation>Carpeta de copias</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgAbout</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copies all of this, for a bug report</source>
        <translation>Copia todo esto para un informe de error</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgBackups</name>
    <message>
        <source>rows: %1</source>
        <translation>filas: %1</translation>
    </message>
    <message>
        <source>VFO bands: %1</source>
        <translation>bandas VFO: %1</translation>
    </message>
    <message>
        <source>bank layout</source>
        <translation>distribución de bancos</translation>
    </message>
    <message>
        <source>settings: %1</source>
        <translation>ajustes: %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Guardada</translation>
    </message>
    <message>
        <source>Holds</source>
        <translation>Contiene</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>What differs from the open image</source>
        <translation>Qué difiere de la imagen abierta</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>Carpeta: %1</translation>
    </message>
    <message>
        <source>Keep no &amp;more than</source>
        <translation>Conservar un &amp;máximo de</translation>
    </message>
    <message>
        <source> backups</source>
        <translation> copias</translation>
    </message>
    <message>
        <source>Keep no &amp;longer than</source>
        <translation>Conservar &amp;hasta</translation>
    </message>
    <message>
        <source> days</source>
        <translation> días</translation>
    </message>
    <message>
        <source>The oldest are deleted when the next backup has been kept</source>
        <translation>Las más antiguas se eliminan al guardar la siguiente copia</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Open the backup as a clone file</source>
        <translation>Abre la copia como archivo de clonación</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparar</translation>
    </message>
    <message>
        <source>List what differs from the open image, and take from the backup</source>
        <translation>Muestra qué difiere de la imagen abierta y permite tomarlo de la copia</translation>
    </message>
    <message>
        <source>&amp;Write Back...</source>
        <translation>&amp;Restaurar...</translation>
    </message>
    <message>
        <source>Write what the backup holds to the receiver; the open image stays as it is</source>
        <translation>Escribe en el receptor lo que contiene la copia; la imagen abierta queda como está</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>&amp;Eliminar...</translation>
    </message>
    <message>
        <source>Delete the selected backups</source>
        <translation>Elimina las copias seleccionadas</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>Delete the selected backups? They cannot be brought back.</source>
        <translation>¿Eliminar las copias seleccionadas? No se podrán recuperar.</translation>
    </message>
    <message>
        <source>Not every backup could be deleted. Look who may write to the folder.</source>
        <translation>No se pudieron eliminar todas las copias. Compruebe quién puede escribir en la carpeta.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgCOM</name>
    <message>
        <source>COM Port Setup</source>
        <translation>Configurar puerto COM</translation>
    </message>
    <message>
        <source>COM %1</source>
        <translation>COM %1</translation>
    </message>
    <message>
        <source>&amp;Found now:</source>
        <translation>&amp;Encontrados:</translation>
    </message>
    <message>
        <source>no serial port</source>
        <translation>ningún puerto serie</translation>
    </message>
    <message>
        <source>choose a device</source>
        <translation>elija un dispositivo</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not present</source>
        <translation>no presente</translation>
    </message>
    <message>
        <source>Set by the environment variable RQM5_COM%1</source>
        <translation>Lo fija la variable de entorno RQM5_COM%1</translation>
    </message>
    <message>
        <source>The device that this number stands for; empty for the usual one</source>
        <translation>El dispositivo que corresponde a este número; vacío para el habitual</translation>
    </message>
    <message>
        <source>&amp;Device of COM %1:</source>
        <translation>&amp;Dispositivo de COM %1:</translation>
    </message>
    <message>
        <source>Find the &amp;Receiver</source>
        <translation>Buscar el &amp;receptor</translation>
    </message>
    <message>
        <source>Send one read command to each port that is there and free</source>
        <translation>Envía una orden de lectura a cada puerto presente y libre</translation>
    </message>
    <message>
        <source>Asking %1...</source>
        <translation>Preguntando a %1...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>De&amp;tener</translation>
    </message>
    <message>
        <source>unknown model</source>
        <translation>modelo desconocido</translation>
    </message>
    <message>
        <source>A receiver (%1) answers at %2. OK takes it as COM %3.</source>
        <translation>Un receptor (%1) responde en %2. Aceptar lo toma como COM %3.</translation>
    </message>
    <message>
        <source>No receiver answers. Ports asked: %1. Switch the receiver on, check its cable, and try again.</source>
        <translation>No responde ningún receptor. Puertos consultados: %1. Encienda el receptor, compruebe el cable e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>In use by another program: %1.</source>
        <translation>En uso por otro programa: %1.</translation>
    </message>
    <message>
        <source>There is no port to ask. Plug the receiver&apos;s cable in.</source>
        <translation>No hay ningún puerto que consultar. Conecte el cable del receptor.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgCompare</name>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Qué difiere</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>&amp;Archivo...</translation>
    </message>
    <message>
        <source>Compare with a clone file</source>
        <translation>Compara con un archivo de clonación</translation>
    </message>
    <message>
        <source>&amp;Backup...</source>
        <translation>&amp;Copia...</translation>
    </message>
    <message>
        <source>Compare with a backup</source>
        <translation>Compara con una copia de seguridad</translation>
    </message>
    <message>
        <source>&amp;Last Read</source>
        <translation>Ú&amp;ltima lectura</translation>
    </message>
    <message>
        <source>Compare with what the receiver held when it was last read</source>
        <translation>Compara con lo que contenía el receptor en la última lectura</translation>
    </message>
    <message>
        <source>&amp;Receiver Now</source>
        <translation>&amp;Receptor ahora</translation>
    </message>
    <message>
        <source>Read the receiver and compare with what it holds; the open image stays as it is</source>
        <translation>Lee el receptor y compara con su contenido; la imagen abierta queda como está</translation>
    </message>
    <message>
        <source>Compare the open image with:</source>
        <translation>Comparar la imagen abierta con:</translation>
    </message>
    <message>
        <source>All differences</source>
        <translation>Todas las diferencias</translation>
    </message>
    <message>
        <source>Only here</source>
        <translation>Solo aquí</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>Solo allí</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Movido</translation>
    </message>
    <message>
        <source>Changed in place</source>
        <translation>Modificado en su lugar</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Grupo:</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>M&amp;ostrar:</translation>
    </message>
    <message>
        <source>&amp;Take Selected</source>
        <translation>&amp;Tomar selección</translation>
    </message>
    <message>
        <source>Take the selected rows and groups from the other side</source>
        <translation>Toma del otro lado las filas y los grupos seleccionados</translation>
    </message>
    <message>
        <source>Take &amp;All</source>
        <translation>Tomar to&amp;do</translation>
    </message>
    <message>
        <source>Take everything that is shown from the other side</source>
        <translation>Toma del otro lado todo lo mostrado</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>Choose above what the open image is compared with.</source>
        <translation>Elija arriba con qué se compara la imagen abierta.</translation>
    </message>
    <message>
        <source>All groups</source>
        <translation>Todos los grupos</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>No hay diferencias.</translation>
    </message>
    <message>
        <source>%1 of %2 differences</source>
        <translation>%1 de %2 diferencias</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Diferencias: %1</translation>
    </message>
    <message>
        <source>Take &amp;All Shown</source>
        <translation>Tomar to&amp;do lo mostrado</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Tomar</translation>
    </message>
    <message>
        <source>The banks would hold more than 1000 channels together.</source>
        <translation>Los bancos contendrían en conjunto más de 1000 canales.</translation>
    </message>
    <message>
        <source>Nothing was taken. Take the whole group &quot;Bank layout&quot; instead of single sizes.</source>
        <translation>No se tomó nada. Tome el grupo completo «Distribución de bancos» en lugar de tamaños sueltos.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgDuplicates</name>
    <message>
        <source>Duplicates</source>
        <translation>Duplicados</translation>
    </message>
    <message>
        <source>Frequencies that are stored more than once</source>
        <translation>Frecuencias guardadas más de una vez</translation>
    </message>
    <message>
        <source>Frequency and place</source>
        <translation>Frecuencia y lugar</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>%1 MHz, %2 times</source>
        <translation>%1 MHz, %2 veces</translation>
    </message>
    <message>
        <source>on</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>off</source>
        <translation>no</translation>
    </message>
    <message>
        <source>No frequency is stored more than once.</source>
        <translation>Ninguna frecuencia está guardada más de una vez.</translation>
    </message>
    <message>
        <source>1 frequency is stored more than once. A click goes to a place.</source>
        <translation>1 frecuencia está guardada más de una vez. Un clic lleva al lugar.</translation>
    </message>
    <message>
        <source>%1 frequencies are stored more than once. A click goes to a place.</source>
        <translation>%1 frecuencias están guardadas más de una vez. Un clic lleva al lugar.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgExportList</name>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>Exportar lista</translation>
    </message>
    <message>
        <source>Point: 145.500000, commas between fields</source>
        <translation>Punto: 145.500000, comas entre los campos</translation>
    </message>
    <message>
        <source>Comma: 145,500000, semicolons between fields</source>
        <translation>Coma: 145,500000, punto y coma entre los campos</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Grupos</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Columnas</translation>
    </message>
    <message>
        <source>&amp;Decimal sign</source>
        <translation>Signo &amp;decimal</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>En ningún banco</translation>
    </message>
    <message>
        <source>Channels that are written: %1</source>
        <translation>Canales que se escriben: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgFill</name>
    <message>
        <source>&amp;Number of channels</source>
        <translation>&amp;Número de canales</translation>
    </message>
    <message>
        <source>&amp;Last frequency</source>
        <translation>Ú&amp;ltima frecuencia</translation>
    </message>
    <message>
        <source>S&amp;kip rows that hold a channel</source>
        <translation>&amp;Omitir filas con canal</translation>
    </message>
    <message>
        <source>Fill Series</source>
        <translation>Rellenar serie</translation>
    </message>
    <message>
        <source>What goes where</source>
        <translation>Qué va a cada lugar</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Inicio</translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>S&amp;pacing</source>
        <translation>&amp;Separación</translation>
    </message>
    <message>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <source>&amp;Mode and the rest</source>
        <translation>&amp;Modo y lo demás</translation>
    </message>
    <message>
        <source>Number of channels</source>
        <translation>Número de canales</translation>
    </message>
    <message>
        <source>Last frequency</source>
        <translation>Última frecuencia</translation>
    </message>
    <message>
        <source>As usual on the frequency</source>
        <translation>Lo habitual en la frecuencia</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgImport</name>
    <message>
        <source>(not used)</source>
        <translation>(no se usa)</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Frequency in MHz</source>
        <translation>Frecuencia en MHz</translation>
    </message>
    <message>
        <source>Frequency in kHz</source>
        <translation>Frecuencia en kHz</translation>
    </message>
    <message>
        <source>Frequency in Hz</source>
        <translation>Frecuencia en Hz</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Secret code</source>
        <translation>Código secreto</translation>
    </message>
    <message>
        <source>Train tone</source>
        <translation>Tono ferroviario</translation>
    </message>
    <message>
        <source>CTCSS tone</source>
        <translation>Tono CTCSS</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Shift frequency</source>
        <translation>Frec. de desplazamiento</translation>
    </message>
    <message>
        <source>Shift frequency in MHz</source>
        <translation>Frec. despl. en MHz</translation>
    </message>
    <message>
        <source>Shift frequency in kHz</source>
        <translation>Frec. despl. en kHz</translation>
    </message>
    <message>
        <source>Shift frequency in Hz</source>
        <translation>Frec. despl. en Hz</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Banco</translation>
    </message>
    <message>
        <source>Channel in the bank</source>
        <translation>Canal en el banco</translation>
    </message>
    <message>
        <source>Memory row</source>
        <translation>Fila de memoria</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importar (%1)</translation>
    </message>
    <message>
        <source>What goes where</source>
        <translation>Qué va a cada lugar</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>The list as it is read</source>
        <translation>La lista tal como se lee</translation>
    </message>
    <message>
        <source>What %1 is</source>
        <translation>Qué es %1</translation>
    </message>
    <message>
        <source>Frequency (%1 by its size)</source>
        <translation>Frecuencia (%1 por su magnitud)</translation>
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
        <translation>Importar (%1)</translation>
    </message>
    <message>
        <source>What was read otherwise</source>
        <translation>Lo que se leyó de otro modo</translation>
    </message>
    <message>
        <source>&amp;Read again with decimal commas</source>
        <translation>&amp;Leer de nuevo con coma decimal</translation>
    </message>
    <message>
        <source>Edit &gt; Undo takes the import back.</source>
        <translation>Edición &gt; Deshacer anula la importación.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgModify</name>
    <message>
        <source>&amp;Previous</source>
        <translation>Ante&amp;rior</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Si&amp;guiente</translation>
    </message>
    <message>
        <source>OK and Next</source>
        <translation>Aceptar y siguiente</translation>
    </message>
    <message>
        <source>Store the row and go on with the next one (Ctrl+Enter)</source>
        <translation>Guarda la fila y pasa a la siguiente (Ctrl+Intro)</translation>
    </message>
    <message>
        <source>Store what was changed and go on (%1)</source>
        <translation>Guarda lo modificado y continúa (%1)</translation>
    </message>
    <message>
        <source>Modify Memory</source>
        <translation>Modificar memoria</translation>
    </message>
    <message>
        <source>Modify VFO</source>
        <translation>Modificar VFO</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>VFO</source>
        <translation>VFO</translation>
    </message>
    <message>
        <source>Frequency of the cellular phone</source>
        <translation>Frecuencia de telefonía móvil</translation>
    </message>
    <message>
        <source>It is a frequency of the cellular phone.
It is not possible to set it.</source>
        <translation>Es una frecuencia de telefonía móvil.
No se puede usar.</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERROR</translation>
    </message>
    <message>
        <source>The same frequency as other channels cannot be set in Search Pass bank.</source>
        <translation>En el banco Search Pass no se puede usar la misma frecuencia que otro canal.</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>&amp;Mantener</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Om&amp;itir</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Activado</translation>
    </message>
    <message>
        <source>Scanning skips this channel</source>
        <translation>La exploración omite este canal</translation>
    </message>
    <message>
        <source>The channel is in use</source>
        <translation>El canal está en uso</translation>
    </message>
    <message>
        <source>The next empty channel starts with the values confirmed here</source>
        <translation>El siguiente canal vacío empieza con los valores aceptados aquí</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgPaste</name>
    <message>
        <source>What goes where</source>
        <translation>Qué va a cada lugar</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgPrint</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>What to print</source>
        <translation>Qué imprimir</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Ajustes</translation>
    </message>
    <message>
        <source>&amp;VFO table</source>
        <translation>Tabla &amp;VFO</translation>
    </message>
    <message>
        <source>&amp;Memory channels</source>
        <translation>Canales de &amp;memoria</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Grupo:</translation>
    </message>
    <message>
        <source>&amp;Leave out empty rows</source>
        <translation>&amp;Omitir filas vacías</translation>
    </message>
    <message>
        <source>Sp&amp;ectrum of all channels</source>
        <translation>&amp;Espectro de todos los canales</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Tamaño:</translation>
    </message>
    <message>
        <source>P&amp;ortrait</source>
        <translation>Vertica&amp;l</translation>
    </message>
    <message>
        <source>L&amp;andscape</source>
        <translation>&amp;Horizontal</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientación:</translation>
    </message>
    <message>
        <source>Print to</source>
        <translation>Imprimir en</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>no printer installed</source>
        <translation>ninguna impresora instalada</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Impre&amp;sora:</translation>
    </message>
    <message>
        <source>P&amp;DF file</source>
        <translation>Archivo P&amp;DF</translation>
    </message>
    <message>
        <source>Previe&amp;w...</source>
        <translation>Vista &amp;previa...</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgWriteChanges</name>
    <message>
        <source>Keep a &amp;backup of what is replaced</source>
        <translation>Guardar &amp;copia de lo que se reemplaza</translation>
    </message>
    <message>
        <source>&amp;Verify afterwards</source>
        <translation>&amp;Verificar después</translation>
    </message>
    <message>
        <source>Write Changes</source>
        <translation>Escribir cambios</translation>
    </message>
    <message>
        <source>The receiver as it was read or written since %1, %2. Each block is read once more before the first one is written.</source>
        <translation>El receptor según lo leído o escrito desde el %1, %2. Cada bloque se lee una vez más antes de escribir el primero.</translation>
    </message>
    <message>
        <source>What is written</source>
        <translation>Qué se escribe</translation>
    </message>
    <message>
        <source>Row and field</source>
        <translation>Fila y campo</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Will be</source>
        <translation>Quedará</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;Escribir</translation>
    </message>
    <message>
        <source>The receiver holds all of it already. There is nothing to write.</source>
        <translation>El receptor ya contiene todo. No hay nada que escribir.</translation>
    </message>
    <message>
        <source>1 block is written, %1.</source>
        <translation>Se escribe 1 bloque, %1.</translation>
    </message>
    <message>
        <source>%1 blocks are written, %2.</source>
        <translation>Se escriben %1 bloques, %2.</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgWriteConflicts</name>
    <message>
        <source>Changed at the Receiver, Too</source>
        <translation>Modificado también en el receptor</translation>
    </message>
    <message>
        <source>What is to be written was changed at the receiver since it was last read. Nothing has been written yet. Decide for each row.</source>
        <translation>Lo que se va a escribir se modificó en el receptor después de la última lectura. Aún no se ha escrito nada. Decida para cada fila.</translation>
    </message>
    <message>
        <source>Rows that were changed on both sides</source>
        <translation>Filas modificadas en ambos lados</translation>
    </message>
    <message>
        <source>Row and field</source>
        <translation>Fila y campo</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Receiver now</source>
        <translation>Receptor ahora</translation>
    </message>
    <message>
        <source>To be written</source>
        <translation>Por escribir</translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>Decisión</translation>
    </message>
    <message>
        <source>Keep all &amp;mine</source>
        <translation>Conservar todo lo &amp;mío</translation>
    </message>
    <message>
        <source>Take all the &amp;receiver&apos;s</source>
        <translation>Tomar todo lo del &amp;receptor</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;Escribir</translation>
    </message>
    <message>
        <source>Decision for %1</source>
        <translation>Decisión para %1</translation>
    </message>
    <message>
        <source>Decide</source>
        <translation>Decidir</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Conservar lo mío</translation>
    </message>
    <message>
        <source>Take the receiver&apos;s</source>
        <translation>Tomar lo del receptor</translation>
    </message>
</context>
<context>
    <name>rqm5::frmHelp</name>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Página del manual</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Buscar en el manual</translation>
    </message>
    <message>
        <source>Lists the pages that hold every word; Enter goes to the next place</source>
        <translation>Muestra las páginas que contienen todas las palabras; Intro va a la siguiente aparición</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>Larger Text</source>
        <translation>Texto más grande</translation>
    </message>
    <message>
        <source>Smaller Text</source>
        <translation>Texto más pequeño</translation>
    </message>
    <message>
        <source>Usual Text Size</source>
        <translation>Tamaño de texto normal</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>No page holds these words.</source>
        <translation>Ninguna página contiene estas palabras.</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Abrir enlace</translation>
    </message>
    <message>
        <source>This link leads out of the manual. Open it in the web browser?</source>
        <translation>Este enlace lleva fuera del manual. ¿Abrirlo en el navegador web?</translation>
    </message>
</context>
<context>
    <name>rqm5::frmMain</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>Choose the language of every window</source>
        <translation>Elige el idioma de todas las ventanas</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Sistema</translation>
    </message>
    <message>
        <source>Recovered changes came first; not opened: %1</source>
        <translation>Se dio prioridad a los cambios recuperados; no se abrió: %1</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Read(&amp;R)</source>
        <translation>&amp;Leer</translation>
    </message>
    <message>
        <source>Write(&amp;W)</source>
        <translation>E&amp;scribir</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>Start with empty memories and default settings</source>
        <translation>Empieza con la memoria vacía y los ajustes predeterminados</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Open a clone file</source>
        <translation>Abre un archivo de clonación</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save to the current file</source>
        <translation>Guarda en el archivo actual</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Guardar &amp;como...</translation>
    </message>
    <message>
        <source>Save to another file</source>
        <translation>Guarda en otro archivo</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>Take channels from a CSV file or a list of another program</source>
        <translation>Toma canales de un archivo CSV o de una lista de otro programa</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>Write VFO bands and channels to a CSV file</source>
        <translation>Escribe las bandas VFO y los canales en un archivo CSV</translation>
    </message>
    <message>
        <source>Export &amp;List...</source>
        <translation>Exportar &amp;lista...</translation>
    </message>
    <message>
        <source>Write channels as a list for spreadsheets</source>
        <translation>Escribe los canales como lista para hojas de cálculo</translation>
    </message>
    <message>
        <source>&amp;Repair...</source>
        <translation>&amp;Reparar...</translation>
    </message>
    <message>
        <source>Open a clone file that is refused because of its notes</source>
        <translation>Abre un archivo de clonación rechazado por sus notas</translation>
    </message>
    <message>
        <source>&amp;Backups...</source>
        <translation>Copias &amp;de seguridad...</translation>
    </message>
    <message>
        <source>List the backups: open, compare, write back or delete them</source>
        <translation>Muestra las copias de seguridad para abrirlas, compararlas, restaurarlas o eliminarlas</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Im&amp;primir...</translation>
    </message>
    <message>
        <source>Print settings, VFO bands and channels</source>
        <translation>Imprime los ajustes, las bandas VFO y los canales</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Cierra el programa</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Des&amp;hacer</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>Deshace el último cambio</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Vuelve a hacer el cambio deshecho</translation>
    </message>
    <message>
        <source>&amp;Modify...</source>
        <translation>&amp;Modificar...</translation>
    </message>
    <message>
        <source>Edit the selected channels or VFO band; so does Enter</source>
        <translation>Edita los canales seleccionados o la banda VFO; también con Intro</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Buscar...</translation>
    </message>
    <message>
        <source>Find channels by frequency, note, mode or tone</source>
        <translation>Busca canales por frecuencia, nota, modo o tono</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message>
        <source>Go to the next channel found</source>
        <translation>Va al siguiente canal encontrado</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>B&amp;uscar anterior</translation>
    </message>
    <message>
        <source>Go to the previous channel found</source>
        <translation>Va al canal encontrado anterior</translation>
    </message>
    <message>
        <source>&amp;Toolbar</source>
        <translation>&amp;Barra de herramientas</translation>
    </message>
    <message>
        <source>Show or hide the toolbar</source>
        <translation>Muestra u oculta la barra de herramientas</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>Barra de &amp;estado</translation>
    </message>
    <message>
        <source>Show or hide the status bar</source>
        <translation>Muestra u oculta la barra de estado</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>Show every change that can be taken back; a click goes there</source>
        <translation>Muestra todos los cambios que se pueden deshacer; un clic va hasta ese punto</translation>
    </message>
    <message>
        <source>S&amp;pectrum</source>
        <translation>Es&amp;pectro</translation>
    </message>
    <message>
        <source>Show every channel by its frequency; a click selects its row</source>
        <translation>Muestra cada canal según su frecuencia; un clic selecciona su fila</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnóstico</translation>
    </message>
    <message>
        <source>Send single read commands and see the replies</source>
        <translation>Envía órdenes de lectura sueltas y muestra las respuestas</translation>
    </message>
    <message>
        <source>ALL(&amp;A)</source>
        <translation>&amp;TODO</translation>
    </message>
    <message>
        <source>Read everything from the receiver</source>
        <translation>Lee todo del receptor</translation>
    </message>
    <message>
        <source>Memory(&amp;M)</source>
        <translation>&amp;Memoria</translation>
    </message>
    <message>
        <source>Read the channels of the group shown on the Memory page</source>
        <translation>Lee los canales del grupo que muestra la página Memoria</translation>
    </message>
    <message>
        <source>Settings(&amp;S)</source>
        <translation>&amp;Ajustes</translation>
    </message>
    <message>
        <source>Read the settings and the VFO bands</source>
        <translation>Lee los ajustes y las bandas VFO</translation>
    </message>
    <message>
        <source>&amp;Verify after reading</source>
        <translation>&amp;Verificar después de leer</translation>
    </message>
    <message>
        <source>Read everything twice, and list what was different</source>
        <translation>Lee todo dos veces y muestra qué fue distinto</translation>
    </message>
    <message>
        <source>Write everything to the receiver</source>
        <translation>Escribe todo en el receptor</translation>
    </message>
    <message>
        <source>Write the channels of the group shown on the Memory page</source>
        <translation>Escribe los canales del grupo que muestra la página Memoria</translation>
    </message>
    <message>
        <source>Write the settings and the VFO bands</source>
        <translation>Escribe los ajustes y las bandas VFO</translation>
    </message>
    <message>
        <source>&amp;Changes...</source>
        <translation>&amp;Cambios...</translation>
    </message>
    <message>
        <source>Write only what the receiver holds otherwise, after showing it</source>
        <translation>Escribe solo lo que es distinto en el receptor, después de mostrarlo</translation>
    </message>
    <message>
        <source>Keep a &amp;backup before writing</source>
        <translation>&amp;Guardar copia antes de escribir</translation>
    </message>
    <message>
        <source>Read what a write will replace, and save it, before anything is written</source>
        <translation>Lee y guarda lo que la escritura va a reemplazar, antes de escribir nada</translation>
    </message>
    <message>
        <source>&amp;Verify after writing</source>
        <translation>&amp;Verificar después de escribir</translation>
    </message>
    <message>
        <source>Read back what was written, and list what differs</source>
        <translation>Vuelve a leer lo escrito y muestra qué difiere</translation>
    </message>
    <message>
        <source>Backup &amp;Folder...</source>
        <translation>Car&amp;peta de copias...</translation>
    </message>
    <message>
        <source>Choose where backups are kept</source>
        <translation>Elige dónde se guardan las copias de seguridad</translation>
    </message>
    <message>
        <source>&amp;Duplicates...</source>
        <translation>&amp;Duplicados...</translation>
    </message>
    <message>
        <source>List every frequency that is stored more than once</source>
        <translation>Muestra todas las frecuencias guardadas más de una vez</translation>
    </message>
    <message>
        <source>Com&amp;pare...</source>
        <translation>&amp;Comparar...</translation>
    </message>
    <message>
        <source>Show what differs from a file, a backup or the receiver, and take it</source>
        <translation>Muestra qué difiere de un archivo, una copia de seguridad o el receptor y permite tomarlo</translation>
    </message>
    <message>
        <source>COM Port Setup(&amp;C)</source>
        <translation>Configurar &amp;puerto COM</translation>
    </message>
    <message>
        <source>Choose the serial port of the receiver&apos;s cable</source>
        <translation>Elige el puerto serie del cable del receptor</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>Í&amp;ndice</translation>
    </message>
    <message>
        <source>Show the manual</source>
        <translation>Muestra el manual</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Acerca de...</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Muestra datos de este programa</translation>
    </message>
    <message>
        <source>Settings 1</source>
        <translation>Ajustes 1</translation>
    </message>
    <message>
        <source>Model, modes, volume, squelch and the VFO bands</source>
        <translation>Modelo, modos, volumen, squelch y bandas VFO</translation>
    </message>
    <message>
        <source>Settings 2</source>
        <translation>Ajustes 2</translation>
    </message>
    <message>
        <source>Display, power, keys, sound and antennas</source>
        <translation>Pantalla, alimentación, teclas, sonido y antenas</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>The memory channels</source>
        <translation>Los canales de memoria</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Banco</translation>
    </message>
    <message>
        <source>Sizes and links of the memory banks</source>
        <translation>Tamaños y enlaces de los bancos de memoria</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
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
        <source>Read ALL</source>
        <translation>Leer TODO</translation>
    </message>
    <message>
        <source>Write ALL</source>
        <translation>Escribir TODO</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>Put the selected rows on the clipboard and clear them</source>
        <translation>Pone las filas seleccionadas en el portapapeles y las borra</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Put the selected rows on the clipboard</source>
        <translation>Pone las filas seleccionadas en el portapapeles</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Write the channels of the clipboard from the current row on</source>
        <translation>Escribe los canales del portapapeles a partir de la fila actual</translation>
    </message>
    <message>
        <source>Paste Spec&amp;ial...</source>
        <translation>Pegado &amp;especial...</translation>
    </message>
    <message>
        <source>Write chosen columns of the clipboard into the selected rows</source>
        <translation>Escribe las columnas elegidas del portapapeles en las filas seleccionadas</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Se&amp;leccionar todo</translation>
    </message>
    <message>
        <source>Select every row of the table</source>
        <translation>Selecciona todas las filas de la tabla</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>B&amp;orrar</translation>
    </message>
    <message>
        <source>Empty the selected rows</source>
        <translation>Borra las filas seleccionadas</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Activar</translation>
    </message>
    <message>
        <source>Switch the selected channels on; Space switches on and off</source>
        <translation>Activa los canales seleccionados; Espacio activa y desactiva</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;Desactivar</translation>
    </message>
    <message>
        <source>Switch the selected channels off; Space switches on and off</source>
        <translation>Desactiva los canales seleccionados; Espacio activa y desactiva</translation>
    </message>
    <message>
        <source>Fill &amp;Series...</source>
        <translation>Rellenar ser&amp;ie...</translation>
    </message>
    <message>
        <source>Make channels at even distances</source>
        <translation>Crea canales a distancias iguales</translation>
    </message>
    <message>
        <source>Fill Do&amp;wn...</source>
        <translation>Rellenar hacia aba&amp;jo...</translation>
    </message>
    <message>
        <source>Give the selected rows chosen columns of the first of them</source>
        <translation>Da a las filas seleccionadas las columnas elegidas de la primera de ellas</translation>
    </message>
    <message>
        <source>Mo&amp;ve Up</source>
        <translation>Mo&amp;ver hacia arriba</translation>
    </message>
    <message>
        <source>Move the selected rows up by one</source>
        <translation>Sube un lugar las filas seleccionadas</translation>
    </message>
    <message>
        <source>Move Dow&amp;n</source>
        <translation>Mover &amp;hacia abajo</translation>
    </message>
    <message>
        <source>Move the selected rows down by one</source>
        <translation>Baja un lugar las filas seleccionadas</translation>
    </message>
    <message>
        <source>Copy to &amp;Bank</source>
        <translation>Copiar a &amp;banco</translation>
    </message>
    <message>
        <source>Copy the selected channels into empty rows of a bank</source>
        <translation>Copia los canales seleccionados en filas vacías de un banco</translation>
    </message>
    <message>
        <source>Move to Ban&amp;k</source>
        <translation>Mover a ba&amp;nco</translation>
    </message>
    <message>
        <source>Move the selected channels into empty rows of a bank</source>
        <translation>Mueve los canales seleccionados a filas vacías de un banco</translation>
    </message>
    <message>
        <source>Insert Row &amp;Here</source>
        <translation>Insertar &amp;fila aquí</translation>
    </message>
    <message>
        <source>Put an empty row here; the rows behind it in the group shown move down</source>
        <translation>Pone aquí una fila vacía; las filas siguientes del grupo mostrado bajan</translation>
    </message>
    <message>
        <source>Delete Row and Close &amp;Up</source>
        <translation>S&amp;uprimir fila y cerrar hueco</translation>
    </message>
    <message>
        <source>Take the selected rows out; the rows behind them in the group shown move up</source>
        <translation>Quita las filas seleccionadas; las filas siguientes del grupo mostrado suben</translation>
    </message>
    <message>
        <source>Sort &amp;Group</source>
        <translation>Ordenar &amp;grupo</translation>
    </message>
    <message>
        <source>Sort the rows of the group shown; empty rows come last</source>
        <translation>Ordena las filas del grupo mostrado; las vacías quedan al final</translation>
    </message>
    <message>
        <source>By &amp;Frequency</source>
        <translation>Por &amp;frecuencia</translation>
    </message>
    <message>
        <source>By &amp;Note</source>
        <translation>Por &amp;nota</translation>
    </message>
    <message>
        <source>By &amp;Mode</source>
        <translation>Por &amp;modo</translation>
    </message>
    <message>
        <source>R&amp;ows</source>
        <translation>&amp;Filas</translation>
    </message>
    <message>
        <source>Move, copy, insert, delete and sort rows of the group shown</source>
        <translation>Mueve, copia, inserta, suprime y ordena filas del grupo mostrado</translation>
    </message>
</context>
<context>
    <name>rqm5::frmSplash</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Reads, edits and writes the receiver&apos;s memory</source>
        <translation>Lee, edita y escribe la memoria del receptor</translation>
    </message>
</context>
</TS>

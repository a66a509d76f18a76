<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Message</name>
    <message>
        <source>the backup of %1</source>
        <translation>%1のバックアップ</translation>
    </message>
    <message>
        <source>Other side: backup of %1, which holds: %2</source>
        <translation>比較相手: %1のバックアップ (内容: %2)</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Settings and VFO bands</source>
        <translation>設定とVFOバンド</translation>
    </message>
    <message>
        <source>Bank sizes and links</source>
        <translation>バンクサイズとリンク</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>全チャンネル</translation>
    </message>
    <message>
        <source>Take what was changed at the receiver</source>
        <translation>受信機側の変更の取り込み</translation>
    </message>
    <message>
        <source>Other side: the file %1, saved %2</source>
        <translation>比較相手: ファイル%1 (%2保存)</translation>
    </message>
    <message>
        <source>Other side: the receiver as it was read or written since %1, %2</source>
        <translation>比較相手: %1 (%2) 以降に読み書きした受信機の内容</translation>
    </message>
    <message>
        <source>Other side: the receiver as it was read at %1</source>
        <translation>比較相手: %1に読み込んだ受信機の内容</translation>
    </message>
    <message>
        <source>the last read</source>
        <translation>前回の読み込み</translation>
    </message>
    <message>
        <source>the receiver</source>
        <translation>受信機</translation>
    </message>
    <message>
        <source>Other side: the receiver, read just now (%1)</source>
        <translation>比較相手: たった今読み込んだ受信機の内容 (%1)</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>中止しました。</translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source>Reply after %1 ms: %2</source>
        <translation>応答 (%1 ms後): %2</translation>
    </message>
    <message>
        <source>Received until the time-out after %1 ms: %2</source>
        <translation>タイムアウト (%1 ms) までの受信内容: %2</translation>
    </message>
    <message>
        <source>Nothing came back. Check the cable, the port, and that the receiver is on.</source>
        <translation>何も返ってきませんでした。ケーブル、ポート、受信機の電源を確認してください。</translation>
    </message>
    <message>
        <source>The receiver did not answer: only the echo of the command came back.</source>
        <translation>受信機の応答がありません。コマンドのエコーだけが返ってきました。</translation>
    </message>
    <message>
        <source>The reply is too short: a whole one ends with 36 characters.</source>
        <translation>応答が短すぎます。完全な応答は末尾に36文字があります。</translation>
    </message>
    <message>
        <source>The reply is garbled: it does not end with a line of 32 characters.</source>
        <translation>応答が壊れています。末尾が32文字の行になっていません。</translation>
    </message>
    <message>
        <source>An empty row.</source>
        <translation>空の行です。</translation>
    </message>
    <message>
        <source>%1 reads, %2 errors.</source>
        <translation>読み込み%1回、エラー%2回。</translation>
    </message>
    <message>
        <source>Round trip: lowest %1 ms, median %2 ms, highest %3 ms.</source>
        <translation>応答時間: 最小%1 ms、中央値%2 ms、最大%3 ms。</translation>
    </message>
    <message>
        <source>%1 was removed or renamed by another program. Save will ask first.</source>
        <translation>%1がほかのプログラムによって削除されたか、名前を変更されました。保存するときに確認します。</translation>
    </message>
    <message>
        <source>%1 was changed by another program. You have unsaved changes; Save will ask first.</source>
        <translation>%1がほかのプログラムによって変更されました。保存していない変更があるため、保存するときに確認します。</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1がほかのプログラムによって変更されました。</translation>
    </message>
    <message>
        <source>&amp;Load Again</source>
        <translation>開き直す(&amp;L)</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>インポート (%1)</translation>
    </message>
    <message>
        <source>Imported with %1.</source>
        <translation>インポートしました: %1。</translation>
    </message>
    <message>
        <source>Imported from %1. %2.</source>
        <translation>%1からインポートしました。%2。</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept for recovery: %1</source>
        <translation>保存していない変更を復元用に保管できません: %1</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save.</source>
        <translation>メモのカンマや引用符は保存すると失われます。</translation>
    </message>
    <message>
        <source>Notes whose comma or quotes will not survive a save: %1</source>
        <translation>カンマや引用符が保存時に失われるメモ: %1</translation>
    </message>
    <message>
        <source>Use ; and &apos;</source>
        <translation>; と &apos; を使う</translation>
    </message>
    <message>
        <source>Use ; and &apos; in notes</source>
        <translation>メモで ; と &apos; を使用</translation>
    </message>
    <message>
        <source>Connect the receiver and choose Read &gt; ALL (Ctrl+R), or open a file.</source>
        <translation>受信機を接続して「読み込み &gt; すべて」(Ctrl+R) を選ぶか、ファイルを開いてください。</translation>
    </message>
    <message>
        <source>Read ALL</source>
        <translation>すべて読み込み</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>開く...</translation>
    </message>
    <message>
        <source>Backup and verify are off.</source>
        <translation>バックアップと照合がオフになっています。</translation>
    </message>
    <message>
        <source>Turn Them On</source>
        <translation>オンにする</translation>
    </message>
    <message>
        <source>Rows outside the receiver&apos;s range (0.1 to 1299.995 MHz), which are written as they are: %1 (%2)</source>
        <translation>受信機の範囲 (0.1～1299.995 MHz) を外れた行があり、そのまま書き込まれます: %1行 (%2)</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save as a clone file: %1.</source>
        <translation>メモのカンマや引用符は、クローンファイルに保存すると失われます: %1。</translation>
    </message>
    <message>
        <source>%1 was saved with notes that it cannot bring back; change them and save again: %2.</source>
        <translation>%1に保存しましたが、元どおりに読み出せないメモがあります。メモを直して保存し直してください: %2。</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Read Memory (%1)</source>
        <translation>メモリー読み込み (%1)</translation>
    </message>
    <message>
        <source>Read Settings</source>
        <translation>設定読み込み</translation>
    </message>
    <message>
        <source>Read Bank</source>
        <translation>バンク読み込み</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2。</translation>
    </message>
    <message>
        <source>%1, but the receiver holds something else.</source>
        <translation>%1。ただし、受信機の内容が一致しません。</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>1分以内</translation>
    </message>
    <message>
        <source>a minute ago</source>
        <translation>1分前</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1分前</translation>
    </message>
    <message>
        <source>an hour ago</source>
        <translation>1時間前</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1時間前</translation>
    </message>
    <message>
        <source>a day ago</source>
        <translation>1日前</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1日前</translation>
    </message>
    <message>
        <source>no progress, no closing line and no notes (also -q)</source>
        <translation>進行状況、終了時のメッセージ、注記を表示しません (-qも可)</translation>
    </message>
    <message>
        <source>every exchange with the receiver and every warning (also -v)</source>
        <translation>受信機とのやり取りと警告をすべて表示します (-vも可)</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>不明なオプション「%1」</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1に値は指定できません</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1には値が必要です: %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1が2回指定されています</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1が指定されていません</translation>
    </message>
    <message>
        <source>too many arguments: &quot;%1&quot;</source>
        <translation>引数が多すぎます: 「%1」</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1が空です</translation>
    </message>
    <message>
        <source>--json and --tsv are two forms; choose one</source>
        <translation>--jsonと--tsvは同時に指定できません。どちらか一方を選んでください</translation>
    </message>
    <message>
        <source>lines end in LF instead of CR LF; this program reads them, another may not</source>
        <translation>改行がCR LFではなくLFです。このプログラムでは読めますが、ほかのプログラムでは読めないことがあります</translation>
    </message>
    <message>
        <source>there is text behind the last line; a save drops it</source>
        <translation>最後の行の後ろに文字があります。保存すると失われます</translation>
    </message>
    <message>
        <source>line %1 (%2)</source>
        <translation>%1行目 (%2)</translation>
    </message>
    <message>
        <source>characters other than upper-case hexadecimal digits may be read as 0; there are some in:</source>
        <translation>大文字の16進数以外の文字は0と読み取られることがあります。該当する行:</translation>
    </message>
    <message>
        <source>these values are read differently from what the file says:</source>
        <translation>次の値は、ファイルに書かれているとおりには読み取られません:</translation>
    </message>
    <message>
        <source>these rows are outside the receiver&apos;s range (%1):</source>
        <translation>次の行は受信機の範囲 (%1) を外れています:</translation>
    </message>
    <message>
        <source>a save loses these notes; take commas and quotes out of them:</source>
        <translation>次のメモは保存すると失われます。カンマと引用符を取り除いてください:</translation>
    </message>
    <message>
        <source>exported as CSV, a spreadsheet would run these notes as formulas:</source>
        <translation>CSVにエクスポートすると、表計算ソフトで次のメモが数式として実行されるおそれがあります:</translation>
    </message>
    <message>
        <source>%1 of %2 files are whole.</source>
        <translation>%2個のファイルのうち%1個は完全です。</translation>
    </message>
    <message>
        <source>%1 is one of %2 names of a file (hard links); the others keep the old contents</source>
        <translation>%1は、%2個の名前 (ハードリンク) を持つファイルの1つです。ほかの名前には元の内容が残ります</translation>
    </message>
    <message>
        <source>a clone file cannot hold these values; they read back differently:</source>
        <translation>クローンファイルに格納できない値があります。次の値は、開き直すと変わります:</translation>
    </message>
    <message>
        <source>%1 is written, but the file cannot bring back these notes; take commas and quotes out of them:</source>
        <translation>%1に書き込みましたが、次のメモは元どおりに読み出せません。カンマと引用符を取り除いてください:</translation>
    </message>
    <message>
        <source>%1 is saved, but not all that belonged to the old file could be kept:</source>
        <translation>%1を保存しましたが、元のファイルの属性の一部を引き継げませんでした:</translation>
    </message>
    <message>
        <source>%1: the name is not written in UTF-8. Rename the file, or use &quot;-&quot;.</source>
        <translation>%1: ファイル名がUTF-8ではありません。ファイル名を変更するか、「-」を使ってください。</translation>
    </message>
    <message>
        <source>%1: both names are the same file, which would be replaced; give another name</source>
        <translation>%1: 2つの名前が同じファイルを指しており、上書きされてしまいます。別の名前を指定してください</translation>
    </message>
    <message>
        <source>%1: with these notes it could not be opened any more. --safe-notes stores them without commas and quotes, --force as they are:</source>
        <translation>%1: 次のメモがあると、ファイルを開けなくなります。--safe-notesを付けるとカンマと引用符を除いて、--forceを付けるとそのまま保存します:</translation>
    </message>
    <message>
        <source>%1: with the notes below it could not be opened any more; take commas and quotes out of them.</source>
        <translation>%1: 下のメモがあると、ファイルを開けなくなります。カンマと引用符を取り除いてください。</translation>
    </message>
    <message>
        <source>model region (default 0)</source>
        <translation>仕向地 (省略時は0)</translation>
    </message>
    <message>
        <source>no banks: all 1000 channels unassigned</source>
        <translation>バンクなし: 1000チャンネルすべてをバンク外にします</translation>
    </message>
    <message>
        <source>replace FILE if it exists</source>
        <translation>FILEがすでにあれば置き換えます</translation>
    </message>
    <message>
        <source>read everything twice and list each block that was different the second time</source>
        <translation>すべてを2回読み込み、2回目に異なったブロックを一覧します</translation>
    </message>
    <message>
        <source>first read what will be replaced and save it as COPY, a new file</source>
        <translation>置き換わる内容を先に読み込み、新しいファイルCOPYに保存します</translation>
    </message>
    <message>
        <source>read back afterwards and list each block that differs</source>
        <translation>書き込み後に読み直し、異なるブロックを一覧します</translation>
    </message>
    <message>
        <source>write only what the receiver holds otherwise; what is not known of it is read first</source>
        <translation>受信機の内容と異なる部分だけを書き込みます。未確認の部分は先に読み込みます</translation>
    </message>
    <message>
        <source>with --changes: what the receiver held when it was last read or written</source>
        <translation>--changesと併用: 前回読み書きしたときの受信機の内容</translation>
    </message>
    <message>
        <source>write even if the backup shows that the receiver is another model</source>
        <translation>バックアップで受信機の機種が違うとわかっても書き込みます</translation>
    </message>
    <message>
        <source>empty rows, too</source>
        <translation>空の行も表示します</translation>
    </message>
    <message>
        <source>compare A with the receiver: COM number 1 to 14, or a device</source>
        <translation>Aを受信機と比較します: COM番号1～14、またはデバイス</translation>
    </message>
    <message>
        <source>write the pages to a PDF instead of the terminal</source>
        <translation>端末に表示する代わりに、ページをPDFに出力します</translation>
    </message>
    <message>
        <source>print the settings</source>
        <translation>設定を出力します</translation>
    </message>
    <message>
        <source>print the VFO table</source>
        <translation>VFOの表を出力します</translation>
    </message>
    <message>
        <source>print the memory channels</source>
        <translation>メモリーチャンネルを出力します</translation>
    </message>
    <message>
        <source>print empty rows, too</source>
        <translation>空の行も出力します</translation>
    </message>
    <message>
        <source>size of the PDF&apos;s pages; without it that of the country</source>
        <translation>PDFの用紙サイズ。省略時は国の標準サイズ</translation>
    </message>
    <message>
        <source>turn the PDF&apos;s pages</source>
        <translation>PDFのページを横向きにします</translation>
    </message>
    <message>
        <source>replace OUT.pdf whatever it holds</source>
        <translation>OUT.pdfの内容が何であっても置き換えます</translation>
    </message>
    <message>
        <source>export each FILE into this folder, under its own name with .csv</source>
        <translation>各FILEを、同じ名前に.csvを付けてこのフォルダーにエクスポートします</translation>
    </message>
    <message>
        <source>replace OUT.csv whatever it holds</source>
        <translation>OUT.csvの内容が何であっても置き換えます</translation>
    </message>
    <message>
        <source>read 145,5 as 145.5</source>
        <translation>145,5を145.5と読み取ります</translation>
    </message>
    <message>
        <source>what the columns of a list are, by title or number; such as &quot;Freq=frequency:kHz,3=note&quot;</source>
        <translation>リストの列の項目を見出しか番号で指定します (例: &quot;Freq=frequency:kHz,3=note&quot;)</translation>
    </message>
    <message>
        <source>where a list goes: from memory row 0 to 1209 on, or from BANK:CHANNEL, program-scan, search-pass or priority on; without it to the rows that it names</source>
        <translation>リストの取り込み先: メモリー行0～1209、またはBANK:CHANNEL、program-scan、search-pass、priorityから順に。省略時はリストで指定された行</translation>
    </message>
    <message>
        <source>show what would change and write nothing</source>
        <translation>変更される内容を表示するだけで、書き込みません</translation>
    </message>
    <message>
        <source>keep FILE as it was as FILE~</source>
        <translation>元のFILEをFILE~として残します</translation>
    </message>
    <message>
        <source>store notes without commas and quotes, which a clone file cannot hold</source>
        <translation>クローンファイルに格納できないカンマと引用符をメモから除いて保存します</translation>
    </message>
    <message>
        <source>write FILE even if its notes keep it from being opened again</source>
        <translation>メモが原因で開けなくなる場合でもFILEに書き込みます</translation>
    </message>
    <message>
        <source>write the repaired file under this name, which no file has yet</source>
        <translation>修復したファイルをこの名前で保存します (既存のファイル名は不可)</translation>
    </message>
    <message>
        <source>replace FILE, which is kept as FILE~</source>
        <translation>FILEを置き換え、元のファイルをFILE~として残します</translation>
    </message>
    <message>
        <source>both names are the same file, which would be replaced</source>
        <translation>2つの名前が同じファイルを指しており、上書きされてしまいます</translation>
    </message>
    <message>
        <source>--to writes another file than --in-place; choose one</source>
        <translation>--toと--in-placeでは書き込み先が違います。どちらか一方を選んでください</translation>
    </message>
    <message>
        <source>write the start-up image of a model region</source>
        <translation>仕向地の初期データを作成します</translation>
    </message>
    <message>
        <source>It has default settings, VFO bands and bank sizes and no channels.</source>
        <translation>設定、VFOバンド、バンクサイズは初期値で、チャンネルはありません。</translation>
    </message>
    <message>
        <source>read the receiver into FILE</source>
        <translation>受信機を読み込んでFILEに保存します</translation>
    </message>
    <message>
        <source>If FILE exists, it is the starting point: notes and what is not read stay. If the transfer fails, FILE is left untouched. If a block arrives damaged or, with --verify, different the second time, it is listed, the status is 1, and the old file is kept as FILE~.</source>
        <translation>FILEがすでにあれば、それを元にします。メモと読み込まない部分はそのまま残ります。転送に失敗した場合、FILEは変わりません。壊れて届いたブロックや、--verifyの2回目で異なったブロックがあると一覧し、終了ステータスは1になり、元のファイルをFILE~として残します。</translation>
    </message>
    <message>
        <source>write FILE to the receiver</source>
        <translation>FILEを受信機に書き込みます</translation>
    </message>
    <message>
        <source>Sends settings, VFO bands and presets, then banks and channels. Without --verify nothing is read back. If the backup fails, nothing is written. With --changes each block that is to be written is read first, and nothing is written if it was changed at the receiver, too.</source>
        <translation>設定、VFOバンド、プリセット、続いてバンクとチャンネルを送ります。--verifyがなければ読み直しません。バックアップに失敗した場合は何も書き込みません。--changesを付けると、書き込むブロックを先に読み込み、受信機側でも変更されていれば何も書き込みません。</translation>
    </message>
    <message>
        <source>compare the receiver with FILE</source>
        <translation>受信機をFILEと比較します</translation>
    </message>
    <message>
        <source>Compares with what write of the same parts leaves behind. Prints nothing and ends with status 0 when they agree, else lists each block that differs, with the bytes in words.</source>
        <translation>同じ範囲をwriteで書き込んだ後の状態と比較します。一致すれば何も表示せず、終了ステータスは0です。一致しなければ、異なるブロックとその内容を一覧します。</translation>
    </message>
    <message>
        <source>write FILE as CSV</source>
        <translation>FILEをCSVに書き出します</translation>
    </message>
    <message>
        <source>The file holds the channels and VFO bands, for a spreadsheet. OUT.csv may be missing, empty or an older export. With --to, each FILE is exported into the folder.</source>
        <translation>表計算ソフト用に、チャンネルとVFOバンドを書き出します。OUT.csvは、ないか、空か、以前エクスポートしたファイルであることが必要です。--toを付けると、各FILEをフォルダーにエクスポートします。</translation>
    </message>
    <message>
        <source>take the rows of a CSV file or of a list into FILE</source>
        <translation>CSVファイルやリストの行をFILEに取り込みます</translation>
    </message>
    <message>
        <source>Rows that IN.csv does not name stay as they are. FILE is made when it does not exist. Notes with which FILE could not be opened again keep it from being written. Carrier codes of an export move one up. A file of another program is read as a list: how it is read is said, and what is not taken is listed by line.</source>
        <translation>IN.csvにない行は変わりません。FILEがなければ作成します。メモが原因でFILEを開けなくなる場合は書き込みません。エクスポートしたファイルの空線コードは1つ上がります。ほかのプログラムのファイルはリストとして読み取り、読み取り方を表示し、取り込めないものを行ごとに一覧します。</translation>
    </message>
    <message>
        <source>print the channels of each FILE in columns</source>
        <translation>各FILEのチャンネルを列に並べて表示します</translation>
    </message>
    <message>
        <source>Rows that hold a channel or a note; &quot;x&quot; marks a channel that is off.</source>
        <translation>チャンネルかメモのある行を表示します。「x」は無効なチャンネルの印です。</translation>
    </message>
    <message>
        <source>print each FILE as text, or one as PDF</source>
        <translation>FILEをテキストで、または1つのFILEをPDFで出力します</translation>
    </message>
    <message>
        <source>Settings, VFO table and memory channels in this order; without --settings, --vfo and --memory all three. &quot;Off&quot; marks a channel that is disabled.</source>
        <translation>設定、VFOの表、メモリーチャンネルの順に出力します。--settings、--vfo、--memoryのどれも付けなければ3つとも出力します。「Off」は無効なチャンネルの印です。</translation>
    </message>
    <message>
        <source>check that each FILE is complete, and say what it holds</source>
        <translation>各FILEが完全かどうかを調べ、その内容を表示します</translation>
    </message>
    <message>
        <source>Names the line that is wrong and why. Warns of notes that a save loses or a spreadsheet would run, and of values that are read differently from what the file says. Several files take one line each; --verbose lists their warnings, --quiet names only those that are not whole.</source>
        <translation>問題のある行とその理由を示します。保存すると失われるメモ、表計算ソフトで数式として実行されるおそれのあるメモ、ファイルに書かれているとおりに読み取られない値を警告します。複数のファイルは1行ずつ表示します。--verboseでは警告も一覧し、--quietでは完全でないファイルだけを示します。</translation>
    </message>
    <message>
        <source>mend a file that cannot be opened because of its notes</source>
        <translation>メモが原因で開けないファイルを修復します</translation>
    </message>
    <message>
        <source>Commas in notes become semicolons, quotes apostrophes; each such note is shown. Without --to and --in-place nothing is written.</source>
        <translation>メモのカンマをセミコロンに、引用符をアポストロフィに置き換え、該当するメモを表示します。--toも--in-placeも付けなければ何も書き込みません。</translation>
    </message>
    <message>
        <source>list what differs between two files, or a file and the receiver</source>
        <translation>2つのファイル、またはファイルと受信機の相違点を一覧します</translation>
    </message>
    <message>
        <source>Rows, settings, banks and notes are named. Status 1 when there is a difference.</source>
        <translation>行、設定、バンク、メモを示します。相違があれば終了ステータスは1です。</translation>
    </message>
    <message>
        <source>list serial ports</source>
        <translation>シリアルポートを一覧します</translation>
    </message>
    <message>
        <source>Each COM number with its device and whether it can be opened.</source>
        <translation>各COM番号のデバイスと、開けるかどうかを示します。</translation>
    </message>
    <message>
        <source>read one block and show the reply as it came</source>
        <translation>ブロックを1つ読み込み、応答をそのまま表示します</translation>
    </message>
    <message>
        <source>ADDRESS is hexadecimal and that of a block: 0000 to FFF0, the last digit 0.</source>
        <translation>ADDRESSはブロックの16進アドレスです。0000～FFF0で、最後の桁は0です。</translation>
    </message>
    <message>
        <source>COM number 1 to 14, also as COM5, or a device or a link to one; without it the number in RQ-M5.ini</source>
        <translation>COM番号1～14 (COM5の形も可)、またはデバイスかそのリンク。省略時はRQ-M5.iniの番号</translation>
    </message>
    <message>
        <source>leave the other part out</source>
        <translation>指定しなかったほうを対象外にします</translation>
    </message>
    <message>
        <source>bank 0 to 49, program-scan, search-pass, priority or all (default)</source>
        <translation>バンク0～49、program-scan、search-pass、priority、またはall (省略時)</translation>
    </message>
    <message>
        <source>the memory only: bank 0 to 49, program-scan, search-pass, priority or all; without it settings and all of the memory</source>
        <translation>メモリーだけ: バンク0～49、program-scan、search-pass、priority、またはall。省略時は設定とすべてのメモリー</translation>
    </message>
    <message>
        <source>write JSON, as docs/json.md describes it</source>
        <translation>docs/json.mdに記載の形式でJSONを出力します</translation>
    </message>
    <message>
        <source>write fields separated by tabs, titles first</source>
        <translation>タブ区切りで、見出しを先頭にして出力します</translation>
    </message>
    <message>
        <source>take names of files from LIST, one on each line</source>
        <translation>LISTから1行に1つずつファイル名を読み取ります</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1。「%2」のことですか?</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>--port compares one file with the receiver; leave B out</source>
        <translation>--portは1つのファイルを受信機と比較します。Bは指定しないでください</translation>
    </message>
    <message>
        <source>%1 is about what is read from the receiver; add --port</source>
        <translation>%1は受信機から読み込む範囲の指定です。--portを付けてください</translation>
    </message>
    <message>
        <source>B is missing; --port P compares with the receiver</source>
        <translation>Bが指定されていません。受信機と比較するには--port Pを付けてください</translation>
    </message>
    <message>
        <source>list what would change and write nothing</source>
        <translation>変更される内容を一覧するだけで、書き込みません</translation>
    </message>
    <message>
        <source>store notes without commas and quotes</source>
        <translation>カンマと引用符を除いてメモを保存します</translation>
    </message>
    <message>
        <source>what decides the order (default frequency)</source>
        <translation>並べ替えの基準 (省略時はfrequency)</translation>
    </message>
    <message>
        <source>what is taken; as for set, and also settings and banks</source>
        <translation>取り込むもの。setと同じ指定のほか、settingsとbanksも使えます</translation>
    </message>
    <message>
        <source>find channels in files</source>
        <translation>ファイルからチャンネルを検索します</translation>
    </message>
    <message>
        <source>PATTERN is one or more words: frequencies, modes, notes, tones. A word such as 118..137, mode=AM, tone=88.5, note~tower, bank:3 or program-scan leaves the rows that meet it. Prints file, bank, channel, memory row and what it holds. Status 1 when nothing was found.</source>
        <translation>PATTERNは1つ以上の語です: 周波数、モード、メモ、トーン。118..137、mode=AM、tone=88.5、note~tower、bank:3、program-scanなどの語を使うと、該当する行だけに絞り込みます。ファイル、バンク、チャンネル、メモリー行とその内容を表示します。見つからなければ終了ステータスは1です。</translation>
    </message>
    <message>
        <source>change fields of channels</source>
        <translation>チャンネルの項目を変更します</translation>
    </message>
    <message>
        <source>ROWS is one or more of all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority and vfo, with commas between; conditions such as mode=AM, freq:118..137 and note~airport leave those of them that meet them. FIELD is freq, mode, step, option, secret, carrier, tone, shift, offset, note, skip or enabled. The limits are those of the channel editor.</source>
        <translation>ROWSは、all、bank:3、bank:2/5-9、memory:0-199、program-scan、search-pass、priority、vfoのうち1つ以上をカンマで区切って指定します。mode=AM、freq:118..137、note~airportなどの条件を付けると、その中から該当する行に絞り込みます。FIELDは、freq、mode、step、option、secret、carrier、tone、shift、offset、note、skip、enabledのいずれかです。値の範囲はチャンネルの編集画面と同じです。</translation>
    </message>
    <message>
        <source>switch channels on</source>
        <translation>チャンネルを有効にします</translation>
    </message>
    <message>
        <source>ROWS is as for set.</source>
        <translation>ROWSの指定はsetと同じです。</translation>
    </message>
    <message>
        <source>switch channels off</source>
        <translation>チャンネルを無効にします</translation>
    </message>
    <message>
        <source>empty rows, with their notes</source>
        <translation>行をメモごと空にします</translation>
    </message>
    <message>
        <source>copy channels to another place</source>
        <translation>チャンネルを別の場所へコピーします</translation>
    </message>
    <message>
        <source>ROWS is as for set. TO is a bank or group, whose empty rows take the channels, or one row such as bank:3/12, from which on they replace what is there.</source>
        <translation>ROWSの指定はsetと同じです。TOにバンクやグループを指定すると、その空の行にチャンネルを入れます。bank:3/12のように1つの行を指定すると、その行から順に置き換えます。</translation>
    </message>
    <message>
        <source>move channels to another place</source>
        <translation>チャンネルを別の場所へ移動します</translation>
    </message>
    <message>
        <source>As copy; the rows that they came from become empty.</source>
        <translation>copyと同じですが、元の行は空になります。</translation>
    </message>
    <message>
        <source>sort the channels of banks and groups</source>
        <translation>バンクやグループのチャンネルを並べ替えます</translation>
    </message>
    <message>
        <source>ROWS is one or more places, each sorted by itself; all sorts every bank and group. Empty rows come last.</source>
        <translation>ROWSは1つ以上の場所で、それぞれの中で並べ替えます。allはすべてのバンクとグループを並べ替えます。空の行は最後になります。</translation>
    </message>
    <message>
        <source>take rows of one file into another</source>
        <translation>ファイルの行を別のファイルに取り込みます</translation>
    </message>
    <message>
        <source>Rows of OTHER that --take names go to the same places of FILE; notes and flags go with them.</source>
        <translation>OTHERの行のうち--takeで指定したものを、FILEの同じ場所に取り込みます。メモとフラグも一緒に取り込みます。</translation>
    </message>
    <message>
        <source>print the completion script of a shell</source>
        <translation>シェルの補完スクリプトを出力します</translation>
    </message>
    <message>
        <source>Installed with the program; for a shell of your own, source what it prints.</source>
        <translation>プログラムと一緒にインストールされます。ご自分のシェルで使うには、出力をsourceで読み込んでください。</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>コマンドの説明を表示します</translation>
    </message>
    <message>
        <source>Without COMMAND it lists all of them.</source>
        <translation>COMMANDを省略すると、すべてのコマンドを一覧します。</translation>
    </message>
    <message>
        <source>TO %1 has room for %2 of %3 channels</source>
        <translation>TO %1には、%3チャンネルのうち%2チャンネル分の空きしかありません</translation>
    </message>
    <message>
        <source>sort takes places such as bank:3 or program-scan, and no conditions</source>
        <translation>sortにはbank:3やprogram-scanなどの場所を指定します。条件は指定できません</translation>
    </message>
    <message>
        <source>rows of two groups cannot be sorted as one; name them apart</source>
        <translation>2つのグループにまたがる行は、まとめて並べ替えられません。別々に指定してください</translation>
    </message>
    <message>
        <source>the two edges of a Program Scan pair stay together; name whole pairs</source>
        <translation>プログラムスキャンの上限と下限の組は分けられません。組全体を指定してください</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1行</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1行</translation>
    </message>
    <message>
        <source>1 setting</source>
        <translation>設定1件</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation>設定%1件</translation>
    </message>
    <message>
        <source>1 bank value</source>
        <translation>バンクの値1件</translation>
    </message>
    <message>
        <source>%1 bank values</source>
        <translation>バンクの値%1件</translation>
    </message>
    <message>
        <source>%1 changed in %2</source>
        <translation>%2の%1を変更しました</translation>
    </message>
    <message>
        <source>ROWS names channels that are not there: %1</source>
        <translation>ROWSが存在しないチャンネルを指しています: %1</translation>
    </message>
    <message>
        <source>none of the rows that ROWS names holds a channel</source>
        <translation>ROWSで指定した行にチャンネルがありません</translation>
    </message>
    <message>
        <source>ROWS names no row of this file</source>
        <translation>ROWSに該当する行がこのファイルにありません</translation>
    </message>
    <message>
        <source>it is one place, such as bank:3 or bank:3/12</source>
        <translation>bank:3やbank:3/12のように、場所を1つ指定してください</translation>
    </message>
    <message>
        <source>it is frequency, note or mode</source>
        <translation>frequency、note、modeのいずれかを指定してください</translation>
    </message>
    <message>
        <source>it is bash, zsh or fish</source>
        <translation>bash、zsh、fishのいずれかを指定してください</translation>
    </message>
    <message>
        <source>FIELD=VALUE is missing, such as mode=AM</source>
        <translation>mode=AMのようなFIELD=VALUEが指定されていません</translation>
    </message>
    <message>
        <source>set changes rows, not settings or banks</source>
        <translation>setで変更できるのは行だけです。設定とバンクは変更できません</translation>
    </message>
    <message>
        <source>--take ROWS is missing: it says what is taken, such as bank:3 or all</source>
        <translation>--take ROWSが指定されていません。bank:3やallのように、取り込むものを指定してください</translation>
    </message>
    <message>
        <source>both names are the same file</source>
        <translation>2つの名前が同じファイルを指しています</translation>
    </message>
    <message>
        <source>several files need a folder: add --to FOLDER</source>
        <translation>複数のファイルにはフォルダーが必要です。--to FOLDERを付けてください</translation>
    </message>
    <message>
        <source>--pdf takes one FILE</source>
        <translation>--pdfに指定できるFILEは1つだけです</translation>
    </message>
    <message>
        <source>a spreadsheet would run these notes as formulas:</source>
        <translation>表計算ソフトで、次のメモが数式として実行されるおそれがあります:</translation>
    </message>
    <message>
        <source>%1: there is no such folder. Make it first.</source>
        <translation>%1: このフォルダーはありません。先に作成してください。</translation>
    </message>
    <message>
        <source>%1: another file of this name went to %2 just now. Export it by itself.</source>
        <translation>%1: 同じ名前の別のファイルを、たった今%2に書き出しました。このファイルは別にエクスポートしてください。</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1はすでにあります。--forceを付けると置き換えます</translation>
    </message>
    <message>
        <source>%1: the list names no file</source>
        <translation>%1: リストにファイル名がありません</translation>
    </message>
    <message>
        <source>this text, or with a command the help of the command</source>
        <translation>この説明を表示します。コマンドと一緒に指定すると、そのコマンドの説明を表示します</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>プログラムのバージョンを表示します</translation>
    </message>
    <message>
        <source>no progress, no closing line and no notes</source>
        <translation>進行状況、終了時のメッセージ、注記を表示しません</translation>
    </message>
    <message>
        <source>every exchange with the receiver and every warning</source>
        <translation>受信機とのやり取りと警告をすべて表示します</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>使い方: %1</translation>
    </message>
    <message>
        <source>Reads, keeps and writes the memory of a Tervan RQ-M5 receiver.</source>
        <translation>Tervan RQ-M5受信機のメモリーを読み込み、保管し、書き込みます。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>コマンド:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>オプション:</translation>
    </message>
    <message>
        <source>&quot;-&quot; as a file name is standard input or standard output.</source>
        <translation>ファイル名「-」は標準入力または標準出力を表します。</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 the operation failed or found a difference, 2 wrong usage.</source>
        <translation>終了ステータス: 0 完了、1 処理に失敗または相違あり、2 使い方の誤り。</translation>
    </message>
    <message>
        <source>%1 would be taken from %2</source>
        <translation>%2から取り込まれる内容: %1</translation>
    </message>
    <message>
        <source>%1 taken from %2</source>
        <translation>%2から%1を取り込みました</translation>
    </message>
    <message>
        <source>not everything was read as written; %1</source>
        <translation>一部を書かれているとおりに読み取れませんでした。%1</translation>
    </message>
    <message>
        <source>the carrier code of %1 moved one up, as with every import of an export: 300Hz is stored as 400Hz</source>
        <translation>空線コードを1つ上げました (%1)。エクスポートしたファイルのインポートでは必ずこうなります: 300Hzは400Hzとして保存されます</translation>
    </message>
    <message>
        <source>%1 holds no record of an RQ-M5; %2</source>
        <translation>%1にRQ-M5のデータがありません。%2</translation>
    </message>
    <message>
        <source>Read as a list: %1</source>
        <translation>リストとして読み取り: %1</translation>
    </message>
    <message>
        <source>not taken: %1</source>
        <translation>取り込めない行: %1</translation>
    </message>
    <message>
        <source>left out:</source>
        <translation>省いたもの:</translation>
    </message>
    <message>
        <source>no row of %1 can be taken; %2</source>
        <translation>%1に取り込める行がありません。%2</translation>
    </message>
    <message>
        <source>no titles; columns are 1 to %1</source>
        <translation>見出しなし。列は1～%1です</translation>
    </message>
    <message>
        <source>the list has no column &quot;%1&quot;; it has %2</source>
        <translation>リストに列「%1」がありません。リストの列: %2</translation>
    </message>
    <message>
        <source>the list does not say which rows it belongs to; name the first one with --from-row, or the columns that name them with --map</source>
        <translation>リストからは取り込み先の行がわかりません。先頭の行を--from-rowで指定するか、行を示す列を--mapで指定してください</translation>
    </message>
    <message>
        <source>there is no row %1 in this file</source>
        <translation>このファイルに行%1はありません</translation>
    </message>
    <message>
        <source>a row is a number 0 to 1209, BANK:CHANNEL such as 3:12, program-scan, search-pass or priority</source>
        <translation>行は、番号0～1209、3:12のようなBANK:CHANNEL、program-scan、search-pass、priorityのいずれかで指定してください</translation>
    </message>
    <message>
        <source>bank %1 has other rows in OTHER than in FILE. Take &quot;banks&quot; as well, or name the rows as memory:0-199</source>
        <translation>バンク%1の行がOTHERとFILEで異なります。「banks」も取り込むか、memory:0-199のように行を指定してください</translation>
    </message>
    <message>
        <source>ROWS names no row of OTHER</source>
        <translation>ROWSに該当する行がOTHERにありません</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;.</source>
        <translation>「%1」を使ってください。</translation>
    </message>
    <message>
        <source>%1: the program that makes PDFs cannot be started. Install rq-m5 again, or print from the window.</source>
        <translation>%1: PDFを作成するプログラムを起動できません。rq-m5をインストールし直すか、ウィンドウから印刷してください。</translation>
    </message>
    <message>
        <source>Try &quot;%1&quot;.</source>
        <translation>「%1」を実行してみてください。</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>不明なコマンド「%1」</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>コマンドが指定されていません</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>行%1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り%1</translation>
    </message>
    <message>
        <source>Port: %1, %2 (without --port, that of RQ-M5.ini)</source>
        <translation>ポート: %1、%2 (--portの指定がないためRQ-M5.iniのポート)</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>デバイスなし</translation>
    </message>
    <message>
        <source>%1: there is a file already; choose another name</source>
        <translation>%1: ファイルがすでにあります。別の名前を指定してください</translation>
    </message>
    <message>
        <source>%1: more than 16 MiB came. No clone file and no CSV file of a receiver is as long; check what is sent.</source>
        <translation>%1: 16 MiBを超えるデータが届きました。クローンファイルや受信機のCSVファイルはこれほど大きくありません。送っている内容を確認してください。</translation>
    </message>
    <message>
        <source>%1: it cannot be read. Give the name of a file.</source>
        <translation>%1: 読み込めません。ファイル名を指定してください。</translation>
    </message>
    <message>
        <source>%1: it cannot be opened. Check its permissions.</source>
        <translation>%1: 開けません。アクセス権を確認してください。</translation>
    </message>
    <message>
        <source>nothing is written</source>
        <translation>何も書き込んでいません</translation>
    </message>
    <message>
        <source>%1 is as it was</source>
        <translation>%1は変わっていません</translation>
    </message>
    <message>
        <source>the output could not be written; is the disk full?</source>
        <translation>出力を書き込めませんでした。ディスクがいっぱいではありませんか?</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>標準出力</translation>
    </message>
    <message>
        <source>%1: there is a file already, and a backup replaces none; choose another name</source>
        <translation>%1: ファイルがすでにあります。バックアップは既存のファイルを置き換えません。別の名前を指定してください</translation>
    </message>
    <message>
        <source>%1: first %2, then %3</source>
        <translation>%1: 1回目 %2、2回目 %3</translation>
    </message>
    <message>
        <source>%1 is written with what came. Check the cable and read again.</source>
        <translation>%1に、受信できた内容を書き込みました。ケーブルを確認して、もう一度読み込んでください。</translation>
    </message>
    <message>
        <source>%1 is written with what came; as it was it is kept as %2. Check the cable and read again.</source>
        <translation>%1に、受信できた内容を書き込みました。元のファイルは%2として残してあります。ケーブルを確認して、もう一度読み込んでください。</translation>
    </message>
    <message>
        <source>Enable flags of other rows that differ from FILE: %1; the receiver keeps its own.</source>
        <translation>FILEと異なるほかの行の有効フラグ: %1。受信機の値のままにします。</translation>
    </message>
    <message>
        <source>these rows are outside the receiver&apos;s range (%1) and are written as they are:</source>
        <translation>次の行は受信機の範囲 (%1) を外れていますが、そのまま書き込みます:</translation>
    </message>
    <message>
        <source>%1 If that is meant, repeat with --force. The backup is in %2</source>
        <translation>%1それでもよければ、--forceを付けてもう一度実行してください。バックアップは%2にあります</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>何も書き込みませんでした。</translation>
    </message>
    <message>
        <source>regions are 0 to 3</source>
        <translation>仕向地は0～3で指定してください</translation>
    </message>
    <message>
        <source>port numbers are 1 to 14; a device path such as /dev/ttyUSB0 is taken too</source>
        <translation>ポート番号は1～14です。/dev/ttyUSB0のようなデバイスのパスも指定できます</translation>
    </message>
    <message>
        <source>it is settings or memory</source>
        <translation>settingsかmemoryを指定してください</translation>
    </message>
    <message>
        <source>it is a bank 0 to 49, %1 or %2</source>
        <translation>バンク0～49、%1、%2のいずれかを指定してください</translation>
    </message>
    <message>
        <source>it is a4 or letter</source>
        <translation>a4かletterを指定してください</translation>
    </message>
    <message>
        <source>the name of a file is missing</source>
        <translation>ファイル名が指定されていません</translation>
    </message>
    <message>
        <source>--bank chooses channels, and --only settings leaves them out</source>
        <translation>--bankはチャンネルを選ぶ指定ですが、--only settingsではチャンネルが対象外です</translation>
    </message>
    <message>
        <source>%1 is about channels, which are not printed; add --memory</source>
        <translation>%1はチャンネルについての指定ですが、チャンネルは出力されません。--memoryを付けてください</translation>
    </message>
    <message>
        <source>%1 is about the pages of a PDF; add --pdf</source>
        <translation>%1はPDFのページについての指定です。--pdfを付けてください</translation>
    </message>
    <message>
        <source>The receiver holds what FILE says already; nothing was written.</source>
        <translation>受信機の内容はすでにFILEと同じです。何も書き込みませんでした。</translation>
    </message>
    <message>
        <source>Known of the receiver since %1.</source>
        <translation>%1以降に読み書きした受信機の内容を使います。</translation>
    </message>
    <message>
        <source>%1 If that is meant, repeat with --force.</source>
        <translation>%1それでもよければ、--forceを付けてもう一度実行してください。</translation>
    </message>
    <message>
        <source>What is to be written was changed at the receiver, too. Read it into another file and take over what is right, or write without --changes.</source>
        <translation>書き込もうとした内容が、受信機側でも変更されています。別のファイルに読み込んで必要なものを取り込むか、--changesを付けずに書き込んでください。</translation>
    </message>
    <message>
        <source>%1, %2: known %3, receiver %4, FILE %5</source>
        <translation>%1、%2: 以前 %3、受信機 %4、FILE %5</translation>
    </message>
    <message>
        <source>--known says what a write of changes begins with; add --changes</source>
        <translation>--knownは変更の書き込みの基準を指定するものです。--changesを付けてください</translation>
    </message>
    <message>
        <source>--changes looks at all parts; leave out %1</source>
        <translation>--changesはすべての部分を対象にします。%1は付けないでください</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>%1行目</translation>
    </message>
    <message>
        <source>%1 %2 left out</source>
        <translation>%1 %2を省きました</translation>
    </message>
    <message>
        <source>%1 has lost digits to an exponent in a spreadsheet</source>
        <translation>%1は、表計算ソフトで指数表示になり桁が失われています</translation>
    </message>
    <message>
        <source>%1 cannot be read for certain as a frequency</source>
        <translation>%1は周波数として確実には読み取れません</translation>
    </message>
    <message>
        <source>a frequency of 0 is no channel</source>
        <translation>周波数0はチャンネルになりません</translation>
    </message>
    <message>
        <source>the receiver has no mode %1</source>
        <translation>受信機にモード%1はありません</translation>
    </message>
    <message>
        <source>the note is cut to 255 characters</source>
        <translation>メモを255文字に切り詰めました</translation>
    </message>
    <message>
        <source>it is a VFO band</source>
        <translation>VFOバンドです</translation>
    </message>
    <message>
        <source>there is no frequency</source>
        <translation>周波数がありません</translation>
    </message>
    <message>
        <source>there are more than 64 columns</source>
        <translation>列が64を超えています</translation>
    </message>
    <message>
        <source>there are more fields than titles</source>
        <translation>項目の数が見出しより多くなっています</translation>
    </message>
    <message>
        <source>it and all behind it are not read: no list of channels has more than 5000 rows</source>
        <translation>この行から後ろは読み込みません。チャンネルのリストは5000行までです</translation>
    </message>
    <message>
        <source>first line</source>
        <translation>最初の行</translation>
    </message>
    <message>
        <source>settings block %1</source>
        <translation>設定ブロック%1</translation>
    </message>
    <message>
        <source>VFO row %1</source>
        <translation>VFO行%1</translation>
    </message>
    <message>
        <source>memory row %1</source>
        <translation>メモリー行%1</translation>
    </message>
    <message>
        <source>channel flags %1</source>
        <translation>チャンネルフラグ%1</translation>
    </message>
    <message>
        <source>note of VFO row %1</source>
        <translation>VFO行%1のメモ</translation>
    </message>
    <message>
        <source>note of memory row %1</source>
        <translation>メモリー行%1のメモ</translation>
    </message>
    <message>
        <source>bank sizes %1</source>
        <translation>バンクサイズ%1</translation>
    </message>
    <message>
        <source>bank links</source>
        <translation>バンクリンク</translation>
    </message>
    <message>
        <source>last line</source>
        <translation>最後の行</translation>
    </message>
    <message>
        <source>Take an older copy of the file, or read the receiver again.</source>
        <translation>ファイルの古いコピーを使うか、受信機をもう一度読み込んでください。</translation>
    </message>
    <message>
        <source>line 1 is not &quot;%1&quot;, so this is no clone file. Choose a clone file (*.RQ5); a CSV file is imported instead.</source>
        <translation>1行目が「%1」ではないため、クローンファイルではありません。クローンファイル (*.RQ5) を選んでください。CSVファイルはインポートで読み込みます。</translation>
    </message>
    <message>
        <source>the file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>the file ends at line %1 of %2: it was cut short.</source>
        <translation>ファイルが%2行中%1行で終わっています。途中で切れています。</translation>
    </message>
    <message>
        <source>line %1 (%2) has %3 characters, %4 are needed. Correct the line in a text editor, or take an older copy of the file.</source>
        <translation>%1行目 (%2) は%3文字ですが、%4文字必要です。テキストエディターで行を直すか、ファイルの古いコピーを使ってください。</translation>
    </message>
    <message>
        <source>line %1 (%2) is not &quot;%3&quot;: lines were added or the file is damaged.</source>
        <translation>%1行目 (%2) が「%3」ではありません。行が追加されたか、ファイルが壊れています。</translation>
    </message>
    <message>
        <source>line %1 (%2) holds a comma, which ends a note and shifts all that follows. File &gt; Repair, or &quot;rq-m5 repair&quot;, replaces it.</source>
        <translation>%1行目 (%2) にカンマがあります。カンマでメモが終わり、以降がすべてずれます。「ファイル &gt; 修復」または「rq-m5 repair」で置き換えられます。</translation>
    </message>
    <message>
        <source>%1 is none of the receiver&apos;s</source>
        <translation>%1は受信機にない値です</translation>
    </message>
    <message>
        <source>%1 is out of range</source>
        <translation>%1は範囲外です</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma</source>
        <translation>%1は小数点がカンマのため、%2と読み取りました</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma, none of the receiver&apos;s</source>
        <translation>%1は小数点がカンマのため、%2と読み取りましたが、受信機にない値です</translation>
    </message>
    <message>
        <source>%1 is read as %2: it has a decimal comma, out of range</source>
        <translation>%1は小数点がカンマのため、%2と読み取りましたが、範囲外です</translation>
    </message>
    <message>
        <source>%1 is read as %2</source>
        <translation>%1を%2と読み取りました</translation>
    </message>
    <message>
        <source>%1 is read as %2, none of the receiver&apos;s</source>
        <translation>%1を%2と読み取りましたが、受信機にない値です</translation>
    </message>
    <message>
        <source>%1 is read as %2, out of range</source>
        <translation>%1を%2と読み取りましたが、範囲外です</translation>
    </message>
    <message>
        <source>the row keeps what it has</source>
        <translation>行の値は変わりません</translation>
    </message>
    <message>
        <source>the row keeps %1</source>
        <translation>行の値は%1のままです</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1は数値ではありません</translation>
    </message>
    <message>
        <source>%1 is read as OFF</source>
        <translation>%1をOFFと読み取りました</translation>
    </message>
    <message>
        <source>%1 MHz is outside the receiver&apos;s range (0.1 to 1299.995 MHz)</source>
        <translation>%1 MHzは受信機の範囲 (0.1～1299.995 MHz) を外れています</translation>
    </message>
    <message>
        <source>the row is empty now</source>
        <translation>行は空になりました</translation>
    </message>
    <message>
        <source>%1 is read as #FALSE#</source>
        <translation>%1を#FALSE#と読み取りました</translation>
    </message>
    <message>
        <source>1 remark</source>
        <translation>備考1件</translation>
    </message>
    <message>
        <source>%1 remarks</source>
        <translation>備考%1件</translation>
    </message>
    <message>
        <source>1 row keeps an old value</source>
        <translation>1行が以前の値のまま</translation>
    </message>
    <message>
        <source>%1 rows keep an old value</source>
        <translation>%1行が以前の値のまま</translation>
    </message>
    <message>
        <source>1 number has a decimal comma</source>
        <translation>小数点がカンマの数値1件</translation>
    </message>
    <message>
        <source>%1 numbers have a decimal comma</source>
        <translation>小数点がカンマの数値%1件</translation>
    </message>
    <message>
        <source>it does not begin with %1 and is passed over</source>
        <translation>%1で始まらないため、読み飛ばしました</translation>
    </message>
    <message>
        <source>there is no table &quot;%1&quot;; the record is passed over</source>
        <translation>「%1」という表はありません。このレコードは読み飛ばしました</translation>
    </message>
    <message>
        <source>%1 has no channel &quot;%2&quot;; the record is passed over</source>
        <translation>%1にチャンネル「%2」はありません。このレコードは読み飛ばしました</translation>
    </message>
    <message>
        <source>the record is short and is passed over</source>
        <translation>レコードが短いため、読み飛ばしました</translation>
    </message>
    <message>
        <source>the record is short; what stands in the next line was read into it</source>
        <translation>レコードが短いため、次の行の内容まで読み込みました</translation>
    </message>
    <message>
        <source>the record has more than 15 fields; the rest is passed over</source>
        <translation>レコードの項目が15を超えています。残りは読み飛ばしました</translation>
    </message>
    <message>
        <source>the extended attribute %1 is gone</source>
        <translation>拡張属性%1がなくなりました</translation>
    </message>
    <message>
        <source>the owner was %1 and is %2</source>
        <translation>所有者が%1から%2に変わりました</translation>
    </message>
    <message>
        <source>the group was %1 and is %2</source>
        <translation>グループが%1から%2に変わりました</translation>
    </message>
    <message>
        <source>the permissions were %1 and are %2</source>
        <translation>アクセス権が%1から%2に変わりました</translation>
    </message>
    <message>
        <source>the access list is gone</source>
        <translation>アクセス制御リストがなくなりました</translation>
    </message>
    <message>
        <source>this is a clone file</source>
        <translation>これはクローンファイルで、</translation>
    </message>
    <message>
        <source>this is a CSV file of this program</source>
        <translation>これはこのプログラムのCSVファイルで、</translation>
    </message>
    <message>
        <source>this is a PDF</source>
        <translation>これはPDFで、</translation>
    </message>
    <message>
        <source>this is a file of another kind</source>
        <translation>これは別の種類のファイルで、</translation>
    </message>
    <message>
        <source>and not a clone file</source>
        <translation>クローンファイルではありません</translation>
    </message>
    <message>
        <source>and not a CSV file of this program</source>
        <translation>このプログラムのCSVファイルではありません</translation>
    </message>
    <message>
        <source>and not a PDF</source>
        <translation>PDFではありません</translation>
    </message>
    <message>
        <source>%1: %2 %3; give another name, or --force to replace it</source>
        <translation>%1: %2%3。別の名前を指定するか、--forceを付けて置き換えてください</translation>
    </message>
    <message>
        <source>there is a folder or a device of that name</source>
        <translation>この名前のフォルダーまたはデバイスがあります</translation>
    </message>
    <message>
        <source>%1: the old file cannot be kept under this name (%2), so nothing was changed. Make room for it, or save under another name.</source>
        <translation>%1: 元のファイルをこの名前で残せないため (%2)、何も変更しませんでした。この名前を空けるか、別の名前で保存してください。</translation>
    </message>
    <message>
        <source>%1: another program wrote this file right after it was saved, so it holds something else. Look at it, then save again or under another name.</source>
        <translation>%1: 保存の直後にほかのプログラムが書き込んだため、ファイルの内容が変わっています。内容を確認してから、もう一度保存するか、別の名前で保存してください。</translation>
    </message>
    <message>
        <source>%1: the file does not hold what was written to it. The disk may be failing; save to another one.</source>
        <translation>%1: ファイルの内容が書き込んだデータと一致しません。ディスクが故障しかけているおそれがあります。別のディスクに保存してください。</translation>
    </message>
    <message>
        <source>%1 The new file is in place; only what it holds could not be compared with what was written.</source>
        <translation>%1新しいファイルへの置き換えは済んでいますが、その内容を書き込んだデータと比較できませんでした。</translation>
    </message>
    <message>
        <source>commas stand for decimals and between fields; separate the fields by tabs</source>
        <translation>カンマが小数点と区切りの両方に使われています。項目をタブで区切ってください</translation>
    </message>
    <message>
        <source>there is no encoding &quot;%1&quot;; one of them is WINDOWS-1252</source>
        <translation>「%1」という文字コードはありません。たとえばWINDOWS-1252を指定できます</translation>
    </message>
    <message>
        <source>the delimiter is tab, semicolon, comma or none</source>
        <translation>区切り文字はtab、semicolon、comma、noneのいずれかです</translation>
    </message>
    <message>
        <source>the decimal sign is point or comma</source>
        <translation>小数点はpointかcommaです</translation>
    </message>
    <message>
        <source>@titles is yes or no</source>
        <translation>@titlesはyesかnoです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of @encoding, @delimiter, @decimal and @titles</source>
        <translation>「%1」は@encoding、@delimiter、@decimal、@titlesのどれでもありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not followed by &quot;=&quot; and a field</source>
        <translation>「%1」の後ろに「=」と項目がありません</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;; the fields are %2</source>
        <translation>「%1」という項目はありません。使える項目: %2</translation>
    </message>
    <message>
        <source>one field a line</source>
        <translation>1行に1項目</translation>
    </message>
    <message>
        <source>each number by itself</source>
        <translation>数値ごとに判別</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>列%1</translation>
    </message>
    <message>
        <source>%1; fields: %2; decimals: %3</source>
        <translation>%1; 区切り文字: %2; 小数点: %3</translation>
    </message>
    <message>
        <source>not used: %1</source>
        <translation>使用しない列: %1</translation>
    </message>
    <message>
        <source>line %1, %2: %3 -&gt; %4</source>
        <translation>%1行目、%2: %3 -&gt; %4</translation>
    </message>
    <message>
        <source>%1: cannot be made</source>
        <translation>%1: 作成できません</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>the new file gets no name here (%1)</source>
        <translation>新しいファイルにここで名前を付けられません (%1)</translation>
    </message>
    <message>
        <source>What was read could not be kept elsewhere either: %1</source>
        <translation>読み込んだ内容を別の場所に保管することもできませんでした: %1</translation>
    </message>
    <message>
        <source>What was read is kept in %1; rq-m5-clone offers it at its next start.</source>
        <translation>読み込んだ内容は%1に保管しました。rq-m5-cloneの次回起動時に復元できます。</translation>
    </message>
    <message>
        <source>%1: %2. %3</source>
        <translation>%1: %2。%3</translation>
    </message>
    <message>
        <source>no file name was given</source>
        <translation>ファイル名が指定されていません</translation>
    </message>
    <message>
        <source>Give one.</source>
        <translation>ファイル名を指定してください。</translation>
    </message>
    <message>
        <source>this is a folder</source>
        <translation>これはフォルダーです</translation>
    </message>
    <message>
        <source>Give the name of a file.</source>
        <translation>ファイル名を指定してください。</translation>
    </message>
    <message>
        <source>this is a device or a pipe and no file</source>
        <translation>ファイルではなく、デバイスまたはパイプです</translation>
    </message>
    <message>
        <source>Change the permissions of the file or save under another name.</source>
        <translation>ファイルのアクセス権を変更するか、別の名前で保存してください。</translation>
    </message>
    <message>
        <source>Check the name and the permissions of the folder, or save in another one.</source>
        <translation>フォルダーの名前とアクセス権を確認するか、別のフォルダーに保存してください。</translation>
    </message>
    <message>
        <source>Free some space on the disk or save on another one, then repeat.</source>
        <translation>ディスクの空きを増やすか、別のディスクに保存して、もう一度実行してください。</translation>
    </message>
    <message>
        <source>Give a shorter name.</source>
        <translation>もっと短い名前を指定してください。</translation>
    </message>
    <message>
        <source>Too many files are open; close other programs, then repeat.</source>
        <translation>開いているファイルが多すぎます。ほかのプログラムを終了して、もう一度実行してください。</translation>
    </message>
    <message>
        <source>The disk may be failing; save on another one.</source>
        <translation>ディスクが故障しかけているおそれがあります。別のディスクに保存してください。</translation>
    </message>
    <message>
        <source>Save in another folder or on another disk.</source>
        <translation>別のフォルダーか別のディスクに保存してください。</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>フォルダー%1がありません</translation>
    </message>
    <message>
        <source>Make the folder or choose another one.</source>
        <translation>フォルダーを作成するか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>Check its name and its folder.</source>
        <translation>ファイル名とフォルダーを確認してください。</translation>
    </message>
    <message>
        <source>the file is larger than 16 MiB</source>
        <translation>ファイルが16 MiBを超えています</translation>
    </message>
    <message>
        <source>No clone file and no CSV file of a receiver is; choose another one.</source>
        <translation>クローンファイルや受信機のCSVファイルはこれほど大きくありません。別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>only %1 KiB are free on the disk, and the file needs %2</source>
        <translation>ディスクの空きが%1 KiBしかありません。ファイルには%2 KiB必要です</translation>
    </message>
    <message>
        <source>%1; the new file is in place, but it may be lost when the power fails</source>
        <translation>%1。新しいファイルへの置き換えは済んでいますが、停電などで電源が切れると失われるおそれがあります</translation>
    </message>
    <message>
        <source>%1; nothing was changed</source>
        <translation>%1。何も変更していません</translation>
    </message>
    <message>
        <source>Change the permissions of the file or open a copy.</source>
        <translation>ファイルのアクセス権を変更するか、コピーを開いてください。</translation>
    </message>
    <message>
        <source>Open a copy from another disk.</source>
        <translation>別のディスクにあるコピーを開いてください。</translation>
    </message>
    <message>
        <source>%1 (no device)</source>
        <translation>%1 (デバイスなし)</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>ビルド</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>ライセンス</translation>
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
        <translation>%1 (ビルド時: %2)</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Port number file</source>
        <translation>ポート番号のファイル</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>ステップ</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Secret code</source>
        <translation>秘話コード</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>空線</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>トーン</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>シフト</translation>
    </message>
    <message>
        <source>Shift frequency</source>
        <translation>シフト周波数</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Program Scan</source>
        <translation>プログラムスキャン</translation>
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
        <translation>プライオリティ</translation>
    </message>
    <message>
        <source>An address is hexadecimal, such as 1000.</source>
        <translation>アドレスは1000のような16進数で指定してください。</translation>
    </message>
    <message>
        <source>The highest address is %1.</source>
        <translation>最大のアドレスは%1です。</translation>
    </message>
    <message>
        <source>An address is that of a block of 16 bytes, so its last digit is 0.</source>
        <translation>アドレスは16バイトのブロックのアドレスなので、最後の桁は0です。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Search Pass count</source>
        <translation>Search Passの数</translation>
    </message>
    <message>
        <source>Region presets</source>
        <translation>仕向地プリセット</translation>
    </message>
    <message>
        <source>Bank sizes</source>
        <translation>バンクサイズ</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Bank %1 link</source>
        <translation>バンク%1のリンク</translation>
    </message>
    <message>
        <source>Enabled channels</source>
        <translation>有効チャンネル</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>Block %1</source>
        <translation>ブロック%1</translation>
    </message>
    <message>
        <source>less than a second</source>
        <translation>1秒未満</translation>
    </message>
    <message>
        <source>about one second</source>
        <translation>約1秒</translation>
    </message>
    <message>
        <source>about %1 seconds</source>
        <translation>約%1秒</translation>
    </message>
    <message>
        <source>about one minute</source>
        <translation>約1分</translation>
    </message>
    <message>
        <source>about %1 minutes</source>
        <translation>約%1分</translation>
    </message>
    <message>
        <source>The receiver was never read in this run: %1 blocks, %2</source>
        <translation>起動後、受信機をまだ読み込んでいません: %1ブロック、%2</translation>
    </message>
    <message>
        <source>Not known of the receiver: %1 blocks, %2</source>
        <translation>受信機の未確認の部分: %1ブロック、%2</translation>
    </message>
    <message>
        <source>1 channel on</source>
        <translation>有効1チャンネル</translation>
    </message>
    <message>
        <source>%1 channels on</source>
        <translation>有効%1チャンネル</translation>
    </message>
    <message>
        <source>1 bank size</source>
        <translation>バンクサイズ1件</translation>
    </message>
    <message>
        <source>%1 bank sizes</source>
        <translation>バンクサイズ%1件</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>リンク1件</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>リンク%1件</translation>
    </message>
    <message>
        <source>1 VFO band</source>
        <translation>VFOバンド1件</translation>
    </message>
    <message>
        <source>%1 VFO bands</source>
        <translation>VFOバンド%1件</translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1を変更</translation>
    </message>
    <message>
        <source>Read in %1 and verified: %2</source>
        <translation>読み込みと照合が完了 (%1): %2</translation>
    </message>
    <message>
        <source>Read in %1: %2</source>
        <translation>読み込み完了 (%1): %2</translation>
    </message>
    <message>
        <source>Written in %1 and verified</source>
        <translation>書き込みと照合が完了 (%1)</translation>
    </message>
    <message>
        <source>Written in %1</source>
        <translation>書き込み完了 (%1)</translation>
    </message>
    <message>
        <source>Compared in %1: no block differs</source>
        <translation>比較完了 (%1): 異なるブロックなし</translation>
    </message>
    <message>
        <source>Compared in %1: 1 block differs</source>
        <translation>比較完了 (%1): 1ブロックが相違</translation>
    </message>
    <message>
        <source>Compared in %1: %2 blocks differ</source>
        <translation>比較完了 (%1): %2ブロックが相違</translation>
    </message>
    <message>
        <source>Settings 2 (Search Pass count)</source>
        <translation>設定2 (Search Passの数)</translation>
    </message>
    <message>
        <source>1 block needed more than one attempt</source>
        <translation>1ブロックで再試行しました</translation>
    </message>
    <message>
        <source>%1 blocks needed more than one attempt</source>
        <translation>%1ブロックで再試行しました</translation>
    </message>
    <message>
        <source>1 block was read with characters that are no hex digits</source>
        <translation>1ブロックに16進数以外の文字がありました</translation>
    </message>
    <message>
        <source>%1 blocks were read with characters that are no hex digits</source>
        <translation>%1ブロックに16進数以外の文字がありました</translation>
    </message>
    <message>
        <source>1 block was different when it was read again</source>
        <translation>1ブロックが2回目の読み込みで一致しませんでした</translation>
    </message>
    <message>
        <source>%1 blocks were different when they were read again</source>
        <translation>%1ブロックが2回目の読み込みで一致しませんでした</translation>
    </message>
    <message>
        <source>%1, the first of them: %2. Check the cable, then repeat the operation.</source>
        <translation>%1 (最初のブロック: %2)。ケーブルを確認して、操作をやり直してください。</translation>
    </message>
    <message>
        <source>Replies came late again and again, so that it cannot be told to which block each belongs. Check the cable and the receiver&apos;s battery, then read again.</source>
        <translation>応答の遅れが繰り返されたため、どのブロックの応答か判別できません。ケーブルと受信機の電池を確認して、もう一度読み込んでください。</translation>
    </message>
    <message>
        <source>All was sent, but replies came late, so that an OK may have been another block&apos;s. Verify what the receiver holds, or repeat the write.</source>
        <translation>すべて送りましたが、応答が遅れたため、OKが別のブロックのものだったおそれがあります。受信機の内容を照合するか、もう一度書き込んでください。</translation>
    </message>
    <message>
        <source>All was read, but not all of it could be read again to compare.</source>
        <translation>すべて読み込みましたが、照合のための2回目の読み込みが一部できませんでした。</translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access to the device.</source>
        <translation>このデバイスへのアクセス権を、コンピューターの管理者に依頼してください。</translation>
    </message>
    <message>
        <source>The group &quot;%1&quot; may use it. Add yourself with &quot;%2&quot;, then log out and in again.</source>
        <translation>グループ「%1」が使用できます。「%2」で自分を追加し、ログアウトしてログインし直してください。</translation>
    </message>
    <message>
        <source>No serial port was found. Plug the adapter in and try again.</source>
        <translation>シリアルポートが見つかりません。アダプターを接続して、もう一度試してください。</translation>
    </message>
    <message>
        <source>Ports found: %1.</source>
        <translation>見つかったポート: %1。</translation>
    </message>
    <message>
        <source>The receiver sent nothing.</source>
        <translation>受信機から何も届きませんでした。</translation>
    </message>
    <message>
        <source>The reply was too short.</source>
        <translation>応答が短すぎました。</translation>
    </message>
    <message>
        <source>The reply was garbled.</source>
        <translation>応答が壊れていました。</translation>
    </message>
    <message>
        <source>The receiver did not answer OK.</source>
        <translation>受信機がOKを返しませんでした。</translation>
    </message>
    <message>
        <source>Another program uses the port. Close it and try again.</source>
        <translation>ポートはほかのプログラムが使用中です。そのプログラムを終了して、もう一度試してください。</translation>
    </message>
    <message>
        <source>Choose another port. %1</source>
        <translation>別のポートを選んでください。%1</translation>
    </message>
    <message>
        <source>Plug the adapter in again and repeat the operation.</source>
        <translation>アダプターを接続し直して、操作をやり直してください。</translation>
    </message>
    <message>
        <source>Check the port and the cable, then repeat the operation.</source>
        <translation>ポートとケーブルを確認して、操作をやり直してください。</translation>
    </message>
    <message>
        <source>(no device)</source>
        <translation>(デバイスなし)</translation>
    </message>
    <message>
        <source>the port failed</source>
        <translation>ポート異常</translation>
    </message>
    <message>
        <source>Block %1 was not asked for: replies had been missing, and then the line did not fall silent. Check the cable, and that nothing but the receiver is on the line.</source>
        <translation>要求していないブロック%1が届きました。応答の欠落が続いた後、回線上のデータが途切れませんでした。ケーブルを確認し、受信機以外の機器がつながっていないことを確かめてください。</translation>
    </message>
    <message>
        <source>one attempt</source>
        <translation>1回の試行</translation>
    </message>
    <message>
        <source>%1 attempts</source>
        <translation>%1回の試行</translation>
    </message>
    <message>
        <source>Check the cable, that the receiver is switched on and that it is in clone mode.</source>
        <translation>ケーブルと、受信機の電源が入ってクローンモードになっていることを確認してください。</translation>
    </message>
    <message>
        <source>Block %1 could not be written in %2. %3 %4</source>
        <translation>ブロック%1を書き込めませんでした (%2)。%3%4</translation>
    </message>
    <message>
        <source>Block %1 could not be read in %2. %3 %4</source>
        <translation>ブロック%1を読み込めませんでした (%2)。%3%4</translation>
    </message>
    <message>
        <source>bank sizes</source>
        <translation>バンクサイズ</translation>
    </message>
    <message>
        <source>enable flags</source>
        <translation>有効フラグ</translation>
    </message>
    <message>
        <source>Bank links</source>
        <translation>バンクリンク</translation>
    </message>
    <message>
        <source>list of Search Pass channels</source>
        <translation>Search Passチャンネルのリスト</translation>
    </message>
    <message>
        <source>region presets</source>
        <translation>仕向地プリセット</translation>
    </message>
    <message>
        <source>Bank sizes %1 to %2</source>
        <translation>バンクサイズ%1～%2</translation>
    </message>
    <message>
        <source>Enable flags of rows %1 to %2</source>
        <translation>行%1～%2の有効フラグ</translation>
    </message>
    <message>
        <source>settings block</source>
        <translation>設定ブロック</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Settings %1</source>
        <translation>設定%1</translation>
    </message>
    <message>
        <source>settings %1</source>
        <translation>設定%1</translation>
    </message>
    <message>
        <source>bank size block</source>
        <translation>バンクサイズのブロック</translation>
    </message>
    <message>
        <source>enable flag block</source>
        <translation>有効フラグのブロック</translation>
    </message>
    <message>
        <source>Search Pass list block</source>
        <translation>Search Passリストのブロック</translation>
    </message>
    <message>
        <source>Search Pass list</source>
        <translation>Search Passリスト</translation>
    </message>
    <message>
        <source>Search Pass list %1</source>
        <translation>Search Passリスト%1</translation>
    </message>
    <message>
        <source>region preset</source>
        <translation>仕向地プリセット</translation>
    </message>
    <message>
        <source>VFO band</source>
        <translation>VFOバンド</translation>
    </message>
    <message>
        <source>VFO bands</source>
        <translation>VFOバンド</translation>
    </message>
    <message>
        <source>VFO %1</source>
        <translation>VFO %1</translation>
    </message>
    <message>
        <source>row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>The backup could not be made, so nothing was written.</source>
        <translation>バックアップを作成できなかったため、何も書き込みませんでした。</translation>
    </message>
    <message>
        <source>All was written, but not all of it could be verified.</source>
        <translation>すべて書き込みましたが、一部を照合できませんでした。</translation>
    </message>
    <message>
        <source>The receiver is an %1, and what is to be written is for an %2.</source>
        <translation>受信機は%1ですが、書き込むデータは%2用です。</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <translation>%1 %2～%3</translation>
    </message>
    <message>
        <source>Sent: nothing.</source>
        <translation>送信済み: なし。</translation>
    </message>
    <message>
        <source>Sent: %1.</source>
        <translation>送信済み: %1。</translation>
    </message>
    <message>
        <source>Refused: %1 (may hold its old or its new contents).</source>
        <translation>拒否: %1 (元の内容か新しい内容かわかりません)。</translation>
    </message>
    <message>
        <source>Without an answer: %1 (may hold its old or its new contents).</source>
        <translation>応答なし: %1 (元の内容か新しい内容かわかりません)。</translation>
    </message>
    <message>
        <source>Not sent: %1.</source>
        <translation>未送信: %1。</translation>
    </message>
    <message>
        <source>Repeating the write completes it.</source>
        <translation>もう一度書き込むと完了します。</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Bank %1</source>
        <translation>バンク%1</translation>
    </message>
    <message>
        <source>Channels in no bank</source>
        <translation>バンク外のチャンネル数</translation>
    </message>
    <message>
        <source>Bank %1 size</source>
        <translation>バンク%1のサイズ</translation>
    </message>
    <message>
        <source>Link flag %1 link</source>
        <translation>リンクフラグ%1</translation>
    </message>
    <message>
        <source>Bank %1 size: %2</source>
        <translation>バンク%1のサイズ: %2</translation>
    </message>
    <message>
        <source>Move channels with their banks</source>
        <translation>チャンネルをバンクと一緒に移動</translation>
    </message>
    <message>
        <source>Link bank %1</source>
        <translation>バンク%1をリンク</translation>
    </message>
    <message>
        <source>Unlink bank %1</source>
        <translation>バンク%1のリンクを解除</translation>
    </message>
    <message>
        <source>The receiver takes 0.1 to 1299.995 MHz.</source>
        <translation>受信機の範囲は0.1～1299.995 MHzです。</translation>
    </message>
    <message>
        <source>It is a frequency of the cellular phone, which this model refuses.</source>
        <translation>携帯電話の周波数です。この機種には設定できません。</translation>
    </message>
    <message>
        <source>Another Search Pass channel has the same frequency.</source>
        <translation>ほかのSearch Passチャンネルに同じ周波数があります。</translation>
    </message>
    <message>
        <source>Cut (%1)</source>
        <translation>切り取り (%1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Paste Special</source>
        <translation>列を選んで貼り付け</translation>
    </message>
    <message>
        <source>Fill Down</source>
        <translation>下方向へコピー</translation>
    </message>
    <message>
        <source>Fill Series</source>
        <translation>連続データの作成</translation>
    </message>
    <message>
        <source>Take from %1 (%2)</source>
        <translation>%1から取り込み (%2)</translation>
    </message>
    <message>
        <source>Moved: there at %1</source>
        <translation>移動: 比較相手では%1</translation>
    </message>
    <message>
        <source>Only here</source>
        <translation>編集中のデータのみ</translation>
    </message>
    <message>
        <source>Moved: the one there is at %1 here</source>
        <translation>移動: 比較相手の行は編集中のデータでは%1</translation>
    </message>
    <message>
        <source>the one there is at %1 here</source>
        <translation>比較相手の行は編集中のデータでは%1</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>比較相手のみ</translation>
    </message>
    <message>
        <source>%1, %2 differences</source>
        <translation>%1、相違%2件</translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation>相違%1件</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(空)</translation>
    </message>
    <message>
        <source>%1 (off)</source>
        <translation>%1 (無効)</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>バンク外</translation>
    </message>
    <message>
        <source>Not in the receiver</source>
        <translation>受信機にない行</translation>
    </message>
    <message>
        <source>Bank layout</source>
        <translation>バンク構成</translation>
    </message>
    <message>
        <source>FM, AM or WFM</source>
        <translation>FM、AM、WFMのいずれか</translation>
    </message>
    <message>
        <source>a step of the receiver, such as 12.5KHz</source>
        <translation>受信機のステップ (例: 12.5KHz)</translation>
    </message>
    <message>
        <source>OFF, SCRT, Carrier, Tone or Rev.</source>
        <translation>OFF、SCRT、Carrier、Tone、Rev.のいずれか</translation>
    </message>
    <message>
        <source>0 to 16</source>
        <translation>0～16</translation>
    </message>
    <message>
        <source>300Hz to 3000Hz or JR</source>
        <translation>300Hz～3000HzまたはJR</translation>
    </message>
    <message>
        <source>a CTCSS tone, such as 88.5Hz</source>
        <translation>CTCSSトーン (例: 88.5Hz)</translation>
    </message>
    <message>
        <source>OFF, + or -</source>
        <translation>OFF、+、-のいずれか</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;: it is %3</source>
        <translation>%1 「%2」: %3を指定してください</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>onまたはoff</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of MHz, such as 145.5</source>
        <translation>「%1」は145.5のようなMHz単位の数値ではありません</translation>
    </message>
    <message>
        <source>the %1 has no secret code</source>
        <translation>%1に秘話コードはありません</translation>
    </message>
    <message>
        <source>the %1 has no carrier</source>
        <translation>%1に空線はありません</translation>
    </message>
    <message>
        <source>This VFO band takes %1.</source>
        <translation>このVFOバンドの範囲は%1です。</translation>
    </message>
    <message>
        <source>a VFO band has no note</source>
        <translation>VFOバンドに項目「note」はありません</translation>
    </message>
    <message>
        <source>a VFO band has no skip</source>
        <translation>VFOバンドに項目「skip」はありません</translation>
    </message>
    <message>
        <source>a VFO band has no enabled</source>
        <translation>VFOバンドに項目「enabled」はありません</translation>
    </message>
    <message>
        <source>Offsets are below 100 MHz.</source>
        <translation>シフト周波数は100 MHz未満です。</translation>
    </message>
    <message>
        <source>the editor has no step %1</source>
        <translation>編集画面にステップ%1はありません</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no FIELD=VALUE, such as mode=AM</source>
        <translation>「%1」はmode=AMのようなFIELD=VALUEの形ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no field; it is %2</source>
        <translation>「%1」という項目はありません。使える項目: %2</translation>
    </message>
    <message>
        <source>the model region does not have it</source>
        <translation>この仕向地にはありません</translation>
    </message>
    <message>
        <source>the series ends at 0</source>
        <translation>周波数が0に達するため作成できません</translation>
    </message>
    <message>
        <source>Show the operation buttons</source>
        <translation>操作ボタンを表示</translation>
    </message>
    <message>
        <source>Hide the operation buttons</source>
        <translation>操作ボタンを隠す</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>入力 (%1)</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1チャンネル</translation>
    </message>
    <message>
        <source>%1  CH %2</source>
        <translation>%1  CH %2</translation>
    </message>
    <message>
        <source>Band %1</source>
        <translation>バンド%1</translation>
    </message>
    <message>
        <source>CH %1</source>
        <translation>CH %1</translation>
    </message>
    <message>
        <source>Modify (%1, %2 channels)</source>
        <translation>編集 (%1の%2チャンネル)</translation>
    </message>
    <message>
        <source>Modify (%1)</source>
        <translation>編集 (%1)</translation>
    </message>
    <message>
        <source>%1 CH %2</source>
        <translation>%1 CH %2</translation>
    </message>
    <message>
        <source>Move (%1)</source>
        <translation>移動 (%1)</translation>
    </message>
    <message>
        <source>Every row of %1 from here on holds a channel or a note. Clear one, or make the bank larger on the Bank page.</source>
        <translation>%1のここから先の行は、すべてチャンネルかメモで埋まっています。いずれかを消去するか、「バンク」ページでバンクを大きくしてください。</translation>
    </message>
    <message>
        <source>Insert Row (%1)</source>
        <translation>行の挿入 (%1)</translation>
    </message>
    <message>
        <source>Delete Row (%1)</source>
        <translation>行の削除 (%1)</translation>
    </message>
    <message>
        <source>Move to %1 (%2)</source>
        <translation>%1へ移動 (%2)</translation>
    </message>
    <message>
        <source>Copy to %1 (%2)</source>
        <translation>%1へコピー (%2)</translation>
    </message>
    <message>
        <source>Sort by Frequency (%1)</source>
        <translation>周波数順に並べ替え (%1)</translation>
    </message>
    <message>
        <source>Sort by Note (%1)</source>
        <translation>メモ順に並べ替え (%1)</translation>
    </message>
    <message>
        <source>Sort by Mode (%1)</source>
        <translation>モード順に並べ替え (%1)</translation>
    </message>
    <message>
        <source>there is no memory row &quot;%1&quot;</source>
        <translation>メモリー行「%1」はありません</translation>
    </message>
    <message>
        <source>the list names no row for it</source>
        <translation>リストに行の指定がありません</translation>
    </message>
    <message>
        <source>there is no channel &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>「%2」にチャンネル「%1」はありません</translation>
    </message>
    <message>
        <source>the row holds no channel, and no frequency comes</source>
        <translation>行にチャンネルがなく、周波数の指定もありません</translation>
    </message>
    <message>
        <source>there is no row left for it</source>
        <translation>空いている行がありません</translation>
    </message>
    <message>
        <source>the list names this row twice</source>
        <translation>この行はリストで2回指定されています</translation>
    </message>
    <message>
        <source>Rows that are written: %1</source>
        <translation>書き換える行: %1</translation>
    </message>
    <message>
        <source>Rows that are written: %1, of which 1 holds a channel now</source>
        <translation>書き換える行: %1、うち現在チャンネルあり: 1</translation>
    </message>
    <message>
        <source>Rows that are written: %1, of which %2 hold a channel now</source>
        <translation>書き換える行: %1、うち現在チャンネルあり: %2</translation>
    </message>
    <message>
        <source>%1; refused: %2</source>
        <translation>%1、拒否: %2</translation>
    </message>
    <message>
        <source>0.1 to 1299.995 MHz</source>
        <translation>0.1～1299.995 MHz</translation>
    </message>
    <message>
        <source>%1: it is all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority, vfo, settings, banks, or a condition such as mode=AM, freq:118..137 or note~airport</source>
        <translation>%1: all、bank:3、bank:2/5-9、memory:0-199、program-scan、search-pass、priority、vfo、settings、banks、またはmode=AM、freq:118..137、note~airportなどの条件を指定してください</translation>
    </message>
    <message>
        <source>%1: its channels are %2 to %3</source>
        <translation>%1: チャンネルは%2～%3です</translation>
    </message>
    <message>
        <source>%1: memory rows are 0 to %2</source>
        <translation>%1: メモリー行は0～%2です</translation>
    </message>
    <message>
        <source>a condition chooses memory rows; vfo, settings and banks cannot stand beside it</source>
        <translation>条件で選べるのはメモリー行だけです。vfo、settings、banksと一緒には指定できません</translation>
    </message>
    <message>
        <source>%1: VFO rows are 0 to %2</source>
        <translation>%1: VFO行は0～%2です</translation>
    </message>
    <message>
        <source>%1: banks are 0 to 49, as in bank:3, bank:0-4 or bank:2/5-9</source>
        <translation>%1: バンクは0～49です (例: bank:3、bank:0-4、bank:2/5-9)</translation>
    </message>
    <message>
        <source>%1: channels of a bank count from 0, as in bank:2/5-9</source>
        <translation>%1: バンクのチャンネルは0から数えます (例: bank:2/5-9)</translation>
    </message>
    <message>
        <source>%1: &quot;~&quot; looks for a text in the note, as in note~airport</source>
        <translation>%1: 「~」はメモの文字を検索します (例: note~airport)</translation>
    </message>
    <message>
        <source>%1: write it with &quot;=&quot;, as in mode=AM</source>
        <translation>%1: 「=」を使って指定してください (例: mode=AM)</translation>
    </message>
    <message>
        <source>%1: the lower end comes first</source>
        <translation>%1: 小さいほうの値を先に指定してください</translation>
    </message>
    <message>
        <source>bank %1 has %2 channel</source>
        <translation>バンク%1のチャンネル数は%2です</translation>
    </message>
    <message>
        <source>bank %1 has %2 channels</source>
        <translation>バンク%1のチャンネル数は%2です</translation>
    </message>
    <message>
        <source>This clears %1, %2.</source>
        <translation>%1 (%2) を消去します。</translation>
    </message>
    <message>
        <source>This clears %1.</source>
        <translation>%1を消去します。</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>すべて消去</translation>
    </message>
    <message>
        <source>This deletes %1, %2.</source>
        <translation>%1 (%2) を削除します。</translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation>削除 (%1)</translation>
    </message>
    <message>
        <source>Insert (%1)</source>
        <translation>挿入 (%1)</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効化</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>無効化</translation>
    </message>
    <message>
        <source>Enable All</source>
        <translation>すべて有効化</translation>
    </message>
    <message>
        <source>Disable All</source>
        <translation>すべて無効化</translation>
    </message>
    <message>
        <source>%1, channel %2</source>
        <translation>%1、チャンネル%2</translation>
    </message>
    <message>
        <source>memory row %1 (%2)</source>
        <translation>メモリー行%1 (%2)</translation>
    </message>
    <message>
        <source>memory row %1 (in no bank)</source>
        <translation>メモリー行%1 (バンク外)</translation>
    </message>
    <message>
        <source>memory row %1 (not in the receiver)</source>
        <translation>メモリー行%1 (受信機にない行)</translation>
    </message>
    <message>
        <source>Row %1 (no bank)</source>
        <translation>行%1 (バンク外)</translation>
    </message>
    <message>
        <source>Row %1 (%2)</source>
        <translation>行%1 (%2)</translation>
    </message>
    <message>
        <source>%1, 1 channel</source>
        <translation>%1の1チャンネル</translation>
    </message>
    <message>
        <source>%1, %2 channels</source>
        <translation>%1の%2チャンネル</translation>
    </message>
    <message>
        <source>%1, the one channel shown of %2</source>
        <translation>%1の%2チャンネルのうち表示中の1チャンネル</translation>
    </message>
    <message>
        <source>%1, the %2 channels shown of %3</source>
        <translation>%1の%3チャンネルのうち表示中の%2チャンネル</translation>
    </message>
    <message>
        <source>which is empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>No row moved</source>
        <translation>移動した行はありません</translation>
    </message>
    <message>
        <source>row %1 was empty, so nothing is lost</source>
        <translation>行%1は空だったため、失われたものはありません</translation>
    </message>
    <message>
        <source>lost: %1 MHz in row %2 (in no bank)</source>
        <translation>失われたチャンネル: 行%2 (バンク外) の%1 MHz</translation>
    </message>
    <message>
        <source>lost: %1 MHz in row %2 (%3)</source>
        <translation>失われたチャンネル: 行%2 (%3) の%1 MHz</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation>%1。%2。</translation>
    </message>
    <message>
        <source>Row %1 moved down</source>
        <translation>行%1を下へ移動</translation>
    </message>
    <message>
        <source>Rows %1 to %2 moved down</source>
        <translation>行%1～%2を下へ移動</translation>
    </message>
    <message>
        <source>Row %1 moved up</source>
        <translation>行%1を上へ移動</translation>
    </message>
    <message>
        <source>Rows %1 to %2 moved up</source>
        <translation>行%1～%2を上へ移動</translation>
    </message>
    <message>
        <source>The pages could not be made; there may be too little memory.</source>
        <translation>ページを作成できませんでした。メモリー不足のおそれがあります。</translation>
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
        <translation>ビジースキャン</translation>
    </message>
    <message>
        <source>Timer Scan</source>
        <translation>タイマースキャン</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>プッシュ</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>モニター</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>Operating Mode</source>
        <translation>動作モード</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Squelch</source>
        <translation>スケルチ</translation>
    </message>
    <message>
        <source>Scan Mode</source>
        <translation>スキャンモード</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>ランプ</translation>
    </message>
    <message>
        <source>Auto Power Off (minutes)</source>
        <translation>オートパワーオフ (分)</translation>
    </message>
    <message>
        <source>Bug Sensitive Level</source>
        <translation>盗聴器検知感度</translation>
    </message>
    <message>
        <source>MONI Key Function</source>
        <translation>MONIキーの動作</translation>
    </message>
    <message>
        <source>MONI Key</source>
        <translation>MONIキー</translation>
    </message>
    <message>
        <source>Battery Save</source>
        <translation>バッテリーセーブ</translation>
    </message>
    <message>
        <source>Keylock</source>
        <translation>キーロック</translation>
    </message>
    <message>
        <source>Write Protect</source>
        <translation>書き込み保護</translation>
    </message>
    <message>
        <source>Beep</source>
        <translation>ビープ音</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>ベル</translation>
    </message>
    <message>
        <source>Attenuator</source>
        <translation>アッテネーター</translation>
    </message>
    <message>
        <source>Auto Step</source>
        <translation>オートステップ</translation>
    </message>
    <message>
        <source>Earphone Antenna</source>
        <translation>イヤホンアンテナ</translation>
    </message>
    <message>
        <source>SW bar antenna</source>
        <translation>SWバーアンテナ</translation>
    </message>
    <message>
        <source>AM bar antenna</source>
        <translation>AMバーアンテナ</translation>
    </message>
    <message>
        <source>VFO</source>
        <translation>VFO</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリー</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>No bank</source>
        <translation>バンク外</translation>
    </message>
    <message>
        <source>Not in receiver</source>
        <translation>受信機にない行</translation>
    </message>
    <message>
        <source>COM Port Error</source>
        <translation>COMポートエラー</translation>
    </message>
    <message>
        <source>Communication Error</source>
        <translation>通信エラー</translation>
    </message>
    <message>
        <source>Data Error</source>
        <translation>データエラー</translation>
    </message>
    <message>
        <source>File Open Error</source>
        <translation>ファイルオープンエラー</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか%1件</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>Nothing to change in %1</source>
        <translation>%1に変更するものはありません</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>許可されていない操作です</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>ファイルまたはフォルダーがありません</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>読み取り専用のファイルシステムです</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>ディスクに空きがありません</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>ディスクの割り当てを使い切りました</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>入出力エラーです</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>ファイル名が長すぎます</translation>
    </message>
</context>
<context>
    <name>MessageDialogs</name>
    <message>
        <source>Tervan RQ-M5 Clone Files (*.RQ5);;All Files (*.*)</source>
        <translation>Tervan RQ-M5 クローンファイル (*.RQ5);;すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*.*)</source>
        <translation>CSVファイル (*.csv);;すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf);;All Files (*.*)</source>
        <translation>PDFファイル (*.pdf);;すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Text Files (*.txt);;All Files (*.*)</source>
        <translation>テキストファイル (*.txt);;すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;All Files (*.*)</source>
        <translation>画像 (*.png *.svg);;すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>リストのエクスポート</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDFとして保存</translation>
    </message>
    <message>
        <source>Save as Text</source>
        <translation>テキストとして保存</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>画像の保存</translation>
    </message>
    <message>
        <source>&amp;Copy Command</source>
        <translation>コマンドをコピー(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Modify</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>秘話</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>空線</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>トーン</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>リバース</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Modulation Mode</source>
        <translation>変調モード</translation>
    </message>
    <message>
        <source>Tuning Step</source>
        <translation>チューニングステップ</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>シフト</translation>
    </message>
</context>
<context>
    <name>Parts</name>
    <message>
        <source>&amp;Frequency</source>
        <translation>周波数(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>モード(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation>ステップ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>オプション(&amp;O)</translation>
    </message>
    <message>
        <source>Secret &amp;code</source>
        <translation>秘話コード(&amp;C)</translation>
    </message>
    <message>
        <source>T&amp;rain tone</source>
        <translation>空線信号(&amp;R)</translation>
    </message>
    <message>
        <source>CTCSS &amp;tone</source>
        <translation>CTCSSトーン(&amp;T)</translation>
    </message>
    <message>
        <source>S&amp;hift</source>
        <translation>シフト(&amp;H)</translation>
    </message>
    <message>
        <source>Shift fre&amp;quency</source>
        <translation>シフト周波数(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>メモ(&amp;N)</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>スキップ(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Enabled</source>
        <translation>有効(&amp;E)</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>コマンドラインオプションのヘルプを表示します。</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Qt固有のオプションを含むヘルプを表示します。</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>バージョン情報を表示します。</translation>
    </message>
</context>
<context>
    <name>QPrintPreviewDialog</name>
    <message>
        <source>Page setup</source>
        <translation>ページ設定</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
</context>
<context>
    <name>QSerialPort</name>
    <message>
        <source>Permission error while locking the device</source>
        <translation>デバイスをロックできません</translation>
    </message>
    <message>
        <source>Permission error while creating lock file</source>
        <translation>ロックファイルを作成できません</translation>
    </message>
    <message>
        <source>Error reading from device</source>
        <translation>デバイスからの読み取りエラー</translation>
    </message>
    <message>
        <source>Error writing to device</source>
        <translation>デバイスへの書き込みエラー</translation>
    </message>
    <message>
        <source>Operation timed out</source>
        <translation>タイムアウトしました</translation>
    </message>
    <message>
        <source>Unsupported open mode</source>
        <translation>このモードでは開けません</translation>
    </message>
</context>
<context>
    <name>SavePrompts</name>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>名前を付けて保存...</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>上書き</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>ファイル: %1</translation>
    </message>
    <message>
        <source>The file was removed or renamed by another program.</source>
        <translation>ファイルがほかのプログラムによって削除されたか、名前を変更されました。</translation>
    </message>
    <message>
        <source>Overwrite makes a file of this name again.</source>
        <translation>「上書き」を選ぶと、この名前のファイルをもう一度作成します。</translation>
    </message>
    <message>
        <source>The file was changed by another program.</source>
        <translation>ファイルがほかのプログラムによって変更されました。</translation>
    </message>
    <message>
        <source>Overwrite puts your version in its place, and what the other program saved is lost. Save As keeps both.</source>
        <translation>「上書き」を選ぶと編集中のデータに置き換わり、ほかのプログラムが保存した内容は失われます。「名前を付けて保存」なら両方が残ります。</translation>
    </message>
    <message>
        <source>The file has more than one name.</source>
        <translation>このファイルには複数の名前があります。</translation>
    </message>
    <message>
        <source>File: %1
It is one of %2 names (hard links) of the same file. A save gives this name a file of its own; the others keep the old contents.</source>
        <translation>ファイル: %1
同じファイルに付いた%2個の名前 (ハードリンク) の1つです。保存するとこの名前は別のファイルになり、ほかの名前には元の内容が残ります。</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>These notes keep the file from being opened.</source>
        <translation>次のメモが原因でファイルを開けません。</translation>
    </message>
    <message>
        <source>Commas become semicolons, quotes apostrophes:
%1

In Place keeps the old file as %2.</source>
        <translation>カンマをセミコロンに、引用符をアポストロフィに置き換えます:
%1

「上書き修復」では元のファイルを%2として残します。</translation>
    </message>
    <message>
        <source>In Place</source>
        <translation>上書き修復</translation>
    </message>
    <message>
        <source>%1 was no clone file; what it was is kept as %2.</source>
        <translation>%1はクローンファイルではありませんでした。元の内容は%2に残してあります。</translation>
    </message>
    <message>
        <source>Saved, but a clone file cannot hold these values; they read back otherwise: %1.</source>
        <translation>保存しましたが、次の値はクローンファイルに格納できず、開き直すと変わります: %1。</translation>
    </message>
    <message>
        <source>Saved, but not all that belonged to the old file could be kept: %1.</source>
        <translation>保存しましたが、元のファイルの属性の一部を引き継げませんでした: %1。</translation>
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
        <translation>メモリー</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Busy Scan</source>
        <translation>ビジースキャン</translation>
    </message>
    <message>
        <source>Timer Scan</source>
        <translation>タイマースキャン</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>The receiver&apos;s model region: its bands, limits and presets</source>
        <translation>受信機の仕向地。バンド、範囲、プリセットが決まります</translation>
    </message>
    <message>
        <source>Operating Mode</source>
        <translation>動作モード</translation>
    </message>
    <message>
        <source>What the receiver tunes with</source>
        <translation>受信機の選局方法</translation>
    </message>
    <message>
        <source>Scan Mode</source>
        <translation>スキャンモード</translation>
    </message>
    <message>
        <source>When a scan that has stopped on a signal goes on</source>
        <translation>信号で止まったスキャンを再開する条件</translation>
    </message>
    <message>
        <source>V&amp;olume</source>
        <translation>音量(&amp;O)</translation>
    </message>
    <message>
        <source>Volume, 0 to 50</source>
        <translation>音量 (0～50)</translation>
    </message>
    <message>
        <source>S&amp;quelch</source>
        <translation>スケルチ(&amp;Q)</translation>
    </message>
    <message>
        <source>Squelch, 0 to 9</source>
        <translation>スケルチ (0～9)</translation>
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
        <translation>プッシュ</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>モニター</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>ランプ</translation>
    </message>
    <message>
        <source>How long the display stays lit</source>
        <translation>ディスプレイの照明が点灯している時間</translation>
    </message>
    <message>
        <source>Auto Power Off (minutes)</source>
        <translation>オートパワーオフ (分)</translation>
    </message>
    <message>
        <source>After how many minutes without use the receiver switches itself off</source>
        <translation>操作がないときに受信機の電源が切れるまでの時間 (分)</translation>
    </message>
    <message>
        <source>Bug Sensitive Level</source>
        <translation>盗聴器検知感度</translation>
    </message>
    <message>
        <source>How sensitive the search for hidden transmitters is</source>
        <translation>盗聴器 (隠された送信機) を探すときの感度</translation>
    </message>
    <message>
        <source>MONI Key Function</source>
        <translation>MONIキーの動作</translation>
    </message>
    <message>
        <source>Whether the MONI key works while it is pushed or until it is pushed again</source>
        <translation>MONIキーを押している間だけ働くか、もう一度押すまで働くか</translation>
    </message>
    <message>
        <source>MONI Key</source>
        <translation>MONIキー</translation>
    </message>
    <message>
        <source>What the MONI key does</source>
        <translation>MONIキーの機能</translation>
    </message>
    <message>
        <source>Power and keys</source>
        <translation>電源とキー</translation>
    </message>
    <message>
        <source>Batter&amp;y Save</source>
        <translation>バッテリーセーブ(&amp;Y)</translation>
    </message>
    <message>
        <source>Save the battery while no signal is received</source>
        <translation>信号がない間、電池の消費を抑えます</translation>
    </message>
    <message>
        <source>&amp;Keylock</source>
        <translation>キーロック(&amp;K)</translation>
    </message>
    <message>
        <source>Lock the receiver&apos;s keys</source>
        <translation>受信機のキーをロックします</translation>
    </message>
    <message>
        <source>Write &amp;Protect</source>
        <translation>書き込み保護(&amp;P)</translation>
    </message>
    <message>
        <source>Protect the receiver&apos;s memory channels from being overwritten on its keys</source>
        <translation>受信機のキー操作によるメモリーチャンネルの上書きを防ぎます</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>サウンド</translation>
    </message>
    <message>
        <source>&amp;Beep</source>
        <translation>ビープ音(&amp;B)</translation>
    </message>
    <message>
        <source>Beep when a key is pressed</source>
        <translation>キーを押したときにビープ音を鳴らします</translation>
    </message>
    <message>
        <source>Be&amp;ll</source>
        <translation>ベル(&amp;L)</translation>
    </message>
    <message>
        <source>Ring when a signal comes in</source>
        <translation>信号を受信したときにベルを鳴らします</translation>
    </message>
    <message>
        <source>Reception</source>
        <translation>受信</translation>
    </message>
    <message>
        <source>Atten&amp;uator</source>
        <translation>アッテネーター(&amp;U)</translation>
    </message>
    <message>
        <source>Weaken strong signals</source>
        <translation>強い信号を減衰させます</translation>
    </message>
    <message>
        <source>Aut&amp;o Step</source>
        <translation>オートステップ(&amp;O)</translation>
    </message>
    <message>
        <source>Let the receiver choose the tuning step of a band</source>
        <translation>チューニングステップを受信機が自動で選びます</translation>
    </message>
    <message>
        <source>Antennas</source>
        <translation>アンテナ</translation>
    </message>
    <message>
        <source>Earphone &amp;Antenna</source>
        <translation>イヤホンアンテナ(&amp;A)</translation>
    </message>
    <message>
        <source>Use the cord of the earphone as antenna</source>
        <translation>イヤホンのコードをアンテナとして使います</translation>
    </message>
    <message>
        <source>&amp;SW bar antenna</source>
        <translation>SWバーアンテナ(&amp;S)</translation>
    </message>
    <message>
        <source>Use the built-in bar antenna on short wave</source>
        <translation>短波で内蔵バーアンテナを使います</translation>
    </message>
    <message>
        <source>A&amp;M bar antenna</source>
        <translation>AMバーアンテナ(&amp;M)</translation>
    </message>
    <message>
        <source>Use the built-in bar antenna on medium wave</source>
        <translation>中波で内蔵バーアンテナを使います</translation>
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
        <translation>チャンネルなし</translation>
    </message>
    <message>
        <source>off</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>stored twice</source>
        <translation>重複</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>受信不可</translation>
    </message>
</context>
<context>
    <name>TransferProgress</name>
    <message>
        <source>Reading settings and VFO bands</source>
        <translation>設定とVFOバンドを読み込み中</translation>
    </message>
    <message>
        <source>Reading banks and flags</source>
        <translation>バンクとフラグを読み込み中</translation>
    </message>
    <message>
        <source>Reading channels</source>
        <translation>チャンネルを読み込み中</translation>
    </message>
    <message>
        <source>Reading again to compare</source>
        <translation>照合のためもう一度読み込み中</translation>
    </message>
    <message>
        <source>Backup of settings and VFO bands</source>
        <translation>設定とVFOバンドをバックアップ中</translation>
    </message>
    <message>
        <source>Backup of banks and flags</source>
        <translation>バンクとフラグをバックアップ中</translation>
    </message>
    <message>
        <source>Backup of channels</source>
        <translation>チャンネルをバックアップ中</translation>
    </message>
    <message>
        <source>Writing settings and VFO bands</source>
        <translation>設定とVFOバンドを書き込み中</translation>
    </message>
    <message>
        <source>Writing banks and flags</source>
        <translation>バンクとフラグを書き込み中</translation>
    </message>
    <message>
        <source>Writing channels</source>
        <translation>チャンネルを書き込み中</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>照合中</translation>
    </message>
    <message>
        <source>Reading what is not known</source>
        <translation>未確認の部分を読み込み中</translation>
    </message>
    <message>
        <source>Reading what is replaced</source>
        <translation>置き換える部分を読み込み中</translation>
    </message>
    <message>
        <source>Writing changes</source>
        <translation>変更を書き込み中</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2/%3</translation>
    </message>
    <message>
        <source>%1, about %2 left</source>
        <translation>%1、残り約%2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Reads, edits and writes the memory of an RQ-M5 receiver.</source>
        <translation>RQ-M5受信機のメモリーを読み込み、編集し、書き込みます。</translation>
    </message>
    <message>
        <source>Clone file to open.</source>
        <translation>開くクローンファイル。</translation>
    </message>
</context>
<context>
    <name>rqm5::BackupCommands</name>
    <message>
        <source>Write</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Write this backup to the receiver?</source>
        <translation>このバックアップを受信機に書き込みますか?</translation>
    </message>
    <message>
        <source>%1
It replaces in the receiver: %2. The open image stays as it is.</source>
        <translation>%1
受信機の次の内容を置き換えます: %2。編集中のデータは変わりません。</translation>
    </message>
</context>
<context>
    <name>rqm5::BankList</name>
    <message>
        <source>The group of channels that the table shows and a transfer moves</source>
        <translation>表に表示し、転送の対象になるチャンネルのグループ</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
</context>
<context>
    <name>rqm5::BankMoveOffer</name>
    <message>
        <source>&amp;Leave the rows where they are</source>
        <translation>行をそのままにする(&amp;L)</translation>
    </message>
    <message>
        <source>Nothing moves; the channels named here belong to other banks now</source>
        <translation>何も移動しません。ここに示すチャンネルは別のバンクに属することになります</translation>
    </message>
    <message>
        <source>&amp;Move the channels so that every bank keeps its own</source>
        <translation>チャンネルをバンクと一緒に移動する(&amp;M)</translation>
    </message>
    <message>
        <source>What a smaller bank has no room for goes behind all banks; a larger one gets empty rows</source>
        <translation>小さくしたバンクに入りきらない行は全バンクの後ろへ移り、大きくしたバンクには空の行が入ります</translation>
    </message>
    <message>
        <source>Channels that change their bank with these sizes: %1. Others that change their number: %2.</source>
        <translation>このサイズでバンクが変わるチャンネル: %1。番号だけが変わるチャンネル: %2。</translation>
    </message>
</context>
<context>
    <name>rqm5::BankPage</name>
    <message>
        <source>Number of channels in bank %1; all banks together hold 1000 at most</source>
        <translation>バンク%1のチャンネル数 (全バンクの合計は1000以下)</translation>
    </message>
    <message>
        <source>Link bank %1</source>
        <translation>バンク%1をリンク</translation>
    </message>
    <message>
        <source>Scan bank %1 together with the other linked banks</source>
        <translation>バンク%1をほかのリンクしたバンクと一緒にスキャンします</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Read Ban&amp;k</source>
        <translation>バンク読み込み(&amp;K)</translation>
    </message>
    <message>
        <source>Write &amp;Bank</source>
        <translation>バンク書き込み(&amp;B)</translation>
    </message>
    <message>
        <source>Read bank sizes and links from the receiver</source>
        <translation>バンクサイズとリンクを受信機から読み込みます</translation>
    </message>
    <message>
        <source>Write bank sizes and links to the receiver</source>
        <translation>バンクサイズとリンクを受信機に書き込みます</translation>
    </message>
    <message>
        <source>Channels in all banks (1000 at most):</source>
        <translation>全バンクの合計 (1000以下):</translation>
    </message>
    <message>
        <source>In no bank: %1 rows, %2 with a channel</source>
        <translation>バンク外: %1行 (チャンネルあり: %2行)</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>The total of the number of channels exceeds 1000.
Please set for the total of the channel to become 1000 or less.</source>
        <translation>チャンネル数の合計が1000を超えています。
合計が1000以下になるように設定してください。</translation>
    </message>
</context>
<context>
    <name>rqm5::BankStrip</name>
    <message>
        <source>What of each bank holds channels; a click goes to the bank&apos;s size</source>
        <translation>各バンクのチャンネルの使用状況。クリックするとそのバンクのサイズに移ります</translation>
    </message>
    <message>
        <source>All banks: %1 of %2 rows hold a channel, %3 rows are in no bank</source>
        <translation>全バンク: %2行中%1行にチャンネルあり、バンク外は%3行</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>バンク外</translation>
    </message>
    <message>
        <source>%1: %2 of %3 rows hold a channel</source>
        <translation>%1: %3行中%2行にチャンネルあり</translation>
    </message>
    <message>
        <source>no bank</source>
        <translation>バンク外</translation>
    </message>
</context>
<context>
    <name>rqm5::ChangeCommands</name>
    <message>
        <source>Write Changes</source>
        <translation>変更の書き込み</translation>
    </message>
    <message>
        <source>What the receiver holds must be read first.</source>
        <translation>先に受信機の内容を読み込む必要があります。</translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation>読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>Enable flags of other rows replaced by the receiver&apos;s: %1.</source>
        <translation>受信機の値に置き換えたほかの行の有効フラグ: %1。</translation>
    </message>
</context>
<context>
    <name>rqm5::ChannelTable</name>
    <message>
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>ステップ</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Scrt</source>
        <translation>秘話</translation>
    </message>
    <message>
        <source>Carrier</source>
        <translation>空線</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>トーン</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>シフト</translation>
    </message>
    <message>
        <source>ShiftFreq.</source>
        <translation>シフト周波数</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
</context>
<context>
    <name>rqm5::ClipboardCommands</name>
    <message>
        <source>There is no channel in it.</source>
        <translation>チャンネルが含まれていません。</translation>
    </message>
    <message>
        <source>Copy rows of this program, or lines with a frequency each: of a spreadsheet, a web page or a text.</source>
        <translation>このプログラムの行か、表計算ソフト、Webページ、テキストなどから各行に周波数のあるものをコピーしてください。</translation>
    </message>
    <message>
        <source>Paste these columns onto the selected rows:</source>
        <translation>選択した行に貼り付ける列:</translation>
    </message>
    <message>
        <source>Give the selected rows these columns of the first of them:</source>
        <translation>先頭の行から選択した行へコピーする列:</translation>
    </message>
</context>
<context>
    <name>rqm5::ColumnWidths</name>
    <message>
        <source>&amp;Usual Column Widths</source>
        <translation>列幅を標準に戻す(&amp;U)</translation>
    </message>
</context>
<context>
    <name>rqm5::CompareTree</name>
    <message>
        <source>Place</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Open image</source>
        <translation>編集中のデータ</translation>
    </message>
    <message>
        <source>Other side</source>
        <translation>比較相手</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>相違点</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>相違</translation>
    </message>
</context>
<context>
    <name>rqm5::DiagnosticsPanel</name>
    <message>
        <source>Diagnostics</source>
        <translation>診断</translation>
    </message>
    <message>
        <source>Bloc&amp;k address</source>
        <translation>ブロックアドレス(&amp;X)</translation>
    </message>
    <message>
        <source>Read Block</source>
        <translation>ブロック読み込み</translation>
    </message>
    <message>
        <source>Sends one read command and shows the reply as it comes</source>
        <translation>読み込みコマンドを1回送り、応答をそのまま表示します</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>応答</translation>
    </message>
    <message>
        <source>Link Test</source>
        <translation>通信テスト</translation>
    </message>
    <message>
        <source>Reads one block a hundred times and shows the round-trip times</source>
        <translation>1ブロックを100回読み込み、応答時間を表示します</translation>
    </message>
    <message>
        <source>Exchanges with the receiver</source>
        <translation>受信機とのやり取り</translation>
    </message>
    <message>
        <source>Save Log...</source>
        <translation>ログを保存...</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>ログを消去</translation>
    </message>
</context>
<context>
    <name>rqm5::ExchangeLog</name>
    <message>
        <source>(the port failed)</source>
        <translation>(ポート異常)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>応答</translation>
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
        <translation>変更の保存</translation>
    </message>
    <message>
        <source>Save changes to settings?</source>
        <translation>変更を保存しますか?</translation>
    </message>
    <message>
        <source>The file is saved, but a clone file cannot hold notes with a comma or quotes. While these notes stay as they are, the file cannot be opened again or shows them changed.</source>
        <translation>ファイルを保存しましたが、クローンファイルにはカンマや引用符を含むメモを格納できません。次のメモをこのままにすると、ファイルを開けなくなるか、メモが変わって表示されます。</translation>
    </message>
    <message>
        <source>The file is written. A spreadsheet may run these notes as formulas.</source>
        <translation>ファイルを書き出しました。表計算ソフトでは、次のメモが数式として実行されることがあります。</translation>
    </message>
    <message>
        <source>There was nothing to repair; the file is open.</source>
        <translation>修復するところはありませんでした。ファイルを開きました。</translation>
    </message>
    <message>
        <source>Repaired notes: %1</source>
        <translation>修復したメモ: %1</translation>
    </message>
    <message>
        <source> repaired</source>
        <translation> 修復済み</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>メモ</translation>
    </message>
</context>
<context>
    <name>rqm5::FillBar</name>
    <message>
        <source>no rows</source>
        <translation>行なし</translation>
    </message>
    <message>
        <source>%1 of %2 rows hold a channel</source>
        <translation>%2行中%1行にチャンネルあり</translation>
    </message>
</context>
<context>
    <name>rqm5::FilterBox</name>
    <message>
        <source>All rows</source>
        <translation>すべての行</translation>
    </message>
    <message>
        <source>With a channel</source>
        <translation>チャンネルあり</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>With a note</source>
        <translation>メモあり</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>重複</translation>
    </message>
    <message>
        <source>Which rows of the group the table shows</source>
        <translation>グループのうち表に表示する行</translation>
    </message>
    <message>
        <source>Sh&amp;ow:</source>
        <translation>表示(&amp;O):</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1/%2行</translation>
    </message>
</context>
<context>
    <name>rqm5::FindBar</name>
    <message>
        <source>Find channels</source>
        <translation>チャンネルの検索</translation>
    </message>
    <message>
        <source>Find (Ctrl+F)</source>
        <translation>検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Frequency, note, mode or tone, in all groups. Enter goes there, F3 to the next</source>
        <translation>全グループの周波数、メモ、モード、トーンから検索します。Enterで移動、F3で次へ</translation>
    </message>
    <message>
        <source>Channels found</source>
        <translation>見つかったチャンネル</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1件</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
</context>
<context>
    <name>rqm5::HistoryCommands</name>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Changes, the latest at the end</source>
        <translation>変更の履歴 (最後が最新)</translation>
    </message>
    <message>
        <source>A click takes back or makes again every change down to there</source>
        <translation>クリックすると、その操作までのすべての変更を元に戻すか、やり直します</translation>
    </message>
    <message>
        <source>Before these changes</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>元に戻す: %1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>やり直し: %1(&amp;R)</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportCommands</name>
    <message>
        <source> list</source>
        <translation> リスト</translation>
    </message>
    <message>
        <source>Channels written to %1: %2.</source>
        <translation>%1に書き出したチャンネル: %2。</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportForm</name>
    <message>
        <source>Tab</source>
        <translation>タブ</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>セミコロン</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>カンマ</translation>
    </message>
    <message>
        <source>None: one field a line</source>
        <translation>なし (1行に1項目)</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>ピリオド</translation>
    </message>
    <message>
        <source>Detected: %1</source>
        <translation>自動判別: %1</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>自動判別</translation>
    </message>
    <message>
        <source>The first &amp;line holds titles</source>
        <translation>先頭行は見出し(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>登録(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>登録解除(&amp;F)</translation>
    </message>
    <message>
        <source>Type a name and press Keep to read other lists in the same way.</source>
        <translation>名前を入力して「登録」を押すと、ほかのリストも同じ方法で読み込めます。</translation>
    </message>
    <message>
        <source>&amp;Encoding</source>
        <translation>文字コード(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Between fields</source>
        <translation>区切り文字(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Decimals begin with</source>
        <translation>小数点(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Mapping</source>
        <translation>割り当て(&amp;M)</translation>
    </message>
    <message>
        <source>either, each number by itself</source>
        <translation>数値ごとに判別</translation>
    </message>
</context>
<context>
    <name>rqm5::ImportTarget</name>
    <message>
        <source>To the &amp;rows that the list names</source>
        <translation>リストで指定された行へ(&amp;R)</translation>
    </message>
    <message>
        <source>From this row &amp;on</source>
        <translation>この行から順に(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Skip rows that hold a channel</source>
        <translation>チャンネルのある行は飛ばす(&amp;S)</translation>
    </message>
    <message>
        <source>Bank or group</source>
        <translation>バンクまたはグループ</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>バンク外</translation>
    </message>
</context>
<context>
    <name>rqm5::ListTableModel</name>
    <message>
        <source>Column %1</source>
        <translation>列%1</translation>
    </message>
    <message>
        <source>is</source>
        <translation>項目</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryPage</name>
    <message>
        <source>Ban&amp;k:</source>
        <translation>バンク(&amp;K):</translation>
    </message>
    <message>
        <source>Read &amp;Memory</source>
        <translation>メモリー読み込み(&amp;M)</translation>
    </message>
    <message>
        <source>Write Memor&amp;y</source>
        <translation>メモリー書き込み(&amp;Y)</translation>
    </message>
    <message>
        <source>Read the channels of the selected group from the receiver</source>
        <translation>選択したグループのチャンネルを受信機から読み込みます</translation>
    </message>
    <message>
        <source>Write the channels of the selected group to the receiver</source>
        <translation>選択したグループのチャンネルを受信機に書き込みます</translation>
    </message>
    <message>
        <source>E&amp;nable</source>
        <translation>有効化(&amp;N)</translation>
    </message>
    <message>
        <source>Enable the selected channels</source>
        <translation>選択したチャンネルを有効にします</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>無効化(&amp;D)</translation>
    </message>
    <message>
        <source>Disable the selected channels; they keep their contents</source>
        <translation>選択したチャンネルを無効にします。内容は残ります</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>挿入(&amp;I)</translation>
    </message>
    <message>
        <source>Insert an empty row among memory rows 0 to 199; the channel in row 199 is lost</source>
        <translation>メモリー行0～199の間に空の行を挿入します。行199のチャンネルは失われます</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>削除(&amp;L)</translation>
    </message>
    <message>
        <source>Delete a row among memory rows 0 to 199; the rows behind it move up</source>
        <translation>メモリー行0～199の行を削除します。後ろの行は上へ詰まります</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>消去(&amp;C)</translation>
    </message>
    <message>
        <source>Empty the selected channels</source>
        <translation>選択したチャンネルを消去します</translation>
    </message>
    <message>
        <source>Ena&amp;ble All</source>
        <translation>すべて有効化(&amp;B)</translation>
    </message>
    <message>
        <source>Enable every channel shown</source>
        <translation>表示中のすべてのチャンネルを有効にします</translation>
    </message>
    <message>
        <source>Di&amp;sable All</source>
        <translation>すべて無効化(&amp;S)</translation>
    </message>
    <message>
        <source>Disable every channel shown</source>
        <translation>表示中のすべてのチャンネルを無効にします</translation>
    </message>
    <message>
        <source>Clear &amp;All</source>
        <translation>すべて消去(&amp;A)</translation>
    </message>
    <message>
        <source>Empty every channel shown</source>
        <translation>表示中のすべてのチャンネルを消去します</translation>
    </message>
    <message>
        <source>Selected channel</source>
        <translation>選択したチャンネル</translation>
    </message>
    <message>
        <source>All channels shown</source>
        <translation>表示中の全チャンネル</translation>
    </message>
    <message>
        <source>The offset is below 100 MHz.</source>
        <translation>シフト周波数は100 MHz未満です。</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryTable</name>
    <message>
        <source>Memory channels</source>
        <translation>メモリーチャンネル</translation>
    </message>
    <message>
        <source>Enter edits the rows, typing a cell</source>
        <translation>Enterで行を編集、文字入力でセルを編集</translation>
    </message>
    <message>
        <source>An empty row begins with its frequency</source>
        <translation>空の行は周波数から入力します</translation>
    </message>
    <message>
        <source>This model does not have it</source>
        <translation>この機種にはありません</translation>
    </message>
</context>
<context>
    <name>rqm5::MemoryTableModel</name>
    <message>
        <source>In no bank</source>
        <translation>バンク外</translation>
    </message>
</context>
<context>
    <name>rqm5::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>このメッセージを閉じる</translation>
    </message>
</context>
<context>
    <name>rqm5::ModifyForm</name>
    <message>
        <source>&amp;Note</source>
        <translation>メモ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Frequency</source>
        <translation>周波数(&amp;F)</translation>
    </message>
    <message>
        <source>Codes and tones</source>
        <translation>コードとトーン</translation>
    </message>
    <message>
        <source>&amp;Secret code</source>
        <translation>秘話コード(&amp;S)</translation>
    </message>
    <message>
        <source>T&amp;rain tone</source>
        <translation>空線信号(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;CTCSS tone</source>
        <translation>CTCSSトーン(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Offset Frequency</source>
        <translation>シフト周波数(&amp;O)</translation>
    </message>
    <message>
        <source>Offset Frequency</source>
        <translation>シフト周波数</translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>What is blank stays as it is in each channel</source>
        <translation>空欄の項目は各チャンネルの値のままになります</translation>
    </message>
</context>
<context>
    <name>rqm5::MoveCommands</name>
    <message>
        <source>Insert Row Here</source>
        <translation>ここに行を挿入</translation>
    </message>
    <message>
        <source>There is no empty row behind it.</source>
        <translation>この後ろに空の行がありません。</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2/%3)</translation>
    </message>
</context>
<context>
    <name>rqm5::NoteLine</name>
    <message>
        <source>&amp;Use ; and &apos;</source>
        <translation>; と &apos; を使う(&amp;U)</translation>
    </message>
    <message>
        <source>Put semicolons for commas and apostrophes for quotes, in this note and all that follow</source>
        <translation>このメモと以降のメモで、カンマをセミコロンに、引用符をアポストロフィに置き換えます</translation>
    </message>
    <message>
        <source>A comma or quotes in a note will not survive a save.</source>
        <translation>メモのカンマや引用符は保存すると失われます。</translation>
    </message>
    <message>
        <source>A comma or quotes would not survive a save: replaced.</source>
        <translation>保存すると失われるカンマや引用符を置き換えました。</translation>
    </message>
</context>
<context>
    <name>rqm5::PlanTableModel</name>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Holds now</source>
        <translation>現在の内容</translation>
    </message>
    <message>
        <source>What comes</source>
        <translation>新しい内容</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>備考</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(空)</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>行%1</translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation>拒否: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::PrintJob</name>
    <message>
        <source>Printing...</source>
        <translation>印刷中...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1/%2ページ</translation>
    </message>
    <message>
        <source>No printer is installed. Install one in the settings of the system, or print to a PDF file.</source>
        <translation>プリンターがインストールされていません。システムの設定でインストールするか、PDFファイルに出力してください。</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot; any more. Choose another one, or print to a PDF file.</source>
        <translation>プリンター「%1」が見つかりません。別のプリンターを選ぶか、PDFファイルに出力してください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not take the pages. Check that it is switched on and connected, choose another one, or print to a PDF file.</source>
        <translation>プリンター「%1」が印刷を受け付けません。電源と接続を確認するか、別のプリンターを選ぶか、PDFファイルに出力してください。</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>The listing was not printed.</source>
        <translation>一覧は印刷されませんでした。</translation>
    </message>
</context>
<context>
    <name>rqm5::QtSerialPort</name>
    <message>
        <source>no such device</source>
        <translation>デバイスがありません</translation>
    </message>
    <message>
        <source>not a serial port</source>
        <translation>シリアルポートではありません</translation>
    </message>
    <message>
        <source>not a serial port (%1)</source>
        <translation>シリアルポートではありません (%1)</translation>
    </message>
    <message>
        <source>the device has gone</source>
        <translation>デバイスが取り外されました</translation>
    </message>
</context>
<context>
    <name>rqm5::RecentFiles</name>
    <message>
        <source>Open Re&amp;cent</source>
        <translation>最近使ったファイル(&amp;C)</translation>
    </message>
    <message>
        <source>Open a clone file that was opened or saved lately</source>
        <translation>最近開いたか保存したクローンファイルを開きます</translation>
    </message>
    <message>
        <source>&amp;Empty This List</source>
        <translation>この一覧を消去(&amp;E)</translation>
    </message>
    <message>
        <source>The files stay; only the list forgets them</source>
        <translation>一覧から消えるだけで、ファイルは残ります</translation>
    </message>
</context>
<context>
    <name>rqm5::Recovery</name>
    <message>
        <source>changes that were in no file yet</source>
        <translation>まだファイルに保存していない変更</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>What was read from the receiver could not be saved. It was kept.</source>
        <translation>受信機から読み込んだ内容を保存できなかったため、保管してあります。</translation>
    </message>
    <message>
        <source>The program ended before your changes were saved. They were kept.</source>
        <translation>変更を保存する前にプログラムが終了しました。変更は保管してあります。</translation>
    </message>
    <message>
        <source>File: %1
Kept: %2</source>
        <translation>ファイル: %1
保管日時: %2</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
</context>
<context>
    <name>rqm5::RowActions</name>
    <message>
        <source>&amp;Modify...</source>
        <translation>編集(&amp;M)...</translation>
    </message>
    <message>
        <source>Edit the selected channels</source>
        <translation>選択したチャンネルを編集します</translation>
    </message>
</context>
<context>
    <name>rqm5::RowCommands</name>
    <message>
        <source>Edit &gt; Undo brings it back.</source>
        <translation>「編集 &gt; 元に戻す」で元に戻せます。</translation>
    </message>
    <message>
        <source>CLEAR OK</source>
        <translation>消去の確認</translation>
    </message>
    <message>
        <source>Clear cannot be undone.
Are you sure that you want to do the clear?</source>
        <translation>消去すると元に戻せません。
消去してもよろしいですか?</translation>
    </message>
    <message>
        <source>Clear cannot be undone.
Are you sure that you want to clear all memory?</source>
        <translation>消去すると元に戻せません。
メモリーをすべて消去してもよろしいですか?</translation>
    </message>
    <message>
        <source>DELETE OK</source>
        <translation>削除の確認</translation>
    </message>
    <message>
        <source>Delete cannot be undone.
Are you sure that you want to do the delete?</source>
        <translation>削除すると元に戻せません。
削除してもよろしいですか?</translation>
    </message>
</context>
<context>
    <name>rqm5::Settings1Page</name>
    <message>
        <source>VFO &amp;bands:</source>
        <translation>VFOバンド(&amp;B):</translation>
    </message>
    <message>
        <source>A sibling model; kept when a file or receiver has it</source>
        <translation>姉妹機種。ファイルや受信機がこの機種の場合はそのまま残します</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>サウンド</translation>
    </message>
    <message>
        <source>Rea&amp;d Settings</source>
        <translation>設定読み込み(&amp;D)</translation>
    </message>
    <message>
        <source>Write Settin&amp;gs</source>
        <translation>設定書き込み(&amp;G)</translation>
    </message>
    <message>
        <source>Read all settings and VFO bands from the receiver</source>
        <translation>すべての設定とVFOバンドを受信機から読み込みます</translation>
    </message>
    <message>
        <source>Write all settings, VFO bands and presets to the receiver</source>
        <translation>すべての設定、VFOバンド、プリセットを受信機に書き込みます</translation>
    </message>
</context>
<context>
    <name>rqm5::Settings2Page</name>
    <message>
        <source>Rea&amp;d Settings</source>
        <translation>設定読み込み(&amp;D)</translation>
    </message>
    <message>
        <source>Write Settin&amp;gs</source>
        <translation>設定書き込み(&amp;G)</translation>
    </message>
    <message>
        <source>Read all settings and VFO bands from the receiver</source>
        <translation>すべての設定とVFOバンドを受信機から読み込みます</translation>
    </message>
    <message>
        <source>Write all settings, VFO bands and presets to the receiver</source>
        <translation>すべての設定、VFOバンド、プリセットを受信機に書き込みます</translation>
    </message>
</context>
<context>
    <name>rqm5::SpectrumDock</name>
    <message>
        <source>Spectrum</source>
        <translation>スペクトラム</translation>
    </message>
    <message>
        <source>Zoom in (+, or the wheel)</source>
        <translation>拡大 (+キーまたはホイール)</translation>
    </message>
    <message>
        <source>Zoom out (-, or the wheel)</source>
        <translation>縮小 (-キーまたはホイール)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Show the whole range (Home)</source>
        <translation>全範囲を表示 (Home)</translation>
    </message>
    <message>
        <source>Save Picture...</source>
        <translation>画像を保存...</translation>
    </message>
    <message>
        <source>Save what is shown as PNG or SVG</source>
        <translation>表示内容をPNGまたはSVGで保存します</translation>
    </message>
</context>
<context>
    <name>rqm5::SpectrumView</name>
    <message>
        <source>Spectrum of the channels</source>
        <translation>チャンネルのスペクトラム</translation>
    </message>
    <message>
        <source>Arrow keys go from channel to channel, Enter selects one; plus, minus and Home zoom</source>
        <translation>矢印キーでチャンネル間を移動、Enterで選択、+、-、Homeで拡大縮小</translation>
    </message>
    <message>
        <source>%1 MHz</source>
        <translation>%1 MHz</translation>
    </message>
    <message>
        <source>on</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>off</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>stored twice</source>
        <translation>重複</translation>
    </message>
</context>
<context>
    <name>rqm5::StatusBar</name>
    <message>
        <source>Nothing was imported: the file holds no record of this receiver and no list.</source>
        <translation>インポートしませんでした。ファイルにこの受信機のデータもリストもありません。</translation>
    </message>
    <message>
        <source>Sibling model</source>
        <translation>姉妹機種</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更あり</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Channels enabled: %1</source>
        <translation>有効チャンネル: %1</translation>
    </message>
    <message>
        <source>COM %1: %2</source>
        <translation>COM %1: %2</translation>
    </message>
    <message>
        <source>no device</source>
        <translation>デバイスなし</translation>
    </message>
    <message>
        <source>%1, not present</source>
        <translation>%1、未接続</translation>
    </message>
</context>
<context>
    <name>rqm5::ToolBar</name>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
</context>
<context>
    <name>rqm5::TransferBar</name>
    <message>
        <source>Cancel</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>転送の進行状況</translation>
    </message>
    <message>
        <source>Channel being transferred</source>
        <translation>転送中のチャンネル</translation>
    </message>
    <message>
        <source>The channel that is being transferred</source>
        <translation>転送中のチャンネルです</translation>
    </message>
    <message>
        <source>End the transfer now; what was transferred stays</source>
        <translation>転送をすぐに中止します。転送済みの内容は残ります</translation>
    </message>
</context>
<context>
    <name>rqm5::TransferCommands</name>
    <message>
        <source>Read</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>%1. Check the cable, then read again.</source>
        <translation>%1。ケーブルを確認して、もう一度読み込んでください。</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>照合</translation>
    </message>
    <message>
        <source>Read in %1 to compare; the open image is as it was.</source>
        <translation>比較用の読み込みが完了 (%1)。編集中のデータは変わっていません。</translation>
    </message>
    <message>
        <source>You had unsaved changes; Undo brings back what was there before the read.</source>
        <translation>保存していない変更がありました。「元に戻す」で読み込み前の状態に戻せます。</translation>
    </message>
    <message>
        <source>Old backups deleted: %1.</source>
        <translation>削除した古いバックアップ: %1。</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>The receiver is another model. Write to it all the same?</source>
        <translation>受信機の機種が異なります。それでも書き込みますか?</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>何も書き込みませんでした。</translation>
    </message>
    <message>
        <source>Enable flags of other rows replaced by the receiver&apos;s: %1.</source>
        <translation>受信機の値に置き換えたほかの行の有効フラグ: %1。</translation>
    </message>
    <message>
        <source>The write was cancelled.</source>
        <translation>書き込みを中止しました。</translation>
    </message>
    <message>
        <source>The receiver does not hold what was written. Write again.</source>
        <translation>受信機の内容が書き込んだデータと一致しません。もう一度書き込んでください。</translation>
    </message>
</context>
<context>
    <name>rqm5::VfoTable</name>
    <message>
        <source>VFO bands</source>
        <translation>VFOバンド</translation>
    </message>
    <message>
        <source>One VFO setting per band. Enter or a double click edits the selected one.</source>
        <translation>バンドごとのVFOの設定です。Enterまたはダブルクリックで、選択したバンドを編集します。</translation>
    </message>
</context>
<context>
    <name>rqm5::WriteOptionItems</name>
    <message>
        <source>Backup Folder</source>
        <translation>バックアップフォルダー</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgAbout</name>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copies all of this, for a bug report</source>
        <translation>不具合の報告用に、すべての内容をコピーします</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgBackups</name>
    <message>
        <source>rows: %1</source>
        <translation>行: %1</translation>
    </message>
    <message>
        <source>VFO bands: %1</source>
        <translation>VFOバンド: %1</translation>
    </message>
    <message>
        <source>bank layout</source>
        <translation>バンク構成</translation>
    </message>
    <message>
        <source>settings: %1</source>
        <translation>設定: %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>バックアップ</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>保管日時</translation>
    </message>
    <message>
        <source>Holds</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>What differs from the open image</source>
        <translation>編集中のデータとの相違点</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>フォルダー: %1</translation>
    </message>
    <message>
        <source>Keep no &amp;more than</source>
        <translation>最大数を制限(&amp;M)</translation>
    </message>
    <message>
        <source> backups</source>
        <translation> 件</translation>
    </message>
    <message>
        <source>Keep no &amp;longer than</source>
        <translation>保管期間を制限(&amp;L)</translation>
    </message>
    <message>
        <source> days</source>
        <translation> 日</translation>
    </message>
    <message>
        <source>The oldest are deleted when the next backup has been kept</source>
        <translation>次のバックアップを保管したときに、古いものから削除します</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open the backup as a clone file</source>
        <translation>バックアップをクローンファイルとして開きます</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>比較(&amp;C)</translation>
    </message>
    <message>
        <source>List what differs from the open image, and take from the backup</source>
        <translation>編集中のデータとの相違点を表示し、バックアップから取り込みます</translation>
    </message>
    <message>
        <source>&amp;Write Back...</source>
        <translation>書き戻し(&amp;W)...</translation>
    </message>
    <message>
        <source>Write what the backup holds to the receiver; the open image stays as it is</source>
        <translation>バックアップの内容を受信機に書き込みます。編集中のデータは変わりません</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>削除(&amp;D)...</translation>
    </message>
    <message>
        <source>Delete the selected backups</source>
        <translation>選択したバックアップを削除します</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>読み込めません: %1</translation>
    </message>
    <message>
        <source>Delete the selected backups? They cannot be brought back.</source>
        <translation>選択したバックアップを削除しますか? 削除すると元に戻せません。</translation>
    </message>
    <message>
        <source>Not every backup could be deleted. Look who may write to the folder.</source>
        <translation>削除できないバックアップがありました。フォルダーの書き込み権限を確認してください。</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgCOM</name>
    <message>
        <source>COM Port Setup</source>
        <translation>COMポート設定</translation>
    </message>
    <message>
        <source>COM %1</source>
        <translation>COM %1</translation>
    </message>
    <message>
        <source>&amp;Found now:</source>
        <translation>検出したポート(&amp;F):</translation>
    </message>
    <message>
        <source>no serial port</source>
        <translation>シリアルポートなし</translation>
    </message>
    <message>
        <source>choose a device</source>
        <translation>デバイスを選択</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>not present</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Set by the environment variable RQM5_COM%1</source>
        <translation>環境変数RQM5_COM%1で指定されています</translation>
    </message>
    <message>
        <source>The device that this number stands for; empty for the usual one</source>
        <translation>この番号に割り当てるデバイス。空欄なら標準のデバイスを使います</translation>
    </message>
    <message>
        <source>&amp;Device of COM %1:</source>
        <translation>COM %1のデバイス(&amp;D):</translation>
    </message>
    <message>
        <source>Find the &amp;Receiver</source>
        <translation>受信機を探す(&amp;R)</translation>
    </message>
    <message>
        <source>Send one read command to each port that is there and free</source>
        <translation>接続されている空きポートのそれぞれに、読み込みコマンドを1回送ります</translation>
    </message>
    <message>
        <source>Asking %1...</source>
        <translation>%1を確認中...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>unknown model</source>
        <translation>不明な機種</translation>
    </message>
    <message>
        <source>A receiver (%1) answers at %2. OK takes it as COM %3.</source>
        <translation>%2で受信機 (%1) が応答しました。OKを押すとCOM %3に割り当てます。</translation>
    </message>
    <message>
        <source>No receiver answers. Ports asked: %1. Switch the receiver on, check its cable, and try again.</source>
        <translation>応答する受信機がありません。確認したポート: %1。受信機の電源とケーブルを確認して、もう一度試してください。</translation>
    </message>
    <message>
        <source>In use by another program: %1.</source>
        <translation>ほかのプログラムが使用中: %1。</translation>
    </message>
    <message>
        <source>There is no port to ask. Plug the receiver&apos;s cable in.</source>
        <translation>確認できるポートがありません。受信機のケーブルを接続してください。</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgCompare</name>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>相違点</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>ファイル(&amp;F)...</translation>
    </message>
    <message>
        <source>Compare with a clone file</source>
        <translation>クローンファイルと比較します</translation>
    </message>
    <message>
        <source>&amp;Backup...</source>
        <translation>バックアップ(&amp;B)...</translation>
    </message>
    <message>
        <source>Compare with a backup</source>
        <translation>バックアップと比較します</translation>
    </message>
    <message>
        <source>&amp;Last Read</source>
        <translation>前回の読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>Compare with what the receiver held when it was last read</source>
        <translation>前回読み込んだ受信機の内容と比較します</translation>
    </message>
    <message>
        <source>&amp;Receiver Now</source>
        <translation>現在の受信機(&amp;R)</translation>
    </message>
    <message>
        <source>Read the receiver and compare with what it holds; the open image stays as it is</source>
        <translation>受信機を読み込み、その内容と比較します。編集中のデータは変わりません</translation>
    </message>
    <message>
        <source>Compare the open image with:</source>
        <translation>編集中のデータの比較相手:</translation>
    </message>
    <message>
        <source>All differences</source>
        <translation>すべての相違</translation>
    </message>
    <message>
        <source>Only here</source>
        <translation>編集中のデータのみ</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>比較相手のみ</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Changed in place</source>
        <translation>同じ場所で変更</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>グループ(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>表示(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Take Selected</source>
        <translation>選択分を取り込む(&amp;T)</translation>
    </message>
    <message>
        <source>Take the selected rows and groups from the other side</source>
        <translation>選択した行とグループを比較相手から取り込みます</translation>
    </message>
    <message>
        <source>Take &amp;All</source>
        <translation>すべて取り込む(&amp;A)</translation>
    </message>
    <message>
        <source>Take everything that is shown from the other side</source>
        <translation>表示されているものをすべて比較相手から取り込みます</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Choose above what the open image is compared with.</source>
        <translation>編集中のデータの比較相手を上で選んでください。</translation>
    </message>
    <message>
        <source>All groups</source>
        <translation>すべてのグループ</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>相違はありません。</translation>
    </message>
    <message>
        <source>%1 of %2 differences</source>
        <translation>%2件中%1件の相違</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>相違: %1</translation>
    </message>
    <message>
        <source>Take &amp;All Shown</source>
        <translation>表示分をすべて取り込む(&amp;A)</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>取り込み</translation>
    </message>
    <message>
        <source>The banks would hold more than 1000 channels together.</source>
        <translation>バンクのチャンネル数の合計が1000を超えます。</translation>
    </message>
    <message>
        <source>Nothing was taken. Take the whole group &quot;Bank layout&quot; instead of single sizes.</source>
        <translation>何も取り込みませんでした。個々のサイズではなく、「バンク構成」グループ全体を取り込んでください。</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgDuplicates</name>
    <message>
        <source>Duplicates</source>
        <translation>重複</translation>
    </message>
    <message>
        <source>Frequencies that are stored more than once</source>
        <translation>重複して登録された周波数</translation>
    </message>
    <message>
        <source>Frequency and place</source>
        <translation>周波数と場所</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>%1 MHz, %2 times</source>
        <translation>%1 MHz、%2件</translation>
    </message>
    <message>
        <source>on</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>off</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>No frequency is stored more than once.</source>
        <translation>重複して登録された周波数はありません。</translation>
    </message>
    <message>
        <source>1 frequency is stored more than once. A click goes to a place.</source>
        <translation>1つの周波数が重複して登録されています。クリックするとその場所に移ります。</translation>
    </message>
    <message>
        <source>%1 frequencies are stored more than once. A click goes to a place.</source>
        <translation>%1個の周波数が重複して登録されています。クリックするとその場所に移ります。</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgExportList</name>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>リストのエクスポート</translation>
    </message>
    <message>
        <source>Point: 145.500000, commas between fields</source>
        <translation>ピリオド: 145.500000、区切りはカンマ</translation>
    </message>
    <message>
        <source>Comma: 145,500000, semicolons between fields</source>
        <translation>カンマ: 145,500000、区切りはセミコロン</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>グループ(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>列(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Decimal sign</source>
        <translation>小数点(&amp;D)</translation>
    </message>
    <message>
        <source>In no bank</source>
        <translation>バンク外</translation>
    </message>
    <message>
        <source>Channels that are written: %1</source>
        <translation>書き出すチャンネル: %1</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgFill</name>
    <message>
        <source>&amp;Number of channels</source>
        <translation>チャンネル数(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Last frequency</source>
        <translation>終了周波数(&amp;L)</translation>
    </message>
    <message>
        <source>S&amp;kip rows that hold a channel</source>
        <translation>チャンネルのある行は飛ばす(&amp;K)</translation>
    </message>
    <message>
        <source>Fill Series</source>
        <translation>連続データの作成</translation>
    </message>
    <message>
        <source>What goes where</source>
        <translation>書き換える内容の一覧</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>開始周波数(&amp;S)</translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>S&amp;pacing</source>
        <translation>間隔(&amp;P)</translation>
    </message>
    <message>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <source>&amp;Mode and the rest</source>
        <translation>モードなど(&amp;M)</translation>
    </message>
    <message>
        <source>Number of channels</source>
        <translation>チャンネル数</translation>
    </message>
    <message>
        <source>Last frequency</source>
        <translation>終了周波数</translation>
    </message>
    <message>
        <source>As usual on the frequency</source>
        <translation>その周波数の標準</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgImport</name>
    <message>
        <source>(not used)</source>
        <translation>(使用しない)</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>Frequency in MHz</source>
        <translation>周波数 (MHz)</translation>
    </message>
    <message>
        <source>Frequency in kHz</source>
        <translation>周波数 (kHz)</translation>
    </message>
    <message>
        <source>Frequency in Hz</source>
        <translation>周波数 (Hz)</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>ステップ</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Secret code</source>
        <translation>秘話コード</translation>
    </message>
    <message>
        <source>Train tone</source>
        <translation>空線信号</translation>
    </message>
    <message>
        <source>CTCSS tone</source>
        <translation>CTCSSトーン</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>シフト</translation>
    </message>
    <message>
        <source>Shift frequency</source>
        <translation>シフト周波数</translation>
    </message>
    <message>
        <source>Shift frequency in MHz</source>
        <translation>シフト周波数 (MHz)</translation>
    </message>
    <message>
        <source>Shift frequency in kHz</source>
        <translation>シフト周波数 (kHz)</translation>
    </message>
    <message>
        <source>Shift frequency in Hz</source>
        <translation>シフト周波数 (Hz)</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>バンク</translation>
    </message>
    <message>
        <source>Channel in the bank</source>
        <translation>バンク内チャンネル</translation>
    </message>
    <message>
        <source>Memory row</source>
        <translation>メモリー行</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>インポート (%1)</translation>
    </message>
    <message>
        <source>What goes where</source>
        <translation>書き換える内容の一覧</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>インポート(&amp;I)</translation>
    </message>
    <message>
        <source>The list as it is read</source>
        <translation>読み取ったリスト</translation>
    </message>
    <message>
        <source>What %1 is</source>
        <translation>「%1」の項目</translation>
    </message>
    <message>
        <source>Frequency (%1 by its size)</source>
        <translation>周波数 (値の大きさから%1)</translation>
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
        <translation>インポート (%1)</translation>
    </message>
    <message>
        <source>What was read otherwise</source>
        <translation>変更して読み込んだ内容</translation>
    </message>
    <message>
        <source>&amp;Read again with decimal commas</source>
        <translation>小数点をカンマとして読み直す(&amp;R)</translation>
    </message>
    <message>
        <source>Edit &gt; Undo takes the import back.</source>
        <translation>「編集 &gt; 元に戻す」でインポートを取り消せます。</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgModify</name>
    <message>
        <source>&amp;Previous</source>
        <translation>前へ(&amp;P)</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>次へ(&amp;X)</translation>
    </message>
    <message>
        <source>OK and Next</source>
        <translation>OKして次へ</translation>
    </message>
    <message>
        <source>Store the row and go on with the next one (Ctrl+Enter)</source>
        <translation>この行を確定して次の行へ進みます (Ctrl+Enter)</translation>
    </message>
    <message>
        <source>Store what was changed and go on (%1)</source>
        <translation>変更を確定して進みます (%1)</translation>
    </message>
    <message>
        <source>Modify Memory</source>
        <translation>メモリーの編集</translation>
    </message>
    <message>
        <source>Modify VFO</source>
        <translation>VFOの編集</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリー</translation>
    </message>
    <message>
        <source>VFO</source>
        <translation>VFO</translation>
    </message>
    <message>
        <source>Frequency of the cellular phone</source>
        <translation>携帯電話の周波数</translation>
    </message>
    <message>
        <source>It is a frequency of the cellular phone.
It is not possible to set it.</source>
        <translation>携帯電話の周波数です。
設定できません。</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>The same frequency as other channels cannot be set in Search Pass bank.</source>
        <translation>Search Passには、ほかのチャンネルと同じ周波数を設定できません。</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>値を保持(&amp;H)</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>スキップ(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>有効(&amp;E)</translation>
    </message>
    <message>
        <source>Scanning skips this channel</source>
        <translation>スキャン時にこのチャンネルを飛ばします</translation>
    </message>
    <message>
        <source>The channel is in use</source>
        <translation>このチャンネルを使用します</translation>
    </message>
    <message>
        <source>The next empty channel starts with the values confirmed here</source>
        <translation>次に開く空のチャンネルに、ここで確定した値が入ります</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgPaste</name>
    <message>
        <source>What goes where</source>
        <translation>書き換える内容の一覧</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgPrint</name>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>What to print</source>
        <translation>印刷する内容</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;VFO table</source>
        <translation>VFOの表(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Memory channels</source>
        <translation>メモリーチャンネル(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>グループ(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Leave out empty rows</source>
        <translation>空の行を省く(&amp;L)</translation>
    </message>
    <message>
        <source>Sp&amp;ectrum of all channels</source>
        <translation>全チャンネルのスペクトラム(&amp;E)</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>レター</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>サイズ(&amp;Z):</translation>
    </message>
    <message>
        <source>P&amp;ortrait</source>
        <translation>縦(&amp;O)</translation>
    </message>
    <message>
        <source>L&amp;andscape</source>
        <translation>横(&amp;A)</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>向き:</translation>
    </message>
    <message>
        <source>Print to</source>
        <translation>印刷先</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>no printer installed</source>
        <translation>プリンターなし</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>プリンター(&amp;R):</translation>
    </message>
    <message>
        <source>P&amp;DF file</source>
        <translation>PDFファイル(&amp;D)</translation>
    </message>
    <message>
        <source>Previe&amp;w...</source>
        <translation>プレビュー(&amp;W)...</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgWriteChanges</name>
    <message>
        <source>Keep a &amp;backup of what is replaced</source>
        <translation>置き換える内容をバックアップする(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Verify afterwards</source>
        <translation>書き込み後に照合する(&amp;V)</translation>
    </message>
    <message>
        <source>Write Changes</source>
        <translation>変更の書き込み</translation>
    </message>
    <message>
        <source>The receiver as it was read or written since %1, %2. Each block is read once more before the first one is written.</source>
        <translation>%1 (%2) 以降に読み書きした受信機の内容です。書き込みを始める前に、各ブロックをもう一度読み込みます。</translation>
    </message>
    <message>
        <source>What is written</source>
        <translation>書き込む内容</translation>
    </message>
    <message>
        <source>Row and field</source>
        <translation>行と項目</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>受信機</translation>
    </message>
    <message>
        <source>Will be</source>
        <translation>書き込み後</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>書き込み(&amp;W)</translation>
    </message>
    <message>
        <source>The receiver holds all of it already. There is nothing to write.</source>
        <translation>受信機の内容はすでに同じです。書き込むものはありません。</translation>
    </message>
    <message>
        <source>1 block is written, %1.</source>
        <translation>1ブロックを書き込みます (%1)。</translation>
    </message>
    <message>
        <source>%1 blocks are written, %2.</source>
        <translation>%1ブロックを書き込みます (%2)。</translation>
    </message>
</context>
<context>
    <name>rqm5::dlgWriteConflicts</name>
    <message>
        <source>Changed at the Receiver, Too</source>
        <translation>受信機側でも変更あり</translation>
    </message>
    <message>
        <source>What is to be written was changed at the receiver since it was last read. Nothing has been written yet. Decide for each row.</source>
        <translation>書き込もうとした内容が、前回の読み込み以降に受信機側で変更されています。まだ何も書き込んでいません。行ごとに選んでください。</translation>
    </message>
    <message>
        <source>Rows that were changed on both sides</source>
        <translation>両側で変更された行</translation>
    </message>
    <message>
        <source>Row and field</source>
        <translation>行と項目</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>以前</translation>
    </message>
    <message>
        <source>Receiver now</source>
        <translation>現在の受信機</translation>
    </message>
    <message>
        <source>To be written</source>
        <translation>書き込む内容</translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Keep all &amp;mine</source>
        <translation>すべて自分の変更を残す(&amp;M)</translation>
    </message>
    <message>
        <source>Take all the &amp;receiver&apos;s</source>
        <translation>すべて受信機から取り込む(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>書き込み(&amp;W)</translation>
    </message>
    <message>
        <source>Decision for %1</source>
        <translation>%1の選択</translation>
    </message>
    <message>
        <source>Decide</source>
        <translation>選択してください</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>自分の変更を残す</translation>
    </message>
    <message>
        <source>Take the receiver&apos;s</source>
        <translation>受信機から取り込む</translation>
    </message>
</context>
<context>
    <name>rqm5::frmHelp</name>
    <message>
        <source>Manual</source>
        <translation>マニュアル</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>マニュアルのページ</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>マニュアルを検索</translation>
    </message>
    <message>
        <source>Lists the pages that hold every word; Enter goes to the next place</source>
        <translation>すべての語を含むページを一覧します。Enterで次の箇所へ移ります</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>Larger Text</source>
        <translation>文字を大きく</translation>
    </message>
    <message>
        <source>Smaller Text</source>
        <translation>文字を小さく</translation>
    </message>
    <message>
        <source>Usual Text Size</source>
        <translation>標準の文字サイズ</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>No page holds these words.</source>
        <translation>該当するページがありません。</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>リンクを開く</translation>
    </message>
    <message>
        <source>This link leads out of the manual. Open it in the web browser?</source>
        <translation>マニュアルの外へのリンクです。Webブラウザーで開きますか?</translation>
    </message>
</context>
<context>
    <name>rqm5::frmMain</name>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>Choose the language of every window</source>
        <translation>すべてのウィンドウの言語を選びます</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>システム(&amp;S)</translation>
    </message>
    <message>
        <source>Recovered changes came first; not opened: %1</source>
        <translation>変更の復元を優先したため、開きませんでした: %1</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Read(&amp;R)</source>
        <translation>読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>Write(&amp;W)</source>
        <translation>書き込み(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新規作成(&amp;N)</translation>
    </message>
    <message>
        <source>Start with empty memories and default settings</source>
        <translation>空のメモリーと初期設定で始めます</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Open a clone file</source>
        <translation>クローンファイルを開きます</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>上書き保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save to the current file</source>
        <translation>現在のファイルに保存します</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>Save to another file</source>
        <translation>別のファイルに保存します</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>インポート(&amp;I)...</translation>
    </message>
    <message>
        <source>Take channels from a CSV file or a list of another program</source>
        <translation>CSVファイルやほかのプログラムのリストからチャンネルを取り込みます</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>Write VFO bands and channels to a CSV file</source>
        <translation>VFOバンドとチャンネルをCSVファイルに書き出します</translation>
    </message>
    <message>
        <source>Export &amp;List...</source>
        <translation>リストのエクスポート(&amp;L)...</translation>
    </message>
    <message>
        <source>Write channels as a list for spreadsheets</source>
        <translation>チャンネルを表計算ソフト用のリストに書き出します</translation>
    </message>
    <message>
        <source>&amp;Repair...</source>
        <translation>修復(&amp;R)...</translation>
    </message>
    <message>
        <source>Open a clone file that is refused because of its notes</source>
        <translation>メモが原因で開けないクローンファイルを修復して開きます</translation>
    </message>
    <message>
        <source>&amp;Backups...</source>
        <translation>バックアップ(&amp;B)...</translation>
    </message>
    <message>
        <source>List the backups: open, compare, write back or delete them</source>
        <translation>バックアップを一覧し、開く、比較、書き戻し、削除を行います</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>Print settings, VFO bands and channels</source>
        <translation>設定、VFOバンド、チャンネルを印刷します</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>プログラムを終了します</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>最後の変更を元に戻します</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>元に戻した変更をやり直します</translation>
    </message>
    <message>
        <source>&amp;Modify...</source>
        <translation>編集(&amp;M)...</translation>
    </message>
    <message>
        <source>Edit the selected channels or VFO band; so does Enter</source>
        <translation>選択したチャンネルかVFOバンドを編集します (Enterでも可)</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>検索(&amp;F)...</translation>
    </message>
    <message>
        <source>Find channels by frequency, note, mode or tone</source>
        <translation>周波数、メモ、モード、トーンでチャンネルを検索します</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>次を検索(&amp;N)</translation>
    </message>
    <message>
        <source>Go to the next channel found</source>
        <translation>見つかった次のチャンネルに移ります</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>前を検索(&amp;V)</translation>
    </message>
    <message>
        <source>Go to the previous channel found</source>
        <translation>見つかった前のチャンネルに移ります</translation>
    </message>
    <message>
        <source>&amp;Toolbar</source>
        <translation>ツールバー(&amp;T)</translation>
    </message>
    <message>
        <source>Show or hide the toolbar</source>
        <translation>ツールバーの表示を切り替えます</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>ステータスバー(&amp;S)</translation>
    </message>
    <message>
        <source>Show or hide the status bar</source>
        <translation>ステータスバーの表示を切り替えます</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>履歴(&amp;H)</translation>
    </message>
    <message>
        <source>Show every change that can be taken back; a click goes there</source>
        <translation>元に戻せる変更をすべて表示します。クリックするとその時点に移ります</translation>
    </message>
    <message>
        <source>S&amp;pectrum</source>
        <translation>スペクトラム(&amp;P)</translation>
    </message>
    <message>
        <source>Show every channel by its frequency; a click selects its row</source>
        <translation>すべてのチャンネルを周波数順に表示します。クリックするとその行を選択します</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>診断(&amp;D)</translation>
    </message>
    <message>
        <source>Send single read commands and see the replies</source>
        <translation>読み込みコマンドを1回ずつ送り、応答を表示します</translation>
    </message>
    <message>
        <source>ALL(&amp;A)</source>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>Read everything from the receiver</source>
        <translation>受信機からすべてを読み込みます</translation>
    </message>
    <message>
        <source>Memory(&amp;M)</source>
        <translation>メモリー(&amp;M)</translation>
    </message>
    <message>
        <source>Read the channels of the group shown on the Memory page</source>
        <translation>「メモリー」ページに表示中のグループのチャンネルを読み込みます</translation>
    </message>
    <message>
        <source>Settings(&amp;S)</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>Read the settings and the VFO bands</source>
        <translation>設定とVFOバンドを読み込みます</translation>
    </message>
    <message>
        <source>&amp;Verify after reading</source>
        <translation>読み込み後に照合(&amp;V)</translation>
    </message>
    <message>
        <source>Read everything twice, and list what was different</source>
        <translation>すべてを2回読み込み、異なる箇所を一覧します</translation>
    </message>
    <message>
        <source>Write everything to the receiver</source>
        <translation>受信機にすべてを書き込みます</translation>
    </message>
    <message>
        <source>Write the channels of the group shown on the Memory page</source>
        <translation>「メモリー」ページに表示中のグループのチャンネルを書き込みます</translation>
    </message>
    <message>
        <source>Write the settings and the VFO bands</source>
        <translation>設定とVFOバンドを書き込みます</translation>
    </message>
    <message>
        <source>&amp;Changes...</source>
        <translation>変更(&amp;C)...</translation>
    </message>
    <message>
        <source>Write only what the receiver holds otherwise, after showing it</source>
        <translation>受信機の内容と異なる部分だけを、確認してから書き込みます</translation>
    </message>
    <message>
        <source>Keep a &amp;backup before writing</source>
        <translation>書き込み前にバックアップ(&amp;B)</translation>
    </message>
    <message>
        <source>Read what a write will replace, and save it, before anything is written</source>
        <translation>書き込みで置き換わる内容を、書き込む前に読み込んで保存します</translation>
    </message>
    <message>
        <source>&amp;Verify after writing</source>
        <translation>書き込み後に照合(&amp;V)</translation>
    </message>
    <message>
        <source>Read back what was written, and list what differs</source>
        <translation>書き込んだ内容を読み直し、異なる箇所を一覧します</translation>
    </message>
    <message>
        <source>Backup &amp;Folder...</source>
        <translation>バックアップフォルダー(&amp;F)...</translation>
    </message>
    <message>
        <source>Choose where backups are kept</source>
        <translation>バックアップの保管場所を選びます</translation>
    </message>
    <message>
        <source>&amp;Duplicates...</source>
        <translation>重複(&amp;D)...</translation>
    </message>
    <message>
        <source>List every frequency that is stored more than once</source>
        <translation>重複して登録された周波数をすべて一覧します</translation>
    </message>
    <message>
        <source>Com&amp;pare...</source>
        <translation>比較(&amp;P)...</translation>
    </message>
    <message>
        <source>Show what differs from a file, a backup or the receiver, and take it</source>
        <translation>ファイル、バックアップ、受信機との相違点を表示し、取り込みます</translation>
    </message>
    <message>
        <source>COM Port Setup(&amp;C)</source>
        <translation>COMポート設定(&amp;C)</translation>
    </message>
    <message>
        <source>Choose the serial port of the receiver&apos;s cable</source>
        <translation>受信機のケーブルをつなぐシリアルポートを選びます</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>目次(&amp;C)</translation>
    </message>
    <message>
        <source>Show the manual</source>
        <translation>マニュアルを表示します</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>バージョン情報(&amp;A)...</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>このプログラムについて表示します</translation>
    </message>
    <message>
        <source>Settings 1</source>
        <translation>設定1</translation>
    </message>
    <message>
        <source>Model, modes, volume, squelch and the VFO bands</source>
        <translation>機種、モード、音量、スケルチ、VFOバンド</translation>
    </message>
    <message>
        <source>Settings 2</source>
        <translation>設定2</translation>
    </message>
    <message>
        <source>Display, power, keys, sound and antennas</source>
        <translation>ディスプレイ、電源、キー、サウンド、アンテナ</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリー</translation>
    </message>
    <message>
        <source>The memory channels</source>
        <translation>メモリーチャンネル</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>バンク</translation>
    </message>
    <message>
        <source>Sizes and links of the memory banks</source>
        <translation>メモリーバンクのサイズとリンク</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Read ALL</source>
        <translation>すべて読み込み</translation>
    </message>
    <message>
        <source>Write ALL</source>
        <translation>すべて書き込み</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>Put the selected rows on the clipboard and clear them</source>
        <translation>選択した行をクリップボードに入れて消去します</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Put the selected rows on the clipboard</source>
        <translation>選択した行をクリップボードに入れます</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Write the channels of the clipboard from the current row on</source>
        <translation>クリップボードのチャンネルを現在の行から順に書き込みます</translation>
    </message>
    <message>
        <source>Paste Spec&amp;ial...</source>
        <translation>列を選んで貼り付け(&amp;I)...</translation>
    </message>
    <message>
        <source>Write chosen columns of the clipboard into the selected rows</source>
        <translation>クリップボードから選んだ列を、選択した行に書き込みます</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select every row of the table</source>
        <translation>表のすべての行を選択します</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>消去(&amp;L)</translation>
    </message>
    <message>
        <source>Empty the selected rows</source>
        <translation>選択した行を空にします</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>有効化(&amp;E)</translation>
    </message>
    <message>
        <source>Switch the selected channels on; Space switches on and off</source>
        <translation>選択したチャンネルを有効にします。スペースキーで有効と無効が切り替わります</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>無効化(&amp;D)</translation>
    </message>
    <message>
        <source>Switch the selected channels off; Space switches on and off</source>
        <translation>選択したチャンネルを無効にします。スペースキーで有効と無効が切り替わります</translation>
    </message>
    <message>
        <source>Fill &amp;Series...</source>
        <translation>連続データの作成(&amp;S)...</translation>
    </message>
    <message>
        <source>Make channels at even distances</source>
        <translation>等間隔のチャンネルを作成します</translation>
    </message>
    <message>
        <source>Fill Do&amp;wn...</source>
        <translation>下方向へコピー(&amp;W)...</translation>
    </message>
    <message>
        <source>Give the selected rows chosen columns of the first of them</source>
        <translation>先頭の行から選んだ列を、選択した行へコピーします</translation>
    </message>
    <message>
        <source>Mo&amp;ve Up</source>
        <translation>上へ移動(&amp;V)</translation>
    </message>
    <message>
        <source>Move the selected rows up by one</source>
        <translation>選択した行を1行上へ移動します</translation>
    </message>
    <message>
        <source>Move Dow&amp;n</source>
        <translation>下へ移動(&amp;N)</translation>
    </message>
    <message>
        <source>Move the selected rows down by one</source>
        <translation>選択した行を1行下へ移動します</translation>
    </message>
    <message>
        <source>Copy to &amp;Bank</source>
        <translation>バンクへコピー(&amp;B)</translation>
    </message>
    <message>
        <source>Copy the selected channels into empty rows of a bank</source>
        <translation>選択したチャンネルをバンクの空の行にコピーします</translation>
    </message>
    <message>
        <source>Move to Ban&amp;k</source>
        <translation>バンクへ移動(&amp;K)</translation>
    </message>
    <message>
        <source>Move the selected channels into empty rows of a bank</source>
        <translation>選択したチャンネルをバンクの空の行に移動します</translation>
    </message>
    <message>
        <source>Insert Row &amp;Here</source>
        <translation>ここに行を挿入(&amp;H)</translation>
    </message>
    <message>
        <source>Put an empty row here; the rows behind it in the group shown move down</source>
        <translation>ここに空の行を入れます。表示中のグループの後ろの行は下へ移ります</translation>
    </message>
    <message>
        <source>Delete Row and Close &amp;Up</source>
        <translation>行を削除して詰める(&amp;U)</translation>
    </message>
    <message>
        <source>Take the selected rows out; the rows behind them in the group shown move up</source>
        <translation>選択した行を取り除きます。表示中のグループの後ろの行は上へ詰まります</translation>
    </message>
    <message>
        <source>Sort &amp;Group</source>
        <translation>グループの並べ替え(&amp;G)</translation>
    </message>
    <message>
        <source>Sort the rows of the group shown; empty rows come last</source>
        <translation>表示中のグループの行を並べ替えます。空の行は最後になります</translation>
    </message>
    <message>
        <source>By &amp;Frequency</source>
        <translation>周波数順(&amp;F)</translation>
    </message>
    <message>
        <source>By &amp;Note</source>
        <translation>メモ順(&amp;N)</translation>
    </message>
    <message>
        <source>By &amp;Mode</source>
        <translation>モード順(&amp;M)</translation>
    </message>
    <message>
        <source>R&amp;ows</source>
        <translation>行(&amp;O)</translation>
    </message>
    <message>
        <source>Move, copy, insert, delete and sort rows of the group shown</source>
        <translation>表示中のグループの行を移動、コピー、挿入、削除、並べ替えします</translation>
    </message>
</context>
<context>
    <name>rqm5::frmSplash</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Reads, edits and writes the receiver&apos;s memory</source>
        <translation>受信機のメモリーの読み込み、編集、書き込み</translation>
    </message>
</context>
</TS>

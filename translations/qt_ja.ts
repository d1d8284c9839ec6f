<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor は MIT ライセンスのフリーソフトウェアです。複製が許可されているイメージにのみ使用してください。</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 Korvex ISO Editor 開発者</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>ISO イメージ:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>起動可能な DVD/CD を作成</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>対象のディスクを選び、［書き込み］をクリックします</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>起動可能な USB を作成</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>対象の USB を選び、［書き込み］をクリックします</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>パーティション形式</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (従来の BIOS/CSM 起動用)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (UEFI 起動に必要)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>ファイルシステム</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>ボリュームラベル（最大 11 文字）</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>書き込みに失敗しました！次のことをお試しください:
1.もう一度書き込む。
2.別の USB ドライブまたは DVD を使う。</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>ディスクに書き込み中…</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>ディスクに書き込みました。</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>USB ドライブをコンピューターに接続してください</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>USB ドライブはフォーマットされ、すべてのデータが削除されます！続行しますか？</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>空き容量が足りません。容量の大きい USB または CD/DVD に交換してください。</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>書き込みが完了しました…</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>USB ドライブをフォーマット中…</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>USB ドライブを起動可能にしています…</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>USB ドライブに書き込み中…</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>4 GB を超える WIM ファイルを処理中…</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>名前を入力してください:</translation>
    </message>
</context>
<context>
    <name>CPage2</name>
    <message>
        <source>Load ISO</source>
        <translation>ISO を開く</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>抽出</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>ISO の抽出</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>ISO イメージファイルの内容をすべて直接抽出し、コンピューターに書き出します。</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>抽出(&amp;E)</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>抽出するファイルまたはフォルダーを選択してください</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>ファイルを抽出中…</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>ファイルを抽出中: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>ファイルをコピー中！数秒お待ちください…</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>ファイルを抽出しました。</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>ファイルを追加…</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>フォルダーを追加…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>ISO を作成</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>ファイルを追加(&amp;F)</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>フォルダーを追加(&amp;D)</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>除外(&amp;R)</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> サイズ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>ファイルとフォルダーのバックアップ</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>合計サイズ: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>最大サイズ: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>バックアップの種類:</translation>
    </message>
    <message>
        <source>ISO9660 Jolet</source>
        <translation>ISO9660 Joliet</translation>
    </message>
    <message>
        <source>ISO9660</source>
        <translation>ISO9660</translation>
    </message>
    <message>
        <source>UDF ISO</source>
        <translation>UDF ISO</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>先にファイルまたはフォルダーを追加してください！</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>ファイルとフォルダーをコピー中…</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>ISO ファイルを作成中…</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>種類を選択してください</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>ISO を作成しました！</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>合計サイズ: </translation>
    </message>
</context>
<context>
    <name>CPage4</name>
    <message>
        <source>Load ISO</source>
        <translation>ISO を開く</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>書き出し(&amp;E)</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>新規(&amp;N)</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>先に一覧から 1 行を選択してください</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>この名前は使用できません</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>同じ名前のファイルまたはフォルダーが既に存在します</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>先に一覧からファイルまたはフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>ファイルとフォルダーをコピー中…</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>書き出しました！</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>ISO を抽出中…</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>先にファイルまたはフォルダーを追加してください！</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>ISO ファイルを保存中…</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>ISO ファイルを保存しました！</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>ディスクからイメージを作成</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>CD/DVD ドライブ:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>出力形式:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>ISO 形式</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>ファイルを選択</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>取り出す</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>保存する ISO ファイルを選択してください</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>保存する ISO ファイルを選択してください。</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>読み取りを開始…</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>CD/DVD をコピーしました！</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> サイズ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中国語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>French</source>
        <translation>フランス語</translation>
    </message>
    <message>
        <source>German</source>
        <translation>ドイツ語</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>スペイン語</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>ポルトガル語</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>ポーランド語</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>イタリア語</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>ロシア語</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>オランダ語</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>スウェーデン語</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>ホームページ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>ISO から起動可能な USB または DVD/CD を作成</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>抽出</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>ISO の内容を抽出</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>
 ファイルやフォルダーから 
 ISO を作成</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 ISO ファイルの内容を 
 追加・削除・名前変更</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>ディスクをコピー</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 CD/DVD から 
 ISO ファイルを作成</translation>
    </message>
    <message>
        <source>https://www.korvex.example/iso-editor/mac</source>
        <translation>https://www.korvex.example/iso-editor/mac</translation>
    </message>
    <message>
        <source>https://www.korvex.example/iso-editor</source>
        <translation>https://www.korvex.example/iso-editor</translation>
    </message>
    <message>
        <source>https://www.korvex.example/iso-editor/help</source>
        <translation>https://www.korvex.example/iso-editor/help</translation>
    </message>
    <message>
        <source>Help(&amp;H)</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>このソフトウェアについて(&amp;U)</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>終了(&amp;E)</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>言語(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>先にアイコンを「アプリケーション」フォルダーにドラッグしてください！</translation>
    </message>
</context>
</TS>

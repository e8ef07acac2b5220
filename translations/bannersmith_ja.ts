<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name></name>
    <message id="There is a scheme %1 already. Replace it?">
        <source></source>
        <translation>配色「%1」は既にあります。置き換えますか？</translation>
    </message>
    <message id="Being edited">
        <source></source>
        <translation>編集中</translation>
    </message>
    <message id="These colors are in no scheme and would be lost.">
        <source></source>
        <translation>これらの色はどの配色にも保存されておらず、このままでは失われます。</translation>
    </message>
    <message id="Save as a scheme">
        <source></source>
        <translation>配色として保存</translation>
    </message>
    <message id="Discard">
        <source></source>
        <translation>破棄</translation>
    </message>
    <message id="Cancel">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <message id="the bar at the top">
        <source></source>
        <translation>上部のバー</translation>
    </message>
    <message id="the console's name">
        <source></source>
        <translation>機種名</translation>
    </message>
    <message id="the shade over the ground">
        <source></source>
        <translation>背景の陰影</translation>
    </message>
    <message id="the picture and its frame">
        <source></source>
        <translation>画像とその枠</translation>
    </message>
    <message id="the picture's mirror image">
        <source></source>
        <translation>画像の映り込み</translation>
    </message>
    <message id="the picture's shadow">
        <source></source>
        <translation>画像の影</translation>
    </message>
    <message id="the ground">
        <source></source>
        <translation>背景</translation>
    </message>
    <message id="the first row of the pattern">
        <source></source>
        <translation>模様の1段目</translation>
    </message>
    <message id="the second row of the pattern">
        <source></source>
        <translation>模様の2段目</translation>
    </message>
    <message id="the third row of the pattern">
        <source></source>
        <translation>模様の3段目</translation>
    </message>
    <message id="the fourth row of the pattern">
        <source></source>
        <translation>模様の4段目</translation>
    </message>
    <message id="the fade to the floor">
        <source></source>
        <translation>床へのグラデーション</translation>
    </message>
    <message id="the floor">
        <source></source>
        <translation>床</translation>
    </message>
    <message id="the line below the year">
        <source></source>
        <translation>発売年の下の線</translation>
    </message>
    <message id="the line below the players">
        <source></source>
        <translation>プレイ人数の下の線</translation>
    </message>
    <message id="the game's name">
        <source></source>
        <translation>ゲームの名前</translation>
    </message>
    <message id="the year">
        <source></source>
        <translation>発売年</translation>
    </message>
    <message id="the number of players">
        <source></source>
        <translation>プレイ人数</translation>
    </message>
    <message id="the rating">
        <source></source>
        <translation>レーティング</translation>
    </message>
    <message id="Choose a scheme">
        <source></source>
        <translation>配色を選択</translation>
    </message>
    <message id="Colors of the layout file, or a saved scheme">
        <source></source>
        <translation>レイアウトファイルの色、または保存済みの配色</translation>
    </message>
    <message id="The layout file to read colors from">
        <source></source>
        <translation>色の読み込み元のレイアウトファイル</translation>
    </message>
    <message id="Save all colors as a scheme">
        <source></source>
        <translation>すべての色を配色として保存</translation>
    </message>
    <message id="Read the colors of that layout file">
        <source></source>
        <translation>指定したレイアウトファイルの色を読み込む</translation>
    </message>
    <message id="Pre&amp;view">
        <source></source>
        <translation>プレビュー</translation>
    </message>
    <message id="As the console &amp;draws it">
        <source></source>
        <translation>本体での表示</translation>
    </message>
    <message id="Red">
        <source></source>
        <translation>赤</translation>
    </message>
    <message id="Red, 0 to 255">
        <source></source>
        <translation>赤 (0～255)</translation>
    </message>
    <message id="Green">
        <source></source>
        <translation>緑</translation>
    </message>
    <message id="Green, 0 to 255">
        <source></source>
        <translation>緑 (0～255)</translation>
    </message>
    <message id="Blue">
        <source></source>
        <translation>青</translation>
    </message>
    <message id="Blue, 0 to 255">
        <source></source>
        <translation>青 (0～255)</translation>
    </message>
    <message id="Hex">
        <source></source>
        <translation>16進数</translation>
    </message>
    <message id="All three as six hexadecimal digits">
        <source></source>
        <translation>3色をまとめて6桁の16進数で指定</translation>
    </message>
    <message id="Color being edited">
        <source></source>
        <translation>編集中の色</translation>
    </message>
    <message id="Give the box being edited this color">
        <source></source>
        <translation>編集中の色枠にこの色を設定</translation>
    </message>
    <message id="The game's name; ^ is a line break">
        <source></source>
        <translation>ゲームの名前 (^ で改行)</translation>
    </message>
    <message id="Language of the name">
        <source></source>
        <translation>名前の言語</translation>
    </message>
    <message id="Write the name for this language">
        <source></source>
        <translation>この言語の名前を設定</translation>
    </message>
    <message id="Write the name for every language">
        <source></source>
        <translation>すべての言語の名前を設定</translation>
    </message>
    <message id="The console's name">
        <source></source>
        <translation>機種名</translation>
    </message>
    <message id="Write the console's name">
        <source></source>
        <translation>機種名を設定</translation>
    </message>
    <message id="The year of the release">
        <source></source>
        <translation>発売年</translation>
    </message>
    <message id="Language of the year">
        <source></source>
        <translation>発売年の言語</translation>
    </message>
    <message id="Write the year for this language">
        <source></source>
        <translation>この言語の発売年を設定</translation>
    </message>
    <message id="Write the year for every language">
        <source></source>
        <translation>すべての言語の発売年を設定</translation>
    </message>
    <message id="The rating: E, T, M...">
        <source></source>
        <translation>レーティング: E、T、M...</translation>
    </message>
    <message id="Language of the rating">
        <source></source>
        <translation>レーティングの言語</translation>
    </message>
    <message id="Write the rating for this language">
        <source></source>
        <translation>この言語のレーティングを設定</translation>
    </message>
    <message id="Write the rating for every language">
        <source></source>
        <translation>すべての言語のレーティングを設定</translation>
    </message>
    <message id="Show and replace the text of any text box">
        <source></source>
        <translation>任意のテキストボックスのテキストを表示・置換</translation>
    </message>
    <message id="The language that is shown">
        <source></source>
        <translation>表示する言語</translation>
    </message>
    <message id="The highest number of players">
        <source></source>
        <translation>最大プレイ人数</translation>
    </message>
    <message id="Write the number of players for every language">
        <source></source>
        <translation>すべての言語のプレイ人数を設定</translation>
    </message>
    <message id="Length to fill the file up to; +N appends N bytes; 0 for none">
        <source></source>
        <translation>ファイルをこの長さまで埋めます。+N で N バイト追加、0 で追加なし</translation>
    </message>
    <message id="The color scheme that the next save applies">
        <source></source>
        <translation>次回の保存時に適用する配色</translation>
    </message>
    <message id="Edit colors and see the banner">
        <source></source>
        <translation>色を編集してバナーを確認</translation>
    </message>
    <message id="The logo texture that the next save puts into the banner">
        <source></source>
        <translation>次回の保存時にバナーへ入れるロゴのテクスチャ</translation>
    </message>
    <message id="Game Pic&amp;ture...">
        <source></source>
        <translation>ゲームの画像...</translation>
    </message>
    <message id="See, replace and export the game's picture">
        <source></source>
        <translation>ゲームの画像を表示・置換・書き出し</translation>
    </message>
    <message id="The language that the next save lets another one answer to">
        <source></source>
        <translation>次回の保存から別の言語のテキストで代用する言語</translation>
    </message>
    <message id="All Languages...">
        <source></source>
        <translation>すべての言語...</translation>
    </message>
    <message id="The texts of all languages in one table">
        <source></source>
        <translation>全言語のテキストを1つの表に表示</translation>
    </message>
    <message id="Do not apply">
        <source></source>
        <translation>適用しない</translation>
    </message>
    <message id="Take back what was chosen for another file">
        <source></source>
        <translation>別のファイル用に選択した内容を取り消す</translation>
    </message>
    <message id="Channel names">
        <source></source>
        <translation>チャンネル名</translation>
    </message>
    <message id="Up to 20 characters a line, as the console's menu shows them">
        <source></source>
        <translation>本体のメニューに表示される名前 (1行20文字まで)</translation>
    </message>
    <message id="%1, line %2">
        <source></source>
        <translation>%1、%2行目</translation>
    </message>
    <message id="Write the names that differ">
        <source></source>
        <translation>変更した名前を設定</translation>
    </message>
    <message id="Game Picture">
        <source></source>
        <translation>ゲームの画像</translation>
    </message>
    <message id="Picture of the game">
        <source></source>
        <translation>ゲームの画像</translation>
    </message>
    <message id="What happens to a picture whose sides are in another ratio">
        <source></source>
        <translation>縦横比が異なる画像の扱い</translation>
    </message>
    <message id="&amp;Fit:">
        <source></source>
        <translation>合わせ方(&amp;F):</translation>
    </message>
    <message id="&amp;Replace...">
        <source></source>
        <translation>置き換え(&amp;R)...</translation>
    </message>
    <message id="Take another picture, for banner and icon">
        <source></source>
        <translation>バナーとアイコン用に別の画像を選択</translation>
    </message>
    <message id="&amp;Export...">
        <source></source>
        <translation>書き出し(&amp;E)...</translation>
    </message>
    <message id="Write the picture into a PNG file">
        <source></source>
        <translation>画像をPNGファイルに保存</translation>
    </message>
    <message id="The manual is not there: %1">
        <source></source>
        <translation>マニュアルが見つかりません: %1</translation>
    </message>
    <message id="Manual">
        <source></source>
        <translation>マニュアル</translation>
    </message>
    <message id="How to work with the editor">
        <source></source>
        <translation>エディターの使い方</translation>
    </message>
    <message id="About Bannersmith">
        <source></source>
        <translation>Bannersmithについて</translation>
    </message>
    <message id="The editor for the banners of Virtual Console channels.">
        <source></source>
        <translation>バーチャルコンソールのチャンネルのバナーを編集するエディターです。</translation>
    </message>
    <message id="Qt %1, used under the LGPL">
        <source></source>
        <translation>Qt %1 (LGPLに基づき使用)</translation>
    </message>
    <message id="All languages">
        <source></source>
        <translation>すべての言語</translation>
    </message>
    <message id="The text of this cell">
        <source></source>
        <translation>このセルのテキスト</translation>
    </message>
    <message id="All Languages">
        <source></source>
        <translation>すべての言語</translation>
    </message>
    <message id="Texts of all languages">
        <source></source>
        <translation>全言語のテキスト</translation>
    </message>
    <message id="A row for each language, a column for each field">
        <source></source>
        <translation>言語ごとに1行、項目ごとに1列</translation>
    </message>
    <message id="Values, around which the banner has the wording of each language; or its whole texts">
        <source></source>
        <translation>各言語の定型文に入る値のみ、またはテキスト全体</translation>
    </message>
    <message id="Type into a cell; Enter goes to the next language. Cells can be pasted from a spreadsheet.">
        <source></source>
        <translation>セルに入力してください。Enterで次の言語に移動します。表計算ソフトからセルを貼り付けることもできます。</translation>
    </message>
    <message id="&amp;Show:">
        <source></source>
        <translation>表示(&amp;S):</translation>
    </message>
    <message id="The banner will say: %1">
        <source></source>
        <translation>バナーの表示: %1</translation>
    </message>
    <message id="As the system">
        <source></source>
        <translation>システムの言語</translation>
    </message>
    <message id="the text for all languages">
        <source></source>
        <translation>全言語共通のテキスト</translation>
    </message>
    <message id="Korean">
        <source></source>
        <translation>韓国語</translation>
    </message>
    <message id="English">
        <source></source>
        <translation>英語</translation>
    </message>
    <message id="German">
        <source></source>
        <translation>ドイツ語</translation>
    </message>
    <message id="French">
        <source></source>
        <translation>フランス語</translation>
    </message>
    <message id="Italian">
        <source></source>
        <translation>イタリア語</translation>
    </message>
    <message id="Spanish">
        <source></source>
        <translation>スペイン語</translation>
    </message>
    <message id="Dutch">
        <source></source>
        <translation>オランダ語</translation>
    </message>
    <message id="Japanese">
        <source></source>
        <translation>日本語</translation>
    </message>
    <message id="The banner as the console draws it">
        <source></source>
        <translation>本体で表示されるバナー</translation>
    </message>
    <message id="Pl&amp;ay">
        <source></source>
        <translation>再生</translation>
    </message>
    <message id="Play the animation, from its beginning">
        <source></source>
        <translation>アニメーションを最初から再生</translation>
    </message>
    <message id="Sa&amp;ve Picture...">
        <source></source>
        <translation>画像を保存...</translation>
    </message>
    <message id="Which part of the channel is shown">
        <source></source>
        <translation>表示するチャンネルの部分</translation>
    </message>
    <message id="The shape of the screen">
        <source></source>
        <translation>画面の縦横比</translation>
    </message>
    <message id="&amp;File">
        <source></source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message id="&amp;Open...">
        <source></source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message id="Open &amp;Recent">
        <source></source>
        <translation>最近使ったファイル(&amp;R)</translation>
    </message>
    <message id="Re&amp;load">
        <source></source>
        <translation>再読み込み(&amp;L)</translation>
    </message>
    <message id="&amp;Save Changes">
        <source></source>
        <translation>&amp;Save Changes</translation>
    </message>
    <message id="&amp;Quit">
        <source></source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message id="No file yet">
        <source></source>
        <translation>ファイルはまだありません</translation>
    </message>
    <message id="E&amp;dit">
        <source></source>
        <translation>編集(&amp;D)</translation>
    </message>
    <message id="&amp;All Languages...">
        <source></source>
        <translation>すべての言語(&amp;A)...</translation>
    </message>
    <message id="&amp;Hardcore Manual Text Editor">
        <source></source>
        <translation>&amp;Hardcore Manual Text Editor</translation>
    </message>
    <message id="&amp;Color Editor And Preview">
        <source></source>
        <translation>&amp;Color Editor And Preview</translation>
    </message>
    <message id="&amp;Game Picture...">
        <source></source>
        <translation>ゲームの画像(&amp;G)...</translation>
    </message>
    <message id="&amp;Undo %1">
        <source></source>
        <translation>元に戻す(&amp;U): %1</translation>
    </message>
    <message id="&amp;Undo">
        <source></source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message id="&amp;Redo %1">
        <source></source>
        <translation>やり直す(&amp;R): %1</translation>
    </message>
    <message id="&amp;Redo">
        <source></source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message id="&amp;View">
        <source></source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message id="&amp;Play or Stop">
        <source></source>
        <translation>再生/停止(&amp;P)</translation>
    </message>
    <message id="&amp;Language of the windows">
        <source></source>
        <translation>ウィンドウの言語(&amp;L)</translation>
    </message>
    <message id="The windows speak this language from the next start on.">
        <source></source>
        <translation>次回の起動時からこの言語で表示されます。</translation>
    </message>
    <message id="&amp;Help">
        <source></source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message id="&amp;Manual">
        <source></source>
        <translation>マニュアル(&amp;M)</translation>
    </message>
    <message id="&amp;About Bannersmith">
        <source></source>
        <translation>Bannersmithについて(&amp;A)</translation>
    </message>
    <message id="This is a sample. Type a name, press Set All, and see the banner change; nothing is written before Save Changes. Open your own file with %1, or drop it here. %2 shows the manual.">
        <source></source>
        <translation>これはサンプルです。名前を入力して「Set All」を押すと、バナーが変わります。「Save Changes」を押すまでファイルには書き込まれません。自分のファイルは %1 で開くか、ここにドロップしてください。%2 でマニュアルを表示します。</translation>
    </message>
    <message id="Got it">
        <source></source>
        <translation>了解</translation>
    </message>
    <message id="Do not show this hint again">
        <source></source>
        <translation>このヒントを今後表示しない</translation>
    </message>
    <message id="&amp;Banner">
        <source></source>
        <translation>バナー</translation>
    </message>
    <message id="Channel na&amp;mes">
        <source></source>
        <translation>チャンネル名</translation>
    </message>
    <message id="The layout file; a path that begins with \ is below the program's folder">
        <source></source>
        <translation>レイアウトファイル (\ で始まるパスはプログラムのフォルダーが基準)</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here">
        <source></source>
        <translation>チャンネルのファイル、レイアウト、フォルダーをここにドロップ</translation>
    </message>
    <message id="Choose a layout file">
        <source></source>
        <translation>レイアウトファイルを選択</translation>
    </message>
    <message id="Browse">
        <source></source>
        <translation>参照</translation>
    </message>
    <message id="Write the layout file">
        <source></source>
        <translation>レイアウトファイルを保存</translation>
    </message>
    <message id="Not enough memory">
        <source></source>
        <translation>メモリが不足しています</translation>
    </message>
    <message id="No layout is loaded">
        <source></source>
        <translation>レイアウトが読み込まれていません</translation>
    </message>
    <message id="Names no layout file">
        <source></source>
        <translation>レイアウトファイルが指定されていません</translation>
    </message>
    <message id="Holds no line; write one with any path into it">
        <source></source>
        <translation>行がありません。任意のパスを1行書き込んでください</translation>
    </message>
    <message id="Too short to be a layout">
        <source></source>
        <translation>レイアウトとしては短すぎます</translation>
    </message>
    <message id="Is no archive of a channel">
        <source></source>
        <translation>チャンネルのアーカイブではありません</translation>
    </message>
    <message id="IMET checksum does not hold">
        <source></source>
        <translation>IMETのチェックサムが一致しません</translation>
    </message>
    <message id="IMD5 checksum does not hold">
        <source></source>
        <translation>IMD5のチェックサムが一致しません</translation>
    </message>
    <message id="Holds neither banner.bin nor icon.bin">
        <source></source>
        <translation>banner.binもicon.binも含まれていません</translation>
    </message>
    <message id="Holds no layout">
        <source></source>
        <translation>レイアウトが含まれていません</translation>
    </message>
    <message id="Has no such channel name">
        <source></source>
        <translation>該当するチャンネル名がありません</translation>
    </message>
    <message id="Is a program, not a layout file">
        <source></source>
        <translation>レイアウトファイルではなくプログラムです</translation>
    </message>
    <message id="Another run of Bannersmith is at work in its folder">
        <source></source>
        <translation>このファイルのフォルダーでは別のBannersmithが処理中です</translation>
    </message>
    <message id="Not a whole number up to 268435456, with or without + in front of it">
        <source></source>
        <translation>268435456以下の整数ではありません (先頭の + は任意)</translation>
    </message>
    <message id="Has no picture of the game">
        <source></source>
        <translation>ゲームの画像が含まれていません</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture nor a texture">
        <source></source>
        <translation>PNG/JPEG画像でもテクスチャでもありません</translation>
    </message>
    <message id="Is neither a PNG nor a JPEG picture">
        <source></source>
        <translation>PNG画像でもJPEG画像でもありません</translation>
    </message>
    <message id="Picture is cut off">
        <source></source>
        <translation>画像が途中で切れています</translation>
    </message>
    <message id="Picture is broken">
        <source></source>
        <translation>画像が壊れています</translation>
    </message>
    <message id="Is too large">
        <source></source>
        <translation>大きすぎます</translation>
    </message>
    <message id="Is no texture, or is cut off">
        <source></source>
        <translation>テクスチャではないか、途中で切れています</translation>
    </message>
    <message id="Texture is broken">
        <source></source>
        <translation>テクスチャが壊れています</translation>
    </message>
    <message id="A scheme's name cannot begin with . or hold \ or /">
        <source></source>
        <translation>配色の名前は . で始められず、\ や / も使えません</translation>
    </message>
    <message id="Not an ordinary file">
        <source></source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message id="Is a directory">
        <source></source>
        <translation>ディレクトリです</translation>
    </message>
    <message id="No such file or directory">
        <source></source>
        <translation>ファイルまたはディレクトリが見つかりません</translation>
    </message>
    <message id="Permission denied">
        <source></source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message id="Read-only file system">
        <source></source>
        <translation>ファイルシステムが読み取り専用です</translation>
    </message>
    <message id="No space left on device">
        <source></source>
        <translation>デバイスの空き容量がありません</translation>
    </message>
    <message id="Disk quota exceeded">
        <source></source>
        <translation>ディスククォータを超過しました</translation>
    </message>
    <message id="File too large">
        <source></source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message id="The entries that hold what is searched for">
        <source></source>
        <translation>検索文字列を含む項目</translation>
    </message>
    <message id="Search">
        <source></source>
        <translation>検索</translation>
    </message>
    <message id="Leaves the entries that hold the text">
        <source></source>
        <translation>入力した文字列を含む項目だけを表示</translation>
    </message>
    <message id="The text boxes of the layout, in the order of the file">
        <source></source>
        <translation>レイアウトのテキストボックス (ファイル内の順)</translation>
    </message>
    <message id="The box's text; ^ is a line break">
        <source></source>
        <translation>テキストボックスのテキスト (^ で改行)</translation>
    </message>
    <message id="Write the text into the chosen box">
        <source></source>
        <translation>選択したテキストボックスにテキストを設定</translation>
    </message>
    <message id="red %1">
        <source></source>
        <translation>赤 %1</translation>
    </message>
    <message id="green %1">
        <source></source>
        <translation>緑 %1</translation>
    </message>
    <message id="blue %1">
        <source></source>
        <translation>青 %1</translation>
    </message>
    <message id="Crop">
        <source></source>
        <translation>切り抜き</translation>
    </message>
    <message id="Border">
        <source></source>
        <translation>余白</translation>
    </message>
    <message id="Stretch">
        <source></source>
        <translation>引き伸ばし</translation>
    </message>
    <message id="Values">
        <source></source>
        <translation>値</translation>
    </message>
    <message id="Whole texts">
        <source></source>
        <translation>テキスト全体</translation>
    </message>
    <message id="Banner">
        <source></source>
        <translation>バナー</translation>
    </message>
    <message id="Icon">
        <source></source>
        <translation>アイコン</translation>
    </message>
    <message id="Drop a channel's file, a layout or a folder here, or open one">
        <source></source>
        <translation>チャンネルのファイル、レイアウト、フォルダーをここにドロップするか、開いてください</translation>
    </message>
    <message id="Approximate font">
        <source></source>
        <translation>近似フォント</translation>
    </message>
    <message id="%1 may not fit its width">
        <source></source>
        <translation>%1 は幅に収まらない可能性があります</translation>
    </message>
    <message id="%1 may not fit its height">
        <source></source>
        <translation>%1 は高さに収まらない可能性があります</translation>
    </message>
    <message id="St&amp;op">
        <source></source>
        <translation>停止</translation>
    </message>
    <message id="Typed, but not set yet">
        <source></source>
        <translation>入力済み (未設定)</translation>
    </message>
    <message id="all languages">
        <source></source>
        <translation>すべての言語</translation>
    </message>
    <message id="Colors">
        <source></source>
        <translation>色</translation>
    </message>
    <message id="Logo">
        <source></source>
        <translation>ロゴ</translation>
    </message>
    <message id="Game picture">
        <source></source>
        <translation>ゲームの画像</translation>
    </message>
    <message id="Region %1">
        <source></source>
        <translation>リージョン %1</translation>
    </message>
    <message id="Padding">
        <source></source>
        <translation>パディング</translation>
    </message>
    <message id="Channel name (%1)">
        <source></source>
        <translation>チャンネル名 (%1)</translation>
    </message>
    <message id="Will be applied to this file, too">
        <source></source>
        <translation>このファイルにも適用されます</translation>
    </message>
    <message id="Text editor">
        <source></source>
        <translation>テキストエディター</translation>
    </message>
    <message id="Game picture: the next save writes it">
        <source></source>
        <translation>ゲームの画像: 次回の保存時に書き込まれます</translation>
    </message>
    <message id="Not saved">
        <source></source>
        <translation>保存していません</translation>
    </message>
    <message id="Saved">
        <source></source>
        <translation>保存しました</translation>
    </message>
    <message id="no colors applied">
        <source></source>
        <translation>色の適用なし</translation>
    </message>
    <message id="Saved; the banner has no logo texture to replace">
        <source></source>
        <translation>保存しました。置き換えるロゴのテクスチャがバナーにありません</translation>
    </message>
    <message id="Save with %1">
        <source></source>
        <translation>保存 (%1)</translation>
    </message>
    <message id="%1 is not a layout file. Save it all the same?">
        <source></source>
        <translation>%1 はレイアウトファイルではありません。それでも保存しますか？</translation>
    </message>
    <message id="%1: %2. Force the region all the same?">
        <source></source>
        <translation>%1: %2。それでもリージョンを強制しますか？</translation>
    </message>
    <message id="one text for all languages">
        <source></source>
        <translation>全言語共通のテキスト</translation>
    </message>
    <message id="no titles">
        <source></source>
        <translation>タイトルなし</translation>
    </message>
    <message id="nothing changed">
        <source></source>
        <translation>変更なし</translation>
    </message>
    <message id="other texts changed">
        <source></source>
        <translation>その他のテキストを変更</translation>
    </message>
    <message id="1 text changed:">
        <source></source>
        <translation>1件のテキストを変更:</translation>
    </message>
    <message id="%1 texts changed:">
        <source></source>
        <translation>%1件のテキストを変更:</translation>
    </message>
    <message id="1 line changed">
        <source></source>
        <translation>1行を変更</translation>
    </message>
    <message id="%1 lines changed">
        <source></source>
        <translation>%1行を変更</translation>
    </message>
    <message id="Taken back: %1">
        <source></source>
        <translation>元に戻しました: %1</translation>
    </message>
    <message id="Brought again: %1">
        <source></source>
        <translation>やり直しました: %1</translation>
    </message>
    <message id="Warning: %1">
        <source></source>
        <translation>警告: %1</translation>
    </message>
    <message id="%1 files in %2 bytes">
        <source></source>
        <translation>%1個のファイル (%2バイト)</translation>
    </message>
    <message id="No layout loaded">
        <source></source>
        <translation>レイアウト未読み込み</translation>
    </message>
    <message id="texts not saved">
        <source></source>
        <translation>テキスト未保存</translation>
    </message>
    <message id="texts as in the file">
        <source></source>
        <translation>テキストはファイルと同じ</translation>
    </message>
    <message id="not a layout file">
        <source></source>
        <translation>レイアウトファイルではありません</translation>
    </message>
    <message id="%1 bytes">
        <source></source>
        <translation>%1バイト</translation>
    </message>
    <message id="Set it first">
        <source></source>
        <translation>先に設定</translation>
    </message>
    <message id="Save">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="%1 was typed and is not set.">
        <source></source>
        <translation>%1 の入力内容は設定されていません。</translation>
    </message>
    <message id="What was typed is not set, and would not be saved: %1">
        <source></source>
        <translation>入力した内容が設定されておらず、このままでは保存されません: %1</translation>
    </message>
    <message id="%1 does not have the latest changes.">
        <source></source>
        <translation>%1 に最新の変更が保存されていません。</translation>
    </message>
    <message id="Not set yet: %1">
        <source></source>
        <translation>未設定: %1</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded.">
        <source></source>
        <translation>%1 は読み込み後に別のプログラムによって変更されました。</translation>
    </message>
    <message id="Reload">
        <source></source>
        <translation>再読み込み</translation>
    </message>
    <message id="Keep what is here">
        <source></source>
        <translation>開いている内容を維持</translation>
    </message>
    <message id="%1 was changed by another program since it was loaded. Save over it?">
        <source></source>
        <translation>%1 は読み込み後に別のプログラムによって変更されました。上書きしますか？</translation>
    </message>
    <message id="Overwrite">
        <source></source>
        <translation>上書き</translation>
    </message>
    <message id="Chinese, simplified">
        <source></source>
        <translation>簡体字中国語</translation>
    </message>
    <message id="Chinese, traditional">
        <source></source>
        <translation>繁体字中国語</translation>
    </message>
</context>
</TS>

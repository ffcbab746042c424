<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Desktop</name>
    <message>
        <source>Photo Looks</source>
        <translation>写真のルック</translation>
    </message>
    <message>
        <source>Give a photo a look and save it</source>
        <translation>写真にルックを与えて保存します</translation>
    </message>
    <message>
        <source>Lumora shows one photo large and, beside it, what it would be under each of its looks: cool and muted, warm and faded, black and white, like an instant print or a frame of a film. One press applies a look; with multiple looks switched on, they stack in the order in which they were chosen.</source>
        <translation>Lumora は一枚の写真を大きく表示し、その横にそれぞれのルックを適用した様子を並べます。冷たく抑えた色、暖かく色あせた色、白黒、インスタント写真や映画の一場面のような仕上がり。一度押すだけでルックを適用でき、複数のルックをオンにすると、選んだ順に重なります。</translation>
    </message>
    <message>
        <source>What it does:</source>
        <translation>できること:</translation>
    </message>
    <message>
        <source>looks from instant prints to infrared film, many of which can be varied at random</source>
        <translation>インスタント写真から赤外線フィルムまでのルック。多くはランダムに変化させられます</translation>
    </message>
    <message>
        <source>crops and borders that come with a look or are chosen by hand</source>
        <translation>ルックに属する、または自分で選ぶ切り抜きと枠</translation>
    </message>
    <message>
        <source>quarter turns, looks made permanent, and JPEG files in the size that is wanted</source>
        <translation>90 度の回転、ルックの統合、望みのサイズの JPEG ファイル</translation>
    </message>
    <message>
        <source>opens JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos, upright and in their right colours</source>
        <translation>JPEG、PNG、GIF、TIFF、WebP、HEIC、AVIF、JPEG XL、BMP、TGA、PSD、カメラの RAW 写真を、正しい向きと色で開きます</translation>
    </message>
    <message>
        <source>works by mouse, by keyboard and with a screen reader</source>
        <translation>マウス、キーボード、スクリーンリーダーで操作できます</translation>
    </message>
    <message>
        <source>A photo under the look Mono, above the strip of looks</source>
        <translation>ルック Mono を適用した写真と、下に並ぶルック</translation>
    </message>
    <message>
        <source>The photo before and after the look 1974, on either side of a line</source>
        <translation>線の左右に、ルック 1974 の適用前と適用後の写真</translation>
    </message>
    <message>
        <source>Give a photo a look, a crop and a border, and save it</source>
        <translation>写真にルックと切り抜きと枠を与えて保存します</translation>
    </message>
    <message>
        <source>photo;picture;look;filter;effect;border;crop;instant;retro;</source>
        <translation>写真;画像;ルック;フィルター;効果;枠;切り抜き;インスタント;レトロ;</translation>
    </message>
    <message>
        <source>Compare, look closely, and save many photos at once:</source>
        <translation>比較、拡大表示、複数の写真の一括保存:</translation>
    </message>
    <message>
        <source>the photo beside what it was, on either side of a line</source>
        <translation>線の両側に、写真とその元の姿を並べて表示</translation>
    </message>
    <message>
        <source>every pixel as it will be saved, at 50, 100 or 200 %</source>
        <translation>保存されるとおりの一つ一つのピクセルを 50、100、200 % で表示</translation>
    </message>
    <message>
        <source>many photos or a whole folder under the looks that are chosen</source>
        <translation>選んだルックを多くの写真やフォルダー全体に適用</translation>
    </message>
    <message>
        <source>photos through the clipboard, and dragged out of the window</source>
        <translation>クリップボードでの写真の受け渡しと、ウィンドウの外へのドラッグ</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>最初のリリースです。</translation>
    </message>
    <message>
        <source>give many photos the same looks</source>
        <translation>多くの写真に同じルックを与える</translation>
    </message>
    <message>
        <source>give one photo a look</source>
        <translation>一枚の写真にルックを与える</translation>
    </message>
</context>
<context>
    <name>DragDropImageView</name>
    <message>
        <source>Before: the photo without its looks, in its crop and border.</source>
        <translation>適用前: ルックなしの写真 (切り抜きと枠はそのまま)。</translation>
    </message>
    <message>
        <source>The photo as it will be saved, at %1 %. Drag it or press the arrow keys to see other parts of it.</source>
        <translation>保存されるとおりの写真 (%1 %)。ドラッグまたは矢印キーで他の部分を表示します。</translation>
    </message>
    <message>
        <source>Before on the left, after on the right of a line that the arrow keys move.</source>
        <translation>左が適用前、右が適用後です。境の線は矢印キーで動かせます。</translation>
    </message>
    <message>
        <source>The photo under the applied looks. Hold the mouse or the space bar to see it before.</source>
        <translation>ルックを適用した写真です。マウスのボタンかスペースキーを押している間、適用前を表示します。</translation>
    </message>
    <message>
        <source>Drop a photo here, or open one.</source>
        <translation>ここに写真をドロップするか、開いてください。</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>適用前</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>After</source>
        <translation>適用後</translation>
    </message>
</context>
<context>
    <name>FramingChoice</name>
    <message>
        <source>By Filter</source>
        <translation>ルックに従う</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>細い</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Thick</source>
        <translation>太い</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>角丸</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>元のまま</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>all others</source>
        <translation>その他すべて</translation>
    </message>
    <message>
        <source>Lumora Help</source>
        <translation>Lumora ヘルプ</translation>
    </message>
    <message>
        <source>Lumora</source>
        <translation>Lumora</translation>
    </message>
    <message>
        <source>Lumora gives one photo a look, a crop and a border, and saves the result as a JPEG file. The photo on your disk is never changed: what you see is a picture made from it, and it is written only where you say.</source>
        <translation>Lumora は一枚の写真にルックと切り抜きと枠を与え、結果を JPEG ファイルとして保存します。ディスク上の写真が変更されることはありません。見えているのは写真から作られた画像で、指定した場所にだけ書き込まれます。</translation>
    </message>
    <message>
        <source>A photo comes in</source>
        <translation>写真を開く</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Open&lt;/b&gt;, drop a file on the large picture, or open a photo with Lumora from your file manager. JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos open, and whatever else your desktop can decode. A photo that replaces another takes over the looks that are switched on. A file that is not a photo is refused, and the photo before it stays.</source>
        <translation>&lt;b&gt;開く&lt;/b&gt; を押すか、大きな画像の上にファイルをドロップするか、ファイルマネージャーから Lumora で写真を開きます。JPEG、PNG、GIF、TIFF、WebP、HEIC、AVIF、JPEG XL、BMP、TGA、PSD、カメラの RAW 写真のほか、デスクトップが読めるものはすべて開けます。新しい写真は、オンになっているルックを引き継ぎます。写真でないファイルは拒否され、前の写真が残ります。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt; and &lt;b&gt;Page Up&lt;/b&gt; go to the next and the previous photo of the folder, in the order of their names, and the looks stay on; what is no photo is passed over. Where several files were opened with Lumora at once, the keys go through those. &lt;b&gt;File, Open recent&lt;/b&gt; has the eight photos that were opened last.</source>
        <translation>&lt;b&gt;Page Down&lt;/b&gt; と &lt;b&gt;Page Up&lt;/b&gt; で、フォルダー内の次の写真と前の写真へ名前の順に移動します。ルックはそのままで、写真でないものは飛ばされます。複数のファイルを一度に Lumora で開いたときは、その中を移動します。&lt;b&gt;ファイル → 最近開いた写真&lt;/b&gt; には最近開いた八枚があります。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Edit, Paste&lt;/b&gt; opens a picture that another program copied, or a copied file. &lt;b&gt;Edit, Copy&lt;/b&gt; puts the photo as it would be saved on the clipboard; and the photo can be dragged out of Lumora, as a file or as a picture: press on it and move.</source>
        <translation>&lt;b&gt;編集 → 貼り付け&lt;/b&gt; は、ほかのプログラムでコピーした画像やコピーしたファイルを開きます。&lt;b&gt;編集 → コピー&lt;/b&gt; は、保存されるとおりの写真をクリップボードに入れます。写真を Lumora の外へ、ファイルや画像としてドラッグすることもできます。写真の上でボタンを押して動かしてください。</translation>
    </message>
    <message>
        <source>Looks, one or several</source>
        <translation>一つのルック、複数のルック</translation>
    </message>
    <message>
        <source>Each button shows your photo under its look; press it to apply the look, and press it again to take it off. &lt;b&gt;Original&lt;/b&gt; takes all looks off. Where the window is narrow the row of looks scrolls: by the wheel over it, by its bar, or by the arrow keys.</source>
        <translation>各ボタンには、そのルックを適用した写真が表示されます。押すと適用され、もう一度押すと外れます。&lt;b&gt;Original&lt;/b&gt; はすべてのルックを外します。ウィンドウが狭いときは、ルックの列をホイール、スクロールバー、矢印キーでスクロールできます。</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Multiple looks&lt;/b&gt; switched on, looks stack in the order in which you press them. The line above the photo shows the chain, for example &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Pressing a look of the chain takes it out and leaves the others in order, and the buttons carry their numbers. Switching back to one look keeps the one that came last.</source>
        <translation>&lt;b&gt;複数のルック&lt;/b&gt; をオンにすると、押した順にルックが重なります。写真の上の行には、たとえば &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt; のように並びが表示されます。並びの中のルックを押すとそれだけが外れ、ほかは順序を保ち、ボタンには番号が付きます。一つのルックに戻すと、最後のものが残ります。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Strength&lt;/b&gt; takes the looks back in part: at 0 the photo shows as it came, in its crop and border. The thumbnails, and every new look or chain, have the whole strength.</source>
        <translation>&lt;b&gt;強さ&lt;/b&gt; はルックを部分的に弱めます。0 では、写真は切り抜きと枠を除いて元のまま見えます。サムネイルと、新しく選んだルックや並びは、常に最大の強さです。</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Randomness&lt;/b&gt; switched on, many looks vary a little, the same way until you press &lt;b&gt;Re-expose&lt;/b&gt;, which draws a new variation. Randomness is off whenever Lumora starts.</source>
        <translation>&lt;b&gt;ランダム&lt;/b&gt; をオンにすると、多くのルックが少し変化します。&lt;b&gt;再露光&lt;/b&gt; を押して新しい変化を引くまで、変化は同じです。Lumora の起動時はいつもオフです。</translation>
    </message>
    <message>
        <source>Crop and border</source>
        <translation>切り抜きと枠</translation>
    </message>
    <message>
        <source>&lt;b&gt;By Filter&lt;/b&gt; takes the crop and the border that belong to the look that you added last:</source>
        <translation>&lt;b&gt;ルックに従う&lt;/b&gt; は、最後に加えたルックに属する切り抜きと枠を使います:</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>ルック</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>切り抜き</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>枠</translation>
    </message>
    <message>
        <source>The other entries choose a crop or a border whatever the look; &lt;b&gt;None&lt;/b&gt; switches it off. A border is put round the photo and hides nothing of it. 6x4, 4x3 and 7x6 turn with a portrait photo; Cinema stays a wide strip.</source>
        <translation>ほかの項目は、ルックに関係なく切り抜きや枠を選びます。&lt;b&gt;なし&lt;/b&gt; はオフにします。枠は写真の周りに付き、写真を隠しません。6x4、4x3、7x6 は縦長の写真では縦になります。Cinema は横長のままです。</translation>
    </message>
    <message>
        <source>Turn, flatten, save</source>
        <translation>回転、統合、保存</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rotate&lt;/b&gt; turns the photo by a quarter; the looks stay.</source>
        <translation>&lt;b&gt;回転&lt;/b&gt; は写真を 90 度回します。ルックはそのままです。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Flatten&lt;/b&gt; makes the looks, the crop and the border part of the photo, so that further looks start from there.</source>
        <translation>&lt;b&gt;統合&lt;/b&gt; はルックと切り抜きと枠を写真の一部にします。次のルックはそこから始まります。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Size&lt;/b&gt; is the longer side of the saved picture in pixels. A smaller picture is enlarged to it; &lt;i&gt;Original&lt;/i&gt; keeps what the photo has.</source>
        <translation>&lt;b&gt;サイズ&lt;/b&gt; は保存する画像の長辺のピクセル数です。小さい画像は拡大されます。&lt;i&gt;元のまま&lt;/i&gt; は写真のサイズを保ちます。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Save&lt;/b&gt; writes a JPEG file, whatever the ending of its name; an ending that is not in the list gets &lt;i&gt;.jpg&lt;/i&gt;. The photo that you opened is replaced only if you say so: &lt;i&gt;Keep both&lt;/i&gt; saves beside it. If a save fails, the file that stood there stays as it was.</source>
        <translation>&lt;b&gt;保存&lt;/b&gt; は、名前の拡張子が何であっても JPEG ファイルを書きます。一覧にない拡張子には &lt;i&gt;.jpg&lt;/i&gt; が付きます。開いた写真は、指示したときだけ置き換えられます。&lt;i&gt;両方残す&lt;/i&gt; は隣に保存します。保存に失敗したときは、そこにあったファイルが元のまま残ります。</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Save Many&lt;/b&gt; (Ctrl+Shift+S) gives many photos, or all of a folder, what is chosen now: looks, strength, crop, border, size, variation, quality. They go into a folder of your choice, named after photo and looks; a file that stands there stays. &lt;i&gt;Cancel&lt;/i&gt; keeps what is saved, and another time goes on from there. What cannot be saved is listed with its reason. In a terminal &lt;i&gt;lumora-render&lt;/i&gt; does the same.</source>
        <translation>&lt;b&gt;ファイル → まとめて保存&lt;/b&gt; (Ctrl+Shift+S) は、多くの写真、またはフォルダー内のすべての写真に、いま選んでいるルック、強さ、切り抜き、枠、サイズ、変化、品質を適用します。選んだフォルダーに、写真とルックの名前で保存されます。すでにあるファイルは残ります。&lt;i&gt;キャンセル&lt;/i&gt; しても保存済みのものは残り、次はその続きから始まります。保存できなかったものは理由とともに一覧に出ます。端末では &lt;i&gt;lumora-render&lt;/i&gt; が同じことをします。</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Keep with the photo&lt;/b&gt;: what the camera and others wrote into the photo (its date, the camera, a title, the caption, and also &lt;i&gt;where it was taken&lt;/i&gt;) goes into the saved file. &lt;i&gt;Everything but the place&lt;/i&gt; leaves out the coordinates, the names of city, country and location, and the camera maker&apos;s own notes, which may tell the place; &lt;i&gt;Nothing&lt;/i&gt; leaves out all. Preview pictures of the photo as it was are never kept. The choice is remembered.</source>
        <translation>&lt;b&gt;ファイル → 写真と一緒に残す情報&lt;/b&gt;: カメラなどが写真に書き込んだもの (日付、カメラ、タイトル、説明、そして &lt;i&gt;撮影場所&lt;/i&gt;) が、保存するファイルに入ります。&lt;i&gt;場所以外すべて&lt;/i&gt; は、座標、市や国や場所の名前、場所が分かるかもしれないカメラメーカー独自の情報を除きます。&lt;i&gt;何も残さない&lt;/i&gt; はすべてを除きます。元の写真のプレビュー画像は残しません。選択は記憶されます。</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, JPEG quality&lt;/b&gt;: &lt;i&gt;Standard&lt;/i&gt; is small; &lt;i&gt;High&lt;/i&gt; and &lt;i&gt;Best&lt;/i&gt; keep finer detail, and the colour of each pixel, in larger files. How large is told before and after a photo is saved. The choice is remembered.</source>
        <translation>&lt;b&gt;ファイル → JPEG の品質&lt;/b&gt;: &lt;i&gt;標準&lt;/i&gt; は小さく、&lt;i&gt;高&lt;/i&gt; と &lt;i&gt;最高&lt;/i&gt; はより細かい部分と各ピクセルの色を残しますが、ファイルは大きくなります。大きさは保存の前と後に表示されます。選択は記憶されます。</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>&lt;b&gt;Undo&lt;/b&gt; in the &lt;b&gt;Edit&lt;/b&gt; menu takes the last step back: a look, an option, a turn, a re-exposure or a flattening; &lt;b&gt;Redo&lt;/b&gt; takes it again. Flattened photos are kept for this as long as the memory has room for them. Another photo begins anew.</source>
        <translation>&lt;b&gt;編集&lt;/b&gt; メニューの &lt;b&gt;元に戻す&lt;/b&gt; は、直前の操作 (ルック、オプション、回転、再露光、統合) を取り消します。&lt;b&gt;やり直す&lt;/b&gt; でもう一度行います。統合した写真は、メモリに余裕がある限りそのために保持されます。別の写真を開くと最初からになります。</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比べる</translation>
    </message>
    <message>
        <source>Hold the mouse button on the photo, or hold the space bar, to see it &lt;i&gt;before&lt;/i&gt;: without its looks, in the same crop and border. Let go to see the look again. &lt;b&gt;B&lt;/b&gt;, or &lt;b&gt;Photo, Before and after&lt;/b&gt;, shows both at once, before on the left: drag the line between them across the photo, or move it by the left and right arrow keys. Looks and options may change meanwhile. &lt;b&gt;B&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt; ends it.</source>
        <translation>写真の上でマウスのボタンを押している間、またはスペースキーを押している間、写真を &lt;i&gt;適用前&lt;/i&gt; の状態で見られます。切り抜きと枠は同じです。離すとルックに戻ります。&lt;b&gt;B&lt;/b&gt; キー、または &lt;b&gt;写真 → 適用前と適用後&lt;/b&gt; は、適用前を左にして両方を同時に表示します。境の線は写真の上をドラッグするか、左右の矢印キーで動かします。その間もルックやオプションを変えられます。&lt;b&gt;B&lt;/b&gt; か &lt;b&gt;Esc&lt;/b&gt; で終わります。</translation>
    </message>
    <message>
        <source>The space bar and the digits do the same wherever the focus is; only an open list has its own keys. A short tap on the space bar presses the look that has the focus.</source>
        <translation>スペースキーと数字キーは、フォーカスがどこにあっても同じ働きをします。開いた一覧だけが独自のキーを持ちます。スペースキーを短く押すと、フォーカスのあるルックを押します。</translation>
    </message>
    <message>
        <source>As it will be saved</source>
        <translation>保存されるとおりに見る</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+O&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+O&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open a photo</source>
        <translation>写真を開く</translation>
    </message>
    <message>
        <source>&lt;b&gt;1&lt;/b&gt; to &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</source>
        <translation>&lt;b&gt;1&lt;/b&gt; ～ &lt;b&gt;9&lt;/b&gt;、&lt;b&gt;0&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the first ten looks: Original is 1, Helga is 2</source>
        <translation>最初の十のルック: Original が 1、Helga が 2</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt;, &lt;b&gt;Page Up&lt;/b&gt;</source>
        <translation>&lt;b&gt;Page Down&lt;/b&gt;、&lt;b&gt;Page Up&lt;/b&gt;</translation>
    </message>
    <message>
        <source>next photo, previous photo</source>
        <translation>次の写真、前の写真</translation>
    </message>
    <message>
        <source>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</source>
        <translation>&lt;b&gt;[&lt;/b&gt;、&lt;b&gt;]&lt;/b&gt;</translation>
    </message>
    <message>
        <source>weaker, stronger looks</source>
        <translation>ルックを弱く、強く</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+S&lt;/b&gt;、&lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</translation>
    </message>
    <message>
        <source>save, save many</source>
        <translation>保存、まとめて保存</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+E&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+E&lt;/b&gt;</translation>
    </message>
    <message>
        <source>re-expose</source>
        <translation>再露光</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+C&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+C&lt;/b&gt;</translation>
    </message>
    <message>
        <source>copy what would be saved</source>
        <translation>保存されるとおりにコピー</translation>
    </message>
    <message>
        <source>&lt;b&gt;Space&lt;/b&gt; (hold)</source>
        <translation>&lt;b&gt;スペース&lt;/b&gt; (押し続ける)</translation>
    </message>
    <message>
        <source>see the photo without its looks</source>
        <translation>ルックなしの写真を見る</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+V&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+V&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open what was copied</source>
        <translation>コピーしたものを開く</translation>
    </message>
    <message>
        <source>&lt;b&gt;B&lt;/b&gt;</source>
        <translation>&lt;b&gt;B&lt;/b&gt;</translation>
    </message>
    <message>
        <source>before and after, side by side</source>
        <translation>適用前と適用後を並べる</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take the last step back</source>
        <translation>直前の操作を元に戻す</translation>
    </message>
    <message>
        <source>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</source>
        <translation>&lt;b&gt;Z&lt;/b&gt;、&lt;b&gt;Esc&lt;/b&gt;</translation>
    </message>
    <message>
        <source>see the photo at actual size; fit it again</source>
        <translation>写真を実寸で見る、全体に戻す</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take it again</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</source>
        <translation>&lt;b&gt;+&lt;/b&gt;、&lt;b&gt;-&lt;/b&gt;</translation>
    </message>
    <message>
        <source>larger, smaller</source>
        <translation>拡大、縮小</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+L&lt;/b&gt;、&lt;b&gt;Ctrl+R&lt;/b&gt;</translation>
    </message>
    <message>
        <source>turn left, turn right</source>
        <translation>左に回転、右に回転</translation>
    </message>
    <message>
        <source>&lt;b&gt;F11&lt;/b&gt;</source>
        <translation>&lt;b&gt;F11&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the photo alone on the whole screen, and back</source>
        <translation>写真だけを全画面に、元に戻す</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</translation>
    </message>
    <message>
        <source>flatten</source>
        <translation>統合</translation>
    </message>
    <message>
        <source>&lt;b&gt;Tab&lt;/b&gt;, arrows, &lt;b&gt;Return&lt;/b&gt;</source>
        <translation>&lt;b&gt;Tab&lt;/b&gt;、矢印、&lt;b&gt;Return&lt;/b&gt;</translation>
    </message>
    <message>
        <source>go from control to control; press it</source>
        <translation>部品から部品へ移動、それを押す</translation>
    </message>
    <message>
        <source>&lt;b&gt;F1&lt;/b&gt;</source>
        <translation>&lt;b&gt;F1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>このヘルプ</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Q&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Q&lt;/b&gt;</translation>
    </message>
    <message>
        <source>quit; your choices are kept</source>
        <translation>終了 (選択は保持されます)</translation>
    </message>
    <message>
        <source>The looks</source>
        <translation>ルックの一覧</translation>
    </message>
    <message>
        <source>Each picture shows the look with its own crop and border.</source>
        <translation>各画像は、ルックをその切り抜きと枠とともに示します。</translation>
    </message>
    <message>
        <source>Cool and muted with strong contrast; darker and richer towards the edges.</source>
        <translation>冷たく抑えた色と強いコントラスト。縁に向かって暗く濃くなります。</translation>
    </message>
    <message>
        <source>square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>Strong colours and contrast, with warm light tones.</source>
        <translation>鮮やかな色とコントラスト、暖かい明部。</translation>
    </message>
    <message>
        <source>thick white</source>
        <translation>太い白</translation>
    </message>
    <message>
        <source>Bright lights, little colour and a dark blue tint, like a frame of a film.</source>
        <translation>明るい光、少ない色、濃い青の色調。映画の一場面のようです。</translation>
    </message>
    <message>
        <source>16 to 9</source>
        <translation>16 対 9</translation>
    </message>
    <message>
        <source>black bars</source>
        <translation>黒い帯</translation>
    </message>
    <message>
        <source>A contrasty black-and-white print of the sixties, with light skies.</source>
        <translation>六十年代の硬い白黒プリント。空は明るくなります。</translation>
    </message>
    <message>
        <source>7 to 6</source>
        <translation>7 対 6</translation>
    </message>
    <message>
        <source>A hard colour print under a brown wash that is strongest in the shadows.</source>
        <translation>茶色がかった硬いカラープリント。影で最も強くなります。</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>角丸</translation>
    </message>
    <message>
        <source>Black and white over the full range of greys; blue skies print dark.</source>
        <translation>灰色の全域を使う白黒。青空は暗くなります。</translation>
    </message>
    <message>
        <source>medium white</source>
        <translation>中くらいの白</translation>
    </message>
    <message>
        <source>Cross-processed film: hard reds and greens, flat blues.</source>
        <translation>クロス現像フィルム: 硬い赤と緑、平らな青。</translation>
    </message>
    <message>
        <source>An instant print: soft tones, brown shadows and dark corners.</source>
        <translation>インスタント写真: 柔らかい調子、茶色の影、暗い四隅。</translation>
    </message>
    <message>
        <source>an instant print</source>
        <translation>インスタント写真</translation>
    </message>
    <message>
        <source>Warmed towards orange; darks darker, lights lighter, stronger colours.</source>
        <translation>オレンジ寄りの暖色。暗部はより暗く、明部はより明るく、色は鮮やかに。</translation>
    </message>
    <message>
        <source>6 to 4</source>
        <translation>6 対 4</translation>
    </message>
    <message>
        <source>thin white</source>
        <translation>細い白</translation>
    </message>
    <message>
        <source>Infrared film: leaves turn bright, blue sky turns dark.</source>
        <translation>赤外線フィルム: 葉は明るく、青空は暗くなります。</translation>
    </message>
    <message>
        <source>A lens that magnifies the middle and bends the rest outward.</source>
        <translation>中央を拡大し、外側を曲げるレンズ。</translation>
    </message>
    <message>
        <source>a black surround</source>
        <translation>黒い周囲</translation>
    </message>
    <message>
        <source>A cheap camera that lets light in, at another place each time.</source>
        <translation>光が漏れる安いカメラ。場所は毎回変わります。</translation>
    </message>
    <message>
        <source>A cartoon: bands of brightness, strong colours, dark outlines.</source>
        <translation>漫画: 段階的な明るさ、強い色、暗い輪郭。</translation>
    </message>
    <message>
        <source>Cold and bleached, with a blue cast.</source>
        <translation>冷たく色あせ、青みがかっています。</translation>
    </message>
    <message>
        <source>Over-exposed: light parts are pushed towards white.</source>
        <translation>露出オーバー: 明るい部分が白に近づきます。</translation>
    </message>
    <message>
        <source>DejaVu Sans</source>
        <comment>a font that has the letters of the language</comment>
        <translation>Noto Sans CJK JP</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Z&lt;/b&gt;, or click the photo twice, to see it at actual size: pixel by pixel what &lt;b&gt;Save&lt;/b&gt; writes, in the chosen size. Soft and grainy looks differ from the small picture. Drag the photo, or press the arrow keys, to see other parts; hold it still, or the space bar, to see it &lt;i&gt;before&lt;/i&gt;. The wheel with Ctrl and the keys &lt;b&gt;+&lt;/b&gt; and &lt;b&gt;-&lt;/b&gt; go through 50, 100 and 200 %; &lt;b&gt;Esc&lt;/b&gt; shows all of it again. &lt;b&gt;F11&lt;/b&gt; leaves the photo alone on the whole screen, where the keys stay at work, until &lt;b&gt;F11&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt;. The right mouse button and the menu key open a menu on the photo. Where your desktop knows the colour profile of your screen, photos are shown in its colours; what is saved stays the same.</source>
        <translation>&lt;b&gt;Z&lt;/b&gt; を押すか、写真をダブルクリックすると、実寸で表示します。&lt;b&gt;保存&lt;/b&gt; が選んだサイズで書くものが、ピクセル単位でそのまま見えます。柔らかいルックや粒子の粗いルックは、小さい画像とは違って見えます。写真をドラッグするか矢印キーを押すと、ほかの部分が見えます。写真を動かさずに押し続けるか、スペースキーを押している間、&lt;i&gt;適用前&lt;/i&gt; が見えます。Ctrl を押しながらのホイールと &lt;b&gt;+&lt;/b&gt;、&lt;b&gt;-&lt;/b&gt; キーで 50、100、200 % を切り替えます。&lt;b&gt;Esc&lt;/b&gt; で全体に戻ります。&lt;b&gt;F11&lt;/b&gt; は写真だけを全画面に表示します。&lt;b&gt;F11&lt;/b&gt; か &lt;b&gt;Esc&lt;/b&gt; を押すまで、キーはそのまま使えます。マウスの右ボタンとメニューキーは、写真の上にメニューを開きます。デスクトップが画面のカラープロファイルを知っている場合、写真は画面の色に合わせて表示されます。保存されるものは変わりません。</translation>
    </message>
</context>
<context>
    <name>LookButton</name>
    <message>
        <source>Applied as number %1</source>
        <translation>%1 番目に適用</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Applied looks</source>
        <translation>適用中のルック</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stop reading the photo (Esc)</source>
        <translation>写真の読み込みを中止 (Esc)</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Drop a photo here. Hold to see the photo without its looks.</source>
        <translation>ここに写真をドロップします。押している間、ルックなしの写真を表示します。</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open a photo (Ctrl+O)</source>
        <translation>写真を開く (Ctrl+O)</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Rotate left (Ctrl+L)</source>
        <translation>左に回転 (Ctrl+L)</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>Rotate right (Ctrl+R)</source>
        <translation>右に回転 (Ctrl+R)</translation>
    </message>
    <message>
        <source>&amp;Border</source>
        <translation>枠(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>切り抜き(&amp;C)</translation>
    </message>
    <message>
        <source>S&amp;ize</source>
        <translation>サイズ(&amp;I)</translation>
    </message>
    <message>
        <source>Stren&amp;gth</source>
        <translation>強さ(&amp;G)</translation>
    </message>
    <message>
        <source>How much of the looks is seen ([ and ])</source>
        <translation>ルックの見える度合い ([ と ])</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>強さ</translation>
    </message>
    <message>
        <source>&amp;Multiple looks</source>
        <translation>複数のルック(&amp;M)</translation>
    </message>
    <message>
        <source>Stack looks instead of replacing them</source>
        <translation>ルックを置き換えずに重ねる</translation>
    </message>
    <message>
        <source>Ra&amp;ndomness</source>
        <translation>ランダム(&amp;N)</translation>
    </message>
    <message>
        <source>Vary the looks slightly</source>
        <translation>ルックを少し変化させる</translation>
    </message>
    <message>
        <source>Re-e&amp;xpose</source>
        <translation>再露光(&amp;X)</translation>
    </message>
    <message>
        <source>Draw a new variation (Ctrl+E)</source>
        <translation>新しい変化を引く (Ctrl+E)</translation>
    </message>
    <message>
        <source>Fla&amp;tten</source>
        <translation>統合(&amp;T)</translation>
    </message>
    <message>
        <source>Bake the looks into the photo (Ctrl+Shift+F)</source>
        <translation>ルックを写真の一部にする (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Save as JPEG (Ctrl+S)</source>
        <translation>JPEG として保存 (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Saved %1, %2 x %3, %4</source>
        <translation>%1 を保存しました (%2 x %3、%4)</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>実寸(&amp;A)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>The photo cannot be shown at its actual size.</source>
        <translation>写真を実寸で表示できません。</translation>
    </message>
    <message>
        <source>The preview cannot be shown.</source>
        <translation>プレビューを表示できません。</translation>
    </message>
    <message>
        <source>Multiple looks</source>
        <translation>複数のルック</translation>
    </message>
    <message>
        <source>Randomness</source>
        <translation>ランダム</translation>
    </message>
    <message>
        <source>Re-expose</source>
        <translation>再露光</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>The photo cannot be copied.</source>
        <translation>写真をコピーできません。</translation>
    </message>
    <message>
        <source>Copied, %1 x %2</source>
        <translation>コピーしました (%1 x %2)</translation>
    </message>
    <message>
        <source>The picture cannot be pasted.</source>
        <translation>画像を貼り付けられません。</translation>
    </message>
    <message>
        <source>The program that it was copied from does not give it.</source>
        <translation>コピー元のプログラムが画像を渡しません。</translation>
    </message>
    <message>
        <source>It has more pixels than a photo may have.</source>
        <translation>写真に許されるよりも多くのピクセルがあります。</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>貼り付けた画像</translation>
    </message>
    <message>
        <source>&amp;Before and after</source>
        <translation>適用前と適用後(&amp;B)</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>「%1」を開けません。</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>ファイルの残りの部分がありません。</translation>
    </message>
    <message>
        <source>Lumora - %1</source>
        <translation>Lumora - %1</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>The photo cannot be flattened.</source>
        <translation>写真を統合できません。</translation>
    </message>
    <message>
        <source>Flatten</source>
        <translation>統合</translation>
    </message>
    <message>
        <source>The photo cannot be saved.</source>
        <translation>写真を保存できません。</translation>
    </message>
    <message>
        <source>Encode</source>
        <translation>エンコード</translation>
    </message>
    <message>
        <source>&amp;Whole screen</source>
        <translation>全画面(&amp;W)</translation>
    </message>
    <message>
        <source>For the photo</source>
        <translation>写真のメニュー</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Save &amp;Many…</source>
        <translation>まとめて保存(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Keep with the photo</source>
        <translation>写真と一緒に残す情報(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Everything it carried</source>
        <translation>すべて(&amp;E)</translation>
    </message>
    <message>
        <source>Everything but the &amp;place</source>
        <translation>場所以外すべて(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>何も残さない(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;JPEG quality</source>
        <translation>JPEG の品質(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>標準(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>高(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>最高(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Photo</source>
        <translation>写真(&amp;P)</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>左に回転(&amp;L)</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>右に回転(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Flatten</source>
        <translation>統合(&amp;F)</translation>
    </message>
    <message>
        <source>R&amp;e-expose</source>
        <translation>再露光(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Looks</source>
        <translation>ルック(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Lumora &amp;Help</source>
        <translation>Lumora ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Lumora</source>
        <translation>Lumora について(&amp;A)</translation>
    </message>
    <message>
        <source>All photos (%1)</source>
        <translation>すべての写真 (%1)</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>写真 (%1)</translation>
    </message>
    <message>
        <source>Select a file to open</source>
        <translation>開くファイルを選択</translation>
    </message>
    <message>
        <source>Select the photos</source>
        <translation>写真を選択</translation>
    </message>
    <message>
        <source>Select a folder with photos</source>
        <translation>写真のあるフォルダーを選択</translation>
    </message>
    <message>
        <source>Select the folder to save into</source>
        <translation>保存先のフォルダーを選択</translation>
    </message>
    <message>
        <source>&amp;Next photo</source>
        <translation>次の写真(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous photo</source>
        <translation>前の写真(&amp;P)</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近開いた写真(&amp;R)</translation>
    </message>
    <message>
        <source>This is the last photo.</source>
        <translation>最後の写真です。</translation>
    </message>
    <message>
        <source>This is the first photo.</source>
        <translation>最初の写真です。</translation>
    </message>
    <message>
        <source>&amp;Weaker</source>
        <translation>弱く(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Stronger</source>
        <translation>強く(&amp;S)</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>強さ</translation>
    </message>
    <message>
        <source>Stren&amp;gth %1 %</source>
        <translation>強さ(&amp;G) %1 %</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>元に戻す(&amp;U): %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>やり直す(&amp;R): %1</translation>
    </message>
    <message>
        <source>The photo cannot be turned.</source>
        <translation>写真を回転できません。</translation>
    </message>
    <message>
        <source>Lumora by Dovrel</source>
        <translation>Lumora by Dovrel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a look and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>枠</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>切り抜き</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>ヘルプを表示できません。</translation>
    </message>
    <message>
        <source>It stands at %1.</source>
        <translation>場所は %1 です。</translation>
    </message>
    <message>
        <source>Lumora Mac, Version 1.0</source>
        <translation>Lumora Mac, Version 1.0</translation>
    </message>
    <message>
        <source>Copyright © 2026 Dovrel</source>
        <translation>Copyright © 2026 Dovrel</translation>
    </message>
    <message>
        <source>Decode</source>
        <translation>デコード</translation>
    </message>
    <message>
        <source>%1 · Strength: %2 % · Crop: %3 · Border: %4 · Size: %5 · Quality: %6</source>
        <translation>%1 · 強さ: %2 % · 切り抜き: %3 · 枠: %4 · サイズ: %5 · 品質: %6</translation>
    </message>
</context>
<context>
    <name>Reason</name>
    <message>
        <source>There is no permission to write there.</source>
        <translation>そこに書き込む権限がありません。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>The file is larger than may be written there.</source>
        <translation>ファイルが、そこに書き込める大きさを超えています。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>フォルダーがありません。</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>ファイル名が長すぎます。</translation>
    </message>
    <message>
        <source>The link leads to itself.</source>
        <translation>リンクが自分自身を指しています。</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>同じ名前のファイルがすでにあります。</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>同じ名前のフォルダーがあります。</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>ファイルに書き込めません: %1。</translation>
    </message>
    <message>
        <source>The animation is too large: %1 x %2 pixels.</source>
        <translation>アニメーションが大きすぎます: %1 x %2 ピクセル。</translation>
    </message>
    <message>
        <source>The picture is of a kind that cannot be read: it has %1 channels of %2 bits.</source>
        <translation>読み取れない種類の画像です: チャンネル数 %1、%2 ビット。</translation>
    </message>
    <message>
        <source>The picture is damaged: it has parts of %1 x %2 pixels.</source>
        <translation>画像が壊れています: 一部が %1 x %2 ピクセルあります。</translation>
    </message>
    <message>
        <source>It is a HEIC or AVIF photo. This Lumora was built without libheif, which reads them.</source>
        <translation>HEIC または AVIF の写真です。この Lumora は、それを読む libheif なしで作られています。</translation>
    </message>
    <message>
        <source>It is a JPEG XL photo. This Lumora was built without libjxl, which reads them.</source>
        <translation>JPEG XL の写真です。この Lumora は、それを読む libjxl なしで作られています。</translation>
    </message>
    <message>
        <source>It is a camera&apos;s raw photo. This Lumora was built without LibRaw, which reads them.</source>
        <translation>カメラの RAW 写真です。この Lumora は、それを読む LibRaw なしで作られています。</translation>
    </message>
    <message>
        <source>There is not enough free memory for a picture of %1 x %2 pixels.</source>
        <translation>%1 x %2 ピクセルの画像に必要な空きメモリがありません。</translation>
    </message>
    <message>
        <source>There is not enough free memory for the picture.</source>
        <translation>画像に必要な空きメモリがありません。</translation>
    </message>
    <message>
        <source>The picture is too large: %1 x %2 pixels. At most %3 megapixels can be opened.</source>
        <translation>画像が大きすぎます: %1 x %2 ピクセル。開けるのは %3 メガピクセルまでです。</translation>
    </message>
    <message>
        <source>The picture is damaged: the file is too small for %1 x %2 pixels.</source>
        <translation>画像が壊れています: %1 x %2 ピクセルに対してファイルが小さすぎます。</translation>
    </message>
    <message>
        <source>The picture is damaged or of a kind that cannot be read.</source>
        <translation>画像が壊れているか、読み取れない種類です。</translation>
    </message>
    <message>
        <source>The file is not a picture of a kind that can be read.</source>
        <translation>読み取れる種類の画像ではありません。</translation>
    </message>
    <message>
        <source>The picture is of a kind that is not supported.</source>
        <translation>対応していない種類の画像です。</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read.</source>
        <translation>画像が壊れていて読み取れません。</translation>
    </message>
    <message>
        <source>The picture is damaged: it has too many parts.</source>
        <translation>画像が壊れています: 部分が多すぎます。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>ファイルがありません。</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>ファイルを読む権限がありません。</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>ファイルを開けません: %1。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>It is a folder, not a picture.</source>
        <translation>フォルダーであり、画像ではありません。</translation>
    </message>
    <message>
        <source>It is not a file with a picture.</source>
        <translation>画像のファイルではありません。</translation>
    </message>
    <message>
        <source>Reading it failed: the file is damaged, or made to do harm.</source>
        <translation>読み込みに失敗しました: ファイルが壊れているか、害を与えるように作られています。</translation>
    </message>
    <message>
        <source>Reading it takes too long: the file is damaged, or made to do harm.</source>
        <translation>読み込みに時間がかかりすぎます: ファイルが壊れているか、害を与えるように作られています。</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to other files, which no picture needs.</source>
        <translation>読み込みを止めました: ファイルが、画像に必要のないほかのファイルを求めました。</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to the network, which no picture needs.</source>
        <translation>読み込みを止めました: ファイルが、画像に必要のないネットワークを求めました。</translation>
    </message>
    <message>
        <source>Reading it was cancelled.</source>
        <translation>読み込みをキャンセルしました。</translation>
    </message>
    <message>
        <source>The program that reads photos cannot be started. Lumora is not completely installed.</source>
        <translation>写真を読むプログラムを起動できません。Lumora が完全にインストールされていません。</translation>
    </message>
    <message>
        <source>A JPEG cannot hold %1 x %2 pixels. Choose a smaller size.</source>
        <translation>JPEG には %1 x %2 ピクセルは入りません。小さいサイズを選んでください。</translation>
    </message>
    <message>
        <source>The output would replace a photo that is to be rendered.</source>
        <translation>これから処理する写真を置き換えてしまいます。</translation>
    </message>
    <message>
        <source>The picture cannot be encoded.</source>
        <translation>画像をエンコードできません。</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>ファイルの残りの部分がありません。</translation>
    </message>
    <message>
        <source>Another photo of this run has the same output.</source>
        <translation>この処理のほかの写真が同じ名前で保存されます。</translation>
    </message>
    <message>
        <source>Rendering it was ended from outside, as happens where the memory runs out.</source>
        <translation>処理が外部から終了されました。メモリが足りないときに起こります。</translation>
    </message>
    <message>
        <source>Rendering it failed: the program broke down.</source>
        <translation>処理に失敗しました: プログラムが異常終了しました。</translation>
    </message>
    <message>
        <source>No process can be started for it.</source>
        <translation>そのためのプロセスを起動できません。</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Clear the list</source>
        <translation>一覧を消去(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RenderStep</name>
    <message>
        <source>Fit</source>
        <translation>はめ込み</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>枠</translation>
    </message>
</context>
<context>
    <name>SaveManyPanel</name>
    <message>
        <source>No folder chosen</source>
        <translation>フォルダーが選択されていません</translation>
    </message>
    <message>
        <source>Choose &amp;Photos…</source>
        <translation>写真を選択(&amp;P)…</translation>
    </message>
    <message>
        <source>Choose a &amp;Folder…</source>
        <translation>フォルダーを選択(&amp;F)…</translation>
    </message>
    <message>
        <source>Save &amp;Into…</source>
        <translation>保存先(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Save Them</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save Many</source>
        <translation>まとめて保存</translation>
    </message>
    <message>
        <source>The photo saved last</source>
        <translation>最後に保存した写真</translation>
    </message>
    <message>
        <source>Photos done</source>
        <translation>済んだ写真</translation>
    </message>
    <message>
        <source>Photos that were not saved, or are damaged</source>
        <translation>保存されなかった、または壊れている写真</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>No photos chosen</source>
        <translation>写真が選択されていません</translation>
    </message>
    <message numerus="yes">
        <source>%1 and others: %Ln photos</source>
        <translation>
            <numerusform>%1 ほか %Ln 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>残り時間: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The program that renders photos cannot be started. Lumora is not completely installed.</source>
        <translation>写真を処理するプログラムを起動できません。Lumora が完全にインストールされていません。</translation>
    </message>
    <message>
        <source>Cancelled. What was saved stays.</source>
        <translation>キャンセルしました。保存済みのものは残ります。</translation>
    </message>
    <message>
        <source>It ended before all photos were done.</source>
        <translation>すべての写真が済む前に終わりました。</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>保存: %1</translation>
    </message>
    <message>
        <source>Already there: %1</source>
        <translation>保存済み: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>保存できず: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>選択内容</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Save as JPEG</source>
        <translation>JPEG として保存</translation>
    </message>
    <message>
        <source>JPEG, whatever the ending: %1</source>
        <translation>拡張子に関係なく JPEG: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be saved there. %2</source>
        <translation>「%1」はそこに保存できません。%2</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>This is the photo that you opened. Replacing it cannot be undone.</source>
        <translation>これは開いた写真です。置き換えると元に戻せません。</translation>
    </message>
    <message>
        <source>Keep both saves “%1” beside it.</source>
        <translation>「両方残す」は隣に「%1」を保存します。</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>両方残す(&amp;K)</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>「%1」はすでにあります。置き換えますか？</translation>
    </message>
</context>
<context>
    <name>SplitLine</name>
    <message>
        <source>Drag it across the photo. Esc ends the comparison.</source>
        <translation>写真の上をドラッグします。Esc で比較を終わります。</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>適用前と適用後の境の線</translation>
    </message>
</context>
</TS>

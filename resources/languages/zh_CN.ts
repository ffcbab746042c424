<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Desktop</name>
    <message>
        <source>Photo Looks</source>
        <translation>照片滤镜</translation>
    </message>
    <message>
        <source>Give a photo a look and save it</source>
        <translation>为照片加上滤镜并保存</translation>
    </message>
    <message>
        <source>Lumora shows one photo large and, beside it, what it would be under each of its looks: cool and muted, warm and faded, black and white, like an instant print or a frame of a film. One press applies a look; with multiple looks switched on, they stack in the order in which they were chosen.</source>
        <translation>Lumora 以大图显示一张照片，并在旁边显示它套用每种滤镜后的样子：冷调柔和、暖调褪色、黑白、拍立得照片或电影画面。点一下即可应用滤镜；启用叠加滤镜后，它们会按选择的顺序叠加。</translation>
    </message>
    <message>
        <source>What it does:</source>
        <translation>功能：</translation>
    </message>
    <message>
        <source>looks from instant prints to infrared film, many of which can be varied at random</source>
        <translation>从拍立得到红外胶片的多种滤镜，其中许多可以随机变化</translation>
    </message>
    <message>
        <source>crops and borders that come with a look or are chosen by hand</source>
        <translation>随滤镜附带或手动选择的裁剪和边框</translation>
    </message>
    <message>
        <source>quarter turns, looks made permanent, and JPEG files in the size that is wanted</source>
        <translation>四分之一圈旋转、固定滤镜效果，以及所需尺寸的 JPEG 文件</translation>
    </message>
    <message>
        <source>opens JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos, upright and in their right colours</source>
        <translation>打开 JPEG、PNG、GIF、TIFF、WebP、HEIC、AVIF、JPEG XL、BMP、TGA、PSD 和相机 RAW 照片，方向和颜色都正确</translation>
    </message>
    <message>
        <source>works by mouse, by keyboard and with a screen reader</source>
        <translation>可使用鼠标、键盘和屏幕阅读器操作</translation>
    </message>
    <message>
        <source>A photo under the look Mono, above the strip of looks</source>
        <translation>套用 Mono 滤镜的照片，下方是滤镜栏</translation>
    </message>
    <message>
        <source>The photo before and after the look 1974, on either side of a line</source>
        <translation>分隔线两侧是套用 1974 滤镜前后的照片</translation>
    </message>
    <message>
        <source>Give a photo a look, a crop and a border, and save it</source>
        <translation>为照片加上滤镜、裁剪和边框并保存</translation>
    </message>
    <message>
        <source>photo;picture;look;filter;effect;border;crop;instant;retro;</source>
        <translation>照片;图片;风格;滤镜;效果;边框;裁剪;拍立得;复古;</translation>
    </message>
    <message>
        <source>Compare, look closely, and save many photos at once:</source>
        <translation>对比、细看，并一次保存多张照片：</translation>
    </message>
    <message>
        <source>the photo beside what it was, on either side of a line</source>
        <translation>在分隔线两侧对照照片与原来的样子</translation>
    </message>
    <message>
        <source>every pixel as it will be saved, at 50, 100 or 200 %</source>
        <translation>以 50、100 或 200 % 查看将要保存的每个像素</translation>
    </message>
    <message>
        <source>many photos or a whole folder under the looks that are chosen</source>
        <translation>对多张照片或整个文件夹应用所选滤镜</translation>
    </message>
    <message>
        <source>photos through the clipboard, and dragged out of the window</source>
        <translation>通过剪贴板传递照片，也可将照片拖出窗口</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>首个版本。</translation>
    </message>
    <message>
        <source>give many photos the same looks</source>
        <translation>为多张照片加上相同的滤镜</translation>
    </message>
    <message>
        <source>give one photo a look</source>
        <translation>为一张照片加上滤镜</translation>
    </message>
</context>
<context>
    <name>DragDropImageView</name>
    <message>
        <source>Before: the photo without its looks, in its crop and border.</source>
        <translation>处理前：未加滤镜的照片，保留裁剪和边框。</translation>
    </message>
    <message>
        <source>The photo as it will be saved, at %1 %. Drag it or press the arrow keys to see other parts of it.</source>
        <translation>照片保存后的样子，显示比例 %1%。拖动照片或按方向键可查看其他部分。</translation>
    </message>
    <message>
        <source>Before on the left, after on the right of a line that the arrow keys move.</source>
        <translation>分隔线左边是处理前，右边是处理后；按方向键可移动分隔线。</translation>
    </message>
    <message>
        <source>The photo under the applied looks. Hold the mouse or the space bar to see it before.</source>
        <translation>应用滤镜后的照片。按住鼠标或空格键可查看处理前的样子。</translation>
    </message>
    <message>
        <source>Drop a photo here, or open one.</source>
        <translation>将照片拖放到此处，或打开一张照片。</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>处理前</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>After</source>
        <translation>处理后</translation>
    </message>
</context>
<context>
    <name>FramingChoice</name>
    <message>
        <source>By Filter</source>
        <translation>随滤镜</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>细</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Thick</source>
        <translation>粗</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>圆角</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原始</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>DejaVu Sans</source>
        <comment>a font that has the letters of the language</comment>
        <translation>Noto Sans CJK SC</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>all others</source>
        <translation>其余全部</translation>
    </message>
    <message>
        <source>Lumora Help</source>
        <translation>Lumora 帮助</translation>
    </message>
    <message>
        <source>Lumora</source>
        <translation>Lumora</translation>
    </message>
    <message>
        <source>Lumora gives one photo a look, a crop and a border, and saves the result as a JPEG file. The photo on your disk is never changed: what you see is a picture made from it, and it is written only where you say.</source>
        <translation>Lumora 为照片加上滤镜、裁剪和边框，并把结果保存为 JPEG 文件。磁盘上的照片永远不会被改动：你看到的是由它生成的图片，而且只会写入你指定的位置。</translation>
    </message>
    <message>
        <source>A photo comes in</source>
        <translation>打开照片</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Open&lt;/b&gt;, drop a file on the large picture, or open a photo with Lumora from your file manager. JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos open, and whatever else your desktop can decode. A photo that replaces another takes over the looks that are switched on. A file that is not a photo is refused, and the photo before it stays.</source>
        <translation>点击&lt;b&gt;打开&lt;/b&gt;，把文件拖放到大图上，或者在文件管理器中用 Lumora 打开照片。可以打开 JPEG、PNG、GIF、TIFF、WebP、HEIC、AVIF、JPEG XL、BMP、TGA、PSD 和相机的 RAW 照片，以及你的桌面环境能够解码的其他格式。换一张照片时，已启用的滤镜会沿用到新照片上。不是照片的文件会被拒绝，原来的照片保持不变。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt; and &lt;b&gt;Page Up&lt;/b&gt; go to the next and the previous photo of the folder, in the order of their names, and the looks stay on; what is no photo is passed over. Where several files were opened with Lumora at once, the keys go through those. &lt;b&gt;File, Open recent&lt;/b&gt; has the eight photos that were opened last.</source>
        <translation>&lt;b&gt;Page Down&lt;/b&gt; 和 &lt;b&gt;Page Up&lt;/b&gt; 按名称顺序转到文件夹中的下一张和上一张照片，滤镜保持启用；不是照片的文件会被跳过。如果用 Lumora 一次打开了多个文件，这两个键就在这些文件之间切换。&lt;b&gt;文件，最近打开&lt;/b&gt;中列有最近打开的八张照片。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Edit, Paste&lt;/b&gt; opens a picture that another program copied, or a copied file. &lt;b&gt;Edit, Copy&lt;/b&gt; puts the photo as it would be saved on the clipboard; and the photo can be dragged out of Lumora, as a file or as a picture: press on it and move.</source>
        <translation>&lt;b&gt;编辑，粘贴&lt;/b&gt;可打开其他程序复制的图片或复制的文件。&lt;b&gt;编辑，复制&lt;/b&gt;会把照片按保存后的样子放到剪贴板上；也可以把照片作为文件或图片拖出 Lumora：在照片上按住并移动即可。</translation>
    </message>
    <message>
        <source>Looks, one or several</source>
        <translation>一个或多个滤镜</translation>
    </message>
    <message>
        <source>Each button shows your photo under its look; press it to apply the look, and press it again to take it off. &lt;b&gt;Original&lt;/b&gt; takes all looks off. Where the window is narrow the row of looks scrolls: by the wheel over it, by its bar, or by the arrow keys.</source>
        <translation>每个按钮都显示你的照片加上该滤镜后的样子；点击即可应用，再次点击即可取消。&lt;b&gt;Original&lt;/b&gt; 会取消所有滤镜。窗口较窄时，滤镜栏可以滚动：在上面转动滚轮、拖动滚动条或按方向键。</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Multiple looks&lt;/b&gt; switched on, looks stack in the order in which you press them. The line above the photo shows the chain, for example &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Pressing a look of the chain takes it out and leaves the others in order, and the buttons carry their numbers. Switching back to one look keeps the one that came last.</source>
        <translation>启用&lt;b&gt;叠加滤镜&lt;/b&gt;后，滤镜会按点击的顺序叠加。照片上方的一行会显示滤镜链，例如 &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;。点击链中的滤镜可将它移除，其余滤镜顺序不变，按钮上会标出各自的序号。切换回单个滤镜时，保留最后添加的那一个。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Strength&lt;/b&gt; takes the looks back in part: at 0 the photo shows as it came, in its crop and border. The thumbnails, and every new look or chain, have the whole strength.</source>
        <translation>&lt;b&gt;强度&lt;/b&gt;可以减弱滤镜效果：为 0 时显示照片原来的样子，裁剪和边框不变。缩略图以及每个新的滤镜或滤镜链都使用全部强度。</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Randomness&lt;/b&gt; switched on, many looks vary a little, the same way until you press &lt;b&gt;Re-expose&lt;/b&gt;, which draws a new variation. Randomness is off whenever Lumora starts.</source>
        <translation>启用&lt;b&gt;随机&lt;/b&gt;后，许多滤镜会略有变化；变化保持不变，直到你点击&lt;b&gt;重新曝光&lt;/b&gt;生成新的变化。每次启动 Lumora 时，随机都是关闭的。</translation>
    </message>
    <message>
        <source>Crop and border</source>
        <translation>裁剪和边框</translation>
    </message>
    <message>
        <source>&lt;b&gt;By Filter&lt;/b&gt; takes the crop and the border that belong to the look that you added last:</source>
        <translation>&lt;b&gt;随滤镜&lt;/b&gt;使用最后添加的滤镜自带的裁剪和边框：</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>滤镜</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>The other entries choose a crop or a border whatever the look; &lt;b&gt;None&lt;/b&gt; switches it off. A border is put round the photo and hides nothing of it. 6x4, 4x3 and 7x6 turn with a portrait photo; Cinema stays a wide strip.</source>
        <translation>其他选项可指定裁剪或边框，与滤镜无关；&lt;b&gt;无&lt;/b&gt;表示不使用。边框加在照片四周，不会遮住照片的任何部分。照片为竖幅时，6x4、4x3 和 7x6 会随之转为竖向；Cinema 始终是宽幅。</translation>
    </message>
    <message>
        <source>Turn, flatten, save</source>
        <translation>旋转、拼合、保存</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rotate&lt;/b&gt; turns the photo by a quarter; the looks stay.</source>
        <translation>&lt;b&gt;旋转&lt;/b&gt;将照片旋转四分之一圈；滤镜不变。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Flatten&lt;/b&gt; makes the looks, the crop and the border part of the photo, so that further looks start from there.</source>
        <translation>&lt;b&gt;拼合&lt;/b&gt;把滤镜、裁剪和边框变成照片的一部分，之后的滤镜以此为起点。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Size&lt;/b&gt; is the longer side of the saved picture in pixels. A smaller picture is enlarged to it; &lt;i&gt;Original&lt;/i&gt; keeps what the photo has.</source>
        <translation>&lt;b&gt;尺寸&lt;/b&gt;是保存的图片长边的像素数。较小的图片会放大到这个尺寸；&lt;i&gt;原始&lt;/i&gt;则保持照片原有的尺寸。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Save&lt;/b&gt; writes a JPEG file, whatever the ending of its name; an ending that is not in the list gets &lt;i&gt;.jpg&lt;/i&gt;. The photo that you opened is replaced only if you say so: &lt;i&gt;Keep both&lt;/i&gt; saves beside it. If a save fails, the file that stood there stays as it was.</source>
        <translation>&lt;b&gt;保存&lt;/b&gt;总是写入 JPEG 文件，不论文件名用什么扩展名；不在列表中的扩展名后面会加上 &lt;i&gt;.jpg&lt;/i&gt;。只有在你确认后才会替换所打开的照片：&lt;i&gt;两者都保留&lt;/i&gt;会另存在它旁边。如果保存失败，原来的文件保持不变。</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Save Many&lt;/b&gt; (Ctrl+Shift+S) gives many photos, or all of a folder, what is chosen now: looks, strength, crop, border, size, variation, quality. They go into a folder of your choice, named after photo and looks; a file that stands there stays. &lt;i&gt;Cancel&lt;/i&gt; keeps what is saved, and another time goes on from there. What cannot be saved is listed with its reason. In a terminal &lt;i&gt;lumora-render&lt;/i&gt; does the same.</source>
        <translation>&lt;b&gt;文件，批量保存&lt;/b&gt;（Ctrl+Shift+S）将当前的全部选择应用于多张照片或整个文件夹的照片：滤镜、强度、裁剪、边框、尺寸、变化和质量。结果存入你选择的文件夹，以照片和滤镜命名；其中已有的文件不会改动。&lt;i&gt;取消&lt;/i&gt;会保留已经保存的照片，下次可以接着处理。无法保存的照片会连同原因一起列出。在终端中可以用 &lt;i&gt;lumora-render&lt;/i&gt; 做同样的事。</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Keep with the photo&lt;/b&gt;: what the camera and others wrote into the photo (its date, the camera, a title, the caption, and also &lt;i&gt;where it was taken&lt;/i&gt;) goes into the saved file. &lt;i&gt;Everything but the place&lt;/i&gt; leaves out the coordinates, the names of city, country and location, and the camera maker&apos;s own notes, which may tell the place; &lt;i&gt;Nothing&lt;/i&gt; leaves out all. Preview pictures of the photo as it was are never kept. The choice is remembered.</source>
        <translation>&lt;b&gt;文件，随照片保留&lt;/b&gt;：相机和其他程序写入照片的信息（日期、相机、标题、说明，以及&lt;i&gt;拍摄地点&lt;/i&gt;）会写入保存的文件。&lt;i&gt;除拍摄地点外全部&lt;/i&gt;会去掉坐标，城市、国家和地点的名称，以及可能透露地点的相机厂商自有信息；&lt;i&gt;不保留&lt;/i&gt;则全部去掉。原照片的预览图一律不保留。你的选择会被记住。</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, JPEG quality&lt;/b&gt;: &lt;i&gt;Standard&lt;/i&gt; is small; &lt;i&gt;High&lt;/i&gt; and &lt;i&gt;Best&lt;/i&gt; keep finer detail, and the colour of each pixel, in larger files. How large is told before and after a photo is saved. The choice is remembered.</source>
        <translation>&lt;b&gt;文件，JPEG 质量&lt;/b&gt;：&lt;i&gt;标准&lt;/i&gt;的文件较小；&lt;i&gt;高&lt;/i&gt;和&lt;i&gt;最佳&lt;/i&gt;保留更多细节和每个像素的颜色，文件也更大。照片保存前后都会显示文件大小。你的选择会被记住。</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>撤销操作</translation>
    </message>
    <message>
        <source>&lt;b&gt;Undo&lt;/b&gt; in the &lt;b&gt;Edit&lt;/b&gt; menu takes the last step back: a look, an option, a turn, a re-exposure or a flattening; &lt;b&gt;Redo&lt;/b&gt; takes it again. Flattened photos are kept for this as long as the memory has room for them. Another photo begins anew.</source>
        <translation>&lt;b&gt;撤销&lt;/b&gt;在&lt;b&gt;编辑&lt;/b&gt;菜单中，可撤销上一步操作：滤镜、选项、旋转、重新曝光或拼合；&lt;b&gt;重做&lt;/b&gt;可恢复该操作。为此，只要内存足够，拼合过的照片会一直保留。打开另一张照片后会重新开始记录。</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>对比</translation>
    </message>
    <message>
        <source>Hold the mouse button on the photo, or hold the space bar, to see it &lt;i&gt;before&lt;/i&gt;: without its looks, in the same crop and border. Let go to see the look again. &lt;b&gt;B&lt;/b&gt;, or &lt;b&gt;Photo, Before and after&lt;/b&gt;, shows both at once, before on the left: drag the line between them across the photo, or move it by the left and right arrow keys. Looks and options may change meanwhile. &lt;b&gt;B&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt; ends it.</source>
        <translation>在照片上按住鼠标按钮，或按住空格键，可查看&lt;i&gt;处理前&lt;/i&gt;的样子：没有滤镜，裁剪和边框相同。松开后又会显示滤镜效果。按 &lt;b&gt;B&lt;/b&gt; 键或选择&lt;b&gt;照片，前后对比&lt;/b&gt;可同时显示两者，处理前在左边：拖动照片上的分隔线，或用左右方向键移动它。此时仍可更改滤镜和选项。按 &lt;b&gt;B&lt;/b&gt; 或 &lt;b&gt;Esc&lt;/b&gt; 结束对比。</translation>
    </message>
    <message>
        <source>The space bar and the digits do the same wherever the focus is; only an open list has its own keys. A short tap on the space bar presses the look that has the focus.</source>
        <translation>无论焦点在哪里，空格键和数字键的作用都相同；只有打开的列表使用自己的按键。短按空格键相当于点击焦点所在的滤镜。</translation>
    </message>
    <message>
        <source>As it will be saved</source>
        <translation>保存后的样子</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+O&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+O&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open a photo</source>
        <translation>打开照片</translation>
    </message>
    <message>
        <source>&lt;b&gt;1&lt;/b&gt; to &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</source>
        <translation>&lt;b&gt;1&lt;/b&gt; 至 &lt;b&gt;9&lt;/b&gt;、&lt;b&gt;0&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the first ten looks: Original is 1, Helga is 2</source>
        <translation>前十个滤镜：Original 是 1，Helga 是 2</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt;, &lt;b&gt;Page Up&lt;/b&gt;</source>
        <translation>&lt;b&gt;Page Down&lt;/b&gt;、&lt;b&gt;Page Up&lt;/b&gt;</translation>
    </message>
    <message>
        <source>next photo, previous photo</source>
        <translation>下一张照片、上一张照片</translation>
    </message>
    <message>
        <source>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</source>
        <translation>&lt;b&gt;[&lt;/b&gt;、&lt;b&gt;]&lt;/b&gt;</translation>
    </message>
    <message>
        <source>weaker, stronger looks</source>
        <translation>减弱、增强滤镜</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+S&lt;/b&gt;、&lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</translation>
    </message>
    <message>
        <source>save, save many</source>
        <translation>保存、批量保存</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+E&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+E&lt;/b&gt;</translation>
    </message>
    <message>
        <source>re-expose</source>
        <translation>重新曝光</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+C&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+C&lt;/b&gt;</translation>
    </message>
    <message>
        <source>copy what would be saved</source>
        <translation>复制保存后的样子</translation>
    </message>
    <message>
        <source>&lt;b&gt;Space&lt;/b&gt; (hold)</source>
        <translation>&lt;b&gt;空格键&lt;/b&gt;（按住）</translation>
    </message>
    <message>
        <source>see the photo without its looks</source>
        <translation>查看不加滤镜的照片</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+V&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+V&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open what was copied</source>
        <translation>打开复制的内容</translation>
    </message>
    <message>
        <source>&lt;b&gt;B&lt;/b&gt;</source>
        <translation>&lt;b&gt;B&lt;/b&gt;</translation>
    </message>
    <message>
        <source>before and after, side by side</source>
        <translation>前后对比，并排显示</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take the last step back</source>
        <translation>撤销上一步操作</translation>
    </message>
    <message>
        <source>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</source>
        <translation>&lt;b&gt;Z&lt;/b&gt;、&lt;b&gt;Esc&lt;/b&gt;</translation>
    </message>
    <message>
        <source>see the photo at actual size; fit it again</source>
        <translation>以实际大小查看照片；恢复适合窗口</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take it again</source>
        <translation>重做该操作</translation>
    </message>
    <message>
        <source>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</source>
        <translation>&lt;b&gt;+&lt;/b&gt;、&lt;b&gt;-&lt;/b&gt;</translation>
    </message>
    <message>
        <source>larger, smaller</source>
        <translation>放大、缩小</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+L&lt;/b&gt;、&lt;b&gt;Ctrl+R&lt;/b&gt;</translation>
    </message>
    <message>
        <source>turn left, turn right</source>
        <translation>向左旋转、向右旋转</translation>
    </message>
    <message>
        <source>&lt;b&gt;F11&lt;/b&gt;</source>
        <translation>&lt;b&gt;F11&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the photo alone on the whole screen, and back</source>
        <translation>全屏上只显示照片；再按返回</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</translation>
    </message>
    <message>
        <source>flatten</source>
        <translation>拼合</translation>
    </message>
    <message>
        <source>&lt;b&gt;Tab&lt;/b&gt;, arrows, &lt;b&gt;Return&lt;/b&gt;</source>
        <translation>&lt;b&gt;Tab&lt;/b&gt;、方向键、&lt;b&gt;回车键&lt;/b&gt;</translation>
    </message>
    <message>
        <source>go from control to control; press it</source>
        <translation>在控件之间移动；按下控件</translation>
    </message>
    <message>
        <source>&lt;b&gt;F1&lt;/b&gt;</source>
        <translation>&lt;b&gt;F1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>显示本帮助</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Q&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Q&lt;/b&gt;</translation>
    </message>
    <message>
        <source>quit; your choices are kept</source>
        <translation>退出；你的选择会保留</translation>
    </message>
    <message>
        <source>The looks</source>
        <translation>滤镜一览</translation>
    </message>
    <message>
        <source>Each picture shows the look with its own crop and border.</source>
        <translation>每张图片显示滤镜及其自带的裁剪和边框。</translation>
    </message>
    <message>
        <source>Cool and muted with strong contrast; darker and richer towards the edges.</source>
        <translation>冷调柔和，对比强烈；越靠近边缘越暗、越浓郁。</translation>
    </message>
    <message>
        <source>square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>Strong colours and contrast, with warm light tones.</source>
        <translation>色彩和对比强烈，亮部偏暖。</translation>
    </message>
    <message>
        <source>thick white</source>
        <translation>粗白边</translation>
    </message>
    <message>
        <source>Bright lights, little colour and a dark blue tint, like a frame of a film.</source>
        <translation>高光明亮，色彩清淡，带深蓝色调，像一帧电影画面。</translation>
    </message>
    <message>
        <source>16 to 9</source>
        <translation>16:9</translation>
    </message>
    <message>
        <source>black bars</source>
        <translation>黑边条</translation>
    </message>
    <message>
        <source>A contrasty black-and-white print of the sixties, with light skies.</source>
        <translation>反差强烈的六十年代黑白照片，天空明亮。</translation>
    </message>
    <message>
        <source>7 to 6</source>
        <translation>7:6</translation>
    </message>
    <message>
        <source>A hard colour print under a brown wash that is strongest in the shadows.</source>
        <translation>硬调彩色照片，蒙上一层棕色，阴影处最浓。</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>圆角</translation>
    </message>
    <message>
        <source>Black and white over the full range of greys; blue skies print dark.</source>
        <translation>涵盖全部灰阶的黑白照片；蓝天会变暗。</translation>
    </message>
    <message>
        <source>medium white</source>
        <translation>中等白边</translation>
    </message>
    <message>
        <source>Cross-processed film: hard reds and greens, flat blues.</source>
        <translation>交叉冲印胶片：红色和绿色生硬，蓝色平淡。</translation>
    </message>
    <message>
        <source>An instant print: soft tones, brown shadows and dark corners.</source>
        <translation>一次成像照片：色调柔和，阴影偏棕，四角较暗。</translation>
    </message>
    <message>
        <source>an instant print</source>
        <translation>一次成像相纸</translation>
    </message>
    <message>
        <source>Warmed towards orange; darks darker, lights lighter, stronger colours.</source>
        <translation>偏向橙色的暖调；暗部更暗，亮部更亮，色彩更浓。</translation>
    </message>
    <message>
        <source>6 to 4</source>
        <translation>6:4</translation>
    </message>
    <message>
        <source>thin white</source>
        <translation>细白边</translation>
    </message>
    <message>
        <source>Infrared film: leaves turn bright, blue sky turns dark.</source>
        <translation>红外胶片：树叶变亮，蓝天变暗。</translation>
    </message>
    <message>
        <source>A lens that magnifies the middle and bends the rest outward.</source>
        <translation>放大中央、使周围向外弯曲的镜头。</translation>
    </message>
    <message>
        <source>a black surround</source>
        <translation>四周黑色</translation>
    </message>
    <message>
        <source>A cheap camera that lets light in, at another place each time.</source>
        <translation>漏光的廉价相机，每次漏光的位置都不同。</translation>
    </message>
    <message>
        <source>A cartoon: bands of brightness, strong colours, dark outlines.</source>
        <translation>卡通：明暗分层，色彩浓烈，轮廓深黑。</translation>
    </message>
    <message>
        <source>Cold and bleached, with a blue cast.</source>
        <translation>冷调、漂白，偏蓝。</translation>
    </message>
    <message>
        <source>Over-exposed: light parts are pushed towards white.</source>
        <translation>曝光过度：亮部向白色推移。</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Z&lt;/b&gt;, or click the photo twice, to see it at actual size: pixel by pixel what &lt;b&gt;Save&lt;/b&gt; writes, in the chosen size. Soft and grainy looks differ from the small picture. Drag the photo, or press the arrow keys, to see other parts; hold it still, or the space bar, to see it &lt;i&gt;before&lt;/i&gt;. The wheel with Ctrl and the keys &lt;b&gt;+&lt;/b&gt; and &lt;b&gt;-&lt;/b&gt; go through 50, 100 and 200 %; &lt;b&gt;Esc&lt;/b&gt; shows all of it again. &lt;b&gt;F11&lt;/b&gt; leaves the photo alone on the whole screen, where the keys stay at work, until &lt;b&gt;F11&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt;. The right mouse button and the menu key open a menu on the photo. Where your desktop knows the colour profile of your screen, photos are shown in its colours; what is saved stays the same.</source>
        <translation>按 &lt;b&gt;Z&lt;/b&gt; 键或双击照片，可查看实际大小：逐像素显示&lt;b&gt;保存&lt;/b&gt;将写入的内容，使用所选的尺寸。柔焦和颗粒类滤镜与小图上看到的会有所不同。拖动照片或按方向键可查看其他部分；按住照片不动，或按住空格键，可查看&lt;i&gt;处理前&lt;/i&gt;的样子。按住 Ctrl 转动滚轮，或按 &lt;b&gt;+&lt;/b&gt; 和 &lt;b&gt;-&lt;/b&gt; 键，可在 50%、100% 和 200% 之间切换；&lt;b&gt;Esc&lt;/b&gt; 重新显示整张照片。&lt;b&gt;F11&lt;/b&gt; 在全屏上只显示照片，各按键仍然有效，直到按 &lt;b&gt;F11&lt;/b&gt; 或 &lt;b&gt;Esc&lt;/b&gt;。鼠标右键和菜单键可在照片上打开菜单。如果桌面知道屏幕的颜色配置文件，照片会按屏幕的颜色显示；保存的内容不变。</translation>
    </message>
</context>
<context>
    <name>LookButton</name>
    <message>
        <source>Applied as number %1</source>
        <translation>已应用，序号 %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Applied looks</source>
        <translation>已应用的滤镜</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stop reading the photo (Esc)</source>
        <translation>停止读取照片 (Esc)</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Drop a photo here. Hold to see the photo without its looks.</source>
        <translation>将照片拖放到此处。按住可查看不加滤镜的照片。</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Open a photo (Ctrl+O)</source>
        <translation>打开照片 (Ctrl+O)</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>向左旋转</translation>
    </message>
    <message>
        <source>Rotate left (Ctrl+L)</source>
        <translation>向左旋转 (Ctrl+L)</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>向右旋转</translation>
    </message>
    <message>
        <source>Rotate right (Ctrl+R)</source>
        <translation>向右旋转 (Ctrl+R)</translation>
    </message>
    <message>
        <source>&amp;Border</source>
        <translation>边框(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>裁剪(&amp;C)</translation>
    </message>
    <message>
        <source>S&amp;ize</source>
        <translation>尺寸(&amp;I)</translation>
    </message>
    <message>
        <source>Stren&amp;gth</source>
        <translation>强度(&amp;G)</translation>
    </message>
    <message>
        <source>How much of the looks is seen ([ and ])</source>
        <translation>滤镜显示的程度 ([ 和 ])</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>强度</translation>
    </message>
    <message>
        <source>&amp;Multiple looks</source>
        <translation>叠加滤镜(&amp;M)</translation>
    </message>
    <message>
        <source>Stack looks instead of replacing them</source>
        <translation>叠加滤镜，而不是替换</translation>
    </message>
    <message>
        <source>Ra&amp;ndomness</source>
        <translation>随机(&amp;N)</translation>
    </message>
    <message>
        <source>Vary the looks slightly</source>
        <translation>让滤镜略有变化</translation>
    </message>
    <message>
        <source>Re-e&amp;xpose</source>
        <translation>重新曝光(&amp;X)</translation>
    </message>
    <message>
        <source>Draw a new variation (Ctrl+E)</source>
        <translation>生成新的变化 (Ctrl+E)</translation>
    </message>
    <message>
        <source>Fla&amp;tten</source>
        <translation>拼合(&amp;T)</translation>
    </message>
    <message>
        <source>Bake the looks into the photo (Ctrl+Shift+F)</source>
        <translation>将滤镜融入照片 (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Save as JPEG (Ctrl+S)</source>
        <translation>保存为 JPEG (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Saved %1, %2 x %3, %4</source>
        <translation>已保存 %1，%2 x %3，%4</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>实际大小(&amp;A)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>The photo cannot be shown at its actual size.</source>
        <translation>无法以实际大小显示照片。</translation>
    </message>
    <message>
        <source>The preview cannot be shown.</source>
        <translation>无法显示预览。</translation>
    </message>
    <message>
        <source>Multiple looks</source>
        <translation>叠加滤镜</translation>
    </message>
    <message>
        <source>Randomness</source>
        <translation>随机</translation>
    </message>
    <message>
        <source>Re-expose</source>
        <translation>重新曝光</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>The photo cannot be copied.</source>
        <translation>无法复制照片。</translation>
    </message>
    <message>
        <source>Copied, %1 x %2</source>
        <translation>已复制，%1 x %2</translation>
    </message>
    <message>
        <source>The picture cannot be pasted.</source>
        <translation>无法粘贴图片。</translation>
    </message>
    <message>
        <source>The program that it was copied from does not give it.</source>
        <translation>复制该图片的程序没有提供图片内容。</translation>
    </message>
    <message>
        <source>It has more pixels than a photo may have.</source>
        <translation>图片的像素数超出了照片的上限。</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>粘贴的图片</translation>
    </message>
    <message>
        <source>&amp;Before and after</source>
        <translation>前后对比(&amp;B)</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>无法打开“%1”。</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>文件的其余部分缺失。</translation>
    </message>
    <message>
        <source>Lumora - %1</source>
        <translation>Lumora - %1</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>向左旋转</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>向右旋转</translation>
    </message>
    <message>
        <source>The photo cannot be flattened.</source>
        <translation>无法拼合照片。</translation>
    </message>
    <message>
        <source>Flatten</source>
        <translation>拼合</translation>
    </message>
    <message>
        <source>The photo cannot be saved.</source>
        <translation>无法保存照片。</translation>
    </message>
    <message>
        <source>Encode</source>
        <translation>编码</translation>
    </message>
    <message>
        <source>&amp;Whole screen</source>
        <translation>全屏(&amp;W)</translation>
    </message>
    <message>
        <source>For the photo</source>
        <translation>用于照片</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Save &amp;Many…</source>
        <translation>批量保存(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Keep with the photo</source>
        <translation>随照片保留(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Everything it carried</source>
        <translation>照片自带的全部信息(&amp;E)</translation>
    </message>
    <message>
        <source>Everything but the &amp;place</source>
        <translation>除拍摄地点外全部(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>不保留(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;JPEG quality</source>
        <translation>JPEG 质量(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>标准(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>高(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>最佳(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Photo</source>
        <translation>照片(&amp;P)</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>向左旋转(&amp;L)</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>向右旋转(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Flatten</source>
        <translation>拼合(&amp;F)</translation>
    </message>
    <message>
        <source>R&amp;e-expose</source>
        <translation>重新曝光(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Looks</source>
        <translation>滤镜(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Lumora &amp;Help</source>
        <translation>Lumora 帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Lumora</source>
        <translation>关于 Lumora(&amp;A)</translation>
    </message>
    <message>
        <source>All photos (%1)</source>
        <translation>所有照片 (%1)</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>照片 (%1)</translation>
    </message>
    <message>
        <source>Select a file to open</source>
        <translation>选择要打开的文件</translation>
    </message>
    <message>
        <source>Select the photos</source>
        <translation>选择照片</translation>
    </message>
    <message>
        <source>Select a folder with photos</source>
        <translation>选择包含照片的文件夹</translation>
    </message>
    <message>
        <source>Select the folder to save into</source>
        <translation>选择保存到的文件夹</translation>
    </message>
    <message>
        <source>&amp;Next photo</source>
        <translation>下一张照片(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous photo</source>
        <translation>上一张照片(&amp;P)</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>This is the last photo.</source>
        <translation>已经是最后一张照片。</translation>
    </message>
    <message>
        <source>This is the first photo.</source>
        <translation>已经是第一张照片。</translation>
    </message>
    <message>
        <source>&amp;Weaker</source>
        <translation>减弱(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Stronger</source>
        <translation>增强(&amp;S)</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>强度</translation>
    </message>
    <message>
        <source>Stren&amp;gth %1 %</source>
        <translation>强度(&amp;G) %1%</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销：%1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做：%1(&amp;R)</translation>
    </message>
    <message>
        <source>The photo cannot be turned.</source>
        <translation>无法旋转照片。</translation>
    </message>
    <message>
        <source>Lumora by Dovrel</source>
        <translation>Lumora，Dovrel 出品</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a look and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>无法显示帮助。</translation>
    </message>
    <message>
        <source>It stands at %1.</source>
        <translation>帮助文件位于 %1。</translation>
    </message>
    <message>
        <source>Lumora Mac, Version 1.0</source>
        <translation>Lumora Mac，版本 1.0</translation>
    </message>
    <message>
        <source>Copyright © 2026 Dovrel</source>
        <translation>版权所有 © 2026 Dovrel</translation>
    </message>
    <message>
        <source>Decode</source>
        <translation>解码</translation>
    </message>
    <message>
        <source>%1 · Strength: %2 % · Crop: %3 · Border: %4 · Size: %5 · Quality: %6</source>
        <translation>%1 · 强度：%2% · 裁剪：%3 · 边框：%4 · 尺寸：%5 · 质量：%6</translation>
    </message>
</context>
<context>
    <name>Reason</name>
    <message>
        <source>There is no permission to write there.</source>
        <translation>没有写入该位置的权限。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message>
        <source>The file is larger than may be written there.</source>
        <translation>文件超出了该位置允许写入的大小。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>文件夹不存在。</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>文件名太长。</translation>
    </message>
    <message>
        <source>The link leads to itself.</source>
        <translation>链接指向自身。</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>已有同名文件。</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>已有同名文件夹。</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>无法写入文件：%1。</translation>
    </message>
    <message>
        <source>The animation is too large: %1 x %2 pixels.</source>
        <translation>动画太大：%1 x %2 像素。</translation>
    </message>
    <message>
        <source>The picture is of a kind that cannot be read: it has %1 channels of %2 bits.</source>
        <translation>无法读取这种图片：它有 %1 个 %2 位的通道。</translation>
    </message>
    <message>
        <source>The picture is damaged: it has parts of %1 x %2 pixels.</source>
        <translation>图片已损坏：其中有 %1 x %2 像素的部分。</translation>
    </message>
    <message>
        <source>It is a HEIC or AVIF photo. This Lumora was built without libheif, which reads them.</source>
        <translation>这是 HEIC 或 AVIF 照片。此版 Lumora 在构建时未包含读取这类照片的 libheif。</translation>
    </message>
    <message>
        <source>It is a JPEG XL photo. This Lumora was built without libjxl, which reads them.</source>
        <translation>这是 JPEG XL 照片。此版 Lumora 在构建时未包含读取这类照片的 libjxl。</translation>
    </message>
    <message>
        <source>It is a camera&apos;s raw photo. This Lumora was built without LibRaw, which reads them.</source>
        <translation>这是相机的 RAW 照片。此版 Lumora 在构建时未包含读取这类照片的 LibRaw。</translation>
    </message>
    <message>
        <source>There is not enough free memory for a picture of %1 x %2 pixels.</source>
        <translation>可用内存不足，无法处理 %1 x %2 像素的图片。</translation>
    </message>
    <message>
        <source>There is not enough free memory for the picture.</source>
        <translation>可用内存不足，无法处理该图片。</translation>
    </message>
    <message>
        <source>The picture is too large: %1 x %2 pixels. At most %3 megapixels can be opened.</source>
        <translation>图片太大：%1 x %2 像素。最多可打开 %3 百万像素。</translation>
    </message>
    <message>
        <source>The picture is damaged: the file is too small for %1 x %2 pixels.</source>
        <translation>图片已损坏：文件太小，容纳不下 %1 x %2 像素。</translation>
    </message>
    <message>
        <source>The picture is damaged or of a kind that cannot be read.</source>
        <translation>图片已损坏，或者格式无法读取。</translation>
    </message>
    <message>
        <source>The file is not a picture of a kind that can be read.</source>
        <translation>该文件不是可读取格式的图片。</translation>
    </message>
    <message>
        <source>The picture is of a kind that is not supported.</source>
        <translation>不支持这种图片格式。</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read.</source>
        <translation>图片已损坏，无法读取。</translation>
    </message>
    <message>
        <source>The picture is damaged: it has too many parts.</source>
        <translation>图片已损坏：包含的部分太多。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>没有读取该文件的权限。</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>无法打开文件：%1。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件是空的。</translation>
    </message>
    <message>
        <source>It is a folder, not a picture.</source>
        <translation>这是文件夹，不是图片。</translation>
    </message>
    <message>
        <source>It is not a file with a picture.</source>
        <translation>这不是图片文件。</translation>
    </message>
    <message>
        <source>Reading it failed: the file is damaged, or made to do harm.</source>
        <translation>读取失败：文件已损坏，或含有恶意内容。</translation>
    </message>
    <message>
        <source>Reading it takes too long: the file is damaged, or made to do harm.</source>
        <translation>读取时间过长：文件已损坏，或含有恶意内容。</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to other files, which no picture needs.</source>
        <translation>读取已停止：该文件指向其他文件，而图片不需要这样做。</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to the network, which no picture needs.</source>
        <translation>读取已停止：该文件指向网络，而图片不需要这样做。</translation>
    </message>
    <message>
        <source>Reading it was cancelled.</source>
        <translation>读取已取消。</translation>
    </message>
    <message>
        <source>The program that reads photos cannot be started. Lumora is not completely installed.</source>
        <translation>无法启动读取照片的程序。Lumora 安装不完整。</translation>
    </message>
    <message>
        <source>A JPEG cannot hold %1 x %2 pixels. Choose a smaller size.</source>
        <translation>JPEG 无法容纳 %1 x %2 像素。请选择较小的尺寸。</translation>
    </message>
    <message>
        <source>The output would replace a photo that is to be rendered.</source>
        <translation>输出会替换一张待处理的照片。</translation>
    </message>
    <message>
        <source>The picture cannot be encoded.</source>
        <translation>无法对图片进行编码。</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>文件的其余部分缺失。</translation>
    </message>
    <message>
        <source>Another photo of this run has the same output.</source>
        <translation>本次处理中另一张照片的输出与之相同。</translation>
    </message>
    <message>
        <source>Rendering it was ended from outside, as happens where the memory runs out.</source>
        <translation>处理被外部终止，内存不足时会出现这种情况。</translation>
    </message>
    <message>
        <source>Rendering it failed: the program broke down.</source>
        <translation>处理失败：程序崩溃了。</translation>
    </message>
    <message>
        <source>No process can be started for it.</source>
        <translation>无法为它启动进程。</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Clear the list</source>
        <translation>清除列表(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RenderStep</name>
    <message>
        <source>Fit</source>
        <translation>适配</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>边框</translation>
    </message>
</context>
<context>
    <name>SaveManyPanel</name>
    <message>
        <source>No folder chosen</source>
        <translation>未选择文件夹</translation>
    </message>
    <message>
        <source>Choose &amp;Photos…</source>
        <translation>选择照片(&amp;P)…</translation>
    </message>
    <message>
        <source>Choose a &amp;Folder…</source>
        <translation>选择文件夹(&amp;F)…</translation>
    </message>
    <message>
        <source>Save &amp;Into…</source>
        <translation>保存到(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Save Them</source>
        <translation>保存照片(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save Many</source>
        <translation>批量保存</translation>
    </message>
    <message>
        <source>The photo saved last</source>
        <translation>最近保存的照片</translation>
    </message>
    <message>
        <source>Photos done</source>
        <translation>已完成的照片</translation>
    </message>
    <message>
        <source>Photos that were not saved, or are damaged</source>
        <translation>未保存或已损坏的照片</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>保存到</translation>
    </message>
    <message>
        <source>No photos chosen</source>
        <translation>未选择照片</translation>
    </message>
    <message numerus="yes">
        <source>%1 and others: %Ln photos</source>
        <translation>
            <numerusform>%1 等 %Ln 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>剩余时间：%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The program that renders photos cannot be started. Lumora is not completely installed.</source>
        <translation>无法启动处理照片的程序。Lumora 安装不完整。</translation>
    </message>
    <message>
        <source>Cancelled. What was saved stays.</source>
        <translation>已取消。已保存的照片会保留。</translation>
    </message>
    <message>
        <source>It ended before all photos were done.</source>
        <translation>尚未处理完所有照片就已结束。</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已保存：%1</translation>
    </message>
    <message>
        <source>Already there: %1</source>
        <translation>已存在：%1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>未保存：%1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>所选项</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Save as JPEG</source>
        <translation>保存为 JPEG</translation>
    </message>
    <message>
        <source>JPEG, whatever the ending: %1</source>
        <translation>JPEG，不论扩展名：%1</translation>
    </message>
    <message>
        <source>“%1” cannot be saved there. %2</source>
        <translation>无法将“%1”保存到该位置。%2</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>This is the photo that you opened. Replacing it cannot be undone.</source>
        <translation>这是你打开的照片。替换后无法撤销。</translation>
    </message>
    <message>
        <source>Keep both saves “%1” beside it.</source>
        <translation>“两者都保留”会在它旁边另存为“%1”。</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>两者都保留(&amp;K)</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>“%1”已存在。要替换它吗？</translation>
    </message>
</context>
<context>
    <name>SplitLine</name>
    <message>
        <source>Drag it across the photo. Esc ends the comparison.</source>
        <translation>在照片上拖动此线。按 Esc 结束对比。</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>处理前与处理后的分隔线</translation>
    </message>
</context>
</TS>

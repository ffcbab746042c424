<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Desktop</name>
    <message>
        <source>Photo Looks</source>
        <translation>Foto-Looks</translation>
    </message>
    <message>
        <source>Give a photo a look and save it</source>
        <translation>Einem Foto einen Look geben und es speichern</translation>
    </message>
    <message>
        <source>Lumora shows one photo large and, beside it, what it would be under each of its looks: cool and muted, warm and faded, black and white, like an instant print or a frame of a film. One press applies a look; with multiple looks switched on, they stack in the order in which they were chosen.</source>
        <translation>Lumora zeigt ein Foto groß und daneben, wie es mit jedem seiner Looks wäre: kühl und gedämpft, warm und verblasst, schwarzweiß, wie ein Sofortbild oder ein Bild aus einem Film. Ein Druck wendet einen Look an; sind mehrere Looks eingeschaltet, stapeln sie sich in der Reihenfolge, in der sie gewählt wurden.</translation>
    </message>
    <message>
        <source>What it does:</source>
        <translation>Was es kann:</translation>
    </message>
    <message>
        <source>looks from instant prints to infrared film, many of which can be varied at random</source>
        <translation>Looks vom Sofortbild bis zum Infrarotfilm, von denen sich viele zufällig verändern lassen</translation>
    </message>
    <message>
        <source>crops and borders that come with a look or are chosen by hand</source>
        <translation>Zuschnitte und Rahmen, die zu einem Look gehören oder von Hand gewählt werden</translation>
    </message>
    <message>
        <source>quarter turns, looks made permanent, and JPEG files in the size that is wanted</source>
        <translation>Vierteldrehungen, fest eingerechnete Looks und JPEG-Dateien in der gewünschten Größe</translation>
    </message>
    <message>
        <source>opens JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos, upright and in their right colours</source>
        <translation>öffnet JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD und Rohfotos von Kameras, aufrecht und in den richtigen Farben</translation>
    </message>
    <message>
        <source>works by mouse, by keyboard and with a screen reader</source>
        <translation>bedienbar mit der Maus, der Tastatur und einem Bildschirmleser</translation>
    </message>
    <message>
        <source>A photo under the look Mono, above the strip of looks</source>
        <translation>Ein Foto mit dem Look Mono über der Reihe der Looks</translation>
    </message>
    <message>
        <source>The photo before and after the look 1974, on either side of a line</source>
        <translation>Das Foto vor und nach dem Look 1974, zu beiden Seiten einer Linie</translation>
    </message>
    <message>
        <source>Give a photo a look, a crop and a border, and save it</source>
        <translation>Einem Foto einen Look, einen Zuschnitt und einen Rahmen geben und es speichern</translation>
    </message>
    <message>
        <source>photo;picture;look;filter;effect;border;crop;instant;retro;</source>
        <translation>foto;bild;look;filter;effekt;rahmen;zuschnitt;sofortbild;retro;</translation>
    </message>
    <message>
        <source>Compare, look closely, and save many photos at once:</source>
        <translation>Vergleichen, genau hinsehen und viele Fotos auf einmal speichern:</translation>
    </message>
    <message>
        <source>the photo beside what it was, on either side of a line</source>
        <translation>das Foto neben dem, was es war, zu beiden Seiten einer Linie</translation>
    </message>
    <message>
        <source>every pixel as it will be saved, at 50, 100 or 200 %</source>
        <translation>jedes Pixel, wie es gespeichert wird, bei 50, 100 oder 200 %</translation>
    </message>
    <message>
        <source>many photos or a whole folder under the looks that are chosen</source>
        <translation>viele Fotos oder ein ganzer Ordner mit den gewählten Looks</translation>
    </message>
    <message>
        <source>photos through the clipboard, and dragged out of the window</source>
        <translation>Fotos über die Zwischenablage, und aus dem Fenster gezogen</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>Die erste Version.</translation>
    </message>
    <message>
        <source>give many photos the same looks</source>
        <translation>vielen Fotos dieselben Looks geben</translation>
    </message>
    <message>
        <source>give one photo a look</source>
        <translation>einem Foto einen Look geben</translation>
    </message>
</context>
<context>
    <name>DragDropImageView</name>
    <message>
        <source>Before: the photo without its looks, in its crop and border.</source>
        <translation>Vorher: das Foto ohne seine Looks, in seinem Zuschnitt und Rahmen.</translation>
    </message>
    <message>
        <source>The photo as it will be saved, at %1 %. Drag it or press the arrow keys to see other parts of it.</source>
        <translation>Das Foto, wie es gespeichert wird, bei %1 %. Ziehen oder die Pfeiltasten zeigen andere Teile.</translation>
    </message>
    <message>
        <source>Before on the left, after on the right of a line that the arrow keys move.</source>
        <translation>Links vorher, rechts nachher, getrennt durch eine Linie, die die Pfeiltasten verschieben.</translation>
    </message>
    <message>
        <source>The photo under the applied looks. Hold the mouse or the space bar to see it before.</source>
        <translation>Das Foto mit den angewendeten Looks. Maustaste oder Leertaste halten zeigt es vorher.</translation>
    </message>
    <message>
        <source>Drop a photo here, or open one.</source>
        <translation>Ein Foto hierher ziehen oder öffnen.</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
</context>
<context>
    <name>FramingChoice</name>
    <message>
        <source>By Filter</source>
        <translation>Nach Look</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Schmal</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Thick</source>
        <translation>Breit</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Gerundet</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>none</source>
        <translation>ohne</translation>
    </message>
    <message>
        <source>all others</source>
        <translation>alle anderen</translation>
    </message>
    <message>
        <source>Lumora Help</source>
        <translation>Lumora-Hilfe</translation>
    </message>
    <message>
        <source>Lumora</source>
        <translation>Lumora</translation>
    </message>
    <message>
        <source>Lumora gives one photo a look, a crop and a border, and saves the result as a JPEG file. The photo on your disk is never changed: what you see is a picture made from it, and it is written only where you say.</source>
        <translation>Lumora gibt einem Foto einen Look, einen Zuschnitt und einen Rahmen und speichert das Ergebnis als JPEG-Datei. Das Foto auf der Festplatte wird nie verändert: Was zu sehen ist, ist ein Bild, das daraus entsteht, und es wird nur dorthin geschrieben, wo du es sagst.</translation>
    </message>
    <message>
        <source>A photo comes in</source>
        <translation>Ein Foto kommt herein</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Open&lt;/b&gt;, drop a file on the large picture, or open a photo with Lumora from your file manager. JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos open, and whatever else your desktop can decode. A photo that replaces another takes over the looks that are switched on. A file that is not a photo is refused, and the photo before it stays.</source>
        <translation>Drücke &lt;b&gt;Öffnen&lt;/b&gt;, ziehe eine Datei auf das große Bild oder öffne ein Foto aus der Dateiverwaltung mit Lumora. JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD und Rohfotos von Kameras lassen sich öffnen, und was der Desktop sonst noch lesen kann. Ein Foto, das ein anderes ablöst, übernimmt die eingeschalteten Looks. Eine Datei, die kein Foto ist, wird abgelehnt, und das Foto davor bleibt.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt; and &lt;b&gt;Page Up&lt;/b&gt; go to the next and the previous photo of the folder, in the order of their names, and the looks stay on; what is no photo is passed over. Where several files were opened with Lumora at once, the keys go through those. &lt;b&gt;File, Open recent&lt;/b&gt; has the eight photos that were opened last.</source>
        <translation>&lt;b&gt;Bild ab&lt;/b&gt; und &lt;b&gt;Bild auf&lt;/b&gt; gehen zum nächsten und zum vorherigen Foto des Ordners, in der Reihenfolge der Namen, und die Looks bleiben eingeschaltet; was kein Foto ist, wird übergangen. Wurden mehrere Dateien zugleich mit Lumora geöffnet, gehen die Tasten durch diese. &lt;b&gt;Datei, Zuletzt geöffnet&lt;/b&gt; enthält die acht zuletzt geöffneten Fotos.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Edit, Paste&lt;/b&gt; opens a picture that another program copied, or a copied file. &lt;b&gt;Edit, Copy&lt;/b&gt; puts the photo as it would be saved on the clipboard; and the photo can be dragged out of Lumora, as a file or as a picture: press on it and move.</source>
        <translation>&lt;b&gt;Bearbeiten, Einfügen&lt;/b&gt; öffnet ein Bild, das ein anderes Programm kopiert hat, oder eine kopierte Datei. &lt;b&gt;Bearbeiten, Kopieren&lt;/b&gt; legt das Foto, wie es gespeichert würde, in die Zwischenablage; und das Foto lässt sich aus Lumora herausziehen, als Datei oder als Bild: darauf drücken und bewegen.</translation>
    </message>
    <message>
        <source>Looks, one or several</source>
        <translation>Ein Look oder mehrere</translation>
    </message>
    <message>
        <source>Each button shows your photo under its look; press it to apply the look, and press it again to take it off. &lt;b&gt;Original&lt;/b&gt; takes all looks off. Where the window is narrow the row of looks scrolls: by the wheel over it, by its bar, or by the arrow keys.</source>
        <translation>Jeder Knopf zeigt dein Foto mit seinem Look; ein Druck wendet den Look an, ein weiterer nimmt ihn weg. &lt;b&gt;Original&lt;/b&gt; nimmt alle Looks weg. Ist das Fenster schmal, lässt sich die Reihe der Looks verschieben: mit dem Rad darüber, mit ihrem Balken oder mit den Pfeiltasten.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Multiple looks&lt;/b&gt; switched on, looks stack in the order in which you press them. The line above the photo shows the chain, for example &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Pressing a look of the chain takes it out and leaves the others in order, and the buttons carry their numbers. Switching back to one look keeps the one that came last.</source>
        <translation>Ist &lt;b&gt;Mehrere Looks&lt;/b&gt; eingeschaltet, stapeln sich die Looks in der Reihenfolge, in der du sie drückst. Die Zeile über dem Foto zeigt die Kette, zum Beispiel &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Ein Druck auf einen Look der Kette nimmt ihn heraus, die anderen bleiben in ihrer Reihenfolge, und die Knöpfe tragen ihre Nummern. Beim Zurückschalten auf einen Look bleibt der letzte.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Strength&lt;/b&gt; takes the looks back in part: at 0 the photo shows as it came, in its crop and border. The thumbnails, and every new look or chain, have the whole strength.</source>
        <translation>&lt;b&gt;Stärke&lt;/b&gt; nimmt die Looks teilweise zurück: Bei 0 ist das Foto zu sehen, wie es kam, in seinem Zuschnitt und Rahmen. Die kleinen Bilder und jeder neue Look und jede neue Kette haben die ganze Stärke.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Randomness&lt;/b&gt; switched on, many looks vary a little, the same way until you press &lt;b&gt;Re-expose&lt;/b&gt;, which draws a new variation. Randomness is off whenever Lumora starts.</source>
        <translation>Ist &lt;b&gt;Zufall&lt;/b&gt; eingeschaltet, ändern sich viele Looks ein wenig, und zwar gleich, bis du &lt;b&gt;Neu belichten&lt;/b&gt; drückst, das eine neue Variante zieht. Beim Start von Lumora ist Zufall immer ausgeschaltet.</translation>
    </message>
    <message>
        <source>Crop and border</source>
        <translation>Zuschnitt und Rahmen</translation>
    </message>
    <message>
        <source>&lt;b&gt;By Filter&lt;/b&gt; takes the crop and the border that belong to the look that you added last:</source>
        <translation>&lt;b&gt;Nach Look&lt;/b&gt; nimmt den Zuschnitt und den Rahmen, die zum zuletzt hinzugefügten Look gehören:</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Look</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschnitt</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>The other entries choose a crop or a border whatever the look; &lt;b&gt;None&lt;/b&gt; switches it off. A border is put round the photo and hides nothing of it. 6x4, 4x3 and 7x6 turn with a portrait photo; Cinema stays a wide strip.</source>
        <translation>Die anderen Einträge wählen einen Zuschnitt oder Rahmen unabhängig vom Look; &lt;b&gt;Ohne&lt;/b&gt; schaltet ihn aus. Ein Rahmen wird um das Foto gelegt und verdeckt nichts davon. 6x4, 4x3 und 7x6 drehen sich mit einem hochkant stehenden Foto; Cinema bleibt ein breiter Streifen.</translation>
    </message>
    <message>
        <source>Turn, flatten, save</source>
        <translation>Drehen, einrechnen, speichern</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rotate&lt;/b&gt; turns the photo by a quarter; the looks stay.</source>
        <translation>&lt;b&gt;Drehen&lt;/b&gt; dreht das Foto um ein Viertel; die Looks bleiben.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Flatten&lt;/b&gt; makes the looks, the crop and the border part of the photo, so that further looks start from there.</source>
        <translation>&lt;b&gt;Einrechnen&lt;/b&gt; macht die Looks, den Zuschnitt und den Rahmen zu einem Teil des Fotos, sodass weitere Looks von dort ausgehen.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Size&lt;/b&gt; is the longer side of the saved picture in pixels. A smaller picture is enlarged to it; &lt;i&gt;Original&lt;/i&gt; keeps what the photo has.</source>
        <translation>&lt;b&gt;Größe&lt;/b&gt; ist die längere Seite des gespeicherten Bildes in Pixeln. Ein kleineres Bild wird darauf vergrößert; &lt;i&gt;Original&lt;/i&gt; behält, was das Foto hat.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Save&lt;/b&gt; writes a JPEG file, whatever the ending of its name; an ending that is not in the list gets &lt;i&gt;.jpg&lt;/i&gt;. The photo that you opened is replaced only if you say so: &lt;i&gt;Keep both&lt;/i&gt; saves beside it. If a save fails, the file that stood there stays as it was.</source>
        <translation>&lt;b&gt;Speichern&lt;/b&gt; schreibt eine JPEG-Datei, gleich welche Endung ihr Name hat; eine Endung, die nicht in der Liste steht, bekommt &lt;i&gt;.jpg&lt;/i&gt;. Das geöffnete Foto wird nur ersetzt, wenn du es sagst: &lt;i&gt;Beide behalten&lt;/i&gt; speichert daneben. Scheitert das Speichern, bleibt die Datei, die dort stand, wie sie war.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Save Many&lt;/b&gt; (Ctrl+Shift+S) gives many photos, or all of a folder, what is chosen now: looks, strength, crop, border, size, variation, quality. They go into a folder of your choice, named after photo and looks; a file that stands there stays. &lt;i&gt;Cancel&lt;/i&gt; keeps what is saved, and another time goes on from there. What cannot be saved is listed with its reason. In a terminal &lt;i&gt;lumora-render&lt;/i&gt; does the same.</source>
        <translation>&lt;b&gt;Datei, Viele speichern&lt;/b&gt; (Strg+Umschalt+S) gibt vielen Fotos oder allen eines Ordners, was gerade gewählt ist: Looks, Stärke, Zuschnitt, Rahmen, Größe, Variante, Qualität. Sie kommen in einen Ordner deiner Wahl, benannt nach Foto und Looks; eine Datei, die dort steht, bleibt. &lt;i&gt;Abbrechen&lt;/i&gt; behält, was gespeichert ist, und ein andermal geht es von dort weiter. Was sich nicht speichern lässt, wird mit seinem Grund aufgeführt. Im Terminal tut &lt;i&gt;lumora-render&lt;/i&gt; dasselbe.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Keep with the photo&lt;/b&gt;: what the camera and others wrote into the photo (its date, the camera, a title, the caption, and also &lt;i&gt;where it was taken&lt;/i&gt;) goes into the saved file. &lt;i&gt;Everything but the place&lt;/i&gt; leaves out the coordinates, the names of city, country and location, and the camera maker&apos;s own notes, which may tell the place; &lt;i&gt;Nothing&lt;/i&gt; leaves out all. Preview pictures of the photo as it was are never kept. The choice is remembered.</source>
        <translation>&lt;b&gt;Datei, Mit dem Foto behalten&lt;/b&gt;: Was die Kamera und andere in das Foto geschrieben haben (sein Datum, die Kamera, einen Titel, die Beschreibung und auch, &lt;i&gt;wo es aufgenommen wurde&lt;/i&gt;), kommt in die gespeicherte Datei. &lt;i&gt;Alles außer dem Ort&lt;/i&gt; lässt die Koordinaten, die Namen von Stadt, Land und Ort und die eigenen Angaben des Kameraherstellers weg, die den Ort verraten können; &lt;i&gt;Nichts&lt;/i&gt; lässt alles weg. Vorschaubilder des Fotos, wie es war, werden nie behalten. Die Wahl bleibt gemerkt.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, JPEG quality&lt;/b&gt;: &lt;i&gt;Standard&lt;/i&gt; is small; &lt;i&gt;High&lt;/i&gt; and &lt;i&gt;Best&lt;/i&gt; keep finer detail, and the colour of each pixel, in larger files. How large is told before and after a photo is saved. The choice is remembered.</source>
        <translation>&lt;b&gt;Datei, JPEG-Qualität&lt;/b&gt;: &lt;i&gt;Standard&lt;/i&gt; ist klein; &lt;i&gt;Hoch&lt;/i&gt; und &lt;i&gt;Beste&lt;/i&gt; bewahren feinere Einzelheiten und die Farbe jedes Pixels, in größeren Dateien. Wie groß, steht vor und nach dem Speichern da. Die Wahl bleibt gemerkt.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>&lt;b&gt;Undo&lt;/b&gt; in the &lt;b&gt;Edit&lt;/b&gt; menu takes the last step back: a look, an option, a turn, a re-exposure or a flattening; &lt;b&gt;Redo&lt;/b&gt; takes it again. Flattened photos are kept for this as long as the memory has room for them. Another photo begins anew.</source>
        <translation>&lt;b&gt;Rückgängig&lt;/b&gt; im Menü &lt;b&gt;Bearbeiten&lt;/b&gt; nimmt den letzten Schritt zurück: einen Look, eine Option, eine Drehung, eine neue Belichtung oder ein Einrechnen; &lt;b&gt;Wiederholen&lt;/b&gt; tut ihn wieder. Eingerechnete Fotos werden dafür aufgehoben, solange der Speicher Platz für sie hat. Ein anderes Foto beginnt von vorn.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Hold the mouse button on the photo, or hold the space bar, to see it &lt;i&gt;before&lt;/i&gt;: without its looks, in the same crop and border. Let go to see the look again. &lt;b&gt;B&lt;/b&gt;, or &lt;b&gt;Photo, Before and after&lt;/b&gt;, shows both at once, before on the left: drag the line between them across the photo, or move it by the left and right arrow keys. Looks and options may change meanwhile. &lt;b&gt;B&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt; ends it.</source>
        <translation>Halte die Maustaste auf dem Foto oder die Leertaste gedrückt, um es &lt;i&gt;vorher&lt;/i&gt; zu sehen: ohne seine Looks, im selben Zuschnitt und Rahmen. Nach dem Loslassen ist der Look wieder zu sehen. &lt;b&gt;B&lt;/b&gt; oder &lt;b&gt;Foto, Vorher und nachher&lt;/b&gt; zeigt beides zugleich, vorher links: Ziehe die Linie dazwischen über das Foto oder verschiebe sie mit den Pfeiltasten links und rechts. Looks und Optionen dürfen sich dabei ändern. &lt;b&gt;B&lt;/b&gt; oder &lt;b&gt;Esc&lt;/b&gt; beendet es.</translation>
    </message>
    <message>
        <source>The space bar and the digits do the same wherever the focus is; only an open list has its own keys. A short tap on the space bar presses the look that has the focus.</source>
        <translation>Die Leertaste und die Ziffern tun überall dasselbe, wo auch der Fokus ist; nur eine offene Liste hat ihre eigenen Tasten. Ein kurzer Druck auf die Leertaste drückt den Look, der den Fokus hat.</translation>
    </message>
    <message>
        <source>As it will be saved</source>
        <translation>Wie es gespeichert wird</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+O&lt;/b&gt;</source>
        <translation>&lt;b&gt;Strg+O&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open a photo</source>
        <translation>ein Foto öffnen</translation>
    </message>
    <message>
        <source>&lt;b&gt;1&lt;/b&gt; to &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</source>
        <translation>&lt;b&gt;1&lt;/b&gt; bis &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the first ten looks: Original is 1, Helga is 2</source>
        <translation>die ersten zehn Looks: Original ist 1, Helga ist 2</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt;, &lt;b&gt;Page Up&lt;/b&gt;</source>
        <translation>&lt;b&gt;Bild ab&lt;/b&gt;, &lt;b&gt;Bild auf&lt;/b&gt;</translation>
    </message>
    <message>
        <source>next photo, previous photo</source>
        <translation>nächstes Foto, vorheriges Foto</translation>
    </message>
    <message>
        <source>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</source>
        <translation>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</translation>
    </message>
    <message>
        <source>weaker, stronger looks</source>
        <translation>Looks schwächer, stärker</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</source>
        <translation>&lt;b&gt;Strg+S&lt;/b&gt;, &lt;b&gt;Strg+Umschalt+S&lt;/b&gt;</translation>
    </message>
    <message>
        <source>save, save many</source>
        <translation>speichern, viele speichern</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+E&lt;/b&gt;</source>
        <translation>&lt;b&gt;Strg+E&lt;/b&gt;</translation>
    </message>
    <message>
        <source>re-expose</source>
        <translation>neu belichten</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+C&lt;/b&gt;</source>
        <translation>&lt;b&gt;Strg+C&lt;/b&gt;</translation>
    </message>
    <message>
        <source>copy what would be saved</source>
        <translation>kopieren, was gespeichert würde</translation>
    </message>
    <message>
        <source>&lt;b&gt;Space&lt;/b&gt; (hold)</source>
        <translation>&lt;b&gt;Leertaste&lt;/b&gt; (halten)</translation>
    </message>
    <message>
        <source>see the photo without its looks</source>
        <translation>das Foto ohne seine Looks sehen</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+V&lt;/b&gt;</source>
        <translation>&lt;b&gt;Strg+V&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open what was copied</source>
        <translation>öffnen, was kopiert wurde</translation>
    </message>
    <message>
        <source>&lt;b&gt;B&lt;/b&gt;</source>
        <translation>&lt;b&gt;B&lt;/b&gt;</translation>
    </message>
    <message>
        <source>before and after, side by side</source>
        <translation>vorher und nachher, nebeneinander</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Strg+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take the last step back</source>
        <translation>den letzten Schritt zurücknehmen</translation>
    </message>
    <message>
        <source>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</source>
        <translation>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</translation>
    </message>
    <message>
        <source>see the photo at actual size; fit it again</source>
        <translation>das Foto in Originalgröße sehen; wieder ganz</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Strg+Umschalt+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take it again</source>
        <translation>ihn wieder tun</translation>
    </message>
    <message>
        <source>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</source>
        <translation>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</translation>
    </message>
    <message>
        <source>larger, smaller</source>
        <translation>größer, kleiner</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</source>
        <translation>&lt;b&gt;Strg+L&lt;/b&gt;, &lt;b&gt;Strg+R&lt;/b&gt;</translation>
    </message>
    <message>
        <source>turn left, turn right</source>
        <translation>nach links, nach rechts drehen</translation>
    </message>
    <message>
        <source>&lt;b&gt;F11&lt;/b&gt;</source>
        <translation>&lt;b&gt;F11&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the photo alone on the whole screen, and back</source>
        <translation>das Foto allein auf dem ganzen Bildschirm, und zurück</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</source>
        <translation>&lt;b&gt;Strg+Umschalt+F&lt;/b&gt;</translation>
    </message>
    <message>
        <source>flatten</source>
        <translation>einrechnen</translation>
    </message>
    <message>
        <source>&lt;b&gt;Tab&lt;/b&gt;, arrows, &lt;b&gt;Return&lt;/b&gt;</source>
        <translation>&lt;b&gt;Tab&lt;/b&gt;, Pfeile, &lt;b&gt;Eingabe&lt;/b&gt;</translation>
    </message>
    <message>
        <source>go from control to control; press it</source>
        <translation>von Element zu Element gehen; es drücken</translation>
    </message>
    <message>
        <source>&lt;b&gt;F1&lt;/b&gt;</source>
        <translation>&lt;b&gt;F1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>diese Hilfe</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Q&lt;/b&gt;</source>
        <translation>&lt;b&gt;Strg+Q&lt;/b&gt;</translation>
    </message>
    <message>
        <source>quit; your choices are kept</source>
        <translation>beenden; die Auswahl bleibt</translation>
    </message>
    <message>
        <source>The looks</source>
        <translation>Die Looks</translation>
    </message>
    <message>
        <source>Each picture shows the look with its own crop and border.</source>
        <translation>Jedes Bild zeigt den Look mit seinem eigenen Zuschnitt und Rahmen.</translation>
    </message>
    <message>
        <source>Cool and muted with strong contrast; darker and richer towards the edges.</source>
        <translation>Kühl und gedämpft mit starkem Kontrast; zum Rand hin dunkler und satter.</translation>
    </message>
    <message>
        <source>square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Strong colours and contrast, with warm light tones.</source>
        <translation>Kräftige Farben und Kontraste mit warmen hellen Tönen.</translation>
    </message>
    <message>
        <source>thick white</source>
        <translation>breit weiß</translation>
    </message>
    <message>
        <source>Bright lights, little colour and a dark blue tint, like a frame of a film.</source>
        <translation>Helle Lichter, wenig Farbe und ein dunkelblauer Ton, wie ein Bild aus einem Film.</translation>
    </message>
    <message>
        <source>16 to 9</source>
        <translation>16 zu 9</translation>
    </message>
    <message>
        <source>black bars</source>
        <translation>schwarze Balken</translation>
    </message>
    <message>
        <source>A contrasty black-and-white print of the sixties, with light skies.</source>
        <translation>Ein kontrastreicher Schwarzweißabzug der Sechziger mit hellem Himmel.</translation>
    </message>
    <message>
        <source>7 to 6</source>
        <translation>7 zu 6</translation>
    </message>
    <message>
        <source>A hard colour print under a brown wash that is strongest in the shadows.</source>
        <translation>Ein harter Farbabzug unter einem braunen Schleier, der in den Schatten am stärksten ist.</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>gerundet</translation>
    </message>
    <message>
        <source>Black and white over the full range of greys; blue skies print dark.</source>
        <translation>Schwarzweiß über alle Graustufen; blauer Himmel wird dunkel.</translation>
    </message>
    <message>
        <source>medium white</source>
        <translation>mittel weiß</translation>
    </message>
    <message>
        <source>Cross-processed film: hard reds and greens, flat blues.</source>
        <translation>Cross-entwickelter Film: harte Rot- und Grüntöne, flaches Blau.</translation>
    </message>
    <message>
        <source>An instant print: soft tones, brown shadows and dark corners.</source>
        <translation>Ein Sofortbild: weiche Töne, braune Schatten und dunkle Ecken.</translation>
    </message>
    <message>
        <source>an instant print</source>
        <translation>ein Sofortbild</translation>
    </message>
    <message>
        <source>Warmed towards orange; darks darker, lights lighter, stronger colours.</source>
        <translation>Warm ins Orange gezogen; Dunkles dunkler, Helles heller, kräftigere Farben.</translation>
    </message>
    <message>
        <source>6 to 4</source>
        <translation>6 zu 4</translation>
    </message>
    <message>
        <source>thin white</source>
        <translation>schmal weiß</translation>
    </message>
    <message>
        <source>Infrared film: leaves turn bright, blue sky turns dark.</source>
        <translation>Infrarotfilm: Laub wird hell, blauer Himmel dunkel.</translation>
    </message>
    <message>
        <source>A lens that magnifies the middle and bends the rest outward.</source>
        <translation>Ein Objektiv, das die Mitte vergrößert und den Rest nach außen biegt.</translation>
    </message>
    <message>
        <source>a black surround</source>
        <translation>schwarz umgeben</translation>
    </message>
    <message>
        <source>A cheap camera that lets light in, at another place each time.</source>
        <translation>Eine billige Kamera, in die Licht fällt, jedes Mal an einer anderen Stelle.</translation>
    </message>
    <message>
        <source>A cartoon: bands of brightness, strong colours, dark outlines.</source>
        <translation>Ein Comic: Helligkeitsstufen, kräftige Farben, dunkle Umrisse.</translation>
    </message>
    <message>
        <source>Cold and bleached, with a blue cast.</source>
        <translation>Kalt und ausgebleicht, mit einem Blaustich.</translation>
    </message>
    <message>
        <source>Over-exposed: light parts are pushed towards white.</source>
        <translation>Überbelichtet: Helles wird zum Weiß hin verschoben.</translation>
    </message>
    <message>
        <source>DejaVu Sans</source>
        <comment>a font that has the letters of the language</comment>
        <translation>DejaVu Sans</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Z&lt;/b&gt;, or click the photo twice, to see it at actual size: pixel by pixel what &lt;b&gt;Save&lt;/b&gt; writes, in the chosen size. Soft and grainy looks differ from the small picture. Drag the photo, or press the arrow keys, to see other parts; hold it still, or the space bar, to see it &lt;i&gt;before&lt;/i&gt;. The wheel with Ctrl and the keys &lt;b&gt;+&lt;/b&gt; and &lt;b&gt;-&lt;/b&gt; go through 50, 100 and 200 %; &lt;b&gt;Esc&lt;/b&gt; shows all of it again. &lt;b&gt;F11&lt;/b&gt; leaves the photo alone on the whole screen, where the keys stay at work, until &lt;b&gt;F11&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt;. The right mouse button and the menu key open a menu on the photo. Where your desktop knows the colour profile of your screen, photos are shown in its colours; what is saved stays the same.</source>
        <translation>Drücke &lt;b&gt;Z&lt;/b&gt; oder klicke zweimal auf das Foto, um es in Originalgröße zu sehen: Pixel für Pixel, was &lt;b&gt;Speichern&lt;/b&gt; schreibt, in der gewählten Größe. Weiche und körnige Looks sehen anders aus als im kleinen Bild. Ziehe das Foto oder drücke die Pfeiltasten, um andere Teile zu sehen; halte es still oder die Leertaste gedrückt, um es &lt;i&gt;vorher&lt;/i&gt; zu sehen. Das Rad mit Strg und die Tasten &lt;b&gt;+&lt;/b&gt; und &lt;b&gt;-&lt;/b&gt; gehen durch 50, 100 und 200 %; &lt;b&gt;Esc&lt;/b&gt; zeigt wieder das ganze Foto. &lt;b&gt;F11&lt;/b&gt; zeigt das Foto allein auf dem ganzen Bildschirm, wo die Tasten weiter gelten, bis &lt;b&gt;F11&lt;/b&gt; oder &lt;b&gt;Esc&lt;/b&gt;. Die rechte Maustaste und die Menütaste öffnen ein Menü auf dem Foto. Wo der Desktop das Farbprofil des Bildschirms kennt, werden Fotos in dessen Farben gezeigt; was gespeichert wird, bleibt dasselbe.</translation>
    </message>
</context>
<context>
    <name>LookButton</name>
    <message>
        <source>Applied as number %1</source>
        <translation>Angewendet als Nummer %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Applied looks</source>
        <translation>Angewendete Looks</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop reading the photo (Esc)</source>
        <translation>Das Lesen des Fotos anhalten (Esc)</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Drop a photo here. Hold to see the photo without its looks.</source>
        <translation>Ein Foto hierher ziehen. Gedrückt halten zeigt das Foto ohne seine Looks.</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a photo (Ctrl+O)</source>
        <translation>Ein Foto öffnen (Strg+O)</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Rotate left (Ctrl+L)</source>
        <translation>Nach links drehen (Strg+L)</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Rotate right (Ctrl+R)</source>
        <translation>Nach rechts drehen (Strg+R)</translation>
    </message>
    <message>
        <source>&amp;Border</source>
        <translation>&amp;Rahmen</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Zuschnitt</translation>
    </message>
    <message>
        <source>S&amp;ize</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>Stren&amp;gth</source>
        <translation>S&amp;tärke</translation>
    </message>
    <message>
        <source>How much of the looks is seen ([ and ])</source>
        <translation>Wie viel von den Looks zu sehen ist ([ und ])</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>&amp;Multiple looks</source>
        <translation>&amp;Mehrere Looks</translation>
    </message>
    <message>
        <source>Stack looks instead of replacing them</source>
        <translation>Looks stapeln statt sie zu ersetzen</translation>
    </message>
    <message>
        <source>Ra&amp;ndomness</source>
        <translation>Z&amp;ufall</translation>
    </message>
    <message>
        <source>Vary the looks slightly</source>
        <translation>Die Looks leicht verändern</translation>
    </message>
    <message>
        <source>Re-e&amp;xpose</source>
        <translation>&amp;Neu belichten</translation>
    </message>
    <message>
        <source>Draw a new variation (Ctrl+E)</source>
        <translation>Eine neue Variante ziehen (Strg+E)</translation>
    </message>
    <message>
        <source>Fla&amp;tten</source>
        <translation>&amp;Einrechnen</translation>
    </message>
    <message>
        <source>Bake the looks into the photo (Ctrl+Shift+F)</source>
        <translation>Die Looks zu einem Teil des Fotos machen (Strg+Umschalt+F)</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>Save as JPEG (Ctrl+S)</source>
        <translation>Als JPEG speichern (Strg+S)</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Saved %1, %2 x %3, %4</source>
        <translation>%1 gespeichert, %2 x %3, %4</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>The photo cannot be shown at its actual size.</source>
        <translation>Das Foto kann nicht in Originalgröße gezeigt werden.</translation>
    </message>
    <message>
        <source>The preview cannot be shown.</source>
        <translation>Die Vorschau kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>Multiple looks</source>
        <translation>Mehrere Looks</translation>
    </message>
    <message>
        <source>Randomness</source>
        <translation>Zufall</translation>
    </message>
    <message>
        <source>Re-expose</source>
        <translation>Neu belichten</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>The photo cannot be copied.</source>
        <translation>Das Foto kann nicht kopiert werden.</translation>
    </message>
    <message>
        <source>Copied, %1 x %2</source>
        <translation>Kopiert, %1 x %2</translation>
    </message>
    <message>
        <source>The picture cannot be pasted.</source>
        <translation>Das Bild kann nicht eingefügt werden.</translation>
    </message>
    <message>
        <source>The program that it was copied from does not give it.</source>
        <translation>Das Programm, aus dem es kopiert wurde, gibt es nicht heraus.</translation>
    </message>
    <message>
        <source>It has more pixels than a photo may have.</source>
        <translation>Es hat mehr Pixel, als ein Foto haben darf.</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>Eingefügtes Bild</translation>
    </message>
    <message>
        <source>&amp;Before and after</source>
        <translation>&amp;Vorher und nachher</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Der Rest der Datei fehlt.</translation>
    </message>
    <message>
        <source>Lumora - %1</source>
        <translation>Lumora - %1</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>The photo cannot be flattened.</source>
        <translation>Das Foto kann nicht eingerechnet werden.</translation>
    </message>
    <message>
        <source>Flatten</source>
        <translation>Einrechnen</translation>
    </message>
    <message>
        <source>The photo cannot be saved.</source>
        <translation>Das Foto kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Encode</source>
        <translation>Kodieren</translation>
    </message>
    <message>
        <source>&amp;Whole screen</source>
        <translation>Ganzer &amp;Bildschirm</translation>
    </message>
    <message>
        <source>For the photo</source>
        <translation>Für das Foto</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>Save &amp;Many…</source>
        <translation>&amp;Viele speichern…</translation>
    </message>
    <message>
        <source>&amp;Keep with the photo</source>
        <translation>&amp;Mit dem Foto behalten</translation>
    </message>
    <message>
        <source>&amp;Everything it carried</source>
        <translation>&amp;Alles, was es enthielt</translation>
    </message>
    <message>
        <source>Everything but the &amp;place</source>
        <translation>Alles außer dem &amp;Ort</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Nichts</translation>
    </message>
    <message>
        <source>&amp;JPEG quality</source>
        <translation>&amp;JPEG-Qualität</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>&amp;Hoch</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>&amp;Beste</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Photo</source>
        <translation>F&amp;oto</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>Nach &amp;links drehen</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>Nach &amp;rechts drehen</translation>
    </message>
    <message>
        <source>&amp;Flatten</source>
        <translation>&amp;Einrechnen</translation>
    </message>
    <message>
        <source>R&amp;e-expose</source>
        <translation>&amp;Neu belichten</translation>
    </message>
    <message>
        <source>&amp;Looks</source>
        <translation>&amp;Looks</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Lumora &amp;Help</source>
        <translation>Lumora-&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Lumora</source>
        <translation>Ü&amp;ber Lumora</translation>
    </message>
    <message>
        <source>All photos (%1)</source>
        <translation>Alle Fotos (%1)</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>Fotos (%1)</translation>
    </message>
    <message>
        <source>Select a file to open</source>
        <translation>Eine Datei zum Öffnen wählen</translation>
    </message>
    <message>
        <source>Select the photos</source>
        <translation>Die Fotos wählen</translation>
    </message>
    <message>
        <source>Select a folder with photos</source>
        <translation>Einen Ordner mit Fotos wählen</translation>
    </message>
    <message>
        <source>Select the folder to save into</source>
        <translation>Den Ordner wählen, in dem gespeichert wird</translation>
    </message>
    <message>
        <source>&amp;Next photo</source>
        <translation>Nä&amp;chstes Foto</translation>
    </message>
    <message>
        <source>&amp;Previous photo</source>
        <translation>Vor&amp;heriges Foto</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>This is the last photo.</source>
        <translation>Das ist das letzte Foto.</translation>
    </message>
    <message>
        <source>This is the first photo.</source>
        <translation>Das ist das erste Foto.</translation>
    </message>
    <message>
        <source>&amp;Weaker</source>
        <translation>Sch&amp;wächer</translation>
    </message>
    <message>
        <source>&amp;Stronger</source>
        <translation>&amp;Stärker</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Stren&amp;gth %1 %</source>
        <translation>S&amp;tärke %1 %</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Rück&amp;gängig</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>Rück&amp;gängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>The photo cannot be turned.</source>
        <translation>Das Foto kann nicht gedreht werden.</translation>
    </message>
    <message>
        <source>Lumora by Dovrel</source>
        <translation>Lumora von Dovrel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a look and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschnitt</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>Die Hilfe kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>It stands at %1.</source>
        <translation>Sie liegt unter %1.</translation>
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
        <translation>Dekodieren</translation>
    </message>
    <message>
        <source>%1 · Strength: %2 % · Crop: %3 · Border: %4 · Size: %5 · Quality: %6</source>
        <translation>%1 · Stärke: %2 % · Zuschnitt: %3 · Rahmen: %4 · Größe: %5 · Qualität: %6</translation>
    </message>
</context>
<context>
    <name>Reason</name>
    <message>
        <source>There is no permission to write there.</source>
        <translation>Dort fehlt die Berechtigung zum Schreiben.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>The file is larger than may be written there.</source>
        <translation>Die Datei ist größer, als dort geschrieben werden darf.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Der Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>Der Name der Datei ist zu lang.</translation>
    </message>
    <message>
        <source>The link leads to itself.</source>
        <translation>Die Verknüpfung führt auf sich selbst.</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>Eine Datei dieses Namens gibt es schon.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Es gibt einen Ordner dieses Namens.</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>Die Datei kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The animation is too large: %1 x %2 pixels.</source>
        <translation>Die Animation ist zu groß: %1 x %2 Pixel.</translation>
    </message>
    <message>
        <source>The picture is of a kind that cannot be read: it has %1 channels of %2 bits.</source>
        <translation>Das Bild ist von einer Art, die nicht gelesen werden kann: Es hat %1 Kanäle mit %2 Bit.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has parts of %1 x %2 pixels.</source>
        <translation>Das Bild ist beschädigt: Es hat Teile von %1 x %2 Pixeln.</translation>
    </message>
    <message>
        <source>It is a HEIC or AVIF photo. This Lumora was built without libheif, which reads them.</source>
        <translation>Es ist ein HEIC- oder AVIF-Foto. Dieses Lumora wurde ohne libheif gebaut, das solche liest.</translation>
    </message>
    <message>
        <source>It is a JPEG XL photo. This Lumora was built without libjxl, which reads them.</source>
        <translation>Es ist ein JPEG-XL-Foto. Dieses Lumora wurde ohne libjxl gebaut, das solche liest.</translation>
    </message>
    <message>
        <source>It is a camera&apos;s raw photo. This Lumora was built without LibRaw, which reads them.</source>
        <translation>Es ist das Rohfoto einer Kamera. Dieses Lumora wurde ohne LibRaw gebaut, das solche liest.</translation>
    </message>
    <message>
        <source>There is not enough free memory for a picture of %1 x %2 pixels.</source>
        <translation>Der freie Speicher reicht nicht für ein Bild von %1 x %2 Pixeln.</translation>
    </message>
    <message>
        <source>There is not enough free memory for the picture.</source>
        <translation>Der freie Speicher reicht nicht für das Bild.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 x %2 pixels. At most %3 megapixels can be opened.</source>
        <translation>Das Bild ist zu groß: %1 x %2 Pixel. Höchstens %3 Megapixel können geöffnet werden.</translation>
    </message>
    <message>
        <source>The picture is damaged: the file is too small for %1 x %2 pixels.</source>
        <translation>Das Bild ist beschädigt: Die Datei ist zu klein für %1 x %2 Pixel.</translation>
    </message>
    <message>
        <source>The picture is damaged or of a kind that cannot be read.</source>
        <translation>Das Bild ist beschädigt oder von einer Art, die nicht gelesen werden kann.</translation>
    </message>
    <message>
        <source>The file is not a picture of a kind that can be read.</source>
        <translation>Die Datei ist kein Bild von einer Art, die gelesen werden kann.</translation>
    </message>
    <message>
        <source>The picture is of a kind that is not supported.</source>
        <translation>Das Bild ist von einer Art, die nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read.</source>
        <translation>Das Bild ist beschädigt und kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has too many parts.</source>
        <translation>Das Bild ist beschädigt: Es hat zu viele Teile.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei existiert nicht.</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>Die Berechtigung zum Lesen der Datei fehlt.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Die Datei kann nicht geöffnet werden: %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>It is a folder, not a picture.</source>
        <translation>Es ist ein Ordner, kein Bild.</translation>
    </message>
    <message>
        <source>It is not a file with a picture.</source>
        <translation>Es ist keine Datei mit einem Bild.</translation>
    </message>
    <message>
        <source>Reading it failed: the file is damaged, or made to do harm.</source>
        <translation>Das Lesen ist gescheitert: Die Datei ist beschädigt oder soll Schaden anrichten.</translation>
    </message>
    <message>
        <source>Reading it takes too long: the file is damaged, or made to do harm.</source>
        <translation>Das Lesen dauert zu lange: Die Datei ist beschädigt oder soll Schaden anrichten.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to other files, which no picture needs.</source>
        <translation>Das Lesen wurde angehalten: Die Datei führte zu anderen Dateien, die kein Bild braucht.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to the network, which no picture needs.</source>
        <translation>Das Lesen wurde angehalten: Die Datei führte ins Netz, das kein Bild braucht.</translation>
    </message>
    <message>
        <source>Reading it was cancelled.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The program that reads photos cannot be started. Lumora is not completely installed.</source>
        <translation>Das Programm, das Fotos liest, kann nicht gestartet werden. Lumora ist nicht vollständig installiert.</translation>
    </message>
    <message>
        <source>A JPEG cannot hold %1 x %2 pixels. Choose a smaller size.</source>
        <translation>Ein JPEG kann %1 x %2 Pixel nicht aufnehmen. Bitte eine kleinere Größe wählen.</translation>
    </message>
    <message>
        <source>The output would replace a photo that is to be rendered.</source>
        <translation>Die Ausgabe würde ein Foto ersetzen, das noch gerechnet wird.</translation>
    </message>
    <message>
        <source>The picture cannot be encoded.</source>
        <translation>Das Bild kann nicht kodiert werden.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Der Rest der Datei fehlt.</translation>
    </message>
    <message>
        <source>Another photo of this run has the same output.</source>
        <translation>Ein anderes Foto dieses Laufs hat dieselbe Ausgabe.</translation>
    </message>
    <message>
        <source>Rendering it was ended from outside, as happens where the memory runs out.</source>
        <translation>Das Rechnen wurde von außen beendet, wie es geschieht, wenn der Speicher ausgeht.</translation>
    </message>
    <message>
        <source>Rendering it failed: the program broke down.</source>
        <translation>Das Rechnen ist gescheitert: Das Programm ist abgestürzt.</translation>
    </message>
    <message>
        <source>No process can be started for it.</source>
        <translation>Dafür kann kein Prozess gestartet werden.</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Liste leeren</translation>
    </message>
</context>
<context>
    <name>RenderStep</name>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rahmen</translation>
    </message>
</context>
<context>
    <name>SaveManyPanel</name>
    <message>
        <source>No folder chosen</source>
        <translation>Kein Ordner gewählt</translation>
    </message>
    <message>
        <source>Choose &amp;Photos…</source>
        <translation>&amp;Fotos wählen…</translation>
    </message>
    <message>
        <source>Choose a &amp;Folder…</source>
        <translation>&amp;Ordner wählen…</translation>
    </message>
    <message>
        <source>Save &amp;Into…</source>
        <translation>Speichern &amp;in…</translation>
    </message>
    <message>
        <source>&amp;Save Them</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save Many</source>
        <translation>Viele speichern</translation>
    </message>
    <message>
        <source>The photo saved last</source>
        <translation>Das zuletzt gespeicherte Foto</translation>
    </message>
    <message>
        <source>Photos done</source>
        <translation>Fertige Fotos</translation>
    </message>
    <message>
        <source>Photos that were not saved, or are damaged</source>
        <translation>Fotos, die nicht gespeichert wurden oder beschädigt sind</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>No photos chosen</source>
        <translation>Keine Fotos gewählt</translation>
    </message>
    <message numerus="yes">
        <source>%1 and others: %Ln photos</source>
        <translation>
            <numerusform>%1 und andere: %Ln Foto</numerusform>
            <numerusform>%1 und andere: %Ln Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>Restzeit: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The program that renders photos cannot be started. Lumora is not completely installed.</source>
        <translation>Das Programm, das Fotos rechnet, kann nicht gestartet werden. Lumora ist nicht vollständig installiert.</translation>
    </message>
    <message>
        <source>Cancelled. What was saved stays.</source>
        <translation>Abgebrochen. Was gespeichert wurde, bleibt.</translation>
    </message>
    <message>
        <source>It ended before all photos were done.</source>
        <translation>Es endete, bevor alle Fotos fertig waren.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>Already there: %1</source>
        <translation>Schon vorhanden: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Auswahl</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Save as JPEG</source>
        <translation>Als JPEG speichern</translation>
    </message>
    <message>
        <source>JPEG, whatever the ending: %1</source>
        <translation>JPEG, gleich welche Endung: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be saved there. %2</source>
        <translation>„%1“ kann dort nicht gespeichert werden. %2</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>This is the photo that you opened. Replacing it cannot be undone.</source>
        <translation>Das ist das Foto, das du geöffnet hast. Das Ersetzen kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Keep both saves “%1” beside it.</source>
        <translation>Beide behalten speichert „%1“ daneben.</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Beide behalten</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>„%1“ existiert schon. Soll es ersetzt werden?</translation>
    </message>
</context>
<context>
    <name>SplitLine</name>
    <message>
        <source>Drag it across the photo. Esc ends the comparison.</source>
        <translation>Über das Foto ziehen. Esc beendet den Vergleich.</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>Linie zwischen vorher und nachher</translation>
    </message>
</context>
</TS>

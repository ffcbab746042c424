<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Desktop</name>
    <message>
        <source>Photo Looks</source>
        <translation>Effets photo</translation>
    </message>
    <message>
        <source>Give a photo a look and save it</source>
        <translation>Donner un effet à une photo et l’enregistrer</translation>
    </message>
    <message>
        <source>Lumora shows one photo large and, beside it, what it would be under each of its looks: cool and muted, warm and faded, black and white, like an instant print or a frame of a film. One press applies a look; with multiple looks switched on, they stack in the order in which they were chosen.</source>
        <translation>Lumora montre une photo en grand et, à côté, ce qu’elle serait avec chacun de ses effets&#xa0;: froide et atténuée, chaude et passée, en noir et blanc, comme un tirage instantané ou l’image d’un film. Une pression applique un effet&#xa0;; quand plusieurs effets sont activés, ils s’empilent dans l’ordre où ils ont été choisis.</translation>
    </message>
    <message>
        <source>What it does:</source>
        <translation>Ce qu’il fait&#xa0;:</translation>
    </message>
    <message>
        <source>looks from instant prints to infrared film, many of which can be varied at random</source>
        <translation>des effets allant du tirage instantané au film infrarouge, dont beaucoup peuvent varier au hasard</translation>
    </message>
    <message>
        <source>crops and borders that come with a look or are chosen by hand</source>
        <translation>des cadrages et des bordures propres à un effet ou choisis à la main</translation>
    </message>
    <message>
        <source>quarter turns, looks made permanent, and JPEG files in the size that is wanted</source>
        <translation>des rotations d’un quart de tour, des effets rendus permanents et des fichiers JPEG à la taille voulue</translation>
    </message>
    <message>
        <source>opens JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos, upright and in their right colours</source>
        <translation>ouvre les photos JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD et les photos brutes des appareils, à l’endroit et dans leurs vraies couleurs</translation>
    </message>
    <message>
        <source>works by mouse, by keyboard and with a screen reader</source>
        <translation>s’utilise à la souris, au clavier et avec un lecteur d’écran</translation>
    </message>
    <message>
        <source>A photo under the look Mono, above the strip of looks</source>
        <translation>Une photo avec l’effet Mono, au-dessus de la rangée des effets</translation>
    </message>
    <message>
        <source>The photo before and after the look 1974, on either side of a line</source>
        <translation>La photo avant et après l’effet 1974, de part et d’autre d’une ligne</translation>
    </message>
    <message>
        <source>Give a photo a look, a crop and a border, and save it</source>
        <translation>Donner à une photo un effet, un cadrage et une bordure, et l’enregistrer</translation>
    </message>
    <message>
        <source>photo;picture;look;filter;effect;border;crop;instant;retro;</source>
        <translation>photo;image;look;filtre;effet;bordure;cadrage;instantané;rétro;</translation>
    </message>
    <message>
        <source>Compare, look closely, and save many photos at once:</source>
        <translation>Comparer, regarder de près et enregistrer beaucoup de photos d’un coup :</translation>
    </message>
    <message>
        <source>the photo beside what it was, on either side of a line</source>
        <translation>la photo à côté de ce qu’elle était, de part et d’autre d’une ligne</translation>
    </message>
    <message>
        <source>every pixel as it will be saved, at 50, 100 or 200 %</source>
        <translation>chaque pixel tel qu’il sera enregistré, à 50, 100 ou 200 %</translation>
    </message>
    <message>
        <source>many photos or a whole folder under the looks that are chosen</source>
        <translation>beaucoup de photos ou tout un dossier avec les effets choisis</translation>
    </message>
    <message>
        <source>photos through the clipboard, and dragged out of the window</source>
        <translation>des photos par le presse-papiers, et glissées hors de la fenêtre</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>La première version.</translation>
    </message>
    <message>
        <source>give many photos the same looks</source>
        <translation>donner les mêmes effets à beaucoup de photos</translation>
    </message>
    <message>
        <source>give one photo a look</source>
        <translation>donner un effet à une photo</translation>
    </message>
</context>
<context>
    <name>DragDropImageView</name>
    <message>
        <source>Before: the photo without its looks, in its crop and border.</source>
        <translation>Avant&#xa0;: la photo sans ses effets, avec son cadrage et sa bordure.</translation>
    </message>
    <message>
        <source>The photo as it will be saved, at %1 %. Drag it or press the arrow keys to see other parts of it.</source>
        <translation>La photo telle qu’elle sera enregistrée, à %1&#xa0;%. Glissez-la ou utilisez les flèches pour en voir d’autres parties.</translation>
    </message>
    <message>
        <source>Before on the left, after on the right of a line that the arrow keys move.</source>
        <translation>Avant à gauche, après à droite d’une ligne que les flèches déplacent.</translation>
    </message>
    <message>
        <source>The photo under the applied looks. Hold the mouse or the space bar to see it before.</source>
        <translation>La photo avec les effets appliqués. Maintenez le bouton de la souris ou la barre d’espace pour la voir avant.</translation>
    </message>
    <message>
        <source>Drop a photo here, or open one.</source>
        <translation>Déposez une photo ici ou ouvrez-en une.</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
</context>
<context>
    <name>FramingChoice</name>
    <message>
        <source>By Filter</source>
        <translation>De l’effet</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Sans</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Thick</source>
        <translation>Épaisse</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Arrondie</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Origine</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>all others</source>
        <translation>tous les autres</translation>
    </message>
    <message>
        <source>Lumora Help</source>
        <translation>Aide de Lumora</translation>
    </message>
    <message>
        <source>Lumora</source>
        <translation>Lumora</translation>
    </message>
    <message>
        <source>Lumora gives one photo a look, a crop and a border, and saves the result as a JPEG file. The photo on your disk is never changed: what you see is a picture made from it, and it is written only where you say.</source>
        <translation>Lumora donne à une photo un effet, un cadrage et une bordure, et enregistre le résultat dans un fichier JPEG. La photo de votre disque n’est jamais modifiée&#xa0;: ce que vous voyez est une image faite à partir d’elle, et elle n’est écrite que là où vous le dites.</translation>
    </message>
    <message>
        <source>A photo comes in</source>
        <translation>Une photo arrive</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Open&lt;/b&gt;, drop a file on the large picture, or open a photo with Lumora from your file manager. JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos open, and whatever else your desktop can decode. A photo that replaces another takes over the looks that are switched on. A file that is not a photo is refused, and the photo before it stays.</source>
        <translation>Appuyez sur &lt;b&gt;Ouvrir&lt;/b&gt;, déposez un fichier sur la grande image ou ouvrez une photo avec Lumora depuis votre gestionnaire de fichiers. Les photos JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD et les photos brutes des appareils s’ouvrent, ainsi que tout ce que votre bureau sait décoder. Une photo qui en remplace une autre reprend les effets activés. Un fichier qui n’est pas une photo est refusé, et la photo précédente reste.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt; and &lt;b&gt;Page Up&lt;/b&gt; go to the next and the previous photo of the folder, in the order of their names, and the looks stay on; what is no photo is passed over. Where several files were opened with Lumora at once, the keys go through those. &lt;b&gt;File, Open recent&lt;/b&gt; has the eight photos that were opened last.</source>
        <translation>&lt;b&gt;Page suiv.&lt;/b&gt; et &lt;b&gt;Page préc.&lt;/b&gt; passent à la photo suivante et à la précédente du dossier, dans l’ordre de leurs noms, et les effets restent&#xa0;; ce qui n’est pas une photo est sauté. Si plusieurs fichiers ont été ouverts ensemble avec Lumora, les touches parcourent ceux-là. &lt;b&gt;Fichier, Ouvrir un fichier récent&lt;/b&gt; contient les huit dernières photos ouvertes.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Edit, Paste&lt;/b&gt; opens a picture that another program copied, or a copied file. &lt;b&gt;Edit, Copy&lt;/b&gt; puts the photo as it would be saved on the clipboard; and the photo can be dragged out of Lumora, as a file or as a picture: press on it and move.</source>
        <translation>&lt;b&gt;Édition, Coller&lt;/b&gt; ouvre une image copiée par un autre programme, ou un fichier copié. &lt;b&gt;Édition, Copier&lt;/b&gt; place dans le presse-papiers la photo telle qu’elle serait enregistrée&#xa0;; et la photo peut être glissée hors de Lumora, comme fichier ou comme image&#xa0;: appuyez dessus et déplacez.</translation>
    </message>
    <message>
        <source>Looks, one or several</source>
        <translation>Un effet ou plusieurs</translation>
    </message>
    <message>
        <source>Each button shows your photo under its look; press it to apply the look, and press it again to take it off. &lt;b&gt;Original&lt;/b&gt; takes all looks off. Where the window is narrow the row of looks scrolls: by the wheel over it, by its bar, or by the arrow keys.</source>
        <translation>Chaque bouton montre votre photo avec son effet&#xa0;; appuyez dessus pour l’appliquer, et encore une fois pour l’enlever. &lt;b&gt;Original&lt;/b&gt; enlève tous les effets. Si la fenêtre est étroite, la rangée des effets défile&#xa0;: par la molette au-dessus d’elle, par sa barre ou par les flèches.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Multiple looks&lt;/b&gt; switched on, looks stack in the order in which you press them. The line above the photo shows the chain, for example &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Pressing a look of the chain takes it out and leaves the others in order, and the buttons carry their numbers. Switching back to one look keeps the one that came last.</source>
        <translation>Quand &lt;b&gt;Plusieurs effets&lt;/b&gt; est activé, les effets s’empilent dans l’ordre où vous les pressez. La ligne au-dessus de la photo montre la chaîne, par exemple &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Presser un effet de la chaîne le retire et laisse les autres dans l’ordre, et les boutons portent leurs numéros. Revenir à un seul effet garde le dernier.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Strength&lt;/b&gt; takes the looks back in part: at 0 the photo shows as it came, in its crop and border. The thumbnails, and every new look or chain, have the whole strength.</source>
        <translation>&lt;b&gt;Intensité&lt;/b&gt; retire une partie des effets&#xa0;: à 0, la photo apparaît telle qu’elle est venue, avec son cadrage et sa bordure. Les vignettes, et chaque nouvel effet ou nouvelle chaîne, ont toute l’intensité.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Randomness&lt;/b&gt; switched on, many looks vary a little, the same way until you press &lt;b&gt;Re-expose&lt;/b&gt;, which draws a new variation. Randomness is off whenever Lumora starts.</source>
        <translation>Quand &lt;b&gt;Hasard&lt;/b&gt; est activé, beaucoup d’effets varient un peu, de la même façon jusqu’à ce que vous pressiez &lt;b&gt;Réexposer&lt;/b&gt;, qui tire une nouvelle variation. Hasard est désactivé à chaque démarrage de Lumora.</translation>
    </message>
    <message>
        <source>Crop and border</source>
        <translation>Cadrage et bordure</translation>
    </message>
    <message>
        <source>&lt;b&gt;By Filter&lt;/b&gt; takes the crop and the border that belong to the look that you added last:</source>
        <translation>&lt;b&gt;De l’effet&lt;/b&gt; prend le cadrage et la bordure qui appartiennent au dernier effet ajouté&#xa0;:</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Effet</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Cadrage</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordure</translation>
    </message>
    <message>
        <source>The other entries choose a crop or a border whatever the look; &lt;b&gt;None&lt;/b&gt; switches it off. A border is put round the photo and hides nothing of it. 6x4, 4x3 and 7x6 turn with a portrait photo; Cinema stays a wide strip.</source>
        <translation>Les autres choix donnent un cadrage ou une bordure quel que soit l’effet&#xa0;; &lt;b&gt;Sans&lt;/b&gt; n’en met pas. Une bordure entoure la photo et n’en cache rien. 6x4, 4x3 et 7x6 tournent avec une photo en hauteur&#xa0;; Cinema reste une large bande.</translation>
    </message>
    <message>
        <source>Turn, flatten, save</source>
        <translation>Pivoter, aplatir, enregistrer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rotate&lt;/b&gt; turns the photo by a quarter; the looks stay.</source>
        <translation>&lt;b&gt;Pivoter&lt;/b&gt; tourne la photo d’un quart&#xa0;; les effets restent.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Flatten&lt;/b&gt; makes the looks, the crop and the border part of the photo, so that further looks start from there.</source>
        <translation>&lt;b&gt;Aplatir&lt;/b&gt; fait des effets, du cadrage et de la bordure une partie de la photo, si bien que d’autres effets partent de là.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Size&lt;/b&gt; is the longer side of the saved picture in pixels. A smaller picture is enlarged to it; &lt;i&gt;Original&lt;/i&gt; keeps what the photo has.</source>
        <translation>&lt;b&gt;Taille&lt;/b&gt; est le plus grand côté de l’image enregistrée, en pixels. Une image plus petite est agrandie&#xa0;; &lt;i&gt;Origine&lt;/i&gt; garde ce que la photo a.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Save&lt;/b&gt; writes a JPEG file, whatever the ending of its name; an ending that is not in the list gets &lt;i&gt;.jpg&lt;/i&gt;. The photo that you opened is replaced only if you say so: &lt;i&gt;Keep both&lt;/i&gt; saves beside it. If a save fails, the file that stood there stays as it was.</source>
        <translation>&lt;b&gt;Enregistrer&lt;/b&gt; écrit un fichier JPEG, quelle que soit l’extension de son nom&#xa0;; une extension qui n’est pas dans la liste reçoit &lt;i&gt;.jpg&lt;/i&gt;. La photo que vous avez ouverte n’est remplacée que si vous le dites&#xa0;: &lt;i&gt;Garder les deux&lt;/i&gt; enregistre à côté. Si un enregistrement échoue, le fichier qui était là reste comme il était.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Save Many&lt;/b&gt; (Ctrl+Shift+S) gives many photos, or all of a folder, what is chosen now: looks, strength, crop, border, size, variation, quality. They go into a folder of your choice, named after photo and looks; a file that stands there stays. &lt;i&gt;Cancel&lt;/i&gt; keeps what is saved, and another time goes on from there. What cannot be saved is listed with its reason. In a terminal &lt;i&gt;lumora-render&lt;/i&gt; does the same.</source>
        <translation>&lt;b&gt;Fichier, Enregistrer plusieurs&lt;/b&gt; (Ctrl+Maj+S) donne à de nombreuses photos, ou à toutes celles d’un dossier, ce qui est choisi maintenant&#xa0;: effets, intensité, cadrage, bordure, taille, variation, qualité. Elles vont dans un dossier de votre choix, nommées d’après la photo et les effets&#xa0;; un fichier qui s’y trouve reste. &lt;i&gt;Annuler&lt;/i&gt; garde ce qui est enregistré, et une autre fois reprend à partir de là. Ce qui ne peut pas être enregistré est listé avec la raison. Dans un terminal, &lt;i&gt;lumora-render&lt;/i&gt; fait de même.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Keep with the photo&lt;/b&gt;: what the camera and others wrote into the photo (its date, the camera, a title, the caption, and also &lt;i&gt;where it was taken&lt;/i&gt;) goes into the saved file. &lt;i&gt;Everything but the place&lt;/i&gt; leaves out the coordinates, the names of city, country and location, and the camera maker&apos;s own notes, which may tell the place; &lt;i&gt;Nothing&lt;/i&gt; leaves out all. Preview pictures of the photo as it was are never kept. The choice is remembered.</source>
        <translation>&lt;b&gt;Fichier, Conserver avec la photo&lt;/b&gt;&#xa0;: ce que l’appareil et d’autres ont écrit dans la photo (sa date, l’appareil, un titre, la légende, et aussi &lt;i&gt;où elle a été prise&lt;/i&gt;) va dans le fichier enregistré. &lt;i&gt;Tout sauf le lieu&lt;/i&gt; laisse de côté les coordonnées, les noms de ville, de pays et de lieu, et les notes propres au fabricant de l’appareil, qui peuvent trahir le lieu&#xa0;; &lt;i&gt;Rien&lt;/i&gt; laisse tout de côté. Les aperçus de la photo telle qu’elle était ne sont jamais conservés. Le choix est mémorisé.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, JPEG quality&lt;/b&gt;: &lt;i&gt;Standard&lt;/i&gt; is small; &lt;i&gt;High&lt;/i&gt; and &lt;i&gt;Best&lt;/i&gt; keep finer detail, and the colour of each pixel, in larger files. How large is told before and after a photo is saved. The choice is remembered.</source>
        <translation>&lt;b&gt;Fichier, Qualité JPEG&lt;/b&gt;&#xa0;: &lt;i&gt;Standard&lt;/i&gt; est petit&#xa0;; &lt;i&gt;Haute&lt;/i&gt; et &lt;i&gt;Maximale&lt;/i&gt; gardent des détails plus fins, et la couleur de chaque pixel, dans des fichiers plus grands. La taille du fichier est dite avant et après l’enregistrement. Le choix est mémorisé.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Revenir en arrière</translation>
    </message>
    <message>
        <source>&lt;b&gt;Undo&lt;/b&gt; in the &lt;b&gt;Edit&lt;/b&gt; menu takes the last step back: a look, an option, a turn, a re-exposure or a flattening; &lt;b&gt;Redo&lt;/b&gt; takes it again. Flattened photos are kept for this as long as the memory has room for them. Another photo begins anew.</source>
        <translation>&lt;b&gt;Annuler&lt;/b&gt; dans le menu &lt;b&gt;Édition&lt;/b&gt; annule la dernière étape&#xa0;: un effet, une option, une rotation, une réexposition ou un aplatissement&#xa0;; &lt;b&gt;Rétablir&lt;/b&gt; la refait. Les photos aplaties sont gardées pour cela tant que la mémoire a de la place. Une autre photo recommence à zéro.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Hold the mouse button on the photo, or hold the space bar, to see it &lt;i&gt;before&lt;/i&gt;: without its looks, in the same crop and border. Let go to see the look again. &lt;b&gt;B&lt;/b&gt;, or &lt;b&gt;Photo, Before and after&lt;/b&gt;, shows both at once, before on the left: drag the line between them across the photo, or move it by the left and right arrow keys. Looks and options may change meanwhile. &lt;b&gt;B&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt; ends it.</source>
        <translation>Maintenez le bouton de la souris sur la photo, ou la barre d’espace, pour la voir &lt;i&gt;avant&lt;/i&gt;&#xa0;: sans ses effets, avec le même cadrage et la même bordure. Relâchez pour revoir l’effet. &lt;b&gt;B&lt;/b&gt;, ou &lt;b&gt;Photo, Avant et après&lt;/b&gt;, montre les deux à la fois, avant à gauche&#xa0;: glissez la ligne qui les sépare sur la photo, ou déplacez-la avec les flèches gauche et droite. Les effets et les options peuvent changer pendant ce temps. &lt;b&gt;B&lt;/b&gt; ou &lt;b&gt;Échap&lt;/b&gt; y met fin.</translation>
    </message>
    <message>
        <source>The space bar and the digits do the same wherever the focus is; only an open list has its own keys. A short tap on the space bar presses the look that has the focus.</source>
        <translation>La barre d’espace et les chiffres font la même chose où que soit le focus&#xa0;; seule une liste ouverte a ses propres touches. Une brève pression sur la barre d’espace presse l’effet qui a le focus.</translation>
    </message>
    <message>
        <source>As it will be saved</source>
        <translation>Telle qu’elle sera enregistrée</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+O&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+O&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open a photo</source>
        <translation>ouvrir une photo</translation>
    </message>
    <message>
        <source>&lt;b&gt;1&lt;/b&gt; to &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</source>
        <translation>&lt;b&gt;1&lt;/b&gt; à &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the first ten looks: Original is 1, Helga is 2</source>
        <translation>les dix premiers effets&#xa0;: Original est 1, Helga est 2</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt;, &lt;b&gt;Page Up&lt;/b&gt;</source>
        <translation>&lt;b&gt;Page suiv.&lt;/b&gt;, &lt;b&gt;Page préc.&lt;/b&gt;</translation>
    </message>
    <message>
        <source>next photo, previous photo</source>
        <translation>photo suivante, photo précédente</translation>
    </message>
    <message>
        <source>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</source>
        <translation>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</translation>
    </message>
    <message>
        <source>weaker, stronger looks</source>
        <translation>effets moins forts, plus forts</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Maj+S&lt;/b&gt;</translation>
    </message>
    <message>
        <source>save, save many</source>
        <translation>enregistrer, enregistrer plusieurs</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+E&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+E&lt;/b&gt;</translation>
    </message>
    <message>
        <source>re-expose</source>
        <translation>réexposer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+C&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+C&lt;/b&gt;</translation>
    </message>
    <message>
        <source>copy what would be saved</source>
        <translation>copier ce qui serait enregistré</translation>
    </message>
    <message>
        <source>&lt;b&gt;Space&lt;/b&gt; (hold)</source>
        <translation>&lt;b&gt;Espace&lt;/b&gt; (maintenir)</translation>
    </message>
    <message>
        <source>see the photo without its looks</source>
        <translation>voir la photo sans ses effets</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+V&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+V&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open what was copied</source>
        <translation>ouvrir ce qui a été copié</translation>
    </message>
    <message>
        <source>&lt;b&gt;B&lt;/b&gt;</source>
        <translation>&lt;b&gt;B&lt;/b&gt;</translation>
    </message>
    <message>
        <source>before and after, side by side</source>
        <translation>avant et après, côte à côte</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take the last step back</source>
        <translation>annuler la dernière étape</translation>
    </message>
    <message>
        <source>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</source>
        <translation>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Échap&lt;/b&gt;</translation>
    </message>
    <message>
        <source>see the photo at actual size; fit it again</source>
        <translation>voir la photo en taille réelle&#xa0;; la revoir entière</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Maj+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take it again</source>
        <translation>la rétablir</translation>
    </message>
    <message>
        <source>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</source>
        <translation>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</translation>
    </message>
    <message>
        <source>larger, smaller</source>
        <translation>plus grand, plus petit</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</translation>
    </message>
    <message>
        <source>turn left, turn right</source>
        <translation>pivoter à gauche, à droite</translation>
    </message>
    <message>
        <source>&lt;b&gt;F11&lt;/b&gt;</source>
        <translation>&lt;b&gt;F11&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the photo alone on the whole screen, and back</source>
        <translation>la photo seule en plein écran, et retour</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Maj+F&lt;/b&gt;</translation>
    </message>
    <message>
        <source>flatten</source>
        <translation>aplatir</translation>
    </message>
    <message>
        <source>&lt;b&gt;Tab&lt;/b&gt;, arrows, &lt;b&gt;Return&lt;/b&gt;</source>
        <translation>&lt;b&gt;Tab&lt;/b&gt;, flèches, &lt;b&gt;Entrée&lt;/b&gt;</translation>
    </message>
    <message>
        <source>go from control to control; press it</source>
        <translation>aller d’un élément à l’autre&#xa0;; le presser</translation>
    </message>
    <message>
        <source>&lt;b&gt;F1&lt;/b&gt;</source>
        <translation>&lt;b&gt;F1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>cette aide</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Q&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Q&lt;/b&gt;</translation>
    </message>
    <message>
        <source>quit; your choices are kept</source>
        <translation>quitter&#xa0;; vos choix sont gardés</translation>
    </message>
    <message>
        <source>The looks</source>
        <translation>Les effets</translation>
    </message>
    <message>
        <source>Each picture shows the look with its own crop and border.</source>
        <translation>Chaque image montre l’effet avec son propre cadrage et sa propre bordure.</translation>
    </message>
    <message>
        <source>Cool and muted with strong contrast; darker and richer towards the edges.</source>
        <translation>Froid et atténué, très contrasté&#xa0;; plus sombre et plus riche vers les bords.</translation>
    </message>
    <message>
        <source>square</source>
        <translation>carré</translation>
    </message>
    <message>
        <source>Strong colours and contrast, with warm light tones.</source>
        <translation>Couleurs et contrastes vifs, avec des tons clairs chauds.</translation>
    </message>
    <message>
        <source>thick white</source>
        <translation>épaisse, blanche</translation>
    </message>
    <message>
        <source>Bright lights, little colour and a dark blue tint, like a frame of a film.</source>
        <translation>Lumières vives, peu de couleur et une teinte bleu foncé, comme l’image d’un film.</translation>
    </message>
    <message>
        <source>16 to 9</source>
        <translation>16 sur 9</translation>
    </message>
    <message>
        <source>black bars</source>
        <translation>bandes noires</translation>
    </message>
    <message>
        <source>A contrasty black-and-white print of the sixties, with light skies.</source>
        <translation>Un tirage noir et blanc contrasté des années soixante, au ciel clair.</translation>
    </message>
    <message>
        <source>7 to 6</source>
        <translation>7 sur 6</translation>
    </message>
    <message>
        <source>A hard colour print under a brown wash that is strongest in the shadows.</source>
        <translation>Un tirage couleur dur sous un voile brun, plus fort dans les ombres.</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>arrondie</translation>
    </message>
    <message>
        <source>Black and white over the full range of greys; blue skies print dark.</source>
        <translation>Noir et blanc sur toute la gamme des gris&#xa0;; le ciel bleu devient sombre.</translation>
    </message>
    <message>
        <source>medium white</source>
        <translation>moyenne, blanche</translation>
    </message>
    <message>
        <source>Cross-processed film: hard reds and greens, flat blues.</source>
        <translation>Film en traitement croisé&#xa0;: rouges et verts durs, bleus plats.</translation>
    </message>
    <message>
        <source>An instant print: soft tones, brown shadows and dark corners.</source>
        <translation>Un tirage instantané&#xa0;: tons doux, ombres brunes et coins sombres.</translation>
    </message>
    <message>
        <source>an instant print</source>
        <translation>un tirage instantané</translation>
    </message>
    <message>
        <source>Warmed towards orange; darks darker, lights lighter, stronger colours.</source>
        <translation>Réchauffé vers l’orange&#xa0;; sombres plus sombres, clairs plus clairs, couleurs plus vives.</translation>
    </message>
    <message>
        <source>6 to 4</source>
        <translation>6 sur 4</translation>
    </message>
    <message>
        <source>thin white</source>
        <translation>fine, blanche</translation>
    </message>
    <message>
        <source>Infrared film: leaves turn bright, blue sky turns dark.</source>
        <translation>Film infrarouge&#xa0;: les feuilles deviennent claires, le ciel bleu sombre.</translation>
    </message>
    <message>
        <source>A lens that magnifies the middle and bends the rest outward.</source>
        <translation>Un objectif qui grossit le milieu et courbe le reste vers l’extérieur.</translation>
    </message>
    <message>
        <source>a black surround</source>
        <translation>un pourtour noir</translation>
    </message>
    <message>
        <source>A cheap camera that lets light in, at another place each time.</source>
        <translation>Un appareil bon marché qui laisse entrer la lumière, chaque fois ailleurs.</translation>
    </message>
    <message>
        <source>A cartoon: bands of brightness, strong colours, dark outlines.</source>
        <translation>Un dessin animé&#xa0;: paliers de lumière, couleurs vives, contours sombres.</translation>
    </message>
    <message>
        <source>Cold and bleached, with a blue cast.</source>
        <translation>Froid et délavé, avec une dominante bleue.</translation>
    </message>
    <message>
        <source>Over-exposed: light parts are pushed towards white.</source>
        <translation>Surexposé&#xa0;: les parties claires sont poussées vers le blanc.</translation>
    </message>
    <message>
        <source>DejaVu Sans</source>
        <comment>a font that has the letters of the language</comment>
        <translation>DejaVu Sans</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Z&lt;/b&gt;, or click the photo twice, to see it at actual size: pixel by pixel what &lt;b&gt;Save&lt;/b&gt; writes, in the chosen size. Soft and grainy looks differ from the small picture. Drag the photo, or press the arrow keys, to see other parts; hold it still, or the space bar, to see it &lt;i&gt;before&lt;/i&gt;. The wheel with Ctrl and the keys &lt;b&gt;+&lt;/b&gt; and &lt;b&gt;-&lt;/b&gt; go through 50, 100 and 200 %; &lt;b&gt;Esc&lt;/b&gt; shows all of it again. &lt;b&gt;F11&lt;/b&gt; leaves the photo alone on the whole screen, where the keys stay at work, until &lt;b&gt;F11&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt;. The right mouse button and the menu key open a menu on the photo. Where your desktop knows the colour profile of your screen, photos are shown in its colours; what is saved stays the same.</source>
        <translation>Appuyez sur &lt;b&gt;Z&lt;/b&gt;, ou cliquez deux fois sur la photo, pour la voir en taille réelle&#xa0;: pixel par pixel ce qu’écrit &lt;b&gt;Enregistrer&lt;/b&gt;, dans la taille choisie. Les effets doux et granuleux diffèrent de la petite image. Glissez la photo, ou utilisez les flèches, pour en voir d’autres parties&#xa0;; maintenez-la immobile, ou la barre d’espace, pour la voir &lt;i&gt;avant&lt;/i&gt;. La molette avec Ctrl et les touches &lt;b&gt;+&lt;/b&gt; et &lt;b&gt;-&lt;/b&gt; passent par 50, 100 et 200&#xa0;%&#xa0;; &lt;b&gt;Échap&lt;/b&gt; la montre de nouveau entière. &lt;b&gt;F11&lt;/b&gt; laisse la photo seule en plein écran, où les touches restent actives, jusqu’à &lt;b&gt;F11&lt;/b&gt; ou &lt;b&gt;Échap&lt;/b&gt;. Le bouton droit de la souris et la touche de menu ouvrent un menu sur la photo. Là où votre bureau connaît le profil de couleurs de votre écran, les photos sont montrées dans ses couleurs&#xa0;; ce qui est enregistré reste le même.</translation>
    </message>
</context>
<context>
    <name>LookButton</name>
    <message>
        <source>Applied as number %1</source>
        <translation>Appliqué en numéro %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Applied looks</source>
        <translation>Effets appliqués</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop reading the photo (Esc)</source>
        <translation>Arrêter la lecture de la photo (Échap)</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Drop a photo here. Hold to see the photo without its looks.</source>
        <translation>Déposez une photo ici. Maintenez pour voir la photo sans ses effets.</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open a photo (Ctrl+O)</source>
        <translation>Ouvrir une photo (Ctrl+O)</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Pivoter à gauche</translation>
    </message>
    <message>
        <source>Rotate left (Ctrl+L)</source>
        <translation>Pivoter à gauche (Ctrl+L)</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Pivoter à droite</translation>
    </message>
    <message>
        <source>Rotate right (Ctrl+R)</source>
        <translation>Pivoter à droite (Ctrl+R)</translation>
    </message>
    <message>
        <source>&amp;Border</source>
        <translation>&amp;Bordure</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Cadrage</translation>
    </message>
    <message>
        <source>S&amp;ize</source>
        <translation>&amp;Taille</translation>
    </message>
    <message>
        <source>Stren&amp;gth</source>
        <translation>I&amp;ntensité</translation>
    </message>
    <message>
        <source>How much of the looks is seen ([ and ])</source>
        <translation>La part visible des effets ([ et ])</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>&amp;Multiple looks</source>
        <translation>P&amp;lusieurs effets</translation>
    </message>
    <message>
        <source>Stack looks instead of replacing them</source>
        <translation>Empiler les effets au lieu de les remplacer</translation>
    </message>
    <message>
        <source>Ra&amp;ndomness</source>
        <translation>&amp;Hasard</translation>
    </message>
    <message>
        <source>Vary the looks slightly</source>
        <translation>Varier légèrement les effets</translation>
    </message>
    <message>
        <source>Re-e&amp;xpose</source>
        <translation>&amp;Réexposer</translation>
    </message>
    <message>
        <source>Draw a new variation (Ctrl+E)</source>
        <translation>Tirer une nouvelle variation (Ctrl+E)</translation>
    </message>
    <message>
        <source>Fla&amp;tten</source>
        <translation>Aplat&amp;ir</translation>
    </message>
    <message>
        <source>Bake the looks into the photo (Ctrl+Shift+F)</source>
        <translation>Intégrer les effets à la photo (Ctrl+Maj+F)</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>Enre&amp;gistrer…</translation>
    </message>
    <message>
        <source>Save as JPEG (Ctrl+S)</source>
        <translation>Enregistrer en JPEG (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Saved %1, %2 x %3, %4</source>
        <translation>%1 enregistré, %2 x %3, %4</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>&amp;Taille réelle</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Z&amp;oom arrière</translation>
    </message>
    <message>
        <source>The photo cannot be shown at its actual size.</source>
        <translation>La photo ne peut pas être montrée en taille réelle.</translation>
    </message>
    <message>
        <source>The preview cannot be shown.</source>
        <translation>L’aperçu ne peut pas être montré.</translation>
    </message>
    <message>
        <source>Multiple looks</source>
        <translation>Plusieurs effets</translation>
    </message>
    <message>
        <source>Randomness</source>
        <translation>Hasard</translation>
    </message>
    <message>
        <source>Re-expose</source>
        <translation>Réexposer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>The photo cannot be copied.</source>
        <translation>La photo ne peut pas être copiée.</translation>
    </message>
    <message>
        <source>Copied, %1 x %2</source>
        <translation>Copié, %1 x %2</translation>
    </message>
    <message>
        <source>The picture cannot be pasted.</source>
        <translation>L’image ne peut pas être collée.</translation>
    </message>
    <message>
        <source>The program that it was copied from does not give it.</source>
        <translation>Le programme d’où elle a été copiée ne la donne pas.</translation>
    </message>
    <message>
        <source>It has more pixels than a photo may have.</source>
        <translation>Elle a plus de pixels qu’une photo ne peut en avoir.</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>Image collée</translation>
    </message>
    <message>
        <source>&amp;Before and after</source>
        <translation>A&amp;vant et après</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Le reste du fichier manque.</translation>
    </message>
    <message>
        <source>Lumora - %1</source>
        <translation>Lumora - %1</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Pivoter à gauche</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Pivoter à droite</translation>
    </message>
    <message>
        <source>The photo cannot be flattened.</source>
        <translation>La photo ne peut pas être aplatie.</translation>
    </message>
    <message>
        <source>Flatten</source>
        <translation>Aplatir</translation>
    </message>
    <message>
        <source>The photo cannot be saved.</source>
        <translation>La photo ne peut pas être enregistrée.</translation>
    </message>
    <message>
        <source>Encode</source>
        <translation>Encodage</translation>
    </message>
    <message>
        <source>&amp;Whole screen</source>
        <translation>&amp;Plein écran</translation>
    </message>
    <message>
        <source>For the photo</source>
        <translation>Pour la photo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>Save &amp;Many…</source>
        <translation>Enregistrer &amp;plusieurs…</translation>
    </message>
    <message>
        <source>&amp;Keep with the photo</source>
        <translation>&amp;Conserver avec la photo</translation>
    </message>
    <message>
        <source>&amp;Everything it carried</source>
        <translation>&amp;Tout ce qu’elle contenait</translation>
    </message>
    <message>
        <source>Everything but the &amp;place</source>
        <translation>Tout sauf le &amp;lieu</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Rien</translation>
    </message>
    <message>
        <source>&amp;JPEG quality</source>
        <translation>Qualité &amp;JPEG</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>&amp;Haute</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>&amp;Maximale</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Photo</source>
        <translation>&amp;Photo</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>Pivoter à &amp;gauche</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>Pivoter à &amp;droite</translation>
    </message>
    <message>
        <source>&amp;Flatten</source>
        <translation>Aplat&amp;ir</translation>
    </message>
    <message>
        <source>R&amp;e-expose</source>
        <translation>&amp;Réexposer</translation>
    </message>
    <message>
        <source>&amp;Looks</source>
        <translation>&amp;Effets</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Lumora &amp;Help</source>
        <translation>&amp;Aide de Lumora</translation>
    </message>
    <message>
        <source>&amp;About Lumora</source>
        <translation>À &amp;propos de Lumora</translation>
    </message>
    <message>
        <source>All photos (%1)</source>
        <translation>Toutes les photos (%1)</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>Photos (%1)</translation>
    </message>
    <message>
        <source>Select a file to open</source>
        <translation>Choisissez un fichier à ouvrir</translation>
    </message>
    <message>
        <source>Select the photos</source>
        <translation>Choisissez les photos</translation>
    </message>
    <message>
        <source>Select a folder with photos</source>
        <translation>Choisissez un dossier de photos</translation>
    </message>
    <message>
        <source>Select the folder to save into</source>
        <translation>Choisissez le dossier où enregistrer</translation>
    </message>
    <message>
        <source>&amp;Next photo</source>
        <translation>Photo &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Previous photo</source>
        <translation>Photo pré&amp;cédente</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>This is the last photo.</source>
        <translation>C’est la dernière photo.</translation>
    </message>
    <message>
        <source>This is the first photo.</source>
        <translation>C’est la première photo.</translation>
    </message>
    <message>
        <source>&amp;Weaker</source>
        <translation>&amp;Moins fort</translation>
    </message>
    <message>
        <source>&amp;Stronger</source>
        <translation>&amp;Plus fort</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Stren&amp;gth %1 %</source>
        <translation>I&amp;ntensité %1&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
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
    <message>
        <source>The photo cannot be turned.</source>
        <translation>La photo ne peut pas être pivotée.</translation>
    </message>
    <message>
        <source>Lumora by Dovrel</source>
        <translation>Lumora par Dovrel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a look and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordure</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Cadrage</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>L’aide ne peut pas être affichée.</translation>
    </message>
    <message>
        <source>It stands at %1.</source>
        <translation>Elle se trouve dans %1.</translation>
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
        <translation>Décodage</translation>
    </message>
    <message>
        <source>%1 · Strength: %2 % · Crop: %3 · Border: %4 · Size: %5 · Quality: %6</source>
        <translation>%1 · Intensité&#xa0;: %2&#xa0;% · Cadrage&#xa0;: %3 · Bordure&#xa0;: %4 · Taille&#xa0;: %5 · Qualité&#xa0;: %6</translation>
    </message>
</context>
<context>
    <name>Reason</name>
    <message>
        <source>There is no permission to write there.</source>
        <translation>Vous n’avez pas le droit d’y écrire.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>The file is larger than may be written there.</source>
        <translation>Le fichier est plus grand que ce qui peut y être écrit.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Le dossier n’existe pas.</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>Le nom du fichier est trop long.</translation>
    </message>
    <message>
        <source>The link leads to itself.</source>
        <translation>Le lien mène à lui-même.</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>Il y a déjà un fichier de ce nom.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Il y a un dossier de ce nom.</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>Le fichier ne peut pas être écrit&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The animation is too large: %1 x %2 pixels.</source>
        <translation>L’animation est trop grande&#xa0;: %1 x %2 pixels.</translation>
    </message>
    <message>
        <source>The picture is of a kind that cannot be read: it has %1 channels of %2 bits.</source>
        <translation>L’image est d’un type qui ne peut pas être lu&#xa0;: elle a %1 canaux de %2 bits.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has parts of %1 x %2 pixels.</source>
        <translation>L’image est abîmée&#xa0;: elle a des parties de %1 x %2 pixels.</translation>
    </message>
    <message>
        <source>It is a HEIC or AVIF photo. This Lumora was built without libheif, which reads them.</source>
        <translation>C’est une photo HEIC ou AVIF. Ce Lumora a été construit sans libheif, qui les lit.</translation>
    </message>
    <message>
        <source>It is a JPEG XL photo. This Lumora was built without libjxl, which reads them.</source>
        <translation>C’est une photo JPEG XL. Ce Lumora a été construit sans libjxl, qui les lit.</translation>
    </message>
    <message>
        <source>It is a camera&apos;s raw photo. This Lumora was built without LibRaw, which reads them.</source>
        <translation>C’est la photo brute d’un appareil. Ce Lumora a été construit sans LibRaw, qui les lit.</translation>
    </message>
    <message>
        <source>There is not enough free memory for a picture of %1 x %2 pixels.</source>
        <translation>Il n’y a pas assez de mémoire libre pour une image de %1 x %2 pixels.</translation>
    </message>
    <message>
        <source>There is not enough free memory for the picture.</source>
        <translation>Il n’y a pas assez de mémoire libre pour l’image.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 x %2 pixels. At most %3 megapixels can be opened.</source>
        <translation>L’image est trop grande&#xa0;: %1 x %2 pixels. On peut ouvrir au plus %3 mégapixels.</translation>
    </message>
    <message>
        <source>The picture is damaged: the file is too small for %1 x %2 pixels.</source>
        <translation>L’image est abîmée&#xa0;: le fichier est trop petit pour %1 x %2 pixels.</translation>
    </message>
    <message>
        <source>The picture is damaged or of a kind that cannot be read.</source>
        <translation>L’image est abîmée ou d’un type qui ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The file is not a picture of a kind that can be read.</source>
        <translation>Le fichier n’est pas une image d’un type qui peut être lu.</translation>
    </message>
    <message>
        <source>The picture is of a kind that is not supported.</source>
        <translation>L’image est d’un type qui n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read.</source>
        <translation>L’image est abîmée et ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has too many parts.</source>
        <translation>L’image est abîmée&#xa0;: elle a trop de parties.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>Vous n’avez pas le droit de lire le fichier.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Le fichier ne peut pas être ouvert&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>It is a folder, not a picture.</source>
        <translation>C’est un dossier, pas une image.</translation>
    </message>
    <message>
        <source>It is not a file with a picture.</source>
        <translation>Ce n’est pas un fichier avec une image.</translation>
    </message>
    <message>
        <source>Reading it failed: the file is damaged, or made to do harm.</source>
        <translation>La lecture a échoué&#xa0;: le fichier est abîmé, ou fait pour nuire.</translation>
    </message>
    <message>
        <source>Reading it takes too long: the file is damaged, or made to do harm.</source>
        <translation>La lecture dure trop longtemps&#xa0;: le fichier est abîmé, ou fait pour nuire.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to other files, which no picture needs.</source>
        <translation>La lecture a été arrêtée&#xa0;: le fichier menait à d’autres fichiers, dont aucune image n’a besoin.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to the network, which no picture needs.</source>
        <translation>La lecture a été arrêtée&#xa0;: le fichier menait au réseau, dont aucune image n’a besoin.</translation>
    </message>
    <message>
        <source>Reading it was cancelled.</source>
        <translation>La lecture a été annulée.</translation>
    </message>
    <message>
        <source>The program that reads photos cannot be started. Lumora is not completely installed.</source>
        <translation>Le programme qui lit les photos ne peut pas être lancé. Lumora n’est pas complètement installé.</translation>
    </message>
    <message>
        <source>A JPEG cannot hold %1 x %2 pixels. Choose a smaller size.</source>
        <translation>Un JPEG ne peut pas contenir %1 x %2 pixels. Choisissez une taille plus petite.</translation>
    </message>
    <message>
        <source>The output would replace a photo that is to be rendered.</source>
        <translation>Le résultat remplacerait une photo qui doit être traitée.</translation>
    </message>
    <message>
        <source>The picture cannot be encoded.</source>
        <translation>L’image ne peut pas être encodée.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Le reste du fichier manque.</translation>
    </message>
    <message>
        <source>Another photo of this run has the same output.</source>
        <translation>Une autre photo de cette série a le même résultat.</translation>
    </message>
    <message>
        <source>Rendering it was ended from outside, as happens where the memory runs out.</source>
        <translation>Le traitement a été arrêté de l’extérieur, comme il arrive quand la mémoire manque.</translation>
    </message>
    <message>
        <source>Rendering it failed: the program broke down.</source>
        <translation>Le traitement a échoué&#xa0;: le programme s’est effondré.</translation>
    </message>
    <message>
        <source>No process can be started for it.</source>
        <translation>Aucun processus ne peut être lancé pour elle.</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Vider la liste</translation>
    </message>
</context>
<context>
    <name>RenderStep</name>
    <message>
        <source>Fit</source>
        <translation>Ajustement</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordure</translation>
    </message>
</context>
<context>
    <name>SaveManyPanel</name>
    <message>
        <source>No folder chosen</source>
        <translation>Aucun dossier choisi</translation>
    </message>
    <message>
        <source>Choose &amp;Photos…</source>
        <translation>Choisir des &amp;photos…</translation>
    </message>
    <message>
        <source>Choose a &amp;Folder…</source>
        <translation>Choisir un &amp;dossier…</translation>
    </message>
    <message>
        <source>Save &amp;Into…</source>
        <translation>Enregistrer d&amp;ans…</translation>
    </message>
    <message>
        <source>&amp;Save Them</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save Many</source>
        <translation>Enregistrer plusieurs</translation>
    </message>
    <message>
        <source>The photo saved last</source>
        <translation>La dernière photo enregistrée</translation>
    </message>
    <message>
        <source>Photos done</source>
        <translation>Photos terminées</translation>
    </message>
    <message>
        <source>Photos that were not saved, or are damaged</source>
        <translation>Photos qui n’ont pas été enregistrées ou sont abîmées</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>Dans</translation>
    </message>
    <message>
        <source>No photos chosen</source>
        <translation>Aucune photo choisie</translation>
    </message>
    <message numerus="yes">
        <source>%1 and others: %Ln photos</source>
        <translation>
            <numerusform>%1 et d’autres&#xa0;: %Ln photo</numerusform>
            <numerusform>%1 et d’autres&#xa0;: %Ln photos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>Temps restant&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The program that renders photos cannot be started. Lumora is not completely installed.</source>
        <translation>Le programme qui traite les photos ne peut pas être lancé. Lumora n’est pas complètement installé.</translation>
    </message>
    <message>
        <source>Cancelled. What was saved stays.</source>
        <translation>Annulé. Ce qui a été enregistré reste.</translation>
    </message>
    <message>
        <source>It ended before all photos were done.</source>
        <translation>Il s’est arrêté avant que toutes les photos soient traitées.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistrées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Already there: %1</source>
        <translation>Déjà présentes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Non enregistrées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Choix</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Save as JPEG</source>
        <translation>Enregistrer en JPEG</translation>
    </message>
    <message>
        <source>JPEG, whatever the ending: %1</source>
        <translation>JPEG, quelle que soit l’extension&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be saved there. %2</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas y être enregistré. %2</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>This is the photo that you opened. Replacing it cannot be undone.</source>
        <translation>C’est la photo que vous avez ouverte. Son remplacement ne peut pas être annulé.</translation>
    </message>
    <message>
        <source>Keep both saves “%1” beside it.</source>
        <translation>Garder les deux enregistre «&#xa0;%1&#xa0;» à côté.</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Garder les deux</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>SplitLine</name>
    <message>
        <source>Drag it across the photo. Esc ends the comparison.</source>
        <translation>Glissez-la sur la photo. Échap met fin à la comparaison.</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>Ligne entre avant et après</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Desktop</name>
    <message>
        <source>Photo Looks</source>
        <translation>Efectos fotográficos</translation>
    </message>
    <message>
        <source>Give a photo a look and save it</source>
        <translation>Dar un efecto a una foto y guardarla</translation>
    </message>
    <message>
        <source>Lumora shows one photo large and, beside it, what it would be under each of its looks: cool and muted, warm and faded, black and white, like an instant print or a frame of a film. One press applies a look; with multiple looks switched on, they stack in the order in which they were chosen.</source>
        <translation>Lumora muestra una foto en grande y, al lado, cómo sería con cada uno de sus efectos: fría y apagada, cálida y desvaída, en blanco y negro, como una copia instantánea o un fotograma de cine. Una pulsación aplica un efecto; con varios efectos activados, se apilan en el orden en que se eligieron.</translation>
    </message>
    <message>
        <source>What it does:</source>
        <translation>Lo que hace:</translation>
    </message>
    <message>
        <source>looks from instant prints to infrared film, many of which can be varied at random</source>
        <translation>efectos que van de la copia instantánea a la película infrarroja, muchos de los cuales pueden variar al azar</translation>
    </message>
    <message>
        <source>crops and borders that come with a look or are chosen by hand</source>
        <translation>recortes y bordes propios de un efecto o elegidos a mano</translation>
    </message>
    <message>
        <source>quarter turns, looks made permanent, and JPEG files in the size that is wanted</source>
        <translation>giros de un cuarto de vuelta, efectos permanentes y archivos JPEG del tamaño deseado</translation>
    </message>
    <message>
        <source>opens JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos, upright and in their right colours</source>
        <translation>abre fotos JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD y en bruto de las cámaras, derechas y con sus colores correctos</translation>
    </message>
    <message>
        <source>works by mouse, by keyboard and with a screen reader</source>
        <translation>se maneja con el ratón, con el teclado y con un lector de pantalla</translation>
    </message>
    <message>
        <source>A photo under the look Mono, above the strip of looks</source>
        <translation>Una foto con el efecto Mono, sobre la fila de efectos</translation>
    </message>
    <message>
        <source>The photo before and after the look 1974, on either side of a line</source>
        <translation>La foto antes y después del efecto 1974, a ambos lados de una línea</translation>
    </message>
    <message>
        <source>Give a photo a look, a crop and a border, and save it</source>
        <translation>Dar a una foto un efecto, un recorte y un borde, y guardarla</translation>
    </message>
    <message>
        <source>photo;picture;look;filter;effect;border;crop;instant;retro;</source>
        <translation>foto;imagen;look;filtro;efecto;borde;recorte;instantánea;retro;</translation>
    </message>
    <message>
        <source>Compare, look closely, and save many photos at once:</source>
        <translation>Comparar, mirar de cerca y guardar muchas fotos a la vez:</translation>
    </message>
    <message>
        <source>the photo beside what it was, on either side of a line</source>
        <translation>la foto junto a lo que era, a cada lado de una línea</translation>
    </message>
    <message>
        <source>every pixel as it will be saved, at 50, 100 or 200 %</source>
        <translation>cada píxel tal como se guardará, al 50, 100 o 200 %</translation>
    </message>
    <message>
        <source>many photos or a whole folder under the looks that are chosen</source>
        <translation>muchas fotos o una carpeta entera con los efectos elegidos</translation>
    </message>
    <message>
        <source>photos through the clipboard, and dragged out of the window</source>
        <translation>fotos por el portapapeles y arrastradas fuera de la ventana</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>La primera versión.</translation>
    </message>
    <message>
        <source>give many photos the same looks</source>
        <translation>dar los mismos efectos a muchas fotos</translation>
    </message>
    <message>
        <source>give one photo a look</source>
        <translation>dar un efecto a una foto</translation>
    </message>
</context>
<context>
    <name>DragDropImageView</name>
    <message>
        <source>Before: the photo without its looks, in its crop and border.</source>
        <translation>Antes: la foto sin sus efectos, con su recorte y su borde.</translation>
    </message>
    <message>
        <source>The photo as it will be saved, at %1 %. Drag it or press the arrow keys to see other parts of it.</source>
        <translation>La foto tal como se guardará, al %1 %. Arrástrala o pulsa las flechas para ver otras partes.</translation>
    </message>
    <message>
        <source>Before on the left, after on the right of a line that the arrow keys move.</source>
        <translation>Antes a la izquierda, después a la derecha de una línea que mueven las flechas.</translation>
    </message>
    <message>
        <source>The photo under the applied looks. Hold the mouse or the space bar to see it before.</source>
        <translation>La foto con los efectos aplicados. Mantén pulsado el ratón o la barra espaciadora para verla antes.</translation>
    </message>
    <message>
        <source>Drop a photo here, or open one.</source>
        <translation>Suelta una foto aquí o abre una.</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
</context>
<context>
    <name>FramingChoice</name>
    <message>
        <source>By Filter</source>
        <translation>Del efecto</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Fino</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Thick</source>
        <translation>Grueso</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Redondo</translation>
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
        <translation>ninguno</translation>
    </message>
    <message>
        <source>all others</source>
        <translation>todos los demás</translation>
    </message>
    <message>
        <source>Lumora Help</source>
        <translation>Ayuda de Lumora</translation>
    </message>
    <message>
        <source>Lumora</source>
        <translation>Lumora</translation>
    </message>
    <message>
        <source>Lumora gives one photo a look, a crop and a border, and saves the result as a JPEG file. The photo on your disk is never changed: what you see is a picture made from it, and it is written only where you say.</source>
        <translation>Lumora da a una foto un efecto, un recorte y un borde, y guarda el resultado como archivo JPEG. La foto de tu disco no cambia nunca: lo que ves es una imagen hecha a partir de ella, y solo se escribe donde tú dices.</translation>
    </message>
    <message>
        <source>A photo comes in</source>
        <translation>Llega una foto</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Open&lt;/b&gt;, drop a file on the large picture, or open a photo with Lumora from your file manager. JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos open, and whatever else your desktop can decode. A photo that replaces another takes over the looks that are switched on. A file that is not a photo is refused, and the photo before it stays.</source>
        <translation>Pulsa &lt;b&gt;Abrir&lt;/b&gt;, suelta un archivo sobre la imagen grande o abre una foto con Lumora desde el gestor de archivos. Se abren fotos JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD y fotos en bruto de las cámaras, y todo lo demás que tu escritorio sepa descodificar. Una foto que sustituye a otra toma los efectos que están activados. Un archivo que no es una foto se rechaza, y queda la foto anterior.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt; and &lt;b&gt;Page Up&lt;/b&gt; go to the next and the previous photo of the folder, in the order of their names, and the looks stay on; what is no photo is passed over. Where several files were opened with Lumora at once, the keys go through those. &lt;b&gt;File, Open recent&lt;/b&gt; has the eight photos that were opened last.</source>
        <translation>&lt;b&gt;Av Pág&lt;/b&gt; y &lt;b&gt;Re Pág&lt;/b&gt; van a la foto siguiente y a la anterior de la carpeta, en el orden de sus nombres, y los efectos se mantienen; lo que no es una foto se pasa por alto. Si se abrieron varios archivos a la vez con Lumora, las teclas recorren esos. &lt;b&gt;Archivo, Abrir reciente&lt;/b&gt; tiene las ocho últimas fotos abiertas.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Edit, Paste&lt;/b&gt; opens a picture that another program copied, or a copied file. &lt;b&gt;Edit, Copy&lt;/b&gt; puts the photo as it would be saved on the clipboard; and the photo can be dragged out of Lumora, as a file or as a picture: press on it and move.</source>
        <translation>&lt;b&gt;Editar, Pegar&lt;/b&gt; abre una imagen que copió otro programa, o un archivo copiado. &lt;b&gt;Editar, Copiar&lt;/b&gt; pone en el portapapeles la foto tal como se guardaría; y la foto se puede arrastrar fuera de Lumora, como archivo o como imagen: pulsa sobre ella y mueve.</translation>
    </message>
    <message>
        <source>Looks, one or several</source>
        <translation>Un efecto o varios</translation>
    </message>
    <message>
        <source>Each button shows your photo under its look; press it to apply the look, and press it again to take it off. &lt;b&gt;Original&lt;/b&gt; takes all looks off. Where the window is narrow the row of looks scrolls: by the wheel over it, by its bar, or by the arrow keys.</source>
        <translation>Cada botón muestra tu foto con su efecto; púlsalo para aplicarlo y púlsalo otra vez para quitarlo. &lt;b&gt;Original&lt;/b&gt; quita todos los efectos. Si la ventana es estrecha, la fila de efectos se desplaza: con la rueda sobre ella, con su barra o con las flechas.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Multiple looks&lt;/b&gt; switched on, looks stack in the order in which you press them. The line above the photo shows the chain, for example &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Pressing a look of the chain takes it out and leaves the others in order, and the buttons carry their numbers. Switching back to one look keeps the one that came last.</source>
        <translation>Con &lt;b&gt;Varios efectos&lt;/b&gt; activado, los efectos se apilan en el orden en que los pulsas. La línea sobre la foto muestra la cadena, por ejemplo &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Pulsar un efecto de la cadena lo saca y deja los demás en orden, y los botones llevan sus números. Al volver a un solo efecto queda el último.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Strength&lt;/b&gt; takes the looks back in part: at 0 the photo shows as it came, in its crop and border. The thumbnails, and every new look or chain, have the whole strength.</source>
        <translation>&lt;b&gt;Intensidad&lt;/b&gt; retira en parte los efectos: con 0 la foto se ve como llegó, con su recorte y su borde. Las miniaturas, y cada efecto o cadena nuevos, tienen toda la intensidad.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Randomness&lt;/b&gt; switched on, many looks vary a little, the same way until you press &lt;b&gt;Re-expose&lt;/b&gt;, which draws a new variation. Randomness is off whenever Lumora starts.</source>
        <translation>Con &lt;b&gt;Azar&lt;/b&gt; activado, muchos efectos varían un poco, siempre igual hasta que pulsas &lt;b&gt;Reexponer&lt;/b&gt;, que saca una variación nueva. Azar está desactivado cada vez que se inicia Lumora.</translation>
    </message>
    <message>
        <source>Crop and border</source>
        <translation>Recorte y borde</translation>
    </message>
    <message>
        <source>&lt;b&gt;By Filter&lt;/b&gt; takes the crop and the border that belong to the look that you added last:</source>
        <translation>&lt;b&gt;Del efecto&lt;/b&gt; toma el recorte y el borde que pertenecen al último efecto añadido:</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Efecto</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recorte</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borde</translation>
    </message>
    <message>
        <source>The other entries choose a crop or a border whatever the look; &lt;b&gt;None&lt;/b&gt; switches it off. A border is put round the photo and hides nothing of it. 6x4, 4x3 and 7x6 turn with a portrait photo; Cinema stays a wide strip.</source>
        <translation>Las demás opciones eligen un recorte o un borde sea cual sea el efecto; &lt;b&gt;Ninguno&lt;/b&gt; lo quita. Un borde rodea la foto y no oculta nada de ella. 6x4, 4x3 y 7x6 giran con una foto vertical; Cinema sigue siendo una franja ancha.</translation>
    </message>
    <message>
        <source>Turn, flatten, save</source>
        <translation>Girar, acoplar, guardar</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rotate&lt;/b&gt; turns the photo by a quarter; the looks stay.</source>
        <translation>&lt;b&gt;Girar&lt;/b&gt; gira la foto un cuarto de vuelta; los efectos se mantienen.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Flatten&lt;/b&gt; makes the looks, the crop and the border part of the photo, so that further looks start from there.</source>
        <translation>&lt;b&gt;Acoplar&lt;/b&gt; hace de los efectos, el recorte y el borde una parte de la foto, de modo que otros efectos parten de ahí.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Size&lt;/b&gt; is the longer side of the saved picture in pixels. A smaller picture is enlarged to it; &lt;i&gt;Original&lt;/i&gt; keeps what the photo has.</source>
        <translation>&lt;b&gt;Tamaño&lt;/b&gt; es el lado más largo de la imagen guardada, en píxeles. Una imagen más pequeña se amplía hasta él; &lt;i&gt;Original&lt;/i&gt; mantiene lo que tiene la foto.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Save&lt;/b&gt; writes a JPEG file, whatever the ending of its name; an ending that is not in the list gets &lt;i&gt;.jpg&lt;/i&gt;. The photo that you opened is replaced only if you say so: &lt;i&gt;Keep both&lt;/i&gt; saves beside it. If a save fails, the file that stood there stays as it was.</source>
        <translation>&lt;b&gt;Guardar&lt;/b&gt; escribe un archivo JPEG, sea cual sea la terminación de su nombre; una terminación que no está en la lista recibe &lt;i&gt;.jpg&lt;/i&gt;. La foto que abriste solo se reemplaza si tú lo dices: &lt;i&gt;Conservar ambas&lt;/i&gt; guarda al lado. Si falla al guardar, el archivo que estaba ahí queda como estaba.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Save Many&lt;/b&gt; (Ctrl+Shift+S) gives many photos, or all of a folder, what is chosen now: looks, strength, crop, border, size, variation, quality. They go into a folder of your choice, named after photo and looks; a file that stands there stays. &lt;i&gt;Cancel&lt;/i&gt; keeps what is saved, and another time goes on from there. What cannot be saved is listed with its reason. In a terminal &lt;i&gt;lumora-render&lt;/i&gt; does the same.</source>
        <translation>&lt;b&gt;Archivo, Guardar varias&lt;/b&gt; (Ctrl+Mayús+S) da a muchas fotos, o a todas las de una carpeta, lo que está elegido ahora: efectos, intensidad, recorte, borde, tamaño, variación, calidad. Van a una carpeta que eliges, con nombres de la foto y los efectos; un archivo que ya está ahí se queda. &lt;i&gt;Cancelar&lt;/i&gt; conserva lo guardado, y otra vez se sigue desde ahí. Lo que no se puede guardar se enumera con su motivo. En una terminal, &lt;i&gt;lumora-render&lt;/i&gt; hace lo mismo.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Keep with the photo&lt;/b&gt;: what the camera and others wrote into the photo (its date, the camera, a title, the caption, and also &lt;i&gt;where it was taken&lt;/i&gt;) goes into the saved file. &lt;i&gt;Everything but the place&lt;/i&gt; leaves out the coordinates, the names of city, country and location, and the camera maker&apos;s own notes, which may tell the place; &lt;i&gt;Nothing&lt;/i&gt; leaves out all. Preview pictures of the photo as it was are never kept. The choice is remembered.</source>
        <translation>&lt;b&gt;Archivo, Conservar con la foto&lt;/b&gt;: lo que la cámara y otros escribieron en la foto (su fecha, la cámara, un título, la descripción y también &lt;i&gt;dónde se hizo&lt;/i&gt;) va al archivo guardado. &lt;i&gt;Todo salvo el lugar&lt;/i&gt; deja fuera las coordenadas, los nombres de ciudad, país y lugar, y las notas propias del fabricante de la cámara, que pueden revelar el lugar; &lt;i&gt;Nada&lt;/i&gt; lo deja todo fuera. Las vistas previas de la foto tal como era no se conservan nunca. La elección se recuerda.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, JPEG quality&lt;/b&gt;: &lt;i&gt;Standard&lt;/i&gt; is small; &lt;i&gt;High&lt;/i&gt; and &lt;i&gt;Best&lt;/i&gt; keep finer detail, and the colour of each pixel, in larger files. How large is told before and after a photo is saved. The choice is remembered.</source>
        <translation>&lt;b&gt;Archivo, Calidad JPEG&lt;/b&gt;: &lt;i&gt;Estándar&lt;/i&gt; es pequeña; &lt;i&gt;Alta&lt;/i&gt; y &lt;i&gt;Máxima&lt;/i&gt; conservan detalles más finos, y el color de cada píxel, en archivos más grandes. Su longitud se dice antes y después de guardar. La elección se recuerda.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Volver atrás</translation>
    </message>
    <message>
        <source>&lt;b&gt;Undo&lt;/b&gt; in the &lt;b&gt;Edit&lt;/b&gt; menu takes the last step back: a look, an option, a turn, a re-exposure or a flattening; &lt;b&gt;Redo&lt;/b&gt; takes it again. Flattened photos are kept for this as long as the memory has room for them. Another photo begins anew.</source>
        <translation>&lt;b&gt;Deshacer&lt;/b&gt;, en el menú &lt;b&gt;Editar&lt;/b&gt;, deshace el último paso: un efecto, una opción, un giro, una reexposición o un acoplamiento; &lt;b&gt;Rehacer&lt;/b&gt; lo vuelve a hacer. Las fotos acopladas se guardan para esto mientras la memoria tenga sitio. Otra foto empieza de nuevo.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Hold the mouse button on the photo, or hold the space bar, to see it &lt;i&gt;before&lt;/i&gt;: without its looks, in the same crop and border. Let go to see the look again. &lt;b&gt;B&lt;/b&gt;, or &lt;b&gt;Photo, Before and after&lt;/b&gt;, shows both at once, before on the left: drag the line between them across the photo, or move it by the left and right arrow keys. Looks and options may change meanwhile. &lt;b&gt;B&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt; ends it.</source>
        <translation>Mantén pulsado el botón del ratón sobre la foto, o la barra espaciadora, para verla &lt;i&gt;antes&lt;/i&gt;: sin sus efectos, con el mismo recorte y borde. Suelta para ver otra vez el efecto. &lt;b&gt;B&lt;/b&gt;, o &lt;b&gt;Foto, Antes y después&lt;/b&gt;, muestra ambas a la vez, antes a la izquierda: arrastra la línea entre ellas por la foto o muévela con las flechas izquierda y derecha. Los efectos y las opciones pueden cambiar mientras tanto. &lt;b&gt;B&lt;/b&gt; o &lt;b&gt;Esc&lt;/b&gt; lo termina.</translation>
    </message>
    <message>
        <source>The space bar and the digits do the same wherever the focus is; only an open list has its own keys. A short tap on the space bar presses the look that has the focus.</source>
        <translation>La barra espaciadora y las cifras hacen lo mismo esté donde esté el foco; solo una lista abierta tiene sus propias teclas. Un toque breve en la barra espaciadora pulsa el efecto que tiene el foco.</translation>
    </message>
    <message>
        <source>As it will be saved</source>
        <translation>Tal como se guardará</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+O&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+O&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open a photo</source>
        <translation>abrir una foto</translation>
    </message>
    <message>
        <source>&lt;b&gt;1&lt;/b&gt; to &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</source>
        <translation>&lt;b&gt;1&lt;/b&gt; a &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the first ten looks: Original is 1, Helga is 2</source>
        <translation>los diez primeros efectos: Original es 1, Helga es 2</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt;, &lt;b&gt;Page Up&lt;/b&gt;</source>
        <translation>&lt;b&gt;Av Pág&lt;/b&gt;, &lt;b&gt;Re Pág&lt;/b&gt;</translation>
    </message>
    <message>
        <source>next photo, previous photo</source>
        <translation>foto siguiente, foto anterior</translation>
    </message>
    <message>
        <source>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</source>
        <translation>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</translation>
    </message>
    <message>
        <source>weaker, stronger looks</source>
        <translation>efectos más débiles, más fuertes</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Mayús+S&lt;/b&gt;</translation>
    </message>
    <message>
        <source>save, save many</source>
        <translation>guardar, guardar varias</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+E&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+E&lt;/b&gt;</translation>
    </message>
    <message>
        <source>re-expose</source>
        <translation>reexponer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+C&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+C&lt;/b&gt;</translation>
    </message>
    <message>
        <source>copy what would be saved</source>
        <translation>copiar lo que se guardaría</translation>
    </message>
    <message>
        <source>&lt;b&gt;Space&lt;/b&gt; (hold)</source>
        <translation>&lt;b&gt;Espacio&lt;/b&gt; (mantener)</translation>
    </message>
    <message>
        <source>see the photo without its looks</source>
        <translation>ver la foto sin sus efectos</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+V&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+V&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open what was copied</source>
        <translation>abrir lo que se copió</translation>
    </message>
    <message>
        <source>&lt;b&gt;B&lt;/b&gt;</source>
        <translation>&lt;b&gt;B&lt;/b&gt;</translation>
    </message>
    <message>
        <source>before and after, side by side</source>
        <translation>antes y después, lado a lado</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take the last step back</source>
        <translation>deshacer el último paso</translation>
    </message>
    <message>
        <source>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</source>
        <translation>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</translation>
    </message>
    <message>
        <source>see the photo at actual size; fit it again</source>
        <translation>ver la foto a tamaño real; verla entera</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Mayús+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take it again</source>
        <translation>rehacerlo</translation>
    </message>
    <message>
        <source>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</source>
        <translation>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</translation>
    </message>
    <message>
        <source>larger, smaller</source>
        <translation>más grande, más pequeña</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</translation>
    </message>
    <message>
        <source>turn left, turn right</source>
        <translation>girar a la izquierda, a la derecha</translation>
    </message>
    <message>
        <source>&lt;b&gt;F11&lt;/b&gt;</source>
        <translation>&lt;b&gt;F11&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the photo alone on the whole screen, and back</source>
        <translation>la foto sola en toda la pantalla, y vuelta</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Mayús+F&lt;/b&gt;</translation>
    </message>
    <message>
        <source>flatten</source>
        <translation>acoplar</translation>
    </message>
    <message>
        <source>&lt;b&gt;Tab&lt;/b&gt;, arrows, &lt;b&gt;Return&lt;/b&gt;</source>
        <translation>&lt;b&gt;Tab&lt;/b&gt;, flechas, &lt;b&gt;Intro&lt;/b&gt;</translation>
    </message>
    <message>
        <source>go from control to control; press it</source>
        <translation>ir de un control a otro; pulsarlo</translation>
    </message>
    <message>
        <source>&lt;b&gt;F1&lt;/b&gt;</source>
        <translation>&lt;b&gt;F1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>esta ayuda</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Q&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Q&lt;/b&gt;</translation>
    </message>
    <message>
        <source>quit; your choices are kept</source>
        <translation>salir; tus elecciones se conservan</translation>
    </message>
    <message>
        <source>The looks</source>
        <translation>Los efectos</translation>
    </message>
    <message>
        <source>Each picture shows the look with its own crop and border.</source>
        <translation>Cada imagen muestra el efecto con su propio recorte y borde.</translation>
    </message>
    <message>
        <source>Cool and muted with strong contrast; darker and richer towards the edges.</source>
        <translation>Frío y apagado, con mucho contraste; más oscuro e intenso hacia los bordes.</translation>
    </message>
    <message>
        <source>square</source>
        <translation>cuadrado</translation>
    </message>
    <message>
        <source>Strong colours and contrast, with warm light tones.</source>
        <translation>Colores y contraste fuertes, con tonos claros cálidos.</translation>
    </message>
    <message>
        <source>thick white</source>
        <translation>grueso, blanco</translation>
    </message>
    <message>
        <source>Bright lights, little colour and a dark blue tint, like a frame of a film.</source>
        <translation>Luces vivas, poco color y un tinte azul oscuro, como un fotograma de cine.</translation>
    </message>
    <message>
        <source>16 to 9</source>
        <translation>16 a 9</translation>
    </message>
    <message>
        <source>black bars</source>
        <translation>franjas negras</translation>
    </message>
    <message>
        <source>A contrasty black-and-white print of the sixties, with light skies.</source>
        <translation>Una copia en blanco y negro de los sesenta, contrastada y de cielos claros.</translation>
    </message>
    <message>
        <source>7 to 6</source>
        <translation>7 a 6</translation>
    </message>
    <message>
        <source>A hard colour print under a brown wash that is strongest in the shadows.</source>
        <translation>Una copia en color dura bajo un velo marrón, más fuerte en las sombras.</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>redondo</translation>
    </message>
    <message>
        <source>Black and white over the full range of greys; blue skies print dark.</source>
        <translation>Blanco y negro en toda la gama de grises; el cielo azul sale oscuro.</translation>
    </message>
    <message>
        <source>medium white</source>
        <translation>medio, blanco</translation>
    </message>
    <message>
        <source>Cross-processed film: hard reds and greens, flat blues.</source>
        <translation>Película de proceso cruzado: rojos y verdes duros, azules planos.</translation>
    </message>
    <message>
        <source>An instant print: soft tones, brown shadows and dark corners.</source>
        <translation>Una copia instantánea: tonos suaves, sombras marrones y esquinas oscuras.</translation>
    </message>
    <message>
        <source>an instant print</source>
        <translation>una copia instantánea</translation>
    </message>
    <message>
        <source>Warmed towards orange; darks darker, lights lighter, stronger colours.</source>
        <translation>Cálido hacia el naranja; lo oscuro más oscuro, lo claro más claro, colores más fuertes.</translation>
    </message>
    <message>
        <source>6 to 4</source>
        <translation>6 a 4</translation>
    </message>
    <message>
        <source>thin white</source>
        <translation>fino, blanco</translation>
    </message>
    <message>
        <source>Infrared film: leaves turn bright, blue sky turns dark.</source>
        <translation>Película infrarroja: las hojas se aclaran, el cielo azul se oscurece.</translation>
    </message>
    <message>
        <source>A lens that magnifies the middle and bends the rest outward.</source>
        <translation>Un objetivo que amplía el centro y curva el resto hacia fuera.</translation>
    </message>
    <message>
        <source>a black surround</source>
        <translation>rodeado de negro</translation>
    </message>
    <message>
        <source>A cheap camera that lets light in, at another place each time.</source>
        <translation>Una cámara barata que deja entrar luz, cada vez por otro sitio.</translation>
    </message>
    <message>
        <source>A cartoon: bands of brightness, strong colours, dark outlines.</source>
        <translation>Un dibujo animado: franjas de luz, colores fuertes, contornos oscuros.</translation>
    </message>
    <message>
        <source>Cold and bleached, with a blue cast.</source>
        <translation>Frío y desteñido, con un tono azul.</translation>
    </message>
    <message>
        <source>Over-exposed: light parts are pushed towards white.</source>
        <translation>Sobreexpuesto: las partes claras tienden al blanco.</translation>
    </message>
    <message>
        <source>DejaVu Sans</source>
        <comment>a font that has the letters of the language</comment>
        <translation>DejaVu Sans</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Z&lt;/b&gt;, or click the photo twice, to see it at actual size: pixel by pixel what &lt;b&gt;Save&lt;/b&gt; writes, in the chosen size. Soft and grainy looks differ from the small picture. Drag the photo, or press the arrow keys, to see other parts; hold it still, or the space bar, to see it &lt;i&gt;before&lt;/i&gt;. The wheel with Ctrl and the keys &lt;b&gt;+&lt;/b&gt; and &lt;b&gt;-&lt;/b&gt; go through 50, 100 and 200 %; &lt;b&gt;Esc&lt;/b&gt; shows all of it again. &lt;b&gt;F11&lt;/b&gt; leaves the photo alone on the whole screen, where the keys stay at work, until &lt;b&gt;F11&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt;. The right mouse button and the menu key open a menu on the photo. Where your desktop knows the colour profile of your screen, photos are shown in its colours; what is saved stays the same.</source>
        <translation>Pulsa &lt;b&gt;Z&lt;/b&gt;, o haz clic dos veces en la foto, para verla a tamaño real: píxel a píxel lo que escribe &lt;b&gt;Guardar&lt;/b&gt;, en el tamaño elegido. Los efectos suaves y granulados se ven distintos que en la imagen pequeña. Arrastra la foto, o pulsa las flechas, para ver otras partes; mantenla quieta, o la barra espaciadora, para verla &lt;i&gt;antes&lt;/i&gt;. La rueda con Ctrl y las teclas &lt;b&gt;+&lt;/b&gt; y &lt;b&gt;-&lt;/b&gt; pasan por 50, 100 y 200 %; &lt;b&gt;Esc&lt;/b&gt; la muestra otra vez entera. &lt;b&gt;F11&lt;/b&gt; deja la foto sola en toda la pantalla, donde las teclas siguen funcionando, hasta &lt;b&gt;F11&lt;/b&gt; o &lt;b&gt;Esc&lt;/b&gt;. El botón derecho del ratón y la tecla de menú abren un menú sobre la foto. Donde tu escritorio conoce el perfil de color de tu pantalla, las fotos se muestran en sus colores; lo que se guarda no cambia.</translation>
    </message>
</context>
<context>
    <name>LookButton</name>
    <message>
        <source>Applied as number %1</source>
        <translation>Aplicado con el número %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Applied looks</source>
        <translation>Efectos aplicados</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop reading the photo (Esc)</source>
        <translation>Dejar de leer la foto (Esc)</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Drop a photo here. Hold to see the photo without its looks.</source>
        <translation>Suelta una foto aquí. Mantén pulsado para ver la foto sin sus efectos.</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>Open a photo (Ctrl+O)</source>
        <translation>Abrir una foto (Ctrl+O)</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message>
        <source>Rotate left (Ctrl+L)</source>
        <translation>Girar a la izquierda (Ctrl+L)</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>Rotate right (Ctrl+R)</source>
        <translation>Girar a la derecha (Ctrl+R)</translation>
    </message>
    <message>
        <source>&amp;Border</source>
        <translation>Bor&amp;de</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Recorte</translation>
    </message>
    <message>
        <source>S&amp;ize</source>
        <translation>&amp;Tamaño</translation>
    </message>
    <message>
        <source>Stren&amp;gth</source>
        <translation>&amp;Intensidad</translation>
    </message>
    <message>
        <source>How much of the looks is seen ([ and ])</source>
        <translation>Cuánto se ve de los efectos ([ y ])</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>&amp;Multiple looks</source>
        <translation>&amp;Varios efectos</translation>
    </message>
    <message>
        <source>Stack looks instead of replacing them</source>
        <translation>Apilar los efectos en vez de reemplazarlos</translation>
    </message>
    <message>
        <source>Ra&amp;ndomness</source>
        <translation>A&amp;zar</translation>
    </message>
    <message>
        <source>Vary the looks slightly</source>
        <translation>Variar ligeramente los efectos</translation>
    </message>
    <message>
        <source>Re-e&amp;xpose</source>
        <translation>Ree&amp;xponer</translation>
    </message>
    <message>
        <source>Draw a new variation (Ctrl+E)</source>
        <translation>Sacar una variación nueva (Ctrl+E)</translation>
    </message>
    <message>
        <source>Fla&amp;tten</source>
        <translation>Acop&amp;lar</translation>
    </message>
    <message>
        <source>Bake the looks into the photo (Ctrl+Shift+F)</source>
        <translation>Hacer de los efectos una parte de la foto (Ctrl+Mayús+F)</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>Save as JPEG (Ctrl+S)</source>
        <translation>Guardar como JPEG (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Saved %1, %2 x %3, %4</source>
        <translation>Se guardó %1, %2 x %3, %4</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>&amp;Tamaño real</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Acercar</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ale&amp;jar</translation>
    </message>
    <message>
        <source>The photo cannot be shown at its actual size.</source>
        <translation>La foto no se puede mostrar a tamaño real.</translation>
    </message>
    <message>
        <source>The preview cannot be shown.</source>
        <translation>La vista previa no se puede mostrar.</translation>
    </message>
    <message>
        <source>Multiple looks</source>
        <translation>Varios efectos</translation>
    </message>
    <message>
        <source>Randomness</source>
        <translation>Azar</translation>
    </message>
    <message>
        <source>Re-expose</source>
        <translation>Reexponer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>The photo cannot be copied.</source>
        <translation>La foto no se puede copiar.</translation>
    </message>
    <message>
        <source>Copied, %1 x %2</source>
        <translation>Copiado, %1 x %2</translation>
    </message>
    <message>
        <source>The picture cannot be pasted.</source>
        <translation>La imagen no se puede pegar.</translation>
    </message>
    <message>
        <source>The program that it was copied from does not give it.</source>
        <translation>El programa del que se copió no la entrega.</translation>
    </message>
    <message>
        <source>It has more pixels than a photo may have.</source>
        <translation>Tiene más píxeles de los que puede tener una foto.</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>Imagen pegada</translation>
    </message>
    <message>
        <source>&amp;Before and after</source>
        <translation>A&amp;ntes y después</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>«%1» no se puede abrir.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Falta el resto del archivo.</translation>
    </message>
    <message>
        <source>Lumora - %1</source>
        <translation>Lumora - %1</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>The photo cannot be flattened.</source>
        <translation>La foto no se puede acoplar.</translation>
    </message>
    <message>
        <source>Flatten</source>
        <translation>Acoplar</translation>
    </message>
    <message>
        <source>The photo cannot be saved.</source>
        <translation>La foto no se puede guardar.</translation>
    </message>
    <message>
        <source>Encode</source>
        <translation>Codificar</translation>
    </message>
    <message>
        <source>&amp;Whole screen</source>
        <translation>&amp;Pantalla completa</translation>
    </message>
    <message>
        <source>For the photo</source>
        <translation>Para la foto</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>Save &amp;Many…</source>
        <translation>Guardar &amp;varias…</translation>
    </message>
    <message>
        <source>&amp;Keep with the photo</source>
        <translation>&amp;Conservar con la foto</translation>
    </message>
    <message>
        <source>&amp;Everything it carried</source>
        <translation>&amp;Todo lo que traía</translation>
    </message>
    <message>
        <source>Everything but the &amp;place</source>
        <translation>Todo salvo el &amp;lugar</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Nada</translation>
    </message>
    <message>
        <source>&amp;JPEG quality</source>
        <translation>Calidad &amp;JPEG</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Estándar</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>&amp;Alta</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>&amp;Máxima</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Photo</source>
        <translation>&amp;Foto</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>Girar a la &amp;izquierda</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>Girar a la &amp;derecha</translation>
    </message>
    <message>
        <source>&amp;Flatten</source>
        <translation>Acop&amp;lar</translation>
    </message>
    <message>
        <source>R&amp;e-expose</source>
        <translation>Ree&amp;xponer</translation>
    </message>
    <message>
        <source>&amp;Looks</source>
        <translation>Efe&amp;ctos</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Lumora &amp;Help</source>
        <translation>&amp;Ayuda de Lumora</translation>
    </message>
    <message>
        <source>&amp;About Lumora</source>
        <translation>Acerca &amp;de Lumora</translation>
    </message>
    <message>
        <source>All photos (%1)</source>
        <translation>Todas las fotos (%1)</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>Fotos (%1)</translation>
    </message>
    <message>
        <source>Select a file to open</source>
        <translation>Elige un archivo para abrir</translation>
    </message>
    <message>
        <source>Select the photos</source>
        <translation>Elige las fotos</translation>
    </message>
    <message>
        <source>Select a folder with photos</source>
        <translation>Elige una carpeta con fotos</translation>
    </message>
    <message>
        <source>Select the folder to save into</source>
        <translation>Elige la carpeta donde guardar</translation>
    </message>
    <message>
        <source>&amp;Next photo</source>
        <translation>Foto &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous photo</source>
        <translation>Foto ante&amp;rior</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>This is the last photo.</source>
        <translation>Esta es la última foto.</translation>
    </message>
    <message>
        <source>This is the first photo.</source>
        <translation>Esta es la primera foto.</translation>
    </message>
    <message>
        <source>&amp;Weaker</source>
        <translation>Más &amp;débil</translation>
    </message>
    <message>
        <source>&amp;Stronger</source>
        <translation>Más &amp;fuerte</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>Stren&amp;gth %1 %</source>
        <translation>&amp;Intensidad %1 %</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
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
    <message>
        <source>The photo cannot be turned.</source>
        <translation>La foto no se puede girar.</translation>
    </message>
    <message>
        <source>Lumora by Dovrel</source>
        <translation>Lumora de Dovrel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a look and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borde</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recorte</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>La ayuda no se puede mostrar.</translation>
    </message>
    <message>
        <source>It stands at %1.</source>
        <translation>Está en %1.</translation>
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
        <translation>Descodificar</translation>
    </message>
    <message>
        <source>%1 · Strength: %2 % · Crop: %3 · Border: %4 · Size: %5 · Quality: %6</source>
        <translation>%1 · Intensidad: %2 % · Recorte: %3 · Borde: %4 · Tamaño: %5 · Calidad: %6</translation>
    </message>
</context>
<context>
    <name>Reason</name>
    <message>
        <source>There is no permission to write there.</source>
        <translation>No hay permiso para escribir ahí.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>The file is larger than may be written there.</source>
        <translation>El archivo es más grande de lo que se puede escribir ahí.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>El nombre del archivo es demasiado largo.</translation>
    </message>
    <message>
        <source>The link leads to itself.</source>
        <translation>El enlace lleva a sí mismo.</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>Ya hay un archivo con ese nombre.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Hay una carpeta con ese nombre.</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>El archivo no se puede escribir: %1.</translation>
    </message>
    <message>
        <source>The animation is too large: %1 x %2 pixels.</source>
        <translation>La animación es demasiado grande: %1 x %2 píxeles.</translation>
    </message>
    <message>
        <source>The picture is of a kind that cannot be read: it has %1 channels of %2 bits.</source>
        <translation>La imagen es de un tipo que no se puede leer: tiene %1 canales de %2 bits.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has parts of %1 x %2 pixels.</source>
        <translation>La imagen está dañada: tiene partes de %1 x %2 píxeles.</translation>
    </message>
    <message>
        <source>It is a HEIC or AVIF photo. This Lumora was built without libheif, which reads them.</source>
        <translation>Es una foto HEIC o AVIF. Este Lumora se construyó sin libheif, que las lee.</translation>
    </message>
    <message>
        <source>It is a JPEG XL photo. This Lumora was built without libjxl, which reads them.</source>
        <translation>Es una foto JPEG XL. Este Lumora se construyó sin libjxl, que las lee.</translation>
    </message>
    <message>
        <source>It is a camera&apos;s raw photo. This Lumora was built without LibRaw, which reads them.</source>
        <translation>Es la foto en bruto de una cámara. Este Lumora se construyó sin LibRaw, que las lee.</translation>
    </message>
    <message>
        <source>There is not enough free memory for a picture of %1 x %2 pixels.</source>
        <translation>No hay memoria libre suficiente para una imagen de %1 x %2 píxeles.</translation>
    </message>
    <message>
        <source>There is not enough free memory for the picture.</source>
        <translation>No hay memoria libre suficiente para la imagen.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 x %2 pixels. At most %3 megapixels can be opened.</source>
        <translation>La imagen es demasiado grande: %1 x %2 píxeles. Se pueden abrir como máximo %3 megapíxeles.</translation>
    </message>
    <message>
        <source>The picture is damaged: the file is too small for %1 x %2 pixels.</source>
        <translation>La imagen está dañada: el archivo es demasiado pequeño para %1 x %2 píxeles.</translation>
    </message>
    <message>
        <source>The picture is damaged or of a kind that cannot be read.</source>
        <translation>La imagen está dañada o es de un tipo que no se puede leer.</translation>
    </message>
    <message>
        <source>The file is not a picture of a kind that can be read.</source>
        <translation>El archivo no es una imagen de un tipo que se pueda leer.</translation>
    </message>
    <message>
        <source>The picture is of a kind that is not supported.</source>
        <translation>La imagen es de un tipo que no se admite.</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read.</source>
        <translation>La imagen está dañada y no se puede leer.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has too many parts.</source>
        <translation>La imagen está dañada: tiene demasiadas partes.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>No hay permiso para leer el archivo.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>El archivo no se puede abrir: %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>It is a folder, not a picture.</source>
        <translation>Es una carpeta, no una imagen.</translation>
    </message>
    <message>
        <source>It is not a file with a picture.</source>
        <translation>No es un archivo con una imagen.</translation>
    </message>
    <message>
        <source>Reading it failed: the file is damaged, or made to do harm.</source>
        <translation>La lectura falló: el archivo está dañado o hecho para hacer daño.</translation>
    </message>
    <message>
        <source>Reading it takes too long: the file is damaged, or made to do harm.</source>
        <translation>La lectura tarda demasiado: el archivo está dañado o hecho para hacer daño.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to other files, which no picture needs.</source>
        <translation>La lectura se detuvo: el archivo llevaba a otros archivos, que ninguna imagen necesita.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to the network, which no picture needs.</source>
        <translation>La lectura se detuvo: el archivo llevaba a la red, que ninguna imagen necesita.</translation>
    </message>
    <message>
        <source>Reading it was cancelled.</source>
        <translation>La lectura se canceló.</translation>
    </message>
    <message>
        <source>The program that reads photos cannot be started. Lumora is not completely installed.</source>
        <translation>El programa que lee las fotos no se puede iniciar. Lumora no está instalado por completo.</translation>
    </message>
    <message>
        <source>A JPEG cannot hold %1 x %2 pixels. Choose a smaller size.</source>
        <translation>Un JPEG no puede contener %1 x %2 píxeles. Elige un tamaño menor.</translation>
    </message>
    <message>
        <source>The output would replace a photo that is to be rendered.</source>
        <translation>El resultado reemplazaría una foto que aún se va a procesar.</translation>
    </message>
    <message>
        <source>The picture cannot be encoded.</source>
        <translation>La imagen no se puede codificar.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Falta el resto del archivo.</translation>
    </message>
    <message>
        <source>Another photo of this run has the same output.</source>
        <translation>Otra foto de esta serie tiene el mismo resultado.</translation>
    </message>
    <message>
        <source>Rendering it was ended from outside, as happens where the memory runs out.</source>
        <translation>El proceso se terminó desde fuera, como ocurre cuando se agota la memoria.</translation>
    </message>
    <message>
        <source>Rendering it failed: the program broke down.</source>
        <translation>El proceso falló: el programa se vino abajo.</translation>
    </message>
    <message>
        <source>No process can be started for it.</source>
        <translation>No se puede iniciar ningún proceso para ella.</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
</context>
<context>
    <name>RenderStep</name>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borde</translation>
    </message>
</context>
<context>
    <name>SaveManyPanel</name>
    <message>
        <source>No folder chosen</source>
        <translation>Ninguna carpeta elegida</translation>
    </message>
    <message>
        <source>Choose &amp;Photos…</source>
        <translation>Elegir &amp;fotos…</translation>
    </message>
    <message>
        <source>Choose a &amp;Folder…</source>
        <translation>Elegir una &amp;carpeta…</translation>
    </message>
    <message>
        <source>Save &amp;Into…</source>
        <translation>Guardar &amp;en…</translation>
    </message>
    <message>
        <source>&amp;Save Them</source>
        <translation>&amp;Guardarlas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save Many</source>
        <translation>Guardar varias</translation>
    </message>
    <message>
        <source>The photo saved last</source>
        <translation>La última foto guardada</translation>
    </message>
    <message>
        <source>Photos done</source>
        <translation>Fotos terminadas</translation>
    </message>
    <message>
        <source>Photos that were not saved, or are damaged</source>
        <translation>Fotos que no se guardaron o están dañadas</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>En</translation>
    </message>
    <message>
        <source>No photos chosen</source>
        <translation>Ninguna foto elegida</translation>
    </message>
    <message numerus="yes">
        <source>%1 and others: %Ln photos</source>
        <translation>
            <numerusform>%1 y otras: %Ln foto</numerusform>
            <numerusform>%1 y otras: %Ln fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>Tiempo restante: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The program that renders photos cannot be started. Lumora is not completely installed.</source>
        <translation>El programa que procesa las fotos no se puede iniciar. Lumora no está instalado por completo.</translation>
    </message>
    <message>
        <source>Cancelled. What was saved stays.</source>
        <translation>Cancelado. Lo que se guardó se queda.</translation>
    </message>
    <message>
        <source>It ended before all photos were done.</source>
        <translation>Terminó antes de que todas las fotos estuvieran hechas.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Guardadas: %1</translation>
    </message>
    <message>
        <source>Already there: %1</source>
        <translation>Ya estaban: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>No guardadas: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Elegido</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Save as JPEG</source>
        <translation>Guardar como JPEG</translation>
    </message>
    <message>
        <source>JPEG, whatever the ending: %1</source>
        <translation>JPEG, sea cual sea la terminación: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be saved there. %2</source>
        <translation>«%1» no se puede guardar ahí. %2</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>This is the photo that you opened. Replacing it cannot be undone.</source>
        <translation>Esta es la foto que abriste. Reemplazarla no se puede deshacer.</translation>
    </message>
    <message>
        <source>Keep both saves “%1” beside it.</source>
        <translation>Conservar ambas guarda «%1» al lado.</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>Conservar &amp;ambas</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«%1» ya existe. ¿Quieres reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>SplitLine</name>
    <message>
        <source>Drag it across the photo. Esc ends the comparison.</source>
        <translation>Arrástrala por la foto. Esc termina la comparación.</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>Línea entre antes y después</translation>
    </message>
</context>
</TS>

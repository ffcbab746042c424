<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Desktop</name>
    <message>
        <source>Photo Looks</source>
        <translation>Effetti fotografici</translation>
    </message>
    <message>
        <source>Give a photo a look and save it</source>
        <translation>Dare un effetto a una foto e salvarla</translation>
    </message>
    <message>
        <source>Lumora shows one photo large and, beside it, what it would be under each of its looks: cool and muted, warm and faded, black and white, like an instant print or a frame of a film. One press applies a look; with multiple looks switched on, they stack in the order in which they were chosen.</source>
        <translation>Lumora mostra una foto in grande e, accanto, come sarebbe con ciascuno dei suoi effetti: fredda e smorzata, calda e sbiadita, in bianco e nero, come una stampa istantanea o un fotogramma di un film. Una pressione applica un effetto; con più effetti attivi, si sommano nell’ordine in cui sono stati scelti.</translation>
    </message>
    <message>
        <source>What it does:</source>
        <translation>Che cosa fa:</translation>
    </message>
    <message>
        <source>looks from instant prints to infrared film, many of which can be varied at random</source>
        <translation>effetti dalla stampa istantanea alla pellicola a infrarossi, molti dei quali possono variare a caso</translation>
    </message>
    <message>
        <source>crops and borders that come with a look or are chosen by hand</source>
        <translation>ritagli e bordi propri di un effetto o scelti a mano</translation>
    </message>
    <message>
        <source>quarter turns, looks made permanent, and JPEG files in the size that is wanted</source>
        <translation>rotazioni di un quarto di giro, effetti resi permanenti e file JPEG della misura voluta</translation>
    </message>
    <message>
        <source>opens JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos, upright and in their right colours</source>
        <translation>apre foto JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD e foto raw delle fotocamere, diritte e nei colori giusti</translation>
    </message>
    <message>
        <source>works by mouse, by keyboard and with a screen reader</source>
        <translation>si usa con il mouse, con la tastiera e con un lettore di schermo</translation>
    </message>
    <message>
        <source>A photo under the look Mono, above the strip of looks</source>
        <translation>Una foto con l’effetto Mono, sopra la fila degli effetti</translation>
    </message>
    <message>
        <source>The photo before and after the look 1974, on either side of a line</source>
        <translation>La foto prima e dopo l’effetto 1974, ai due lati di una linea</translation>
    </message>
    <message>
        <source>Give a photo a look, a crop and a border, and save it</source>
        <translation>Dare a una foto un effetto, un ritaglio e un bordo, e salvarla</translation>
    </message>
    <message>
        <source>photo;picture;look;filter;effect;border;crop;instant;retro;</source>
        <translation>foto;immagine;look;filtro;effetto;bordo;ritaglio;istantanea;retro;</translation>
    </message>
    <message>
        <source>Compare, look closely, and save many photos at once:</source>
        <translation>Confrontare, guardare da vicino e salvare molte foto in una volta:</translation>
    </message>
    <message>
        <source>the photo beside what it was, on either side of a line</source>
        <translation>la foto accanto a ciò che era, ai due lati di una linea</translation>
    </message>
    <message>
        <source>every pixel as it will be saved, at 50, 100 or 200 %</source>
        <translation>ogni pixel come verrà salvato, al 50, 100 o 200 %</translation>
    </message>
    <message>
        <source>many photos or a whole folder under the looks that are chosen</source>
        <translation>molte foto o un’intera cartella con gli effetti scelti</translation>
    </message>
    <message>
        <source>photos through the clipboard, and dragged out of the window</source>
        <translation>foto attraverso gli appunti e trascinate fuori dalla finestra</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>La prima versione.</translation>
    </message>
    <message>
        <source>give many photos the same looks</source>
        <translation>dare gli stessi effetti a molte foto</translation>
    </message>
    <message>
        <source>give one photo a look</source>
        <translation>dare un effetto a una foto</translation>
    </message>
</context>
<context>
    <name>DragDropImageView</name>
    <message>
        <source>Before: the photo without its looks, in its crop and border.</source>
        <translation>Prima: la foto senza effetti, con il suo ritaglio e il suo bordo.</translation>
    </message>
    <message>
        <source>The photo as it will be saved, at %1 %. Drag it or press the arrow keys to see other parts of it.</source>
        <translation>La foto come verrà salvata, al %1%. Trascinala o premi i tasti freccia per vederne altre parti.</translation>
    </message>
    <message>
        <source>Before on the left, after on the right of a line that the arrow keys move.</source>
        <translation>Prima a sinistra, dopo a destra di una linea che si sposta con i tasti freccia.</translation>
    </message>
    <message>
        <source>The photo under the applied looks. Hold the mouse or the space bar to see it before.</source>
        <translation>La foto con gli effetti applicati. Tieni premuto il mouse o la barra spaziatrice per vederla prima.</translation>
    </message>
    <message>
        <source>Drop a photo here, or open one.</source>
        <translation>Trascina qui una foto oppure aprine una.</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Dopo</translation>
    </message>
</context>
<context>
    <name>FramingChoice</name>
    <message>
        <source>By Filter</source>
        <translation>Da effetto</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrato</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Sottile</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Thick</source>
        <translation>Spesso</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Stondato</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Originale</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>DejaVu Sans</source>
        <comment>a font that has the letters of the language</comment>
        <translation>DejaVu Sans</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>all others</source>
        <translation>tutti gli altri</translation>
    </message>
    <message>
        <source>Lumora Help</source>
        <translation>Guida di Lumora</translation>
    </message>
    <message>
        <source>Lumora</source>
        <translation>Lumora</translation>
    </message>
    <message>
        <source>Lumora gives one photo a look, a crop and a border, and saves the result as a JPEG file. The photo on your disk is never changed: what you see is a picture made from it, and it is written only where you say.</source>
        <translation>Lumora dà a una foto un effetto, un ritaglio e un bordo, e salva il risultato come file JPEG. La foto sul disco non viene mai modificata: quella che vedi è un&apos;immagine ricavata da essa, che viene scritta solo dove dici tu.</translation>
    </message>
    <message>
        <source>A photo comes in</source>
        <translation>Arriva una foto</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Open&lt;/b&gt;, drop a file on the large picture, or open a photo with Lumora from your file manager. JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos open, and whatever else your desktop can decode. A photo that replaces another takes over the looks that are switched on. A file that is not a photo is refused, and the photo before it stays.</source>
        <translation>Premi &lt;b&gt;Apri&lt;/b&gt;, trascina un file sull&apos;immagine grande oppure apri una foto con Lumora dal gestore dei file. Si aprono JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD e le foto raw delle fotocamere, e tutto ciò che il tuo desktop sa decodificare. Una foto che ne sostituisce un&apos;altra prende gli effetti attivi. Un file che non è una foto viene rifiutato, e resta la foto di prima.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt; and &lt;b&gt;Page Up&lt;/b&gt; go to the next and the previous photo of the folder, in the order of their names, and the looks stay on; what is no photo is passed over. Where several files were opened with Lumora at once, the keys go through those. &lt;b&gt;File, Open recent&lt;/b&gt; has the eight photos that were opened last.</source>
        <translation>&lt;b&gt;Pag↓&lt;/b&gt; e &lt;b&gt;Pag↑&lt;/b&gt; passano alla foto successiva e alla precedente della cartella, in ordine di nome, e gli effetti restano attivi; ciò che non è una foto viene saltato. Se con Lumora sono stati aperti più file insieme, i tasti scorrono quelli. &lt;b&gt;File, Apri recenti&lt;/b&gt; contiene le ultime otto foto aperte.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Edit, Paste&lt;/b&gt; opens a picture that another program copied, or a copied file. &lt;b&gt;Edit, Copy&lt;/b&gt; puts the photo as it would be saved on the clipboard; and the photo can be dragged out of Lumora, as a file or as a picture: press on it and move.</source>
        <translation>&lt;b&gt;Modifica, Incolla&lt;/b&gt; apre un&apos;immagine copiata da un altro programma, o un file copiato. &lt;b&gt;Modifica, Copia&lt;/b&gt; mette negli appunti la foto come verrebbe salvata; e la foto si può trascinare fuori da Lumora, come file o come immagine: premi su di essa e sposta il mouse.</translation>
    </message>
    <message>
        <source>Looks, one or several</source>
        <translation>Effetti, uno o più</translation>
    </message>
    <message>
        <source>Each button shows your photo under its look; press it to apply the look, and press it again to take it off. &lt;b&gt;Original&lt;/b&gt; takes all looks off. Where the window is narrow the row of looks scrolls: by the wheel over it, by its bar, or by the arrow keys.</source>
        <translation>Ogni pulsante mostra la tua foto con il suo effetto; premilo per applicare l&apos;effetto, e premilo di nuovo per toglierlo. &lt;b&gt;Original&lt;/b&gt; toglie tutti gli effetti. Se la finestra è stretta, la fila degli effetti scorre: con la rotella del mouse, con la sua barra o con i tasti freccia.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Multiple looks&lt;/b&gt; switched on, looks stack in the order in which you press them. The line above the photo shows the chain, for example &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Pressing a look of the chain takes it out and leaves the others in order, and the buttons carry their numbers. Switching back to one look keeps the one that came last.</source>
        <translation>Se &lt;b&gt;Più effetti&lt;/b&gt; è attivo, gli effetti si sommano nell&apos;ordine in cui li premi. La riga sopra la foto mostra la catena, per esempio &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Premendo un effetto della catena lo si toglie e gli altri restano in ordine; i pulsanti portano il loro numero. Tornando a un solo effetto resta l&apos;ultimo applicato.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Strength&lt;/b&gt; takes the looks back in part: at 0 the photo shows as it came, in its crop and border. The thumbnails, and every new look or chain, have the whole strength.</source>
        <translation>&lt;b&gt;Intensità&lt;/b&gt; attenua gli effetti: a 0 la foto appare com&apos;era all&apos;arrivo, con il suo ritaglio e il suo bordo. Le miniature, e ogni effetto o catena nuovi, hanno l&apos;intensità piena.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Randomness&lt;/b&gt; switched on, many looks vary a little, the same way until you press &lt;b&gt;Re-expose&lt;/b&gt;, which draws a new variation. Randomness is off whenever Lumora starts.</source>
        <translation>Se &lt;b&gt;Casualità&lt;/b&gt; è attiva, molti effetti variano un poco, sempre allo stesso modo finché non premi &lt;b&gt;Riesponi&lt;/b&gt;, che estrae una nuova variante. All&apos;avvio di Lumora la casualità è sempre disattivata.</translation>
    </message>
    <message>
        <source>Crop and border</source>
        <translation>Ritaglio e bordo</translation>
    </message>
    <message>
        <source>&lt;b&gt;By Filter&lt;/b&gt; takes the crop and the border that belong to the look that you added last:</source>
        <translation>&lt;b&gt;Da effetto&lt;/b&gt; usa il ritaglio e il bordo propri dell&apos;ultimo effetto aggiunto:</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Effetto</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Ritaglio</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordo</translation>
    </message>
    <message>
        <source>The other entries choose a crop or a border whatever the look; &lt;b&gt;None&lt;/b&gt; switches it off. A border is put round the photo and hides nothing of it. 6x4, 4x3 and 7x6 turn with a portrait photo; Cinema stays a wide strip.</source>
        <translation>Le altre voci scelgono un ritaglio o un bordo qualunque sia l&apos;effetto; &lt;b&gt;Nessuno&lt;/b&gt; lo disattiva. Il bordo viene messo attorno alla foto e non ne nasconde nulla. 6x4, 4x3 e 7x6 si girano se la foto è verticale; Cinema resta una striscia larga.</translation>
    </message>
    <message>
        <source>Turn, flatten, save</source>
        <translation>Ruotare, incorporare, salvare</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rotate&lt;/b&gt; turns the photo by a quarter; the looks stay.</source>
        <translation>&lt;b&gt;Ruota&lt;/b&gt; gira la foto di un quarto; gli effetti restano.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Flatten&lt;/b&gt; makes the looks, the crop and the border part of the photo, so that further looks start from there.</source>
        <translation>&lt;b&gt;Incorpora&lt;/b&gt; rende gli effetti, il ritaglio e il bordo parte della foto, così che altri effetti partano da lì.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Size&lt;/b&gt; is the longer side of the saved picture in pixels. A smaller picture is enlarged to it; &lt;i&gt;Original&lt;/i&gt; keeps what the photo has.</source>
        <translation>&lt;b&gt;Misura&lt;/b&gt; è il lato più lungo dell&apos;immagine salvata, in pixel. Un&apos;immagine più piccola viene ingrandita fino a quella misura; &lt;i&gt;Originale&lt;/i&gt; mantiene quella della foto.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Save&lt;/b&gt; writes a JPEG file, whatever the ending of its name; an ending that is not in the list gets &lt;i&gt;.jpg&lt;/i&gt;. The photo that you opened is replaced only if you say so: &lt;i&gt;Keep both&lt;/i&gt; saves beside it. If a save fails, the file that stood there stays as it was.</source>
        <translation>&lt;b&gt;Salva&lt;/b&gt; scrive un file JPEG, qualunque sia l&apos;estensione del nome; a un&apos;estensione che non è nell&apos;elenco si aggiunge &lt;i&gt;.jpg&lt;/i&gt;. La foto che hai aperto viene sostituita solo se lo dici tu: &lt;i&gt;Mantieni entrambe&lt;/i&gt; salva accanto a essa. Se il salvataggio non riesce, il file che c&apos;era resta com&apos;era.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Save Many&lt;/b&gt; (Ctrl+Shift+S) gives many photos, or all of a folder, what is chosen now: looks, strength, crop, border, size, variation, quality. They go into a folder of your choice, named after photo and looks; a file that stands there stays. &lt;i&gt;Cancel&lt;/i&gt; keeps what is saved, and another time goes on from there. What cannot be saved is listed with its reason. In a terminal &lt;i&gt;lumora-render&lt;/i&gt; does the same.</source>
        <translation>&lt;b&gt;File, Salva in serie&lt;/b&gt; (Ctrl+Maiusc+S) dà a molte foto, o a tutte quelle di una cartella, ciò che è scelto ora: effetti, intensità, ritaglio, bordo, misura, variante, qualità. Vanno in una cartella a tua scelta, con il nome della foto e degli effetti; un file già presente resta. &lt;i&gt;Annulla&lt;/i&gt; conserva ciò che è stato salvato, e un&apos;altra volta si riprende da lì. Ciò che non si può salvare viene elencato con il motivo. In un terminale &lt;i&gt;lumora-render&lt;/i&gt; fa lo stesso.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Keep with the photo&lt;/b&gt;: what the camera and others wrote into the photo (its date, the camera, a title, the caption, and also &lt;i&gt;where it was taken&lt;/i&gt;) goes into the saved file. &lt;i&gt;Everything but the place&lt;/i&gt; leaves out the coordinates, the names of city, country and location, and the camera maker&apos;s own notes, which may tell the place; &lt;i&gt;Nothing&lt;/i&gt; leaves out all. Preview pictures of the photo as it was are never kept. The choice is remembered.</source>
        <translation>&lt;b&gt;File, Conserva con la foto&lt;/b&gt;: ciò che la fotocamera e altri hanno scritto nella foto (la data, la fotocamera, un titolo, la didascalia e anche &lt;i&gt;dove è stata scattata&lt;/i&gt;) passa nel file salvato. &lt;i&gt;Tutto tranne il luogo&lt;/i&gt; esclude le coordinate, i nomi di città, paese e località e le note proprie del produttore della fotocamera, che possono rivelare il luogo; &lt;i&gt;Niente&lt;/i&gt; esclude tutto. Le anteprime della foto com&apos;era non vengono mai conservate. La scelta viene ricordata.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, JPEG quality&lt;/b&gt;: &lt;i&gt;Standard&lt;/i&gt; is small; &lt;i&gt;High&lt;/i&gt; and &lt;i&gt;Best&lt;/i&gt; keep finer detail, and the colour of each pixel, in larger files. How large is told before and after a photo is saved. The choice is remembered.</source>
        <translation>&lt;b&gt;File, Qualità JPEG&lt;/b&gt;: &lt;i&gt;Standard&lt;/i&gt; dà file piccoli; &lt;i&gt;Alta&lt;/i&gt; e &lt;i&gt;Massima&lt;/i&gt; conservano i dettagli più fini, e il colore di ogni pixel, in file più grandi. Le dimensioni del file sono indicate prima e dopo il salvataggio della foto. La scelta viene ricordata.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Tornare indietro</translation>
    </message>
    <message>
        <source>&lt;b&gt;Undo&lt;/b&gt; in the &lt;b&gt;Edit&lt;/b&gt; menu takes the last step back: a look, an option, a turn, a re-exposure or a flattening; &lt;b&gt;Redo&lt;/b&gt; takes it again. Flattened photos are kept for this as long as the memory has room for them. Another photo begins anew.</source>
        <translation>&lt;b&gt;Annulla&lt;/b&gt; nel menu &lt;b&gt;Modifica&lt;/b&gt; annulla l&apos;ultimo passo: un effetto, un&apos;opzione, una rotazione, una riesposizione o un&apos;incorporazione; &lt;b&gt;Ripeti&lt;/b&gt; lo rifà. Le foto con effetti incorporati vengono tenute a questo scopo finché c&apos;è posto in memoria. Con un&apos;altra foto si ricomincia da capo.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Confrontare</translation>
    </message>
    <message>
        <source>Hold the mouse button on the photo, or hold the space bar, to see it &lt;i&gt;before&lt;/i&gt;: without its looks, in the same crop and border. Let go to see the look again. &lt;b&gt;B&lt;/b&gt;, or &lt;b&gt;Photo, Before and after&lt;/b&gt;, shows both at once, before on the left: drag the line between them across the photo, or move it by the left and right arrow keys. Looks and options may change meanwhile. &lt;b&gt;B&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt; ends it.</source>
        <translation>Tieni premuto il pulsante del mouse sulla foto, o la barra spaziatrice, per vederla &lt;i&gt;prima&lt;/i&gt;: senza effetti, con lo stesso ritaglio e lo stesso bordo. Rilascia per rivedere l&apos;effetto. &lt;b&gt;B&lt;/b&gt;, o &lt;b&gt;Foto, Prima e dopo&lt;/b&gt;, mostra entrambe insieme, prima a sinistra: trascina sulla foto la linea che le divide, o spostala con i tasti freccia sinistra e destra. Intanto effetti e opzioni si possono cambiare. &lt;b&gt;B&lt;/b&gt; o &lt;b&gt;Esc&lt;/b&gt; lo chiude.</translation>
    </message>
    <message>
        <source>The space bar and the digits do the same wherever the focus is; only an open list has its own keys. A short tap on the space bar presses the look that has the focus.</source>
        <translation>La barra spaziatrice e le cifre fanno lo stesso ovunque si trovi il fuoco; solo un elenco aperto ha i suoi tasti. Un breve tocco della barra spaziatrice preme l&apos;effetto che ha il fuoco.</translation>
    </message>
    <message>
        <source>As it will be saved</source>
        <translation>Come verrà salvata</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+O&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+O&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open a photo</source>
        <translation>apri una foto</translation>
    </message>
    <message>
        <source>&lt;b&gt;1&lt;/b&gt; to &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</source>
        <translation>da &lt;b&gt;1&lt;/b&gt; a &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the first ten looks: Original is 1, Helga is 2</source>
        <translation>i primi dieci effetti: Original è 1, Helga è 2</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt;, &lt;b&gt;Page Up&lt;/b&gt;</source>
        <translation>&lt;b&gt;Pag↓&lt;/b&gt;, &lt;b&gt;Pag↑&lt;/b&gt;</translation>
    </message>
    <message>
        <source>next photo, previous photo</source>
        <translation>foto successiva, foto precedente</translation>
    </message>
    <message>
        <source>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</source>
        <translation>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</translation>
    </message>
    <message>
        <source>weaker, stronger looks</source>
        <translation>effetti più deboli, più forti</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Maiusc+S&lt;/b&gt;</translation>
    </message>
    <message>
        <source>save, save many</source>
        <translation>salva, salva in serie</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+E&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+E&lt;/b&gt;</translation>
    </message>
    <message>
        <source>re-expose</source>
        <translation>riesponi</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+C&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+C&lt;/b&gt;</translation>
    </message>
    <message>
        <source>copy what would be saved</source>
        <translation>copia ciò che verrebbe salvato</translation>
    </message>
    <message>
        <source>&lt;b&gt;Space&lt;/b&gt; (hold)</source>
        <translation>&lt;b&gt;Spazio&lt;/b&gt; (tenuto premuto)</translation>
    </message>
    <message>
        <source>see the photo without its looks</source>
        <translation>vedi la foto senza effetti</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+V&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+V&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open what was copied</source>
        <translation>apri ciò che è stato copiato</translation>
    </message>
    <message>
        <source>&lt;b&gt;B&lt;/b&gt;</source>
        <translation>&lt;b&gt;B&lt;/b&gt;</translation>
    </message>
    <message>
        <source>before and after, side by side</source>
        <translation>prima e dopo, affiancati</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take the last step back</source>
        <translation>annulla l&apos;ultimo passo</translation>
    </message>
    <message>
        <source>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</source>
        <translation>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</translation>
    </message>
    <message>
        <source>see the photo at actual size; fit it again</source>
        <translation>vedi la foto a dimensioni reali; di nuovo intera</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Maiusc+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take it again</source>
        <translation>ripetilo</translation>
    </message>
    <message>
        <source>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</source>
        <translation>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</translation>
    </message>
    <message>
        <source>larger, smaller</source>
        <translation>più grande, più piccola</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</translation>
    </message>
    <message>
        <source>turn left, turn right</source>
        <translation>ruota a sinistra, ruota a destra</translation>
    </message>
    <message>
        <source>&lt;b&gt;F11&lt;/b&gt;</source>
        <translation>&lt;b&gt;F11&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the photo alone on the whole screen, and back</source>
        <translation>la foto da sola a schermo intero, e ritorno</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Maiusc+F&lt;/b&gt;</translation>
    </message>
    <message>
        <source>flatten</source>
        <translation>incorpora</translation>
    </message>
    <message>
        <source>&lt;b&gt;Tab&lt;/b&gt;, arrows, &lt;b&gt;Return&lt;/b&gt;</source>
        <translation>&lt;b&gt;Tab&lt;/b&gt;, frecce, &lt;b&gt;Invio&lt;/b&gt;</translation>
    </message>
    <message>
        <source>go from control to control; press it</source>
        <translation>passa da un comando all&apos;altro; premilo</translation>
    </message>
    <message>
        <source>&lt;b&gt;F1&lt;/b&gt;</source>
        <translation>&lt;b&gt;F1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>questa guida</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Q&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Q&lt;/b&gt;</translation>
    </message>
    <message>
        <source>quit; your choices are kept</source>
        <translation>esci; le tue scelte vengono conservate</translation>
    </message>
    <message>
        <source>The looks</source>
        <translation>Gli effetti</translation>
    </message>
    <message>
        <source>Each picture shows the look with its own crop and border.</source>
        <translation>Ogni immagine mostra l&apos;effetto con il suo ritaglio e il suo bordo.</translation>
    </message>
    <message>
        <source>Cool and muted with strong contrast; darker and richer towards the edges.</source>
        <translation>Freddo e smorzato, con forte contrasto; più scuro e più saturo verso i margini.</translation>
    </message>
    <message>
        <source>square</source>
        <translation>quadrato</translation>
    </message>
    <message>
        <source>Strong colours and contrast, with warm light tones.</source>
        <translation>Colori e contrasto forti, con toni chiari caldi.</translation>
    </message>
    <message>
        <source>thick white</source>
        <translation>spesso bianco</translation>
    </message>
    <message>
        <source>Bright lights, little colour and a dark blue tint, like a frame of a film.</source>
        <translation>Luci brillanti, poco colore e una tinta blu scuro, come un fotogramma di un film.</translation>
    </message>
    <message>
        <source>16 to 9</source>
        <translation>16 a 9</translation>
    </message>
    <message>
        <source>black bars</source>
        <translation>barre nere</translation>
    </message>
    <message>
        <source>A contrasty black-and-white print of the sixties, with light skies.</source>
        <translation>Una stampa in bianco e nero contrastata degli anni Sessanta, con cieli chiari.</translation>
    </message>
    <message>
        <source>7 to 6</source>
        <translation>7 a 6</translation>
    </message>
    <message>
        <source>A hard colour print under a brown wash that is strongest in the shadows.</source>
        <translation>Una stampa a colori dura sotto una velatura marrone, più forte nelle ombre.</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>stondato</translation>
    </message>
    <message>
        <source>Black and white over the full range of greys; blue skies print dark.</source>
        <translation>Bianco e nero su tutta la gamma dei grigi; i cieli azzurri vengono scuri.</translation>
    </message>
    <message>
        <source>medium white</source>
        <translation>medio bianco</translation>
    </message>
    <message>
        <source>Cross-processed film: hard reds and greens, flat blues.</source>
        <translation>Pellicola a sviluppo incrociato: rossi e verdi duri, blu piatti.</translation>
    </message>
    <message>
        <source>An instant print: soft tones, brown shadows and dark corners.</source>
        <translation>Una stampa istantanea: toni morbidi, ombre marroni e angoli scuri.</translation>
    </message>
    <message>
        <source>an instant print</source>
        <translation>una stampa istantanea</translation>
    </message>
    <message>
        <source>Warmed towards orange; darks darker, lights lighter, stronger colours.</source>
        <translation>Scaldato verso l&apos;arancione; scuri più scuri, chiari più chiari, colori più forti.</translation>
    </message>
    <message>
        <source>6 to 4</source>
        <translation>6 a 4</translation>
    </message>
    <message>
        <source>thin white</source>
        <translation>sottile bianco</translation>
    </message>
    <message>
        <source>Infrared film: leaves turn bright, blue sky turns dark.</source>
        <translation>Pellicola infrarossa: le foglie diventano chiare, il cielo azzurro diventa scuro.</translation>
    </message>
    <message>
        <source>A lens that magnifies the middle and bends the rest outward.</source>
        <translation>Un obiettivo che ingrandisce il centro e curva il resto verso l&apos;esterno.</translation>
    </message>
    <message>
        <source>a black surround</source>
        <translation>un contorno nero</translation>
    </message>
    <message>
        <source>A cheap camera that lets light in, at another place each time.</source>
        <translation>Una fotocamera economica che lascia entrare luce, ogni volta in un altro punto.</translation>
    </message>
    <message>
        <source>A cartoon: bands of brightness, strong colours, dark outlines.</source>
        <translation>Un fumetto: fasce di luminosità, colori forti, contorni scuri.</translation>
    </message>
    <message>
        <source>Cold and bleached, with a blue cast.</source>
        <translation>Freddo e sbiadito, con una dominante blu.</translation>
    </message>
    <message>
        <source>Over-exposed: light parts are pushed towards white.</source>
        <translation>Sovraesposto: le parti chiare vengono spinte verso il bianco.</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Z&lt;/b&gt;, or click the photo twice, to see it at actual size: pixel by pixel what &lt;b&gt;Save&lt;/b&gt; writes, in the chosen size. Soft and grainy looks differ from the small picture. Drag the photo, or press the arrow keys, to see other parts; hold it still, or the space bar, to see it &lt;i&gt;before&lt;/i&gt;. The wheel with Ctrl and the keys &lt;b&gt;+&lt;/b&gt; and &lt;b&gt;-&lt;/b&gt; go through 50, 100 and 200 %; &lt;b&gt;Esc&lt;/b&gt; shows all of it again. &lt;b&gt;F11&lt;/b&gt; leaves the photo alone on the whole screen, where the keys stay at work, until &lt;b&gt;F11&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt;. The right mouse button and the menu key open a menu on the photo. Where your desktop knows the colour profile of your screen, photos are shown in its colours; what is saved stays the same.</source>
        <translation>Premi &lt;b&gt;Z&lt;/b&gt;, o fai doppio clic sulla foto, per vederla a dimensioni reali: pixel per pixel ciò che &lt;b&gt;Salva&lt;/b&gt; scrive, nella misura scelta. Gli effetti morbidi e quelli sgranati appaiono diversi dall&apos;immagine piccola. Trascina la foto, o premi i tasti freccia, per vedere altre parti; tienila premuta senza muovere, o tieni premuta la barra spaziatrice, per vederla &lt;i&gt;prima&lt;/i&gt;. La rotella con Ctrl e i tasti &lt;b&gt;+&lt;/b&gt; e &lt;b&gt;-&lt;/b&gt; passano per 50, 100 e 200%; &lt;b&gt;Esc&lt;/b&gt; la mostra di nuovo intera. &lt;b&gt;F11&lt;/b&gt; lascia la foto da sola a schermo intero, dove i tasti restano attivi, fino a &lt;b&gt;F11&lt;/b&gt; o &lt;b&gt;Esc&lt;/b&gt;. Il pulsante destro del mouse e il tasto menu aprono un menu sulla foto. Dove il desktop conosce il profilo di colore dello schermo, le foto sono mostrate nei suoi colori; ciò che viene salvato resta lo stesso.</translation>
    </message>
</context>
<context>
    <name>LookButton</name>
    <message>
        <source>Applied as number %1</source>
        <translation>Applicato come numero %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Applied looks</source>
        <translation>Effetti applicati</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Stop reading the photo (Esc)</source>
        <translation>Interrompi la lettura della foto (Esc)</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Drop a photo here. Hold to see the photo without its looks.</source>
        <translation>Trascina qui una foto. Tieni premuto per vedere la foto senza effetti.</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;pri…</translation>
    </message>
    <message>
        <source>Open a photo (Ctrl+O)</source>
        <translation>Apri una foto (Ctrl+O)</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Ruota a sinistra</translation>
    </message>
    <message>
        <source>Rotate left (Ctrl+L)</source>
        <translation>Ruota a sinistra (Ctrl+L)</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Ruota a destra</translation>
    </message>
    <message>
        <source>Rotate right (Ctrl+R)</source>
        <translation>Ruota a destra (Ctrl+R)</translation>
    </message>
    <message>
        <source>&amp;Border</source>
        <translation>&amp;Bordo</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>Rita&amp;glio</translation>
    </message>
    <message>
        <source>S&amp;ize</source>
        <translation>Mis&amp;ura</translation>
    </message>
    <message>
        <source>Stren&amp;gth</source>
        <translation>&amp;Intensità</translation>
    </message>
    <message>
        <source>How much of the looks is seen ([ and ])</source>
        <translation>Quanto si vedono gli effetti ([ e ])</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensità</translation>
    </message>
    <message>
        <source>&amp;Multiple looks</source>
        <translation>Più effe&amp;tti</translation>
    </message>
    <message>
        <source>Stack looks instead of replacing them</source>
        <translation>Somma gli effetti invece di sostituirli</translation>
    </message>
    <message>
        <source>Ra&amp;ndomness</source>
        <translation>&amp;Casualità</translation>
    </message>
    <message>
        <source>Vary the looks slightly</source>
        <translation>Varia leggermente gli effetti</translation>
    </message>
    <message>
        <source>Re-e&amp;xpose</source>
        <translation>&amp;Riesponi</translation>
    </message>
    <message>
        <source>Draw a new variation (Ctrl+E)</source>
        <translation>Estrai una nuova variante (Ctrl+E)</translation>
    </message>
    <message>
        <source>Fla&amp;tten</source>
        <translation>I&amp;ncorpora</translation>
    </message>
    <message>
        <source>Bake the looks into the photo (Ctrl+Shift+F)</source>
        <translation>Rendi gli effetti parte della foto (Ctrl+Maiusc+F)</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Salva…</translation>
    </message>
    <message>
        <source>Save as JPEG (Ctrl+S)</source>
        <translation>Salva come JPEG (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Saved %1, %2 x %3, %4</source>
        <translation>Salvato %1, %2 x %3, %4</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>Dimensioni &amp;reali</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Rid&amp;uci</translation>
    </message>
    <message>
        <source>The photo cannot be shown at its actual size.</source>
        <translation>Impossibile mostrare la foto a dimensioni reali.</translation>
    </message>
    <message>
        <source>The preview cannot be shown.</source>
        <translation>Impossibile mostrare l&apos;anteprima.</translation>
    </message>
    <message>
        <source>Multiple looks</source>
        <translation>Più effetti</translation>
    </message>
    <message>
        <source>Randomness</source>
        <translation>Casualità</translation>
    </message>
    <message>
        <source>Re-expose</source>
        <translation>Riesponi</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>The photo cannot be copied.</source>
        <translation>Impossibile copiare la foto.</translation>
    </message>
    <message>
        <source>Copied, %1 x %2</source>
        <translation>Copiata, %1 x %2</translation>
    </message>
    <message>
        <source>The picture cannot be pasted.</source>
        <translation>Impossibile incollare l&apos;immagine.</translation>
    </message>
    <message>
        <source>The program that it was copied from does not give it.</source>
        <translation>Il programma da cui è stata copiata non la fornisce.</translation>
    </message>
    <message>
        <source>It has more pixels than a photo may have.</source>
        <translation>Ha più pixel di quanti ne possa avere una foto.</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>Immagine incollata</translation>
    </message>
    <message>
        <source>&amp;Before and after</source>
        <translation>Prima e d&amp;opo</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>Impossibile aprire “%1”.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Manca il resto del file.</translation>
    </message>
    <message>
        <source>Lumora - %1</source>
        <translation>Lumora - %1</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Ruota a sinistra</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Ruota a destra</translation>
    </message>
    <message>
        <source>The photo cannot be flattened.</source>
        <translation>Impossibile incorporare gli effetti nella foto.</translation>
    </message>
    <message>
        <source>Flatten</source>
        <translation>Incorpora</translation>
    </message>
    <message>
        <source>The photo cannot be saved.</source>
        <translation>Impossibile salvare la foto.</translation>
    </message>
    <message>
        <source>Encode</source>
        <translation>Codifica</translation>
    </message>
    <message>
        <source>&amp;Whole screen</source>
        <translation>Sc&amp;hermo intero</translation>
    </message>
    <message>
        <source>For the photo</source>
        <translation>Per la foto</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Apri…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Salva…</translation>
    </message>
    <message>
        <source>Save &amp;Many…</source>
        <translation>Salva &amp;in serie…</translation>
    </message>
    <message>
        <source>&amp;Keep with the photo</source>
        <translation>&amp;Conserva con la foto</translation>
    </message>
    <message>
        <source>&amp;Everything it carried</source>
        <translation>&amp;Tutto ciò che conteneva</translation>
    </message>
    <message>
        <source>Everything but the &amp;place</source>
        <translation>Tutto tranne il &amp;luogo</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Niente</translation>
    </message>
    <message>
        <source>&amp;JPEG quality</source>
        <translation>&amp;Qualità JPEG</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>&amp;Alta</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>&amp;Massima</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Photo</source>
        <translation>F&amp;oto</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>Ruota a sinis&amp;tra</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>Ruota a &amp;destra</translation>
    </message>
    <message>
        <source>&amp;Flatten</source>
        <translation>I&amp;ncorpora</translation>
    </message>
    <message>
        <source>R&amp;e-expose</source>
        <translation>Ri&amp;esponi</translation>
    </message>
    <message>
        <source>&amp;Looks</source>
        <translation>&amp;Effetti</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Lumora &amp;Help</source>
        <translation>&amp;Guida di Lumora</translation>
    </message>
    <message>
        <source>&amp;About Lumora</source>
        <translation>&amp;Informazioni su Lumora</translation>
    </message>
    <message>
        <source>All photos (%1)</source>
        <translation>Tutte le foto (%1)</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>Foto (%1)</translation>
    </message>
    <message>
        <source>Select a file to open</source>
        <translation>Seleziona un file da aprire</translation>
    </message>
    <message>
        <source>Select the photos</source>
        <translation>Seleziona le foto</translation>
    </message>
    <message>
        <source>Select a folder with photos</source>
        <translation>Seleziona una cartella con foto</translation>
    </message>
    <message>
        <source>Select the folder to save into</source>
        <translation>Seleziona la cartella in cui salvare</translation>
    </message>
    <message>
        <source>&amp;Next photo</source>
        <translation>Foto &amp;successiva</translation>
    </message>
    <message>
        <source>&amp;Previous photo</source>
        <translation>Foto &amp;precedente</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Apri &amp;recenti</translation>
    </message>
    <message>
        <source>This is the last photo.</source>
        <translation>Questa è l&apos;ultima foto.</translation>
    </message>
    <message>
        <source>This is the first photo.</source>
        <translation>Questa è la prima foto.</translation>
    </message>
    <message>
        <source>&amp;Weaker</source>
        <translation>Più &amp;debole</translation>
    </message>
    <message>
        <source>&amp;Stronger</source>
        <translation>Più &amp;forte</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensità</translation>
    </message>
    <message>
        <source>Stren&amp;gth %1 %</source>
        <translation>&amp;Intensità %1%</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annulla: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Ripeti: %1</translation>
    </message>
    <message>
        <source>The photo cannot be turned.</source>
        <translation>Impossibile ruotare la foto.</translation>
    </message>
    <message>
        <source>Lumora by Dovrel</source>
        <translation>Lumora di Dovrel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a look and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordo</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Ritaglio</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Misura</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>Impossibile mostrare la guida.</translation>
    </message>
    <message>
        <source>It stands at %1.</source>
        <translation>Si trova in %1.</translation>
    </message>
    <message>
        <source>Lumora Mac, Version 1.0</source>
        <translation>Lumora Mac, versione 1.0</translation>
    </message>
    <message>
        <source>Copyright © 2026 Dovrel</source>
        <translation>Copyright © 2026 Dovrel</translation>
    </message>
    <message>
        <source>Decode</source>
        <translation>Decodifica</translation>
    </message>
    <message>
        <source>%1 · Strength: %2 % · Crop: %3 · Border: %4 · Size: %5 · Quality: %6</source>
        <translation>%1 · Intensità: %2% · Ritaglio: %3 · Bordo: %4 · Misura: %5 · Qualità: %6</translation>
    </message>
</context>
<context>
    <name>Reason</name>
    <message>
        <source>There is no permission to write there.</source>
        <translation>Manca il permesso di scrivere in quella posizione.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Il disco è pieno.</translation>
    </message>
    <message>
        <source>The file is larger than may be written there.</source>
        <translation>Il file è più grande di quanto si possa scrivere in quella posizione.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La cartella non esiste.</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>Il nome del file è troppo lungo.</translation>
    </message>
    <message>
        <source>The link leads to itself.</source>
        <translation>Il collegamento porta a se stesso.</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>Esiste già un file con quel nome.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Esiste una cartella con quel nome.</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>Impossibile scrivere il file: %1.</translation>
    </message>
    <message>
        <source>The animation is too large: %1 x %2 pixels.</source>
        <translation>L&apos;animazione è troppo grande: %1 x %2 pixel.</translation>
    </message>
    <message>
        <source>The picture is of a kind that cannot be read: it has %1 channels of %2 bits.</source>
        <translation>L&apos;immagine è di un tipo che non si può leggere: ha %1 canali da %2 bit.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has parts of %1 x %2 pixels.</source>
        <translation>L&apos;immagine è danneggiata: ha parti di %1 x %2 pixel.</translation>
    </message>
    <message>
        <source>It is a HEIC or AVIF photo. This Lumora was built without libheif, which reads them.</source>
        <translation>È una foto HEIC o AVIF. Questa versione di Lumora è stata compilata senza libheif, che le legge.</translation>
    </message>
    <message>
        <source>It is a JPEG XL photo. This Lumora was built without libjxl, which reads them.</source>
        <translation>È una foto JPEG XL. Questa versione di Lumora è stata compilata senza libjxl, che le legge.</translation>
    </message>
    <message>
        <source>It is a camera&apos;s raw photo. This Lumora was built without LibRaw, which reads them.</source>
        <translation>È una foto raw di una fotocamera. Questa versione di Lumora è stata compilata senza LibRaw, che le legge.</translation>
    </message>
    <message>
        <source>There is not enough free memory for a picture of %1 x %2 pixels.</source>
        <translation>Non c&apos;è abbastanza memoria libera per un&apos;immagine di %1 x %2 pixel.</translation>
    </message>
    <message>
        <source>There is not enough free memory for the picture.</source>
        <translation>Non c&apos;è abbastanza memoria libera per l&apos;immagine.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 x %2 pixels. At most %3 megapixels can be opened.</source>
        <translation>L&apos;immagine è troppo grande: %1 x %2 pixel. Si possono aprire al massimo %3 megapixel.</translation>
    </message>
    <message>
        <source>The picture is damaged: the file is too small for %1 x %2 pixels.</source>
        <translation>L&apos;immagine è danneggiata: il file è troppo piccolo per %1 x %2 pixel.</translation>
    </message>
    <message>
        <source>The picture is damaged or of a kind that cannot be read.</source>
        <translation>L&apos;immagine è danneggiata o di un tipo che non si può leggere.</translation>
    </message>
    <message>
        <source>The file is not a picture of a kind that can be read.</source>
        <translation>Il file non è un&apos;immagine di un tipo che si può leggere.</translation>
    </message>
    <message>
        <source>The picture is of a kind that is not supported.</source>
        <translation>L&apos;immagine è di un tipo non supportato.</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read.</source>
        <translation>L&apos;immagine è danneggiata e non si può leggere.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has too many parts.</source>
        <translation>L&apos;immagine è danneggiata: ha troppe parti.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Il file non esiste.</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>Manca il permesso di leggere il file.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Impossibile aprire il file: %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Il file è vuoto.</translation>
    </message>
    <message>
        <source>It is a folder, not a picture.</source>
        <translation>È una cartella, non un&apos;immagine.</translation>
    </message>
    <message>
        <source>It is not a file with a picture.</source>
        <translation>Non è un file con un&apos;immagine.</translation>
    </message>
    <message>
        <source>Reading it failed: the file is damaged, or made to do harm.</source>
        <translation>La lettura non è riuscita: il file è danneggiato, o creato per fare danni.</translation>
    </message>
    <message>
        <source>Reading it takes too long: the file is damaged, or made to do harm.</source>
        <translation>La lettura richiede troppo tempo: il file è danneggiato, o creato per fare danni.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to other files, which no picture needs.</source>
        <translation>La lettura è stata interrotta: il file rimandava ad altri file, di cui nessuna immagine ha bisogno.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to the network, which no picture needs.</source>
        <translation>La lettura è stata interrotta: il file rimandava alla rete, di cui nessuna immagine ha bisogno.</translation>
    </message>
    <message>
        <source>Reading it was cancelled.</source>
        <translation>La lettura è stata annullata.</translation>
    </message>
    <message>
        <source>The program that reads photos cannot be started. Lumora is not completely installed.</source>
        <translation>Impossibile avviare il programma che legge le foto. L&apos;installazione di Lumora non è completa.</translation>
    </message>
    <message>
        <source>A JPEG cannot hold %1 x %2 pixels. Choose a smaller size.</source>
        <translation>Un JPEG non può contenere %1 x %2 pixel. Scegli una misura più piccola.</translation>
    </message>
    <message>
        <source>The output would replace a photo that is to be rendered.</source>
        <translation>Il risultato sostituirebbe una foto ancora da elaborare.</translation>
    </message>
    <message>
        <source>The picture cannot be encoded.</source>
        <translation>Impossibile codificare l&apos;immagine.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Manca il resto del file.</translation>
    </message>
    <message>
        <source>Another photo of this run has the same output.</source>
        <translation>Un&apos;altra foto di questa serie ha lo stesso file di destinazione.</translation>
    </message>
    <message>
        <source>Rendering it was ended from outside, as happens where the memory runs out.</source>
        <translation>L&apos;elaborazione è stata interrotta dall&apos;esterno, come accade quando la memoria si esaurisce.</translation>
    </message>
    <message>
        <source>Rendering it failed: the program broke down.</source>
        <translation>L&apos;elaborazione non è riuscita: il programma si è bloccato.</translation>
    </message>
    <message>
        <source>No process can be started for it.</source>
        <translation>Impossibile avviare un processo per l&apos;operazione.</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Svuota l&apos;elenco</translation>
    </message>
</context>
<context>
    <name>RenderStep</name>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordo</translation>
    </message>
</context>
<context>
    <name>SaveManyPanel</name>
    <message>
        <source>No folder chosen</source>
        <translation>Nessuna cartella scelta</translation>
    </message>
    <message>
        <source>Choose &amp;Photos…</source>
        <translation>Scegli &amp;foto…</translation>
    </message>
    <message>
        <source>Choose a &amp;Folder…</source>
        <translation>Scegli &amp;cartella…</translation>
    </message>
    <message>
        <source>Save &amp;Into…</source>
        <translation>Salva &amp;in…</translation>
    </message>
    <message>
        <source>&amp;Save Them</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save Many</source>
        <translation>Salva in serie</translation>
    </message>
    <message>
        <source>The photo saved last</source>
        <translation>L&apos;ultima foto salvata</translation>
    </message>
    <message>
        <source>Photos done</source>
        <translation>Foto completate</translation>
    </message>
    <message>
        <source>Photos that were not saved, or are damaged</source>
        <translation>Foto non salvate o danneggiate</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>In</translation>
    </message>
    <message>
        <source>No photos chosen</source>
        <translation>Nessuna foto scelta</translation>
    </message>
    <message numerus="yes">
        <source>%1 and others: %Ln photos</source>
        <translation>
            <numerusform>%1 e altre: %Ln foto</numerusform>
            <numerusform>%1 e altre: %Ln foto</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>Tempo rimanente: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The program that renders photos cannot be started. Lumora is not completely installed.</source>
        <translation>Impossibile avviare il programma che elabora le foto. L&apos;installazione di Lumora non è completa.</translation>
    </message>
    <message>
        <source>Cancelled. What was saved stays.</source>
        <translation>Annullato. Ciò che è stato salvato resta.</translation>
    </message>
    <message>
        <source>It ended before all photos were done.</source>
        <translation>È terminato prima che tutte le foto fossero completate.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Salvate: %1</translation>
    </message>
    <message>
        <source>Already there: %1</source>
        <translation>Già presenti: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Non salvate: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Scelte</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Save as JPEG</source>
        <translation>Salva come JPEG</translation>
    </message>
    <message>
        <source>JPEG, whatever the ending: %1</source>
        <translation>JPEG, qualunque sia l&apos;estensione: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be saved there. %2</source>
        <translation>Impossibile salvare “%1” in quella posizione. %2</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sostituisci</translation>
    </message>
    <message>
        <source>This is the photo that you opened. Replacing it cannot be undone.</source>
        <translation>Questa è la foto che hai aperto. La sostituzione non si può annullare.</translation>
    </message>
    <message>
        <source>Keep both saves “%1” beside it.</source>
        <translation>Mantieni entrambe salva “%1” accanto a essa.</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Mantieni entrambe</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>“%1” esiste già. Vuoi sostituirlo?</translation>
    </message>
</context>
<context>
    <name>SplitLine</name>
    <message>
        <source>Drag it across the photo. Esc ends the comparison.</source>
        <translation>Trascinala sulla foto. Esc termina il confronto.</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>Linea tra prima e dopo</translation>
    </message>
</context>
</TS>

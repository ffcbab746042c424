<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Desktop</name>
    <message>
        <source>Photo Looks</source>
        <translation>Efekty fotograficzne</translation>
    </message>
    <message>
        <source>Give a photo a look and save it</source>
        <translation>Nadaj zdjęciu efekt i zapisz je</translation>
    </message>
    <message>
        <source>Lumora shows one photo large and, beside it, what it would be under each of its looks: cool and muted, warm and faded, black and white, like an instant print or a frame of a film. One press applies a look; with multiple looks switched on, they stack in the order in which they were chosen.</source>
        <translation>Lumora pokazuje duże zdjęcie, a obok to, jak wyglądałoby z każdym z efektów: chłodne i stonowane, ciepłe i wyblakłe, czarno-białe, jak odbitka natychmiastowa lub klatka filmu. Jedno naciśnięcie stosuje efekt; gdy włączono wiele efektów, nakładają się w kolejności, w jakiej je wybrano.</translation>
    </message>
    <message>
        <source>What it does:</source>
        <translation>Co potrafi:</translation>
    </message>
    <message>
        <source>looks from instant prints to infrared film, many of which can be varied at random</source>
        <translation>efekty od odbitki natychmiastowej po film podczerwony, z których wiele może się losowo zmieniać</translation>
    </message>
    <message>
        <source>crops and borders that come with a look or are chosen by hand</source>
        <translation>kadry i ramki należące do efektu lub wybierane ręcznie</translation>
    </message>
    <message>
        <source>quarter turns, looks made permanent, and JPEG files in the size that is wanted</source>
        <translation>obroty o ćwierć, efekty na stałe i pliki JPEG w wybranym rozmiarze</translation>
    </message>
    <message>
        <source>opens JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos, upright and in their right colours</source>
        <translation>otwiera zdjęcia JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD i surowe zdjęcia z aparatów, prosto i we właściwych kolorach</translation>
    </message>
    <message>
        <source>works by mouse, by keyboard and with a screen reader</source>
        <translation>działa z myszą, klawiaturą i czytnikiem ekranu</translation>
    </message>
    <message>
        <source>A photo under the look Mono, above the strip of looks</source>
        <translation>Zdjęcie z efektem Mono, nad rzędem efektów</translation>
    </message>
    <message>
        <source>The photo before and after the look 1974, on either side of a line</source>
        <translation>Zdjęcie przed efektem 1974 i po nim, po obu stronach linii</translation>
    </message>
    <message>
        <source>Give a photo a look, a crop and a border, and save it</source>
        <translation>Nadaj zdjęciu efekt, kadr i ramkę, i zapisz je</translation>
    </message>
    <message>
        <source>photo;picture;look;filter;effect;border;crop;instant;retro;</source>
        <translation>zdjęcie;obraz;look;filtr;efekt;ramka;kadr;natychmiastowe;retro;</translation>
    </message>
    <message>
        <source>Compare, look closely, and save many photos at once:</source>
        <translation>Porównywanie, oglądanie z bliska i zapisywanie wielu zdjęć naraz:</translation>
    </message>
    <message>
        <source>the photo beside what it was, on either side of a line</source>
        <translation>zdjęcie obok tego, czym było, po obu stronach linii</translation>
    </message>
    <message>
        <source>every pixel as it will be saved, at 50, 100 or 200 %</source>
        <translation>każdy piksel taki, jaki zostanie zapisany, przy 50, 100 lub 200 %</translation>
    </message>
    <message>
        <source>many photos or a whole folder under the looks that are chosen</source>
        <translation>wiele zdjęć lub cały folder z wybranymi efektami</translation>
    </message>
    <message>
        <source>photos through the clipboard, and dragged out of the window</source>
        <translation>zdjęcia przez schowek i przeciągane z okna</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>Pierwsze wydanie.</translation>
    </message>
    <message>
        <source>give many photos the same looks</source>
        <translation>nadaje wielu zdjęciom te same efekty</translation>
    </message>
    <message>
        <source>give one photo a look</source>
        <translation>nadaje zdjęciu efekt</translation>
    </message>
</context>
<context>
    <name>DragDropImageView</name>
    <message>
        <source>Before: the photo without its looks, in its crop and border.</source>
        <translation>Przed: zdjęcie bez efektów, w swoim kadrze i ramce.</translation>
    </message>
    <message>
        <source>The photo as it will be saved, at %1 %. Drag it or press the arrow keys to see other parts of it.</source>
        <translation>Zdjęcie takie, jakie zostanie zapisane, w skali %1%. Przeciągnij je lub naciśnij klawisze strzałek, aby zobaczyć inne fragmenty.</translation>
    </message>
    <message>
        <source>Before on the left, after on the right of a line that the arrow keys move.</source>
        <translation>Po lewej przed, po prawej po; linię między nimi przesuwają klawisze strzałek.</translation>
    </message>
    <message>
        <source>The photo under the applied looks. Hold the mouse or the space bar to see it before.</source>
        <translation>Zdjęcie z zastosowanymi efektami. Przytrzymaj przycisk myszy lub spację, aby zobaczyć je bez nich.</translation>
    </message>
    <message>
        <source>Drop a photo here, or open one.</source>
        <translation>Upuść tu zdjęcie albo je otwórz.</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Po</translation>
    </message>
</context>
<context>
    <name>FramingChoice</name>
    <message>
        <source>By Filter</source>
        <translation>Wg efektu</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Kwadrat</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Cienka</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Średnia</translation>
    </message>
    <message>
        <source>Thick</source>
        <translation>Gruba</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Zaokrąglona</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Oryginał</translation>
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
        <translation>brak</translation>
    </message>
    <message>
        <source>all others</source>
        <translation>wszystkie pozostałe</translation>
    </message>
    <message>
        <source>Lumora Help</source>
        <translation>Pomoc programu Lumora</translation>
    </message>
    <message>
        <source>Lumora</source>
        <translation>Lumora</translation>
    </message>
    <message>
        <source>Lumora gives one photo a look, a crop and a border, and saves the result as a JPEG file. The photo on your disk is never changed: what you see is a picture made from it, and it is written only where you say.</source>
        <translation>Lumora nadaje zdjęciu efekt, kadr i ramkę, a wynik zapisuje jako plik JPEG. Zdjęcie na dysku nigdy się nie zmienia: to, co widzisz, jest obrazem utworzonym na jego podstawie i zapisywanym tylko tam, gdzie wskażesz.</translation>
    </message>
    <message>
        <source>A photo comes in</source>
        <translation>Otwieranie zdjęcia</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Open&lt;/b&gt;, drop a file on the large picture, or open a photo with Lumora from your file manager. JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos open, and whatever else your desktop can decode. A photo that replaces another takes over the looks that are switched on. A file that is not a photo is refused, and the photo before it stays.</source>
        <translation>Naciśnij &lt;b&gt;Otwórz&lt;/b&gt;, upuść plik na dużym obrazie albo otwórz zdjęcie w programie Lumora z menedżera plików. Można otwierać zdjęcia JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD i surowe zdjęcia z aparatów (RAW), a także wszystko inne, co potrafi odczytać twoje środowisko graficzne. Zdjęcie, które zastępuje inne, przejmuje włączone efekty. Plik, który nie jest zdjęciem, zostaje odrzucony, a poprzednie zdjęcie pozostaje.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt; and &lt;b&gt;Page Up&lt;/b&gt; go to the next and the previous photo of the folder, in the order of their names, and the looks stay on; what is no photo is passed over. Where several files were opened with Lumora at once, the keys go through those. &lt;b&gt;File, Open recent&lt;/b&gt; has the eight photos that were opened last.</source>
        <translation>&lt;b&gt;Page Down&lt;/b&gt; i &lt;b&gt;Page Up&lt;/b&gt; przechodzą do następnego i poprzedniego zdjęcia w folderze, w kolejności nazw, a efekty pozostają włączone; to, co nie jest zdjęciem, jest pomijane. Jeśli w programie Lumora otwarto kilka plików naraz, klawisze przechodzą między nimi. &lt;b&gt;Plik, Ostatnio otwarte&lt;/b&gt; zawiera osiem ostatnio otwartych zdjęć.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Edit, Paste&lt;/b&gt; opens a picture that another program copied, or a copied file. &lt;b&gt;Edit, Copy&lt;/b&gt; puts the photo as it would be saved on the clipboard; and the photo can be dragged out of Lumora, as a file or as a picture: press on it and move.</source>
        <translation>&lt;b&gt;Edycja, Wklej&lt;/b&gt; otwiera obraz skopiowany w innym programie albo skopiowany plik. &lt;b&gt;Edycja, Kopiuj&lt;/b&gt; umieszcza w schowku zdjęcie takie, jakie zostałoby zapisane; zdjęcie można też przeciągnąć poza program Lumora, jako plik lub jako obraz: naciśnij na nim przycisk myszy i przesuń.</translation>
    </message>
    <message>
        <source>Looks, one or several</source>
        <translation>Efekty, jeden lub kilka</translation>
    </message>
    <message>
        <source>Each button shows your photo under its look; press it to apply the look, and press it again to take it off. &lt;b&gt;Original&lt;/b&gt; takes all looks off. Where the window is narrow the row of looks scrolls: by the wheel over it, by its bar, or by the arrow keys.</source>
        <translation>Każdy przycisk pokazuje twoje zdjęcie z danym efektem; naciśnij go, aby zastosować efekt, i ponownie, aby go zdjąć. &lt;b&gt;Original&lt;/b&gt; zdejmuje wszystkie efekty. W wąskim oknie rząd efektów się przewija: kółkiem myszy nad nim, paskiem przewijania albo klawiszami strzałek.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Multiple looks&lt;/b&gt; switched on, looks stack in the order in which you press them. The line above the photo shows the chain, for example &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Pressing a look of the chain takes it out and leaves the others in order, and the buttons carry their numbers. Switching back to one look keeps the one that came last.</source>
        <translation>Gdy włączona jest opcja &lt;b&gt;Wiele efektów&lt;/b&gt;, efekty nakładają się w kolejności naciskania. Wiersz nad zdjęciem pokazuje łańcuch, na przykład &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Naciśnięcie efektu w łańcuchu usuwa go i pozostawia resztę w tej samej kolejności, a na przyciskach widać ich numery. Po powrocie do jednego efektu zostaje ten dodany ostatnio.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Strength&lt;/b&gt; takes the looks back in part: at 0 the photo shows as it came, in its crop and border. The thumbnails, and every new look or chain, have the whole strength.</source>
        <translation>&lt;b&gt;Siła&lt;/b&gt; częściowo cofa efekty: przy 0 zdjęcie wygląda tak jak na początku, w swoim kadrze i ramce. Miniatury oraz każdy nowy efekt lub łańcuch mają pełną siłę.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Randomness&lt;/b&gt; switched on, many looks vary a little, the same way until you press &lt;b&gt;Re-expose&lt;/b&gt;, which draws a new variation. Randomness is off whenever Lumora starts.</source>
        <translation>Gdy włączona jest &lt;b&gt;Losowość&lt;/b&gt;, wiele efektów nieco się zmienia, zawsze tak samo, dopóki nie naciśniesz &lt;b&gt;Naświetl znów&lt;/b&gt;, co losuje nowy wariant. Po uruchomieniu programu Lumora losowość jest zawsze wyłączona.</translation>
    </message>
    <message>
        <source>Crop and border</source>
        <translation>Kadr i ramka</translation>
    </message>
    <message>
        <source>&lt;b&gt;By Filter&lt;/b&gt; takes the crop and the border that belong to the look that you added last:</source>
        <translation>&lt;b&gt;Wg efektu&lt;/b&gt; wybiera kadr i ramkę należące do ostatnio dodanego efektu:</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Efekt</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Kadr</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Ramka</translation>
    </message>
    <message>
        <source>The other entries choose a crop or a border whatever the look; &lt;b&gt;None&lt;/b&gt; switches it off. A border is put round the photo and hides nothing of it. 6x4, 4x3 and 7x6 turn with a portrait photo; Cinema stays a wide strip.</source>
        <translation>Pozostałe pozycje wybierają kadr lub ramkę niezależnie od efektu; &lt;b&gt;Brak&lt;/b&gt; je wyłącza. Ramka otacza zdjęcie i niczego na nim nie zasłania. 6x4, 4x3 i 7x6 obracają się przy zdjęciu pionowym; Cinema pozostaje szerokim pasem.</translation>
    </message>
    <message>
        <source>Turn, flatten, save</source>
        <translation>Obracanie, spłaszczanie, zapisywanie</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rotate&lt;/b&gt; turns the photo by a quarter; the looks stay.</source>
        <translation>&lt;b&gt;Obróć&lt;/b&gt; obraca zdjęcie o ćwierć obrotu; efekty pozostają.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Flatten&lt;/b&gt; makes the looks, the crop and the border part of the photo, so that further looks start from there.</source>
        <translation>&lt;b&gt;Spłaszcz&lt;/b&gt; czyni efekty, kadr i ramkę częścią zdjęcia, a kolejne efekty nakładają się już na wynik.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Size&lt;/b&gt; is the longer side of the saved picture in pixels. A smaller picture is enlarged to it; &lt;i&gt;Original&lt;/i&gt; keeps what the photo has.</source>
        <translation>&lt;b&gt;Rozmiar&lt;/b&gt; to dłuższy bok zapisanego obrazu w pikselach. Mniejszy obraz zostaje do niego powiększony; &lt;i&gt;Oryginał&lt;/i&gt; zachowuje rozmiar zdjęcia.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Save&lt;/b&gt; writes a JPEG file, whatever the ending of its name; an ending that is not in the list gets &lt;i&gt;.jpg&lt;/i&gt;. The photo that you opened is replaced only if you say so: &lt;i&gt;Keep both&lt;/i&gt; saves beside it. If a save fails, the file that stood there stays as it was.</source>
        <translation>&lt;b&gt;Zapisz&lt;/b&gt; tworzy plik JPEG, bez względu na rozszerzenie nazwy; do rozszerzenia, którego nie ma na liście, dodawane jest &lt;i&gt;.jpg&lt;/i&gt;. Otwarte zdjęcie zostanie zastąpione tylko na twoje polecenie: &lt;i&gt;Zachowaj oba&lt;/i&gt; zapisuje obok niego. Jeśli zapis się nie uda, plik, który tam był, pozostaje bez zmian.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Save Many&lt;/b&gt; (Ctrl+Shift+S) gives many photos, or all of a folder, what is chosen now: looks, strength, crop, border, size, variation, quality. They go into a folder of your choice, named after photo and looks; a file that stands there stays. &lt;i&gt;Cancel&lt;/i&gt; keeps what is saved, and another time goes on from there. What cannot be saved is listed with its reason. In a terminal &lt;i&gt;lumora-render&lt;/i&gt; does the same.</source>
        <translation>&lt;b&gt;Plik, Zapisz wiele&lt;/b&gt; (Ctrl+Shift+S) nadaje wielu zdjęciom albo wszystkim w folderze to, co jest teraz wybrane: efekty, siłę, kadr, ramkę, rozmiar, wariant i jakość. Trafiają one do wybranego folderu, z nazwami od zdjęcia i efektów; plik, który już tam jest, pozostaje. &lt;i&gt;Anuluj&lt;/i&gt; zachowuje to, co zapisano, i następnym razem można kontynuować od tego miejsca. To, czego nie da się zapisać, jest wymienione wraz z przyczyną. W terminalu to samo robi &lt;i&gt;lumora-render&lt;/i&gt;.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Keep with the photo&lt;/b&gt;: what the camera and others wrote into the photo (its date, the camera, a title, the caption, and also &lt;i&gt;where it was taken&lt;/i&gt;) goes into the saved file. &lt;i&gt;Everything but the place&lt;/i&gt; leaves out the coordinates, the names of city, country and location, and the camera maker&apos;s own notes, which may tell the place; &lt;i&gt;Nothing&lt;/i&gt; leaves out all. Preview pictures of the photo as it was are never kept. The choice is remembered.</source>
        <translation>&lt;b&gt;Plik, Zachowaj ze zdjęciem&lt;/b&gt;: to, co aparat i inne programy zapisały w zdjęciu (data, aparat, tytuł, opis, a także &lt;i&gt;miejsce wykonania&lt;/i&gt;), trafia do zapisanego pliku. &lt;i&gt;Wszystko oprócz miejsca&lt;/i&gt; pomija współrzędne, nazwy miasta, kraju i lokalizacji oraz własne dane producenta aparatu, które mogą zdradzać miejsce; &lt;i&gt;Nic&lt;/i&gt; pomija wszystko. Podglądy pierwotnego zdjęcia nigdy nie są zachowywane. Wybór zostaje zapamiętany.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, JPEG quality&lt;/b&gt;: &lt;i&gt;Standard&lt;/i&gt; is small; &lt;i&gt;High&lt;/i&gt; and &lt;i&gt;Best&lt;/i&gt; keep finer detail, and the colour of each pixel, in larger files. How large is told before and after a photo is saved. The choice is remembered.</source>
        <translation>&lt;b&gt;Plik, Jakość JPEG&lt;/b&gt;: &lt;i&gt;Standardowa&lt;/i&gt; daje mały plik; &lt;i&gt;Wysoka&lt;/i&gt; i &lt;i&gt;Najlepsza&lt;/i&gt; zachowują drobniejsze szczegóły i kolor każdego piksela, w większych plikach. Rozmiar pliku jest podawany przed zapisaniem zdjęcia i po nim. Wybór zostaje zapamiętany.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Cofanie</translation>
    </message>
    <message>
        <source>&lt;b&gt;Undo&lt;/b&gt; in the &lt;b&gt;Edit&lt;/b&gt; menu takes the last step back: a look, an option, a turn, a re-exposure or a flattening; &lt;b&gt;Redo&lt;/b&gt; takes it again. Flattened photos are kept for this as long as the memory has room for them. Another photo begins anew.</source>
        <translation>&lt;b&gt;Cofnij&lt;/b&gt; w menu &lt;b&gt;Edycja&lt;/b&gt; cofa ostatni krok: efekt, opcję, obrót, ponowne naświetlenie lub spłaszczenie; &lt;b&gt;Ponów&lt;/b&gt; wykonuje go jeszcze raz. W tym celu spłaszczone zdjęcia są przechowywane, dopóki starcza na nie pamięci. Przy innym zdjęciu wszystko zaczyna się od nowa.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Porównywanie</translation>
    </message>
    <message>
        <source>Hold the mouse button on the photo, or hold the space bar, to see it &lt;i&gt;before&lt;/i&gt;: without its looks, in the same crop and border. Let go to see the look again. &lt;b&gt;B&lt;/b&gt;, or &lt;b&gt;Photo, Before and after&lt;/b&gt;, shows both at once, before on the left: drag the line between them across the photo, or move it by the left and right arrow keys. Looks and options may change meanwhile. &lt;b&gt;B&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt; ends it.</source>
        <translation>Przytrzymaj przycisk myszy na zdjęciu albo spację, aby zobaczyć je &lt;i&gt;przed&lt;/i&gt;: bez efektów, w tym samym kadrze i ramce. Puść, aby znów zobaczyć efekt. &lt;b&gt;B&lt;/b&gt; lub &lt;b&gt;Zdjęcie, Przed i po&lt;/b&gt; pokazuje oba naraz, przed po lewej: przeciągnij dzielącą je linię po zdjęciu albo przesuń ją klawiszami strzałek w lewo i w prawo. Efekty i opcje można przy tym zmieniać. &lt;b&gt;B&lt;/b&gt; lub &lt;b&gt;Esc&lt;/b&gt; kończy porównanie.</translation>
    </message>
    <message>
        <source>The space bar and the digits do the same wherever the focus is; only an open list has its own keys. A short tap on the space bar presses the look that has the focus.</source>
        <translation>Spacja i cyfry działają tak samo niezależnie od tego, gdzie jest fokus; tylko otwarta lista ma własne klawisze. Krótkie naciśnięcie spacji wciska efekt, który ma fokus.</translation>
    </message>
    <message>
        <source>As it will be saved</source>
        <translation>Tak, jak zostanie zapisane</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Klawisze</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+O&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+O&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open a photo</source>
        <translation>otwórz zdjęcie</translation>
    </message>
    <message>
        <source>&lt;b&gt;1&lt;/b&gt; to &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</source>
        <translation>&lt;b&gt;1&lt;/b&gt; do &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the first ten looks: Original is 1, Helga is 2</source>
        <translation>pierwsze dziesięć efektów: Original to 1, Helga to 2</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt;, &lt;b&gt;Page Up&lt;/b&gt;</source>
        <translation>&lt;b&gt;Page Down&lt;/b&gt;, &lt;b&gt;Page Up&lt;/b&gt;</translation>
    </message>
    <message>
        <source>next photo, previous photo</source>
        <translation>następne zdjęcie, poprzednie zdjęcie</translation>
    </message>
    <message>
        <source>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</source>
        <translation>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</translation>
    </message>
    <message>
        <source>weaker, stronger looks</source>
        <translation>słabsze, mocniejsze efekty</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</translation>
    </message>
    <message>
        <source>save, save many</source>
        <translation>zapisz, zapisz wiele</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+E&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+E&lt;/b&gt;</translation>
    </message>
    <message>
        <source>re-expose</source>
        <translation>naświetl znów</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+C&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+C&lt;/b&gt;</translation>
    </message>
    <message>
        <source>copy what would be saved</source>
        <translation>kopiuj to, co zostałoby zapisane</translation>
    </message>
    <message>
        <source>&lt;b&gt;Space&lt;/b&gt; (hold)</source>
        <translation>&lt;b&gt;Spacja&lt;/b&gt; (przytrzymaj)</translation>
    </message>
    <message>
        <source>see the photo without its looks</source>
        <translation>pokaż zdjęcie bez efektów</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+V&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+V&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open what was copied</source>
        <translation>otwórz to, co skopiowano</translation>
    </message>
    <message>
        <source>&lt;b&gt;B&lt;/b&gt;</source>
        <translation>&lt;b&gt;B&lt;/b&gt;</translation>
    </message>
    <message>
        <source>before and after, side by side</source>
        <translation>przed i po, obok siebie</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take the last step back</source>
        <translation>cofnij ostatni krok</translation>
    </message>
    <message>
        <source>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</source>
        <translation>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</translation>
    </message>
    <message>
        <source>see the photo at actual size; fit it again</source>
        <translation>pokaż zdjęcie w rzeczywistym rozmiarze; znów dopasuj</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take it again</source>
        <translation>ponów go</translation>
    </message>
    <message>
        <source>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</source>
        <translation>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</translation>
    </message>
    <message>
        <source>larger, smaller</source>
        <translation>większe, mniejsze</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</translation>
    </message>
    <message>
        <source>turn left, turn right</source>
        <translation>obróć w lewo, obróć w prawo</translation>
    </message>
    <message>
        <source>&lt;b&gt;F11&lt;/b&gt;</source>
        <translation>&lt;b&gt;F11&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the photo alone on the whole screen, and back</source>
        <translation>samo zdjęcie na pełnym ekranie i z powrotem</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</translation>
    </message>
    <message>
        <source>flatten</source>
        <translation>spłaszcz</translation>
    </message>
    <message>
        <source>&lt;b&gt;Tab&lt;/b&gt;, arrows, &lt;b&gt;Return&lt;/b&gt;</source>
        <translation>&lt;b&gt;Tab&lt;/b&gt;, strzałki, &lt;b&gt;Enter&lt;/b&gt;</translation>
    </message>
    <message>
        <source>go from control to control; press it</source>
        <translation>przechodzenie między elementami; naciśnięcie</translation>
    </message>
    <message>
        <source>&lt;b&gt;F1&lt;/b&gt;</source>
        <translation>&lt;b&gt;F1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>ta pomoc</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Q&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Q&lt;/b&gt;</translation>
    </message>
    <message>
        <source>quit; your choices are kept</source>
        <translation>zakończ; twoje ustawienia zostają</translation>
    </message>
    <message>
        <source>The looks</source>
        <translation>Efekty</translation>
    </message>
    <message>
        <source>Each picture shows the look with its own crop and border.</source>
        <translation>Każdy obraz pokazuje efekt z jego własnym kadrem i ramką.</translation>
    </message>
    <message>
        <source>Cool and muted with strong contrast; darker and richer towards the edges.</source>
        <translation>Chłodny i stonowany, o mocnym kontraście; ku brzegom ciemniejszy i bardziej nasycony.</translation>
    </message>
    <message>
        <source>square</source>
        <translation>kwadrat</translation>
    </message>
    <message>
        <source>Strong colours and contrast, with warm light tones.</source>
        <translation>Mocne kolory i kontrasty, z ciepłymi jasnymi tonami.</translation>
    </message>
    <message>
        <source>thick white</source>
        <translation>gruba biała</translation>
    </message>
    <message>
        <source>Bright lights, little colour and a dark blue tint, like a frame of a film.</source>
        <translation>Jasne światła, mało koloru i ciemnoniebieski odcień, jak kadr z filmu.</translation>
    </message>
    <message>
        <source>16 to 9</source>
        <translation>16 do 9</translation>
    </message>
    <message>
        <source>black bars</source>
        <translation>czarne pasy</translation>
    </message>
    <message>
        <source>A contrasty black-and-white print of the sixties, with light skies.</source>
        <translation>Kontrastowa czarno-biała odbitka z lat sześćdziesiątych, z jasnym niebem.</translation>
    </message>
    <message>
        <source>7 to 6</source>
        <translation>7 do 6</translation>
    </message>
    <message>
        <source>A hard colour print under a brown wash that is strongest in the shadows.</source>
        <translation>Twarda kolorowa odbitka pod brązowym nalotem, najsilniejszym w cieniach.</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>zaokrąglona</translation>
    </message>
    <message>
        <source>Black and white over the full range of greys; blue skies print dark.</source>
        <translation>Czerń i biel w pełnej skali szarości; błękitne niebo wychodzi ciemne.</translation>
    </message>
    <message>
        <source>medium white</source>
        <translation>średnia biała</translation>
    </message>
    <message>
        <source>Cross-processed film: hard reds and greens, flat blues.</source>
        <translation>Film wywołany w procesie krzyżowym: ostre czerwienie i zielenie, płaskie błękity.</translation>
    </message>
    <message>
        <source>An instant print: soft tones, brown shadows and dark corners.</source>
        <translation>Zdjęcie natychmiastowe: miękkie tony, brązowe cienie i ciemne rogi.</translation>
    </message>
    <message>
        <source>an instant print</source>
        <translation>zdjęcie natychmiastowe</translation>
    </message>
    <message>
        <source>Warmed towards orange; darks darker, lights lighter, stronger colours.</source>
        <translation>Ocieplony ku pomarańczowemu; ciemne ciemniejsze, jasne jaśniejsze, mocniejsze kolory.</translation>
    </message>
    <message>
        <source>6 to 4</source>
        <translation>6 do 4</translation>
    </message>
    <message>
        <source>thin white</source>
        <translation>cienka biała</translation>
    </message>
    <message>
        <source>Infrared film: leaves turn bright, blue sky turns dark.</source>
        <translation>Film na podczerwień: liście jaśnieją, błękitne niebo ciemnieje.</translation>
    </message>
    <message>
        <source>A lens that magnifies the middle and bends the rest outward.</source>
        <translation>Obiektyw, który powiększa środek, a resztę wygina na zewnątrz.</translation>
    </message>
    <message>
        <source>a black surround</source>
        <translation>czarne otoczenie</translation>
    </message>
    <message>
        <source>A cheap camera that lets light in, at another place each time.</source>
        <translation>Tani aparat, który przepuszcza światło, za każdym razem w innym miejscu.</translation>
    </message>
    <message>
        <source>A cartoon: bands of brightness, strong colours, dark outlines.</source>
        <translation>Komiks: stopnie jasności, mocne kolory, ciemne kontury.</translation>
    </message>
    <message>
        <source>Cold and bleached, with a blue cast.</source>
        <translation>Zimny i wyblakły, z niebieską dominantą.</translation>
    </message>
    <message>
        <source>Over-exposed: light parts are pushed towards white.</source>
        <translation>Prześwietlony: jasne partie przesunięte ku bieli.</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Z&lt;/b&gt;, or click the photo twice, to see it at actual size: pixel by pixel what &lt;b&gt;Save&lt;/b&gt; writes, in the chosen size. Soft and grainy looks differ from the small picture. Drag the photo, or press the arrow keys, to see other parts; hold it still, or the space bar, to see it &lt;i&gt;before&lt;/i&gt;. The wheel with Ctrl and the keys &lt;b&gt;+&lt;/b&gt; and &lt;b&gt;-&lt;/b&gt; go through 50, 100 and 200 %; &lt;b&gt;Esc&lt;/b&gt; shows all of it again. &lt;b&gt;F11&lt;/b&gt; leaves the photo alone on the whole screen, where the keys stay at work, until &lt;b&gt;F11&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt;. The right mouse button and the menu key open a menu on the photo. Where your desktop knows the colour profile of your screen, photos are shown in its colours; what is saved stays the same.</source>
        <translation>Naciśnij &lt;b&gt;Z&lt;/b&gt; lub kliknij zdjęcie dwukrotnie, aby zobaczyć je w rzeczywistym rozmiarze: piksel po pikselu to, co utworzy &lt;b&gt;Zapisz&lt;/b&gt;, w wybranym rozmiarze. Efekty miękkie i ziarniste wyglądają inaczej niż na małym obrazie. Przeciągnij zdjęcie lub naciśnij klawisze strzałek, aby zobaczyć inne fragmenty; przytrzymaj je bez ruchu albo przytrzymaj spację, aby zobaczyć je &lt;i&gt;przed&lt;/i&gt;. Kółko myszy z klawiszem Ctrl oraz klawisze &lt;b&gt;+&lt;/b&gt; i &lt;b&gt;-&lt;/b&gt; przechodzą przez 50, 100 i 200%; &lt;b&gt;Esc&lt;/b&gt; pokazuje znów całość. &lt;b&gt;F11&lt;/b&gt; pozostawia na pełnym ekranie samo zdjęcie, a klawisze działają nadal, aż do &lt;b&gt;F11&lt;/b&gt; lub &lt;b&gt;Esc&lt;/b&gt;. Prawy przycisk myszy i klawisz menu otwierają menu na zdjęciu. Tam, gdzie pulpit zna profil kolorów ekranu, zdjęcia są pokazywane w jego kolorach; to, co jest zapisywane, pozostaje takie samo.</translation>
    </message>
</context>
<context>
    <name>LookButton</name>
    <message>
        <source>Applied as number %1</source>
        <translation>Zastosowany jako numer %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Applied looks</source>
        <translation>Zastosowane efekty</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Stop reading the photo (Esc)</source>
        <translation>Zatrzymaj wczytywanie zdjęcia (Esc)</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Drop a photo here. Hold to see the photo without its looks.</source>
        <translation>Upuść tu zdjęcie. Przytrzymaj, aby zobaczyć zdjęcie bez efektów.</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Otwórz…</translation>
    </message>
    <message>
        <source>Open a photo (Ctrl+O)</source>
        <translation>Otwórz zdjęcie (Ctrl+O)</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Obróć w lewo</translation>
    </message>
    <message>
        <source>Rotate left (Ctrl+L)</source>
        <translation>Obróć w lewo (Ctrl+L)</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Obróć w prawo</translation>
    </message>
    <message>
        <source>Rotate right (Ctrl+R)</source>
        <translation>Obróć w prawo (Ctrl+R)</translation>
    </message>
    <message>
        <source>&amp;Border</source>
        <translation>&amp;Ramka</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Kadr</translation>
    </message>
    <message>
        <source>S&amp;ize</source>
        <translation>Roz&amp;miar</translation>
    </message>
    <message>
        <source>Stren&amp;gth</source>
        <translation>S&amp;iła</translation>
    </message>
    <message>
        <source>How much of the looks is seen ([ and ])</source>
        <translation>Jak mocno widać efekty ([ i ])</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Siła</translation>
    </message>
    <message>
        <source>&amp;Multiple looks</source>
        <translation>&amp;Wiele efektów</translation>
    </message>
    <message>
        <source>Stack looks instead of replacing them</source>
        <translation>Nakładaj efekty, zamiast je zastępować</translation>
    </message>
    <message>
        <source>Ra&amp;ndomness</source>
        <translation>&amp;Losowość</translation>
    </message>
    <message>
        <source>Vary the looks slightly</source>
        <translation>Nieco zmieniaj efekty</translation>
    </message>
    <message>
        <source>Re-e&amp;xpose</source>
        <translation>&amp;Naświetl znów</translation>
    </message>
    <message>
        <source>Draw a new variation (Ctrl+E)</source>
        <translation>Wylosuj nowy wariant (Ctrl+E)</translation>
    </message>
    <message>
        <source>Fla&amp;tten</source>
        <translation>Spł&amp;aszcz</translation>
    </message>
    <message>
        <source>Bake the looks into the photo (Ctrl+Shift+F)</source>
        <translation>Utrwal efekty w zdjęciu (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Zapisz…</translation>
    </message>
    <message>
        <source>Save as JPEG (Ctrl+S)</source>
        <translation>Zapisz jako JPEG (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Saved %1, %2 x %3, %4</source>
        <translation>Zapisano %1, %2 x %3, %4</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>Rzeczywisty roz&amp;miar</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Po&amp;większ</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Pomnie&amp;jsz</translation>
    </message>
    <message>
        <source>The photo cannot be shown at its actual size.</source>
        <translation>Nie można pokazać zdjęcia w rzeczywistym rozmiarze.</translation>
    </message>
    <message>
        <source>The preview cannot be shown.</source>
        <translation>Nie można pokazać podglądu.</translation>
    </message>
    <message>
        <source>Multiple looks</source>
        <translation>Wiele efektów</translation>
    </message>
    <message>
        <source>Randomness</source>
        <translation>Losowość</translation>
    </message>
    <message>
        <source>Re-expose</source>
        <translation>Naświetl znów</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Wklej</translation>
    </message>
    <message>
        <source>The photo cannot be copied.</source>
        <translation>Nie można skopiować zdjęcia.</translation>
    </message>
    <message>
        <source>Copied, %1 x %2</source>
        <translation>Skopiowano, %1 x %2</translation>
    </message>
    <message>
        <source>The picture cannot be pasted.</source>
        <translation>Nie można wkleić obrazu.</translation>
    </message>
    <message>
        <source>The program that it was copied from does not give it.</source>
        <translation>Program, z którego go skopiowano, nie udostępnia go.</translation>
    </message>
    <message>
        <source>It has more pixels than a photo may have.</source>
        <translation>Ma więcej pikseli, niż może mieć zdjęcie.</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>Wklejony obraz</translation>
    </message>
    <message>
        <source>&amp;Before and after</source>
        <translation>P&amp;rzed i po</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>Nie można otworzyć „%1”.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Brakuje reszty pliku.</translation>
    </message>
    <message>
        <source>Lumora - %1</source>
        <translation>Lumora - %1</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Obróć w lewo</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Obróć w prawo</translation>
    </message>
    <message>
        <source>The photo cannot be flattened.</source>
        <translation>Nie można spłaszczyć zdjęcia.</translation>
    </message>
    <message>
        <source>Flatten</source>
        <translation>Spłaszcz</translation>
    </message>
    <message>
        <source>The photo cannot be saved.</source>
        <translation>Nie można zapisać zdjęcia.</translation>
    </message>
    <message>
        <source>Encode</source>
        <translation>Kodowanie</translation>
    </message>
    <message>
        <source>&amp;Whole screen</source>
        <translation>Pełny &amp;ekran</translation>
    </message>
    <message>
        <source>For the photo</source>
        <translation>Do zdjęcia</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Otwórz…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Zapisz…</translation>
    </message>
    <message>
        <source>Save &amp;Many…</source>
        <translation>Zapisz &amp;wiele…</translation>
    </message>
    <message>
        <source>&amp;Keep with the photo</source>
        <translation>Za&amp;chowaj ze zdjęciem</translation>
    </message>
    <message>
        <source>&amp;Everything it carried</source>
        <translation>&amp;Wszystko, co zawierało</translation>
    </message>
    <message>
        <source>Everything but the &amp;place</source>
        <translation>Wszystko oprócz &amp;miejsca</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Nic</translation>
    </message>
    <message>
        <source>&amp;JPEG quality</source>
        <translation>&amp;Jakość JPEG</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Standardowa</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>&amp;Wysoka</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>&amp;Najlepsza</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Photo</source>
        <translation>Z&amp;djęcie</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>Obróć w &amp;lewo</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>Obróć w &amp;prawo</translation>
    </message>
    <message>
        <source>&amp;Flatten</source>
        <translation>&amp;Spłaszcz</translation>
    </message>
    <message>
        <source>R&amp;e-expose</source>
        <translation>&amp;Naświetl znów</translation>
    </message>
    <message>
        <source>&amp;Looks</source>
        <translation>E&amp;fekty</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>Lumora &amp;Help</source>
        <translation>&amp;Pomoc programu Lumora</translation>
    </message>
    <message>
        <source>&amp;About Lumora</source>
        <translation>&amp;O programie Lumora</translation>
    </message>
    <message>
        <source>All photos (%1)</source>
        <translation>Wszystkie zdjęcia (%1)</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>Zdjęcia (%1)</translation>
    </message>
    <message>
        <source>Select a file to open</source>
        <translation>Wybierz plik do otwarcia</translation>
    </message>
    <message>
        <source>Select the photos</source>
        <translation>Wybierz zdjęcia</translation>
    </message>
    <message>
        <source>Select a folder with photos</source>
        <translation>Wybierz folder ze zdjęciami</translation>
    </message>
    <message>
        <source>Select the folder to save into</source>
        <translation>Wybierz folder, w którym zapisać</translation>
    </message>
    <message>
        <source>&amp;Next photo</source>
        <translation>Nas&amp;tępne zdjęcie</translation>
    </message>
    <message>
        <source>&amp;Previous photo</source>
        <translation>Poprze&amp;dnie zdjęcie</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Os&amp;tatnio otwarte</translation>
    </message>
    <message>
        <source>This is the last photo.</source>
        <translation>To jest ostatnie zdjęcie.</translation>
    </message>
    <message>
        <source>This is the first photo.</source>
        <translation>To jest pierwsze zdjęcie.</translation>
    </message>
    <message>
        <source>&amp;Weaker</source>
        <translation>&amp;Słabiej</translation>
    </message>
    <message>
        <source>&amp;Stronger</source>
        <translation>&amp;Mocniej</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Siła</translation>
    </message>
    <message>
        <source>Stren&amp;gth %1 %</source>
        <translation>S&amp;iła %1%</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Cofnij: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Ponów: %1</translation>
    </message>
    <message>
        <source>The photo cannot be turned.</source>
        <translation>Nie można obrócić zdjęcia.</translation>
    </message>
    <message>
        <source>Lumora by Dovrel</source>
        <translation>Lumora od Dovrel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a look and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Ramka</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Kadr</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>Nie można pokazać pomocy.</translation>
    </message>
    <message>
        <source>It stands at %1.</source>
        <translation>Znajduje się tutaj: %1.</translation>
    </message>
    <message>
        <source>Lumora Mac, Version 1.0</source>
        <translation>Lumora Mac, wersja 1.0</translation>
    </message>
    <message>
        <source>Copyright © 2026 Dovrel</source>
        <translation>Copyright © 2026 Dovrel</translation>
    </message>
    <message>
        <source>Decode</source>
        <translation>Dekodowanie</translation>
    </message>
    <message>
        <source>%1 · Strength: %2 % · Crop: %3 · Border: %4 · Size: %5 · Quality: %6</source>
        <translation>%1 · Siła: %2% · Kadr: %3 · Ramka: %4 · Rozmiar: %5 · Jakość: %6</translation>
    </message>
</context>
<context>
    <name>Reason</name>
    <message>
        <source>There is no permission to write there.</source>
        <translation>Brak uprawnień do zapisu w tym miejscu.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Dysk jest pełny.</translation>
    </message>
    <message>
        <source>The file is larger than may be written there.</source>
        <translation>Plik jest większy, niż można tam zapisać.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Folder nie istnieje.</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>Nazwa pliku jest za długa.</translation>
    </message>
    <message>
        <source>The link leads to itself.</source>
        <translation>Dowiązanie prowadzi do samego siebie.</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>Plik o tej nazwie już istnieje.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Istnieje folder o tej nazwie.</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>Nie można zapisać pliku: %1.</translation>
    </message>
    <message>
        <source>The animation is too large: %1 x %2 pixels.</source>
        <translation>Animacja jest za duża: %1 x %2 pikseli.</translation>
    </message>
    <message>
        <source>The picture is of a kind that cannot be read: it has %1 channels of %2 bits.</source>
        <translation>Nie można odczytać obrazu tego rodzaju: liczba kanałów: %1, bitów na kanał: %2.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has parts of %1 x %2 pixels.</source>
        <translation>Obraz jest uszkodzony: ma części o rozmiarze %1 x %2 pikseli.</translation>
    </message>
    <message>
        <source>It is a HEIC or AVIF photo. This Lumora was built without libheif, which reads them.</source>
        <translation>To jest zdjęcie HEIC lub AVIF. Ta wersja programu Lumora została zbudowana bez biblioteki libheif, która je odczytuje.</translation>
    </message>
    <message>
        <source>It is a JPEG XL photo. This Lumora was built without libjxl, which reads them.</source>
        <translation>To jest zdjęcie JPEG XL. Ta wersja programu Lumora została zbudowana bez biblioteki libjxl, która je odczytuje.</translation>
    </message>
    <message>
        <source>It is a camera&apos;s raw photo. This Lumora was built without LibRaw, which reads them.</source>
        <translation>To jest surowe zdjęcie z aparatu (RAW). Ta wersja programu Lumora została zbudowana bez biblioteki LibRaw, która je odczytuje.</translation>
    </message>
    <message>
        <source>There is not enough free memory for a picture of %1 x %2 pixels.</source>
        <translation>Za mało wolnej pamięci na obraz o rozmiarze %1 x %2 pikseli.</translation>
    </message>
    <message>
        <source>There is not enough free memory for the picture.</source>
        <translation>Za mało wolnej pamięci na ten obraz.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 x %2 pixels. At most %3 megapixels can be opened.</source>
        <translation>Obraz jest za duży: %1 x %2 pikseli. Można otworzyć najwyżej %3 megapikseli.</translation>
    </message>
    <message>
        <source>The picture is damaged: the file is too small for %1 x %2 pixels.</source>
        <translation>Obraz jest uszkodzony: plik jest za mały na %1 x %2 pikseli.</translation>
    </message>
    <message>
        <source>The picture is damaged or of a kind that cannot be read.</source>
        <translation>Obraz jest uszkodzony albo jest w formacie, którego nie można odczytać.</translation>
    </message>
    <message>
        <source>The file is not a picture of a kind that can be read.</source>
        <translation>Plik nie jest obrazem w formacie, który można odczytać.</translation>
    </message>
    <message>
        <source>The picture is of a kind that is not supported.</source>
        <translation>Ten rodzaj obrazu nie jest obsługiwany.</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read.</source>
        <translation>Obraz jest uszkodzony i nie można go odczytać.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has too many parts.</source>
        <translation>Obraz jest uszkodzony: ma za dużo części.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Plik nie istnieje.</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>Brak uprawnień do odczytu pliku.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Nie można otworzyć pliku: %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Plik jest pusty.</translation>
    </message>
    <message>
        <source>It is a folder, not a picture.</source>
        <translation>To jest folder, a nie obraz.</translation>
    </message>
    <message>
        <source>It is not a file with a picture.</source>
        <translation>To nie jest plik z obrazem.</translation>
    </message>
    <message>
        <source>Reading it failed: the file is damaged, or made to do harm.</source>
        <translation>Odczyt nie powiódł się: plik jest uszkodzony albo celowo szkodliwy.</translation>
    </message>
    <message>
        <source>Reading it takes too long: the file is damaged, or made to do harm.</source>
        <translation>Odczyt trwa za długo: plik jest uszkodzony albo celowo szkodliwy.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to other files, which no picture needs.</source>
        <translation>Odczyt zatrzymano: plik prowadził do innych plików, których żaden obraz nie potrzebuje.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to the network, which no picture needs.</source>
        <translation>Odczyt zatrzymano: plik prowadził do sieci, której żaden obraz nie potrzebuje.</translation>
    </message>
    <message>
        <source>Reading it was cancelled.</source>
        <translation>Odczyt anulowano.</translation>
    </message>
    <message>
        <source>The program that reads photos cannot be started. Lumora is not completely installed.</source>
        <translation>Nie można uruchomić programu odczytującego zdjęcia. Lumora nie jest w pełni zainstalowana.</translation>
    </message>
    <message>
        <source>A JPEG cannot hold %1 x %2 pixels. Choose a smaller size.</source>
        <translation>JPEG nie może pomieścić %1 x %2 pikseli. Wybierz mniejszy rozmiar.</translation>
    </message>
    <message>
        <source>The output would replace a photo that is to be rendered.</source>
        <translation>Plik wynikowy zastąpiłby zdjęcie, które ma zostać przetworzone.</translation>
    </message>
    <message>
        <source>The picture cannot be encoded.</source>
        <translation>Nie można zakodować obrazu.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Brakuje reszty pliku.</translation>
    </message>
    <message>
        <source>Another photo of this run has the same output.</source>
        <translation>Inne zdjęcie z tej serii ma ten sam plik wynikowy.</translation>
    </message>
    <message>
        <source>Rendering it was ended from outside, as happens where the memory runs out.</source>
        <translation>Przetwarzanie przerwano z zewnątrz, co zdarza się, gdy kończy się pamięć.</translation>
    </message>
    <message>
        <source>Rendering it failed: the program broke down.</source>
        <translation>Przetwarzanie nie powiodło się: program uległ awarii.</translation>
    </message>
    <message>
        <source>No process can be started for it.</source>
        <translation>Nie można uruchomić dla niego procesu.</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Wyczyść listę</translation>
    </message>
</context>
<context>
    <name>RenderStep</name>
    <message>
        <source>Fit</source>
        <translation>Dopasowanie</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Ramka</translation>
    </message>
</context>
<context>
    <name>SaveManyPanel</name>
    <message>
        <source>No folder chosen</source>
        <translation>Nie wybrano folderu</translation>
    </message>
    <message>
        <source>Choose &amp;Photos…</source>
        <translation>Wybierz &amp;zdjęcia…</translation>
    </message>
    <message>
        <source>Choose a &amp;Folder…</source>
        <translation>Wybierz &amp;folder…</translation>
    </message>
    <message>
        <source>Save &amp;Into…</source>
        <translation>Zapisz &amp;w…</translation>
    </message>
    <message>
        <source>&amp;Save Them</source>
        <translation>Zapi&amp;sz zdjęcia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Save Many</source>
        <translation>Zapisz wiele</translation>
    </message>
    <message>
        <source>The photo saved last</source>
        <translation>Ostatnio zapisane zdjęcie</translation>
    </message>
    <message>
        <source>Photos done</source>
        <translation>Gotowe zdjęcia</translation>
    </message>
    <message>
        <source>Photos that were not saved, or are damaged</source>
        <translation>Zdjęcia niezapisane lub uszkodzone</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>Do folderu</translation>
    </message>
    <message>
        <source>No photos chosen</source>
        <translation>Nie wybrano zdjęć</translation>
    </message>
    <message numerus="yes">
        <source>%1 and others: %Ln photos</source>
        <translation>
            <numerusform>%1 i inne: %Ln zdjęcie</numerusform>
            <numerusform>%1 i inne: %Ln zdjęcia</numerusform>
            <numerusform>%1 i inne: %Ln zdjęć</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>Pozostały czas: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The program that renders photos cannot be started. Lumora is not completely installed.</source>
        <translation>Nie można uruchomić programu przetwarzającego zdjęcia. Lumora nie jest w pełni zainstalowana.</translation>
    </message>
    <message>
        <source>Cancelled. What was saved stays.</source>
        <translation>Anulowano. To, co zapisano, pozostaje.</translation>
    </message>
    <message>
        <source>It ended before all photos were done.</source>
        <translation>Zakończono, zanim wszystkie zdjęcia były gotowe.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Zapisano: %1</translation>
    </message>
    <message>
        <source>Already there: %1</source>
        <translation>Już istniejące: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nie zapisano: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Wybór</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Save as JPEG</source>
        <translation>Zapisz jako JPEG</translation>
    </message>
    <message>
        <source>JPEG, whatever the ending: %1</source>
        <translation>JPEG, bez względu na rozszerzenie: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be saved there. %2</source>
        <translation>Nie można tam zapisać „%1”. %2</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Zastąp</translation>
    </message>
    <message>
        <source>This is the photo that you opened. Replacing it cannot be undone.</source>
        <translation>To jest otwarte przez ciebie zdjęcie. Zastąpienia go nie można cofnąć.</translation>
    </message>
    <message>
        <source>Keep both saves “%1” beside it.</source>
        <translation>„Zachowaj oba” zapisze obok niego plik „%1”.</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>Zachowaj &amp;oba</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>„%1” już istnieje. Czy chcesz zastąpić ten plik?</translation>
    </message>
</context>
<context>
    <name>SplitLine</name>
    <message>
        <source>Drag it across the photo. Esc ends the comparison.</source>
        <translation>Przeciągnij ją po zdjęciu. Esc kończy porównanie.</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>Linia między przed i po</translation>
    </message>
</context>
</TS>

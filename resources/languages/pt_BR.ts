<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="br_FR" sourcelanguage="en">
<context>
    <name>Desktop</name>
    <message>
        <source>Photo Looks</source>
        <translation>Efeitos de foto</translation>
    </message>
    <message>
        <source>Give a photo a look and save it</source>
        <translation>Dar um efeito a uma foto e salvá-la</translation>
    </message>
    <message>
        <source>Lumora shows one photo large and, beside it, what it would be under each of its looks: cool and muted, warm and faded, black and white, like an instant print or a frame of a film. One press applies a look; with multiple looks switched on, they stack in the order in which they were chosen.</source>
        <translation>O Lumora mostra uma foto em tamanho grande e, ao lado, como ela ficaria com cada um de seus efeitos: fria e suave, quente e desbotada, em preto e branco, como uma foto instantânea ou um quadro de filme. Um clique aplica um efeito; com vários efeitos ligados, eles se somam na ordem em que foram escolhidos.</translation>
    </message>
    <message>
        <source>What it does:</source>
        <translation>O que ele faz:</translation>
    </message>
    <message>
        <source>looks from instant prints to infrared film, many of which can be varied at random</source>
        <translation>efeitos que vão da foto instantânea ao filme infravermelho, muitos dos quais podem variar ao acaso</translation>
    </message>
    <message>
        <source>crops and borders that come with a look or are chosen by hand</source>
        <translation>cortes e bordas que acompanham um efeito ou são escolhidos à mão</translation>
    </message>
    <message>
        <source>quarter turns, looks made permanent, and JPEG files in the size that is wanted</source>
        <translation>giros de um quarto de volta, efeitos permanentes e arquivos JPEG no tamanho desejado</translation>
    </message>
    <message>
        <source>opens JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos, upright and in their right colours</source>
        <translation>abre fotos JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD e raw de câmeras, na posição e nas cores certas</translation>
    </message>
    <message>
        <source>works by mouse, by keyboard and with a screen reader</source>
        <translation>funciona com o mouse, o teclado e um leitor de tela</translation>
    </message>
    <message>
        <source>A photo under the look Mono, above the strip of looks</source>
        <translation>Uma foto com o efeito Mono, acima da fila de efeitos</translation>
    </message>
    <message>
        <source>The photo before and after the look 1974, on either side of a line</source>
        <translation>A foto antes e depois do efeito 1974, dos dois lados de uma linha</translation>
    </message>
    <message>
        <source>Give a photo a look, a crop and a border, and save it</source>
        <translation>Dar a uma foto um efeito, um corte e uma borda, e salvá-la</translation>
    </message>
    <message>
        <source>photo;picture;look;filter;effect;border;crop;instant;retro;</source>
        <translation>foto;imagem;look;filtro;efeito;borda;corte;instantânea;retrô;</translation>
    </message>
    <message>
        <source>Compare, look closely, and save many photos at once:</source>
        <translation>Comparar, ver de perto e salvar muitas fotos de uma vez:</translation>
    </message>
    <message>
        <source>the photo beside what it was, on either side of a line</source>
        <translation>a foto ao lado do que era, de um lado e do outro de uma linha</translation>
    </message>
    <message>
        <source>every pixel as it will be saved, at 50, 100 or 200 %</source>
        <translation>cada pixel como será salvo, a 50, 100 ou 200 %</translation>
    </message>
    <message>
        <source>many photos or a whole folder under the looks that are chosen</source>
        <translation>muitas fotos ou uma pasta inteira com os efeitos escolhidos</translation>
    </message>
    <message>
        <source>photos through the clipboard, and dragged out of the window</source>
        <translation>fotos pela área de transferência e arrastadas para fora da janela</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>A primeira versão.</translation>
    </message>
    <message>
        <source>give many photos the same looks</source>
        <translation>dar os mesmos efeitos a muitas fotos</translation>
    </message>
    <message>
        <source>give one photo a look</source>
        <translation>dar um efeito a uma foto</translation>
    </message>
</context>
<context>
    <name>DragDropImageView</name>
    <message>
        <source>Before: the photo without its looks, in its crop and border.</source>
        <translation>Antes: a foto sem os efeitos, com seu corte e sua borda.</translation>
    </message>
    <message>
        <source>The photo as it will be saved, at %1 %. Drag it or press the arrow keys to see other parts of it.</source>
        <translation>A foto como será salva, em %1%. Arraste-a ou pressione as setas do teclado para ver outras partes.</translation>
    </message>
    <message>
        <source>Before on the left, after on the right of a line that the arrow keys move.</source>
        <translation>Antes à esquerda e depois à direita de uma linha que as setas do teclado movem.</translation>
    </message>
    <message>
        <source>The photo under the applied looks. Hold the mouse or the space bar to see it before.</source>
        <translation>A foto com os efeitos aplicados. Mantenha pressionado o mouse ou a barra de espaço para vê-la antes.</translation>
    </message>
    <message>
        <source>Drop a photo here, or open one.</source>
        <translation>Solte uma foto aqui ou abra uma.</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Depois</translation>
    </message>
</context>
<context>
    <name>FramingChoice</name>
    <message>
        <source>By Filter</source>
        <translation>Do efeito</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrado</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Sem</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Fina</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Média</translation>
    </message>
    <message>
        <source>Thick</source>
        <translation>Grossa</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Arredondada</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
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
        <translation>sem</translation>
    </message>
    <message>
        <source>all others</source>
        <translation>todos os outros</translation>
    </message>
    <message>
        <source>Lumora Help</source>
        <translation>Ajuda do Lumora</translation>
    </message>
    <message>
        <source>Lumora</source>
        <translation>Lumora</translation>
    </message>
    <message>
        <source>Lumora gives one photo a look, a crop and a border, and saves the result as a JPEG file. The photo on your disk is never changed: what you see is a picture made from it, and it is written only where you say.</source>
        <translation>O Lumora dá a uma foto um efeito, um corte e uma borda, e salva o resultado como arquivo JPEG. A foto no disco nunca é alterada: o que você vê é uma imagem feita a partir dela, gravada somente onde você mandar.</translation>
    </message>
    <message>
        <source>A photo comes in</source>
        <translation>Chega uma foto</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Open&lt;/b&gt;, drop a file on the large picture, or open a photo with Lumora from your file manager. JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD and cameras&apos; raw photos open, and whatever else your desktop can decode. A photo that replaces another takes over the looks that are switched on. A file that is not a photo is refused, and the photo before it stays.</source>
        <translation>Pressione &lt;b&gt;Abrir&lt;/b&gt;, solte um arquivo sobre a imagem grande ou abra uma foto com o Lumora no gerenciador de arquivos. Podem ser abertos JPEG, PNG, GIF, TIFF, WebP, HEIC, AVIF, JPEG XL, BMP, TGA, PSD e fotos raw de câmeras, e tudo mais que a sua área de trabalho souber decodificar. Uma foto que substitui outra recebe os efeitos que estão ligados. Um arquivo que não é uma foto é recusado, e a foto anterior permanece.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt; and &lt;b&gt;Page Up&lt;/b&gt; go to the next and the previous photo of the folder, in the order of their names, and the looks stay on; what is no photo is passed over. Where several files were opened with Lumora at once, the keys go through those. &lt;b&gt;File, Open recent&lt;/b&gt; has the eight photos that were opened last.</source>
        <translation>&lt;b&gt;Page Down&lt;/b&gt; e &lt;b&gt;Page Up&lt;/b&gt; vão para a próxima foto e para a anterior da pasta, na ordem dos nomes, e os efeitos continuam ligados; o que não é foto é pulado. Se vários arquivos foram abertos com o Lumora de uma vez, as teclas percorrem esses arquivos. &lt;b&gt;Arquivo, Abrir recente&lt;/b&gt; tem as oito últimas fotos abertas.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Edit, Paste&lt;/b&gt; opens a picture that another program copied, or a copied file. &lt;b&gt;Edit, Copy&lt;/b&gt; puts the photo as it would be saved on the clipboard; and the photo can be dragged out of Lumora, as a file or as a picture: press on it and move.</source>
        <translation>&lt;b&gt;Editar, Colar&lt;/b&gt; abre uma imagem copiada por outro programa, ou um arquivo copiado. &lt;b&gt;Editar, Copiar&lt;/b&gt; põe na área de transferência a foto como ela seria salva; e a foto pode ser arrastada para fora do Lumora, como arquivo ou como imagem: pressione sobre ela e mova o mouse.</translation>
    </message>
    <message>
        <source>Looks, one or several</source>
        <translation>Efeitos, um ou vários</translation>
    </message>
    <message>
        <source>Each button shows your photo under its look; press it to apply the look, and press it again to take it off. &lt;b&gt;Original&lt;/b&gt; takes all looks off. Where the window is narrow the row of looks scrolls: by the wheel over it, by its bar, or by the arrow keys.</source>
        <translation>Cada botão mostra a sua foto com o respectivo efeito; pressione-o para aplicar o efeito e pressione-o de novo para removê-lo. &lt;b&gt;Original&lt;/b&gt; remove todos os efeitos. Quando a janela é estreita, a fileira de efeitos rola: com a roda do mouse sobre ela, com a barra de rolagem ou com as setas do teclado.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Multiple looks&lt;/b&gt; switched on, looks stack in the order in which you press them. The line above the photo shows the chain, for example &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Pressing a look of the chain takes it out and leaves the others in order, and the buttons carry their numbers. Switching back to one look keeps the one that came last.</source>
        <translation>Com &lt;b&gt;Vários efeitos&lt;/b&gt; ligado, os efeitos se acumulam na ordem em que você os pressiona. A linha acima da foto mostra a sequência, por exemplo &lt;i&gt;Original &amp;gt; Helga &amp;gt; Mono&lt;/i&gt;. Pressionar um efeito da sequência o remove e mantém os outros em ordem, e os botões mostram seus números. Ao voltar para um só efeito, fica o último.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Strength&lt;/b&gt; takes the looks back in part: at 0 the photo shows as it came, in its crop and border. The thumbnails, and every new look or chain, have the whole strength.</source>
        <translation>&lt;b&gt;Força&lt;/b&gt; atenua os efeitos: em 0 a foto aparece como chegou, com seu corte e sua borda. As miniaturas, e cada novo efeito ou sequência, têm a força total.</translation>
    </message>
    <message>
        <source>With &lt;b&gt;Randomness&lt;/b&gt; switched on, many looks vary a little, the same way until you press &lt;b&gt;Re-expose&lt;/b&gt;, which draws a new variation. Randomness is off whenever Lumora starts.</source>
        <translation>Com &lt;b&gt;Aleatório&lt;/b&gt; ligado, muitos efeitos variam um pouco, sempre do mesmo jeito até você pressionar &lt;b&gt;Reexpor&lt;/b&gt;, que sorteia uma nova variação. Aleatório está sempre desligado quando o Lumora é iniciado.</translation>
    </message>
    <message>
        <source>Crop and border</source>
        <translation>Corte e borda</translation>
    </message>
    <message>
        <source>&lt;b&gt;By Filter&lt;/b&gt; takes the crop and the border that belong to the look that you added last:</source>
        <translation>&lt;b&gt;Do efeito&lt;/b&gt; usa o corte e a borda próprios do último efeito adicionado:</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Efeito</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borda</translation>
    </message>
    <message>
        <source>The other entries choose a crop or a border whatever the look; &lt;b&gt;None&lt;/b&gt; switches it off. A border is put round the photo and hides nothing of it. 6x4, 4x3 and 7x6 turn with a portrait photo; Cinema stays a wide strip.</source>
        <translation>As outras opções escolhem um corte ou uma borda seja qual for o efeito; &lt;b&gt;Sem&lt;/b&gt; desliga o corte ou a borda. A borda é colocada em volta da foto e não esconde nada dela. 6x4, 4x3 e 7x6 giram com uma foto vertical; Cinema continua sendo uma faixa larga.</translation>
    </message>
    <message>
        <source>Turn, flatten, save</source>
        <translation>Girar, achatar, salvar</translation>
    </message>
    <message>
        <source>&lt;b&gt;Rotate&lt;/b&gt; turns the photo by a quarter; the looks stay.</source>
        <translation>&lt;b&gt;Girar&lt;/b&gt; vira a foto um quarto de volta; os efeitos permanecem.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Flatten&lt;/b&gt; makes the looks, the crop and the border part of the photo, so that further looks start from there.</source>
        <translation>&lt;b&gt;Achatar&lt;/b&gt; torna os efeitos, o corte e a borda parte da foto, para que outros efeitos partam daí.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Size&lt;/b&gt; is the longer side of the saved picture in pixels. A smaller picture is enlarged to it; &lt;i&gt;Original&lt;/i&gt; keeps what the photo has.</source>
        <translation>&lt;b&gt;Tamanho&lt;/b&gt; é o lado maior da imagem salva, em pixels. Uma imagem menor é ampliada até ele; &lt;i&gt;Original&lt;/i&gt; mantém o tamanho da foto.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Save&lt;/b&gt; writes a JPEG file, whatever the ending of its name; an ending that is not in the list gets &lt;i&gt;.jpg&lt;/i&gt;. The photo that you opened is replaced only if you say so: &lt;i&gt;Keep both&lt;/i&gt; saves beside it. If a save fails, the file that stood there stays as it was.</source>
        <translation>&lt;b&gt;Salvar&lt;/b&gt; grava um arquivo JPEG, seja qual for a extensão do nome; uma extensão que não está na lista recebe &lt;i&gt;.jpg&lt;/i&gt;. A foto que você abriu só é substituída se você mandar: &lt;i&gt;Manter ambas&lt;/i&gt; salva ao lado dela. Se não for possível salvar, o arquivo que estava lá fica como estava.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Save Many&lt;/b&gt; (Ctrl+Shift+S) gives many photos, or all of a folder, what is chosen now: looks, strength, crop, border, size, variation, quality. They go into a folder of your choice, named after photo and looks; a file that stands there stays. &lt;i&gt;Cancel&lt;/i&gt; keeps what is saved, and another time goes on from there. What cannot be saved is listed with its reason. In a terminal &lt;i&gt;lumora-render&lt;/i&gt; does the same.</source>
        <translation>&lt;b&gt;Arquivo, Salvar em lote&lt;/b&gt; (Ctrl+Shift+S) dá a muitas fotos, ou a todas de uma pasta, o que está escolhido agora: efeitos, força, corte, borda, tamanho, variação, qualidade. Elas vão para uma pasta à sua escolha, com o nome da foto e dos efeitos; um arquivo que já está lá permanece. &lt;i&gt;Cancelar&lt;/i&gt; mantém o que já foi salvo, e em outra ocasião continua dali. O que não pode ser salvo é listado com o motivo. Em um terminal, &lt;i&gt;lumora-render&lt;/i&gt; faz o mesmo.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, Keep with the photo&lt;/b&gt;: what the camera and others wrote into the photo (its date, the camera, a title, the caption, and also &lt;i&gt;where it was taken&lt;/i&gt;) goes into the saved file. &lt;i&gt;Everything but the place&lt;/i&gt; leaves out the coordinates, the names of city, country and location, and the camera maker&apos;s own notes, which may tell the place; &lt;i&gt;Nothing&lt;/i&gt; leaves out all. Preview pictures of the photo as it was are never kept. The choice is remembered.</source>
        <translation>&lt;b&gt;Arquivo, Manter com a foto&lt;/b&gt;: o que a câmera e outros gravaram na foto (a data, a câmera, um título, a legenda e também &lt;i&gt;onde ela foi tirada&lt;/i&gt;) vai para o arquivo salvo. &lt;i&gt;Tudo, menos o local&lt;/i&gt; deixa de fora as coordenadas, os nomes de cidade, país e lugar e as notas próprias do fabricante da câmera, que podem revelar o local; &lt;i&gt;Nada&lt;/i&gt; deixa tudo de fora. As imagens de prévia da foto como ela era nunca são mantidas. A escolha é lembrada.</translation>
    </message>
    <message>
        <source>&lt;b&gt;File, JPEG quality&lt;/b&gt;: &lt;i&gt;Standard&lt;/i&gt; is small; &lt;i&gt;High&lt;/i&gt; and &lt;i&gt;Best&lt;/i&gt; keep finer detail, and the colour of each pixel, in larger files. How large is told before and after a photo is saved. The choice is remembered.</source>
        <translation>&lt;b&gt;Arquivo, Qualidade JPEG&lt;/b&gt;: &lt;i&gt;Padrão&lt;/i&gt; gera arquivos pequenos; &lt;i&gt;Alta&lt;/i&gt; e &lt;i&gt;Máxima&lt;/i&gt; mantêm detalhes mais finos, e a cor de cada pixel, em arquivos maiores. O tamanho do arquivo é informado antes e depois de salvar a foto. A escolha é lembrada.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Desfazer e refazer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Undo&lt;/b&gt; in the &lt;b&gt;Edit&lt;/b&gt; menu takes the last step back: a look, an option, a turn, a re-exposure or a flattening; &lt;b&gt;Redo&lt;/b&gt; takes it again. Flattened photos are kept for this as long as the memory has room for them. Another photo begins anew.</source>
        <translation>&lt;b&gt;Desfazer&lt;/b&gt; no menu &lt;b&gt;Editar&lt;/b&gt; desfaz a última etapa: um efeito, uma opção, um giro, uma reexposição ou um achatamento; &lt;b&gt;Refazer&lt;/b&gt; a faz de novo. As fotos achatadas são guardadas para isso enquanto houver espaço na memória. Com outra foto, tudo recomeça.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Hold the mouse button on the photo, or hold the space bar, to see it &lt;i&gt;before&lt;/i&gt;: without its looks, in the same crop and border. Let go to see the look again. &lt;b&gt;B&lt;/b&gt;, or &lt;b&gt;Photo, Before and after&lt;/b&gt;, shows both at once, before on the left: drag the line between them across the photo, or move it by the left and right arrow keys. Looks and options may change meanwhile. &lt;b&gt;B&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt; ends it.</source>
        <translation>Mantenha pressionado o botão do mouse sobre a foto, ou a barra de espaço, para vê-la &lt;i&gt;antes&lt;/i&gt;: sem os efeitos, com o mesmo corte e a mesma borda. Solte para ver o efeito de novo. &lt;b&gt;B&lt;/b&gt;, ou &lt;b&gt;Foto, Antes e depois&lt;/b&gt;, mostra os dois ao mesmo tempo, antes à esquerda: arraste pela foto a linha entre eles ou mova-a com as setas esquerda e direita do teclado. Enquanto isso, os efeitos e as opções podem mudar. &lt;b&gt;B&lt;/b&gt; ou &lt;b&gt;Esc&lt;/b&gt; encerra.</translation>
    </message>
    <message>
        <source>The space bar and the digits do the same wherever the focus is; only an open list has its own keys. A short tap on the space bar presses the look that has the focus.</source>
        <translation>A barra de espaço e os números fazem o mesmo onde quer que esteja o foco; só uma lista aberta tem suas próprias teclas. Um toque curto na barra de espaço pressiona o efeito que tem o foco.</translation>
    </message>
    <message>
        <source>As it will be saved</source>
        <translation>Como será salva</translation>
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
        <translation>abrir uma foto</translation>
    </message>
    <message>
        <source>&lt;b&gt;1&lt;/b&gt; to &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</source>
        <translation>&lt;b&gt;1&lt;/b&gt; a &lt;b&gt;9&lt;/b&gt;, &lt;b&gt;0&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the first ten looks: Original is 1, Helga is 2</source>
        <translation>os dez primeiros efeitos: Original é 1, Helga é 2</translation>
    </message>
    <message>
        <source>&lt;b&gt;Page Down&lt;/b&gt;, &lt;b&gt;Page Up&lt;/b&gt;</source>
        <translation>&lt;b&gt;Page Down&lt;/b&gt;, &lt;b&gt;Page Up&lt;/b&gt;</translation>
    </message>
    <message>
        <source>next photo, previous photo</source>
        <translation>próxima foto, foto anterior</translation>
    </message>
    <message>
        <source>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</source>
        <translation>&lt;b&gt;[&lt;/b&gt;, &lt;b&gt;]&lt;/b&gt;</translation>
    </message>
    <message>
        <source>weaker, stronger looks</source>
        <translation>efeitos mais fracos, mais fortes</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+S&lt;/b&gt;, &lt;b&gt;Ctrl+Shift+S&lt;/b&gt;</translation>
    </message>
    <message>
        <source>save, save many</source>
        <translation>salvar, salvar em lote</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+E&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+E&lt;/b&gt;</translation>
    </message>
    <message>
        <source>re-expose</source>
        <translation>reexpor</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+C&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+C&lt;/b&gt;</translation>
    </message>
    <message>
        <source>copy what would be saved</source>
        <translation>copiar o que seria salvo</translation>
    </message>
    <message>
        <source>&lt;b&gt;Space&lt;/b&gt; (hold)</source>
        <translation>&lt;b&gt;Espaço&lt;/b&gt; (manter pressionada)</translation>
    </message>
    <message>
        <source>see the photo without its looks</source>
        <translation>ver a foto sem os efeitos</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+V&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+V&lt;/b&gt;</translation>
    </message>
    <message>
        <source>open what was copied</source>
        <translation>abrir o que foi copiado</translation>
    </message>
    <message>
        <source>&lt;b&gt;B&lt;/b&gt;</source>
        <translation>&lt;b&gt;B&lt;/b&gt;</translation>
    </message>
    <message>
        <source>before and after, side by side</source>
        <translation>antes e depois, lado a lado</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take the last step back</source>
        <translation>desfazer a última etapa</translation>
    </message>
    <message>
        <source>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</source>
        <translation>&lt;b&gt;Z&lt;/b&gt;, &lt;b&gt;Esc&lt;/b&gt;</translation>
    </message>
    <message>
        <source>see the photo at actual size; fit it again</source>
        <translation>ver a foto em tamanho real; inteira de novo</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Shift+Z&lt;/b&gt;</translation>
    </message>
    <message>
        <source>take it again</source>
        <translation>refazê-la</translation>
    </message>
    <message>
        <source>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</source>
        <translation>&lt;b&gt;+&lt;/b&gt;, &lt;b&gt;-&lt;/b&gt;</translation>
    </message>
    <message>
        <source>larger, smaller</source>
        <translation>maior, menor</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+L&lt;/b&gt;, &lt;b&gt;Ctrl+R&lt;/b&gt;</translation>
    </message>
    <message>
        <source>turn left, turn right</source>
        <translation>girar para a esquerda, girar para a direita</translation>
    </message>
    <message>
        <source>&lt;b&gt;F11&lt;/b&gt;</source>
        <translation>&lt;b&gt;F11&lt;/b&gt;</translation>
    </message>
    <message>
        <source>the photo alone on the whole screen, and back</source>
        <translation>só a foto em tela cheia, e voltar</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Shift+F&lt;/b&gt;</translation>
    </message>
    <message>
        <source>flatten</source>
        <translation>achatar</translation>
    </message>
    <message>
        <source>&lt;b&gt;Tab&lt;/b&gt;, arrows, &lt;b&gt;Return&lt;/b&gt;</source>
        <translation>&lt;b&gt;Tab&lt;/b&gt;, setas, &lt;b&gt;Enter&lt;/b&gt;</translation>
    </message>
    <message>
        <source>go from control to control; press it</source>
        <translation>ir de um controle a outro; pressioná-lo</translation>
    </message>
    <message>
        <source>&lt;b&gt;F1&lt;/b&gt;</source>
        <translation>&lt;b&gt;F1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>esta ajuda</translation>
    </message>
    <message>
        <source>&lt;b&gt;Ctrl+Q&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ctrl+Q&lt;/b&gt;</translation>
    </message>
    <message>
        <source>quit; your choices are kept</source>
        <translation>sair; suas escolhas são mantidas</translation>
    </message>
    <message>
        <source>The looks</source>
        <translation>Os efeitos</translation>
    </message>
    <message>
        <source>Each picture shows the look with its own crop and border.</source>
        <translation>Cada imagem mostra o efeito com seu próprio corte e sua própria borda.</translation>
    </message>
    <message>
        <source>Cool and muted with strong contrast; darker and richer towards the edges.</source>
        <translation>Frio e suave nas cores, com forte contraste; mais escuro e saturado em direção às bordas.</translation>
    </message>
    <message>
        <source>square</source>
        <translation>quadrado</translation>
    </message>
    <message>
        <source>Strong colours and contrast, with warm light tones.</source>
        <translation>Cores e contraste fortes, com tons claros quentes.</translation>
    </message>
    <message>
        <source>thick white</source>
        <translation>grossa branca</translation>
    </message>
    <message>
        <source>Bright lights, little colour and a dark blue tint, like a frame of a film.</source>
        <translation>Luzes claras, pouca cor e um tom azul-escuro, como um quadro de um filme.</translation>
    </message>
    <message>
        <source>16 to 9</source>
        <translation>16 por 9</translation>
    </message>
    <message>
        <source>black bars</source>
        <translation>barras pretas</translation>
    </message>
    <message>
        <source>A contrasty black-and-white print of the sixties, with light skies.</source>
        <translation>Uma cópia em preto e branco contrastada dos anos sessenta, com céus claros.</translation>
    </message>
    <message>
        <source>7 to 6</source>
        <translation>7 por 6</translation>
    </message>
    <message>
        <source>A hard colour print under a brown wash that is strongest in the shadows.</source>
        <translation>Uma cópia em cores dura sob um véu marrom, mais forte nas sombras.</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>arredondada</translation>
    </message>
    <message>
        <source>Black and white over the full range of greys; blue skies print dark.</source>
        <translation>Preto e branco em toda a escala de cinzas; céus azuis ficam escuros.</translation>
    </message>
    <message>
        <source>medium white</source>
        <translation>média branca</translation>
    </message>
    <message>
        <source>Cross-processed film: hard reds and greens, flat blues.</source>
        <translation>Filme com revelação cruzada: vermelhos e verdes duros, azuis sem relevo.</translation>
    </message>
    <message>
        <source>An instant print: soft tones, brown shadows and dark corners.</source>
        <translation>Uma foto instantânea: tons suaves, sombras marrons e cantos escuros.</translation>
    </message>
    <message>
        <source>an instant print</source>
        <translation>uma foto instantânea</translation>
    </message>
    <message>
        <source>Warmed towards orange; darks darker, lights lighter, stronger colours.</source>
        <translation>Aquecido para o laranja; escuros mais escuros, claros mais claros, cores mais fortes.</translation>
    </message>
    <message>
        <source>6 to 4</source>
        <translation>6 por 4</translation>
    </message>
    <message>
        <source>thin white</source>
        <translation>fina branca</translation>
    </message>
    <message>
        <source>Infrared film: leaves turn bright, blue sky turns dark.</source>
        <translation>Filme infravermelho: as folhas ficam claras, o céu azul fica escuro.</translation>
    </message>
    <message>
        <source>A lens that magnifies the middle and bends the rest outward.</source>
        <translation>Uma lente que amplia o centro e curva o resto para fora.</translation>
    </message>
    <message>
        <source>a black surround</source>
        <translation>um contorno preto</translation>
    </message>
    <message>
        <source>A cheap camera that lets light in, at another place each time.</source>
        <translation>Uma câmera barata que deixa entrar luz, a cada vez em um lugar diferente.</translation>
    </message>
    <message>
        <source>A cartoon: bands of brightness, strong colours, dark outlines.</source>
        <translation>Um desenho em quadrinhos: faixas de brilho, cores fortes, contornos escuros.</translation>
    </message>
    <message>
        <source>Cold and bleached, with a blue cast.</source>
        <translation>Frio e desbotado, com uma dominante azul.</translation>
    </message>
    <message>
        <source>Over-exposed: light parts are pushed towards white.</source>
        <translation>Superexposto: as partes claras são levadas para o branco.</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Z&lt;/b&gt;, or click the photo twice, to see it at actual size: pixel by pixel what &lt;b&gt;Save&lt;/b&gt; writes, in the chosen size. Soft and grainy looks differ from the small picture. Drag the photo, or press the arrow keys, to see other parts; hold it still, or the space bar, to see it &lt;i&gt;before&lt;/i&gt;. The wheel with Ctrl and the keys &lt;b&gt;+&lt;/b&gt; and &lt;b&gt;-&lt;/b&gt; go through 50, 100 and 200 %; &lt;b&gt;Esc&lt;/b&gt; shows all of it again. &lt;b&gt;F11&lt;/b&gt; leaves the photo alone on the whole screen, where the keys stay at work, until &lt;b&gt;F11&lt;/b&gt; or &lt;b&gt;Esc&lt;/b&gt;. The right mouse button and the menu key open a menu on the photo. Where your desktop knows the colour profile of your screen, photos are shown in its colours; what is saved stays the same.</source>
        <translation>Pressione &lt;b&gt;Z&lt;/b&gt;, ou clique duas vezes na foto, para vê-la em tamanho real: pixel por pixel o que &lt;b&gt;Salvar&lt;/b&gt; grava, no tamanho escolhido. Efeitos suaves e granulados ficam diferentes da imagem pequena. Arraste a foto, ou pressione as setas do teclado, para ver outras partes; mantenha-a pressionada sem mover, ou a barra de espaço, para vê-la &lt;i&gt;antes&lt;/i&gt;. A roda do mouse com Ctrl e as teclas &lt;b&gt;+&lt;/b&gt; e &lt;b&gt;-&lt;/b&gt; passam por 50, 100 e 200%; &lt;b&gt;Esc&lt;/b&gt; a mostra inteira de novo. &lt;b&gt;F11&lt;/b&gt; deixa só a foto em tela cheia, onde as teclas continuam funcionando, até &lt;b&gt;F11&lt;/b&gt; ou &lt;b&gt;Esc&lt;/b&gt;. O botão direito do mouse e a tecla de menu abrem um menu sobre a foto. Onde seu ambiente conhece o perfil de cores da sua tela, as fotos são mostradas nas cores dela; o que é salvo continua igual.</translation>
    </message>
</context>
<context>
    <name>LookButton</name>
    <message>
        <source>Applied as number %1</source>
        <translation>Aplicado como número %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Applied looks</source>
        <translation>Efeitos aplicados</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop reading the photo (Esc)</source>
        <translation>Interromper a leitura da foto (Esc)</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Drop a photo here. Hold to see the photo without its looks.</source>
        <translation>Solte uma foto aqui. Mantenha pressionado para ver a foto sem os efeitos.</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ab&amp;rir…</translation>
    </message>
    <message>
        <source>Open a photo (Ctrl+O)</source>
        <translation>Abrir uma foto (Ctrl+O)</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Girar para a esquerda</translation>
    </message>
    <message>
        <source>Rotate left (Ctrl+L)</source>
        <translation>Girar para a esquerda (Ctrl+L)</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Girar para a direita</translation>
    </message>
    <message>
        <source>Rotate right (Ctrl+R)</source>
        <translation>Girar para a direita (Ctrl+R)</translation>
    </message>
    <message>
        <source>&amp;Border</source>
        <translation>&amp;Borda</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Corte</translation>
    </message>
    <message>
        <source>S&amp;ize</source>
        <translation>&amp;Tamanho</translation>
    </message>
    <message>
        <source>Stren&amp;gth</source>
        <translation>F&amp;orça</translation>
    </message>
    <message>
        <source>How much of the looks is seen ([ and ])</source>
        <translation>Quanto dos efeitos aparece ([ e ])</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Força</translation>
    </message>
    <message>
        <source>&amp;Multiple looks</source>
        <translation>&amp;Vários efeitos</translation>
    </message>
    <message>
        <source>Stack looks instead of replacing them</source>
        <translation>Acumular os efeitos em vez de substituí-los</translation>
    </message>
    <message>
        <source>Ra&amp;ndomness</source>
        <translation>Aleatór&amp;io</translation>
    </message>
    <message>
        <source>Vary the looks slightly</source>
        <translation>Variar os efeitos levemente</translation>
    </message>
    <message>
        <source>Re-e&amp;xpose</source>
        <translation>Ree&amp;xpor</translation>
    </message>
    <message>
        <source>Draw a new variation (Ctrl+E)</source>
        <translation>Sortear uma nova variação (Ctrl+E)</translation>
    </message>
    <message>
        <source>Fla&amp;tten</source>
        <translation>Ac&amp;hatar</translation>
    </message>
    <message>
        <source>Bake the looks into the photo (Ctrl+Shift+F)</source>
        <translation>Incorporar os efeitos à foto (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Salvar…</translation>
    </message>
    <message>
        <source>Save as JPEG (Ctrl+S)</source>
        <translation>Salvar como JPEG (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Saved %1, %2 x %3, %4</source>
        <translation>Salvo: %1, %2 x %3, %4</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>&amp;Tamanho real</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>A&amp;mpliar</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Reduzir</translation>
    </message>
    <message>
        <source>The photo cannot be shown at its actual size.</source>
        <translation>Não é possível mostrar a foto em tamanho real.</translation>
    </message>
    <message>
        <source>The preview cannot be shown.</source>
        <translation>Não é possível mostrar a prévia.</translation>
    </message>
    <message>
        <source>Multiple looks</source>
        <translation>Vários efeitos</translation>
    </message>
    <message>
        <source>Randomness</source>
        <translation>Aleatório</translation>
    </message>
    <message>
        <source>Re-expose</source>
        <translation>Reexpor</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>The photo cannot be copied.</source>
        <translation>Não é possível copiar a foto.</translation>
    </message>
    <message>
        <source>Copied, %1 x %2</source>
        <translation>Copiada, %1 x %2</translation>
    </message>
    <message>
        <source>The picture cannot be pasted.</source>
        <translation>Não é possível colar a imagem.</translation>
    </message>
    <message>
        <source>The program that it was copied from does not give it.</source>
        <translation>O programa do qual ela foi copiada não a fornece.</translation>
    </message>
    <message>
        <source>It has more pixels than a photo may have.</source>
        <translation>Ela tem mais pixels do que uma foto pode ter.</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>Imagem colada</translation>
    </message>
    <message>
        <source>&amp;Before and after</source>
        <translation>A&amp;ntes e depois</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>Não é possível abrir “%1”.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Falta o resto do arquivo.</translation>
    </message>
    <message>
        <source>Lumora - %1</source>
        <translation>Lumora - %1</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Girar para a esquerda</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Girar para a direita</translation>
    </message>
    <message>
        <source>The photo cannot be flattened.</source>
        <translation>Não é possível achatar a foto.</translation>
    </message>
    <message>
        <source>Flatten</source>
        <translation>Achatar</translation>
    </message>
    <message>
        <source>The photo cannot be saved.</source>
        <translation>Não é possível salvar a foto.</translation>
    </message>
    <message>
        <source>Encode</source>
        <translation>Codificar</translation>
    </message>
    <message>
        <source>&amp;Whole screen</source>
        <translation>Te&amp;la cheia</translation>
    </message>
    <message>
        <source>For the photo</source>
        <translation>Para a foto</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Salvar…</translation>
    </message>
    <message>
        <source>Save &amp;Many…</source>
        <translation>Salvar em &amp;lote…</translation>
    </message>
    <message>
        <source>&amp;Keep with the photo</source>
        <translation>&amp;Manter com a foto</translation>
    </message>
    <message>
        <source>&amp;Everything it carried</source>
        <translation>&amp;Tudo o que ela continha</translation>
    </message>
    <message>
        <source>Everything but the &amp;place</source>
        <translation>Tudo, menos o &amp;local</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Nada</translation>
    </message>
    <message>
        <source>&amp;JPEG quality</source>
        <translation>&amp;Qualidade JPEG</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Padrão</translation>
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
        <translation>Sa&amp;ir</translation>
    </message>
    <message>
        <source>&amp;Photo</source>
        <translation>&amp;Foto</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>Girar para a &amp;esquerda</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>Girar para a d&amp;ireita</translation>
    </message>
    <message>
        <source>&amp;Flatten</source>
        <translation>Ac&amp;hatar</translation>
    </message>
    <message>
        <source>R&amp;e-expose</source>
        <translation>Ree&amp;xpor</translation>
    </message>
    <message>
        <source>&amp;Looks</source>
        <translation>&amp;Efeitos</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>Lumora &amp;Help</source>
        <translation>A&amp;juda do Lumora</translation>
    </message>
    <message>
        <source>&amp;About Lumora</source>
        <translation>&amp;Sobre o Lumora</translation>
    </message>
    <message>
        <source>All photos (%1)</source>
        <translation>Todas as fotos (%1)</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>Fotos (%1)</translation>
    </message>
    <message>
        <source>Select a file to open</source>
        <translation>Selecione um arquivo para abrir</translation>
    </message>
    <message>
        <source>Select the photos</source>
        <translation>Selecione as fotos</translation>
    </message>
    <message>
        <source>Select a folder with photos</source>
        <translation>Selecione uma pasta com fotos</translation>
    </message>
    <message>
        <source>Select the folder to save into</source>
        <translation>Selecione a pasta onde salvar</translation>
    </message>
    <message>
        <source>&amp;Next photo</source>
        <translation>&amp;Próxima foto</translation>
    </message>
    <message>
        <source>&amp;Previous photo</source>
        <translation>Foto &amp;anterior</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Abrir &amp;recente</translation>
    </message>
    <message>
        <source>This is the last photo.</source>
        <translation>Esta é a última foto.</translation>
    </message>
    <message>
        <source>This is the first photo.</source>
        <translation>Esta é a primeira foto.</translation>
    </message>
    <message>
        <source>&amp;Weaker</source>
        <translation>Mais &amp;fraco</translation>
    </message>
    <message>
        <source>&amp;Stronger</source>
        <translation>Mais f&amp;orte</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Força</translation>
    </message>
    <message>
        <source>Stren&amp;gth %1 %</source>
        <translation>F&amp;orça %1%</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>E&amp;ditar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Desfazer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Refazer: %1</translation>
    </message>
    <message>
        <source>The photo cannot be turned.</source>
        <translation>Não é possível girar a foto.</translation>
    </message>
    <message>
        <source>Lumora by Dovrel</source>
        <translation>Lumora por Dovrel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a look and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borda</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>Não é possível mostrar a ajuda.</translation>
    </message>
    <message>
        <source>It stands at %1.</source>
        <translation>Ela está em %1.</translation>
    </message>
    <message>
        <source>Lumora Mac, Version 1.0</source>
        <translation>Lumora Mac, versão 1.0</translation>
    </message>
    <message>
        <source>Copyright © 2026 Dovrel</source>
        <translation>Copyright © 2026 Dovrel</translation>
    </message>
    <message>
        <source>Decode</source>
        <translation>Decodificar</translation>
    </message>
    <message>
        <source>%1 · Strength: %2 % · Crop: %3 · Border: %4 · Size: %5 · Quality: %6</source>
        <translation>%1 · Força: %2% · Corte: %3 · Borda: %4 · Tamanho: %5 · Qualidade: %6</translation>
    </message>
</context>
<context>
    <name>Reason</name>
    <message>
        <source>There is no permission to write there.</source>
        <translation>Não há permissão para gravar nesse local.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>O disco está cheio.</translation>
    </message>
    <message>
        <source>The file is larger than may be written there.</source>
        <translation>O arquivo é maior do que se pode gravar nesse local.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>A pasta não existe.</translation>
    </message>
    <message>
        <source>The file&apos;s name is too long.</source>
        <translation>O nome do arquivo é longo demais.</translation>
    </message>
    <message>
        <source>The link leads to itself.</source>
        <translation>O link leva a si mesmo.</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>Já existe um arquivo com esse nome.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Existe uma pasta com esse nome.</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>Não é possível gravar o arquivo: %1.</translation>
    </message>
    <message>
        <source>The animation is too large: %1 x %2 pixels.</source>
        <translation>A animação é grande demais: %1 x %2 pixels.</translation>
    </message>
    <message>
        <source>The picture is of a kind that cannot be read: it has %1 channels of %2 bits.</source>
        <translation>A imagem é de um tipo que não pode ser lido: tem %1 canais de %2 bits.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has parts of %1 x %2 pixels.</source>
        <translation>A imagem está danificada: tem partes de %1 x %2 pixels.</translation>
    </message>
    <message>
        <source>It is a HEIC or AVIF photo. This Lumora was built without libheif, which reads them.</source>
        <translation>É uma foto HEIC ou AVIF. Este Lumora foi compilado sem a libheif, que lê essas fotos.</translation>
    </message>
    <message>
        <source>It is a JPEG XL photo. This Lumora was built without libjxl, which reads them.</source>
        <translation>É uma foto JPEG XL. Este Lumora foi compilado sem a libjxl, que lê essas fotos.</translation>
    </message>
    <message>
        <source>It is a camera&apos;s raw photo. This Lumora was built without LibRaw, which reads them.</source>
        <translation>É uma foto raw de câmera. Este Lumora foi compilado sem a LibRaw, que lê essas fotos.</translation>
    </message>
    <message>
        <source>There is not enough free memory for a picture of %1 x %2 pixels.</source>
        <translation>Não há memória livre suficiente para uma imagem de %1 x %2 pixels.</translation>
    </message>
    <message>
        <source>There is not enough free memory for the picture.</source>
        <translation>Não há memória livre suficiente para a imagem.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 x %2 pixels. At most %3 megapixels can be opened.</source>
        <translation>A imagem é grande demais: %1 x %2 pixels. Podem ser abertos no máximo %3 megapixels.</translation>
    </message>
    <message>
        <source>The picture is damaged: the file is too small for %1 x %2 pixels.</source>
        <translation>A imagem está danificada: o arquivo é pequeno demais para %1 x %2 pixels.</translation>
    </message>
    <message>
        <source>The picture is damaged or of a kind that cannot be read.</source>
        <translation>A imagem está danificada ou é de um tipo que não pode ser lido.</translation>
    </message>
    <message>
        <source>The file is not a picture of a kind that can be read.</source>
        <translation>O arquivo não é uma imagem de um tipo que possa ser lido.</translation>
    </message>
    <message>
        <source>The picture is of a kind that is not supported.</source>
        <translation>A imagem é de um tipo sem suporte.</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read.</source>
        <translation>A imagem está danificada e não pode ser lida.</translation>
    </message>
    <message>
        <source>The picture is damaged: it has too many parts.</source>
        <translation>A imagem está danificada: tem partes demais.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>O arquivo não existe.</translation>
    </message>
    <message>
        <source>There is no permission to read the file.</source>
        <translation>Não há permissão para ler o arquivo.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Não é possível abrir o arquivo: %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message>
        <source>It is a folder, not a picture.</source>
        <translation>É uma pasta, não uma imagem.</translation>
    </message>
    <message>
        <source>It is not a file with a picture.</source>
        <translation>Não é um arquivo com uma imagem.</translation>
    </message>
    <message>
        <source>Reading it failed: the file is damaged, or made to do harm.</source>
        <translation>A leitura falhou: o arquivo está danificado ou foi feito para causar danos.</translation>
    </message>
    <message>
        <source>Reading it takes too long: the file is damaged, or made to do harm.</source>
        <translation>A leitura está demorando demais: o arquivo está danificado ou foi feito para causar danos.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to other files, which no picture needs.</source>
        <translation>A leitura foi interrompida: o arquivo levava a outros arquivos, dos quais nenhuma imagem precisa.</translation>
    </message>
    <message>
        <source>Reading it was stopped: the file led to the network, which no picture needs.</source>
        <translation>A leitura foi interrompida: o arquivo levava à rede, da qual nenhuma imagem precisa.</translation>
    </message>
    <message>
        <source>Reading it was cancelled.</source>
        <translation>A leitura foi cancelada.</translation>
    </message>
    <message>
        <source>The program that reads photos cannot be started. Lumora is not completely installed.</source>
        <translation>Não é possível iniciar o programa que lê as fotos. A instalação do Lumora não está completa.</translation>
    </message>
    <message>
        <source>A JPEG cannot hold %1 x %2 pixels. Choose a smaller size.</source>
        <translation>Um JPEG não comporta %1 x %2 pixels. Escolha um tamanho menor.</translation>
    </message>
    <message>
        <source>The output would replace a photo that is to be rendered.</source>
        <translation>O resultado substituiria uma foto que ainda será processada.</translation>
    </message>
    <message>
        <source>The picture cannot be encoded.</source>
        <translation>Não é possível codificar a imagem.</translation>
    </message>
    <message>
        <source>The rest of the file is missing.</source>
        <translation>Falta o resto do arquivo.</translation>
    </message>
    <message>
        <source>Another photo of this run has the same output.</source>
        <translation>Outra foto deste lote tem o mesmo arquivo de destino.</translation>
    </message>
    <message>
        <source>Rendering it was ended from outside, as happens where the memory runs out.</source>
        <translation>O processamento foi encerrado de fora, como acontece quando a memória se esgota.</translation>
    </message>
    <message>
        <source>Rendering it failed: the program broke down.</source>
        <translation>O processamento falhou: o programa parou de funcionar.</translation>
    </message>
    <message>
        <source>No process can be started for it.</source>
        <translation>Não é possível iniciar um processo para isso.</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Limpar a lista</translation>
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
        <translation>Borda</translation>
    </message>
</context>
<context>
    <name>SaveManyPanel</name>
    <message>
        <source>No folder chosen</source>
        <translation>Nenhuma pasta escolhida</translation>
    </message>
    <message>
        <source>Choose &amp;Photos…</source>
        <translation>Escolher &amp;fotos…</translation>
    </message>
    <message>
        <source>Choose a &amp;Folder…</source>
        <translation>Escolher &amp;pasta…</translation>
    </message>
    <message>
        <source>Save &amp;Into…</source>
        <translation>Salvar &amp;em…</translation>
    </message>
    <message>
        <source>&amp;Save Them</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save Many</source>
        <translation>Salvar em lote</translation>
    </message>
    <message>
        <source>The photo saved last</source>
        <translation>A última foto salva</translation>
    </message>
    <message>
        <source>Photos done</source>
        <translation>Fotos concluídas</translation>
    </message>
    <message>
        <source>Photos that were not saved, or are damaged</source>
        <translation>Fotos que não foram salvas ou estão danificadas</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>Em</translation>
    </message>
    <message>
        <source>No photos chosen</source>
        <translation>Nenhuma foto escolhida</translation>
    </message>
    <message numerus="yes">
        <source>%1 and others: %Ln photos</source>
        <translation>
            <numerusform>%1 e outras: %Ln foto</numerusform>
            <numerusform>%1 e outras: %Ln fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Time left: %1</source>
        <translation>Tempo restante: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The program that renders photos cannot be started. Lumora is not completely installed.</source>
        <translation>Não é possível iniciar o programa que processa as fotos. A instalação do Lumora não está completa.</translation>
    </message>
    <message>
        <source>Cancelled. What was saved stays.</source>
        <translation>Cancelado. O que foi salvo permanece.</translation>
    </message>
    <message>
        <source>It ended before all photos were done.</source>
        <translation>Terminou antes que todas as fotos ficassem prontas.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Salvas: %1</translation>
    </message>
    <message>
        <source>Already there: %1</source>
        <translation>Já existentes: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Não salvas: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Escolhas</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Save as JPEG</source>
        <translation>Salvar como JPEG</translation>
    </message>
    <message>
        <source>JPEG, whatever the ending: %1</source>
        <translation>JPEG, seja qual for a extensão: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be saved there. %2</source>
        <translation>Não é possível salvar “%1” nesse local. %2</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Substituir</translation>
    </message>
    <message>
        <source>This is the photo that you opened. Replacing it cannot be undone.</source>
        <translation>Esta é a foto que você abriu. A substituição não pode ser desfeita.</translation>
    </message>
    <message>
        <source>Keep both saves “%1” beside it.</source>
        <translation>Manter ambas salva “%1” ao lado dela.</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Manter ambas</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>“%1” já existe. Deseja substituí-lo?</translation>
    </message>
</context>
<context>
    <name>SplitLine</name>
    <message>
        <source>Drag it across the photo. Esc ends the comparison.</source>
        <translation>Arraste-a pela foto. Esc encerra a comparação.</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>Linha entre antes e depois</translation>
    </message>
</context>
</TS>

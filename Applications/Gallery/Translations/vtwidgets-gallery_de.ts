<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>GalleryLook</name>
    <message>
        <source>purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>Orange</translation>
    </message>
</context>
<context>
    <name>GalleryPages</name>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Icons and tinting</source>
        <translation>Symbole und Tönung</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Maße</translation>
    </message>
    <message>
        <source>Standard widgets</source>
        <translation>Standardelemente</translation>
    </message>
    <message>
        <source>Sliders and ranges</source>
        <translation>Regler und Wertebereiche</translation>
    </message>
    <message>
        <source>Item views</source>
        <translation>Elementansichten</translation>
    </message>
    <message>
        <source>Scrolling</source>
        <translation>Bildlauf</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>Frames and panes</source>
        <translation>Rahmen und Paneele</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Schaltflächen</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Beschriftungen</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>Werkzeugknöpfe</translation>
    </message>
    <message>
        <source>Tool tips</source>
        <translation>Kurzinfos</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Eingabefelder</translation>
    </message>
    <message>
        <source>Check and combo boxes</source>
        <translation>Kontroll- und Kombinationsfelder</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>VTWidgetsLite gallery</source>
        <translation>VTWidgetsLite-Galerie</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Accent</source>
        <translation>Akzent</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Textgröße</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>+%1 points</source>
        <translation>+%1 Punkt</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>House style</source>
        <translation>Hausstil</translation>
    </message>
    <message>
        <source>The last good theme is shown. %1</source>
        <translation>Angezeigt wird das letzte fehlerfreie Thema. %1</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>VantraButton</name>
    <message>
        <source>Notifications: %1</source>
        <translation>Benachrichtigungen: %1</translation>
    </message>
</context>
<context>
    <name>VantraMainWindow</name>
    <message>
        <source>MainWindow</source>
        <translation>Hauptfenster</translation>
    </message>
</context>
<context>
    <name>VantraMessageBox</name>
    <message>
        <source>Don&apos;t show me this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
</context>
<context>
    <name>VantraProgress</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>VantraProgressMgr</name>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 von %3)</translation>
    </message>
</context>
<context>
    <name>VantraToolButton</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>VantraToolTipContent</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Learn how</source>
        <translation>So geht’s</translation>
    </message>
</context>
<context>
    <name>VantraToolTipContentFrame</name>
    <message>
        <source>Filter Style Preview</source>
        <translation>Vorschau des Filterstils</translation>
    </message>
</context>
</TS>

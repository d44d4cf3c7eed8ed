<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>FileCopyUtility</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Don&apos;t Copy</source>
        <translation>Nicht kopieren</translation>
    </message>
</context>
<context>
    <name>InnerPartDependingFilesHelper</name>
    <message>
        <source>Copy File</source>
        <translation>Datei kopieren</translation>
    </message>
    <message>
        <source>%1 is not next to the design file.
Do you want to copy it to %2?</source>
        <translation>%1 liegt nicht neben der Designdatei.
Soll die Datei nach %2 kopiert werden?</translation>
    </message>
    <message>
        <source>Copy Files</source>
        <translation>Dateien kopieren</translation>
    </message>
    <message>
        <source>Selected files are not next to the design file.
Do you want to copy them to %1?</source>
        <translation>Ausgewählte Dateien liegen nicht neben der Designdatei.
Sollen sie nach %1 kopiert werden?</translation>
    </message>
</context>
<context>
    <name>Zorvane::ZVMessageBox</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ZvFileName</name>
    <message>
        <source>Unknown File</source>
        <translation>Unbekannte Datei</translation>
    </message>
    <message>
        <source>ZV Design File</source>
        <translation>ZV-Designdatei</translation>
    </message>
    <message>
        <source>ZV Optimization File</source>
        <translation>ZV-Optimierungsdatei</translation>
    </message>
    <message>
        <source>ZV Simulation File R3.x</source>
        <translation>ZV-Simulationsdatei R3.x</translation>
    </message>
    <message>
        <source>ZV File</source>
        <translation>ZV-Datei</translation>
    </message>
    <message>
        <source>Nastran File</source>
        <translation>Nastran-Datei</translation>
    </message>
    <message>
        <source>IGES File</source>
        <translation>IGES-Datei</translation>
    </message>
    <message>
        <source>VDA File</source>
        <translation>VDA-Datei</translation>
    </message>
    <message>
        <source>STL File (ASCII)</source>
        <translation>STL-Datei (ASCII)</translation>
    </message>
    <message>
        <source>ZV Restart File</source>
        <translation>ZV-Neustartdatei</translation>
    </message>
    <message>
        <source>Vantrel File</source>
        <translation>Vantrel-Datei</translation>
    </message>
    <message>
        <source>Text File</source>
        <translation>Textdatei</translation>
    </message>
    <message>
        <source>Guideline File</source>
        <translation>Richtliniendatei</translation>
    </message>
    <message>
        <source>Material ASCII</source>
        <translation>Werkstoff (ASCII)</translation>
    </message>
    <message>
        <source>Material Binary</source>
        <translation>Werkstoff (binär)</translation>
    </message>
    <message>
        <source>Tool with Temperatures</source>
        <translation>Werkzeug mit Temperaturen</translation>
    </message>
    <message>
        <source>Profile File</source>
        <translation>Profildatei</translation>
    </message>
    <message>
        <source>Hemming Roller Geometry File</source>
        <translation>Rollfalz-Geometriedatei</translation>
    </message>
    <message>
        <source>ZV Assembly File</source>
        <translation>ZV-Baugruppendatei</translation>
    </message>
    <message>
        <source>Lubrication File</source>
        <translation>Schmierungsdatei</translation>
    </message>
    <message>
        <source>Frictor File</source>
        <translation>Frictor-Datei</translation>
    </message>
    <message>
        <source>ZV-Model File</source>
        <translation>ZV-Modelldatei</translation>
    </message>
    <message>
        <source>CATIA V5 File</source>
        <translation>CATIA-V5-Datei</translation>
    </message>
    <message>
        <source>CATIA V4 File</source>
        <translation>CATIA-V4-Datei</translation>
    </message>
    <message>
        <source>UG / NX File</source>
        <translation>UG/NX-Datei</translation>
    </message>
    <message>
        <source>IDEAS File</source>
        <translation>IDEAS-Datei</translation>
    </message>
    <message>
        <source>STEP File</source>
        <translation>STEP-Datei</translation>
    </message>
    <message>
        <source>PROE File</source>
        <translation>PROE-Datei</translation>
    </message>
    <message>
        <source>JT File</source>
        <translation>JT-Datei</translation>
    </message>
    <message>
        <source>Solid Works File</source>
        <translation>Solid-Works-Datei</translation>
    </message>
    <message>
        <source>Parasolid ASCII File</source>
        <translation>Parasolid-Datei (ASCII)</translation>
    </message>
    <message>
        <source>Parasolid Binary File</source>
        <translation>Parasolid-Datei (binär)</translation>
    </message>
    <message>
        <source>VISI CAD File</source>
        <translation>VISI-CAD-Datei</translation>
    </message>
    <message>
        <source>ZV Veskel Die File</source>
        <translation>ZV-Veskel-Werkzeugdatei</translation>
    </message>
    <message>
        <source>ZV Ormitra File</source>
        <translation>ZV-Ormitra-Datei</translation>
    </message>
    <message>
        <source>ZV Tandrel File</source>
        <translation>ZV-Tandrel-Datei</translation>
    </message>
    <message>
        <source>ZV Brakwell File</source>
        <translation>ZV-Brakwell-Datei</translation>
    </message>
    <message>
        <source>JSON File</source>
        <translation>JSON-Datei</translation>
    </message>
    <message>
        <source>ZV Press Elasticity Data</source>
        <translation>ZV-Pressenelastizitätsdaten</translation>
    </message>
    <message>
        <source>STL File (Binary)</source>
        <translation>STL-Datei (binär)</translation>
    </message>
    <message>
        <source>CSV File</source>
        <translation>CSV-Datei</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
</context>
</TS>

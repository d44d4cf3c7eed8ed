<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>CommandLineParser</name>
    <message>
        <source>Uses file dialogs without system services.</source>
        <translation>Verwendet Dateidialoge ohne Dienste des Systems.</translation>
    </message>
</context>
<context>
    <name>CopyCollisionDialog</name>
    <message>
        <source>The target folder already has a file named &quot;%1&quot;.</source>
        <translation>Im Zielordner gibt es schon eine Datei namens „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the target folder is the very file that is to be copied.</source>
        <translation>„%1“ im Zielordner ist dieselbe Datei, die kopiert werden soll.</translation>
    </message>
    <message>
        <source>More than one of the files to copy is named &quot;%1&quot;.</source>
        <translation>Mehrere der zu kopierenden Dateien heißen „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the target folder is not a file and cannot be replaced.</source>
        <translation>„%1“ im Zielordner ist keine Datei und kann nicht ersetzt werden.</translation>
    </message>
    <message>
        <source>Other file to copy</source>
        <translation>Andere zu kopierende Datei</translation>
    </message>
    <message>
        <source>In the target folder</source>
        <translation>Im Zielordner</translation>
    </message>
    <message>
        <source>File in the target folder</source>
        <translation>Datei im Zielordner</translation>
    </message>
    <message>
        <source>%1 (newer)</source>
        <translation>%1 (neuer)</translation>
    </message>
    <message>
        <source>%1 (larger)</source>
        <translation>%1 (größer)</translation>
    </message>
    <message>
        <source>Name Already Taken</source>
        <translation>Name schon vergeben</translation>
    </message>
    <message>
        <source>Keep Both names the copy &quot;%1&quot;.</source>
        <translation>„Beide behalten“ nennt die Kopie „%1“.</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Do this for all %n remaining</source>
        <translation>
            <numerusform>&amp;Für die %n weitere übernehmen</numerusform>
            <numerusform>&amp;Für alle %n weiteren übernehmen</numerusform>
        </translation>
    </message>
    <message>
        <source>File to copy</source>
        <translation>Zu kopierende Datei</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>E&amp;rsetzen</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Ü&amp;berspringen</translation>
    </message>
    <message>
        <source>Keep &amp;Both</source>
        <translation>Beide be&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>CopyProgressDialog</name>
    <message>
        <source>File %1 of %2, %3 of %4</source>
        <translation>Datei %1 von %2, %3 von %4</translation>
    </message>
    <message>
        <source>Estimating the time left</source>
        <translation>Restzeit wird geschätzt</translation>
    </message>
    <message>
        <source>%1 at %2 per second</source>
        <translation>%1 bei %2 pro Sekunde</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Copying Files</source>
        <translation>Dateien werden kopiert</translation>
    </message>
    <message>
        <source>Progress of the copy</source>
        <translation>Fortschritt des Kopierens</translation>
    </message>
    <message>
        <source>File being copied</source>
        <translation>Datei, die kopiert wird</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Wird abgebrochen</translation>
    </message>
</context>
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
    <message numerus="yes">
        <source>About %n seconds left</source>
        <translation>
            <numerusform>Noch etwa %n Sekunde</numerusform>
            <numerusform>Noch etwa %n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>Noch etwa %n Minute</numerusform>
            <numerusform>Noch etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>Noch etwa %n Stunde</numerusform>
            <numerusform>Noch etwa %n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>One file could not be copied.</source>
        <translation>Eine Datei konnte nicht kopiert werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be copied.</source>
        <translation>
            <numerusform>%n Datei konnte nicht kopiert werden.</numerusform>
            <numerusform>%n Dateien konnten nicht kopiert werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy Files</source>
        <translation>Dateien kopieren</translation>
    </message>
    <message>
        <source>Not copied because of the error before.</source>
        <translation>Wegen des vorigen Fehlers nicht kopiert.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Auf dem Datenträger ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>Your share of the disk is used up.</source>
        <translation>Ihr Anteil am Datenträger ist aufgebraucht.</translation>
    </message>
    <message>
        <source>The disk is write-protected.</source>
        <translation>Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The disk reports an error.</source>
        <translation>Der Datenträger meldet einen Fehler.</translation>
    </message>
    <message>
        <source>Access is denied.</source>
        <translation>Der Zugriff wird verweigert.</translation>
    </message>
    <message>
        <source>The operation is not permitted.</source>
        <translation>Der Vorgang ist nicht erlaubt.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Die Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The file is too large for the target&apos;s file system.</source>
        <translation>Die Datei ist zu groß für das Dateisystem des Ziels.</translation>
    </message>
    <message>
        <source>The name is too long for the target&apos;s file system.</source>
        <translation>Der Name ist zu lang für das Dateisystem des Ziels.</translation>
    </message>
    <message>
        <source>The target&apos;s file system does not allow this.</source>
        <translation>Das Dateisystem des Ziels lässt das nicht zu.</translation>
    </message>
    <message>
        <source>Another program keeps creating files of this name.</source>
        <translation>Ein anderes Programm legt immer wieder Dateien dieses Namens an.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Zu viele Dateien sind geöffnet.</translation>
    </message>
    <message>
        <source>The target&apos;s file system cannot create a file without the risk of replacing another.</source>
        <translation>Das Dateisystem des Ziels kann keine Datei anlegen, ohne dass dabei eine andere ersetzt werden könnte.</translation>
    </message>
    <message>
        <source>The target folder is no longer there.</source>
        <translation>Der Zielordner ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The file changed while it was being copied.</source>
        <translation>Die Datei hat sich während des Kopierens verändert.</translation>
    </message>
    <message>
        <source>This is not a file that can be copied.</source>
        <translation>Das ist keine Datei, die kopiert werden kann.</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>This file can only be saved at &apos;%1&apos;</source>
        <translation>Diese Datei kann nur in „%1“ gespeichert werden</translation>
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
    <name>NumberRepresentation</name>
    <message>
        <source>No value</source>
        <translation>Kein Wert</translation>
    </message>
</context>
<context>
    <name>PreviewFileDialogConfiguration</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
</context>
<context>
    <name>ReferenceIndicatorDelegate</name>
    <message>
        <source>No references</source>
        <translation>Keine Verweise</translation>
    </message>
    <message>
        <source>One reference</source>
        <translation>Ein Verweis</translation>
    </message>
    <message numerus="yes">
        <source>%n references</source>
        <translation>
            <numerusform>%n Verweis</numerusform>
            <numerusform>%n Verweise</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZVSaveDialog</name>
    <message>
        <source>!</source>
        <translation>!</translation>
    </message>
    <message>
        <source>The current design has not been saved since the last change.</source>
        <translation>Der aktuelle Entwurf wurde seit der letzten Änderung nicht gespeichert.</translation>
    </message>
    <message>
        <source>The current design contains simulation results.</source>
        <translation>Der aktuelle Entwurf enthält Simulationsergebnisse.</translation>
    </message>
    <message>
        <source>The current design has not been saved since the last change and contains simulation results.</source>
        <translation>Der aktuelle Entwurf wurde seit der letzten Änderung nicht gespeichert und enthält Simulationsergebnisse.</translation>
    </message>
    <message>
        <source>The current design is still running a simulation.</source>
        <translation>Für den aktuellen Entwurf läuft noch eine Simulation.</translation>
    </message>
    <message>
        <source>The current design has not been saved since the last change and is still running a simulation.</source>
        <translation>Der aktuelle Entwurf wurde seit der letzten Änderung nicht gespeichert, und es läuft noch eine Simulation dafür.</translation>
    </message>
    <message>
        <source>The current design was created with a previous version.</source>
        <translation>Der aktuelle Entwurf wurde mit einer früheren Version erstellt.</translation>
    </message>
    <message>
        <source>The current design has not been saved since the last change and was created with a previous version.</source>
        <translation>Der aktuelle Entwurf wurde seit der letzten Änderung nicht gespeichert und mit einer früheren Version erstellt.</translation>
    </message>
    <message>
        <source>The current design contains simulation results and was created with a previous version.</source>
        <translation>Der aktuelle Entwurf enthält Simulationsergebnisse und wurde mit einer früheren Version erstellt.</translation>
    </message>
    <message>
        <source>The current design has not been saved since the last change, contains simulation results and was created with a previous version.</source>
        <translation>Der aktuelle Entwurf wurde seit der letzten Änderung nicht gespeichert, enthält Simulationsergebnisse und wurde mit einer früheren Version erstellt.</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>�</source>
        <translation>�</translation>
    </message>
    <message>
        <source>Evaluation Data has changed. Would you like to continue closing the document &quot;%1&quot;?</source>
        <translation>Auswertungsdaten wurden geändert. Möchten Sie das Dokument „%1“ trotzdem schließen?</translation>
    </message>
    <message>
        <source>Do you want to save the changes to a new file prior to closing?</source>
        <translation>Möchten Sie die Änderungen vor dem Schließen in einer neuen Datei speichern?</translation>
    </message>
    <message>
        <source>Do you want to save the changes to &quot;%1&quot; prior to closing?</source>
        <translation>Möchten Sie die Änderungen vor dem Schließen in „%1“ speichern?</translation>
    </message>
    <message>
        <source>Saving is not allowed. Either kill simulation first or save to another file.</source>
        <translation>Speichern ist nicht erlaubt. Brechen Sie erst die Simulation ab, oder speichern Sie in einer anderen Datei.</translation>
    </message>
    <message>
        <source>Starting is not allowed. Kill simulation first.</source>
        <translation>Starten ist nicht erlaubt. Brechen Sie erst die Simulation ab.</translation>
    </message>
    <message>
        <source>Saving is not allowed, because the current design is still running a simulation.</source>
        <translation>Speichern ist nicht erlaubt, weil für den aktuellen Entwurf noch eine Simulation läuft.</translation>
    </message>
    <message>
        <source>If you confirm this action the consequences will be</source>
        <translation>Wenn Sie fortfahren, hat das folgende Auswirkungen:</translation>
    </message>
    <message>
        <source>Delete:</source>
        <translation>Löschen:</translation>
    </message>
    <message>
        <source>The simulation results are deleted from the file.</source>
        <translation>Die Simulationsergebnisse werden aus der Datei gelöscht.</translation>
    </message>
    <message>
        <source>Convert:</source>
        <translation>Konvertieren:</translation>
    </message>
    <message>
        <source>The design will be converted to the current version.</source>
        <translation>Der Entwurf wird in die aktuelle Version konvertiert.</translation>
    </message>
</context>
<context>
    <name>Zorvane::FileConverterDialog</name>
    <message>
        <source>The conversion stopped with an error: %1</source>
        <translation>Die Konvertierung endete mit einem Fehler: %1</translation>
    </message>
    <message>
        <source>The conversion stopped with an unknown error.</source>
        <translation>Die Konvertierung endete mit einem unbekannten Fehler.</translation>
    </message>
</context>
<context>
    <name>Zorvane::ZVConverterDialog</name>
    <message>
        <source>Input file</source>
        <translation>Eingabedatei</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>Choose &amp;File...</source>
        <translation>&amp;Datei wählen...</translation>
    </message>
    <message>
        <source>Choose F&amp;older...</source>
        <translation>&amp;Ordner wählen...</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Konvertieren</translation>
    </message>
    <message>
        <source>Copy &amp;Log</source>
        <translation>&amp;Protokoll kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Converting...</source>
        <translation>Wird konvertiert...</translation>
    </message>
    <message>
        <source>The file was converted.</source>
        <translation>Die Datei wurde konvertiert.</translation>
    </message>
    <message>
        <source>The input file could not be converted.</source>
        <translation>Die Eingabedatei konnte nicht konvertiert werden.</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Choose the file to convert.</source>
        <translation>Wählen Sie die Datei, die konvertiert werden soll.</translation>
    </message>
    <message>
        <source>Choose the folder for the output.</source>
        <translation>Wählen Sie den Ordner für die Ausgabe.</translation>
    </message>
    <message>
        <source>Ready to convert.</source>
        <translation>Bereit zum Konvertieren.</translation>
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
    <name>Zorvane::ZVSaveDialog</name>
    <message>
        <source>Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>&amp;Nicht speichern</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
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

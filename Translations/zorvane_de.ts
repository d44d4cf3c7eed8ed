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
    <message>
        <source>The target folder already has a write-protected file named &quot;%1&quot;. What replaces it will be write-protected, too.</source>
        <translation>Der Zielordner enthält schon eine schreibgeschützte Datei namens &quot;%1&quot;. Was sie ersetzt, wird ebenfalls schreibgeschützt sein.</translation>
    </message>
    <message>
        <source>&amp;Do this for all that follow</source>
        <translation>&amp;Für alle folgenden übernehmen</translation>
    </message>
    <message>
        <source>&amp;Do this for the remaining one, too</source>
        <translation>&amp;Auch für die eine weitere übernehmen</translation>
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
    <message>
        <source>File %1 of %2</source>
        <translation>Datei %1 von %2</translation>
    </message>
    <message>
        <source>Looking at the files</source>
        <translation>Dateien werden angesehen</translation>
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
    <message>
        <source>The files were copied, but there is something to know.</source>
        <translation>Die Dateien wurden kopiert, aber mit Einschränkungen.</translation>
    </message>
    <message>
        <source>The files need %1, but the target folder&apos;s disk has only %2 free. Copy as many as fit?</source>
        <translation>Die Dateien brauchen %1, aber auf dem Datenträger des Zielordners sind nur %2 frei. So viele kopieren, wie Platz haben?</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Und %n weitere.</numerusform>
            <numerusform>Und %n weitere.</numerusform>
        </translation>
    </message>
    <message>
        <source>This temporary file could not be removed.</source>
        <translation>Diese temporäre Datei konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The disk did not keep the file&apos;s date and permissions.</source>
        <translation>Der Datenträger hat Datum und Berechtigungen der Datei nicht behalten.</translation>
    </message>
    <message>
        <source>The disk did not keep the file&apos;s date.</source>
        <translation>Der Datenträger hat das Datum der Datei nicht behalten.</translation>
    </message>
    <message>
        <source>The disk did not keep the file&apos;s permissions.</source>
        <translation>Der Datenträger hat die Berechtigungen der Datei nicht behalten.</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>%1 already exists. Is it to be replaced?</source>
        <translation>%1 gibt es schon. Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
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
        <translation>&amp;Vorschau</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
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
    <message>
        <source>There is not enough memory for the conversion.</source>
        <translation>Für die Konvertierung reicht der Speicher nicht.</translation>
    </message>
</context>
<context>
    <name>Zorvane::GenericMainActions</name>
    <message>
        <source>???</source>
        <translation>???</translation>
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
    <name>Zorvane::ZVGlobalActions</name>
    <message>
        <source>HelpContents</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Open Help File</source>
        <translation>Hilfe öffnen</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>Shift+F1</source>
        <translation>Shift+F1</translation>
    </message>
</context>
<context>
    <name>Zorvane::ZVMainActions</name>
    <message>
        <source>The export of the complete VanTrel Data is disabled. Select a VanTrel Export Standards are required.</source>
        <translation>Der Export der vollständigen VanTrel-Daten ist gesperrt. Wählen Sie einen VanTrel-Exportstandard.</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>New Design</source>
        <translation>Neuer Entwurf</translation>
    </message>
    <message>
        <source>New Multi Blank</source>
        <translation>Neu mit mehreren Platinen</translation>
    </message>
    <message>
        <source>New Multi Blank Design</source>
        <translation>Neuer Entwurf mit mehreren Platinen</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Open with Standards</source>
        <translation>Mit Standards öffnen</translation>
    </message>
    <message>
        <source>Open Read-Only...</source>
        <translation>Schreibgeschützt öffnen...</translation>
    </message>
    <message>
        <source>Open File Read-Only</source>
        <translation>Datei schreibgeschützt öffnen</translation>
    </message>
    <message>
        <source>&amp;Reopen</source>
        <translation>&amp;Neu öffnen</translation>
    </message>
    <message>
        <source>Reopen Current Design</source>
        <translation>Aktuellen Entwurf neu öffnen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
    </message>
    <message>
        <source>Open &amp;Template...</source>
        <translation>&amp;Vorlage öffnen...</translation>
    </message>
    <message>
        <source>Open Template</source>
        <translation>Vorlage öffnen</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>New with Standards</source>
        <translation>Neu mit Standards</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save Design</source>
        <translation>Entwurf speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save Design As...</source>
        <translation>Entwurf speichern unter...</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Save Package</source>
        <translation>Paket speichern</translation>
    </message>
    <message>
        <source>Save the design and create a zip archive together with all required .asm files.</source>
        <translation>Den Entwurf speichern und ein ZIP-Archiv mit allen benötigten .asm-Dateien anlegen.</translation>
    </message>
    <message>
        <source>Save As (No Cost)...</source>
        <translation>Speichern unter (ohne Kosten)...</translation>
    </message>
    <message>
        <source>Save to PDM</source>
        <translation>In PDM speichern</translation>
    </message>
    <message>
        <source>Remove Time Steps from File...</source>
        <translation>Zeitschritte aus der Datei entfernen...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Print Current</source>
        <translation>Aktuelle Ansicht drucken</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>Preferences &amp; Options</source>
        <translation>Einstellungen und Optionen</translation>
    </message>
    <message>
        <source>Open Press Generator...</source>
        <translation>Pressengenerator öffnen...</translation>
    </message>
    <message>
        <source>Open Press Generator</source>
        <translation>Pressengenerator öffnen</translation>
    </message>
    <message>
        <source>Open Press Converter...</source>
        <translation>Pressenkonverter öffnen...</translation>
    </message>
    <message>
        <source>Open Press Converter</source>
        <translation>Pressenkonverter öffnen</translation>
    </message>
    <message>
        <source>Open Guideline Converter...</source>
        <translation>Richtlinienkonverter öffnen...</translation>
    </message>
    <message>
        <source>Open Guideline Converter</source>
        <translation>Richtlinienkonverter öffnen</translation>
    </message>
    <message>
        <source>Open Material Generator...</source>
        <translation>Werkstoffgenerator öffnen...</translation>
    </message>
    <message>
        <source>Open Material Generator</source>
        <translation>Werkstoffgenerator öffnen</translation>
    </message>
    <message>
        <source>Open Lubrication File Generator...</source>
        <translation>Schmierstoffgenerator öffnen...</translation>
    </message>
    <message>
        <source>Open Lubrication File Generator</source>
        <translation>Schmierstoffgenerator öffnen</translation>
    </message>
    <message>
        <source>&amp;Standards...</source>
        <translation>&amp;Standards...</translation>
    </message>
    <message>
        <source>Standards Editor</source>
        <translation>Editor für Standards</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close Current Design</source>
        <translation>Aktuellen Entwurf schließen</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>Ctrl+Shift+W</source>
        <translation>Ctrl+Shift+W</translation>
    </message>
    <message>
        <source>New Forming Window</source>
        <translation>Neues Umformfenster</translation>
    </message>
    <message>
        <source>New Tandrel Window</source>
        <translation>Neues Tandrel-Fenster</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Exit the Application</source>
        <translation>Die Anwendung beenden</translation>
    </message>
    <message>
        <source>Alt+F4</source>
        <translation>Alt+F4</translation>
    </message>
    <message>
        <source>Clone Design</source>
        <translation>Entwurf duplizieren</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Start Reporting...</source>
        <translation>Bericht beginnen...</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Clear Template</source>
        <translation>Vorlage leeren</translation>
    </message>
    <message>
        <source>Close Crop</source>
        <translation>Ausschnitt schließen</translation>
    </message>
    <message>
        <source>Close the Crop View</source>
        <translation>Die Ausschnittsansicht schließen</translation>
    </message>
    <message>
        <source>Shift+K</source>
        <translation>Shift+K</translation>
    </message>
    <message>
        <source>Toggle show roll angle</source>
        <translation>Rollwinkel ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Toggle Show Roll Angle</source>
        <translation>Rollwinkel ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Shift+R</source>
        <translation>Shift+R</translation>
    </message>
    <message>
        <source>Toggle shading in 3d view</source>
        <translation>Schattierung in der 3D-Ansicht umschalten</translation>
    </message>
    <message>
        <source>Toggle Shading in 3d View</source>
        <translation>Schattierung in der 3D-Ansicht umschalten</translation>
    </message>
    <message>
        <source>Alt+L</source>
        <translation>Alt+L</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Show Export Dialog</source>
        <translation>Dialog zum Exportieren zeigen</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>&amp;Export Image</source>
        <translation>Bild &amp;exportieren</translation>
    </message>
    <message>
        <source>Export the current 3D view to file</source>
        <translation>Die aktuelle 3D-Ansicht in eine Datei exportieren</translation>
    </message>
    <message>
        <source>Quick Export Image</source>
        <translation>Bild schnell exportieren</translation>
    </message>
    <message>
        <source>Ctrl+Shift+P</source>
        <translation>Ctrl+Shift+P</translation>
    </message>
    <message>
        <source>Export for Gallivor...</source>
        <translation>Für Gallivor exportieren...</translation>
    </message>
    <message>
        <source>Export design as file for Gallivor</source>
        <translation>Den Entwurf als Datei für Gallivor exportieren</translation>
    </message>
    <message>
        <source>Export &amp;Offset Surface...</source>
        <translation>&amp;Offsetfläche exportieren...</translation>
    </message>
    <message>
        <source>Export current offset surface</source>
        <translation>Die aktuelle Offsetfläche exportieren</translation>
    </message>
    <message>
        <source>Open from VanTrel...</source>
        <translation>Aus VanTrel öffnen...</translation>
    </message>
    <message>
        <source>Update from VanTrel...</source>
        <translation>Aus VanTrel aktualisieren...</translation>
    </message>
    <message>
        <source>Update From VanTrel...</source>
        <translation>Aus VanTrel aktualisieren...</translation>
    </message>
    <message>
        <source>Export to VanTrel...</source>
        <translation>Nach VanTrel exportieren...</translation>
    </message>
    <message>
        <source>Execute Script...</source>
        <translation>Skript ausführen...</translation>
    </message>
    <message>
        <source>Export to VanTrel with Standards</source>
        <translation>Mit Standards nach VanTrel exportieren</translation>
    </message>
    <message>
        <source>Export to VanTrel Standards...</source>
        <translation>In VanTrel-Standards exportieren...</translation>
    </message>
    <message>
        <source>Import from VanTrel...</source>
        <translation>Aus VanTrel importieren...</translation>
    </message>
    <message>
        <source>Rollers, Roller Paths and Hemming Definition...</source>
        <translation>Rollen, Rollenbahnen und Falzdefinition...</translation>
    </message>
    <message>
        <source>In this export only rollers, roller paths geometries and Hemming Definition are covered. The complete Hemming Process setup is not included.</source>
        <translation>Dieser Export umfasst nur Rollen, die Geometrie der Rollenbahnen und die Falzdefinition. Der vollständige Aufbau des Falzprozesses ist nicht enthalten.</translation>
    </message>
    <message>
        <source>shortcut to be defined</source>
        <translation>shortcut to be defined</translation>
    </message>
    <message>
        <source>Product for Testing...</source>
        <translation>Produkt zum Prüfen...</translation>
    </message>
    <message>
        <source>Joining Parameters...</source>
        <translation>Fügeparameter...</translation>
    </message>
    <message>
        <source>Fixation...</source>
        <translation>Fixierung...</translation>
    </message>
    <message>
        <source>Process Joining...</source>
        <translation>Prozessfügen...</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Undo Last Action</source>
        <translation>Letzte Aktion rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Redo Last Action</source>
        <translation>Letzte Aktion wiederholen</translation>
    </message>
    <message>
        <source>Compute</source>
        <translation>Berechnen</translation>
    </message>
    <message>
        <source>Creates, computes and loads a simulation</source>
        <translation>Legt eine Simulation an, berechnet und lädt sie</translation>
    </message>
    <message>
        <source>Load...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>Loads a simulation from file</source>
        <translation>Lädt eine Simulation aus einer Datei</translation>
    </message>
    <message>
        <source>Single View</source>
        <translation>Eine Ansicht</translation>
    </message>
    <message>
        <source>Two Horizontal Views</source>
        <translation>Zwei Ansichten nebeneinander</translation>
    </message>
    <message>
        <source>Two Vertical Views</source>
        <translation>Zwei Ansichten übereinander</translation>
    </message>
    <message>
        <source>Four Views</source>
        <translation>Vier Ansichten</translation>
    </message>
    <message>
        <source>Auto Fit 2 Monitors</source>
        <translation>An zwei Bildschirme anpassen</translation>
    </message>
    <message>
        <source>Alt+2</source>
        <translation>Alt+2</translation>
    </message>
    <message>
        <source>Sketch View</source>
        <translation>Skizzenansicht</translation>
    </message>
    <message>
        <source>Show sheet reference(s) for visible sheet(s) (Set to current time step with R)</source>
        <translation>Blechreferenzen zu sichtbaren Blechen zeigen (mit R auf den aktuellen Zeitschritt setzen)</translation>
    </message>
    <message>
        <source>Show Sheet</source>
        <translation>Blech zeigen</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Show Mirrored Sheet</source>
        <translation>Gespiegeltes Blech zeigen</translation>
    </message>
    <message>
        <source>Show Geometry on both Symmetric Sides</source>
        <translation>Geometrie auf beiden symmetrischen Seiten zeigen</translation>
    </message>
    <message>
        <source>Show Geometry only on secondary Symmetric Side</source>
        <translation>Geometrie nur auf der zweiten symmetrischen Seite zeigen</translation>
    </message>
    <message>
        <source>Show Geometry only on primary Symmetric Side</source>
        <translation>Geometrie nur auf der ersten symmetrischen Seite zeigen</translation>
    </message>
    <message>
        <source>Show Connectors</source>
        <translation>Verbinder zeigen</translation>
    </message>
    <message>
        <source>Show Tools of Current Operation</source>
        <translation>Werkzeuge der aktuellen Operation zeigen</translation>
    </message>
    <message>
        <source>T</source>
        <translation>T</translation>
    </message>
    <message>
        <source>Show Upper Forming Tools of Current Operation</source>
        <translation>Obere Werkzeuge der aktuellen Operation zeigen</translation>
    </message>
    <message>
        <source>Show Lower Forming Tools of Current Operation</source>
        <translation>Untere Werkzeuge der aktuellen Operation zeigen</translation>
    </message>
    <message>
        <source>Show Tools</source>
        <translation>Werkzeuge zeigen</translation>
    </message>
    <message>
        <source>Show Upper Forming Tools</source>
        <translation>Obere Umformwerkzeuge zeigen</translation>
    </message>
    <message>
        <source>Show Lower Forming Tools</source>
        <translation>Untere Umformwerkzeuge zeigen</translation>
    </message>
    <message>
        <source>Show Current Parts</source>
        <translation>Aktuelle Teile zeigen</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Show Blank</source>
        <translation>Platine zeigen</translation>
    </message>
    <message>
        <source>Show Press Bed of Current Operation</source>
        <translation>Pressentisch der aktuellen Operation zeigen</translation>
    </message>
    <message>
        <source>Show Drawbeads of All Operations incl. Force</source>
        <translation>Ziehsicken aller Operationen mit Kräften zeigen</translation>
    </message>
    <message>
        <source>Ctrl+B</source>
        <translation>Ctrl+B</translation>
    </message>
    <message>
        <source>Show Tube</source>
        <translation>Rohr zeigen</translation>
    </message>
    <message>
        <source>Show Formed Tube</source>
        <translation>Umgeformtes Rohr zeigen</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>In Fenster einpassen</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>View all From +X</source>
        <translation>Alles von +X</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>View all From -X</source>
        <translation>Alles von -X</translation>
    </message>
    <message>
        <source>Shift+X</source>
        <translation>Shift+X</translation>
    </message>
    <message>
        <source>View all From +Y</source>
        <translation>Alles von +Y</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>View all From -Y</source>
        <translation>Alles von -Y</translation>
    </message>
    <message>
        <source>Shift+Y</source>
        <translation>Shift+Y</translation>
    </message>
    <message>
        <source>View all From +Z</source>
        <translation>Alles von +Z</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>View all From -Z</source>
        <translation>Alles von -Z</translation>
    </message>
    <message>
        <source>Shift+Z</source>
        <translation>Shift+Z</translation>
    </message>
    <message>
        <source>Isometric View</source>
        <translation>Isometrische Ansicht</translation>
    </message>
    <message>
        <source>Isometric View and Fit Scene</source>
        <translation>Isometrische Ansicht, Szene eingepasst</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>Isometric View (%1 Around Z)</source>
        <translation>Isometrische Ansicht (%1 um Z)</translation>
    </message>
    <message>
        <source>Isometric View (%1 Around Z) and Fit Scene</source>
        <translation>Isometrische Ansicht (%1 um Z), Szene eingepasst</translation>
    </message>
    <message>
        <source>Shift+E</source>
        <translation>Shift+E</translation>
    </message>
    <message>
        <source>View From X (Short Path)</source>
        <translation>Von X (kürzester Weg)</translation>
    </message>
    <message>
        <source>Alt+X</source>
        <translation>Alt+X</translation>
    </message>
    <message>
        <source>View From Y (Short Path)</source>
        <translation>Von Y (kürzester Weg)</translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>View From Z (Short Path)</source>
        <translation>Von Z (kürzester Weg)</translation>
    </message>
    <message>
        <source>Alt+Z</source>
        <translation>Alt+Z</translation>
    </message>
    <message>
        <source>%1 Around Screen Z</source>
        <translation>%1 um Z des Bildschirms</translation>
    </message>
    <message>
        <source>Rotate View Around Screen +Z</source>
        <translation>Die Ansicht um +Z des Bildschirms drehen</translation>
    </message>
    <message>
        <source>Shift+Right</source>
        <translation>Shift+Right</translation>
    </message>
    <message>
        <source>Rotate View Around Screen -Z</source>
        <translation>Die Ansicht um -Z des Bildschirms drehen</translation>
    </message>
    <message>
        <source>Shift+Left</source>
        <translation>Shift+Left</translation>
    </message>
    <message>
        <source>Flip View</source>
        <translation>Ansicht wenden</translation>
    </message>
    <message>
        <source>Flip the view</source>
        <translation>Die Ansicht wenden</translation>
    </message>
    <message>
        <source>Shift+V</source>
        <translation>Shift+V</translation>
    </message>
    <message>
        <source>Last View</source>
        <translation>Letzte Ansicht</translation>
    </message>
    <message>
        <source>Restore the last view</source>
        <translation>Zur letzten Ansicht zurückkehren</translation>
    </message>
    <message>
        <source>Shift+L</source>
        <translation>Shift+L</translation>
    </message>
    <message>
        <source>Zoom to Feature</source>
        <translation>Auf Merkmal zoomen</translation>
    </message>
    <message>
        <source>Alt+F</source>
        <translation>Alt+F</translation>
    </message>
    <message>
        <source>Toggle Overview</source>
        <translation>Übersicht umschalten</translation>
    </message>
    <message>
        <source>Shift+D</source>
        <translation>Shift+D</translation>
    </message>
    <message>
        <source>Make Snapshot for Preview</source>
        <translation>Vorschaubild aufnehmen</translation>
    </message>
    <message>
        <source>A Screenshot was manually captured and saved for File Preview.</source>
        <translation>Ein Bild wurde von Hand aufgenommen und für die Dateivorschau gespeichert.</translation>
    </message>
    <message>
        <source>Automatic Snapshot for Preview</source>
        <translation>Vorschaubild selbsttätig aufnehmen</translation>
    </message>
    <message>
        <source>Automatic Screenshot capturing is enabled. Manually captured ones will be overwritten.</source>
        <translation>Bilder werden selbsttätig aufgenommen. Von Hand aufgenommene werden überschrieben.</translation>
    </message>
    <message>
        <source>Next Time Step</source>
        <translation>Nächster Zeitschritt</translation>
    </message>
    <message>
        <source>Previous Time Step</source>
        <translation>Voriger Zeitschritt</translation>
    </message>
    <message>
        <source>Simulation Begin</source>
        <translation>Beginn der Simulation</translation>
    </message>
    <message>
        <source>Simulation End</source>
        <translation>Ende der Simulation</translation>
    </message>
    <message>
        <source>End of Previous Operation</source>
        <translation>Ende der vorigen Operation</translation>
    </message>
    <message>
        <source>End of Current/Next Operation</source>
        <translation>Ende der aktuellen/nächsten Operation</translation>
    </message>
    <message>
        <source>Start/Stop Animation</source>
        <translation>Animation starten/anhalten</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Kontinuierlich</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Out of Spec</source>
        <translation>Außerhalb der Vorgabe</translation>
    </message>
    <message>
        <source>P</source>
        <translation>P</translation>
    </message>
    <message>
        <source>Out of Range</source>
        <translation>Außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>O</source>
        <translation>O</translation>
    </message>
    <message>
        <source>Discrete</source>
        <translation>Diskret</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Operation Coordinates</source>
        <translation>Koordinaten der Operation</translation>
    </message>
    <message>
        <source>Non-Pitched Station Coordinates</source>
        <translation>Stationskoordinaten ohne Vorschub</translation>
    </message>
    <message>
        <source>Product Coordinates</source>
        <translation>Produktkoordinaten</translation>
    </message>
    <message>
        <source>Pressline View</source>
        <translation>Ansicht der Pressenlinie</translation>
    </message>
    <message>
        <source>Pitched Station Coordinates</source>
        <translation>Stationskoordinaten mit Vorschub</translation>
    </message>
    <message>
        <source>Show Current Station/Feature</source>
        <translation>Aktuelle Station/aktuelles Merkmal zeigen</translation>
    </message>
    <message>
        <source>Show Current and Neighboring Stations/Features</source>
        <translation>Aktuelle und benachbarte Stationen/Merkmale zeigen</translation>
    </message>
    <message>
        <source>Show All Stations/Features</source>
        <translation>Alle Stationen/Merkmale zeigen</translation>
    </message>
    <message>
        <source>Follow Sheet</source>
        <translation>Dem Blech folgen</translation>
    </message>
    <message>
        <source>Increase Font Size</source>
        <translation>Schrift vergrößern</translation>
    </message>
    <message>
        <source>Decrease Font Size</source>
        <translation>Schrift verkleinern</translation>
    </message>
    <message>
        <source>Enable/Disable Lighter Version</source>
        <translation>Leichtere Fassung ein-/ausschalten</translation>
    </message>
    <message>
        <source>Shift+Ctrl+L</source>
        <translation>Shift+Ctrl+L</translation>
    </message>
    <message>
        <source>Toggle White 3D-View Background</source>
        <translation>Weißen Hintergrund der 3D-Ansicht umschalten</translation>
    </message>
    <message>
        <source>Shift+W</source>
        <translation>Shift+W</translation>
    </message>
    <message>
        <source>Enable/disable display item spotlighting</source>
        <translation>Hervorheben von Anzeigeobjekten ein-/ausschalten</translation>
    </message>
    <message>
        <source>*</source>
        <translation>*</translation>
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

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>BackgroundWork</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench</name>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>New rows anywhere, until there are twice as many</source>
        <translation>Neue Zeilen an beliebigen Stellen, bis es doppelt so viele sind</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>E&amp;ntfernen</translation>
    </message>
    <message>
        <source>Rows go, with what is below them</source>
        <translation>Zeilen verschwinden samt allem darunter</translation>
    </message>
    <message>
        <source>Mo&amp;ve</source>
        <translation>&amp;Verschieben</translation>
    </message>
    <message>
        <source>Rows go elsewhere among their siblings</source>
        <translation>Zeilen wandern an eine andere Stelle unter ihren Geschwistern</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Rows get another text</source>
        <translation>Zeilen erhalten einen anderen Text</translation>
    </message>
    <message>
        <source>Sh&amp;uffle</source>
        <translation>&amp;Mischen</translation>
    </message>
    <message>
        <source>All siblings get another order</source>
        <translation>Alle Geschwister erhalten eine andere Reihenfolge</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignCatalog</name>
    <message>
        <source>Die</source>
        <translation>Matrize</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>Binder</source>
        <translation>Blechhalter</translation>
    </message>
    <message>
        <source>Pad</source>
        <translation>Niederhalter</translation>
    </message>
    <message>
        <source>Knife</source>
        <translation>Messer</translation>
    </message>
    <message>
        <source>Post</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Steel</source>
        <translation>Schneidstahl</translation>
    </message>
    <message>
        <source>Draw operation</source>
        <translation>Ziehoperation</translation>
    </message>
    <message>
        <source>Trim operation</source>
        <translation>Beschneideoperation</translation>
    </message>
    <message>
        <source>Pierce operation</source>
        <translation>Lochoperation</translation>
    </message>
    <message>
        <source>Flange operation</source>
        <translation>Abkantoperation</translation>
    </message>
    <message>
        <source>Restrike operation</source>
        <translation>Nachschlagoperation</translation>
    </message>
    <message>
        <source>File missing</source>
        <translation>Datei fehlt</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Außerhalb</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Unlesbar</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Changed on disk</source>
        <translation>Auf der Platte geändert</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Platine</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Werkstoff</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Mesh file</source>
        <translation>Netzdatei</translation>
    </message>
    <message>
        <source>Material file</source>
        <translation>Werkstoffdatei</translation>
    </message>
    <message>
        <source>Result file</source>
        <translation>Ergebnisdatei</translation>
    </message>
    <message>
        <source>Design file</source>
        <translation>Entwurfsdatei</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignCopy</name>
    <message>
        <source>%1 copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>%1 Kopie %2</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignPipeline</name>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operationen</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Werkstoffe</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Mesh files</source>
        <translation>Netzdateien</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignReader</name>
    <message>
        <source>must be an object</source>
        <translation>muss ein Objekt sein</translation>
    </message>
    <message>
        <source>names an entry that the design doesn&apos;t have</source>
        <translation>nennt einen Eintrag, den der Entwurf nicht hat</translation>
    </message>
    <message>
        <source>&quot;%1&quot; leads out of the design&apos;s folder</source>
        <translation>„%1“ führt aus dem Ordner des Entwurfs hinaus</translation>
    </message>
    <message>
        <source>line %1, column %2 (offset %3)</source>
        <translation>Zeile %1, Spalte %2 (Position %3)</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>muss eine Zahl sein</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>doesn&apos;t exist</source>
        <translation>gibt es nicht</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>is too large for a design file: %1, the limit is %2</source>
        <translation>ist zu groß für eine Entwurfsdatei: %1, erlaubt sind %2</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is no complete JSON: %1</source>
        <translation>ist kein vollständiges JSON: %1</translation>
    </message>
    <message>
        <source>must hold a JSON object</source>
        <translation>muss ein JSON-Objekt enthalten</translation>
    </message>
    <message numerus="yes">
        <source>has %n more problem(s)</source>
        <translation>
            <numerusform>hat %n weiteres Problem</numerusform>
            <numerusform>hat %n weitere Probleme</numerusform>
        </translation>
    </message>
    <message>
        <source>the same identifier is used in %1, which is open</source>
        <translation>dieselbe Kennung wird in %1 benutzt, das geöffnet ist</translation>
    </message>
    <message>
        <source>the same identifier is used at %1</source>
        <translation>dieselbe Kennung wird bei %1 benutzt</translation>
    </message>
    <message>
        <source>must be a text</source>
        <translation>muss ein Text sein</translation>
    </message>
    <message>
        <source>must be a number of at least 0</source>
        <translation>muss eine Zahl von mindestens 0 sein</translation>
    </message>
    <message>
        <source>must be the identifier (UUID) of another entry</source>
        <translation>muss die Kennung (UUID) eines anderen Eintrags sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no UUID</source>
        <translation>„%1“ ist keine UUID</translation>
    </message>
    <message>
        <source>must be a list</source>
        <translation>muss eine Liste sein</translation>
    </message>
    <message>
        <source>version %1 isn&apos;t supported, only versions %2 to %3 are</source>
        <translation>Version %1 wird nicht unterstützt, nur die Versionen %2 bis %3</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>ist zu groß</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignRelocation</name>
    <message>
        <source>cannot be made a folder</source>
        <translation>lässt sich nicht als Ordner anlegen</translation>
    </message>
    <message>
        <source>was not copied</source>
        <translation>wurde nicht kopiert</translation>
    </message>
    <message>
        <source>is no longer what it was; nothing is copied</source>
        <translation>ist nicht mehr, was es war; nichts wird kopiert</translation>
    </message>
    <message>
        <source>comes along and has the name that the design shall get</source>
        <translation>kommt mit und heißt so, wie der Entwurf heißen soll</translation>
    </message>
    <message>
        <source>is open here and is not replaced</source>
        <translation>ist hier geöffnet und wird nicht ersetzt</translation>
    </message>
    <message>
        <source>comes along by a link, out of reach from %1</source>
        <translation>kommt durch eine Verknüpfung mit, außer Reichweite von %1</translation>
    </message>
    <message>
        <source>is a link to the folder that the files come from</source>
        <translation>ist eine Verknüpfung zu dem Ordner, aus dem die Dateien kommen</translation>
    </message>
    <message>
        <source>is a link that leads out of the design&apos;s new folder</source>
        <translation>ist eine Verknüpfung, die aus dem neuen Ordner des Entwurfs hinausführt</translation>
    </message>
    <message>
        <source>has the name of another file that comes along</source>
        <translation>heißt wie eine andere Datei, die mitkommt</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignSaving</name>
    <message>
        <source>The simulation of %1 was stopped.</source>
        <translation>Die Simulation von %1 wurde gestoppt.</translation>
    </message>
    <message>
        <source>%1 is not saved while its simulation is running.</source>
        <translation>%1 wird nicht gespeichert, solange die Simulation dafür läuft.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Another program has changed the design meanwhile. Replace its version by yours?</source>
        <translation>Ein anderes Programm hat den Entwurf inzwischen geändert. Dessen Fassung durch Ihre ersetzen?</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>The simulation of %1 is running. Stop it and lose what it has computed so far?</source>
        <translation>Die Simulation von %1 läuft. Soll sie gestoppt werden? Was sie bisher berechnet hat, geht verloren.</translation>
    </message>
    <message>
        <source>The simulation of %1 is done: %2</source>
        <translation>Die Simulation von %1 ist fertig: %2</translation>
    </message>
    <message>
        <source>The simulation of %1 is done; the design has its results.</source>
        <translation>Die Simulation von %1 ist fertig; der Entwurf enthält ihre Ergebnisse.</translation>
    </message>
    <message>
        <source>The simulation of %1 is done. Save the design to keep its results.</source>
        <translation>Die Simulation von %1 ist fertig. Speichern Sie den Entwurf, um die Ergebnisse zu behalten.</translation>
    </message>
    <message>
        <source>The design is no longer open.</source>
        <translation>Der Entwurf ist nicht mehr geöffnet.</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignSession</name>
    <message>
        <source>A name must not be empty.</source>
        <translation>Ein Name darf nicht leer sein.</translation>
    </message>
    <message>
        <source>A name must not be longer than %1 characters.</source>
        <translation>Ein Name darf nicht länger als %1 Zeichen sein.</translation>
    </message>
    <message>
        <source>A name must be one line without control characters.</source>
        <translation>Ein Name muss eine Zeile ohne Steuerzeichen sein.</translation>
    </message>
    <message>
        <source>doesn&apos;t exist</source>
        <translation>gibt es nicht</translation>
    </message>
    <message>
        <source>is a folder that may not be read</source>
        <translation>ist ein Ordner, der nicht gelesen werden darf</translation>
    </message>
    <message>
        <source>holds neither a design file nor mesh files</source>
        <translation>enthält weder eine Entwurfsdatei noch Netzdateien</translation>
    </message>
    <message>
        <source>is neither a design file (dsg) nor a mesh file (stl, obj, ply)</source>
        <translation>ist weder eine Entwurfsdatei (dsg) noch eine Netzdatei (stl, obj, ply)</translation>
    </message>
    <message>
        <source>A mesh file that was opened by itself is named by its file.</source>
        <translation>Eine einzeln geöffnete Netzdatei heißt wie ihre Datei.</translation>
    </message>
    <message>
        <source>The object to be renamed is no longer there.</source>
        <translation>Das umzubenennende Objekt ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The object has no such value.</source>
        <translation>Das Objekt hat keinen solchen Wert.</translation>
    </message>
    <message>
        <source>A value must be a number from 0 on.</source>
        <translation>Ein Wert muss eine Zahl ab 0 sein.</translation>
    </message>
    <message>
        <source>the design is no longer open</source>
        <translation>der Entwurf ist nicht mehr geöffnet</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignStore</name>
    <message>
        <source>reference &quot;%1&quot;</source>
        <translation>Bezug „%1“</translation>
    </message>
    <message>
        <source>closes a circle of designs: %1</source>
        <translation>schließt einen Kreis von Entwürfen: %1</translation>
    </message>
    <message>
        <source>more than %1 designs refer to one another in a row</source>
        <translation>mehr als %1 Entwürfe beziehen sich nacheinander aufeinander</translation>
    </message>
    <message>
        <source>was changed by another program; your unsaved changes are kept</source>
        <translation>wurde von einem anderen Programm geändert; Ihre nicht gespeicherten Änderungen bleiben erhalten</translation>
    </message>
    <message>
        <source>is shown as it was read last</source>
        <translation>wird gezeigt, wie es zuletzt gelesen wurde</translation>
    </message>
    <message>
        <source>was changed by another program and is not overwritten</source>
        <translation>wurde von einem anderen Programm geändert und wird nicht überschrieben</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignTree</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Used by</source>
        <translation>Nutzer</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Size in mm</source>
        <translation>Größe in mm</translation>
    </message>
    <message>
        <source>Surface in mm²</source>
        <translation>Fläche in mm²</translation>
    </message>
    <message>
        <source>Watertight</source>
        <translation>Dicht</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignTreeDelegate</name>
    <message>
        <source>New name of %1</source>
        <translation>Neuer Name von %1</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DesignWriter</name>
    <message>
        <source>cannot be written: %1</source>
        <translation>lässt sich nicht schreiben: %1</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DetailsPanel</name>
    <message>
        <source>Details of the selected object</source>
        <translation>Einzelheiten des gewählten Objekts</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>Watertight</source>
        <translation>Geschlossen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Used by</source>
        <translation>Benutzt von</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DialogOutcome</name>
    <message>
        <source>Shown by: %1</source>
        <translation>Gezeigt von: %1</translation>
    </message>
    <message>
        <source>Exception: %1</source>
        <translation>Ausnahme: %1</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Typ: %1</translation>
    </message>
    <message>
        <source>The ending was added.</source>
        <translation>Die Endung wurde angehängt.</translation>
    </message>
    <message>
        <source>Dialogs open: at most %1, now %2</source>
        <translation>Offene Dialoge: höchstens %1, jetzt %2</translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation>Nichts gewählt</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Gewählt: %1</translation>
    </message>
    <message>
        <source>Controls:</source>
        <translation>Bedienelemente:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>No events</source>
        <translation>Keine Ereignisse</translation>
    </message>
    <message>
        <source>Events, [dialogs open]:</source>
        <translation>Ereignisse, [offene Dialoge]:</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DialogPanel</name>
    <message>
        <source>File Dialogs</source>
        <translation>Dateidialoge</translation>
    </message>
    <message>
        <source>The example files cannot be written.</source>
        <translation>Die Beispieldateien lassen sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Variants</source>
        <translation>Varianten</translation>
    </message>
    <message>
        <source>&amp;Variants:</source>
        <translation>&amp;Varianten:</translation>
    </message>
    <message>
        <source>Shown by</source>
        <translation>Gezeigt von</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Shown by:</source>
        <translation>&amp;Gezeigt von:</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Open one of the variants: what came out stands here.</source>
        <translation>Öffnen Sie eine der Varianten: Was herauskam, steht hier.</translation>
    </message>
    <message>
        <source>&amp;Results:</source>
        <translation>&amp;Ergebnisse:</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Dialogs open now: %1</source>
        <translation>Jetzt offene Dialoge: %1</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::DialogRun</name>
    <message>
        <source>Open one file</source>
        <translation>Eine Datei öffnen</translation>
    </message>
    <message>
        <source>One of four types filters the list. Enter a name with its path, or an unknown one: that is refused.</source>
        <translation>Einer von vier Typen filtert die Liste. Geben Sie einen Namen mit Pfad ein, oder einen unbekannten: Der wird abgelehnt.</translation>
    </message>
    <message>
        <source>Open one file: type preselected</source>
        <translation>Eine Datei öffnen: Typ vorgewählt</translation>
    </message>
    <message>
        <source>The tables are preselected. Only Qt&apos;s dialogs tell the type that was chosen.</source>
        <translation>Vorgewählt sind die Tabellen. Nur Qts Dialoge sagen, welcher Typ gewählt wurde.</translation>
    </message>
    <message>
        <source>Open one file: file preset</source>
        <translation>Eine Datei öffnen: Datei vorgegeben</translation>
    </message>
    <message>
        <source>&quot;notes.txt&quot; stands in the name box, and is selected in the list once all files are shown.</source>
        <translation>„notes.txt“ steht im Namensfeld und ist in der Liste ausgewählt, sobald alle Dateien gezeigt werden.</translation>
    </message>
    <message>
        <source>Open several files</source>
        <translation>Mehrere Dateien öffnen</translation>
    </message>
    <message>
        <source>Select several: they come out as the dialog gives them.</source>
        <translation>Wählen Sie mehrere: Sie kommen heraus, wie der Dialog sie liefert.</translation>
    </message>
    <message>
        <source>Open with places</source>
        <translation>Öffnen mit Orten</translation>
    </message>
    <message>
        <source>The folder &quot;more&quot; and the home folder are offered as places; one that does not exist is not.</source>
        <translation>Der Ordner „more“ und der eigene Ordner werden als Orte angeboten; einer, den es nicht gibt, nicht.</translation>
    </message>
    <message>
        <source>Open with controls</source>
        <translation>Öffnen mit Bedienelementen</translation>
    </message>
    <message>
        <source>Check boxes and combo boxes, some with a label, two beside the buttons. &quot;More&quot; enables one and shows another.</source>
        <translation>Ankreuzfelder und Auswahllisten, teils beschriftet, zwei neben den Schaltflächen. „Mehr“ gibt eines frei und zeigt ein anderes.</translation>
    </message>
    <message>
        <source>Open several files with controls</source>
        <translation>Mehrere Dateien öffnen mit Bedienelementen</translation>
    </message>
    <message>
        <source>The selected files are told in the order of the name box.</source>
        <translation>Die ausgewählten Dateien werden in der Reihenfolge des Namensfelds gemeldet.</translation>
    </message>
    <message>
        <source>Open in its place</source>
        <translation>Öffnen an seinem Platz</translation>
    </message>
    <message>
        <source>The check box moves the dialog to the upper left corner. Moved and resized by hand, it opens there again.</source>
        <translation>Das Ankreuzfeld schiebt den Dialog in die obere linke Ecke. Von Hand verschoben und vergrößert, öffnet er sich wieder dort.</translation>
    </message>
    <message>
        <source>Open one file with preview</source>
        <translation>Eine Datei öffnen mit Vorschau</translation>
    </message>
    <message>
        <source>The preview stands beside the dialog, shows what is selected, and is switched by the check box.</source>
        <translation>Die Vorschau steht neben dem Dialog, zeigt, was ausgewählt ist, und wird durch das Ankreuzfeld ein- und ausgeschaltet.</translation>
    </message>
    <message>
        <source>Open several files with preview</source>
        <translation>Mehrere Dateien öffnen mit Vorschau</translation>
    </message>
    <message>
        <source>The preview shows the first one.</source>
        <translation>Die Vorschau zeigt die erste.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>&quot;part.stl&quot; is proposed. The type that was last saved is preselected.</source>
        <translation>„part.stl“ wird vorgeschlagen. Vorgewählt ist der Typ, der zuletzt gespeichert wurde.</translation>
    </message>
    <message>
        <source>Save: name without ending</source>
        <translation>Speichern: Name ohne Endung</translation>
    </message>
    <message>
        <source>&quot;part&quot; is proposed and gets the ending of the first type, &quot;.stl&quot;.</source>
        <translation>„part“ wird vorgeschlagen und bekommt die Endung des ersten Typs, „.stl“.</translation>
    </message>
    <message>
        <source>Save: type preselected</source>
        <translation>Speichern: Typ vorgewählt</translation>
    </message>
    <message>
        <source>The tables are preselected; a name without ending gets &quot;.csv&quot;.</source>
        <translation>Vorgewählt sind die Tabellen; ein Name ohne Endung bekommt „.csv“.</translation>
    </message>
    <message>
        <source>Save: name of a file that exists</source>
        <translation>Speichern: Name einer vorhandenen Datei</translation>
    </message>
    <message>
        <source>&quot;block.stl&quot; is proposed. The dialog asks whether to replace it; No leaves it open. Nothing is written.</source>
        <translation>„block.stl“ wird vorgeschlagen. Der Dialog fragt, ob sie ersetzt werden soll; bei Nein bleibt er offen. Geschrieben wird nichts.</translation>
    </message>
    <message>
        <source>Save in one folder only</source>
        <translation>Nur in einem Ordner speichern</translation>
    </message>
    <message>
        <source>Save in another folder: a box says where it must be, and the dialog comes again.</source>
        <translation>Speichern Sie in einem anderen Ordner: Eine Meldung sagt, wo es sein muss, und der Dialog kommt wieder.</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Einen Ordner wählen</translation>
    </message>
    <message>
        <source>Always Qt&apos;s dialog.</source>
        <translation>Immer Qts Dialog.</translation>
    </message>
    <message>
        <source>Choose a folder: one proposed</source>
        <translation>Einen Ordner wählen: einer vorgeschlagen</translation>
    </message>
    <message>
        <source>The folder &quot;more&quot; is proposed.</source>
        <translation>Der Ordner „more“ wird vorgeschlagen.</translation>
    </message>
    <message>
        <source>A dialog from inside a dialog</source>
        <translation>Ein Dialog aus einem Dialog heraus</translation>
    </message>
    <message>
        <source>The check box opens another dialog. Move both: each keeps a place of its own.</source>
        <translation>Das Ankreuzfeld öffnet einen weiteren Dialog. Verschieben Sie beide: Jeder behält seinen eigenen Platz.</translation>
    </message>
    <message>
        <source>A handler that fails</source>
        <translation>Ein Empfänger, der scheitert</translation>
    </message>
    <message>
        <source>The check box throws an exception: the dialog closes, and it comes out of the call.</source>
        <translation>Das Ankreuzfeld wirft eine Ausnahme: Der Dialog schließt sich, und sie kommt aus dem Aufruf heraus.</translation>
    </message>
    <message>
        <source>the system, as usual</source>
        <translation>das System, wie sonst</translation>
    </message>
    <message>
        <source>Qt, as on a system without dialogs</source>
        <translation>Qt, wie auf einem System ohne Dialoge</translation>
    </message>
    <message>
        <source>Qt, by the option alternativeFileDialog</source>
        <translation>Qt, durch die Option alternativeFileDialog</translation>
    </message>
    <message>
        <source>Qt, after the system has failed</source>
        <translation>Qt, nachdem das System gescheitert ist</translation>
    </message>
    <message>
        <source>To the &amp;corner</source>
        <translation>In die E&amp;cke</translation>
    </message>
    <message>
        <source>Open &amp;another dialog</source>
        <translation>Weiteren Di&amp;alog öffnen</translation>
    </message>
    <message>
        <source>Dialog inside a dialog</source>
        <translation>Dialog im Dialog</translation>
    </message>
    <message>
        <source>&amp;Fail</source>
        <translation>&amp;Scheitern</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::EditCommand</name>
    <message>
        <source>Rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <source>Change %1 of %2</source>
        <translation>%1 von %2 ändern</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::EditHistory</name>
    <message>
        <source>&quot;%1&quot; cannot be undone: %2</source>
        <translation>„%1“ kann nicht rückgängig gemacht werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be redone: %2</source>
        <translation>„%1“ kann nicht wiederhergestellt werden: %2</translation>
    </message>
    <message>
        <source>the design is no longer open.</source>
        <translation>der Entwurf ist nicht mehr geöffnet.</translation>
    </message>
    <message>
        <source>%1 has been changed by another program meanwhile. It stays as it is, and what was done to it before can no longer be undone or redone.</source>
        <translation>%1 wurde inzwischen von einem anderen Programm geändert. Alles bleibt, wie es ist, und was zuvor daran gemacht wurde, kann nicht mehr rückgängig gemacht oder wiederhergestellt werden.</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::ExampleControls</name>
    <message>
        <source>Millimetres</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Include &amp;folders</source>
        <translation>&amp;Ordner einbeziehen</translation>
    </message>
    <message>
        <source>&amp;Keep units</source>
        <translation>Einheiten &amp;behalten</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>Ein&amp;heit:</translation>
    </message>
    <message>
        <source>&amp;Side:</source>
        <translation>&amp;Seite:</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>&amp;Mehr</translation>
    </message>
    <message>
        <source>&amp;Disabled without More</source>
        <translation>Ohne Mehr &amp;gesperrt</translation>
    </message>
    <message>
        <source>&amp;Hidden without More</source>
        <translation>Ohne Mehr &amp;verborgen</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::ExampleFiles</name>
    <message>
        <source>Mesh (*.stl *.obj)</source>
        <translation>Netz (*.stl *.obj)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Mesh (*.stl)</source>
        <translation>Netz (*.stl)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabelle (*.csv)</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FactTexts</name>
    <message>
        <source>%1 mm²</source>
        <translation>%1 mm²</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FileAdditions</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>doesn&apos;t exist</source>
        <translation>gibt es nicht</translation>
    </message>
    <message>
        <source>is not a file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>may not be read</source>
        <translation>darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>has a name that design files cannot hold</source>
        <translation>hat einen Namen, den Entwurfsdateien nicht aufnehmen können</translation>
    </message>
    <message>
        <source>is the design itself</source>
        <translation>ist der Entwurf selbst</translation>
    </message>
    <message>
        <source>leads out of the folder of %1</source>
        <translation>führt aus dem Ordner von %1 hinaus</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FileCommands</name>
    <message>
        <source>Designs and meshes (%1)</source>
        <translation>Entwürfe und Netze (%1)</translation>
    </message>
    <message>
        <source>;;Designs (%1)</source>
        <translation>;;Entwürfe (%1)</translation>
    </message>
    <message>
        <source>;;Meshes (%1)</source>
        <translation>;;Netze (%1)</translation>
    </message>
    <message>
        <source>;;All files (*)</source>
        <translation>;;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Designs (%1)</source>
        <translation>Entwürfe (%1)</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Dateien öffnen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Save Design As</source>
        <translation>Entwurf speichern unter</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Kopie speichern</translation>
    </message>
    <message>
        <source>A copy is saved as %1</source>
        <translation>Eine Kopie ist als %1 gespeichert</translation>
    </message>
    <message>
        <source>is no name for a design: it must end with .dsg</source>
        <translation>ist kein Name für einen Entwurf: er muss mit .dsg enden</translation>
    </message>
    <message>
        <source>is open here and is not replaced</source>
        <translation>ist hier geöffnet und wird nicht ersetzt</translation>
    </message>
    <message>
        <source>has been made meanwhile and is not replaced</source>
        <translation>ist inzwischen entstanden und wird nicht ersetzt</translation>
    </message>
    <message>
        <source>was closed meanwhile and is not saved</source>
        <translation>wurde inzwischen geschlossen und wird nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FileExchange</name>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Meshes (%1)</source>
        <translation>Netze (%1)</translation>
    </message>
    <message>
        <source>Import Files</source>
        <translation>Dateien importieren</translation>
    </message>
    <message>
        <source>1 file imported</source>
        <translation>1 Datei importiert</translation>
    </message>
    <message numerus="yes">
        <source>%n files imported</source>
        <translation>
            <numerusform>%n Datei importiert</numerusform>
            <numerusform>%n Dateien importiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Export to Folder</source>
        <translation>In Ordner exportieren</translation>
    </message>
    <message>
        <source>1 file copied to %1</source>
        <translation>1 Datei nach %1 kopiert</translation>
    </message>
    <message numerus="yes">
        <source>%n files copied to %1</source>
        <translation>
            <numerusform>%n Datei nach %1 kopiert</numerusform>
            <numerusform>%n Dateien nach %1 kopiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FileExport</name>
    <message>
        <source>is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>is not a file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>lies in that folder already</source>
        <translation>liegt schon in diesem Ordner</translation>
    </message>
    <message>
        <source>is not a folder</source>
        <translation>ist kein Ordner</translation>
    </message>
    <message>
        <source>is no longer what it was; nothing is copied</source>
        <translation>ist nicht mehr, was es war; nichts wird kopiert</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FileImport</name>
    <message>
        <source>there is no open design to import into</source>
        <translation>es ist kein Entwurf geöffnet, in den importiert werden könnte</translation>
    </message>
    <message>
        <source>is missing, so that nothing can be put beside it</source>
        <translation>fehlt, sodass nichts daneben abgelegt werden kann</translation>
    </message>
    <message>
        <source>cannot take the files, since one of them is missing now</source>
        <translation>kann die Dateien nicht aufnehmen, weil eine davon inzwischen fehlt</translation>
    </message>
    <message>
        <source>cannot take the files, since its folder is missing</source>
        <translation>kann die Dateien nicht aufnehmen, weil sein Ordner fehlt</translation>
    </message>
    <message>
        <source>cannot take the files, since one of them is a link into its folder</source>
        <translation>kann die Dateien nicht aufnehmen, weil eine davon eine Verknüpfung in seinen Ordner ist</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FileNames</name>
    <message>
        <source>is no name for a file</source>
        <translation>ist kein Name für eine Datei</translation>
    </message>
    <message>
        <source>has letters in its name that the system does not allow there</source>
        <translation>hat Zeichen im Namen, die das System dort nicht zulässt</translation>
    </message>
    <message>
        <source>has a name that the system keeps for a device</source>
        <translation>hat einen Namen, den das System einem Gerät vorbehält</translation>
    </message>
    <message>
        <source>has a dot or a blank at its end, which the system does not keep</source>
        <translation>hat am Ende einen Punkt oder ein Leerzeichen, was das System nicht behält</translation>
    </message>
    <message>
        <source>has a longer name than the system takes</source>
        <translation>hat einen längeren Namen, als das System annimmt</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FilePreview</name>
    <message numerus="yes">
        <source>first %n rows</source>
        <translation>
            <numerusform>erste %n Zeile</numerusform>
            <numerusform>erste %n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>first %n columns</source>
        <translation>
            <numerusform>erste %n Spalte</numerusform>
            <numerusform>erste %n Spalten</numerusform>
        </translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 Spalte</translation>
    </message>
    <message numerus="yes">
        <source>%n columns</source>
        <translation>
            <numerusform>%n Spalte</numerusform>
            <numerusform>%n Spalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>first %n lines</source>
        <translation>
            <numerusform>erste %n Zeile</numerusform>
            <numerusform>erste %n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 Zeile</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 triangles</source>
        <translation>%1 Dreiecke</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>is neither a mesh, a table nor a text, and %1 in size</source>
        <translation>ist weder ein Netz noch eine Tabelle noch ein Text und %1 groß</translation>
    </message>
    <message>
        <source>doesn&apos;t exist</source>
        <translation>gibt es nicht</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>takes too much memory</source>
        <translation>braucht zu viel Speicher</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FilterBar</name>
    <message>
        <source>Filter by name, kind or file</source>
        <translation>Nach Name, Art oder Datei filtern</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Filtertext</translation>
    </message>
    <message>
        <source>Shows only objects whose name, kind or file contains every word.</source>
        <translation>Zeigt nur Objekte, deren Name, Art oder Datei jedes Wort enthält.</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Alle Arten</translation>
    </message>
    <message>
        <source>%1 of %2 kinds</source>
        <translation>%1 von %2 Arten</translation>
    </message>
    <message>
        <source>Kinds shown: %1</source>
        <translation>Gezeigte Arten: %1</translation>
    </message>
    <message>
        <source>Choose the kinds of objects that the tree shows</source>
        <translation>Wählen Sie die Arten von Objekten, die der Baum zeigt</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>The documentation is not installed.</source>
        <translation>Die Dokumentation ist nicht installiert.</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::HistoryCommands</name>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Re&amp;do: %1</source>
        <translation>&amp;Wiederherstellen: %1</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MainWindow</name>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Zorvane Workbench</source>
        <translation>Zorvane Workbench</translation>
    </message>
    <message>
        <source>%1[*] – %2</source>
        <translation>%1[*] – %2</translation>
    </message>
    <message>
        <source>1 object</source>
        <translation>1 Objekt</translation>
    </message>
    <message numerus="yes">
        <source>%n objects</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 von %2 gezeigt</translation>
    </message>
    <message>
        <source>1 design · %1</source>
        <translation>1 Entwurf · %1</translation>
    </message>
    <message numerus="yes">
        <source>%n designs · %1</source>
        <translation>
            <numerusform>%n Entwurf · %1</numerusform>
            <numerusform>%n Entwürfe · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>is missing; %1 refers to it</source>
        <translation>fehlt; %1 bezieht sich darauf</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>%1 is not shown, because the filter leaves it out.</source>
        <translation>%1 wird nicht gezeigt, weil der Filter es auslässt.</translation>
    </message>
    <message>
        <source>About the Workbench</source>
        <translation>Über die Workbench</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Zorvane Workbench&lt;/b&gt; %1&lt;/p&gt;&lt;p&gt;Looks at sheet-metal forming designs: parts, tools, materials and the files behind them.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Zorvane Workbench&lt;/b&gt; %1&lt;/p&gt;&lt;p&gt;Zeigt Entwürfe der Blechumformung: Teile, Werkzeuge, Werkstoffe und die Dateien dahinter.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Another program has changed the file of %1, which has unsaved changes here. Save replaces its version, Reopen drops yours.</source>
        <translation>Ein anderes Programm hat die Datei von %1 geändert, zu der es hier ungespeicherte Änderungen gibt. Speichern ersetzt die andere Fassung, Neu öffnen verwirft Ihre.</translation>
    </message>
    <message>
        <source>%1 was removed; its file stays.</source>
        <translation>%1 wurde entfernt; die Datei bleibt.</translation>
    </message>
    <message>
        <source>%1 has unsaved changes. Save them before it is read again?</source>
        <translation>%1 hat nicht gespeicherte Änderungen. Vor dem erneuten Lesen speichern?</translation>
    </message>
    <message>
        <source>There are unsaved changes. Save them before everything is read again?</source>
        <translation>Es gibt nicht gespeicherte Änderungen. Vor dem erneuten Lesen aller Entwürfe speichern?</translation>
    </message>
    <message>
        <source>The settings cannot be stored; those stored before are kept. The disk may be full.</source>
        <translation>Die Einstellungen können nicht gespeichert werden; die zuletzt gespeicherten bleiben erhalten. Vielleicht ist der Datenträger voll.</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MeshConversion</name>
    <message>
        <source>Choose a Mesh File</source>
        <translation>Netzdatei wählen</translation>
    </message>
    <message>
        <source>Meshes (%1)</source>
        <translation>Netze (%1)</translation>
    </message>
    <message>
        <source>Choose a Folder for the STL File</source>
        <translation>Ordner für die STL-Datei wählen</translation>
    </message>
    <message>
        <source>Reading %1 (%2)...</source>
        <translation>%1 wird gelesen (%2) ...</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was written.</source>
        <translation>Abgebrochen. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>%1 triangles over %2 points.</source>
        <translation>%1 Dreiecke über %2 Punkten.</translation>
    </message>
    <message>
        <source>Reading %1...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <source>No file can be written to %1: %2</source>
        <translation>In %1 lässt sich keine Datei schreiben: %2</translation>
    </message>
    <message>
        <source>Writing %1 as ASCII STL...</source>
        <translation>%1 wird als ASCII-STL geschrieben ...</translation>
    </message>
    <message>
        <source>Writing %1 as binary STL...</source>
        <translation>%1 wird als binäres STL geschrieben ...</translation>
    </message>
    <message>
        <source>Writing %1...</source>
        <translation>%1 wird geschrieben ...</translation>
    </message>
    <message>
        <source>Written: %1.</source>
        <translation>Geschrieben: %1.</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MeshConverter</name>
    <message>
        <source>Convert Meshes</source>
        <translation>Netze konvertieren</translation>
    </message>
    <message>
        <source>Writes a mesh as an STL file: binary STL as ASCII and the other way round, OBJ and PLY as binary STL. Files that exist are not replaced.</source>
        <translation>Schreibt ein Netz als STL-Datei: binäres STL als ASCII und umgekehrt, OBJ und PLY als binäres STL. Vorhandene Dateien werden nicht ersetzt.</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MeshLegend</name>
    <message>
        <source>Legend of colours</source>
        <translation>Legende der Farben</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MeshPresenter</name>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen …</translation>
    </message>
    <message>
        <source>Select a part, a blank, a tool or a mesh file to see it here.</source>
        <translation>Wählen Sie ein Teil, eine Platine, ein Werkzeug oder eine Netzdatei, um sie hier zu sehen.</translation>
    </message>
    <message>
        <source>The file of %1 is missing:
%2</source>
        <translation>Die Datei von %1 fehlt:
%2</translation>
    </message>
    <message>
        <source>The file of %1 lies outside the design&apos;s folder and is not opened.</source>
        <translation>Die Datei von %1 liegt außerhalb des Entwurfsordners und wird nicht geöffnet.</translation>
    </message>
    <message>
        <source>%1 has no mesh.</source>
        <translation>%1 hat kein Netz.</translation>
    </message>
    <message>
        <source>%1 cannot be shown:
%2</source>
        <translation>%1 lässt sich nicht zeigen:
%2</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MeshReader</name>
    <message>
        <source>cannot be read: %1</source>
        <translation>lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>has coordinates that are infinite or no numbers</source>
        <translation>hat Koordinaten, die unendlich oder keine Zahlen sind</translation>
    </message>
    <message>
        <source>has no triangles</source>
        <translation>hat keine Dreiecke</translation>
    </message>
    <message>
        <source>doesn&apos;t exist</source>
        <translation>gibt es nicht</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>is too large for a mesh file: %1, the limit is %2</source>
        <translation>ist zu groß für eine Netzdatei: %1, erlaubt sind %2</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>takes too much memory</source>
        <translation>braucht zu viel Speicher</translation>
    </message>
    <message>
        <source>is no mesh file: its name must end with stl, obj or ply</source>
        <translation>ist keine Netzdatei: ihr Name muss auf stl, obj oder ply enden</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>has a face with point %1, but only %2 points</source>
        <translation>hat eine Fläche mit Punkt %1, aber nur %2 Punkte</translation>
    </message>
    <message>
        <source>has a point that isn&apos;t three numbers</source>
        <translation>hat einen Punkt, der nicht aus drei Zahlen besteht</translation>
    </message>
    <message>
        <source>has a face of fewer than three points</source>
        <translation>hat eine Fläche aus weniger als drei Punkten</translation>
    </message>
    <message>
        <source>has a face with a point that doesn&apos;t exist</source>
        <translation>hat eine Fläche mit einem Punkt, den es nicht gibt</translation>
    </message>
    <message>
        <source>offset %1</source>
        <translation>Position %1</translation>
    </message>
    <message>
        <source>is no PLY file: it doesn&apos;t begin with &quot;ply&quot;</source>
        <translation>ist keine PLY-Datei: sie beginnt nicht mit „ply“</translation>
    </message>
    <message>
        <source>has a header line that isn&apos;t understood</source>
        <translation>hat eine Kopfzeile, die nicht verständlich ist</translation>
    </message>
    <message>
        <source>is cut off in its header</source>
        <translation>ist im Kopf abgeschnitten</translation>
    </message>
    <message>
        <source>doesn&apos;t tell its format</source>
        <translation>nennt ihr Format nicht</translation>
    </message>
    <message>
        <source>has no points with x, y and z</source>
        <translation>hat keine Punkte mit x, y und z</translation>
    </message>
    <message>
        <source>has entries without content</source>
        <translation>hat Einträge ohne Inhalt</translation>
    </message>
    <message>
        <source>is cut off or holds something else than numbers</source>
        <translation>ist abgeschnitten oder enthält etwas anderes als Zahlen</translation>
    </message>
    <message>
        <source>is cut off or has a list of no sensible length</source>
        <translation>ist abgeschnitten oder hat eine Liste ohne sinnvolle Länge</translation>
    </message>
    <message>
        <source>is cut off: %1 triangles take %2 bytes, but it has %3</source>
        <translation>ist abgeschnitten: %1 Dreiecke brauchen %2 Bytes, sie hat aber %3</translation>
    </message>
    <message>
        <source>is longer than it says: %1 triangles take %2 bytes, but it has %3</source>
        <translation>ist länger, als sie sagt: %1 Dreiecke brauchen %2 Bytes, sie hat aber %3</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>is cut off: ends where %1 should stand</source>
        <translation>ist abgeschnitten: endet, wo %1 stehen sollte</translation>
    </message>
    <message>
        <source>has &quot;%1&quot; where %2 should stand</source>
        <translation>hat „%1“, wo %2 stehen sollte</translation>
    </message>
    <message>
        <source>is a text but no STL: it doesn&apos;t begin with &quot;solid&quot;</source>
        <translation>ist ein Text, aber kein STL: er beginnt nicht mit „solid“</translation>
    </message>
    <message>
        <source>is too short for an STL file</source>
        <translation>ist zu kurz für eine STL-Datei</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>has no triangles that can be read</source>
        <translation>hat keine Dreiecke, die gelesen werden können</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MeshView</name>
    <message>
        <source>Select a part to see its mesh.</source>
        <translation>Wählen Sie ein Teil, um sein Netz zu sehen.</translation>
    </message>
    <message>
        <source>Mesh view</source>
        <translation>Netzansicht</translation>
    </message>
    <message>
        <source>This mesh has no triangles.</source>
        <translation>Dieses Netz hat keine Dreiecke.</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2, %n triangles. %3</source>
        <translation>
            <numerusform>%1, %2, %n Dreieck. %3</numerusform>
            <numerusform>%1, %2, %n Dreiecke. %3</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>No side of this mesh is shown.</source>
        <translation>Von diesem Netz wird keine Seite gezeigt.</translation>
    </message>
    <message>
        <source>Arrow keys turn, Ctrl and arrow keys move, plus and minus zoom, Home fits.</source>
        <translation>Pfeiltasten drehen, Strg und Pfeiltasten verschieben, Plus und Minus zoomen, Pos1 passt ein.</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MeshWriter</name>
    <message>
        <source>a mesh without triangles cannot be written</source>
        <translation>ein Netz ohne Dreiecke lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>lässt sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>the mesh cannot be turned into STL</source>
        <translation>das Netz kann nicht in STL umgewandelt werden</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MessageBar</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Meldung schließen</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::NewFile</name>
    <message>
        <source>there is no such folder</source>
        <translation>diesen Ordner gibt es nicht</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::ObjectKind</name>
    <message>
        <source>Designs</source>
        <translation>Entwürfe</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Blanks</source>
        <translation>Platinen</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operationen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Werkstoffe</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::PreviewPane</name>
    <message>
        <source>Beginning of the text</source>
        <translation>Anfang des Textes</translation>
    </message>
    <message>
        <source>Beginning of the table</source>
        <translation>Anfang der Tabelle</translation>
    </message>
    <message>
        <source>Picture of the mesh</source>
        <translation>Bild des Netzes</translation>
    </message>
    <message>
        <source>%1 cannot be shown:
%2</source>
        <translation>%1 lässt sich nicht zeigen:
%2</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::PreviewReader</name>
    <message>
        <source>takes longer than %1 s to read</source>
        <translation>braucht länger als %1 s zum Lesen</translation>
    </message>
    <message>
        <source>cannot be read: no process can be started for it</source>
        <translation>lässt sich nicht lesen: dafür lässt sich kein Prozess starten</translation>
    </message>
    <message>
        <source>makes a preview that is too large</source>
        <translation>ergibt eine zu große Vorschau</translation>
    </message>
    <message>
        <source>cannot be read: it may be damaged, or too large for a preview</source>
        <translation>lässt sich nicht lesen: vielleicht beschädigt oder zu groß für eine Vorschau</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Select a file to see it here.</source>
        <translation>Wählen Sie eine Datei, um sie hier zu sehen.</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen …</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::ProblemsPanel</name>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Probleme (%1)</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::Quantity</name>
    <message>
        <source>Thickness</source>
        <translation>Dicke</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kraft</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::QuantityPanel</name>
    <message>
        <source>Thic&amp;kness:</source>
        <translation>Di&amp;cke:</translation>
    </message>
    <message>
        <source>F&amp;orce:</source>
        <translation>&amp;Kraft:</translation>
    </message>
    <message>
        <source>%1 stays as it was: %2</source>
        <translation>%1 bleibt, wie sie war: %2</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::ReadingProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress of reading meshes</source>
        <translation>Fortschritt beim Lesen der Netze</translation>
    </message>
    <message>
        <source>Cancel reading meshes</source>
        <translation>Lesen der Netze abbrechen</translation>
    </message>
    <message>
        <source>Reading meshes: %1 of %2</source>
        <translation>Netze werden gelesen: %1 von %2</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::ReferenceMenu</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::SampleDesigns</name>
    <message>
        <source>Drawn cup</source>
        <translation>Gezogener Napf</translation>
    </message>
    <message>
        <source>Door panel</source>
        <translation>Türblech</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::SimulationProgress</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Progress of the simulation</source>
        <translation>Fortschritt der Simulation</translation>
    </message>
    <message>
        <source>Stop the simulation</source>
        <translation>Die Simulation stoppen</translation>
    </message>
    <message>
        <source>Simulating %1: stroke %2 of %3</source>
        <translation>Simulation von %1: Hub %2 von %3</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::SimulationRunner</name>
    <message>
        <source>a simulation is running already</source>
        <translation>eine Simulation läuft bereits</translation>
    </message>
    <message>
        <source>is being computed by another program</source>
        <translation>wird gerade von einem anderen Programm berechnet</translation>
    </message>
    <message>
        <source>cannot be marked as being computed: its folder is not writable</source>
        <translation>kann nicht als in Berechnung markiert werden: in den Ordner darf nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the results cannot be written: %1</source>
        <translation>die Ergebnisse können nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>cannot be marked as being computed: the disk may be full</source>
        <translation>kann nicht als in Berechnung markiert werden: vielleicht ist der Datenträger voll</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::StressRun</name>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::StressWindow</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Stress a Tree</source>
        <translation>Baum belasten</translation>
    </message>
    <message>
        <source>Rows being edited</source>
        <translation>Zeilen in Bearbeitung</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Baum</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>Flat: all rows are siblings</source>
        <translation>Flach: alle Zeilen sind Geschwister</translation>
    </message>
    <message>
        <source>Deep: ten rows a level</source>
        <translation>Tief: zehn Zeilen je Ebene</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>S&amp;hape:</source>
        <translation>&amp;Form:</translation>
    </message>
    <message>
        <source>Edits</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>&amp;Edits a refresh:</source>
        <translation>&amp;Änderungen je Auffrischung:</translation>
    </message>
    <message>
        <source>&amp;Refreshes a second:</source>
        <translation>Auffrischungen &amp;je Sekunde:</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>&amp;One Refresh</source>
        <translation>Eine Auff&amp;rischung</translation>
    </message>
    <message>
        <source>Refreshes</source>
        <translation>Auffrischungen</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>Zeilen:</translation>
    </message>
    <message>
        <source>How many rows there are now</source>
        <translation>Wie viele Zeilen es jetzt gibt</translation>
    </message>
    <message>
        <source>Structural announcements:</source>
        <translation>Meldungen zum Aufbau:</translation>
    </message>
    <message>
        <source>Rows inserted, removed or moved, changes of layout: in the last refresh, and the most in any</source>
        <translation>Zeilen eingefügt, entfernt oder verschoben, Anordnung geändert: bei der letzten Auffrischung, und die meisten bei einer</translation>
    </message>
    <message>
        <source>Announcements of values:</source>
        <translation>Meldungen zu Werten:</translation>
    </message>
    <message>
        <source>Ranges of rows told to show another text, in the last refresh</source>
        <translation>Bereiche von Zeilen, die anderen Text zeigen sollten, bei der letzten Auffrischung</translation>
    </message>
    <message>
        <source>Time, last and average:</source>
        <translation>Zeit, letzte und mittlere:</translation>
    </message>
    <message>
        <source>Of the synchronization, with what the view does at once</source>
        <translation>Der Synchronisierung, mit dem, was die Ansicht sofort tut</translation>
    </message>
    <message>
        <source>Slowest:</source>
        <translation>Langsamste:</translation>
    </message>
    <message>
        <source>The longest refresh of this tree</source>
        <translation>Die längste Auffrischung dieses Baums</translation>
    </message>
    <message>
        <source>Selected rows kept:</source>
        <translation>Ausgewählte Zeilen behalten:</translation>
    </message>
    <message>
        <source>In the last refresh, of those that still exist</source>
        <translation>Bei der letzten Auffrischung, von denen, die es noch gibt</translation>
    </message>
    <message>
        <source>Expanded rows kept:</source>
        <translation>Ausgeklappte Zeilen behalten:</translation>
    </message>
    <message>
        <source>Places lost so far:</source>
        <translation>Bisher verlorene Stellen:</translation>
    </message>
    <message>
        <source>Rows that still exist and are not selected, expanded or current any more, in all refreshes of this tree</source>
        <translation>Zeilen, die es noch gibt und die nicht mehr ausgewählt, ausgeklappt oder aktuell sind, bei allen Auffrischungen dieses Baums</translation>
    </message>
    <message>
        <source>Times of the last refreshes</source>
        <translation>Zeiten der letzten Auffrischungen</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Halt</translation>
    </message>
    <message>
        <source>%1 (most %2)</source>
        <translation>%1 (höchstens %2)</translation>
    </message>
    <message>
        <source>%1 ms, %2 ms</source>
        <translation>%1 ms, %2 ms</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message numerus="yes">
        <source>%n refreshes, on average %1 ms</source>
        <translation>
            <numerusform>%n Auffrischung, im Mittel %1 ms</numerusform>
            <numerusform>%n Auffrischungen, im Mittel %1 ms</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::TimeChart</name>
    <message>
        <source>No refresh yet</source>
        <translation>Noch keine Auffrischung</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>dashed: average</source>
        <translation>gestrichelt: Mittel</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::TypedQuantity</name>
    <message>
        <source>The number is too small.</source>
        <translation>Die Zahl ist zu klein.</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>Die Zahl ist zu groß.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of the units %2.</source>
        <translation>„%1“ ist keine der Einheiten %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can mean %2 and %3.</source>
        <translation>„%1“ kann %2 und %3 bedeuten.</translation>
    </message>
    <message>
        <source>A value cannot be below 0.</source>
        <translation>Ein Wert kann nicht unter 0 liegen.</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::WindowCommands</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation>Anzei&amp;ge</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Open Recen&amp;t</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open Sa&amp;mple</source>
        <translation>Beis&amp;piel öffnen</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modus</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Help &amp;Contents</source>
        <translation>&amp;Inhalt der Hilfe</translation>
    </message>
    <message>
        <source>&amp;Directions</source>
        <translation>&amp;Richtungen</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::WindowMenus</name>
    <message>
        <source>&amp;Forming</source>
        <translation>&amp;Umformen</translation>
    </message>
    <message>
        <source>&amp;Tube</source>
        <translation>&amp;Rohr</translation>
    </message>
    <message>
        <source>Tan&amp;drel</source>
        <translation>Tan&amp;drel</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Nothing opened yet</source>
        <translation>Noch nichts geöffnet</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::WorkbenchActions</name>
    <message>
        <source>Open &amp;Folder…</source>
        <translation>&amp;Ordner öffnen…</translation>
    </message>
    <message>
        <source>Open the designs of a folder</source>
        <translation>Die Entwürfe eines Ordners öffnen</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren…</translation>
    </message>
    <message>
        <source>Bring files into the selected design</source>
        <translation>Dateien in den gewählten Entwurf holen</translation>
    </message>
    <message>
        <source>Save a Cop&amp;y…</source>
        <translation>&amp;Kopie speichern…</translation>
    </message>
    <message>
        <source>Write a copy beside the design</source>
        <translation>Eine Kopie neben den Entwurf schreiben</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Change the name of the selected object</source>
        <translation>Den Namen des gewählten Objekts ändern</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Filter the tree by words</source>
        <translation>Den Baum nach Wörtern filtern</translation>
    </message>
    <message>
        <source>&amp;Go to Reference</source>
        <translation>Zum &amp;Bezug gehen</translation>
    </message>
    <message>
        <source>Select an object that uses this one or is used by it</source>
        <translation>Ein Objekt auswählen, das dieses verwendet oder von ihm verwendet wird</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>Alles a&amp;ufklappen</translation>
    </message>
    <message>
        <source>Co&amp;llapse All</source>
        <translation>Alles &amp;zuklappen</translation>
    </message>
    <message>
        <source>Show &amp;Only Geometry</source>
        <translation>Nur &amp;Geometrie zeigen</translation>
    </message>
    <message>
        <source>Hide blanks, tools and sheets for the time being</source>
        <translation>Platinen, Werkzeuge und Bleche vorübergehend ausblenden</translation>
    </message>
    <message>
        <source>Sto&amp;p Simulation</source>
        <translation>Simulation an&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Convert Meshes…</source>
        <translation>Netze &amp;umwandeln…</translation>
    </message>
    <message>
        <source>&amp;Stress a Tree…</source>
        <translation>Einen Baum &amp;belasten…</translation>
    </message>
    <message>
        <source>&amp;About the Workbench</source>
        <translation>&amp;Über die Workbench</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Re&amp;move from Design</source>
        <translation>Aus dem Entwurf ent&amp;fernen</translation>
    </message>
    <message>
        <source>The file of the object stays</source>
        <translation>Die Datei des Objekts bleibt</translation>
    </message>
    <message>
        <source>Reope&amp;n All</source>
        <translation>A&amp;lles neu öffnen</translation>
    </message>
    <message>
        <source>Read everything again</source>
        <translation>Alles noch einmal lesen</translation>
    </message>
    <message>
        <source>Close A&amp;ll</source>
        <translation>Alles sc&amp;hließen</translation>
    </message>
    <message>
        <source>Close all designs and meshes</source>
        <translation>Alle Entwürfe und Netze schließen</translation>
    </message>
    <message>
        <source>&amp;File Dialogs…</source>
        <translation>&amp;Dateidialoge…</translation>
    </message>
    <message>
        <source>Open each variant of the file dialogs</source>
        <translation>Jede Variante der Dateidialoge öffnen</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Looks at sheet-metal forming designs.</source>
        <translation>Zeigt Entwürfe der Blechumformung.</translation>
    </message>
    <message>
        <source>Design folders, design files or mesh files to open.</source>
        <translation>Zu öffnende Entwurfsordner, Entwurfsdateien oder Netzdateien.</translation>
    </message>
    <message>
        <source>Shows what the program can do and writes pictures to &lt;folder&gt;.</source>
        <translation>Zeigt, was das Programm kann, und schreibt Bilder nach &lt;folder&gt;.</translation>
    </message>
</context>
</TS>

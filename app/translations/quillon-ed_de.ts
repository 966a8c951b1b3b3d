<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>StationPages</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>quillon_ed::AboutDialog</name>
    <message>
        <source>About Quillon Ed</source>
        <translation>Über Quillon Ed</translation>
    </message>
    <message>
        <source>Hardware configuration of programmable-controller stations.</source>
        <translation>Hardwarekonfiguration speicherprogrammierbarer Stationen.</translation>
    </message>
    <message>
        <source>Licence: Apache-2.0</source>
        <translation>Lizenz: Apache-2.0</translation>
    </message>
    <message>
        <source>Made with Qt %1</source>
        <translation>Erstellt mit Qt %1</translation>
    </message>
</context>
<context>
    <name>quillon_ed::CatalogueModel</name>
    <message>
        <source>Module</source>
        <translation>Baugruppe</translation>
    </message>
    <message>
        <source>Order number</source>
        <translation>Bestellnummer</translation>
    </message>
</context>
<context>
    <name>quillon_ed::CataloguePanel</name>
    <message>
        <source>Drag a module onto a place, or double-click it to insert it at the focus.</source>
        <translation>Ziehen Sie eine Baugruppe auf einen Platz, oder fügen Sie sie mit einem Doppelklick am Fokus ein.</translation>
    </message>
    <message>
        <source>Search name, order number, description</source>
        <translation>Name, Bestellnummer, Beschreibung suchen</translation>
    </message>
    <message>
        <source>Search the catalogue</source>
        <translation>Katalog durchsuchen</translation>
    </message>
    <message>
        <source>Module types</source>
        <translation>Baugruppentypen</translation>
    </message>
    <message>
        <source>Insert at the focus</source>
        <translation>Am Fokus einfügen</translation>
    </message>
    <message>
        <source>No module type matches</source>
        <translation>Kein Baugruppentyp passt</translation>
    </message>
    <message numerus="yes">
        <source>%n module type(s)</source>
        <translation>
            <numerusform>%n Baugruppentyp</numerusform>
            <numerusform>%n Baugruppentypen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon_ed::ConfigurationView</name>
    <message>
        <source>&quot;%1&quot; was not taken: %2</source>
        <translation>„%1“ wurde nicht übernommen: %2</translation>
    </message>
</context>
<context>
    <name>quillon_ed::ConnectDialog</name>
    <message>
        <source>A &amp;device on the network</source>
        <translation>Ein &amp;Gerät im Netz</translation>
    </message>
    <message>
        <source>A &amp;recording</source>
        <translation>Eine &amp;Aufzeichnung</translation>
    </message>
    <message>
        <source>A &amp;simulated plant</source>
        <translation>Eine &amp;simulierte Anlage</translation>
    </message>
    <message>
        <source>Connect to a plant</source>
        <translation>Mit einer Anlage verbinden</translation>
    </message>
    <message>
        <source>&amp;Used last:</source>
        <translation>&amp;Zuletzt benutzt:</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>&amp;Rechner:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Einheit:</translation>
    </message>
    <message>
        <source>Modbus TCP; the registers are those that “quillon-ed diagnose --map” prints.</source>
        <translation>Modbus TCP; die Register sind die, die „quillon-ed diagnose --map“ ausgibt.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Datei:</translation>
    </message>
    <message>
        <source>Open recording</source>
        <translation>Aufzeichnung öffnen</translation>
    </message>
    <message>
        <source>Recordings (*.jsonl);;All files (*)</source>
        <translation>Aufzeichnungen (*.jsonl);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>S&amp;eed:</source>
        <translation>S&amp;tartwert:</translation>
    </message>
    <message>
        <source>Modules fail and recover at random, the same way for each seed.</source>
        <translation>Baugruppen fallen zufällig aus und kommen wieder, bei gleichem Startwert auf gleiche Weise.</translation>
    </message>
</context>
<context>
    <name>quillon_ed::DetailsWindow</name>
    <message>
        <source>Diagnostics of place %1</source>
        <translation>Diagnose von Steckplatz %1</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Seit</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <source>Nothing to report: the module is in order.</source>
        <translation>Keine Meldung: Die Baugruppe ist in Ordnung.</translation>
    </message>
    <message numerus="yes">
        <source>%n report(s):</source>
        <translation>
            <numerusform>%n Meldung:</numerusform>
            <numerusform>%n Meldungen:</numerusform>
        </translation>
    </message>
    <message>
        <source>Sub-module %1: %2</source>
        <translation>Submodul %1: %2</translation>
    </message>
</context>
<context>
    <name>quillon_ed::Document</name>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>New station</source>
        <translation>Neue Station</translation>
    </message>
</context>
<context>
    <name>quillon_ed::ExportCommands</name>
    <message>
        <source>Quillon Ed</source>
        <translation>Quillon Ed</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>Bild exportieren</translation>
    </message>
    <message>
        <source>Page (*.pdf)</source>
        <translation>Seite (*.pdf)</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Bild (*.png)</translation>
    </message>
    <message>
        <source>Vector picture (*.svg)</source>
        <translation>Vektorbild (*.svg)</translation>
    </message>
    <message>
        <source>The picture cannot be exported.</source>
        <translation>Das Bild kann nicht exportiert werden.</translation>
    </message>
    <message>
        <source>Export module list</source>
        <translation>Baugruppenliste exportieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>Markdown (*.md)</source>
        <translation>Markdown (*.md)</translation>
    </message>
    <message>
        <source>The module list cannot be exported.</source>
        <translation>Die Baugruppenliste kann nicht exportiert werden.</translation>
    </message>
    <message>
        <source>The station cannot be printed.</source>
        <translation>Die Station kann nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The printer cannot be used.</source>
        <translation>Der Drucker kann nicht benutzt werden.</translation>
    </message>
    <message>
        <source>“%1” was written.</source>
        <translation>„%1“ wurde geschrieben.</translation>
    </message>
    <message>
        <source>The station was printed.</source>
        <translation>Die Station wurde gedruckt.</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Als CSV speichern</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Die Datei kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>quillon_ed::FaultLogDock</name>
    <message>
        <source>Faults that came and went</source>
        <translation>Gekommene und gegangene Fehler</translation>
    </message>
    <message>
        <source>&amp;Fault log</source>
        <translation>&amp;Fehlerprotokoll</translation>
    </message>
    <message>
        <source>Filter by place, module or fault</source>
        <translation>Nach Steckplatz, Baugruppe oder Fehler filtern</translation>
    </message>
    <message>
        <source>Save as CSV…</source>
        <translation>Als CSV speichern…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>quillon_ed::FaultLogModel</name>
    <message>
        <source>Gone: %1</source>
        <translation>Gegangen: %1</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Baugruppe</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
</context>
<context>
    <name>quillon_ed::FileCommands</name>
    <message>
        <source>Unsaved changes cannot be kept for a recovery: %1</source>
        <translation>Ungespeicherte Änderungen können nicht für eine Wiederherstellung aufbewahrt werden: %1</translation>
    </message>
    <message>
        <source>Quillon Ed</source>
        <translation>Quillon Ed</translation>
    </message>
    <message>
        <source>Open station</source>
        <translation>Station öffnen</translation>
    </message>
    <message>
        <source>Stations (*.station.json *.json);;All files (*)</source>
        <translation>Stationen (*.station.json *.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Save station</source>
        <translation>Station speichern</translation>
    </message>
    <message>
        <source>Stations (*.station.json)</source>
        <translation>Stationen (*.station.json)</translation>
    </message>
    <message>
        <source>“%1” cannot be saved.</source>
        <translation>„%1“ kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Saving replaces that program&apos;s changes by yours.</source>
        <translation>Das Speichern ersetzt dessen Änderungen durch Ihre.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>They are lost otherwise.</source>
        <translation>Andernfalls gehen sie verloren.</translation>
    </message>
    <message>
        <source>“%1” was removed or renamed by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm entfernt oder umbenannt.</translation>
    </message>
    <message>
        <source>Reloading drops your unsaved changes.</source>
        <translation>Beim Neuladen gehen Ihre ungespeicherten Änderungen verloren.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Eigene behalten</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Es gibt nichts wiederherzustellen.</translation>
    </message>
    <message>
        <source>The station cannot be recovered.</source>
        <translation>Die Station kann nicht wiederhergestellt werden.</translation>
    </message>
</context>
<context>
    <name>quillon_ed::FormField</name>
    <message>
        <source>Back to the default</source>
        <translation>Zurück zur Voreinstellung</translation>
    </message>
</context>
<context>
    <name>quillon_ed::MainWindow</name>
    <message>
        <source>The list of recent stations cannot be kept: the settings cannot be written.</source>
        <translation>Die Liste der zuletzt geöffneten Stationen kann nicht behalten werden: die Einstellungen lassen sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>&amp;Catalogue</source>
        <translation>&amp;Katalog</translation>
    </message>
    <message>
        <source>Clear this list</source>
        <translation>Liste leeren</translation>
    </message>
</context>
<context>
    <name>quillon_ed::MessagesDock</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>&amp;Messages</source>
        <translation>&amp;Meldungen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>quillon_ed::ModuleForm</name>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Input address</source>
        <translation>Eingangsadresse</translation>
    </message>
    <message>
        <source>Output address</source>
        <translation>Ausgangsadresse</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon_ed::ModuleInserter</name>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>The module was not inserted; see the messages</source>
        <translation>Die Baugruppe wurde nicht eingefügt; siehe Meldungen</translation>
    </message>
    <message>
        <source>The module does not fit there</source>
        <translation>Die Baugruppe passt dort nicht</translation>
    </message>
</context>
<context>
    <name>quillon_ed::ModuleList</name>
    <message>
        <source>Modules of the rack</source>
        <translation>Baugruppen des Trägers</translation>
    </message>
    <message>
        <source>Racks</source>
        <translation>Baugruppenträger</translation>
    </message>
    <message>
        <source>Rack %1</source>
        <translation>Träger %1</translation>
    </message>
</context>
<context>
    <name>quillon_ed::ModuleListModel</name>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (Fortsetzung)</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Baugruppe</translation>
    </message>
    <message>
        <source>Order number</source>
        <translation>Bestellnummer</translation>
    </message>
    <message>
        <source>I address</source>
        <translation>E-Adresse</translation>
    </message>
    <message>
        <source>O address</source>
        <translation>A-Adresse</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
</context>
<context>
    <name>quillon_ed::ModuleTypeCard</name>
    <message>
        <source>Places</source>
        <translation>Plätze</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Eingänge</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Ausgänge</translation>
    </message>
</context>
<context>
    <name>quillon_ed::NewStationDialog</name>
    <message>
        <source>New station</source>
        <translation>Neue Station</translation>
    </message>
    <message>
        <source>Central station</source>
        <translation>Zentrale Station</translation>
    </message>
    <message>
        <source>Distributed station, on a rail</source>
        <translation>Dezentrale Station, auf einer Schiene</translation>
    </message>
    <message>
        <source>Distributed station, self-contained modules</source>
        <translation>Dezentrale Station, eigenständige Baugruppen</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Art:</translation>
    </message>
    <message>
        <source>&amp;Racks:</source>
        <translation>&amp;Baugruppenträger:</translation>
    </message>
    <message>
        <source>&amp;Places per rack:</source>
        <translation>&amp;Plätze je Träger:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Racks with a power supply in place 1, the controller in place 2 of rack 0 and an interface module in place 3, followed by input and output modules.</source>
        <translation>Baugruppenträger mit einer Stromversorgung auf Platz 1, der Zentralbaugruppe auf Platz 2 von Träger 0 und einer Anschaltung auf Platz 3, gefolgt von Ein- und Ausgabebaugruppen.</translation>
    </message>
    <message>
        <source>A head in place 1, followed by input and output modules in rows of eight.</source>
        <translation>Eine Kopfbaugruppe auf Platz 1, gefolgt von Ein- und Ausgabebaugruppen in Reihen zu acht.</translation>
    </message>
</context>
<context>
    <name>quillon_ed::ParameterDialog</name>
    <message>
        <source>The last address of this station is %1</source>
        <translation>Die letzte Adresse dieser Station ist %1</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>Belegt durch %1</translation>
    </message>
    <message>
        <source>Parameters (read-only)</source>
        <translation>Parameter (schreibgeschützt)</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Baugruppe</translation>
    </message>
    <message>
        <source>Module and sub-modules</source>
        <translation>Baugruppe und Submodule</translation>
    </message>
    <message>
        <source>Something here is not valid</source>
        <translation>Hier ist etwas ungültig</translation>
    </message>
</context>
<context>
    <name>quillon_ed::ParameterText</name>
    <message>
        <source>Between %1 and %2</source>
        <translation>Zwischen %1 und %2</translation>
    </message>
    <message>
        <source>A whole number is needed</source>
        <translation>Eine ganze Zahl ist nötig</translation>
    </message>
    <message>
        <source>A number is needed</source>
        <translation>Eine Zahl ist nötig</translation>
    </message>
    <message numerus="yes">
        <source>Longer than %n byte(s)</source>
        <translation>
            <numerusform>Länger als %n Byte</numerusform>
            <numerusform>Länger als %n Bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>At least %n character(s)</source>
        <translation>
            <numerusform>Mindestens %n Zeichen</numerusform>
            <numerusform>Mindestens %n Zeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>At most %n character(s)</source>
        <translation>
            <numerusform>Höchstens %n Zeichen</numerusform>
            <numerusform>Höchstens %n Zeichen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon_ed::PlantCommands</name>
    <message>
        <source>There is no diagnostics for this station.</source>
        <translation>Für diese Station gibt es keine Diagnose.</translation>
    </message>
    <message>
        <source>Quillon Ed</source>
        <translation>Quillon Ed</translation>
    </message>
    <message>
        <source>“%1” cannot be used.</source>
        <translation>„%1“ lässt sich nicht verwenden.</translation>
    </message>
    <message>
        <source>“%1” was written.</source>
        <translation>„%1“ wurde geschrieben.</translation>
    </message>
    <message>
        <source>Record the plant</source>
        <translation>Anlage aufzeichnen</translation>
    </message>
    <message>
        <source>Recordings (*.jsonl)</source>
        <translation>Aufzeichnungen (*.jsonl)</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>quillon_ed::RackBadges</name>
    <message numerus="yes">
        <source>%n module(s) of rack %1 not in order</source>
        <translation>
            <numerusform>%n Baugruppe von Träger %1 nicht in Ordnung</numerusform>
            <numerusform>%n Baugruppen von Träger %1 nicht in Ordnung</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon_ed::RecoveryDialog</name>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Recover unsaved stations</source>
        <translation>Nicht gespeicherte Stationen wiederherstellen</translation>
    </message>
    <message>
        <source>Quillon Ed ended before these stations were saved.</source>
        <translation>Quillon Ed endete, bevor diese Stationen gespeichert waren.</translation>
    </message>
    <message>
        <source>Unsaved stations</source>
        <translation>Nicht gespeicherte Stationen</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Last change</source>
        <translation>Letzte Änderung</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>never saved</source>
        <translation>nie gespeichert</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>can be recovered</source>
        <translation>wiederherstellbar</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>Keeps them; they are offered again at the next start</source>
        <translation>Behält sie; sie werden beim nächsten Start wieder angeboten</translation>
    </message>
    <message>
        <source>Discard these changes for good?</source>
        <translation>Diese Änderungen endgültig verwerfen?</translation>
    </message>
</context>
<context>
    <name>quillon_ed::ShortcutsDialog</name>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Move the focus over places and gaps, and between racks</source>
        <translation>Bewegen den Fokus über Plätze, Lücken und Träger</translation>
    </message>
    <message>
        <source>Shift + arrow keys</source>
        <translation>Umschalt + Pfeiltasten</translation>
    </message>
    <message>
        <source>Select a range of places</source>
        <translation>Wählen einen Bereich von Plätzen aus</translation>
    </message>
    <message>
        <source>Ctrl + arrow keys</source>
        <translation>Strg + Pfeiltasten</translation>
    </message>
    <message>
        <source>Move the focus and leave the selection</source>
        <translation>Bewegen den Fokus, die Auswahl bleibt</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Select the focused place, with Ctrl in addition</source>
        <translation>Wählt den Platz am Fokus aus, mit Strg zusätzlich</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Edit the parameters of the module</source>
        <translation>Bearbeitet die Parameter der Baugruppe</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Delete the selected modules</source>
        <translation>Löscht die ausgewählten Baugruppen</translation>
    </message>
    <message>
        <source>Ctrl + X, C, V</source>
        <translation>Strg + X, C, V</translation>
    </message>
    <message>
        <source>Cut, copy, paste, also between two windows</source>
        <translation>Ausschneiden, kopieren, einfügen, auch zwischen zwei Fenstern</translation>
    </message>
    <message>
        <source>Ctrl + Z, Ctrl + Y</source>
        <translation>Strg + Z, Strg + Y</translation>
    </message>
    <message>
        <source>Undo, redo</source>
        <translation>Rückgängig, wiederholen</translation>
    </message>
    <message>
        <source>Ctrl + A</source>
        <translation>Strg + A</translation>
    </message>
    <message>
        <source>Select all places of the rack</source>
        <translation>Wählt alle Plätze des Trägers aus</translation>
    </message>
    <message>
        <source>Ctrl + F</source>
        <translation>Strg + F</translation>
    </message>
    <message>
        <source>Find a module type; Enter inserts it at the focus</source>
        <translation>Sucht einen Baugruppentyp; Eingabe fügt ihn am Fokus ein</translation>
    </message>
    <message>
        <source>Menu key, Shift + F10</source>
        <translation>Menütaste, Umschalt + F10</translation>
    </message>
    <message>
        <source>Menu of the focused place</source>
        <translation>Menü des Platzes am Fokus</translation>
    </message>
    <message>
        <source>Drag a module</source>
        <translation>Baugruppe ziehen</translation>
    </message>
    <message>
        <source>Move it to a place or a gap; Ctrl on the way copies it</source>
        <translation>Verschiebt sie auf einen Platz oder in eine Lücke; Strg unterwegs kopiert sie</translation>
    </message>
    <message>
        <source>Drag on empty ground</source>
        <translation>Auf leerem Grund ziehen</translation>
    </message>
    <message>
        <source>Select the places in the frame</source>
        <translation>Wählt die Plätze im Rahmen aus</translation>
    </message>
    <message>
        <source>Keyboard and mouse</source>
        <translation>Tastatur und Maus</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Wirkung</translation>
    </message>
    <message>
        <source>Ctrl + 1, Ctrl + 2</source>
        <translation>Strg + 1, Strg + 2</translation>
    </message>
    <message>
        <source>Configuration, diagnostics</source>
        <translation>Konfiguration, Diagnose</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Read the state of the plant anew</source>
        <translation>Den Zustand der Anlage neu lesen</translation>
    </message>
</context>
<context>
    <name>quillon_ed::StartPage</name>
    <message>
        <source>Begin a station, open one, or drop a station file on this window.</source>
        <translation>Legen Sie eine Station an, öffnen Sie eine, oder ziehen Sie eine Stationsdatei auf dieses Fenster.</translation>
    </message>
    <message>
        <source>Opened last</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
</context>
<context>
    <name>quillon_ed::StatusLine</name>
    <message numerus="yes">
        <source>%n place(s) selected</source>
        <translation>
            <numerusform>%n Platz ausgewählt</numerusform>
            <numerusform>%n Plätze ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>File is write-protected</source>
        <translation>Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
</context>
<context>
    <name>quillon_ed::ValueInput</name>
    <message>
        <source>Not one of the choices</source>
        <translation>Keine der Möglichkeiten</translation>
    </message>
</context>
<context>
    <name>quillon_ed::WindowActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
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
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;Toolbar</source>
        <translation>&amp;Werkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;New station…</source>
        <translation>&amp;Neue Station…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Export picture…</source>
        <translation>Bild &amp;exportieren…</translation>
    </message>
    <message>
        <source>Export module &amp;list…</source>
        <translation>Baugruppen&amp;liste exportieren…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>Reco&amp;ver unsaved stations…</source>
        <translation>Nicht gespeicherte Stationen &amp;wiederherstellen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Para&amp;meters…</source>
        <translation>&amp;Parameter…</translation>
    </message>
    <message>
        <source>Select &amp;all of the rack</source>
        <translation>Ganzen &amp;Träger auswählen</translation>
    </message>
    <message>
        <source>&amp;Find in the catalogue</source>
        <translation>Im Katalog &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Keyboard and mouse</source>
        <translation>&amp;Tastatur und Maus</translation>
    </message>
    <message>
        <source>&amp;About Quillon Ed</source>
        <translation>Ü&amp;ber Quillon Ed</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Plant</source>
        <translation>An&amp;lage</translation>
    </message>
    <message>
        <source>S&amp;peed</source>
        <translation>&amp;Geschwindigkeit</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Konfiguration</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnose</translation>
    </message>
    <message>
        <source>&amp;Connect…</source>
        <translation>&amp;Verbinden…</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Trennen</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Rec&amp;ord…</source>
        <translation>Auf&amp;zeichnen…</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>A&amp;bspielen</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation>&amp;Schritt</translation>
    </message>
</context>
<context>
    <name>zqbchwcx::qt::DiagPanelWidget</name>
    <message>
        <source>Diagnostics panel</source>
        <translation>Diagnosefeld</translation>
    </message>
    <message>
        <source>State and versions of the module that has the focus</source>
        <translation>Zustand und Versionen der Baugruppe, die den Fokus hat</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versionen</translation>
    </message>
</context>
<context>
    <name>zqbchwcx::qt::PositionText</name>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>inactive</source>
        <translation>inaktiv</translation>
    </message>
    <message>
        <source>not usable</source>
        <translation>nicht nutzbar</translation>
    </message>
    <message>
        <source>I %1</source>
        <translation>E %1</translation>
    </message>
    <message>
        <source>Rack %1</source>
        <translation>Träger %1</translation>
    </message>
    <message>
        <source>Place %1</source>
        <translation>Platz %1</translation>
    </message>
    <message>
        <source>not present</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>O %1</source>
        <translation>A %1</translation>
    </message>
    <message>
        <source>Gap before place %1</source>
        <translation>Lücke vor Platz %1</translation>
    </message>
    <message>
        <source>Gap behind place %1</source>
        <translation>Lücke hinter Platz %1</translation>
    </message>
</context>
<context>
    <name>zqbchwcx::qt::RackOverviewRIOWidget</name>
    <message>
        <source>Station overview</source>
        <translation>Stationsübersicht</translation>
    </message>
    <message>
        <source>Places of the station with their modules; the arrow keys move the focus</source>
        <translation>Plätze der Station mit ihren Baugruppen; die Pfeiltasten bewegen den Fokus</translation>
    </message>
</context>
<context>
    <name>zqbchwcx::qt::RackOverviewWidget</name>
    <message>
        <source>Rack overview</source>
        <translation>Trägerübersicht</translation>
    </message>
    <message>
        <source>Racks of the station with their places and modules; the arrow keys move the focus</source>
        <translation>Baugruppenträger der Station mit ihren Plätzen und Baugruppen; die Pfeiltasten bewegen den Fokus</translation>
    </message>
</context>
<context>
    <name>zqbchwcx::qt::RackTableRIOWidget</name>
    <message>
        <source>Station table</source>
        <translation>Stationstabelle</translation>
    </message>
    <message>
        <source>Places of the station with their modules and addresses; the arrow keys move the focus</source>
        <translation>Plätze der Station mit ihren Baugruppen und Adressen; die Pfeiltasten bewegen den Fokus</translation>
    </message>
</context>
<context>
    <name>zqbchwcx::qt::RackTableWidget</name>
    <message>
        <source>Rack table</source>
        <translation>Trägertabelle</translation>
    </message>
    <message>
        <source>Places of a rack with their modules and addresses; the arrow keys move the focus</source>
        <translation>Plätze eines Baugruppenträgers mit ihren Baugruppen und Adressen; die Pfeiltasten bewegen den Fokus</translation>
    </message>
</context>
</TS>

#include "app/commandline/HelpText.h"

namespace quillon_ed {

namespace {

LocalizedText openText()
{
    return {R"(Quillon Ed: the hardware configuration of programmable-controller stations

Usage:
  quillon-ed [STATION...]               open stations in a window
  quillon-ed render STATION -o FILE     draw views to a PNG, SVG or PDF file
  quillon-ed check STATION...           list every broken rule
  quillon-ed list STATION               list the modules with their addresses
  quillon-ed convert IN OUT             write a station to another file or format
  quillon-ed diagnose STATION           tell what the modules of the plant report
  quillon-ed simulate STATION           be a plant whose modules fail and recover
  quillon-ed compare A B                tell how two stations differ

"quillon-ed COMMAND --help" tells more about a command. Only opening needs a display.

Options of every command:
  --lang de|en    the language of texts
  --version       show the version
  -h, --help      show this help

Exit codes:
  0  done; "check" found nothing, "diagnose" no fault
  1  "check" found broken rules, "diagnose" a faulty module
  2  the command line is wrong; "diagnose" and "simulate": whatever else kept them from working
  3  a file could not be read or written, or there is no display for the window
"compare" has the codes of diff: 0 same, 1 different, 2 trouble.
)",
            R"(Quillon Ed: die Hardware-Konfiguration von Stationen speicherprogrammierbarer Steuerungen

Aufruf:
  quillon-ed [STATION...]               Stationen in einem Fenster öffnen
  quillon-ed render STATION -o DATEI    Ansichten in eine PNG-, SVG- oder PDF-Datei zeichnen
  quillon-ed check STATION...           jede verletzte Regel nennen
  quillon-ed list STATION               die Baugruppen mit ihren Adressen auflisten
  quillon-ed convert EIN AUS            eine Station in eine andere Datei oder Form schreiben
  quillon-ed diagnose STATION           sagen, was die Baugruppen der Anlage melden
  quillon-ed simulate STATION           eine Anlage sein, deren Baugruppen ausfallen und wiederkommen
  quillon-ed compare A B                sagen, worin sich zwei Stationen unterscheiden

"quillon-ed BEFEHL --help" sagt mehr zu einem Befehl. Nur das Öffnen braucht einen Bildschirm.

Optionen jedes Befehls:
  --lang de|en    die Sprache der Texte
  --version       die Version zeigen
  -h, --help      diese Hilfe zeigen

Rückgabewerte:
  0  getan; "check" hat nichts gefunden, "diagnose" keinen Fehler
  1  "check" hat verletzte Regeln gefunden, "diagnose" eine gestörte Baugruppe
  2  die Befehlszeile ist falsch; "diagnose" und "simulate": was immer sie sonst gehindert hat
  3  eine Datei ließ sich nicht lesen oder schreiben, oder dem Fenster fehlt ein Bildschirm
"compare" hat die Werte von diff: 0 gleich, 1 unterschiedlich, 2 Fehler.
)"};
}

LocalizedText renderText()
{
    return {R"(Usage: quillon-ed render STATION -o FILE [--view overview|table|both] [--rack NUMBER] [--scale NUMBER]
                         [--palette light|dark|contrast] [--mode diagnostics --source SOURCE] [--lang de|en]

Draws views of the station without a display. The ending of FILE says what is written: .png (pixels), .svg or
.pdf (vectors; a PDF page has a header with the station's name, the date and the page number).

  -o, --output FILE   the file to write; one that exists is replaced
  --view VIEW         what to draw: overview (the racks; if not given), table (the table of a rack), both (side by side,
                      with the arrow from the rack's first usable place)
  --rack NUMBER       the rack in the table; 0 if not given
  --scale NUMBER      PNG: device pixels to a logical pixel, from 0.5 to 8; 1 if not given
  --palette PALETTE   PNG: light (if not given), dark or contrast
  --mode diagnostics  the state of the plant instead of the configuration
  --source SOURCE     where it comes from: as of "diagnose", or simulated:SEED
)",
            R"(Aufruf: quillon-ed render STATION -o DATEI [--view overview|table|both] [--rack ZAHL] [--scale ZAHL]
                          [--palette light|dark|contrast] [--mode diagnostics --source QUELLE] [--lang de|en]

Zeichnet Ansichten der Station ohne Bildschirm. Die Endung von DATEI sagt, was geschrieben wird: .png (Bildpunkte),
.svg oder .pdf (Vektoren; eine PDF-Seite hat eine Kopfzeile mit Stationsname, Datum und Seitenzahl).

  -o, --output DATEI  die Datei, die geschrieben wird; eine vorhandene wird ersetzt
  --view ANSICHT      was gezeichnet wird: overview (die Träger; ohne Angabe), table (die Tabelle eines Trägers), both
                      (nebeneinander, mit dem Pfeil vom ersten nutzbaren Platz)
  --rack ZAHL         der Träger in der Tabelle; ohne Angabe 0
  --scale ZAHL        PNG: Gerätepunkte je logischem Bildpunkt, von 0.5 bis 8; ohne Angabe 1
  --palette PALETTE   PNG: light (hell; ohne Angabe), dark (dunkel) oder contrast (hoher Kontrast)
  --mode diagnostics  der Zustand der Anlage statt der Projektierung
  --source QUELLE     woher er kommt: wie bei "diagnose", oder simulated:STARTWERT
)"};
}

LocalizedText checkText()
{
    return {R"(Usage: quillon-ed check STATION... [--lang de|en]

Names every broken rule of the stations, one a line: file, place, rule and reason. A station that is larger than its
picture is named, too; that breaks no rule.
Exits with 0 when there is none, with 1 when there is one, and with 3 when a file could not be read.
)",
            R"(Aufruf: quillon-ed check STATION... [--lang de|en]

Nennt jede verletzte Regel der Stationen, eine je Zeile: Datei, Platz, Regel und Grund. Auch eine Station, die größer
als ihr Bild ist, wird genannt; das verletzt keine Regel.
Der Rückgabewert ist 0, wenn es keine gibt, 1, wenn es eine gibt, und 3, wenn sich eine Datei nicht lesen ließ.
)"};
}

LocalizedText listText()
{
    return {R"(Usage: quillon-ed list STATION [--csv|--json|--md|--details] [-o FILE] [--lang de|en]

Lists the modules of the station: rack, place, module, order number, addresses, comment.
Without a format the columns are aligned for reading.

  --csv               comma-separated values (RFC 4180)
  --json              JSON
  --md                a Markdown table
  --details           everything that the station holds, a line for each thing
  -o, --output FILE   write to the file instead of to standard output
)",
            R"(Aufruf: quillon-ed list STATION [--csv|--json|--md|--details] [-o DATEI] [--lang de|en]

Listet die Baugruppen der Station auf: Träger, Platz, Baugruppe, Bestellnummer, Adressen, Kommentar.
Ohne Angabe einer Form sind die Spalten zum Lesen ausgerichtet.

  --csv               durch Komma getrennte Werte (RFC 4180)
  --json              JSON
  --md                eine Markdown-Tabelle
  --details           alles, was die Station enthält, je eine Zeile
  -o, --output DATEI  in die Datei schreiben statt in die Standardausgabe
)"};
}

LocalizedText convertText()
{
    return {R"(Usage: quillon-ed convert IN OUT [--lang de|en]

Reads the station IN and writes it to OUT; the ending of OUT says how: .json (a station file in the current version
of the format), .csv or .md (its module list). IN stays as it is.
)",
            R"(Aufruf: quillon-ed convert EIN AUS [--lang de|en]

Liest die Station EIN und schreibt sie nach AUS; die Endung von AUS sagt, wie: .json (eine Stationsdatei in der
aktuellen Version des Formats), .csv oder .md (ihre Baugruppenliste). EIN bleibt, wie es ist.
)"};
}

LocalizedText diagnoseText()
{
    return {
        R"(Usage: quillon-ed diagnose STATION --source SOURCE [--json|--csv] [--watch] [--record FILE] [--lang de|en]
       quillon-ed diagnose STATION --map [--json|--csv] [--lang de|en]

Tells which modules of the plant are faulty: what, since when, which channel, what to do.
Exits with 0 when all are sound, with 1 when one is faulty, and with 2 when that cannot be said.

  --source SOURCE   modbus-tcp://HOST:PORT[?unit=N]  the plant itself; unit 1 if not given
                    recording:FILE                   what was recorded; its last state, with --watch all of it
  --watch           tell what comes and goes, a line each, until a signal or the end of the recording
  --record FILE     write what the plant tells to a new recording; goes on as --watch does
  --json, --csv     for programs; with --watch a line each
  --map             print the registers that a controller must offer, without a source
)",
        R"(Aufruf: quillon-ed diagnose STATION --source QUELLE [--json|--csv] [--watch] [--record DATEI] [--lang de|en]
        quillon-ed diagnose STATION --map [--json|--csv] [--lang de|en]

Sagt, welche Baugruppen der Anlage gestört sind: was, seit wann, welcher Kanal, was zu tun ist.
Der Rückgabewert ist 0, wenn keine gestört ist, 1, wenn eine gestört ist, und 2, wenn sich das nicht sagen lässt.

  --source QUELLE   modbus-tcp://HOST:PORT[?unit=N]  die Anlage selbst; ohne Angabe Einheit 1
                    recording:DATEI                  was aufgezeichnet ist; der letzte Stand, mit --watch alles
  --watch           sagen, was kommt und geht, je eine Zeile, bis zu einem Signal oder dem Ende der Aufzeichnung
  --record DATEI    was die Anlage sagt, in eine neue Aufzeichnung schreiben; dauert an wie --watch
  --json, --csv     für Programme; mit --watch je eine Zeile
  --map             die Register zeigen, die eine Steuerung bieten muss, ohne Quelle
)"};
}

LocalizedText simulateText()
{
    return {
        R"(Usage: quillon-ed simulate STATION [--listen ADDRESS:PORT] [--script FILE] [--random SEED] [--lang de|en]

Is a plant of the station for any Modbus TCP client, such as "quillon-ed diagnose": everything is sound at first. Lines
on standard input change that; "quit" ends it.

  place R/P ok|lost|missing                       a place; R/P.S is a sub-module
  place R/P fail|report [channel N] [code N]      it is faulty, or works and reports a fault
  cpu run|stop|hold                               the controller's state
  all ok                                          nothing is faulty any more

  --listen ADDRESS:PORT   of this computer; 127.0.0.1:5020 if not given, port 0 for any free one
  --script FILE           such lines, "+2.5s" in front of one for the time since the one before, "repeat" as the last
  --random SEED           modules fail and recover at random; equal numbers give equal faults
)",
        R"(Aufruf: quillon-ed simulate STATION [--listen ADRESSE:PORT] [--script DATEI] [--random STARTWERT] [--lang de|en]

Ist eine Anlage der Station für jeden Modbus-TCP-Client, etwa "quillon-ed diagnose": zunächst ohne Fehler. Zeilen der
Standardeingabe ändern das; "quit" beendet sie.

  place R/P ok|lost|missing                       ein Platz; R/P.S ist ein Submodul
  place R/P fail|report [channel N] [code N]      er ist gestört, oder arbeitet und meldet einen Fehler
  cpu run|stop|hold                               der Zustand der Steuerung
  all ok                                          nichts ist mehr gestört

  --listen ADRESSE:PORT   dieses Rechners; ohne Angabe 127.0.0.1:5020, Port 0 für irgendeinen freien
  --script DATEI          solche Zeilen, davor "+2.5s" für die Zeit seit der vorigen, als letzte "repeat"
  --random STARTWERT      Baugruppen fallen zufällig aus und kommen wieder; gleiche Zahlen, gleiche Fehler
)"};
}

LocalizedText compareText()
{
    return {R"(Usage: quillon-ed compare A B [--text|--json|--md|--html FILE] [--ignore WHAT,...] [--lang de|en]
       quillon-ed compare --git REVISION STATION [the same options]

Tells how the station B differs from A, place by place, down to single parameters. One of them may be "-": standard
input. With --git, A is an earlier revision of the station, by any name that git knows: HEAD, a tag, a commit.

  --text          for reading (if nothing else is given); lines are broken to fit the terminal
  --json          JSON
  --md            a Markdown table
  --html FILE     a page with pictures of both stations; FILE is replaced
  --git REVISION  compare the station with its own earlier revision
  --ignore WHAT   what counts as equal: name, comment, addresses, parameters, submodules, usability, lock

Exits with 0 when the stations are the same, with 1 when they differ, and with 2 in trouble.
)",
            R"(Aufruf: quillon-ed compare A B [--text|--json|--md|--html DATEI] [--ignore WAS,...] [--lang de|en]
        quillon-ed compare --git REVISION STATION [dieselben Optionen]

Sagt, worin sich die Station B von A unterscheidet, Platz für Platz bis zum einzelnen Parameter. Eine von beiden darf
"-" sein: die Standardeingabe. Mit --git ist A eine frühere Revision der Station, unter jedem Namen, den git kennt:
HEAD, ein Tag, ein Commit.

  --text          zum Lesen (ohne andere Angabe); Zeilen werden für das Terminal umbrochen
  --json          JSON
  --md            eine Markdown-Tabelle
  --html DATEI    eine Seite mit Bildern beider Stationen; DATEI wird ersetzt
  --git REVISION  die Station mit ihrer eigenen früheren Revision vergleichen
  --ignore WAS    was als gleich gilt: name, comment, addresses, parameters, submodules, usability, lock

Der Rückgabewert ist 0 bei gleichen, 1 bei unterschiedlichen Stationen und 2 bei einem Fehler.
)"};
}

LocalizedText textOf(Command command)
{
    switch (command) {
    case Command::Render:
        return renderText();
    case Command::Check:
        return checkText();
    case Command::List:
        return listText();
    case Command::Convert:
        return convertText();
    case Command::Diagnose:
        return diagnoseText();
    case Command::Simulate:
        return simulateText();
    case Command::Compare:
        return compareText();
    case Command::Open:
        break;
    }
    return openText();
}

} // namespace

std::string HelpText(Command command, Language language)
{
    return textOf(command).In(language);
}

} // namespace quillon_ed

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>DeviceList</name>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simuliert</translation>
    </message>
    <message>
        <source>of the demonstration</source>
        <translation>der Demonstration</translation>
    </message>
    <message>
        <source>generated</source>
        <translation>erzeugt</translation>
    </message>
    <message>
        <source>not read yet</source>
        <translation>noch nicht gelesen</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>antwortet</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>%1, edited</source>
        <translation>%1, geändert</translation>
    </message>
</context>
<context>
    <name>DevicePanel</name>
    <message>
        <source>The device does not have this parameter</source>
        <translation>Das Gerät hat diesen Parameter nicht</translation>
    </message>
    <message>
        <source>Nothing to write</source>
        <translation>Nichts zu schreiben</translation>
    </message>
    <message>
        <source>Not everything was written</source>
        <translation>Nicht alles ist geschrieben</translation>
    </message>
    <message>
        <source>These edits are kept:</source>
        <translation>Diese Änderungen bleiben erhalten:</translation>
    </message>
    <message>
        <source>Not every value can be shown in that unit</source>
        <translation>Nicht jeder Wert kann in dieser Einheit angezeigt werden</translation>
    </message>
    <message>
        <source>Holds edits that have not been written</source>
        <translation>Enthält Änderungen, die nicht geschrieben sind</translation>
    </message>
    <message>
        <source>Copy &amp;value</source>
        <translation>&amp;Wert kopieren</translation>
    </message>
    <message>
        <source>Set to &amp;file value (%1)</source>
        <translation>Auf Wert der &amp;Datei setzen (%1)</translation>
    </message>
    <message>
        <source>Set to file value...</source>
        <translation>Auf Wert einer Datei setzen...</translation>
    </message>
    <message>
        <source>1 value written and read back</source>
        <translation>1 Wert geschrieben und zurückgelesen</translation>
    </message>
    <message>
        <source>%1 values written and read back</source>
        <translation>%1 Werte geschrieben und zurückgelesen</translation>
    </message>
</context>
<context>
    <name>FramesDock</name>
    <message>
        <source>Frames</source>
        <translation>Telegramme</translation>
    </message>
    <message>
        <source>Filter: message, unit or bytes</source>
        <translation>Filter: Telegramm, Gerät oder Bytes</translation>
    </message>
    <message>
        <source>All frames</source>
        <translation>Alle Telegramme</translation>
    </message>
    <message>
        <source>Only failures</source>
        <translation>Nur Fehler</translation>
    </message>
    <message>
        <source>Only writes</source>
        <translation>Nur Schreiben</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Was gezeigt wird</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>A&amp;nhalten</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>Si&amp;chern...</translation>
    </message>
    <message>
        <source>Fields of the frame</source>
        <translation>Felder des Telegramms</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>No failure so far.</source>
        <translation>Bisher kein Fehler.</translation>
    </message>
    <message>
        <source>Save frames</source>
        <translation>Telegramme sichern</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
    <message>
        <source>Last failure, at %1: %2. The device has answered since.</source>
        <translation>Letzter Fehler um %1: %2. Seitdem hat das Gerät geantwortet.</translation>
    </message>
    <message>
        <source>Last failure, at %1: %2. %3</source>
        <translation>Letzter Fehler um %1: %2. %3</translation>
    </message>
    <message>
        <source>1 frame saved</source>
        <translation>1 Telegramm gesichert</translation>
    </message>
    <message>
        <source>%1 frames saved</source>
        <translation>%1 Telegramme gesichert</translation>
    </message>
</context>
<context>
    <name>FramesModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Telegramm</translation>
    </message>
    <message>
        <source>Round trip</source>
        <translation>Laufzeit</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>request</source>
        <translation>Anfrage</translation>
    </message>
    <message>
        <source>reply</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>GeneratedForm</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <translation>%1 (geändert)</translation>
    </message>
</context>
<context>
    <name>GroupTree</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
</context>
<context>
    <name>NoValueVeil</name>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
</context>
<context>
    <name>OpenDialog</name>
    <message>
        <source>A &amp;simulated device</source>
        <translation>Ein &amp;simuliertes Gerät</translation>
    </message>
    <message>
        <source>The device at this &amp;address:</source>
        <translation>Das Gerät an dieser &amp;Adresse:</translation>
    </message>
    <message>
        <source>Open device</source>
        <translation>Gerät öffnen</translation>
    </message>
    <message>
        <source>Opened &amp;before:</source>
        <translation>&amp;Zuletzt geöffnet:</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>&amp;Parameter file:</source>
        <translation>&amp;Parameterdatei:</translation>
    </message>
    <message>
        <source>of the demonstration device</source>
        <translation>des Demonstrationsgeräts</translation>
    </message>
    <message>
        <source>Parameter files (*.json)</source>
        <translation>Parameterdateien (*.json)</translation>
    </message>
    <message>
        <source>&amp;Form:</source>
        <translation>&amp;Formular:</translation>
    </message>
    <message>
        <source>made from the parameter file</source>
        <translation>aus der Parameterdatei erzeugt</translation>
    </message>
    <message>
        <source>Forms (*.ui)</source>
        <translation>Formulare (*.ui)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Öff&amp;nen</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Look for &amp;devices...</source>
        <translation>&amp;Geräte suchen...</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simuliert</translation>
    </message>
    <message>
        <source>Open s&amp;ite...</source>
        <translation>An&amp;lage öffnen...</translation>
    </message>
    <message>
        <source>Site: %1</source>
        <translation>Anlage: %1</translation>
    </message>
    <message>
        <source>Open site</source>
        <translation>Anlage öffnen</translation>
    </message>
    <message>
        <source>Site files (*.json)</source>
        <translation>Anlagendateien (*.json)</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>live</source>
        <translation>gelesen</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>the device was busy</source>
        <translation>das Gerät war beschäftigt</translation>
    </message>
    <message>
        <source>communication failed</source>
        <translation>Kommunikation gestört</translation>
    </message>
    <message>
        <source>not answered yet</source>
        <translation>noch nicht beantwortet</translation>
    </message>
    <message>
        <source>the device has no value</source>
        <translation>das Gerät hat keinen Wert</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>%1 - Report</source>
        <translation>%1 - Bericht</translation>
    </message>
    <message>
        <source>Made by zor-monitor %1.</source>
        <translation>Erstellt von zor-monitor %1.</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>nicht gelesen</translation>
    </message>
    <message>
        <source>this device does not have it</source>
        <translation>dieses Gerät hat ihn nicht</translation>
    </message>
    <message>
        <source>Differences to the settings file</source>
        <translation>Unterschiede zur Einstellungsdatei</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Attention: the file is of another type of device.</source>
        <translation>Achtung: Die Datei ist von einem anderen Gerätetyp.</translation>
    </message>
    <message>
        <source>Attention: the file is of another version of the device.</source>
        <translation>Achtung: Die Datei ist von einer anderen Version des Geräts.</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Nichts weicht ab.</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Writes of this session</source>
        <translation>In dieser Sitzung geschrieben</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Wer</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Alter Wert</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Curves of the session</source>
        <translation>Kurven der Sitzung</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>simulated device</source>
        <translation>simuliertes Gerät</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>With a &amp;picture of the trend</source>
        <translation>Mit einem &amp;Bild des Trends</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>The report holds what the device is, every parameter with its value, and what has been written in this session. All parameters are read first.</source>
        <translation>Der Bericht sagt, was für ein Gerät es ist, nennt jeden Parameter mit seinem Wert und was in dieser Sitzung geschrieben wurde. Vorher werden alle Parameter gelesen.</translation>
    </message>
    <message>
        <source>&amp;Differences to a settings file (may be empty):</source>
        <translation>&amp;Unterschiede zu einer Einstellungsdatei (kann leer bleiben):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Einstellungsdatei</translation>
    </message>
    <message>
        <source>Settings files (*.json)</source>
        <translation>Einstellungsdateien (*.json)</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
</context>
<context>
    <name>ReportMaker</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>HTML (*.html)</source>
        <translation>HTML (*.html)</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>This is no settings file that can be used:</source>
        <translation>Das ist keine brauchbare Einstellungsdatei:</translation>
    </message>
    <message>
        <source>Report saved: %1</source>
        <translation>Bericht gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>ReviewDialog</name>
    <message>
        <source>The device has changed while this list was open. I have seen what is marked.</source>
        <translation>Das Gerät hat sich geändert, während diese Liste offen war. Ich habe gesehen, was hervorgehoben ist.</translation>
    </message>
    <message>
        <source>Write to the device</source>
        <translation>In das Gerät schreiben</translation>
    </message>
    <message>
        <source>These values will be written:</source>
        <translation>Diese Werte werden geschrieben:</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Alter Wert</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>changed by another user in the meantime</source>
        <translation>inzwischen von anderer Seite geändert</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;Schreiben</translation>
    </message>
    <message>
        <source>These cannot be written, and stay in their fields:</source>
        <translation>Diese können nicht geschrieben werden und bleiben in ihren Feldern:</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>another device answers since</source>
        <translation>seitdem antwortet ein anderes Gerät</translation>
    </message>
</context>
<context>
    <name>ScanDialog</name>
    <message>
        <source>Look for devices</source>
        <translation>Geräte suchen</translation>
    </message>
    <message>
        <source>&amp;Addresses, one to the line. Only these are asked. Unit, baud rate and parity may be lists: unit=1-10,17 baud=9600,19200 parity=even,none</source>
        <translation>&amp;Adressen, eine je Zeile. Nur diese werden gefragt. Gerätenummer (unit), Baudrate und Parität können Listen sein: unit=1-10,17 baud=9600,19200 parity=even,none</translation>
    </message>
    <message>
        <source>Insert an example...</source>
        <translation>Beispiel einfügen...</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&amp;Timeout:</source>
        <translation>&amp;Wartezeit:</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Identification</source>
        <translation>Identifikation</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>What answers</source>
        <translation>Was antwortet</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stopp</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>This is no address that can be asked:</source>
        <translation>Das ist keine Adresse, die gefragt werden kann:</translation>
    </message>
    <message>
        <source>No address is given.</source>
        <translation>Es ist keine Adresse angegeben.</translation>
    </message>
    <message>
        <source>answers after %1 ms</source>
        <translation>antwortet nach %1 ms</translation>
    </message>
    <message>
        <source>Done.</source>
        <translation>Fertig.</translation>
    </message>
    <message>
        <source>There are edits that have not been written. Connect to another device all the same?</source>
        <translation>Es gibt Änderungen, die nicht geschrieben sind. Trotzdem mit einem anderen Gerät verbinden?</translation>
    </message>
    <message>
        <source>Devices that answer: %1</source>
        <translation>Geräte, die antworten: %1</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Find: tag, caption, value</source>
        <translation>Suchen: Kennung, Name, Wert</translation>
    </message>
    <message>
        <source>Find a parameter</source>
        <translation>Parameter suchen</translation>
    </message>
    <message>
        <source>Find a parameter by its tag, its caption or the value that was last read (%1)</source>
        <translation>Einen Parameter nach Kennung, Name oder zuletzt gelesenem Wert suchen (%1)</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Attention: the file is of another type of device.</source>
        <translation>Achtung: Die Datei ist von einem anderen Gerätetyp.</translation>
    </message>
    <message>
        <source>Attention: the file is of another version of the device.</source>
        <translation>Achtung: Die Datei ist von einer anderen Version des Geräts.</translation>
    </message>
    <message>
        <source>Filter: parameter or tag</source>
        <translation>Filter: Parameter oder Kennung</translation>
    </message>
    <message>
        <source>Only differences</source>
        <translation>Nur Unterschiede</translation>
    </message>
    <message>
        <source>All parameters</source>
        <translation>Alle Parameter</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Was gezeigt wird</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Laden...</translation>
    </message>
    <message>
        <source>Tick &amp;all shown</source>
        <translation>&amp;Alle gezeigten wählen</translation>
    </message>
    <message>
        <source>Tick &amp;none shown</source>
        <translation>&amp;Keine gezeigten wählen</translation>
    </message>
    <message>
        <source>Neither has a parameter.</source>
        <translation>Beide haben keine Parameter.</translation>
    </message>
    <message>
        <source>this form has no field for it</source>
        <translation>dieses Formular hat kein Feld dafür</translation>
    </message>
    <message>
        <source>%1 ticked</source>
        <translation>%1 gewählt</translation>
    </message>
    <message>
        <source>%1 ticked, %2 of them not shown</source>
        <translation>%1 gewählt, davon %2 nicht gezeigt</translation>
    </message>
</context>
<context>
    <name>SettingsTransfer</name>
    <message>
        <source>Compare two devices</source>
        <translation>Zwei Geräte vergleichen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Einstellungsdatei</translation>
    </message>
    <message>
        <source>Settings files (*.json)</source>
        <translation>Einstellungsdateien (*.json)</translation>
    </message>
    <message>
        <source>This is no settings file that can be used:</source>
        <translation>Diese Einstellungsdatei ist nicht brauchbar:</translation>
    </message>
    <message>
        <source>Reading the device...</source>
        <translation>Das Gerät wird gelesen...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancelled; nothing has been written</source>
        <translation>Abgebrochen; nichts wurde geschrieben</translation>
    </message>
    <message>
        <source>The device did not answer for all parameters</source>
        <translation>Das Gerät hat nicht für alle Parameter geantwortet</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>The device has none of the parameters that can be written</source>
        <translation>Das Gerät hat keinen der schreibbaren Parameter</translation>
    </message>
    <message>
        <source>Compare with file</source>
        <translation>Mit Datei vergleichen</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Einstellungen laden</translation>
    </message>
    <message>
        <source>Compare two files: the first</source>
        <translation>Zwei Dateien vergleichen: die erste</translation>
    </message>
    <message>
        <source>Compare two files: the second</source>
        <translation>Zwei Dateien vergleichen: die zweite</translation>
    </message>
    <message>
        <source>Compare two files</source>
        <translation>Zwei Dateien vergleichen</translation>
    </message>
    <message>
        <source>Second file</source>
        <translation>Zweite Datei</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Another device has taken over since; nothing has been loaded</source>
        <translation>Inzwischen antwortet ein anderes Gerät; nichts wurde geladen</translation>
    </message>
    <message>
        <source>Not every value could be entered in its field: %1</source>
        <translation>Nicht jeder Wert ließ sich in sein Feld eintragen: %1</translation>
    </message>
    <message>
        <source>The file has no value for %1</source>
        <translation>Die Datei hat keinen Wert für %1</translation>
    </message>
    <message>
        <source>The device holds this value already</source>
        <translation>Das Gerät hat diesen Wert bereits</translation>
    </message>
    <message>
        <source>Set to file value</source>
        <translation>Auf Wert einer Datei setzen</translation>
    </message>
    <message>
        <source>1 setting saved</source>
        <translation>1 Einstellung gespeichert</translation>
    </message>
    <message>
        <source>%1 settings saved</source>
        <translation>%1 Einstellungen gespeichert</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>The record cannot be written: %1</source>
        <translation>Die Aufzeichnung kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>%1: connected, read at %2</source>
        <translation>%1: verbunden, gelesen um %2</translation>
    </message>
    <message>
        <source>%1: not read yet</source>
        <translation>%1: noch nicht gelesen</translation>
    </message>
    <message>
        <source>No answer: %1 (%2, tried at %3)</source>
        <translation>Keine Antwort: %1 (%2, versucht um %3)</translation>
    </message>
    <message>
        <source>Reads</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Writes</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>%1: %2/s, %3 ms</source>
        <translation>%1: %2/s, %3 ms</translation>
    </message>
    <message>
        <source>%1: %2 requests, %3 failed, round trip %4 ms on average, %5 ms at most</source>
        <translation>%1: %2 Anfragen, %3 fehlgeschlagen, Antwortzeit im Mittel %4 ms, höchstens %5 ms</translation>
    </message>
    <message>
        <source>Writing %1 of %2...</source>
        <translation>%1 von %2 wird geschrieben...</translation>
    </message>
    <message>
        <source>Simulated device</source>
        <translation>Simuliertes Gerät</translation>
    </message>
</context>
<context>
    <name>TrendChooser</name>
    <message>
        <source>Parameters to plot</source>
        <translation>Aufzuzeichnende Parameter</translation>
    </message>
    <message>
        <source>Filter: parameter or tag</source>
        <translation>Filter: Parameter oder Kennung</translation>
    </message>
</context>
<context>
    <name>TrendDock</name>
    <message>
        <source>No parameter is plotted.</source>
        <translation>Kein Parameter wird aufgezeichnet.</translation>
    </message>
    <message>
        <source>without a unit</source>
        <translation>ohne Einheit</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Parameters...</source>
        <translation>Parameter...</translation>
    </message>
    <message>
        <source>Choose the parameters that are plotted</source>
        <translation>Auswählen, welche Parameter aufgezeichnet werden</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected curve and what it has recorded</source>
        <translation>Die ausgewählte Kurve mit allem, was sie aufgezeichnet hat, entfernen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop the picture; recording goes on</source>
        <translation>Das Bild anhalten; aufgezeichnet wird weiter</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Show less time; with Ctrl and the wheel, less of the values</source>
        <translation>Weniger Zeit zeigen; mit Strg und dem Rad einen kleineren Wertebereich</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Show more time; with Ctrl and the wheel, more of the values</source>
        <translation>Mehr Zeit zeigen; mit Strg und dem Rad einen größeren Wertebereich</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Show all that has been recorded</source>
        <translation>Alles zeigen, was aufgezeichnet ist</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fit the axes to the values again</source>
        <translation>Die Achsen wieder den Werten anpassen</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern...</translation>
    </message>
    <message>
        <source>Save the values (CSV) or the picture (PNG)</source>
        <translation>Die Werte (CSV) oder das Bild (PNG) speichern</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Arrow keys move the cursor, with Shift the time; plus and minus zoom, with Ctrl the values; 0 fits them; Home shows everything, End the present; the space bar pauses.</source>
        <translation>Pfeiltasten bewegen den Zeiger, mit Umschalt die Zeit; Plus und Minus vergrößern und verkleinern, mit Strg die Werte; 0 passt sie ein; Pos1 zeigt alles, Ende die Gegenwart; die Leertaste hält an.</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Remove from the trend</source>
        <translation>Aus dem Trend entfernen</translation>
    </message>
    <message>
        <source>Add to the trend</source>
        <translation>In den Trend aufnehmen</translation>
    </message>
    <message>
        <source>Paused; values of now</source>
        <translation>Angehalten; Werte von jetzt</translation>
    </message>
    <message>
        <source>Values of now</source>
        <translation>Werte von jetzt</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>Values (*.csv)</source>
        <translation>Werte (*.csv)</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Bild (*.png)</translation>
    </message>
    <message>
        <source>Save trend</source>
        <translation>Trend speichern</translation>
    </message>
    <message>
        <source>Trend saved: %1</source>
        <translation>Trend gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>Re&amp;port...</source>
        <translation>Be&amp;richt...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open device...</source>
        <translation>Gerät ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Recent devices</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open s&amp;ite...</source>
        <translation>A&amp;nlage öffnen...</translation>
    </message>
    <message>
        <source>Open site</source>
        <translation>Anlage öffnen</translation>
    </message>
    <message>
        <source>Site files (*.json)</source>
        <translation>Anlagendateien (*.json)</translation>
    </message>
    <message>
        <source>Save site &amp;as...</source>
        <translation>Anlage speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save site</source>
        <translation>Anlage speichern</translation>
    </message>
    <message>
        <source>&amp;Close device</source>
        <translation>Gerät s&amp;chließen</translation>
    </message>
    <message>
        <source>Compare with &amp;file...</source>
        <translation>Mit &amp;Datei vergleichen...</translation>
    </message>
    <message>
        <source>Compare two &amp;devices...</source>
        <translation>Zwei &amp;Geräte vergleichen...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>&lt;h3&gt;ZorSmartControls Monitor %1&lt;/h3&gt;&lt;p&gt;Shows and edits the parameters of Modbus devices.&lt;/p&gt;&lt;p&gt;Qt %2, built with Qt %3&lt;br&gt;%4&lt;/p&gt;</source>
        <translation>&lt;h3&gt;ZorSmartControls Monitor %1&lt;/h3&gt;&lt;p&gt;Zeigt und bearbeitet die Parameter von Modbus-Geräten.&lt;/p&gt;&lt;p&gt;Qt %2, erstellt mit Qt %3&lt;br&gt;%4&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Next device</source>
        <translation>&amp;Nächstes Gerät</translation>
    </message>
    <message>
        <source>&amp;Previous device</source>
        <translation>&amp;Voriges Gerät</translation>
    </message>
    <message>
        <source>Open device</source>
        <translation>Gerät öffnen</translation>
    </message>
    <message>
        <source>This device cannot be opened:</source>
        <translation>Dieses Gerät lässt sich nicht öffnen:</translation>
    </message>
    <message>
        <source>Compare two devices</source>
        <translation>Zwei Geräte vergleichen</translation>
    </message>
    <message>
        <source>Compare %1 with:</source>
        <translation>%1 vergleichen mit:</translation>
    </message>
    <message>
        <source>There are edits that have not been written. Close the device all the same?</source>
        <translation>Es gibt Änderungen, die nicht geschrieben sind. Das Gerät trotzdem schließen?</translation>
    </message>
    <message>
        <source>%1[*] - Monitor</source>
        <translation>%1[*] - Monitor</translation>
    </message>
    <message>
        <source>ZorSmartControls Monitor[*]</source>
        <translation>ZorSmartControls-Monitor[*]</translation>
    </message>
    <message>
        <source>&amp;Find parameter</source>
        <translation>Parameter &amp;suchen</translation>
    </message>
    <message>
        <source>No parameter has &quot;%1&quot; in its tag, caption or last value</source>
        <translation>Kein Parameter hat „%1“ in Kennung, Name oder letztem Wert</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Tool bar</source>
        <translation>&amp;Werkzeugleiste</translation>
    </message>
    <message>
        <source>Not taken: this field cannot be edited now</source>
        <translation>Nicht übernommen: dieses Feld lässt sich jetzt nicht bearbeiten</translation>
    </message>
    <message>
        <source>As on the &amp;form</source>
        <translation>Wie im &amp;Formular</translation>
    </message>
    <message>
        <source>&amp;Metric</source>
        <translation>&amp;Metrisch</translation>
    </message>
    <message>
        <source>&amp;US</source>
        <translation>&amp;US</translation>
    </message>
    <message>
        <source>As in the &amp;device</source>
        <translation>Wie im &amp;Gerät</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>&amp;Write...</source>
        <translation>&amp;Schreiben...</translation>
    </message>
    <message>
        <source>&amp;Undo all</source>
        <translation>Alles &amp;verwerfen</translation>
    </message>
    <message>
        <source>&amp;Poll period...</source>
        <translation>&amp;Abfrageperiode...</translation>
    </message>
    <message>
        <source>Poll period</source>
        <translation>Abfrageperiode</translation>
    </message>
    <message>
        <source>Milliseconds from read to read:</source>
        <translation>Millisekunden von Abfrage zu Abfrage:</translation>
    </message>
    <message>
        <source>&amp;Simulated device runs</source>
        <translation>S&amp;imuliertes Gerät läuft</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>&amp;Einheiten</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>There are edits that have not been written. Close all the same?</source>
        <translation>Es gibt Änderungen, die nicht geschrieben sind. Trotzdem schließen?</translation>
    </message>
    <message>
        <source>&amp;Save settings...</source>
        <translation>Einstellungen &amp;speichern...</translation>
    </message>
    <message>
        <source>&amp;Load settings...</source>
        <translation>Einstellungen &amp;laden...</translation>
    </message>
    <message>
        <source>Compare &amp;two files...</source>
        <translation>Z&amp;wei Dateien vergleichen...</translation>
    </message>
    <message>
        <source>Look &amp;for devices...</source>
        <translation>Geräte s&amp;uchen...</translation>
    </message>
    <message>
        <source>This could not be opened:</source>
        <translation>Nicht zu öffnen:</translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simuliert)</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>not written: the device has changed since the review</source>
        <translation>nicht geschrieben: das Gerät hat sich seit der Durchsicht geändert</translation>
    </message>
    <message>
        <source>carried out, the device says, but it could not be read back; it is settled by the next read</source>
        <translation>laut Gerät ausgeführt, aber nicht zurückzulesen; die nächste Lesung klärt es</translation>
    </message>
    <message>
        <source>written and read back</source>
        <translation>geschrieben und zurückgelesen</translation>
    </message>
    <message>
        <source>refused by the device</source>
        <translation>vom Gerät abgelehnt</translation>
    </message>
    <message>
        <source>not sent: no connection</source>
        <translation>nicht gesendet: keine Verbindung</translation>
    </message>
    <message>
        <source>unconfirmed: the device did not answer; it is settled by the next read</source>
        <translation>unbestätigt: das Gerät hat nicht geantwortet; die nächste Abfrage klärt es</translation>
    </message>
    <message>
        <source>the device holds another value than was written</source>
        <translation>das Gerät enthält einen anderen Wert als geschrieben</translation>
    </message>
    <message>
        <source>exception %1</source>
        <translation>Ausnahme %1</translation>
    </message>
    <message>
        <source>the entry is not valid</source>
        <translation>die Eingabe ist nicht gültig</translation>
    </message>
    <message>
        <source>the entry is not a number</source>
        <translation>die Eingabe ist keine Zahl</translation>
    </message>
    <message>
        <source>the device cannot hold a number of this size</source>
        <translation>das Gerät kann eine Zahl dieser Größe nicht aufnehmen</translation>
    </message>
    <message>
        <source>the number is outside the limits</source>
        <translation>die Zahl liegt außerhalb der Grenzen</translation>
    </message>
    <message>
        <source>the text is too long for the device</source>
        <translation>der Text ist für das Gerät zu lang</translation>
    </message>
    <message>
        <source>the device has no such characters</source>
        <translation>das Gerät kennt diese Zeichen nicht</translation>
    </message>
    <message>
        <source>the parameter can only be read</source>
        <translation>der Parameter kann nur gelesen werden</translation>
    </message>
    <message>
        <source>the device has not been read yet</source>
        <translation>das Gerät ist noch nicht gelesen worden</translation>
    </message>
    <message>
        <source>two fields hold different values</source>
        <translation>zwei Felder enthalten verschiedene Werte</translation>
    </message>
    <message>
        <source>same</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>different</source>
        <translation>verschieden</translation>
    </message>
    <message>
        <source>only in the file</source>
        <translation>nur in der Datei</translation>
    </message>
    <message>
        <source>not in the file</source>
        <translation>nicht in der Datei</translation>
    </message>
    <message>
        <source>can only be read</source>
        <translation>nur lesbar</translation>
    </message>
    <message>
        <source>cannot be held</source>
        <translation>nicht möglich</translation>
    </message>
    <message>
        <source>%1: %2 characters at most</source>
        <translation>%1: höchstens %2 Zeichen</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 bis %3</translation>
    </message>
    <message>
        <source>%1: %2 or more</source>
        <translation>%1: %2 oder mehr</translation>
    </message>
    <message>
        <source>%1: %2 or less</source>
        <translation>%1: %2 oder weniger</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the device does not have this parameter</source>
        <translation>das Gerät hat diesen Parameter nicht</translation>
    </message>
</context>
<context>
    <name>advice</name>
    <message>
        <source>What answers does not keep to the protocol, or two programs talk on the same line; see the bytes in the frames.</source>
        <translation>Was antwortet, hält sich nicht an das Protokoll, oder zwei Programme sprechen auf derselben Leitung; die Bytes stehen in den Telegrammen.</translation>
    </message>
    <message>
        <source>Check baud rate, parity and stop bits, the termination of the line, and that nobody else is sending on it.</source>
        <translation>Baudrate, Parität und Stoppbits prüfen, den Abschluss der Leitung, und dass sonst niemand auf ihr sendet.</translation>
    </message>
    <message>
        <source>Wait a little; if it stays so, restart the device.</source>
        <translation>Etwas warten; bleibt es so, das Gerät neu starten.</translation>
    </message>
    <message>
        <source>The operating system says why; check cable, adapter and address.</source>
        <translation>Das Betriebssystem sagt, warum; Kabel, Adapter und Adresse prüfen.</translation>
    </message>
    <message>
        <source>The host is there, but nothing listens on this port. Check the port (usually 502), that Modbus TCP is switched on in the device, and that it has a connection to spare.</source>
        <translation>Den Rechner gibt es, aber niemand hört auf diesem Port. Den Port prüfen (üblich 502), dass Modbus TCP im Gerät eingeschaltet ist und dass es noch eine Verbindung frei hat.</translation>
    </message>
    <message>
        <source>The device may allow too few connections at a time, or only certain addresses. End other programs that are connected to it.</source>
        <translation>Das Gerät lässt vielleicht zu wenige Verbindungen gleichzeitig zu oder nur bestimmte Adressen. Andere Programme beenden, die mit ihm verbunden sind.</translation>
    </message>
    <message>
        <source>Check the spelling of the name, or write the address in numbers.</source>
        <translation>Die Schreibweise des Namens prüfen oder die Adresse in Zahlen angeben.</translation>
    </message>
    <message>
        <source>Check cable and link lamp, the address and mask of this computer, and the way (gateway) to the device&apos;s network.</source>
        <translation>Kabel und Verbindungslampe prüfen, Adresse und Maske dieses Rechners und den Weg (Gateway) ins Netz des Geräts.</translation>
    </message>
    <message>
        <source>Check that the device is switched on, its address and cable, and that no firewall stands between. A slow network needs a longer timeout.</source>
        <translation>Prüfen, dass das Gerät eingeschaltet ist, seine Adresse und sein Kabel, und dass keine Firewall dazwischen steht. Ein langsames Netz braucht eine längere Wartezeit.</translation>
    </message>
    <message>
        <source>Check that the adapter is plugged in, and the name of the port.</source>
        <translation>Prüfen, dass der Adapter steckt, und den Namen der Schnittstelle.</translation>
    </message>
    <message>
        <source>End the program that has the port open; on Linux the user must be in the port&apos;s group, usually dialout.</source>
        <translation>Das Programm beenden, das die Schnittstelle offen hat; unter Linux muss der Benutzer in ihrer Gruppe sein, üblich dialout.</translation>
    </message>
    <message>
        <source>Check that the adapter is plugged in.</source>
        <translation>Prüfen, dass der Adapter steckt.</translation>
    </message>
    <message>
        <source>Connected, but nothing came back. Check the unit number; behind a gateway also the wiring, baud rate and parity of its line. A slow device needs a longer timeout.</source>
        <translation>Verbunden, aber es kam nichts zurück. Die Gerätenummer (unit) prüfen; hinter einem Gateway auch Verdrahtung, Baudrate und Parität seiner Leitung. Ein langsames Gerät braucht eine längere Wartezeit.</translation>
    </message>
    <message>
        <source>Check the unit number, baud rate, parity and stop bits, the wiring (A and B may be exchanged) and that the device is switched on. A slow device needs a longer timeout.</source>
        <translation>Gerätenummer (unit), Baudrate, Parität und Stoppbits prüfen, die Verdrahtung (A und B vielleicht vertauscht) und dass das Gerät eingeschaltet ist. Ein langsames Gerät braucht eine längere Wartezeit.</translation>
    </message>
    <message>
        <source>It is connected anew with the next request.</source>
        <translation>Mit der nächsten Anfrage wird neu verbunden.</translation>
    </message>
    <message>
        <source>What listens on this port is not Modbus TCP; check the port.</source>
        <translation>Was auf diesem Port hört, spricht nicht Modbus TCP; den Port prüfen.</translation>
    </message>
    <message>
        <source>Check the unit number; on a serial line also baud rate and parity, and that no two devices have the same number.</source>
        <translation>Die Gerätenummer (unit) prüfen; auf einer seriellen Leitung auch Baudrate und Parität, und dass keine zwei Geräte dieselbe Nummer haben.</translation>
    </message>
    <message>
        <source>Check the bank in the parameter file, and whether the device writes single registers or several.</source>
        <translation>In der Parameterdatei die Bank prüfen, und ob das Gerät einzelne Register schreibt oder mehrere.</translation>
    </message>
    <message>
        <source>Check bank and address in the parameter file: manuals often count from 1, 40001 or 30001. The device may also take fewer registers in a request, or no gaps between them.</source>
        <translation>In der Parameterdatei Bank und Adresse prüfen: Handbücher zählen oft ab 1, 40001 oder 30001. Vielleicht nimmt das Gerät auch weniger Register je Anfrage oder keine Lücken dazwischen.</translation>
    </message>
    <message>
        <source>Check the limits of the parameter in the device&apos;s manual.</source>
        <translation>Die Grenzen des Parameters im Handbuch des Geräts prüfen.</translation>
    </message>
    <message>
        <source>The device needs repair.</source>
        <translation>Das Gerät muss repariert werden.</translation>
    </message>
    <message>
        <source>Check the unit number and the gateway&apos;s table of units and lines.</source>
        <translation>Die Gerätenummer (unit) prüfen und die Tabelle der Geräte und Leitungen im Gateway.</translation>
    </message>
    <message>
        <source>The gateway is there, the device is not. Check the unit number, that the device is switched on, and the wiring, baud rate and parity of the gateway&apos;s line.</source>
        <translation>Das Gateway ist da, das Gerät nicht. Gerätenummer (unit) prüfen, dass das Gerät eingeschaltet ist, und Verdrahtung, Baudrate und Parität der Leitung des Gateways.</translation>
    </message>
</context>
<context>
    <name>frames</name>
    <message>
        <source>address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>bits kept</source>
        <translation>behaltene Bits</translation>
    </message>
    <message>
        <source>bits set</source>
        <translation>gesetzte Bits</translation>
    </message>
    <message>
        <source>byte count</source>
        <translation>Anzahl Bytes</translation>
    </message>
    <message>
        <source>coil</source>
        <translation>Bit</translation>
    </message>
    <message>
        <source>register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>kind of request</source>
        <translation>Art der Anfrage</translation>
    </message>
    <message>
        <source>part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>conformity</source>
        <translation>Konformität</translation>
    </message>
    <message>
        <source>more follows</source>
        <translation>Fortsetzung</translation>
    </message>
    <message>
        <source>read coils</source>
        <translation>Coils lesen</translation>
    </message>
    <message>
        <source>read discrete inputs</source>
        <translation>diskrete Eingänge lesen</translation>
    </message>
    <message>
        <source>read holding registers</source>
        <translation>Holding-Register lesen</translation>
    </message>
    <message>
        <source>read input registers</source>
        <translation>Input-Register lesen</translation>
    </message>
    <message>
        <source>write a coil</source>
        <translation>ein Coil schreiben</translation>
    </message>
    <message>
        <source>write a register</source>
        <translation>ein Register schreiben</translation>
    </message>
    <message>
        <source>write coils</source>
        <translation>Coils schreiben</translation>
    </message>
    <message>
        <source>write registers</source>
        <translation>Register schreiben</translation>
    </message>
    <message>
        <source>masked write of a register</source>
        <translation>ein Register mit Maske schreiben</translation>
    </message>
    <message>
        <source>device identification</source>
        <translation>Geräteidentifikation</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>exception</source>
        <translation>Ausnahme</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>übrig</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>transaction</source>
        <translation>Transaktion</translation>
    </message>
    <message>
        <source>protocol</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>neither on nor off</source>
        <translation>weder ein noch aus</translation>
    </message>
    <message>
        <source>checksum</source>
        <translation>Prüfsumme</translation>
    </message>
    <message>
        <source>right</source>
        <translation>richtig</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>falsch</translation>
    </message>
</context>
<context>
    <name>messages</name>
    <message>
        <source>MSG_CFAIL</source>
        <translation>Keine Verbindung zum Gerät!</translation>
    </message>
    <message>
        <source>MSG_DATANOTAVAILABLE</source>
        <translation>Keine Daten verfügbar</translation>
    </message>
    <message>
        <source>MSG_DEVICEBUSY</source>
        <translation>Das Gerät ist beschäftigt. Es wird erneut gefragt.</translation>
    </message>
    <message>
        <source>MSG_NOENTRY</source>
        <translation>steht im Gerät; kein Eintrag hat diesen Wert.</translation>
    </message>
    <message>
        <source>MSG_DATACHANGED</source>
        <translation>Von anderer Seite geändert </translation>
    </message>
    <message>
        <source>MSG_INVALIDENTRY</source>
        <translation>Ungültige Eingabe</translation>
    </message>
    <message>
        <source>MSG_DEVICETAGNOTFOUND</source>
        <translation>Bezeichner nicht gefunden</translation>
    </message>
    <message>
        <source>MSG_INVALIDENTRYTO</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>MSG_INVALIDENTRYNAN</source>
        <translation>Ungültige Eingabe</translation>
    </message>
    <message>
        <source>MSG_INVALIDVALUE</source>
        <translation>Ungültiger Wert</translation>
    </message>
    <message>
        <source>MsgInvalidEntryForText</source>
        <translation>Der Text ist zu lang. Bitte einen kürzeren eingeben.</translation>
    </message>
    <message>
        <source>MSG_DEFAULT</source>
        <comment>ctx_ZorImage</comment>
        <translation>Einzelheiten zu </translation>
    </message>
    <message>
        <source>MSG_STATUSNOTOK</source>
        <comment>ctx_ZorImage</comment>
        <translation>Status nicht in Ordnung</translation>
    </message>
    <message>
        <source>MsgStatusOK</source>
        <comment>ctx_ZorImage</comment>
        <translation>- Keine Meldungen. Status in Ordnung.</translation>
    </message>
    <message>
        <source>MsgUndefined</source>
        <comment>ctx_ZorImage</comment>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>MsgBit</source>
        <comment>ctx_ZorImage</comment>
        <translation>Bit</translation>
    </message>
    <message>
        <source>StatusText</source>
        <comment>ctx_ZorImage</comment>
        <translation>Status</translation>
    </message>
    <message>
        <source>MSG_NEWVALUE</source>
        <translation>Von anderer Seite geändert auf </translation>
    </message>
</context>
<context>
    <name>reasons</name>
    <message>
        <source>no complete answer in time</source>
        <translation>keine vollständige Antwort in der vorgesehenen Zeit</translation>
    </message>
    <message>
        <source>the connection was refused</source>
        <translation>die Verbindung wurde abgelehnt</translation>
    </message>
    <message>
        <source>the device closed the connection</source>
        <translation>das Gerät hat die Verbindung geschlossen</translation>
    </message>
    <message>
        <source>there is no such host</source>
        <translation>diesen Rechner gibt es nicht</translation>
    </message>
    <message>
        <source>the network does not reach the device</source>
        <translation>das Netz erreicht das Gerät nicht</translation>
    </message>
    <message>
        <source>a reply to another transaction</source>
        <translation>eine Antwort auf eine andere Transaktion</translation>
    </message>
    <message>
        <source>a reply in another protocol</source>
        <translation>eine Antwort in einem anderen Protokoll</translation>
    </message>
    <message>
        <source>a reply of an impossible length</source>
        <translation>eine Antwort unmöglicher Länge</translation>
    </message>
    <message>
        <source>a reply from another unit</source>
        <translation>eine Antwort von einem anderen Gerät der Linie</translation>
    </message>
    <message>
        <source>more bytes than the reply has</source>
        <translation>mehr Bytes als die Antwort hat</translation>
    </message>
    <message>
        <source>a reply of another length than was asked for</source>
        <translation>eine Antwort anderer Länge als angefragt</translation>
    </message>
    <message>
        <source>an empty reply</source>
        <translation>eine leere Antwort</translation>
    </message>
    <message>
        <source>an exception of the wrong length</source>
        <translation>eine Ausnahme falscher Länge</translation>
    </message>
    <message>
        <source>a reply to another function</source>
        <translation>eine Antwort auf eine andere Funktion</translation>
    </message>
    <message>
        <source>a reply to another write</source>
        <translation>eine Antwort auf ein anderes Schreiben</translation>
    </message>
    <message>
        <source>the device does not know this function</source>
        <translation>das Gerät kennt diese Funktion nicht</translation>
    </message>
    <message>
        <source>the device does not have this address</source>
        <translation>das Gerät hat diese Adresse nicht</translation>
    </message>
    <message>
        <source>the device does not take this value</source>
        <translation>das Gerät nimmt diesen Wert nicht an</translation>
    </message>
    <message>
        <source>the device has failed</source>
        <translation>das Gerät hat einen Fehler</translation>
    </message>
    <message>
        <source>the device is still working on it</source>
        <translation>das Gerät arbeitet noch daran</translation>
    </message>
    <message>
        <source>the device is busy</source>
        <translation>das Gerät ist beschäftigt</translation>
    </message>
    <message>
        <source>the device&apos;s memory is damaged</source>
        <translation>der Speicher des Geräts ist beschädigt</translation>
    </message>
    <message>
        <source>the gateway has no path to the device</source>
        <translation>das Gateway hat keinen Weg zum Gerät</translation>
    </message>
    <message>
        <source>the device behind the gateway does not answer</source>
        <translation>das Gerät hinter dem Gateway antwortet nicht</translation>
    </message>
    <message>
        <source>the host does not answer</source>
        <translation>der Rechner antwortet nicht</translation>
    </message>
    <message>
        <source>there is no such serial port</source>
        <translation>diese serielle Schnittstelle gibt es nicht</translation>
    </message>
    <message>
        <source>the serial port cannot be opened</source>
        <translation>die serielle Schnittstelle lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>the serial port is gone</source>
        <translation>die serielle Schnittstelle ist verschwunden</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>die Verbindung ging verloren</translation>
    </message>
    <message>
        <source>a wrong checksum</source>
        <translation>eine falsche Prüfsumme</translation>
    </message>
    <message>
        <source>bytes that nobody asked for</source>
        <translation>Bytes, um die niemand gebeten hat</translation>
    </message>
    <message>
        <source>another device</source>
        <translation>ein anderes Gerät</translation>
    </message>
</context>
<context>
    <name>texts</name>
    <message>
        <source>larger than 16 MB</source>
        <translation>größer als 16 MB</translation>
    </message>
    <message>
        <source>no controls of the library are on this form</source>
        <translation>auf diesem Formular sind keine Bedienelemente der Bibliothek</translation>
    </message>
    <message>
        <source>the form is too large</source>
        <translation>das Formular ist zu groß</translation>
    </message>
    <message>
        <source>a character that XML does not have</source>
        <translation>ein Zeichen, das XML nicht hat</translation>
    </message>
    <message>
        <source>%1 is not closed</source>
        <translation>%1 ist nicht geschlossen</translation>
    </message>
    <message>
        <source>there is no form in it</source>
        <translation>es ist kein Formular darin</translation>
    </message>
    <message>
        <source>a name is missing</source>
        <translation>ein Name fehlt</translation>
    </message>
    <message>
        <source>text outside the form</source>
        <translation>Text außerhalb des Formulars</translation>
    </message>
    <message>
        <source>document type definitions are not read</source>
        <translation>Dokumenttypdefinitionen werden nicht gelesen</translation>
    </message>
    <message>
        <source>only UTF-8 is read</source>
        <translation>nur UTF-8 wird gelesen</translation>
    </message>
    <message>
        <source>a second root element</source>
        <translation>ein zweites Wurzelelement</translation>
    </message>
    <message>
        <source>the form has too many elements</source>
        <translation>das Formular hat zu viele Elemente</translation>
    </message>
    <message>
        <source>%1 is not a whole tag</source>
        <translation>%1 ist kein vollständiges Tag</translation>
    </message>
    <message>
        <source>a tag that does not end</source>
        <translation>ein Tag, das nicht endet</translation>
    </message>
    <message>
        <source>elements are nested too deeply</source>
        <translation>die Elemente sind zu tief geschachtelt</translation>
    </message>
    <message>
        <source>an attribute without a value</source>
        <translation>ein Attribut ohne Wert</translation>
    </message>
    <message>
        <source>an attribute&apos;s value without quotes</source>
        <translation>ein Attributwert ohne Anführungszeichen</translation>
    </message>
    <message>
        <source>an attribute&apos;s value that does not end</source>
        <translation>ein Attributwert, der nicht endet</translation>
    </message>
    <message>
        <source>%1 closes nothing</source>
        <translation>%1 schließt nichts</translation>
    </message>
    <message>
        <source>%1 closes %2</source>
        <translation>%1 schließt %2</translation>
    </message>
    <message>
        <source>an entity that XML does not know</source>
        <translation>eine Entität, die XML nicht kennt</translation>
    </message>
    <message>
        <source>the form is not in UTF-8</source>
        <translation>das Formular ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>is no form of Qt Designer</source>
        <translation>ist kein Formular von Qt Designer</translation>
    </message>
    <message>
        <source>a comment that does not end</source>
        <translation>ein Kommentar, der nicht endet</translation>
    </message>
    <message>
        <source>a CDATA section that does not end</source>
        <translation>ein CDATA-Abschnitt, der nicht endet</translation>
    </message>
    <message>
        <source>an instruction that does not end</source>
        <translation>eine Anweisung, die nicht endet</translation>
    </message>
    <message>
        <source>the device did not answer for all parameters</source>
        <translation>das Gerät hat nicht für alle Parameter geantwortet</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>Port %1</translation>
    </message>
    <message>
        <source>the last tab is %1</source>
        <translation>die letzte Seite ist %1</translation>
    </message>
    <message>
        <source>no parameter that is a number</source>
        <translation>kein Parameter, der eine Zahl ist</translation>
    </message>
    <message>
        <source>the device did not answer in %1 of %2 rounds</source>
        <translation>das Gerät hat in %1 von %2 Runden nicht geantwortet</translation>
    </message>
    <message>
        <source>the device has none of the parameters</source>
        <translation>das Gerät hat keinen der Parameter</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>warning: saved from a device of type %1, compared with %2</source>
        <translation>Warnung: von einem Gerät des Typs %1 gespeichert, verglichen mit %2</translation>
    </message>
    <message>
        <source>warning: saved from version %1, compared with %2</source>
        <translation>Warnung: von Version %1 gespeichert, verglichen mit %2</translation>
    </message>
    <message>
        <source>the device did not answer</source>
        <translation>das Gerät hat nicht geantwortet</translation>
    </message>
    <message>
        <source>the device has none of the parameters that can be written</source>
        <translation>das Gerät hat keinen der Parameter, die geschrieben werden können</translation>
    </message>
    <message>
        <source>%1 settings saved</source>
        <translation>%1 Einstellungen gespeichert</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>nothing has been written; with --yes it is</source>
        <translation>es ist nichts geschrieben worden; mit --yes geschieht es</translation>
    </message>
    <message>
        <source>a parameter has 1 to %1 registers</source>
        <translation>ein Parameter hat 1 bis %1 Register</translation>
    </message>
    <message>
        <source>a tag is not empty</source>
        <translation>eine Kennung ist nicht leer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no unit</source>
        <translation>&quot;%1&quot; ist keine Einheit</translation>
    </message>
    <message>
        <source>only a number has a unit</source>
        <translation>nur eine Zahl hat eine Einheit</translation>
    </message>
    <message>
        <source>a settings file has the format &quot;%1&quot;</source>
        <translation>eine Einstellungsdatei hat das Format &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no date like 2026-11-25T08:30:00Z</source>
        <translation>&quot;%1&quot; ist kein Datum wie 2026-11-25T08:30:00Z</translation>
    </message>
    <message>
        <source>the tag &quot;%1&quot; stands twice</source>
        <translation>die Kennung &quot;%1&quot; steht zweimal da</translation>
    </message>
    <message>
        <source>same</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>different</source>
        <translation>verschieden</translation>
    </message>
    <message>
        <source>missing here</source>
        <translation>fehlt hier</translation>
    </message>
    <message>
        <source>missing there</source>
        <translation>fehlt dort</translation>
    </message>
    <message>
        <source>not writable</source>
        <translation>nicht schreibbar</translation>
    </message>
    <message>
        <source>unfit</source>
        <translation>unpassend</translation>
    </message>
    <message>
        <source>not a value of this parameter</source>
        <translation>kein Wert dieses Parameters</translation>
    </message>
    <message>
        <source>not a number in a unit of this parameter</source>
        <translation>keine Zahl in einer Einheit dieses Parameters</translation>
    </message>
    <message>
        <source>beyond what the device can hold</source>
        <translation>mehr, als das Gerät halten kann</translation>
    </message>
    <message>
        <source>outside the limits</source>
        <translation>außerhalb der Grenzen</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>zu lang</translation>
    </message>
    <message>
        <source>characters that the device does not have</source>
        <translation>Zeichen, die das Gerät nicht hat</translation>
    </message>
    <message>
        <source>can only be read</source>
        <translation>nur lesbar</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>nicht gelesen</translation>
    </message>
    <message>
        <source>two different values</source>
        <translation>zwei verschiedene Werte</translation>
    </message>
    <message>
        <source>live</source>
        <translation>gelesen</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>beschäftigt</translation>
    </message>
    <message>
        <source>communication failure</source>
        <translation>Kommunikation gestört</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>written</source>
        <translation>geschrieben</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>not sent</source>
        <translation>nicht gesendet</translation>
    </message>
    <message>
        <source>unconfirmed</source>
        <translation>nicht bestätigt</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>weicht ab</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>nicht zurückgelesen</translation>
    </message>
    <message>
        <source>overtaken</source>
        <translation>überholt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands twice</source>
        <translation>&quot;%1&quot; steht zweimal da</translation>
    </message>
    <message>
        <source>%1 is a number from %2 to %3</source>
        <translation>%1 ist eine Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>%1 is one of %2</source>
        <translation>%1 ist eines von %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known here</source>
        <translation>&quot;%1&quot; ist hier nicht bekannt</translation>
    </message>
    <message>
        <source>a serial device is missing, as in rtu:/dev/ttyUSB0</source>
        <translation>es fehlt eine serielle Schnittstelle, wie in rtu:/dev/ttyUSB0</translation>
    </message>
    <message>
        <source>not a device; write tcp://HOST:PORT or rtu:DEVICE</source>
        <translation>kein Gerät; schreiben Sie tcp://RECHNER:PORT oder rtu:SCHNITTSTELLE</translation>
    </message>
    <message>
        <source>a number or a text</source>
        <translation>eine Zahl oder einen Text</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>bits</source>
        <translation>Bits</translation>
    </message>
    <message>
        <source>a bit</source>
        <translation>ein Bit</translation>
    </message>
    <message>
        <source>bits or an integer without scale and unit</source>
        <translation>Bits oder eine ganze Zahl ohne Faktor und Einheit</translation>
    </message>
    <message>
        <source>a %1 needs a minimum and a maximum</source>
        <translation>ein %1 braucht ein Minimum und ein Maximum</translation>
    </message>
    <message>
        <source>a %1 shows whole numbers only, without another unit than the device&apos;s</source>
        <translation>ein %1 zeigt nur ganze Zahlen, ohne eine andere Einheit als die des Geräts</translation>
    </message>
    <message>
        <source>a %1 reaches from -2147483648 to 2147483647</source>
        <translation>ein %1 reicht von -2147483648 bis 2147483647</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of %2</source>
        <translation>&quot;%1&quot; ist keines von %2</translation>
    </message>
    <message>
        <source>a %1 needs %2</source>
        <translation>ein %1 braucht %2</translation>
    </message>
    <message>
        <source>only a number without a unit has digits; a unit brings its own</source>
        <translation>nur eine Zahl ohne Einheit hat Nachkommastellen; eine Einheit bringt ihre eigenen mit</translation>
    </message>
    <message>
        <source>only a number has limits</source>
        <translation>nur eine Zahl hat Grenzen</translation>
    </message>
    <message>
        <source>the parameter&apos;s type cannot hold its %1</source>
        <translation>der Typ des Parameters kann diese Grenze nicht halten: %1</translation>
    </message>
    <message>
        <source>the parameter&apos;s type cannot hold the value %1</source>
        <translation>der Typ des Parameters kann den Wert %1 nicht halten</translation>
    </message>
    <message>
        <source>the lists are of different length: each version belongs to the type at its place</source>
        <translation>die Listen sind verschieden lang: jede Version gehört zum Typ an ihrer Stelle</translation>
    </message>
    <message>
        <source>a parameter has entries or bits, not both</source>
        <translation>ein Parameter hat Einträge oder Bits, nicht beides</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>zu tief geschachtelt</translation>
    </message>
    <message>
        <source>a text has at least one language</source>
        <translation>ein Text hat mindestens eine Sprache</translation>
    </message>
    <message>
        <source>a coil or a discrete input is of the type bit</source>
        <translation>ein Coil oder Binäreingang ist vom Typ bit</translation>
    </message>
    <message>
        <source>only a text has a number of registers</source>
        <translation>nur ein Text hat eine Anzahl von Registern</translation>
    </message>
    <message>
        <source>the parameter reaches beyond address 65535</source>
        <translation>der Parameter reicht über die Adresse 65535 hinaus</translation>
    </message>
    <message>
        <source>%1 stands twice</source>
        <translation>%1 steht zweimal da</translation>
    </message>
    <message>
        <source>an empty list</source>
        <translation>eine leere Liste</translation>
    </message>
    <message>
        <source>a period is longer than 0 seconds</source>
        <translation>eine Periode ist länger als 0 Sekunden</translation>
    </message>
    <message>
        <source>the unit shown is not of the type of the parameter&apos;s unit</source>
        <translation>die angezeigte Einheit ist nicht von der Art der Einheit des Parameters</translation>
    </message>
    <message>
        <source>the maximum is less than the minimum</source>
        <translation>das Maximum ist kleiner als das Minimum</translation>
    </message>
    <message>
        <source>a scale is not 0</source>
        <translation>ein Faktor ist nicht 0</translation>
    </message>
    <message>
        <source>only a number has a scale</source>
        <translation>nur eine Zahl hat einen Faktor</translation>
    </message>
    <message>
        <source>a discrete input cannot be written</source>
        <translation>ein Binäreingang kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>an input register cannot be written</source>
        <translation>ein Eingangsregister kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>only an integer without scale and unit has %1</source>
        <translation>das hat nur eine ganze Zahl ohne Faktor und Einheit: %1</translation>
    </message>
    <message>
        <source>what the device is comes as a text, its version also as uint16</source>
        <translation>was das Gerät ist, kommt als Text, seine Version auch als uint16</translation>
    </message>
    <message>
        <source>the parameter is longer than a request may be</source>
        <translation>der Parameter ist länger, als eine Anfrage sein darf</translation>
    </message>
    <message>
        <source>no parameters</source>
        <translation>keine Parameter</translation>
    </message>
    <message>
        <source>a text is expected here</source>
        <translation>hier wird ein Text erwartet</translation>
    </message>
    <message>
        <source>true or false is expected here</source>
        <translation>hier wird true oder false erwartet</translation>
    </message>
    <message>
        <source>a number is expected here</source>
        <translation>hier wird eine Zahl erwartet</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 is expected here</source>
        <translation>hier wird eine ganze Zahl von %1 bis %2 erwartet</translation>
    </message>
    <message>
        <source>version %1 is expected here, and this program knows no other</source>
        <translation>hier wird Version %1 erwartet, und dieses Programm kennt keine andere</translation>
    </message>
    <message>
        <source>a list is expected here</source>
        <translation>hier wird eine Liste erwartet</translation>
    </message>
    <message>
        <source>an object is expected here</source>
        <translation>hier wird ein Objekt erwartet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>&quot;%1&quot; fehlt</translation>
    </message>
    <message>
        <source>unit is a list of numbers from 0 to 255 and ranges, as in 1-10,17</source>
        <translation>unit ist eine Liste von Zahlen von 0 bis 255 und Bereichen, wie in 1-10,17</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>nothing answers</source>
        <translation>nichts antwortet</translation>
    </message>
    <message>
        <source>an empty text</source>
        <translation>ein leerer Text</translation>
    </message>
    <message>
        <source>a site file has the format &quot;%1&quot;</source>
        <translation>eine Anlagendatei hat das Format &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is written by another device already</source>
        <translation>&quot;%1&quot; wird schon von einem anderen Gerät geschrieben</translation>
    </message>
    <message>
        <source>a site has 1 to %1 devices</source>
        <translation>eine Anlage hat 1 bis %1 Geräte</translation>
    </message>
    <message>
        <source>the simulated device: %1</source>
        <translation>das simulierte Gerät: %1</translation>
    </message>
    <message>
        <source>no parameter has the tag &quot;%1&quot;</source>
        <translation>kein Parameter hat die Kennung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown class %1</source>
        <translation>unbekannte Klasse %1</translation>
    </message>
    <message>
        <source>%1: no such property</source>
        <translation>%1: diese Eigenschaft gibt es nicht</translation>
    </message>
    <message>
        <source>%1: %2 holds no value of the kind %3</source>
        <translation>%1: %2 enthält keinen Wert der Art %3</translation>
    </message>
    <message>
        <source>%1: follows from other properties and is not set</source>
        <translation>%1: folgt aus anderen Eigenschaften und wird nicht gesetzt</translation>
    </message>
    <message>
        <source>%1: a rectangle of whole pixels is expected</source>
        <translation>%1: hier wird ein Rechteck aus ganzen Pixeln erwartet</translation>
    </message>
    <message>
        <source>this is the file of %1</source>
        <translation>das ist die Datei von %1</translation>
    </message>
    <message>
        <source>holds something else than a record, and is left alone</source>
        <translation>enthält etwas anderes als eine Aufzeichnung und bleibt, wie es ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file that is read</source>
        <translation>&quot;%1&quot; ist eine Datei, die gelesen wird</translation>
    </message>
    <message>
        <source>no kind of picture that can be written</source>
        <translation>keine Art von Bild, die geschrieben werden kann</translation>
    </message>
    <message>
        <source>1 setting saved</source>
        <translation>1 Einstellung gespeichert</translation>
    </message>
    <message>
        <source>this is not JSON</source>
        <translation>das ist kein JSON</translation>
    </message>
    <message>
        <source>this is not JSON, at %1</source>
        <translation>das ist kein JSON, bei %1</translation>
    </message>
    <message>
        <source>another device answers since; it has not been compared</source>
        <translation>seitdem antwortet ein anderes Gerät; es wurde nicht verglichen</translation>
    </message>
    <message>
        <source>the output cannot be written</source>
        <translation>die Ausgabe kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the device does not have this parameter</source>
        <translation>das Gerät hat diesen Parameter nicht</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translation>bestätigt</translation>
    </message>
    <message>
        <source>not carried out</source>
        <translation>nicht ausgeführt</translation>
    </message>
    <message>
        <source>the identity is longer than a request may be</source>
        <translation>die Kennung ist länger, als eine Anfrage sein darf</translation>
    </message>
</context>
<context>
    <name>units</name>
    <message>
        <source>UNIT_LENGTH_1/256_INCH</source>
        <translation>1/256 Zoll</translation>
    </message>
    <message>
        <source>UNIT_LENGTH_1/16_INCH</source>
        <translation>1/16 Zoll</translation>
    </message>
    <message>
        <source>UNIT_LENGTH_INCH</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>UNIT_LENGTH_FEET</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>UNIT_VEL_1/10_FT/HR</source>
        <translation>1/10 Fuß/h</translation>
    </message>
    <message>
        <source>UNIT_VEL_FT/S</source>
        <translation>Fuß/s</translation>
    </message>
    <message>
        <source>UNIT_VEL_FT/HR</source>
        <translation>Fuß/h</translation>
    </message>
    <message>
        <source>UNIT_VEL_INCH/MIN</source>
        <translation>Zoll/min</translation>
    </message>
    <message>
        <source>UNIT_VOL_FT3</source>
        <translation>Kubikfuß</translation>
    </message>
    <message>
        <source>UNIT_VOL_BBL</source>
        <translation>Barrel</translation>
    </message>
    <message>
        <source>UNIT_VOL_IMPGAL</source>
        <translation>Imp. gal</translation>
    </message>
    <message>
        <source>UNIT_VOL_YD3</source>
        <translation>Kubikyard</translation>
    </message>
    <message>
        <source>UNIT_VOL_INCH3</source>
        <translation>Kubikzoll</translation>
    </message>
    <message>
        <source>UNIT_PRES_BAR</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>UNIT_PRES_MBAR</source>
        <translation>mbar</translation>
    </message>
    <message>
        <source>UNIT_VOLFLOW_BBL/HR</source>
        <translation>Barrel/h</translation>
    </message>
    <message>
        <source>UNIT_OTHER_DEBYE</source>
        <translation>Debye</translation>
    </message>
    <message>
        <source>UNIT_OTHER_OHM</source>
        <translation>Ohm</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Volumetric Flow</source>
        <translation>Volumenstrom</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
</context>
</TS>

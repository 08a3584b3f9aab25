<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>DevicePanel</name>
    <message>
        <source>Nothing to write</source>
        <translation>Nichts zu schreiben</translation>
    </message>
    <message numerus="yes">
        <source>%n value(s) written and read back</source>
        <translation>
            <numerusform>%n Wert geschrieben und zurückgelesen</numerusform>
            <numerusform>%n Werte geschrieben und zurückgelesen</numerusform>
        </translation>
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
    <name>NoValueVeil</name>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
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
        <source>File</source>
        <translation>Datei</translation>
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
</context>
<context>
    <name>SettingsTransfer</name>
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
    <message numerus="yes">
        <source>%n setting(s) saved</source>
        <translation>
            <numerusform>%n Einstellung gespeichert</numerusform>
            <numerusform>%n Einstellungen gespeichert</numerusform>
        </translation>
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
        <translation>Näher</translation>
    </message>
    <message>
        <source>Show less time; with Ctrl and the wheel, less of the values</source>
        <translation>Weniger Zeit zeigen; mit Strg und dem Rad einen kleineren Wertebereich</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Weiter</translation>
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
        <source>ZorSmartControls Monitor</source>
        <translation>ZorSmartControls Monitor</translation>
    </message>
    <message>
        <source>%1 - Monitor</source>
        <translation>%1 - Monitor</translation>
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
        <source>&amp;Compare with file...</source>
        <translation>Mit Datei &amp;vergleichen...</translation>
    </message>
    <message>
        <source>Compare &amp;two files...</source>
        <translation>&amp;Zwei Dateien vergleichen...</translation>
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

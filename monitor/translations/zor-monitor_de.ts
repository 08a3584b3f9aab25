<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>ReviewDialog</name>
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
        <source>Unit</source>
        <translation>Einheit</translation>
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
</context>
<context>
    <name>Window</name>
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
        <source>The value cannot be shown in that unit</source>
        <translation>Der Wert lässt sich in dieser Einheit nicht anzeigen</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>Nothing to write</source>
        <translation>Nichts zu schreiben</translation>
    </message>
    <message>
        <source>There are edits that have not been written. Close all the same?</source>
        <translation>Es gibt Änderungen, die nicht geschrieben sind. Trotzdem schließen?</translation>
    </message>
    <message>
        <source>%1: connected, read at %2</source>
        <translation>%1: verbunden, gelesen um %2</translation>
    </message>
    <message>
        <source>%1: no answer, tried at %2</source>
        <translation>%1: keine Antwort, versucht um %2</translation>
    </message>
    <message>
        <source>%1: %2 requests, %3 failed, round trip %4 ms on average, %5 ms at most</source>
        <translation>%1: %2 Anfragen, %3 fehlgeschlagen, Umlauf %4 ms im Mittel, %5 ms höchstens</translation>
    </message>
    <message>
        <source>Reads</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Writes</source>
        <translation>Schreiben</translation>
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
        <source>%1: %2/s, %3 ms</source>
        <translation>%1: %2/s, %3 ms</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>not written: the entry is not valid</source>
        <translation>nicht geschrieben: die Eingabe ist nicht gültig</translation>
    </message>
    <message>
        <source>not written: the entry is not a number</source>
        <translation>nicht geschrieben: die Eingabe ist keine Zahl</translation>
    </message>
    <message>
        <source>not written: the device cannot hold a number of this size</source>
        <translation>nicht geschrieben: das Gerät fasst keine Zahl dieser Größe</translation>
    </message>
    <message>
        <source>not written: the number is outside the limits</source>
        <translation>nicht geschrieben: die Zahl liegt außerhalb der Grenzen</translation>
    </message>
    <message>
        <source>not written: the text is too long for the device</source>
        <translation>nicht geschrieben: der Text ist zu lang für das Gerät</translation>
    </message>
    <message>
        <source>not written: the device has no such characters</source>
        <translation>nicht geschrieben: das Gerät kennt solche Zeichen nicht</translation>
    </message>
    <message>
        <source>not written: the parameter can only be read</source>
        <translation>nicht geschrieben: der Parameter ist nur lesbar</translation>
    </message>
    <message>
        <source>not written: the device has not been read yet</source>
        <translation>nicht geschrieben: das Gerät ist noch nicht gelesen</translation>
    </message>
    <message>
        <source>not written: two fields hold different values</source>
        <translation>nicht geschrieben: zwei Felder enthalten verschiedene Werte</translation>
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
</context>
</TS>

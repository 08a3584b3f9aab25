<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>ReviewDialog</name>
    <message>
        <source>Write to the device</source>
        <translation>Écrire dans l&apos;appareil</translation>
    </message>
    <message>
        <source>These values will be written:</source>
        <translation>Ces valeurs seront écrites :</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Ancienne valeur</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Nouvelle valeur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>changed by another user in the meantime</source>
        <translation>modifié entre-temps par un autre utilisateur</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>É&amp;crire</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>As on the &amp;form</source>
        <translation>Comme sur le &amp;formulaire</translation>
    </message>
    <message>
        <source>&amp;Metric</source>
        <translation>&amp;Métriques</translation>
    </message>
    <message>
        <source>&amp;US</source>
        <translation>&amp;US</translation>
    </message>
    <message>
        <source>As in the &amp;device</source>
        <translation>Comme dans l&apos;&amp;appareil</translation>
    </message>
    <message>
        <source>ZorSmartControls Monitor</source>
        <translation>ZorSmartControls Monitor</translation>
    </message>
    <message>
        <source>%1 - Monitor</source>
        <translation>%1 - Moniteur</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Appareil</translation>
    </message>
    <message>
        <source>&amp;Write...</source>
        <translation>É&amp;crire...</translation>
    </message>
    <message>
        <source>&amp;Undo all</source>
        <translation>&amp;Tout annuler</translation>
    </message>
    <message>
        <source>&amp;Poll period...</source>
        <translation>&amp;Période d&apos;interrogation...</translation>
    </message>
    <message>
        <source>Poll period</source>
        <translation>Période d&apos;interrogation</translation>
    </message>
    <message>
        <source>Milliseconds from read to read:</source>
        <translation>Millisecondes entre deux lectures :</translation>
    </message>
    <message>
        <source>&amp;Simulated device runs</source>
        <translation>L&apos;appareil &amp;simulé fonctionne</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>&amp;Unités</translation>
    </message>
    <message>
        <source>The value cannot be shown in that unit</source>
        <translation>La valeur ne peut pas être affichée dans cette unité</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>Nothing to write</source>
        <translation>Rien à écrire</translation>
    </message>
    <message>
        <source>There are edits that have not been written. Close all the same?</source>
        <translation>Des modifications n&apos;ont pas été écrites. Fermer quand même ?</translation>
    </message>
    <message>
        <source>%1: connected, read at %2</source>
        <translation>%1 : connecté, lu à %2</translation>
    </message>
    <message>
        <source>%1: no answer, tried at %2</source>
        <translation>%1 : pas de réponse, essayé à %2</translation>
    </message>
    <message>
        <source>%1: %2 requests, %3 failed, round trip %4 ms on average, %5 ms at most</source>
        <translation>%1 : %2 requêtes, %3 échouées, aller-retour %4 ms en moyenne, %5 ms au plus</translation>
    </message>
    <message>
        <source>Reads</source>
        <translation>Lectures</translation>
    </message>
    <message>
        <source>Writes</source>
        <translation>Écritures</translation>
    </message>
    <message numerus="yes">
        <source>%n value(s) written and read back</source>
        <translation>
            <numerusform>%n valeur écrite et relue</numerusform>
            <numerusform>%n valeurs écrites et relues</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything was written</source>
        <translation>Tout n&apos;a pas été écrit</translation>
    </message>
    <message>
        <source>These edits are kept:</source>
        <translation>Ces modifications sont conservées :</translation>
    </message>
    <message>
        <source>%1: %2/s, %3 ms</source>
        <translation>%1 : %2/s, %3 ms</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>not written: the entry is not valid</source>
        <translation>non écrit : la saisie n&apos;est pas valide</translation>
    </message>
    <message>
        <source>not written: the entry is not a number</source>
        <translation>non écrit : la saisie n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>not written: the device cannot hold a number of this size</source>
        <translation>non écrit : l&apos;appareil ne peut contenir un nombre de cette taille</translation>
    </message>
    <message>
        <source>not written: the number is outside the limits</source>
        <translation>non écrit : le nombre est hors limites</translation>
    </message>
    <message>
        <source>not written: the text is too long for the device</source>
        <translation>non écrit : le texte est trop long pour l&apos;appareil</translation>
    </message>
    <message>
        <source>not written: the device has no such characters</source>
        <translation>non écrit : l&apos;appareil n&apos;a pas ces caractères</translation>
    </message>
    <message>
        <source>not written: the parameter can only be read</source>
        <translation>non écrit : le paramètre ne peut qu’être lu</translation>
    </message>
    <message>
        <source>not written: the device has not been read yet</source>
        <translation>non écrit : l&apos;appareil n&apos;a pas encore été lu</translation>
    </message>
    <message>
        <source>not written: two fields hold different values</source>
        <translation>non écrit : deux champs contiennent des valeurs différentes</translation>
    </message>
    <message>
        <source>written and read back</source>
        <translation>écrit et relu</translation>
    </message>
    <message>
        <source>refused by the device</source>
        <translation>refusé par l&apos;appareil</translation>
    </message>
    <message>
        <source>not sent: no connection</source>
        <translation>non envoyé : pas de connexion</translation>
    </message>
    <message>
        <source>unconfirmed: the device did not answer; it is settled by the next read</source>
        <translation>non confirmé : l&apos;appareil n&apos;a pas répondu ; la prochaine lecture tranchera</translation>
    </message>
    <message>
        <source>the device holds another value than was written</source>
        <translation>l&apos;appareil contient une autre valeur que celle écrite</translation>
    </message>
    <message>
        <source>exception %1</source>
        <translation>exception %1</translation>
    </message>
</context>
<context>
    <name>messages</name>
    <message>
        <source>MSG_CFAIL</source>
        <translation>Pas de communication avec l&apos;appareil !</translation>
    </message>
    <message>
        <source>MSG_DATANOTAVAILABLE</source>
        <translation>Données non disponibles</translation>
    </message>
    <message>
        <source>MSG_DEVICEBUSY</source>
        <translation>L'appareil est occupé. Il sera interrogé à nouveau.</translation>
    </message>
    <message>
        <source>MSG_NOENTRY</source>
        <translation>est dans l'appareil ; aucune entrée n'a cette valeur.</translation>
    </message>
    <message>
        <source>MSG_DATACHANGED</source>
        <translation>Modifié par un autre utilisateur </translation>
    </message>
    <message>
        <source>MSG_INVALIDENTRY</source>
        <translation>Saisie non valide</translation>
    </message>
    <message>
        <source>MSG_DEVICETAGNOTFOUND</source>
        <translation>Identificateur introuvable</translation>
    </message>
    <message>
        <source>MSG_INVALIDENTRYTO</source>
        <translation>à</translation>
    </message>
    <message>
        <source>MSG_INVALIDENTRYNAN</source>
        <translation>Saisie non valide</translation>
    </message>
    <message>
        <source>MSG_INVALIDVALUE</source>
        <translation>Valeur non valide</translation>
    </message>
    <message>
        <source>MsgInvalidEntryForText</source>
        <translation>Le texte est trop long. Veuillez en saisir un plus court.</translation>
    </message>
    <message>
        <source>MSG_DEFAULT</source>
        <comment>ctx_ZorImage</comment>
        <translation>Informations détaillées sur </translation>
    </message>
    <message>
        <source>MSG_STATUSNOTOK</source>
        <comment>ctx_ZorImage</comment>
        <translation>État non correct</translation>
    </message>
    <message>
        <source>MsgStatusOK</source>
        <comment>ctx_ZorImage</comment>
        <translation>- Aucune information. État correct.</translation>
    </message>
    <message>
        <source>MsgUndefined</source>
        <comment>ctx_ZorImage</comment>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>MsgBit</source>
        <comment>ctx_ZorImage</comment>
        <translation>bit</translation>
    </message>
    <message>
        <source>StatusText</source>
        <comment>ctx_ZorImage</comment>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>units</name>
    <message>
        <source>UNIT_LENGTH_1/256_INCH</source>
        <translation>1/256 po</translation>
    </message>
    <message>
        <source>UNIT_LENGTH_1/16_INCH</source>
        <translation>1/16 po</translation>
    </message>
    <message>
        <source>UNIT_LENGTH_INCH</source>
        <translation>po</translation>
    </message>
    <message>
        <source>UNIT_LENGTH_FEET</source>
        <translation>pi</translation>
    </message>
    <message>
        <source>UNIT_VEL_1/10_FT/HR</source>
        <translation>1/10 pi/h</translation>
    </message>
    <message>
        <source>UNIT_VEL_FT/S</source>
        <translation>pi/s</translation>
    </message>
    <message>
        <source>UNIT_VEL_FT/HR</source>
        <translation>pi/h</translation>
    </message>
    <message>
        <source>UNIT_VEL_INCH/MIN</source>
        <translation>po/min</translation>
    </message>
    <message>
        <source>UNIT_VOL_FT3</source>
        <translation>pi3</translation>
    </message>
    <message>
        <source>UNIT_VOL_BBL</source>
        <translation>baril</translation>
    </message>
    <message>
        <source>UNIT_VOL_IMPGAL</source>
        <translation>gal imp.</translation>
    </message>
    <message>
        <source>UNIT_VOL_YD3</source>
        <translation>vg3</translation>
    </message>
    <message>
        <source>UNIT_VOL_INCH3</source>
        <translation>po3</translation>
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
        <translation>baril/h</translation>
    </message>
    <message>
        <source>UNIT_OTHER_DEBYE</source>
        <translation>debye</translation>
    </message>
    <message>
        <source>UNIT_OTHER_OHM</source>
        <translation>ohm</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>DeviceList</name>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulé</translation>
    </message>
    <message>
        <source>of the demonstration</source>
        <translation>de la démonstration</translation>
    </message>
    <message>
        <source>generated</source>
        <translation>généré</translation>
    </message>
    <message>
        <source>not read yet</source>
        <translation>pas encore lu</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>répond</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>pas de réponse</translation>
    </message>
    <message>
        <source>%1, edited</source>
        <translation>%1, modifié</translation>
    </message>
</context>
<context>
    <name>DevicePanel</name>
    <message>
        <source>The device does not have this parameter</source>
        <translation>L&apos;appareil n&apos;a pas ce paramètre</translation>
    </message>
    <message>
        <source>Nothing to write</source>
        <translation>Rien à écrire</translation>
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
        <source>Not every value can be shown in that unit</source>
        <translation>Toutes les valeurs ne peuvent pas être affichées dans cette unité</translation>
    </message>
    <message>
        <source>Holds edits that have not been written</source>
        <translation>Contient des modifications non écrites</translation>
    </message>
    <message>
        <source>Copy &amp;value</source>
        <translation>Copier la &amp;valeur</translation>
    </message>
    <message>
        <source>Set to &amp;file value (%1)</source>
        <translation>Mettre la valeur du &amp;fichier (%1)</translation>
    </message>
    <message>
        <source>Set to file value...</source>
        <translation>Mettre la valeur d&apos;un fichier...</translation>
    </message>
    <message>
        <source>1 value written and read back</source>
        <translation>1 valeur écrite et relue</translation>
    </message>
    <message>
        <source>%1 values written and read back</source>
        <translation>%1 valeurs écrites et relues</translation>
    </message>
</context>
<context>
    <name>FramesDock</name>
    <message>
        <source>Frames</source>
        <translation>Trames</translation>
    </message>
    <message>
        <source>Filter: message, unit or bytes</source>
        <translation>Filtre : message, esclave ou octets</translation>
    </message>
    <message>
        <source>All frames</source>
        <translation>Toutes les trames</translation>
    </message>
    <message>
        <source>Only failures</source>
        <translation>Échecs seulement</translation>
    </message>
    <message>
        <source>Only writes</source>
        <translation>Écritures seulement</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Ce qui est montré</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>&amp;Vider</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>Enre&amp;gistrer...</translation>
    </message>
    <message>
        <source>Fields of the frame</source>
        <translation>Champs de la trame</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>No failure so far.</source>
        <translation>Aucun échec jusqu&apos;ici.</translation>
    </message>
    <message>
        <source>Save frames</source>
        <translation>Enregistrer les trames</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Fichiers texte (*.txt)</translation>
    </message>
    <message>
        <source>Last failure, at %1: %2. The device has answered since.</source>
        <translation>Dernier échec à %1 : %2. L&apos;appareil a répondu depuis.</translation>
    </message>
    <message>
        <source>Last failure, at %1: %2. %3</source>
        <translation>Dernier échec à %1 : %2. %3</translation>
    </message>
    <message>
        <source>1 frame saved</source>
        <translation>1 trame enregistrée</translation>
    </message>
    <message>
        <source>%1 frames saved</source>
        <translation>%1 trames enregistrées</translation>
    </message>
</context>
<context>
    <name>FramesModel</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Esclave</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Round trip</source>
        <translation>Aller-retour</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>request</source>
        <translation>requête</translation>
    </message>
    <message>
        <source>reply</source>
        <translation>réponse</translation>
    </message>
    <message>
        <source>remark</source>
        <translation>remarque</translation>
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
        <translation>Général</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <translation>%1 (modifié)</translation>
    </message>
</context>
<context>
    <name>GroupTree</name>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
</context>
<context>
    <name>NoValueVeil</name>
    <message>
        <source>no value</source>
        <translation>aucune valeur</translation>
    </message>
</context>
<context>
    <name>OpenDialog</name>
    <message>
        <source>A &amp;simulated device</source>
        <translation>Un appareil &amp;simulé</translation>
    </message>
    <message>
        <source>The device at this &amp;address:</source>
        <translation>L&apos;appareil à cette &amp;adresse :</translation>
    </message>
    <message>
        <source>Open device</source>
        <translation>Ouvrir un appareil</translation>
    </message>
    <message>
        <source>Opened &amp;before:</source>
        <translation>Ouverts &amp;récemment :</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>&amp;Parameter file:</source>
        <translation>Fichier de &amp;paramètres :</translation>
    </message>
    <message>
        <source>of the demonstration device</source>
        <translation>de l&apos;appareil de démonstration</translation>
    </message>
    <message>
        <source>Parameter files (*.json)</source>
        <translation>Fichiers de paramètres (*.json)</translation>
    </message>
    <message>
        <source>&amp;Form:</source>
        <translation>&amp;Formulaire :</translation>
    </message>
    <message>
        <source>made from the parameter file</source>
        <translation>généré d&apos;après le fichier de paramètres</translation>
    </message>
    <message>
        <source>Forms (*.ui)</source>
        <translation>Formulaires (*.ui)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Look for &amp;devices...</source>
        <translation>&amp;Chercher des appareils...</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulé</translation>
    </message>
    <message>
        <source>Open s&amp;ite...</source>
        <translation>Ouvrir un s&amp;ite...</translation>
    </message>
    <message>
        <source>Site: %1</source>
        <translation>Site : %1</translation>
    </message>
    <message>
        <source>Open site</source>
        <translation>Ouvrir un site</translation>
    </message>
    <message>
        <source>Site files (*.json)</source>
        <translation>Fichiers de site (*.json)</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>live</source>
        <translation>lu</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>non disponible</translation>
    </message>
    <message>
        <source>the device was busy</source>
        <translation>l&apos;appareil était occupé</translation>
    </message>
    <message>
        <source>communication failed</source>
        <translation>communication en défaut</translation>
    </message>
    <message>
        <source>not answered yet</source>
        <translation>pas encore de réponse</translation>
    </message>
    <message>
        <source>the device has no value</source>
        <translation>l&apos;appareil n&apos;a pas de valeur</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>%1 - Report</source>
        <translation>%1 - Rapport</translation>
    </message>
    <message>
        <source>Made by zor-monitor %1.</source>
        <translation>Établi par zor-monitor %1.</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
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
        <translation>Date</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Repère</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>non lu</translation>
    </message>
    <message>
        <source>this device does not have it</source>
        <translation>cet appareil ne l&apos;a pas</translation>
    </message>
    <message>
        <source>Differences to the settings file</source>
        <translation>Différences avec le fichier de réglages</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Attention: the file is of another type of device.</source>
        <translation>Attention : le fichier vient d&apos;un autre type d&apos;appareil.</translation>
    </message>
    <message>
        <source>Attention: the file is of another version of the device.</source>
        <translation>Attention : le fichier vient d&apos;une autre version de l&apos;appareil.</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Rien ne diffère.</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Writes of this session</source>
        <translation>Écritures de cette session</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Qui</translation>
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
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>Curves of the session</source>
        <translation>Courbes de la session</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>simulated device</source>
        <translation>appareil simulé</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>With a &amp;picture of the trend</source>
        <translation>Avec une &amp;image de la tendance</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>The report holds what the device is, every parameter with its value, and what has been written in this session. All parameters are read first.</source>
        <translation>Le rapport dit quel est l&apos;appareil, donne chaque paramètre avec sa valeur et ce qui a été écrit dans cette session. Tous les paramètres sont d&apos;abord lus.</translation>
    </message>
    <message>
        <source>&amp;Differences to a settings file (may be empty):</source>
        <translation>&amp;Différences avec un fichier de réglages (facultatif) :</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Fichier de réglages</translation>
    </message>
    <message>
        <source>Settings files (*.json)</source>
        <translation>Fichiers de réglages (*.json)</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Enregistrer...</translation>
    </message>
</context>
<context>
    <name>ReportMaker</name>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
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
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>This is no settings file that can be used:</source>
        <translation>Ce fichier de réglages n&apos;est pas utilisable :</translation>
    </message>
    <message>
        <source>Report saved: %1</source>
        <translation>Rapport enregistré : %1</translation>
    </message>
</context>
<context>
    <name>ReviewDialog</name>
    <message>
        <source>The device has changed while this list was open. I have seen what is marked.</source>
        <translation>L&apos;appareil a changé pendant que cette liste était ouverte. J&apos;ai vu ce qui est marqué.</translation>
    </message>
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
    <message>
        <source>These cannot be written, and stay in their fields:</source>
        <translation>Celles-ci ne peuvent pas être écrites et restent dans leurs champs :</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Repère</translation>
    </message>
    <message>
        <source>another device answers since</source>
        <translation>un autre appareil répond depuis</translation>
    </message>
</context>
<context>
    <name>ScanDialog</name>
    <message>
        <source>Look for devices</source>
        <translation>Chercher des appareils</translation>
    </message>
    <message>
        <source>&amp;Addresses, one to the line. Only these are asked. Unit, baud rate and parity may be lists: unit=1-10,17 baud=9600,19200 parity=even,none</source>
        <translation>&amp;Adresses, une par ligne. Seules celles-ci sont interrogées. Numéro d&apos;esclave (unit), vitesse et parité peuvent être des listes : unit=1-10,17 baud=9600,19200 parity=even,none</translation>
    </message>
    <message>
        <source>Insert an example...</source>
        <translation>Insérer un exemple...</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&amp;Timeout:</source>
        <translation>&amp;Délai :</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Identification</source>
        <translation>Identification</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>What answers</source>
        <translation>Ce qui répond</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>Se co&amp;nnecter</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>A&amp;rrêter</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>Cherche&amp;r</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>This is no address that can be asked:</source>
        <translation>Ce n&apos;est pas une adresse qui puisse être interrogée :</translation>
    </message>
    <message>
        <source>No address is given.</source>
        <translation>Aucune adresse n&apos;est donnée.</translation>
    </message>
    <message>
        <source>answers after %1 ms</source>
        <translation>répond après %1 ms</translation>
    </message>
    <message>
        <source>Done.</source>
        <translation>Terminé.</translation>
    </message>
    <message>
        <source>There are edits that have not been written. Connect to another device all the same?</source>
        <translation>Il y a des modifications non écrites. Se connecter quand même à un autre appareil ?</translation>
    </message>
    <message>
        <source>Devices that answer: %1</source>
        <translation>Appareils qui répondent : %1</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Find: tag, caption, value</source>
        <translation>Chercher : repère, nom, valeur</translation>
    </message>
    <message>
        <source>Find a parameter</source>
        <translation>Chercher un paramètre</translation>
    </message>
    <message>
        <source>Find a parameter by its tag, its caption or the value that was last read (%1)</source>
        <translation>Chercher un paramètre par son repère, son nom ou la dernière valeur lue (%1)</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Attention: the file is of another type of device.</source>
        <translation>Attention : le fichier vient d&apos;un autre type d&apos;appareil.</translation>
    </message>
    <message>
        <source>Attention: the file is of another version of the device.</source>
        <translation>Attention : le fichier vient d&apos;une autre version de l&apos;appareil.</translation>
    </message>
    <message>
        <source>Filter: parameter or tag</source>
        <translation>Filtre : paramètre ou repère</translation>
    </message>
    <message>
        <source>Only differences</source>
        <translation>Seulement les différences</translation>
    </message>
    <message>
        <source>All parameters</source>
        <translation>Tous les paramètres</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Ce qui est affiché</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Repère</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Charger...</translation>
    </message>
    <message>
        <source>Tick &amp;all shown</source>
        <translation>C&amp;ocher tout ce qui est affiché</translation>
    </message>
    <message>
        <source>Tick &amp;none shown</source>
        <translation>&amp;Décocher tout ce qui est affiché</translation>
    </message>
    <message>
        <source>Neither has a parameter.</source>
        <translation>Aucun des deux n&apos;a de paramètre.</translation>
    </message>
    <message>
        <source>this form has no field for it</source>
        <translation>ce formulaire n&apos;a pas de champ pour lui</translation>
    </message>
    <message>
        <source>%1 ticked</source>
        <translation>%1 cochés</translation>
    </message>
    <message>
        <source>%1 ticked, %2 of them not shown</source>
        <translation>%1 cochés, dont %2 non affichés</translation>
    </message>
</context>
<context>
    <name>SettingsTransfer</name>
    <message>
        <source>Compare two devices</source>
        <translation>Comparer deux appareils</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Fichier de réglages</translation>
    </message>
    <message>
        <source>Settings files (*.json)</source>
        <translation>Fichiers de réglages (*.json)</translation>
    </message>
    <message>
        <source>This is no settings file that can be used:</source>
        <translation>Ce fichier de réglages est inutilisable :</translation>
    </message>
    <message>
        <source>Reading the device...</source>
        <translation>Lecture de l&apos;appareil...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancelled; nothing has been written</source>
        <translation>Annulé ; rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>The device did not answer for all parameters</source>
        <translation>L&apos;appareil n&apos;a pas répondu pour tous les paramètres</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Enregistrer les réglages</translation>
    </message>
    <message>
        <source>The device has none of the parameters that can be written</source>
        <translation>L&apos;appareil n&apos;a aucun des paramètres modifiables</translation>
    </message>
    <message>
        <source>Compare with file</source>
        <translation>Comparer avec un fichier</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Charger des réglages</translation>
    </message>
    <message>
        <source>Compare two files: the first</source>
        <translation>Comparer deux fichiers : le premier</translation>
    </message>
    <message>
        <source>Compare two files: the second</source>
        <translation>Comparer deux fichiers : le second</translation>
    </message>
    <message>
        <source>Compare two files</source>
        <translation>Comparer deux fichiers</translation>
    </message>
    <message>
        <source>Second file</source>
        <translation>Second fichier</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Another device has taken over since; nothing has been loaded</source>
        <translation>Un autre appareil répond depuis ; rien n&apos;a été chargé</translation>
    </message>
    <message>
        <source>Not every value could be entered in its field: %1</source>
        <translation>Certaines valeurs n&apos;ont pas pu être saisies dans leur champ : %1</translation>
    </message>
    <message>
        <source>The file has no value for %1</source>
        <translation>Le fichier n&apos;a pas de valeur pour %1</translation>
    </message>
    <message>
        <source>The device holds this value already</source>
        <translation>L&apos;appareil a déjà cette valeur</translation>
    </message>
    <message>
        <source>Set to file value</source>
        <translation>Mettre la valeur d&apos;un fichier</translation>
    </message>
    <message>
        <source>1 setting saved</source>
        <translation>1 réglage enregistré</translation>
    </message>
    <message>
        <source>%1 settings saved</source>
        <translation>%1 réglages enregistrés</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>The record cannot be written: %1</source>
        <translation>L&apos;enregistrement ne peut pas être écrit : %1</translation>
    </message>
    <message>
        <source>%1: connected, read at %2</source>
        <translation>%1 : connecté, lu à %2</translation>
    </message>
    <message>
        <source>%1: not read yet</source>
        <translation>%1 : pas encore lu</translation>
    </message>
    <message>
        <source>No answer: %1 (%2, tried at %3)</source>
        <translation>Pas de réponse : %1 (%2, essayé à %3)</translation>
    </message>
    <message>
        <source>Reads</source>
        <translation>Lectures</translation>
    </message>
    <message>
        <source>Writes</source>
        <translation>Écritures</translation>
    </message>
    <message>
        <source>%1: %2/s, %3 ms</source>
        <translation>%1 : %2/s, %3 ms</translation>
    </message>
    <message>
        <source>%1: %2 requests, %3 failed, round trip %4 ms on average, %5 ms at most</source>
        <translation>%1 : %2 requêtes, %3 échouées, aller-retour %4 ms en moyenne, %5 ms au plus</translation>
    </message>
    <message>
        <source>Writing %1 of %2...</source>
        <translation>Écriture %1 sur %2...</translation>
    </message>
    <message>
        <source>Simulated device</source>
        <translation>Appareil simulé</translation>
    </message>
</context>
<context>
    <name>TrendChooser</name>
    <message>
        <source>Parameters to plot</source>
        <translation>Paramètres à tracer</translation>
    </message>
    <message>
        <source>Filter: parameter or tag</source>
        <translation>Filtre : paramètre ou repère</translation>
    </message>
</context>
<context>
    <name>TrendDock</name>
    <message>
        <source>No parameter is plotted.</source>
        <translation>Aucun paramètre n&apos;est tracé.</translation>
    </message>
    <message>
        <source>without a unit</source>
        <translation>sans unité</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>Parameters...</source>
        <translation>Paramètres...</translation>
    </message>
    <message>
        <source>Choose the parameters that are plotted</source>
        <translation>Choisir les paramètres à tracer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove the selected curve and what it has recorded</source>
        <translation>Retirer la courbe choisie et ce qu&apos;elle a enregistré</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop the picture; recording goes on</source>
        <translation>Arrêter l&apos;image ; l&apos;enregistrement continue</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Show less time; with Ctrl and the wheel, less of the values</source>
        <translation>Montrer moins de temps ; avec Ctrl et la molette, moins de valeurs</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Show more time; with Ctrl and the wheel, more of the values</source>
        <translation>Montrer plus de temps ; avec Ctrl et la molette, plus de valeurs</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Show all that has been recorded</source>
        <translation>Montrer tout ce qui est enregistré</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fit the axes to the values again</source>
        <translation>Ajuster de nouveau les axes aux valeurs</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Enregistrer...</translation>
    </message>
    <message>
        <source>Save the values (CSV) or the picture (PNG)</source>
        <translation>Enregistrer les valeurs (CSV) ou l&apos;image (PNG)</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>Arrow keys move the cursor, with Shift the time; plus and minus zoom, with Ctrl the values; 0 fits them; Home shows everything, End the present; the space bar pauses.</source>
        <translation>Les flèches déplacent le curseur, avec Maj le temps ; plus et moins changent l&apos;échelle, avec Ctrl celle des valeurs ; 0 les ajuste ; Début montre tout, Fin le présent ; la barre d&apos;espace arrête l&apos;image.</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Courbes</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Remove from the trend</source>
        <translation>Retirer de la tendance</translation>
    </message>
    <message>
        <source>Add to the trend</source>
        <translation>Ajouter à la tendance</translation>
    </message>
    <message>
        <source>Paused; values of now</source>
        <translation>En pause ; valeurs actuelles</translation>
    </message>
    <message>
        <source>Values of now</source>
        <translation>Valeurs actuelles</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Écrit : %1</translation>
    </message>
    <message>
        <source>Values (*.csv)</source>
        <translation>Valeurs (*.csv)</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Image (*.png)</translation>
    </message>
    <message>
        <source>Save trend</source>
        <translation>Enregistrer la tendance</translation>
    </message>
    <message>
        <source>Trend saved: %1</source>
        <translation>Tendance enregistrée : %1</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>Re&amp;port...</source>
        <translation>R&amp;apport...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open device...</source>
        <translation>&amp;Ouvrir un appareil...</translation>
    </message>
    <message>
        <source>&amp;Recent devices</source>
        <translation>Appareils &amp;récents</translation>
    </message>
    <message>
        <source>Open s&amp;ite...</source>
        <translation>Ouvrir un s&amp;ite...</translation>
    </message>
    <message>
        <source>Open site</source>
        <translation>Ouvrir un site</translation>
    </message>
    <message>
        <source>Site files (*.json)</source>
        <translation>Fichiers de site (*.json)</translation>
    </message>
    <message>
        <source>Save site &amp;as...</source>
        <translation>Enregistrer le site &amp;sous...</translation>
    </message>
    <message>
        <source>Save site</source>
        <translation>Enregistrer le site</translation>
    </message>
    <message>
        <source>&amp;Close device</source>
        <translation>&amp;Fermer l&apos;appareil</translation>
    </message>
    <message>
        <source>Compare with &amp;file...</source>
        <translation>Comparer a&amp;vec un fichier...</translation>
    </message>
    <message>
        <source>Compare two &amp;devices...</source>
        <translation>Comparer deux a&amp;ppareils...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>À propos de &amp;Qt</translation>
    </message>
    <message>
        <source>&lt;h3&gt;ZorSmartControls Monitor %1&lt;/h3&gt;&lt;p&gt;Shows and edits the parameters of Modbus devices.&lt;/p&gt;&lt;p&gt;Qt %2, built with Qt %3&lt;br&gt;%4&lt;/p&gt;</source>
        <translation>&lt;h3&gt;ZorSmartControls Monitor %1&lt;/h3&gt;&lt;p&gt;Affiche et modifie les paramètres d&apos;appareils Modbus.&lt;/p&gt;&lt;p&gt;Qt %2, compilé avec Qt %3&lt;br&gt;%4&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Next device</source>
        <translation>Appareil &amp;suivant</translation>
    </message>
    <message>
        <source>&amp;Previous device</source>
        <translation>Appareil &amp;précédent</translation>
    </message>
    <message>
        <source>Open device</source>
        <translation>Ouvrir un appareil</translation>
    </message>
    <message>
        <source>This device cannot be opened:</source>
        <translation>Impossible d&apos;ouvrir cet appareil :</translation>
    </message>
    <message>
        <source>Compare two devices</source>
        <translation>Comparer deux appareils</translation>
    </message>
    <message>
        <source>Compare %1 with:</source>
        <translation>Comparer %1 avec :</translation>
    </message>
    <message>
        <source>There are edits that have not been written. Close the device all the same?</source>
        <translation>Des modifications n&apos;ont pas été écrites. Fermer tout de même l&apos;appareil ?</translation>
    </message>
    <message>
        <source>%1[*] - Monitor</source>
        <translation>%1[*] - Moniteur</translation>
    </message>
    <message>
        <source>ZorSmartControls Monitor[*]</source>
        <translation>Moniteur ZorSmartControls[*]</translation>
    </message>
    <message>
        <source>&amp;Find parameter</source>
        <translation>&amp;Chercher un paramètre</translation>
    </message>
    <message>
        <source>No parameter has &quot;%1&quot; in its tag, caption or last value</source>
        <translation>Aucun paramètre n&apos;a « %1 » dans son repère, son nom ou sa dernière valeur</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>&amp;Tool bar</source>
        <translation>&amp;Barre d&apos;outils</translation>
    </message>
    <message>
        <source>Not taken: this field cannot be edited now</source>
        <translation>Non pris : ce champ ne peut être modifié maintenant</translation>
    </message>
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
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>There are edits that have not been written. Close all the same?</source>
        <translation>Des modifications n&apos;ont pas été écrites. Fermer quand même ?</translation>
    </message>
    <message>
        <source>&amp;Save settings...</source>
        <translation>&amp;Enregistrer les réglages...</translation>
    </message>
    <message>
        <source>&amp;Load settings...</source>
        <translation>&amp;Charger des réglages...</translation>
    </message>
    <message>
        <source>Compare &amp;two files...</source>
        <translation>Comparer &amp;deux fichiers...</translation>
    </message>
    <message>
        <source>Look &amp;for devices...</source>
        <translation>C&amp;hercher des appareils...</translation>
    </message>
    <message>
        <source>This could not be opened:</source>
        <translation>Impossible à ouvrir :</translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simulé)</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>not written: the device has changed since the review</source>
        <translation>non écrit : l&apos;appareil a changé depuis la vérification</translation>
    </message>
    <message>
        <source>carried out, the device says, but it could not be read back; it is settled by the next read</source>
        <translation>exécuté, selon l&apos;appareil, mais la relecture a échoué ; la prochaine lecture en décidera</translation>
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
    <message>
        <source>the entry is not valid</source>
        <translation>la saisie n&apos;est pas valide</translation>
    </message>
    <message>
        <source>the entry is not a number</source>
        <translation>la saisie n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>the device cannot hold a number of this size</source>
        <translation>l&apos;appareil ne peut pas contenir un nombre de cette taille</translation>
    </message>
    <message>
        <source>the number is outside the limits</source>
        <translation>le nombre est hors limites</translation>
    </message>
    <message>
        <source>the text is too long for the device</source>
        <translation>le texte est trop long pour l&apos;appareil</translation>
    </message>
    <message>
        <source>the device has no such characters</source>
        <translation>l&apos;appareil ne connaît pas ces caractères</translation>
    </message>
    <message>
        <source>the parameter can only be read</source>
        <translation>le paramètre est en lecture seule</translation>
    </message>
    <message>
        <source>the device has not been read yet</source>
        <translation>l&apos;appareil n&apos;a pas encore été lu</translation>
    </message>
    <message>
        <source>two fields hold different values</source>
        <translation>deux champs contiennent des valeurs différentes</translation>
    </message>
    <message>
        <source>same</source>
        <translation>identique</translation>
    </message>
    <message>
        <source>different</source>
        <translation>différent</translation>
    </message>
    <message>
        <source>only in the file</source>
        <translation>seulement dans le fichier</translation>
    </message>
    <message>
        <source>not in the file</source>
        <translation>absent du fichier</translation>
    </message>
    <message>
        <source>can only be read</source>
        <translation>en lecture seule</translation>
    </message>
    <message>
        <source>cannot be held</source>
        <translation>impossible</translation>
    </message>
    <message>
        <source>%1: %2 characters at most</source>
        <translation>%1 : %2 caractères au plus</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1 : %2 à %3</translation>
    </message>
    <message>
        <source>%1: %2 or more</source>
        <translation>%1 : %2 ou plus</translation>
    </message>
    <message>
        <source>%1: %2 or less</source>
        <translation>%1 : %2 ou moins</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>the device does not have this parameter</source>
        <translation>l&apos;appareil n&apos;a pas ce paramètre</translation>
    </message>
</context>
<context>
    <name>advice</name>
    <message>
        <source>What answers does not keep to the protocol, or two programs talk on the same line; see the bytes in the frames.</source>
        <translation>Ce qui répond ne respecte pas le protocole, ou deux programmes parlent sur la même ligne ; voir les octets dans les trames.</translation>
    </message>
    <message>
        <source>Check baud rate, parity and stop bits, the termination of the line, and that nobody else is sending on it.</source>
        <translation>Vérifier la vitesse, la parité et les bits d&apos;arrêt, la terminaison de la ligne, et que personne d&apos;autre n&apos;y émet.</translation>
    </message>
    <message>
        <source>Wait a little; if it stays so, restart the device.</source>
        <translation>Attendre un peu ; si cela persiste, redémarrer l&apos;appareil.</translation>
    </message>
    <message>
        <source>The operating system says why; check cable, adapter and address.</source>
        <translation>Le système d&apos;exploitation dit pourquoi ; vérifier câble, adaptateur et adresse.</translation>
    </message>
    <message>
        <source>The host is there, but nothing listens on this port. Check the port (usually 502), that Modbus TCP is switched on in the device, and that it has a connection to spare.</source>
        <translation>L&apos;hôte est là, mais rien n&apos;écoute sur ce port. Vérifier le port (502 d&apos;habitude), que Modbus TCP est activé dans l&apos;appareil et qu&apos;il a encore une connexion libre.</translation>
    </message>
    <message>
        <source>The device may allow too few connections at a time, or only certain addresses. End other programs that are connected to it.</source>
        <translation>L&apos;appareil admet peut-être trop peu de connexions à la fois, ou seulement certaines adresses. Fermer les autres programmes qui y sont connectés.</translation>
    </message>
    <message>
        <source>Check the spelling of the name, or write the address in numbers.</source>
        <translation>Vérifier l&apos;orthographe du nom, ou donner l&apos;adresse en chiffres.</translation>
    </message>
    <message>
        <source>Check cable and link lamp, the address and mask of this computer, and the way (gateway) to the device&apos;s network.</source>
        <translation>Vérifier le câble et le voyant de liaison, l&apos;adresse et le masque de cet ordinateur, et le chemin (passerelle) vers le réseau de l&apos;appareil.</translation>
    </message>
    <message>
        <source>Check that the device is switched on, its address and cable, and that no firewall stands between. A slow network needs a longer timeout.</source>
        <translation>Vérifier que l&apos;appareil est sous tension, son adresse et son câble, et qu&apos;aucun pare-feu ne s&apos;interpose. Un réseau lent demande un délai plus long.</translation>
    </message>
    <message>
        <source>Check that the adapter is plugged in, and the name of the port.</source>
        <translation>Vérifier que l&apos;adaptateur est branché, et le nom du port.</translation>
    </message>
    <message>
        <source>End the program that has the port open; on Linux the user must be in the port&apos;s group, usually dialout.</source>
        <translation>Fermer le programme qui tient le port ouvert ; sous Linux l&apos;utilisateur doit être dans le groupe du port, dialout d&apos;habitude.</translation>
    </message>
    <message>
        <source>Check that the adapter is plugged in.</source>
        <translation>Vérifier que l&apos;adaptateur est branché.</translation>
    </message>
    <message>
        <source>Connected, but nothing came back. Check the unit number; behind a gateway also the wiring, baud rate and parity of its line. A slow device needs a longer timeout.</source>
        <translation>Connecté, mais rien n&apos;est revenu. Vérifier le numéro d&apos;esclave (unit) ; derrière une passerelle aussi le câblage, la vitesse et la parité de sa ligne. Un appareil lent demande un délai plus long.</translation>
    </message>
    <message>
        <source>Check the unit number, baud rate, parity and stop bits, the wiring (A and B may be exchanged) and that the device is switched on. A slow device needs a longer timeout.</source>
        <translation>Vérifier le numéro d&apos;esclave (unit), la vitesse, la parité et les bits d&apos;arrêt, le câblage (A et B peut-être inversés) et que l&apos;appareil est sous tension. Un appareil lent demande un délai plus long.</translation>
    </message>
    <message>
        <source>It is connected anew with the next request.</source>
        <translation>La connexion est refaite à la requête suivante.</translation>
    </message>
    <message>
        <source>What listens on this port is not Modbus TCP; check the port.</source>
        <translation>Ce qui écoute sur ce port n&apos;est pas Modbus TCP ; vérifier le port.</translation>
    </message>
    <message>
        <source>Check the unit number; on a serial line also baud rate and parity, and that no two devices have the same number.</source>
        <translation>Vérifier le numéro d&apos;esclave (unit) ; sur une ligne série aussi la vitesse et la parité, et que deux appareils n&apos;ont pas le même numéro.</translation>
    </message>
    <message>
        <source>Check the bank in the parameter file, and whether the device writes single registers or several.</source>
        <translation>Vérifier la banque dans le fichier de paramètres, et si l&apos;appareil écrit les registres un par un ou plusieurs à la fois.</translation>
    </message>
    <message>
        <source>Check bank and address in the parameter file: manuals often count from 1, 40001 or 30001. The device may also take fewer registers in a request, or no gaps between them.</source>
        <translation>Vérifier banque et adresse dans le fichier de paramètres : les manuels comptent souvent à partir de 1, 40001 ou 30001. L&apos;appareil accepte peut-être aussi moins de registres par requête, ou pas de trous entre eux.</translation>
    </message>
    <message>
        <source>Check the limits of the parameter in the device&apos;s manual.</source>
        <translation>Vérifier les limites du paramètre dans le manuel de l&apos;appareil.</translation>
    </message>
    <message>
        <source>The device needs repair.</source>
        <translation>L&apos;appareil doit être réparé.</translation>
    </message>
    <message>
        <source>Check the unit number and the gateway&apos;s table of units and lines.</source>
        <translation>Vérifier le numéro d&apos;esclave (unit) et la table des esclaves et des lignes de la passerelle.</translation>
    </message>
    <message>
        <source>The gateway is there, the device is not. Check the unit number, that the device is switched on, and the wiring, baud rate and parity of the gateway&apos;s line.</source>
        <translation>La passerelle est là, pas l&apos;appareil. Vérifier le numéro d&apos;esclave (unit), que l&apos;appareil est sous tension, et le câblage, la vitesse et la parité de la ligne de la passerelle.</translation>
    </message>
</context>
<context>
    <name>frames</name>
    <message>
        <source>address</source>
        <translation>adresse</translation>
    </message>
    <message>
        <source>count</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valeur</translation>
    </message>
    <message>
        <source>bits kept</source>
        <translation>bits gardés</translation>
    </message>
    <message>
        <source>bits set</source>
        <translation>bits mis à un</translation>
    </message>
    <message>
        <source>byte count</source>
        <translation>nombre d&apos;octets</translation>
    </message>
    <message>
        <source>coil</source>
        <translation>bit</translation>
    </message>
    <message>
        <source>register</source>
        <translation>registre</translation>
    </message>
    <message>
        <source>kind of request</source>
        <translation>type de requête</translation>
    </message>
    <message>
        <source>part</source>
        <translation>partie</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>conformity</source>
        <translation>conformité</translation>
    </message>
    <message>
        <source>more follows</source>
        <translation>suite</translation>
    </message>
    <message>
        <source>read coils</source>
        <translation>lire des bobines</translation>
    </message>
    <message>
        <source>read discrete inputs</source>
        <translation>lire des entrées TOR</translation>
    </message>
    <message>
        <source>read holding registers</source>
        <translation>lire des registres de maintien</translation>
    </message>
    <message>
        <source>read input registers</source>
        <translation>lire des registres d&apos;entrée</translation>
    </message>
    <message>
        <source>write a coil</source>
        <translation>écrire une bobine</translation>
    </message>
    <message>
        <source>write a register</source>
        <translation>écrire un registre</translation>
    </message>
    <message>
        <source>write coils</source>
        <translation>écrire des bobines</translation>
    </message>
    <message>
        <source>write registers</source>
        <translation>écrire des registres</translation>
    </message>
    <message>
        <source>masked write of a register</source>
        <translation>écrire un registre avec masque</translation>
    </message>
    <message>
        <source>device identification</source>
        <translation>identification de l&apos;appareil</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnue</translation>
    </message>
    <message>
        <source>function</source>
        <translation>fonction</translation>
    </message>
    <message>
        <source>exception</source>
        <translation>exception</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>en trop</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>esclave</translation>
    </message>
    <message>
        <source>transaction</source>
        <translation>transaction</translation>
    </message>
    <message>
        <source>protocol</source>
        <translation>protocole</translation>
    </message>
    <message>
        <source>length</source>
        <translation>longueur</translation>
    </message>
    <message>
        <source>off</source>
        <translation>arrêt</translation>
    </message>
    <message>
        <source>on</source>
        <translation>marche</translation>
    </message>
    <message>
        <source>neither on nor off</source>
        <translation>ni marche ni arrêt</translation>
    </message>
    <message>
        <source>checksum</source>
        <translation>somme de contrôle</translation>
    </message>
    <message>
        <source>right</source>
        <translation>correcte</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>incorrecte</translation>
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
        <translation>L&apos;appareil est occupé. Il sera interrogé à nouveau.</translation>
    </message>
    <message>
        <source>MSG_NOENTRY</source>
        <translation>est dans l&apos;appareil ; aucune entrée n&apos;a cette valeur.</translation>
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
    <message>
        <source>MSG_NEWVALUE</source>
        <translation>Modifié par un autre utilisateur : </translation>
    </message>
</context>
<context>
    <name>reasons</name>
    <message>
        <source>no complete answer in time</source>
        <translation>pas de réponse complète dans le délai</translation>
    </message>
    <message>
        <source>the connection was refused</source>
        <translation>la connexion a été refusée</translation>
    </message>
    <message>
        <source>the device closed the connection</source>
        <translation>l&apos;appareil a fermé la connexion</translation>
    </message>
    <message>
        <source>there is no such host</source>
        <translation>cet hôte n&apos;existe pas</translation>
    </message>
    <message>
        <source>the network does not reach the device</source>
        <translation>le réseau n&apos;atteint pas l&apos;appareil</translation>
    </message>
    <message>
        <source>a reply to another transaction</source>
        <translation>une réponse à une autre transaction</translation>
    </message>
    <message>
        <source>a reply in another protocol</source>
        <translation>une réponse dans un autre protocole</translation>
    </message>
    <message>
        <source>a reply of an impossible length</source>
        <translation>une réponse d&apos;une longueur impossible</translation>
    </message>
    <message>
        <source>a reply from another unit</source>
        <translation>une réponse d&apos;un autre esclave</translation>
    </message>
    <message>
        <source>more bytes than the reply has</source>
        <translation>plus d&apos;octets que la réponse n&apos;en a</translation>
    </message>
    <message>
        <source>a reply of another length than was asked for</source>
        <translation>une réponse d&apos;une autre longueur que demandé</translation>
    </message>
    <message>
        <source>an empty reply</source>
        <translation>une réponse vide</translation>
    </message>
    <message>
        <source>an exception of the wrong length</source>
        <translation>une exception de longueur incorrecte</translation>
    </message>
    <message>
        <source>a reply to another function</source>
        <translation>une réponse à une autre fonction</translation>
    </message>
    <message>
        <source>a reply to another write</source>
        <translation>une réponse à une autre écriture</translation>
    </message>
    <message>
        <source>the device does not know this function</source>
        <translation>l&apos;appareil ne connaît pas cette fonction</translation>
    </message>
    <message>
        <source>the device does not have this address</source>
        <translation>l&apos;appareil n&apos;a pas cette adresse</translation>
    </message>
    <message>
        <source>the device does not take this value</source>
        <translation>l&apos;appareil n&apos;accepte pas cette valeur</translation>
    </message>
    <message>
        <source>the device has failed</source>
        <translation>l&apos;appareil est en défaut</translation>
    </message>
    <message>
        <source>the device is still working on it</source>
        <translation>l&apos;appareil y travaille encore</translation>
    </message>
    <message>
        <source>the device is busy</source>
        <translation>l&apos;appareil est occupé</translation>
    </message>
    <message>
        <source>the device&apos;s memory is damaged</source>
        <translation>la mémoire de l&apos;appareil est endommagée</translation>
    </message>
    <message>
        <source>the gateway has no path to the device</source>
        <translation>la passerelle n&apos;a pas de chemin vers l&apos;appareil</translation>
    </message>
    <message>
        <source>the device behind the gateway does not answer</source>
        <translation>l&apos;appareil derrière la passerelle ne répond pas</translation>
    </message>
    <message>
        <source>the host does not answer</source>
        <translation>l&apos;hôte ne répond pas</translation>
    </message>
    <message>
        <source>there is no such serial port</source>
        <translation>ce port série n&apos;existe pas</translation>
    </message>
    <message>
        <source>the serial port cannot be opened</source>
        <translation>le port série ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>the serial port is gone</source>
        <translation>le port série a disparu</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>la connexion a été perdue</translation>
    </message>
    <message>
        <source>a wrong checksum</source>
        <translation>une somme de contrôle incorrecte</translation>
    </message>
    <message>
        <source>bytes that nobody asked for</source>
        <translation>des octets que personne n&apos;a demandés</translation>
    </message>
    <message>
        <source>another device</source>
        <translation>un autre appareil</translation>
    </message>
</context>
<context>
    <name>texts</name>
    <message>
        <source>larger than 16 MB</source>
        <translation>plus grand que 16 Mo</translation>
    </message>
    <message>
        <source>no controls of the library are on this form</source>
        <translation>aucun contrôle de la bibliothèque n&apos;est sur ce formulaire</translation>
    </message>
    <message>
        <source>the form is too large</source>
        <translation>le formulaire est trop grand</translation>
    </message>
    <message>
        <source>a character that XML does not have</source>
        <translation>un caractère que XML n&apos;a pas</translation>
    </message>
    <message>
        <source>%1 is not closed</source>
        <translation>%1 n&apos;est pas fermé</translation>
    </message>
    <message>
        <source>there is no form in it</source>
        <translation>il n&apos;y a pas de formulaire dedans</translation>
    </message>
    <message>
        <source>a name is missing</source>
        <translation>un nom manque</translation>
    </message>
    <message>
        <source>text outside the form</source>
        <translation>du texte hors du formulaire</translation>
    </message>
    <message>
        <source>document type definitions are not read</source>
        <translation>les définitions de type de document ne sont pas lues</translation>
    </message>
    <message>
        <source>only UTF-8 is read</source>
        <translation>seul UTF-8 est lu</translation>
    </message>
    <message>
        <source>a second root element</source>
        <translation>un second élément racine</translation>
    </message>
    <message>
        <source>the form has too many elements</source>
        <translation>le formulaire a trop d&apos;éléments</translation>
    </message>
    <message>
        <source>%1 is not a whole tag</source>
        <translation>%1 n&apos;est pas une balise entière</translation>
    </message>
    <message>
        <source>a tag that does not end</source>
        <translation>une balise qui ne finit pas</translation>
    </message>
    <message>
        <source>elements are nested too deeply</source>
        <translation>les éléments sont imbriqués trop profondément</translation>
    </message>
    <message>
        <source>an attribute without a value</source>
        <translation>un attribut sans valeur</translation>
    </message>
    <message>
        <source>an attribute&apos;s value without quotes</source>
        <translation>une valeur d&apos;attribut sans guillemets</translation>
    </message>
    <message>
        <source>an attribute&apos;s value that does not end</source>
        <translation>une valeur d&apos;attribut qui ne finit pas</translation>
    </message>
    <message>
        <source>%1 closes nothing</source>
        <translation>%1 ne ferme rien</translation>
    </message>
    <message>
        <source>%1 closes %2</source>
        <translation>%1 ferme %2</translation>
    </message>
    <message>
        <source>an entity that XML does not know</source>
        <translation>une entité que XML ne connaît pas</translation>
    </message>
    <message>
        <source>the form is not in UTF-8</source>
        <translation>le formulaire n&apos;est pas en UTF-8</translation>
    </message>
    <message>
        <source>is no form of Qt Designer</source>
        <translation>n&apos;est pas un formulaire de Qt Designer</translation>
    </message>
    <message>
        <source>a comment that does not end</source>
        <translation>un commentaire qui ne finit pas</translation>
    </message>
    <message>
        <source>a CDATA section that does not end</source>
        <translation>une section CDATA qui ne finit pas</translation>
    </message>
    <message>
        <source>an instruction that does not end</source>
        <translation>une instruction qui ne finit pas</translation>
    </message>
    <message>
        <source>the device did not answer for all parameters</source>
        <translation>l&apos;appareil n&apos;a pas répondu pour tous les paramètres</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>port %1</translation>
    </message>
    <message>
        <source>the last tab is %1</source>
        <translation>le dernier onglet est %1</translation>
    </message>
    <message>
        <source>no parameter that is a number</source>
        <translation>aucun paramètre qui soit un nombre</translation>
    </message>
    <message>
        <source>the device did not answer in %1 of %2 rounds</source>
        <translation>l&apos;appareil n&apos;a pas répondu dans %1 tours sur %2</translation>
    </message>
    <message>
        <source>the device has none of the parameters</source>
        <translation>l&apos;appareil n&apos;a aucun des paramètres</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>ne peut pas être écrit</translation>
    </message>
    <message>
        <source>warning: saved from a device of type %1, compared with %2</source>
        <translation>attention : enregistré depuis un appareil de type %1, comparé avec %2</translation>
    </message>
    <message>
        <source>warning: saved from version %1, compared with %2</source>
        <translation>attention : enregistré depuis la version %1, comparé avec %2</translation>
    </message>
    <message>
        <source>the device did not answer</source>
        <translation>l&apos;appareil n&apos;a pas répondu</translation>
    </message>
    <message>
        <source>the device has none of the parameters that can be written</source>
        <translation>l&apos;appareil n&apos;a aucun des paramètres qui peuvent être écrits</translation>
    </message>
    <message>
        <source>%1 settings saved</source>
        <translation>%1 réglages enregistrés</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>ne peut pas être écrit : %1</translation>
    </message>
    <message>
        <source>nothing has been written; with --yes it is</source>
        <translation>rien n&apos;a été écrit ; avec --yes, ce le sera</translation>
    </message>
    <message>
        <source>a parameter has 1 to %1 registers</source>
        <translation>un paramètre a de 1 à %1 registres</translation>
    </message>
    <message>
        <source>a tag is not empty</source>
        <translation>un identifiant n&apos;est pas vide</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no unit</source>
        <translation>&quot;%1&quot; n&apos;est pas une unité</translation>
    </message>
    <message>
        <source>only a number has a unit</source>
        <translation>seul un nombre a une unité</translation>
    </message>
    <message>
        <source>a settings file has the format &quot;%1&quot;</source>
        <translation>un fichier de réglages a le format &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no date like 2026-11-25T08:30:00Z</source>
        <translation>&quot;%1&quot; n&apos;est pas une date comme 2026-11-25T08:30:00Z</translation>
    </message>
    <message>
        <source>the tag &quot;%1&quot; stands twice</source>
        <translation>l&apos;identifiant &quot;%1&quot; s&apos;y trouve deux fois</translation>
    </message>
    <message>
        <source>same</source>
        <translation>identiques</translation>
    </message>
    <message>
        <source>different</source>
        <translation>différent</translation>
    </message>
    <message>
        <source>missing here</source>
        <translation>manque ici</translation>
    </message>
    <message>
        <source>missing there</source>
        <translation>manque là-bas</translation>
    </message>
    <message>
        <source>not writable</source>
        <translation>non inscriptible</translation>
    </message>
    <message>
        <source>unfit</source>
        <translation>impropre</translation>
    </message>
    <message>
        <source>not a value of this parameter</source>
        <translation>pas une valeur de ce paramètre</translation>
    </message>
    <message>
        <source>not a number in a unit of this parameter</source>
        <translation>pas un nombre dans une unité de ce paramètre</translation>
    </message>
    <message>
        <source>beyond what the device can hold</source>
        <translation>au-delà de ce que l&apos;appareil peut contenir</translation>
    </message>
    <message>
        <source>outside the limits</source>
        <translation>hors des limites</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>trop long</translation>
    </message>
    <message>
        <source>characters that the device does not have</source>
        <translation>des caractères que l&apos;appareil n&apos;a pas</translation>
    </message>
    <message>
        <source>can only be read</source>
        <translation>lecture seule</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>non lu</translation>
    </message>
    <message>
        <source>two different values</source>
        <translation>deux valeurs différentes</translation>
    </message>
    <message>
        <source>live</source>
        <translation>lu</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>non disponible</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>occupé</translation>
    </message>
    <message>
        <source>communication failure</source>
        <translation>échec de communication</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>pas de valeur</translation>
    </message>
    <message>
        <source>written</source>
        <translation>écrit</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>not sent</source>
        <translation>non envoyé</translation>
    </message>
    <message>
        <source>unconfirmed</source>
        <translation>non confirmé</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>diffère</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>non relu</translation>
    </message>
    <message>
        <source>overtaken</source>
        <translation>dépassé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands twice</source>
        <translation>&quot;%1&quot; s&apos;y trouve deux fois</translation>
    </message>
    <message>
        <source>%1 is a number from %2 to %3</source>
        <translation>%1 est un nombre de %2 à %3</translation>
    </message>
    <message>
        <source>%1 is one of %2</source>
        <translation>%1 est l&apos;un de %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known here</source>
        <translation>&quot;%1&quot; n&apos;est pas connu ici</translation>
    </message>
    <message>
        <source>a serial device is missing, as in rtu:/dev/ttyUSB0</source>
        <translation>il manque un port série, comme dans rtu:/dev/ttyUSB0</translation>
    </message>
    <message>
        <source>not a device; write tcp://HOST:PORT or rtu:DEVICE</source>
        <translation>pas un appareil ; écrivez tcp://HÔTE:PORT ou rtu:PORT</translation>
    </message>
    <message>
        <source>a number or a text</source>
        <translation>un nombre ou un texte</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>entries</source>
        <translation>des entrées</translation>
    </message>
    <message>
        <source>bits</source>
        <translation>des bits</translation>
    </message>
    <message>
        <source>a bit</source>
        <translation>un bit</translation>
    </message>
    <message>
        <source>bits or an integer without scale and unit</source>
        <translation>des bits ou un entier sans facteur ni unité</translation>
    </message>
    <message>
        <source>a %1 needs a minimum and a maximum</source>
        <translation>un %1 a besoin d&apos;un minimum et d&apos;un maximum</translation>
    </message>
    <message>
        <source>a %1 shows whole numbers only, without another unit than the device&apos;s</source>
        <translation>un %1 ne montre que des nombres entiers, sans autre unité que celle de l&apos;appareil</translation>
    </message>
    <message>
        <source>a %1 reaches from -2147483648 to 2147483647</source>
        <translation>un %1 va de -2147483648 à 2147483647</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of %2</source>
        <translation>&quot;%1&quot; n&apos;est aucun de %2</translation>
    </message>
    <message>
        <source>a %1 needs %2</source>
        <translation>un %1 a besoin de ce qui suit : %2</translation>
    </message>
    <message>
        <source>only a number without a unit has digits; a unit brings its own</source>
        <translation>seul un nombre sans unité a des décimales ; une unité apporte les siennes</translation>
    </message>
    <message>
        <source>only a number has limits</source>
        <translation>seul un nombre a des limites</translation>
    </message>
    <message>
        <source>the parameter&apos;s type cannot hold its %1</source>
        <translation>le type du paramètre ne peut pas contenir cette limite : %1</translation>
    </message>
    <message>
        <source>the parameter&apos;s type cannot hold the value %1</source>
        <translation>le type du paramètre ne peut pas contenir la valeur %1</translation>
    </message>
    <message>
        <source>the lists are of different length: each version belongs to the type at its place</source>
        <translation>les listes n&apos;ont pas la même longueur : chaque version appartient au type à sa place</translation>
    </message>
    <message>
        <source>a parameter has entries or bits, not both</source>
        <translation>un paramètre a des entrées ou des bits, pas les deux</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>imbriqué trop profondément</translation>
    </message>
    <message>
        <source>a text has at least one language</source>
        <translation>un texte a au moins une langue</translation>
    </message>
    <message>
        <source>a coil or a discrete input is of the type bit</source>
        <translation>une bobine (coil) ou une entrée discrète est du type bit</translation>
    </message>
    <message>
        <source>only a text has a number of registers</source>
        <translation>seul un texte a un nombre de registres</translation>
    </message>
    <message>
        <source>the parameter reaches beyond address 65535</source>
        <translation>le paramètre dépasse l&apos;adresse 65535</translation>
    </message>
    <message>
        <source>%1 stands twice</source>
        <translation>%1 s&apos;y trouve deux fois</translation>
    </message>
    <message>
        <source>an empty list</source>
        <translation>une liste vide</translation>
    </message>
    <message>
        <source>a period is longer than 0 seconds</source>
        <translation>une période est plus longue que 0 seconde</translation>
    </message>
    <message>
        <source>the unit shown is not of the type of the parameter&apos;s unit</source>
        <translation>l&apos;unité montrée n&apos;est pas du genre de l&apos;unité du paramètre</translation>
    </message>
    <message>
        <source>the maximum is less than the minimum</source>
        <translation>le maximum est inférieur au minimum</translation>
    </message>
    <message>
        <source>a scale is not 0</source>
        <translation>un facteur n&apos;est pas 0</translation>
    </message>
    <message>
        <source>only a number has a scale</source>
        <translation>seul un nombre a un facteur</translation>
    </message>
    <message>
        <source>a discrete input cannot be written</source>
        <translation>une entrée discrète ne peut pas être écrite</translation>
    </message>
    <message>
        <source>an input register cannot be written</source>
        <translation>un registre d&apos;entrée ne peut pas être écrit</translation>
    </message>
    <message>
        <source>only an integer without scale and unit has %1</source>
        <translation>seul un entier sans facteur ni unité a ceci : %1</translation>
    </message>
    <message>
        <source>what the device is comes as a text, its version also as uint16</source>
        <translation>ce qu&apos;est l&apos;appareil vient comme texte, sa version aussi comme uint16</translation>
    </message>
    <message>
        <source>the parameter is longer than a request may be</source>
        <translation>le paramètre est plus long qu&apos;une requête ne peut l&apos;être</translation>
    </message>
    <message>
        <source>no parameters</source>
        <translation>pas de paramètres</translation>
    </message>
    <message>
        <source>a text is expected here</source>
        <translation>un texte est attendu ici</translation>
    </message>
    <message>
        <source>true or false is expected here</source>
        <translation>true ou false est attendu ici</translation>
    </message>
    <message>
        <source>a number is expected here</source>
        <translation>un nombre est attendu ici</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 is expected here</source>
        <translation>un nombre entier de %1 à %2 est attendu ici</translation>
    </message>
    <message>
        <source>version %1 is expected here, and this program knows no other</source>
        <translation>la version %1 est attendue ici, et ce programme n’en connaît pas d’autre</translation>
    </message>
    <message>
        <source>a list is expected here</source>
        <translation>une liste est attendue ici</translation>
    </message>
    <message>
        <source>an object is expected here</source>
        <translation>un objet est attendu ici</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>&quot;%1&quot; manque</translation>
    </message>
    <message>
        <source>unit is a list of numbers from 0 to 255 and ranges, as in 1-10,17</source>
        <translation>unit est une liste de nombres de 0 à 255 et de plages, comme dans 1-10,17</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>nothing answers</source>
        <translation>rien ne répond</translation>
    </message>
    <message>
        <source>an empty text</source>
        <translation>un texte vide</translation>
    </message>
    <message>
        <source>a site file has the format &quot;%1&quot;</source>
        <translation>un fichier de site a le format &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is written by another device already</source>
        <translation>&quot;%1&quot; est déjà écrit par un autre appareil</translation>
    </message>
    <message>
        <source>a site has 1 to %1 devices</source>
        <translation>un site a de 1 à %1 appareils</translation>
    </message>
    <message>
        <source>the simulated device: %1</source>
        <translation>l&apos;appareil simulé : %1</translation>
    </message>
    <message>
        <source>no parameter has the tag &quot;%1&quot;</source>
        <translation>aucun paramètre n&apos;a l&apos;identifiant &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown class %1</source>
        <translation>classe inconnue %1</translation>
    </message>
    <message>
        <source>%1: no such property</source>
        <translation>%1 : cette propriété n&apos;existe pas</translation>
    </message>
    <message>
        <source>%1: %2 holds no value of the kind %3</source>
        <translation>%1 : %2 ne contient aucune valeur du genre %3</translation>
    </message>
    <message>
        <source>%1: follows from other properties and is not set</source>
        <translation>%1 : découle d&apos;autres propriétés et ne se règle pas</translation>
    </message>
    <message>
        <source>%1: a rectangle of whole pixels is expected</source>
        <translation>%1 : un rectangle en pixels entiers est attendu ici</translation>
    </message>
    <message>
        <source>this is the file of %1</source>
        <translation>c&apos;est le fichier de %1</translation>
    </message>
    <message>
        <source>holds something else than a record, and is left alone</source>
        <translation>contient autre chose qu&apos;un enregistrement et reste tel quel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file that is read</source>
        <translation>&quot;%1&quot; est un fichier qui est lu</translation>
    </message>
    <message>
        <source>no kind of picture that can be written</source>
        <translation>aucun type d&apos;image qui puisse être écrit</translation>
    </message>
    <message>
        <source>1 setting saved</source>
        <translation>1 réglage enregistré</translation>
    </message>
    <message>
        <source>this is not JSON</source>
        <translation>ce n&apos;est pas du JSON</translation>
    </message>
    <message>
        <source>this is not JSON, at %1</source>
        <translation>ce n&apos;est pas du JSON, à %1</translation>
    </message>
    <message>
        <source>another device answers since; it has not been compared</source>
        <translation>un autre appareil répond depuis ; il n&apos;a pas été comparé</translation>
    </message>
    <message>
        <source>the output cannot be written</source>
        <translation>la sortie ne peut pas être écrite</translation>
    </message>
    <message>
        <source>the device does not have this parameter</source>
        <translation>l&apos;appareil n&apos;a pas ce paramètre</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translation>confirmé</translation>
    </message>
    <message>
        <source>not carried out</source>
        <translation>non exécuté</translation>
    </message>
    <message>
        <source>the identity is longer than a request may be</source>
        <translation>l&apos;identité est plus longue qu&apos;une requête ne peut l&apos;être</translation>
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
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Volumetric Flow</source>
        <translation>Débit volumique</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Een bestandsnaam toevoegen</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Een map toevoegen</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Volgende maand</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialoogvenster</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Verwerkingswachtrij</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Het back-uplogboek vernieuwen</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Filterinstellingen</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Back-upbestemming</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Automatische configuratie mislukt. Stel de verbinding handmatig in.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Automatische configuratie voltooien...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>De verbindingssleutel is geconfigureerd.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>De computer wordt over %1 seconden afgesloten. Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Kies de mappen waarvan een back-up moet worden gemaakt</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Selecteer de lokale mappen waarvan een back-up moet worden gemaakt en de map op de server waarin ze worden bewaard.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Geen map geselecteerd</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Geavanceerd</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nee, bedankt</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Openen in Finder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Proxy-instellingen...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecteren</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Vertrouwen en doorgaan</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Nu starten</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppelen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Gemaakt op</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Voer de verificatiecode in</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradres</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Een beveiligde verbinding gebruiken (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Door te ontkoppelen worden alle back-uptaken van deze computer gestopt. Wilt u ontkoppelen van %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Ontkoppelen...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Verbinden met een koppelings-ID</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup is gereed.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup wordt geïnitialiseerd...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Er is een onverwachte fout opgetreden.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>De service voor automatische verbinding is niet beschikbaar.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>De koppelings-ID is ongeldig.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>De back-up is mislukt.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>De back-uptaak kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>De lokale database is beschadigd.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>De lokale schijf is vol.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>De server is vervangen. Koppel deze computer opnieuw.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>De server komt niet overeen met de server waarop deze taak is gemaakt.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>De back-upservice is uitgeschakeld op de server.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Initialisatie mislukt.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>De ingevoerde waarde is ongeldig.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Verbindingen vanaf dit IP-adres zijn niet toegestaan.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>De lokale map %1 kan niet worden gevonden.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Te veel mislukte pogingen. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>Het netwerk is niet beschikbaar.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Er is geen geldige map om een back-up van te maken.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Voor dit account is verificatie in twee stappen vereist.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>De verificatiecode is ongeldig.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Voer de verificatiecode in.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>De server heeft een onverwacht antwoord gestuurd.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Uw wachtwoord is verlopen.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>Het quotum van de bestemming is vol.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>De gedeelde map is niet gekoppeld.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>U hebt geen toestemming om deze gedeelde map te openen.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Het certificaat van de server is gewijzigd.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Het certificaat van de server kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>De back-uprichting komt niet overeen met de serverinstellingen.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>De doelmap is niet gekoppeld.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Verbindingen via de relayservice zijn uitgeschakeld.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>De service voor thuismappen van gebruikers is uitgeschakeld.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>De gebruikersgegevens zijn niet beschikbaar.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>U hebt niet de bevoegdheid om deze service te gebruiken.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Deze versie van Skelda Backup is te oud. Voer een upgrade uit.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>De serverversie wordt niet ondersteund.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Aanpassen</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumbereik</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Trefwoord</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Vorige week</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Opnieuw instellen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vrijdag</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Nog geen geschiedenis</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Zoeken naar servers in het lokale netwerk...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Laatste back-up: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>Nog %1 bestanden te verwerken</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>%1 verwerken</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Voltooid</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Vergrendeld</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Voorbereiden</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Wachtrij</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploaden</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wachten</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinden...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Back-up maken...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up-to-date</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Instellingen toepassen...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Maandag</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Augustus</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februari</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januari</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Maart</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mei</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>Over Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Wachtwoord controleren...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download voltooid.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloaden...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Kan de back-uptaken niet laden.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>De map bestaat niet.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>Het quotum van de gedeelde map %1 is vol.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>Het certificaat van %1 is gewijzigd sinds de laatste verbinding.\nVertrouwt u het nieuwe certificaat?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>Het certificaat van %1 wordt niet vertrouwd.\nWilt u toch doorgaan?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbinding testen...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>De gebruikersnaam kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Volgende %1 pagina&apos;s</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Opruimen</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum en tijd</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Downloaden</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Versies bekijken</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorige %1 pagina&apos;s</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>U kunt bestanden in deze map alleen lezen.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Zaterdag</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>De computer afsluiten na de back-up</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Voor het afsluiten van de computer zijn beheerdersbevoegdheden vereist.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>De back-up is geannuleerd.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Back-updagen</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Een bureaubladmelding weergeven wanneer een back-up is beëindigd</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>De back-up is voltooid.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Back-upmodus</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Nu back-up maken</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Back-upschema</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Back-uptijden</translation>
    </message>
    <message>
        <source>times</source>
        <translation>keer</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Kies een back-upmodus</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Maak een back-up van wijzigingen zodra ze plaatsvinden, volgens een schema of alleen wanneer u dat vraagt.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Wilt u nu een back-up starten?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Wilt u de lopende back-up stoppen?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Gemiste back-ups uitvoeren</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Een geplande back-up starten die is gemist terwijl de computer uit stond.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Selecteer ten minste één dag.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Elke dag</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Eerste uitvoeringstijd</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Tijd van laatste back-up</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Handmatige back-up</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Tijd van volgende back-up</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Eenmaal per dag</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Realtime back-up</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>uur</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Uitvoeren elke</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Geplande back-up</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Het back-upschema instellen</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Kies de dagen en tijden waarop de back-up wordt uitgevoerd.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Zondag</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Momentopnamen maken…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donderdag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dinsdag</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Het back-upschema kan niet worden bijgewerkt.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Woensdag</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Werkdagen</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Weekend</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Bestanden op de bestemming behouden wanneer ze lokaal worden verwijderd</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale bestandsgrootte</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Bestanden overslaan waarvan de naam met een punt begint</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Van bestanden die groter zijn dan deze grootte wordt geen back-up gemaakt.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Van bestanden met deze extensies wordt geen back-up gemaakt.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Voer een bestandsextensie in, zoals tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Over te slaan bestandsextensies</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 betekent geen limiet.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systeemstandaard</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>De nieuwe taal wordt van kracht nadat Skelda Backup opnieuw is gestart.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Weergavetaal</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Skelda Backup starten wanneer ik me aanmeld</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Een zwart-wit pictogram in de menubalk gebruiken</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>De proxyserver vereist verificatie</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Voer de gebruikersnaam van de proxy in.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>De poort moet een getal van 1 tot 65535 zijn.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Voer het adres en de poort van de proxy in.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Handmatige proxyconfiguratie</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Geen proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Proxy-instellingen van het systeem gebruiken</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbinding</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Back-upmappen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Gelijk aan</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Groter dan</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Kleiner dan</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Bestandsgrootte</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Tijdelijk bestand</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Uur</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuut</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Maand</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Week</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Beveiligingswaarschuwing</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Recente activiteit</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Verwijderde bestanden verbergen</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Verwijderde bestanden weergeven</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Er is een nieuwe versie beschikbaar. Klik om bij te werken.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Er is een nieuwe versie, %1, beschikbaar. Klik om bij te werken.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Skelda Backup openen</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Bijwerken...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgraden</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Deze computer</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Kies een map op %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>De upgrade is mislukt.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>De toegang tot de doelmap is geweigerd.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Aanmelden mislukt. Controleer uw gebruikersnaam en wachtwoord.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>Er is een nieuwere versie van Skelda Backup vereist om verbinding te maken met deze server.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Kan geen upgrade van Skelda Backup uitvoeren. Download de nieuwste versie.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Van de map %1 wordt al een back-up gemaakt door een andere taak.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>De doelmap wordt al door een andere taak gebruikt.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Voer het adres van uw server en uw accountgegevens in.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Verbinding maken met uw server</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Er is niet genoeg ruimte op de bestemming.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Servers zoeken in het lokale netwerk</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>De doelmap is ongeldig.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>De bestemming is niet bereikbaar door een netwerkfout.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>Het quotum van de doelmap is vol.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Sommige bronmappen zijn alleen-lezen. Er wordt wel een back-up van gemaakt, maar er kunnen geen bestanden in worden teruggezet.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>De doelmap is alleen-lezen.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>De back-uptaak kan niet worden geregistreerd op de server.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Kies waar uw bestanden op de server worden bewaard.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>De doelmap instellen</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Er bestaat al een gedeelde map met deze naam.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>De gedeelde map van de bestemming bestaat niet.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>De bronmap %1 is alleen-lezen.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Het certificaat van de bestemming is gewijzigd.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Het certificaat van de bestemming kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Controleer de onderstaande instellingen en klik op Voltooien om de back-up te starten.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Uitgesloten mappen</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Bronmappen</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pad</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Er is een systeemfout opgetreden op de bestemming.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>De bestemming is van een andere gebruiker.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Uw account is uitgeschakeld op de bestemming.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup bewaart kopieën van uw mappen op uw server.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Hulp nodig? Bezoek ons kenniscentrum.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Met deze wizard stelt u uw eerste back-uptaak in.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Uw bestanden, veilig en wel</translation>
    </message>
</context>
</TS>

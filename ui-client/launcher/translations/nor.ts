<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Legg til et filnavn</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Legg til en mappe</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Neste måned</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialogboks</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informasjon</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Behandlingskø</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Oppdater sikkerhetskopieringsloggen</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Filterinnstillinger</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Mål for sikkerhetskopi</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Det automatiske oppsettet mislyktes. Konfigurer tilkoblingen manuelt.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Fullfører det automatiske oppsettet...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>Tilkoblingsnøkkelen er konfigurert.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>Datamaskinen slås av om %1 sekunder. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Velg mappene som skal sikkerhetskopieres</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Velg de lokale mappene som skal sikkerhetskopieres, og mappen på serveren som skal ta vare på dem.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ingen mappe er valgt</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avansert</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nei takk</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nå</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Åpne i Finder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Proxyinnstillinger...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Velg</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Stol på og fortsett</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koble fra</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nei</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Klokkeslett</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Skriv inn bekreftelseskoden</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Bruk en sikker tilkobling (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Hvis du kobler fra, stoppes alle sikkerhetskopieringsoppgaver på denne datamaskinen. Vil du koble fra %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Kobler fra...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Koble til med en tilknytnings-ID</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup er klar.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup initialiseres...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Det oppstod en uventet feil.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Brukernavnet eller passordet er feil.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Tjenesten for automatisk tilkobling er ikke tilgjengelig.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>Tilknytnings-ID-en er ugyldig.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>Sikkerhetskopieringen mislyktes.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Kunne ikke opprette sikkerhetskopieringsoppgaven.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>Den lokale databasen er skadet.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>Den lokale disken er full.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>Serveren er byttet ut. Koble til denne datamaskinen på nytt.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>Serveren samsvarer ikke med den denne oppgaven ble opprettet på.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>Sikkerhetskopieringstjenesten er deaktivert på serveren.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Initialiseringen mislyktes.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>Den angitte verdien er ugyldig.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Tilkoblinger fra denne IP-adressen er ikke tillatt.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Finner ikke den lokale mappen %1.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>For mange mislykkede forsøk. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>Nettverket er ikke tilgjengelig.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Det finnes ingen gyldig mappe å sikkerhetskopiere.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Totrinnsbekreftelse kreves for denne kontoen.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Bekreftelseskoden er ugyldig.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Skriv inn bekreftelseskoden.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>Serveren sendte et uventet svar.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Passordet ditt er utløpt.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>Kvoten for målet er brukt opp.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>Den delte mappen er ikke montert.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Du har ikke tillatelse til å få tilgang til denne delte mappen.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Serverens sertifikat er endret.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Kunne ikke bekrefte serverens sertifikat.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>Retningen for sikkerhetskopieringen samsvarer ikke med serverinnstillingene.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>Målmappen er ikke montert.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Tilkoblinger via relétjenesten er deaktivert.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>Tjenesten for brukernes hjemmemapper er deaktivert.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>Brukerinformasjonen er ikke tilgjengelig.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Du har ikke rettigheter til å bruke denne tjenesten.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Denne versjonen av Skelda Backup er for gammel. Oppgrader den.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>Serverversjonen støttes ikke.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Tilpass</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datoområde</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Nøkkelord</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Forrige uke</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Tilbakestill</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Fredag</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementer</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Ingen historikk ennå</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Siste side</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Søker etter servere på det lokale nettverket...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Siste sikkerhetskopi: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>%1 filer gjenstår å behandle</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Behandler %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fremdrift</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Fullført</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Låst</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Forbereder</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Kø</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Laster opp</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kobler til...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Satt på pause</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sikkerhetskopierer...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Oppdatert</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tar i bruk innstillingene...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Mandag</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Desember</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
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
        <translation>Mars</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
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
        <translation>Om Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Kontrollerer passordet...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Nedlastingen er fullført.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislyktes</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Kunne ikke laste inn sikkerhetskopieringsoppgavene.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Mappen finnes ikke.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>Kvoten for den delte mappen %1 er brukt opp.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>Sertifikatet for %1 er endret siden forrige tilkobling.\nStoler du på det nye sertifikatet?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>Sertifikatet for %1 er ikke klarert.\nVil du fortsette likevel?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester tilkoblingen...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Kunne ikke bekrefte brukernavnet.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Neste %1 sider</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Rydd opp</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og klokkeslett</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Last ned</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Gjenopprett</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Bla gjennom versjoner</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Forrige %1 sider</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>Du kan bare lese filer i denne mappen.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Lørdag</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Slå av datamaskinen etter sikkerhetskopieringen</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Du må ha administratorrettigheter for å slå av datamaskinen.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>Sikkerhetskopieringen ble avbrutt.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Dager for sikkerhetskopiering</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Vis et skrivebordsvarsel når en sikkerhetskopiering er ferdig</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Sikkerhetskopieringen er fullført.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Sikkerhetskopieringsmodus</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Sikkerhetskopier nå</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Sikkerhetskopieringsplan</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Tidspunkter for sikkerhetskopiering</translation>
    </message>
    <message>
        <source>times</source>
        <translation>ganger</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Velg en sikkerhetskopieringsmodus</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Sikkerhetskopier endringer etter hvert som de skjer, etter en tidsplan eller bare når du ber om det.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Vil du starte en sikkerhetskopiering nå?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Vil du stoppe sikkerhetskopieringen som pågår?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Kjør tapte sikkerhetskopieringer</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Start en planlagt sikkerhetskopiering som ikke ble kjørt mens datamaskinen var slått av.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Velg minst én dag.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Hver dag</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Første kjøretidspunkt</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Tidspunkt for siste sikkerhetskopi</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Manuell sikkerhetskopiering</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Tidspunkt for neste sikkerhetskopi</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Én gang om dagen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>On</source>
        <translation>På</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Sikkerhetskopiering i sanntid</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>timer</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Kjør med et intervall på</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Planlagt sikkerhetskopiering</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Angi sikkerhetskopieringsplanen</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Velg dagene og tidspunktene da sikkerhetskopieringen skal kjøres.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Søndag</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Tar øyeblikksbilder…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Torsdag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tirsdag</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Kunne ikke oppdatere sikkerhetskopieringsplanen.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Onsdag</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Ukedager</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Helg</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Behold filer på målet når de slettes lokalt</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Hopp over filer med navn som begynner med punktum</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Filer som er større enn denne størrelsen, sikkerhetskopieres ikke.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Filer med disse filtypene sikkerhetskopieres ikke.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Skriv inn en filtype, for eksempel tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Filtyper som skal hoppes over</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 betyr ingen grense.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>Det nye språket tas i bruk når Skelda Backup startes på nytt.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Visningsspråk</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Start Skelda Backup når jeg logger på</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Bruk et svart-hvitt ikon på menylinjen</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxyserveren krever autentisering</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Skriv inn brukernavnet for proxyen.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Porten må være et tall fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Skriv inn proxyadressen og porten.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuell proxykonfigurasjon</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Bruk systemets proxyinnstillinger</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Tilkobling</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Sikkerhetskopierte mapper</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativer</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktivert</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Lik</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Større enn</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Mindre enn</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Filstørrelse</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Midlertidig fil</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minutt</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Måned</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Uke</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Sikkerhetsadvarsel</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Nylig aktivitet</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Skjul fjernede filer</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Vis fjernede filer</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>En ny versjon er tilgjengelig. Klikk for å oppdatere.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>En ny versjon, %1, er tilgjengelig. Klikk for å oppdatere.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Åpne Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Oppdaterer...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Oppgrader</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne datamaskinen</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Velg en mappe på %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>Oppgraderingen mislyktes.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versjon %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Tilgang til målmappen ble nektet.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Påloggingen mislyktes. Kontroller brukernavnet og passordet.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>Du trenger en nyere versjon av Skelda Backup for å koble til denne serveren.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Kunne ikke oppgradere Skelda Backup. Last ned den nyeste versjonen.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Mappen %1 sikkerhetskopieres allerede av en annen oppgave.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>Målmappen brukes allerede av en annen oppgave.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Skriv inn adressen til serveren og kontoopplysningene dine.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Koble til serveren din</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Det er ikke nok plass på målet.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Finn servere på det lokale nettverket</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>Målmappen er ugyldig.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Målet kan ikke nås på grunn av en nettverksfeil.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>Kvoten for målmappen er brukt opp.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Noen kildemapper er skrivebeskyttet. De blir sikkerhetskopiert, men filer kan ikke gjenopprettes til dem.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>Målmappen er skrivebeskyttet.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Kunne ikke registrere sikkerhetskopieringsoppgaven på serveren.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Velg hvor på serveren filene dine skal oppbevares.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Angi målmappen</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Det finnes allerede en delt mappe med dette navnet.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>Den delte mappen for målet finnes ikke.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>Kildemappen %1 er skrivebeskyttet.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Målets sertifikat er endret.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Kunne ikke bekrefte målets sertifikat.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Kontroller innstillingene nedenfor, og klikk deretter på Ferdig for å starte sikkerhetskopieringen.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Ekskluderte mapper</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Kildemapper</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Bane</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammendrag</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Det oppstod en systemfeil på målet.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>Målet tilhører en annen bruker.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Kontoen din er deaktivert på målet.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup tar vare på kopier av mappene dine på serveren din.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Trenger du hjelp? Besøk kunnskapssenteret vårt.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Denne veiviseren hjelper deg med å konfigurere din første sikkerhetskopieringsoppgave.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Filene dine i trygge hender</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Tilføj et filnavn</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Tilføj en mappe</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Næste måned</translation>
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
        <translation>Oplysninger</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Behandlingskø</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Opdater backuploggen</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Filterindstillinger</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Backupdestination</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Den automatiske opsætning mislykkedes. Opsæt forbindelsen manuelt.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Afslutter den automatiske opsætning...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>Forbindelsesnøglen er konfigureret.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>Computeren lukkes ned om %1 sekunder. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Vælg de mapper, der skal sikkerhedskopieres</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Vælg de lokale mapper, der skal sikkerhedskopieres, og den mappe på serveren, som skal opbevare dem.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ingen mappe valgt</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanceret</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tak</translation>
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
        <translation>Åbn i Finder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Proxyindstillinger...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vælg</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Stol på og fortsæt</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oprettet</translation>
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
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Indtast bekræftelseskoden</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Brug en sikker forbindelse (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Hvis du fjerner tilknytningen, stoppes alle backupopgaver på denne computer. Vil du fjerne tilknytningen til %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Opret forbindelse med et tilknytnings-id</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brugernavn</translation>
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
        <translation>Der opstod en uventet fejl.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Brugernavnet eller adgangskoden er forkert.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Tjenesten til automatisk forbindelse er ikke tilgængelig.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>Tilknytnings-id&apos;et er ugyldigt.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>Backuppen mislykkedes.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Backupopgaven kunne ikke oprettes.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>Den lokale database er beskadiget.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>Den lokale disk er fuld.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>Serveren er blevet udskiftet. Tilknyt denne computer igen.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>Serveren svarer ikke til den, som denne opgave blev oprettet på.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>Backuptjenesten er deaktiveret på serveren.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Initialiseringen mislykkedes.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>Den indtastede værdi er ugyldig.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Forbindelser fra denne IP-adresse er ikke tilladt.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Den lokale mappe %1 blev ikke fundet.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>For mange mislykkede forsøg. Prøv igen senere.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>Netværket er ikke tilgængeligt.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Der er ingen gyldig mappe at sikkerhedskopiere.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Totrinsbekræftelse er påkrævet for denne konto.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Bekræftelseskoden er ugyldig.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Indtast bekræftelseskoden.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>Serveren sendte et uventet svar.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Din adgangskode er udløbet.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>Destinationens kvote er opbrugt.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>Den delte mappe er ikke monteret.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Du har ikke tilladelse til at få adgang til denne delte mappe.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Serverens certifikat er ændret.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Serverens certifikat kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>Backupretningen svarer ikke til serverindstillingerne.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>Destinationsmappen er ikke monteret.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Forbindelser via relætjenesten er deaktiveret.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>Tjenesten til brugerhjemmemapper er deaktiveret.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>Brugeroplysningerne er ikke tilgængelige.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Du har ikke rettigheder til at bruge denne tjeneste.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Denne version af Skelda Backup er for gammel. Opgrader den.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>Serverversionen understøttes ikke.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Tilpas</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointerval</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Nøgleord</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Sidste måned</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Sidste uge</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
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
        <translation>Ingen historik endnu</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Søger efter servere på det lokale netværk...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Seneste backup: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>%1 filer tilbage at behandle</translation>
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
        <translation>Forløb</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Fuldført</translation>
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
        <translation>Uploader</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Opretter forbindelse...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sat på pause</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sikkerhedskopierer...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Anvender indstillinger...</translation>
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
        <translation>December</translation>
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
        <translation>Marts</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
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
        <translation>Kontrollerer adgangskoden...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download fuldført.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislykkedes</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Backupopgaverne kunne ikke indlæses.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Mappen findes ikke.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>Kvoten for den delte mappe %1 er opbrugt.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>Certifikatet for %1 er ændret siden sidste forbindelse.\nStoler du på det nye certifikat?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>Certifikatet for %1 er ikke tillidsvækkende.\nVil du fortsætte alligevel?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Brugernavnet kan ikke bekræftes.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Næste %1 sider</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Ryd op</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og klokkeslæt</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Gendan</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Gennemse versioner</translation>
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
        <translation>Du kan kun læse filer i denne mappe.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Lørdag</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Luk computeren ned efter backuppen</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Nedlukning af computeren kræver administratorrettigheder.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>Backuppen blev annulleret.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Backupdage</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Vis en skrivebordsmeddelelse, når en backup slutter</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Backuppen er fuldført.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Backuptilstand</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Sikkerhedskopier nu</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Backupplan</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Backuptidspunkter</translation>
    </message>
    <message>
        <source>times</source>
        <translation>gange</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Vælg en backuptilstand</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Sikkerhedskopier ændringer, efterhånden som de sker, efter en tidsplan eller kun når du beder om det.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Vil du starte en backup nu?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Vil du stoppe den igangværende backup?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Kør mistede backups</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Start en planlagt backup, der blev sprunget over, mens computeren var slukket.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Vælg mindst én dag.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Hver dag</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Første kørselstidspunkt</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Tidspunkt for seneste backup</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Manuel backup</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Tidspunkt for næste backup</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Én gang om dagen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Slået fra</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Slået til</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Backup i realtid</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>timer</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Kør med et interval på</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Planlagt backup</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Angiv backupplanen</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Vælg de dage og tidspunkter, hvor backuppen skal køre.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Søndag</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Tager snapshots…</translation>
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
        <translation>Backupplanen kunne ikke opdateres.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Onsdag</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Hverdage</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Weekend</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Behold filer på destinationen, når de slettes lokalt</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Spring filer over, hvis navne begynder med et punktum</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Filer, der er større end denne størrelse, sikkerhedskopieres ikke.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Filer med disse filtypenavne sikkerhedskopieres ikke.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Indtast et filtypenavn, f.eks. tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Filtypenavne, der skal springes over</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 betyder ingen grænse.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>Det nye sprog træder i kraft, når Skelda Backup genstartes.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Visningssprog</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Start Skelda Backup, når jeg logger på</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Brug et sort-hvidt ikon på menulinjen</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxyserveren kræver godkendelse</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Indtast proxybrugernavnet.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Porten skal være et tal fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Indtast proxyadressen og porten.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuel proxykonfiguration</translation>
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
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Forbindelse</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Backupmapper</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiveret</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Lig med</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Større end</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Mindre end</translation>
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
        <translation>Minut</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Måned</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Uge</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Sikkerhedsadvarsel</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Seneste aktivitet</translation>
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
        <translation>Der er en ny version tilgængelig. Klik for at opdatere.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>En ny version, %1, er tilgængelig. Klik for at opdatere.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Åbn Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Opdaterer...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Opgrader</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne computer</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Vælg en mappe på %1</translation>
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
        <translation>Opgraderingen mislykkedes.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Adgang til destinationsmappen blev nægtet.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Login mislykkedes. Kontrollér dit brugernavn og din adgangskode.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>Der kræves en nyere version af Skelda Backup for at oprette forbindelse til denne server.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Skelda Backup kunne ikke opgraderes. Download den nyeste version.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Mappen %1 sikkerhedskopieres allerede af en anden opgave.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>Destinationsmappen bruges allerede af en anden opgave.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Indtast adressen på din server og dine kontooplysninger.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Opret forbindelse til din server</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Der er ikke nok plads på destinationen.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Find servere på det lokale netværk</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>Destinationsmappen er ugyldig.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Destinationen kan ikke nås på grund af en netværksfejl.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>Destinationsmappens kvote er opbrugt.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Nogle kildemapper er skrivebeskyttede. De bliver sikkerhedskopieret, men filer kan ikke gendannes til dem.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>Destinationsmappen er skrivebeskyttet.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Backupopgaven kunne ikke registreres på serveren.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Vælg, hvor på serveren dine filer skal opbevares.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Angiv destinationsmappen</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Der findes allerede en delt mappe med dette navn.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>Destinationens delte mappe findes ikke.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>Kildemappen %1 er skrivebeskyttet.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Destinationens certifikat er ændret.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Destinationens certifikat kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Kontrollér indstillingerne nedenfor, og klik derefter på Udfør for at starte backuppen.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Udeladte mapper</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Kildemapper</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Sti</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Der opstod en systemfejl på destinationen.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>Destinationen tilhører en anden bruger.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Din konto er deaktiveret på destinationen.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup opbevarer kopier af dine mapper på din server.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Brug for hjælp? Besøg vores videncenter.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Denne guide hjælper dig med at opsætte din første backupopgave.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Dine filer i god behold</translation>
    </message>
</context>
</TS>

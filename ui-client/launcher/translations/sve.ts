<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Lägg till ett filnamn</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Lägg till en mapp</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nästa månad</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Föregående månad</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialogruta</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Bearbetningskö</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Uppdatera säkerhetskopieringsloggen</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Filterinställningar</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Mål för säkerhetskopiering</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Den automatiska konfigurationen misslyckades. Konfigurera anslutningen manuellt.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Slutför den automatiska konfigurationen...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>Anslutningsnyckeln har konfigurerats.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>Datorn stängs av om %1 sekunder. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Välj mappar att säkerhetskopiera</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Välj de lokala mappar som ska säkerhetskopieras och den mapp på servern där de ska lagras.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ingen mapp har valts</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancerat</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tack</translation>
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
        <translation>Öppna i Finder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Proxyinställningar...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Välj</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Lita på och fortsätt</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koppla från</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Ange verifieringskoden</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradress</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Använd en säker anslutning (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Om du kopplar från stoppas alla säkerhetskopieringsuppgifter på den här datorn. Vill du koppla från %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Kopplar från...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Anslut med ett länk-ID</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup är redo.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup initieras...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Ett oväntat fel uppstod.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Användarnamnet eller lösenordet är felaktigt.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Tjänsten för automatisk anslutning är inte tillgänglig.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>Länk-ID:t är ogiltigt.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>Säkerhetskopieringen misslyckades.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Det gick inte att skapa säkerhetskopieringsuppgiften.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>Den lokala databasen är skadad.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>Den lokala disken är full.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>Servern har bytts ut. Länka den här datorn igen.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>Servern stämmer inte överens med den som uppgiften skapades på.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>Säkerhetskopieringstjänsten är inaktiverad på servern.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Initieringen misslyckades.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>Det angivna värdet är ogiltigt.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Anslutningar från den här IP-adressen tillåts inte.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Det går inte att hitta den lokala mappen %1.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>För många misslyckade försök. Försök igen senare.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>Nätverket är inte tillgängligt.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Det finns ingen giltig mapp att säkerhetskopiera.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Tvåstegsverifiering krävs för det här kontot.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Verifieringskoden är ogiltig.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Ange verifieringskoden.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>Servern skickade ett oväntat svar.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Ditt lösenord har upphört att gälla.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>Målets kvot är full.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>Den delade mappen är inte monterad.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Du har inte behörighet att komma åt den här delade mappen.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Serverns certifikat har ändrats.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Det gick inte att verifiera serverns certifikat.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>Säkerhetskopieringens riktning stämmer inte med serverinställningarna.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>Målmappen är inte monterad.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Anslutningar via relätjänsten är inaktiverade.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>Tjänsten för användarnas hemmappar är inaktiverad.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>Användarinformationen är inte tillgänglig.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Du har inte behörighet att använda den här tjänsten.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Den här versionen av Skelda Backup är för gammal. Uppgradera den.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>Serverversionen stöds inte.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Anpassa</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumintervall</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Från</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Nyckelord</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Förra månaden</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Förra veckan</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nollställ</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Igår</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Första sidan</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Fredag</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 objekt</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Ingen historik ännu</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sista sidan</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Söker efter servrar i det lokala nätverket...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Senaste säkerhetskopiering: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>%1 filer återstår att bearbeta</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Bearbetar %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Slutförd</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Låst</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Förbereder</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Kö</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Laddar upp</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Väntar</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Säkerhetskopierar...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Uppdaterad</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tillämpar inställningar...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Måndag</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Augusti</translation>
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
        <translation>Mars</translation>
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
        <translation>Kontrollerar lösenordet...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Nedladdningen är klar.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laddar ned...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Misslyckades</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Det gick inte att läsa in säkerhetskopieringsuppgifterna.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Mappen finns inte.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>Kvoten för den delade mappen %1 är full.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>Certifikatet för %1 har ändrats sedan den senaste anslutningen.\nLitar du på det nya certifikatet?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>Certifikatet för %1 är inte betrott.\nVill du fortsätta ändå?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Det går inte att verifiera användarnamnet.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nästa %1 sidor</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum och tid</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Ladda ned</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Bläddra bland versioner</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Föregående %1 sidor</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>Du kan bara läsa filer i den här mappen.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Lördag</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Stäng av datorn efter säkerhetskopieringen</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Det krävs administratörsbehörighet för att stänga av datorn.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>Säkerhetskopieringen avbröts.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Dagar för säkerhetskopiering</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Visa ett skrivbordsmeddelande när en säkerhetskopiering avslutas</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Säkerhetskopieringen är klar.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Säkerhetskopieringsläge</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Säkerhetskopiera nu</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Säkerhetskopieringsschema</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Tider för säkerhetskopiering</translation>
    </message>
    <message>
        <source>times</source>
        <translation>gånger</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Välj ett säkerhetskopieringsläge</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Säkerhetskopiera ändringar när de sker, enligt ett schema eller bara när du begär det.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Vill du starta en säkerhetskopiering nu?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Vill du stoppa den pågående säkerhetskopieringen?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Kör missade säkerhetskopieringar</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Starta en schemalagd säkerhetskopiering som missades medan datorn var avstängd.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Välj minst en dag.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Varje dag</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Första körningstid</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Tid för senaste säkerhetskopiering</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Manuell säkerhetskopiering</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Tid för nästa säkerhetskopiering</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>En gång om dagen</translation>
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
        <translation>Säkerhetskopiering i realtid</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>timmar</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Kör med ett intervall på</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Schemalagd säkerhetskopiering</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Ange säkerhetskopieringsschemat</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Välj de dagar och tider då säkerhetskopieringen ska köras.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Söndag</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Tar ögonblicksbilder…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Torsdag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tisdag</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Det gick inte att uppdatera säkerhetskopieringsschemat.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Onsdag</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Vardagar</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Helg</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Behåll filer på målet när de tas bort lokalt</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximal filstorlek</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Hoppa över filer vars namn börjar med en punkt</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Filer som är större än den här storleken säkerhetskopieras inte.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Filer med de här filnamnstilläggen säkerhetskopieras inte.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Ange ett filnamnstillägg, till exempel tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Filnamnstillägg att hoppa över</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 betyder ingen gräns.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>Det nya språket börjar gälla när Skelda Backup har startats om.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Visningsspråk</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Starta Skelda Backup när jag loggar in</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Använd en svartvit ikon i menyraden</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxyservern kräver autentisering</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Ange användarnamnet för proxyn.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Porten måste vara ett tal från 1 till 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Ange proxyadressen och porten.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adress</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuell proxykonfiguration</translation>
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
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Anslutning</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Mappar att säkerhetskopiera</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiverad</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Lika med</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Större än</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Mindre än</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Filstorlek</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Tillfällig fil</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Timme</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minut</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Månad</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Vecka</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Säkerhetsvarning</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Idag</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Senaste aktivitet</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Dölj borttagna filer</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Visa borttagna filer</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Det finns en ny version. Klicka för att uppdatera.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>En ny version, %1, finns tillgänglig. Klicka för att uppdatera.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Öppna Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Uppdaterar...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Uppgradera</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Välj en mapp på %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Alla</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>Uppgraderingen misslyckades.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Åtkomst till målmappen nekades.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Inloggningen misslyckades. Kontrollera ditt användarnamn och lösenord.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>En nyare version av Skelda Backup krävs för att ansluta till den här servern.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Det gick inte att uppgradera Skelda Backup. Ladda ned den senaste versionen.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Mappen %1 säkerhetskopieras redan av en annan uppgift.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>Målmappen används redan av en annan uppgift.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Ange adressen till din server och dina kontouppgifter.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Anslut till din server</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Det finns inte tillräckligt med utrymme på målet.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Hitta servrar i det lokala nätverket</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>Målmappen är ogiltig.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Det går inte att nå målet på grund av ett nätverksfel.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>Målmappens kvot är full.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Vissa källmappar är skrivskyddade. De säkerhetskopieras, men filer kan inte återställas till dem.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>Målmappen är skrivskyddad.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Det gick inte att registrera säkerhetskopieringsuppgiften på servern.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Välj var på servern dina filer ska lagras.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Ange målmappen</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Det finns redan en delad mapp med det här namnet.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>Målets delade mapp finns inte.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>Källmappen %1 är skrivskyddad.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Målets certifikat har ändrats.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Det gick inte att verifiera målets certifikat.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Kontrollera inställningarna nedan och klicka sedan på Klar för att starta säkerhetskopieringen.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Undantagna mappar</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Källmappar</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Sökväg</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Ett systemfel uppstod på målet.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>Målet tillhör en annan användare.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Ditt konto är inaktiverat på målet.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup sparar kopior av dina mappar på din server.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Behöver du hjälp? Besök vårt kunskapscenter.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Den här guiden hjälper dig att konfigurera din första säkerhetskopieringsuppgift.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Dina filer i trygga händer</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Přidat název souboru</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Přidat složku</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendář</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Další měsíc</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Předchozí měsíc</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialogové okno</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Fronta zpracování</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Aktualizovat protokol zálohování</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Nastavení filtru</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Cíl zálohy</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Automatické nastavení se nezdařilo. Nastavte připojení ručně.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Dokončování automatického nastavení...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>Klíč připojení byl nakonfigurován.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>Počítač se vypne za %1 s. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Vyberte složky k zálohování</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Vyberte místní složky k zálohování a složku na serveru, ve které budou uloženy.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Není vybrána žádná složka</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Upřesnit</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Ne, děkuji</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Otevřít ve Finderu</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Nastavení proxy...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vybrat</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Důvěřovat a pokračovat</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Spustit nyní</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odpojit</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Zadejte ověřovací kód</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adresa serveru</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Použít zabezpečené připojení (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Odpojením se zastaví všechny úlohy zálohování tohoto počítače. Chcete se odpojit od %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Odpojování...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Připojit pomocí ID propojení</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup je připraven.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup se inicializuje...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Došlo k neočekávané chybě.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Uživatelské jméno nebo heslo je nesprávné.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Služba automatického připojení není k dispozici.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>ID propojení není platné.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>Zálohování se nezdařilo.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Úlohu zálohování nelze vytvořit.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>Místní databáze je poškozena.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>Místní disk je plný.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>Server byl nahrazen. Propojte tento počítač znovu.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>Server neodpovídá serveru, na kterém byla tato úloha vytvořena.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>Služba zálohování je na serveru zakázána.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Inicializace se nezdařila.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>Zadaná hodnota není platná.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Připojení z této IP adresy nejsou povolena.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Místní složku %1 nelze najít.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Příliš mnoho neúspěšných pokusů. Zkuste to později.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>Síť není k dispozici.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Neexistuje žádná platná složka k zálohování.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Pro tento účet je vyžadováno dvoustupňové ověření.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Ověřovací kód není platný.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Zadejte ověřovací kód.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>Server odeslal neočekávanou odpověď.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Platnost hesla vypršela.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>Kvóta cíle je vyčerpána.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>Sdílená složka není připojena.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Nemáte oprávnění k přístupu do této sdílené složky.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Certifikát serveru se změnil.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Certifikát serveru nelze ověřit.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>Směr zálohování neodpovídá nastavení serveru.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>Cílová složka není připojena.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Připojení přes přenosovou službu jsou zakázána.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>Služba domovských složek uživatelů je zakázána.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>Informace o uživateli nejsou k dispozici.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Nemáte oprávnění používat tuto službu.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Tato verze Skelda Backup je příliš stará. Aktualizujte ji.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>Verze serveru není podporována.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Přizpůsobit</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Rozsah dat</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Klíčové slovo</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Minulý měsíc</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Minulý týden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Obnovit výchozí</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Pátek</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Položky: %1</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Zatím žádná historie</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Hledání serverů v místní síti...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Poslední záloha: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>Zbývající soubory ke zpracování: %1</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Zpracování %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Dokončeno</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Uzamčeno</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Příprava</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Fronta</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Nahrávání</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Čekání</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Zálohování...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuální</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Použití nastavení...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pondělí</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Duben</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Srpen</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Prosinec</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Únor</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Leden</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Červenec</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Červen</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Březen</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Květen</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Říjen</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Září</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>O aplikaci Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Ověřování hesla...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Stahování bylo dokončeno.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Nezdařilo se</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Úlohy zálohování se nepodařilo načíst.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Složka neexistuje.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>Kvóta sdílené složky %1 je vyčerpána.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>Certifikát %1 se od posledního připojení změnil.\nDůvěřujete novému certifikátu?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>Certifikát %1 není důvěryhodný.\nChcete přesto pokračovat?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Uživatelské jméno nelze ověřit.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Dalších %1 stránek</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Vyčistit</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum a čas</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Stáhnout</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Procházet verze</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Předchozích %1 stránek</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>Soubory v této složce můžete pouze číst.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Po zálohování vypnout počítač</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Vypnutí počítače vyžaduje oprávnění správce.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>Zálohování bylo zrušeno.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Dny zálohování</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Po skončení zálohování zobrazit oznámení na ploše</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Zálohování je dokončeno.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Režim zálohování</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Zálohovat nyní</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Plán zálohování</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Časy zálohování</translation>
    </message>
    <message>
        <source>times</source>
        <translation>krát</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Vyberte režim zálohování</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Zálohujte změny průběžně, podle plánu nebo pouze na vyžádání.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Chcete nyní spustit zálohování?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Chcete zastavit probíhající zálohování?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Spouštět zmeškaná zálohování</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Spustí plánované zálohování, které bylo zmeškáno, když byl počítač vypnutý.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Vyberte alespoň jeden den.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Každý den</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Čas prvního spuštění</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Čas poslední zálohy</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Ruční zálohování</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Čas příští zálohy</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Jednou denně</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Zálohování v reálném čase</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>hod.</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Spouštět každých</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Plánované zálohování</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Nastavit plán zálohování</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Vyberte dny a časy, kdy se má zálohování spouštět.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Neděle</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Vytváření snímků…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Čtvrtek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Úterý</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Plán zálohování nelze aktualizovat.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Středa</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Pracovní dny</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Víkend</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Ponechat soubory v cíli, když jsou místně odstraněny</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximální velikost souboru</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Přeskočit soubory, jejichž názvy začínají tečkou</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Soubory větší než tato velikost se nezálohují.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Soubory s těmito příponami se nezálohují.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Zadejte příponu souboru, například tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Přípony souborů k přeskočení</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 znamená bez omezení.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Výchozí nastavení systému</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>Nový jazyk se projeví po restartování Skelda Backup.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Jazyk zobrazení</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Spustit Skelda Backup po přihlášení</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Použít černobílou ikonu na řádku nabídek</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxy server vyžaduje ověření</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Zadejte uživatelské jméno pro proxy.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Port musí být číslo od 1 do 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Zadejte adresu a port proxy.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ruční konfigurace proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Použít systémové nastavení proxy</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Připojení</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Zálohované složky</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Povoleno</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Rovno</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Větší než</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Menší než</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Velikost souboru</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Dočasný soubor</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Den</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hodina</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuta</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Měsíc</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Týden</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Upozornění zabezpečení</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Nedávná aktivita</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Skrýt odebrané soubory</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Zobrazit odebrané soubory</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Je k dispozici nová verze. Klikněte pro aktualizaci.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Je k dispozici nová verze %1. Klikněte pro aktualizaci.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Otevřít Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizace...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgradovat</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Tento počítač</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Vyberte složku na %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Libovolný</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>Upgrade se nezdařil.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verze %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Přístup do cílové složky byl odepřen.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Přihlášení se nezdařilo. Zkontrolujte uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>K připojení k tomuto serveru je vyžadována novější verze Skelda Backup.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Skelda Backup nelze upgradovat. Stáhněte si nejnovější verzi.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Složka %1 je již zálohována jinou úlohou.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>Cílovou složku již používá jiná úloha.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Zadejte adresu serveru a údaje svého účtu.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Připojení k serveru</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>V cíli není dostatek místa.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Najít servery v místní síti</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>Cílová složka není platná.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Cíl není dostupný kvůli chybě sítě.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>Kvóta cílové složky je vyčerpána.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Některé zdrojové složky jsou jen pro čtení. Budou zálohovány, ale nebude možné do nich obnovit soubory.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>Cílová složka je jen pro čtení.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Úlohu zálohování nelze zaregistrovat na serveru.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Vyberte, kde na serveru budou vaše soubory uloženy.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Nastavit cílovou složku</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Sdílená složka s tímto názvem již existuje.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>Sdílená složka cíle neexistuje.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>Zdrojová složka %1 je jen pro čtení.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Certifikát cíle se změnil.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Certifikát cíle nelze ověřit.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Zkontrolujte níže uvedená nastavení a kliknutím na Dokončit spusťte zálohování.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Účet</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Vyloučené složky</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Zdrojové složky</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Cesta</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>V cíli došlo k systémové chybě.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>Cíl patří jinému uživateli.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Váš účet je v cíli zakázán.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup uchovává kopie vašich složek na vašem serveru.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Potřebujete pomoc? Navštivte naše centrum znalostí.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Tento průvodce vám pomůže nastavit první úlohu zálohování.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Vaše soubory v bezpečí</translation>
    </message>
</context>
</TS>

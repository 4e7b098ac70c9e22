<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Fájlnév hozzáadása</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Mappa hozzáadása</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Naptár</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Következő hónap</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Előző hónap</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Párbeszédpanel</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Feldolgozási sor</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>A biztonsági mentési napló frissítése</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Szűrőbeállítások</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Biztonsági mentés célhelye</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Az automatikus beállítás nem sikerült. Állítsa be manuálisan a kapcsolatot.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Az automatikus beállítás befejezése...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>A kapcsolati kulcs konfigurálva.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>A számítógép %1 másodperc múlva leáll. Folytatja?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Válassza ki a mentendő mappákat</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Válassza ki a mentendő helyi mappákat, valamint a kiszolgálón azt a mappát, amely tárolni fogja őket.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nincs kijelölt mappa</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Speciális</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Köszönöm, nem</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Most</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Megnyitás a Finderben</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Proxybeállítások...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Kijelölés</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Megbízom benne, folytatás</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Indítás most</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Leválasztás</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Adja meg az ellenőrző kódot</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Kiszolgáló címe</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Biztonságos kapcsolat használata (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>A leválasztás leállítja a számítógép összes biztonsági mentési feladatát. Leválasztja a számítógépet a következőről: %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Leválasztás...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Csatlakozás kapcsolatazonosítóval</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>A Skelda Backup készen áll.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>A Skelda Backup inicializálása folyamatban...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Váratlan hiba történt.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>A felhasználónév vagy a jelszó helytelen.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Az automatikus csatlakozási szolgáltatás nem érhető el.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>A kapcsolatazonosító érvénytelen.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>A biztonsági mentés nem sikerült.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Nem sikerült létrehozni a biztonsági mentési feladatot.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>A helyi adatbázis sérült.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>A helyi lemez megtelt.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>A kiszolgálót lecserélték. Kapcsolja össze újra ezt a számítógépet.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>A kiszolgáló nem egyezik azzal, amelyen ezt a feladatot létrehozták.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>A biztonsági mentési szolgáltatás le van tiltva a kiszolgálón.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Az inicializálás nem sikerült.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>A megadott érték érvénytelen.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Erről az IP-címről nem engedélyezett a kapcsolódás.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>A(z) %1 helyi mappa nem található.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Túl sok sikertelen próbálkozás. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>A hálózat nem érhető el.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Nincs érvényes mentendő mappa.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Ehhez a fiókhoz kétlépcsős azonosítás szükséges.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Az ellenőrző kód érvénytelen.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Adja meg az ellenőrző kódot.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>A kiszolgáló váratlan választ küldött.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>A jelszava lejárt.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>A célhely kvótája betelt.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>A megosztott mappa nincs csatlakoztatva.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Nincs engedélye a megosztott mappa elérésére.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>A kiszolgáló tanúsítványa megváltozott.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Nem sikerült ellenőrizni a kiszolgáló tanúsítványát.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>A biztonsági mentés iránya nem egyezik a kiszolgáló beállításaival.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>A célmappa nincs csatlakoztatva.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>A továbbító szolgáltatáson keresztüli kapcsolatok le vannak tiltva.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>A felhasználói saját mappa szolgáltatás le van tiltva.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>A felhasználói adatok nem érhetők el.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Nincs jogosultsága a szolgáltatás használatához.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>A Skelda Backup ezen verziója túl régi. Frissítse.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>A kiszolgáló verziója nem támogatott.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Testreszabás</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Dátumtartomány</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Ettől</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Kulcsszó</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Előző hónap</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Előző hét</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Alaphelyzet</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Eddig</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Első oldal</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Péntek</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elem</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Még nincs előzmény</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Utolsó oldal</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Kiszolgálók keresése a helyi hálózaton...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Legutóbbi mentés: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>Még %1 fájl vár feldolgozásra</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Feldolgozás: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Előrehaladás</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Befejezve</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Zárolva</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Előkészítés</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Sor</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Feltöltés</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Várakozás</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Csatlakozás...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Biztonsági mentés folyamatban...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Naprakész</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Beállítások alkalmazása...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Hétfő</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Április</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Augusztus</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Február</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Január</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Július</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Június</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Március</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Május</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Október</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Szeptember</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>A Skelda Backup névjegye</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Jelszó ellenőrzése...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>A letöltés befejeződött.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Sikertelen</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Nem sikerült betölteni a biztonsági mentési feladatokat.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>A mappa nem létezik.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>A(z) %1 megosztott mappa kvótája betelt.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>A(z) %1 tanúsítványa megváltozott a legutóbbi kapcsolódás óta.\nMegbízik az új tanúsítványban?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>A(z) %1 tanúsítványa nem megbízható.\nMégis folytatja?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Kapcsolat tesztelése...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>A felhasználónév nem ellenőrizhető.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Következő %1 oldal</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Tisztítás</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dátum és idő</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Letöltés</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Visszaállítás</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Verziók tallózása</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Előző %1 oldal</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Csak olvasható</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>Ebben a mappában csak olvasni tudja a fájlokat.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Szombat</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>A számítógép leállítása a biztonsági mentés után</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>A számítógép leállításához rendszergazdai jogosultság szükséges.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>A biztonsági mentés megszakadt.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Mentési napok</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Asztali értesítés megjelenítése a biztonsági mentés befejezésekor</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>A biztonsági mentés befejeződött.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Mentési mód</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Biztonsági mentés most</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Mentési terv</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Mentési időpontok</translation>
    </message>
    <message>
        <source>times</source>
        <translation>alkalommal</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Válasszon mentési módot</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>A változások mentése azonnal, ütemezés szerint vagy csak kérésre.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Elindít most egy biztonsági mentést?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Leállítja a futó biztonsági mentést?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Kihagyott mentések futtatása</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Elindítja azt az ütemezett mentést, amely a számítógép kikapcsolt állapota miatt elmaradt.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Válasszon ki legalább egy napot.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Minden nap</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Első futtatás időpontja</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Legutóbbi mentés időpontja</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Manuális mentés</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Következő mentés időpontja</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Naponta egyszer</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Valós idejű mentés</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>óránként</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Futtatás</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Ütemezett mentés</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Mentési terv beállítása</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Válassza ki, mely napokon és időpontokban fusson a mentés.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Vasárnap</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Pillanatképek készítése…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Csütörtök</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Kedd</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Nem sikerült frissíteni a mentési tervet.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Szerda</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Hétköznapok</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Hétvége</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>A helyben törölt fájlok megőrzése a célhelyen</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximális fájlméret</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>A ponttal kezdődő nevű fájlok kihagyása</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Az ennél nagyobb fájlokról nem készül biztonsági mentés.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Az ilyen kiterjesztésű fájlokról nem készül biztonsági mentés.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Adjon meg egy fájlkiterjesztést, például: tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Kihagyandó fájlkiterjesztések</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>A 0 azt jelenti, hogy nincs korlát.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Rendszer alapértelmezése</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>Az új nyelv a Skelda Backup újraindítása után lép életbe.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Megjelenítési nyelv</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>A Skelda Backup indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Fekete-fehér menüsorikon használata</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>A proxykiszolgáló hitelesítést igényel</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Adja meg a proxy felhasználónevét.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>A portnak 1 és 65535 közötti számnak kell lennie.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Adja meg a proxy címét és portját.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Cím</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuális proxykonfiguráció</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nincs proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Kapcsolat</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Szűrő</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Mentett mappák</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Engedélyezve</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Egyenlő</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Nagyobb, mint</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Kisebb, mint</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Fájlméret</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Ideiglenes fájl</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Nap</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Óra</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Perc</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Hónap</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Hét</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Biztonsági figyelmeztetés</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Legutóbbi tevékenység</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Eltávolított fájlok elrejtése</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Eltávolított fájlok megjelenítése</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Új verzió érhető el. Kattintson a frissítéshez.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Új verzió érhető el (%1). Kattintson a frissítéshez.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>A Skelda Backup megnyitása</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Frissítés...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Frissítés új verzióra</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ez a számítógép</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Válasszon mappát itt: %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Bármely</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>A frissítés nem sikerült.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>%1 verzió</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>A célmappához való hozzáférés megtagadva.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>A bejelentkezés nem sikerült. Ellenőrizze a felhasználónevet és a jelszót.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>A kiszolgálóhoz való csatlakozáshoz a Skelda Backup újabb verziója szükséges.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Nem sikerült frissíteni a Skelda Backup alkalmazást. Töltse le a legújabb verziót.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>A(z) %1 mappáról már egy másik feladat készít biztonsági mentést.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>A célmappát már egy másik feladat használja.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Adja meg a kiszolgáló címét és a fiókadatait.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Csatlakozás a kiszolgálóhoz</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Nincs elég hely a célhelyen.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Kiszolgálók keresése a helyi hálózaton</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>A célmappa érvénytelen.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>A célhely hálózati hiba miatt nem érhető el.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>A célmappa kvótája betelt.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Néhány forrásmappa csak olvasható. Ezekről készül biztonsági mentés, de fájlokat nem lehet visszaállítani beléjük.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>A célmappa csak olvasható.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Nem sikerült regisztrálni a biztonsági mentési feladatot a kiszolgálón.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Válassza ki, hol tárolódjanak a fájljai a kiszolgálón.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Célmappa beállítása</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Már létezik ilyen nevű megosztott mappa.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>A célhely megosztott mappája nem létezik.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>A(z) %1 forrásmappa csak olvasható.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>A célhely tanúsítványa megváltozott.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Nem sikerült ellenőrizni a célhely tanúsítványát.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Ellenőrizze az alábbi beállításokat, majd kattintson a Kész gombra a biztonsági mentés indításához.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Fiók</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Kizárt mappák</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Forrásmappák</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Elérési út</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Kiszolgáló</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Rendszerhiba történt a célhelyen.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>A célhely egy másik felhasználóhoz tartozik.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>A fiókja le van tiltva a célhelyen.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>A Skelda Backup másolatokat tárol a mappáiról a kiszolgálóján.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Segítségre van szüksége? Látogasson el tudásközpontunkba.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Ez a varázsló segít beállítani az első biztonsági mentési feladatot.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Fájljai biztonságban</translation>
    </message>
</context>
</TS>

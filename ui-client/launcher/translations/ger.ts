<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Dateinamen hinzufügen</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Verarbeitungswarteschlange</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Sicherungsprotokoll aktualisieren</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Filtereinstellungen</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Sicherungsziel</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Die automatische Einrichtung ist fehlgeschlagen. Bitte richten Sie die Verbindung manuell ein.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Automatische Einrichtung wird abgeschlossen...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>Der Verbindungsschlüssel wurde konfiguriert.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>Der Computer wird in %1 Sekunden heruntergefahren. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Zu sichernde Ordner auswählen</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Wählen Sie die zu sichernden lokalen Ordner und den Ordner auf dem Server aus, in dem sie aufbewahrt werden.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Kein Ordner ausgewählt</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nein, danke</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Im Finder öffnen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Proxy-Einstellungen...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Vertrauen und fortfahren</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Verknüpfung aufheben</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Bestätigungscode eingeben</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Sichere Verbindung (SSL) verwenden</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Durch das Aufheben der Verknüpfung werden alle Sicherungsaufgaben dieses Computers beendet. Möchten Sie die Verknüpfung mit %1 aufheben?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Verknüpfung wird aufgehoben...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Mit einer Verknüpfungs-ID verbinden</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup ist bereit.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup wird initialisiert...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Ein unerwarteter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Benutzername oder Passwort ist falsch.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Der automatische Verbindungsdienst ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>Die Verknüpfungs-ID ist ungültig.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>Die Sicherung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Die Sicherungsaufgabe konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>Die lokale Datenbank ist beschädigt.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>Der lokale Datenträger ist voll.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>Der Server wurde ersetzt. Bitte verknüpfen Sie diesen Computer erneut.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>Der Server stimmt nicht mit dem Server überein, auf dem diese Aufgabe erstellt wurde.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>Der Sicherungsdienst ist auf dem Server deaktiviert.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Die Initialisierung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>Der eingegebene Wert ist ungültig.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Verbindungen von dieser IP-Adresse sind nicht zulässig.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Der lokale Ordner %1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Zu viele fehlgeschlagene Versuche. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>Das Netzwerk ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Es ist kein gültiger Ordner zum Sichern vorhanden.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Für dieses Konto ist eine Bestätigung in zwei Schritten erforderlich.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Der Bestätigungscode ist ungültig.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Bitte geben Sie den Bestätigungscode ein.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>Der Server hat eine unerwartete Antwort gesendet.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Ihr Passwort ist abgelaufen.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>Das Kontingent des Ziels ist ausgeschöpft.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>Der freigegebene Ordner ist nicht eingebunden.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Sie sind nicht berechtigt, auf diesen freigegebenen Ordner zuzugreifen.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Das Zertifikat des Servers hat sich geändert.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Das Zertifikat des Servers konnte nicht überprüft werden.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>Die Sicherungsrichtung stimmt nicht mit den Servereinstellungen überein.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>Der Zielordner ist nicht eingebunden.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Verbindungen über den Relay-Dienst sind deaktiviert.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>Der Dienst für Benutzer-Basisordner ist deaktiviert.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>Die Benutzerinformationen sind nicht verfügbar.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Sie sind nicht berechtigt, diesen Dienst zu nutzen.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Diese Version von Skelda Backup ist zu alt. Bitte aktualisieren Sie sie.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>Die Serverversion wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Stichwort</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Noch kein Verlauf vorhanden</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Server im lokalen Netzwerk werden gesucht...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Letzte Sicherung: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>Noch %1 Dateien zu verarbeiten</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>%1 wird verarbeitet</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Wird vorbereitet</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Warteschlange</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Wird hochgeladen</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sicherung läuft...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Einstellungen werden übernommen...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
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
        <translation>Dezember</translation>
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
        <translation>März</translation>
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
        <translation>Über Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Passwort wird überprüft...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download abgeschlossen.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Die Sicherungsaufgaben konnten nicht geladen werden.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Der Ordner ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>Das Kontingent des freigegebenen Ordners %1 ist ausgeschöpft.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>Das Zertifikat von %1 hat sich seit der letzten Verbindung geändert.\nVertrauen Sie dem neuen Zertifikat?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>Das Zertifikat von %1 ist nicht vertrauenswürdig.\nMöchten Sie trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbindung wird getestet...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Der Benutzername kann nicht überprüft werden.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nächste %1 Seiten</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Versionen durchsuchen</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorherige %1 Seiten</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>In diesem Ordner können Sie Dateien nur lesen.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Computer nach der Sicherung herunterfahren</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Zum Herunterfahren des Computers sind Administratorrechte erforderlich.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>Die Sicherung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Sicherungstage</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Desktop-Benachrichtigung anzeigen, wenn eine Sicherung endet</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Die Sicherung ist abgeschlossen.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Sicherungsmodus</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Jetzt sichern</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Sicherungsplan</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Sicherungszeiten</translation>
    </message>
    <message>
        <source>times</source>
        <translation>Mal</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Sicherungsmodus auswählen</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Sichern Sie Änderungen sofort, nach Zeitplan oder nur auf Anforderung.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Möchten Sie jetzt eine Sicherung starten?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Möchten Sie die laufende Sicherung beenden?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Verpasste Sicherungen ausführen</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Eine geplante Sicherung starten, die verpasst wurde, während der Computer ausgeschaltet war.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Bitte wählen Sie mindestens einen Tag aus.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Erste Ausführung</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Letzte Sicherung</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Manuelle Sicherung</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Nächste Sicherung</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Einmal täglich</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Echtzeitsicherung</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Ausführen alle</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Geplante Sicherung</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Sicherungsplan festlegen</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Wählen Sie die Tage und Uhrzeiten aus, zu denen die Sicherung ausgeführt wird.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Snapshots werden erstellt…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Der Sicherungsplan konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Wochentage</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Wochenende</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Dateien am Ziel behalten, wenn sie lokal gelöscht werden</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale Dateigröße</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Dateien überspringen, deren Name mit einem Punkt beginnt</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Dateien, die diese Größe überschreiten, werden nicht gesichert.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Dateien mit diesen Erweiterungen werden nicht gesichert.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Dateierweiterung eingeben, z. B. tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Zu überspringende Dateierweiterungen</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 bedeutet keine Begrenzung.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>Die neue Sprache wird nach dem Neustart von Skelda Backup wirksam.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Anzeigesprache</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Skelda Backup bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Schwarz-weißes Menüleistensymbol verwenden</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Der Proxyserver erfordert eine Authentifizierung</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Bitte geben Sie den Proxy-Benutzernamen ein.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Der Port muss eine Zahl von 1 bis 65535 sein.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Bitte geben Sie die Proxyadresse und den Port ein.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuelle Proxykonfiguration</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Kein Proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Proxyeinstellungen des Systems verwenden</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Sicherungsordner</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Gleich</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Größer als</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Kleiner als</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Temporäre Datei</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Sicherheitswarnung</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Letzte Aktivitäten</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Entfernte Dateien ausblenden</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Entfernte Dateien anzeigen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Eine neue Version ist verfügbar. Zum Aktualisieren klicken.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Eine neue Version (%1) ist verfügbar. Zum Aktualisieren klicken.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Skelda Backup öffnen</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Wird aktualisiert...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Ordner auf %1 auswählen</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Beliebig</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>Das Upgrade ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Der Zugriff auf den Zielordner wurde verweigert.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Die Anmeldung ist fehlgeschlagen. Bitte überprüfen Sie Ihren Benutzernamen und Ihr Passwort.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>Für die Verbindung mit diesem Server ist eine neuere Version von Skelda Backup erforderlich.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Skelda Backup konnte nicht aktualisiert werden. Bitte laden Sie die neueste Version herunter.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Der Ordner %1 wird bereits von einer anderen Aufgabe gesichert.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>Der Zielordner wird bereits von einer anderen Aufgabe verwendet.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Geben Sie die Adresse Ihres Servers und Ihre Kontodaten ein.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Mit Ihrem Server verbinden</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Am Ziel ist nicht genügend Speicherplatz vorhanden.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Server im lokalen Netzwerk suchen</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>Der Zielordner ist ungültig.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Das Ziel ist aufgrund eines Netzwerkfehlers nicht erreichbar.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>Das Kontingent des Zielordners ist ausgeschöpft.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Einige Quellordner sind schreibgeschützt. Sie werden gesichert, aber Dateien können nicht in sie wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>Der Zielordner ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Die Sicherungsaufgabe konnte nicht auf dem Server registriert werden.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Wählen Sie aus, wo auf dem Server Ihre Dateien aufbewahrt werden.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Zielordner festlegen</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Ein freigegebener Ordner mit diesem Namen ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>Der freigegebene Ordner des Ziels ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>Der Quellordner %1 ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Das Zertifikat des Ziels hat sich geändert.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Das Zertifikat des Ziels konnte nicht überprüft werden.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Überprüfen Sie die folgenden Einstellungen und klicken Sie dann auf „Fertig“, um die Sicherung zu starten.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Ausgeschlossene Ordner</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Quellordner</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Am Ziel ist ein Systemfehler aufgetreten.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>Das Ziel gehört einem anderen Benutzer.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Ihr Konto ist am Ziel deaktiviert.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup bewahrt Kopien Ihrer Ordner auf Ihrem Server auf.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Benötigen Sie Hilfe? Besuchen Sie unser Knowledge Center.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Dieser Assistent hilft Ihnen, Ihre erste Sicherungsaufgabe einzurichten.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Ihre Dateien, sicher und geborgen</translation>
    </message>
</context>
</TS>

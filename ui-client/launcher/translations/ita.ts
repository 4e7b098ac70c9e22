<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Aggiungi un nome di file</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Aggiungi una cartella</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mese successivo</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mese precedente</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Finestra di dialogo</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Coda di elaborazione</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Aggiorna il registro di backup</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Impostazioni filtro</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destinazione del backup</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Configurazione automatica non riuscita. Configura la connessione manualmente.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Completamento della configurazione automatica...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>La chiave di connessione è stata configurata.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>Il computer verrà spento tra %1 secondi. Continuare?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Scegli le cartelle di cui eseguire il backup</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Seleziona le cartelle locali di cui eseguire il backup e la cartella del server in cui verranno conservate.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nessuna cartella selezionata</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, grazie</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Apri nel Finder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Impostazioni proxy...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Considera attendibile e continua</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Avvia ora</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Data di creazione</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Inserisci il codice di verifica</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Indirizzo del server</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usa una connessione sicura (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Scollegando il computer verranno interrotte tutte le sue attività di backup. Scollegarsi da %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Scollegamento in corso...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Connetti con un ID di collegamento</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup è pronto.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Inizializzazione di Skelda Backup in corso...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Si è verificato un errore imprevisto.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Nome utente o password non corretti.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Il servizio di connessione automatica non è disponibile.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>L&apos;ID di collegamento non è valido.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>Backup non riuscito.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Impossibile creare l&apos;attività di backup.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>Il database locale è danneggiato.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>Il disco locale è pieno.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>Il server è stato sostituito. Collega di nuovo questo computer.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>Il server non corrisponde a quello su cui è stata creata questa attività.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>Il servizio di backup è disattivato sul server.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Inizializzazione non riuscita.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>Il valore inserito non è valido.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Le connessioni da questo indirizzo IP non sono consentite.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Impossibile trovare la cartella locale %1.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Troppi tentativi non riusciti. Riprova più tardi.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>La rete non è disponibile.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Non ci sono cartelle valide di cui eseguire il backup.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Per questo account è necessaria la verifica in due passaggi.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Il codice di verifica non è valido.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Inserisci il codice di verifica.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>Il server ha inviato una risposta imprevista.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>La password è scaduta.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>La quota della destinazione è esaurita.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>La cartella condivisa non è montata.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Non disponi dell&apos;autorizzazione per accedere a questa cartella condivisa.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Il certificato del server è cambiato.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Impossibile verificare il certificato del server.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>La direzione del backup non corrisponde alle impostazioni del server.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>La cartella di destinazione non è montata.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Le connessioni tramite il servizio di inoltro sono disattivate.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>Il servizio cartella home utente è disattivato.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>Le informazioni sull&apos;utente non sono disponibili.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Non disponi dei privilegi per usare questo servizio.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Questa versione di Skelda Backup è troppo vecchia. Aggiornala.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>La versione del server non è supportata.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Personalizza</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervallo di date</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Parola chiave</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mese scorso</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Settimana scorsa</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementi</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Nessuna cronologia disponibile</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Ricerca di server nella rete locale in corso...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Ultimo backup: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>%1 file ancora da elaborare</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Elaborazione di %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloccato</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Preparazione</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Coda</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Caricamento</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione in corso...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Backup in corso...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applicazione delle impostazioni...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Aprile</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dicembre</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Febbraio</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Gennaio</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Luglio</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Giugno</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maggio</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ottobre</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Settembre</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>Informazioni su Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Verifica della password in corso...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download completato.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Impossibile caricare le attività di backup.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento in corso...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La cartella non esiste.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>La quota della cartella condivisa %1 è esaurita.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>Il certificato di %1 è cambiato dall&apos;ultima connessione.\nConsideri attendibile il nuovo certificato?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>Il certificato di %1 non è attendibile.\nContinuare comunque?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test della connessione in corso...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Impossibile verificare il nome utente.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pagine successive</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Pulisci</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Sfoglia versioni</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pagine precedenti</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>In questa cartella puoi solo leggere i file.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Spegni il computer al termine del backup</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Per spegnere il computer sono necessari privilegi di amministratore.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>Il backup è stato annullato.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Giorni di backup</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Mostra una notifica sul desktop al termine di un backup</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Il backup è stato completato.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Modalità di backup</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Esegui backup ora</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Pianificazione backup</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Orari di backup</translation>
    </message>
    <message>
        <source>times</source>
        <translation>volte</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Scegli una modalità di backup</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Esegui il backup delle modifiche non appena avvengono, secondo una pianificazione o solo su richiesta.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Avviare un backup adesso?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Interrompere il backup in corso?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Esegui i backup saltati</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Avvia un backup pianificato che è stato saltato mentre il computer era spento.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Seleziona almeno un giorno.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Ogni giorno</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Ora della prima esecuzione</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Ora dell&apos;ultimo backup</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Backup manuale</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Ora del prossimo backup</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Una volta al giorno</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Backup in tempo reale</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>ore</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Esegui ogni</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Backup pianificato</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Imposta la pianificazione del backup</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Scegli i giorni e gli orari in cui eseguire il backup.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Creazione degli snapshot…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Impossibile aggiornare la pianificazione del backup.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Giorni feriali</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Fine settimana</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Mantieni i file nella destinazione quando vengono eliminati localmente</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Dimensione massima dei file</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Ignora i file il cui nome inizia con un punto</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>I file che superano questa dimensione non vengono inclusi nel backup.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>I file con queste estensioni non vengono inclusi nel backup.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Inserisci un&apos;estensione di file, ad esempio tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Estensioni di file da ignorare</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 significa nessun limite.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinita di sistema</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>La nuova lingua sarà applicata al riavvio di Skelda Backup.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Lingua di visualizzazione</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Avvia Skelda Backup all&apos;accesso</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Usa un&apos;icona in bianco e nero nella barra dei menu</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Il server proxy richiede l&apos;autenticazione</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Inserisci il nome utente del proxy.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>La porta deve essere un numero compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Inserisci l&apos;indirizzo e la porta del proxy.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configurazione manuale del proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nessun proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Usa le impostazioni proxy di sistema</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Cartelle di backup</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Uguale a</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Maggiore di</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Minore di</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dimensione file</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>File temporaneo</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mese</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Settimana</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Avviso di sicurezza</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Attività recenti</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Nascondi i file rimossi</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Mostra i file rimossi</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>È disponibile una nuova versione. Fai clic per aggiornare.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>È disponibile una nuova versione (%1). Fai clic per aggiornare.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Apri Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aggiornamento in corso...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Scegli una cartella su %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Qualsiasi</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>Aggiornamento non riuscito.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Accesso alla cartella di destinazione negato.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Accesso non riuscito. Verifica il nome utente e la password.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>Per connettersi a questo server è necessaria una versione più recente di Skelda Backup.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Impossibile aggiornare Skelda Backup. Scarica la versione più recente.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Il backup della cartella %1 viene già eseguito da un&apos;altra attività.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>La cartella di destinazione è già utilizzata da un&apos;altra attività.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Inserisci l&apos;indirizzo del server e i dati del tuo account.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connettiti al server</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Spazio insufficiente nella destinazione.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Trova server nella rete locale</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>La cartella di destinazione non è valida.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Impossibile raggiungere la destinazione a causa di un errore di rete.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>La quota della cartella di destinazione è esaurita.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Alcune cartelle di origine sono di sola lettura. Ne verrà eseguito il backup, ma non sarà possibile ripristinarvi i file.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>La cartella di destinazione è di sola lettura.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Impossibile registrare l&apos;attività di backup sul server.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Scegli dove conservare i file sul server.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Imposta la cartella di destinazione</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Esiste già una cartella condivisa con questo nome.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>La cartella condivisa della destinazione non esiste.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>La cartella di origine %1 è di sola lettura.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Il certificato della destinazione è cambiato.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Impossibile verificare il certificato della destinazione.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Controlla le impostazioni riportate di seguito, quindi fai clic su Fine per avviare il backup.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Cartelle escluse</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Cartelle di origine</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Si è verificato un errore di sistema nella destinazione.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>La destinazione appartiene a un altro utente.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Il tuo account è disattivato nella destinazione.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup conserva copie delle tue cartelle sul tuo server.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Serve aiuto? Visita il nostro centro informazioni.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Questa procedura guidata ti aiuta a configurare la tua prima attività di backup.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>I tuoi file, sani e salvi</translation>
    </message>
</context>
</TS>

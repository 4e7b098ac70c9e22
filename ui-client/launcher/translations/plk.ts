<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Dodaj nazwę pliku</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendarz</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Następny miesiąc</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Okno dialogowe</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Kolejka przetwarzania</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Odśwież dziennik kopii zapasowych</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Ustawienia filtru</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Miejsce docelowe kopii zapasowej</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Automatyczna konfiguracja nie powiodła się. Skonfiguruj połączenie ręcznie.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Kończenie automatycznej konfiguracji...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>Klucz połączenia został skonfigurowany.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>Komputer zostanie wyłączony za %1 s. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Wybierz foldery do kopii zapasowej</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Wybierz foldery lokalne do kopii zapasowej oraz folder na serwerze, w którym będą przechowywane.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nie wybrano folderu</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Zaawansowane</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nie, dziękuję</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Otwórz w Finderze</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Ustawienia serwera proxy...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Zaufaj i kontynuuj</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Uruchom teraz</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Wprowadź kod weryfikacyjny</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adres serwera</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Użyj bezpiecznego połączenia (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Odłączenie zatrzyma wszystkie zadania kopii zapasowej tego komputera. Czy chcesz odłączyć się od %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Odłączanie...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Połącz za pomocą identyfikatora łącza</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup jest gotowy.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Trwa inicjowanie Skelda Backup...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Wystąpił nieoczekiwany błąd.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Nazwa użytkownika lub hasło jest nieprawidłowe.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Usługa automatycznego połączenia jest niedostępna.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>Identyfikator łącza jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>Tworzenie kopii zapasowej nie powiodło się.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Nie można utworzyć zadania kopii zapasowej.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>Lokalna baza danych jest uszkodzona.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>Dysk lokalny jest pełny.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>Serwer został wymieniony. Połącz ponownie ten komputer.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>Serwer nie jest zgodny z serwerem, na którym utworzono to zadanie.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>Usługa kopii zapasowych jest wyłączona na serwerze.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Inicjowanie nie powiodło się.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>Wprowadzona wartość jest nieprawidłowa.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Połączenia z tego adresu IP są niedozwolone.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Nie można znaleźć folderu lokalnego %1.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Zbyt wiele nieudanych prób. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>Sieć jest niedostępna.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Brak prawidłowego folderu do kopii zapasowej.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>To konto wymaga weryfikacji dwuetapowej.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Kod weryfikacyjny jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Wprowadź kod weryfikacyjny.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>Serwer wysłał nieoczekiwaną odpowiedź.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Twoje hasło wygasło.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>Limit miejsca docelowego został wyczerpany.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>Folder udostępniony nie jest zamontowany.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Nie masz uprawnień dostępu do tego folderu udostępnionego.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Certyfikat serwera uległ zmianie.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Nie można zweryfikować certyfikatu serwera.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>Kierunek kopii zapasowej nie jest zgodny z ustawieniami serwera.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>Folder docelowy nie jest zamontowany.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Połączenia przez usługę przekazywania są wyłączone.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>Usługa folderów domowych użytkowników jest wyłączona.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>Informacje o użytkowniku są niedostępne.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Nie masz uprawnień do korzystania z tej usługi.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Ta wersja Skelda Backup jest zbyt stara. Uaktualnij ją.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>Wersja serwera nie jest obsługiwana.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Dostosuj</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zakres dat</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Słowo kluczowe</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Poprzedni tydzień</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementy: %1</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Brak historii</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Wyszukiwanie serwerów w sieci lokalnej...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Ostatnia kopia zapasowa: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>Pozostałe pliki do przetworzenia: %1</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Przetwarzanie %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Zakończono</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Zablokowany</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Przygotowywanie</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Kolejka</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Przekazywanie</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Tworzenie kopii zapasowej...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktualne</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Stosowanie ustawień...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Kwiecień</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Sierpień</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Grudzień</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Luty</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Styczeń</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Lipiec</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Czerwiec</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzec</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Październik</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Wrzesień</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>O programie Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Sprawdzanie hasła...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Pobieranie zakończone.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenie</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Nie udało się załadować zadań kopii zapasowej.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Ładowanie...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Folder nie istnieje.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>Limit folderu udostępnionego %1 został wyczerpany.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>Certyfikat %1 zmienił się od ostatniego połączenia.\nCzy ufasz nowemu certyfikatowi?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>Certyfikat %1 nie jest zaufany.\nCzy mimo to chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testowanie połączenia...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Nie można zweryfikować nazwy użytkownika.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Następne strony (%1)</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobierz</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akcja</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Przeglądaj wersje</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Poprzednie strony (%1)</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>Pliki w tym folderze można tylko odczytywać.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Wyłącz komputer po utworzeniu kopii zapasowej</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Wyłączenie komputera wymaga uprawnień administratora.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>Tworzenie kopii zapasowej zostało anulowane.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Dni tworzenia kopii zapasowej</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Pokaż powiadomienie na pulpicie po zakończeniu tworzenia kopii zapasowej</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Tworzenie kopii zapasowej zostało zakończone.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Tryb kopii zapasowej</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Utwórz kopię zapasową teraz</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Harmonogram kopii zapasowych</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Godziny tworzenia kopii zapasowej</translation>
    </message>
    <message>
        <source>times</source>
        <translation>razy</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Wybierz tryb kopii zapasowej</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Twórz kopie zapasowe zmian na bieżąco, zgodnie z harmonogramem lub tylko na żądanie.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Czy chcesz teraz rozpocząć tworzenie kopii zapasowej?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Czy chcesz zatrzymać trwające tworzenie kopii zapasowej?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Uruchamiaj pominięte kopie zapasowe</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Uruchamia zaplanowaną kopię zapasową, która została pominięta, gdy komputer był wyłączony.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Wybierz co najmniej jeden dzień.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Codziennie</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Godzina pierwszego uruchomienia</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Godzina ostatniej kopii zapasowej</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Ręczna kopia zapasowa</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Godzina następnej kopii zapasowej</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Raz dziennie</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Kopia zapasowa w czasie rzeczywistym</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>godz.</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Uruchamiaj co</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Zaplanowana kopia zapasowa</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Ustaw harmonogram kopii zapasowych</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Wybierz dni i godziny, w których ma być tworzona kopia zapasowa.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Tworzenie migawek…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Nie można zaktualizować harmonogramu kopii zapasowych.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Dni robocze</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Weekend</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Zachowuj pliki w miejscu docelowym, gdy zostaną usunięte lokalnie</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksymalny rozmiar pliku</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Pomijaj pliki, których nazwy zaczynają się od kropki</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Pliki większe niż ten rozmiar nie są uwzględniane w kopii zapasowej.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Pliki z tymi rozszerzeniami nie są uwzględniane w kopii zapasowej.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Wprowadź rozszerzenie pliku, na przykład tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Pomijane rozszerzenia plików</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 oznacza brak limitu.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Ustawienie domyślne systemu</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>Nowy język zacznie obowiązywać po ponownym uruchomieniu Skelda Backup.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Język wyświetlania</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Uruchamiaj Skelda Backup po zalogowaniu</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Użyj czarno-białej ikony na pasku menu</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Serwer proxy wymaga uwierzytelniania</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Wprowadź nazwę użytkownika serwera proxy.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Port musi być liczbą z zakresu od 1 do 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Wprowadź adres i port serwera proxy.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ręczna konfiguracja serwera proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez serwera proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Użyj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Foldery kopii zapasowej</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Równy</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Większy niż</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Mniejszy niż</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Rozmiar pliku</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Plik tymczasowy</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuta</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Miesiąc</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Tydzień</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Ostrzeżenie o zabezpieczeniach</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Ostatnia aktywność</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Ukryj usunięte pliki</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Pokaż usunięte pliki</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Dostępna jest nowa wersja. Kliknij, aby zaktualizować.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Dostępna jest nowa wersja %1. Kliknij, aby zaktualizować.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Otwórz Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizowanie...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Uaktualnij</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ten komputer</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Wybierz folder na %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Dowolny</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>Uaktualnienie nie powiodło się.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Odmówiono dostępu do folderu docelowego.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Logowanie nie powiodło się. Sprawdź nazwę użytkownika i hasło.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>Do połączenia z tym serwerem wymagana jest nowsza wersja Skelda Backup.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Nie można uaktualnić Skelda Backup. Pobierz najnowszą wersję.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Kopia zapasowa folderu %1 jest już tworzona przez inne zadanie.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>Folder docelowy jest już używany przez inne zadanie.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Wprowadź adres serwera i dane konta.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Połącz się z serwerem</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Brak wystarczającej ilości miejsca w miejscu docelowym.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Znajdź serwery w sieci lokalnej</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>Folder docelowy jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Miejsce docelowe jest nieosiągalne z powodu błędu sieci.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>Limit folderu docelowego został wyczerpany.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Niektóre foldery źródłowe są tylko do odczytu. Zostaną uwzględnione w kopii zapasowej, ale nie będzie można przywrócić do nich plików.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>Folder docelowy jest tylko do odczytu.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Nie można zarejestrować zadania kopii zapasowej na serwerze.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Wybierz miejsce na serwerze, w którym będą przechowywane pliki.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Ustaw folder docelowy</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Folder udostępniony o tej nazwie już istnieje.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>Folder udostępniony miejsca docelowego nie istnieje.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>Folder źródłowy %1 jest tylko do odczytu.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Certyfikat miejsca docelowego uległ zmianie.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Nie można zweryfikować certyfikatu miejsca docelowego.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Sprawdź poniższe ustawienia, a następnie kliknij Gotowe, aby rozpocząć tworzenie kopii zapasowej.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Wykluczone foldery</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Foldery źródłowe</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ścieżka</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serwer</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>W miejscu docelowym wystąpił błąd systemowy.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>Miejsce docelowe należy do innego użytkownika.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Twoje konto jest wyłączone w miejscu docelowym.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup przechowuje kopie Twoich folderów na Twoim serwerze.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Potrzebujesz pomocy? Odwiedź nasze centrum wiedzy.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Ten kreator pomoże Ci skonfigurować pierwsze zadanie kopii zapasowej.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Twoje pliki, całe i bezpieczne</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Dosya adı ekle</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Klasör ekle</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Takvim</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Sonraki ay</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Önceki ay</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>İletişim kutusu</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>İşleme kuyruğu</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Yedekleme günlüğünü yenile</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Filtre ayarları</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Yedekleme hedefi</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Otomatik kurulum başarısız oldu. Lütfen bağlantıyı el ile kurun.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Otomatik kurulum tamamlanıyor...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>Bağlantı anahtarı yapılandırıldı.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>Bilgisayar %1 saniye içinde kapanacak. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Yedeklenecek klasörleri seçin</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Yedeklenecek yerel klasörleri ve bunları saklayacak sunucudaki klasörü seçin.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Klasör seçilmedi</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Gelişmiş</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Hayır, teşekkürler</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Şimdi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Finder&apos;da aç</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Proxy ayarları...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Güven ve devam et</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Şimdi başlat</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Bağlantıyı kaldır</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oluşturulma</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Doğrulama kodunu girin</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Sunucu adresi</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Güvenli bağlantı kullan (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Bağlantının kaldırılması bu bilgisayarın tüm yedekleme görevlerini durdurur. %1 ile bağlantıyı kaldırmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Bağlantı kaldırılıyor...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Bağlantı kimliğiyle bağlan</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup hazır.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup başlatılıyor...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Beklenmeyen bir hata oluştu.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Kullanıcı adı veya parola yanlış.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Otomatik bağlantı hizmeti kullanılamıyor.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>Bağlantı kimliği geçerli değil.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>Yedekleme başarısız oldu.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Yedekleme görevi oluşturulamadı.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>Yerel veritabanı bozuk.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>Yerel disk dolu.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>Sunucu değiştirildi. Lütfen bu bilgisayarı yeniden bağlayın.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>Sunucu, bu görevin oluşturulduğu sunucuyla eşleşmiyor.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>Yedekleme hizmeti sunucuda devre dışı.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Başlatma başarısız oldu.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>Girilen değer geçerli değil.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Bu IP adresinden gelen bağlantılara izin verilmiyor.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>%1 yerel klasörü bulunamıyor.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Çok fazla başarısız deneme. Lütfen daha sonra tekrar deneyin.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>Ağ kullanılamıyor.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Yedeklenecek geçerli bir klasör yok.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Bu hesap için iki adımlı doğrulama gerekiyor.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Doğrulama kodu geçerli değil.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Lütfen doğrulama kodunu girin.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>Sunucu beklenmeyen bir yanıt gönderdi.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Parolanızın süresi doldu.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>Hedefin kotası dolu.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>Paylaşılan klasör bağlanmamış.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Bu paylaşılan klasöre erişim izniniz yok.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Sunucunun sertifikası değişti.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Sunucunun sertifikası doğrulanamadı.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>Yedekleme yönü sunucu ayarlarıyla eşleşmiyor.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>Hedef klasör bağlanmamış.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Aktarma hizmeti üzerinden bağlantılar devre dışı.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>Kullanıcı ana klasörü hizmeti devre dışı.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>Kullanıcı bilgileri kullanılamıyor.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Bu hizmeti kullanma yetkiniz yok.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Skelda Backup&apos;ın bu sürümü çok eski. Lütfen yükseltin.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>Sunucu sürümü desteklenmiyor.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Özelleştir</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Tarih aralığı</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Anahtar sözcük</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Geçen ay</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Geçen hafta</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 öğe</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Henüz geçmiş yok</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Son sayfa</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Yerel ağda sunucular aranıyor...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Son yedekleme: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>İşlenecek %1 dosya kaldı</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>%1 işleniyor</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Tamamlandı</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Kilitli</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Hazırlanıyor</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Kuyruk</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Karşıya yükleniyor</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Bekleniyor</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Bağlanıyor...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Yedekleniyor...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Güncel</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Nisan</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Ağustos</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Şubat</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Ocak</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Temmuz</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Haziran</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mart</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayıs</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Kasım</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ekim</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Eylül</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>Skelda Backup hakkında</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Parola denetleniyor...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>İndirme tamamlandı.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Yedekleme görevleri yüklenemedi.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Klasör mevcut değil.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>%1 paylaşılan klasörünün kotası dolu.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>%1 sertifikası son bağlantıdan bu yana değişti.\nYeni sertifikaya güveniyor musunuz?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>%1 sertifikası güvenilir değil.\nYine de devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Bağlantı test ediliyor...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Kullanıcı adı doğrulanamıyor.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Sonraki %1 sayfa</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Tarih ve saat</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>İndir</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Eylem</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Geri yükle</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Sürümlere göz at</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Önceki %1 sayfa</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>Bu klasördeki dosyaları yalnızca okuyabilirsiniz.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Yedeklemeden sonra bilgisayarı kapat</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Bilgisayarı kapatmak için yönetici ayrıcalıkları gerekir.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>Yedekleme iptal edildi.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Yedekleme günleri</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Yedekleme bittiğinde masaüstü bildirimi göster</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Yedekleme tamamlandı.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Yedekleme modu</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Şimdi yedekle</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Yedekleme planı</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Yedekleme saatleri</translation>
    </message>
    <message>
        <source>times</source>
        <translation>kez</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Bir yedekleme modu seçin</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Değişiklikleri oluştukları anda, bir zamanlamaya göre veya yalnızca istediğinizde yedekleyin.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Şimdi bir yedekleme başlatmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Çalışan yedeklemeyi durdurmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Kaçırılan yedeklemeleri çalıştır</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Bilgisayar kapalıyken kaçırılan zamanlanmış yedeklemeyi başlatır.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Lütfen en az bir gün seçin.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Her gün</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>İlk çalışma saati</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Son yedekleme saati</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>El ile yedekleme</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Sonraki yedekleme saati</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Günde bir kez</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Gerçek zamanlı yedekleme</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>saatte bir</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Çalıştırma sıklığı:</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Zamanlanmış yedekleme</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Yedekleme planını ayarla</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Yedeklemenin çalışacağı günleri ve saatleri seçin.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Pazar</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Anlık görüntüler alınıyor…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Salı</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Yedekleme planı güncellenemedi.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Hafta içi</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Hafta sonu</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Yerel olarak silinen dosyaları hedefte sakla</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimum dosya boyutu</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Adı nokta ile başlayan dosyaları atla</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Bu boyuttan büyük dosyalar yedeklenmez.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Bu uzantılara sahip dosyalar yedeklenmez.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Bir dosya uzantısı girin, örneğin tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Atlanacak dosya uzantıları</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0, sınır olmadığı anlamına gelir.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Sistem varsayılanı</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>Yeni dil, Skelda Backup yeniden başlatıldıktan sonra geçerli olur.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Görüntüleme dili</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Oturum açtığımda Skelda Backup&apos;ı başlat</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Siyah beyaz menü çubuğu simgesi kullan</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxy sunucusu kimlik doğrulaması gerektiriyor</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Lütfen proxy kullanıcı adını girin.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Bağlantı noktası 1 ile 65535 arasında bir sayı olmalıdır.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Lütfen proxy adresini ve bağlantı noktasını girin.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>El ile proxy yapılandırması</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Proxy yok</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Bağlantı noktası</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Sistem proxy ayarlarını kullan</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Yedekleme klasörleri</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Eşittir</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Büyüktür</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Küçüktür</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dosya boyutu</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Geçici dosya</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Gün</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Dakika</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Ay</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Hafta</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Güvenlik uyarısı</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Son etkinlikler</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Kaldırılan dosyaları gizle</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Kaldırılan dosyaları göster</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Yeni bir sürüm var. Güncellemek için tıklayın.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Yeni bir sürüm (%1) var. Güncellemek için tıklayın.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Skelda Backup&apos;ı aç</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Güncelleniyor...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Yükselt</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Bu bilgisayar</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>%1 üzerinde bir klasör seçin</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Herhangi biri</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>Yükseltme başarısız oldu.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Hedef klasöre erişim reddedildi.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Oturum açılamadı. Lütfen kullanıcı adınızı ve parolanızı kontrol edin.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>Bu sunucuya bağlanmak için Skelda Backup&apos;ın daha yeni bir sürümü gerekiyor.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Skelda Backup yükseltilemedi. Lütfen en son sürümü indirin.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>%1 klasörü zaten başka bir görev tarafından yedekleniyor.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>Hedef klasör zaten başka bir görev tarafından kullanılıyor.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Sunucunuzun adresini ve hesap bilgilerinizi girin.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Sunucunuza bağlanın</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Hedefte yeterli alan yok.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Yerel ağdaki sunucuları bul</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>Hedef klasör geçerli değil.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Bir ağ hatası nedeniyle hedefe ulaşılamıyor.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>Hedef klasörün kotası dolu.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Bazı kaynak klasörler salt okunur. Bu klasörler yedeklenecek, ancak içlerine dosya geri yüklenemeyecek.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>Hedef klasör salt okunur.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Yedekleme görevi sunucuya kaydedilemedi.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Dosyalarınızın sunucuda nerede saklanacağını seçin.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Hedef klasörü ayarla</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Bu ada sahip bir paylaşılan klasör zaten var.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>Hedefin paylaşılan klasörü mevcut değil.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>%1 kaynak klasörü salt okunur.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Hedefin sertifikası değişti.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Hedefin sertifikası doğrulanamadı.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Aşağıdaki ayarları kontrol edin, ardından yedeklemeyi başlatmak için Bitti&apos;ye tıklayın.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Hesap</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Hariç tutulan klasörler</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Kaynak klasörler</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Yol</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Sunucu</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Hedefte bir sistem hatası oluştu.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>Hedef başka bir kullanıcıya ait.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Hesabınız hedefte devre dışı bırakılmış.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup, klasörlerinizin kopyalarını sunucunuzda saklar.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Yardım mı gerekiyor? Bilgi merkezimizi ziyaret edin.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Bu sihirbaz, ilk yedekleme görevinizi ayarlamanıza yardımcı olur.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Dosyalarınız güvende</translation>
    </message>
</context>
</TS>

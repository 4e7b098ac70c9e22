<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Добавить имя файла</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Календарь</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Следующий месяц</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Предыдущий месяц</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Диалоговое окно</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Очередь обработки</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Обновить журнал резервного копирования</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Параметры фильтра</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Место назначения резервной копии</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Не удалось выполнить автоматическую настройку. Настройте подключение вручную.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Завершение автоматической настройки...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>Ключ подключения настроен.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>Компьютер будет выключен через %1 с. Продолжить?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Выберите папки для резервного копирования</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Выберите локальные папки для резервного копирования и папку на сервере, в которой они будут храниться.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Папка не выбрана</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Нет, спасибо</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Открыть в Finder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Параметры прокси...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Доверять и продолжить</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Начать сейчас</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отвязать</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Дата создания</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Введите код подтверждения</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Использовать защищенное подключение (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>При отвязке будут остановлены все задачи резервного копирования этого компьютера. Отвязать компьютер от %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Отвязка...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Подключиться по ID привязки</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup готов к работе.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Инициализация Skelda Backup...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Произошла непредвиденная ошибка.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Неверное имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Служба автоматического подключения недоступна.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>Недопустимый ID привязки.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>Сбой резервного копирования.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Не удалось создать задачу резервного копирования.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>Локальная база данных повреждена.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>Локальный диск заполнен.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>Сервер был заменен. Привяжите этот компьютер заново.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>Сервер не совпадает с тем, на котором была создана эта задача.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>Служба резервного копирования отключена на сервере.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Сбой инициализации.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>Введено недопустимое значение.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Подключения с этого IP-адреса запрещены.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Не удается найти локальную папку %1.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Слишком много неудачных попыток. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>Сеть недоступна.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Нет допустимых папок для резервного копирования.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Для этой учетной записи требуется двухэтапная проверка.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Недопустимый код подтверждения.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Введите код подтверждения.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>Сервер отправил непредвиденный ответ.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Срок действия пароля истек.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>Квота места назначения исчерпана.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>Общая папка не подключена.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>У вас нет разрешения на доступ к этой общей папке.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Сертификат сервера изменился.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Не удалось проверить сертификат сервера.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>Направление резервного копирования не соответствует настройкам сервера.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>Папка назначения не подключена.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Подключения через службу ретрансляции отключены.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>Служба домашних папок пользователей отключена.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>Информация о пользователе недоступна.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>У вас нет прав на использование этой службы.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Эта версия Skelda Backup устарела. Обновите ее.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>Версия сервера не поддерживается.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Настроить</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Диапазон дат</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Ключевое слово</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Прошлый месяц</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Прошлая неделя</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Элементов: %1</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>История пока пуста</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Поиск серверов в локальной сети...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Последнее резервное копирование: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>Осталось обработать файлов: %1</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Обработка %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Заблокировано</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Подготовка</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Очередь</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Отправка</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Резервное копирование...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Актуально</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Апрель</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Август</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Декабрь</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Февраль</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Январь</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Июль</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Июнь</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Март</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Май</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Ноябрь</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Октябрь</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Сентябрь</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>О программе Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Проверка пароля...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Скачивание завершено.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Сбой</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Не удалось загрузить задачи резервного копирования.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Папка не существует.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>Квота общей папки %1 исчерпана.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>Сертификат %1 изменился с момента последнего подключения.\nДоверять новому сертификату?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>Сертификат %1 не является доверенным.\nВсе равно продолжить?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Не удается проверить имя пользователя.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Следующие страницы (%1)</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Скачать</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Просмотреть версии</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Предыдущие страницы (%1)</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>В этой папке можно только читать файлы.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Выключить компьютер после резервного копирования</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Для выключения компьютера требуются права администратора.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>Резервное копирование отменено.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Дни резервного копирования</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Показывать уведомление на рабочем столе по окончании резервного копирования</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Резервное копирование завершено.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Режим резервного копирования</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Создать резервную копию</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>План резервного копирования</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Время резервного копирования</translation>
    </message>
    <message>
        <source>times</source>
        <translation>раз</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Выберите режим резервного копирования</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Резервное копирование изменений по мере их появления, по расписанию или только по вашему запросу.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Начать резервное копирование сейчас?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Остановить выполняемое резервное копирование?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Выполнять пропущенные резервные копирования</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Запускать запланированное резервное копирование, пропущенное, пока компьютер был выключен.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Выберите хотя бы один день.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Каждый день</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Время первого запуска</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Время последнего резервного копирования</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Ручное резервное копирование</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Время следующего резервного копирования</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Раз в день</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Резервное копирование в реальном времени</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>ч</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Выполнять каждые</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Резервное копирование по расписанию</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Настройка плана резервного копирования</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Выберите дни и время выполнения резервного копирования.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Создание снимков…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Не удалось обновить план резервного копирования.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Будние дни</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Выходные</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Сохранять файлы в месте назначения при их локальном удалении</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Максимальный размер файла</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Пропускать файлы, имена которых начинаются с точки</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Файлы, размер которых превышает этот, не копируются.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Файлы с этими расширениями не копируются.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Введите расширение файла, например tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Пропускаемые расширения файлов</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 — без ограничений.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>По умолчанию (системный)</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>Новый язык вступит в силу после перезапуска Skelda Backup.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Язык интерфейса</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Запускать Skelda Backup при входе в систему</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Использовать черно-белый значок в строке меню</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Прокси-сервер требует проверки подлинности</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Введите имя пользователя прокси-сервера.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Порт должен быть числом от 1 до 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Введите адрес и порт прокси-сервера.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ручная настройка прокси</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Без прокси</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Использовать системные настройки прокси</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Папки для резервного копирования</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Равно</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Больше</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Меньше</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Размер файла</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Временный файл</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>День</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Час</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Минута</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Месяц</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Неделя</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Предупреждение системы безопасности</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Последние действия</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Скрыть удаленные файлы</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Показать удаленные файлы</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Доступна новая версия. Нажмите, чтобы обновить.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Доступна новая версия %1. Нажмите, чтобы обновить.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Открыть Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Обновление...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Выберите папку на %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Любой</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>Сбой обновления.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Доступ к папке назначения запрещен.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Не удалось войти. Проверьте имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>Для подключения к этому серверу требуется более новая версия Skelda Backup.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Не удалось обновить Skelda Backup. Скачайте последнюю версию.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Папка %1 уже копируется другой задачей.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>Папка назначения уже используется другой задачей.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Введите адрес сервера и данные учетной записи.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Подключение к серверу</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>В месте назначения недостаточно места.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Найти серверы в локальной сети</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>Недопустимая папка назначения.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Место назначения недоступно из-за ошибки сети.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>Квота папки назначения исчерпана.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Некоторые исходные папки доступны только для чтения. Они будут скопированы, но восстановить в них файлы будет невозможно.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>Папка назначения доступна только для чтения.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Не удалось зарегистрировать задачу резервного копирования на сервере.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Выберите, где на сервере будут храниться ваши файлы.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Выбор папки назначения</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Общая папка с таким именем уже существует.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>Общая папка места назначения не существует.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>Исходная папка %1 доступна только для чтения.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Сертификат места назначения изменился.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Не удалось проверить сертификат места назначения.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Проверьте приведенные ниже настройки и нажмите «Готово», чтобы начать резервное копирование.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Учетная запись</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Исключенные папки</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Исходные папки</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Сервер</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>В месте назначения произошла системная ошибка.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>Место назначения принадлежит другому пользователю.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Ваша учетная запись отключена в месте назначения.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup хранит копии ваших папок на вашем сервере.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Нужна помощь? Посетите наш центр знаний.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Этот мастер поможет настроить первую задачу резервного копирования.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Ваши файлы в целости и сохранности</translation>
    </message>
</context>
</TS>

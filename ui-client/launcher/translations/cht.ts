<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>新增檔案名稱</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>新增資料夾</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>行事曆</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下個月</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>對話方塊</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>處理佇列</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>重新整理備份記錄</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>篩選設定</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>備份目的地</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>自動設定失敗。請手動設定連線。</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>正在完成自動設定...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>已設定連線金鑰。</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>電腦將在 %1 秒後關機。是否要繼續？</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>選擇要備份的資料夾</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>選擇要備份的本機資料夾，以及伺服器上用來保存這些資料夾的資料夾。</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>未選擇資料夾</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了，謝謝</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>立即</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>在 Finder 中開啟</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>代理伺服器設定...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢復</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選擇</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>信任並繼續</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除連結</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>輸入驗證碼</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>伺服器位址</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>使用安全連線 (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>解除連結會停止這台電腦的所有備份任務。是否要解除與 %1 的連結？</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在解除連結...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>使用連結 ID 連線</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup 已準備就緒。</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup 正在初始化...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>發生未預期的錯誤。</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>使用者名稱或密碼不正確。</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>無法使用自動連線服務。</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>連結 ID 無效。</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>備份失敗。</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>無法建立備份任務。</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>本機資料庫已損毀。</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>本機磁碟已滿。</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>伺服器已被更換。請重新連結這台電腦。</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>伺服器與建立此任務時所用的伺服器不符。</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>伺服器上的備份服務已停用。</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>初始化失敗。</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>輸入的值無效。</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>不允許來自此 IP 位址的連線。</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>找不到本機資料夾 %1。</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>失敗次數過多。請稍後再試。</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>無法使用網路。</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>沒有可備份的有效資料夾。</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>此帳戶需要兩步驟驗證。</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>驗證碼無效。</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>請輸入驗證碼。</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>伺服器傳回了未預期的回應。</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>您的密碼已過期。</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>目的地的配額已滿。</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>共用資料夾未掛載。</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>您沒有存取此共用資料夾的權限。</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>伺服器的憑證已變更。</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>無法驗證伺服器的憑證。</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>備份方向與伺服器設定不符。</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>目的地資料夾未掛載。</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>透過轉送服務的連線已停用。</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>使用者家目錄服務已停用。</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>無法取得使用者資訊。</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>您沒有使用此服務的權限。</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>此版本的 Skelda Backup 太舊。請進行升級。</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>不支援此伺服器版本。</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>自訂</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期範圍</translation>
    </message>
    <message>
        <source>From</source>
        <translation>從</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>關鍵字</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上週</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>To</source>
        <translation>至</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一頁</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 個項目</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>尚無歷史記錄</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後一頁</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>正在搜尋區域網路中的伺服器...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>上次備份：%1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>尚有 %1 個檔案待處理</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>正在處理 %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>已鎖定</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>佇列</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>上傳中</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在連線...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在備份...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新狀態</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在套用設定...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>September</source>
        <translation>九月</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>關於 Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>正在檢查密碼...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>下載完成。</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>無法載入備份任務。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>資料夾不存在。</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>共用資料夾 %1 的配額已滿。</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>%1 的憑證自上次連線後已變更。\n是否信任新的憑證？</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>%1 的憑證不受信任。\n是否仍要繼續？</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在測試連線...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>無法驗證使用者名稱。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>後 %1 頁</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>清理</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期與時間</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下載</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>瀏覽版本</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 頁</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>您只能讀取此資料夾中的檔案。</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>備份完成後關閉電腦</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>關閉電腦需要系統管理員權限。</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>備份已取消。</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>備份日</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>備份結束時顯示桌面通知</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>備份已完成。</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>備份模式</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>立即備份</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>備份排程</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>備份時間</translation>
    </message>
    <message>
        <source>times</source>
        <translation>次</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>選擇備份模式</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>在變更發生時即時備份、依排程備份，或僅在您要求時備份。</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>是否要立即開始備份？</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>是否要停止執行中的備份？</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>執行錯過的備份</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>啟動在電腦關機期間錯過的排程備份。</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>請至少選擇一天。</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>每天</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>首次執行時間</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>上次備份時間</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>手動備份</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>下次備份時間</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>每天一次</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>On</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>即時備份</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>小時</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>執行間隔</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>排程備份</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>設定備份排程</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>選擇執行備份的日期與時間。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>正在建立快照…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>無法更新備份排程。</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>平日</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>在本機刪除檔案時，保留目的地上的檔案</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>檔案大小上限</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>略過名稱以點開頭的檔案</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>大於此大小的檔案不會被備份。</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>具有這些副檔名的檔案不會被備份。</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>輸入副檔名，例如 tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>要略過的副檔名</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 表示無限制。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系統預設值</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>新的語言將在 Skelda Backup 重新啟動後生效。</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>顯示語言</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>登入時啟動 Skelda Backup</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>使用黑白選單列圖示</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>代理伺服器需要驗證</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>請輸入代理伺服器使用者名稱。</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>連接埠必須是 1 到 65535 之間的數字。</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>請輸入代理伺服器位址和連接埠。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>位址</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手動設定代理伺服器</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理伺服器</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>使用系統代理伺服器設定</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>備份資料夾</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>等於</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>大於</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>小於</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>檔案大小</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>暫存檔案</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>天</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>小時</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分鐘</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>安全性警告</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>最近的活動</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>隱藏已移除的檔案</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>顯示已移除的檔案</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>有新版本可用。按一下以更新。</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>新版本 %1 已推出。按一下以更新。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>開啟 Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升級</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>這台電腦</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>選擇 %1 上的資料夾</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>任何</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>升級失敗。</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>存取目的地資料夾遭拒。</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>登入失敗。請檢查您的使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>需要較新版本的 Skelda Backup 才能連線到此伺服器。</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>無法升級 Skelda Backup。請下載最新版本。</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>資料夾 %1 已由其他任務備份。</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>目的地資料夾已被其他任務使用。</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>輸入您的伺服器位址和帳戶資訊。</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>連線到您的伺服器</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>目的地空間不足。</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>尋找區域網路中的伺服器</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>目的地資料夾無效。</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>由於網路錯誤，無法連線到目的地。</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>目的地資料夾的配額已滿。</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>部分來源資料夾為唯讀。這些資料夾仍會備份，但無法將檔案還原到其中。</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>目的地資料夾為唯讀。</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>無法在伺服器上註冊備份任務。</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>選擇在伺服器上保存檔案的位置。</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>設定目的地資料夾</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>已存在同名的共用資料夾。</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>目的地的共用資料夾不存在。</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>來源資料夾 %1 為唯讀。</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>目的地的憑證已變更。</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>無法驗證目的地的憑證。</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>請檢查下列設定，然後按一下「完成」開始備份。</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>帳戶</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>排除的資料夾</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>來源資料夾</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路徑</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>伺服器</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>目的地發生系統錯誤。</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>目的地屬於其他使用者。</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>您的帳戶在目的地上已被停用。</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup 會在您的伺服器上保存資料夾的副本。</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>需要協助嗎？請造訪我們的知識中心。</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>此精靈將協助您設定第一個備份任務。</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>安心守護您的檔案</translation>
    </message>
</context>
</TS>

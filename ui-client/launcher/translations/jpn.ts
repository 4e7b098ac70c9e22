<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>ファイル名を追加</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>フォルダを追加</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>翌月</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>前月</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>処理キュー</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>バックアップログを更新</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>フィルタ設定</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>バックアップ先</translation>
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
        <translation>自動設定に失敗しました。接続を手動で設定してください。</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>自動設定を完了しています...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>接続キーが設定されました。</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>%1 秒後にコンピュータをシャットダウンします。続行しますか？</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>バックアップするフォルダを選択</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>バックアップするローカルフォルダと、それらを保存するサーバー上のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>フォルダが選択されていません</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>いいえ、結構です</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>今すぐ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Finder で開く</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>プロキシ設定...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>信頼して続行</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>リンク解除</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>確認コードを入力してください</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>サーバーアドレス</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>安全な接続 (SSL) を使用する</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>リンクを解除すると、このコンピュータのすべてのバックアップタスクが停止します。%1 とのリンクを解除しますか？</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>リンクを解除しています...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>リンク ID で接続</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup の準備ができました。</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup を初期化しています...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>予期しないエラーが発生しました。</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>自動接続サービスを利用できません。</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>リンク ID が無効です。</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>バックアップに失敗しました。</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>バックアップタスクを作成できませんでした。</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>ローカルデータベースが破損しています。</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>ローカルディスクの空き容量がありません。</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>サーバーが置き換えられました。このコンピュータを再度リンクしてください。</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>サーバーが、このタスクを作成したサーバーと一致しません。</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>サーバーでバックアップサービスが無効になっています。</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>初期化に失敗しました。</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>入力された値が無効です。</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>この IP アドレスからの接続は許可されていません。</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>ローカルフォルダ %1 が見つかりません。</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>失敗した試行が多すぎます。しばらくしてから再試行してください。</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>ネットワークを利用できません。</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>バックアップできる有効なフォルダがありません。</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>このアカウントには 2 段階認証が必要です。</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>確認コードが無効です。</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>確認コードを入力してください。</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>サーバーから予期しない応答が返されました。</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>パスワードの有効期限が切れています。</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>バックアップ先のクォータが上限に達しました。</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>共有フォルダがマウントされていません。</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>この共有フォルダにアクセスする権限がありません。</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>サーバーの証明書が変更されました。</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>サーバーの証明書を検証できませんでした。</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>バックアップの方向がサーバーの設定と一致しません。</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>バックアップ先フォルダがマウントされていません。</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>中継サービス経由の接続は無効になっています。</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>ユーザーホームサービスが無効になっています。</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>ユーザー情報を取得できません。</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>このサービスを使用する権限がありません。</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>このバージョンの Skelda Backup は古すぎます。アップグレードしてください。</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>このサーバーのバージョンはサポートされていません。</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>カスタマイズ</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>先月</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>先週</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 項目</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>履歴はまだありません</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>ローカルネットワーク上のサーバーを検索しています...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>前回のバックアップ: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>未処理のファイル: %1 個</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>%1 を処理しています</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>ロック中</translation>
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
        <translation>キュー</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>アップロード中</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続しています...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>バックアップしています...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>最新の状態</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4 月</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8 月</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12 月</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2 月</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1 月</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7 月</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6 月</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3 月</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5 月</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11 月</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10 月</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9 月</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>Skelda Backup について</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>パスワードを確認しています...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>ダウンロードが完了しました。</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロードしています...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>バックアップタスクを読み込めませんでした。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込んでいます...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>フォルダが存在しません。</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>共有フォルダ %1 のクォータが上限に達しました。</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>%1 の証明書は前回の接続以降に変更されています。\n新しい証明書を信頼しますか？</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>%1 の証明書は信頼されていません。\nこのまま続行しますか？</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>接続をテストしています...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>ユーザー名を確認できません。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>次の %1 ページ</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>クリーンアップ</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>バージョンを参照</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前の %1 ページ</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>このフォルダ内のファイルは読み取りのみ可能です。</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>バックアップ後にコンピュータをシャットダウンする</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>コンピュータをシャットダウンするには管理者権限が必要です。</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>バックアップはキャンセルされました。</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>バックアップ曜日</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>バックアップ終了時にデスクトップ通知を表示する</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>バックアップが完了しました。</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>バックアップモード</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>今すぐバックアップ</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>バックアッププラン</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>バックアップ時刻</translation>
    </message>
    <message>
        <source>times</source>
        <translation>回</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>バックアップモードを選択</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>変更をリアルタイムで、スケジュールに従って、または指示したときだけバックアップします。</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>今すぐバックアップを開始しますか？</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>実行中のバックアップを停止しますか？</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>実行されなかったバックアップを実行する</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>コンピュータの電源が切れていたために実行されなかったスケジュールバックアップを開始します。</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>少なくとも 1 日を選択してください。</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>毎日</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>初回実行時刻</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>前回のバックアップ時刻</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>手動バックアップ</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>次回のバックアップ時刻</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>1 日 1 回</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>リアルタイムバックアップ</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>実行間隔</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>スケジュールバックアップ</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>バックアッププランの設定</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>バックアップを実行する曜日と時刻を選択してください。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>スナップショットを作成しています…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>バックアッププランを更新できませんでした。</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
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
        <translation>ローカルで削除されたファイルをバックアップ先に保持する</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>最大ファイルサイズ</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>名前がドットで始まるファイルをスキップする</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>このサイズを超えるファイルはバックアップされません。</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>これらの拡張子のファイルはバックアップされません。</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>ファイル拡張子を入力してください (例: tmp)</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>スキップするファイル拡張子</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 は無制限を意味します。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>システムのデフォルト</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>新しい言語は Skelda Backup の再起動後に有効になります。</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>表示言語</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>ログイン時に Skelda Backup を起動する</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>白黒のメニューバーアイコンを使用する</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>プロキシサーバーで認証が必要</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>プロキシのユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>ポートには 1 から 65535 までの数値を指定してください。</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>プロキシのアドレスとポートを入力してください。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手動でプロキシを設定</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>システムのプロキシ設定を使用</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルタ</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>バックアップフォルダ</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>等しい</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>より大きい</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>より小さい</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>ファイルサイズ</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>一時ファイル</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>時</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
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
        <translation>セキュリティ警告</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>最近のアクティビティ</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>削除されたファイルを非表示</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>削除されたファイルを表示</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>新しいバージョンが利用可能です。クリックして更新してください。</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>新しいバージョン %1 が利用可能です。クリックして更新してください。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Skelda Backup を開く</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>更新しています...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>アップグレード</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピュータ</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>%1 上のフォルダを選択</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>アップグレードに失敗しました。</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>バックアップ先フォルダへのアクセスが拒否されました。</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>サインインに失敗しました。ユーザー名とパスワードを確認してください。</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>このサーバーに接続するには、新しいバージョンの Skelda Backup が必要です。</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Skelda Backup をアップグレードできませんでした。最新バージョンをダウンロードしてください。</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>フォルダ %1 は既に別のタスクでバックアップされています。</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>バックアップ先フォルダは既に別のタスクで使用されています。</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>サーバーのアドレスとアカウント情報を入力してください。</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>サーバーに接続</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>バックアップ先の空き容量が不足しています。</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>ローカルネットワーク上のサーバーを検索</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>バックアップ先フォルダが無効です。</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>ネットワークエラーのため、バックアップ先に接続できません。</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>バックアップ先フォルダのクォータが上限に達しました。</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>一部のソースフォルダは読み取り専用です。バックアップは行われますが、それらのフォルダにファイルを復元することはできません。</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>バックアップ先フォルダは読み取り専用です。</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>バックアップタスクをサーバーに登録できませんでした。</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>ファイルを保存するサーバー上の場所を選択してください。</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>バックアップ先フォルダの設定</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>この名前の共有フォルダは既に存在します。</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>バックアップ先の共有フォルダが存在しません。</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>ソースフォルダ %1 は読み取り専用です。</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>バックアップ先の証明書が変更されました。</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>バックアップ先の証明書を検証できませんでした。</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>以下の設定を確認し、[完了] をクリックしてバックアップを開始してください。</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>除外フォルダ</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>ソースフォルダ</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>バックアップ先でシステムエラーが発生しました。</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>バックアップ先は別のユーザーに属しています。</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>バックアップ先でお使いのアカウントが無効になっています。</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup は、フォルダのコピーをお使いのサーバーに保存します。</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>お困りですか？ナレッジセンターをご覧ください。</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>このウィザードでは、最初のバックアップタスクを設定できます。</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>大切なファイルを安全に</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>添加文件名</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下个月</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>处理队列</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>刷新备份日志</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>筛选设置</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>备份目标</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>自动设置失败。请手动设置连接。</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>正在完成自动设置...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>已配置连接密钥。</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>计算机将在 %1 秒后关机。是否继续？</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>选择要备份的文件夹</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>选择要备份的本地文件夹，以及服务器上用于保存它们的文件夹。</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>未选择文件夹</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
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
        <translation>继续</translation>
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
        <translation>不，谢谢</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>立即</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>在访达中打开</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>代理设置...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>信任并继续</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>取消关联</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>输入验证码</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>服务器地址</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>使用安全连接 (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>取消关联将停止此计算机的所有备份任务。是否要取消与 %1 的关联？</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在取消关联...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>使用关联 ID 连接</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup 已就绪。</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup 正在初始化...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>发生意外错误。</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>用户名或密码不正确。</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>自动连接服务不可用。</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>关联 ID 无效。</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>备份失败。</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>无法创建备份任务。</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>本地数据库已损坏。</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>本地磁盘已满。</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>服务器已被更换。请重新关联此计算机。</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>服务器与创建此任务时所用的服务器不一致。</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>服务器上的备份服务已禁用。</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>初始化失败。</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>输入的值无效。</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>不允许来自此 IP 地址的连接。</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>找不到本地文件夹 %1。</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>失败次数过多。请稍后再试。</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>网络不可用。</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>没有可备份的有效文件夹。</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>此帐户需要两步验证。</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>验证码无效。</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>请输入验证码。</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>服务器返回了意外的响应。</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>您的密码已过期。</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>目标的配额已满。</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>共享文件夹未装载。</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>您没有访问此共享文件夹的权限。</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>服务器的证书已更改。</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>无法验证服务器的证书。</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>备份方向与服务器设置不一致。</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>目标文件夹未装载。</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>通过中继服务的连接已禁用。</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>用户主目录服务已禁用。</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>用户信息不可用。</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>您没有使用此服务的权限。</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>此版本的 Skelda Backup 过旧。请升级。</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>不支持该服务器版本。</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期范围</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上周</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
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
        <translation>第一页</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>暂无历史记录</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>正在搜索本地网络中的服务器...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>上次备份：%1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>还剩 %1 个文件待处理</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>正在处理 %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>正在准备</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>队列</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>正在上传</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>正在等待</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在备份...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在应用设置...</translation>
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
        <translation>关于 Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>正在检查密码...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>下载完成。</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>无法加载备份任务。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>文件夹不存在。</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>共享文件夹 %1 的配额已满。</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>自上次连接以来，%1 的证书已更改。\n是否信任新证书？</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>%1 的证书不受信任。\n是否仍要继续？</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在测试连接...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>无法验证用户名。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>后 %1 页</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>清理</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>浏览版本</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 页</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>您只能读取此文件夹中的文件。</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>备份完成后关闭计算机</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>关闭计算机需要管理员权限。</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>备份已取消。</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>备份日期</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>备份结束时显示桌面通知</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>备份已完成。</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>备份模式</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>立即备份</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>备份计划</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>备份时间</translation>
    </message>
    <message>
        <source>times</source>
        <translation>次</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>选择备份模式</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>在发生更改时实时备份、按计划备份，或仅在您需要时备份。</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>是否要立即开始备份？</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>是否要停止正在运行的备份？</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>运行错过的备份</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>启动在计算机关机期间错过的计划备份。</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>请至少选择一天。</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>每天</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>首次运行时间</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>上次备份时间</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>手动备份</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>下次备份时间</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>每天一次</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>实时备份</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>运行间隔</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>计划备份</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>设置备份计划</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>选择运行备份的日期和时间。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>正在创建快照…</translation>
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
        <translation>无法更新备份计划。</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>工作日</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>周末</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>在本地删除文件时，在目标上保留这些文件</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>最大文件大小</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>跳过名称以点开头的文件</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>大于此大小的文件不会被备份。</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>具有这些扩展名的文件不会被备份。</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>输入文件扩展名，例如 tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>要跳过的文件扩展名</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 表示无限制。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>新语言将在 Skelda Backup 重新启动后生效。</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>显示语言</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>登录时启动 Skelda Backup</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>使用黑白菜单栏图标</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>代理服务器需要身份验证</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>请输入代理用户名。</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>端口必须是 1 到 65535 之间的数字。</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>请输入代理地址和端口。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手动配置代理</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>使用系统代理设置</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>备份文件夹</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>等于</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>大于</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>小于</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>临时文件</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>天</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>周</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>安全警告</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>最近活动</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>隐藏已删除的文件</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>显示已删除的文件</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>有新版本可用。单击以更新。</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>新版本 %1 已可用。单击以更新。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>打开 Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升级</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>此计算机</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>选择 %1 上的文件夹</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>升级失败。</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>访问目标文件夹被拒绝。</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>登录失败。请检查您的用户名和密码。</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>需要更新版本的 Skelda Backup 才能连接到此服务器。</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>无法升级 Skelda Backup。请下载最新版本。</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>文件夹 %1 已由其他任务备份。</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>目标文件夹已被其他任务使用。</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>输入服务器地址和您的帐户信息。</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>连接到您的服务器</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>目标上的空间不足。</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>查找本地网络中的服务器</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>目标文件夹无效。</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>由于网络错误，无法访问目标。</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>目标文件夹的配额已满。</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>部分源文件夹为只读。这些文件夹会被备份，但无法将文件还原到其中。</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>目标文件夹为只读。</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>无法在服务器上注册备份任务。</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>选择在服务器上保存文件的位置。</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>设置目标文件夹</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>已存在同名的共享文件夹。</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>目标的共享文件夹不存在。</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>源文件夹 %1 为只读。</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>目标的证书已更改。</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>无法验证目标的证书。</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>请检查以下设置，然后单击“完成”开始备份。</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>帐户</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>排除的文件夹</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>源文件夹</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>目标上发生系统错误。</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>目标属于其他用户。</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>您的帐户在目标上已被禁用。</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup 会在您的服务器上保存文件夹的副本。</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>需要帮助？请访问我们的知识中心。</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>此向导可帮助您设置第一个备份任务。</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>安全守护您的文件</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Add a file name</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Add a folder</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Next month</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Previous month</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Processing queue</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Refresh the backup log</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Filter settings</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Backup destination</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Automatic setup failed. Please set up the connection manually.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Finishing the automatic setup...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>The connection key has been configured.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>The computer will shut down in %1 seconds. Do you want to continue?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Choose the folders to back up</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Select the local folders to back up and the folder on the server that will keep them.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>No folder selected</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, thanks</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Open in Finder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Proxy settings...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Trust and continue</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start now</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Enter the verification code</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Server address</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Use a secure connection (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Unlinking...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Connect with a link ID</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Username</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup is ready.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup is initializing...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>An unexpected error occurred.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>The username or password is incorrect.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>The automatic connection service is not available.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>The link ID is not valid.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>The backup failed.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>The backup task could not be created.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>The local database is damaged.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>The local disk is full.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>The server has been replaced. Please link this computer again.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>The server does not match the one this task was created on.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>The backup service is disabled on the server.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Initialization failed.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>The entered value is not valid.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Connections from this IP address are not allowed.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>The local folder %1 cannot be found.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Too many failed attempts. Please try again later.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>The network is not available.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>There is no valid folder to back up.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Two-step verification is required for this account.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>The verification code is not valid.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Please enter the verification code.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>The server sent an unexpected reply.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Your password has expired.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>The quota of the destination is full.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>The shared folder is not mounted.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>You do not have permission to access this shared folder.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>The server&apos;s certificate has changed.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>The server&apos;s certificate could not be verified.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>The backup direction does not match the server settings.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>The destination folder is not mounted.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Connections through the relay service are disabled.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>The user home service is disabled.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>The user information is not available.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>You do not have the privilege to use this service.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>This version of Skelda Backup is too old. Please upgrade it.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>The server version is not supported.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Customize</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Date range</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Keyword</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Last month</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Last week</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>To</source>
        <translation>To</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>No history yet</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Searching for servers on the local network...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Last backup: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>%1 files left to process</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Processing %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completed</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Locked</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Preparing</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Queue</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploading</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Backing up...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up to date</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applying settings...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
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
        <translation>December</translation>
    </message>
    <message>
        <source>February</source>
        <translation>February</translation>
    </message>
    <message>
        <source>January</source>
        <translation>January</translation>
    </message>
    <message>
        <source>July</source>
        <translation>July</translation>
    </message>
    <message>
        <source>June</source>
        <translation>June</translation>
    </message>
    <message>
        <source>March</source>
        <translation>March</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>October</source>
        <translation>October</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>About Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Checking the password...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download completed.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Failed to load the backup tasks.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>The folder does not exist.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>The quota of the shared folder %1 is full.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>The certificate of %1 is not trusted.\nDo you want to continue anyway?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testing the connection...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>The username cannot be verified.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Next %1 pages</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Clean up</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date and time</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Browse versions</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Previous %1 pages</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>You can only read files in this folder.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Shut down the computer after the backup</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Shutting down the computer requires administrator privileges.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>The backup was cancelled.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Backup days</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Show a desktop notification when a backup ends</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>The backup is complete.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Backup mode</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Back up now</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Backup plan</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Backup times</translation>
    </message>
    <message>
        <source>times</source>
        <translation>times</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Choose a backup mode</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Back up changes as they happen, on a schedule, or only when you ask.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Do you want to start a backup now?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Do you want to stop the running backup?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Run missed backups</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Start a scheduled backup that was missed while the computer was off.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Please select at least one day.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Every day</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>First run time</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Last backup time</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Manual backup</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Next backup time</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Once a day</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Real-time backup</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>hours</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Run every</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Scheduled backup</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Set the backup plan</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Choose the days and times at which the backup runs.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Taking snapshots…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>The backup plan could not be updated.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Weekdays</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Weekend</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Keep files on the destination when they are deleted locally</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximum file size</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Skip files whose names begin with a dot</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Files larger than this size are not backed up.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Files with these extensions are not backed up.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Enter a file extension, such as tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>File extensions to skip</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 means no limit.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>System default</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>The new language takes effect after Skelda Backup restarts.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Display language</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Start Skelda Backup when I log in</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Use a black-and-white menu bar icon</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>The proxy server requires authentication</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Please enter the proxy username.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>The port must be a number from 1 to 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Please enter the proxy address and port.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manual proxy configuration</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>No proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Use system proxy settings</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Backup folders</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Equal to</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Greater than</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Less than</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>File size</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Temporary file</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Week</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Security warning</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Recent activity</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Hide removed files</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Show removed files</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>A new version is available. Click to update.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>A new version, %1, is available. Click to update.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Open Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Updating...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>This computer</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Choose a folder on %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Any</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>The upgrade failed.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Access to the destination folder was denied.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Sign-in failed. Please check your username and password.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>A newer version of Skelda Backup is required to connect to this server.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Skelda Backup could not be upgraded. Please download the latest version.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>The folder %1 is already backed up by another task.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>The destination folder is already used by another task.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Enter the address of your server and your account.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connect to your server</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>There is not enough space on the destination.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Find servers on the local network</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>The destination folder is not valid.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>The destination cannot be reached because of a network error.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>The quota of the destination folder is full.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>The destination folder is read-only.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>The backup task could not be registered on the server.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Choose where on the server your files are kept.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Set the destination folder</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>A shared folder with this name already exists.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>The shared folder of the destination does not exist.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>The source folder %1 is read-only.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>The destination&apos;s certificate has changed.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>The destination&apos;s certificate could not be verified.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Check the settings below, then click Done to start the backup.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Excluded folders</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Source folders</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Path</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>A system error occurred on the destination.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>The destination belongs to a different user.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Your account is disabled on the destination.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup keeps copies of your folders on your server.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Need help? Visit our knowledge center.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>This wizard helps you set up your first backup task.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Your files, safe and sound</translation>
    </message>
</context>
</TS>

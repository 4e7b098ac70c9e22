<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>파일 이름 추가</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>폴더 추가</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>달력</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>다음 달</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>이전 달</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>대화 상자</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>처리 대기열</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>백업 로그 새로 고침</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>필터 설정</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>백업 대상</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>자동 설정에 실패했습니다. 연결을 수동으로 설정하십시오.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>자동 설정을 완료하는 중...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>연결 키가 구성되었습니다.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>%1초 후에 컴퓨터가 종료됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>백업할 폴더 선택</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>백업할 로컬 폴더와 이를 보관할 서버의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>선택한 폴더 없음</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>아니요, 괜찮습니다</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>지금</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Finder에서 열기</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>프록시 설정...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>신뢰하고 계속</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>연결 해제</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>생성 날짜</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>인증 코드 입력</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>비밀번호</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>서버 주소</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>보안 연결 사용(SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>연결을 해제하면 이 컴퓨터의 모든 백업 작업이 중지됩니다. %1과(와)의 연결을 해제하시겠습니까?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>연결 해제 중...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>링크 ID로 연결</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup이 준비되었습니다.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup을 초기화하는 중...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>예기치 않은 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>사용자 이름 또는 비밀번호가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>자동 연결 서비스를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>링크 ID가 유효하지 않습니다.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>백업에 실패했습니다.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>백업 작업을 생성할 수 없습니다.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>로컬 데이터베이스가 손상되었습니다.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>로컬 디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>서버가 교체되었습니다. 이 컴퓨터를 다시 연결하십시오.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>서버가 이 작업을 생성한 서버와 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>서버에서 백업 서비스가 비활성화되어 있습니다.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>초기화에 실패했습니다.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>입력한 값이 유효하지 않습니다.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>이 IP 주소에서의 연결은 허용되지 않습니다.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>로컬 폴더 %1을(를) 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>실패한 시도가 너무 많습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>네트워크를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>백업할 유효한 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>이 계정에는 2단계 인증이 필요합니다.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>인증 코드가 유효하지 않습니다.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>인증 코드를 입력하십시오.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>서버에서 예기치 않은 응답을 보냈습니다.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>비밀번호가 만료되었습니다.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>대상의 할당량이 가득 찼습니다.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>공유 폴더가 마운트되지 않았습니다.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>이 공유 폴더에 액세스할 권한이 없습니다.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>서버 인증서가 변경되었습니다.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>서버 인증서를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>백업 방향이 서버 설정과 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>대상 폴더가 마운트되지 않았습니다.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>릴레이 서비스를 통한 연결이 비활성화되어 있습니다.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>사용자 홈 서비스가 비활성화되어 있습니다.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>사용자 정보를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>이 서비스를 사용할 권한이 없습니다.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>이 버전의 Skelda Backup은 너무 오래되었습니다. 업그레이드하십시오.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>지원되지 않는 서버 버전입니다.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>날짜 범위</translation>
    </message>
    <message>
        <source>From</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>키워드</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>지난달</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>지난주</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>재설정</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>To</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>첫 페이지</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>금요일</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>기록 없음</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>마지막 페이지</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>로컬 네트워크에서 서버를 검색하는 중...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>마지막 백업: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>처리할 파일 %1개 남음</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>%1 처리 중</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>완료됨</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>잠김</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>준비 중</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>대기열</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>업로드 중</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결 중...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>백업 중...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>최신 상태</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>설정을 적용하는 중...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>월요일</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4월</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8월</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12월</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2월</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1월</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7월</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6월</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3월</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5월</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11월</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10월</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9월</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>Skelda Backup 정보</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>비밀번호를 확인하는 중...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>다운로드가 완료되었습니다.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드 중...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>백업 작업을 불러오지 못했습니다.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>불러오는 중...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>폴더가 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>공유 폴더 %1의 할당량이 가득 찼습니다.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>마지막 연결 이후 %1의 인증서가 변경되었습니다.\n새 인증서를 신뢰하시겠습니까?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>%1의 인증서를 신뢰할 수 없습니다.\n그래도 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>연결을 테스트하는 중...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>사용자 이름을 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>다음 %1페이지</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>정리</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>날짜 및 시간</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>복원</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>버전 찾아보기</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>이전 %1페이지</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>이 폴더의 파일은 읽기만 할 수 있습니다.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>토요일</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>백업 후 컴퓨터 종료</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>컴퓨터를 종료하려면 관리자 권한이 필요합니다.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>백업이 취소되었습니다.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>백업 요일</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>백업이 끝나면 데스크톱 알림 표시</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>백업이 완료되었습니다.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>백업 모드</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>지금 백업</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>백업 계획</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>백업 시간</translation>
    </message>
    <message>
        <source>times</source>
        <translation>회</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>백업 모드 선택</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>변경 사항을 실시간으로 백업하거나, 일정에 따라 백업하거나, 요청할 때만 백업합니다.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>지금 백업을 시작하시겠습니까?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>실행 중인 백업을 중지하시겠습니까?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>누락된 백업 실행</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>컴퓨터가 꺼져 있는 동안 누락된 예약 백업을 시작합니다.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>하루 이상 선택하십시오.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>매일</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>첫 실행 시간</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>마지막 백업 시간</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>수동 백업</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>다음 백업 시간</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>하루 한 번</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켜기</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>실시간 백업</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>실행 간격</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>예약 백업</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>백업 계획 설정</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>백업을 실행할 요일과 시간을 선택하십시오.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>일요일</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>스냅샷 생성 중…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>목요일</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>화요일</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>백업 계획을 업데이트할 수 없습니다.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>수요일</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>평일</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>주말</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>로컬에서 삭제된 파일을 대상에 유지</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>최대 파일 크기</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>이름이 점으로 시작하는 파일 건너뛰기</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>이 크기보다 큰 파일은 백업되지 않습니다.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>이 확장자를 가진 파일은 백업되지 않습니다.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>파일 확장자 입력(예: tmp)</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>건너뛸 파일 확장자</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0은 제한 없음을 의미합니다.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>시스템 기본값</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>새 언어는 Skelda Backup을 다시 시작한 후에 적용됩니다.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>표시 언어</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>로그인할 때 Skelda Backup 시작</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>흑백 메뉴 막대 아이콘 사용</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>프록시 서버에 인증이 필요함</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>프록시 사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>포트는 1에서 65535 사이의 숫자여야 합니다.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>프록시 주소와 포트를 입력하십시오.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>수동 프록시 구성</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>시스템 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>백업 폴더</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>같음</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>보다 큼</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>보다 작음</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>파일 크기</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>임시 파일</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>일</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>분</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>월</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>주</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>보안 경고</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>최근 활동</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>제거된 파일 숨기기</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>제거된 파일 표시</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>새 버전을 사용할 수 있습니다. 클릭하여 업데이트하십시오.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>새 버전 %1을(를) 사용할 수 있습니다. 클릭하여 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Skelda Backup 열기</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>업데이트 중...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>업그레이드</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>%1에서 폴더 선택</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>업그레이드에 실패했습니다.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>대상 폴더에 대한 액세스가 거부되었습니다.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>로그인에 실패했습니다. 사용자 이름과 비밀번호를 확인하십시오.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>이 서버에 연결하려면 최신 버전의 Skelda Backup이 필요합니다.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Skelda Backup을 업그레이드할 수 없습니다. 최신 버전을 다운로드하십시오.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>폴더 %1은(는) 이미 다른 작업에서 백업하고 있습니다.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>대상 폴더를 이미 다른 작업에서 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>서버 주소와 계정 정보를 입력하십시오.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>서버에 연결</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>대상에 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>로컬 네트워크에서 서버 찾기</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>대상 폴더가 유효하지 않습니다.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>네트워크 오류로 인해 대상에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>대상 폴더의 할당량이 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>일부 소스 폴더는 읽기 전용입니다. 백업은 되지만 해당 폴더로 파일을 복원할 수는 없습니다.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>대상 폴더가 읽기 전용입니다.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>서버에 백업 작업을 등록할 수 없습니다.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>서버에서 파일을 보관할 위치를 선택하십시오.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>대상 폴더 설정</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>같은 이름의 공유 폴더가 이미 있습니다.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>대상의 공유 폴더가 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>소스 폴더 %1은(는) 읽기 전용입니다.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>대상의 인증서가 변경되었습니다.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>대상의 인증서를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>아래 설정을 확인한 후 [완료]를 클릭하여 백업을 시작하십시오.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>계정</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>제외된 폴더</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>소스 폴더</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>경로</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>서버</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>대상에서 시스템 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>대상이 다른 사용자에게 속해 있습니다.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>대상에서 계정이 비활성화되어 있습니다.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup은 서버에 폴더의 사본을 보관합니다.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>도움이 필요하십니까? 지식 센터를 방문하십시오.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>이 마법사를 통해 첫 번째 백업 작업을 설정할 수 있습니다.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>소중한 파일을 안전하게</translation>
    </message>
</context>
</TS>

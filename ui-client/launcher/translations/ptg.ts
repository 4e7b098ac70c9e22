<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Adicionar um nome de ficheiro</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Adicionar uma pasta</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendário</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mês seguinte</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mês anterior</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Caixa de diálogo</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Fila de processamento</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Atualizar o registo de cópias de segurança</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Definições de filtro</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destino da cópia de segurança</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>A configuração automática falhou. Configure a ligação manualmente.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>A concluir a configuração automática...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>A chave de ligação foi configurada.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>O computador será encerrado dentro de %1 segundos. Pretende continuar?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Escolha as pastas a copiar</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Selecione as pastas locais a copiar e a pasta do servidor que irá guardá-las.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nenhuma pasta selecionada</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançadas</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Não, obrigado</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Abrir no Finder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Definições de proxy...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Confiar e continuar</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar agora</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desassociar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado em</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Introduza o código de verificação</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Endereço do servidor</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Utilizar uma ligação segura (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Desassociar interrompe todas as tarefas de cópia de segurança deste computador. Pretende desassociar de %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>A desassociar...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Ligar com um ID de associação</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>O Skelda Backup está pronto.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>O Skelda Backup está a inicializar...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Ocorreu um erro inesperado.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>O nome de utilizador ou a palavra-passe está incorreto.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>O serviço de ligação automática não está disponível.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>O ID de associação não é válido.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>A cópia de segurança falhou.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Não foi possível criar a tarefa de cópia de segurança.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>A base de dados local está danificada.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>O disco local está cheio.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>O servidor foi substituído. Associe novamente este computador.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>O servidor não corresponde àquele em que esta tarefa foi criada.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>O serviço de cópia de segurança está desativado no servidor.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>A inicialização falhou.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>O valor introduzido não é válido.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Não são permitidas ligações a partir deste endereço IP.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Não foi possível encontrar a pasta local %1.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Demasiadas tentativas falhadas. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>A rede não está disponível.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Não existe nenhuma pasta válida para copiar.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>É necessária a verificação em dois passos para esta conta.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>O código de verificação não é válido.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Introduza o código de verificação.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>O servidor enviou uma resposta inesperada.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>A sua palavra-passe expirou.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>A quota do destino está esgotada.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>A pasta partilhada não está montada.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Não tem permissão para aceder a esta pasta partilhada.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>O certificado do servidor foi alterado.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Não foi possível verificar o certificado do servidor.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>A direção da cópia de segurança não corresponde às definições do servidor.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>A pasta de destino não está montada.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>As ligações através do serviço de retransmissão estão desativadas.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>O serviço de pasta pessoal do utilizador está desativado.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>As informações do utilizador não estão disponíveis.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Não tem privilégios para utilizar este serviço.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Esta versão do Skelda Backup é demasiado antiga. Atualize-a.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>A versão do servidor não é suportada.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Personalizar</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de datas</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mês passado</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Sexta-feira</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 itens</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Ainda não existe histórico</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>A procurar servidores na rede local...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Última cópia de segurança: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>%1 ficheiros por processar</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>A processar %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>A preparar</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>A enviar</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>A aguardar</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>A ligar...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>A efetuar cópia de segurança...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>A aplicar as definições...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Segunda-feira</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezembro</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Fevereiro</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Janeiro</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julho</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junho</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Março</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maio</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembro</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Outubro</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Setembro</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>Acerca do Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>A verificar a palavra-passe...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Transferência concluída.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>A transferir...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Falha ao carregar as tarefas de cópia de segurança.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>A pasta não existe.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>A quota da pasta partilhada %1 está esgotada.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>O certificado de %1 foi alterado desde a última ligação.\nConfia no novo certificado?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>O certificado de %1 não é fidedigno.\nPretende continuar mesmo assim?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A testar a ligação...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Não foi possível verificar o nome de utilizador.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas seguintes</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Transferir</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Procurar versões</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>Só pode ler ficheiros nesta pasta.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Encerrar o computador após a cópia de segurança</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Encerrar o computador requer privilégios de administrador.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>A cópia de segurança foi cancelada.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Dias da cópia de segurança</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Mostrar uma notificação no ambiente de trabalho quando uma cópia de segurança terminar</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>A cópia de segurança está concluída.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Modo de cópia de segurança</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Efetuar cópia de segurança agora</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Plano de cópia de segurança</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Horas da cópia de segurança</translation>
    </message>
    <message>
        <source>times</source>
        <translation>vezes</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Escolha um modo de cópia de segurança</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Copie as alterações à medida que acontecem, de acordo com um agendamento ou apenas quando o pedir.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Pretende iniciar uma cópia de segurança agora?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Pretende parar a cópia de segurança em curso?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Executar cópias de segurança perdidas</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Inicia uma cópia de segurança agendada que não foi executada enquanto o computador estava desligado.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Selecione pelo menos um dia.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Todos os dias</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Hora da primeira execução</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Hora da última cópia de segurança</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Cópia de segurança manual</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Hora da próxima cópia de segurança</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Uma vez por dia</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Cópia de segurança em tempo real</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>horas</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Executar a cada</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Cópia de segurança agendada</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Definir o plano de cópia de segurança</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Escolha os dias e as horas a que a cópia de segurança é executada.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>A criar instantâneos…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Quinta-feira</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Terça-feira</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Não foi possível atualizar o plano de cópia de segurança.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Quarta-feira</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Dias úteis</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Fim de semana</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Manter os ficheiros no destino quando são eliminados localmente</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamanho máximo de ficheiro</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Ignorar ficheiros cujo nome começa por um ponto</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Os ficheiros maiores do que este tamanho não são copiados.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Os ficheiros com estas extensões não são copiados.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Introduza uma extensão de ficheiro, como tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Extensões de ficheiro a ignorar</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 significa sem limite.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinição do sistema</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>O novo idioma entra em vigor depois de reiniciar o Skelda Backup.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Idioma de apresentação</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Iniciar o Skelda Backup quando iniciar sessão</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Utilizar um ícone a preto e branco na barra de menus</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>O servidor proxy requer autenticação</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Introduza o nome de utilizador do proxy.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>A porta tem de ser um número entre 1 e 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Introduza o endereço e a porta do proxy.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuração manual do proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sem proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Utilizar as definições de proxy do sistema</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Ligação</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Pastas da cópia de segurança</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Igual a</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Maior do que</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Menor do que</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Tamanho do ficheiro</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Ficheiro temporário</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mês</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Aviso de segurança</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Atividade recente</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Ocultar ficheiros removidos</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Mostrar ficheiros removidos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Está disponível uma nova versão. Clique para atualizar.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Está disponível uma nova versão, %1. Clique para atualizar.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Abrir o Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>A atualizar...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Escolha uma pasta em %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Qualquer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>A atualização falhou.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>O acesso à pasta de destino foi negado.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Falha ao iniciar sessão. Verifique o nome de utilizador e a palavra-passe.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>É necessária uma versão mais recente do Skelda Backup para ligar a este servidor.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Não foi possível atualizar o Skelda Backup. Transfira a versão mais recente.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>A pasta %1 já é copiada por outra tarefa.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>A pasta de destino já está a ser utilizada por outra tarefa.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Introduza o endereço do seu servidor e os dados da sua conta.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Ligar ao seu servidor</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Não existe espaço suficiente no destino.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Procurar servidores na rede local</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>A pasta de destino não é válida.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Não é possível aceder ao destino devido a um erro de rede.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>A quota da pasta de destino está esgotada.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Algumas pastas de origem são só de leitura. Serão copiadas, mas não será possível restaurar ficheiros para elas.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>A pasta de destino é só de leitura.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Não foi possível registar a tarefa de cópia de segurança no servidor.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Escolha onde os seus ficheiros são guardados no servidor.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Definir a pasta de destino</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Já existe uma pasta partilhada com este nome.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>A pasta partilhada do destino não existe.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>A pasta de origem %1 é só de leitura.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>O certificado do destino foi alterado.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Não foi possível verificar o certificado do destino.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Verifique as definições abaixo e clique em Concluir para iniciar a cópia de segurança.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Pastas excluídas</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Pastas de origem</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Ocorreu um erro de sistema no destino.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>O destino pertence a outro utilizador.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>A sua conta está desativada no destino.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>O Skelda Backup guarda cópias das suas pastas no seu servidor.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Precisa de ajuda? Visite o nosso centro de conhecimento.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Este assistente ajuda-o a configurar a sua primeira tarefa de cópia de segurança.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Os seus ficheiros, sãos e salvos</translation>
    </message>
</context>
</TS>

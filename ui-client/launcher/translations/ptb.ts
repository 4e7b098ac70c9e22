<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Adicionar um nome de arquivo</translation>
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
        <translation>Próximo mês</translation>
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
        <translation>Atualizar o log de backup</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Configurações de filtro</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destino do backup</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Falha na configuração automática. Configure a conexão manualmente.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Concluindo a configuração automática...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>A chave de conexão foi configurada.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>O computador será desligado em %1 segundos. Deseja continuar?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Escolha as pastas para backup</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Selecione as pastas locais para backup e a pasta no servidor que irá armazená-las.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nenhuma pasta selecionada</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
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
        <translation>Avançar</translation>
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
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Configurações de proxy...</translation>
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
        <translation>Desvincular</translation>
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
        <translation>Digite o código de verificação</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Endereço do servidor</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usar uma conexão segura (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Desvincular interrompe todas as tarefas de backup deste computador. Deseja desvincular de %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Conectar com um ID de vínculo</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>O Skelda Backup está pronto.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>O Skelda Backup está sendo inicializado...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Ocorreu um erro inesperado.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>O nome de usuário ou a senha está incorreto.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>O serviço de conexão automática não está disponível.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>O ID de vínculo não é válido.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>Falha no backup.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Não foi possível criar a tarefa de backup.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>O banco de dados local está danificado.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>O disco local está cheio.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>O servidor foi substituído. Vincule este computador novamente.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>O servidor não corresponde àquele em que esta tarefa foi criada.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>O serviço de backup está desativado no servidor.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Falha na inicialização.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>O valor inserido não é válido.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Conexões deste endereço IP não são permitidas.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Não foi possível encontrar a pasta local %1.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Muitas tentativas malsucedidas. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>A rede não está disponível.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Não há nenhuma pasta válida para backup.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>A verificação em duas etapas é obrigatória para esta conta.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>O código de verificação não é válido.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Digite o código de verificação.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>O servidor enviou uma resposta inesperada.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Sua senha expirou.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>A cota do destino está cheia.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>A pasta compartilhada não está montada.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Você não tem permissão para acessar esta pasta compartilhada.</translation>
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
        <translation>A direção do backup não corresponde às configurações do servidor.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>A pasta de destino não está montada.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>As conexões pelo serviço de retransmissão estão desativadas.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>O serviço de pasta pessoal do usuário está desativado.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>As informações do usuário não estão disponíveis.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Você não tem privilégio para usar este serviço.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Esta versão do Skelda Backup é muito antiga. Atualize-a.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>A versão do servidor não é compatível.</translation>
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
        <translation>Redefinir</translation>
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
        <translation>Nenhum histórico ainda</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Procurando servidores na rede local...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Último backup: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>%1 arquivos restantes para processar</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Processando %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
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
        <translation>Preparando</translation>
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
        <translation>Enviando</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausado</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Fazendo backup...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando configurações...</translation>
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
        <translation>Sobre o Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Verificando a senha...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download concluído.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Falha ao carregar as tarefas de backup.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>A pasta não existe.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>A cota da pasta compartilhada %1 está cheia.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>O certificado de %1 foi alterado desde a última conexão.\nVocê confia no novo certificado?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>O certificado de %1 não é confiável.\nDeseja continuar mesmo assim?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testando a conexão...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Não foi possível verificar o nome de usuário.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Próximas %1 páginas</translation>
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
        <translation>Baixar</translation>
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
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>Você só pode ler arquivos nesta pasta.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Desligar o computador após o backup</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Desligar o computador requer privilégios de administrador.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>O backup foi cancelado.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Dias de backup</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Mostrar uma notificação na área de trabalho quando um backup terminar</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>O backup foi concluído.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Modo de backup</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Fazer backup agora</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Plano de backup</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Horários de backup</translation>
    </message>
    <message>
        <source>times</source>
        <translation>vezes</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Escolha um modo de backup</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Faça backup das alterações à medida que ocorrem, de acordo com um agendamento ou somente quando você solicitar.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Deseja iniciar um backup agora?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Deseja interromper o backup em execução?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Executar backups perdidos</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Inicia um backup agendado que foi perdido enquanto o computador estava desligado.</translation>
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
        <translation>Horário da primeira execução</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Horário do último backup</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Backup manual</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Horário do próximo backup</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Uma vez por dia</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Backup em tempo real</translation>
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
        <translation>Backup agendado</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Definir o plano de backup</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Escolha os dias e horários em que o backup será executado.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Criando snapshots…</translation>
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
        <translation>Não foi possível atualizar o plano de backup.</translation>
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
        <translation>Manter os arquivos no destino quando forem excluídos localmente</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamanho máximo de arquivo</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Ignorar arquivos cujos nomes começam com ponto</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Arquivos maiores que este tamanho não são incluídos no backup.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Arquivos com estas extensões não são incluídos no backup.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Digite uma extensão de arquivo, como tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Extensões de arquivo a ignorar</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 significa sem limite.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>O novo idioma entra em vigor após reiniciar o Skelda Backup.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Idioma de exibição</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Iniciar o Skelda Backup quando eu fizer login</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Usar um ícone preto e branco na barra de menus</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>O servidor proxy requer autenticação</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Digite o nome de usuário do proxy.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>A porta deve ser um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Digite o endereço e a porta do proxy.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuração manual de proxy</translation>
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
        <translation>Usar as configurações de proxy do sistema</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Pastas de backup</translation>
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
        <translation>Maior que</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Menor que</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Tamanho do arquivo</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Arquivo temporário</translation>
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
        <translation>Ocultar arquivos removidos</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Mostrar arquivos removidos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Uma nova versão está disponível. Clique para atualizar.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Uma nova versão, %1, está disponível. Clique para atualizar.</translation>
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
        <translation>Atualizando...</translation>
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
        <translation>Falha na atualização.</translation>
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
        <translation>Falha no login. Verifique seu nome de usuário e senha.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>É necessária uma versão mais recente do Skelda Backup para se conectar a este servidor.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Não foi possível atualizar o Skelda Backup. Baixe a versão mais recente.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>A pasta %1 já está incluída no backup de outra tarefa.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>A pasta de destino já está sendo usada por outra tarefa.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Digite o endereço do seu servidor e os dados da sua conta.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Conectar ao seu servidor</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>Não há espaço suficiente no destino.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Encontrar servidores na rede local</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>A pasta de destino não é válida.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>Não é possível acessar o destino devido a um erro de rede.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>A cota da pasta de destino está cheia.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Algumas pastas de origem são somente leitura. Elas serão incluídas no backup, mas não será possível restaurar arquivos nelas.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>A pasta de destino é somente leitura.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Não foi possível registrar a tarefa de backup no servidor.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Escolha onde seus arquivos serão armazenados no servidor.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Definir a pasta de destino</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Já existe uma pasta compartilhada com este nome.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>A pasta compartilhada do destino não existe.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>A pasta de origem %1 é somente leitura.</translation>
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
        <translation>Verifique as configurações abaixo e clique em Concluir para iniciar o backup.</translation>
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
        <translation>O destino pertence a outro usuário.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Sua conta está desativada no destino.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>O Skelda Backup mantém cópias das suas pastas no seu servidor.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Precisa de ajuda? Visite nossa central de conhecimento.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Este assistente ajuda você a configurar sua primeira tarefa de backup.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Seus arquivos, sãos e salvos</translation>
    </message>
</context>
</TS>

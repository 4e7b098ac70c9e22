<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Añadir un nombre de archivo</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Añadir una carpeta</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Cuadro de diálogo</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>Cola de procesamiento</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Actualizar el registro de copias de seguridad</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Configuración del filtro</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destino de la copia de seguridad</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>La configuración automática ha fallado. Configure la conexión manualmente.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Finalizando la configuración automática...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>Se ha configurado la clave de conexión.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>El equipo se apagará en %1 segundos. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Elegir las carpetas de las que hacer copia de seguridad</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Seleccione las carpetas locales de las que desea hacer copia de seguridad y la carpeta del servidor donde se guardarán.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>No hay ninguna carpeta seleccionada</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
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
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, gracias</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Abrir en el Finder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Configuración del proxy...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Confiar y continuar</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar ahora</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
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
        <translation>Introduzca el código de verificación</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usar una conexión segura (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>Al desvincular se detienen todas las tareas de copia de seguridad de este equipo. ¿Desea desvincularse de %1?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Conectar con un ID de vínculo</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup está listo.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Skelda Backup se está iniciando...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Se ha producido un error inesperado.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>El nombre de usuario o la contraseña no son correctos.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>El servicio de conexión automática no está disponible.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>El ID de vínculo no es válido.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>La copia de seguridad ha fallado.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>No se ha podido crear la tarea de copia de seguridad.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>La base de datos local está dañada.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>El disco local está lleno.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>El servidor ha sido reemplazado. Vuelva a vincular este equipo.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>El servidor no coincide con aquel en el que se creó esta tarea.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>El servicio de copia de seguridad está desactivado en el servidor.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>Error en la inicialización.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>El valor introducido no es válido.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>No se permiten conexiones desde esta dirección IP.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>No se encuentra la carpeta local %1.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Demasiados intentos fallidos. Vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>La red no está disponible.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>No hay ninguna carpeta válida de la que hacer copia de seguridad.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>Esta cuenta requiere la verificación en dos pasos.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>El código de verificación no es válido.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Introduzca el código de verificación.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>El servidor ha enviado una respuesta inesperada.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Su contraseña ha caducado.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>La cuota del destino está llena.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>La carpeta compartida no está montada.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>No tiene permiso para acceder a esta carpeta compartida.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>El certificado del servidor ha cambiado.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>No se ha podido verificar el certificado del servidor.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>La dirección de la copia de seguridad no coincide con la configuración del servidor.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>La carpeta de destino no está montada.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Las conexiones a través del servicio de retransmisión están desactivadas.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>El servicio de carpetas personales de usuario está desactivado.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>La información del usuario no está disponible.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>No tiene privilegios para usar este servicio.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Esta versión de Skelda Backup es demasiado antigua. Actualícela.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>La versión del servidor no es compatible.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Personalizar</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de fechas</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>El mes pasado</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semana pasada</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementos</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Todavía no hay historial</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Buscando servidores en la red local...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Última copia de seguridad: %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>Quedan %1 archivos por procesar</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Procesando %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completado</translation>
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
        <translation>Cola</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Subiendo</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Realizando copia de seguridad...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando la configuración...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
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
        <translation>Diciembre</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Febrero</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Enero</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julio</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junio</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayo</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Noviembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Octubre</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Septiembre</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>Acerca de Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Comprobando la contraseña...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Descarga completada.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>No se han podido cargar las tareas de copia de seguridad.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>La cuota de la carpeta compartida %1 está llena.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>El certificado de %1 ha cambiado desde la última conexión.\n¿Confía en el nuevo certificado?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>El certificado de %1 no es de confianza.\n¿Desea continuar de todos modos?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>No se puede verificar el nombre de usuario.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas siguientes</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Examinar versiones</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>En esta carpeta solo puede leer archivos.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Apagar el equipo después de la copia de seguridad</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>Para apagar el equipo se necesitan privilegios de administrador.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>Se ha cancelado la copia de seguridad.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Días de copia de seguridad</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Mostrar una notificación en el escritorio al terminar una copia de seguridad</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>La copia de seguridad se ha completado.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Modo de copia de seguridad</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Hacer copia de seguridad ahora</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Plan de copia de seguridad</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Horas de copia de seguridad</translation>
    </message>
    <message>
        <source>times</source>
        <translation>veces</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Elegir un modo de copia de seguridad</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Haga copia de seguridad de los cambios en cuanto se produzcan, según una programación o solo cuando lo solicite.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>¿Desea iniciar ahora una copia de seguridad?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>¿Desea detener la copia de seguridad en curso?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Ejecutar copias de seguridad omitidas</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Iniciar una copia de seguridad programada que no se realizó mientras el equipo estaba apagado.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Seleccione al menos un día.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Todos los días</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Hora de la primera ejecución</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Hora de la última copia de seguridad</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Copia de seguridad manual</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Hora de la próxima copia de seguridad</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Una vez al día</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Copia de seguridad en tiempo real</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>horas</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Ejecutar cada</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Copia de seguridad programada</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Establecer el plan de copia de seguridad</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Elija los días y las horas en que se ejecuta la copia de seguridad.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Creando instantáneas…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>No se ha podido actualizar el plan de copia de seguridad.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Días laborables</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Fin de semana</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Conservar los archivos en el destino cuando se eliminen localmente</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamaño máximo de archivo</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Omitir los archivos cuyo nombre empiece por un punto</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>No se hace copia de seguridad de los archivos que superen este tamaño.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>No se hace copia de seguridad de los archivos con estas extensiones.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Introduzca una extensión de archivo, por ejemplo, tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Extensiones de archivo que se omitirán</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 significa sin límite.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>El nuevo idioma se aplicará cuando se reinicie Skelda Backup.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Idioma de la interfaz</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Iniciar Skelda Backup al iniciar sesión</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Usar un icono en blanco y negro en la barra de menús</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>El servidor proxy requiere autenticación</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Introduzca el nombre de usuario del proxy.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>El puerto debe ser un número entre 1 y 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Introduzca la dirección y el puerto del proxy.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuración manual del proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sin proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Usar la configuración de proxy del sistema</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Carpetas de copia de seguridad</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Igual a</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Mayor que</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Menor que</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Tamaño del archivo</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Archivo temporal</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
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
        <translation>Mes</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Advertencia de seguridad</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Actividad reciente</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Ocultar archivos eliminados</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Mostrar archivos eliminados</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Hay una nueva versión disponible. Haga clic para actualizar.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Hay una nueva versión (%1) disponible. Haga clic para actualizar.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Abrir Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Actualizando...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Elegir una carpeta en %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Cualquiera</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>La actualización ha fallado.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>Se ha denegado el acceso a la carpeta de destino.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>No se ha podido iniciar sesión. Compruebe su nombre de usuario y contraseña.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>Se necesita una versión más reciente de Skelda Backup para conectarse a este servidor.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>No se ha podido actualizar Skelda Backup. Descargue la versión más reciente.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Otra tarea ya hace copia de seguridad de la carpeta %1.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>Otra tarea ya está usando la carpeta de destino.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Introduzca la dirección de su servidor y los datos de su cuenta.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Conectarse al servidor</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>No hay suficiente espacio en el destino.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Buscar servidores en la red local</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>La carpeta de destino no es válida.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>No se puede acceder al destino debido a un error de red.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>La cuota de la carpeta de destino está llena.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Algunas carpetas de origen son de solo lectura. Se hará copia de seguridad de ellas, pero no se podrán restaurar archivos en ellas.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>La carpeta de destino es de solo lectura.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>No se ha podido registrar la tarea de copia de seguridad en el servidor.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Elija en qué lugar del servidor se guardarán sus archivos.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Establecer la carpeta de destino</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Ya existe una carpeta compartida con este nombre.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>La carpeta compartida del destino no existe.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>La carpeta de origen %1 es de solo lectura.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>El certificado del destino ha cambiado.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>No se ha podido verificar el certificado del destino.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Compruebe la configuración siguiente y haga clic en Finalizar para iniciar la copia de seguridad.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Carpetas excluidas</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Carpetas de origen</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Se ha producido un error del sistema en el destino.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>El destino pertenece a otro usuario.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Su cuenta está desactivada en el destino.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup guarda copias de sus carpetas en su servidor.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>¿Necesita ayuda? Visite nuestro centro de conocimientos.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Este asistente le ayuda a configurar su primera tarea de copia de seguridad.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Sus archivos, sanos y salvos</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>global</name>
    <message>
        <source>Add a file name</source>
        <translation>Ajouter un nom de fichier</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Processing queue</source>
        <translation>File de traitement</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Actualiser le journal de sauvegarde</translation>
    </message>
    <message>
        <source>Filter settings</source>
        <translation>Paramètres de filtre</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destination de sauvegarde</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Skelda Backup</source>
        <translation>Skelda Backup</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>La configuration automatique a échoué. Veuillez configurer la connexion manuellement.</translation>
    </message>
    <message>
        <source>Finishing the automatic setup...</source>
        <translation>Finalisation de la configuration automatique...</translation>
    </message>
    <message>
        <source>The connection key has been configured.</source>
        <translation>La clé de connexion a été configurée.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds. Do you want to continue?</source>
        <translation>L&apos;ordinateur va s&apos;éteindre dans %1 secondes. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Choisir les dossiers à sauvegarder</translation>
    </message>
    <message>
        <source>Select the local folders to back up and the folder on the server that will keep them.</source>
        <translation>Sélectionnez les dossiers locaux à sauvegarder et le dossier du serveur qui les conservera.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Aucun dossier sélectionné</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Non, merci</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Ouvrir dans le Finder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Proxy settings...</source>
        <translation>Paramètres du proxy...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Faire confiance et continuer</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Démarrer maintenant</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créé le</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Saisissez le code de vérification</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Utiliser une connexion sécurisée (SSL)</translation>
    </message>
    <message>
        <source>Unlinking stops all backup tasks of this computer. Do you want to unlink from %1?</source>
        <translation>La dissociation arrête toutes les tâches de sauvegarde de cet ordinateur. Voulez-vous vous dissocier de %1 ?</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Dissociation...</translation>
    </message>
    <message>
        <source>Connect with a link ID</source>
        <translation>Se connecter avec un ID de liaison</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Skelda Backup is ready.</source>
        <translation>Skelda Backup est prêt.</translation>
    </message>
    <message>
        <source>Skelda Backup is initializing...</source>
        <translation>Initialisation de Skelda Backup...</translation>
    </message>
    <message>
        <source>An unexpected error occurred.</source>
        <translation>Une erreur inattendue s&apos;est produite.</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>The automatic connection service is not available.</source>
        <translation>Le service de connexion automatique n&apos;est pas disponible.</translation>
    </message>
    <message>
        <source>The link ID is not valid.</source>
        <translation>L&apos;ID de liaison n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>The backup failed.</source>
        <translation>La sauvegarde a échoué.</translation>
    </message>
    <message>
        <source>The backup task could not be created.</source>
        <translation>Impossible de créer la tâche de sauvegarde.</translation>
    </message>
    <message>
        <source>The local database is damaged.</source>
        <translation>La base de données locale est endommagée.</translation>
    </message>
    <message>
        <source>The local disk is full.</source>
        <translation>Le disque local est plein.</translation>
    </message>
    <message>
        <source>The server has been replaced. Please link this computer again.</source>
        <translation>Le serveur a été remplacé. Veuillez associer à nouveau cet ordinateur.</translation>
    </message>
    <message>
        <source>The server does not match the one this task was created on.</source>
        <translation>Le serveur ne correspond pas à celui sur lequel cette tâche a été créée.</translation>
    </message>
    <message>
        <source>The backup service is disabled on the server.</source>
        <translation>Le service de sauvegarde est désactivé sur le serveur.</translation>
    </message>
    <message>
        <source>Initialization failed.</source>
        <translation>L&apos;initialisation a échoué.</translation>
    </message>
    <message>
        <source>The entered value is not valid.</source>
        <translation>La valeur saisie n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>Connections from this IP address are not allowed.</source>
        <translation>Les connexions depuis cette adresse IP ne sont pas autorisées.</translation>
    </message>
    <message>
        <source>The local folder %1 cannot be found.</source>
        <translation>Le dossier local %1 est introuvable.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Trop de tentatives infructueuses. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>The network is not available.</source>
        <translation>Le réseau n&apos;est pas disponible.</translation>
    </message>
    <message>
        <source>There is no valid folder to back up.</source>
        <translation>Aucun dossier valide à sauvegarder.</translation>
    </message>
    <message>
        <source>Two-step verification is required for this account.</source>
        <translation>La validation en deux étapes est requise pour ce compte.</translation>
    </message>
    <message>
        <source>The verification code is not valid.</source>
        <translation>Le code de vérification n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Veuillez saisir le code de vérification.</translation>
    </message>
    <message>
        <source>The server sent an unexpected reply.</source>
        <translation>Le serveur a envoyé une réponse inattendue.</translation>
    </message>
    <message>
        <source>Your password has expired.</source>
        <translation>Votre mot de passe a expiré.</translation>
    </message>
    <message>
        <source>The quota of the destination is full.</source>
        <translation>Le quota de la destination est atteint.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted.</source>
        <translation>Le dossier partagé n&apos;est pas monté.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Vous n&apos;avez pas l&apos;autorisation d&apos;accéder à ce dossier partagé.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Le certificat du serveur a changé.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Impossible de vérifier le certificat du serveur.</translation>
    </message>
    <message>
        <source>The backup direction does not match the server settings.</source>
        <translation>Le sens de la sauvegarde ne correspond pas aux paramètres du serveur.</translation>
    </message>
    <message>
        <source>The destination folder is not mounted.</source>
        <translation>Le dossier de destination n&apos;est pas monté.</translation>
    </message>
    <message>
        <source>Connections through the relay service are disabled.</source>
        <translation>Les connexions via le service de relais sont désactivées.</translation>
    </message>
    <message>
        <source>The user home service is disabled.</source>
        <translation>Le service de dossier personnel des utilisateurs est désactivé.</translation>
    </message>
    <message>
        <source>The user information is not available.</source>
        <translation>Les informations de l&apos;utilisateur ne sont pas disponibles.</translation>
    </message>
    <message>
        <source>You do not have the privilege to use this service.</source>
        <translation>Vous n&apos;avez pas le privilège d&apos;utiliser ce service.</translation>
    </message>
    <message>
        <source>This version of Skelda Backup is too old. Please upgrade it.</source>
        <translation>Cette version de Skelda Backup est trop ancienne. Veuillez la mettre à niveau.</translation>
    </message>
    <message>
        <source>The server version is not supported.</source>
        <translation>La version du serveur n&apos;est pas prise en charge.</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Personnaliser</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Plage de dates</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Le mois dernier</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semaine dernière</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 éléments</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Aucun historique pour le moment</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Searching for servers on the local network...</source>
        <translation>Recherche de serveurs sur le réseau local...</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Dernière sauvegarde : %1</translation>
    </message>
    <message>
        <source>%1 files left to process</source>
        <translation>%1 fichiers restant à traiter</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Traitement de %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Préparation</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>File d&apos;attente</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Envoi en cours</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Suspendu</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sauvegarde en cours...</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Avril</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Août</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Décembre</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Février</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Janvier</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juillet</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juin</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mars</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Octobre</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Septembre</translation>
    </message>
    <message>
        <source>About Skelda Backup</source>
        <translation>À propos de Skelda Backup</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Vérification du mot de passe...</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Téléchargement terminé.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Failed to load the backup tasks.</source>
        <translation>Impossible de charger les tâches de sauvegarde.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Le dossier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The quota of the shared folder %1 is full.</source>
        <translation>Le quota du dossier partagé %1 est atteint.</translation>
    </message>
    <message>
        <source>The certificate of %1 has changed since the last connection.\nDo you trust the new certificate?</source>
        <translation>Le certificat de %1 a changé depuis la dernière connexion.\nFaites-vous confiance au nouveau certificat ?</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.\nDo you want to continue anyway?</source>
        <translation>Le certificat de %1 n&apos;est pas approuvé.\nVoulez-vous continuer quand même ?</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>The username cannot be verified.</source>
        <translation>Impossible de vérifier le nom d&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pages suivantes</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Nettoyer</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Parcourir les versions</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pages précédentes</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>You can only read files in this folder.</source>
        <translation>Vous pouvez uniquement lire les fichiers de ce dossier.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Shut down the computer after the backup</source>
        <translation>Éteindre l&apos;ordinateur après la sauvegarde</translation>
    </message>
    <message>
        <source>Shutting down the computer requires administrator privileges.</source>
        <translation>L&apos;arrêt de l&apos;ordinateur nécessite des privilèges d&apos;administrateur.</translation>
    </message>
    <message>
        <source>The backup was cancelled.</source>
        <translation>La sauvegarde a été annulée.</translation>
    </message>
    <message>
        <source>Backup days</source>
        <translation>Jours de sauvegarde</translation>
    </message>
    <message>
        <source>Show a desktop notification when a backup ends</source>
        <translation>Afficher une notification sur le bureau à la fin d&apos;une sauvegarde</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>La sauvegarde est terminée.</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Mode de sauvegarde</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Sauvegarder maintenant</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Planification de la sauvegarde</translation>
    </message>
    <message>
        <source>Backup times</source>
        <translation>Heures de sauvegarde</translation>
    </message>
    <message>
        <source>times</source>
        <translation>fois</translation>
    </message>
    <message>
        <source>Choose a backup mode</source>
        <translation>Choisir un mode de sauvegarde</translation>
    </message>
    <message>
        <source>Back up changes as they happen, on a schedule, or only when you ask.</source>
        <translation>Sauvegardez les modifications au fur et à mesure, selon une planification ou uniquement à la demande.</translation>
    </message>
    <message>
        <source>Do you want to start a backup now?</source>
        <translation>Voulez-vous démarrer une sauvegarde maintenant ?</translation>
    </message>
    <message>
        <source>Do you want to stop the running backup?</source>
        <translation>Voulez-vous arrêter la sauvegarde en cours ?</translation>
    </message>
    <message>
        <source>Run missed backups</source>
        <translation>Exécuter les sauvegardes manquées</translation>
    </message>
    <message>
        <source>Start a scheduled backup that was missed while the computer was off.</source>
        <translation>Démarrer une sauvegarde planifiée qui a été manquée pendant que l&apos;ordinateur était éteint.</translation>
    </message>
    <message>
        <source>Please select at least one day.</source>
        <translation>Veuillez sélectionner au moins un jour.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Tous les jours</translation>
    </message>
    <message>
        <source>First run time</source>
        <translation>Heure de la première exécution</translation>
    </message>
    <message>
        <source>Last backup time</source>
        <translation>Heure de la dernière sauvegarde</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Sauvegarde manuelle</translation>
    </message>
    <message>
        <source>Next backup time</source>
        <translation>Heure de la prochaine sauvegarde</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Une fois par jour</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Real-time backup</source>
        <translation>Sauvegarde en temps réel</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>heures</translation>
    </message>
    <message>
        <source>Run every</source>
        <translation>Exécuter toutes les</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Sauvegarde planifiée</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Définir la planification de la sauvegarde</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Choisissez les jours et les heures d&apos;exécution de la sauvegarde.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Taking snapshots…</source>
        <translation>Création des instantanés…</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>The backup plan could not be updated.</source>
        <translation>Impossible de mettre à jour la planification de la sauvegarde.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Jours de semaine</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Week-end</translation>
    </message>
    <message>
        <source>Keep files on the destination when they are deleted locally</source>
        <translation>Conserver les fichiers sur la destination lorsqu&apos;ils sont supprimés localement</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Taille de fichier maximale</translation>
    </message>
    <message>
        <source>Skip files whose names begin with a dot</source>
        <translation>Ignorer les fichiers dont le nom commence par un point</translation>
    </message>
    <message>
        <source>Files larger than this size are not backed up.</source>
        <translation>Les fichiers dépassant cette taille ne sont pas sauvegardés.</translation>
    </message>
    <message>
        <source>Files with these extensions are not backed up.</source>
        <translation>Les fichiers portant ces extensions ne sont pas sauvegardés.</translation>
    </message>
    <message>
        <source>Enter a file extension, such as tmp</source>
        <translation>Saisissez une extension de fichier, par exemple tmp</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Extensions de fichier à ignorer</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 signifie aucune limite.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Paramètre par défaut du système</translation>
    </message>
    <message>
        <source>The new language takes effect after Skelda Backup restarts.</source>
        <translation>La nouvelle langue prendra effet après le redémarrage de Skelda Backup.</translation>
    </message>
    <message>
        <source>Display language</source>
        <translation>Langue d&apos;affichage</translation>
    </message>
    <message>
        <source>Start Skelda Backup when I log in</source>
        <translation>Démarrer Skelda Backup à l&apos;ouverture de session</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Utiliser une icône noir et blanc dans la barre des menus</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Le serveur proxy nécessite une authentification</translation>
    </message>
    <message>
        <source>Please enter the proxy username.</source>
        <translation>Veuillez saisir le nom d&apos;utilisateur du proxy.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Le port doit être un nombre compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Please enter the proxy address and port.</source>
        <translation>Veuillez saisir l&apos;adresse et le port du proxy.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuration manuelle du proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Aucun proxy</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Utiliser les paramètres proxy du système</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Dossiers de sauvegarde</translation>
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
        <translation>Activé</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Égal à</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Supérieur à</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Inférieur à</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>Temporary file</source>
        <translation>Fichier temporaire</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Avertissement de sécurité</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Activité récente</translation>
    </message>
    <message>
        <source>Hide removed files</source>
        <translation>Masquer les fichiers supprimés</translation>
    </message>
    <message>
        <source>Show removed files</source>
        <translation>Afficher les fichiers supprimés</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Une nouvelle version est disponible. Cliquez pour mettre à jour.</translation>
    </message>
    <message>
        <source>A new version, %1, is available. Click to update.</source>
        <translation>Une nouvelle version (%1) est disponible. Cliquez pour mettre à jour.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Open Skelda Backup</source>
        <translation>Ouvrir Skelda Backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Mise à jour...</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Mettre à niveau</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>Choose a folder on %1</source>
        <translation>Choisir un dossier sur %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>The upgrade failed.</source>
        <translation>La mise à niveau a échoué.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Access to the destination folder was denied.</source>
        <translation>L&apos;accès au dossier de destination a été refusé.</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your username and password.</source>
        <translation>Échec de la connexion. Veuillez vérifier votre nom d&apos;utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>A newer version of Skelda Backup is required to connect to this server.</source>
        <translation>Une version plus récente de Skelda Backup est requise pour se connecter à ce serveur.</translation>
    </message>
    <message>
        <source>Skelda Backup could not be upgraded. Please download the latest version.</source>
        <translation>Impossible de mettre à niveau Skelda Backup. Veuillez télécharger la dernière version.</translation>
    </message>
    <message>
        <source>The folder %1 is already backed up by another task.</source>
        <translation>Le dossier %1 est déjà sauvegardé par une autre tâche.</translation>
    </message>
    <message>
        <source>The destination folder is already used by another task.</source>
        <translation>Le dossier de destination est déjà utilisé par une autre tâche.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account.</source>
        <translation>Saisissez l&apos;adresse de votre serveur et les informations de votre compte.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connexion à votre serveur</translation>
    </message>
    <message>
        <source>There is not enough space on the destination.</source>
        <translation>L&apos;espace disponible sur la destination est insuffisant.</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Rechercher des serveurs sur le réseau local</translation>
    </message>
    <message>
        <source>The destination folder is not valid.</source>
        <translation>Le dossier de destination n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>The destination cannot be reached because of a network error.</source>
        <translation>La destination est inaccessible en raison d&apos;une erreur réseau.</translation>
    </message>
    <message>
        <source>The quota of the destination folder is full.</source>
        <translation>Le quota du dossier de destination est atteint.</translation>
    </message>
    <message>
        <source>Some source folders are read-only. They will be backed up, but files cannot be restored into them.</source>
        <translation>Certains dossiers source sont en lecture seule. Ils seront sauvegardés, mais aucun fichier ne pourra y être restauré.</translation>
    </message>
    <message>
        <source>The destination folder is read-only.</source>
        <translation>Le dossier de destination est en lecture seule.</translation>
    </message>
    <message>
        <source>The backup task could not be registered on the server.</source>
        <translation>Impossible d&apos;enregistrer la tâche de sauvegarde sur le serveur.</translation>
    </message>
    <message>
        <source>Choose where on the server your files are kept.</source>
        <translation>Choisissez l&apos;emplacement du serveur où vos fichiers seront conservés.</translation>
    </message>
    <message>
        <source>Set the destination folder</source>
        <translation>Définir le dossier de destination</translation>
    </message>
    <message>
        <source>A shared folder with this name already exists.</source>
        <translation>Un dossier partagé portant ce nom existe déjà.</translation>
    </message>
    <message>
        <source>The shared folder of the destination does not exist.</source>
        <translation>Le dossier partagé de la destination n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The source folder %1 is read-only.</source>
        <translation>Le dossier source %1 est en lecture seule.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate has changed.</source>
        <translation>Le certificat de la destination a changé.</translation>
    </message>
    <message>
        <source>The destination&apos;s certificate could not be verified.</source>
        <translation>Impossible de vérifier le certificat de la destination.</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done to start the backup.</source>
        <translation>Vérifiez les paramètres ci-dessous, puis cliquez sur Terminer pour démarrer la sauvegarde.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Dossiers exclus</translation>
    </message>
    <message>
        <source>Source folders</source>
        <translation>Dossiers source</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>A system error occurred on the destination.</source>
        <translation>Une erreur système s&apos;est produite sur la destination.</translation>
    </message>
    <message>
        <source>The destination belongs to a different user.</source>
        <translation>La destination appartient à un autre utilisateur.</translation>
    </message>
    <message>
        <source>Your account is disabled on the destination.</source>
        <translation>Votre compte est désactivé sur la destination.</translation>
    </message>
    <message>
        <source>Skelda Backup keeps copies of your folders on your server.</source>
        <translation>Skelda Backup conserve des copies de vos dossiers sur votre serveur.</translation>
    </message>
    <message>
        <source>Need help? Visit our knowledge center.</source>
        <translation>Besoin d&apos;aide ? Consultez notre centre de connaissances.</translation>
    </message>
    <message>
        <source>This wizard helps you set up your first backup task.</source>
        <translation>Cet assistant vous aide à configurer votre première tâche de sauvegarde.</translation>
    </message>
    <message>
        <source>Your files, safe and sound</source>
        <translation>Vos fichiers, sains et saufs</translation>
    </message>
</context>
</TS>

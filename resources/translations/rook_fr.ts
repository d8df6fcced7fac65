<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Rook</name>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: there is no session bus to reach Rook through</source>
        <translation>rook: aucun bus de session ne permet de joindre Rook</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook waits for the script that calls it. %@</source>
        <translation>Rook attend le script qui l’appelle. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>the command could not run</source>
        <translation>la commande n’a pas pu être exécutée</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>the output could not be written</source>
        <translation>la sortie n’a pas pu être écrite</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook has not ended yet</source>
        <translation>Rook n’est pas encore terminé</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook could not be started. %@</source>
        <translation>Rook n’a pas pu être démarré. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: Rook is busy and answers later. %@</source>
        <translation>rook: Rook est occupé et répondra plus tard. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook has ended without an answer; start it with “rook” to see why</source>
        <translation>Rook s’est terminé sans répondre ; lancez-le avec « rook » pour voir pourquoi</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: Rook is not running; start it with “rook”</source>
        <translation>rook: Rook n’est pas en cours d’exécution ; lancez-le avec « rook »</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>done</source>
        <translation>terminé</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>usage error</source>
        <translation>erreur d’utilisation</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>no resident process</source>
        <translation>aucun processus résident</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Replace what is stored already</source>
        <translation>Remplacer ce qui est déjà mémorisé</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember every window</source>
        <translation>Mémoriser toutes les fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Ask on the screen whether to replace what is stored</source>
        <translation>Demander à l’écran s’il faut remplacer ce qui est mémorisé</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Print JSON instead of a table</source>
        <translation>Produire du JSON au lieu d’un tableau</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Put every window back</source>
        <translation>Restaurer toutes les fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Put back the windows of one application</source>
        <translation>Restaurer les fenêtres d’une application</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>The application's identifier; the active application without it</source>
        <translation>L’identifiant de l’application ; sans lui, l’application active</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember the windows of the active application</source>
        <translation>Mémoriser les fenêtres de l’application active</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember the active window</source>
        <translation>Mémoriser la fenêtre active</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Link the active window to a stored window</source>
        <translation>Associer la fenêtre active à une fenêtre mémorisée</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Open the status menu at the pointer</source>
        <translation>Ouvrir le menu de Rook sous le pointeur</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the list of stored windows</source>
        <translation>Afficher la liste des fenêtres mémorisées</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the preferences</source>
        <translation>Afficher les préférences</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show version and credits</source>
        <translation>Afficher la version et les remerciements</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Look for a newer version</source>
        <translation>Rechercher une version plus récente</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>End the resident process</source>
        <translation>Terminer le processus résident</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show displays, counts, back end, permission</source>
        <translation>Afficher les écrans, les nombres, le moteur et l’autorisation</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show what is stored</source>
        <translation>Afficher ce qui est mémorisé</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the live windows as Rook sees them</source>
        <translation>Afficher les fenêtres ouvertes telles que Rook les voit</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show what a restore would do, and why; changes nothing</source>
        <translation>Afficher ce que ferait une restauration, et pourquoi, sans rien changer</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>One application's identifier</source>
        <translation>L’identifiant d’une application</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Exit codes: %@.</source>
        <translation>Codes de retour : %@.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Without a command Rook starts its resident process in the foreground. Where Rook is installed, a
command that does something starts it, too; list, plan, quit, status and windows never do.</source>
        <translation>Sans commande, Rook démarre son processus résident au premier plan. Là où Rook est installé, une
commande qui agit le démarre aussi ; list, plan, quit, status et windows ne le font jamais.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>not expected: %@</source>
        <translation>inattendu : %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>not both: %@</source>
        <translation>incompatibles : %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>rook: %@
Run “rook --help” for more information.</source>
        <translation>rook: %@
Pour en savoir plus, exécutez « rook --help ».</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Usage</source>
        <translation>Utilisation</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>OPTIONS</source>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>SUBCOMMAND</source>
        <translation>COMMANDE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Arguments</source>
        <translation>Arguments</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>TEXT</source>
        <translation>TEXTE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Excludes</source>
        <translation>Exclut</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Print this help message and exit</source>
        <translation>Afficher cette aide</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Rook remembers where your windows stand, per set of displays, and puts them back.</source>
        <translation>Rook mémorise l’emplacement de vos fenêtres, pour chaque configuration d’écrans, et les remet en place.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Display program version information and exit</source>
        <translation>Afficher la version du programme</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Start without tray or windows</source>
        <translation>Démarrer sans icône ni fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Log debug messages too</source>
        <translation>Consigner aussi les messages de débogage</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Subcommands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@×%@ at %@,%@</source>
        <translation>%@×%@ en %@,%@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>desktop %@</source>
        <translation>bureau %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>desktop %@ “%@”</source>
        <translation>bureau %@ « %@ »</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ (not to be had: %@)</source>
        <translation>%@ (indisponible : %@)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>DISPLAY</source>
        <translation>ÉCRAN</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>BOUNDS</source>
        <translation>LIMITES</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>PRODUCT</source>
        <translation>MODÈLE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>MAIN</source>
        <translation>PRINCIPAL</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>%@: %@</source>
        <translation>%@ : %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Process</source>
        <translation>Processus</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Store</source>
        <translation>Fichier de données</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Back end</source>
        <translation>Moteur</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@, window manager %@</source>
        <translation>%@, gestionnaire de fenêtres %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source> (no)</source>
        <translation> (non)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Capabilities</source>
        <translation>Capacités</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Permission</source>
        <translation>Autorisation</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Missing</source>
        <translation>Il manque</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Current workspace</source>
        <translation>Disposition actuelle</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Stored</source>
        <translation>Mémorisé</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>workspaces: %@, applications: %@, windows: %@</source>
        <translation>Dispositions : %@, applications : %@, fenêtres : %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Hot key</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Doing</source>
        <translation>En cours</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WORKSPACE</source>
        <translation>DISPOSITION</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>APPLICATION</source>
        <translation>APPLICATION</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WINDOW</source>
        <translation>FENÊTRE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FRAME</source>
        <translation>CADRE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>STATE</source>
        <translation>ÉTAT</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>PATTERN</source>
        <translation>MOTIF</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>TITLE</source>
        <translation>TITRE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>SUBROLE</source>
        <translation>SOUS-RÔLE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>CHILD ROLES</source>
        <translation>RÔLES ENFANTS</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FLAGS</source>
        <translation>INDICATEURS</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>STORED WINDOW</source>
        <translation>FENÊTRE MÉMORISÉE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>SCORE</source>
        <translation>SCORE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WHY</source>
        <translation>RAISON</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FROM</source>
        <translation>DE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>TO</source>
        <translation>VERS</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none: stays</source>
        <translation>aucune : reste en place</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none: not open</source>
        <translation>aucune : pas ouverte</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ %@ to %@</source>
        <translation>%@ de %@ à %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ since %@</source>
        <translation>%@ depuis %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMAlerts.cpp"/>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMAlerts.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMApplicationDelegate.cpp"/>
        <source>The session bus is gone.</source>
        <translation>Le bus de session a disparu.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>The windows are remembered, but not on disk yet: %@</source>
        <translation>Les fenêtres sont mémorisées, mais pas encore sur le disque : %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Rook is asking something: answer that first.</source>
        <translation>Rook pose une question : répondez-y d’abord.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Rook is busy: %@</source>
        <translation>Rook est occupé : %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Nothing is stored for the displays attached now.</source>
        <translation>Rien n’est mémorisé pour les écrans actuellement branchés.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No application is active.</source>
        <translation>Aucune application n’est active.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No window has the focus.</source>
        <translation>Aucune fenêtre n’a le focus.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>This Rook was started without windows.</source>
        <translation>Ce Rook a été démarré sans fenêtres.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No windows are stored for “%@” with the displays attached now.</source>
        <translation>Aucune fenêtre n’est mémorisée pour « %@ » avec les écrans actuellement branchés.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>%@ Ask to overwrite in order to replace them.</source>
        <translation>%@ Demandez l’écrasement pour les remplacer.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>You chose not to replace what is stored.</source>
        <translation>Vous avez choisi de ne pas remplacer ce qui est mémorisé.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMHotKeyCenter.cpp"/>
        <source>The setting is no shortcut.</source>
        <translation>Ce réglage n’est pas un raccourci.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Add Rook to your applications?</source>
        <translation>Ajouter Rook à vos applications ?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Rook runs from “%@”, where your desktop does not look for programs. A launcher lets you start it like any other.</source>
        <translation>Rook est exécuté depuis « %@ », où votre bureau ne cherche pas de programmes. Un lanceur permet de le démarrer comme n’importe quel autre.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Add Launcher</source>
        <translation>Ajouter un lanceur</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLoginItemsController.cpp"/>
        <source>There is no home directory.</source>
        <translation>Il n’y a pas de dossier personnel.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMReplacement.cpp"/>
        <source>The displays have changed.</source>
        <translation>Les écrans ont changé.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMReplacement.cpp"/>
        <source>Not all windows could be read, so what was stored is kept: %@</source>
        <translation>Toutes les fenêtres n’ont pas pu être lues ; ce qui était mémorisé est conservé : %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMRestoreCommands.cpp"/>
        <source>Restoring Windows…</source>
        <translation>Restauration des fenêtres…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMRestoreCommands.cpp"/>
        <location filename="../../src/Controller/LMRestoreEvents.cpp"/>
        <source>Restoring Windows for %@…</source>
        <translation>Restauration des fenêtres de %@…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Restore Windows for %@</source>
        <translation>Restaurer les fenêtres de %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store All Windows for %@</source>
        <translation>Mémoriser toutes les fenêtres de %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Finder</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store Active Window</source>
        <translation>Mémoriser la fenêtre active</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Link Active Window…</source>
        <translation>Associer la fenêtre active…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store All Windows</source>
        <translation>Mémoriser toutes les fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Restore All Windows</source>
        <translation>Restaurer toutes les fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Stored Windows…</source>
        <translation>Fenêtres mémorisées…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>About Rook</source>
        <translation>À propos de Rook</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Quit Rook</source>
        <translation>Quitter Rook</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>%@ (Incompatible)</source>
        <translation>%@ (incompatible)</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Store Windows Succeeded</source>
        <translation>Fenêtres mémorisées</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing Windows for %@…</source>
        <translation>Mémorisation des fenêtres de %@…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Stored windows already exist for “%@”. Do you want to replace them?</source>
        <translation>Des fenêtres sont déjà mémorisées pour « %@ ». Voulez-vous les remplacer ?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The windows previously stored for “%@” will be replaced with its current windows.</source>
        <translation>Les fenêtres mémorisées auparavant pour « %@ » seront remplacées par ses fenêtres actuelles.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored windows for %@.</source>
        <translation>Rook a mémorisé les fenêtres de %@.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing the Active Window…</source>
        <translation>Mémorisation de la fenêtre active…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>An identical stored window already exists. Do you want to replace it?</source>
        <translation>Une fenêtre identique est déjà mémorisée. Voulez-vous la remplacer ?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The stored window labelled “%@” will be replaced with the active window.</source>
        <translation>La fenêtre mémorisée « %@ » sera remplacée par la fenêtre active.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored the active window.</source>
        <translation>Rook a mémorisé la fenêtre active.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The windows of “%@” cannot be stored.</source>
        <translation>Les fenêtres de « %@ » ne peuvent pas être mémorisées.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing Windows for All Applications…</source>
        <translation>Mémorisation des fenêtres de toutes les applications…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Stored windows already exist. Do you want to replace them?</source>
        <translation>Des fenêtres sont déjà mémorisées. Voulez-vous les remplacer ?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Previously stored windows will be replaced with the windows of the current running applications.</source>
        <translation>Les fenêtres mémorisées auparavant seront remplacées par celles des applications en cours d’exécution.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored windows for all applications.</source>
        <translation>Rook a mémorisé les fenêtres de toutes les applications.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>There is nobody to ask.</source>
        <translation>Il n’y a personne à interroger.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Updates could not be looked for</source>
        <translation>Impossible de rechercher des mises à jour</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Rook is up to date</source>
        <translation>Rook est à jour</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Rook %@ is available</source>
        <translation>Rook %@ est disponible</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Your system’s software updates install it.</source>
        <translation>Les mises à jour logicielles de votre système l’installeront.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMActionRunning.cpp"/>
        <source>Running the action “%@” of “%@”…</source>
        <translation>Exécution de l’action « %@ » de « %@ »…</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindow.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No title</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindow.cpp"/>
        <source>Unlabeled Window</source>
        <translation>Fenêtre sans libellé</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>There may be a problem with your Stored Windows.sqlite file. Please remove the current file and re-launch Rook.</source>
        <translation>Votre fichier « Stored Windows.sqlite » semble poser problème. Veuillez supprimer le fichier actuel et relancer Rook.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Rook is unable to create some folders required for it to run.</source>
        <translation>Rook ne peut pas créer certains dossiers nécessaires à son fonctionnement.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Rook seems to be missing some required components and may need to be re-installed.</source>
        <translation>Il semble manquer à Rook des composants nécessaires ; il faudra peut-être le réinstaller.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Unable to load stored windows.</source>
        <translation>Impossible de charger les fenêtres mémorisées.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Stored Windows Version Mismatch.</source>
        <translation>La version des fenêtres mémorisées ne correspond pas.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Your Stored Windows were created with a newer version of Rook.

Please visit the Rook web site and download the latest version of Rook.</source>
        <translation>Vos fenêtres mémorisées ont été créées avec une version plus récente de Rook.

Veuillez consulter le site web de Rook et télécharger la dernière version.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>The object model is missing or contradicts itself.</source>
        <translation>Le modèle d’objets manque ou se contredit.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>There is no application support directory.</source>
        <translation>Il n’y a pas de dossier pour les données de l’application.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMWorkspace.cpp"/>
        <source>%lu Display%@</source>
        <translation>%lu écran%@</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMWorkspace.cpp"/>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMObjectContextSaving.cpp"/>
        <source>There is no store to save to.</source>
        <translation>Il n’y a pas de fichier où enregistrer.</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMPersistentStore.cpp"/>
        <source>%@: the file was moved or replaced while Rook was using it</source>
        <translation>%@ : le fichier a été déplacé ou remplacé pendant que Rook l’utilisait</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>not a store file</source>
        <translation>pas un fichier de Rook</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>a database of another program</source>
        <translation>une base de données d’un autre programme</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>written by a newer version of Rook (store version %@, known are versions up to %@)</source>
        <translation>écrit par une version plus récente de Rook (version %@ du fichier, versions connues jusqu’à %@)</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the file is cut short</source>
        <translation>le fichier est tronqué</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>no such folder</source>
        <translation>dossier inexistant</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the folder is not writable</source>
        <translation>le dossier n’est pas accessible en écriture</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>not a file</source>
        <translation>pas un fichier</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the file is not writable</source>
        <translation>le fichier n’est pas accessible en écriture</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>%@: in use by another process</source>
        <translation>%@ : utilisé par un autre processus</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>Another program is using %@.</source>
        <translation>Un autre programme utilise %@.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>%@ is in use for another hot key.</source>
        <translation>%@ sert déjà à un autre raccourci.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>This keyboard has no %@.</source>
        <translation>Ce clavier n’a pas de touche %@.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>Hot keys are not available in this session.</source>
        <translation>Les raccourcis ne sont pas disponibles dans cette session.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>No-Break Space</source>
        <translation>Espace insécable</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Clear</source>
        <comment>key</comment>
        <translation>Effacement</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>System Request</source>
        <translation>Syst</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Escape</source>
        <translation>Échap</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Kana</source>
        <translation>Kana</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Eisu</source>
        <translation>Eisu</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Home</source>
        <translation>Origine</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Page Up</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Page Down</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Print</source>
        <translation>Impr. écran</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Insert</source>
        <translation>Inser</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Delete</source>
        <comment>key</comment>
        <translation>Suppr</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Enter</source>
        <translation>Entrée (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Home</source>
        <translation>Origine (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Left</source>
        <translation>Gauche (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Up</source>
        <translation>Haut (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Right</source>
        <translation>Droite (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Down</source>
        <translation>Bas (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Page Up</source>
        <translation>Page préc. (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Page Down</source>
        <translation>Page suiv. (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad End</source>
        <translation>Fin (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Begin</source>
        <translation>Centre (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Insert</source>
        <translation>Inser (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Delete</source>
        <translation>Suppr (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Brightness Up</source>
        <translation>Luminosité +</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Brightness Down</source>
        <translation>Luminosité −</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Volume Down</source>
        <translation>Volume −</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Volume Up</source>
        <translation>Volume +</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Previous Track</source>
        <translation>Piste précédente</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Next Track</source>
        <translation>Piste suivante</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Home Page</source>
        <translation>Page d’accueil</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Mail</source>
        <translation>Courriel</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Calculator</source>
        <translation>Calculatrice</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Power Off</source>
        <translation>Éteindre</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Sleep</source>
        <translation>Veille</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Pause Playing</source>
        <translation>Pause de lecture</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Media</source>
        <translation>Multimédia</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 1</source>
        <translation>Lancer 1</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 2</source>
        <translation>Lancer 2</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 3</source>
        <translation>Lancer 3</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 4</source>
        <translation>Lancer 4</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Display</source>
        <translation>Écran</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Microphone Mute</source>
        <translation>Micro muet</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad %@</source>
        <translation>%@ (pavé num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Key %@</source>
        <translation>Touche %@</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <location filename="../../src/Platform/PackageKit/LMPackageKitUpdater.cpp"/>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit ne répond pas.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>The X server does not answer.</source>
        <translation>Le serveur X ne répond pas.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <source>The X server refused to intern atoms.</source>
        <translation>Le serveur X a refusé de créer des atomes.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <source>The connection to the X server is lost.</source>
        <translation>La connexion au serveur X est perdue.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <source>Wayland sessions are not supported yet: most windows are out of reach there. Log in to an X11 session.</source>
        <translation>Les sessions Wayland ne sont pas encore prises en charge : la plupart des fenêtres y sont hors d’atteinte. Ouvrez une session X11.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <source>There is no X server to connect to: DISPLAY is not set.</source>
        <translation>Il n’y a pas de serveur X auquel se connecter : DISPLAY n’est pas défini.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>No window manager is running.</source>
        <translation>Aucun gestionnaire de fenêtres n’est en cours d’exécution.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>The window manager does not support %@.</source>
        <translation>Le gestionnaire de fenêtres ne prend pas en charge %@.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>On Display Change</source>
        <translation>Au changement d’écrans</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Unlabeled Action</source>
        <translation>Action sans libellé</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Runs only when the displays have changed</source>
        <translation>Ne s’exécute que si les écrans ont changé</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Runs whenever the windows are restored</source>
        <translation>S’exécute à chaque restauration des fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMApplicationsModel.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMRegularExpressionValidationFormatter.cpp"/>
        <source>Not a valid pattern</source>
        <translation>Motif non valide</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMRegularExpressionValidationFormatter.cpp"/>
        <source>Valid pattern</source>
        <translation>Motif valide</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScreenshotView.cpp"/>
        <source>Picture of the stored window</source>
        <translation>Image de la fenêtre mémorisée</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Shell script</source>
        <translation>Script shell</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>AppleScript</source>
        <translation>AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Shift+Tab and Ctrl+Tab leave the text</source>
        <translation>Maj+Tab et Ctrl+Tab quittent le texte</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>This system cannot run AppleScripts. The text is kept.</source>
        <translation>Ce système ne peut pas exécuter d’AppleScript. Le texte est conservé.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Comp&amp;ile</source>
        <translation>C&amp;ompiler</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>This is the beginning of a script that is too long to be edited here. It runs as a whole.</source>
        <translation>Ceci est le début d’un script trop long pour être modifié ici. Il s’exécute en entier.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>The script compiles.</source>
        <translation>Le script se compile.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>The script does not compile.</source>
        <translation>Le script ne se compile pas.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Could not import AppleScript</source>
        <translation>Impossible d’importer l’AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Please ensure that the file you are importing has not been saved as “Run Only”.</source>
        <translation>Veuillez vérifier que le fichier à importer n’a pas été enregistré en « Exécutable uniquement ».</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Could not import Shell Script</source>
        <translation>Impossible d’importer le script shell</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Please ensure that the file you are importing is plain text.</source>
        <translation>Veuillez vérifier que le fichier à importer est du texte brut.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Ma&amp;ximized</source>
        <translation>Ma&amp;ximisée</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Full Screen</source>
        <translation>&amp;Plein écran</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Mi&amp;nimized</source>
        <translation>Mi&amp;nimisée</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Rolled Up</source>
        <translation>En&amp;roulée</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Above Others</source>
        <translation>&amp;Au-dessus des autres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Below Others</source>
        <translation>En &amp;dessous des autres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Frame &amp;Only</source>
        <translation>Le &amp;cadre seul</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>On All Desktops</source>
        <translation>Sur tous les bureaux</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized</source>
        <translation>maximisée</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized in width</source>
        <translation>maximisée en largeur</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized in height</source>
        <translation>maximisée en hauteur</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>full screen</source>
        <translation>plein écran</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>minimized</source>
        <translation>minimisée</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>rolled up</source>
        <translation>enroulée</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>above others</source>
        <translation>au-dessus des autres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>below others</source>
        <translation>en dessous des autres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on all desktops</source>
        <translation>sur tous les bureaux</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on desktop %@</source>
        <translation>sur le bureau %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on desktop %@ “%@”</source>
        <translation>sur le bureau %@ « %@ »</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Frame only</source>
        <translation>Cadre seul</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Desktop %@</source>
        <translation>Bureau %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Desktop %@ “%@”</source>
        <translation>Bureau %@ « %@ »</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerView.cpp"/>
        <source>Stored windows</source>
        <translation>Fenêtres mémorisées</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>No stored windows</source>
        <translation>Aucune fenêtre mémorisée</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Actions are scripts that run before the windows are restored.</source>
        <translation>Les actions sont des scripts exécutés avant la restauration des fenêtres.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Application</source>
        <translation>Supprimer l’application</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>R&amp;emove</source>
        <translation>Su&amp;pprimer</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Window</source>
        <translation>Supprimer la fenêtre</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Re&amp;move</source>
        <translation>Supp&amp;rimer</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Action</source>
        <translation>Supprimer l’action</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Add Action</source>
        <translation>Ajouter une action</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Shell Script</source>
        <translation>Script s&amp;hell</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;AppleScript</source>
        <translation>&amp;AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Import Script…</source>
        <translation>&amp;Importer un script…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Ru&amp;n</source>
        <translation>&amp;Exécuter</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Run Action</source>
        <translation>Exécuter l’action</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Runs the action now and waits until it has ended</source>
        <translation>Exécute l’action maintenant et attend qu’elle soit terminée</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Und&amp;o %@</source>
        <translation>Ann&amp;uler « %@ »</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Und&amp;o</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>S&amp;tate</source>
        <translation>É&amp;tat</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>State to restore</source>
        <translation>État à restaurer</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>A&amp;pplications</source>
        <translation>App&amp;lications</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Windows</source>
        <translation>&amp;Fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>A&amp;ctions</source>
        <translation>Actio&amp;ns</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Script</source>
        <translation>S&amp;cript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorWindow.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Stored Windows</source>
        <translation>Fenêtres mémorisées</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>%@ × %@ at %@, %@</source>
        <translation>%@ × %@ en %@, %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No label</source>
        <translation>Sans libellé</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No title pattern</source>
        <translation>Sans motif du titre</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Title Pattern</source>
        <translation>Motif du titre</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>en</source>
        <comment>code of this language</comment>
        <translation>fr</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>%@ (%@)</source>
        <translation>%@ (%@)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Version </source>
        <translation>Version </translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>About %@</source>
        <translation>À propos de %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Credits</source>
        <translation>Remerciements</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>License</source>
        <translation>Licence</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAlertWindow.cpp"/>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAlertWindow.cpp"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMDisplayView.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Displays</source>
        <translation>Écrans</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Start Rook at &amp;login</source>
        <translation>&amp;Lancer Rook à l’ouverture de session</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Startup:</source>
        <translation>Démarrage :</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>When the &amp;displays change</source>
        <translation>Quand les écra&amp;ns changent</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore windows when the displays change</source>
        <translation>Restaurer les fenêtres quand les écrans changent</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>When an &amp;application launches, after</source>
        <translation>Quand une &amp;application démarre, après</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore an application’s windows when it launches</source>
        <translation>Restaurer les fenêtres d’une application à son démarrage</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Seconds to wait after an application’s launch</source>
        <translation>Secondes d’attente après le démarrage d’une application</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore windows:</source>
        <translation>Restaurer les fenêtres :</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Whether they are &amp;maximized, minimized and so on</source>
        <translation>Si elles sont ma&amp;ximisées, minimisées, etc.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore whether windows are maximized, minimized and so on</source>
        <translation>Restaurer si les fenêtres sont maximisées, minimisées, etc.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Which &amp;virtual desktop they are on</source>
        <translation>Sur quel &amp;bureau virtuel elles sont</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore which virtual desktop windows are on</source>
        <translation>Restaurer le bureau virtuel des fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Which windows are &amp;in front</source>
        <translation>Quelles &amp;fenêtres sont devant</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore which windows are in front of others</source>
        <translation>Restaurer quelles fenêtres sont devant les autres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore also:</source>
        <translation>Restaurer aussi :</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Take &amp;pictures of windows</source>
        <translation>Prendre des &amp;captures des fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Take pictures of windows when storing them</source>
        <translation>Prendre des captures des fenêtres en les mémorisant</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Store windows:</source>
        <translation>Mémoriser les fenêtres :</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>&amp;Hide the menu icon</source>
        <translation>&amp;Masquer l’icône du menu</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Menu icon:</source>
        <translation>Icône du menu :</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Check for &amp;updates automatically</source>
        <translation>&amp;Rechercher automatiquement les mises à jour</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Updates:</source>
        <translation>Mises à jour :</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Reset &amp;Warnings</source>
        <translation>Réacti&amp;ver les avertissements</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Shows all messages again that were switched off</source>
        <translation>Affiche de nouveau tous les messages désactivés</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Warnings:</source>
        <translation>Avertissements :</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook’s menu icon cannot be hidden until the “Display Menu” hot key is set.</source>
        <translation>L’icône du menu de Rook ne peut être masquée que si le raccourci « Afficher le menu » est défini.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook cannot be started at login.</source>
        <translation>Rook ne peut pas être lancé à l’ouverture de session.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook cannot be kept from starting at login.</source>
        <translation>Impossible d’empêcher Rook d’être lancé à l’ouverture de session.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Removes Rook’s icon from the menu bar when checked.</source>
        <translation>Si coché, retire l’icône de Rook de la barre.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>With the menu icon disabled, Rook’s menu can be displayed by pressing %@</source>
        <translation>Sans l’icône, le menu de Rook s’affiche avec %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Restore All Windows</source>
        <translation>&amp;Restaurer toutes les fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Restore Windows for Active &amp;Application</source>
        <translation>Restaurer les fenêtres de l’&amp;application active</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Store All Windows for Active A&amp;pplication</source>
        <translation>Mémoriser toutes les fenêtres de l’a&amp;pplication active</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Store Active Window</source>
        <translation>&amp;Mémoriser la fenêtre active</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Link Active Window</source>
        <translation>A&amp;ssocier la fenêtre active</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Store All &amp;Windows</source>
        <translation>Mémoriser toutes les &amp;fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Display &amp;Menu</source>
        <translation>Afficher le me&amp;nu</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Hot Keys</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>%@:</source>
        <translation>%@ :</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>“%@” is using %@.</source>
        <translation>« %@ » utilise %@.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMPermissionPrompt.cpp"/>
        <source>Rook cannot move windows on this desktop.</source>
        <translation>Rook ne peut pas déplacer de fenêtres sur ce bureau.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMPermissionPrompt.cpp"/>
        <source>%@

Until that changes, windows are neither stored nor restored.</source>
        <translation>%@

Tant que cela ne change pas, les fenêtres ne sont ni mémorisées ni restaurées.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Clear the hot key “%@”</source>
        <translation>Effacer le raccourci « %@ »</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Not with this key</source>
        <translation>Pas avec cette touche</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Hold Ctrl, Alt or Super</source>
        <translation>Maintenez Ctrl, Alt ou Super</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Record Shortcut</source>
        <translation>Définir un raccourci</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Type Shortcut…</source>
        <translation>Tapez le raccourci…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsEditorActions.cpp"/>
        <source>Import Script</source>
        <translation>Importer un script</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsEditorStates.cpp"/>
        <source>Change State</source>
        <translation>Changer l’état</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Delete display configuration</source>
        <translation>Supprimer la configuration d’écrans</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Do you wish to delete all stored windows for the selected display configuration?</source>
        <translation>Voulez-vous supprimer toutes les fenêtres mémorisées de la configuration d’écrans sélectionnée ?</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Display configurations</source>
        <translation>Configurations d’écrans</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>No windows are stored yet.
Arrange your windows and choose “Store All Windows”.</source>
        <translation>Aucune fenêtre n’est encore mémorisée.
Disposez vos fenêtres et choisissez « Mémoriser toutes les fenêtres ».</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Shows applications and windows</source>
        <translation>Affiche les applications et les fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Gives the display configuration a name</source>
        <translation>Donne un nom à la configuration d’écrans</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Make &amp;Active</source>
        <translation>&amp;Activer</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Arranges the attached displays like these</source>
        <translation>Dispose les écrans branchés comme ceux-ci</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Delete…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Forgets the display configuration and its windows</source>
        <translation>Oublie la configuration d’écrans et ses fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWidgetUserInterface.cpp"/>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Current</source>
        <translation>Actuelle</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Can be made active</source>
        <translation>Activable</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Same displays</source>
        <translation>Mêmes écrans</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Other displays</source>
        <translation>Autres écrans</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays stand like these.</source>
        <translation>Les écrans branchés sont disposés comme ceux-ci.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays can be arranged like these.</source>
        <translation>Les écrans branchés peuvent être disposés comme ceux-ci.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays stand like these, too, but the current configuration is older and is the one that is used.</source>
        <translation>Les écrans branchés sont aussi disposés comme ceux-ci, mais la configuration actuelle est plus ancienne et c’est elle qui est utilisée.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays cannot be arranged like these.</source>
        <translation>Les écrans branchés ne peuvent pas être disposés comme ceux-ci.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>Linking the Active Window…</source>
        <translation>Association de la fenêtre active…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>The active window is already linked to another window. Do you want to replace the existing link?</source>
        <translation>La fenêtre active est déjà associée à une autre fenêtre. Voulez-vous remplacer l’association existante ?</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>The active window will be unlinked from the window labelled “%@” and linked to the window labelled “%@”.</source>
        <translation>La fenêtre active sera dissociée de la fenêtre « %@ » et associée à la fenêtre « %@ ».</translation>
    </message>
    <message>
        <location filename="../../src/Utilities/LMFolders.cpp"/>
        <source>No path found for directory in domain.</source>
        <translation>Aucun chemin trouvé pour le dossier.</translation>
    </message>
    <message>
        <location filename="../../src/Utilities/LMFolders.cpp"/>
        <source>File exists at requested directory location.</source>
        <translation>Un fichier se trouve à l’emplacement du dossier.</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>Rook is running already</source>
        <translation>Rook est déjà en cours d’exécution</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>there is no session bus; Rook cannot be reached without one</source>
        <translation>il n’y a pas de bus de session ; sans lui, Rook est injoignable</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>Rook cannot run here</source>
        <translation>Rook ne peut pas fonctionner ici</translation>
    </message>
</context>
</TS>

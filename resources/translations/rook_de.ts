<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Rook</name>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: there is no session bus to reach Rook through</source>
        <translation>rook: Es gibt keinen Sitzungsbus, über den Rook erreichbar wäre</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook waits for the script that calls it. %@</source>
        <translation>Rook wartet auf das Skript, das es aufruft. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>the command could not run</source>
        <translation>der Befehl konnte nicht ausgeführt werden</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>the output could not be written</source>
        <translation>die Ausgabe konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook has not ended yet</source>
        <translation>Rook ist noch nicht beendet</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook could not be started. %@</source>
        <translation>Rook konnte nicht gestartet werden. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: Rook is busy and answers later. %@</source>
        <translation>rook: Rook ist beschäftigt und antwortet später. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook has ended without an answer; start it with “rook” to see why</source>
        <translation>Rook wurde ohne Antwort beendet; starten Sie es mit „rook“, um den Grund zu sehen</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: Rook is not running; start it with “rook”</source>
        <translation>rook: Rook läuft nicht; starten Sie es mit „rook“</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>usage error</source>
        <translation>falscher Aufruf</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>no resident process</source>
        <translation>kein laufendes Rook</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Replace what is stored already</source>
        <translation>Ersetzt, was schon gespeichert ist</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember every window</source>
        <translation>Speichert alle Fenster</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Ask on the screen whether to replace what is stored</source>
        <translation>Fragt auf dem Bildschirm, ob Gespeichertes ersetzt werden soll</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Print JSON instead of a table</source>
        <translation>Gibt JSON statt einer Tabelle aus</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Put every window back</source>
        <translation>Stellt alle Fenster wieder her</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Put back the windows of one application</source>
        <translation>Stellt die Fenster eines Programms wieder her</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>The application's identifier; the active application without it</source>
        <translation>Die Kennung des Programms; ohne sie das aktive Programm</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember the windows of the active application</source>
        <translation>Speichert die Fenster des aktiven Programms</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember the active window</source>
        <translation>Speichert das aktive Fenster</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Link the active window to a stored window</source>
        <translation>Verknüpft das aktive Fenster mit einem gespeicherten Fenster</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Open the status menu at the pointer</source>
        <translation>Öffnet das Statusmenü am Mauszeiger</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the list of stored windows</source>
        <translation>Zeigt die Liste der gespeicherten Fenster</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the preferences</source>
        <translation>Zeigt die Einstellungen</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show version and credits</source>
        <translation>Zeigt Version und Mitwirkende</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Look for a newer version</source>
        <translation>Sucht nach einer neueren Version</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>End the resident process</source>
        <translation>Beendet das laufende Rook</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show displays, counts, back end, permission</source>
        <translation>Zeigt Bildschirme, Anzahlen, Backend und Berechtigung</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show what is stored</source>
        <translation>Zeigt, was gespeichert ist</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the live windows as Rook sees them</source>
        <translation>Zeigt die offenen Fenster, wie Rook sie sieht</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show what a restore would do, and why; changes nothing</source>
        <translation>Zeigt, was ein Wiederherstellen täte und warum; ändert nichts</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>One application's identifier</source>
        <translation>Die Kennung eines Programms</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Exit codes: %@.</source>
        <translation>Rückgabewerte: %@.</translation>
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
        <translation>Ohne Befehl startet Rook im Vordergrund und bleibt aktiv. Wo Rook installiert ist, startet es
auch ein Befehl, der etwas tut; list, plan, quit, status und windows tun das nie.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>not expected: %@</source>
        <translation>nicht erwartet: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>not both: %@</source>
        <translation>nicht zusammen: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>rook: %@
Run “rook --help” for more information.</source>
        <translation>rook: %@
Mehr erfahren Sie mit „rook --help“.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Usage</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>SUBCOMMAND</source>
        <translation>BEFEHL</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Excludes</source>
        <translation>Nicht mit</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Print this help message and exit</source>
        <translation>Zeigt diese Hilfe an</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Rook remembers where your windows stand, per set of displays, and puts them back.</source>
        <translation>Rook merkt sich für jede Bildschirmanordnung, wo Ihre Fenster stehen, und stellt sie wieder dorthin.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Display program version information and exit</source>
        <translation>Zeigt die Version des Programms an</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Start without tray or windows</source>
        <translation>Startet ohne Menüsymbol und Fenster</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Log debug messages too</source>
        <translation>Protokolliert auch Meldungen zur Fehlersuche</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Subcommands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@×%@ at %@,%@</source>
        <translation>%@×%@ bei %@,%@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>desktop %@</source>
        <translation>Arbeitsfläche %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>desktop %@ “%@”</source>
        <translation>Arbeitsfläche %@ „%@“</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ (not to be had: %@)</source>
        <translation>%@ (nicht möglich: %@)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>DISPLAY</source>
        <translation>BILDSCHIRM</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>BOUNDS</source>
        <translation>LAGE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>PRODUCT</source>
        <translation>MODELL</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>MAIN</source>
        <translation>HAUPTBILDSCHIRM</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>%@: %@</source>
        <translation>%@: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Process</source>
        <translation>Prozess</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Store</source>
        <translation>Speicherdatei</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Back end</source>
        <translation>Backend</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@, window manager %@</source>
        <translation>%@, Fensterverwaltung %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source> (no)</source>
        <translation> (nein)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Capabilities</source>
        <translation>Fähigkeiten</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Permission</source>
        <translation>Berechtigung</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Missing</source>
        <translation>Es fehlt</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Current workspace</source>
        <translation>Aktuelle Anordnung</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Stored</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>workspaces: %@, applications: %@, windows: %@</source>
        <translation>Anordnungen: %@, Programme: %@, Fenster: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Hot key</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Doing</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Before</source>
        <translation>Zuvor</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WORKSPACE</source>
        <translation>ANORDNUNG</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>APPLICATION</source>
        <translation>PROGRAMM</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WINDOW</source>
        <translation>FENSTER</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FRAME</source>
        <translation>RAHMEN</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>STATE</source>
        <translation>ZUSTAND</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>PATTERN</source>
        <translation>MUSTER</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>TITLE</source>
        <translation>TITEL</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>SUBROLE</source>
        <translation>ROLLE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>CHILD ROLES</source>
        <translation>ROLLEN DER TEILE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FLAGS</source>
        <translation>MERKMALE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>STORED WINDOW</source>
        <translation>GESPEICHERTES FENSTER</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>SCORE</source>
        <translation>PUNKTE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WHY</source>
        <translation>WARUM</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FROM</source>
        <translation>VON</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>TO</source>
        <translation>NACH</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none: stays</source>
        <translation>keines: bleibt</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none: not open</source>
        <translation>keines: nicht offen</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ %@ to %@</source>
        <translation>%@ %@ bis %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ since %@</source>
        <translation>%@ seit %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMAlerts.cpp"/>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMAlerts.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMApplicationDelegate.cpp"/>
        <source>The session bus is gone.</source>
        <translation>Der Sitzungsbus ist nicht mehr da.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>The windows are remembered, but not on disk yet: %@</source>
        <translation>Die Fenster sind gespeichert, aber noch nicht auf der Platte: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Rook is asking something: answer that first.</source>
        <translation>Rook fragt gerade etwas: Antworten Sie zuerst darauf.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Rook is busy: %@</source>
        <translation>Rook ist beschäftigt: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Nothing is stored for the displays attached now.</source>
        <translation>Für die jetzt angeschlossenen Bildschirme ist nichts gespeichert.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No application is active.</source>
        <translation>Kein Programm ist aktiv.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No window has the focus.</source>
        <translation>Kein Fenster hat den Fokus.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>This Rook was started without windows.</source>
        <translation>Dieses Rook wurde ohne Fenster gestartet.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No windows are stored for “%@” with the displays attached now.</source>
        <translation>Für „%@“ sind bei den jetzt angeschlossenen Bildschirmen keine Fenster gespeichert.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>%@ Ask to overwrite in order to replace them.</source>
        <translation>%@ Verlangen Sie das Überschreiben, um sie zu ersetzen.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>You chose not to replace what is stored.</source>
        <translation>Sie wollten das Gespeicherte nicht ersetzen.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMHotKeyCenter.cpp"/>
        <source>The setting is no shortcut.</source>
        <translation>Die Einstellung ist kein Tastenkürzel.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Add Rook to your applications?</source>
        <translation>Rook zu Ihren Programmen hinzufügen?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Rook runs from “%@”, where your desktop does not look for programs. A launcher lets you start it like any other.</source>
        <translation>Rook läuft aus „%@“, wo Ihr Desktop keine Programme sucht. Mit einem Starter können Sie es wie jedes andere starten.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Add Launcher</source>
        <translation>Starter hinzufügen</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Not Now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLoginItemsController.cpp"/>
        <source>There is no home directory.</source>
        <translation>Es gibt keinen persönlichen Ordner.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMReplacement.cpp"/>
        <source>The displays have changed.</source>
        <translation>Die Bildschirme haben sich geändert.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMReplacement.cpp"/>
        <source>Not all windows could be read, so what was stored is kept: %@</source>
        <translation>Nicht alle Fenster waren lesbar, deshalb bleibt das Gespeicherte erhalten: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMRestoreCommands.cpp"/>
        <source>Restoring Windows…</source>
        <translation>Fenster werden wiederhergestellt…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMRestoreCommands.cpp"/>
        <location filename="../../src/Controller/LMRestoreEvents.cpp"/>
        <source>Restoring Windows for %@…</source>
        <translation>Fenster von %@ werden wiederhergestellt…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Restore Windows for %@</source>
        <translation>Fenster von %@ wiederherstellen</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store All Windows for %@</source>
        <translation>Alle Fenster von %@ speichern</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Finder</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store Active Window</source>
        <translation>Aktives Fenster speichern</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Link Active Window…</source>
        <translation>Aktives Fenster verknüpfen…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store All Windows</source>
        <translation>Alle Fenster speichern</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Restore All Windows</source>
        <translation>Alle Fenster wiederherstellen</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Stored Windows…</source>
        <translation>Gespeicherte Fenster…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Preferences…</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>About Rook</source>
        <translation>Info zu Rook</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Quit Rook</source>
        <translation>Rook beenden</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>%@ (Incompatible)</source>
        <translation>%@ (nicht kompatibel)</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Store Windows Succeeded</source>
        <translation>Fenster gespeichert</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing Windows for %@…</source>
        <translation>Fenster von %@ werden gespeichert…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Stored windows already exist for “%@”. Do you want to replace them?</source>
        <translation>Für „%@“ gibt es schon gespeicherte Fenster. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The windows previously stored for “%@” will be replaced with its current windows.</source>
        <translation>Die zuvor für „%@“ gespeicherten Fenster werden durch die aktuellen ersetzt.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored windows for %@.</source>
        <translation>Rook hat die Fenster von %@ gespeichert.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing the Active Window…</source>
        <translation>Das aktive Fenster wird gespeichert…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>An identical stored window already exists. Do you want to replace it?</source>
        <translation>Es gibt schon ein gleiches gespeichertes Fenster. Möchten Sie es ersetzen?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The stored window labelled “%@” will be replaced with the active window.</source>
        <translation>Das gespeicherte Fenster „%@“ wird durch das aktive Fenster ersetzt.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored the active window.</source>
        <translation>Rook hat das aktive Fenster gespeichert.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The windows of “%@” cannot be stored.</source>
        <translation>Die Fenster von „%@“ lassen sich nicht speichern.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing Windows for All Applications…</source>
        <translation>Fenster aller Programme werden gespeichert…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Stored windows already exist. Do you want to replace them?</source>
        <translation>Es gibt schon gespeicherte Fenster. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Previously stored windows will be replaced with the windows of the current running applications.</source>
        <translation>Zuvor gespeicherte Fenster werden durch die Fenster der laufenden Programme ersetzt.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored windows for all applications.</source>
        <translation>Rook hat die Fenster aller Programme gespeichert.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>There is nobody to ask.</source>
        <translation>Es gibt niemanden zu fragen.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Updates could not be looked for</source>
        <translation>Aktualisierungen konnten nicht gesucht werden</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Rook is up to date</source>
        <translation>Rook ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Rook %@ is available</source>
        <translation>Rook %@ ist verfügbar</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Your system’s software updates install it.</source>
        <translation>Die Softwareaktualisierung Ihres Systems installiert es.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMActionRunning.cpp"/>
        <source>Running the action “%@” of “%@”…</source>
        <translation>Die Aktion „%@“ von „%@“ läuft…</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindow.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No title</source>
        <translation>Kein Titel</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindow.cpp"/>
        <source>Unlabeled Window</source>
        <translation>Fenster ohne Bezeichnung</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>There may be a problem with your Stored Windows.sqlite file. Please remove the current file and re-launch Rook.</source>
        <translation>Mit Ihrer Datei „Stored Windows.sqlite“ scheint etwas nicht zu stimmen. Bitte entfernen Sie die Datei und starten Sie Rook neu.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Rook is unable to create some folders required for it to run.</source>
        <translation>Rook kann einige Ordner nicht anlegen, die es zum Laufen braucht.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Rook seems to be missing some required components and may need to be re-installed.</source>
        <translation>Rook scheinen benötigte Bestandteile zu fehlen; vielleicht muss es neu installiert werden.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Unable to load stored windows.</source>
        <translation>Die gespeicherten Fenster können nicht geladen werden.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Stored Windows Version Mismatch.</source>
        <translation>Die gespeicherten Fenster haben eine andere Version.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Your Stored Windows were created with a newer version of Rook.

Please visit the Rook web site and download the latest version of Rook.</source>
        <translation>Ihre gespeicherten Fenster wurden mit einer neueren Version von Rook angelegt.

Bitte besuchen Sie die Website von Rook und laden Sie die neueste Version herunter.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>The object model is missing or contradicts itself.</source>
        <translation>Das Objektmodell fehlt oder widerspricht sich.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>There is no application support directory.</source>
        <translation>Es gibt keinen Ordner für Programmdaten.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMWorkspace.cpp"/>
        <source>%lu Display%@</source>
        <translation>%lu Bildschirm%@</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMWorkspace.cpp"/>
        <source>s</source>
        <translation>e</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMObjectContextSaving.cpp"/>
        <source>There is no store to save to.</source>
        <translation>Es gibt keine Speicherdatei.</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMPersistentStore.cpp"/>
        <source>%@: the file was moved or replaced while Rook was using it</source>
        <translation>%@: Die Datei wurde verschoben oder ersetzt, während Rook sie benutzte</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>not a store file</source>
        <translation>keine Speicherdatei</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>a database of another program</source>
        <translation>eine Datenbank eines anderen Programms</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>written by a newer version of Rook (store version %@, known are versions up to %@)</source>
        <translation>von einer neueren Version von Rook geschrieben (Dateiversion %@, bekannt sind Versionen bis %@)</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the file is cut short</source>
        <translation>die Datei ist unvollständig</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>no such folder</source>
        <translation>kein solcher Ordner</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the folder is not writable</source>
        <translation>der Ordner ist nicht beschreibbar</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>not a file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the file is not writable</source>
        <translation>die Datei ist nicht beschreibbar</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>%@: in use by another process</source>
        <translation>%@: von einem anderen Prozess benutzt</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>Another program is using %@.</source>
        <translation>Ein anderes Programm benutzt %@.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>%@ is in use for another hot key.</source>
        <translation>%@ ist schon für ein anderes Tastenkürzel vergeben.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>This keyboard has no %@.</source>
        <translation>Diese Tastatur hat keine Taste %@.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>Hot keys are not available in this session.</source>
        <translation>Tastenkürzel stehen in dieser Sitzung nicht zur Verfügung.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>No-Break Space</source>
        <translation>Geschütztes Leerzeichen</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
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
        <translation>Löschen</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>System Request</source>
        <translation>S-Abf</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Escape</source>
        <translation>Esc</translation>
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
        <translation>Pos 1</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Page Down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Print</source>
        <translation>Druck</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Insert</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Delete</source>
        <comment>key</comment>
        <translation>Entf</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Enter</source>
        <translation>Eingabe (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Home</source>
        <translation>Pos 1 (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Left</source>
        <translation>Links (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Up</source>
        <translation>Hoch (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Right</source>
        <translation>Rechts (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Down</source>
        <translation>Runter (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Page Up</source>
        <translation>Bild auf (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Page Down</source>
        <translation>Bild ab (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad End</source>
        <translation>Ende (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Begin</source>
        <translation>Mitte (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Insert</source>
        <translation>Einfg (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Delete</source>
        <translation>Entf (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Brightness Up</source>
        <translation>Heller</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Brightness Down</source>
        <translation>Dunkler</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Volume Down</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Volume Up</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Previous Track</source>
        <translation>Vorheriger Titel</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Next Track</source>
        <translation>Nächster Titel</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Home Page</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Calculator</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Power Off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Sleep</source>
        <translation>Standby</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Pause Playing</source>
        <translation>Wiedergabe anhalten</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 1</source>
        <translation>Start 1</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 2</source>
        <translation>Start 2</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 3</source>
        <translation>Start 3</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 4</source>
        <translation>Start 4</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Microphone Mute</source>
        <translation>Mikrofon stumm</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad %@</source>
        <translation>%@ (Ziffernblock)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Key %@</source>
        <translation>Taste %@</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <location filename="../../src/Platform/PackageKit/LMPackageKitUpdater.cpp"/>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit antwortet nicht.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>The X server does not answer.</source>
        <translation>Der X-Server antwortet nicht.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <source>The X server refused to intern atoms.</source>
        <translation>Der X-Server verweigert das Anlegen von Atomen.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <source>The connection to the X server is lost.</source>
        <translation>Die Verbindung zum X-Server ist verloren.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <source>Wayland sessions are not supported yet: most windows are out of reach there. Log in to an X11 session.</source>
        <translation>Wayland-Sitzungen werden noch nicht unterstützt: Die meisten Fenster sind dort unerreichbar. Melden Sie sich in einer X11-Sitzung an.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <source>There is no X server to connect to: DISPLAY is not set.</source>
        <translation>Es gibt keinen X-Server zum Verbinden: DISPLAY ist nicht gesetzt.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>No window manager is running.</source>
        <translation>Es läuft keine Fensterverwaltung.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>The window manager does not support %@.</source>
        <translation>Die Fensterverwaltung unterstützt %@ nicht.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Label</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>On Display Change</source>
        <translation>Bei neuen Bildschirmen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Unlabeled Action</source>
        <translation>Aktion ohne Bezeichnung</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Runs only when the displays have changed</source>
        <translation>Läuft nur, wenn sich die Bildschirme geändert haben</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Runs whenever the windows are restored</source>
        <translation>Läuft bei jedem Wiederherstellen der Fenster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMApplicationsModel.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMRegularExpressionValidationFormatter.cpp"/>
        <source>Not a valid pattern</source>
        <translation>Kein gültiges Muster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMRegularExpressionValidationFormatter.cpp"/>
        <source>Valid pattern</source>
        <translation>Gültiges Muster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScreenshotView.cpp"/>
        <source>Picture of the stored window</source>
        <translation>Bild des gespeicherten Fensters</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Shell script</source>
        <translation>Shell-Skript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>AppleScript</source>
        <translation>AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Shift+Tab and Ctrl+Tab leave the text</source>
        <translation>Umschalt+Tab und Strg+Tab verlassen den Text</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>This system cannot run AppleScripts. The text is kept.</source>
        <translation>Dieses System kann keine AppleScripts ausführen. Der Text bleibt erhalten.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Comp&amp;ile</source>
        <translation>Ko&amp;mpilieren</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>This is the beginning of a script that is too long to be edited here. It runs as a whole.</source>
        <translation>Dies ist der Anfang eines Skripts, das zu lang ist, um es hier zu bearbeiten. Es läuft als Ganzes.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>The script compiles.</source>
        <translation>Das Skript lässt sich kompilieren.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>The script does not compile.</source>
        <translation>Das Skript lässt sich nicht kompilieren.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Could not import AppleScript</source>
        <translation>AppleScript konnte nicht importiert werden</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Please ensure that the file you are importing has not been saved as “Run Only”.</source>
        <translation>Bitte stellen Sie sicher, dass die zu importierende Datei nicht als „Nur ausführbar“ gesichert wurde.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Could not import Shell Script</source>
        <translation>Shell-Skript konnte nicht importiert werden</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Please ensure that the file you are importing is plain text.</source>
        <translation>Bitte stellen Sie sicher, dass die zu importierende Datei reiner Text ist.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Ma&amp;ximized</source>
        <translation>Ma&amp;ximiert</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Mi&amp;nimized</source>
        <translation>Mi&amp;nimiert</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Rolled Up</source>
        <translation>&amp;Eingerollt</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Above Others</source>
        <translation>Über &amp;anderen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Below Others</source>
        <translation>&amp;Unter anderen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Frame &amp;Only</source>
        <translation>Nur der Ra&amp;hmen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>On All Desktops</source>
        <translation>Auf allen Arbeitsflächen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized</source>
        <translation>maximiert</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized in width</source>
        <translation>in der Breite maximiert</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized in height</source>
        <translation>in der Höhe maximiert</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>minimized</source>
        <translation>minimiert</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>rolled up</source>
        <translation>eingerollt</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>above others</source>
        <translation>über anderen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>below others</source>
        <translation>unter anderen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on all desktops</source>
        <translation>auf allen Arbeitsflächen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on desktop %@</source>
        <translation>auf Arbeitsfläche %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on desktop %@ “%@”</source>
        <translation>auf Arbeitsfläche %@ „%@“</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Frame only</source>
        <translation>Nur der Rahmen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Desktop %@</source>
        <translation>Arbeitsfläche %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Desktop %@ “%@”</source>
        <translation>Arbeitsfläche %@ „%@“</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Applications</source>
        <translation>Programme</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerView.cpp"/>
        <source>Stored windows</source>
        <translation>Gespeicherte Fenster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>No stored windows</source>
        <translation>Keine gespeicherten Fenster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Actions are scripts that run before the windows are restored.</source>
        <translation>Aktionen sind Skripte, die vor dem Wiederherstellen der Fenster laufen.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Application</source>
        <translation>Programm entfernen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>R&amp;emove</source>
        <translation>E&amp;ntfernen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Window</source>
        <translation>Fenster entfernen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Re&amp;move</source>
        <translation>En&amp;tfernen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Action</source>
        <translation>Aktion entfernen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Add Action</source>
        <translation>Aktion hinzufügen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Shell Script</source>
        <translation>&amp;Shell-Skript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;AppleScript</source>
        <translation>&amp;AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Import Script…</source>
        <translation>Skript &amp;importieren…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Ru&amp;n</source>
        <translation>Ausfüh&amp;ren</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Run Action</source>
        <translation>Aktion ausführen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Runs the action now and waits until it has ended</source>
        <translation>Führt die Aktion jetzt aus und wartet, bis sie beendet ist</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Und&amp;o %@</source>
        <translation>Rück&amp;gängig: %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Und&amp;o</source>
        <translation>Rück&amp;gängig</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>S&amp;tate</source>
        <translation>&amp;Zustand</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>State to restore</source>
        <translation>Wiederherzustellender Zustand</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>A&amp;pplications</source>
        <translation>&amp;Programme</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Windows</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>A&amp;ctions</source>
        <translation>A&amp;ktionen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Script</source>
        <translation>&amp;Skript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorWindow.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Stored Windows</source>
        <translation>Gespeicherte Fenster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>%@ × %@ at %@, %@</source>
        <translation>%@ × %@ bei %@, %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No label</source>
        <translation>Keine Bezeichnung</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No title pattern</source>
        <translation>Kein Titelmuster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Title Pattern</source>
        <translation>Titelmuster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>en</source>
        <comment>code of this language</comment>
        <translation>de</translation>
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
        <translation>Info zu %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Credits</source>
        <translation>Mitwirkende</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>License</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAlertWindow.cpp"/>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
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
        <translation>Bildschirme</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Start Rook at &amp;login</source>
        <translation>Rook bei der An&amp;meldung starten</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Startup:</source>
        <translation>Start:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>When the &amp;displays change</source>
        <translation>Wenn sich die &amp;Bildschirme ändern</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore windows when the displays change</source>
        <translation>Fenster wiederherstellen, wenn sich die Bildschirme ändern</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>When an &amp;application launches, after</source>
        <translation>Wenn ein &amp;Programm startet, nach</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore an application’s windows when it launches</source>
        <translation>Fenster eines Programms wiederherstellen, wenn es startet</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Seconds to wait after an application’s launch</source>
        <translation>Wartezeit in Sekunden nach dem Start eines Programms</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore windows:</source>
        <translation>Fenster wiederherstellen:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Whether they are &amp;maximized, minimized and so on</source>
        <translation>Ob sie ma&amp;ximiert, minimiert und so weiter sind</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore whether windows are maximized, minimized and so on</source>
        <translation>Wiederherstellen, ob Fenster maximiert, minimiert und so weiter sind</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Which &amp;virtual desktop they are on</source>
        <translation>Auf welcher &amp;virtuellen Arbeitsfläche sie sind</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore which virtual desktop windows are on</source>
        <translation>Wiederherstellen, auf welcher virtuellen Arbeitsfläche Fenster sind</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Which windows are &amp;in front</source>
        <translation>Welche Fenster vo&amp;rne sind</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore which windows are in front of others</source>
        <translation>Wiederherstellen, welche Fenster vor anderen sind</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore also:</source>
        <translation>Auch wiederherstellen:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Take &amp;pictures of windows</source>
        <translation>Bilder der &amp;Fenster aufnehmen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Take pictures of windows when storing them</source>
        <translation>Beim Speichern Bilder der Fenster aufnehmen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Store windows:</source>
        <translation>Fenster speichern:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>&amp;Hide the menu icon</source>
        <translation>Menüsymbol &amp;ausblenden</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Menu icon:</source>
        <translation>Menüsymbol:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Check for &amp;updates automatically</source>
        <translation>Automatisch nach A&amp;ktualisierungen suchen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Updates:</source>
        <translation>Aktualisierungen:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Reset &amp;Warnings</source>
        <translation>&amp;Warnungen zurücksetzen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Shows all messages again that were switched off</source>
        <translation>Zeigt alle abgeschalteten Meldungen wieder an</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Warnings:</source>
        <translation>Warnungen:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook’s menu icon cannot be hidden until the “Display Menu” hot key is set.</source>
        <translation>Das Menüsymbol von Rook lässt sich erst ausblenden, wenn das Tastenkürzel „Menü anzeigen“ gesetzt ist.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook cannot be started at login.</source>
        <translation>Rook kann nicht bei der Anmeldung gestartet werden.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook cannot be kept from starting at login.</source>
        <translation>Es lässt sich nicht verhindern, dass Rook bei der Anmeldung startet.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Removes Rook’s icon from the menu bar when checked.</source>
        <translation>Entfernt das Symbol von Rook aus der Leiste.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>With the menu icon disabled, Rook’s menu can be displayed by pressing %@</source>
        <translation>Ohne Menüsymbol zeigt %@ das Menü von Rook an</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Restore All Windows</source>
        <translation>Alle Fenster &amp;wiederherstellen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Restore Windows for Active &amp;Application</source>
        <translation>Fenster des aktiven &amp;Programms wiederherstellen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Store All Windows for Active A&amp;pplication</source>
        <translation>Alle Fenster des &amp;aktiven Programms speichern</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Store Active Window</source>
        <translation>Aktives Fenster &amp;speichern</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Link Active Window</source>
        <translation>Aktives Fenster &amp;verknüpfen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Store All &amp;Windows</source>
        <translation>Alle &amp;Fenster speichern</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Display &amp;Menu</source>
        <translation>&amp;Menü anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Hot Keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>%@:</source>
        <translation>%@:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>“%@” is using %@.</source>
        <translation>„%@“ benutzt %@.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMPermissionPrompt.cpp"/>
        <source>Rook cannot move windows on this desktop.</source>
        <translation>Rook kann auf diesem Desktop keine Fenster bewegen.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMPermissionPrompt.cpp"/>
        <source>%@

Until that changes, windows are neither stored nor restored.</source>
        <translation>%@

Bis sich das ändert, werden Fenster weder gespeichert noch wiederhergestellt.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Clear the hot key “%@”</source>
        <translation>Tastenkürzel „%@“ löschen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Not with this key</source>
        <translation>Nicht mit dieser Taste</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Hold Ctrl, Alt or Super</source>
        <translation>Strg, Alt oder Super halten</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Record Shortcut</source>
        <translation>Kürzel aufnehmen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Type Shortcut…</source>
        <translation>Kürzel drücken…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsEditorActions.cpp"/>
        <source>Import Script</source>
        <translation>Skript importieren</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsEditorStates.cpp"/>
        <source>Change State</source>
        <translation>Zustand ändern</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Delete display configuration</source>
        <translation>Bildschirmanordnung löschen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Do you wish to delete all stored windows for the selected display configuration?</source>
        <translation>Möchten Sie alle gespeicherten Fenster der ausgewählten Bildschirmanordnung löschen?</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Display configurations</source>
        <translation>Bildschirmanordnungen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>No windows are stored yet.
Arrange your windows and choose “Store All Windows”.</source>
        <translation>Noch sind keine Fenster gespeichert.
Ordnen Sie Ihre Fenster an und wählen Sie „Alle Fenster speichern“.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Shows applications and windows</source>
        <translation>Zeigt Programme und Fenster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Gives the display configuration a name</source>
        <translation>Gibt der Bildschirmanordnung einen Namen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Make &amp;Active</source>
        <translation>&amp;Aktivieren</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Arranges the attached displays like these</source>
        <translation>Ordnet die angeschlossenen Bildschirme wie diese an</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Forgets the display configuration and its windows</source>
        <translation>Vergisst die Bildschirmanordnung und ihre Fenster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWidgetUserInterface.cpp"/>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Can be made active</source>
        <translation>Aktivierbar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Same displays</source>
        <translation>Gleiche Bildschirme</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Other displays</source>
        <translation>Andere Bildschirme</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays stand like these.</source>
        <translation>Die angeschlossenen Bildschirme stehen wie diese.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays can be arranged like these.</source>
        <translation>Die angeschlossenen Bildschirme lassen sich wie diese anordnen.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays stand like these, too, but the current configuration is older and is the one that is used.</source>
        <translation>Die angeschlossenen Bildschirme stehen auch wie diese, aber die aktuelle Anordnung ist älter und wird benutzt.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays cannot be arranged like these.</source>
        <translation>Die angeschlossenen Bildschirme lassen sich nicht wie diese anordnen.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>Linking the Active Window…</source>
        <translation>Das aktive Fenster wird verknüpft…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>The active window is already linked to another window. Do you want to replace the existing link?</source>
        <translation>Das aktive Fenster ist schon mit einem anderen Fenster verknüpft. Möchten Sie die Verknüpfung ersetzen?</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>The active window will be unlinked from the window labelled “%@” and linked to the window labelled “%@”.</source>
        <translation>Das aktive Fenster wird vom Fenster „%@“ gelöst und mit dem Fenster „%@“ verknüpft.</translation>
    </message>
    <message>
        <location filename="../../src/Utilities/LMFolders.cpp"/>
        <source>No path found for directory in domain.</source>
        <translation>Für den Ordner wurde kein Pfad gefunden.</translation>
    </message>
    <message>
        <location filename="../../src/Utilities/LMFolders.cpp"/>
        <source>File exists at requested directory location.</source>
        <translation>Am Ort des Ordners liegt eine Datei.</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>Rook is running already</source>
        <translation>Rook läuft schon</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>there is no session bus; Rook cannot be reached without one</source>
        <translation>Es gibt keinen Sitzungsbus; ohne ihn ist Rook nicht erreichbar</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>Rook cannot run here</source>
        <translation>Rook kann hier nicht laufen</translation>
    </message>
</context>
</TS>

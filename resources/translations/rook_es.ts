<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Rook</name>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: there is no session bus to reach Rook through</source>
        <translation>rook: no hay ningún bus de sesión por el que llegar a Rook</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook waits for the script that calls it. %@</source>
        <translation>Rook está esperando al script que lo llama. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>the command could not run</source>
        <translation>no se pudo ejecutar la orden</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>the output could not be written</source>
        <translation>no se pudo escribir la salida</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook has not ended yet</source>
        <translation>Rook aún no ha terminado</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook could not be started. %@</source>
        <translation>No se pudo iniciar Rook. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: Rook is busy and answers later. %@</source>
        <translation>rook: Rook está ocupado y responderá más tarde. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook has ended without an answer; start it with “rook” to see why</source>
        <translation>Rook terminó sin responder; inícielo con «rook» para ver por qué</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: Rook is not running; start it with “rook”</source>
        <translation>rook: Rook no está en marcha; inícielo con «rook»</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>done</source>
        <translation>hecho</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>usage error</source>
        <translation>error de uso</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>no resident process</source>
        <translation>no hay proceso residente</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Replace what is stored already</source>
        <translation>Sustituir lo ya guardado</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember every window</source>
        <translation>Guardar todas las ventanas</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Ask on the screen whether to replace what is stored</source>
        <translation>Preguntar en pantalla si se sustituye lo guardado</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Print JSON instead of a table</source>
        <translation>Mostrar JSON en lugar de una tabla</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Put every window back</source>
        <translation>Restaurar todas las ventanas</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Put back the windows of one application</source>
        <translation>Restaurar las ventanas de una aplicación</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>The application's identifier; the active application without it</source>
        <translation>El identificador de la aplicación; sin él, la aplicación activa</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember the windows of the active application</source>
        <translation>Guardar las ventanas de la aplicación activa</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember the active window</source>
        <translation>Guardar la ventana activa</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Link the active window to a stored window</source>
        <translation>Vincular la ventana activa a una ventana guardada</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Open the status menu at the pointer</source>
        <translation>Abrir el menú de Rook junto al puntero</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the list of stored windows</source>
        <translation>Mostrar la lista de ventanas guardadas</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the preferences</source>
        <translation>Mostrar las preferencias</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show version and credits</source>
        <translation>Mostrar la versión y los créditos</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Look for a newer version</source>
        <translation>Buscar una versión más reciente</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>End the resident process</source>
        <translation>Terminar el proceso residente</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show displays, counts, back end, permission</source>
        <translation>Mostrar pantallas, recuentos, motor y permiso</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show what is stored</source>
        <translation>Mostrar lo que está guardado</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the live windows as Rook sees them</source>
        <translation>Mostrar las ventanas abiertas tal como las ve Rook</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show what a restore would do, and why; changes nothing</source>
        <translation>Mostrar qué haría una restauración y por qué; no cambia nada</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>One application's identifier</source>
        <translation>El identificador de una aplicación</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Exit codes: %@.</source>
        <translation>Códigos de salida: %@.</translation>
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
        <translation>Sin ninguna orden, Rook inicia su proceso residente en primer plano. Donde Rook está instalado,
también lo inicia una orden que haga algo; list, plan, quit, status y windows nunca lo hacen.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>not expected: %@</source>
        <translation>inesperado: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>not both: %@</source>
        <translation>incompatibles: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>rook: %@
Run “rook --help” for more information.</source>
        <translation>rook: %@
Ejecute «rook --help» para obtener más información.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Usage</source>
        <translation>Uso</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>OPTIONS</source>
        <translation>OPCIONES</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>SUBCOMMAND</source>
        <translation>ORDEN</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Arguments</source>
        <translation>Argumentos</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>TEXT</source>
        <translation>TEXTO</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Excludes</source>
        <translation>Excluye</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Print this help message and exit</source>
        <translation>Mostrar esta ayuda</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Rook remembers where your windows stand, per set of displays, and puts them back.</source>
        <translation>Rook recuerda dónde están sus ventanas, para cada configuración de pantallas, y las devuelve a su sitio.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Display program version information and exit</source>
        <translation>Mostrar la versión del programa</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Start without tray or windows</source>
        <translation>Iniciar sin icono ni ventanas</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Log debug messages too</source>
        <translation>Registrar también los mensajes de depuración</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Subcommands</source>
        <translation>Órdenes</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@×%@ at %@,%@</source>
        <translation>%@×%@ en %@,%@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>desktop %@</source>
        <translation>escritorio %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>desktop %@ “%@”</source>
        <translation>escritorio %@ «%@»</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ (not to be had: %@)</source>
        <translation>%@ (no disponible: %@)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>DISPLAY</source>
        <translation>PANTALLA</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>BOUNDS</source>
        <translation>LÍMITES</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>PRODUCT</source>
        <translation>MODELO</translation>
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
        <translation>%@: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Process</source>
        <translation>Proceso</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Store</source>
        <translation>Archivo de datos</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Back end</source>
        <translation>Motor</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@, window manager %@</source>
        <translation>%@, gestor de ventanas %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source> (no)</source>
        <translation> (no)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Capabilities</source>
        <translation>Capacidades</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Permission</source>
        <translation>Permiso</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Missing</source>
        <translation>Falta</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Current workspace</source>
        <translation>Disposición actual</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Stored</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>workspaces: %@, applications: %@, windows: %@</source>
        <translation>Disposiciones: %@, aplicaciones: %@, ventanas: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Hot key</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Doing</source>
        <translation>En curso</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WORKSPACE</source>
        <translation>DISPOSICIÓN</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>APPLICATION</source>
        <translation>APLICACIÓN</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WINDOW</source>
        <translation>VENTANA</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FRAME</source>
        <translation>MARCO</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>STATE</source>
        <translation>ESTADO</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>PATTERN</source>
        <translation>PATRÓN</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>TITLE</source>
        <translation>TÍTULO</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>SUBROLE</source>
        <translation>SUBROL</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>CHILD ROLES</source>
        <translation>ROLES HIJOS</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FLAGS</source>
        <translation>INDICADORES</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>STORED WINDOW</source>
        <translation>VENTANA GUARDADA</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>SCORE</source>
        <translation>PUNTOS</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WHY</source>
        <translation>MOTIVO</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FROM</source>
        <translation>DE</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>TO</source>
        <translation>A</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none: stays</source>
        <translation>ninguna: se queda</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none: not open</source>
        <translation>ninguna: no abierta</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ %@ to %@</source>
        <translation>%@ de %@ a %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ since %@</source>
        <translation>%@ desde %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMAlerts.cpp"/>
        <source>Replace</source>
        <translation>Sustituir</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMAlerts.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMApplicationDelegate.cpp"/>
        <source>The session bus is gone.</source>
        <translation>El bus de sesión ha desaparecido.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>The windows are remembered, but not on disk yet: %@</source>
        <translation>Las ventanas se recuerdan, pero aún no están en el disco: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Rook is asking something: answer that first.</source>
        <translation>Rook está preguntando algo: responda primero a eso.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Rook is busy: %@</source>
        <translation>Rook está ocupado: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Nothing is stored for the displays attached now.</source>
        <translation>No hay nada guardado para las pantallas conectadas ahora.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No application is active.</source>
        <translation>No hay ninguna aplicación activa.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No window has the focus.</source>
        <translation>Ninguna ventana tiene el foco.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>This Rook was started without windows.</source>
        <translation>Este Rook se inició sin ventanas.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No windows are stored for “%@” with the displays attached now.</source>
        <translation>No hay ventanas guardadas de «%@» con las pantallas conectadas ahora.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>%@ Ask to overwrite in order to replace them.</source>
        <translation>%@ Pida sobrescribir para sustituirlas.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>You chose not to replace what is stored.</source>
        <translation>Ha elegido no sustituir lo que está guardado.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMHotKeyCenter.cpp"/>
        <source>The setting is no shortcut.</source>
        <translation>El ajuste no es un atajo.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Add Rook to your applications?</source>
        <translation>¿Añadir Rook a sus aplicaciones?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Rook runs from “%@”, where your desktop does not look for programs. A launcher lets you start it like any other.</source>
        <translation>Rook se ejecuta desde «%@», donde su escritorio no busca programas. Con un lanzador podrá iniciarlo como cualquier otro.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Add Launcher</source>
        <translation>Añadir lanzador</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLoginItemsController.cpp"/>
        <source>There is no home directory.</source>
        <translation>No hay carpeta personal.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMReplacement.cpp"/>
        <source>The displays have changed.</source>
        <translation>Las pantallas han cambiado.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMReplacement.cpp"/>
        <source>Not all windows could be read, so what was stored is kept: %@</source>
        <translation>No se pudieron leer todas las ventanas, así que se conserva lo guardado: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMRestoreCommands.cpp"/>
        <source>Restoring Windows…</source>
        <translation>Restaurando las ventanas…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMRestoreCommands.cpp"/>
        <location filename="../../src/Controller/LMRestoreEvents.cpp"/>
        <source>Restoring Windows for %@…</source>
        <translation>Restaurando las ventanas de %@…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Restore Windows for %@</source>
        <translation>Restaurar las ventanas de %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store All Windows for %@</source>
        <translation>Guardar todas las ventanas de %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Finder</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store Active Window</source>
        <translation>Guardar la ventana activa</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Link Active Window…</source>
        <translation>Vincular la ventana activa…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store All Windows</source>
        <translation>Guardar todas las ventanas</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Restore All Windows</source>
        <translation>Restaurar todas las ventanas</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Stored Windows…</source>
        <translation>Ventanas guardadas…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>About Rook</source>
        <translation>Acerca de Rook</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Quit Rook</source>
        <translation>Salir de Rook</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>%@ (Incompatible)</source>
        <translation>%@ (incompatible)</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Store Windows Succeeded</source>
        <translation>Ventanas guardadas</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing Windows for %@…</source>
        <translation>Guardando las ventanas de %@…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Stored windows already exist for “%@”. Do you want to replace them?</source>
        <translation>Ya hay ventanas guardadas de «%@». ¿Quiere sustituirlas?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The windows previously stored for “%@” will be replaced with its current windows.</source>
        <translation>Las ventanas guardadas anteriormente de «%@» se sustituirán por las actuales.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored windows for %@.</source>
        <translation>Rook ha guardado las ventanas de %@.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing the Active Window…</source>
        <translation>Guardando la ventana activa…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>An identical stored window already exists. Do you want to replace it?</source>
        <translation>Ya hay guardada una ventana idéntica. ¿Quiere sustituirla?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The stored window labelled “%@” will be replaced with the active window.</source>
        <translation>La ventana guardada «%@» se sustituirá por la ventana activa.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored the active window.</source>
        <translation>Rook ha guardado la ventana activa.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The windows of “%@” cannot be stored.</source>
        <translation>No se pueden guardar las ventanas de «%@».</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing Windows for All Applications…</source>
        <translation>Guardando las ventanas de todas las aplicaciones…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Stored windows already exist. Do you want to replace them?</source>
        <translation>Ya hay ventanas guardadas. ¿Quiere sustituirlas?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Previously stored windows will be replaced with the windows of the current running applications.</source>
        <translation>Las ventanas guardadas anteriormente se sustituirán por las de las aplicaciones en marcha.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored windows for all applications.</source>
        <translation>Rook ha guardado las ventanas de todas las aplicaciones.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>There is nobody to ask.</source>
        <translation>No hay a quién preguntar.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Updates could not be looked for</source>
        <translation>No se pudieron buscar actualizaciones</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Rook is up to date</source>
        <translation>Rook está actualizado</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Rook %@ is available</source>
        <translation>Rook %@ está disponible</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Your system’s software updates install it.</source>
        <translation>Las actualizaciones de software de su sistema lo instalarán.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMActionRunning.cpp"/>
        <source>Running the action “%@” of “%@”…</source>
        <translation>Ejecutando la acción «%@» de «%@»…</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindow.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No title</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindow.cpp"/>
        <source>Unlabeled Window</source>
        <translation>Ventana sin etiqueta</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>There may be a problem with your Stored Windows.sqlite file. Please remove the current file and re-launch Rook.</source>
        <translation>Puede que haya un problema con el archivo «Stored Windows.sqlite». Elimine el archivo actual y vuelva a iniciar Rook.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Rook is unable to create some folders required for it to run.</source>
        <translation>Rook no puede crear algunas carpetas que necesita para funcionar.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Rook seems to be missing some required components and may need to be re-installed.</source>
        <translation>Parece que a Rook le faltan componentes necesarios; puede que haya que reinstalarlo.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Unable to load stored windows.</source>
        <translation>No se pueden cargar las ventanas guardadas.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Stored Windows Version Mismatch.</source>
        <translation>La versión de las ventanas guardadas no coincide.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Your Stored Windows were created with a newer version of Rook.

Please visit the Rook web site and download the latest version of Rook.</source>
        <translation>Sus ventanas guardadas se crearon con una versión más reciente de Rook.

Visite el sitio web de Rook y descargue la última versión.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>The object model is missing or contradicts itself.</source>
        <translation>El modelo de objetos falta o se contradice.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>There is no application support directory.</source>
        <translation>No hay carpeta para los datos de la aplicación.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMWorkspace.cpp"/>
        <source>%lu Display%@</source>
        <translation>%lu pantalla%@</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMWorkspace.cpp"/>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMObjectContextSaving.cpp"/>
        <source>There is no store to save to.</source>
        <translation>No hay archivo donde guardar.</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMPersistentStore.cpp"/>
        <source>%@: the file was moved or replaced while Rook was using it</source>
        <translation>%@: el archivo se movió o sustituyó mientras Rook lo usaba</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>not a store file</source>
        <translation>no es un archivo de Rook</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>a database of another program</source>
        <translation>una base de datos de otro programa</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>written by a newer version of Rook (store version %@, known are versions up to %@)</source>
        <translation>escrito por una versión más reciente de Rook (versión %@ del archivo, se conocen hasta la %@)</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the file is cut short</source>
        <translation>el archivo está truncado</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>no such folder</source>
        <translation>la carpeta no existe</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the folder is not writable</source>
        <translation>no se puede escribir en la carpeta</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the file is not writable</source>
        <translation>no se puede escribir en el archivo</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>%@: in use by another process</source>
        <translation>%@: en uso por otro proceso</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>Another program is using %@.</source>
        <translation>Otro programa está usando %@.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>%@ is in use for another hot key.</source>
        <translation>%@ ya se usa para otro atajo.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>This keyboard has no %@.</source>
        <translation>Este teclado no tiene la tecla %@.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>Hot keys are not available in this session.</source>
        <translation>Los atajos no están disponibles en esta sesión.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>No-Break Space</source>
        <translation>Espacio duro</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Backspace</source>
        <translation>Retroceso</translation>
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
        <translation>Borrar</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>System Request</source>
        <translation>PetSis</translation>
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
        <translation>Inicio</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Page Up</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Page Down</source>
        <translation>Av Pág</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Print</source>
        <translation>Impr Pant</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Delete</source>
        <comment>key</comment>
        <translation>Supr</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Enter</source>
        <translation>Intro (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Home</source>
        <translation>Inicio (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Left</source>
        <translation>Izquierda (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Up</source>
        <translation>Arriba (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Right</source>
        <translation>Derecha (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Down</source>
        <translation>Abajo (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Page Up</source>
        <translation>Re Pág (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Page Down</source>
        <translation>Av Pág (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad End</source>
        <translation>Fin (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Begin</source>
        <translation>Centro (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Insert</source>
        <translation>Insert (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Delete</source>
        <translation>Supr (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Brightness Up</source>
        <translation>Subir brillo</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Brightness Down</source>
        <translation>Bajar brillo</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Volume Down</source>
        <translation>Bajar volumen</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Volume Up</source>
        <translation>Subir volumen</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Previous Track</source>
        <translation>Pista anterior</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Next Track</source>
        <translation>Pista siguiente</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Home Page</source>
        <translation>Página de inicio</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Calculator</source>
        <translation>Calculadora</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Power Off</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Sleep</source>
        <translation>Suspender</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Pause Playing</source>
        <translation>Pausar reproducción</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Media</source>
        <translation>Multimedia</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 1</source>
        <translation>Lanzar 1</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 2</source>
        <translation>Lanzar 2</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 3</source>
        <translation>Lanzar 3</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 4</source>
        <translation>Lanzar 4</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Microphone Mute</source>
        <translation>Silenciar micrófono</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad %@</source>
        <translation>%@ (teclado num.)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Key %@</source>
        <translation>Tecla %@</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Super</source>
        <translation>Súper</translation>
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
        <translation>Mayús</translation>
    </message>
    <message>
        <location filename="../../src/Platform/PackageKit/LMPackageKitUpdater.cpp"/>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit no responde.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>The X server does not answer.</source>
        <translation>El servidor X no responde.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <source>The X server refused to intern atoms.</source>
        <translation>El servidor X se negó a crear átomos.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <source>The connection to the X server is lost.</source>
        <translation>Se ha perdido la conexión con el servidor X.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <source>Wayland sessions are not supported yet: most windows are out of reach there. Log in to an X11 session.</source>
        <translation>Las sesiones de Wayland aún no son compatibles: allí la mayoría de las ventanas están fuera de alcance. Inicie una sesión de X11.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <source>There is no X server to connect to: DISPLAY is not set.</source>
        <translation>No hay ningún servidor X al que conectarse: DISPLAY no está definida.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>No window manager is running.</source>
        <translation>No hay ningún gestor de ventanas en marcha.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>The window manager does not support %@.</source>
        <translation>El gestor de ventanas no admite %@.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>On Display Change</source>
        <translation>Al cambiar pantallas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Unlabeled Action</source>
        <translation>Acción sin etiqueta</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Runs only when the displays have changed</source>
        <translation>Se ejecuta solo cuando han cambiado las pantallas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Runs whenever the windows are restored</source>
        <translation>Se ejecuta siempre que se restauran las ventanas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMApplicationsModel.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMRegularExpressionValidationFormatter.cpp"/>
        <source>Not a valid pattern</source>
        <translation>Patrón no válido</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMRegularExpressionValidationFormatter.cpp"/>
        <source>Valid pattern</source>
        <translation>Patrón válido</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScreenshotView.cpp"/>
        <source>Picture of the stored window</source>
        <translation>Imagen de la ventana guardada</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Shell script</source>
        <translation>Script de shell</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>AppleScript</source>
        <translation>AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Shift+Tab and Ctrl+Tab leave the text</source>
        <translation>Mayús+Tab y Ctrl+Tab salen del texto</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>This system cannot run AppleScripts. The text is kept.</source>
        <translation>Este sistema no puede ejecutar AppleScript. El texto se conserva.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Comp&amp;ile</source>
        <translation>C&amp;ompilar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>This is the beginning of a script that is too long to be edited here. It runs as a whole.</source>
        <translation>Este es el comienzo de un script demasiado largo para editarlo aquí. Se ejecuta entero.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>The script compiles.</source>
        <translation>El script se compila.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>The script does not compile.</source>
        <translation>El script no se compila.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Could not import AppleScript</source>
        <translation>No se pudo importar el AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Please ensure that the file you are importing has not been saved as “Run Only”.</source>
        <translation>Asegúrese de que el archivo que va a importar no se guardó como «Solo ejecutable».</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Could not import Shell Script</source>
        <translation>No se pudo importar el script de shell</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Please ensure that the file you are importing is plain text.</source>
        <translation>Asegúrese de que el archivo que va a importar es texto sin formato.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Ma&amp;ximized</source>
        <translation>Ma&amp;ximizada</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Full Screen</source>
        <translation>&amp;Pantalla completa</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Mi&amp;nimized</source>
        <translation>Mi&amp;nimizada</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Rolled Up</source>
        <translation>En&amp;rollada</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Above Others</source>
        <translation>Por &amp;encima de las demás</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Below Others</source>
        <translation>Por de&amp;bajo de las demás</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Frame &amp;Only</source>
        <translation>&amp;Solo el marco</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>On All Desktops</source>
        <translation>En todos los escritorios</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized</source>
        <translation>maximizada</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized in width</source>
        <translation>maximizada a lo ancho</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized in height</source>
        <translation>maximizada a lo alto</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>full screen</source>
        <translation>pantalla completa</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>minimized</source>
        <translation>minimizada</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>rolled up</source>
        <translation>enrollada</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>above others</source>
        <translation>por encima de las demás</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>below others</source>
        <translation>por debajo de las demás</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on all desktops</source>
        <translation>en todos los escritorios</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on desktop %@</source>
        <translation>en el escritorio %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on desktop %@ “%@”</source>
        <translation>en el escritorio %@ «%@»</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Frame only</source>
        <translation>Solo el marco</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Desktop %@</source>
        <translation>Escritorio %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Desktop %@ “%@”</source>
        <translation>Escritorio %@ «%@»</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerView.cpp"/>
        <source>Stored windows</source>
        <translation>Ventanas guardadas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>No stored windows</source>
        <translation>No hay ventanas guardadas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Actions</source>
        <translation>Acciones</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Actions are scripts that run before the windows are restored.</source>
        <translation>Las acciones son scripts que se ejecutan antes de restaurar las ventanas.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Application</source>
        <translation>Quitar la aplicación</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>R&amp;emove</source>
        <translation>Q&amp;uitar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Window</source>
        <translation>Quitar la ventana</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Re&amp;move</source>
        <translation>Qu&amp;itar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Action</source>
        <translation>Quitar la acción</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Add</source>
        <translation>Aña&amp;dir</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Add Action</source>
        <translation>Añadir acción</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Shell Script</source>
        <translation>Script de s&amp;hell</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;AppleScript</source>
        <translation>&amp;AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Import Script…</source>
        <translation>I&amp;mportar script…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Ru&amp;n</source>
        <translation>&amp;Ejecutar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Run Action</source>
        <translation>Ejecutar la acción</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Runs the action now and waits until it has ended</source>
        <translation>Ejecuta la acción ahora y espera a que termine</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Und&amp;o %@</source>
        <translation>Deshace&amp;r «%@»</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Und&amp;o</source>
        <translation>Deshace&amp;r</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>S&amp;tate</source>
        <translation>Es&amp;tado</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>State to restore</source>
        <translation>Estado que se restaura</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>A&amp;pplications</source>
        <translation>A&amp;plicaciones</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Windows</source>
        <translation>&amp;Ventanas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>A&amp;ctions</source>
        <translation>Accio&amp;nes</translation>
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
        <translation>Cerrar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorWindow.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Stored Windows</source>
        <translation>Ventanas guardadas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>%@ × %@ at %@, %@</source>
        <translation>%@ × %@ en %@, %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No label</source>
        <translation>Sin etiqueta</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No title pattern</source>
        <translation>Sin patrón del título</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Title Pattern</source>
        <translation>Patrón del título</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Frame</source>
        <translation>Marco</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>en</source>
        <comment>code of this language</comment>
        <translation>es</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>%@ (%@)</source>
        <translation>%@ (%@)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Version </source>
        <translation>Versión </translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>About %@</source>
        <translation>Acerca de %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Credits</source>
        <translation>Créditos</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>License</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAlertWindow.cpp"/>
        <source>Do not show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAlertWindow.cpp"/>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMDisplayView.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Displays</source>
        <translation>Pantallas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Start Rook at &amp;login</source>
        <translation>&amp;Iniciar Rook al comenzar la sesión</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Startup:</source>
        <translation>Inicio:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>When the &amp;displays change</source>
        <translation>Cuando cambien las &amp;pantallas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore windows when the displays change</source>
        <translation>Restaurar las ventanas cuando cambien las pantallas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>When an &amp;application launches, after</source>
        <translation>Al iniciarse una &amp;aplicación, tras</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore an application’s windows when it launches</source>
        <translation>Restaurar las ventanas de una aplicación cuando se inicie</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Seconds to wait after an application’s launch</source>
        <translation>Segundos de espera tras iniciarse una aplicación</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore windows:</source>
        <translation>Restaurar ventanas:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Whether they are &amp;maximized, minimized and so on</source>
        <translation>Si están &amp;maximizadas, minimizadas, etcétera</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore whether windows are maximized, minimized and so on</source>
        <translation>Restaurar si las ventanas están maximizadas, minimizadas, etcétera</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Which &amp;virtual desktop they are on</source>
        <translation>En qué escritorio &amp;virtual están</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore which virtual desktop windows are on</source>
        <translation>Restaurar en qué escritorio virtual están las ventanas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Which windows are &amp;in front</source>
        <translation>Qué ventanas están de&amp;lante</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore which windows are in front of others</source>
        <translation>Restaurar qué ventanas están delante de otras</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore also:</source>
        <translation>Restaurar también:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Take &amp;pictures of windows</source>
        <translation>Tomar &amp;capturas de las ventanas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Take pictures of windows when storing them</source>
        <translation>Tomar capturas de las ventanas al guardarlas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Store windows:</source>
        <translation>Guardar ventanas:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>&amp;Hide the menu icon</source>
        <translation>&amp;Ocultar el icono del menú</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Menu icon:</source>
        <translation>Icono del menú:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Check for &amp;updates automatically</source>
        <translation>&amp;Buscar actualizaciones automáticamente</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Updates:</source>
        <translation>Actualizaciones:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Reset &amp;Warnings</source>
        <translation>&amp;Restablecer avisos</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Shows all messages again that were switched off</source>
        <translation>Vuelve a mostrar todos los mensajes desactivados</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Warnings:</source>
        <translation>Avisos:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook’s menu icon cannot be hidden until the “Display Menu” hot key is set.</source>
        <translation>El icono del menú de Rook solo puede ocultarse si el atajo «Mostrar el menú» está definido.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook cannot be started at login.</source>
        <translation>No se puede iniciar Rook al comenzar la sesión.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook cannot be kept from starting at login.</source>
        <translation>No se puede evitar que Rook se inicie al comenzar la sesión.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Removes Rook’s icon from the menu bar when checked.</source>
        <translation>Si se marca, quita el icono de Rook de la barra.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>With the menu icon disabled, Rook’s menu can be displayed by pressing %@</source>
        <translation>Sin el icono, el menú de Rook se muestra con %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Restore All Windows</source>
        <translation>&amp;Restaurar todas las ventanas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Restore Windows for Active &amp;Application</source>
        <translation>Restaurar las ventanas de la &amp;aplicación activa</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Store All Windows for Active A&amp;pplication</source>
        <translation>Guardar todas las ventanas de la a&amp;plicación activa</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Store Active Window</source>
        <translation>&amp;Guardar la ventana activa</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Link Active Window</source>
        <translation>&amp;Vincular la ventana activa</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Store All &amp;Windows</source>
        <translation>Guardar &amp;todas las ventanas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Display &amp;Menu</source>
        <translation>Mostrar el &amp;menú</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Hot Keys</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>%@:</source>
        <translation>%@:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>“%@” is using %@.</source>
        <translation>«%@» está usando %@.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMPermissionPrompt.cpp"/>
        <source>Rook cannot move windows on this desktop.</source>
        <translation>Rook no puede mover ventanas en este escritorio.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMPermissionPrompt.cpp"/>
        <source>%@

Until that changes, windows are neither stored nor restored.</source>
        <translation>%@

Mientras eso no cambie, las ventanas no se guardan ni se restauran.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Clear the hot key “%@”</source>
        <translation>Borrar el atajo «%@»</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Not with this key</source>
        <translation>Con esta tecla no</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Hold Ctrl, Alt or Super</source>
        <translation>Mantenga Ctrl, Alt o Súper</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Record Shortcut</source>
        <translation>Grabar atajo</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Type Shortcut…</source>
        <translation>Pulse el atajo…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsEditorActions.cpp"/>
        <source>Import Script</source>
        <translation>Importar script</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsEditorStates.cpp"/>
        <source>Change State</source>
        <translation>Cambiar estado</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Delete display configuration</source>
        <translation>Eliminar la configuración de pantallas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Do you wish to delete all stored windows for the selected display configuration?</source>
        <translation>¿Quiere eliminar todas las ventanas guardadas de la configuración de pantallas seleccionada?</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Display configurations</source>
        <translation>Configuraciones de pantallas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>No windows are stored yet.
Arrange your windows and choose “Store All Windows”.</source>
        <translation>Aún no hay ventanas guardadas.
Coloque sus ventanas y elija «Guardar todas las ventanas».</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Shows applications and windows</source>
        <translation>Muestra las aplicaciones y las ventanas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Rename</source>
        <translation>&amp;Renombrar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Gives the display configuration a name</source>
        <translation>Da un nombre a la configuración de pantallas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Make &amp;Active</source>
        <translation>&amp;Activar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Arranges the attached displays like these</source>
        <translation>Coloca las pantallas conectadas como estas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Delete…</source>
        <translation>E&amp;liminar…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Forgets the display configuration and its windows</source>
        <translation>Olvida la configuración de pantallas y sus ventanas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWidgetUserInterface.cpp"/>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Current</source>
        <translation>Actual</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Can be made active</source>
        <translation>Se puede activar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Same displays</source>
        <translation>Mismas pantallas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Other displays</source>
        <translation>Otras pantallas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays stand like these.</source>
        <translation>Las pantallas conectadas están colocadas como estas.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays can be arranged like these.</source>
        <translation>Las pantallas conectadas se pueden colocar como estas.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays stand like these, too, but the current configuration is older and is the one that is used.</source>
        <translation>Las pantallas conectadas también están colocadas como estas, pero la configuración actual es más antigua y es la que se usa.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays cannot be arranged like these.</source>
        <translation>Las pantallas conectadas no se pueden colocar como estas.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Windows</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>Linking the Active Window…</source>
        <translation>Vinculando la ventana activa…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>The active window is already linked to another window. Do you want to replace the existing link?</source>
        <translation>La ventana activa ya está vinculada a otra ventana. ¿Quiere sustituir el vínculo existente?</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>The active window will be unlinked from the window labelled “%@” and linked to the window labelled “%@”.</source>
        <translation>La ventana activa se desvinculará de la ventana «%@» y se vinculará a la ventana «%@».</translation>
    </message>
    <message>
        <location filename="../../src/Utilities/LMFolders.cpp"/>
        <source>No path found for directory in domain.</source>
        <translation>No se encontró ninguna ruta para la carpeta.</translation>
    </message>
    <message>
        <location filename="../../src/Utilities/LMFolders.cpp"/>
        <source>File exists at requested directory location.</source>
        <translation>Hay un archivo en el lugar de la carpeta.</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>Rook is running already</source>
        <translation>Rook ya está en marcha</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>there is no session bus; Rook cannot be reached without one</source>
        <translation>no hay bus de sesión; sin él no se puede llegar a Rook</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>Rook cannot run here</source>
        <translation>Rook no puede funcionar aquí</translation>
    </message>
</context>
</TS>

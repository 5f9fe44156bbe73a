<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
  <context>
    <name>Morvane</name>
    <message id="auth.err.emailExists">
      <source>An account with this e-mail address exists already. Sign in instead.</source>
      <translation>Ya existe una cuenta con esta dirección de correo. Inicia sesión en su lugar.</translation>
    </message>
    <message id="auth.err.invalidEmail">
      <source>Enter a valid e-mail address.</source>
      <translation>Introduce una dirección de correo válida.</translation>
    </message>
    <message id="auth.err.network">
      <source>Morvane cannot reach the server. Check your connection and try again.</source>
      <translation>Morvane no puede conectar con el servidor. Revisa tu conexión y vuelve a intentarlo.</translation>
    </message>
    <message id="auth.err.oauthBadUrl">
      <source>The sign-in address is not valid.</source>
      <translation>La dirección de inicio de sesión no es válida.</translation>
    </message>
    <message id="auth.err.oauthCancelled">
      <source>The sign-in was cancelled.</source>
      <translation>Se canceló el inicio de sesión.</translation>
    </message>
    <message id="auth.err.oauthCannotStart">
      <source>Could not start the sign-in.</source>
      <translation>No se pudo iniciar el inicio de sesión.</translation>
    </message>
    <message id="auth.err.oauthNoCode">
      <source>The sign-in came back without a code.</source>
      <translation>El inicio de sesión volvió sin código.</translation>
    </message>
    <message id="auth.err.rateLimit">
      <source>Too many attempts. Wait a few minutes, then try again.</source>
      <translation>Demasiados intentos. Espera unos minutos y vuelve a intentarlo.</translation>
    </message>
    <message id="auth.err.server">
      <source>The server ran into a problem. Try again in a moment.</source>
      <translation>El servidor tuvo un problema. Vuelve a intentarlo en un momento.</translation>
    </message>
    <message id="auth.err.switchExpired">
      <source>Couldn't switch to %1. That account's session expired - sign in to it again.</source>
      <translation>No se pudo cambiar a %1. La sesión de esa cuenta caducó; vuelve a iniciar sesión en ella.</translation>
    </message>
    <message id="auth.oauthDone">
      <source>You are signed in to Morvane. You can close this window.</source>
      <translation>Has iniciado sesión en Morvane. Puedes cerrar esta ventana.</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>El comando que se ejecutará; sin él, se muestra la lista de comandos.</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Mostrar qué servidor usa Morvane y de dónde viene cada ajuste</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Comandos:</translation>
    </message>
    <message id="cli.config.json">
      <source>Print the setting as JSON.</source>
      <translation>Mostrar el ajuste en formato JSON.</translation>
    </message>
    <message id="cli.config.key">
      <source>Anonymous key</source>
      <translation>Clave anónima</translation>
    </message>
    <message id="cli.config.keyMissing">
      <source>not set</source>
      <translation>sin definir</translation>
    </message>
    <message id="cli.config.url">
      <source>Backend address</source>
      <translation>Dirección del servidor</translation>
    </message>
    <message id="cli.description">
      <source>Morvane tracks working time on projects and tasks and turns it into invoices.</source>
      <translation>Morvane registra el tiempo de trabajo en proyectos y tareas y lo convierte en facturas.</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Comando desconocido: %1. Ejecuta morvane --help para ver la lista de comandos.</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>Mostrar esta ayuda.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Mostrar la versión.</translation>
    </message>
    <message id="config.source.environment">
      <source>environment</source>
      <translation>entorno</translation>
    </message>
    <message id="config.source.local">
      <source>local backend</source>
      <translation>servidor local</translation>
    </message>
    <message id="config.source.settings">
      <source>application settings</source>
      <translation>ajustes de la aplicación</translation>
    </message>
    <message id="errEmailNotConfirmed">
      <source>Confirm your e-mail address first: follow the link in the mail we sent you.</source>
      <translation>Confirma primero tu dirección de correo: sigue el enlace del mensaje que te enviamos.</translation>
    </message>
    <message id="errEmailRateLimit">
      <source>Too many e-mails went to this address. Wait a minute, then try again.</source>
      <translation>Se enviaron demasiados correos a esta dirección. Espera un minuto y vuelve a intentarlo.</translation>
    </message>
    <message id="errInvalidCredentials">
      <source>The e-mail address or the password is not right.</source>
      <translation>La dirección de correo o la contraseña no es correcta.</translation>
    </message>
    <message id="net.err.connection">
      <source>Could not reach the server: %1</source>
      <translation>No se pudo conectar con el servidor: %1</translation>
    </message>
    <message id="net.err.offline">
      <source>The Internet connection appears to be offline.</source>
      <translation>Parece que no hay conexión a Internet.</translation>
    </message>
    <message id="net.err.timeout">
      <source>The request timed out.</source>
      <translation>Se agotó el tiempo de espera de la solicitud.</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Algo salió mal. Vuelve a intentarlo.</translation>
    </message>
    <message id="supabase.err.decoding">
      <source>Decode: %1</source>
      <translation>Decodificación: %1</translation>
    </message>
    <message id="supabase.err.http">
      <source>HTTP %1: %2</source>
      <translation>HTTP %1: %2</translation>
    </message>
    <message id="supabase.err.invalidURL">
      <source>Invalid URL</source>
      <translation>URL no válida</translation>
    </message>
    <message id="supabase.err.noAuth">
      <source>Not signed in.</source>
      <translation>No has iniciado sesión.</translation>
    </message>
  </context>
</TS>

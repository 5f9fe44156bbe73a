<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
  <context>
    <name>Morvane</name>
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

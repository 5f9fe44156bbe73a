<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
  <context>
    <name>Morvane</name>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>Der auszuführende Befehl; ohne Befehl wird die Befehlsliste angezeigt.</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Zeigt, welches Backend Morvane nutzt und woher jede Einstellung stammt</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Befehle:</translation>
    </message>
    <message id="cli.config.json">
      <source>Print the setting as JSON.</source>
      <translation>Die Einstellung als JSON ausgeben.</translation>
    </message>
    <message id="cli.config.key">
      <source>Anonymous key</source>
      <translation>Anonymer Schlüssel</translation>
    </message>
    <message id="cli.config.keyMissing">
      <source>not set</source>
      <translation>nicht gesetzt</translation>
    </message>
    <message id="cli.config.url">
      <source>Backend address</source>
      <translation>Backend-Adresse</translation>
    </message>
    <message id="cli.description">
      <source>Morvane tracks working time on projects and tasks and turns it into invoices.</source>
      <translation>Morvane erfasst Arbeitszeit für Projekte und Aufgaben und macht daraus Rechnungen.</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Unbekannter Befehl: %1. Mit morvane --help wird die Befehlsliste angezeigt.</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Die Version anzeigen.</translation>
    </message>
    <message id="config.source.environment">
      <source>environment</source>
      <translation>Umgebung</translation>
    </message>
    <message id="config.source.local">
      <source>local backend</source>
      <translation>lokales Backend</translation>
    </message>
    <message id="config.source.settings">
      <source>application settings</source>
      <translation>Programmeinstellungen</translation>
    </message>
    <message id="net.err.connection">
      <source>Could not reach the server: %1</source>
      <translation>Server nicht erreichbar: %1</translation>
    </message>
    <message id="net.err.offline">
      <source>The Internet connection appears to be offline.</source>
      <translation>Die Internetverbindung scheint offline zu sein.</translation>
    </message>
    <message id="net.err.timeout">
      <source>The request timed out.</source>
      <translation>Zeitüberschreitung bei der Anfrage.</translation>
    </message>
    <message id="supabase.err.decoding">
      <source>Decode: %1</source>
      <translation>Dekodierung: %1</translation>
    </message>
    <message id="supabase.err.http">
      <source>HTTP %1: %2</source>
      <translation>HTTP %1: %2</translation>
    </message>
    <message id="supabase.err.invalidURL">
      <source>Invalid URL</source>
      <translation>Ungültige URL</translation>
    </message>
    <message id="supabase.err.noAuth">
      <source>Not signed in.</source>
      <translation>Nicht angemeldet.</translation>
    </message>
  </context>
</TS>

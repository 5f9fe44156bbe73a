<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
  <context>
    <name>Morvane</name>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>Il comando da eseguire; senza comando viene mostrato l’elenco dei comandi.</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Mostra quale server usa Morvane e da dove proviene ogni impostazione</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Comandi:</translation>
    </message>
    <message id="cli.config.json">
      <source>Print the setting as JSON.</source>
      <translation>Mostra l’impostazione in formato JSON.</translation>
    </message>
    <message id="cli.config.key">
      <source>Anonymous key</source>
      <translation>Chiave anonima</translation>
    </message>
    <message id="cli.config.keyMissing">
      <source>not set</source>
      <translation>non impostata</translation>
    </message>
    <message id="cli.config.url">
      <source>Backend address</source>
      <translation>Indirizzo del server</translation>
    </message>
    <message id="cli.description">
      <source>Morvane tracks working time on projects and tasks and turns it into invoices.</source>
      <translation>Morvane registra il tempo di lavoro su progetti e attività e lo trasforma in fatture.</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Comando sconosciuto: %1. Esegui morvane --help per l’elenco dei comandi.</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>Mostra questo aiuto.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Mostra la versione.</translation>
    </message>
    <message id="config.source.environment">
      <source>environment</source>
      <translation>ambiente</translation>
    </message>
    <message id="config.source.local">
      <source>local backend</source>
      <translation>server locale</translation>
    </message>
    <message id="config.source.settings">
      <source>application settings</source>
      <translation>impostazioni dell’applicazione</translation>
    </message>
    <message id="net.err.connection">
      <source>Could not reach the server: %1</source>
      <translation>Impossibile raggiungere il server: %1</translation>
    </message>
    <message id="net.err.offline">
      <source>The Internet connection appears to be offline.</source>
      <translation>La connessione a Internet sembra non essere attiva.</translation>
    </message>
    <message id="net.err.timeout">
      <source>The request timed out.</source>
      <translation>Tempo scaduto per la richiesta.</translation>
    </message>
    <message id="supabase.err.decoding">
      <source>Decode: %1</source>
      <translation>Decodifica: %1</translation>
    </message>
    <message id="supabase.err.http">
      <source>HTTP %1: %2</source>
      <translation>HTTP %1: %2</translation>
    </message>
    <message id="supabase.err.invalidURL">
      <source>Invalid URL</source>
      <translation>URL non valido</translation>
    </message>
    <message id="supabase.err.noAuth">
      <source>Not signed in.</source>
      <translation>Accesso non effettuato.</translation>
    </message>
  </context>
</TS>

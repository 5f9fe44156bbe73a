<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
  <context>
    <name>Morvane</name>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>De uit te voeren opdracht; zonder opdracht verschijnt de lijst met opdrachten.</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Toon welke backend Morvane gebruikt en waar elke instelling vandaan komt</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Opdrachten:</translation>
    </message>
    <message id="cli.config.json">
      <source>Print the setting as JSON.</source>
      <translation>Toon de instelling als JSON.</translation>
    </message>
    <message id="cli.config.key">
      <source>Anonymous key</source>
      <translation>Anonieme sleutel</translation>
    </message>
    <message id="cli.config.keyMissing">
      <source>not set</source>
      <translation>niet ingesteld</translation>
    </message>
    <message id="cli.config.url">
      <source>Backend address</source>
      <translation>Backendadres</translation>
    </message>
    <message id="cli.description">
      <source>Morvane tracks working time on projects and tasks and turns it into invoices.</source>
      <translation>Morvane registreert werktijd op projecten en taken en maakt er facturen van.</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Onbekende opdracht: %1. Voer morvane --help uit voor de lijst met opdrachten.</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>Toon deze hulp.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Toon de versie.</translation>
    </message>
    <message id="config.source.environment">
      <source>environment</source>
      <translation>omgeving</translation>
    </message>
    <message id="config.source.local">
      <source>local backend</source>
      <translation>lokale backend</translation>
    </message>
    <message id="config.source.settings">
      <source>application settings</source>
      <translation>programma-instellingen</translation>
    </message>
    <message id="net.err.connection">
      <source>Could not reach the server: %1</source>
      <translation>Kan de server niet bereiken: %1</translation>
    </message>
    <message id="net.err.offline">
      <source>The Internet connection appears to be offline.</source>
      <translation>De internetverbinding lijkt offline te zijn.</translation>
    </message>
    <message id="net.err.timeout">
      <source>The request timed out.</source>
      <translation>Er is een time-out opgetreden voor het verzoek.</translation>
    </message>
    <message id="supabase.err.decoding">
      <source>Decode: %1</source>
      <translation>Decoderen: %1</translation>
    </message>
    <message id="supabase.err.http">
      <source>HTTP %1: %2</source>
      <translation>HTTP %1: %2</translation>
    </message>
    <message id="supabase.err.invalidURL">
      <source>Invalid URL</source>
      <translation>Ongeldige URL</translation>
    </message>
    <message id="supabase.err.noAuth">
      <source>Not signed in.</source>
      <translation>Niet ingelogd.</translation>
    </message>
  </context>
</TS>

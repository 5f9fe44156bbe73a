<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
  <context>
    <name>Morvane</name>
    <message id="auth.err.emailExists">
      <source>An account with this e-mail address exists already. Sign in instead.</source>
      <translation>Er bestaat al een account met dit e-mailadres. Log in plaats daarvan in.</translation>
    </message>
    <message id="auth.err.invalidEmail">
      <source>Enter a valid e-mail address.</source>
      <translation>Vul een geldig e-mailadres in.</translation>
    </message>
    <message id="auth.err.network">
      <source>Morvane cannot reach the server. Check your connection and try again.</source>
      <translation>Morvane kan de server niet bereiken. Controleer je verbinding en probeer het opnieuw.</translation>
    </message>
    <message id="auth.err.oauthBadUrl">
      <source>The sign-in address is not valid.</source>
      <translation>Het inlogadres is ongeldig.</translation>
    </message>
    <message id="auth.err.oauthCancelled">
      <source>The sign-in was cancelled.</source>
      <translation>Het inloggen is geannuleerd.</translation>
    </message>
    <message id="auth.err.oauthCannotStart">
      <source>Could not start the sign-in.</source>
      <translation>Het inloggen kon niet worden gestart.</translation>
    </message>
    <message id="auth.err.oauthNoCode">
      <source>The sign-in came back without a code.</source>
      <translation>Het inloggen kwam terug zonder code.</translation>
    </message>
    <message id="auth.err.rateLimit">
      <source>Too many attempts. Wait a few minutes, then try again.</source>
      <translation>Te veel pogingen. Wacht een paar minuten en probeer het opnieuw.</translation>
    </message>
    <message id="auth.err.server">
      <source>The server ran into a problem. Try again in a moment.</source>
      <translation>De server liep tegen een probleem aan. Probeer het zo opnieuw.</translation>
    </message>
    <message id="auth.err.switchExpired">
      <source>Couldn't switch to %1. That account's session expired - sign in to it again.</source>
      <translation>Overschakelen naar %1 lukte niet. De sessie van dat account is verlopen - log er opnieuw op in.</translation>
    </message>
    <message id="auth.oauthDone">
      <source>You are signed in to Morvane. You can close this window.</source>
      <translation>Je bent ingelogd bij Morvane. Je kunt dit venster sluiten.</translation>
    </message>
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
    <message id="errEmailNotConfirmed">
      <source>Confirm your e-mail address first: follow the link in the mail we sent you.</source>
      <translation>Bevestig eerst je e-mailadres: volg de link in de mail die we je stuurden.</translation>
    </message>
    <message id="errEmailRateLimit">
      <source>Too many e-mails went to this address. Wait a minute, then try again.</source>
      <translation>Er zijn te veel e-mails naar dit adres gegaan. Wacht een minuut en probeer het opnieuw.</translation>
    </message>
    <message id="errInvalidCredentials">
      <source>The e-mail address or the password is not right.</source>
      <translation>Het e-mailadres of het wachtwoord klopt niet.</translation>
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
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Er ging iets mis. Probeer het opnieuw.</translation>
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

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
  <context>
    <name>Morvane</name>
    <message id="auth.err.emailExists">
      <source>An account with this e-mail address exists already. Sign in instead.</source>
      <translation>Es gibt bereits ein Konto mit dieser E-Mail-Adresse. Melde dich stattdessen an.</translation>
    </message>
    <message id="auth.err.invalidEmail">
      <source>Enter a valid e-mail address.</source>
      <translation>Gib eine gültige E-Mail-Adresse ein.</translation>
    </message>
    <message id="auth.err.network">
      <source>Morvane cannot reach the server. Check your connection and try again.</source>
      <translation>Morvane erreicht den Server nicht. Prüfe deine Verbindung und versuche es erneut.</translation>
    </message>
    <message id="auth.err.oauthBadUrl">
      <source>The sign-in address is not valid.</source>
      <translation>Die Anmeldeadresse ist ungültig.</translation>
    </message>
    <message id="auth.err.oauthCancelled">
      <source>The sign-in was cancelled.</source>
      <translation>Die Anmeldung wurde abgebrochen.</translation>
    </message>
    <message id="auth.err.oauthCannotStart">
      <source>Could not start the sign-in.</source>
      <translation>Die Anmeldung konnte nicht gestartet werden.</translation>
    </message>
    <message id="auth.err.oauthNoCode">
      <source>The sign-in came back without a code.</source>
      <translation>Die Anmeldung kam ohne Code zurück.</translation>
    </message>
    <message id="auth.err.rateLimit">
      <source>Too many attempts. Wait a few minutes, then try again.</source>
      <translation>Zu viele Versuche. Warte ein paar Minuten und versuche es dann erneut.</translation>
    </message>
    <message id="auth.err.server">
      <source>The server ran into a problem. Try again in a moment.</source>
      <translation>Beim Server ist ein Problem aufgetreten. Versuche es gleich noch einmal.</translation>
    </message>
    <message id="auth.err.switchExpired">
      <source>Couldn't switch to %1. That account's session expired - sign in to it again.</source>
      <translation>Wechsel zu %1 nicht möglich. Die Sitzung dieses Kontos ist abgelaufen - melde dich erneut an.</translation>
    </message>
    <message id="auth.oauthDone">
      <source>You are signed in to Morvane. You can close this window.</source>
      <translation>Du bist bei Morvane angemeldet. Du kannst dieses Fenster schließen.</translation>
    </message>
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
    <message id="errEmailNotConfirmed">
      <source>Confirm your e-mail address first: follow the link in the mail we sent you.</source>
      <translation>Bestätige zuerst deine E-Mail-Adresse: Folge dem Link in der Mail, die wir dir geschickt haben.</translation>
    </message>
    <message id="errEmailRateLimit">
      <source>Too many e-mails went to this address. Wait a minute, then try again.</source>
      <translation>An diese Adresse gingen zu viele E-Mails. Warte eine Minute und versuche es dann erneut.</translation>
    </message>
    <message id="errInvalidCredentials">
      <source>The e-mail address or the password is not right.</source>
      <translation>Die E-Mail-Adresse oder das Passwort stimmt nicht.</translation>
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
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Etwas ist schiefgelaufen. Versuche es erneut.</translation>
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

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
    <message id="claude.err.binaryMissing">
      <source>AI features need the Claude CLI on this Mac (it powers voice/prompt capture, briefs, and the invoice note). Everything else works without it. Set CLAUDE_CLI_PATH or install it, then try again.</source>
      <translation>KI-Funktionen brauchen die Claude CLI auf diesem Mac (für Sprach- und Prompteingabe, Briefings und die Rechnungsnotiz). Alles andere funktioniert ohne sie. Setze CLAUDE_CLI_PATH oder installiere sie und versuche es erneut.</translation>
    </message>
    <message id="claude.err.createTask">
      <source>Create task failed: %1</source>
      <translation>Aufgabe anlegen fehlgeschlagen: %1</translation>
    </message>
    <message id="claude.err.emptyOutput">
      <source>Claude produced no output</source>
      <translation>Claude hat nichts ausgegeben</translation>
    </message>
    <message id="claude.err.launchFailed">
      <source>Launch failed: %1</source>
      <translation>Start fehlgeschlagen: %1</translation>
    </message>
    <message id="claude.err.malformedJSON">
      <source>Bad JSON from Claude (%1) %2</source>
      <translation>Ungültiges JSON von Claude (%1) %2</translation>
    </message>
    <message id="claude.err.noJSONObject">
      <source>no JSON object detected</source>
      <translation>kein JSON-Objekt gefunden</translation>
    </message>
    <message id="claude.err.nonZeroExit">
      <source>Claude exited %1: %2</source>
      <translation>Claude wurde mit Status %1 beendet: %2</translation>
    </message>
    <message id="claude.err.outputNotWritten">
      <source>Claude finished but did not write %1</source>
      <translation>Claude ist fertig, hat %1 aber nicht geschrieben</translation>
    </message>
    <message id="claude.err.resultIsError">
      <source>claude returned is_error=true</source>
      <translation>claude meldete is_error=true</translation>
    </message>
    <message id="claude.err.routeNotConfigured">
      <source>%1 is not available in this version of Morvane. Choose the Claude CLI in the AI settings.</source>
      <translation>%1 ist in dieser Version von Morvane nicht verfügbar. Wähle die Claude CLI in den KI-Einstellungen.</translation>
    </message>
    <message id="claude.err.timedOut">
      <source>Claude request timed out after %1 s</source>
      <translation>Claude-Anfrage nach %1 s abgebrochen</translation>
    </message>
    <message id="claude.err.workspaceTimedOut">
      <source>Claude workspace task timed out after %1 s</source>
      <translation>Claude-Arbeitsordneraufgabe nach %1 s abgebrochen</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>Der auszuführende Befehl; ohne Befehl wird die Befehlsliste angezeigt.</translation>
    </message>
    <message id="cli.auth.confirm">
      <source>Check your inbox: confirm %1 with the link in the mail, then sign in.</source>
      <translation>Sieh in dein Postfach: Bestätige %1 mit dem Link in der Mail und melde dich dann an.</translation>
    </message>
    <message id="cli.auth.noAccounts">
      <source>No remembered accounts.</source>
      <translation>Keine gemerkten Konten.</translation>
    </message>
    <message id="cli.auth.option.name">
      <source>The name shown on your profile and to your team.</source>
      <translation>Der Name in deinem Profil und für dein Team.</translation>
    </message>
    <message id="cli.auth.password">
      <source>Password: </source>
      <translation>Passwort: </translation>
    </message>
    <message id="cli.auth.signedIn">
      <source>Signed in as %1.</source>
      <translation>Angemeldet als %1.</translation>
    </message>
    <message id="cli.auth.signedOut">
      <source>Signed out.</source>
      <translation>Abgemeldet.</translation>
    </message>
    <message id="cli.auth.unknownAccount">
      <source>No remembered account %1. Sign in to it first.</source>
      <translation>Kein gemerktes Konto %1. Melde dich zuerst dort an.</translation>
    </message>
    <message id="cli.auth.usage">
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Aufruf: morvane auth signup|signin &lt;E-Mail&gt; | signout | status | switch &lt;E-Mail&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Registrieren, an- und abmelden, zwischen Konten wechseln</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Zeigt, welches Backend Morvane nutzt und woher jede Einstellung stammt</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Das lokale Backend starten, beenden oder anzeigen: server start|stop|status</translation>
    </message>
    <message id="cli.command.sessions">
      <source>Coding-agent sessions found in the local logs: sessions list [--days N] [--json]</source>
      <translation>Sitzungen des Coding-Agenten aus den lokalen Logs: sessions list [--days N] [--json]</translation>
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
    <message id="cli.option.json">
      <source>Print the answer as JSON.</source>
      <translation>Die Antwort als JSON ausgeben.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Die Version anzeigen.</translation>
    </message>
    <message id="cli.server.action">
      <source>start, stop or status</source>
      <translation>start, stop oder status</translation>
    </message>
    <message id="cli.server.dataDir">
      <source>Data folder: %1</source>
      <translation>Datenordner: %1</translation>
    </message>
    <message id="cli.server.notInUse">
      <source>Morvane uses %1 (%2), not the local backend.</source>
      <translation>Morvane verwendet %1 (%2), nicht das lokale Backend.</translation>
    </message>
    <message id="cli.server.running">
      <source>The local backend is running at %1 (process %2).</source>
      <translation>Das lokale Backend läuft unter %1 (Prozess %2).</translation>
    </message>
    <message id="cli.server.started">
      <source>Started the local backend at %1 (process %2).</source>
      <translation>Das lokale Backend wurde unter %1 gestartet (Prozess %2).</translation>
    </message>
    <message id="cli.server.starting">
      <source>The local backend (process %1) is starting and does not answer yet.</source>
      <translation>Das lokale Backend (Prozess %1) startet und antwortet noch nicht.</translation>
    </message>
    <message id="cli.server.stopped">
      <source>The local backend is not running.</source>
      <translation>Das lokale Backend läuft nicht.</translation>
    </message>
    <message id="cli.server.stoppedNow">
      <source>Stopped the local backend (process %1).</source>
      <translation>Das lokale Backend wurde beendet (Prozess %1).</translation>
    </message>
    <message id="cli.server.usage">
      <source>Usage: morvane server start|stop|status [--json]</source>
      <translation>Aufruf: morvane server start|stop|status [--json]</translation>
    </message>
    <message id="cli.sessions.burst">
      <source>%1. %2 to %3 · active %4 · prompts: %5 · %6</source>
      <translation>%1. %2 bis %3 · aktiv %4 · Prompts: %5 · %6</translation>
    </message>
    <message id="cli.sessions.err.days">
      <source>--days takes a whole number of days from 1 to 36500.</source>
      <translation>--days erwartet eine ganze Zahl von Tagen von 1 bis 36500.</translation>
    </message>
    <message id="cli.sessions.err.unknownSession">
      <source>No session %1 among the logs of the last 60 days.</source>
      <translation>Keine Sitzung %1 in den Logs der letzten 60 Tage.</translation>
    </message>
    <message id="cli.sessions.group">
      <source>%1 · sessions: %2 · active %3</source>
      <translation>%1 · Sitzungen: %2 · aktiv %3</translation>
    </message>
    <message id="cli.sessions.ignored">
      <source>Ignored %1: %2 sessions there will not be logged.</source>
      <translation>%1 ignoriert: %2 Sitzungen dort werden nicht gebucht.</translation>
    </message>
    <message id="cli.sessions.mapped">
      <source>%1 is mapped to project %2.</source>
      <translation>%1 ist dem Projekt %2 zugeordnet.</translation>
    </message>
    <message id="cli.sessions.none">
      <source>No Claude sessions parsed yet</source>
      <translation>Noch keine Claude-Sitzungen eingelesen</translation>
    </message>
    <message id="cli.sessions.option.all">
      <source>Every session (with reimport).</source>
      <translation>Alle Sitzungen (mit reimport).</translation>
    </message>
    <message id="cli.sessions.option.days">
      <source>Sessions whose log changed in the last N days (30 when not given).</source>
      <translation>Sitzungen, deren Log sich in den letzten N Tagen geändert hat (ohne Angabe 30).</translation>
    </message>
    <message id="cli.sessions.reimportAll">
      <source>Every session will be logged again by the next scan.</source>
      <translation>Alle Sitzungen werden beim nächsten Durchlauf erneut gebucht.</translation>
    </message>
    <message id="cli.sessions.reimportOne">
      <source>Session %1 will be logged again by the next scan.</source>
      <translation>Sitzung %1 wird beim nächsten Durchlauf erneut gebucht.</translation>
    </message>
    <message id="cli.sessions.session">
      <source>%1 · %2 to %3 · active %4 · prompts: %5</source>
      <translation>%1 · %2 bis %3 · aktiv %4 · Prompts: %5</translation>
    </message>
    <message id="cli.sessions.trackOff">
      <source>Claude sessions are no longer tracked.</source>
      <translation>Claude-Sitzungen werden nicht mehr erfasst.</translation>
    </message>
    <message id="cli.sessions.trackOn">
      <source>Claude sessions are tracked: every minute the new work bursts of mapped folders are logged.</source>
      <translation>Claude-Sitzungen werden erfasst: jede Minute werden die neuen Arbeitsblöcke zugeordneter Ordner gebucht.</translation>
    </message>
    <message id="cli.sessions.usage">
      <source>Usage: morvane sessions list [--days N] [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</source>
      <translation>Aufruf: morvane sessions list [--days N] [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</translation>
    </message>
    <message id="cli.sessions.where">
      <source>Looked for logs changed in the last %1 days in %2.</source>
      <translation>Gesucht wurde nach Logs, die sich in den letzten %1 Tagen geändert haben, in %2.</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>Deine Kunden konnten nicht geladen werden.</translation>
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
    <message id="inviteAlreadyMember">
      <source>%1 is already in this team.</source>
      <translation>%1 ist bereits in diesem Team.</translation>
    </message>
    <message id="inviteFailed">
      <source>Could not send the invite. Try again.</source>
      <translation>Die Einladung konnte nicht gesendet werden. Versuche es erneut.</translation>
    </message>
    <message id="inviteNoAccount">
      <source>No Morvane account uses that email yet. Ask them to sign up first.</source>
      <translation>Bisher verwendet kein Morvane-Konto diese E-Mail-Adresse. Bitte die Person, sich zuerst zu registrieren.</translation>
    </message>
    <message id="inviteNotAllowed">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Nur der Besitzer und die Bearbeiter des Teams können Personen einladen.</translation>
    </message>
    <message id="inviteSent">
      <source>%1 is invited to this team.</source>
      <translation>%1 ist zu diesem Team eingeladen.</translation>
    </message>
    <message id="inviteTeamFull">
      <source>This team is full: it already has 10 members, the maximum.</source>
      <translation>Dieses Team ist voll: Es hat bereits 10 Mitglieder, das Maximum.</translation>
    </message>
    <message id="inviteUnavailable">
      <source>Inviting by email is not available yet. Try again later.</source>
      <translation>Einladen per E-Mail ist noch nicht verfügbar. Versuche es später erneut.</translation>
    </message>
    <message id="localServer.err.dataFolder">
      <source>Cannot write the local backend's data folder %1.</source>
      <translation>Der Datenordner %1 des lokalen Backends ist nicht beschreibbar.</translation>
    </message>
    <message id="localServer.err.exited">
      <source>The local backend stopped before it was ready (log: %1).</source>
      <translation>Das lokale Backend wurde beendet, bevor es bereit war (Protokoll: %1).</translation>
    </message>
    <message id="localServer.err.launch">
      <source>Cannot run the local backend %1.</source>
      <translation>Das lokale Backend %1 lässt sich nicht ausführen.</translation>
    </message>
    <message id="localServer.err.noProgram">
      <source>Cannot find the local backend: %1 is neither next to Morvane nor on the PATH.</source>
      <translation>Das lokale Backend wurde nicht gefunden: %1 liegt weder neben Morvane noch im PATH.</translation>
    </message>
    <message id="localServer.err.notReady">
      <source>The local backend was not ready within %1 seconds (log: %2).</source>
      <translation>Das lokale Backend war nicht innerhalb von %1 Sekunden bereit (Protokoll: %2).</translation>
    </message>
    <message id="localServer.err.wouldNotStop">
      <source>The local backend (process %1) did not stop within %2 seconds.</source>
      <translation>Das lokale Backend (Prozess %1) wurde nicht innerhalb von %2 Sekunden beendet.</translation>
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
    <message id="onboarding.err.notSaved">
      <source>Your first-run answers were not saved yet. Morvane tries again at the next sign-in.</source>
      <translation>Deine Antworten aus der Ersteinrichtung wurden noch nicht gespeichert. Morvane versucht es bei der nächsten Anmeldung erneut.</translation>
    </message>
    <message id="profile.err.notSaved">
      <source>Your profile was not saved. Try again.</source>
      <translation>Dein Profil wurde nicht gespeichert. Versuche es erneut.</translation>
    </message>
    <message id="project.err.notCreated">
      <source>The project was not created: you may not add projects to that team.</source>
      <translation>Das Projekt wurde nicht angelegt: Du darfst diesem Team keine Projekte hinzufügen.</translation>
    </message>
    <message id="project.err.notSaved">
      <source>The project was not changed: you may not edit it, or it no longer exists.</source>
      <translation>Das Projekt wurde nicht geändert: Du darfst es nicht bearbeiten, oder es existiert nicht mehr.</translation>
    </message>
    <message id="project.err.teamNotChanged">
      <source>The project's team was not changed: only its creator and the team's owners and editors can move it.</source>
      <translation>Das Team des Projekts wurde nicht geändert: Verschieben können es nur die Person, die es angelegt hat, sowie die Besitzer und Bearbeiter des Teams.</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Etwas ist schiefgelaufen. Versuche es erneut.</translation>
    </message>
    <message id="store.err.loadFailed">
      <source>Your data could not be loaded. Morvane tries again shortly.</source>
      <translation>Deine Daten konnten nicht geladen werden. Morvane versucht es gleich erneut.</translation>
    </message>
    <message id="store.err.writeFailed">
      <source>The change could not be saved. Check the connection and try again.</source>
      <translation>Die Änderung konnte nicht gespeichert werden. Prüfe die Verbindung und versuche es erneut.</translation>
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
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>Die Aufgabe wurde nicht angelegt: Du darfst diesem Projekt keine Aufgaben hinzufügen.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>Die Aufgabe wurde nicht geändert: Du darfst sie nicht bearbeiten, oder sie existiert nicht mehr.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>Das Team wurde nicht angelegt. Versuche es erneut.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>Deine Teams konnten nicht geladen werden.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>Der Timer dieser Aufgabe wurde auf einem anderen Gerät gestartet, daher wurde ihr Status nicht geändert.</translation>
    </message>
  </context>
</TS>

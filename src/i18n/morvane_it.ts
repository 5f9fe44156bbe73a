<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
  <context>
    <name>Morvane</name>
    <message id="auth.err.emailExists">
      <source>An account with this e-mail address exists already. Sign in instead.</source>
      <translation>Esiste già un account con questo indirizzo e-mail. Accedi invece.</translation>
    </message>
    <message id="auth.err.invalidEmail">
      <source>Enter a valid e-mail address.</source>
      <translation>Inserisci un indirizzo e-mail valido.</translation>
    </message>
    <message id="auth.err.network">
      <source>Morvane cannot reach the server. Check your connection and try again.</source>
      <translation>Morvane non riesce a raggiungere il server. Controlla la connessione e riprova.</translation>
    </message>
    <message id="auth.err.oauthBadUrl">
      <source>The sign-in address is not valid.</source>
      <translation>L’indirizzo di accesso non è valido.</translation>
    </message>
    <message id="auth.err.oauthCancelled">
      <source>The sign-in was cancelled.</source>
      <translation>L’accesso è stato annullato.</translation>
    </message>
    <message id="auth.err.oauthCannotStart">
      <source>Could not start the sign-in.</source>
      <translation>Impossibile avviare l’accesso.</translation>
    </message>
    <message id="auth.err.oauthNoCode">
      <source>The sign-in came back without a code.</source>
      <translation>L’accesso è tornato senza un codice.</translation>
    </message>
    <message id="auth.err.rateLimit">
      <source>Too many attempts. Wait a few minutes, then try again.</source>
      <translation>Troppi tentativi. Attendi qualche minuto e riprova.</translation>
    </message>
    <message id="auth.err.server">
      <source>The server ran into a problem. Try again in a moment.</source>
      <translation>Il server ha riscontrato un problema. Riprova tra un momento.</translation>
    </message>
    <message id="auth.err.switchExpired">
      <source>Couldn't switch to %1. That account's session expired - sign in to it again.</source>
      <translation>Impossibile passare a %1. La sessione di quell’account è scaduta: accedi di nuovo.</translation>
    </message>
    <message id="auth.oauthDone">
      <source>You are signed in to Morvane. You can close this window.</source>
      <translation>Hai effettuato l’accesso a Morvane. Puoi chiudere questa finestra.</translation>
    </message>
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
    <message id="errEmailNotConfirmed">
      <source>Confirm your e-mail address first: follow the link in the mail we sent you.</source>
      <translation>Conferma prima il tuo indirizzo e-mail: segui il link nel messaggio che ti abbiamo inviato.</translation>
    </message>
    <message id="errEmailRateLimit">
      <source>Too many e-mails went to this address. Wait a minute, then try again.</source>
      <translation>Sono state inviate troppe e-mail a questo indirizzo. Attendi un minuto e riprova.</translation>
    </message>
    <message id="errInvalidCredentials">
      <source>The e-mail address or the password is not right.</source>
      <translation>L’indirizzo e-mail o la password non è corretto.</translation>
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
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Qualcosa è andato storto. Riprova.</translation>
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

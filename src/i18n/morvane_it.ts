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
    <message id="cli.auth.confirm">
      <source>Check your inbox: confirm %1 with the link in the mail, then sign in.</source>
      <translation>Controlla la posta: conferma %1 con il link nel messaggio, poi accedi.</translation>
    </message>
    <message id="cli.auth.noAccounts">
      <source>No remembered accounts.</source>
      <translation>Nessun account memorizzato.</translation>
    </message>
    <message id="cli.auth.option.name">
      <source>The name shown on your profile and to your team.</source>
      <translation>Il nome mostrato sul tuo profilo e al tuo team.</translation>
    </message>
    <message id="cli.auth.password">
      <source>Password: </source>
      <translation>Password: </translation>
    </message>
    <message id="cli.auth.signedIn">
      <source>Signed in as %1.</source>
      <translation>Accesso effettuato come %1.</translation>
    </message>
    <message id="cli.auth.signedOut">
      <source>Signed out.</source>
      <translation>Disconnesso.</translation>
    </message>
    <message id="cli.auth.unknownAccount">
      <source>No remembered account %1. Sign in to it first.</source>
      <translation>Nessun account memorizzato %1. Accedi prima a quell’account.</translation>
    </message>
    <message id="cli.auth.usage">
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Uso: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Registrarsi, accedere e uscire, passare da un account all’altro</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Mostra quale server usa Morvane e da dove proviene ogni impostazione</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Avvia, ferma o mostra il server locale: server start|stop|status</translation>
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
    <message id="cli.option.json">
      <source>Print the answer as JSON.</source>
      <translation>Mostra la risposta in formato JSON.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Mostra la versione.</translation>
    </message>
    <message id="cli.renderInvoice.design">
      <source>With --render-invoice: the design (%1).</source>
      <translation>Con --render-invoice: il modello (%1).</translation>
    </message>
    <message id="cli.renderInvoice.draft">
      <source>With --render-invoice: an invoice as JSON instead of the sample.</source>
      <translation>Con --render-invoice: una fattura in JSON al posto dell’esempio.</translation>
    </message>
    <message id="cli.renderInvoice.err.both">
      <source>--lines is for the sample invoice; a draft brings its own lines.</source>
      <translation>--lines è per la fattura di esempio; una bozza porta le sue righe.</translation>
    </message>
    <message id="cli.renderInvoice.err.design">
      <source>Unknown design: %1. Choose one of: %2.</source>
      <translation>Modello sconosciuto: %1. Scegliere tra: %2.</translation>
    </message>
    <message id="cli.renderInvoice.err.draft">
      <source>Cannot read the draft %1: %2</source>
      <translation>Impossibile leggere la bozza %1: %2</translation>
    </message>
    <message id="cli.renderInvoice.err.failed">
      <source>Rendering the invoice failed: %1</source>
      <translation>La generazione della fattura non è riuscita: %1</translation>
    </message>
    <message id="cli.renderInvoice.err.lines">
      <source>--lines takes a whole number from 0 to %1.</source>
      <translation>--lines accetta un numero intero da 0 a %1.</translation>
    </message>
    <message id="cli.renderInvoice.err.noGui">
      <source>Rendering an invoice needs the graphical libraries; run it as: morvane --render-invoice</source>
      <translation>Generare una fattura richiede le librerie grafiche; avviarlo così: morvane --render-invoice</translation>
    </message>
    <message id="cli.renderInvoice.err.write">
      <source>Cannot write %1: %2</source>
      <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message id="cli.renderInvoice.lines">
      <source>With --render-invoice: the number of lines of the sample invoice.</source>
      <translation>Con --render-invoice: il numero di righe della fattura di esempio.</translation>
    </message>
    <message id="cli.renderInvoice.option">
      <source>Render an invoice to PDF through the application's own path and report its size.</source>
      <translation>Generare il PDF di una fattura con il percorso dell’applicazione e indicarne la dimensione.</translation>
    </message>
    <message id="cli.renderInvoice.out">
      <source>With --render-invoice: where to write the PDF.</source>
      <translation>Con --render-invoice: dove scrivere il PDF.</translation>
    </message>
    <message id="cli.renderInvoice.png">
      <source>With --render-invoice: a folder for pictures of the pages as PNG.</source>
      <translation>Con --render-invoice: una cartella per le immagini PNG delle pagine.</translation>
    </message>
    <message id="cli.server.action">
      <source>start, stop or status</source>
      <translation>start, stop o status</translation>
    </message>
    <message id="cli.server.dataDir">
      <source>Data folder: %1</source>
      <translation>Cartella dati: %1</translation>
    </message>
    <message id="cli.server.notInUse">
      <source>Morvane uses %1 (%2), not the local backend.</source>
      <translation>Morvane usa %1 (%2), non il server locale.</translation>
    </message>
    <message id="cli.server.running">
      <source>The local backend is running at %1 (process %2).</source>
      <translation>Il server locale è in esecuzione su %1 (processo %2).</translation>
    </message>
    <message id="cli.server.started">
      <source>Started the local backend at %1 (process %2).</source>
      <translation>Server locale avviato su %1 (processo %2).</translation>
    </message>
    <message id="cli.server.starting">
      <source>The local backend (process %1) is starting and does not answer yet.</source>
      <translation>Il server locale (processo %1) si sta avviando e non risponde ancora.</translation>
    </message>
    <message id="cli.server.stopped">
      <source>The local backend is not running.</source>
      <translation>Il server locale non è in esecuzione.</translation>
    </message>
    <message id="cli.server.stoppedNow">
      <source>Stopped the local backend (process %1).</source>
      <translation>Server locale fermato (processo %1).</translation>
    </message>
    <message id="cli.server.usage">
      <source>Usage: morvane server start|stop|status [--json]</source>
      <translation>Uso: morvane server start|stop|status [--json]</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>Non è stato possibile caricare i tuoi clienti.</translation>
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
    <message id="inv.doc.amount">
      <source>Amount</source>
      <translation>Importo</translation>
    </message>
    <message id="inv.doc.amountDue">
      <source>Amount due</source>
      <translation>Importo dovuto</translation>
    </message>
    <message id="inv.doc.bank">
      <source>Bank</source>
      <translation>Banca</translation>
    </message>
    <message id="inv.doc.billTo">
      <source>Bill to</source>
      <translation>Intestata a</translation>
    </message>
    <message id="inv.doc.description">
      <source>Description</source>
      <translation>Descrizione</translation>
    </message>
    <message id="inv.doc.due">
      <source>Due date</source>
      <translation>Scadenza</translation>
    </message>
    <message id="inv.doc.from">
      <source>From</source>
      <translation>Da</translation>
    </message>
    <message id="inv.doc.iban">
      <source>IBAN</source>
      <translation>IBAN</translation>
    </message>
    <message id="inv.doc.invoice">
      <source>Invoice</source>
      <translation>Fattura</translation>
    </message>
    <message id="inv.doc.issued">
      <source>Issue date</source>
      <translation>Data di emissione</translation>
    </message>
    <message id="inv.doc.kvk">
      <source>Company no.</source>
      <translation>Registro imprese</translation>
    </message>
    <message id="inv.doc.noVat">
      <source>No VAT on these lines</source>
      <translation>Nessuna IVA su queste righe</translation>
    </message>
    <message id="inv.doc.notes">
      <source>Notes</source>
      <translation>Note</translation>
    </message>
    <message id="inv.doc.number">
      <source>Invoice no.</source>
      <translation>Fattura n.</translation>
    </message>
    <message id="inv.doc.payment">
      <source>Payment</source>
      <translation>Pagamento</translation>
    </message>
    <message id="inv.doc.paymentNoTerm">
      <source>Please pay by bank transfer, quoting the invoice number.</source>
      <translation>Si prega di pagare tramite bonifico indicando il numero di fattura.</translation>
    </message>
    <message id="inv.doc.paymentTerms">
      <source>Please pay within %1 days, quoting the invoice number.</source>
      <translation>Si prega di pagare entro %1 giorni indicando il numero di fattura.</translation>
    </message>
    <message id="inv.doc.period">
      <source>Period</source>
      <translation>Periodo</translation>
    </message>
    <message id="inv.doc.project">
      <source>Project</source>
      <translation>Progetto</translation>
    </message>
    <message id="inv.doc.quantity">
      <source>Qty</source>
      <translation>Q.tà</translation>
    </message>
    <message id="inv.doc.rate">
      <source>Rate</source>
      <translation>Prezzo</translation>
    </message>
    <message id="inv.doc.reference">
      <source>Reference</source>
      <translation>Causale</translation>
    </message>
    <message id="inv.doc.subtotal">
      <source>Subtotal</source>
      <translation>Imponibile</translation>
    </message>
    <message id="inv.doc.thanks">
      <source>Thank you for your business.</source>
      <translation>Grazie per la fiducia.</translation>
    </message>
    <message id="inv.doc.total">
      <source>Total</source>
      <translation>Totale</translation>
    </message>
    <message id="inv.doc.vatId">
      <source>VAT no.</source>
      <translation>P. IVA</translation>
    </message>
    <message id="inv.doc.vatRow">
      <source>VAT %1%</source>
      <translation>IVA %1%</translation>
    </message>
    <message id="inv.doc.vatRowOver">
      <source>VAT %1% on %2</source>
      <translation>IVA %1% su %2</translation>
    </message>
    <message id="inv.pdf.err.load">
      <source>The invoice page could not be loaded.</source>
      <translation>Impossibile caricare la pagina della fattura.</translation>
    </message>
    <message id="inv.pdf.err.paging">
      <source>The invoice could not be laid out in pages.</source>
      <translation>Impossibile impaginare la fattura.</translation>
    </message>
    <message id="inv.pdf.err.print">
      <source>The PDF of the invoice could not be made.</source>
      <translation>Impossibile creare il PDF della fattura.</translation>
    </message>
    <message id="inv.pdf.err.spill">
      <source>The invoice page could not be written to a temporary file: %1</source>
      <translation>Impossibile scrivere la pagina della fattura in un file temporaneo: %1</translation>
    </message>
    <message id="inv.pdf.err.timeout">
      <source>The invoice page did not finish loading within %1 seconds.</source>
      <translation>La pagina della fattura non è stata caricata entro %1 secondi.</translation>
    </message>
    <message id="inviteAlreadyMember">
      <source>%1 is already in this team.</source>
      <translation>%1 fa già parte di questo team.</translation>
    </message>
    <message id="inviteFailed">
      <source>Could not send the invite. Try again.</source>
      <translation>Impossibile inviare l’invito. Riprova.</translation>
    </message>
    <message id="inviteNoAccount">
      <source>No Morvane account uses that email yet. Ask them to sign up first.</source>
      <translation>Nessun account Morvane usa ancora quell’email. Chiedi a questa persona di registrarsi prima.</translation>
    </message>
    <message id="inviteNotAllowed">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Solo il proprietario e gli editor del team possono invitare persone.</translation>
    </message>
    <message id="inviteSent">
      <source>%1 is invited to this team.</source>
      <translation>Invito inviato a %1 per questo team.</translation>
    </message>
    <message id="inviteTeamFull">
      <source>This team is full: it already has 10 members, the maximum.</source>
      <translation>Questo team è al completo: ha già 10 membri, il massimo.</translation>
    </message>
    <message id="inviteUnavailable">
      <source>Inviting by email is not available yet. Try again later.</source>
      <translation>L’invito via email non è ancora disponibile. Riprova più tardi.</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Realizzato con Morvane</translation>
    </message>
    <message id="localServer.err.dataFolder">
      <source>Cannot write the local backend's data folder %1.</source>
      <translation>Impossibile scrivere nella cartella dati %1 del server locale.</translation>
    </message>
    <message id="localServer.err.exited">
      <source>The local backend stopped before it was ready (log: %1).</source>
      <translation>Il server locale si è fermato prima di essere pronto (log: %1).</translation>
    </message>
    <message id="localServer.err.launch">
      <source>Cannot run the local backend %1.</source>
      <translation>Impossibile eseguire il server locale %1.</translation>
    </message>
    <message id="localServer.err.noProgram">
      <source>Cannot find the local backend: %1 is neither next to Morvane nor on the PATH.</source>
      <translation>Server locale non trovato: %1 non è accanto a Morvane né nel PATH.</translation>
    </message>
    <message id="localServer.err.notReady">
      <source>The local backend was not ready within %1 seconds (log: %2).</source>
      <translation>Il server locale non era pronto entro %1 secondi (log: %2).</translation>
    </message>
    <message id="localServer.err.wouldNotStop">
      <source>The local backend (process %1) did not stop within %2 seconds.</source>
      <translation>Il server locale (processo %1) non si è fermato entro %2 secondi.</translation>
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
    <message id="onboarding.err.notSaved">
      <source>Your first-run answers were not saved yet. Morvane tries again at the next sign-in.</source>
      <translation>Le tue risposte del primo avvio non sono ancora state salvate. Morvane riproverà al prossimo accesso.</translation>
    </message>
    <message id="profile.err.notSaved">
      <source>Your profile was not saved. Try again.</source>
      <translation>Il tuo profilo non è stato salvato. Riprova.</translation>
    </message>
    <message id="project.err.notCreated">
      <source>The project was not created: you may not add projects to that team.</source>
      <translation>Il progetto non è stato creato: non puoi aggiungere progetti a quel team.</translation>
    </message>
    <message id="project.err.notSaved">
      <source>The project was not changed: you may not edit it, or it no longer exists.</source>
      <translation>Il progetto non è stato modificato: non puoi modificarlo, oppure non esiste più.</translation>
    </message>
    <message id="project.err.teamNotChanged">
      <source>The project's team was not changed: only its creator and the team's owners and editors can move it.</source>
      <translation>Il team del progetto non è stato cambiato: solo chi l’ha creato e i proprietari e gli editor del team possono spostarlo.</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Qualcosa è andato storto. Riprova.</translation>
    </message>
    <message id="store.err.loadFailed">
      <source>Your data could not be loaded. Morvane tries again shortly.</source>
      <translation>Non è stato possibile caricare i tuoi dati. Morvane riproverà a breve.</translation>
    </message>
    <message id="store.err.writeFailed">
      <source>The change could not be saved. Check the connection and try again.</source>
      <translation>Non è stato possibile salvare la modifica. Controlla la connessione e riprova.</translation>
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
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>L’attività non è stata creata: non puoi aggiungere attività a questo progetto.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>L’attività non è stata modificata: non puoi modificarla, oppure non esiste più.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>Il team non è stato creato. Riprova.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>Non è stato possibile caricare i tuoi team.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>Il timer di questa attività è stato avviato su un altro dispositivo, quindi il suo stato non è stato cambiato.</translation>
    </message>
  </context>
</TS>

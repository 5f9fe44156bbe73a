<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
  <context>
    <name>Morvane</name>
    <message id="add.couldNotParse">
      <source>Morvane could not make sense of that. Try saying it another way.</source>
      <translation>Morvane non è riuscito a capire. Prova a dirlo in un altro modo.</translation>
    </message>
    <message id="ai.err.badAnswer">
      <source>%1 sent an answer Morvane cannot use: %2</source>
      <translation>%1 ha inviato una risposta che Morvane non può usare: %2</translation>
    </message>
    <message id="ai.err.consentDeclined">
      <source>You chose not to send your text to %1. You can change this in the AI settings.</source>
      <translation>Hai scelto di non inviare il tuo testo a %1. Puoi cambiare idea nelle impostazioni IA.</translation>
    </message>
    <message id="ai.err.consentMissing">
      <source>Morvane asks before it sends your text to %1 for the first time. Answer that question in the window, or run the command again with --yes.</source>
      <translation>Morvane chiede prima di inviare il tuo testo a %1 per la prima volta. Rispondi alla domanda nella finestra oppure esegui di nuovo il comando con --yes.</translation>
    </message>
    <message id="ai.err.needsCLI">
      <source>This needs the Claude CLI, which can work with files; %1 cannot. Choose the Claude CLI in the AI settings.</source>
      <translation>Serve la CLI di Claude, che sa lavorare con i file; %1 non può farlo. Scegli la CLI di Claude nelle impostazioni IA.</translation>
    </message>
    <message id="ai.err.noKey">
      <source>There is no API key for %1 in your keyring. Add your key in the AI settings.</source>
      <translation>Nel portachiavi non c'è una chiave API per %1. Aggiungi la tua chiave nelle impostazioni IA.</translation>
    </message>
    <message id="ai.err.notSignedIn">
      <source>%1 works only while you are signed in. Sign in, then try again.</source>
      <translation>%1 funziona solo dopo l'accesso. Accedi e riprova.</translation>
    </message>
    <message id="ai.err.status">
      <source>%1 answered with error %2: %3</source>
      <translation>%1 ha risposto con l'errore %2: %3</translation>
    </message>
    <message id="ai.err.timedOut">
      <source>%1 did not answer within %2 s</source>
      <translation>%1 non ha risposto entro %2 s</translation>
    </message>
    <message id="ai.err.unreachable">
      <source>%1 could not be reached: %2</source>
      <translation>Impossibile raggiungere %1: %2</translation>
    </message>
    <message id="ai.route.anthropic.where">
      <source>Your text goes straight from this computer to Anthropic, with your own API key.</source>
      <translation>Il tuo testo va direttamente da questo computer a Anthropic, con la tua chiave API.</translation>
    </message>
    <message id="ai.route.claudeCLI.where">
      <source>Your text goes to the claude program on this computer, which sends it to Anthropic under your own Claude account. Morvane itself sends nothing over the network.</source>
      <translation>Il tuo testo va al programma claude di questo computer, che lo invia ad Anthropic con il tuo account Claude. Morvane non invia nulla in rete.</translation>
    </message>
    <message id="ai.route.gemini.where">
      <source>Your text goes straight from this computer to Google, with your own API key.</source>
      <translation>Il tuo testo va direttamente da questo computer a Google, con la tua chiave API.</translation>
    </message>
    <message id="ai.route.morvaneAI.where">
      <source>Your text goes to the Morvane server you are signed in to, which passes it on to the AI service its operator has chosen, and the answer comes back the same way.</source>
      <translation>Il tuo testo va al server Morvane a cui hai effettuato l'accesso, che lo inoltra al servizio IA scelto dal suo gestore; la risposta torna per la stessa strada.</translation>
    </message>
    <message id="ai.route.openAI.where">
      <source>Your text goes straight from this computer to OpenAI, with your own API key.</source>
      <translation>Il tuo testo va direttamente da questo computer a OpenAI, con la tua chiave API.</translation>
    </message>
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
    <message id="auth.err.oauthRefused">
      <source>The sign-in was refused: %1</source>
      <translation>L'accesso è stato rifiutato: %1</translation>
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
    <message id="billing.dayNote">
      <source>Tracked time ÷ hours-per-day = billable days.</source>
      <translation>Tempo registrato ÷ ore al giorno = giorni fatturabili.</translation>
    </message>
    <message id="billing.dayRate">
      <source>Day rate</source>
      <translation>Tariffa giornaliera</translation>
    </message>
    <message id="billing.discount">
      <source>Discount</source>
      <translation>Sconto</translation>
    </message>
    <message id="billing.extras">
      <source>Extras · call-out · materials · discount · VAT</source>
      <translation>Extra · uscita · materiali · sconto · IVA</translation>
    </message>
    <message id="billing.fixedTotal">
      <source>Fixed total</source>
      <translation>Totale fisso</translation>
    </message>
    <message id="billing.gross">
      <source>Gross (incl.)</source>
      <translation>Lordo (IVA incl.)</translation>
    </message>
    <message id="billing.hourlyRate">
      <source>Hourly rate</source>
      <translation>Tariffa oraria</translation>
    </message>
    <message id="billing.hoursPerDay">
      <source>Hours per day</source>
      <translation>Ore al giorno</translation>
    </message>
    <message id="billing.inheriting">
      <source>Inheriting from project</source>
      <translation>Ereditato dal progetto</translation>
    </message>
    <message id="billing.materials">
      <source>Materials</source>
      <translation>Materiali</translation>
    </message>
    <message id="billing.minCharge">
      <source>Minimum charge</source>
      <translation>Importo minimo</translation>
    </message>
    <message id="billing.model.day">
      <source>Per day</source>
      <translation>A giornata</translation>
    </message>
    <message id="billing.model.fixed">
      <source>Fixed price</source>
      <translation>Prezzo fisso</translation>
    </message>
    <message id="billing.model.hour">
      <source>Per hour</source>
      <translation>All’ora</translation>
    </message>
    <message id="billing.model.unit">
      <source>Per unit</source>
      <translation>A unità</translation>
    </message>
    <message id="billing.net">
      <source>Net (excl. VAT)</source>
      <translation>Netto (IVA escl.)</translation>
    </message>
    <message id="billing.netNote">
      <source>Net per tracked time, plus the extras above.</source>
      <translation>Netto in base al tempo registrato, più gli extra sopra.</translation>
    </message>
    <message id="billing.pricePerUnit">
      <source>Price / unit</source>
      <translation>Prezzo / unità</translation>
    </message>
    <message id="billing.quantity">
      <source>Quantity</source>
      <translation>Quantità</translation>
    </message>
    <message id="billing.resetProject">
      <source>Reset to project default</source>
      <translation>Ripristina il prezzo del progetto</translation>
    </message>
    <message id="billing.suffix.day">
      <source>/day</source>
      <translation>/giorno</translation>
    </message>
    <message id="billing.suffix.hour">
      <source>/h</source>
      <translation>/h</translation>
    </message>
    <message id="billing.surcharge">
      <source>Call-out fee</source>
      <translation>Diritto di chiamata</translation>
    </message>
    <message id="billing.title">
      <source>Billing</source>
      <translation>Fatturazione</translation>
    </message>
    <message id="billing.unit">
      <source>Unit</source>
      <translation>Unità</translation>
    </message>
    <message id="billing.unitDefault">
      <source>unit</source>
      <translation>unità</translation>
    </message>
    <message id="billing.vat">
      <source>VAT</source>
      <translation>IVA</translation>
    </message>
    <message id="billing.vatAmount">
      <source>VAT</source>
      <translation>IVA</translation>
    </message>
    <message id="billing.vatNone">
      <source>No VAT</source>
      <translation>Senza IVA</translation>
    </message>
    <message id="cal.accessOffBody">
      <source>Morvane turns calendar events into time entries. Add an iCalendar file, a subscription address or a CalDAV account, then come back and recheck.</source>
      <translation>Morvane trasforma gli eventi del calendario in registrazioni di tempo. Aggiungi un file iCalendar, un indirizzo di iscrizione o un account CalDAV, poi torna e ricontrolla.</translation>
    </message>
    <message id="cal.accessOffTitle">
      <source>No calendars yet</source>
      <translation>Ancora nessun calendario</translation>
    </message>
    <message id="cal.err.alreadyImported">
      <source>This event was imported before; its time is already logged.</source>
      <translation>Questo evento è già stato importato; il suo tempo è già registrato.</translation>
    </message>
    <message id="cal.err.readFailed">
      <source>The calendar “%1” could not be read.</source>
      <translation>Impossibile leggere il calendario «%1».</translation>
    </message>
    <message id="cal.err.secret">
      <source>The password could not be stored in the keyring.</source>
      <translation>Impossibile salvare la password nel portachiavi.</translation>
    </message>
    <message id="cal.heroTitle">
      <source>Import from your calendar</source>
      <translation>Importa dal tuo calendario</translation>
    </message>
    <message id="cal.loading">
      <source>Loading calendar…</source>
      <translation>Caricamento del calendario…</translation>
    </message>
    <message id="cal.noEventsHint">
      <source>No events on this day. Pick another day, or add a calendar.</source>
      <translation>Nessun evento in questo giorno. Scegli un altro giorno o aggiungi un calendario.</translation>
    </message>
    <message id="cal.selectedCount">
      <source>%1 selected</source>
      <translation>%1 selezionati</translation>
    </message>
    <message id="cal.untitled">
      <source>Calendar event</source>
      <translation>Evento del calendario</translation>
    </message>
    <message id="calExistingSection">
      <source>Existing tasks</source>
      <translation>Attività esistenti</translation>
    </message>
    <message id="calNewTaskSection">
      <source>New tasks</source>
      <translation>Nuove attività</translation>
    </message>
    <message id="capture.err.noMinutes">
      <source>The sentence gives no time to log.</source>
      <translation>La frase non indica alcun tempo da registrare.</translation>
    </message>
    <message id="capture.err.noProject">
      <source>The sentence names no project to add the task to.</source>
      <translation>La frase non nomina alcun progetto a cui aggiungere l’attività.</translation>
    </message>
    <message id="capture.err.notSaved">
      <source>The change could not be saved.</source>
      <translation>Non è stato possibile salvare la modifica.</translation>
    </message>
    <message id="capture.fix.bothPrices">
      <source>"%1" has both a fixed price and an hourly rate; the fixed price is used.</source>
      <translation>«%1» ha sia un prezzo fisso sia una tariffa oraria; si usa il prezzo fisso.</translation>
    </message>
    <message id="capture.fix.cut">
      <source>"%1…" was cut to %2 characters.</source>
      <translation>«%1…» è stato accorciato a %2 caratteri.</translation>
    </message>
    <message id="capture.fix.date">
      <source>The due date "%1" was left out: it is not a date of the form YYYY-MM-DD.</source>
      <translation>La scadenza «%1» è stata tralasciata: non è una data nel formato AAAA-MM-GG.</translation>
    </message>
    <message id="capture.fix.minutes">
      <source>%1 minutes were left out: time logged from one sentence is more than 0 and at most %2 minutes.</source>
      <translation>%1 minuti sono stati tralasciati: il tempo di una frase è maggiore di 0 e al massimo %2 minuti.</translation>
    </message>
    <message id="capture.fix.price">
      <source>The fixed price %1 was left out: a price lies between 0 and %2.</source>
      <translation>Il prezzo fisso %1 è stato tralasciato: un prezzo è compreso tra 0 e %2.</translation>
    </message>
    <message id="capture.fix.priority">
      <source>The priority "%1" is unknown; the task gets the default, medium.</source>
      <translation>La priorità «%1» è sconosciuta; l’attività riceve quella predefinita, media.</translation>
    </message>
    <message id="capture.fix.rate">
      <source>The hourly rate %1 was left out: a rate lies between 0 and %2.</source>
      <translation>La tariffa oraria %1 è stata tralasciata: una tariffa è compresa tra 0 e %2.</translation>
    </message>
    <message id="capture.fix.unnamed">
      <source>A project or task without a name was left out.</source>
      <translation>Un progetto o un’attività senza nome è stato tralasciato.</translation>
    </message>
    <message id="capture.note.noTeam">
      <source>You have no team called "%1" that you may add projects to; "%2" stays yours alone.</source>
      <translation>Non hai un team «%1» a cui puoi aggiungere progetti; «%2» resta solo tuo.</translation>
    </message>
    <message id="capture.note.noTimer">
      <source>No timer was running.</source>
      <translation>Nessun timer era in corso.</translation>
    </message>
    <message id="claude.err.binaryMissing">
      <source>AI features need the Claude CLI on this Mac (it powers voice/prompt capture, briefs, and the invoice note). Everything else works without it. Set CLAUDE_CLI_PATH or install it, then try again.</source>
      <translation>Le funzioni di IA richiedono la CLI di Claude su questo Mac (acquisizione vocale e testuale, briefing e nota in fattura). Tutto il resto funziona anche senza. Imposta CLAUDE_CLI_PATH o installala, poi riprova.</translation>
    </message>
    <message id="claude.err.createTask">
      <source>Create task failed: %1</source>
      <translation>Creazione dell'attività non riuscita: %1</translation>
    </message>
    <message id="claude.err.emptyOutput">
      <source>Claude produced no output</source>
      <translation>Claude non ha prodotto alcun output</translation>
    </message>
    <message id="claude.err.launchFailed">
      <source>Launch failed: %1</source>
      <translation>Avvio non riuscito: %1</translation>
    </message>
    <message id="claude.err.malformedJSON">
      <source>Bad JSON from Claude (%1) %2</source>
      <translation>JSON non valido da Claude (%1) %2</translation>
    </message>
    <message id="claude.err.noJSONObject">
      <source>no JSON object detected</source>
      <translation>nessun oggetto JSON rilevato</translation>
    </message>
    <message id="claude.err.nonZeroExit">
      <source>Claude exited %1: %2</source>
      <translation>Claude è terminato con lo stato %1: %2</translation>
    </message>
    <message id="claude.err.outputNotWritten">
      <source>Claude finished but did not write %1</source>
      <translation>Claude ha finito ma non ha scritto %1</translation>
    </message>
    <message id="claude.err.resultIsError">
      <source>claude returned is_error=true</source>
      <translation>claude ha restituito is_error=true</translation>
    </message>
    <message id="claude.err.timedOut">
      <source>Claude request timed out after %1 s</source>
      <translation>La richiesta a Claude è scaduta dopo %1 s</translation>
    </message>
    <message id="claude.err.workspaceTimedOut">
      <source>Claude workspace task timed out after %1 s</source>
      <translation>L'attività di Claude nella cartella di lavoro è scaduta dopo %1 s</translation>
    </message>
    <message id="cli.add.adjusted">
      <source>Checked: %1</source>
      <translation>Controllato: %1</translation>
    </message>
    <message id="cli.add.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as 'morvane tasks list' shows it.</source>
      <translation>Quale attività? Nessuna delle tue attività si chiama «%1», oppure più di una. Chiamala come la mostra 'morvane tasks list'.</translation>
    </message>
    <message id="cli.add.dryRunDone">
      <source>Nothing was changed (--dry-run).</source>
      <translation>Non è stato modificato nulla (--dry-run).</translation>
    </message>
    <message id="cli.add.due">
      <source>due %1</source>
      <translation>scadenza %1</translation>
    </message>
    <message id="cli.add.fixed">
      <source>%1 fixed</source>
      <translation>%1 fisso</translation>
    </message>
    <message id="cli.add.logTime">
      <source>Log %1 on "%2"</source>
      <translation>Registrare %1 su «%2»</translation>
    </message>
    <message id="cli.add.modelNote">
      <source>The model notes: %1</source>
      <translation>Il modello osserva: %1</translation>
    </message>
    <message id="cli.add.option.dryRun">
      <source>Show what was understood without changing anything.</source>
      <translation>Mostra ciò che è stato capito senza modificare nulla.</translation>
    </message>
    <message id="cli.add.partial">
      <source>Stopped: %1 What was made before stays; give the same sentence again to finish the rest without making anything twice.</source>
      <translation>Interrotto: %1 Ciò che è già stato creato resta; ripeti la stessa frase per completare il resto senza creare nulla due volte.</translation>
    </message>
    <message id="cli.add.project">
      <source>Project "%1"</source>
      <translation>Progetto «%1»</translation>
    </message>
    <message id="cli.add.spent">
      <source>%1 already spent</source>
      <translation>%1 già impiegati</translation>
    </message>
    <message id="cli.add.startTimer">
      <source>Start the timer on "%1"</source>
      <translation>Avviare il timer su «%1»</translation>
    </message>
    <message id="cli.add.stopRunning">
      <source>Stop the running timer</source>
      <translation>Fermare il timer in corso</translation>
    </message>
    <message id="cli.add.stopTimer">
      <source>Stop the timer on "%1"</source>
      <translation>Fermare il timer su «%1»</translation>
    </message>
    <message id="cli.add.summary">
      <source>Projects: %1 new, %2 existing. Tasks: %3 new, %4 existing. Time logged: %5.</source>
      <translation>Progetti: %1 nuovi, %2 esistenti. Attività: %3 nuove, %4 esistenti. Tempo registrato: %5.</translation>
    </message>
    <message id="cli.add.task">
      <source>Task "%1"</source>
      <translation>Attività «%1»</translation>
    </message>
    <message id="cli.add.team">
      <source>shared with team %1</source>
      <translation>condiviso con il team %1</translation>
    </message>
    <message id="cli.add.timerStopped">
      <source>Timer stopped on %1.</source>
      <translation>Timer fermato su %1.</translation>
    </message>
    <message id="cli.add.understood">
      <source>Understood:</source>
      <translation>Capito:</translation>
    </message>
    <message id="cli.add.unknown">
      <source>Nothing to do: the sentence holds no project, task, time or timer action.</source>
      <translation>Niente da fare: la frase non contiene progetti, attività, tempo né azioni sul timer.</translation>
    </message>
    <message id="cli.add.usage">
      <source>Usage: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</source>
      <translation>Uso: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</translation>
    </message>
    <message id="cli.ai.consentAllowed">
      <source>allowed</source>
      <translation>consentito</translation>
    </message>
    <message id="cli.ai.consentAsk">
      <source>not asked yet</source>
      <translation>non ancora chiesto</translation>
    </message>
    <message id="cli.ai.consentDeclined">
      <source>declined</source>
      <translation>rifiutato</translation>
    </message>
    <message id="cli.ai.keyFailed">
      <source>The keyring did not take the key; nothing changed.</source>
      <translation>Il portachiavi non ha accettato la chiave; non è cambiato nulla.</translation>
    </message>
    <message id="cli.ai.keyMissing">
      <source>No key was given; nothing changed.</source>
      <translation>Nessuna chiave indicata; non è cambiato nulla.</translation>
    </message>
    <message id="cli.ai.keyPrompt">
      <source>Paste your %1 API key and press Enter: </source>
      <translation>Incolla la tua chiave API di %1 e premi Invio: </translation>
    </message>
    <message id="cli.ai.keyRemoved">
      <source>The %1 key is no longer in your keyring.</source>
      <translation>La chiave di %1 non è più nel portachiavi.</translation>
    </message>
    <message id="cli.ai.keySaved">
      <source>The %1 key is in your keyring.</source>
      <translation>La chiave di %1 è nel portachiavi.</translation>
    </message>
    <message id="cli.ai.keys">
      <source>Your keys in the keyring: %1</source>
      <translation>Le tue chiavi nel portachiavi: %1</translation>
    </message>
    <message id="cli.ai.option.remove">
      <source>Remove the stored key instead of setting one.</source>
      <translation>Rimuovi la chiave salvata invece di impostarne una.</translation>
    </message>
    <message id="cli.ai.provider">
      <source>Provider setting: %1</source>
      <translation>Impostazione del fornitore: %1</translation>
    </message>
    <message id="cli.ai.question">
      <source>%1
Send your text to %2 now and from now on? [y/N] </source>
      <translation>%1
Inviare il tuo testo a %2 ora e d'ora in poi? [s/N] </translation>
    </message>
    <message id="cli.ai.route">
      <source>Calls go to: %1</source>
      <translation>Le chiamate vanno a: %1</translation>
    </message>
    <message id="cli.ai.usage">
      <source>Usage: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</source>
      <translation>Uso: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</translation>
    </message>
    <message id="cli.ai.yes">
      <source>Agree to sending your text to the chosen AI service without being asked.</source>
      <translation>Accetta senza domande l'invio del tuo testo al servizio IA scelto.</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>Il comando da eseguire; senza comando viene mostrato l’elenco dei comandi.</translation>
    </message>
    <message id="cli.auth.browser">
      <source>Continue in your browser. If no page opens, go to: %1</source>
      <translation>Continua nel browser. Se non si apre alcuna pagina, vai a: %1</translation>
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
    <message id="cli.auth.option.provider">
      <source>Sign in through an outside provider in the browser instead of with a password.</source>
      <translation>Accedi tramite un provider esterno nel browser invece che con una password.</translation>
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
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Uso: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.calendar.added">
      <source>Added %1 (%2).</source>
      <translation>%1 aggiunto (%2).</translation>
    </message>
    <message id="cli.calendar.err.add">
      <source>That calendar cannot be added: %1.</source>
      <translation>Impossibile aggiungere quel calendario: %1.</translation>
    </message>
    <message id="cli.calendar.err.day">
      <source>A day is written as YYYY-MM-DD, today or yesterday.</source>
      <translation>Un giorno si scrive AAAA-MM-GG, today o yesterday.</translation>
    </message>
    <message id="cli.calendar.err.noDestination">
      <source>No task or project for: %1. Pass --project P to make them new tasks there.</source>
      <translation>Nessuna attività o progetto per: %1. Passa --project P per crearne nuove attività lì.</translation>
    </message>
    <message id="cli.calendar.err.noSelection">
      <source>Say which events to import: --events ID... (see morvane calendar events) or --all.</source>
      <translation>Indica quali eventi importare: --events ID... (vedi morvane calendar events) oppure --all.</translation>
    </message>
    <message id="cli.calendar.err.unknown">
      <source>No single calendar matches “%1”; see morvane calendar list.</source>
      <translation>Nessun calendario univoco corrisponde a «%1»; vedi morvane calendar list.</translation>
    </message>
    <message id="cli.calendar.imported">
      <source>imported</source>
      <translation>importato</translation>
    </message>
    <message id="cli.calendar.importedCount">
      <source>Imported %1 events; %2 were imported before.</source>
      <translation>%1 eventi importati; %2 erano già stati importati.</translation>
    </message>
    <message id="cli.calendar.opt.all">
      <source>Import every event of the day.</source>
      <translation>Importa tutti gli eventi del giorno.</translation>
    </message>
    <message id="cli.calendar.opt.caldav">
      <source>Read a CalDAV collection (with --user) instead of a subscription.</source>
      <translation>Leggi una raccolta CalDAV (con --user) invece di un’iscrizione.</translation>
    </message>
    <message id="cli.calendar.opt.day">
      <source>The day: YYYY-MM-DD, today or yesterday.</source>
      <translation>Il giorno: AAAA-MM-GG, today o yesterday.</translation>
    </message>
    <message id="cli.calendar.opt.events">
      <source>The events to import, by the id events shows.</source>
      <translation>Gli eventi da importare, con l’id mostrato da events.</translation>
    </message>
    <message id="cli.calendar.opt.name">
      <source>The name the calendar is shown under.</source>
      <translation>Il nome con cui viene mostrato il calendario.</translation>
    </message>
    <message id="cli.calendar.opt.project">
      <source>The project new tasks are made in.</source>
      <translation>Il progetto in cui vengono create le nuove attività.</translation>
    </message>
    <message id="cli.calendar.opt.user">
      <source>The CalDAV user name.</source>
      <translation>Il nome utente CalDAV.</translation>
    </message>
    <message id="cli.calendar.password">
      <source>CalDAV password: </source>
      <translation>Password CalDAV: </translation>
    </message>
    <message id="cli.calendar.removed">
      <source>Removed %1.</source>
      <translation>%1 rimosso.</translation>
    </message>
    <message id="cli.calendar.usage">
      <source>Usage: morvane calendar add &lt;file-or-address&gt; [--caldav --user U] | list | rm &lt;calendar&gt; | events [--day DAY] [--json] | import --day DAY [--project P] [--events ID...] [--all]</source>
      <translation>Uso: morvane calendar add &lt;file-o-indirizzo&gt; [--caldav --user U] | list | rm &lt;calendario&gt; | events [--day GIORNO] [--json] | import --day GIORNO [--project P] [--events ID...] [--all]</translation>
    </message>
    <message id="cli.clients.added">
      <source>Added client %1 (%2).</source>
      <translation>Cliente %1 aggiunto (%2).</translation>
    </message>
    <message id="cli.clients.coc">
      <source>CoC %1</source>
      <translation>REA %1</translation>
    </message>
    <message id="cli.clients.confirmDelete">
      <source>Delete the client %1? Invoices that name it keep it. [y/N] </source>
      <translation>Eliminare il cliente %1? Le fatture che lo riportano lo mantengono. [y/N] </translation>
    </message>
    <message id="cli.clients.deleted">
      <source>Deleted client %1.</source>
      <translation>Cliente %1 eliminato.</translation>
    </message>
    <message id="cli.clients.kept">
      <source>Nothing deleted.</source>
      <translation>Non è stato eliminato nulla.</translation>
    </message>
    <message id="cli.clients.noMatch">
      <source>No client matches "%1". See them with: morvane clients list</source>
      <translation>Nessun cliente corrisponde a «%1». Visualizzali con: morvane clients list</translation>
    </message>
    <message id="cli.clients.none">
      <source>No clients yet. Add one with: morvane clients add &lt;name&gt;</source>
      <translation>Nessun cliente per ora. Aggiungine uno con: morvane clients add &lt;nome&gt;</translation>
    </message>
    <message id="cli.clients.option.address">
      <source>The client's postal address; it may span several lines.</source>
      <translation>L'indirizzo postale del cliente; può occupare più righe.</translation>
    </message>
    <message id="cli.clients.option.coc">
      <source>The client's chamber-of-commerce number.</source>
      <translation>Il numero REA del cliente.</translation>
    </message>
    <message id="cli.clients.option.email">
      <source>The client's e-mail address.</source>
      <translation>L'indirizzo e-mail del cliente.</translation>
    </message>
    <message id="cli.clients.option.name">
      <source>A new name (edit only).</source>
      <translation>Un nuovo nome (solo con edit).</translation>
    </message>
    <message id="cli.clients.option.vat">
      <source>The client's VAT number.</source>
      <translation>La partita IVA del cliente.</translation>
    </message>
    <message id="cli.clients.option.yes">
      <source>Delete without asking first.</source>
      <translation>Elimina senza chiedere conferma.</translation>
    </message>
    <message id="cli.clients.saved">
      <source>Saved client %1.</source>
      <translation>Cliente %1 salvato.</translation>
    </message>
    <message id="cli.clients.usage">
      <source>Usage: morvane clients list | add &lt;name&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;client&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;client&gt; [--yes] [--json]</source>
      <translation>Uso: morvane clients list | add &lt;nome&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;cliente&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;cliente&gt; [--yes] [--json]</translation>
    </message>
    <message id="cli.clients.vat">
      <source>VAT %1</source>
      <translation>P.IVA %1</translation>
    </message>
    <message id="cli.clients.yesAnswers">
      <source>y|yes</source>
      <translation>s|sì|si</translation>
    </message>
    <message id="cli.command.add">
      <source>Turn a sentence into projects, tasks, logged time or a timer action: add "&lt;text&gt;" [--dry-run] [--json]</source>
      <translation>Trasforma una frase in progetti, attività, tempo registrato o un’azione sul timer: add "&lt;text&gt;" [--dry-run] [--json]</translation>
    </message>
    <message id="cli.command.ai">
      <source>Where model calls go, your own API keys and what you agreed to send: ai show|provider|key|consent</source>
      <translation>Dove vanno le chiamate al modello, le tue chiavi API e cosa hai accettato di inviare: ai show|provider|key|consent</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Registrarsi, accedere e uscire, passare da un account all’altro</translation>
    </message>
    <message id="cli.command.calendar">
      <source>Calendar events as time: calendar add|list|rm|events|import</source>
      <translation>Eventi del calendario come tempo: calendar add|list|rm|events|import</translation>
    </message>
    <message id="cli.command.clients">
      <source>The clients you invoice: clients list|add|edit|rm</source>
      <translation>I clienti a cui emetti fattura: clients list|add|edit|rm</translation>
    </message>
    <message id="cli.command.company">
      <source>Your sender details and invoice style: company show|set</source>
      <translation>I tuoi dati di mittente e lo stile delle fatture: company show|set</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Mostra quale server usa Morvane e da dove proviene ogni impostazione</translation>
    </message>
    <message id="cli.command.earnings">
      <source>Earned, billed and unbilled money by week, month or project: earnings [--from DAY --to DAY] [--by week|month|project]</source>
      <translation>Importi guadagnati, fatturati e non ancora fatturati per settimana, mese o progetto: earnings [--from GIORNO --to GIORNO] [--by week|month|project]</translation>
    </message>
    <message id="cli.command.entries">
      <source>List, edit or delete time entries: entries [--task T] | edit | rm</source>
      <translation>Elencare, modificare o eliminare voci di tempo: entries [--task T] | edit | rm</translation>
    </message>
    <message id="cli.command.export">
      <source>Time entries or invoices of a period as CSV for the accountant: export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Registrazioni di tempo o fatture di un periodo in CSV per il commercialista: export entries|invoices --from GIORNO --to GIORNO [--out FILE]</translation>
    </message>
    <message id="cli.command.invoice">
      <source>Invoices: invoice draft|create|list|show|status|void|rm|pdf</source>
      <translation>Fatture: invoice draft|create|list|show|status|void|rm|pdf</translation>
    </message>
    <message id="cli.command.log">
      <source>Log minutes of work on a task: log &lt;task&gt; &lt;minutes&gt;</source>
      <translation>Registrare minuti di lavoro su un’attività: log &lt;task&gt; &lt;minutes&gt;</translation>
    </message>
    <message id="cli.command.price">
      <source>Show or set the price of a project or task: price show|set</source>
      <translation>Mostrare o impostare il prezzo di un progetto o di un’attività: price show|set</translation>
    </message>
    <message id="cli.command.projects">
      <source>List, add, rename, archive or delete projects: projects list|add|rename|archive|rm</source>
      <translation>Elencare, aggiungere, rinominare, archiviare o eliminare progetti: projects list|add|rename|archive|rm</translation>
    </message>
    <message id="cli.command.recap">
      <source>A short recap of your tracked week, written by the model from your own figures: recap [--lang L]</source>
      <translation>Un breve riepilogo della tua settimana registrata, scritto dal modello a partire dai tuoi dati: recap [--lang L]</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Avvia, ferma o mostra il server locale: server start|stop|status</translation>
    </message>
    <message id="cli.command.sessions">
      <source>Coding-agent sessions found in the local logs: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</source>
      <translation>Sessioni dell'agente di codice trovate nei log locali: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</translation>
    </message>
    <message id="cli.command.standup">
      <source>A stand-up draft from your last workday, today and your open tasks: standup [--lang L]</source>
      <translation>Una bozza di stand-up dal tuo ultimo giorno di lavoro, da oggi e dalle tue attività aperte: standup [--lang L]</translation>
    </message>
    <message id="cli.command.tasks">
      <source>List, add, edit, move or delete tasks: tasks list|add|edit|move|status|rm</source>
      <translation>Elencare, aggiungere, modificare, spostare o eliminare attività: tasks list|add|edit|move|status|rm</translation>
    </message>
    <message id="cli.command.teams">
      <source>Teams and their members: teams list|create|invite|invitations|accept|decline|assign</source>
      <translation>I team e i loro membri: teams list|create|invite|invitations|accept|decline|assign</translation>
    </message>
    <message id="cli.command.timer">
      <source>Start, stop or show the timer: timer start|stop|toggle|status</source>
      <translation>Avviare, fermare o mostrare il timer: timer start|stop|toggle|status</translation>
    </message>
    <message id="cli.command.travel">
      <source>Your rate per kilometre and how you usually travel: travel show|set</source>
      <translation>La tua tariffa al chilometro e come viaggi di solito: travel show|set</translation>
    </message>
    <message id="cli.command.trips">
      <source>Trips and their kilometres: trips list|add|edit|rm|route|export</source>
      <translation>Viaggi e i loro chilometri: trips list|add|edit|rm|route|export</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Comandi:</translation>
    </message>
    <message id="cli.company.accent">
      <source>Accent colour</source>
      <translation>Colore d’accento</translation>
    </message>
    <message id="cli.company.address">
      <source>Address</source>
      <translation>Indirizzo</translation>
    </message>
    <message id="cli.company.argument.action">
      <source>show or set</source>
      <translation>show o set</translation>
    </message>
    <message id="cli.company.bank">
      <source>Bank</source>
      <translation>Banca</translation>
    </message>
    <message id="cli.company.cocNumber">
      <source>Chamber of commerce number</source>
      <translation>Numero REA</translation>
    </message>
    <message id="cli.company.company">
      <source>Company</source>
      <translation>Azienda</translation>
    </message>
    <message id="cli.company.days">
      <source>%1 days</source>
      <translation>%1 giorni</translation>
    </message>
    <message id="cli.company.design">
      <source>Design</source>
      <translation>Design</translation>
    </message>
    <message id="cli.company.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="cli.company.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>I termini di pagamento sono un numero intero di giorni da 0 a 365.</translation>
    </message>
    <message id="cli.company.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>L’aliquota IVA è una percentuale da 0 a 100.</translation>
    </message>
    <message id="cli.company.fileProblem">
      <source>%1: %2</source>
      <translation>%1: %2</translation>
    </message>
    <message id="cli.company.fontBody">
      <source>Body font</source>
      <translation>Carattere del testo</translation>
    </message>
    <message id="cli.company.fontDisplay">
      <source>Display font</source>
      <translation>Carattere dei titoli</translation>
    </message>
    <message id="cli.company.footer">
      <source>Footer</source>
      <translation>Piè di pagina</translation>
    </message>
    <message id="cli.company.iban">
      <source>Bank account (IBAN)</source>
      <translation>Conto bancario (IBAN)</translation>
    </message>
    <message id="cli.company.ink">
      <source>Ink colour</source>
      <translation>Colore del testo</translation>
    </message>
    <message id="cli.company.logo">
      <source>Logo</source>
      <translation>Logo</translation>
    </message>
    <message id="cli.company.logoSize">
      <source>%1 × %2 px</source>
      <translation>%1 × %2 px</translation>
    </message>
    <message id="cli.company.logoUnreadable">
      <source>set, but not readable</source>
      <translation>impostato, ma illeggibile</translation>
    </message>
    <message id="cli.company.none">
      <source>No sender details yet. Set them with: morvane company set --company NAME --address TEXT ...</source>
      <translation>Nessun dato del mittente per ora. Impostali con: morvane company set --company NOME --address TESTO ...</translation>
    </message>
    <message id="cli.company.option.design">
      <source>The design new invoices are drawn in.</source>
      <translation>Il design delle nuove fatture.</translation>
    </message>
    <message id="cli.company.option.field">
      <source>Sets: %1. An empty value clears it.</source>
      <translation>Imposta: %1. Un valore vuoto lo cancella.</translation>
    </message>
    <message id="cli.company.option.help">
      <source>Show this help.</source>
      <translation>Mostra questo aiuto.</translation>
    </message>
    <message id="cli.company.option.logo">
      <source>A PNG or JPEG of at most 1 MB; an empty value removes the logo.</source>
      <translation>Un PNG o JPEG di al massimo 1 MB; un valore vuoto rimuove il logo.</translation>
    </message>
    <message id="cli.company.option.paymentDays">
      <source>Days the client has to pay.</source>
      <translation>Giorni che il cliente ha per pagare.</translation>
    </message>
    <message id="cli.company.option.template">
      <source>Your own HTML template; new invoices use it unless --design says otherwise.</source>
      <translation>Il tuo modello HTML; le nuove fatture lo usano, salvo diversa indicazione di --design.</translation>
    </message>
    <message id="cli.company.option.vatRate">
      <source>VAT percentage of lines whose price has none.</source>
      <translation>Aliquota IVA delle righe che non ne hanno una.</translation>
    </message>
    <message id="cli.company.paymentDays">
      <source>Payment terms</source>
      <translation>Termini di pagamento</translation>
    </message>
    <message id="cli.company.phone">
      <source>Phone</source>
      <translation>Telefono</translation>
    </message>
    <message id="cli.company.saved">
      <source>Sender details and invoice style saved.</source>
      <translation>Dati del mittente e stile delle fatture salvati.</translation>
    </message>
    <message id="cli.company.template">
      <source>Custom template</source>
      <translation>Modello personalizzato</translation>
    </message>
    <message id="cli.company.templateFallsBack">
      <source>not used, invoices fall back to %1: %2</source>
      <translation>non usato, le fatture ripiegano su %1: %2</translation>
    </message>
    <message id="cli.company.templateStatus">
      <source>Custom template: %1</source>
      <translation>Modello personalizzato: %1</translation>
    </message>
    <message id="cli.company.templateUsed">
      <source>used</source>
      <translation>in uso</translation>
    </message>
    <message id="cli.company.unknownDesign">
      <source>Unknown design: %1. The designs are: %2 (aiCustom is your own template).</source>
      <translation>Design sconosciuto: %1. I design sono: %2 (aiCustom è il tuo modello).</translation>
    </message>
    <message id="cli.company.usage">
      <source>Usage: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</source>
      <translation>Uso: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</translation>
    </message>
    <message id="cli.company.vatNumber">
      <source>VAT number</source>
      <translation>Partita IVA</translation>
    </message>
    <message id="cli.company.vatRate">
      <source>Default VAT rate</source>
      <translation>Aliquota IVA predefinita</translation>
    </message>
    <message id="cli.company.website">
      <source>Website</source>
      <translation>Sito web</translation>
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
    <message id="cli.earnings.backwards">
      <source>The period ends before it begins.</source>
      <translation>Il periodo finisce prima di iniziare.</translation>
    </message>
    <message id="cli.earnings.badBy">
      <source>--by takes week, month or project, not "%1".</source>
      <translation>--by accetta week, month o project, non «%1».</translation>
    </message>
    <message id="cli.earnings.badDay">
      <source>"%1" is not a day; write it as yyyy-MM-dd, for example 2026-01-31.</source>
      <translation>«%1» non è un giorno; scrivilo come aaaa-MM-gg, ad esempio 2026-01-31.</translation>
    </message>
    <message id="cli.earnings.column.billed">
      <source>Billed</source>
      <translation>Fatturato</translation>
    </message>
    <message id="cli.earnings.column.earned">
      <source>Earned</source>
      <translation>Guadagnato</translation>
    </message>
    <message id="cli.earnings.column.hours">
      <source>Hours</source>
      <translation>Ore</translation>
    </message>
    <message id="cli.earnings.column.period">
      <source>Period</source>
      <translation>Periodo</translation>
    </message>
    <message id="cli.earnings.column.project">
      <source>Project</source>
      <translation>Progetto</translation>
    </message>
    <message id="cli.earnings.column.rate">
      <source>Per hour</source>
      <translation>All'ora</translation>
    </message>
    <message id="cli.earnings.column.unbilled">
      <source>Unbilled</source>
      <translation>Da fatturare</translation>
    </message>
    <message id="cli.earnings.halfPeriod">
      <source>Give both --from and --to, or neither for the current month.</source>
      <translation>Indica sia --from sia --to, oppure nessuno dei due per il mese corrente.</translation>
    </message>
    <message id="cli.earnings.heading">
      <source>Earnings from %1 to %2</source>
      <translation>Guadagni dal %1 al %2</translation>
    </message>
    <message id="cli.earnings.noProject">
      <source>No project</source>
      <translation>Nessun progetto</translation>
    </message>
    <message id="cli.earnings.none">
      <source>No time tracked in this period.</source>
      <translation>Nessun tempo registrato in questo periodo.</translation>
    </message>
    <message id="cli.earnings.option.by">
      <source>Rows by week, month (the default) or project.</source>
      <translation>Righe per settimana, mese (predefinito) o progetto.</translation>
    </message>
    <message id="cli.earnings.option.from">
      <source>First day of the period (yyyy-MM-dd); with --to. Without both, the current month.</source>
      <translation>Primo giorno del periodo (aaaa-MM-gg); insieme a --to. Senza entrambi: il mese corrente.</translation>
    </message>
    <message id="cli.earnings.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Ultimo giorno del periodo (aaaa-MM-gg), incluso.</translation>
    </message>
    <message id="cli.earnings.total">
      <source>Total</source>
      <translation>Totale</translation>
    </message>
    <message id="cli.earnings.usage">
      <source>Usage: morvane earnings [--from DAY --to DAY] [--by week|month|project] [--json]</source>
      <translation>Uso: morvane earnings [--from GIORNO --to GIORNO] [--by week|month|project] [--json]</translation>
    </message>
    <message id="cli.entries.badRange">
      <source>An entry must end after it starts.</source>
      <translation>Una voce deve terminare dopo l’inizio.</translation>
    </message>
    <message id="cli.entries.deleted">
      <source>Deleted the entry of %1.</source>
      <translation>La voce di %1 è stata eliminata.</translation>
    </message>
    <message id="cli.entries.noMatch">
      <source>No single time entry matches "%1". List them with: morvane entries --task &lt;task&gt;</source>
      <translation>Nessuna voce unica corrisponde a "%1". Elencale con: morvane entries --task &lt;task&gt;</translation>
    </message>
    <message id="cli.entries.none">
      <source>No time entries.</source>
      <translation>Nessuna voce di tempo.</translation>
    </message>
    <message id="cli.entries.option.end">
      <source>The new end (ISO 8601, local time without an offset).</source>
      <translation>La nuova fine (ISO 8601, ora locale senza offset).</translation>
    </message>
    <message id="cli.entries.option.minutes">
      <source>The new length in minutes.</source>
      <translation>La nuova durata in minuti.</translation>
    </message>
    <message id="cli.entries.option.start">
      <source>The new start (ISO 8601, local time without an offset).</source>
      <translation>Il nuovo inizio (ISO 8601, ora locale senza offset).</translation>
    </message>
    <message id="cli.entries.option.task">
      <source>Only the entries of this task, older ones included.</source>
      <translation>Solo le voci di questa attività, incluse le più vecchie.</translation>
    </message>
    <message id="cli.entries.total">
      <source>In all: %1</source>
      <translation>In totale: %1</translation>
    </message>
    <message id="cli.entries.usage">
      <source>Usage: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</source>
      <translation>Uso: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</translation>
    </message>
    <message id="cli.err.noSignInWaiting">
      <source>No sign-in is waiting for this address. Start the sign-in in Morvane again.</source>
      <translation>Nessun accesso attende questo indirizzo. Avvia di nuovo l’accesso in Morvane.</translation>
    </message>
    <message id="cli.err.notSignedIn">
      <source>Not signed in. Sign in with: morvane auth signin &lt;e-mail&gt;</source>
      <translation>Accesso non effettuato. Accedi con: morvane auth signin &lt;e-mail&gt;</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Comando sconosciuto: %1. Esegui morvane --help per l’elenco dei comandi.</translation>
    </message>
    <message id="cli.export.argument.kind">
      <source>What to export: entries or invoices.</source>
      <translation>Cosa esportare: entries (registrazioni di tempo) o invoices (fatture).</translation>
    </message>
    <message id="cli.export.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Primo giorno del periodo (aaaa-MM-gg).</translation>
    </message>
    <message id="cli.export.option.help">
      <source>Show this help.</source>
      <translation>Mostra questa guida.</translation>
    </message>
    <message id="cli.export.option.out">
      <source>The CSV file to write; without it the CSV goes to standard output.</source>
      <translation>Il file CSV da scrivere; senza, il CSV va sullo standard output.</translation>
    </message>
    <message id="cli.export.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Ultimo giorno del periodo (aaaa-MM-gg), incluso.</translation>
    </message>
    <message id="cli.export.usage">
      <source>Usage: morvane export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Uso: morvane export entries|invoices --from GIORNO --to GIORNO [--out FILE]</translation>
    </message>
    <message id="cli.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message id="cli.export.written">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 salvato (righe: %2).</translation>
    </message>
    <message id="cli.invoice.ambiguous">
      <source>Several invoices match %1; give more of the id or the number.</source>
      <translation>Più fatture corrispondono a %1; indica più caratteri dell'id o il numero.</translation>
    </message>
    <message id="cli.invoice.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Fattura %1 eliminata; le sue ore tornano da fatturare.</translation>
    </message>
    <message id="cli.invoice.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>Impossibile scaricare il PDF: %1</translation>
    </message>
    <message id="cli.invoice.draftEmpty">
      <source>No unbilled time of %1 in this period.</source>
      <translation>Nessun tempo non fatturato di %1 in questo periodo.</translation>
    </message>
    <message id="cli.invoice.due">
      <source>, due %1</source>
      <translation>, scadenza %1</translation>
    </message>
    <message id="cli.invoice.header">
      <source>Invoice %1 (%2), issued %3</source>
      <translation>Fattura %1 (%2), emessa il %3</translation>
    </message>
    <message id="cli.invoice.none">
      <source>No invoices yet.</source>
      <translation>Ancora nessuna fattura.</translation>
    </message>
    <message id="cli.invoice.notFound">
      <source>No invoice matches %1.</source>
      <translation>Nessuna fattura corrisponde a %1.</translation>
    </message>
    <message id="cli.invoice.option.client">
      <source>Bill-to name on the new invoice.</source>
      <translation>Nome del destinatario sulla nuova fattura.</translation>
    </message>
    <message id="cli.invoice.option.design">
      <source>The design of the new invoice, instead of the one in your invoice style.</source>
      <translation>Il design della nuova fattura, al posto di quello del tuo stile.</translation>
    </message>
    <message id="cli.invoice.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Primo giorno del periodo (aaaa-MM-gg).</translation>
    </message>
    <message id="cli.invoice.option.out">
      <source>The file to write the PDF to.</source>
      <translation>Il file in cui scrivere il PDF.</translation>
    </message>
    <message id="cli.invoice.option.status">
      <source>Status of the new invoice: draft or sent.</source>
      <translation>Stato della nuova fattura: draft o sent.</translation>
    </message>
    <message id="cli.invoice.option.to">
      <source>Last day of the period (yyyy-MM-dd).</source>
      <translation>Ultimo giorno del periodo (aaaa-MM-gg).</translation>
    </message>
    <message id="cli.invoice.option.vat">
      <source>VAT percentage for lines whose price has none.</source>
      <translation>Aliquota IVA per le righe il cui prezzo non ne ha una.</translation>
    </message>
    <message id="cli.invoice.pdfReplaced">
      <source>The PDF of invoice %1 was made again.</source>
      <translation>Il PDF della fattura %1 è stato rigenerato.</translation>
    </message>
    <message id="cli.invoice.pdfSaved">
      <source>Saved the PDF of invoice %1 to %2.</source>
      <translation>Il PDF della fattura %1 è stato salvato in %2.</translation>
    </message>
    <message id="cli.invoice.status.draft">
      <source>draft</source>
      <translation>bozza</translation>
    </message>
    <message id="cli.invoice.status.paid">
      <source>paid</source>
      <translation>pagata</translation>
    </message>
    <message id="cli.invoice.status.sent">
      <source>sent</source>
      <translation>inviata</translation>
    </message>
    <message id="cli.invoice.status.void">
      <source>void</source>
      <translation>annullata</translation>
    </message>
    <message id="cli.invoice.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>La fattura %1 ora è %2.</translation>
    </message>
    <message id="cli.invoice.subtotal">
      <source>Subtotal</source>
      <translation>Subtotale</translation>
    </message>
    <message id="cli.invoice.total">
      <source>Total</source>
      <translation>Totale</translation>
    </message>
    <message id="cli.invoice.usage">
      <source>Usage: morvane invoice draft|create &lt;project&gt; [--from DAY] [--to DAY] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;invoice&gt; | status &lt;invoice&gt; draft|sent|paid|void | void &lt;invoice&gt; | rm &lt;invoice&gt; | pdf &lt;invoice&gt; --out FILE | replace-pdf &lt;invoice&gt; [--json]</source>
      <translation>Uso: morvane invoice draft|create &lt;progetto&gt; [--from GIORNO] [--to GIORNO] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;fattura&gt; | status &lt;fattura&gt; draft|sent|paid|void | void &lt;fattura&gt; | rm &lt;fattura&gt; | pdf &lt;fattura&gt; --out FILE | replace-pdf &lt;fattura&gt; [--json]</translation>
    </message>
    <message id="cli.invoice.vat">
      <source>VAT</source>
      <translation>IVA</translation>
    </message>
    <message id="cli.invoice.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>La fattura %1 è annullata; le sue ore tornano da fatturare.</translation>
    </message>
    <message id="cli.invoice.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message id="cli.log.logged">
      <source>Logged %1 on %2, %3 in all.</source>
      <translation>%1 registrato su %2, %3 in totale.</translation>
    </message>
    <message id="cli.log.usage">
      <source>Usage: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</source>
      <translation>Uso: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</translation>
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
    <message id="cli.price.invalid">
      <source>Not a valid amount, or a required one is missing: %1</source>
      <translation>Importo non valido, oppure ne manca uno obbligatorio: %1</translation>
    </message>
    <message id="cli.price.option.amount">
      <source>A number as you write it (1250, 1.250,50, 12.5); empty clears it.</source>
      <translation>Un numero come lo scrivi (1250, 1.250,50, 12.5); vuoto lo cancella.</translation>
    </message>
    <message id="cli.price.option.discountAmount">
      <source>The discount is an amount.</source>
      <translation>Lo sconto è un importo.</translation>
    </message>
    <message id="cli.price.option.discountPct">
      <source>The discount is a percentage.</source>
      <translation>Lo sconto è una percentuale.</translation>
    </message>
    <message id="cli.price.option.inherit">
      <source>The task bills at its project's price again.</source>
      <translation>L’attività torna a essere fatturata al prezzo del progetto.</translation>
    </message>
    <message id="cli.price.option.model">
      <source>The billing model: hourly, fixed, per_unit or daily.</source>
      <translation>Il modello di fatturazione: hourly, fixed, per_unit o daily.</translation>
    </message>
    <message id="cli.price.option.surchargeLabel">
      <source>Label of the surcharge.</source>
      <translation>Etichetta del supplemento.</translation>
    </message>
    <message id="cli.price.option.task">
      <source>The task whose own price to show or set, instead of a project's.</source>
      <translation>L’attività di cui mostrare o impostare il prezzo proprio, invece di quello di un progetto.</translation>
    </message>
    <message id="cli.price.option.travel">
      <source>How the project charges its trips: per_km, per_trip or none.</source>
      <translation>Come il progetto addebita i viaggi: per_km, per_trip o none.</translation>
    </message>
    <message id="cli.price.option.travelRate">
      <source>The travel rate per kilometre or per trip; without it, per kilometre bills at your own rate.</source>
      <translation>La tariffa al chilometro o per viaggio; senza, al chilometro si applica la tua tariffa.</translation>
    </message>
    <message id="cli.price.option.unitLabel">
      <source>Name of the unit of a per-unit price.</source>
      <translation>Nome dell’unità di un prezzo unitario.</translation>
    </message>
    <message id="cli.price.unchanged">
      <source>Nothing changed.</source>
      <translation>Non è cambiato nulla.</translation>
    </message>
    <message id="cli.price.usage">
      <source>Usage: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</source>
      <translation>Uso: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</translation>
    </message>
    <message id="cli.price.worth">
      <source>Tracked %1, worth %2.</source>
      <translation>Registrato %1, valore %2.</translation>
    </message>
    <message id="cli.projects.active">
      <source>active</source>
      <translation>attivo</translation>
    </message>
    <message id="cli.projects.added">
      <source>Added project %1 (%2).</source>
      <translation>Progetto %1 (%2) aggiunto.</translation>
    </message>
    <message id="cli.projects.archived">
      <source>archived</source>
      <translation>archiviato</translation>
    </message>
    <message id="cli.projects.archivedIdle">
      <source>Idle projects archived: %1.</source>
      <translation>Progetti inattivi archiviati: %1.</translation>
    </message>
    <message id="cli.projects.archivedOne">
      <source>Archived %1.</source>
      <translation>%1 archiviato.</translation>
    </message>
    <message id="cli.projects.completed">
      <source>completed</source>
      <translation>completato</translation>
    </message>
    <message id="cli.projects.deleted">
      <source>Deleted %1 and its tasks.</source>
      <translation>%1 e le sue attività eliminati.</translation>
    </message>
    <message id="cli.projects.none">
      <source>No projects yet. Add one with: morvane projects add &lt;name&gt;</source>
      <translation>Ancora nessun progetto. Aggiungine uno con: morvane projects add &lt;name&gt;</translation>
    </message>
    <message id="cli.projects.option.description">
      <source>A description of the project.</source>
      <translation>Una descrizione del progetto.</translation>
    </message>
    <message id="cli.projects.option.idle">
      <source>Archive every project of yours without work for this many days.</source>
      <translation>Archivia tutti i tuoi progetti senza lavoro da questo numero di giorni.</translation>
    </message>
    <message id="cli.projects.option.team">
      <source>The team the new project belongs to.</source>
      <translation>Il team a cui appartiene il nuovo progetto.</translation>
    </message>
    <message id="cli.projects.renamed">
      <source>Renamed %1 to %2.</source>
      <translation>%1 rinominato in %2.</translation>
    </message>
    <message id="cli.projects.taskCount">
      <source>tasks: %1</source>
      <translation>attività: %1</translation>
    </message>
    <message id="cli.projects.team">
      <source>team %1</source>
      <translation>team %1</translation>
    </message>
    <message id="cli.projects.usage">
      <source>Usage: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</source>
      <translation>Uso: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</translation>
    </message>
    <message id="cli.recap.usage">
      <source>Usage: morvane recap [--lang L] [--yes] [--json]</source>
      <translation>Uso: morvane recap [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.ref.ambiguous">
      <source>"%1" matches several: %2. Use the id.</source>
      <translation>"%1" corrisponde a più elementi: %2. Usa l’id.</translation>
    </message>
    <message id="cli.ref.noInvitation">
      <source>No invitation to a team matches "%1". See them with: morvane teams invitations</source>
      <translation>Nessun invito a un team corrisponde a «%1». Visualizzali con: morvane teams invitations</translation>
    </message>
    <message id="cli.ref.noProject">
      <source>No project matches "%1".</source>
      <translation>Nessun progetto corrisponde a "%1".</translation>
    </message>
    <message id="cli.ref.noTask">
      <source>No task matches "%1".</source>
      <translation>Nessuna attività corrisponde a "%1".</translation>
    </message>
    <message id="cli.ref.noTeam">
      <source>No team matches "%1".</source>
      <translation>Nessun team corrisponde a "%1".</translation>
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
    <message id="cli.sessions.burst">
      <source>%1. %2 to %3 · active %4 · prompts: %5 · %6</source>
      <translation>%1. da %2 a %3 · attivo %4 · prompt: %5 · %6</translation>
    </message>
    <message id="cli.sessions.err.days">
      <source>--days takes a whole number of days from 1 to 36500.</source>
      <translation>--days richiede un numero intero di giorni da 1 a 36500.</translation>
    </message>
    <message id="cli.sessions.err.unknownSession">
      <source>No session %1 among the logs of the last 60 days.</source>
      <translation>Nessuna sessione %1 nei log degli ultimi 60 giorni.</translation>
    </message>
    <message id="cli.sessions.group">
      <source>%1 · sessions: %2 · active %3</source>
      <translation>%1 · sessioni: %2 · attivo %3</translation>
    </message>
    <message id="cli.sessions.ignored">
      <source>Ignored %1: %2 sessions there will not be logged.</source>
      <translation>%1 ignorato: %2 sessioni lì non saranno registrate.</translation>
    </message>
    <message id="cli.sessions.mapped">
      <source>%1 is mapped to project %2.</source>
      <translation>%1 è associato al progetto %2.</translation>
    </message>
    <message id="cli.sessions.none">
      <source>No Claude sessions parsed yet</source>
      <translation>Nessuna sessione Claude ancora analizzata</translation>
    </message>
    <message id="cli.sessions.option.all">
      <source>Every session (with reimport).</source>
      <translation>Tutte le sessioni (con reimport).</translation>
    </message>
    <message id="cli.sessions.option.days">
      <source>Sessions whose log changed in the last N days (30 when not given).</source>
      <translation>Sessioni il cui log è cambiato negli ultimi N giorni (30 se non indicato).</translation>
    </message>
    <message id="cli.sessions.pending">
      <source>Not mapped to a project: %1 · sessions: %2 · active %3</source>
      <translation>Non associato a un progetto: %1 · sessioni: %2 · attivo %3</translation>
    </message>
    <message id="cli.sessions.reimportAll">
      <source>Every session will be logged again by the next scan.</source>
      <translation>Tutte le sessioni saranno registrate di nuovo alla prossima scansione.</translation>
    </message>
    <message id="cli.sessions.reimportLogged">
      <source>Session %1 logged again: %2 of %3 work bursts.</source>
      <translation>Sessione %1 registrata di nuovo: %2 di %3 blocchi di lavoro.</translation>
    </message>
    <message id="cli.sessions.reimportOne">
      <source>Session %1 will be logged again by the next scan.</source>
      <translation>La sessione %1 sarà registrata di nuovo alla prossima scansione.</translation>
    </message>
    <message id="cli.sessions.scanned">
      <source>Sessions seen: %1 · work bursts logged: %2 · time logged: %3 (%4 minutes) · failed: %5</source>
      <translation>Sessioni viste: %1 · blocchi di lavoro registrati: %2 · tempo registrato: %3 (%4 minuti) · non riusciti: %5</translation>
    </message>
    <message id="cli.sessions.session">
      <source>%1 · %2 to %3 · active %4 · prompts: %5</source>
      <translation>%1 · da %2 a %3 · attivo %4 · prompt: %5</translation>
    </message>
    <message id="cli.sessions.trackOff">
      <source>Claude sessions are no longer tracked.</source>
      <translation>Le sessioni Claude non sono più tracciate.</translation>
    </message>
    <message id="cli.sessions.trackOn">
      <source>Claude sessions are tracked: every minute the new work bursts of mapped folders are logged.</source>
      <translation>Le sessioni Claude sono tracciate: ogni minuto vengono registrati i nuovi blocchi di lavoro delle cartelle associate.</translation>
    </message>
    <message id="cli.sessions.usage">
      <source>Usage: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</source>
      <translation>Uso: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</translation>
    </message>
    <message id="cli.sessions.where">
      <source>Looked for logs changed in the last %1 days in %2.</source>
      <translation>Cercati i log cambiati negli ultimi %1 giorni in %2.</translation>
    </message>
    <message id="cli.standup.usage">
      <source>Usage: morvane standup [--lang L] [--yes] [--json]</source>
      <translation>Uso: morvane standup [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.summary.fixed">
      <source>Written from your figures alone; the model's text was not used (%1).</source>
      <translation>Scritto solo a partire dai tuoi dati; il testo del modello non è stato usato (%1).</translation>
    </message>
    <message id="cli.summary.option.lang">
      <source>Language of the text: en, nl, de, fr, es, it, pt, ja or th; others mean English. Default: the interface language.</source>
      <translation>Lingua del testo: en, nl, de, fr, es, it, pt, ja o th; qualsiasi altra vale inglese. Predefinita: la lingua dell'interfaccia.</translation>
    </message>
    <message id="cli.tasks.added">
      <source>Added task %1 (%2) to %3.</source>
      <translation>Attività %1 (%2) aggiunta a %3.</translation>
    </message>
    <message id="cli.tasks.badDue">
      <source>Not a day: %1. Write it as YYYY-MM-DD.</source>
      <translation>Non è un giorno: %1. Scrivilo come YYYY-MM-DD.</translation>
    </message>
    <message id="cli.tasks.badOrder">
      <source>Unknown filter or sort. Filters: %1. Sorts: %2.</source>
      <translation>Filtro o ordinamento sconosciuto. Filtri: %1. Ordinamenti: %2.</translation>
    </message>
    <message id="cli.tasks.badStatus">
      <source>Unknown status %1. Statuses: %2.</source>
      <translation>Stato sconosciuto %1. Stati: %2.</translation>
    </message>
    <message id="cli.tasks.deleted">
      <source>Deleted %1.</source>
      <translation>%1 eliminata.</translation>
    </message>
    <message id="cli.tasks.due">
      <source>due %1</source>
      <translation>scadenza %1</translation>
    </message>
    <message id="cli.tasks.high">
      <source>high</source>
      <translation>alta</translation>
    </message>
    <message id="cli.tasks.low">
      <source>low</source>
      <translation>bassa</translation>
    </message>
    <message id="cli.tasks.medium">
      <source>medium</source>
      <translation>media</translation>
    </message>
    <message id="cli.tasks.moved">
      <source>Moved %1 to %2.</source>
      <translation>%1 spostata in %2.</translation>
    </message>
    <message id="cli.tasks.none">
      <source>  No tasks to show.</source>
      <translation>  Nessuna attività da mostrare.</translation>
    </message>
    <message id="cli.tasks.option.description">
      <source>The task's description; empty clears it.</source>
      <translation>La descrizione dell’attività; vuota la cancella.</translation>
    </message>
    <message id="cli.tasks.option.due">
      <source>The day the task is due (YYYY-MM-DD); empty clears it.</source>
      <translation>Il giorno di scadenza dell’attività (YYYY-MM-DD); vuoto lo cancella.</translation>
    </message>
    <message id="cli.tasks.option.filter">
      <source>Which tasks to list: %1.</source>
      <translation>Quali attività elencare: %1.</translation>
    </message>
    <message id="cli.tasks.option.sort">
      <source>How to order the list: %1.</source>
      <translation>Come ordinare l’elenco: %1.</translation>
    </message>
    <message id="cli.tasks.option.title">
      <source>The task's new title.</source>
      <translation>Il nuovo titolo dell’attività.</translation>
    </message>
    <message id="cli.tasks.running">
      <source>timer running</source>
      <translation>timer in corso</translation>
    </message>
    <message id="cli.tasks.saved">
      <source>Saved %1.</source>
      <translation>%1 salvata.</translation>
    </message>
    <message id="cli.tasks.statusSet">
      <source>%1 is now %2.</source>
      <translation>%1 ora è %2.</translation>
    </message>
    <message id="cli.tasks.usage">
      <source>Usage: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</source>
      <translation>Uso: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</translation>
    </message>
    <message id="cli.teams.accepted">
      <source>You are now in team %1, as %2.</source>
      <translation>Ora fai parte del team %1, come %2.</translation>
    </message>
    <message id="cli.teams.answerHint">
      <source>Answer with: morvane teams accept &lt;team&gt; or morvane teams decline &lt;team&gt;</source>
      <translation>Rispondi con: morvane teams accept &lt;team&gt; oppure morvane teams decline &lt;team&gt;</translation>
    </message>
    <message id="cli.teams.assigned">
      <source>%1 now belongs to team %2.</source>
      <translation>%1 ora appartiene al team %2.</translation>
    </message>
    <message id="cli.teams.created">
      <source>Created team %1 (%2).</source>
      <translation>Team %1 (%2) creato.</translation>
    </message>
    <message id="cli.teams.declined">
      <source>You declined the invitation to %1.</source>
      <translation>Hai rifiutato l'invito a %1.</translation>
    </message>
    <message id="cli.teams.editor">
      <source>editor</source>
      <translation>editor</translation>
    </message>
    <message id="cli.teams.invitation">
      <source>%1 (%2): as %3, from %4</source>
      <translation>%1 (%2): come %3, da %4</translation>
    </message>
    <message id="cli.teams.noInvitations">
      <source>No invitations wait for your answer.</source>
      <translation>Nessun invito attende la tua risposta.</translation>
    </message>
    <message id="cli.teams.none">
      <source>No teams. Create one with: morvane teams create &lt;name&gt;</source>
      <translation>Nessun team. Creane uno con: morvane teams create &lt;name&gt;</translation>
    </message>
    <message id="cli.teams.option.role">
      <source>The role of the invited member: editor or viewer.</source>
      <translation>Il ruolo del membro invitato: editor o viewer.</translation>
    </message>
    <message id="cli.teams.owner">
      <source>owner</source>
      <translation>proprietario</translation>
    </message>
    <message id="cli.teams.pending">
      <source>invited</source>
      <translation>invitato</translation>
    </message>
    <message id="cli.teams.projects">
      <source>Projects: %1</source>
      <translation>Progetti: %1</translation>
    </message>
    <message id="cli.teams.unassigned">
      <source>%1 no longer belongs to a team.</source>
      <translation>%1 non appartiene più a un team.</translation>
    </message>
    <message id="cli.teams.usage">
      <source>Usage: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</source>
      <translation>Uso: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</translation>
    </message>
    <message id="cli.teams.viewer">
      <source>viewer</source>
      <translation>visualizzatore</translation>
    </message>
    <message id="cli.teams.you">
      <source>you: %1</source>
      <translation>tu: %1</translation>
    </message>
    <message id="cli.timer.idle">
      <source>No timer runs.</source>
      <translation>Nessun timer in corso.</translation>
    </message>
    <message id="cli.timer.nothingToResume">
      <source>No task has time yet, so there is none to go on with. Start one with: morvane timer start &lt;task&gt;</source>
      <translation>Nessuna attività ha ancora del tempo, quindi non ce n'è nessuna da riprendere. Avviane una con: morvane timer start &lt;task&gt;</translation>
    </message>
    <message id="cli.timer.running">
      <source>%1 (%2): %3 running, %4 in all</source>
      <translation>%1 (%2): %3 in corso, %4 in totale</translation>
    </message>
    <message id="cli.timer.started">
      <source>Timer started on %1.</source>
      <translation>Timer avviato su %1.</translation>
    </message>
    <message id="cli.timer.stopped">
      <source>Stopped %1: %2 logged, %3 in all.</source>
      <translation>%1 fermato: %2 registrato, %3 in totale.</translation>
    </message>
    <message id="cli.timer.usage">
      <source>Usage: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</source>
      <translation>Uso: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</translation>
    </message>
    <message id="cli.travel.option.mode">
      <source>How you usually travel: car, bike, walk, transit or other.</source>
      <translation>Come viaggi di solito: car, bike, walk, transit o other.</translation>
    </message>
    <message id="cli.travel.option.rate">
      <source>Your rate per kilometre, used where a project names none.</source>
      <translation>La tua tariffa al chilometro, per i progetti che non ne hanno una.</translation>
    </message>
    <message id="cli.travel.show">
      <source>Rate per kilometre: %1. Usually travel by: %2.</source>
      <translation>Tariffa al chilometro: %1. Di solito viaggia in: %2.</translation>
    </message>
    <message id="cli.travel.usage">
      <source>Usage: morvane travel show | set [--rate R] [--mode M] [--json]</source>
      <translation>Uso: morvane travel show | set [--rate R] [--mode M] [--json]</translation>
    </message>
    <message id="cli.trips.added">
      <source>Added trip %1: %2 km.</source>
      <translation>Viaggio %1 aggiunto: %2 km.</translation>
    </message>
    <message id="cli.trips.deleted">
      <source>Deleted trip %1.</source>
      <translation>Viaggio %1 eliminato.</translation>
    </message>
    <message id="cli.trips.exported">
      <source>Wrote %1 trips to %2.</source>
      <translation>%1 viaggi scritti in %2.</translation>
    </message>
    <message id="cli.trips.invoiced">
      <source>invoiced</source>
      <translation>fatturato</translation>
    </message>
    <message id="cli.trips.needKm">
      <source>The distance is unknown: the places were not found. Give it with --km.</source>
      <translation>La distanza è sconosciuta: i luoghi non sono stati trovati. Indicala con --km.</translation>
    </message>
    <message id="cli.trips.noMatch">
      <source>No single trip matches "%1". See them with: morvane trips list</source>
      <translation>Nessun viaggio unico corrisponde a «%1». Vedili con: morvane trips list</translation>
    </message>
    <message id="cli.trips.notCharged">
      <source>not charged</source>
      <translation>non addebitato</translation>
    </message>
    <message id="cli.trips.option.date">
      <source>The day of the trip (YYYY-MM-DD).</source>
      <translation>Il giorno del viaggio (AAAA-MM-GG).</translation>
    </message>
    <message id="cli.trips.option.from">
      <source>Where the trip started: an address, a place or "lat,lng"; for an export, the first day.</source>
      <translation>Dove è iniziato: un indirizzo, un luogo o "lat,lng"; per un'esportazione, il primo giorno.</translation>
    </message>
    <message id="cli.trips.option.km">
      <source>The distance in kilometres; without it the road route, else the straight-line estimate.</source>
      <translation>La distanza in chilometri; senza, il percorso stradale, altrimenti la stima in linea d'aria.</translation>
    </message>
    <message id="cli.trips.option.mode">
      <source>car, bike, walk, transit or other.</source>
      <translation>car, bike, walk, transit o other.</translation>
    </message>
    <message id="cli.trips.option.notBillable">
      <source>A business trip that is not charged to the client.</source>
      <translation>Un viaggio di lavoro non addebitato al cliente.</translation>
    </message>
    <message id="cli.trips.option.out">
      <source>The CSV file to write.</source>
      <translation>Il file CSV da scrivere.</translation>
    </message>
    <message id="cli.trips.option.private">
      <source>A private trip; never charged.</source>
      <translation>Un viaggio privato; mai addebitato.</translation>
    </message>
    <message id="cli.trips.option.project">
      <source>The project the trip served.</source>
      <translation>Il progetto del viaggio.</translation>
    </message>
    <message id="cli.trips.option.purpose">
      <source>What the trip was for.</source>
      <translation>A cosa serviva il viaggio.</translation>
    </message>
    <message id="cli.trips.option.task">
      <source>The task the trip served.</source>
      <translation>L'attività del viaggio.</translation>
    </message>
    <message id="cli.trips.option.to">
      <source>Where the trip ended; for an export, the last day.</source>
      <translation>Dove è finito; per un'esportazione, l'ultimo giorno.</translation>
    </message>
    <message id="cli.trips.placeUnknown">
      <source>No place was found for "%1".</source>
      <translation>Nessun luogo trovato per «%1».</translation>
    </message>
    <message id="cli.trips.private">
      <source>private</source>
      <translation>privato</translation>
    </message>
    <message id="cli.trips.saved">
      <source>Saved trip %1.</source>
      <translation>Viaggio %1 salvato.</translation>
    </message>
    <message id="cli.trips.usage">
      <source>Usage: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</source>
      <translation>Uso: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</translation>
    </message>
    <message id="client.err.nameMissing">
      <source>A client needs a name.</source>
      <translation>Un cliente deve avere un nome.</translation>
    </message>
    <message id="client.err.notCreated">
      <source>The client was not saved: you may not add clients to that team.</source>
      <translation>Il cliente non è stato salvato: non puoi aggiungere clienti a quel team.</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>Non è stato possibile caricare i tuoi clienti.</translation>
    </message>
    <message id="client.err.notSaved">
      <source>The client was not changed: you may not edit it, or it no longer exists.</source>
      <translation>Il cliente non è stato modificato: non puoi modificarlo, oppure non esiste più.</translation>
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
    <message id="entry.err.notLogged">
      <source>The time was not logged: you may not log time on this task, or it no longer exists.</source>
      <translation>Il tempo non è stato registrato: non puoi registrare tempo su questa attività, oppure non esiste più.</translation>
    </message>
    <message id="entry.err.notSaved">
      <source>The time entry was not saved: it is not yours or it no longer exists.</source>
      <translation>La voce di tempo non è stata salvata: non è tua o non esiste più.</translation>
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
    <message id="inv.err.allocateNumber">
      <source>Allocate invoice number failed: %1</source>
      <translation>Assegnazione del numero di fattura non riuscita: %1</translation>
    </message>
    <message id="inv.err.alreadyBilled">
      <source>Some of these hours are already on another invoice. The list was refreshed: check it and try again.</source>
      <translation>Alcune di queste ore sono già su un'altra fattura. L'elenco è stato aggiornato: controllalo e riprova.</translation>
    </message>
    <message id="inv.err.delete">
      <source>Delete invoice failed: %1</source>
      <translation>Eliminazione della fattura non riuscita: %1</translation>
    </message>
    <message id="inv.err.loadInvoices">
      <source>Load invoices failed: %1</source>
      <translation>Caricamento delle fatture non riuscito: %1</translation>
    </message>
    <message id="inv.err.loadLines">
      <source>Load invoice lines failed: %1</source>
      <translation>Caricamento delle righe della fattura non riuscito: %1</translation>
    </message>
    <message id="inv.err.notReady">
      <source>Still reading what was billed before.</source>
      <translation>Lettura di quanto già fatturato in corso.</translation>
    </message>
    <message id="inv.err.pdfLink">
      <source>The invoice PDF could not be opened: %1</source>
      <translation>Impossibile aprire il PDF della fattura: %1</translation>
    </message>
    <message id="inv.err.pdfReplace">
      <source>The invoice PDF could not be replaced: %1</source>
      <translation>Impossibile sostituire il PDF della fattura: %1</translation>
    </message>
    <message id="inv.err.priorBilling">
      <source>Could not read which work was billed before. Billing waits until this works, so no fixed price or extra is billed twice.</source>
      <translation>Impossibile leggere quale lavoro è già stato fatturato. La fatturazione attende finché non funziona, così nessun prezzo fisso o extra viene fatturato due volte.</translation>
    </message>
    <message id="inv.err.saveFailed">
      <source>Save invoice failed: %1</source>
      <translation>Salvataggio della fattura non riuscito: %1</translation>
    </message>
    <message id="inv.err.unbilled">
      <source>Could not read which time is still unbilled.</source>
      <translation>Impossibile leggere quale tempo non è ancora fatturato.</translation>
    </message>
    <message id="inv.err.updateStatus">
      <source>Update invoice status failed: %1</source>
      <translation>Aggiornamento dello stato della fattura non riuscito: %1</translation>
    </message>
    <message id="inv.err.voidFailed">
      <source>Voiding the invoice failed: %1</source>
      <translation>Annullamento della fattura non riuscito: %1</translation>
    </message>
    <message id="inv.err.voidUnavailable">
      <source>Voiding is not available yet because the server has not been updated. Try again later.</source>
      <translation>L'annullamento non è ancora disponibile perché il server non è stato aggiornato. Riprova più tardi.</translation>
    </message>
    <message id="inv.extrasBilledBefore">
      <source>extras already billed</source>
      <translation>extra già fatturati</translation>
    </message>
    <message id="inv.followUp">
      <source>FOLLOW-UP</source>
      <translation>SEGUITO</translation>
    </message>
    <message id="inv.inProjectPrice">
      <source>included in the project price</source>
      <translation>incluso nel prezzo del progetto</translation>
    </message>
    <message id="inv.leftOut.many">
      <source>%1 time entries already billed, left out</source>
      <translation>%1 registrazioni di tempo già fatturate, escluse</translation>
    </message>
    <message id="inv.leftOut.one">
      <source>1 time entry already billed, left out</source>
      <translation>1 registrazione di tempo già fatturata, esclusa</translation>
    </message>
    <message id="inv.line.discount">
      <source>Discount</source>
      <translation>Sconto</translation>
    </message>
    <message id="inv.line.fixedPrice">
      <source>fixed price</source>
      <translation>prezzo fisso</translation>
    </message>
    <message id="inv.line.materials">
      <source>Materials</source>
      <translation>Materiali</translation>
    </message>
    <message id="inv.line.minimum">
      <source>Minimum charge</source>
      <translation>Importo minimo</translation>
    </message>
    <message id="inv.line.projectPrice">
      <source>Project price</source>
      <translation>Prezzo del progetto</translation>
    </message>
    <message id="inv.line.surcharge">
      <source>Call-out fee</source>
      <translation>Diritto di chiamata</translation>
    </message>
    <message id="inv.oncePerProject">
      <source>once per project</source>
      <translation>una volta per progetto</translation>
    </message>
    <message id="inv.onlyNewTime">
      <source>new time only</source>
      <translation>solo tempo nuovo</translation>
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
    <message id="inv.priceBilledBefore">
      <source>fixed price already billed</source>
      <translation>prezzo fisso già fatturato</translation>
    </message>
    <message id="inv.projectExtras">
      <source>Project extras</source>
      <translation>Extra del progetto</translation>
    </message>
    <message id="inv.rebill">
      <source>Bill again</source>
      <translation>Fatturare di nuovo</translation>
    </message>
    <message id="inv.rebillHelp">
      <source>This work was billed before. Its fixed or per-unit price, minimum charge, call-out fee, materials and a fixed discount are billed once. Turn this on to bill them again.</source>
      <translation>Questo lavoro è già stato fatturato. Il prezzo fisso o per unità, l'importo minimo, il diritto di chiamata, i materiali e uno sconto fisso si fatturano una sola volta. Attiva questa opzione per fatturarli di nuovo.</translation>
    </message>
    <message id="inv.saved">
      <source>Invoice %1 saved</source>
      <translation>Fattura %1 salvata</translation>
    </message>
    <message id="inv.style.colour.invalid">
      <source>“%1” is no colour: write it as #rgb or #rrggbb, for example #0f766e.</source>
      <translation>«%1» non è un colore: scrivilo come #rgb o #rrggbb, per esempio #0f766e.</translation>
    </message>
    <message id="inv.style.file.unreadable">
      <source>The file could not be opened.</source>
      <translation>Impossibile aprire il file.</translation>
    </message>
    <message id="inv.style.font.invalid">
      <source>A font name holds only letters, digits, blanks and hyphens.</source>
      <translation>Il nome di un carattere contiene solo lettere, cifre, spazi e trattini.</translation>
    </message>
    <message id="inv.style.logo.damaged">
      <source>The image could not be read; the file may be damaged.</source>
      <translation>Impossibile leggere l’immagine; il file potrebbe essere danneggiato.</translation>
    </message>
    <message id="inv.style.logo.empty">
      <source>The file is empty.</source>
      <translation>Il file è vuoto.</translation>
    </message>
    <message id="inv.style.logo.kind">
      <source>The logo must be a PNG or JPEG image.</source>
      <translation>Il logo deve essere un’immagine PNG o JPEG.</translation>
    </message>
    <message id="inv.style.logo.svg">
      <source>SVG logos are not accepted, since a drawing can carry scripts and links. Pick a PNG or JPEG.</source>
      <translation>I loghi SVG non sono accettati, perché un disegno può contenere script e link. Scegli un PNG o JPEG.</translation>
    </message>
    <message id="inv.style.logo.tooLarge">
      <source>The logo is larger than 1 MB. Pick a smaller PNG or JPEG.</source>
      <translation>Il logo supera 1 MB. Scegli un PNG o JPEG più piccolo.</translation>
    </message>
    <message id="inv.style.template.empty">
      <source>The template is empty.</source>
      <translation>Il modello è vuoto.</translation>
    </message>
    <message id="inv.style.template.noDoctype">
      <source>The template must start with &lt;!doctype html&gt;.</source>
      <translation>Il modello deve iniziare con &lt;!doctype html&gt;.</translation>
    </message>
    <message id="inv.style.template.noFooter">
      <source>The template has no &lt;footer&gt; element.</source>
      <translation>Il modello non ha un elemento &lt;footer&gt;.</translation>
    </message>
    <message id="inv.style.template.noHeader">
      <source>The template has no &lt;header&gt; element.</source>
      <translation>Il modello non ha un elemento &lt;header&gt;.</translation>
    </message>
    <message id="inv.style.template.notText">
      <source>The template is not a text file in UTF-8.</source>
      <translation>Il modello non è un file di testo in UTF-8.</translation>
    </message>
    <message id="inv.style.template.pageSize">
      <source>The template must fix the page at 794 × 1123 px (A4), with both sizes in its style sheet.</source>
      <translation>Il modello deve fissare la pagina a 794 × 1123 px (A4), con entrambe le misure nel foglio di stile.</translation>
    </message>
    <message id="inv.style.template.tooLarge">
      <source>The template is larger than 512 KB.</source>
      <translation>Il modello supera i 512 KB.</translation>
    </message>
    <message id="inv.subtotal">
      <source>Subtotal</source>
      <translation>Imponibile</translation>
    </message>
    <message id="inv.total">
      <source>Total</source>
      <translation>Totale</translation>
    </message>
    <message id="inv.unit.days">
      <source>day</source>
      <translation>giorno</translation>
    </message>
    <message id="inv.unit.hours">
      <source>h</source>
      <translation>h</translation>
    </message>
    <message id="inv.unit.units">
      <source>unit</source>
      <translation>unità</translation>
    </message>
    <message id="inv.vat.hint">
      <source>Each line uses the VAT rate of its price settings, else the template's rate.</source>
      <translation>Ogni riga usa l'aliquota IVA della sua impostazione di prezzo, altrimenti quella del modello.</translation>
    </message>
    <message id="inv.vat.none">
      <source>No VAT on these lines</source>
      <translation>Nessuna IVA su queste righe</translation>
    </message>
    <message id="inv.vat.override">
      <source>Set VAT manually</source>
      <translation>Imposta l'IVA manualmente</translation>
    </message>
    <message id="inv.vat.row">
      <source>VAT %1%</source>
      <translation>IVA %1%</translation>
    </message>
    <message id="inv.vat.rowOver">
      <source>VAT %1% on %2</source>
      <translation>IVA %1% su %2</translation>
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
    <message id="inviteRateLimited">
      <source>You have sent many invitations in the last hour. Try again later.</source>
      <translation>Hai inviato molti inviti nell'ultima ora. Riprova più tardi.</translation>
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
    <message id="invoiceErrTripsTaken">
      <source>Some of these trips are already on another invoice. Refresh and try again.</source>
      <translation>Alcuni di questi viaggi sono già su un'altra fattura. Aggiorna e riprova.</translation>
    </message>
    <message id="invoiceErrVoidFinal">
      <source>This invoice is void. A void invoice cannot be changed back.</source>
      <translation>Questa fattura è annullata. Una fattura annullata non può essere ripristinata.</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Realizzato con Morvane</translation>
    </message>
    <message id="invoicePeriodLast30">
      <source>Last 30 days</source>
      <translation>Ultimi 30 giorni</translation>
    </message>
    <message id="invoicePeriodLast7">
      <source>Last 7 days</source>
      <translation>Ultimi 7 giorni</translation>
    </message>
    <message id="invoicePeriodLastMonth">
      <source>Last month</source>
      <translation>Il mese scorso</translation>
    </message>
    <message id="invoicePeriodThisMonth">
      <source>This month</source>
      <translation>Questo mese</translation>
    </message>
    <message id="invoiceTravelInclude">
      <source>Charge travel</source>
      <translation>Addebitare i viaggi</translation>
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
    <message id="store.style.err.notLoaded">
      <source>Your invoice style could not be loaded.</source>
      <translation>Impossibile caricare lo stile delle tue fatture.</translation>
    </message>
    <message id="store.style.err.notSaved">
      <source>The invoice style was not saved: you may not change this template, or it no longer exists.</source>
      <translation>Lo stile della fattura non è stato salvato: non puoi modificare questo modello, oppure non esiste più.</translation>
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
    <message id="task.custom">
      <source>Custom for this task</source>
      <translation>Prezzo proprio per questa attività</translation>
    </message>
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>L’attività non è stata creata: non puoi aggiungere attività a questo progetto.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>L’attività non è stata modificata: non puoi modificarla, oppure non esiste più.</translation>
    </message>
    <message id="task.inheritedFrom">
      <source>Inherited from %1</source>
      <translation>Ereditato da %1</translation>
    </message>
    <message id="task.savePrice">
      <source>Save task price</source>
      <translation>Salva il prezzo dell’attività</translation>
    </message>
    <message id="task.useProject">
      <source>Use project price</source>
      <translation>Usa il prezzo del progetto</translation>
    </message>
    <message id="team.err.invitationNotAnswered">
      <source>The invitation could not be answered. Try again.</source>
      <translation>Impossibile rispondere all'invito. Riprova.</translation>
    </message>
    <message id="team.err.memberNotChanged">
      <source>The member was not changed: only the team owner can change roles and remove people.</source>
      <translation>Il membro non è stato modificato: solo il proprietario del team può cambiare i ruoli e rimuovere persone.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>Il team non è stato creato. Riprova.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>Non è stato possibile caricare i tuoi team.</translation>
    </message>
    <message id="time.hoursMinutes">
      <source>%1h %2m</source>
      <translation>%1 h %2 min</translation>
    </message>
    <message id="time.minutes">
      <source>%1m</source>
      <translation>%1 min</translation>
    </message>
    <message id="timer.err.notStopped">
      <source>The time could not be logged, so the timer keeps running. Try stopping it again.</source>
      <translation>Non è stato possibile registrare il tempo, quindi il timer continua. Prova a fermarlo di nuovo.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>Il timer di questa attività è stato avviato su un altro dispositivo, quindi il suo stato non è stato cambiato.</translation>
    </message>
    <message id="travelDescribeMany">
      <source>%1 km in %2 trips</source>
      <translation>%1 km in %2 viaggi</translation>
    </message>
    <message id="travelDescribeOne">
      <source>%1 km in 1 trip</source>
      <translation>%1 km in 1 viaggio</translation>
    </message>
    <message id="travelKm">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="travelTitle">
      <source>Travel</source>
      <translation>Spese di viaggio</translation>
    </message>
    <message id="travelTrip">
      <source>trip</source>
      <translation>viaggio</translation>
    </message>
    <message id="trip.err.notLoaded">
      <source>Your trips could not be loaded. Check your connection and try again.</source>
      <translation>Impossibile caricare i tuoi viaggi. Controlla la connessione e riprova.</translation>
    </message>
    <message id="trip.err.notSaved">
      <source>The trip was not saved: it no longer exists or you may not change it.</source>
      <translation>Il viaggio non è stato salvato: non esiste più o non puoi modificarlo.</translation>
    </message>
    <message id="trip.err.settingsNotSaved">
      <source>Your travel settings were not saved.</source>
      <translation>Le tue impostazioni di viaggio non sono state salvate.</translation>
    </message>
    <message id="tripDeleteConfirm">
      <source>Delete this trip? This cannot be undone.</source>
      <translation>Eliminare questo viaggio? L'operazione non si può annullare.</translation>
    </message>
    <message id="tripDistanceByRoad">
      <source>Distance by road, about %1 min. Change it if you went another way.</source>
      <translation>Distanza su strada, circa %1 min. Modificala se hai fatto un'altra strada.</translation>
    </message>
    <message id="tripDistanceEstimate">
      <source>Kilometres are an estimate from the addresses; change them if needed.</source>
      <translation>I chilometri sono stimati dagli indirizzi; modificali se serve.</translation>
    </message>
    <message id="tripErrNoService">
      <source>No routing or address service is set up.</source>
      <translation>Nessun servizio di percorsi o indirizzi è configurato.</translation>
    </message>
    <message id="tripErrNotFound">
      <source>No place or route was found for this.</source>
      <translation>Nessun luogo o percorso trovato.</translation>
    </message>
    <message id="tripInProgress">
      <source>Trip in progress</source>
      <translation>Viaggio in corso</translation>
    </message>
    <message id="tripSearchFailed">
      <source>Searching did not work. Check your connection and try again.</source>
      <translation>La ricerca non ha funzionato. Controlla la connessione e riprova.</translation>
    </message>
    <message id="tripsEmpty">
      <source>No trips yet. Trips your phone records while a timer runs show up here. You can also add a trip by hand.</source>
      <translation>Ancora nessun viaggio. I viaggi registrati dal telefono mentre un timer è attivo compaiono qui. Puoi anche aggiungerne uno a mano.</translation>
    </message>
    <message id="ui.action.floatingTimer">
      <source>Show or hide the floating timer</source>
      <translation>Mostra o nascondi il timer flottante</translation>
    </message>
    <message id="ui.action.newProject">
      <source>New project</source>
      <translation>Nuovo progetto</translation>
    </message>
    <message id="ui.action.newTask">
      <source>New task</source>
      <translation>Nuova attività</translation>
    </message>
    <message id="ui.action.newTeam">
      <source>New team</source>
      <translation>Nuovo team</translation>
    </message>
    <message id="ui.action.quickAdd">
      <source>Quick add: a sentence becomes work…</source>
      <translation>Aggiunta rapida: una frase diventa lavoro…</translation>
    </message>
    <message id="ui.action.settings">
      <source>Settings</source>
      <translation>Impostazioni</translation>
    </message>
    <message id="ui.action.signOut">
      <source>Sign out</source>
      <translation>Esci dall’account</translation>
    </message>
    <message id="ui.action.toggleTheme">
      <source>Switch between light and dark</source>
      <translation>Alterna tema chiaro e scuro</translation>
    </message>
    <message id="ui.action.toggleTimer">
      <source>Start or stop the timer</source>
      <translation>Avvia o ferma il timer</translation>
    </message>
    <message id="ui.ai.anthropic">
      <source>Anthropic API with your key</source>
      <translation>API Anthropic con la tua chiave</translation>
    </message>
    <message id="ui.ai.anthropicHelp">
      <source>Straight to Anthropic with the key you keep in your keyring.</source>
      <translation>Direttamente ad Anthropic con la chiave del tuo portachiavi.</translation>
    </message>
    <message id="ui.ai.auto">
      <source>Automatic (recommended)</source>
      <translation>Automatico (consigliato)</translation>
    </message>
    <message id="ui.ai.autoHelp">
      <source>The Claude CLI first; without it, Morvane AI in the cloud.</source>
      <translation>Prima la CLI di Claude; senza, Morvane AI nel cloud.</translation>
    </message>
    <message id="ui.ai.cli">
      <source>Claude CLI only</source>
      <translation>Solo CLI di Claude</translation>
    </message>
    <message id="ui.ai.cliHelp">
      <source>Everything local through your own Claude subscription. No network.</source>
      <translation>Tutto in locale con il tuo abbonamento Claude. Nessuna rete.</translation>
    </message>
    <message id="ui.ai.consentAllow">
      <source>Allowed</source>
      <translation>Consentito</translation>
    </message>
    <message id="ui.ai.consentAsk">
      <source>Ask first</source>
      <translation>Chiedi prima</translation>
    </message>
    <message id="ui.ai.consentDeny">
      <source>Never send</source>
      <translation>Non inviare mai</translation>
    </message>
    <message id="ui.ai.consents">
      <source>Sending text off this computer</source>
      <translation>Invio di testo fuori da questo computer</translation>
    </message>
    <message id="ui.ai.gemini">
      <source>Google Gemini API with your key</source>
      <translation>API Google Gemini con la tua chiave</translation>
    </message>
    <message id="ui.ai.geminiHelp">
      <source>Straight to Google with the key you keep in your keyring.</source>
      <translation>Direttamente a Google con la chiave del tuo portachiavi.</translation>
    </message>
    <message id="ui.ai.keyFailed">
      <source>The keyring did not take the change; nothing changed.</source>
      <translation>Il portachiavi non ha accettato la modifica; non è cambiato nulla.</translation>
    </message>
    <message id="ui.ai.keyInvalid">
      <source>That does not look like an API key: paste the key alone, without spaces.</source>
      <translation>Non sembra una chiave API: incolla solo la chiave, senza spazi.</translation>
    </message>
    <message id="ui.ai.keyName">
      <source>API key for %1</source>
      <translation>Chiave API per %1</translation>
    </message>
    <message id="ui.ai.keyPaste">
      <source>Paste your API key</source>
      <translation>Incolla la tua chiave API</translation>
    </message>
    <message id="ui.ai.keyRemove">
      <source>Remove</source>
      <translation>Rimuovi</translation>
    </message>
    <message id="ui.ai.keySave">
      <source>Save key</source>
      <translation>Salva chiave</translation>
    </message>
    <message id="ui.ai.keyStored">
      <source>A key is stored; paste another to replace it</source>
      <translation>C’è una chiave salvata; incollane un’altra per sostituirla</translation>
    </message>
    <message id="ui.ai.keys">
      <source>Your own API keys (kept in the keyring)</source>
      <translation>Le tue chiavi API (nel portachiavi)</translation>
    </message>
    <message id="ui.ai.openai">
      <source>OpenAI API with your key</source>
      <translation>API OpenAI con la tua chiave</translation>
    </message>
    <message id="ui.ai.openaiHelp">
      <source>Straight to OpenAI with the key you keep in your keyring.</source>
      <translation>Direttamente a OpenAI con la chiave del tuo portachiavi.</translation>
    </message>
    <message id="ui.ai.relay">
      <source>Morvane AI only</source>
      <translation>Solo Morvane AI</translation>
    </message>
    <message id="ui.ai.relayHelp">
      <source>Always through the secured relay of your Morvane server. The CLI is ignored.</source>
      <translation>Sempre tramite il relay protetto del tuo server Morvane. La CLI viene ignorata.</translation>
    </message>
    <message id="ui.ai.route">
      <source>Where model calls go</source>
      <translation>Dove vanno le chiamate al modello</translation>
    </message>
    <message id="ui.assistant.add">
      <source>Add</source>
      <translation>Aggiungi</translation>
    </message>
    <message id="ui.assistant.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as the task list shows it.</source>
      <translation>Quale attività? Nessuna delle tue attività si chiama "%1", oppure più d’una. Chiamala come nell’elenco delle attività.</translation>
    </message>
    <message id="ui.assistant.consentNo">
      <source>Don't send</source>
      <translation>Non inviare</translation>
    </message>
    <message id="ui.assistant.consentOnce">
      <source>Morvane asks once for this route and remembers your answer. You can change it in the settings.</source>
      <translation>Morvane lo chiede una volta per questo percorso e ricorda la risposta. Puoi cambiarla nelle impostazioni.</translation>
    </message>
    <message id="ui.assistant.consentTitle">
      <source>Send your text to %1?</source>
      <translation>Inviare il testo a %1?</translation>
    </message>
    <message id="ui.assistant.consentYes">
      <source>Send</source>
      <translation>Invia</translation>
    </message>
    <message id="ui.assistant.empty">
      <source>Type a sentence in your own words: new projects and tasks, time you spent, or start and stop the timer.</source>
      <translation>Scrivi una frase con parole tue: nuovi progetti e attività, tempo impiegato, o avviare e fermare il timer.</translation>
    </message>
    <message id="ui.assistant.notUnderstood">
      <source>The sentence could not be read: %1</source>
      <translation>Impossibile leggere la frase: %1</translation>
    </message>
    <message id="ui.assistant.placeholder">
      <source>Say what to add, e.g. “Logo design for Acme, 3 hours yesterday”</source>
      <translation>Di’ cosa aggiungere, ad es. «Logo per Acme, 3 ore ieri»</translation>
    </message>
    <message id="ui.assistant.reading">
      <source>Reading your sentence…</source>
      <translation>Lettura della frase…</translation>
    </message>
    <message id="ui.assistant.title">
      <source>Quick add</source>
      <translation>Aggiunta rapida</translation>
    </message>
    <message id="ui.assistant.tooLong">
      <source>That is more than a sentence or two. Say what to add in a few lines.</source>
      <translation>È più di una o due frasi. Di’ in poche righe cosa aggiungere.</translation>
    </message>
    <message id="ui.auth.aboutYou">
      <source>A little about you</source>
      <translation>Qualcosa su di te</translation>
    </message>
    <message id="ui.auth.confirmBody">
      <source>We sent a confirmation link to %1. Open it, then sign in here.</source>
      <translation>Abbiamo inviato un link di conferma a %1. Aprilo, poi accedi qui.</translation>
    </message>
    <message id="ui.auth.confirmResent">
      <source>We sent a new confirmation link to %1.</source>
      <translation>Abbiamo inviato un nuovo link di conferma a %1.</translation>
    </message>
    <message id="ui.auth.confirmSent">
      <source>We sent a link to %1. Open it to confirm your address, then sign in.</source>
      <translation>Abbiamo inviato un link a %1. Aprilo per confermare il tuo indirizzo, poi accedi.</translation>
    </message>
    <message id="ui.auth.confirmTitle">
      <source>Confirm your e-mail</source>
      <translation>Conferma la tua e-mail</translation>
    </message>
    <message id="ui.auth.continueAs">
      <source>Continue as %1</source>
      <translation>Continua come %1</translation>
    </message>
    <message id="ui.auth.continueWith">
      <source>Continue with %1</source>
      <translation>Continua con %1</translation>
    </message>
    <message id="ui.auth.createAccount">
      <source>Create your account</source>
      <translation>Crea il tuo account</translation>
    </message>
    <message id="ui.auth.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.auth.forgot">
      <source>Forgot password?</source>
      <translation>Password dimenticata?</translation>
    </message>
    <message id="ui.auth.getStarted">
      <source>Get started</source>
      <translation>Inizia</translation>
    </message>
    <message id="ui.auth.haveAccount">
      <source>I already have an account</source>
      <translation>Ho già un account</translation>
    </message>
    <message id="ui.auth.password">
      <source>Password</source>
      <translation>Password</translation>
    </message>
    <message id="ui.auth.passwordHint">
      <source>At least 8 characters.</source>
      <translation>Almeno 8 caratteri.</translation>
    </message>
    <message id="ui.auth.rememberMe">
      <source>Remember me on this computer</source>
      <translation>Ricordami su questo computer</translation>
    </message>
    <message id="ui.auth.resend">
      <source>Send the link again</source>
      <translation>Invia di nuovo il link</translation>
    </message>
    <message id="ui.auth.resetSent">
      <source>Check your inbox for the reset link.</source>
      <translation>Controlla la posta in arrivo: troverai il link di reimpostazione.</translation>
    </message>
    <message id="ui.auth.resetTitle">
      <source>Reset your password</source>
      <translation>Reimposta la password</translation>
    </message>
    <message id="ui.auth.sendReset">
      <source>Send the reset link</source>
      <translation>Invia il link di reimpostazione</translation>
    </message>
    <message id="ui.auth.signInTitle">
      <source>Sign in</source>
      <translation>Accedi</translation>
    </message>
    <message id="ui.auth.toSignIn">
      <source>Back to sign in</source>
      <translation>Torna all’accesso</translation>
    </message>
    <message id="ui.auth.toSignUp">
      <source>Create an account</source>
      <translation>Crea un account</translation>
    </message>
    <message id="ui.auth.welcome">
      <source>Welcome to Morvane</source>
      <translation>Ti diamo il benvenuto in Morvane</translation>
    </message>
    <message id="ui.auth.welcomeBody">
      <source>Track your time on projects and tasks, and turn it into invoices. Your data stays on this computer unless you connect a shared server.</source>
      <translation>Registra il tempo dedicato a progetti e attività e trasformalo in fatture. I tuoi dati restano su questo computer, a meno che tu non colleghi un server condiviso.</translation>
    </message>
    <message id="ui.calendar.add">
      <source>Add calendar</source>
      <translation>Aggiungi calendario</translation>
    </message>
    <message id="ui.calendar.addFile">
      <source>Add a calendar file…</source>
      <translation>Aggiungi un file di calendario…</translation>
    </message>
    <message id="ui.calendar.added">
      <source>%1 was added.</source>
      <translation>%1 è stato aggiunto.</translation>
    </message>
    <message id="ui.calendar.address">
      <source>Subscription or CalDAV address (https:// or webcal://)</source>
      <translation>Indirizzo di abbonamento o CalDAV (https:// o webcal://)</translation>
    </message>
    <message id="ui.calendar.badDay">
      <source>Write the day as year-month-day, for example 2026-11-25.</source>
      <translation>Scrivi il giorno come anno-mese-giorno, per esempio 2026-11-25.</translation>
    </message>
    <message id="ui.calendar.caldav">
      <source>CalDAV account</source>
      <translation>Account CalDAV</translation>
    </message>
    <message id="ui.calendar.day">
      <source>Day (year-month-day)</source>
      <translation>Giorno (anno-mese-giorno)</translation>
    </message>
    <message id="ui.calendar.destination">
      <source>Where it goes</source>
      <translation>Dove va</translation>
    </message>
    <message id="ui.calendar.fileFilter">
      <source>Calendar files (*.ics)</source>
      <translation>File di calendario (*.ics)</translation>
    </message>
    <message id="ui.calendar.fileTitle">
      <source>Add a calendar file</source>
      <translation>Aggiungi un file di calendario</translation>
    </message>
    <message id="ui.calendar.import">
      <source>Import as time</source>
      <translation>Importa come tempo</translation>
    </message>
    <message id="ui.calendar.imported">
      <source>%1 imported as time.</source>
      <translation>%1 importati come tempo.</translation>
    </message>
    <message id="ui.calendar.importedChip">
      <source>Imported</source>
      <translation>Importato</translation>
    </message>
    <message id="ui.calendar.link">
      <source>Calendar import</source>
      <translation>Importa calendario</translation>
    </message>
    <message id="ui.calendar.loading">
      <source>Loading calendar…</source>
      <translation>Caricamento del calendario…</translation>
    </message>
    <message id="ui.calendar.newTaskIn">
      <source>New task in %1</source>
      <translation>Nuova attività in %1</translation>
    </message>
    <message id="ui.calendar.next">
      <source>Next day</source>
      <translation>Giorno successivo</translation>
    </message>
    <message id="ui.calendar.noDestination">
      <source>%1 imported. %2 ticked events have no destination yet: choose where each goes.</source>
      <translation>%1 importati. %2 eventi spuntati non hanno ancora una destinazione: scegli dove va ciascuno.</translation>
    </message>
    <message id="ui.calendar.noEventsHint">
      <source>Pick another day, or add the calendar that holds your meetings.</source>
      <translation>Scegli un altro giorno o aggiungi il calendario con le tue riunioni.</translation>
    </message>
    <message id="ui.calendar.noEventsTitle">
      <source>No events on this day</source>
      <translation>Nessun evento in questo giorno</translation>
    </message>
    <message id="ui.calendar.noSourcesHint">
      <source>Add a calendar file, a subscription address (such as a hosted calendar's secret address) or a CalDAV account on the left. Morvane only reads them.</source>
      <translation>Aggiungi a sinistra un file di calendario, un indirizzo di abbonamento (come l’indirizzo segreto di un calendario online) o un account CalDAV. Morvane li legge soltanto.</translation>
    </message>
    <message id="ui.calendar.noSourcesTitle">
      <source>No calendars yet</source>
      <translation>Nessun calendario per ora</translation>
    </message>
    <message id="ui.calendar.partial">
      <source>%1 imported; then it stopped: %2</source>
      <translation>%1 importati; poi si è fermato: %2</translation>
    </message>
    <message id="ui.calendar.password">
      <source>Password (kept in your keyring)</source>
      <translation>Password (nel tuo portachiavi)</translation>
    </message>
    <message id="ui.calendar.previous">
      <source>Previous day</source>
      <translation>Giorno precedente</translation>
    </message>
    <message id="ui.calendar.remove">
      <source>Remove</source>
      <translation>Rimuovi</translation>
    </message>
    <message id="ui.calendar.sources">
      <source>Your calendars</source>
      <translation>I tuoi calendari</translation>
    </message>
    <message id="ui.calendar.timeOn">
      <source>Time on %1 (%2)</source>
      <translation>Tempo su %1 (%2)</translation>
    </message>
    <message id="ui.calendar.title">
      <source>Import from your calendar</source>
      <translation>Importa dal tuo calendario</translation>
    </message>
    <message id="ui.calendar.user">
      <source>User name</source>
      <translation>Nome utente</translation>
    </message>
    <message id="ui.category.admin">
      <source>Admin</source>
      <translation>Amministrazione</translation>
    </message>
    <message id="ui.category.billable">
      <source>Billable</source>
      <translation>Fatturabile</translation>
    </message>
    <message id="ui.category.internal">
      <source>Internal work</source>
      <translation>Lavoro interno</translation>
    </message>
    <message id="ui.category.none">
      <source>None</source>
      <translation>Nessuna</translation>
    </message>
    <message id="ui.clients.address">
      <source>Address</source>
      <translation>Indirizzo</translation>
    </message>
    <message id="ui.clients.deleteBody">
      <source>It leaves your list of clients. Invoices you already wrote for this client keep it.</source>
      <translation>Scompare dall'elenco dei clienti. Le fatture già emesse per questo cliente lo mantengono.</translation>
    </message>
    <message id="ui.clients.deleteTitle">
      <source>Delete %1?</source>
      <translation>Eliminare %1?</translation>
    </message>
    <message id="ui.clients.edit">
      <source>Edit client</source>
      <translation>Modifica cliente</translation>
    </message>
    <message id="ui.clients.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.clients.emptyHint">
      <source>Add the people and companies you invoice, then choose them when you write an invoice. Press Ctrl+N or “New client” to add the first.</source>
      <translation>Aggiungi le persone e le aziende a cui fatturi, poi sceglile quando scrivi una fattura. Premi Ctrl+N o «Nuovo cliente» per aggiungere il primo.</translation>
    </message>
    <message id="ui.clients.emptyTitle">
      <source>No clients yet</source>
      <translation>Ancora nessun cliente</translation>
    </message>
    <message id="ui.clients.kvk">
      <source>Chamber of commerce number</source>
      <translation>Numero REA</translation>
    </message>
    <message id="ui.clients.name">
      <source>Name</source>
      <translation>Nome</translation>
    </message>
    <message id="ui.clients.namePlaceholder">
      <source>Company or person</source>
      <translation>Azienda o persona</translation>
    </message>
    <message id="ui.clients.new">
      <source>New client</source>
      <translation>Nuovo cliente</translation>
    </message>
    <message id="ui.clients.noMatch">
      <source>No client matches “%1”</source>
      <translation>Nessun cliente corrisponde a «%1»</translation>
    </message>
    <message id="ui.clients.search">
      <source>Search clients</source>
      <translation>Cerca clienti</translation>
    </message>
    <message id="ui.clients.title">
      <source>Clients</source>
      <translation>Clienti</translation>
    </message>
    <message id="ui.clients.vatId">
      <source>VAT number</source>
      <translation>Partita IVA</translation>
    </message>
    <message id="ui.common.cancel">
      <source>Cancel</source>
      <translation>Annulla</translation>
    </message>
    <message id="ui.common.close">
      <source>Close</source>
      <translation>Chiudi</translation>
    </message>
    <message id="ui.common.continue">
      <source>Continue</source>
      <translation>Continua</translation>
    </message>
    <message id="ui.common.delete">
      <source>Delete</source>
      <translation>Elimina</translation>
    </message>
    <message id="ui.common.dismiss">
      <source>Dismiss</source>
      <translation>Chiudi</translation>
    </message>
    <message id="ui.common.edit">
      <source>Edit</source>
      <translation>Modifica</translation>
    </message>
    <message id="ui.common.remove">
      <source>Remove %1</source>
      <translation>Rimuovi %1</translation>
    </message>
    <message id="ui.common.retry">
      <source>Try again</source>
      <translation>Riprova</translation>
    </message>
    <message id="ui.common.save">
      <source>Save</source>
      <translation>Salva</translation>
    </message>
    <message id="ui.common.saving">
      <source>Saving</source>
      <translation>Salvataggio</translation>
    </message>
    <message id="ui.composer.billTo">
      <source>Bill to</source>
      <translation>Intestata a</translation>
    </message>
    <message id="ui.composer.cancel">
      <source>Cancel</source>
      <translation>Annulla</translation>
    </message>
    <message id="ui.composer.clientAddress">
      <source>Client address</source>
      <translation>Indirizzo del cliente</translation>
    </message>
    <message id="ui.composer.clientEmail">
      <source>Client e-mail</source>
      <translation>E-mail del cliente</translation>
    </message>
    <message id="ui.composer.clientName">
      <source>Client name</source>
      <translation>Nome del cliente</translation>
    </message>
    <message id="ui.composer.design">
      <source>Design</source>
      <translation>Stile</translation>
    </message>
    <message id="ui.composer.drawing">
      <source>Drawing the invoice</source>
      <translation>Creazione della fattura</translation>
    </message>
    <message id="ui.composer.due">
      <source>Due</source>
      <translation>Scadenza</translation>
    </message>
    <message id="ui.composer.err.day">
      <source>Write days as year-month-day, for example 2026-11-01.</source>
      <translation>Scrivi le date come anno-mese-giorno, per esempio 2026-11-01.</translation>
    </message>
    <message id="ui.composer.err.due">
      <source>Payment cannot be due before the invoice is issued.</source>
      <translation>La scadenza non può precedere la data di emissione.</translation>
    </message>
    <message id="ui.composer.err.empty">
      <source>Choose work with unbilled time first.</source>
      <translation>Scegli prima del lavoro con tempo da fatturare.</translation>
    </message>
    <message id="ui.composer.err.noNumber">
      <source>The invoice has no number yet. Check the connection and open the composer again.</source>
      <translation>La fattura non ha ancora un numero. Controlla la connessione e riapri la composizione della fattura.</translation>
    </message>
    <message id="ui.composer.err.period">
      <source>The period ends before it starts.</source>
      <translation>Il periodo finisce prima di iniziare.</translation>
    </message>
    <message id="ui.composer.err.preview">
      <source>The preview could not be drawn: %1</source>
      <translation>Impossibile creare l’anteprima: %1</translation>
    </message>
    <message id="ui.composer.from">
      <source>From (year-month-day)</source>
      <translation>Dal (anno-mese-giorno)</translation>
    </message>
    <message id="ui.composer.hours">
      <source>%1 h</source>
      <translation>%1 h</translation>
    </message>
    <message id="ui.composer.houseDesign">
      <source>As in the invoice style</source>
      <translation>Come nello stile della fattura</translation>
    </message>
    <message id="ui.composer.invoice">
      <source>Invoice</source>
      <translation>Fattura</translation>
    </message>
    <message id="ui.composer.issued">
      <source>Issued</source>
      <translation>Data di emissione</translation>
    </message>
    <message id="ui.composer.lines">
      <source>Lines</source>
      <translation>Righe</translation>
    </message>
    <message id="ui.composer.noWork">
      <source>No unbilled time in this period. Choose another period or project.</source>
      <translation>Nessun tempo da fatturare in questo periodo. Scegli un altro periodo o progetto.</translation>
    </message>
    <message id="ui.composer.notes">
      <source>Notes on the invoice</source>
      <translation>Note sulla fattura</translation>
    </message>
    <message id="ui.composer.number">
      <source>No. %1</source>
      <translation>N. %1</translation>
    </message>
    <message id="ui.composer.numberPending">
      <source>Number follows</source>
      <translation>Numero in arrivo</translation>
    </message>
    <message id="ui.composer.period">
      <source>Period</source>
      <translation>Periodo</translation>
    </message>
    <message id="ui.composer.previewEmpty">
      <source>The invoice appears here</source>
      <translation>Qui compare la fattura</translation>
    </message>
    <message id="ui.composer.previewHint">
      <source>Choose a project with unbilled time and a period; the page follows every change.</source>
      <translation>Scegli un progetto con tempo da fatturare e un periodo; la pagina segue ogni modifica.</translation>
    </message>
    <message id="ui.composer.projects">
      <source>Projects</source>
      <translation>Progetti</translation>
    </message>
    <message id="ui.composer.saveAsClient">
      <source>Save as client</source>
      <translation>Salva come cliente</translation>
    </message>
    <message id="ui.composer.saveDraft">
      <source>Save as draft</source>
      <translation>Salva come bozza</translation>
    </message>
    <message id="ui.composer.saveSent">
      <source>Save as sent</source>
      <translation>Salva come inviata</translation>
    </message>
    <message id="ui.composer.savedClients">
      <source>Saved clients</source>
      <translation>Clienti salvati</translation>
    </message>
    <message id="ui.composer.title">
      <source>New invoice</source>
      <translation>Nuova fattura</translation>
    </message>
    <message id="ui.composer.to">
      <source>To (year-month-day)</source>
      <translation>Al (anno-mese-giorno)</translation>
    </message>
    <message id="ui.composer.vatPercent">
      <source>VAT %</source>
      <translation>IVA %</translation>
    </message>
    <message id="ui.composer.work">
      <source>Work</source>
      <translation>Lavoro</translation>
    </message>
    <message id="ui.earnings.barName">
      <source>%1: earned %2, billed %3, unbilled %4</source>
      <translation>%1: guadagnato %2, fatturato %3, da fatturare %4</translation>
    </message>
    <message id="ui.earnings.billed">
      <source>Billed</source>
      <translation>Fatturato</translation>
    </message>
    <message id="ui.earnings.billedChip">
      <source>billed</source>
      <translation>fatturato</translation>
    </message>
    <message id="ui.earnings.byMonth">
      <source>Month</source>
      <translation>Mese</translation>
    </message>
    <message id="ui.earnings.byProject">
      <source>Project</source>
      <translation>Progetto</translation>
    </message>
    <message id="ui.earnings.byWeek">
      <source>Week</source>
      <translation>Settimana</translation>
    </message>
    <message id="ui.earnings.coverage">
      <source>%1 to %2</source>
      <translation>dal %1 al %2</translation>
    </message>
    <message id="ui.earnings.dateFormat">
      <source>d MMM yyyy</source>
      <translation>d MMM yyyy</translation>
    </message>
    <message id="ui.earnings.dayFormat">
      <source>d MMM</source>
      <translation>d MMM</translation>
    </message>
    <message id="ui.earnings.earned">
      <source>Earned</source>
      <translation>Guadagnato</translation>
    </message>
    <message id="ui.earnings.emptyHint">
      <source>Start the timer on a task with Space, or log time in its inspector. What you earn shows up here by week, month and project.</source>
      <translation>Avvia il timer su un'attività con Spazio o registra il tempo nel suo pannello. Ciò che guadagni appare qui per settimana, mese e progetto.</translation>
    </message>
    <message id="ui.earnings.emptyTitle">
      <source>Nothing tracked in these months</source>
      <translation>Nessun tempo registrato in questi mesi</translation>
    </message>
    <message id="ui.earnings.entries">
      <source>Entries</source>
      <translation>Registrazioni</translation>
    </message>
    <message id="ui.earnings.entriesOf">
      <source>Entries of %1</source>
      <translation>Registrazioni di %1</translation>
    </message>
    <message id="ui.earnings.hours">
      <source>Hours</source>
      <translation>Ore</translation>
    </message>
    <message id="ui.earnings.monthFormat">
      <source>MMM yyyy</source>
      <translation>MMM yyyy</translation>
    </message>
    <message id="ui.earnings.noProject">
      <source>No project</source>
      <translation>Nessun progetto</translation>
    </message>
    <message id="ui.earnings.oneOffNote">
      <source>includes %1 charged once</source>
      <translation>include %1 addebitato una volta</translation>
    </message>
    <message id="ui.earnings.pickBar">
      <source>Click a bar to see the entries behind it.</source>
      <translation>Fai clic su una barra per vedere le registrazioni che la compongono.</translation>
    </message>
    <message id="ui.earnings.rate">
      <source>Per hour</source>
      <translation>All'ora</translation>
    </message>
    <message id="ui.earnings.title">
      <source>Earnings</source>
      <translation>Guadagni</translation>
    </message>
    <message id="ui.earnings.unbilled">
      <source>Unbilled</source>
      <translation>Da fatturare</translation>
    </message>
    <message id="ui.entries.billed">
      <source>Billed</source>
      <translation>Fatturata</translation>
    </message>
    <message id="ui.entries.delete">
      <source>Delete this entry</source>
      <translation>Elimina questa voce</translation>
    </message>
    <message id="ui.entries.deleteBody">
      <source>The task's total goes down by its length.</source>
      <translation>Il totale dell’attività diminuirà della sua durata.</translation>
    </message>
    <message id="ui.entries.deleteTitle">
      <source>Delete this time entry?</source>
      <translation>Eliminare questa voce di tempo?</translation>
    </message>
    <message id="ui.entries.empty">
      <source>No time yet. Press Space to start the timer, or log minutes by hand.</source>
      <translation>Ancora nessun tempo registrato. Premi Spazio per avviare il timer o registra i minuti a mano.</translation>
    </message>
    <message id="ui.entries.end">
      <source>End</source>
      <translation>Fine</translation>
    </message>
    <message id="ui.entries.invalid">
      <source>Use the form 2026-03-01 09:30, with the end after the start.</source>
      <translation>Usa il formato 2026-03-01 09:30, con la fine successiva all’inizio.</translation>
    </message>
    <message id="ui.entries.length">
      <source>Minutes</source>
      <translation>Minuti</translation>
    </message>
    <message id="ui.entries.log">
      <source>Log</source>
      <translation>Registra</translation>
    </message>
    <message id="ui.entries.minutes">
      <source>Minutes worked</source>
      <translation>Minuti lavorati</translation>
    </message>
    <message id="ui.entries.minutesInvalid">
      <source>Enter the minutes as a number, such as 45 or 90.</source>
      <translation>Inserisci i minuti come numero, ad esempio 45 o 90.</translation>
    </message>
    <message id="ui.entries.start">
      <source>Start</source>
      <translation>Inizio</translation>
    </message>
    <message id="ui.entries.title">
      <source>Time entries</source>
      <translation>Voci di tempo</translation>
    </message>
    <message id="ui.entries.total">
      <source>Total %1</source>
      <translation>Totale: %1</translation>
    </message>
    <message id="ui.export.action">
      <source>Export for the accountant…</source>
      <translation>Esporta per il commercialista…</translation>
    </message>
    <message id="ui.export.badPeriod">
      <source>Enter both days as YYYY-MM-DD, the first not after the last.</source>
      <translation>Inserisci entrambi i giorni come AAAA-MM-GG, il primo non dopo l’ultimo.</translation>
    </message>
    <message id="ui.export.body">
      <source>A CSV file that spreadsheets and bookkeeping programs read: one row per time entry or invoice of the period.</source>
      <translation>Un file CSV che fogli di calcolo e programmi di contabilità sanno leggere: una riga per registrazione di tempo o fattura del periodo.</translation>
    </message>
    <message id="ui.export.close">
      <source>Close</source>
      <translation>Chiudi</translation>
    </message>
    <message id="ui.export.csvFilter">
      <source>CSV files (*.csv)</source>
      <translation>File CSV (*.csv)</translation>
    </message>
    <message id="ui.export.entries">
      <source>Time entries</source>
      <translation>Registrazioni di tempo</translation>
    </message>
    <message id="ui.export.fileTitle">
      <source>Save the CSV file</source>
      <translation>Salva il file CSV</translation>
    </message>
    <message id="ui.export.from">
      <source>From</source>
      <translation>Dal</translation>
    </message>
    <message id="ui.export.invoices">
      <source>Invoices</source>
      <translation>Fatture</translation>
    </message>
    <message id="ui.export.notReady">
      <source>Choose a period and a file first.</source>
      <translation>Scegli prima un periodo e un file.</translation>
    </message>
    <message id="ui.export.save">
      <source>Save…</source>
      <translation>Salva…</translation>
    </message>
    <message id="ui.export.saved">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 salvato (righe: %2).</translation>
    </message>
    <message id="ui.export.saving">
      <source>Saving…</source>
      <translation>Salvataggio…</translation>
    </message>
    <message id="ui.export.title">
      <source>Export for the accountant</source>
      <translation>Esporta per il commercialista</translation>
    </message>
    <message id="ui.export.to">
      <source>To</source>
      <translation>Al</translation>
    </message>
    <message id="ui.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message id="ui.floating.hide">
      <source>Hide the floating timer</source>
      <translation>Nascondi il timer flottante</translation>
    </message>
    <message id="ui.floating.title">
      <source>Morvane timer</source>
      <translation>Timer di Morvane</translation>
    </message>
    <message id="ui.idle.body">
      <source>The timer of “%1” kept running while you were away from %2 to %3. What should happen to that time?</source>
      <translation>Il timer di «%1» ha continuato a girare mentre eri assente, dalle %2 alle %3. Cosa vuoi fare di quel tempo?</translation>
    </message>
    <message id="ui.idle.discard">
      <source>Discard it and stop the timer</source>
      <translation>Scartalo e ferma il timer</translation>
    </message>
    <message id="ui.idle.discardContinue">
      <source>Discard it and go on</source>
      <translation>Scartalo e continua</translation>
    </message>
    <message id="ui.idle.keep">
      <source>Keep the time</source>
      <translation>Tieni il tempo</translation>
    </message>
    <message id="ui.idle.notification">
      <source>The timer of “%1” ran while you were away from %2 to %3.</source>
      <translation>Il timer di «%1» è rimasto attivo mentre eri assente, dalle %2 alle %3.</translation>
    </message>
    <message id="ui.idle.title">
      <source>You were away</source>
      <translation>Eri assente</translation>
    </message>
    <message id="ui.inspector.addNote">
      <source>Add a note</source>
      <translation>Aggiungi una nota</translation>
    </message>
    <message id="ui.inspector.addSubtask">
      <source>Add a subtask</source>
      <translation>Aggiungi una sottoattività</translation>
    </message>
    <message id="ui.inspector.assignees">
      <source>Assigned to</source>
      <translation>Assegnata a</translation>
    </message>
    <message id="ui.inspector.category">
      <source>Category</source>
      <translation>Categoria</translation>
    </message>
    <message id="ui.inspector.describe">
      <source>Notes for yourself or the client</source>
      <translation>Note per te o per il cliente</translation>
    </message>
    <message id="ui.inspector.description">
      <source>Description</source>
      <translation>Descrizione</translation>
    </message>
    <message id="ui.inspector.due">
      <source>Due</source>
      <translation>Scadenza</translation>
    </message>
    <message id="ui.inspector.dueDate">
      <source>Due date</source>
      <translation>Data di scadenza</translation>
    </message>
    <message id="ui.inspector.none">
      <source>No task selected</source>
      <translation>Nessuna attività selezionata</translation>
    </message>
    <message id="ui.inspector.noneHint">
      <source>Choose a task to see its details and time entries.</source>
      <translation>Scegli un’attività per vederne i dettagli e le voci di tempo.</translation>
    </message>
    <message id="ui.inspector.notes">
      <source>Notes</source>
      <translation>Note</translation>
    </message>
    <message id="ui.inspector.ownPrice">
      <source>This task has its own price.</source>
      <translation>Questa attività ha un prezzo proprio.</translation>
    </message>
    <message id="ui.inspector.price">
      <source>Price</source>
      <translation>Prezzo</translation>
    </message>
    <message id="ui.inspector.priority">
      <source>Priority</source>
      <translation>Priorità</translation>
    </message>
    <message id="ui.inspector.status">
      <source>Status</source>
      <translation>Stato</translation>
    </message>
    <message id="ui.inspector.subtasks">
      <source>Subtasks</source>
      <translation>Sottoattività</translation>
    </message>
    <message id="ui.inspector.title">
      <source>Task title</source>
      <translation>Titolo dell’attività</translation>
    </message>
    <message id="ui.invoices.allStatuses">
      <source>Every status</source>
      <translation>Tutti gli stati</translation>
    </message>
    <message id="ui.invoices.allYears">
      <source>Every year</source>
      <translation>Tutti gli anni</translation>
    </message>
    <message id="ui.invoices.client">
      <source>Client</source>
      <translation>Cliente</translation>
    </message>
    <message id="ui.invoices.deleteBody">
      <source>The invoice and its PDF leave your list for good, and its hours become unbilled again. To keep a record, void it instead.</source>
      <translation>La fattura e il suo PDF escono per sempre dal tuo elenco e le sue ore tornano da fatturare. Per conservarne traccia, annullala invece.</translation>
    </message>
    <message id="ui.invoices.deleteTitle">
      <source>Delete invoice %1?</source>
      <translation>Eliminare la fattura %1?</translation>
    </message>
    <message id="ui.invoices.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Fattura %1 eliminata; le sue ore tornano da fatturare.</translation>
    </message>
    <message id="ui.invoices.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>Impossibile scaricare il PDF: %1</translation>
    </message>
    <message id="ui.invoices.due">
      <source>Due</source>
      <translation>Scadenza</translation>
    </message>
    <message id="ui.invoices.emptyHint">
      <source>Invoices you write from your tracked time appear here, with what is still open and what is overdue.</source>
      <translation>Qui compaiono le fatture che emetti dal tempo registrato, con quanto resta da incassare e quanto è scaduto.</translation>
    </message>
    <message id="ui.invoices.emptyTitle">
      <source>No invoices yet</source>
      <translation>Ancora nessuna fattura</translation>
    </message>
    <message id="ui.invoices.fileTitle">
      <source>Save the invoice PDF</source>
      <translation>Salva il PDF della fattura</translation>
    </message>
    <message id="ui.invoices.foreignLink">
      <source>The link to the PDF does not lead to your server, so it was not opened.</source>
      <translation>Il link al PDF non porta al tuo server, quindi non è stato aperto.</translation>
    </message>
    <message id="ui.invoices.issued">
      <source>Issued</source>
      <translation>Emessa</translation>
    </message>
    <message id="ui.invoices.net">
      <source>Net</source>
      <translation>Imponibile</translation>
    </message>
    <message id="ui.invoices.noMatch">
      <source>No invoice matches these filters</source>
      <translation>Nessuna fattura corrisponde a questi filtri</translation>
    </message>
    <message id="ui.invoices.noMatchHint">
      <source>Choose another status or year.</source>
      <translation>Scegli un altro stato o un altro anno.</translation>
    </message>
    <message id="ui.invoices.noViewer">
      <source>No program to show PDF files was found. Save the PDF and open it from there.</source>
      <translation>Non è stato trovato alcun programma per visualizzare i PDF. Salva il PDF e aprilo da lì.</translation>
    </message>
    <message id="ui.invoices.number">
      <source>Number</source>
      <translation>Numero</translation>
    </message>
    <message id="ui.invoices.open">
      <source>Still open</source>
      <translation>Ancora da incassare</translation>
    </message>
    <message id="ui.invoices.openPdf">
      <source>Open PDF</source>
      <translation>Apri PDF</translation>
    </message>
    <message id="ui.invoices.overdue">
      <source>Overdue</source>
      <translation>Scaduto</translation>
    </message>
    <message id="ui.invoices.pdfFilter">
      <source>PDF files (*.pdf)</source>
      <translation>File PDF (*.pdf)</translation>
    </message>
    <message id="ui.invoices.redraw">
      <source>Draw again…</source>
      <translation>Rigenera…</translation>
    </message>
    <message id="ui.invoices.redrawBody">
      <source>This replaces the stored PDF of this invoice with a new one, built from the invoice lines and the current details of its template. Continue?</source>
      <translation>Il PDF salvato di questa fattura verrà sostituito da uno nuovo, creato dalle righe della fattura e dai dati attuali del suo modello. Continuare?</translation>
    </message>
    <message id="ui.invoices.redrawConfirm">
      <source>Replace PDF</source>
      <translation>Sostituisci PDF</translation>
    </message>
    <message id="ui.invoices.redrawFailed">
      <source>The invoice could not be drawn: %1</source>
      <translation>Impossibile creare la fattura: %1</translation>
    </message>
    <message id="ui.invoices.redrawTitle">
      <source>Draw invoice %1 again?</source>
      <translation>Rigenerare la fattura %1?</translation>
    </message>
    <message id="ui.invoices.redrawn">
      <source>Invoice %1 was drawn again with your current details.</source>
      <translation>La fattura %1 è stata rigenerata con i tuoi dati attuali.</translation>
    </message>
    <message id="ui.invoices.savePdf">
      <source>Save PDF…</source>
      <translation>Salva PDF…</translation>
    </message>
    <message id="ui.invoices.saved">
      <source>Saved to %1</source>
      <translation>Salvato in %1</translation>
    </message>
    <message id="ui.invoices.status">
      <source>Status</source>
      <translation>Stato</translation>
    </message>
    <message id="ui.invoices.status.draft">
      <source>Draft</source>
      <translation>Bozza</translation>
    </message>
    <message id="ui.invoices.status.paid">
      <source>Paid</source>
      <translation>Pagata</translation>
    </message>
    <message id="ui.invoices.status.sent">
      <source>Sent</source>
      <translation>Inviata</translation>
    </message>
    <message id="ui.invoices.status.void">
      <source>Void</source>
      <translation>Annullata</translation>
    </message>
    <message id="ui.invoices.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>La fattura %1 ora è: %2.</translation>
    </message>
    <message id="ui.invoices.statusFilter">
      <source>Status</source>
      <translation>Stato</translation>
    </message>
    <message id="ui.invoices.title">
      <source>Invoices</source>
      <translation>Fatture</translation>
    </message>
    <message id="ui.invoices.total">
      <source>Total</source>
      <translation>Totale</translation>
    </message>
    <message id="ui.invoices.vat">
      <source>VAT</source>
      <translation>IVA</translation>
    </message>
    <message id="ui.invoices.void">
      <source>Void…</source>
      <translation>Annulla…</translation>
    </message>
    <message id="ui.invoices.voidBody">
      <source>A void invoice stays void: it can never be sent, paid or changed again. Its hours become unbilled, so you can invoice them anew.</source>
      <translation>Una fattura annullata resta annullata: non potrà più essere inviata, pagata o modificata. Le sue ore tornano da fatturare, così puoi fatturarle di nuovo.</translation>
    </message>
    <message id="ui.invoices.voidConfirm">
      <source>Void</source>
      <translation>Annulla fattura</translation>
    </message>
    <message id="ui.invoices.voidFinal">
      <source>Void — final, it cannot be changed again</source>
      <translation>Annullata — definitivo, non si può più modificare</translation>
    </message>
    <message id="ui.invoices.voidTitle">
      <source>Void invoice %1?</source>
      <translation>Annullare la fattura %1?</translation>
    </message>
    <message id="ui.invoices.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>La fattura %1 è annullata; le sue ore tornano da fatturare.</translation>
    </message>
    <message id="ui.invoices.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message id="ui.invoices.yearFilter">
      <source>Year</source>
      <translation>Anno</translation>
    </message>
    <message id="ui.onboarding.currency">
      <source>Currency</source>
      <translation>Valuta</translation>
    </message>
    <message id="ui.onboarding.language">
      <source>Language</source>
      <translation>Lingua</translation>
    </message>
    <message id="ui.onboarding.name">
      <source>Your name</source>
      <translation>Il tuo nome</translation>
    </message>
    <message id="ui.onboarding.rate">
      <source>Default hourly rate</source>
      <translation>Tariffa oraria predefinita</translation>
    </message>
    <message id="ui.onboarding.rateInvalid">
      <source>Enter an amount, such as 85 or 72.50.</source>
      <translation>Inserisci un importo, ad esempio 85 o 72,50.</translation>
    </message>
    <message id="ui.onboarding.timeZone">
      <source>Time zone</source>
      <translation>Fuso orario</translation>
    </message>
    <message id="ui.palette.action">
      <source>Action</source>
      <translation>Azione</translation>
    </message>
    <message id="ui.palette.ai">
      <source>AI</source>
      <translation>IA</translation>
    </message>
    <message id="ui.palette.capture">
      <source>Quick add “%1”</source>
      <translation>Aggiunta rapida «%1»</translation>
    </message>
    <message id="ui.palette.none">
      <source>Nothing matches.</source>
      <translation>Nessun risultato.</translation>
    </message>
    <message id="ui.palette.placeholder">
      <source>Search projects, tasks and actions</source>
      <translation>Cerca progetti, attività e azioni</translation>
    </message>
    <message id="ui.palette.project">
      <source>Project</source>
      <translation>Progetto</translation>
    </message>
    <message id="ui.palette.task">
      <source>Task</source>
      <translation>Attività</translation>
    </message>
    <message id="ui.prices.edit">
      <source>Change the price…</source>
      <translation>Cambia il prezzo…</translation>
    </message>
    <message id="ui.prices.invalid">
      <source>A field in red cannot be read as a number. Correct it to save.</source>
      <translation>Un campo in rosso non si legge come numero. Correggilo per salvare.</translation>
    </message>
    <message id="ui.prices.project">
      <source>Price…</source>
      <translation>Prezzo…</translation>
    </message>
    <message id="ui.priority.high">
      <source>High</source>
      <translation>Alta</translation>
    </message>
    <message id="ui.priority.low">
      <source>Low</source>
      <translation>Bassa</translation>
    </message>
    <message id="ui.priority.medium">
      <source>Medium</source>
      <translation>Media</translation>
    </message>
    <message id="ui.projects.actions">
      <source>Project actions</source>
      <translation>Azioni sul progetto</translation>
    </message>
    <message id="ui.projects.archive">
      <source>Archive</source>
      <translation>Archivia</translation>
    </message>
    <message id="ui.projects.delete">
      <source>Delete project…</source>
      <translation>Elimina progetto…</translation>
    </message>
    <message id="ui.projects.deleteBody">
      <source>Its tasks and their time entries are deleted too. This cannot be undone.</source>
      <translation>Verranno eliminate anche le sue attività e le relative voci di tempo. L’operazione non può essere annullata.</translation>
    </message>
    <message id="ui.projects.deleteTitle">
      <source>Delete %1?</source>
      <translation>Eliminare %1?</translation>
    </message>
    <message id="ui.projects.describe">
      <source>Add a description</source>
      <translation>Aggiungi una descrizione</translation>
    </message>
    <message id="ui.projects.invoice">
      <source>Create invoice…</source>
      <translation>Crea fattura…</translation>
    </message>
    <message id="ui.projects.markActive">
      <source>Mark as active</source>
      <translation>Segna come attivo</translation>
    </message>
    <message id="ui.projects.markCompleted">
      <source>Mark as completed</source>
      <translation>Segna come completato</translation>
    </message>
    <message id="ui.projects.name">
      <source>Project name</source>
      <translation>Nome del progetto</translation>
    </message>
    <message id="ui.projects.notShared">
      <source>Not shared</source>
      <translation>Non condiviso</translation>
    </message>
    <message id="ui.projects.share">
      <source>Share with a team</source>
      <translation>Condividi con un team</translation>
    </message>
    <message id="ui.projects.status.active">
      <source>Active</source>
      <translation>Attivo</translation>
    </message>
    <message id="ui.projects.status.archived">
      <source>Archived</source>
      <translation>Archiviato</translation>
    </message>
    <message id="ui.projects.status.completed">
      <source>Completed</source>
      <translation>Completato</translation>
    </message>
    <message id="ui.projects.viewOnly">
      <source>View only</source>
      <translation>Sola lettura</translation>
    </message>
    <message id="ui.reminder.body">
      <source>Start a timer so that the work you are doing now is counted.</source>
      <translation>Avvia un timer perché il lavoro che stai facendo ora venga conteggiato.</translation>
    </message>
    <message id="ui.reminder.title">
      <source>No timer is running</source>
      <translation>Nessun timer in corso</translation>
    </message>
    <message id="ui.sessions.autoTrack">
      <source>Auto-track Claude sessions</source>
      <translation>Registra automaticamente le sessioni Claude</translation>
    </message>
    <message id="ui.sessions.burstLine">
      <source>%1 · %2 prompts</source>
      <translation>%1 · %2 richieste</translation>
    </message>
    <message id="ui.sessions.burstLineOne">
      <source>%1 · 1 prompt</source>
      <translation>%1 · 1 richiesta</translation>
    </message>
    <message id="ui.sessions.commit">
      <source>Log to project</source>
      <translation>Registra nel progetto</translation>
    </message>
    <message id="ui.sessions.earlier">
      <source>Earlier</source>
      <translation>Prima</translation>
    </message>
    <message id="ui.sessions.emptyHint">
      <source>Run a claude session in any folder on this computer (Claude Code, the command line, anything that writes to ~/.claude/projects/). Then press Rescan. Sessions from the last 30 days are picked up.</source>
      <translation>Avvia una sessione claude in una cartella qualsiasi di questo computer (Claude Code, la riga di comando, tutto ciò che scrive in ~/.claude/projects/). Poi premi Scansiona di nuovo. Vengono lette le sessioni degli ultimi 30 giorni.</translation>
    </message>
    <message id="ui.sessions.emptyTitle">
      <source>No Claude sessions parsed yet</source>
      <translation>Nessuna sessione Claude letta finora</translation>
    </message>
    <message id="ui.sessions.err.createProject">
      <source>Create project failed: %1</source>
      <translation>Creazione del progetto non riuscita: %1</translation>
    </message>
    <message id="ui.sessions.explainMapping">
      <source>Sessions are tied to their working directory. You map each working dir to one of your projects once; from then on every new conversation in that repo logs automatically. Idle gaps longer than 5 minutes are excluded so an overnight pause does not bill 8 hours.</source>
      <translation>Le sessioni sono legate alla loro cartella di lavoro. Colleghi ogni cartella una volta a uno dei tuoi progetti; da lì ogni nuova conversazione in quel repository viene registrata da sola. Le pause oltre i 5 minuti sono escluse, così una notte non fattura 8 ore.</translation>
    </message>
    <message id="ui.sessions.explainPrefix">
      <source>Resulting tasks are prefixed [AI] so you can tell a client exactly what part of the work was AI-assisted.</source>
      <translation>Le attività così create iniziano con [AI], così puoi dire a un cliente quale parte del lavoro è stata fatta con l’IA.</translation>
    </message>
    <message id="ui.sessions.explainScan">
      <source>Every minute Morvane scans your local Claude Code sessions (~/.claude/projects/) and turns each one into a billable time entry on the matching Morvane project.</source>
      <translation>Ogni minuto Morvane analizza le sessioni locali di Claude Code (~/.claude/projects/) e trasforma ciascuna in tempo fatturabile nel progetto Morvane corrispondente.</translation>
    </message>
    <message id="ui.sessions.fewer">
      <source>Show fewer</source>
      <translation>Mostra meno</translation>
    </message>
    <message id="ui.sessions.folderProject">
      <source>Auto-created for Claude sessions in %1</source>
      <translation>Creato automaticamente per le sessioni Claude in %1</translation>
    </message>
    <message id="ui.sessions.idleGap">
      <source>Idle gap (minutes)</source>
      <translation>Soglia di inattività (minuti)</translation>
    </message>
    <message id="ui.sessions.idleGapHelp">
      <source>Gaps longer than this between messages are treated as idle and excluded. 15 min covers most typing pauses.</source>
      <translation>Le pause più lunghe tra i messaggi contano come inattività e sono escluse. 15 min coprono quasi tutte le pause di scrittura.</translation>
    </message>
    <message id="ui.sessions.ignore">
      <source>Ignore</source>
      <translation>Ignora</translation>
    </message>
    <message id="ui.sessions.lastWeek">
      <source>Last week</source>
      <translation>La settimana scorsa</translation>
    </message>
    <message id="ui.sessions.link">
      <source>Link to a project…</source>
      <translation>Collega a un progetto…</translation>
    </message>
    <message id="ui.sessions.list">
      <source>Sessions</source>
      <translation>Sessioni</translation>
    </message>
    <message id="ui.sessions.loading">
      <source>Reading your sessions…</source>
      <translation>Lettura delle sessioni…</translation>
    </message>
    <message id="ui.sessions.logHelp">
      <source>Log this session to a project, split into %1 tasks by natural breaks</source>
      <translation>Registra questa sessione in un progetto, divisa in %1 attività alle pause naturali</translation>
    </message>
    <message id="ui.sessions.logTo">
      <source>Log to…</source>
      <translation>Registra in…</translation>
    </message>
    <message id="ui.sessions.logged">
      <source>Logged %1 of %2 work bursts.</source>
      <translation>Registrati %1 blocchi di lavoro su %2.</translation>
    </message>
    <message id="ui.sessions.loggedChip">
      <source>Logged</source>
      <translation>Registrata</translation>
    </message>
    <message id="ui.sessions.manyTasks">
      <source>%1 tasks</source>
      <translation>%1 attività</translation>
    </message>
    <message id="ui.sessions.more">
      <source>Show all %1 sessions</source>
      <translation>Mostra tutte le %1 sessioni</translation>
    </message>
    <message id="ui.sessions.newProject">
      <source>Create new project named "%1"</source>
      <translation>Crea il progetto "%1"</translation>
    </message>
    <message id="ui.sessions.noScan">
      <source>No scan yet.</source>
      <translation>Nessuna scansione finora.</translation>
    </message>
    <message id="ui.sessions.notLinked">
      <source>Not linked yet</source>
      <translation>Non ancora collegata</translation>
    </message>
    <message id="ui.sessions.oneTask">
      <source>1 task</source>
      <translation>1 attività</translation>
    </message>
    <message id="ui.sessions.pendingIntro">
      <source>These directories have Claude sessions waiting to be logged. Pick a Morvane project (or Ignore) for each.</source>
      <translation>Queste cartelle hanno sessioni Claude in attesa di registrazione. Scegli un progetto Morvane (o Ignora) per ciascuna.</translation>
    </message>
    <message id="ui.sessions.pendingLine">
      <source>%1 · %2 sessions · %3 active</source>
      <translation>%1 · %2 sessioni · %3 attivo</translation>
    </message>
    <message id="ui.sessions.previewTitle">
      <source>Review and log to: %1 (%2)</source>
      <translation>Controlla e registra in: %1 (%2)</translation>
    </message>
    <message id="ui.sessions.reimport">
      <source>Re-import</source>
      <translation>Reimporta</translation>
    </message>
    <message id="ui.sessions.reimportAll">
      <source>Re-import all sessions</source>
      <translation>Reimporta tutte le sessioni</translation>
    </message>
    <message id="ui.sessions.reimportAllBody">
      <source>Every session is logged again at the next scan. Tasks made earlier stay; delete them yourself if you do not want them twice.</source>
      <translation>Ogni sessione verrà registrata di nuovo alla prossima scansione. Le attività create prima restano; eliminale tu se non le vuoi doppie.</translation>
    </message>
    <message id="ui.sessions.reimportAllTitle">
      <source>Re-import all sessions?</source>
      <translation>Reimportare tutte le sessioni?</translation>
    </message>
    <message id="ui.sessions.reimportHelp">
      <source>Re-import this session (forget previous log)</source>
      <translation>Reimporta questa sessione (dimentica la registrazione precedente)</translation>
    </message>
    <message id="ui.sessions.rescan">
      <source>Rescan</source>
      <translation>Scansiona di nuovo</translation>
    </message>
    <message id="ui.sessions.result">
      <source>Last scan %1: %2 sessions found, %3 work bursts logged (%4), %5 sessions waiting for a project.</source>
      <translation>Ultima scansione %1: %2 sessioni trovate, %3 blocchi di lavoro registrati (%4), %5 sessioni in attesa di un progetto.</translation>
    </message>
    <message id="ui.sessions.scanNow">
      <source>Scan now</source>
      <translation>Scansiona ora</translation>
    </message>
    <message id="ui.sessions.sessionLine">
      <source>%1 · %2 active · %3 bursts</source>
      <translation>%1 · %2 attivo · %3 blocchi</translation>
    </message>
    <message id="ui.sessions.sessionLineOne">
      <source>%1 · %2 active</source>
      <translation>%1 · %2 attivo</translation>
    </message>
    <message id="ui.sessions.sessionProject">
      <source>Auto-created for Claude session %1</source>
      <translation>Creato automaticamente per la sessione Claude %1</translation>
    </message>
    <message id="ui.sessions.thisWeek">
      <source>Earlier this week</source>
      <translation>Prima, questa settimana</translation>
    </message>
    <message id="ui.sessions.title">
      <source>AI sessions</source>
      <translation>Sessioni IA</translation>
    </message>
    <message id="ui.sessions.today">
      <source>Today</source>
      <translation>Oggi</translation>
    </message>
    <message id="ui.sessions.tracking">
      <source>Tracking</source>
      <translation>Monitoraggio</translation>
    </message>
    <message id="ui.sessions.untitled">
      <source>Claude session</source>
      <translation>Sessione Claude</translation>
    </message>
    <message id="ui.sessions.yesterday">
      <source>Yesterday</source>
      <translation>Ieri</translation>
    </message>
    <message id="ui.settings.account">
      <source>Account</source>
      <translation>Account</translation>
    </message>
    <message id="ui.settings.ai">
      <source>AI</source>
      <translation>IA</translation>
    </message>
    <message id="ui.settings.appearance">
      <source>Appearance</source>
      <translation>Aspetto</translation>
    </message>
    <message id="ui.settings.autostart">
      <source>Start Morvane when I log in</source>
      <translation>Avvia Morvane all’accesso</translation>
    </message>
    <message id="ui.settings.backend">
      <source>Backend</source>
      <translation>Server</translation>
    </message>
    <message id="ui.settings.backend.apply">
      <source>Use this backend</source>
      <translation>Usa questo server</translation>
    </message>
    <message id="ui.settings.backend.invalid">
      <source>Enter the server's https address and its public key.</source>
      <translation>Inserisci l’indirizzo https del server e la sua chiave pubblica.</translation>
    </message>
    <message id="ui.settings.backend.local">
      <source>This computer (private, nothing to set up)</source>
      <translation>Questo computer (privato, niente da configurare)</translation>
    </message>
    <message id="ui.settings.backend.remote">
      <source>A shared server (for teams and several computers)</source>
      <translation>Un server condiviso (per team e più computer)</translation>
    </message>
    <message id="ui.settings.deleteAccount">
      <source>Delete my account</source>
      <translation>Elimina il mio account</translation>
    </message>
    <message id="ui.settings.deleteConfirm">
      <source>Your e-mail address, to confirm</source>
      <translation>Il tuo indirizzo e-mail, per conferma</translation>
    </message>
    <message id="ui.settings.deleteHint">
      <source>Deleting your account removes your projects, tasks, time and invoices from the server for good. Type your e-mail address to confirm.</source>
      <translation>Eliminando l’account cancelli per sempre dal server progetti, attività, tempo e fatture. Digita il tuo indirizzo e-mail per confermare.</translation>
    </message>
    <message id="ui.settings.endOfDay">
      <source>Stop the timer at the end of the day</source>
      <translation>Ferma il timer a fine giornata</translation>
    </message>
    <message id="ui.settings.every">
      <source>every (minutes)</source>
      <translation>ogni (minuti)</translation>
    </message>
    <message id="ui.settings.from">
      <source>From</source>
      <translation>Dalle</translation>
    </message>
    <message id="ui.settings.idleAfter">
      <source>Ask about idle time after (minutes)</source>
      <translation>Chiedi del tempo di inattività dopo (minuti)</translation>
    </message>
    <message id="ui.settings.local.folder">
      <source>Data folder</source>
      <translation>Cartella dei dati</translation>
    </message>
    <message id="ui.settings.local.running">
      <source>Running</source>
      <translation>In esecuzione</translation>
    </message>
    <message id="ui.settings.local.size">
      <source>Size</source>
      <translation>Dimensione</translation>
    </message>
    <message id="ui.settings.local.start">
      <source>Start</source>
      <translation>Avvia</translation>
    </message>
    <message id="ui.settings.local.starting">
      <source>Starting</source>
      <translation>Avvio in corso</translation>
    </message>
    <message id="ui.settings.local.state">
      <source>State</source>
      <translation>Stato</translation>
    </message>
    <message id="ui.settings.local.stop">
      <source>Stop</source>
      <translation>Ferma</translation>
    </message>
    <message id="ui.settings.local.stopped">
      <source>Stopped</source>
      <translation>Fermo</translation>
    </message>
    <message id="ui.settings.longestRun">
      <source>Longest run (minutes, 0 for none)</source>
      <translation>Durata massima (minuti, 0 per nessuna)</translation>
    </message>
    <message id="ui.settings.looks">
      <source>Language and appearance</source>
      <translation>Lingua e aspetto</translation>
    </message>
    <message id="ui.settings.profile">
      <source>Profile</source>
      <translation>Profilo</translation>
    </message>
    <message id="ui.settings.reminders">
      <source>Remind me when no timer runs during working hours</source>
      <translation>Ricordamelo se nessun timer è attivo durante l’orario di lavoro</translation>
    </message>
    <message id="ui.settings.remote.key">
      <source>Public key</source>
      <translation>Chiave pubblica</translation>
    </message>
    <message id="ui.settings.remote.url">
      <source>Address</source>
      <translation>Indirizzo</translation>
    </message>
    <message id="ui.settings.saved">
      <source>Saved.</source>
      <translation>Salvato.</translation>
    </message>
    <message id="ui.settings.scheme.dark">
      <source>Dark</source>
      <translation>Scuro</translation>
    </message>
    <message id="ui.settings.scheme.light">
      <source>Light</source>
      <translation>Chiaro</translation>
    </message>
    <message id="ui.settings.scheme.system">
      <source>As the desktop</source>
      <translation>Come il desktop</translation>
    </message>
    <message id="ui.settings.signedInAs">
      <source>Signed in as %1</source>
      <translation>Accesso come %1</translation>
    </message>
    <message id="ui.settings.switchTo">
      <source>Switch to %1</source>
      <translation>Passa a %1</translation>
    </message>
    <message id="ui.settings.timer">
      <source>Timer</source>
      <translation>Timer</translation>
    </message>
    <message id="ui.settings.to">
      <source>to</source>
      <translation>alle</translation>
    </message>
    <message id="ui.sidebar.newProjectName">
      <source>New project name</source>
      <translation>Nome del nuovo progetto</translation>
    </message>
    <message id="ui.sidebar.newTeamName">
      <source>New team name</source>
      <translation>Nome del nuovo team</translation>
    </message>
    <message id="ui.sidebar.overview">
      <source>All projects</source>
      <translation>Tutti i progetti</translation>
    </message>
    <message id="ui.sidebar.projects">
      <source>Projects</source>
      <translation>Progetti</translation>
    </message>
    <message id="ui.sidebar.running">
      <source>Timer running</source>
      <translation>Timer in corso</translation>
    </message>
    <message id="ui.sidebar.shared">
      <source>Shared with a team</source>
      <translation>Condivisi con un team</translation>
    </message>
    <message id="ui.sidebar.teams">
      <source>Teams</source>
      <translation>Team</translation>
    </message>
    <message id="ui.startup.backend">
      <source>Starting your local backend…</source>
      <translation>Avvio del server locale…</translation>
    </message>
    <message id="ui.startup.failed">
      <source>Your local backend could not start.</source>
      <translation>Impossibile avviare il server locale.</translation>
    </message>
    <message id="ui.startup.loading">
      <source>Loading your projects…</source>
      <translation>Caricamento dei progetti…</translation>
    </message>
    <message id="ui.status.completed">
      <source>Completed</source>
      <translation>Completata</translation>
    </message>
    <message id="ui.status.in_progress">
      <source>In progress</source>
      <translation>In corso</translation>
    </message>
    <message id="ui.status.not_started">
      <source>Not started</source>
      <translation>Non iniziata</translation>
    </message>
    <message id="ui.style.accent">
      <source>Accent</source>
      <translation>Accento</translation>
    </message>
    <message id="ui.style.address">
      <source>Address</source>
      <translation>Indirizzo</translation>
    </message>
    <message id="ui.style.bank">
      <source>Bank</source>
      <translation>Banca</translation>
    </message>
    <message id="ui.style.banner">
      <source>Banner</source>
      <translation>Fascia</translation>
    </message>
    <message id="ui.style.border">
      <source>Border</source>
      <translation>Bordo</translation>
    </message>
    <message id="ui.style.btw">
      <source>VAT number</source>
      <translation>Partita IVA</translation>
    </message>
    <message id="ui.style.chooseLogo">
      <source>Choose logo…</source>
      <translation>Scegli logo…</translation>
    </message>
    <message id="ui.style.colourAuto">
      <source>auto</source>
      <translation>auto</translation>
    </message>
    <message id="ui.style.company">
      <source>Company</source>
      <translation>Azienda</translation>
    </message>
    <message id="ui.style.customHint">
      <source>An HTML page with {{placeholders}}, a &lt;header&gt; and a &lt;footer&gt;, fixed at 794 × 1123 px. When it cannot be used, invoices are drawn in “Light minimal”.</source>
      <translation>Una pagina HTML con {{segnaposto}}, un &lt;header&gt; e un &lt;footer&gt;, fissata a 794 × 1123 px. Se non è utilizzabile, le fatture usano il design «Chiaro minimale».</translation>
    </message>
    <message id="ui.style.customTitle">
      <source>Your own template</source>
      <translation>Il tuo modello</translation>
    </message>
    <message id="ui.style.days">
      <source>Payment terms in days</source>
      <translation>Termini di pagamento in giorni</translation>
    </message>
    <message id="ui.style.design.aiCustom">
      <source>Your template</source>
      <translation>Il tuo modello</translation>
    </message>
    <message id="ui.style.design.boldDark">
      <source>Bold dark</source>
      <translation>Scuro deciso</translation>
    </message>
    <message id="ui.style.design.editorial">
      <source>Editorial</source>
      <translation>Editoriale</translation>
    </message>
    <message id="ui.style.design.editorialMono">
      <source>Editorial mono</source>
      <translation>Editoriale mono</translation>
    </message>
    <message id="ui.style.design.lightMinimalAccent">
      <source>Light minimal</source>
      <translation>Chiaro minimale</translation>
    </message>
    <message id="ui.style.design.minimalistMono">
      <source>Minimalist mono</source>
      <translation>Minimalista mono</translation>
    </message>
    <message id="ui.style.design.modernRibbon">
      <source>Modern ribbon</source>
      <translation>Nastro moderno</translation>
    </message>
    <message id="ui.style.design.pastelModern">
      <source>Pastel modern</source>
      <translation>Pastello moderno</translation>
    </message>
    <message id="ui.style.design.signatureEditorial">
      <source>Signature</source>
      <translation>Firma</translation>
    </message>
    <message id="ui.style.designs">
      <source>Design</source>
      <translation>Design</translation>
    </message>
    <message id="ui.style.designsHint">
      <source>Every new invoice is drawn in the chosen design. The pictures show a sample invoice in your style.</source>
      <translation>Ogni nuova fattura usa il design scelto. Le immagini mostrano una fattura di esempio nel tuo stile.</translation>
    </message>
    <message id="ui.style.drawing">
      <source>Drawing the designs</source>
      <translation>Disegno dei design</translation>
    </message>
    <message id="ui.style.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.style.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>I termini di pagamento sono un numero intero di giorni da 0 a 365.</translation>
    </message>
    <message id="ui.style.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>L’aliquota IVA è una percentuale da 0 a 100.</translation>
    </message>
    <message id="ui.style.fallsBack">
      <source>%1 Invoices fall back to “Light minimal” until it is fixed.</source>
      <translation>%1 Finché non è corretto, le fatture usano il design «Chiaro minimale».</translation>
    </message>
    <message id="ui.style.fontAuto">
      <source>The design’s own</source>
      <translation>Quello del design</translation>
    </message>
    <message id="ui.style.fontBody">
      <source>Text font</source>
      <translation>Carattere del testo</translation>
    </message>
    <message id="ui.style.fontDisplay">
      <source>Headings font</source>
      <translation>Carattere dei titoli</translation>
    </message>
    <message id="ui.style.footer">
      <source>Footer</source>
      <translation>Piè di pagina</translation>
    </message>
    <message id="ui.style.footerPlaceholder">
      <source>Thank you for your business.</source>
      <translation>Grazie per la fiducia.</translation>
    </message>
    <message id="ui.style.htmlFilter">
      <source>HTML files (*.html *.htm)</source>
      <translation>File HTML (*.html *.htm)</translation>
    </message>
    <message id="ui.style.iban">
      <source>Bank account (IBAN)</source>
      <translation>Conto bancario (IBAN)</translation>
    </message>
    <message id="ui.style.imageFilter">
      <source>Images (*.png *.jpg *.jpeg)</source>
      <translation>Immagini (*.png *.jpg *.jpeg)</translation>
    </message>
    <message id="ui.style.ink">
      <source>Ink</source>
      <translation>Testo</translation>
    </message>
    <message id="ui.style.kvk">
      <source>Chamber of commerce number</source>
      <translation>Numero REA</translation>
    </message>
    <message id="ui.style.logo">
      <source>Logo</source>
      <translation>Logo</translation>
    </message>
    <message id="ui.style.logoDialog">
      <source>Choose a logo</source>
      <translation>Scegli un logo</translation>
    </message>
    <message id="ui.style.logoHint">
      <source>PNG or JPEG, at most 1 MB; wider than 600 px is scaled down.</source>
      <translation>PNG o JPEG, al massimo 1 MB; oltre 600 px di larghezza viene ridotto.</translation>
    </message>
    <message id="ui.style.look">
      <source>Look</source>
      <translation>Aspetto</translation>
    </message>
    <message id="ui.style.madeWith">
      <source>Show “Made with Morvane” in the footer</source>
      <translation>Mostra «Creato con Morvane» nel piè di pagina</translation>
    </message>
    <message id="ui.style.muted">
      <source>Muted</source>
      <translation>Attenuato</translation>
    </message>
    <message id="ui.style.noLogo">
      <source>No logo</source>
      <translation>Nessun logo</translation>
    </message>
    <message id="ui.style.noTemplate">
      <source>No template uploaded: invoices use the design chosen above.</source>
      <translation>Nessun modello caricato: le fatture usano il design scelto sopra.</translation>
    </message>
    <message id="ui.style.palette">
      <source>Palette</source>
      <translation>Tavolozza</translation>
    </message>
    <message id="ui.style.paper">
      <source>Paper</source>
      <translation>Carta</translation>
    </message>
    <message id="ui.style.phone">
      <source>Phone</source>
      <translation>Telefono</translation>
    </message>
    <message id="ui.style.removeLogo">
      <source>Remove logo</source>
      <translation>Rimuovi logo</translation>
    </message>
    <message id="ui.style.removeTemplate">
      <source>Remove template</source>
      <translation>Rimuovi modello</translation>
    </message>
    <message id="ui.style.revert">
      <source>Undo changes</source>
      <translation>Annulla modifiche</translation>
    </message>
    <message id="ui.style.saving">
      <source>Saving…</source>
      <translation>Salvataggio…</translation>
    </message>
    <message id="ui.style.sender">
      <source>Sender</source>
      <translation>Mittente</translation>
    </message>
    <message id="ui.style.templateDialog">
      <source>Choose an HTML template</source>
      <translation>Scegli un modello HTML</translation>
    </message>
    <message id="ui.style.templateNotUsed">
      <source>Not used</source>
      <translation>Non usato</translation>
    </message>
    <message id="ui.style.templateUsed">
      <source>Used</source>
      <translation>In uso</translation>
    </message>
    <message id="ui.style.title">
      <source>Invoice style</source>
      <translation>Stile fattura</translation>
    </message>
    <message id="ui.style.unsaved">
      <source>Unsaved changes</source>
      <translation>Modifiche non salvate</translation>
    </message>
    <message id="ui.style.upload">
      <source>Upload template…</source>
      <translation>Carica modello…</translation>
    </message>
    <message id="ui.style.vatRate">
      <source>Default VAT rate in %</source>
      <translation>Aliquota IVA predefinita in %</translation>
    </message>
    <message id="ui.style.website">
      <source>Website</source>
      <translation>Sito web</translation>
    </message>
    <message id="ui.summary.callFailed">
      <source>The model could not be asked (%1). This text is written from your figures alone.</source>
      <translation>Non è stato possibile interrogare il modello (%1). Questo testo è scritto solo dai tuoi dati.</translation>
    </message>
    <message id="ui.summary.copy">
      <source>Copy</source>
      <translation>Copia</translation>
    </message>
    <message id="ui.summary.draftingStandup">
      <source>Drafting your stand-up…</source>
      <translation>Sto preparando lo stand-up…</translation>
    </message>
    <message id="ui.summary.fixed">
      <source>Written from your figures</source>
      <translation>Scritto dai tuoi dati</translation>
    </message>
    <message id="ui.summary.generate">
      <source>Generate</source>
      <translation>Genera</translation>
    </message>
    <message id="ui.summary.language">
      <source>Language of the text</source>
      <translation>Lingua del testo</translation>
    </message>
    <message id="ui.summary.model">
      <source>Written by the model, checked against your figures</source>
      <translation>Scritto dal modello, verificato con i tuoi dati</translation>
    </message>
    <message id="ui.summary.nothing">
      <source>Nothing was tracked in this period, so there was nothing to put in words.</source>
      <translation>In questo periodo non è stato registrato nulla, quindi non c’era niente da mettere in parole.</translation>
    </message>
    <message id="ui.summary.readFailed">
      <source>Your time could not be read: %1</source>
      <translation>Impossibile leggere il tuo tempo: %1</translation>
    </message>
    <message id="ui.summary.recap">
      <source>Weekly recap</source>
      <translation>Riepilogo settimanale</translation>
    </message>
    <message id="ui.summary.recapHint">
      <source>Press Generate for a short recap of the time you tracked this week.</source>
      <translation>Premi Genera per un breve riepilogo del tempo registrato questa settimana.</translation>
    </message>
    <message id="ui.summary.rejected">
      <source>The model's words did not hold up against your figures (%1). This text is written from your figures alone.</source>
      <translation>Le parole del modello non tornavano con i tuoi dati (%1). Questo testo è scritto solo dai tuoi dati.</translation>
    </message>
    <message id="ui.summary.standup">
      <source>Daily stand-up</source>
      <translation>Stand-up del giorno</translation>
    </message>
    <message id="ui.summary.standupHint">
      <source>Press Generate to draft your stand-up.</source>
      <translation>Premi Genera per preparare lo stand-up.</translation>
    </message>
    <message id="ui.summary.textName">
      <source>Recap or stand-up text</source>
      <translation>Testo del riepilogo o stand-up</translation>
    </message>
    <message id="ui.summary.title">
      <source>Recap and stand-up</source>
      <translation>Riepilogo e stand-up</translation>
    </message>
    <message id="ui.summary.uiLanguage">
      <source>Interface language</source>
      <translation>Lingua dell’interfaccia</translation>
    </message>
    <message id="ui.summary.writingRecap">
      <source>Writing your recap…</source>
      <translation>Sto scrivendo il riepilogo…</translation>
    </message>
    <message id="ui.tasks.add">
      <source>Add a task and press Enter</source>
      <translation>Aggiungi un’attività e premi Enter</translation>
    </message>
    <message id="ui.tasks.bulkDeleteTitle">
      <source>Delete the selected tasks (%1)?</source>
      <translation>Eliminare le attività selezionate (%1)?</translation>
    </message>
    <message id="ui.tasks.check">
      <source>Select %1</source>
      <translation>Seleziona %1</translation>
    </message>
    <message id="ui.tasks.clearSelection">
      <source>Clear</source>
      <translation>Deseleziona</translation>
    </message>
    <message id="ui.tasks.deleteBody">
      <source>Its time entries are deleted too.</source>
      <translation>Verranno eliminate anche le sue voci di tempo.</translation>
    </message>
    <message id="ui.tasks.deleteTitle">
      <source>Delete this task?</source>
      <translation>Eliminare questa attività?</translation>
    </message>
    <message id="ui.tasks.dragHandle">
      <source>Drag to reorder</source>
      <translation>Trascina per riordinare</translation>
    </message>
    <message id="ui.tasks.empty">
      <source>No tasks yet.</source>
      <translation>Ancora nessuna attività.</translation>
    </message>
    <message id="ui.tasks.emptyHint">
      <source>Press Ctrl+N to add one.</source>
      <translation>Premi Ctrl+N per aggiungerne una.</translation>
    </message>
    <message id="ui.tasks.filter">
      <source>Filter</source>
      <translation>Filtra</translation>
    </message>
    <message id="ui.tasks.filter.active">
      <source>Open</source>
      <translation>Da fare</translation>
    </message>
    <message id="ui.tasks.filter.all">
      <source>All</source>
      <translation>Tutte</translation>
    </message>
    <message id="ui.tasks.filter.archived">
      <source>Archived</source>
      <translation>Archiviate</translation>
    </message>
    <message id="ui.tasks.filter.done">
      <source>Done</source>
      <translation>Completate</translation>
    </message>
    <message id="ui.tasks.list">
      <source>Tasks</source>
      <translation>Attività</translation>
    </message>
    <message id="ui.tasks.markDone">
      <source>Mark done</source>
      <translation>Completa</translation>
    </message>
    <message id="ui.tasks.moveTo">
      <source>Move to…</source>
      <translation>Sposta in…</translation>
    </message>
    <message id="ui.tasks.needsProject">
      <source>Create a project first: tasks belong to a project.</source>
      <translation>Crea prima un progetto: ogni attività appartiene a un progetto.</translation>
    </message>
    <message id="ui.tasks.noMatch">
      <source>No task matches “%1”.</source>
      <translation>Nessuna attività corrisponde a «%1».</translation>
    </message>
    <message id="ui.tasks.noMatchHint">
      <source>Try fewer letters, or press Esc to clear the search.</source>
      <translation>Prova con meno lettere o premi Esc per cancellare la ricerca.</translation>
    </message>
    <message id="ui.tasks.noProjects">
      <source>No projects yet.</source>
      <translation>Ancora nessun progetto.</translation>
    </message>
    <message id="ui.tasks.noProjectsHint">
      <source>Press Ctrl+Shift+N to create your first project.</source>
      <translation>Premi Ctrl+Shift+N per creare il tuo primo progetto.</translation>
    </message>
    <message id="ui.tasks.reopen">
      <source>Reopen</source>
      <translation>Riapri</translation>
    </message>
    <message id="ui.tasks.search">
      <source>Search</source>
      <translation>Cerca</translation>
    </message>
    <message id="ui.tasks.selected">
      <source>%1 selected</source>
      <translation>Selezionate: %1</translation>
    </message>
    <message id="ui.tasks.sort">
      <source>Sort</source>
      <translation>Ordina</translation>
    </message>
    <message id="ui.tasks.sort.alpha">
      <source>Name</source>
      <translation>Nome</translation>
    </message>
    <message id="ui.tasks.sort.createdDesc">
      <source>Newest first</source>
      <translation>Più recenti prima</translation>
    </message>
    <message id="ui.tasks.sort.dueAsc">
      <source>Due date</source>
      <translation>Scadenza</translation>
    </message>
    <message id="ui.tasks.sort.manual">
      <source>Manual order</source>
      <translation>Ordine manuale</translation>
    </message>
    <message id="ui.tasks.sort.priorityDesc">
      <source>Priority</source>
      <translation>Priorità</translation>
    </message>
    <message id="ui.tasks.sort.trackedDesc">
      <source>Most tracked</source>
      <translation>Più tempo registrato</translation>
    </message>
    <message id="ui.teams.accept">
      <source>Accept</source>
      <translation>Accetta</translation>
    </message>
    <message id="ui.teams.decline">
      <source>Decline</source>
      <translation>Rifiuta</translation>
    </message>
    <message id="ui.teams.invitations">
      <source>Invitations for you</source>
      <translation>Inviti per te</translation>
    </message>
    <message id="ui.teams.invite">
      <source>Invite by e-mail</source>
      <translation>Invita via e-mail</translation>
    </message>
    <message id="ui.teams.inviteButton">
      <source>Invite</source>
      <translation>Invita</translation>
    </message>
    <message id="ui.teams.leave">
      <source>Leave the team</source>
      <translation>Lascia il team</translation>
    </message>
    <message id="ui.teams.leaveTitle">
      <source>Leave %1?</source>
      <translation>Lasciare %1?</translation>
    </message>
    <message id="ui.teams.members">
      <source>Members</source>
      <translation>Membri</translation>
    </message>
    <message id="ui.teams.remove">
      <source>Remove</source>
      <translation>Rimuovi</translation>
    </message>
    <message id="ui.teams.removeBody">
      <source>The team's projects are no longer shared with them. Their own time stays theirs.</source>
      <translation>I progetti del team non sono più condivisi con questa persona. Il suo tempo resta suo.</translation>
    </message>
    <message id="ui.teams.removeTitle">
      <source>Remove this member?</source>
      <translation>Rimuovere questo membro?</translation>
    </message>
    <message id="ui.teams.role">
      <source>Role</source>
      <translation>Ruolo</translation>
    </message>
    <message id="ui.teams.role.editor">
      <source>Editor</source>
      <translation>Editor</translation>
    </message>
    <message id="ui.teams.role.owner">
      <source>Owner</source>
      <translation>Proprietario</translation>
    </message>
    <message id="ui.teams.role.viewer">
      <source>Viewer</source>
      <translation>Lettore</translation>
    </message>
    <message id="ui.teams.viewerNote">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Solo il proprietario e gli editor del team possono invitare persone.</translation>
    </message>
    <message id="ui.timeLimit.body">
      <source>“%1” was stopped at %2, and the time until then is logged.</source>
      <translation>«%1» è stato fermato alle %2; il tempo fino ad allora è registrato.</translation>
    </message>
    <message id="ui.timeLimit.endOfDay">
      <source>Timer stopped at the end of your day</source>
      <translation>Timer fermato alla fine della tua giornata</translation>
    </message>
    <message id="ui.timeLimit.longestRun">
      <source>Timer stopped after its longest run</source>
      <translation>Timer fermato dopo la durata massima</translation>
    </message>
    <message id="ui.timer.idle">
      <source>No timer running. Select a task and press Space.</source>
      <translation>Nessun timer in corso. Seleziona un’attività e premi Spazio.</translation>
    </message>
    <message id="ui.timer.name">
      <source>Timer</source>
      <translation>Timer</translation>
    </message>
    <message id="ui.timer.notRunning">
      <source>Not running</source>
      <translation>Fermo</translation>
    </message>
    <message id="ui.timer.offline">
      <source>Offline</source>
      <translation>Offline</translation>
    </message>
    <message id="ui.timer.offlineHint">
      <source>Offline: changes from other devices arrive when the connection is back.</source>
      <translation>Offline: le modifiche dagli altri dispositivi arriveranno quando torna la connessione.</translation>
    </message>
    <message id="ui.timer.start">
      <source>Start</source>
      <translation>Avvia</translation>
    </message>
    <message id="ui.timer.stop">
      <source>Stop</source>
      <translation>Ferma</translation>
    </message>
    <message id="ui.tray.floating">
      <source>Floating timer</source>
      <translation>Timer flottante</translation>
    </message>
    <message id="ui.tray.open">
      <source>Open Morvane</source>
      <translation>Apri Morvane</translation>
    </message>
    <message id="ui.tray.quickAdd">
      <source>Quick add…</source>
      <translation>Aggiunta rapida…</translation>
    </message>
    <message id="ui.tray.quit">
      <source>Quit</source>
      <translation>Esci</translation>
    </message>
    <message id="ui.tray.start">
      <source>Start</source>
      <translation>Avvia</translation>
    </message>
    <message id="ui.tray.stop">
      <source>Stop the timer</source>
      <translation>Ferma il timer</translation>
    </message>
    <message id="ui.trips.allProjects">
      <source>All projects</source>
      <translation>Tutti i progetti</translation>
    </message>
    <message id="ui.trips.billable.all">
      <source>Charged and not</source>
      <translation>Addebitati e no</translation>
    </message>
    <message id="ui.trips.billable.no">
      <source>Private or not charged</source>
      <translation>Privati o non addebitati</translation>
    </message>
    <message id="ui.trips.billable.yes">
      <source>Charged to the client</source>
      <translation>Addebitati al cliente</translation>
    </message>
    <message id="ui.trips.billableFilter">
      <source>Charging</source>
      <translation>Addebito</translation>
    </message>
    <message id="ui.trips.charge">
      <source>Charge to the client</source>
      <translation>Addebita al cliente</translation>
    </message>
    <message id="ui.trips.chip.invoiced">
      <source>Invoiced</source>
      <translation>Fatturato</translation>
    </message>
    <message id="ui.trips.chip.notCharged">
      <source>Not charged</source>
      <translation>Non addebitato</translation>
    </message>
    <message id="ui.trips.chip.private">
      <source>Private</source>
      <translation>Privato</translation>
    </message>
    <message id="ui.trips.chip.toInvoice">
      <source>To invoice</source>
      <translation>Da fatturare</translation>
    </message>
    <message id="ui.trips.clientHit">
      <source>Client</source>
      <translation>Cliente</translation>
    </message>
    <message id="ui.trips.date">
      <source>Date</source>
      <translation>Data</translation>
    </message>
    <message id="ui.trips.edit">
      <source>Edit trip</source>
      <translation>Modifica viaggio</translation>
    </message>
    <message id="ui.trips.emptyHint">
      <source>Trips your phone records while a timer runs show up here. Press Ctrl+N or “New trip” to add one by hand.</source>
      <translation>I viaggi che il telefono registra mentre un timer è attivo compaiono qui. Premi Ctrl+N o «Nuovo viaggio» per aggiungerne uno a mano.</translation>
    </message>
    <message id="ui.trips.emptyTitle">
      <source>No trips yet</source>
      <translation>Ancora nessun viaggio</translation>
    </message>
    <message id="ui.trips.finish">
      <source>Finish trip</source>
      <translation>Termina viaggio</translation>
    </message>
    <message id="ui.trips.from">
      <source>From</source>
      <translation>Da</translation>
    </message>
    <message id="ui.trips.km">
      <source>Kilometres</source>
      <translation>Chilometri</translation>
    </message>
    <message id="ui.trips.kmColumn">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="ui.trips.map.route">
      <source>Road route of the trip</source>
      <translation>Percorso stradale del viaggio</translation>
    </message>
    <message id="ui.trips.map.straight">
      <source>Straight line between the places</source>
      <translation>Linea retta tra i luoghi</translation>
    </message>
    <message id="ui.trips.mode">
      <source>Travelled by</source>
      <translation>Mezzo</translation>
    </message>
    <message id="ui.trips.mode.bike">
      <source>Bike</source>
      <translation>Bici</translation>
    </message>
    <message id="ui.trips.mode.car">
      <source>Car</source>
      <translation>Auto</translation>
    </message>
    <message id="ui.trips.mode.other">
      <source>Other</source>
      <translation>Altro</translation>
    </message>
    <message id="ui.trips.mode.transit">
      <source>Public transport</source>
      <translation>Trasporto pubblico</translation>
    </message>
    <message id="ui.trips.mode.walk">
      <source>On foot</source>
      <translation>A piedi</translation>
    </message>
    <message id="ui.trips.new">
      <source>New trip</source>
      <translation>Nuovo viaggio</translation>
    </message>
    <message id="ui.trips.noMatch">
      <source>No trip matches these filters</source>
      <translation>Nessun viaggio corrisponde a questi filtri</translation>
    </message>
    <message id="ui.trips.period.all">
      <source>All time</source>
      <translation>Sempre</translation>
    </message>
    <message id="ui.trips.period.lastMonth">
      <source>Last month</source>
      <translation>Il mese scorso</translation>
    </message>
    <message id="ui.trips.period.month">
      <source>This month</source>
      <translation>Questo mese</translation>
    </message>
    <message id="ui.trips.period.year">
      <source>This year</source>
      <translation>Quest'anno</translation>
    </message>
    <message id="ui.trips.periodFilter">
      <source>Period</source>
      <translation>Periodo</translation>
    </message>
    <message id="ui.trips.placePlaceholder">
      <source>Address, place or client</source>
      <translation>Indirizzo, luogo o cliente</translation>
    </message>
    <message id="ui.trips.private">
      <source>Private trip</source>
      <translation>Viaggio privato</translation>
    </message>
    <message id="ui.trips.problem.date">
      <source>Enter the day as YYYY-MM-DD.</source>
      <translation>Inserisci il giorno come AAAA-MM-GG (YYYY-MM-DD).</translation>
    </message>
    <message id="ui.trips.problem.from">
      <source>Where did the trip start?</source>
      <translation>Da dove è partito il viaggio?</translation>
    </message>
    <message id="ui.trips.problem.km">
      <source>Enter the kilometres, for example 12.5.</source>
      <translation>Inserisci i chilometri, per esempio 12,5.</translation>
    </message>
    <message id="ui.trips.problem.rate">
      <source>Enter the rate per kilometre as a number, for example 0.23.</source>
      <translation>Inserisci la tariffa al chilometro come numero, per esempio 0,23.</translation>
    </message>
    <message id="ui.trips.problem.to">
      <source>Where did the trip end?</source>
      <translation>Dove è finito il viaggio?</translation>
    </message>
    <message id="ui.trips.progress">
      <source>%1 km · %2 min</source>
      <translation>%1 km · %2 min</translation>
    </message>
    <message id="ui.trips.projectFilter">
      <source>Project</source>
      <translation>Progetto</translation>
    </message>
    <message id="ui.trips.projectHint">
      <source>Trips of this project go on its invoices. Private trips and trips you do not charge never do.</source>
      <translation>I viaggi di questo progetto vanno nelle sue fatture. Quelli privati e non addebitati mai.</translation>
    </message>
    <message id="ui.trips.purpose">
      <source>Purpose</source>
      <translation>Scopo</translation>
    </message>
    <message id="ui.trips.purposePlaceholder">
      <source>For example: meeting at the client, delivery</source>
      <translation>Per esempio: riunione dal cliente, consegna</translation>
    </message>
    <message id="ui.trips.rate">
      <source>Rate per kilometre</source>
      <translation>Tariffa al chilometro</translation>
    </message>
    <message id="ui.trips.rateHint">
      <source>Used for projects that charge travel per kilometre and name no rate of their own.</source>
      <translation>Per i progetti che addebitano i viaggi al chilometro senza una tariffa propria.</translation>
    </message>
    <message id="ui.trips.resultsFrom">
      <source>Results from OpenStreetMap, without KvK numbers.</source>
      <translation>Risultati da OpenStreetMap, senza numeri KvK.</translation>
    </message>
    <message id="ui.trips.routing">
      <source>Finding the road route…</source>
      <translation>Ricerca del percorso stradale…</translation>
    </message>
    <message id="ui.trips.searching">
      <source>Searching…</source>
      <translation>Ricerca…</translation>
    </message>
    <message id="ui.trips.settings">
      <source>Travel settings</source>
      <translation>Impostazioni viaggi</translation>
    </message>
    <message id="ui.trips.start">
      <source>Start a trip now</source>
      <translation>Inizia un viaggio ora</translation>
    </message>
    <message id="ui.trips.summaryMany">
      <source>%1 trips · %2 km</source>
      <translation>%1 viaggi · %2 km</translation>
    </message>
    <message id="ui.trips.summaryOne">
      <source>1 trip · %1 km</source>
      <translation>1 viaggio · %1 km</translation>
    </message>
    <message id="ui.trips.title">
      <source>Trips</source>
      <translation>Viaggi</translation>
    </message>
    <message id="ui.trips.to">
      <source>To</source>
      <translation>A</translation>
    </message>
    <message id="ui.trips.toInvoice">
      <source>%1 to invoice: %2</source>
      <translation>%1 da fatturare: %2</translation>
    </message>
    <message id="ui.trips.trip">
      <source>Trip</source>
      <translation>Viaggio</translation>
    </message>
    <message id="ui.trips.usualMode">
      <source>Usually travel by</source>
      <translation>Di solito viaggia in</translation>
    </message>
    <message id="ui.trips.work">
      <source>Project and task</source>
      <translation>Progetto e attività</translation>
    </message>
    <message id="ui.trips.work.none">
      <source>Choose a project or task</source>
      <translation>Scegli un progetto o un'attività</translation>
    </message>
    <message id="ui.trips.work.wholeProject">
      <source>%1 · Whole project, no task</source>
      <translation>%1 · Intero progetto, nessuna attività</translation>
    </message>
  </context>
</TS>

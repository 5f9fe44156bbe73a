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
    <message id="cli.auth.confirm">
      <source>Check your inbox: confirm %1 with the link in the mail, then sign in.</source>
      <translation>Kijk in je inbox: bevestig %1 met de link in de mail en log daarna in.</translation>
    </message>
    <message id="cli.auth.noAccounts">
      <source>No remembered accounts.</source>
      <translation>Geen onthouden accounts.</translation>
    </message>
    <message id="cli.auth.option.name">
      <source>The name shown on your profile and to your team.</source>
      <translation>De naam op je profiel en voor je team.</translation>
    </message>
    <message id="cli.auth.password">
      <source>Password: </source>
      <translation>Wachtwoord: </translation>
    </message>
    <message id="cli.auth.signedIn">
      <source>Signed in as %1.</source>
      <translation>Ingelogd als %1.</translation>
    </message>
    <message id="cli.auth.signedOut">
      <source>Signed out.</source>
      <translation>Uitgelogd.</translation>
    </message>
    <message id="cli.auth.unknownAccount">
      <source>No remembered account %1. Sign in to it first.</source>
      <translation>Geen onthouden account %1. Log er eerst op in.</translation>
    </message>
    <message id="cli.auth.usage">
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Gebruik: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Registreren, in- en uitloggen, wisselen tussen accounts</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Toon welke backend Morvane gebruikt en waar elke instelling vandaan komt</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Start, stop of toon de lokale backend: server start|stop|status</translation>
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
    <message id="cli.option.json">
      <source>Print the answer as JSON.</source>
      <translation>Toon het antwoord als JSON.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Toon de versie.</translation>
    </message>
    <message id="cli.renderInvoice.design">
      <source>With --render-invoice: the design (%1).</source>
      <translation>Met --render-invoice: het ontwerp (%1).</translation>
    </message>
    <message id="cli.renderInvoice.draft">
      <source>With --render-invoice: an invoice as JSON instead of the sample.</source>
      <translation>Met --render-invoice: een factuur als JSON in plaats van het voorbeeld.</translation>
    </message>
    <message id="cli.renderInvoice.err.both">
      <source>--lines is for the sample invoice; a draft brings its own lines.</source>
      <translation>--lines is voor de voorbeeldfactuur; een concept heeft zijn eigen regels.</translation>
    </message>
    <message id="cli.renderInvoice.err.design">
      <source>Unknown design: %1. Choose one of: %2.</source>
      <translation>Onbekend ontwerp: %1. Kies uit: %2.</translation>
    </message>
    <message id="cli.renderInvoice.err.draft">
      <source>Cannot read the draft %1: %2</source>
      <translation>Kan het concept %1 niet lezen: %2</translation>
    </message>
    <message id="cli.renderInvoice.err.failed">
      <source>Rendering the invoice failed: %1</source>
      <translation>Het maken van de factuur is mislukt: %1</translation>
    </message>
    <message id="cli.renderInvoice.err.lines">
      <source>--lines takes a whole number from 0 to %1.</source>
      <translation>--lines verwacht een geheel getal van 0 tot %1.</translation>
    </message>
    <message id="cli.renderInvoice.err.noGui">
      <source>Rendering an invoice needs the graphical libraries; run it as: morvane --render-invoice</source>
      <translation>Voor het maken van een factuur zijn de grafische bibliotheken nodig; start het als: morvane --render-invoice</translation>
    </message>
    <message id="cli.renderInvoice.err.write">
      <source>Cannot write %1: %2</source>
      <translation>Kan %1 niet schrijven: %2</translation>
    </message>
    <message id="cli.renderInvoice.lines">
      <source>With --render-invoice: the number of lines of the sample invoice.</source>
      <translation>Met --render-invoice: het aantal regels van de voorbeeldfactuur.</translation>
    </message>
    <message id="cli.renderInvoice.option">
      <source>Render an invoice to PDF through the application's own path and report its size.</source>
      <translation>Maak via de eigen weg van de applicatie een pdf van een factuur en meld de grootte.</translation>
    </message>
    <message id="cli.renderInvoice.out">
      <source>With --render-invoice: where to write the PDF.</source>
      <translation>Met --render-invoice: waar de pdf heen moet.</translation>
    </message>
    <message id="cli.renderInvoice.png">
      <source>With --render-invoice: a folder for pictures of the pages as PNG.</source>
      <translation>Met --render-invoice: een map voor afbeeldingen van de pagina’s als PNG.</translation>
    </message>
    <message id="cli.server.action">
      <source>start, stop or status</source>
      <translation>start, stop of status</translation>
    </message>
    <message id="cli.server.dataDir">
      <source>Data folder: %1</source>
      <translation>Gegevensmap: %1</translation>
    </message>
    <message id="cli.server.notInUse">
      <source>Morvane uses %1 (%2), not the local backend.</source>
      <translation>Morvane gebruikt %1 (%2), niet de lokale backend.</translation>
    </message>
    <message id="cli.server.running">
      <source>The local backend is running at %1 (process %2).</source>
      <translation>De lokale backend draait op %1 (proces %2).</translation>
    </message>
    <message id="cli.server.started">
      <source>Started the local backend at %1 (process %2).</source>
      <translation>De lokale backend is gestart op %1 (proces %2).</translation>
    </message>
    <message id="cli.server.starting">
      <source>The local backend (process %1) is starting and does not answer yet.</source>
      <translation>De lokale backend (proces %1) start op en antwoordt nog niet.</translation>
    </message>
    <message id="cli.server.stopped">
      <source>The local backend is not running.</source>
      <translation>De lokale backend draait niet.</translation>
    </message>
    <message id="cli.server.stoppedNow">
      <source>Stopped the local backend (process %1).</source>
      <translation>De lokale backend is gestopt (proces %1).</translation>
    </message>
    <message id="cli.server.usage">
      <source>Usage: morvane server start|stop|status [--json]</source>
      <translation>Gebruik: morvane server start|stop|status [--json]</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>Je klanten konden niet worden geladen.</translation>
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
    <message id="inv.doc.amount">
      <source>Amount</source>
      <translation>Bedrag</translation>
    </message>
    <message id="inv.doc.amountDue">
      <source>Amount due</source>
      <translation>Te betalen</translation>
    </message>
    <message id="inv.doc.bank">
      <source>Bank</source>
      <translation>Bank</translation>
    </message>
    <message id="inv.doc.billTo">
      <source>Bill to</source>
      <translation>Factuur aan</translation>
    </message>
    <message id="inv.doc.description">
      <source>Description</source>
      <translation>Omschrijving</translation>
    </message>
    <message id="inv.doc.due">
      <source>Due date</source>
      <translation>Vervaldatum</translation>
    </message>
    <message id="inv.doc.from">
      <source>From</source>
      <translation>Van</translation>
    </message>
    <message id="inv.doc.iban">
      <source>IBAN</source>
      <translation>IBAN</translation>
    </message>
    <message id="inv.doc.invoice">
      <source>Invoice</source>
      <translation>Factuur</translation>
    </message>
    <message id="inv.doc.issued">
      <source>Issue date</source>
      <translation>Factuurdatum</translation>
    </message>
    <message id="inv.doc.kvk">
      <source>Company no.</source>
      <translation>KvK</translation>
    </message>
    <message id="inv.doc.noVat">
      <source>No VAT on these lines</source>
      <translation>Geen btw op deze regels</translation>
    </message>
    <message id="inv.doc.notes">
      <source>Notes</source>
      <translation>Opmerkingen</translation>
    </message>
    <message id="inv.doc.number">
      <source>Invoice no.</source>
      <translation>Factuurnr.</translation>
    </message>
    <message id="inv.doc.payment">
      <source>Payment</source>
      <translation>Betaling</translation>
    </message>
    <message id="inv.doc.paymentNoTerm">
      <source>Please pay by bank transfer, quoting the invoice number.</source>
      <translation>Graag betalen per overschrijving onder vermelding van het factuurnummer.</translation>
    </message>
    <message id="inv.doc.paymentTerms">
      <source>Please pay within %1 days, quoting the invoice number.</source>
      <translation>Graag binnen %1 dagen betalen onder vermelding van het factuurnummer.</translation>
    </message>
    <message id="inv.doc.period">
      <source>Period</source>
      <translation>Periode</translation>
    </message>
    <message id="inv.doc.project">
      <source>Project</source>
      <translation>Project</translation>
    </message>
    <message id="inv.doc.quantity">
      <source>Qty</source>
      <translation>Aantal</translation>
    </message>
    <message id="inv.doc.rate">
      <source>Rate</source>
      <translation>Tarief</translation>
    </message>
    <message id="inv.doc.reference">
      <source>Reference</source>
      <translation>Kenmerk</translation>
    </message>
    <message id="inv.doc.subtotal">
      <source>Subtotal</source>
      <translation>Subtotaal</translation>
    </message>
    <message id="inv.doc.thanks">
      <source>Thank you for your business.</source>
      <translation>Dank voor de prettige samenwerking.</translation>
    </message>
    <message id="inv.doc.total">
      <source>Total</source>
      <translation>Totaal</translation>
    </message>
    <message id="inv.doc.vatId">
      <source>VAT no.</source>
      <translation>Btw-nr.</translation>
    </message>
    <message id="inv.doc.vatRow">
      <source>VAT %1%</source>
      <translation>Btw %1%</translation>
    </message>
    <message id="inv.doc.vatRowOver">
      <source>VAT %1% on %2</source>
      <translation>Btw %1% over %2</translation>
    </message>
    <message id="inv.pdf.err.load">
      <source>The invoice page could not be loaded.</source>
      <translation>De factuurpagina kon niet worden geladen.</translation>
    </message>
    <message id="inv.pdf.err.paging">
      <source>The invoice could not be laid out in pages.</source>
      <translation>De factuur kon niet in pagina’s worden opgemaakt.</translation>
    </message>
    <message id="inv.pdf.err.print">
      <source>The PDF of the invoice could not be made.</source>
      <translation>De pdf van de factuur kon niet worden gemaakt.</translation>
    </message>
    <message id="inv.pdf.err.spill">
      <source>The invoice page could not be written to a temporary file: %1</source>
      <translation>De factuurpagina kon niet naar een tijdelijk bestand worden geschreven: %1</translation>
    </message>
    <message id="inv.pdf.err.timeout">
      <source>The invoice page did not finish loading within %1 seconds.</source>
      <translation>De factuurpagina was niet binnen %1 seconden geladen.</translation>
    </message>
    <message id="inviteAlreadyMember">
      <source>%1 is already in this team.</source>
      <translation>%1 zit al in dit team.</translation>
    </message>
    <message id="inviteFailed">
      <source>Could not send the invite. Try again.</source>
      <translation>De uitnodiging kon niet worden verstuurd. Probeer het opnieuw.</translation>
    </message>
    <message id="inviteNoAccount">
      <source>No Morvane account uses that email yet. Ask them to sign up first.</source>
      <translation>Nog geen enkel Morvane-account gebruikt dat e-mailadres. Vraag de persoon om zich eerst aan te melden.</translation>
    </message>
    <message id="inviteNotAllowed">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Alleen de eigenaar en de bewerkers van het team kunnen mensen uitnodigen.</translation>
    </message>
    <message id="inviteSent">
      <source>%1 is invited to this team.</source>
      <translation>%1 is uitgenodigd voor dit team.</translation>
    </message>
    <message id="inviteTeamFull">
      <source>This team is full: it already has 10 members, the maximum.</source>
      <translation>Dit team is vol: het heeft al 10 leden, het maximum.</translation>
    </message>
    <message id="inviteUnavailable">
      <source>Inviting by email is not available yet. Try again later.</source>
      <translation>Uitnodigen per e-mail is nog niet beschikbaar. Probeer het later opnieuw.</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Gemaakt met Morvane</translation>
    </message>
    <message id="localServer.err.dataFolder">
      <source>Cannot write the local backend's data folder %1.</source>
      <translation>Kan niet schrijven in de gegevensmap %1 van de lokale backend.</translation>
    </message>
    <message id="localServer.err.exited">
      <source>The local backend stopped before it was ready (log: %1).</source>
      <translation>De lokale backend stopte voordat hij klaar was (logboek: %1).</translation>
    </message>
    <message id="localServer.err.launch">
      <source>Cannot run the local backend %1.</source>
      <translation>Kan de lokale backend %1 niet uitvoeren.</translation>
    </message>
    <message id="localServer.err.noProgram">
      <source>Cannot find the local backend: %1 is neither next to Morvane nor on the PATH.</source>
      <translation>De lokale backend is niet gevonden: %1 staat niet naast Morvane en ook niet in het PATH.</translation>
    </message>
    <message id="localServer.err.notReady">
      <source>The local backend was not ready within %1 seconds (log: %2).</source>
      <translation>De lokale backend was niet binnen %1 seconden klaar (logboek: %2).</translation>
    </message>
    <message id="localServer.err.wouldNotStop">
      <source>The local backend (process %1) did not stop within %2 seconds.</source>
      <translation>De lokale backend (proces %1) is niet binnen %2 seconden gestopt.</translation>
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
    <message id="onboarding.err.notSaved">
      <source>Your first-run answers were not saved yet. Morvane tries again at the next sign-in.</source>
      <translation>Je antwoorden van de eerste start zijn nog niet opgeslagen. Morvane probeert het opnieuw wanneer je weer inlogt.</translation>
    </message>
    <message id="profile.err.notSaved">
      <source>Your profile was not saved. Try again.</source>
      <translation>Je profiel is niet opgeslagen. Probeer het opnieuw.</translation>
    </message>
    <message id="project.err.notCreated">
      <source>The project was not created: you may not add projects to that team.</source>
      <translation>Het project is niet aangemaakt: je mag geen projecten aan dat team toevoegen.</translation>
    </message>
    <message id="project.err.notSaved">
      <source>The project was not changed: you may not edit it, or it no longer exists.</source>
      <translation>Het project is niet gewijzigd: je mag het niet bewerken, of het bestaat niet meer.</translation>
    </message>
    <message id="project.err.teamNotChanged">
      <source>The project's team was not changed: only its creator and the team's owners and editors can move it.</source>
      <translation>Het team van het project is niet gewijzigd: alleen wie het project heeft gemaakt en de eigenaren en bewerkers van het team kunnen het verplaatsen.</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Er ging iets mis. Probeer het opnieuw.</translation>
    </message>
    <message id="store.err.loadFailed">
      <source>Your data could not be loaded. Morvane tries again shortly.</source>
      <translation>Je gegevens konden niet worden geladen. Morvane probeert het zo opnieuw.</translation>
    </message>
    <message id="store.err.writeFailed">
      <source>The change could not be saved. Check the connection and try again.</source>
      <translation>De wijziging kon niet worden opgeslagen. Controleer de verbinding en probeer het opnieuw.</translation>
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
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>De taak is niet aangemaakt: je mag geen taken aan dit project toevoegen.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>De taak is niet gewijzigd: je mag deze niet bewerken, of ze bestaat niet meer.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>Het team is niet aangemaakt. Probeer het opnieuw.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>Je teams konden niet worden geladen.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>De timer van deze taak is op een ander apparaat gestart, dus de status is niet gewijzigd.</translation>
    </message>
  </context>
</TS>

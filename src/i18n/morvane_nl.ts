<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
  <context>
    <name>Morvane</name>
    <message id="add.couldNotParse">
      <source>Morvane could not make sense of that. Try saying it another way.</source>
      <translation>Morvane kon daar geen chocola van maken. Probeer het anders te zeggen.</translation>
    </message>
    <message id="ai.err.badAnswer">
      <source>%1 sent an answer Morvane cannot use: %2</source>
      <translation>%1 stuurde een antwoord waar Morvane niets mee kan: %2</translation>
    </message>
    <message id="ai.err.consentDeclined">
      <source>You chose not to send your text to %1. You can change this in the AI settings.</source>
      <translation>Je hebt ervoor gekozen je tekst niet naar %1 te sturen. Je kunt dit wijzigen in de AI-instellingen.</translation>
    </message>
    <message id="ai.err.consentMissing">
      <source>Morvane asks before it sends your text to %1 for the first time. Answer that question in the window, or run the command again with --yes.</source>
      <translation>Morvane vraagt het eerst voordat je tekst voor het eerst naar %1 gaat. Beantwoord die vraag in het venster, of voer de opdracht opnieuw uit met --yes.</translation>
    </message>
    <message id="ai.err.needsCLI">
      <source>This needs the Claude CLI, which can work with files; %1 cannot. Choose the Claude CLI in the AI settings.</source>
      <translation>Hiervoor is de Claude CLI nodig, die met bestanden kan werken; %1 kan dat niet. Kies de Claude CLI in de AI-instellingen.</translation>
    </message>
    <message id="ai.err.noKey">
      <source>There is no API key for %1 in your keyring. Add your key in the AI settings.</source>
      <translation>Er staat geen API-sleutel voor %1 in je sleutelbos. Voeg je sleutel toe in de AI-instellingen.</translation>
    </message>
    <message id="ai.err.notSignedIn">
      <source>%1 works only while you are signed in. Sign in, then try again.</source>
      <translation>%1 werkt alleen als je bent aangemeld. Meld je aan en probeer het opnieuw.</translation>
    </message>
    <message id="ai.err.status">
      <source>%1 answered with error %2: %3</source>
      <translation>%1 antwoordde met fout %2: %3</translation>
    </message>
    <message id="ai.err.timedOut">
      <source>%1 did not answer within %2 s</source>
      <translation>%1 gaf binnen %2 s geen antwoord</translation>
    </message>
    <message id="ai.err.unreachable">
      <source>%1 could not be reached: %2</source>
      <translation>%1 is niet bereikbaar: %2</translation>
    </message>
    <message id="ai.route.anthropic.where">
      <source>Your text goes straight from this computer to Anthropic, with your own API key.</source>
      <translation>Je tekst gaat rechtstreeks van deze computer naar Anthropic, met je eigen API-sleutel.</translation>
    </message>
    <message id="ai.route.claudeCLI.where">
      <source>Your text goes to the claude program on this computer, which sends it to Anthropic under your own Claude account. Morvane itself sends nothing over the network.</source>
      <translation>Je tekst gaat naar het programma claude op deze computer, dat hem onder je eigen Claude-account naar Anthropic stuurt. Morvane zelf stuurt niets over het netwerk.</translation>
    </message>
    <message id="ai.route.gemini.where">
      <source>Your text goes straight from this computer to Google, with your own API key.</source>
      <translation>Je tekst gaat rechtstreeks van deze computer naar Google, met je eigen API-sleutel.</translation>
    </message>
    <message id="ai.route.morvaneAI.where">
      <source>Your text goes to the Morvane server you are signed in to, which passes it on to the AI service its operator has chosen, and the answer comes back the same way.</source>
      <translation>Je tekst gaat naar de Morvane-server waarop je bent aangemeld, die hem doorgeeft aan de AI-dienst die de beheerder heeft gekozen; het antwoord komt via dezelfde weg terug.</translation>
    </message>
    <message id="ai.route.openAI.where">
      <source>Your text goes straight from this computer to OpenAI, with your own API key.</source>
      <translation>Je tekst gaat rechtstreeks van deze computer naar OpenAI, met je eigen API-sleutel.</translation>
    </message>
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
    <message id="auth.err.oauthRefused">
      <source>The sign-in was refused: %1</source>
      <translation>De aanmelding is geweigerd: %1</translation>
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
    <message id="billing.dayNote">
      <source>Tracked time ÷ hours-per-day = billable days.</source>
      <translation>Geregistreerde tijd ÷ uren per dag = factureerbare dagen.</translation>
    </message>
    <message id="billing.dayRate">
      <source>Day rate</source>
      <translation>Dagtarief</translation>
    </message>
    <message id="billing.discount">
      <source>Discount</source>
      <translation>Korting</translation>
    </message>
    <message id="billing.extras">
      <source>Extras · call-out · materials · discount · VAT</source>
      <translation>Extra’s · voorrijkosten · materiaal · korting · btw</translation>
    </message>
    <message id="billing.fixedTotal">
      <source>Fixed total</source>
      <translation>Vast totaal</translation>
    </message>
    <message id="billing.gross">
      <source>Gross (incl.)</source>
      <translation>Bruto (incl.)</translation>
    </message>
    <message id="billing.hourlyRate">
      <source>Hourly rate</source>
      <translation>Uurtarief</translation>
    </message>
    <message id="billing.hoursPerDay">
      <source>Hours per day</source>
      <translation>Uren per dag</translation>
    </message>
    <message id="billing.inheriting">
      <source>Inheriting from project</source>
      <translation>Overgenomen van project</translation>
    </message>
    <message id="billing.materials">
      <source>Materials</source>
      <translation>Materiaal</translation>
    </message>
    <message id="billing.minCharge">
      <source>Minimum charge</source>
      <translation>Minimumbedrag</translation>
    </message>
    <message id="billing.model.day">
      <source>Per day</source>
      <translation>Per dag</translation>
    </message>
    <message id="billing.model.fixed">
      <source>Fixed price</source>
      <translation>Vaste prijs</translation>
    </message>
    <message id="billing.model.hour">
      <source>Per hour</source>
      <translation>Per uur</translation>
    </message>
    <message id="billing.model.unit">
      <source>Per unit</source>
      <translation>Per eenheid</translation>
    </message>
    <message id="billing.net">
      <source>Net (excl. VAT)</source>
      <translation>Netto (excl. btw)</translation>
    </message>
    <message id="billing.netNote">
      <source>Net per tracked time, plus the extras above.</source>
      <translation>Netto volgens geregistreerde tijd, plus de extra’s hierboven.</translation>
    </message>
    <message id="billing.pricePerUnit">
      <source>Price / unit</source>
      <translation>Prijs / eenheid</translation>
    </message>
    <message id="billing.quantity">
      <source>Quantity</source>
      <translation>Aantal</translation>
    </message>
    <message id="billing.resetProject">
      <source>Reset to project default</source>
      <translation>Terug naar projectprijs</translation>
    </message>
    <message id="billing.suffix.day">
      <source>/day</source>
      <translation>/dag</translation>
    </message>
    <message id="billing.suffix.hour">
      <source>/h</source>
      <translation>/u</translation>
    </message>
    <message id="billing.surcharge">
      <source>Call-out fee</source>
      <translation>Voorrijkosten</translation>
    </message>
    <message id="billing.title">
      <source>Billing</source>
      <translation>Facturering</translation>
    </message>
    <message id="billing.unit">
      <source>Unit</source>
      <translation>Eenheid</translation>
    </message>
    <message id="billing.unitDefault">
      <source>unit</source>
      <translation>eenheid</translation>
    </message>
    <message id="billing.vat">
      <source>VAT</source>
      <translation>Btw</translation>
    </message>
    <message id="billing.vatAmount">
      <source>VAT</source>
      <translation>Btw</translation>
    </message>
    <message id="billing.vatNone">
      <source>No VAT</source>
      <translation>Geen btw</translation>
    </message>
    <message id="cal.accessOffBody">
      <source>Morvane turns calendar events into time entries. Add an iCalendar file, a subscription address or a CalDAV account, then come back and recheck.</source>
      <translation>Morvane maakt van agenda-afspraken tijdregistraties. Voeg een iCalendar-bestand, een abonnementsadres of een CalDAV-account toe en kom dan terug om opnieuw te controleren.</translation>
    </message>
    <message id="cal.accessOffTitle">
      <source>No calendars yet</source>
      <translation>Nog geen agenda’s</translation>
    </message>
    <message id="cal.err.alreadyImported">
      <source>This event was imported before; its time is already logged.</source>
      <translation>Deze afspraak is al eerder geïmporteerd; de tijd staat al geregistreerd.</translation>
    </message>
    <message id="cal.err.readFailed">
      <source>The calendar “%1” could not be read.</source>
      <translation>De agenda “%1” kon niet worden gelezen.</translation>
    </message>
    <message id="cal.err.secret">
      <source>The password could not be stored in the keyring.</source>
      <translation>Het wachtwoord kon niet in de sleutelbos worden bewaard.</translation>
    </message>
    <message id="cal.heroTitle">
      <source>Import from your calendar</source>
      <translation>Importeren uit je agenda</translation>
    </message>
    <message id="cal.loading">
      <source>Loading calendar…</source>
      <translation>Agenda laden…</translation>
    </message>
    <message id="cal.noEventsHint">
      <source>No events on this day. Pick another day, or add a calendar.</source>
      <translation>Geen afspraken op deze dag. Kies een andere dag of voeg een agenda toe.</translation>
    </message>
    <message id="cal.selectedCount">
      <source>%1 selected</source>
      <translation>%1 geselecteerd</translation>
    </message>
    <message id="cal.untitled">
      <source>Calendar event</source>
      <translation>Agenda-afspraak</translation>
    </message>
    <message id="calExistingSection">
      <source>Existing tasks</source>
      <translation>Bestaande taken</translation>
    </message>
    <message id="calNewTaskSection">
      <source>New tasks</source>
      <translation>Nieuwe taken</translation>
    </message>
    <message id="capture.err.noMinutes">
      <source>The sentence gives no time to log.</source>
      <translation>De zin noemt geen tijd om te registreren.</translation>
    </message>
    <message id="capture.err.noProject">
      <source>The sentence names no project to add the task to.</source>
      <translation>De zin noemt geen project om de taak aan toe te voegen.</translation>
    </message>
    <message id="capture.err.notSaved">
      <source>The change could not be saved.</source>
      <translation>De wijziging kon niet worden opgeslagen.</translation>
    </message>
    <message id="capture.fix.bothPrices">
      <source>"%1" has both a fixed price and an hourly rate; the fixed price is used.</source>
      <translation>"%1" heeft zowel een vaste prijs als een uurtarief; de vaste prijs wordt gebruikt.</translation>
    </message>
    <message id="capture.fix.cut">
      <source>"%1…" was cut to %2 characters.</source>
      <translation>"%1…" is ingekort tot %2 tekens.</translation>
    </message>
    <message id="capture.fix.date">
      <source>The due date "%1" was left out: it is not a date of the form YYYY-MM-DD.</source>
      <translation>De deadline "%1" is weggelaten: het is geen datum in de vorm JJJJ-MM-DD.</translation>
    </message>
    <message id="capture.fix.minutes">
      <source>%1 minutes were left out: time logged from one sentence is more than 0 and at most %2 minutes.</source>
      <translation>%1 minuten zijn weggelaten: tijd uit één zin is meer dan 0 en hoogstens %2 minuten.</translation>
    </message>
    <message id="capture.fix.price">
      <source>The fixed price %1 was left out: a price lies between 0 and %2.</source>
      <translation>De vaste prijs %1 is weggelaten: een prijs ligt tussen 0 en %2.</translation>
    </message>
    <message id="capture.fix.priority">
      <source>The priority "%1" is unknown; the task gets the default, medium.</source>
      <translation>De prioriteit "%1" is onbekend; de taak krijgt de standaard, gemiddeld.</translation>
    </message>
    <message id="capture.fix.rate">
      <source>The hourly rate %1 was left out: a rate lies between 0 and %2.</source>
      <translation>Het uurtarief %1 is weggelaten: een tarief ligt tussen 0 en %2.</translation>
    </message>
    <message id="capture.fix.unnamed">
      <source>A project or task without a name was left out.</source>
      <translation>Een project of taak zonder naam is weggelaten.</translation>
    </message>
    <message id="capture.note.noTeam">
      <source>You have no team called "%1" that you may add projects to; "%2" stays yours alone.</source>
      <translation>Je hebt geen team "%1" waaraan je projecten mag toevoegen; "%2" blijft alleen van jou.</translation>
    </message>
    <message id="capture.note.noTimer">
      <source>No timer was running.</source>
      <translation>Er liep geen timer.</translation>
    </message>
    <message id="claude.err.binaryMissing">
      <source>AI features need the Claude CLI on this Mac (it powers voice/prompt capture, briefs, and the invoice note). Everything else works without it. Set CLAUDE_CLI_PATH or install it, then try again.</source>
      <translation>AI-functies hebben de Claude CLI op deze Mac nodig (voor spraak- en promptinvoer, briefings en de factuurnotitie). Al het andere werkt zonder. Stel CLAUDE_CLI_PATH in of installeer hem en probeer het opnieuw.</translation>
    </message>
    <message id="claude.err.createTask">
      <source>Create task failed: %1</source>
      <translation>Taak aanmaken mislukt: %1</translation>
    </message>
    <message id="claude.err.emptyOutput">
      <source>Claude produced no output</source>
      <translation>Claude gaf geen uitvoer</translation>
    </message>
    <message id="claude.err.launchFailed">
      <source>Launch failed: %1</source>
      <translation>Starten mislukt: %1</translation>
    </message>
    <message id="claude.err.malformedJSON">
      <source>Bad JSON from Claude (%1) %2</source>
      <translation>Ongeldige JSON van Claude (%1) %2</translation>
    </message>
    <message id="claude.err.noJSONObject">
      <source>no JSON object detected</source>
      <translation>geen JSON-object gevonden</translation>
    </message>
    <message id="claude.err.nonZeroExit">
      <source>Claude exited %1: %2</source>
      <translation>Claude stopte met status %1: %2</translation>
    </message>
    <message id="claude.err.outputNotWritten">
      <source>Claude finished but did not write %1</source>
      <translation>Claude is klaar maar heeft %1 niet geschreven</translation>
    </message>
    <message id="claude.err.resultIsError">
      <source>claude returned is_error=true</source>
      <translation>claude gaf is_error=true terug</translation>
    </message>
    <message id="claude.err.timedOut">
      <source>Claude request timed out after %1 s</source>
      <translation>Claude-verzoek verlopen na %1 s</translation>
    </message>
    <message id="claude.err.workspaceTimedOut">
      <source>Claude workspace task timed out after %1 s</source>
      <translation>Claude-werkmaptaak verlopen na %1 s</translation>
    </message>
    <message id="cli.add.adjusted">
      <source>Checked: %1</source>
      <translation>Gecontroleerd: %1</translation>
    </message>
    <message id="cli.add.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as 'morvane tasks list' shows it.</source>
      <translation>Welke taak? Geen van je taken heet "%1", of meerdere wel. Noem hem zoals 'morvane tasks list' hem toont.</translation>
    </message>
    <message id="cli.add.dryRunDone">
      <source>Nothing was changed (--dry-run).</source>
      <translation>Er is niets gewijzigd (--dry-run).</translation>
    </message>
    <message id="cli.add.due">
      <source>due %1</source>
      <translation>deadline %1</translation>
    </message>
    <message id="cli.add.fixed">
      <source>%1 fixed</source>
      <translation>%1 vast</translation>
    </message>
    <message id="cli.add.logTime">
      <source>Log %1 on "%2"</source>
      <translation>%1 registreren op "%2"</translation>
    </message>
    <message id="cli.add.modelNote">
      <source>The model notes: %1</source>
      <translation>Het model merkt op: %1</translation>
    </message>
    <message id="cli.add.option.dryRun">
      <source>Show what was understood without changing anything.</source>
      <translation>Toon wat er begrepen is zonder iets te wijzigen.</translation>
    </message>
    <message id="cli.add.partial">
      <source>Stopped: %1 What was made before stays; give the same sentence again to finish the rest without making anything twice.</source>
      <translation>Gestopt: %1 Wat al gemaakt is blijft staan; geef dezelfde zin nog eens om de rest af te maken zonder iets dubbel te maken.</translation>
    </message>
    <message id="cli.add.project">
      <source>Project "%1"</source>
      <translation>Project "%1"</translation>
    </message>
    <message id="cli.add.spent">
      <source>%1 already spent</source>
      <translation>%1 al besteed</translation>
    </message>
    <message id="cli.add.startTimer">
      <source>Start the timer on "%1"</source>
      <translation>De timer starten op "%1"</translation>
    </message>
    <message id="cli.add.stopRunning">
      <source>Stop the running timer</source>
      <translation>De lopende timer stoppen</translation>
    </message>
    <message id="cli.add.stopTimer">
      <source>Stop the timer on "%1"</source>
      <translation>De timer stoppen op "%1"</translation>
    </message>
    <message id="cli.add.summary">
      <source>Projects: %1 new, %2 existing. Tasks: %3 new, %4 existing. Time logged: %5.</source>
      <translation>Projecten: %1 nieuw, %2 bestaand. Taken: %3 nieuw, %4 bestaand. Tijd geregistreerd: %5.</translation>
    </message>
    <message id="cli.add.task">
      <source>Task "%1"</source>
      <translation>Taak "%1"</translation>
    </message>
    <message id="cli.add.team">
      <source>shared with team %1</source>
      <translation>gedeeld met team %1</translation>
    </message>
    <message id="cli.add.timerStopped">
      <source>Timer stopped on %1.</source>
      <translation>Timer gestopt op %1.</translation>
    </message>
    <message id="cli.add.understood">
      <source>Understood:</source>
      <translation>Begrepen:</translation>
    </message>
    <message id="cli.add.unknown">
      <source>Nothing to do: the sentence holds no project, task, time or timer action.</source>
      <translation>Niets te doen: de zin bevat geen project, taak, tijd of timeractie.</translation>
    </message>
    <message id="cli.add.usage">
      <source>Usage: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</source>
      <translation>Gebruik: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</translation>
    </message>
    <message id="cli.ai.consentAllowed">
      <source>allowed</source>
      <translation>toegestaan</translation>
    </message>
    <message id="cli.ai.consentAsk">
      <source>not asked yet</source>
      <translation>nog niet gevraagd</translation>
    </message>
    <message id="cli.ai.consentDeclined">
      <source>declined</source>
      <translation>geweigerd</translation>
    </message>
    <message id="cli.ai.keyFailed">
      <source>The keyring did not take the key; nothing changed.</source>
      <translation>Het sleutelbos nam de sleutel niet aan; er is niets veranderd.</translation>
    </message>
    <message id="cli.ai.keyMissing">
      <source>No key was given; nothing changed.</source>
      <translation>Er is geen sleutel opgegeven; er is niets veranderd.</translation>
    </message>
    <message id="cli.ai.keyPrompt">
      <source>Paste your %1 API key and press Enter: </source>
      <translation>Plak je API-sleutel voor %1 en druk op Enter: </translation>
    </message>
    <message id="cli.ai.keyRemoved">
      <source>The %1 key is no longer in your keyring.</source>
      <translation>De sleutel voor %1 staat niet meer in je sleutelbos.</translation>
    </message>
    <message id="cli.ai.keySaved">
      <source>The %1 key is in your keyring.</source>
      <translation>De sleutel voor %1 staat in je sleutelbos.</translation>
    </message>
    <message id="cli.ai.keys">
      <source>Your keys in the keyring: %1</source>
      <translation>Je sleutels in het sleutelbos: %1</translation>
    </message>
    <message id="cli.ai.option.remove">
      <source>Remove the stored key instead of setting one.</source>
      <translation>Verwijder de opgeslagen sleutel in plaats van er een in te stellen.</translation>
    </message>
    <message id="cli.ai.provider">
      <source>Provider setting: %1</source>
      <translation>Instelling aanbieder: %1</translation>
    </message>
    <message id="cli.ai.question">
      <source>%1
Send your text to %2 now and from now on? [y/N] </source>
      <translation>%1
Je tekst nu en voortaan naar %2 sturen? [j/N] </translation>
    </message>
    <message id="cli.ai.route">
      <source>Calls go to: %1</source>
      <translation>Aanroepen gaan naar: %1</translation>
    </message>
    <message id="cli.ai.usage">
      <source>Usage: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</source>
      <translation>Gebruik: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</translation>
    </message>
    <message id="cli.ai.yes">
      <source>Agree to sending your text to the chosen AI service without being asked.</source>
      <translation>Stem zonder vraag in met het sturen van je tekst naar de gekozen AI-dienst.</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>De uit te voeren opdracht; zonder opdracht verschijnt de lijst met opdrachten.</translation>
    </message>
    <message id="cli.auth.browser">
      <source>Continue in your browser. If no page opens, go to: %1</source>
      <translation>Ga verder in je browser. Opent er geen pagina, ga dan naar: %1</translation>
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
    <message id="cli.auth.option.provider">
      <source>Sign in through an outside provider in the browser instead of with a password.</source>
      <translation>Meld je aan via een externe aanbieder in de browser in plaats van met een wachtwoord.</translation>
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
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Gebruik: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.calendar.added">
      <source>Added %1 (%2).</source>
      <translation>%1 toegevoegd (%2).</translation>
    </message>
    <message id="cli.calendar.err.add">
      <source>That calendar cannot be added: %1.</source>
      <translation>Die agenda kan niet worden toegevoegd: %1.</translation>
    </message>
    <message id="cli.calendar.err.day">
      <source>A day is written as YYYY-MM-DD, today or yesterday.</source>
      <translation>Een dag schrijf je als JJJJ-MM-DD, today of yesterday.</translation>
    </message>
    <message id="cli.calendar.err.noDestination">
      <source>No task or project for: %1. Pass --project P to make them new tasks there.</source>
      <translation>Geen taak of project voor: %1. Geef --project P om er daar nieuwe taken van te maken.</translation>
    </message>
    <message id="cli.calendar.err.noSelection">
      <source>Say which events to import: --events ID... (see morvane calendar events) or --all.</source>
      <translation>Zeg welke afspraken je wilt importeren: --events ID... (zie morvane calendar events) of --all.</translation>
    </message>
    <message id="cli.calendar.err.unknown">
      <source>No single calendar matches “%1”; see morvane calendar list.</source>
      <translation>Geen enkele agenda past bij “%1”; zie morvane calendar list.</translation>
    </message>
    <message id="cli.calendar.imported">
      <source>imported</source>
      <translation>geïmporteerd</translation>
    </message>
    <message id="cli.calendar.importedCount">
      <source>Imported %1 events; %2 were imported before.</source>
      <translation>%1 afspraken geïmporteerd; %2 waren al eerder geïmporteerd.</translation>
    </message>
    <message id="cli.calendar.opt.all">
      <source>Import every event of the day.</source>
      <translation>Importeer alle afspraken van de dag.</translation>
    </message>
    <message id="cli.calendar.opt.caldav">
      <source>Read a CalDAV collection (with --user) instead of a subscription.</source>
      <translation>Lees een CalDAV-verzameling (met --user) in plaats van een abonnement.</translation>
    </message>
    <message id="cli.calendar.opt.day">
      <source>The day: YYYY-MM-DD, today or yesterday.</source>
      <translation>De dag: JJJJ-MM-DD, today of yesterday.</translation>
    </message>
    <message id="cli.calendar.opt.events">
      <source>The events to import, by the id events shows.</source>
      <translation>De afspraken om te importeren, met het id dat events toont.</translation>
    </message>
    <message id="cli.calendar.opt.name">
      <source>The name the calendar is shown under.</source>
      <translation>De naam waaronder de agenda wordt getoond.</translation>
    </message>
    <message id="cli.calendar.opt.project">
      <source>The project new tasks are made in.</source>
      <translation>Het project waarin nieuwe taken komen.</translation>
    </message>
    <message id="cli.calendar.opt.user">
      <source>The CalDAV user name.</source>
      <translation>De CalDAV-gebruikersnaam.</translation>
    </message>
    <message id="cli.calendar.password">
      <source>CalDAV password: </source>
      <translation>CalDAV-wachtwoord: </translation>
    </message>
    <message id="cli.calendar.removed">
      <source>Removed %1.</source>
      <translation>%1 verwijderd.</translation>
    </message>
    <message id="cli.calendar.usage">
      <source>Usage: morvane calendar add &lt;file-or-address&gt; [--caldav --user U] | list | rm &lt;calendar&gt; | events [--day DAY] [--json] | import --day DAY [--project P] [--events ID...] [--all]</source>
      <translation>Gebruik: morvane calendar add &lt;bestand-of-adres&gt; [--caldav --user U] | list | rm &lt;agenda&gt; | events [--day DAG] [--json] | import --day DAG [--project P] [--events ID...] [--all]</translation>
    </message>
    <message id="cli.clients.added">
      <source>Added client %1 (%2).</source>
      <translation>Klant %1 toegevoegd (%2).</translation>
    </message>
    <message id="cli.clients.coc">
      <source>CoC %1</source>
      <translation>KvK %1</translation>
    </message>
    <message id="cli.clients.confirmDelete">
      <source>Delete the client %1? Invoices that name it keep it. [y/N] </source>
      <translation>Klant %1 verwijderen? Facturen op naam van deze klant houden die naam. [y/N] </translation>
    </message>
    <message id="cli.clients.deleted">
      <source>Deleted client %1.</source>
      <translation>Klant %1 verwijderd.</translation>
    </message>
    <message id="cli.clients.kept">
      <source>Nothing deleted.</source>
      <translation>Er is niets verwijderd.</translation>
    </message>
    <message id="cli.clients.noMatch">
      <source>No client matches "%1". See them with: morvane clients list</source>
      <translation>Geen klant komt overeen met "%1". Bekijk ze met: morvane clients list</translation>
    </message>
    <message id="cli.clients.none">
      <source>No clients yet. Add one with: morvane clients add &lt;name&gt;</source>
      <translation>Nog geen klanten. Voeg er een toe met: morvane clients add &lt;naam&gt;</translation>
    </message>
    <message id="cli.clients.option.address">
      <source>The client's postal address; it may span several lines.</source>
      <translation>Het postadres van de klant; mag over meerdere regels lopen.</translation>
    </message>
    <message id="cli.clients.option.coc">
      <source>The client's chamber-of-commerce number.</source>
      <translation>Het KvK-nummer van de klant.</translation>
    </message>
    <message id="cli.clients.option.email">
      <source>The client's e-mail address.</source>
      <translation>Het e-mailadres van de klant.</translation>
    </message>
    <message id="cli.clients.option.name">
      <source>A new name (edit only).</source>
      <translation>Een nieuwe naam (alleen bij edit).</translation>
    </message>
    <message id="cli.clients.option.vat">
      <source>The client's VAT number.</source>
      <translation>Het btw-nummer van de klant.</translation>
    </message>
    <message id="cli.clients.option.yes">
      <source>Delete without asking first.</source>
      <translation>Verwijderen zonder eerst te vragen.</translation>
    </message>
    <message id="cli.clients.saved">
      <source>Saved client %1.</source>
      <translation>Klant %1 opgeslagen.</translation>
    </message>
    <message id="cli.clients.usage">
      <source>Usage: morvane clients list | add &lt;name&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;client&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;client&gt; [--yes] [--json]</source>
      <translation>Gebruik: morvane clients list | add &lt;naam&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;klant&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;klant&gt; [--yes] [--json]</translation>
    </message>
    <message id="cli.clients.vat">
      <source>VAT %1</source>
      <translation>btw %1</translation>
    </message>
    <message id="cli.clients.yesAnswers">
      <source>y|yes</source>
      <translation>j|ja</translation>
    </message>
    <message id="cli.command.add">
      <source>Turn a sentence into projects, tasks, logged time or a timer action: add "&lt;text&gt;" [--dry-run] [--json]</source>
      <translation>Maak van een zin projecten, taken, geregistreerde tijd of een timeractie: add "&lt;text&gt;" [--dry-run] [--json]</translation>
    </message>
    <message id="cli.command.ai">
      <source>Where model calls go, your own API keys and what you agreed to send: ai show|provider|key|consent</source>
      <translation>Waar modelaanroepen heen gaan, je eigen API-sleutels en waarmee je hebt ingestemd: ai show|provider|key|consent</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Registreren, in- en uitloggen, wisselen tussen accounts</translation>
    </message>
    <message id="cli.command.calendar">
      <source>Calendar events as time: calendar add|list|rm|events|import</source>
      <translation>Agenda-afspraken als tijd: calendar add|list|rm|events|import</translation>
    </message>
    <message id="cli.command.clients">
      <source>The clients you invoice: clients list|add|edit|rm</source>
      <translation>De klanten die je factureert: clients list|add|edit|rm</translation>
    </message>
    <message id="cli.command.company">
      <source>Your sender details and invoice style: company show|set</source>
      <translation>Je afzendergegevens en factuurstijl: company show|set</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Toon welke backend Morvane gebruikt en waar elke instelling vandaan komt</translation>
    </message>
    <message id="cli.command.earnings">
      <source>Earned, billed and unbilled money by week, month or project: earnings [--from DAY --to DAY] [--by week|month|project]</source>
      <translation>Verdiend, gefactureerd en nog niet gefactureerd geld per week, maand of project: earnings [--from DAG --to DAG] [--by week|month|project]</translation>
    </message>
    <message id="cli.command.entries">
      <source>List, edit or delete time entries: entries [--task T] | edit | rm</source>
      <translation>Tijdregistraties tonen, bewerken of verwijderen: entries [--task T] | edit | rm</translation>
    </message>
    <message id="cli.command.export">
      <source>Time entries or invoices of a period as CSV for the accountant: export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Tijdregistraties of facturen van een periode als CSV voor de boekhouder: export entries|invoices --from DAG --to DAG [--out BESTAND]</translation>
    </message>
    <message id="cli.command.invoice">
      <source>Invoices: invoice draft|create|list|show|status|void|rm|pdf</source>
      <translation>Facturen: invoice draft|create|list|show|status|void|rm|pdf</translation>
    </message>
    <message id="cli.command.log">
      <source>Log minutes of work on a task: log &lt;task&gt; &lt;minutes&gt;</source>
      <translation>Minuten werk op een taak registreren: log &lt;task&gt; &lt;minutes&gt;</translation>
    </message>
    <message id="cli.command.price">
      <source>Show or set the price of a project or task: price show|set</source>
      <translation>De prijs van een project of taak tonen of instellen: price show|set</translation>
    </message>
    <message id="cli.command.projects">
      <source>List, add, rename, archive or delete projects: projects list|add|rename|archive|rm</source>
      <translation>Projecten tonen, toevoegen, hernoemen, archiveren of verwijderen: projects list|add|rename|archive|rm</translation>
    </message>
    <message id="cli.command.recap">
      <source>A short recap of your tracked week, written by the model from your own figures: recap [--lang L]</source>
      <translation>Een korte terugblik op je geregistreerde week, door het model geschreven uit je eigen cijfers: recap [--lang L]</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Start, stop of toon de lokale backend: server start|stop|status</translation>
    </message>
    <message id="cli.command.sessions">
      <source>Coding-agent sessions found in the local logs: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</source>
      <translation>Sessies van de codeeragent uit de lokale logs: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</translation>
    </message>
    <message id="cli.command.standup">
      <source>A stand-up draft from your last workday, today and your open tasks: standup [--lang L]</source>
      <translation>Een opzet voor je stand-up uit je laatste werkdag, vandaag en je openstaande taken: standup [--lang L]</translation>
    </message>
    <message id="cli.command.tasks">
      <source>List, add, edit, move or delete tasks: tasks list|add|edit|move|status|rm</source>
      <translation>Taken tonen, toevoegen, bewerken, verplaatsen of verwijderen: tasks list|add|edit|move|status|rm</translation>
    </message>
    <message id="cli.command.teams">
      <source>Teams and their members: teams list|create|invite|invitations|accept|decline|assign</source>
      <translation>Teams en hun leden: teams list|create|invite|invitations|accept|decline|assign</translation>
    </message>
    <message id="cli.command.timer">
      <source>Start, stop or show the timer: timer start|stop|toggle|status</source>
      <translation>De timer starten, stoppen of tonen: timer start|stop|toggle|status</translation>
    </message>
    <message id="cli.command.travel">
      <source>Your rate per kilometre and how you usually travel: travel show|set</source>
      <translation>Je tarief per kilometer en hoe je meestal reist: travel show|set</translation>
    </message>
    <message id="cli.command.trips">
      <source>Trips and their kilometres: trips list|add|edit|rm|route|export</source>
      <translation>Ritten en hun kilometers: trips list|add|edit|rm|route|export</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Opdrachten:</translation>
    </message>
    <message id="cli.company.accent">
      <source>Accent colour</source>
      <translation>Accentkleur</translation>
    </message>
    <message id="cli.company.address">
      <source>Address</source>
      <translation>Adres</translation>
    </message>
    <message id="cli.company.argument.action">
      <source>show or set</source>
      <translation>show of set</translation>
    </message>
    <message id="cli.company.bank">
      <source>Bank</source>
      <translation>Bank</translation>
    </message>
    <message id="cli.company.cocNumber">
      <source>Chamber of commerce number</source>
      <translation>KvK-nummer</translation>
    </message>
    <message id="cli.company.company">
      <source>Company</source>
      <translation>Bedrijf</translation>
    </message>
    <message id="cli.company.days">
      <source>%1 days</source>
      <translation>%1 dagen</translation>
    </message>
    <message id="cli.company.design">
      <source>Design</source>
      <translation>Ontwerp</translation>
    </message>
    <message id="cli.company.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="cli.company.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>De betalingstermijn is een heel aantal dagen van 0 tot 365.</translation>
    </message>
    <message id="cli.company.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>Het btw-tarief is een percentage van 0 tot 100.</translation>
    </message>
    <message id="cli.company.fileProblem">
      <source>%1: %2</source>
      <translation>%1: %2</translation>
    </message>
    <message id="cli.company.fontBody">
      <source>Body font</source>
      <translation>Tekstlettertype</translation>
    </message>
    <message id="cli.company.fontDisplay">
      <source>Display font</source>
      <translation>Koplettertype</translation>
    </message>
    <message id="cli.company.footer">
      <source>Footer</source>
      <translation>Voettekst</translation>
    </message>
    <message id="cli.company.iban">
      <source>Bank account (IBAN)</source>
      <translation>Bankrekening (IBAN)</translation>
    </message>
    <message id="cli.company.ink">
      <source>Ink colour</source>
      <translation>Tekstkleur</translation>
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
      <translation>ingesteld, maar niet leesbaar</translation>
    </message>
    <message id="cli.company.none">
      <source>No sender details yet. Set them with: morvane company set --company NAME --address TEXT ...</source>
      <translation>Nog geen afzendergegevens. Stel ze in met: morvane company set --company NAAM --address TEKST ...</translation>
    </message>
    <message id="cli.company.option.design">
      <source>The design new invoices are drawn in.</source>
      <translation>Het ontwerp van nieuwe facturen.</translation>
    </message>
    <message id="cli.company.option.field">
      <source>Sets: %1. An empty value clears it.</source>
      <translation>Stelt in: %1. Een lege waarde wist het.</translation>
    </message>
    <message id="cli.company.option.help">
      <source>Show this help.</source>
      <translation>Toon deze hulp.</translation>
    </message>
    <message id="cli.company.option.logo">
      <source>A PNG or JPEG of at most 1 MB; an empty value removes the logo.</source>
      <translation>Een PNG of JPEG van hooguit 1 MB; een lege waarde verwijdert het logo.</translation>
    </message>
    <message id="cli.company.option.paymentDays">
      <source>Days the client has to pay.</source>
      <translation>Dagen die de klant heeft om te betalen.</translation>
    </message>
    <message id="cli.company.option.template">
      <source>Your own HTML template; new invoices use it unless --design says otherwise.</source>
      <translation>Je eigen HTML-sjabloon; nieuwe facturen gebruiken het, tenzij --design iets anders zegt.</translation>
    </message>
    <message id="cli.company.option.vatRate">
      <source>VAT percentage of lines whose price has none.</source>
      <translation>Btw-percentage voor regels zonder eigen tarief.</translation>
    </message>
    <message id="cli.company.paymentDays">
      <source>Payment terms</source>
      <translation>Betalingstermijn</translation>
    </message>
    <message id="cli.company.phone">
      <source>Phone</source>
      <translation>Telefoon</translation>
    </message>
    <message id="cli.company.saved">
      <source>Sender details and invoice style saved.</source>
      <translation>Afzendergegevens en factuurstijl opgeslagen.</translation>
    </message>
    <message id="cli.company.template">
      <source>Custom template</source>
      <translation>Eigen sjabloon</translation>
    </message>
    <message id="cli.company.templateFallsBack">
      <source>not used, invoices fall back to %1: %2</source>
      <translation>niet gebruikt, facturen vallen terug op %1: %2</translation>
    </message>
    <message id="cli.company.templateStatus">
      <source>Custom template: %1</source>
      <translation>Eigen sjabloon: %1</translation>
    </message>
    <message id="cli.company.templateUsed">
      <source>used</source>
      <translation>gebruikt</translation>
    </message>
    <message id="cli.company.unknownDesign">
      <source>Unknown design: %1. The designs are: %2 (aiCustom is your own template).</source>
      <translation>Onbekend ontwerp: %1. De ontwerpen zijn: %2 (aiCustom is je eigen sjabloon).</translation>
    </message>
    <message id="cli.company.usage">
      <source>Usage: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</source>
      <translation>Gebruik: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</translation>
    </message>
    <message id="cli.company.vatNumber">
      <source>VAT number</source>
      <translation>Btw-nummer</translation>
    </message>
    <message id="cli.company.vatRate">
      <source>Default VAT rate</source>
      <translation>Standaard btw-tarief</translation>
    </message>
    <message id="cli.company.website">
      <source>Website</source>
      <translation>Website</translation>
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
    <message id="cli.earnings.backwards">
      <source>The period ends before it begins.</source>
      <translation>De periode eindigt voordat ze begint.</translation>
    </message>
    <message id="cli.earnings.badBy">
      <source>--by takes week, month or project, not "%1".</source>
      <translation>--by neemt week, month of project, niet "%1".</translation>
    </message>
    <message id="cli.earnings.badDay">
      <source>"%1" is not a day; write it as yyyy-MM-dd, for example 2026-01-31.</source>
      <translation>"%1" is geen dag; schrijf hem als jjjj-MM-dd, bijvoorbeeld 2026-01-31.</translation>
    </message>
    <message id="cli.earnings.column.billed">
      <source>Billed</source>
      <translation>Gefactureerd</translation>
    </message>
    <message id="cli.earnings.column.earned">
      <source>Earned</source>
      <translation>Verdiend</translation>
    </message>
    <message id="cli.earnings.column.hours">
      <source>Hours</source>
      <translation>Uren</translation>
    </message>
    <message id="cli.earnings.column.period">
      <source>Period</source>
      <translation>Periode</translation>
    </message>
    <message id="cli.earnings.column.project">
      <source>Project</source>
      <translation>Project</translation>
    </message>
    <message id="cli.earnings.column.rate">
      <source>Per hour</source>
      <translation>Per uur</translation>
    </message>
    <message id="cli.earnings.column.unbilled">
      <source>Unbilled</source>
      <translation>Nog te factureren</translation>
    </message>
    <message id="cli.earnings.halfPeriod">
      <source>Give both --from and --to, or neither for the current month.</source>
      <translation>Geef zowel --from als --to op, of geen van beide voor de huidige maand.</translation>
    </message>
    <message id="cli.earnings.heading">
      <source>Earnings from %1 to %2</source>
      <translation>Inkomsten van %1 tot en met %2</translation>
    </message>
    <message id="cli.earnings.noProject">
      <source>No project</source>
      <translation>Geen project</translation>
    </message>
    <message id="cli.earnings.none">
      <source>No time tracked in this period.</source>
      <translation>Geen tijd geregistreerd in deze periode.</translation>
    </message>
    <message id="cli.earnings.option.by">
      <source>Rows by week, month (the default) or project.</source>
      <translation>Regels per week, maand (standaard) of project.</translation>
    </message>
    <message id="cli.earnings.option.from">
      <source>First day of the period (yyyy-MM-dd); with --to. Without both, the current month.</source>
      <translation>Eerste dag van de periode (jjjj-MM-dd); samen met --to. Zonder beide: de huidige maand.</translation>
    </message>
    <message id="cli.earnings.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Laatste dag van de periode (jjjj-MM-dd), inbegrepen.</translation>
    </message>
    <message id="cli.earnings.total">
      <source>Total</source>
      <translation>Totaal</translation>
    </message>
    <message id="cli.earnings.usage">
      <source>Usage: morvane earnings [--from DAY --to DAY] [--by week|month|project] [--json]</source>
      <translation>Gebruik: morvane earnings [--from DAG --to DAG] [--by week|month|project] [--json]</translation>
    </message>
    <message id="cli.entries.badRange">
      <source>An entry must end after it starts.</source>
      <translation>Een registratie moet eindigen na het begin.</translation>
    </message>
    <message id="cli.entries.deleted">
      <source>Deleted the entry of %1.</source>
      <translation>De registratie van %1 is verwijderd.</translation>
    </message>
    <message id="cli.entries.noMatch">
      <source>No single time entry matches "%1". List them with: morvane entries --task &lt;task&gt;</source>
      <translation>Geen enkele tijdregistratie past bij "%1". Toon ze met: morvane entries --task &lt;task&gt;</translation>
    </message>
    <message id="cli.entries.none">
      <source>No time entries.</source>
      <translation>Geen tijdregistraties.</translation>
    </message>
    <message id="cli.entries.option.end">
      <source>The new end (ISO 8601, local time without an offset).</source>
      <translation>Het nieuwe einde (ISO 8601, lokale tijd zonder offset).</translation>
    </message>
    <message id="cli.entries.option.minutes">
      <source>The new length in minutes.</source>
      <translation>De nieuwe duur in minuten.</translation>
    </message>
    <message id="cli.entries.option.start">
      <source>The new start (ISO 8601, local time without an offset).</source>
      <translation>Het nieuwe begin (ISO 8601, lokale tijd zonder offset).</translation>
    </message>
    <message id="cli.entries.option.task">
      <source>Only the entries of this task, older ones included.</source>
      <translation>Alleen de registraties van deze taak, oudere inbegrepen.</translation>
    </message>
    <message id="cli.entries.total">
      <source>In all: %1</source>
      <translation>In totaal: %1</translation>
    </message>
    <message id="cli.entries.usage">
      <source>Usage: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</source>
      <translation>Gebruik: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</translation>
    </message>
    <message id="cli.err.noSignInWaiting">
      <source>No sign-in is waiting for this address. Start the sign-in in Morvane again.</source>
      <translation>Er wacht geen aanmelding op dit adres. Start de aanmelding opnieuw in Morvane.</translation>
    </message>
    <message id="cli.err.notSignedIn">
      <source>Not signed in. Sign in with: morvane auth signin &lt;e-mail&gt;</source>
      <translation>Niet aangemeld. Meld je aan met: morvane auth signin &lt;e-mail&gt;</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Onbekende opdracht: %1. Voer morvane --help uit voor de lijst met opdrachten.</translation>
    </message>
    <message id="cli.export.argument.kind">
      <source>What to export: entries or invoices.</source>
      <translation>Wat je exporteert: entries (tijdregistraties) of invoices (facturen).</translation>
    </message>
    <message id="cli.export.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Eerste dag van de periode (jjjj-MM-dd).</translation>
    </message>
    <message id="cli.export.option.help">
      <source>Show this help.</source>
      <translation>Deze hulp tonen.</translation>
    </message>
    <message id="cli.export.option.out">
      <source>The CSV file to write; without it the CSV goes to standard output.</source>
      <translation>Het CSV-bestand om te schrijven; zonder deze optie gaat de CSV naar de standaarduitvoer.</translation>
    </message>
    <message id="cli.export.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Laatste dag van de periode (jjjj-MM-dd), inbegrepen.</translation>
    </message>
    <message id="cli.export.usage">
      <source>Usage: morvane export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Gebruik: morvane export entries|invoices --from DAG --to DAG [--out BESTAND]</translation>
    </message>
    <message id="cli.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Kon %1 niet schrijven: %2</translation>
    </message>
    <message id="cli.export.written">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 opgeslagen (rijen: %2).</translation>
    </message>
    <message id="cli.invoice.ambiguous">
      <source>Several invoices match %1; give more of the id or the number.</source>
      <translation>Meerdere facturen passen bij %1; geef meer van de id of het nummer.</translation>
    </message>
    <message id="cli.invoice.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Factuur %1 verwijderd; de uren zijn weer niet gefactureerd.</translation>
    </message>
    <message id="cli.invoice.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>De pdf kon niet worden gedownload: %1</translation>
    </message>
    <message id="cli.invoice.draftEmpty">
      <source>No unbilled time of %1 in this period.</source>
      <translation>Geen ongefactureerde tijd van %1 in deze periode.</translation>
    </message>
    <message id="cli.invoice.due">
      <source>, due %1</source>
      <translation>, vervalt %1</translation>
    </message>
    <message id="cli.invoice.header">
      <source>Invoice %1 (%2), issued %3</source>
      <translation>Factuur %1 (%2), uitgegeven %3</translation>
    </message>
    <message id="cli.invoice.none">
      <source>No invoices yet.</source>
      <translation>Nog geen facturen.</translation>
    </message>
    <message id="cli.invoice.notFound">
      <source>No invoice matches %1.</source>
      <translation>Geen factuur past bij %1.</translation>
    </message>
    <message id="cli.invoice.option.client">
      <source>Bill-to name on the new invoice.</source>
      <translation>Naam van de geadresseerde op de nieuwe factuur.</translation>
    </message>
    <message id="cli.invoice.option.design">
      <source>The design of the new invoice, instead of the one in your invoice style.</source>
      <translation>Het ontwerp van de nieuwe factuur, in plaats van dat uit je factuurstijl.</translation>
    </message>
    <message id="cli.invoice.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Eerste dag van de periode (jjjj-MM-dd).</translation>
    </message>
    <message id="cli.invoice.option.out">
      <source>The file to write the PDF to.</source>
      <translation>Het bestand waarin de pdf komt.</translation>
    </message>
    <message id="cli.invoice.option.status">
      <source>Status of the new invoice: draft or sent.</source>
      <translation>Status van de nieuwe factuur: draft of sent.</translation>
    </message>
    <message id="cli.invoice.option.to">
      <source>Last day of the period (yyyy-MM-dd).</source>
      <translation>Laatste dag van de periode (jjjj-MM-dd).</translation>
    </message>
    <message id="cli.invoice.option.vat">
      <source>VAT percentage for lines whose price has none.</source>
      <translation>Btw-percentage voor regels waarvan de prijs er geen heeft.</translation>
    </message>
    <message id="cli.invoice.pdfReplaced">
      <source>The PDF of invoice %1 was made again.</source>
      <translation>De pdf van factuur %1 is opnieuw gemaakt.</translation>
    </message>
    <message id="cli.invoice.pdfSaved">
      <source>Saved the PDF of invoice %1 to %2.</source>
      <translation>De pdf van factuur %1 is opgeslagen in %2.</translation>
    </message>
    <message id="cli.invoice.status.draft">
      <source>draft</source>
      <translation>concept</translation>
    </message>
    <message id="cli.invoice.status.paid">
      <source>paid</source>
      <translation>betaald</translation>
    </message>
    <message id="cli.invoice.status.sent">
      <source>sent</source>
      <translation>verstuurd</translation>
    </message>
    <message id="cli.invoice.status.void">
      <source>void</source>
      <translation>vervallen</translation>
    </message>
    <message id="cli.invoice.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>Factuur %1 is nu %2.</translation>
    </message>
    <message id="cli.invoice.subtotal">
      <source>Subtotal</source>
      <translation>Subtotaal</translation>
    </message>
    <message id="cli.invoice.total">
      <source>Total</source>
      <translation>Totaal</translation>
    </message>
    <message id="cli.invoice.usage">
      <source>Usage: morvane invoice draft|create &lt;project&gt; [--from DAY] [--to DAY] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;invoice&gt; | status &lt;invoice&gt; draft|sent|paid|void | void &lt;invoice&gt; | rm &lt;invoice&gt; | pdf &lt;invoice&gt; --out FILE | replace-pdf &lt;invoice&gt; [--json]</source>
      <translation>Gebruik: morvane invoice draft|create &lt;project&gt; [--from DAG] [--to DAG] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;factuur&gt; | status &lt;factuur&gt; draft|sent|paid|void | void &lt;factuur&gt; | rm &lt;factuur&gt; | pdf &lt;factuur&gt; --out BESTAND | replace-pdf &lt;factuur&gt; [--json]</translation>
    </message>
    <message id="cli.invoice.vat">
      <source>VAT</source>
      <translation>Btw</translation>
    </message>
    <message id="cli.invoice.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>Factuur %1 is vervallen; de uren zijn weer niet gefactureerd.</translation>
    </message>
    <message id="cli.invoice.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Kon %1 niet schrijven: %2</translation>
    </message>
    <message id="cli.log.logged">
      <source>Logged %1 on %2, %3 in all.</source>
      <translation>%1 geregistreerd op %2, %3 in totaal.</translation>
    </message>
    <message id="cli.log.usage">
      <source>Usage: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</source>
      <translation>Gebruik: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</translation>
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
    <message id="cli.price.invalid">
      <source>Not a valid amount, or a required one is missing: %1</source>
      <translation>Geen geldig bedrag, of een verplicht bedrag ontbreekt: %1</translation>
    </message>
    <message id="cli.price.option.amount">
      <source>A number as you write it (1250, 1.250,50, 12.5); empty clears it.</source>
      <translation>Een getal zoals je het schrijft (1250, 1.250,50, 12.5); leeg wist het.</translation>
    </message>
    <message id="cli.price.option.discountAmount">
      <source>The discount is an amount.</source>
      <translation>De korting is een bedrag.</translation>
    </message>
    <message id="cli.price.option.discountPct">
      <source>The discount is a percentage.</source>
      <translation>De korting is een percentage.</translation>
    </message>
    <message id="cli.price.option.inherit">
      <source>The task bills at its project's price again.</source>
      <translation>De taak rekent weer af tegen de prijs van het project.</translation>
    </message>
    <message id="cli.price.option.model">
      <source>The billing model: hourly, fixed, per_unit or daily.</source>
      <translation>Het factuurmodel: hourly, fixed, per_unit of daily.</translation>
    </message>
    <message id="cli.price.option.surchargeLabel">
      <source>Label of the surcharge.</source>
      <translation>Omschrijving van de toeslag.</translation>
    </message>
    <message id="cli.price.option.task">
      <source>The task whose own price to show or set, instead of a project's.</source>
      <translation>De taak waarvan de eigen prijs getoond of ingesteld wordt, in plaats van die van een project.</translation>
    </message>
    <message id="cli.price.option.travel">
      <source>How the project charges its trips: per_km, per_trip or none.</source>
      <translation>Hoe het project zijn ritten rekent: per_km, per_trip of none.</translation>
    </message>
    <message id="cli.price.option.travelRate">
      <source>The travel rate per kilometre or per trip; without it, per kilometre bills at your own rate.</source>
      <translation>Het reistarief per kilometer of per rit; zonder tarief rekent per kilometer met je eigen tarief.</translation>
    </message>
    <message id="cli.price.option.unitLabel">
      <source>Name of the unit of a per-unit price.</source>
      <translation>Naam van de eenheid van een prijs per eenheid.</translation>
    </message>
    <message id="cli.price.unchanged">
      <source>Nothing changed.</source>
      <translation>Er is niets gewijzigd.</translation>
    </message>
    <message id="cli.price.usage">
      <source>Usage: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</source>
      <translation>Gebruik: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</translation>
    </message>
    <message id="cli.price.worth">
      <source>Tracked %1, worth %2.</source>
      <translation>Geregistreerd %1, waarde %2.</translation>
    </message>
    <message id="cli.projects.active">
      <source>active</source>
      <translation>actief</translation>
    </message>
    <message id="cli.projects.added">
      <source>Added project %1 (%2).</source>
      <translation>Project %1 (%2) toegevoegd.</translation>
    </message>
    <message id="cli.projects.archived">
      <source>archived</source>
      <translation>gearchiveerd</translation>
    </message>
    <message id="cli.projects.archivedIdle">
      <source>Idle projects archived: %1.</source>
      <translation>Inactieve projecten gearchiveerd: %1.</translation>
    </message>
    <message id="cli.projects.archivedOne">
      <source>Archived %1.</source>
      <translation>%1 gearchiveerd.</translation>
    </message>
    <message id="cli.projects.completed">
      <source>completed</source>
      <translation>afgerond</translation>
    </message>
    <message id="cli.projects.deleted">
      <source>Deleted %1 and its tasks.</source>
      <translation>%1 en de taken ervan verwijderd.</translation>
    </message>
    <message id="cli.projects.none">
      <source>No projects yet. Add one with: morvane projects add &lt;name&gt;</source>
      <translation>Nog geen projecten. Voeg er een toe met: morvane projects add &lt;name&gt;</translation>
    </message>
    <message id="cli.projects.option.description">
      <source>A description of the project.</source>
      <translation>Een beschrijving van het project.</translation>
    </message>
    <message id="cli.projects.option.idle">
      <source>Archive every project of yours without work for this many days.</source>
      <translation>Archiveer al je projecten zonder werk in zoveel dagen.</translation>
    </message>
    <message id="cli.projects.option.team">
      <source>The team the new project belongs to.</source>
      <translation>Het team waartoe het nieuwe project hoort.</translation>
    </message>
    <message id="cli.projects.renamed">
      <source>Renamed %1 to %2.</source>
      <translation>%1 hernoemd naar %2.</translation>
    </message>
    <message id="cli.projects.taskCount">
      <source>tasks: %1</source>
      <translation>taken: %1</translation>
    </message>
    <message id="cli.projects.team">
      <source>team %1</source>
      <translation>team %1</translation>
    </message>
    <message id="cli.projects.usage">
      <source>Usage: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</source>
      <translation>Gebruik: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</translation>
    </message>
    <message id="cli.recap.usage">
      <source>Usage: morvane recap [--lang L] [--yes] [--json]</source>
      <translation>Gebruik: morvane recap [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.ref.ambiguous">
      <source>"%1" matches several: %2. Use the id.</source>
      <translation>"%1" past bij meerdere: %2. Gebruik de id.</translation>
    </message>
    <message id="cli.ref.noInvitation">
      <source>No invitation to a team matches "%1". See them with: morvane teams invitations</source>
      <translation>Geen uitnodiging voor een team komt overeen met "%1". Bekijk ze met: morvane teams invitations</translation>
    </message>
    <message id="cli.ref.noProject">
      <source>No project matches "%1".</source>
      <translation>Geen project past bij "%1".</translation>
    </message>
    <message id="cli.ref.noTask">
      <source>No task matches "%1".</source>
      <translation>Geen taak past bij "%1".</translation>
    </message>
    <message id="cli.ref.noTeam">
      <source>No team matches "%1".</source>
      <translation>Geen team past bij "%1".</translation>
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
    <message id="cli.sessions.burst">
      <source>%1. %2 to %3 · active %4 · prompts: %5 · %6</source>
      <translation>%1. %2 tot %3 · actief %4 · prompts: %5 · %6</translation>
    </message>
    <message id="cli.sessions.err.days">
      <source>--days takes a whole number of days from 1 to 36500.</source>
      <translation>--days verwacht een heel aantal dagen van 1 tot 36500.</translation>
    </message>
    <message id="cli.sessions.err.unknownSession">
      <source>No session %1 among the logs of the last 60 days.</source>
      <translation>Geen sessie %1 in de logs van de laatste 60 dagen.</translation>
    </message>
    <message id="cli.sessions.group">
      <source>%1 · sessions: %2 · active %3</source>
      <translation>%1 · sessies: %2 · actief %3</translation>
    </message>
    <message id="cli.sessions.ignored">
      <source>Ignored %1: %2 sessions there will not be logged.</source>
      <translation>%1 genegeerd: %2 sessies daar worden niet gelogd.</translation>
    </message>
    <message id="cli.sessions.mapped">
      <source>%1 is mapped to project %2.</source>
      <translation>%1 is gekoppeld aan project %2.</translation>
    </message>
    <message id="cli.sessions.none">
      <source>No Claude sessions parsed yet</source>
      <translation>Nog geen Claude-sessies ingelezen</translation>
    </message>
    <message id="cli.sessions.option.all">
      <source>Every session (with reimport).</source>
      <translation>Alle sessies (bij reimport).</translation>
    </message>
    <message id="cli.sessions.option.days">
      <source>Sessions whose log changed in the last N days (30 when not given).</source>
      <translation>Sessies waarvan de log in de laatste N dagen is gewijzigd (30 als niets is opgegeven).</translation>
    </message>
    <message id="cli.sessions.pending">
      <source>Not mapped to a project: %1 · sessions: %2 · active %3</source>
      <translation>Nog niet aan een project gekoppeld: %1 · sessies: %2 · actief %3</translation>
    </message>
    <message id="cli.sessions.reimportAll">
      <source>Every session will be logged again by the next scan.</source>
      <translation>Alle sessies worden bij de volgende scan opnieuw gelogd.</translation>
    </message>
    <message id="cli.sessions.reimportLogged">
      <source>Session %1 logged again: %2 of %3 work bursts.</source>
      <translation>Sessie %1 opnieuw gelogd: %2 van %3 werkblokken.</translation>
    </message>
    <message id="cli.sessions.reimportOne">
      <source>Session %1 will be logged again by the next scan.</source>
      <translation>Sessie %1 wordt bij de volgende scan opnieuw gelogd.</translation>
    </message>
    <message id="cli.sessions.scanned">
      <source>Sessions seen: %1 · work bursts logged: %2 · time logged: %3 (%4 minutes) · failed: %5</source>
      <translation>Sessies gezien: %1 · werkblokken gelogd: %2 · tijd gelogd: %3 (%4 minuten) · mislukt: %5</translation>
    </message>
    <message id="cli.sessions.session">
      <source>%1 · %2 to %3 · active %4 · prompts: %5</source>
      <translation>%1 · %2 tot %3 · actief %4 · prompts: %5</translation>
    </message>
    <message id="cli.sessions.trackOff">
      <source>Claude sessions are no longer tracked.</source>
      <translation>Claude-sessies worden niet meer bijgehouden.</translation>
    </message>
    <message id="cli.sessions.trackOn">
      <source>Claude sessions are tracked: every minute the new work bursts of mapped folders are logged.</source>
      <translation>Claude-sessies worden bijgehouden: elke minuut worden de nieuwe werkblokken van gekoppelde mappen gelogd.</translation>
    </message>
    <message id="cli.sessions.usage">
      <source>Usage: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</source>
      <translation>Gebruik: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</translation>
    </message>
    <message id="cli.sessions.where">
      <source>Looked for logs changed in the last %1 days in %2.</source>
      <translation>Gezocht naar logs die in de laatste %1 dagen zijn gewijzigd, in %2.</translation>
    </message>
    <message id="cli.standup.usage">
      <source>Usage: morvane standup [--lang L] [--yes] [--json]</source>
      <translation>Gebruik: morvane standup [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.summary.fixed">
      <source>Written from your figures alone; the model's text was not used (%1).</source>
      <translation>Alleen uit je eigen cijfers geschreven; de tekst van het model is niet gebruikt (%1).</translation>
    </message>
    <message id="cli.summary.option.lang">
      <source>Language of the text: en, nl, de, fr, es, it, pt, ja or th; others mean English. Default: the interface language.</source>
      <translation>Taal van de tekst: en, nl, de, fr, es, it, pt, ja of th; een andere betekent Engels. Standaard: de taal van de interface.</translation>
    </message>
    <message id="cli.tasks.added">
      <source>Added task %1 (%2) to %3.</source>
      <translation>Taak %1 (%2) toegevoegd aan %3.</translation>
    </message>
    <message id="cli.tasks.badDue">
      <source>Not a day: %1. Write it as YYYY-MM-DD.</source>
      <translation>Geen dag: %1. Schrijf het als YYYY-MM-DD.</translation>
    </message>
    <message id="cli.tasks.badOrder">
      <source>Unknown filter or sort. Filters: %1. Sorts: %2.</source>
      <translation>Onbekend filter of onbekende sortering. Filters: %1. Sorteringen: %2.</translation>
    </message>
    <message id="cli.tasks.badStatus">
      <source>Unknown status %1. Statuses: %2.</source>
      <translation>Onbekende status %1. Statussen: %2.</translation>
    </message>
    <message id="cli.tasks.deleted">
      <source>Deleted %1.</source>
      <translation>%1 verwijderd.</translation>
    </message>
    <message id="cli.tasks.due">
      <source>due %1</source>
      <translation>deadline %1</translation>
    </message>
    <message id="cli.tasks.high">
      <source>high</source>
      <translation>hoog</translation>
    </message>
    <message id="cli.tasks.low">
      <source>low</source>
      <translation>laag</translation>
    </message>
    <message id="cli.tasks.medium">
      <source>medium</source>
      <translation>gemiddeld</translation>
    </message>
    <message id="cli.tasks.moved">
      <source>Moved %1 to %2.</source>
      <translation>%1 verplaatst naar %2.</translation>
    </message>
    <message id="cli.tasks.none">
      <source>  No tasks to show.</source>
      <translation>  Geen taken om te tonen.</translation>
    </message>
    <message id="cli.tasks.option.description">
      <source>The task's description; empty clears it.</source>
      <translation>De beschrijving van de taak; leeg wist haar.</translation>
    </message>
    <message id="cli.tasks.option.due">
      <source>The day the task is due (YYYY-MM-DD); empty clears it.</source>
      <translation>De dag waarop de taak af moet zijn (YYYY-MM-DD); leeg wist hem.</translation>
    </message>
    <message id="cli.tasks.option.filter">
      <source>Which tasks to list: %1.</source>
      <translation>Welke taken te tonen: %1.</translation>
    </message>
    <message id="cli.tasks.option.sort">
      <source>How to order the list: %1.</source>
      <translation>Hoe de lijst te sorteren: %1.</translation>
    </message>
    <message id="cli.tasks.option.title">
      <source>The task's new title.</source>
      <translation>De nieuwe titel van de taak.</translation>
    </message>
    <message id="cli.tasks.running">
      <source>timer running</source>
      <translation>timer loopt</translation>
    </message>
    <message id="cli.tasks.saved">
      <source>Saved %1.</source>
      <translation>%1 opgeslagen.</translation>
    </message>
    <message id="cli.tasks.statusSet">
      <source>%1 is now %2.</source>
      <translation>%1 is nu %2.</translation>
    </message>
    <message id="cli.tasks.usage">
      <source>Usage: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</source>
      <translation>Gebruik: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</translation>
    </message>
    <message id="cli.teams.accepted">
      <source>You are now in team %1, as %2.</source>
      <translation>Je zit nu in team %1, als %2.</translation>
    </message>
    <message id="cli.teams.answerHint">
      <source>Answer with: morvane teams accept &lt;team&gt; or morvane teams decline &lt;team&gt;</source>
      <translation>Antwoord met: morvane teams accept &lt;team&gt; of morvane teams decline &lt;team&gt;</translation>
    </message>
    <message id="cli.teams.assigned">
      <source>%1 now belongs to team %2.</source>
      <translation>%1 hoort nu bij team %2.</translation>
    </message>
    <message id="cli.teams.created">
      <source>Created team %1 (%2).</source>
      <translation>Team %1 (%2) aangemaakt.</translation>
    </message>
    <message id="cli.teams.declined">
      <source>You declined the invitation to %1.</source>
      <translation>Je hebt de uitnodiging voor %1 afgeslagen.</translation>
    </message>
    <message id="cli.teams.editor">
      <source>editor</source>
      <translation>bewerker</translation>
    </message>
    <message id="cli.teams.invitation">
      <source>%1 (%2): as %3, from %4</source>
      <translation>%1 (%2): als %3, van %4</translation>
    </message>
    <message id="cli.teams.noInvitations">
      <source>No invitations wait for your answer.</source>
      <translation>Er wachten geen uitnodigingen op je antwoord.</translation>
    </message>
    <message id="cli.teams.none">
      <source>No teams. Create one with: morvane teams create &lt;name&gt;</source>
      <translation>Geen teams. Maak er een met: morvane teams create &lt;name&gt;</translation>
    </message>
    <message id="cli.teams.option.role">
      <source>The role of the invited member: editor or viewer.</source>
      <translation>De rol van het uitgenodigde lid: editor of viewer.</translation>
    </message>
    <message id="cli.teams.owner">
      <source>owner</source>
      <translation>eigenaar</translation>
    </message>
    <message id="cli.teams.pending">
      <source>invited</source>
      <translation>uitgenodigd</translation>
    </message>
    <message id="cli.teams.projects">
      <source>Projects: %1</source>
      <translation>Projecten: %1</translation>
    </message>
    <message id="cli.teams.unassigned">
      <source>%1 no longer belongs to a team.</source>
      <translation>%1 hoort niet meer bij een team.</translation>
    </message>
    <message id="cli.teams.usage">
      <source>Usage: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</source>
      <translation>Gebruik: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</translation>
    </message>
    <message id="cli.teams.viewer">
      <source>viewer</source>
      <translation>kijker</translation>
    </message>
    <message id="cli.teams.you">
      <source>you: %1</source>
      <translation>jij: %1</translation>
    </message>
    <message id="cli.timer.idle">
      <source>No timer runs.</source>
      <translation>Er loopt geen timer.</translation>
    </message>
    <message id="cli.timer.nothingToResume">
      <source>No task has time yet, so there is none to go on with. Start one with: morvane timer start &lt;task&gt;</source>
      <translation>Nog geen enkele taak heeft tijd, dus er is geen om mee verder te gaan. Start er een met: morvane timer start &lt;task&gt;</translation>
    </message>
    <message id="cli.timer.running">
      <source>%1 (%2): %3 running, %4 in all</source>
      <translation>%1 (%2): %3 lopend, %4 in totaal</translation>
    </message>
    <message id="cli.timer.started">
      <source>Timer started on %1.</source>
      <translation>Timer gestart op %1.</translation>
    </message>
    <message id="cli.timer.stopped">
      <source>Stopped %1: %2 logged, %3 in all.</source>
      <translation>%1 gestopt: %2 geregistreerd, %3 in totaal.</translation>
    </message>
    <message id="cli.timer.usage">
      <source>Usage: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</source>
      <translation>Gebruik: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</translation>
    </message>
    <message id="cli.travel.option.mode">
      <source>How you usually travel: car, bike, walk, transit or other.</source>
      <translation>Hoe je meestal reist: car, bike, walk, transit of other.</translation>
    </message>
    <message id="cli.travel.option.rate">
      <source>Your rate per kilometre, used where a project names none.</source>
      <translation>Je tarief per kilometer, voor projecten zonder eigen tarief.</translation>
    </message>
    <message id="cli.travel.show">
      <source>Rate per kilometre: %1. Usually travel by: %2.</source>
      <translation>Tarief per kilometer: %1. Reist meestal met: %2.</translation>
    </message>
    <message id="cli.travel.usage">
      <source>Usage: morvane travel show | set [--rate R] [--mode M] [--json]</source>
      <translation>Gebruik: morvane travel show | set [--rate R] [--mode M] [--json]</translation>
    </message>
    <message id="cli.trips.added">
      <source>Added trip %1: %2 km.</source>
      <translation>Rit %1 toegevoegd: %2 km.</translation>
    </message>
    <message id="cli.trips.deleted">
      <source>Deleted trip %1.</source>
      <translation>Rit %1 verwijderd.</translation>
    </message>
    <message id="cli.trips.exported">
      <source>Wrote %1 trips to %2.</source>
      <translation>%1 ritten geschreven naar %2.</translation>
    </message>
    <message id="cli.trips.invoiced">
      <source>invoiced</source>
      <translation>gefactureerd</translation>
    </message>
    <message id="cli.trips.needKm">
      <source>The distance is unknown: the places were not found. Give it with --km.</source>
      <translation>De afstand is onbekend: de plaatsen zijn niet gevonden. Geef hem op met --km.</translation>
    </message>
    <message id="cli.trips.noMatch">
      <source>No single trip matches "%1". See them with: morvane trips list</source>
      <translation>Geen enkele rit past bij "%1". Bekijk ze met: morvane trips list</translation>
    </message>
    <message id="cli.trips.notCharged">
      <source>not charged</source>
      <translation>niet doorberekend</translation>
    </message>
    <message id="cli.trips.option.date">
      <source>The day of the trip (YYYY-MM-DD).</source>
      <translation>De dag van de rit (JJJJ-MM-DD).</translation>
    </message>
    <message id="cli.trips.option.from">
      <source>Where the trip started: an address, a place or "lat,lng"; for an export, the first day.</source>
      <translation>Waar de rit begon: een adres, een plaats of "lat,lng"; bij een export de eerste dag.</translation>
    </message>
    <message id="cli.trips.option.km">
      <source>The distance in kilometres; without it the road route, else the straight-line estimate.</source>
      <translation>De afstand in kilometers; zonder: de route over de weg, anders de schatting in rechte lijn.</translation>
    </message>
    <message id="cli.trips.option.mode">
      <source>car, bike, walk, transit or other.</source>
      <translation>car, bike, walk, transit of other.</translation>
    </message>
    <message id="cli.trips.option.notBillable">
      <source>A business trip that is not charged to the client.</source>
      <translation>Een zakelijke rit die niet aan de klant wordt doorberekend.</translation>
    </message>
    <message id="cli.trips.option.out">
      <source>The CSV file to write.</source>
      <translation>Het CSV-bestand om te schrijven.</translation>
    </message>
    <message id="cli.trips.option.private">
      <source>A private trip; never charged.</source>
      <translation>Een privérit; wordt nooit doorberekend.</translation>
    </message>
    <message id="cli.trips.option.project">
      <source>The project the trip served.</source>
      <translation>Het project waarvoor de rit was.</translation>
    </message>
    <message id="cli.trips.option.purpose">
      <source>What the trip was for.</source>
      <translation>Waarvoor de rit was.</translation>
    </message>
    <message id="cli.trips.option.task">
      <source>The task the trip served.</source>
      <translation>De taak waarvoor de rit was.</translation>
    </message>
    <message id="cli.trips.option.to">
      <source>Where the trip ended; for an export, the last day.</source>
      <translation>Waar de rit eindigde; bij een export de laatste dag.</translation>
    </message>
    <message id="cli.trips.placeUnknown">
      <source>No place was found for "%1".</source>
      <translation>Geen plaats gevonden voor "%1".</translation>
    </message>
    <message id="cli.trips.private">
      <source>private</source>
      <translation>privé</translation>
    </message>
    <message id="cli.trips.saved">
      <source>Saved trip %1.</source>
      <translation>Rit %1 opgeslagen.</translation>
    </message>
    <message id="cli.trips.usage">
      <source>Usage: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</source>
      <translation>Gebruik: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</translation>
    </message>
    <message id="client.err.nameMissing">
      <source>A client needs a name.</source>
      <translation>Een klant heeft een naam nodig.</translation>
    </message>
    <message id="client.err.notCreated">
      <source>The client was not saved: you may not add clients to that team.</source>
      <translation>De klant is niet opgeslagen: je mag geen klanten aan dat team toevoegen.</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>Je klanten konden niet worden geladen.</translation>
    </message>
    <message id="client.err.notSaved">
      <source>The client was not changed: you may not edit it, or it no longer exists.</source>
      <translation>De klant is niet gewijzigd: je mag deze niet bewerken, of hij bestaat niet meer.</translation>
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
    <message id="entry.err.notLogged">
      <source>The time was not logged: you may not log time on this task, or it no longer exists.</source>
      <translation>De tijd is niet geregistreerd: je mag op deze taak geen tijd registreren, of ze bestaat niet meer.</translation>
    </message>
    <message id="entry.err.notSaved">
      <source>The time entry was not saved: it is not yours or it no longer exists.</source>
      <translation>De tijdregistratie is niet opgeslagen: ze is niet van jou of bestaat niet meer.</translation>
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
    <message id="inv.err.allocateNumber">
      <source>Allocate invoice number failed: %1</source>
      <translation>Factuurnummer toewijzen mislukt: %1</translation>
    </message>
    <message id="inv.err.alreadyBilled">
      <source>Some of these hours are already on another invoice. The list was refreshed: check it and try again.</source>
      <translation>Een deel van deze uren staat al op een andere factuur. De lijst is vernieuwd: controleer hem en probeer het opnieuw.</translation>
    </message>
    <message id="inv.err.delete">
      <source>Delete invoice failed: %1</source>
      <translation>Factuur verwijderen mislukt: %1</translation>
    </message>
    <message id="inv.err.loadInvoices">
      <source>Load invoices failed: %1</source>
      <translation>Facturen laden mislukt: %1</translation>
    </message>
    <message id="inv.err.loadLines">
      <source>Load invoice lines failed: %1</source>
      <translation>Factuurregels laden mislukt: %1</translation>
    </message>
    <message id="inv.err.notReady">
      <source>Still reading what was billed before.</source>
      <translation>Bezig met lezen wat al eerder gefactureerd is.</translation>
    </message>
    <message id="inv.err.pdfLink">
      <source>The invoice PDF could not be opened: %1</source>
      <translation>De factuur-pdf kon niet worden geopend: %1</translation>
    </message>
    <message id="inv.err.pdfReplace">
      <source>The invoice PDF could not be replaced: %1</source>
      <translation>De factuur-pdf kon niet worden vervangen: %1</translation>
    </message>
    <message id="inv.err.priorBilling">
      <source>Could not read which work was billed before. Billing waits until this works, so no fixed price or extra is billed twice.</source>
      <translation>Kon niet lezen welk werk al eerder gefactureerd is. Factureren wacht tot dit lukt, zodat geen vaste prijs of toeslag twee keer gefactureerd wordt.</translation>
    </message>
    <message id="inv.err.saveFailed">
      <source>Save invoice failed: %1</source>
      <translation>Factuur opslaan mislukt: %1</translation>
    </message>
    <message id="inv.err.unbilled">
      <source>Could not read which time is still unbilled.</source>
      <translation>Kon niet lezen welke tijd nog niet gefactureerd is.</translation>
    </message>
    <message id="inv.err.updateStatus">
      <source>Update invoice status failed: %1</source>
      <translation>Factuurstatus bijwerken mislukt: %1</translation>
    </message>
    <message id="inv.err.voidFailed">
      <source>Voiding the invoice failed: %1</source>
      <translation>Factuur vervallen verklaren mislukt: %1</translation>
    </message>
    <message id="inv.err.voidUnavailable">
      <source>Voiding is not available yet because the server has not been updated. Try again later.</source>
      <translation>Vervallen verklaren kan nog niet omdat de server nog niet is bijgewerkt. Probeer het later opnieuw.</translation>
    </message>
    <message id="inv.extrasBilledBefore">
      <source>extras already billed</source>
      <translation>extra's al gefactureerd</translation>
    </message>
    <message id="inv.followUp">
      <source>FOLLOW-UP</source>
      <translation>VERVOLG</translation>
    </message>
    <message id="inv.inProjectPrice">
      <source>included in the project price</source>
      <translation>inbegrepen in de projectprijs</translation>
    </message>
    <message id="inv.leftOut.many">
      <source>%1 time entries already billed, left out</source>
      <translation>%1 tijdregistraties al gefactureerd, weggelaten</translation>
    </message>
    <message id="inv.leftOut.one">
      <source>1 time entry already billed, left out</source>
      <translation>1 tijdregistratie al gefactureerd, weggelaten</translation>
    </message>
    <message id="inv.line.discount">
      <source>Discount</source>
      <translation>Korting</translation>
    </message>
    <message id="inv.line.fixedPrice">
      <source>fixed price</source>
      <translation>vaste prijs</translation>
    </message>
    <message id="inv.line.materials">
      <source>Materials</source>
      <translation>Materiaal</translation>
    </message>
    <message id="inv.line.minimum">
      <source>Minimum charge</source>
      <translation>Minimumbedrag</translation>
    </message>
    <message id="inv.line.projectPrice">
      <source>Project price</source>
      <translation>Projectprijs</translation>
    </message>
    <message id="inv.line.surcharge">
      <source>Call-out fee</source>
      <translation>Voorrijkosten</translation>
    </message>
    <message id="inv.oncePerProject">
      <source>once per project</source>
      <translation>eenmaal per project</translation>
    </message>
    <message id="inv.onlyNewTime">
      <source>new time only</source>
      <translation>alleen nieuwe tijd</translation>
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
    <message id="inv.priceBilledBefore">
      <source>fixed price already billed</source>
      <translation>vaste prijs al gefactureerd</translation>
    </message>
    <message id="inv.projectExtras">
      <source>Project extras</source>
      <translation>Projectextra's</translation>
    </message>
    <message id="inv.rebill">
      <source>Bill again</source>
      <translation>Opnieuw factureren</translation>
    </message>
    <message id="inv.rebillHelp">
      <source>This work was billed before. Its fixed or per-unit price, minimum charge, call-out fee, materials and a fixed discount are billed once. Turn this on to bill them again.</source>
      <translation>Dit werk is al eerder gefactureerd. De vaste prijs of prijs per eenheid, het minimumbedrag, de voorrijkosten, het materiaal en een vaste korting worden één keer gefactureerd. Zet dit aan om ze opnieuw te factureren.</translation>
    </message>
    <message id="inv.saved">
      <source>Invoice %1 saved</source>
      <translation>Factuur %1 opgeslagen</translation>
    </message>
    <message id="inv.style.colour.invalid">
      <source>“%1” is no colour: write it as #rgb or #rrggbb, for example #0f766e.</source>
      <translation>‘%1’ is geen kleur: schrijf die als #rgb of #rrggbb, bijvoorbeeld #0f766e.</translation>
    </message>
    <message id="inv.style.file.unreadable">
      <source>The file could not be opened.</source>
      <translation>Het bestand kon niet worden geopend.</translation>
    </message>
    <message id="inv.style.font.invalid">
      <source>A font name holds only letters, digits, blanks and hyphens.</source>
      <translation>Een lettertypenaam bevat alleen letters, cijfers, spaties en koppeltekens.</translation>
    </message>
    <message id="inv.style.logo.damaged">
      <source>The image could not be read; the file may be damaged.</source>
      <translation>De afbeelding kon niet worden gelezen; het bestand is mogelijk beschadigd.</translation>
    </message>
    <message id="inv.style.logo.empty">
      <source>The file is empty.</source>
      <translation>Het bestand is leeg.</translation>
    </message>
    <message id="inv.style.logo.kind">
      <source>The logo must be a PNG or JPEG image.</source>
      <translation>Het logo moet een PNG- of JPEG-afbeelding zijn.</translation>
    </message>
    <message id="inv.style.logo.svg">
      <source>SVG logos are not accepted, since a drawing can carry scripts and links. Pick a PNG or JPEG.</source>
      <translation>SVG-logo’s worden niet geaccepteerd, omdat een tekening scripts en links kan bevatten. Kies een PNG of JPEG.</translation>
    </message>
    <message id="inv.style.logo.tooLarge">
      <source>The logo is larger than 1 MB. Pick a smaller PNG or JPEG.</source>
      <translation>Het logo is groter dan 1 MB. Kies een kleinere PNG of JPEG.</translation>
    </message>
    <message id="inv.style.template.empty">
      <source>The template is empty.</source>
      <translation>Het sjabloon is leeg.</translation>
    </message>
    <message id="inv.style.template.noDoctype">
      <source>The template must start with &lt;!doctype html&gt;.</source>
      <translation>Het sjabloon moet beginnen met &lt;!doctype html&gt;.</translation>
    </message>
    <message id="inv.style.template.noFooter">
      <source>The template has no &lt;footer&gt; element.</source>
      <translation>Het sjabloon heeft geen &lt;footer&gt;-element.</translation>
    </message>
    <message id="inv.style.template.noHeader">
      <source>The template has no &lt;header&gt; element.</source>
      <translation>Het sjabloon heeft geen &lt;header&gt;-element.</translation>
    </message>
    <message id="inv.style.template.notText">
      <source>The template is not a text file in UTF-8.</source>
      <translation>Het sjabloon is geen tekstbestand in UTF-8.</translation>
    </message>
    <message id="inv.style.template.pageSize">
      <source>The template must fix the page at 794 × 1123 px (A4), with both sizes in its style sheet.</source>
      <translation>Het sjabloon moet de pagina vastzetten op 794 × 1123 px (A4), met beide maten in het stijlblad.</translation>
    </message>
    <message id="inv.style.template.tooLarge">
      <source>The template is larger than 512 KB.</source>
      <translation>Het sjabloon is groter dan 512 KB.</translation>
    </message>
    <message id="inv.subtotal">
      <source>Subtotal</source>
      <translation>Subtotaal</translation>
    </message>
    <message id="inv.total">
      <source>Total</source>
      <translation>Totaal</translation>
    </message>
    <message id="inv.unit.days">
      <source>day</source>
      <translation>dag</translation>
    </message>
    <message id="inv.unit.hours">
      <source>h</source>
      <translation>u</translation>
    </message>
    <message id="inv.unit.units">
      <source>unit</source>
      <translation>eenheid</translation>
    </message>
    <message id="inv.vat.hint">
      <source>Each line uses the VAT rate of its price settings, else the template's rate.</source>
      <translation>Elke regel gebruikt het btw-tarief van zijn prijsinstelling, anders dat van de sjabloon.</translation>
    </message>
    <message id="inv.vat.none">
      <source>No VAT on these lines</source>
      <translation>Geen btw op deze regels</translation>
    </message>
    <message id="inv.vat.override">
      <source>Set VAT manually</source>
      <translation>Btw handmatig instellen</translation>
    </message>
    <message id="inv.vat.row">
      <source>VAT %1%</source>
      <translation>Btw %1%</translation>
    </message>
    <message id="inv.vat.rowOver">
      <source>VAT %1% on %2</source>
      <translation>Btw %1% over %2</translation>
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
    <message id="inviteRateLimited">
      <source>You have sent many invitations in the last hour. Try again later.</source>
      <translation>Je hebt het afgelopen uur veel uitnodigingen verstuurd. Probeer het later opnieuw.</translation>
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
    <message id="invoiceErrTripsTaken">
      <source>Some of these trips are already on another invoice. Refresh and try again.</source>
      <translation>Een deel van deze ritten staat al op een andere factuur. Vernieuw en probeer het opnieuw.</translation>
    </message>
    <message id="invoiceErrVoidFinal">
      <source>This invoice is void. A void invoice cannot be changed back.</source>
      <translation>Deze factuur is vervallen. Een vervallen factuur kan niet worden teruggezet.</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Gemaakt met Morvane</translation>
    </message>
    <message id="invoicePeriodLast30">
      <source>Last 30 days</source>
      <translation>Laatste 30 dagen</translation>
    </message>
    <message id="invoicePeriodLast7">
      <source>Last 7 days</source>
      <translation>Laatste 7 dagen</translation>
    </message>
    <message id="invoicePeriodLastMonth">
      <source>Last month</source>
      <translation>Vorige maand</translation>
    </message>
    <message id="invoicePeriodThisMonth">
      <source>This month</source>
      <translation>Deze maand</translation>
    </message>
    <message id="invoiceTravelInclude">
      <source>Charge travel</source>
      <translation>Reiskosten rekenen</translation>
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
    <message id="store.style.err.notLoaded">
      <source>Your invoice style could not be loaded.</source>
      <translation>Je factuurstijl kon niet worden geladen.</translation>
    </message>
    <message id="store.style.err.notSaved">
      <source>The invoice style was not saved: you may not change this template, or it no longer exists.</source>
      <translation>De factuurstijl is niet opgeslagen: je mag dit sjabloon niet wijzigen, of het bestaat niet meer.</translation>
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
    <message id="task.custom">
      <source>Custom for this task</source>
      <translation>Eigen prijs voor deze taak</translation>
    </message>
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>De taak is niet aangemaakt: je mag geen taken aan dit project toevoegen.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>De taak is niet gewijzigd: je mag deze niet bewerken, of ze bestaat niet meer.</translation>
    </message>
    <message id="task.inheritedFrom">
      <source>Inherited from %1</source>
      <translation>Overgenomen van %1</translation>
    </message>
    <message id="task.savePrice">
      <source>Save task price</source>
      <translation>Taakprijs opslaan</translation>
    </message>
    <message id="task.useProject">
      <source>Use project price</source>
      <translation>Projectprijs gebruiken</translation>
    </message>
    <message id="team.err.invitationNotAnswered">
      <source>The invitation could not be answered. Try again.</source>
      <translation>De uitnodiging kon niet worden beantwoord. Probeer het opnieuw.</translation>
    </message>
    <message id="team.err.memberNotChanged">
      <source>The member was not changed: only the team owner can change roles and remove people.</source>
      <translation>Het lid is niet gewijzigd: alleen de eigenaar van het team kan rollen wijzigen en mensen verwijderen.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>Het team is niet aangemaakt. Probeer het opnieuw.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>Je teams konden niet worden geladen.</translation>
    </message>
    <message id="time.hoursMinutes">
      <source>%1h %2m</source>
      <translation>%1u %2m</translation>
    </message>
    <message id="time.minutes">
      <source>%1m</source>
      <translation>%1m</translation>
    </message>
    <message id="timer.err.notStopped">
      <source>The time could not be logged, so the timer keeps running. Try stopping it again.</source>
      <translation>De tijd kon niet worden geregistreerd, dus de timer loopt door. Probeer hem opnieuw te stoppen.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>De timer van deze taak is op een ander apparaat gestart, dus de status is niet gewijzigd.</translation>
    </message>
    <message id="travelDescribeMany">
      <source>%1 km in %2 trips</source>
      <translation>%1 km in %2 ritten</translation>
    </message>
    <message id="travelDescribeOne">
      <source>%1 km in 1 trip</source>
      <translation>%1 km in 1 rit</translation>
    </message>
    <message id="travelKm">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="travelTitle">
      <source>Travel</source>
      <translation>Reiskosten</translation>
    </message>
    <message id="travelTrip">
      <source>trip</source>
      <translation>rit</translation>
    </message>
    <message id="trip.err.notLoaded">
      <source>Your trips could not be loaded. Check your connection and try again.</source>
      <translation>Je ritten konden niet worden geladen. Controleer je verbinding en probeer het opnieuw.</translation>
    </message>
    <message id="trip.err.notSaved">
      <source>The trip was not saved: it no longer exists or you may not change it.</source>
      <translation>De rit is niet opgeslagen: hij bestaat niet meer of je mag hem niet wijzigen.</translation>
    </message>
    <message id="trip.err.settingsNotSaved">
      <source>Your travel settings were not saved.</source>
      <translation>Je reisinstellingen zijn niet opgeslagen.</translation>
    </message>
    <message id="tripDeleteConfirm">
      <source>Delete this trip? This cannot be undone.</source>
      <translation>Deze rit verwijderen? Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message id="tripDistanceByRoad">
      <source>Distance by road, about %1 min. Change it if you went another way.</source>
      <translation>Afstand over de weg, ongeveer %1 min. Pas hem aan als je een andere weg nam.</translation>
    </message>
    <message id="tripDistanceEstimate">
      <source>Kilometres are an estimate from the addresses; change them if needed.</source>
      <translation>De kilometers zijn een schatting op basis van de adressen; pas ze zo nodig aan.</translation>
    </message>
    <message id="tripErrNoService">
      <source>No routing or address service is set up.</source>
      <translation>Er is geen route- of adresdienst ingesteld.</translation>
    </message>
    <message id="tripErrNotFound">
      <source>No place or route was found for this.</source>
      <translation>Hiervoor is geen plaats of route gevonden.</translation>
    </message>
    <message id="tripInProgress">
      <source>Trip in progress</source>
      <translation>Rit onderweg</translation>
    </message>
    <message id="tripSearchFailed">
      <source>Searching did not work. Check your connection and try again.</source>
      <translation>Zoeken is niet gelukt. Controleer je verbinding en probeer het opnieuw.</translation>
    </message>
    <message id="tripsEmpty">
      <source>No trips yet. Trips your phone records while a timer runs show up here. You can also add a trip by hand.</source>
      <translation>Nog geen ritten. Ritten die je telefoon vastlegt terwijl een timer loopt, verschijnen hier. Je kunt ook zelf een rit toevoegen.</translation>
    </message>
    <message id="ui.action.floatingTimer">
      <source>Show or hide the floating timer</source>
      <translation>Zwevende timer tonen of verbergen</translation>
    </message>
    <message id="ui.action.newProject">
      <source>New project</source>
      <translation>Nieuw project</translation>
    </message>
    <message id="ui.action.newTask">
      <source>New task</source>
      <translation>Nieuwe taak</translation>
    </message>
    <message id="ui.action.newTeam">
      <source>New team</source>
      <translation>Nieuw team</translation>
    </message>
    <message id="ui.action.quickAdd">
      <source>Quick add: a sentence becomes work…</source>
      <translation>Snel toevoegen: een zin wordt werk…</translation>
    </message>
    <message id="ui.action.settings">
      <source>Settings</source>
      <translation>Instellingen</translation>
    </message>
    <message id="ui.action.signOut">
      <source>Sign out</source>
      <translation>Uitloggen</translation>
    </message>
    <message id="ui.action.toggleTheme">
      <source>Switch between light and dark</source>
      <translation>Wisselen tussen licht en donker</translation>
    </message>
    <message id="ui.action.toggleTimer">
      <source>Start or stop the timer</source>
      <translation>Timer starten of stoppen</translation>
    </message>
    <message id="ui.ai.anthropic">
      <source>Anthropic API with your key</source>
      <translation>Anthropic-API met je sleutel</translation>
    </message>
    <message id="ui.ai.anthropicHelp">
      <source>Straight to Anthropic with the key you keep in your keyring.</source>
      <translation>Rechtstreeks naar Anthropic met de sleutel in je sleutelbos.</translation>
    </message>
    <message id="ui.ai.auto">
      <source>Automatic (recommended)</source>
      <translation>Automatisch (aanbevolen)</translation>
    </message>
    <message id="ui.ai.autoHelp">
      <source>The Claude CLI first; without it, Morvane AI in the cloud.</source>
      <translation>Claude CLI eerst, anders Morvane AI in de cloud.</translation>
    </message>
    <message id="ui.ai.cli">
      <source>Claude CLI only</source>
      <translation>Claude CLI alleen</translation>
    </message>
    <message id="ui.ai.cliHelp">
      <source>Everything local through your own Claude subscription. No network.</source>
      <translation>Alles lokaal via je eigen Claude-abonnement. Geen netwerk.</translation>
    </message>
    <message id="ui.ai.consentAllow">
      <source>Allowed</source>
      <translation>Toegestaan</translation>
    </message>
    <message id="ui.ai.consentAsk">
      <source>Ask first</source>
      <translation>Eerst vragen</translation>
    </message>
    <message id="ui.ai.consentDeny">
      <source>Never send</source>
      <translation>Nooit sturen</translation>
    </message>
    <message id="ui.ai.consents">
      <source>Sending text off this computer</source>
      <translation>Tekst buiten deze computer sturen</translation>
    </message>
    <message id="ui.ai.gemini">
      <source>Google Gemini API with your key</source>
      <translation>Google Gemini-API met je sleutel</translation>
    </message>
    <message id="ui.ai.geminiHelp">
      <source>Straight to Google with the key you keep in your keyring.</source>
      <translation>Rechtstreeks naar Google met de sleutel in je sleutelbos.</translation>
    </message>
    <message id="ui.ai.keyFailed">
      <source>The keyring did not take the change; nothing changed.</source>
      <translation>De sleutelbos nam de wijziging niet aan; er is niets veranderd.</translation>
    </message>
    <message id="ui.ai.keyInvalid">
      <source>That does not look like an API key: paste the key alone, without spaces.</source>
      <translation>Dat lijkt geen API-sleutel: plak alleen de sleutel, zonder spaties.</translation>
    </message>
    <message id="ui.ai.keyName">
      <source>API key for %1</source>
      <translation>API-sleutel voor %1</translation>
    </message>
    <message id="ui.ai.keyPaste">
      <source>Paste your API key</source>
      <translation>Plak je API-sleutel</translation>
    </message>
    <message id="ui.ai.keyRemove">
      <source>Remove</source>
      <translation>Verwijderen</translation>
    </message>
    <message id="ui.ai.keySave">
      <source>Save key</source>
      <translation>Sleutel bewaren</translation>
    </message>
    <message id="ui.ai.keyStored">
      <source>A key is stored; paste another to replace it</source>
      <translation>Er is een sleutel bewaard; plak een andere om hem te vervangen</translation>
    </message>
    <message id="ui.ai.keys">
      <source>Your own API keys (kept in the keyring)</source>
      <translation>Je eigen API-sleutels (bewaard in de sleutelbos)</translation>
    </message>
    <message id="ui.ai.openai">
      <source>OpenAI API with your key</source>
      <translation>OpenAI-API met je sleutel</translation>
    </message>
    <message id="ui.ai.openaiHelp">
      <source>Straight to OpenAI with the key you keep in your keyring.</source>
      <translation>Rechtstreeks naar OpenAI met de sleutel in je sleutelbos.</translation>
    </message>
    <message id="ui.ai.relay">
      <source>Morvane AI only</source>
      <translation>Morvane AI alleen</translation>
    </message>
    <message id="ui.ai.relayHelp">
      <source>Always through the secured relay of your Morvane server. The CLI is ignored.</source>
      <translation>Altijd via de beveiligde doorgifte van je Morvane-server. De CLI wordt genegeerd.</translation>
    </message>
    <message id="ui.ai.route">
      <source>Where model calls go</source>
      <translation>Waar modelaanvragen heen gaan</translation>
    </message>
    <message id="ui.assistant.add">
      <source>Add</source>
      <translation>Toevoegen</translation>
    </message>
    <message id="ui.assistant.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as the task list shows it.</source>
      <translation>Welke taak? Geen van je taken heet "%1", of meerdere wel. Noem hem zoals hij in de takenlijst staat.</translation>
    </message>
    <message id="ui.assistant.consentNo">
      <source>Don't send</source>
      <translation>Niet sturen</translation>
    </message>
    <message id="ui.assistant.consentOnce">
      <source>Morvane asks once for this route and remembers your answer. You can change it in the settings.</source>
      <translation>Morvane vraagt dit één keer voor deze route en onthoudt je antwoord. Je kunt het wijzigen in de instellingen.</translation>
    </message>
    <message id="ui.assistant.consentTitle">
      <source>Send your text to %1?</source>
      <translation>Je tekst naar %1 sturen?</translation>
    </message>
    <message id="ui.assistant.consentYes">
      <source>Send</source>
      <translation>Sturen</translation>
    </message>
    <message id="ui.assistant.empty">
      <source>Type a sentence in your own words: new projects and tasks, time you spent, or start and stop the timer.</source>
      <translation>Typ een zin in je eigen woorden: nieuwe projecten en taken, bestede tijd, of de timer starten en stoppen.</translation>
    </message>
    <message id="ui.assistant.notUnderstood">
      <source>The sentence could not be read: %1</source>
      <translation>De zin kon niet worden gelezen: %1</translation>
    </message>
    <message id="ui.assistant.placeholder">
      <source>Say what to add, e.g. “Logo design for Acme, 3 hours yesterday”</source>
      <translation>Zeg wat je wilt toevoegen, bijv. “Logo-ontwerp voor Acme, gisteren 3 uur”</translation>
    </message>
    <message id="ui.assistant.reading">
      <source>Reading your sentence…</source>
      <translation>Je zin wordt gelezen…</translation>
    </message>
    <message id="ui.assistant.title">
      <source>Quick add</source>
      <translation>Snel toevoegen</translation>
    </message>
    <message id="ui.assistant.tooLong">
      <source>That is more than a sentence or two. Say what to add in a few lines.</source>
      <translation>Dat is meer dan een zin of twee. Zeg in een paar regels wat je wilt toevoegen.</translation>
    </message>
    <message id="ui.auth.aboutYou">
      <source>A little about you</source>
      <translation>Iets over jezelf</translation>
    </message>
    <message id="ui.auth.confirmBody">
      <source>We sent a confirmation link to %1. Open it, then sign in here.</source>
      <translation>We hebben een bevestigingslink naar %1 gestuurd. Open die en log daarna hier in.</translation>
    </message>
    <message id="ui.auth.confirmResent">
      <source>We sent a new confirmation link to %1.</source>
      <translation>We hebben een nieuwe bevestigingslink naar %1 gestuurd.</translation>
    </message>
    <message id="ui.auth.confirmSent">
      <source>We sent a link to %1. Open it to confirm your address, then sign in.</source>
      <translation>We hebben een link naar %1 gestuurd. Open die om je adres te bevestigen en log daarna in.</translation>
    </message>
    <message id="ui.auth.confirmTitle">
      <source>Confirm your e-mail</source>
      <translation>Bevestig je e-mailadres</translation>
    </message>
    <message id="ui.auth.continueAs">
      <source>Continue as %1</source>
      <translation>Doorgaan als %1</translation>
    </message>
    <message id="ui.auth.continueWith">
      <source>Continue with %1</source>
      <translation>Doorgaan met %1</translation>
    </message>
    <message id="ui.auth.createAccount">
      <source>Create your account</source>
      <translation>Maak je account aan</translation>
    </message>
    <message id="ui.auth.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.auth.forgot">
      <source>Forgot password?</source>
      <translation>Wachtwoord vergeten?</translation>
    </message>
    <message id="ui.auth.getStarted">
      <source>Get started</source>
      <translation>Aan de slag</translation>
    </message>
    <message id="ui.auth.haveAccount">
      <source>I already have an account</source>
      <translation>Ik heb al een account</translation>
    </message>
    <message id="ui.auth.password">
      <source>Password</source>
      <translation>Wachtwoord</translation>
    </message>
    <message id="ui.auth.passwordHint">
      <source>At least 8 characters.</source>
      <translation>Minstens 8 tekens.</translation>
    </message>
    <message id="ui.auth.rememberMe">
      <source>Remember me on this computer</source>
      <translation>Ingelogd blijven op deze computer</translation>
    </message>
    <message id="ui.auth.resend">
      <source>Send the link again</source>
      <translation>Link opnieuw versturen</translation>
    </message>
    <message id="ui.auth.resetSent">
      <source>Check your inbox for the reset link.</source>
      <translation>Kijk in je inbox voor de resetlink.</translation>
    </message>
    <message id="ui.auth.resetTitle">
      <source>Reset your password</source>
      <translation>Wachtwoord opnieuw instellen</translation>
    </message>
    <message id="ui.auth.sendReset">
      <source>Send the reset link</source>
      <translation>Resetlink versturen</translation>
    </message>
    <message id="ui.auth.signInTitle">
      <source>Sign in</source>
      <translation>Inloggen</translation>
    </message>
    <message id="ui.auth.toSignIn">
      <source>Back to sign in</source>
      <translation>Terug naar inloggen</translation>
    </message>
    <message id="ui.auth.toSignUp">
      <source>Create an account</source>
      <translation>Account aanmaken</translation>
    </message>
    <message id="ui.auth.welcome">
      <source>Welcome to Morvane</source>
      <translation>Welkom bij Morvane</translation>
    </message>
    <message id="ui.auth.welcomeBody">
      <source>Track your time on projects and tasks, and turn it into invoices. Your data stays on this computer unless you connect a shared server.</source>
      <translation>Registreer je tijd op projecten en taken en maak er facturen van. Je gegevens blijven op deze computer, tenzij je een gedeelde server koppelt.</translation>
    </message>
    <message id="ui.calendar.add">
      <source>Add calendar</source>
      <translation>Agenda toevoegen</translation>
    </message>
    <message id="ui.calendar.addFile">
      <source>Add a calendar file…</source>
      <translation>Agendabestand toevoegen…</translation>
    </message>
    <message id="ui.calendar.added">
      <source>%1 was added.</source>
      <translation>%1 is toegevoegd.</translation>
    </message>
    <message id="ui.calendar.address">
      <source>Subscription or CalDAV address (https:// or webcal://)</source>
      <translation>Abonnements- of CalDAV-adres (https:// of webcal://)</translation>
    </message>
    <message id="ui.calendar.badDay">
      <source>Write the day as year-month-day, for example 2026-11-25.</source>
      <translation>Schrijf de dag als jaar-maand-dag, bijvoorbeeld 2026-11-25.</translation>
    </message>
    <message id="ui.calendar.caldav">
      <source>CalDAV account</source>
      <translation>CalDAV-account</translation>
    </message>
    <message id="ui.calendar.day">
      <source>Day (year-month-day)</source>
      <translation>Dag (jaar-maand-dag)</translation>
    </message>
    <message id="ui.calendar.destination">
      <source>Where it goes</source>
      <translation>Waar het heen gaat</translation>
    </message>
    <message id="ui.calendar.fileFilter">
      <source>Calendar files (*.ics)</source>
      <translation>Agendabestanden (*.ics)</translation>
    </message>
    <message id="ui.calendar.fileTitle">
      <source>Add a calendar file</source>
      <translation>Agendabestand toevoegen</translation>
    </message>
    <message id="ui.calendar.import">
      <source>Import as time</source>
      <translation>Importeren als tijd</translation>
    </message>
    <message id="ui.calendar.imported">
      <source>%1 imported as time.</source>
      <translation>%1 geïmporteerd als tijd.</translation>
    </message>
    <message id="ui.calendar.importedChip">
      <source>Imported</source>
      <translation>Geïmporteerd</translation>
    </message>
    <message id="ui.calendar.link">
      <source>Calendar import</source>
      <translation>Agenda importeren</translation>
    </message>
    <message id="ui.calendar.loading">
      <source>Loading calendar…</source>
      <translation>Agenda laden…</translation>
    </message>
    <message id="ui.calendar.newTaskIn">
      <source>New task in %1</source>
      <translation>Nieuwe taak in %1</translation>
    </message>
    <message id="ui.calendar.next">
      <source>Next day</source>
      <translation>Volgende dag</translation>
    </message>
    <message id="ui.calendar.noDestination">
      <source>%1 imported. %2 ticked events have no destination yet: choose where each goes.</source>
      <translation>%1 geïmporteerd. %2 aangevinkte afspraken hebben nog geen bestemming: kies waar elke heen gaat.</translation>
    </message>
    <message id="ui.calendar.noEventsHint">
      <source>Pick another day, or add the calendar that holds your meetings.</source>
      <translation>Kies een andere dag, of voeg de agenda met je afspraken toe.</translation>
    </message>
    <message id="ui.calendar.noEventsTitle">
      <source>No events on this day</source>
      <translation>Geen afspraken op deze dag</translation>
    </message>
    <message id="ui.calendar.noSourcesHint">
      <source>Add a calendar file, a subscription address (such as a hosted calendar's secret address) or a CalDAV account on the left. Morvane only reads them.</source>
      <translation>Voeg links een agendabestand, een abonnementsadres (zoals het geheime adres van een online agenda) of een CalDAV-account toe. Morvane leest ze alleen.</translation>
    </message>
    <message id="ui.calendar.noSourcesTitle">
      <source>No calendars yet</source>
      <translation>Nog geen agenda's</translation>
    </message>
    <message id="ui.calendar.partial">
      <source>%1 imported; then it stopped: %2</source>
      <translation>%1 geïmporteerd; daarna stopte het: %2</translation>
    </message>
    <message id="ui.calendar.password">
      <source>Password (kept in your keyring)</source>
      <translation>Wachtwoord (bewaard in je sleutelbos)</translation>
    </message>
    <message id="ui.calendar.previous">
      <source>Previous day</source>
      <translation>Vorige dag</translation>
    </message>
    <message id="ui.calendar.remove">
      <source>Remove</source>
      <translation>Verwijderen</translation>
    </message>
    <message id="ui.calendar.sources">
      <source>Your calendars</source>
      <translation>Je agenda's</translation>
    </message>
    <message id="ui.calendar.timeOn">
      <source>Time on %1 (%2)</source>
      <translation>Tijd op %1 (%2)</translation>
    </message>
    <message id="ui.calendar.title">
      <source>Import from your calendar</source>
      <translation>Importeren uit je agenda</translation>
    </message>
    <message id="ui.calendar.user">
      <source>User name</source>
      <translation>Gebruikersnaam</translation>
    </message>
    <message id="ui.category.admin">
      <source>Admin</source>
      <translation>Administratie</translation>
    </message>
    <message id="ui.category.billable">
      <source>Billable</source>
      <translation>Factureerbaar</translation>
    </message>
    <message id="ui.category.internal">
      <source>Internal work</source>
      <translation>Intern werk</translation>
    </message>
    <message id="ui.category.none">
      <source>None</source>
      <translation>Geen</translation>
    </message>
    <message id="ui.clients.address">
      <source>Address</source>
      <translation>Adres</translation>
    </message>
    <message id="ui.clients.deleteBody">
      <source>It leaves your list of clients. Invoices you already wrote for this client keep it.</source>
      <translation>De klant verdwijnt uit je klantenlijst. Facturen die je al voor deze klant hebt gemaakt, houden hem.</translation>
    </message>
    <message id="ui.clients.deleteTitle">
      <source>Delete %1?</source>
      <translation>%1 verwijderen?</translation>
    </message>
    <message id="ui.clients.edit">
      <source>Edit client</source>
      <translation>Klant bewerken</translation>
    </message>
    <message id="ui.clients.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.clients.emptyHint">
      <source>Add the people and companies you invoice, then choose them when you write an invoice. Press Ctrl+N or “New client” to add the first.</source>
      <translation>Voeg de mensen en bedrijven toe die je factureert en kies ze als je een factuur maakt. Druk op Ctrl+N of “Nieuwe klant” om de eerste toe te voegen.</translation>
    </message>
    <message id="ui.clients.emptyTitle">
      <source>No clients yet</source>
      <translation>Nog geen klanten</translation>
    </message>
    <message id="ui.clients.kvk">
      <source>Chamber of commerce number</source>
      <translation>KvK-nummer</translation>
    </message>
    <message id="ui.clients.name">
      <source>Name</source>
      <translation>Naam</translation>
    </message>
    <message id="ui.clients.namePlaceholder">
      <source>Company or person</source>
      <translation>Bedrijf of persoon</translation>
    </message>
    <message id="ui.clients.new">
      <source>New client</source>
      <translation>Nieuwe klant</translation>
    </message>
    <message id="ui.clients.noMatch">
      <source>No client matches “%1”</source>
      <translation>Geen klant past bij “%1”</translation>
    </message>
    <message id="ui.clients.search">
      <source>Search clients</source>
      <translation>Klanten zoeken</translation>
    </message>
    <message id="ui.clients.title">
      <source>Clients</source>
      <translation>Klanten</translation>
    </message>
    <message id="ui.clients.vatId">
      <source>VAT number</source>
      <translation>Btw-nummer</translation>
    </message>
    <message id="ui.common.cancel">
      <source>Cancel</source>
      <translation>Annuleren</translation>
    </message>
    <message id="ui.common.close">
      <source>Close</source>
      <translation>Sluiten</translation>
    </message>
    <message id="ui.common.continue">
      <source>Continue</source>
      <translation>Doorgaan</translation>
    </message>
    <message id="ui.common.delete">
      <source>Delete</source>
      <translation>Verwijderen</translation>
    </message>
    <message id="ui.common.dismiss">
      <source>Dismiss</source>
      <translation>Sluiten</translation>
    </message>
    <message id="ui.common.edit">
      <source>Edit</source>
      <translation>Bewerken</translation>
    </message>
    <message id="ui.common.remove">
      <source>Remove %1</source>
      <translation>%1 verwijderen</translation>
    </message>
    <message id="ui.common.retry">
      <source>Try again</source>
      <translation>Opnieuw proberen</translation>
    </message>
    <message id="ui.common.save">
      <source>Save</source>
      <translation>Opslaan</translation>
    </message>
    <message id="ui.common.saving">
      <source>Saving</source>
      <translation>Bezig met opslaan</translation>
    </message>
    <message id="ui.composer.billTo">
      <source>Bill to</source>
      <translation>Factuur aan</translation>
    </message>
    <message id="ui.composer.cancel">
      <source>Cancel</source>
      <translation>Annuleren</translation>
    </message>
    <message id="ui.composer.clientAddress">
      <source>Client address</source>
      <translation>Adres klant</translation>
    </message>
    <message id="ui.composer.clientEmail">
      <source>Client e-mail</source>
      <translation>E-mail klant</translation>
    </message>
    <message id="ui.composer.clientName">
      <source>Client name</source>
      <translation>Naam klant</translation>
    </message>
    <message id="ui.composer.design">
      <source>Design</source>
      <translation>Ontwerp</translation>
    </message>
    <message id="ui.composer.drawing">
      <source>Drawing the invoice</source>
      <translation>Factuur wordt opgemaakt</translation>
    </message>
    <message id="ui.composer.due">
      <source>Due</source>
      <translation>Vervaldatum</translation>
    </message>
    <message id="ui.composer.err.day">
      <source>Write days as year-month-day, for example 2026-11-01.</source>
      <translation>Schrijf datums als jaar-maand-dag, bijvoorbeeld 2026-11-01.</translation>
    </message>
    <message id="ui.composer.err.due">
      <source>Payment cannot be due before the invoice is issued.</source>
      <translation>De vervaldatum kan niet voor de factuurdatum liggen.</translation>
    </message>
    <message id="ui.composer.err.empty">
      <source>Choose work with unbilled time first.</source>
      <translation>Kies eerst werk met ongefactureerde tijd.</translation>
    </message>
    <message id="ui.composer.err.noNumber">
      <source>The invoice has no number yet. Check the connection and open the composer again.</source>
      <translation>De factuur heeft nog geen nummer. Controleer de verbinding en open het factuurscherm opnieuw.</translation>
    </message>
    <message id="ui.composer.err.period">
      <source>The period ends before it starts.</source>
      <translation>De periode eindigt voordat ze begint.</translation>
    </message>
    <message id="ui.composer.err.preview">
      <source>The preview could not be drawn: %1</source>
      <translation>Het voorbeeld kon niet worden opgemaakt: %1</translation>
    </message>
    <message id="ui.composer.from">
      <source>From (year-month-day)</source>
      <translation>Van (jaar-maand-dag)</translation>
    </message>
    <message id="ui.composer.hours">
      <source>%1 h</source>
      <translation>%1 u</translation>
    </message>
    <message id="ui.composer.houseDesign">
      <source>As in the invoice style</source>
      <translation>Zoals in de factuurstijl</translation>
    </message>
    <message id="ui.composer.invoice">
      <source>Invoice</source>
      <translation>Factuur</translation>
    </message>
    <message id="ui.composer.issued">
      <source>Issued</source>
      <translation>Factuurdatum</translation>
    </message>
    <message id="ui.composer.lines">
      <source>Lines</source>
      <translation>Regels</translation>
    </message>
    <message id="ui.composer.noWork">
      <source>No unbilled time in this period. Choose another period or project.</source>
      <translation>Geen ongefactureerde tijd in deze periode. Kies een andere periode of een ander project.</translation>
    </message>
    <message id="ui.composer.notes">
      <source>Notes on the invoice</source>
      <translation>Opmerkingen op de factuur</translation>
    </message>
    <message id="ui.composer.number">
      <source>No. %1</source>
      <translation>Nr. %1</translation>
    </message>
    <message id="ui.composer.numberPending">
      <source>Number follows</source>
      <translation>Nummer volgt</translation>
    </message>
    <message id="ui.composer.period">
      <source>Period</source>
      <translation>Periode</translation>
    </message>
    <message id="ui.composer.previewEmpty">
      <source>The invoice appears here</source>
      <translation>Hier verschijnt de factuur</translation>
    </message>
    <message id="ui.composer.previewHint">
      <source>Choose a project with unbilled time and a period; the page follows every change.</source>
      <translation>Kies een project met ongefactureerde tijd en een periode; de pagina volgt elke wijziging.</translation>
    </message>
    <message id="ui.composer.projects">
      <source>Projects</source>
      <translation>Projecten</translation>
    </message>
    <message id="ui.composer.saveAsClient">
      <source>Save as client</source>
      <translation>Opslaan als klant</translation>
    </message>
    <message id="ui.composer.saveDraft">
      <source>Save as draft</source>
      <translation>Opslaan als concept</translation>
    </message>
    <message id="ui.composer.saveSent">
      <source>Save as sent</source>
      <translation>Opslaan als verstuurd</translation>
    </message>
    <message id="ui.composer.savedClients">
      <source>Saved clients</source>
      <translation>Opgeslagen klanten</translation>
    </message>
    <message id="ui.composer.title">
      <source>New invoice</source>
      <translation>Nieuwe factuur</translation>
    </message>
    <message id="ui.composer.to">
      <source>To (year-month-day)</source>
      <translation>Tot (jaar-maand-dag)</translation>
    </message>
    <message id="ui.composer.vatPercent">
      <source>VAT %</source>
      <translation>Btw %</translation>
    </message>
    <message id="ui.composer.work">
      <source>Work</source>
      <translation>Werk</translation>
    </message>
    <message id="ui.earnings.barName">
      <source>%1: earned %2, billed %3, unbilled %4</source>
      <translation>%1: verdiend %2, gefactureerd %3, nog te factureren %4</translation>
    </message>
    <message id="ui.earnings.billed">
      <source>Billed</source>
      <translation>Gefactureerd</translation>
    </message>
    <message id="ui.earnings.billedChip">
      <source>billed</source>
      <translation>gefactureerd</translation>
    </message>
    <message id="ui.earnings.byMonth">
      <source>Month</source>
      <translation>Maand</translation>
    </message>
    <message id="ui.earnings.byProject">
      <source>Project</source>
      <translation>Project</translation>
    </message>
    <message id="ui.earnings.byWeek">
      <source>Week</source>
      <translation>Week</translation>
    </message>
    <message id="ui.earnings.coverage">
      <source>%1 to %2</source>
      <translation>%1 tot en met %2</translation>
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
      <translation>Verdiend</translation>
    </message>
    <message id="ui.earnings.emptyHint">
      <source>Start the timer on a task with Space, or log time in its inspector. What you earn shows up here by week, month and project.</source>
      <translation>Start de timer op een taak met Spatie, of boek tijd in het detailvenster. Wat je verdient verschijnt hier per week, maand en project.</translation>
    </message>
    <message id="ui.earnings.emptyTitle">
      <source>Nothing tracked in these months</source>
      <translation>Nog geen tijd geregistreerd in deze maanden</translation>
    </message>
    <message id="ui.earnings.entries">
      <source>Entries</source>
      <translation>Registraties</translation>
    </message>
    <message id="ui.earnings.entriesOf">
      <source>Entries of %1</source>
      <translation>Registraties van %1</translation>
    </message>
    <message id="ui.earnings.hours">
      <source>Hours</source>
      <translation>Uren</translation>
    </message>
    <message id="ui.earnings.monthFormat">
      <source>MMM yyyy</source>
      <translation>MMM yyyy</translation>
    </message>
    <message id="ui.earnings.noProject">
      <source>No project</source>
      <translation>Geen project</translation>
    </message>
    <message id="ui.earnings.oneOffNote">
      <source>includes %1 charged once</source>
      <translation>inclusief %1 eenmalig</translation>
    </message>
    <message id="ui.earnings.pickBar">
      <source>Click a bar to see the entries behind it.</source>
      <translation>Klik op een balk om de registraties erachter te zien.</translation>
    </message>
    <message id="ui.earnings.rate">
      <source>Per hour</source>
      <translation>Per uur</translation>
    </message>
    <message id="ui.earnings.title">
      <source>Earnings</source>
      <translation>Inkomsten</translation>
    </message>
    <message id="ui.earnings.unbilled">
      <source>Unbilled</source>
      <translation>Nog te factureren</translation>
    </message>
    <message id="ui.entries.billed">
      <source>Billed</source>
      <translation>Gefactureerd</translation>
    </message>
    <message id="ui.entries.delete">
      <source>Delete this entry</source>
      <translation>Deze registratie verwijderen</translation>
    </message>
    <message id="ui.entries.deleteBody">
      <source>The task's total goes down by its length.</source>
      <translation>Het totaal van de taak gaat met deze duur omlaag.</translation>
    </message>
    <message id="ui.entries.deleteTitle">
      <source>Delete this time entry?</source>
      <translation>Deze tijdregistratie verwijderen?</translation>
    </message>
    <message id="ui.entries.empty">
      <source>No time yet. Press Space to start the timer, or log minutes by hand.</source>
      <translation>Nog geen tijd. Druk op de spatiebalk om de timer te starten, of registreer minuten met de hand.</translation>
    </message>
    <message id="ui.entries.end">
      <source>End</source>
      <translation>Einde</translation>
    </message>
    <message id="ui.entries.invalid">
      <source>Use the form 2026-03-01 09:30, with the end after the start.</source>
      <translation>Gebruik de vorm 2026-03-01 09:30, met het einde na het begin.</translation>
    </message>
    <message id="ui.entries.length">
      <source>Minutes</source>
      <translation>Minuten</translation>
    </message>
    <message id="ui.entries.log">
      <source>Log</source>
      <translation>Registreren</translation>
    </message>
    <message id="ui.entries.minutes">
      <source>Minutes worked</source>
      <translation>Gewerkte minuten</translation>
    </message>
    <message id="ui.entries.minutesInvalid">
      <source>Enter the minutes as a number, such as 45 or 90.</source>
      <translation>Vul de minuten in als getal, zoals 45 of 90.</translation>
    </message>
    <message id="ui.entries.start">
      <source>Start</source>
      <translation>Begin</translation>
    </message>
    <message id="ui.entries.title">
      <source>Time entries</source>
      <translation>Tijdregistraties</translation>
    </message>
    <message id="ui.entries.total">
      <source>Total %1</source>
      <translation>Totaal %1</translation>
    </message>
    <message id="ui.export.action">
      <source>Export for the accountant…</source>
      <translation>Exporteren voor de boekhouder…</translation>
    </message>
    <message id="ui.export.badPeriod">
      <source>Enter both days as YYYY-MM-DD, the first not after the last.</source>
      <translation>Vul beide dagen in als JJJJ-MM-DD, de eerste niet na de laatste.</translation>
    </message>
    <message id="ui.export.body">
      <source>A CSV file that spreadsheets and bookkeeping programs read: one row per time entry or invoice of the period.</source>
      <translation>Een CSV-bestand dat spreadsheets en boekhoudprogramma’s lezen: één rij per tijdregistratie of factuur van de periode.</translation>
    </message>
    <message id="ui.export.close">
      <source>Close</source>
      <translation>Sluiten</translation>
    </message>
    <message id="ui.export.csvFilter">
      <source>CSV files (*.csv)</source>
      <translation>CSV-bestanden (*.csv)</translation>
    </message>
    <message id="ui.export.entries">
      <source>Time entries</source>
      <translation>Tijdregistraties</translation>
    </message>
    <message id="ui.export.fileTitle">
      <source>Save the CSV file</source>
      <translation>CSV-bestand opslaan</translation>
    </message>
    <message id="ui.export.from">
      <source>From</source>
      <translation>Van</translation>
    </message>
    <message id="ui.export.invoices">
      <source>Invoices</source>
      <translation>Facturen</translation>
    </message>
    <message id="ui.export.notReady">
      <source>Choose a period and a file first.</source>
      <translation>Kies eerst een periode en een bestand.</translation>
    </message>
    <message id="ui.export.save">
      <source>Save…</source>
      <translation>Opslaan…</translation>
    </message>
    <message id="ui.export.saved">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 opgeslagen (rijen: %2).</translation>
    </message>
    <message id="ui.export.saving">
      <source>Saving…</source>
      <translation>Bezig met opslaan…</translation>
    </message>
    <message id="ui.export.title">
      <source>Export for the accountant</source>
      <translation>Exporteren voor de boekhouder</translation>
    </message>
    <message id="ui.export.to">
      <source>To</source>
      <translation>Tot en met</translation>
    </message>
    <message id="ui.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Kon %1 niet schrijven: %2</translation>
    </message>
    <message id="ui.floating.hide">
      <source>Hide the floating timer</source>
      <translation>Zwevende timer verbergen</translation>
    </message>
    <message id="ui.floating.title">
      <source>Morvane timer</source>
      <translation>Morvane-timer</translation>
    </message>
    <message id="ui.idle.body">
      <source>The timer of “%1” kept running while you were away from %2 to %3. What should happen to that time?</source>
      <translation>De timer van “%1” liep door terwijl je weg was, van %2 tot %3. Wat moet er met die tijd gebeuren?</translation>
    </message>
    <message id="ui.idle.discard">
      <source>Discard it and stop the timer</source>
      <translation>Weggooien en de timer stoppen</translation>
    </message>
    <message id="ui.idle.discardContinue">
      <source>Discard it and go on</source>
      <translation>Weggooien en doorgaan</translation>
    </message>
    <message id="ui.idle.keep">
      <source>Keep the time</source>
      <translation>De tijd houden</translation>
    </message>
    <message id="ui.idle.notification">
      <source>The timer of “%1” ran while you were away from %2 to %3.</source>
      <translation>De timer van “%1” liep terwijl je weg was, van %2 tot %3.</translation>
    </message>
    <message id="ui.idle.title">
      <source>You were away</source>
      <translation>Je was weg</translation>
    </message>
    <message id="ui.inspector.addNote">
      <source>Add a note</source>
      <translation>Notitie toevoegen</translation>
    </message>
    <message id="ui.inspector.addSubtask">
      <source>Add a subtask</source>
      <translation>Subtaak toevoegen</translation>
    </message>
    <message id="ui.inspector.assignees">
      <source>Assigned to</source>
      <translation>Toegewezen aan</translation>
    </message>
    <message id="ui.inspector.category">
      <source>Category</source>
      <translation>Categorie</translation>
    </message>
    <message id="ui.inspector.describe">
      <source>Notes for yourself or the client</source>
      <translation>Notities voor jezelf of de klant</translation>
    </message>
    <message id="ui.inspector.description">
      <source>Description</source>
      <translation>Beschrijving</translation>
    </message>
    <message id="ui.inspector.due">
      <source>Due</source>
      <translation>Deadline</translation>
    </message>
    <message id="ui.inspector.dueDate">
      <source>Due date</source>
      <translation>Deadline</translation>
    </message>
    <message id="ui.inspector.none">
      <source>No task selected</source>
      <translation>Geen taak geselecteerd</translation>
    </message>
    <message id="ui.inspector.noneHint">
      <source>Choose a task to see its details and time entries.</source>
      <translation>Kies een taak om de details en tijdregistraties te zien.</translation>
    </message>
    <message id="ui.inspector.notes">
      <source>Notes</source>
      <translation>Notities</translation>
    </message>
    <message id="ui.inspector.ownPrice">
      <source>This task has its own price.</source>
      <translation>Deze taak heeft een eigen prijs.</translation>
    </message>
    <message id="ui.inspector.price">
      <source>Price</source>
      <translation>Prijs</translation>
    </message>
    <message id="ui.inspector.priority">
      <source>Priority</source>
      <translation>Prioriteit</translation>
    </message>
    <message id="ui.inspector.status">
      <source>Status</source>
      <translation>Status</translation>
    </message>
    <message id="ui.inspector.subtasks">
      <source>Subtasks</source>
      <translation>Subtaken</translation>
    </message>
    <message id="ui.inspector.title">
      <source>Task title</source>
      <translation>Taaknaam</translation>
    </message>
    <message id="ui.invoices.allStatuses">
      <source>Every status</source>
      <translation>Elke status</translation>
    </message>
    <message id="ui.invoices.allYears">
      <source>Every year</source>
      <translation>Elk jaar</translation>
    </message>
    <message id="ui.invoices.client">
      <source>Client</source>
      <translation>Klant</translation>
    </message>
    <message id="ui.invoices.deleteBody">
      <source>The invoice and its PDF leave your list for good, and its hours become unbilled again. To keep a record, void it instead.</source>
      <translation>De factuur en de pdf verdwijnen voorgoed uit je lijst, en de uren worden weer niet gefactureerd. Wil je het bewaren, laat de factuur dan vervallen.</translation>
    </message>
    <message id="ui.invoices.deleteTitle">
      <source>Delete invoice %1?</source>
      <translation>Factuur %1 verwijderen?</translation>
    </message>
    <message id="ui.invoices.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Factuur %1 verwijderd; de uren zijn weer niet gefactureerd.</translation>
    </message>
    <message id="ui.invoices.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>De pdf kon niet worden gedownload: %1</translation>
    </message>
    <message id="ui.invoices.due">
      <source>Due</source>
      <translation>Vervalt</translation>
    </message>
    <message id="ui.invoices.emptyHint">
      <source>Invoices you write from your tracked time appear here, with what is still open and what is overdue.</source>
      <translation>Facturen die je maakt van je geregistreerde tijd verschijnen hier, met wat nog openstaat en wat te laat is.</translation>
    </message>
    <message id="ui.invoices.emptyTitle">
      <source>No invoices yet</source>
      <translation>Nog geen facturen</translation>
    </message>
    <message id="ui.invoices.fileTitle">
      <source>Save the invoice PDF</source>
      <translation>De factuur-pdf opslaan</translation>
    </message>
    <message id="ui.invoices.foreignLink">
      <source>The link to the PDF does not lead to your server, so it was not opened.</source>
      <translation>De link naar de pdf leidt niet naar je server en is daarom niet geopend.</translation>
    </message>
    <message id="ui.invoices.issued">
      <source>Issued</source>
      <translation>Datum</translation>
    </message>
    <message id="ui.invoices.net">
      <source>Net</source>
      <translation>Netto</translation>
    </message>
    <message id="ui.invoices.noMatch">
      <source>No invoice matches these filters</source>
      <translation>Geen factuur past bij deze filters</translation>
    </message>
    <message id="ui.invoices.noMatchHint">
      <source>Choose another status or year.</source>
      <translation>Kies een andere status of een ander jaar.</translation>
    </message>
    <message id="ui.invoices.noViewer">
      <source>No program to show PDF files was found. Save the PDF and open it from there.</source>
      <translation>Er is geen programma gevonden om pdf-bestanden te tonen. Sla de pdf op en open hem vanaf daar.</translation>
    </message>
    <message id="ui.invoices.number">
      <source>Number</source>
      <translation>Nummer</translation>
    </message>
    <message id="ui.invoices.open">
      <source>Still open</source>
      <translation>Nog open</translation>
    </message>
    <message id="ui.invoices.openPdf">
      <source>Open PDF</source>
      <translation>Pdf openen</translation>
    </message>
    <message id="ui.invoices.overdue">
      <source>Overdue</source>
      <translation>Te laat</translation>
    </message>
    <message id="ui.invoices.pdfFilter">
      <source>PDF files (*.pdf)</source>
      <translation>Pdf-bestanden (*.pdf)</translation>
    </message>
    <message id="ui.invoices.redraw">
      <source>Draw again…</source>
      <translation>Opnieuw opmaken…</translation>
    </message>
    <message id="ui.invoices.redrawBody">
      <source>This replaces the stored PDF of this invoice with a new one, built from the invoice lines and the current details of its template. Continue?</source>
      <translation>De opgeslagen pdf van deze factuur wordt vervangen door een nieuwe, opgebouwd uit de factuurregels en de huidige gegevens van de sjabloon. Doorgaan?</translation>
    </message>
    <message id="ui.invoices.redrawConfirm">
      <source>Replace PDF</source>
      <translation>Pdf vervangen</translation>
    </message>
    <message id="ui.invoices.redrawFailed">
      <source>The invoice could not be drawn: %1</source>
      <translation>De factuur kon niet worden opgemaakt: %1</translation>
    </message>
    <message id="ui.invoices.redrawTitle">
      <source>Draw invoice %1 again?</source>
      <translation>Factuur %1 opnieuw opmaken?</translation>
    </message>
    <message id="ui.invoices.redrawn">
      <source>Invoice %1 was drawn again with your current details.</source>
      <translation>Factuur %1 is opnieuw opgemaakt met je huidige gegevens.</translation>
    </message>
    <message id="ui.invoices.savePdf">
      <source>Save PDF…</source>
      <translation>Pdf opslaan…</translation>
    </message>
    <message id="ui.invoices.saved">
      <source>Saved to %1</source>
      <translation>Opgeslagen in %1</translation>
    </message>
    <message id="ui.invoices.status">
      <source>Status</source>
      <translation>Status</translation>
    </message>
    <message id="ui.invoices.status.draft">
      <source>Draft</source>
      <translation>Concept</translation>
    </message>
    <message id="ui.invoices.status.paid">
      <source>Paid</source>
      <translation>Betaald</translation>
    </message>
    <message id="ui.invoices.status.sent">
      <source>Sent</source>
      <translation>Verstuurd</translation>
    </message>
    <message id="ui.invoices.status.void">
      <source>Void</source>
      <translation>Vervallen</translation>
    </message>
    <message id="ui.invoices.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>Factuur %1 is nu %2.</translation>
    </message>
    <message id="ui.invoices.statusFilter">
      <source>Status</source>
      <translation>Status</translation>
    </message>
    <message id="ui.invoices.title">
      <source>Invoices</source>
      <translation>Facturen</translation>
    </message>
    <message id="ui.invoices.total">
      <source>Total</source>
      <translation>Totaal</translation>
    </message>
    <message id="ui.invoices.vat">
      <source>VAT</source>
      <translation>Btw</translation>
    </message>
    <message id="ui.invoices.void">
      <source>Void…</source>
      <translation>Laten vervallen…</translation>
    </message>
    <message id="ui.invoices.voidBody">
      <source>A void invoice stays void: it can never be sent, paid or changed again. Its hours become unbilled, so you can invoice them anew.</source>
      <translation>Een vervallen factuur blijft vervallen: hij kan nooit meer verstuurd, betaald of gewijzigd worden. De uren worden weer niet gefactureerd, zodat je ze opnieuw kunt factureren.</translation>
    </message>
    <message id="ui.invoices.voidConfirm">
      <source>Void</source>
      <translation>Laten vervallen</translation>
    </message>
    <message id="ui.invoices.voidFinal">
      <source>Void — final, it cannot be changed again</source>
      <translation>Vervallen — definitief, kan niet meer worden gewijzigd</translation>
    </message>
    <message id="ui.invoices.voidTitle">
      <source>Void invoice %1?</source>
      <translation>Factuur %1 laten vervallen?</translation>
    </message>
    <message id="ui.invoices.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>Factuur %1 is vervallen; de uren zijn weer niet gefactureerd.</translation>
    </message>
    <message id="ui.invoices.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Kon %1 niet schrijven: %2</translation>
    </message>
    <message id="ui.invoices.yearFilter">
      <source>Year</source>
      <translation>Jaar</translation>
    </message>
    <message id="ui.onboarding.currency">
      <source>Currency</source>
      <translation>Valuta</translation>
    </message>
    <message id="ui.onboarding.language">
      <source>Language</source>
      <translation>Taal</translation>
    </message>
    <message id="ui.onboarding.name">
      <source>Your name</source>
      <translation>Je naam</translation>
    </message>
    <message id="ui.onboarding.rate">
      <source>Default hourly rate</source>
      <translation>Standaard uurtarief</translation>
    </message>
    <message id="ui.onboarding.rateInvalid">
      <source>Enter an amount, such as 85 or 72.50.</source>
      <translation>Vul een bedrag in, zoals 85 of 72,50.</translation>
    </message>
    <message id="ui.onboarding.timeZone">
      <source>Time zone</source>
      <translation>Tijdzone</translation>
    </message>
    <message id="ui.palette.action">
      <source>Action</source>
      <translation>Actie</translation>
    </message>
    <message id="ui.palette.ai">
      <source>AI</source>
      <translation>AI</translation>
    </message>
    <message id="ui.palette.capture">
      <source>Quick add “%1”</source>
      <translation>Snel toevoegen “%1”</translation>
    </message>
    <message id="ui.palette.none">
      <source>Nothing matches.</source>
      <translation>Geen resultaten.</translation>
    </message>
    <message id="ui.palette.placeholder">
      <source>Search projects, tasks and actions</source>
      <translation>Zoek in projecten, taken en acties</translation>
    </message>
    <message id="ui.palette.project">
      <source>Project</source>
      <translation>Project</translation>
    </message>
    <message id="ui.palette.task">
      <source>Task</source>
      <translation>Taak</translation>
    </message>
    <message id="ui.prices.edit">
      <source>Change the price…</source>
      <translation>Prijs wijzigen…</translation>
    </message>
    <message id="ui.prices.invalid">
      <source>A field in red cannot be read as a number. Correct it to save.</source>
      <translation>Een rood veld is geen getal dat te lezen is. Verbeter het om op te slaan.</translation>
    </message>
    <message id="ui.prices.project">
      <source>Price…</source>
      <translation>Prijs…</translation>
    </message>
    <message id="ui.priority.high">
      <source>High</source>
      <translation>Hoog</translation>
    </message>
    <message id="ui.priority.low">
      <source>Low</source>
      <translation>Laag</translation>
    </message>
    <message id="ui.priority.medium">
      <source>Medium</source>
      <translation>Gemiddeld</translation>
    </message>
    <message id="ui.projects.actions">
      <source>Project actions</source>
      <translation>Projectacties</translation>
    </message>
    <message id="ui.projects.archive">
      <source>Archive</source>
      <translation>Archiveren</translation>
    </message>
    <message id="ui.projects.delete">
      <source>Delete project…</source>
      <translation>Project verwijderen…</translation>
    </message>
    <message id="ui.projects.deleteBody">
      <source>Its tasks and their time entries are deleted too. This cannot be undone.</source>
      <translation>De taken en hun tijdregistraties worden ook verwijderd. Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message id="ui.projects.deleteTitle">
      <source>Delete %1?</source>
      <translation>%1 verwijderen?</translation>
    </message>
    <message id="ui.projects.describe">
      <source>Add a description</source>
      <translation>Beschrijving toevoegen</translation>
    </message>
    <message id="ui.projects.invoice">
      <source>Create invoice…</source>
      <translation>Factuur maken…</translation>
    </message>
    <message id="ui.projects.markActive">
      <source>Mark as active</source>
      <translation>Markeren als actief</translation>
    </message>
    <message id="ui.projects.markCompleted">
      <source>Mark as completed</source>
      <translation>Markeren als voltooid</translation>
    </message>
    <message id="ui.projects.name">
      <source>Project name</source>
      <translation>Projectnaam</translation>
    </message>
    <message id="ui.projects.notShared">
      <source>Not shared</source>
      <translation>Niet gedeeld</translation>
    </message>
    <message id="ui.projects.share">
      <source>Share with a team</source>
      <translation>Delen met een team</translation>
    </message>
    <message id="ui.projects.status.active">
      <source>Active</source>
      <translation>Actief</translation>
    </message>
    <message id="ui.projects.status.archived">
      <source>Archived</source>
      <translation>Gearchiveerd</translation>
    </message>
    <message id="ui.projects.status.completed">
      <source>Completed</source>
      <translation>Voltooid</translation>
    </message>
    <message id="ui.projects.viewOnly">
      <source>View only</source>
      <translation>Alleen bekijken</translation>
    </message>
    <message id="ui.reminder.body">
      <source>Start a timer so that the work you are doing now is counted.</source>
      <translation>Start een timer, zodat het werk dat je nu doet wordt geteld.</translation>
    </message>
    <message id="ui.reminder.title">
      <source>No timer is running</source>
      <translation>Er loopt geen timer</translation>
    </message>
    <message id="ui.sessions.autoTrack">
      <source>Auto-track Claude sessions</source>
      <translation>Claude-sessies automatisch bijhouden</translation>
    </message>
    <message id="ui.sessions.burstLine">
      <source>%1 · %2 prompts</source>
      <translation>%1 · %2 prompts</translation>
    </message>
    <message id="ui.sessions.burstLineOne">
      <source>%1 · 1 prompt</source>
      <translation>%1 · 1 prompt</translation>
    </message>
    <message id="ui.sessions.commit">
      <source>Log to project</source>
      <translation>Loggen op project</translation>
    </message>
    <message id="ui.sessions.earlier">
      <source>Earlier</source>
      <translation>Eerder</translation>
    </message>
    <message id="ui.sessions.emptyHint">
      <source>Run a claude session in any folder on this computer (Claude Code, the command line, anything that writes to ~/.claude/projects/). Then press Rescan. Sessions from the last 30 days are picked up.</source>
      <translation>Start een claude-sessie in een willekeurige map op deze computer (Claude Code, de opdrachtregel, alles wat naar ~/.claude/projects/ schrijft). Druk daarna op Opnieuw scannen. Sessies van de afgelopen 30 dagen worden opgepikt.</translation>
    </message>
    <message id="ui.sessions.emptyTitle">
      <source>No Claude sessions parsed yet</source>
      <translation>Nog geen Claude-sessies gelezen</translation>
    </message>
    <message id="ui.sessions.err.createProject">
      <source>Create project failed: %1</source>
      <translation>Project maken mislukt: %1</translation>
    </message>
    <message id="ui.sessions.explainMapping">
      <source>Sessions are tied to their working directory. You map each working dir to one of your projects once; from then on every new conversation in that repo logs automatically. Idle gaps longer than 5 minutes are excluded so an overnight pause does not bill 8 hours.</source>
      <translation>Sessies horen bij hun werkmap. Je koppelt elke werkmap één keer aan een van je projecten; daarna wordt elk nieuw gesprek in die repo vanzelf gelogd. Pauzes van meer dan 5 minuten tellen niet mee, zodat een nachtelijke pauze geen 8 uur factureert.</translation>
    </message>
    <message id="ui.sessions.explainPrefix">
      <source>Resulting tasks are prefixed [AI] so you can tell a client exactly what part of the work was AI-assisted.</source>
      <translation>De taken die zo ontstaan beginnen met [AI], zodat je een klant precies kunt vertellen welk deel van het werk met AI is gedaan.</translation>
    </message>
    <message id="ui.sessions.explainScan">
      <source>Every minute Morvane scans your local Claude Code sessions (~/.claude/projects/) and turns each one into a billable time entry on the matching Morvane project.</source>
      <translation>Elke minuut scant Morvane je lokale Claude Code-sessies (~/.claude/projects/) en maakt van elke sessie een factureerbare tijdregistratie op het bijbehorende Morvane-project.</translation>
    </message>
    <message id="ui.sessions.fewer">
      <source>Show fewer</source>
      <translation>Minder tonen</translation>
    </message>
    <message id="ui.sessions.folderProject">
      <source>Auto-created for Claude sessions in %1</source>
      <translation>Automatisch aangemaakt voor Claude-sessies in %1</translation>
    </message>
    <message id="ui.sessions.idleGap">
      <source>Idle gap (minutes)</source>
      <translation>Pauzegrens (minuten)</translation>
    </message>
    <message id="ui.sessions.idleGapHelp">
      <source>Gaps longer than this between messages are treated as idle and excluded. 15 min covers most typing pauses.</source>
      <translation>Pauzes tussen berichten die langer zijn dan dit tellen als inactief en vallen weg. 15 min dekt de meeste typpauzes.</translation>
    </message>
    <message id="ui.sessions.ignore">
      <source>Ignore</source>
      <translation>Negeren</translation>
    </message>
    <message id="ui.sessions.lastWeek">
      <source>Last week</source>
      <translation>Vorige week</translation>
    </message>
    <message id="ui.sessions.link">
      <source>Link to a project…</source>
      <translation>Koppelen aan project…</translation>
    </message>
    <message id="ui.sessions.list">
      <source>Sessions</source>
      <translation>Sessies</translation>
    </message>
    <message id="ui.sessions.loading">
      <source>Reading your sessions…</source>
      <translation>Je sessies worden gelezen…</translation>
    </message>
    <message id="ui.sessions.logHelp">
      <source>Log this session to a project, split into %1 tasks by natural breaks</source>
      <translation>Log deze sessie op een project, op natuurlijke pauzes verdeeld in %1 taken</translation>
    </message>
    <message id="ui.sessions.logTo">
      <source>Log to…</source>
      <translation>Loggen op…</translation>
    </message>
    <message id="ui.sessions.logged">
      <source>Logged %1 of %2 work bursts.</source>
      <translation>%1 van %2 werkblokken gelogd.</translation>
    </message>
    <message id="ui.sessions.loggedChip">
      <source>Logged</source>
      <translation>Gelogd</translation>
    </message>
    <message id="ui.sessions.manyTasks">
      <source>%1 tasks</source>
      <translation>%1 taken</translation>
    </message>
    <message id="ui.sessions.more">
      <source>Show all %1 sessions</source>
      <translation>Alle %1 sessies tonen</translation>
    </message>
    <message id="ui.sessions.newProject">
      <source>Create new project named "%1"</source>
      <translation>Nieuw project met de naam "%1"</translation>
    </message>
    <message id="ui.sessions.noScan">
      <source>No scan yet.</source>
      <translation>Nog niet gescand.</translation>
    </message>
    <message id="ui.sessions.notLinked">
      <source>Not linked yet</source>
      <translation>Nog niet gekoppeld</translation>
    </message>
    <message id="ui.sessions.oneTask">
      <source>1 task</source>
      <translation>1 taak</translation>
    </message>
    <message id="ui.sessions.pendingIntro">
      <source>These directories have Claude sessions waiting to be logged. Pick a Morvane project (or Ignore) for each.</source>
      <translation>In deze mappen staan Claude-sessies klaar om gelogd te worden. Kies voor elke map een Morvane-project (of Negeren).</translation>
    </message>
    <message id="ui.sessions.pendingLine">
      <source>%1 · %2 sessions · %3 active</source>
      <translation>%1 · %2 sessies · %3 actief</translation>
    </message>
    <message id="ui.sessions.previewTitle">
      <source>Review and log to: %1 (%2)</source>
      <translation>Controleren en loggen op: %1 (%2)</translation>
    </message>
    <message id="ui.sessions.reimport">
      <source>Re-import</source>
      <translation>Opnieuw importeren</translation>
    </message>
    <message id="ui.sessions.reimportAll">
      <source>Re-import all sessions</source>
      <translation>Alle sessies opnieuw importeren</translation>
    </message>
    <message id="ui.sessions.reimportAllBody">
      <source>Every session is logged again at the next scan. Tasks made earlier stay; delete them yourself if you do not want them twice.</source>
      <translation>Elke sessie wordt bij de volgende scan opnieuw gelogd. Eerder gemaakte taken blijven staan; verwijder ze zelf als je ze niet dubbel wilt.</translation>
    </message>
    <message id="ui.sessions.reimportAllTitle">
      <source>Re-import all sessions?</source>
      <translation>Alle sessies opnieuw importeren?</translation>
    </message>
    <message id="ui.sessions.reimportHelp">
      <source>Re-import this session (forget previous log)</source>
      <translation>Deze sessie opnieuw importeren (eerdere log vergeten)</translation>
    </message>
    <message id="ui.sessions.rescan">
      <source>Rescan</source>
      <translation>Opnieuw scannen</translation>
    </message>
    <message id="ui.sessions.result">
      <source>Last scan %1: %2 sessions found, %3 work bursts logged (%4), %5 sessions waiting for a project.</source>
      <translation>Laatste scan %1: %2 sessies gevonden, %3 werkblokken gelogd (%4), %5 sessies wachten op een project.</translation>
    </message>
    <message id="ui.sessions.scanNow">
      <source>Scan now</source>
      <translation>Nu scannen</translation>
    </message>
    <message id="ui.sessions.sessionLine">
      <source>%1 · %2 active · %3 bursts</source>
      <translation>%1 · %2 actief · %3 blokken</translation>
    </message>
    <message id="ui.sessions.sessionLineOne">
      <source>%1 · %2 active</source>
      <translation>%1 · %2 actief</translation>
    </message>
    <message id="ui.sessions.sessionProject">
      <source>Auto-created for Claude session %1</source>
      <translation>Automatisch aangemaakt voor Claude-sessie %1</translation>
    </message>
    <message id="ui.sessions.thisWeek">
      <source>Earlier this week</source>
      <translation>Eerder deze week</translation>
    </message>
    <message id="ui.sessions.title">
      <source>AI sessions</source>
      <translation>AI-sessies</translation>
    </message>
    <message id="ui.sessions.today">
      <source>Today</source>
      <translation>Vandaag</translation>
    </message>
    <message id="ui.sessions.tracking">
      <source>Tracking</source>
      <translation>Bijhouden</translation>
    </message>
    <message id="ui.sessions.untitled">
      <source>Claude session</source>
      <translation>Claude-sessie</translation>
    </message>
    <message id="ui.sessions.yesterday">
      <source>Yesterday</source>
      <translation>Gisteren</translation>
    </message>
    <message id="ui.settings.account">
      <source>Account</source>
      <translation>Account</translation>
    </message>
    <message id="ui.settings.ai">
      <source>AI</source>
      <translation>AI</translation>
    </message>
    <message id="ui.settings.appearance">
      <source>Appearance</source>
      <translation>Weergave</translation>
    </message>
    <message id="ui.settings.autostart">
      <source>Start Morvane when I log in</source>
      <translation>Morvane starten als ik inlog</translation>
    </message>
    <message id="ui.settings.backend">
      <source>Backend</source>
      <translation>Backend</translation>
    </message>
    <message id="ui.settings.backend.apply">
      <source>Use this backend</source>
      <translation>Deze backend gebruiken</translation>
    </message>
    <message id="ui.settings.backend.invalid">
      <source>Enter the server's https address and its public key.</source>
      <translation>Vul het https-adres van de server en de publieke sleutel in.</translation>
    </message>
    <message id="ui.settings.backend.local">
      <source>This computer (private, nothing to set up)</source>
      <translation>Deze computer (privé, niets in te stellen)</translation>
    </message>
    <message id="ui.settings.backend.remote">
      <source>A shared server (for teams and several computers)</source>
      <translation>Een gedeelde server (voor teams en meerdere computers)</translation>
    </message>
    <message id="ui.settings.deleteAccount">
      <source>Delete my account</source>
      <translation>Mijn account verwijderen</translation>
    </message>
    <message id="ui.settings.deleteConfirm">
      <source>Your e-mail address, to confirm</source>
      <translation>Je e-mailadres, ter bevestiging</translation>
    </message>
    <message id="ui.settings.deleteHint">
      <source>Deleting your account removes your projects, tasks, time and invoices from the server for good. Type your e-mail address to confirm.</source>
      <translation>Als je je account verwijdert, worden je projecten, taken, tijd en facturen definitief van de server gewist. Typ je e-mailadres om te bevestigen.</translation>
    </message>
    <message id="ui.settings.endOfDay">
      <source>Stop the timer at the end of the day</source>
      <translation>De timer stoppen aan het eind van de dag</translation>
    </message>
    <message id="ui.settings.every">
      <source>every (minutes)</source>
      <translation>elke (minuten)</translation>
    </message>
    <message id="ui.settings.from">
      <source>From</source>
      <translation>Van</translation>
    </message>
    <message id="ui.settings.idleAfter">
      <source>Ask about idle time after (minutes)</source>
      <translation>Vragen naar inactieve tijd na (minuten)</translation>
    </message>
    <message id="ui.settings.local.folder">
      <source>Data folder</source>
      <translation>Gegevensmap</translation>
    </message>
    <message id="ui.settings.local.running">
      <source>Running</source>
      <translation>Actief</translation>
    </message>
    <message id="ui.settings.local.size">
      <source>Size</source>
      <translation>Grootte</translation>
    </message>
    <message id="ui.settings.local.start">
      <source>Start</source>
      <translation>Starten</translation>
    </message>
    <message id="ui.settings.local.starting">
      <source>Starting</source>
      <translation>Bezig met starten</translation>
    </message>
    <message id="ui.settings.local.state">
      <source>State</source>
      <translation>Status</translation>
    </message>
    <message id="ui.settings.local.stop">
      <source>Stop</source>
      <translation>Stoppen</translation>
    </message>
    <message id="ui.settings.local.stopped">
      <source>Stopped</source>
      <translation>Gestopt</translation>
    </message>
    <message id="ui.settings.longestRun">
      <source>Longest run (minutes, 0 for none)</source>
      <translation>Langste meting (minuten, 0 voor geen)</translation>
    </message>
    <message id="ui.settings.looks">
      <source>Language and appearance</source>
      <translation>Taal en weergave</translation>
    </message>
    <message id="ui.settings.profile">
      <source>Profile</source>
      <translation>Profiel</translation>
    </message>
    <message id="ui.settings.reminders">
      <source>Remind me when no timer runs during working hours</source>
      <translation>Herinner me als er tijdens werktijd geen timer loopt</translation>
    </message>
    <message id="ui.settings.remote.key">
      <source>Public key</source>
      <translation>Publieke sleutel</translation>
    </message>
    <message id="ui.settings.remote.url">
      <source>Address</source>
      <translation>Adres</translation>
    </message>
    <message id="ui.settings.saved">
      <source>Saved.</source>
      <translation>Opgeslagen.</translation>
    </message>
    <message id="ui.settings.scheme.dark">
      <source>Dark</source>
      <translation>Donker</translation>
    </message>
    <message id="ui.settings.scheme.light">
      <source>Light</source>
      <translation>Licht</translation>
    </message>
    <message id="ui.settings.scheme.system">
      <source>As the desktop</source>
      <translation>Zoals het bureaublad</translation>
    </message>
    <message id="ui.settings.signedInAs">
      <source>Signed in as %1</source>
      <translation>Ingelogd als %1</translation>
    </message>
    <message id="ui.settings.switchTo">
      <source>Switch to %1</source>
      <translation>Overschakelen naar %1</translation>
    </message>
    <message id="ui.settings.timer">
      <source>Timer</source>
      <translation>Timer</translation>
    </message>
    <message id="ui.settings.to">
      <source>to</source>
      <translation>tot</translation>
    </message>
    <message id="ui.sidebar.newProjectName">
      <source>New project name</source>
      <translation>Naam van nieuw project</translation>
    </message>
    <message id="ui.sidebar.newTeamName">
      <source>New team name</source>
      <translation>Naam van nieuw team</translation>
    </message>
    <message id="ui.sidebar.overview">
      <source>All projects</source>
      <translation>Alle projecten</translation>
    </message>
    <message id="ui.sidebar.projects">
      <source>Projects</source>
      <translation>Projecten</translation>
    </message>
    <message id="ui.sidebar.running">
      <source>Timer running</source>
      <translation>Timer loopt</translation>
    </message>
    <message id="ui.sidebar.shared">
      <source>Shared with a team</source>
      <translation>Gedeeld met een team</translation>
    </message>
    <message id="ui.sidebar.teams">
      <source>Teams</source>
      <translation>Teams</translation>
    </message>
    <message id="ui.startup.backend">
      <source>Starting your local backend…</source>
      <translation>Je lokale backend wordt gestart…</translation>
    </message>
    <message id="ui.startup.failed">
      <source>Your local backend could not start.</source>
      <translation>Je lokale backend kon niet starten.</translation>
    </message>
    <message id="ui.startup.loading">
      <source>Loading your projects…</source>
      <translation>Je projecten worden geladen…</translation>
    </message>
    <message id="ui.status.completed">
      <source>Completed</source>
      <translation>Voltooid</translation>
    </message>
    <message id="ui.status.in_progress">
      <source>In progress</source>
      <translation>Bezig</translation>
    </message>
    <message id="ui.status.not_started">
      <source>Not started</source>
      <translation>Niet gestart</translation>
    </message>
    <message id="ui.style.accent">
      <source>Accent</source>
      <translation>Accent</translation>
    </message>
    <message id="ui.style.address">
      <source>Address</source>
      <translation>Adres</translation>
    </message>
    <message id="ui.style.bank">
      <source>Bank</source>
      <translation>Bank</translation>
    </message>
    <message id="ui.style.banner">
      <source>Banner</source>
      <translation>Band</translation>
    </message>
    <message id="ui.style.border">
      <source>Border</source>
      <translation>Rand</translation>
    </message>
    <message id="ui.style.btw">
      <source>VAT number</source>
      <translation>Btw-nummer</translation>
    </message>
    <message id="ui.style.chooseLogo">
      <source>Choose logo…</source>
      <translation>Logo kiezen…</translation>
    </message>
    <message id="ui.style.colourAuto">
      <source>auto</source>
      <translation>auto</translation>
    </message>
    <message id="ui.style.company">
      <source>Company</source>
      <translation>Bedrijf</translation>
    </message>
    <message id="ui.style.customHint">
      <source>An HTML page with {{placeholders}}, a &lt;header&gt; and a &lt;footer&gt;, fixed at 794 × 1123 px. When it cannot be used, invoices are drawn in “Light minimal”.</source>
      <translation>Een HTML-pagina met {{placeholders}}, een &lt;header&gt; en een &lt;footer&gt;, vastgezet op 794 × 1123 px. Kan die niet worden gebruikt, dan krijgen facturen het ontwerp ‘Licht minimaal’.</translation>
    </message>
    <message id="ui.style.customTitle">
      <source>Your own template</source>
      <translation>Je eigen sjabloon</translation>
    </message>
    <message id="ui.style.days">
      <source>Payment terms in days</source>
      <translation>Betalingstermijn in dagen</translation>
    </message>
    <message id="ui.style.design.aiCustom">
      <source>Your template</source>
      <translation>Je eigen sjabloon</translation>
    </message>
    <message id="ui.style.design.boldDark">
      <source>Bold dark</source>
      <translation>Krachtig donker</translation>
    </message>
    <message id="ui.style.design.editorial">
      <source>Editorial</source>
      <translation>Editoriaal</translation>
    </message>
    <message id="ui.style.design.editorialMono">
      <source>Editorial mono</source>
      <translation>Editoriaal mono</translation>
    </message>
    <message id="ui.style.design.lightMinimalAccent">
      <source>Light minimal</source>
      <translation>Licht minimaal</translation>
    </message>
    <message id="ui.style.design.minimalistMono">
      <source>Minimalist mono</source>
      <translation>Minimalistisch mono</translation>
    </message>
    <message id="ui.style.design.modernRibbon">
      <source>Modern ribbon</source>
      <translation>Modern lint</translation>
    </message>
    <message id="ui.style.design.pastelModern">
      <source>Pastel modern</source>
      <translation>Pastel modern</translation>
    </message>
    <message id="ui.style.design.signatureEditorial">
      <source>Signature</source>
      <translation>Signatuur</translation>
    </message>
    <message id="ui.style.designs">
      <source>Design</source>
      <translation>Ontwerp</translation>
    </message>
    <message id="ui.style.designsHint">
      <source>Every new invoice is drawn in the chosen design. The pictures show a sample invoice in your style.</source>
      <translation>Elke nieuwe factuur krijgt het gekozen ontwerp. De afbeeldingen tonen een voorbeeldfactuur in jouw stijl.</translation>
    </message>
    <message id="ui.style.drawing">
      <source>Drawing the designs</source>
      <translation>Ontwerpen worden getekend</translation>
    </message>
    <message id="ui.style.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.style.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>De betalingstermijn is een heel aantal dagen van 0 tot 365.</translation>
    </message>
    <message id="ui.style.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>Het btw-tarief is een percentage van 0 tot 100.</translation>
    </message>
    <message id="ui.style.fallsBack">
      <source>%1 Invoices fall back to “Light minimal” until it is fixed.</source>
      <translation>%1 Tot dit is opgelost, krijgen facturen het ontwerp ‘Licht minimaal’.</translation>
    </message>
    <message id="ui.style.fontAuto">
      <source>The design’s own</source>
      <translation>Die van het ontwerp</translation>
    </message>
    <message id="ui.style.fontBody">
      <source>Text font</source>
      <translation>Lettertype tekst</translation>
    </message>
    <message id="ui.style.fontDisplay">
      <source>Headings font</source>
      <translation>Lettertype koppen</translation>
    </message>
    <message id="ui.style.footer">
      <source>Footer</source>
      <translation>Voettekst</translation>
    </message>
    <message id="ui.style.footerPlaceholder">
      <source>Thank you for your business.</source>
      <translation>Bedankt voor de samenwerking.</translation>
    </message>
    <message id="ui.style.htmlFilter">
      <source>HTML files (*.html *.htm)</source>
      <translation>HTML-bestanden (*.html *.htm)</translation>
    </message>
    <message id="ui.style.iban">
      <source>Bank account (IBAN)</source>
      <translation>Bankrekening (IBAN)</translation>
    </message>
    <message id="ui.style.imageFilter">
      <source>Images (*.png *.jpg *.jpeg)</source>
      <translation>Afbeeldingen (*.png *.jpg *.jpeg)</translation>
    </message>
    <message id="ui.style.ink">
      <source>Ink</source>
      <translation>Tekst</translation>
    </message>
    <message id="ui.style.kvk">
      <source>Chamber of commerce number</source>
      <translation>KvK-nummer</translation>
    </message>
    <message id="ui.style.logo">
      <source>Logo</source>
      <translation>Logo</translation>
    </message>
    <message id="ui.style.logoDialog">
      <source>Choose a logo</source>
      <translation>Kies een logo</translation>
    </message>
    <message id="ui.style.logoHint">
      <source>PNG or JPEG, at most 1 MB; wider than 600 px is scaled down.</source>
      <translation>PNG of JPEG, hooguit 1 MB; breder dan 600 px wordt verkleind.</translation>
    </message>
    <message id="ui.style.look">
      <source>Look</source>
      <translation>Uiterlijk</translation>
    </message>
    <message id="ui.style.madeWith">
      <source>Show “Made with Morvane” in the footer</source>
      <translation>Toon ‘Gemaakt met Morvane’ in de voettekst</translation>
    </message>
    <message id="ui.style.muted">
      <source>Muted</source>
      <translation>Gedempt</translation>
    </message>
    <message id="ui.style.noLogo">
      <source>No logo</source>
      <translation>Geen logo</translation>
    </message>
    <message id="ui.style.noTemplate">
      <source>No template uploaded: invoices use the design chosen above.</source>
      <translation>Geen sjabloon geüpload: facturen gebruiken het ontwerp hierboven.</translation>
    </message>
    <message id="ui.style.palette">
      <source>Palette</source>
      <translation>Palet</translation>
    </message>
    <message id="ui.style.paper">
      <source>Paper</source>
      <translation>Papier</translation>
    </message>
    <message id="ui.style.phone">
      <source>Phone</source>
      <translation>Telefoon</translation>
    </message>
    <message id="ui.style.removeLogo">
      <source>Remove logo</source>
      <translation>Logo verwijderen</translation>
    </message>
    <message id="ui.style.removeTemplate">
      <source>Remove template</source>
      <translation>Sjabloon verwijderen</translation>
    </message>
    <message id="ui.style.revert">
      <source>Undo changes</source>
      <translation>Wijzigingen ongedaan maken</translation>
    </message>
    <message id="ui.style.saving">
      <source>Saving…</source>
      <translation>Opslaan…</translation>
    </message>
    <message id="ui.style.sender">
      <source>Sender</source>
      <translation>Afzender</translation>
    </message>
    <message id="ui.style.templateDialog">
      <source>Choose an HTML template</source>
      <translation>Kies een HTML-sjabloon</translation>
    </message>
    <message id="ui.style.templateNotUsed">
      <source>Not used</source>
      <translation>Niet gebruikt</translation>
    </message>
    <message id="ui.style.templateUsed">
      <source>Used</source>
      <translation>Gebruikt</translation>
    </message>
    <message id="ui.style.title">
      <source>Invoice style</source>
      <translation>Factuurstijl</translation>
    </message>
    <message id="ui.style.unsaved">
      <source>Unsaved changes</source>
      <translation>Niet-opgeslagen wijzigingen</translation>
    </message>
    <message id="ui.style.upload">
      <source>Upload template…</source>
      <translation>Sjabloon uploaden…</translation>
    </message>
    <message id="ui.style.vatRate">
      <source>Default VAT rate in %</source>
      <translation>Standaard btw-tarief in %</translation>
    </message>
    <message id="ui.style.website">
      <source>Website</source>
      <translation>Website</translation>
    </message>
    <message id="ui.summary.callFailed">
      <source>The model could not be asked (%1). This text is written from your figures alone.</source>
      <translation>Het model kon niet worden gevraagd (%1). Deze tekst is alleen uit je cijfers geschreven.</translation>
    </message>
    <message id="ui.summary.copy">
      <source>Copy</source>
      <translation>Kopiëren</translation>
    </message>
    <message id="ui.summary.draftingStandup">
      <source>Drafting your stand-up…</source>
      <translation>Je stand-up wordt opgesteld…</translation>
    </message>
    <message id="ui.summary.fixed">
      <source>Written from your figures</source>
      <translation>Geschreven uit je cijfers</translation>
    </message>
    <message id="ui.summary.generate">
      <source>Generate</source>
      <translation>Genereren</translation>
    </message>
    <message id="ui.summary.language">
      <source>Language of the text</source>
      <translation>Taal van de tekst</translation>
    </message>
    <message id="ui.summary.model">
      <source>Written by the model, checked against your figures</source>
      <translation>Geschreven door het model, gecontroleerd met je cijfers</translation>
    </message>
    <message id="ui.summary.nothing">
      <source>Nothing was tracked in this period, so there was nothing to put in words.</source>
      <translation>In deze periode is niets geregistreerd, dus er viel niets onder woorden te brengen.</translation>
    </message>
    <message id="ui.summary.readFailed">
      <source>Your time could not be read: %1</source>
      <translation>Je tijd kon niet worden gelezen: %1</translation>
    </message>
    <message id="ui.summary.recap">
      <source>Weekly recap</source>
      <translation>Weekoverzicht</translation>
    </message>
    <message id="ui.summary.recapHint">
      <source>Press Generate for a short recap of the time you tracked this week.</source>
      <translation>Druk op Genereren voor een korte terugblik op de tijd die je deze week hebt geregistreerd.</translation>
    </message>
    <message id="ui.summary.rejected">
      <source>The model's words did not hold up against your figures (%1). This text is written from your figures alone.</source>
      <translation>De woorden van het model klopten niet met je cijfers (%1). Deze tekst is alleen uit je cijfers geschreven.</translation>
    </message>
    <message id="ui.summary.standup">
      <source>Daily stand-up</source>
      <translation>Dagelijkse stand-up</translation>
    </message>
    <message id="ui.summary.standupHint">
      <source>Press Generate to draft your stand-up.</source>
      <translation>Druk op Genereren om je stand-up op te stellen.</translation>
    </message>
    <message id="ui.summary.textName">
      <source>Recap or stand-up text</source>
      <translation>Tekst van terugblik of stand-up</translation>
    </message>
    <message id="ui.summary.title">
      <source>Recap and stand-up</source>
      <translation>Terugblik en stand-up</translation>
    </message>
    <message id="ui.summary.uiLanguage">
      <source>Interface language</source>
      <translation>Taal van de app</translation>
    </message>
    <message id="ui.summary.writingRecap">
      <source>Writing your recap…</source>
      <translation>Je terugblik wordt geschreven…</translation>
    </message>
    <message id="ui.tasks.add">
      <source>Add a task and press Enter</source>
      <translation>Typ een taak en druk op Enter</translation>
    </message>
    <message id="ui.tasks.bulkDeleteTitle">
      <source>Delete the selected tasks (%1)?</source>
      <translation>Geselecteerde taken (%1) verwijderen?</translation>
    </message>
    <message id="ui.tasks.check">
      <source>Select %1</source>
      <translation>%1 selecteren</translation>
    </message>
    <message id="ui.tasks.clearSelection">
      <source>Clear</source>
      <translation>Wissen</translation>
    </message>
    <message id="ui.tasks.deleteBody">
      <source>Its time entries are deleted too.</source>
      <translation>De tijdregistraties van de taak worden ook verwijderd.</translation>
    </message>
    <message id="ui.tasks.deleteTitle">
      <source>Delete this task?</source>
      <translation>Deze taak verwijderen?</translation>
    </message>
    <message id="ui.tasks.dragHandle">
      <source>Drag to reorder</source>
      <translation>Sleep om de volgorde te wijzigen</translation>
    </message>
    <message id="ui.tasks.empty">
      <source>No tasks yet.</source>
      <translation>Nog geen taken.</translation>
    </message>
    <message id="ui.tasks.emptyHint">
      <source>Press Ctrl+N to add one.</source>
      <translation>Druk op Ctrl+N om er een toe te voegen.</translation>
    </message>
    <message id="ui.tasks.filter">
      <source>Filter</source>
      <translation>Filter</translation>
    </message>
    <message id="ui.tasks.filter.active">
      <source>Open</source>
      <translation>Open</translation>
    </message>
    <message id="ui.tasks.filter.all">
      <source>All</source>
      <translation>Alle</translation>
    </message>
    <message id="ui.tasks.filter.archived">
      <source>Archived</source>
      <translation>Gearchiveerd</translation>
    </message>
    <message id="ui.tasks.filter.done">
      <source>Done</source>
      <translation>Afgerond</translation>
    </message>
    <message id="ui.tasks.list">
      <source>Tasks</source>
      <translation>Taken</translation>
    </message>
    <message id="ui.tasks.markDone">
      <source>Mark done</source>
      <translation>Afronden</translation>
    </message>
    <message id="ui.tasks.moveTo">
      <source>Move to…</source>
      <translation>Verplaatsen naar…</translation>
    </message>
    <message id="ui.tasks.needsProject">
      <source>Create a project first: tasks belong to a project.</source>
      <translation>Maak eerst een project: taken horen altijd bij een project.</translation>
    </message>
    <message id="ui.tasks.noMatch">
      <source>No task matches “%1”.</source>
      <translation>Geen taak gevonden voor ‘%1’.</translation>
    </message>
    <message id="ui.tasks.noMatchHint">
      <source>Try fewer letters, or press Esc to clear the search.</source>
      <translation>Probeer minder letters, of druk op Esc om de zoekopdracht te wissen.</translation>
    </message>
    <message id="ui.tasks.noProjects">
      <source>No projects yet.</source>
      <translation>Nog geen projecten.</translation>
    </message>
    <message id="ui.tasks.noProjectsHint">
      <source>Press Ctrl+Shift+N to create your first project.</source>
      <translation>Druk op Ctrl+Shift+N om je eerste project te maken.</translation>
    </message>
    <message id="ui.tasks.reopen">
      <source>Reopen</source>
      <translation>Heropenen</translation>
    </message>
    <message id="ui.tasks.search">
      <source>Search</source>
      <translation>Zoeken</translation>
    </message>
    <message id="ui.tasks.selected">
      <source>%1 selected</source>
      <translation>%1 geselecteerd</translation>
    </message>
    <message id="ui.tasks.sort">
      <source>Sort</source>
      <translation>Sorteren</translation>
    </message>
    <message id="ui.tasks.sort.alpha">
      <source>Name</source>
      <translation>Naam</translation>
    </message>
    <message id="ui.tasks.sort.createdDesc">
      <source>Newest first</source>
      <translation>Nieuwste eerst</translation>
    </message>
    <message id="ui.tasks.sort.dueAsc">
      <source>Due date</source>
      <translation>Deadline</translation>
    </message>
    <message id="ui.tasks.sort.manual">
      <source>Manual order</source>
      <translation>Eigen volgorde</translation>
    </message>
    <message id="ui.tasks.sort.priorityDesc">
      <source>Priority</source>
      <translation>Prioriteit</translation>
    </message>
    <message id="ui.tasks.sort.trackedDesc">
      <source>Most tracked</source>
      <translation>Meeste tijd</translation>
    </message>
    <message id="ui.teams.accept">
      <source>Accept</source>
      <translation>Accepteren</translation>
    </message>
    <message id="ui.teams.decline">
      <source>Decline</source>
      <translation>Weigeren</translation>
    </message>
    <message id="ui.teams.invitations">
      <source>Invitations for you</source>
      <translation>Uitnodigingen voor jou</translation>
    </message>
    <message id="ui.teams.invite">
      <source>Invite by e-mail</source>
      <translation>Uitnodigen per e-mail</translation>
    </message>
    <message id="ui.teams.inviteButton">
      <source>Invite</source>
      <translation>Uitnodigen</translation>
    </message>
    <message id="ui.teams.leave">
      <source>Leave the team</source>
      <translation>Team verlaten</translation>
    </message>
    <message id="ui.teams.leaveTitle">
      <source>Leave %1?</source>
      <translation>%1 verlaten?</translation>
    </message>
    <message id="ui.teams.members">
      <source>Members</source>
      <translation>Leden</translation>
    </message>
    <message id="ui.teams.remove">
      <source>Remove</source>
      <translation>Verwijderen</translation>
    </message>
    <message id="ui.teams.removeBody">
      <source>The team's projects are no longer shared with them. Their own time stays theirs.</source>
      <translation>De projecten van het team worden niet meer met diegene gedeeld. Eigen tijd blijft van henzelf.</translation>
    </message>
    <message id="ui.teams.removeTitle">
      <source>Remove this member?</source>
      <translation>Dit lid verwijderen?</translation>
    </message>
    <message id="ui.teams.role">
      <source>Role</source>
      <translation>Rol</translation>
    </message>
    <message id="ui.teams.role.editor">
      <source>Editor</source>
      <translation>Bewerker</translation>
    </message>
    <message id="ui.teams.role.owner">
      <source>Owner</source>
      <translation>Eigenaar</translation>
    </message>
    <message id="ui.teams.role.viewer">
      <source>Viewer</source>
      <translation>Kijker</translation>
    </message>
    <message id="ui.teams.viewerNote">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Alleen de eigenaar en de bewerkers van het team kunnen mensen uitnodigen.</translation>
    </message>
    <message id="ui.timeLimit.body">
      <source>“%1” was stopped at %2, and the time until then is logged.</source>
      <translation>“%1” is om %2 gestopt; de tijd tot dan is geregistreerd.</translation>
    </message>
    <message id="ui.timeLimit.endOfDay">
      <source>Timer stopped at the end of your day</source>
      <translation>Timer gestopt aan het eind van je werkdag</translation>
    </message>
    <message id="ui.timeLimit.longestRun">
      <source>Timer stopped after its longest run</source>
      <translation>Timer gestopt na de langste duur</translation>
    </message>
    <message id="ui.timer.idle">
      <source>No timer running. Select a task and press Space.</source>
      <translation>Er loopt geen timer. Selecteer een taak en druk op de spatiebalk.</translation>
    </message>
    <message id="ui.timer.name">
      <source>Timer</source>
      <translation>Timer</translation>
    </message>
    <message id="ui.timer.notRunning">
      <source>Not running</source>
      <translation>Loopt niet</translation>
    </message>
    <message id="ui.timer.offline">
      <source>Offline</source>
      <translation>Offline</translation>
    </message>
    <message id="ui.timer.offlineHint">
      <source>Offline: changes from other devices arrive when the connection is back.</source>
      <translation>Offline: wijzigingen van andere apparaten komen binnen zodra de verbinding terug is.</translation>
    </message>
    <message id="ui.timer.start">
      <source>Start</source>
      <translation>Starten</translation>
    </message>
    <message id="ui.timer.stop">
      <source>Stop</source>
      <translation>Stoppen</translation>
    </message>
    <message id="ui.tray.floating">
      <source>Floating timer</source>
      <translation>Zwevende timer</translation>
    </message>
    <message id="ui.tray.open">
      <source>Open Morvane</source>
      <translation>Morvane openen</translation>
    </message>
    <message id="ui.tray.quickAdd">
      <source>Quick add…</source>
      <translation>Snel toevoegen…</translation>
    </message>
    <message id="ui.tray.quit">
      <source>Quit</source>
      <translation>Afsluiten</translation>
    </message>
    <message id="ui.tray.start">
      <source>Start</source>
      <translation>Starten</translation>
    </message>
    <message id="ui.tray.stop">
      <source>Stop the timer</source>
      <translation>Timer stoppen</translation>
    </message>
    <message id="ui.trips.allProjects">
      <source>All projects</source>
      <translation>Alle projecten</translation>
    </message>
    <message id="ui.trips.billable.all">
      <source>Charged and not</source>
      <translation>Doorbelast en niet</translation>
    </message>
    <message id="ui.trips.billable.no">
      <source>Private or not charged</source>
      <translation>Privé of niet doorbelast</translation>
    </message>
    <message id="ui.trips.billable.yes">
      <source>Charged to the client</source>
      <translation>Doorbelast aan de klant</translation>
    </message>
    <message id="ui.trips.billableFilter">
      <source>Charging</source>
      <translation>Doorbelasting</translation>
    </message>
    <message id="ui.trips.charge">
      <source>Charge to the client</source>
      <translation>Doorbelasten aan de klant</translation>
    </message>
    <message id="ui.trips.chip.invoiced">
      <source>Invoiced</source>
      <translation>Gefactureerd</translation>
    </message>
    <message id="ui.trips.chip.notCharged">
      <source>Not charged</source>
      <translation>Niet doorbelast</translation>
    </message>
    <message id="ui.trips.chip.private">
      <source>Private</source>
      <translation>Privé</translation>
    </message>
    <message id="ui.trips.chip.toInvoice">
      <source>To invoice</source>
      <translation>Te factureren</translation>
    </message>
    <message id="ui.trips.clientHit">
      <source>Client</source>
      <translation>Klant</translation>
    </message>
    <message id="ui.trips.date">
      <source>Date</source>
      <translation>Datum</translation>
    </message>
    <message id="ui.trips.edit">
      <source>Edit trip</source>
      <translation>Rit bewerken</translation>
    </message>
    <message id="ui.trips.emptyHint">
      <source>Trips your phone records while a timer runs show up here. Press Ctrl+N or “New trip” to add one by hand.</source>
      <translation>Ritten die je telefoon vastlegt terwijl een timer loopt, verschijnen hier. Druk op Ctrl+N of “Nieuwe rit” om er zelf een toe te voegen.</translation>
    </message>
    <message id="ui.trips.emptyTitle">
      <source>No trips yet</source>
      <translation>Nog geen ritten</translation>
    </message>
    <message id="ui.trips.finish">
      <source>Finish trip</source>
      <translation>Rit afronden</translation>
    </message>
    <message id="ui.trips.from">
      <source>From</source>
      <translation>Van</translation>
    </message>
    <message id="ui.trips.km">
      <source>Kilometres</source>
      <translation>Kilometers</translation>
    </message>
    <message id="ui.trips.kmColumn">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="ui.trips.map.route">
      <source>Road route of the trip</source>
      <translation>Route over de weg</translation>
    </message>
    <message id="ui.trips.map.straight">
      <source>Straight line between the places</source>
      <translation>Rechte lijn tussen de plaatsen</translation>
    </message>
    <message id="ui.trips.mode">
      <source>Travelled by</source>
      <translation>Vervoer</translation>
    </message>
    <message id="ui.trips.mode.bike">
      <source>Bike</source>
      <translation>Fiets</translation>
    </message>
    <message id="ui.trips.mode.car">
      <source>Car</source>
      <translation>Auto</translation>
    </message>
    <message id="ui.trips.mode.other">
      <source>Other</source>
      <translation>Anders</translation>
    </message>
    <message id="ui.trips.mode.transit">
      <source>Public transport</source>
      <translation>Openbaar vervoer</translation>
    </message>
    <message id="ui.trips.mode.walk">
      <source>On foot</source>
      <translation>Te voet</translation>
    </message>
    <message id="ui.trips.new">
      <source>New trip</source>
      <translation>Nieuwe rit</translation>
    </message>
    <message id="ui.trips.noMatch">
      <source>No trip matches these filters</source>
      <translation>Geen rit past bij deze filters</translation>
    </message>
    <message id="ui.trips.period.all">
      <source>All time</source>
      <translation>Altijd</translation>
    </message>
    <message id="ui.trips.period.lastMonth">
      <source>Last month</source>
      <translation>Vorige maand</translation>
    </message>
    <message id="ui.trips.period.month">
      <source>This month</source>
      <translation>Deze maand</translation>
    </message>
    <message id="ui.trips.period.year">
      <source>This year</source>
      <translation>Dit jaar</translation>
    </message>
    <message id="ui.trips.periodFilter">
      <source>Period</source>
      <translation>Periode</translation>
    </message>
    <message id="ui.trips.placePlaceholder">
      <source>Address, place or client</source>
      <translation>Adres, plaats of klant</translation>
    </message>
    <message id="ui.trips.private">
      <source>Private trip</source>
      <translation>Privérit</translation>
    </message>
    <message id="ui.trips.problem.date">
      <source>Enter the day as YYYY-MM-DD.</source>
      <translation>Vul de dag in als JJJJ-MM-DD (YYYY-MM-DD).</translation>
    </message>
    <message id="ui.trips.problem.from">
      <source>Where did the trip start?</source>
      <translation>Waar begon de rit?</translation>
    </message>
    <message id="ui.trips.problem.km">
      <source>Enter the kilometres, for example 12.5.</source>
      <translation>Vul de kilometers in, bijvoorbeeld 12,5.</translation>
    </message>
    <message id="ui.trips.problem.rate">
      <source>Enter the rate per kilometre as a number, for example 0.23.</source>
      <translation>Vul het tarief per kilometer in als getal, bijvoorbeeld 0,23.</translation>
    </message>
    <message id="ui.trips.problem.to">
      <source>Where did the trip end?</source>
      <translation>Waar eindigde de rit?</translation>
    </message>
    <message id="ui.trips.progress">
      <source>%1 km · %2 min</source>
      <translation>%1 km · %2 min</translation>
    </message>
    <message id="ui.trips.projectFilter">
      <source>Project</source>
      <translation>Project</translation>
    </message>
    <message id="ui.trips.projectHint">
      <source>Trips of this project go on its invoices. Private trips and trips you do not charge never do.</source>
      <translation>Ritten van dit project komen op de facturen ervan. Privéritten en ritten die je niet doorbelast nooit.</translation>
    </message>
    <message id="ui.trips.purpose">
      <source>Purpose</source>
      <translation>Doel</translation>
    </message>
    <message id="ui.trips.purposePlaceholder">
      <source>For example: meeting at the client, delivery</source>
      <translation>Bijvoorbeeld: overleg bij de klant, levering</translation>
    </message>
    <message id="ui.trips.rate">
      <source>Rate per kilometre</source>
      <translation>Tarief per kilometer</translation>
    </message>
    <message id="ui.trips.rateHint">
      <source>Used for projects that charge travel per kilometre and name no rate of their own.</source>
      <translation>Voor projecten die reizen per kilometer doorbelasten zonder eigen tarief.</translation>
    </message>
    <message id="ui.trips.resultsFrom">
      <source>Results from OpenStreetMap, without KvK numbers.</source>
      <translation>Resultaten van OpenStreetMap, zonder KvK-nummers.</translation>
    </message>
    <message id="ui.trips.routing">
      <source>Finding the road route…</source>
      <translation>Route over de weg zoeken…</translation>
    </message>
    <message id="ui.trips.searching">
      <source>Searching…</source>
      <translation>Zoeken…</translation>
    </message>
    <message id="ui.trips.settings">
      <source>Travel settings</source>
      <translation>Reisinstellingen</translation>
    </message>
    <message id="ui.trips.start">
      <source>Start a trip now</source>
      <translation>Nu een rit starten</translation>
    </message>
    <message id="ui.trips.summaryMany">
      <source>%1 trips · %2 km</source>
      <translation>%1 ritten · %2 km</translation>
    </message>
    <message id="ui.trips.summaryOne">
      <source>1 trip · %1 km</source>
      <translation>1 rit · %1 km</translation>
    </message>
    <message id="ui.trips.title">
      <source>Trips</source>
      <translation>Ritten</translation>
    </message>
    <message id="ui.trips.to">
      <source>To</source>
      <translation>Naar</translation>
    </message>
    <message id="ui.trips.toInvoice">
      <source>%1 to invoice: %2</source>
      <translation>%1 te factureren: %2</translation>
    </message>
    <message id="ui.trips.trip">
      <source>Trip</source>
      <translation>Rit</translation>
    </message>
    <message id="ui.trips.usualMode">
      <source>Usually travel by</source>
      <translation>Reist meestal met</translation>
    </message>
    <message id="ui.trips.work">
      <source>Project and task</source>
      <translation>Project en taak</translation>
    </message>
    <message id="ui.trips.work.none">
      <source>Choose a project or task</source>
      <translation>Kies een project of taak</translation>
    </message>
    <message id="ui.trips.work.wholeProject">
      <source>%1 · Whole project, no task</source>
      <translation>%1 · Heel project, geen taak</translation>
    </message>
  </context>
</TS>

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
    <message id="cli.renderInvoice.design">
      <source>With --render-invoice: the design (%1).</source>
      <translation>Mit --render-invoice: das Design (%1).</translation>
    </message>
    <message id="cli.renderInvoice.draft">
      <source>With --render-invoice: an invoice as JSON instead of the sample.</source>
      <translation>Mit --render-invoice: eine Rechnung als JSON statt des Beispiels.</translation>
    </message>
    <message id="cli.renderInvoice.err.both">
      <source>--lines is for the sample invoice; a draft brings its own lines.</source>
      <translation>--lines gilt für die Beispielrechnung; ein Entwurf bringt eigene Positionen mit.</translation>
    </message>
    <message id="cli.renderInvoice.err.design">
      <source>Unknown design: %1. Choose one of: %2.</source>
      <translation>Unbekanntes Design: %1. Wählen Sie eines von: %2.</translation>
    </message>
    <message id="cli.renderInvoice.err.draft">
      <source>Cannot read the draft %1: %2</source>
      <translation>Der Entwurf %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message id="cli.renderInvoice.err.failed">
      <source>Rendering the invoice failed: %1</source>
      <translation>Das Erzeugen der Rechnung ist fehlgeschlagen: %1</translation>
    </message>
    <message id="cli.renderInvoice.err.lines">
      <source>--lines takes a whole number from 0 to %1.</source>
      <translation>--lines erwartet eine ganze Zahl von 0 bis %1.</translation>
    </message>
    <message id="cli.renderInvoice.err.noGui">
      <source>Rendering an invoice needs the graphical libraries; run it as: morvane --render-invoice</source>
      <translation>Zum Erzeugen einer Rechnung werden die Grafikbibliotheken gebraucht; starten Sie es als: morvane --render-invoice</translation>
    </message>
    <message id="cli.renderInvoice.err.write">
      <source>Cannot write %1: %2</source>
      <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message id="cli.renderInvoice.lines">
      <source>With --render-invoice: the number of lines of the sample invoice.</source>
      <translation>Mit --render-invoice: die Anzahl der Positionen der Beispielrechnung.</translation>
    </message>
    <message id="cli.renderInvoice.option">
      <source>Render an invoice to PDF through the application's own path and report its size.</source>
      <translation>Eine Rechnung über den Weg der Anwendung als PDF erzeugen und ihre Größe melden.</translation>
    </message>
    <message id="cli.renderInvoice.out">
      <source>With --render-invoice: where to write the PDF.</source>
      <translation>Mit --render-invoice: wohin das PDF geschrieben wird.</translation>
    </message>
    <message id="cli.renderInvoice.png">
      <source>With --render-invoice: a folder for pictures of the pages as PNG.</source>
      <translation>Mit --render-invoice: ein Ordner für Bilder der Seiten als PNG.</translation>
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
    <message id="inv.doc.amount">
      <source>Amount</source>
      <translation>Betrag</translation>
    </message>
    <message id="inv.doc.amountDue">
      <source>Amount due</source>
      <translation>Zu zahlen</translation>
    </message>
    <message id="inv.doc.bank">
      <source>Bank</source>
      <translation>Bank</translation>
    </message>
    <message id="inv.doc.billTo">
      <source>Bill to</source>
      <translation>Rechnung an</translation>
    </message>
    <message id="inv.doc.description">
      <source>Description</source>
      <translation>Beschreibung</translation>
    </message>
    <message id="inv.doc.due">
      <source>Due date</source>
      <translation>Fällig am</translation>
    </message>
    <message id="inv.doc.from">
      <source>From</source>
      <translation>Von</translation>
    </message>
    <message id="inv.doc.iban">
      <source>IBAN</source>
      <translation>IBAN</translation>
    </message>
    <message id="inv.doc.invoice">
      <source>Invoice</source>
      <translation>Rechnung</translation>
    </message>
    <message id="inv.doc.issued">
      <source>Issue date</source>
      <translation>Rechnungsdatum</translation>
    </message>
    <message id="inv.doc.kvk">
      <source>Company no.</source>
      <translation>Handelsregister</translation>
    </message>
    <message id="inv.doc.noVat">
      <source>No VAT on these lines</source>
      <translation>Keine USt. auf diese Positionen</translation>
    </message>
    <message id="inv.doc.notes">
      <source>Notes</source>
      <translation>Anmerkungen</translation>
    </message>
    <message id="inv.doc.number">
      <source>Invoice no.</source>
      <translation>Rechnungsnr.</translation>
    </message>
    <message id="inv.doc.payment">
      <source>Payment</source>
      <translation>Zahlung</translation>
    </message>
    <message id="inv.doc.paymentNoTerm">
      <source>Please pay by bank transfer, quoting the invoice number.</source>
      <translation>Bitte überweisen Sie den Betrag unter Angabe der Rechnungsnummer.</translation>
    </message>
    <message id="inv.doc.paymentTerms">
      <source>Please pay within %1 days, quoting the invoice number.</source>
      <translation>Bitte zahlen Sie innerhalb von %1 Tagen unter Angabe der Rechnungsnummer.</translation>
    </message>
    <message id="inv.doc.period">
      <source>Period</source>
      <translation>Zeitraum</translation>
    </message>
    <message id="inv.doc.project">
      <source>Project</source>
      <translation>Projekt</translation>
    </message>
    <message id="inv.doc.quantity">
      <source>Qty</source>
      <translation>Menge</translation>
    </message>
    <message id="inv.doc.rate">
      <source>Rate</source>
      <translation>Preis</translation>
    </message>
    <message id="inv.doc.reference">
      <source>Reference</source>
      <translation>Verwendungszweck</translation>
    </message>
    <message id="inv.doc.subtotal">
      <source>Subtotal</source>
      <translation>Zwischensumme</translation>
    </message>
    <message id="inv.doc.thanks">
      <source>Thank you for your business.</source>
      <translation>Vielen Dank für die gute Zusammenarbeit.</translation>
    </message>
    <message id="inv.doc.total">
      <source>Total</source>
      <translation>Gesamt</translation>
    </message>
    <message id="inv.doc.vatId">
      <source>VAT no.</source>
      <translation>USt-IdNr.</translation>
    </message>
    <message id="inv.doc.vatRow">
      <source>VAT %1%</source>
      <translation>USt. %1 %</translation>
    </message>
    <message id="inv.doc.vatRowOver">
      <source>VAT %1% on %2</source>
      <translation>USt. %1 % auf %2</translation>
    </message>
    <message id="inv.pdf.err.load">
      <source>The invoice page could not be loaded.</source>
      <translation>Die Rechnungsseite konnte nicht geladen werden.</translation>
    </message>
    <message id="inv.pdf.err.paging">
      <source>The invoice could not be laid out in pages.</source>
      <translation>Die Rechnung konnte nicht in Seiten aufgeteilt werden.</translation>
    </message>
    <message id="inv.pdf.err.print">
      <source>The PDF of the invoice could not be made.</source>
      <translation>Das PDF der Rechnung konnte nicht erstellt werden.</translation>
    </message>
    <message id="inv.pdf.err.spill">
      <source>The invoice page could not be written to a temporary file: %1</source>
      <translation>Die Rechnungsseite konnte nicht in eine temporäre Datei geschrieben werden: %1</translation>
    </message>
    <message id="inv.pdf.err.timeout">
      <source>The invoice page did not finish loading within %1 seconds.</source>
      <translation>Die Rechnungsseite wurde nicht innerhalb von %1 Sekunden geladen.</translation>
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
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Erstellt mit Morvane</translation>
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

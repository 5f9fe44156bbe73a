<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
  <context>
    <name>Morvane</name>
    <message id="add.couldNotParse">
      <source>Morvane could not make sense of that. Try saying it another way.</source>
      <translation>Morvane konnte damit nichts anfangen. Versuchen Sie es anders zu formulieren.</translation>
    </message>
    <message id="ai.err.badAnswer">
      <source>%1 sent an answer Morvane cannot use: %2</source>
      <translation>%1 hat eine Antwort geschickt, mit der Morvane nichts anfangen kann: %2</translation>
    </message>
    <message id="ai.err.consentDeclined">
      <source>You chose not to send your text to %1. You can change this in the AI settings.</source>
      <translation>Du hast entschieden, deinen Text nicht an %1 zu senden. Das kannst du in den KI-Einstellungen ändern.</translation>
    </message>
    <message id="ai.err.consentMissing">
      <source>Morvane asks before it sends your text to %1 for the first time. Answer that question in the window, or run the command again with --yes.</source>
      <translation>Morvane fragt nach, bevor dein Text zum ersten Mal an %1 geht. Beantworte die Frage im Fenster oder führe den Befehl erneut mit --yes aus.</translation>
    </message>
    <message id="ai.err.needsCLI">
      <source>This needs the Claude CLI, which can work with files; %1 cannot. Choose the Claude CLI in the AI settings.</source>
      <translation>Dafür braucht es die Claude CLI, die mit Dateien arbeiten kann; %1 kann das nicht. Wähle die Claude CLI in den KI-Einstellungen.</translation>
    </message>
    <message id="ai.err.noKey">
      <source>There is no API key for %1 in your keyring. Add your key in the AI settings.</source>
      <translation>In deinem Schlüsselbund ist kein API-Schlüssel für %1. Füge deinen Schlüssel in den KI-Einstellungen hinzu.</translation>
    </message>
    <message id="ai.err.notSignedIn">
      <source>%1 works only while you are signed in. Sign in, then try again.</source>
      <translation>%1 funktioniert nur, solange du angemeldet bist. Melde dich an und versuche es erneut.</translation>
    </message>
    <message id="ai.err.status">
      <source>%1 answered with error %2: %3</source>
      <translation>%1 antwortete mit Fehler %2: %3</translation>
    </message>
    <message id="ai.err.timedOut">
      <source>%1 did not answer within %2 s</source>
      <translation>%1 hat nicht innerhalb von %2 s geantwortet</translation>
    </message>
    <message id="ai.err.unreachable">
      <source>%1 could not be reached: %2</source>
      <translation>%1 ist nicht erreichbar: %2</translation>
    </message>
    <message id="ai.route.anthropic.where">
      <source>Your text goes straight from this computer to Anthropic, with your own API key.</source>
      <translation>Dein Text geht direkt von diesem Computer an Anthropic, mit deinem eigenen API-Schlüssel.</translation>
    </message>
    <message id="ai.route.claudeCLI.where">
      <source>Your text goes to the claude program on this computer, which sends it to Anthropic under your own Claude account. Morvane itself sends nothing over the network.</source>
      <translation>Dein Text geht an das Programm claude auf diesem Computer, das ihn unter deinem eigenen Claude-Konto an Anthropic sendet. Morvane selbst sendet nichts über das Netzwerk.</translation>
    </message>
    <message id="ai.route.gemini.where">
      <source>Your text goes straight from this computer to Google, with your own API key.</source>
      <translation>Dein Text geht direkt von diesem Computer an Google, mit deinem eigenen API-Schlüssel.</translation>
    </message>
    <message id="ai.route.morvaneAI.where">
      <source>Your text goes to the Morvane server you are signed in to, which passes it on to the AI service its operator has chosen, and the answer comes back the same way.</source>
      <translation>Dein Text geht an den Morvane-Server, bei dem du angemeldet bist. Er gibt ihn an den KI-Dienst weiter, den sein Betreiber gewählt hat, und die Antwort kommt auf demselben Weg zurück.</translation>
    </message>
    <message id="ai.route.openAI.where">
      <source>Your text goes straight from this computer to OpenAI, with your own API key.</source>
      <translation>Dein Text geht direkt von diesem Computer an OpenAI, mit deinem eigenen API-Schlüssel.</translation>
    </message>
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
    <message id="auth.err.oauthRefused">
      <source>The sign-in was refused: %1</source>
      <translation>Die Anmeldung wurde abgelehnt: %1</translation>
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
    <message id="billing.dayNote">
      <source>Tracked time ÷ hours-per-day = billable days.</source>
      <translation>Erfasste Zeit ÷ Stunden pro Tag = abrechenbare Tage.</translation>
    </message>
    <message id="billing.dayRate">
      <source>Day rate</source>
      <translation>Tagessatz</translation>
    </message>
    <message id="billing.discount">
      <source>Discount</source>
      <translation>Rabatt</translation>
    </message>
    <message id="billing.extras">
      <source>Extras · call-out · materials · discount · VAT</source>
      <translation>Extras · Anfahrt · Material · Rabatt · MwSt.</translation>
    </message>
    <message id="billing.fixedTotal">
      <source>Fixed total</source>
      <translation>Fester Gesamtbetrag</translation>
    </message>
    <message id="billing.gross">
      <source>Gross (incl.)</source>
      <translation>Brutto (inkl.)</translation>
    </message>
    <message id="billing.hourlyRate">
      <source>Hourly rate</source>
      <translation>Stundensatz</translation>
    </message>
    <message id="billing.hoursPerDay">
      <source>Hours per day</source>
      <translation>Stunden pro Tag</translation>
    </message>
    <message id="billing.inheriting">
      <source>Inheriting from project</source>
      <translation>Vom Projekt übernommen</translation>
    </message>
    <message id="billing.materials">
      <source>Materials</source>
      <translation>Material</translation>
    </message>
    <message id="billing.minCharge">
      <source>Minimum charge</source>
      <translation>Mindestbetrag</translation>
    </message>
    <message id="billing.model.day">
      <source>Per day</source>
      <translation>Pro Tag</translation>
    </message>
    <message id="billing.model.fixed">
      <source>Fixed price</source>
      <translation>Festpreis</translation>
    </message>
    <message id="billing.model.hour">
      <source>Per hour</source>
      <translation>Pro Stunde</translation>
    </message>
    <message id="billing.model.unit">
      <source>Per unit</source>
      <translation>Pro Einheit</translation>
    </message>
    <message id="billing.net">
      <source>Net (excl. VAT)</source>
      <translation>Netto (ohne MwSt.)</translation>
    </message>
    <message id="billing.netNote">
      <source>Net per tracked time, plus the extras above.</source>
      <translation>Netto nach erfasster Zeit, zuzüglich der Extras oben.</translation>
    </message>
    <message id="billing.pricePerUnit">
      <source>Price / unit</source>
      <translation>Preis / Einheit</translation>
    </message>
    <message id="billing.quantity">
      <source>Quantity</source>
      <translation>Menge</translation>
    </message>
    <message id="billing.resetProject">
      <source>Reset to project default</source>
      <translation>Auf Projektpreis zurücksetzen</translation>
    </message>
    <message id="billing.suffix.day">
      <source>/day</source>
      <translation>/Tag</translation>
    </message>
    <message id="billing.suffix.hour">
      <source>/h</source>
      <translation>/Std.</translation>
    </message>
    <message id="billing.surcharge">
      <source>Call-out fee</source>
      <translation>Anfahrtspauschale</translation>
    </message>
    <message id="billing.title">
      <source>Billing</source>
      <translation>Abrechnung</translation>
    </message>
    <message id="billing.unit">
      <source>Unit</source>
      <translation>Einheit</translation>
    </message>
    <message id="billing.unitDefault">
      <source>unit</source>
      <translation>Einheit</translation>
    </message>
    <message id="billing.vat">
      <source>VAT</source>
      <translation>MwSt.</translation>
    </message>
    <message id="billing.vatAmount">
      <source>VAT</source>
      <translation>MwSt.</translation>
    </message>
    <message id="billing.vatNone">
      <source>No VAT</source>
      <translation>Keine MwSt.</translation>
    </message>
    <message id="cal.accessOffBody">
      <source>Morvane turns calendar events into time entries. Add an iCalendar file, a subscription address or a CalDAV account, then come back and recheck.</source>
      <translation>Morvane macht aus Kalenderterminen Zeiteinträge. Füge eine iCalendar-Datei, eine Abo-Adresse oder ein CalDAV-Konto hinzu und prüfe dann erneut.</translation>
    </message>
    <message id="cal.accessOffTitle">
      <source>No calendars yet</source>
      <translation>Noch keine Kalender</translation>
    </message>
    <message id="cal.err.alreadyImported">
      <source>This event was imported before; its time is already logged.</source>
      <translation>Dieser Termin wurde schon importiert; seine Zeit ist bereits erfasst.</translation>
    </message>
    <message id="cal.err.readFailed">
      <source>The calendar “%1” could not be read.</source>
      <translation>Der Kalender „%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message id="cal.err.secret">
      <source>The password could not be stored in the keyring.</source>
      <translation>Das Passwort konnte nicht im Schlüsselbund gespeichert werden.</translation>
    </message>
    <message id="cal.heroTitle">
      <source>Import from your calendar</source>
      <translation>Aus deinem Kalender importieren</translation>
    </message>
    <message id="cal.loading">
      <source>Loading calendar…</source>
      <translation>Kalender wird geladen…</translation>
    </message>
    <message id="cal.noEventsHint">
      <source>No events on this day. Pick another day, or add a calendar.</source>
      <translation>Keine Termine an diesem Tag. Wähle einen anderen Tag oder füge einen Kalender hinzu.</translation>
    </message>
    <message id="cal.selectedCount">
      <source>%1 selected</source>
      <translation>%1 ausgewählt</translation>
    </message>
    <message id="cal.untitled">
      <source>Calendar event</source>
      <translation>Kalendertermin</translation>
    </message>
    <message id="calExistingSection">
      <source>Existing tasks</source>
      <translation>Vorhandene Aufgaben</translation>
    </message>
    <message id="calNewTaskSection">
      <source>New tasks</source>
      <translation>Neue Aufgaben</translation>
    </message>
    <message id="capture.err.noMinutes">
      <source>The sentence gives no time to log.</source>
      <translation>Der Satz nennt keine Zeit zum Erfassen.</translation>
    </message>
    <message id="capture.err.noProject">
      <source>The sentence names no project to add the task to.</source>
      <translation>Der Satz nennt kein Projekt, dem die Aufgabe hinzugefügt werden soll.</translation>
    </message>
    <message id="capture.err.notSaved">
      <source>The change could not be saved.</source>
      <translation>Die Änderung konnte nicht gespeichert werden.</translation>
    </message>
    <message id="capture.fix.bothPrices">
      <source>"%1" has both a fixed price and an hourly rate; the fixed price is used.</source>
      <translation>„%1“ hat einen Festpreis und einen Stundensatz; der Festpreis gilt.</translation>
    </message>
    <message id="capture.fix.cut">
      <source>"%1…" was cut to %2 characters.</source>
      <translation>„%1…“ wurde auf %2 Zeichen gekürzt.</translation>
    </message>
    <message id="capture.fix.date">
      <source>The due date "%1" was left out: it is not a date of the form YYYY-MM-DD.</source>
      <translation>Das Fälligkeitsdatum „%1“ wurde weggelassen: Es ist kein Datum der Form JJJJ-MM-TT.</translation>
    </message>
    <message id="capture.fix.minutes">
      <source>%1 minutes were left out: time logged from one sentence is more than 0 and at most %2 minutes.</source>
      <translation>%1 Minuten wurden weggelassen: Zeit aus einem Satz liegt über 0 und bei höchstens %2 Minuten.</translation>
    </message>
    <message id="capture.fix.price">
      <source>The fixed price %1 was left out: a price lies between 0 and %2.</source>
      <translation>Der Festpreis %1 wurde weggelassen: Ein Preis liegt zwischen 0 und %2.</translation>
    </message>
    <message id="capture.fix.priority">
      <source>The priority "%1" is unknown; the task gets the default, medium.</source>
      <translation>Die Priorität „%1“ ist unbekannt; die Aufgabe erhält die Standardpriorität Mittel.</translation>
    </message>
    <message id="capture.fix.rate">
      <source>The hourly rate %1 was left out: a rate lies between 0 and %2.</source>
      <translation>Der Stundensatz %1 wurde weggelassen: Ein Satz liegt zwischen 0 und %2.</translation>
    </message>
    <message id="capture.fix.unnamed">
      <source>A project or task without a name was left out.</source>
      <translation>Ein Projekt oder eine Aufgabe ohne Namen wurde weggelassen.</translation>
    </message>
    <message id="capture.note.noTeam">
      <source>You have no team called "%1" that you may add projects to; "%2" stays yours alone.</source>
      <translation>Sie haben kein Team „%1“, dem Sie Projekte hinzufügen dürfen; „%2“ bleibt allein Ihres.</translation>
    </message>
    <message id="capture.note.noTimer">
      <source>No timer was running.</source>
      <translation>Es lief kein Timer.</translation>
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
    <message id="claude.err.timedOut">
      <source>Claude request timed out after %1 s</source>
      <translation>Claude-Anfrage nach %1 s abgebrochen</translation>
    </message>
    <message id="claude.err.workspaceTimedOut">
      <source>Claude workspace task timed out after %1 s</source>
      <translation>Claude-Arbeitsordneraufgabe nach %1 s abgebrochen</translation>
    </message>
    <message id="cli.add.adjusted">
      <source>Checked: %1</source>
      <translation>Geprüft: %1</translation>
    </message>
    <message id="cli.add.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as 'morvane tasks list' shows it.</source>
      <translation>Welche Aufgabe? Keine Ihrer Aufgaben heißt „%1“, oder mehrere. Nennen Sie sie so, wie 'morvane tasks list' sie zeigt.</translation>
    </message>
    <message id="cli.add.dryRunDone">
      <source>Nothing was changed (--dry-run).</source>
      <translation>Es wurde nichts geändert (--dry-run).</translation>
    </message>
    <message id="cli.add.due">
      <source>due %1</source>
      <translation>fällig %1</translation>
    </message>
    <message id="cli.add.fixed">
      <source>%1 fixed</source>
      <translation>%1 fest</translation>
    </message>
    <message id="cli.add.logTime">
      <source>Log %1 on "%2"</source>
      <translation>%1 auf „%2“ erfassen</translation>
    </message>
    <message id="cli.add.modelNote">
      <source>The model notes: %1</source>
      <translation>Das Modell merkt an: %1</translation>
    </message>
    <message id="cli.add.option.dryRun">
      <source>Show what was understood without changing anything.</source>
      <translation>Zeigen, was verstanden wurde, ohne etwas zu ändern.</translation>
    </message>
    <message id="cli.add.partial">
      <source>Stopped: %1 What was made before stays; give the same sentence again to finish the rest without making anything twice.</source>
      <translation>Abgebrochen: %1 Was bereits angelegt wurde, bleibt; geben Sie denselben Satz noch einmal ein, um den Rest ohne Doppeltes zu erledigen.</translation>
    </message>
    <message id="cli.add.project">
      <source>Project "%1"</source>
      <translation>Projekt „%1“</translation>
    </message>
    <message id="cli.add.spent">
      <source>%1 already spent</source>
      <translation>%1 bereits aufgewendet</translation>
    </message>
    <message id="cli.add.startTimer">
      <source>Start the timer on "%1"</source>
      <translation>Den Timer für „%1“ starten</translation>
    </message>
    <message id="cli.add.stopRunning">
      <source>Stop the running timer</source>
      <translation>Den laufenden Timer stoppen</translation>
    </message>
    <message id="cli.add.stopTimer">
      <source>Stop the timer on "%1"</source>
      <translation>Den Timer für „%1“ stoppen</translation>
    </message>
    <message id="cli.add.summary">
      <source>Projects: %1 new, %2 existing. Tasks: %3 new, %4 existing. Time logged: %5.</source>
      <translation>Projekte: %1 neu, %2 vorhanden. Aufgaben: %3 neu, %4 vorhanden. Erfasste Zeit: %5.</translation>
    </message>
    <message id="cli.add.task">
      <source>Task "%1"</source>
      <translation>Aufgabe „%1“</translation>
    </message>
    <message id="cli.add.team">
      <source>shared with team %1</source>
      <translation>mit Team %1 geteilt</translation>
    </message>
    <message id="cli.add.timerStopped">
      <source>Timer stopped on %1.</source>
      <translation>Timer für %1 gestoppt.</translation>
    </message>
    <message id="cli.add.understood">
      <source>Understood:</source>
      <translation>Verstanden:</translation>
    </message>
    <message id="cli.add.unknown">
      <source>Nothing to do: the sentence holds no project, task, time or timer action.</source>
      <translation>Nichts zu tun: Der Satz enthält kein Projekt, keine Aufgabe, keine Zeit und keine Timer-Aktion.</translation>
    </message>
    <message id="cli.add.usage">
      <source>Usage: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</source>
      <translation>Aufruf: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</translation>
    </message>
    <message id="cli.ai.consentAllowed">
      <source>allowed</source>
      <translation>erlaubt</translation>
    </message>
    <message id="cli.ai.consentAsk">
      <source>not asked yet</source>
      <translation>noch nicht gefragt</translation>
    </message>
    <message id="cli.ai.consentDeclined">
      <source>declined</source>
      <translation>abgelehnt</translation>
    </message>
    <message id="cli.ai.keyFailed">
      <source>The keyring did not take the key; nothing changed.</source>
      <translation>Der Schlüsselbund hat den Schlüssel nicht angenommen; nichts wurde geändert.</translation>
    </message>
    <message id="cli.ai.keyMissing">
      <source>No key was given; nothing changed.</source>
      <translation>Es wurde kein Schlüssel angegeben; nichts wurde geändert.</translation>
    </message>
    <message id="cli.ai.keyPrompt">
      <source>Paste your %1 API key and press Enter: </source>
      <translation>Füge deinen API-Schlüssel für %1 ein und drücke die Eingabetaste: </translation>
    </message>
    <message id="cli.ai.keyRemoved">
      <source>The %1 key is no longer in your keyring.</source>
      <translation>Der Schlüssel für %1 ist nicht mehr in deinem Schlüsselbund.</translation>
    </message>
    <message id="cli.ai.keySaved">
      <source>The %1 key is in your keyring.</source>
      <translation>Der Schlüssel für %1 ist in deinem Schlüsselbund.</translation>
    </message>
    <message id="cli.ai.keys">
      <source>Your keys in the keyring: %1</source>
      <translation>Deine Schlüssel im Schlüsselbund: %1</translation>
    </message>
    <message id="cli.ai.option.remove">
      <source>Remove the stored key instead of setting one.</source>
      <translation>Den gespeicherten Schlüssel entfernen, statt einen zu setzen.</translation>
    </message>
    <message id="cli.ai.provider">
      <source>Provider setting: %1</source>
      <translation>Anbieter-Einstellung: %1</translation>
    </message>
    <message id="cli.ai.question">
      <source>%1
Send your text to %2 now and from now on? [y/N] </source>
      <translation>%1
Deinen Text jetzt und künftig an %2 senden? [j/N] </translation>
    </message>
    <message id="cli.ai.route">
      <source>Calls go to: %1</source>
      <translation>Aufrufe gehen an: %1</translation>
    </message>
    <message id="cli.ai.usage">
      <source>Usage: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</source>
      <translation>Aufruf: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</translation>
    </message>
    <message id="cli.ai.yes">
      <source>Agree to sending your text to the chosen AI service without being asked.</source>
      <translation>Dem Senden deines Textes an den gewählten KI-Dienst ohne Nachfrage zustimmen.</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>Der auszuführende Befehl; ohne Befehl wird die Befehlsliste angezeigt.</translation>
    </message>
    <message id="cli.auth.browser">
      <source>Continue in your browser. If no page opens, go to: %1</source>
      <translation>Weiter im Browser. Öffnet sich keine Seite, gehe zu: %1</translation>
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
    <message id="cli.auth.option.provider">
      <source>Sign in through an outside provider in the browser instead of with a password.</source>
      <translation>Über einen externen Anbieter im Browser anmelden statt mit einem Passwort.</translation>
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
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Aufruf: morvane auth signup|signin &lt;E-Mail&gt; | signin --provider NAME | signout | status | switch &lt;E-Mail&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.calendar.added">
      <source>Added %1 (%2).</source>
      <translation>%1 hinzugefügt (%2).</translation>
    </message>
    <message id="cli.calendar.err.add">
      <source>That calendar cannot be added: %1.</source>
      <translation>Dieser Kalender kann nicht hinzugefügt werden: %1.</translation>
    </message>
    <message id="cli.calendar.err.day">
      <source>A day is written as YYYY-MM-DD, today or yesterday.</source>
      <translation>Ein Tag wird als JJJJ-MM-TT, today oder yesterday geschrieben.</translation>
    </message>
    <message id="cli.calendar.err.noDestination">
      <source>No task or project for: %1. Pass --project P to make them new tasks there.</source>
      <translation>Keine Aufgabe oder kein Projekt für: %1. Gib --project P an, um dort neue Aufgaben daraus zu machen.</translation>
    </message>
    <message id="cli.calendar.err.noSelection">
      <source>Say which events to import: --events ID... (see morvane calendar events) or --all.</source>
      <translation>Gib an, welche Termine importiert werden: --events ID... (siehe morvane calendar events) oder --all.</translation>
    </message>
    <message id="cli.calendar.err.unknown">
      <source>No single calendar matches “%1”; see morvane calendar list.</source>
      <translation>Kein eindeutiger Kalender passt zu „%1“; siehe morvane calendar list.</translation>
    </message>
    <message id="cli.calendar.imported">
      <source>imported</source>
      <translation>importiert</translation>
    </message>
    <message id="cli.calendar.importedCount">
      <source>Imported %1 events; %2 were imported before.</source>
      <translation>%1 Termine importiert; %2 waren schon importiert.</translation>
    </message>
    <message id="cli.calendar.opt.all">
      <source>Import every event of the day.</source>
      <translation>Alle Termine des Tages importieren.</translation>
    </message>
    <message id="cli.calendar.opt.caldav">
      <source>Read a CalDAV collection (with --user) instead of a subscription.</source>
      <translation>Eine CalDAV-Sammlung (mit --user) statt eines Abos lesen.</translation>
    </message>
    <message id="cli.calendar.opt.day">
      <source>The day: YYYY-MM-DD, today or yesterday.</source>
      <translation>Der Tag: JJJJ-MM-TT, today oder yesterday.</translation>
    </message>
    <message id="cli.calendar.opt.events">
      <source>The events to import, by the id events shows.</source>
      <translation>Die zu importierenden Termine, mit der ID, die events zeigt.</translation>
    </message>
    <message id="cli.calendar.opt.name">
      <source>The name the calendar is shown under.</source>
      <translation>Der Name, unter dem der Kalender angezeigt wird.</translation>
    </message>
    <message id="cli.calendar.opt.project">
      <source>The project new tasks are made in.</source>
      <translation>Das Projekt, in dem neue Aufgaben angelegt werden.</translation>
    </message>
    <message id="cli.calendar.opt.user">
      <source>The CalDAV user name.</source>
      <translation>Der CalDAV-Benutzername.</translation>
    </message>
    <message id="cli.calendar.password">
      <source>CalDAV password: </source>
      <translation>CalDAV-Passwort: </translation>
    </message>
    <message id="cli.calendar.removed">
      <source>Removed %1.</source>
      <translation>%1 entfernt.</translation>
    </message>
    <message id="cli.calendar.usage">
      <source>Usage: morvane calendar add &lt;file-or-address&gt; [--caldav --user U] | list | rm &lt;calendar&gt; | events [--day DAY] [--json] | import --day DAY [--project P] [--events ID...] [--all]</source>
      <translation>Aufruf: morvane calendar add &lt;Datei-oder-Adresse&gt; [--caldav --user U] | list | rm &lt;Kalender&gt; | events [--day TAG] [--json] | import --day TAG [--project P] [--events ID...] [--all]</translation>
    </message>
    <message id="cli.clients.added">
      <source>Added client %1 (%2).</source>
      <translation>Kunde %1 hinzugefügt (%2).</translation>
    </message>
    <message id="cli.clients.coc">
      <source>CoC %1</source>
      <translation>HR %1</translation>
    </message>
    <message id="cli.clients.confirmDelete">
      <source>Delete the client %1? Invoices that name it keep it. [y/N] </source>
      <translation>Kunde %1 löschen? Rechnungen, die ihn nennen, behalten ihn. [y/N] </translation>
    </message>
    <message id="cli.clients.deleted">
      <source>Deleted client %1.</source>
      <translation>Kunde %1 gelöscht.</translation>
    </message>
    <message id="cli.clients.kept">
      <source>Nothing deleted.</source>
      <translation>Nichts gelöscht.</translation>
    </message>
    <message id="cli.clients.noMatch">
      <source>No client matches "%1". See them with: morvane clients list</source>
      <translation>Kein Kunde passt zu „%1“. Zeige sie an mit: morvane clients list</translation>
    </message>
    <message id="cli.clients.none">
      <source>No clients yet. Add one with: morvane clients add &lt;name&gt;</source>
      <translation>Noch keine Kunden. Lege einen an mit: morvane clients add &lt;name&gt;</translation>
    </message>
    <message id="cli.clients.option.address">
      <source>The client's postal address; it may span several lines.</source>
      <translation>Die Postanschrift des Kunden; sie darf mehrere Zeilen umfassen.</translation>
    </message>
    <message id="cli.clients.option.coc">
      <source>The client's chamber-of-commerce number.</source>
      <translation>Die Handelsregisternummer des Kunden.</translation>
    </message>
    <message id="cli.clients.option.email">
      <source>The client's e-mail address.</source>
      <translation>Die E-Mail-Adresse des Kunden.</translation>
    </message>
    <message id="cli.clients.option.name">
      <source>A new name (edit only).</source>
      <translation>Ein neuer Name (nur bei edit).</translation>
    </message>
    <message id="cli.clients.option.vat">
      <source>The client's VAT number.</source>
      <translation>Die USt-IdNr. des Kunden.</translation>
    </message>
    <message id="cli.clients.option.yes">
      <source>Delete without asking first.</source>
      <translation>Ohne Rückfrage löschen.</translation>
    </message>
    <message id="cli.clients.saved">
      <source>Saved client %1.</source>
      <translation>Kunde %1 gespeichert.</translation>
    </message>
    <message id="cli.clients.usage">
      <source>Usage: morvane clients list | add &lt;name&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;client&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;client&gt; [--yes] [--json]</source>
      <translation>Aufruf: morvane clients list | add &lt;name&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;kunde&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;kunde&gt; [--yes] [--json]</translation>
    </message>
    <message id="cli.clients.vat">
      <source>VAT %1</source>
      <translation>USt-IdNr. %1</translation>
    </message>
    <message id="cli.clients.yesAnswers">
      <source>y|yes</source>
      <translation>j|ja</translation>
    </message>
    <message id="cli.command.add">
      <source>Turn a sentence into projects, tasks, logged time or a timer action: add "&lt;text&gt;" [--dry-run] [--json]</source>
      <translation>Einen Satz in Projekte, Aufgaben, erfasste Zeit oder eine Timer-Aktion verwandeln: add "&lt;text&gt;" [--dry-run] [--json]</translation>
    </message>
    <message id="cli.command.ai">
      <source>Where model calls go, your own API keys and what you agreed to send: ai show|provider|key|consent</source>
      <translation>Wohin Modellaufrufe gehen, deine eigenen API-Schlüssel und wozu du zugestimmt hast: ai show|provider|key|consent</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Registrieren, an- und abmelden, zwischen Konten wechseln</translation>
    </message>
    <message id="cli.command.calendar">
      <source>Calendar events as time: calendar add|list|rm|events|import</source>
      <translation>Kalendertermine als Zeit: calendar add|list|rm|events|import</translation>
    </message>
    <message id="cli.command.clients">
      <source>The clients you invoice: clients list|add|edit|rm</source>
      <translation>Die Kunden, denen du Rechnungen stellst: clients list|add|edit|rm</translation>
    </message>
    <message id="cli.command.company">
      <source>Your sender details and invoice style: company show|set</source>
      <translation>Deine Absenderangaben und dein Rechnungsstil: company show|set</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Zeigt, welches Backend Morvane nutzt und woher jede Einstellung stammt</translation>
    </message>
    <message id="cli.command.earnings">
      <source>Earned, billed and unbilled money by week, month or project: earnings [--from DAY --to DAY] [--by week|month|project]</source>
      <translation>Verdientes, abgerechnetes und noch nicht abgerechnetes Geld nach Woche, Monat oder Projekt: earnings [--from TAG --to TAG] [--by week|month|project]</translation>
    </message>
    <message id="cli.command.entries">
      <source>List, edit or delete time entries: entries [--task T] | edit | rm</source>
      <translation>Zeiteinträge anzeigen, bearbeiten oder löschen: entries [--task T] | edit | rm</translation>
    </message>
    <message id="cli.command.export">
      <source>Time entries or invoices of a period as CSV for the accountant: export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Zeiteinträge oder Rechnungen eines Zeitraums als CSV für die Steuerberatung: export entries|invoices --from TAG --to TAG [--out DATEI]</translation>
    </message>
    <message id="cli.command.invoice">
      <source>Invoices: invoice draft|create|list|show|status|void|rm|pdf</source>
      <translation>Rechnungen: invoice draft|create|list|show|status|void|rm|pdf</translation>
    </message>
    <message id="cli.command.log">
      <source>Log minutes of work on a task: log &lt;task&gt; &lt;minutes&gt;</source>
      <translation>Arbeitsminuten für eine Aufgabe erfassen: log &lt;task&gt; &lt;minutes&gt;</translation>
    </message>
    <message id="cli.command.price">
      <source>Show or set the price of a project or task: price show|set</source>
      <translation>Preis eines Projekts oder einer Aufgabe anzeigen oder festlegen: price show|set</translation>
    </message>
    <message id="cli.command.projects">
      <source>List, add, rename, archive or delete projects: projects list|add|rename|archive|rm</source>
      <translation>Projekte anzeigen, anlegen, umbenennen, archivieren oder löschen: projects list|add|rename|archive|rm</translation>
    </message>
    <message id="cli.command.recap">
      <source>A short recap of your tracked week, written by the model from your own figures: recap [--lang L]</source>
      <translation>Ein kurzer Wochenrückblick auf deine erfasste Zeit, vom Modell aus deinen eigenen Zahlen geschrieben: recap [--lang L]</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Das lokale Backend starten, beenden oder anzeigen: server start|stop|status</translation>
    </message>
    <message id="cli.command.sessions">
      <source>Coding-agent sessions found in the local logs: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</source>
      <translation>Sitzungen des Coding-Agenten aus den lokalen Logs: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</translation>
    </message>
    <message id="cli.command.standup">
      <source>A stand-up draft from your last workday, today and your open tasks: standup [--lang L]</source>
      <translation>Ein Stand-up-Entwurf aus deinem letzten Arbeitstag, heute und deinen offenen Aufgaben: standup [--lang L]</translation>
    </message>
    <message id="cli.command.tasks">
      <source>List, add, edit, move or delete tasks: tasks list|add|edit|move|status|rm</source>
      <translation>Aufgaben anzeigen, anlegen, bearbeiten, verschieben oder löschen: tasks list|add|edit|move|status|rm</translation>
    </message>
    <message id="cli.command.teams">
      <source>Teams and their members: teams list|create|invite|invitations|accept|decline|assign</source>
      <translation>Teams und ihre Mitglieder: teams list|create|invite|invitations|accept|decline|assign</translation>
    </message>
    <message id="cli.command.timer">
      <source>Start, stop or show the timer: timer start|stop|toggle|status</source>
      <translation>Timer starten, stoppen oder anzeigen: timer start|stop|toggle|status</translation>
    </message>
    <message id="cli.command.travel">
      <source>Your rate per kilometre and how you usually travel: travel show|set</source>
      <translation>Ihr Satz pro Kilometer und wie Sie meist reisen: travel show|set</translation>
    </message>
    <message id="cli.command.trips">
      <source>Trips and their kilometres: trips list|add|edit|rm|route|export</source>
      <translation>Fahrten und ihre Kilometer: trips list|add|edit|rm|route|export</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Befehle:</translation>
    </message>
    <message id="cli.company.accent">
      <source>Accent colour</source>
      <translation>Akzentfarbe</translation>
    </message>
    <message id="cli.company.address">
      <source>Address</source>
      <translation>Adresse</translation>
    </message>
    <message id="cli.company.argument.action">
      <source>show or set</source>
      <translation>show oder set</translation>
    </message>
    <message id="cli.company.bank">
      <source>Bank</source>
      <translation>Bank</translation>
    </message>
    <message id="cli.company.cocNumber">
      <source>Chamber of commerce number</source>
      <translation>Handelsregisternummer</translation>
    </message>
    <message id="cli.company.company">
      <source>Company</source>
      <translation>Firma</translation>
    </message>
    <message id="cli.company.days">
      <source>%1 days</source>
      <translation>%1 Tage</translation>
    </message>
    <message id="cli.company.design">
      <source>Design</source>
      <translation>Design</translation>
    </message>
    <message id="cli.company.email">
      <source>E-mail</source>
      <translation>E-Mail</translation>
    </message>
    <message id="cli.company.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>Das Zahlungsziel ist eine ganze Zahl von Tagen zwischen 0 und 365.</translation>
    </message>
    <message id="cli.company.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>Der USt-Satz ist ein Prozentsatz zwischen 0 und 100.</translation>
    </message>
    <message id="cli.company.fileProblem">
      <source>%1: %2</source>
      <translation>%1: %2</translation>
    </message>
    <message id="cli.company.fontBody">
      <source>Body font</source>
      <translation>Textschrift</translation>
    </message>
    <message id="cli.company.fontDisplay">
      <source>Display font</source>
      <translation>Überschriftenschrift</translation>
    </message>
    <message id="cli.company.footer">
      <source>Footer</source>
      <translation>Fußzeile</translation>
    </message>
    <message id="cli.company.iban">
      <source>Bank account (IBAN)</source>
      <translation>Bankkonto (IBAN)</translation>
    </message>
    <message id="cli.company.ink">
      <source>Ink colour</source>
      <translation>Schriftfarbe</translation>
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
      <translation>gesetzt, aber nicht lesbar</translation>
    </message>
    <message id="cli.company.none">
      <source>No sender details yet. Set them with: morvane company set --company NAME --address TEXT ...</source>
      <translation>Noch keine Absenderangaben. Lege sie fest mit: morvane company set --company NAME --address TEXT ...</translation>
    </message>
    <message id="cli.company.option.design">
      <source>The design new invoices are drawn in.</source>
      <translation>Das Design neuer Rechnungen.</translation>
    </message>
    <message id="cli.company.option.field">
      <source>Sets: %1. An empty value clears it.</source>
      <translation>Setzt: %1. Ein leerer Wert löscht es.</translation>
    </message>
    <message id="cli.company.option.help">
      <source>Show this help.</source>
      <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message id="cli.company.option.logo">
      <source>A PNG or JPEG of at most 1 MB; an empty value removes the logo.</source>
      <translation>Eine PNG- oder JPEG-Datei bis 1 MB; ein leerer Wert entfernt das Logo.</translation>
    </message>
    <message id="cli.company.option.paymentDays">
      <source>Days the client has to pay.</source>
      <translation>Tage, die der Kunde zum Zahlen hat.</translation>
    </message>
    <message id="cli.company.option.template">
      <source>Your own HTML template; new invoices use it unless --design says otherwise.</source>
      <translation>Deine eigene HTML-Vorlage; neue Rechnungen nutzen sie, sofern --design nichts anderes sagt.</translation>
    </message>
    <message id="cli.company.option.vatRate">
      <source>VAT percentage of lines whose price has none.</source>
      <translation>USt-Satz für Posten ohne eigenen Satz.</translation>
    </message>
    <message id="cli.company.paymentDays">
      <source>Payment terms</source>
      <translation>Zahlungsziel</translation>
    </message>
    <message id="cli.company.phone">
      <source>Phone</source>
      <translation>Telefon</translation>
    </message>
    <message id="cli.company.saved">
      <source>Sender details and invoice style saved.</source>
      <translation>Absenderangaben und Rechnungsstil gespeichert.</translation>
    </message>
    <message id="cli.company.template">
      <source>Custom template</source>
      <translation>Eigene Vorlage</translation>
    </message>
    <message id="cli.company.templateFallsBack">
      <source>not used, invoices fall back to %1: %2</source>
      <translation>nicht verwendet, Rechnungen nutzen stattdessen %1: %2</translation>
    </message>
    <message id="cli.company.templateStatus">
      <source>Custom template: %1</source>
      <translation>Eigene Vorlage: %1</translation>
    </message>
    <message id="cli.company.templateUsed">
      <source>used</source>
      <translation>verwendet</translation>
    </message>
    <message id="cli.company.unknownDesign">
      <source>Unknown design: %1. The designs are: %2 (aiCustom is your own template).</source>
      <translation>Unbekanntes Design: %1. Die Designs sind: %2 (aiCustom ist deine eigene Vorlage).</translation>
    </message>
    <message id="cli.company.usage">
      <source>Usage: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</source>
      <translation>Aufruf: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</translation>
    </message>
    <message id="cli.company.vatNumber">
      <source>VAT number</source>
      <translation>USt-IdNr.</translation>
    </message>
    <message id="cli.company.vatRate">
      <source>Default VAT rate</source>
      <translation>Standard-USt-Satz</translation>
    </message>
    <message id="cli.company.website">
      <source>Website</source>
      <translation>Website</translation>
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
    <message id="cli.earnings.backwards">
      <source>The period ends before it begins.</source>
      <translation>Der Zeitraum endet, bevor er beginnt.</translation>
    </message>
    <message id="cli.earnings.badBy">
      <source>--by takes week, month or project, not "%1".</source>
      <translation>--by erwartet week, month oder project, nicht „%1“.</translation>
    </message>
    <message id="cli.earnings.badDay">
      <source>"%1" is not a day; write it as yyyy-MM-dd, for example 2026-01-31.</source>
      <translation>„%1“ ist kein Tag; schreibe ihn als JJJJ-MM-TT, zum Beispiel 2026-01-31.</translation>
    </message>
    <message id="cli.earnings.column.billed">
      <source>Billed</source>
      <translation>Abgerechnet</translation>
    </message>
    <message id="cli.earnings.column.earned">
      <source>Earned</source>
      <translation>Verdient</translation>
    </message>
    <message id="cli.earnings.column.hours">
      <source>Hours</source>
      <translation>Stunden</translation>
    </message>
    <message id="cli.earnings.column.period">
      <source>Period</source>
      <translation>Zeitraum</translation>
    </message>
    <message id="cli.earnings.column.project">
      <source>Project</source>
      <translation>Projekt</translation>
    </message>
    <message id="cli.earnings.column.rate">
      <source>Per hour</source>
      <translation>Pro Stunde</translation>
    </message>
    <message id="cli.earnings.column.unbilled">
      <source>Unbilled</source>
      <translation>Offen</translation>
    </message>
    <message id="cli.earnings.halfPeriod">
      <source>Give both --from and --to, or neither for the current month.</source>
      <translation>Gib --from und --to zusammen an, oder keines von beiden für den laufenden Monat.</translation>
    </message>
    <message id="cli.earnings.heading">
      <source>Earnings from %1 to %2</source>
      <translation>Einnahmen vom %1 bis %2</translation>
    </message>
    <message id="cli.earnings.noProject">
      <source>No project</source>
      <translation>Kein Projekt</translation>
    </message>
    <message id="cli.earnings.none">
      <source>No time tracked in this period.</source>
      <translation>In diesem Zeitraum wurde keine Zeit erfasst.</translation>
    </message>
    <message id="cli.earnings.option.by">
      <source>Rows by week, month (the default) or project.</source>
      <translation>Zeilen nach Woche, Monat (Standard) oder Projekt.</translation>
    </message>
    <message id="cli.earnings.option.from">
      <source>First day of the period (yyyy-MM-dd); with --to. Without both, the current month.</source>
      <translation>Erster Tag des Zeitraums (JJJJ-MM-TT); zusammen mit --to. Ohne beide: der laufende Monat.</translation>
    </message>
    <message id="cli.earnings.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Letzter Tag des Zeitraums (JJJJ-MM-TT), eingeschlossen.</translation>
    </message>
    <message id="cli.earnings.total">
      <source>Total</source>
      <translation>Summe</translation>
    </message>
    <message id="cli.earnings.usage">
      <source>Usage: morvane earnings [--from DAY --to DAY] [--by week|month|project] [--json]</source>
      <translation>Aufruf: morvane earnings [--from TAG --to TAG] [--by week|month|project] [--json]</translation>
    </message>
    <message id="cli.entries.badRange">
      <source>An entry must end after it starts.</source>
      <translation>Ein Eintrag muss nach seinem Beginn enden.</translation>
    </message>
    <message id="cli.entries.deleted">
      <source>Deleted the entry of %1.</source>
      <translation>Der Eintrag über %1 wurde gelöscht.</translation>
    </message>
    <message id="cli.entries.noMatch">
      <source>No single time entry matches "%1". List them with: morvane entries --task &lt;task&gt;</source>
      <translation>Kein einzelner Zeiteintrag passt auf "%1". Zeige sie mit: morvane entries --task &lt;task&gt;</translation>
    </message>
    <message id="cli.entries.none">
      <source>No time entries.</source>
      <translation>Keine Zeiteinträge.</translation>
    </message>
    <message id="cli.entries.option.end">
      <source>The new end (ISO 8601, local time without an offset).</source>
      <translation>Das neue Ende (ISO 8601, Ortszeit ohne Versatz).</translation>
    </message>
    <message id="cli.entries.option.minutes">
      <source>The new length in minutes.</source>
      <translation>Die neue Dauer in Minuten.</translation>
    </message>
    <message id="cli.entries.option.start">
      <source>The new start (ISO 8601, local time without an offset).</source>
      <translation>Der neue Beginn (ISO 8601, Ortszeit ohne Versatz).</translation>
    </message>
    <message id="cli.entries.option.task">
      <source>Only the entries of this task, older ones included.</source>
      <translation>Nur die Einträge dieser Aufgabe, ältere eingeschlossen.</translation>
    </message>
    <message id="cli.entries.total">
      <source>In all: %1</source>
      <translation>Insgesamt: %1</translation>
    </message>
    <message id="cli.entries.usage">
      <source>Usage: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</source>
      <translation>Aufruf: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</translation>
    </message>
    <message id="cli.err.noSignInWaiting">
      <source>No sign-in is waiting for this address. Start the sign-in in Morvane again.</source>
      <translation>Keine Anmeldung wartet auf diese Adresse. Starte die Anmeldung in Morvane erneut.</translation>
    </message>
    <message id="cli.err.notSignedIn">
      <source>Not signed in. Sign in with: morvane auth signin &lt;e-mail&gt;</source>
      <translation>Nicht angemeldet. Melde dich an mit: morvane auth signin &lt;e-mail&gt;</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Unbekannter Befehl: %1. Mit morvane --help wird die Befehlsliste angezeigt.</translation>
    </message>
    <message id="cli.export.argument.kind">
      <source>What to export: entries or invoices.</source>
      <translation>Was exportiert wird: entries (Zeiteinträge) oder invoices (Rechnungen).</translation>
    </message>
    <message id="cli.export.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Erster Tag des Zeitraums (JJJJ-MM-TT).</translation>
    </message>
    <message id="cli.export.option.help">
      <source>Show this help.</source>
      <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message id="cli.export.option.out">
      <source>The CSV file to write; without it the CSV goes to standard output.</source>
      <translation>Die zu schreibende CSV-Datei; ohne sie geht die CSV auf die Standardausgabe.</translation>
    </message>
    <message id="cli.export.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Letzter Tag des Zeitraums (JJJJ-MM-TT), eingeschlossen.</translation>
    </message>
    <message id="cli.export.usage">
      <source>Usage: morvane export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Aufruf: morvane export entries|invoices --from TAG --to TAG [--out DATEI]</translation>
    </message>
    <message id="cli.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message id="cli.export.written">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 gespeichert (Zeilen: %2).</translation>
    </message>
    <message id="cli.invoice.ambiguous">
      <source>Several invoices match %1; give more of the id or the number.</source>
      <translation>Mehrere Rechnungen passen zu %1; gib mehr von der ID oder die Nummer an.</translation>
    </message>
    <message id="cli.invoice.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Rechnung %1 gelöscht; ihre Stunden sind wieder nicht abgerechnet.</translation>
    </message>
    <message id="cli.invoice.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>Das PDF konnte nicht heruntergeladen werden: %1</translation>
    </message>
    <message id="cli.invoice.draftEmpty">
      <source>No unbilled time of %1 in this period.</source>
      <translation>Keine nicht abgerechnete Zeit von %1 in diesem Zeitraum.</translation>
    </message>
    <message id="cli.invoice.due">
      <source>, due %1</source>
      <translation>, fällig %1</translation>
    </message>
    <message id="cli.invoice.header">
      <source>Invoice %1 (%2), issued %3</source>
      <translation>Rechnung %1 (%2), ausgestellt %3</translation>
    </message>
    <message id="cli.invoice.none">
      <source>No invoices yet.</source>
      <translation>Noch keine Rechnungen.</translation>
    </message>
    <message id="cli.invoice.notFound">
      <source>No invoice matches %1.</source>
      <translation>Keine Rechnung passt zu %1.</translation>
    </message>
    <message id="cli.invoice.option.client">
      <source>Bill-to name on the new invoice.</source>
      <translation>Name des Rechnungsempfängers auf der neuen Rechnung.</translation>
    </message>
    <message id="cli.invoice.option.design">
      <source>The design of the new invoice, instead of the one in your invoice style.</source>
      <translation>Das Design der neuen Rechnung statt dessen aus deinem Rechnungsstil.</translation>
    </message>
    <message id="cli.invoice.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Erster Tag des Zeitraums (JJJJ-MM-TT).</translation>
    </message>
    <message id="cli.invoice.option.out">
      <source>The file to write the PDF to.</source>
      <translation>Die Datei, in die das PDF geschrieben wird.</translation>
    </message>
    <message id="cli.invoice.option.status">
      <source>Status of the new invoice: draft or sent.</source>
      <translation>Status der neuen Rechnung: draft oder sent.</translation>
    </message>
    <message id="cli.invoice.option.to">
      <source>Last day of the period (yyyy-MM-dd).</source>
      <translation>Letzter Tag des Zeitraums (JJJJ-MM-TT).</translation>
    </message>
    <message id="cli.invoice.option.vat">
      <source>VAT percentage for lines whose price has none.</source>
      <translation>USt.-Satz für Positionen, deren Preis keinen hat.</translation>
    </message>
    <message id="cli.invoice.pdfReplaced">
      <source>The PDF of invoice %1 was made again.</source>
      <translation>Das PDF der Rechnung %1 wurde neu erstellt.</translation>
    </message>
    <message id="cli.invoice.pdfSaved">
      <source>Saved the PDF of invoice %1 to %2.</source>
      <translation>Das PDF der Rechnung %1 wurde in %2 gespeichert.</translation>
    </message>
    <message id="cli.invoice.status.draft">
      <source>draft</source>
      <translation>Entwurf</translation>
    </message>
    <message id="cli.invoice.status.paid">
      <source>paid</source>
      <translation>bezahlt</translation>
    </message>
    <message id="cli.invoice.status.sent">
      <source>sent</source>
      <translation>versendet</translation>
    </message>
    <message id="cli.invoice.status.void">
      <source>void</source>
      <translation>storniert</translation>
    </message>
    <message id="cli.invoice.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>Rechnung %1 ist jetzt %2.</translation>
    </message>
    <message id="cli.invoice.subtotal">
      <source>Subtotal</source>
      <translation>Zwischensumme</translation>
    </message>
    <message id="cli.invoice.total">
      <source>Total</source>
      <translation>Gesamt</translation>
    </message>
    <message id="cli.invoice.usage">
      <source>Usage: morvane invoice draft|create &lt;project&gt; [--from DAY] [--to DAY] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;invoice&gt; | status &lt;invoice&gt; draft|sent|paid|void | void &lt;invoice&gt; | rm &lt;invoice&gt; | pdf &lt;invoice&gt; --out FILE | replace-pdf &lt;invoice&gt; [--json]</source>
      <translation>Aufruf: morvane invoice draft|create &lt;Projekt&gt; [--from TAG] [--to TAG] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;Rechnung&gt; | status &lt;Rechnung&gt; draft|sent|paid|void | void &lt;Rechnung&gt; | rm &lt;Rechnung&gt; | pdf &lt;Rechnung&gt; --out DATEI | replace-pdf &lt;Rechnung&gt; [--json]</translation>
    </message>
    <message id="cli.invoice.vat">
      <source>VAT</source>
      <translation>USt.</translation>
    </message>
    <message id="cli.invoice.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>Rechnung %1 ist storniert; ihre Stunden sind wieder nicht abgerechnet.</translation>
    </message>
    <message id="cli.invoice.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message id="cli.log.logged">
      <source>Logged %1 on %2, %3 in all.</source>
      <translation>%1 für %2 erfasst, %3 insgesamt.</translation>
    </message>
    <message id="cli.log.usage">
      <source>Usage: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</source>
      <translation>Aufruf: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</translation>
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
    <message id="cli.price.invalid">
      <source>Not a valid amount, or a required one is missing: %1</source>
      <translation>Kein gültiger Betrag, oder ein nötiger Betrag fehlt: %1</translation>
    </message>
    <message id="cli.price.option.amount">
      <source>A number as you write it (1250, 1.250,50, 12.5); empty clears it.</source>
      <translation>Eine Zahl, wie du sie schreibst (1250, 1.250,50, 12.5); leer löscht sie.</translation>
    </message>
    <message id="cli.price.option.discountAmount">
      <source>The discount is an amount.</source>
      <translation>Der Rabatt ist ein Betrag.</translation>
    </message>
    <message id="cli.price.option.discountPct">
      <source>The discount is a percentage.</source>
      <translation>Der Rabatt ist ein Prozentsatz.</translation>
    </message>
    <message id="cli.price.option.inherit">
      <source>The task bills at its project's price again.</source>
      <translation>Die Aufgabe wird wieder zum Preis ihres Projekts abgerechnet.</translation>
    </message>
    <message id="cli.price.option.model">
      <source>The billing model: hourly, fixed, per_unit or daily.</source>
      <translation>Das Abrechnungsmodell: hourly, fixed, per_unit oder daily.</translation>
    </message>
    <message id="cli.price.option.surchargeLabel">
      <source>Label of the surcharge.</source>
      <translation>Bezeichnung des Zuschlags.</translation>
    </message>
    <message id="cli.price.option.task">
      <source>The task whose own price to show or set, instead of a project's.</source>
      <translation>Die Aufgabe, deren eigener Preis angezeigt oder festgelegt wird, statt eines Projekts.</translation>
    </message>
    <message id="cli.price.option.travel">
      <source>How the project charges its trips: per_km, per_trip or none.</source>
      <translation>Wie das Projekt seine Fahrten berechnet: per_km, per_trip oder none.</translation>
    </message>
    <message id="cli.price.option.travelRate">
      <source>The travel rate per kilometre or per trip; without it, per kilometre bills at your own rate.</source>
      <translation>Der Reisesatz pro Kilometer oder pro Fahrt; ohne ihn gilt pro Kilometer Ihr eigener Satz.</translation>
    </message>
    <message id="cli.price.option.unitLabel">
      <source>Name of the unit of a per-unit price.</source>
      <translation>Name der Einheit eines Preises pro Einheit.</translation>
    </message>
    <message id="cli.price.unchanged">
      <source>Nothing changed.</source>
      <translation>Nichts geändert.</translation>
    </message>
    <message id="cli.price.usage">
      <source>Usage: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</source>
      <translation>Aufruf: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</translation>
    </message>
    <message id="cli.price.worth">
      <source>Tracked %1, worth %2.</source>
      <translation>Erfasst %1, Wert %2.</translation>
    </message>
    <message id="cli.projects.active">
      <source>active</source>
      <translation>aktiv</translation>
    </message>
    <message id="cli.projects.added">
      <source>Added project %1 (%2).</source>
      <translation>Projekt %1 (%2) angelegt.</translation>
    </message>
    <message id="cli.projects.archived">
      <source>archived</source>
      <translation>archiviert</translation>
    </message>
    <message id="cli.projects.archivedIdle">
      <source>Idle projects archived: %1.</source>
      <translation>Ruhende Projekte archiviert: %1.</translation>
    </message>
    <message id="cli.projects.archivedOne">
      <source>Archived %1.</source>
      <translation>%1 archiviert.</translation>
    </message>
    <message id="cli.projects.completed">
      <source>completed</source>
      <translation>abgeschlossen</translation>
    </message>
    <message id="cli.projects.deleted">
      <source>Deleted %1 and its tasks.</source>
      <translation>%1 und seine Aufgaben gelöscht.</translation>
    </message>
    <message id="cli.projects.none">
      <source>No projects yet. Add one with: morvane projects add &lt;name&gt;</source>
      <translation>Noch keine Projekte. Lege eins an mit: morvane projects add &lt;name&gt;</translation>
    </message>
    <message id="cli.projects.option.description">
      <source>A description of the project.</source>
      <translation>Eine Beschreibung des Projekts.</translation>
    </message>
    <message id="cli.projects.option.idle">
      <source>Archive every project of yours without work for this many days.</source>
      <translation>Archiviert alle deine Projekte ohne Arbeit seit so vielen Tagen.</translation>
    </message>
    <message id="cli.projects.option.team">
      <source>The team the new project belongs to.</source>
      <translation>Das Team, zu dem das neue Projekt gehört.</translation>
    </message>
    <message id="cli.projects.renamed">
      <source>Renamed %1 to %2.</source>
      <translation>%1 in %2 umbenannt.</translation>
    </message>
    <message id="cli.projects.taskCount">
      <source>tasks: %1</source>
      <translation>Aufgaben: %1</translation>
    </message>
    <message id="cli.projects.team">
      <source>team %1</source>
      <translation>Team %1</translation>
    </message>
    <message id="cli.projects.usage">
      <source>Usage: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</source>
      <translation>Aufruf: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</translation>
    </message>
    <message id="cli.recap.usage">
      <source>Usage: morvane recap [--lang L] [--yes] [--json]</source>
      <translation>Aufruf: morvane recap [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.ref.ambiguous">
      <source>"%1" matches several: %2. Use the id.</source>
      <translation>"%1" passt auf mehrere: %2. Verwende die ID.</translation>
    </message>
    <message id="cli.ref.noInvitation">
      <source>No invitation to a team matches "%1". See them with: morvane teams invitations</source>
      <translation>Keine Einladung in ein Team passt zu „%1“. Zeige sie an mit: morvane teams invitations</translation>
    </message>
    <message id="cli.ref.noProject">
      <source>No project matches "%1".</source>
      <translation>Kein Projekt passt auf "%1".</translation>
    </message>
    <message id="cli.ref.noTask">
      <source>No task matches "%1".</source>
      <translation>Keine Aufgabe passt auf "%1".</translation>
    </message>
    <message id="cli.ref.noTeam">
      <source>No team matches "%1".</source>
      <translation>Kein Team passt auf "%1".</translation>
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
    <message id="cli.sessions.pending">
      <source>Not mapped to a project: %1 · sessions: %2 · active %3</source>
      <translation>Keinem Projekt zugeordnet: %1 · Sitzungen: %2 · aktiv %3</translation>
    </message>
    <message id="cli.sessions.reimportAll">
      <source>Every session will be logged again by the next scan.</source>
      <translation>Alle Sitzungen werden beim nächsten Durchlauf erneut gebucht.</translation>
    </message>
    <message id="cli.sessions.reimportLogged">
      <source>Session %1 logged again: %2 of %3 work bursts.</source>
      <translation>Sitzung %1 erneut gebucht: %2 von %3 Arbeitsblöcken.</translation>
    </message>
    <message id="cli.sessions.reimportOne">
      <source>Session %1 will be logged again by the next scan.</source>
      <translation>Sitzung %1 wird beim nächsten Durchlauf erneut gebucht.</translation>
    </message>
    <message id="cli.sessions.scanned">
      <source>Sessions seen: %1 · work bursts logged: %2 · time logged: %3 (%4 minutes) · failed: %5</source>
      <translation>Sitzungen gesehen: %1 · Arbeitsblöcke gebucht: %2 · Zeit gebucht: %3 (%4 Minuten) · fehlgeschlagen: %5</translation>
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
      <source>Usage: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</source>
      <translation>Aufruf: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</translation>
    </message>
    <message id="cli.sessions.where">
      <source>Looked for logs changed in the last %1 days in %2.</source>
      <translation>Gesucht wurde nach Logs, die sich in den letzten %1 Tagen geändert haben, in %2.</translation>
    </message>
    <message id="cli.standup.usage">
      <source>Usage: morvane standup [--lang L] [--yes] [--json]</source>
      <translation>Aufruf: morvane standup [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.summary.fixed">
      <source>Written from your figures alone; the model's text was not used (%1).</source>
      <translation>Allein aus deinen Zahlen geschrieben; der Text des Modells wurde nicht verwendet (%1).</translation>
    </message>
    <message id="cli.summary.option.lang">
      <source>Language of the text: en, nl, de, fr, es, it, pt, ja or th; others mean English. Default: the interface language.</source>
      <translation>Sprache des Textes: en, nl, de, fr, es, it, pt, ja oder th; andere bedeuten Englisch. Standard: die Sprache der Oberfläche.</translation>
    </message>
    <message id="cli.tasks.added">
      <source>Added task %1 (%2) to %3.</source>
      <translation>Aufgabe %1 (%2) zu %3 hinzugefügt.</translation>
    </message>
    <message id="cli.tasks.badDue">
      <source>Not a day: %1. Write it as YYYY-MM-DD.</source>
      <translation>Kein Tag: %1. Schreibe ihn als YYYY-MM-DD.</translation>
    </message>
    <message id="cli.tasks.badOrder">
      <source>Unknown filter or sort. Filters: %1. Sorts: %2.</source>
      <translation>Unbekannter Filter oder unbekannte Sortierung. Filter: %1. Sortierungen: %2.</translation>
    </message>
    <message id="cli.tasks.badStatus">
      <source>Unknown status %1. Statuses: %2.</source>
      <translation>Unbekannter Status %1. Status: %2.</translation>
    </message>
    <message id="cli.tasks.deleted">
      <source>Deleted %1.</source>
      <translation>%1 gelöscht.</translation>
    </message>
    <message id="cli.tasks.due">
      <source>due %1</source>
      <translation>fällig %1</translation>
    </message>
    <message id="cli.tasks.high">
      <source>high</source>
      <translation>hoch</translation>
    </message>
    <message id="cli.tasks.low">
      <source>low</source>
      <translation>niedrig</translation>
    </message>
    <message id="cli.tasks.medium">
      <source>medium</source>
      <translation>mittel</translation>
    </message>
    <message id="cli.tasks.moved">
      <source>Moved %1 to %2.</source>
      <translation>%1 nach %2 verschoben.</translation>
    </message>
    <message id="cli.tasks.none">
      <source>  No tasks to show.</source>
      <translation>  Keine Aufgaben anzuzeigen.</translation>
    </message>
    <message id="cli.tasks.option.description">
      <source>The task's description; empty clears it.</source>
      <translation>Die Beschreibung der Aufgabe; leer löscht sie.</translation>
    </message>
    <message id="cli.tasks.option.due">
      <source>The day the task is due (YYYY-MM-DD); empty clears it.</source>
      <translation>Der Tag, an dem die Aufgabe fällig ist (YYYY-MM-DD); leer löscht ihn.</translation>
    </message>
    <message id="cli.tasks.option.filter">
      <source>Which tasks to list: %1.</source>
      <translation>Welche Aufgaben angezeigt werden: %1.</translation>
    </message>
    <message id="cli.tasks.option.sort">
      <source>How to order the list: %1.</source>
      <translation>Wie die Liste sortiert wird: %1.</translation>
    </message>
    <message id="cli.tasks.option.title">
      <source>The task's new title.</source>
      <translation>Der neue Titel der Aufgabe.</translation>
    </message>
    <message id="cli.tasks.running">
      <source>timer running</source>
      <translation>Timer läuft</translation>
    </message>
    <message id="cli.tasks.saved">
      <source>Saved %1.</source>
      <translation>%1 gespeichert.</translation>
    </message>
    <message id="cli.tasks.statusSet">
      <source>%1 is now %2.</source>
      <translation>%1 ist jetzt %2.</translation>
    </message>
    <message id="cli.tasks.usage">
      <source>Usage: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</source>
      <translation>Aufruf: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</translation>
    </message>
    <message id="cli.teams.accepted">
      <source>You are now in team %1, as %2.</source>
      <translation>Du bist jetzt im Team %1, als %2.</translation>
    </message>
    <message id="cli.teams.answerHint">
      <source>Answer with: morvane teams accept &lt;team&gt; or morvane teams decline &lt;team&gt;</source>
      <translation>Antworte mit: morvane teams accept &lt;team&gt; oder morvane teams decline &lt;team&gt;</translation>
    </message>
    <message id="cli.teams.assigned">
      <source>%1 now belongs to team %2.</source>
      <translation>%1 gehört jetzt zum Team %2.</translation>
    </message>
    <message id="cli.teams.created">
      <source>Created team %1 (%2).</source>
      <translation>Team %1 (%2) angelegt.</translation>
    </message>
    <message id="cli.teams.declined">
      <source>You declined the invitation to %1.</source>
      <translation>Du hast die Einladung zu %1 abgelehnt.</translation>
    </message>
    <message id="cli.teams.editor">
      <source>editor</source>
      <translation>Bearbeiter</translation>
    </message>
    <message id="cli.teams.invitation">
      <source>%1 (%2): as %3, from %4</source>
      <translation>%1 (%2): als %3, von %4</translation>
    </message>
    <message id="cli.teams.noInvitations">
      <source>No invitations wait for your answer.</source>
      <translation>Keine Einladungen warten auf deine Antwort.</translation>
    </message>
    <message id="cli.teams.none">
      <source>No teams. Create one with: morvane teams create &lt;name&gt;</source>
      <translation>Keine Teams. Lege eins an mit: morvane teams create &lt;name&gt;</translation>
    </message>
    <message id="cli.teams.option.role">
      <source>The role of the invited member: editor or viewer.</source>
      <translation>Die Rolle des eingeladenen Mitglieds: editor oder viewer.</translation>
    </message>
    <message id="cli.teams.owner">
      <source>owner</source>
      <translation>Inhaber</translation>
    </message>
    <message id="cli.teams.pending">
      <source>invited</source>
      <translation>eingeladen</translation>
    </message>
    <message id="cli.teams.projects">
      <source>Projects: %1</source>
      <translation>Projekte: %1</translation>
    </message>
    <message id="cli.teams.unassigned">
      <source>%1 no longer belongs to a team.</source>
      <translation>%1 gehört keinem Team mehr an.</translation>
    </message>
    <message id="cli.teams.usage">
      <source>Usage: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</source>
      <translation>Aufruf: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</translation>
    </message>
    <message id="cli.teams.viewer">
      <source>viewer</source>
      <translation>Betrachter</translation>
    </message>
    <message id="cli.teams.you">
      <source>you: %1</source>
      <translation>du: %1</translation>
    </message>
    <message id="cli.timer.idle">
      <source>No timer runs.</source>
      <translation>Kein Timer läuft.</translation>
    </message>
    <message id="cli.timer.nothingToResume">
      <source>No task has time yet, so there is none to go on with. Start one with: morvane timer start &lt;task&gt;</source>
      <translation>Noch keine Aufgabe hat erfasste Zeit, also gibt es keine zum Fortsetzen. Starten Sie eine mit: morvane timer start &lt;task&gt;</translation>
    </message>
    <message id="cli.timer.running">
      <source>%1 (%2): %3 running, %4 in all</source>
      <translation>%1 (%2): %3 läuft, %4 insgesamt</translation>
    </message>
    <message id="cli.timer.started">
      <source>Timer started on %1.</source>
      <translation>Timer für %1 gestartet.</translation>
    </message>
    <message id="cli.timer.stopped">
      <source>Stopped %1: %2 logged, %3 in all.</source>
      <translation>%1 gestoppt: %2 erfasst, %3 insgesamt.</translation>
    </message>
    <message id="cli.timer.usage">
      <source>Usage: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</source>
      <translation>Aufruf: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</translation>
    </message>
    <message id="cli.travel.option.mode">
      <source>How you usually travel: car, bike, walk, transit or other.</source>
      <translation>Wie Sie meist reisen: car, bike, walk, transit oder other.</translation>
    </message>
    <message id="cli.travel.option.rate">
      <source>Your rate per kilometre, used where a project names none.</source>
      <translation>Ihr Satz pro Kilometer, für Projekte ohne eigenen Satz.</translation>
    </message>
    <message id="cli.travel.show">
      <source>Rate per kilometre: %1. Usually travel by: %2.</source>
      <translation>Satz pro Kilometer: %1. Reist meist mit: %2.</translation>
    </message>
    <message id="cli.travel.usage">
      <source>Usage: morvane travel show | set [--rate R] [--mode M] [--json]</source>
      <translation>Aufruf: morvane travel show | set [--rate R] [--mode M] [--json]</translation>
    </message>
    <message id="cli.trips.added">
      <source>Added trip %1: %2 km.</source>
      <translation>Fahrt %1 hinzugefügt: %2 km.</translation>
    </message>
    <message id="cli.trips.deleted">
      <source>Deleted trip %1.</source>
      <translation>Fahrt %1 gelöscht.</translation>
    </message>
    <message id="cli.trips.exported">
      <source>Wrote %1 trips to %2.</source>
      <translation>%1 Fahrten nach %2 geschrieben.</translation>
    </message>
    <message id="cli.trips.invoiced">
      <source>invoiced</source>
      <translation>abgerechnet</translation>
    </message>
    <message id="cli.trips.needKm">
      <source>The distance is unknown: the places were not found. Give it with --km.</source>
      <translation>Die Entfernung ist unbekannt: die Orte wurden nicht gefunden. Geben Sie sie mit --km an.</translation>
    </message>
    <message id="cli.trips.noMatch">
      <source>No single trip matches "%1". See them with: morvane trips list</source>
      <translation>Keine einzelne Fahrt passt zu "%1". Anzeigen mit: morvane trips list</translation>
    </message>
    <message id="cli.trips.notCharged">
      <source>not charged</source>
      <translation>nicht berechnet</translation>
    </message>
    <message id="cli.trips.option.date">
      <source>The day of the trip (YYYY-MM-DD).</source>
      <translation>Der Tag der Fahrt (JJJJ-MM-TT).</translation>
    </message>
    <message id="cli.trips.option.from">
      <source>Where the trip started: an address, a place or "lat,lng"; for an export, the first day.</source>
      <translation>Wo die Fahrt begann: eine Adresse, ein Ort oder "lat,lng"; beim Export der erste Tag.</translation>
    </message>
    <message id="cli.trips.option.km">
      <source>The distance in kilometres; without it the road route, else the straight-line estimate.</source>
      <translation>Die Entfernung in Kilometern; ohne sie die Straßenroute, sonst die Luftlinie.</translation>
    </message>
    <message id="cli.trips.option.mode">
      <source>car, bike, walk, transit or other.</source>
      <translation>car, bike, walk, transit oder other.</translation>
    </message>
    <message id="cli.trips.option.notBillable">
      <source>A business trip that is not charged to the client.</source>
      <translation>Eine Geschäftsfahrt, die dem Kunden nicht berechnet wird.</translation>
    </message>
    <message id="cli.trips.option.out">
      <source>The CSV file to write.</source>
      <translation>Die zu schreibende CSV-Datei.</translation>
    </message>
    <message id="cli.trips.option.private">
      <source>A private trip; never charged.</source>
      <translation>Eine private Fahrt; wird nie berechnet.</translation>
    </message>
    <message id="cli.trips.option.project">
      <source>The project the trip served.</source>
      <translation>Das Projekt, dem die Fahrt diente.</translation>
    </message>
    <message id="cli.trips.option.purpose">
      <source>What the trip was for.</source>
      <translation>Wofür die Fahrt war.</translation>
    </message>
    <message id="cli.trips.option.task">
      <source>The task the trip served.</source>
      <translation>Die Aufgabe, der die Fahrt diente.</translation>
    </message>
    <message id="cli.trips.option.to">
      <source>Where the trip ended; for an export, the last day.</source>
      <translation>Wo die Fahrt endete; beim Export der letzte Tag.</translation>
    </message>
    <message id="cli.trips.placeUnknown">
      <source>No place was found for "%1".</source>
      <translation>Kein Ort für "%1" gefunden.</translation>
    </message>
    <message id="cli.trips.private">
      <source>private</source>
      <translation>privat</translation>
    </message>
    <message id="cli.trips.saved">
      <source>Saved trip %1.</source>
      <translation>Fahrt %1 gespeichert.</translation>
    </message>
    <message id="cli.trips.usage">
      <source>Usage: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</source>
      <translation>Aufruf: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</translation>
    </message>
    <message id="client.err.nameMissing">
      <source>A client needs a name.</source>
      <translation>Ein Kunde braucht einen Namen.</translation>
    </message>
    <message id="client.err.notCreated">
      <source>The client was not saved: you may not add clients to that team.</source>
      <translation>Der Kunde wurde nicht gespeichert: Du darfst diesem Team keine Kunden hinzufügen.</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>Deine Kunden konnten nicht geladen werden.</translation>
    </message>
    <message id="client.err.notSaved">
      <source>The client was not changed: you may not edit it, or it no longer exists.</source>
      <translation>Der Kunde wurde nicht geändert: Du darfst ihn nicht bearbeiten, oder es gibt ihn nicht mehr.</translation>
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
    <message id="entry.err.notLogged">
      <source>The time was not logged: you may not log time on this task, or it no longer exists.</source>
      <translation>Die Zeit wurde nicht erfasst: Du darfst für diese Aufgabe keine Zeit erfassen, oder sie existiert nicht mehr.</translation>
    </message>
    <message id="entry.err.notSaved">
      <source>The time entry was not saved: it is not yours or it no longer exists.</source>
      <translation>Der Zeiteintrag wurde nicht gespeichert: Er gehört nicht dir oder existiert nicht mehr.</translation>
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
    <message id="inv.err.allocateNumber">
      <source>Allocate invoice number failed: %1</source>
      <translation>Rechnungsnummer vergeben fehlgeschlagen: %1</translation>
    </message>
    <message id="inv.err.alreadyBilled">
      <source>Some of these hours are already on another invoice. The list was refreshed: check it and try again.</source>
      <translation>Einige dieser Stunden stehen bereits auf einer anderen Rechnung. Die Liste wurde aktualisiert: prüfe sie und versuche es erneut.</translation>
    </message>
    <message id="inv.err.delete">
      <source>Delete invoice failed: %1</source>
      <translation>Rechnung löschen fehlgeschlagen: %1</translation>
    </message>
    <message id="inv.err.loadInvoices">
      <source>Load invoices failed: %1</source>
      <translation>Rechnungen laden fehlgeschlagen: %1</translation>
    </message>
    <message id="inv.err.loadLines">
      <source>Load invoice lines failed: %1</source>
      <translation>Rechnungspositionen laden fehlgeschlagen: %1</translation>
    </message>
    <message id="inv.err.notReady">
      <source>Still reading what was billed before.</source>
      <translation>Es wird noch gelesen, was schon abgerechnet wurde.</translation>
    </message>
    <message id="inv.err.pdfLink">
      <source>The invoice PDF could not be opened: %1</source>
      <translation>Das Rechnungs-PDF konnte nicht geöffnet werden: %1</translation>
    </message>
    <message id="inv.err.pdfReplace">
      <source>The invoice PDF could not be replaced: %1</source>
      <translation>Das Rechnungs-PDF konnte nicht ersetzt werden: %1</translation>
    </message>
    <message id="inv.err.priorBilling">
      <source>Could not read which work was billed before. Billing waits until this works, so no fixed price or extra is billed twice.</source>
      <translation>Es konnte nicht gelesen werden, welche Arbeit schon abgerechnet wurde. Die Abrechnung wartet, bis das gelingt, damit kein Festpreis und kein Zuschlag doppelt berechnet wird.</translation>
    </message>
    <message id="inv.err.saveFailed">
      <source>Save invoice failed: %1</source>
      <translation>Rechnung speichern fehlgeschlagen: %1</translation>
    </message>
    <message id="inv.err.unbilled">
      <source>Could not read which time is still unbilled.</source>
      <translation>Es konnte nicht gelesen werden, welche Zeit noch nicht abgerechnet ist.</translation>
    </message>
    <message id="inv.err.updateStatus">
      <source>Update invoice status failed: %1</source>
      <translation>Rechnungsstatus ändern fehlgeschlagen: %1</translation>
    </message>
    <message id="inv.err.voidFailed">
      <source>Voiding the invoice failed: %1</source>
      <translation>Stornieren der Rechnung fehlgeschlagen: %1</translation>
    </message>
    <message id="inv.err.voidUnavailable">
      <source>Voiding is not available yet because the server has not been updated. Try again later.</source>
      <translation>Stornieren ist noch nicht möglich, weil der Server noch nicht aktualisiert wurde. Versuche es später erneut.</translation>
    </message>
    <message id="inv.extrasBilledBefore">
      <source>extras already billed</source>
      <translation>Zuschläge bereits berechnet</translation>
    </message>
    <message id="inv.followUp">
      <source>FOLLOW-UP</source>
      <translation>FOLGERECHNUNG</translation>
    </message>
    <message id="inv.inProjectPrice">
      <source>included in the project price</source>
      <translation>im Projektpreis enthalten</translation>
    </message>
    <message id="inv.leftOut.many">
      <source>%1 time entries already billed, left out</source>
      <translation>%1 Zeiteinträge bereits abgerechnet, ausgelassen</translation>
    </message>
    <message id="inv.leftOut.one">
      <source>1 time entry already billed, left out</source>
      <translation>1 Zeiteintrag bereits abgerechnet, ausgelassen</translation>
    </message>
    <message id="inv.line.discount">
      <source>Discount</source>
      <translation>Rabatt</translation>
    </message>
    <message id="inv.line.fixedPrice">
      <source>fixed price</source>
      <translation>Festpreis</translation>
    </message>
    <message id="inv.line.materials">
      <source>Materials</source>
      <translation>Material</translation>
    </message>
    <message id="inv.line.minimum">
      <source>Minimum charge</source>
      <translation>Mindestbetrag</translation>
    </message>
    <message id="inv.line.projectPrice">
      <source>Project price</source>
      <translation>Projektpreis</translation>
    </message>
    <message id="inv.line.surcharge">
      <source>Call-out fee</source>
      <translation>Anfahrtspauschale</translation>
    </message>
    <message id="inv.oncePerProject">
      <source>once per project</source>
      <translation>einmal pro Projekt</translation>
    </message>
    <message id="inv.onlyNewTime">
      <source>new time only</source>
      <translation>nur neue Zeit</translation>
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
    <message id="inv.priceBilledBefore">
      <source>fixed price already billed</source>
      <translation>Festpreis bereits berechnet</translation>
    </message>
    <message id="inv.projectExtras">
      <source>Project extras</source>
      <translation>Projektzuschläge</translation>
    </message>
    <message id="inv.rebill">
      <source>Bill again</source>
      <translation>Erneut berechnen</translation>
    </message>
    <message id="inv.rebillHelp">
      <source>This work was billed before. Its fixed or per-unit price, minimum charge, call-out fee, materials and a fixed discount are billed once. Turn this on to bill them again.</source>
      <translation>Diese Arbeit wurde bereits berechnet. Festpreis oder Preis pro Einheit, Mindestbetrag, Anfahrtspauschale, Material und ein fester Rabatt werden nur einmal berechnet. Schalten Sie dies ein, um sie erneut zu berechnen.</translation>
    </message>
    <message id="inv.saved">
      <source>Invoice %1 saved</source>
      <translation>Rechnung %1 gespeichert</translation>
    </message>
    <message id="inv.style.colour.invalid">
      <source>“%1” is no colour: write it as #rgb or #rrggbb, for example #0f766e.</source>
      <translation>„%1“ ist keine Farbe: Schreibe sie als #rgb oder #rrggbb, zum Beispiel #0f766e.</translation>
    </message>
    <message id="inv.style.file.unreadable">
      <source>The file could not be opened.</source>
      <translation>Die Datei konnte nicht geöffnet werden.</translation>
    </message>
    <message id="inv.style.font.invalid">
      <source>A font name holds only letters, digits, blanks and hyphens.</source>
      <translation>Ein Schriftname enthält nur Buchstaben, Ziffern, Leerzeichen und Bindestriche.</translation>
    </message>
    <message id="inv.style.logo.damaged">
      <source>The image could not be read; the file may be damaged.</source>
      <translation>Das Bild konnte nicht gelesen werden; die Datei ist womöglich beschädigt.</translation>
    </message>
    <message id="inv.style.logo.empty">
      <source>The file is empty.</source>
      <translation>Die Datei ist leer.</translation>
    </message>
    <message id="inv.style.logo.kind">
      <source>The logo must be a PNG or JPEG image.</source>
      <translation>Das Logo muss ein PNG- oder JPEG-Bild sein.</translation>
    </message>
    <message id="inv.style.logo.svg">
      <source>SVG logos are not accepted, since a drawing can carry scripts and links. Pick a PNG or JPEG.</source>
      <translation>SVG-Logos werden nicht angenommen, da eine Zeichnung Skripte und Links enthalten kann. Wähle eine PNG- oder JPEG-Datei.</translation>
    </message>
    <message id="inv.style.logo.tooLarge">
      <source>The logo is larger than 1 MB. Pick a smaller PNG or JPEG.</source>
      <translation>Das Logo ist größer als 1 MB. Wähle eine kleinere PNG- oder JPEG-Datei.</translation>
    </message>
    <message id="inv.style.template.empty">
      <source>The template is empty.</source>
      <translation>Die Vorlage ist leer.</translation>
    </message>
    <message id="inv.style.template.noDoctype">
      <source>The template must start with &lt;!doctype html&gt;.</source>
      <translation>Die Vorlage muss mit &lt;!doctype html&gt; beginnen.</translation>
    </message>
    <message id="inv.style.template.noFooter">
      <source>The template has no &lt;footer&gt; element.</source>
      <translation>Die Vorlage hat kein &lt;footer&gt;-Element.</translation>
    </message>
    <message id="inv.style.template.noHeader">
      <source>The template has no &lt;header&gt; element.</source>
      <translation>Die Vorlage hat kein &lt;header&gt;-Element.</translation>
    </message>
    <message id="inv.style.template.notText">
      <source>The template is not a text file in UTF-8.</source>
      <translation>Die Vorlage ist keine Textdatei in UTF-8.</translation>
    </message>
    <message id="inv.style.template.pageSize">
      <source>The template must fix the page at 794 × 1123 px (A4), with both sizes in its style sheet.</source>
      <translation>Die Vorlage muss die Seite auf 794 × 1123 px (A4) festlegen, mit beiden Maßen im Stylesheet.</translation>
    </message>
    <message id="inv.style.template.tooLarge">
      <source>The template is larger than 512 KB.</source>
      <translation>Die Vorlage ist größer als 512 KB.</translation>
    </message>
    <message id="inv.subtotal">
      <source>Subtotal</source>
      <translation>Zwischensumme</translation>
    </message>
    <message id="inv.total">
      <source>Total</source>
      <translation>Gesamt</translation>
    </message>
    <message id="inv.unit.days">
      <source>day</source>
      <translation>Tag</translation>
    </message>
    <message id="inv.unit.hours">
      <source>h</source>
      <translation>Std.</translation>
    </message>
    <message id="inv.unit.units">
      <source>unit</source>
      <translation>Einheit</translation>
    </message>
    <message id="inv.vat.hint">
      <source>Each line uses the VAT rate of its price settings, else the template's rate.</source>
      <translation>Jede Position nutzt den USt.-Satz ihrer Preiseinstellung, sonst den der Vorlage.</translation>
    </message>
    <message id="inv.vat.none">
      <source>No VAT on these lines</source>
      <translation>Keine USt. auf diese Positionen</translation>
    </message>
    <message id="inv.vat.override">
      <source>Set VAT manually</source>
      <translation>USt. manuell festlegen</translation>
    </message>
    <message id="inv.vat.row">
      <source>VAT %1%</source>
      <translation>USt. %1 %</translation>
    </message>
    <message id="inv.vat.rowOver">
      <source>VAT %1% on %2</source>
      <translation>USt. %1 % auf %2</translation>
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
    <message id="inviteRateLimited">
      <source>You have sent many invitations in the last hour. Try again later.</source>
      <translation>Du hast in der letzten Stunde viele Einladungen verschickt. Versuche es später erneut.</translation>
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
    <message id="invoiceErrTripsTaken">
      <source>Some of these trips are already on another invoice. Refresh and try again.</source>
      <translation>Einige dieser Fahrten stehen bereits auf einer anderen Rechnung. Aktualisiere und versuche es erneut.</translation>
    </message>
    <message id="invoiceErrVoidFinal">
      <source>This invoice is void. A void invoice cannot be changed back.</source>
      <translation>Diese Rechnung ist storniert. Eine stornierte Rechnung kann nicht zurückgesetzt werden.</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Erstellt mit Morvane</translation>
    </message>
    <message id="invoicePeriodLast30">
      <source>Last 30 days</source>
      <translation>Letzte 30 Tage</translation>
    </message>
    <message id="invoicePeriodLast7">
      <source>Last 7 days</source>
      <translation>Letzte 7 Tage</translation>
    </message>
    <message id="invoicePeriodLastMonth">
      <source>Last month</source>
      <translation>Letzter Monat</translation>
    </message>
    <message id="invoicePeriodThisMonth">
      <source>This month</source>
      <translation>Dieser Monat</translation>
    </message>
    <message id="invoiceTravelInclude">
      <source>Charge travel</source>
      <translation>Reisekosten berechnen</translation>
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
    <message id="store.style.err.notLoaded">
      <source>Your invoice style could not be loaded.</source>
      <translation>Dein Rechnungsstil konnte nicht geladen werden.</translation>
    </message>
    <message id="store.style.err.notSaved">
      <source>The invoice style was not saved: you may not change this template, or it no longer exists.</source>
      <translation>Der Rechnungsstil wurde nicht gespeichert: Du darfst diese Vorlage nicht ändern, oder sie existiert nicht mehr.</translation>
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
    <message id="task.custom">
      <source>Custom for this task</source>
      <translation>Eigener Preis für diese Aufgabe</translation>
    </message>
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>Die Aufgabe wurde nicht angelegt: Du darfst diesem Projekt keine Aufgaben hinzufügen.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>Die Aufgabe wurde nicht geändert: Du darfst sie nicht bearbeiten, oder sie existiert nicht mehr.</translation>
    </message>
    <message id="task.inheritedFrom">
      <source>Inherited from %1</source>
      <translation>Übernommen von %1</translation>
    </message>
    <message id="task.savePrice">
      <source>Save task price</source>
      <translation>Aufgabenpreis speichern</translation>
    </message>
    <message id="task.useProject">
      <source>Use project price</source>
      <translation>Projektpreis verwenden</translation>
    </message>
    <message id="team.err.invitationNotAnswered">
      <source>The invitation could not be answered. Try again.</source>
      <translation>Die Einladung konnte nicht beantwortet werden. Versuche es erneut.</translation>
    </message>
    <message id="team.err.memberNotChanged">
      <source>The member was not changed: only the team owner can change roles and remove people.</source>
      <translation>Das Mitglied wurde nicht geändert: Nur der Teaminhaber kann Rollen ändern und Personen entfernen.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>Das Team wurde nicht angelegt. Versuche es erneut.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>Deine Teams konnten nicht geladen werden.</translation>
    </message>
    <message id="time.hoursMinutes">
      <source>%1h %2m</source>
      <translation>%1 Std. %2 Min.</translation>
    </message>
    <message id="time.minutes">
      <source>%1m</source>
      <translation>%1 Min.</translation>
    </message>
    <message id="timer.err.notStopped">
      <source>The time could not be logged, so the timer keeps running. Try stopping it again.</source>
      <translation>Die Zeit konnte nicht erfasst werden, daher läuft der Timer weiter. Versuche erneut, ihn zu stoppen.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>Der Timer dieser Aufgabe wurde auf einem anderen Gerät gestartet, daher wurde ihr Status nicht geändert.</translation>
    </message>
    <message id="travelDescribeMany">
      <source>%1 km in %2 trips</source>
      <translation>%1 km in %2 Fahrten</translation>
    </message>
    <message id="travelDescribeOne">
      <source>%1 km in 1 trip</source>
      <translation>%1 km in 1 Fahrt</translation>
    </message>
    <message id="travelKm">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="travelTitle">
      <source>Travel</source>
      <translation>Reisekosten</translation>
    </message>
    <message id="travelTrip">
      <source>trip</source>
      <translation>Fahrt</translation>
    </message>
    <message id="trip.err.notLoaded">
      <source>Your trips could not be loaded. Check your connection and try again.</source>
      <translation>Ihre Fahrten konnten nicht geladen werden. Prüfen Sie Ihre Verbindung und versuchen Sie es erneut.</translation>
    </message>
    <message id="trip.err.notSaved">
      <source>The trip was not saved: it no longer exists or you may not change it.</source>
      <translation>Die Fahrt wurde nicht gespeichert: sie existiert nicht mehr oder Sie dürfen sie nicht ändern.</translation>
    </message>
    <message id="trip.err.settingsNotSaved">
      <source>Your travel settings were not saved.</source>
      <translation>Ihre Reiseeinstellungen wurden nicht gespeichert.</translation>
    </message>
    <message id="tripDeleteConfirm">
      <source>Delete this trip? This cannot be undone.</source>
      <translation>Diese Fahrt löschen? Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message id="tripDistanceByRoad">
      <source>Distance by road, about %1 min. Change it if you went another way.</source>
      <translation>Entfernung über die Straße, etwa %1 Min. Ändern Sie sie, wenn Sie anders gefahren sind.</translation>
    </message>
    <message id="tripDistanceEstimate">
      <source>Kilometres are an estimate from the addresses; change them if needed.</source>
      <translation>Die Kilometer sind aus den Adressen geschätzt; ändern Sie sie bei Bedarf.</translation>
    </message>
    <message id="tripErrNoService">
      <source>No routing or address service is set up.</source>
      <translation>Es ist kein Routen- oder Adressdienst eingerichtet.</translation>
    </message>
    <message id="tripErrNotFound">
      <source>No place or route was found for this.</source>
      <translation>Dafür wurde kein Ort und keine Route gefunden.</translation>
    </message>
    <message id="tripInProgress">
      <source>Trip in progress</source>
      <translation>Fahrt läuft</translation>
    </message>
    <message id="tripSearchFailed">
      <source>Searching did not work. Check your connection and try again.</source>
      <translation>Die Suche hat nicht funktioniert. Prüfen Sie Ihre Verbindung und versuchen Sie es erneut.</translation>
    </message>
    <message id="tripsEmpty">
      <source>No trips yet. Trips your phone records while a timer runs show up here. You can also add a trip by hand.</source>
      <translation>Noch keine Fahrten. Fahrten, die Ihr Telefon bei laufendem Timer aufzeichnet, erscheinen hier. Sie können eine Fahrt auch von Hand hinzufügen.</translation>
    </message>
    <message id="ui.action.floatingTimer">
      <source>Show or hide the floating timer</source>
      <translation>Schwebenden Timer ein- oder ausblenden</translation>
    </message>
    <message id="ui.action.newProject">
      <source>New project</source>
      <translation>Neues Projekt</translation>
    </message>
    <message id="ui.action.newTask">
      <source>New task</source>
      <translation>Neue Aufgabe</translation>
    </message>
    <message id="ui.action.newTeam">
      <source>New team</source>
      <translation>Neues Team</translation>
    </message>
    <message id="ui.action.quickAdd">
      <source>Quick add: a sentence becomes work…</source>
      <translation>Schnell hinzufügen: aus einem Satz wird Arbeit…</translation>
    </message>
    <message id="ui.action.settings">
      <source>Settings</source>
      <translation>Einstellungen</translation>
    </message>
    <message id="ui.action.signOut">
      <source>Sign out</source>
      <translation>Abmelden</translation>
    </message>
    <message id="ui.action.toggleTheme">
      <source>Switch between light and dark</source>
      <translation>Zwischen hell und dunkel wechseln</translation>
    </message>
    <message id="ui.action.toggleTimer">
      <source>Start or stop the timer</source>
      <translation>Timer starten oder stoppen</translation>
    </message>
    <message id="ui.ai.anthropic">
      <source>Anthropic API with your key</source>
      <translation>Anthropic-API mit deinem Schlüssel</translation>
    </message>
    <message id="ui.ai.anthropicHelp">
      <source>Straight to Anthropic with the key you keep in your keyring.</source>
      <translation>Direkt an Anthropic mit dem Schlüssel aus deinem Schlüsselbund.</translation>
    </message>
    <message id="ui.ai.auto">
      <source>Automatic (recommended)</source>
      <translation>Automatisch (empfohlen)</translation>
    </message>
    <message id="ui.ai.autoHelp">
      <source>The Claude CLI first; without it, Morvane AI in the cloud.</source>
      <translation>Zuerst die Claude-CLI, sonst Morvane AI in der Cloud.</translation>
    </message>
    <message id="ui.ai.cli">
      <source>Claude CLI only</source>
      <translation>Nur Claude-CLI</translation>
    </message>
    <message id="ui.ai.cliHelp">
      <source>Everything local through your own Claude subscription. No network.</source>
      <translation>Alles lokal über dein eigenes Claude-Abo. Kein Netzwerk.</translation>
    </message>
    <message id="ui.ai.consentAllow">
      <source>Allowed</source>
      <translation>Erlaubt</translation>
    </message>
    <message id="ui.ai.consentAsk">
      <source>Ask first</source>
      <translation>Vorher fragen</translation>
    </message>
    <message id="ui.ai.consentDeny">
      <source>Never send</source>
      <translation>Nie senden</translation>
    </message>
    <message id="ui.ai.consents">
      <source>Sending text off this computer</source>
      <translation>Text von diesem Computer senden</translation>
    </message>
    <message id="ui.ai.gemini">
      <source>Google Gemini API with your key</source>
      <translation>Google-Gemini-API mit deinem Schlüssel</translation>
    </message>
    <message id="ui.ai.geminiHelp">
      <source>Straight to Google with the key you keep in your keyring.</source>
      <translation>Direkt an Google mit dem Schlüssel aus deinem Schlüsselbund.</translation>
    </message>
    <message id="ui.ai.keyFailed">
      <source>The keyring did not take the change; nothing changed.</source>
      <translation>Der Schlüsselbund hat die Änderung nicht übernommen; nichts wurde geändert.</translation>
    </message>
    <message id="ui.ai.keyInvalid">
      <source>That does not look like an API key: paste the key alone, without spaces.</source>
      <translation>Das sieht nicht nach einem API-Schlüssel aus: Füge nur den Schlüssel ein, ohne Leerzeichen.</translation>
    </message>
    <message id="ui.ai.keyName">
      <source>API key for %1</source>
      <translation>API-Schlüssel für %1</translation>
    </message>
    <message id="ui.ai.keyPaste">
      <source>Paste your API key</source>
      <translation>API-Schlüssel einfügen</translation>
    </message>
    <message id="ui.ai.keyRemove">
      <source>Remove</source>
      <translation>Entfernen</translation>
    </message>
    <message id="ui.ai.keySave">
      <source>Save key</source>
      <translation>Schlüssel speichern</translation>
    </message>
    <message id="ui.ai.keyStored">
      <source>A key is stored; paste another to replace it</source>
      <translation>Ein Schlüssel ist gespeichert; füge einen anderen ein, um ihn zu ersetzen</translation>
    </message>
    <message id="ui.ai.keys">
      <source>Your own API keys (kept in the keyring)</source>
      <translation>Eigene API-Schlüssel (im Schlüsselbund)</translation>
    </message>
    <message id="ui.ai.openai">
      <source>OpenAI API with your key</source>
      <translation>OpenAI-API mit deinem Schlüssel</translation>
    </message>
    <message id="ui.ai.openaiHelp">
      <source>Straight to OpenAI with the key you keep in your keyring.</source>
      <translation>Direkt an OpenAI mit dem Schlüssel aus deinem Schlüsselbund.</translation>
    </message>
    <message id="ui.ai.relay">
      <source>Morvane AI only</source>
      <translation>Nur Morvane AI</translation>
    </message>
    <message id="ui.ai.relayHelp">
      <source>Always through the secured relay of your Morvane server. The CLI is ignored.</source>
      <translation>Immer über die gesicherte Weiterleitung deines Morvane-Servers. Die CLI wird ignoriert.</translation>
    </message>
    <message id="ui.ai.route">
      <source>Where model calls go</source>
      <translation>Wohin Modellanfragen gehen</translation>
    </message>
    <message id="ui.assistant.add">
      <source>Add</source>
      <translation>Hinzufügen</translation>
    </message>
    <message id="ui.assistant.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as the task list shows it.</source>
      <translation>Welche Aufgabe? Keine deiner Aufgaben heißt "%1", oder mehrere. Nenne sie so, wie die Aufgabenliste sie zeigt.</translation>
    </message>
    <message id="ui.assistant.consentNo">
      <source>Don't send</source>
      <translation>Nicht senden</translation>
    </message>
    <message id="ui.assistant.consentOnce">
      <source>Morvane asks once for this route and remembers your answer. You can change it in the settings.</source>
      <translation>Morvane fragt für diesen Weg einmal und merkt sich deine Antwort. Du kannst sie in den Einstellungen ändern.</translation>
    </message>
    <message id="ui.assistant.consentTitle">
      <source>Send your text to %1?</source>
      <translation>Deinen Text an %1 senden?</translation>
    </message>
    <message id="ui.assistant.consentYes">
      <source>Send</source>
      <translation>Senden</translation>
    </message>
    <message id="ui.assistant.empty">
      <source>Type a sentence in your own words: new projects and tasks, time you spent, or start and stop the timer.</source>
      <translation>Schreib einen Satz in deinen eigenen Worten: neue Projekte und Aufgaben, aufgewendete Zeit oder den Timer starten und stoppen.</translation>
    </message>
    <message id="ui.assistant.notUnderstood">
      <source>The sentence could not be read: %1</source>
      <translation>Der Satz konnte nicht gelesen werden: %1</translation>
    </message>
    <message id="ui.assistant.placeholder">
      <source>Say what to add, e.g. “Logo design for Acme, 3 hours yesterday”</source>
      <translation>Sag, was hinzukommt, z. B. „Logo-Entwurf für Acme, gestern 3 Stunden“</translation>
    </message>
    <message id="ui.assistant.reading">
      <source>Reading your sentence…</source>
      <translation>Dein Satz wird gelesen…</translation>
    </message>
    <message id="ui.assistant.title">
      <source>Quick add</source>
      <translation>Schnell hinzufügen</translation>
    </message>
    <message id="ui.assistant.tooLong">
      <source>That is more than a sentence or two. Say what to add in a few lines.</source>
      <translation>Das ist mehr als ein, zwei Sätze. Sag in wenigen Zeilen, was hinzukommen soll.</translation>
    </message>
    <message id="ui.auth.aboutYou">
      <source>A little about you</source>
      <translation>Ein bisschen über dich</translation>
    </message>
    <message id="ui.auth.confirmBody">
      <source>We sent a confirmation link to %1. Open it, then sign in here.</source>
      <translation>Wir haben einen Bestätigungslink an %1 geschickt. Öffne ihn und melde dich dann hier an.</translation>
    </message>
    <message id="ui.auth.confirmResent">
      <source>We sent a new confirmation link to %1.</source>
      <translation>Wir haben einen neuen Bestätigungslink an %1 geschickt.</translation>
    </message>
    <message id="ui.auth.confirmSent">
      <source>We sent a link to %1. Open it to confirm your address, then sign in.</source>
      <translation>Wir haben einen Link an %1 geschickt. Öffne ihn, um deine Adresse zu bestätigen, und melde dich dann an.</translation>
    </message>
    <message id="ui.auth.confirmTitle">
      <source>Confirm your e-mail</source>
      <translation>Bestätige deine E-Mail-Adresse</translation>
    </message>
    <message id="ui.auth.continueAs">
      <source>Continue as %1</source>
      <translation>Weiter als %1</translation>
    </message>
    <message id="ui.auth.continueWith">
      <source>Continue with %1</source>
      <translation>Weiter mit %1</translation>
    </message>
    <message id="ui.auth.createAccount">
      <source>Create your account</source>
      <translation>Erstelle dein Konto</translation>
    </message>
    <message id="ui.auth.email">
      <source>E-mail</source>
      <translation>E-Mail</translation>
    </message>
    <message id="ui.auth.forgot">
      <source>Forgot password?</source>
      <translation>Passwort vergessen?</translation>
    </message>
    <message id="ui.auth.getStarted">
      <source>Get started</source>
      <translation>Los geht’s</translation>
    </message>
    <message id="ui.auth.haveAccount">
      <source>I already have an account</source>
      <translation>Ich habe schon ein Konto</translation>
    </message>
    <message id="ui.auth.password">
      <source>Password</source>
      <translation>Passwort</translation>
    </message>
    <message id="ui.auth.passwordHint">
      <source>At least 8 characters.</source>
      <translation>Mindestens 8 Zeichen.</translation>
    </message>
    <message id="ui.auth.rememberMe">
      <source>Remember me on this computer</source>
      <translation>Auf diesem Computer angemeldet bleiben</translation>
    </message>
    <message id="ui.auth.resend">
      <source>Send the link again</source>
      <translation>Link erneut senden</translation>
    </message>
    <message id="ui.auth.resetSent">
      <source>Check your inbox for the reset link.</source>
      <translation>In deinem Posteingang findest du den Link zum Zurücksetzen.</translation>
    </message>
    <message id="ui.auth.resetTitle">
      <source>Reset your password</source>
      <translation>Passwort zurücksetzen</translation>
    </message>
    <message id="ui.auth.sendReset">
      <source>Send the reset link</source>
      <translation>Link zum Zurücksetzen senden</translation>
    </message>
    <message id="ui.auth.signInTitle">
      <source>Sign in</source>
      <translation>Anmelden</translation>
    </message>
    <message id="ui.auth.toSignIn">
      <source>Back to sign in</source>
      <translation>Zurück zur Anmeldung</translation>
    </message>
    <message id="ui.auth.toSignUp">
      <source>Create an account</source>
      <translation>Konto erstellen</translation>
    </message>
    <message id="ui.auth.welcome">
      <source>Welcome to Morvane</source>
      <translation>Willkommen bei Morvane</translation>
    </message>
    <message id="ui.auth.welcomeBody">
      <source>Track your time on projects and tasks, and turn it into invoices. Your data stays on this computer unless you connect a shared server.</source>
      <translation>Erfasse deine Zeit für Projekte und Aufgaben und mach daraus Rechnungen. Deine Daten bleiben auf diesem Computer, solange du keinen gemeinsamen Server verbindest.</translation>
    </message>
    <message id="ui.calendar.add">
      <source>Add calendar</source>
      <translation>Kalender hinzufügen</translation>
    </message>
    <message id="ui.calendar.addFile">
      <source>Add a calendar file…</source>
      <translation>Kalenderdatei hinzufügen…</translation>
    </message>
    <message id="ui.calendar.added">
      <source>%1 was added.</source>
      <translation>%1 wurde hinzugefügt.</translation>
    </message>
    <message id="ui.calendar.address">
      <source>Subscription or CalDAV address (https:// or webcal://)</source>
      <translation>Abo- oder CalDAV-Adresse (https:// oder webcal://)</translation>
    </message>
    <message id="ui.calendar.badDay">
      <source>Write the day as year-month-day, for example 2026-11-25.</source>
      <translation>Schreibe den Tag als Jahr-Monat-Tag, zum Beispiel 2026-11-25.</translation>
    </message>
    <message id="ui.calendar.caldav">
      <source>CalDAV account</source>
      <translation>CalDAV-Konto</translation>
    </message>
    <message id="ui.calendar.day">
      <source>Day (year-month-day)</source>
      <translation>Tag (Jahr-Monat-Tag)</translation>
    </message>
    <message id="ui.calendar.destination">
      <source>Where it goes</source>
      <translation>Wohin es geht</translation>
    </message>
    <message id="ui.calendar.fileFilter">
      <source>Calendar files (*.ics)</source>
      <translation>Kalenderdateien (*.ics)</translation>
    </message>
    <message id="ui.calendar.fileTitle">
      <source>Add a calendar file</source>
      <translation>Kalenderdatei hinzufügen</translation>
    </message>
    <message id="ui.calendar.import">
      <source>Import as time</source>
      <translation>Als Zeit importieren</translation>
    </message>
    <message id="ui.calendar.imported">
      <source>%1 imported as time.</source>
      <translation>%1 als Zeit importiert.</translation>
    </message>
    <message id="ui.calendar.importedChip">
      <source>Imported</source>
      <translation>Importiert</translation>
    </message>
    <message id="ui.calendar.link">
      <source>Calendar import</source>
      <translation>Kalenderimport</translation>
    </message>
    <message id="ui.calendar.loading">
      <source>Loading calendar…</source>
      <translation>Kalender wird geladen…</translation>
    </message>
    <message id="ui.calendar.newTaskIn">
      <source>New task in %1</source>
      <translation>Neue Aufgabe in %1</translation>
    </message>
    <message id="ui.calendar.next">
      <source>Next day</source>
      <translation>Nächster Tag</translation>
    </message>
    <message id="ui.calendar.noDestination">
      <source>%1 imported. %2 ticked events have no destination yet: choose where each goes.</source>
      <translation>%1 importiert. %2 angehakte Termine haben noch kein Ziel: Wähle für jeden, wohin er geht.</translation>
    </message>
    <message id="ui.calendar.noEventsHint">
      <source>Pick another day, or add the calendar that holds your meetings.</source>
      <translation>Wähle einen anderen Tag oder füge den Kalender mit deinen Terminen hinzu.</translation>
    </message>
    <message id="ui.calendar.noEventsTitle">
      <source>No events on this day</source>
      <translation>Keine Termine an diesem Tag</translation>
    </message>
    <message id="ui.calendar.noSourcesHint">
      <source>Add a calendar file, a subscription address (such as a hosted calendar's secret address) or a CalDAV account on the left. Morvane only reads them.</source>
      <translation>Füge links eine Kalenderdatei, eine Abo-Adresse (etwa die geheime Adresse eines Online-Kalenders) oder ein CalDAV-Konto hinzu. Morvane liest sie nur.</translation>
    </message>
    <message id="ui.calendar.noSourcesTitle">
      <source>No calendars yet</source>
      <translation>Noch keine Kalender</translation>
    </message>
    <message id="ui.calendar.partial">
      <source>%1 imported; then it stopped: %2</source>
      <translation>%1 importiert; dann brach es ab: %2</translation>
    </message>
    <message id="ui.calendar.password">
      <source>Password (kept in your keyring)</source>
      <translation>Passwort (im Schlüsselbund)</translation>
    </message>
    <message id="ui.calendar.previous">
      <source>Previous day</source>
      <translation>Vorheriger Tag</translation>
    </message>
    <message id="ui.calendar.remove">
      <source>Remove</source>
      <translation>Entfernen</translation>
    </message>
    <message id="ui.calendar.sources">
      <source>Your calendars</source>
      <translation>Deine Kalender</translation>
    </message>
    <message id="ui.calendar.timeOn">
      <source>Time on %1 (%2)</source>
      <translation>Zeit auf %1 (%2)</translation>
    </message>
    <message id="ui.calendar.title">
      <source>Import from your calendar</source>
      <translation>Aus deinem Kalender importieren</translation>
    </message>
    <message id="ui.calendar.user">
      <source>User name</source>
      <translation>Benutzername</translation>
    </message>
    <message id="ui.category.admin">
      <source>Admin</source>
      <translation>Verwaltung</translation>
    </message>
    <message id="ui.category.billable">
      <source>Billable</source>
      <translation>Abrechenbar</translation>
    </message>
    <message id="ui.category.internal">
      <source>Internal work</source>
      <translation>Interne Arbeit</translation>
    </message>
    <message id="ui.category.none">
      <source>None</source>
      <translation>Keine</translation>
    </message>
    <message id="ui.clients.address">
      <source>Address</source>
      <translation>Adresse</translation>
    </message>
    <message id="ui.clients.deleteBody">
      <source>It leaves your list of clients. Invoices you already wrote for this client keep it.</source>
      <translation>Der Kunde verschwindet aus deiner Kundenliste. Rechnungen, die du schon für ihn geschrieben hast, behalten ihn.</translation>
    </message>
    <message id="ui.clients.deleteTitle">
      <source>Delete %1?</source>
      <translation>%1 löschen?</translation>
    </message>
    <message id="ui.clients.edit">
      <source>Edit client</source>
      <translation>Kunde bearbeiten</translation>
    </message>
    <message id="ui.clients.email">
      <source>E-mail</source>
      <translation>E-Mail</translation>
    </message>
    <message id="ui.clients.emptyHint">
      <source>Add the people and companies you invoice, then choose them when you write an invoice. Press Ctrl+N or “New client” to add the first.</source>
      <translation>Lege die Personen und Firmen an, denen du Rechnungen stellst, und wähle sie beim Schreiben einer Rechnung. Drücke Strg+N oder „Neuer Kunde“, um den ersten anzulegen.</translation>
    </message>
    <message id="ui.clients.emptyTitle">
      <source>No clients yet</source>
      <translation>Noch keine Kunden</translation>
    </message>
    <message id="ui.clients.kvk">
      <source>Chamber of commerce number</source>
      <translation>Handelsregisternummer</translation>
    </message>
    <message id="ui.clients.name">
      <source>Name</source>
      <translation>Name</translation>
    </message>
    <message id="ui.clients.namePlaceholder">
      <source>Company or person</source>
      <translation>Firma oder Person</translation>
    </message>
    <message id="ui.clients.new">
      <source>New client</source>
      <translation>Neuer Kunde</translation>
    </message>
    <message id="ui.clients.noMatch">
      <source>No client matches “%1”</source>
      <translation>Kein Kunde passt zu „%1“</translation>
    </message>
    <message id="ui.clients.search">
      <source>Search clients</source>
      <translation>Kunden suchen</translation>
    </message>
    <message id="ui.clients.title">
      <source>Clients</source>
      <translation>Kunden</translation>
    </message>
    <message id="ui.clients.vatId">
      <source>VAT number</source>
      <translation>USt-IdNr.</translation>
    </message>
    <message id="ui.common.cancel">
      <source>Cancel</source>
      <translation>Abbrechen</translation>
    </message>
    <message id="ui.common.close">
      <source>Close</source>
      <translation>Schließen</translation>
    </message>
    <message id="ui.common.continue">
      <source>Continue</source>
      <translation>Weiter</translation>
    </message>
    <message id="ui.common.delete">
      <source>Delete</source>
      <translation>Löschen</translation>
    </message>
    <message id="ui.common.dismiss">
      <source>Dismiss</source>
      <translation>Schließen</translation>
    </message>
    <message id="ui.common.edit">
      <source>Edit</source>
      <translation>Bearbeiten</translation>
    </message>
    <message id="ui.common.remove">
      <source>Remove %1</source>
      <translation>%1 entfernen</translation>
    </message>
    <message id="ui.common.retry">
      <source>Try again</source>
      <translation>Erneut versuchen</translation>
    </message>
    <message id="ui.common.save">
      <source>Save</source>
      <translation>Speichern</translation>
    </message>
    <message id="ui.common.saving">
      <source>Saving</source>
      <translation>Wird gespeichert</translation>
    </message>
    <message id="ui.composer.billTo">
      <source>Bill to</source>
      <translation>Rechnung an</translation>
    </message>
    <message id="ui.composer.cancel">
      <source>Cancel</source>
      <translation>Abbrechen</translation>
    </message>
    <message id="ui.composer.clientAddress">
      <source>Client address</source>
      <translation>Anschrift des Kunden</translation>
    </message>
    <message id="ui.composer.clientEmail">
      <source>Client e-mail</source>
      <translation>E-Mail des Kunden</translation>
    </message>
    <message id="ui.composer.clientName">
      <source>Client name</source>
      <translation>Name des Kunden</translation>
    </message>
    <message id="ui.composer.design">
      <source>Design</source>
      <translation>Gestaltung</translation>
    </message>
    <message id="ui.composer.drawing">
      <source>Drawing the invoice</source>
      <translation>Rechnung wird erstellt</translation>
    </message>
    <message id="ui.composer.due">
      <source>Due</source>
      <translation>Fällig am</translation>
    </message>
    <message id="ui.composer.err.day">
      <source>Write days as year-month-day, for example 2026-11-01.</source>
      <translation>Schreibe Tage als Jahr-Monat-Tag, zum Beispiel 2026-11-01.</translation>
    </message>
    <message id="ui.composer.err.due">
      <source>Payment cannot be due before the invoice is issued.</source>
      <translation>Die Zahlung kann nicht vor dem Rechnungsdatum fällig sein.</translation>
    </message>
    <message id="ui.composer.err.empty">
      <source>Choose work with unbilled time first.</source>
      <translation>Wähle zuerst Arbeit mit unberechneter Zeit.</translation>
    </message>
    <message id="ui.composer.err.noNumber">
      <source>The invoice has no number yet. Check the connection and open the composer again.</source>
      <translation>Die Rechnung hat noch keine Nummer. Prüfe die Verbindung und öffne die Rechnungserstellung erneut.</translation>
    </message>
    <message id="ui.composer.err.period">
      <source>The period ends before it starts.</source>
      <translation>Der Zeitraum endet, bevor er beginnt.</translation>
    </message>
    <message id="ui.composer.err.preview">
      <source>The preview could not be drawn: %1</source>
      <translation>Die Vorschau konnte nicht erstellt werden: %1</translation>
    </message>
    <message id="ui.composer.from">
      <source>From (year-month-day)</source>
      <translation>Von (Jahr-Monat-Tag)</translation>
    </message>
    <message id="ui.composer.hours">
      <source>%1 h</source>
      <translation>%1 Std.</translation>
    </message>
    <message id="ui.composer.houseDesign">
      <source>As in the invoice style</source>
      <translation>Wie im Rechnungsstil</translation>
    </message>
    <message id="ui.composer.invoice">
      <source>Invoice</source>
      <translation>Rechnung</translation>
    </message>
    <message id="ui.composer.issued">
      <source>Issued</source>
      <translation>Rechnungsdatum</translation>
    </message>
    <message id="ui.composer.lines">
      <source>Lines</source>
      <translation>Posten</translation>
    </message>
    <message id="ui.composer.noWork">
      <source>No unbilled time in this period. Choose another period or project.</source>
      <translation>Keine unberechnete Zeit in diesem Zeitraum. Wähle einen anderen Zeitraum oder ein anderes Projekt.</translation>
    </message>
    <message id="ui.composer.notes">
      <source>Notes on the invoice</source>
      <translation>Hinweise auf der Rechnung</translation>
    </message>
    <message id="ui.composer.number">
      <source>No. %1</source>
      <translation>Nr. %1</translation>
    </message>
    <message id="ui.composer.numberPending">
      <source>Number follows</source>
      <translation>Nummer folgt</translation>
    </message>
    <message id="ui.composer.period">
      <source>Period</source>
      <translation>Zeitraum</translation>
    </message>
    <message id="ui.composer.previewEmpty">
      <source>The invoice appears here</source>
      <translation>Hier erscheint die Rechnung</translation>
    </message>
    <message id="ui.composer.previewHint">
      <source>Choose a project with unbilled time and a period; the page follows every change.</source>
      <translation>Wähle ein Projekt mit unberechneter Zeit und einen Zeitraum; die Seite folgt jeder Änderung.</translation>
    </message>
    <message id="ui.composer.projects">
      <source>Projects</source>
      <translation>Projekte</translation>
    </message>
    <message id="ui.composer.saveAsClient">
      <source>Save as client</source>
      <translation>Als Kunden speichern</translation>
    </message>
    <message id="ui.composer.saveDraft">
      <source>Save as draft</source>
      <translation>Als Entwurf speichern</translation>
    </message>
    <message id="ui.composer.saveSent">
      <source>Save as sent</source>
      <translation>Als versendet speichern</translation>
    </message>
    <message id="ui.composer.savedClients">
      <source>Saved clients</source>
      <translation>Gespeicherte Kunden</translation>
    </message>
    <message id="ui.composer.title">
      <source>New invoice</source>
      <translation>Neue Rechnung</translation>
    </message>
    <message id="ui.composer.to">
      <source>To (year-month-day)</source>
      <translation>Bis (Jahr-Monat-Tag)</translation>
    </message>
    <message id="ui.composer.vatPercent">
      <source>VAT %</source>
      <translation>USt. %</translation>
    </message>
    <message id="ui.composer.work">
      <source>Work</source>
      <translation>Arbeit</translation>
    </message>
    <message id="ui.earnings.barName">
      <source>%1: earned %2, billed %3, unbilled %4</source>
      <translation>%1: verdient %2, abgerechnet %3, offen %4</translation>
    </message>
    <message id="ui.earnings.billed">
      <source>Billed</source>
      <translation>Abgerechnet</translation>
    </message>
    <message id="ui.earnings.billedChip">
      <source>billed</source>
      <translation>abgerechnet</translation>
    </message>
    <message id="ui.earnings.byMonth">
      <source>Month</source>
      <translation>Monat</translation>
    </message>
    <message id="ui.earnings.byProject">
      <source>Project</source>
      <translation>Projekt</translation>
    </message>
    <message id="ui.earnings.byWeek">
      <source>Week</source>
      <translation>Woche</translation>
    </message>
    <message id="ui.earnings.coverage">
      <source>%1 to %2</source>
      <translation>%1 bis %2</translation>
    </message>
    <message id="ui.earnings.dateFormat">
      <source>d MMM yyyy</source>
      <translation>d. MMM yyyy</translation>
    </message>
    <message id="ui.earnings.dayFormat">
      <source>d MMM</source>
      <translation>d. MMM</translation>
    </message>
    <message id="ui.earnings.earned">
      <source>Earned</source>
      <translation>Verdient</translation>
    </message>
    <message id="ui.earnings.emptyHint">
      <source>Start the timer on a task with Space, or log time in its inspector. What you earn shows up here by week, month and project.</source>
      <translation>Starte den Timer für eine Aufgabe mit der Leertaste oder trage Zeit in ihren Details ein. Was du verdienst, erscheint hier nach Woche, Monat und Projekt.</translation>
    </message>
    <message id="ui.earnings.emptyTitle">
      <source>Nothing tracked in these months</source>
      <translation>In diesen Monaten wurde nichts erfasst</translation>
    </message>
    <message id="ui.earnings.entries">
      <source>Entries</source>
      <translation>Einträge</translation>
    </message>
    <message id="ui.earnings.entriesOf">
      <source>Entries of %1</source>
      <translation>Einträge von %1</translation>
    </message>
    <message id="ui.earnings.hours">
      <source>Hours</source>
      <translation>Stunden</translation>
    </message>
    <message id="ui.earnings.monthFormat">
      <source>MMM yyyy</source>
      <translation>MMM yyyy</translation>
    </message>
    <message id="ui.earnings.noProject">
      <source>No project</source>
      <translation>Kein Projekt</translation>
    </message>
    <message id="ui.earnings.oneOffNote">
      <source>includes %1 charged once</source>
      <translation>inkl. %1 einmalig</translation>
    </message>
    <message id="ui.earnings.pickBar">
      <source>Click a bar to see the entries behind it.</source>
      <translation>Klicke auf einen Balken, um die Einträge dahinter zu sehen.</translation>
    </message>
    <message id="ui.earnings.rate">
      <source>Per hour</source>
      <translation>Pro Stunde</translation>
    </message>
    <message id="ui.earnings.title">
      <source>Earnings</source>
      <translation>Einnahmen</translation>
    </message>
    <message id="ui.earnings.unbilled">
      <source>Unbilled</source>
      <translation>Offen</translation>
    </message>
    <message id="ui.entries.billed">
      <source>Billed</source>
      <translation>Abgerechnet</translation>
    </message>
    <message id="ui.entries.delete">
      <source>Delete this entry</source>
      <translation>Diesen Eintrag löschen</translation>
    </message>
    <message id="ui.entries.deleteBody">
      <source>The task's total goes down by its length.</source>
      <translation>Die Gesamtzeit der Aufgabe verringert sich um seine Dauer.</translation>
    </message>
    <message id="ui.entries.deleteTitle">
      <source>Delete this time entry?</source>
      <translation>Diesen Zeiteintrag löschen?</translation>
    </message>
    <message id="ui.entries.empty">
      <source>No time yet. Press Space to start the timer, or log minutes by hand.</source>
      <translation>Noch keine Zeit erfasst. Drücke die Leertaste, um den Timer zu starten, oder erfasse Minuten von Hand.</translation>
    </message>
    <message id="ui.entries.end">
      <source>End</source>
      <translation>Ende</translation>
    </message>
    <message id="ui.entries.invalid">
      <source>Use the form 2026-03-01 09:30, with the end after the start.</source>
      <translation>Verwende das Format 2026-03-01 09:30; das Ende muss nach dem Beginn liegen.</translation>
    </message>
    <message id="ui.entries.length">
      <source>Minutes</source>
      <translation>Minuten</translation>
    </message>
    <message id="ui.entries.log">
      <source>Log</source>
      <translation>Erfassen</translation>
    </message>
    <message id="ui.entries.minutes">
      <source>Minutes worked</source>
      <translation>Gearbeitete Minuten</translation>
    </message>
    <message id="ui.entries.minutesInvalid">
      <source>Enter the minutes as a number, such as 45 or 90.</source>
      <translation>Gib die Minuten als Zahl ein, etwa 45 oder 90.</translation>
    </message>
    <message id="ui.entries.start">
      <source>Start</source>
      <translation>Beginn</translation>
    </message>
    <message id="ui.entries.title">
      <source>Time entries</source>
      <translation>Zeiteinträge</translation>
    </message>
    <message id="ui.entries.total">
      <source>Total %1</source>
      <translation>Gesamt %1</translation>
    </message>
    <message id="ui.export.action">
      <source>Export for the accountant…</source>
      <translation>Export für die Steuerberatung…</translation>
    </message>
    <message id="ui.export.badPeriod">
      <source>Enter both days as YYYY-MM-DD, the first not after the last.</source>
      <translation>Beide Tage als JJJJ-MM-TT eingeben, den ersten nicht nach dem letzten.</translation>
    </message>
    <message id="ui.export.body">
      <source>A CSV file that spreadsheets and bookkeeping programs read: one row per time entry or invoice of the period.</source>
      <translation>Eine CSV-Datei, die Tabellenkalkulationen und Buchhaltungsprogramme lesen: eine Zeile je Zeiteintrag oder Rechnung des Zeitraums.</translation>
    </message>
    <message id="ui.export.close">
      <source>Close</source>
      <translation>Schließen</translation>
    </message>
    <message id="ui.export.csvFilter">
      <source>CSV files (*.csv)</source>
      <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message id="ui.export.entries">
      <source>Time entries</source>
      <translation>Zeiteinträge</translation>
    </message>
    <message id="ui.export.fileTitle">
      <source>Save the CSV file</source>
      <translation>CSV-Datei speichern</translation>
    </message>
    <message id="ui.export.from">
      <source>From</source>
      <translation>Von</translation>
    </message>
    <message id="ui.export.invoices">
      <source>Invoices</source>
      <translation>Rechnungen</translation>
    </message>
    <message id="ui.export.notReady">
      <source>Choose a period and a file first.</source>
      <translation>Zuerst einen Zeitraum und eine Datei wählen.</translation>
    </message>
    <message id="ui.export.save">
      <source>Save…</source>
      <translation>Speichern…</translation>
    </message>
    <message id="ui.export.saved">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 gespeichert (Zeilen: %2).</translation>
    </message>
    <message id="ui.export.saving">
      <source>Saving…</source>
      <translation>Wird gespeichert…</translation>
    </message>
    <message id="ui.export.title">
      <source>Export for the accountant</source>
      <translation>Export für die Steuerberatung</translation>
    </message>
    <message id="ui.export.to">
      <source>To</source>
      <translation>Bis</translation>
    </message>
    <message id="ui.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message id="ui.floating.hide">
      <source>Hide the floating timer</source>
      <translation>Schwebenden Timer ausblenden</translation>
    </message>
    <message id="ui.floating.title">
      <source>Morvane timer</source>
      <translation>Morvane-Timer</translation>
    </message>
    <message id="ui.idle.body">
      <source>The timer of “%1” kept running while you were away from %2 to %3. What should happen to that time?</source>
      <translation>Der Timer von „%1“ lief weiter, während Sie von %2 bis %3 abwesend waren. Was soll mit dieser Zeit geschehen?</translation>
    </message>
    <message id="ui.idle.discard">
      <source>Discard it and stop the timer</source>
      <translation>Verwerfen und Timer stoppen</translation>
    </message>
    <message id="ui.idle.discardContinue">
      <source>Discard it and go on</source>
      <translation>Verwerfen und weitermachen</translation>
    </message>
    <message id="ui.idle.keep">
      <source>Keep the time</source>
      <translation>Zeit behalten</translation>
    </message>
    <message id="ui.idle.notification">
      <source>The timer of “%1” ran while you were away from %2 to %3.</source>
      <translation>Der Timer von „%1“ lief, während Sie von %2 bis %3 abwesend waren.</translation>
    </message>
    <message id="ui.idle.title">
      <source>You were away</source>
      <translation>Sie waren abwesend</translation>
    </message>
    <message id="ui.inspector.addNote">
      <source>Add a note</source>
      <translation>Notiz hinzufügen</translation>
    </message>
    <message id="ui.inspector.addSubtask">
      <source>Add a subtask</source>
      <translation>Unteraufgabe hinzufügen</translation>
    </message>
    <message id="ui.inspector.assignees">
      <source>Assigned to</source>
      <translation>Zugewiesen an</translation>
    </message>
    <message id="ui.inspector.category">
      <source>Category</source>
      <translation>Kategorie</translation>
    </message>
    <message id="ui.inspector.describe">
      <source>Notes for yourself or the client</source>
      <translation>Notizen für dich oder den Kunden</translation>
    </message>
    <message id="ui.inspector.description">
      <source>Description</source>
      <translation>Beschreibung</translation>
    </message>
    <message id="ui.inspector.due">
      <source>Due</source>
      <translation>Fällig</translation>
    </message>
    <message id="ui.inspector.dueDate">
      <source>Due date</source>
      <translation>Fälligkeitsdatum</translation>
    </message>
    <message id="ui.inspector.none">
      <source>No task selected</source>
      <translation>Keine Aufgabe ausgewählt</translation>
    </message>
    <message id="ui.inspector.noneHint">
      <source>Choose a task to see its details and time entries.</source>
      <translation>Wähle eine Aufgabe, um ihre Details und Zeiteinträge zu sehen.</translation>
    </message>
    <message id="ui.inspector.notes">
      <source>Notes</source>
      <translation>Notizen</translation>
    </message>
    <message id="ui.inspector.ownPrice">
      <source>This task has its own price.</source>
      <translation>Diese Aufgabe hat einen eigenen Preis.</translation>
    </message>
    <message id="ui.inspector.price">
      <source>Price</source>
      <translation>Preis</translation>
    </message>
    <message id="ui.inspector.priority">
      <source>Priority</source>
      <translation>Priorität</translation>
    </message>
    <message id="ui.inspector.status">
      <source>Status</source>
      <translation>Status</translation>
    </message>
    <message id="ui.inspector.subtasks">
      <source>Subtasks</source>
      <translation>Unteraufgaben</translation>
    </message>
    <message id="ui.inspector.title">
      <source>Task title</source>
      <translation>Aufgabentitel</translation>
    </message>
    <message id="ui.invoices.allStatuses">
      <source>Every status</source>
      <translation>Jeder Status</translation>
    </message>
    <message id="ui.invoices.allYears">
      <source>Every year</source>
      <translation>Jedes Jahr</translation>
    </message>
    <message id="ui.invoices.client">
      <source>Client</source>
      <translation>Kunde</translation>
    </message>
    <message id="ui.invoices.deleteBody">
      <source>The invoice and its PDF leave your list for good, and its hours become unbilled again. To keep a record, void it instead.</source>
      <translation>Die Rechnung und ihr PDF verschwinden endgültig aus deiner Liste, und ihre Stunden werden wieder unberechnet. Um sie aufzubewahren, storniere sie stattdessen.</translation>
    </message>
    <message id="ui.invoices.deleteTitle">
      <source>Delete invoice %1?</source>
      <translation>Rechnung %1 löschen?</translation>
    </message>
    <message id="ui.invoices.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Rechnung %1 gelöscht; ihre Stunden sind wieder unberechnet.</translation>
    </message>
    <message id="ui.invoices.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>Das PDF konnte nicht heruntergeladen werden: %1</translation>
    </message>
    <message id="ui.invoices.due">
      <source>Due</source>
      <translation>Fällig</translation>
    </message>
    <message id="ui.invoices.emptyHint">
      <source>Invoices you write from your tracked time appear here, with what is still open and what is overdue.</source>
      <translation>Rechnungen, die du aus deiner erfassten Zeit schreibst, erscheinen hier – mit dem, was noch offen und was überfällig ist.</translation>
    </message>
    <message id="ui.invoices.emptyTitle">
      <source>No invoices yet</source>
      <translation>Noch keine Rechnungen</translation>
    </message>
    <message id="ui.invoices.fileTitle">
      <source>Save the invoice PDF</source>
      <translation>Rechnungs-PDF speichern</translation>
    </message>
    <message id="ui.invoices.foreignLink">
      <source>The link to the PDF does not lead to your server, so it was not opened.</source>
      <translation>Der Link zum PDF führt nicht zu deinem Server und wurde deshalb nicht geöffnet.</translation>
    </message>
    <message id="ui.invoices.issued">
      <source>Issued</source>
      <translation>Ausgestellt</translation>
    </message>
    <message id="ui.invoices.net">
      <source>Net</source>
      <translation>Netto</translation>
    </message>
    <message id="ui.invoices.noMatch">
      <source>No invoice matches these filters</source>
      <translation>Keine Rechnung passt zu diesen Filtern</translation>
    </message>
    <message id="ui.invoices.noMatchHint">
      <source>Choose another status or year.</source>
      <translation>Wähle einen anderen Status oder ein anderes Jahr.</translation>
    </message>
    <message id="ui.invoices.noViewer">
      <source>No program to show PDF files was found. Save the PDF and open it from there.</source>
      <translation>Es wurde kein Programm zum Anzeigen von PDF-Dateien gefunden. Speichere das PDF und öffne es von dort.</translation>
    </message>
    <message id="ui.invoices.number">
      <source>Number</source>
      <translation>Nummer</translation>
    </message>
    <message id="ui.invoices.open">
      <source>Still open</source>
      <translation>Noch offen</translation>
    </message>
    <message id="ui.invoices.openPdf">
      <source>Open PDF</source>
      <translation>PDF öffnen</translation>
    </message>
    <message id="ui.invoices.overdue">
      <source>Overdue</source>
      <translation>Überfällig</translation>
    </message>
    <message id="ui.invoices.pdfFilter">
      <source>PDF files (*.pdf)</source>
      <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message id="ui.invoices.redraw">
      <source>Draw again…</source>
      <translation>Neu erstellen…</translation>
    </message>
    <message id="ui.invoices.redrawBody">
      <source>This replaces the stored PDF of this invoice with a new one, built from the invoice lines and the current details of its template. Continue?</source>
      <translation>Das gespeicherte PDF dieser Rechnung wird durch ein neues ersetzt, erstellt aus den Rechnungsposten und den aktuellen Angaben der Vorlage. Fortfahren?</translation>
    </message>
    <message id="ui.invoices.redrawConfirm">
      <source>Replace PDF</source>
      <translation>PDF ersetzen</translation>
    </message>
    <message id="ui.invoices.redrawFailed">
      <source>The invoice could not be drawn: %1</source>
      <translation>Die Rechnung konnte nicht erstellt werden: %1</translation>
    </message>
    <message id="ui.invoices.redrawTitle">
      <source>Draw invoice %1 again?</source>
      <translation>Rechnung %1 neu erstellen?</translation>
    </message>
    <message id="ui.invoices.redrawn">
      <source>Invoice %1 was drawn again with your current details.</source>
      <translation>Rechnung %1 wurde mit deinen aktuellen Angaben neu erstellt.</translation>
    </message>
    <message id="ui.invoices.savePdf">
      <source>Save PDF…</source>
      <translation>PDF speichern…</translation>
    </message>
    <message id="ui.invoices.saved">
      <source>Saved to %1</source>
      <translation>Gespeichert unter %1</translation>
    </message>
    <message id="ui.invoices.status">
      <source>Status</source>
      <translation>Status</translation>
    </message>
    <message id="ui.invoices.status.draft">
      <source>Draft</source>
      <translation>Entwurf</translation>
    </message>
    <message id="ui.invoices.status.paid">
      <source>Paid</source>
      <translation>Bezahlt</translation>
    </message>
    <message id="ui.invoices.status.sent">
      <source>Sent</source>
      <translation>Versendet</translation>
    </message>
    <message id="ui.invoices.status.void">
      <source>Void</source>
      <translation>Storniert</translation>
    </message>
    <message id="ui.invoices.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>Rechnung %1 ist jetzt %2.</translation>
    </message>
    <message id="ui.invoices.statusFilter">
      <source>Status</source>
      <translation>Status</translation>
    </message>
    <message id="ui.invoices.title">
      <source>Invoices</source>
      <translation>Rechnungen</translation>
    </message>
    <message id="ui.invoices.total">
      <source>Total</source>
      <translation>Gesamt</translation>
    </message>
    <message id="ui.invoices.vat">
      <source>VAT</source>
      <translation>USt.</translation>
    </message>
    <message id="ui.invoices.void">
      <source>Void…</source>
      <translation>Stornieren…</translation>
    </message>
    <message id="ui.invoices.voidBody">
      <source>A void invoice stays void: it can never be sent, paid or changed again. Its hours become unbilled, so you can invoice them anew.</source>
      <translation>Eine stornierte Rechnung bleibt storniert: Sie kann nie wieder versendet, bezahlt oder geändert werden. Ihre Stunden werden wieder unberechnet, sodass du sie neu abrechnen kannst.</translation>
    </message>
    <message id="ui.invoices.voidConfirm">
      <source>Void</source>
      <translation>Stornieren</translation>
    </message>
    <message id="ui.invoices.voidFinal">
      <source>Void — final, it cannot be changed again</source>
      <translation>Storniert — endgültig, nicht mehr änderbar</translation>
    </message>
    <message id="ui.invoices.voidTitle">
      <source>Void invoice %1?</source>
      <translation>Rechnung %1 stornieren?</translation>
    </message>
    <message id="ui.invoices.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>Rechnung %1 ist storniert; ihre Stunden sind wieder unberechnet.</translation>
    </message>
    <message id="ui.invoices.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message id="ui.invoices.yearFilter">
      <source>Year</source>
      <translation>Jahr</translation>
    </message>
    <message id="ui.onboarding.currency">
      <source>Currency</source>
      <translation>Währung</translation>
    </message>
    <message id="ui.onboarding.language">
      <source>Language</source>
      <translation>Sprache</translation>
    </message>
    <message id="ui.onboarding.name">
      <source>Your name</source>
      <translation>Dein Name</translation>
    </message>
    <message id="ui.onboarding.rate">
      <source>Default hourly rate</source>
      <translation>Standard-Stundensatz</translation>
    </message>
    <message id="ui.onboarding.rateInvalid">
      <source>Enter an amount, such as 85 or 72.50.</source>
      <translation>Gib einen Betrag ein, etwa 85 oder 72,50.</translation>
    </message>
    <message id="ui.onboarding.timeZone">
      <source>Time zone</source>
      <translation>Zeitzone</translation>
    </message>
    <message id="ui.palette.action">
      <source>Action</source>
      <translation>Aktion</translation>
    </message>
    <message id="ui.palette.ai">
      <source>AI</source>
      <translation>KI</translation>
    </message>
    <message id="ui.palette.capture">
      <source>Quick add “%1”</source>
      <translation>Schnell hinzufügen „%1“</translation>
    </message>
    <message id="ui.palette.none">
      <source>Nothing matches.</source>
      <translation>Keine Treffer.</translation>
    </message>
    <message id="ui.palette.placeholder">
      <source>Search projects, tasks and actions</source>
      <translation>Projekte, Aufgaben und Aktionen suchen</translation>
    </message>
    <message id="ui.palette.project">
      <source>Project</source>
      <translation>Projekt</translation>
    </message>
    <message id="ui.palette.task">
      <source>Task</source>
      <translation>Aufgabe</translation>
    </message>
    <message id="ui.prices.edit">
      <source>Change the price…</source>
      <translation>Preis ändern…</translation>
    </message>
    <message id="ui.prices.invalid">
      <source>A field in red cannot be read as a number. Correct it to save.</source>
      <translation>Ein rotes Feld lässt sich nicht als Zahl lesen. Korrigiere es, um zu speichern.</translation>
    </message>
    <message id="ui.prices.project">
      <source>Price…</source>
      <translation>Preis…</translation>
    </message>
    <message id="ui.priority.high">
      <source>High</source>
      <translation>Hoch</translation>
    </message>
    <message id="ui.priority.low">
      <source>Low</source>
      <translation>Niedrig</translation>
    </message>
    <message id="ui.priority.medium">
      <source>Medium</source>
      <translation>Mittel</translation>
    </message>
    <message id="ui.projects.actions">
      <source>Project actions</source>
      <translation>Projektaktionen</translation>
    </message>
    <message id="ui.projects.archive">
      <source>Archive</source>
      <translation>Archivieren</translation>
    </message>
    <message id="ui.projects.delete">
      <source>Delete project…</source>
      <translation>Projekt löschen…</translation>
    </message>
    <message id="ui.projects.deleteBody">
      <source>Its tasks and their time entries are deleted too. This cannot be undone.</source>
      <translation>Seine Aufgaben und deren Zeiteinträge werden ebenfalls gelöscht. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message id="ui.projects.deleteTitle">
      <source>Delete %1?</source>
      <translation>%1 löschen?</translation>
    </message>
    <message id="ui.projects.describe">
      <source>Add a description</source>
      <translation>Beschreibung hinzufügen</translation>
    </message>
    <message id="ui.projects.invoice">
      <source>Create invoice…</source>
      <translation>Rechnung erstellen…</translation>
    </message>
    <message id="ui.projects.markActive">
      <source>Mark as active</source>
      <translation>Als aktiv markieren</translation>
    </message>
    <message id="ui.projects.markCompleted">
      <source>Mark as completed</source>
      <translation>Als abgeschlossen markieren</translation>
    </message>
    <message id="ui.projects.name">
      <source>Project name</source>
      <translation>Projektname</translation>
    </message>
    <message id="ui.projects.notShared">
      <source>Not shared</source>
      <translation>Nicht geteilt</translation>
    </message>
    <message id="ui.projects.share">
      <source>Share with a team</source>
      <translation>Mit einem Team teilen</translation>
    </message>
    <message id="ui.projects.status.active">
      <source>Active</source>
      <translation>Aktiv</translation>
    </message>
    <message id="ui.projects.status.archived">
      <source>Archived</source>
      <translation>Archiviert</translation>
    </message>
    <message id="ui.projects.status.completed">
      <source>Completed</source>
      <translation>Abgeschlossen</translation>
    </message>
    <message id="ui.projects.viewOnly">
      <source>View only</source>
      <translation>Nur Ansicht</translation>
    </message>
    <message id="ui.reminder.body">
      <source>Start a timer so that the work you are doing now is counted.</source>
      <translation>Starten Sie einen Timer, damit die Arbeit, die Sie gerade tun, gezählt wird.</translation>
    </message>
    <message id="ui.reminder.title">
      <source>No timer is running</source>
      <translation>Es läuft kein Timer</translation>
    </message>
    <message id="ui.sessions.autoTrack">
      <source>Auto-track Claude sessions</source>
      <translation>Claude-Sitzungen automatisch erfassen</translation>
    </message>
    <message id="ui.sessions.burstLine">
      <source>%1 · %2 prompts</source>
      <translation>%1 · %2 Eingaben</translation>
    </message>
    <message id="ui.sessions.burstLineOne">
      <source>%1 · 1 prompt</source>
      <translation>%1 · 1 Eingabe</translation>
    </message>
    <message id="ui.sessions.commit">
      <source>Log to project</source>
      <translation>Im Projekt erfassen</translation>
    </message>
    <message id="ui.sessions.earlier">
      <source>Earlier</source>
      <translation>Früher</translation>
    </message>
    <message id="ui.sessions.emptyHint">
      <source>Run a claude session in any folder on this computer (Claude Code, the command line, anything that writes to ~/.claude/projects/). Then press Rescan. Sessions from the last 30 days are picked up.</source>
      <translation>Starte eine claude-Sitzung in einem beliebigen Ordner auf diesem Computer (Claude Code, die Befehlszeile, alles, was nach ~/.claude/projects/ schreibt). Tippe dann auf Neu einlesen. Sitzungen der letzten 30 Tage werden übernommen.</translation>
    </message>
    <message id="ui.sessions.emptyTitle">
      <source>No Claude sessions parsed yet</source>
      <translation>Noch keine Claude-Sitzungen gelesen</translation>
    </message>
    <message id="ui.sessions.err.createProject">
      <source>Create project failed: %1</source>
      <translation>Projekt anlegen fehlgeschlagen: %1</translation>
    </message>
    <message id="ui.sessions.explainMapping">
      <source>Sessions are tied to their working directory. You map each working dir to one of your projects once; from then on every new conversation in that repo logs automatically. Idle gaps longer than 5 minutes are excluded so an overnight pause does not bill 8 hours.</source>
      <translation>Sitzungen gehören zu ihrem Arbeitsordner. Du verknüpfst jeden Arbeitsordner einmal mit einem deiner Projekte; danach wird jedes neue Gespräch in diesem Repo automatisch erfasst. Pausen über 5 Minuten zählen nicht, damit eine Nacht nicht 8 Stunden kostet.</translation>
    </message>
    <message id="ui.sessions.explainPrefix">
      <source>Resulting tasks are prefixed [AI] so you can tell a client exactly what part of the work was AI-assisted.</source>
      <translation>Die so entstehenden Aufgaben beginnen mit [AI], damit du Kunden genau sagen kannst, welcher Teil der Arbeit KI-gestützt war.</translation>
    </message>
    <message id="ui.sessions.explainScan">
      <source>Every minute Morvane scans your local Claude Code sessions (~/.claude/projects/) and turns each one into a billable time entry on the matching Morvane project.</source>
      <translation>Jede Minute liest Morvane deine lokalen Claude-Code-Sitzungen (~/.claude/projects/) und macht aus jeder eine abrechenbare Zeitbuchung im passenden Morvane-Projekt.</translation>
    </message>
    <message id="ui.sessions.fewer">
      <source>Show fewer</source>
      <translation>Weniger zeigen</translation>
    </message>
    <message id="ui.sessions.folderProject">
      <source>Auto-created for Claude sessions in %1</source>
      <translation>Automatisch angelegt für Claude-Sitzungen in %1</translation>
    </message>
    <message id="ui.sessions.idleGap">
      <source>Idle gap (minutes)</source>
      <translation>Pausengrenze (Minuten)</translation>
    </message>
    <message id="ui.sessions.idleGapHelp">
      <source>Gaps longer than this between messages are treated as idle and excluded. 15 min covers most typing pauses.</source>
      <translation>Längere Pausen zwischen Nachrichten gelten als Leerlauf und zählen nicht. 15 Min. decken die meisten Tipp-Pausen ab.</translation>
    </message>
    <message id="ui.sessions.ignore">
      <source>Ignore</source>
      <translation>Ignorieren</translation>
    </message>
    <message id="ui.sessions.lastWeek">
      <source>Last week</source>
      <translation>Letzte Woche</translation>
    </message>
    <message id="ui.sessions.link">
      <source>Link to a project…</source>
      <translation>Mit Projekt verknüpfen…</translation>
    </message>
    <message id="ui.sessions.list">
      <source>Sessions</source>
      <translation>Sitzungen</translation>
    </message>
    <message id="ui.sessions.loading">
      <source>Reading your sessions…</source>
      <translation>Deine Sitzungen werden gelesen…</translation>
    </message>
    <message id="ui.sessions.logHelp">
      <source>Log this session to a project, split into %1 tasks by natural breaks</source>
      <translation>Diese Sitzung in einem Projekt erfassen, an natürlichen Pausen in %1 Aufgaben geteilt</translation>
    </message>
    <message id="ui.sessions.logTo">
      <source>Log to…</source>
      <translation>Erfassen in…</translation>
    </message>
    <message id="ui.sessions.logged">
      <source>Logged %1 of %2 work bursts.</source>
      <translation>%1 von %2 Arbeitsabschnitten erfasst.</translation>
    </message>
    <message id="ui.sessions.loggedChip">
      <source>Logged</source>
      <translation>Erfasst</translation>
    </message>
    <message id="ui.sessions.manyTasks">
      <source>%1 tasks</source>
      <translation>%1 Aufgaben</translation>
    </message>
    <message id="ui.sessions.more">
      <source>Show all %1 sessions</source>
      <translation>Alle %1 Sitzungen zeigen</translation>
    </message>
    <message id="ui.sessions.newProject">
      <source>Create new project named "%1"</source>
      <translation>Neues Projekt namens "%1"</translation>
    </message>
    <message id="ui.sessions.noScan">
      <source>No scan yet.</source>
      <translation>Noch kein Scan.</translation>
    </message>
    <message id="ui.sessions.notLinked">
      <source>Not linked yet</source>
      <translation>Noch nicht verknüpft</translation>
    </message>
    <message id="ui.sessions.oneTask">
      <source>1 task</source>
      <translation>1 Aufgabe</translation>
    </message>
    <message id="ui.sessions.pendingIntro">
      <source>These directories have Claude sessions waiting to be logged. Pick a Morvane project (or Ignore) for each.</source>
      <translation>In diesen Ordnern warten Claude-Sitzungen auf die Erfassung. Wähle für jeden ein Morvane-Projekt (oder Ignorieren).</translation>
    </message>
    <message id="ui.sessions.pendingLine">
      <source>%1 · %2 sessions · %3 active</source>
      <translation>%1 · %2 Sitzungen · %3 aktiv</translation>
    </message>
    <message id="ui.sessions.previewTitle">
      <source>Review and log to: %1 (%2)</source>
      <translation>Prüfen und erfassen in: %1 (%2)</translation>
    </message>
    <message id="ui.sessions.reimport">
      <source>Re-import</source>
      <translation>Neu importieren</translation>
    </message>
    <message id="ui.sessions.reimportAll">
      <source>Re-import all sessions</source>
      <translation>Alle Sitzungen neu importieren</translation>
    </message>
    <message id="ui.sessions.reimportAllBody">
      <source>Every session is logged again at the next scan. Tasks made earlier stay; delete them yourself if you do not want them twice.</source>
      <translation>Jede Sitzung wird beim nächsten Scan erneut erfasst. Früher angelegte Aufgaben bleiben; lösche sie selbst, wenn du sie nicht doppelt willst.</translation>
    </message>
    <message id="ui.sessions.reimportAllTitle">
      <source>Re-import all sessions?</source>
      <translation>Alle Sitzungen neu importieren?</translation>
    </message>
    <message id="ui.sessions.reimportHelp">
      <source>Re-import this session (forget previous log)</source>
      <translation>Diese Sitzung neu importieren (frühere Erfassung vergessen)</translation>
    </message>
    <message id="ui.sessions.rescan">
      <source>Rescan</source>
      <translation>Neu einlesen</translation>
    </message>
    <message id="ui.sessions.result">
      <source>Last scan %1: %2 sessions found, %3 work bursts logged (%4), %5 sessions waiting for a project.</source>
      <translation>Letzter Scan %1: %2 Sitzungen gefunden, %3 Arbeitsabschnitte erfasst (%4), %5 Sitzungen warten auf ein Projekt.</translation>
    </message>
    <message id="ui.sessions.scanNow">
      <source>Scan now</source>
      <translation>Jetzt einlesen</translation>
    </message>
    <message id="ui.sessions.sessionLine">
      <source>%1 · %2 active · %3 bursts</source>
      <translation>%1 · %2 aktiv · %3 Abschnitte</translation>
    </message>
    <message id="ui.sessions.sessionLineOne">
      <source>%1 · %2 active</source>
      <translation>%1 · %2 aktiv</translation>
    </message>
    <message id="ui.sessions.sessionProject">
      <source>Auto-created for Claude session %1</source>
      <translation>Automatisch angelegt für Claude-Sitzung %1</translation>
    </message>
    <message id="ui.sessions.thisWeek">
      <source>Earlier this week</source>
      <translation>Früher in dieser Woche</translation>
    </message>
    <message id="ui.sessions.title">
      <source>AI sessions</source>
      <translation>KI-Sitzungen</translation>
    </message>
    <message id="ui.sessions.today">
      <source>Today</source>
      <translation>Heute</translation>
    </message>
    <message id="ui.sessions.tracking">
      <source>Tracking</source>
      <translation>Erfassung</translation>
    </message>
    <message id="ui.sessions.untitled">
      <source>Claude session</source>
      <translation>Claude-Sitzung</translation>
    </message>
    <message id="ui.sessions.yesterday">
      <source>Yesterday</source>
      <translation>Gestern</translation>
    </message>
    <message id="ui.settings.account">
      <source>Account</source>
      <translation>Konto</translation>
    </message>
    <message id="ui.settings.ai">
      <source>AI</source>
      <translation>KI</translation>
    </message>
    <message id="ui.settings.appearance">
      <source>Appearance</source>
      <translation>Darstellung</translation>
    </message>
    <message id="ui.settings.autostart">
      <source>Start Morvane when I log in</source>
      <translation>Morvane beim Anmelden starten</translation>
    </message>
    <message id="ui.settings.backend">
      <source>Backend</source>
      <translation>Backend</translation>
    </message>
    <message id="ui.settings.backend.apply">
      <source>Use this backend</source>
      <translation>Dieses Backend verwenden</translation>
    </message>
    <message id="ui.settings.backend.invalid">
      <source>Enter the server's https address and its public key.</source>
      <translation>Gib die https-Adresse des Servers und seinen öffentlichen Schlüssel ein.</translation>
    </message>
    <message id="ui.settings.backend.local">
      <source>This computer (private, nothing to set up)</source>
      <translation>Dieser Computer (privat, keine Einrichtung nötig)</translation>
    </message>
    <message id="ui.settings.backend.remote">
      <source>A shared server (for teams and several computers)</source>
      <translation>Ein gemeinsamer Server (für Teams und mehrere Computer)</translation>
    </message>
    <message id="ui.settings.deleteAccount">
      <source>Delete my account</source>
      <translation>Mein Konto löschen</translation>
    </message>
    <message id="ui.settings.deleteConfirm">
      <source>Your e-mail address, to confirm</source>
      <translation>Deine E-Mail-Adresse zur Bestätigung</translation>
    </message>
    <message id="ui.settings.deleteHint">
      <source>Deleting your account removes your projects, tasks, time and invoices from the server for good. Type your e-mail address to confirm.</source>
      <translation>Wenn du dein Konto löschst, werden deine Projekte, Aufgaben, Zeiten und Rechnungen endgültig vom Server entfernt. Gib zur Bestätigung deine E-Mail-Adresse ein.</translation>
    </message>
    <message id="ui.settings.endOfDay">
      <source>Stop the timer at the end of the day</source>
      <translation>Timer am Ende des Arbeitstags anhalten</translation>
    </message>
    <message id="ui.settings.every">
      <source>every (minutes)</source>
      <translation>alle (Minuten)</translation>
    </message>
    <message id="ui.settings.from">
      <source>From</source>
      <translation>Von</translation>
    </message>
    <message id="ui.settings.idleAfter">
      <source>Ask about idle time after (minutes)</source>
      <translation>Nach Leerlaufzeit fragen nach (Minuten)</translation>
    </message>
    <message id="ui.settings.local.folder">
      <source>Data folder</source>
      <translation>Datenordner</translation>
    </message>
    <message id="ui.settings.local.running">
      <source>Running</source>
      <translation>Läuft</translation>
    </message>
    <message id="ui.settings.local.size">
      <source>Size</source>
      <translation>Größe</translation>
    </message>
    <message id="ui.settings.local.start">
      <source>Start</source>
      <translation>Starten</translation>
    </message>
    <message id="ui.settings.local.starting">
      <source>Starting</source>
      <translation>Startet</translation>
    </message>
    <message id="ui.settings.local.state">
      <source>State</source>
      <translation>Status</translation>
    </message>
    <message id="ui.settings.local.stop">
      <source>Stop</source>
      <translation>Beenden</translation>
    </message>
    <message id="ui.settings.local.stopped">
      <source>Stopped</source>
      <translation>Beendet</translation>
    </message>
    <message id="ui.settings.longestRun">
      <source>Longest run (minutes, 0 for none)</source>
      <translation>Längste Laufzeit (Minuten, 0 für keine)</translation>
    </message>
    <message id="ui.settings.looks">
      <source>Language and appearance</source>
      <translation>Sprache und Darstellung</translation>
    </message>
    <message id="ui.settings.profile">
      <source>Profile</source>
      <translation>Profil</translation>
    </message>
    <message id="ui.settings.reminders">
      <source>Remind me when no timer runs during working hours</source>
      <translation>Erinnere mich, wenn während der Arbeitszeit kein Timer läuft</translation>
    </message>
    <message id="ui.settings.remote.key">
      <source>Public key</source>
      <translation>Öffentlicher Schlüssel</translation>
    </message>
    <message id="ui.settings.remote.url">
      <source>Address</source>
      <translation>Adresse</translation>
    </message>
    <message id="ui.settings.saved">
      <source>Saved.</source>
      <translation>Gespeichert.</translation>
    </message>
    <message id="ui.settings.scheme.dark">
      <source>Dark</source>
      <translation>Dunkel</translation>
    </message>
    <message id="ui.settings.scheme.light">
      <source>Light</source>
      <translation>Hell</translation>
    </message>
    <message id="ui.settings.scheme.system">
      <source>As the desktop</source>
      <translation>Wie der Desktop</translation>
    </message>
    <message id="ui.settings.signedInAs">
      <source>Signed in as %1</source>
      <translation>Angemeldet als %1</translation>
    </message>
    <message id="ui.settings.switchTo">
      <source>Switch to %1</source>
      <translation>Zu %1 wechseln</translation>
    </message>
    <message id="ui.settings.timer">
      <source>Timer</source>
      <translation>Timer</translation>
    </message>
    <message id="ui.settings.to">
      <source>to</source>
      <translation>bis</translation>
    </message>
    <message id="ui.sidebar.newProjectName">
      <source>New project name</source>
      <translation>Name des neuen Projekts</translation>
    </message>
    <message id="ui.sidebar.newTeamName">
      <source>New team name</source>
      <translation>Name des neuen Teams</translation>
    </message>
    <message id="ui.sidebar.overview">
      <source>All projects</source>
      <translation>Alle Projekte</translation>
    </message>
    <message id="ui.sidebar.projects">
      <source>Projects</source>
      <translation>Projekte</translation>
    </message>
    <message id="ui.sidebar.running">
      <source>Timer running</source>
      <translation>Timer läuft</translation>
    </message>
    <message id="ui.sidebar.shared">
      <source>Shared with a team</source>
      <translation>Mit einem Team geteilt</translation>
    </message>
    <message id="ui.sidebar.teams">
      <source>Teams</source>
      <translation>Teams</translation>
    </message>
    <message id="ui.startup.backend">
      <source>Starting your local backend…</source>
      <translation>Dein lokales Backend wird gestartet…</translation>
    </message>
    <message id="ui.startup.failed">
      <source>Your local backend could not start.</source>
      <translation>Dein lokales Backend konnte nicht gestartet werden.</translation>
    </message>
    <message id="ui.startup.loading">
      <source>Loading your projects…</source>
      <translation>Deine Projekte werden geladen…</translation>
    </message>
    <message id="ui.status.completed">
      <source>Completed</source>
      <translation>Erledigt</translation>
    </message>
    <message id="ui.status.in_progress">
      <source>In progress</source>
      <translation>In Arbeit</translation>
    </message>
    <message id="ui.status.not_started">
      <source>Not started</source>
      <translation>Nicht begonnen</translation>
    </message>
    <message id="ui.style.accent">
      <source>Accent</source>
      <translation>Akzent</translation>
    </message>
    <message id="ui.style.address">
      <source>Address</source>
      <translation>Adresse</translation>
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
      <translation>Rahmen</translation>
    </message>
    <message id="ui.style.btw">
      <source>VAT number</source>
      <translation>USt-IdNr.</translation>
    </message>
    <message id="ui.style.chooseLogo">
      <source>Choose logo…</source>
      <translation>Logo auswählen…</translation>
    </message>
    <message id="ui.style.colourAuto">
      <source>auto</source>
      <translation>auto</translation>
    </message>
    <message id="ui.style.company">
      <source>Company</source>
      <translation>Firma</translation>
    </message>
    <message id="ui.style.customHint">
      <source>An HTML page with {{placeholders}}, a &lt;header&gt; and a &lt;footer&gt;, fixed at 794 × 1123 px. When it cannot be used, invoices are drawn in “Light minimal”.</source>
      <translation>Eine HTML-Seite mit {{Platzhaltern}}, einem &lt;header&gt; und einem &lt;footer&gt;, fest auf 794 × 1123 px. Ist sie nicht verwendbar, erhalten Rechnungen das Design „Hell minimal“.</translation>
    </message>
    <message id="ui.style.customTitle">
      <source>Your own template</source>
      <translation>Deine eigene Vorlage</translation>
    </message>
    <message id="ui.style.days">
      <source>Payment terms in days</source>
      <translation>Zahlungsziel in Tagen</translation>
    </message>
    <message id="ui.style.design.aiCustom">
      <source>Your template</source>
      <translation>Deine Vorlage</translation>
    </message>
    <message id="ui.style.design.boldDark">
      <source>Bold dark</source>
      <translation>Kräftig dunkel</translation>
    </message>
    <message id="ui.style.design.editorial">
      <source>Editorial</source>
      <translation>Editorial</translation>
    </message>
    <message id="ui.style.design.editorialMono">
      <source>Editorial mono</source>
      <translation>Editorial mono</translation>
    </message>
    <message id="ui.style.design.lightMinimalAccent">
      <source>Light minimal</source>
      <translation>Hell minimal</translation>
    </message>
    <message id="ui.style.design.minimalistMono">
      <source>Minimalist mono</source>
      <translation>Minimalistisch mono</translation>
    </message>
    <message id="ui.style.design.modernRibbon">
      <source>Modern ribbon</source>
      <translation>Modernes Band</translation>
    </message>
    <message id="ui.style.design.pastelModern">
      <source>Pastel modern</source>
      <translation>Pastell modern</translation>
    </message>
    <message id="ui.style.design.signatureEditorial">
      <source>Signature</source>
      <translation>Signatur</translation>
    </message>
    <message id="ui.style.designs">
      <source>Design</source>
      <translation>Design</translation>
    </message>
    <message id="ui.style.designsHint">
      <source>Every new invoice is drawn in the chosen design. The pictures show a sample invoice in your style.</source>
      <translation>Jede neue Rechnung erhält das gewählte Design. Die Bilder zeigen eine Beispielrechnung in deinem Stil.</translation>
    </message>
    <message id="ui.style.drawing">
      <source>Drawing the designs</source>
      <translation>Designs werden gezeichnet</translation>
    </message>
    <message id="ui.style.email">
      <source>E-mail</source>
      <translation>E-Mail</translation>
    </message>
    <message id="ui.style.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>Das Zahlungsziel ist eine ganze Zahl von Tagen zwischen 0 und 365.</translation>
    </message>
    <message id="ui.style.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>Der USt-Satz ist ein Prozentsatz zwischen 0 und 100.</translation>
    </message>
    <message id="ui.style.fallsBack">
      <source>%1 Invoices fall back to “Light minimal” until it is fixed.</source>
      <translation>%1 Bis das behoben ist, erhalten Rechnungen das Design „Hell minimal“.</translation>
    </message>
    <message id="ui.style.fontAuto">
      <source>The design’s own</source>
      <translation>Die des Designs</translation>
    </message>
    <message id="ui.style.fontBody">
      <source>Text font</source>
      <translation>Schrift für Text</translation>
    </message>
    <message id="ui.style.fontDisplay">
      <source>Headings font</source>
      <translation>Schrift für Überschriften</translation>
    </message>
    <message id="ui.style.footer">
      <source>Footer</source>
      <translation>Fußzeile</translation>
    </message>
    <message id="ui.style.footerPlaceholder">
      <source>Thank you for your business.</source>
      <translation>Vielen Dank für den Auftrag.</translation>
    </message>
    <message id="ui.style.htmlFilter">
      <source>HTML files (*.html *.htm)</source>
      <translation>HTML-Dateien (*.html *.htm)</translation>
    </message>
    <message id="ui.style.iban">
      <source>Bank account (IBAN)</source>
      <translation>Bankkonto (IBAN)</translation>
    </message>
    <message id="ui.style.imageFilter">
      <source>Images (*.png *.jpg *.jpeg)</source>
      <translation>Bilder (*.png *.jpg *.jpeg)</translation>
    </message>
    <message id="ui.style.ink">
      <source>Ink</source>
      <translation>Schrift</translation>
    </message>
    <message id="ui.style.kvk">
      <source>Chamber of commerce number</source>
      <translation>Handelsregisternummer</translation>
    </message>
    <message id="ui.style.logo">
      <source>Logo</source>
      <translation>Logo</translation>
    </message>
    <message id="ui.style.logoDialog">
      <source>Choose a logo</source>
      <translation>Logo auswählen</translation>
    </message>
    <message id="ui.style.logoHint">
      <source>PNG or JPEG, at most 1 MB; wider than 600 px is scaled down.</source>
      <translation>PNG oder JPEG, höchstens 1 MB; breiter als 600 px wird verkleinert.</translation>
    </message>
    <message id="ui.style.look">
      <source>Look</source>
      <translation>Aussehen</translation>
    </message>
    <message id="ui.style.madeWith">
      <source>Show “Made with Morvane” in the footer</source>
      <translation>„Erstellt mit Morvane“ in der Fußzeile zeigen</translation>
    </message>
    <message id="ui.style.muted">
      <source>Muted</source>
      <translation>Gedämpft</translation>
    </message>
    <message id="ui.style.noLogo">
      <source>No logo</source>
      <translation>Kein Logo</translation>
    </message>
    <message id="ui.style.noTemplate">
      <source>No template uploaded: invoices use the design chosen above.</source>
      <translation>Keine Vorlage hochgeladen: Rechnungen nutzen das oben gewählte Design.</translation>
    </message>
    <message id="ui.style.palette">
      <source>Palette</source>
      <translation>Palette</translation>
    </message>
    <message id="ui.style.paper">
      <source>Paper</source>
      <translation>Papier</translation>
    </message>
    <message id="ui.style.phone">
      <source>Phone</source>
      <translation>Telefon</translation>
    </message>
    <message id="ui.style.removeLogo">
      <source>Remove logo</source>
      <translation>Logo entfernen</translation>
    </message>
    <message id="ui.style.removeTemplate">
      <source>Remove template</source>
      <translation>Vorlage entfernen</translation>
    </message>
    <message id="ui.style.revert">
      <source>Undo changes</source>
      <translation>Änderungen verwerfen</translation>
    </message>
    <message id="ui.style.saving">
      <source>Saving…</source>
      <translation>Speichern…</translation>
    </message>
    <message id="ui.style.sender">
      <source>Sender</source>
      <translation>Absender</translation>
    </message>
    <message id="ui.style.templateDialog">
      <source>Choose an HTML template</source>
      <translation>HTML-Vorlage auswählen</translation>
    </message>
    <message id="ui.style.templateNotUsed">
      <source>Not used</source>
      <translation>Nicht verwendet</translation>
    </message>
    <message id="ui.style.templateUsed">
      <source>Used</source>
      <translation>Verwendet</translation>
    </message>
    <message id="ui.style.title">
      <source>Invoice style</source>
      <translation>Rechnungsstil</translation>
    </message>
    <message id="ui.style.unsaved">
      <source>Unsaved changes</source>
      <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message id="ui.style.upload">
      <source>Upload template…</source>
      <translation>Vorlage hochladen…</translation>
    </message>
    <message id="ui.style.vatRate">
      <source>Default VAT rate in %</source>
      <translation>Standard-USt-Satz in %</translation>
    </message>
    <message id="ui.style.website">
      <source>Website</source>
      <translation>Website</translation>
    </message>
    <message id="ui.summary.callFailed">
      <source>The model could not be asked (%1). This text is written from your figures alone.</source>
      <translation>Das Modell konnte nicht gefragt werden (%1). Dieser Text ist nur aus deinen Zahlen geschrieben.</translation>
    </message>
    <message id="ui.summary.copy">
      <source>Copy</source>
      <translation>Kopieren</translation>
    </message>
    <message id="ui.summary.draftingStandup">
      <source>Drafting your stand-up…</source>
      <translation>Dein Stand-up wird entworfen…</translation>
    </message>
    <message id="ui.summary.fixed">
      <source>Written from your figures</source>
      <translation>Aus deinen Zahlen geschrieben</translation>
    </message>
    <message id="ui.summary.generate">
      <source>Generate</source>
      <translation>Erstellen</translation>
    </message>
    <message id="ui.summary.language">
      <source>Language of the text</source>
      <translation>Sprache des Textes</translation>
    </message>
    <message id="ui.summary.model">
      <source>Written by the model, checked against your figures</source>
      <translation>Vom Modell geschrieben, mit deinen Zahlen geprüft</translation>
    </message>
    <message id="ui.summary.nothing">
      <source>Nothing was tracked in this period, so there was nothing to put in words.</source>
      <translation>In diesem Zeitraum wurde nichts erfasst, also gab es nichts in Worte zu fassen.</translation>
    </message>
    <message id="ui.summary.readFailed">
      <source>Your time could not be read: %1</source>
      <translation>Deine Zeit konnte nicht gelesen werden: %1</translation>
    </message>
    <message id="ui.summary.recap">
      <source>Weekly recap</source>
      <translation>Wochenrückblick</translation>
    </message>
    <message id="ui.summary.recapHint">
      <source>Press Generate for a short recap of the time you tracked this week.</source>
      <translation>Tippe auf Erstellen für einen kurzen Rückblick auf die Zeit, die du diese Woche erfasst hast.</translation>
    </message>
    <message id="ui.summary.rejected">
      <source>The model's words did not hold up against your figures (%1). This text is written from your figures alone.</source>
      <translation>Die Worte des Modells hielten deinen Zahlen nicht stand (%1). Dieser Text ist nur aus deinen Zahlen geschrieben.</translation>
    </message>
    <message id="ui.summary.standup">
      <source>Daily stand-up</source>
      <translation>Tägliches Stand-up</translation>
    </message>
    <message id="ui.summary.standupHint">
      <source>Press Generate to draft your stand-up.</source>
      <translation>Tippe auf Erstellen, um dein Stand-up zu entwerfen.</translation>
    </message>
    <message id="ui.summary.textName">
      <source>Recap or stand-up text</source>
      <translation>Text von Rückblick oder Stand-up</translation>
    </message>
    <message id="ui.summary.title">
      <source>Recap and stand-up</source>
      <translation>Rückblick und Stand-up</translation>
    </message>
    <message id="ui.summary.uiLanguage">
      <source>Interface language</source>
      <translation>Sprache der App</translation>
    </message>
    <message id="ui.summary.writingRecap">
      <source>Writing your recap…</source>
      <translation>Dein Rückblick wird geschrieben…</translation>
    </message>
    <message id="ui.tasks.add">
      <source>Add a task and press Enter</source>
      <translation>Aufgabe eingeben und Enter drücken</translation>
    </message>
    <message id="ui.tasks.bulkDeleteTitle">
      <source>Delete the selected tasks (%1)?</source>
      <translation>Ausgewählte Aufgaben (%1) löschen?</translation>
    </message>
    <message id="ui.tasks.check">
      <source>Select %1</source>
      <translation>%1 auswählen</translation>
    </message>
    <message id="ui.tasks.clearSelection">
      <source>Clear</source>
      <translation>Auswahl aufheben</translation>
    </message>
    <message id="ui.tasks.deleteBody">
      <source>Its time entries are deleted too.</source>
      <translation>Ihre Zeiteinträge werden ebenfalls gelöscht.</translation>
    </message>
    <message id="ui.tasks.deleteTitle">
      <source>Delete this task?</source>
      <translation>Diese Aufgabe löschen?</translation>
    </message>
    <message id="ui.tasks.dragHandle">
      <source>Drag to reorder</source>
      <translation>Zum Umsortieren ziehen</translation>
    </message>
    <message id="ui.tasks.empty">
      <source>No tasks yet.</source>
      <translation>Noch keine Aufgaben.</translation>
    </message>
    <message id="ui.tasks.emptyHint">
      <source>Press Ctrl+N to add one.</source>
      <translation>Drücke Ctrl+N, um eine anzulegen.</translation>
    </message>
    <message id="ui.tasks.filter">
      <source>Filter</source>
      <translation>Filter</translation>
    </message>
    <message id="ui.tasks.filter.active">
      <source>Open</source>
      <translation>Offen</translation>
    </message>
    <message id="ui.tasks.filter.all">
      <source>All</source>
      <translation>Alle</translation>
    </message>
    <message id="ui.tasks.filter.archived">
      <source>Archived</source>
      <translation>Archiviert</translation>
    </message>
    <message id="ui.tasks.filter.done">
      <source>Done</source>
      <translation>Erledigt</translation>
    </message>
    <message id="ui.tasks.list">
      <source>Tasks</source>
      <translation>Aufgaben</translation>
    </message>
    <message id="ui.tasks.markDone">
      <source>Mark done</source>
      <translation>Als erledigt markieren</translation>
    </message>
    <message id="ui.tasks.moveTo">
      <source>Move to…</source>
      <translation>Verschieben nach…</translation>
    </message>
    <message id="ui.tasks.needsProject">
      <source>Create a project first: tasks belong to a project.</source>
      <translation>Lege zuerst ein Projekt an: Aufgaben gehören immer zu einem Projekt.</translation>
    </message>
    <message id="ui.tasks.noMatch">
      <source>No task matches “%1”.</source>
      <translation>Keine Aufgabe passt zu „%1“.</translation>
    </message>
    <message id="ui.tasks.noMatchHint">
      <source>Try fewer letters, or press Esc to clear the search.</source>
      <translation>Versuche es mit weniger Buchstaben oder drücke Esc, um die Suche zu leeren.</translation>
    </message>
    <message id="ui.tasks.noProjects">
      <source>No projects yet.</source>
      <translation>Noch keine Projekte.</translation>
    </message>
    <message id="ui.tasks.noProjectsHint">
      <source>Press Ctrl+Shift+N to create your first project.</source>
      <translation>Drücke Ctrl+Shift+N, um dein erstes Projekt anzulegen.</translation>
    </message>
    <message id="ui.tasks.reopen">
      <source>Reopen</source>
      <translation>Wieder öffnen</translation>
    </message>
    <message id="ui.tasks.search">
      <source>Search</source>
      <translation>Suchen</translation>
    </message>
    <message id="ui.tasks.selected">
      <source>%1 selected</source>
      <translation>%1 ausgewählt</translation>
    </message>
    <message id="ui.tasks.sort">
      <source>Sort</source>
      <translation>Sortieren</translation>
    </message>
    <message id="ui.tasks.sort.alpha">
      <source>Name</source>
      <translation>Name</translation>
    </message>
    <message id="ui.tasks.sort.createdDesc">
      <source>Newest first</source>
      <translation>Neueste zuerst</translation>
    </message>
    <message id="ui.tasks.sort.dueAsc">
      <source>Due date</source>
      <translation>Fälligkeit</translation>
    </message>
    <message id="ui.tasks.sort.manual">
      <source>Manual order</source>
      <translation>Eigene Reihenfolge</translation>
    </message>
    <message id="ui.tasks.sort.priorityDesc">
      <source>Priority</source>
      <translation>Priorität</translation>
    </message>
    <message id="ui.tasks.sort.trackedDesc">
      <source>Most tracked</source>
      <translation>Meiste erfasste Zeit</translation>
    </message>
    <message id="ui.teams.accept">
      <source>Accept</source>
      <translation>Annehmen</translation>
    </message>
    <message id="ui.teams.decline">
      <source>Decline</source>
      <translation>Ablehnen</translation>
    </message>
    <message id="ui.teams.invitations">
      <source>Invitations for you</source>
      <translation>Einladungen für dich</translation>
    </message>
    <message id="ui.teams.invite">
      <source>Invite by e-mail</source>
      <translation>Per E-Mail einladen</translation>
    </message>
    <message id="ui.teams.inviteButton">
      <source>Invite</source>
      <translation>Einladen</translation>
    </message>
    <message id="ui.teams.leave">
      <source>Leave the team</source>
      <translation>Team verlassen</translation>
    </message>
    <message id="ui.teams.leaveTitle">
      <source>Leave %1?</source>
      <translation>%1 verlassen?</translation>
    </message>
    <message id="ui.teams.members">
      <source>Members</source>
      <translation>Mitglieder</translation>
    </message>
    <message id="ui.teams.remove">
      <source>Remove</source>
      <translation>Entfernen</translation>
    </message>
    <message id="ui.teams.removeBody">
      <source>The team's projects are no longer shared with them. Their own time stays theirs.</source>
      <translation>Die Projekte des Teams werden nicht mehr mit dieser Person geteilt. Eigene Zeiten bleiben ihre.</translation>
    </message>
    <message id="ui.teams.removeTitle">
      <source>Remove this member?</source>
      <translation>Dieses Mitglied entfernen?</translation>
    </message>
    <message id="ui.teams.role">
      <source>Role</source>
      <translation>Rolle</translation>
    </message>
    <message id="ui.teams.role.editor">
      <source>Editor</source>
      <translation>Bearbeiter</translation>
    </message>
    <message id="ui.teams.role.owner">
      <source>Owner</source>
      <translation>Besitzer</translation>
    </message>
    <message id="ui.teams.role.viewer">
      <source>Viewer</source>
      <translation>Betrachter</translation>
    </message>
    <message id="ui.teams.viewerNote">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Nur der Besitzer und die Bearbeiter des Teams können Personen einladen.</translation>
    </message>
    <message id="ui.timeLimit.body">
      <source>“%1” was stopped at %2, and the time until then is logged.</source>
      <translation>„%1“ wurde um %2 gestoppt; die Zeit bis dahin ist erfasst.</translation>
    </message>
    <message id="ui.timeLimit.endOfDay">
      <source>Timer stopped at the end of your day</source>
      <translation>Timer am Ende Ihres Arbeitstags gestoppt</translation>
    </message>
    <message id="ui.timeLimit.longestRun">
      <source>Timer stopped after its longest run</source>
      <translation>Timer nach der längsten Laufzeit gestoppt</translation>
    </message>
    <message id="ui.timer.idle">
      <source>No timer running. Select a task and press Space.</source>
      <translation>Kein Timer läuft. Wähle eine Aufgabe aus und drücke die Leertaste.</translation>
    </message>
    <message id="ui.timer.name">
      <source>Timer</source>
      <translation>Timer</translation>
    </message>
    <message id="ui.timer.notRunning">
      <source>Not running</source>
      <translation>Läuft nicht</translation>
    </message>
    <message id="ui.timer.offline">
      <source>Offline</source>
      <translation>Offline</translation>
    </message>
    <message id="ui.timer.offlineHint">
      <source>Offline: changes from other devices arrive when the connection is back.</source>
      <translation>Offline: Änderungen von anderen Geräten kommen an, sobald die Verbindung wieder steht.</translation>
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
      <translation>Schwebender Timer</translation>
    </message>
    <message id="ui.tray.open">
      <source>Open Morvane</source>
      <translation>Morvane öffnen</translation>
    </message>
    <message id="ui.tray.quickAdd">
      <source>Quick add…</source>
      <translation>Schnell hinzufügen…</translation>
    </message>
    <message id="ui.tray.quit">
      <source>Quit</source>
      <translation>Beenden</translation>
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
      <translation>Alle Projekte</translation>
    </message>
    <message id="ui.trips.billable.all">
      <source>Charged and not</source>
      <translation>Berechnet und nicht</translation>
    </message>
    <message id="ui.trips.billable.no">
      <source>Private or not charged</source>
      <translation>Privat oder nicht berechnet</translation>
    </message>
    <message id="ui.trips.billable.yes">
      <source>Charged to the client</source>
      <translation>Dem Kunden berechnet</translation>
    </message>
    <message id="ui.trips.billableFilter">
      <source>Charging</source>
      <translation>Berechnung</translation>
    </message>
    <message id="ui.trips.charge">
      <source>Charge to the client</source>
      <translation>Dem Kunden berechnen</translation>
    </message>
    <message id="ui.trips.chip.invoiced">
      <source>Invoiced</source>
      <translation>Abgerechnet</translation>
    </message>
    <message id="ui.trips.chip.notCharged">
      <source>Not charged</source>
      <translation>Nicht berechnet</translation>
    </message>
    <message id="ui.trips.chip.private">
      <source>Private</source>
      <translation>Privat</translation>
    </message>
    <message id="ui.trips.chip.toInvoice">
      <source>To invoice</source>
      <translation>Abzurechnen</translation>
    </message>
    <message id="ui.trips.clientHit">
      <source>Client</source>
      <translation>Kunde</translation>
    </message>
    <message id="ui.trips.date">
      <source>Date</source>
      <translation>Datum</translation>
    </message>
    <message id="ui.trips.edit">
      <source>Edit trip</source>
      <translation>Fahrt bearbeiten</translation>
    </message>
    <message id="ui.trips.emptyHint">
      <source>Trips your phone records while a timer runs show up here. Press Ctrl+N or “New trip” to add one by hand.</source>
      <translation>Fahrten, die dein Telefon bei laufendem Timer aufzeichnet, erscheinen hier. Drücke Strg+N oder „Neue Fahrt“, um eine von Hand hinzuzufügen.</translation>
    </message>
    <message id="ui.trips.emptyTitle">
      <source>No trips yet</source>
      <translation>Noch keine Fahrten</translation>
    </message>
    <message id="ui.trips.finish">
      <source>Finish trip</source>
      <translation>Fahrt beenden</translation>
    </message>
    <message id="ui.trips.from">
      <source>From</source>
      <translation>Von</translation>
    </message>
    <message id="ui.trips.km">
      <source>Kilometres</source>
      <translation>Kilometer</translation>
    </message>
    <message id="ui.trips.kmColumn">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="ui.trips.map.route">
      <source>Road route of the trip</source>
      <translation>Straßenroute der Fahrt</translation>
    </message>
    <message id="ui.trips.map.straight">
      <source>Straight line between the places</source>
      <translation>Luftlinie zwischen den Orten</translation>
    </message>
    <message id="ui.trips.mode">
      <source>Travelled by</source>
      <translation>Verkehrsmittel</translation>
    </message>
    <message id="ui.trips.mode.bike">
      <source>Bike</source>
      <translation>Fahrrad</translation>
    </message>
    <message id="ui.trips.mode.car">
      <source>Car</source>
      <translation>Auto</translation>
    </message>
    <message id="ui.trips.mode.other">
      <source>Other</source>
      <translation>Andere</translation>
    </message>
    <message id="ui.trips.mode.transit">
      <source>Public transport</source>
      <translation>Öffentliche Verkehrsmittel</translation>
    </message>
    <message id="ui.trips.mode.walk">
      <source>On foot</source>
      <translation>Zu Fuß</translation>
    </message>
    <message id="ui.trips.new">
      <source>New trip</source>
      <translation>Neue Fahrt</translation>
    </message>
    <message id="ui.trips.noMatch">
      <source>No trip matches these filters</source>
      <translation>Keine Fahrt passt zu diesen Filtern</translation>
    </message>
    <message id="ui.trips.period.all">
      <source>All time</source>
      <translation>Gesamter Zeitraum</translation>
    </message>
    <message id="ui.trips.period.lastMonth">
      <source>Last month</source>
      <translation>Letzter Monat</translation>
    </message>
    <message id="ui.trips.period.month">
      <source>This month</source>
      <translation>Dieser Monat</translation>
    </message>
    <message id="ui.trips.period.year">
      <source>This year</source>
      <translation>Dieses Jahr</translation>
    </message>
    <message id="ui.trips.periodFilter">
      <source>Period</source>
      <translation>Zeitraum</translation>
    </message>
    <message id="ui.trips.placePlaceholder">
      <source>Address, place or client</source>
      <translation>Adresse, Ort oder Kunde</translation>
    </message>
    <message id="ui.trips.private">
      <source>Private trip</source>
      <translation>Private Fahrt</translation>
    </message>
    <message id="ui.trips.problem.date">
      <source>Enter the day as YYYY-MM-DD.</source>
      <translation>Gib den Tag als JJJJ-MM-TT (YYYY-MM-DD) ein.</translation>
    </message>
    <message id="ui.trips.problem.from">
      <source>Where did the trip start?</source>
      <translation>Wo begann die Fahrt?</translation>
    </message>
    <message id="ui.trips.problem.km">
      <source>Enter the kilometres, for example 12.5.</source>
      <translation>Gib die Kilometer ein, zum Beispiel 12,5.</translation>
    </message>
    <message id="ui.trips.problem.rate">
      <source>Enter the rate per kilometre as a number, for example 0.23.</source>
      <translation>Gib den Satz pro Kilometer als Zahl ein, zum Beispiel 0,23.</translation>
    </message>
    <message id="ui.trips.problem.to">
      <source>Where did the trip end?</source>
      <translation>Wo endete die Fahrt?</translation>
    </message>
    <message id="ui.trips.progress">
      <source>%1 km · %2 min</source>
      <translation>%1 km · %2 Min.</translation>
    </message>
    <message id="ui.trips.projectFilter">
      <source>Project</source>
      <translation>Projekt</translation>
    </message>
    <message id="ui.trips.projectHint">
      <source>Trips of this project go on its invoices. Private trips and trips you do not charge never do.</source>
      <translation>Fahrten dieses Projekts kommen auf seine Rechnungen. Private und nicht berechnete Fahrten nie.</translation>
    </message>
    <message id="ui.trips.purpose">
      <source>Purpose</source>
      <translation>Zweck</translation>
    </message>
    <message id="ui.trips.purposePlaceholder">
      <source>For example: meeting at the client, delivery</source>
      <translation>Zum Beispiel: Termin beim Kunden, Lieferung</translation>
    </message>
    <message id="ui.trips.rate">
      <source>Rate per kilometre</source>
      <translation>Satz pro Kilometer</translation>
    </message>
    <message id="ui.trips.rateHint">
      <source>Used for projects that charge travel per kilometre and name no rate of their own.</source>
      <translation>Für Projekte, die Reisen pro Kilometer berechnen und keinen eigenen Satz nennen.</translation>
    </message>
    <message id="ui.trips.resultsFrom">
      <source>Results from OpenStreetMap, without KvK numbers.</source>
      <translation>Ergebnisse von OpenStreetMap, ohne KvK-Nummern.</translation>
    </message>
    <message id="ui.trips.routing">
      <source>Finding the road route…</source>
      <translation>Straßenroute wird gesucht…</translation>
    </message>
    <message id="ui.trips.searching">
      <source>Searching…</source>
      <translation>Suche…</translation>
    </message>
    <message id="ui.trips.settings">
      <source>Travel settings</source>
      <translation>Reiseeinstellungen</translation>
    </message>
    <message id="ui.trips.start">
      <source>Start a trip now</source>
      <translation>Jetzt eine Fahrt starten</translation>
    </message>
    <message id="ui.trips.summaryMany">
      <source>%1 trips · %2 km</source>
      <translation>%1 Fahrten · %2 km</translation>
    </message>
    <message id="ui.trips.summaryOne">
      <source>1 trip · %1 km</source>
      <translation>1 Fahrt · %1 km</translation>
    </message>
    <message id="ui.trips.title">
      <source>Trips</source>
      <translation>Fahrten</translation>
    </message>
    <message id="ui.trips.to">
      <source>To</source>
      <translation>Nach</translation>
    </message>
    <message id="ui.trips.toInvoice">
      <source>%1 to invoice: %2</source>
      <translation>%1 abzurechnen: %2</translation>
    </message>
    <message id="ui.trips.trip">
      <source>Trip</source>
      <translation>Fahrt</translation>
    </message>
    <message id="ui.trips.usualMode">
      <source>Usually travel by</source>
      <translation>Reist meist mit</translation>
    </message>
    <message id="ui.trips.work">
      <source>Project and task</source>
      <translation>Projekt und Aufgabe</translation>
    </message>
    <message id="ui.trips.work.none">
      <source>Choose a project or task</source>
      <translation>Projekt oder Aufgabe wählen</translation>
    </message>
    <message id="ui.trips.work.wholeProject">
      <source>%1 · Whole project, no task</source>
      <translation>%1 · Ganzes Projekt, keine Aufgabe</translation>
    </message>
  </context>
</TS>

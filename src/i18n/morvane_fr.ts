<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
  <context>
    <name>Morvane</name>
    <message id="add.couldNotParse">
      <source>Morvane could not make sense of that. Try saying it another way.</source>
      <translation>Morvane n’a pas compris. Essayez de le dire autrement.</translation>
    </message>
    <message id="ai.err.badAnswer">
      <source>%1 sent an answer Morvane cannot use: %2</source>
      <translation>%1 a envoyé une réponse que Morvane ne peut pas utiliser : %2</translation>
    </message>
    <message id="ai.err.consentDeclined">
      <source>You chose not to send your text to %1. You can change this in the AI settings.</source>
      <translation>Vous avez choisi de ne pas envoyer votre texte à %1. Vous pouvez modifier ce choix dans les réglages de l'IA.</translation>
    </message>
    <message id="ai.err.consentMissing">
      <source>Morvane asks before it sends your text to %1 for the first time. Answer that question in the window, or run the command again with --yes.</source>
      <translation>Morvane demande votre accord avant d'envoyer votre texte à %1 pour la première fois. Répondez à cette question dans la fenêtre, ou relancez la commande avec --yes.</translation>
    </message>
    <message id="ai.err.needsCLI">
      <source>This needs the Claude CLI, which can work with files; %1 cannot. Choose the Claude CLI in the AI settings.</source>
      <translation>Cela nécessite la CLI Claude, qui sait travailler sur des fichiers ; %1 ne le peut pas. Choisissez la CLI Claude dans les réglages de l'IA.</translation>
    </message>
    <message id="ai.err.noKey">
      <source>There is no API key for %1 in your keyring. Add your key in the AI settings.</source>
      <translation>Votre trousseau ne contient aucune clé d'API pour %1. Ajoutez votre clé dans les réglages de l'IA.</translation>
    </message>
    <message id="ai.err.notSignedIn">
      <source>%1 works only while you are signed in. Sign in, then try again.</source>
      <translation>%1 ne fonctionne que si vous êtes connecté. Connectez-vous, puis réessayez.</translation>
    </message>
    <message id="ai.err.status">
      <source>%1 answered with error %2: %3</source>
      <translation>%1 a répondu par l'erreur %2 : %3</translation>
    </message>
    <message id="ai.err.timedOut">
      <source>%1 did not answer within %2 s</source>
      <translation>%1 n'a pas répondu dans les %2 s</translation>
    </message>
    <message id="ai.err.unreachable">
      <source>%1 could not be reached: %2</source>
      <translation>Impossible de joindre %1 : %2</translation>
    </message>
    <message id="ai.route.anthropic.where">
      <source>Your text goes straight from this computer to Anthropic, with your own API key.</source>
      <translation>Votre texte part directement de cet ordinateur vers Anthropic, avec votre propre clé d'API.</translation>
    </message>
    <message id="ai.route.claudeCLI.where">
      <source>Your text goes to the claude program on this computer, which sends it to Anthropic under your own Claude account. Morvane itself sends nothing over the network.</source>
      <translation>Votre texte est transmis au programme claude de cet ordinateur, qui l'envoie à Anthropic avec votre propre compte Claude. Morvane lui-même n'envoie rien sur le réseau.</translation>
    </message>
    <message id="ai.route.gemini.where">
      <source>Your text goes straight from this computer to Google, with your own API key.</source>
      <translation>Votre texte part directement de cet ordinateur vers Google, avec votre propre clé d'API.</translation>
    </message>
    <message id="ai.route.morvaneAI.where">
      <source>Your text goes to the Morvane server you are signed in to, which passes it on to the AI service its operator has chosen, and the answer comes back the same way.</source>
      <translation>Votre texte est envoyé au serveur Morvane auquel vous êtes connecté, qui le transmet au service d'IA choisi par son exploitant ; la réponse revient par le même chemin.</translation>
    </message>
    <message id="ai.route.openAI.where">
      <source>Your text goes straight from this computer to OpenAI, with your own API key.</source>
      <translation>Votre texte part directement de cet ordinateur vers OpenAI, avec votre propre clé d'API.</translation>
    </message>
    <message id="auth.err.emailExists">
      <source>An account with this e-mail address exists already. Sign in instead.</source>
      <translation>Un compte existe déjà avec cette adresse e-mail. Connectez-vous plutôt.</translation>
    </message>
    <message id="auth.err.invalidEmail">
      <source>Enter a valid e-mail address.</source>
      <translation>Saisissez une adresse e-mail valide.</translation>
    </message>
    <message id="auth.err.network">
      <source>Morvane cannot reach the server. Check your connection and try again.</source>
      <translation>Morvane ne parvient pas à joindre le serveur. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message id="auth.err.oauthBadUrl">
      <source>The sign-in address is not valid.</source>
      <translation>L’adresse de connexion n’est pas valide.</translation>
    </message>
    <message id="auth.err.oauthCancelled">
      <source>The sign-in was cancelled.</source>
      <translation>La connexion a été annulée.</translation>
    </message>
    <message id="auth.err.oauthCannotStart">
      <source>Could not start the sign-in.</source>
      <translation>Impossible de lancer la connexion.</translation>
    </message>
    <message id="auth.err.oauthNoCode">
      <source>The sign-in came back without a code.</source>
      <translation>La connexion est revenue sans code.</translation>
    </message>
    <message id="auth.err.oauthRefused">
      <source>The sign-in was refused: %1</source>
      <translation>La connexion a été refusée : %1</translation>
    </message>
    <message id="auth.err.rateLimit">
      <source>Too many attempts. Wait a few minutes, then try again.</source>
      <translation>Trop de tentatives. Attendez quelques minutes, puis réessayez.</translation>
    </message>
    <message id="auth.err.server">
      <source>The server ran into a problem. Try again in a moment.</source>
      <translation>Le serveur a rencontré un problème. Réessayez dans un instant.</translation>
    </message>
    <message id="auth.err.switchExpired">
      <source>Couldn't switch to %1. That account's session expired - sign in to it again.</source>
      <translation>Impossible de passer à %1. La session de ce compte a expiré - reconnectez-vous-y.</translation>
    </message>
    <message id="auth.oauthDone">
      <source>You are signed in to Morvane. You can close this window.</source>
      <translation>Vous êtes connecté à Morvane. Vous pouvez fermer cette fenêtre.</translation>
    </message>
    <message id="billing.dayNote">
      <source>Tracked time ÷ hours-per-day = billable days.</source>
      <translation>Temps suivi ÷ heures par jour = jours facturables.</translation>
    </message>
    <message id="billing.dayRate">
      <source>Day rate</source>
      <translation>Taux journalier</translation>
    </message>
    <message id="billing.discount">
      <source>Discount</source>
      <translation>Remise</translation>
    </message>
    <message id="billing.extras">
      <source>Extras · call-out · materials · discount · VAT</source>
      <translation>Suppléments · déplacement · matériel · remise · TVA</translation>
    </message>
    <message id="billing.fixedTotal">
      <source>Fixed total</source>
      <translation>Total fixe</translation>
    </message>
    <message id="billing.gross">
      <source>Gross (incl.)</source>
      <translation>Brut (TTC)</translation>
    </message>
    <message id="billing.hourlyRate">
      <source>Hourly rate</source>
      <translation>Taux horaire</translation>
    </message>
    <message id="billing.hoursPerDay">
      <source>Hours per day</source>
      <translation>Heures par jour</translation>
    </message>
    <message id="billing.inheriting">
      <source>Inheriting from project</source>
      <translation>Hérité du projet</translation>
    </message>
    <message id="billing.materials">
      <source>Materials</source>
      <translation>Matériel</translation>
    </message>
    <message id="billing.minCharge">
      <source>Minimum charge</source>
      <translation>Montant minimum</translation>
    </message>
    <message id="billing.model.day">
      <source>Per day</source>
      <translation>À la journée</translation>
    </message>
    <message id="billing.model.fixed">
      <source>Fixed price</source>
      <translation>Prix fixe</translation>
    </message>
    <message id="billing.model.hour">
      <source>Per hour</source>
      <translation>À l’heure</translation>
    </message>
    <message id="billing.model.unit">
      <source>Per unit</source>
      <translation>À l’unité</translation>
    </message>
    <message id="billing.net">
      <source>Net (excl. VAT)</source>
      <translation>Net (HT)</translation>
    </message>
    <message id="billing.netNote">
      <source>Net per tracked time, plus the extras above.</source>
      <translation>Net selon le temps suivi, plus les suppléments ci-dessus.</translation>
    </message>
    <message id="billing.pricePerUnit">
      <source>Price / unit</source>
      <translation>Prix / unité</translation>
    </message>
    <message id="billing.quantity">
      <source>Quantity</source>
      <translation>Quantité</translation>
    </message>
    <message id="billing.resetProject">
      <source>Reset to project default</source>
      <translation>Revenir au prix du projet</translation>
    </message>
    <message id="billing.suffix.day">
      <source>/day</source>
      <translation>/jour</translation>
    </message>
    <message id="billing.suffix.hour">
      <source>/h</source>
      <translation>/h</translation>
    </message>
    <message id="billing.surcharge">
      <source>Call-out fee</source>
      <translation>Frais de déplacement</translation>
    </message>
    <message id="billing.title">
      <source>Billing</source>
      <translation>Facturation</translation>
    </message>
    <message id="billing.unit">
      <source>Unit</source>
      <translation>Unité</translation>
    </message>
    <message id="billing.unitDefault">
      <source>unit</source>
      <translation>unité</translation>
    </message>
    <message id="billing.vat">
      <source>VAT</source>
      <translation>TVA</translation>
    </message>
    <message id="billing.vatAmount">
      <source>VAT</source>
      <translation>TVA</translation>
    </message>
    <message id="billing.vatNone">
      <source>No VAT</source>
      <translation>Pas de TVA</translation>
    </message>
    <message id="cal.accessOffBody">
      <source>Morvane turns calendar events into time entries. Add an iCalendar file, a subscription address or a CalDAV account, then come back and recheck.</source>
      <translation>Morvane transforme les événements du calendrier en temps saisi. Ajoutez un fichier iCalendar, une adresse d’abonnement ou un compte CalDAV, puis revenez vérifier.</translation>
    </message>
    <message id="cal.accessOffTitle">
      <source>No calendars yet</source>
      <translation>Pas encore de calendrier</translation>
    </message>
    <message id="cal.err.alreadyImported">
      <source>This event was imported before; its time is already logged.</source>
      <translation>Cet événement a déjà été importé ; son temps est déjà saisi.</translation>
    </message>
    <message id="cal.err.readFailed">
      <source>The calendar “%1” could not be read.</source>
      <translation>Le calendrier « %1 » n’a pas pu être lu.</translation>
    </message>
    <message id="cal.err.secret">
      <source>The password could not be stored in the keyring.</source>
      <translation>Le mot de passe n’a pas pu être enregistré dans le trousseau.</translation>
    </message>
    <message id="cal.heroTitle">
      <source>Import from your calendar</source>
      <translation>Importer depuis votre calendrier</translation>
    </message>
    <message id="cal.loading">
      <source>Loading calendar…</source>
      <translation>Chargement du calendrier…</translation>
    </message>
    <message id="cal.noEventsHint">
      <source>No events on this day. Pick another day, or add a calendar.</source>
      <translation>Aucun événement ce jour-là. Choisissez un autre jour ou ajoutez un calendrier.</translation>
    </message>
    <message id="cal.selectedCount">
      <source>%1 selected</source>
      <translation>%1 sélectionné(s)</translation>
    </message>
    <message id="cal.untitled">
      <source>Calendar event</source>
      <translation>Événement du calendrier</translation>
    </message>
    <message id="calExistingSection">
      <source>Existing tasks</source>
      <translation>Tâches existantes</translation>
    </message>
    <message id="calNewTaskSection">
      <source>New tasks</source>
      <translation>Nouvelles tâches</translation>
    </message>
    <message id="capture.err.noMinutes">
      <source>The sentence gives no time to log.</source>
      <translation>La phrase n’indique aucun temps à enregistrer.</translation>
    </message>
    <message id="capture.err.noProject">
      <source>The sentence names no project to add the task to.</source>
      <translation>La phrase ne nomme aucun projet auquel ajouter la tâche.</translation>
    </message>
    <message id="capture.err.notSaved">
      <source>The change could not be saved.</source>
      <translation>La modification n’a pas pu être enregistrée.</translation>
    </message>
    <message id="capture.fix.bothPrices">
      <source>"%1" has both a fixed price and an hourly rate; the fixed price is used.</source>
      <translation>« %1 » a à la fois un prix fixe et un taux horaire ; le prix fixe est retenu.</translation>
    </message>
    <message id="capture.fix.cut">
      <source>"%1…" was cut to %2 characters.</source>
      <translation>« %1… » a été raccourci à %2 caractères.</translation>
    </message>
    <message id="capture.fix.date">
      <source>The due date "%1" was left out: it is not a date of the form YYYY-MM-DD.</source>
      <translation>L’échéance « %1 » a été ignorée : ce n’est pas une date au format AAAA-MM-JJ.</translation>
    </message>
    <message id="capture.fix.minutes">
      <source>%1 minutes were left out: time logged from one sentence is more than 0 and at most %2 minutes.</source>
      <translation>%1 minutes ont été ignorées : le temps d’une phrase est supérieur à 0 et d’au plus %2 minutes.</translation>
    </message>
    <message id="capture.fix.price">
      <source>The fixed price %1 was left out: a price lies between 0 and %2.</source>
      <translation>Le prix fixe %1 a été ignoré : un prix est compris entre 0 et %2.</translation>
    </message>
    <message id="capture.fix.priority">
      <source>The priority "%1" is unknown; the task gets the default, medium.</source>
      <translation>La priorité « %1 » est inconnue ; la tâche reçoit la priorité par défaut, moyenne.</translation>
    </message>
    <message id="capture.fix.rate">
      <source>The hourly rate %1 was left out: a rate lies between 0 and %2.</source>
      <translation>Le taux horaire %1 a été ignoré : un taux est compris entre 0 et %2.</translation>
    </message>
    <message id="capture.fix.unnamed">
      <source>A project or task without a name was left out.</source>
      <translation>Un projet ou une tâche sans nom a été ignoré.</translation>
    </message>
    <message id="capture.note.noTeam">
      <source>You have no team called "%1" that you may add projects to; "%2" stays yours alone.</source>
      <translation>Vous n’avez aucune équipe « %1 » à laquelle ajouter des projets ; « %2 » reste à vous seul.</translation>
    </message>
    <message id="capture.note.noTimer">
      <source>No timer was running.</source>
      <translation>Aucun minuteur n’était en cours.</translation>
    </message>
    <message id="claude.err.binaryMissing">
      <source>AI features need the Claude CLI on this Mac (it powers voice/prompt capture, briefs, and the invoice note). Everything else works without it. Set CLAUDE_CLI_PATH or install it, then try again.</source>
      <translation>Les fonctions d'IA ont besoin de la CLI Claude sur ce Mac (saisie vocale et par invite, briefs et note de facture). Tout le reste fonctionne sans elle. Définissez CLAUDE_CLI_PATH ou installez-la, puis réessayez.</translation>
    </message>
    <message id="claude.err.createTask">
      <source>Create task failed: %1</source>
      <translation>Échec de la création de la tâche : %1</translation>
    </message>
    <message id="claude.err.emptyOutput">
      <source>Claude produced no output</source>
      <translation>Claude n'a rien renvoyé</translation>
    </message>
    <message id="claude.err.launchFailed">
      <source>Launch failed: %1</source>
      <translation>Échec du lancement : %1</translation>
    </message>
    <message id="claude.err.malformedJSON">
      <source>Bad JSON from Claude (%1) %2</source>
      <translation>JSON invalide de Claude (%1) %2</translation>
    </message>
    <message id="claude.err.noJSONObject">
      <source>no JSON object detected</source>
      <translation>aucun objet JSON détecté</translation>
    </message>
    <message id="claude.err.nonZeroExit">
      <source>Claude exited %1: %2</source>
      <translation>Claude s'est arrêté avec le statut %1 : %2</translation>
    </message>
    <message id="claude.err.outputNotWritten">
      <source>Claude finished but did not write %1</source>
      <translation>Claude a terminé mais n'a pas écrit %1</translation>
    </message>
    <message id="claude.err.resultIsError">
      <source>claude returned is_error=true</source>
      <translation>claude a renvoyé is_error=true</translation>
    </message>
    <message id="claude.err.timedOut">
      <source>Claude request timed out after %1 s</source>
      <translation>La requête Claude a expiré après %1 s</translation>
    </message>
    <message id="claude.err.workspaceTimedOut">
      <source>Claude workspace task timed out after %1 s</source>
      <translation>La tâche Claude dans l'espace de travail a expiré après %1 s</translation>
    </message>
    <message id="cli.add.adjusted">
      <source>Checked: %1</source>
      <translation>Vérifié : %1</translation>
    </message>
    <message id="cli.add.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as 'morvane tasks list' shows it.</source>
      <translation>Quelle tâche ? Aucune de vos tâches ne s’appelle « %1 », ou plusieurs. Nommez-la comme 'morvane tasks list' l’affiche.</translation>
    </message>
    <message id="cli.add.dryRunDone">
      <source>Nothing was changed (--dry-run).</source>
      <translation>Rien n’a été modifié (--dry-run).</translation>
    </message>
    <message id="cli.add.due">
      <source>due %1</source>
      <translation>échéance %1</translation>
    </message>
    <message id="cli.add.fixed">
      <source>%1 fixed</source>
      <translation>%1 forfait</translation>
    </message>
    <message id="cli.add.logTime">
      <source>Log %1 on "%2"</source>
      <translation>Enregistrer %1 sur « %2 »</translation>
    </message>
    <message id="cli.add.modelNote">
      <source>The model notes: %1</source>
      <translation>Le modèle note : %1</translation>
    </message>
    <message id="cli.add.option.dryRun">
      <source>Show what was understood without changing anything.</source>
      <translation>Afficher ce qui a été compris sans rien modifier.</translation>
    </message>
    <message id="cli.add.partial">
      <source>Stopped: %1 What was made before stays; give the same sentence again to finish the rest without making anything twice.</source>
      <translation>Arrêté : %1 Ce qui a déjà été créé reste ; redonnez la même phrase pour terminer le reste sans rien créer deux fois.</translation>
    </message>
    <message id="cli.add.project">
      <source>Project "%1"</source>
      <translation>Projet « %1 »</translation>
    </message>
    <message id="cli.add.spent">
      <source>%1 already spent</source>
      <translation>%1 déjà passées</translation>
    </message>
    <message id="cli.add.startTimer">
      <source>Start the timer on "%1"</source>
      <translation>Démarrer le minuteur sur « %1 »</translation>
    </message>
    <message id="cli.add.stopRunning">
      <source>Stop the running timer</source>
      <translation>Arrêter le minuteur en cours</translation>
    </message>
    <message id="cli.add.stopTimer">
      <source>Stop the timer on "%1"</source>
      <translation>Arrêter le minuteur sur « %1 »</translation>
    </message>
    <message id="cli.add.summary">
      <source>Projects: %1 new, %2 existing. Tasks: %3 new, %4 existing. Time logged: %5.</source>
      <translation>Projets : %1 nouveaux, %2 existants. Tâches : %3 nouvelles, %4 existantes. Temps enregistré : %5.</translation>
    </message>
    <message id="cli.add.task">
      <source>Task "%1"</source>
      <translation>Tâche « %1 »</translation>
    </message>
    <message id="cli.add.team">
      <source>shared with team %1</source>
      <translation>partagé avec l’équipe %1</translation>
    </message>
    <message id="cli.add.timerStopped">
      <source>Timer stopped on %1.</source>
      <translation>Minuteur arrêté sur %1.</translation>
    </message>
    <message id="cli.add.understood">
      <source>Understood:</source>
      <translation>Compris :</translation>
    </message>
    <message id="cli.add.unknown">
      <source>Nothing to do: the sentence holds no project, task, time or timer action.</source>
      <translation>Rien à faire : la phrase ne contient ni projet, ni tâche, ni temps, ni action de minuteur.</translation>
    </message>
    <message id="cli.add.usage">
      <source>Usage: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</source>
      <translation>Utilisation : morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</translation>
    </message>
    <message id="cli.ai.consentAllowed">
      <source>allowed</source>
      <translation>autorisé</translation>
    </message>
    <message id="cli.ai.consentAsk">
      <source>not asked yet</source>
      <translation>pas encore demandé</translation>
    </message>
    <message id="cli.ai.consentDeclined">
      <source>declined</source>
      <translation>refusé</translation>
    </message>
    <message id="cli.ai.keyFailed">
      <source>The keyring did not take the key; nothing changed.</source>
      <translation>Le trousseau n'a pas accepté la clé ; rien n'a changé.</translation>
    </message>
    <message id="cli.ai.keyMissing">
      <source>No key was given; nothing changed.</source>
      <translation>Aucune clé n'a été fournie ; rien n'a changé.</translation>
    </message>
    <message id="cli.ai.keyPrompt">
      <source>Paste your %1 API key and press Enter: </source>
      <translation>Collez votre clé d'API %1 et appuyez sur Entrée : </translation>
    </message>
    <message id="cli.ai.keyRemoved">
      <source>The %1 key is no longer in your keyring.</source>
      <translation>La clé %1 n'est plus dans votre trousseau.</translation>
    </message>
    <message id="cli.ai.keySaved">
      <source>The %1 key is in your keyring.</source>
      <translation>La clé %1 est dans votre trousseau.</translation>
    </message>
    <message id="cli.ai.keys">
      <source>Your keys in the keyring: %1</source>
      <translation>Vos clés dans le trousseau : %1</translation>
    </message>
    <message id="cli.ai.option.remove">
      <source>Remove the stored key instead of setting one.</source>
      <translation>Supprimer la clé enregistrée au lieu d'en définir une.</translation>
    </message>
    <message id="cli.ai.provider">
      <source>Provider setting: %1</source>
      <translation>Réglage du fournisseur : %1</translation>
    </message>
    <message id="cli.ai.question">
      <source>%1
Send your text to %2 now and from now on? [y/N] </source>
      <translation>%1
Envoyer votre texte à %2 maintenant et désormais ? [o/N] </translation>
    </message>
    <message id="cli.ai.route">
      <source>Calls go to: %1</source>
      <translation>Les appels vont à : %1</translation>
    </message>
    <message id="cli.ai.usage">
      <source>Usage: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</source>
      <translation>Utilisation : morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</translation>
    </message>
    <message id="cli.ai.yes">
      <source>Agree to sending your text to the chosen AI service without being asked.</source>
      <translation>Accepter sans question l'envoi de votre texte au service d'IA choisi.</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>La commande à exécuter ; sans commande, la liste des commandes s’affiche.</translation>
    </message>
    <message id="cli.auth.browser">
      <source>Continue in your browser. If no page opens, go to: %1</source>
      <translation>Continuez dans votre navigateur. Si aucune page ne s’ouvre, allez à : %1</translation>
    </message>
    <message id="cli.auth.confirm">
      <source>Check your inbox: confirm %1 with the link in the mail, then sign in.</source>
      <translation>Consultez votre boîte de réception : confirmez %1 avec le lien du message, puis connectez-vous.</translation>
    </message>
    <message id="cli.auth.noAccounts">
      <source>No remembered accounts.</source>
      <translation>Aucun compte mémorisé.</translation>
    </message>
    <message id="cli.auth.option.name">
      <source>The name shown on your profile and to your team.</source>
      <translation>Le nom affiché sur votre profil et à votre équipe.</translation>
    </message>
    <message id="cli.auth.option.provider">
      <source>Sign in through an outside provider in the browser instead of with a password.</source>
      <translation>Se connecter via un fournisseur externe dans le navigateur plutôt qu’avec un mot de passe.</translation>
    </message>
    <message id="cli.auth.password">
      <source>Password: </source>
      <translation>Mot de passe : </translation>
    </message>
    <message id="cli.auth.signedIn">
      <source>Signed in as %1.</source>
      <translation>Connecté en tant que %1.</translation>
    </message>
    <message id="cli.auth.signedOut">
      <source>Signed out.</source>
      <translation>Déconnecté.</translation>
    </message>
    <message id="cli.auth.unknownAccount">
      <source>No remembered account %1. Sign in to it first.</source>
      <translation>Aucun compte mémorisé %1. Connectez-vous-y d’abord.</translation>
    </message>
    <message id="cli.auth.usage">
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Utilisation : morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.calendar.added">
      <source>Added %1 (%2).</source>
      <translation>%1 ajouté (%2).</translation>
    </message>
    <message id="cli.calendar.err.add">
      <source>That calendar cannot be added: %1.</source>
      <translation>Ce calendrier ne peut pas être ajouté : %1.</translation>
    </message>
    <message id="cli.calendar.err.day">
      <source>A day is written as YYYY-MM-DD, today or yesterday.</source>
      <translation>Un jour s’écrit AAAA-MM-JJ, today ou yesterday.</translation>
    </message>
    <message id="cli.calendar.err.noDestination">
      <source>No task or project for: %1. Pass --project P to make them new tasks there.</source>
      <translation>Aucune tâche ni aucun projet pour : %1. Passez --project P pour en faire de nouvelles tâches dans ce projet.</translation>
    </message>
    <message id="cli.calendar.err.noSelection">
      <source>Say which events to import: --events ID... (see morvane calendar events) or --all.</source>
      <translation>Indiquez les événements à importer : --events ID... (voir morvane calendar events) ou --all.</translation>
    </message>
    <message id="cli.calendar.err.unknown">
      <source>No single calendar matches “%1”; see morvane calendar list.</source>
      <translation>Aucun calendrier unique ne correspond à « %1 » ; voir morvane calendar list.</translation>
    </message>
    <message id="cli.calendar.imported">
      <source>imported</source>
      <translation>importé</translation>
    </message>
    <message id="cli.calendar.importedCount">
      <source>Imported %1 events; %2 were imported before.</source>
      <translation>%1 événements importés ; %2 l’avaient déjà été.</translation>
    </message>
    <message id="cli.calendar.opt.all">
      <source>Import every event of the day.</source>
      <translation>Importer tous les événements du jour.</translation>
    </message>
    <message id="cli.calendar.opt.caldav">
      <source>Read a CalDAV collection (with --user) instead of a subscription.</source>
      <translation>Lire une collection CalDAV (avec --user) au lieu d’un abonnement.</translation>
    </message>
    <message id="cli.calendar.opt.day">
      <source>The day: YYYY-MM-DD, today or yesterday.</source>
      <translation>Le jour : AAAA-MM-JJ, today ou yesterday.</translation>
    </message>
    <message id="cli.calendar.opt.events">
      <source>The events to import, by the id events shows.</source>
      <translation>Les événements à importer, par l’identifiant qu’affiche events.</translation>
    </message>
    <message id="cli.calendar.opt.name">
      <source>The name the calendar is shown under.</source>
      <translation>Le nom sous lequel le calendrier est affiché.</translation>
    </message>
    <message id="cli.calendar.opt.project">
      <source>The project new tasks are made in.</source>
      <translation>Le projet où les nouvelles tâches sont créées.</translation>
    </message>
    <message id="cli.calendar.opt.user">
      <source>The CalDAV user name.</source>
      <translation>Le nom d’utilisateur CalDAV.</translation>
    </message>
    <message id="cli.calendar.password">
      <source>CalDAV password: </source>
      <translation>Mot de passe CalDAV : </translation>
    </message>
    <message id="cli.calendar.removed">
      <source>Removed %1.</source>
      <translation>%1 supprimé.</translation>
    </message>
    <message id="cli.calendar.usage">
      <source>Usage: morvane calendar add &lt;file-or-address&gt; [--caldav --user U] | list | rm &lt;calendar&gt; | events [--day DAY] [--json] | import --day DAY [--project P] [--events ID...] [--all]</source>
      <translation>Usage : morvane calendar add &lt;fichier-ou-adresse&gt; [--caldav --user U] | list | rm &lt;calendrier&gt; | events [--day JOUR] [--json] | import --day JOUR [--project P] [--events ID...] [--all]</translation>
    </message>
    <message id="cli.clients.added">
      <source>Added client %1 (%2).</source>
      <translation>Client %1 ajouté (%2).</translation>
    </message>
    <message id="cli.clients.coc">
      <source>CoC %1</source>
      <translation>RCS %1</translation>
    </message>
    <message id="cli.clients.confirmDelete">
      <source>Delete the client %1? Invoices that name it keep it. [y/N] </source>
      <translation>Supprimer le client %1 ? Les factures qui le mentionnent le conservent. [y/N] </translation>
    </message>
    <message id="cli.clients.deleted">
      <source>Deleted client %1.</source>
      <translation>Client %1 supprimé.</translation>
    </message>
    <message id="cli.clients.kept">
      <source>Nothing deleted.</source>
      <translation>Rien n'a été supprimé.</translation>
    </message>
    <message id="cli.clients.noMatch">
      <source>No client matches "%1". See them with: morvane clients list</source>
      <translation>Aucun client ne correspond à « %1 ». Affichez-les avec : morvane clients list</translation>
    </message>
    <message id="cli.clients.none">
      <source>No clients yet. Add one with: morvane clients add &lt;name&gt;</source>
      <translation>Aucun client pour l'instant. Ajoutez-en un avec : morvane clients add &lt;nom&gt;</translation>
    </message>
    <message id="cli.clients.option.address">
      <source>The client's postal address; it may span several lines.</source>
      <translation>L'adresse postale du client ; elle peut tenir sur plusieurs lignes.</translation>
    </message>
    <message id="cli.clients.option.coc">
      <source>The client's chamber-of-commerce number.</source>
      <translation>Le numéro RCS du client.</translation>
    </message>
    <message id="cli.clients.option.email">
      <source>The client's e-mail address.</source>
      <translation>L'adresse e-mail du client.</translation>
    </message>
    <message id="cli.clients.option.name">
      <source>A new name (edit only).</source>
      <translation>Un nouveau nom (edit uniquement).</translation>
    </message>
    <message id="cli.clients.option.vat">
      <source>The client's VAT number.</source>
      <translation>Le numéro de TVA du client.</translation>
    </message>
    <message id="cli.clients.option.yes">
      <source>Delete without asking first.</source>
      <translation>Supprimer sans demander confirmation.</translation>
    </message>
    <message id="cli.clients.saved">
      <source>Saved client %1.</source>
      <translation>Client %1 enregistré.</translation>
    </message>
    <message id="cli.clients.usage">
      <source>Usage: morvane clients list | add &lt;name&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;client&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;client&gt; [--yes] [--json]</source>
      <translation>Utilisation : morvane clients list | add &lt;nom&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;client&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;client&gt; [--yes] [--json]</translation>
    </message>
    <message id="cli.clients.vat">
      <source>VAT %1</source>
      <translation>TVA %1</translation>
    </message>
    <message id="cli.clients.yesAnswers">
      <source>y|yes</source>
      <translation>o|oui</translation>
    </message>
    <message id="cli.command.add">
      <source>Turn a sentence into projects, tasks, logged time or a timer action: add "&lt;text&gt;" [--dry-run] [--json]</source>
      <translation>Transformer une phrase en projets, tâches, temps enregistré ou action de minuteur : add "&lt;text&gt;" [--dry-run] [--json]</translation>
    </message>
    <message id="cli.command.ai">
      <source>Where model calls go, your own API keys and what you agreed to send: ai show|provider|key|consent</source>
      <translation>Où vont les appels au modèle, vos propres clés d'API et ce que vous avez accepté d'envoyer : ai show|provider|key|consent</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Créer un compte, se connecter et se déconnecter, changer de compte</translation>
    </message>
    <message id="cli.command.calendar">
      <source>Calendar events as time: calendar add|list|rm|events|import</source>
      <translation>Événements du calendrier en temps : calendar add|list|rm|events|import</translation>
    </message>
    <message id="cli.command.clients">
      <source>The clients you invoice: clients list|add|edit|rm</source>
      <translation>Les clients que vous facturez : clients list|add|edit|rm</translation>
    </message>
    <message id="cli.command.company">
      <source>Your sender details and invoice style: company show|set</source>
      <translation>Vos coordonnées d’expéditeur et le style de vos factures : company show|set</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Afficher le serveur utilisé par Morvane et l’origine de chaque réglage</translation>
    </message>
    <message id="cli.command.earnings">
      <source>Earned, billed and unbilled money by week, month or project: earnings [--from DAY --to DAY] [--by week|month|project]</source>
      <translation>Montants gagnés, facturés et non facturés par semaine, mois ou projet : earnings [--from JOUR --to JOUR] [--by week|month|project]</translation>
    </message>
    <message id="cli.command.entries">
      <source>List, edit or delete time entries: entries [--task T] | edit | rm</source>
      <translation>Lister, modifier ou supprimer des entrées de temps : entries [--task T] | edit | rm</translation>
    </message>
    <message id="cli.command.export">
      <source>Time entries or invoices of a period as CSV for the accountant: export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Temps saisis ou factures d’une période en CSV pour le comptable : export entries|invoices --from JOUR --to JOUR [--out FICHIER]</translation>
    </message>
    <message id="cli.command.invoice">
      <source>Invoices: invoice draft|create|list|show|status|void|rm|pdf</source>
      <translation>Factures : invoice draft|create|list|show|status|void|rm|pdf</translation>
    </message>
    <message id="cli.command.log">
      <source>Log minutes of work on a task: log &lt;task&gt; &lt;minutes&gt;</source>
      <translation>Saisir des minutes de travail sur une tâche : log &lt;task&gt; &lt;minutes&gt;</translation>
    </message>
    <message id="cli.command.price">
      <source>Show or set the price of a project or task: price show|set</source>
      <translation>Afficher ou définir le prix d’un projet ou d’une tâche : price show|set</translation>
    </message>
    <message id="cli.command.projects">
      <source>List, add, rename, archive or delete projects: projects list|add|rename|archive|rm</source>
      <translation>Lister, ajouter, renommer, archiver ou supprimer des projets : projects list|add|rename|archive|rm</translation>
    </message>
    <message id="cli.command.recap">
      <source>A short recap of your tracked week, written by the model from your own figures: recap [--lang L]</source>
      <translation>Un court bilan de votre semaine suivie, rédigé par le modèle à partir de vos propres chiffres : recap [--lang L]</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Démarrer, arrêter ou afficher le serveur local : server start|stop|status</translation>
    </message>
    <message id="cli.command.sessions">
      <source>Coding-agent sessions found in the local logs: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</source>
      <translation>Sessions de l'agent de code trouvées dans les journaux locaux : sessions list [--days N] [--json] | scan | map | ignore | reimport | track</translation>
    </message>
    <message id="cli.command.standup">
      <source>A stand-up draft from your last workday, today and your open tasks: standup [--lang L]</source>
      <translation>Un brouillon de stand-up à partir de votre dernier jour travaillé, d'aujourd'hui et de vos tâches ouvertes : standup [--lang L]</translation>
    </message>
    <message id="cli.command.tasks">
      <source>List, add, edit, move or delete tasks: tasks list|add|edit|move|status|rm</source>
      <translation>Lister, ajouter, modifier, déplacer ou supprimer des tâches : tasks list|add|edit|move|status|rm</translation>
    </message>
    <message id="cli.command.teams">
      <source>Teams and their members: teams list|create|invite|invitations|accept|decline|assign</source>
      <translation>Les équipes et leurs membres : teams list|create|invite|invitations|accept|decline|assign</translation>
    </message>
    <message id="cli.command.timer">
      <source>Start, stop or show the timer: timer start|stop|toggle|status</source>
      <translation>Démarrer, arrêter ou afficher le minuteur : timer start|stop|toggle|status</translation>
    </message>
    <message id="cli.command.travel">
      <source>Your rate per kilometre and how you usually travel: travel show|set</source>
      <translation>Votre tarif au kilomètre et votre moyen de transport habituel : travel show|set</translation>
    </message>
    <message id="cli.command.trips">
      <source>Trips and their kilometres: trips list|add|edit|rm|route|export</source>
      <translation>Trajets et leurs kilomètres : trips list|add|edit|rm|route|export</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Commandes :</translation>
    </message>
    <message id="cli.company.accent">
      <source>Accent colour</source>
      <translation>Couleur d’accent</translation>
    </message>
    <message id="cli.company.address">
      <source>Address</source>
      <translation>Adresse</translation>
    </message>
    <message id="cli.company.argument.action">
      <source>show or set</source>
      <translation>show ou set</translation>
    </message>
    <message id="cli.company.bank">
      <source>Bank</source>
      <translation>Banque</translation>
    </message>
    <message id="cli.company.cocNumber">
      <source>Chamber of commerce number</source>
      <translation>Numéro SIREN</translation>
    </message>
    <message id="cli.company.company">
      <source>Company</source>
      <translation>Entreprise</translation>
    </message>
    <message id="cli.company.days">
      <source>%1 days</source>
      <translation>%1 jours</translation>
    </message>
    <message id="cli.company.design">
      <source>Design</source>
      <translation>Modèle</translation>
    </message>
    <message id="cli.company.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="cli.company.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>Le délai de paiement est un nombre entier de jours entre 0 et 365.</translation>
    </message>
    <message id="cli.company.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>Le taux de TVA est un pourcentage entre 0 et 100.</translation>
    </message>
    <message id="cli.company.fileProblem">
      <source>%1: %2</source>
      <translation>%1 : %2</translation>
    </message>
    <message id="cli.company.fontBody">
      <source>Body font</source>
      <translation>Police du texte</translation>
    </message>
    <message id="cli.company.fontDisplay">
      <source>Display font</source>
      <translation>Police des titres</translation>
    </message>
    <message id="cli.company.footer">
      <source>Footer</source>
      <translation>Pied de page</translation>
    </message>
    <message id="cli.company.iban">
      <source>Bank account (IBAN)</source>
      <translation>Compte bancaire (IBAN)</translation>
    </message>
    <message id="cli.company.ink">
      <source>Ink colour</source>
      <translation>Couleur du texte</translation>
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
      <translation>défini, mais illisible</translation>
    </message>
    <message id="cli.company.none">
      <source>No sender details yet. Set them with: morvane company set --company NAME --address TEXT ...</source>
      <translation>Aucune coordonnée d’expéditeur pour l’instant. Définissez-les avec : morvane company set --company NOM --address TEXTE ...</translation>
    </message>
    <message id="cli.company.option.design">
      <source>The design new invoices are drawn in.</source>
      <translation>Le modèle des nouvelles factures.</translation>
    </message>
    <message id="cli.company.option.field">
      <source>Sets: %1. An empty value clears it.</source>
      <translation>Définit : %1. Une valeur vide l’efface.</translation>
    </message>
    <message id="cli.company.option.help">
      <source>Show this help.</source>
      <translation>Afficher cette aide.</translation>
    </message>
    <message id="cli.company.option.logo">
      <source>A PNG or JPEG of at most 1 MB; an empty value removes the logo.</source>
      <translation>Un PNG ou JPEG de 1 Mo au plus ; une valeur vide retire le logo.</translation>
    </message>
    <message id="cli.company.option.paymentDays">
      <source>Days the client has to pay.</source>
      <translation>Jours dont le client dispose pour payer.</translation>
    </message>
    <message id="cli.company.option.template">
      <source>Your own HTML template; new invoices use it unless --design says otherwise.</source>
      <translation>Votre propre modèle HTML ; les nouvelles factures l’utilisent, sauf si --design en décide autrement.</translation>
    </message>
    <message id="cli.company.option.vatRate">
      <source>VAT percentage of lines whose price has none.</source>
      <translation>Taux de TVA des lignes qui n’en ont pas.</translation>
    </message>
    <message id="cli.company.paymentDays">
      <source>Payment terms</source>
      <translation>Délai de paiement</translation>
    </message>
    <message id="cli.company.phone">
      <source>Phone</source>
      <translation>Téléphone</translation>
    </message>
    <message id="cli.company.saved">
      <source>Sender details and invoice style saved.</source>
      <translation>Coordonnées d’expéditeur et style des factures enregistrés.</translation>
    </message>
    <message id="cli.company.template">
      <source>Custom template</source>
      <translation>Modèle personnalisé</translation>
    </message>
    <message id="cli.company.templateFallsBack">
      <source>not used, invoices fall back to %1: %2</source>
      <translation>non utilisé, les factures reprennent %1 : %2</translation>
    </message>
    <message id="cli.company.templateStatus">
      <source>Custom template: %1</source>
      <translation>Modèle personnalisé : %1</translation>
    </message>
    <message id="cli.company.templateUsed">
      <source>used</source>
      <translation>utilisé</translation>
    </message>
    <message id="cli.company.unknownDesign">
      <source>Unknown design: %1. The designs are: %2 (aiCustom is your own template).</source>
      <translation>Modèle inconnu : %1. Les modèles sont : %2 (aiCustom est votre propre modèle).</translation>
    </message>
    <message id="cli.company.usage">
      <source>Usage: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</source>
      <translation>Usage : morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</translation>
    </message>
    <message id="cli.company.vatNumber">
      <source>VAT number</source>
      <translation>Numéro de TVA</translation>
    </message>
    <message id="cli.company.vatRate">
      <source>Default VAT rate</source>
      <translation>Taux de TVA par défaut</translation>
    </message>
    <message id="cli.company.website">
      <source>Website</source>
      <translation>Site web</translation>
    </message>
    <message id="cli.config.json">
      <source>Print the setting as JSON.</source>
      <translation>Afficher le réglage au format JSON.</translation>
    </message>
    <message id="cli.config.key">
      <source>Anonymous key</source>
      <translation>Clé anonyme</translation>
    </message>
    <message id="cli.config.keyMissing">
      <source>not set</source>
      <translation>non défini</translation>
    </message>
    <message id="cli.config.url">
      <source>Backend address</source>
      <translation>Adresse du serveur</translation>
    </message>
    <message id="cli.description">
      <source>Morvane tracks working time on projects and tasks and turns it into invoices.</source>
      <translation>Morvane suit le temps de travail sur les projets et les tâches et le transforme en factures.</translation>
    </message>
    <message id="cli.earnings.backwards">
      <source>The period ends before it begins.</source>
      <translation>La période se termine avant de commencer.</translation>
    </message>
    <message id="cli.earnings.badBy">
      <source>--by takes week, month or project, not "%1".</source>
      <translation>--by accepte week, month ou project, pas « %1 ».</translation>
    </message>
    <message id="cli.earnings.badDay">
      <source>"%1" is not a day; write it as yyyy-MM-dd, for example 2026-01-31.</source>
      <translation>« %1 » n'est pas un jour ; écrivez-le sous la forme aaaa-MM-jj, par exemple 2026-01-31.</translation>
    </message>
    <message id="cli.earnings.column.billed">
      <source>Billed</source>
      <translation>Facturé</translation>
    </message>
    <message id="cli.earnings.column.earned">
      <source>Earned</source>
      <translation>Gagné</translation>
    </message>
    <message id="cli.earnings.column.hours">
      <source>Hours</source>
      <translation>Heures</translation>
    </message>
    <message id="cli.earnings.column.period">
      <source>Period</source>
      <translation>Période</translation>
    </message>
    <message id="cli.earnings.column.project">
      <source>Project</source>
      <translation>Projet</translation>
    </message>
    <message id="cli.earnings.column.rate">
      <source>Per hour</source>
      <translation>Par heure</translation>
    </message>
    <message id="cli.earnings.column.unbilled">
      <source>Unbilled</source>
      <translation>Non facturé</translation>
    </message>
    <message id="cli.earnings.halfPeriod">
      <source>Give both --from and --to, or neither for the current month.</source>
      <translation>Indiquez --from et --to ensemble, ou aucun des deux pour le mois en cours.</translation>
    </message>
    <message id="cli.earnings.heading">
      <source>Earnings from %1 to %2</source>
      <translation>Revenus du %1 au %2</translation>
    </message>
    <message id="cli.earnings.noProject">
      <source>No project</source>
      <translation>Sans projet</translation>
    </message>
    <message id="cli.earnings.none">
      <source>No time tracked in this period.</source>
      <translation>Aucun temps enregistré sur cette période.</translation>
    </message>
    <message id="cli.earnings.option.by">
      <source>Rows by week, month (the default) or project.</source>
      <translation>Lignes par semaine, mois (par défaut) ou projet.</translation>
    </message>
    <message id="cli.earnings.option.from">
      <source>First day of the period (yyyy-MM-dd); with --to. Without both, the current month.</source>
      <translation>Premier jour de la période (aaaa-MM-jj) ; avec --to. Sans les deux : le mois en cours.</translation>
    </message>
    <message id="cli.earnings.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Dernier jour de la période (aaaa-MM-jj), inclus.</translation>
    </message>
    <message id="cli.earnings.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="cli.earnings.usage">
      <source>Usage: morvane earnings [--from DAY --to DAY] [--by week|month|project] [--json]</source>
      <translation>Utilisation : morvane earnings [--from JOUR --to JOUR] [--by week|month|project] [--json]</translation>
    </message>
    <message id="cli.entries.badRange">
      <source>An entry must end after it starts.</source>
      <translation>Une entrée doit se terminer après son début.</translation>
    </message>
    <message id="cli.entries.deleted">
      <source>Deleted the entry of %1.</source>
      <translation>L’entrée de %1 a été supprimée.</translation>
    </message>
    <message id="cli.entries.noMatch">
      <source>No single time entry matches "%1". List them with: morvane entries --task &lt;task&gt;</source>
      <translation>Aucune entrée unique ne correspond à « %1 ». Listez-les avec : morvane entries --task &lt;task&gt;</translation>
    </message>
    <message id="cli.entries.none">
      <source>No time entries.</source>
      <translation>Aucune entrée de temps.</translation>
    </message>
    <message id="cli.entries.option.end">
      <source>The new end (ISO 8601, local time without an offset).</source>
      <translation>La nouvelle fin (ISO 8601, heure locale sans décalage).</translation>
    </message>
    <message id="cli.entries.option.minutes">
      <source>The new length in minutes.</source>
      <translation>La nouvelle durée en minutes.</translation>
    </message>
    <message id="cli.entries.option.start">
      <source>The new start (ISO 8601, local time without an offset).</source>
      <translation>Le nouveau début (ISO 8601, heure locale sans décalage).</translation>
    </message>
    <message id="cli.entries.option.task">
      <source>Only the entries of this task, older ones included.</source>
      <translation>Seulement les entrées de cette tâche, y compris les plus anciennes.</translation>
    </message>
    <message id="cli.entries.total">
      <source>In all: %1</source>
      <translation>Au total : %1</translation>
    </message>
    <message id="cli.entries.usage">
      <source>Usage: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</source>
      <translation>Utilisation : morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</translation>
    </message>
    <message id="cli.err.noSignInWaiting">
      <source>No sign-in is waiting for this address. Start the sign-in in Morvane again.</source>
      <translation>Aucune connexion n’attend cette adresse. Relancez la connexion dans Morvane.</translation>
    </message>
    <message id="cli.err.notSignedIn">
      <source>Not signed in. Sign in with: morvane auth signin &lt;e-mail&gt;</source>
      <translation>Non connecté. Connectez-vous avec : morvane auth signin &lt;e-mail&gt;</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Commande inconnue : %1. Lancez morvane --help pour la liste des commandes.</translation>
    </message>
    <message id="cli.export.argument.kind">
      <source>What to export: entries or invoices.</source>
      <translation>Ce qui est exporté : entries (temps saisis) ou invoices (factures).</translation>
    </message>
    <message id="cli.export.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Premier jour de la période (aaaa-MM-jj).</translation>
    </message>
    <message id="cli.export.option.help">
      <source>Show this help.</source>
      <translation>Afficher cette aide.</translation>
    </message>
    <message id="cli.export.option.out">
      <source>The CSV file to write; without it the CSV goes to standard output.</source>
      <translation>Le fichier CSV à écrire ; sans lui, le CSV part sur la sortie standard.</translation>
    </message>
    <message id="cli.export.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Dernier jour de la période (aaaa-MM-jj), inclus.</translation>
    </message>
    <message id="cli.export.usage">
      <source>Usage: morvane export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Utilisation : morvane export entries|invoices --from JOUR --to JOUR [--out FICHIER]</translation>
    </message>
    <message id="cli.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message id="cli.export.written">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 enregistré (lignes : %2).</translation>
    </message>
    <message id="cli.invoice.ambiguous">
      <source>Several invoices match %1; give more of the id or the number.</source>
      <translation>Plusieurs factures correspondent à %1 ; donnez davantage de l'identifiant ou le numéro.</translation>
    </message>
    <message id="cli.invoice.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Facture %1 supprimée ; ses heures sont de nouveau non facturées.</translation>
    </message>
    <message id="cli.invoice.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>Le PDF n'a pas pu être téléchargé : %1</translation>
    </message>
    <message id="cli.invoice.draftEmpty">
      <source>No unbilled time of %1 in this period.</source>
      <translation>Aucun temps non facturé de %1 sur cette période.</translation>
    </message>
    <message id="cli.invoice.due">
      <source>, due %1</source>
      <translation>, échéance %1</translation>
    </message>
    <message id="cli.invoice.header">
      <source>Invoice %1 (%2), issued %3</source>
      <translation>Facture %1 (%2), émise le %3</translation>
    </message>
    <message id="cli.invoice.none">
      <source>No invoices yet.</source>
      <translation>Pas encore de factures.</translation>
    </message>
    <message id="cli.invoice.notFound">
      <source>No invoice matches %1.</source>
      <translation>Aucune facture ne correspond à %1.</translation>
    </message>
    <message id="cli.invoice.option.client">
      <source>Bill-to name on the new invoice.</source>
      <translation>Nom du destinataire sur la nouvelle facture.</translation>
    </message>
    <message id="cli.invoice.option.design">
      <source>The design of the new invoice, instead of the one in your invoice style.</source>
      <translation>Le modèle de la nouvelle facture, à la place de celui de votre style.</translation>
    </message>
    <message id="cli.invoice.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Premier jour de la période (aaaa-MM-jj).</translation>
    </message>
    <message id="cli.invoice.option.out">
      <source>The file to write the PDF to.</source>
      <translation>Le fichier où écrire le PDF.</translation>
    </message>
    <message id="cli.invoice.option.status">
      <source>Status of the new invoice: draft or sent.</source>
      <translation>Statut de la nouvelle facture : draft ou sent.</translation>
    </message>
    <message id="cli.invoice.option.to">
      <source>Last day of the period (yyyy-MM-dd).</source>
      <translation>Dernier jour de la période (aaaa-MM-jj).</translation>
    </message>
    <message id="cli.invoice.option.vat">
      <source>VAT percentage for lines whose price has none.</source>
      <translation>Taux de TVA des lignes dont le prix n'en a pas.</translation>
    </message>
    <message id="cli.invoice.pdfReplaced">
      <source>The PDF of invoice %1 was made again.</source>
      <translation>Le PDF de la facture %1 a été refait.</translation>
    </message>
    <message id="cli.invoice.pdfSaved">
      <source>Saved the PDF of invoice %1 to %2.</source>
      <translation>Le PDF de la facture %1 a été enregistré dans %2.</translation>
    </message>
    <message id="cli.invoice.status.draft">
      <source>draft</source>
      <translation>brouillon</translation>
    </message>
    <message id="cli.invoice.status.paid">
      <source>paid</source>
      <translation>payée</translation>
    </message>
    <message id="cli.invoice.status.sent">
      <source>sent</source>
      <translation>envoyée</translation>
    </message>
    <message id="cli.invoice.status.void">
      <source>void</source>
      <translation>annulée</translation>
    </message>
    <message id="cli.invoice.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>La facture %1 est maintenant %2.</translation>
    </message>
    <message id="cli.invoice.subtotal">
      <source>Subtotal</source>
      <translation>Sous-total</translation>
    </message>
    <message id="cli.invoice.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="cli.invoice.usage">
      <source>Usage: morvane invoice draft|create &lt;project&gt; [--from DAY] [--to DAY] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;invoice&gt; | status &lt;invoice&gt; draft|sent|paid|void | void &lt;invoice&gt; | rm &lt;invoice&gt; | pdf &lt;invoice&gt; --out FILE | replace-pdf &lt;invoice&gt; [--json]</source>
      <translation>Usage : morvane invoice draft|create &lt;projet&gt; [--from JOUR] [--to JOUR] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;facture&gt; | status &lt;facture&gt; draft|sent|paid|void | void &lt;facture&gt; | rm &lt;facture&gt; | pdf &lt;facture&gt; --out FICHIER | replace-pdf &lt;facture&gt; [--json]</translation>
    </message>
    <message id="cli.invoice.vat">
      <source>VAT</source>
      <translation>TVA</translation>
    </message>
    <message id="cli.invoice.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>La facture %1 est annulée ; ses heures sont de nouveau non facturées.</translation>
    </message>
    <message id="cli.invoice.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Impossible d'écrire %1 : %2</translation>
    </message>
    <message id="cli.log.logged">
      <source>Logged %1 on %2, %3 in all.</source>
      <translation>%1 enregistré sur %2, %3 au total.</translation>
    </message>
    <message id="cli.log.usage">
      <source>Usage: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</source>
      <translation>Utilisation : morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>Afficher cette aide.</translation>
    </message>
    <message id="cli.option.json">
      <source>Print the answer as JSON.</source>
      <translation>Afficher la réponse au format JSON.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Afficher la version.</translation>
    </message>
    <message id="cli.price.invalid">
      <source>Not a valid amount, or a required one is missing: %1</source>
      <translation>Montant non valide, ou un montant obligatoire manque : %1</translation>
    </message>
    <message id="cli.price.option.amount">
      <source>A number as you write it (1250, 1.250,50, 12.5); empty clears it.</source>
      <translation>Un nombre tel que vous l’écrivez (1250, 1.250,50, 12.5) ; vide l’efface.</translation>
    </message>
    <message id="cli.price.option.discountAmount">
      <source>The discount is an amount.</source>
      <translation>La remise est un montant.</translation>
    </message>
    <message id="cli.price.option.discountPct">
      <source>The discount is a percentage.</source>
      <translation>La remise est un pourcentage.</translation>
    </message>
    <message id="cli.price.option.inherit">
      <source>The task bills at its project's price again.</source>
      <translation>La tâche est de nouveau facturée au prix de son projet.</translation>
    </message>
    <message id="cli.price.option.model">
      <source>The billing model: hourly, fixed, per_unit or daily.</source>
      <translation>Le mode de facturation : hourly, fixed, per_unit ou daily.</translation>
    </message>
    <message id="cli.price.option.surchargeLabel">
      <source>Label of the surcharge.</source>
      <translation>Libellé du supplément.</translation>
    </message>
    <message id="cli.price.option.task">
      <source>The task whose own price to show or set, instead of a project's.</source>
      <translation>La tâche dont afficher ou définir le prix propre, au lieu de celui d’un projet.</translation>
    </message>
    <message id="cli.price.option.travel">
      <source>How the project charges its trips: per_km, per_trip or none.</source>
      <translation>Comment le projet facture ses trajets : per_km, per_trip ou none.</translation>
    </message>
    <message id="cli.price.option.travelRate">
      <source>The travel rate per kilometre or per trip; without it, per kilometre bills at your own rate.</source>
      <translation>Le tarif par kilomètre ou par trajet ; sans lui, le kilomètre est facturé à votre propre tarif.</translation>
    </message>
    <message id="cli.price.option.unitLabel">
      <source>Name of the unit of a per-unit price.</source>
      <translation>Nom de l’unité d’un prix à l’unité.</translation>
    </message>
    <message id="cli.price.unchanged">
      <source>Nothing changed.</source>
      <translation>Rien n’a changé.</translation>
    </message>
    <message id="cli.price.usage">
      <source>Usage: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</source>
      <translation>Utilisation : morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</translation>
    </message>
    <message id="cli.price.worth">
      <source>Tracked %1, worth %2.</source>
      <translation>Temps suivi %1, valeur %2.</translation>
    </message>
    <message id="cli.projects.active">
      <source>active</source>
      <translation>actif</translation>
    </message>
    <message id="cli.projects.added">
      <source>Added project %1 (%2).</source>
      <translation>Projet %1 (%2) ajouté.</translation>
    </message>
    <message id="cli.projects.archived">
      <source>archived</source>
      <translation>archivé</translation>
    </message>
    <message id="cli.projects.archivedIdle">
      <source>Idle projects archived: %1.</source>
      <translation>Projets inactifs archivés : %1.</translation>
    </message>
    <message id="cli.projects.archivedOne">
      <source>Archived %1.</source>
      <translation>%1 archivé.</translation>
    </message>
    <message id="cli.projects.completed">
      <source>completed</source>
      <translation>terminé</translation>
    </message>
    <message id="cli.projects.deleted">
      <source>Deleted %1 and its tasks.</source>
      <translation>%1 et ses tâches supprimés.</translation>
    </message>
    <message id="cli.projects.none">
      <source>No projects yet. Add one with: morvane projects add &lt;name&gt;</source>
      <translation>Aucun projet pour l’instant. Ajoutez-en un avec : morvane projects add &lt;name&gt;</translation>
    </message>
    <message id="cli.projects.option.description">
      <source>A description of the project.</source>
      <translation>Une description du projet.</translation>
    </message>
    <message id="cli.projects.option.idle">
      <source>Archive every project of yours without work for this many days.</source>
      <translation>Archive tous vos projets sans travail depuis ce nombre de jours.</translation>
    </message>
    <message id="cli.projects.option.team">
      <source>The team the new project belongs to.</source>
      <translation>L’équipe à laquelle appartient le nouveau projet.</translation>
    </message>
    <message id="cli.projects.renamed">
      <source>Renamed %1 to %2.</source>
      <translation>%1 renommé en %2.</translation>
    </message>
    <message id="cli.projects.taskCount">
      <source>tasks: %1</source>
      <translation>tâches : %1</translation>
    </message>
    <message id="cli.projects.team">
      <source>team %1</source>
      <translation>équipe %1</translation>
    </message>
    <message id="cli.projects.usage">
      <source>Usage: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</source>
      <translation>Utilisation : morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</translation>
    </message>
    <message id="cli.recap.usage">
      <source>Usage: morvane recap [--lang L] [--yes] [--json]</source>
      <translation>Utilisation : morvane recap [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.ref.ambiguous">
      <source>"%1" matches several: %2. Use the id.</source>
      <translation>« %1 » correspond à plusieurs éléments : %2. Utilisez l’identifiant.</translation>
    </message>
    <message id="cli.ref.noInvitation">
      <source>No invitation to a team matches "%1". See them with: morvane teams invitations</source>
      <translation>Aucune invitation à une équipe ne correspond à « %1 ». Consultez-les avec : morvane teams invitations</translation>
    </message>
    <message id="cli.ref.noProject">
      <source>No project matches "%1".</source>
      <translation>Aucun projet ne correspond à « %1 ».</translation>
    </message>
    <message id="cli.ref.noTask">
      <source>No task matches "%1".</source>
      <translation>Aucune tâche ne correspond à « %1 ».</translation>
    </message>
    <message id="cli.ref.noTeam">
      <source>No team matches "%1".</source>
      <translation>Aucune équipe ne correspond à « %1 ».</translation>
    </message>
    <message id="cli.renderInvoice.design">
      <source>With --render-invoice: the design (%1).</source>
      <translation>Avec --render-invoice : le modèle (%1).</translation>
    </message>
    <message id="cli.renderInvoice.draft">
      <source>With --render-invoice: an invoice as JSON instead of the sample.</source>
      <translation>Avec --render-invoice : une facture en JSON au lieu de l’exemple.</translation>
    </message>
    <message id="cli.renderInvoice.err.both">
      <source>--lines is for the sample invoice; a draft brings its own lines.</source>
      <translation>--lines sert à la facture d’exemple ; un brouillon apporte ses propres lignes.</translation>
    </message>
    <message id="cli.renderInvoice.err.design">
      <source>Unknown design: %1. Choose one of: %2.</source>
      <translation>Modèle inconnu : %1. Choisissez parmi : %2.</translation>
    </message>
    <message id="cli.renderInvoice.err.draft">
      <source>Cannot read the draft %1: %2</source>
      <translation>Impossible de lire le brouillon %1 : %2</translation>
    </message>
    <message id="cli.renderInvoice.err.failed">
      <source>Rendering the invoice failed: %1</source>
      <translation>La production de la facture a échoué : %1</translation>
    </message>
    <message id="cli.renderInvoice.err.lines">
      <source>--lines takes a whole number from 0 to %1.</source>
      <translation>--lines attend un nombre entier de 0 à %1.</translation>
    </message>
    <message id="cli.renderInvoice.err.noGui">
      <source>Rendering an invoice needs the graphical libraries; run it as: morvane --render-invoice</source>
      <translation>La production d’une facture exige les bibliothèques graphiques ; lancez-la ainsi : morvane --render-invoice</translation>
    </message>
    <message id="cli.renderInvoice.err.write">
      <source>Cannot write %1: %2</source>
      <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message id="cli.renderInvoice.lines">
      <source>With --render-invoice: the number of lines of the sample invoice.</source>
      <translation>Avec --render-invoice : le nombre de lignes de la facture d’exemple.</translation>
    </message>
    <message id="cli.renderInvoice.option">
      <source>Render an invoice to PDF through the application's own path and report its size.</source>
      <translation>Produire le PDF d’une facture par le chemin de l’application et indiquer sa taille.</translation>
    </message>
    <message id="cli.renderInvoice.out">
      <source>With --render-invoice: where to write the PDF.</source>
      <translation>Avec --render-invoice : où écrire le PDF.</translation>
    </message>
    <message id="cli.renderInvoice.png">
      <source>With --render-invoice: a folder for pictures of the pages as PNG.</source>
      <translation>Avec --render-invoice : un dossier pour les images des pages en PNG.</translation>
    </message>
    <message id="cli.server.action">
      <source>start, stop or status</source>
      <translation>start, stop ou status</translation>
    </message>
    <message id="cli.server.dataDir">
      <source>Data folder: %1</source>
      <translation>Dossier de données : %1</translation>
    </message>
    <message id="cli.server.notInUse">
      <source>Morvane uses %1 (%2), not the local backend.</source>
      <translation>Morvane utilise %1 (%2), pas le serveur local.</translation>
    </message>
    <message id="cli.server.running">
      <source>The local backend is running at %1 (process %2).</source>
      <translation>Le serveur local tourne à l'adresse %1 (processus %2).</translation>
    </message>
    <message id="cli.server.started">
      <source>Started the local backend at %1 (process %2).</source>
      <translation>Serveur local démarré à l'adresse %1 (processus %2).</translation>
    </message>
    <message id="cli.server.starting">
      <source>The local backend (process %1) is starting and does not answer yet.</source>
      <translation>Le serveur local (processus %1) démarre et ne répond pas encore.</translation>
    </message>
    <message id="cli.server.stopped">
      <source>The local backend is not running.</source>
      <translation>Le serveur local ne tourne pas.</translation>
    </message>
    <message id="cli.server.stoppedNow">
      <source>Stopped the local backend (process %1).</source>
      <translation>Serveur local arrêté (processus %1).</translation>
    </message>
    <message id="cli.server.usage">
      <source>Usage: morvane server start|stop|status [--json]</source>
      <translation>Utilisation : morvane server start|stop|status [--json]</translation>
    </message>
    <message id="cli.sessions.burst">
      <source>%1. %2 to %3 · active %4 · prompts: %5 · %6</source>
      <translation>%1. %2 à %3 · actif %4 · invites : %5 · %6</translation>
    </message>
    <message id="cli.sessions.err.days">
      <source>--days takes a whole number of days from 1 to 36500.</source>
      <translation>--days attend un nombre entier de jours de 1 à 36500.</translation>
    </message>
    <message id="cli.sessions.err.unknownSession">
      <source>No session %1 among the logs of the last 60 days.</source>
      <translation>Aucune session %1 dans les journaux des 60 derniers jours.</translation>
    </message>
    <message id="cli.sessions.group">
      <source>%1 · sessions: %2 · active %3</source>
      <translation>%1 · sessions : %2 · actif %3</translation>
    </message>
    <message id="cli.sessions.ignored">
      <source>Ignored %1: %2 sessions there will not be logged.</source>
      <translation>%1 ignoré : %2 sessions n'y seront pas enregistrées.</translation>
    </message>
    <message id="cli.sessions.mapped">
      <source>%1 is mapped to project %2.</source>
      <translation>%1 est associé au projet %2.</translation>
    </message>
    <message id="cli.sessions.none">
      <source>No Claude sessions parsed yet</source>
      <translation>Aucune session Claude analysée pour l'instant</translation>
    </message>
    <message id="cli.sessions.option.all">
      <source>Every session (with reimport).</source>
      <translation>Toutes les sessions (avec reimport).</translation>
    </message>
    <message id="cli.sessions.option.days">
      <source>Sessions whose log changed in the last N days (30 when not given).</source>
      <translation>Sessions dont le journal a changé ces N derniers jours (30 par défaut).</translation>
    </message>
    <message id="cli.sessions.pending">
      <source>Not mapped to a project: %1 · sessions: %2 · active %3</source>
      <translation>Non associé à un projet : %1 · sessions : %2 · actif %3</translation>
    </message>
    <message id="cli.sessions.reimportAll">
      <source>Every session will be logged again by the next scan.</source>
      <translation>Toutes les sessions seront de nouveau enregistrées au prochain passage.</translation>
    </message>
    <message id="cli.sessions.reimportLogged">
      <source>Session %1 logged again: %2 of %3 work bursts.</source>
      <translation>Session %1 enregistrée de nouveau : %2 blocs de travail sur %3.</translation>
    </message>
    <message id="cli.sessions.reimportOne">
      <source>Session %1 will be logged again by the next scan.</source>
      <translation>La session %1 sera de nouveau enregistrée au prochain passage.</translation>
    </message>
    <message id="cli.sessions.scanned">
      <source>Sessions seen: %1 · work bursts logged: %2 · time logged: %3 (%4 minutes) · failed: %5</source>
      <translation>Sessions vues : %1 · blocs de travail enregistrés : %2 · temps enregistré : %3 (%4 minutes) · échecs : %5</translation>
    </message>
    <message id="cli.sessions.session">
      <source>%1 · %2 to %3 · active %4 · prompts: %5</source>
      <translation>%1 · %2 à %3 · actif %4 · invites : %5</translation>
    </message>
    <message id="cli.sessions.trackOff">
      <source>Claude sessions are no longer tracked.</source>
      <translation>Les sessions Claude ne sont plus suivies.</translation>
    </message>
    <message id="cli.sessions.trackOn">
      <source>Claude sessions are tracked: every minute the new work bursts of mapped folders are logged.</source>
      <translation>Les sessions Claude sont suivies : chaque minute, les nouveaux blocs de travail des dossiers associés sont enregistrés.</translation>
    </message>
    <message id="cli.sessions.usage">
      <source>Usage: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</source>
      <translation>Utilisation : morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</translation>
    </message>
    <message id="cli.sessions.where">
      <source>Looked for logs changed in the last %1 days in %2.</source>
      <translation>Recherche des journaux modifiés ces %1 derniers jours dans %2.</translation>
    </message>
    <message id="cli.standup.usage">
      <source>Usage: morvane standup [--lang L] [--yes] [--json]</source>
      <translation>Utilisation : morvane standup [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.summary.fixed">
      <source>Written from your figures alone; the model's text was not used (%1).</source>
      <translation>Rédigé à partir de vos seuls chiffres ; le texte du modèle n'a pas été utilisé (%1).</translation>
    </message>
    <message id="cli.summary.option.lang">
      <source>Language of the text: en, nl, de, fr, es, it, pt, ja or th; others mean English. Default: the interface language.</source>
      <translation>Langue du texte : en, nl, de, fr, es, it, pt, ja ou th ; toute autre donne l'anglais. Par défaut : la langue de l'interface.</translation>
    </message>
    <message id="cli.tasks.added">
      <source>Added task %1 (%2) to %3.</source>
      <translation>Tâche %1 (%2) ajoutée à %3.</translation>
    </message>
    <message id="cli.tasks.badDue">
      <source>Not a day: %1. Write it as YYYY-MM-DD.</source>
      <translation>Pas une date : %1. Écrivez-la sous la forme YYYY-MM-DD.</translation>
    </message>
    <message id="cli.tasks.badOrder">
      <source>Unknown filter or sort. Filters: %1. Sorts: %2.</source>
      <translation>Filtre ou tri inconnu. Filtres : %1. Tris : %2.</translation>
    </message>
    <message id="cli.tasks.badStatus">
      <source>Unknown status %1. Statuses: %2.</source>
      <translation>Statut inconnu %1. Statuts : %2.</translation>
    </message>
    <message id="cli.tasks.deleted">
      <source>Deleted %1.</source>
      <translation>%1 supprimée.</translation>
    </message>
    <message id="cli.tasks.due">
      <source>due %1</source>
      <translation>échéance %1</translation>
    </message>
    <message id="cli.tasks.high">
      <source>high</source>
      <translation>haute</translation>
    </message>
    <message id="cli.tasks.low">
      <source>low</source>
      <translation>basse</translation>
    </message>
    <message id="cli.tasks.medium">
      <source>medium</source>
      <translation>moyenne</translation>
    </message>
    <message id="cli.tasks.moved">
      <source>Moved %1 to %2.</source>
      <translation>%1 déplacée vers %2.</translation>
    </message>
    <message id="cli.tasks.none">
      <source>  No tasks to show.</source>
      <translation>  Aucune tâche à afficher.</translation>
    </message>
    <message id="cli.tasks.option.description">
      <source>The task's description; empty clears it.</source>
      <translation>La description de la tâche ; vide l’efface.</translation>
    </message>
    <message id="cli.tasks.option.due">
      <source>The day the task is due (YYYY-MM-DD); empty clears it.</source>
      <translation>Le jour d’échéance de la tâche (YYYY-MM-DD) ; vide l’efface.</translation>
    </message>
    <message id="cli.tasks.option.filter">
      <source>Which tasks to list: %1.</source>
      <translation>Quelles tâches lister : %1.</translation>
    </message>
    <message id="cli.tasks.option.sort">
      <source>How to order the list: %1.</source>
      <translation>Comment trier la liste : %1.</translation>
    </message>
    <message id="cli.tasks.option.title">
      <source>The task's new title.</source>
      <translation>Le nouveau titre de la tâche.</translation>
    </message>
    <message id="cli.tasks.running">
      <source>timer running</source>
      <translation>minuteur en cours</translation>
    </message>
    <message id="cli.tasks.saved">
      <source>Saved %1.</source>
      <translation>%1 enregistrée.</translation>
    </message>
    <message id="cli.tasks.statusSet">
      <source>%1 is now %2.</source>
      <translation>%1 est maintenant %2.</translation>
    </message>
    <message id="cli.tasks.usage">
      <source>Usage: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</source>
      <translation>Utilisation : morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</translation>
    </message>
    <message id="cli.teams.accepted">
      <source>You are now in team %1, as %2.</source>
      <translation>Vous faites maintenant partie de l'équipe %1, en tant que %2.</translation>
    </message>
    <message id="cli.teams.answerHint">
      <source>Answer with: morvane teams accept &lt;team&gt; or morvane teams decline &lt;team&gt;</source>
      <translation>Répondez avec : morvane teams accept &lt;team&gt; ou morvane teams decline &lt;team&gt;</translation>
    </message>
    <message id="cli.teams.assigned">
      <source>%1 now belongs to team %2.</source>
      <translation>%1 appartient maintenant à l’équipe %2.</translation>
    </message>
    <message id="cli.teams.created">
      <source>Created team %1 (%2).</source>
      <translation>Équipe %1 (%2) créée.</translation>
    </message>
    <message id="cli.teams.declined">
      <source>You declined the invitation to %1.</source>
      <translation>Vous avez refusé l'invitation à %1.</translation>
    </message>
    <message id="cli.teams.editor">
      <source>editor</source>
      <translation>éditeur</translation>
    </message>
    <message id="cli.teams.invitation">
      <source>%1 (%2): as %3, from %4</source>
      <translation>%1 (%2) : en tant que %3, de la part de %4</translation>
    </message>
    <message id="cli.teams.noInvitations">
      <source>No invitations wait for your answer.</source>
      <translation>Aucune invitation n'attend votre réponse.</translation>
    </message>
    <message id="cli.teams.none">
      <source>No teams. Create one with: morvane teams create &lt;name&gt;</source>
      <translation>Aucune équipe. Créez-en une avec : morvane teams create &lt;name&gt;</translation>
    </message>
    <message id="cli.teams.option.role">
      <source>The role of the invited member: editor or viewer.</source>
      <translation>Le rôle du membre invité : editor ou viewer.</translation>
    </message>
    <message id="cli.teams.owner">
      <source>owner</source>
      <translation>propriétaire</translation>
    </message>
    <message id="cli.teams.pending">
      <source>invited</source>
      <translation>invité</translation>
    </message>
    <message id="cli.teams.projects">
      <source>Projects: %1</source>
      <translation>Projets : %1</translation>
    </message>
    <message id="cli.teams.unassigned">
      <source>%1 no longer belongs to a team.</source>
      <translation>%1 n’appartient plus à aucune équipe.</translation>
    </message>
    <message id="cli.teams.usage">
      <source>Usage: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</source>
      <translation>Utilisation : morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</translation>
    </message>
    <message id="cli.teams.viewer">
      <source>viewer</source>
      <translation>lecteur</translation>
    </message>
    <message id="cli.teams.you">
      <source>you: %1</source>
      <translation>vous : %1</translation>
    </message>
    <message id="cli.timer.idle">
      <source>No timer runs.</source>
      <translation>Aucun minuteur en cours.</translation>
    </message>
    <message id="cli.timer.nothingToResume">
      <source>No task has time yet, so there is none to go on with. Start one with: morvane timer start &lt;task&gt;</source>
      <translation>Aucune tâche n'a encore de temps, il n'y en a donc aucune à reprendre. Démarrez-en une avec : morvane timer start &lt;task&gt;</translation>
    </message>
    <message id="cli.timer.running">
      <source>%1 (%2): %3 running, %4 in all</source>
      <translation>%1 (%2) : %3 en cours, %4 au total</translation>
    </message>
    <message id="cli.timer.started">
      <source>Timer started on %1.</source>
      <translation>Minuteur démarré sur %1.</translation>
    </message>
    <message id="cli.timer.stopped">
      <source>Stopped %1: %2 logged, %3 in all.</source>
      <translation>%1 arrêté : %2 enregistré, %3 au total.</translation>
    </message>
    <message id="cli.timer.usage">
      <source>Usage: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</source>
      <translation>Utilisation : morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</translation>
    </message>
    <message id="cli.travel.option.mode">
      <source>How you usually travel: car, bike, walk, transit or other.</source>
      <translation>Votre moyen habituel : car, bike, walk, transit ou other.</translation>
    </message>
    <message id="cli.travel.option.rate">
      <source>Your rate per kilometre, used where a project names none.</source>
      <translation>Votre tarif au kilomètre, pour les projets qui n'en ont pas.</translation>
    </message>
    <message id="cli.travel.show">
      <source>Rate per kilometre: %1. Usually travel by: %2.</source>
      <translation>Tarif au kilomètre : %1. Se déplace d'habitude en : %2.</translation>
    </message>
    <message id="cli.travel.usage">
      <source>Usage: morvane travel show | set [--rate R] [--mode M] [--json]</source>
      <translation>Usage : morvane travel show | set [--rate R] [--mode M] [--json]</translation>
    </message>
    <message id="cli.trips.added">
      <source>Added trip %1: %2 km.</source>
      <translation>Trajet %1 ajouté : %2 km.</translation>
    </message>
    <message id="cli.trips.deleted">
      <source>Deleted trip %1.</source>
      <translation>Trajet %1 supprimé.</translation>
    </message>
    <message id="cli.trips.exported">
      <source>Wrote %1 trips to %2.</source>
      <translation>%1 trajets écrits dans %2.</translation>
    </message>
    <message id="cli.trips.invoiced">
      <source>invoiced</source>
      <translation>facturé</translation>
    </message>
    <message id="cli.trips.needKm">
      <source>The distance is unknown: the places were not found. Give it with --km.</source>
      <translation>La distance est inconnue : les lieux n'ont pas été trouvés. Indiquez-la avec --km.</translation>
    </message>
    <message id="cli.trips.noMatch">
      <source>No single trip matches "%1". See them with: morvane trips list</source>
      <translation>Aucun trajet unique ne correspond à « %1 ». Voir la liste : morvane trips list</translation>
    </message>
    <message id="cli.trips.notCharged">
      <source>not charged</source>
      <translation>non facturé</translation>
    </message>
    <message id="cli.trips.option.date">
      <source>The day of the trip (YYYY-MM-DD).</source>
      <translation>Le jour du trajet (AAAA-MM-JJ).</translation>
    </message>
    <message id="cli.trips.option.from">
      <source>Where the trip started: an address, a place or "lat,lng"; for an export, the first day.</source>
      <translation>Le départ : une adresse, un lieu ou « lat,lng » ; pour un export, le premier jour.</translation>
    </message>
    <message id="cli.trips.option.km">
      <source>The distance in kilometres; without it the road route, else the straight-line estimate.</source>
      <translation>La distance en kilomètres ; sans elle, l'itinéraire routier, sinon l'estimation à vol d'oiseau.</translation>
    </message>
    <message id="cli.trips.option.mode">
      <source>car, bike, walk, transit or other.</source>
      <translation>car, bike, walk, transit ou other.</translation>
    </message>
    <message id="cli.trips.option.notBillable">
      <source>A business trip that is not charged to the client.</source>
      <translation>Un trajet professionnel non facturé au client.</translation>
    </message>
    <message id="cli.trips.option.out">
      <source>The CSV file to write.</source>
      <translation>Le fichier CSV à écrire.</translation>
    </message>
    <message id="cli.trips.option.private">
      <source>A private trip; never charged.</source>
      <translation>Un trajet privé ; jamais facturé.</translation>
    </message>
    <message id="cli.trips.option.project">
      <source>The project the trip served.</source>
      <translation>Le projet du trajet.</translation>
    </message>
    <message id="cli.trips.option.purpose">
      <source>What the trip was for.</source>
      <translation>Le motif du trajet.</translation>
    </message>
    <message id="cli.trips.option.task">
      <source>The task the trip served.</source>
      <translation>La tâche du trajet.</translation>
    </message>
    <message id="cli.trips.option.to">
      <source>Where the trip ended; for an export, the last day.</source>
      <translation>L'arrivée ; pour un export, le dernier jour.</translation>
    </message>
    <message id="cli.trips.placeUnknown">
      <source>No place was found for "%1".</source>
      <translation>Aucun lieu trouvé pour « %1 ».</translation>
    </message>
    <message id="cli.trips.private">
      <source>private</source>
      <translation>privé</translation>
    </message>
    <message id="cli.trips.saved">
      <source>Saved trip %1.</source>
      <translation>Trajet %1 enregistré.</translation>
    </message>
    <message id="cli.trips.usage">
      <source>Usage: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</source>
      <translation>Usage : morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</translation>
    </message>
    <message id="client.err.nameMissing">
      <source>A client needs a name.</source>
      <translation>Un client doit avoir un nom.</translation>
    </message>
    <message id="client.err.notCreated">
      <source>The client was not saved: you may not add clients to that team.</source>
      <translation>Le client n'a pas été enregistré : vous ne pouvez pas ajouter de clients à cette équipe.</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>Vos clients n’ont pas pu être chargés.</translation>
    </message>
    <message id="client.err.notSaved">
      <source>The client was not changed: you may not edit it, or it no longer exists.</source>
      <translation>Le client n'a pas été modifié : vous ne pouvez pas le modifier, ou il n'existe plus.</translation>
    </message>
    <message id="config.source.environment">
      <source>environment</source>
      <translation>environnement</translation>
    </message>
    <message id="config.source.local">
      <source>local backend</source>
      <translation>serveur local</translation>
    </message>
    <message id="config.source.settings">
      <source>application settings</source>
      <translation>réglages de l’application</translation>
    </message>
    <message id="entry.err.notLogged">
      <source>The time was not logged: you may not log time on this task, or it no longer exists.</source>
      <translation>Le temps n’a pas été enregistré : vous ne pouvez pas saisir de temps sur cette tâche, ou elle n’existe plus.</translation>
    </message>
    <message id="entry.err.notSaved">
      <source>The time entry was not saved: it is not yours or it no longer exists.</source>
      <translation>L’entrée de temps n’a pas été enregistrée : elle ne vous appartient pas ou n’existe plus.</translation>
    </message>
    <message id="errEmailNotConfirmed">
      <source>Confirm your e-mail address first: follow the link in the mail we sent you.</source>
      <translation>Confirmez d’abord votre adresse e-mail : suivez le lien du message que nous vous avons envoyé.</translation>
    </message>
    <message id="errEmailRateLimit">
      <source>Too many e-mails went to this address. Wait a minute, then try again.</source>
      <translation>Trop d’e-mails ont été envoyés à cette adresse. Attendez une minute, puis réessayez.</translation>
    </message>
    <message id="errInvalidCredentials">
      <source>The e-mail address or the password is not right.</source>
      <translation>L’adresse e-mail ou le mot de passe est incorrect.</translation>
    </message>
    <message id="inv.doc.amount">
      <source>Amount</source>
      <translation>Montant</translation>
    </message>
    <message id="inv.doc.amountDue">
      <source>Amount due</source>
      <translation>Montant dû</translation>
    </message>
    <message id="inv.doc.bank">
      <source>Bank</source>
      <translation>Banque</translation>
    </message>
    <message id="inv.doc.billTo">
      <source>Bill to</source>
      <translation>Facturé à</translation>
    </message>
    <message id="inv.doc.description">
      <source>Description</source>
      <translation>Désignation</translation>
    </message>
    <message id="inv.doc.due">
      <source>Due date</source>
      <translation>Échéance</translation>
    </message>
    <message id="inv.doc.from">
      <source>From</source>
      <translation>De</translation>
    </message>
    <message id="inv.doc.iban">
      <source>IBAN</source>
      <translation>IBAN</translation>
    </message>
    <message id="inv.doc.invoice">
      <source>Invoice</source>
      <translation>Facture</translation>
    </message>
    <message id="inv.doc.issued">
      <source>Issue date</source>
      <translation>Date d’émission</translation>
    </message>
    <message id="inv.doc.kvk">
      <source>Company no.</source>
      <translation>SIRET</translation>
    </message>
    <message id="inv.doc.noVat">
      <source>No VAT on these lines</source>
      <translation>Pas de TVA sur ces lignes</translation>
    </message>
    <message id="inv.doc.notes">
      <source>Notes</source>
      <translation>Remarques</translation>
    </message>
    <message id="inv.doc.number">
      <source>Invoice no.</source>
      <translation>Facture nº</translation>
    </message>
    <message id="inv.doc.payment">
      <source>Payment</source>
      <translation>Paiement</translation>
    </message>
    <message id="inv.doc.paymentNoTerm">
      <source>Please pay by bank transfer, quoting the invoice number.</source>
      <translation>Merci de régler par virement en indiquant le numéro de facture.</translation>
    </message>
    <message id="inv.doc.paymentTerms">
      <source>Please pay within %1 days, quoting the invoice number.</source>
      <translation>Merci de régler sous %1 jours en indiquant le numéro de facture.</translation>
    </message>
    <message id="inv.doc.period">
      <source>Period</source>
      <translation>Période</translation>
    </message>
    <message id="inv.doc.project">
      <source>Project</source>
      <translation>Projet</translation>
    </message>
    <message id="inv.doc.quantity">
      <source>Qty</source>
      <translation>Qté</translation>
    </message>
    <message id="inv.doc.rate">
      <source>Rate</source>
      <translation>Prix unitaire</translation>
    </message>
    <message id="inv.doc.reference">
      <source>Reference</source>
      <translation>Référence</translation>
    </message>
    <message id="inv.doc.subtotal">
      <source>Subtotal</source>
      <translation>Sous-total</translation>
    </message>
    <message id="inv.doc.thanks">
      <source>Thank you for your business.</source>
      <translation>Merci pour votre confiance.</translation>
    </message>
    <message id="inv.doc.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="inv.doc.vatId">
      <source>VAT no.</source>
      <translation>Nº TVA</translation>
    </message>
    <message id="inv.doc.vatRow">
      <source>VAT %1%</source>
      <translation>TVA %1 %</translation>
    </message>
    <message id="inv.doc.vatRowOver">
      <source>VAT %1% on %2</source>
      <translation>TVA %1 % sur %2</translation>
    </message>
    <message id="inv.err.allocateNumber">
      <source>Allocate invoice number failed: %1</source>
      <translation>Échec de l'attribution du numéro de facture : %1</translation>
    </message>
    <message id="inv.err.alreadyBilled">
      <source>Some of these hours are already on another invoice. The list was refreshed: check it and try again.</source>
      <translation>Certaines de ces heures figurent déjà sur une autre facture. La liste a été actualisée : vérifiez-la et réessayez.</translation>
    </message>
    <message id="inv.err.delete">
      <source>Delete invoice failed: %1</source>
      <translation>Échec de la suppression de la facture : %1</translation>
    </message>
    <message id="inv.err.loadInvoices">
      <source>Load invoices failed: %1</source>
      <translation>Échec du chargement des factures : %1</translation>
    </message>
    <message id="inv.err.loadLines">
      <source>Load invoice lines failed: %1</source>
      <translation>Échec du chargement des lignes de facture : %1</translation>
    </message>
    <message id="inv.err.notReady">
      <source>Still reading what was billed before.</source>
      <translation>Lecture de ce qui a déjà été facturé en cours.</translation>
    </message>
    <message id="inv.err.pdfLink">
      <source>The invoice PDF could not be opened: %1</source>
      <translation>Le PDF de la facture n'a pas pu être ouvert : %1</translation>
    </message>
    <message id="inv.err.pdfReplace">
      <source>The invoice PDF could not be replaced: %1</source>
      <translation>Le PDF de la facture n'a pas pu être remplacé : %1</translation>
    </message>
    <message id="inv.err.priorBilling">
      <source>Could not read which work was billed before. Billing waits until this works, so no fixed price or extra is billed twice.</source>
      <translation>Impossible de lire le travail déjà facturé. La facturation attend que cela fonctionne, afin qu'aucun prix fixe ni supplément ne soit facturé deux fois.</translation>
    </message>
    <message id="inv.err.saveFailed">
      <source>Save invoice failed: %1</source>
      <translation>Échec de l'enregistrement de la facture : %1</translation>
    </message>
    <message id="inv.err.unbilled">
      <source>Could not read which time is still unbilled.</source>
      <translation>Impossible de lire le temps encore non facturé.</translation>
    </message>
    <message id="inv.err.updateStatus">
      <source>Update invoice status failed: %1</source>
      <translation>Échec de la mise à jour du statut de la facture : %1</translation>
    </message>
    <message id="inv.err.voidFailed">
      <source>Voiding the invoice failed: %1</source>
      <translation>L'annulation de la facture a échoué : %1</translation>
    </message>
    <message id="inv.err.voidUnavailable">
      <source>Voiding is not available yet because the server has not been updated. Try again later.</source>
      <translation>L'annulation n'est pas encore disponible car le serveur n'a pas été mis à jour. Réessayez plus tard.</translation>
    </message>
    <message id="inv.extrasBilledBefore">
      <source>extras already billed</source>
      <translation>suppléments déjà facturés</translation>
    </message>
    <message id="inv.followUp">
      <source>FOLLOW-UP</source>
      <translation>SUITE</translation>
    </message>
    <message id="inv.inProjectPrice">
      <source>included in the project price</source>
      <translation>inclus dans le prix du projet</translation>
    </message>
    <message id="inv.leftOut.many">
      <source>%1 time entries already billed, left out</source>
      <translation>%1 saisies de temps déjà facturées, écartées</translation>
    </message>
    <message id="inv.leftOut.one">
      <source>1 time entry already billed, left out</source>
      <translation>1 saisie de temps déjà facturée, écartée</translation>
    </message>
    <message id="inv.line.discount">
      <source>Discount</source>
      <translation>Remise</translation>
    </message>
    <message id="inv.line.fixedPrice">
      <source>fixed price</source>
      <translation>prix fixe</translation>
    </message>
    <message id="inv.line.materials">
      <source>Materials</source>
      <translation>Matériel</translation>
    </message>
    <message id="inv.line.minimum">
      <source>Minimum charge</source>
      <translation>Montant minimum</translation>
    </message>
    <message id="inv.line.projectPrice">
      <source>Project price</source>
      <translation>Prix du projet</translation>
    </message>
    <message id="inv.line.surcharge">
      <source>Call-out fee</source>
      <translation>Frais de déplacement</translation>
    </message>
    <message id="inv.oncePerProject">
      <source>once per project</source>
      <translation>une fois par projet</translation>
    </message>
    <message id="inv.onlyNewTime">
      <source>new time only</source>
      <translation>nouveau temps uniquement</translation>
    </message>
    <message id="inv.pdf.err.load">
      <source>The invoice page could not be loaded.</source>
      <translation>La page de la facture n’a pas pu être chargée.</translation>
    </message>
    <message id="inv.pdf.err.paging">
      <source>The invoice could not be laid out in pages.</source>
      <translation>La facture n’a pas pu être mise en pages.</translation>
    </message>
    <message id="inv.pdf.err.print">
      <source>The PDF of the invoice could not be made.</source>
      <translation>Le PDF de la facture n’a pas pu être créé.</translation>
    </message>
    <message id="inv.pdf.err.spill">
      <source>The invoice page could not be written to a temporary file: %1</source>
      <translation>La page de la facture n’a pas pu être écrite dans un fichier temporaire : %1</translation>
    </message>
    <message id="inv.pdf.err.timeout">
      <source>The invoice page did not finish loading within %1 seconds.</source>
      <translation>La page de la facture n’a pas fini de se charger en %1 secondes.</translation>
    </message>
    <message id="inv.priceBilledBefore">
      <source>fixed price already billed</source>
      <translation>prix fixe déjà facturé</translation>
    </message>
    <message id="inv.projectExtras">
      <source>Project extras</source>
      <translation>Suppléments du projet</translation>
    </message>
    <message id="inv.rebill">
      <source>Bill again</source>
      <translation>Facturer à nouveau</translation>
    </message>
    <message id="inv.rebillHelp">
      <source>This work was billed before. Its fixed or per-unit price, minimum charge, call-out fee, materials and a fixed discount are billed once. Turn this on to bill them again.</source>
      <translation>Ce travail a déjà été facturé. Son prix fixe ou unitaire, le montant minimum, les frais de déplacement, le matériel et une remise fixe ne sont facturés qu'une fois. Activez cette option pour les facturer à nouveau.</translation>
    </message>
    <message id="inv.saved">
      <source>Invoice %1 saved</source>
      <translation>Facture %1 enregistrée</translation>
    </message>
    <message id="inv.style.colour.invalid">
      <source>“%1” is no colour: write it as #rgb or #rrggbb, for example #0f766e.</source>
      <translation>« %1 » n’est pas une couleur : écrivez-la sous la forme #rgb ou #rrggbb, par exemple #0f766e.</translation>
    </message>
    <message id="inv.style.file.unreadable">
      <source>The file could not be opened.</source>
      <translation>Impossible d’ouvrir le fichier.</translation>
    </message>
    <message id="inv.style.font.invalid">
      <source>A font name holds only letters, digits, blanks and hyphens.</source>
      <translation>Un nom de police ne contient que des lettres, des chiffres, des espaces et des tirets.</translation>
    </message>
    <message id="inv.style.logo.damaged">
      <source>The image could not be read; the file may be damaged.</source>
      <translation>Impossible de lire l’image ; le fichier est peut-être endommagé.</translation>
    </message>
    <message id="inv.style.logo.empty">
      <source>The file is empty.</source>
      <translation>Le fichier est vide.</translation>
    </message>
    <message id="inv.style.logo.kind">
      <source>The logo must be a PNG or JPEG image.</source>
      <translation>Le logo doit être une image PNG ou JPEG.</translation>
    </message>
    <message id="inv.style.logo.svg">
      <source>SVG logos are not accepted, since a drawing can carry scripts and links. Pick a PNG or JPEG.</source>
      <translation>Les logos SVG ne sont pas acceptés, car un dessin peut contenir des scripts et des liens. Choisissez un PNG ou un JPEG.</translation>
    </message>
    <message id="inv.style.logo.tooLarge">
      <source>The logo is larger than 1 MB. Pick a smaller PNG or JPEG.</source>
      <translation>Le logo dépasse 1 Mo. Choisissez un PNG ou un JPEG plus léger.</translation>
    </message>
    <message id="inv.style.template.empty">
      <source>The template is empty.</source>
      <translation>Le modèle est vide.</translation>
    </message>
    <message id="inv.style.template.noDoctype">
      <source>The template must start with &lt;!doctype html&gt;.</source>
      <translation>Le modèle doit commencer par &lt;!doctype html&gt;.</translation>
    </message>
    <message id="inv.style.template.noFooter">
      <source>The template has no &lt;footer&gt; element.</source>
      <translation>Le modèle n’a pas d’élément &lt;footer&gt;.</translation>
    </message>
    <message id="inv.style.template.noHeader">
      <source>The template has no &lt;header&gt; element.</source>
      <translation>Le modèle n’a pas d’élément &lt;header&gt;.</translation>
    </message>
    <message id="inv.style.template.notText">
      <source>The template is not a text file in UTF-8.</source>
      <translation>Le modèle n’est pas un fichier texte en UTF-8.</translation>
    </message>
    <message id="inv.style.template.pageSize">
      <source>The template must fix the page at 794 × 1123 px (A4), with both sizes in its style sheet.</source>
      <translation>Le modèle doit fixer la page à 794 × 1123 px (A4), avec les deux dimensions dans sa feuille de style.</translation>
    </message>
    <message id="inv.style.template.tooLarge">
      <source>The template is larger than 512 KB.</source>
      <translation>Le modèle dépasse 512 Ko.</translation>
    </message>
    <message id="inv.subtotal">
      <source>Subtotal</source>
      <translation>Sous-total</translation>
    </message>
    <message id="inv.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="inv.unit.days">
      <source>day</source>
      <translation>jour</translation>
    </message>
    <message id="inv.unit.hours">
      <source>h</source>
      <translation>h</translation>
    </message>
    <message id="inv.unit.units">
      <source>unit</source>
      <translation>unité</translation>
    </message>
    <message id="inv.vat.hint">
      <source>Each line uses the VAT rate of its price settings, else the template's rate.</source>
      <translation>Chaque ligne utilise le taux de TVA de son réglage de prix, sinon celui du modèle.</translation>
    </message>
    <message id="inv.vat.none">
      <source>No VAT on these lines</source>
      <translation>Pas de TVA sur ces lignes</translation>
    </message>
    <message id="inv.vat.override">
      <source>Set VAT manually</source>
      <translation>Définir la TVA manuellement</translation>
    </message>
    <message id="inv.vat.row">
      <source>VAT %1%</source>
      <translation>TVA %1 %</translation>
    </message>
    <message id="inv.vat.rowOver">
      <source>VAT %1% on %2</source>
      <translation>TVA %1 % sur %2</translation>
    </message>
    <message id="inviteAlreadyMember">
      <source>%1 is already in this team.</source>
      <translation>%1 fait déjà partie de cette équipe.</translation>
    </message>
    <message id="inviteFailed">
      <source>Could not send the invite. Try again.</source>
      <translation>Impossible d’envoyer l’invitation. Réessayez.</translation>
    </message>
    <message id="inviteNoAccount">
      <source>No Morvane account uses that email yet. Ask them to sign up first.</source>
      <translation>Aucun compte Morvane n’utilise encore cette adresse e-mail. Demandez à cette personne de s’inscrire d’abord.</translation>
    </message>
    <message id="inviteNotAllowed">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Seuls le propriétaire et les éditeurs de l’équipe peuvent inviter des personnes.</translation>
    </message>
    <message id="inviteRateLimited">
      <source>You have sent many invitations in the last hour. Try again later.</source>
      <translation>Vous avez envoyé de nombreuses invitations au cours de la dernière heure. Réessayez plus tard.</translation>
    </message>
    <message id="inviteSent">
      <source>%1 is invited to this team.</source>
      <translation>Invitation envoyée à %1 pour cette équipe.</translation>
    </message>
    <message id="inviteTeamFull">
      <source>This team is full: it already has 10 members, the maximum.</source>
      <translation>Cette équipe est complète : elle compte déjà 10 membres, le maximum.</translation>
    </message>
    <message id="inviteUnavailable">
      <source>Inviting by email is not available yet. Try again later.</source>
      <translation>L’invitation par e-mail n’est pas encore disponible. Réessayez plus tard.</translation>
    </message>
    <message id="invoiceErrTripsTaken">
      <source>Some of these trips are already on another invoice. Refresh and try again.</source>
      <translation>Certains de ces trajets figurent déjà sur une autre facture. Actualisez et réessayez.</translation>
    </message>
    <message id="invoiceErrVoidFinal">
      <source>This invoice is void. A void invoice cannot be changed back.</source>
      <translation>Cette facture est annulée. Une facture annulée ne peut pas être rétablie.</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Réalisé avec Morvane</translation>
    </message>
    <message id="invoicePeriodLast30">
      <source>Last 30 days</source>
      <translation>30 derniers jours</translation>
    </message>
    <message id="invoicePeriodLast7">
      <source>Last 7 days</source>
      <translation>7 derniers jours</translation>
    </message>
    <message id="invoicePeriodLastMonth">
      <source>Last month</source>
      <translation>Le mois dernier</translation>
    </message>
    <message id="invoicePeriodThisMonth">
      <source>This month</source>
      <translation>Ce mois-ci</translation>
    </message>
    <message id="invoiceTravelInclude">
      <source>Charge travel</source>
      <translation>Facturer les déplacements</translation>
    </message>
    <message id="localServer.err.dataFolder">
      <source>Cannot write the local backend's data folder %1.</source>
      <translation>Impossible d'écrire dans le dossier de données %1 du serveur local.</translation>
    </message>
    <message id="localServer.err.exited">
      <source>The local backend stopped before it was ready (log: %1).</source>
      <translation>Le serveur local s'est arrêté avant d'être prêt (journal : %1).</translation>
    </message>
    <message id="localServer.err.launch">
      <source>Cannot run the local backend %1.</source>
      <translation>Impossible d'exécuter le serveur local %1.</translation>
    </message>
    <message id="localServer.err.noProgram">
      <source>Cannot find the local backend: %1 is neither next to Morvane nor on the PATH.</source>
      <translation>Serveur local introuvable : %1 n'est ni à côté de Morvane ni dans le PATH.</translation>
    </message>
    <message id="localServer.err.notReady">
      <source>The local backend was not ready within %1 seconds (log: %2).</source>
      <translation>Le serveur local n'était pas prêt au bout de %1 secondes (journal : %2).</translation>
    </message>
    <message id="localServer.err.wouldNotStop">
      <source>The local backend (process %1) did not stop within %2 seconds.</source>
      <translation>Le serveur local (processus %1) ne s'est pas arrêté au bout de %2 secondes.</translation>
    </message>
    <message id="net.err.connection">
      <source>Could not reach the server: %1</source>
      <translation>Impossible de joindre le serveur : %1</translation>
    </message>
    <message id="net.err.offline">
      <source>The Internet connection appears to be offline.</source>
      <translation>La connexion Internet semble interrompue.</translation>
    </message>
    <message id="net.err.timeout">
      <source>The request timed out.</source>
      <translation>Le délai de la requête a expiré.</translation>
    </message>
    <message id="onboarding.err.notSaved">
      <source>Your first-run answers were not saved yet. Morvane tries again at the next sign-in.</source>
      <translation>Vos réponses du premier démarrage ne sont pas encore enregistrées. Morvane réessaiera à la prochaine connexion.</translation>
    </message>
    <message id="profile.err.notSaved">
      <source>Your profile was not saved. Try again.</source>
      <translation>Votre profil n’a pas été enregistré. Réessayez.</translation>
    </message>
    <message id="project.err.notCreated">
      <source>The project was not created: you may not add projects to that team.</source>
      <translation>Le projet n’a pas été créé : vous ne pouvez pas ajouter de projets à cette équipe.</translation>
    </message>
    <message id="project.err.notSaved">
      <source>The project was not changed: you may not edit it, or it no longer exists.</source>
      <translation>Le projet n’a pas été modifié : vous n’avez pas le droit de le modifier, ou il n’existe plus.</translation>
    </message>
    <message id="project.err.teamNotChanged">
      <source>The project's team was not changed: only its creator and the team's owners and editors can move it.</source>
      <translation>L’équipe du projet n’a pas été modifiée : seuls son créateur ainsi que les propriétaires et éditeurs de l’équipe peuvent le déplacer.</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Un problème est survenu. Réessayez.</translation>
    </message>
    <message id="store.err.loadFailed">
      <source>Your data could not be loaded. Morvane tries again shortly.</source>
      <translation>Vos données n’ont pas pu être chargées. Morvane réessaiera dans un instant.</translation>
    </message>
    <message id="store.err.writeFailed">
      <source>The change could not be saved. Check the connection and try again.</source>
      <translation>La modification n’a pas pu être enregistrée. Vérifiez la connexion et réessayez.</translation>
    </message>
    <message id="store.style.err.notLoaded">
      <source>Your invoice style could not be loaded.</source>
      <translation>Impossible de charger le style de vos factures.</translation>
    </message>
    <message id="store.style.err.notSaved">
      <source>The invoice style was not saved: you may not change this template, or it no longer exists.</source>
      <translation>Le style de facture n’a pas été enregistré : vous ne pouvez pas modifier ce modèle, ou il n’existe plus.</translation>
    </message>
    <message id="supabase.err.decoding">
      <source>Decode: %1</source>
      <translation>Décodage : %1</translation>
    </message>
    <message id="supabase.err.http">
      <source>HTTP %1: %2</source>
      <translation>HTTP %1 : %2</translation>
    </message>
    <message id="supabase.err.invalidURL">
      <source>Invalid URL</source>
      <translation>URL non valide</translation>
    </message>
    <message id="supabase.err.noAuth">
      <source>Not signed in.</source>
      <translation>Non connecté.</translation>
    </message>
    <message id="task.custom">
      <source>Custom for this task</source>
      <translation>Prix propre à cette tâche</translation>
    </message>
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>La tâche n’a pas été créée : vous ne pouvez pas ajouter de tâches à ce projet.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>La tâche n’a pas été modifiée : vous n’avez pas le droit de la modifier, ou elle n’existe plus.</translation>
    </message>
    <message id="task.inheritedFrom">
      <source>Inherited from %1</source>
      <translation>Hérité de %1</translation>
    </message>
    <message id="task.savePrice">
      <source>Save task price</source>
      <translation>Enregistrer le prix de la tâche</translation>
    </message>
    <message id="task.useProject">
      <source>Use project price</source>
      <translation>Utiliser le prix du projet</translation>
    </message>
    <message id="team.err.invitationNotAnswered">
      <source>The invitation could not be answered. Try again.</source>
      <translation>Impossible de répondre à l'invitation. Réessayez.</translation>
    </message>
    <message id="team.err.memberNotChanged">
      <source>The member was not changed: only the team owner can change roles and remove people.</source>
      <translation>Le membre n’a pas été modifié : seul le propriétaire de l’équipe peut changer les rôles et retirer des personnes.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>L’équipe n’a pas été créée. Réessayez.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>Vos équipes n’ont pas pu être chargées.</translation>
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
      <translation>Le temps n’a pas pu être enregistré, le minuteur continue donc de tourner. Essayez de l’arrêter à nouveau.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>Le minuteur de cette tâche a été lancé sur un autre appareil, son statut n’a donc pas été modifié.</translation>
    </message>
    <message id="travelDescribeMany">
      <source>%1 km in %2 trips</source>
      <translation>%1 km en %2 trajets</translation>
    </message>
    <message id="travelDescribeOne">
      <source>%1 km in 1 trip</source>
      <translation>%1 km en 1 trajet</translation>
    </message>
    <message id="travelKm">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="travelTitle">
      <source>Travel</source>
      <translation>Déplacements</translation>
    </message>
    <message id="travelTrip">
      <source>trip</source>
      <translation>trajet</translation>
    </message>
    <message id="trip.err.notLoaded">
      <source>Your trips could not be loaded. Check your connection and try again.</source>
      <translation>Vos trajets n'ont pas pu être chargés. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message id="trip.err.notSaved">
      <source>The trip was not saved: it no longer exists or you may not change it.</source>
      <translation>Le trajet n'a pas été enregistré : il n'existe plus ou vous ne pouvez pas le modifier.</translation>
    </message>
    <message id="trip.err.settingsNotSaved">
      <source>Your travel settings were not saved.</source>
      <translation>Vos réglages de déplacement n'ont pas été enregistrés.</translation>
    </message>
    <message id="tripDeleteConfirm">
      <source>Delete this trip? This cannot be undone.</source>
      <translation>Supprimer ce trajet ? Cette action est irréversible.</translation>
    </message>
    <message id="tripDistanceByRoad">
      <source>Distance by road, about %1 min. Change it if you went another way.</source>
      <translation>Distance par la route, environ %1 min. Modifiez-la si vous avez pris un autre chemin.</translation>
    </message>
    <message id="tripDistanceEstimate">
      <source>Kilometres are an estimate from the addresses; change them if needed.</source>
      <translation>Les kilomètres sont estimés à partir des adresses ; modifiez-les si besoin.</translation>
    </message>
    <message id="tripErrNoService">
      <source>No routing or address service is set up.</source>
      <translation>Aucun service d'itinéraire ou d'adresse n'est configuré.</translation>
    </message>
    <message id="tripErrNotFound">
      <source>No place or route was found for this.</source>
      <translation>Aucun lieu ni itinéraire trouvé.</translation>
    </message>
    <message id="tripInProgress">
      <source>Trip in progress</source>
      <translation>Trajet en cours</translation>
    </message>
    <message id="tripSearchFailed">
      <source>Searching did not work. Check your connection and try again.</source>
      <translation>La recherche n'a pas fonctionné. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message id="tripsEmpty">
      <source>No trips yet. Trips your phone records while a timer runs show up here. You can also add a trip by hand.</source>
      <translation>Aucun trajet pour l'instant. Les trajets enregistrés par votre téléphone pendant un minuteur apparaissent ici. Vous pouvez aussi en ajouter à la main.</translation>
    </message>
    <message id="ui.action.floatingTimer">
      <source>Show or hide the floating timer</source>
      <translation>Afficher ou masquer le minuteur flottant</translation>
    </message>
    <message id="ui.action.newProject">
      <source>New project</source>
      <translation>Nouveau projet</translation>
    </message>
    <message id="ui.action.newTask">
      <source>New task</source>
      <translation>Nouvelle tâche</translation>
    </message>
    <message id="ui.action.newTeam">
      <source>New team</source>
      <translation>Nouvelle équipe</translation>
    </message>
    <message id="ui.action.quickAdd">
      <source>Quick add: a sentence becomes work…</source>
      <translation>Ajout rapide : une phrase devient du travail…</translation>
    </message>
    <message id="ui.action.settings">
      <source>Settings</source>
      <translation>Réglages</translation>
    </message>
    <message id="ui.action.signOut">
      <source>Sign out</source>
      <translation>Se déconnecter</translation>
    </message>
    <message id="ui.action.toggleTheme">
      <source>Switch between light and dark</source>
      <translation>Basculer entre clair et sombre</translation>
    </message>
    <message id="ui.action.toggleTimer">
      <source>Start or stop the timer</source>
      <translation>Démarrer ou arrêter le minuteur</translation>
    </message>
    <message id="ui.ai.anthropic">
      <source>Anthropic API with your key</source>
      <translation>API Anthropic avec votre clé</translation>
    </message>
    <message id="ui.ai.anthropicHelp">
      <source>Straight to Anthropic with the key you keep in your keyring.</source>
      <translation>Directement chez Anthropic avec la clé de votre trousseau.</translation>
    </message>
    <message id="ui.ai.auto">
      <source>Automatic (recommended)</source>
      <translation>Automatique (recommandé)</translation>
    </message>
    <message id="ui.ai.autoHelp">
      <source>The Claude CLI first; without it, Morvane AI in the cloud.</source>
      <translation>D’abord la CLI Claude ; sans elle, Morvane AI dans le cloud.</translation>
    </message>
    <message id="ui.ai.cli">
      <source>Claude CLI only</source>
      <translation>CLI Claude uniquement</translation>
    </message>
    <message id="ui.ai.cliHelp">
      <source>Everything local through your own Claude subscription. No network.</source>
      <translation>Tout en local via votre propre abonnement Claude. Aucun réseau.</translation>
    </message>
    <message id="ui.ai.consentAllow">
      <source>Allowed</source>
      <translation>Autorisé</translation>
    </message>
    <message id="ui.ai.consentAsk">
      <source>Ask first</source>
      <translation>Demander d’abord</translation>
    </message>
    <message id="ui.ai.consentDeny">
      <source>Never send</source>
      <translation>Ne jamais envoyer</translation>
    </message>
    <message id="ui.ai.consents">
      <source>Sending text off this computer</source>
      <translation>Envoi de texte hors de cet ordinateur</translation>
    </message>
    <message id="ui.ai.gemini">
      <source>Google Gemini API with your key</source>
      <translation>API Google Gemini avec votre clé</translation>
    </message>
    <message id="ui.ai.geminiHelp">
      <source>Straight to Google with the key you keep in your keyring.</source>
      <translation>Directement chez Google avec la clé de votre trousseau.</translation>
    </message>
    <message id="ui.ai.keyFailed">
      <source>The keyring did not take the change; nothing changed.</source>
      <translation>Le trousseau n’a pas accepté la modification ; rien n’a changé.</translation>
    </message>
    <message id="ui.ai.keyInvalid">
      <source>That does not look like an API key: paste the key alone, without spaces.</source>
      <translation>Cela ne ressemble pas à une clé d’API : collez la clé seule, sans espaces.</translation>
    </message>
    <message id="ui.ai.keyName">
      <source>API key for %1</source>
      <translation>Clé d’API pour %1</translation>
    </message>
    <message id="ui.ai.keyPaste">
      <source>Paste your API key</source>
      <translation>Collez votre clé d’API</translation>
    </message>
    <message id="ui.ai.keyRemove">
      <source>Remove</source>
      <translation>Supprimer</translation>
    </message>
    <message id="ui.ai.keySave">
      <source>Save key</source>
      <translation>Enregistrer la clé</translation>
    </message>
    <message id="ui.ai.keyStored">
      <source>A key is stored; paste another to replace it</source>
      <translation>Une clé est enregistrée ; collez-en une autre pour la remplacer</translation>
    </message>
    <message id="ui.ai.keys">
      <source>Your own API keys (kept in the keyring)</source>
      <translation>Vos propres clés d’API (dans le trousseau)</translation>
    </message>
    <message id="ui.ai.openai">
      <source>OpenAI API with your key</source>
      <translation>API OpenAI avec votre clé</translation>
    </message>
    <message id="ui.ai.openaiHelp">
      <source>Straight to OpenAI with the key you keep in your keyring.</source>
      <translation>Directement chez OpenAI avec la clé de votre trousseau.</translation>
    </message>
    <message id="ui.ai.relay">
      <source>Morvane AI only</source>
      <translation>Morvane AI uniquement</translation>
    </message>
    <message id="ui.ai.relayHelp">
      <source>Always through the secured relay of your Morvane server. The CLI is ignored.</source>
      <translation>Toujours par le relais sécurisé de votre serveur Morvane. La CLI est ignorée.</translation>
    </message>
    <message id="ui.ai.route">
      <source>Where model calls go</source>
      <translation>Où vont les appels au modèle</translation>
    </message>
    <message id="ui.assistant.add">
      <source>Add</source>
      <translation>Ajouter</translation>
    </message>
    <message id="ui.assistant.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as the task list shows it.</source>
      <translation>Quelle tâche ? Aucune de vos tâches ne s’appelle "%1", ou plusieurs. Nommez-la comme dans la liste des tâches.</translation>
    </message>
    <message id="ui.assistant.consentNo">
      <source>Don't send</source>
      <translation>Ne pas envoyer</translation>
    </message>
    <message id="ui.assistant.consentOnce">
      <source>Morvane asks once for this route and remembers your answer. You can change it in the settings.</source>
      <translation>Morvane pose la question une fois pour cette voie et retient votre réponse. Vous pouvez la changer dans les réglages.</translation>
    </message>
    <message id="ui.assistant.consentTitle">
      <source>Send your text to %1?</source>
      <translation>Envoyer votre texte à %1 ?</translation>
    </message>
    <message id="ui.assistant.consentYes">
      <source>Send</source>
      <translation>Envoyer</translation>
    </message>
    <message id="ui.assistant.empty">
      <source>Type a sentence in your own words: new projects and tasks, time you spent, or start and stop the timer.</source>
      <translation>Écrivez une phrase avec vos mots : nouveaux projets et tâches, temps passé, ou démarrer et arrêter le chronomètre.</translation>
    </message>
    <message id="ui.assistant.notUnderstood">
      <source>The sentence could not be read: %1</source>
      <translation>La phrase n’a pas pu être lue : %1</translation>
    </message>
    <message id="ui.assistant.placeholder">
      <source>Say what to add, e.g. “Logo design for Acme, 3 hours yesterday”</source>
      <translation>Dites ce qu’il faut ajouter, p. ex. « Logo pour Acme, 3 heures hier »</translation>
    </message>
    <message id="ui.assistant.reading">
      <source>Reading your sentence…</source>
      <translation>Lecture de votre phrase…</translation>
    </message>
    <message id="ui.assistant.title">
      <source>Quick add</source>
      <translation>Ajout rapide</translation>
    </message>
    <message id="ui.assistant.tooLong">
      <source>That is more than a sentence or two. Say what to add in a few lines.</source>
      <translation>C’est plus qu’une phrase ou deux. Dites en quelques lignes ce qu’il faut ajouter.</translation>
    </message>
    <message id="ui.auth.aboutYou">
      <source>A little about you</source>
      <translation>Quelques mots sur vous</translation>
    </message>
    <message id="ui.auth.confirmBody">
      <source>We sent a confirmation link to %1. Open it, then sign in here.</source>
      <translation>Nous avons envoyé un lien de confirmation à %1. Ouvrez-le, puis connectez-vous ici.</translation>
    </message>
    <message id="ui.auth.confirmResent">
      <source>We sent a new confirmation link to %1.</source>
      <translation>Nous avons envoyé un nouveau lien de confirmation à %1.</translation>
    </message>
    <message id="ui.auth.confirmSent">
      <source>We sent a link to %1. Open it to confirm your address, then sign in.</source>
      <translation>Nous avons envoyé un lien à %1. Ouvrez-le pour confirmer votre adresse, puis connectez-vous.</translation>
    </message>
    <message id="ui.auth.confirmTitle">
      <source>Confirm your e-mail</source>
      <translation>Confirmez votre adresse e-mail</translation>
    </message>
    <message id="ui.auth.continueAs">
      <source>Continue as %1</source>
      <translation>Continuer en tant que %1</translation>
    </message>
    <message id="ui.auth.continueWith">
      <source>Continue with %1</source>
      <translation>Continuer avec %1</translation>
    </message>
    <message id="ui.auth.createAccount">
      <source>Create your account</source>
      <translation>Créez votre compte</translation>
    </message>
    <message id="ui.auth.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.auth.forgot">
      <source>Forgot password?</source>
      <translation>Mot de passe oublié ?</translation>
    </message>
    <message id="ui.auth.getStarted">
      <source>Get started</source>
      <translation>Commencer</translation>
    </message>
    <message id="ui.auth.haveAccount">
      <source>I already have an account</source>
      <translation>J’ai déjà un compte</translation>
    </message>
    <message id="ui.auth.password">
      <source>Password</source>
      <translation>Mot de passe</translation>
    </message>
    <message id="ui.auth.passwordHint">
      <source>At least 8 characters.</source>
      <translation>8 caractères minimum.</translation>
    </message>
    <message id="ui.auth.rememberMe">
      <source>Remember me on this computer</source>
      <translation>Rester connecté sur cet ordinateur</translation>
    </message>
    <message id="ui.auth.resend">
      <source>Send the link again</source>
      <translation>Renvoyer le lien</translation>
    </message>
    <message id="ui.auth.resetSent">
      <source>Check your inbox for the reset link.</source>
      <translation>Le lien de réinitialisation vous attend dans votre boîte de réception.</translation>
    </message>
    <message id="ui.auth.resetTitle">
      <source>Reset your password</source>
      <translation>Réinitialiser votre mot de passe</translation>
    </message>
    <message id="ui.auth.sendReset">
      <source>Send the reset link</source>
      <translation>Envoyer le lien de réinitialisation</translation>
    </message>
    <message id="ui.auth.signInTitle">
      <source>Sign in</source>
      <translation>Connexion</translation>
    </message>
    <message id="ui.auth.toSignIn">
      <source>Back to sign in</source>
      <translation>Retour à la connexion</translation>
    </message>
    <message id="ui.auth.toSignUp">
      <source>Create an account</source>
      <translation>Créer un compte</translation>
    </message>
    <message id="ui.auth.welcome">
      <source>Welcome to Morvane</source>
      <translation>Bienvenue dans Morvane</translation>
    </message>
    <message id="ui.auth.welcomeBody">
      <source>Track your time on projects and tasks, and turn it into invoices. Your data stays on this computer unless you connect a shared server.</source>
      <translation>Suivez le temps passé sur vos projets et tâches, puis transformez-le en factures. Vos données restent sur cet ordinateur, sauf si vous connectez un serveur partagé.</translation>
    </message>
    <message id="ui.calendar.add">
      <source>Add calendar</source>
      <translation>Ajouter le calendrier</translation>
    </message>
    <message id="ui.calendar.addFile">
      <source>Add a calendar file…</source>
      <translation>Ajouter un fichier de calendrier…</translation>
    </message>
    <message id="ui.calendar.added">
      <source>%1 was added.</source>
      <translation>%1 a été ajouté.</translation>
    </message>
    <message id="ui.calendar.address">
      <source>Subscription or CalDAV address (https:// or webcal://)</source>
      <translation>Adresse d’abonnement ou CalDAV (https:// ou webcal://)</translation>
    </message>
    <message id="ui.calendar.badDay">
      <source>Write the day as year-month-day, for example 2026-11-25.</source>
      <translation>Écrivez le jour sous la forme année-mois-jour, par exemple 2026-11-25.</translation>
    </message>
    <message id="ui.calendar.caldav">
      <source>CalDAV account</source>
      <translation>Compte CalDAV</translation>
    </message>
    <message id="ui.calendar.day">
      <source>Day (year-month-day)</source>
      <translation>Jour (année-mois-jour)</translation>
    </message>
    <message id="ui.calendar.destination">
      <source>Where it goes</source>
      <translation>Destination</translation>
    </message>
    <message id="ui.calendar.fileFilter">
      <source>Calendar files (*.ics)</source>
      <translation>Fichiers de calendrier (*.ics)</translation>
    </message>
    <message id="ui.calendar.fileTitle">
      <source>Add a calendar file</source>
      <translation>Ajouter un fichier de calendrier</translation>
    </message>
    <message id="ui.calendar.import">
      <source>Import as time</source>
      <translation>Importer comme temps</translation>
    </message>
    <message id="ui.calendar.imported">
      <source>%1 imported as time.</source>
      <translation>%1 importé(s) comme temps.</translation>
    </message>
    <message id="ui.calendar.importedChip">
      <source>Imported</source>
      <translation>Importé</translation>
    </message>
    <message id="ui.calendar.link">
      <source>Calendar import</source>
      <translation>Import du calendrier</translation>
    </message>
    <message id="ui.calendar.loading">
      <source>Loading calendar…</source>
      <translation>Chargement du calendrier…</translation>
    </message>
    <message id="ui.calendar.newTaskIn">
      <source>New task in %1</source>
      <translation>Nouvelle tâche dans %1</translation>
    </message>
    <message id="ui.calendar.next">
      <source>Next day</source>
      <translation>Jour suivant</translation>
    </message>
    <message id="ui.calendar.noDestination">
      <source>%1 imported. %2 ticked events have no destination yet: choose where each goes.</source>
      <translation>%1 importé(s). %2 événements cochés n’ont pas encore de destination : choisissez où va chacun.</translation>
    </message>
    <message id="ui.calendar.noEventsHint">
      <source>Pick another day, or add the calendar that holds your meetings.</source>
      <translation>Choisissez un autre jour, ou ajoutez le calendrier de vos réunions.</translation>
    </message>
    <message id="ui.calendar.noEventsTitle">
      <source>No events on this day</source>
      <translation>Aucun événement ce jour-là</translation>
    </message>
    <message id="ui.calendar.noSourcesHint">
      <source>Add a calendar file, a subscription address (such as a hosted calendar's secret address) or a CalDAV account on the left. Morvane only reads them.</source>
      <translation>Ajoutez à gauche un fichier de calendrier, une adresse d’abonnement (comme l’adresse secrète d’un calendrier en ligne) ou un compte CalDAV. Morvane ne fait que les lire.</translation>
    </message>
    <message id="ui.calendar.noSourcesTitle">
      <source>No calendars yet</source>
      <translation>Aucun calendrier pour l’instant</translation>
    </message>
    <message id="ui.calendar.partial">
      <source>%1 imported; then it stopped: %2</source>
      <translation>%1 importé(s) ; puis arrêt : %2</translation>
    </message>
    <message id="ui.calendar.password">
      <source>Password (kept in your keyring)</source>
      <translation>Mot de passe (gardé dans votre trousseau)</translation>
    </message>
    <message id="ui.calendar.previous">
      <source>Previous day</source>
      <translation>Jour précédent</translation>
    </message>
    <message id="ui.calendar.remove">
      <source>Remove</source>
      <translation>Retirer</translation>
    </message>
    <message id="ui.calendar.sources">
      <source>Your calendars</source>
      <translation>Vos calendriers</translation>
    </message>
    <message id="ui.calendar.timeOn">
      <source>Time on %1 (%2)</source>
      <translation>Temps sur %1 (%2)</translation>
    </message>
    <message id="ui.calendar.title">
      <source>Import from your calendar</source>
      <translation>Importer depuis votre calendrier</translation>
    </message>
    <message id="ui.calendar.user">
      <source>User name</source>
      <translation>Nom d’utilisateur</translation>
    </message>
    <message id="ui.category.admin">
      <source>Admin</source>
      <translation>Administratif</translation>
    </message>
    <message id="ui.category.billable">
      <source>Billable</source>
      <translation>Facturable</translation>
    </message>
    <message id="ui.category.internal">
      <source>Internal work</source>
      <translation>Travail interne</translation>
    </message>
    <message id="ui.category.none">
      <source>None</source>
      <translation>Aucune</translation>
    </message>
    <message id="ui.clients.address">
      <source>Address</source>
      <translation>Adresse</translation>
    </message>
    <message id="ui.clients.deleteBody">
      <source>It leaves your list of clients. Invoices you already wrote for this client keep it.</source>
      <translation>Il disparaît de votre liste de clients. Les factures déjà établies pour ce client le conservent.</translation>
    </message>
    <message id="ui.clients.deleteTitle">
      <source>Delete %1?</source>
      <translation>Supprimer %1 ?</translation>
    </message>
    <message id="ui.clients.edit">
      <source>Edit client</source>
      <translation>Modifier le client</translation>
    </message>
    <message id="ui.clients.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.clients.emptyHint">
      <source>Add the people and companies you invoice, then choose them when you write an invoice. Press Ctrl+N or “New client” to add the first.</source>
      <translation>Ajoutez les personnes et entreprises que vous facturez, puis choisissez-les en rédigeant une facture. Appuyez sur Ctrl+N ou « Nouveau client » pour ajouter le premier.</translation>
    </message>
    <message id="ui.clients.emptyTitle">
      <source>No clients yet</source>
      <translation>Aucun client pour l'instant</translation>
    </message>
    <message id="ui.clients.kvk">
      <source>Chamber of commerce number</source>
      <translation>Numéro SIREN</translation>
    </message>
    <message id="ui.clients.name">
      <source>Name</source>
      <translation>Nom</translation>
    </message>
    <message id="ui.clients.namePlaceholder">
      <source>Company or person</source>
      <translation>Entreprise ou personne</translation>
    </message>
    <message id="ui.clients.new">
      <source>New client</source>
      <translation>Nouveau client</translation>
    </message>
    <message id="ui.clients.noMatch">
      <source>No client matches “%1”</source>
      <translation>Aucun client ne correspond à « %1 »</translation>
    </message>
    <message id="ui.clients.search">
      <source>Search clients</source>
      <translation>Rechercher des clients</translation>
    </message>
    <message id="ui.clients.title">
      <source>Clients</source>
      <translation>Clients</translation>
    </message>
    <message id="ui.clients.vatId">
      <source>VAT number</source>
      <translation>Numéro de TVA</translation>
    </message>
    <message id="ui.common.cancel">
      <source>Cancel</source>
      <translation>Annuler</translation>
    </message>
    <message id="ui.common.close">
      <source>Close</source>
      <translation>Fermer</translation>
    </message>
    <message id="ui.common.continue">
      <source>Continue</source>
      <translation>Continuer</translation>
    </message>
    <message id="ui.common.delete">
      <source>Delete</source>
      <translation>Supprimer</translation>
    </message>
    <message id="ui.common.dismiss">
      <source>Dismiss</source>
      <translation>Fermer</translation>
    </message>
    <message id="ui.common.edit">
      <source>Edit</source>
      <translation>Modifier</translation>
    </message>
    <message id="ui.common.remove">
      <source>Remove %1</source>
      <translation>Retirer %1</translation>
    </message>
    <message id="ui.common.retry">
      <source>Try again</source>
      <translation>Réessayer</translation>
    </message>
    <message id="ui.common.save">
      <source>Save</source>
      <translation>Enregistrer</translation>
    </message>
    <message id="ui.common.saving">
      <source>Saving</source>
      <translation>Enregistrement</translation>
    </message>
    <message id="ui.composer.billTo">
      <source>Bill to</source>
      <translation>Facturer à</translation>
    </message>
    <message id="ui.composer.cancel">
      <source>Cancel</source>
      <translation>Annuler</translation>
    </message>
    <message id="ui.composer.clientAddress">
      <source>Client address</source>
      <translation>Adresse du client</translation>
    </message>
    <message id="ui.composer.clientEmail">
      <source>Client e-mail</source>
      <translation>E-mail du client</translation>
    </message>
    <message id="ui.composer.clientName">
      <source>Client name</source>
      <translation>Nom du client</translation>
    </message>
    <message id="ui.composer.design">
      <source>Design</source>
      <translation>Modèle</translation>
    </message>
    <message id="ui.composer.drawing">
      <source>Drawing the invoice</source>
      <translation>Mise en page de la facture</translation>
    </message>
    <message id="ui.composer.due">
      <source>Due</source>
      <translation>Échéance</translation>
    </message>
    <message id="ui.composer.err.day">
      <source>Write days as year-month-day, for example 2026-11-01.</source>
      <translation>Écrivez les dates sous la forme année-mois-jour, par exemple 2026-11-01.</translation>
    </message>
    <message id="ui.composer.err.due">
      <source>Payment cannot be due before the invoice is issued.</source>
      <translation>L’échéance ne peut pas précéder la date d’émission.</translation>
    </message>
    <message id="ui.composer.err.empty">
      <source>Choose work with unbilled time first.</source>
      <translation>Choisissez d’abord du travail avec du temps non facturé.</translation>
    </message>
    <message id="ui.composer.err.noNumber">
      <source>The invoice has no number yet. Check the connection and open the composer again.</source>
      <translation>La facture n’a pas encore de numéro. Vérifiez la connexion et rouvrez l’éditeur de facture.</translation>
    </message>
    <message id="ui.composer.err.period">
      <source>The period ends before it starts.</source>
      <translation>La période se termine avant de commencer.</translation>
    </message>
    <message id="ui.composer.err.preview">
      <source>The preview could not be drawn: %1</source>
      <translation>L’aperçu n’a pas pu être affiché : %1</translation>
    </message>
    <message id="ui.composer.from">
      <source>From (year-month-day)</source>
      <translation>Du (année-mois-jour)</translation>
    </message>
    <message id="ui.composer.hours">
      <source>%1 h</source>
      <translation>%1 h</translation>
    </message>
    <message id="ui.composer.houseDesign">
      <source>As in the invoice style</source>
      <translation>Comme dans le style de facture</translation>
    </message>
    <message id="ui.composer.invoice">
      <source>Invoice</source>
      <translation>Facture</translation>
    </message>
    <message id="ui.composer.issued">
      <source>Issued</source>
      <translation>Date d’émission</translation>
    </message>
    <message id="ui.composer.lines">
      <source>Lines</source>
      <translation>Lignes</translation>
    </message>
    <message id="ui.composer.noWork">
      <source>No unbilled time in this period. Choose another period or project.</source>
      <translation>Aucun temps non facturé sur cette période. Choisissez une autre période ou un autre projet.</translation>
    </message>
    <message id="ui.composer.notes">
      <source>Notes on the invoice</source>
      <translation>Notes sur la facture</translation>
    </message>
    <message id="ui.composer.number">
      <source>No. %1</source>
      <translation>N° %1</translation>
    </message>
    <message id="ui.composer.numberPending">
      <source>Number follows</source>
      <translation>Numéro à venir</translation>
    </message>
    <message id="ui.composer.period">
      <source>Period</source>
      <translation>Période</translation>
    </message>
    <message id="ui.composer.previewEmpty">
      <source>The invoice appears here</source>
      <translation>La facture s’affiche ici</translation>
    </message>
    <message id="ui.composer.previewHint">
      <source>Choose a project with unbilled time and a period; the page follows every change.</source>
      <translation>Choisissez un projet avec du temps non facturé et une période ; la page suit chaque modification.</translation>
    </message>
    <message id="ui.composer.projects">
      <source>Projects</source>
      <translation>Projets</translation>
    </message>
    <message id="ui.composer.saveAsClient">
      <source>Save as client</source>
      <translation>Enregistrer comme client</translation>
    </message>
    <message id="ui.composer.saveDraft">
      <source>Save as draft</source>
      <translation>Enregistrer comme brouillon</translation>
    </message>
    <message id="ui.composer.saveSent">
      <source>Save as sent</source>
      <translation>Enregistrer comme envoyée</translation>
    </message>
    <message id="ui.composer.savedClients">
      <source>Saved clients</source>
      <translation>Clients enregistrés</translation>
    </message>
    <message id="ui.composer.title">
      <source>New invoice</source>
      <translation>Nouvelle facture</translation>
    </message>
    <message id="ui.composer.to">
      <source>To (year-month-day)</source>
      <translation>Au (année-mois-jour)</translation>
    </message>
    <message id="ui.composer.vatPercent">
      <source>VAT %</source>
      <translation>TVA %</translation>
    </message>
    <message id="ui.composer.work">
      <source>Work</source>
      <translation>Travail</translation>
    </message>
    <message id="ui.earnings.barName">
      <source>%1: earned %2, billed %3, unbilled %4</source>
      <translation>%1 : gagné %2, facturé %3, non facturé %4</translation>
    </message>
    <message id="ui.earnings.billed">
      <source>Billed</source>
      <translation>Facturé</translation>
    </message>
    <message id="ui.earnings.billedChip">
      <source>billed</source>
      <translation>facturé</translation>
    </message>
    <message id="ui.earnings.byMonth">
      <source>Month</source>
      <translation>Mois</translation>
    </message>
    <message id="ui.earnings.byProject">
      <source>Project</source>
      <translation>Projet</translation>
    </message>
    <message id="ui.earnings.byWeek">
      <source>Week</source>
      <translation>Semaine</translation>
    </message>
    <message id="ui.earnings.coverage">
      <source>%1 to %2</source>
      <translation>du %1 au %2</translation>
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
      <translation>Gagné</translation>
    </message>
    <message id="ui.earnings.emptyHint">
      <source>Start the timer on a task with Space, or log time in its inspector. What you earn shows up here by week, month and project.</source>
      <translation>Lancez le minuteur sur une tâche avec Espace, ou saisissez du temps dans son inspecteur. Vos revenus apparaissent ici par semaine, mois et projet.</translation>
    </message>
    <message id="ui.earnings.emptyTitle">
      <source>Nothing tracked in these months</source>
      <translation>Aucun temps suivi ces derniers mois</translation>
    </message>
    <message id="ui.earnings.entries">
      <source>Entries</source>
      <translation>Entrées</translation>
    </message>
    <message id="ui.earnings.entriesOf">
      <source>Entries of %1</source>
      <translation>Entrées : %1</translation>
    </message>
    <message id="ui.earnings.hours">
      <source>Hours</source>
      <translation>Heures</translation>
    </message>
    <message id="ui.earnings.monthFormat">
      <source>MMM yyyy</source>
      <translation>MMM yyyy</translation>
    </message>
    <message id="ui.earnings.noProject">
      <source>No project</source>
      <translation>Sans projet</translation>
    </message>
    <message id="ui.earnings.oneOffNote">
      <source>includes %1 charged once</source>
      <translation>dont %1 facturé une fois</translation>
    </message>
    <message id="ui.earnings.pickBar">
      <source>Click a bar to see the entries behind it.</source>
      <translation>Cliquez sur une barre pour voir les entrées qui la composent.</translation>
    </message>
    <message id="ui.earnings.rate">
      <source>Per hour</source>
      <translation>Par heure</translation>
    </message>
    <message id="ui.earnings.title">
      <source>Earnings</source>
      <translation>Revenus</translation>
    </message>
    <message id="ui.earnings.unbilled">
      <source>Unbilled</source>
      <translation>Non facturé</translation>
    </message>
    <message id="ui.entries.billed">
      <source>Billed</source>
      <translation>Facturée</translation>
    </message>
    <message id="ui.entries.delete">
      <source>Delete this entry</source>
      <translation>Supprimer cette entrée</translation>
    </message>
    <message id="ui.entries.deleteBody">
      <source>The task's total goes down by its length.</source>
      <translation>Le total de la tâche diminuera d’autant.</translation>
    </message>
    <message id="ui.entries.deleteTitle">
      <source>Delete this time entry?</source>
      <translation>Supprimer cette entrée de temps ?</translation>
    </message>
    <message id="ui.entries.empty">
      <source>No time yet. Press Space to start the timer, or log minutes by hand.</source>
      <translation>Pas encore de temps. Appuyez sur Espace pour lancer le minuteur, ou saisissez des minutes à la main.</translation>
    </message>
    <message id="ui.entries.end">
      <source>End</source>
      <translation>Fin</translation>
    </message>
    <message id="ui.entries.invalid">
      <source>Use the form 2026-03-01 09:30, with the end after the start.</source>
      <translation>Utilisez le format 2026-03-01 09:30, avec une fin postérieure au début.</translation>
    </message>
    <message id="ui.entries.length">
      <source>Minutes</source>
      <translation>Minutes</translation>
    </message>
    <message id="ui.entries.log">
      <source>Log</source>
      <translation>Saisir</translation>
    </message>
    <message id="ui.entries.minutes">
      <source>Minutes worked</source>
      <translation>Minutes travaillées</translation>
    </message>
    <message id="ui.entries.minutesInvalid">
      <source>Enter the minutes as a number, such as 45 or 90.</source>
      <translation>Saisissez les minutes sous forme de nombre, par exemple 45 ou 90.</translation>
    </message>
    <message id="ui.entries.start">
      <source>Start</source>
      <translation>Début</translation>
    </message>
    <message id="ui.entries.title">
      <source>Time entries</source>
      <translation>Entrées de temps</translation>
    </message>
    <message id="ui.entries.total">
      <source>Total %1</source>
      <translation>Total : %1</translation>
    </message>
    <message id="ui.export.action">
      <source>Export for the accountant…</source>
      <translation>Exporter pour le comptable…</translation>
    </message>
    <message id="ui.export.badPeriod">
      <source>Enter both days as YYYY-MM-DD, the first not after the last.</source>
      <translation>Saisissez les deux jours au format AAAA-MM-JJ, le premier au plus tard le dernier.</translation>
    </message>
    <message id="ui.export.body">
      <source>A CSV file that spreadsheets and bookkeeping programs read: one row per time entry or invoice of the period.</source>
      <translation>Un fichier CSV que lisent les tableurs et les logiciels de comptabilité : une ligne par temps saisi ou par facture de la période.</translation>
    </message>
    <message id="ui.export.close">
      <source>Close</source>
      <translation>Fermer</translation>
    </message>
    <message id="ui.export.csvFilter">
      <source>CSV files (*.csv)</source>
      <translation>Fichiers CSV (*.csv)</translation>
    </message>
    <message id="ui.export.entries">
      <source>Time entries</source>
      <translation>Temps saisis</translation>
    </message>
    <message id="ui.export.fileTitle">
      <source>Save the CSV file</source>
      <translation>Enregistrer le fichier CSV</translation>
    </message>
    <message id="ui.export.from">
      <source>From</source>
      <translation>Du</translation>
    </message>
    <message id="ui.export.invoices">
      <source>Invoices</source>
      <translation>Factures</translation>
    </message>
    <message id="ui.export.notReady">
      <source>Choose a period and a file first.</source>
      <translation>Choisissez d’abord une période et un fichier.</translation>
    </message>
    <message id="ui.export.save">
      <source>Save…</source>
      <translation>Enregistrer…</translation>
    </message>
    <message id="ui.export.saved">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 enregistré (lignes : %2).</translation>
    </message>
    <message id="ui.export.saving">
      <source>Saving…</source>
      <translation>Enregistrement…</translation>
    </message>
    <message id="ui.export.title">
      <source>Export for the accountant</source>
      <translation>Exporter pour le comptable</translation>
    </message>
    <message id="ui.export.to">
      <source>To</source>
      <translation>Au</translation>
    </message>
    <message id="ui.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message id="ui.floating.hide">
      <source>Hide the floating timer</source>
      <translation>Masquer le minuteur flottant</translation>
    </message>
    <message id="ui.floating.title">
      <source>Morvane timer</source>
      <translation>Minuteur Morvane</translation>
    </message>
    <message id="ui.idle.body">
      <source>The timer of “%1” kept running while you were away from %2 to %3. What should happen to that time?</source>
      <translation>Le minuteur de « %1 » a continué pendant votre absence, de %2 à %3. Que faire de ce temps ?</translation>
    </message>
    <message id="ui.idle.discard">
      <source>Discard it and stop the timer</source>
      <translation>L'écarter et arrêter le minuteur</translation>
    </message>
    <message id="ui.idle.discardContinue">
      <source>Discard it and go on</source>
      <translation>L'écarter et continuer</translation>
    </message>
    <message id="ui.idle.keep">
      <source>Keep the time</source>
      <translation>Garder le temps</translation>
    </message>
    <message id="ui.idle.notification">
      <source>The timer of “%1” ran while you were away from %2 to %3.</source>
      <translation>Le minuteur de « %1 » a tourné pendant votre absence, de %2 à %3.</translation>
    </message>
    <message id="ui.idle.title">
      <source>You were away</source>
      <translation>Vous étiez absent</translation>
    </message>
    <message id="ui.inspector.addNote">
      <source>Add a note</source>
      <translation>Ajouter une note</translation>
    </message>
    <message id="ui.inspector.addSubtask">
      <source>Add a subtask</source>
      <translation>Ajouter une sous-tâche</translation>
    </message>
    <message id="ui.inspector.assignees">
      <source>Assigned to</source>
      <translation>Attribuée à</translation>
    </message>
    <message id="ui.inspector.category">
      <source>Category</source>
      <translation>Catégorie</translation>
    </message>
    <message id="ui.inspector.describe">
      <source>Notes for yourself or the client</source>
      <translation>Notes pour vous ou pour le client</translation>
    </message>
    <message id="ui.inspector.description">
      <source>Description</source>
      <translation>Description</translation>
    </message>
    <message id="ui.inspector.due">
      <source>Due</source>
      <translation>Échéance</translation>
    </message>
    <message id="ui.inspector.dueDate">
      <source>Due date</source>
      <translation>Date d’échéance</translation>
    </message>
    <message id="ui.inspector.none">
      <source>No task selected</source>
      <translation>Aucune tâche sélectionnée</translation>
    </message>
    <message id="ui.inspector.noneHint">
      <source>Choose a task to see its details and time entries.</source>
      <translation>Choisissez une tâche pour voir ses détails et ses entrées de temps.</translation>
    </message>
    <message id="ui.inspector.notes">
      <source>Notes</source>
      <translation>Notes</translation>
    </message>
    <message id="ui.inspector.ownPrice">
      <source>This task has its own price.</source>
      <translation>Cette tâche a son propre prix.</translation>
    </message>
    <message id="ui.inspector.price">
      <source>Price</source>
      <translation>Prix</translation>
    </message>
    <message id="ui.inspector.priority">
      <source>Priority</source>
      <translation>Priorité</translation>
    </message>
    <message id="ui.inspector.status">
      <source>Status</source>
      <translation>Statut</translation>
    </message>
    <message id="ui.inspector.subtasks">
      <source>Subtasks</source>
      <translation>Sous-tâches</translation>
    </message>
    <message id="ui.inspector.title">
      <source>Task title</source>
      <translation>Titre de la tâche</translation>
    </message>
    <message id="ui.invoices.allStatuses">
      <source>Every status</source>
      <translation>Tous les statuts</translation>
    </message>
    <message id="ui.invoices.allYears">
      <source>Every year</source>
      <translation>Toutes les années</translation>
    </message>
    <message id="ui.invoices.client">
      <source>Client</source>
      <translation>Client</translation>
    </message>
    <message id="ui.invoices.deleteBody">
      <source>The invoice and its PDF leave your list for good, and its hours become unbilled again. To keep a record, void it instead.</source>
      <translation>La facture et son PDF quittent définitivement votre liste, et ses heures redeviennent non facturées. Pour en garder une trace, annulez-la plutôt.</translation>
    </message>
    <message id="ui.invoices.deleteTitle">
      <source>Delete invoice %1?</source>
      <translation>Supprimer la facture %1 ?</translation>
    </message>
    <message id="ui.invoices.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Facture %1 supprimée ; ses heures redeviennent non facturées.</translation>
    </message>
    <message id="ui.invoices.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>Le PDF n’a pas pu être téléchargé : %1</translation>
    </message>
    <message id="ui.invoices.due">
      <source>Due</source>
      <translation>Échéance</translation>
    </message>
    <message id="ui.invoices.emptyHint">
      <source>Invoices you write from your tracked time appear here, with what is still open and what is overdue.</source>
      <translation>Les factures que vous établissez à partir de votre temps suivi apparaissent ici, avec ce qui reste dû et ce qui est en retard.</translation>
    </message>
    <message id="ui.invoices.emptyTitle">
      <source>No invoices yet</source>
      <translation>Aucune facture pour l’instant</translation>
    </message>
    <message id="ui.invoices.fileTitle">
      <source>Save the invoice PDF</source>
      <translation>Enregistrer le PDF de la facture</translation>
    </message>
    <message id="ui.invoices.foreignLink">
      <source>The link to the PDF does not lead to your server, so it was not opened.</source>
      <translation>Le lien vers le PDF ne mène pas à votre serveur ; il n’a donc pas été ouvert.</translation>
    </message>
    <message id="ui.invoices.issued">
      <source>Issued</source>
      <translation>Émise le</translation>
    </message>
    <message id="ui.invoices.net">
      <source>Net</source>
      <translation>HT</translation>
    </message>
    <message id="ui.invoices.noMatch">
      <source>No invoice matches these filters</source>
      <translation>Aucune facture ne correspond à ces filtres</translation>
    </message>
    <message id="ui.invoices.noMatchHint">
      <source>Choose another status or year.</source>
      <translation>Choisissez un autre statut ou une autre année.</translation>
    </message>
    <message id="ui.invoices.noViewer">
      <source>No program to show PDF files was found. Save the PDF and open it from there.</source>
      <translation>Aucun programme pour afficher les fichiers PDF n’a été trouvé. Enregistrez le PDF et ouvrez-le depuis cet emplacement.</translation>
    </message>
    <message id="ui.invoices.number">
      <source>Number</source>
      <translation>Numéro</translation>
    </message>
    <message id="ui.invoices.open">
      <source>Still open</source>
      <translation>Encore dû</translation>
    </message>
    <message id="ui.invoices.openPdf">
      <source>Open PDF</source>
      <translation>Ouvrir le PDF</translation>
    </message>
    <message id="ui.invoices.overdue">
      <source>Overdue</source>
      <translation>En retard</translation>
    </message>
    <message id="ui.invoices.pdfFilter">
      <source>PDF files (*.pdf)</source>
      <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message id="ui.invoices.redraw">
      <source>Draw again…</source>
      <translation>Refaire…</translation>
    </message>
    <message id="ui.invoices.redrawBody">
      <source>This replaces the stored PDF of this invoice with a new one, built from the invoice lines and the current details of its template. Continue?</source>
      <translation>Le PDF enregistré de cette facture sera remplacé par un nouveau, construit à partir des lignes de la facture et des coordonnées actuelles de son modèle. Continuer ?</translation>
    </message>
    <message id="ui.invoices.redrawConfirm">
      <source>Replace PDF</source>
      <translation>Remplacer le PDF</translation>
    </message>
    <message id="ui.invoices.redrawFailed">
      <source>The invoice could not be drawn: %1</source>
      <translation>La facture n’a pas pu être mise en page : %1</translation>
    </message>
    <message id="ui.invoices.redrawTitle">
      <source>Draw invoice %1 again?</source>
      <translation>Refaire la facture %1 ?</translation>
    </message>
    <message id="ui.invoices.redrawn">
      <source>Invoice %1 was drawn again with your current details.</source>
      <translation>La facture %1 a été refaite avec vos coordonnées actuelles.</translation>
    </message>
    <message id="ui.invoices.savePdf">
      <source>Save PDF…</source>
      <translation>Enregistrer le PDF…</translation>
    </message>
    <message id="ui.invoices.saved">
      <source>Saved to %1</source>
      <translation>Enregistré dans %1</translation>
    </message>
    <message id="ui.invoices.status">
      <source>Status</source>
      <translation>Statut</translation>
    </message>
    <message id="ui.invoices.status.draft">
      <source>Draft</source>
      <translation>Brouillon</translation>
    </message>
    <message id="ui.invoices.status.paid">
      <source>Paid</source>
      <translation>Payée</translation>
    </message>
    <message id="ui.invoices.status.sent">
      <source>Sent</source>
      <translation>Envoyée</translation>
    </message>
    <message id="ui.invoices.status.void">
      <source>Void</source>
      <translation>Annulée</translation>
    </message>
    <message id="ui.invoices.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>La facture %1 est maintenant : %2.</translation>
    </message>
    <message id="ui.invoices.statusFilter">
      <source>Status</source>
      <translation>Statut</translation>
    </message>
    <message id="ui.invoices.title">
      <source>Invoices</source>
      <translation>Factures</translation>
    </message>
    <message id="ui.invoices.total">
      <source>Total</source>
      <translation>TTC</translation>
    </message>
    <message id="ui.invoices.vat">
      <source>VAT</source>
      <translation>TVA</translation>
    </message>
    <message id="ui.invoices.void">
      <source>Void…</source>
      <translation>Annuler…</translation>
    </message>
    <message id="ui.invoices.voidBody">
      <source>A void invoice stays void: it can never be sent, paid or changed again. Its hours become unbilled, so you can invoice them anew.</source>
      <translation>Une facture annulée le reste : elle ne pourra plus jamais être envoyée, payée ni modifiée. Ses heures redeviennent non facturées pour que vous puissiez les facturer à nouveau.</translation>
    </message>
    <message id="ui.invoices.voidConfirm">
      <source>Void</source>
      <translation>Annuler la facture</translation>
    </message>
    <message id="ui.invoices.voidFinal">
      <source>Void — final, it cannot be changed again</source>
      <translation>Annulée — définitif, elle ne peut plus être modifiée</translation>
    </message>
    <message id="ui.invoices.voidTitle">
      <source>Void invoice %1?</source>
      <translation>Annuler la facture %1 ?</translation>
    </message>
    <message id="ui.invoices.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>La facture %1 est annulée ; ses heures redeviennent non facturées.</translation>
    </message>
    <message id="ui.invoices.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message id="ui.invoices.yearFilter">
      <source>Year</source>
      <translation>Année</translation>
    </message>
    <message id="ui.onboarding.currency">
      <source>Currency</source>
      <translation>Devise</translation>
    </message>
    <message id="ui.onboarding.language">
      <source>Language</source>
      <translation>Langue</translation>
    </message>
    <message id="ui.onboarding.name">
      <source>Your name</source>
      <translation>Votre nom</translation>
    </message>
    <message id="ui.onboarding.rate">
      <source>Default hourly rate</source>
      <translation>Taux horaire par défaut</translation>
    </message>
    <message id="ui.onboarding.rateInvalid">
      <source>Enter an amount, such as 85 or 72.50.</source>
      <translation>Saisissez un montant, par exemple 85 ou 72,50.</translation>
    </message>
    <message id="ui.onboarding.timeZone">
      <source>Time zone</source>
      <translation>Fuseau horaire</translation>
    </message>
    <message id="ui.palette.action">
      <source>Action</source>
      <translation>Action</translation>
    </message>
    <message id="ui.palette.ai">
      <source>AI</source>
      <translation>IA</translation>
    </message>
    <message id="ui.palette.capture">
      <source>Quick add “%1”</source>
      <translation>Ajout rapide « %1 »</translation>
    </message>
    <message id="ui.palette.none">
      <source>Nothing matches.</source>
      <translation>Aucun résultat.</translation>
    </message>
    <message id="ui.palette.placeholder">
      <source>Search projects, tasks and actions</source>
      <translation>Rechercher des projets, des tâches et des actions</translation>
    </message>
    <message id="ui.palette.project">
      <source>Project</source>
      <translation>Projet</translation>
    </message>
    <message id="ui.palette.task">
      <source>Task</source>
      <translation>Tâche</translation>
    </message>
    <message id="ui.prices.edit">
      <source>Change the price…</source>
      <translation>Modifier le prix…</translation>
    </message>
    <message id="ui.prices.invalid">
      <source>A field in red cannot be read as a number. Correct it to save.</source>
      <translation>Un champ en rouge ne se lit pas comme un nombre. Corrigez-le pour enregistrer.</translation>
    </message>
    <message id="ui.prices.project">
      <source>Price…</source>
      <translation>Prix…</translation>
    </message>
    <message id="ui.priority.high">
      <source>High</source>
      <translation>Haute</translation>
    </message>
    <message id="ui.priority.low">
      <source>Low</source>
      <translation>Basse</translation>
    </message>
    <message id="ui.priority.medium">
      <source>Medium</source>
      <translation>Moyenne</translation>
    </message>
    <message id="ui.projects.actions">
      <source>Project actions</source>
      <translation>Actions du projet</translation>
    </message>
    <message id="ui.projects.archive">
      <source>Archive</source>
      <translation>Archiver</translation>
    </message>
    <message id="ui.projects.delete">
      <source>Delete project…</source>
      <translation>Supprimer le projet…</translation>
    </message>
    <message id="ui.projects.deleteBody">
      <source>Its tasks and their time entries are deleted too. This cannot be undone.</source>
      <translation>Ses tâches et leurs entrées de temps seront aussi supprimées. Cette action est irréversible.</translation>
    </message>
    <message id="ui.projects.deleteTitle">
      <source>Delete %1?</source>
      <translation>Supprimer %1 ?</translation>
    </message>
    <message id="ui.projects.describe">
      <source>Add a description</source>
      <translation>Ajouter une description</translation>
    </message>
    <message id="ui.projects.invoice">
      <source>Create invoice…</source>
      <translation>Créer une facture…</translation>
    </message>
    <message id="ui.projects.markActive">
      <source>Mark as active</source>
      <translation>Marquer comme actif</translation>
    </message>
    <message id="ui.projects.markCompleted">
      <source>Mark as completed</source>
      <translation>Marquer comme terminé</translation>
    </message>
    <message id="ui.projects.name">
      <source>Project name</source>
      <translation>Nom du projet</translation>
    </message>
    <message id="ui.projects.notShared">
      <source>Not shared</source>
      <translation>Non partagé</translation>
    </message>
    <message id="ui.projects.share">
      <source>Share with a team</source>
      <translation>Partager avec une équipe</translation>
    </message>
    <message id="ui.projects.status.active">
      <source>Active</source>
      <translation>Actif</translation>
    </message>
    <message id="ui.projects.status.archived">
      <source>Archived</source>
      <translation>Archivé</translation>
    </message>
    <message id="ui.projects.status.completed">
      <source>Completed</source>
      <translation>Terminé</translation>
    </message>
    <message id="ui.projects.viewOnly">
      <source>View only</source>
      <translation>Lecture seule</translation>
    </message>
    <message id="ui.reminder.body">
      <source>Start a timer so that the work you are doing now is counted.</source>
      <translation>Démarrez un minuteur pour que le travail que vous faites maintenant soit compté.</translation>
    </message>
    <message id="ui.reminder.title">
      <source>No timer is running</source>
      <translation>Aucun minuteur en cours</translation>
    </message>
    <message id="ui.sessions.autoTrack">
      <source>Auto-track Claude sessions</source>
      <translation>Suivre automatiquement les sessions Claude</translation>
    </message>
    <message id="ui.sessions.burstLine">
      <source>%1 · %2 prompts</source>
      <translation>%1 · %2 requêtes</translation>
    </message>
    <message id="ui.sessions.burstLineOne">
      <source>%1 · 1 prompt</source>
      <translation>%1 · 1 requête</translation>
    </message>
    <message id="ui.sessions.commit">
      <source>Log to project</source>
      <translation>Enregistrer dans le projet</translation>
    </message>
    <message id="ui.sessions.earlier">
      <source>Earlier</source>
      <translation>Plus ancien</translation>
    </message>
    <message id="ui.sessions.emptyHint">
      <source>Run a claude session in any folder on this computer (Claude Code, the command line, anything that writes to ~/.claude/projects/). Then press Rescan. Sessions from the last 30 days are picked up.</source>
      <translation>Lancez une session claude dans n’importe quel dossier de cet ordinateur (Claude Code, la ligne de commande, tout ce qui écrit dans ~/.claude/projects/). Puis cliquez sur Relancer l’analyse. Les sessions des 30 derniers jours sont reprises.</translation>
    </message>
    <message id="ui.sessions.emptyTitle">
      <source>No Claude sessions parsed yet</source>
      <translation>Aucune session Claude lue pour l’instant</translation>
    </message>
    <message id="ui.sessions.err.createProject">
      <source>Create project failed: %1</source>
      <translation>Échec de la création du projet : %1</translation>
    </message>
    <message id="ui.sessions.explainMapping">
      <source>Sessions are tied to their working directory. You map each working dir to one of your projects once; from then on every new conversation in that repo logs automatically. Idle gaps longer than 5 minutes are excluded so an overnight pause does not bill 8 hours.</source>
      <translation>Les sessions sont liées à leur dossier de travail. Vous liez chaque dossier une fois à l’un de vos projets ; ensuite chaque nouvelle conversation dans ce dépôt est enregistrée d’elle-même. Les pauses de plus de 5 minutes sont exclues, pour qu’une nuit ne facture pas 8 heures.</translation>
    </message>
    <message id="ui.sessions.explainPrefix">
      <source>Resulting tasks are prefixed [AI] so you can tell a client exactly what part of the work was AI-assisted.</source>
      <translation>Les tâches ainsi créées commencent par [AI] : vous pouvez dire précisément à un client quelle partie du travail a été faite avec l’IA.</translation>
    </message>
    <message id="ui.sessions.explainScan">
      <source>Every minute Morvane scans your local Claude Code sessions (~/.claude/projects/) and turns each one into a billable time entry on the matching Morvane project.</source>
      <translation>Chaque minute, Morvane analyse vos sessions Claude Code locales (~/.claude/projects/) et transforme chacune en temps facturable sur le projet Morvane correspondant.</translation>
    </message>
    <message id="ui.sessions.fewer">
      <source>Show fewer</source>
      <translation>Afficher moins</translation>
    </message>
    <message id="ui.sessions.folderProject">
      <source>Auto-created for Claude sessions in %1</source>
      <translation>Créé automatiquement pour les sessions Claude de %1</translation>
    </message>
    <message id="ui.sessions.idleGap">
      <source>Idle gap (minutes)</source>
      <translation>Seuil d’inactivité (minutes)</translation>
    </message>
    <message id="ui.sessions.idleGapHelp">
      <source>Gaps longer than this between messages are treated as idle and excluded. 15 min covers most typing pauses.</source>
      <translation>Les pauses plus longues entre deux messages comptent comme inactives et sont exclues. 15 min couvrent la plupart des pauses de frappe.</translation>
    </message>
    <message id="ui.sessions.ignore">
      <source>Ignore</source>
      <translation>Ignorer</translation>
    </message>
    <message id="ui.sessions.lastWeek">
      <source>Last week</source>
      <translation>La semaine dernière</translation>
    </message>
    <message id="ui.sessions.link">
      <source>Link to a project…</source>
      <translation>Lier à un projet…</translation>
    </message>
    <message id="ui.sessions.list">
      <source>Sessions</source>
      <translation>Sessions</translation>
    </message>
    <message id="ui.sessions.loading">
      <source>Reading your sessions…</source>
      <translation>Lecture de vos sessions…</translation>
    </message>
    <message id="ui.sessions.logHelp">
      <source>Log this session to a project, split into %1 tasks by natural breaks</source>
      <translation>Enregistrer cette session dans un projet, découpée en %1 tâches aux pauses naturelles</translation>
    </message>
    <message id="ui.sessions.logTo">
      <source>Log to…</source>
      <translation>Enregistrer dans…</translation>
    </message>
    <message id="ui.sessions.logged">
      <source>Logged %1 of %2 work bursts.</source>
      <translation>%1 séquences de travail sur %2 enregistrées.</translation>
    </message>
    <message id="ui.sessions.loggedChip">
      <source>Logged</source>
      <translation>Enregistrée</translation>
    </message>
    <message id="ui.sessions.manyTasks">
      <source>%1 tasks</source>
      <translation>%1 tâches</translation>
    </message>
    <message id="ui.sessions.more">
      <source>Show all %1 sessions</source>
      <translation>Afficher les %1 sessions</translation>
    </message>
    <message id="ui.sessions.newProject">
      <source>Create new project named "%1"</source>
      <translation>Créer le projet "%1"</translation>
    </message>
    <message id="ui.sessions.noScan">
      <source>No scan yet.</source>
      <translation>Pas encore d’analyse.</translation>
    </message>
    <message id="ui.sessions.notLinked">
      <source>Not linked yet</source>
      <translation>Pas encore lié</translation>
    </message>
    <message id="ui.sessions.oneTask">
      <source>1 task</source>
      <translation>1 tâche</translation>
    </message>
    <message id="ui.sessions.pendingIntro">
      <source>These directories have Claude sessions waiting to be logged. Pick a Morvane project (or Ignore) for each.</source>
      <translation>Ces dossiers ont des sessions Claude en attente d’enregistrement. Choisissez un projet Morvane (ou Ignorer) pour chacun.</translation>
    </message>
    <message id="ui.sessions.pendingLine">
      <source>%1 · %2 sessions · %3 active</source>
      <translation>%1 · %2 sessions · %3 actif</translation>
    </message>
    <message id="ui.sessions.previewTitle">
      <source>Review and log to: %1 (%2)</source>
      <translation>Vérifier et enregistrer dans : %1 (%2)</translation>
    </message>
    <message id="ui.sessions.reimport">
      <source>Re-import</source>
      <translation>Réimporter</translation>
    </message>
    <message id="ui.sessions.reimportAll">
      <source>Re-import all sessions</source>
      <translation>Réimporter toutes les sessions</translation>
    </message>
    <message id="ui.sessions.reimportAllBody">
      <source>Every session is logged again at the next scan. Tasks made earlier stay; delete them yourself if you do not want them twice.</source>
      <translation>Chaque session sera de nouveau enregistrée au prochain scan. Les tâches déjà créées restent ; supprimez-les vous-même si vous ne les voulez pas en double.</translation>
    </message>
    <message id="ui.sessions.reimportAllTitle">
      <source>Re-import all sessions?</source>
      <translation>Réimporter toutes les sessions ?</translation>
    </message>
    <message id="ui.sessions.reimportHelp">
      <source>Re-import this session (forget previous log)</source>
      <translation>Réimporter cette session (oublier l’enregistrement précédent)</translation>
    </message>
    <message id="ui.sessions.rescan">
      <source>Rescan</source>
      <translation>Relancer l’analyse</translation>
    </message>
    <message id="ui.sessions.result">
      <source>Last scan %1: %2 sessions found, %3 work bursts logged (%4), %5 sessions waiting for a project.</source>
      <translation>Dernière analyse %1 : %2 sessions trouvées, %3 séquences de travail enregistrées (%4), %5 sessions en attente d’un projet.</translation>
    </message>
    <message id="ui.sessions.scanNow">
      <source>Scan now</source>
      <translation>Analyser maintenant</translation>
    </message>
    <message id="ui.sessions.sessionLine">
      <source>%1 · %2 active · %3 bursts</source>
      <translation>%1 · %2 actif · %3 séquences</translation>
    </message>
    <message id="ui.sessions.sessionLineOne">
      <source>%1 · %2 active</source>
      <translation>%1 · %2 actif</translation>
    </message>
    <message id="ui.sessions.sessionProject">
      <source>Auto-created for Claude session %1</source>
      <translation>Créé automatiquement pour la session Claude %1</translation>
    </message>
    <message id="ui.sessions.thisWeek">
      <source>Earlier this week</source>
      <translation>Plus tôt cette semaine</translation>
    </message>
    <message id="ui.sessions.title">
      <source>AI sessions</source>
      <translation>Sessions IA</translation>
    </message>
    <message id="ui.sessions.today">
      <source>Today</source>
      <translation>Aujourd’hui</translation>
    </message>
    <message id="ui.sessions.tracking">
      <source>Tracking</source>
      <translation>Suivi</translation>
    </message>
    <message id="ui.sessions.untitled">
      <source>Claude session</source>
      <translation>Session Claude</translation>
    </message>
    <message id="ui.sessions.yesterday">
      <source>Yesterday</source>
      <translation>Hier</translation>
    </message>
    <message id="ui.settings.account">
      <source>Account</source>
      <translation>Compte</translation>
    </message>
    <message id="ui.settings.ai">
      <source>AI</source>
      <translation>IA</translation>
    </message>
    <message id="ui.settings.appearance">
      <source>Appearance</source>
      <translation>Apparence</translation>
    </message>
    <message id="ui.settings.autostart">
      <source>Start Morvane when I log in</source>
      <translation>Lancer Morvane à l’ouverture de session</translation>
    </message>
    <message id="ui.settings.backend">
      <source>Backend</source>
      <translation>Serveur</translation>
    </message>
    <message id="ui.settings.backend.apply">
      <source>Use this backend</source>
      <translation>Utiliser ce serveur</translation>
    </message>
    <message id="ui.settings.backend.invalid">
      <source>Enter the server's https address and its public key.</source>
      <translation>Saisissez l’adresse https du serveur et sa clé publique.</translation>
    </message>
    <message id="ui.settings.backend.local">
      <source>This computer (private, nothing to set up)</source>
      <translation>Cet ordinateur (privé, rien à configurer)</translation>
    </message>
    <message id="ui.settings.backend.remote">
      <source>A shared server (for teams and several computers)</source>
      <translation>Un serveur partagé (pour les équipes et plusieurs ordinateurs)</translation>
    </message>
    <message id="ui.settings.deleteAccount">
      <source>Delete my account</source>
      <translation>Supprimer mon compte</translation>
    </message>
    <message id="ui.settings.deleteConfirm">
      <source>Your e-mail address, to confirm</source>
      <translation>Votre adresse e-mail, pour confirmer</translation>
    </message>
    <message id="ui.settings.deleteHint">
      <source>Deleting your account removes your projects, tasks, time and invoices from the server for good. Type your e-mail address to confirm.</source>
      <translation>Supprimer votre compte efface définitivement du serveur vos projets, tâches, temps et factures. Saisissez votre adresse e-mail pour confirmer.</translation>
    </message>
    <message id="ui.settings.endOfDay">
      <source>Stop the timer at the end of the day</source>
      <translation>Arrêter le minuteur en fin de journée</translation>
    </message>
    <message id="ui.settings.every">
      <source>every (minutes)</source>
      <translation>toutes les (minutes)</translation>
    </message>
    <message id="ui.settings.from">
      <source>From</source>
      <translation>De</translation>
    </message>
    <message id="ui.settings.idleAfter">
      <source>Ask about idle time after (minutes)</source>
      <translation>Demander pour le temps d’inactivité après (minutes)</translation>
    </message>
    <message id="ui.settings.local.folder">
      <source>Data folder</source>
      <translation>Dossier des données</translation>
    </message>
    <message id="ui.settings.local.running">
      <source>Running</source>
      <translation>En marche</translation>
    </message>
    <message id="ui.settings.local.size">
      <source>Size</source>
      <translation>Taille</translation>
    </message>
    <message id="ui.settings.local.start">
      <source>Start</source>
      <translation>Démarrer</translation>
    </message>
    <message id="ui.settings.local.starting">
      <source>Starting</source>
      <translation>Démarrage</translation>
    </message>
    <message id="ui.settings.local.state">
      <source>State</source>
      <translation>État</translation>
    </message>
    <message id="ui.settings.local.stop">
      <source>Stop</source>
      <translation>Arrêter</translation>
    </message>
    <message id="ui.settings.local.stopped">
      <source>Stopped</source>
      <translation>Arrêté</translation>
    </message>
    <message id="ui.settings.longestRun">
      <source>Longest run (minutes, 0 for none)</source>
      <translation>Durée maximale (minutes, 0 pour aucune)</translation>
    </message>
    <message id="ui.settings.looks">
      <source>Language and appearance</source>
      <translation>Langue et apparence</translation>
    </message>
    <message id="ui.settings.profile">
      <source>Profile</source>
      <translation>Profil</translation>
    </message>
    <message id="ui.settings.reminders">
      <source>Remind me when no timer runs during working hours</source>
      <translation>Me rappeler quand aucun minuteur ne tourne pendant les heures de travail</translation>
    </message>
    <message id="ui.settings.remote.key">
      <source>Public key</source>
      <translation>Clé publique</translation>
    </message>
    <message id="ui.settings.remote.url">
      <source>Address</source>
      <translation>Adresse</translation>
    </message>
    <message id="ui.settings.saved">
      <source>Saved.</source>
      <translation>Enregistré.</translation>
    </message>
    <message id="ui.settings.scheme.dark">
      <source>Dark</source>
      <translation>Sombre</translation>
    </message>
    <message id="ui.settings.scheme.light">
      <source>Light</source>
      <translation>Clair</translation>
    </message>
    <message id="ui.settings.scheme.system">
      <source>As the desktop</source>
      <translation>Comme le bureau</translation>
    </message>
    <message id="ui.settings.signedInAs">
      <source>Signed in as %1</source>
      <translation>Connecté en tant que %1</translation>
    </message>
    <message id="ui.settings.switchTo">
      <source>Switch to %1</source>
      <translation>Passer à %1</translation>
    </message>
    <message id="ui.settings.timer">
      <source>Timer</source>
      <translation>Minuteur</translation>
    </message>
    <message id="ui.settings.to">
      <source>to</source>
      <translation>à</translation>
    </message>
    <message id="ui.sidebar.newProjectName">
      <source>New project name</source>
      <translation>Nom du nouveau projet</translation>
    </message>
    <message id="ui.sidebar.newTeamName">
      <source>New team name</source>
      <translation>Nom de la nouvelle équipe</translation>
    </message>
    <message id="ui.sidebar.overview">
      <source>All projects</source>
      <translation>Tous les projets</translation>
    </message>
    <message id="ui.sidebar.projects">
      <source>Projects</source>
      <translation>Projets</translation>
    </message>
    <message id="ui.sidebar.running">
      <source>Timer running</source>
      <translation>Minuteur en cours</translation>
    </message>
    <message id="ui.sidebar.shared">
      <source>Shared with a team</source>
      <translation>Partagés avec une équipe</translation>
    </message>
    <message id="ui.sidebar.teams">
      <source>Teams</source>
      <translation>Équipes</translation>
    </message>
    <message id="ui.startup.backend">
      <source>Starting your local backend…</source>
      <translation>Démarrage de votre serveur local…</translation>
    </message>
    <message id="ui.startup.failed">
      <source>Your local backend could not start.</source>
      <translation>Votre serveur local n’a pas pu démarrer.</translation>
    </message>
    <message id="ui.startup.loading">
      <source>Loading your projects…</source>
      <translation>Chargement de vos projets…</translation>
    </message>
    <message id="ui.status.completed">
      <source>Completed</source>
      <translation>Terminée</translation>
    </message>
    <message id="ui.status.in_progress">
      <source>In progress</source>
      <translation>En cours</translation>
    </message>
    <message id="ui.status.not_started">
      <source>Not started</source>
      <translation>Non commencée</translation>
    </message>
    <message id="ui.style.accent">
      <source>Accent</source>
      <translation>Accent</translation>
    </message>
    <message id="ui.style.address">
      <source>Address</source>
      <translation>Adresse</translation>
    </message>
    <message id="ui.style.bank">
      <source>Bank</source>
      <translation>Banque</translation>
    </message>
    <message id="ui.style.banner">
      <source>Banner</source>
      <translation>Bandeau</translation>
    </message>
    <message id="ui.style.border">
      <source>Border</source>
      <translation>Bordure</translation>
    </message>
    <message id="ui.style.btw">
      <source>VAT number</source>
      <translation>Numéro de TVA</translation>
    </message>
    <message id="ui.style.chooseLogo">
      <source>Choose logo…</source>
      <translation>Choisir un logo…</translation>
    </message>
    <message id="ui.style.colourAuto">
      <source>auto</source>
      <translation>auto</translation>
    </message>
    <message id="ui.style.company">
      <source>Company</source>
      <translation>Entreprise</translation>
    </message>
    <message id="ui.style.customHint">
      <source>An HTML page with {{placeholders}}, a &lt;header&gt; and a &lt;footer&gt;, fixed at 794 × 1123 px. When it cannot be used, invoices are drawn in “Light minimal”.</source>
      <translation>Une page HTML avec des {{espaces réservés}}, un &lt;header&gt; et un &lt;footer&gt;, fixée à 794 × 1123 px. Si elle est inutilisable, les factures prennent le modèle « Clair minimal ».</translation>
    </message>
    <message id="ui.style.customTitle">
      <source>Your own template</source>
      <translation>Votre propre modèle</translation>
    </message>
    <message id="ui.style.days">
      <source>Payment terms in days</source>
      <translation>Délai de paiement en jours</translation>
    </message>
    <message id="ui.style.design.aiCustom">
      <source>Your template</source>
      <translation>Votre modèle</translation>
    </message>
    <message id="ui.style.design.boldDark">
      <source>Bold dark</source>
      <translation>Sombre affirmé</translation>
    </message>
    <message id="ui.style.design.editorial">
      <source>Editorial</source>
      <translation>Éditorial</translation>
    </message>
    <message id="ui.style.design.editorialMono">
      <source>Editorial mono</source>
      <translation>Éditorial mono</translation>
    </message>
    <message id="ui.style.design.lightMinimalAccent">
      <source>Light minimal</source>
      <translation>Clair minimal</translation>
    </message>
    <message id="ui.style.design.minimalistMono">
      <source>Minimalist mono</source>
      <translation>Minimaliste mono</translation>
    </message>
    <message id="ui.style.design.modernRibbon">
      <source>Modern ribbon</source>
      <translation>Ruban moderne</translation>
    </message>
    <message id="ui.style.design.pastelModern">
      <source>Pastel modern</source>
      <translation>Pastel moderne</translation>
    </message>
    <message id="ui.style.design.signatureEditorial">
      <source>Signature</source>
      <translation>Signature</translation>
    </message>
    <message id="ui.style.designs">
      <source>Design</source>
      <translation>Modèle</translation>
    </message>
    <message id="ui.style.designsHint">
      <source>Every new invoice is drawn in the chosen design. The pictures show a sample invoice in your style.</source>
      <translation>Chaque nouvelle facture utilise le modèle choisi. Les images montrent une facture d’exemple dans votre style.</translation>
    </message>
    <message id="ui.style.drawing">
      <source>Drawing the designs</source>
      <translation>Dessin des modèles</translation>
    </message>
    <message id="ui.style.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.style.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>Le délai de paiement est un nombre entier de jours entre 0 et 365.</translation>
    </message>
    <message id="ui.style.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>Le taux de TVA est un pourcentage entre 0 et 100.</translation>
    </message>
    <message id="ui.style.fallsBack">
      <source>%1 Invoices fall back to “Light minimal” until it is fixed.</source>
      <translation>%1 Tant que ce n’est pas corrigé, les factures prennent le modèle « Clair minimal ».</translation>
    </message>
    <message id="ui.style.fontAuto">
      <source>The design’s own</source>
      <translation>Celle du modèle</translation>
    </message>
    <message id="ui.style.fontBody">
      <source>Text font</source>
      <translation>Police du texte</translation>
    </message>
    <message id="ui.style.fontDisplay">
      <source>Headings font</source>
      <translation>Police des titres</translation>
    </message>
    <message id="ui.style.footer">
      <source>Footer</source>
      <translation>Pied de page</translation>
    </message>
    <message id="ui.style.footerPlaceholder">
      <source>Thank you for your business.</source>
      <translation>Merci pour votre confiance.</translation>
    </message>
    <message id="ui.style.htmlFilter">
      <source>HTML files (*.html *.htm)</source>
      <translation>Fichiers HTML (*.html *.htm)</translation>
    </message>
    <message id="ui.style.iban">
      <source>Bank account (IBAN)</source>
      <translation>Compte bancaire (IBAN)</translation>
    </message>
    <message id="ui.style.imageFilter">
      <source>Images (*.png *.jpg *.jpeg)</source>
      <translation>Images (*.png *.jpg *.jpeg)</translation>
    </message>
    <message id="ui.style.ink">
      <source>Ink</source>
      <translation>Texte</translation>
    </message>
    <message id="ui.style.kvk">
      <source>Chamber of commerce number</source>
      <translation>Numéro SIREN</translation>
    </message>
    <message id="ui.style.logo">
      <source>Logo</source>
      <translation>Logo</translation>
    </message>
    <message id="ui.style.logoDialog">
      <source>Choose a logo</source>
      <translation>Choisir un logo</translation>
    </message>
    <message id="ui.style.logoHint">
      <source>PNG or JPEG, at most 1 MB; wider than 600 px is scaled down.</source>
      <translation>PNG ou JPEG, 1 Mo au plus ; au-delà de 600 px de large, il est réduit.</translation>
    </message>
    <message id="ui.style.look">
      <source>Look</source>
      <translation>Apparence</translation>
    </message>
    <message id="ui.style.madeWith">
      <source>Show “Made with Morvane” in the footer</source>
      <translation>Afficher « Créé avec Morvane » en pied de page</translation>
    </message>
    <message id="ui.style.muted">
      <source>Muted</source>
      <translation>Atténué</translation>
    </message>
    <message id="ui.style.noLogo">
      <source>No logo</source>
      <translation>Aucun logo</translation>
    </message>
    <message id="ui.style.noTemplate">
      <source>No template uploaded: invoices use the design chosen above.</source>
      <translation>Aucun modèle importé : les factures utilisent le modèle choisi ci-dessus.</translation>
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
      <translation>Téléphone</translation>
    </message>
    <message id="ui.style.removeLogo">
      <source>Remove logo</source>
      <translation>Retirer le logo</translation>
    </message>
    <message id="ui.style.removeTemplate">
      <source>Remove template</source>
      <translation>Retirer le modèle</translation>
    </message>
    <message id="ui.style.revert">
      <source>Undo changes</source>
      <translation>Annuler les modifications</translation>
    </message>
    <message id="ui.style.saving">
      <source>Saving…</source>
      <translation>Enregistrement…</translation>
    </message>
    <message id="ui.style.sender">
      <source>Sender</source>
      <translation>Expéditeur</translation>
    </message>
    <message id="ui.style.templateDialog">
      <source>Choose an HTML template</source>
      <translation>Choisir un modèle HTML</translation>
    </message>
    <message id="ui.style.templateNotUsed">
      <source>Not used</source>
      <translation>Non utilisé</translation>
    </message>
    <message id="ui.style.templateUsed">
      <source>Used</source>
      <translation>Utilisé</translation>
    </message>
    <message id="ui.style.title">
      <source>Invoice style</source>
      <translation>Style des factures</translation>
    </message>
    <message id="ui.style.unsaved">
      <source>Unsaved changes</source>
      <translation>Modifications non enregistrées</translation>
    </message>
    <message id="ui.style.upload">
      <source>Upload template…</source>
      <translation>Importer un modèle…</translation>
    </message>
    <message id="ui.style.vatRate">
      <source>Default VAT rate in %</source>
      <translation>Taux de TVA par défaut en %</translation>
    </message>
    <message id="ui.style.website">
      <source>Website</source>
      <translation>Site web</translation>
    </message>
    <message id="ui.summary.callFailed">
      <source>The model could not be asked (%1). This text is written from your figures alone.</source>
      <translation>Le modèle n’a pas pu être interrogé (%1). Ce texte est rédigé à partir de vos seuls chiffres.</translation>
    </message>
    <message id="ui.summary.copy">
      <source>Copy</source>
      <translation>Copier</translation>
    </message>
    <message id="ui.summary.draftingStandup">
      <source>Drafting your stand-up…</source>
      <translation>Préparation de votre point du jour…</translation>
    </message>
    <message id="ui.summary.fixed">
      <source>Written from your figures</source>
      <translation>Rédigé à partir de vos chiffres</translation>
    </message>
    <message id="ui.summary.generate">
      <source>Generate</source>
      <translation>Générer</translation>
    </message>
    <message id="ui.summary.language">
      <source>Language of the text</source>
      <translation>Langue du texte</translation>
    </message>
    <message id="ui.summary.model">
      <source>Written by the model, checked against your figures</source>
      <translation>Rédigé par le modèle, vérifié avec vos chiffres</translation>
    </message>
    <message id="ui.summary.nothing">
      <source>Nothing was tracked in this period, so there was nothing to put in words.</source>
      <translation>Rien n’a été suivi sur cette période : il n’y avait rien à mettre en mots.</translation>
    </message>
    <message id="ui.summary.readFailed">
      <source>Your time could not be read: %1</source>
      <translation>Votre temps n’a pas pu être lu : %1</translation>
    </message>
    <message id="ui.summary.recap">
      <source>Weekly recap</source>
      <translation>Bilan de la semaine</translation>
    </message>
    <message id="ui.summary.recapHint">
      <source>Press Generate for a short recap of the time you tracked this week.</source>
      <translation>Cliquez sur Générer pour un bref bilan du temps suivi cette semaine.</translation>
    </message>
    <message id="ui.summary.rejected">
      <source>The model's words did not hold up against your figures (%1). This text is written from your figures alone.</source>
      <translation>Le texte du modèle ne concordait pas avec vos chiffres (%1). Ce texte est rédigé à partir de vos seuls chiffres.</translation>
    </message>
    <message id="ui.summary.standup">
      <source>Daily stand-up</source>
      <translation>Point du jour</translation>
    </message>
    <message id="ui.summary.standupHint">
      <source>Press Generate to draft your stand-up.</source>
      <translation>Cliquez sur Générer pour préparer votre point du jour.</translation>
    </message>
    <message id="ui.summary.textName">
      <source>Recap or stand-up text</source>
      <translation>Texte du bilan ou du point</translation>
    </message>
    <message id="ui.summary.title">
      <source>Recap and stand-up</source>
      <translation>Bilan et point du jour</translation>
    </message>
    <message id="ui.summary.uiLanguage">
      <source>Interface language</source>
      <translation>Langue de l’interface</translation>
    </message>
    <message id="ui.summary.writingRecap">
      <source>Writing your recap…</source>
      <translation>Rédaction de votre bilan…</translation>
    </message>
    <message id="ui.tasks.add">
      <source>Add a task and press Enter</source>
      <translation>Ajoutez une tâche et appuyez sur Enter</translation>
    </message>
    <message id="ui.tasks.bulkDeleteTitle">
      <source>Delete the selected tasks (%1)?</source>
      <translation>Supprimer les tâches sélectionnées (%1) ?</translation>
    </message>
    <message id="ui.tasks.check">
      <source>Select %1</source>
      <translation>Sélectionner %1</translation>
    </message>
    <message id="ui.tasks.clearSelection">
      <source>Clear</source>
      <translation>Désélectionner</translation>
    </message>
    <message id="ui.tasks.deleteBody">
      <source>Its time entries are deleted too.</source>
      <translation>Ses entrées de temps seront aussi supprimées.</translation>
    </message>
    <message id="ui.tasks.deleteTitle">
      <source>Delete this task?</source>
      <translation>Supprimer cette tâche ?</translation>
    </message>
    <message id="ui.tasks.dragHandle">
      <source>Drag to reorder</source>
      <translation>Faire glisser pour réorganiser</translation>
    </message>
    <message id="ui.tasks.empty">
      <source>No tasks yet.</source>
      <translation>Pas encore de tâche.</translation>
    </message>
    <message id="ui.tasks.emptyHint">
      <source>Press Ctrl+N to add one.</source>
      <translation>Appuyez sur Ctrl+N pour en ajouter une.</translation>
    </message>
    <message id="ui.tasks.filter">
      <source>Filter</source>
      <translation>Filtrer</translation>
    </message>
    <message id="ui.tasks.filter.active">
      <source>Open</source>
      <translation>Ouvertes</translation>
    </message>
    <message id="ui.tasks.filter.all">
      <source>All</source>
      <translation>Toutes</translation>
    </message>
    <message id="ui.tasks.filter.archived">
      <source>Archived</source>
      <translation>Archivées</translation>
    </message>
    <message id="ui.tasks.filter.done">
      <source>Done</source>
      <translation>Terminées</translation>
    </message>
    <message id="ui.tasks.list">
      <source>Tasks</source>
      <translation>Tâches</translation>
    </message>
    <message id="ui.tasks.markDone">
      <source>Mark done</source>
      <translation>Terminer</translation>
    </message>
    <message id="ui.tasks.moveTo">
      <source>Move to…</source>
      <translation>Déplacer vers…</translation>
    </message>
    <message id="ui.tasks.needsProject">
      <source>Create a project first: tasks belong to a project.</source>
      <translation>Créez d’abord un projet : chaque tâche appartient à un projet.</translation>
    </message>
    <message id="ui.tasks.noMatch">
      <source>No task matches “%1”.</source>
      <translation>Aucune tâche ne correspond à « %1 ».</translation>
    </message>
    <message id="ui.tasks.noMatchHint">
      <source>Try fewer letters, or press Esc to clear the search.</source>
      <translation>Essayez avec moins de lettres, ou appuyez sur Esc pour effacer la recherche.</translation>
    </message>
    <message id="ui.tasks.noProjects">
      <source>No projects yet.</source>
      <translation>Pas encore de projet.</translation>
    </message>
    <message id="ui.tasks.noProjectsHint">
      <source>Press Ctrl+Shift+N to create your first project.</source>
      <translation>Appuyez sur Ctrl+Shift+N pour créer votre premier projet.</translation>
    </message>
    <message id="ui.tasks.reopen">
      <source>Reopen</source>
      <translation>Rouvrir</translation>
    </message>
    <message id="ui.tasks.search">
      <source>Search</source>
      <translation>Rechercher</translation>
    </message>
    <message id="ui.tasks.selected">
      <source>%1 selected</source>
      <translation>Sélection : %1</translation>
    </message>
    <message id="ui.tasks.sort">
      <source>Sort</source>
      <translation>Trier</translation>
    </message>
    <message id="ui.tasks.sort.alpha">
      <source>Name</source>
      <translation>Nom</translation>
    </message>
    <message id="ui.tasks.sort.createdDesc">
      <source>Newest first</source>
      <translation>Plus récentes d’abord</translation>
    </message>
    <message id="ui.tasks.sort.dueAsc">
      <source>Due date</source>
      <translation>Échéance</translation>
    </message>
    <message id="ui.tasks.sort.manual">
      <source>Manual order</source>
      <translation>Ordre manuel</translation>
    </message>
    <message id="ui.tasks.sort.priorityDesc">
      <source>Priority</source>
      <translation>Priorité</translation>
    </message>
    <message id="ui.tasks.sort.trackedDesc">
      <source>Most tracked</source>
      <translation>Plus de temps suivi</translation>
    </message>
    <message id="ui.teams.accept">
      <source>Accept</source>
      <translation>Accepter</translation>
    </message>
    <message id="ui.teams.decline">
      <source>Decline</source>
      <translation>Refuser</translation>
    </message>
    <message id="ui.teams.invitations">
      <source>Invitations for you</source>
      <translation>Invitations reçues</translation>
    </message>
    <message id="ui.teams.invite">
      <source>Invite by e-mail</source>
      <translation>Inviter par e-mail</translation>
    </message>
    <message id="ui.teams.inviteButton">
      <source>Invite</source>
      <translation>Inviter</translation>
    </message>
    <message id="ui.teams.leave">
      <source>Leave the team</source>
      <translation>Quitter l’équipe</translation>
    </message>
    <message id="ui.teams.leaveTitle">
      <source>Leave %1?</source>
      <translation>Quitter %1 ?</translation>
    </message>
    <message id="ui.teams.members">
      <source>Members</source>
      <translation>Membres</translation>
    </message>
    <message id="ui.teams.remove">
      <source>Remove</source>
      <translation>Retirer</translation>
    </message>
    <message id="ui.teams.removeBody">
      <source>The team's projects are no longer shared with them. Their own time stays theirs.</source>
      <translation>Les projets de l’équipe ne sont plus partagés avec cette personne. Son propre temps lui reste.</translation>
    </message>
    <message id="ui.teams.removeTitle">
      <source>Remove this member?</source>
      <translation>Retirer ce membre ?</translation>
    </message>
    <message id="ui.teams.role">
      <source>Role</source>
      <translation>Rôle</translation>
    </message>
    <message id="ui.teams.role.editor">
      <source>Editor</source>
      <translation>Éditeur</translation>
    </message>
    <message id="ui.teams.role.owner">
      <source>Owner</source>
      <translation>Propriétaire</translation>
    </message>
    <message id="ui.teams.role.viewer">
      <source>Viewer</source>
      <translation>Lecteur</translation>
    </message>
    <message id="ui.teams.viewerNote">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Seuls le propriétaire et les éditeurs de l’équipe peuvent inviter des personnes.</translation>
    </message>
    <message id="ui.timeLimit.body">
      <source>“%1” was stopped at %2, and the time until then is logged.</source>
      <translation>« %1 » a été arrêté à %2 ; le temps jusque-là est enregistré.</translation>
    </message>
    <message id="ui.timeLimit.endOfDay">
      <source>Timer stopped at the end of your day</source>
      <translation>Minuteur arrêté à la fin de votre journée</translation>
    </message>
    <message id="ui.timeLimit.longestRun">
      <source>Timer stopped after its longest run</source>
      <translation>Minuteur arrêté après sa durée maximale</translation>
    </message>
    <message id="ui.timer.idle">
      <source>No timer running. Select a task and press Space.</source>
      <translation>Aucun minuteur en cours. Sélectionnez une tâche et appuyez sur Espace.</translation>
    </message>
    <message id="ui.timer.name">
      <source>Timer</source>
      <translation>Minuteur</translation>
    </message>
    <message id="ui.timer.notRunning">
      <source>Not running</source>
      <translation>Arrêté</translation>
    </message>
    <message id="ui.timer.offline">
      <source>Offline</source>
      <translation>Hors ligne</translation>
    </message>
    <message id="ui.timer.offlineHint">
      <source>Offline: changes from other devices arrive when the connection is back.</source>
      <translation>Hors ligne : les modifications faites sur d’autres appareils arriveront au retour de la connexion.</translation>
    </message>
    <message id="ui.timer.start">
      <source>Start</source>
      <translation>Démarrer</translation>
    </message>
    <message id="ui.timer.stop">
      <source>Stop</source>
      <translation>Arrêter</translation>
    </message>
    <message id="ui.tray.floating">
      <source>Floating timer</source>
      <translation>Minuteur flottant</translation>
    </message>
    <message id="ui.tray.open">
      <source>Open Morvane</source>
      <translation>Ouvrir Morvane</translation>
    </message>
    <message id="ui.tray.quickAdd">
      <source>Quick add…</source>
      <translation>Ajout rapide…</translation>
    </message>
    <message id="ui.tray.quit">
      <source>Quit</source>
      <translation>Quitter</translation>
    </message>
    <message id="ui.tray.start">
      <source>Start</source>
      <translation>Démarrer</translation>
    </message>
    <message id="ui.tray.stop">
      <source>Stop the timer</source>
      <translation>Arrêter le minuteur</translation>
    </message>
    <message id="ui.trips.allProjects">
      <source>All projects</source>
      <translation>Tous les projets</translation>
    </message>
    <message id="ui.trips.billable.all">
      <source>Charged and not</source>
      <translation>Facturés ou non</translation>
    </message>
    <message id="ui.trips.billable.no">
      <source>Private or not charged</source>
      <translation>Privés ou non facturés</translation>
    </message>
    <message id="ui.trips.billable.yes">
      <source>Charged to the client</source>
      <translation>Facturés au client</translation>
    </message>
    <message id="ui.trips.billableFilter">
      <source>Charging</source>
      <translation>Facturation</translation>
    </message>
    <message id="ui.trips.charge">
      <source>Charge to the client</source>
      <translation>Facturer au client</translation>
    </message>
    <message id="ui.trips.chip.invoiced">
      <source>Invoiced</source>
      <translation>Facturé</translation>
    </message>
    <message id="ui.trips.chip.notCharged">
      <source>Not charged</source>
      <translation>Non facturé</translation>
    </message>
    <message id="ui.trips.chip.private">
      <source>Private</source>
      <translation>Privé</translation>
    </message>
    <message id="ui.trips.chip.toInvoice">
      <source>To invoice</source>
      <translation>À facturer</translation>
    </message>
    <message id="ui.trips.clientHit">
      <source>Client</source>
      <translation>Client</translation>
    </message>
    <message id="ui.trips.date">
      <source>Date</source>
      <translation>Date</translation>
    </message>
    <message id="ui.trips.edit">
      <source>Edit trip</source>
      <translation>Modifier le trajet</translation>
    </message>
    <message id="ui.trips.emptyHint">
      <source>Trips your phone records while a timer runs show up here. Press Ctrl+N or “New trip” to add one by hand.</source>
      <translation>Les trajets que votre téléphone enregistre pendant un minuteur apparaissent ici. Appuyez sur Ctrl+N ou « Nouveau trajet » pour en ajouter un à la main.</translation>
    </message>
    <message id="ui.trips.emptyTitle">
      <source>No trips yet</source>
      <translation>Aucun trajet pour l'instant</translation>
    </message>
    <message id="ui.trips.finish">
      <source>Finish trip</source>
      <translation>Terminer le trajet</translation>
    </message>
    <message id="ui.trips.from">
      <source>From</source>
      <translation>De</translation>
    </message>
    <message id="ui.trips.km">
      <source>Kilometres</source>
      <translation>Kilomètres</translation>
    </message>
    <message id="ui.trips.kmColumn">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="ui.trips.map.route">
      <source>Road route of the trip</source>
      <translation>Itinéraire routier du trajet</translation>
    </message>
    <message id="ui.trips.map.straight">
      <source>Straight line between the places</source>
      <translation>Ligne droite entre les lieux</translation>
    </message>
    <message id="ui.trips.mode">
      <source>Travelled by</source>
      <translation>Moyen de transport</translation>
    </message>
    <message id="ui.trips.mode.bike">
      <source>Bike</source>
      <translation>Vélo</translation>
    </message>
    <message id="ui.trips.mode.car">
      <source>Car</source>
      <translation>Voiture</translation>
    </message>
    <message id="ui.trips.mode.other">
      <source>Other</source>
      <translation>Autre</translation>
    </message>
    <message id="ui.trips.mode.transit">
      <source>Public transport</source>
      <translation>Transports en commun</translation>
    </message>
    <message id="ui.trips.mode.walk">
      <source>On foot</source>
      <translation>À pied</translation>
    </message>
    <message id="ui.trips.new">
      <source>New trip</source>
      <translation>Nouveau trajet</translation>
    </message>
    <message id="ui.trips.noMatch">
      <source>No trip matches these filters</source>
      <translation>Aucun trajet ne correspond à ces filtres</translation>
    </message>
    <message id="ui.trips.period.all">
      <source>All time</source>
      <translation>Toute la période</translation>
    </message>
    <message id="ui.trips.period.lastMonth">
      <source>Last month</source>
      <translation>Le mois dernier</translation>
    </message>
    <message id="ui.trips.period.month">
      <source>This month</source>
      <translation>Ce mois-ci</translation>
    </message>
    <message id="ui.trips.period.year">
      <source>This year</source>
      <translation>Cette année</translation>
    </message>
    <message id="ui.trips.periodFilter">
      <source>Period</source>
      <translation>Période</translation>
    </message>
    <message id="ui.trips.placePlaceholder">
      <source>Address, place or client</source>
      <translation>Adresse, lieu ou client</translation>
    </message>
    <message id="ui.trips.private">
      <source>Private trip</source>
      <translation>Trajet privé</translation>
    </message>
    <message id="ui.trips.problem.date">
      <source>Enter the day as YYYY-MM-DD.</source>
      <translation>Saisissez le jour au format AAAA-MM-JJ (YYYY-MM-DD).</translation>
    </message>
    <message id="ui.trips.problem.from">
      <source>Where did the trip start?</source>
      <translation>D'où partait le trajet ?</translation>
    </message>
    <message id="ui.trips.problem.km">
      <source>Enter the kilometres, for example 12.5.</source>
      <translation>Saisissez les kilomètres, par exemple 12,5.</translation>
    </message>
    <message id="ui.trips.problem.rate">
      <source>Enter the rate per kilometre as a number, for example 0.23.</source>
      <translation>Saisissez le tarif au kilomètre en chiffres, par exemple 0,23.</translation>
    </message>
    <message id="ui.trips.problem.to">
      <source>Where did the trip end?</source>
      <translation>Où finissait le trajet ?</translation>
    </message>
    <message id="ui.trips.progress">
      <source>%1 km · %2 min</source>
      <translation>%1 km · %2 min</translation>
    </message>
    <message id="ui.trips.projectFilter">
      <source>Project</source>
      <translation>Projet</translation>
    </message>
    <message id="ui.trips.projectHint">
      <source>Trips of this project go on its invoices. Private trips and trips you do not charge never do.</source>
      <translation>Les trajets de ce projet figurent sur ses factures. Jamais les trajets privés ni ceux que vous ne facturez pas.</translation>
    </message>
    <message id="ui.trips.purpose">
      <source>Purpose</source>
      <translation>Motif</translation>
    </message>
    <message id="ui.trips.purposePlaceholder">
      <source>For example: meeting at the client, delivery</source>
      <translation>Par exemple : réunion chez le client, livraison</translation>
    </message>
    <message id="ui.trips.rate">
      <source>Rate per kilometre</source>
      <translation>Tarif au kilomètre</translation>
    </message>
    <message id="ui.trips.rateHint">
      <source>Used for projects that charge travel per kilometre and name no rate of their own.</source>
      <translation>Pour les projets qui facturent les trajets au kilomètre sans tarif propre.</translation>
    </message>
    <message id="ui.trips.resultsFrom">
      <source>Results from OpenStreetMap, without KvK numbers.</source>
      <translation>Résultats d'OpenStreetMap, sans numéros KvK.</translation>
    </message>
    <message id="ui.trips.routing">
      <source>Finding the road route…</source>
      <translation>Recherche de l'itinéraire routier…</translation>
    </message>
    <message id="ui.trips.searching">
      <source>Searching…</source>
      <translation>Recherche…</translation>
    </message>
    <message id="ui.trips.settings">
      <source>Travel settings</source>
      <translation>Réglages des déplacements</translation>
    </message>
    <message id="ui.trips.start">
      <source>Start a trip now</source>
      <translation>Commencer un trajet</translation>
    </message>
    <message id="ui.trips.summaryMany">
      <source>%1 trips · %2 km</source>
      <translation>%1 trajets · %2 km</translation>
    </message>
    <message id="ui.trips.summaryOne">
      <source>1 trip · %1 km</source>
      <translation>1 trajet · %1 km</translation>
    </message>
    <message id="ui.trips.title">
      <source>Trips</source>
      <translation>Trajets</translation>
    </message>
    <message id="ui.trips.to">
      <source>To</source>
      <translation>À</translation>
    </message>
    <message id="ui.trips.toInvoice">
      <source>%1 to invoice: %2</source>
      <translation>%1 à facturer : %2</translation>
    </message>
    <message id="ui.trips.trip">
      <source>Trip</source>
      <translation>Trajet</translation>
    </message>
    <message id="ui.trips.usualMode">
      <source>Usually travel by</source>
      <translation>Se déplace d'habitude en</translation>
    </message>
    <message id="ui.trips.work">
      <source>Project and task</source>
      <translation>Projet et tâche</translation>
    </message>
    <message id="ui.trips.work.none">
      <source>Choose a project or task</source>
      <translation>Choisir un projet ou une tâche</translation>
    </message>
    <message id="ui.trips.work.wholeProject">
      <source>%1 · Whole project, no task</source>
      <translation>%1 · Tout le projet, sans tâche</translation>
    </message>
  </context>
</TS>

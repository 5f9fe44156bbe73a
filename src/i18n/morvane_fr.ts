<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
  <context>
    <name>Morvane</name>
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
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>La commande à exécuter ; sans commande, la liste des commandes s’affiche.</translation>
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
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Utilisation : morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Créer un compte, se connecter et se déconnecter, changer de compte</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Afficher le serveur utilisé par Morvane et l’origine de chaque réglage</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Démarrer, arrêter ou afficher le serveur local : server start|stop|status</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Commandes :</translation>
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
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Commande inconnue : %1. Lancez morvane --help pour la liste des commandes.</translation>
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
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>Vos clients n’ont pas pu être chargés.</translation>
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
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Réalisé avec Morvane</translation>
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
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>La tâche n’a pas été créée : vous ne pouvez pas ajouter de tâches à ce projet.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>La tâche n’a pas été modifiée : vous n’avez pas le droit de la modifier, ou elle n’existe plus.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>L’équipe n’a pas été créée. Réessayez.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>Vos équipes n’ont pas pu être chargées.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>Le minuteur de cette tâche a été lancé sur un autre appareil, son statut n’a donc pas été modifié.</translation>
    </message>
  </context>
</TS>

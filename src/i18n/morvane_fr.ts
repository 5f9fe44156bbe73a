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
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Afficher le serveur utilisé par Morvane et l’origine de chaque réglage</translation>
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
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Afficher la version.</translation>
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
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Un problème est survenu. Réessayez.</translation>
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
  </context>
</TS>

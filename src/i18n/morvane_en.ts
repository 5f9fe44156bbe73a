<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
  <context>
    <name>Morvane</name>
    <message id="auth.err.emailExists">
      <source>An account with this e-mail address exists already. Sign in instead.</source>
      <translation>An account with this e-mail address exists already. Sign in instead.</translation>
    </message>
    <message id="auth.err.invalidEmail">
      <source>Enter a valid e-mail address.</source>
      <translation>Enter a valid e-mail address.</translation>
    </message>
    <message id="auth.err.network">
      <source>Morvane cannot reach the server. Check your connection and try again.</source>
      <translation>Morvane cannot reach the server. Check your connection and try again.</translation>
    </message>
    <message id="auth.err.oauthBadUrl">
      <source>The sign-in address is not valid.</source>
      <translation>The sign-in address is not valid.</translation>
    </message>
    <message id="auth.err.oauthCancelled">
      <source>The sign-in was cancelled.</source>
      <translation>The sign-in was cancelled.</translation>
    </message>
    <message id="auth.err.oauthCannotStart">
      <source>Could not start the sign-in.</source>
      <translation>Could not start the sign-in.</translation>
    </message>
    <message id="auth.err.oauthNoCode">
      <source>The sign-in came back without a code.</source>
      <translation>The sign-in came back without a code.</translation>
    </message>
    <message id="auth.err.rateLimit">
      <source>Too many attempts. Wait a few minutes, then try again.</source>
      <translation>Too many attempts. Wait a few minutes, then try again.</translation>
    </message>
    <message id="auth.err.server">
      <source>The server ran into a problem. Try again in a moment.</source>
      <translation>The server ran into a problem. Try again in a moment.</translation>
    </message>
    <message id="auth.err.switchExpired">
      <source>Couldn't switch to %1. That account's session expired - sign in to it again.</source>
      <translation>Couldn't switch to %1. That account's session expired - sign in to it again.</translation>
    </message>
    <message id="auth.oauthDone">
      <source>You are signed in to Morvane. You can close this window.</source>
      <translation>You are signed in to Morvane. You can close this window.</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>The command to run; without one, the command list is shown.</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Show which backend Morvane uses and where each setting comes from</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Commands:</translation>
    </message>
    <message id="cli.config.json">
      <source>Print the setting as JSON.</source>
      <translation>Print the setting as JSON.</translation>
    </message>
    <message id="cli.config.key">
      <source>Anonymous key</source>
      <translation>Anonymous key</translation>
    </message>
    <message id="cli.config.keyMissing">
      <source>not set</source>
      <translation>not set</translation>
    </message>
    <message id="cli.config.url">
      <source>Backend address</source>
      <translation>Backend address</translation>
    </message>
    <message id="cli.description">
      <source>Morvane tracks working time on projects and tasks and turns it into invoices.</source>
      <translation>Morvane tracks working time on projects and tasks and turns it into invoices.</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Unknown command: %1. Run morvane --help for the list of commands.</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>Show this help.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Show the version.</translation>
    </message>
    <message id="config.source.environment">
      <source>environment</source>
      <translation>environment</translation>
    </message>
    <message id="config.source.local">
      <source>local backend</source>
      <translation>local backend</translation>
    </message>
    <message id="config.source.settings">
      <source>application settings</source>
      <translation>application settings</translation>
    </message>
    <message id="errEmailNotConfirmed">
      <source>Confirm your e-mail address first: follow the link in the mail we sent you.</source>
      <translation>Confirm your e-mail address first: follow the link in the mail we sent you.</translation>
    </message>
    <message id="errEmailRateLimit">
      <source>Too many e-mails went to this address. Wait a minute, then try again.</source>
      <translation>Too many e-mails went to this address. Wait a minute, then try again.</translation>
    </message>
    <message id="errInvalidCredentials">
      <source>The e-mail address or the password is not right.</source>
      <translation>The e-mail address or the password is not right.</translation>
    </message>
    <message id="net.err.connection">
      <source>Could not reach the server: %1</source>
      <translation>Could not reach the server: %1</translation>
    </message>
    <message id="net.err.offline">
      <source>The Internet connection appears to be offline.</source>
      <translation>The Internet connection appears to be offline.</translation>
    </message>
    <message id="net.err.timeout">
      <source>The request timed out.</source>
      <translation>The request timed out.</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Something went wrong. Try again.</translation>
    </message>
    <message id="supabase.err.decoding">
      <source>Decode: %1</source>
      <translation>Decode: %1</translation>
    </message>
    <message id="supabase.err.http">
      <source>HTTP %1: %2</source>
      <translation>HTTP %1: %2</translation>
    </message>
    <message id="supabase.err.invalidURL">
      <source>Invalid URL</source>
      <translation>Invalid URL</translation>
    </message>
    <message id="supabase.err.noAuth">
      <source>Not signed in.</source>
      <translation>Not signed in.</translation>
    </message>
  </context>
</TS>

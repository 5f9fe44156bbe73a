<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
  <context>
    <name>Morvane</name>
    <message id="auth.err.emailExists">
      <source>An account with this e-mail address exists already. Sign in instead.</source>
      <translation>Já existe uma conta com este endereço de e-mail. Entre nela em vez disso.</translation>
    </message>
    <message id="auth.err.invalidEmail">
      <source>Enter a valid e-mail address.</source>
      <translation>Digite um endereço de e-mail válido.</translation>
    </message>
    <message id="auth.err.network">
      <source>Morvane cannot reach the server. Check your connection and try again.</source>
      <translation>O Morvane não consegue acessar o servidor. Verifique sua conexão e tente de novo.</translation>
    </message>
    <message id="auth.err.oauthBadUrl">
      <source>The sign-in address is not valid.</source>
      <translation>O endereço de entrada não é válido.</translation>
    </message>
    <message id="auth.err.oauthCancelled">
      <source>The sign-in was cancelled.</source>
      <translation>A entrada foi cancelada.</translation>
    </message>
    <message id="auth.err.oauthCannotStart">
      <source>Could not start the sign-in.</source>
      <translation>Não foi possível iniciar a entrada.</translation>
    </message>
    <message id="auth.err.oauthNoCode">
      <source>The sign-in came back without a code.</source>
      <translation>A entrada voltou sem código.</translation>
    </message>
    <message id="auth.err.rateLimit">
      <source>Too many attempts. Wait a few minutes, then try again.</source>
      <translation>Tentativas demais. Aguarde alguns minutos e tente de novo.</translation>
    </message>
    <message id="auth.err.server">
      <source>The server ran into a problem. Try again in a moment.</source>
      <translation>O servidor teve um problema. Tente de novo em instantes.</translation>
    </message>
    <message id="auth.err.switchExpired">
      <source>Couldn't switch to %1. That account's session expired - sign in to it again.</source>
      <translation>Não foi possível trocar para %1. A sessão dessa conta expirou - entre nela de novo.</translation>
    </message>
    <message id="auth.oauthDone">
      <source>You are signed in to Morvane. You can close this window.</source>
      <translation>Você entrou no Morvane. Pode fechar esta janela.</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>O comando a executar; sem ele, a lista de comandos é mostrada.</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Mostrar qual servidor o Morvane usa e de onde vem cada configuração</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Comandos:</translation>
    </message>
    <message id="cli.config.json">
      <source>Print the setting as JSON.</source>
      <translation>Mostrar a configuração em JSON.</translation>
    </message>
    <message id="cli.config.key">
      <source>Anonymous key</source>
      <translation>Chave anônima</translation>
    </message>
    <message id="cli.config.keyMissing">
      <source>not set</source>
      <translation>não definida</translation>
    </message>
    <message id="cli.config.url">
      <source>Backend address</source>
      <translation>Endereço do servidor</translation>
    </message>
    <message id="cli.description">
      <source>Morvane tracks working time on projects and tasks and turns it into invoices.</source>
      <translation>O Morvane registra o tempo de trabalho em projetos e tarefas e o transforma em faturas.</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Comando desconhecido: %1. Execute morvane --help para ver a lista de comandos.</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>Mostrar esta ajuda.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Mostrar a versão.</translation>
    </message>
    <message id="config.source.environment">
      <source>environment</source>
      <translation>ambiente</translation>
    </message>
    <message id="config.source.local">
      <source>local backend</source>
      <translation>servidor local</translation>
    </message>
    <message id="config.source.settings">
      <source>application settings</source>
      <translation>configurações do aplicativo</translation>
    </message>
    <message id="errEmailNotConfirmed">
      <source>Confirm your e-mail address first: follow the link in the mail we sent you.</source>
      <translation>Confirme primeiro seu endereço de e-mail: siga o link da mensagem que enviamos.</translation>
    </message>
    <message id="errEmailRateLimit">
      <source>Too many e-mails went to this address. Wait a minute, then try again.</source>
      <translation>Foram enviados e-mails demais para este endereço. Aguarde um minuto e tente de novo.</translation>
    </message>
    <message id="errInvalidCredentials">
      <source>The e-mail address or the password is not right.</source>
      <translation>O endereço de e-mail ou a senha não está correto.</translation>
    </message>
    <message id="net.err.connection">
      <source>Could not reach the server: %1</source>
      <translation>Não foi possível acessar o servidor: %1</translation>
    </message>
    <message id="net.err.offline">
      <source>The Internet connection appears to be offline.</source>
      <translation>A conexão com a Internet parece estar offline.</translation>
    </message>
    <message id="net.err.timeout">
      <source>The request timed out.</source>
      <translation>A solicitação excedeu o tempo limite.</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Algo deu errado. Tente de novo.</translation>
    </message>
    <message id="supabase.err.decoding">
      <source>Decode: %1</source>
      <translation>Decodificação: %1</translation>
    </message>
    <message id="supabase.err.http">
      <source>HTTP %1: %2</source>
      <translation>HTTP %1: %2</translation>
    </message>
    <message id="supabase.err.invalidURL">
      <source>Invalid URL</source>
      <translation>URL inválido</translation>
    </message>
    <message id="supabase.err.noAuth">
      <source>Not signed in.</source>
      <translation>Sessão não iniciada.</translation>
    </message>
  </context>
</TS>

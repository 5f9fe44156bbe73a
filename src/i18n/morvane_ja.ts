<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
  <context>
    <name>Morvane</name>
    <message id="auth.err.emailExists">
      <source>An account with this e-mail address exists already. Sign in instead.</source>
      <translation>このメールアドレスのアカウントはすでにあります。代わりにサインインしてください。</translation>
    </message>
    <message id="auth.err.invalidEmail">
      <source>Enter a valid e-mail address.</source>
      <translation>有効なメールアドレスを入力してください。</translation>
    </message>
    <message id="auth.err.network">
      <source>Morvane cannot reach the server. Check your connection and try again.</source>
      <translation>Morvane がサーバーに接続できません。接続を確認してもう一度お試しください。</translation>
    </message>
    <message id="auth.err.oauthBadUrl">
      <source>The sign-in address is not valid.</source>
      <translation>サインインのアドレスが無効です。</translation>
    </message>
    <message id="auth.err.oauthCancelled">
      <source>The sign-in was cancelled.</source>
      <translation>サインインがキャンセルされました。</translation>
    </message>
    <message id="auth.err.oauthCannotStart">
      <source>Could not start the sign-in.</source>
      <translation>サインインを開始できませんでした。</translation>
    </message>
    <message id="auth.err.oauthNoCode">
      <source>The sign-in came back without a code.</source>
      <translation>サインインからコードが返されませんでした。</translation>
    </message>
    <message id="auth.err.rateLimit">
      <source>Too many attempts. Wait a few minutes, then try again.</source>
      <translation>試行回数が多すぎます。数分待ってからもう一度お試しください。</translation>
    </message>
    <message id="auth.err.server">
      <source>The server ran into a problem. Try again in a moment.</source>
      <translation>サーバーで問題が発生しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message id="auth.err.switchExpired">
      <source>Couldn't switch to %1. That account's session expired - sign in to it again.</source>
      <translation>%1 に切り替えられませんでした。そのアカウントのセッションの有効期限が切れています。もう一度サインインしてください。</translation>
    </message>
    <message id="auth.oauthDone">
      <source>You are signed in to Morvane. You can close this window.</source>
      <translation>Morvane にサインインしました。このウィンドウは閉じてかまいません。</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>実行するコマンド。省略するとコマンド一覧を表示します。</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Morvane が使うバックエンドと各設定の出どころを表示します</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>コマンド:</translation>
    </message>
    <message id="cli.config.json">
      <source>Print the setting as JSON.</source>
      <translation>設定を JSON で表示します。</translation>
    </message>
    <message id="cli.config.key">
      <source>Anonymous key</source>
      <translation>匿名キー</translation>
    </message>
    <message id="cli.config.keyMissing">
      <source>not set</source>
      <translation>未設定</translation>
    </message>
    <message id="cli.config.url">
      <source>Backend address</source>
      <translation>バックエンドのアドレス</translation>
    </message>
    <message id="cli.description">
      <source>Morvane tracks working time on projects and tasks and turns it into invoices.</source>
      <translation>Morvane はプロジェクトとタスクの作業時間を記録し、請求書にします。</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>不明なコマンドです: %1。コマンド一覧は morvane --help で表示できます。</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>このヘルプを表示します。</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>バージョンを表示します。</translation>
    </message>
    <message id="config.source.environment">
      <source>environment</source>
      <translation>環境変数</translation>
    </message>
    <message id="config.source.local">
      <source>local backend</source>
      <translation>ローカルバックエンド</translation>
    </message>
    <message id="config.source.settings">
      <source>application settings</source>
      <translation>アプリの設定</translation>
    </message>
    <message id="errEmailNotConfirmed">
      <source>Confirm your e-mail address first: follow the link in the mail we sent you.</source>
      <translation>まずメールアドレスを確認してください。お送りしたメールのリンクを開いてください。</translation>
    </message>
    <message id="errEmailRateLimit">
      <source>Too many e-mails went to this address. Wait a minute, then try again.</source>
      <translation>このアドレスに送信されたメールが多すぎます。1分ほど待ってからもう一度お試しください。</translation>
    </message>
    <message id="errInvalidCredentials">
      <source>The e-mail address or the password is not right.</source>
      <translation>メールアドレスまたはパスワードが正しくありません。</translation>
    </message>
    <message id="net.err.connection">
      <source>Could not reach the server: %1</source>
      <translation>サーバーに接続できませんでした: %1</translation>
    </message>
    <message id="net.err.offline">
      <source>The Internet connection appears to be offline.</source>
      <translation>インターネット接続がオフラインのようです。</translation>
    </message>
    <message id="net.err.timeout">
      <source>The request timed out.</source>
      <translation>リクエストがタイムアウトしました。</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>問題が発生しました。もう一度お試しください。</translation>
    </message>
    <message id="supabase.err.decoding">
      <source>Decode: %1</source>
      <translation>デコード: %1</translation>
    </message>
    <message id="supabase.err.http">
      <source>HTTP %1: %2</source>
      <translation>HTTP %1: %2</translation>
    </message>
    <message id="supabase.err.invalidURL">
      <source>Invalid URL</source>
      <translation>無効なURL</translation>
    </message>
    <message id="supabase.err.noAuth">
      <source>Not signed in.</source>
      <translation>サインインしていません。</translation>
    </message>
  </context>
</TS>

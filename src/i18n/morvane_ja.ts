<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
  <context>
    <name>Morvane</name>
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

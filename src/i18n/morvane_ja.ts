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
    <message id="cli.auth.confirm">
      <source>Check your inbox: confirm %1 with the link in the mail, then sign in.</source>
      <translation>受信トレイを確認してください。メールのリンクで %1 を確認してからサインインしてください。</translation>
    </message>
    <message id="cli.auth.noAccounts">
      <source>No remembered accounts.</source>
      <translation>記憶されたアカウントはありません。</translation>
    </message>
    <message id="cli.auth.option.name">
      <source>The name shown on your profile and to your team.</source>
      <translation>プロフィールとチームに表示される名前です。</translation>
    </message>
    <message id="cli.auth.password">
      <source>Password: </source>
      <translation>パスワード: </translation>
    </message>
    <message id="cli.auth.signedIn">
      <source>Signed in as %1.</source>
      <translation>%1 としてサインインしています。</translation>
    </message>
    <message id="cli.auth.signedOut">
      <source>Signed out.</source>
      <translation>サインアウトしました。</translation>
    </message>
    <message id="cli.auth.unknownAccount">
      <source>No remembered account %1. Sign in to it first.</source>
      <translation>記憶されたアカウント %1 はありません。先にサインインしてください。</translation>
    </message>
    <message id="cli.auth.usage">
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>使い方: morvane auth signup|signin &lt;メール&gt; | signout | status | switch &lt;メール&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>登録、サインインとサインアウト、アカウントの切り替え</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Morvane が使うバックエンドと各設定の出どころを表示します</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>ローカルバックエンドを起動・停止・表示します: server start|stop|status</translation>
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
    <message id="cli.option.json">
      <source>Print the answer as JSON.</source>
      <translation>結果を JSON で表示します。</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>バージョンを表示します。</translation>
    </message>
    <message id="cli.renderInvoice.design">
      <source>With --render-invoice: the design (%1).</source>
      <translation>--render-invoice と併用: デザイン (%1)。</translation>
    </message>
    <message id="cli.renderInvoice.draft">
      <source>With --render-invoice: an invoice as JSON instead of the sample.</source>
      <translation>--render-invoice と併用: サンプルの代わりに使う JSON の請求書。</translation>
    </message>
    <message id="cli.renderInvoice.err.both">
      <source>--lines is for the sample invoice; a draft brings its own lines.</source>
      <translation>--lines はサンプル請求書用です。下書きには独自の明細があります。</translation>
    </message>
    <message id="cli.renderInvoice.err.design">
      <source>Unknown design: %1. Choose one of: %2.</source>
      <translation>不明なデザイン: %1。次から選んでください: %2。</translation>
    </message>
    <message id="cli.renderInvoice.err.draft">
      <source>Cannot read the draft %1: %2</source>
      <translation>下書き %1 を読み込めません: %2</translation>
    </message>
    <message id="cli.renderInvoice.err.failed">
      <source>Rendering the invoice failed: %1</source>
      <translation>請求書の作成に失敗しました: %1</translation>
    </message>
    <message id="cli.renderInvoice.err.lines">
      <source>--lines takes a whole number from 0 to %1.</source>
      <translation>--lines には 0 から %1 までの整数を指定します。</translation>
    </message>
    <message id="cli.renderInvoice.err.noGui">
      <source>Rendering an invoice needs the graphical libraries; run it as: morvane --render-invoice</source>
      <translation>請求書の作成にはグラフィックライブラリが必要です。次のように実行してください: morvane --render-invoice</translation>
    </message>
    <message id="cli.renderInvoice.err.write">
      <source>Cannot write %1: %2</source>
      <translation>%1 に書き込めません: %2</translation>
    </message>
    <message id="cli.renderInvoice.lines">
      <source>With --render-invoice: the number of lines of the sample invoice.</source>
      <translation>--render-invoice と併用: サンプル請求書の明細行数。</translation>
    </message>
    <message id="cli.renderInvoice.option">
      <source>Render an invoice to PDF through the application's own path and report its size.</source>
      <translation>アプリと同じ経路で請求書を PDF にし、そのサイズを表示します。</translation>
    </message>
    <message id="cli.renderInvoice.out">
      <source>With --render-invoice: where to write the PDF.</source>
      <translation>--render-invoice と併用: PDF の書き出し先。</translation>
    </message>
    <message id="cli.renderInvoice.png">
      <source>With --render-invoice: a folder for pictures of the pages as PNG.</source>
      <translation>--render-invoice と併用: ページの PNG 画像を書き出すフォルダー。</translation>
    </message>
    <message id="cli.server.action">
      <source>start, stop or status</source>
      <translation>start、stop、status のいずれか</translation>
    </message>
    <message id="cli.server.dataDir">
      <source>Data folder: %1</source>
      <translation>データフォルダー: %1</translation>
    </message>
    <message id="cli.server.notInUse">
      <source>Morvane uses %1 (%2), not the local backend.</source>
      <translation>Morvane はローカルバックエンドではなく %1 (%2) を使用しています。</translation>
    </message>
    <message id="cli.server.running">
      <source>The local backend is running at %1 (process %2).</source>
      <translation>ローカルバックエンドは %1 で動作しています (プロセス %2)。</translation>
    </message>
    <message id="cli.server.started">
      <source>Started the local backend at %1 (process %2).</source>
      <translation>ローカルバックエンドを %1 で起動しました (プロセス %2)。</translation>
    </message>
    <message id="cli.server.starting">
      <source>The local backend (process %1) is starting and does not answer yet.</source>
      <translation>ローカルバックエンド (プロセス %1) は起動中で、まだ応答しません。</translation>
    </message>
    <message id="cli.server.stopped">
      <source>The local backend is not running.</source>
      <translation>ローカルバックエンドは動作していません。</translation>
    </message>
    <message id="cli.server.stoppedNow">
      <source>Stopped the local backend (process %1).</source>
      <translation>ローカルバックエンドを停止しました (プロセス %1)。</translation>
    </message>
    <message id="cli.server.usage">
      <source>Usage: morvane server start|stop|status [--json]</source>
      <translation>使い方: morvane server start|stop|status [--json]</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>クライアントを読み込めませんでした。</translation>
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
    <message id="inv.doc.amount">
      <source>Amount</source>
      <translation>金額</translation>
    </message>
    <message id="inv.doc.amountDue">
      <source>Amount due</source>
      <translation>ご請求金額</translation>
    </message>
    <message id="inv.doc.bank">
      <source>Bank</source>
      <translation>銀行</translation>
    </message>
    <message id="inv.doc.billTo">
      <source>Bill to</source>
      <translation>請求先</translation>
    </message>
    <message id="inv.doc.description">
      <source>Description</source>
      <translation>内容</translation>
    </message>
    <message id="inv.doc.due">
      <source>Due date</source>
      <translation>支払期日</translation>
    </message>
    <message id="inv.doc.from">
      <source>From</source>
      <translation>差出人</translation>
    </message>
    <message id="inv.doc.iban">
      <source>IBAN</source>
      <translation>IBAN</translation>
    </message>
    <message id="inv.doc.invoice">
      <source>Invoice</source>
      <translation>請求書</translation>
    </message>
    <message id="inv.doc.issued">
      <source>Issue date</source>
      <translation>発行日</translation>
    </message>
    <message id="inv.doc.kvk">
      <source>Company no.</source>
      <translation>法人番号</translation>
    </message>
    <message id="inv.doc.noVat">
      <source>No VAT on these lines</source>
      <translation>これらの明細は非課税</translation>
    </message>
    <message id="inv.doc.notes">
      <source>Notes</source>
      <translation>備考</translation>
    </message>
    <message id="inv.doc.number">
      <source>Invoice no.</source>
      <translation>請求書番号</translation>
    </message>
    <message id="inv.doc.payment">
      <source>Payment</source>
      <translation>お支払い</translation>
    </message>
    <message id="inv.doc.paymentNoTerm">
      <source>Please pay by bank transfer, quoting the invoice number.</source>
      <translation>請求書番号を明記のうえ、銀行振込でお支払いください。</translation>
    </message>
    <message id="inv.doc.paymentTerms">
      <source>Please pay within %1 days, quoting the invoice number.</source>
      <translation>請求書番号を明記のうえ、%1日以内にお支払いください。</translation>
    </message>
    <message id="inv.doc.period">
      <source>Period</source>
      <translation>対象期間</translation>
    </message>
    <message id="inv.doc.project">
      <source>Project</source>
      <translation>プロジェクト</translation>
    </message>
    <message id="inv.doc.quantity">
      <source>Qty</source>
      <translation>数量</translation>
    </message>
    <message id="inv.doc.rate">
      <source>Rate</source>
      <translation>単価</translation>
    </message>
    <message id="inv.doc.reference">
      <source>Reference</source>
      <translation>振込名義</translation>
    </message>
    <message id="inv.doc.subtotal">
      <source>Subtotal</source>
      <translation>小計</translation>
    </message>
    <message id="inv.doc.thanks">
      <source>Thank you for your business.</source>
      <translation>ご利用ありがとうございました。</translation>
    </message>
    <message id="inv.doc.total">
      <source>Total</source>
      <translation>合計</translation>
    </message>
    <message id="inv.doc.vatId">
      <source>VAT no.</source>
      <translation>登録番号</translation>
    </message>
    <message id="inv.doc.vatRow">
      <source>VAT %1%</source>
      <translation>消費税 %1%</translation>
    </message>
    <message id="inv.doc.vatRowOver">
      <source>VAT %1% on %2</source>
      <translation>%2 に対する消費税 %1%</translation>
    </message>
    <message id="inv.pdf.err.load">
      <source>The invoice page could not be loaded.</source>
      <translation>請求書ページを読み込めませんでした。</translation>
    </message>
    <message id="inv.pdf.err.paging">
      <source>The invoice could not be laid out in pages.</source>
      <translation>請求書をページに割り付けできませんでした。</translation>
    </message>
    <message id="inv.pdf.err.print">
      <source>The PDF of the invoice could not be made.</source>
      <translation>請求書の PDF を作成できませんでした。</translation>
    </message>
    <message id="inv.pdf.err.spill">
      <source>The invoice page could not be written to a temporary file: %1</source>
      <translation>請求書ページを一時ファイルに書き込めませんでした: %1</translation>
    </message>
    <message id="inv.pdf.err.timeout">
      <source>The invoice page did not finish loading within %1 seconds.</source>
      <translation>請求書ページの読み込みが %1 秒以内に完了しませんでした。</translation>
    </message>
    <message id="inviteAlreadyMember">
      <source>%1 is already in this team.</source>
      <translation>%1 はすでにこのチームのメンバーです。</translation>
    </message>
    <message id="inviteFailed">
      <source>Could not send the invite. Try again.</source>
      <translation>招待を送信できませんでした。もう一度お試しください。</translation>
    </message>
    <message id="inviteNoAccount">
      <source>No Morvane account uses that email yet. Ask them to sign up first.</source>
      <translation>このメールアドレスを使う Morvane アカウントはまだありません。先に登録してもらってください。</translation>
    </message>
    <message id="inviteNotAllowed">
      <source>Only the team owner and editors can invite people.</source>
      <translation>メンバーを招待できるのは、チームのオーナーと編集者だけです。</translation>
    </message>
    <message id="inviteSent">
      <source>%1 is invited to this team.</source>
      <translation>%1 をこのチームに招待しました。</translation>
    </message>
    <message id="inviteTeamFull">
      <source>This team is full: it already has 10 members, the maximum.</source>
      <translation>このチームは満員です。メンバーはすでに上限の 10 人です。</translation>
    </message>
    <message id="inviteUnavailable">
      <source>Inviting by email is not available yet. Try again later.</source>
      <translation>メールでの招待はまだご利用いただけません。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Morvane で作成</translation>
    </message>
    <message id="localServer.err.dataFolder">
      <source>Cannot write the local backend's data folder %1.</source>
      <translation>ローカルバックエンドのデータフォルダー %1 に書き込めません。</translation>
    </message>
    <message id="localServer.err.exited">
      <source>The local backend stopped before it was ready (log: %1).</source>
      <translation>ローカルバックエンドは準備が整う前に終了しました (ログ: %1)。</translation>
    </message>
    <message id="localServer.err.launch">
      <source>Cannot run the local backend %1.</source>
      <translation>ローカルバックエンド %1 を実行できません。</translation>
    </message>
    <message id="localServer.err.noProgram">
      <source>Cannot find the local backend: %1 is neither next to Morvane nor on the PATH.</source>
      <translation>ローカルバックエンドが見つかりません: %1 が Morvane と同じ場所にも PATH にもありません。</translation>
    </message>
    <message id="localServer.err.notReady">
      <source>The local backend was not ready within %1 seconds (log: %2).</source>
      <translation>ローカルバックエンドは %1 秒以内に準備が整いませんでした (ログ: %2)。</translation>
    </message>
    <message id="localServer.err.wouldNotStop">
      <source>The local backend (process %1) did not stop within %2 seconds.</source>
      <translation>ローカルバックエンド (プロセス %1) は %2 秒以内に停止しませんでした。</translation>
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
    <message id="onboarding.err.notSaved">
      <source>Your first-run answers were not saved yet. Morvane tries again at the next sign-in.</source>
      <translation>初回設定の回答はまだ保存されていません。次回のサインイン時に Morvane が再試行します。</translation>
    </message>
    <message id="profile.err.notSaved">
      <source>Your profile was not saved. Try again.</source>
      <translation>プロフィールを保存できませんでした。もう一度お試しください。</translation>
    </message>
    <message id="project.err.notCreated">
      <source>The project was not created: you may not add projects to that team.</source>
      <translation>プロジェクトは作成されませんでした。そのチームにプロジェクトを追加する権限がありません。</translation>
    </message>
    <message id="project.err.notSaved">
      <source>The project was not changed: you may not edit it, or it no longer exists.</source>
      <translation>プロジェクトは変更されませんでした。編集する権限がないか、プロジェクトがすでに存在しません。</translation>
    </message>
    <message id="project.err.teamNotChanged">
      <source>The project's team was not changed: only its creator and the team's owners and editors can move it.</source>
      <translation>プロジェクトのチームは変更されませんでした。移動できるのは、プロジェクトの作成者とチームのオーナーおよび編集者だけです。</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>問題が発生しました。もう一度お試しください。</translation>
    </message>
    <message id="store.err.loadFailed">
      <source>Your data could not be loaded. Morvane tries again shortly.</source>
      <translation>データを読み込めませんでした。Morvane がまもなく再試行します。</translation>
    </message>
    <message id="store.err.writeFailed">
      <source>The change could not be saved. Check the connection and try again.</source>
      <translation>変更を保存できませんでした。接続を確認してもう一度お試しください。</translation>
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
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>タスクは作成されませんでした。このプロジェクトにタスクを追加する権限がありません。</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>タスクは変更されませんでした。編集する権限がないか、タスクがすでに存在しません。</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>チームを作成できませんでした。もう一度お試しください。</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>チームを読み込めませんでした。</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>このタスクのタイマーは別のデバイスで開始されたため、ステータスは変更されませんでした。</translation>
    </message>
  </context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
  <context>
    <name>Morvane</name>
    <message id="add.couldNotParse">
      <source>Morvane could not make sense of that. Try saying it another way.</source>
      <translation>Morvane には理解できませんでした。別の言い方で試してください。</translation>
    </message>
    <message id="ai.err.badAnswer">
      <source>%1 sent an answer Morvane cannot use: %2</source>
      <translation>%1 から Morvane が使えない応答が届きました: %2</translation>
    </message>
    <message id="ai.err.consentDeclined">
      <source>You chose not to send your text to %1. You can change this in the AI settings.</source>
      <translation>テキストを %1 に送らないことを選択しています。AI の設定で変更できます。</translation>
    </message>
    <message id="ai.err.consentMissing">
      <source>Morvane asks before it sends your text to %1 for the first time. Answer that question in the window, or run the command again with --yes.</source>
      <translation>Morvane はテキストを初めて %1 に送る前に確認します。ウィンドウで質問に答えるか、--yes を付けてコマンドをもう一度実行してください。</translation>
    </message>
    <message id="ai.err.needsCLI">
      <source>This needs the Claude CLI, which can work with files; %1 cannot. Choose the Claude CLI in the AI settings.</source>
      <translation>これにはファイルを扱える Claude CLI が必要です。%1 ではできません。AI の設定で Claude CLI を選んでください。</translation>
    </message>
    <message id="ai.err.noKey">
      <source>There is no API key for %1 in your keyring. Add your key in the AI settings.</source>
      <translation>キーリングに %1 の API キーがありません。AI の設定でキーを追加してください。</translation>
    </message>
    <message id="ai.err.notSignedIn">
      <source>%1 works only while you are signed in. Sign in, then try again.</source>
      <translation>%1 はサインイン中のみ使えます。サインインしてからもう一度お試しください。</translation>
    </message>
    <message id="ai.err.status">
      <source>%1 answered with error %2: %3</source>
      <translation>%1 がエラー %2 を返しました: %3</translation>
    </message>
    <message id="ai.err.timedOut">
      <source>%1 did not answer within %2 s</source>
      <translation>%1 から %2 秒以内に応答がありませんでした</translation>
    </message>
    <message id="ai.err.unreachable">
      <source>%1 could not be reached: %2</source>
      <translation>%1 に接続できません: %2</translation>
    </message>
    <message id="ai.route.anthropic.where">
      <source>Your text goes straight from this computer to Anthropic, with your own API key.</source>
      <translation>テキストはこのコンピューターから Anthropic へ、あなた自身の API キーで直接送られます。</translation>
    </message>
    <message id="ai.route.claudeCLI.where">
      <source>Your text goes to the claude program on this computer, which sends it to Anthropic under your own Claude account. Morvane itself sends nothing over the network.</source>
      <translation>テキストはこのコンピューターの claude プログラムに渡され、あなた自身の Claude アカウントで Anthropic に送られます。Morvane 自体はネットワークに何も送りません。</translation>
    </message>
    <message id="ai.route.gemini.where">
      <source>Your text goes straight from this computer to Google, with your own API key.</source>
      <translation>テキストはこのコンピューターから Google へ、あなた自身の API キーで直接送られます。</translation>
    </message>
    <message id="ai.route.morvaneAI.where">
      <source>Your text goes to the Morvane server you are signed in to, which passes it on to the AI service its operator has chosen, and the answer comes back the same way.</source>
      <translation>テキストはサインイン中の Morvane サーバーに送られ、運営者が選んだ AI サービスに転送されます。応答も同じ経路で戻ります。</translation>
    </message>
    <message id="ai.route.openAI.where">
      <source>Your text goes straight from this computer to OpenAI, with your own API key.</source>
      <translation>テキストはこのコンピューターから OpenAI へ、あなた自身の API キーで直接送られます。</translation>
    </message>
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
    <message id="auth.err.oauthRefused">
      <source>The sign-in was refused: %1</source>
      <translation>サインインが拒否されました: %1</translation>
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
    <message id="billing.dayNote">
      <source>Tracked time ÷ hours-per-day = billable days.</source>
      <translation>記録時間 ÷ 1日の時間数 = 請求日数。</translation>
    </message>
    <message id="billing.dayRate">
      <source>Day rate</source>
      <translation>日額</translation>
    </message>
    <message id="billing.discount">
      <source>Discount</source>
      <translation>割引</translation>
    </message>
    <message id="billing.extras">
      <source>Extras · call-out · materials · discount · VAT</source>
      <translation>追加 · 出張費 · 材料費 · 割引 · 消費税</translation>
    </message>
    <message id="billing.fixedTotal">
      <source>Fixed total</source>
      <translation>固定合計</translation>
    </message>
    <message id="billing.gross">
      <source>Gross (incl.)</source>
      <translation>税込</translation>
    </message>
    <message id="billing.hourlyRate">
      <source>Hourly rate</source>
      <translation>時間単価</translation>
    </message>
    <message id="billing.hoursPerDay">
      <source>Hours per day</source>
      <translation>1日の時間数</translation>
    </message>
    <message id="billing.inheriting">
      <source>Inheriting from project</source>
      <translation>プロジェクトから継承</translation>
    </message>
    <message id="billing.materials">
      <source>Materials</source>
      <translation>材料費</translation>
    </message>
    <message id="billing.minCharge">
      <source>Minimum charge</source>
      <translation>最低料金</translation>
    </message>
    <message id="billing.model.day">
      <source>Per day</source>
      <translation>日単位</translation>
    </message>
    <message id="billing.model.fixed">
      <source>Fixed price</source>
      <translation>固定価格</translation>
    </message>
    <message id="billing.model.hour">
      <source>Per hour</source>
      <translation>時間単位</translation>
    </message>
    <message id="billing.model.unit">
      <source>Per unit</source>
      <translation>単位ごと</translation>
    </message>
    <message id="billing.net">
      <source>Net (excl. VAT)</source>
      <translation>税抜</translation>
    </message>
    <message id="billing.netNote">
      <source>Net per tracked time, plus the extras above.</source>
      <translation>記録時間に基づく税抜額に、上記の追加分を加えたもの。</translation>
    </message>
    <message id="billing.pricePerUnit">
      <source>Price / unit</source>
      <translation>単価</translation>
    </message>
    <message id="billing.quantity">
      <source>Quantity</source>
      <translation>数量</translation>
    </message>
    <message id="billing.resetProject">
      <source>Reset to project default</source>
      <translation>プロジェクトの既定に戻す</translation>
    </message>
    <message id="billing.suffix.day">
      <source>/day</source>
      <translation>/日</translation>
    </message>
    <message id="billing.suffix.hour">
      <source>/h</source>
      <translation>/時間</translation>
    </message>
    <message id="billing.surcharge">
      <source>Call-out fee</source>
      <translation>出張費</translation>
    </message>
    <message id="billing.title">
      <source>Billing</source>
      <translation>請求</translation>
    </message>
    <message id="billing.unit">
      <source>Unit</source>
      <translation>単位</translation>
    </message>
    <message id="billing.unitDefault">
      <source>unit</source>
      <translation>単位</translation>
    </message>
    <message id="billing.vat">
      <source>VAT</source>
      <translation>消費税</translation>
    </message>
    <message id="billing.vatAmount">
      <source>VAT</source>
      <translation>消費税</translation>
    </message>
    <message id="billing.vatNone">
      <source>No VAT</source>
      <translation>消費税なし</translation>
    </message>
    <message id="cal.accessOffBody">
      <source>Morvane turns calendar events into time entries. Add an iCalendar file, a subscription address or a CalDAV account, then come back and recheck.</source>
      <translation>Morvane はカレンダーの予定を作業時間に変えます。iCalendar ファイル、購読アドレス、または CalDAV アカウントを追加してから、もう一度確認してください。</translation>
    </message>
    <message id="cal.accessOffTitle">
      <source>No calendars yet</source>
      <translation>カレンダーがまだありません</translation>
    </message>
    <message id="cal.err.alreadyImported">
      <source>This event was imported before; its time is already logged.</source>
      <translation>この予定は取り込み済みです。時間はすでに記録されています。</translation>
    </message>
    <message id="cal.err.readFailed">
      <source>The calendar “%1” could not be read.</source>
      <translation>カレンダー「%1」を読み込めませんでした。</translation>
    </message>
    <message id="cal.err.secret">
      <source>The password could not be stored in the keyring.</source>
      <translation>パスワードをキーリングに保存できませんでした。</translation>
    </message>
    <message id="cal.heroTitle">
      <source>Import from your calendar</source>
      <translation>カレンダーから取り込む</translation>
    </message>
    <message id="cal.loading">
      <source>Loading calendar…</source>
      <translation>カレンダーを読み込み中…</translation>
    </message>
    <message id="cal.noEventsHint">
      <source>No events on this day. Pick another day, or add a calendar.</source>
      <translation>この日の予定はありません。別の日を選ぶか、カレンダーを追加してください。</translation>
    </message>
    <message id="cal.selectedCount">
      <source>%1 selected</source>
      <translation>%1 件選択</translation>
    </message>
    <message id="cal.untitled">
      <source>Calendar event</source>
      <translation>カレンダーの予定</translation>
    </message>
    <message id="calExistingSection">
      <source>Existing tasks</source>
      <translation>既存のタスク</translation>
    </message>
    <message id="calNewTaskSection">
      <source>New tasks</source>
      <translation>新しいタスク</translation>
    </message>
    <message id="capture.err.noMinutes">
      <source>The sentence gives no time to log.</source>
      <translation>記録する時間が文に含まれていません。</translation>
    </message>
    <message id="capture.err.noProject">
      <source>The sentence names no project to add the task to.</source>
      <translation>タスクを追加するプロジェクトが文に含まれていません。</translation>
    </message>
    <message id="capture.err.notSaved">
      <source>The change could not be saved.</source>
      <translation>変更を保存できませんでした。</translation>
    </message>
    <message id="capture.fix.bothPrices">
      <source>"%1" has both a fixed price and an hourly rate; the fixed price is used.</source>
      <translation>「%1」には固定価格と時間単価の両方があります。固定価格を使います。</translation>
    </message>
    <message id="capture.fix.cut">
      <source>"%1…" was cut to %2 characters.</source>
      <translation>「%1…」は %2 文字に短縮されました。</translation>
    </message>
    <message id="capture.fix.date">
      <source>The due date "%1" was left out: it is not a date of the form YYYY-MM-DD.</source>
      <translation>期日「%1」は YYYY-MM-DD 形式の日付ではないため省きました。</translation>
    </message>
    <message id="capture.fix.minutes">
      <source>%1 minutes were left out: time logged from one sentence is more than 0 and at most %2 minutes.</source>
      <translation>%1 分は省きました。1 つの文で記録できる時間は 0 より多く %2 分以下です。</translation>
    </message>
    <message id="capture.fix.price">
      <source>The fixed price %1 was left out: a price lies between 0 and %2.</source>
      <translation>固定価格 %1 は省きました。価格は 0 から %2 の間です。</translation>
    </message>
    <message id="capture.fix.priority">
      <source>The priority "%1" is unknown; the task gets the default, medium.</source>
      <translation>優先度「%1」は不明です。タスクには既定の「中」を設定します。</translation>
    </message>
    <message id="capture.fix.rate">
      <source>The hourly rate %1 was left out: a rate lies between 0 and %2.</source>
      <translation>時間単価 %1 は省きました。単価は 0 から %2 の間です。</translation>
    </message>
    <message id="capture.fix.unnamed">
      <source>A project or task without a name was left out.</source>
      <translation>名前のないプロジェクトまたはタスクを省きました。</translation>
    </message>
    <message id="capture.note.noTeam">
      <source>You have no team called "%1" that you may add projects to; "%2" stays yours alone.</source>
      <translation>プロジェクトを追加できる「%1」というチームはありません。「%2」はあなただけのものです。</translation>
    </message>
    <message id="capture.note.noTimer">
      <source>No timer was running.</source>
      <translation>実行中のタイマーはありませんでした。</translation>
    </message>
    <message id="claude.err.binaryMissing">
      <source>AI features need the Claude CLI on this Mac (it powers voice/prompt capture, briefs, and the invoice note). Everything else works without it. Set CLAUDE_CLI_PATH or install it, then try again.</source>
      <translation>AI 機能にはこの Mac の Claude CLI が必要です (音声・プロンプト入力、ブリーフ、請求書メモに使います)。それ以外はなくても動きます。CLAUDE_CLI_PATH を設定するかインストールしてから、もう一度お試しください。</translation>
    </message>
    <message id="claude.err.createTask">
      <source>Create task failed: %1</source>
      <translation>タスクを作成できませんでした: %1</translation>
    </message>
    <message id="claude.err.emptyOutput">
      <source>Claude produced no output</source>
      <translation>Claude から出力がありませんでした</translation>
    </message>
    <message id="claude.err.launchFailed">
      <source>Launch failed: %1</source>
      <translation>起動に失敗しました: %1</translation>
    </message>
    <message id="claude.err.malformedJSON">
      <source>Bad JSON from Claude (%1) %2</source>
      <translation>Claude からの JSON が不正です (%1) %2</translation>
    </message>
    <message id="claude.err.noJSONObject">
      <source>no JSON object detected</source>
      <translation>JSON オブジェクトが見つかりません</translation>
    </message>
    <message id="claude.err.nonZeroExit">
      <source>Claude exited %1: %2</source>
      <translation>Claude が終了しました (状態 %1): %2</translation>
    </message>
    <message id="claude.err.outputNotWritten">
      <source>Claude finished but did not write %1</source>
      <translation>Claude は終了しましたが %1 を書き出しませんでした</translation>
    </message>
    <message id="claude.err.resultIsError">
      <source>claude returned is_error=true</source>
      <translation>claude が is_error=true を返しました</translation>
    </message>
    <message id="claude.err.timedOut">
      <source>Claude request timed out after %1 s</source>
      <translation>Claude への要求が %1 秒でタイムアウトしました</translation>
    </message>
    <message id="claude.err.workspaceTimedOut">
      <source>Claude workspace task timed out after %1 s</source>
      <translation>Claude の作業フォルダーのタスクが %1 秒でタイムアウトしました</translation>
    </message>
    <message id="cli.add.adjusted">
      <source>Checked: %1</source>
      <translation>確認済み: %1</translation>
    </message>
    <message id="cli.add.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as 'morvane tasks list' shows it.</source>
      <translation>どのタスクですか？「%1」という名前のタスクがないか、複数あります。'morvane tasks list' に表示される名前で指定してください。</translation>
    </message>
    <message id="cli.add.dryRunDone">
      <source>Nothing was changed (--dry-run).</source>
      <translation>何も変更していません (--dry-run)。</translation>
    </message>
    <message id="cli.add.due">
      <source>due %1</source>
      <translation>期日 %1</translation>
    </message>
    <message id="cli.add.fixed">
      <source>%1 fixed</source>
      <translation>固定 %1</translation>
    </message>
    <message id="cli.add.logTime">
      <source>Log %1 on "%2"</source>
      <translation>「%2」に %1 を記録</translation>
    </message>
    <message id="cli.add.modelNote">
      <source>The model notes: %1</source>
      <translation>モデルのメモ: %1</translation>
    </message>
    <message id="cli.add.option.dryRun">
      <source>Show what was understood without changing anything.</source>
      <translation>何も変更せずに、理解した内容を表示します。</translation>
    </message>
    <message id="cli.add.partial">
      <source>Stopped: %1 What was made before stays; give the same sentence again to finish the rest without making anything twice.</source>
      <translation>中断しました: %1 作成済みのものは残ります。同じ文をもう一度入力すると、何も重複させずに残りを完了します。</translation>
    </message>
    <message id="cli.add.project">
      <source>Project "%1"</source>
      <translation>プロジェクト「%1」</translation>
    </message>
    <message id="cli.add.spent">
      <source>%1 already spent</source>
      <translation>%1 作業済み</translation>
    </message>
    <message id="cli.add.startTimer">
      <source>Start the timer on "%1"</source>
      <translation>「%1」のタイマーを開始</translation>
    </message>
    <message id="cli.add.stopRunning">
      <source>Stop the running timer</source>
      <translation>実行中のタイマーを停止</translation>
    </message>
    <message id="cli.add.stopTimer">
      <source>Stop the timer on "%1"</source>
      <translation>「%1」のタイマーを停止</translation>
    </message>
    <message id="cli.add.summary">
      <source>Projects: %1 new, %2 existing. Tasks: %3 new, %4 existing. Time logged: %5.</source>
      <translation>プロジェクト: 新規 %1、既存 %2。タスク: 新規 %3、既存 %4。記録した時間: %5。</translation>
    </message>
    <message id="cli.add.task">
      <source>Task "%1"</source>
      <translation>タスク「%1」</translation>
    </message>
    <message id="cli.add.team">
      <source>shared with team %1</source>
      <translation>チーム %1 と共有</translation>
    </message>
    <message id="cli.add.timerStopped">
      <source>Timer stopped on %1.</source>
      <translation>%1 のタイマーを停止しました。</translation>
    </message>
    <message id="cli.add.understood">
      <source>Understood:</source>
      <translation>理解した内容:</translation>
    </message>
    <message id="cli.add.unknown">
      <source>Nothing to do: the sentence holds no project, task, time or timer action.</source>
      <translation>何もすることがありません。文にプロジェクト、タスク、時間、タイマー操作が含まれていません。</translation>
    </message>
    <message id="cli.add.usage">
      <source>Usage: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</source>
      <translation>使い方: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</translation>
    </message>
    <message id="cli.ai.consentAllowed">
      <source>allowed</source>
      <translation>許可済み</translation>
    </message>
    <message id="cli.ai.consentAsk">
      <source>not asked yet</source>
      <translation>未確認</translation>
    </message>
    <message id="cli.ai.consentDeclined">
      <source>declined</source>
      <translation>拒否</translation>
    </message>
    <message id="cli.ai.keyFailed">
      <source>The keyring did not take the key; nothing changed.</source>
      <translation>キーリングがキーを受け付けなかったため、何も変更していません。</translation>
    </message>
    <message id="cli.ai.keyMissing">
      <source>No key was given; nothing changed.</source>
      <translation>キーが入力されなかったため、何も変更していません。</translation>
    </message>
    <message id="cli.ai.keyPrompt">
      <source>Paste your %1 API key and press Enter: </source>
      <translation>%1 の API キーを貼り付けて Enter を押してください: </translation>
    </message>
    <message id="cli.ai.keyRemoved">
      <source>The %1 key is no longer in your keyring.</source>
      <translation>%1 のキーはキーリングから削除されました。</translation>
    </message>
    <message id="cli.ai.keySaved">
      <source>The %1 key is in your keyring.</source>
      <translation>%1 のキーをキーリングに保存しました。</translation>
    </message>
    <message id="cli.ai.keys">
      <source>Your keys in the keyring: %1</source>
      <translation>キーリング内のキー: %1</translation>
    </message>
    <message id="cli.ai.option.remove">
      <source>Remove the stored key instead of setting one.</source>
      <translation>キーを設定する代わりに、保存済みのキーを削除します。</translation>
    </message>
    <message id="cli.ai.provider">
      <source>Provider setting: %1</source>
      <translation>プロバイダー設定: %1</translation>
    </message>
    <message id="cli.ai.question">
      <source>%1
Send your text to %2 now and from now on? [y/N] </source>
      <translation>%1
今回以降、テキストを %2 に送りますか? [y/N] </translation>
    </message>
    <message id="cli.ai.route">
      <source>Calls go to: %1</source>
      <translation>呼び出しの送り先: %1</translation>
    </message>
    <message id="cli.ai.usage">
      <source>Usage: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</source>
      <translation>使い方: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</translation>
    </message>
    <message id="cli.ai.yes">
      <source>Agree to sending your text to the chosen AI service without being asked.</source>
      <translation>確認なしで、選んだ AI サービスへのテキスト送信に同意します。</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>実行するコマンド。省略するとコマンド一覧を表示します。</translation>
    </message>
    <message id="cli.auth.browser">
      <source>Continue in your browser. If no page opens, go to: %1</source>
      <translation>ブラウザーで続けてください。ページが開かない場合は次へ: %1</translation>
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
    <message id="cli.auth.option.provider">
      <source>Sign in through an outside provider in the browser instead of with a password.</source>
      <translation>パスワードの代わりにブラウザーで外部プロバイダーからサインインします。</translation>
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
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>使い方: morvane auth signup|signin &lt;メール&gt; | signin --provider NAME | signout | status | switch &lt;メール&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.calendar.added">
      <source>Added %1 (%2).</source>
      <translation>%1 を追加しました (%2)。</translation>
    </message>
    <message id="cli.calendar.err.add">
      <source>That calendar cannot be added: %1.</source>
      <translation>そのカレンダーは追加できません: %1。</translation>
    </message>
    <message id="cli.calendar.err.day">
      <source>A day is written as YYYY-MM-DD, today or yesterday.</source>
      <translation>日付は YYYY-MM-DD、today、yesterday のいずれかで書きます。</translation>
    </message>
    <message id="cli.calendar.err.noDestination">
      <source>No task or project for: %1. Pass --project P to make them new tasks there.</source>
      <translation>次の予定にタスクもプロジェクトもありません: %1。--project P を指定すると、そこに新しいタスクとして作成します。</translation>
    </message>
    <message id="cli.calendar.err.noSelection">
      <source>Say which events to import: --events ID... (see morvane calendar events) or --all.</source>
      <translation>取り込む予定を指定してください: --events ID...（morvane calendar events を参照）または --all。</translation>
    </message>
    <message id="cli.calendar.err.unknown">
      <source>No single calendar matches “%1”; see morvane calendar list.</source>
      <translation>「%1」に一致するカレンダーが一つに定まりません。morvane calendar list を参照してください。</translation>
    </message>
    <message id="cli.calendar.imported">
      <source>imported</source>
      <translation>取り込み済み</translation>
    </message>
    <message id="cli.calendar.importedCount">
      <source>Imported %1 events; %2 were imported before.</source>
      <translation>%1 件の予定を取り込みました。%2 件は取り込み済みでした。</translation>
    </message>
    <message id="cli.calendar.opt.all">
      <source>Import every event of the day.</source>
      <translation>その日のすべての予定を取り込みます。</translation>
    </message>
    <message id="cli.calendar.opt.caldav">
      <source>Read a CalDAV collection (with --user) instead of a subscription.</source>
      <translation>購読の代わりに CalDAV コレクションを読みます（--user と併用）。</translation>
    </message>
    <message id="cli.calendar.opt.day">
      <source>The day: YYYY-MM-DD, today or yesterday.</source>
      <translation>日付: YYYY-MM-DD、today、yesterday。</translation>
    </message>
    <message id="cli.calendar.opt.events">
      <source>The events to import, by the id events shows.</source>
      <translation>取り込む予定（events が表示する ID）。</translation>
    </message>
    <message id="cli.calendar.opt.name">
      <source>The name the calendar is shown under.</source>
      <translation>カレンダーの表示名。</translation>
    </message>
    <message id="cli.calendar.opt.project">
      <source>The project new tasks are made in.</source>
      <translation>新しいタスクを作るプロジェクト。</translation>
    </message>
    <message id="cli.calendar.opt.user">
      <source>The CalDAV user name.</source>
      <translation>CalDAV のユーザー名。</translation>
    </message>
    <message id="cli.calendar.password">
      <source>CalDAV password: </source>
      <translation>CalDAV パスワード: </translation>
    </message>
    <message id="cli.calendar.removed">
      <source>Removed %1.</source>
      <translation>%1 を削除しました。</translation>
    </message>
    <message id="cli.calendar.usage">
      <source>Usage: morvane calendar add &lt;file-or-address&gt; [--caldav --user U] | list | rm &lt;calendar&gt; | events [--day DAY] [--json] | import --day DAY [--project P] [--events ID...] [--all]</source>
      <translation>使い方: morvane calendar add &lt;ファイルまたはアドレス&gt; [--caldav --user U] | list | rm &lt;カレンダー&gt; | events [--day 日付] [--json] | import --day 日付 [--project P] [--events ID...] [--all]</translation>
    </message>
    <message id="cli.clients.added">
      <source>Added client %1 (%2).</source>
      <translation>クライアント %1 を追加しました (%2)。</translation>
    </message>
    <message id="cli.clients.coc">
      <source>CoC %1</source>
      <translation>法人番号 %1</translation>
    </message>
    <message id="cli.clients.confirmDelete">
      <source>Delete the client %1? Invoices that name it keep it. [y/N] </source>
      <translation>クライアント %1 を削除しますか? この名前の請求書はそのまま残ります。[y/N] </translation>
    </message>
    <message id="cli.clients.deleted">
      <source>Deleted client %1.</source>
      <translation>クライアント %1 を削除しました。</translation>
    </message>
    <message id="cli.clients.kept">
      <source>Nothing deleted.</source>
      <translation>何も削除していません。</translation>
    </message>
    <message id="cli.clients.noMatch">
      <source>No client matches "%1". See them with: morvane clients list</source>
      <translation>「%1」に一致するクライアントはありません。一覧: morvane clients list</translation>
    </message>
    <message id="cli.clients.none">
      <source>No clients yet. Add one with: morvane clients add &lt;name&gt;</source>
      <translation>クライアントはまだありません。追加: morvane clients add &lt;名前&gt;</translation>
    </message>
    <message id="cli.clients.option.address">
      <source>The client's postal address; it may span several lines.</source>
      <translation>クライアントの住所 (複数行も可)。</translation>
    </message>
    <message id="cli.clients.option.coc">
      <source>The client's chamber-of-commerce number.</source>
      <translation>クライアントの商業登記番号。</translation>
    </message>
    <message id="cli.clients.option.email">
      <source>The client's e-mail address.</source>
      <translation>クライアントのメールアドレス。</translation>
    </message>
    <message id="cli.clients.option.name">
      <source>A new name (edit only).</source>
      <translation>新しい名前 (edit のみ)。</translation>
    </message>
    <message id="cli.clients.option.vat">
      <source>The client's VAT number.</source>
      <translation>クライアントの VAT 番号。</translation>
    </message>
    <message id="cli.clients.option.yes">
      <source>Delete without asking first.</source>
      <translation>確認せずに削除します。</translation>
    </message>
    <message id="cli.clients.saved">
      <source>Saved client %1.</source>
      <translation>クライアント %1 を保存しました。</translation>
    </message>
    <message id="cli.clients.usage">
      <source>Usage: morvane clients list | add &lt;name&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;client&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;client&gt; [--yes] [--json]</source>
      <translation>使い方: morvane clients list | add &lt;名前&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;クライアント&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;クライアント&gt; [--yes] [--json]</translation>
    </message>
    <message id="cli.clients.vat">
      <source>VAT %1</source>
      <translation>VAT %1</translation>
    </message>
    <message id="cli.clients.yesAnswers">
      <source>y|yes</source>
      <translation>はい</translation>
    </message>
    <message id="cli.command.add">
      <source>Turn a sentence into projects, tasks, logged time or a timer action: add "&lt;text&gt;" [--dry-run] [--json]</source>
      <translation>文をプロジェクト、タスク、記録時間、タイマー操作に変換します: add "&lt;text&gt;" [--dry-run] [--json]</translation>
    </message>
    <message id="cli.command.ai">
      <source>Where model calls go, your own API keys and what you agreed to send: ai show|provider|key|consent</source>
      <translation>モデル呼び出しの送り先、自分の API キー、送信に同意した内容: ai show|provider|key|consent</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>登録、サインインとサインアウト、アカウントの切り替え</translation>
    </message>
    <message id="cli.command.calendar">
      <source>Calendar events as time: calendar add|list|rm|events|import</source>
      <translation>カレンダーの予定を時間に: calendar add|list|rm|events|import</translation>
    </message>
    <message id="cli.command.clients">
      <source>The clients you invoice: clients list|add|edit|rm</source>
      <translation>請求先のクライアント: clients list|add|edit|rm</translation>
    </message>
    <message id="cli.command.company">
      <source>Your sender details and invoice style: company show|set</source>
      <translation>差出人情報と請求書のスタイル: company show|set</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Morvane が使うバックエンドと各設定の出どころを表示します</translation>
    </message>
    <message id="cli.command.earnings">
      <source>Earned, billed and unbilled money by week, month or project: earnings [--from DAY --to DAY] [--by week|month|project]</source>
      <translation>週・月・プロジェクトごとの売上、請求済み額、未請求額: earnings [--from 日付 --to 日付] [--by week|month|project]</translation>
    </message>
    <message id="cli.command.entries">
      <source>List, edit or delete time entries: entries [--task T] | edit | rm</source>
      <translation>時間エントリーの一覧・編集・削除: entries [--task T] | edit | rm</translation>
    </message>
    <message id="cli.command.export">
      <source>Time entries or invoices of a period as CSV for the accountant: export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>期間の作業時間または請求書を会計士向けの CSV に書き出す: export entries|invoices --from 日付 --to 日付 [--out ファイル]</translation>
    </message>
    <message id="cli.command.invoice">
      <source>Invoices: invoice draft|create|list|show|status|void|rm|pdf</source>
      <translation>請求書: invoice draft|create|list|show|status|void|rm|pdf</translation>
    </message>
    <message id="cli.command.log">
      <source>Log minutes of work on a task: log &lt;task&gt; &lt;minutes&gt;</source>
      <translation>タスクに作業時間 (分) を記録: log &lt;task&gt; &lt;minutes&gt;</translation>
    </message>
    <message id="cli.command.price">
      <source>Show or set the price of a project or task: price show|set</source>
      <translation>プロジェクトやタスクの価格を表示・設定: price show|set</translation>
    </message>
    <message id="cli.command.projects">
      <source>List, add, rename, archive or delete projects: projects list|add|rename|archive|rm</source>
      <translation>プロジェクトの一覧・追加・名前変更・アーカイブ・削除: projects list|add|rename|archive|rm</translation>
    </message>
    <message id="cli.command.recap">
      <source>A short recap of your tracked week, written by the model from your own figures: recap [--lang L]</source>
      <translation>記録した1週間の短い振り返り。あなた自身の数値をもとにモデルが書きます: recap [--lang L]</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>ローカルバックエンドを起動・停止・表示します: server start|stop|status</translation>
    </message>
    <message id="cli.command.sessions">
      <source>Coding-agent sessions found in the local logs: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</source>
      <translation>ローカルログにあるコーディングエージェントのセッション: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</translation>
    </message>
    <message id="cli.command.standup">
      <source>A stand-up draft from your last workday, today and your open tasks: standup [--lang L]</source>
      <translation>前回の稼働日、今日、未完了のタスクから作るスタンドアップの下書き: standup [--lang L]</translation>
    </message>
    <message id="cli.command.tasks">
      <source>List, add, edit, move or delete tasks: tasks list|add|edit|move|status|rm</source>
      <translation>タスクの一覧・追加・編集・移動・削除: tasks list|add|edit|move|status|rm</translation>
    </message>
    <message id="cli.command.teams">
      <source>Teams and their members: teams list|create|invite|invitations|accept|decline|assign</source>
      <translation>チームとメンバー: teams list|create|invite|invitations|accept|decline|assign</translation>
    </message>
    <message id="cli.command.timer">
      <source>Start, stop or show the timer: timer start|stop|toggle|status</source>
      <translation>タイマーの開始・停止・表示: timer start|stop|toggle|status</translation>
    </message>
    <message id="cli.command.travel">
      <source>Your rate per kilometre and how you usually travel: travel show|set</source>
      <translation>1キロあたりの料金といつもの移動手段: travel show|set</translation>
    </message>
    <message id="cli.command.trips">
      <source>Trips and their kilometres: trips list|add|edit|rm|route|export</source>
      <translation>移動と距離: trips list|add|edit|rm|route|export</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>コマンド:</translation>
    </message>
    <message id="cli.company.accent">
      <source>Accent colour</source>
      <translation>アクセントカラー</translation>
    </message>
    <message id="cli.company.address">
      <source>Address</source>
      <translation>住所</translation>
    </message>
    <message id="cli.company.argument.action">
      <source>show or set</source>
      <translation>show または set</translation>
    </message>
    <message id="cli.company.bank">
      <source>Bank</source>
      <translation>銀行</translation>
    </message>
    <message id="cli.company.cocNumber">
      <source>Chamber of commerce number</source>
      <translation>商業登記番号</translation>
    </message>
    <message id="cli.company.company">
      <source>Company</source>
      <translation>会社名</translation>
    </message>
    <message id="cli.company.days">
      <source>%1 days</source>
      <translation>%1 日</translation>
    </message>
    <message id="cli.company.design">
      <source>Design</source>
      <translation>デザイン</translation>
    </message>
    <message id="cli.company.email">
      <source>E-mail</source>
      <translation>メール</translation>
    </message>
    <message id="cli.company.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>支払期限は 0〜365 の整数の日数で指定してください。</translation>
    </message>
    <message id="cli.company.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>税率は 0〜100 のパーセントで指定してください。</translation>
    </message>
    <message id="cli.company.fileProblem">
      <source>%1: %2</source>
      <translation>%1: %2</translation>
    </message>
    <message id="cli.company.fontBody">
      <source>Body font</source>
      <translation>本文フォント</translation>
    </message>
    <message id="cli.company.fontDisplay">
      <source>Display font</source>
      <translation>見出しフォント</translation>
    </message>
    <message id="cli.company.footer">
      <source>Footer</source>
      <translation>フッター</translation>
    </message>
    <message id="cli.company.iban">
      <source>Bank account (IBAN)</source>
      <translation>銀行口座 (IBAN)</translation>
    </message>
    <message id="cli.company.ink">
      <source>Ink colour</source>
      <translation>文字色</translation>
    </message>
    <message id="cli.company.logo">
      <source>Logo</source>
      <translation>ロゴ</translation>
    </message>
    <message id="cli.company.logoSize">
      <source>%1 × %2 px</source>
      <translation>%1 × %2 px</translation>
    </message>
    <message id="cli.company.logoUnreadable">
      <source>set, but not readable</source>
      <translation>設定済みですが読み込めません</translation>
    </message>
    <message id="cli.company.none">
      <source>No sender details yet. Set them with: morvane company set --company NAME --address TEXT ...</source>
      <translation>差出人情報はまだありません。次のコマンドで設定します: morvane company set --company 名前 --address 住所 ...</translation>
    </message>
    <message id="cli.company.option.design">
      <source>The design new invoices are drawn in.</source>
      <translation>新しい請求書のデザイン。</translation>
    </message>
    <message id="cli.company.option.field">
      <source>Sets: %1. An empty value clears it.</source>
      <translation>設定: %1。空の値で消去します。</translation>
    </message>
    <message id="cli.company.option.help">
      <source>Show this help.</source>
      <translation>このヘルプを表示します。</translation>
    </message>
    <message id="cli.company.option.logo">
      <source>A PNG or JPEG of at most 1 MB; an empty value removes the logo.</source>
      <translation>1 MB までの PNG または JPEG。空の値でロゴを削除します。</translation>
    </message>
    <message id="cli.company.option.paymentDays">
      <source>Days the client has to pay.</source>
      <translation>顧客の支払期限（日数）。</translation>
    </message>
    <message id="cli.company.option.template">
      <source>Your own HTML template; new invoices use it unless --design says otherwise.</source>
      <translation>独自の HTML テンプレート。--design で別のものを指定しない限り、新しい請求書に使われます。</translation>
    </message>
    <message id="cli.company.option.vatRate">
      <source>VAT percentage of lines whose price has none.</source>
      <translation>税率が指定されていない明細の税率（%）。</translation>
    </message>
    <message id="cli.company.paymentDays">
      <source>Payment terms</source>
      <translation>支払期限</translation>
    </message>
    <message id="cli.company.phone">
      <source>Phone</source>
      <translation>電話</translation>
    </message>
    <message id="cli.company.saved">
      <source>Sender details and invoice style saved.</source>
      <translation>差出人情報と請求書のスタイルを保存しました。</translation>
    </message>
    <message id="cli.company.template">
      <source>Custom template</source>
      <translation>カスタムテンプレート</translation>
    </message>
    <message id="cli.company.templateFallsBack">
      <source>not used, invoices fall back to %1: %2</source>
      <translation>使用されていません。請求書は %1 で作成されます: %2</translation>
    </message>
    <message id="cli.company.templateStatus">
      <source>Custom template: %1</source>
      <translation>カスタムテンプレート: %1</translation>
    </message>
    <message id="cli.company.templateUsed">
      <source>used</source>
      <translation>使用中</translation>
    </message>
    <message id="cli.company.unknownDesign">
      <source>Unknown design: %1. The designs are: %2 (aiCustom is your own template).</source>
      <translation>不明なデザインです: %1。使えるデザイン: %2（aiCustom は独自のテンプレート）。</translation>
    </message>
    <message id="cli.company.usage">
      <source>Usage: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</source>
      <translation>使い方: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</translation>
    </message>
    <message id="cli.company.vatNumber">
      <source>VAT number</source>
      <translation>VAT 番号</translation>
    </message>
    <message id="cli.company.vatRate">
      <source>Default VAT rate</source>
      <translation>既定の税率</translation>
    </message>
    <message id="cli.company.website">
      <source>Website</source>
      <translation>ウェブサイト</translation>
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
    <message id="cli.earnings.backwards">
      <source>The period ends before it begins.</source>
      <translation>期間の終わりが始まりより前になっています。</translation>
    </message>
    <message id="cli.earnings.badBy">
      <source>--by takes week, month or project, not "%1".</source>
      <translation>--by には week、month、project のいずれかを指定してください (「%1」は使えません)。</translation>
    </message>
    <message id="cli.earnings.badDay">
      <source>"%1" is not a day; write it as yyyy-MM-dd, for example 2026-01-31.</source>
      <translation>「%1」は日付ではありません。yyyy-MM-dd の形式で指定してください (例: 2026-01-31)。</translation>
    </message>
    <message id="cli.earnings.column.billed">
      <source>Billed</source>
      <translation>請求済み</translation>
    </message>
    <message id="cli.earnings.column.earned">
      <source>Earned</source>
      <translation>売上</translation>
    </message>
    <message id="cli.earnings.column.hours">
      <source>Hours</source>
      <translation>時間</translation>
    </message>
    <message id="cli.earnings.column.period">
      <source>Period</source>
      <translation>期間</translation>
    </message>
    <message id="cli.earnings.column.project">
      <source>Project</source>
      <translation>プロジェクト</translation>
    </message>
    <message id="cli.earnings.column.rate">
      <source>Per hour</source>
      <translation>時給</translation>
    </message>
    <message id="cli.earnings.column.unbilled">
      <source>Unbilled</source>
      <translation>未請求</translation>
    </message>
    <message id="cli.earnings.halfPeriod">
      <source>Give both --from and --to, or neither for the current month.</source>
      <translation>--from と --to は両方指定してください。どちらも省略すると今月になります。</translation>
    </message>
    <message id="cli.earnings.heading">
      <source>Earnings from %1 to %2</source>
      <translation>%1 から %2 までの売上</translation>
    </message>
    <message id="cli.earnings.noProject">
      <source>No project</source>
      <translation>プロジェクトなし</translation>
    </message>
    <message id="cli.earnings.none">
      <source>No time tracked in this period.</source>
      <translation>この期間に記録された時間はありません。</translation>
    </message>
    <message id="cli.earnings.option.by">
      <source>Rows by week, month (the default) or project.</source>
      <translation>行の単位: 週、月 (既定)、プロジェクト。</translation>
    </message>
    <message id="cli.earnings.option.from">
      <source>First day of the period (yyyy-MM-dd); with --to. Without both, the current month.</source>
      <translation>期間の初日 (yyyy-MM-dd)。--to と一緒に指定します。両方省略すると今月です。</translation>
    </message>
    <message id="cli.earnings.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>期間の最終日 (yyyy-MM-dd、この日を含む)。</translation>
    </message>
    <message id="cli.earnings.total">
      <source>Total</source>
      <translation>合計</translation>
    </message>
    <message id="cli.earnings.usage">
      <source>Usage: morvane earnings [--from DAY --to DAY] [--by week|month|project] [--json]</source>
      <translation>使い方: morvane earnings [--from 日付 --to 日付] [--by week|month|project] [--json]</translation>
    </message>
    <message id="cli.entries.badRange">
      <source>An entry must end after it starts.</source>
      <translation>エントリーは開始より後に終了する必要があります。</translation>
    </message>
    <message id="cli.entries.deleted">
      <source>Deleted the entry of %1.</source>
      <translation>%1 のエントリーを削除しました。</translation>
    </message>
    <message id="cli.entries.noMatch">
      <source>No single time entry matches "%1". List them with: morvane entries --task &lt;task&gt;</source>
      <translation>「%1」に一致するエントリーが一つに定まりません。次で一覧表示: morvane entries --task &lt;task&gt;</translation>
    </message>
    <message id="cli.entries.none">
      <source>No time entries.</source>
      <translation>時間エントリーはありません。</translation>
    </message>
    <message id="cli.entries.option.end">
      <source>The new end (ISO 8601, local time without an offset).</source>
      <translation>新しい終了 (ISO 8601、オフセットなしはローカル時刻)。</translation>
    </message>
    <message id="cli.entries.option.minutes">
      <source>The new length in minutes.</source>
      <translation>新しい長さ (分)。</translation>
    </message>
    <message id="cli.entries.option.start">
      <source>The new start (ISO 8601, local time without an offset).</source>
      <translation>新しい開始 (ISO 8601、オフセットなしはローカル時刻)。</translation>
    </message>
    <message id="cli.entries.option.task">
      <source>Only the entries of this task, older ones included.</source>
      <translation>このタスクのエントリーのみ (古いものも含む)。</translation>
    </message>
    <message id="cli.entries.total">
      <source>In all: %1</source>
      <translation>合計: %1</translation>
    </message>
    <message id="cli.entries.usage">
      <source>Usage: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</source>
      <translation>使い方: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</translation>
    </message>
    <message id="cli.err.noSignInWaiting">
      <source>No sign-in is waiting for this address. Start the sign-in in Morvane again.</source>
      <translation>このアドレスを待っているサインインはありません。Morvane でもう一度サインインを開始してください。</translation>
    </message>
    <message id="cli.err.notSignedIn">
      <source>Not signed in. Sign in with: morvane auth signin &lt;e-mail&gt;</source>
      <translation>サインインしていません。次でサインイン: morvane auth signin &lt;e-mail&gt;</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>不明なコマンドです: %1。コマンド一覧は morvane --help で表示できます。</translation>
    </message>
    <message id="cli.export.argument.kind">
      <source>What to export: entries or invoices.</source>
      <translation>書き出す内容: entries (作業時間) または invoices (請求書)。</translation>
    </message>
    <message id="cli.export.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>期間の初日 (yyyy-MM-dd)。</translation>
    </message>
    <message id="cli.export.option.help">
      <source>Show this help.</source>
      <translation>このヘルプを表示します。</translation>
    </message>
    <message id="cli.export.option.out">
      <source>The CSV file to write; without it the CSV goes to standard output.</source>
      <translation>書き込む CSV ファイル。指定しない場合は標準出力に出力します。</translation>
    </message>
    <message id="cli.export.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>期間の最終日 (yyyy-MM-dd、この日を含む)。</translation>
    </message>
    <message id="cli.export.usage">
      <source>Usage: morvane export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>使い方: morvane export entries|invoices --from 日付 --to 日付 [--out ファイル]</translation>
    </message>
    <message id="cli.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>%1 を書き込めませんでした: %2</translation>
    </message>
    <message id="cli.export.written">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 を保存しました (%2 行)。</translation>
    </message>
    <message id="cli.invoice.ambiguous">
      <source>Several invoices match %1; give more of the id or the number.</source>
      <translation>%1 に一致する請求書が複数あります。IDをもっと長く指定するか番号を指定してください。</translation>
    </message>
    <message id="cli.invoice.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>請求書 %1 を削除しました。その時間は再び未請求になります。</translation>
    </message>
    <message id="cli.invoice.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>PDFをダウンロードできませんでした: %1</translation>
    </message>
    <message id="cli.invoice.draftEmpty">
      <source>No unbilled time of %1 in this period.</source>
      <translation>この期間に %1 の未請求の時間はありません。</translation>
    </message>
    <message id="cli.invoice.due">
      <source>, due %1</source>
      <translation>、期日 %1</translation>
    </message>
    <message id="cli.invoice.header">
      <source>Invoice %1 (%2), issued %3</source>
      <translation>請求書 %1 (%2)、発行日 %3</translation>
    </message>
    <message id="cli.invoice.none">
      <source>No invoices yet.</source>
      <translation>請求書はまだありません。</translation>
    </message>
    <message id="cli.invoice.notFound">
      <source>No invoice matches %1.</source>
      <translation>%1 に一致する請求書はありません。</translation>
    </message>
    <message id="cli.invoice.option.client">
      <source>Bill-to name on the new invoice.</source>
      <translation>新しい請求書の請求先名。</translation>
    </message>
    <message id="cli.invoice.option.design">
      <source>The design of the new invoice, instead of the one in your invoice style.</source>
      <translation>請求書スタイルの代わりに、この請求書に使うデザイン。</translation>
    </message>
    <message id="cli.invoice.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>期間の初日 (yyyy-MM-dd)。</translation>
    </message>
    <message id="cli.invoice.option.out">
      <source>The file to write the PDF to.</source>
      <translation>PDFを書き込むファイル。</translation>
    </message>
    <message id="cli.invoice.option.status">
      <source>Status of the new invoice: draft or sent.</source>
      <translation>新しい請求書のステータス: draft または sent。</translation>
    </message>
    <message id="cli.invoice.option.to">
      <source>Last day of the period (yyyy-MM-dd).</source>
      <translation>期間の最終日 (yyyy-MM-dd)。</translation>
    </message>
    <message id="cli.invoice.option.vat">
      <source>VAT percentage for lines whose price has none.</source>
      <translation>価格に税率がない明細の消費税率。</translation>
    </message>
    <message id="cli.invoice.pdfReplaced">
      <source>The PDF of invoice %1 was made again.</source>
      <translation>請求書 %1 の PDF を作り直しました。</translation>
    </message>
    <message id="cli.invoice.pdfSaved">
      <source>Saved the PDF of invoice %1 to %2.</source>
      <translation>請求書 %1 のPDFを %2 に保存しました。</translation>
    </message>
    <message id="cli.invoice.status.draft">
      <source>draft</source>
      <translation>下書き</translation>
    </message>
    <message id="cli.invoice.status.paid">
      <source>paid</source>
      <translation>支払済み</translation>
    </message>
    <message id="cli.invoice.status.sent">
      <source>sent</source>
      <translation>送付済み</translation>
    </message>
    <message id="cli.invoice.status.void">
      <source>void</source>
      <translation>無効</translation>
    </message>
    <message id="cli.invoice.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>請求書 %1 は %2 になりました。</translation>
    </message>
    <message id="cli.invoice.subtotal">
      <source>Subtotal</source>
      <translation>小計</translation>
    </message>
    <message id="cli.invoice.total">
      <source>Total</source>
      <translation>合計</translation>
    </message>
    <message id="cli.invoice.usage">
      <source>Usage: morvane invoice draft|create &lt;project&gt; [--from DAY] [--to DAY] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;invoice&gt; | status &lt;invoice&gt; draft|sent|paid|void | void &lt;invoice&gt; | rm &lt;invoice&gt; | pdf &lt;invoice&gt; --out FILE | replace-pdf &lt;invoice&gt; [--json]</source>
      <translation>使い方: morvane invoice draft|create &lt;プロジェクト&gt; [--from 日付] [--to 日付] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;請求書&gt; | status &lt;請求書&gt; draft|sent|paid|void | void &lt;請求書&gt; | rm &lt;請求書&gt; | pdf &lt;請求書&gt; --out ファイル | replace-pdf &lt;請求書&gt; [--json]</translation>
    </message>
    <message id="cli.invoice.vat">
      <source>VAT</source>
      <translation>消費税</translation>
    </message>
    <message id="cli.invoice.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>請求書 %1 を無効にしました。その時間は再び未請求になります。</translation>
    </message>
    <message id="cli.invoice.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>%1 を書き込めませんでした: %2</translation>
    </message>
    <message id="cli.log.logged">
      <source>Logged %1 on %2, %3 in all.</source>
      <translation>%2 に %1 を記録しました。合計 %3。</translation>
    </message>
    <message id="cli.log.usage">
      <source>Usage: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</source>
      <translation>使い方: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</translation>
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
    <message id="cli.price.invalid">
      <source>Not a valid amount, or a required one is missing: %1</source>
      <translation>有効な金額ではないか、必須の金額がありません: %1</translation>
    </message>
    <message id="cli.price.option.amount">
      <source>A number as you write it (1250, 1.250,50, 12.5); empty clears it.</source>
      <translation>書いたままの数値 (1250、1.250,50、12.5)。空にすると消去します。</translation>
    </message>
    <message id="cli.price.option.discountAmount">
      <source>The discount is an amount.</source>
      <translation>割引は金額です。</translation>
    </message>
    <message id="cli.price.option.discountPct">
      <source>The discount is a percentage.</source>
      <translation>割引は割合です。</translation>
    </message>
    <message id="cli.price.option.inherit">
      <source>The task bills at its project's price again.</source>
      <translation>タスクを再びプロジェクトの価格で請求します。</translation>
    </message>
    <message id="cli.price.option.model">
      <source>The billing model: hourly, fixed, per_unit or daily.</source>
      <translation>請求モデル: hourly、fixed、per_unit、daily。</translation>
    </message>
    <message id="cli.price.option.surchargeLabel">
      <source>Label of the surcharge.</source>
      <translation>追加料金のラベル。</translation>
    </message>
    <message id="cli.price.option.task">
      <source>The task whose own price to show or set, instead of a project's.</source>
      <translation>プロジェクトではなく、独自の価格を表示・設定するタスク。</translation>
    </message>
    <message id="cli.price.option.travel">
      <source>How the project charges its trips: per_km, per_trip or none.</source>
      <translation>プロジェクトの移動の請求方法: per_km、per_trip、none。</translation>
    </message>
    <message id="cli.price.option.travelRate">
      <source>The travel rate per kilometre or per trip; without it, per kilometre bills at your own rate.</source>
      <translation>1キロまたは1回あたりの料金。省略するとキロ単位はあなた自身の料金になります。</translation>
    </message>
    <message id="cli.price.option.unitLabel">
      <source>Name of the unit of a per-unit price.</source>
      <translation>単価のときの単位名。</translation>
    </message>
    <message id="cli.price.unchanged">
      <source>Nothing changed.</source>
      <translation>変更はありません。</translation>
    </message>
    <message id="cli.price.usage">
      <source>Usage: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</source>
      <translation>使い方: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</translation>
    </message>
    <message id="cli.price.worth">
      <source>Tracked %1, worth %2.</source>
      <translation>記録 %1、金額 %2。</translation>
    </message>
    <message id="cli.projects.active">
      <source>active</source>
      <translation>進行中</translation>
    </message>
    <message id="cli.projects.added">
      <source>Added project %1 (%2).</source>
      <translation>プロジェクト %1 (%2) を追加しました。</translation>
    </message>
    <message id="cli.projects.archived">
      <source>archived</source>
      <translation>アーカイブ済み</translation>
    </message>
    <message id="cli.projects.archivedIdle">
      <source>Idle projects archived: %1.</source>
      <translation>アーカイブした休止中のプロジェクト: %1。</translation>
    </message>
    <message id="cli.projects.archivedOne">
      <source>Archived %1.</source>
      <translation>%1 をアーカイブしました。</translation>
    </message>
    <message id="cli.projects.completed">
      <source>completed</source>
      <translation>完了</translation>
    </message>
    <message id="cli.projects.deleted">
      <source>Deleted %1 and its tasks.</source>
      <translation>%1 とそのタスクを削除しました。</translation>
    </message>
    <message id="cli.projects.none">
      <source>No projects yet. Add one with: morvane projects add &lt;name&gt;</source>
      <translation>プロジェクトはまだありません。次で追加: morvane projects add &lt;name&gt;</translation>
    </message>
    <message id="cli.projects.option.description">
      <source>A description of the project.</source>
      <translation>プロジェクトの説明。</translation>
    </message>
    <message id="cli.projects.option.idle">
      <source>Archive every project of yours without work for this many days.</source>
      <translation>この日数作業のない自分のプロジェクトをすべてアーカイブします。</translation>
    </message>
    <message id="cli.projects.option.team">
      <source>The team the new project belongs to.</source>
      <translation>新しいプロジェクトが属するチーム。</translation>
    </message>
    <message id="cli.projects.renamed">
      <source>Renamed %1 to %2.</source>
      <translation>%1 を %2 に名前変更しました。</translation>
    </message>
    <message id="cli.projects.taskCount">
      <source>tasks: %1</source>
      <translation>タスク: %1</translation>
    </message>
    <message id="cli.projects.team">
      <source>team %1</source>
      <translation>チーム %1</translation>
    </message>
    <message id="cli.projects.usage">
      <source>Usage: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</source>
      <translation>使い方: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</translation>
    </message>
    <message id="cli.recap.usage">
      <source>Usage: morvane recap [--lang L] [--yes] [--json]</source>
      <translation>使い方: morvane recap [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.ref.ambiguous">
      <source>"%1" matches several: %2. Use the id.</source>
      <translation>「%1」は複数に一致します: %2。IDを使ってください。</translation>
    </message>
    <message id="cli.ref.noInvitation">
      <source>No invitation to a team matches "%1". See them with: morvane teams invitations</source>
      <translation>「%1」に一致するチームへの招待はありません。一覧は morvane teams invitations で確認できます</translation>
    </message>
    <message id="cli.ref.noProject">
      <source>No project matches "%1".</source>
      <translation>「%1」に一致するプロジェクトはありません。</translation>
    </message>
    <message id="cli.ref.noTask">
      <source>No task matches "%1".</source>
      <translation>「%1」に一致するタスクはありません。</translation>
    </message>
    <message id="cli.ref.noTeam">
      <source>No team matches "%1".</source>
      <translation>「%1」に一致するチームはありません。</translation>
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
    <message id="cli.sessions.burst">
      <source>%1. %2 to %3 · active %4 · prompts: %5 · %6</source>
      <translation>%1. %2 から %3 · 稼働 %4 · プロンプト: %5 · %6</translation>
    </message>
    <message id="cli.sessions.err.days">
      <source>--days takes a whole number of days from 1 to 36500.</source>
      <translation>--days には 1 から 36500 までの整数の日数を指定してください。</translation>
    </message>
    <message id="cli.sessions.err.unknownSession">
      <source>No session %1 among the logs of the last 60 days.</source>
      <translation>過去 60 日間のログにセッション %1 はありません。</translation>
    </message>
    <message id="cli.sessions.group">
      <source>%1 · sessions: %2 · active %3</source>
      <translation>%1 · セッション: %2 · 稼働 %3</translation>
    </message>
    <message id="cli.sessions.ignored">
      <source>Ignored %1: %2 sessions there will not be logged.</source>
      <translation>%1 を無視しました: そこの %2 件のセッションは記録されません。</translation>
    </message>
    <message id="cli.sessions.mapped">
      <source>%1 is mapped to project %2.</source>
      <translation>%1 をプロジェクト %2 に関連付けました。</translation>
    </message>
    <message id="cli.sessions.none">
      <source>No Claude sessions parsed yet</source>
      <translation>まだ Claude のセッションは読み込まれていません</translation>
    </message>
    <message id="cli.sessions.option.all">
      <source>Every session (with reimport).</source>
      <translation>すべてのセッション (reimport と併用)。</translation>
    </message>
    <message id="cli.sessions.option.days">
      <source>Sessions whose log changed in the last N days (30 when not given).</source>
      <translation>過去 N 日間にログが変更されたセッション (省略時は 30)。</translation>
    </message>
    <message id="cli.sessions.pending">
      <source>Not mapped to a project: %1 · sessions: %2 · active %3</source>
      <translation>プロジェクト未割り当て: %1 · セッション: %2 · 稼働 %3</translation>
    </message>
    <message id="cli.sessions.reimportAll">
      <source>Every session will be logged again by the next scan.</source>
      <translation>次のスキャンですべてのセッションが再び記録されます。</translation>
    </message>
    <message id="cli.sessions.reimportLogged">
      <source>Session %1 logged again: %2 of %3 work bursts.</source>
      <translation>セッション %1 を再記録しました: 作業ブロック %3 件中 %2 件。</translation>
    </message>
    <message id="cli.sessions.reimportOne">
      <source>Session %1 will be logged again by the next scan.</source>
      <translation>次のスキャンでセッション %1 が再び記録されます。</translation>
    </message>
    <message id="cli.sessions.scanned">
      <source>Sessions seen: %1 · work bursts logged: %2 · time logged: %3 (%4 minutes) · failed: %5</source>
      <translation>確認したセッション: %1 · 記録した作業ブロック: %2 · 記録した時間: %3 (%4 分) · 失敗: %5</translation>
    </message>
    <message id="cli.sessions.session">
      <source>%1 · %2 to %3 · active %4 · prompts: %5</source>
      <translation>%1 · %2 から %3 · 稼働 %4 · プロンプト: %5</translation>
    </message>
    <message id="cli.sessions.trackOff">
      <source>Claude sessions are no longer tracked.</source>
      <translation>Claude のセッションの記録を停止しました。</translation>
    </message>
    <message id="cli.sessions.trackOn">
      <source>Claude sessions are tracked: every minute the new work bursts of mapped folders are logged.</source>
      <translation>Claude のセッションを記録します: 毎分、関連付けたフォルダーの新しい作業ブロックが記録されます。</translation>
    </message>
    <message id="cli.sessions.usage">
      <source>Usage: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</source>
      <translation>使い方: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</translation>
    </message>
    <message id="cli.sessions.where">
      <source>Looked for logs changed in the last %1 days in %2.</source>
      <translation>%2 で過去 %1 日間に変更されたログを探しました。</translation>
    </message>
    <message id="cli.standup.usage">
      <source>Usage: morvane standup [--lang L] [--yes] [--json]</source>
      <translation>使い方: morvane standup [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.summary.fixed">
      <source>Written from your figures alone; the model's text was not used (%1).</source>
      <translation>あなたの数値だけから作成しました。モデルの文章は使っていません（%1）。</translation>
    </message>
    <message id="cli.summary.option.lang">
      <source>Language of the text: en, nl, de, fr, es, it, pt, ja or th; others mean English. Default: the interface language.</source>
      <translation>文章の言語: en、nl、de、fr、es、it、pt、ja、th のいずれか。それ以外は英語になります。既定: インターフェースの言語。</translation>
    </message>
    <message id="cli.tasks.added">
      <source>Added task %1 (%2) to %3.</source>
      <translation>タスク %1 (%2) を %3 に追加しました。</translation>
    </message>
    <message id="cli.tasks.badDue">
      <source>Not a day: %1. Write it as YYYY-MM-DD.</source>
      <translation>日付ではありません: %1。YYYY-MM-DD の形式で書いてください。</translation>
    </message>
    <message id="cli.tasks.badOrder">
      <source>Unknown filter or sort. Filters: %1. Sorts: %2.</source>
      <translation>不明なフィルターまたは並べ替えです。フィルター: %1。並べ替え: %2。</translation>
    </message>
    <message id="cli.tasks.badStatus">
      <source>Unknown status %1. Statuses: %2.</source>
      <translation>不明なステータス %1。ステータス: %2。</translation>
    </message>
    <message id="cli.tasks.deleted">
      <source>Deleted %1.</source>
      <translation>%1 を削除しました。</translation>
    </message>
    <message id="cli.tasks.due">
      <source>due %1</source>
      <translation>期限 %1</translation>
    </message>
    <message id="cli.tasks.high">
      <source>high</source>
      <translation>高</translation>
    </message>
    <message id="cli.tasks.low">
      <source>low</source>
      <translation>低</translation>
    </message>
    <message id="cli.tasks.medium">
      <source>medium</source>
      <translation>中</translation>
    </message>
    <message id="cli.tasks.moved">
      <source>Moved %1 to %2.</source>
      <translation>%1 を %2 に移動しました。</translation>
    </message>
    <message id="cli.tasks.none">
      <source>  No tasks to show.</source>
      <translation>  表示するタスクはありません。</translation>
    </message>
    <message id="cli.tasks.option.description">
      <source>The task's description; empty clears it.</source>
      <translation>タスクの説明。空にすると消去します。</translation>
    </message>
    <message id="cli.tasks.option.due">
      <source>The day the task is due (YYYY-MM-DD); empty clears it.</source>
      <translation>タスクの期限日 (YYYY-MM-DD)。空にすると消去します。</translation>
    </message>
    <message id="cli.tasks.option.filter">
      <source>Which tasks to list: %1.</source>
      <translation>一覧にするタスク: %1。</translation>
    </message>
    <message id="cli.tasks.option.sort">
      <source>How to order the list: %1.</source>
      <translation>一覧の並べ方: %1。</translation>
    </message>
    <message id="cli.tasks.option.title">
      <source>The task's new title.</source>
      <translation>タスクの新しいタイトル。</translation>
    </message>
    <message id="cli.tasks.running">
      <source>timer running</source>
      <translation>タイマー作動中</translation>
    </message>
    <message id="cli.tasks.saved">
      <source>Saved %1.</source>
      <translation>%1 を保存しました。</translation>
    </message>
    <message id="cli.tasks.statusSet">
      <source>%1 is now %2.</source>
      <translation>%1 は %2 になりました。</translation>
    </message>
    <message id="cli.tasks.usage">
      <source>Usage: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</source>
      <translation>使い方: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</translation>
    </message>
    <message id="cli.teams.accepted">
      <source>You are now in team %1, as %2.</source>
      <translation>チーム %1 に %2 として参加しました。</translation>
    </message>
    <message id="cli.teams.answerHint">
      <source>Answer with: morvane teams accept &lt;team&gt; or morvane teams decline &lt;team&gt;</source>
      <translation>返答するには: morvane teams accept &lt;team&gt; または morvane teams decline &lt;team&gt;</translation>
    </message>
    <message id="cli.teams.assigned">
      <source>%1 now belongs to team %2.</source>
      <translation>%1 はチーム %2 に属するようになりました。</translation>
    </message>
    <message id="cli.teams.created">
      <source>Created team %1 (%2).</source>
      <translation>チーム %1 (%2) を作成しました。</translation>
    </message>
    <message id="cli.teams.declined">
      <source>You declined the invitation to %1.</source>
      <translation>%1 への招待を辞退しました。</translation>
    </message>
    <message id="cli.teams.editor">
      <source>editor</source>
      <translation>編集者</translation>
    </message>
    <message id="cli.teams.invitation">
      <source>%1 (%2): as %3, from %4</source>
      <translation>%1 (%2): %3 として、%4 から</translation>
    </message>
    <message id="cli.teams.noInvitations">
      <source>No invitations wait for your answer.</source>
      <translation>返答待ちの招待はありません。</translation>
    </message>
    <message id="cli.teams.none">
      <source>No teams. Create one with: morvane teams create &lt;name&gt;</source>
      <translation>チームはありません。次で作成: morvane teams create &lt;name&gt;</translation>
    </message>
    <message id="cli.teams.option.role">
      <source>The role of the invited member: editor or viewer.</source>
      <translation>招待するメンバーの役割: editor または viewer。</translation>
    </message>
    <message id="cli.teams.owner">
      <source>owner</source>
      <translation>オーナー</translation>
    </message>
    <message id="cli.teams.pending">
      <source>invited</source>
      <translation>招待中</translation>
    </message>
    <message id="cli.teams.projects">
      <source>Projects: %1</source>
      <translation>プロジェクト: %1</translation>
    </message>
    <message id="cli.teams.unassigned">
      <source>%1 no longer belongs to a team.</source>
      <translation>%1 はどのチームにも属さなくなりました。</translation>
    </message>
    <message id="cli.teams.usage">
      <source>Usage: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</source>
      <translation>使い方: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</translation>
    </message>
    <message id="cli.teams.viewer">
      <source>viewer</source>
      <translation>閲覧者</translation>
    </message>
    <message id="cli.teams.you">
      <source>you: %1</source>
      <translation>あなた: %1</translation>
    </message>
    <message id="cli.timer.idle">
      <source>No timer runs.</source>
      <translation>動作中のタイマーはありません。</translation>
    </message>
    <message id="cli.timer.nothingToResume">
      <source>No task has time yet, so there is none to go on with. Start one with: morvane timer start &lt;task&gt;</source>
      <translation>まだ時間が記録されたタスクがないため、続けるタスクがありません。次で開始してください: morvane timer start &lt;task&gt;</translation>
    </message>
    <message id="cli.timer.running">
      <source>%1 (%2): %3 running, %4 in all</source>
      <translation>%1 (%2): 計測中 %3、合計 %4</translation>
    </message>
    <message id="cli.timer.started">
      <source>Timer started on %1.</source>
      <translation>%1 のタイマーを開始しました。</translation>
    </message>
    <message id="cli.timer.stopped">
      <source>Stopped %1: %2 logged, %3 in all.</source>
      <translation>%1 を停止しました: 記録 %2、合計 %3。</translation>
    </message>
    <message id="cli.timer.usage">
      <source>Usage: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</source>
      <translation>使い方: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</translation>
    </message>
    <message id="cli.travel.option.mode">
      <source>How you usually travel: car, bike, walk, transit or other.</source>
      <translation>いつもの移動手段: car、bike、walk、transit、other。</translation>
    </message>
    <message id="cli.travel.option.rate">
      <source>Your rate per kilometre, used where a project names none.</source>
      <translation>プロジェクトに指定がない場合の1キロあたりの料金。</translation>
    </message>
    <message id="cli.travel.show">
      <source>Rate per kilometre: %1. Usually travel by: %2.</source>
      <translation>1キロあたりの料金: %1。いつもの移動手段: %2。</translation>
    </message>
    <message id="cli.travel.usage">
      <source>Usage: morvane travel show | set [--rate R] [--mode M] [--json]</source>
      <translation>使い方: morvane travel show | set [--rate R] [--mode M] [--json]</translation>
    </message>
    <message id="cli.trips.added">
      <source>Added trip %1: %2 km.</source>
      <translation>移動 %1 を追加しました: %2 km。</translation>
    </message>
    <message id="cli.trips.deleted">
      <source>Deleted trip %1.</source>
      <translation>移動 %1 を削除しました。</translation>
    </message>
    <message id="cli.trips.exported">
      <source>Wrote %1 trips to %2.</source>
      <translation>%1 件の移動を %2 に書き出しました。</translation>
    </message>
    <message id="cli.trips.invoiced">
      <source>invoiced</source>
      <translation>請求済み</translation>
    </message>
    <message id="cli.trips.needKm">
      <source>The distance is unknown: the places were not found. Give it with --km.</source>
      <translation>場所が見つからないため距離が不明です。--km で指定してください。</translation>
    </message>
    <message id="cli.trips.noMatch">
      <source>No single trip matches "%1". See them with: morvane trips list</source>
      <translation>「%1」に一致する移動が一つに絞れません。一覧: morvane trips list</translation>
    </message>
    <message id="cli.trips.notCharged">
      <source>not charged</source>
      <translation>請求しない</translation>
    </message>
    <message id="cli.trips.option.date">
      <source>The day of the trip (YYYY-MM-DD).</source>
      <translation>移動の日付 (YYYY-MM-DD)。</translation>
    </message>
    <message id="cli.trips.option.from">
      <source>Where the trip started: an address, a place or "lat,lng"; for an export, the first day.</source>
      <translation>出発地（住所、場所、"lat,lng"）。書き出しでは開始日。</translation>
    </message>
    <message id="cli.trips.option.km">
      <source>The distance in kilometres; without it the road route, else the straight-line estimate.</source>
      <translation>距離（km）。省略すると道路ルート、なければ直線距離の見積もり。</translation>
    </message>
    <message id="cli.trips.option.mode">
      <source>car, bike, walk, transit or other.</source>
      <translation>car、bike、walk、transit、other。</translation>
    </message>
    <message id="cli.trips.option.notBillable">
      <source>A business trip that is not charged to the client.</source>
      <translation>顧客に請求しない業務上の移動。</translation>
    </message>
    <message id="cli.trips.option.out">
      <source>The CSV file to write.</source>
      <translation>書き出す CSV ファイル。</translation>
    </message>
    <message id="cli.trips.option.private">
      <source>A private trip; never charged.</source>
      <translation>私用の移動。請求されません。</translation>
    </message>
    <message id="cli.trips.option.project">
      <source>The project the trip served.</source>
      <translation>移動の目的となったプロジェクト。</translation>
    </message>
    <message id="cli.trips.option.purpose">
      <source>What the trip was for.</source>
      <translation>移動の目的。</translation>
    </message>
    <message id="cli.trips.option.task">
      <source>The task the trip served.</source>
      <translation>移動の目的となったタスク。</translation>
    </message>
    <message id="cli.trips.option.to">
      <source>Where the trip ended; for an export, the last day.</source>
      <translation>到着地。書き出しでは終了日。</translation>
    </message>
    <message id="cli.trips.placeUnknown">
      <source>No place was found for "%1".</source>
      <translation>「%1」の場所が見つかりません。</translation>
    </message>
    <message id="cli.trips.private">
      <source>private</source>
      <translation>私用</translation>
    </message>
    <message id="cli.trips.saved">
      <source>Saved trip %1.</source>
      <translation>移動 %1 を保存しました。</translation>
    </message>
    <message id="cli.trips.usage">
      <source>Usage: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</source>
      <translation>使い方: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</translation>
    </message>
    <message id="client.err.nameMissing">
      <source>A client needs a name.</source>
      <translation>クライアントには名前が必要です。</translation>
    </message>
    <message id="client.err.notCreated">
      <source>The client was not saved: you may not add clients to that team.</source>
      <translation>クライアントを保存できませんでした。このチームにクライアントを追加する権限がありません。</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>クライアントを読み込めませんでした。</translation>
    </message>
    <message id="client.err.notSaved">
      <source>The client was not changed: you may not edit it, or it no longer exists.</source>
      <translation>クライアントは変更されませんでした。編集する権限がないか、すでに存在しません。</translation>
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
    <message id="entry.err.notLogged">
      <source>The time was not logged: you may not log time on this task, or it no longer exists.</source>
      <translation>時間は記録されませんでした: このタスクに時間を記録する権限がないか、タスクがすでに存在しません。</translation>
    </message>
    <message id="entry.err.notSaved">
      <source>The time entry was not saved: it is not yours or it no longer exists.</source>
      <translation>時間エントリーは保存されませんでした: あなたのものではないか、すでに存在しません。</translation>
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
    <message id="inv.err.allocateNumber">
      <source>Allocate invoice number failed: %1</source>
      <translation>請求書番号を割り当てられませんでした: %1</translation>
    </message>
    <message id="inv.err.alreadyBilled">
      <source>Some of these hours are already on another invoice. The list was refreshed: check it and try again.</source>
      <translation>これらの時間の一部はすでに別の請求書に含まれています。一覧を更新しました。確認してもう一度お試しください。</translation>
    </message>
    <message id="inv.err.delete">
      <source>Delete invoice failed: %1</source>
      <translation>請求書を削除できませんでした: %1</translation>
    </message>
    <message id="inv.err.loadInvoices">
      <source>Load invoices failed: %1</source>
      <translation>請求書を読み込めませんでした: %1</translation>
    </message>
    <message id="inv.err.loadLines">
      <source>Load invoice lines failed: %1</source>
      <translation>請求書の明細を読み込めませんでした: %1</translation>
    </message>
    <message id="inv.err.notReady">
      <source>Still reading what was billed before.</source>
      <translation>以前の請求内容を読み込み中です。</translation>
    </message>
    <message id="inv.err.pdfLink">
      <source>The invoice PDF could not be opened: %1</source>
      <translation>請求書のPDFを開けませんでした: %1</translation>
    </message>
    <message id="inv.err.pdfReplace">
      <source>The invoice PDF could not be replaced: %1</source>
      <translation>請求書のPDFを置き換えられませんでした: %1</translation>
    </message>
    <message id="inv.err.priorBilling">
      <source>Could not read which work was billed before. Billing waits until this works, so no fixed price or extra is billed twice.</source>
      <translation>以前に請求した作業を読み込めませんでした。固定価格や追加料金が二重に請求されないよう、読み込めるまで請求は待機します。</translation>
    </message>
    <message id="inv.err.saveFailed">
      <source>Save invoice failed: %1</source>
      <translation>請求書を保存できませんでした: %1</translation>
    </message>
    <message id="inv.err.unbilled">
      <source>Could not read which time is still unbilled.</source>
      <translation>未請求の時間を読み込めませんでした。</translation>
    </message>
    <message id="inv.err.updateStatus">
      <source>Update invoice status failed: %1</source>
      <translation>請求書のステータスを更新できませんでした: %1</translation>
    </message>
    <message id="inv.err.voidFailed">
      <source>Voiding the invoice failed: %1</source>
      <translation>請求書を無効にできませんでした: %1</translation>
    </message>
    <message id="inv.err.voidUnavailable">
      <source>Voiding is not available yet because the server has not been updated. Try again later.</source>
      <translation>サーバーが更新されていないため、まだ無効にできません。後でもう一度お試しください。</translation>
    </message>
    <message id="inv.extrasBilledBefore">
      <source>extras already billed</source>
      <translation>追加料金は請求済み</translation>
    </message>
    <message id="inv.followUp">
      <source>FOLLOW-UP</source>
      <translation>追加請求</translation>
    </message>
    <message id="inv.inProjectPrice">
      <source>included in the project price</source>
      <translation>プロジェクト価格に含まれます</translation>
    </message>
    <message id="inv.leftOut.many">
      <source>%1 time entries already billed, left out</source>
      <translation>%1件の作業時間は請求済みのため除外しました</translation>
    </message>
    <message id="inv.leftOut.one">
      <source>1 time entry already billed, left out</source>
      <translation>1件の作業時間は請求済みのため除外しました</translation>
    </message>
    <message id="inv.line.discount">
      <source>Discount</source>
      <translation>割引</translation>
    </message>
    <message id="inv.line.fixedPrice">
      <source>fixed price</source>
      <translation>固定価格</translation>
    </message>
    <message id="inv.line.materials">
      <source>Materials</source>
      <translation>材料費</translation>
    </message>
    <message id="inv.line.minimum">
      <source>Minimum charge</source>
      <translation>最低料金</translation>
    </message>
    <message id="inv.line.projectPrice">
      <source>Project price</source>
      <translation>プロジェクト価格</translation>
    </message>
    <message id="inv.line.surcharge">
      <source>Call-out fee</source>
      <translation>出張費</translation>
    </message>
    <message id="inv.oncePerProject">
      <source>once per project</source>
      <translation>プロジェクトごとに1回</translation>
    </message>
    <message id="inv.onlyNewTime">
      <source>new time only</source>
      <translation>新しい時間のみ</translation>
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
    <message id="inv.priceBilledBefore">
      <source>fixed price already billed</source>
      <translation>固定価格は請求済み</translation>
    </message>
    <message id="inv.projectExtras">
      <source>Project extras</source>
      <translation>プロジェクトの追加料金</translation>
    </message>
    <message id="inv.rebill">
      <source>Bill again</source>
      <translation>再度請求する</translation>
    </message>
    <message id="inv.rebillHelp">
      <source>This work was billed before. Its fixed or per-unit price, minimum charge, call-out fee, materials and a fixed discount are billed once. Turn this on to bill them again.</source>
      <translation>この作業は以前に請求済みです。固定価格または単価、最低料金、出張費、材料費、定額割引は1回だけ請求されます。再度請求するにはオンにしてください。</translation>
    </message>
    <message id="inv.saved">
      <source>Invoice %1 saved</source>
      <translation>請求書 %1 を保存しました</translation>
    </message>
    <message id="inv.style.colour.invalid">
      <source>“%1” is no colour: write it as #rgb or #rrggbb, for example #0f766e.</source>
      <translation>「%1」は色ではありません。#rgb または #rrggbb の形で書いてください（例: #0f766e）。</translation>
    </message>
    <message id="inv.style.file.unreadable">
      <source>The file could not be opened.</source>
      <translation>ファイルを開けませんでした。</translation>
    </message>
    <message id="inv.style.font.invalid">
      <source>A font name holds only letters, digits, blanks and hyphens.</source>
      <translation>フォント名に使えるのは文字、数字、空白、ハイフンだけです。</translation>
    </message>
    <message id="inv.style.logo.damaged">
      <source>The image could not be read; the file may be damaged.</source>
      <translation>画像を読み込めませんでした。ファイルが壊れている可能性があります。</translation>
    </message>
    <message id="inv.style.logo.empty">
      <source>The file is empty.</source>
      <translation>ファイルが空です。</translation>
    </message>
    <message id="inv.style.logo.kind">
      <source>The logo must be a PNG or JPEG image.</source>
      <translation>ロゴは PNG か JPEG の画像にしてください。</translation>
    </message>
    <message id="inv.style.logo.svg">
      <source>SVG logos are not accepted, since a drawing can carry scripts and links. Pick a PNG or JPEG.</source>
      <translation>SVG のロゴは受け付けません。図形にスクリプトやリンクが含まれることがあるためです。PNG か JPEG を選んでください。</translation>
    </message>
    <message id="inv.style.logo.tooLarge">
      <source>The logo is larger than 1 MB. Pick a smaller PNG or JPEG.</source>
      <translation>ロゴが 1 MB を超えています。もっと小さい PNG か JPEG を選んでください。</translation>
    </message>
    <message id="inv.style.template.empty">
      <source>The template is empty.</source>
      <translation>テンプレートが空です。</translation>
    </message>
    <message id="inv.style.template.noDoctype">
      <source>The template must start with &lt;!doctype html&gt;.</source>
      <translation>テンプレートは &lt;!doctype html&gt; で始まる必要があります。</translation>
    </message>
    <message id="inv.style.template.noFooter">
      <source>The template has no &lt;footer&gt; element.</source>
      <translation>テンプレートに &lt;footer&gt; 要素がありません。</translation>
    </message>
    <message id="inv.style.template.noHeader">
      <source>The template has no &lt;header&gt; element.</source>
      <translation>テンプレートに &lt;header&gt; 要素がありません。</translation>
    </message>
    <message id="inv.style.template.notText">
      <source>The template is not a text file in UTF-8.</source>
      <translation>テンプレートが UTF-8 のテキストファイルではありません。</translation>
    </message>
    <message id="inv.style.template.pageSize">
      <source>The template must fix the page at 794 × 1123 px (A4), with both sizes in its style sheet.</source>
      <translation>テンプレートはスタイルシートでページを 794 × 1123 px（A4）に固定する必要があります。</translation>
    </message>
    <message id="inv.style.template.tooLarge">
      <source>The template is larger than 512 KB.</source>
      <translation>テンプレートが 512 KB を超えています。</translation>
    </message>
    <message id="inv.subtotal">
      <source>Subtotal</source>
      <translation>小計</translation>
    </message>
    <message id="inv.total">
      <source>Total</source>
      <translation>合計</translation>
    </message>
    <message id="inv.unit.days">
      <source>day</source>
      <translation>日</translation>
    </message>
    <message id="inv.unit.hours">
      <source>h</source>
      <translation>時間</translation>
    </message>
    <message id="inv.unit.units">
      <source>unit</source>
      <translation>単位</translation>
    </message>
    <message id="inv.vat.hint">
      <source>Each line uses the VAT rate of its price settings, else the template's rate.</source>
      <translation>各明細は価格設定の消費税率を使い、ない場合はテンプレートの税率を使います。</translation>
    </message>
    <message id="inv.vat.none">
      <source>No VAT on these lines</source>
      <translation>これらの明細は非課税</translation>
    </message>
    <message id="inv.vat.override">
      <source>Set VAT manually</source>
      <translation>消費税を手動で設定</translation>
    </message>
    <message id="inv.vat.row">
      <source>VAT %1%</source>
      <translation>消費税 %1%</translation>
    </message>
    <message id="inv.vat.rowOver">
      <source>VAT %1% on %2</source>
      <translation>%2 に対する消費税 %1%</translation>
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
    <message id="inviteRateLimited">
      <source>You have sent many invitations in the last hour. Try again later.</source>
      <translation>この1時間に多くの招待を送信しました。しばらくしてからもう一度お試しください。</translation>
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
    <message id="invoiceErrTripsTaken">
      <source>Some of these trips are already on another invoice. Refresh and try again.</source>
      <translation>これらの移動の一部はすでに別の請求書に含まれています。更新してもう一度お試しください。</translation>
    </message>
    <message id="invoiceErrVoidFinal">
      <source>This invoice is void. A void invoice cannot be changed back.</source>
      <translation>この請求書は無効です。無効にした請求書は元に戻せません。</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Morvane で作成</translation>
    </message>
    <message id="invoicePeriodLast30">
      <source>Last 30 days</source>
      <translation>過去30日間</translation>
    </message>
    <message id="invoicePeriodLast7">
      <source>Last 7 days</source>
      <translation>過去7日間</translation>
    </message>
    <message id="invoicePeriodLastMonth">
      <source>Last month</source>
      <translation>先月</translation>
    </message>
    <message id="invoicePeriodThisMonth">
      <source>This month</source>
      <translation>今月</translation>
    </message>
    <message id="invoiceTravelInclude">
      <source>Charge travel</source>
      <translation>交通費を請求</translation>
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
    <message id="store.style.err.notLoaded">
      <source>Your invoice style could not be loaded.</source>
      <translation>請求書のスタイルを読み込めませんでした。</translation>
    </message>
    <message id="store.style.err.notSaved">
      <source>The invoice style was not saved: you may not change this template, or it no longer exists.</source>
      <translation>請求書のスタイルを保存できませんでした。このテンプレートを変更する権限がないか、すでに存在しません。</translation>
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
    <message id="task.custom">
      <source>Custom for this task</source>
      <translation>このタスク専用</translation>
    </message>
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>タスクは作成されませんでした。このプロジェクトにタスクを追加する権限がありません。</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>タスクは変更されませんでした。編集する権限がないか、タスクがすでに存在しません。</translation>
    </message>
    <message id="task.inheritedFrom">
      <source>Inherited from %1</source>
      <translation>%1 から継承</translation>
    </message>
    <message id="task.savePrice">
      <source>Save task price</source>
      <translation>タスクの価格を保存</translation>
    </message>
    <message id="task.useProject">
      <source>Use project price</source>
      <translation>プロジェクトの価格を使う</translation>
    </message>
    <message id="team.err.invitationNotAnswered">
      <source>The invitation could not be answered. Try again.</source>
      <translation>招待に応答できませんでした。もう一度お試しください。</translation>
    </message>
    <message id="team.err.memberNotChanged">
      <source>The member was not changed: only the team owner can change roles and remove people.</source>
      <translation>メンバーは変更されませんでした。役割の変更とメンバーの削除ができるのはチームのオーナーだけです。</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>チームを作成できませんでした。もう一度お試しください。</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>チームを読み込めませんでした。</translation>
    </message>
    <message id="time.hoursMinutes">
      <source>%1h %2m</source>
      <translation>%1時間%2分</translation>
    </message>
    <message id="time.minutes">
      <source>%1m</source>
      <translation>%1分</translation>
    </message>
    <message id="timer.err.notStopped">
      <source>The time could not be logged, so the timer keeps running. Try stopping it again.</source>
      <translation>時間を記録できなかったため、タイマーは動き続けています。もう一度停止してください。</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>このタスクのタイマーは別のデバイスで開始されたため、ステータスは変更されませんでした。</translation>
    </message>
    <message id="travelDescribeMany">
      <source>%1 km in %2 trips</source>
      <translation>%2 回の移動で %1 km</translation>
    </message>
    <message id="travelDescribeOne">
      <source>%1 km in 1 trip</source>
      <translation>1 回の移動で %1 km</translation>
    </message>
    <message id="travelKm">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="travelTitle">
      <source>Travel</source>
      <translation>交通費</translation>
    </message>
    <message id="travelTrip">
      <source>trip</source>
      <translation>回</translation>
    </message>
    <message id="trip.err.notLoaded">
      <source>Your trips could not be loaded. Check your connection and try again.</source>
      <translation>移動を読み込めませんでした。接続を確認してもう一度お試しください。</translation>
    </message>
    <message id="trip.err.notSaved">
      <source>The trip was not saved: it no longer exists or you may not change it.</source>
      <translation>移動は保存されませんでした。存在しないか、変更する権限がありません。</translation>
    </message>
    <message id="trip.err.settingsNotSaved">
      <source>Your travel settings were not saved.</source>
      <translation>移動の設定は保存されませんでした。</translation>
    </message>
    <message id="tripDeleteConfirm">
      <source>Delete this trip? This cannot be undone.</source>
      <translation>この移動を削除しますか？元に戻せません。</translation>
    </message>
    <message id="tripDistanceByRoad">
      <source>Distance by road, about %1 min. Change it if you went another way.</source>
      <translation>道路での距離、約 %1 分。別の道を通った場合は変更してください。</translation>
    </message>
    <message id="tripDistanceEstimate">
      <source>Kilometres are an estimate from the addresses; change them if needed.</source>
      <translation>距離は住所からの推定です。必要に応じて変更してください。</translation>
    </message>
    <message id="tripErrNoService">
      <source>No routing or address service is set up.</source>
      <translation>ルートや住所のサービスが設定されていません。</translation>
    </message>
    <message id="tripErrNotFound">
      <source>No place or route was found for this.</source>
      <translation>場所またはルートが見つかりませんでした。</translation>
    </message>
    <message id="tripInProgress">
      <source>Trip in progress</source>
      <translation>移動中</translation>
    </message>
    <message id="tripSearchFailed">
      <source>Searching did not work. Check your connection and try again.</source>
      <translation>検索できませんでした。接続を確認してもう一度お試しください。</translation>
    </message>
    <message id="tripsEmpty">
      <source>No trips yet. Trips your phone records while a timer runs show up here. You can also add a trip by hand.</source>
      <translation>まだ移動はありません。タイマー動作中にスマートフォンが記録した移動がここに表示されます。手動で追加することもできます。</translation>
    </message>
    <message id="ui.action.floatingTimer">
      <source>Show or hide the floating timer</source>
      <translation>フローティングタイマーの表示/非表示</translation>
    </message>
    <message id="ui.action.newProject">
      <source>New project</source>
      <translation>新しいプロジェクト</translation>
    </message>
    <message id="ui.action.newTask">
      <source>New task</source>
      <translation>新しいタスク</translation>
    </message>
    <message id="ui.action.newTeam">
      <source>New team</source>
      <translation>新しいチーム</translation>
    </message>
    <message id="ui.action.quickAdd">
      <source>Quick add: a sentence becomes work…</source>
      <translation>クイック追加: 文章から作業を作成…</translation>
    </message>
    <message id="ui.action.settings">
      <source>Settings</source>
      <translation>設定</translation>
    </message>
    <message id="ui.action.signOut">
      <source>Sign out</source>
      <translation>サインアウト</translation>
    </message>
    <message id="ui.action.toggleTheme">
      <source>Switch between light and dark</source>
      <translation>ライト/ダークを切り替え</translation>
    </message>
    <message id="ui.action.toggleTimer">
      <source>Start or stop the timer</source>
      <translation>タイマーを開始/停止</translation>
    </message>
    <message id="ui.ai.anthropic">
      <source>Anthropic API with your key</source>
      <translation>自分のキーで Anthropic API</translation>
    </message>
    <message id="ui.ai.anthropicHelp">
      <source>Straight to Anthropic with the key you keep in your keyring.</source>
      <translation>キーリングのキーで Anthropic に直接送信します。</translation>
    </message>
    <message id="ui.ai.auto">
      <source>Automatic (recommended)</source>
      <translation>自動（おすすめ）</translation>
    </message>
    <message id="ui.ai.autoHelp">
      <source>The Claude CLI first; without it, Morvane AI in the cloud.</source>
      <translation>まず Claude CLI、なければクラウドの Morvane AI。</translation>
    </message>
    <message id="ui.ai.cli">
      <source>Claude CLI only</source>
      <translation>Claude CLI のみ</translation>
    </message>
    <message id="ui.ai.cliHelp">
      <source>Everything local through your own Claude subscription. No network.</source>
      <translation>すべて自分の Claude サブスクリプションでローカルに処理。ネットワークなし。</translation>
    </message>
    <message id="ui.ai.consentAllow">
      <source>Allowed</source>
      <translation>許可</translation>
    </message>
    <message id="ui.ai.consentAsk">
      <source>Ask first</source>
      <translation>先に確認する</translation>
    </message>
    <message id="ui.ai.consentDeny">
      <source>Never send</source>
      <translation>送信しない</translation>
    </message>
    <message id="ui.ai.consents">
      <source>Sending text off this computer</source>
      <translation>このコンピューター外へのテキスト送信</translation>
    </message>
    <message id="ui.ai.gemini">
      <source>Google Gemini API with your key</source>
      <translation>自分のキーで Google Gemini API</translation>
    </message>
    <message id="ui.ai.geminiHelp">
      <source>Straight to Google with the key you keep in your keyring.</source>
      <translation>キーリングのキーで Google に直接送信します。</translation>
    </message>
    <message id="ui.ai.keyFailed">
      <source>The keyring did not take the change; nothing changed.</source>
      <translation>キーリングが変更を受け付けませんでした。何も変更されていません。</translation>
    </message>
    <message id="ui.ai.keyInvalid">
      <source>That does not look like an API key: paste the key alone, without spaces.</source>
      <translation>API キーではないようです。キーだけをスペースなしで貼り付けてください。</translation>
    </message>
    <message id="ui.ai.keyName">
      <source>API key for %1</source>
      <translation>%1 の API キー</translation>
    </message>
    <message id="ui.ai.keyPaste">
      <source>Paste your API key</source>
      <translation>API キーを貼り付け</translation>
    </message>
    <message id="ui.ai.keyRemove">
      <source>Remove</source>
      <translation>削除</translation>
    </message>
    <message id="ui.ai.keySave">
      <source>Save key</source>
      <translation>キーを保存</translation>
    </message>
    <message id="ui.ai.keyStored">
      <source>A key is stored; paste another to replace it</source>
      <translation>キーは保存済みです。置き換えるには別のキーを貼り付けてください</translation>
    </message>
    <message id="ui.ai.keys">
      <source>Your own API keys (kept in the keyring)</source>
      <translation>自分の API キー（キーリングに保存）</translation>
    </message>
    <message id="ui.ai.openai">
      <source>OpenAI API with your key</source>
      <translation>自分のキーで OpenAI API</translation>
    </message>
    <message id="ui.ai.openaiHelp">
      <source>Straight to OpenAI with the key you keep in your keyring.</source>
      <translation>キーリングのキーで OpenAI に直接送信します。</translation>
    </message>
    <message id="ui.ai.relay">
      <source>Morvane AI only</source>
      <translation>Morvane AI のみ</translation>
    </message>
    <message id="ui.ai.relayHelp">
      <source>Always through the secured relay of your Morvane server. The CLI is ignored.</source>
      <translation>常に Morvane サーバーの安全な中継を経由します。CLI は使いません。</translation>
    </message>
    <message id="ui.ai.route">
      <source>Where model calls go</source>
      <translation>モデルへの送信先</translation>
    </message>
    <message id="ui.assistant.add">
      <source>Add</source>
      <translation>追加</translation>
    </message>
    <message id="ui.assistant.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as the task list shows it.</source>
      <translation>どのタスクですか？「%1」という名前のタスクがないか、複数あります。タスク一覧に表示される名前で指定してください。</translation>
    </message>
    <message id="ui.assistant.consentNo">
      <source>Don't send</source>
      <translation>送信しない</translation>
    </message>
    <message id="ui.assistant.consentOnce">
      <source>Morvane asks once for this route and remembers your answer. You can change it in the settings.</source>
      <translation>Morvane はこの経路について一度だけ確認し、回答を記憶します。設定で変更できます。</translation>
    </message>
    <message id="ui.assistant.consentTitle">
      <source>Send your text to %1?</source>
      <translation>テキストを %1 に送信しますか？</translation>
    </message>
    <message id="ui.assistant.consentYes">
      <source>Send</source>
      <translation>送信する</translation>
    </message>
    <message id="ui.assistant.empty">
      <source>Type a sentence in your own words: new projects and tasks, time you spent, or start and stop the timer.</source>
      <translation>普段の言葉で入力してください。新しいプロジェクトやタスク、作業時間、タイマーの開始・停止ができます。</translation>
    </message>
    <message id="ui.assistant.notUnderstood">
      <source>The sentence could not be read: %1</source>
      <translation>文章を読み取れませんでした: %1</translation>
    </message>
    <message id="ui.assistant.placeholder">
      <source>Say what to add, e.g. “Logo design for Acme, 3 hours yesterday”</source>
      <translation>追加したい内容を入力（例:「Acme のロゴデザイン、昨日 3 時間」）</translation>
    </message>
    <message id="ui.assistant.reading">
      <source>Reading your sentence…</source>
      <translation>文章を読み取り中…</translation>
    </message>
    <message id="ui.assistant.title">
      <source>Quick add</source>
      <translation>クイック追加</translation>
    </message>
    <message id="ui.assistant.tooLong">
      <source>That is more than a sentence or two. Say what to add in a few lines.</source>
      <translation>1〜2 文を超えています。追加したい内容を数行で入力してください。</translation>
    </message>
    <message id="ui.auth.aboutYou">
      <source>A little about you</source>
      <translation>あなたについて</translation>
    </message>
    <message id="ui.auth.confirmBody">
      <source>We sent a confirmation link to %1. Open it, then sign in here.</source>
      <translation>%1 に確認リンクを送りました。リンクを開いてから、ここでサインインしてください。</translation>
    </message>
    <message id="ui.auth.confirmResent">
      <source>We sent a new confirmation link to %1.</source>
      <translation>%1 に確認リンクを再送しました。</translation>
    </message>
    <message id="ui.auth.confirmSent">
      <source>We sent a link to %1. Open it to confirm your address, then sign in.</source>
      <translation>%1 にリンクを送りました。リンクを開いてアドレスを確認してから、サインインしてください。</translation>
    </message>
    <message id="ui.auth.confirmTitle">
      <source>Confirm your e-mail</source>
      <translation>メールアドレスの確認</translation>
    </message>
    <message id="ui.auth.continueAs">
      <source>Continue as %1</source>
      <translation>%1 で続ける</translation>
    </message>
    <message id="ui.auth.continueWith">
      <source>Continue with %1</source>
      <translation>%1 で続ける</translation>
    </message>
    <message id="ui.auth.createAccount">
      <source>Create your account</source>
      <translation>アカウントを作成</translation>
    </message>
    <message id="ui.auth.email">
      <source>E-mail</source>
      <translation>メールアドレス</translation>
    </message>
    <message id="ui.auth.forgot">
      <source>Forgot password?</source>
      <translation>パスワードをお忘れですか？</translation>
    </message>
    <message id="ui.auth.getStarted">
      <source>Get started</source>
      <translation>はじめる</translation>
    </message>
    <message id="ui.auth.haveAccount">
      <source>I already have an account</source>
      <translation>アカウントをお持ちの方</translation>
    </message>
    <message id="ui.auth.password">
      <source>Password</source>
      <translation>パスワード</translation>
    </message>
    <message id="ui.auth.passwordHint">
      <source>At least 8 characters.</source>
      <translation>8 文字以上。</translation>
    </message>
    <message id="ui.auth.rememberMe">
      <source>Remember me on this computer</source>
      <translation>このコンピューターで記憶する</translation>
    </message>
    <message id="ui.auth.resend">
      <source>Send the link again</source>
      <translation>リンクを再送する</translation>
    </message>
    <message id="ui.auth.resetSent">
      <source>Check your inbox for the reset link.</source>
      <translation>リセット用のリンクを受信トレイで確認してください。</translation>
    </message>
    <message id="ui.auth.resetTitle">
      <source>Reset your password</source>
      <translation>パスワードのリセット</translation>
    </message>
    <message id="ui.auth.sendReset">
      <source>Send the reset link</source>
      <translation>リセット用リンクを送信</translation>
    </message>
    <message id="ui.auth.signInTitle">
      <source>Sign in</source>
      <translation>サインイン</translation>
    </message>
    <message id="ui.auth.toSignIn">
      <source>Back to sign in</source>
      <translation>サインインに戻る</translation>
    </message>
    <message id="ui.auth.toSignUp">
      <source>Create an account</source>
      <translation>アカウントを作成</translation>
    </message>
    <message id="ui.auth.welcome">
      <source>Welcome to Morvane</source>
      <translation>Morvane へようこそ</translation>
    </message>
    <message id="ui.auth.welcomeBody">
      <source>Track your time on projects and tasks, and turn it into invoices. Your data stays on this computer unless you connect a shared server.</source>
      <translation>プロジェクトとタスクの作業時間を記録し、請求書にできます。共有サーバーに接続しない限り、データはこのコンピューターに保存されます。</translation>
    </message>
    <message id="ui.calendar.add">
      <source>Add calendar</source>
      <translation>カレンダーを追加</translation>
    </message>
    <message id="ui.calendar.addFile">
      <source>Add a calendar file…</source>
      <translation>カレンダーファイルを追加…</translation>
    </message>
    <message id="ui.calendar.added">
      <source>%1 was added.</source>
      <translation>%1 を追加しました。</translation>
    </message>
    <message id="ui.calendar.address">
      <source>Subscription or CalDAV address (https:// or webcal://)</source>
      <translation>購読または CalDAV のアドレス（https:// または webcal://）</translation>
    </message>
    <message id="ui.calendar.badDay">
      <source>Write the day as year-month-day, for example 2026-11-25.</source>
      <translation>日付は 年-月-日 の形で入力してください（例: 2026-11-25）。</translation>
    </message>
    <message id="ui.calendar.caldav">
      <source>CalDAV account</source>
      <translation>CalDAV アカウント</translation>
    </message>
    <message id="ui.calendar.day">
      <source>Day (year-month-day)</source>
      <translation>日付（年-月-日）</translation>
    </message>
    <message id="ui.calendar.destination">
      <source>Where it goes</source>
      <translation>記録先</translation>
    </message>
    <message id="ui.calendar.fileFilter">
      <source>Calendar files (*.ics)</source>
      <translation>カレンダーファイル (*.ics)</translation>
    </message>
    <message id="ui.calendar.fileTitle">
      <source>Add a calendar file</source>
      <translation>カレンダーファイルを追加</translation>
    </message>
    <message id="ui.calendar.import">
      <source>Import as time</source>
      <translation>時間として取り込む</translation>
    </message>
    <message id="ui.calendar.imported">
      <source>%1 imported as time.</source>
      <translation>%1 件を時間として取り込みました。</translation>
    </message>
    <message id="ui.calendar.importedChip">
      <source>Imported</source>
      <translation>取り込み済み</translation>
    </message>
    <message id="ui.calendar.link">
      <source>Calendar import</source>
      <translation>カレンダーから取り込み</translation>
    </message>
    <message id="ui.calendar.loading">
      <source>Loading calendar…</source>
      <translation>カレンダーを読み込み中…</translation>
    </message>
    <message id="ui.calendar.newTaskIn">
      <source>New task in %1</source>
      <translation>%1 に新しいタスク</translation>
    </message>
    <message id="ui.calendar.next">
      <source>Next day</source>
      <translation>次の日</translation>
    </message>
    <message id="ui.calendar.noDestination">
      <source>%1 imported. %2 ticked events have no destination yet: choose where each goes.</source>
      <translation>%1 件取り込みました。チェックした %2 件は記録先が未設定です。それぞれ選んでください。</translation>
    </message>
    <message id="ui.calendar.noEventsHint">
      <source>Pick another day, or add the calendar that holds your meetings.</source>
      <translation>別の日を選ぶか、会議が入っているカレンダーを追加してください。</translation>
    </message>
    <message id="ui.calendar.noEventsTitle">
      <source>No events on this day</source>
      <translation>この日の予定はありません</translation>
    </message>
    <message id="ui.calendar.noSourcesHint">
      <source>Add a calendar file, a subscription address (such as a hosted calendar's secret address) or a CalDAV account on the left. Morvane only reads them.</source>
      <translation>左側でカレンダーファイル、購読アドレス（オンラインカレンダーの非公開アドレスなど）、または CalDAV アカウントを追加してください。Morvane は読み取るだけです。</translation>
    </message>
    <message id="ui.calendar.noSourcesTitle">
      <source>No calendars yet</source>
      <translation>カレンダーはまだありません</translation>
    </message>
    <message id="ui.calendar.partial">
      <source>%1 imported; then it stopped: %2</source>
      <translation>%1 件取り込んだ後、停止しました: %2</translation>
    </message>
    <message id="ui.calendar.password">
      <source>Password (kept in your keyring)</source>
      <translation>パスワード（キーリングに保存）</translation>
    </message>
    <message id="ui.calendar.previous">
      <source>Previous day</source>
      <translation>前の日</translation>
    </message>
    <message id="ui.calendar.remove">
      <source>Remove</source>
      <translation>削除</translation>
    </message>
    <message id="ui.calendar.sources">
      <source>Your calendars</source>
      <translation>あなたのカレンダー</translation>
    </message>
    <message id="ui.calendar.timeOn">
      <source>Time on %1 (%2)</source>
      <translation>%1 に記録（%2）</translation>
    </message>
    <message id="ui.calendar.title">
      <source>Import from your calendar</source>
      <translation>カレンダーから取り込む</translation>
    </message>
    <message id="ui.calendar.user">
      <source>User name</source>
      <translation>ユーザー名</translation>
    </message>
    <message id="ui.category.admin">
      <source>Admin</source>
      <translation>事務</translation>
    </message>
    <message id="ui.category.billable">
      <source>Billable</source>
      <translation>請求対象</translation>
    </message>
    <message id="ui.category.internal">
      <source>Internal work</source>
      <translation>社内作業</translation>
    </message>
    <message id="ui.category.none">
      <source>None</source>
      <translation>なし</translation>
    </message>
    <message id="ui.clients.address">
      <source>Address</source>
      <translation>住所</translation>
    </message>
    <message id="ui.clients.deleteBody">
      <source>It leaves your list of clients. Invoices you already wrote for this client keep it.</source>
      <translation>クライアント一覧から消えます。このクライアント宛てに作成済みの請求書はそのまま残ります。</translation>
    </message>
    <message id="ui.clients.deleteTitle">
      <source>Delete %1?</source>
      <translation>%1 を削除しますか？</translation>
    </message>
    <message id="ui.clients.edit">
      <source>Edit client</source>
      <translation>クライアントを編集</translation>
    </message>
    <message id="ui.clients.email">
      <source>E-mail</source>
      <translation>メールアドレス</translation>
    </message>
    <message id="ui.clients.emptyHint">
      <source>Add the people and companies you invoice, then choose them when you write an invoice. Press Ctrl+N or “New client” to add the first.</source>
      <translation>請求先の個人や会社を登録しておくと、請求書を作るときに選べます。Ctrl+N か「新しいクライアント」で追加できます。</translation>
    </message>
    <message id="ui.clients.emptyTitle">
      <source>No clients yet</source>
      <translation>クライアントはまだありません</translation>
    </message>
    <message id="ui.clients.kvk">
      <source>Chamber of commerce number</source>
      <translation>商業登記番号</translation>
    </message>
    <message id="ui.clients.name">
      <source>Name</source>
      <translation>名前</translation>
    </message>
    <message id="ui.clients.namePlaceholder">
      <source>Company or person</source>
      <translation>会社名または個人名</translation>
    </message>
    <message id="ui.clients.new">
      <source>New client</source>
      <translation>新しいクライアント</translation>
    </message>
    <message id="ui.clients.noMatch">
      <source>No client matches “%1”</source>
      <translation>「%1」に一致するクライアントはありません</translation>
    </message>
    <message id="ui.clients.search">
      <source>Search clients</source>
      <translation>クライアントを検索</translation>
    </message>
    <message id="ui.clients.title">
      <source>Clients</source>
      <translation>クライアント</translation>
    </message>
    <message id="ui.clients.vatId">
      <source>VAT number</source>
      <translation>VAT番号</translation>
    </message>
    <message id="ui.common.cancel">
      <source>Cancel</source>
      <translation>キャンセル</translation>
    </message>
    <message id="ui.common.close">
      <source>Close</source>
      <translation>閉じる</translation>
    </message>
    <message id="ui.common.continue">
      <source>Continue</source>
      <translation>続ける</translation>
    </message>
    <message id="ui.common.delete">
      <source>Delete</source>
      <translation>削除</translation>
    </message>
    <message id="ui.common.dismiss">
      <source>Dismiss</source>
      <translation>閉じる</translation>
    </message>
    <message id="ui.common.edit">
      <source>Edit</source>
      <translation>編集</translation>
    </message>
    <message id="ui.common.remove">
      <source>Remove %1</source>
      <translation>%1 を削除</translation>
    </message>
    <message id="ui.common.retry">
      <source>Try again</source>
      <translation>再試行</translation>
    </message>
    <message id="ui.common.save">
      <source>Save</source>
      <translation>保存</translation>
    </message>
    <message id="ui.common.saving">
      <source>Saving</source>
      <translation>保存中</translation>
    </message>
    <message id="ui.composer.billTo">
      <source>Bill to</source>
      <translation>請求先</translation>
    </message>
    <message id="ui.composer.cancel">
      <source>Cancel</source>
      <translation>キャンセル</translation>
    </message>
    <message id="ui.composer.clientAddress">
      <source>Client address</source>
      <translation>取引先の住所</translation>
    </message>
    <message id="ui.composer.clientEmail">
      <source>Client e-mail</source>
      <translation>取引先のメール</translation>
    </message>
    <message id="ui.composer.clientName">
      <source>Client name</source>
      <translation>取引先名</translation>
    </message>
    <message id="ui.composer.design">
      <source>Design</source>
      <translation>デザイン</translation>
    </message>
    <message id="ui.composer.drawing">
      <source>Drawing the invoice</source>
      <translation>請求書を作成中</translation>
    </message>
    <message id="ui.composer.due">
      <source>Due</source>
      <translation>支払期日</translation>
    </message>
    <message id="ui.composer.err.day">
      <source>Write days as year-month-day, for example 2026-11-01.</source>
      <translation>日付は 年-月-日 の形で入力してください（例: 2026-11-01）。</translation>
    </message>
    <message id="ui.composer.err.due">
      <source>Payment cannot be due before the invoice is issued.</source>
      <translation>支払期日を発行日より前にはできません。</translation>
    </message>
    <message id="ui.composer.err.empty">
      <source>Choose work with unbilled time first.</source>
      <translation>先に未請求の時間がある作業を選んでください。</translation>
    </message>
    <message id="ui.composer.err.noNumber">
      <source>The invoice has no number yet. Check the connection and open the composer again.</source>
      <translation>請求書にまだ番号がありません。接続を確認して、請求書作成をもう一度開いてください。</translation>
    </message>
    <message id="ui.composer.err.period">
      <source>The period ends before it starts.</source>
      <translation>期間の終わりが始まりより前になっています。</translation>
    </message>
    <message id="ui.composer.err.preview">
      <source>The preview could not be drawn: %1</source>
      <translation>プレビューを作成できませんでした: %1</translation>
    </message>
    <message id="ui.composer.from">
      <source>From (year-month-day)</source>
      <translation>開始日（年-月-日）</translation>
    </message>
    <message id="ui.composer.hours">
      <source>%1 h</source>
      <translation>%1 時間</translation>
    </message>
    <message id="ui.composer.houseDesign">
      <source>As in the invoice style</source>
      <translation>請求書スタイルのとおり</translation>
    </message>
    <message id="ui.composer.invoice">
      <source>Invoice</source>
      <translation>請求書</translation>
    </message>
    <message id="ui.composer.issued">
      <source>Issued</source>
      <translation>発行日</translation>
    </message>
    <message id="ui.composer.lines">
      <source>Lines</source>
      <translation>明細</translation>
    </message>
    <message id="ui.composer.noWork">
      <source>No unbilled time in this period. Choose another period or project.</source>
      <translation>この期間に未請求の時間はありません。別の期間かプロジェクトを選んでください。</translation>
    </message>
    <message id="ui.composer.notes">
      <source>Notes on the invoice</source>
      <translation>請求書の備考</translation>
    </message>
    <message id="ui.composer.number">
      <source>No. %1</source>
      <translation>番号 %1</translation>
    </message>
    <message id="ui.composer.numberPending">
      <source>Number follows</source>
      <translation>番号は後で付きます</translation>
    </message>
    <message id="ui.composer.period">
      <source>Period</source>
      <translation>期間</translation>
    </message>
    <message id="ui.composer.previewEmpty">
      <source>The invoice appears here</source>
      <translation>ここに請求書が表示されます</translation>
    </message>
    <message id="ui.composer.previewHint">
      <source>Choose a project with unbilled time and a period; the page follows every change.</source>
      <translation>未請求の時間があるプロジェクトと期間を選んでください。変更はすぐにページへ反映されます。</translation>
    </message>
    <message id="ui.composer.projects">
      <source>Projects</source>
      <translation>プロジェクト</translation>
    </message>
    <message id="ui.composer.saveAsClient">
      <source>Save as client</source>
      <translation>取引先として保存</translation>
    </message>
    <message id="ui.composer.saveDraft">
      <source>Save as draft</source>
      <translation>下書きとして保存</translation>
    </message>
    <message id="ui.composer.saveSent">
      <source>Save as sent</source>
      <translation>送付済みとして保存</translation>
    </message>
    <message id="ui.composer.savedClients">
      <source>Saved clients</source>
      <translation>保存済みの取引先</translation>
    </message>
    <message id="ui.composer.title">
      <source>New invoice</source>
      <translation>新しい請求書</translation>
    </message>
    <message id="ui.composer.to">
      <source>To (year-month-day)</source>
      <translation>終了日（年-月-日）</translation>
    </message>
    <message id="ui.composer.vatPercent">
      <source>VAT %</source>
      <translation>税率 %</translation>
    </message>
    <message id="ui.composer.work">
      <source>Work</source>
      <translation>作業</translation>
    </message>
    <message id="ui.earnings.barName">
      <source>%1: earned %2, billed %3, unbilled %4</source>
      <translation>%1：収益 %2、請求済み %3、未請求 %4</translation>
    </message>
    <message id="ui.earnings.billed">
      <source>Billed</source>
      <translation>請求済み</translation>
    </message>
    <message id="ui.earnings.billedChip">
      <source>billed</source>
      <translation>請求済み</translation>
    </message>
    <message id="ui.earnings.byMonth">
      <source>Month</source>
      <translation>月</translation>
    </message>
    <message id="ui.earnings.byProject">
      <source>Project</source>
      <translation>プロジェクト</translation>
    </message>
    <message id="ui.earnings.byWeek">
      <source>Week</source>
      <translation>週</translation>
    </message>
    <message id="ui.earnings.coverage">
      <source>%1 to %2</source>
      <translation>%1〜%2</translation>
    </message>
    <message id="ui.earnings.dateFormat">
      <source>d MMM yyyy</source>
      <translation>yyyy年M月d日</translation>
    </message>
    <message id="ui.earnings.dayFormat">
      <source>d MMM</source>
      <translation>M月d日</translation>
    </message>
    <message id="ui.earnings.earned">
      <source>Earned</source>
      <translation>収益</translation>
    </message>
    <message id="ui.earnings.emptyHint">
      <source>Start the timer on a task with Space, or log time in its inspector. What you earn shows up here by week, month and project.</source>
      <translation>タスクを選んで Space キーでタイマーを開始するか、詳細パネルで時間を記録してください。収益が週・月・プロジェクトごとにここに表示されます。</translation>
    </message>
    <message id="ui.earnings.emptyTitle">
      <source>Nothing tracked in these months</source>
      <translation>この期間に記録された時間はありません</translation>
    </message>
    <message id="ui.earnings.entries">
      <source>Entries</source>
      <translation>記録</translation>
    </message>
    <message id="ui.earnings.entriesOf">
      <source>Entries of %1</source>
      <translation>%1 の記録</translation>
    </message>
    <message id="ui.earnings.hours">
      <source>Hours</source>
      <translation>時間</translation>
    </message>
    <message id="ui.earnings.monthFormat">
      <source>MMM yyyy</source>
      <translation>yyyy年M月</translation>
    </message>
    <message id="ui.earnings.noProject">
      <source>No project</source>
      <translation>プロジェクトなし</translation>
    </message>
    <message id="ui.earnings.oneOffNote">
      <source>includes %1 charged once</source>
      <translation>一回限りの %1 を含む</translation>
    </message>
    <message id="ui.earnings.pickBar">
      <source>Click a bar to see the entries behind it.</source>
      <translation>バーをクリックすると、その内訳の記録が表示されます。</translation>
    </message>
    <message id="ui.earnings.rate">
      <source>Per hour</source>
      <translation>時間単価</translation>
    </message>
    <message id="ui.earnings.title">
      <source>Earnings</source>
      <translation>収益</translation>
    </message>
    <message id="ui.earnings.unbilled">
      <source>Unbilled</source>
      <translation>未請求</translation>
    </message>
    <message id="ui.entries.billed">
      <source>Billed</source>
      <translation>請求済み</translation>
    </message>
    <message id="ui.entries.delete">
      <source>Delete this entry</source>
      <translation>この記録を削除</translation>
    </message>
    <message id="ui.entries.deleteBody">
      <source>The task's total goes down by its length.</source>
      <translation>タスクの合計時間がこの記録の分だけ減ります。</translation>
    </message>
    <message id="ui.entries.deleteTitle">
      <source>Delete this time entry?</source>
      <translation>この作業記録を削除しますか？</translation>
    </message>
    <message id="ui.entries.empty">
      <source>No time yet. Press Space to start the timer, or log minutes by hand.</source>
      <translation>まだ時間がありません。Space キーでタイマーを開始するか、分数を手入力してください。</translation>
    </message>
    <message id="ui.entries.end">
      <source>End</source>
      <translation>終了</translation>
    </message>
    <message id="ui.entries.invalid">
      <source>Use the form 2026-03-01 09:30, with the end after the start.</source>
      <translation>2026-03-01 09:30 の形式で、終了を開始より後にしてください。</translation>
    </message>
    <message id="ui.entries.length">
      <source>Minutes</source>
      <translation>分</translation>
    </message>
    <message id="ui.entries.log">
      <source>Log</source>
      <translation>記録</translation>
    </message>
    <message id="ui.entries.minutes">
      <source>Minutes worked</source>
      <translation>作業した分数</translation>
    </message>
    <message id="ui.entries.minutesInvalid">
      <source>Enter the minutes as a number, such as 45 or 90.</source>
      <translation>分数を 45 や 90 のような数字で入力してください。</translation>
    </message>
    <message id="ui.entries.start">
      <source>Start</source>
      <translation>開始</translation>
    </message>
    <message id="ui.entries.title">
      <source>Time entries</source>
      <translation>作業記録</translation>
    </message>
    <message id="ui.entries.total">
      <source>Total %1</source>
      <translation>合計 %1</translation>
    </message>
    <message id="ui.export.action">
      <source>Export for the accountant…</source>
      <translation>会計士向けに書き出す…</translation>
    </message>
    <message id="ui.export.badPeriod">
      <source>Enter both days as YYYY-MM-DD, the first not after the last.</source>
      <translation>両方の日付を YYYY-MM-DD の形式で入力してください。開始日は終了日より後にできません。</translation>
    </message>
    <message id="ui.export.body">
      <source>A CSV file that spreadsheets and bookkeeping programs read: one row per time entry or invoice of the period.</source>
      <translation>表計算ソフトや会計ソフトで読める CSV ファイルです。期間内の作業時間または請求書が 1 件につき 1 行になります。</translation>
    </message>
    <message id="ui.export.close">
      <source>Close</source>
      <translation>閉じる</translation>
    </message>
    <message id="ui.export.csvFilter">
      <source>CSV files (*.csv)</source>
      <translation>CSV ファイル (*.csv)</translation>
    </message>
    <message id="ui.export.entries">
      <source>Time entries</source>
      <translation>作業時間</translation>
    </message>
    <message id="ui.export.fileTitle">
      <source>Save the CSV file</source>
      <translation>CSV ファイルを保存</translation>
    </message>
    <message id="ui.export.from">
      <source>From</source>
      <translation>開始日</translation>
    </message>
    <message id="ui.export.invoices">
      <source>Invoices</source>
      <translation>請求書</translation>
    </message>
    <message id="ui.export.notReady">
      <source>Choose a period and a file first.</source>
      <translation>先に期間とファイルを選んでください。</translation>
    </message>
    <message id="ui.export.save">
      <source>Save…</source>
      <translation>保存…</translation>
    </message>
    <message id="ui.export.saved">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 を保存しました (%2 行)。</translation>
    </message>
    <message id="ui.export.saving">
      <source>Saving…</source>
      <translation>保存しています…</translation>
    </message>
    <message id="ui.export.title">
      <source>Export for the accountant</source>
      <translation>会計士向けに書き出す</translation>
    </message>
    <message id="ui.export.to">
      <source>To</source>
      <translation>終了日</translation>
    </message>
    <message id="ui.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>%1 を書き込めませんでした: %2</translation>
    </message>
    <message id="ui.floating.hide">
      <source>Hide the floating timer</source>
      <translation>フローティングタイマーを隠す</translation>
    </message>
    <message id="ui.floating.title">
      <source>Morvane timer</source>
      <translation>Morvane タイマー</translation>
    </message>
    <message id="ui.idle.body">
      <source>The timer of “%1” kept running while you were away from %2 to %3. What should happen to that time?</source>
      <translation>離席中（%2〜%3）も「%1」のタイマーが動いていました。この時間をどうしますか？</translation>
    </message>
    <message id="ui.idle.discard">
      <source>Discard it and stop the timer</source>
      <translation>破棄してタイマーを停止</translation>
    </message>
    <message id="ui.idle.discardContinue">
      <source>Discard it and go on</source>
      <translation>破棄して続ける</translation>
    </message>
    <message id="ui.idle.keep">
      <source>Keep the time</source>
      <translation>時間を残す</translation>
    </message>
    <message id="ui.idle.notification">
      <source>The timer of “%1” ran while you were away from %2 to %3.</source>
      <translation>離席中（%2〜%3）に「%1」のタイマーが動いていました。</translation>
    </message>
    <message id="ui.idle.title">
      <source>You were away</source>
      <translation>離席していました</translation>
    </message>
    <message id="ui.inspector.addNote">
      <source>Add a note</source>
      <translation>メモを追加</translation>
    </message>
    <message id="ui.inspector.addSubtask">
      <source>Add a subtask</source>
      <translation>サブタスクを追加</translation>
    </message>
    <message id="ui.inspector.assignees">
      <source>Assigned to</source>
      <translation>担当者</translation>
    </message>
    <message id="ui.inspector.category">
      <source>Category</source>
      <translation>カテゴリー</translation>
    </message>
    <message id="ui.inspector.describe">
      <source>Notes for yourself or the client</source>
      <translation>自分やクライアント向けのメモ</translation>
    </message>
    <message id="ui.inspector.description">
      <source>Description</source>
      <translation>説明</translation>
    </message>
    <message id="ui.inspector.due">
      <source>Due</source>
      <translation>期限</translation>
    </message>
    <message id="ui.inspector.dueDate">
      <source>Due date</source>
      <translation>期限日</translation>
    </message>
    <message id="ui.inspector.none">
      <source>No task selected</source>
      <translation>タスクが選択されていません</translation>
    </message>
    <message id="ui.inspector.noneHint">
      <source>Choose a task to see its details and time entries.</source>
      <translation>タスクを選ぶと、詳細と作業記録が表示されます。</translation>
    </message>
    <message id="ui.inspector.notes">
      <source>Notes</source>
      <translation>メモ</translation>
    </message>
    <message id="ui.inspector.ownPrice">
      <source>This task has its own price.</source>
      <translation>このタスクには独自の料金があります。</translation>
    </message>
    <message id="ui.inspector.price">
      <source>Price</source>
      <translation>料金</translation>
    </message>
    <message id="ui.inspector.priority">
      <source>Priority</source>
      <translation>優先度</translation>
    </message>
    <message id="ui.inspector.status">
      <source>Status</source>
      <translation>状態</translation>
    </message>
    <message id="ui.inspector.subtasks">
      <source>Subtasks</source>
      <translation>サブタスク</translation>
    </message>
    <message id="ui.inspector.title">
      <source>Task title</source>
      <translation>タスク名</translation>
    </message>
    <message id="ui.invoices.allStatuses">
      <source>Every status</source>
      <translation>すべての状態</translation>
    </message>
    <message id="ui.invoices.allYears">
      <source>Every year</source>
      <translation>すべての年</translation>
    </message>
    <message id="ui.invoices.client">
      <source>Client</source>
      <translation>顧客</translation>
    </message>
    <message id="ui.invoices.deleteBody">
      <source>The invoice and its PDF leave your list for good, and its hours become unbilled again. To keep a record, void it instead.</source>
      <translation>請求書と PDF は一覧から完全に消え、作業時間は未請求に戻ります。記録を残したい場合は、削除ではなく無効にしてください。</translation>
    </message>
    <message id="ui.invoices.deleteTitle">
      <source>Delete invoice %1?</source>
      <translation>請求書 %1 を削除しますか？</translation>
    </message>
    <message id="ui.invoices.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>請求書 %1 を削除しました。その作業時間は再び未請求になります。</translation>
    </message>
    <message id="ui.invoices.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>PDF をダウンロードできませんでした: %1</translation>
    </message>
    <message id="ui.invoices.due">
      <source>Due</source>
      <translation>支払期限</translation>
    </message>
    <message id="ui.invoices.emptyHint">
      <source>Invoices you write from your tracked time appear here, with what is still open and what is overdue.</source>
      <translation>記録した時間から作成した請求書がここに表示され、未入金と期限超過の金額もわかります。</translation>
    </message>
    <message id="ui.invoices.emptyTitle">
      <source>No invoices yet</source>
      <translation>請求書はまだありません</translation>
    </message>
    <message id="ui.invoices.fileTitle">
      <source>Save the invoice PDF</source>
      <translation>請求書の PDF を保存</translation>
    </message>
    <message id="ui.invoices.foreignLink">
      <source>The link to the PDF does not lead to your server, so it was not opened.</source>
      <translation>PDF へのリンクがご利用のサーバーを指していないため、開きませんでした。</translation>
    </message>
    <message id="ui.invoices.issued">
      <source>Issued</source>
      <translation>発行日</translation>
    </message>
    <message id="ui.invoices.net">
      <source>Net</source>
      <translation>税抜</translation>
    </message>
    <message id="ui.invoices.noMatch">
      <source>No invoice matches these filters</source>
      <translation>この条件に合う請求書はありません</translation>
    </message>
    <message id="ui.invoices.noMatchHint">
      <source>Choose another status or year.</source>
      <translation>別の状態または年を選んでください。</translation>
    </message>
    <message id="ui.invoices.noViewer">
      <source>No program to show PDF files was found. Save the PDF and open it from there.</source>
      <translation>PDF を表示できるプログラムが見つかりません。PDF を保存してから開いてください。</translation>
    </message>
    <message id="ui.invoices.number">
      <source>Number</source>
      <translation>番号</translation>
    </message>
    <message id="ui.invoices.open">
      <source>Still open</source>
      <translation>未入金</translation>
    </message>
    <message id="ui.invoices.openPdf">
      <source>Open PDF</source>
      <translation>PDF を開く</translation>
    </message>
    <message id="ui.invoices.overdue">
      <source>Overdue</source>
      <translation>期限超過</translation>
    </message>
    <message id="ui.invoices.pdfFilter">
      <source>PDF files (*.pdf)</source>
      <translation>PDF ファイル (*.pdf)</translation>
    </message>
    <message id="ui.invoices.redraw">
      <source>Draw again…</source>
      <translation>作り直す…</translation>
    </message>
    <message id="ui.invoices.redrawBody">
      <source>This replaces the stored PDF of this invoice with a new one, built from the invoice lines and the current details of its template. Continue?</source>
      <translation>この請求書の保存済み PDF を、明細と現在のテンプレート情報から作った新しい PDF に置き換えます。続けますか？</translation>
    </message>
    <message id="ui.invoices.redrawConfirm">
      <source>Replace PDF</source>
      <translation>PDF を置き換える</translation>
    </message>
    <message id="ui.invoices.redrawFailed">
      <source>The invoice could not be drawn: %1</source>
      <translation>請求書を作成できませんでした: %1</translation>
    </message>
    <message id="ui.invoices.redrawTitle">
      <source>Draw invoice %1 again?</source>
      <translation>請求書 %1 を作り直しますか？</translation>
    </message>
    <message id="ui.invoices.redrawn">
      <source>Invoice %1 was drawn again with your current details.</source>
      <translation>請求書 %1 を現在の情報で作り直しました。</translation>
    </message>
    <message id="ui.invoices.savePdf">
      <source>Save PDF…</source>
      <translation>PDF を保存…</translation>
    </message>
    <message id="ui.invoices.saved">
      <source>Saved to %1</source>
      <translation>%1 に保存しました</translation>
    </message>
    <message id="ui.invoices.status">
      <source>Status</source>
      <translation>状態</translation>
    </message>
    <message id="ui.invoices.status.draft">
      <source>Draft</source>
      <translation>下書き</translation>
    </message>
    <message id="ui.invoices.status.paid">
      <source>Paid</source>
      <translation>入金済み</translation>
    </message>
    <message id="ui.invoices.status.sent">
      <source>Sent</source>
      <translation>送付済み</translation>
    </message>
    <message id="ui.invoices.status.void">
      <source>Void</source>
      <translation>無効</translation>
    </message>
    <message id="ui.invoices.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>請求書 %1 を「%2」にしました。</translation>
    </message>
    <message id="ui.invoices.statusFilter">
      <source>Status</source>
      <translation>状態</translation>
    </message>
    <message id="ui.invoices.title">
      <source>Invoices</source>
      <translation>請求書</translation>
    </message>
    <message id="ui.invoices.total">
      <source>Total</source>
      <translation>合計</translation>
    </message>
    <message id="ui.invoices.vat">
      <source>VAT</source>
      <translation>消費税</translation>
    </message>
    <message id="ui.invoices.void">
      <source>Void…</source>
      <translation>無効にする…</translation>
    </message>
    <message id="ui.invoices.voidBody">
      <source>A void invoice stays void: it can never be sent, paid or changed again. Its hours become unbilled, so you can invoice them anew.</source>
      <translation>無効にした請求書は元に戻せません。送付・入金・変更は二度とできなくなります。作業時間は未請求に戻るので、改めて請求できます。</translation>
    </message>
    <message id="ui.invoices.voidConfirm">
      <source>Void</source>
      <translation>無効にする</translation>
    </message>
    <message id="ui.invoices.voidFinal">
      <source>Void — final, it cannot be changed again</source>
      <translation>無効 — 確定済みで、今後変更できません</translation>
    </message>
    <message id="ui.invoices.voidTitle">
      <source>Void invoice %1?</source>
      <translation>請求書 %1 を無効にしますか？</translation>
    </message>
    <message id="ui.invoices.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>請求書 %1 を無効にしました。その作業時間は再び未請求になります。</translation>
    </message>
    <message id="ui.invoices.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>%1 に書き込めませんでした: %2</translation>
    </message>
    <message id="ui.invoices.yearFilter">
      <source>Year</source>
      <translation>年</translation>
    </message>
    <message id="ui.onboarding.currency">
      <source>Currency</source>
      <translation>通貨</translation>
    </message>
    <message id="ui.onboarding.language">
      <source>Language</source>
      <translation>言語</translation>
    </message>
    <message id="ui.onboarding.name">
      <source>Your name</source>
      <translation>お名前</translation>
    </message>
    <message id="ui.onboarding.rate">
      <source>Default hourly rate</source>
      <translation>標準の時間単価</translation>
    </message>
    <message id="ui.onboarding.rateInvalid">
      <source>Enter an amount, such as 85 or 72.50.</source>
      <translation>85 や 72.50 のような金額を入力してください。</translation>
    </message>
    <message id="ui.onboarding.timeZone">
      <source>Time zone</source>
      <translation>タイムゾーン</translation>
    </message>
    <message id="ui.palette.action">
      <source>Action</source>
      <translation>操作</translation>
    </message>
    <message id="ui.palette.ai">
      <source>AI</source>
      <translation>AI</translation>
    </message>
    <message id="ui.palette.capture">
      <source>Quick add “%1”</source>
      <translation>クイック追加「%1」</translation>
    </message>
    <message id="ui.palette.none">
      <source>Nothing matches.</source>
      <translation>一致するものがありません。</translation>
    </message>
    <message id="ui.palette.placeholder">
      <source>Search projects, tasks and actions</source>
      <translation>プロジェクト、タスク、操作を検索</translation>
    </message>
    <message id="ui.palette.project">
      <source>Project</source>
      <translation>プロジェクト</translation>
    </message>
    <message id="ui.palette.task">
      <source>Task</source>
      <translation>タスク</translation>
    </message>
    <message id="ui.prices.edit">
      <source>Change the price…</source>
      <translation>料金を変更…</translation>
    </message>
    <message id="ui.prices.invalid">
      <source>A field in red cannot be read as a number. Correct it to save.</source>
      <translation>赤い欄は数値として読み取れません。修正すると保存できます。</translation>
    </message>
    <message id="ui.prices.project">
      <source>Price…</source>
      <translation>料金…</translation>
    </message>
    <message id="ui.priority.high">
      <source>High</source>
      <translation>高</translation>
    </message>
    <message id="ui.priority.low">
      <source>Low</source>
      <translation>低</translation>
    </message>
    <message id="ui.priority.medium">
      <source>Medium</source>
      <translation>中</translation>
    </message>
    <message id="ui.projects.actions">
      <source>Project actions</source>
      <translation>プロジェクトの操作</translation>
    </message>
    <message id="ui.projects.archive">
      <source>Archive</source>
      <translation>アーカイブ</translation>
    </message>
    <message id="ui.projects.delete">
      <source>Delete project…</source>
      <translation>プロジェクトを削除…</translation>
    </message>
    <message id="ui.projects.deleteBody">
      <source>Its tasks and their time entries are deleted too. This cannot be undone.</source>
      <translation>タスクとその作業記録も削除されます。元に戻せません。</translation>
    </message>
    <message id="ui.projects.deleteTitle">
      <source>Delete %1?</source>
      <translation>%1 を削除しますか？</translation>
    </message>
    <message id="ui.projects.describe">
      <source>Add a description</source>
      <translation>説明を追加</translation>
    </message>
    <message id="ui.projects.invoice">
      <source>Create invoice…</source>
      <translation>請求書を作成…</translation>
    </message>
    <message id="ui.projects.markActive">
      <source>Mark as active</source>
      <translation>進行中にする</translation>
    </message>
    <message id="ui.projects.markCompleted">
      <source>Mark as completed</source>
      <translation>完了にする</translation>
    </message>
    <message id="ui.projects.name">
      <source>Project name</source>
      <translation>プロジェクト名</translation>
    </message>
    <message id="ui.projects.notShared">
      <source>Not shared</source>
      <translation>共有しない</translation>
    </message>
    <message id="ui.projects.share">
      <source>Share with a team</source>
      <translation>チームと共有</translation>
    </message>
    <message id="ui.projects.status.active">
      <source>Active</source>
      <translation>進行中</translation>
    </message>
    <message id="ui.projects.status.archived">
      <source>Archived</source>
      <translation>アーカイブ済み</translation>
    </message>
    <message id="ui.projects.status.completed">
      <source>Completed</source>
      <translation>完了</translation>
    </message>
    <message id="ui.projects.viewOnly">
      <source>View only</source>
      <translation>閲覧のみ</translation>
    </message>
    <message id="ui.reminder.body">
      <source>Start a timer so that the work you are doing now is counted.</source>
      <translation>今の作業が記録されるよう、タイマーを開始してください。</translation>
    </message>
    <message id="ui.reminder.title">
      <source>No timer is running</source>
      <translation>動作中のタイマーはありません</translation>
    </message>
    <message id="ui.sessions.autoTrack">
      <source>Auto-track Claude sessions</source>
      <translation>Claude セッションを自動で記録</translation>
    </message>
    <message id="ui.sessions.burstLine">
      <source>%1 · %2 prompts</source>
      <translation>%1 · プロンプト %2 件</translation>
    </message>
    <message id="ui.sessions.burstLineOne">
      <source>%1 · 1 prompt</source>
      <translation>%1 · プロンプト 1 件</translation>
    </message>
    <message id="ui.sessions.commit">
      <source>Log to project</source>
      <translation>プロジェクトに記録</translation>
    </message>
    <message id="ui.sessions.earlier">
      <source>Earlier</source>
      <translation>それ以前</translation>
    </message>
    <message id="ui.sessions.emptyHint">
      <source>Run a claude session in any folder on this computer (Claude Code, the command line, anything that writes to ~/.claude/projects/). Then press Rescan. Sessions from the last 30 days are picked up.</source>
      <translation>このコンピューターの任意のフォルダーで claude セッションを実行してください（Claude Code、コマンドラインなど ~/.claude/projects/ に書き込むもの）。その後「再スキャン」を押すと、過去 30 日のセッションが読み込まれます。</translation>
    </message>
    <message id="ui.sessions.emptyTitle">
      <source>No Claude sessions parsed yet</source>
      <translation>Claude のセッションはまだありません</translation>
    </message>
    <message id="ui.sessions.err.createProject">
      <source>Create project failed: %1</source>
      <translation>プロジェクトを作成できませんでした: %1</translation>
    </message>
    <message id="ui.sessions.explainMapping">
      <source>Sessions are tied to their working directory. You map each working dir to one of your projects once; from then on every new conversation in that repo logs automatically. Idle gaps longer than 5 minutes are excluded so an overnight pause does not bill 8 hours.</source>
      <translation>セッションは作業フォルダーに結び付きます。作業フォルダーをプロジェクトに一度リンクすれば、そのリポジトリでの新しい会話はすべて自動で記録されます。5 分を超える空き時間は除外されるので、夜の休みが 8 時間分請求されることはありません。</translation>
    </message>
    <message id="ui.sessions.explainPrefix">
      <source>Resulting tasks are prefixed [AI] so you can tell a client exactly what part of the work was AI-assisted.</source>
      <translation>作られるタスクには [AI] が付くので、作業のどこに AI を使ったかを取引先に正確に伝えられます。</translation>
    </message>
    <message id="ui.sessions.explainScan">
      <source>Every minute Morvane scans your local Claude Code sessions (~/.claude/projects/) and turns each one into a billable time entry on the matching Morvane project.</source>
      <translation>Morvane は 1 分ごとにローカルの Claude Code セッション（~/.claude/projects/）を調べ、それぞれを対応する Morvane プロジェクトの請求可能な時間として記録します。</translation>
    </message>
    <message id="ui.sessions.fewer">
      <source>Show fewer</source>
      <translation>表示を減らす</translation>
    </message>
    <message id="ui.sessions.folderProject">
      <source>Auto-created for Claude sessions in %1</source>
      <translation>%1 の Claude セッション用に自動作成</translation>
    </message>
    <message id="ui.sessions.idleGap">
      <source>Idle gap (minutes)</source>
      <translation>空き時間の上限（分）</translation>
    </message>
    <message id="ui.sessions.idleGapHelp">
      <source>Gaps longer than this between messages are treated as idle and excluded. 15 min covers most typing pauses.</source>
      <translation>メッセージ間の空き時間がこれより長いと作業外とみなして除外します。15 分あれば入力中の休みはほぼカバーできます。</translation>
    </message>
    <message id="ui.sessions.ignore">
      <source>Ignore</source>
      <translation>無視</translation>
    </message>
    <message id="ui.sessions.lastWeek">
      <source>Last week</source>
      <translation>先週</translation>
    </message>
    <message id="ui.sessions.link">
      <source>Link to a project…</source>
      <translation>プロジェクトにリンク…</translation>
    </message>
    <message id="ui.sessions.list">
      <source>Sessions</source>
      <translation>セッション</translation>
    </message>
    <message id="ui.sessions.loading">
      <source>Reading your sessions…</source>
      <translation>セッションを読み込み中…</translation>
    </message>
    <message id="ui.sessions.logHelp">
      <source>Log this session to a project, split into %1 tasks by natural breaks</source>
      <translation>このセッションを自然な区切りで %1 件のタスクに分けてプロジェクトに記録</translation>
    </message>
    <message id="ui.sessions.logTo">
      <source>Log to…</source>
      <translation>記録先…</translation>
    </message>
    <message id="ui.sessions.logged">
      <source>Logged %1 of %2 work bursts.</source>
      <translation>作業ブロック %2 件中 %1 件を記録しました。</translation>
    </message>
    <message id="ui.sessions.loggedChip">
      <source>Logged</source>
      <translation>記録済み</translation>
    </message>
    <message id="ui.sessions.manyTasks">
      <source>%1 tasks</source>
      <translation>タスク %1 件</translation>
    </message>
    <message id="ui.sessions.more">
      <source>Show all %1 sessions</source>
      <translation>%1 件のセッションをすべて表示</translation>
    </message>
    <message id="ui.sessions.newProject">
      <source>Create new project named "%1"</source>
      <translation>新しいプロジェクト「%1」を作成</translation>
    </message>
    <message id="ui.sessions.noScan">
      <source>No scan yet.</source>
      <translation>まだスキャンしていません。</translation>
    </message>
    <message id="ui.sessions.notLinked">
      <source>Not linked yet</source>
      <translation>未リンク</translation>
    </message>
    <message id="ui.sessions.oneTask">
      <source>1 task</source>
      <translation>タスク 1 件</translation>
    </message>
    <message id="ui.sessions.pendingIntro">
      <source>These directories have Claude sessions waiting to be logged. Pick a Morvane project (or Ignore) for each.</source>
      <translation>以下のフォルダーには記録待ちの Claude セッションがあります。それぞれに Morvane のプロジェクトを選ぶか、無視してください。</translation>
    </message>
    <message id="ui.sessions.pendingLine">
      <source>%1 · %2 sessions · %3 active</source>
      <translation>%1 · %2 セッション · 稼働 %3</translation>
    </message>
    <message id="ui.sessions.previewTitle">
      <source>Review and log to: %1 (%2)</source>
      <translation>確認して記録: %1（%2）</translation>
    </message>
    <message id="ui.sessions.reimport">
      <source>Re-import</source>
      <translation>再取り込み</translation>
    </message>
    <message id="ui.sessions.reimportAll">
      <source>Re-import all sessions</source>
      <translation>すべてのセッションを再取り込み</translation>
    </message>
    <message id="ui.sessions.reimportAllBody">
      <source>Every session is logged again at the next scan. Tasks made earlier stay; delete them yourself if you do not want them twice.</source>
      <translation>次回のスキャンですべてのセッションをもう一度記録します。以前に作られたタスクは残るので、重複させたくない場合はご自身で削除してください。</translation>
    </message>
    <message id="ui.sessions.reimportAllTitle">
      <source>Re-import all sessions?</source>
      <translation>すべてのセッションを再取り込みしますか？</translation>
    </message>
    <message id="ui.sessions.reimportHelp">
      <source>Re-import this session (forget previous log)</source>
      <translation>このセッションを再取り込み（以前の記録を忘れる）</translation>
    </message>
    <message id="ui.sessions.rescan">
      <source>Rescan</source>
      <translation>再スキャン</translation>
    </message>
    <message id="ui.sessions.result">
      <source>Last scan %1: %2 sessions found, %3 work bursts logged (%4), %5 sessions waiting for a project.</source>
      <translation>前回のスキャン %1: セッション %2 件、記録した作業ブロック %3 件（%4）、プロジェクト待ちのセッション %5 件。</translation>
    </message>
    <message id="ui.sessions.scanNow">
      <source>Scan now</source>
      <translation>今すぐスキャン</translation>
    </message>
    <message id="ui.sessions.sessionLine">
      <source>%1 · %2 active · %3 bursts</source>
      <translation>%1 · 稼働 %2 · %3 ブロック</translation>
    </message>
    <message id="ui.sessions.sessionLineOne">
      <source>%1 · %2 active</source>
      <translation>%1 · 稼働 %2</translation>
    </message>
    <message id="ui.sessions.sessionProject">
      <source>Auto-created for Claude session %1</source>
      <translation>Claude セッション %1 用に自動作成</translation>
    </message>
    <message id="ui.sessions.thisWeek">
      <source>Earlier this week</source>
      <translation>今週の前半</translation>
    </message>
    <message id="ui.sessions.title">
      <source>AI sessions</source>
      <translation>AI セッション</translation>
    </message>
    <message id="ui.sessions.today">
      <source>Today</source>
      <translation>今日</translation>
    </message>
    <message id="ui.sessions.tracking">
      <source>Tracking</source>
      <translation>自動記録</translation>
    </message>
    <message id="ui.sessions.untitled">
      <source>Claude session</source>
      <translation>Claude セッション</translation>
    </message>
    <message id="ui.sessions.yesterday">
      <source>Yesterday</source>
      <translation>昨日</translation>
    </message>
    <message id="ui.settings.account">
      <source>Account</source>
      <translation>アカウント</translation>
    </message>
    <message id="ui.settings.ai">
      <source>AI</source>
      <translation>AI</translation>
    </message>
    <message id="ui.settings.appearance">
      <source>Appearance</source>
      <translation>外観</translation>
    </message>
    <message id="ui.settings.autostart">
      <source>Start Morvane when I log in</source>
      <translation>ログイン時に Morvane を起動</translation>
    </message>
    <message id="ui.settings.backend">
      <source>Backend</source>
      <translation>バックエンド</translation>
    </message>
    <message id="ui.settings.backend.apply">
      <source>Use this backend</source>
      <translation>このバックエンドを使う</translation>
    </message>
    <message id="ui.settings.backend.invalid">
      <source>Enter the server's https address and its public key.</source>
      <translation>サーバーの https アドレスと公開キーを入力してください。</translation>
    </message>
    <message id="ui.settings.backend.local">
      <source>This computer (private, nothing to set up)</source>
      <translation>このコンピューター（非公開、設定不要）</translation>
    </message>
    <message id="ui.settings.backend.remote">
      <source>A shared server (for teams and several computers)</source>
      <translation>共有サーバー（チームや複数のコンピューター向け）</translation>
    </message>
    <message id="ui.settings.deleteAccount">
      <source>Delete my account</source>
      <translation>アカウントを削除</translation>
    </message>
    <message id="ui.settings.deleteConfirm">
      <source>Your e-mail address, to confirm</source>
      <translation>確認のためのメールアドレス</translation>
    </message>
    <message id="ui.settings.deleteHint">
      <source>Deleting your account removes your projects, tasks, time and invoices from the server for good. Type your e-mail address to confirm.</source>
      <translation>アカウントを削除すると、プロジェクト、タスク、作業時間、請求書がサーバーから完全に消去されます。確認のためメールアドレスを入力してください。</translation>
    </message>
    <message id="ui.settings.endOfDay">
      <source>Stop the timer at the end of the day</source>
      <translation>終業時刻にタイマーを停止</translation>
    </message>
    <message id="ui.settings.every">
      <source>every (minutes)</source>
      <translation>間隔（分）</translation>
    </message>
    <message id="ui.settings.from">
      <source>From</source>
      <translation>開始</translation>
    </message>
    <message id="ui.settings.idleAfter">
      <source>Ask about idle time after (minutes)</source>
      <translation>離席時間を確認するまで（分）</translation>
    </message>
    <message id="ui.settings.local.folder">
      <source>Data folder</source>
      <translation>データフォルダー</translation>
    </message>
    <message id="ui.settings.local.running">
      <source>Running</source>
      <translation>稼働中</translation>
    </message>
    <message id="ui.settings.local.size">
      <source>Size</source>
      <translation>サイズ</translation>
    </message>
    <message id="ui.settings.local.start">
      <source>Start</source>
      <translation>起動</translation>
    </message>
    <message id="ui.settings.local.starting">
      <source>Starting</source>
      <translation>起動中</translation>
    </message>
    <message id="ui.settings.local.state">
      <source>State</source>
      <translation>状態</translation>
    </message>
    <message id="ui.settings.local.stop">
      <source>Stop</source>
      <translation>停止</translation>
    </message>
    <message id="ui.settings.local.stopped">
      <source>Stopped</source>
      <translation>停止中</translation>
    </message>
    <message id="ui.settings.longestRun">
      <source>Longest run (minutes, 0 for none)</source>
      <translation>最長の連続計測（分、0 で無制限）</translation>
    </message>
    <message id="ui.settings.looks">
      <source>Language and appearance</source>
      <translation>言語と外観</translation>
    </message>
    <message id="ui.settings.profile">
      <source>Profile</source>
      <translation>プロフィール</translation>
    </message>
    <message id="ui.settings.reminders">
      <source>Remind me when no timer runs during working hours</source>
      <translation>勤務時間中にタイマーが動いていなければ知らせる</translation>
    </message>
    <message id="ui.settings.remote.key">
      <source>Public key</source>
      <translation>公開キー</translation>
    </message>
    <message id="ui.settings.remote.url">
      <source>Address</source>
      <translation>アドレス</translation>
    </message>
    <message id="ui.settings.saved">
      <source>Saved.</source>
      <translation>保存しました。</translation>
    </message>
    <message id="ui.settings.scheme.dark">
      <source>Dark</source>
      <translation>ダーク</translation>
    </message>
    <message id="ui.settings.scheme.light">
      <source>Light</source>
      <translation>ライト</translation>
    </message>
    <message id="ui.settings.scheme.system">
      <source>As the desktop</source>
      <translation>デスクトップに合わせる</translation>
    </message>
    <message id="ui.settings.signedInAs">
      <source>Signed in as %1</source>
      <translation>%1 としてサインイン中</translation>
    </message>
    <message id="ui.settings.switchTo">
      <source>Switch to %1</source>
      <translation>%1 に切り替え</translation>
    </message>
    <message id="ui.settings.timer">
      <source>Timer</source>
      <translation>タイマー</translation>
    </message>
    <message id="ui.settings.to">
      <source>to</source>
      <translation>終了</translation>
    </message>
    <message id="ui.sidebar.newProjectName">
      <source>New project name</source>
      <translation>新しいプロジェクト名</translation>
    </message>
    <message id="ui.sidebar.newTeamName">
      <source>New team name</source>
      <translation>新しいチーム名</translation>
    </message>
    <message id="ui.sidebar.overview">
      <source>All projects</source>
      <translation>すべてのプロジェクト</translation>
    </message>
    <message id="ui.sidebar.projects">
      <source>Projects</source>
      <translation>プロジェクト</translation>
    </message>
    <message id="ui.sidebar.running">
      <source>Timer running</source>
      <translation>タイマー作動中</translation>
    </message>
    <message id="ui.sidebar.shared">
      <source>Shared with a team</source>
      <translation>チームと共有中</translation>
    </message>
    <message id="ui.sidebar.teams">
      <source>Teams</source>
      <translation>チーム</translation>
    </message>
    <message id="ui.startup.backend">
      <source>Starting your local backend…</source>
      <translation>ローカルのバックエンドを起動しています…</translation>
    </message>
    <message id="ui.startup.failed">
      <source>Your local backend could not start.</source>
      <translation>ローカルのバックエンドを起動できませんでした。</translation>
    </message>
    <message id="ui.startup.loading">
      <source>Loading your projects…</source>
      <translation>プロジェクトを読み込んでいます…</translation>
    </message>
    <message id="ui.status.completed">
      <source>Completed</source>
      <translation>完了</translation>
    </message>
    <message id="ui.status.in_progress">
      <source>In progress</source>
      <translation>作業中</translation>
    </message>
    <message id="ui.status.not_started">
      <source>Not started</source>
      <translation>未着手</translation>
    </message>
    <message id="ui.style.accent">
      <source>Accent</source>
      <translation>アクセント</translation>
    </message>
    <message id="ui.style.address">
      <source>Address</source>
      <translation>住所</translation>
    </message>
    <message id="ui.style.bank">
      <source>Bank</source>
      <translation>銀行</translation>
    </message>
    <message id="ui.style.banner">
      <source>Banner</source>
      <translation>帯</translation>
    </message>
    <message id="ui.style.border">
      <source>Border</source>
      <translation>罫線</translation>
    </message>
    <message id="ui.style.btw">
      <source>VAT number</source>
      <translation>VAT 番号</translation>
    </message>
    <message id="ui.style.chooseLogo">
      <source>Choose logo…</source>
      <translation>ロゴを選択…</translation>
    </message>
    <message id="ui.style.colourAuto">
      <source>auto</source>
      <translation>自動</translation>
    </message>
    <message id="ui.style.company">
      <source>Company</source>
      <translation>会社名</translation>
    </message>
    <message id="ui.style.customHint">
      <source>An HTML page with {{placeholders}}, a &lt;header&gt; and a &lt;footer&gt;, fixed at 794 × 1123 px. When it cannot be used, invoices are drawn in “Light minimal”.</source>
      <translation>{{プレースホルダー}}、&lt;header&gt;、&lt;footer&gt; を含み、794 × 1123 px に固定した HTML ページ。使えない場合、請求書は「ライト・ミニマル」で作成されます。</translation>
    </message>
    <message id="ui.style.customTitle">
      <source>Your own template</source>
      <translation>独自のテンプレート</translation>
    </message>
    <message id="ui.style.days">
      <source>Payment terms in days</source>
      <translation>支払期限（日数）</translation>
    </message>
    <message id="ui.style.design.aiCustom">
      <source>Your template</source>
      <translation>独自テンプレート</translation>
    </message>
    <message id="ui.style.design.boldDark">
      <source>Bold dark</source>
      <translation>ボールド・ダーク</translation>
    </message>
    <message id="ui.style.design.editorial">
      <source>Editorial</source>
      <translation>エディトリアル</translation>
    </message>
    <message id="ui.style.design.editorialMono">
      <source>Editorial mono</source>
      <translation>エディトリアル・モノ</translation>
    </message>
    <message id="ui.style.design.lightMinimalAccent">
      <source>Light minimal</source>
      <translation>ライト・ミニマル</translation>
    </message>
    <message id="ui.style.design.minimalistMono">
      <source>Minimalist mono</source>
      <translation>ミニマリスト・モノ</translation>
    </message>
    <message id="ui.style.design.modernRibbon">
      <source>Modern ribbon</source>
      <translation>モダン・リボン</translation>
    </message>
    <message id="ui.style.design.pastelModern">
      <source>Pastel modern</source>
      <translation>パステル・モダン</translation>
    </message>
    <message id="ui.style.design.signatureEditorial">
      <source>Signature</source>
      <translation>シグネチャー</translation>
    </message>
    <message id="ui.style.designs">
      <source>Design</source>
      <translation>デザイン</translation>
    </message>
    <message id="ui.style.designsHint">
      <source>Every new invoice is drawn in the chosen design. The pictures show a sample invoice in your style.</source>
      <translation>新しい請求書はすべて選んだデザインで作成されます。画像はあなたのスタイルで作ったサンプル請求書です。</translation>
    </message>
    <message id="ui.style.drawing">
      <source>Drawing the designs</source>
      <translation>デザインを描画中</translation>
    </message>
    <message id="ui.style.email">
      <source>E-mail</source>
      <translation>メール</translation>
    </message>
    <message id="ui.style.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>支払期限は 0〜365 の整数の日数で入力してください。</translation>
    </message>
    <message id="ui.style.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>税率は 0〜100 のパーセントで入力してください。</translation>
    </message>
    <message id="ui.style.fallsBack">
      <source>%1 Invoices fall back to “Light minimal” until it is fixed.</source>
      <translation>%1 修正されるまで、請求書は「ライト・ミニマル」で作成されます。</translation>
    </message>
    <message id="ui.style.fontAuto">
      <source>The design’s own</source>
      <translation>デザインの既定</translation>
    </message>
    <message id="ui.style.fontBody">
      <source>Text font</source>
      <translation>本文フォント</translation>
    </message>
    <message id="ui.style.fontDisplay">
      <source>Headings font</source>
      <translation>見出しフォント</translation>
    </message>
    <message id="ui.style.footer">
      <source>Footer</source>
      <translation>フッター</translation>
    </message>
    <message id="ui.style.footerPlaceholder">
      <source>Thank you for your business.</source>
      <translation>ご依頼ありがとうございました。</translation>
    </message>
    <message id="ui.style.htmlFilter">
      <source>HTML files (*.html *.htm)</source>
      <translation>HTML ファイル (*.html *.htm)</translation>
    </message>
    <message id="ui.style.iban">
      <source>Bank account (IBAN)</source>
      <translation>銀行口座 (IBAN)</translation>
    </message>
    <message id="ui.style.imageFilter">
      <source>Images (*.png *.jpg *.jpeg)</source>
      <translation>画像 (*.png *.jpg *.jpeg)</translation>
    </message>
    <message id="ui.style.ink">
      <source>Ink</source>
      <translation>文字</translation>
    </message>
    <message id="ui.style.kvk">
      <source>Chamber of commerce number</source>
      <translation>商業登記番号</translation>
    </message>
    <message id="ui.style.logo">
      <source>Logo</source>
      <translation>ロゴ</translation>
    </message>
    <message id="ui.style.logoDialog">
      <source>Choose a logo</source>
      <translation>ロゴを選択</translation>
    </message>
    <message id="ui.style.logoHint">
      <source>PNG or JPEG, at most 1 MB; wider than 600 px is scaled down.</source>
      <translation>PNG または JPEG、1 MB まで。幅 600 px を超える画像は縮小されます。</translation>
    </message>
    <message id="ui.style.look">
      <source>Look</source>
      <translation>デザイン設定</translation>
    </message>
    <message id="ui.style.madeWith">
      <source>Show “Made with Morvane” in the footer</source>
      <translation>フッターに「Made with Morvane」を表示</translation>
    </message>
    <message id="ui.style.muted">
      <source>Muted</source>
      <translation>控えめ</translation>
    </message>
    <message id="ui.style.noLogo">
      <source>No logo</source>
      <translation>ロゴなし</translation>
    </message>
    <message id="ui.style.noTemplate">
      <source>No template uploaded: invoices use the design chosen above.</source>
      <translation>テンプレートはありません。請求書には上で選んだデザインが使われます。</translation>
    </message>
    <message id="ui.style.palette">
      <source>Palette</source>
      <translation>配色</translation>
    </message>
    <message id="ui.style.paper">
      <source>Paper</source>
      <translation>用紙</translation>
    </message>
    <message id="ui.style.phone">
      <source>Phone</source>
      <translation>電話</translation>
    </message>
    <message id="ui.style.removeLogo">
      <source>Remove logo</source>
      <translation>ロゴを削除</translation>
    </message>
    <message id="ui.style.removeTemplate">
      <source>Remove template</source>
      <translation>テンプレートを削除</translation>
    </message>
    <message id="ui.style.revert">
      <source>Undo changes</source>
      <translation>変更を元に戻す</translation>
    </message>
    <message id="ui.style.saving">
      <source>Saving…</source>
      <translation>保存中…</translation>
    </message>
    <message id="ui.style.sender">
      <source>Sender</source>
      <translation>差出人</translation>
    </message>
    <message id="ui.style.templateDialog">
      <source>Choose an HTML template</source>
      <translation>HTML テンプレートを選択</translation>
    </message>
    <message id="ui.style.templateNotUsed">
      <source>Not used</source>
      <translation>未使用</translation>
    </message>
    <message id="ui.style.templateUsed">
      <source>Used</source>
      <translation>使用中</translation>
    </message>
    <message id="ui.style.title">
      <source>Invoice style</source>
      <translation>請求書スタイル</translation>
    </message>
    <message id="ui.style.unsaved">
      <source>Unsaved changes</source>
      <translation>未保存の変更があります</translation>
    </message>
    <message id="ui.style.upload">
      <source>Upload template…</source>
      <translation>テンプレートをアップロード…</translation>
    </message>
    <message id="ui.style.vatRate">
      <source>Default VAT rate in %</source>
      <translation>既定の税率（%）</translation>
    </message>
    <message id="ui.style.website">
      <source>Website</source>
      <translation>ウェブサイト</translation>
    </message>
    <message id="ui.summary.callFailed">
      <source>The model could not be asked (%1). This text is written from your figures alone.</source>
      <translation>モデルに問い合わせできませんでした（%1）。この文章はあなたの数値だけから作成しています。</translation>
    </message>
    <message id="ui.summary.copy">
      <source>Copy</source>
      <translation>コピー</translation>
    </message>
    <message id="ui.summary.draftingStandup">
      <source>Drafting your stand-up…</source>
      <translation>スタンドアップを作成中…</translation>
    </message>
    <message id="ui.summary.fixed">
      <source>Written from your figures</source>
      <translation>あなたの数値から作成</translation>
    </message>
    <message id="ui.summary.generate">
      <source>Generate</source>
      <translation>生成</translation>
    </message>
    <message id="ui.summary.language">
      <source>Language of the text</source>
      <translation>文章の言語</translation>
    </message>
    <message id="ui.summary.model">
      <source>Written by the model, checked against your figures</source>
      <translation>モデルが作成し、あなたの数値で確認済み</translation>
    </message>
    <message id="ui.summary.nothing">
      <source>Nothing was tracked in this period, so there was nothing to put in words.</source>
      <translation>この期間は記録がないため、文章にする内容がありませんでした。</translation>
    </message>
    <message id="ui.summary.readFailed">
      <source>Your time could not be read: %1</source>
      <translation>記録時間を読み込めませんでした: %1</translation>
    </message>
    <message id="ui.summary.recap">
      <source>Weekly recap</source>
      <translation>週の振り返り</translation>
    </message>
    <message id="ui.summary.recapHint">
      <source>Press Generate for a short recap of the time you tracked this week.</source>
      <translation>「生成」を押すと、今週記録した時間の短い振り返りを作成します。</translation>
    </message>
    <message id="ui.summary.rejected">
      <source>The model's words did not hold up against your figures (%1). This text is written from your figures alone.</source>
      <translation>モデルの文章があなたの数値と合いませんでした（%1）。この文章はあなたの数値だけから作成しています。</translation>
    </message>
    <message id="ui.summary.standup">
      <source>Daily stand-up</source>
      <translation>デイリースタンドアップ</translation>
    </message>
    <message id="ui.summary.standupHint">
      <source>Press Generate to draft your stand-up.</source>
      <translation>「生成」を押すとスタンドアップの下書きを作成します。</translation>
    </message>
    <message id="ui.summary.textName">
      <source>Recap or stand-up text</source>
      <translation>振り返りまたはスタンドアップの文章</translation>
    </message>
    <message id="ui.summary.title">
      <source>Recap and stand-up</source>
      <translation>振り返りとスタンドアップ</translation>
    </message>
    <message id="ui.summary.uiLanguage">
      <source>Interface language</source>
      <translation>画面の言語</translation>
    </message>
    <message id="ui.summary.writingRecap">
      <source>Writing your recap…</source>
      <translation>振り返りを作成中…</translation>
    </message>
    <message id="ui.tasks.add">
      <source>Add a task and press Enter</source>
      <translation>タスクを入力して Enter</translation>
    </message>
    <message id="ui.tasks.bulkDeleteTitle">
      <source>Delete the selected tasks (%1)?</source>
      <translation>選択したタスク（%1 件）を削除しますか？</translation>
    </message>
    <message id="ui.tasks.check">
      <source>Select %1</source>
      <translation>%1 を選択</translation>
    </message>
    <message id="ui.tasks.clearSelection">
      <source>Clear</source>
      <translation>選択解除</translation>
    </message>
    <message id="ui.tasks.deleteBody">
      <source>Its time entries are deleted too.</source>
      <translation>作業記録も削除されます。</translation>
    </message>
    <message id="ui.tasks.deleteTitle">
      <source>Delete this task?</source>
      <translation>このタスクを削除しますか？</translation>
    </message>
    <message id="ui.tasks.dragHandle">
      <source>Drag to reorder</source>
      <translation>ドラッグして並べ替え</translation>
    </message>
    <message id="ui.tasks.empty">
      <source>No tasks yet.</source>
      <translation>タスクはまだありません。</translation>
    </message>
    <message id="ui.tasks.emptyHint">
      <source>Press Ctrl+N to add one.</source>
      <translation>Ctrl+N で追加できます。</translation>
    </message>
    <message id="ui.tasks.filter">
      <source>Filter</source>
      <translation>絞り込み</translation>
    </message>
    <message id="ui.tasks.filter.active">
      <source>Open</source>
      <translation>未完了</translation>
    </message>
    <message id="ui.tasks.filter.all">
      <source>All</source>
      <translation>すべて</translation>
    </message>
    <message id="ui.tasks.filter.archived">
      <source>Archived</source>
      <translation>アーカイブ</translation>
    </message>
    <message id="ui.tasks.filter.done">
      <source>Done</source>
      <translation>完了</translation>
    </message>
    <message id="ui.tasks.list">
      <source>Tasks</source>
      <translation>タスク</translation>
    </message>
    <message id="ui.tasks.markDone">
      <source>Mark done</source>
      <translation>完了にする</translation>
    </message>
    <message id="ui.tasks.moveTo">
      <source>Move to…</source>
      <translation>移動…</translation>
    </message>
    <message id="ui.tasks.needsProject">
      <source>Create a project first: tasks belong to a project.</source>
      <translation>先にプロジェクトを作成してください。タスクはプロジェクトに属します。</translation>
    </message>
    <message id="ui.tasks.noMatch">
      <source>No task matches “%1”.</source>
      <translation>「%1」に一致するタスクはありません。</translation>
    </message>
    <message id="ui.tasks.noMatchHint">
      <source>Try fewer letters, or press Esc to clear the search.</source>
      <translation>文字数を減らすか、Esc で検索をクリアしてください。</translation>
    </message>
    <message id="ui.tasks.noProjects">
      <source>No projects yet.</source>
      <translation>プロジェクトはまだありません。</translation>
    </message>
    <message id="ui.tasks.noProjectsHint">
      <source>Press Ctrl+Shift+N to create your first project.</source>
      <translation>Ctrl+Shift+N で最初のプロジェクトを作成できます。</translation>
    </message>
    <message id="ui.tasks.reopen">
      <source>Reopen</source>
      <translation>再開</translation>
    </message>
    <message id="ui.tasks.search">
      <source>Search</source>
      <translation>検索</translation>
    </message>
    <message id="ui.tasks.selected">
      <source>%1 selected</source>
      <translation>%1 件選択中</translation>
    </message>
    <message id="ui.tasks.sort">
      <source>Sort</source>
      <translation>並べ替え</translation>
    </message>
    <message id="ui.tasks.sort.alpha">
      <source>Name</source>
      <translation>名前順</translation>
    </message>
    <message id="ui.tasks.sort.createdDesc">
      <source>Newest first</source>
      <translation>新しい順</translation>
    </message>
    <message id="ui.tasks.sort.dueAsc">
      <source>Due date</source>
      <translation>期限順</translation>
    </message>
    <message id="ui.tasks.sort.manual">
      <source>Manual order</source>
      <translation>手動</translation>
    </message>
    <message id="ui.tasks.sort.priorityDesc">
      <source>Priority</source>
      <translation>優先度順</translation>
    </message>
    <message id="ui.tasks.sort.trackedDesc">
      <source>Most tracked</source>
      <translation>作業時間の多い順</translation>
    </message>
    <message id="ui.teams.accept">
      <source>Accept</source>
      <translation>参加する</translation>
    </message>
    <message id="ui.teams.decline">
      <source>Decline</source>
      <translation>辞退する</translation>
    </message>
    <message id="ui.teams.invitations">
      <source>Invitations for you</source>
      <translation>あなたへの招待</translation>
    </message>
    <message id="ui.teams.invite">
      <source>Invite by e-mail</source>
      <translation>メールで招待</translation>
    </message>
    <message id="ui.teams.inviteButton">
      <source>Invite</source>
      <translation>招待</translation>
    </message>
    <message id="ui.teams.leave">
      <source>Leave the team</source>
      <translation>チームを抜ける</translation>
    </message>
    <message id="ui.teams.leaveTitle">
      <source>Leave %1?</source>
      <translation>%1 を抜けますか？</translation>
    </message>
    <message id="ui.teams.members">
      <source>Members</source>
      <translation>メンバー</translation>
    </message>
    <message id="ui.teams.remove">
      <source>Remove</source>
      <translation>削除</translation>
    </message>
    <message id="ui.teams.removeBody">
      <source>The team's projects are no longer shared with them. Their own time stays theirs.</source>
      <translation>チームのプロジェクトはこの人と共有されなくなります。本人の作業時間は本人のものとして残ります。</translation>
    </message>
    <message id="ui.teams.removeTitle">
      <source>Remove this member?</source>
      <translation>このメンバーを削除しますか？</translation>
    </message>
    <message id="ui.teams.role">
      <source>Role</source>
      <translation>役割</translation>
    </message>
    <message id="ui.teams.role.editor">
      <source>Editor</source>
      <translation>編集者</translation>
    </message>
    <message id="ui.teams.role.owner">
      <source>Owner</source>
      <translation>オーナー</translation>
    </message>
    <message id="ui.teams.role.viewer">
      <source>Viewer</source>
      <translation>閲覧者</translation>
    </message>
    <message id="ui.teams.viewerNote">
      <source>Only the team owner and editors can invite people.</source>
      <translation>招待できるのはチームのオーナーと編集者だけです。</translation>
    </message>
    <message id="ui.timeLimit.body">
      <source>“%1” was stopped at %2, and the time until then is logged.</source>
      <translation>「%1」を %2 に停止しました。それまでの時間は記録済みです。</translation>
    </message>
    <message id="ui.timeLimit.endOfDay">
      <source>Timer stopped at the end of your day</source>
      <translation>終業時刻にタイマーを停止しました</translation>
    </message>
    <message id="ui.timeLimit.longestRun">
      <source>Timer stopped after its longest run</source>
      <translation>最長計測時間でタイマーを停止しました</translation>
    </message>
    <message id="ui.timer.idle">
      <source>No timer running. Select a task and press Space.</source>
      <translation>タイマーは停止中です。タスクを選んで Space キーを押してください。</translation>
    </message>
    <message id="ui.timer.name">
      <source>Timer</source>
      <translation>タイマー</translation>
    </message>
    <message id="ui.timer.notRunning">
      <source>Not running</source>
      <translation>停止中</translation>
    </message>
    <message id="ui.timer.offline">
      <source>Offline</source>
      <translation>オフライン</translation>
    </message>
    <message id="ui.timer.offlineHint">
      <source>Offline: changes from other devices arrive when the connection is back.</source>
      <translation>オフラインです。他のデバイスでの変更は接続が戻ると届きます。</translation>
    </message>
    <message id="ui.timer.start">
      <source>Start</source>
      <translation>開始</translation>
    </message>
    <message id="ui.timer.stop">
      <source>Stop</source>
      <translation>停止</translation>
    </message>
    <message id="ui.tray.floating">
      <source>Floating timer</source>
      <translation>フローティングタイマー</translation>
    </message>
    <message id="ui.tray.open">
      <source>Open Morvane</source>
      <translation>Morvane を開く</translation>
    </message>
    <message id="ui.tray.quickAdd">
      <source>Quick add…</source>
      <translation>クイック追加…</translation>
    </message>
    <message id="ui.tray.quit">
      <source>Quit</source>
      <translation>終了</translation>
    </message>
    <message id="ui.tray.start">
      <source>Start</source>
      <translation>開始</translation>
    </message>
    <message id="ui.tray.stop">
      <source>Stop the timer</source>
      <translation>タイマーを停止</translation>
    </message>
    <message id="ui.trips.allProjects">
      <source>All projects</source>
      <translation>すべてのプロジェクト</translation>
    </message>
    <message id="ui.trips.billable.all">
      <source>Charged and not</source>
      <translation>請求あり・なし</translation>
    </message>
    <message id="ui.trips.billable.no">
      <source>Private or not charged</source>
      <translation>私用または請求なし</translation>
    </message>
    <message id="ui.trips.billable.yes">
      <source>Charged to the client</source>
      <translation>クライアントに請求</translation>
    </message>
    <message id="ui.trips.billableFilter">
      <source>Charging</source>
      <translation>請求</translation>
    </message>
    <message id="ui.trips.charge">
      <source>Charge to the client</source>
      <translation>クライアントに請求する</translation>
    </message>
    <message id="ui.trips.chip.invoiced">
      <source>Invoiced</source>
      <translation>請求済み</translation>
    </message>
    <message id="ui.trips.chip.notCharged">
      <source>Not charged</source>
      <translation>請求なし</translation>
    </message>
    <message id="ui.trips.chip.private">
      <source>Private</source>
      <translation>私用</translation>
    </message>
    <message id="ui.trips.chip.toInvoice">
      <source>To invoice</source>
      <translation>請求予定</translation>
    </message>
    <message id="ui.trips.clientHit">
      <source>Client</source>
      <translation>クライアント</translation>
    </message>
    <message id="ui.trips.date">
      <source>Date</source>
      <translation>日付</translation>
    </message>
    <message id="ui.trips.edit">
      <source>Edit trip</source>
      <translation>移動を編集</translation>
    </message>
    <message id="ui.trips.emptyHint">
      <source>Trips your phone records while a timer runs show up here. Press Ctrl+N or “New trip” to add one by hand.</source>
      <translation>タイマー作動中にスマートフォンが記録した移動がここに表示されます。手動で追加するには Ctrl+N か「新しい移動」を押してください。</translation>
    </message>
    <message id="ui.trips.emptyTitle">
      <source>No trips yet</source>
      <translation>移動はまだありません</translation>
    </message>
    <message id="ui.trips.finish">
      <source>Finish trip</source>
      <translation>移動を終了</translation>
    </message>
    <message id="ui.trips.from">
      <source>From</source>
      <translation>出発地</translation>
    </message>
    <message id="ui.trips.km">
      <source>Kilometres</source>
      <translation>キロ数</translation>
    </message>
    <message id="ui.trips.kmColumn">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="ui.trips.map.route">
      <source>Road route of the trip</source>
      <translation>移動の道路ルート</translation>
    </message>
    <message id="ui.trips.map.straight">
      <source>Straight line between the places</source>
      <translation>2地点間の直線</translation>
    </message>
    <message id="ui.trips.mode">
      <source>Travelled by</source>
      <translation>移動手段</translation>
    </message>
    <message id="ui.trips.mode.bike">
      <source>Bike</source>
      <translation>自転車</translation>
    </message>
    <message id="ui.trips.mode.car">
      <source>Car</source>
      <translation>車</translation>
    </message>
    <message id="ui.trips.mode.other">
      <source>Other</source>
      <translation>その他</translation>
    </message>
    <message id="ui.trips.mode.transit">
      <source>Public transport</source>
      <translation>公共交通機関</translation>
    </message>
    <message id="ui.trips.mode.walk">
      <source>On foot</source>
      <translation>徒歩</translation>
    </message>
    <message id="ui.trips.new">
      <source>New trip</source>
      <translation>新しい移動</translation>
    </message>
    <message id="ui.trips.noMatch">
      <source>No trip matches these filters</source>
      <translation>条件に合う移動はありません</translation>
    </message>
    <message id="ui.trips.period.all">
      <source>All time</source>
      <translation>全期間</translation>
    </message>
    <message id="ui.trips.period.lastMonth">
      <source>Last month</source>
      <translation>先月</translation>
    </message>
    <message id="ui.trips.period.month">
      <source>This month</source>
      <translation>今月</translation>
    </message>
    <message id="ui.trips.period.year">
      <source>This year</source>
      <translation>今年</translation>
    </message>
    <message id="ui.trips.periodFilter">
      <source>Period</source>
      <translation>期間</translation>
    </message>
    <message id="ui.trips.placePlaceholder">
      <source>Address, place or client</source>
      <translation>住所・場所・クライアント</translation>
    </message>
    <message id="ui.trips.private">
      <source>Private trip</source>
      <translation>私用の移動</translation>
    </message>
    <message id="ui.trips.problem.date">
      <source>Enter the day as YYYY-MM-DD.</source>
      <translation>日付を YYYY-MM-DD の形式で入力してください。</translation>
    </message>
    <message id="ui.trips.problem.from">
      <source>Where did the trip start?</source>
      <translation>出発地はどこですか？</translation>
    </message>
    <message id="ui.trips.problem.km">
      <source>Enter the kilometres, for example 12.5.</source>
      <translation>キロ数を入力してください（例：12.5）。</translation>
    </message>
    <message id="ui.trips.problem.rate">
      <source>Enter the rate per kilometre as a number, for example 0.23.</source>
      <translation>キロあたりの単価を数値で入力してください（例：0.23）。</translation>
    </message>
    <message id="ui.trips.problem.to">
      <source>Where did the trip end?</source>
      <translation>到着地はどこですか？</translation>
    </message>
    <message id="ui.trips.progress">
      <source>%1 km · %2 min</source>
      <translation>%1 km · %2 分</translation>
    </message>
    <message id="ui.trips.projectFilter">
      <source>Project</source>
      <translation>プロジェクト</translation>
    </message>
    <message id="ui.trips.projectHint">
      <source>Trips of this project go on its invoices. Private trips and trips you do not charge never do.</source>
      <translation>このプロジェクトの移動は請求書に載ります。私用の移動や請求しない移動は載りません。</translation>
    </message>
    <message id="ui.trips.purpose">
      <source>Purpose</source>
      <translation>目的</translation>
    </message>
    <message id="ui.trips.purposePlaceholder">
      <source>For example: meeting at the client, delivery</source>
      <translation>例：クライアントとの打ち合わせ、納品</translation>
    </message>
    <message id="ui.trips.rate">
      <source>Rate per kilometre</source>
      <translation>キロあたりの単価</translation>
    </message>
    <message id="ui.trips.rateHint">
      <source>Used for projects that charge travel per kilometre and name no rate of their own.</source>
      <translation>キロ単位で移動費を請求し、独自の単価がないプロジェクトに使われます。</translation>
    </message>
    <message id="ui.trips.resultsFrom">
      <source>Results from OpenStreetMap, without KvK numbers.</source>
      <translation>OpenStreetMap の検索結果（KvK 番号なし）。</translation>
    </message>
    <message id="ui.trips.routing">
      <source>Finding the road route…</source>
      <translation>道路ルートを検索中…</translation>
    </message>
    <message id="ui.trips.searching">
      <source>Searching…</source>
      <translation>検索中…</translation>
    </message>
    <message id="ui.trips.settings">
      <source>Travel settings</source>
      <translation>移動の設定</translation>
    </message>
    <message id="ui.trips.start">
      <source>Start a trip now</source>
      <translation>今すぐ移動を開始</translation>
    </message>
    <message id="ui.trips.summaryMany">
      <source>%1 trips · %2 km</source>
      <translation>%1件の移動 · %2 km</translation>
    </message>
    <message id="ui.trips.summaryOne">
      <source>1 trip · %1 km</source>
      <translation>1件の移動 · %1 km</translation>
    </message>
    <message id="ui.trips.title">
      <source>Trips</source>
      <translation>移動</translation>
    </message>
    <message id="ui.trips.to">
      <source>To</source>
      <translation>到着地</translation>
    </message>
    <message id="ui.trips.toInvoice">
      <source>%1 to invoice: %2</source>
      <translation>請求予定 %1：%2</translation>
    </message>
    <message id="ui.trips.trip">
      <source>Trip</source>
      <translation>移動</translation>
    </message>
    <message id="ui.trips.usualMode">
      <source>Usually travel by</source>
      <translation>普段の移動手段</translation>
    </message>
    <message id="ui.trips.work">
      <source>Project and task</source>
      <translation>プロジェクトとタスク</translation>
    </message>
    <message id="ui.trips.work.none">
      <source>Choose a project or task</source>
      <translation>プロジェクトまたはタスクを選択</translation>
    </message>
    <message id="ui.trips.work.wholeProject">
      <source>%1 · Whole project, no task</source>
      <translation>%1 · プロジェクト全体（タスクなし）</translation>
    </message>
  </context>
</TS>

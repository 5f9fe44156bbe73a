<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
  <context>
    <name>Morvane</name>
    <message id="add.couldNotParse">
      <source>Morvane could not make sense of that. Try saying it another way.</source>
      <translation>O Morvane não conseguiu entender. Tente dizer de outra forma.</translation>
    </message>
    <message id="ai.err.badAnswer">
      <source>%1 sent an answer Morvane cannot use: %2</source>
      <translation>%1 enviou uma resposta que o Morvane não consegue usar: %2</translation>
    </message>
    <message id="ai.err.consentDeclined">
      <source>You chose not to send your text to %1. You can change this in the AI settings.</source>
      <translation>Você escolheu não enviar o seu texto para %1. Pode mudar isso nas configurações de IA.</translation>
    </message>
    <message id="ai.err.consentMissing">
      <source>Morvane asks before it sends your text to %1 for the first time. Answer that question in the window, or run the command again with --yes.</source>
      <translation>O Morvane pergunta antes de enviar o seu texto para %1 pela primeira vez. Responda a essa pergunta na janela ou execute o comando novamente com --yes.</translation>
    </message>
    <message id="ai.err.needsCLI">
      <source>This needs the Claude CLI, which can work with files; %1 cannot. Choose the Claude CLI in the AI settings.</source>
      <translation>Isto precisa da CLI do Claude, que trabalha com arquivos; %1 não consegue. Escolha a CLI do Claude nas configurações de IA.</translation>
    </message>
    <message id="ai.err.noKey">
      <source>There is no API key for %1 in your keyring. Add your key in the AI settings.</source>
      <translation>Não há nenhuma chave de API para %1 no seu chaveiro. Adicione a sua chave nas configurações de IA.</translation>
    </message>
    <message id="ai.err.notSignedIn">
      <source>%1 works only while you are signed in. Sign in, then try again.</source>
      <translation>%1 só funciona com a sessão iniciada. Entre e tente novamente.</translation>
    </message>
    <message id="ai.err.status">
      <source>%1 answered with error %2: %3</source>
      <translation>%1 respondeu com o erro %2: %3</translation>
    </message>
    <message id="ai.err.timedOut">
      <source>%1 did not answer within %2 s</source>
      <translation>%1 não respondeu em %2 s</translation>
    </message>
    <message id="ai.err.unreachable">
      <source>%1 could not be reached: %2</source>
      <translation>Não foi possível contactar %1: %2</translation>
    </message>
    <message id="ai.route.anthropic.where">
      <source>Your text goes straight from this computer to Anthropic, with your own API key.</source>
      <translation>O seu texto vai diretamente deste computador para Anthropic, com a sua própria chave de API.</translation>
    </message>
    <message id="ai.route.claudeCLI.where">
      <source>Your text goes to the claude program on this computer, which sends it to Anthropic under your own Claude account. Morvane itself sends nothing over the network.</source>
      <translation>O seu texto vai para o programa claude deste computador, que o envia à Anthropic com a sua própria conta Claude. O Morvane em si não envia nada pela rede.</translation>
    </message>
    <message id="ai.route.gemini.where">
      <source>Your text goes straight from this computer to Google, with your own API key.</source>
      <translation>O seu texto vai diretamente deste computador para Google, com a sua própria chave de API.</translation>
    </message>
    <message id="ai.route.morvaneAI.where">
      <source>Your text goes to the Morvane server you are signed in to, which passes it on to the AI service its operator has chosen, and the answer comes back the same way.</source>
      <translation>O seu texto vai para o servidor Morvane em que você entrou, que o repassa ao serviço de IA escolhido pelo seu operador; a resposta volta pelo mesmo caminho.</translation>
    </message>
    <message id="ai.route.openAI.where">
      <source>Your text goes straight from this computer to OpenAI, with your own API key.</source>
      <translation>O seu texto vai diretamente deste computador para OpenAI, com a sua própria chave de API.</translation>
    </message>
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
    <message id="auth.err.oauthRefused">
      <source>The sign-in was refused: %1</source>
      <translation>O login foi recusado: %1</translation>
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
    <message id="billing.dayNote">
      <source>Tracked time ÷ hours-per-day = billable days.</source>
      <translation>Tempo registrado ÷ horas por dia = dias faturáveis.</translation>
    </message>
    <message id="billing.dayRate">
      <source>Day rate</source>
      <translation>Valor da diária</translation>
    </message>
    <message id="billing.discount">
      <source>Discount</source>
      <translation>Desconto</translation>
    </message>
    <message id="billing.extras">
      <source>Extras · call-out · materials · discount · VAT</source>
      <translation>Extras · deslocamento · materiais · desconto · impostos</translation>
    </message>
    <message id="billing.fixedTotal">
      <source>Fixed total</source>
      <translation>Total fixo</translation>
    </message>
    <message id="billing.gross">
      <source>Gross (incl.)</source>
      <translation>Bruto (com impostos)</translation>
    </message>
    <message id="billing.hourlyRate">
      <source>Hourly rate</source>
      <translation>Valor por hora</translation>
    </message>
    <message id="billing.hoursPerDay">
      <source>Hours per day</source>
      <translation>Horas por dia</translation>
    </message>
    <message id="billing.inheriting">
      <source>Inheriting from project</source>
      <translation>Herdado do projeto</translation>
    </message>
    <message id="billing.materials">
      <source>Materials</source>
      <translation>Materiais</translation>
    </message>
    <message id="billing.minCharge">
      <source>Minimum charge</source>
      <translation>Valor mínimo</translation>
    </message>
    <message id="billing.model.day">
      <source>Per day</source>
      <translation>Por dia</translation>
    </message>
    <message id="billing.model.fixed">
      <source>Fixed price</source>
      <translation>Preço fixo</translation>
    </message>
    <message id="billing.model.hour">
      <source>Per hour</source>
      <translation>Por hora</translation>
    </message>
    <message id="billing.model.unit">
      <source>Per unit</source>
      <translation>Por unidade</translation>
    </message>
    <message id="billing.net">
      <source>Net (excl. VAT)</source>
      <translation>Líquido (sem impostos)</translation>
    </message>
    <message id="billing.netNote">
      <source>Net per tracked time, plus the extras above.</source>
      <translation>Líquido pelo tempo registrado, mais os extras acima.</translation>
    </message>
    <message id="billing.pricePerUnit">
      <source>Price / unit</source>
      <translation>Preço / unidade</translation>
    </message>
    <message id="billing.quantity">
      <source>Quantity</source>
      <translation>Quantidade</translation>
    </message>
    <message id="billing.resetProject">
      <source>Reset to project default</source>
      <translation>Voltar ao preço do projeto</translation>
    </message>
    <message id="billing.suffix.day">
      <source>/day</source>
      <translation>/dia</translation>
    </message>
    <message id="billing.suffix.hour">
      <source>/h</source>
      <translation>/h</translation>
    </message>
    <message id="billing.surcharge">
      <source>Call-out fee</source>
      <translation>Taxa de deslocamento</translation>
    </message>
    <message id="billing.title">
      <source>Billing</source>
      <translation>Cobrança</translation>
    </message>
    <message id="billing.unit">
      <source>Unit</source>
      <translation>Unidade</translation>
    </message>
    <message id="billing.unitDefault">
      <source>unit</source>
      <translation>unidade</translation>
    </message>
    <message id="billing.vat">
      <source>VAT</source>
      <translation>Impostos</translation>
    </message>
    <message id="billing.vatAmount">
      <source>VAT</source>
      <translation>Impostos</translation>
    </message>
    <message id="billing.vatNone">
      <source>No VAT</source>
      <translation>Sem impostos</translation>
    </message>
    <message id="cal.accessOffBody">
      <source>Morvane turns calendar events into time entries. Add an iCalendar file, a subscription address or a CalDAV account, then come back and recheck.</source>
      <translation>O Morvane transforma eventos do calendário em registos de tempo. Adicione um ficheiro iCalendar, um endereço de subscrição ou uma conta CalDAV e volte para verificar de novo.</translation>
    </message>
    <message id="cal.accessOffTitle">
      <source>No calendars yet</source>
      <translation>Ainda sem calendários</translation>
    </message>
    <message id="cal.err.alreadyImported">
      <source>This event was imported before; its time is already logged.</source>
      <translation>Este evento já foi importado; o seu tempo já está registado.</translation>
    </message>
    <message id="cal.err.readFailed">
      <source>The calendar “%1” could not be read.</source>
      <translation>Não foi possível ler o calendário «%1».</translation>
    </message>
    <message id="cal.err.secret">
      <source>The password could not be stored in the keyring.</source>
      <translation>Não foi possível guardar a palavra-passe no porta-chaves.</translation>
    </message>
    <message id="cal.heroTitle">
      <source>Import from your calendar</source>
      <translation>Importar do seu calendário</translation>
    </message>
    <message id="cal.loading">
      <source>Loading calendar…</source>
      <translation>A carregar o calendário…</translation>
    </message>
    <message id="cal.noEventsHint">
      <source>No events on this day. Pick another day, or add a calendar.</source>
      <translation>Sem eventos neste dia. Escolha outro dia ou adicione um calendário.</translation>
    </message>
    <message id="cal.selectedCount">
      <source>%1 selected</source>
      <translation>%1 selecionados</translation>
    </message>
    <message id="cal.untitled">
      <source>Calendar event</source>
      <translation>Evento do calendário</translation>
    </message>
    <message id="calExistingSection">
      <source>Existing tasks</source>
      <translation>Tarefas existentes</translation>
    </message>
    <message id="calNewTaskSection">
      <source>New tasks</source>
      <translation>Novas tarefas</translation>
    </message>
    <message id="capture.err.noMinutes">
      <source>The sentence gives no time to log.</source>
      <translation>A frase não indica nenhum tempo para registrar.</translation>
    </message>
    <message id="capture.err.noProject">
      <source>The sentence names no project to add the task to.</source>
      <translation>A frase não cita nenhum projeto ao qual adicionar a tarefa.</translation>
    </message>
    <message id="capture.err.notSaved">
      <source>The change could not be saved.</source>
      <translation>Não foi possível salvar a alteração.</translation>
    </message>
    <message id="capture.fix.bothPrices">
      <source>"%1" has both a fixed price and an hourly rate; the fixed price is used.</source>
      <translation>“%1” tem um preço fixo e uma tarifa por hora; vale o preço fixo.</translation>
    </message>
    <message id="capture.fix.cut">
      <source>"%1…" was cut to %2 characters.</source>
      <translation>“%1…” foi cortado para %2 caracteres.</translation>
    </message>
    <message id="capture.fix.date">
      <source>The due date "%1" was left out: it is not a date of the form YYYY-MM-DD.</source>
      <translation>O prazo “%1” foi deixado de fora: não é uma data no formato AAAA-MM-DD.</translation>
    </message>
    <message id="capture.fix.minutes">
      <source>%1 minutes were left out: time logged from one sentence is more than 0 and at most %2 minutes.</source>
      <translation>%1 minutos foram deixados de fora: o tempo de uma frase é maior que 0 e no máximo %2 minutos.</translation>
    </message>
    <message id="capture.fix.price">
      <source>The fixed price %1 was left out: a price lies between 0 and %2.</source>
      <translation>O preço fixo %1 foi deixado de fora: um preço fica entre 0 e %2.</translation>
    </message>
    <message id="capture.fix.priority">
      <source>The priority "%1" is unknown; the task gets the default, medium.</source>
      <translation>A prioridade “%1” é desconhecida; a tarefa recebe a padrão, média.</translation>
    </message>
    <message id="capture.fix.rate">
      <source>The hourly rate %1 was left out: a rate lies between 0 and %2.</source>
      <translation>A tarifa por hora %1 foi deixada de fora: uma tarifa fica entre 0 e %2.</translation>
    </message>
    <message id="capture.fix.unnamed">
      <source>A project or task without a name was left out.</source>
      <translation>Um projeto ou tarefa sem nome foi deixado de fora.</translation>
    </message>
    <message id="capture.note.noTeam">
      <source>You have no team called "%1" that you may add projects to; "%2" stays yours alone.</source>
      <translation>Você não tem uma equipe “%1” à qual possa adicionar projetos; “%2” continua só seu.</translation>
    </message>
    <message id="capture.note.noTimer">
      <source>No timer was running.</source>
      <translation>Nenhum cronômetro estava rodando.</translation>
    </message>
    <message id="claude.err.binaryMissing">
      <source>AI features need the Claude CLI on this Mac (it powers voice/prompt capture, briefs, and the invoice note). Everything else works without it. Set CLAUDE_CLI_PATH or install it, then try again.</source>
      <translation>Os recursos de IA precisam da CLI do Claude neste Mac (captura por voz ou texto, resumos e a nota da fatura). Todo o resto funciona sem ela. Defina CLAUDE_CLI_PATH ou instale-a e tente novamente.</translation>
    </message>
    <message id="claude.err.createTask">
      <source>Create task failed: %1</source>
      <translation>Falha ao criar a tarefa: %1</translation>
    </message>
    <message id="claude.err.emptyOutput">
      <source>Claude produced no output</source>
      <translation>O Claude não produziu nenhuma saída</translation>
    </message>
    <message id="claude.err.launchFailed">
      <source>Launch failed: %1</source>
      <translation>Falha ao iniciar: %1</translation>
    </message>
    <message id="claude.err.malformedJSON">
      <source>Bad JSON from Claude (%1) %2</source>
      <translation>JSON inválido do Claude (%1) %2</translation>
    </message>
    <message id="claude.err.noJSONObject">
      <source>no JSON object detected</source>
      <translation>nenhum objeto JSON detectado</translation>
    </message>
    <message id="claude.err.nonZeroExit">
      <source>Claude exited %1: %2</source>
      <translation>O Claude terminou com o status %1: %2</translation>
    </message>
    <message id="claude.err.outputNotWritten">
      <source>Claude finished but did not write %1</source>
      <translation>O Claude terminou, mas não escreveu %1</translation>
    </message>
    <message id="claude.err.resultIsError">
      <source>claude returned is_error=true</source>
      <translation>claude retornou is_error=true</translation>
    </message>
    <message id="claude.err.timedOut">
      <source>Claude request timed out after %1 s</source>
      <translation>A solicitação ao Claude expirou após %1 s</translation>
    </message>
    <message id="claude.err.workspaceTimedOut">
      <source>Claude workspace task timed out after %1 s</source>
      <translation>A tarefa do Claude na pasta de trabalho expirou após %1 s</translation>
    </message>
    <message id="cli.add.adjusted">
      <source>Checked: %1</source>
      <translation>Verificado: %1</translation>
    </message>
    <message id="cli.add.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as 'morvane tasks list' shows it.</source>
      <translation>Qual tarefa? Nenhuma das suas tarefas se chama “%1”, ou várias se chamam. Diga como 'morvane tasks list' a mostra.</translation>
    </message>
    <message id="cli.add.dryRunDone">
      <source>Nothing was changed (--dry-run).</source>
      <translation>Nada foi alterado (--dry-run).</translation>
    </message>
    <message id="cli.add.due">
      <source>due %1</source>
      <translation>prazo %1</translation>
    </message>
    <message id="cli.add.fixed">
      <source>%1 fixed</source>
      <translation>%1 fixo</translation>
    </message>
    <message id="cli.add.logTime">
      <source>Log %1 on "%2"</source>
      <translation>Registrar %1 em “%2”</translation>
    </message>
    <message id="cli.add.modelNote">
      <source>The model notes: %1</source>
      <translation>O modelo observa: %1</translation>
    </message>
    <message id="cli.add.option.dryRun">
      <source>Show what was understood without changing anything.</source>
      <translation>Mostrar o que foi entendido sem alterar nada.</translation>
    </message>
    <message id="cli.add.partial">
      <source>Stopped: %1 What was made before stays; give the same sentence again to finish the rest without making anything twice.</source>
      <translation>Interrompido: %1 O que já foi criado permanece; repita a mesma frase para concluir o resto sem criar nada duas vezes.</translation>
    </message>
    <message id="cli.add.project">
      <source>Project "%1"</source>
      <translation>Projeto “%1”</translation>
    </message>
    <message id="cli.add.spent">
      <source>%1 already spent</source>
      <translation>%1 já gastos</translation>
    </message>
    <message id="cli.add.startTimer">
      <source>Start the timer on "%1"</source>
      <translation>Iniciar o cronômetro em “%1”</translation>
    </message>
    <message id="cli.add.stopRunning">
      <source>Stop the running timer</source>
      <translation>Parar o cronômetro em andamento</translation>
    </message>
    <message id="cli.add.stopTimer">
      <source>Stop the timer on "%1"</source>
      <translation>Parar o cronômetro em “%1”</translation>
    </message>
    <message id="cli.add.summary">
      <source>Projects: %1 new, %2 existing. Tasks: %3 new, %4 existing. Time logged: %5.</source>
      <translation>Projetos: %1 novos, %2 existentes. Tarefas: %3 novas, %4 existentes. Tempo registrado: %5.</translation>
    </message>
    <message id="cli.add.task">
      <source>Task "%1"</source>
      <translation>Tarefa “%1”</translation>
    </message>
    <message id="cli.add.team">
      <source>shared with team %1</source>
      <translation>compartilhado com a equipe %1</translation>
    </message>
    <message id="cli.add.timerStopped">
      <source>Timer stopped on %1.</source>
      <translation>Cronômetro parado em %1.</translation>
    </message>
    <message id="cli.add.understood">
      <source>Understood:</source>
      <translation>Entendido:</translation>
    </message>
    <message id="cli.add.unknown">
      <source>Nothing to do: the sentence holds no project, task, time or timer action.</source>
      <translation>Nada a fazer: a frase não contém projeto, tarefa, tempo nem ação de cronômetro.</translation>
    </message>
    <message id="cli.add.usage">
      <source>Usage: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</source>
      <translation>Uso: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</translation>
    </message>
    <message id="cli.ai.consentAllowed">
      <source>allowed</source>
      <translation>permitido</translation>
    </message>
    <message id="cli.ai.consentAsk">
      <source>not asked yet</source>
      <translation>ainda não perguntado</translation>
    </message>
    <message id="cli.ai.consentDeclined">
      <source>declined</source>
      <translation>recusado</translation>
    </message>
    <message id="cli.ai.keyFailed">
      <source>The keyring did not take the key; nothing changed.</source>
      <translation>O chaveiro não aceitou a chave; nada mudou.</translation>
    </message>
    <message id="cli.ai.keyMissing">
      <source>No key was given; nothing changed.</source>
      <translation>Não foi indicada nenhuma chave; nada mudou.</translation>
    </message>
    <message id="cli.ai.keyPrompt">
      <source>Paste your %1 API key and press Enter: </source>
      <translation>Cole a sua chave de API de %1 e prima Enter: </translation>
    </message>
    <message id="cli.ai.keyRemoved">
      <source>The %1 key is no longer in your keyring.</source>
      <translation>A chave de %1 já não está no seu chaveiro.</translation>
    </message>
    <message id="cli.ai.keySaved">
      <source>The %1 key is in your keyring.</source>
      <translation>A chave de %1 está no seu chaveiro.</translation>
    </message>
    <message id="cli.ai.keys">
      <source>Your keys in the keyring: %1</source>
      <translation>As suas chaves no chaveiro: %1</translation>
    </message>
    <message id="cli.ai.option.remove">
      <source>Remove the stored key instead of setting one.</source>
      <translation>Remover a chave guardada em vez de definir uma.</translation>
    </message>
    <message id="cli.ai.provider">
      <source>Provider setting: %1</source>
      <translation>Fornecedor escolhido: %1</translation>
    </message>
    <message id="cli.ai.question">
      <source>%1
Send your text to %2 now and from now on? [y/N] </source>
      <translation>%1
Enviar o seu texto para %2 agora e daqui em diante? [s/N] </translation>
    </message>
    <message id="cli.ai.route">
      <source>Calls go to: %1</source>
      <translation>As chamadas vão para: %1</translation>
    </message>
    <message id="cli.ai.usage">
      <source>Usage: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</source>
      <translation>Uso: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</translation>
    </message>
    <message id="cli.ai.yes">
      <source>Agree to sending your text to the chosen AI service without being asked.</source>
      <translation>Aceitar sem perguntar o envio do seu texto ao serviço de IA escolhido.</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>O comando a executar; sem ele, a lista de comandos é mostrada.</translation>
    </message>
    <message id="cli.auth.browser">
      <source>Continue in your browser. If no page opens, go to: %1</source>
      <translation>Continue no navegador. Se nenhuma página abrir, acesse: %1</translation>
    </message>
    <message id="cli.auth.confirm">
      <source>Check your inbox: confirm %1 with the link in the mail, then sign in.</source>
      <translation>Confira sua caixa de entrada: confirme %1 pelo link da mensagem e depois entre.</translation>
    </message>
    <message id="cli.auth.noAccounts">
      <source>No remembered accounts.</source>
      <translation>Nenhuma conta lembrada.</translation>
    </message>
    <message id="cli.auth.option.name">
      <source>The name shown on your profile and to your team.</source>
      <translation>O nome exibido no seu perfil e para a sua equipe.</translation>
    </message>
    <message id="cli.auth.option.provider">
      <source>Sign in through an outside provider in the browser instead of with a password.</source>
      <translation>Entrar por um provedor externo no navegador em vez de com uma senha.</translation>
    </message>
    <message id="cli.auth.password">
      <source>Password: </source>
      <translation>Senha: </translation>
    </message>
    <message id="cli.auth.signedIn">
      <source>Signed in as %1.</source>
      <translation>Conectado como %1.</translation>
    </message>
    <message id="cli.auth.signedOut">
      <source>Signed out.</source>
      <translation>Você saiu.</translation>
    </message>
    <message id="cli.auth.unknownAccount">
      <source>No remembered account %1. Sign in to it first.</source>
      <translation>Nenhuma conta lembrada %1. Entre nela primeiro.</translation>
    </message>
    <message id="cli.auth.usage">
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Uso: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.calendar.added">
      <source>Added %1 (%2).</source>
      <translation>%1 adicionado (%2).</translation>
    </message>
    <message id="cli.calendar.err.add">
      <source>That calendar cannot be added: %1.</source>
      <translation>Não é possível adicionar esse calendário: %1.</translation>
    </message>
    <message id="cli.calendar.err.day">
      <source>A day is written as YYYY-MM-DD, today or yesterday.</source>
      <translation>Um dia escreve-se AAAA-MM-DD, today ou yesterday.</translation>
    </message>
    <message id="cli.calendar.err.noDestination">
      <source>No task or project for: %1. Pass --project P to make them new tasks there.</source>
      <translation>Sem tarefa nem projeto para: %1. Passe --project P para criar aí novas tarefas.</translation>
    </message>
    <message id="cli.calendar.err.noSelection">
      <source>Say which events to import: --events ID... (see morvane calendar events) or --all.</source>
      <translation>Indique que eventos importar: --events ID... (veja morvane calendar events) ou --all.</translation>
    </message>
    <message id="cli.calendar.err.unknown">
      <source>No single calendar matches “%1”; see morvane calendar list.</source>
      <translation>Nenhum calendário único corresponde a «%1»; veja morvane calendar list.</translation>
    </message>
    <message id="cli.calendar.imported">
      <source>imported</source>
      <translation>importado</translation>
    </message>
    <message id="cli.calendar.importedCount">
      <source>Imported %1 events; %2 were imported before.</source>
      <translation>%1 eventos importados; %2 já tinham sido importados.</translation>
    </message>
    <message id="cli.calendar.opt.all">
      <source>Import every event of the day.</source>
      <translation>Importar todos os eventos do dia.</translation>
    </message>
    <message id="cli.calendar.opt.caldav">
      <source>Read a CalDAV collection (with --user) instead of a subscription.</source>
      <translation>Ler uma coleção CalDAV (com --user) em vez de uma subscrição.</translation>
    </message>
    <message id="cli.calendar.opt.day">
      <source>The day: YYYY-MM-DD, today or yesterday.</source>
      <translation>O dia: AAAA-MM-DD, today ou yesterday.</translation>
    </message>
    <message id="cli.calendar.opt.events">
      <source>The events to import, by the id events shows.</source>
      <translation>Os eventos a importar, pelo id que events mostra.</translation>
    </message>
    <message id="cli.calendar.opt.name">
      <source>The name the calendar is shown under.</source>
      <translation>O nome com que o calendário é mostrado.</translation>
    </message>
    <message id="cli.calendar.opt.project">
      <source>The project new tasks are made in.</source>
      <translation>O projeto onde são criadas as novas tarefas.</translation>
    </message>
    <message id="cli.calendar.opt.user">
      <source>The CalDAV user name.</source>
      <translation>O nome de utilizador CalDAV.</translation>
    </message>
    <message id="cli.calendar.password">
      <source>CalDAV password: </source>
      <translation>Palavra-passe CalDAV: </translation>
    </message>
    <message id="cli.calendar.removed">
      <source>Removed %1.</source>
      <translation>%1 removido.</translation>
    </message>
    <message id="cli.calendar.usage">
      <source>Usage: morvane calendar add &lt;file-or-address&gt; [--caldav --user U] | list | rm &lt;calendar&gt; | events [--day DAY] [--json] | import --day DAY [--project P] [--events ID...] [--all]</source>
      <translation>Uso: morvane calendar add &lt;ficheiro-ou-endereço&gt; [--caldav --user U] | list | rm &lt;calendário&gt; | events [--day DIA] [--json] | import --day DIA [--project P] [--events ID...] [--all]</translation>
    </message>
    <message id="cli.clients.added">
      <source>Added client %1 (%2).</source>
      <translation>Cliente %1 adicionado (%2).</translation>
    </message>
    <message id="cli.clients.coc">
      <source>CoC %1</source>
      <translation>CRC %1</translation>
    </message>
    <message id="cli.clients.confirmDelete">
      <source>Delete the client %1? Invoices that name it keep it. [y/N] </source>
      <translation>Eliminar o cliente %1? As faturas que o indicam mantêm-no. [y/N] </translation>
    </message>
    <message id="cli.clients.deleted">
      <source>Deleted client %1.</source>
      <translation>Cliente %1 eliminado.</translation>
    </message>
    <message id="cli.clients.kept">
      <source>Nothing deleted.</source>
      <translation>Nada foi eliminado.</translation>
    </message>
    <message id="cli.clients.noMatch">
      <source>No client matches "%1". See them with: morvane clients list</source>
      <translation>Nenhum cliente corresponde a «%1». Veja-os com: morvane clients list</translation>
    </message>
    <message id="cli.clients.none">
      <source>No clients yet. Add one with: morvane clients add &lt;name&gt;</source>
      <translation>Ainda não há clientes. Adicione um com: morvane clients add &lt;nome&gt;</translation>
    </message>
    <message id="cli.clients.option.address">
      <source>The client's postal address; it may span several lines.</source>
      <translation>A morada do cliente; pode ocupar várias linhas.</translation>
    </message>
    <message id="cli.clients.option.coc">
      <source>The client's chamber-of-commerce number.</source>
      <translation>O número de registo comercial do cliente.</translation>
    </message>
    <message id="cli.clients.option.email">
      <source>The client's e-mail address.</source>
      <translation>O endereço de e-mail do cliente.</translation>
    </message>
    <message id="cli.clients.option.name">
      <source>A new name (edit only).</source>
      <translation>Um novo nome (apenas com edit).</translation>
    </message>
    <message id="cli.clients.option.vat">
      <source>The client's VAT number.</source>
      <translation>O número de IVA do cliente.</translation>
    </message>
    <message id="cli.clients.option.yes">
      <source>Delete without asking first.</source>
      <translation>Eliminar sem perguntar primeiro.</translation>
    </message>
    <message id="cli.clients.saved">
      <source>Saved client %1.</source>
      <translation>Cliente %1 guardado.</translation>
    </message>
    <message id="cli.clients.usage">
      <source>Usage: morvane clients list | add &lt;name&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;client&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;client&gt; [--yes] [--json]</source>
      <translation>Utilização: morvane clients list | add &lt;nome&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;cliente&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;cliente&gt; [--yes] [--json]</translation>
    </message>
    <message id="cli.clients.vat">
      <source>VAT %1</source>
      <translation>IVA %1</translation>
    </message>
    <message id="cli.clients.yesAnswers">
      <source>y|yes</source>
      <translation>s|sim</translation>
    </message>
    <message id="cli.command.add">
      <source>Turn a sentence into projects, tasks, logged time or a timer action: add "&lt;text&gt;" [--dry-run] [--json]</source>
      <translation>Transformar uma frase em projetos, tarefas, tempo registrado ou uma ação de cronômetro: add "&lt;text&gt;" [--dry-run] [--json]</translation>
    </message>
    <message id="cli.command.ai">
      <source>Where model calls go, your own API keys and what you agreed to send: ai show|provider|key|consent</source>
      <translation>Para onde vão as chamadas ao modelo, as suas próprias chaves de API e o que aceitou enviar: ai show|provider|key|consent</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Criar conta, entrar e sair, trocar de conta</translation>
    </message>
    <message id="cli.command.calendar">
      <source>Calendar events as time: calendar add|list|rm|events|import</source>
      <translation>Eventos do calendário como tempo: calendar add|list|rm|events|import</translation>
    </message>
    <message id="cli.command.clients">
      <source>The clients you invoice: clients list|add|edit|rm</source>
      <translation>Os clientes a quem emite faturas: clients list|add|edit|rm</translation>
    </message>
    <message id="cli.command.company">
      <source>Your sender details and invoice style: company show|set</source>
      <translation>Os seus dados de remetente e o estilo das faturas: company show|set</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Mostrar qual servidor o Morvane usa e de onde vem cada configuração</translation>
    </message>
    <message id="cli.command.earnings">
      <source>Earned, billed and unbilled money by week, month or project: earnings [--from DAY --to DAY] [--by week|month|project]</source>
      <translation>Valores ganhos, faturados e por faturar por semana, mês ou projeto: earnings [--from DIA --to DIA] [--by week|month|project]</translation>
    </message>
    <message id="cli.command.entries">
      <source>List, edit or delete time entries: entries [--task T] | edit | rm</source>
      <translation>Listar, editar ou excluir registros de tempo: entries [--task T] | edit | rm</translation>
    </message>
    <message id="cli.command.export">
      <source>Time entries or invoices of a period as CSV for the accountant: export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Registos de tempo ou faturas de um período em CSV para o contabilista: export entries|invoices --from DIA --to DIA [--out FICHEIRO]</translation>
    </message>
    <message id="cli.command.invoice">
      <source>Invoices: invoice draft|create|list|show|status|void|rm|pdf</source>
      <translation>Faturas: invoice draft|create|list|show|status|void|rm|pdf</translation>
    </message>
    <message id="cli.command.log">
      <source>Log minutes of work on a task: log &lt;task&gt; &lt;minutes&gt;</source>
      <translation>Registrar minutos de trabalho em uma tarefa: log &lt;task&gt; &lt;minutes&gt;</translation>
    </message>
    <message id="cli.command.price">
      <source>Show or set the price of a project or task: price show|set</source>
      <translation>Mostrar ou definir o preço de um projeto ou tarefa: price show|set</translation>
    </message>
    <message id="cli.command.projects">
      <source>List, add, rename, archive or delete projects: projects list|add|rename|archive|rm</source>
      <translation>Listar, adicionar, renomear, arquivar ou excluir projetos: projects list|add|rename|archive|rm</translation>
    </message>
    <message id="cli.command.recap">
      <source>A short recap of your tracked week, written by the model from your own figures: recap [--lang L]</source>
      <translation>Um breve resumo da sua semana registada, escrito pelo modelo a partir dos seus próprios números: recap [--lang L]</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Iniciar, parar ou mostrar o servidor local: server start|stop|status</translation>
    </message>
    <message id="cli.command.sessions">
      <source>Coding-agent sessions found in the local logs: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</source>
      <translation>Sessões do agente de código encontradas nos logs locais: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</translation>
    </message>
    <message id="cli.command.standup">
      <source>A stand-up draft from your last workday, today and your open tasks: standup [--lang L]</source>
      <translation>Um rascunho de stand-up a partir do seu último dia de trabalho, de hoje e das suas tarefas em aberto: standup [--lang L]</translation>
    </message>
    <message id="cli.command.tasks">
      <source>List, add, edit, move or delete tasks: tasks list|add|edit|move|status|rm</source>
      <translation>Listar, adicionar, editar, mover ou excluir tarefas: tasks list|add|edit|move|status|rm</translation>
    </message>
    <message id="cli.command.teams">
      <source>Teams and their members: teams list|create|invite|invitations|accept|decline|assign</source>
      <translation>Equipes e seus membros: teams list|create|invite|invitations|accept|decline|assign</translation>
    </message>
    <message id="cli.command.timer">
      <source>Start, stop or show the timer: timer start|stop|toggle|status</source>
      <translation>Iniciar, parar ou mostrar o cronômetro: timer start|stop|toggle|status</translation>
    </message>
    <message id="cli.command.travel">
      <source>Your rate per kilometre and how you usually travel: travel show|set</source>
      <translation>A sua tarifa por quilómetro e como costuma viajar: travel show|set</translation>
    </message>
    <message id="cli.command.trips">
      <source>Trips and their kilometres: trips list|add|edit|rm|route|export</source>
      <translation>Viagens e os seus quilómetros: trips list|add|edit|rm|route|export</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Comandos:</translation>
    </message>
    <message id="cli.company.accent">
      <source>Accent colour</source>
      <translation>Cor de destaque</translation>
    </message>
    <message id="cli.company.address">
      <source>Address</source>
      <translation>Morada</translation>
    </message>
    <message id="cli.company.argument.action">
      <source>show or set</source>
      <translation>show ou set</translation>
    </message>
    <message id="cli.company.bank">
      <source>Bank</source>
      <translation>Banco</translation>
    </message>
    <message id="cli.company.cocNumber">
      <source>Chamber of commerce number</source>
      <translation>Número de registo comercial</translation>
    </message>
    <message id="cli.company.company">
      <source>Company</source>
      <translation>Empresa</translation>
    </message>
    <message id="cli.company.days">
      <source>%1 days</source>
      <translation>%1 dias</translation>
    </message>
    <message id="cli.company.design">
      <source>Design</source>
      <translation>Design</translation>
    </message>
    <message id="cli.company.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="cli.company.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>O prazo de pagamento é um número inteiro de dias entre 0 e 365.</translation>
    </message>
    <message id="cli.company.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>A taxa de IVA é uma percentagem entre 0 e 100.</translation>
    </message>
    <message id="cli.company.fileProblem">
      <source>%1: %2</source>
      <translation>%1: %2</translation>
    </message>
    <message id="cli.company.fontBody">
      <source>Body font</source>
      <translation>Tipo de letra do texto</translation>
    </message>
    <message id="cli.company.fontDisplay">
      <source>Display font</source>
      <translation>Tipo de letra dos títulos</translation>
    </message>
    <message id="cli.company.footer">
      <source>Footer</source>
      <translation>Rodapé</translation>
    </message>
    <message id="cli.company.iban">
      <source>Bank account (IBAN)</source>
      <translation>Conta bancária (IBAN)</translation>
    </message>
    <message id="cli.company.ink">
      <source>Ink colour</source>
      <translation>Cor do texto</translation>
    </message>
    <message id="cli.company.logo">
      <source>Logo</source>
      <translation>Logótipo</translation>
    </message>
    <message id="cli.company.logoSize">
      <source>%1 × %2 px</source>
      <translation>%1 × %2 px</translation>
    </message>
    <message id="cli.company.logoUnreadable">
      <source>set, but not readable</source>
      <translation>definido, mas ilegível</translation>
    </message>
    <message id="cli.company.none">
      <source>No sender details yet. Set them with: morvane company set --company NAME --address TEXT ...</source>
      <translation>Ainda não há dados de remetente. Defina-os com: morvane company set --company NOME --address TEXTO ...</translation>
    </message>
    <message id="cli.company.option.design">
      <source>The design new invoices are drawn in.</source>
      <translation>O design das novas faturas.</translation>
    </message>
    <message id="cli.company.option.field">
      <source>Sets: %1. An empty value clears it.</source>
      <translation>Define: %1. Um valor vazio apaga-o.</translation>
    </message>
    <message id="cli.company.option.help">
      <source>Show this help.</source>
      <translation>Mostrar esta ajuda.</translation>
    </message>
    <message id="cli.company.option.logo">
      <source>A PNG or JPEG of at most 1 MB; an empty value removes the logo.</source>
      <translation>Um PNG ou JPEG de 1 MB no máximo; um valor vazio remove o logótipo.</translation>
    </message>
    <message id="cli.company.option.paymentDays">
      <source>Days the client has to pay.</source>
      <translation>Dias que o cliente tem para pagar.</translation>
    </message>
    <message id="cli.company.option.template">
      <source>Your own HTML template; new invoices use it unless --design says otherwise.</source>
      <translation>O seu próprio modelo HTML; as novas faturas usam-no, salvo indicação diferente de --design.</translation>
    </message>
    <message id="cli.company.option.vatRate">
      <source>VAT percentage of lines whose price has none.</source>
      <translation>Taxa de IVA das linhas que não têm uma.</translation>
    </message>
    <message id="cli.company.paymentDays">
      <source>Payment terms</source>
      <translation>Prazo de pagamento</translation>
    </message>
    <message id="cli.company.phone">
      <source>Phone</source>
      <translation>Telefone</translation>
    </message>
    <message id="cli.company.saved">
      <source>Sender details and invoice style saved.</source>
      <translation>Dados de remetente e estilo das faturas guardados.</translation>
    </message>
    <message id="cli.company.template">
      <source>Custom template</source>
      <translation>Modelo próprio</translation>
    </message>
    <message id="cli.company.templateFallsBack">
      <source>not used, invoices fall back to %1: %2</source>
      <translation>não usado, as faturas voltam a %1: %2</translation>
    </message>
    <message id="cli.company.templateStatus">
      <source>Custom template: %1</source>
      <translation>Modelo próprio: %1</translation>
    </message>
    <message id="cli.company.templateUsed">
      <source>used</source>
      <translation>em uso</translation>
    </message>
    <message id="cli.company.unknownDesign">
      <source>Unknown design: %1. The designs are: %2 (aiCustom is your own template).</source>
      <translation>Design desconhecido: %1. Os designs são: %2 (aiCustom é o seu próprio modelo).</translation>
    </message>
    <message id="cli.company.usage">
      <source>Usage: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</source>
      <translation>Uso: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</translation>
    </message>
    <message id="cli.company.vatNumber">
      <source>VAT number</source>
      <translation>NIF</translation>
    </message>
    <message id="cli.company.vatRate">
      <source>Default VAT rate</source>
      <translation>Taxa de IVA predefinida</translation>
    </message>
    <message id="cli.company.website">
      <source>Website</source>
      <translation>Site</translation>
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
    <message id="cli.earnings.backwards">
      <source>The period ends before it begins.</source>
      <translation>O período termina antes de começar.</translation>
    </message>
    <message id="cli.earnings.badBy">
      <source>--by takes week, month or project, not "%1".</source>
      <translation>--by aceita week, month ou project, não «%1».</translation>
    </message>
    <message id="cli.earnings.badDay">
      <source>"%1" is not a day; write it as yyyy-MM-dd, for example 2026-01-31.</source>
      <translation>«%1» não é um dia; escreva-o como aaaa-MM-dd, por exemplo 2026-01-31.</translation>
    </message>
    <message id="cli.earnings.column.billed">
      <source>Billed</source>
      <translation>Faturado</translation>
    </message>
    <message id="cli.earnings.column.earned">
      <source>Earned</source>
      <translation>Ganho</translation>
    </message>
    <message id="cli.earnings.column.hours">
      <source>Hours</source>
      <translation>Horas</translation>
    </message>
    <message id="cli.earnings.column.period">
      <source>Period</source>
      <translation>Período</translation>
    </message>
    <message id="cli.earnings.column.project">
      <source>Project</source>
      <translation>Projeto</translation>
    </message>
    <message id="cli.earnings.column.rate">
      <source>Per hour</source>
      <translation>Por hora</translation>
    </message>
    <message id="cli.earnings.column.unbilled">
      <source>Unbilled</source>
      <translation>Por faturar</translation>
    </message>
    <message id="cli.earnings.halfPeriod">
      <source>Give both --from and --to, or neither for the current month.</source>
      <translation>Indique --from e --to em conjunto, ou nenhum para o mês atual.</translation>
    </message>
    <message id="cli.earnings.heading">
      <source>Earnings from %1 to %2</source>
      <translation>Rendimentos de %1 a %2</translation>
    </message>
    <message id="cli.earnings.noProject">
      <source>No project</source>
      <translation>Sem projeto</translation>
    </message>
    <message id="cli.earnings.none">
      <source>No time tracked in this period.</source>
      <translation>Não há tempo registado neste período.</translation>
    </message>
    <message id="cli.earnings.option.by">
      <source>Rows by week, month (the default) or project.</source>
      <translation>Linhas por semana, mês (predefinição) ou projeto.</translation>
    </message>
    <message id="cli.earnings.option.from">
      <source>First day of the period (yyyy-MM-dd); with --to. Without both, the current month.</source>
      <translation>Primeiro dia do período (aaaa-MM-dd); com --to. Sem ambos: o mês atual.</translation>
    </message>
    <message id="cli.earnings.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Último dia do período (aaaa-MM-dd), incluído.</translation>
    </message>
    <message id="cli.earnings.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="cli.earnings.usage">
      <source>Usage: morvane earnings [--from DAY --to DAY] [--by week|month|project] [--json]</source>
      <translation>Utilização: morvane earnings [--from DIA --to DIA] [--by week|month|project] [--json]</translation>
    </message>
    <message id="cli.entries.badRange">
      <source>An entry must end after it starts.</source>
      <translation>Um registro deve terminar depois de começar.</translation>
    </message>
    <message id="cli.entries.deleted">
      <source>Deleted the entry of %1.</source>
      <translation>O registro de %1 foi excluído.</translation>
    </message>
    <message id="cli.entries.noMatch">
      <source>No single time entry matches "%1". List them with: morvane entries --task &lt;task&gt;</source>
      <translation>Nenhum registro único corresponde a "%1". Liste-os com: morvane entries --task &lt;task&gt;</translation>
    </message>
    <message id="cli.entries.none">
      <source>No time entries.</source>
      <translation>Nenhum registro de tempo.</translation>
    </message>
    <message id="cli.entries.option.end">
      <source>The new end (ISO 8601, local time without an offset).</source>
      <translation>O novo fim (ISO 8601, hora local sem deslocamento).</translation>
    </message>
    <message id="cli.entries.option.minutes">
      <source>The new length in minutes.</source>
      <translation>A nova duração em minutos.</translation>
    </message>
    <message id="cli.entries.option.start">
      <source>The new start (ISO 8601, local time without an offset).</source>
      <translation>O novo início (ISO 8601, hora local sem deslocamento).</translation>
    </message>
    <message id="cli.entries.option.task">
      <source>Only the entries of this task, older ones included.</source>
      <translation>Apenas os registros desta tarefa, incluindo os antigos.</translation>
    </message>
    <message id="cli.entries.total">
      <source>In all: %1</source>
      <translation>No total: %1</translation>
    </message>
    <message id="cli.entries.usage">
      <source>Usage: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</source>
      <translation>Uso: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</translation>
    </message>
    <message id="cli.err.noSignInWaiting">
      <source>No sign-in is waiting for this address. Start the sign-in in Morvane again.</source>
      <translation>Nenhum login está aguardando este endereço. Inicie o login no Morvane novamente.</translation>
    </message>
    <message id="cli.err.notSignedIn">
      <source>Not signed in. Sign in with: morvane auth signin &lt;e-mail&gt;</source>
      <translation>Sessão não iniciada. Entre com: morvane auth signin &lt;e-mail&gt;</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Comando desconhecido: %1. Execute morvane --help para ver a lista de comandos.</translation>
    </message>
    <message id="cli.export.argument.kind">
      <source>What to export: entries or invoices.</source>
      <translation>O que exportar: entries (registos de tempo) ou invoices (faturas).</translation>
    </message>
    <message id="cli.export.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Primeiro dia do período (aaaa-MM-dd).</translation>
    </message>
    <message id="cli.export.option.help">
      <source>Show this help.</source>
      <translation>Mostrar esta ajuda.</translation>
    </message>
    <message id="cli.export.option.out">
      <source>The CSV file to write; without it the CSV goes to standard output.</source>
      <translation>O ficheiro CSV a escrever; sem ele, o CSV vai para a saída padrão.</translation>
    </message>
    <message id="cli.export.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Último dia do período (aaaa-MM-dd), incluído.</translation>
    </message>
    <message id="cli.export.usage">
      <source>Usage: morvane export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Utilização: morvane export entries|invoices --from DIA --to DIA [--out FICHEIRO]</translation>
    </message>
    <message id="cli.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Não foi possível escrever %1: %2</translation>
    </message>
    <message id="cli.export.written">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 guardado (linhas: %2).</translation>
    </message>
    <message id="cli.invoice.ambiguous">
      <source>Several invoices match %1; give more of the id or the number.</source>
      <translation>Várias faturas correspondem a %1; informe mais do id ou o número.</translation>
    </message>
    <message id="cli.invoice.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Fatura %1 excluída; as horas voltam a não estar faturadas.</translation>
    </message>
    <message id="cli.invoice.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>Não foi possível baixar o PDF: %1</translation>
    </message>
    <message id="cli.invoice.draftEmpty">
      <source>No unbilled time of %1 in this period.</source>
      <translation>Não há horas não faturadas de %1 neste período.</translation>
    </message>
    <message id="cli.invoice.due">
      <source>, due %1</source>
      <translation>, vence em %1</translation>
    </message>
    <message id="cli.invoice.header">
      <source>Invoice %1 (%2), issued %3</source>
      <translation>Fatura %1 (%2), emitida em %3</translation>
    </message>
    <message id="cli.invoice.none">
      <source>No invoices yet.</source>
      <translation>Ainda não há faturas.</translation>
    </message>
    <message id="cli.invoice.notFound">
      <source>No invoice matches %1.</source>
      <translation>Nenhuma fatura corresponde a %1.</translation>
    </message>
    <message id="cli.invoice.option.client">
      <source>Bill-to name on the new invoice.</source>
      <translation>Nome do destinatário na nova fatura.</translation>
    </message>
    <message id="cli.invoice.option.design">
      <source>The design of the new invoice, instead of the one in your invoice style.</source>
      <translation>O design da nova fatura, em vez do definido no seu estilo.</translation>
    </message>
    <message id="cli.invoice.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Primeiro dia do período (aaaa-MM-dd).</translation>
    </message>
    <message id="cli.invoice.option.out">
      <source>The file to write the PDF to.</source>
      <translation>O arquivo onde gravar o PDF.</translation>
    </message>
    <message id="cli.invoice.option.status">
      <source>Status of the new invoice: draft or sent.</source>
      <translation>Status da nova fatura: draft ou sent.</translation>
    </message>
    <message id="cli.invoice.option.to">
      <source>Last day of the period (yyyy-MM-dd).</source>
      <translation>Último dia do período (aaaa-MM-dd).</translation>
    </message>
    <message id="cli.invoice.option.vat">
      <source>VAT percentage for lines whose price has none.</source>
      <translation>Percentual de IVA para as linhas cujo preço não tem.</translation>
    </message>
    <message id="cli.invoice.pdfReplaced">
      <source>The PDF of invoice %1 was made again.</source>
      <translation>O PDF da fatura %1 foi gerado novamente.</translation>
    </message>
    <message id="cli.invoice.pdfSaved">
      <source>Saved the PDF of invoice %1 to %2.</source>
      <translation>O PDF da fatura %1 foi salvo em %2.</translation>
    </message>
    <message id="cli.invoice.status.draft">
      <source>draft</source>
      <translation>rascunho</translation>
    </message>
    <message id="cli.invoice.status.paid">
      <source>paid</source>
      <translation>paga</translation>
    </message>
    <message id="cli.invoice.status.sent">
      <source>sent</source>
      <translation>enviada</translation>
    </message>
    <message id="cli.invoice.status.void">
      <source>void</source>
      <translation>anulada</translation>
    </message>
    <message id="cli.invoice.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>A fatura %1 agora está %2.</translation>
    </message>
    <message id="cli.invoice.subtotal">
      <source>Subtotal</source>
      <translation>Subtotal</translation>
    </message>
    <message id="cli.invoice.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="cli.invoice.usage">
      <source>Usage: morvane invoice draft|create &lt;project&gt; [--from DAY] [--to DAY] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;invoice&gt; | status &lt;invoice&gt; draft|sent|paid|void | void &lt;invoice&gt; | rm &lt;invoice&gt; | pdf &lt;invoice&gt; --out FILE | replace-pdf &lt;invoice&gt; [--json]</source>
      <translation>Uso: morvane invoice draft|create &lt;projeto&gt; [--from DIA] [--to DIA] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;fatura&gt; | status &lt;fatura&gt; draft|sent|paid|void | void &lt;fatura&gt; | rm &lt;fatura&gt; | pdf &lt;fatura&gt; --out ARQUIVO | replace-pdf &lt;fatura&gt; [--json]</translation>
    </message>
    <message id="cli.invoice.vat">
      <source>VAT</source>
      <translation>IVA</translation>
    </message>
    <message id="cli.invoice.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>A fatura %1 está anulada; as horas voltam a não estar faturadas.</translation>
    </message>
    <message id="cli.invoice.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Não foi possível gravar %1: %2</translation>
    </message>
    <message id="cli.log.logged">
      <source>Logged %1 on %2, %3 in all.</source>
      <translation>%1 registrado em %2, %3 no total.</translation>
    </message>
    <message id="cli.log.usage">
      <source>Usage: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</source>
      <translation>Uso: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>Mostrar esta ajuda.</translation>
    </message>
    <message id="cli.option.json">
      <source>Print the answer as JSON.</source>
      <translation>Mostrar a resposta em JSON.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Mostrar a versão.</translation>
    </message>
    <message id="cli.price.invalid">
      <source>Not a valid amount, or a required one is missing: %1</source>
      <translation>Valor inválido, ou falta um obrigatório: %1</translation>
    </message>
    <message id="cli.price.option.amount">
      <source>A number as you write it (1250, 1.250,50, 12.5); empty clears it.</source>
      <translation>Um número como você o escreve (1250, 1.250,50, 12.5); vazio o apaga.</translation>
    </message>
    <message id="cli.price.option.discountAmount">
      <source>The discount is an amount.</source>
      <translation>O desconto é um valor.</translation>
    </message>
    <message id="cli.price.option.discountPct">
      <source>The discount is a percentage.</source>
      <translation>O desconto é uma porcentagem.</translation>
    </message>
    <message id="cli.price.option.inherit">
      <source>The task bills at its project's price again.</source>
      <translation>A tarefa volta a ser cobrada pelo preço do projeto.</translation>
    </message>
    <message id="cli.price.option.model">
      <source>The billing model: hourly, fixed, per_unit or daily.</source>
      <translation>O modelo de cobrança: hourly, fixed, per_unit ou daily.</translation>
    </message>
    <message id="cli.price.option.surchargeLabel">
      <source>Label of the surcharge.</source>
      <translation>Rótulo da sobretaxa.</translation>
    </message>
    <message id="cli.price.option.task">
      <source>The task whose own price to show or set, instead of a project's.</source>
      <translation>A tarefa cujo preço próprio mostrar ou definir, em vez do de um projeto.</translation>
    </message>
    <message id="cli.price.option.travel">
      <source>How the project charges its trips: per_km, per_trip or none.</source>
      <translation>Como o projeto cobra as viagens: per_km, per_trip ou none.</translation>
    </message>
    <message id="cli.price.option.travelRate">
      <source>The travel rate per kilometre or per trip; without it, per kilometre bills at your own rate.</source>
      <translation>A tarifa por quilómetro ou por viagem; sem ela, por quilómetro cobra-se a sua própria tarifa.</translation>
    </message>
    <message id="cli.price.option.unitLabel">
      <source>Name of the unit of a per-unit price.</source>
      <translation>Nome da unidade de um preço por unidade.</translation>
    </message>
    <message id="cli.price.unchanged">
      <source>Nothing changed.</source>
      <translation>Nada mudou.</translation>
    </message>
    <message id="cli.price.usage">
      <source>Usage: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</source>
      <translation>Uso: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</translation>
    </message>
    <message id="cli.price.worth">
      <source>Tracked %1, worth %2.</source>
      <translation>Registrado %1, valor %2.</translation>
    </message>
    <message id="cli.projects.active">
      <source>active</source>
      <translation>ativo</translation>
    </message>
    <message id="cli.projects.added">
      <source>Added project %1 (%2).</source>
      <translation>Projeto %1 (%2) adicionado.</translation>
    </message>
    <message id="cli.projects.archived">
      <source>archived</source>
      <translation>arquivado</translation>
    </message>
    <message id="cli.projects.archivedIdle">
      <source>Idle projects archived: %1.</source>
      <translation>Projetos inativos arquivados: %1.</translation>
    </message>
    <message id="cli.projects.archivedOne">
      <source>Archived %1.</source>
      <translation>%1 arquivado.</translation>
    </message>
    <message id="cli.projects.completed">
      <source>completed</source>
      <translation>concluído</translation>
    </message>
    <message id="cli.projects.deleted">
      <source>Deleted %1 and its tasks.</source>
      <translation>%1 e suas tarefas excluídos.</translation>
    </message>
    <message id="cli.projects.none">
      <source>No projects yet. Add one with: morvane projects add &lt;name&gt;</source>
      <translation>Ainda não há projetos. Adicione um com: morvane projects add &lt;name&gt;</translation>
    </message>
    <message id="cli.projects.option.description">
      <source>A description of the project.</source>
      <translation>Uma descrição do projeto.</translation>
    </message>
    <message id="cli.projects.option.idle">
      <source>Archive every project of yours without work for this many days.</source>
      <translation>Arquiva todos os seus projetos sem trabalho há esse número de dias.</translation>
    </message>
    <message id="cli.projects.option.team">
      <source>The team the new project belongs to.</source>
      <translation>A equipe à qual o novo projeto pertence.</translation>
    </message>
    <message id="cli.projects.renamed">
      <source>Renamed %1 to %2.</source>
      <translation>%1 renomeado para %2.</translation>
    </message>
    <message id="cli.projects.taskCount">
      <source>tasks: %1</source>
      <translation>tarefas: %1</translation>
    </message>
    <message id="cli.projects.team">
      <source>team %1</source>
      <translation>equipe %1</translation>
    </message>
    <message id="cli.projects.usage">
      <source>Usage: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</source>
      <translation>Uso: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</translation>
    </message>
    <message id="cli.recap.usage">
      <source>Usage: morvane recap [--lang L] [--yes] [--json]</source>
      <translation>Utilização: morvane recap [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.ref.ambiguous">
      <source>"%1" matches several: %2. Use the id.</source>
      <translation>"%1" corresponde a vários: %2. Use o id.</translation>
    </message>
    <message id="cli.ref.noInvitation">
      <source>No invitation to a team matches "%1". See them with: morvane teams invitations</source>
      <translation>Nenhum convite para uma equipe corresponde a "%1". Veja-os com: morvane teams invitations</translation>
    </message>
    <message id="cli.ref.noProject">
      <source>No project matches "%1".</source>
      <translation>Nenhum projeto corresponde a "%1".</translation>
    </message>
    <message id="cli.ref.noTask">
      <source>No task matches "%1".</source>
      <translation>Nenhuma tarefa corresponde a "%1".</translation>
    </message>
    <message id="cli.ref.noTeam">
      <source>No team matches "%1".</source>
      <translation>Nenhuma equipe corresponde a "%1".</translation>
    </message>
    <message id="cli.renderInvoice.design">
      <source>With --render-invoice: the design (%1).</source>
      <translation>Com --render-invoice: o modelo (%1).</translation>
    </message>
    <message id="cli.renderInvoice.draft">
      <source>With --render-invoice: an invoice as JSON instead of the sample.</source>
      <translation>Com --render-invoice: uma fatura em JSON em vez do exemplo.</translation>
    </message>
    <message id="cli.renderInvoice.err.both">
      <source>--lines is for the sample invoice; a draft brings its own lines.</source>
      <translation>--lines é para a fatura de exemplo; um rascunho traz as suas próprias linhas.</translation>
    </message>
    <message id="cli.renderInvoice.err.design">
      <source>Unknown design: %1. Choose one of: %2.</source>
      <translation>Modelo desconhecido: %1. Escolha um de: %2.</translation>
    </message>
    <message id="cli.renderInvoice.err.draft">
      <source>Cannot read the draft %1: %2</source>
      <translation>Não é possível ler o rascunho %1: %2</translation>
    </message>
    <message id="cli.renderInvoice.err.failed">
      <source>Rendering the invoice failed: %1</source>
      <translation>A geração da fatura falhou: %1</translation>
    </message>
    <message id="cli.renderInvoice.err.lines">
      <source>--lines takes a whole number from 0 to %1.</source>
      <translation>--lines aceita um número inteiro de 0 a %1.</translation>
    </message>
    <message id="cli.renderInvoice.err.noGui">
      <source>Rendering an invoice needs the graphical libraries; run it as: morvane --render-invoice</source>
      <translation>Gerar uma fatura exige as bibliotecas gráficas; execute assim: morvane --render-invoice</translation>
    </message>
    <message id="cli.renderInvoice.err.write">
      <source>Cannot write %1: %2</source>
      <translation>Não é possível gravar %1: %2</translation>
    </message>
    <message id="cli.renderInvoice.lines">
      <source>With --render-invoice: the number of lines of the sample invoice.</source>
      <translation>Com --render-invoice: o número de linhas da fatura de exemplo.</translation>
    </message>
    <message id="cli.renderInvoice.option">
      <source>Render an invoice to PDF through the application's own path and report its size.</source>
      <translation>Gerar o PDF de uma fatura pelo caminho da própria aplicação e indicar o tamanho.</translation>
    </message>
    <message id="cli.renderInvoice.out">
      <source>With --render-invoice: where to write the PDF.</source>
      <translation>Com --render-invoice: onde gravar o PDF.</translation>
    </message>
    <message id="cli.renderInvoice.png">
      <source>With --render-invoice: a folder for pictures of the pages as PNG.</source>
      <translation>Com --render-invoice: uma pasta para imagens PNG das páginas.</translation>
    </message>
    <message id="cli.server.action">
      <source>start, stop or status</source>
      <translation>start, stop ou status</translation>
    </message>
    <message id="cli.server.dataDir">
      <source>Data folder: %1</source>
      <translation>Pasta de dados: %1</translation>
    </message>
    <message id="cli.server.notInUse">
      <source>Morvane uses %1 (%2), not the local backend.</source>
      <translation>O Morvane usa %1 (%2), não o servidor local.</translation>
    </message>
    <message id="cli.server.running">
      <source>The local backend is running at %1 (process %2).</source>
      <translation>O servidor local está em execução em %1 (processo %2).</translation>
    </message>
    <message id="cli.server.started">
      <source>Started the local backend at %1 (process %2).</source>
      <translation>Servidor local iniciado em %1 (processo %2).</translation>
    </message>
    <message id="cli.server.starting">
      <source>The local backend (process %1) is starting and does not answer yet.</source>
      <translation>O servidor local (processo %1) está iniciando e ainda não responde.</translation>
    </message>
    <message id="cli.server.stopped">
      <source>The local backend is not running.</source>
      <translation>O servidor local não está em execução.</translation>
    </message>
    <message id="cli.server.stoppedNow">
      <source>Stopped the local backend (process %1).</source>
      <translation>Servidor local parado (processo %1).</translation>
    </message>
    <message id="cli.server.usage">
      <source>Usage: morvane server start|stop|status [--json]</source>
      <translation>Uso: morvane server start|stop|status [--json]</translation>
    </message>
    <message id="cli.sessions.burst">
      <source>%1. %2 to %3 · active %4 · prompts: %5 · %6</source>
      <translation>%1. %2 a %3 · ativo %4 · prompts: %5 · %6</translation>
    </message>
    <message id="cli.sessions.err.days">
      <source>--days takes a whole number of days from 1 to 36500.</source>
      <translation>--days espera um número inteiro de dias de 1 a 36500.</translation>
    </message>
    <message id="cli.sessions.err.unknownSession">
      <source>No session %1 among the logs of the last 60 days.</source>
      <translation>Nenhuma sessão %1 nos logs dos últimos 60 dias.</translation>
    </message>
    <message id="cli.sessions.group">
      <source>%1 · sessions: %2 · active %3</source>
      <translation>%1 · sessões: %2 · ativo %3</translation>
    </message>
    <message id="cli.sessions.ignored">
      <source>Ignored %1: %2 sessions there will not be logged.</source>
      <translation>%1 ignorado: %2 sessões ali não serão registradas.</translation>
    </message>
    <message id="cli.sessions.mapped">
      <source>%1 is mapped to project %2.</source>
      <translation>%1 está associado ao projeto %2.</translation>
    </message>
    <message id="cli.sessions.none">
      <source>No Claude sessions parsed yet</source>
      <translation>Nenhuma sessão do Claude lida ainda</translation>
    </message>
    <message id="cli.sessions.option.all">
      <source>Every session (with reimport).</source>
      <translation>Todas as sessões (com reimport).</translation>
    </message>
    <message id="cli.sessions.option.days">
      <source>Sessions whose log changed in the last N days (30 when not given).</source>
      <translation>Sessões cujo log mudou nos últimos N dias (30 quando não indicado).</translation>
    </message>
    <message id="cli.sessions.pending">
      <source>Not mapped to a project: %1 · sessions: %2 · active %3</source>
      <translation>Sem projeto associado: %1 · sessões: %2 · ativo %3</translation>
    </message>
    <message id="cli.sessions.reimportAll">
      <source>Every session will be logged again by the next scan.</source>
      <translation>Todas as sessões serão registradas novamente na próxima varredura.</translation>
    </message>
    <message id="cli.sessions.reimportLogged">
      <source>Session %1 logged again: %2 of %3 work bursts.</source>
      <translation>Sessão %1 registrada novamente: %2 de %3 blocos de trabalho.</translation>
    </message>
    <message id="cli.sessions.reimportOne">
      <source>Session %1 will be logged again by the next scan.</source>
      <translation>A sessão %1 será registrada novamente na próxima varredura.</translation>
    </message>
    <message id="cli.sessions.scanned">
      <source>Sessions seen: %1 · work bursts logged: %2 · time logged: %3 (%4 minutes) · failed: %5</source>
      <translation>Sessões vistas: %1 · blocos de trabalho registrados: %2 · tempo registrado: %3 (%4 minutos) · com falha: %5</translation>
    </message>
    <message id="cli.sessions.session">
      <source>%1 · %2 to %3 · active %4 · prompts: %5</source>
      <translation>%1 · %2 a %3 · ativo %4 · prompts: %5</translation>
    </message>
    <message id="cli.sessions.trackOff">
      <source>Claude sessions are no longer tracked.</source>
      <translation>As sessões do Claude não são mais acompanhadas.</translation>
    </message>
    <message id="cli.sessions.trackOn">
      <source>Claude sessions are tracked: every minute the new work bursts of mapped folders are logged.</source>
      <translation>As sessões do Claude são acompanhadas: a cada minuto os novos blocos de trabalho das pastas associadas são registrados.</translation>
    </message>
    <message id="cli.sessions.usage">
      <source>Usage: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</source>
      <translation>Uso: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</translation>
    </message>
    <message id="cli.sessions.where">
      <source>Looked for logs changed in the last %1 days in %2.</source>
      <translation>Procurados logs alterados nos últimos %1 dias em %2.</translation>
    </message>
    <message id="cli.standup.usage">
      <source>Usage: morvane standup [--lang L] [--yes] [--json]</source>
      <translation>Utilização: morvane standup [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.summary.fixed">
      <source>Written from your figures alone; the model's text was not used (%1).</source>
      <translation>Escrito apenas a partir dos seus números; o texto do modelo não foi usado (%1).</translation>
    </message>
    <message id="cli.summary.option.lang">
      <source>Language of the text: en, nl, de, fr, es, it, pt, ja or th; others mean English. Default: the interface language.</source>
      <translation>Idioma do texto: en, nl, de, fr, es, it, pt, ja ou th; qualquer outro significa inglês. Por omissão: o idioma da interface.</translation>
    </message>
    <message id="cli.tasks.added">
      <source>Added task %1 (%2) to %3.</source>
      <translation>Tarefa %1 (%2) adicionada a %3.</translation>
    </message>
    <message id="cli.tasks.badDue">
      <source>Not a day: %1. Write it as YYYY-MM-DD.</source>
      <translation>Não é um dia: %1. Escreva como YYYY-MM-DD.</translation>
    </message>
    <message id="cli.tasks.badOrder">
      <source>Unknown filter or sort. Filters: %1. Sorts: %2.</source>
      <translation>Filtro ou ordenação desconhecidos. Filtros: %1. Ordenações: %2.</translation>
    </message>
    <message id="cli.tasks.badStatus">
      <source>Unknown status %1. Statuses: %2.</source>
      <translation>Status desconhecido %1. Status: %2.</translation>
    </message>
    <message id="cli.tasks.deleted">
      <source>Deleted %1.</source>
      <translation>%1 excluída.</translation>
    </message>
    <message id="cli.tasks.due">
      <source>due %1</source>
      <translation>prazo %1</translation>
    </message>
    <message id="cli.tasks.high">
      <source>high</source>
      <translation>alta</translation>
    </message>
    <message id="cli.tasks.low">
      <source>low</source>
      <translation>baixa</translation>
    </message>
    <message id="cli.tasks.medium">
      <source>medium</source>
      <translation>média</translation>
    </message>
    <message id="cli.tasks.moved">
      <source>Moved %1 to %2.</source>
      <translation>%1 movida para %2.</translation>
    </message>
    <message id="cli.tasks.none">
      <source>  No tasks to show.</source>
      <translation>  Nenhuma tarefa para mostrar.</translation>
    </message>
    <message id="cli.tasks.option.description">
      <source>The task's description; empty clears it.</source>
      <translation>A descrição da tarefa; vazia a apaga.</translation>
    </message>
    <message id="cli.tasks.option.due">
      <source>The day the task is due (YYYY-MM-DD); empty clears it.</source>
      <translation>O dia do prazo da tarefa (YYYY-MM-DD); vazio o apaga.</translation>
    </message>
    <message id="cli.tasks.option.filter">
      <source>Which tasks to list: %1.</source>
      <translation>Quais tarefas listar: %1.</translation>
    </message>
    <message id="cli.tasks.option.sort">
      <source>How to order the list: %1.</source>
      <translation>Como ordenar a lista: %1.</translation>
    </message>
    <message id="cli.tasks.option.title">
      <source>The task's new title.</source>
      <translation>O novo título da tarefa.</translation>
    </message>
    <message id="cli.tasks.running">
      <source>timer running</source>
      <translation>cronômetro em andamento</translation>
    </message>
    <message id="cli.tasks.saved">
      <source>Saved %1.</source>
      <translation>%1 salva.</translation>
    </message>
    <message id="cli.tasks.statusSet">
      <source>%1 is now %2.</source>
      <translation>%1 agora está %2.</translation>
    </message>
    <message id="cli.tasks.usage">
      <source>Usage: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</source>
      <translation>Uso: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</translation>
    </message>
    <message id="cli.teams.accepted">
      <source>You are now in team %1, as %2.</source>
      <translation>Agora você está na equipe %1, como %2.</translation>
    </message>
    <message id="cli.teams.answerHint">
      <source>Answer with: morvane teams accept &lt;team&gt; or morvane teams decline &lt;team&gt;</source>
      <translation>Responda com: morvane teams accept &lt;team&gt; ou morvane teams decline &lt;team&gt;</translation>
    </message>
    <message id="cli.teams.assigned">
      <source>%1 now belongs to team %2.</source>
      <translation>%1 agora pertence à equipe %2.</translation>
    </message>
    <message id="cli.teams.created">
      <source>Created team %1 (%2).</source>
      <translation>Equipe %1 (%2) criada.</translation>
    </message>
    <message id="cli.teams.declined">
      <source>You declined the invitation to %1.</source>
      <translation>Você recusou o convite para %1.</translation>
    </message>
    <message id="cli.teams.editor">
      <source>editor</source>
      <translation>editor</translation>
    </message>
    <message id="cli.teams.invitation">
      <source>%1 (%2): as %3, from %4</source>
      <translation>%1 (%2): como %3, de %4</translation>
    </message>
    <message id="cli.teams.noInvitations">
      <source>No invitations wait for your answer.</source>
      <translation>Nenhum convite aguarda sua resposta.</translation>
    </message>
    <message id="cli.teams.none">
      <source>No teams. Create one with: morvane teams create &lt;name&gt;</source>
      <translation>Nenhuma equipe. Crie uma com: morvane teams create &lt;name&gt;</translation>
    </message>
    <message id="cli.teams.option.role">
      <source>The role of the invited member: editor or viewer.</source>
      <translation>O papel do membro convidado: editor ou viewer.</translation>
    </message>
    <message id="cli.teams.owner">
      <source>owner</source>
      <translation>proprietário</translation>
    </message>
    <message id="cli.teams.pending">
      <source>invited</source>
      <translation>convidado</translation>
    </message>
    <message id="cli.teams.projects">
      <source>Projects: %1</source>
      <translation>Projetos: %1</translation>
    </message>
    <message id="cli.teams.unassigned">
      <source>%1 no longer belongs to a team.</source>
      <translation>%1 não pertence mais a uma equipe.</translation>
    </message>
    <message id="cli.teams.usage">
      <source>Usage: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</source>
      <translation>Uso: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</translation>
    </message>
    <message id="cli.teams.viewer">
      <source>viewer</source>
      <translation>visualizador</translation>
    </message>
    <message id="cli.teams.you">
      <source>you: %1</source>
      <translation>você: %1</translation>
    </message>
    <message id="cli.timer.idle">
      <source>No timer runs.</source>
      <translation>Nenhum cronômetro em andamento.</translation>
    </message>
    <message id="cli.timer.nothingToResume">
      <source>No task has time yet, so there is none to go on with. Start one with: morvane timer start &lt;task&gt;</source>
      <translation>Nenhuma tarefa tem tempo ainda, então não há nenhuma para continuar. Inicie uma com: morvane timer start &lt;task&gt;</translation>
    </message>
    <message id="cli.timer.running">
      <source>%1 (%2): %3 running, %4 in all</source>
      <translation>%1 (%2): %3 em andamento, %4 no total</translation>
    </message>
    <message id="cli.timer.started">
      <source>Timer started on %1.</source>
      <translation>Cronômetro iniciado em %1.</translation>
    </message>
    <message id="cli.timer.stopped">
      <source>Stopped %1: %2 logged, %3 in all.</source>
      <translation>%1 parado: %2 registrado, %3 no total.</translation>
    </message>
    <message id="cli.timer.usage">
      <source>Usage: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</source>
      <translation>Uso: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</translation>
    </message>
    <message id="cli.travel.option.mode">
      <source>How you usually travel: car, bike, walk, transit or other.</source>
      <translation>Como costuma viajar: car, bike, walk, transit ou other.</translation>
    </message>
    <message id="cli.travel.option.rate">
      <source>Your rate per kilometre, used where a project names none.</source>
      <translation>A sua tarifa por quilómetro, para projetos sem tarifa própria.</translation>
    </message>
    <message id="cli.travel.show">
      <source>Rate per kilometre: %1. Usually travel by: %2.</source>
      <translation>Tarifa por quilómetro: %1. Costuma viajar de: %2.</translation>
    </message>
    <message id="cli.travel.usage">
      <source>Usage: morvane travel show | set [--rate R] [--mode M] [--json]</source>
      <translation>Utilização: morvane travel show | set [--rate R] [--mode M] [--json]</translation>
    </message>
    <message id="cli.trips.added">
      <source>Added trip %1: %2 km.</source>
      <translation>Viagem %1 adicionada: %2 km.</translation>
    </message>
    <message id="cli.trips.deleted">
      <source>Deleted trip %1.</source>
      <translation>Viagem %1 eliminada.</translation>
    </message>
    <message id="cli.trips.exported">
      <source>Wrote %1 trips to %2.</source>
      <translation>%1 viagens escritas em %2.</translation>
    </message>
    <message id="cli.trips.invoiced">
      <source>invoiced</source>
      <translation>faturada</translation>
    </message>
    <message id="cli.trips.needKm">
      <source>The distance is unknown: the places were not found. Give it with --km.</source>
      <translation>A distância é desconhecida: os locais não foram encontrados. Indique-a com --km.</translation>
    </message>
    <message id="cli.trips.noMatch">
      <source>No single trip matches "%1". See them with: morvane trips list</source>
      <translation>Nenhuma viagem única corresponde a «%1». Veja-as com: morvane trips list</translation>
    </message>
    <message id="cli.trips.notCharged">
      <source>not charged</source>
      <translation>não cobrada</translation>
    </message>
    <message id="cli.trips.option.date">
      <source>The day of the trip (YYYY-MM-DD).</source>
      <translation>O dia da viagem (AAAA-MM-DD).</translation>
    </message>
    <message id="cli.trips.option.from">
      <source>Where the trip started: an address, a place or "lat,lng"; for an export, the first day.</source>
      <translation>Onde começou: uma morada, um local ou "lat,lng"; numa exportação, o primeiro dia.</translation>
    </message>
    <message id="cli.trips.option.km">
      <source>The distance in kilometres; without it the road route, else the straight-line estimate.</source>
      <translation>A distância em quilómetros; sem ela, a rota por estrada, senão a estimativa em linha reta.</translation>
    </message>
    <message id="cli.trips.option.mode">
      <source>car, bike, walk, transit or other.</source>
      <translation>car, bike, walk, transit ou other.</translation>
    </message>
    <message id="cli.trips.option.notBillable">
      <source>A business trip that is not charged to the client.</source>
      <translation>Uma viagem de trabalho não cobrada ao cliente.</translation>
    </message>
    <message id="cli.trips.option.out">
      <source>The CSV file to write.</source>
      <translation>O ficheiro CSV a escrever.</translation>
    </message>
    <message id="cli.trips.option.private">
      <source>A private trip; never charged.</source>
      <translation>Uma viagem privada; nunca cobrada.</translation>
    </message>
    <message id="cli.trips.option.project">
      <source>The project the trip served.</source>
      <translation>O projeto da viagem.</translation>
    </message>
    <message id="cli.trips.option.purpose">
      <source>What the trip was for.</source>
      <translation>Para que foi a viagem.</translation>
    </message>
    <message id="cli.trips.option.task">
      <source>The task the trip served.</source>
      <translation>A tarefa da viagem.</translation>
    </message>
    <message id="cli.trips.option.to">
      <source>Where the trip ended; for an export, the last day.</source>
      <translation>Onde terminou; numa exportação, o último dia.</translation>
    </message>
    <message id="cli.trips.placeUnknown">
      <source>No place was found for "%1".</source>
      <translation>Nenhum local encontrado para «%1».</translation>
    </message>
    <message id="cli.trips.private">
      <source>private</source>
      <translation>privada</translation>
    </message>
    <message id="cli.trips.saved">
      <source>Saved trip %1.</source>
      <translation>Viagem %1 guardada.</translation>
    </message>
    <message id="cli.trips.usage">
      <source>Usage: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</source>
      <translation>Utilização: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</translation>
    </message>
    <message id="client.err.nameMissing">
      <source>A client needs a name.</source>
      <translation>Um cliente precisa de um nome.</translation>
    </message>
    <message id="client.err.notCreated">
      <source>The client was not saved: you may not add clients to that team.</source>
      <translation>O cliente não foi guardado: não pode adicionar clientes a essa equipa.</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>Não foi possível carregar seus clientes.</translation>
    </message>
    <message id="client.err.notSaved">
      <source>The client was not changed: you may not edit it, or it no longer exists.</source>
      <translation>O cliente não foi alterado: não o pode editar, ou já não existe.</translation>
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
    <message id="entry.err.notLogged">
      <source>The time was not logged: you may not log time on this task, or it no longer exists.</source>
      <translation>O tempo não foi registrado: você não pode registrar tempo nesta tarefa, ou ela não existe mais.</translation>
    </message>
    <message id="entry.err.notSaved">
      <source>The time entry was not saved: it is not yours or it no longer exists.</source>
      <translation>O registro de tempo não foi salvo: ele não é seu ou não existe mais.</translation>
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
    <message id="inv.doc.amount">
      <source>Amount</source>
      <translation>Valor</translation>
    </message>
    <message id="inv.doc.amountDue">
      <source>Amount due</source>
      <translation>Valor a pagar</translation>
    </message>
    <message id="inv.doc.bank">
      <source>Bank</source>
      <translation>Banco</translation>
    </message>
    <message id="inv.doc.billTo">
      <source>Bill to</source>
      <translation>Faturar a</translation>
    </message>
    <message id="inv.doc.description">
      <source>Description</source>
      <translation>Descrição</translation>
    </message>
    <message id="inv.doc.due">
      <source>Due date</source>
      <translation>Vencimento</translation>
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
      <translation>Fatura</translation>
    </message>
    <message id="inv.doc.issued">
      <source>Issue date</source>
      <translation>Data de emissão</translation>
    </message>
    <message id="inv.doc.kvk">
      <source>Company no.</source>
      <translation>Registo comercial</translation>
    </message>
    <message id="inv.doc.noVat">
      <source>No VAT on these lines</source>
      <translation>Sem IVA nestas linhas</translation>
    </message>
    <message id="inv.doc.notes">
      <source>Notes</source>
      <translation>Notas</translation>
    </message>
    <message id="inv.doc.number">
      <source>Invoice no.</source>
      <translation>Fatura n.º</translation>
    </message>
    <message id="inv.doc.payment">
      <source>Payment</source>
      <translation>Pagamento</translation>
    </message>
    <message id="inv.doc.paymentNoTerm">
      <source>Please pay by bank transfer, quoting the invoice number.</source>
      <translation>Por favor, pague por transferência indicando o número da fatura.</translation>
    </message>
    <message id="inv.doc.paymentTerms">
      <source>Please pay within %1 days, quoting the invoice number.</source>
      <translation>Por favor, pague no prazo de %1 dias indicando o número da fatura.</translation>
    </message>
    <message id="inv.doc.period">
      <source>Period</source>
      <translation>Período</translation>
    </message>
    <message id="inv.doc.project">
      <source>Project</source>
      <translation>Projeto</translation>
    </message>
    <message id="inv.doc.quantity">
      <source>Qty</source>
      <translation>Qtd.</translation>
    </message>
    <message id="inv.doc.rate">
      <source>Rate</source>
      <translation>Preço</translation>
    </message>
    <message id="inv.doc.reference">
      <source>Reference</source>
      <translation>Referência</translation>
    </message>
    <message id="inv.doc.subtotal">
      <source>Subtotal</source>
      <translation>Subtotal</translation>
    </message>
    <message id="inv.doc.thanks">
      <source>Thank you for your business.</source>
      <translation>Obrigado pela confiança.</translation>
    </message>
    <message id="inv.doc.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="inv.doc.vatId">
      <source>VAT no.</source>
      <translation>NIF</translation>
    </message>
    <message id="inv.doc.vatRow">
      <source>VAT %1%</source>
      <translation>IVA %1%</translation>
    </message>
    <message id="inv.doc.vatRowOver">
      <source>VAT %1% on %2</source>
      <translation>IVA %1% sobre %2</translation>
    </message>
    <message id="inv.err.allocateNumber">
      <source>Allocate invoice number failed: %1</source>
      <translation>Falha ao atribuir o número da fatura: %1</translation>
    </message>
    <message id="inv.err.alreadyBilled">
      <source>Some of these hours are already on another invoice. The list was refreshed: check it and try again.</source>
      <translation>Algumas dessas horas já estão em outra fatura. A lista foi atualizada: confira e tente novamente.</translation>
    </message>
    <message id="inv.err.delete">
      <source>Delete invoice failed: %1</source>
      <translation>Falha ao excluir a fatura: %1</translation>
    </message>
    <message id="inv.err.loadInvoices">
      <source>Load invoices failed: %1</source>
      <translation>Falha ao carregar as faturas: %1</translation>
    </message>
    <message id="inv.err.loadLines">
      <source>Load invoice lines failed: %1</source>
      <translation>Falha ao carregar as linhas da fatura: %1</translation>
    </message>
    <message id="inv.err.notReady">
      <source>Still reading what was billed before.</source>
      <translation>Ainda lendo o que já foi faturado.</translation>
    </message>
    <message id="inv.err.pdfLink">
      <source>The invoice PDF could not be opened: %1</source>
      <translation>Não foi possível abrir o PDF da fatura: %1</translation>
    </message>
    <message id="inv.err.pdfReplace">
      <source>The invoice PDF could not be replaced: %1</source>
      <translation>Não foi possível substituir o PDF da fatura: %1</translation>
    </message>
    <message id="inv.err.priorBilling">
      <source>Could not read which work was billed before. Billing waits until this works, so no fixed price or extra is billed twice.</source>
      <translation>Não foi possível ler qual trabalho já foi faturado. O faturamento espera até que isso funcione, para que nenhum preço fixo ou extra seja cobrado duas vezes.</translation>
    </message>
    <message id="inv.err.saveFailed">
      <source>Save invoice failed: %1</source>
      <translation>Falha ao salvar a fatura: %1</translation>
    </message>
    <message id="inv.err.unbilled">
      <source>Could not read which time is still unbilled.</source>
      <translation>Não foi possível ler quais horas ainda não foram faturadas.</translation>
    </message>
    <message id="inv.err.updateStatus">
      <source>Update invoice status failed: %1</source>
      <translation>Falha ao atualizar o status da fatura: %1</translation>
    </message>
    <message id="inv.err.voidFailed">
      <source>Voiding the invoice failed: %1</source>
      <translation>Falha ao anular a fatura: %1</translation>
    </message>
    <message id="inv.err.voidUnavailable">
      <source>Voiding is not available yet because the server has not been updated. Try again later.</source>
      <translation>Anular ainda não está disponível porque o servidor não foi atualizado. Tente novamente mais tarde.</translation>
    </message>
    <message id="inv.extrasBilledBefore">
      <source>extras already billed</source>
      <translation>extras já faturados</translation>
    </message>
    <message id="inv.followUp">
      <source>FOLLOW-UP</source>
      <translation>CONTINUAÇÃO</translation>
    </message>
    <message id="inv.inProjectPrice">
      <source>included in the project price</source>
      <translation>incluído no preço do projeto</translation>
    </message>
    <message id="inv.leftOut.many">
      <source>%1 time entries already billed, left out</source>
      <translation>%1 registros de tempo já faturados, deixados de fora</translation>
    </message>
    <message id="inv.leftOut.one">
      <source>1 time entry already billed, left out</source>
      <translation>1 registro de tempo já faturado, deixado de fora</translation>
    </message>
    <message id="inv.line.discount">
      <source>Discount</source>
      <translation>Desconto</translation>
    </message>
    <message id="inv.line.fixedPrice">
      <source>fixed price</source>
      <translation>preço fixo</translation>
    </message>
    <message id="inv.line.materials">
      <source>Materials</source>
      <translation>Materiais</translation>
    </message>
    <message id="inv.line.minimum">
      <source>Minimum charge</source>
      <translation>Valor mínimo</translation>
    </message>
    <message id="inv.line.projectPrice">
      <source>Project price</source>
      <translation>Preço do projeto</translation>
    </message>
    <message id="inv.line.surcharge">
      <source>Call-out fee</source>
      <translation>Taxa de deslocamento</translation>
    </message>
    <message id="inv.oncePerProject">
      <source>once per project</source>
      <translation>uma vez por projeto</translation>
    </message>
    <message id="inv.onlyNewTime">
      <source>new time only</source>
      <translation>apenas tempo novo</translation>
    </message>
    <message id="inv.pdf.err.load">
      <source>The invoice page could not be loaded.</source>
      <translation>Não foi possível carregar a página da fatura.</translation>
    </message>
    <message id="inv.pdf.err.paging">
      <source>The invoice could not be laid out in pages.</source>
      <translation>Não foi possível paginar a fatura.</translation>
    </message>
    <message id="inv.pdf.err.print">
      <source>The PDF of the invoice could not be made.</source>
      <translation>Não foi possível criar o PDF da fatura.</translation>
    </message>
    <message id="inv.pdf.err.spill">
      <source>The invoice page could not be written to a temporary file: %1</source>
      <translation>Não foi possível gravar a página da fatura num ficheiro temporário: %1</translation>
    </message>
    <message id="inv.pdf.err.timeout">
      <source>The invoice page did not finish loading within %1 seconds.</source>
      <translation>A página da fatura não terminou de carregar em %1 segundos.</translation>
    </message>
    <message id="inv.priceBilledBefore">
      <source>fixed price already billed</source>
      <translation>preço fixo já faturado</translation>
    </message>
    <message id="inv.projectExtras">
      <source>Project extras</source>
      <translation>Extras do projeto</translation>
    </message>
    <message id="inv.rebill">
      <source>Bill again</source>
      <translation>Faturar novamente</translation>
    </message>
    <message id="inv.rebillHelp">
      <source>This work was billed before. Its fixed or per-unit price, minimum charge, call-out fee, materials and a fixed discount are billed once. Turn this on to bill them again.</source>
      <translation>Este trabalho já foi faturado. O preço fixo ou por unidade, o valor mínimo, a taxa de deslocamento, os materiais e um desconto fixo são faturados uma única vez. Ative esta opção para faturá-los novamente.</translation>
    </message>
    <message id="inv.saved">
      <source>Invoice %1 saved</source>
      <translation>Fatura %1 salva</translation>
    </message>
    <message id="inv.style.colour.invalid">
      <source>“%1” is no colour: write it as #rgb or #rrggbb, for example #0f766e.</source>
      <translation>«%1» não é uma cor: escreva-a como #rgb ou #rrggbb, por exemplo #0f766e.</translation>
    </message>
    <message id="inv.style.file.unreadable">
      <source>The file could not be opened.</source>
      <translation>Não foi possível abrir o ficheiro.</translation>
    </message>
    <message id="inv.style.font.invalid">
      <source>A font name holds only letters, digits, blanks and hyphens.</source>
      <translation>O nome de um tipo de letra só tem letras, algarismos, espaços e hífenes.</translation>
    </message>
    <message id="inv.style.logo.damaged">
      <source>The image could not be read; the file may be damaged.</source>
      <translation>Não foi possível ler a imagem; o ficheiro pode estar danificado.</translation>
    </message>
    <message id="inv.style.logo.empty">
      <source>The file is empty.</source>
      <translation>O ficheiro está vazio.</translation>
    </message>
    <message id="inv.style.logo.kind">
      <source>The logo must be a PNG or JPEG image.</source>
      <translation>O logótipo tem de ser uma imagem PNG ou JPEG.</translation>
    </message>
    <message id="inv.style.logo.svg">
      <source>SVG logos are not accepted, since a drawing can carry scripts and links. Pick a PNG or JPEG.</source>
      <translation>Não são aceites logótipos SVG, porque um desenho pode conter scripts e ligações. Escolha um PNG ou JPEG.</translation>
    </message>
    <message id="inv.style.logo.tooLarge">
      <source>The logo is larger than 1 MB. Pick a smaller PNG or JPEG.</source>
      <translation>O logótipo tem mais de 1 MB. Escolha um PNG ou JPEG mais pequeno.</translation>
    </message>
    <message id="inv.style.template.empty">
      <source>The template is empty.</source>
      <translation>O modelo está vazio.</translation>
    </message>
    <message id="inv.style.template.noDoctype">
      <source>The template must start with &lt;!doctype html&gt;.</source>
      <translation>O modelo tem de começar por &lt;!doctype html&gt;.</translation>
    </message>
    <message id="inv.style.template.noFooter">
      <source>The template has no &lt;footer&gt; element.</source>
      <translation>O modelo não tem nenhum elemento &lt;footer&gt;.</translation>
    </message>
    <message id="inv.style.template.noHeader">
      <source>The template has no &lt;header&gt; element.</source>
      <translation>O modelo não tem nenhum elemento &lt;header&gt;.</translation>
    </message>
    <message id="inv.style.template.notText">
      <source>The template is not a text file in UTF-8.</source>
      <translation>O modelo não é um ficheiro de texto em UTF-8.</translation>
    </message>
    <message id="inv.style.template.pageSize">
      <source>The template must fix the page at 794 × 1123 px (A4), with both sizes in its style sheet.</source>
      <translation>O modelo tem de fixar a página em 794 × 1123 px (A4), com as duas medidas na folha de estilos.</translation>
    </message>
    <message id="inv.style.template.tooLarge">
      <source>The template is larger than 512 KB.</source>
      <translation>O modelo tem mais de 512 KB.</translation>
    </message>
    <message id="inv.subtotal">
      <source>Subtotal</source>
      <translation>Subtotal</translation>
    </message>
    <message id="inv.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="inv.unit.days">
      <source>day</source>
      <translation>dia</translation>
    </message>
    <message id="inv.unit.hours">
      <source>h</source>
      <translation>h</translation>
    </message>
    <message id="inv.unit.units">
      <source>unit</source>
      <translation>unidade</translation>
    </message>
    <message id="inv.vat.hint">
      <source>Each line uses the VAT rate of its price settings, else the template's rate.</source>
      <translation>Cada linha usa a taxa de IVA da sua configuração de preço; caso contrário, a do modelo.</translation>
    </message>
    <message id="inv.vat.none">
      <source>No VAT on these lines</source>
      <translation>Sem IVA nestas linhas</translation>
    </message>
    <message id="inv.vat.override">
      <source>Set VAT manually</source>
      <translation>Definir IVA manualmente</translation>
    </message>
    <message id="inv.vat.row">
      <source>VAT %1%</source>
      <translation>IVA %1%</translation>
    </message>
    <message id="inv.vat.rowOver">
      <source>VAT %1% on %2</source>
      <translation>IVA %1% sobre %2</translation>
    </message>
    <message id="inviteAlreadyMember">
      <source>%1 is already in this team.</source>
      <translation>%1 já está nesta equipe.</translation>
    </message>
    <message id="inviteFailed">
      <source>Could not send the invite. Try again.</source>
      <translation>Não foi possível enviar o convite. Tente de novo.</translation>
    </message>
    <message id="inviteNoAccount">
      <source>No Morvane account uses that email yet. Ask them to sign up first.</source>
      <translation>Nenhuma conta do Morvane usa esse e-mail ainda. Peça para a pessoa se cadastrar primeiro.</translation>
    </message>
    <message id="inviteNotAllowed">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Somente o proprietário e os editores da equipe podem convidar pessoas.</translation>
    </message>
    <message id="inviteRateLimited">
      <source>You have sent many invitations in the last hour. Try again later.</source>
      <translation>Você enviou muitos convites na última hora. Tente novamente mais tarde.</translation>
    </message>
    <message id="inviteSent">
      <source>%1 is invited to this team.</source>
      <translation>Convite enviado para %1 entrar nesta equipe.</translation>
    </message>
    <message id="inviteTeamFull">
      <source>This team is full: it already has 10 members, the maximum.</source>
      <translation>Esta equipe está completa: ela já tem 10 membros, o máximo.</translation>
    </message>
    <message id="inviteUnavailable">
      <source>Inviting by email is not available yet. Try again later.</source>
      <translation>O convite por e-mail ainda não está disponível. Tente de novo mais tarde.</translation>
    </message>
    <message id="invoiceErrTripsTaken">
      <source>Some of these trips are already on another invoice. Refresh and try again.</source>
      <translation>Algumas dessas viagens já estão em outra fatura. Atualize e tente novamente.</translation>
    </message>
    <message id="invoiceErrVoidFinal">
      <source>This invoice is void. A void invoice cannot be changed back.</source>
      <translation>Esta fatura está anulada. Uma fatura anulada não pode ser revertida.</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Feito com Morvane</translation>
    </message>
    <message id="invoicePeriodLast30">
      <source>Last 30 days</source>
      <translation>Últimos 30 dias</translation>
    </message>
    <message id="invoicePeriodLast7">
      <source>Last 7 days</source>
      <translation>Últimos 7 dias</translation>
    </message>
    <message id="invoicePeriodLastMonth">
      <source>Last month</source>
      <translation>Mês passado</translation>
    </message>
    <message id="invoicePeriodThisMonth">
      <source>This month</source>
      <translation>Este mês</translation>
    </message>
    <message id="invoiceTravelInclude">
      <source>Charge travel</source>
      <translation>Cobrar deslocações</translation>
    </message>
    <message id="localServer.err.dataFolder">
      <source>Cannot write the local backend's data folder %1.</source>
      <translation>Não é possível gravar na pasta de dados %1 do servidor local.</translation>
    </message>
    <message id="localServer.err.exited">
      <source>The local backend stopped before it was ready (log: %1).</source>
      <translation>O servidor local parou antes de ficar pronto (registro: %1).</translation>
    </message>
    <message id="localServer.err.launch">
      <source>Cannot run the local backend %1.</source>
      <translation>Não é possível executar o servidor local %1.</translation>
    </message>
    <message id="localServer.err.noProgram">
      <source>Cannot find the local backend: %1 is neither next to Morvane nor on the PATH.</source>
      <translation>Servidor local não encontrado: %1 não está ao lado do Morvane nem no PATH.</translation>
    </message>
    <message id="localServer.err.notReady">
      <source>The local backend was not ready within %1 seconds (log: %2).</source>
      <translation>O servidor local não ficou pronto em %1 segundos (registro: %2).</translation>
    </message>
    <message id="localServer.err.wouldNotStop">
      <source>The local backend (process %1) did not stop within %2 seconds.</source>
      <translation>O servidor local (processo %1) não parou em %2 segundos.</translation>
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
    <message id="onboarding.err.notSaved">
      <source>Your first-run answers were not saved yet. Morvane tries again at the next sign-in.</source>
      <translation>Suas respostas da primeira configuração ainda não foram salvas. O Morvane vai tentar de novo no próximo login.</translation>
    </message>
    <message id="profile.err.notSaved">
      <source>Your profile was not saved. Try again.</source>
      <translation>Seu perfil não foi salvo. Tente de novo.</translation>
    </message>
    <message id="project.err.notCreated">
      <source>The project was not created: you may not add projects to that team.</source>
      <translation>O projeto não foi criado: você não pode adicionar projetos a essa equipe.</translation>
    </message>
    <message id="project.err.notSaved">
      <source>The project was not changed: you may not edit it, or it no longer exists.</source>
      <translation>O projeto não foi alterado: você não pode editá-lo ou ele não existe mais.</translation>
    </message>
    <message id="project.err.teamNotChanged">
      <source>The project's team was not changed: only its creator and the team's owners and editors can move it.</source>
      <translation>A equipe do projeto não foi alterada: somente quem o criou e os proprietários e editores da equipe podem movê-lo.</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Algo deu errado. Tente de novo.</translation>
    </message>
    <message id="store.err.loadFailed">
      <source>Your data could not be loaded. Morvane tries again shortly.</source>
      <translation>Não foi possível carregar seus dados. O Morvane vai tentar de novo em instantes.</translation>
    </message>
    <message id="store.err.writeFailed">
      <source>The change could not be saved. Check the connection and try again.</source>
      <translation>Não foi possível salvar a alteração. Verifique a conexão e tente de novo.</translation>
    </message>
    <message id="store.style.err.notLoaded">
      <source>Your invoice style could not be loaded.</source>
      <translation>Não foi possível carregar o estilo das suas faturas.</translation>
    </message>
    <message id="store.style.err.notSaved">
      <source>The invoice style was not saved: you may not change this template, or it no longer exists.</source>
      <translation>O estilo da fatura não foi guardado: não pode alterar este modelo, ou ele já não existe.</translation>
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
    <message id="task.custom">
      <source>Custom for this task</source>
      <translation>Preço próprio para esta tarefa</translation>
    </message>
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>A tarefa não foi criada: você não pode adicionar tarefas a este projeto.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>A tarefa não foi alterada: você não pode editá-la ou ela não existe mais.</translation>
    </message>
    <message id="task.inheritedFrom">
      <source>Inherited from %1</source>
      <translation>Herdado de %1</translation>
    </message>
    <message id="task.savePrice">
      <source>Save task price</source>
      <translation>Salvar o preço da tarefa</translation>
    </message>
    <message id="task.useProject">
      <source>Use project price</source>
      <translation>Usar o preço do projeto</translation>
    </message>
    <message id="team.err.invitationNotAnswered">
      <source>The invitation could not be answered. Try again.</source>
      <translation>Não foi possível responder ao convite. Tente novamente.</translation>
    </message>
    <message id="team.err.memberNotChanged">
      <source>The member was not changed: only the team owner can change roles and remove people.</source>
      <translation>O membro não foi alterado: só o proprietário da equipe pode mudar funções e remover pessoas.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>A equipe não foi criada. Tente de novo.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>Não foi possível carregar suas equipes.</translation>
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
      <translation>Não foi possível registrar o tempo, então o cronômetro continua. Tente pará-lo novamente.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>O cronômetro desta tarefa foi iniciado em outro dispositivo, por isso o status dela não foi alterado.</translation>
    </message>
    <message id="travelDescribeMany">
      <source>%1 km in %2 trips</source>
      <translation>%1 km em %2 viagens</translation>
    </message>
    <message id="travelDescribeOne">
      <source>%1 km in 1 trip</source>
      <translation>%1 km em 1 viagem</translation>
    </message>
    <message id="travelKm">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="travelTitle">
      <source>Travel</source>
      <translation>Deslocações</translation>
    </message>
    <message id="travelTrip">
      <source>trip</source>
      <translation>viagem</translation>
    </message>
    <message id="trip.err.notLoaded">
      <source>Your trips could not be loaded. Check your connection and try again.</source>
      <translation>Não foi possível carregar as suas viagens. Verifique a ligação e tente novamente.</translation>
    </message>
    <message id="trip.err.notSaved">
      <source>The trip was not saved: it no longer exists or you may not change it.</source>
      <translation>A viagem não foi guardada: já não existe ou não a pode alterar.</translation>
    </message>
    <message id="trip.err.settingsNotSaved">
      <source>Your travel settings were not saved.</source>
      <translation>As suas definições de viagem não foram guardadas.</translation>
    </message>
    <message id="tripDeleteConfirm">
      <source>Delete this trip? This cannot be undone.</source>
      <translation>Eliminar esta viagem? Não é possível anular.</translation>
    </message>
    <message id="tripDistanceByRoad">
      <source>Distance by road, about %1 min. Change it if you went another way.</source>
      <translation>Distância por estrada, cerca de %1 min. Altere-a se foi por outro caminho.</translation>
    </message>
    <message id="tripDistanceEstimate">
      <source>Kilometres are an estimate from the addresses; change them if needed.</source>
      <translation>Os quilómetros são uma estimativa a partir das moradas; altere-os se necessário.</translation>
    </message>
    <message id="tripErrNoService">
      <source>No routing or address service is set up.</source>
      <translation>Nenhum serviço de rotas ou moradas está configurado.</translation>
    </message>
    <message id="tripErrNotFound">
      <source>No place or route was found for this.</source>
      <translation>Nenhum local ou rota encontrado.</translation>
    </message>
    <message id="tripInProgress">
      <source>Trip in progress</source>
      <translation>Viagem em curso</translation>
    </message>
    <message id="tripSearchFailed">
      <source>Searching did not work. Check your connection and try again.</source>
      <translation>A pesquisa não funcionou. Verifique a ligação e tente novamente.</translation>
    </message>
    <message id="tripsEmpty">
      <source>No trips yet. Trips your phone records while a timer runs show up here. You can also add a trip by hand.</source>
      <translation>Ainda sem viagens. As viagens que o telemóvel regista com um temporizador ativo aparecem aqui. Também pode adicionar uma à mão.</translation>
    </message>
    <message id="ui.action.floatingTimer">
      <source>Show or hide the floating timer</source>
      <translation>Mostrar ou ocultar o cronômetro flutuante</translation>
    </message>
    <message id="ui.action.newProject">
      <source>New project</source>
      <translation>Novo projeto</translation>
    </message>
    <message id="ui.action.newTask">
      <source>New task</source>
      <translation>Nova tarefa</translation>
    </message>
    <message id="ui.action.newTeam">
      <source>New team</source>
      <translation>Nova equipe</translation>
    </message>
    <message id="ui.action.quickAdd">
      <source>Quick add: a sentence becomes work…</source>
      <translation>Adição rápida: uma frase torna-se trabalho…</translation>
    </message>
    <message id="ui.action.settings">
      <source>Settings</source>
      <translation>Configurações</translation>
    </message>
    <message id="ui.action.signOut">
      <source>Sign out</source>
      <translation>Sair da conta</translation>
    </message>
    <message id="ui.action.toggleTheme">
      <source>Switch between light and dark</source>
      <translation>Alternar entre claro e escuro</translation>
    </message>
    <message id="ui.action.toggleTimer">
      <source>Start or stop the timer</source>
      <translation>Iniciar ou parar o cronômetro</translation>
    </message>
    <message id="ui.ai.anthropic">
      <source>Anthropic API with your key</source>
      <translation>API da Anthropic com a sua chave</translation>
    </message>
    <message id="ui.ai.anthropicHelp">
      <source>Straight to Anthropic with the key you keep in your keyring.</source>
      <translation>Diretamente para a Anthropic com a chave do seu porta-chaves.</translation>
    </message>
    <message id="ui.ai.auto">
      <source>Automatic (recommended)</source>
      <translation>Automático (recomendado)</translation>
    </message>
    <message id="ui.ai.autoHelp">
      <source>The Claude CLI first; without it, Morvane AI in the cloud.</source>
      <translation>Primeiro a CLI do Claude; sem ela, o Morvane AI na nuvem.</translation>
    </message>
    <message id="ui.ai.cli">
      <source>Claude CLI only</source>
      <translation>Apenas a CLI do Claude</translation>
    </message>
    <message id="ui.ai.cliHelp">
      <source>Everything local through your own Claude subscription. No network.</source>
      <translation>Tudo local através da sua subscrição do Claude. Sem rede.</translation>
    </message>
    <message id="ui.ai.consentAllow">
      <source>Allowed</source>
      <translation>Permitido</translation>
    </message>
    <message id="ui.ai.consentAsk">
      <source>Ask first</source>
      <translation>Perguntar antes</translation>
    </message>
    <message id="ui.ai.consentDeny">
      <source>Never send</source>
      <translation>Nunca enviar</translation>
    </message>
    <message id="ui.ai.consents">
      <source>Sending text off this computer</source>
      <translation>Enviar texto para fora deste computador</translation>
    </message>
    <message id="ui.ai.gemini">
      <source>Google Gemini API with your key</source>
      <translation>API do Google Gemini com a sua chave</translation>
    </message>
    <message id="ui.ai.geminiHelp">
      <source>Straight to Google with the key you keep in your keyring.</source>
      <translation>Diretamente para a Google com a chave do seu porta-chaves.</translation>
    </message>
    <message id="ui.ai.keyFailed">
      <source>The keyring did not take the change; nothing changed.</source>
      <translation>O porta-chaves não aceitou a alteração; nada mudou.</translation>
    </message>
    <message id="ui.ai.keyInvalid">
      <source>That does not look like an API key: paste the key alone, without spaces.</source>
      <translation>Isso não parece uma chave de API: cole só a chave, sem espaços.</translation>
    </message>
    <message id="ui.ai.keyName">
      <source>API key for %1</source>
      <translation>Chave de API para %1</translation>
    </message>
    <message id="ui.ai.keyPaste">
      <source>Paste your API key</source>
      <translation>Cole a sua chave de API</translation>
    </message>
    <message id="ui.ai.keyRemove">
      <source>Remove</source>
      <translation>Remover</translation>
    </message>
    <message id="ui.ai.keySave">
      <source>Save key</source>
      <translation>Guardar chave</translation>
    </message>
    <message id="ui.ai.keyStored">
      <source>A key is stored; paste another to replace it</source>
      <translation>Há uma chave guardada; cole outra para a substituir</translation>
    </message>
    <message id="ui.ai.keys">
      <source>Your own API keys (kept in the keyring)</source>
      <translation>As suas chaves de API (no porta-chaves)</translation>
    </message>
    <message id="ui.ai.openai">
      <source>OpenAI API with your key</source>
      <translation>API da OpenAI com a sua chave</translation>
    </message>
    <message id="ui.ai.openaiHelp">
      <source>Straight to OpenAI with the key you keep in your keyring.</source>
      <translation>Diretamente para a OpenAI com a chave do seu porta-chaves.</translation>
    </message>
    <message id="ui.ai.relay">
      <source>Morvane AI only</source>
      <translation>Apenas Morvane AI</translation>
    </message>
    <message id="ui.ai.relayHelp">
      <source>Always through the secured relay of your Morvane server. The CLI is ignored.</source>
      <translation>Sempre através do relé seguro do seu servidor Morvane. A CLI é ignorada.</translation>
    </message>
    <message id="ui.ai.route">
      <source>Where model calls go</source>
      <translation>Para onde vão os pedidos ao modelo</translation>
    </message>
    <message id="ui.assistant.add">
      <source>Add</source>
      <translation>Adicionar</translation>
    </message>
    <message id="ui.assistant.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as the task list shows it.</source>
      <translation>Que tarefa? Nenhuma das suas tarefas se chama "%1", ou várias sim. Diga-a como aparece na lista de tarefas.</translation>
    </message>
    <message id="ui.assistant.consentNo">
      <source>Don't send</source>
      <translation>Não enviar</translation>
    </message>
    <message id="ui.assistant.consentOnce">
      <source>Morvane asks once for this route and remembers your answer. You can change it in the settings.</source>
      <translation>O Morvane pergunta uma vez por esta via e guarda a sua resposta. Pode alterá-la nas definições.</translation>
    </message>
    <message id="ui.assistant.consentTitle">
      <source>Send your text to %1?</source>
      <translation>Enviar o seu texto para %1?</translation>
    </message>
    <message id="ui.assistant.consentYes">
      <source>Send</source>
      <translation>Enviar</translation>
    </message>
    <message id="ui.assistant.empty">
      <source>Type a sentence in your own words: new projects and tasks, time you spent, or start and stop the timer.</source>
      <translation>Escreva uma frase por palavras suas: novos projetos e tarefas, tempo gasto, ou iniciar e parar o temporizador.</translation>
    </message>
    <message id="ui.assistant.notUnderstood">
      <source>The sentence could not be read: %1</source>
      <translation>Não foi possível ler a frase: %1</translation>
    </message>
    <message id="ui.assistant.placeholder">
      <source>Say what to add, e.g. “Logo design for Acme, 3 hours yesterday”</source>
      <translation>Diga o que adicionar, p. ex. “Logótipo para a Acme, 3 horas ontem”</translation>
    </message>
    <message id="ui.assistant.reading">
      <source>Reading your sentence…</source>
      <translation>A ler a sua frase…</translation>
    </message>
    <message id="ui.assistant.title">
      <source>Quick add</source>
      <translation>Adição rápida</translation>
    </message>
    <message id="ui.assistant.tooLong">
      <source>That is more than a sentence or two. Say what to add in a few lines.</source>
      <translation>Isso é mais do que uma ou duas frases. Diga em poucas linhas o que adicionar.</translation>
    </message>
    <message id="ui.auth.aboutYou">
      <source>A little about you</source>
      <translation>Um pouco sobre você</translation>
    </message>
    <message id="ui.auth.confirmBody">
      <source>We sent a confirmation link to %1. Open it, then sign in here.</source>
      <translation>Enviamos um link de confirmação para %1. Abra-o e depois entre aqui.</translation>
    </message>
    <message id="ui.auth.confirmResent">
      <source>We sent a new confirmation link to %1.</source>
      <translation>Enviamos um novo link de confirmação para %1.</translation>
    </message>
    <message id="ui.auth.confirmSent">
      <source>We sent a link to %1. Open it to confirm your address, then sign in.</source>
      <translation>Enviamos um link para %1. Abra-o para confirmar seu endereço e depois entre.</translation>
    </message>
    <message id="ui.auth.confirmTitle">
      <source>Confirm your e-mail</source>
      <translation>Confirme seu e-mail</translation>
    </message>
    <message id="ui.auth.continueAs">
      <source>Continue as %1</source>
      <translation>Continuar como %1</translation>
    </message>
    <message id="ui.auth.continueWith">
      <source>Continue with %1</source>
      <translation>Continuar com %1</translation>
    </message>
    <message id="ui.auth.createAccount">
      <source>Create your account</source>
      <translation>Crie sua conta</translation>
    </message>
    <message id="ui.auth.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.auth.forgot">
      <source>Forgot password?</source>
      <translation>Esqueceu a senha?</translation>
    </message>
    <message id="ui.auth.getStarted">
      <source>Get started</source>
      <translation>Começar</translation>
    </message>
    <message id="ui.auth.haveAccount">
      <source>I already have an account</source>
      <translation>Já tenho uma conta</translation>
    </message>
    <message id="ui.auth.password">
      <source>Password</source>
      <translation>Senha</translation>
    </message>
    <message id="ui.auth.passwordHint">
      <source>At least 8 characters.</source>
      <translation>Pelo menos 8 caracteres.</translation>
    </message>
    <message id="ui.auth.rememberMe">
      <source>Remember me on this computer</source>
      <translation>Lembrar de mim neste computador</translation>
    </message>
    <message id="ui.auth.resend">
      <source>Send the link again</source>
      <translation>Enviar o link de novo</translation>
    </message>
    <message id="ui.auth.resetSent">
      <source>Check your inbox for the reset link.</source>
      <translation>Procure o link de redefinição na sua caixa de entrada.</translation>
    </message>
    <message id="ui.auth.resetTitle">
      <source>Reset your password</source>
      <translation>Redefina sua senha</translation>
    </message>
    <message id="ui.auth.sendReset">
      <source>Send the reset link</source>
      <translation>Enviar o link de redefinição</translation>
    </message>
    <message id="ui.auth.signInTitle">
      <source>Sign in</source>
      <translation>Entrar</translation>
    </message>
    <message id="ui.auth.toSignIn">
      <source>Back to sign in</source>
      <translation>Voltar para o login</translation>
    </message>
    <message id="ui.auth.toSignUp">
      <source>Create an account</source>
      <translation>Criar uma conta</translation>
    </message>
    <message id="ui.auth.welcome">
      <source>Welcome to Morvane</source>
      <translation>Boas-vindas ao Morvane</translation>
    </message>
    <message id="ui.auth.welcomeBody">
      <source>Track your time on projects and tasks, and turn it into invoices. Your data stays on this computer unless you connect a shared server.</source>
      <translation>Registre seu tempo em projetos e tarefas e transforme-o em faturas. Seus dados ficam neste computador, a menos que você conecte um servidor compartilhado.</translation>
    </message>
    <message id="ui.calendar.add">
      <source>Add calendar</source>
      <translation>Adicionar calendário</translation>
    </message>
    <message id="ui.calendar.addFile">
      <source>Add a calendar file…</source>
      <translation>Adicionar um ficheiro de calendário…</translation>
    </message>
    <message id="ui.calendar.added">
      <source>%1 was added.</source>
      <translation>%1 foi adicionado.</translation>
    </message>
    <message id="ui.calendar.address">
      <source>Subscription or CalDAV address (https:// or webcal://)</source>
      <translation>Endereço de subscrição ou CalDAV (https:// ou webcal://)</translation>
    </message>
    <message id="ui.calendar.badDay">
      <source>Write the day as year-month-day, for example 2026-11-25.</source>
      <translation>Escreva o dia como ano-mês-dia, por exemplo 2026-11-25.</translation>
    </message>
    <message id="ui.calendar.caldav">
      <source>CalDAV account</source>
      <translation>Conta CalDAV</translation>
    </message>
    <message id="ui.calendar.day">
      <source>Day (year-month-day)</source>
      <translation>Dia (ano-mês-dia)</translation>
    </message>
    <message id="ui.calendar.destination">
      <source>Where it goes</source>
      <translation>Para onde vai</translation>
    </message>
    <message id="ui.calendar.fileFilter">
      <source>Calendar files (*.ics)</source>
      <translation>Ficheiros de calendário (*.ics)</translation>
    </message>
    <message id="ui.calendar.fileTitle">
      <source>Add a calendar file</source>
      <translation>Adicionar um ficheiro de calendário</translation>
    </message>
    <message id="ui.calendar.import">
      <source>Import as time</source>
      <translation>Importar como tempo</translation>
    </message>
    <message id="ui.calendar.imported">
      <source>%1 imported as time.</source>
      <translation>%1 importados como tempo.</translation>
    </message>
    <message id="ui.calendar.importedChip">
      <source>Imported</source>
      <translation>Importado</translation>
    </message>
    <message id="ui.calendar.link">
      <source>Calendar import</source>
      <translation>Importar calendário</translation>
    </message>
    <message id="ui.calendar.loading">
      <source>Loading calendar…</source>
      <translation>A carregar o calendário…</translation>
    </message>
    <message id="ui.calendar.newTaskIn">
      <source>New task in %1</source>
      <translation>Nova tarefa em %1</translation>
    </message>
    <message id="ui.calendar.next">
      <source>Next day</source>
      <translation>Dia seguinte</translation>
    </message>
    <message id="ui.calendar.noDestination">
      <source>%1 imported. %2 ticked events have no destination yet: choose where each goes.</source>
      <translation>%1 importados. %2 eventos marcados ainda não têm destino: escolha para onde vai cada um.</translation>
    </message>
    <message id="ui.calendar.noEventsHint">
      <source>Pick another day, or add the calendar that holds your meetings.</source>
      <translation>Escolha outro dia ou adicione o calendário com as suas reuniões.</translation>
    </message>
    <message id="ui.calendar.noEventsTitle">
      <source>No events on this day</source>
      <translation>Sem eventos neste dia</translation>
    </message>
    <message id="ui.calendar.noSourcesHint">
      <source>Add a calendar file, a subscription address (such as a hosted calendar's secret address) or a CalDAV account on the left. Morvane only reads them.</source>
      <translation>Adicione à esquerda um ficheiro de calendário, um endereço de subscrição (como o endereço secreto de um calendário online) ou uma conta CalDAV. O Morvane apenas os lê.</translation>
    </message>
    <message id="ui.calendar.noSourcesTitle">
      <source>No calendars yet</source>
      <translation>Ainda sem calendários</translation>
    </message>
    <message id="ui.calendar.partial">
      <source>%1 imported; then it stopped: %2</source>
      <translation>%1 importados; depois parou: %2</translation>
    </message>
    <message id="ui.calendar.password">
      <source>Password (kept in your keyring)</source>
      <translation>Palavra-passe (no seu porta-chaves)</translation>
    </message>
    <message id="ui.calendar.previous">
      <source>Previous day</source>
      <translation>Dia anterior</translation>
    </message>
    <message id="ui.calendar.remove">
      <source>Remove</source>
      <translation>Remover</translation>
    </message>
    <message id="ui.calendar.sources">
      <source>Your calendars</source>
      <translation>Os seus calendários</translation>
    </message>
    <message id="ui.calendar.timeOn">
      <source>Time on %1 (%2)</source>
      <translation>Tempo em %1 (%2)</translation>
    </message>
    <message id="ui.calendar.title">
      <source>Import from your calendar</source>
      <translation>Importar do seu calendário</translation>
    </message>
    <message id="ui.calendar.user">
      <source>User name</source>
      <translation>Nome de utilizador</translation>
    </message>
    <message id="ui.category.admin">
      <source>Admin</source>
      <translation>Administrativo</translation>
    </message>
    <message id="ui.category.billable">
      <source>Billable</source>
      <translation>Faturável</translation>
    </message>
    <message id="ui.category.internal">
      <source>Internal work</source>
      <translation>Trabalho interno</translation>
    </message>
    <message id="ui.category.none">
      <source>None</source>
      <translation>Nenhuma</translation>
    </message>
    <message id="ui.clients.address">
      <source>Address</source>
      <translation>Morada</translation>
    </message>
    <message id="ui.clients.deleteBody">
      <source>It leaves your list of clients. Invoices you already wrote for this client keep it.</source>
      <translation>Sai da sua lista de clientes. As faturas que já emitiu para este cliente mantêm-no.</translation>
    </message>
    <message id="ui.clients.deleteTitle">
      <source>Delete %1?</source>
      <translation>Eliminar %1?</translation>
    </message>
    <message id="ui.clients.edit">
      <source>Edit client</source>
      <translation>Editar cliente</translation>
    </message>
    <message id="ui.clients.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.clients.emptyHint">
      <source>Add the people and companies you invoice, then choose them when you write an invoice. Press Ctrl+N or “New client” to add the first.</source>
      <translation>Adicione as pessoas e empresas a quem fatura e escolha-as ao emitir uma fatura. Prima Ctrl+N ou «Novo cliente» para adicionar o primeiro.</translation>
    </message>
    <message id="ui.clients.emptyTitle">
      <source>No clients yet</source>
      <translation>Ainda não há clientes</translation>
    </message>
    <message id="ui.clients.kvk">
      <source>Chamber of commerce number</source>
      <translation>Número de registo comercial</translation>
    </message>
    <message id="ui.clients.name">
      <source>Name</source>
      <translation>Nome</translation>
    </message>
    <message id="ui.clients.namePlaceholder">
      <source>Company or person</source>
      <translation>Empresa ou pessoa</translation>
    </message>
    <message id="ui.clients.new">
      <source>New client</source>
      <translation>Novo cliente</translation>
    </message>
    <message id="ui.clients.noMatch">
      <source>No client matches “%1”</source>
      <translation>Nenhum cliente corresponde a «%1»</translation>
    </message>
    <message id="ui.clients.search">
      <source>Search clients</source>
      <translation>Procurar clientes</translation>
    </message>
    <message id="ui.clients.title">
      <source>Clients</source>
      <translation>Clientes</translation>
    </message>
    <message id="ui.clients.vatId">
      <source>VAT number</source>
      <translation>Número de IVA</translation>
    </message>
    <message id="ui.common.cancel">
      <source>Cancel</source>
      <translation>Cancelar</translation>
    </message>
    <message id="ui.common.close">
      <source>Close</source>
      <translation>Fechar</translation>
    </message>
    <message id="ui.common.continue">
      <source>Continue</source>
      <translation>Continuar</translation>
    </message>
    <message id="ui.common.delete">
      <source>Delete</source>
      <translation>Excluir</translation>
    </message>
    <message id="ui.common.dismiss">
      <source>Dismiss</source>
      <translation>Fechar</translation>
    </message>
    <message id="ui.common.edit">
      <source>Edit</source>
      <translation>Editar</translation>
    </message>
    <message id="ui.common.remove">
      <source>Remove %1</source>
      <translation>Remover %1</translation>
    </message>
    <message id="ui.common.retry">
      <source>Try again</source>
      <translation>Tentar de novo</translation>
    </message>
    <message id="ui.common.save">
      <source>Save</source>
      <translation>Salvar</translation>
    </message>
    <message id="ui.common.saving">
      <source>Saving</source>
      <translation>Salvando</translation>
    </message>
    <message id="ui.composer.billTo">
      <source>Bill to</source>
      <translation>Faturar a</translation>
    </message>
    <message id="ui.composer.cancel">
      <source>Cancel</source>
      <translation>Cancelar</translation>
    </message>
    <message id="ui.composer.clientAddress">
      <source>Client address</source>
      <translation>Morada do cliente</translation>
    </message>
    <message id="ui.composer.clientEmail">
      <source>Client e-mail</source>
      <translation>E-mail do cliente</translation>
    </message>
    <message id="ui.composer.clientName">
      <source>Client name</source>
      <translation>Nome do cliente</translation>
    </message>
    <message id="ui.composer.design">
      <source>Design</source>
      <translation>Design</translation>
    </message>
    <message id="ui.composer.drawing">
      <source>Drawing the invoice</source>
      <translation>A gerar a fatura</translation>
    </message>
    <message id="ui.composer.due">
      <source>Due</source>
      <translation>Vencimento</translation>
    </message>
    <message id="ui.composer.err.day">
      <source>Write days as year-month-day, for example 2026-11-01.</source>
      <translation>Escreva as datas como ano-mês-dia, por exemplo 2026-11-01.</translation>
    </message>
    <message id="ui.composer.err.due">
      <source>Payment cannot be due before the invoice is issued.</source>
      <translation>O vencimento não pode ser anterior à data de emissão.</translation>
    </message>
    <message id="ui.composer.err.empty">
      <source>Choose work with unbilled time first.</source>
      <translation>Escolha primeiro trabalho com tempo por faturar.</translation>
    </message>
    <message id="ui.composer.err.noNumber">
      <source>The invoice has no number yet. Check the connection and open the composer again.</source>
      <translation>A fatura ainda não tem número. Verifique a ligação e abra de novo o editor de faturas.</translation>
    </message>
    <message id="ui.composer.err.period">
      <source>The period ends before it starts.</source>
      <translation>O período termina antes de começar.</translation>
    </message>
    <message id="ui.composer.err.preview">
      <source>The preview could not be drawn: %1</source>
      <translation>Não foi possível gerar a pré-visualização: %1</translation>
    </message>
    <message id="ui.composer.from">
      <source>From (year-month-day)</source>
      <translation>De (ano-mês-dia)</translation>
    </message>
    <message id="ui.composer.hours">
      <source>%1 h</source>
      <translation>%1 h</translation>
    </message>
    <message id="ui.composer.houseDesign">
      <source>As in the invoice style</source>
      <translation>Como no estilo da fatura</translation>
    </message>
    <message id="ui.composer.invoice">
      <source>Invoice</source>
      <translation>Fatura</translation>
    </message>
    <message id="ui.composer.issued">
      <source>Issued</source>
      <translation>Data de emissão</translation>
    </message>
    <message id="ui.composer.lines">
      <source>Lines</source>
      <translation>Linhas</translation>
    </message>
    <message id="ui.composer.noWork">
      <source>No unbilled time in this period. Choose another period or project.</source>
      <translation>Não há tempo por faturar neste período. Escolha outro período ou projeto.</translation>
    </message>
    <message id="ui.composer.notes">
      <source>Notes on the invoice</source>
      <translation>Notas na fatura</translation>
    </message>
    <message id="ui.composer.number">
      <source>No. %1</source>
      <translation>N.º %1</translation>
    </message>
    <message id="ui.composer.numberPending">
      <source>Number follows</source>
      <translation>Número a seguir</translation>
    </message>
    <message id="ui.composer.period">
      <source>Period</source>
      <translation>Período</translation>
    </message>
    <message id="ui.composer.previewEmpty">
      <source>The invoice appears here</source>
      <translation>A fatura aparece aqui</translation>
    </message>
    <message id="ui.composer.previewHint">
      <source>Choose a project with unbilled time and a period; the page follows every change.</source>
      <translation>Escolha um projeto com tempo por faturar e um período; a página acompanha cada alteração.</translation>
    </message>
    <message id="ui.composer.projects">
      <source>Projects</source>
      <translation>Projetos</translation>
    </message>
    <message id="ui.composer.saveAsClient">
      <source>Save as client</source>
      <translation>Guardar como cliente</translation>
    </message>
    <message id="ui.composer.saveDraft">
      <source>Save as draft</source>
      <translation>Guardar como rascunho</translation>
    </message>
    <message id="ui.composer.saveSent">
      <source>Save as sent</source>
      <translation>Guardar como enviada</translation>
    </message>
    <message id="ui.composer.savedClients">
      <source>Saved clients</source>
      <translation>Clientes guardados</translation>
    </message>
    <message id="ui.composer.title">
      <source>New invoice</source>
      <translation>Nova fatura</translation>
    </message>
    <message id="ui.composer.to">
      <source>To (year-month-day)</source>
      <translation>Até (ano-mês-dia)</translation>
    </message>
    <message id="ui.composer.vatPercent">
      <source>VAT %</source>
      <translation>IVA %</translation>
    </message>
    <message id="ui.composer.work">
      <source>Work</source>
      <translation>Trabalho</translation>
    </message>
    <message id="ui.earnings.barName">
      <source>%1: earned %2, billed %3, unbilled %4</source>
      <translation>%1: ganho %2, faturado %3, por faturar %4</translation>
    </message>
    <message id="ui.earnings.billed">
      <source>Billed</source>
      <translation>Faturado</translation>
    </message>
    <message id="ui.earnings.billedChip">
      <source>billed</source>
      <translation>faturado</translation>
    </message>
    <message id="ui.earnings.byMonth">
      <source>Month</source>
      <translation>Mês</translation>
    </message>
    <message id="ui.earnings.byProject">
      <source>Project</source>
      <translation>Projeto</translation>
    </message>
    <message id="ui.earnings.byWeek">
      <source>Week</source>
      <translation>Semana</translation>
    </message>
    <message id="ui.earnings.coverage">
      <source>%1 to %2</source>
      <translation>de %1 a %2</translation>
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
      <translation>Ganho</translation>
    </message>
    <message id="ui.earnings.emptyHint">
      <source>Start the timer on a task with Space, or log time in its inspector. What you earn shows up here by week, month and project.</source>
      <translation>Inicie o temporizador numa tarefa com Espaço ou registe tempo no seu painel. O que ganha aparece aqui por semana, mês e projeto.</translation>
    </message>
    <message id="ui.earnings.emptyTitle">
      <source>Nothing tracked in these months</source>
      <translation>Nenhum tempo registado nestes meses</translation>
    </message>
    <message id="ui.earnings.entries">
      <source>Entries</source>
      <translation>Registos</translation>
    </message>
    <message id="ui.earnings.entriesOf">
      <source>Entries of %1</source>
      <translation>Registos de %1</translation>
    </message>
    <message id="ui.earnings.hours">
      <source>Hours</source>
      <translation>Horas</translation>
    </message>
    <message id="ui.earnings.monthFormat">
      <source>MMM yyyy</source>
      <translation>MMM yyyy</translation>
    </message>
    <message id="ui.earnings.noProject">
      <source>No project</source>
      <translation>Sem projeto</translation>
    </message>
    <message id="ui.earnings.oneOffNote">
      <source>includes %1 charged once</source>
      <translation>inclui %1 cobrado uma vez</translation>
    </message>
    <message id="ui.earnings.pickBar">
      <source>Click a bar to see the entries behind it.</source>
      <translation>Clique numa barra para ver os registos por trás dela.</translation>
    </message>
    <message id="ui.earnings.rate">
      <source>Per hour</source>
      <translation>Por hora</translation>
    </message>
    <message id="ui.earnings.title">
      <source>Earnings</source>
      <translation>Ganhos</translation>
    </message>
    <message id="ui.earnings.unbilled">
      <source>Unbilled</source>
      <translation>Por faturar</translation>
    </message>
    <message id="ui.entries.billed">
      <source>Billed</source>
      <translation>Faturado</translation>
    </message>
    <message id="ui.entries.delete">
      <source>Delete this entry</source>
      <translation>Excluir este registro</translation>
    </message>
    <message id="ui.entries.deleteBody">
      <source>The task's total goes down by its length.</source>
      <translation>O total da tarefa diminui de acordo com a duração deste registro.</translation>
    </message>
    <message id="ui.entries.deleteTitle">
      <source>Delete this time entry?</source>
      <translation>Excluir este registro de tempo?</translation>
    </message>
    <message id="ui.entries.empty">
      <source>No time yet. Press Space to start the timer, or log minutes by hand.</source>
      <translation>Nenhum tempo ainda. Pressione Espaço para iniciar o cronômetro ou registre os minutos manualmente.</translation>
    </message>
    <message id="ui.entries.end">
      <source>End</source>
      <translation>Fim</translation>
    </message>
    <message id="ui.entries.invalid">
      <source>Use the form 2026-03-01 09:30, with the end after the start.</source>
      <translation>Use o formato 2026-03-01 09:30, com o fim depois do início.</translation>
    </message>
    <message id="ui.entries.length">
      <source>Minutes</source>
      <translation>Minutos</translation>
    </message>
    <message id="ui.entries.log">
      <source>Log</source>
      <translation>Registrar</translation>
    </message>
    <message id="ui.entries.minutes">
      <source>Minutes worked</source>
      <translation>Minutos trabalhados</translation>
    </message>
    <message id="ui.entries.minutesInvalid">
      <source>Enter the minutes as a number, such as 45 or 90.</source>
      <translation>Digite os minutos como número, como 45 ou 90.</translation>
    </message>
    <message id="ui.entries.start">
      <source>Start</source>
      <translation>Início</translation>
    </message>
    <message id="ui.entries.title">
      <source>Time entries</source>
      <translation>Registros de tempo</translation>
    </message>
    <message id="ui.entries.total">
      <source>Total %1</source>
      <translation>Total: %1</translation>
    </message>
    <message id="ui.export.action">
      <source>Export for the accountant…</source>
      <translation>Exportar para o contabilista…</translation>
    </message>
    <message id="ui.export.badPeriod">
      <source>Enter both days as YYYY-MM-DD, the first not after the last.</source>
      <translation>Escreva os dois dias como AAAA-MM-DD, o primeiro não depois do último.</translation>
    </message>
    <message id="ui.export.body">
      <source>A CSV file that spreadsheets and bookkeeping programs read: one row per time entry or invoice of the period.</source>
      <translation>Um ficheiro CSV que as folhas de cálculo e os programas de contabilidade leem: uma linha por registo de tempo ou fatura do período.</translation>
    </message>
    <message id="ui.export.close">
      <source>Close</source>
      <translation>Fechar</translation>
    </message>
    <message id="ui.export.csvFilter">
      <source>CSV files (*.csv)</source>
      <translation>Ficheiros CSV (*.csv)</translation>
    </message>
    <message id="ui.export.entries">
      <source>Time entries</source>
      <translation>Registos de tempo</translation>
    </message>
    <message id="ui.export.fileTitle">
      <source>Save the CSV file</source>
      <translation>Guardar o ficheiro CSV</translation>
    </message>
    <message id="ui.export.from">
      <source>From</source>
      <translation>De</translation>
    </message>
    <message id="ui.export.invoices">
      <source>Invoices</source>
      <translation>Faturas</translation>
    </message>
    <message id="ui.export.notReady">
      <source>Choose a period and a file first.</source>
      <translation>Escolha primeiro um período e um ficheiro.</translation>
    </message>
    <message id="ui.export.save">
      <source>Save…</source>
      <translation>Guardar…</translation>
    </message>
    <message id="ui.export.saved">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 guardado (linhas: %2).</translation>
    </message>
    <message id="ui.export.saving">
      <source>Saving…</source>
      <translation>A guardar…</translation>
    </message>
    <message id="ui.export.title">
      <source>Export for the accountant</source>
      <translation>Exportar para o contabilista</translation>
    </message>
    <message id="ui.export.to">
      <source>To</source>
      <translation>Até</translation>
    </message>
    <message id="ui.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Não foi possível escrever %1: %2</translation>
    </message>
    <message id="ui.floating.hide">
      <source>Hide the floating timer</source>
      <translation>Ocultar o cronômetro flutuante</translation>
    </message>
    <message id="ui.floating.title">
      <source>Morvane timer</source>
      <translation>Cronômetro do Morvane</translation>
    </message>
    <message id="ui.idle.body">
      <source>The timer of “%1” kept running while you were away from %2 to %3. What should happen to that time?</source>
      <translation>O cronômetro de “%1” continuou rodando enquanto você esteve ausente, das %2 às %3. O que fazer com esse tempo?</translation>
    </message>
    <message id="ui.idle.discard">
      <source>Discard it and stop the timer</source>
      <translation>Descartar e parar o cronômetro</translation>
    </message>
    <message id="ui.idle.discardContinue">
      <source>Discard it and go on</source>
      <translation>Descartar e continuar</translation>
    </message>
    <message id="ui.idle.keep">
      <source>Keep the time</source>
      <translation>Manter o tempo</translation>
    </message>
    <message id="ui.idle.notification">
      <source>The timer of “%1” ran while you were away from %2 to %3.</source>
      <translation>O cronômetro de “%1” rodou enquanto você esteve ausente, das %2 às %3.</translation>
    </message>
    <message id="ui.idle.title">
      <source>You were away</source>
      <translation>Você esteve ausente</translation>
    </message>
    <message id="ui.inspector.addNote">
      <source>Add a note</source>
      <translation>Adicionar uma anotação</translation>
    </message>
    <message id="ui.inspector.addSubtask">
      <source>Add a subtask</source>
      <translation>Adicionar uma subtarefa</translation>
    </message>
    <message id="ui.inspector.assignees">
      <source>Assigned to</source>
      <translation>Atribuída a</translation>
    </message>
    <message id="ui.inspector.category">
      <source>Category</source>
      <translation>Categoria</translation>
    </message>
    <message id="ui.inspector.describe">
      <source>Notes for yourself or the client</source>
      <translation>Anotações para você ou para o cliente</translation>
    </message>
    <message id="ui.inspector.description">
      <source>Description</source>
      <translation>Descrição</translation>
    </message>
    <message id="ui.inspector.due">
      <source>Due</source>
      <translation>Prazo</translation>
    </message>
    <message id="ui.inspector.dueDate">
      <source>Due date</source>
      <translation>Data-limite</translation>
    </message>
    <message id="ui.inspector.none">
      <source>No task selected</source>
      <translation>Nenhuma tarefa selecionada</translation>
    </message>
    <message id="ui.inspector.noneHint">
      <source>Choose a task to see its details and time entries.</source>
      <translation>Escolha uma tarefa para ver os detalhes e os registros de tempo dela.</translation>
    </message>
    <message id="ui.inspector.notes">
      <source>Notes</source>
      <translation>Anotações</translation>
    </message>
    <message id="ui.inspector.ownPrice">
      <source>This task has its own price.</source>
      <translation>Esta tarefa tem preço próprio.</translation>
    </message>
    <message id="ui.inspector.price">
      <source>Price</source>
      <translation>Preço</translation>
    </message>
    <message id="ui.inspector.priority">
      <source>Priority</source>
      <translation>Prioridade</translation>
    </message>
    <message id="ui.inspector.status">
      <source>Status</source>
      <translation>Status</translation>
    </message>
    <message id="ui.inspector.subtasks">
      <source>Subtasks</source>
      <translation>Subtarefas</translation>
    </message>
    <message id="ui.inspector.title">
      <source>Task title</source>
      <translation>Título da tarefa</translation>
    </message>
    <message id="ui.invoices.allStatuses">
      <source>Every status</source>
      <translation>Todos os estados</translation>
    </message>
    <message id="ui.invoices.allYears">
      <source>Every year</source>
      <translation>Todos os anos</translation>
    </message>
    <message id="ui.invoices.client">
      <source>Client</source>
      <translation>Cliente</translation>
    </message>
    <message id="ui.invoices.deleteBody">
      <source>The invoice and its PDF leave your list for good, and its hours become unbilled again. To keep a record, void it instead.</source>
      <translation>A fatura e o PDF saem da sua lista para sempre, e as horas voltam a estar por faturar. Para manter um registo, anule-a em vez disso.</translation>
    </message>
    <message id="ui.invoices.deleteTitle">
      <source>Delete invoice %1?</source>
      <translation>Eliminar a fatura %1?</translation>
    </message>
    <message id="ui.invoices.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Fatura %1 eliminada; as horas voltam a estar por faturar.</translation>
    </message>
    <message id="ui.invoices.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>Não foi possível transferir o PDF: %1</translation>
    </message>
    <message id="ui.invoices.due">
      <source>Due</source>
      <translation>Vence</translation>
    </message>
    <message id="ui.invoices.emptyHint">
      <source>Invoices you write from your tracked time appear here, with what is still open and what is overdue.</source>
      <translation>As faturas que emitir a partir do tempo registado aparecem aqui, com o que está em aberto e o que está em atraso.</translation>
    </message>
    <message id="ui.invoices.emptyTitle">
      <source>No invoices yet</source>
      <translation>Ainda sem faturas</translation>
    </message>
    <message id="ui.invoices.fileTitle">
      <source>Save the invoice PDF</source>
      <translation>Guardar o PDF da fatura</translation>
    </message>
    <message id="ui.invoices.foreignLink">
      <source>The link to the PDF does not lead to your server, so it was not opened.</source>
      <translation>A ligação para o PDF não leva ao seu servidor, por isso não foi aberta.</translation>
    </message>
    <message id="ui.invoices.issued">
      <source>Issued</source>
      <translation>Emitida</translation>
    </message>
    <message id="ui.invoices.net">
      <source>Net</source>
      <translation>Líquido</translation>
    </message>
    <message id="ui.invoices.noMatch">
      <source>No invoice matches these filters</source>
      <translation>Nenhuma fatura corresponde a estes filtros</translation>
    </message>
    <message id="ui.invoices.noMatchHint">
      <source>Choose another status or year.</source>
      <translation>Escolha outro estado ou outro ano.</translation>
    </message>
    <message id="ui.invoices.noViewer">
      <source>No program to show PDF files was found. Save the PDF and open it from there.</source>
      <translation>Não foi encontrado nenhum programa para mostrar ficheiros PDF. Guarde o PDF e abra-o a partir daí.</translation>
    </message>
    <message id="ui.invoices.number">
      <source>Number</source>
      <translation>Número</translation>
    </message>
    <message id="ui.invoices.open">
      <source>Still open</source>
      <translation>Ainda em aberto</translation>
    </message>
    <message id="ui.invoices.openPdf">
      <source>Open PDF</source>
      <translation>Abrir PDF</translation>
    </message>
    <message id="ui.invoices.overdue">
      <source>Overdue</source>
      <translation>Em atraso</translation>
    </message>
    <message id="ui.invoices.pdfFilter">
      <source>PDF files (*.pdf)</source>
      <translation>Ficheiros PDF (*.pdf)</translation>
    </message>
    <message id="ui.invoices.redraw">
      <source>Draw again…</source>
      <translation>Gerar de novo…</translation>
    </message>
    <message id="ui.invoices.redrawBody">
      <source>This replaces the stored PDF of this invoice with a new one, built from the invoice lines and the current details of its template. Continue?</source>
      <translation>O PDF guardado desta fatura será substituído por um novo, feito a partir das linhas da fatura e dos dados atuais do seu modelo. Continuar?</translation>
    </message>
    <message id="ui.invoices.redrawConfirm">
      <source>Replace PDF</source>
      <translation>Substituir PDF</translation>
    </message>
    <message id="ui.invoices.redrawFailed">
      <source>The invoice could not be drawn: %1</source>
      <translation>Não foi possível gerar a fatura: %1</translation>
    </message>
    <message id="ui.invoices.redrawTitle">
      <source>Draw invoice %1 again?</source>
      <translation>Gerar a fatura %1 de novo?</translation>
    </message>
    <message id="ui.invoices.redrawn">
      <source>Invoice %1 was drawn again with your current details.</source>
      <translation>A fatura %1 foi gerada de novo com os seus dados atuais.</translation>
    </message>
    <message id="ui.invoices.savePdf">
      <source>Save PDF…</source>
      <translation>Guardar PDF…</translation>
    </message>
    <message id="ui.invoices.saved">
      <source>Saved to %1</source>
      <translation>Guardado em %1</translation>
    </message>
    <message id="ui.invoices.status">
      <source>Status</source>
      <translation>Estado</translation>
    </message>
    <message id="ui.invoices.status.draft">
      <source>Draft</source>
      <translation>Rascunho</translation>
    </message>
    <message id="ui.invoices.status.paid">
      <source>Paid</source>
      <translation>Paga</translation>
    </message>
    <message id="ui.invoices.status.sent">
      <source>Sent</source>
      <translation>Enviada</translation>
    </message>
    <message id="ui.invoices.status.void">
      <source>Void</source>
      <translation>Anulada</translation>
    </message>
    <message id="ui.invoices.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>A fatura %1 está agora: %2.</translation>
    </message>
    <message id="ui.invoices.statusFilter">
      <source>Status</source>
      <translation>Estado</translation>
    </message>
    <message id="ui.invoices.title">
      <source>Invoices</source>
      <translation>Faturas</translation>
    </message>
    <message id="ui.invoices.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="ui.invoices.vat">
      <source>VAT</source>
      <translation>IVA</translation>
    </message>
    <message id="ui.invoices.void">
      <source>Void…</source>
      <translation>Anular…</translation>
    </message>
    <message id="ui.invoices.voidBody">
      <source>A void invoice stays void: it can never be sent, paid or changed again. Its hours become unbilled, so you can invoice them anew.</source>
      <translation>Uma fatura anulada fica anulada: nunca mais pode ser enviada, paga ou alterada. As horas voltam a estar por faturar, para que as possa faturar de novo.</translation>
    </message>
    <message id="ui.invoices.voidConfirm">
      <source>Void</source>
      <translation>Anular</translation>
    </message>
    <message id="ui.invoices.voidFinal">
      <source>Void — final, it cannot be changed again</source>
      <translation>Anulada — definitivo, já não pode ser alterada</translation>
    </message>
    <message id="ui.invoices.voidTitle">
      <source>Void invoice %1?</source>
      <translation>Anular a fatura %1?</translation>
    </message>
    <message id="ui.invoices.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>A fatura %1 foi anulada; as horas voltam a estar por faturar.</translation>
    </message>
    <message id="ui.invoices.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>Não foi possível escrever %1: %2</translation>
    </message>
    <message id="ui.invoices.yearFilter">
      <source>Year</source>
      <translation>Ano</translation>
    </message>
    <message id="ui.onboarding.currency">
      <source>Currency</source>
      <translation>Moeda</translation>
    </message>
    <message id="ui.onboarding.language">
      <source>Language</source>
      <translation>Idioma</translation>
    </message>
    <message id="ui.onboarding.name">
      <source>Your name</source>
      <translation>Seu nome</translation>
    </message>
    <message id="ui.onboarding.rate">
      <source>Default hourly rate</source>
      <translation>Valor por hora padrão</translation>
    </message>
    <message id="ui.onboarding.rateInvalid">
      <source>Enter an amount, such as 85 or 72.50.</source>
      <translation>Digite um valor, como 85 ou 72,50.</translation>
    </message>
    <message id="ui.onboarding.timeZone">
      <source>Time zone</source>
      <translation>Fuso horário</translation>
    </message>
    <message id="ui.palette.action">
      <source>Action</source>
      <translation>Ação</translation>
    </message>
    <message id="ui.palette.ai">
      <source>AI</source>
      <translation>IA</translation>
    </message>
    <message id="ui.palette.capture">
      <source>Quick add “%1”</source>
      <translation>Adição rápida “%1”</translation>
    </message>
    <message id="ui.palette.none">
      <source>Nothing matches.</source>
      <translation>Nenhum resultado.</translation>
    </message>
    <message id="ui.palette.placeholder">
      <source>Search projects, tasks and actions</source>
      <translation>Pesquisar projetos, tarefas e ações</translation>
    </message>
    <message id="ui.palette.project">
      <source>Project</source>
      <translation>Projeto</translation>
    </message>
    <message id="ui.palette.task">
      <source>Task</source>
      <translation>Tarefa</translation>
    </message>
    <message id="ui.prices.edit">
      <source>Change the price…</source>
      <translation>Alterar o preço…</translation>
    </message>
    <message id="ui.prices.invalid">
      <source>A field in red cannot be read as a number. Correct it to save.</source>
      <translation>Um campo em vermelho não pode ser lido como número. Corrija-o para salvar.</translation>
    </message>
    <message id="ui.prices.project">
      <source>Price…</source>
      <translation>Preço…</translation>
    </message>
    <message id="ui.priority.high">
      <source>High</source>
      <translation>Alta</translation>
    </message>
    <message id="ui.priority.low">
      <source>Low</source>
      <translation>Baixa</translation>
    </message>
    <message id="ui.priority.medium">
      <source>Medium</source>
      <translation>Média</translation>
    </message>
    <message id="ui.projects.actions">
      <source>Project actions</source>
      <translation>Ações do projeto</translation>
    </message>
    <message id="ui.projects.archive">
      <source>Archive</source>
      <translation>Arquivar</translation>
    </message>
    <message id="ui.projects.delete">
      <source>Delete project…</source>
      <translation>Excluir projeto…</translation>
    </message>
    <message id="ui.projects.deleteBody">
      <source>Its tasks and their time entries are deleted too. This cannot be undone.</source>
      <translation>As tarefas do projeto e os registros de tempo delas também serão excluídos. Não é possível desfazer.</translation>
    </message>
    <message id="ui.projects.deleteTitle">
      <source>Delete %1?</source>
      <translation>Excluir %1?</translation>
    </message>
    <message id="ui.projects.describe">
      <source>Add a description</source>
      <translation>Adicionar uma descrição</translation>
    </message>
    <message id="ui.projects.invoice">
      <source>Create invoice…</source>
      <translation>Criar fatura…</translation>
    </message>
    <message id="ui.projects.markActive">
      <source>Mark as active</source>
      <translation>Marcar como ativo</translation>
    </message>
    <message id="ui.projects.markCompleted">
      <source>Mark as completed</source>
      <translation>Marcar como concluído</translation>
    </message>
    <message id="ui.projects.name">
      <source>Project name</source>
      <translation>Nome do projeto</translation>
    </message>
    <message id="ui.projects.notShared">
      <source>Not shared</source>
      <translation>Não compartilhado</translation>
    </message>
    <message id="ui.projects.share">
      <source>Share with a team</source>
      <translation>Compartilhar com uma equipe</translation>
    </message>
    <message id="ui.projects.status.active">
      <source>Active</source>
      <translation>Ativo</translation>
    </message>
    <message id="ui.projects.status.archived">
      <source>Archived</source>
      <translation>Arquivado</translation>
    </message>
    <message id="ui.projects.status.completed">
      <source>Completed</source>
      <translation>Concluído</translation>
    </message>
    <message id="ui.projects.viewOnly">
      <source>View only</source>
      <translation>Somente leitura</translation>
    </message>
    <message id="ui.reminder.body">
      <source>Start a timer so that the work you are doing now is counted.</source>
      <translation>Inicie um cronômetro para que o trabalho que você está fazendo agora seja contado.</translation>
    </message>
    <message id="ui.reminder.title">
      <source>No timer is running</source>
      <translation>Nenhum cronômetro em andamento</translation>
    </message>
    <message id="ui.sessions.autoTrack">
      <source>Auto-track Claude sessions</source>
      <translation>Registar automaticamente as sessões do Claude</translation>
    </message>
    <message id="ui.sessions.burstLine">
      <source>%1 · %2 prompts</source>
      <translation>%1 · %2 pedidos</translation>
    </message>
    <message id="ui.sessions.burstLineOne">
      <source>%1 · 1 prompt</source>
      <translation>%1 · 1 pedido</translation>
    </message>
    <message id="ui.sessions.commit">
      <source>Log to project</source>
      <translation>Registar no projeto</translation>
    </message>
    <message id="ui.sessions.earlier">
      <source>Earlier</source>
      <translation>Antes</translation>
    </message>
    <message id="ui.sessions.emptyHint">
      <source>Run a claude session in any folder on this computer (Claude Code, the command line, anything that writes to ~/.claude/projects/). Then press Rescan. Sessions from the last 30 days are picked up.</source>
      <translation>Inicie uma sessão claude em qualquer pasta deste computador (Claude Code, a linha de comandos, tudo o que escreve em ~/.claude/projects/). Depois carregue em Voltar a verificar. São lidas as sessões dos últimos 30 dias.</translation>
    </message>
    <message id="ui.sessions.emptyTitle">
      <source>No Claude sessions parsed yet</source>
      <translation>Ainda não foi lida nenhuma sessão do Claude</translation>
    </message>
    <message id="ui.sessions.err.createProject">
      <source>Create project failed: %1</source>
      <translation>Falha ao criar o projeto: %1</translation>
    </message>
    <message id="ui.sessions.explainMapping">
      <source>Sessions are tied to their working directory. You map each working dir to one of your projects once; from then on every new conversation in that repo logs automatically. Idle gaps longer than 5 minutes are excluded so an overnight pause does not bill 8 hours.</source>
      <translation>As sessões pertencem à sua pasta de trabalho. Liga cada pasta uma vez a um dos seus projetos; a partir daí cada nova conversa nesse repositório é registada sozinha. Pausas de mais de 5 minutos ficam de fora, para uma noite não faturar 8 horas.</translation>
    </message>
    <message id="ui.sessions.explainPrefix">
      <source>Resulting tasks are prefixed [AI] so you can tell a client exactly what part of the work was AI-assisted.</source>
      <translation>As tarefas assim criadas começam por [AI], para poder dizer a um cliente que parte do trabalho teve ajuda de IA.</translation>
    </message>
    <message id="ui.sessions.explainScan">
      <source>Every minute Morvane scans your local Claude Code sessions (~/.claude/projects/) and turns each one into a billable time entry on the matching Morvane project.</source>
      <translation>A cada minuto o Morvane verifica as suas sessões locais do Claude Code (~/.claude/projects/) e transforma cada uma em tempo faturável no projeto Morvane correspondente.</translation>
    </message>
    <message id="ui.sessions.fewer">
      <source>Show fewer</source>
      <translation>Mostrar menos</translation>
    </message>
    <message id="ui.sessions.folderProject">
      <source>Auto-created for Claude sessions in %1</source>
      <translation>Criado automaticamente para as sessões do Claude em %1</translation>
    </message>
    <message id="ui.sessions.idleGap">
      <source>Idle gap (minutes)</source>
      <translation>Limite de pausa (minutos)</translation>
    </message>
    <message id="ui.sessions.idleGapHelp">
      <source>Gaps longer than this between messages are treated as idle and excluded. 15 min covers most typing pauses.</source>
      <translation>As pausas mais longas entre mensagens contam como inatividade e ficam de fora. 15 min cobrem quase todas as pausas de escrita.</translation>
    </message>
    <message id="ui.sessions.ignore">
      <source>Ignore</source>
      <translation>Ignorar</translation>
    </message>
    <message id="ui.sessions.lastWeek">
      <source>Last week</source>
      <translation>Na semana passada</translation>
    </message>
    <message id="ui.sessions.link">
      <source>Link to a project…</source>
      <translation>Ligar a um projeto…</translation>
    </message>
    <message id="ui.sessions.list">
      <source>Sessions</source>
      <translation>Sessões</translation>
    </message>
    <message id="ui.sessions.loading">
      <source>Reading your sessions…</source>
      <translation>A ler as suas sessões…</translation>
    </message>
    <message id="ui.sessions.logHelp">
      <source>Log this session to a project, split into %1 tasks by natural breaks</source>
      <translation>Registar esta sessão num projeto, dividida em %1 tarefas pelas pausas naturais</translation>
    </message>
    <message id="ui.sessions.logTo">
      <source>Log to…</source>
      <translation>Registar em…</translation>
    </message>
    <message id="ui.sessions.logged">
      <source>Logged %1 of %2 work bursts.</source>
      <translation>Registados %1 de %2 blocos de trabalho.</translation>
    </message>
    <message id="ui.sessions.loggedChip">
      <source>Logged</source>
      <translation>Registada</translation>
    </message>
    <message id="ui.sessions.manyTasks">
      <source>%1 tasks</source>
      <translation>%1 tarefas</translation>
    </message>
    <message id="ui.sessions.more">
      <source>Show all %1 sessions</source>
      <translation>Mostrar as %1 sessões</translation>
    </message>
    <message id="ui.sessions.newProject">
      <source>Create new project named "%1"</source>
      <translation>Criar o projeto "%1"</translation>
    </message>
    <message id="ui.sessions.noScan">
      <source>No scan yet.</source>
      <translation>Ainda sem verificação.</translation>
    </message>
    <message id="ui.sessions.notLinked">
      <source>Not linked yet</source>
      <translation>Ainda sem ligação</translation>
    </message>
    <message id="ui.sessions.oneTask">
      <source>1 task</source>
      <translation>1 tarefa</translation>
    </message>
    <message id="ui.sessions.pendingIntro">
      <source>These directories have Claude sessions waiting to be logged. Pick a Morvane project (or Ignore) for each.</source>
      <translation>Estas pastas têm sessões do Claude à espera de registo. Escolha um projeto Morvane (ou Ignorar) para cada uma.</translation>
    </message>
    <message id="ui.sessions.pendingLine">
      <source>%1 · %2 sessions · %3 active</source>
      <translation>%1 · %2 sessões · %3 ativo</translation>
    </message>
    <message id="ui.sessions.previewTitle">
      <source>Review and log to: %1 (%2)</source>
      <translation>Rever e registar em: %1 (%2)</translation>
    </message>
    <message id="ui.sessions.reimport">
      <source>Re-import</source>
      <translation>Importar de novo</translation>
    </message>
    <message id="ui.sessions.reimportAll">
      <source>Re-import all sessions</source>
      <translation>Importar de novo todas as sessões</translation>
    </message>
    <message id="ui.sessions.reimportAllBody">
      <source>Every session is logged again at the next scan. Tasks made earlier stay; delete them yourself if you do not want them twice.</source>
      <translation>Cada sessão volta a ser registada na próxima verificação. As tarefas criadas antes ficam; apague-as se não as quiser em duplicado.</translation>
    </message>
    <message id="ui.sessions.reimportAllTitle">
      <source>Re-import all sessions?</source>
      <translation>Importar de novo todas as sessões?</translation>
    </message>
    <message id="ui.sessions.reimportHelp">
      <source>Re-import this session (forget previous log)</source>
      <translation>Importar de novo esta sessão (esquecer o registo anterior)</translation>
    </message>
    <message id="ui.sessions.rescan">
      <source>Rescan</source>
      <translation>Voltar a verificar</translation>
    </message>
    <message id="ui.sessions.result">
      <source>Last scan %1: %2 sessions found, %3 work bursts logged (%4), %5 sessions waiting for a project.</source>
      <translation>Última verificação %1: %2 sessões encontradas, %3 blocos de trabalho registados (%4), %5 sessões à espera de um projeto.</translation>
    </message>
    <message id="ui.sessions.scanNow">
      <source>Scan now</source>
      <translation>Verificar agora</translation>
    </message>
    <message id="ui.sessions.sessionLine">
      <source>%1 · %2 active · %3 bursts</source>
      <translation>%1 · %2 ativo · %3 blocos</translation>
    </message>
    <message id="ui.sessions.sessionLineOne">
      <source>%1 · %2 active</source>
      <translation>%1 · %2 ativo</translation>
    </message>
    <message id="ui.sessions.sessionProject">
      <source>Auto-created for Claude session %1</source>
      <translation>Criado automaticamente para a sessão do Claude %1</translation>
    </message>
    <message id="ui.sessions.thisWeek">
      <source>Earlier this week</source>
      <translation>Mais cedo esta semana</translation>
    </message>
    <message id="ui.sessions.title">
      <source>AI sessions</source>
      <translation>Sessões de IA</translation>
    </message>
    <message id="ui.sessions.today">
      <source>Today</source>
      <translation>Hoje</translation>
    </message>
    <message id="ui.sessions.tracking">
      <source>Tracking</source>
      <translation>Registo</translation>
    </message>
    <message id="ui.sessions.untitled">
      <source>Claude session</source>
      <translation>Sessão do Claude</translation>
    </message>
    <message id="ui.sessions.yesterday">
      <source>Yesterday</source>
      <translation>Ontem</translation>
    </message>
    <message id="ui.settings.account">
      <source>Account</source>
      <translation>Conta</translation>
    </message>
    <message id="ui.settings.ai">
      <source>AI</source>
      <translation>IA</translation>
    </message>
    <message id="ui.settings.appearance">
      <source>Appearance</source>
      <translation>Aparência</translation>
    </message>
    <message id="ui.settings.autostart">
      <source>Start Morvane when I log in</source>
      <translation>Abrir o Morvane ao iniciar a sessão</translation>
    </message>
    <message id="ui.settings.backend">
      <source>Backend</source>
      <translation>Servidor</translation>
    </message>
    <message id="ui.settings.backend.apply">
      <source>Use this backend</source>
      <translation>Usar este servidor</translation>
    </message>
    <message id="ui.settings.backend.invalid">
      <source>Enter the server's https address and its public key.</source>
      <translation>Informe o endereço https do servidor e a chave pública dele.</translation>
    </message>
    <message id="ui.settings.backend.local">
      <source>This computer (private, nothing to set up)</source>
      <translation>Este computador (privado, nada para configurar)</translation>
    </message>
    <message id="ui.settings.backend.remote">
      <source>A shared server (for teams and several computers)</source>
      <translation>Um servidor compartilhado (para equipes e vários computadores)</translation>
    </message>
    <message id="ui.settings.deleteAccount">
      <source>Delete my account</source>
      <translation>Excluir minha conta</translation>
    </message>
    <message id="ui.settings.deleteConfirm">
      <source>Your e-mail address, to confirm</source>
      <translation>Seu e-mail, para confirmar</translation>
    </message>
    <message id="ui.settings.deleteHint">
      <source>Deleting your account removes your projects, tasks, time and invoices from the server for good. Type your e-mail address to confirm.</source>
      <translation>Excluir sua conta apaga de vez do servidor seus projetos, tarefas, horas e faturas. Digite seu e-mail para confirmar.</translation>
    </message>
    <message id="ui.settings.endOfDay">
      <source>Stop the timer at the end of the day</source>
      <translation>Parar o cronômetro no fim do dia</translation>
    </message>
    <message id="ui.settings.every">
      <source>every (minutes)</source>
      <translation>a cada (minutos)</translation>
    </message>
    <message id="ui.settings.from">
      <source>From</source>
      <translation>Das</translation>
    </message>
    <message id="ui.settings.idleAfter">
      <source>Ask about idle time after (minutes)</source>
      <translation>Perguntar sobre tempo ocioso após (minutos)</translation>
    </message>
    <message id="ui.settings.local.folder">
      <source>Data folder</source>
      <translation>Pasta de dados</translation>
    </message>
    <message id="ui.settings.local.running">
      <source>Running</source>
      <translation>Em execução</translation>
    </message>
    <message id="ui.settings.local.size">
      <source>Size</source>
      <translation>Tamanho</translation>
    </message>
    <message id="ui.settings.local.start">
      <source>Start</source>
      <translation>Iniciar</translation>
    </message>
    <message id="ui.settings.local.starting">
      <source>Starting</source>
      <translation>Iniciando</translation>
    </message>
    <message id="ui.settings.local.state">
      <source>State</source>
      <translation>Estado</translation>
    </message>
    <message id="ui.settings.local.stop">
      <source>Stop</source>
      <translation>Parar</translation>
    </message>
    <message id="ui.settings.local.stopped">
      <source>Stopped</source>
      <translation>Parado</translation>
    </message>
    <message id="ui.settings.longestRun">
      <source>Longest run (minutes, 0 for none)</source>
      <translation>Duração máxima (minutos, 0 para nenhuma)</translation>
    </message>
    <message id="ui.settings.looks">
      <source>Language and appearance</source>
      <translation>Idioma e aparência</translation>
    </message>
    <message id="ui.settings.profile">
      <source>Profile</source>
      <translation>Perfil</translation>
    </message>
    <message id="ui.settings.reminders">
      <source>Remind me when no timer runs during working hours</source>
      <translation>Lembrar-me quando nenhum cronômetro estiver rodando no horário de trabalho</translation>
    </message>
    <message id="ui.settings.remote.key">
      <source>Public key</source>
      <translation>Chave pública</translation>
    </message>
    <message id="ui.settings.remote.url">
      <source>Address</source>
      <translation>Endereço</translation>
    </message>
    <message id="ui.settings.saved">
      <source>Saved.</source>
      <translation>Salvo.</translation>
    </message>
    <message id="ui.settings.scheme.dark">
      <source>Dark</source>
      <translation>Escuro</translation>
    </message>
    <message id="ui.settings.scheme.light">
      <source>Light</source>
      <translation>Claro</translation>
    </message>
    <message id="ui.settings.scheme.system">
      <source>As the desktop</source>
      <translation>Como a área de trabalho</translation>
    </message>
    <message id="ui.settings.signedInAs">
      <source>Signed in as %1</source>
      <translation>Conectado como %1</translation>
    </message>
    <message id="ui.settings.switchTo">
      <source>Switch to %1</source>
      <translation>Mudar para %1</translation>
    </message>
    <message id="ui.settings.timer">
      <source>Timer</source>
      <translation>Cronômetro</translation>
    </message>
    <message id="ui.settings.to">
      <source>to</source>
      <translation>às</translation>
    </message>
    <message id="ui.sidebar.newProjectName">
      <source>New project name</source>
      <translation>Nome do novo projeto</translation>
    </message>
    <message id="ui.sidebar.newTeamName">
      <source>New team name</source>
      <translation>Nome da nova equipe</translation>
    </message>
    <message id="ui.sidebar.overview">
      <source>All projects</source>
      <translation>Todos os projetos</translation>
    </message>
    <message id="ui.sidebar.projects">
      <source>Projects</source>
      <translation>Projetos</translation>
    </message>
    <message id="ui.sidebar.running">
      <source>Timer running</source>
      <translation>Cronômetro em andamento</translation>
    </message>
    <message id="ui.sidebar.shared">
      <source>Shared with a team</source>
      <translation>Compartilhados com uma equipe</translation>
    </message>
    <message id="ui.sidebar.teams">
      <source>Teams</source>
      <translation>Equipes</translation>
    </message>
    <message id="ui.startup.backend">
      <source>Starting your local backend…</source>
      <translation>Iniciando seu servidor local…</translation>
    </message>
    <message id="ui.startup.failed">
      <source>Your local backend could not start.</source>
      <translation>Não foi possível iniciar seu servidor local.</translation>
    </message>
    <message id="ui.startup.loading">
      <source>Loading your projects…</source>
      <translation>Carregando seus projetos…</translation>
    </message>
    <message id="ui.status.completed">
      <source>Completed</source>
      <translation>Concluída</translation>
    </message>
    <message id="ui.status.in_progress">
      <source>In progress</source>
      <translation>Em andamento</translation>
    </message>
    <message id="ui.status.not_started">
      <source>Not started</source>
      <translation>Não iniciada</translation>
    </message>
    <message id="ui.style.accent">
      <source>Accent</source>
      <translation>Destaque</translation>
    </message>
    <message id="ui.style.address">
      <source>Address</source>
      <translation>Morada</translation>
    </message>
    <message id="ui.style.bank">
      <source>Bank</source>
      <translation>Banco</translation>
    </message>
    <message id="ui.style.banner">
      <source>Banner</source>
      <translation>Faixa</translation>
    </message>
    <message id="ui.style.border">
      <source>Border</source>
      <translation>Contorno</translation>
    </message>
    <message id="ui.style.btw">
      <source>VAT number</source>
      <translation>NIF</translation>
    </message>
    <message id="ui.style.chooseLogo">
      <source>Choose logo…</source>
      <translation>Escolher logótipo…</translation>
    </message>
    <message id="ui.style.colourAuto">
      <source>auto</source>
      <translation>auto</translation>
    </message>
    <message id="ui.style.company">
      <source>Company</source>
      <translation>Empresa</translation>
    </message>
    <message id="ui.style.customHint">
      <source>An HTML page with {{placeholders}}, a &lt;header&gt; and a &lt;footer&gt;, fixed at 794 × 1123 px. When it cannot be used, invoices are drawn in “Light minimal”.</source>
      <translation>Uma página HTML com {{marcadores}}, um &lt;header&gt; e um &lt;footer&gt;, fixada em 794 × 1123 px. Se não puder ser usada, as faturas usam o design «Claro minimalista».</translation>
    </message>
    <message id="ui.style.customTitle">
      <source>Your own template</source>
      <translation>O seu próprio modelo</translation>
    </message>
    <message id="ui.style.days">
      <source>Payment terms in days</source>
      <translation>Prazo de pagamento em dias</translation>
    </message>
    <message id="ui.style.design.aiCustom">
      <source>Your template</source>
      <translation>O seu modelo</translation>
    </message>
    <message id="ui.style.design.boldDark">
      <source>Bold dark</source>
      <translation>Escuro marcante</translation>
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
      <translation>Claro minimalista</translation>
    </message>
    <message id="ui.style.design.minimalistMono">
      <source>Minimalist mono</source>
      <translation>Minimalista mono</translation>
    </message>
    <message id="ui.style.design.modernRibbon">
      <source>Modern ribbon</source>
      <translation>Fita moderna</translation>
    </message>
    <message id="ui.style.design.pastelModern">
      <source>Pastel modern</source>
      <translation>Pastel moderno</translation>
    </message>
    <message id="ui.style.design.signatureEditorial">
      <source>Signature</source>
      <translation>Assinatura</translation>
    </message>
    <message id="ui.style.designs">
      <source>Design</source>
      <translation>Design</translation>
    </message>
    <message id="ui.style.designsHint">
      <source>Every new invoice is drawn in the chosen design. The pictures show a sample invoice in your style.</source>
      <translation>Cada nova fatura usa o design escolhido. As imagens mostram uma fatura de exemplo no seu estilo.</translation>
    </message>
    <message id="ui.style.drawing">
      <source>Drawing the designs</source>
      <translation>A desenhar os designs</translation>
    </message>
    <message id="ui.style.email">
      <source>E-mail</source>
      <translation>E-mail</translation>
    </message>
    <message id="ui.style.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>O prazo de pagamento é um número inteiro de dias entre 0 e 365.</translation>
    </message>
    <message id="ui.style.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>A taxa de IVA é uma percentagem entre 0 e 100.</translation>
    </message>
    <message id="ui.style.fallsBack">
      <source>%1 Invoices fall back to “Light minimal” until it is fixed.</source>
      <translation>%1 Até ser corrigido, as faturas usam o design «Claro minimalista».</translation>
    </message>
    <message id="ui.style.fontAuto">
      <source>The design’s own</source>
      <translation>A do design</translation>
    </message>
    <message id="ui.style.fontBody">
      <source>Text font</source>
      <translation>Tipo de letra do texto</translation>
    </message>
    <message id="ui.style.fontDisplay">
      <source>Headings font</source>
      <translation>Tipo de letra dos títulos</translation>
    </message>
    <message id="ui.style.footer">
      <source>Footer</source>
      <translation>Rodapé</translation>
    </message>
    <message id="ui.style.footerPlaceholder">
      <source>Thank you for your business.</source>
      <translation>Obrigado pela preferência.</translation>
    </message>
    <message id="ui.style.htmlFilter">
      <source>HTML files (*.html *.htm)</source>
      <translation>Ficheiros HTML (*.html *.htm)</translation>
    </message>
    <message id="ui.style.iban">
      <source>Bank account (IBAN)</source>
      <translation>Conta bancária (IBAN)</translation>
    </message>
    <message id="ui.style.imageFilter">
      <source>Images (*.png *.jpg *.jpeg)</source>
      <translation>Imagens (*.png *.jpg *.jpeg)</translation>
    </message>
    <message id="ui.style.ink">
      <source>Ink</source>
      <translation>Texto</translation>
    </message>
    <message id="ui.style.kvk">
      <source>Chamber of commerce number</source>
      <translation>Número de registo comercial</translation>
    </message>
    <message id="ui.style.logo">
      <source>Logo</source>
      <translation>Logótipo</translation>
    </message>
    <message id="ui.style.logoDialog">
      <source>Choose a logo</source>
      <translation>Escolher um logótipo</translation>
    </message>
    <message id="ui.style.logoHint">
      <source>PNG or JPEG, at most 1 MB; wider than 600 px is scaled down.</source>
      <translation>PNG ou JPEG, 1 MB no máximo; com mais de 600 px de largura é reduzido.</translation>
    </message>
    <message id="ui.style.look">
      <source>Look</source>
      <translation>Aspeto</translation>
    </message>
    <message id="ui.style.madeWith">
      <source>Show “Made with Morvane” in the footer</source>
      <translation>Mostrar «Feito com Morvane» no rodapé</translation>
    </message>
    <message id="ui.style.muted">
      <source>Muted</source>
      <translation>Suave</translation>
    </message>
    <message id="ui.style.noLogo">
      <source>No logo</source>
      <translation>Sem logótipo</translation>
    </message>
    <message id="ui.style.noTemplate">
      <source>No template uploaded: invoices use the design chosen above.</source>
      <translation>Nenhum modelo carregado: as faturas usam o design escolhido acima.</translation>
    </message>
    <message id="ui.style.palette">
      <source>Palette</source>
      <translation>Paleta</translation>
    </message>
    <message id="ui.style.paper">
      <source>Paper</source>
      <translation>Papel</translation>
    </message>
    <message id="ui.style.phone">
      <source>Phone</source>
      <translation>Telefone</translation>
    </message>
    <message id="ui.style.removeLogo">
      <source>Remove logo</source>
      <translation>Remover logótipo</translation>
    </message>
    <message id="ui.style.removeTemplate">
      <source>Remove template</source>
      <translation>Remover modelo</translation>
    </message>
    <message id="ui.style.revert">
      <source>Undo changes</source>
      <translation>Anular alterações</translation>
    </message>
    <message id="ui.style.saving">
      <source>Saving…</source>
      <translation>A guardar…</translation>
    </message>
    <message id="ui.style.sender">
      <source>Sender</source>
      <translation>Remetente</translation>
    </message>
    <message id="ui.style.templateDialog">
      <source>Choose an HTML template</source>
      <translation>Escolher um modelo HTML</translation>
    </message>
    <message id="ui.style.templateNotUsed">
      <source>Not used</source>
      <translation>Não usado</translation>
    </message>
    <message id="ui.style.templateUsed">
      <source>Used</source>
      <translation>Em uso</translation>
    </message>
    <message id="ui.style.title">
      <source>Invoice style</source>
      <translation>Estilo da fatura</translation>
    </message>
    <message id="ui.style.unsaved">
      <source>Unsaved changes</source>
      <translation>Alterações por guardar</translation>
    </message>
    <message id="ui.style.upload">
      <source>Upload template…</source>
      <translation>Carregar modelo…</translation>
    </message>
    <message id="ui.style.vatRate">
      <source>Default VAT rate in %</source>
      <translation>Taxa de IVA predefinida em %</translation>
    </message>
    <message id="ui.style.website">
      <source>Website</source>
      <translation>Site</translation>
    </message>
    <message id="ui.summary.callFailed">
      <source>The model could not be asked (%1). This text is written from your figures alone.</source>
      <translation>Não foi possível perguntar ao modelo (%1). Este texto foi escrito apenas a partir dos seus números.</translation>
    </message>
    <message id="ui.summary.copy">
      <source>Copy</source>
      <translation>Copiar</translation>
    </message>
    <message id="ui.summary.draftingStandup">
      <source>Drafting your stand-up…</source>
      <translation>A preparar o seu stand-up…</translation>
    </message>
    <message id="ui.summary.fixed">
      <source>Written from your figures</source>
      <translation>Escrito a partir dos seus números</translation>
    </message>
    <message id="ui.summary.generate">
      <source>Generate</source>
      <translation>Gerar</translation>
    </message>
    <message id="ui.summary.language">
      <source>Language of the text</source>
      <translation>Idioma do texto</translation>
    </message>
    <message id="ui.summary.model">
      <source>Written by the model, checked against your figures</source>
      <translation>Escrito pelo modelo, verificado com os seus números</translation>
    </message>
    <message id="ui.summary.nothing">
      <source>Nothing was tracked in this period, so there was nothing to put in words.</source>
      <translation>Nada foi registado neste período, por isso não havia nada para pôr em palavras.</translation>
    </message>
    <message id="ui.summary.readFailed">
      <source>Your time could not be read: %1</source>
      <translation>Não foi possível ler o seu tempo: %1</translation>
    </message>
    <message id="ui.summary.recap">
      <source>Weekly recap</source>
      <translation>Resumo semanal</translation>
    </message>
    <message id="ui.summary.recapHint">
      <source>Press Generate for a short recap of the time you tracked this week.</source>
      <translation>Carregue em Gerar para um breve resumo do tempo registado esta semana.</translation>
    </message>
    <message id="ui.summary.rejected">
      <source>The model's words did not hold up against your figures (%1). This text is written from your figures alone.</source>
      <translation>As palavras do modelo não batiam com os seus números (%1). Este texto foi escrito apenas a partir dos seus números.</translation>
    </message>
    <message id="ui.summary.standup">
      <source>Daily stand-up</source>
      <translation>Stand-up diário</translation>
    </message>
    <message id="ui.summary.standupHint">
      <source>Press Generate to draft your stand-up.</source>
      <translation>Carregue em Gerar para preparar o seu stand-up.</translation>
    </message>
    <message id="ui.summary.textName">
      <source>Recap or stand-up text</source>
      <translation>Texto do resumo ou stand-up</translation>
    </message>
    <message id="ui.summary.title">
      <source>Recap and stand-up</source>
      <translation>Resumo e stand-up</translation>
    </message>
    <message id="ui.summary.uiLanguage">
      <source>Interface language</source>
      <translation>Idioma da interface</translation>
    </message>
    <message id="ui.summary.writingRecap">
      <source>Writing your recap…</source>
      <translation>A escrever o seu resumo…</translation>
    </message>
    <message id="ui.tasks.add">
      <source>Add a task and press Enter</source>
      <translation>Adicione uma tarefa e pressione Enter</translation>
    </message>
    <message id="ui.tasks.bulkDeleteTitle">
      <source>Delete the selected tasks (%1)?</source>
      <translation>Excluir as tarefas selecionadas (%1)?</translation>
    </message>
    <message id="ui.tasks.check">
      <source>Select %1</source>
      <translation>Selecionar %1</translation>
    </message>
    <message id="ui.tasks.clearSelection">
      <source>Clear</source>
      <translation>Limpar</translation>
    </message>
    <message id="ui.tasks.deleteBody">
      <source>Its time entries are deleted too.</source>
      <translation>Os registros de tempo dela também serão excluídos.</translation>
    </message>
    <message id="ui.tasks.deleteTitle">
      <source>Delete this task?</source>
      <translation>Excluir esta tarefa?</translation>
    </message>
    <message id="ui.tasks.dragHandle">
      <source>Drag to reorder</source>
      <translation>Arraste para reordenar</translation>
    </message>
    <message id="ui.tasks.empty">
      <source>No tasks yet.</source>
      <translation>Ainda não há tarefas.</translation>
    </message>
    <message id="ui.tasks.emptyHint">
      <source>Press Ctrl+N to add one.</source>
      <translation>Pressione Ctrl+N para adicionar uma.</translation>
    </message>
    <message id="ui.tasks.filter">
      <source>Filter</source>
      <translation>Filtrar</translation>
    </message>
    <message id="ui.tasks.filter.active">
      <source>Open</source>
      <translation>Pendentes</translation>
    </message>
    <message id="ui.tasks.filter.all">
      <source>All</source>
      <translation>Todas</translation>
    </message>
    <message id="ui.tasks.filter.archived">
      <source>Archived</source>
      <translation>Arquivadas</translation>
    </message>
    <message id="ui.tasks.filter.done">
      <source>Done</source>
      <translation>Concluídas</translation>
    </message>
    <message id="ui.tasks.list">
      <source>Tasks</source>
      <translation>Tarefas</translation>
    </message>
    <message id="ui.tasks.markDone">
      <source>Mark done</source>
      <translation>Concluir</translation>
    </message>
    <message id="ui.tasks.moveTo">
      <source>Move to…</source>
      <translation>Mover para…</translation>
    </message>
    <message id="ui.tasks.needsProject">
      <source>Create a project first: tasks belong to a project.</source>
      <translation>Crie um projeto primeiro: as tarefas sempre pertencem a um projeto.</translation>
    </message>
    <message id="ui.tasks.noMatch">
      <source>No task matches “%1”.</source>
      <translation>Nenhuma tarefa corresponde a “%1”.</translation>
    </message>
    <message id="ui.tasks.noMatchHint">
      <source>Try fewer letters, or press Esc to clear the search.</source>
      <translation>Tente com menos letras ou pressione Esc para limpar a pesquisa.</translation>
    </message>
    <message id="ui.tasks.noProjects">
      <source>No projects yet.</source>
      <translation>Ainda não há projetos.</translation>
    </message>
    <message id="ui.tasks.noProjectsHint">
      <source>Press Ctrl+Shift+N to create your first project.</source>
      <translation>Pressione Ctrl+Shift+N para criar seu primeiro projeto.</translation>
    </message>
    <message id="ui.tasks.reopen">
      <source>Reopen</source>
      <translation>Reabrir</translation>
    </message>
    <message id="ui.tasks.search">
      <source>Search</source>
      <translation>Pesquisar</translation>
    </message>
    <message id="ui.tasks.selected">
      <source>%1 selected</source>
      <translation>Selecionadas: %1</translation>
    </message>
    <message id="ui.tasks.sort">
      <source>Sort</source>
      <translation>Ordenar</translation>
    </message>
    <message id="ui.tasks.sort.alpha">
      <source>Name</source>
      <translation>Nome</translation>
    </message>
    <message id="ui.tasks.sort.createdDesc">
      <source>Newest first</source>
      <translation>Mais recentes primeiro</translation>
    </message>
    <message id="ui.tasks.sort.dueAsc">
      <source>Due date</source>
      <translation>Prazo</translation>
    </message>
    <message id="ui.tasks.sort.manual">
      <source>Manual order</source>
      <translation>Ordem manual</translation>
    </message>
    <message id="ui.tasks.sort.priorityDesc">
      <source>Priority</source>
      <translation>Prioridade</translation>
    </message>
    <message id="ui.tasks.sort.trackedDesc">
      <source>Most tracked</source>
      <translation>Mais tempo registrado</translation>
    </message>
    <message id="ui.teams.accept">
      <source>Accept</source>
      <translation>Aceitar</translation>
    </message>
    <message id="ui.teams.decline">
      <source>Decline</source>
      <translation>Recusar</translation>
    </message>
    <message id="ui.teams.invitations">
      <source>Invitations for you</source>
      <translation>Convites para você</translation>
    </message>
    <message id="ui.teams.invite">
      <source>Invite by e-mail</source>
      <translation>Convidar por e-mail</translation>
    </message>
    <message id="ui.teams.inviteButton">
      <source>Invite</source>
      <translation>Convidar</translation>
    </message>
    <message id="ui.teams.leave">
      <source>Leave the team</source>
      <translation>Sair da equipe</translation>
    </message>
    <message id="ui.teams.leaveTitle">
      <source>Leave %1?</source>
      <translation>Sair de %1?</translation>
    </message>
    <message id="ui.teams.members">
      <source>Members</source>
      <translation>Membros</translation>
    </message>
    <message id="ui.teams.remove">
      <source>Remove</source>
      <translation>Remover</translation>
    </message>
    <message id="ui.teams.removeBody">
      <source>The team's projects are no longer shared with them. Their own time stays theirs.</source>
      <translation>Os projetos da equipe deixam de ser compartilhados com essa pessoa. As horas dela continuam sendo dela.</translation>
    </message>
    <message id="ui.teams.removeTitle">
      <source>Remove this member?</source>
      <translation>Remover este membro?</translation>
    </message>
    <message id="ui.teams.role">
      <source>Role</source>
      <translation>Função</translation>
    </message>
    <message id="ui.teams.role.editor">
      <source>Editor</source>
      <translation>Editor</translation>
    </message>
    <message id="ui.teams.role.owner">
      <source>Owner</source>
      <translation>Proprietário</translation>
    </message>
    <message id="ui.teams.role.viewer">
      <source>Viewer</source>
      <translation>Leitor</translation>
    </message>
    <message id="ui.teams.viewerNote">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Somente o proprietário e os editores da equipe podem convidar pessoas.</translation>
    </message>
    <message id="ui.timeLimit.body">
      <source>“%1” was stopped at %2, and the time until then is logged.</source>
      <translation>“%1” foi parado às %2; o tempo até então foi registrado.</translation>
    </message>
    <message id="ui.timeLimit.endOfDay">
      <source>Timer stopped at the end of your day</source>
      <translation>Cronômetro parado no fim do seu dia de trabalho</translation>
    </message>
    <message id="ui.timeLimit.longestRun">
      <source>Timer stopped after its longest run</source>
      <translation>Cronômetro parado após a duração máxima</translation>
    </message>
    <message id="ui.timer.idle">
      <source>No timer running. Select a task and press Space.</source>
      <translation>Nenhum cronômetro em andamento. Selecione uma tarefa e pressione Espaço.</translation>
    </message>
    <message id="ui.timer.name">
      <source>Timer</source>
      <translation>Cronômetro</translation>
    </message>
    <message id="ui.timer.notRunning">
      <source>Not running</source>
      <translation>Parado</translation>
    </message>
    <message id="ui.timer.offline">
      <source>Offline</source>
      <translation>Offline</translation>
    </message>
    <message id="ui.timer.offlineHint">
      <source>Offline: changes from other devices arrive when the connection is back.</source>
      <translation>Offline: as alterações feitas em outros dispositivos chegam quando a conexão voltar.</translation>
    </message>
    <message id="ui.timer.start">
      <source>Start</source>
      <translation>Iniciar</translation>
    </message>
    <message id="ui.timer.stop">
      <source>Stop</source>
      <translation>Parar</translation>
    </message>
    <message id="ui.tray.floating">
      <source>Floating timer</source>
      <translation>Cronômetro flutuante</translation>
    </message>
    <message id="ui.tray.open">
      <source>Open Morvane</source>
      <translation>Abrir o Morvane</translation>
    </message>
    <message id="ui.tray.quickAdd">
      <source>Quick add…</source>
      <translation>Adição rápida…</translation>
    </message>
    <message id="ui.tray.quit">
      <source>Quit</source>
      <translation>Sair</translation>
    </message>
    <message id="ui.tray.start">
      <source>Start</source>
      <translation>Iniciar</translation>
    </message>
    <message id="ui.tray.stop">
      <source>Stop the timer</source>
      <translation>Parar o cronômetro</translation>
    </message>
    <message id="ui.trips.allProjects">
      <source>All projects</source>
      <translation>Todos os projetos</translation>
    </message>
    <message id="ui.trips.billable.all">
      <source>Charged and not</source>
      <translation>Cobrados e não</translation>
    </message>
    <message id="ui.trips.billable.no">
      <source>Private or not charged</source>
      <translation>Privados ou não cobrados</translation>
    </message>
    <message id="ui.trips.billable.yes">
      <source>Charged to the client</source>
      <translation>Cobrados ao cliente</translation>
    </message>
    <message id="ui.trips.billableFilter">
      <source>Charging</source>
      <translation>Cobrança</translation>
    </message>
    <message id="ui.trips.charge">
      <source>Charge to the client</source>
      <translation>Cobrar do cliente</translation>
    </message>
    <message id="ui.trips.chip.invoiced">
      <source>Invoiced</source>
      <translation>Faturado</translation>
    </message>
    <message id="ui.trips.chip.notCharged">
      <source>Not charged</source>
      <translation>Não cobrado</translation>
    </message>
    <message id="ui.trips.chip.private">
      <source>Private</source>
      <translation>Privado</translation>
    </message>
    <message id="ui.trips.chip.toInvoice">
      <source>To invoice</source>
      <translation>A faturar</translation>
    </message>
    <message id="ui.trips.clientHit">
      <source>Client</source>
      <translation>Cliente</translation>
    </message>
    <message id="ui.trips.date">
      <source>Date</source>
      <translation>Data</translation>
    </message>
    <message id="ui.trips.edit">
      <source>Edit trip</source>
      <translation>Editar viagem</translation>
    </message>
    <message id="ui.trips.emptyHint">
      <source>Trips your phone records while a timer runs show up here. Press Ctrl+N or “New trip” to add one by hand.</source>
      <translation>As viagens que o seu telefone registra enquanto um cronômetro corre aparecem aqui. Pressione Ctrl+N ou “Nova viagem” para adicionar uma à mão.</translation>
    </message>
    <message id="ui.trips.emptyTitle">
      <source>No trips yet</source>
      <translation>Nenhuma viagem ainda</translation>
    </message>
    <message id="ui.trips.finish">
      <source>Finish trip</source>
      <translation>Terminar viagem</translation>
    </message>
    <message id="ui.trips.from">
      <source>From</source>
      <translation>De</translation>
    </message>
    <message id="ui.trips.km">
      <source>Kilometres</source>
      <translation>Quilômetros</translation>
    </message>
    <message id="ui.trips.kmColumn">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="ui.trips.map.route">
      <source>Road route of the trip</source>
      <translation>Rota rodoviária da viagem</translation>
    </message>
    <message id="ui.trips.map.straight">
      <source>Straight line between the places</source>
      <translation>Linha reta entre os lugares</translation>
    </message>
    <message id="ui.trips.mode">
      <source>Travelled by</source>
      <translation>Meio de transporte</translation>
    </message>
    <message id="ui.trips.mode.bike">
      <source>Bike</source>
      <translation>Bicicleta</translation>
    </message>
    <message id="ui.trips.mode.car">
      <source>Car</source>
      <translation>Carro</translation>
    </message>
    <message id="ui.trips.mode.other">
      <source>Other</source>
      <translation>Outro</translation>
    </message>
    <message id="ui.trips.mode.transit">
      <source>Public transport</source>
      <translation>Transporte público</translation>
    </message>
    <message id="ui.trips.mode.walk">
      <source>On foot</source>
      <translation>A pé</translation>
    </message>
    <message id="ui.trips.new">
      <source>New trip</source>
      <translation>Nova viagem</translation>
    </message>
    <message id="ui.trips.noMatch">
      <source>No trip matches these filters</source>
      <translation>Nenhuma viagem corresponde a estes filtros</translation>
    </message>
    <message id="ui.trips.period.all">
      <source>All time</source>
      <translation>Todo o período</translation>
    </message>
    <message id="ui.trips.period.lastMonth">
      <source>Last month</source>
      <translation>Mês passado</translation>
    </message>
    <message id="ui.trips.period.month">
      <source>This month</source>
      <translation>Este mês</translation>
    </message>
    <message id="ui.trips.period.year">
      <source>This year</source>
      <translation>Este ano</translation>
    </message>
    <message id="ui.trips.periodFilter">
      <source>Period</source>
      <translation>Período</translation>
    </message>
    <message id="ui.trips.placePlaceholder">
      <source>Address, place or client</source>
      <translation>Endereço, lugar ou cliente</translation>
    </message>
    <message id="ui.trips.private">
      <source>Private trip</source>
      <translation>Viagem particular</translation>
    </message>
    <message id="ui.trips.problem.date">
      <source>Enter the day as YYYY-MM-DD.</source>
      <translation>Digite o dia como AAAA-MM-DD (YYYY-MM-DD).</translation>
    </message>
    <message id="ui.trips.problem.from">
      <source>Where did the trip start?</source>
      <translation>Onde a viagem começou?</translation>
    </message>
    <message id="ui.trips.problem.km">
      <source>Enter the kilometres, for example 12.5.</source>
      <translation>Digite os quilômetros, por exemplo 12,5.</translation>
    </message>
    <message id="ui.trips.problem.rate">
      <source>Enter the rate per kilometre as a number, for example 0.23.</source>
      <translation>Digite a tarifa por quilômetro como número, por exemplo 0,23.</translation>
    </message>
    <message id="ui.trips.problem.to">
      <source>Where did the trip end?</source>
      <translation>Onde a viagem terminou?</translation>
    </message>
    <message id="ui.trips.progress">
      <source>%1 km · %2 min</source>
      <translation>%1 km · %2 min</translation>
    </message>
    <message id="ui.trips.projectFilter">
      <source>Project</source>
      <translation>Projeto</translation>
    </message>
    <message id="ui.trips.projectHint">
      <source>Trips of this project go on its invoices. Private trips and trips you do not charge never do.</source>
      <translation>As viagens deste projeto entram nas faturas dele. As privadas e as que você não cobra, nunca.</translation>
    </message>
    <message id="ui.trips.purpose">
      <source>Purpose</source>
      <translation>Finalidade</translation>
    </message>
    <message id="ui.trips.purposePlaceholder">
      <source>For example: meeting at the client, delivery</source>
      <translation>Por exemplo: reunião no cliente, entrega</translation>
    </message>
    <message id="ui.trips.rate">
      <source>Rate per kilometre</source>
      <translation>Tarifa por quilômetro</translation>
    </message>
    <message id="ui.trips.rateHint">
      <source>Used for projects that charge travel per kilometre and name no rate of their own.</source>
      <translation>Para projetos que cobram viagens por quilômetro sem tarifa própria.</translation>
    </message>
    <message id="ui.trips.resultsFrom">
      <source>Results from OpenStreetMap, without KvK numbers.</source>
      <translation>Resultados do OpenStreetMap, sem números KvK.</translation>
    </message>
    <message id="ui.trips.routing">
      <source>Finding the road route…</source>
      <translation>Procurando a rota rodoviária…</translation>
    </message>
    <message id="ui.trips.searching">
      <source>Searching…</source>
      <translation>Pesquisando…</translation>
    </message>
    <message id="ui.trips.settings">
      <source>Travel settings</source>
      <translation>Configurações de viagem</translation>
    </message>
    <message id="ui.trips.start">
      <source>Start a trip now</source>
      <translation>Começar uma viagem agora</translation>
    </message>
    <message id="ui.trips.summaryMany">
      <source>%1 trips · %2 km</source>
      <translation>%1 viagens · %2 km</translation>
    </message>
    <message id="ui.trips.summaryOne">
      <source>1 trip · %1 km</source>
      <translation>1 viagem · %1 km</translation>
    </message>
    <message id="ui.trips.title">
      <source>Trips</source>
      <translation>Viagens</translation>
    </message>
    <message id="ui.trips.to">
      <source>To</source>
      <translation>Para</translation>
    </message>
    <message id="ui.trips.toInvoice">
      <source>%1 to invoice: %2</source>
      <translation>%1 a faturar: %2</translation>
    </message>
    <message id="ui.trips.trip">
      <source>Trip</source>
      <translation>Viagem</translation>
    </message>
    <message id="ui.trips.usualMode">
      <source>Usually travel by</source>
      <translation>Costuma viajar de</translation>
    </message>
    <message id="ui.trips.work">
      <source>Project and task</source>
      <translation>Projeto e tarefa</translation>
    </message>
    <message id="ui.trips.work.none">
      <source>Choose a project or task</source>
      <translation>Escolha um projeto ou tarefa</translation>
    </message>
    <message id="ui.trips.work.wholeProject">
      <source>%1 · Whole project, no task</source>
      <translation>%1 · Projeto inteiro, sem tarefa</translation>
    </message>
  </context>
</TS>

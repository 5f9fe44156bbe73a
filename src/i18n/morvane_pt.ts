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
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Uso: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Criar conta, entrar e sair, trocar de conta</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Mostrar qual servidor o Morvane usa e de onde vem cada configuração</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Iniciar, parar ou mostrar o servidor local: server start|stop|status</translation>
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
    <message id="cli.option.json">
      <source>Print the answer as JSON.</source>
      <translation>Mostrar a resposta em JSON.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Mostrar a versão.</translation>
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
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>Não foi possível carregar seus clientes.</translation>
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
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Feito com Morvane</translation>
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
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>A tarefa não foi criada: você não pode adicionar tarefas a este projeto.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>A tarefa não foi alterada: você não pode editá-la ou ela não existe mais.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>A equipe não foi criada. Tente de novo.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>Não foi possível carregar suas equipes.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>O cronômetro desta tarefa foi iniciado em outro dispositivo, por isso o status dela não foi alterado.</translation>
    </message>
  </context>
</TS>

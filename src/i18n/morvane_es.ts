<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
  <context>
    <name>Morvane</name>
    <message id="auth.err.emailExists">
      <source>An account with this e-mail address exists already. Sign in instead.</source>
      <translation>Ya existe una cuenta con esta dirección de correo. Inicia sesión en su lugar.</translation>
    </message>
    <message id="auth.err.invalidEmail">
      <source>Enter a valid e-mail address.</source>
      <translation>Introduce una dirección de correo válida.</translation>
    </message>
    <message id="auth.err.network">
      <source>Morvane cannot reach the server. Check your connection and try again.</source>
      <translation>Morvane no puede conectar con el servidor. Revisa tu conexión y vuelve a intentarlo.</translation>
    </message>
    <message id="auth.err.oauthBadUrl">
      <source>The sign-in address is not valid.</source>
      <translation>La dirección de inicio de sesión no es válida.</translation>
    </message>
    <message id="auth.err.oauthCancelled">
      <source>The sign-in was cancelled.</source>
      <translation>Se canceló el inicio de sesión.</translation>
    </message>
    <message id="auth.err.oauthCannotStart">
      <source>Could not start the sign-in.</source>
      <translation>No se pudo iniciar el inicio de sesión.</translation>
    </message>
    <message id="auth.err.oauthNoCode">
      <source>The sign-in came back without a code.</source>
      <translation>El inicio de sesión volvió sin código.</translation>
    </message>
    <message id="auth.err.rateLimit">
      <source>Too many attempts. Wait a few minutes, then try again.</source>
      <translation>Demasiados intentos. Espera unos minutos y vuelve a intentarlo.</translation>
    </message>
    <message id="auth.err.server">
      <source>The server ran into a problem. Try again in a moment.</source>
      <translation>El servidor tuvo un problema. Vuelve a intentarlo en un momento.</translation>
    </message>
    <message id="auth.err.switchExpired">
      <source>Couldn't switch to %1. That account's session expired - sign in to it again.</source>
      <translation>No se pudo cambiar a %1. La sesión de esa cuenta caducó; vuelve a iniciar sesión en ella.</translation>
    </message>
    <message id="auth.oauthDone">
      <source>You are signed in to Morvane. You can close this window.</source>
      <translation>Has iniciado sesión en Morvane. Puedes cerrar esta ventana.</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>El comando que se ejecutará; sin él, se muestra la lista de comandos.</translation>
    </message>
    <message id="cli.auth.confirm">
      <source>Check your inbox: confirm %1 with the link in the mail, then sign in.</source>
      <translation>Revisa tu bandeja de entrada: confirma %1 con el enlace del mensaje y luego inicia sesión.</translation>
    </message>
    <message id="cli.auth.noAccounts">
      <source>No remembered accounts.</source>
      <translation>No hay cuentas recordadas.</translation>
    </message>
    <message id="cli.auth.option.name">
      <source>The name shown on your profile and to your team.</source>
      <translation>El nombre que se muestra en tu perfil y a tu equipo.</translation>
    </message>
    <message id="cli.auth.password">
      <source>Password: </source>
      <translation>Contraseña: </translation>
    </message>
    <message id="cli.auth.signedIn">
      <source>Signed in as %1.</source>
      <translation>Sesión iniciada como %1.</translation>
    </message>
    <message id="cli.auth.signedOut">
      <source>Signed out.</source>
      <translation>Sesión cerrada.</translation>
    </message>
    <message id="cli.auth.unknownAccount">
      <source>No remembered account %1. Sign in to it first.</source>
      <translation>No hay ninguna cuenta recordada %1. Inicia sesión en ella primero.</translation>
    </message>
    <message id="cli.auth.usage">
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Uso: morvane auth signup|signin &lt;correo&gt; | signout | status | switch &lt;correo&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Registrarse, iniciar y cerrar sesión, cambiar de cuenta</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Mostrar qué servidor usa Morvane y de dónde viene cada ajuste</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Iniciar, detener o mostrar el servidor local: server start|stop|status</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Comandos:</translation>
    </message>
    <message id="cli.config.json">
      <source>Print the setting as JSON.</source>
      <translation>Mostrar el ajuste en formato JSON.</translation>
    </message>
    <message id="cli.config.key">
      <source>Anonymous key</source>
      <translation>Clave anónima</translation>
    </message>
    <message id="cli.config.keyMissing">
      <source>not set</source>
      <translation>sin definir</translation>
    </message>
    <message id="cli.config.url">
      <source>Backend address</source>
      <translation>Dirección del servidor</translation>
    </message>
    <message id="cli.description">
      <source>Morvane tracks working time on projects and tasks and turns it into invoices.</source>
      <translation>Morvane registra el tiempo de trabajo en proyectos y tareas y lo convierte en facturas.</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Comando desconocido: %1. Ejecuta morvane --help para ver la lista de comandos.</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>Mostrar esta ayuda.</translation>
    </message>
    <message id="cli.option.json">
      <source>Print the answer as JSON.</source>
      <translation>Mostrar la respuesta en formato JSON.</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>Mostrar la versión.</translation>
    </message>
    <message id="cli.renderInvoice.design">
      <source>With --render-invoice: the design (%1).</source>
      <translation>Con --render-invoice: el diseño (%1).</translation>
    </message>
    <message id="cli.renderInvoice.draft">
      <source>With --render-invoice: an invoice as JSON instead of the sample.</source>
      <translation>Con --render-invoice: una factura en JSON en lugar del ejemplo.</translation>
    </message>
    <message id="cli.renderInvoice.err.both">
      <source>--lines is for the sample invoice; a draft brings its own lines.</source>
      <translation>--lines es para la factura de ejemplo; un borrador trae sus propias líneas.</translation>
    </message>
    <message id="cli.renderInvoice.err.design">
      <source>Unknown design: %1. Choose one of: %2.</source>
      <translation>Diseño desconocido: %1. Elija uno de: %2.</translation>
    </message>
    <message id="cli.renderInvoice.err.draft">
      <source>Cannot read the draft %1: %2</source>
      <translation>No se puede leer el borrador %1: %2</translation>
    </message>
    <message id="cli.renderInvoice.err.failed">
      <source>Rendering the invoice failed: %1</source>
      <translation>La generación de la factura falló: %1</translation>
    </message>
    <message id="cli.renderInvoice.err.lines">
      <source>--lines takes a whole number from 0 to %1.</source>
      <translation>--lines admite un número entero de 0 a %1.</translation>
    </message>
    <message id="cli.renderInvoice.err.noGui">
      <source>Rendering an invoice needs the graphical libraries; run it as: morvane --render-invoice</source>
      <translation>Generar una factura necesita las bibliotecas gráficas; ejecútelo así: morvane --render-invoice</translation>
    </message>
    <message id="cli.renderInvoice.err.write">
      <source>Cannot write %1: %2</source>
      <translation>No se puede escribir %1: %2</translation>
    </message>
    <message id="cli.renderInvoice.lines">
      <source>With --render-invoice: the number of lines of the sample invoice.</source>
      <translation>Con --render-invoice: el número de líneas de la factura de ejemplo.</translation>
    </message>
    <message id="cli.renderInvoice.option">
      <source>Render an invoice to PDF through the application's own path and report its size.</source>
      <translation>Generar el PDF de una factura por el camino propio de la aplicación e indicar su tamaño.</translation>
    </message>
    <message id="cli.renderInvoice.out">
      <source>With --render-invoice: where to write the PDF.</source>
      <translation>Con --render-invoice: dónde escribir el PDF.</translation>
    </message>
    <message id="cli.renderInvoice.png">
      <source>With --render-invoice: a folder for pictures of the pages as PNG.</source>
      <translation>Con --render-invoice: una carpeta para imágenes PNG de las páginas.</translation>
    </message>
    <message id="cli.server.action">
      <source>start, stop or status</source>
      <translation>start, stop o status</translation>
    </message>
    <message id="cli.server.dataDir">
      <source>Data folder: %1</source>
      <translation>Carpeta de datos: %1</translation>
    </message>
    <message id="cli.server.notInUse">
      <source>Morvane uses %1 (%2), not the local backend.</source>
      <translation>Morvane usa %1 (%2), no el servidor local.</translation>
    </message>
    <message id="cli.server.running">
      <source>The local backend is running at %1 (process %2).</source>
      <translation>El servidor local está en marcha en %1 (proceso %2).</translation>
    </message>
    <message id="cli.server.started">
      <source>Started the local backend at %1 (process %2).</source>
      <translation>Servidor local iniciado en %1 (proceso %2).</translation>
    </message>
    <message id="cli.server.starting">
      <source>The local backend (process %1) is starting and does not answer yet.</source>
      <translation>El servidor local (proceso %1) se está iniciando y aún no responde.</translation>
    </message>
    <message id="cli.server.stopped">
      <source>The local backend is not running.</source>
      <translation>El servidor local no está en marcha.</translation>
    </message>
    <message id="cli.server.stoppedNow">
      <source>Stopped the local backend (process %1).</source>
      <translation>Servidor local detenido (proceso %1).</translation>
    </message>
    <message id="cli.server.usage">
      <source>Usage: morvane server start|stop|status [--json]</source>
      <translation>Uso: morvane server start|stop|status [--json]</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>No se pudieron cargar tus clientes.</translation>
    </message>
    <message id="config.source.environment">
      <source>environment</source>
      <translation>entorno</translation>
    </message>
    <message id="config.source.local">
      <source>local backend</source>
      <translation>servidor local</translation>
    </message>
    <message id="config.source.settings">
      <source>application settings</source>
      <translation>ajustes de la aplicación</translation>
    </message>
    <message id="errEmailNotConfirmed">
      <source>Confirm your e-mail address first: follow the link in the mail we sent you.</source>
      <translation>Confirma primero tu dirección de correo: sigue el enlace del mensaje que te enviamos.</translation>
    </message>
    <message id="errEmailRateLimit">
      <source>Too many e-mails went to this address. Wait a minute, then try again.</source>
      <translation>Se enviaron demasiados correos a esta dirección. Espera un minuto y vuelve a intentarlo.</translation>
    </message>
    <message id="errInvalidCredentials">
      <source>The e-mail address or the password is not right.</source>
      <translation>La dirección de correo o la contraseña no es correcta.</translation>
    </message>
    <message id="inv.doc.amount">
      <source>Amount</source>
      <translation>Importe</translation>
    </message>
    <message id="inv.doc.amountDue">
      <source>Amount due</source>
      <translation>Importe a pagar</translation>
    </message>
    <message id="inv.doc.bank">
      <source>Bank</source>
      <translation>Banco</translation>
    </message>
    <message id="inv.doc.billTo">
      <source>Bill to</source>
      <translation>Facturar a</translation>
    </message>
    <message id="inv.doc.description">
      <source>Description</source>
      <translation>Descripción</translation>
    </message>
    <message id="inv.doc.due">
      <source>Due date</source>
      <translation>Vencimiento</translation>
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
      <translation>Factura</translation>
    </message>
    <message id="inv.doc.issued">
      <source>Issue date</source>
      <translation>Fecha de emisión</translation>
    </message>
    <message id="inv.doc.kvk">
      <source>Company no.</source>
      <translation>Registro mercantil</translation>
    </message>
    <message id="inv.doc.noVat">
      <source>No VAT on these lines</source>
      <translation>Sin IVA en estas líneas</translation>
    </message>
    <message id="inv.doc.notes">
      <source>Notes</source>
      <translation>Notas</translation>
    </message>
    <message id="inv.doc.number">
      <source>Invoice no.</source>
      <translation>Factura n.º</translation>
    </message>
    <message id="inv.doc.payment">
      <source>Payment</source>
      <translation>Pago</translation>
    </message>
    <message id="inv.doc.paymentNoTerm">
      <source>Please pay by bank transfer, quoting the invoice number.</source>
      <translation>Por favor, pague por transferencia indicando el número de factura.</translation>
    </message>
    <message id="inv.doc.paymentTerms">
      <source>Please pay within %1 days, quoting the invoice number.</source>
      <translation>Por favor, pague en un plazo de %1 días indicando el número de factura.</translation>
    </message>
    <message id="inv.doc.period">
      <source>Period</source>
      <translation>Periodo</translation>
    </message>
    <message id="inv.doc.project">
      <source>Project</source>
      <translation>Proyecto</translation>
    </message>
    <message id="inv.doc.quantity">
      <source>Qty</source>
      <translation>Cant.</translation>
    </message>
    <message id="inv.doc.rate">
      <source>Rate</source>
      <translation>Precio</translation>
    </message>
    <message id="inv.doc.reference">
      <source>Reference</source>
      <translation>Referencia</translation>
    </message>
    <message id="inv.doc.subtotal">
      <source>Subtotal</source>
      <translation>Subtotal</translation>
    </message>
    <message id="inv.doc.thanks">
      <source>Thank you for your business.</source>
      <translation>Gracias por su confianza.</translation>
    </message>
    <message id="inv.doc.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="inv.doc.vatId">
      <source>VAT no.</source>
      <translation>NIF-IVA</translation>
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
      <translation>No se pudo cargar la página de la factura.</translation>
    </message>
    <message id="inv.pdf.err.paging">
      <source>The invoice could not be laid out in pages.</source>
      <translation>No se pudo maquetar la factura en páginas.</translation>
    </message>
    <message id="inv.pdf.err.print">
      <source>The PDF of the invoice could not be made.</source>
      <translation>No se pudo crear el PDF de la factura.</translation>
    </message>
    <message id="inv.pdf.err.spill">
      <source>The invoice page could not be written to a temporary file: %1</source>
      <translation>No se pudo escribir la página de la factura en un archivo temporal: %1</translation>
    </message>
    <message id="inv.pdf.err.timeout">
      <source>The invoice page did not finish loading within %1 seconds.</source>
      <translation>La página de la factura no terminó de cargarse en %1 segundos.</translation>
    </message>
    <message id="inviteAlreadyMember">
      <source>%1 is already in this team.</source>
      <translation>%1 ya está en este equipo.</translation>
    </message>
    <message id="inviteFailed">
      <source>Could not send the invite. Try again.</source>
      <translation>No se pudo enviar la invitación. Vuelve a intentarlo.</translation>
    </message>
    <message id="inviteNoAccount">
      <source>No Morvane account uses that email yet. Ask them to sign up first.</source>
      <translation>Ninguna cuenta de Morvane usa ese correo todavía. Pídele a esa persona que se registre primero.</translation>
    </message>
    <message id="inviteNotAllowed">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Solo el propietario y los editores del equipo pueden invitar a otras personas.</translation>
    </message>
    <message id="inviteSent">
      <source>%1 is invited to this team.</source>
      <translation>Se ha invitado a %1 a este equipo.</translation>
    </message>
    <message id="inviteTeamFull">
      <source>This team is full: it already has 10 members, the maximum.</source>
      <translation>Este equipo está completo: ya tiene 10 miembros, el máximo.</translation>
    </message>
    <message id="inviteUnavailable">
      <source>Inviting by email is not available yet. Try again later.</source>
      <translation>La invitación por correo aún no está disponible. Vuelve a intentarlo más tarde.</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Hecho con Morvane</translation>
    </message>
    <message id="localServer.err.dataFolder">
      <source>Cannot write the local backend's data folder %1.</source>
      <translation>No se puede escribir en la carpeta de datos %1 del servidor local.</translation>
    </message>
    <message id="localServer.err.exited">
      <source>The local backend stopped before it was ready (log: %1).</source>
      <translation>El servidor local se detuvo antes de estar listo (registro: %1).</translation>
    </message>
    <message id="localServer.err.launch">
      <source>Cannot run the local backend %1.</source>
      <translation>No se puede ejecutar el servidor local %1.</translation>
    </message>
    <message id="localServer.err.noProgram">
      <source>Cannot find the local backend: %1 is neither next to Morvane nor on the PATH.</source>
      <translation>No se encuentra el servidor local: %1 no está junto a Morvane ni en el PATH.</translation>
    </message>
    <message id="localServer.err.notReady">
      <source>The local backend was not ready within %1 seconds (log: %2).</source>
      <translation>El servidor local no estuvo listo en %1 segundos (registro: %2).</translation>
    </message>
    <message id="localServer.err.wouldNotStop">
      <source>The local backend (process %1) did not stop within %2 seconds.</source>
      <translation>El servidor local (proceso %1) no se detuvo en %2 segundos.</translation>
    </message>
    <message id="net.err.connection">
      <source>Could not reach the server: %1</source>
      <translation>No se pudo conectar con el servidor: %1</translation>
    </message>
    <message id="net.err.offline">
      <source>The Internet connection appears to be offline.</source>
      <translation>Parece que no hay conexión a Internet.</translation>
    </message>
    <message id="net.err.timeout">
      <source>The request timed out.</source>
      <translation>Se agotó el tiempo de espera de la solicitud.</translation>
    </message>
    <message id="onboarding.err.notSaved">
      <source>Your first-run answers were not saved yet. Morvane tries again at the next sign-in.</source>
      <translation>Tus respuestas del primer inicio aún no se han guardado. Morvane lo volverá a intentar la próxima vez que inicies sesión.</translation>
    </message>
    <message id="profile.err.notSaved">
      <source>Your profile was not saved. Try again.</source>
      <translation>Tu perfil no se guardó. Vuelve a intentarlo.</translation>
    </message>
    <message id="project.err.notCreated">
      <source>The project was not created: you may not add projects to that team.</source>
      <translation>El proyecto no se creó: no puedes añadir proyectos a ese equipo.</translation>
    </message>
    <message id="project.err.notSaved">
      <source>The project was not changed: you may not edit it, or it no longer exists.</source>
      <translation>El proyecto no se modificó: no puedes editarlo o ya no existe.</translation>
    </message>
    <message id="project.err.teamNotChanged">
      <source>The project's team was not changed: only its creator and the team's owners and editors can move it.</source>
      <translation>El equipo del proyecto no se cambió: solo quien lo creó y los propietarios y editores del equipo pueden moverlo.</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>Algo salió mal. Vuelve a intentarlo.</translation>
    </message>
    <message id="store.err.loadFailed">
      <source>Your data could not be loaded. Morvane tries again shortly.</source>
      <translation>No se pudieron cargar tus datos. Morvane lo volverá a intentar en breve.</translation>
    </message>
    <message id="store.err.writeFailed">
      <source>The change could not be saved. Check the connection and try again.</source>
      <translation>No se pudo guardar el cambio. Revisa la conexión y vuelve a intentarlo.</translation>
    </message>
    <message id="supabase.err.decoding">
      <source>Decode: %1</source>
      <translation>Decodificación: %1</translation>
    </message>
    <message id="supabase.err.http">
      <source>HTTP %1: %2</source>
      <translation>HTTP %1: %2</translation>
    </message>
    <message id="supabase.err.invalidURL">
      <source>Invalid URL</source>
      <translation>URL no válida</translation>
    </message>
    <message id="supabase.err.noAuth">
      <source>Not signed in.</source>
      <translation>No has iniciado sesión.</translation>
    </message>
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>La tarea no se creó: no puedes añadir tareas a este proyecto.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>La tarea no se modificó: no puedes editarla o ya no existe.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>El equipo no se creó. Vuelve a intentarlo.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>No se pudieron cargar tus equipos.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>El temporizador de esta tarea se inició en otro dispositivo, así que su estado no se cambió.</translation>
    </message>
  </context>
</TS>

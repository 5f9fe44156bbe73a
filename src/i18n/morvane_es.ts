<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
  <context>
    <name>Morvane</name>
    <message id="add.couldNotParse">
      <source>Morvane could not make sense of that. Try saying it another way.</source>
      <translation>Morvane no ha podido entenderlo. Prueba a decirlo de otra manera.</translation>
    </message>
    <message id="ai.err.badAnswer">
      <source>%1 sent an answer Morvane cannot use: %2</source>
      <translation>%1 envió una respuesta que Morvane no puede usar: %2</translation>
    </message>
    <message id="ai.err.consentDeclined">
      <source>You chose not to send your text to %1. You can change this in the AI settings.</source>
      <translation>Elegiste no enviar tu texto a %1. Puedes cambiarlo en los ajustes de IA.</translation>
    </message>
    <message id="ai.err.consentMissing">
      <source>Morvane asks before it sends your text to %1 for the first time. Answer that question in the window, or run the command again with --yes.</source>
      <translation>Morvane pregunta antes de enviar tu texto a %1 por primera vez. Responde a esa pregunta en la ventana o vuelve a ejecutar el comando con --yes.</translation>
    </message>
    <message id="ai.err.needsCLI">
      <source>This needs the Claude CLI, which can work with files; %1 cannot. Choose the Claude CLI in the AI settings.</source>
      <translation>Esto necesita la CLI de Claude, que puede trabajar con archivos; %1 no puede. Elige la CLI de Claude en los ajustes de IA.</translation>
    </message>
    <message id="ai.err.noKey">
      <source>There is no API key for %1 in your keyring. Add your key in the AI settings.</source>
      <translation>No hay ninguna clave de API para %1 en tu llavero. Añade tu clave en los ajustes de IA.</translation>
    </message>
    <message id="ai.err.notSignedIn">
      <source>%1 works only while you are signed in. Sign in, then try again.</source>
      <translation>%1 solo funciona con la sesión iniciada. Inicia sesión y vuelve a intentarlo.</translation>
    </message>
    <message id="ai.err.status">
      <source>%1 answered with error %2: %3</source>
      <translation>%1 respondió con el error %2: %3</translation>
    </message>
    <message id="ai.err.timedOut">
      <source>%1 did not answer within %2 s</source>
      <translation>%1 no respondió en %2 s</translation>
    </message>
    <message id="ai.err.unreachable">
      <source>%1 could not be reached: %2</source>
      <translation>No se pudo contactar con %1: %2</translation>
    </message>
    <message id="ai.route.anthropic.where">
      <source>Your text goes straight from this computer to Anthropic, with your own API key.</source>
      <translation>Tu texto va directamente de este ordenador a Anthropic, con tu propia clave de API.</translation>
    </message>
    <message id="ai.route.claudeCLI.where">
      <source>Your text goes to the claude program on this computer, which sends it to Anthropic under your own Claude account. Morvane itself sends nothing over the network.</source>
      <translation>Tu texto va al programa claude de este ordenador, que lo envía a Anthropic con tu propia cuenta de Claude. Morvane no envía nada por la red.</translation>
    </message>
    <message id="ai.route.gemini.where">
      <source>Your text goes straight from this computer to Google, with your own API key.</source>
      <translation>Tu texto va directamente de este ordenador a Google, con tu propia clave de API.</translation>
    </message>
    <message id="ai.route.morvaneAI.where">
      <source>Your text goes to the Morvane server you are signed in to, which passes it on to the AI service its operator has chosen, and the answer comes back the same way.</source>
      <translation>Tu texto va al servidor de Morvane en el que has iniciado sesión, que lo pasa al servicio de IA elegido por su operador; la respuesta vuelve por el mismo camino.</translation>
    </message>
    <message id="ai.route.openAI.where">
      <source>Your text goes straight from this computer to OpenAI, with your own API key.</source>
      <translation>Tu texto va directamente de este ordenador a OpenAI, con tu propia clave de API.</translation>
    </message>
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
    <message id="auth.err.oauthRefused">
      <source>The sign-in was refused: %1</source>
      <translation>El inicio de sesión fue rechazado: %1</translation>
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
    <message id="billing.dayNote">
      <source>Tracked time ÷ hours-per-day = billable days.</source>
      <translation>Tiempo registrado ÷ horas por día = días facturables.</translation>
    </message>
    <message id="billing.dayRate">
      <source>Day rate</source>
      <translation>Tarifa diaria</translation>
    </message>
    <message id="billing.discount">
      <source>Discount</source>
      <translation>Descuento</translation>
    </message>
    <message id="billing.extras">
      <source>Extras · call-out · materials · discount · VAT</source>
      <translation>Extras · desplazamiento · materiales · descuento · IVA</translation>
    </message>
    <message id="billing.fixedTotal">
      <source>Fixed total</source>
      <translation>Total fijo</translation>
    </message>
    <message id="billing.gross">
      <source>Gross (incl.)</source>
      <translation>Bruto (incl.)</translation>
    </message>
    <message id="billing.hourlyRate">
      <source>Hourly rate</source>
      <translation>Tarifa por hora</translation>
    </message>
    <message id="billing.hoursPerDay">
      <source>Hours per day</source>
      <translation>Horas por día</translation>
    </message>
    <message id="billing.inheriting">
      <source>Inheriting from project</source>
      <translation>Heredado del proyecto</translation>
    </message>
    <message id="billing.materials">
      <source>Materials</source>
      <translation>Materiales</translation>
    </message>
    <message id="billing.minCharge">
      <source>Minimum charge</source>
      <translation>Importe mínimo</translation>
    </message>
    <message id="billing.model.day">
      <source>Per day</source>
      <translation>Por día</translation>
    </message>
    <message id="billing.model.fixed">
      <source>Fixed price</source>
      <translation>Precio fijo</translation>
    </message>
    <message id="billing.model.hour">
      <source>Per hour</source>
      <translation>Por hora</translation>
    </message>
    <message id="billing.model.unit">
      <source>Per unit</source>
      <translation>Por unidad</translation>
    </message>
    <message id="billing.net">
      <source>Net (excl. VAT)</source>
      <translation>Neto (sin IVA)</translation>
    </message>
    <message id="billing.netNote">
      <source>Net per tracked time, plus the extras above.</source>
      <translation>Neto según el tiempo registrado, más los extras de arriba.</translation>
    </message>
    <message id="billing.pricePerUnit">
      <source>Price / unit</source>
      <translation>Precio / unidad</translation>
    </message>
    <message id="billing.quantity">
      <source>Quantity</source>
      <translation>Cantidad</translation>
    </message>
    <message id="billing.resetProject">
      <source>Reset to project default</source>
      <translation>Volver al precio del proyecto</translation>
    </message>
    <message id="billing.suffix.day">
      <source>/day</source>
      <translation>/día</translation>
    </message>
    <message id="billing.suffix.hour">
      <source>/h</source>
      <translation>/h</translation>
    </message>
    <message id="billing.surcharge">
      <source>Call-out fee</source>
      <translation>Gastos de desplazamiento</translation>
    </message>
    <message id="billing.title">
      <source>Billing</source>
      <translation>Facturación</translation>
    </message>
    <message id="billing.unit">
      <source>Unit</source>
      <translation>Unidad</translation>
    </message>
    <message id="billing.unitDefault">
      <source>unit</source>
      <translation>unidad</translation>
    </message>
    <message id="billing.vat">
      <source>VAT</source>
      <translation>IVA</translation>
    </message>
    <message id="billing.vatAmount">
      <source>VAT</source>
      <translation>IVA</translation>
    </message>
    <message id="billing.vatNone">
      <source>No VAT</source>
      <translation>Sin IVA</translation>
    </message>
    <message id="cal.accessOffBody">
      <source>Morvane turns calendar events into time entries. Add an iCalendar file, a subscription address or a CalDAV account, then come back and recheck.</source>
      <translation>Morvane convierte los eventos del calendario en registros de tiempo. Añade un archivo iCalendar, una dirección de suscripción o una cuenta CalDAV y vuelve a comprobarlo.</translation>
    </message>
    <message id="cal.accessOffTitle">
      <source>No calendars yet</source>
      <translation>Aún no hay calendarios</translation>
    </message>
    <message id="cal.err.alreadyImported">
      <source>This event was imported before; its time is already logged.</source>
      <translation>Este evento ya se importó; su tiempo ya está registrado.</translation>
    </message>
    <message id="cal.err.readFailed">
      <source>The calendar “%1” could not be read.</source>
      <translation>No se pudo leer el calendario «%1».</translation>
    </message>
    <message id="cal.err.secret">
      <source>The password could not be stored in the keyring.</source>
      <translation>No se pudo guardar la contraseña en el llavero.</translation>
    </message>
    <message id="cal.heroTitle">
      <source>Import from your calendar</source>
      <translation>Importar desde tu calendario</translation>
    </message>
    <message id="cal.loading">
      <source>Loading calendar…</source>
      <translation>Cargando calendario…</translation>
    </message>
    <message id="cal.noEventsHint">
      <source>No events on this day. Pick another day, or add a calendar.</source>
      <translation>No hay eventos este día. Elige otro día o añade un calendario.</translation>
    </message>
    <message id="cal.selectedCount">
      <source>%1 selected</source>
      <translation>%1 seleccionados</translation>
    </message>
    <message id="cal.untitled">
      <source>Calendar event</source>
      <translation>Evento del calendario</translation>
    </message>
    <message id="calExistingSection">
      <source>Existing tasks</source>
      <translation>Tareas existentes</translation>
    </message>
    <message id="calNewTaskSection">
      <source>New tasks</source>
      <translation>Tareas nuevas</translation>
    </message>
    <message id="capture.err.noMinutes">
      <source>The sentence gives no time to log.</source>
      <translation>La frase no indica ningún tiempo que registrar.</translation>
    </message>
    <message id="capture.err.noProject">
      <source>The sentence names no project to add the task to.</source>
      <translation>La frase no nombra ningún proyecto al que añadir la tarea.</translation>
    </message>
    <message id="capture.err.notSaved">
      <source>The change could not be saved.</source>
      <translation>No se ha podido guardar el cambio.</translation>
    </message>
    <message id="capture.fix.bothPrices">
      <source>"%1" has both a fixed price and an hourly rate; the fixed price is used.</source>
      <translation>«%1» tiene un precio fijo y una tarifa por hora; se usa el precio fijo.</translation>
    </message>
    <message id="capture.fix.cut">
      <source>"%1…" was cut to %2 characters.</source>
      <translation>«%1…» se ha recortado a %2 caracteres.</translation>
    </message>
    <message id="capture.fix.date">
      <source>The due date "%1" was left out: it is not a date of the form YYYY-MM-DD.</source>
      <translation>Se ha omitido la fecha límite «%1»: no es una fecha con el formato AAAA-MM-DD.</translation>
    </message>
    <message id="capture.fix.minutes">
      <source>%1 minutes were left out: time logged from one sentence is more than 0 and at most %2 minutes.</source>
      <translation>Se han omitido %1 minutos: el tiempo de una frase es mayor que 0 y de como mucho %2 minutos.</translation>
    </message>
    <message id="capture.fix.price">
      <source>The fixed price %1 was left out: a price lies between 0 and %2.</source>
      <translation>Se ha omitido el precio fijo %1: un precio está entre 0 y %2.</translation>
    </message>
    <message id="capture.fix.priority">
      <source>The priority "%1" is unknown; the task gets the default, medium.</source>
      <translation>La prioridad «%1» es desconocida; la tarea recibe la predeterminada, media.</translation>
    </message>
    <message id="capture.fix.rate">
      <source>The hourly rate %1 was left out: a rate lies between 0 and %2.</source>
      <translation>Se ha omitido la tarifa por hora %1: una tarifa está entre 0 y %2.</translation>
    </message>
    <message id="capture.fix.unnamed">
      <source>A project or task without a name was left out.</source>
      <translation>Se ha omitido un proyecto o una tarea sin nombre.</translation>
    </message>
    <message id="capture.note.noTeam">
      <source>You have no team called "%1" that you may add projects to; "%2" stays yours alone.</source>
      <translation>No tienes ningún equipo «%1» al que puedas añadir proyectos; «%2» sigue siendo solo tuyo.</translation>
    </message>
    <message id="capture.note.noTimer">
      <source>No timer was running.</source>
      <translation>No había ningún temporizador en marcha.</translation>
    </message>
    <message id="claude.err.binaryMissing">
      <source>AI features need the Claude CLI on this Mac (it powers voice/prompt capture, briefs, and the invoice note). Everything else works without it. Set CLAUDE_CLI_PATH or install it, then try again.</source>
      <translation>Las funciones de IA necesitan la CLI de Claude en este Mac (captura por voz o texto, resúmenes y la nota de factura). Todo lo demás funciona sin ella. Define CLAUDE_CLI_PATH o instálala y vuelve a intentarlo.</translation>
    </message>
    <message id="claude.err.createTask">
      <source>Create task failed: %1</source>
      <translation>No se pudo crear la tarea: %1</translation>
    </message>
    <message id="claude.err.emptyOutput">
      <source>Claude produced no output</source>
      <translation>Claude no devolvió nada</translation>
    </message>
    <message id="claude.err.launchFailed">
      <source>Launch failed: %1</source>
      <translation>No se pudo iniciar: %1</translation>
    </message>
    <message id="claude.err.malformedJSON">
      <source>Bad JSON from Claude (%1) %2</source>
      <translation>JSON no válido de Claude (%1) %2</translation>
    </message>
    <message id="claude.err.noJSONObject">
      <source>no JSON object detected</source>
      <translation>no se detectó ningún objeto JSON</translation>
    </message>
    <message id="claude.err.nonZeroExit">
      <source>Claude exited %1: %2</source>
      <translation>Claude terminó con el estado %1: %2</translation>
    </message>
    <message id="claude.err.outputNotWritten">
      <source>Claude finished but did not write %1</source>
      <translation>Claude terminó pero no escribió %1</translation>
    </message>
    <message id="claude.err.resultIsError">
      <source>claude returned is_error=true</source>
      <translation>claude devolvió is_error=true</translation>
    </message>
    <message id="claude.err.timedOut">
      <source>Claude request timed out after %1 s</source>
      <translation>La solicitud a Claude caducó tras %1 s</translation>
    </message>
    <message id="claude.err.workspaceTimedOut">
      <source>Claude workspace task timed out after %1 s</source>
      <translation>La tarea de Claude en la carpeta de trabajo caducó tras %1 s</translation>
    </message>
    <message id="cli.add.adjusted">
      <source>Checked: %1</source>
      <translation>Comprobado: %1</translation>
    </message>
    <message id="cli.add.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as 'morvane tasks list' shows it.</source>
      <translation>¿Qué tarea? Ninguna de tus tareas se llama «%1», o varias sí. Nómbrala como la muestra 'morvane tasks list'.</translation>
    </message>
    <message id="cli.add.dryRunDone">
      <source>Nothing was changed (--dry-run).</source>
      <translation>No se ha cambiado nada (--dry-run).</translation>
    </message>
    <message id="cli.add.due">
      <source>due %1</source>
      <translation>vence el %1</translation>
    </message>
    <message id="cli.add.fixed">
      <source>%1 fixed</source>
      <translation>%1 fijo</translation>
    </message>
    <message id="cli.add.logTime">
      <source>Log %1 on "%2"</source>
      <translation>Registrar %1 en «%2»</translation>
    </message>
    <message id="cli.add.modelNote">
      <source>The model notes: %1</source>
      <translation>El modelo señala: %1</translation>
    </message>
    <message id="cli.add.option.dryRun">
      <source>Show what was understood without changing anything.</source>
      <translation>Mostrar lo que se ha entendido sin cambiar nada.</translation>
    </message>
    <message id="cli.add.partial">
      <source>Stopped: %1 What was made before stays; give the same sentence again to finish the rest without making anything twice.</source>
      <translation>Detenido: %1 Lo ya creado se conserva; vuelve a dar la misma frase para terminar el resto sin crear nada dos veces.</translation>
    </message>
    <message id="cli.add.project">
      <source>Project "%1"</source>
      <translation>Proyecto «%1»</translation>
    </message>
    <message id="cli.add.spent">
      <source>%1 already spent</source>
      <translation>%1 ya dedicados</translation>
    </message>
    <message id="cli.add.startTimer">
      <source>Start the timer on "%1"</source>
      <translation>Iniciar el temporizador en «%1»</translation>
    </message>
    <message id="cli.add.stopRunning">
      <source>Stop the running timer</source>
      <translation>Detener el temporizador en marcha</translation>
    </message>
    <message id="cli.add.stopTimer">
      <source>Stop the timer on "%1"</source>
      <translation>Detener el temporizador en «%1»</translation>
    </message>
    <message id="cli.add.summary">
      <source>Projects: %1 new, %2 existing. Tasks: %3 new, %4 existing. Time logged: %5.</source>
      <translation>Proyectos: %1 nuevos, %2 existentes. Tareas: %3 nuevas, %4 existentes. Tiempo registrado: %5.</translation>
    </message>
    <message id="cli.add.task">
      <source>Task "%1"</source>
      <translation>Tarea «%1»</translation>
    </message>
    <message id="cli.add.team">
      <source>shared with team %1</source>
      <translation>compartido con el equipo %1</translation>
    </message>
    <message id="cli.add.timerStopped">
      <source>Timer stopped on %1.</source>
      <translation>Temporizador detenido en %1.</translation>
    </message>
    <message id="cli.add.understood">
      <source>Understood:</source>
      <translation>Entendido:</translation>
    </message>
    <message id="cli.add.unknown">
      <source>Nothing to do: the sentence holds no project, task, time or timer action.</source>
      <translation>Nada que hacer: la frase no contiene ningún proyecto, tarea, tiempo ni acción del temporizador.</translation>
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
      <translation>aún sin preguntar</translation>
    </message>
    <message id="cli.ai.consentDeclined">
      <source>declined</source>
      <translation>rechazado</translation>
    </message>
    <message id="cli.ai.keyFailed">
      <source>The keyring did not take the key; nothing changed.</source>
      <translation>El llavero no aceptó la clave; no ha cambiado nada.</translation>
    </message>
    <message id="cli.ai.keyMissing">
      <source>No key was given; nothing changed.</source>
      <translation>No se indicó ninguna clave; no ha cambiado nada.</translation>
    </message>
    <message id="cli.ai.keyPrompt">
      <source>Paste your %1 API key and press Enter: </source>
      <translation>Pega tu clave de API de %1 y pulsa Intro: </translation>
    </message>
    <message id="cli.ai.keyRemoved">
      <source>The %1 key is no longer in your keyring.</source>
      <translation>La clave de %1 ya no está en tu llavero.</translation>
    </message>
    <message id="cli.ai.keySaved">
      <source>The %1 key is in your keyring.</source>
      <translation>La clave de %1 está en tu llavero.</translation>
    </message>
    <message id="cli.ai.keys">
      <source>Your keys in the keyring: %1</source>
      <translation>Tus claves en el llavero: %1</translation>
    </message>
    <message id="cli.ai.option.remove">
      <source>Remove the stored key instead of setting one.</source>
      <translation>Eliminar la clave guardada en lugar de establecer una.</translation>
    </message>
    <message id="cli.ai.provider">
      <source>Provider setting: %1</source>
      <translation>Proveedor elegido: %1</translation>
    </message>
    <message id="cli.ai.question">
      <source>%1
Send your text to %2 now and from now on? [y/N] </source>
      <translation>%1
¿Enviar tu texto a %2 ahora y a partir de ahora? [s/N] </translation>
    </message>
    <message id="cli.ai.route">
      <source>Calls go to: %1</source>
      <translation>Las llamadas van a: %1</translation>
    </message>
    <message id="cli.ai.usage">
      <source>Usage: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</source>
      <translation>Uso: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</translation>
    </message>
    <message id="cli.ai.yes">
      <source>Agree to sending your text to the chosen AI service without being asked.</source>
      <translation>Aceptar sin preguntar que tu texto se envíe al servicio de IA elegido.</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>El comando que se ejecutará; sin él, se muestra la lista de comandos.</translation>
    </message>
    <message id="cli.auth.browser">
      <source>Continue in your browser. If no page opens, go to: %1</source>
      <translation>Continúa en tu navegador. Si no se abre ninguna página, ve a: %1</translation>
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
    <message id="cli.auth.option.provider">
      <source>Sign in through an outside provider in the browser instead of with a password.</source>
      <translation>Iniciar sesión con un proveedor externo en el navegador en lugar de con una contraseña.</translation>
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
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>Uso: morvane auth signup|signin &lt;correo&gt; | signin --provider NAME | signout | status | switch &lt;correo&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.calendar.added">
      <source>Added %1 (%2).</source>
      <translation>%1 añadido (%2).</translation>
    </message>
    <message id="cli.calendar.err.add">
      <source>That calendar cannot be added: %1.</source>
      <translation>No se puede añadir ese calendario: %1.</translation>
    </message>
    <message id="cli.calendar.err.day">
      <source>A day is written as YYYY-MM-DD, today or yesterday.</source>
      <translation>Un día se escribe AAAA-MM-DD, today o yesterday.</translation>
    </message>
    <message id="cli.calendar.err.noDestination">
      <source>No task or project for: %1. Pass --project P to make them new tasks there.</source>
      <translation>No hay tarea ni proyecto para: %1. Pasa --project P para crear allí tareas nuevas.</translation>
    </message>
    <message id="cli.calendar.err.noSelection">
      <source>Say which events to import: --events ID... (see morvane calendar events) or --all.</source>
      <translation>Indica qué eventos importar: --events ID... (ver morvane calendar events) o --all.</translation>
    </message>
    <message id="cli.calendar.err.unknown">
      <source>No single calendar matches “%1”; see morvane calendar list.</source>
      <translation>Ningún calendario único coincide con «%1»; consulta morvane calendar list.</translation>
    </message>
    <message id="cli.calendar.imported">
      <source>imported</source>
      <translation>importado</translation>
    </message>
    <message id="cli.calendar.importedCount">
      <source>Imported %1 events; %2 were imported before.</source>
      <translation>%1 eventos importados; %2 ya se habían importado.</translation>
    </message>
    <message id="cli.calendar.opt.all">
      <source>Import every event of the day.</source>
      <translation>Importar todos los eventos del día.</translation>
    </message>
    <message id="cli.calendar.opt.caldav">
      <source>Read a CalDAV collection (with --user) instead of a subscription.</source>
      <translation>Leer una colección CalDAV (con --user) en lugar de una suscripción.</translation>
    </message>
    <message id="cli.calendar.opt.day">
      <source>The day: YYYY-MM-DD, today or yesterday.</source>
      <translation>El día: AAAA-MM-DD, today o yesterday.</translation>
    </message>
    <message id="cli.calendar.opt.events">
      <source>The events to import, by the id events shows.</source>
      <translation>Los eventos a importar, por el id que muestra events.</translation>
    </message>
    <message id="cli.calendar.opt.name">
      <source>The name the calendar is shown under.</source>
      <translation>El nombre con el que se muestra el calendario.</translation>
    </message>
    <message id="cli.calendar.opt.project">
      <source>The project new tasks are made in.</source>
      <translation>El proyecto en el que se crean las tareas nuevas.</translation>
    </message>
    <message id="cli.calendar.opt.user">
      <source>The CalDAV user name.</source>
      <translation>El nombre de usuario de CalDAV.</translation>
    </message>
    <message id="cli.calendar.password">
      <source>CalDAV password: </source>
      <translation>Contraseña de CalDAV: </translation>
    </message>
    <message id="cli.calendar.removed">
      <source>Removed %1.</source>
      <translation>%1 eliminado.</translation>
    </message>
    <message id="cli.calendar.usage">
      <source>Usage: morvane calendar add &lt;file-or-address&gt; [--caldav --user U] | list | rm &lt;calendar&gt; | events [--day DAY] [--json] | import --day DAY [--project P] [--events ID...] [--all]</source>
      <translation>Uso: morvane calendar add &lt;archivo-o-dirección&gt; [--caldav --user U] | list | rm &lt;calendario&gt; | events [--day DÍA] [--json] | import --day DÍA [--project P] [--events ID...] [--all]</translation>
    </message>
    <message id="cli.clients.added">
      <source>Added client %1 (%2).</source>
      <translation>Cliente %1 añadido (%2).</translation>
    </message>
    <message id="cli.clients.coc">
      <source>CoC %1</source>
      <translation>RM %1</translation>
    </message>
    <message id="cli.clients.confirmDelete">
      <source>Delete the client %1? Invoices that name it keep it. [y/N] </source>
      <translation>¿Eliminar el cliente %1? Las facturas que lo mencionan lo conservan. [y/N] </translation>
    </message>
    <message id="cli.clients.deleted">
      <source>Deleted client %1.</source>
      <translation>Cliente %1 eliminado.</translation>
    </message>
    <message id="cli.clients.kept">
      <source>Nothing deleted.</source>
      <translation>No se ha eliminado nada.</translation>
    </message>
    <message id="cli.clients.noMatch">
      <source>No client matches "%1". See them with: morvane clients list</source>
      <translation>Ningún cliente coincide con «%1». Consúltalos con: morvane clients list</translation>
    </message>
    <message id="cli.clients.none">
      <source>No clients yet. Add one with: morvane clients add &lt;name&gt;</source>
      <translation>Aún no hay clientes. Añade uno con: morvane clients add &lt;nombre&gt;</translation>
    </message>
    <message id="cli.clients.option.address">
      <source>The client's postal address; it may span several lines.</source>
      <translation>La dirección postal del cliente; puede ocupar varias líneas.</translation>
    </message>
    <message id="cli.clients.option.coc">
      <source>The client's chamber-of-commerce number.</source>
      <translation>El número de registro mercantil del cliente.</translation>
    </message>
    <message id="cli.clients.option.email">
      <source>The client's e-mail address.</source>
      <translation>La dirección de correo electrónico del cliente.</translation>
    </message>
    <message id="cli.clients.option.name">
      <source>A new name (edit only).</source>
      <translation>Un nombre nuevo (solo con edit).</translation>
    </message>
    <message id="cli.clients.option.vat">
      <source>The client's VAT number.</source>
      <translation>El NIF-IVA del cliente.</translation>
    </message>
    <message id="cli.clients.option.yes">
      <source>Delete without asking first.</source>
      <translation>Eliminar sin preguntar antes.</translation>
    </message>
    <message id="cli.clients.saved">
      <source>Saved client %1.</source>
      <translation>Cliente %1 guardado.</translation>
    </message>
    <message id="cli.clients.usage">
      <source>Usage: morvane clients list | add &lt;name&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;client&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;client&gt; [--yes] [--json]</source>
      <translation>Uso: morvane clients list | add &lt;nombre&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;cliente&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;cliente&gt; [--yes] [--json]</translation>
    </message>
    <message id="cli.clients.vat">
      <source>VAT %1</source>
      <translation>NIF-IVA %1</translation>
    </message>
    <message id="cli.clients.yesAnswers">
      <source>y|yes</source>
      <translation>s|sí|si</translation>
    </message>
    <message id="cli.command.add">
      <source>Turn a sentence into projects, tasks, logged time or a timer action: add "&lt;text&gt;" [--dry-run] [--json]</source>
      <translation>Convertir una frase en proyectos, tareas, tiempo registrado o una acción del temporizador: add "&lt;text&gt;" [--dry-run] [--json]</translation>
    </message>
    <message id="cli.command.ai">
      <source>Where model calls go, your own API keys and what you agreed to send: ai show|provider|key|consent</source>
      <translation>Adónde van las llamadas al modelo, tus propias claves de API y lo que aceptaste enviar: ai show|provider|key|consent</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>Registrarse, iniciar y cerrar sesión, cambiar de cuenta</translation>
    </message>
    <message id="cli.command.calendar">
      <source>Calendar events as time: calendar add|list|rm|events|import</source>
      <translation>Eventos del calendario como tiempo: calendar add|list|rm|events|import</translation>
    </message>
    <message id="cli.command.clients">
      <source>The clients you invoice: clients list|add|edit|rm</source>
      <translation>Los clientes a los que facturas: clients list|add|edit|rm</translation>
    </message>
    <message id="cli.command.company">
      <source>Your sender details and invoice style: company show|set</source>
      <translation>Tus datos de remitente y el estilo de tus facturas: company show|set</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>Mostrar qué servidor usa Morvane y de dónde viene cada ajuste</translation>
    </message>
    <message id="cli.command.earnings">
      <source>Earned, billed and unbilled money by week, month or project: earnings [--from DAY --to DAY] [--by week|month|project]</source>
      <translation>Dinero ganado, facturado y sin facturar por semana, mes o proyecto: earnings [--from DÍA --to DÍA] [--by week|month|project]</translation>
    </message>
    <message id="cli.command.entries">
      <source>List, edit or delete time entries: entries [--task T] | edit | rm</source>
      <translation>Listar, editar o eliminar entradas de tiempo: entries [--task T] | edit | rm</translation>
    </message>
    <message id="cli.command.export">
      <source>Time entries or invoices of a period as CSV for the accountant: export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Registros de tiempo o facturas de un periodo en CSV para el gestor: export entries|invoices --from DÍA --to DÍA [--out ARCHIVO]</translation>
    </message>
    <message id="cli.command.invoice">
      <source>Invoices: invoice draft|create|list|show|status|void|rm|pdf</source>
      <translation>Facturas: invoice draft|create|list|show|status|void|rm|pdf</translation>
    </message>
    <message id="cli.command.log">
      <source>Log minutes of work on a task: log &lt;task&gt; &lt;minutes&gt;</source>
      <translation>Registrar minutos de trabajo en una tarea: log &lt;task&gt; &lt;minutes&gt;</translation>
    </message>
    <message id="cli.command.price">
      <source>Show or set the price of a project or task: price show|set</source>
      <translation>Mostrar o fijar el precio de un proyecto o tarea: price show|set</translation>
    </message>
    <message id="cli.command.projects">
      <source>List, add, rename, archive or delete projects: projects list|add|rename|archive|rm</source>
      <translation>Listar, añadir, renombrar, archivar o eliminar proyectos: projects list|add|rename|archive|rm</translation>
    </message>
    <message id="cli.command.recap">
      <source>A short recap of your tracked week, written by the model from your own figures: recap [--lang L]</source>
      <translation>Un breve resumen de tu semana registrada, redactado por el modelo a partir de tus propias cifras: recap [--lang L]</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>Iniciar, detener o mostrar el servidor local: server start|stop|status</translation>
    </message>
    <message id="cli.command.sessions">
      <source>Coding-agent sessions found in the local logs: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</source>
      <translation>Sesiones del agente de código halladas en los registros locales: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</translation>
    </message>
    <message id="cli.command.standup">
      <source>A stand-up draft from your last workday, today and your open tasks: standup [--lang L]</source>
      <translation>Un borrador de stand-up a partir de tu último día de trabajo, hoy y tus tareas abiertas: standup [--lang L]</translation>
    </message>
    <message id="cli.command.tasks">
      <source>List, add, edit, move or delete tasks: tasks list|add|edit|move|status|rm</source>
      <translation>Listar, añadir, editar, mover o eliminar tareas: tasks list|add|edit|move|status|rm</translation>
    </message>
    <message id="cli.command.teams">
      <source>Teams and their members: teams list|create|invite|invitations|accept|decline|assign</source>
      <translation>Equipos y sus miembros: teams list|create|invite|invitations|accept|decline|assign</translation>
    </message>
    <message id="cli.command.timer">
      <source>Start, stop or show the timer: timer start|stop|toggle|status</source>
      <translation>Iniciar, detener o mostrar el temporizador: timer start|stop|toggle|status</translation>
    </message>
    <message id="cli.command.travel">
      <source>Your rate per kilometre and how you usually travel: travel show|set</source>
      <translation>Tu tarifa por kilómetro y cómo sueles viajar: travel show|set</translation>
    </message>
    <message id="cli.command.trips">
      <source>Trips and their kilometres: trips list|add|edit|rm|route|export</source>
      <translation>Trayectos y sus kilómetros: trips list|add|edit|rm|route|export</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>Comandos:</translation>
    </message>
    <message id="cli.company.accent">
      <source>Accent colour</source>
      <translation>Color de acento</translation>
    </message>
    <message id="cli.company.address">
      <source>Address</source>
      <translation>Dirección</translation>
    </message>
    <message id="cli.company.argument.action">
      <source>show or set</source>
      <translation>show o set</translation>
    </message>
    <message id="cli.company.bank">
      <source>Bank</source>
      <translation>Banco</translation>
    </message>
    <message id="cli.company.cocNumber">
      <source>Chamber of commerce number</source>
      <translation>Número de registro mercantil</translation>
    </message>
    <message id="cli.company.company">
      <source>Company</source>
      <translation>Empresa</translation>
    </message>
    <message id="cli.company.days">
      <source>%1 days</source>
      <translation>%1 días</translation>
    </message>
    <message id="cli.company.design">
      <source>Design</source>
      <translation>Diseño</translation>
    </message>
    <message id="cli.company.email">
      <source>E-mail</source>
      <translation>Correo electrónico</translation>
    </message>
    <message id="cli.company.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>El plazo de pago es un número entero de días entre 0 y 365.</translation>
    </message>
    <message id="cli.company.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>El tipo de IVA es un porcentaje entre 0 y 100.</translation>
    </message>
    <message id="cli.company.fileProblem">
      <source>%1: %2</source>
      <translation>%1: %2</translation>
    </message>
    <message id="cli.company.fontBody">
      <source>Body font</source>
      <translation>Fuente del texto</translation>
    </message>
    <message id="cli.company.fontDisplay">
      <source>Display font</source>
      <translation>Fuente de títulos</translation>
    </message>
    <message id="cli.company.footer">
      <source>Footer</source>
      <translation>Pie de página</translation>
    </message>
    <message id="cli.company.iban">
      <source>Bank account (IBAN)</source>
      <translation>Cuenta bancaria (IBAN)</translation>
    </message>
    <message id="cli.company.ink">
      <source>Ink colour</source>
      <translation>Color del texto</translation>
    </message>
    <message id="cli.company.logo">
      <source>Logo</source>
      <translation>Logotipo</translation>
    </message>
    <message id="cli.company.logoSize">
      <source>%1 × %2 px</source>
      <translation>%1 × %2 px</translation>
    </message>
    <message id="cli.company.logoUnreadable">
      <source>set, but not readable</source>
      <translation>definido, pero ilegible</translation>
    </message>
    <message id="cli.company.none">
      <source>No sender details yet. Set them with: morvane company set --company NAME --address TEXT ...</source>
      <translation>Aún no hay datos de remitente. Defínelos con: morvane company set --company NOMBRE --address TEXTO ...</translation>
    </message>
    <message id="cli.company.option.design">
      <source>The design new invoices are drawn in.</source>
      <translation>El diseño de las facturas nuevas.</translation>
    </message>
    <message id="cli.company.option.field">
      <source>Sets: %1. An empty value clears it.</source>
      <translation>Define: %1. Un valor vacío lo borra.</translation>
    </message>
    <message id="cli.company.option.help">
      <source>Show this help.</source>
      <translation>Mostrar esta ayuda.</translation>
    </message>
    <message id="cli.company.option.logo">
      <source>A PNG or JPEG of at most 1 MB; an empty value removes the logo.</source>
      <translation>Un PNG o JPEG de 1 MB como máximo; un valor vacío quita el logotipo.</translation>
    </message>
    <message id="cli.company.option.paymentDays">
      <source>Days the client has to pay.</source>
      <translation>Días que tiene el cliente para pagar.</translation>
    </message>
    <message id="cli.company.option.template">
      <source>Your own HTML template; new invoices use it unless --design says otherwise.</source>
      <translation>Tu propia plantilla HTML; las facturas nuevas la usan salvo que --design indique otra cosa.</translation>
    </message>
    <message id="cli.company.option.vatRate">
      <source>VAT percentage of lines whose price has none.</source>
      <translation>Porcentaje de IVA de las líneas que no tienen uno.</translation>
    </message>
    <message id="cli.company.paymentDays">
      <source>Payment terms</source>
      <translation>Plazo de pago</translation>
    </message>
    <message id="cli.company.phone">
      <source>Phone</source>
      <translation>Teléfono</translation>
    </message>
    <message id="cli.company.saved">
      <source>Sender details and invoice style saved.</source>
      <translation>Datos de remitente y estilo de factura guardados.</translation>
    </message>
    <message id="cli.company.template">
      <source>Custom template</source>
      <translation>Plantilla propia</translation>
    </message>
    <message id="cli.company.templateFallsBack">
      <source>not used, invoices fall back to %1: %2</source>
      <translation>no se usa, las facturas vuelven a %1: %2</translation>
    </message>
    <message id="cli.company.templateStatus">
      <source>Custom template: %1</source>
      <translation>Plantilla propia: %1</translation>
    </message>
    <message id="cli.company.templateUsed">
      <source>used</source>
      <translation>en uso</translation>
    </message>
    <message id="cli.company.unknownDesign">
      <source>Unknown design: %1. The designs are: %2 (aiCustom is your own template).</source>
      <translation>Diseño desconocido: %1. Los diseños son: %2 (aiCustom es tu propia plantilla).</translation>
    </message>
    <message id="cli.company.usage">
      <source>Usage: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</source>
      <translation>Uso: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</translation>
    </message>
    <message id="cli.company.vatNumber">
      <source>VAT number</source>
      <translation>NIF-IVA</translation>
    </message>
    <message id="cli.company.vatRate">
      <source>Default VAT rate</source>
      <translation>Tipo de IVA predeterminado</translation>
    </message>
    <message id="cli.company.website">
      <source>Website</source>
      <translation>Sitio web</translation>
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
    <message id="cli.earnings.backwards">
      <source>The period ends before it begins.</source>
      <translation>El periodo termina antes de empezar.</translation>
    </message>
    <message id="cli.earnings.badBy">
      <source>--by takes week, month or project, not "%1".</source>
      <translation>--by admite week, month o project, no «%1».</translation>
    </message>
    <message id="cli.earnings.badDay">
      <source>"%1" is not a day; write it as yyyy-MM-dd, for example 2026-01-31.</source>
      <translation>«%1» no es un día; escríbelo como aaaa-MM-dd, por ejemplo 2026-01-31.</translation>
    </message>
    <message id="cli.earnings.column.billed">
      <source>Billed</source>
      <translation>Facturado</translation>
    </message>
    <message id="cli.earnings.column.earned">
      <source>Earned</source>
      <translation>Ganado</translation>
    </message>
    <message id="cli.earnings.column.hours">
      <source>Hours</source>
      <translation>Horas</translation>
    </message>
    <message id="cli.earnings.column.period">
      <source>Period</source>
      <translation>Periodo</translation>
    </message>
    <message id="cli.earnings.column.project">
      <source>Project</source>
      <translation>Proyecto</translation>
    </message>
    <message id="cli.earnings.column.rate">
      <source>Per hour</source>
      <translation>Por hora</translation>
    </message>
    <message id="cli.earnings.column.unbilled">
      <source>Unbilled</source>
      <translation>Sin facturar</translation>
    </message>
    <message id="cli.earnings.halfPeriod">
      <source>Give both --from and --to, or neither for the current month.</source>
      <translation>Indica --from y --to a la vez, o ninguno para el mes actual.</translation>
    </message>
    <message id="cli.earnings.heading">
      <source>Earnings from %1 to %2</source>
      <translation>Ingresos del %1 al %2</translation>
    </message>
    <message id="cli.earnings.noProject">
      <source>No project</source>
      <translation>Sin proyecto</translation>
    </message>
    <message id="cli.earnings.none">
      <source>No time tracked in this period.</source>
      <translation>No hay tiempo registrado en este periodo.</translation>
    </message>
    <message id="cli.earnings.option.by">
      <source>Rows by week, month (the default) or project.</source>
      <translation>Filas por semana, mes (por defecto) o proyecto.</translation>
    </message>
    <message id="cli.earnings.option.from">
      <source>First day of the period (yyyy-MM-dd); with --to. Without both, the current month.</source>
      <translation>Primer día del periodo (aaaa-MM-dd); junto con --to. Sin ambos: el mes actual.</translation>
    </message>
    <message id="cli.earnings.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Último día del periodo (aaaa-MM-dd), incluido.</translation>
    </message>
    <message id="cli.earnings.total">
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message id="cli.earnings.usage">
      <source>Usage: morvane earnings [--from DAY --to DAY] [--by week|month|project] [--json]</source>
      <translation>Uso: morvane earnings [--from DÍA --to DÍA] [--by week|month|project] [--json]</translation>
    </message>
    <message id="cli.entries.badRange">
      <source>An entry must end after it starts.</source>
      <translation>Una entrada debe terminar después de empezar.</translation>
    </message>
    <message id="cli.entries.deleted">
      <source>Deleted the entry of %1.</source>
      <translation>Se eliminó la entrada de %1.</translation>
    </message>
    <message id="cli.entries.noMatch">
      <source>No single time entry matches "%1". List them with: morvane entries --task &lt;task&gt;</source>
      <translation>Ninguna entrada única coincide con "%1". Lístalas con: morvane entries --task &lt;task&gt;</translation>
    </message>
    <message id="cli.entries.none">
      <source>No time entries.</source>
      <translation>No hay entradas de tiempo.</translation>
    </message>
    <message id="cli.entries.option.end">
      <source>The new end (ISO 8601, local time without an offset).</source>
      <translation>El nuevo final (ISO 8601, hora local sin desfase).</translation>
    </message>
    <message id="cli.entries.option.minutes">
      <source>The new length in minutes.</source>
      <translation>La nueva duración en minutos.</translation>
    </message>
    <message id="cli.entries.option.start">
      <source>The new start (ISO 8601, local time without an offset).</source>
      <translation>El nuevo inicio (ISO 8601, hora local sin desfase).</translation>
    </message>
    <message id="cli.entries.option.task">
      <source>Only the entries of this task, older ones included.</source>
      <translation>Solo las entradas de esta tarea, incluidas las antiguas.</translation>
    </message>
    <message id="cli.entries.total">
      <source>In all: %1</source>
      <translation>En total: %1</translation>
    </message>
    <message id="cli.entries.usage">
      <source>Usage: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</source>
      <translation>Uso: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</translation>
    </message>
    <message id="cli.err.noSignInWaiting">
      <source>No sign-in is waiting for this address. Start the sign-in in Morvane again.</source>
      <translation>Ningún inicio de sesión espera esta dirección. Vuelve a iniciar sesión en Morvane.</translation>
    </message>
    <message id="cli.err.notSignedIn">
      <source>Not signed in. Sign in with: morvane auth signin &lt;e-mail&gt;</source>
      <translation>No has iniciado sesión. Inicia sesión con: morvane auth signin &lt;e-mail&gt;</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>Comando desconocido: %1. Ejecuta morvane --help para ver la lista de comandos.</translation>
    </message>
    <message id="cli.export.argument.kind">
      <source>What to export: entries or invoices.</source>
      <translation>Qué se exporta: entries (registros de tiempo) o invoices (facturas).</translation>
    </message>
    <message id="cli.export.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Primer día del periodo (aaaa-MM-dd).</translation>
    </message>
    <message id="cli.export.option.help">
      <source>Show this help.</source>
      <translation>Mostrar esta ayuda.</translation>
    </message>
    <message id="cli.export.option.out">
      <source>The CSV file to write; without it the CSV goes to standard output.</source>
      <translation>El archivo CSV que se escribe; sin él, el CSV va a la salida estándar.</translation>
    </message>
    <message id="cli.export.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>Último día del periodo (aaaa-MM-dd), incluido.</translation>
    </message>
    <message id="cli.export.usage">
      <source>Usage: morvane export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>Uso: morvane export entries|invoices --from DÍA --to DÍA [--out ARCHIVO]</translation>
    </message>
    <message id="cli.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>No se pudo escribir %1: %2</translation>
    </message>
    <message id="cli.export.written">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 guardado (filas: %2).</translation>
    </message>
    <message id="cli.invoice.ambiguous">
      <source>Several invoices match %1; give more of the id or the number.</source>
      <translation>Varias facturas coinciden con %1; indica más del id o el número.</translation>
    </message>
    <message id="cli.invoice.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Factura %1 eliminada; sus horas vuelven a estar sin facturar.</translation>
    </message>
    <message id="cli.invoice.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>No se pudo descargar el PDF: %1</translation>
    </message>
    <message id="cli.invoice.draftEmpty">
      <source>No unbilled time of %1 in this period.</source>
      <translation>No hay tiempo sin facturar de %1 en este periodo.</translation>
    </message>
    <message id="cli.invoice.due">
      <source>, due %1</source>
      <translation>, vence el %1</translation>
    </message>
    <message id="cli.invoice.header">
      <source>Invoice %1 (%2), issued %3</source>
      <translation>Factura %1 (%2), emitida el %3</translation>
    </message>
    <message id="cli.invoice.none">
      <source>No invoices yet.</source>
      <translation>Aún no hay facturas.</translation>
    </message>
    <message id="cli.invoice.notFound">
      <source>No invoice matches %1.</source>
      <translation>Ninguna factura coincide con %1.</translation>
    </message>
    <message id="cli.invoice.option.client">
      <source>Bill-to name on the new invoice.</source>
      <translation>Nombre del destinatario en la nueva factura.</translation>
    </message>
    <message id="cli.invoice.option.design">
      <source>The design of the new invoice, instead of the one in your invoice style.</source>
      <translation>El diseño de la factura nueva, en lugar del de tu estilo de factura.</translation>
    </message>
    <message id="cli.invoice.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>Primer día del periodo (aaaa-MM-dd).</translation>
    </message>
    <message id="cli.invoice.option.out">
      <source>The file to write the PDF to.</source>
      <translation>El archivo donde escribir el PDF.</translation>
    </message>
    <message id="cli.invoice.option.status">
      <source>Status of the new invoice: draft or sent.</source>
      <translation>Estado de la nueva factura: draft o sent.</translation>
    </message>
    <message id="cli.invoice.option.to">
      <source>Last day of the period (yyyy-MM-dd).</source>
      <translation>Último día del periodo (aaaa-MM-dd).</translation>
    </message>
    <message id="cli.invoice.option.vat">
      <source>VAT percentage for lines whose price has none.</source>
      <translation>Porcentaje de IVA para las líneas cuyo precio no lo tiene.</translation>
    </message>
    <message id="cli.invoice.pdfReplaced">
      <source>The PDF of invoice %1 was made again.</source>
      <translation>El PDF de la factura %1 se ha vuelto a generar.</translation>
    </message>
    <message id="cli.invoice.pdfSaved">
      <source>Saved the PDF of invoice %1 to %2.</source>
      <translation>El PDF de la factura %1 se guardó en %2.</translation>
    </message>
    <message id="cli.invoice.status.draft">
      <source>draft</source>
      <translation>borrador</translation>
    </message>
    <message id="cli.invoice.status.paid">
      <source>paid</source>
      <translation>pagada</translation>
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
      <translation>La factura %1 ahora está %2.</translation>
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
      <translation>Uso: morvane invoice draft|create &lt;proyecto&gt; [--from DÍA] [--to DÍA] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;factura&gt; | status &lt;factura&gt; draft|sent|paid|void | void &lt;factura&gt; | rm &lt;factura&gt; | pdf &lt;factura&gt; --out ARCHIVO | replace-pdf &lt;factura&gt; [--json]</translation>
    </message>
    <message id="cli.invoice.vat">
      <source>VAT</source>
      <translation>IVA</translation>
    </message>
    <message id="cli.invoice.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>La factura %1 está anulada; sus horas vuelven a estar sin facturar.</translation>
    </message>
    <message id="cli.invoice.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>No se pudo escribir %1: %2</translation>
    </message>
    <message id="cli.log.logged">
      <source>Logged %1 on %2, %3 in all.</source>
      <translation>%1 registrado en %2, %3 en total.</translation>
    </message>
    <message id="cli.log.usage">
      <source>Usage: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</source>
      <translation>Uso: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</translation>
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
    <message id="cli.price.invalid">
      <source>Not a valid amount, or a required one is missing: %1</source>
      <translation>No es un importe válido, o falta uno obligatorio: %1</translation>
    </message>
    <message id="cli.price.option.amount">
      <source>A number as you write it (1250, 1.250,50, 12.5); empty clears it.</source>
      <translation>Un número como lo escribes (1250, 1.250,50, 12.5); vacío lo borra.</translation>
    </message>
    <message id="cli.price.option.discountAmount">
      <source>The discount is an amount.</source>
      <translation>El descuento es un importe.</translation>
    </message>
    <message id="cli.price.option.discountPct">
      <source>The discount is a percentage.</source>
      <translation>El descuento es un porcentaje.</translation>
    </message>
    <message id="cli.price.option.inherit">
      <source>The task bills at its project's price again.</source>
      <translation>La tarea vuelve a facturarse al precio de su proyecto.</translation>
    </message>
    <message id="cli.price.option.model">
      <source>The billing model: hourly, fixed, per_unit or daily.</source>
      <translation>El modelo de facturación: hourly, fixed, per_unit o daily.</translation>
    </message>
    <message id="cli.price.option.surchargeLabel">
      <source>Label of the surcharge.</source>
      <translation>Etiqueta del recargo.</translation>
    </message>
    <message id="cli.price.option.task">
      <source>The task whose own price to show or set, instead of a project's.</source>
      <translation>La tarea cuyo precio propio mostrar o fijar, en lugar del de un proyecto.</translation>
    </message>
    <message id="cli.price.option.travel">
      <source>How the project charges its trips: per_km, per_trip or none.</source>
      <translation>Cómo cobra el proyecto sus trayectos: per_km, per_trip o none.</translation>
    </message>
    <message id="cli.price.option.travelRate">
      <source>The travel rate per kilometre or per trip; without it, per kilometre bills at your own rate.</source>
      <translation>La tarifa por kilómetro o por trayecto; sin ella, por kilómetro se cobra tu propia tarifa.</translation>
    </message>
    <message id="cli.price.option.unitLabel">
      <source>Name of the unit of a per-unit price.</source>
      <translation>Nombre de la unidad de un precio por unidad.</translation>
    </message>
    <message id="cli.price.unchanged">
      <source>Nothing changed.</source>
      <translation>No cambió nada.</translation>
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
      <translation>activo</translation>
    </message>
    <message id="cli.projects.added">
      <source>Added project %1 (%2).</source>
      <translation>Proyecto %1 (%2) añadido.</translation>
    </message>
    <message id="cli.projects.archived">
      <source>archived</source>
      <translation>archivado</translation>
    </message>
    <message id="cli.projects.archivedIdle">
      <source>Idle projects archived: %1.</source>
      <translation>Proyectos inactivos archivados: %1.</translation>
    </message>
    <message id="cli.projects.archivedOne">
      <source>Archived %1.</source>
      <translation>%1 archivado.</translation>
    </message>
    <message id="cli.projects.completed">
      <source>completed</source>
      <translation>completado</translation>
    </message>
    <message id="cli.projects.deleted">
      <source>Deleted %1 and its tasks.</source>
      <translation>%1 y sus tareas eliminados.</translation>
    </message>
    <message id="cli.projects.none">
      <source>No projects yet. Add one with: morvane projects add &lt;name&gt;</source>
      <translation>Aún no hay proyectos. Añade uno con: morvane projects add &lt;name&gt;</translation>
    </message>
    <message id="cli.projects.option.description">
      <source>A description of the project.</source>
      <translation>Una descripción del proyecto.</translation>
    </message>
    <message id="cli.projects.option.idle">
      <source>Archive every project of yours without work for this many days.</source>
      <translation>Archiva todos tus proyectos sin trabajo durante tantos días.</translation>
    </message>
    <message id="cli.projects.option.team">
      <source>The team the new project belongs to.</source>
      <translation>El equipo al que pertenece el nuevo proyecto.</translation>
    </message>
    <message id="cli.projects.renamed">
      <source>Renamed %1 to %2.</source>
      <translation>%1 renombrado a %2.</translation>
    </message>
    <message id="cli.projects.taskCount">
      <source>tasks: %1</source>
      <translation>tareas: %1</translation>
    </message>
    <message id="cli.projects.team">
      <source>team %1</source>
      <translation>equipo %1</translation>
    </message>
    <message id="cli.projects.usage">
      <source>Usage: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</source>
      <translation>Uso: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</translation>
    </message>
    <message id="cli.recap.usage">
      <source>Usage: morvane recap [--lang L] [--yes] [--json]</source>
      <translation>Uso: morvane recap [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.ref.ambiguous">
      <source>"%1" matches several: %2. Use the id.</source>
      <translation>"%1" coincide con varios: %2. Usa el id.</translation>
    </message>
    <message id="cli.ref.noInvitation">
      <source>No invitation to a team matches "%1". See them with: morvane teams invitations</source>
      <translation>Ninguna invitación a un equipo coincide con «%1». Consúltalas con: morvane teams invitations</translation>
    </message>
    <message id="cli.ref.noProject">
      <source>No project matches "%1".</source>
      <translation>Ningún proyecto coincide con "%1".</translation>
    </message>
    <message id="cli.ref.noTask">
      <source>No task matches "%1".</source>
      <translation>Ninguna tarea coincide con "%1".</translation>
    </message>
    <message id="cli.ref.noTeam">
      <source>No team matches "%1".</source>
      <translation>Ningún equipo coincide con "%1".</translation>
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
    <message id="cli.sessions.burst">
      <source>%1. %2 to %3 · active %4 · prompts: %5 · %6</source>
      <translation>%1. %2 a %3 · activo %4 · instrucciones: %5 · %6</translation>
    </message>
    <message id="cli.sessions.err.days">
      <source>--days takes a whole number of days from 1 to 36500.</source>
      <translation>--days espera un número entero de días de 1 a 36500.</translation>
    </message>
    <message id="cli.sessions.err.unknownSession">
      <source>No session %1 among the logs of the last 60 days.</source>
      <translation>No hay ninguna sesión %1 en los registros de los últimos 60 días.</translation>
    </message>
    <message id="cli.sessions.group">
      <source>%1 · sessions: %2 · active %3</source>
      <translation>%1 · sesiones: %2 · activo %3</translation>
    </message>
    <message id="cli.sessions.ignored">
      <source>Ignored %1: %2 sessions there will not be logged.</source>
      <translation>%1 ignorado: %2 sesiones de allí no se registrarán.</translation>
    </message>
    <message id="cli.sessions.mapped">
      <source>%1 is mapped to project %2.</source>
      <translation>%1 está asignado al proyecto %2.</translation>
    </message>
    <message id="cli.sessions.none">
      <source>No Claude sessions parsed yet</source>
      <translation>Aún no se ha analizado ninguna sesión de Claude</translation>
    </message>
    <message id="cli.sessions.option.all">
      <source>Every session (with reimport).</source>
      <translation>Todas las sesiones (con reimport).</translation>
    </message>
    <message id="cli.sessions.option.days">
      <source>Sessions whose log changed in the last N days (30 when not given).</source>
      <translation>Sesiones cuyo registro cambió en los últimos N días (30 si no se indica).</translation>
    </message>
    <message id="cli.sessions.pending">
      <source>Not mapped to a project: %1 · sessions: %2 · active %3</source>
      <translation>Sin proyecto asignado: %1 · sesiones: %2 · activo %3</translation>
    </message>
    <message id="cli.sessions.reimportAll">
      <source>Every session will be logged again by the next scan.</source>
      <translation>Todas las sesiones se volverán a registrar en la próxima exploración.</translation>
    </message>
    <message id="cli.sessions.reimportLogged">
      <source>Session %1 logged again: %2 of %3 work bursts.</source>
      <translation>Sesión %1 registrada de nuevo: %2 de %3 bloques de trabajo.</translation>
    </message>
    <message id="cli.sessions.reimportOne">
      <source>Session %1 will be logged again by the next scan.</source>
      <translation>La sesión %1 se volverá a registrar en la próxima exploración.</translation>
    </message>
    <message id="cli.sessions.scanned">
      <source>Sessions seen: %1 · work bursts logged: %2 · time logged: %3 (%4 minutes) · failed: %5</source>
      <translation>Sesiones vistas: %1 · bloques de trabajo registrados: %2 · tiempo registrado: %3 (%4 minutos) · fallidos: %5</translation>
    </message>
    <message id="cli.sessions.session">
      <source>%1 · %2 to %3 · active %4 · prompts: %5</source>
      <translation>%1 · %2 a %3 · activo %4 · instrucciones: %5</translation>
    </message>
    <message id="cli.sessions.trackOff">
      <source>Claude sessions are no longer tracked.</source>
      <translation>Las sesiones de Claude ya no se registran.</translation>
    </message>
    <message id="cli.sessions.trackOn">
      <source>Claude sessions are tracked: every minute the new work bursts of mapped folders are logged.</source>
      <translation>Las sesiones de Claude se registran: cada minuto se anotan los nuevos bloques de trabajo de las carpetas asignadas.</translation>
    </message>
    <message id="cli.sessions.usage">
      <source>Usage: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</source>
      <translation>Uso: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</translation>
    </message>
    <message id="cli.sessions.where">
      <source>Looked for logs changed in the last %1 days in %2.</source>
      <translation>Se buscaron registros cambiados en los últimos %1 días en %2.</translation>
    </message>
    <message id="cli.standup.usage">
      <source>Usage: morvane standup [--lang L] [--yes] [--json]</source>
      <translation>Uso: morvane standup [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.summary.fixed">
      <source>Written from your figures alone; the model's text was not used (%1).</source>
      <translation>Redactado solo a partir de tus cifras; no se ha usado el texto del modelo (%1).</translation>
    </message>
    <message id="cli.summary.option.lang">
      <source>Language of the text: en, nl, de, fr, es, it, pt, ja or th; others mean English. Default: the interface language.</source>
      <translation>Idioma del texto: en, nl, de, fr, es, it, pt, ja o th; cualquier otro significa inglés. Por defecto: el idioma de la interfaz.</translation>
    </message>
    <message id="cli.tasks.added">
      <source>Added task %1 (%2) to %3.</source>
      <translation>Tarea %1 (%2) añadida a %3.</translation>
    </message>
    <message id="cli.tasks.badDue">
      <source>Not a day: %1. Write it as YYYY-MM-DD.</source>
      <translation>No es un día: %1. Escríbelo como YYYY-MM-DD.</translation>
    </message>
    <message id="cli.tasks.badOrder">
      <source>Unknown filter or sort. Filters: %1. Sorts: %2.</source>
      <translation>Filtro u orden desconocido. Filtros: %1. Órdenes: %2.</translation>
    </message>
    <message id="cli.tasks.badStatus">
      <source>Unknown status %1. Statuses: %2.</source>
      <translation>Estado desconocido %1. Estados: %2.</translation>
    </message>
    <message id="cli.tasks.deleted">
      <source>Deleted %1.</source>
      <translation>%1 eliminada.</translation>
    </message>
    <message id="cli.tasks.due">
      <source>due %1</source>
      <translation>vence %1</translation>
    </message>
    <message id="cli.tasks.high">
      <source>high</source>
      <translation>alta</translation>
    </message>
    <message id="cli.tasks.low">
      <source>low</source>
      <translation>baja</translation>
    </message>
    <message id="cli.tasks.medium">
      <source>medium</source>
      <translation>media</translation>
    </message>
    <message id="cli.tasks.moved">
      <source>Moved %1 to %2.</source>
      <translation>%1 movida a %2.</translation>
    </message>
    <message id="cli.tasks.none">
      <source>  No tasks to show.</source>
      <translation>  No hay tareas que mostrar.</translation>
    </message>
    <message id="cli.tasks.option.description">
      <source>The task's description; empty clears it.</source>
      <translation>La descripción de la tarea; vacía la borra.</translation>
    </message>
    <message id="cli.tasks.option.due">
      <source>The day the task is due (YYYY-MM-DD); empty clears it.</source>
      <translation>El día de vencimiento de la tarea (YYYY-MM-DD); vacío lo borra.</translation>
    </message>
    <message id="cli.tasks.option.filter">
      <source>Which tasks to list: %1.</source>
      <translation>Qué tareas listar: %1.</translation>
    </message>
    <message id="cli.tasks.option.sort">
      <source>How to order the list: %1.</source>
      <translation>Cómo ordenar la lista: %1.</translation>
    </message>
    <message id="cli.tasks.option.title">
      <source>The task's new title.</source>
      <translation>El nuevo título de la tarea.</translation>
    </message>
    <message id="cli.tasks.running">
      <source>timer running</source>
      <translation>temporizador en marcha</translation>
    </message>
    <message id="cli.tasks.saved">
      <source>Saved %1.</source>
      <translation>%1 guardada.</translation>
    </message>
    <message id="cli.tasks.statusSet">
      <source>%1 is now %2.</source>
      <translation>%1 ahora está en %2.</translation>
    </message>
    <message id="cli.tasks.usage">
      <source>Usage: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</source>
      <translation>Uso: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</translation>
    </message>
    <message id="cli.teams.accepted">
      <source>You are now in team %1, as %2.</source>
      <translation>Ahora estás en el equipo %1, como %2.</translation>
    </message>
    <message id="cli.teams.answerHint">
      <source>Answer with: morvane teams accept &lt;team&gt; or morvane teams decline &lt;team&gt;</source>
      <translation>Responde con: morvane teams accept &lt;team&gt; o morvane teams decline &lt;team&gt;</translation>
    </message>
    <message id="cli.teams.assigned">
      <source>%1 now belongs to team %2.</source>
      <translation>%1 ahora pertenece al equipo %2.</translation>
    </message>
    <message id="cli.teams.created">
      <source>Created team %1 (%2).</source>
      <translation>Equipo %1 (%2) creado.</translation>
    </message>
    <message id="cli.teams.declined">
      <source>You declined the invitation to %1.</source>
      <translation>Has rechazado la invitación a %1.</translation>
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
      <translation>No hay invitaciones pendientes de tu respuesta.</translation>
    </message>
    <message id="cli.teams.none">
      <source>No teams. Create one with: morvane teams create &lt;name&gt;</source>
      <translation>No hay equipos. Crea uno con: morvane teams create &lt;name&gt;</translation>
    </message>
    <message id="cli.teams.option.role">
      <source>The role of the invited member: editor or viewer.</source>
      <translation>El rol del miembro invitado: editor o viewer.</translation>
    </message>
    <message id="cli.teams.owner">
      <source>owner</source>
      <translation>propietario</translation>
    </message>
    <message id="cli.teams.pending">
      <source>invited</source>
      <translation>invitado</translation>
    </message>
    <message id="cli.teams.projects">
      <source>Projects: %1</source>
      <translation>Proyectos: %1</translation>
    </message>
    <message id="cli.teams.unassigned">
      <source>%1 no longer belongs to a team.</source>
      <translation>%1 ya no pertenece a ningún equipo.</translation>
    </message>
    <message id="cli.teams.usage">
      <source>Usage: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</source>
      <translation>Uso: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</translation>
    </message>
    <message id="cli.teams.viewer">
      <source>viewer</source>
      <translation>lector</translation>
    </message>
    <message id="cli.teams.you">
      <source>you: %1</source>
      <translation>tú: %1</translation>
    </message>
    <message id="cli.timer.idle">
      <source>No timer runs.</source>
      <translation>No hay ningún temporizador en marcha.</translation>
    </message>
    <message id="cli.timer.nothingToResume">
      <source>No task has time yet, so there is none to go on with. Start one with: morvane timer start &lt;task&gt;</source>
      <translation>Ninguna tarea tiene tiempo todavía, así que no hay ninguna que continuar. Inicie una con: morvane timer start &lt;task&gt;</translation>
    </message>
    <message id="cli.timer.running">
      <source>%1 (%2): %3 running, %4 in all</source>
      <translation>%1 (%2): %3 en marcha, %4 en total</translation>
    </message>
    <message id="cli.timer.started">
      <source>Timer started on %1.</source>
      <translation>Temporizador iniciado en %1.</translation>
    </message>
    <message id="cli.timer.stopped">
      <source>Stopped %1: %2 logged, %3 in all.</source>
      <translation>%1 detenido: %2 registrado, %3 en total.</translation>
    </message>
    <message id="cli.timer.usage">
      <source>Usage: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</source>
      <translation>Uso: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</translation>
    </message>
    <message id="cli.travel.option.mode">
      <source>How you usually travel: car, bike, walk, transit or other.</source>
      <translation>Cómo sueles viajar: car, bike, walk, transit u other.</translation>
    </message>
    <message id="cli.travel.option.rate">
      <source>Your rate per kilometre, used where a project names none.</source>
      <translation>Tu tarifa por kilómetro, para los proyectos que no tienen una.</translation>
    </message>
    <message id="cli.travel.show">
      <source>Rate per kilometre: %1. Usually travel by: %2.</source>
      <translation>Tarifa por kilómetro: %1. Suele viajar en: %2.</translation>
    </message>
    <message id="cli.travel.usage">
      <source>Usage: morvane travel show | set [--rate R] [--mode M] [--json]</source>
      <translation>Uso: morvane travel show | set [--rate R] [--mode M] [--json]</translation>
    </message>
    <message id="cli.trips.added">
      <source>Added trip %1: %2 km.</source>
      <translation>Trayecto %1 añadido: %2 km.</translation>
    </message>
    <message id="cli.trips.deleted">
      <source>Deleted trip %1.</source>
      <translation>Trayecto %1 eliminado.</translation>
    </message>
    <message id="cli.trips.exported">
      <source>Wrote %1 trips to %2.</source>
      <translation>%1 trayectos escritos en %2.</translation>
    </message>
    <message id="cli.trips.invoiced">
      <source>invoiced</source>
      <translation>facturado</translation>
    </message>
    <message id="cli.trips.needKm">
      <source>The distance is unknown: the places were not found. Give it with --km.</source>
      <translation>La distancia es desconocida: no se encontraron los lugares. Indícala con --km.</translation>
    </message>
    <message id="cli.trips.noMatch">
      <source>No single trip matches "%1". See them with: morvane trips list</source>
      <translation>Ningún trayecto único coincide con «%1». Míralos con: morvane trips list</translation>
    </message>
    <message id="cli.trips.notCharged">
      <source>not charged</source>
      <translation>no cobrado</translation>
    </message>
    <message id="cli.trips.option.date">
      <source>The day of the trip (YYYY-MM-DD).</source>
      <translation>El día del trayecto (AAAA-MM-DD).</translation>
    </message>
    <message id="cli.trips.option.from">
      <source>Where the trip started: an address, a place or "lat,lng"; for an export, the first day.</source>
      <translation>Dónde empezó: una dirección, un lugar o "lat,lng"; en una exportación, el primer día.</translation>
    </message>
    <message id="cli.trips.option.km">
      <source>The distance in kilometres; without it the road route, else the straight-line estimate.</source>
      <translation>La distancia en kilómetros; sin ella, la ruta por carretera, si no, la estimación en línea recta.</translation>
    </message>
    <message id="cli.trips.option.mode">
      <source>car, bike, walk, transit or other.</source>
      <translation>car, bike, walk, transit u other.</translation>
    </message>
    <message id="cli.trips.option.notBillable">
      <source>A business trip that is not charged to the client.</source>
      <translation>Un trayecto de trabajo que no se cobra al cliente.</translation>
    </message>
    <message id="cli.trips.option.out">
      <source>The CSV file to write.</source>
      <translation>El archivo CSV que se escribe.</translation>
    </message>
    <message id="cli.trips.option.private">
      <source>A private trip; never charged.</source>
      <translation>Un trayecto privado; nunca se cobra.</translation>
    </message>
    <message id="cli.trips.option.project">
      <source>The project the trip served.</source>
      <translation>El proyecto del trayecto.</translation>
    </message>
    <message id="cli.trips.option.purpose">
      <source>What the trip was for.</source>
      <translation>Para qué fue el trayecto.</translation>
    </message>
    <message id="cli.trips.option.task">
      <source>The task the trip served.</source>
      <translation>La tarea del trayecto.</translation>
    </message>
    <message id="cli.trips.option.to">
      <source>Where the trip ended; for an export, the last day.</source>
      <translation>Dónde terminó; en una exportación, el último día.</translation>
    </message>
    <message id="cli.trips.placeUnknown">
      <source>No place was found for "%1".</source>
      <translation>No se encontró ningún lugar para «%1».</translation>
    </message>
    <message id="cli.trips.private">
      <source>private</source>
      <translation>privado</translation>
    </message>
    <message id="cli.trips.saved">
      <source>Saved trip %1.</source>
      <translation>Trayecto %1 guardado.</translation>
    </message>
    <message id="cli.trips.usage">
      <source>Usage: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</source>
      <translation>Uso: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</translation>
    </message>
    <message id="client.err.nameMissing">
      <source>A client needs a name.</source>
      <translation>Un cliente necesita un nombre.</translation>
    </message>
    <message id="client.err.notCreated">
      <source>The client was not saved: you may not add clients to that team.</source>
      <translation>El cliente no se ha guardado: no puedes añadir clientes a ese equipo.</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>No se pudieron cargar tus clientes.</translation>
    </message>
    <message id="client.err.notSaved">
      <source>The client was not changed: you may not edit it, or it no longer exists.</source>
      <translation>El cliente no se ha cambiado: no puedes editarlo o ya no existe.</translation>
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
    <message id="entry.err.notLogged">
      <source>The time was not logged: you may not log time on this task, or it no longer exists.</source>
      <translation>El tiempo no se registró: no puedes registrar tiempo en esta tarea o ya no existe.</translation>
    </message>
    <message id="entry.err.notSaved">
      <source>The time entry was not saved: it is not yours or it no longer exists.</source>
      <translation>La entrada de tiempo no se guardó: no es tuya o ya no existe.</translation>
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
    <message id="inv.err.allocateNumber">
      <source>Allocate invoice number failed: %1</source>
      <translation>No se pudo asignar el número de factura: %1</translation>
    </message>
    <message id="inv.err.alreadyBilled">
      <source>Some of these hours are already on another invoice. The list was refreshed: check it and try again.</source>
      <translation>Algunas de estas horas ya están en otra factura. La lista se actualizó: revísala e inténtalo de nuevo.</translation>
    </message>
    <message id="inv.err.delete">
      <source>Delete invoice failed: %1</source>
      <translation>No se pudo eliminar la factura: %1</translation>
    </message>
    <message id="inv.err.loadInvoices">
      <source>Load invoices failed: %1</source>
      <translation>No se pudieron cargar las facturas: %1</translation>
    </message>
    <message id="inv.err.loadLines">
      <source>Load invoice lines failed: %1</source>
      <translation>No se pudieron cargar las líneas de la factura: %1</translation>
    </message>
    <message id="inv.err.notReady">
      <source>Still reading what was billed before.</source>
      <translation>Todavía leyendo lo que se facturó antes.</translation>
    </message>
    <message id="inv.err.pdfLink">
      <source>The invoice PDF could not be opened: %1</source>
      <translation>No se pudo abrir el PDF de la factura: %1</translation>
    </message>
    <message id="inv.err.pdfReplace">
      <source>The invoice PDF could not be replaced: %1</source>
      <translation>No se pudo reemplazar el PDF de la factura: %1</translation>
    </message>
    <message id="inv.err.priorBilling">
      <source>Could not read which work was billed before. Billing waits until this works, so no fixed price or extra is billed twice.</source>
      <translation>No se pudo leer qué trabajo se facturó antes. La facturación espera hasta que funcione, para no cobrar dos veces un precio fijo o un extra.</translation>
    </message>
    <message id="inv.err.saveFailed">
      <source>Save invoice failed: %1</source>
      <translation>No se pudo guardar la factura: %1</translation>
    </message>
    <message id="inv.err.unbilled">
      <source>Could not read which time is still unbilled.</source>
      <translation>No se pudo leer qué tiempo sigue sin facturar.</translation>
    </message>
    <message id="inv.err.updateStatus">
      <source>Update invoice status failed: %1</source>
      <translation>No se pudo actualizar el estado de la factura: %1</translation>
    </message>
    <message id="inv.err.voidFailed">
      <source>Voiding the invoice failed: %1</source>
      <translation>No se pudo anular la factura: %1</translation>
    </message>
    <message id="inv.err.voidUnavailable">
      <source>Voiding is not available yet because the server has not been updated. Try again later.</source>
      <translation>Anular aún no está disponible porque el servidor no se ha actualizado. Inténtalo más tarde.</translation>
    </message>
    <message id="inv.extrasBilledBefore">
      <source>extras already billed</source>
      <translation>extras ya facturados</translation>
    </message>
    <message id="inv.followUp">
      <source>FOLLOW-UP</source>
      <translation>CONTINUACIÓN</translation>
    </message>
    <message id="inv.inProjectPrice">
      <source>included in the project price</source>
      <translation>incluido en el precio del proyecto</translation>
    </message>
    <message id="inv.leftOut.many">
      <source>%1 time entries already billed, left out</source>
      <translation>%1 registros de tiempo ya facturados, omitidos</translation>
    </message>
    <message id="inv.leftOut.one">
      <source>1 time entry already billed, left out</source>
      <translation>1 registro de tiempo ya facturado, omitido</translation>
    </message>
    <message id="inv.line.discount">
      <source>Discount</source>
      <translation>Descuento</translation>
    </message>
    <message id="inv.line.fixedPrice">
      <source>fixed price</source>
      <translation>precio fijo</translation>
    </message>
    <message id="inv.line.materials">
      <source>Materials</source>
      <translation>Materiales</translation>
    </message>
    <message id="inv.line.minimum">
      <source>Minimum charge</source>
      <translation>Importe mínimo</translation>
    </message>
    <message id="inv.line.projectPrice">
      <source>Project price</source>
      <translation>Precio del proyecto</translation>
    </message>
    <message id="inv.line.surcharge">
      <source>Call-out fee</source>
      <translation>Gastos de desplazamiento</translation>
    </message>
    <message id="inv.oncePerProject">
      <source>once per project</source>
      <translation>una vez por proyecto</translation>
    </message>
    <message id="inv.onlyNewTime">
      <source>new time only</source>
      <translation>solo tiempo nuevo</translation>
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
    <message id="inv.priceBilledBefore">
      <source>fixed price already billed</source>
      <translation>precio fijo ya facturado</translation>
    </message>
    <message id="inv.projectExtras">
      <source>Project extras</source>
      <translation>Extras del proyecto</translation>
    </message>
    <message id="inv.rebill">
      <source>Bill again</source>
      <translation>Facturar de nuevo</translation>
    </message>
    <message id="inv.rebillHelp">
      <source>This work was billed before. Its fixed or per-unit price, minimum charge, call-out fee, materials and a fixed discount are billed once. Turn this on to bill them again.</source>
      <translation>Este trabajo ya se facturó. Su precio fijo o por unidad, el importe mínimo, los gastos de desplazamiento, los materiales y un descuento fijo se facturan una sola vez. Actívalo para facturarlos de nuevo.</translation>
    </message>
    <message id="inv.saved">
      <source>Invoice %1 saved</source>
      <translation>Factura %1 guardada</translation>
    </message>
    <message id="inv.style.colour.invalid">
      <source>“%1” is no colour: write it as #rgb or #rrggbb, for example #0f766e.</source>
      <translation>«%1» no es un color: escríbelo como #rgb o #rrggbb, por ejemplo #0f766e.</translation>
    </message>
    <message id="inv.style.file.unreadable">
      <source>The file could not be opened.</source>
      <translation>No se ha podido abrir el archivo.</translation>
    </message>
    <message id="inv.style.font.invalid">
      <source>A font name holds only letters, digits, blanks and hyphens.</source>
      <translation>Un nombre de fuente solo lleva letras, cifras, espacios y guiones.</translation>
    </message>
    <message id="inv.style.logo.damaged">
      <source>The image could not be read; the file may be damaged.</source>
      <translation>No se ha podido leer la imagen; puede que el archivo esté dañado.</translation>
    </message>
    <message id="inv.style.logo.empty">
      <source>The file is empty.</source>
      <translation>El archivo está vacío.</translation>
    </message>
    <message id="inv.style.logo.kind">
      <source>The logo must be a PNG or JPEG image.</source>
      <translation>El logotipo debe ser una imagen PNG o JPEG.</translation>
    </message>
    <message id="inv.style.logo.svg">
      <source>SVG logos are not accepted, since a drawing can carry scripts and links. Pick a PNG or JPEG.</source>
      <translation>No se aceptan logotipos SVG, porque un dibujo puede contener scripts y enlaces. Elige un PNG o JPEG.</translation>
    </message>
    <message id="inv.style.logo.tooLarge">
      <source>The logo is larger than 1 MB. Pick a smaller PNG or JPEG.</source>
      <translation>El logotipo supera 1 MB. Elige un PNG o JPEG más pequeño.</translation>
    </message>
    <message id="inv.style.template.empty">
      <source>The template is empty.</source>
      <translation>La plantilla está vacía.</translation>
    </message>
    <message id="inv.style.template.noDoctype">
      <source>The template must start with &lt;!doctype html&gt;.</source>
      <translation>La plantilla debe empezar por &lt;!doctype html&gt;.</translation>
    </message>
    <message id="inv.style.template.noFooter">
      <source>The template has no &lt;footer&gt; element.</source>
      <translation>La plantilla no tiene ningún elemento &lt;footer&gt;.</translation>
    </message>
    <message id="inv.style.template.noHeader">
      <source>The template has no &lt;header&gt; element.</source>
      <translation>La plantilla no tiene ningún elemento &lt;header&gt;.</translation>
    </message>
    <message id="inv.style.template.notText">
      <source>The template is not a text file in UTF-8.</source>
      <translation>La plantilla no es un archivo de texto en UTF-8.</translation>
    </message>
    <message id="inv.style.template.pageSize">
      <source>The template must fix the page at 794 × 1123 px (A4), with both sizes in its style sheet.</source>
      <translation>La plantilla debe fijar la página en 794 × 1123 px (A4), con ambas medidas en su hoja de estilos.</translation>
    </message>
    <message id="inv.style.template.tooLarge">
      <source>The template is larger than 512 KB.</source>
      <translation>La plantilla supera los 512 KB.</translation>
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
      <translation>día</translation>
    </message>
    <message id="inv.unit.hours">
      <source>h</source>
      <translation>h</translation>
    </message>
    <message id="inv.unit.units">
      <source>unit</source>
      <translation>unidad</translation>
    </message>
    <message id="inv.vat.hint">
      <source>Each line uses the VAT rate of its price settings, else the template's rate.</source>
      <translation>Cada línea usa el tipo de IVA de su configuración de precio; si no, el de la plantilla.</translation>
    </message>
    <message id="inv.vat.none">
      <source>No VAT on these lines</source>
      <translation>Sin IVA en estas líneas</translation>
    </message>
    <message id="inv.vat.override">
      <source>Set VAT manually</source>
      <translation>Fijar el IVA manualmente</translation>
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
    <message id="inviteRateLimited">
      <source>You have sent many invitations in the last hour. Try again later.</source>
      <translation>Has enviado muchas invitaciones en la última hora. Inténtalo de nuevo más tarde.</translation>
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
    <message id="invoiceErrTripsTaken">
      <source>Some of these trips are already on another invoice. Refresh and try again.</source>
      <translation>Algunos de estos viajes ya están en otra factura. Actualiza e inténtalo de nuevo.</translation>
    </message>
    <message id="invoiceErrVoidFinal">
      <source>This invoice is void. A void invoice cannot be changed back.</source>
      <translation>Esta factura está anulada. Una factura anulada no se puede revertir.</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>Hecho con Morvane</translation>
    </message>
    <message id="invoicePeriodLast30">
      <source>Last 30 days</source>
      <translation>Últimos 30 días</translation>
    </message>
    <message id="invoicePeriodLast7">
      <source>Last 7 days</source>
      <translation>Últimos 7 días</translation>
    </message>
    <message id="invoicePeriodLastMonth">
      <source>Last month</source>
      <translation>El mes pasado</translation>
    </message>
    <message id="invoicePeriodThisMonth">
      <source>This month</source>
      <translation>Este mes</translation>
    </message>
    <message id="invoiceTravelInclude">
      <source>Charge travel</source>
      <translation>Cobrar desplazamientos</translation>
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
    <message id="store.style.err.notLoaded">
      <source>Your invoice style could not be loaded.</source>
      <translation>No se ha podido cargar el estilo de tus facturas.</translation>
    </message>
    <message id="store.style.err.notSaved">
      <source>The invoice style was not saved: you may not change this template, or it no longer exists.</source>
      <translation>No se ha guardado el estilo de factura: no puedes cambiar esta plantilla o ya no existe.</translation>
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
    <message id="task.custom">
      <source>Custom for this task</source>
      <translation>Precio propio para esta tarea</translation>
    </message>
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>La tarea no se creó: no puedes añadir tareas a este proyecto.</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>La tarea no se modificó: no puedes editarla o ya no existe.</translation>
    </message>
    <message id="task.inheritedFrom">
      <source>Inherited from %1</source>
      <translation>Heredado de %1</translation>
    </message>
    <message id="task.savePrice">
      <source>Save task price</source>
      <translation>Guardar el precio de la tarea</translation>
    </message>
    <message id="task.useProject">
      <source>Use project price</source>
      <translation>Usar el precio del proyecto</translation>
    </message>
    <message id="team.err.invitationNotAnswered">
      <source>The invitation could not be answered. Try again.</source>
      <translation>No se pudo responder a la invitación. Inténtalo de nuevo.</translation>
    </message>
    <message id="team.err.memberNotChanged">
      <source>The member was not changed: only the team owner can change roles and remove people.</source>
      <translation>El miembro no se ha cambiado: solo el propietario del equipo puede cambiar roles y quitar personas.</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>El equipo no se creó. Vuelve a intentarlo.</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>No se pudieron cargar tus equipos.</translation>
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
      <translation>No se pudo registrar el tiempo, así que el temporizador sigue en marcha. Intenta detenerlo de nuevo.</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>El temporizador de esta tarea se inició en otro dispositivo, así que su estado no se cambió.</translation>
    </message>
    <message id="travelDescribeMany">
      <source>%1 km in %2 trips</source>
      <translation>%1 km en %2 trayectos</translation>
    </message>
    <message id="travelDescribeOne">
      <source>%1 km in 1 trip</source>
      <translation>%1 km en 1 trayecto</translation>
    </message>
    <message id="travelKm">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="travelTitle">
      <source>Travel</source>
      <translation>Desplazamientos</translation>
    </message>
    <message id="travelTrip">
      <source>trip</source>
      <translation>trayecto</translation>
    </message>
    <message id="trip.err.notLoaded">
      <source>Your trips could not be loaded. Check your connection and try again.</source>
      <translation>No se pudieron cargar tus trayectos. Comprueba tu conexión e inténtalo de nuevo.</translation>
    </message>
    <message id="trip.err.notSaved">
      <source>The trip was not saved: it no longer exists or you may not change it.</source>
      <translation>El trayecto no se guardó: ya no existe o no puedes cambiarlo.</translation>
    </message>
    <message id="trip.err.settingsNotSaved">
      <source>Your travel settings were not saved.</source>
      <translation>Tus ajustes de viaje no se guardaron.</translation>
    </message>
    <message id="tripDeleteConfirm">
      <source>Delete this trip? This cannot be undone.</source>
      <translation>¿Eliminar este trayecto? No se puede deshacer.</translation>
    </message>
    <message id="tripDistanceByRoad">
      <source>Distance by road, about %1 min. Change it if you went another way.</source>
      <translation>Distancia por carretera, unos %1 min. Cámbiala si fuiste por otro camino.</translation>
    </message>
    <message id="tripDistanceEstimate">
      <source>Kilometres are an estimate from the addresses; change them if needed.</source>
      <translation>Los kilómetros son una estimación a partir de las direcciones; cámbialos si hace falta.</translation>
    </message>
    <message id="tripErrNoService">
      <source>No routing or address service is set up.</source>
      <translation>No hay ningún servicio de rutas ni de direcciones configurado.</translation>
    </message>
    <message id="tripErrNotFound">
      <source>No place or route was found for this.</source>
      <translation>No se encontró ningún lugar ni ruta.</translation>
    </message>
    <message id="tripInProgress">
      <source>Trip in progress</source>
      <translation>Trayecto en curso</translation>
    </message>
    <message id="tripSearchFailed">
      <source>Searching did not work. Check your connection and try again.</source>
      <translation>La búsqueda no funcionó. Comprueba tu conexión e inténtalo de nuevo.</translation>
    </message>
    <message id="tripsEmpty">
      <source>No trips yet. Trips your phone records while a timer runs show up here. You can also add a trip by hand.</source>
      <translation>Aún no hay trayectos. Los que registra tu teléfono mientras corre un temporizador aparecen aquí. También puedes añadir uno a mano.</translation>
    </message>
    <message id="ui.action.floatingTimer">
      <source>Show or hide the floating timer</source>
      <translation>Mostrar u ocultar el temporizador flotante</translation>
    </message>
    <message id="ui.action.newProject">
      <source>New project</source>
      <translation>Nuevo proyecto</translation>
    </message>
    <message id="ui.action.newTask">
      <source>New task</source>
      <translation>Nueva tarea</translation>
    </message>
    <message id="ui.action.newTeam">
      <source>New team</source>
      <translation>Nuevo equipo</translation>
    </message>
    <message id="ui.action.quickAdd">
      <source>Quick add: a sentence becomes work…</source>
      <translation>Añadir rápido: una frase se convierte en trabajo…</translation>
    </message>
    <message id="ui.action.settings">
      <source>Settings</source>
      <translation>Ajustes</translation>
    </message>
    <message id="ui.action.signOut">
      <source>Sign out</source>
      <translation>Cerrar sesión</translation>
    </message>
    <message id="ui.action.toggleTheme">
      <source>Switch between light and dark</source>
      <translation>Cambiar entre claro y oscuro</translation>
    </message>
    <message id="ui.action.toggleTimer">
      <source>Start or stop the timer</source>
      <translation>Iniciar o detener el temporizador</translation>
    </message>
    <message id="ui.ai.anthropic">
      <source>Anthropic API with your key</source>
      <translation>API de Anthropic con tu clave</translation>
    </message>
    <message id="ui.ai.anthropicHelp">
      <source>Straight to Anthropic with the key you keep in your keyring.</source>
      <translation>Directo a Anthropic con la clave de tu llavero.</translation>
    </message>
    <message id="ui.ai.auto">
      <source>Automatic (recommended)</source>
      <translation>Automático (recomendado)</translation>
    </message>
    <message id="ui.ai.autoHelp">
      <source>The Claude CLI first; without it, Morvane AI in the cloud.</source>
      <translation>Primero la CLI de Claude; sin ella, Morvane AI en la nube.</translation>
    </message>
    <message id="ui.ai.cli">
      <source>Claude CLI only</source>
      <translation>Solo la CLI de Claude</translation>
    </message>
    <message id="ui.ai.cliHelp">
      <source>Everything local through your own Claude subscription. No network.</source>
      <translation>Todo local con tu propia suscripción de Claude. Sin red.</translation>
    </message>
    <message id="ui.ai.consentAllow">
      <source>Allowed</source>
      <translation>Permitido</translation>
    </message>
    <message id="ui.ai.consentAsk">
      <source>Ask first</source>
      <translation>Preguntar antes</translation>
    </message>
    <message id="ui.ai.consentDeny">
      <source>Never send</source>
      <translation>No enviar nunca</translation>
    </message>
    <message id="ui.ai.consents">
      <source>Sending text off this computer</source>
      <translation>Enviar texto fuera de este ordenador</translation>
    </message>
    <message id="ui.ai.gemini">
      <source>Google Gemini API with your key</source>
      <translation>API de Google Gemini con tu clave</translation>
    </message>
    <message id="ui.ai.geminiHelp">
      <source>Straight to Google with the key you keep in your keyring.</source>
      <translation>Directo a Google con la clave de tu llavero.</translation>
    </message>
    <message id="ui.ai.keyFailed">
      <source>The keyring did not take the change; nothing changed.</source>
      <translation>El llavero no aceptó el cambio; no ha cambiado nada.</translation>
    </message>
    <message id="ui.ai.keyInvalid">
      <source>That does not look like an API key: paste the key alone, without spaces.</source>
      <translation>Eso no parece una clave de API: pega solo la clave, sin espacios.</translation>
    </message>
    <message id="ui.ai.keyName">
      <source>API key for %1</source>
      <translation>Clave de API para %1</translation>
    </message>
    <message id="ui.ai.keyPaste">
      <source>Paste your API key</source>
      <translation>Pega tu clave de API</translation>
    </message>
    <message id="ui.ai.keyRemove">
      <source>Remove</source>
      <translation>Quitar</translation>
    </message>
    <message id="ui.ai.keySave">
      <source>Save key</source>
      <translation>Guardar clave</translation>
    </message>
    <message id="ui.ai.keyStored">
      <source>A key is stored; paste another to replace it</source>
      <translation>Hay una clave guardada; pega otra para sustituirla</translation>
    </message>
    <message id="ui.ai.keys">
      <source>Your own API keys (kept in the keyring)</source>
      <translation>Tus propias claves de API (en el llavero)</translation>
    </message>
    <message id="ui.ai.openai">
      <source>OpenAI API with your key</source>
      <translation>API de OpenAI con tu clave</translation>
    </message>
    <message id="ui.ai.openaiHelp">
      <source>Straight to OpenAI with the key you keep in your keyring.</source>
      <translation>Directo a OpenAI con la clave de tu llavero.</translation>
    </message>
    <message id="ui.ai.relay">
      <source>Morvane AI only</source>
      <translation>Solo Morvane AI</translation>
    </message>
    <message id="ui.ai.relayHelp">
      <source>Always through the secured relay of your Morvane server. The CLI is ignored.</source>
      <translation>Siempre a través del relé seguro de tu servidor Morvane. La CLI se ignora.</translation>
    </message>
    <message id="ui.ai.route">
      <source>Where model calls go</source>
      <translation>Adónde van las llamadas al modelo</translation>
    </message>
    <message id="ui.assistant.add">
      <source>Add</source>
      <translation>Añadir</translation>
    </message>
    <message id="ui.assistant.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as the task list shows it.</source>
      <translation>¿Qué tarea? Ninguna de tus tareas se llama "%1", o varias sí. Nómbrala como aparece en la lista de tareas.</translation>
    </message>
    <message id="ui.assistant.consentNo">
      <source>Don't send</source>
      <translation>No enviar</translation>
    </message>
    <message id="ui.assistant.consentOnce">
      <source>Morvane asks once for this route and remembers your answer. You can change it in the settings.</source>
      <translation>Morvane lo pregunta una vez para esta vía y recuerda tu respuesta. Puedes cambiarla en los ajustes.</translation>
    </message>
    <message id="ui.assistant.consentTitle">
      <source>Send your text to %1?</source>
      <translation>¿Enviar tu texto a %1?</translation>
    </message>
    <message id="ui.assistant.consentYes">
      <source>Send</source>
      <translation>Enviar</translation>
    </message>
    <message id="ui.assistant.empty">
      <source>Type a sentence in your own words: new projects and tasks, time you spent, or start and stop the timer.</source>
      <translation>Escribe una frase con tus palabras: proyectos y tareas nuevos, tiempo dedicado, o iniciar y parar el temporizador.</translation>
    </message>
    <message id="ui.assistant.notUnderstood">
      <source>The sentence could not be read: %1</source>
      <translation>No se pudo leer la frase: %1</translation>
    </message>
    <message id="ui.assistant.placeholder">
      <source>Say what to add, e.g. “Logo design for Acme, 3 hours yesterday”</source>
      <translation>Di qué añadir, p. ej. «Diseño de logo para Acme, 3 horas ayer»</translation>
    </message>
    <message id="ui.assistant.reading">
      <source>Reading your sentence…</source>
      <translation>Leyendo tu frase…</translation>
    </message>
    <message id="ui.assistant.title">
      <source>Quick add</source>
      <translation>Añadir rápido</translation>
    </message>
    <message id="ui.assistant.tooLong">
      <source>That is more than a sentence or two. Say what to add in a few lines.</source>
      <translation>Eso es más que una o dos frases. Di en pocas líneas qué añadir.</translation>
    </message>
    <message id="ui.auth.aboutYou">
      <source>A little about you</source>
      <translation>Un poco sobre ti</translation>
    </message>
    <message id="ui.auth.confirmBody">
      <source>We sent a confirmation link to %1. Open it, then sign in here.</source>
      <translation>Hemos enviado un enlace de confirmación a %1. Ábrelo y luego inicia sesión aquí.</translation>
    </message>
    <message id="ui.auth.confirmResent">
      <source>We sent a new confirmation link to %1.</source>
      <translation>Hemos enviado un nuevo enlace de confirmación a %1.</translation>
    </message>
    <message id="ui.auth.confirmSent">
      <source>We sent a link to %1. Open it to confirm your address, then sign in.</source>
      <translation>Hemos enviado un enlace a %1. Ábrelo para confirmar tu dirección y luego inicia sesión.</translation>
    </message>
    <message id="ui.auth.confirmTitle">
      <source>Confirm your e-mail</source>
      <translation>Confirma tu correo</translation>
    </message>
    <message id="ui.auth.continueAs">
      <source>Continue as %1</source>
      <translation>Continuar como %1</translation>
    </message>
    <message id="ui.auth.continueWith">
      <source>Continue with %1</source>
      <translation>Continuar con %1</translation>
    </message>
    <message id="ui.auth.createAccount">
      <source>Create your account</source>
      <translation>Crea tu cuenta</translation>
    </message>
    <message id="ui.auth.email">
      <source>E-mail</source>
      <translation>Correo electrónico</translation>
    </message>
    <message id="ui.auth.forgot">
      <source>Forgot password?</source>
      <translation>¿Has olvidado la contraseña?</translation>
    </message>
    <message id="ui.auth.getStarted">
      <source>Get started</source>
      <translation>Empezar</translation>
    </message>
    <message id="ui.auth.haveAccount">
      <source>I already have an account</source>
      <translation>Ya tengo una cuenta</translation>
    </message>
    <message id="ui.auth.password">
      <source>Password</source>
      <translation>Contraseña</translation>
    </message>
    <message id="ui.auth.passwordHint">
      <source>At least 8 characters.</source>
      <translation>Al menos 8 caracteres.</translation>
    </message>
    <message id="ui.auth.rememberMe">
      <source>Remember me on this computer</source>
      <translation>Recordarme en este ordenador</translation>
    </message>
    <message id="ui.auth.resend">
      <source>Send the link again</source>
      <translation>Reenviar el enlace</translation>
    </message>
    <message id="ui.auth.resetSent">
      <source>Check your inbox for the reset link.</source>
      <translation>Busca el enlace de restablecimiento en tu bandeja de entrada.</translation>
    </message>
    <message id="ui.auth.resetTitle">
      <source>Reset your password</source>
      <translation>Restablece tu contraseña</translation>
    </message>
    <message id="ui.auth.sendReset">
      <source>Send the reset link</source>
      <translation>Enviar el enlace de restablecimiento</translation>
    </message>
    <message id="ui.auth.signInTitle">
      <source>Sign in</source>
      <translation>Iniciar sesión</translation>
    </message>
    <message id="ui.auth.toSignIn">
      <source>Back to sign in</source>
      <translation>Volver al inicio de sesión</translation>
    </message>
    <message id="ui.auth.toSignUp">
      <source>Create an account</source>
      <translation>Crear una cuenta</translation>
    </message>
    <message id="ui.auth.welcome">
      <source>Welcome to Morvane</source>
      <translation>Te damos la bienvenida a Morvane</translation>
    </message>
    <message id="ui.auth.welcomeBody">
      <source>Track your time on projects and tasks, and turn it into invoices. Your data stays on this computer unless you connect a shared server.</source>
      <translation>Registra tu tiempo en proyectos y tareas, y conviértelo en facturas. Tus datos se quedan en este ordenador, salvo que conectes un servidor compartido.</translation>
    </message>
    <message id="ui.calendar.add">
      <source>Add calendar</source>
      <translation>Añadir calendario</translation>
    </message>
    <message id="ui.calendar.addFile">
      <source>Add a calendar file…</source>
      <translation>Añadir un archivo de calendario…</translation>
    </message>
    <message id="ui.calendar.added">
      <source>%1 was added.</source>
      <translation>Se ha añadido %1.</translation>
    </message>
    <message id="ui.calendar.address">
      <source>Subscription or CalDAV address (https:// or webcal://)</source>
      <translation>Dirección de suscripción o CalDAV (https:// o webcal://)</translation>
    </message>
    <message id="ui.calendar.badDay">
      <source>Write the day as year-month-day, for example 2026-11-25.</source>
      <translation>Escribe el día como año-mes-día, por ejemplo 2026-11-25.</translation>
    </message>
    <message id="ui.calendar.caldav">
      <source>CalDAV account</source>
      <translation>Cuenta CalDAV</translation>
    </message>
    <message id="ui.calendar.day">
      <source>Day (year-month-day)</source>
      <translation>Día (año-mes-día)</translation>
    </message>
    <message id="ui.calendar.destination">
      <source>Where it goes</source>
      <translation>Dónde va</translation>
    </message>
    <message id="ui.calendar.fileFilter">
      <source>Calendar files (*.ics)</source>
      <translation>Archivos de calendario (*.ics)</translation>
    </message>
    <message id="ui.calendar.fileTitle">
      <source>Add a calendar file</source>
      <translation>Añadir un archivo de calendario</translation>
    </message>
    <message id="ui.calendar.import">
      <source>Import as time</source>
      <translation>Importar como tiempo</translation>
    </message>
    <message id="ui.calendar.imported">
      <source>%1 imported as time.</source>
      <translation>%1 importados como tiempo.</translation>
    </message>
    <message id="ui.calendar.importedChip">
      <source>Imported</source>
      <translation>Importado</translation>
    </message>
    <message id="ui.calendar.link">
      <source>Calendar import</source>
      <translation>Importar calendario</translation>
    </message>
    <message id="ui.calendar.loading">
      <source>Loading calendar…</source>
      <translation>Cargando calendario…</translation>
    </message>
    <message id="ui.calendar.newTaskIn">
      <source>New task in %1</source>
      <translation>Nueva tarea en %1</translation>
    </message>
    <message id="ui.calendar.next">
      <source>Next day</source>
      <translation>Día siguiente</translation>
    </message>
    <message id="ui.calendar.noDestination">
      <source>%1 imported. %2 ticked events have no destination yet: choose where each goes.</source>
      <translation>%1 importados. %2 eventos marcados aún no tienen destino: elige dónde va cada uno.</translation>
    </message>
    <message id="ui.calendar.noEventsHint">
      <source>Pick another day, or add the calendar that holds your meetings.</source>
      <translation>Elige otro día o añade el calendario donde están tus reuniones.</translation>
    </message>
    <message id="ui.calendar.noEventsTitle">
      <source>No events on this day</source>
      <translation>No hay eventos este día</translation>
    </message>
    <message id="ui.calendar.noSourcesHint">
      <source>Add a calendar file, a subscription address (such as a hosted calendar's secret address) or a CalDAV account on the left. Morvane only reads them.</source>
      <translation>Añade a la izquierda un archivo de calendario, una dirección de suscripción (como la dirección secreta de un calendario en línea) o una cuenta CalDAV. Morvane solo los lee.</translation>
    </message>
    <message id="ui.calendar.noSourcesTitle">
      <source>No calendars yet</source>
      <translation>Aún no hay calendarios</translation>
    </message>
    <message id="ui.calendar.partial">
      <source>%1 imported; then it stopped: %2</source>
      <translation>%1 importados; luego se detuvo: %2</translation>
    </message>
    <message id="ui.calendar.password">
      <source>Password (kept in your keyring)</source>
      <translation>Contraseña (guardada en tu llavero)</translation>
    </message>
    <message id="ui.calendar.previous">
      <source>Previous day</source>
      <translation>Día anterior</translation>
    </message>
    <message id="ui.calendar.remove">
      <source>Remove</source>
      <translation>Quitar</translation>
    </message>
    <message id="ui.calendar.sources">
      <source>Your calendars</source>
      <translation>Tus calendarios</translation>
    </message>
    <message id="ui.calendar.timeOn">
      <source>Time on %1 (%2)</source>
      <translation>Tiempo en %1 (%2)</translation>
    </message>
    <message id="ui.calendar.title">
      <source>Import from your calendar</source>
      <translation>Importar desde tu calendario</translation>
    </message>
    <message id="ui.calendar.user">
      <source>User name</source>
      <translation>Nombre de usuario</translation>
    </message>
    <message id="ui.category.admin">
      <source>Admin</source>
      <translation>Administración</translation>
    </message>
    <message id="ui.category.billable">
      <source>Billable</source>
      <translation>Facturable</translation>
    </message>
    <message id="ui.category.internal">
      <source>Internal work</source>
      <translation>Trabajo interno</translation>
    </message>
    <message id="ui.category.none">
      <source>None</source>
      <translation>Ninguna</translation>
    </message>
    <message id="ui.clients.address">
      <source>Address</source>
      <translation>Dirección</translation>
    </message>
    <message id="ui.clients.deleteBody">
      <source>It leaves your list of clients. Invoices you already wrote for this client keep it.</source>
      <translation>Desaparece de tu lista de clientes. Las facturas que ya hiciste para este cliente lo conservan.</translation>
    </message>
    <message id="ui.clients.deleteTitle">
      <source>Delete %1?</source>
      <translation>¿Eliminar %1?</translation>
    </message>
    <message id="ui.clients.edit">
      <source>Edit client</source>
      <translation>Editar cliente</translation>
    </message>
    <message id="ui.clients.email">
      <source>E-mail</source>
      <translation>Correo electrónico</translation>
    </message>
    <message id="ui.clients.emptyHint">
      <source>Add the people and companies you invoice, then choose them when you write an invoice. Press Ctrl+N or “New client” to add the first.</source>
      <translation>Añade las personas y empresas a las que facturas y elígelas al hacer una factura. Pulsa Ctrl+N o «Nuevo cliente» para añadir el primero.</translation>
    </message>
    <message id="ui.clients.emptyTitle">
      <source>No clients yet</source>
      <translation>Todavía no hay clientes</translation>
    </message>
    <message id="ui.clients.kvk">
      <source>Chamber of commerce number</source>
      <translation>Número de registro mercantil</translation>
    </message>
    <message id="ui.clients.name">
      <source>Name</source>
      <translation>Nombre</translation>
    </message>
    <message id="ui.clients.namePlaceholder">
      <source>Company or person</source>
      <translation>Empresa o persona</translation>
    </message>
    <message id="ui.clients.new">
      <source>New client</source>
      <translation>Nuevo cliente</translation>
    </message>
    <message id="ui.clients.noMatch">
      <source>No client matches “%1”</source>
      <translation>Ningún cliente coincide con «%1»</translation>
    </message>
    <message id="ui.clients.search">
      <source>Search clients</source>
      <translation>Buscar clientes</translation>
    </message>
    <message id="ui.clients.title">
      <source>Clients</source>
      <translation>Clientes</translation>
    </message>
    <message id="ui.clients.vatId">
      <source>VAT number</source>
      <translation>NIF-IVA</translation>
    </message>
    <message id="ui.common.cancel">
      <source>Cancel</source>
      <translation>Cancelar</translation>
    </message>
    <message id="ui.common.close">
      <source>Close</source>
      <translation>Cerrar</translation>
    </message>
    <message id="ui.common.continue">
      <source>Continue</source>
      <translation>Continuar</translation>
    </message>
    <message id="ui.common.delete">
      <source>Delete</source>
      <translation>Eliminar</translation>
    </message>
    <message id="ui.common.dismiss">
      <source>Dismiss</source>
      <translation>Cerrar</translation>
    </message>
    <message id="ui.common.edit">
      <source>Edit</source>
      <translation>Editar</translation>
    </message>
    <message id="ui.common.remove">
      <source>Remove %1</source>
      <translation>Quitar %1</translation>
    </message>
    <message id="ui.common.retry">
      <source>Try again</source>
      <translation>Reintentar</translation>
    </message>
    <message id="ui.common.save">
      <source>Save</source>
      <translation>Guardar</translation>
    </message>
    <message id="ui.common.saving">
      <source>Saving</source>
      <translation>Guardando</translation>
    </message>
    <message id="ui.composer.billTo">
      <source>Bill to</source>
      <translation>Facturar a</translation>
    </message>
    <message id="ui.composer.cancel">
      <source>Cancel</source>
      <translation>Cancelar</translation>
    </message>
    <message id="ui.composer.clientAddress">
      <source>Client address</source>
      <translation>Dirección del cliente</translation>
    </message>
    <message id="ui.composer.clientEmail">
      <source>Client e-mail</source>
      <translation>Correo del cliente</translation>
    </message>
    <message id="ui.composer.clientName">
      <source>Client name</source>
      <translation>Nombre del cliente</translation>
    </message>
    <message id="ui.composer.design">
      <source>Design</source>
      <translation>Diseño</translation>
    </message>
    <message id="ui.composer.drawing">
      <source>Drawing the invoice</source>
      <translation>Generando la factura</translation>
    </message>
    <message id="ui.composer.due">
      <source>Due</source>
      <translation>Vencimiento</translation>
    </message>
    <message id="ui.composer.err.day">
      <source>Write days as year-month-day, for example 2026-11-01.</source>
      <translation>Escribe las fechas como año-mes-día, por ejemplo 2026-11-01.</translation>
    </message>
    <message id="ui.composer.err.due">
      <source>Payment cannot be due before the invoice is issued.</source>
      <translation>El vencimiento no puede ser anterior a la fecha de emisión.</translation>
    </message>
    <message id="ui.composer.err.empty">
      <source>Choose work with unbilled time first.</source>
      <translation>Elige primero trabajo con tiempo sin facturar.</translation>
    </message>
    <message id="ui.composer.err.noNumber">
      <source>The invoice has no number yet. Check the connection and open the composer again.</source>
      <translation>La factura aún no tiene número. Comprueba la conexión y vuelve a abrir el editor de facturas.</translation>
    </message>
    <message id="ui.composer.err.period">
      <source>The period ends before it starts.</source>
      <translation>El periodo termina antes de empezar.</translation>
    </message>
    <message id="ui.composer.err.preview">
      <source>The preview could not be drawn: %1</source>
      <translation>No se pudo generar la vista previa: %1</translation>
    </message>
    <message id="ui.composer.from">
      <source>From (year-month-day)</source>
      <translation>Desde (año-mes-día)</translation>
    </message>
    <message id="ui.composer.hours">
      <source>%1 h</source>
      <translation>%1 h</translation>
    </message>
    <message id="ui.composer.houseDesign">
      <source>As in the invoice style</source>
      <translation>Como en el estilo de factura</translation>
    </message>
    <message id="ui.composer.invoice">
      <source>Invoice</source>
      <translation>Factura</translation>
    </message>
    <message id="ui.composer.issued">
      <source>Issued</source>
      <translation>Fecha de emisión</translation>
    </message>
    <message id="ui.composer.lines">
      <source>Lines</source>
      <translation>Líneas</translation>
    </message>
    <message id="ui.composer.noWork">
      <source>No unbilled time in this period. Choose another period or project.</source>
      <translation>No hay tiempo sin facturar en este periodo. Elige otro periodo u otro proyecto.</translation>
    </message>
    <message id="ui.composer.notes">
      <source>Notes on the invoice</source>
      <translation>Notas en la factura</translation>
    </message>
    <message id="ui.composer.number">
      <source>No. %1</source>
      <translation>N.º %1</translation>
    </message>
    <message id="ui.composer.numberPending">
      <source>Number follows</source>
      <translation>Número pendiente</translation>
    </message>
    <message id="ui.composer.period">
      <source>Period</source>
      <translation>Periodo</translation>
    </message>
    <message id="ui.composer.previewEmpty">
      <source>The invoice appears here</source>
      <translation>Aquí aparece la factura</translation>
    </message>
    <message id="ui.composer.previewHint">
      <source>Choose a project with unbilled time and a period; the page follows every change.</source>
      <translation>Elige un proyecto con tiempo sin facturar y un periodo; la página sigue cada cambio.</translation>
    </message>
    <message id="ui.composer.projects">
      <source>Projects</source>
      <translation>Proyectos</translation>
    </message>
    <message id="ui.composer.saveAsClient">
      <source>Save as client</source>
      <translation>Guardar como cliente</translation>
    </message>
    <message id="ui.composer.saveDraft">
      <source>Save as draft</source>
      <translation>Guardar como borrador</translation>
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
      <translation>Nueva factura</translation>
    </message>
    <message id="ui.composer.to">
      <source>To (year-month-day)</source>
      <translation>Hasta (año-mes-día)</translation>
    </message>
    <message id="ui.composer.vatPercent">
      <source>VAT %</source>
      <translation>IVA %</translation>
    </message>
    <message id="ui.composer.work">
      <source>Work</source>
      <translation>Trabajo</translation>
    </message>
    <message id="ui.earnings.barName">
      <source>%1: earned %2, billed %3, unbilled %4</source>
      <translation>%1: ganado %2, facturado %3, sin facturar %4</translation>
    </message>
    <message id="ui.earnings.billed">
      <source>Billed</source>
      <translation>Facturado</translation>
    </message>
    <message id="ui.earnings.billedChip">
      <source>billed</source>
      <translation>facturado</translation>
    </message>
    <message id="ui.earnings.byMonth">
      <source>Month</source>
      <translation>Mes</translation>
    </message>
    <message id="ui.earnings.byProject">
      <source>Project</source>
      <translation>Proyecto</translation>
    </message>
    <message id="ui.earnings.byWeek">
      <source>Week</source>
      <translation>Semana</translation>
    </message>
    <message id="ui.earnings.coverage">
      <source>%1 to %2</source>
      <translation>del %1 al %2</translation>
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
      <translation>Ganado</translation>
    </message>
    <message id="ui.earnings.emptyHint">
      <source>Start the timer on a task with Space, or log time in its inspector. What you earn shows up here by week, month and project.</source>
      <translation>Inicia el temporizador en una tarea con Espacio o registra tiempo en su inspector. Lo que ganas aparece aquí por semana, mes y proyecto.</translation>
    </message>
    <message id="ui.earnings.emptyTitle">
      <source>Nothing tracked in these months</source>
      <translation>No hay tiempo registrado en estos meses</translation>
    </message>
    <message id="ui.earnings.entries">
      <source>Entries</source>
      <translation>Registros</translation>
    </message>
    <message id="ui.earnings.entriesOf">
      <source>Entries of %1</source>
      <translation>Registros de %1</translation>
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
      <translation>Sin proyecto</translation>
    </message>
    <message id="ui.earnings.oneOffNote">
      <source>includes %1 charged once</source>
      <translation>incluye %1 cobrado una vez</translation>
    </message>
    <message id="ui.earnings.pickBar">
      <source>Click a bar to see the entries behind it.</source>
      <translation>Haz clic en una barra para ver los registros que la forman.</translation>
    </message>
    <message id="ui.earnings.rate">
      <source>Per hour</source>
      <translation>Por hora</translation>
    </message>
    <message id="ui.earnings.title">
      <source>Earnings</source>
      <translation>Ingresos</translation>
    </message>
    <message id="ui.earnings.unbilled">
      <source>Unbilled</source>
      <translation>Sin facturar</translation>
    </message>
    <message id="ui.entries.billed">
      <source>Billed</source>
      <translation>Facturada</translation>
    </message>
    <message id="ui.entries.delete">
      <source>Delete this entry</source>
      <translation>Eliminar esta entrada</translation>
    </message>
    <message id="ui.entries.deleteBody">
      <source>The task's total goes down by its length.</source>
      <translation>El total de la tarea se reducirá en su duración.</translation>
    </message>
    <message id="ui.entries.deleteTitle">
      <source>Delete this time entry?</source>
      <translation>¿Eliminar esta entrada de tiempo?</translation>
    </message>
    <message id="ui.entries.empty">
      <source>No time yet. Press Space to start the timer, or log minutes by hand.</source>
      <translation>Aún no hay tiempo. Pulsa Espacio para iniciar el temporizador o registra los minutos a mano.</translation>
    </message>
    <message id="ui.entries.end">
      <source>End</source>
      <translation>Fin</translation>
    </message>
    <message id="ui.entries.invalid">
      <source>Use the form 2026-03-01 09:30, with the end after the start.</source>
      <translation>Usa el formato 2026-03-01 09:30, con el fin posterior al inicio.</translation>
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
      <translation>Minutos trabajados</translation>
    </message>
    <message id="ui.entries.minutesInvalid">
      <source>Enter the minutes as a number, such as 45 or 90.</source>
      <translation>Introduce los minutos como número, por ejemplo 45 o 90.</translation>
    </message>
    <message id="ui.entries.start">
      <source>Start</source>
      <translation>Inicio</translation>
    </message>
    <message id="ui.entries.title">
      <source>Time entries</source>
      <translation>Entradas de tiempo</translation>
    </message>
    <message id="ui.entries.total">
      <source>Total %1</source>
      <translation>Total: %1</translation>
    </message>
    <message id="ui.export.action">
      <source>Export for the accountant…</source>
      <translation>Exportar para el gestor…</translation>
    </message>
    <message id="ui.export.badPeriod">
      <source>Enter both days as YYYY-MM-DD, the first not after the last.</source>
      <translation>Escribe los dos días como AAAA-MM-DD, el primero no posterior al último.</translation>
    </message>
    <message id="ui.export.body">
      <source>A CSV file that spreadsheets and bookkeeping programs read: one row per time entry or invoice of the period.</source>
      <translation>Un archivo CSV que leen las hojas de cálculo y los programas de contabilidad: una fila por registro de tiempo o factura del periodo.</translation>
    </message>
    <message id="ui.export.close">
      <source>Close</source>
      <translation>Cerrar</translation>
    </message>
    <message id="ui.export.csvFilter">
      <source>CSV files (*.csv)</source>
      <translation>Archivos CSV (*.csv)</translation>
    </message>
    <message id="ui.export.entries">
      <source>Time entries</source>
      <translation>Registros de tiempo</translation>
    </message>
    <message id="ui.export.fileTitle">
      <source>Save the CSV file</source>
      <translation>Guardar el archivo CSV</translation>
    </message>
    <message id="ui.export.from">
      <source>From</source>
      <translation>Desde</translation>
    </message>
    <message id="ui.export.invoices">
      <source>Invoices</source>
      <translation>Facturas</translation>
    </message>
    <message id="ui.export.notReady">
      <source>Choose a period and a file first.</source>
      <translation>Elige primero un periodo y un archivo.</translation>
    </message>
    <message id="ui.export.save">
      <source>Save…</source>
      <translation>Guardar…</translation>
    </message>
    <message id="ui.export.saved">
      <source>Saved %1 (rows: %2).</source>
      <translation>%1 guardado (filas: %2).</translation>
    </message>
    <message id="ui.export.saving">
      <source>Saving…</source>
      <translation>Guardando…</translation>
    </message>
    <message id="ui.export.title">
      <source>Export for the accountant</source>
      <translation>Exportar para el gestor</translation>
    </message>
    <message id="ui.export.to">
      <source>To</source>
      <translation>Hasta</translation>
    </message>
    <message id="ui.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>No se pudo escribir %1: %2</translation>
    </message>
    <message id="ui.floating.hide">
      <source>Hide the floating timer</source>
      <translation>Ocultar el temporizador flotante</translation>
    </message>
    <message id="ui.floating.title">
      <source>Morvane timer</source>
      <translation>Temporizador de Morvane</translation>
    </message>
    <message id="ui.idle.body">
      <source>The timer of “%1” kept running while you were away from %2 to %3. What should happen to that time?</source>
      <translation>El temporizador de «%1» siguió en marcha mientras estaba ausente, de %2 a %3. ¿Qué hacemos con ese tiempo?</translation>
    </message>
    <message id="ui.idle.discard">
      <source>Discard it and stop the timer</source>
      <translation>Descartarlo y detener el temporizador</translation>
    </message>
    <message id="ui.idle.discardContinue">
      <source>Discard it and go on</source>
      <translation>Descartarlo y continuar</translation>
    </message>
    <message id="ui.idle.keep">
      <source>Keep the time</source>
      <translation>Conservar el tiempo</translation>
    </message>
    <message id="ui.idle.notification">
      <source>The timer of “%1” ran while you were away from %2 to %3.</source>
      <translation>El temporizador de «%1» estuvo en marcha mientras estaba ausente, de %2 a %3.</translation>
    </message>
    <message id="ui.idle.title">
      <source>You were away</source>
      <translation>Ha estado ausente</translation>
    </message>
    <message id="ui.inspector.addNote">
      <source>Add a note</source>
      <translation>Añadir una nota</translation>
    </message>
    <message id="ui.inspector.addSubtask">
      <source>Add a subtask</source>
      <translation>Añadir una subtarea</translation>
    </message>
    <message id="ui.inspector.assignees">
      <source>Assigned to</source>
      <translation>Asignada a</translation>
    </message>
    <message id="ui.inspector.category">
      <source>Category</source>
      <translation>Categoría</translation>
    </message>
    <message id="ui.inspector.describe">
      <source>Notes for yourself or the client</source>
      <translation>Notas para ti o para el cliente</translation>
    </message>
    <message id="ui.inspector.description">
      <source>Description</source>
      <translation>Descripción</translation>
    </message>
    <message id="ui.inspector.due">
      <source>Due</source>
      <translation>Vence</translation>
    </message>
    <message id="ui.inspector.dueDate">
      <source>Due date</source>
      <translation>Fecha límite</translation>
    </message>
    <message id="ui.inspector.none">
      <source>No task selected</source>
      <translation>Ninguna tarea seleccionada</translation>
    </message>
    <message id="ui.inspector.noneHint">
      <source>Choose a task to see its details and time entries.</source>
      <translation>Elige una tarea para ver sus detalles y entradas de tiempo.</translation>
    </message>
    <message id="ui.inspector.notes">
      <source>Notes</source>
      <translation>Notas</translation>
    </message>
    <message id="ui.inspector.ownPrice">
      <source>This task has its own price.</source>
      <translation>Esta tarea tiene su propio precio.</translation>
    </message>
    <message id="ui.inspector.price">
      <source>Price</source>
      <translation>Precio</translation>
    </message>
    <message id="ui.inspector.priority">
      <source>Priority</source>
      <translation>Prioridad</translation>
    </message>
    <message id="ui.inspector.status">
      <source>Status</source>
      <translation>Estado</translation>
    </message>
    <message id="ui.inspector.subtasks">
      <source>Subtasks</source>
      <translation>Subtareas</translation>
    </message>
    <message id="ui.inspector.title">
      <source>Task title</source>
      <translation>Título de la tarea</translation>
    </message>
    <message id="ui.invoices.allStatuses">
      <source>Every status</source>
      <translation>Todos los estados</translation>
    </message>
    <message id="ui.invoices.allYears">
      <source>Every year</source>
      <translation>Todos los años</translation>
    </message>
    <message id="ui.invoices.client">
      <source>Client</source>
      <translation>Cliente</translation>
    </message>
    <message id="ui.invoices.deleteBody">
      <source>The invoice and its PDF leave your list for good, and its hours become unbilled again. To keep a record, void it instead.</source>
      <translation>La factura y su PDF desaparecen de tu lista para siempre y sus horas vuelven a estar sin facturar. Para conservar un registro, anúlala en su lugar.</translation>
    </message>
    <message id="ui.invoices.deleteTitle">
      <source>Delete invoice %1?</source>
      <translation>¿Eliminar la factura %1?</translation>
    </message>
    <message id="ui.invoices.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>Factura %1 eliminada; sus horas vuelven a estar sin facturar.</translation>
    </message>
    <message id="ui.invoices.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>No se ha podido descargar el PDF: %1</translation>
    </message>
    <message id="ui.invoices.due">
      <source>Due</source>
      <translation>Vence</translation>
    </message>
    <message id="ui.invoices.emptyHint">
      <source>Invoices you write from your tracked time appear here, with what is still open and what is overdue.</source>
      <translation>Aquí aparecen las facturas que hagas con tu tiempo registrado, junto con lo que queda pendiente y lo que está vencido.</translation>
    </message>
    <message id="ui.invoices.emptyTitle">
      <source>No invoices yet</source>
      <translation>Todavía no hay facturas</translation>
    </message>
    <message id="ui.invoices.fileTitle">
      <source>Save the invoice PDF</source>
      <translation>Guardar el PDF de la factura</translation>
    </message>
    <message id="ui.invoices.foreignLink">
      <source>The link to the PDF does not lead to your server, so it was not opened.</source>
      <translation>El enlace al PDF no lleva a tu servidor, así que no se ha abierto.</translation>
    </message>
    <message id="ui.invoices.issued">
      <source>Issued</source>
      <translation>Emitida</translation>
    </message>
    <message id="ui.invoices.net">
      <source>Net</source>
      <translation>Base</translation>
    </message>
    <message id="ui.invoices.noMatch">
      <source>No invoice matches these filters</source>
      <translation>Ninguna factura coincide con estos filtros</translation>
    </message>
    <message id="ui.invoices.noMatchHint">
      <source>Choose another status or year.</source>
      <translation>Elige otro estado u otro año.</translation>
    </message>
    <message id="ui.invoices.noViewer">
      <source>No program to show PDF files was found. Save the PDF and open it from there.</source>
      <translation>No se ha encontrado ningún programa para ver archivos PDF. Guarda el PDF y ábrelo desde allí.</translation>
    </message>
    <message id="ui.invoices.number">
      <source>Number</source>
      <translation>Número</translation>
    </message>
    <message id="ui.invoices.open">
      <source>Still open</source>
      <translation>Pendiente de cobro</translation>
    </message>
    <message id="ui.invoices.openPdf">
      <source>Open PDF</source>
      <translation>Abrir PDF</translation>
    </message>
    <message id="ui.invoices.overdue">
      <source>Overdue</source>
      <translation>Vencido</translation>
    </message>
    <message id="ui.invoices.pdfFilter">
      <source>PDF files (*.pdf)</source>
      <translation>Archivos PDF (*.pdf)</translation>
    </message>
    <message id="ui.invoices.redraw">
      <source>Draw again…</source>
      <translation>Volver a generar…</translation>
    </message>
    <message id="ui.invoices.redrawBody">
      <source>This replaces the stored PDF of this invoice with a new one, built from the invoice lines and the current details of its template. Continue?</source>
      <translation>Se sustituirá el PDF guardado de esta factura por uno nuevo, hecho con las líneas de la factura y los datos actuales de su plantilla. ¿Continuar?</translation>
    </message>
    <message id="ui.invoices.redrawConfirm">
      <source>Replace PDF</source>
      <translation>Sustituir PDF</translation>
    </message>
    <message id="ui.invoices.redrawFailed">
      <source>The invoice could not be drawn: %1</source>
      <translation>No se pudo generar la factura: %1</translation>
    </message>
    <message id="ui.invoices.redrawTitle">
      <source>Draw invoice %1 again?</source>
      <translation>¿Volver a generar la factura %1?</translation>
    </message>
    <message id="ui.invoices.redrawn">
      <source>Invoice %1 was drawn again with your current details.</source>
      <translation>La factura %1 se ha vuelto a generar con tus datos actuales.</translation>
    </message>
    <message id="ui.invoices.savePdf">
      <source>Save PDF…</source>
      <translation>Guardar PDF…</translation>
    </message>
    <message id="ui.invoices.saved">
      <source>Saved to %1</source>
      <translation>Guardado en %1</translation>
    </message>
    <message id="ui.invoices.status">
      <source>Status</source>
      <translation>Estado</translation>
    </message>
    <message id="ui.invoices.status.draft">
      <source>Draft</source>
      <translation>Borrador</translation>
    </message>
    <message id="ui.invoices.status.paid">
      <source>Paid</source>
      <translation>Pagada</translation>
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
      <translation>La factura %1 ahora está: %2.</translation>
    </message>
    <message id="ui.invoices.statusFilter">
      <source>Status</source>
      <translation>Estado</translation>
    </message>
    <message id="ui.invoices.title">
      <source>Invoices</source>
      <translation>Facturas</translation>
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
      <translation>Una factura anulada sigue anulada: ya no se podrá enviar, cobrar ni cambiar. Sus horas vuelven a estar sin facturar para que puedas facturarlas de nuevo.</translation>
    </message>
    <message id="ui.invoices.voidConfirm">
      <source>Void</source>
      <translation>Anular</translation>
    </message>
    <message id="ui.invoices.voidFinal">
      <source>Void — final, it cannot be changed again</source>
      <translation>Anulada — es definitivo, ya no se puede cambiar</translation>
    </message>
    <message id="ui.invoices.voidTitle">
      <source>Void invoice %1?</source>
      <translation>¿Anular la factura %1?</translation>
    </message>
    <message id="ui.invoices.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>La factura %1 está anulada; sus horas vuelven a estar sin facturar.</translation>
    </message>
    <message id="ui.invoices.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>No se ha podido escribir %1: %2</translation>
    </message>
    <message id="ui.invoices.yearFilter">
      <source>Year</source>
      <translation>Año</translation>
    </message>
    <message id="ui.onboarding.currency">
      <source>Currency</source>
      <translation>Moneda</translation>
    </message>
    <message id="ui.onboarding.language">
      <source>Language</source>
      <translation>Idioma</translation>
    </message>
    <message id="ui.onboarding.name">
      <source>Your name</source>
      <translation>Tu nombre</translation>
    </message>
    <message id="ui.onboarding.rate">
      <source>Default hourly rate</source>
      <translation>Tarifa por hora predeterminada</translation>
    </message>
    <message id="ui.onboarding.rateInvalid">
      <source>Enter an amount, such as 85 or 72.50.</source>
      <translation>Introduce un importe, por ejemplo 85 o 72,50.</translation>
    </message>
    <message id="ui.onboarding.timeZone">
      <source>Time zone</source>
      <translation>Zona horaria</translation>
    </message>
    <message id="ui.palette.action">
      <source>Action</source>
      <translation>Acción</translation>
    </message>
    <message id="ui.palette.ai">
      <source>AI</source>
      <translation>IA</translation>
    </message>
    <message id="ui.palette.capture">
      <source>Quick add “%1”</source>
      <translation>Añadir rápido «%1»</translation>
    </message>
    <message id="ui.palette.none">
      <source>Nothing matches.</source>
      <translation>No hay resultados.</translation>
    </message>
    <message id="ui.palette.placeholder">
      <source>Search projects, tasks and actions</source>
      <translation>Buscar proyectos, tareas y acciones</translation>
    </message>
    <message id="ui.palette.project">
      <source>Project</source>
      <translation>Proyecto</translation>
    </message>
    <message id="ui.palette.task">
      <source>Task</source>
      <translation>Tarea</translation>
    </message>
    <message id="ui.prices.edit">
      <source>Change the price…</source>
      <translation>Cambiar el precio…</translation>
    </message>
    <message id="ui.prices.invalid">
      <source>A field in red cannot be read as a number. Correct it to save.</source>
      <translation>Un campo en rojo no se puede leer como número. Corrígelo para guardar.</translation>
    </message>
    <message id="ui.prices.project">
      <source>Price…</source>
      <translation>Precio…</translation>
    </message>
    <message id="ui.priority.high">
      <source>High</source>
      <translation>Alta</translation>
    </message>
    <message id="ui.priority.low">
      <source>Low</source>
      <translation>Baja</translation>
    </message>
    <message id="ui.priority.medium">
      <source>Medium</source>
      <translation>Media</translation>
    </message>
    <message id="ui.projects.actions">
      <source>Project actions</source>
      <translation>Acciones del proyecto</translation>
    </message>
    <message id="ui.projects.archive">
      <source>Archive</source>
      <translation>Archivar</translation>
    </message>
    <message id="ui.projects.delete">
      <source>Delete project…</source>
      <translation>Eliminar proyecto…</translation>
    </message>
    <message id="ui.projects.deleteBody">
      <source>Its tasks and their time entries are deleted too. This cannot be undone.</source>
      <translation>También se eliminarán sus tareas con sus entradas de tiempo. No se puede deshacer.</translation>
    </message>
    <message id="ui.projects.deleteTitle">
      <source>Delete %1?</source>
      <translation>¿Eliminar %1?</translation>
    </message>
    <message id="ui.projects.describe">
      <source>Add a description</source>
      <translation>Añadir una descripción</translation>
    </message>
    <message id="ui.projects.invoice">
      <source>Create invoice…</source>
      <translation>Crear factura…</translation>
    </message>
    <message id="ui.projects.markActive">
      <source>Mark as active</source>
      <translation>Marcar como activo</translation>
    </message>
    <message id="ui.projects.markCompleted">
      <source>Mark as completed</source>
      <translation>Marcar como completado</translation>
    </message>
    <message id="ui.projects.name">
      <source>Project name</source>
      <translation>Nombre del proyecto</translation>
    </message>
    <message id="ui.projects.notShared">
      <source>Not shared</source>
      <translation>Sin compartir</translation>
    </message>
    <message id="ui.projects.share">
      <source>Share with a team</source>
      <translation>Compartir con un equipo</translation>
    </message>
    <message id="ui.projects.status.active">
      <source>Active</source>
      <translation>Activo</translation>
    </message>
    <message id="ui.projects.status.archived">
      <source>Archived</source>
      <translation>Archivado</translation>
    </message>
    <message id="ui.projects.status.completed">
      <source>Completed</source>
      <translation>Completado</translation>
    </message>
    <message id="ui.projects.viewOnly">
      <source>View only</source>
      <translation>Solo lectura</translation>
    </message>
    <message id="ui.reminder.body">
      <source>Start a timer so that the work you are doing now is counted.</source>
      <translation>Inicie un temporizador para que cuente el trabajo que está haciendo ahora.</translation>
    </message>
    <message id="ui.reminder.title">
      <source>No timer is running</source>
      <translation>No hay ningún temporizador en marcha</translation>
    </message>
    <message id="ui.sessions.autoTrack">
      <source>Auto-track Claude sessions</source>
      <translation>Registrar automáticamente las sesiones de Claude</translation>
    </message>
    <message id="ui.sessions.burstLine">
      <source>%1 · %2 prompts</source>
      <translation>%1 · %2 peticiones</translation>
    </message>
    <message id="ui.sessions.burstLineOne">
      <source>%1 · 1 prompt</source>
      <translation>%1 · 1 petición</translation>
    </message>
    <message id="ui.sessions.commit">
      <source>Log to project</source>
      <translation>Registrar en el proyecto</translation>
    </message>
    <message id="ui.sessions.earlier">
      <source>Earlier</source>
      <translation>Antes</translation>
    </message>
    <message id="ui.sessions.emptyHint">
      <source>Run a claude session in any folder on this computer (Claude Code, the command line, anything that writes to ~/.claude/projects/). Then press Rescan. Sessions from the last 30 days are picked up.</source>
      <translation>Inicia una sesión de claude en cualquier carpeta de este ordenador (Claude Code, la línea de comandos, cualquier cosa que escriba en ~/.claude/projects/). Después pulsa Volver a escanear. Se recogen las sesiones de los últimos 30 días.</translation>
    </message>
    <message id="ui.sessions.emptyTitle">
      <source>No Claude sessions parsed yet</source>
      <translation>Aún no se ha leído ninguna sesión de Claude</translation>
    </message>
    <message id="ui.sessions.err.createProject">
      <source>Create project failed: %1</source>
      <translation>No se pudo crear el proyecto: %1</translation>
    </message>
    <message id="ui.sessions.explainMapping">
      <source>Sessions are tied to their working directory. You map each working dir to one of your projects once; from then on every new conversation in that repo logs automatically. Idle gaps longer than 5 minutes are excluded so an overnight pause does not bill 8 hours.</source>
      <translation>Las sesiones van ligadas a su carpeta de trabajo. Vinculas cada carpeta una vez a uno de tus proyectos; desde entonces cada conversación nueva en ese repositorio se registra sola. Las pausas de más de 5 minutos no cuentan, así una noche no factura 8 horas.</translation>
    </message>
    <message id="ui.sessions.explainPrefix">
      <source>Resulting tasks are prefixed [AI] so you can tell a client exactly what part of the work was AI-assisted.</source>
      <translation>Las tareas resultantes empiezan por [AI], para que puedas decir a un cliente qué parte del trabajo se hizo con ayuda de IA.</translation>
    </message>
    <message id="ui.sessions.explainScan">
      <source>Every minute Morvane scans your local Claude Code sessions (~/.claude/projects/) and turns each one into a billable time entry on the matching Morvane project.</source>
      <translation>Cada minuto Morvane revisa tus sesiones locales de Claude Code (~/.claude/projects/) y convierte cada una en tiempo facturable en el proyecto de Morvane que le corresponde.</translation>
    </message>
    <message id="ui.sessions.fewer">
      <source>Show fewer</source>
      <translation>Mostrar menos</translation>
    </message>
    <message id="ui.sessions.folderProject">
      <source>Auto-created for Claude sessions in %1</source>
      <translation>Creado automáticamente para las sesiones de Claude en %1</translation>
    </message>
    <message id="ui.sessions.idleGap">
      <source>Idle gap (minutes)</source>
      <translation>Pausa máxima (minutos)</translation>
    </message>
    <message id="ui.sessions.idleGapHelp">
      <source>Gaps longer than this between messages are treated as idle and excluded. 15 min covers most typing pauses.</source>
      <translation>Las pausas más largas entre mensajes cuentan como inactividad y se excluyen. 15 min cubren la mayoría de las pausas al escribir.</translation>
    </message>
    <message id="ui.sessions.ignore">
      <source>Ignore</source>
      <translation>Ignorar</translation>
    </message>
    <message id="ui.sessions.lastWeek">
      <source>Last week</source>
      <translation>La semana pasada</translation>
    </message>
    <message id="ui.sessions.link">
      <source>Link to a project…</source>
      <translation>Vincular a un proyecto…</translation>
    </message>
    <message id="ui.sessions.list">
      <source>Sessions</source>
      <translation>Sesiones</translation>
    </message>
    <message id="ui.sessions.loading">
      <source>Reading your sessions…</source>
      <translation>Leyendo tus sesiones…</translation>
    </message>
    <message id="ui.sessions.logHelp">
      <source>Log this session to a project, split into %1 tasks by natural breaks</source>
      <translation>Registrar esta sesión en un proyecto, dividida en %1 tareas por sus pausas naturales</translation>
    </message>
    <message id="ui.sessions.logTo">
      <source>Log to…</source>
      <translation>Registrar en…</translation>
    </message>
    <message id="ui.sessions.logged">
      <source>Logged %1 of %2 work bursts.</source>
      <translation>Registrados %1 de %2 bloques de trabajo.</translation>
    </message>
    <message id="ui.sessions.loggedChip">
      <source>Logged</source>
      <translation>Registrada</translation>
    </message>
    <message id="ui.sessions.manyTasks">
      <source>%1 tasks</source>
      <translation>%1 tareas</translation>
    </message>
    <message id="ui.sessions.more">
      <source>Show all %1 sessions</source>
      <translation>Mostrar las %1 sesiones</translation>
    </message>
    <message id="ui.sessions.newProject">
      <source>Create new project named "%1"</source>
      <translation>Crear el proyecto "%1"</translation>
    </message>
    <message id="ui.sessions.noScan">
      <source>No scan yet.</source>
      <translation>Aún no se ha escaneado.</translation>
    </message>
    <message id="ui.sessions.notLinked">
      <source>Not linked yet</source>
      <translation>Sin vincular</translation>
    </message>
    <message id="ui.sessions.oneTask">
      <source>1 task</source>
      <translation>1 tarea</translation>
    </message>
    <message id="ui.sessions.pendingIntro">
      <source>These directories have Claude sessions waiting to be logged. Pick a Morvane project (or Ignore) for each.</source>
      <translation>Estas carpetas tienen sesiones de Claude pendientes de registrar. Elige un proyecto de Morvane (o Ignorar) para cada una.</translation>
    </message>
    <message id="ui.sessions.pendingLine">
      <source>%1 · %2 sessions · %3 active</source>
      <translation>%1 · %2 sesiones · %3 activo</translation>
    </message>
    <message id="ui.sessions.previewTitle">
      <source>Review and log to: %1 (%2)</source>
      <translation>Revisar y registrar en: %1 (%2)</translation>
    </message>
    <message id="ui.sessions.reimport">
      <source>Re-import</source>
      <translation>Reimportar</translation>
    </message>
    <message id="ui.sessions.reimportAll">
      <source>Re-import all sessions</source>
      <translation>Volver a importar todas las sesiones</translation>
    </message>
    <message id="ui.sessions.reimportAllBody">
      <source>Every session is logged again at the next scan. Tasks made earlier stay; delete them yourself if you do not want them twice.</source>
      <translation>Cada sesión se registrará de nuevo en el próximo escaneo. Las tareas creadas antes se quedan; bórralas tú si no las quieres duplicadas.</translation>
    </message>
    <message id="ui.sessions.reimportAllTitle">
      <source>Re-import all sessions?</source>
      <translation>¿Volver a importar todas las sesiones?</translation>
    </message>
    <message id="ui.sessions.reimportHelp">
      <source>Re-import this session (forget previous log)</source>
      <translation>Volver a importar esta sesión (olvidar el registro anterior)</translation>
    </message>
    <message id="ui.sessions.rescan">
      <source>Rescan</source>
      <translation>Volver a escanear</translation>
    </message>
    <message id="ui.sessions.result">
      <source>Last scan %1: %2 sessions found, %3 work bursts logged (%4), %5 sessions waiting for a project.</source>
      <translation>Último escaneo %1: %2 sesiones encontradas, %3 bloques de trabajo registrados (%4), %5 sesiones esperan un proyecto.</translation>
    </message>
    <message id="ui.sessions.scanNow">
      <source>Scan now</source>
      <translation>Escanear ahora</translation>
    </message>
    <message id="ui.sessions.sessionLine">
      <source>%1 · %2 active · %3 bursts</source>
      <translation>%1 · %2 activo · %3 bloques</translation>
    </message>
    <message id="ui.sessions.sessionLineOne">
      <source>%1 · %2 active</source>
      <translation>%1 · %2 activo</translation>
    </message>
    <message id="ui.sessions.sessionProject">
      <source>Auto-created for Claude session %1</source>
      <translation>Creado automáticamente para la sesión de Claude %1</translation>
    </message>
    <message id="ui.sessions.thisWeek">
      <source>Earlier this week</source>
      <translation>Antes esta semana</translation>
    </message>
    <message id="ui.sessions.title">
      <source>AI sessions</source>
      <translation>Sesiones de IA</translation>
    </message>
    <message id="ui.sessions.today">
      <source>Today</source>
      <translation>Hoy</translation>
    </message>
    <message id="ui.sessions.tracking">
      <source>Tracking</source>
      <translation>Seguimiento</translation>
    </message>
    <message id="ui.sessions.untitled">
      <source>Claude session</source>
      <translation>Sesión de Claude</translation>
    </message>
    <message id="ui.sessions.yesterday">
      <source>Yesterday</source>
      <translation>Ayer</translation>
    </message>
    <message id="ui.settings.account">
      <source>Account</source>
      <translation>Cuenta</translation>
    </message>
    <message id="ui.settings.ai">
      <source>AI</source>
      <translation>IA</translation>
    </message>
    <message id="ui.settings.appearance">
      <source>Appearance</source>
      <translation>Apariencia</translation>
    </message>
    <message id="ui.settings.autostart">
      <source>Start Morvane when I log in</source>
      <translation>Abrir Morvane al iniciar sesión</translation>
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
      <translation>Introduce la dirección https del servidor y su clave pública.</translation>
    </message>
    <message id="ui.settings.backend.local">
      <source>This computer (private, nothing to set up)</source>
      <translation>Este ordenador (privado, sin configuración)</translation>
    </message>
    <message id="ui.settings.backend.remote">
      <source>A shared server (for teams and several computers)</source>
      <translation>Un servidor compartido (para equipos y varios ordenadores)</translation>
    </message>
    <message id="ui.settings.deleteAccount">
      <source>Delete my account</source>
      <translation>Eliminar mi cuenta</translation>
    </message>
    <message id="ui.settings.deleteConfirm">
      <source>Your e-mail address, to confirm</source>
      <translation>Tu dirección de correo, para confirmar</translation>
    </message>
    <message id="ui.settings.deleteHint">
      <source>Deleting your account removes your projects, tasks, time and invoices from the server for good. Type your e-mail address to confirm.</source>
      <translation>Al eliminar tu cuenta se borran para siempre del servidor tus proyectos, tareas, tiempo y facturas. Escribe tu dirección de correo para confirmar.</translation>
    </message>
    <message id="ui.settings.endOfDay">
      <source>Stop the timer at the end of the day</source>
      <translation>Detener el temporizador al final del día</translation>
    </message>
    <message id="ui.settings.every">
      <source>every (minutes)</source>
      <translation>cada (minutos)</translation>
    </message>
    <message id="ui.settings.from">
      <source>From</source>
      <translation>De</translation>
    </message>
    <message id="ui.settings.idleAfter">
      <source>Ask about idle time after (minutes)</source>
      <translation>Preguntar por el tiempo inactivo tras (minutos)</translation>
    </message>
    <message id="ui.settings.local.folder">
      <source>Data folder</source>
      <translation>Carpeta de datos</translation>
    </message>
    <message id="ui.settings.local.running">
      <source>Running</source>
      <translation>En marcha</translation>
    </message>
    <message id="ui.settings.local.size">
      <source>Size</source>
      <translation>Tamaño</translation>
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
      <translation>Detener</translation>
    </message>
    <message id="ui.settings.local.stopped">
      <source>Stopped</source>
      <translation>Detenido</translation>
    </message>
    <message id="ui.settings.longestRun">
      <source>Longest run (minutes, 0 for none)</source>
      <translation>Duración máxima (minutos, 0 para ninguna)</translation>
    </message>
    <message id="ui.settings.looks">
      <source>Language and appearance</source>
      <translation>Idioma y apariencia</translation>
    </message>
    <message id="ui.settings.profile">
      <source>Profile</source>
      <translation>Perfil</translation>
    </message>
    <message id="ui.settings.reminders">
      <source>Remind me when no timer runs during working hours</source>
      <translation>Recordarme cuando no haya temporizador en horario de trabajo</translation>
    </message>
    <message id="ui.settings.remote.key">
      <source>Public key</source>
      <translation>Clave pública</translation>
    </message>
    <message id="ui.settings.remote.url">
      <source>Address</source>
      <translation>Dirección</translation>
    </message>
    <message id="ui.settings.saved">
      <source>Saved.</source>
      <translation>Guardado.</translation>
    </message>
    <message id="ui.settings.scheme.dark">
      <source>Dark</source>
      <translation>Oscuro</translation>
    </message>
    <message id="ui.settings.scheme.light">
      <source>Light</source>
      <translation>Claro</translation>
    </message>
    <message id="ui.settings.scheme.system">
      <source>As the desktop</source>
      <translation>Como el escritorio</translation>
    </message>
    <message id="ui.settings.signedInAs">
      <source>Signed in as %1</source>
      <translation>Sesión iniciada como %1</translation>
    </message>
    <message id="ui.settings.switchTo">
      <source>Switch to %1</source>
      <translation>Cambiar a %1</translation>
    </message>
    <message id="ui.settings.timer">
      <source>Timer</source>
      <translation>Temporizador</translation>
    </message>
    <message id="ui.settings.to">
      <source>to</source>
      <translation>a</translation>
    </message>
    <message id="ui.sidebar.newProjectName">
      <source>New project name</source>
      <translation>Nombre del nuevo proyecto</translation>
    </message>
    <message id="ui.sidebar.newTeamName">
      <source>New team name</source>
      <translation>Nombre del nuevo equipo</translation>
    </message>
    <message id="ui.sidebar.overview">
      <source>All projects</source>
      <translation>Todos los proyectos</translation>
    </message>
    <message id="ui.sidebar.projects">
      <source>Projects</source>
      <translation>Proyectos</translation>
    </message>
    <message id="ui.sidebar.running">
      <source>Timer running</source>
      <translation>Temporizador en marcha</translation>
    </message>
    <message id="ui.sidebar.shared">
      <source>Shared with a team</source>
      <translation>Compartidos con un equipo</translation>
    </message>
    <message id="ui.sidebar.teams">
      <source>Teams</source>
      <translation>Equipos</translation>
    </message>
    <message id="ui.startup.backend">
      <source>Starting your local backend…</source>
      <translation>Iniciando tu servidor local…</translation>
    </message>
    <message id="ui.startup.failed">
      <source>Your local backend could not start.</source>
      <translation>No se pudo iniciar tu servidor local.</translation>
    </message>
    <message id="ui.startup.loading">
      <source>Loading your projects…</source>
      <translation>Cargando tus proyectos…</translation>
    </message>
    <message id="ui.status.completed">
      <source>Completed</source>
      <translation>Completada</translation>
    </message>
    <message id="ui.status.in_progress">
      <source>In progress</source>
      <translation>En curso</translation>
    </message>
    <message id="ui.status.not_started">
      <source>Not started</source>
      <translation>Sin empezar</translation>
    </message>
    <message id="ui.style.accent">
      <source>Accent</source>
      <translation>Acento</translation>
    </message>
    <message id="ui.style.address">
      <source>Address</source>
      <translation>Dirección</translation>
    </message>
    <message id="ui.style.bank">
      <source>Bank</source>
      <translation>Banco</translation>
    </message>
    <message id="ui.style.banner">
      <source>Banner</source>
      <translation>Franja</translation>
    </message>
    <message id="ui.style.border">
      <source>Border</source>
      <translation>Borde</translation>
    </message>
    <message id="ui.style.btw">
      <source>VAT number</source>
      <translation>NIF-IVA</translation>
    </message>
    <message id="ui.style.chooseLogo">
      <source>Choose logo…</source>
      <translation>Elegir logotipo…</translation>
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
      <translation>Una página HTML con {{marcadores}}, un &lt;header&gt; y un &lt;footer&gt;, fijada en 794 × 1123 px. Si no se puede usar, las facturas usan el diseño «Claro minimalista».</translation>
    </message>
    <message id="ui.style.customTitle">
      <source>Your own template</source>
      <translation>Tu propia plantilla</translation>
    </message>
    <message id="ui.style.days">
      <source>Payment terms in days</source>
      <translation>Plazo de pago en días</translation>
    </message>
    <message id="ui.style.design.aiCustom">
      <source>Your template</source>
      <translation>Tu plantilla</translation>
    </message>
    <message id="ui.style.design.boldDark">
      <source>Bold dark</source>
      <translation>Oscuro intenso</translation>
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
      <translation>Cinta moderna</translation>
    </message>
    <message id="ui.style.design.pastelModern">
      <source>Pastel modern</source>
      <translation>Pastel moderno</translation>
    </message>
    <message id="ui.style.design.signatureEditorial">
      <source>Signature</source>
      <translation>Firma</translation>
    </message>
    <message id="ui.style.designs">
      <source>Design</source>
      <translation>Diseño</translation>
    </message>
    <message id="ui.style.designsHint">
      <source>Every new invoice is drawn in the chosen design. The pictures show a sample invoice in your style.</source>
      <translation>Cada factura nueva usa el diseño elegido. Las imágenes muestran una factura de ejemplo con tu estilo.</translation>
    </message>
    <message id="ui.style.drawing">
      <source>Drawing the designs</source>
      <translation>Dibujando los diseños</translation>
    </message>
    <message id="ui.style.email">
      <source>E-mail</source>
      <translation>Correo electrónico</translation>
    </message>
    <message id="ui.style.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>El plazo de pago es un número entero de días entre 0 y 365.</translation>
    </message>
    <message id="ui.style.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>El tipo de IVA es un porcentaje entre 0 y 100.</translation>
    </message>
    <message id="ui.style.fallsBack">
      <source>%1 Invoices fall back to “Light minimal” until it is fixed.</source>
      <translation>%1 Hasta que se corrija, las facturas usan el diseño «Claro minimalista».</translation>
    </message>
    <message id="ui.style.fontAuto">
      <source>The design’s own</source>
      <translation>La del diseño</translation>
    </message>
    <message id="ui.style.fontBody">
      <source>Text font</source>
      <translation>Fuente del texto</translation>
    </message>
    <message id="ui.style.fontDisplay">
      <source>Headings font</source>
      <translation>Fuente de títulos</translation>
    </message>
    <message id="ui.style.footer">
      <source>Footer</source>
      <translation>Pie de página</translation>
    </message>
    <message id="ui.style.footerPlaceholder">
      <source>Thank you for your business.</source>
      <translation>Gracias por confiar en nosotros.</translation>
    </message>
    <message id="ui.style.htmlFilter">
      <source>HTML files (*.html *.htm)</source>
      <translation>Archivos HTML (*.html *.htm)</translation>
    </message>
    <message id="ui.style.iban">
      <source>Bank account (IBAN)</source>
      <translation>Cuenta bancaria (IBAN)</translation>
    </message>
    <message id="ui.style.imageFilter">
      <source>Images (*.png *.jpg *.jpeg)</source>
      <translation>Imágenes (*.png *.jpg *.jpeg)</translation>
    </message>
    <message id="ui.style.ink">
      <source>Ink</source>
      <translation>Texto</translation>
    </message>
    <message id="ui.style.kvk">
      <source>Chamber of commerce number</source>
      <translation>Número de registro mercantil</translation>
    </message>
    <message id="ui.style.logo">
      <source>Logo</source>
      <translation>Logotipo</translation>
    </message>
    <message id="ui.style.logoDialog">
      <source>Choose a logo</source>
      <translation>Elegir un logotipo</translation>
    </message>
    <message id="ui.style.logoHint">
      <source>PNG or JPEG, at most 1 MB; wider than 600 px is scaled down.</source>
      <translation>PNG o JPEG, 1 MB como máximo; si supera 600 px de ancho, se reduce.</translation>
    </message>
    <message id="ui.style.look">
      <source>Look</source>
      <translation>Aspecto</translation>
    </message>
    <message id="ui.style.madeWith">
      <source>Show “Made with Morvane” in the footer</source>
      <translation>Mostrar «Hecho con Morvane» en el pie de página</translation>
    </message>
    <message id="ui.style.muted">
      <source>Muted</source>
      <translation>Atenuado</translation>
    </message>
    <message id="ui.style.noLogo">
      <source>No logo</source>
      <translation>Sin logotipo</translation>
    </message>
    <message id="ui.style.noTemplate">
      <source>No template uploaded: invoices use the design chosen above.</source>
      <translation>No hay plantilla subida: las facturas usan el diseño elegido arriba.</translation>
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
      <translation>Teléfono</translation>
    </message>
    <message id="ui.style.removeLogo">
      <source>Remove logo</source>
      <translation>Quitar logotipo</translation>
    </message>
    <message id="ui.style.removeTemplate">
      <source>Remove template</source>
      <translation>Quitar plantilla</translation>
    </message>
    <message id="ui.style.revert">
      <source>Undo changes</source>
      <translation>Deshacer cambios</translation>
    </message>
    <message id="ui.style.saving">
      <source>Saving…</source>
      <translation>Guardando…</translation>
    </message>
    <message id="ui.style.sender">
      <source>Sender</source>
      <translation>Remitente</translation>
    </message>
    <message id="ui.style.templateDialog">
      <source>Choose an HTML template</source>
      <translation>Elegir una plantilla HTML</translation>
    </message>
    <message id="ui.style.templateNotUsed">
      <source>Not used</source>
      <translation>No se usa</translation>
    </message>
    <message id="ui.style.templateUsed">
      <source>Used</source>
      <translation>En uso</translation>
    </message>
    <message id="ui.style.title">
      <source>Invoice style</source>
      <translation>Estilo de factura</translation>
    </message>
    <message id="ui.style.unsaved">
      <source>Unsaved changes</source>
      <translation>Cambios sin guardar</translation>
    </message>
    <message id="ui.style.upload">
      <source>Upload template…</source>
      <translation>Subir plantilla…</translation>
    </message>
    <message id="ui.style.vatRate">
      <source>Default VAT rate in %</source>
      <translation>Tipo de IVA predeterminado en %</translation>
    </message>
    <message id="ui.style.website">
      <source>Website</source>
      <translation>Sitio web</translation>
    </message>
    <message id="ui.summary.callFailed">
      <source>The model could not be asked (%1). This text is written from your figures alone.</source>
      <translation>No se pudo consultar al modelo (%1). Este texto está escrito solo a partir de tus cifras.</translation>
    </message>
    <message id="ui.summary.copy">
      <source>Copy</source>
      <translation>Copiar</translation>
    </message>
    <message id="ui.summary.draftingStandup">
      <source>Drafting your stand-up…</source>
      <translation>Preparando tu stand-up…</translation>
    </message>
    <message id="ui.summary.fixed">
      <source>Written from your figures</source>
      <translation>Escrito a partir de tus cifras</translation>
    </message>
    <message id="ui.summary.generate">
      <source>Generate</source>
      <translation>Generar</translation>
    </message>
    <message id="ui.summary.language">
      <source>Language of the text</source>
      <translation>Idioma del texto</translation>
    </message>
    <message id="ui.summary.model">
      <source>Written by the model, checked against your figures</source>
      <translation>Escrito por el modelo, comprobado con tus cifras</translation>
    </message>
    <message id="ui.summary.nothing">
      <source>Nothing was tracked in this period, so there was nothing to put in words.</source>
      <translation>No se registró nada en este periodo, así que no había nada que poner en palabras.</translation>
    </message>
    <message id="ui.summary.readFailed">
      <source>Your time could not be read: %1</source>
      <translation>No se pudo leer tu tiempo: %1</translation>
    </message>
    <message id="ui.summary.recap">
      <source>Weekly recap</source>
      <translation>Resumen semanal</translation>
    </message>
    <message id="ui.summary.recapHint">
      <source>Press Generate for a short recap of the time you tracked this week.</source>
      <translation>Pulsa Generar para un breve resumen del tiempo que registraste esta semana.</translation>
    </message>
    <message id="ui.summary.rejected">
      <source>The model's words did not hold up against your figures (%1). This text is written from your figures alone.</source>
      <translation>Las palabras del modelo no cuadraban con tus cifras (%1). Este texto está escrito solo a partir de tus cifras.</translation>
    </message>
    <message id="ui.summary.standup">
      <source>Daily stand-up</source>
      <translation>Stand-up diario</translation>
    </message>
    <message id="ui.summary.standupHint">
      <source>Press Generate to draft your stand-up.</source>
      <translation>Pulsa Generar para preparar tu stand-up.</translation>
    </message>
    <message id="ui.summary.textName">
      <source>Recap or stand-up text</source>
      <translation>Texto del resumen o stand-up</translation>
    </message>
    <message id="ui.summary.title">
      <source>Recap and stand-up</source>
      <translation>Resumen y stand-up</translation>
    </message>
    <message id="ui.summary.uiLanguage">
      <source>Interface language</source>
      <translation>Idioma de la interfaz</translation>
    </message>
    <message id="ui.summary.writingRecap">
      <source>Writing your recap…</source>
      <translation>Escribiendo tu resumen…</translation>
    </message>
    <message id="ui.tasks.add">
      <source>Add a task and press Enter</source>
      <translation>Añade una tarea y pulsa Enter</translation>
    </message>
    <message id="ui.tasks.bulkDeleteTitle">
      <source>Delete the selected tasks (%1)?</source>
      <translation>¿Eliminar las tareas seleccionadas (%1)?</translation>
    </message>
    <message id="ui.tasks.check">
      <source>Select %1</source>
      <translation>Seleccionar %1</translation>
    </message>
    <message id="ui.tasks.clearSelection">
      <source>Clear</source>
      <translation>Deseleccionar</translation>
    </message>
    <message id="ui.tasks.deleteBody">
      <source>Its time entries are deleted too.</source>
      <translation>También se eliminarán sus entradas de tiempo.</translation>
    </message>
    <message id="ui.tasks.deleteTitle">
      <source>Delete this task?</source>
      <translation>¿Eliminar esta tarea?</translation>
    </message>
    <message id="ui.tasks.dragHandle">
      <source>Drag to reorder</source>
      <translation>Arrastra para reordenar</translation>
    </message>
    <message id="ui.tasks.empty">
      <source>No tasks yet.</source>
      <translation>Aún no hay tareas.</translation>
    </message>
    <message id="ui.tasks.emptyHint">
      <source>Press Ctrl+N to add one.</source>
      <translation>Pulsa Ctrl+N para añadir una.</translation>
    </message>
    <message id="ui.tasks.filter">
      <source>Filter</source>
      <translation>Filtrar</translation>
    </message>
    <message id="ui.tasks.filter.active">
      <source>Open</source>
      <translation>Pendientes</translation>
    </message>
    <message id="ui.tasks.filter.all">
      <source>All</source>
      <translation>Todas</translation>
    </message>
    <message id="ui.tasks.filter.archived">
      <source>Archived</source>
      <translation>Archivadas</translation>
    </message>
    <message id="ui.tasks.filter.done">
      <source>Done</source>
      <translation>Completadas</translation>
    </message>
    <message id="ui.tasks.list">
      <source>Tasks</source>
      <translation>Tareas</translation>
    </message>
    <message id="ui.tasks.markDone">
      <source>Mark done</source>
      <translation>Completar</translation>
    </message>
    <message id="ui.tasks.moveTo">
      <source>Move to…</source>
      <translation>Mover a…</translation>
    </message>
    <message id="ui.tasks.needsProject">
      <source>Create a project first: tasks belong to a project.</source>
      <translation>Crea primero un proyecto: las tareas siempre pertenecen a un proyecto.</translation>
    </message>
    <message id="ui.tasks.noMatch">
      <source>No task matches “%1”.</source>
      <translation>Ninguna tarea coincide con «%1».</translation>
    </message>
    <message id="ui.tasks.noMatchHint">
      <source>Try fewer letters, or press Esc to clear the search.</source>
      <translation>Prueba con menos letras o pulsa Esc para borrar la búsqueda.</translation>
    </message>
    <message id="ui.tasks.noProjects">
      <source>No projects yet.</source>
      <translation>Aún no hay proyectos.</translation>
    </message>
    <message id="ui.tasks.noProjectsHint">
      <source>Press Ctrl+Shift+N to create your first project.</source>
      <translation>Pulsa Ctrl+Shift+N para crear tu primer proyecto.</translation>
    </message>
    <message id="ui.tasks.reopen">
      <source>Reopen</source>
      <translation>Reabrir</translation>
    </message>
    <message id="ui.tasks.search">
      <source>Search</source>
      <translation>Buscar</translation>
    </message>
    <message id="ui.tasks.selected">
      <source>%1 selected</source>
      <translation>Seleccionadas: %1</translation>
    </message>
    <message id="ui.tasks.sort">
      <source>Sort</source>
      <translation>Ordenar</translation>
    </message>
    <message id="ui.tasks.sort.alpha">
      <source>Name</source>
      <translation>Nombre</translation>
    </message>
    <message id="ui.tasks.sort.createdDesc">
      <source>Newest first</source>
      <translation>Más recientes primero</translation>
    </message>
    <message id="ui.tasks.sort.dueAsc">
      <source>Due date</source>
      <translation>Fecha límite</translation>
    </message>
    <message id="ui.tasks.sort.manual">
      <source>Manual order</source>
      <translation>Orden manual</translation>
    </message>
    <message id="ui.tasks.sort.priorityDesc">
      <source>Priority</source>
      <translation>Prioridad</translation>
    </message>
    <message id="ui.tasks.sort.trackedDesc">
      <source>Most tracked</source>
      <translation>Más tiempo registrado</translation>
    </message>
    <message id="ui.teams.accept">
      <source>Accept</source>
      <translation>Aceptar</translation>
    </message>
    <message id="ui.teams.decline">
      <source>Decline</source>
      <translation>Rechazar</translation>
    </message>
    <message id="ui.teams.invitations">
      <source>Invitations for you</source>
      <translation>Invitaciones para ti</translation>
    </message>
    <message id="ui.teams.invite">
      <source>Invite by e-mail</source>
      <translation>Invitar por correo</translation>
    </message>
    <message id="ui.teams.inviteButton">
      <source>Invite</source>
      <translation>Invitar</translation>
    </message>
    <message id="ui.teams.leave">
      <source>Leave the team</source>
      <translation>Salir del equipo</translation>
    </message>
    <message id="ui.teams.leaveTitle">
      <source>Leave %1?</source>
      <translation>¿Salir de %1?</translation>
    </message>
    <message id="ui.teams.members">
      <source>Members</source>
      <translation>Miembros</translation>
    </message>
    <message id="ui.teams.remove">
      <source>Remove</source>
      <translation>Quitar</translation>
    </message>
    <message id="ui.teams.removeBody">
      <source>The team's projects are no longer shared with them. Their own time stays theirs.</source>
      <translation>Los proyectos del equipo dejan de compartirse con esa persona. Su propio tiempo sigue siendo suyo.</translation>
    </message>
    <message id="ui.teams.removeTitle">
      <source>Remove this member?</source>
      <translation>¿Quitar a este miembro?</translation>
    </message>
    <message id="ui.teams.role">
      <source>Role</source>
      <translation>Rol</translation>
    </message>
    <message id="ui.teams.role.editor">
      <source>Editor</source>
      <translation>Editor</translation>
    </message>
    <message id="ui.teams.role.owner">
      <source>Owner</source>
      <translation>Propietario</translation>
    </message>
    <message id="ui.teams.role.viewer">
      <source>Viewer</source>
      <translation>Lector</translation>
    </message>
    <message id="ui.teams.viewerNote">
      <source>Only the team owner and editors can invite people.</source>
      <translation>Solo el propietario y los editores del equipo pueden invitar a otras personas.</translation>
    </message>
    <message id="ui.timeLimit.body">
      <source>“%1” was stopped at %2, and the time until then is logged.</source>
      <translation>«%1» se detuvo a las %2; el tiempo hasta entonces queda registrado.</translation>
    </message>
    <message id="ui.timeLimit.endOfDay">
      <source>Timer stopped at the end of your day</source>
      <translation>Temporizador detenido al final de su jornada</translation>
    </message>
    <message id="ui.timeLimit.longestRun">
      <source>Timer stopped after its longest run</source>
      <translation>Temporizador detenido tras su duración máxima</translation>
    </message>
    <message id="ui.timer.idle">
      <source>No timer running. Select a task and press Space.</source>
      <translation>Ningún temporizador en marcha. Selecciona una tarea y pulsa Espacio.</translation>
    </message>
    <message id="ui.timer.name">
      <source>Timer</source>
      <translation>Temporizador</translation>
    </message>
    <message id="ui.timer.notRunning">
      <source>Not running</source>
      <translation>Detenido</translation>
    </message>
    <message id="ui.timer.offline">
      <source>Offline</source>
      <translation>Sin conexión</translation>
    </message>
    <message id="ui.timer.offlineHint">
      <source>Offline: changes from other devices arrive when the connection is back.</source>
      <translation>Sin conexión: los cambios de otros dispositivos llegarán cuando vuelva la conexión.</translation>
    </message>
    <message id="ui.timer.start">
      <source>Start</source>
      <translation>Iniciar</translation>
    </message>
    <message id="ui.timer.stop">
      <source>Stop</source>
      <translation>Detener</translation>
    </message>
    <message id="ui.tray.floating">
      <source>Floating timer</source>
      <translation>Temporizador flotante</translation>
    </message>
    <message id="ui.tray.open">
      <source>Open Morvane</source>
      <translation>Abrir Morvane</translation>
    </message>
    <message id="ui.tray.quickAdd">
      <source>Quick add…</source>
      <translation>Añadir rápido…</translation>
    </message>
    <message id="ui.tray.quit">
      <source>Quit</source>
      <translation>Salir</translation>
    </message>
    <message id="ui.tray.start">
      <source>Start</source>
      <translation>Iniciar</translation>
    </message>
    <message id="ui.tray.stop">
      <source>Stop the timer</source>
      <translation>Detener el temporizador</translation>
    </message>
    <message id="ui.trips.allProjects">
      <source>All projects</source>
      <translation>Todos los proyectos</translation>
    </message>
    <message id="ui.trips.billable.all">
      <source>Charged and not</source>
      <translation>Cobrados y no</translation>
    </message>
    <message id="ui.trips.billable.no">
      <source>Private or not charged</source>
      <translation>Privados o sin cobrar</translation>
    </message>
    <message id="ui.trips.billable.yes">
      <source>Charged to the client</source>
      <translation>Cobrados al cliente</translation>
    </message>
    <message id="ui.trips.billableFilter">
      <source>Charging</source>
      <translation>Cobro</translation>
    </message>
    <message id="ui.trips.charge">
      <source>Charge to the client</source>
      <translation>Cobrar al cliente</translation>
    </message>
    <message id="ui.trips.chip.invoiced">
      <source>Invoiced</source>
      <translation>Facturado</translation>
    </message>
    <message id="ui.trips.chip.notCharged">
      <source>Not charged</source>
      <translation>Sin cobrar</translation>
    </message>
    <message id="ui.trips.chip.private">
      <source>Private</source>
      <translation>Privado</translation>
    </message>
    <message id="ui.trips.chip.toInvoice">
      <source>To invoice</source>
      <translation>Por facturar</translation>
    </message>
    <message id="ui.trips.clientHit">
      <source>Client</source>
      <translation>Cliente</translation>
    </message>
    <message id="ui.trips.date">
      <source>Date</source>
      <translation>Fecha</translation>
    </message>
    <message id="ui.trips.edit">
      <source>Edit trip</source>
      <translation>Editar viaje</translation>
    </message>
    <message id="ui.trips.emptyHint">
      <source>Trips your phone records while a timer runs show up here. Press Ctrl+N or “New trip” to add one by hand.</source>
      <translation>Los viajes que tu teléfono registra mientras corre un temporizador aparecen aquí. Pulsa Ctrl+N o «Nuevo viaje» para añadir uno a mano.</translation>
    </message>
    <message id="ui.trips.emptyTitle">
      <source>No trips yet</source>
      <translation>Aún no hay viajes</translation>
    </message>
    <message id="ui.trips.finish">
      <source>Finish trip</source>
      <translation>Terminar viaje</translation>
    </message>
    <message id="ui.trips.from">
      <source>From</source>
      <translation>Desde</translation>
    </message>
    <message id="ui.trips.km">
      <source>Kilometres</source>
      <translation>Kilómetros</translation>
    </message>
    <message id="ui.trips.kmColumn">
      <source>km</source>
      <translation>km</translation>
    </message>
    <message id="ui.trips.map.route">
      <source>Road route of the trip</source>
      <translation>Ruta por carretera del viaje</translation>
    </message>
    <message id="ui.trips.map.straight">
      <source>Straight line between the places</source>
      <translation>Línea recta entre los lugares</translation>
    </message>
    <message id="ui.trips.mode">
      <source>Travelled by</source>
      <translation>Medio de transporte</translation>
    </message>
    <message id="ui.trips.mode.bike">
      <source>Bike</source>
      <translation>Bicicleta</translation>
    </message>
    <message id="ui.trips.mode.car">
      <source>Car</source>
      <translation>Coche</translation>
    </message>
    <message id="ui.trips.mode.other">
      <source>Other</source>
      <translation>Otro</translation>
    </message>
    <message id="ui.trips.mode.transit">
      <source>Public transport</source>
      <translation>Transporte público</translation>
    </message>
    <message id="ui.trips.mode.walk">
      <source>On foot</source>
      <translation>A pie</translation>
    </message>
    <message id="ui.trips.new">
      <source>New trip</source>
      <translation>Nuevo viaje</translation>
    </message>
    <message id="ui.trips.noMatch">
      <source>No trip matches these filters</source>
      <translation>Ningún viaje coincide con estos filtros</translation>
    </message>
    <message id="ui.trips.period.all">
      <source>All time</source>
      <translation>Todo el tiempo</translation>
    </message>
    <message id="ui.trips.period.lastMonth">
      <source>Last month</source>
      <translation>El mes pasado</translation>
    </message>
    <message id="ui.trips.period.month">
      <source>This month</source>
      <translation>Este mes</translation>
    </message>
    <message id="ui.trips.period.year">
      <source>This year</source>
      <translation>Este año</translation>
    </message>
    <message id="ui.trips.periodFilter">
      <source>Period</source>
      <translation>Periodo</translation>
    </message>
    <message id="ui.trips.placePlaceholder">
      <source>Address, place or client</source>
      <translation>Dirección, lugar o cliente</translation>
    </message>
    <message id="ui.trips.private">
      <source>Private trip</source>
      <translation>Viaje privado</translation>
    </message>
    <message id="ui.trips.problem.date">
      <source>Enter the day as YYYY-MM-DD.</source>
      <translation>Escribe el día como AAAA-MM-DD (YYYY-MM-DD).</translation>
    </message>
    <message id="ui.trips.problem.from">
      <source>Where did the trip start?</source>
      <translation>¿Dónde empezó el viaje?</translation>
    </message>
    <message id="ui.trips.problem.km">
      <source>Enter the kilometres, for example 12.5.</source>
      <translation>Escribe los kilómetros, por ejemplo 12,5.</translation>
    </message>
    <message id="ui.trips.problem.rate">
      <source>Enter the rate per kilometre as a number, for example 0.23.</source>
      <translation>Escribe la tarifa por kilómetro como número, por ejemplo 0,23.</translation>
    </message>
    <message id="ui.trips.problem.to">
      <source>Where did the trip end?</source>
      <translation>¿Dónde terminó el viaje?</translation>
    </message>
    <message id="ui.trips.progress">
      <source>%1 km · %2 min</source>
      <translation>%1 km · %2 min</translation>
    </message>
    <message id="ui.trips.projectFilter">
      <source>Project</source>
      <translation>Proyecto</translation>
    </message>
    <message id="ui.trips.projectHint">
      <source>Trips of this project go on its invoices. Private trips and trips you do not charge never do.</source>
      <translation>Los viajes de este proyecto van en sus facturas. Los privados y los que no cobras, nunca.</translation>
    </message>
    <message id="ui.trips.purpose">
      <source>Purpose</source>
      <translation>Motivo</translation>
    </message>
    <message id="ui.trips.purposePlaceholder">
      <source>For example: meeting at the client, delivery</source>
      <translation>Por ejemplo: reunión con el cliente, entrega</translation>
    </message>
    <message id="ui.trips.rate">
      <source>Rate per kilometre</source>
      <translation>Tarifa por kilómetro</translation>
    </message>
    <message id="ui.trips.rateHint">
      <source>Used for projects that charge travel per kilometre and name no rate of their own.</source>
      <translation>Para los proyectos que cobran los viajes por kilómetro sin tarifa propia.</translation>
    </message>
    <message id="ui.trips.resultsFrom">
      <source>Results from OpenStreetMap, without KvK numbers.</source>
      <translation>Resultados de OpenStreetMap, sin números KvK.</translation>
    </message>
    <message id="ui.trips.routing">
      <source>Finding the road route…</source>
      <translation>Buscando la ruta por carretera…</translation>
    </message>
    <message id="ui.trips.searching">
      <source>Searching…</source>
      <translation>Buscando…</translation>
    </message>
    <message id="ui.trips.settings">
      <source>Travel settings</source>
      <translation>Ajustes de viajes</translation>
    </message>
    <message id="ui.trips.start">
      <source>Start a trip now</source>
      <translation>Empezar un viaje ahora</translation>
    </message>
    <message id="ui.trips.summaryMany">
      <source>%1 trips · %2 km</source>
      <translation>%1 viajes · %2 km</translation>
    </message>
    <message id="ui.trips.summaryOne">
      <source>1 trip · %1 km</source>
      <translation>1 viaje · %1 km</translation>
    </message>
    <message id="ui.trips.title">
      <source>Trips</source>
      <translation>Viajes</translation>
    </message>
    <message id="ui.trips.to">
      <source>To</source>
      <translation>Hasta</translation>
    </message>
    <message id="ui.trips.toInvoice">
      <source>%1 to invoice: %2</source>
      <translation>%1 por facturar: %2</translation>
    </message>
    <message id="ui.trips.trip">
      <source>Trip</source>
      <translation>Viaje</translation>
    </message>
    <message id="ui.trips.usualMode">
      <source>Usually travel by</source>
      <translation>Suele viajar en</translation>
    </message>
    <message id="ui.trips.work">
      <source>Project and task</source>
      <translation>Proyecto y tarea</translation>
    </message>
    <message id="ui.trips.work.none">
      <source>Choose a project or task</source>
      <translation>Elige un proyecto o una tarea</translation>
    </message>
    <message id="ui.trips.work.wholeProject">
      <source>%1 · Whole project, no task</source>
      <translation>%1 · Todo el proyecto, sin tarea</translation>
    </message>
  </context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH">
  <context>
    <name>Morvane</name>
    <message id="add.couldNotParse">
      <source>Morvane could not make sense of that. Try saying it another way.</source>
      <translation>Morvane ไม่เข้าใจข้อความนี้ ลองพูดด้วยวิธีอื่น</translation>
    </message>
    <message id="ai.err.badAnswer">
      <source>%1 sent an answer Morvane cannot use: %2</source>
      <translation>%1 ส่งคำตอบที่ Morvane ใช้ไม่ได้: %2</translation>
    </message>
    <message id="ai.err.consentDeclined">
      <source>You chose not to send your text to %1. You can change this in the AI settings.</source>
      <translation>คุณเลือกไม่ส่งข้อความไปยัง %1 เปลี่ยนได้ในการตั้งค่า AI</translation>
    </message>
    <message id="ai.err.consentMissing">
      <source>Morvane asks before it sends your text to %1 for the first time. Answer that question in the window, or run the command again with --yes.</source>
      <translation>Morvane จะถามก่อนส่งข้อความของคุณไปยัง %1 เป็นครั้งแรก ตอบคำถามนั้นในหน้าต่าง หรือเรียกคำสั่งอีกครั้งพร้อม --yes</translation>
    </message>
    <message id="ai.err.needsCLI">
      <source>This needs the Claude CLI, which can work with files; %1 cannot. Choose the Claude CLI in the AI settings.</source>
      <translation>งานนี้ต้องใช้ Claude CLI ซึ่งทำงานกับไฟล์ได้ แต่ %1 ทำไม่ได้ เลือก Claude CLI ในการตั้งค่า AI</translation>
    </message>
    <message id="ai.err.noKey">
      <source>There is no API key for %1 in your keyring. Add your key in the AI settings.</source>
      <translation>ไม่มีคีย์ API สำหรับ %1 ในพวงกุญแจของคุณ เพิ่มคีย์ของคุณในการตั้งค่า AI</translation>
    </message>
    <message id="ai.err.notSignedIn">
      <source>%1 works only while you are signed in. Sign in, then try again.</source>
      <translation>%1 ใช้ได้เฉพาะเมื่อลงชื่อเข้าใช้อยู่ ลงชื่อเข้าใช้แล้วลองอีกครั้ง</translation>
    </message>
    <message id="ai.err.status">
      <source>%1 answered with error %2: %3</source>
      <translation>%1 ตอบกลับด้วยข้อผิดพลาด %2: %3</translation>
    </message>
    <message id="ai.err.timedOut">
      <source>%1 did not answer within %2 s</source>
      <translation>%1 ไม่ตอบกลับภายใน %2 วินาที</translation>
    </message>
    <message id="ai.err.unreachable">
      <source>%1 could not be reached: %2</source>
      <translation>ติดต่อ %1 ไม่ได้: %2</translation>
    </message>
    <message id="ai.route.anthropic.where">
      <source>Your text goes straight from this computer to Anthropic, with your own API key.</source>
      <translation>ข้อความของคุณจะส่งตรงจากคอมพิวเตอร์เครื่องนี้ไปยัง Anthropic ด้วยคีย์ API ของคุณเอง</translation>
    </message>
    <message id="ai.route.claudeCLI.where">
      <source>Your text goes to the claude program on this computer, which sends it to Anthropic under your own Claude account. Morvane itself sends nothing over the network.</source>
      <translation>ข้อความของคุณจะไปยังโปรแกรม claude บนคอมพิวเตอร์เครื่องนี้ ซึ่งส่งต่อไปยัง Anthropic ภายใต้บัญชี Claude ของคุณเอง Morvane เองไม่ได้ส่งอะไรผ่านเครือข่าย</translation>
    </message>
    <message id="ai.route.gemini.where">
      <source>Your text goes straight from this computer to Google, with your own API key.</source>
      <translation>ข้อความของคุณจะส่งตรงจากคอมพิวเตอร์เครื่องนี้ไปยัง Google ด้วยคีย์ API ของคุณเอง</translation>
    </message>
    <message id="ai.route.morvaneAI.where">
      <source>Your text goes to the Morvane server you are signed in to, which passes it on to the AI service its operator has chosen, and the answer comes back the same way.</source>
      <translation>ข้อความของคุณจะไปยังเซิร์ฟเวอร์ Morvane ที่คุณลงชื่อเข้าใช้อยู่ ซึ่งส่งต่อไปยังบริการ AI ที่ผู้ดูแลเลือกไว้ และคำตอบจะกลับมาทางเดียวกัน</translation>
    </message>
    <message id="ai.route.openAI.where">
      <source>Your text goes straight from this computer to OpenAI, with your own API key.</source>
      <translation>ข้อความของคุณจะส่งตรงจากคอมพิวเตอร์เครื่องนี้ไปยัง OpenAI ด้วยคีย์ API ของคุณเอง</translation>
    </message>
    <message id="auth.err.emailExists">
      <source>An account with this e-mail address exists already. Sign in instead.</source>
      <translation>มีบัญชีที่ใช้อีเมลนี้อยู่แล้ว โปรดลงชื่อเข้าใช้แทน</translation>
    </message>
    <message id="auth.err.invalidEmail">
      <source>Enter a valid e-mail address.</source>
      <translation>โปรดกรอกอีเมลที่ถูกต้อง</translation>
    </message>
    <message id="auth.err.network">
      <source>Morvane cannot reach the server. Check your connection and try again.</source>
      <translation>Morvane เชื่อมต่อเซิร์ฟเวอร์ไม่ได้ โปรดตรวจสอบการเชื่อมต่อแล้วลองอีกครั้ง</translation>
    </message>
    <message id="auth.err.oauthBadUrl">
      <source>The sign-in address is not valid.</source>
      <translation>ที่อยู่สำหรับลงชื่อเข้าใช้ไม่ถูกต้อง</translation>
    </message>
    <message id="auth.err.oauthCancelled">
      <source>The sign-in was cancelled.</source>
      <translation>การลงชื่อเข้าใช้ถูกยกเลิก</translation>
    </message>
    <message id="auth.err.oauthCannotStart">
      <source>Could not start the sign-in.</source>
      <translation>เริ่มการลงชื่อเข้าใช้ไม่ได้</translation>
    </message>
    <message id="auth.err.oauthNoCode">
      <source>The sign-in came back without a code.</source>
      <translation>การลงชื่อเข้าใช้กลับมาโดยไม่มีรหัส</translation>
    </message>
    <message id="auth.err.oauthRefused">
      <source>The sign-in was refused: %1</source>
      <translation>การลงชื่อเข้าใช้ถูกปฏิเสธ: %1</translation>
    </message>
    <message id="auth.err.rateLimit">
      <source>Too many attempts. Wait a few minutes, then try again.</source>
      <translation>ลองหลายครั้งเกินไป โปรดรอสักครู่แล้วลองอีกครั้ง</translation>
    </message>
    <message id="auth.err.server">
      <source>The server ran into a problem. Try again in a moment.</source>
      <translation>เซิร์ฟเวอร์เกิดปัญหา โปรดลองใหม่อีกครั้งในอีกสักครู่</translation>
    </message>
    <message id="auth.err.switchExpired">
      <source>Couldn't switch to %1. That account's session expired - sign in to it again.</source>
      <translation>สลับไปยัง %1 ไม่ได้ เซสชันของบัญชีนั้นหมดอายุแล้ว โปรดลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message id="auth.oauthDone">
      <source>You are signed in to Morvane. You can close this window.</source>
      <translation>คุณลงชื่อเข้าใช้ Morvane แล้ว ปิดหน้าต่างนี้ได้เลย</translation>
    </message>
    <message id="billing.dayNote">
      <source>Tracked time ÷ hours-per-day = billable days.</source>
      <translation>เวลาที่บันทึก ÷ ชั่วโมงต่อวัน = จำนวนวันที่เรียกเก็บได้</translation>
    </message>
    <message id="billing.dayRate">
      <source>Day rate</source>
      <translation>อัตรารายวัน</translation>
    </message>
    <message id="billing.discount">
      <source>Discount</source>
      <translation>ส่วนลด</translation>
    </message>
    <message id="billing.extras">
      <source>Extras · call-out · materials · discount · VAT</source>
      <translation>รายการเพิ่มเติม · ค่าเดินทาง · ค่าวัสดุ · ส่วนลด · VAT</translation>
    </message>
    <message id="billing.fixedTotal">
      <source>Fixed total</source>
      <translation>ยอดรวมคงที่</translation>
    </message>
    <message id="billing.gross">
      <source>Gross (incl.)</source>
      <translation>รวม (รวม VAT)</translation>
    </message>
    <message id="billing.hourlyRate">
      <source>Hourly rate</source>
      <translation>อัตรารายชั่วโมง</translation>
    </message>
    <message id="billing.hoursPerDay">
      <source>Hours per day</source>
      <translation>ชั่วโมงต่อวัน</translation>
    </message>
    <message id="billing.inheriting">
      <source>Inheriting from project</source>
      <translation>ใช้ตามโปรเจกต์</translation>
    </message>
    <message id="billing.materials">
      <source>Materials</source>
      <translation>ค่าวัสดุ</translation>
    </message>
    <message id="billing.minCharge">
      <source>Minimum charge</source>
      <translation>ค่าบริการขั้นต่ำ</translation>
    </message>
    <message id="billing.model.day">
      <source>Per day</source>
      <translation>รายวัน</translation>
    </message>
    <message id="billing.model.fixed">
      <source>Fixed price</source>
      <translation>ราคาเหมา</translation>
    </message>
    <message id="billing.model.hour">
      <source>Per hour</source>
      <translation>รายชั่วโมง</translation>
    </message>
    <message id="billing.model.unit">
      <source>Per unit</source>
      <translation>ต่อหน่วย</translation>
    </message>
    <message id="billing.net">
      <source>Net (excl. VAT)</source>
      <translation>สุทธิ (ไม่รวม VAT)</translation>
    </message>
    <message id="billing.netNote">
      <source>Net per tracked time, plus the extras above.</source>
      <translation>ยอดสุทธิตามเวลาที่บันทึก รวมรายการเพิ่มเติมด้านบน</translation>
    </message>
    <message id="billing.pricePerUnit">
      <source>Price / unit</source>
      <translation>ราคา / หน่วย</translation>
    </message>
    <message id="billing.quantity">
      <source>Quantity</source>
      <translation>จำนวน</translation>
    </message>
    <message id="billing.resetProject">
      <source>Reset to project default</source>
      <translation>กลับไปใช้ค่าเริ่มต้นของโปรเจกต์</translation>
    </message>
    <message id="billing.suffix.day">
      <source>/day</source>
      <translation>/วัน</translation>
    </message>
    <message id="billing.suffix.hour">
      <source>/h</source>
      <translation>/ชม.</translation>
    </message>
    <message id="billing.surcharge">
      <source>Call-out fee</source>
      <translation>ค่าเดินทาง</translation>
    </message>
    <message id="billing.title">
      <source>Billing</source>
      <translation>การเรียกเก็บเงิน</translation>
    </message>
    <message id="billing.unit">
      <source>Unit</source>
      <translation>หน่วย</translation>
    </message>
    <message id="billing.unitDefault">
      <source>unit</source>
      <translation>หน่วย</translation>
    </message>
    <message id="billing.vat">
      <source>VAT</source>
      <translation>VAT</translation>
    </message>
    <message id="billing.vatAmount">
      <source>VAT</source>
      <translation>VAT</translation>
    </message>
    <message id="billing.vatNone">
      <source>No VAT</source>
      <translation>ไม่มี VAT</translation>
    </message>
    <message id="cal.accessOffBody">
      <source>Morvane turns calendar events into time entries. Add an iCalendar file, a subscription address or a CalDAV account, then come back and recheck.</source>
      <translation>Morvane เปลี่ยนกิจกรรมในปฏิทินเป็นรายการเวลา เพิ่มไฟล์ iCalendar ที่อยู่สมัครรับ หรือบัญชี CalDAV แล้วกลับมาตรวจสอบอีกครั้ง</translation>
    </message>
    <message id="cal.accessOffTitle">
      <source>No calendars yet</source>
      <translation>ยังไม่มีปฏิทิน</translation>
    </message>
    <message id="cal.err.alreadyImported">
      <source>This event was imported before; its time is already logged.</source>
      <translation>กิจกรรมนี้ถูกนำเข้าแล้ว เวลาของกิจกรรมถูกบันทึกไว้แล้ว</translation>
    </message>
    <message id="cal.err.readFailed">
      <source>The calendar “%1” could not be read.</source>
      <translation>อ่านปฏิทิน “%1” ไม่ได้</translation>
    </message>
    <message id="cal.err.secret">
      <source>The password could not be stored in the keyring.</source>
      <translation>ไม่สามารถเก็บรหัสผ่านไว้ในพวงกุญแจได้</translation>
    </message>
    <message id="cal.heroTitle">
      <source>Import from your calendar</source>
      <translation>นำเข้าจากปฏิทินของคุณ</translation>
    </message>
    <message id="cal.loading">
      <source>Loading calendar…</source>
      <translation>กำลังโหลดปฏิทิน…</translation>
    </message>
    <message id="cal.noEventsHint">
      <source>No events on this day. Pick another day, or add a calendar.</source>
      <translation>ไม่มีกิจกรรมในวันนี้ เลือกวันอื่นหรือเพิ่มปฏิทิน</translation>
    </message>
    <message id="cal.selectedCount">
      <source>%1 selected</source>
      <translation>เลือกแล้ว %1 รายการ</translation>
    </message>
    <message id="cal.untitled">
      <source>Calendar event</source>
      <translation>กิจกรรมในปฏิทิน</translation>
    </message>
    <message id="calExistingSection">
      <source>Existing tasks</source>
      <translation>งานที่มีอยู่</translation>
    </message>
    <message id="calNewTaskSection">
      <source>New tasks</source>
      <translation>งานใหม่</translation>
    </message>
    <message id="capture.err.noMinutes">
      <source>The sentence gives no time to log.</source>
      <translation>ประโยคนี้ไม่ได้ระบุเวลาที่จะบันทึก</translation>
    </message>
    <message id="capture.err.noProject">
      <source>The sentence names no project to add the task to.</source>
      <translation>ประโยคนี้ไม่ได้ระบุโปรเจกต์ที่จะเพิ่มงาน</translation>
    </message>
    <message id="capture.err.notSaved">
      <source>The change could not be saved.</source>
      <translation>ไม่สามารถบันทึกการเปลี่ยนแปลงได้</translation>
    </message>
    <message id="capture.fix.bothPrices">
      <source>"%1" has both a fixed price and an hourly rate; the fixed price is used.</source>
      <translation>"%1" มีทั้งราคาเหมาและอัตรารายชั่วโมง จะใช้ราคาเหมา</translation>
    </message>
    <message id="capture.fix.cut">
      <source>"%1…" was cut to %2 characters.</source>
      <translation>"%1…" ถูกตัดเหลือ %2 ตัวอักษร</translation>
    </message>
    <message id="capture.fix.date">
      <source>The due date "%1" was left out: it is not a date of the form YYYY-MM-DD.</source>
      <translation>ไม่ได้ใช้วันครบกำหนด "%1" เพราะไม่ใช่วันที่ในรูปแบบ YYYY-MM-DD</translation>
    </message>
    <message id="capture.fix.minutes">
      <source>%1 minutes were left out: time logged from one sentence is more than 0 and at most %2 minutes.</source>
      <translation>ไม่ได้ใช้ %1 นาที เวลาที่บันทึกจากหนึ่งประโยคต้องมากกว่า 0 และไม่เกิน %2 นาที</translation>
    </message>
    <message id="capture.fix.price">
      <source>The fixed price %1 was left out: a price lies between 0 and %2.</source>
      <translation>ไม่ได้ใช้ราคาเหมา %1 ราคาต้องอยู่ระหว่าง 0 ถึง %2</translation>
    </message>
    <message id="capture.fix.priority">
      <source>The priority "%1" is unknown; the task gets the default, medium.</source>
      <translation>ไม่รู้จักความสำคัญ "%1" งานนี้จะใช้ค่าเริ่มต้นคือปานกลาง</translation>
    </message>
    <message id="capture.fix.rate">
      <source>The hourly rate %1 was left out: a rate lies between 0 and %2.</source>
      <translation>ไม่ได้ใช้อัตรารายชั่วโมง %1 อัตราต้องอยู่ระหว่าง 0 ถึง %2</translation>
    </message>
    <message id="capture.fix.unnamed">
      <source>A project or task without a name was left out.</source>
      <translation>ไม่ได้ใช้โปรเจกต์หรืองานที่ไม่มีชื่อ</translation>
    </message>
    <message id="capture.note.noTeam">
      <source>You have no team called "%1" that you may add projects to; "%2" stays yours alone.</source>
      <translation>คุณไม่มีทีมชื่อ "%1" ที่เพิ่มโปรเจกต์ได้ "%2" จึงเป็นของคุณคนเดียว</translation>
    </message>
    <message id="capture.note.noTimer">
      <source>No timer was running.</source>
      <translation>ไม่มีตัวจับเวลาที่กำลังทำงาน</translation>
    </message>
    <message id="claude.err.binaryMissing">
      <source>AI features need the Claude CLI on this Mac (it powers voice/prompt capture, briefs, and the invoice note). Everything else works without it. Set CLAUDE_CLI_PATH or install it, then try again.</source>
      <translation>ฟีเจอร์ AI ต้องใช้ Claude CLI บน Mac เครื่องนี้ (ใช้กับการป้อนด้วยเสียง/พรอมต์ บทสรุป และหมายเหตุในใบแจ้งหนี้) ส่วนอื่นทำงานได้โดยไม่ต้องมี ตั้งค่า CLAUDE_CLI_PATH หรือติดตั้ง แล้วลองอีกครั้ง</translation>
    </message>
    <message id="claude.err.createTask">
      <source>Create task failed: %1</source>
      <translation>สร้างงานไม่สำเร็จ: %1</translation>
    </message>
    <message id="claude.err.emptyOutput">
      <source>Claude produced no output</source>
      <translation>Claude ไม่ได้ให้ผลลัพธ์ใดเลย</translation>
    </message>
    <message id="claude.err.launchFailed">
      <source>Launch failed: %1</source>
      <translation>เริ่มทำงานไม่สำเร็จ: %1</translation>
    </message>
    <message id="claude.err.malformedJSON">
      <source>Bad JSON from Claude (%1) %2</source>
      <translation>JSON จาก Claude ไม่ถูกต้อง (%1) %2</translation>
    </message>
    <message id="claude.err.noJSONObject">
      <source>no JSON object detected</source>
      <translation>ไม่พบออบเจ็กต์ JSON</translation>
    </message>
    <message id="claude.err.nonZeroExit">
      <source>Claude exited %1: %2</source>
      <translation>Claude จบการทำงานด้วยสถานะ %1: %2</translation>
    </message>
    <message id="claude.err.outputNotWritten">
      <source>Claude finished but did not write %1</source>
      <translation>Claude ทำงานเสร็จแต่ไม่ได้เขียน %1</translation>
    </message>
    <message id="claude.err.resultIsError">
      <source>claude returned is_error=true</source>
      <translation>claude ส่งกลับ is_error=true</translation>
    </message>
    <message id="claude.err.timedOut">
      <source>Claude request timed out after %1 s</source>
      <translation>คำขอไปยัง Claude หมดเวลาหลัง %1 วินาที</translation>
    </message>
    <message id="claude.err.workspaceTimedOut">
      <source>Claude workspace task timed out after %1 s</source>
      <translation>งานของ Claude ในโฟลเดอร์งานหมดเวลาหลัง %1 วินาที</translation>
    </message>
    <message id="cli.add.adjusted">
      <source>Checked: %1</source>
      <translation>ตรวจสอบแล้ว: %1</translation>
    </message>
    <message id="cli.add.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as 'morvane tasks list' shows it.</source>
      <translation>งานไหน? ไม่มีงานชื่อ "%1" หรือมีหลายงานที่ชื่อนี้ ให้ระบุชื่อตามที่ 'morvane tasks list' แสดง</translation>
    </message>
    <message id="cli.add.dryRunDone">
      <source>Nothing was changed (--dry-run).</source>
      <translation>ไม่มีการเปลี่ยนแปลงใด ๆ (--dry-run)</translation>
    </message>
    <message id="cli.add.due">
      <source>due %1</source>
      <translation>ครบกำหนด %1</translation>
    </message>
    <message id="cli.add.fixed">
      <source>%1 fixed</source>
      <translation>เหมา %1</translation>
    </message>
    <message id="cli.add.logTime">
      <source>Log %1 on "%2"</source>
      <translation>บันทึก %1 ให้ "%2"</translation>
    </message>
    <message id="cli.add.modelNote">
      <source>The model notes: %1</source>
      <translation>หมายเหตุจากโมเดล: %1</translation>
    </message>
    <message id="cli.add.option.dryRun">
      <source>Show what was understood without changing anything.</source>
      <translation>แสดงสิ่งที่เข้าใจโดยไม่เปลี่ยนแปลงอะไร</translation>
    </message>
    <message id="cli.add.partial">
      <source>Stopped: %1 What was made before stays; give the same sentence again to finish the rest without making anything twice.</source>
      <translation>หยุดแล้ว: %1 สิ่งที่สร้างไปแล้วยังอยู่ ป้อนประโยคเดิมอีกครั้งเพื่อทำส่วนที่เหลือโดยไม่สร้างซ้ำ</translation>
    </message>
    <message id="cli.add.project">
      <source>Project "%1"</source>
      <translation>โปรเจกต์ "%1"</translation>
    </message>
    <message id="cli.add.spent">
      <source>%1 already spent</source>
      <translation>ใช้ไปแล้ว %1</translation>
    </message>
    <message id="cli.add.startTimer">
      <source>Start the timer on "%1"</source>
      <translation>เริ่มจับเวลา "%1"</translation>
    </message>
    <message id="cli.add.stopRunning">
      <source>Stop the running timer</source>
      <translation>หยุดตัวจับเวลาที่กำลังทำงาน</translation>
    </message>
    <message id="cli.add.stopTimer">
      <source>Stop the timer on "%1"</source>
      <translation>หยุดจับเวลา "%1"</translation>
    </message>
    <message id="cli.add.summary">
      <source>Projects: %1 new, %2 existing. Tasks: %3 new, %4 existing. Time logged: %5.</source>
      <translation>โปรเจกต์: ใหม่ %1 มีอยู่แล้ว %2 งาน: ใหม่ %3 มีอยู่แล้ว %4 เวลาที่บันทึก: %5</translation>
    </message>
    <message id="cli.add.task">
      <source>Task "%1"</source>
      <translation>งาน "%1"</translation>
    </message>
    <message id="cli.add.team">
      <source>shared with team %1</source>
      <translation>แชร์กับทีม %1</translation>
    </message>
    <message id="cli.add.timerStopped">
      <source>Timer stopped on %1.</source>
      <translation>หยุดจับเวลา %1 แล้ว</translation>
    </message>
    <message id="cli.add.understood">
      <source>Understood:</source>
      <translation>สิ่งที่เข้าใจ:</translation>
    </message>
    <message id="cli.add.unknown">
      <source>Nothing to do: the sentence holds no project, task, time or timer action.</source>
      <translation>ไม่มีอะไรต้องทำ ประโยคนี้ไม่มีโปรเจกต์ งาน เวลา หรือคำสั่งจับเวลา</translation>
    </message>
    <message id="cli.add.usage">
      <source>Usage: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</source>
      <translation>วิธีใช้: morvane add "&lt;text&gt;" [--dry-run] [--yes] [--json]</translation>
    </message>
    <message id="cli.ai.consentAllowed">
      <source>allowed</source>
      <translation>อนุญาตแล้ว</translation>
    </message>
    <message id="cli.ai.consentAsk">
      <source>not asked yet</source>
      <translation>ยังไม่ได้ถาม</translation>
    </message>
    <message id="cli.ai.consentDeclined">
      <source>declined</source>
      <translation>ปฏิเสธแล้ว</translation>
    </message>
    <message id="cli.ai.keyFailed">
      <source>The keyring did not take the key; nothing changed.</source>
      <translation>พวงกุญแจไม่รับคีย์นี้ จึงไม่มีอะไรเปลี่ยนแปลง</translation>
    </message>
    <message id="cli.ai.keyMissing">
      <source>No key was given; nothing changed.</source>
      <translation>ไม่ได้ใส่คีย์ จึงไม่มีอะไรเปลี่ยนแปลง</translation>
    </message>
    <message id="cli.ai.keyPrompt">
      <source>Paste your %1 API key and press Enter: </source>
      <translation>วางคีย์ API ของ %1 แล้วกด Enter: </translation>
    </message>
    <message id="cli.ai.keyRemoved">
      <source>The %1 key is no longer in your keyring.</source>
      <translation>คีย์ %1 ไม่อยู่ในพวงกุญแจของคุณแล้ว</translation>
    </message>
    <message id="cli.ai.keySaved">
      <source>The %1 key is in your keyring.</source>
      <translation>คีย์ %1 อยู่ในพวงกุญแจของคุณแล้ว</translation>
    </message>
    <message id="cli.ai.keys">
      <source>Your keys in the keyring: %1</source>
      <translation>คีย์ของคุณในพวงกุญแจ: %1</translation>
    </message>
    <message id="cli.ai.option.remove">
      <source>Remove the stored key instead of setting one.</source>
      <translation>ลบคีย์ที่เก็บไว้แทนการตั้งคีย์ใหม่</translation>
    </message>
    <message id="cli.ai.provider">
      <source>Provider setting: %1</source>
      <translation>การตั้งค่าผู้ให้บริการ: %1</translation>
    </message>
    <message id="cli.ai.question">
      <source>%1
Send your text to %2 now and from now on? [y/N] </source>
      <translation>%1
ส่งข้อความของคุณไปยัง %2 ตอนนี้และต่อจากนี้หรือไม่? [y/N] </translation>
    </message>
    <message id="cli.ai.route">
      <source>Calls go to: %1</source>
      <translation>การเรียกจะส่งไปที่: %1</translation>
    </message>
    <message id="cli.ai.usage">
      <source>Usage: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</source>
      <translation>วิธีใช้: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask</translation>
    </message>
    <message id="cli.ai.yes">
      <source>Agree to sending your text to the chosen AI service without being asked.</source>
      <translation>ยินยอมให้ส่งข้อความไปยังบริการ AI ที่เลือกโดยไม่ต้องถาม</translation>
    </message>
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>คำสั่งที่จะเรียกใช้ หากไม่ระบุจะแสดงรายการคำสั่ง</translation>
    </message>
    <message id="cli.auth.browser">
      <source>Continue in your browser. If no page opens, go to: %1</source>
      <translation>ดำเนินการต่อในเบราว์เซอร์ หากไม่มีหน้าเปิดขึ้น ให้ไปที่: %1</translation>
    </message>
    <message id="cli.auth.confirm">
      <source>Check your inbox: confirm %1 with the link in the mail, then sign in.</source>
      <translation>โปรดตรวจสอบกล่องจดหมาย ยืนยัน %1 ด้วยลิงก์ในอีเมล แล้วลงชื่อเข้าใช้</translation>
    </message>
    <message id="cli.auth.noAccounts">
      <source>No remembered accounts.</source>
      <translation>ไม่มีบัญชีที่จำไว้</translation>
    </message>
    <message id="cli.auth.option.name">
      <source>The name shown on your profile and to your team.</source>
      <translation>ชื่อที่แสดงในโปรไฟล์และต่อทีมของคุณ</translation>
    </message>
    <message id="cli.auth.option.provider">
      <source>Sign in through an outside provider in the browser instead of with a password.</source>
      <translation>ลงชื่อเข้าใช้ผ่านผู้ให้บริการภายนอกในเบราว์เซอร์แทนการใช้รหัสผ่าน</translation>
    </message>
    <message id="cli.auth.password">
      <source>Password: </source>
      <translation>รหัสผ่าน: </translation>
    </message>
    <message id="cli.auth.signedIn">
      <source>Signed in as %1.</source>
      <translation>ลงชื่อเข้าใช้ในชื่อ %1 แล้ว</translation>
    </message>
    <message id="cli.auth.signedOut">
      <source>Signed out.</source>
      <translation>ออกจากระบบแล้ว</translation>
    </message>
    <message id="cli.auth.unknownAccount">
      <source>No remembered account %1. Sign in to it first.</source>
      <translation>ไม่มีบัญชีที่จำไว้ชื่อ %1 โปรดลงชื่อเข้าใช้บัญชีนั้นก่อน</translation>
    </message>
    <message id="cli.auth.usage">
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signin --provider NAME | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>วิธีใช้: morvane auth signup|signin &lt;อีเมล&gt; | signin --provider NAME | signout | status | switch &lt;อีเมล&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.calendar.added">
      <source>Added %1 (%2).</source>
      <translation>เพิ่ม %1 แล้ว (%2)</translation>
    </message>
    <message id="cli.calendar.err.add">
      <source>That calendar cannot be added: %1.</source>
      <translation>เพิ่มปฏิทินนั้นไม่ได้: %1</translation>
    </message>
    <message id="cli.calendar.err.day">
      <source>A day is written as YYYY-MM-DD, today or yesterday.</source>
      <translation>เขียนวันเป็น YYYY-MM-DD, today หรือ yesterday</translation>
    </message>
    <message id="cli.calendar.err.noDestination">
      <source>No task or project for: %1. Pass --project P to make them new tasks there.</source>
      <translation>ไม่มีงานหรือโปรเจกต์สำหรับ: %1 ใส่ --project P เพื่อสร้างเป็นงานใหม่ในโปรเจกต์นั้น</translation>
    </message>
    <message id="cli.calendar.err.noSelection">
      <source>Say which events to import: --events ID... (see morvane calendar events) or --all.</source>
      <translation>ระบุกิจกรรมที่จะนำเข้า: --events ID... (ดู morvane calendar events) หรือ --all</translation>
    </message>
    <message id="cli.calendar.err.unknown">
      <source>No single calendar matches “%1”; see morvane calendar list.</source>
      <translation>ไม่มีปฏิทินเดียวที่ตรงกับ “%1” ดู morvane calendar list</translation>
    </message>
    <message id="cli.calendar.imported">
      <source>imported</source>
      <translation>นำเข้าแล้ว</translation>
    </message>
    <message id="cli.calendar.importedCount">
      <source>Imported %1 events; %2 were imported before.</source>
      <translation>นำเข้า %1 กิจกรรม; %2 รายการเคยนำเข้าแล้ว</translation>
    </message>
    <message id="cli.calendar.opt.all">
      <source>Import every event of the day.</source>
      <translation>นำเข้ากิจกรรมทั้งหมดของวัน</translation>
    </message>
    <message id="cli.calendar.opt.caldav">
      <source>Read a CalDAV collection (with --user) instead of a subscription.</source>
      <translation>อ่านคอลเลกชัน CalDAV (ใช้กับ --user) แทนการสมัครรับ</translation>
    </message>
    <message id="cli.calendar.opt.day">
      <source>The day: YYYY-MM-DD, today or yesterday.</source>
      <translation>วัน: YYYY-MM-DD, today หรือ yesterday</translation>
    </message>
    <message id="cli.calendar.opt.events">
      <source>The events to import, by the id events shows.</source>
      <translation>กิจกรรมที่จะนำเข้า ตาม id ที่ events แสดง</translation>
    </message>
    <message id="cli.calendar.opt.name">
      <source>The name the calendar is shown under.</source>
      <translation>ชื่อที่ใช้แสดงปฏิทิน</translation>
    </message>
    <message id="cli.calendar.opt.project">
      <source>The project new tasks are made in.</source>
      <translation>โปรเจกต์ที่จะสร้างงานใหม่</translation>
    </message>
    <message id="cli.calendar.opt.user">
      <source>The CalDAV user name.</source>
      <translation>ชื่อผู้ใช้ CalDAV</translation>
    </message>
    <message id="cli.calendar.password">
      <source>CalDAV password: </source>
      <translation>รหัสผ่าน CalDAV: </translation>
    </message>
    <message id="cli.calendar.removed">
      <source>Removed %1.</source>
      <translation>ลบ %1 แล้ว</translation>
    </message>
    <message id="cli.calendar.usage">
      <source>Usage: morvane calendar add &lt;file-or-address&gt; [--caldav --user U] | list | rm &lt;calendar&gt; | events [--day DAY] [--json] | import --day DAY [--project P] [--events ID...] [--all]</source>
      <translation>วิธีใช้: morvane calendar add &lt;ไฟล์หรือที่อยู่&gt; [--caldav --user U] | list | rm &lt;ปฏิทิน&gt; | events [--day วัน] [--json] | import --day วัน [--project P] [--events ID...] [--all]</translation>
    </message>
    <message id="cli.clients.added">
      <source>Added client %1 (%2).</source>
      <translation>เพิ่มลูกค้า %1 แล้ว (%2)</translation>
    </message>
    <message id="cli.clients.coc">
      <source>CoC %1</source>
      <translation>ทะเบียนพาณิชย์ %1</translation>
    </message>
    <message id="cli.clients.confirmDelete">
      <source>Delete the client %1? Invoices that name it keep it. [y/N] </source>
      <translation>ลบลูกค้า %1 หรือไม่ ใบแจ้งหนี้ที่ระบุลูกค้านี้จะยังคงอยู่ [y/N] </translation>
    </message>
    <message id="cli.clients.deleted">
      <source>Deleted client %1.</source>
      <translation>ลบลูกค้า %1 แล้ว</translation>
    </message>
    <message id="cli.clients.kept">
      <source>Nothing deleted.</source>
      <translation>ไม่ได้ลบสิ่งใด</translation>
    </message>
    <message id="cli.clients.noMatch">
      <source>No client matches "%1". See them with: morvane clients list</source>
      <translation>ไม่มีลูกค้าที่ตรงกับ "%1" ดูรายชื่อได้ด้วย: morvane clients list</translation>
    </message>
    <message id="cli.clients.none">
      <source>No clients yet. Add one with: morvane clients add &lt;name&gt;</source>
      <translation>ยังไม่มีลูกค้า เพิ่มได้ด้วย: morvane clients add &lt;ชื่อ&gt;</translation>
    </message>
    <message id="cli.clients.option.address">
      <source>The client's postal address; it may span several lines.</source>
      <translation>ที่อยู่ทางไปรษณีย์ของลูกค้า เขียนได้หลายบรรทัด</translation>
    </message>
    <message id="cli.clients.option.coc">
      <source>The client's chamber-of-commerce number.</source>
      <translation>เลขทะเบียนพาณิชย์ของลูกค้า</translation>
    </message>
    <message id="cli.clients.option.email">
      <source>The client's e-mail address.</source>
      <translation>อีเมลของลูกค้า</translation>
    </message>
    <message id="cli.clients.option.name">
      <source>A new name (edit only).</source>
      <translation>ชื่อใหม่ (ใช้กับ edit เท่านั้น)</translation>
    </message>
    <message id="cli.clients.option.vat">
      <source>The client's VAT number.</source>
      <translation>เลขประจำตัวผู้เสียภาษีของลูกค้า</translation>
    </message>
    <message id="cli.clients.option.yes">
      <source>Delete without asking first.</source>
      <translation>ลบโดยไม่ถามก่อน</translation>
    </message>
    <message id="cli.clients.saved">
      <source>Saved client %1.</source>
      <translation>บันทึกลูกค้า %1 แล้ว</translation>
    </message>
    <message id="cli.clients.usage">
      <source>Usage: morvane clients list | add &lt;name&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;client&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;client&gt; [--yes] [--json]</source>
      <translation>วิธีใช้: morvane clients list | add &lt;ชื่อ&gt; [--email E] [--address A] [--vat-number V] [--coc-number C] | edit &lt;ลูกค้า&gt; [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm &lt;ลูกค้า&gt; [--yes] [--json]</translation>
    </message>
    <message id="cli.clients.vat">
      <source>VAT %1</source>
      <translation>เลขภาษี %1</translation>
    </message>
    <message id="cli.clients.yesAnswers">
      <source>y|yes</source>
      <translation>ใช่</translation>
    </message>
    <message id="cli.command.add">
      <source>Turn a sentence into projects, tasks, logged time or a timer action: add "&lt;text&gt;" [--dry-run] [--json]</source>
      <translation>เปลี่ยนประโยคเป็นโปรเจกต์ งาน เวลาที่บันทึก หรือคำสั่งจับเวลา: add "&lt;text&gt;" [--dry-run] [--json]</translation>
    </message>
    <message id="cli.command.ai">
      <source>Where model calls go, your own API keys and what you agreed to send: ai show|provider|key|consent</source>
      <translation>การเรียกโมเดลส่งไปที่ใด คีย์ API ของคุณเอง และสิ่งที่คุณยินยอมให้ส่ง: ai show|provider|key|consent</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>สมัคร ลงชื่อเข้าและออก สลับบัญชี</translation>
    </message>
    <message id="cli.command.calendar">
      <source>Calendar events as time: calendar add|list|rm|events|import</source>
      <translation>กิจกรรมในปฏิทินเป็นเวลา: calendar add|list|rm|events|import</translation>
    </message>
    <message id="cli.command.clients">
      <source>The clients you invoice: clients list|add|edit|rm</source>
      <translation>ลูกค้าที่คุณออกใบแจ้งหนี้ให้: clients list|add|edit|rm</translation>
    </message>
    <message id="cli.command.company">
      <source>Your sender details and invoice style: company show|set</source>
      <translation>ข้อมูลผู้ส่งและรูปแบบใบแจ้งหนี้: company show|set</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>แสดงแบ็กเอนด์ที่ Morvane ใช้และที่มาของการตั้งค่าแต่ละรายการ</translation>
    </message>
    <message id="cli.command.earnings">
      <source>Earned, billed and unbilled money by week, month or project: earnings [--from DAY --to DAY] [--by week|month|project]</source>
      <translation>รายได้ ยอดที่เรียกเก็บแล้ว และยอดที่ยังไม่เรียกเก็บ แยกตามสัปดาห์ เดือน หรือโปรเจกต์: earnings [--from วัน --to วัน] [--by week|month|project]</translation>
    </message>
    <message id="cli.command.entries">
      <source>List, edit or delete time entries: entries [--task T] | edit | rm</source>
      <translation>แสดง แก้ไข หรือลบรายการเวลา: entries [--task T] | edit | rm</translation>
    </message>
    <message id="cli.command.export">
      <source>Time entries or invoices of a period as CSV for the accountant: export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>ส่งออกรายการเวลาหรือใบแจ้งหนี้ของช่วงเวลาเป็น CSV สำหรับนักบัญชี: export entries|invoices --from วัน --to วัน [--out ไฟล์]</translation>
    </message>
    <message id="cli.command.invoice">
      <source>Invoices: invoice draft|create|list|show|status|void|rm|pdf</source>
      <translation>ใบแจ้งหนี้: invoice draft|create|list|show|status|void|rm|pdf</translation>
    </message>
    <message id="cli.command.log">
      <source>Log minutes of work on a task: log &lt;task&gt; &lt;minutes&gt;</source>
      <translation>บันทึกนาทีการทำงานในงาน: log &lt;task&gt; &lt;minutes&gt;</translation>
    </message>
    <message id="cli.command.price">
      <source>Show or set the price of a project or task: price show|set</source>
      <translation>แสดงหรือตั้งราคาของโปรเจกต์หรืองาน: price show|set</translation>
    </message>
    <message id="cli.command.projects">
      <source>List, add, rename, archive or delete projects: projects list|add|rename|archive|rm</source>
      <translation>แสดง เพิ่ม เปลี่ยนชื่อ เก็บถาวร หรือลบโปรเจกต์: projects list|add|rename|archive|rm</translation>
    </message>
    <message id="cli.command.recap">
      <source>A short recap of your tracked week, written by the model from your own figures: recap [--lang L]</source>
      <translation>สรุปสั้น ๆ ของสัปดาห์ที่คุณบันทึกเวลาไว้ เขียนโดยโมเดลจากตัวเลขของคุณเอง: recap [--lang L]</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>เริ่ม หยุด หรือแสดงแบ็กเอนด์ในเครื่อง: server start|stop|status</translation>
    </message>
    <message id="cli.command.sessions">
      <source>Coding-agent sessions found in the local logs: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</source>
      <translation>เซสชันของเอเจนต์เขียนโค้ดที่พบในล็อกบนเครื่อง: sessions list [--days N] [--json] | scan | map | ignore | reimport | track</translation>
    </message>
    <message id="cli.command.standup">
      <source>A stand-up draft from your last workday, today and your open tasks: standup [--lang L]</source>
      <translation>ร่างสแตนด์อัปจากวันทำงานล่าสุด วันนี้ และงานที่ยังค้างอยู่ของคุณ: standup [--lang L]</translation>
    </message>
    <message id="cli.command.tasks">
      <source>List, add, edit, move or delete tasks: tasks list|add|edit|move|status|rm</source>
      <translation>แสดง เพิ่ม แก้ไข ย้าย หรือลบงาน: tasks list|add|edit|move|status|rm</translation>
    </message>
    <message id="cli.command.teams">
      <source>Teams and their members: teams list|create|invite|invitations|accept|decline|assign</source>
      <translation>ทีมและสมาชิก: teams list|create|invite|invitations|accept|decline|assign</translation>
    </message>
    <message id="cli.command.timer">
      <source>Start, stop or show the timer: timer start|stop|toggle|status</source>
      <translation>เริ่ม หยุด หรือแสดงตัวจับเวลา: timer start|stop|toggle|status</translation>
    </message>
    <message id="cli.command.travel">
      <source>Your rate per kilometre and how you usually travel: travel show|set</source>
      <translation>อัตราต่อกิโลเมตรและวิธีเดินทางปกติของคุณ: travel show|set</translation>
    </message>
    <message id="cli.command.trips">
      <source>Trips and their kilometres: trips list|add|edit|rm|route|export</source>
      <translation>การเดินทางและระยะทาง: trips list|add|edit|rm|route|export</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>คำสั่ง:</translation>
    </message>
    <message id="cli.company.accent">
      <source>Accent colour</source>
      <translation>สีเน้น</translation>
    </message>
    <message id="cli.company.address">
      <source>Address</source>
      <translation>ที่อยู่</translation>
    </message>
    <message id="cli.company.argument.action">
      <source>show or set</source>
      <translation>show หรือ set</translation>
    </message>
    <message id="cli.company.bank">
      <source>Bank</source>
      <translation>ธนาคาร</translation>
    </message>
    <message id="cli.company.cocNumber">
      <source>Chamber of commerce number</source>
      <translation>เลขทะเบียนพาณิชย์</translation>
    </message>
    <message id="cli.company.company">
      <source>Company</source>
      <translation>บริษัท</translation>
    </message>
    <message id="cli.company.days">
      <source>%1 days</source>
      <translation>%1 วัน</translation>
    </message>
    <message id="cli.company.design">
      <source>Design</source>
      <translation>ดีไซน์</translation>
    </message>
    <message id="cli.company.email">
      <source>E-mail</source>
      <translation>อีเมล</translation>
    </message>
    <message id="cli.company.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>ระยะเวลาชำระเงินต้องเป็นจำนวนวันเต็มตั้งแต่ 0 ถึง 365</translation>
    </message>
    <message id="cli.company.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>อัตราภาษีต้องเป็นเปอร์เซ็นต์ตั้งแต่ 0 ถึง 100</translation>
    </message>
    <message id="cli.company.fileProblem">
      <source>%1: %2</source>
      <translation>%1: %2</translation>
    </message>
    <message id="cli.company.fontBody">
      <source>Body font</source>
      <translation>ฟอนต์เนื้อหา</translation>
    </message>
    <message id="cli.company.fontDisplay">
      <source>Display font</source>
      <translation>ฟอนต์หัวเรื่อง</translation>
    </message>
    <message id="cli.company.footer">
      <source>Footer</source>
      <translation>ส่วนท้าย</translation>
    </message>
    <message id="cli.company.iban">
      <source>Bank account (IBAN)</source>
      <translation>บัญชีธนาคาร (IBAN)</translation>
    </message>
    <message id="cli.company.ink">
      <source>Ink colour</source>
      <translation>สีตัวอักษร</translation>
    </message>
    <message id="cli.company.logo">
      <source>Logo</source>
      <translation>โลโก้</translation>
    </message>
    <message id="cli.company.logoSize">
      <source>%1 × %2 px</source>
      <translation>%1 × %2 px</translation>
    </message>
    <message id="cli.company.logoUnreadable">
      <source>set, but not readable</source>
      <translation>ตั้งค่าไว้แต่อ่านไม่ได้</translation>
    </message>
    <message id="cli.company.none">
      <source>No sender details yet. Set them with: morvane company set --company NAME --address TEXT ...</source>
      <translation>ยังไม่มีข้อมูลผู้ส่ง ตั้งค่าได้ด้วย: morvane company set --company ชื่อ --address ที่อยู่ ...</translation>
    </message>
    <message id="cli.company.option.design">
      <source>The design new invoices are drawn in.</source>
      <translation>ดีไซน์ของใบแจ้งหนี้ใหม่</translation>
    </message>
    <message id="cli.company.option.field">
      <source>Sets: %1. An empty value clears it.</source>
      <translation>ตั้งค่า: %1 ค่าว่างจะล้างค่านั้น</translation>
    </message>
    <message id="cli.company.option.help">
      <source>Show this help.</source>
      <translation>แสดงความช่วยเหลือนี้</translation>
    </message>
    <message id="cli.company.option.logo">
      <source>A PNG or JPEG of at most 1 MB; an empty value removes the logo.</source>
      <translation>ไฟล์ PNG หรือ JPEG ขนาดไม่เกิน 1 MB ค่าว่างจะลบโลโก้</translation>
    </message>
    <message id="cli.company.option.paymentDays">
      <source>Days the client has to pay.</source>
      <translation>จำนวนวันที่ลูกค้ามีเพื่อชำระเงิน</translation>
    </message>
    <message id="cli.company.option.template">
      <source>Your own HTML template; new invoices use it unless --design says otherwise.</source>
      <translation>เทมเพลต HTML ของคุณเอง ใบแจ้งหนี้ใหม่จะใช้เทมเพลตนี้ เว้นแต่ --design จะระบุเป็นอย่างอื่น</translation>
    </message>
    <message id="cli.company.option.vatRate">
      <source>VAT percentage of lines whose price has none.</source>
      <translation>อัตราภาษีของรายการที่ไม่มีอัตราของตัวเอง</translation>
    </message>
    <message id="cli.company.paymentDays">
      <source>Payment terms</source>
      <translation>ระยะเวลาชำระเงิน</translation>
    </message>
    <message id="cli.company.phone">
      <source>Phone</source>
      <translation>โทรศัพท์</translation>
    </message>
    <message id="cli.company.saved">
      <source>Sender details and invoice style saved.</source>
      <translation>บันทึกข้อมูลผู้ส่งและรูปแบบใบแจ้งหนี้แล้ว</translation>
    </message>
    <message id="cli.company.template">
      <source>Custom template</source>
      <translation>เทมเพลตของคุณเอง</translation>
    </message>
    <message id="cli.company.templateFallsBack">
      <source>not used, invoices fall back to %1: %2</source>
      <translation>ไม่ได้ใช้ ใบแจ้งหนี้จะใช้ %1 แทน: %2</translation>
    </message>
    <message id="cli.company.templateStatus">
      <source>Custom template: %1</source>
      <translation>เทมเพลตของคุณเอง: %1</translation>
    </message>
    <message id="cli.company.templateUsed">
      <source>used</source>
      <translation>ใช้งานอยู่</translation>
    </message>
    <message id="cli.company.unknownDesign">
      <source>Unknown design: %1. The designs are: %2 (aiCustom is your own template).</source>
      <translation>ไม่รู้จักดีไซน์: %1 ดีไซน์ที่มีคือ: %2 (aiCustom คือเทมเพลตของคุณเอง)</translation>
    </message>
    <message id="cli.company.usage">
      <source>Usage: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</source>
      <translation>วิธีใช้: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]</translation>
    </message>
    <message id="cli.company.vatNumber">
      <source>VAT number</source>
      <translation>เลขประจำตัวผู้เสียภาษี</translation>
    </message>
    <message id="cli.company.vatRate">
      <source>Default VAT rate</source>
      <translation>อัตราภาษีเริ่มต้น</translation>
    </message>
    <message id="cli.company.website">
      <source>Website</source>
      <translation>เว็บไซต์</translation>
    </message>
    <message id="cli.config.json">
      <source>Print the setting as JSON.</source>
      <translation>แสดงการตั้งค่าเป็น JSON</translation>
    </message>
    <message id="cli.config.key">
      <source>Anonymous key</source>
      <translation>คีย์นิรนาม</translation>
    </message>
    <message id="cli.config.keyMissing">
      <source>not set</source>
      <translation>ยังไม่ได้ตั้งค่า</translation>
    </message>
    <message id="cli.config.url">
      <source>Backend address</source>
      <translation>ที่อยู่แบ็กเอนด์</translation>
    </message>
    <message id="cli.description">
      <source>Morvane tracks working time on projects and tasks and turns it into invoices.</source>
      <translation>Morvane บันทึกเวลาทำงานของโปรเจกต์และงาน แล้วเปลี่ยนเป็นใบแจ้งหนี้</translation>
    </message>
    <message id="cli.earnings.backwards">
      <source>The period ends before it begins.</source>
      <translation>ช่วงเวลาสิ้นสุดก่อนวันเริ่มต้น</translation>
    </message>
    <message id="cli.earnings.badBy">
      <source>--by takes week, month or project, not "%1".</source>
      <translation>--by ใช้ได้เฉพาะ week, month หรือ project ไม่ใช่ "%1"</translation>
    </message>
    <message id="cli.earnings.badDay">
      <source>"%1" is not a day; write it as yyyy-MM-dd, for example 2026-01-31.</source>
      <translation>"%1" ไม่ใช่วันที่ เขียนในรูปแบบ yyyy-MM-dd เช่น 2026-01-31</translation>
    </message>
    <message id="cli.earnings.column.billed">
      <source>Billed</source>
      <translation>เรียกเก็บแล้ว</translation>
    </message>
    <message id="cli.earnings.column.earned">
      <source>Earned</source>
      <translation>รายได้</translation>
    </message>
    <message id="cli.earnings.column.hours">
      <source>Hours</source>
      <translation>ชั่วโมง</translation>
    </message>
    <message id="cli.earnings.column.period">
      <source>Period</source>
      <translation>ช่วงเวลา</translation>
    </message>
    <message id="cli.earnings.column.project">
      <source>Project</source>
      <translation>โปรเจกต์</translation>
    </message>
    <message id="cli.earnings.column.rate">
      <source>Per hour</source>
      <translation>ต่อชั่วโมง</translation>
    </message>
    <message id="cli.earnings.column.unbilled">
      <source>Unbilled</source>
      <translation>ยังไม่เรียกเก็บ</translation>
    </message>
    <message id="cli.earnings.halfPeriod">
      <source>Give both --from and --to, or neither for the current month.</source>
      <translation>ระบุทั้ง --from และ --to หรือไม่ระบุทั้งสองเพื่อใช้เดือนปัจจุบัน</translation>
    </message>
    <message id="cli.earnings.heading">
      <source>Earnings from %1 to %2</source>
      <translation>รายได้ตั้งแต่ %1 ถึง %2</translation>
    </message>
    <message id="cli.earnings.noProject">
      <source>No project</source>
      <translation>ไม่มีโปรเจกต์</translation>
    </message>
    <message id="cli.earnings.none">
      <source>No time tracked in this period.</source>
      <translation>ไม่มีเวลาที่บันทึกไว้ในช่วงนี้</translation>
    </message>
    <message id="cli.earnings.option.by">
      <source>Rows by week, month (the default) or project.</source>
      <translation>แถวตามสัปดาห์ เดือน (ค่าเริ่มต้น) หรือโปรเจกต์</translation>
    </message>
    <message id="cli.earnings.option.from">
      <source>First day of the period (yyyy-MM-dd); with --to. Without both, the current month.</source>
      <translation>วันแรกของช่วงเวลา (yyyy-MM-dd) ใช้คู่กับ --to หากไม่ระบุทั้งสองจะใช้เดือนปัจจุบัน</translation>
    </message>
    <message id="cli.earnings.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>วันสุดท้ายของช่วงเวลา (yyyy-MM-dd) รวมวันนั้นด้วย</translation>
    </message>
    <message id="cli.earnings.total">
      <source>Total</source>
      <translation>รวม</translation>
    </message>
    <message id="cli.earnings.usage">
      <source>Usage: morvane earnings [--from DAY --to DAY] [--by week|month|project] [--json]</source>
      <translation>วิธีใช้: morvane earnings [--from วัน --to วัน] [--by week|month|project] [--json]</translation>
    </message>
    <message id="cli.entries.badRange">
      <source>An entry must end after it starts.</source>
      <translation>รายการต้องสิ้นสุดหลังเวลาเริ่ม</translation>
    </message>
    <message id="cli.entries.deleted">
      <source>Deleted the entry of %1.</source>
      <translation>ลบรายการ %1 แล้ว</translation>
    </message>
    <message id="cli.entries.noMatch">
      <source>No single time entry matches "%1". List them with: morvane entries --task &lt;task&gt;</source>
      <translation>ไม่มีรายการเวลาเดียวที่ตรงกับ "%1" แสดงรายการด้วย: morvane entries --task &lt;task&gt;</translation>
    </message>
    <message id="cli.entries.none">
      <source>No time entries.</source>
      <translation>ไม่มีรายการเวลา</translation>
    </message>
    <message id="cli.entries.option.end">
      <source>The new end (ISO 8601, local time without an offset).</source>
      <translation>เวลาสิ้นสุดใหม่ (ISO 8601 ไม่มีออฟเซ็ตคือเวลาท้องถิ่น)</translation>
    </message>
    <message id="cli.entries.option.minutes">
      <source>The new length in minutes.</source>
      <translation>ความยาวใหม่เป็นนาที</translation>
    </message>
    <message id="cli.entries.option.start">
      <source>The new start (ISO 8601, local time without an offset).</source>
      <translation>เวลาเริ่มใหม่ (ISO 8601 ไม่มีออฟเซ็ตคือเวลาท้องถิ่น)</translation>
    </message>
    <message id="cli.entries.option.task">
      <source>Only the entries of this task, older ones included.</source>
      <translation>เฉพาะรายการของงานนี้ รวมรายการเก่า</translation>
    </message>
    <message id="cli.entries.total">
      <source>In all: %1</source>
      <translation>รวม: %1</translation>
    </message>
    <message id="cli.entries.usage">
      <source>Usage: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</source>
      <translation>วิธีใช้: morvane entries [--task T] [--json] | entries edit &lt;entry&gt; [--start T] [--end T] [--minutes N] | entries rm &lt;entry&gt;</translation>
    </message>
    <message id="cli.err.noSignInWaiting">
      <source>No sign-in is waiting for this address. Start the sign-in in Morvane again.</source>
      <translation>ไม่มีการลงชื่อเข้าใช้ที่รอที่อยู่นี้ เริ่มการลงชื่อเข้าใช้ใน Morvane อีกครั้ง</translation>
    </message>
    <message id="cli.err.notSignedIn">
      <source>Not signed in. Sign in with: morvane auth signin &lt;e-mail&gt;</source>
      <translation>ยังไม่ได้ลงชื่อเข้าใช้ ลงชื่อเข้าใช้ด้วย: morvane auth signin &lt;e-mail&gt;</translation>
    </message>
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>ไม่รู้จักคำสั่ง: %1 เรียกใช้ morvane --help เพื่อดูรายการคำสั่ง</translation>
    </message>
    <message id="cli.export.argument.kind">
      <source>What to export: entries or invoices.</source>
      <translation>สิ่งที่จะส่งออก: entries (รายการเวลา) หรือ invoices (ใบแจ้งหนี้)</translation>
    </message>
    <message id="cli.export.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>วันแรกของช่วงเวลา (yyyy-MM-dd)</translation>
    </message>
    <message id="cli.export.option.help">
      <source>Show this help.</source>
      <translation>แสดงความช่วยเหลือนี้</translation>
    </message>
    <message id="cli.export.option.out">
      <source>The CSV file to write; without it the CSV goes to standard output.</source>
      <translation>ไฟล์ CSV ที่จะเขียน ถ้าไม่ระบุ CSV จะออกทางเอาต์พุตมาตรฐาน</translation>
    </message>
    <message id="cli.export.option.to">
      <source>Last day of the period (yyyy-MM-dd), included.</source>
      <translation>วันสุดท้ายของช่วงเวลา (yyyy-MM-dd) รวมวันนั้นด้วย</translation>
    </message>
    <message id="cli.export.usage">
      <source>Usage: morvane export entries|invoices --from DAY --to DAY [--out FILE]</source>
      <translation>วิธีใช้: morvane export entries|invoices --from วัน --to วัน [--out ไฟล์]</translation>
    </message>
    <message id="cli.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>เขียน %1 ไม่ได้: %2</translation>
    </message>
    <message id="cli.export.written">
      <source>Saved %1 (rows: %2).</source>
      <translation>บันทึก %1 แล้ว (%2 แถว)</translation>
    </message>
    <message id="cli.invoice.ambiguous">
      <source>Several invoices match %1; give more of the id or the number.</source>
      <translation>มีใบแจ้งหนี้หลายรายการที่ตรงกับ %1 โปรดระบุรหัสให้ยาวขึ้นหรือใช้เลขที่</translation>
    </message>
    <message id="cli.invoice.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>ลบใบแจ้งหนี้ %1 แล้ว ชั่วโมงของใบนี้กลับเป็นยังไม่ได้เรียกเก็บเงิน</translation>
    </message>
    <message id="cli.invoice.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>ไม่สามารถดาวน์โหลด PDF ได้: %1</translation>
    </message>
    <message id="cli.invoice.draftEmpty">
      <source>No unbilled time of %1 in this period.</source>
      <translation>ไม่มีเวลาที่ยังไม่ได้เรียกเก็บเงินของ %1 ในช่วงนี้</translation>
    </message>
    <message id="cli.invoice.due">
      <source>, due %1</source>
      <translation> ครบกำหนด %1</translation>
    </message>
    <message id="cli.invoice.header">
      <source>Invoice %1 (%2), issued %3</source>
      <translation>ใบแจ้งหนี้ %1 (%2) ออกเมื่อ %3</translation>
    </message>
    <message id="cli.invoice.none">
      <source>No invoices yet.</source>
      <translation>ยังไม่มีใบแจ้งหนี้</translation>
    </message>
    <message id="cli.invoice.notFound">
      <source>No invoice matches %1.</source>
      <translation>ไม่มีใบแจ้งหนี้ที่ตรงกับ %1</translation>
    </message>
    <message id="cli.invoice.option.client">
      <source>Bill-to name on the new invoice.</source>
      <translation>ชื่อผู้รับใบแจ้งหนี้ในใบแจ้งหนี้ใหม่</translation>
    </message>
    <message id="cli.invoice.option.design">
      <source>The design of the new invoice, instead of the one in your invoice style.</source>
      <translation>ดีไซน์ของใบแจ้งหนี้ใหม่ แทนดีไซน์ในรูปแบบใบแจ้งหนี้ของคุณ</translation>
    </message>
    <message id="cli.invoice.option.from">
      <source>First day of the period (yyyy-MM-dd).</source>
      <translation>วันแรกของช่วง (yyyy-MM-dd)</translation>
    </message>
    <message id="cli.invoice.option.out">
      <source>The file to write the PDF to.</source>
      <translation>ไฟล์ที่จะเขียน PDF</translation>
    </message>
    <message id="cli.invoice.option.status">
      <source>Status of the new invoice: draft or sent.</source>
      <translation>สถานะของใบแจ้งหนี้ใหม่: draft หรือ sent</translation>
    </message>
    <message id="cli.invoice.option.to">
      <source>Last day of the period (yyyy-MM-dd).</source>
      <translation>วันสุดท้ายของช่วง (yyyy-MM-dd)</translation>
    </message>
    <message id="cli.invoice.option.vat">
      <source>VAT percentage for lines whose price has none.</source>
      <translation>อัตราภาษีมูลค่าเพิ่มสำหรับรายการที่ราคาไม่มีอัตรากำหนด</translation>
    </message>
    <message id="cli.invoice.pdfReplaced">
      <source>The PDF of invoice %1 was made again.</source>
      <translation>สร้าง PDF ของใบแจ้งหนี้ %1 ใหม่แล้ว</translation>
    </message>
    <message id="cli.invoice.pdfSaved">
      <source>Saved the PDF of invoice %1 to %2.</source>
      <translation>บันทึก PDF ของใบแจ้งหนี้ %1 ไปที่ %2 แล้ว</translation>
    </message>
    <message id="cli.invoice.status.draft">
      <source>draft</source>
      <translation>ฉบับร่าง</translation>
    </message>
    <message id="cli.invoice.status.paid">
      <source>paid</source>
      <translation>ชำระแล้ว</translation>
    </message>
    <message id="cli.invoice.status.sent">
      <source>sent</source>
      <translation>ส่งแล้ว</translation>
    </message>
    <message id="cli.invoice.status.void">
      <source>void</source>
      <translation>ยกเลิก</translation>
    </message>
    <message id="cli.invoice.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>ใบแจ้งหนี้ %1 ตอนนี้เป็น %2</translation>
    </message>
    <message id="cli.invoice.subtotal">
      <source>Subtotal</source>
      <translation>ยอดรวมย่อย</translation>
    </message>
    <message id="cli.invoice.total">
      <source>Total</source>
      <translation>ยอดรวม</translation>
    </message>
    <message id="cli.invoice.usage">
      <source>Usage: morvane invoice draft|create &lt;project&gt; [--from DAY] [--to DAY] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;invoice&gt; | status &lt;invoice&gt; draft|sent|paid|void | void &lt;invoice&gt; | rm &lt;invoice&gt; | pdf &lt;invoice&gt; --out FILE | replace-pdf &lt;invoice&gt; [--json]</source>
      <translation>วิธีใช้: morvane invoice draft|create &lt;โปรเจกต์&gt; [--from วัน] [--to วัน] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show &lt;ใบแจ้งหนี้&gt; | status &lt;ใบแจ้งหนี้&gt; draft|sent|paid|void | void &lt;ใบแจ้งหนี้&gt; | rm &lt;ใบแจ้งหนี้&gt; | pdf &lt;ใบแจ้งหนี้&gt; --out ไฟล์ | replace-pdf &lt;ใบแจ้งหนี้&gt; [--json]</translation>
    </message>
    <message id="cli.invoice.vat">
      <source>VAT</source>
      <translation>ภาษีมูลค่าเพิ่ม</translation>
    </message>
    <message id="cli.invoice.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>ใบแจ้งหนี้ %1 ถูกยกเลิกแล้ว ชั่วโมงของใบนี้กลับเป็นยังไม่ได้เรียกเก็บเงิน</translation>
    </message>
    <message id="cli.invoice.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>ไม่สามารถเขียน %1 ได้: %2</translation>
    </message>
    <message id="cli.log.logged">
      <source>Logged %1 on %2, %3 in all.</source>
      <translation>บันทึก %1 ใน %2 แล้ว รวม %3</translation>
    </message>
    <message id="cli.log.usage">
      <source>Usage: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</source>
      <translation>วิธีใช้: morvane log &lt;task&gt; &lt;minutes&gt; (&gt; 0; 1.5 = 1:30)</translation>
    </message>
    <message id="cli.option.help">
      <source>Show this help.</source>
      <translation>แสดงวิธีใช้นี้</translation>
    </message>
    <message id="cli.option.json">
      <source>Print the answer as JSON.</source>
      <translation>แสดงคำตอบเป็น JSON</translation>
    </message>
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>แสดงเวอร์ชัน</translation>
    </message>
    <message id="cli.price.invalid">
      <source>Not a valid amount, or a required one is missing: %1</source>
      <translation>จำนวนเงินไม่ถูกต้อง หรือขาดจำนวนที่จำเป็น: %1</translation>
    </message>
    <message id="cli.price.option.amount">
      <source>A number as you write it (1250, 1.250,50, 12.5); empty clears it.</source>
      <translation>ตัวเลขตามที่คุณเขียน (1250, 1.250,50, 12.5) เว้นว่างเพื่อล้าง</translation>
    </message>
    <message id="cli.price.option.discountAmount">
      <source>The discount is an amount.</source>
      <translation>ส่วนลดเป็นจำนวนเงิน</translation>
    </message>
    <message id="cli.price.option.discountPct">
      <source>The discount is a percentage.</source>
      <translation>ส่วนลดเป็นเปอร์เซ็นต์</translation>
    </message>
    <message id="cli.price.option.inherit">
      <source>The task bills at its project's price again.</source>
      <translation>งานกลับไปคิดราคาตามราคาของโปรเจกต์</translation>
    </message>
    <message id="cli.price.option.model">
      <source>The billing model: hourly, fixed, per_unit or daily.</source>
      <translation>รูปแบบการเรียกเก็บเงิน: hourly, fixed, per_unit หรือ daily</translation>
    </message>
    <message id="cli.price.option.surchargeLabel">
      <source>Label of the surcharge.</source>
      <translation>ป้ายกำกับค่าธรรมเนียมเพิ่มเติม</translation>
    </message>
    <message id="cli.price.option.task">
      <source>The task whose own price to show or set, instead of a project's.</source>
      <translation>งานที่จะแสดงหรือตั้งราคาของตัวเอง แทนราคาของโปรเจกต์</translation>
    </message>
    <message id="cli.price.option.travel">
      <source>How the project charges its trips: per_km, per_trip or none.</source>
      <translation>วิธีคิดค่าเดินทางของโครงการ: per_km, per_trip หรือ none</translation>
    </message>
    <message id="cli.price.option.travelRate">
      <source>The travel rate per kilometre or per trip; without it, per kilometre bills at your own rate.</source>
      <translation>อัตราต่อกิโลเมตรหรือต่อเที่ยว หากไม่ระบุ คิดต่อกิโลเมตรด้วยอัตราของคุณเอง</translation>
    </message>
    <message id="cli.price.option.unitLabel">
      <source>Name of the unit of a per-unit price.</source>
      <translation>ชื่อหน่วยของราคาต่อหน่วย</translation>
    </message>
    <message id="cli.price.unchanged">
      <source>Nothing changed.</source>
      <translation>ไม่มีอะไรเปลี่ยนแปลง</translation>
    </message>
    <message id="cli.price.usage">
      <source>Usage: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</source>
      <translation>วิธีใช้: morvane price show|set &lt;project&gt; | price show|set --task &lt;task&gt; [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]</translation>
    </message>
    <message id="cli.price.worth">
      <source>Tracked %1, worth %2.</source>
      <translation>บันทึกแล้ว %1 มูลค่า %2</translation>
    </message>
    <message id="cli.projects.active">
      <source>active</source>
      <translation>ใช้งาน</translation>
    </message>
    <message id="cli.projects.added">
      <source>Added project %1 (%2).</source>
      <translation>เพิ่มโปรเจกต์ %1 (%2) แล้ว</translation>
    </message>
    <message id="cli.projects.archived">
      <source>archived</source>
      <translation>เก็บถาวร</translation>
    </message>
    <message id="cli.projects.archivedIdle">
      <source>Idle projects archived: %1.</source>
      <translation>โปรเจกต์ที่ไม่มีความเคลื่อนไหวที่เก็บถาวรแล้ว: %1</translation>
    </message>
    <message id="cli.projects.archivedOne">
      <source>Archived %1.</source>
      <translation>เก็บถาวร %1 แล้ว</translation>
    </message>
    <message id="cli.projects.completed">
      <source>completed</source>
      <translation>เสร็จสิ้น</translation>
    </message>
    <message id="cli.projects.deleted">
      <source>Deleted %1 and its tasks.</source>
      <translation>ลบ %1 และงานของโปรเจกต์แล้ว</translation>
    </message>
    <message id="cli.projects.none">
      <source>No projects yet. Add one with: morvane projects add &lt;name&gt;</source>
      <translation>ยังไม่มีโปรเจกต์ เพิ่มด้วย: morvane projects add &lt;name&gt;</translation>
    </message>
    <message id="cli.projects.option.description">
      <source>A description of the project.</source>
      <translation>คำอธิบายของโปรเจกต์</translation>
    </message>
    <message id="cli.projects.option.idle">
      <source>Archive every project of yours without work for this many days.</source>
      <translation>เก็บถาวรโปรเจกต์ทั้งหมดของคุณที่ไม่มีงานตามจำนวนวันนี้</translation>
    </message>
    <message id="cli.projects.option.team">
      <source>The team the new project belongs to.</source>
      <translation>ทีมที่โปรเจกต์ใหม่สังกัด</translation>
    </message>
    <message id="cli.projects.renamed">
      <source>Renamed %1 to %2.</source>
      <translation>เปลี่ยนชื่อ %1 เป็น %2 แล้ว</translation>
    </message>
    <message id="cli.projects.taskCount">
      <source>tasks: %1</source>
      <translation>งาน: %1</translation>
    </message>
    <message id="cli.projects.team">
      <source>team %1</source>
      <translation>ทีม %1</translation>
    </message>
    <message id="cli.projects.usage">
      <source>Usage: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</source>
      <translation>วิธีใช้: morvane projects list | add &lt;name&gt; [--description TEXT] [--team TEAM] | rename &lt;project&gt; &lt;name&gt; | archive &lt;project&gt; | archive --idle DAYS | rm &lt;project&gt; [--json]</translation>
    </message>
    <message id="cli.recap.usage">
      <source>Usage: morvane recap [--lang L] [--yes] [--json]</source>
      <translation>วิธีใช้: morvane recap [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.ref.ambiguous">
      <source>"%1" matches several: %2. Use the id.</source>
      <translation>"%1" ตรงกับหลายรายการ: %2 โปรดใช้ id</translation>
    </message>
    <message id="cli.ref.noInvitation">
      <source>No invitation to a team matches "%1". See them with: morvane teams invitations</source>
      <translation>ไม่มีคำเชิญเข้าทีมที่ตรงกับ "%1" ดูคำเชิญได้ด้วย: morvane teams invitations</translation>
    </message>
    <message id="cli.ref.noProject">
      <source>No project matches "%1".</source>
      <translation>ไม่มีโปรเจกต์ที่ตรงกับ "%1"</translation>
    </message>
    <message id="cli.ref.noTask">
      <source>No task matches "%1".</source>
      <translation>ไม่มีงานที่ตรงกับ "%1"</translation>
    </message>
    <message id="cli.ref.noTeam">
      <source>No team matches "%1".</source>
      <translation>ไม่มีทีมที่ตรงกับ "%1"</translation>
    </message>
    <message id="cli.renderInvoice.design">
      <source>With --render-invoice: the design (%1).</source>
      <translation>ใช้กับ --render-invoice: รูปแบบ (%1)</translation>
    </message>
    <message id="cli.renderInvoice.draft">
      <source>With --render-invoice: an invoice as JSON instead of the sample.</source>
      <translation>ใช้กับ --render-invoice: ใบแจ้งหนี้ในรูปแบบ JSON แทนตัวอย่าง</translation>
    </message>
    <message id="cli.renderInvoice.err.both">
      <source>--lines is for the sample invoice; a draft brings its own lines.</source>
      <translation>--lines ใช้กับใบแจ้งหนี้ตัวอย่างเท่านั้น ฉบับร่างมีรายการของตัวเอง</translation>
    </message>
    <message id="cli.renderInvoice.err.design">
      <source>Unknown design: %1. Choose one of: %2.</source>
      <translation>ไม่รู้จักรูปแบบ: %1 เลือกจาก: %2</translation>
    </message>
    <message id="cli.renderInvoice.err.draft">
      <source>Cannot read the draft %1: %2</source>
      <translation>อ่านฉบับร่าง %1 ไม่ได้: %2</translation>
    </message>
    <message id="cli.renderInvoice.err.failed">
      <source>Rendering the invoice failed: %1</source>
      <translation>สร้างใบแจ้งหนี้ไม่สำเร็จ: %1</translation>
    </message>
    <message id="cli.renderInvoice.err.lines">
      <source>--lines takes a whole number from 0 to %1.</source>
      <translation>--lines ต้องเป็นจำนวนเต็มตั้งแต่ 0 ถึง %1</translation>
    </message>
    <message id="cli.renderInvoice.err.noGui">
      <source>Rendering an invoice needs the graphical libraries; run it as: morvane --render-invoice</source>
      <translation>การสร้างใบแจ้งหนี้ต้องใช้ไลบรารีกราฟิก ให้เรียกใช้แบบนี้: morvane --render-invoice</translation>
    </message>
    <message id="cli.renderInvoice.err.write">
      <source>Cannot write %1: %2</source>
      <translation>เขียน %1 ไม่ได้: %2</translation>
    </message>
    <message id="cli.renderInvoice.lines">
      <source>With --render-invoice: the number of lines of the sample invoice.</source>
      <translation>ใช้กับ --render-invoice: จำนวนรายการของใบแจ้งหนี้ตัวอย่าง</translation>
    </message>
    <message id="cli.renderInvoice.option">
      <source>Render an invoice to PDF through the application's own path and report its size.</source>
      <translation>สร้าง PDF ของใบแจ้งหนี้ผ่านเส้นทางเดียวกับแอปและแสดงขนาดไฟล์</translation>
    </message>
    <message id="cli.renderInvoice.out">
      <source>With --render-invoice: where to write the PDF.</source>
      <translation>ใช้กับ --render-invoice: ตำแหน่งที่จะบันทึก PDF</translation>
    </message>
    <message id="cli.renderInvoice.png">
      <source>With --render-invoice: a folder for pictures of the pages as PNG.</source>
      <translation>ใช้กับ --render-invoice: โฟลเดอร์สำหรับภาพ PNG ของแต่ละหน้า</translation>
    </message>
    <message id="cli.server.action">
      <source>start, stop or status</source>
      <translation>start, stop หรือ status</translation>
    </message>
    <message id="cli.server.dataDir">
      <source>Data folder: %1</source>
      <translation>โฟลเดอร์ข้อมูล: %1</translation>
    </message>
    <message id="cli.server.notInUse">
      <source>Morvane uses %1 (%2), not the local backend.</source>
      <translation>Morvane ใช้ %1 (%2) ไม่ได้ใช้แบ็กเอนด์ในเครื่อง</translation>
    </message>
    <message id="cli.server.running">
      <source>The local backend is running at %1 (process %2).</source>
      <translation>แบ็กเอนด์ในเครื่องทำงานอยู่ที่ %1 (โปรเซส %2)</translation>
    </message>
    <message id="cli.server.started">
      <source>Started the local backend at %1 (process %2).</source>
      <translation>เริ่มแบ็กเอนด์ในเครื่องที่ %1 แล้ว (โปรเซส %2)</translation>
    </message>
    <message id="cli.server.starting">
      <source>The local backend (process %1) is starting and does not answer yet.</source>
      <translation>แบ็กเอนด์ในเครื่อง (โปรเซส %1) กำลังเริ่มทำงานและยังไม่ตอบสนอง</translation>
    </message>
    <message id="cli.server.stopped">
      <source>The local backend is not running.</source>
      <translation>แบ็กเอนด์ในเครื่องไม่ได้ทำงานอยู่</translation>
    </message>
    <message id="cli.server.stoppedNow">
      <source>Stopped the local backend (process %1).</source>
      <translation>หยุดแบ็กเอนด์ในเครื่องแล้ว (โปรเซส %1)</translation>
    </message>
    <message id="cli.server.usage">
      <source>Usage: morvane server start|stop|status [--json]</source>
      <translation>วิธีใช้: morvane server start|stop|status [--json]</translation>
    </message>
    <message id="cli.sessions.burst">
      <source>%1. %2 to %3 · active %4 · prompts: %5 · %6</source>
      <translation>%1. %2 ถึง %3 · ทำงาน %4 · พรอมต์: %5 · %6</translation>
    </message>
    <message id="cli.sessions.err.days">
      <source>--days takes a whole number of days from 1 to 36500.</source>
      <translation>--days ต้องเป็นจำนวนวันเต็มตั้งแต่ 1 ถึง 36500</translation>
    </message>
    <message id="cli.sessions.err.unknownSession">
      <source>No session %1 among the logs of the last 60 days.</source>
      <translation>ไม่พบเซสชัน %1 ในล็อกช่วง 60 วันที่ผ่านมา</translation>
    </message>
    <message id="cli.sessions.group">
      <source>%1 · sessions: %2 · active %3</source>
      <translation>%1 · เซสชัน: %2 · ทำงาน %3</translation>
    </message>
    <message id="cli.sessions.ignored">
      <source>Ignored %1: %2 sessions there will not be logged.</source>
      <translation>ละเว้น %1 แล้ว: %2 เซสชันในนั้นจะไม่ถูกบันทึก</translation>
    </message>
    <message id="cli.sessions.mapped">
      <source>%1 is mapped to project %2.</source>
      <translation>ผูก %1 กับโปรเจกต์ %2 แล้ว</translation>
    </message>
    <message id="cli.sessions.none">
      <source>No Claude sessions parsed yet</source>
      <translation>ยังไม่มีเซสชัน Claude ที่อ่านแล้ว</translation>
    </message>
    <message id="cli.sessions.option.all">
      <source>Every session (with reimport).</source>
      <translation>ทุกเซสชัน (ใช้กับ reimport)</translation>
    </message>
    <message id="cli.sessions.option.days">
      <source>Sessions whose log changed in the last N days (30 when not given).</source>
      <translation>เซสชันที่ล็อกเปลี่ยนในช่วง N วันที่ผ่านมา (ไม่ระบุคือ 30)</translation>
    </message>
    <message id="cli.sessions.pending">
      <source>Not mapped to a project: %1 · sessions: %2 · active %3</source>
      <translation>ยังไม่ได้ผูกกับโปรเจกต์: %1 · เซสชัน: %2 · ทำงาน %3</translation>
    </message>
    <message id="cli.sessions.reimportAll">
      <source>Every session will be logged again by the next scan.</source>
      <translation>ทุกเซสชันจะถูกบันทึกอีกครั้งในการสแกนครั้งถัดไป</translation>
    </message>
    <message id="cli.sessions.reimportLogged">
      <source>Session %1 logged again: %2 of %3 work bursts.</source>
      <translation>บันทึกเซสชัน %1 อีกครั้งแล้ว: %2 จาก %3 ช่วงงาน</translation>
    </message>
    <message id="cli.sessions.reimportOne">
      <source>Session %1 will be logged again by the next scan.</source>
      <translation>เซสชัน %1 จะถูกบันทึกอีกครั้งในการสแกนครั้งถัดไป</translation>
    </message>
    <message id="cli.sessions.scanned">
      <source>Sessions seen: %1 · work bursts logged: %2 · time logged: %3 (%4 minutes) · failed: %5</source>
      <translation>เซสชันที่พบ: %1 · ช่วงงานที่บันทึก: %2 · เวลาที่บันทึก: %3 (%4 นาที) · ล้มเหลว: %5</translation>
    </message>
    <message id="cli.sessions.session">
      <source>%1 · %2 to %3 · active %4 · prompts: %5</source>
      <translation>%1 · %2 ถึง %3 · ทำงาน %4 · พรอมต์: %5</translation>
    </message>
    <message id="cli.sessions.trackOff">
      <source>Claude sessions are no longer tracked.</source>
      <translation>เลิกติดตามเซสชัน Claude แล้ว</translation>
    </message>
    <message id="cli.sessions.trackOn">
      <source>Claude sessions are tracked: every minute the new work bursts of mapped folders are logged.</source>
      <translation>ติดตามเซสชัน Claude แล้ว: ทุกนาทีช่วงงานใหม่ของโฟลเดอร์ที่ผูกไว้จะถูกบันทึก</translation>
    </message>
    <message id="cli.sessions.usage">
      <source>Usage: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</source>
      <translation>วิธีใช้: morvane sessions list [--days N] [--json] | scan [--json] | map &lt;dir&gt; &lt;project-id&gt; | ignore &lt;dir&gt; | reimport &lt;session&gt;|--all | track on|off</translation>
    </message>
    <message id="cli.sessions.where">
      <source>Looked for logs changed in the last %1 days in %2.</source>
      <translation>ค้นหาล็อกที่เปลี่ยนในช่วง %1 วันที่ผ่านมาใน %2</translation>
    </message>
    <message id="cli.standup.usage">
      <source>Usage: morvane standup [--lang L] [--yes] [--json]</source>
      <translation>วิธีใช้: morvane standup [--lang L] [--yes] [--json]</translation>
    </message>
    <message id="cli.summary.fixed">
      <source>Written from your figures alone; the model's text was not used (%1).</source>
      <translation>เขียนจากตัวเลขของคุณเท่านั้น ไม่ได้ใช้ข้อความจากโมเดล (%1)</translation>
    </message>
    <message id="cli.summary.option.lang">
      <source>Language of the text: en, nl, de, fr, es, it, pt, ja or th; others mean English. Default: the interface language.</source>
      <translation>ภาษาของข้อความ: en, nl, de, fr, es, it, pt, ja หรือ th ถ้าเป็นค่าอื่นจะใช้ภาษาอังกฤษ ค่าเริ่มต้น: ภาษาของอินเทอร์เฟซ</translation>
    </message>
    <message id="cli.tasks.added">
      <source>Added task %1 (%2) to %3.</source>
      <translation>เพิ่มงาน %1 (%2) ใน %3 แล้ว</translation>
    </message>
    <message id="cli.tasks.badDue">
      <source>Not a day: %1. Write it as YYYY-MM-DD.</source>
      <translation>ไม่ใช่วันที่: %1 โปรดเขียนเป็น YYYY-MM-DD</translation>
    </message>
    <message id="cli.tasks.badOrder">
      <source>Unknown filter or sort. Filters: %1. Sorts: %2.</source>
      <translation>ไม่รู้จักตัวกรองหรือการเรียง ตัวกรอง: %1 การเรียง: %2</translation>
    </message>
    <message id="cli.tasks.badStatus">
      <source>Unknown status %1. Statuses: %2.</source>
      <translation>ไม่รู้จักสถานะ %1 สถานะ: %2</translation>
    </message>
    <message id="cli.tasks.deleted">
      <source>Deleted %1.</source>
      <translation>ลบ %1 แล้ว</translation>
    </message>
    <message id="cli.tasks.due">
      <source>due %1</source>
      <translation>ครบกำหนด %1</translation>
    </message>
    <message id="cli.tasks.high">
      <source>high</source>
      <translation>สูง</translation>
    </message>
    <message id="cli.tasks.low">
      <source>low</source>
      <translation>ต่ำ</translation>
    </message>
    <message id="cli.tasks.medium">
      <source>medium</source>
      <translation>กลาง</translation>
    </message>
    <message id="cli.tasks.moved">
      <source>Moved %1 to %2.</source>
      <translation>ย้าย %1 ไปที่ %2 แล้ว</translation>
    </message>
    <message id="cli.tasks.none">
      <source>  No tasks to show.</source>
      <translation>  ไม่มีงานที่จะแสดง</translation>
    </message>
    <message id="cli.tasks.option.description">
      <source>The task's description; empty clears it.</source>
      <translation>คำอธิบายของงาน เว้นว่างเพื่อล้าง</translation>
    </message>
    <message id="cli.tasks.option.due">
      <source>The day the task is due (YYYY-MM-DD); empty clears it.</source>
      <translation>วันครบกำหนดของงาน (YYYY-MM-DD) เว้นว่างเพื่อล้าง</translation>
    </message>
    <message id="cli.tasks.option.filter">
      <source>Which tasks to list: %1.</source>
      <translation>งานที่จะแสดง: %1</translation>
    </message>
    <message id="cli.tasks.option.sort">
      <source>How to order the list: %1.</source>
      <translation>วิธีเรียงรายการ: %1</translation>
    </message>
    <message id="cli.tasks.option.title">
      <source>The task's new title.</source>
      <translation>ชื่อใหม่ของงาน</translation>
    </message>
    <message id="cli.tasks.running">
      <source>timer running</source>
      <translation>ตัวจับเวลากำลังทำงาน</translation>
    </message>
    <message id="cli.tasks.saved">
      <source>Saved %1.</source>
      <translation>บันทึก %1 แล้ว</translation>
    </message>
    <message id="cli.tasks.statusSet">
      <source>%1 is now %2.</source>
      <translation>%1 เป็น %2 แล้ว</translation>
    </message>
    <message id="cli.tasks.usage">
      <source>Usage: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</source>
      <translation>วิธีใช้: morvane tasks list [&lt;project&gt;] [--filter F] [--sort S] | add &lt;project&gt; &lt;title&gt; [--description TEXT] [--due DAY] | edit &lt;task&gt; [--title T] [--description TEXT] [--due DAY] | move &lt;task&gt; &lt;project&gt; | status &lt;task&gt; not_started|in_progress|completed | rm &lt;task&gt; [--json]</translation>
    </message>
    <message id="cli.teams.accepted">
      <source>You are now in team %1, as %2.</source>
      <translation>ตอนนี้คุณอยู่ในทีม %1 ในฐานะ %2</translation>
    </message>
    <message id="cli.teams.answerHint">
      <source>Answer with: morvane teams accept &lt;team&gt; or morvane teams decline &lt;team&gt;</source>
      <translation>ตอบด้วย: morvane teams accept &lt;team&gt; หรือ morvane teams decline &lt;team&gt;</translation>
    </message>
    <message id="cli.teams.assigned">
      <source>%1 now belongs to team %2.</source>
      <translation>%1 อยู่ในทีม %2 แล้ว</translation>
    </message>
    <message id="cli.teams.created">
      <source>Created team %1 (%2).</source>
      <translation>สร้างทีม %1 (%2) แล้ว</translation>
    </message>
    <message id="cli.teams.declined">
      <source>You declined the invitation to %1.</source>
      <translation>คุณปฏิเสธคำเชิญเข้าร่วม %1 แล้ว</translation>
    </message>
    <message id="cli.teams.editor">
      <source>editor</source>
      <translation>ผู้แก้ไข</translation>
    </message>
    <message id="cli.teams.invitation">
      <source>%1 (%2): as %3, from %4</source>
      <translation>%1 (%2): ในฐานะ %3 จาก %4</translation>
    </message>
    <message id="cli.teams.noInvitations">
      <source>No invitations wait for your answer.</source>
      <translation>ไม่มีคำเชิญที่รอคำตอบจากคุณ</translation>
    </message>
    <message id="cli.teams.none">
      <source>No teams. Create one with: morvane teams create &lt;name&gt;</source>
      <translation>ไม่มีทีม สร้างด้วย: morvane teams create &lt;name&gt;</translation>
    </message>
    <message id="cli.teams.option.role">
      <source>The role of the invited member: editor or viewer.</source>
      <translation>บทบาทของสมาชิกที่เชิญ: editor หรือ viewer</translation>
    </message>
    <message id="cli.teams.owner">
      <source>owner</source>
      <translation>เจ้าของ</translation>
    </message>
    <message id="cli.teams.pending">
      <source>invited</source>
      <translation>ได้รับเชิญ</translation>
    </message>
    <message id="cli.teams.projects">
      <source>Projects: %1</source>
      <translation>โปรเจกต์: %1</translation>
    </message>
    <message id="cli.teams.unassigned">
      <source>%1 no longer belongs to a team.</source>
      <translation>%1 ไม่ได้อยู่ในทีมใดแล้ว</translation>
    </message>
    <message id="cli.teams.usage">
      <source>Usage: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</source>
      <translation>วิธีใช้: morvane teams list | create &lt;name&gt; | invite &lt;team&gt; &lt;e-mail&gt; [--role editor|viewer] | invitations | accept &lt;team&gt; | decline &lt;team&gt; | assign &lt;project&gt; &lt;team&gt;|none [--json]</translation>
    </message>
    <message id="cli.teams.viewer">
      <source>viewer</source>
      <translation>ผู้ดู</translation>
    </message>
    <message id="cli.teams.you">
      <source>you: %1</source>
      <translation>คุณ: %1</translation>
    </message>
    <message id="cli.timer.idle">
      <source>No timer runs.</source>
      <translation>ไม่มีตัวจับเวลาที่ทำงานอยู่</translation>
    </message>
    <message id="cli.timer.nothingToResume">
      <source>No task has time yet, so there is none to go on with. Start one with: morvane timer start &lt;task&gt;</source>
      <translation>ยังไม่มีงานใดที่มีเวลา จึงไม่มีงานให้ทำต่อ เริ่มงานด้วย: morvane timer start &lt;task&gt;</translation>
    </message>
    <message id="cli.timer.running">
      <source>%1 (%2): %3 running, %4 in all</source>
      <translation>%1 (%2): กำลังจับเวลา %3 รวม %4</translation>
    </message>
    <message id="cli.timer.started">
      <source>Timer started on %1.</source>
      <translation>เริ่มจับเวลา %1 แล้ว</translation>
    </message>
    <message id="cli.timer.stopped">
      <source>Stopped %1: %2 logged, %3 in all.</source>
      <translation>หยุด %1 แล้ว: บันทึก %2 รวม %3</translation>
    </message>
    <message id="cli.timer.usage">
      <source>Usage: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</source>
      <translation>วิธีใช้: morvane timer start &lt;task&gt; | stop [&lt;task&gt;] | toggle | status [--json]</translation>
    </message>
    <message id="cli.travel.option.mode">
      <source>How you usually travel: car, bike, walk, transit or other.</source>
      <translation>วิธีเดินทางปกติ: car, bike, walk, transit หรือ other</translation>
    </message>
    <message id="cli.travel.option.rate">
      <source>Your rate per kilometre, used where a project names none.</source>
      <translation>อัตราต่อกิโลเมตรของคุณ ใช้เมื่อโครงการไม่ได้กำหนด</translation>
    </message>
    <message id="cli.travel.show">
      <source>Rate per kilometre: %1. Usually travel by: %2.</source>
      <translation>อัตราต่อกิโลเมตร: %1 เดินทางปกติโดย: %2</translation>
    </message>
    <message id="cli.travel.usage">
      <source>Usage: morvane travel show | set [--rate R] [--mode M] [--json]</source>
      <translation>วิธีใช้: morvane travel show | set [--rate R] [--mode M] [--json]</translation>
    </message>
    <message id="cli.trips.added">
      <source>Added trip %1: %2 km.</source>
      <translation>เพิ่มการเดินทาง %1 แล้ว: %2 กม.</translation>
    </message>
    <message id="cli.trips.deleted">
      <source>Deleted trip %1.</source>
      <translation>ลบการเดินทาง %1 แล้ว</translation>
    </message>
    <message id="cli.trips.exported">
      <source>Wrote %1 trips to %2.</source>
      <translation>เขียนการเดินทาง %1 รายการลงใน %2 แล้ว</translation>
    </message>
    <message id="cli.trips.invoiced">
      <source>invoiced</source>
      <translation>ออกใบแจ้งหนี้แล้ว</translation>
    </message>
    <message id="cli.trips.needKm">
      <source>The distance is unknown: the places were not found. Give it with --km.</source>
      <translation>ไม่ทราบระยะทาง: ไม่พบสถานที่ ระบุด้วย --km</translation>
    </message>
    <message id="cli.trips.noMatch">
      <source>No single trip matches "%1". See them with: morvane trips list</source>
      <translation>ไม่มีการเดินทางเดียวที่ตรงกับ "%1" ดูได้ด้วย: morvane trips list</translation>
    </message>
    <message id="cli.trips.notCharged">
      <source>not charged</source>
      <translation>ไม่เรียกเก็บ</translation>
    </message>
    <message id="cli.trips.option.date">
      <source>The day of the trip (YYYY-MM-DD).</source>
      <translation>วันที่เดินทาง (YYYY-MM-DD)</translation>
    </message>
    <message id="cli.trips.option.from">
      <source>Where the trip started: an address, a place or "lat,lng"; for an export, the first day.</source>
      <translation>จุดเริ่มต้น: ที่อยู่ สถานที่ หรือ "lat,lng" สำหรับการส่งออกคือวันแรก</translation>
    </message>
    <message id="cli.trips.option.km">
      <source>The distance in kilometres; without it the road route, else the straight-line estimate.</source>
      <translation>ระยะทางเป็นกิโลเมตร หากไม่ระบุ ใช้เส้นทางถนน หรือประมาณเป็นเส้นตรง</translation>
    </message>
    <message id="cli.trips.option.mode">
      <source>car, bike, walk, transit or other.</source>
      <translation>car, bike, walk, transit หรือ other</translation>
    </message>
    <message id="cli.trips.option.notBillable">
      <source>A business trip that is not charged to the client.</source>
      <translation>การเดินทางเพื่องานที่ไม่เรียกเก็บจากลูกค้า</translation>
    </message>
    <message id="cli.trips.option.out">
      <source>The CSV file to write.</source>
      <translation>ไฟล์ CSV ที่จะเขียน</translation>
    </message>
    <message id="cli.trips.option.private">
      <source>A private trip; never charged.</source>
      <translation>การเดินทางส่วนตัว ไม่เรียกเก็บเลย</translation>
    </message>
    <message id="cli.trips.option.project">
      <source>The project the trip served.</source>
      <translation>โครงการของการเดินทางนี้</translation>
    </message>
    <message id="cli.trips.option.purpose">
      <source>What the trip was for.</source>
      <translation>วัตถุประสงค์ของการเดินทาง</translation>
    </message>
    <message id="cli.trips.option.task">
      <source>The task the trip served.</source>
      <translation>งานของการเดินทางนี้</translation>
    </message>
    <message id="cli.trips.option.to">
      <source>Where the trip ended; for an export, the last day.</source>
      <translation>จุดสิ้นสุด สำหรับการส่งออกคือวันสุดท้าย</translation>
    </message>
    <message id="cli.trips.placeUnknown">
      <source>No place was found for "%1".</source>
      <translation>ไม่พบสถานที่สำหรับ "%1"</translation>
    </message>
    <message id="cli.trips.private">
      <source>private</source>
      <translation>ส่วนตัว</translation>
    </message>
    <message id="cli.trips.saved">
      <source>Saved trip %1.</source>
      <translation>บันทึกการเดินทาง %1 แล้ว</translation>
    </message>
    <message id="cli.trips.usage">
      <source>Usage: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</source>
      <translation>วิธีใช้: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M] [--private] [--not-billable] [--purpose TEXT] | edit &lt;trip&gt; [the same options] | rm &lt;trip&gt; [--yes] | route &lt;from&gt; &lt;to&gt; [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]</translation>
    </message>
    <message id="client.err.nameMissing">
      <source>A client needs a name.</source>
      <translation>ลูกค้าต้องมีชื่อ</translation>
    </message>
    <message id="client.err.notCreated">
      <source>The client was not saved: you may not add clients to that team.</source>
      <translation>ไม่ได้บันทึกลูกค้า: คุณไม่มีสิทธิ์เพิ่มลูกค้าในทีมนั้น</translation>
    </message>
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>โหลดลูกค้าของคุณไม่ได้</translation>
    </message>
    <message id="client.err.notSaved">
      <source>The client was not changed: you may not edit it, or it no longer exists.</source>
      <translation>ไม่ได้เปลี่ยนข้อมูลลูกค้า: คุณไม่มีสิทธิ์แก้ไข หรือลูกค้ารายนี้ไม่มีอยู่แล้ว</translation>
    </message>
    <message id="config.source.environment">
      <source>environment</source>
      <translation>ตัวแปรสภาพแวดล้อม</translation>
    </message>
    <message id="config.source.local">
      <source>local backend</source>
      <translation>แบ็กเอนด์ในเครื่อง</translation>
    </message>
    <message id="config.source.settings">
      <source>application settings</source>
      <translation>การตั้งค่าแอป</translation>
    </message>
    <message id="entry.err.notLogged">
      <source>The time was not logged: you may not log time on this task, or it no longer exists.</source>
      <translation>ไม่ได้บันทึกเวลา: คุณไม่สามารถบันทึกเวลาในงานนี้ได้ หรืองานนี้ไม่มีอยู่แล้ว</translation>
    </message>
    <message id="entry.err.notSaved">
      <source>The time entry was not saved: it is not yours or it no longer exists.</source>
      <translation>ไม่ได้บันทึกรายการเวลา: ไม่ใช่ของคุณหรือไม่มีอยู่แล้ว</translation>
    </message>
    <message id="errEmailNotConfirmed">
      <source>Confirm your e-mail address first: follow the link in the mail we sent you.</source>
      <translation>โปรดยืนยันอีเมลของคุณก่อน โดยคลิกลิงก์ในอีเมลที่เราส่งให้</translation>
    </message>
    <message id="errEmailRateLimit">
      <source>Too many e-mails went to this address. Wait a minute, then try again.</source>
      <translation>มีอีเมลส่งไปยังที่อยู่นี้มากเกินไป โปรดรอหนึ่งนาทีแล้วลองอีกครั้ง</translation>
    </message>
    <message id="errInvalidCredentials">
      <source>The e-mail address or the password is not right.</source>
      <translation>อีเมลหรือรหัสผ่านไม่ถูกต้อง</translation>
    </message>
    <message id="inv.doc.amount">
      <source>Amount</source>
      <translation>จำนวนเงิน</translation>
    </message>
    <message id="inv.doc.amountDue">
      <source>Amount due</source>
      <translation>ยอดที่ต้องชำระ</translation>
    </message>
    <message id="inv.doc.bank">
      <source>Bank</source>
      <translation>ธนาคาร</translation>
    </message>
    <message id="inv.doc.billTo">
      <source>Bill to</source>
      <translation>เรียกเก็บจาก</translation>
    </message>
    <message id="inv.doc.description">
      <source>Description</source>
      <translation>รายการ</translation>
    </message>
    <message id="inv.doc.due">
      <source>Due date</source>
      <translation>วันครบกำหนด</translation>
    </message>
    <message id="inv.doc.from">
      <source>From</source>
      <translation>จาก</translation>
    </message>
    <message id="inv.doc.iban">
      <source>IBAN</source>
      <translation>IBAN</translation>
    </message>
    <message id="inv.doc.invoice">
      <source>Invoice</source>
      <translation>ใบแจ้งหนี้</translation>
    </message>
    <message id="inv.doc.issued">
      <source>Issue date</source>
      <translation>วันที่ออก</translation>
    </message>
    <message id="inv.doc.kvk">
      <source>Company no.</source>
      <translation>เลขทะเบียนนิติบุคคล</translation>
    </message>
    <message id="inv.doc.noVat">
      <source>No VAT on these lines</source>
      <translation>รายการเหล่านี้ไม่มีภาษีมูลค่าเพิ่ม</translation>
    </message>
    <message id="inv.doc.notes">
      <source>Notes</source>
      <translation>หมายเหตุ</translation>
    </message>
    <message id="inv.doc.number">
      <source>Invoice no.</source>
      <translation>เลขที่ใบแจ้งหนี้</translation>
    </message>
    <message id="inv.doc.payment">
      <source>Payment</source>
      <translation>การชำระเงิน</translation>
    </message>
    <message id="inv.doc.paymentNoTerm">
      <source>Please pay by bank transfer, quoting the invoice number.</source>
      <translation>กรุณาชำระโดยการโอนเงิน โดยระบุเลขที่ใบแจ้งหนี้</translation>
    </message>
    <message id="inv.doc.paymentTerms">
      <source>Please pay within %1 days, quoting the invoice number.</source>
      <translation>กรุณาชำระภายใน %1 วัน โดยระบุเลขที่ใบแจ้งหนี้</translation>
    </message>
    <message id="inv.doc.period">
      <source>Period</source>
      <translation>ช่วงเวลา</translation>
    </message>
    <message id="inv.doc.project">
      <source>Project</source>
      <translation>โครงการ</translation>
    </message>
    <message id="inv.doc.quantity">
      <source>Qty</source>
      <translation>จำนวน</translation>
    </message>
    <message id="inv.doc.rate">
      <source>Rate</source>
      <translation>ราคาต่อหน่วย</translation>
    </message>
    <message id="inv.doc.reference">
      <source>Reference</source>
      <translation>อ้างอิง</translation>
    </message>
    <message id="inv.doc.subtotal">
      <source>Subtotal</source>
      <translation>ยอดรวมก่อนภาษี</translation>
    </message>
    <message id="inv.doc.thanks">
      <source>Thank you for your business.</source>
      <translation>ขอบคุณที่ใช้บริการ</translation>
    </message>
    <message id="inv.doc.total">
      <source>Total</source>
      <translation>ยอดรวม</translation>
    </message>
    <message id="inv.doc.vatId">
      <source>VAT no.</source>
      <translation>เลขประจำตัวผู้เสียภาษี</translation>
    </message>
    <message id="inv.doc.vatRow">
      <source>VAT %1%</source>
      <translation>ภาษีมูลค่าเพิ่ม %1%</translation>
    </message>
    <message id="inv.doc.vatRowOver">
      <source>VAT %1% on %2</source>
      <translation>ภาษีมูลค่าเพิ่ม %1% จาก %2</translation>
    </message>
    <message id="inv.err.allocateNumber">
      <source>Allocate invoice number failed: %1</source>
      <translation>กำหนดเลขที่ใบแจ้งหนี้ไม่สำเร็จ: %1</translation>
    </message>
    <message id="inv.err.alreadyBilled">
      <source>Some of these hours are already on another invoice. The list was refreshed: check it and try again.</source>
      <translation>ชั่วโมงบางส่วนอยู่ในใบแจ้งหนี้อื่นแล้ว รายการได้รับการรีเฟรชแล้ว โปรดตรวจสอบและลองอีกครั้ง</translation>
    </message>
    <message id="inv.err.delete">
      <source>Delete invoice failed: %1</source>
      <translation>ลบใบแจ้งหนี้ไม่สำเร็จ: %1</translation>
    </message>
    <message id="inv.err.loadInvoices">
      <source>Load invoices failed: %1</source>
      <translation>โหลดใบแจ้งหนี้ไม่สำเร็จ: %1</translation>
    </message>
    <message id="inv.err.loadLines">
      <source>Load invoice lines failed: %1</source>
      <translation>โหลดรายการในใบแจ้งหนี้ไม่สำเร็จ: %1</translation>
    </message>
    <message id="inv.err.notReady">
      <source>Still reading what was billed before.</source>
      <translation>กำลังอ่านสิ่งที่เคยเรียกเก็บเงินแล้ว</translation>
    </message>
    <message id="inv.err.pdfLink">
      <source>The invoice PDF could not be opened: %1</source>
      <translation>ไม่สามารถเปิด PDF ของใบแจ้งหนี้ได้: %1</translation>
    </message>
    <message id="inv.err.pdfReplace">
      <source>The invoice PDF could not be replaced: %1</source>
      <translation>ไม่สามารถแทนที่ PDF ของใบแจ้งหนี้ได้: %1</translation>
    </message>
    <message id="inv.err.priorBilling">
      <source>Could not read which work was billed before. Billing waits until this works, so no fixed price or extra is billed twice.</source>
      <translation>ไม่สามารถอ่านงานที่เคยเรียกเก็บเงินแล้วได้ การเรียกเก็บเงินจะรอจนกว่าจะอ่านได้ เพื่อไม่ให้ราคาคงที่หรือค่าใช้จ่ายเพิ่มเติมถูกเรียกเก็บซ้ำ</translation>
    </message>
    <message id="inv.err.saveFailed">
      <source>Save invoice failed: %1</source>
      <translation>บันทึกใบแจ้งหนี้ไม่สำเร็จ: %1</translation>
    </message>
    <message id="inv.err.unbilled">
      <source>Could not read which time is still unbilled.</source>
      <translation>ไม่สามารถอ่านเวลาที่ยังไม่ได้เรียกเก็บเงินได้</translation>
    </message>
    <message id="inv.err.updateStatus">
      <source>Update invoice status failed: %1</source>
      <translation>อัปเดตสถานะใบแจ้งหนี้ไม่สำเร็จ: %1</translation>
    </message>
    <message id="inv.err.voidFailed">
      <source>Voiding the invoice failed: %1</source>
      <translation>ยกเลิกใบแจ้งหนี้ไม่สำเร็จ: %1</translation>
    </message>
    <message id="inv.err.voidUnavailable">
      <source>Voiding is not available yet because the server has not been updated. Try again later.</source>
      <translation>ยังยกเลิกไม่ได้เพราะเซิร์ฟเวอร์ยังไม่ได้อัปเดต โปรดลองอีกครั้งภายหลัง</translation>
    </message>
    <message id="inv.extrasBilledBefore">
      <source>extras already billed</source>
      <translation>เรียกเก็บค่าใช้จ่ายเพิ่มเติมแล้ว</translation>
    </message>
    <message id="inv.followUp">
      <source>FOLLOW-UP</source>
      <translation>งานต่อเนื่อง</translation>
    </message>
    <message id="inv.inProjectPrice">
      <source>included in the project price</source>
      <translation>รวมอยู่ในราคาโครงการ</translation>
    </message>
    <message id="inv.leftOut.many">
      <source>%1 time entries already billed, left out</source>
      <translation>%1 รายการเวลาถูกเรียกเก็บเงินแล้ว จึงไม่รวม</translation>
    </message>
    <message id="inv.leftOut.one">
      <source>1 time entry already billed, left out</source>
      <translation>1 รายการเวลาถูกเรียกเก็บเงินแล้ว จึงไม่รวม</translation>
    </message>
    <message id="inv.line.discount">
      <source>Discount</source>
      <translation>ส่วนลด</translation>
    </message>
    <message id="inv.line.fixedPrice">
      <source>fixed price</source>
      <translation>ราคาเหมา</translation>
    </message>
    <message id="inv.line.materials">
      <source>Materials</source>
      <translation>ค่าวัสดุ</translation>
    </message>
    <message id="inv.line.minimum">
      <source>Minimum charge</source>
      <translation>ค่าบริการขั้นต่ำ</translation>
    </message>
    <message id="inv.line.projectPrice">
      <source>Project price</source>
      <translation>ราคาโครงการ</translation>
    </message>
    <message id="inv.line.surcharge">
      <source>Call-out fee</source>
      <translation>ค่าเดินทาง</translation>
    </message>
    <message id="inv.oncePerProject">
      <source>once per project</source>
      <translation>ครั้งเดียวต่อโครงการ</translation>
    </message>
    <message id="inv.onlyNewTime">
      <source>new time only</source>
      <translation>เฉพาะเวลาใหม่</translation>
    </message>
    <message id="inv.pdf.err.load">
      <source>The invoice page could not be loaded.</source>
      <translation>ไม่สามารถโหลดหน้าใบแจ้งหนี้ได้</translation>
    </message>
    <message id="inv.pdf.err.paging">
      <source>The invoice could not be laid out in pages.</source>
      <translation>ไม่สามารถจัดหน้าใบแจ้งหนี้ได้</translation>
    </message>
    <message id="inv.pdf.err.print">
      <source>The PDF of the invoice could not be made.</source>
      <translation>ไม่สามารถสร้าง PDF ของใบแจ้งหนี้ได้</translation>
    </message>
    <message id="inv.pdf.err.spill">
      <source>The invoice page could not be written to a temporary file: %1</source>
      <translation>ไม่สามารถเขียนหน้าใบแจ้งหนี้ลงในไฟล์ชั่วคราวได้: %1</translation>
    </message>
    <message id="inv.pdf.err.timeout">
      <source>The invoice page did not finish loading within %1 seconds.</source>
      <translation>หน้าใบแจ้งหนี้โหลดไม่เสร็จภายใน %1 วินาที</translation>
    </message>
    <message id="inv.priceBilledBefore">
      <source>fixed price already billed</source>
      <translation>เรียกเก็บราคาเหมาแล้ว</translation>
    </message>
    <message id="inv.projectExtras">
      <source>Project extras</source>
      <translation>ค่าใช้จ่ายเพิ่มเติมของโครงการ</translation>
    </message>
    <message id="inv.rebill">
      <source>Bill again</source>
      <translation>เรียกเก็บอีกครั้ง</translation>
    </message>
    <message id="inv.rebillHelp">
      <source>This work was billed before. Its fixed or per-unit price, minimum charge, call-out fee, materials and a fixed discount are billed once. Turn this on to bill them again.</source>
      <translation>งานนี้เคยเรียกเก็บเงินแล้ว ราคาเหมาหรือราคาต่อหน่วย ค่าบริการขั้นต่ำ ค่าเดินทาง ค่าวัสดุ และส่วนลดแบบจำนวนเงินจะเรียกเก็บเพียงครั้งเดียว เปิดตัวเลือกนี้เพื่อเรียกเก็บอีกครั้ง</translation>
    </message>
    <message id="inv.saved">
      <source>Invoice %1 saved</source>
      <translation>บันทึกใบแจ้งหนี้ %1 แล้ว</translation>
    </message>
    <message id="inv.style.colour.invalid">
      <source>“%1” is no colour: write it as #rgb or #rrggbb, for example #0f766e.</source>
      <translation>“%1” ไม่ใช่สี โปรดเขียนในรูปแบบ #rgb หรือ #rrggbb เช่น #0f766e</translation>
    </message>
    <message id="inv.style.file.unreadable">
      <source>The file could not be opened.</source>
      <translation>เปิดไฟล์ไม่ได้</translation>
    </message>
    <message id="inv.style.font.invalid">
      <source>A font name holds only letters, digits, blanks and hyphens.</source>
      <translation>ชื่อฟอนต์มีได้เฉพาะตัวอักษร ตัวเลข ช่องว่าง และยัติภังค์</translation>
    </message>
    <message id="inv.style.logo.damaged">
      <source>The image could not be read; the file may be damaged.</source>
      <translation>อ่านรูปภาพไม่ได้ ไฟล์อาจเสียหาย</translation>
    </message>
    <message id="inv.style.logo.empty">
      <source>The file is empty.</source>
      <translation>ไฟล์ว่างเปล่า</translation>
    </message>
    <message id="inv.style.logo.kind">
      <source>The logo must be a PNG or JPEG image.</source>
      <translation>โลโก้ต้องเป็นรูปภาพ PNG หรือ JPEG</translation>
    </message>
    <message id="inv.style.logo.svg">
      <source>SVG logos are not accepted, since a drawing can carry scripts and links. Pick a PNG or JPEG.</source>
      <translation>ไม่รับโลโก้แบบ SVG เพราะภาพวาดอาจมีสคริปต์และลิงก์แฝงอยู่ โปรดเลือกไฟล์ PNG หรือ JPEG</translation>
    </message>
    <message id="inv.style.logo.tooLarge">
      <source>The logo is larger than 1 MB. Pick a smaller PNG or JPEG.</source>
      <translation>โลโก้มีขนาดเกิน 1 MB โปรดเลือกไฟล์ PNG หรือ JPEG ที่เล็กกว่านี้</translation>
    </message>
    <message id="inv.style.template.empty">
      <source>The template is empty.</source>
      <translation>เทมเพลตว่างเปล่า</translation>
    </message>
    <message id="inv.style.template.noDoctype">
      <source>The template must start with &lt;!doctype html&gt;.</source>
      <translation>เทมเพลตต้องขึ้นต้นด้วย &lt;!doctype html&gt;</translation>
    </message>
    <message id="inv.style.template.noFooter">
      <source>The template has no &lt;footer&gt; element.</source>
      <translation>เทมเพลตไม่มีองค์ประกอบ &lt;footer&gt;</translation>
    </message>
    <message id="inv.style.template.noHeader">
      <source>The template has no &lt;header&gt; element.</source>
      <translation>เทมเพลตไม่มีองค์ประกอบ &lt;header&gt;</translation>
    </message>
    <message id="inv.style.template.notText">
      <source>The template is not a text file in UTF-8.</source>
      <translation>เทมเพลตไม่ใช่ไฟล์ข้อความแบบ UTF-8</translation>
    </message>
    <message id="inv.style.template.pageSize">
      <source>The template must fix the page at 794 × 1123 px (A4), with both sizes in its style sheet.</source>
      <translation>เทมเพลตต้องกำหนดหน้าไว้ที่ 794 × 1123 px (A4) โดยระบุทั้งสองขนาดในสไตล์ชีต</translation>
    </message>
    <message id="inv.style.template.tooLarge">
      <source>The template is larger than 512 KB.</source>
      <translation>เทมเพลตมีขนาดเกิน 512 KB</translation>
    </message>
    <message id="inv.subtotal">
      <source>Subtotal</source>
      <translation>ยอดรวมก่อนภาษี</translation>
    </message>
    <message id="inv.total">
      <source>Total</source>
      <translation>ยอดรวม</translation>
    </message>
    <message id="inv.unit.days">
      <source>day</source>
      <translation>วัน</translation>
    </message>
    <message id="inv.unit.hours">
      <source>h</source>
      <translation>ชม.</translation>
    </message>
    <message id="inv.unit.units">
      <source>unit</source>
      <translation>หน่วย</translation>
    </message>
    <message id="inv.vat.hint">
      <source>Each line uses the VAT rate of its price settings, else the template's rate.</source>
      <translation>แต่ละรายการใช้อัตราภาษีมูลค่าเพิ่มจากการตั้งราคาของรายการนั้น หากไม่มีจะใช้อัตราของเทมเพลต</translation>
    </message>
    <message id="inv.vat.none">
      <source>No VAT on these lines</source>
      <translation>รายการเหล่านี้ไม่มีภาษีมูลค่าเพิ่ม</translation>
    </message>
    <message id="inv.vat.override">
      <source>Set VAT manually</source>
      <translation>กำหนดภาษีมูลค่าเพิ่มเอง</translation>
    </message>
    <message id="inv.vat.row">
      <source>VAT %1%</source>
      <translation>ภาษีมูลค่าเพิ่ม %1%</translation>
    </message>
    <message id="inv.vat.rowOver">
      <source>VAT %1% on %2</source>
      <translation>ภาษีมูลค่าเพิ่ม %1% จาก %2</translation>
    </message>
    <message id="inviteAlreadyMember">
      <source>%1 is already in this team.</source>
      <translation>%1 อยู่ในทีมนี้แล้ว</translation>
    </message>
    <message id="inviteFailed">
      <source>Could not send the invite. Try again.</source>
      <translation>ส่งคำเชิญไม่ได้ โปรดลองอีกครั้ง</translation>
    </message>
    <message id="inviteNoAccount">
      <source>No Morvane account uses that email yet. Ask them to sign up first.</source>
      <translation>ยังไม่มีบัญชี Morvane ที่ใช้อีเมลนี้ โปรดขอให้เขาสมัครสมาชิกก่อน</translation>
    </message>
    <message id="inviteNotAllowed">
      <source>Only the team owner and editors can invite people.</source>
      <translation>เฉพาะเจ้าของทีมและผู้แก้ไขเท่านั้นที่เชิญคนอื่นได้</translation>
    </message>
    <message id="inviteRateLimited">
      <source>You have sent many invitations in the last hour. Try again later.</source>
      <translation>คุณส่งคำเชิญจำนวนมากในชั่วโมงที่ผ่านมา โปรดลองอีกครั้งภายหลัง</translation>
    </message>
    <message id="inviteSent">
      <source>%1 is invited to this team.</source>
      <translation>เชิญ %1 เข้าทีมนี้แล้ว</translation>
    </message>
    <message id="inviteTeamFull">
      <source>This team is full: it already has 10 members, the maximum.</source>
      <translation>ทีมนี้เต็มแล้ว: มีสมาชิกครบ 10 คนซึ่งเป็นจำนวนสูงสุด</translation>
    </message>
    <message id="inviteUnavailable">
      <source>Inviting by email is not available yet. Try again later.</source>
      <translation>ยังเชิญทางอีเมลไม่ได้ในขณะนี้ โปรดลองอีกครั้งในภายหลัง</translation>
    </message>
    <message id="invoiceErrTripsTaken">
      <source>Some of these trips are already on another invoice. Refresh and try again.</source>
      <translation>การเดินทางบางรายการอยู่ในใบแจ้งหนี้อื่นแล้ว โปรดรีเฟรชและลองอีกครั้ง</translation>
    </message>
    <message id="invoiceErrVoidFinal">
      <source>This invoice is void. A void invoice cannot be changed back.</source>
      <translation>ใบแจ้งหนี้นี้ถูกยกเลิกแล้ว ใบแจ้งหนี้ที่ยกเลิกแล้วไม่สามารถเปลี่ยนกลับได้</translation>
    </message>
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>สร้างด้วย Morvane</translation>
    </message>
    <message id="invoicePeriodLast30">
      <source>Last 30 days</source>
      <translation>30 วันที่ผ่านมา</translation>
    </message>
    <message id="invoicePeriodLast7">
      <source>Last 7 days</source>
      <translation>7 วันที่ผ่านมา</translation>
    </message>
    <message id="invoicePeriodLastMonth">
      <source>Last month</source>
      <translation>เดือนที่แล้ว</translation>
    </message>
    <message id="invoicePeriodThisMonth">
      <source>This month</source>
      <translation>เดือนนี้</translation>
    </message>
    <message id="invoiceTravelInclude">
      <source>Charge travel</source>
      <translation>เรียกเก็บค่าเดินทาง</translation>
    </message>
    <message id="localServer.err.dataFolder">
      <source>Cannot write the local backend's data folder %1.</source>
      <translation>เขียนลงโฟลเดอร์ข้อมูล %1 ของแบ็กเอนด์ในเครื่องไม่ได้</translation>
    </message>
    <message id="localServer.err.exited">
      <source>The local backend stopped before it was ready (log: %1).</source>
      <translation>แบ็กเอนด์ในเครื่องหยุดทำงานก่อนจะพร้อม (บันทึก: %1)</translation>
    </message>
    <message id="localServer.err.launch">
      <source>Cannot run the local backend %1.</source>
      <translation>เรียกใช้แบ็กเอนด์ในเครื่อง %1 ไม่ได้</translation>
    </message>
    <message id="localServer.err.noProgram">
      <source>Cannot find the local backend: %1 is neither next to Morvane nor on the PATH.</source>
      <translation>ไม่พบแบ็กเอนด์ในเครื่อง: ไม่มี %1 อยู่ข้าง Morvane หรือใน PATH</translation>
    </message>
    <message id="localServer.err.notReady">
      <source>The local backend was not ready within %1 seconds (log: %2).</source>
      <translation>แบ็กเอนด์ในเครื่องไม่พร้อมภายใน %1 วินาที (บันทึก: %2)</translation>
    </message>
    <message id="localServer.err.wouldNotStop">
      <source>The local backend (process %1) did not stop within %2 seconds.</source>
      <translation>แบ็กเอนด์ในเครื่อง (โปรเซส %1) ไม่หยุดภายใน %2 วินาที</translation>
    </message>
    <message id="net.err.connection">
      <source>Could not reach the server: %1</source>
      <translation>ไม่สามารถเชื่อมต่อเซิร์ฟเวอร์ได้: %1</translation>
    </message>
    <message id="net.err.offline">
      <source>The Internet connection appears to be offline.</source>
      <translation>ดูเหมือนว่าการเชื่อมต่ออินเทอร์เน็ตจะออฟไลน์อยู่</translation>
    </message>
    <message id="net.err.timeout">
      <source>The request timed out.</source>
      <translation>คำขอหมดเวลา</translation>
    </message>
    <message id="onboarding.err.notSaved">
      <source>Your first-run answers were not saved yet. Morvane tries again at the next sign-in.</source>
      <translation>คำตอบจากการตั้งค่าครั้งแรกยังไม่ได้บันทึก Morvane จะลองใหม่เมื่อคุณลงชื่อเข้าใช้ครั้งถัดไป</translation>
    </message>
    <message id="profile.err.notSaved">
      <source>Your profile was not saved. Try again.</source>
      <translation>บันทึกโปรไฟล์ของคุณไม่ได้ โปรดลองอีกครั้ง</translation>
    </message>
    <message id="project.err.notCreated">
      <source>The project was not created: you may not add projects to that team.</source>
      <translation>ไม่ได้สร้างโปรเจกต์: คุณไม่มีสิทธิ์เพิ่มโปรเจกต์ในทีมนั้น</translation>
    </message>
    <message id="project.err.notSaved">
      <source>The project was not changed: you may not edit it, or it no longer exists.</source>
      <translation>ไม่ได้เปลี่ยนโปรเจกต์: คุณไม่มีสิทธิ์แก้ไข หรือโปรเจกต์นี้ไม่มีอยู่แล้ว</translation>
    </message>
    <message id="project.err.teamNotChanged">
      <source>The project's team was not changed: only its creator and the team's owners and editors can move it.</source>
      <translation>ไม่ได้เปลี่ยนทีมของโปรเจกต์: เฉพาะผู้สร้างโปรเจกต์ รวมถึงเจ้าของและผู้แก้ไขของทีมเท่านั้นที่ย้ายได้</translation>
    </message>
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>เกิดข้อผิดพลาด โปรดลองอีกครั้ง</translation>
    </message>
    <message id="store.err.loadFailed">
      <source>Your data could not be loaded. Morvane tries again shortly.</source>
      <translation>โหลดข้อมูลของคุณไม่ได้ Morvane จะลองใหม่ในอีกสักครู่</translation>
    </message>
    <message id="store.err.writeFailed">
      <source>The change could not be saved. Check the connection and try again.</source>
      <translation>บันทึกการเปลี่ยนแปลงไม่ได้ โปรดตรวจสอบการเชื่อมต่อแล้วลองอีกครั้ง</translation>
    </message>
    <message id="store.style.err.notLoaded">
      <source>Your invoice style could not be loaded.</source>
      <translation>โหลดรูปแบบใบแจ้งหนี้ของคุณไม่ได้</translation>
    </message>
    <message id="store.style.err.notSaved">
      <source>The invoice style was not saved: you may not change this template, or it no longer exists.</source>
      <translation>ไม่ได้บันทึกรูปแบบใบแจ้งหนี้ คุณอาจไม่มีสิทธิ์แก้ไขเทมเพลตนี้ หรือเทมเพลตนี้ไม่มีอยู่แล้ว</translation>
    </message>
    <message id="supabase.err.decoding">
      <source>Decode: %1</source>
      <translation>ถอดรหัส: %1</translation>
    </message>
    <message id="supabase.err.http">
      <source>HTTP %1: %2</source>
      <translation>HTTP %1: %2</translation>
    </message>
    <message id="supabase.err.invalidURL">
      <source>Invalid URL</source>
      <translation>URL ไม่ถูกต้อง</translation>
    </message>
    <message id="supabase.err.noAuth">
      <source>Not signed in.</source>
      <translation>ยังไม่ได้ลงชื่อเข้าใช้</translation>
    </message>
    <message id="task.custom">
      <source>Custom for this task</source>
      <translation>กำหนดเองสำหรับงานนี้</translation>
    </message>
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>ไม่ได้สร้างงาน: คุณไม่มีสิทธิ์เพิ่มงานในโปรเจกต์นี้</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>ไม่ได้เปลี่ยนงาน: คุณไม่มีสิทธิ์แก้ไข หรืองานนี้ไม่มีอยู่แล้ว</translation>
    </message>
    <message id="task.inheritedFrom">
      <source>Inherited from %1</source>
      <translation>ใช้ตาม %1</translation>
    </message>
    <message id="task.savePrice">
      <source>Save task price</source>
      <translation>บันทึกราคางาน</translation>
    </message>
    <message id="task.useProject">
      <source>Use project price</source>
      <translation>ใช้ราคาของโปรเจกต์</translation>
    </message>
    <message id="team.err.invitationNotAnswered">
      <source>The invitation could not be answered. Try again.</source>
      <translation>ไม่สามารถตอบคำเชิญได้ โปรดลองอีกครั้ง</translation>
    </message>
    <message id="team.err.memberNotChanged">
      <source>The member was not changed: only the team owner can change roles and remove people.</source>
      <translation>ไม่ได้เปลี่ยนสมาชิก: เฉพาะเจ้าของทีมเท่านั้นที่เปลี่ยนบทบาทและนำคนออกได้</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>สร้างทีมไม่ได้ โปรดลองอีกครั้ง</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>โหลดทีมของคุณไม่ได้</translation>
    </message>
    <message id="time.hoursMinutes">
      <source>%1h %2m</source>
      <translation>%1 ชม. %2 นาที</translation>
    </message>
    <message id="time.minutes">
      <source>%1m</source>
      <translation>%1 นาที</translation>
    </message>
    <message id="timer.err.notStopped">
      <source>The time could not be logged, so the timer keeps running. Try stopping it again.</source>
      <translation>บันทึกเวลาไม่ได้ ตัวจับเวลาจึงยังทำงานต่อ ลองหยุดอีกครั้ง</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>ตัวจับเวลาของงานนี้เริ่มบนอุปกรณ์อื่น จึงไม่ได้เปลี่ยนสถานะของงาน</translation>
    </message>
    <message id="travelDescribeMany">
      <source>%1 km in %2 trips</source>
      <translation>%1 กม. ใน %2 เที่ยว</translation>
    </message>
    <message id="travelDescribeOne">
      <source>%1 km in 1 trip</source>
      <translation>%1 กม. ใน 1 เที่ยว</translation>
    </message>
    <message id="travelKm">
      <source>km</source>
      <translation>กม.</translation>
    </message>
    <message id="travelTitle">
      <source>Travel</source>
      <translation>ค่าเดินทาง</translation>
    </message>
    <message id="travelTrip">
      <source>trip</source>
      <translation>เที่ยว</translation>
    </message>
    <message id="trip.err.notLoaded">
      <source>Your trips could not be loaded. Check your connection and try again.</source>
      <translation>โหลดการเดินทางไม่ได้ ตรวจสอบการเชื่อมต่อแล้วลองอีกครั้ง</translation>
    </message>
    <message id="trip.err.notSaved">
      <source>The trip was not saved: it no longer exists or you may not change it.</source>
      <translation>ไม่ได้บันทึกการเดินทาง: ไม่มีอยู่แล้วหรือคุณไม่มีสิทธิ์แก้ไข</translation>
    </message>
    <message id="trip.err.settingsNotSaved">
      <source>Your travel settings were not saved.</source>
      <translation>ไม่ได้บันทึกการตั้งค่าการเดินทาง</translation>
    </message>
    <message id="tripDeleteConfirm">
      <source>Delete this trip? This cannot be undone.</source>
      <translation>ลบการเดินทางนี้หรือไม่ ย้อนกลับไม่ได้</translation>
    </message>
    <message id="tripDistanceByRoad">
      <source>Distance by road, about %1 min. Change it if you went another way.</source>
      <translation>ระยะทางตามถนน ประมาณ %1 นาที แก้ไขได้หากคุณไปทางอื่น</translation>
    </message>
    <message id="tripDistanceEstimate">
      <source>Kilometres are an estimate from the addresses; change them if needed.</source>
      <translation>กิโลเมตรเป็นค่าประมาณจากที่อยู่ แก้ไขได้หากจำเป็น</translation>
    </message>
    <message id="tripErrNoService">
      <source>No routing or address service is set up.</source>
      <translation>ยังไม่ได้ตั้งค่าบริการเส้นทางหรือที่อยู่</translation>
    </message>
    <message id="tripErrNotFound">
      <source>No place or route was found for this.</source>
      <translation>ไม่พบสถานที่หรือเส้นทาง</translation>
    </message>
    <message id="tripInProgress">
      <source>Trip in progress</source>
      <translation>กำลังเดินทาง</translation>
    </message>
    <message id="tripSearchFailed">
      <source>Searching did not work. Check your connection and try again.</source>
      <translation>ค้นหาไม่สำเร็จ ตรวจสอบการเชื่อมต่อแล้วลองอีกครั้ง</translation>
    </message>
    <message id="tripsEmpty">
      <source>No trips yet. Trips your phone records while a timer runs show up here. You can also add a trip by hand.</source>
      <translation>ยังไม่มีการเดินทาง การเดินทางที่โทรศัพท์บันทึกขณะจับเวลาจะแสดงที่นี่ คุณเพิ่มเองได้ด้วย</translation>
    </message>
    <message id="ui.action.floatingTimer">
      <source>Show or hide the floating timer</source>
      <translation>แสดงหรือซ่อนตัวจับเวลาแบบลอย</translation>
    </message>
    <message id="ui.action.newProject">
      <source>New project</source>
      <translation>โปรเจกต์ใหม่</translation>
    </message>
    <message id="ui.action.newTask">
      <source>New task</source>
      <translation>งานใหม่</translation>
    </message>
    <message id="ui.action.newTeam">
      <source>New team</source>
      <translation>ทีมใหม่</translation>
    </message>
    <message id="ui.action.quickAdd">
      <source>Quick add: a sentence becomes work…</source>
      <translation>เพิ่มด่วน: เปลี่ยนประโยคเป็นงาน…</translation>
    </message>
    <message id="ui.action.settings">
      <source>Settings</source>
      <translation>การตั้งค่า</translation>
    </message>
    <message id="ui.action.signOut">
      <source>Sign out</source>
      <translation>ออกจากระบบ</translation>
    </message>
    <message id="ui.action.toggleTheme">
      <source>Switch between light and dark</source>
      <translation>สลับโหมดสว่างและมืด</translation>
    </message>
    <message id="ui.action.toggleTimer">
      <source>Start or stop the timer</source>
      <translation>เริ่มหรือหยุดตัวจับเวลา</translation>
    </message>
    <message id="ui.ai.anthropic">
      <source>Anthropic API with your key</source>
      <translation>Anthropic API ด้วยคีย์ของคุณ</translation>
    </message>
    <message id="ui.ai.anthropicHelp">
      <source>Straight to Anthropic with the key you keep in your keyring.</source>
      <translation>ส่งตรงไปยัง Anthropic ด้วยคีย์ในพวงกุญแจของคุณ</translation>
    </message>
    <message id="ui.ai.auto">
      <source>Automatic (recommended)</source>
      <translation>อัตโนมัติ (แนะนำ)</translation>
    </message>
    <message id="ui.ai.autoHelp">
      <source>The Claude CLI first; without it, Morvane AI in the cloud.</source>
      <translation>ใช้ Claude CLI ก่อน ถ้าไม่มีใช้ Morvane AI บนคลาวด์</translation>
    </message>
    <message id="ui.ai.cli">
      <source>Claude CLI only</source>
      <translation>Claude CLI เท่านั้น</translation>
    </message>
    <message id="ui.ai.cliHelp">
      <source>Everything local through your own Claude subscription. No network.</source>
      <translation>ทั้งหมดทำในเครื่องผ่านการสมัคร Claude ของคุณเอง ไม่ใช้เครือข่าย</translation>
    </message>
    <message id="ui.ai.consentAllow">
      <source>Allowed</source>
      <translation>อนุญาต</translation>
    </message>
    <message id="ui.ai.consentAsk">
      <source>Ask first</source>
      <translation>ถามก่อน</translation>
    </message>
    <message id="ui.ai.consentDeny">
      <source>Never send</source>
      <translation>ไม่ส่งเลย</translation>
    </message>
    <message id="ui.ai.consents">
      <source>Sending text off this computer</source>
      <translation>การส่งข้อความออกจากคอมพิวเตอร์นี้</translation>
    </message>
    <message id="ui.ai.gemini">
      <source>Google Gemini API with your key</source>
      <translation>Google Gemini API ด้วยคีย์ของคุณ</translation>
    </message>
    <message id="ui.ai.geminiHelp">
      <source>Straight to Google with the key you keep in your keyring.</source>
      <translation>ส่งตรงไปยัง Google ด้วยคีย์ในพวงกุญแจของคุณ</translation>
    </message>
    <message id="ui.ai.keyFailed">
      <source>The keyring did not take the change; nothing changed.</source>
      <translation>พวงกุญแจไม่รับการเปลี่ยนแปลง ไม่มีอะไรเปลี่ยน</translation>
    </message>
    <message id="ui.ai.keyInvalid">
      <source>That does not look like an API key: paste the key alone, without spaces.</source>
      <translation>ดูไม่เหมือนคีย์ API วางเฉพาะคีย์โดยไม่มีช่องว่าง</translation>
    </message>
    <message id="ui.ai.keyName">
      <source>API key for %1</source>
      <translation>คีย์ API สำหรับ %1</translation>
    </message>
    <message id="ui.ai.keyPaste">
      <source>Paste your API key</source>
      <translation>วางคีย์ API ของคุณ</translation>
    </message>
    <message id="ui.ai.keyRemove">
      <source>Remove</source>
      <translation>ลบ</translation>
    </message>
    <message id="ui.ai.keySave">
      <source>Save key</source>
      <translation>บันทึกคีย์</translation>
    </message>
    <message id="ui.ai.keyStored">
      <source>A key is stored; paste another to replace it</source>
      <translation>มีคีย์เก็บไว้แล้ว วางคีย์ใหม่เพื่อแทนที่</translation>
    </message>
    <message id="ui.ai.keys">
      <source>Your own API keys (kept in the keyring)</source>
      <translation>คีย์ API ของคุณเอง (เก็บในพวงกุญแจ)</translation>
    </message>
    <message id="ui.ai.openai">
      <source>OpenAI API with your key</source>
      <translation>OpenAI API ด้วยคีย์ของคุณ</translation>
    </message>
    <message id="ui.ai.openaiHelp">
      <source>Straight to OpenAI with the key you keep in your keyring.</source>
      <translation>ส่งตรงไปยัง OpenAI ด้วยคีย์ในพวงกุญแจของคุณ</translation>
    </message>
    <message id="ui.ai.relay">
      <source>Morvane AI only</source>
      <translation>Morvane AI เท่านั้น</translation>
    </message>
    <message id="ui.ai.relayHelp">
      <source>Always through the secured relay of your Morvane server. The CLI is ignored.</source>
      <translation>ผ่านตัวส่งต่อที่ปลอดภัยของเซิร์ฟเวอร์ Morvane เสมอ ไม่ใช้ CLI</translation>
    </message>
    <message id="ui.ai.route">
      <source>Where model calls go</source>
      <translation>ส่งคำขอโมเดลไปที่ใด</translation>
    </message>
    <message id="ui.assistant.add">
      <source>Add</source>
      <translation>เพิ่ม</translation>
    </message>
    <message id="ui.assistant.clarify">
      <source>Which task? None of your tasks is called "%1", or several are. Say it as the task list shows it.</source>
      <translation>งานไหน? ไม่มีงานชื่อ "%1" หรือมีหลายงาน ระบุตามที่แสดงในรายการงาน</translation>
    </message>
    <message id="ui.assistant.consentNo">
      <source>Don't send</source>
      <translation>ไม่ส่ง</translation>
    </message>
    <message id="ui.assistant.consentOnce">
      <source>Morvane asks once for this route and remembers your answer. You can change it in the settings.</source>
      <translation>Morvane จะถามครั้งเดียวสำหรับช่องทางนี้และจำคำตอบไว้ คุณเปลี่ยนได้ในการตั้งค่า</translation>
    </message>
    <message id="ui.assistant.consentTitle">
      <source>Send your text to %1?</source>
      <translation>ส่งข้อความของคุณไปยัง %1 หรือไม่?</translation>
    </message>
    <message id="ui.assistant.consentYes">
      <source>Send</source>
      <translation>ส่ง</translation>
    </message>
    <message id="ui.assistant.empty">
      <source>Type a sentence in your own words: new projects and tasks, time you spent, or start and stop the timer.</source>
      <translation>พิมพ์ประโยคด้วยคำพูดของคุณเอง: โปรเจกต์และงานใหม่ เวลาที่ใช้ หรือเริ่มและหยุดตัวจับเวลา</translation>
    </message>
    <message id="ui.assistant.notUnderstood">
      <source>The sentence could not be read: %1</source>
      <translation>อ่านประโยคไม่ได้: %1</translation>
    </message>
    <message id="ui.assistant.placeholder">
      <source>Say what to add, e.g. “Logo design for Acme, 3 hours yesterday”</source>
      <translation>บอกสิ่งที่จะเพิ่ม เช่น “ออกแบบโลโก้ให้ Acme เมื่อวาน 3 ชั่วโมง”</translation>
    </message>
    <message id="ui.assistant.reading">
      <source>Reading your sentence…</source>
      <translation>กำลังอ่านประโยคของคุณ…</translation>
    </message>
    <message id="ui.assistant.title">
      <source>Quick add</source>
      <translation>เพิ่มด่วน</translation>
    </message>
    <message id="ui.assistant.tooLong">
      <source>That is more than a sentence or two. Say what to add in a few lines.</source>
      <translation>ยาวเกินหนึ่งหรือสองประโยค บอกสิ่งที่จะเพิ่มในไม่กี่บรรทัด</translation>
    </message>
    <message id="ui.auth.aboutYou">
      <source>A little about you</source>
      <translation>เกี่ยวกับคุณสักเล็กน้อย</translation>
    </message>
    <message id="ui.auth.confirmBody">
      <source>We sent a confirmation link to %1. Open it, then sign in here.</source>
      <translation>เราส่งลิงก์ยืนยันไปที่ %1 แล้ว เปิดลิงก์นั้น แล้วลงชื่อเข้าใช้ที่นี่</translation>
    </message>
    <message id="ui.auth.confirmResent">
      <source>We sent a new confirmation link to %1.</source>
      <translation>เราส่งลิงก์ยืนยันใหม่ไปที่ %1 แล้ว</translation>
    </message>
    <message id="ui.auth.confirmSent">
      <source>We sent a link to %1. Open it to confirm your address, then sign in.</source>
      <translation>เราส่งลิงก์ไปที่ %1 แล้ว เปิดลิงก์เพื่อยืนยันอีเมลของคุณ แล้วลงชื่อเข้าใช้</translation>
    </message>
    <message id="ui.auth.confirmTitle">
      <source>Confirm your e-mail</source>
      <translation>ยืนยันอีเมลของคุณ</translation>
    </message>
    <message id="ui.auth.continueAs">
      <source>Continue as %1</source>
      <translation>ดำเนินการต่อในชื่อ %1</translation>
    </message>
    <message id="ui.auth.continueWith">
      <source>Continue with %1</source>
      <translation>ดำเนินการต่อด้วย %1</translation>
    </message>
    <message id="ui.auth.createAccount">
      <source>Create your account</source>
      <translation>สร้างบัญชีของคุณ</translation>
    </message>
    <message id="ui.auth.email">
      <source>E-mail</source>
      <translation>อีเมล</translation>
    </message>
    <message id="ui.auth.forgot">
      <source>Forgot password?</source>
      <translation>ลืมรหัสผ่านใช่ไหม</translation>
    </message>
    <message id="ui.auth.getStarted">
      <source>Get started</source>
      <translation>เริ่มต้นใช้งาน</translation>
    </message>
    <message id="ui.auth.haveAccount">
      <source>I already have an account</source>
      <translation>ฉันมีบัญชีอยู่แล้ว</translation>
    </message>
    <message id="ui.auth.password">
      <source>Password</source>
      <translation>รหัสผ่าน</translation>
    </message>
    <message id="ui.auth.passwordHint">
      <source>At least 8 characters.</source>
      <translation>อย่างน้อย 8 ตัวอักษร</translation>
    </message>
    <message id="ui.auth.rememberMe">
      <source>Remember me on this computer</source>
      <translation>จดจำฉันไว้ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message id="ui.auth.resend">
      <source>Send the link again</source>
      <translation>ส่งลิงก์อีกครั้ง</translation>
    </message>
    <message id="ui.auth.resetSent">
      <source>Check your inbox for the reset link.</source>
      <translation>ตรวจสอบกล่องจดหมายของคุณเพื่อดูลิงก์รีเซ็ต</translation>
    </message>
    <message id="ui.auth.resetTitle">
      <source>Reset your password</source>
      <translation>รีเซ็ตรหัสผ่าน</translation>
    </message>
    <message id="ui.auth.sendReset">
      <source>Send the reset link</source>
      <translation>ส่งลิงก์รีเซ็ต</translation>
    </message>
    <message id="ui.auth.signInTitle">
      <source>Sign in</source>
      <translation>ลงชื่อเข้าใช้</translation>
    </message>
    <message id="ui.auth.toSignIn">
      <source>Back to sign in</source>
      <translation>กลับไปหน้าลงชื่อเข้าใช้</translation>
    </message>
    <message id="ui.auth.toSignUp">
      <source>Create an account</source>
      <translation>สร้างบัญชี</translation>
    </message>
    <message id="ui.auth.welcome">
      <source>Welcome to Morvane</source>
      <translation>ยินดีต้อนรับสู่ Morvane</translation>
    </message>
    <message id="ui.auth.welcomeBody">
      <source>Track your time on projects and tasks, and turn it into invoices. Your data stays on this computer unless you connect a shared server.</source>
      <translation>บันทึกเวลาที่ใช้กับโปรเจกต์และงาน แล้วเปลี่ยนเป็นใบแจ้งหนี้ ข้อมูลของคุณจะอยู่ในคอมพิวเตอร์เครื่องนี้ เว้นแต่คุณจะเชื่อมต่อเซิร์ฟเวอร์ที่ใช้ร่วมกัน</translation>
    </message>
    <message id="ui.calendar.add">
      <source>Add calendar</source>
      <translation>เพิ่มปฏิทิน</translation>
    </message>
    <message id="ui.calendar.addFile">
      <source>Add a calendar file…</source>
      <translation>เพิ่มไฟล์ปฏิทิน…</translation>
    </message>
    <message id="ui.calendar.added">
      <source>%1 was added.</source>
      <translation>เพิ่ม %1 แล้ว</translation>
    </message>
    <message id="ui.calendar.address">
      <source>Subscription or CalDAV address (https:// or webcal://)</source>
      <translation>ที่อยู่การสมัครรับหรือ CalDAV (https:// หรือ webcal://)</translation>
    </message>
    <message id="ui.calendar.badDay">
      <source>Write the day as year-month-day, for example 2026-11-25.</source>
      <translation>เขียนวันเป็น ปี-เดือน-วัน เช่น 2026-11-25</translation>
    </message>
    <message id="ui.calendar.caldav">
      <source>CalDAV account</source>
      <translation>บัญชี CalDAV</translation>
    </message>
    <message id="ui.calendar.day">
      <source>Day (year-month-day)</source>
      <translation>วัน (ปี-เดือน-วัน)</translation>
    </message>
    <message id="ui.calendar.destination">
      <source>Where it goes</source>
      <translation>บันทึกไปที่</translation>
    </message>
    <message id="ui.calendar.fileFilter">
      <source>Calendar files (*.ics)</source>
      <translation>ไฟล์ปฏิทิน (*.ics)</translation>
    </message>
    <message id="ui.calendar.fileTitle">
      <source>Add a calendar file</source>
      <translation>เพิ่มไฟล์ปฏิทิน</translation>
    </message>
    <message id="ui.calendar.import">
      <source>Import as time</source>
      <translation>นำเข้าเป็นเวลา</translation>
    </message>
    <message id="ui.calendar.imported">
      <source>%1 imported as time.</source>
      <translation>นำเข้า %1 รายการเป็นเวลาแล้ว</translation>
    </message>
    <message id="ui.calendar.importedChip">
      <source>Imported</source>
      <translation>นำเข้าแล้ว</translation>
    </message>
    <message id="ui.calendar.link">
      <source>Calendar import</source>
      <translation>นำเข้าปฏิทิน</translation>
    </message>
    <message id="ui.calendar.loading">
      <source>Loading calendar…</source>
      <translation>กำลังโหลดปฏิทิน…</translation>
    </message>
    <message id="ui.calendar.newTaskIn">
      <source>New task in %1</source>
      <translation>งานใหม่ใน %1</translation>
    </message>
    <message id="ui.calendar.next">
      <source>Next day</source>
      <translation>วันถัดไป</translation>
    </message>
    <message id="ui.calendar.noDestination">
      <source>%1 imported. %2 ticked events have no destination yet: choose where each goes.</source>
      <translation>นำเข้า %1 รายการ อีก %2 รายการที่เลือกยังไม่มีปลายทาง เลือกปลายทางให้แต่ละรายการ</translation>
    </message>
    <message id="ui.calendar.noEventsHint">
      <source>Pick another day, or add the calendar that holds your meetings.</source>
      <translation>เลือกวันอื่น หรือเพิ่มปฏิทินที่มีการประชุมของคุณ</translation>
    </message>
    <message id="ui.calendar.noEventsTitle">
      <source>No events on this day</source>
      <translation>ไม่มีกิจกรรมในวันนี้</translation>
    </message>
    <message id="ui.calendar.noSourcesHint">
      <source>Add a calendar file, a subscription address (such as a hosted calendar's secret address) or a CalDAV account on the left. Morvane only reads them.</source>
      <translation>เพิ่มไฟล์ปฏิทิน ที่อยู่การสมัครรับ (เช่น ที่อยู่ลับของปฏิทินออนไลน์) หรือบัญชี CalDAV ทางซ้าย Morvane จะอ่านอย่างเดียว</translation>
    </message>
    <message id="ui.calendar.noSourcesTitle">
      <source>No calendars yet</source>
      <translation>ยังไม่มีปฏิทิน</translation>
    </message>
    <message id="ui.calendar.partial">
      <source>%1 imported; then it stopped: %2</source>
      <translation>นำเข้า %1 รายการ แล้วหยุด: %2</translation>
    </message>
    <message id="ui.calendar.password">
      <source>Password (kept in your keyring)</source>
      <translation>รหัสผ่าน (เก็บในพวงกุญแจ)</translation>
    </message>
    <message id="ui.calendar.previous">
      <source>Previous day</source>
      <translation>วันก่อนหน้า</translation>
    </message>
    <message id="ui.calendar.remove">
      <source>Remove</source>
      <translation>ลบ</translation>
    </message>
    <message id="ui.calendar.sources">
      <source>Your calendars</source>
      <translation>ปฏิทินของคุณ</translation>
    </message>
    <message id="ui.calendar.timeOn">
      <source>Time on %1 (%2)</source>
      <translation>บันทึกเวลาใน %1 (%2)</translation>
    </message>
    <message id="ui.calendar.title">
      <source>Import from your calendar</source>
      <translation>นำเข้าจากปฏิทินของคุณ</translation>
    </message>
    <message id="ui.calendar.user">
      <source>User name</source>
      <translation>ชื่อผู้ใช้</translation>
    </message>
    <message id="ui.category.admin">
      <source>Admin</source>
      <translation>งานธุรการ</translation>
    </message>
    <message id="ui.category.billable">
      <source>Billable</source>
      <translation>เรียกเก็บเงินได้</translation>
    </message>
    <message id="ui.category.internal">
      <source>Internal work</source>
      <translation>งานภายใน</translation>
    </message>
    <message id="ui.category.none">
      <source>None</source>
      <translation>ไม่มี</translation>
    </message>
    <message id="ui.clients.address">
      <source>Address</source>
      <translation>ที่อยู่</translation>
    </message>
    <message id="ui.clients.deleteBody">
      <source>It leaves your list of clients. Invoices you already wrote for this client keep it.</source>
      <translation>ลูกค้ารายนี้จะหายไปจากรายชื่อลูกค้า ใบแจ้งหนี้ที่ออกให้ลูกค้ารายนี้แล้วยังคงเก็บข้อมูลไว้</translation>
    </message>
    <message id="ui.clients.deleteTitle">
      <source>Delete %1?</source>
      <translation>ลบ %1 ไหม</translation>
    </message>
    <message id="ui.clients.edit">
      <source>Edit client</source>
      <translation>แก้ไขลูกค้า</translation>
    </message>
    <message id="ui.clients.email">
      <source>E-mail</source>
      <translation>อีเมล</translation>
    </message>
    <message id="ui.clients.emptyHint">
      <source>Add the people and companies you invoice, then choose them when you write an invoice. Press Ctrl+N or “New client” to add the first.</source>
      <translation>เพิ่มบุคคลและบริษัทที่คุณออกใบแจ้งหนี้ให้ แล้วเลือกได้เมื่อเขียนใบแจ้งหนี้ กด Ctrl+N หรือ “ลูกค้าใหม่” เพื่อเพิ่มรายแรก</translation>
    </message>
    <message id="ui.clients.emptyTitle">
      <source>No clients yet</source>
      <translation>ยังไม่มีลูกค้า</translation>
    </message>
    <message id="ui.clients.kvk">
      <source>Chamber of commerce number</source>
      <translation>เลขทะเบียนนิติบุคคล</translation>
    </message>
    <message id="ui.clients.name">
      <source>Name</source>
      <translation>ชื่อ</translation>
    </message>
    <message id="ui.clients.namePlaceholder">
      <source>Company or person</source>
      <translation>บริษัทหรือบุคคล</translation>
    </message>
    <message id="ui.clients.new">
      <source>New client</source>
      <translation>ลูกค้าใหม่</translation>
    </message>
    <message id="ui.clients.noMatch">
      <source>No client matches “%1”</source>
      <translation>ไม่มีลูกค้าที่ตรงกับ “%1”</translation>
    </message>
    <message id="ui.clients.search">
      <source>Search clients</source>
      <translation>ค้นหาลูกค้า</translation>
    </message>
    <message id="ui.clients.title">
      <source>Clients</source>
      <translation>ลูกค้า</translation>
    </message>
    <message id="ui.clients.vatId">
      <source>VAT number</source>
      <translation>เลขประจำตัวผู้เสียภาษี</translation>
    </message>
    <message id="ui.common.cancel">
      <source>Cancel</source>
      <translation>ยกเลิก</translation>
    </message>
    <message id="ui.common.close">
      <source>Close</source>
      <translation>ปิด</translation>
    </message>
    <message id="ui.common.continue">
      <source>Continue</source>
      <translation>ดำเนินการต่อ</translation>
    </message>
    <message id="ui.common.delete">
      <source>Delete</source>
      <translation>ลบ</translation>
    </message>
    <message id="ui.common.dismiss">
      <source>Dismiss</source>
      <translation>ปิด</translation>
    </message>
    <message id="ui.common.edit">
      <source>Edit</source>
      <translation>แก้ไข</translation>
    </message>
    <message id="ui.common.remove">
      <source>Remove %1</source>
      <translation>นำ %1 ออก</translation>
    </message>
    <message id="ui.common.retry">
      <source>Try again</source>
      <translation>ลองอีกครั้ง</translation>
    </message>
    <message id="ui.common.save">
      <source>Save</source>
      <translation>บันทึก</translation>
    </message>
    <message id="ui.common.saving">
      <source>Saving</source>
      <translation>กำลังบันทึก</translation>
    </message>
    <message id="ui.composer.billTo">
      <source>Bill to</source>
      <translation>เรียกเก็บจาก</translation>
    </message>
    <message id="ui.composer.cancel">
      <source>Cancel</source>
      <translation>ยกเลิก</translation>
    </message>
    <message id="ui.composer.clientAddress">
      <source>Client address</source>
      <translation>ที่อยู่ลูกค้า</translation>
    </message>
    <message id="ui.composer.clientEmail">
      <source>Client e-mail</source>
      <translation>อีเมลลูกค้า</translation>
    </message>
    <message id="ui.composer.clientName">
      <source>Client name</source>
      <translation>ชื่อลูกค้า</translation>
    </message>
    <message id="ui.composer.design">
      <source>Design</source>
      <translation>รูปแบบ</translation>
    </message>
    <message id="ui.composer.drawing">
      <source>Drawing the invoice</source>
      <translation>กำลังสร้างใบแจ้งหนี้</translation>
    </message>
    <message id="ui.composer.due">
      <source>Due</source>
      <translation>ครบกำหนด</translation>
    </message>
    <message id="ui.composer.err.day">
      <source>Write days as year-month-day, for example 2026-11-01.</source>
      <translation>เขียนวันที่เป็น ปี-เดือน-วัน เช่น 2026-11-01</translation>
    </message>
    <message id="ui.composer.err.due">
      <source>Payment cannot be due before the invoice is issued.</source>
      <translation>วันครบกำหนดชำระต้องไม่อยู่ก่อนวันที่ออกใบแจ้งหนี้</translation>
    </message>
    <message id="ui.composer.err.empty">
      <source>Choose work with unbilled time first.</source>
      <translation>เลือกงานที่มีเวลายังไม่ได้เรียกเก็บก่อน</translation>
    </message>
    <message id="ui.composer.err.noNumber">
      <source>The invoice has no number yet. Check the connection and open the composer again.</source>
      <translation>ใบแจ้งหนี้ยังไม่มีเลขที่ ตรวจสอบการเชื่อมต่อแล้วเปิดหน้าสร้างใบแจ้งหนี้อีกครั้ง</translation>
    </message>
    <message id="ui.composer.err.period">
      <source>The period ends before it starts.</source>
      <translation>ช่วงเวลาสิ้นสุดก่อนที่จะเริ่ม</translation>
    </message>
    <message id="ui.composer.err.preview">
      <source>The preview could not be drawn: %1</source>
      <translation>สร้างตัวอย่างไม่ได้: %1</translation>
    </message>
    <message id="ui.composer.from">
      <source>From (year-month-day)</source>
      <translation>ตั้งแต่ (ปี-เดือน-วัน)</translation>
    </message>
    <message id="ui.composer.hours">
      <source>%1 h</source>
      <translation>%1 ชม.</translation>
    </message>
    <message id="ui.composer.houseDesign">
      <source>As in the invoice style</source>
      <translation>ตามรูปแบบใบแจ้งหนี้</translation>
    </message>
    <message id="ui.composer.invoice">
      <source>Invoice</source>
      <translation>ใบแจ้งหนี้</translation>
    </message>
    <message id="ui.composer.issued">
      <source>Issued</source>
      <translation>วันที่ออก</translation>
    </message>
    <message id="ui.composer.lines">
      <source>Lines</source>
      <translation>รายการ</translation>
    </message>
    <message id="ui.composer.noWork">
      <source>No unbilled time in this period. Choose another period or project.</source>
      <translation>ไม่มีเวลาที่ยังไม่ได้เรียกเก็บในช่วงนี้ เลือกช่วงเวลาหรือโปรเจกต์อื่น</translation>
    </message>
    <message id="ui.composer.notes">
      <source>Notes on the invoice</source>
      <translation>หมายเหตุในใบแจ้งหนี้</translation>
    </message>
    <message id="ui.composer.number">
      <source>No. %1</source>
      <translation>เลขที่ %1</translation>
    </message>
    <message id="ui.composer.numberPending">
      <source>Number follows</source>
      <translation>เลขที่จะตามมา</translation>
    </message>
    <message id="ui.composer.period">
      <source>Period</source>
      <translation>ช่วงเวลา</translation>
    </message>
    <message id="ui.composer.previewEmpty">
      <source>The invoice appears here</source>
      <translation>ใบแจ้งหนี้จะแสดงที่นี่</translation>
    </message>
    <message id="ui.composer.previewHint">
      <source>Choose a project with unbilled time and a period; the page follows every change.</source>
      <translation>เลือกโปรเจกต์ที่มีเวลายังไม่ได้เรียกเก็บและช่วงเวลา หน้านี้จะอัปเดตตามทุกการเปลี่ยนแปลง</translation>
    </message>
    <message id="ui.composer.projects">
      <source>Projects</source>
      <translation>โปรเจกต์</translation>
    </message>
    <message id="ui.composer.saveAsClient">
      <source>Save as client</source>
      <translation>บันทึกเป็นลูกค้า</translation>
    </message>
    <message id="ui.composer.saveDraft">
      <source>Save as draft</source>
      <translation>บันทึกเป็นฉบับร่าง</translation>
    </message>
    <message id="ui.composer.saveSent">
      <source>Save as sent</source>
      <translation>บันทึกว่าส่งแล้ว</translation>
    </message>
    <message id="ui.composer.savedClients">
      <source>Saved clients</source>
      <translation>ลูกค้าที่บันทึกไว้</translation>
    </message>
    <message id="ui.composer.title">
      <source>New invoice</source>
      <translation>ใบแจ้งหนี้ใหม่</translation>
    </message>
    <message id="ui.composer.to">
      <source>To (year-month-day)</source>
      <translation>ถึง (ปี-เดือน-วัน)</translation>
    </message>
    <message id="ui.composer.vatPercent">
      <source>VAT %</source>
      <translation>VAT %</translation>
    </message>
    <message id="ui.composer.work">
      <source>Work</source>
      <translation>งาน</translation>
    </message>
    <message id="ui.earnings.barName">
      <source>%1: earned %2, billed %3, unbilled %4</source>
      <translation>%1: รายได้ %2 เรียกเก็บแล้ว %3 ยังไม่เรียกเก็บ %4</translation>
    </message>
    <message id="ui.earnings.billed">
      <source>Billed</source>
      <translation>เรียกเก็บแล้ว</translation>
    </message>
    <message id="ui.earnings.billedChip">
      <source>billed</source>
      <translation>เรียกเก็บแล้ว</translation>
    </message>
    <message id="ui.earnings.byMonth">
      <source>Month</source>
      <translation>เดือน</translation>
    </message>
    <message id="ui.earnings.byProject">
      <source>Project</source>
      <translation>โปรเจกต์</translation>
    </message>
    <message id="ui.earnings.byWeek">
      <source>Week</source>
      <translation>สัปดาห์</translation>
    </message>
    <message id="ui.earnings.coverage">
      <source>%1 to %2</source>
      <translation>%1 ถึง %2</translation>
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
      <translation>รายได้</translation>
    </message>
    <message id="ui.earnings.emptyHint">
      <source>Start the timer on a task with Space, or log time in its inspector. What you earn shows up here by week, month and project.</source>
      <translation>เริ่มจับเวลางานด้วยปุ่ม Space หรือบันทึกเวลาในแผงรายละเอียด รายได้ของคุณจะแสดงที่นี่ตามสัปดาห์ เดือน และโปรเจกต์</translation>
    </message>
    <message id="ui.earnings.emptyTitle">
      <source>Nothing tracked in these months</source>
      <translation>ยังไม่มีเวลาที่บันทึกในช่วงเดือนเหล่านี้</translation>
    </message>
    <message id="ui.earnings.entries">
      <source>Entries</source>
      <translation>รายการเวลา</translation>
    </message>
    <message id="ui.earnings.entriesOf">
      <source>Entries of %1</source>
      <translation>รายการเวลาของ %1</translation>
    </message>
    <message id="ui.earnings.hours">
      <source>Hours</source>
      <translation>ชั่วโมง</translation>
    </message>
    <message id="ui.earnings.monthFormat">
      <source>MMM yyyy</source>
      <translation>MMM yyyy</translation>
    </message>
    <message id="ui.earnings.noProject">
      <source>No project</source>
      <translation>ไม่มีโปรเจกต์</translation>
    </message>
    <message id="ui.earnings.oneOffNote">
      <source>includes %1 charged once</source>
      <translation>รวม %1 ที่คิดครั้งเดียว</translation>
    </message>
    <message id="ui.earnings.pickBar">
      <source>Click a bar to see the entries behind it.</source>
      <translation>คลิกแท่งกราฟเพื่อดูรายการเวลาที่อยู่เบื้องหลัง</translation>
    </message>
    <message id="ui.earnings.rate">
      <source>Per hour</source>
      <translation>ต่อชั่วโมง</translation>
    </message>
    <message id="ui.earnings.title">
      <source>Earnings</source>
      <translation>รายได้</translation>
    </message>
    <message id="ui.earnings.unbilled">
      <source>Unbilled</source>
      <translation>ยังไม่เรียกเก็บ</translation>
    </message>
    <message id="ui.entries.billed">
      <source>Billed</source>
      <translation>เรียกเก็บเงินแล้ว</translation>
    </message>
    <message id="ui.entries.delete">
      <source>Delete this entry</source>
      <translation>ลบรายการนี้</translation>
    </message>
    <message id="ui.entries.deleteBody">
      <source>The task's total goes down by its length.</source>
      <translation>ยอดรวมของงานจะลดลงตามระยะเวลาของรายการนี้</translation>
    </message>
    <message id="ui.entries.deleteTitle">
      <source>Delete this time entry?</source>
      <translation>ลบรายการเวลานี้ใช่ไหม</translation>
    </message>
    <message id="ui.entries.empty">
      <source>No time yet. Press Space to start the timer, or log minutes by hand.</source>
      <translation>ยังไม่มีเวลาที่บันทึกไว้ กด Space เพื่อเริ่มตัวจับเวลา หรือบันทึกจำนวนนาทีเอง</translation>
    </message>
    <message id="ui.entries.end">
      <source>End</source>
      <translation>สิ้นสุด</translation>
    </message>
    <message id="ui.entries.invalid">
      <source>Use the form 2026-03-01 09:30, with the end after the start.</source>
      <translation>ใช้รูปแบบ 2026-03-01 09:30 และเวลาสิ้นสุดต้องอยู่หลังเวลาเริ่ม</translation>
    </message>
    <message id="ui.entries.length">
      <source>Minutes</source>
      <translation>นาที</translation>
    </message>
    <message id="ui.entries.log">
      <source>Log</source>
      <translation>บันทึกเวลา</translation>
    </message>
    <message id="ui.entries.minutes">
      <source>Minutes worked</source>
      <translation>จำนวนนาทีที่ทำงาน</translation>
    </message>
    <message id="ui.entries.minutesInvalid">
      <source>Enter the minutes as a number, such as 45 or 90.</source>
      <translation>กรอกจำนวนนาทีเป็นตัวเลข เช่น 45 หรือ 90</translation>
    </message>
    <message id="ui.entries.start">
      <source>Start</source>
      <translation>เริ่ม</translation>
    </message>
    <message id="ui.entries.title">
      <source>Time entries</source>
      <translation>รายการเวลา</translation>
    </message>
    <message id="ui.entries.total">
      <source>Total %1</source>
      <translation>รวม %1</translation>
    </message>
    <message id="ui.export.action">
      <source>Export for the accountant…</source>
      <translation>ส่งออกสำหรับนักบัญชี…</translation>
    </message>
    <message id="ui.export.badPeriod">
      <source>Enter both days as YYYY-MM-DD, the first not after the last.</source>
      <translation>กรอกทั้งสองวันในรูปแบบ YYYY-MM-DD โดยวันแรกต้องไม่อยู่หลังวันสุดท้าย</translation>
    </message>
    <message id="ui.export.body">
      <source>A CSV file that spreadsheets and bookkeeping programs read: one row per time entry or invoice of the period.</source>
      <translation>ไฟล์ CSV ที่โปรแกรมตารางคำนวณและโปรแกรมบัญชีอ่านได้ หนึ่งแถวต่อหนึ่งรายการเวลาหรือใบแจ้งหนี้ในช่วงเวลานั้น</translation>
    </message>
    <message id="ui.export.close">
      <source>Close</source>
      <translation>ปิด</translation>
    </message>
    <message id="ui.export.csvFilter">
      <source>CSV files (*.csv)</source>
      <translation>ไฟล์ CSV (*.csv)</translation>
    </message>
    <message id="ui.export.entries">
      <source>Time entries</source>
      <translation>รายการเวลา</translation>
    </message>
    <message id="ui.export.fileTitle">
      <source>Save the CSV file</source>
      <translation>บันทึกไฟล์ CSV</translation>
    </message>
    <message id="ui.export.from">
      <source>From</source>
      <translation>ตั้งแต่</translation>
    </message>
    <message id="ui.export.invoices">
      <source>Invoices</source>
      <translation>ใบแจ้งหนี้</translation>
    </message>
    <message id="ui.export.notReady">
      <source>Choose a period and a file first.</source>
      <translation>เลือกช่วงเวลาและไฟล์ก่อน</translation>
    </message>
    <message id="ui.export.save">
      <source>Save…</source>
      <translation>บันทึก…</translation>
    </message>
    <message id="ui.export.saved">
      <source>Saved %1 (rows: %2).</source>
      <translation>บันทึก %1 แล้ว (%2 แถว)</translation>
    </message>
    <message id="ui.export.saving">
      <source>Saving…</source>
      <translation>กำลังบันทึก…</translation>
    </message>
    <message id="ui.export.title">
      <source>Export for the accountant</source>
      <translation>ส่งออกสำหรับนักบัญชี</translation>
    </message>
    <message id="ui.export.to">
      <source>To</source>
      <translation>ถึง</translation>
    </message>
    <message id="ui.export.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>เขียน %1 ไม่ได้: %2</translation>
    </message>
    <message id="ui.floating.hide">
      <source>Hide the floating timer</source>
      <translation>ซ่อนตัวจับเวลาแบบลอย</translation>
    </message>
    <message id="ui.floating.title">
      <source>Morvane timer</source>
      <translation>ตัวจับเวลา Morvane</translation>
    </message>
    <message id="ui.idle.body">
      <source>The timer of “%1” kept running while you were away from %2 to %3. What should happen to that time?</source>
      <translation>ตัวจับเวลาของ “%1” ยังทำงานอยู่ขณะที่คุณไม่อยู่ ตั้งแต่ %2 ถึง %3 จะทำอย่างไรกับเวลาช่วงนั้น</translation>
    </message>
    <message id="ui.idle.discard">
      <source>Discard it and stop the timer</source>
      <translation>ทิ้งเวลานั้นและหยุดตัวจับเวลา</translation>
    </message>
    <message id="ui.idle.discardContinue">
      <source>Discard it and go on</source>
      <translation>ทิ้งเวลานั้นแล้วทำต่อ</translation>
    </message>
    <message id="ui.idle.keep">
      <source>Keep the time</source>
      <translation>เก็บเวลาไว้</translation>
    </message>
    <message id="ui.idle.notification">
      <source>The timer of “%1” ran while you were away from %2 to %3.</source>
      <translation>ตัวจับเวลาของ “%1” ทำงานอยู่ขณะที่คุณไม่อยู่ ตั้งแต่ %2 ถึง %3</translation>
    </message>
    <message id="ui.idle.title">
      <source>You were away</source>
      <translation>คุณไม่อยู่ที่เครื่อง</translation>
    </message>
    <message id="ui.inspector.addNote">
      <source>Add a note</source>
      <translation>เพิ่มโน้ต</translation>
    </message>
    <message id="ui.inspector.addSubtask">
      <source>Add a subtask</source>
      <translation>เพิ่มงานย่อย</translation>
    </message>
    <message id="ui.inspector.assignees">
      <source>Assigned to</source>
      <translation>มอบหมายให้</translation>
    </message>
    <message id="ui.inspector.category">
      <source>Category</source>
      <translation>หมวดหมู่</translation>
    </message>
    <message id="ui.inspector.describe">
      <source>Notes for yourself or the client</source>
      <translation>โน้ตสำหรับตัวคุณเองหรือลูกค้า</translation>
    </message>
    <message id="ui.inspector.description">
      <source>Description</source>
      <translation>คำอธิบาย</translation>
    </message>
    <message id="ui.inspector.due">
      <source>Due</source>
      <translation>ครบกำหนด</translation>
    </message>
    <message id="ui.inspector.dueDate">
      <source>Due date</source>
      <translation>วันครบกำหนด</translation>
    </message>
    <message id="ui.inspector.none">
      <source>No task selected</source>
      <translation>ไม่ได้เลือกงาน</translation>
    </message>
    <message id="ui.inspector.noneHint">
      <source>Choose a task to see its details and time entries.</source>
      <translation>เลือกงานเพื่อดูรายละเอียดและรายการเวลา</translation>
    </message>
    <message id="ui.inspector.notes">
      <source>Notes</source>
      <translation>โน้ต</translation>
    </message>
    <message id="ui.inspector.ownPrice">
      <source>This task has its own price.</source>
      <translation>งานนี้มีราคาของตัวเอง</translation>
    </message>
    <message id="ui.inspector.price">
      <source>Price</source>
      <translation>ราคา</translation>
    </message>
    <message id="ui.inspector.priority">
      <source>Priority</source>
      <translation>ความสำคัญ</translation>
    </message>
    <message id="ui.inspector.status">
      <source>Status</source>
      <translation>สถานะ</translation>
    </message>
    <message id="ui.inspector.subtasks">
      <source>Subtasks</source>
      <translation>งานย่อย</translation>
    </message>
    <message id="ui.inspector.title">
      <source>Task title</source>
      <translation>ชื่องาน</translation>
    </message>
    <message id="ui.invoices.allStatuses">
      <source>Every status</source>
      <translation>ทุกสถานะ</translation>
    </message>
    <message id="ui.invoices.allYears">
      <source>Every year</source>
      <translation>ทุกปี</translation>
    </message>
    <message id="ui.invoices.client">
      <source>Client</source>
      <translation>ลูกค้า</translation>
    </message>
    <message id="ui.invoices.deleteBody">
      <source>The invoice and its PDF leave your list for good, and its hours become unbilled again. To keep a record, void it instead.</source>
      <translation>ใบแจ้งหนี้และ PDF จะถูกลบออกจากรายการถาวร และชั่วโมงงานจะกลับเป็นยังไม่เรียกเก็บ หากต้องการเก็บบันทึกไว้ ให้ยกเลิกแทน</translation>
    </message>
    <message id="ui.invoices.deleteTitle">
      <source>Delete invoice %1?</source>
      <translation>ลบใบแจ้งหนี้ %1 หรือไม่</translation>
    </message>
    <message id="ui.invoices.deleted">
      <source>Invoice %1 deleted; its hours are unbilled again.</source>
      <translation>ลบใบแจ้งหนี้ %1 แล้ว ชั่วโมงงานกลับเป็นยังไม่เรียกเก็บ</translation>
    </message>
    <message id="ui.invoices.downloadFailed">
      <source>The PDF could not be downloaded: %1</source>
      <translation>ดาวน์โหลด PDF ไม่ได้: %1</translation>
    </message>
    <message id="ui.invoices.due">
      <source>Due</source>
      <translation>ครบกำหนด</translation>
    </message>
    <message id="ui.invoices.emptyHint">
      <source>Invoices you write from your tracked time appear here, with what is still open and what is overdue.</source>
      <translation>ใบแจ้งหนี้ที่คุณสร้างจากเวลาที่บันทึกไว้จะแสดงที่นี่ พร้อมยอดที่ยังค้างชำระและยอดที่เกินกำหนด</translation>
    </message>
    <message id="ui.invoices.emptyTitle">
      <source>No invoices yet</source>
      <translation>ยังไม่มีใบแจ้งหนี้</translation>
    </message>
    <message id="ui.invoices.fileTitle">
      <source>Save the invoice PDF</source>
      <translation>บันทึก PDF ของใบแจ้งหนี้</translation>
    </message>
    <message id="ui.invoices.foreignLink">
      <source>The link to the PDF does not lead to your server, so it was not opened.</source>
      <translation>ลิงก์ไปยัง PDF ไม่ได้ชี้ไปที่เซิร์ฟเวอร์ของคุณ จึงไม่ได้เปิด</translation>
    </message>
    <message id="ui.invoices.issued">
      <source>Issued</source>
      <translation>วันที่ออก</translation>
    </message>
    <message id="ui.invoices.net">
      <source>Net</source>
      <translation>ก่อนภาษี</translation>
    </message>
    <message id="ui.invoices.noMatch">
      <source>No invoice matches these filters</source>
      <translation>ไม่มีใบแจ้งหนี้ที่ตรงกับตัวกรองนี้</translation>
    </message>
    <message id="ui.invoices.noMatchHint">
      <source>Choose another status or year.</source>
      <translation>เลือกสถานะหรือปีอื่น</translation>
    </message>
    <message id="ui.invoices.noViewer">
      <source>No program to show PDF files was found. Save the PDF and open it from there.</source>
      <translation>ไม่พบโปรแกรมสำหรับเปิดไฟล์ PDF บันทึก PDF แล้วเปิดจากที่นั่น</translation>
    </message>
    <message id="ui.invoices.number">
      <source>Number</source>
      <translation>เลขที่</translation>
    </message>
    <message id="ui.invoices.open">
      <source>Still open</source>
      <translation>ยังค้างชำระ</translation>
    </message>
    <message id="ui.invoices.openPdf">
      <source>Open PDF</source>
      <translation>เปิด PDF</translation>
    </message>
    <message id="ui.invoices.overdue">
      <source>Overdue</source>
      <translation>เกินกำหนด</translation>
    </message>
    <message id="ui.invoices.pdfFilter">
      <source>PDF files (*.pdf)</source>
      <translation>ไฟล์ PDF (*.pdf)</translation>
    </message>
    <message id="ui.invoices.redraw">
      <source>Draw again…</source>
      <translation>สร้างใหม่…</translation>
    </message>
    <message id="ui.invoices.redrawBody">
      <source>This replaces the stored PDF of this invoice with a new one, built from the invoice lines and the current details of its template. Continue?</source>
      <translation>PDF ที่บันทึกไว้ของใบแจ้งหนี้นี้จะถูกแทนที่ด้วยฉบับใหม่ที่สร้างจากรายการในใบแจ้งหนี้และรายละเอียดปัจจุบันของเทมเพลต ดำเนินการต่อหรือไม่?</translation>
    </message>
    <message id="ui.invoices.redrawConfirm">
      <source>Replace PDF</source>
      <translation>แทนที่ PDF</translation>
    </message>
    <message id="ui.invoices.redrawFailed">
      <source>The invoice could not be drawn: %1</source>
      <translation>สร้างใบแจ้งหนี้ไม่ได้: %1</translation>
    </message>
    <message id="ui.invoices.redrawTitle">
      <source>Draw invoice %1 again?</source>
      <translation>สร้างใบแจ้งหนี้ %1 ใหม่หรือไม่?</translation>
    </message>
    <message id="ui.invoices.redrawn">
      <source>Invoice %1 was drawn again with your current details.</source>
      <translation>สร้างใบแจ้งหนี้ %1 ใหม่ด้วยรายละเอียดปัจจุบันของคุณแล้ว</translation>
    </message>
    <message id="ui.invoices.savePdf">
      <source>Save PDF…</source>
      <translation>บันทึก PDF…</translation>
    </message>
    <message id="ui.invoices.saved">
      <source>Saved to %1</source>
      <translation>บันทึกไว้ที่ %1 แล้ว</translation>
    </message>
    <message id="ui.invoices.status">
      <source>Status</source>
      <translation>สถานะ</translation>
    </message>
    <message id="ui.invoices.status.draft">
      <source>Draft</source>
      <translation>ฉบับร่าง</translation>
    </message>
    <message id="ui.invoices.status.paid">
      <source>Paid</source>
      <translation>ชำระแล้ว</translation>
    </message>
    <message id="ui.invoices.status.sent">
      <source>Sent</source>
      <translation>ส่งแล้ว</translation>
    </message>
    <message id="ui.invoices.status.void">
      <source>Void</source>
      <translation>ยกเลิกแล้ว</translation>
    </message>
    <message id="ui.invoices.statusChanged">
      <source>Invoice %1 is now %2.</source>
      <translation>ใบแจ้งหนี้ %1 เปลี่ยนเป็น %2 แล้ว</translation>
    </message>
    <message id="ui.invoices.statusFilter">
      <source>Status</source>
      <translation>สถานะ</translation>
    </message>
    <message id="ui.invoices.title">
      <source>Invoices</source>
      <translation>ใบแจ้งหนี้</translation>
    </message>
    <message id="ui.invoices.total">
      <source>Total</source>
      <translation>รวม</translation>
    </message>
    <message id="ui.invoices.vat">
      <source>VAT</source>
      <translation>VAT</translation>
    </message>
    <message id="ui.invoices.void">
      <source>Void…</source>
      <translation>ยกเลิก…</translation>
    </message>
    <message id="ui.invoices.voidBody">
      <source>A void invoice stays void: it can never be sent, paid or changed again. Its hours become unbilled, so you can invoice them anew.</source>
      <translation>ใบแจ้งหนี้ที่ยกเลิกแล้วจะถูกยกเลิกถาวร ส่ง ชำระ หรือแก้ไขไม่ได้อีก ชั่วโมงงานจะกลับเป็นยังไม่เรียกเก็บ คุณจึงออกใบแจ้งหนี้ใหม่ได้</translation>
    </message>
    <message id="ui.invoices.voidConfirm">
      <source>Void</source>
      <translation>ยกเลิกใบแจ้งหนี้</translation>
    </message>
    <message id="ui.invoices.voidFinal">
      <source>Void — final, it cannot be changed again</source>
      <translation>ยกเลิกแล้ว — ถาวร แก้ไขอีกไม่ได้</translation>
    </message>
    <message id="ui.invoices.voidTitle">
      <source>Void invoice %1?</source>
      <translation>ยกเลิกใบแจ้งหนี้ %1 หรือไม่</translation>
    </message>
    <message id="ui.invoices.voided">
      <source>Invoice %1 is void; its hours are unbilled again.</source>
      <translation>ใบแจ้งหนี้ %1 ถูกยกเลิกแล้ว ชั่วโมงงานกลับเป็นยังไม่เรียกเก็บ</translation>
    </message>
    <message id="ui.invoices.writeFailed">
      <source>Could not write %1: %2</source>
      <translation>เขียน %1 ไม่ได้: %2</translation>
    </message>
    <message id="ui.invoices.yearFilter">
      <source>Year</source>
      <translation>ปี</translation>
    </message>
    <message id="ui.onboarding.currency">
      <source>Currency</source>
      <translation>สกุลเงิน</translation>
    </message>
    <message id="ui.onboarding.language">
      <source>Language</source>
      <translation>ภาษา</translation>
    </message>
    <message id="ui.onboarding.name">
      <source>Your name</source>
      <translation>ชื่อของคุณ</translation>
    </message>
    <message id="ui.onboarding.rate">
      <source>Default hourly rate</source>
      <translation>อัตรารายชั่วโมงเริ่มต้น</translation>
    </message>
    <message id="ui.onboarding.rateInvalid">
      <source>Enter an amount, such as 85 or 72.50.</source>
      <translation>กรอกจำนวนเงิน เช่น 85 หรือ 72.50</translation>
    </message>
    <message id="ui.onboarding.timeZone">
      <source>Time zone</source>
      <translation>เขตเวลา</translation>
    </message>
    <message id="ui.palette.action">
      <source>Action</source>
      <translation>คำสั่ง</translation>
    </message>
    <message id="ui.palette.ai">
      <source>AI</source>
      <translation>AI</translation>
    </message>
    <message id="ui.palette.capture">
      <source>Quick add “%1”</source>
      <translation>เพิ่มด่วน “%1”</translation>
    </message>
    <message id="ui.palette.none">
      <source>Nothing matches.</source>
      <translation>ไม่พบรายการที่ตรงกัน</translation>
    </message>
    <message id="ui.palette.placeholder">
      <source>Search projects, tasks and actions</source>
      <translation>ค้นหาโปรเจกต์ งาน และคำสั่ง</translation>
    </message>
    <message id="ui.palette.project">
      <source>Project</source>
      <translation>โปรเจกต์</translation>
    </message>
    <message id="ui.palette.task">
      <source>Task</source>
      <translation>งาน</translation>
    </message>
    <message id="ui.prices.edit">
      <source>Change the price…</source>
      <translation>เปลี่ยนราคา…</translation>
    </message>
    <message id="ui.prices.invalid">
      <source>A field in red cannot be read as a number. Correct it to save.</source>
      <translation>ช่องสีแดงอ่านเป็นตัวเลขไม่ได้ แก้ไขก่อนจึงจะบันทึกได้</translation>
    </message>
    <message id="ui.prices.project">
      <source>Price…</source>
      <translation>ราคา…</translation>
    </message>
    <message id="ui.priority.high">
      <source>High</source>
      <translation>สูง</translation>
    </message>
    <message id="ui.priority.low">
      <source>Low</source>
      <translation>ต่ำ</translation>
    </message>
    <message id="ui.priority.medium">
      <source>Medium</source>
      <translation>ปานกลาง</translation>
    </message>
    <message id="ui.projects.actions">
      <source>Project actions</source>
      <translation>การดำเนินการกับโปรเจกต์</translation>
    </message>
    <message id="ui.projects.archive">
      <source>Archive</source>
      <translation>เก็บถาวร</translation>
    </message>
    <message id="ui.projects.delete">
      <source>Delete project…</source>
      <translation>ลบโปรเจกต์…</translation>
    </message>
    <message id="ui.projects.deleteBody">
      <source>Its tasks and their time entries are deleted too. This cannot be undone.</source>
      <translation>งานในโปรเจกต์และรายการเวลาของงานเหล่านั้นจะถูกลบไปด้วย และจะเลิกทำไม่ได้</translation>
    </message>
    <message id="ui.projects.deleteTitle">
      <source>Delete %1?</source>
      <translation>ลบ %1 ใช่ไหม</translation>
    </message>
    <message id="ui.projects.describe">
      <source>Add a description</source>
      <translation>เพิ่มคำอธิบาย</translation>
    </message>
    <message id="ui.projects.invoice">
      <source>Create invoice…</source>
      <translation>สร้างใบแจ้งหนี้…</translation>
    </message>
    <message id="ui.projects.markActive">
      <source>Mark as active</source>
      <translation>ทำเครื่องหมายว่าใช้งานอยู่</translation>
    </message>
    <message id="ui.projects.markCompleted">
      <source>Mark as completed</source>
      <translation>ทำเครื่องหมายว่าเสร็จสิ้น</translation>
    </message>
    <message id="ui.projects.name">
      <source>Project name</source>
      <translation>ชื่อโปรเจกต์</translation>
    </message>
    <message id="ui.projects.notShared">
      <source>Not shared</source>
      <translation>ไม่ได้แชร์</translation>
    </message>
    <message id="ui.projects.share">
      <source>Share with a team</source>
      <translation>แชร์กับทีม</translation>
    </message>
    <message id="ui.projects.status.active">
      <source>Active</source>
      <translation>ใช้งานอยู่</translation>
    </message>
    <message id="ui.projects.status.archived">
      <source>Archived</source>
      <translation>เก็บถาวรแล้ว</translation>
    </message>
    <message id="ui.projects.status.completed">
      <source>Completed</source>
      <translation>เสร็จสิ้น</translation>
    </message>
    <message id="ui.projects.viewOnly">
      <source>View only</source>
      <translation>ดูได้อย่างเดียว</translation>
    </message>
    <message id="ui.reminder.body">
      <source>Start a timer so that the work you are doing now is counted.</source>
      <translation>เริ่มตัวจับเวลาเพื่อให้งานที่คุณกำลังทำอยู่ถูกนับ</translation>
    </message>
    <message id="ui.reminder.title">
      <source>No timer is running</source>
      <translation>ไม่มีตัวจับเวลาที่ทำงานอยู่</translation>
    </message>
    <message id="ui.sessions.autoTrack">
      <source>Auto-track Claude sessions</source>
      <translation>ติดตามเซสชัน Claude อัตโนมัติ</translation>
    </message>
    <message id="ui.sessions.burstLine">
      <source>%1 · %2 prompts</source>
      <translation>%1 · %2 พรอมต์</translation>
    </message>
    <message id="ui.sessions.burstLineOne">
      <source>%1 · 1 prompt</source>
      <translation>%1 · 1 พรอมต์</translation>
    </message>
    <message id="ui.sessions.commit">
      <source>Log to project</source>
      <translation>บันทึกลงโปรเจกต์</translation>
    </message>
    <message id="ui.sessions.earlier">
      <source>Earlier</source>
      <translation>ก่อนหน้านั้น</translation>
    </message>
    <message id="ui.sessions.emptyHint">
      <source>Run a claude session in any folder on this computer (Claude Code, the command line, anything that writes to ~/.claude/projects/). Then press Rescan. Sessions from the last 30 days are picked up.</source>
      <translation>เริ่มเซสชัน claude ในโฟลเดอร์ใดก็ได้บนคอมพิวเตอร์นี้ (Claude Code, บรรทัดคำสั่ง หรืออะไรก็ตามที่เขียนลง ~/.claude/projects/) แล้วกด สแกนใหม่ ระบบจะอ่านเซสชันใน 30 วันที่ผ่านมา</translation>
    </message>
    <message id="ui.sessions.emptyTitle">
      <source>No Claude sessions parsed yet</source>
      <translation>ยังไม่มีเซสชัน Claude ที่อ่านได้</translation>
    </message>
    <message id="ui.sessions.err.createProject">
      <source>Create project failed: %1</source>
      <translation>สร้างโปรเจกต์ไม่สำเร็จ: %1</translation>
    </message>
    <message id="ui.sessions.explainMapping">
      <source>Sessions are tied to their working directory. You map each working dir to one of your projects once; from then on every new conversation in that repo logs automatically. Idle gaps longer than 5 minutes are excluded so an overnight pause does not bill 8 hours.</source>
      <translation>เซสชันผูกกับโฟลเดอร์ทำงานของมัน คุณเชื่อมโยงแต่ละโฟลเดอร์กับโปรเจกต์หนึ่งครั้ง จากนั้นทุกบทสนทนาใหม่ใน repo นั้นจะถูกบันทึกอัตโนมัติ ช่วงว่างที่นานกว่า 5 นาทีจะไม่นับ การพักข้ามคืนจึงไม่ถูกเรียกเก็บ 8 ชั่วโมง</translation>
    </message>
    <message id="ui.sessions.explainPrefix">
      <source>Resulting tasks are prefixed [AI] so you can tell a client exactly what part of the work was AI-assisted.</source>
      <translation>งานที่ได้จะขึ้นต้นด้วย [AI] คุณจึงบอกลูกค้าได้ชัดเจนว่างานส่วนไหนใช้ AI ช่วย</translation>
    </message>
    <message id="ui.sessions.explainScan">
      <source>Every minute Morvane scans your local Claude Code sessions (~/.claude/projects/) and turns each one into a billable time entry on the matching Morvane project.</source>
      <translation>ทุกนาที Morvane จะสแกนเซสชัน Claude Code ในเครื่องของคุณ (~/.claude/projects/) และเปลี่ยนแต่ละเซสชันเป็นเวลาที่เรียกเก็บได้ในโปรเจกต์ Morvane ที่ตรงกัน</translation>
    </message>
    <message id="ui.sessions.fewer">
      <source>Show fewer</source>
      <translation>แสดงน้อยลง</translation>
    </message>
    <message id="ui.sessions.folderProject">
      <source>Auto-created for Claude sessions in %1</source>
      <translation>สร้างอัตโนมัติสำหรับเซสชัน Claude ใน %1</translation>
    </message>
    <message id="ui.sessions.idleGap">
      <source>Idle gap (minutes)</source>
      <translation>ช่วงว่างสูงสุด (นาที)</translation>
    </message>
    <message id="ui.sessions.idleGapHelp">
      <source>Gaps longer than this between messages are treated as idle and excluded. 15 min covers most typing pauses.</source>
      <translation>ช่วงว่างระหว่างข้อความที่นานกว่านี้จะถือว่าไม่ได้ทำงานและไม่นับ 15 นาทีครอบคลุมการหยุดพิมพ์ส่วนใหญ่</translation>
    </message>
    <message id="ui.sessions.ignore">
      <source>Ignore</source>
      <translation>ละเว้น</translation>
    </message>
    <message id="ui.sessions.lastWeek">
      <source>Last week</source>
      <translation>สัปดาห์ที่แล้ว</translation>
    </message>
    <message id="ui.sessions.link">
      <source>Link to a project…</source>
      <translation>เชื่อมโยงกับโปรเจกต์…</translation>
    </message>
    <message id="ui.sessions.list">
      <source>Sessions</source>
      <translation>เซสชัน</translation>
    </message>
    <message id="ui.sessions.loading">
      <source>Reading your sessions…</source>
      <translation>กำลังอ่านเซสชันของคุณ…</translation>
    </message>
    <message id="ui.sessions.logHelp">
      <source>Log this session to a project, split into %1 tasks by natural breaks</source>
      <translation>บันทึกเซสชันนี้ลงโปรเจกต์ แบ่งเป็น %1 งานตามช่วงพักตามธรรมชาติ</translation>
    </message>
    <message id="ui.sessions.logTo">
      <source>Log to…</source>
      <translation>บันทึกลง…</translation>
    </message>
    <message id="ui.sessions.logged">
      <source>Logged %1 of %2 work bursts.</source>
      <translation>บันทึกแล้ว %1 จาก %2 ช่วงงาน</translation>
    </message>
    <message id="ui.sessions.loggedChip">
      <source>Logged</source>
      <translation>บันทึกแล้ว</translation>
    </message>
    <message id="ui.sessions.manyTasks">
      <source>%1 tasks</source>
      <translation>%1 งาน</translation>
    </message>
    <message id="ui.sessions.more">
      <source>Show all %1 sessions</source>
      <translation>แสดงทั้ง %1 เซสชัน</translation>
    </message>
    <message id="ui.sessions.newProject">
      <source>Create new project named "%1"</source>
      <translation>สร้างโปรเจกต์ใหม่ชื่อ "%1"</translation>
    </message>
    <message id="ui.sessions.noScan">
      <source>No scan yet.</source>
      <translation>ยังไม่ได้สแกน</translation>
    </message>
    <message id="ui.sessions.notLinked">
      <source>Not linked yet</source>
      <translation>ยังไม่ได้เชื่อมโยง</translation>
    </message>
    <message id="ui.sessions.oneTask">
      <source>1 task</source>
      <translation>1 งาน</translation>
    </message>
    <message id="ui.sessions.pendingIntro">
      <source>These directories have Claude sessions waiting to be logged. Pick a Morvane project (or Ignore) for each.</source>
      <translation>โฟลเดอร์เหล่านี้มีเซสชัน Claude รอการบันทึก เลือกโปรเจกต์ Morvane (หรือ ละเว้น) ให้แต่ละโฟลเดอร์</translation>
    </message>
    <message id="ui.sessions.pendingLine">
      <source>%1 · %2 sessions · %3 active</source>
      <translation>%1 · %2 เซสชัน · ใช้งาน %3</translation>
    </message>
    <message id="ui.sessions.previewTitle">
      <source>Review and log to: %1 (%2)</source>
      <translation>ตรวจสอบและบันทึกลง: %1 (%2)</translation>
    </message>
    <message id="ui.sessions.reimport">
      <source>Re-import</source>
      <translation>นำเข้าใหม่</translation>
    </message>
    <message id="ui.sessions.reimportAll">
      <source>Re-import all sessions</source>
      <translation>นำเข้าเซสชันทั้งหมดใหม่</translation>
    </message>
    <message id="ui.sessions.reimportAllBody">
      <source>Every session is logged again at the next scan. Tasks made earlier stay; delete them yourself if you do not want them twice.</source>
      <translation>ทุกเซสชันจะถูกบันทึกอีกครั้งในการสแกนครั้งถัดไป งานที่สร้างไว้ก่อนจะยังอยู่ ลบเองหากไม่ต้องการให้ซ้ำ</translation>
    </message>
    <message id="ui.sessions.reimportAllTitle">
      <source>Re-import all sessions?</source>
      <translation>นำเข้าเซสชันทั้งหมดใหม่หรือไม่?</translation>
    </message>
    <message id="ui.sessions.reimportHelp">
      <source>Re-import this session (forget previous log)</source>
      <translation>นำเข้าเซสชันนี้ใหม่ (ลืมบันทึกก่อนหน้า)</translation>
    </message>
    <message id="ui.sessions.rescan">
      <source>Rescan</source>
      <translation>สแกนใหม่</translation>
    </message>
    <message id="ui.sessions.result">
      <source>Last scan %1: %2 sessions found, %3 work bursts logged (%4), %5 sessions waiting for a project.</source>
      <translation>สแกนล่าสุด %1: พบ %2 เซสชัน บันทึก %3 ช่วงงาน (%4) มี %5 เซสชันรอโปรเจกต์</translation>
    </message>
    <message id="ui.sessions.scanNow">
      <source>Scan now</source>
      <translation>สแกนตอนนี้</translation>
    </message>
    <message id="ui.sessions.sessionLine">
      <source>%1 · %2 active · %3 bursts</source>
      <translation>%1 · ใช้งาน %2 · %3 ช่วง</translation>
    </message>
    <message id="ui.sessions.sessionLineOne">
      <source>%1 · %2 active</source>
      <translation>%1 · ใช้งาน %2</translation>
    </message>
    <message id="ui.sessions.sessionProject">
      <source>Auto-created for Claude session %1</source>
      <translation>สร้างอัตโนมัติสำหรับเซสชัน Claude %1</translation>
    </message>
    <message id="ui.sessions.thisWeek">
      <source>Earlier this week</source>
      <translation>ต้นสัปดาห์นี้</translation>
    </message>
    <message id="ui.sessions.title">
      <source>AI sessions</source>
      <translation>เซสชัน AI</translation>
    </message>
    <message id="ui.sessions.today">
      <source>Today</source>
      <translation>วันนี้</translation>
    </message>
    <message id="ui.sessions.tracking">
      <source>Tracking</source>
      <translation>การติดตาม</translation>
    </message>
    <message id="ui.sessions.untitled">
      <source>Claude session</source>
      <translation>เซสชัน Claude</translation>
    </message>
    <message id="ui.sessions.yesterday">
      <source>Yesterday</source>
      <translation>เมื่อวาน</translation>
    </message>
    <message id="ui.settings.account">
      <source>Account</source>
      <translation>บัญชี</translation>
    </message>
    <message id="ui.settings.ai">
      <source>AI</source>
      <translation>AI</translation>
    </message>
    <message id="ui.settings.appearance">
      <source>Appearance</source>
      <translation>รูปลักษณ์</translation>
    </message>
    <message id="ui.settings.autostart">
      <source>Start Morvane when I log in</source>
      <translation>เปิด Morvane เมื่อเข้าสู่ระบบ</translation>
    </message>
    <message id="ui.settings.backend">
      <source>Backend</source>
      <translation>แบ็กเอนด์</translation>
    </message>
    <message id="ui.settings.backend.apply">
      <source>Use this backend</source>
      <translation>ใช้แบ็กเอนด์นี้</translation>
    </message>
    <message id="ui.settings.backend.invalid">
      <source>Enter the server's https address and its public key.</source>
      <translation>กรอกที่อยู่ https ของเซิร์ฟเวอร์และคีย์สาธารณะ</translation>
    </message>
    <message id="ui.settings.backend.local">
      <source>This computer (private, nothing to set up)</source>
      <translation>คอมพิวเตอร์เครื่องนี้ (ส่วนตัว ไม่ต้องตั้งค่า)</translation>
    </message>
    <message id="ui.settings.backend.remote">
      <source>A shared server (for teams and several computers)</source>
      <translation>เซิร์ฟเวอร์ที่ใช้ร่วมกัน (สำหรับทีมและหลายเครื่อง)</translation>
    </message>
    <message id="ui.settings.deleteAccount">
      <source>Delete my account</source>
      <translation>ลบบัญชีของฉัน</translation>
    </message>
    <message id="ui.settings.deleteConfirm">
      <source>Your e-mail address, to confirm</source>
      <translation>อีเมลของคุณ เพื่อยืนยัน</translation>
    </message>
    <message id="ui.settings.deleteHint">
      <source>Deleting your account removes your projects, tasks, time and invoices from the server for good. Type your e-mail address to confirm.</source>
      <translation>การลบบัญชีจะลบโปรเจกต์ งาน เวลา และใบแจ้งหนี้ของคุณออกจากเซิร์ฟเวอร์อย่างถาวร พิมพ์อีเมลของคุณเพื่อยืนยัน</translation>
    </message>
    <message id="ui.settings.endOfDay">
      <source>Stop the timer at the end of the day</source>
      <translation>หยุดตัวจับเวลาเมื่อสิ้นวันทำงาน</translation>
    </message>
    <message id="ui.settings.every">
      <source>every (minutes)</source>
      <translation>ทุก ๆ (นาที)</translation>
    </message>
    <message id="ui.settings.from">
      <source>From</source>
      <translation>ตั้งแต่</translation>
    </message>
    <message id="ui.settings.idleAfter">
      <source>Ask about idle time after (minutes)</source>
      <translation>ถามเรื่องเวลาที่ไม่ได้ใช้งานหลังจาก (นาที)</translation>
    </message>
    <message id="ui.settings.local.folder">
      <source>Data folder</source>
      <translation>โฟลเดอร์ข้อมูล</translation>
    </message>
    <message id="ui.settings.local.running">
      <source>Running</source>
      <translation>กำลังทำงาน</translation>
    </message>
    <message id="ui.settings.local.size">
      <source>Size</source>
      <translation>ขนาด</translation>
    </message>
    <message id="ui.settings.local.start">
      <source>Start</source>
      <translation>เริ่ม</translation>
    </message>
    <message id="ui.settings.local.starting">
      <source>Starting</source>
      <translation>กำลังเริ่ม</translation>
    </message>
    <message id="ui.settings.local.state">
      <source>State</source>
      <translation>สถานะ</translation>
    </message>
    <message id="ui.settings.local.stop">
      <source>Stop</source>
      <translation>หยุด</translation>
    </message>
    <message id="ui.settings.local.stopped">
      <source>Stopped</source>
      <translation>หยุดแล้ว</translation>
    </message>
    <message id="ui.settings.longestRun">
      <source>Longest run (minutes, 0 for none)</source>
      <translation>ระยะจับเวลานานสุด (นาที, 0 คือไม่จำกัด)</translation>
    </message>
    <message id="ui.settings.looks">
      <source>Language and appearance</source>
      <translation>ภาษาและรูปลักษณ์</translation>
    </message>
    <message id="ui.settings.profile">
      <source>Profile</source>
      <translation>โปรไฟล์</translation>
    </message>
    <message id="ui.settings.reminders">
      <source>Remind me when no timer runs during working hours</source>
      <translation>เตือนเมื่อไม่มีตัวจับเวลาทำงานในเวลางาน</translation>
    </message>
    <message id="ui.settings.remote.key">
      <source>Public key</source>
      <translation>คีย์สาธารณะ</translation>
    </message>
    <message id="ui.settings.remote.url">
      <source>Address</source>
      <translation>ที่อยู่</translation>
    </message>
    <message id="ui.settings.saved">
      <source>Saved.</source>
      <translation>บันทึกแล้ว</translation>
    </message>
    <message id="ui.settings.scheme.dark">
      <source>Dark</source>
      <translation>มืด</translation>
    </message>
    <message id="ui.settings.scheme.light">
      <source>Light</source>
      <translation>สว่าง</translation>
    </message>
    <message id="ui.settings.scheme.system">
      <source>As the desktop</source>
      <translation>ตามเดสก์ท็อป</translation>
    </message>
    <message id="ui.settings.signedInAs">
      <source>Signed in as %1</source>
      <translation>ลงชื่อเข้าใช้เป็น %1</translation>
    </message>
    <message id="ui.settings.switchTo">
      <source>Switch to %1</source>
      <translation>สลับไปที่ %1</translation>
    </message>
    <message id="ui.settings.timer">
      <source>Timer</source>
      <translation>ตัวจับเวลา</translation>
    </message>
    <message id="ui.settings.to">
      <source>to</source>
      <translation>ถึง</translation>
    </message>
    <message id="ui.sidebar.newProjectName">
      <source>New project name</source>
      <translation>ชื่อโปรเจกต์ใหม่</translation>
    </message>
    <message id="ui.sidebar.newTeamName">
      <source>New team name</source>
      <translation>ชื่อทีมใหม่</translation>
    </message>
    <message id="ui.sidebar.overview">
      <source>All projects</source>
      <translation>โปรเจกต์ทั้งหมด</translation>
    </message>
    <message id="ui.sidebar.projects">
      <source>Projects</source>
      <translation>โปรเจกต์</translation>
    </message>
    <message id="ui.sidebar.running">
      <source>Timer running</source>
      <translation>ตัวจับเวลากำลังทำงาน</translation>
    </message>
    <message id="ui.sidebar.shared">
      <source>Shared with a team</source>
      <translation>แชร์กับทีม</translation>
    </message>
    <message id="ui.sidebar.teams">
      <source>Teams</source>
      <translation>ทีม</translation>
    </message>
    <message id="ui.startup.backend">
      <source>Starting your local backend…</source>
      <translation>กำลังเริ่มแบ็กเอนด์ในเครื่องของคุณ…</translation>
    </message>
    <message id="ui.startup.failed">
      <source>Your local backend could not start.</source>
      <translation>แบ็กเอนด์ในเครื่องของคุณเริ่มทำงานไม่ได้</translation>
    </message>
    <message id="ui.startup.loading">
      <source>Loading your projects…</source>
      <translation>กำลังโหลดโปรเจกต์ของคุณ…</translation>
    </message>
    <message id="ui.status.completed">
      <source>Completed</source>
      <translation>เสร็จสิ้น</translation>
    </message>
    <message id="ui.status.in_progress">
      <source>In progress</source>
      <translation>กำลังดำเนินการ</translation>
    </message>
    <message id="ui.status.not_started">
      <source>Not started</source>
      <translation>ยังไม่เริ่ม</translation>
    </message>
    <message id="ui.style.accent">
      <source>Accent</source>
      <translation>สีเน้น</translation>
    </message>
    <message id="ui.style.address">
      <source>Address</source>
      <translation>ที่อยู่</translation>
    </message>
    <message id="ui.style.bank">
      <source>Bank</source>
      <translation>ธนาคาร</translation>
    </message>
    <message id="ui.style.banner">
      <source>Banner</source>
      <translation>แถบ</translation>
    </message>
    <message id="ui.style.border">
      <source>Border</source>
      <translation>เส้นขอบ</translation>
    </message>
    <message id="ui.style.btw">
      <source>VAT number</source>
      <translation>เลขประจำตัวผู้เสียภาษี</translation>
    </message>
    <message id="ui.style.chooseLogo">
      <source>Choose logo…</source>
      <translation>เลือกโลโก้…</translation>
    </message>
    <message id="ui.style.colourAuto">
      <source>auto</source>
      <translation>อัตโนมัติ</translation>
    </message>
    <message id="ui.style.company">
      <source>Company</source>
      <translation>บริษัท</translation>
    </message>
    <message id="ui.style.customHint">
      <source>An HTML page with {{placeholders}}, a &lt;header&gt; and a &lt;footer&gt;, fixed at 794 × 1123 px. When it cannot be used, invoices are drawn in “Light minimal”.</source>
      <translation>หน้า HTML ที่มี {{ตัวแทน}} มี &lt;header&gt; และ &lt;footer&gt; และกำหนดขนาดไว้ที่ 794 × 1123 px หากใช้ไม่ได้ ใบแจ้งหนี้จะใช้ดีไซน์ “มินิมอลสีอ่อน”</translation>
    </message>
    <message id="ui.style.customTitle">
      <source>Your own template</source>
      <translation>เทมเพลตของคุณเอง</translation>
    </message>
    <message id="ui.style.days">
      <source>Payment terms in days</source>
      <translation>ระยะเวลาชำระเงิน (วัน)</translation>
    </message>
    <message id="ui.style.design.aiCustom">
      <source>Your template</source>
      <translation>เทมเพลตของคุณ</translation>
    </message>
    <message id="ui.style.design.boldDark">
      <source>Bold dark</source>
      <translation>เข้มโดดเด่น</translation>
    </message>
    <message id="ui.style.design.editorial">
      <source>Editorial</source>
      <translation>เอดิทอเรียล</translation>
    </message>
    <message id="ui.style.design.editorialMono">
      <source>Editorial mono</source>
      <translation>เอดิทอเรียลโมโน</translation>
    </message>
    <message id="ui.style.design.lightMinimalAccent">
      <source>Light minimal</source>
      <translation>มินิมอลสีอ่อน</translation>
    </message>
    <message id="ui.style.design.minimalistMono">
      <source>Minimalist mono</source>
      <translation>มินิมอลโมโน</translation>
    </message>
    <message id="ui.style.design.modernRibbon">
      <source>Modern ribbon</source>
      <translation>ริบบอนโมเดิร์น</translation>
    </message>
    <message id="ui.style.design.pastelModern">
      <source>Pastel modern</source>
      <translation>พาสเทลโมเดิร์น</translation>
    </message>
    <message id="ui.style.design.signatureEditorial">
      <source>Signature</source>
      <translation>ซิกเนเจอร์</translation>
    </message>
    <message id="ui.style.designs">
      <source>Design</source>
      <translation>ดีไซน์</translation>
    </message>
    <message id="ui.style.designsHint">
      <source>Every new invoice is drawn in the chosen design. The pictures show a sample invoice in your style.</source>
      <translation>ใบแจ้งหนี้ใหม่ทุกใบจะใช้ดีไซน์ที่เลือก ภาพตัวอย่างแสดงใบแจ้งหนี้ตัวอย่างในรูปแบบของคุณ</translation>
    </message>
    <message id="ui.style.drawing">
      <source>Drawing the designs</source>
      <translation>กำลังวาดดีไซน์</translation>
    </message>
    <message id="ui.style.email">
      <source>E-mail</source>
      <translation>อีเมล</translation>
    </message>
    <message id="ui.style.err.days">
      <source>Payment terms are a whole number of days from 0 to 365.</source>
      <translation>ระยะเวลาชำระเงินต้องเป็นจำนวนวันเต็มตั้งแต่ 0 ถึง 365</translation>
    </message>
    <message id="ui.style.err.vatRate">
      <source>The VAT rate is a percentage from 0 to 100.</source>
      <translation>อัตราภาษีต้องเป็นเปอร์เซ็นต์ตั้งแต่ 0 ถึง 100</translation>
    </message>
    <message id="ui.style.fallsBack">
      <source>%1 Invoices fall back to “Light minimal” until it is fixed.</source>
      <translation>%1 ใบแจ้งหนี้จะใช้ดีไซน์ “มินิมอลสีอ่อน” จนกว่าจะแก้ไข</translation>
    </message>
    <message id="ui.style.fontAuto">
      <source>The design’s own</source>
      <translation>ตามดีไซน์</translation>
    </message>
    <message id="ui.style.fontBody">
      <source>Text font</source>
      <translation>ฟอนต์เนื้อหา</translation>
    </message>
    <message id="ui.style.fontDisplay">
      <source>Headings font</source>
      <translation>ฟอนต์หัวเรื่อง</translation>
    </message>
    <message id="ui.style.footer">
      <source>Footer</source>
      <translation>ส่วนท้าย</translation>
    </message>
    <message id="ui.style.footerPlaceholder">
      <source>Thank you for your business.</source>
      <translation>ขอบคุณที่ใช้บริการ</translation>
    </message>
    <message id="ui.style.htmlFilter">
      <source>HTML files (*.html *.htm)</source>
      <translation>ไฟล์ HTML (*.html *.htm)</translation>
    </message>
    <message id="ui.style.iban">
      <source>Bank account (IBAN)</source>
      <translation>บัญชีธนาคาร (IBAN)</translation>
    </message>
    <message id="ui.style.imageFilter">
      <source>Images (*.png *.jpg *.jpeg)</source>
      <translation>รูปภาพ (*.png *.jpg *.jpeg)</translation>
    </message>
    <message id="ui.style.ink">
      <source>Ink</source>
      <translation>สีตัวอักษร</translation>
    </message>
    <message id="ui.style.kvk">
      <source>Chamber of commerce number</source>
      <translation>เลขทะเบียนพาณิชย์</translation>
    </message>
    <message id="ui.style.logo">
      <source>Logo</source>
      <translation>โลโก้</translation>
    </message>
    <message id="ui.style.logoDialog">
      <source>Choose a logo</source>
      <translation>เลือกโลโก้</translation>
    </message>
    <message id="ui.style.logoHint">
      <source>PNG or JPEG, at most 1 MB; wider than 600 px is scaled down.</source>
      <translation>PNG หรือ JPEG ขนาดไม่เกิน 1 MB ภาพที่กว้างเกิน 600 px จะถูกย่อ</translation>
    </message>
    <message id="ui.style.look">
      <source>Look</source>
      <translation>รูปลักษณ์</translation>
    </message>
    <message id="ui.style.madeWith">
      <source>Show “Made with Morvane” in the footer</source>
      <translation>แสดง “สร้างด้วย Morvane” ที่ส่วนท้าย</translation>
    </message>
    <message id="ui.style.muted">
      <source>Muted</source>
      <translation>สีรอง</translation>
    </message>
    <message id="ui.style.noLogo">
      <source>No logo</source>
      <translation>ไม่มีโลโก้</translation>
    </message>
    <message id="ui.style.noTemplate">
      <source>No template uploaded: invoices use the design chosen above.</source>
      <translation>ยังไม่ได้อัปโหลดเทมเพลต ใบแจ้งหนี้จะใช้ดีไซน์ที่เลือกไว้ด้านบน</translation>
    </message>
    <message id="ui.style.palette">
      <source>Palette</source>
      <translation>ชุดสี</translation>
    </message>
    <message id="ui.style.paper">
      <source>Paper</source>
      <translation>สีกระดาษ</translation>
    </message>
    <message id="ui.style.phone">
      <source>Phone</source>
      <translation>โทรศัพท์</translation>
    </message>
    <message id="ui.style.removeLogo">
      <source>Remove logo</source>
      <translation>ลบโลโก้</translation>
    </message>
    <message id="ui.style.removeTemplate">
      <source>Remove template</source>
      <translation>ลบเทมเพลต</translation>
    </message>
    <message id="ui.style.revert">
      <source>Undo changes</source>
      <translation>เลิกทำการเปลี่ยนแปลง</translation>
    </message>
    <message id="ui.style.saving">
      <source>Saving…</source>
      <translation>กำลังบันทึก…</translation>
    </message>
    <message id="ui.style.sender">
      <source>Sender</source>
      <translation>ผู้ส่ง</translation>
    </message>
    <message id="ui.style.templateDialog">
      <source>Choose an HTML template</source>
      <translation>เลือกเทมเพลต HTML</translation>
    </message>
    <message id="ui.style.templateNotUsed">
      <source>Not used</source>
      <translation>ไม่ได้ใช้</translation>
    </message>
    <message id="ui.style.templateUsed">
      <source>Used</source>
      <translation>ใช้งานอยู่</translation>
    </message>
    <message id="ui.style.title">
      <source>Invoice style</source>
      <translation>รูปแบบใบแจ้งหนี้</translation>
    </message>
    <message id="ui.style.unsaved">
      <source>Unsaved changes</source>
      <translation>มีการเปลี่ยนแปลงที่ยังไม่บันทึก</translation>
    </message>
    <message id="ui.style.upload">
      <source>Upload template…</source>
      <translation>อัปโหลดเทมเพลต…</translation>
    </message>
    <message id="ui.style.vatRate">
      <source>Default VAT rate in %</source>
      <translation>อัตราภาษีเริ่มต้น (%)</translation>
    </message>
    <message id="ui.style.website">
      <source>Website</source>
      <translation>เว็บไซต์</translation>
    </message>
    <message id="ui.summary.callFailed">
      <source>The model could not be asked (%1). This text is written from your figures alone.</source>
      <translation>ถามโมเดลไม่ได้ (%1) ข้อความนี้เขียนจากตัวเลขของคุณเท่านั้น</translation>
    </message>
    <message id="ui.summary.copy">
      <source>Copy</source>
      <translation>คัดลอก</translation>
    </message>
    <message id="ui.summary.draftingStandup">
      <source>Drafting your stand-up…</source>
      <translation>กำลังร่างสแตนด์อัพของคุณ…</translation>
    </message>
    <message id="ui.summary.fixed">
      <source>Written from your figures</source>
      <translation>เขียนจากตัวเลขของคุณ</translation>
    </message>
    <message id="ui.summary.generate">
      <source>Generate</source>
      <translation>สร้าง</translation>
    </message>
    <message id="ui.summary.language">
      <source>Language of the text</source>
      <translation>ภาษาของข้อความ</translation>
    </message>
    <message id="ui.summary.model">
      <source>Written by the model, checked against your figures</source>
      <translation>เขียนโดยโมเดล ตรวจกับตัวเลขของคุณแล้ว</translation>
    </message>
    <message id="ui.summary.nothing">
      <source>Nothing was tracked in this period, so there was nothing to put in words.</source>
      <translation>ไม่มีการบันทึกในช่วงนี้ จึงไม่มีอะไรให้เรียบเรียง</translation>
    </message>
    <message id="ui.summary.readFailed">
      <source>Your time could not be read: %1</source>
      <translation>อ่านเวลาของคุณไม่ได้: %1</translation>
    </message>
    <message id="ui.summary.recap">
      <source>Weekly recap</source>
      <translation>สรุปประจำสัปดาห์</translation>
    </message>
    <message id="ui.summary.recapHint">
      <source>Press Generate for a short recap of the time you tracked this week.</source>
      <translation>กด สร้าง เพื่อดูสรุปสั้น ๆ ของเวลาที่คุณบันทึกในสัปดาห์นี้</translation>
    </message>
    <message id="ui.summary.rejected">
      <source>The model's words did not hold up against your figures (%1). This text is written from your figures alone.</source>
      <translation>ข้อความของโมเดลไม่ตรงกับตัวเลขของคุณ (%1) ข้อความนี้เขียนจากตัวเลขของคุณเท่านั้น</translation>
    </message>
    <message id="ui.summary.standup">
      <source>Daily stand-up</source>
      <translation>สแตนด์อัพประจำวัน</translation>
    </message>
    <message id="ui.summary.standupHint">
      <source>Press Generate to draft your stand-up.</source>
      <translation>กด สร้าง เพื่อร่างสแตนด์อัพของคุณ</translation>
    </message>
    <message id="ui.summary.textName">
      <source>Recap or stand-up text</source>
      <translation>ข้อความสรุปหรือสแตนด์อัพ</translation>
    </message>
    <message id="ui.summary.title">
      <source>Recap and stand-up</source>
      <translation>สรุปและสแตนด์อัพ</translation>
    </message>
    <message id="ui.summary.uiLanguage">
      <source>Interface language</source>
      <translation>ภาษาของแอป</translation>
    </message>
    <message id="ui.summary.writingRecap">
      <source>Writing your recap…</source>
      <translation>กำลังเขียนสรุปของคุณ…</translation>
    </message>
    <message id="ui.tasks.add">
      <source>Add a task and press Enter</source>
      <translation>พิมพ์งานใหม่แล้วกด Enter</translation>
    </message>
    <message id="ui.tasks.bulkDeleteTitle">
      <source>Delete the selected tasks (%1)?</source>
      <translation>ลบงานที่เลือก (%1) ใช่ไหม</translation>
    </message>
    <message id="ui.tasks.check">
      <source>Select %1</source>
      <translation>เลือก %1</translation>
    </message>
    <message id="ui.tasks.clearSelection">
      <source>Clear</source>
      <translation>ล้าง</translation>
    </message>
    <message id="ui.tasks.deleteBody">
      <source>Its time entries are deleted too.</source>
      <translation>รายการเวลาของงานนี้จะถูกลบไปด้วย</translation>
    </message>
    <message id="ui.tasks.deleteTitle">
      <source>Delete this task?</source>
      <translation>ลบงานนี้ใช่ไหม</translation>
    </message>
    <message id="ui.tasks.dragHandle">
      <source>Drag to reorder</source>
      <translation>ลากเพื่อจัดลำดับใหม่</translation>
    </message>
    <message id="ui.tasks.empty">
      <source>No tasks yet.</source>
      <translation>ยังไม่มีงาน</translation>
    </message>
    <message id="ui.tasks.emptyHint">
      <source>Press Ctrl+N to add one.</source>
      <translation>กด Ctrl+N เพื่อเพิ่มงาน</translation>
    </message>
    <message id="ui.tasks.filter">
      <source>Filter</source>
      <translation>ตัวกรอง</translation>
    </message>
    <message id="ui.tasks.filter.active">
      <source>Open</source>
      <translation>ยังไม่เสร็จ</translation>
    </message>
    <message id="ui.tasks.filter.all">
      <source>All</source>
      <translation>ทั้งหมด</translation>
    </message>
    <message id="ui.tasks.filter.archived">
      <source>Archived</source>
      <translation>เก็บถาวรแล้ว</translation>
    </message>
    <message id="ui.tasks.filter.done">
      <source>Done</source>
      <translation>เสร็จแล้ว</translation>
    </message>
    <message id="ui.tasks.list">
      <source>Tasks</source>
      <translation>งาน</translation>
    </message>
    <message id="ui.tasks.markDone">
      <source>Mark done</source>
      <translation>ทำเครื่องหมายว่าเสร็จแล้ว</translation>
    </message>
    <message id="ui.tasks.moveTo">
      <source>Move to…</source>
      <translation>ย้ายไปที่…</translation>
    </message>
    <message id="ui.tasks.needsProject">
      <source>Create a project first: tasks belong to a project.</source>
      <translation>สร้างโปรเจกต์ก่อน เพราะงานทุกงานต้องอยู่ในโปรเจกต์</translation>
    </message>
    <message id="ui.tasks.noMatch">
      <source>No task matches “%1”.</source>
      <translation>ไม่มีงานที่ตรงกับ “%1”</translation>
    </message>
    <message id="ui.tasks.noMatchHint">
      <source>Try fewer letters, or press Esc to clear the search.</source>
      <translation>ลองพิมพ์ให้สั้นลง หรือกด Esc เพื่อล้างการค้นหา</translation>
    </message>
    <message id="ui.tasks.noProjects">
      <source>No projects yet.</source>
      <translation>ยังไม่มีโปรเจกต์</translation>
    </message>
    <message id="ui.tasks.noProjectsHint">
      <source>Press Ctrl+Shift+N to create your first project.</source>
      <translation>กด Ctrl+Shift+N เพื่อสร้างโปรเจกต์แรกของคุณ</translation>
    </message>
    <message id="ui.tasks.reopen">
      <source>Reopen</source>
      <translation>เปิดใหม่</translation>
    </message>
    <message id="ui.tasks.search">
      <source>Search</source>
      <translation>ค้นหา</translation>
    </message>
    <message id="ui.tasks.selected">
      <source>%1 selected</source>
      <translation>เลือกแล้ว %1 รายการ</translation>
    </message>
    <message id="ui.tasks.sort">
      <source>Sort</source>
      <translation>เรียงลำดับ</translation>
    </message>
    <message id="ui.tasks.sort.alpha">
      <source>Name</source>
      <translation>ชื่อ</translation>
    </message>
    <message id="ui.tasks.sort.createdDesc">
      <source>Newest first</source>
      <translation>ใหม่สุดก่อน</translation>
    </message>
    <message id="ui.tasks.sort.dueAsc">
      <source>Due date</source>
      <translation>วันครบกำหนด</translation>
    </message>
    <message id="ui.tasks.sort.manual">
      <source>Manual order</source>
      <translation>ลำดับที่จัดเอง</translation>
    </message>
    <message id="ui.tasks.sort.priorityDesc">
      <source>Priority</source>
      <translation>ความสำคัญ</translation>
    </message>
    <message id="ui.tasks.sort.trackedDesc">
      <source>Most tracked</source>
      <translation>ใช้เวลามากที่สุด</translation>
    </message>
    <message id="ui.teams.accept">
      <source>Accept</source>
      <translation>ยอมรับ</translation>
    </message>
    <message id="ui.teams.decline">
      <source>Decline</source>
      <translation>ปฏิเสธ</translation>
    </message>
    <message id="ui.teams.invitations">
      <source>Invitations for you</source>
      <translation>คำเชิญถึงคุณ</translation>
    </message>
    <message id="ui.teams.invite">
      <source>Invite by e-mail</source>
      <translation>เชิญทางอีเมล</translation>
    </message>
    <message id="ui.teams.inviteButton">
      <source>Invite</source>
      <translation>เชิญ</translation>
    </message>
    <message id="ui.teams.leave">
      <source>Leave the team</source>
      <translation>ออกจากทีม</translation>
    </message>
    <message id="ui.teams.leaveTitle">
      <source>Leave %1?</source>
      <translation>ออกจาก %1 ใช่ไหม</translation>
    </message>
    <message id="ui.teams.members">
      <source>Members</source>
      <translation>สมาชิก</translation>
    </message>
    <message id="ui.teams.remove">
      <source>Remove</source>
      <translation>นำออก</translation>
    </message>
    <message id="ui.teams.removeBody">
      <source>The team's projects are no longer shared with them. Their own time stays theirs.</source>
      <translation>โปรเจกต์ของทีมจะไม่ถูกแชร์กับบุคคลนี้อีก เวลาของเขายังเป็นของเขาเอง</translation>
    </message>
    <message id="ui.teams.removeTitle">
      <source>Remove this member?</source>
      <translation>นำสมาชิกคนนี้ออกใช่ไหม</translation>
    </message>
    <message id="ui.teams.role">
      <source>Role</source>
      <translation>บทบาท</translation>
    </message>
    <message id="ui.teams.role.editor">
      <source>Editor</source>
      <translation>ผู้แก้ไข</translation>
    </message>
    <message id="ui.teams.role.owner">
      <source>Owner</source>
      <translation>เจ้าของ</translation>
    </message>
    <message id="ui.teams.role.viewer">
      <source>Viewer</source>
      <translation>ผู้ดู</translation>
    </message>
    <message id="ui.teams.viewerNote">
      <source>Only the team owner and editors can invite people.</source>
      <translation>เฉพาะเจ้าของทีมและผู้แก้ไขเท่านั้นที่เชิญคนอื่นได้</translation>
    </message>
    <message id="ui.timeLimit.body">
      <source>“%1” was stopped at %2, and the time until then is logged.</source>
      <translation>หยุด “%1” เมื่อเวลา %2 และบันทึกเวลาจนถึงตอนนั้นแล้ว</translation>
    </message>
    <message id="ui.timeLimit.endOfDay">
      <source>Timer stopped at the end of your day</source>
      <translation>หยุดตัวจับเวลาเมื่อสิ้นสุดวันทำงาน</translation>
    </message>
    <message id="ui.timeLimit.longestRun">
      <source>Timer stopped after its longest run</source>
      <translation>หยุดตัวจับเวลาเมื่อครบเวลาสูงสุด</translation>
    </message>
    <message id="ui.timer.idle">
      <source>No timer running. Select a task and press Space.</source>
      <translation>ไม่มีตัวจับเวลาที่ทำงานอยู่ เลือกงานแล้วกด Space</translation>
    </message>
    <message id="ui.timer.name">
      <source>Timer</source>
      <translation>ตัวจับเวลา</translation>
    </message>
    <message id="ui.timer.notRunning">
      <source>Not running</source>
      <translation>ไม่ได้ทำงาน</translation>
    </message>
    <message id="ui.timer.offline">
      <source>Offline</source>
      <translation>ออฟไลน์</translation>
    </message>
    <message id="ui.timer.offlineHint">
      <source>Offline: changes from other devices arrive when the connection is back.</source>
      <translation>ออฟไลน์: การเปลี่ยนแปลงจากอุปกรณ์อื่นจะเข้ามาเมื่อกลับมาเชื่อมต่อได้</translation>
    </message>
    <message id="ui.timer.start">
      <source>Start</source>
      <translation>เริ่ม</translation>
    </message>
    <message id="ui.timer.stop">
      <source>Stop</source>
      <translation>หยุด</translation>
    </message>
    <message id="ui.tray.floating">
      <source>Floating timer</source>
      <translation>ตัวจับเวลาแบบลอย</translation>
    </message>
    <message id="ui.tray.open">
      <source>Open Morvane</source>
      <translation>เปิด Morvane</translation>
    </message>
    <message id="ui.tray.quickAdd">
      <source>Quick add…</source>
      <translation>เพิ่มด่วน…</translation>
    </message>
    <message id="ui.tray.quit">
      <source>Quit</source>
      <translation>ออก</translation>
    </message>
    <message id="ui.tray.start">
      <source>Start</source>
      <translation>เริ่ม</translation>
    </message>
    <message id="ui.tray.stop">
      <source>Stop the timer</source>
      <translation>หยุดตัวจับเวลา</translation>
    </message>
    <message id="ui.trips.allProjects">
      <source>All projects</source>
      <translation>ทุกโปรเจกต์</translation>
    </message>
    <message id="ui.trips.billable.all">
      <source>Charged and not</source>
      <translation>เรียกเก็บและไม่เรียกเก็บ</translation>
    </message>
    <message id="ui.trips.billable.no">
      <source>Private or not charged</source>
      <translation>ส่วนตัวหรือไม่เรียกเก็บ</translation>
    </message>
    <message id="ui.trips.billable.yes">
      <source>Charged to the client</source>
      <translation>เรียกเก็บจากลูกค้า</translation>
    </message>
    <message id="ui.trips.billableFilter">
      <source>Charging</source>
      <translation>การเรียกเก็บ</translation>
    </message>
    <message id="ui.trips.charge">
      <source>Charge to the client</source>
      <translation>เรียกเก็บจากลูกค้า</translation>
    </message>
    <message id="ui.trips.chip.invoiced">
      <source>Invoiced</source>
      <translation>ออกใบแจ้งหนี้แล้ว</translation>
    </message>
    <message id="ui.trips.chip.notCharged">
      <source>Not charged</source>
      <translation>ไม่เรียกเก็บ</translation>
    </message>
    <message id="ui.trips.chip.private">
      <source>Private</source>
      <translation>ส่วนตัว</translation>
    </message>
    <message id="ui.trips.chip.toInvoice">
      <source>To invoice</source>
      <translation>รอออกใบแจ้งหนี้</translation>
    </message>
    <message id="ui.trips.clientHit">
      <source>Client</source>
      <translation>ลูกค้า</translation>
    </message>
    <message id="ui.trips.date">
      <source>Date</source>
      <translation>วันที่</translation>
    </message>
    <message id="ui.trips.edit">
      <source>Edit trip</source>
      <translation>แก้ไขการเดินทาง</translation>
    </message>
    <message id="ui.trips.emptyHint">
      <source>Trips your phone records while a timer runs show up here. Press Ctrl+N or “New trip” to add one by hand.</source>
      <translation>การเดินทางที่โทรศัพท์บันทึกขณะตัวจับเวลาทำงานจะแสดงที่นี่ กด Ctrl+N หรือ “การเดินทางใหม่” เพื่อเพิ่มเอง</translation>
    </message>
    <message id="ui.trips.emptyTitle">
      <source>No trips yet</source>
      <translation>ยังไม่มีการเดินทาง</translation>
    </message>
    <message id="ui.trips.finish">
      <source>Finish trip</source>
      <translation>สิ้นสุดการเดินทาง</translation>
    </message>
    <message id="ui.trips.from">
      <source>From</source>
      <translation>จาก</translation>
    </message>
    <message id="ui.trips.km">
      <source>Kilometres</source>
      <translation>กิโลเมตร</translation>
    </message>
    <message id="ui.trips.kmColumn">
      <source>km</source>
      <translation>กม.</translation>
    </message>
    <message id="ui.trips.map.route">
      <source>Road route of the trip</source>
      <translation>เส้นทางถนนของการเดินทาง</translation>
    </message>
    <message id="ui.trips.map.straight">
      <source>Straight line between the places</source>
      <translation>เส้นตรงระหว่างสองจุด</translation>
    </message>
    <message id="ui.trips.mode">
      <source>Travelled by</source>
      <translation>เดินทางโดย</translation>
    </message>
    <message id="ui.trips.mode.bike">
      <source>Bike</source>
      <translation>จักรยาน</translation>
    </message>
    <message id="ui.trips.mode.car">
      <source>Car</source>
      <translation>รถยนต์</translation>
    </message>
    <message id="ui.trips.mode.other">
      <source>Other</source>
      <translation>อื่น ๆ</translation>
    </message>
    <message id="ui.trips.mode.transit">
      <source>Public transport</source>
      <translation>ขนส่งสาธารณะ</translation>
    </message>
    <message id="ui.trips.mode.walk">
      <source>On foot</source>
      <translation>เดิน</translation>
    </message>
    <message id="ui.trips.new">
      <source>New trip</source>
      <translation>การเดินทางใหม่</translation>
    </message>
    <message id="ui.trips.noMatch">
      <source>No trip matches these filters</source>
      <translation>ไม่มีการเดินทางที่ตรงกับตัวกรองนี้</translation>
    </message>
    <message id="ui.trips.period.all">
      <source>All time</source>
      <translation>ทั้งหมด</translation>
    </message>
    <message id="ui.trips.period.lastMonth">
      <source>Last month</source>
      <translation>เดือนที่แล้ว</translation>
    </message>
    <message id="ui.trips.period.month">
      <source>This month</source>
      <translation>เดือนนี้</translation>
    </message>
    <message id="ui.trips.period.year">
      <source>This year</source>
      <translation>ปีนี้</translation>
    </message>
    <message id="ui.trips.periodFilter">
      <source>Period</source>
      <translation>ช่วงเวลา</translation>
    </message>
    <message id="ui.trips.placePlaceholder">
      <source>Address, place or client</source>
      <translation>ที่อยู่ สถานที่ หรือลูกค้า</translation>
    </message>
    <message id="ui.trips.private">
      <source>Private trip</source>
      <translation>การเดินทางส่วนตัว</translation>
    </message>
    <message id="ui.trips.problem.date">
      <source>Enter the day as YYYY-MM-DD.</source>
      <translation>ใส่วันที่ในรูปแบบ YYYY-MM-DD</translation>
    </message>
    <message id="ui.trips.problem.from">
      <source>Where did the trip start?</source>
      <translation>การเดินทางเริ่มที่ไหน</translation>
    </message>
    <message id="ui.trips.problem.km">
      <source>Enter the kilometres, for example 12.5.</source>
      <translation>ใส่ระยะทางเป็นกิโลเมตร เช่น 12.5</translation>
    </message>
    <message id="ui.trips.problem.rate">
      <source>Enter the rate per kilometre as a number, for example 0.23.</source>
      <translation>ใส่อัตราต่อกิโลเมตรเป็นตัวเลข เช่น 0.23</translation>
    </message>
    <message id="ui.trips.problem.to">
      <source>Where did the trip end?</source>
      <translation>การเดินทางสิ้นสุดที่ไหน</translation>
    </message>
    <message id="ui.trips.progress">
      <source>%1 km · %2 min</source>
      <translation>%1 กม. · %2 นาที</translation>
    </message>
    <message id="ui.trips.projectFilter">
      <source>Project</source>
      <translation>โปรเจกต์</translation>
    </message>
    <message id="ui.trips.projectHint">
      <source>Trips of this project go on its invoices. Private trips and trips you do not charge never do.</source>
      <translation>การเดินทางของโปรเจกต์นี้จะอยู่ในใบแจ้งหนี้ ยกเว้นการเดินทางส่วนตัวและที่ไม่เรียกเก็บ</translation>
    </message>
    <message id="ui.trips.purpose">
      <source>Purpose</source>
      <translation>วัตถุประสงค์</translation>
    </message>
    <message id="ui.trips.purposePlaceholder">
      <source>For example: meeting at the client, delivery</source>
      <translation>เช่น ประชุมที่ลูกค้า ส่งของ</translation>
    </message>
    <message id="ui.trips.rate">
      <source>Rate per kilometre</source>
      <translation>อัตราต่อกิโลเมตร</translation>
    </message>
    <message id="ui.trips.rateHint">
      <source>Used for projects that charge travel per kilometre and name no rate of their own.</source>
      <translation>ใช้กับโปรเจกต์ที่เรียกเก็บค่าเดินทางต่อกิโลเมตรและไม่มีอัตราของตนเอง</translation>
    </message>
    <message id="ui.trips.resultsFrom">
      <source>Results from OpenStreetMap, without KvK numbers.</source>
      <translation>ผลลัพธ์จาก OpenStreetMap ไม่มีหมายเลข KvK</translation>
    </message>
    <message id="ui.trips.routing">
      <source>Finding the road route…</source>
      <translation>กำลังหาเส้นทางถนน…</translation>
    </message>
    <message id="ui.trips.searching">
      <source>Searching…</source>
      <translation>กำลังค้นหา…</translation>
    </message>
    <message id="ui.trips.settings">
      <source>Travel settings</source>
      <translation>การตั้งค่าการเดินทาง</translation>
    </message>
    <message id="ui.trips.start">
      <source>Start a trip now</source>
      <translation>เริ่มเดินทางตอนนี้</translation>
    </message>
    <message id="ui.trips.summaryMany">
      <source>%1 trips · %2 km</source>
      <translation>%1 การเดินทาง · %2 กม.</translation>
    </message>
    <message id="ui.trips.summaryOne">
      <source>1 trip · %1 km</source>
      <translation>1 การเดินทาง · %1 กม.</translation>
    </message>
    <message id="ui.trips.title">
      <source>Trips</source>
      <translation>การเดินทาง</translation>
    </message>
    <message id="ui.trips.to">
      <source>To</source>
      <translation>ถึง</translation>
    </message>
    <message id="ui.trips.toInvoice">
      <source>%1 to invoice: %2</source>
      <translation>รอออกใบแจ้งหนี้ %1: %2</translation>
    </message>
    <message id="ui.trips.trip">
      <source>Trip</source>
      <translation>การเดินทาง</translation>
    </message>
    <message id="ui.trips.usualMode">
      <source>Usually travel by</source>
      <translation>ปกติเดินทางด้วย</translation>
    </message>
    <message id="ui.trips.work">
      <source>Project and task</source>
      <translation>โปรเจกต์และงาน</translation>
    </message>
    <message id="ui.trips.work.none">
      <source>Choose a project or task</source>
      <translation>เลือกโปรเจกต์หรืองาน</translation>
    </message>
    <message id="ui.trips.work.wholeProject">
      <source>%1 · Whole project, no task</source>
      <translation>%1 · ทั้งโปรเจกต์ ไม่ระบุงาน</translation>
    </message>
  </context>
</TS>

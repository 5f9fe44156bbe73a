<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH">
  <context>
    <name>Morvane</name>
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
    <message id="cli.argument.command">
      <source>The command to run; without one, the command list is shown.</source>
      <translation>คำสั่งที่จะเรียกใช้ หากไม่ระบุจะแสดงรายการคำสั่ง</translation>
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
      <source>Usage: morvane auth signup|signin &lt;e-mail&gt; | signout | status | switch &lt;e-mail&gt; | accounts [--json]</source>
      <translation>วิธีใช้: morvane auth signup|signin &lt;อีเมล&gt; | signout | status | switch &lt;อีเมล&gt; | accounts [--json]</translation>
    </message>
    <message id="cli.command.auth">
      <source>Sign up, sign in and out, switch between accounts</source>
      <translation>สมัคร ลงชื่อเข้าและออก สลับบัญชี</translation>
    </message>
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>แสดงแบ็กเอนด์ที่ Morvane ใช้และที่มาของการตั้งค่าแต่ละรายการ</translation>
    </message>
    <message id="cli.command.server">
      <source>Start, stop or show the local backend: server start|stop|status</source>
      <translation>เริ่ม หยุด หรือแสดงแบ็กเอนด์ในเครื่อง: server start|stop|status</translation>
    </message>
    <message id="cli.commands">
      <source>Commands:</source>
      <translation>คำสั่ง:</translation>
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
    <message id="cli.err.unknownCommand">
      <source>Unknown command: %1. Run morvane --help for the list of commands.</source>
      <translation>ไม่รู้จักคำสั่ง: %1 เรียกใช้ morvane --help เพื่อดูรายการคำสั่ง</translation>
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
    <message id="client.err.notLoaded">
      <source>Your clients could not be loaded.</source>
      <translation>โหลดลูกค้าของคุณไม่ได้</translation>
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
    <message id="invoiceFooter">
      <source>Made with Morvane</source>
      <translation>สร้างด้วย Morvane</translation>
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
    <message id="task.err.notCreated">
      <source>The task was not created: you may not add tasks to this project.</source>
      <translation>ไม่ได้สร้างงาน: คุณไม่มีสิทธิ์เพิ่มงานในโปรเจกต์นี้</translation>
    </message>
    <message id="task.err.notSaved">
      <source>The task was not changed: you may not edit it, or it no longer exists.</source>
      <translation>ไม่ได้เปลี่ยนงาน: คุณไม่มีสิทธิ์แก้ไข หรืองานนี้ไม่มีอยู่แล้ว</translation>
    </message>
    <message id="team.err.notCreated">
      <source>The team was not created. Try again.</source>
      <translation>สร้างทีมไม่ได้ โปรดลองอีกครั้ง</translation>
    </message>
    <message id="team.err.notLoaded">
      <source>Your teams could not be loaded.</source>
      <translation>โหลดทีมของคุณไม่ได้</translation>
    </message>
    <message id="timer.err.startedElsewhere">
      <source>The timer of this task was started on another device, so its status was not changed.</source>
      <translation>ตัวจับเวลาของงานนี้เริ่มบนอุปกรณ์อื่น จึงไม่ได้เปลี่ยนสถานะของงาน</translation>
    </message>
  </context>
</TS>

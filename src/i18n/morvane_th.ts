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
    <message id="cli.command.config">
      <source>Show which backend Morvane uses and where each setting comes from</source>
      <translation>แสดงแบ็กเอนด์ที่ Morvane ใช้และที่มาของการตั้งค่าแต่ละรายการ</translation>
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
    <message id="cli.option.version">
      <source>Show the version.</source>
      <translation>แสดงเวอร์ชัน</translation>
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
    <message id="somethingWentWrong">
      <source>Something went wrong. Try again.</source>
      <translation>เกิดข้อผิดพลาด โปรดลองอีกครั้ง</translation>
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
  </context>
</TS>

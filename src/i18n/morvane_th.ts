<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH">
  <context>
    <name>Morvane</name>
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

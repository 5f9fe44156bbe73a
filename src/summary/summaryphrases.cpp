#include "summary/summaryphrases.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace WorkSummary {

namespace {

using Opt = std::optional<QString>;

QString n(int value)
{
    return QString::number(value);
}

// Latin-script languages share the shape of a parenthesis and of the sentence joints.
Phrases latin(QString open, QString close)
{
    Phrases p;
    p.listSep = u", "_s;
    p.quote = [open, close](const QString &s) -> QString { return open + s + close; };
    p.paren = [](const QString &s, const QStringList &parts) -> QString {
        return s + u" ("_s + parts.join(u", "_s) + u')';
    };
    p.sentenceSep = u" "_s;
    p.lineEnd = u"."_s;
    p.colon = u": "_s;
    return p;
}

Phrases english()
{
    Phrases p = latin(u"\""_s, u"\""_s);
    p.andWord = u" and "_s;
    p.more = [](int c) -> QString { return u" and "_s + n(c) + u" more"_s; };
    p.noTime = u"no tracked time this week"_s;
    p.tracked = [](const QString &d) -> QString { return d + u" tracked"_s; };
    p.trackedOn = [](const QString &d, const QString &t) -> QString { return d + u" tracked, on "_s + t; };
    p.nothingTracked = u"nothing tracked yet"_s;
    p.nothingToday = u"nothing tracked or planned yet"_s;
    p.running = [](const QString &s) -> QString { return u"the timer is running on "_s + s; };
    p.planned = [](const QString &s) -> QString { return u"planned: "_s + s; };
    p.dueToday = u"due today"_s;
    p.due = [](const QString &d) -> QString { return u"due "_s + d; };
    p.high = u"high priority"_s;
    p.overdue = [](const QString &t, const Opt &d) -> QString {
        return d ? QString(t + u" is overdue since "_s + *d) : t + u" is overdue"_s;
    };
    p.weekTracked = [](const QString &d, const QString &c) -> QString { return u"This week you tracked "_s + d + c; };
    p.changeNone = u", nothing the previous week"_s;
    p.changeMore = [](const QString &d) -> QString { return u", "_s + d + u" more than the previous week"_s; };
    p.changeLess = [](const QString &d) -> QString { return u", "_s + d + u" less than the previous week"_s; };
    p.changeSame = u", the same as the previous week"_s;
    p.daysWorked = [](int c) -> QString {
        return c == 1 ? u"You worked on 1 day"_s : u"You worked on "_s + n(c) + u" days"_s;
    };
    p.mostTime = [](const QString &l, const Opt &r) -> QString {
        return u"Most time went to "_s + l + (r ? u", followed by "_s + *r : QString());
    };
    p.earned = [](const QString &m) -> QString { return m + u" earned"_s; };
    p.completed = [](const QString &l) -> QString { return u"You completed "_s + l; };
    p.noneCompleted = u"No tasks were completed this week."_s;
    p.overdueOpen = [](int c) -> QString {
        return c == 1 ? u"1 open task is past its due date"_s : n(c) + u" open tasks are past their due date"_s;
    };
    p.noTimeWeek = [](const Opt &prev) -> QString {
        return u"No time was tracked this week"_s + (prev ? u" (the previous week: "_s + *prev + u')' : QString());
    };
    return p;
}

Phrases dutch()
{
    Phrases p = latin(u"\""_s, u"\""_s);
    p.andWord = u" en "_s;
    p.more = [](int c) -> QString { return u" en nog "_s + n(c); };
    p.noTime = u"deze week geen tijd geregistreerd"_s;
    p.tracked = [](const QString &d) -> QString { return d + u" geregistreerd"_s; };
    p.trackedOn = [](const QString &d, const QString &t) -> QString { return d + u" geregistreerd, aan "_s + t; };
    p.nothingTracked = u"nog niets geregistreerd"_s;
    p.nothingToday = u"nog niets geregistreerd of gepland"_s;
    p.running = [](const QString &s) -> QString { return u"de timer loopt op "_s + s; };
    p.planned = [](const QString &s) -> QString { return u"gepland: "_s + s; };
    p.dueToday = u"deadline vandaag"_s;
    p.due = [](const QString &d) -> QString { return u"deadline "_s + d; };
    p.high = u"hoge prioriteit"_s;
    p.overdue = [](const QString &t, const Opt &d) -> QString {
        return d ? QString(t + u" is over de deadline sinds "_s + *d) : t + u" is over de deadline"_s;
    };
    p.weekTracked = [](const QString &d, const QString &c) -> QString {
        return u"Deze week heb je "_s + d + u" geregistreerd"_s + c;
    };
    p.changeNone = u", de week ervoor niets"_s;
    p.changeMore = [](const QString &d) -> QString { return u", "_s + d + u" meer dan de week ervoor"_s; };
    p.changeLess = [](const QString &d) -> QString { return u", "_s + d + u" minder dan de week ervoor"_s; };
    p.changeSame = u", evenveel als de week ervoor"_s;
    p.daysWorked = [](int c) -> QString {
        return c == 1 ? u"Je hebt op 1 dag gewerkt"_s : u"Je hebt op "_s + n(c) + u" dagen gewerkt"_s;
    };
    p.mostTime = [](const QString &l, const Opt &r) -> QString {
        return u"De meeste tijd ging naar "_s + l + (r ? u", gevolgd door "_s + *r : QString());
    };
    p.earned = [](const QString &m) -> QString { return m + u" verdiend"_s; };
    p.completed = [](const QString &l) -> QString { return u"Je hebt "_s + l + u" afgerond"_s; };
    p.noneCompleted = u"Deze week heb je geen taken afgerond."_s;
    p.overdueOpen = [](int c) -> QString {
        return c == 1 ? u"1 openstaande taak is over de deadline"_s
                      : n(c) + u" openstaande taken zijn over de deadline"_s;
    };
    p.noTimeWeek = [](const Opt &prev) -> QString {
        return u"Deze week is er geen tijd geregistreerd"_s +
               (prev ? u" (de week ervoor: "_s + *prev + u')' : QString());
    };
    return p;
}

Phrases german()
{
    Phrases p = latin(u"„"_s, u"“"_s);
    p.andWord = u" und "_s;
    p.more = [](int c) -> QString { return u" und "_s + n(c) + u" weitere"_s; };
    p.noTime = u"diese Woche keine Zeit erfasst"_s;
    p.tracked = [](const QString &d) -> QString { return d + u" erfasst"_s; };
    p.trackedOn = [](const QString &d, const QString &t) -> QString { return d + u" erfasst, für "_s + t; };
    p.nothingTracked = u"noch nichts erfasst"_s;
    p.nothingToday = u"noch nichts erfasst oder geplant"_s;
    p.running = [](const QString &s) -> QString { return u"der Timer läuft für "_s + s; };
    p.planned = [](const QString &s) -> QString { return u"geplant: "_s + s; };
    p.dueToday = u"heute fällig"_s;
    p.due = [](const QString &d) -> QString { return u"fällig am "_s + d; };
    p.high = u"hohe Priorität"_s;
    p.overdue = [](const QString &t, const Opt &d) -> QString {
        return d ? QString(t + u" ist seit dem "_s + *d + u" überfällig"_s) : t + u" ist überfällig"_s;
    };
    p.weekTracked = [](const QString &d, const QString &c) -> QString {
        return u"Diese Woche hast du "_s + d + u" erfasst"_s + c;
    };
    p.changeNone = u", in der Vorwoche nichts"_s;
    p.changeMore = [](const QString &d) -> QString { return u", "_s + d + u" mehr als in der Vorwoche"_s; };
    p.changeLess = [](const QString &d) -> QString { return u", "_s + d + u" weniger als in der Vorwoche"_s; };
    p.changeSame = u", genauso viel wie in der Vorwoche"_s;
    p.daysWorked = [](int c) -> QString {
        return c == 1 ? u"Du hast an 1 Tag gearbeitet"_s : u"Du hast an "_s + n(c) + u" Tagen gearbeitet"_s;
    };
    p.mostTime = [](const QString &l, const Opt &r) -> QString {
        return u"Die meiste Zeit ging an "_s + l + (r ? u", gefolgt von "_s + *r : QString());
    };
    p.earned = [](const QString &m) -> QString { return m + u" verdient"_s; };
    p.completed = [](const QString &l) -> QString { return u"Du hast "_s + l + u" abgeschlossen"_s; };
    p.noneCompleted = u"Diese Woche wurden keine Aufgaben abgeschlossen."_s;
    p.overdueOpen = [](int c) -> QString {
        return c == 1 ? u"1 offene Aufgabe ist überfällig"_s : n(c) + u" offene Aufgaben sind überfällig"_s;
    };
    p.noTimeWeek = [](const Opt &prev) -> QString {
        return u"Diese Woche wurde keine Zeit erfasst"_s + (prev ? u" (Vorwoche: "_s + *prev + u')' : QString());
    };
    return p;
}

Phrases french()
{
    // French sets a no-break space inside guillemets and before a colon.
    Phrases p = latin(u"«\u00A0"_s, u"\u00A0»"_s);
    p.colon = u"\u00A0: "_s;
    p.andWord = u" et "_s;
    p.more = [](int c) -> QString { return u" et "_s + n(c) + u" autres"_s; };
    p.noTime = u"aucun temps suivi cette semaine"_s;
    p.tracked = [](const QString &d) -> QString { return d + u" de travail suivi"_s; };
    p.trackedOn = [](const QString &d, const QString &t) -> QString { return d + u" de travail suivi, sur "_s + t; };
    p.nothingTracked = u"rien de suivi pour l'instant"_s;
    p.nothingToday = u"rien de suivi ni de prévu pour l'instant"_s;
    p.running = [](const QString &s) -> QString { return u"le minuteur tourne sur "_s + s; };
    p.planned = [](const QString &s) -> QString { return u"prévu\u00A0: "_s + s; };
    p.dueToday = u"échéance aujourd'hui"_s;
    p.due = [](const QString &d) -> QString { return u"échéance le "_s + d; };
    p.high = u"priorité haute"_s;
    p.overdue = [](const QString &t, const Opt &d) -> QString {
        return d ? QString(t + u" est en retard depuis le "_s + *d) : t + u" est en retard"_s;
    };
    p.weekTracked = [](const QString &d, const QString &c) -> QString {
        return u"Cette semaine, vous avez suivi "_s + d + c;
    };
    p.changeNone = u", rien la semaine précédente"_s;
    p.changeMore = [](const QString &d) -> QString {
        return u", soit "_s + d + u" de plus que la semaine précédente"_s;
    };
    p.changeLess = [](const QString &d) -> QString {
        return u", soit "_s + d + u" de moins que la semaine précédente"_s;
    };
    p.changeSame = u", autant que la semaine précédente"_s;
    p.daysWorked = [](int c) -> QString {
        return c == 1 ? u"Vous avez travaillé 1 jour"_s : u"Vous avez travaillé "_s + n(c) + u" jours"_s;
    };
    p.mostTime = [](const QString &l, const Opt &r) -> QString {
        return u"L'essentiel du temps est allé à "_s + l + (r ? u", puis à "_s + *r : QString());
    };
    p.earned = [](const QString &m) -> QString { return m + u" gagnés"_s; };
    p.completed = [](const QString &l) -> QString { return u"Vous avez terminé "_s + l; };
    p.noneCompleted = u"Aucune tâche n'a été terminée cette semaine."_s;
    p.overdueOpen = [](int c) -> QString {
        return c == 1 ? u"1 tâche ouverte a dépassé son échéance"_s
                      : n(c) + u" tâches ouvertes ont dépassé leur échéance"_s;
    };
    p.noTimeWeek = [](const Opt &prev) -> QString {
        return u"Aucun temps n'a été suivi cette semaine"_s +
               (prev ? u" (la semaine précédente\u00A0: "_s + *prev + u')' : QString());
    };
    return p;
}

Phrases spanish()
{
    Phrases p = latin(u"«"_s, u"»"_s);
    p.andWord = u" y "_s;
    p.more = [](int c) -> QString { return u" y "_s + n(c) + u" más"_s; };
    p.noTime = u"sin tiempo registrado esta semana"_s;
    p.tracked = [](const QString &d) -> QString { return d + u" de trabajo registrado"_s; };
    p.trackedOn = [](const QString &d, const QString &t) -> QString {
        return d + u" de trabajo registrado, en "_s + t;
    };
    p.nothingTracked = u"aún no hay nada registrado"_s;
    p.nothingToday = u"aún no hay nada registrado ni planificado"_s;
    p.running = [](const QString &s) -> QString { return u"el temporizador está en marcha en "_s + s; };
    p.planned = [](const QString &s) -> QString { return u"planificado: "_s + s; };
    p.dueToday = u"vence hoy"_s;
    p.due = [](const QString &d) -> QString { return u"vence el "_s + d; };
    p.high = u"prioridad alta"_s;
    p.overdue = [](const QString &t, const Opt &d) -> QString {
        return d ? QString(t + u" está vencida desde el "_s + *d) : t + u" está vencida"_s;
    };
    p.weekTracked = [](const QString &d, const QString &c) -> QString {
        return u"Esta semana has registrado "_s + d + c;
    };
    p.changeNone = u", nada la semana anterior"_s;
    p.changeMore = [](const QString &d) -> QString { return u", "_s + d + u" más que la semana anterior"_s; };
    p.changeLess = [](const QString &d) -> QString { return u", "_s + d + u" menos que la semana anterior"_s; };
    p.changeSame = u", lo mismo que la semana anterior"_s;
    p.daysWorked = [](int c) -> QString {
        return c == 1 ? u"Has trabajado 1 día"_s : u"Has trabajado "_s + n(c) + u" días"_s;
    };
    p.mostTime = [](const QString &l, const Opt &r) -> QString {
        return u"La mayor parte del tiempo fue para "_s + l + (r ? u", seguido de "_s + *r : QString());
    };
    p.earned = [](const QString &m) -> QString { return m + u" ganados"_s; };
    p.completed = [](const QString &l) -> QString { return u"Has completado "_s + l; };
    p.noneCompleted = u"Esta semana no se completó ninguna tarea."_s;
    p.overdueOpen = [](int c) -> QString {
        return c == 1 ? u"1 tarea abierta ha superado su fecha límite"_s
                      : n(c) + u" tareas abiertas han superado su fecha límite"_s;
    };
    p.noTimeWeek = [](const Opt &prev) -> QString {
        return u"Esta semana no se registró tiempo"_s + (prev ? u" (la semana anterior: "_s + *prev + u')' : QString());
    };
    return p;
}

Phrases italian()
{
    Phrases p = latin(u"«"_s, u"»"_s);
    p.andWord = u" e "_s;
    p.more = [](int c) -> QString { return u" e altri "_s + n(c); };
    p.noTime = u"nessun tempo registrato questa settimana"_s;
    p.tracked = [](const QString &d) -> QString { return d + u" di lavoro registrato"_s; };
    p.trackedOn = [](const QString &d, const QString &t) -> QString { return d + u" di lavoro registrato, su "_s + t; };
    p.nothingTracked = u"ancora niente di registrato"_s;
    p.nothingToday = u"ancora niente di registrato o pianificato"_s;
    p.running = [](const QString &s) -> QString { return u"il timer è in corso su "_s + s; };
    p.planned = [](const QString &s) -> QString { return u"in programma: "_s + s; };
    p.dueToday = u"scade oggi"_s;
    p.due = [](const QString &d) -> QString { return u"scade il "_s + d; };
    p.high = u"priorità alta"_s;
    p.overdue = [](const QString &t, const Opt &d) -> QString {
        return d ? QString(t + u" è scaduta dal "_s + *d) : t + u" è scaduta"_s;
    };
    p.weekTracked = [](const QString &d, const QString &c) -> QString {
        return u"Questa settimana hai registrato "_s + d + c;
    };
    p.changeNone = u", niente la settimana precedente"_s;
    p.changeMore = [](const QString &d) -> QString {
        return u", "_s + d + u" in più rispetto alla settimana precedente"_s;
    };
    p.changeLess = [](const QString &d) -> QString {
        return u", "_s + d + u" in meno rispetto alla settimana precedente"_s;
    };
    p.changeSame = u", quanto la settimana precedente"_s;
    p.daysWorked = [](int c) -> QString {
        return c == 1 ? u"Hai lavorato 1 giorno"_s : u"Hai lavorato "_s + n(c) + u" giorni"_s;
    };
    p.mostTime = [](const QString &l, const Opt &r) -> QString {
        return u"La maggior parte del tempo è andata a "_s + l + (r ? u", seguito da "_s + *r : QString());
    };
    p.earned = [](const QString &m) -> QString { return m + u" guadagnati"_s; };
    p.completed = [](const QString &l) -> QString { return u"Hai completato "_s + l; };
    p.noneCompleted = u"Questa settimana non hai completato nessuna attività."_s;
    p.overdueOpen = [](int c) -> QString {
        return c == 1 ? u"1 attività aperta ha superato la scadenza"_s
                      : n(c) + u" attività aperte hanno superato la scadenza"_s;
    };
    p.noTimeWeek = [](const Opt &prev) -> QString {
        return u"Questa settimana non hai registrato tempo"_s +
               (prev ? u" (la settimana precedente: "_s + *prev + u')' : QString());
    };
    return p;
}

Phrases portuguese()
{
    Phrases p = latin(u"«"_s, u"»"_s);
    p.andWord = u" e "_s;
    p.more = [](int c) -> QString { return u" e mais "_s + n(c); };
    p.noTime = u"sem tempo registado esta semana"_s;
    p.tracked = [](const QString &d) -> QString { return d + u" de trabalho registado"_s; };
    p.trackedOn = [](const QString &d, const QString &t) -> QString {
        return d + u" de trabalho registado, em "_s + t;
    };
    p.nothingTracked = u"ainda nada registado"_s;
    p.nothingToday = u"ainda nada registado nem planeado"_s;
    p.running = [](const QString &s) -> QString { return u"o temporizador está a contar em "_s + s; };
    p.planned = [](const QString &s) -> QString { return u"planeado: "_s + s; };
    p.dueToday = u"prazo hoje"_s;
    p.due = [](const QString &d) -> QString { return u"prazo a "_s + d; };
    p.high = u"prioridade alta"_s;
    p.overdue = [](const QString &t, const Opt &d) -> QString {
        return d ? QString(t + u" está em atraso desde "_s + *d) : t + u" está em atraso"_s;
    };
    p.weekTracked = [](const QString &d, const QString &c) -> QString { return u"Esta semana registou "_s + d + c; };
    p.changeNone = u", nada na semana anterior"_s;
    p.changeMore = [](const QString &d) -> QString { return u", mais "_s + d + u" do que na semana anterior"_s; };
    p.changeLess = [](const QString &d) -> QString { return u", menos "_s + d + u" do que na semana anterior"_s; };
    p.changeSame = u", o mesmo que na semana anterior"_s;
    p.daysWorked = [](int c) -> QString {
        return c == 1 ? u"Trabalhou em 1 dia"_s : u"Trabalhou em "_s + n(c) + u" dias"_s;
    };
    p.mostTime = [](const QString &l, const Opt &r) -> QString {
        return u"A maior parte do tempo foi para "_s + l + (r ? u", seguido de "_s + *r : QString());
    };
    p.earned = [](const QString &m) -> QString { return m + u" ganhos"_s; };
    p.completed = [](const QString &l) -> QString { return u"Concluiu "_s + l; };
    p.noneCompleted = u"Nenhuma tarefa foi concluída esta semana."_s;
    p.overdueOpen = [](int c) -> QString {
        return c == 1 ? u"1 tarefa em aberto passou o prazo"_s : n(c) + u" tarefas em aberto passaram o prazo"_s;
    };
    p.noTimeWeek = [](const Opt &prev) -> QString {
        return u"Esta semana não foi registado tempo"_s + (prev ? u" (semana anterior: "_s + *prev + u')' : QString());
    };
    return p;
}

Phrases japanese()
{
    Phrases p;
    p.listSep = u"、"_s;
    p.andWord = u"と"_s;
    p.more = [](int c) -> QString { return u"ほか"_s + n(c) + u"件"_s; };
    p.quote = [](const QString &s) -> QString { return u"「"_s + s + u"」"_s; };
    p.paren = [](const QString &s, const QStringList &parts) -> QString {
        return s + u"（"_s + parts.join(u"、"_s) + u"）"_s;
    };
    p.sentenceSep = QString();
    p.lineEnd = u"。"_s;
    p.colon = u"："_s;
    p.noTime = u"今週の記録時間はありません"_s;
    p.tracked = [](const QString &d) -> QString { return u"合計"_s + d + u"を記録"_s; };
    p.trackedOn = [](const QString &d, const QString &t) -> QString { return u"合計"_s + d + u"を記録、内訳は"_s + t; };
    p.nothingTracked = u"まだ記録はありません"_s;
    p.nothingToday = u"まだ記録も予定もありません"_s;
    p.running = [](const QString &s) -> QString { return s + u"のタイマーが作動中"_s; };
    p.planned = [](const QString &s) -> QString { return u"予定："_s + s; };
    p.dueToday = u"今日が期限"_s;
    p.due = [](const QString &d) -> QString { return d + u"が期限"_s; };
    p.high = u"優先度高"_s;
    p.overdue = [](const QString &t, const Opt &d) -> QString {
        return d ? QString(t + u"は"_s + *d + u"から期限切れ"_s) : t + u"は期限切れ"_s;
    };
    p.weekTracked = [](const QString &d, const QString &c) -> QString {
        return u"今週は"_s + d + u"を記録しました"_s + c;
    };
    p.changeNone = u"（前週の記録はなし）"_s;
    p.changeMore = [](const QString &d) -> QString { return u"（前週より"_s + d + u"多い）"_s; };
    p.changeLess = [](const QString &d) -> QString { return u"（前週より"_s + d + u"少ない）"_s; };
    p.changeSame = u"（前週と同じ）"_s;
    p.daysWorked = [](int c) -> QString { return n(c) + u"日間作業しました"_s; };
    p.mostTime = [](const QString &l, const Opt &r) -> QString {
        return u"最も時間を使ったのは"_s + l + (r ? u"で、次いで"_s + *r : QString()) + u"でした"_s;
    };
    p.earned = [](const QString &m) -> QString { return u"売上"_s + m; };
    p.completed = [](const QString &l) -> QString { return l + u"を完了しました"_s; };
    p.noneCompleted = u"今週完了したタスクはありません。"_s;
    p.overdueOpen = [](int c) -> QString { return u"期限を過ぎた未完了のタスクが"_s + n(c) + u"件あります"_s; };
    p.noTimeWeek = [](const Opt &prev) -> QString {
        return u"今週は記録された時間がありません"_s + (prev ? u"（前週："_s + *prev + u"）"_s : QString());
    };
    return p;
}

Phrases thai()
{
    // Thai ends a sentence with a space, not a mark.
    Phrases p = latin(u"\""_s, u"\""_s);
    p.lineEnd = QString();
    p.andWord = u" และ "_s;
    p.more = [](int c) -> QString { return u" และอีก "_s + n(c) + u" รายการ"_s; };
    p.noTime = u"สัปดาห์นี้ไม่มีเวลาที่บันทึกไว้"_s;
    p.tracked = [](const QString &d) -> QString { return u"บันทึกไว้ "_s + d; };
    p.trackedOn = [](const QString &d, const QString &t) -> QString { return u"บันทึกไว้ "_s + d + u" กับ "_s + t; };
    p.nothingTracked = u"ยังไม่มีการบันทึกเวลา"_s;
    p.nothingToday = u"ยังไม่มีการบันทึกเวลาหรืองานที่วางแผนไว้"_s;
    p.running = [](const QString &s) -> QString { return u"ตัวจับเวลากำลังเดินอยู่ที่ "_s + s; };
    p.planned = [](const QString &s) -> QString { return u"งานที่วางแผนไว้: "_s + s; };
    p.dueToday = u"ครบกำหนดวันนี้"_s;
    p.due = [](const QString &d) -> QString { return u"ครบกำหนด "_s + d; };
    p.high = u"ความสำคัญสูง"_s;
    p.overdue = [](const QString &t, const Opt &d) -> QString {
        return d ? QString(t + u" เลยกำหนดมาตั้งแต่ "_s + *d) : t + u" เลยกำหนดแล้ว"_s;
    };
    p.weekTracked = [](const QString &d, const QString &c) -> QString { return u"สัปดาห์นี้คุณบันทึกเวลาไว้ "_s + d + c; };
    p.changeNone = u" โดยสัปดาห์ก่อนไม่มีการบันทึก"_s;
    p.changeMore = [](const QString &d) -> QString { return u" มากกว่าสัปดาห์ก่อน "_s + d; };
    p.changeLess = [](const QString &d) -> QString { return u" น้อยกว่าสัปดาห์ก่อน "_s + d; };
    p.changeSame = u" เท่ากับสัปดาห์ก่อน"_s;
    p.daysWorked = [](int c) -> QString { return u"คุณทำงานไป "_s + n(c) + u" วัน"_s; };
    p.mostTime = [](const QString &l, const Opt &r) -> QString {
        return u"เวลาส่วนใหญ่ใช้ไปกับ "_s + l + (r ? u" รองลงมาคือ "_s + *r : QString());
    };
    p.earned = [](const QString &m) -> QString { return u"รายได้ "_s + m; };
    p.completed = [](const QString &l) -> QString { return u"คุณทำงานเสร็จแล้ว ได้แก่ "_s + l; };
    p.noneCompleted = u"สัปดาห์นี้ยังไม่มีงานที่เสร็จ"_s;
    p.overdueOpen = [](int c) -> QString { return u"มีงานค้างที่เลยกำหนดแล้ว "_s + n(c) + u" รายการ"_s; };
    p.noTimeWeek = [](const Opt &prev) -> QString {
        return u"สัปดาห์นี้ไม่มีการบันทึกเวลา"_s + (prev ? u" (สัปดาห์ก่อน: "_s + *prev + u')' : QString());
    };
    return p;
}

struct Language
{
    QString code;
    QString name;
    QString localeName;
    QString dateTemplate;
    Units units;
    Labels labels;
    Phrases (*phrases)();
};

const QList<Language> &table()
{
    static const QList<Language> all{
        {u"en"_s,
         u"English"_s,
         u"en_GB"_s,
         u"d MMMM"_s,
         {u"h"_s, u"min"_s},
         {u"Yesterday"_s, u"Today"_s, u"Blockers"_s, u"No blockers"_s},
         english},
        {u"nl"_s,
         u"Dutch"_s,
         u"nl_NL"_s,
         u"d MMMM"_s,
         {u"u"_s, u"min"_s},
         {u"Gisteren"_s, u"Vandaag"_s, u"Blokkades"_s, u"Geen blokkades"_s},
         dutch},
        {u"de"_s,
         u"German"_s,
         u"de_DE"_s,
         u"d. MMMM"_s,
         {u"Std."_s, u"Min."_s},
         {u"Gestern"_s, u"Heute"_s, u"Blocker"_s, u"Keine Blocker"_s},
         german},
        {u"fr"_s,
         u"French"_s,
         u"fr_FR"_s,
         u"d MMMM"_s,
         {u"h"_s, u"min"_s},
         {u"Hier"_s, u"Aujourd'hui"_s, u"Blocages"_s, u"Aucun blocage"_s},
         french},
        {u"es"_s,
         u"Spanish"_s,
         u"es_ES"_s,
         u"d 'de' MMMM"_s,
         {u"h"_s, u"min"_s},
         {u"Ayer"_s, u"Hoy"_s, u"Bloqueos"_s, u"Sin bloqueos"_s},
         spanish},
        {u"it"_s,
         u"Italian"_s,
         u"it_IT"_s,
         u"d MMMM"_s,
         {u"h"_s, u"min"_s},
         {u"Ieri"_s, u"Oggi"_s, u"Blocchi"_s, u"Nessun blocco"_s},
         italian},
        {u"pt"_s,
         u"Portuguese (Portugal)"_s,
         u"pt_PT"_s,
         u"d 'de' MMMM"_s,
         {u"h"_s, u"min"_s},
         {u"Ontem"_s, u"Hoje"_s, u"Bloqueios"_s, u"Sem bloqueios"_s},
         portuguese},
        {u"ja"_s,
         u"Japanese"_s,
         u"ja_JP"_s,
         u"M月d日"_s,
         {u"時間"_s, u"分"_s},
         {u"昨日"_s, u"今日"_s, u"ブロッカー"_s, u"ブロッカーなし"_s},
         japanese},
        {u"th"_s,
         u"Thai"_s,
         u"th_TH"_s,
         u"d MMMM"_s,
         {u"ชม."_s, u"นาที"_s},
         {u"เมื่อวาน"_s, u"วันนี้"_s, u"อุปสรรค"_s, u"ไม่มีอุปสรรค"_s},
         thai},
    };
    return all;
}

const Language &entry(const QString &lang)
{
    for (const Language &candidate : table()) {
        if (candidate.code == lang) {
            return candidate;
        }
    }
    return table().first();
}

} // namespace

const QStringList &languages()
{
    static const QStringList codes = [] {
        QStringList result;
        for (const Language &candidate : table()) {
            result << candidate.code;
        }
        return result;
    }();
    return codes;
}

QString language(const QString &uiLanguage)
{
    const QString code = uiLanguage.left(2).toLower();
    return languages().contains(code) ? code : u"en"_s;
}

QString languageName(const QString &lang)
{
    return entry(language(lang)).name;
}

const Phrases &phrases(const QString &lang)
{
    static const QHash<QString, Phrases> built = [] {
        QHash<QString, Phrases> result;
        for (const Language &candidate : table()) {
            result.insert(candidate.code, candidate.phrases());
        }
        return result;
    }();
    return *built.find(language(lang));
}

Labels baseLabels(const QString &lang)
{
    return entry(language(lang)).labels;
}

Units units(const QString &lang)
{
    return entry(language(lang)).units;
}

QLocale locale(const QString &lang)
{
    return QLocale(entry(language(lang)).localeName);
}

QString dateTemplate(const QString &lang)
{
    return entry(language(lang)).dateTemplate;
}

} // namespace WorkSummary

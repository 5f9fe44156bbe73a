#include "storetext.h"

#include "backend/supabaseerror.h"

namespace StoreText {

QString notSignedIn()
{
    return SupabaseError::noAuth().message();
}

QString loadFailed()
{
    //% "Your data could not be loaded. Morvane tries again shortly."
    return qtTrId("store.err.loadFailed");
}

QString teamsNotLoaded()
{
    //% "Your teams could not be loaded."
    return qtTrId("team.err.notLoaded");
}

QString clientsNotLoaded()
{
    //% "Your clients could not be loaded."
    return qtTrId("client.err.notLoaded");
}

QString clientNameMissing()
{
    //% "A client needs a name."
    return qtTrId("client.err.nameMissing");
}

QString clientNotCreated()
{
    //% "The client was not saved: you may not add clients to that team."
    return qtTrId("client.err.notCreated");
}

QString clientNotSaved()
{
    //% "The client was not changed: you may not edit it, or it no longer exists."
    return qtTrId("client.err.notSaved");
}

QString writeFailed()
{
    //% "The change could not be saved. Check the connection and try again."
    return qtTrId("store.err.writeFailed");
}

QString projectNotCreated()
{
    //% "The project was not created: you may not add projects to that team."
    return qtTrId("project.err.notCreated");
}

QString projectNotSaved()
{
    //% "The project was not changed: you may not edit it, or it no longer exists."
    return qtTrId("project.err.notSaved");
}

QString projectTeamNotChanged()
{
    //% "The project's team was not changed: only its creator and the team's owners and editors can move it."
    return qtTrId("project.err.teamNotChanged");
}

QString taskNotCreated()
{
    //% "The task was not created: you may not add tasks to this project."
    return qtTrId("task.err.notCreated");
}

QString taskNotSaved()
{
    //% "The task was not changed: you may not edit it, or it no longer exists."
    return qtTrId("task.err.notSaved");
}

QString timerStartedElsewhere()
{
    //% "The timer of this task was started on another device, so its status was not changed."
    return qtTrId("timer.err.startedElsewhere");
}

QString profileNotSaved()
{
    //% "Your profile was not saved. Try again."
    return qtTrId("profile.err.notSaved");
}

QString onboardingNotSaved()
{
    //% "Your first-run answers were not saved yet. Morvane tries again at the next sign-in."
    return qtTrId("onboarding.err.notSaved");
}

QString memberNotChanged()
{
    //% "The member was not changed: only the team owner can change roles and remove people."
    return qtTrId("team.err.memberNotChanged");
}

QString invitationNotAnswered()
{
    //% "The invitation could not be answered. Try again."
    return qtTrId("team.err.invitationNotAnswered");
}

QString teamNotCreated()
{
    //% "The team was not created. Try again."
    return qtTrId("team.err.notCreated");
}

QString timerNotStopped()
{
    //% "The time could not be logged, so the timer keeps running. Try stopping it again."
    return qtTrId("timer.err.notStopped");
}

QString entryNotSaved()
{
    //% "The time entry was not saved: it is not yours or it no longer exists."
    return qtTrId("entry.err.notSaved");
}

QString entryNotLogged()
{
    //% "The time was not logged: you may not log time on this task, or it no longer exists."
    return qtTrId("entry.err.notLogged");
}

} // namespace StoreText

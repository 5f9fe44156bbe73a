#pragma once

#include <QString>

// The sentences the store shows in `lastError`, one function per text so that each lives once.
namespace StoreText {

QString notSignedIn();
QString loadFailed();
QString teamsNotLoaded();
QString clientsNotLoaded();
QString clientNameMissing();
QString clientNotCreated();
QString clientNotSaved();
QString writeFailed();
QString projectNotCreated();
QString projectNotSaved();
QString projectTeamNotChanged();
QString taskNotCreated();
QString taskNotSaved();
QString timerStartedElsewhere();
QString timerNotStopped();
QString entryNotSaved();
QString entryNotLogged();
QString profileNotSaved();
QString onboardingNotSaved();
QString teamNotCreated();
QString invitationNotAnswered();
QString memberNotChanged();

} // namespace StoreText

#pragma once

#include "model/clock.h"
#include "store/appstore.h"
#include "travel/geo.h"
#include "travel/nominatimlookup.h"
#include "travel/roadrouter.h"
#include "ui/rowsmodel.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QPointF>
#include <QTimer>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

// The trips screen: the user's trips narrowed by period, project and charging; one editor for a
// new or a chosen trip, whose places come from the address service and whose distance comes from
// the road route or the straight-line estimate; the trip under way; the user's travel settings;
// and the chosen trip's route as points to draw. Every write goes through the store.
class TripsView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the workspace")
    Q_PROPERTY(RowsModel *rows READ rows CONSTANT)
    // "all", "month" (this one), "lastMonth" or "year".
    Q_PROPERTY(QString period READ period WRITE setPeriod NOTIFY filtersChanged)
    // A project id, or empty for all projects.
    Q_PROPERTY(QString project READ project WRITE setProject NOTIFY filtersChanged)
    // "all", "billable" (charged to the client) or "notBillable" (private or not charged).
    Q_PROPERTY(QString billable READ billable WRITE setBillable NOTIFY filtersChanged)
    Q_PROPERTY(QVariantList periodChoices READ periodChoices NOTIFY choicesChanged)
    Q_PROPERTY(QVariantList projectChoices READ projectChoices NOTIFY choicesChanged)
    Q_PROPERTY(QVariantList billableChoices READ billableChoices NOTIFY choicesChanged)
    Q_PROPERTY(QVariantList modeChoices READ modeChoices NOTIFY choicesChanged)
    Q_PROPERTY(QVariantList workChoices READ workChoices NOTIFY choicesChanged)
    Q_PROPERTY(int total READ total NOTIFY rowsChanged)
    // "3 trips · 41.2 km" over the rows shown.
    Q_PROPERTY(QString summary READ summary NOTIFY rowsChanged)
    // For the chosen project: what its unbilled trips would add, and how its trips are charged.
    Q_PROPERTY(QString toInvoice READ toInvoice NOTIFY rowsChanged)
    Q_PROPERTY(bool ready READ isReady NOTIFY rowsChanged)

    // The editor. `editing` is the trip being changed, empty for a new one.
    Q_PROPERTY(bool editorOpen READ editorOpen NOTIFY editorChanged)
    Q_PROPERTY(QString editing READ editing NOTIFY editorChanged)
    Q_PROPERTY(bool finishing READ finishing NOTIFY editorChanged)
    Q_PROPERTY(QString date READ date WRITE setDate NOTIFY editorChanged)
    Q_PROPERTY(QString fromText READ fromText NOTIFY editorChanged)
    Q_PROPERTY(QString toText READ toText NOTIFY editorChanged)
    Q_PROPERTY(bool fromPlaced READ fromPlaced NOTIFY editorChanged)
    Q_PROPERTY(bool toPlaced READ toPlaced NOTIFY editorChanged)
    Q_PROPERTY(QString km READ km WRITE setKm NOTIFY editorChanged)
    Q_PROPERTY(QString mode READ mode WRITE setMode NOTIFY editorChanged)
    Q_PROPERTY(QString work READ work WRITE setWork NOTIFY editorChanged)
    Q_PROPERTY(bool charge READ charge WRITE setCharge NOTIFY editorChanged)
    Q_PROPERTY(bool privateTrip READ privateTrip WRITE setPrivateTrip NOTIFY editorChanged)
    Q_PROPERTY(QString purpose READ purpose WRITE setPurpose NOTIFY editorChanged)
    // Where the kilometres came from: the road route with its minutes, or the estimate.
    Q_PROPERTY(QString distanceNote READ distanceNote NOTIFY editorChanged)
    Q_PROPERTY(bool routing READ routing NOTIFY editorChanged)
    // Why the editor cannot save yet, by field ("date", "from", "to", "km"); empty when it can.
    Q_PROPERTY(QVariantMap problems READ problems NOTIFY editorChanged)
    Q_PROPERTY(bool saving READ saving NOTIFY editorChanged)

    // The address search of one place field ("from" or "to").
    Q_PROPERTY(QString searchField READ searchField NOTIFY searchChanged)
    // Each: label, detail, lat, lng, clientId.
    Q_PROPERTY(QVariantList searchResults READ searchResults NOTIFY searchChanged)
    Q_PROPERTY(bool searching READ searching NOTIFY searchChanged)
    Q_PROPERTY(QString searchNote READ searchNote NOTIFY searchChanged)

    // The route of the chosen trip, or of the editor's places, fitted into a unit square (x to the
    // east, y to the south); its first and last points are the start and the end.
    Q_PROPERTY(QVariantList mapPoints READ mapPoints NOTIFY mapChanged)
    // True when the points are the road route, false for the straight line between the places.
    Q_PROPERTY(bool mapIsRoute READ mapIsRoute NOTIFY mapChanged)

    // The trip under way.
    Q_PROPERTY(QString progressId READ progressId NOTIFY progressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)

    // The user's travel settings.
    Q_PROPERTY(QString ratePerKm READ ratePerKm NOTIFY settingsChanged)
    Q_PROPERTY(QString usualMode READ usualMode NOTIFY settingsChanged)
    Q_PROPERTY(QString settingsProblem READ settingsProblem NOTIFY settingsChanged)

public:
    static constexpr std::chrono::milliseconds searchDelay{400};
    static constexpr double maxKm = 40000;

    explicit TripsView(QObject *parent = nullptr);
    ~TripsView() override;

    void setStore(AppStore *store);
    void setClock(Clock clock) { m_clock = std::move(clock); }
    void retranslate();

    [[nodiscard]] RowsModel *rows() const { return m_rows; }
    [[nodiscard]] QString period() const { return m_period; }
    void setPeriod(const QString &period);
    [[nodiscard]] QString project() const { return m_project; }
    void setProject(const QString &projectId);
    [[nodiscard]] QString billable() const { return m_billable; }
    void setBillable(const QString &billable);
    [[nodiscard]] QVariantList periodChoices() const;
    [[nodiscard]] QVariantList projectChoices() const;
    [[nodiscard]] QVariantList billableChoices() const;
    [[nodiscard]] QVariantList modeChoices() const;
    [[nodiscard]] QVariantList workChoices() const;
    [[nodiscard]] int total() const;
    [[nodiscard]] QString summary() const { return m_summary; }
    [[nodiscard]] QString toInvoice() const { return m_toInvoice; }
    [[nodiscard]] bool isReady() const;

    [[nodiscard]] bool editorOpen() const { return m_editorOpen; }
    [[nodiscard]] QString editing() const { return m_editing; }
    [[nodiscard]] bool finishing() const { return m_finishing; }
    [[nodiscard]] QString date() const { return m_date; }
    void setDate(const QString &date);
    [[nodiscard]] QString fromText() const { return m_from.label; }
    [[nodiscard]] QString toText() const { return m_to.label; }
    [[nodiscard]] bool fromPlaced() const { return m_from.point.has_value(); }
    [[nodiscard]] bool toPlaced() const { return m_to.point.has_value(); }
    [[nodiscard]] QString km() const { return m_km; }
    void setKm(const QString &km);
    [[nodiscard]] QString mode() const { return m_mode; }
    void setMode(const QString &mode);
    [[nodiscard]] QString work() const { return m_work; }
    void setWork(const QString &work);
    [[nodiscard]] bool charge() const { return m_charge; }
    void setCharge(bool charge);
    [[nodiscard]] bool privateTrip() const { return m_private; }
    void setPrivateTrip(bool privateTrip);
    [[nodiscard]] QString purpose() const { return m_purpose; }
    void setPurpose(const QString &purpose);
    [[nodiscard]] QString distanceNote() const { return m_distanceNote; }
    [[nodiscard]] bool routing() const { return m_routing; }
    [[nodiscard]] QVariantMap problems() const;
    [[nodiscard]] bool saving() const { return m_saving; }

    [[nodiscard]] QString searchField() const { return m_searchField; }
    [[nodiscard]] QVariantList searchResults() const { return m_searchResults; }
    [[nodiscard]] bool searching() const { return m_searching; }
    [[nodiscard]] QString searchNote() const { return m_searchNote; }

    [[nodiscard]] QVariantList mapPoints() const { return m_mapPoints; }
    [[nodiscard]] bool mapIsRoute() const { return m_mapIsRoute; }

    [[nodiscard]] QString progressId() const;
    [[nodiscard]] QString progressText() const;

    [[nodiscard]] QString ratePerKm() const;
    [[nodiscard]] QString usualMode() const;
    [[nodiscard]] QString settingsProblem() const { return m_settingsProblem; }

    // Loads the trips and the billed set; the screen calls it when shown.
    Q_INVOKABLE void reload();
    // Opens the editor empty for a new trip, or on a trip of the list.
    Q_INVOKABLE void newTrip();
    Q_INVOKABLE void edit(const QString &tripId);
    Q_INVOKABLE void closeEditor();
    // A place field typed into ("from" or "to"): searched after a pause in typing.
    Q_INVOKABLE void typePlace(const QString &field, const QString &text);
    // A hit of the search taken as the place of its field.
    Q_INVOKABLE void choosePlace(int index);
    Q_INVOKABLE void dismissSearch();
    // Saves the editor when nothing is wrong; answers whether it went to the store.
    Q_INVOKABLE bool save();
    Q_INVOKABLE void remove(const QString &tripId);
    // A trip under way from now, for the editor's work and start place.
    Q_INVOKABLE void startTrip();
    // The editor on the trip under way, its arrival now.
    Q_INVOKABLE void finishTrip();
    // The rate as typed ("0,30") and a mode's raw value; answers whether it went to the store.
    Q_INVOKABLE bool saveSettings(const QString &rate, const QString &mode);

    // The label of a mode's raw value in the interface language.
    [[nodiscard]] static QString modeLabel(TripMode mode);
    // Kilometres as typed, in metres; none for text that is no distance.
    [[nodiscard]] static std::optional<int> metresOf(const QString &km);
    // `points` fitted into the unit square, the larger extent filling it, the other centred, with
    // the east-west distances shrunk by the cosine of the latitude as on the ground.
    [[nodiscard]] static QList<QPointF> fitted(const QList<GeoPoint> &points);

signals:
    void filtersChanged();
    void choicesChanged();
    void rowsChanged();
    void editorChanged();
    void searchChanged();
    void mapChanged();
    void progressChanged();
    void settingsChanged();
    // A trip the editor saved, for the view to keep it chosen.
    void saved(const QString &tripId);

private:
    struct Place
    {
        QString label;
        std::optional<GeoPoint> point;
        std::optional<QString> clientId;
    };

    void rebuild();
    void rebuildMap();
    void ensureServices();
    void runSearch();
    void routeNow();
    void clearSearch();
    [[nodiscard]] Place &place(const QString &field);
    [[nodiscard]] bool inPeriod(const Trip &trip) const;
    [[nodiscard]] QString workOf(const Trip &trip) const;

    QPointer<AppStore> m_store;
    Clock m_clock = systemClock();
    RowsModel *m_rows;
    QString m_period = QStringLiteral("all");
    QString m_project;
    QString m_billable = QStringLiteral("all");
    QString m_summary;
    QString m_toInvoice;

    bool m_editorOpen = false;
    QString m_editing;
    bool m_finishing = false;
    QString m_date;
    Place m_from;
    Place m_to;
    QString m_km;
    std::optional<int> m_exactM;
    QString m_mode = QStringLiteral("car");
    QString m_work;
    bool m_charge = true;
    bool m_private = false;
    QString m_purpose;
    QString m_route;
    int m_durationS = 0;
    QString m_distanceNote;
    bool m_routing = false;
    bool m_saving = false;
    bool m_triedSave = false;
    quint64 m_routeGeneration = 0;

    QString m_searchField;
    QString m_searchText;
    QVariantList m_searchResults;
    QList<Place> m_searchPlaces;
    bool m_searching = false;
    bool m_searchAgain = false;
    QString m_searchNote;
    QTimer m_searchDelay;
    quint64 m_searchGeneration = 0;

    QVariantList m_mapPoints;
    bool m_mapIsRoute = false;

    QString m_settingsProblem;
    QTimer m_progressTick;

    // Made when first needed, so the service addresses are read as they stand then.
    QNetworkAccessManager m_network;
    std::unique_ptr<RequestGate> m_routeGate;
    std::unique_ptr<RequestGate> m_searchGate;
    std::unique_ptr<RoadRouter> m_router;
    std::unique_ptr<NominatimLookup> m_lookup;
};

// The product's unit, pipe and steam tables, read from the copies in tests/data, which were typed
// from the source entry by entry.
#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <vector>

namespace tarvix {

struct UnitRow {
    QString text;
    QString kind;  // flow units: "V" or "M"
    float factor = 0;
};

struct ScheduleRow {
    QString text;
    QString diameter;  // inches, as the program holds it, with "."
};

struct NominalSizeRow {
    QString shown;  // in inches
    QString value;
};

struct SteamRow {
    double psig = 0;
    double density = 0;  // lb per cubic foot
};

struct ProductTables {
    // Reads the tables from the folder; a table that can't be read ends the program with a message.
    explicit ProductTables(const QString& folder);

    // By the names "press", "deltaP", "density", "length", "time", "flow L", "flow S", "flow G".
    std::map<QString, std::vector<UnitRow>> units;
    std::vector<NominalSizeRow> sizes;
    std::map<QString, std::vector<ScheduleRow>> schedules;  // by the size's value text
    std::vector<SteamRow> steam;

    const std::vector<UnitRow>& FlowUnits(char fluid) const {
        return units.at(QStringLiteral("flow %1").arg(QLatin1Char(fluid)));
    }
};

QStringList TextsOf(const std::vector<UnitRow>& rows);

}  // namespace tarvix

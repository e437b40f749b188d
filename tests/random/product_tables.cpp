#include "tests/random/product_tables.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace tarvix {

namespace {

// The rows below the heading, in columns.
std::vector<QStringList> Rows(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s can't be read\n", qPrintable(path));
        std::exit(2);
    }
    std::vector<QStringList> rows;
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    lines.removeLast();
    lines.removeFirst();
    for (const QString& line : lines) {
        rows.push_back(line.split(QLatin1Char('\t')));
    }
    return rows;
}

}  // namespace

ProductTables::ProductTables(const QString& folder) {
    for (const QStringList& row : Rows(folder + QStringLiteral("/units.tsv"))) {
        units[row.at(0)].push_back({row.at(2), row.at(3), row.at(4).toFloat()});
    }
    for (const QStringList& row : Rows(folder + QStringLiteral("/nominal_sizes.tsv"))) {
        sizes.push_back({row.at(1), row.at(2)});
    }
    for (const QStringList& row : Rows(folder + QStringLiteral("/pipe_schedules.tsv"))) {
        schedules[row.at(0)].push_back({row.at(2), row.at(3)});
    }
    for (const QStringList& row : Rows(folder + QStringLiteral("/steam_table.tsv"))) {
        steam.push_back({row.at(0).toDouble(), row.at(1).toDouble()});
    }
}

QStringList TextsOf(const std::vector<UnitRow>& rows) {
    QStringList texts;
    for (const UnitRow& row : rows) {
        texts.append(row.text);
    }
    return texts;
}

}  // namespace tarvix

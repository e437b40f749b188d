// A font of the desktop under another name, for programs that ask for a family by its name.
#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QFont>
#include <QFontDatabase>
#include <QIODevice>
#include <QRawFont>
#include <QString>

#include <gtest/gtest.h>

namespace tarvix::testing {

// Installed for this process while it lives: the tables of the desktop's font, as a file of the
// Open Font Format has them, with a table of names of its own.
class RenamedFont {
  public:
    explicit RenamedFont(const QString& family)
        : id_(QFontDatabase::addApplicationFontFromData(FileOf(family))) {
        EXPECT_TRUE(QFontDatabase::applicationFontFamilies(id_).contains(family));
    }
    ~RenamedFont() { QFontDatabase::removeApplicationFont(id_); }
    RenamedFont(const RenamedFont&) = delete;
    RenamedFont& operator=(const RenamedFont&) = delete;

  private:
    // One record: the family (1) in English (0x409) for Windows (3) in UTF-16 (1).
    static QByteArray NamesOf(const QString& family) {
        QByteArray names;
        QDataStream out(&names, QIODevice::WriteOnly);
        const auto bytes = static_cast<quint16>(2 * family.size());
        out << quint16{0} << quint16{1} << quint16{18};
        out << quint16{3} << quint16{1} << quint16{0x409} << quint16{1} << bytes << quint16{0};
        for (const QChar character : family) {
            out << character.unicode();
        }
        return names;
    }

    static QByteArray FileOf(const QString& family) {
        constexpr const char* kTables[] = {"OS/2", "cmap", "glyf", "head", "hhea",
                                           "hmtx", "loca", "maxp", "name", "post"};
        constexpr quint16 kCount = std::size(kTables);
        const QRawFont desktop = QRawFont::fromFont(QFont());
        QByteArray directory;
        QByteArray tables;
        QDataStream out(&directory, QIODevice::WriteOnly);
        // The version of outlines as TrueType has them; how to search in the directory, the check
        // sums and what aligns the tables are read by nobody.
        out << quint32{0x00010000} << kCount << quint16{0} << quint16{0} << quint16{0};
        for (const char* tag : kTables) {
            const QByteArray table =
                tag == QByteArray("name") ? NamesOf(family) : desktop.fontTable(tag);
            const auto place = static_cast<quint32>(12 + 16 * kCount + tables.size());
            out.writeRawData(tag, 4);
            out << quint32{0} << place << static_cast<quint32>(table.size());
            tables += table;
        }
        return directory + tables;
    }

    int id_;
};

}  // namespace tarvix::testing

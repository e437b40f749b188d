#include "tests/random/minimize.h"

#include "tests/random/session.h"

#include <algorithm>

namespace tarvix {

namespace {

// The lines up to the one that breaks the invariant; nothing when none does.
std::optional<QStringList> Broken(const World& world, const std::vector<Invariant>& invariants,
                                  const QString& locale, const QStringList& script,
                                  const QString& invariant) {
    Session session(world, invariants, locale);
    for (const QString& line : script) {
        if (session.Play(line) != Session::Outcome::GoesOn) {
            break;
        }
    }
    if (!session.failure() || session.failure()->invariant != invariant) {
        return std::nullopt;
    }
    return session.script().mid(1);
}

}  // namespace

QStringList Minimized(const World& world, const std::vector<Invariant>& invariants,
                      const QString& locale, QStringList script, const QString& invariant) {
    // Ever smaller pieces are left out, until no single line can be.
    for (qsizetype piece = std::max<qsizetype>(script.size() / 2, 1);;) {
        bool shorter = false;
        for (qsizetype at = 0; at < script.size();) {
            QStringList tried = script;
            tried.erase(tried.begin() + at,
                        tried.begin() + std::min<qsizetype>(at + piece, tried.size()));
            if (const auto broken = Broken(world, invariants, locale, tried, invariant)) {
                script = *broken;
                shorter = true;
            } else {
                at += piece;
            }
        }
        if (piece == 1 && !shorter) {
            return script;
        }
        piece = shorter ? std::min(piece, std::max<qsizetype>(script.size() / 2, 1))
                        : std::max<qsizetype>(piece / 2, 1);
    }
}

}  // namespace tarvix

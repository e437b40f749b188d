#include "tests/random/invariants.h"

#include <algorithm>

namespace tarvix {

bool Step::Is(std::string_view commandName, std::initializer_list<std::string_view> targets) const {
    if (refused || command != Named(commandName)) {
        return false;
    }
    return std::ranges::any_of(targets,
                               [this](std::string_view name) { return target == Named(name); });
}

std::vector<Invariant> AllInvariants() {
    std::vector<Invariant> list;
    AddFormInvariants(list);
    AddOptionInvariants(list);
    AddListInvariants(list);
    AddNumberInvariants(list);
    AddResultInvariants(list);
    AddMessageInvariants(list);
    AddActionInvariants(list);
    AddBoxInvariants(list);
    return list;
}

QString Quoted(const QString& text) {
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString Named(std::string_view name) {
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace tarvix

// What a user sees of the main window after an action.
#pragma once

#include "app/window/frm_tarvix.h"
#include "calc/equation_terms.h"
#include "calc/orifice_gas.h"
#include "tests/random/numbers.h"
#include "tests/random/product_tables.h"
#include "tests/window_script/script_desk.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarvix {

struct ControlView {
    ControlKind kind = ControlKind::Label;
    bool visible = false;  // as the user sees it: with every frame around it
    bool enabled = false;
    QString text;         // text and combo boxes
    bool locked = false;  // text boxes
    bool tabStop = false;
    bool checked = false;  // options
    QString caption;       // what is written on all others
    BackColor backColor = BackColor::Default;
    int index = -1;  // combo boxes
    QStringList items;
    int left = 0;  // twips
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const ControlView&) const = default;
};

using ControlIndex = std::unordered_map<std::string_view, size_t>;

class WindowView {
  public:
    WindowView() = default;
    WindowView(frmTarvix& window, ScriptDesk& desk);

    const ControlView& operator[](std::string_view name) const {
        return controls_[index_->at(name)];
    }
    const std::vector<ControlView>& controls() const { return controls_; }
    const QString& NameOf(size_t control) const { return names_->at(control); }

    QString focus;         // the control that has the focus, or empty
    int calculations = 0;  // since the window was opened
    int pages = 0;         // printed since the view before
    std::vector<ShownBox> boxes;
    QString title;

  private:
    std::vector<ControlView> controls_;
    const ControlIndex* index_ = nullptr;
    const std::vector<QString>* names_ = nullptr;
};

// What the product knows: its tables and the user's way of writing numbers.
struct World {
    ProductTables tables;
    Numbers numbers;
};

// What the view says, in calculation units where it is a factor.
struct Reading {
    Reading() = default;
    Reading(const WindowView& view, const World& world);

    char fluid = 'G';
    SolveFor mode = SolveFor::Beta;
    bool mass = false;
    bool sgCalculated = false;
    bool steamTable = false;
    bool absolute = false;
    bool degC = false;
    CompCorrection correction = CompCorrection::None;

    std::optional<float> flow, deltaP, beta, bore, pf, tf, density, sgb, sgf, gasSGb, zf;
    float flowFactor = 1;  // of the flow unit alone
    float timeFactor = 1;
    float deltaPFactor = 1;
    float pressFactor = 1;
    float densityFactor = 1;
    float zfDensityFactor = 1;
    float boreFactor = 1;
    float pipeFactor = 1;
    float nominalSize = 0;
    bool userEnteredPipe = false;
    float pipeDiameterIn = 0;

    // The operating pressure as entered, psi; nothing without a number.
    std::optional<float> PressurePsi() const;
};

// The name of the field that the mode solves for.
std::string_view ResultField(SolveFor mode);

// The eleven fields for numbers.
inline constexpr std::string_view kNumericFields[] = {
    "txtFlow",    "txtDeltaP", "txtBeta", "txtOriBoreDia", "txtPf", "txtTf",
    "txtDensity", "txtSGb",    "txtSGf",  "txtGasSGb",     "txtZf"};

}  // namespace tarvix

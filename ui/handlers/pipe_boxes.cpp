#include "ui/handlers/pipe_boxes.h"

#include "ui/handlers/unit_boxes.h"
#include "units/nominal_sizes.h"
#include "units/pipe_id_texts.h"

namespace tarvix {

namespace {

std::string WithoutBlanks(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

PipeBoxes::PipeBoxes(const FormContext& context, Warnings& warnings, BoreAndBeta& boreAndBeta)
    : context_(context), warnings_(warnings), boreAndBeta_(boreAndBeta) {
    const MainForm& form = context_.form;
    const auto connect = [this](DropDownList* list, void (PipeBoxes::*handler)()) {
        QObject::connect(list, &QComboBox::activated, list,
                         [this, handler] { (this->*handler)(); });
    };
    connect(form.cboPipeIDUnit, &PipeBoxes::cboPipeIDUnit_Click);
    connect(form.cboNomSize, &PipeBoxes::cboNomSize_Click);
    connect(form.cboPipeID, &PipeBoxes::cboPipeID_Click);
}

void PipeBoxes::LoadcboPipeIDUnit() {
    DropDownList& pipeList = *context_.form.cboPipeIDUnit;
    DropDownList& boreList = *context_.form.cboOriBoreUnit;
    const std::string previous = pipeList.Text();
    pipeList.Clear();
    context_.state.PipeIDUnitTable = kLengthUnits;
    context_.state.OriBoreUnitTable = kLengthUnits;
    AddUnits(pipeList, kLengthUnits);
    AddUnits(boreList, kLengthUnits);
    const int position = PositionOf(kLengthUnits, previous);
    pipeList.SetListIndex(position);
    boreList.SetListIndex(position);
}

void PipeBoxes::LoadcboNomSize() {
    const Module1& module = context_.module;
    DropDownList& list = *context_.form.cboNomSize;
    std::vector<std::string>& table = context_.state.NomSizeTable;
    const std::string* selected = SelectedEntry(table, list);
    const std::string toSelect = selected != nullptr ? *selected : std::string(kDefaultNominalSize);

    list.Clear();
    table.clear();
    int position = 0;
    for (const NominalSize& size : kNominalSizes) {
        const std::string value = module.LocalDecimal(std::string(size.value));
        const float sizeIn = TextToSingle(value, module.locale()).value_or(0.0F);
        list.AddItem(NominalSizeText(size.text, sizeIn, PipeUnit(), module.locale()));
        if (value == toSelect) {
            position = static_cast<int>(table.size());
        }
        table.push_back(value);
    }
    list.SetListIndex(position);
}

void PipeBoxes::LoadcboPipeID() {
    Module1& module = context_.module;
    DropDownList& list = *context_.form.cboPipeID;
    std::vector<std::string>& table = context_.state.PipeIDTable;
    const std::string* size = SelectedEntry(context_.state.NomSizeTable, *context_.form.cboNomSize);
    const std::string* selected = SelectedEntry(table, list);
    const std::optional<std::string> remembered =
        selected != nullptr ? std::optional(*selected) : std::nullopt;

    // The rows are found by the size as it is written: where the system writes a decimal comma, the
    // sizes with a fraction have none.
    const auto schedules = SchedulesOf(size != nullptr ? *size : std::string());
    if (schedules.empty()) {
        module.MsgText = "No pipe schedule data for nominal pipe size.";
        module.FatalError();
    }

    list.Clear();
    table.clear();
    for (const PipeSchedule& schedule : schedules) {
        std::string diameter = module.LocalDecimal(std::string(schedule.insideDiameter));
        const auto shown = ScheduleText(diameter, schedule.text, PipeUnit(), module.locale());
        if (!shown) {
            UnknownPipeUnit();
        }
        list.AddItem(*shown);
        table.push_back(std::move(diameter));
    }
    list.AddItem(kOtherUserEntered);
    table.emplace_back(kNoDiameterYet);

    // Of several entries with the remembered diameter the last.
    int position = 0;
    for (size_t i = 0; i < table.size(); ++i) {
        if (table[i] == remembered) {
            position = static_cast<int>(i);
        }
    }
    list.SetListIndex(position);
}

void PipeBoxes::cboPipeIDUnit_Click() {
    const MainForm& form = context_.form;
    form.cboOriBoreUnit->SetListIndex(form.cboPipeIDUnit->ListIndex());
    LoadcboNomSize();
}

void PipeBoxes::cboNomSize_Click() {
    LoadcboPipeID();
    warnings_.CheckPlateThicknessWarning();
}

void PipeBoxes::cboPipeID_Click() {
    const MainForm& form = context_.form;
    const bool userEntered = form.cboPipeID->Text().find(kUserEntered) != std::string::npos;
    form.txtMaskNomSize->setVisible(userEntered);
    // The focus would not be seen on a list that is covered.
    form.cboNomSize->setFocusPolicy(userEntered ? Qt::ClickFocus : Qt::StrongFocus);
    if (userEntered) {
        AskUserEnteredPipe();
    }
    boreAndBeta_.FollowPipeDiameter();
}

void PipeBoxes::AskUserEnteredPipe() {
    Module1& module = context_.module;
    DropDownList& list = *context_.form.cboPipeID;
    std::string& diameter = context_.state.PipeIDTable[static_cast<size_t>(list.ListIndex())];

    const std::string answer = WithoutBlanks(
        module.platform()
            .ShowInputBox({"Enter a Pipe ID in " + context_.form.cboPipeIDUnit->Text() + ".",
                           "Pipe ID", diameter})
            .value_or(""));
    const auto value = TextToDouble(answer, module.locale());
    if (!value || !(*value > 0)) {
        module.MsgText = "The pipe ID must be greater than 0.";
        module.MsgTitle = "User Entered Pipe ID";
        module.MsgResult = module.platform().ShowMessageBox(
            {module.MsgText, module.MsgTitle, BoxStyle::Information, BoxButtons::Ok});
        return;
    }
    const auto pipe = UserEnteredPipeOf(*value, PipeUnit(), module.locale());
    if (!pipe) {
        UnknownPipeUnit();
    }
    diameter = pipe->diameterText;
    list.setItemText(list.ListIndex(), QString::fromStdString(pipe->shownText));
}

const Unit& PipeBoxes::PipeUnit() const {
    const Unit* unit = SelectedEntry(context_.state.PipeIDUnitTable, *context_.form.cboPipeIDUnit);
    return unit != nullptr ? *unit : kLengthUnits.front();
}

void PipeBoxes::UnknownPipeUnit() {
    context_.module.MsgText = "Unrecognized pipe ID unit for 'User Entered' pipe ID";
    context_.module.FatalError();
}

}  // namespace tarvix

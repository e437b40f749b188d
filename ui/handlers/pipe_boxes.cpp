#include "ui/handlers/pipe_boxes.h"

#include "ui/form/handler_links.h"
#include "ui/form/unit_lists.h"
#include "ui/handlers/bore_and_beta_fields.h"
#include "ui/handlers/warnings.h"
#include "units/nominal_sizes.h"
#include "units/pipe_id_texts.h"

namespace tarvix {

namespace {

const Unit& PipeUnit(const FormContext& context) {
    const Unit* unit =
        SelectedEntry(context, context.state.PipeIDUnitTable, *context.form.cboPipeIDUnit);
    return unit != nullptr ? *unit : kLengthUnits.front();
}

void AskUserEnteredPipe(const FormContext& context) {
    Module1& module = context.module;
    DropDownList& list = *context.form.cboPipeID;
    EnteredNumber& diameter = *SelectedEntry(context, context.state.PipeIDTable, list);

    const std::string answer =
        module.platform()
            .ShowInputBox({"Enter a Pipe ID in " + context.form.cboPipeIDUnit->Text() + ".",
                           "Pipe ID", diameter.text()})
            .value_or("");
    // Blanks around it do not count.
    const auto value = TextToDouble(answer, module.locale());
    if (!value || !(*value > 0)) {
        module.MsgText = "The pipe ID must be greater than 0.";
        module.MsgTitle = "User Entered Pipe ID";
        module.MsgResult = module.platform().ShowMessageBox(
            {module.MsgText, module.MsgTitle, BoxStyle::Information, BoxButtons::Ok});
        return;
    }
    const auto pipe = UserEnteredPipeOf(*value, PipeUnit(context), module.locale());
    if (!pipe) {
        module.FatalError(kUnknownPipeUnit);
    }
    diameter = EnteredNumber(pipe->diameterText, module.locale());
    list.setItemText(list.ListIndex(), QString::fromStdString(pipe->shownText));
}

}  // namespace

void ConnectPipeBoxes(const FormContext& context) {
    const MainForm& form = context.form;
    OnClick(context, *form.cboPipeIDUnit, cboPipeIDUnit_Click);
    OnClick(context, *form.cboNomSize, cboNomSize_Click);
    OnClick(context, *form.cboPipeID, cboPipeID_Click);
}

void LoadcboPipeIDUnit(const FormContext& context) {
    DropDownList& boreList = *context.form.cboOriBoreUnit;
    FillUnits(boreList, context.state.OriBoreUnitTable, kLengthUnits);
    ReloadUnits(*context.form.cboPipeIDUnit, context.state.PipeIDUnitTable, kLengthUnits);
    boreList.SetListIndex(context.form.cboPipeIDUnit->ListIndex());
}

void LoadcboNomSize(const FormContext& context) {
    const Module1& module = context.module;
    DropDownList& list = *context.form.cboNomSize;
    std::vector<EnteredNumber>& table = context.state.NomSizeTable;
    const EnteredNumber* selected = SelectedEntry(context, table, list);
    const std::string toSelect =
        selected != nullptr ? selected->text() : std::string(kDefaultNominalSize);

    list.Clear();
    table.clear();
    int position = 0;
    for (const NominalSize& size : kNominalSizes) {
        EnteredNumber value(module.LocalDecimal(std::string(size.value)), module.locale());
        list.AddItem(
            NominalSizeText(size.text, value.SingleOrZero(), PipeUnit(context), module.locale()));
        if (value.text() == toSelect) {
            position = static_cast<int>(table.size());
        }
        table.push_back(std::move(value));
    }
    list.SetListIndex(position);
}

void LoadcboPipeID(const FormContext& context) {
    Module1& module = context.module;
    DropDownList& list = *context.form.cboPipeID;
    std::vector<EnteredNumber>& table = context.state.PipeIDTable;
    const EnteredNumber* size =
        SelectedEntry(context, context.state.NomSizeTable, *context.form.cboNomSize);
    const EnteredNumber* selected = SelectedEntry(context, table, list);
    const std::optional<std::string> remembered =
        selected != nullptr ? std::optional(selected->text()) : std::nullopt;

    // The rows are found by the size as it is written: where the system writes a decimal comma, the
    // sizes with a fraction have none.
    const auto schedules = SchedulesOf(size != nullptr ? size->text() : std::string());
    if (schedules.empty()) {
        module.FatalError("No pipe schedule data for nominal pipe size.");
    }

    list.Clear();
    table.clear();
    for (const PipeSchedule& schedule : schedules) {
        std::string diameter = module.LocalDecimal(std::string(schedule.insideDiameter));
        const auto shown =
            ScheduleText(diameter, schedule.text, PipeUnit(context), module.locale());
        if (!shown) {
            module.FatalError(kUnknownPipeUnit);
        }
        list.AddItem(*shown);
        table.emplace_back(std::move(diameter), module.locale());
    }
    list.AddItem(kOtherUserEntered);
    table.emplace_back(std::string(kNoDiameterYet), module.locale());

    // Of several entries with the remembered diameter the last.
    int position = 0;
    for (size_t i = 0; i < table.size(); ++i) {
        if (table[i].text() == remembered) {
            position = static_cast<int>(i);
        }
    }
    list.SetListIndex(position);
}

void cboPipeIDUnit_Click(const FormContext& context) {
    const MainForm& form = context.form;
    form.cboOriBoreUnit->SetListIndex(form.cboPipeIDUnit->ListIndex());
    LoadcboNomSize(context);
}

void cboNomSize_Click(const FormContext& context) {
    LoadcboPipeID(context);
    CheckPlateThicknessWarning(context);
}

void cboPipeID_Click(const FormContext& context) {
    const MainForm& form = context.form;
    const bool userEntered = form.cboPipeID->Text().find(kUserEntered) != std::string::npos;
    form.txtMaskNomSize->setVisible(userEntered);
    form.cboNomSize->SetCovered(userEntered);
    if (userEntered) {
        AskUserEnteredPipe(context);
    }
    FollowPipeDiameter(context);
}

}  // namespace tarvix

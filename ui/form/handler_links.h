// Links a control of the form with the procedure that handles its event.
#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

using Handler = void (*)(const FormContext& context);

inline void OnClick(const FormContext& context, OptionButton& option, Handler handler) {
    QObject::connect(&option, &QAbstractButton::clicked, &option,
                     [context, handler] { handler(context); });
}

inline void OnClick(const FormContext& context, DropDownList& list, Handler handler) {
    QObject::connect(&list, &QComboBox::activated, &list, [context, handler] { handler(context); });
}

inline void OnChange(const FormContext& context, NumericField& field, Handler handler) {
    field.onChange = [context, handler] { handler(context); };
}

}  // namespace tarvix

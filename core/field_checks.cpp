#include "core/field_checks.h"

#include "core/messages.h"
#include "core/numbers.h"
#include "core/stations.h"

namespace gw {

std::optional<std::string_view> PlusPartTooLarge(double plus, std::string_view unitSystem) {
    if (unitSystem == kMetric && plus > 999.999) return msg::kPlusUnder1000;
    if (unitSystem == kEnglish && plus > 99.99) return msg::kPlusUnder100;
    return std::nullopt;
}

std::optional<std::string_view> CheckCurveFieldOnLeave(const CurveSheet& sheet, const CurveField& field) {
    if (!IsTextField(field)) return std::nullopt;
    const std::string& text = TextOf(sheet, field);
    if (field.kind == CurveFieldKind::Length) {
        if (ReadNumber(text) == 0) return msg::kLengthNotZero;
        return std::nullopt;
    }
    if (text.empty()) return std::nullopt;
    switch (field.kind) {
        case CurveFieldKind::Grade:
        case CurveFieldKind::WholeStation:
            if (!IsNumericText(text)) return msg::kMustBeNumeric;
            return std::nullopt;
        case CurveFieldKind::PlusPart: {
            if (!IsNumericText(text)) return msg::kMustBeNumeric;
            const double plus = ReadNumber(text);
            if (auto tooLarge = PlusPartTooLarge(plus, sheet.lblMorF)) return tooLarge;
            if (ReadNumber(TextOf(sheet, WholePartOf(field))) == 0 && plus == 0) return msg::kZeroStation;
            return std::nullopt;
        }
        default: return std::nullopt;
    }
}

}  // namespace gw

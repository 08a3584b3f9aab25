#include <zor/controls/numeric/range_control.h>
#include <zor/controls/numeric/range_rows.h>

namespace zor::controls {

void RangeControl::InvalidValue(bool value) { write(RangeRows::InvalidValue, value); }
void RangeControl::MsgInvalidValue(std::string_view value) { write(RangeRows::MsgInvalidValue, value); }

void RangeControl::testValue(double deviceValue)
{
    m_units.settleLimits();
    m_invalidValue = m_units.isOutside(deviceValue);
    if (m_invalidValue)
        raise(raised().invalid);
}

} // namespace zor::controls

// What the controls' texts are looked up by. Not compiled: the identifiers come from the controls at run time, and
// lupdate, which collects what there is to translate, would not find them. A label that is the same in every
// language needs no translation.

#include <QtGlobal>

const char* const kMessages[] = {
    QT_TRANSLATE_NOOP("messages", "MSG_CFAIL"),          QT_TRANSLATE_NOOP("messages", "MSG_DATANOTAVAILABLE"),
    QT_TRANSLATE_NOOP("messages", "MSG_DEVICEBUSY"),     QT_TRANSLATE_NOOP("messages", "MSG_NOENTRY"),
    QT_TRANSLATE_NOOP("messages", "MSG_DATACHANGED"),    QT_TRANSLATE_NOOP("messages", "MSG_NEWVALUE"),
    QT_TRANSLATE_NOOP("messages", "MSG_INVALIDENTRY"),   QT_TRANSLATE_NOOP("messages", "MSG_DEVICETAGNOTFOUND"),
    QT_TRANSLATE_NOOP("messages", "MSG_INVALIDENTRYTO"), QT_TRANSLATE_NOOP("messages", "MSG_INVALIDENTRYNAN"),
    QT_TRANSLATE_NOOP("messages", "MSG_INVALIDVALUE"),   QT_TRANSLATE_NOOP("messages", "MsgInvalidEntryForText"),
};

// Kinds of unit, by their words in the unit catalogue.
const char* const kUnitTypes[] = {
    QT_TRANSLATE_NOOP("units", "Length"),      QT_TRANSLATE_NOOP("units", "Velocity"),
    QT_TRANSLATE_NOOP("units", "Temperature"), QT_TRANSLATE_NOOP("units", "Volume"),
    QT_TRANSLATE_NOOP("units", "Pressure"),    QT_TRANSLATE_NOOP("units", "Volumetric Flow"),
    QT_TRANSLATE_NOOP("units", "Time"),        QT_TRANSLATE_NOOP("units", "Frequency"),
};

// The status image has texts of its own under these.
const char* const kOfTheImage[][2] = {
    QT_TRANSLATE_NOOP3("messages", "MSG_DEFAULT", "ctx_ZorImage"),
    QT_TRANSLATE_NOOP3("messages", "MSG_STATUSNOTOK", "ctx_ZorImage"),
    QT_TRANSLATE_NOOP3("messages", "MsgStatusOK", "ctx_ZorImage"),
    QT_TRANSLATE_NOOP3("messages", "MsgUndefined", "ctx_ZorImage"),
    QT_TRANSLATE_NOOP3("messages", "MsgBit", "ctx_ZorImage"),
    QT_TRANSLATE_NOOP3("messages", "StatusText", "ctx_ZorImage"),
};

const char* const kUnits[] = {
    QT_TRANSLATE_NOOP("units", "UNIT_LENGTH_1/256_INCH"), QT_TRANSLATE_NOOP("units", "UNIT_LENGTH_1/16_INCH"),
    QT_TRANSLATE_NOOP("units", "UNIT_LENGTH_INCH"),       QT_TRANSLATE_NOOP("units", "UNIT_LENGTH_FEET"),
    QT_TRANSLATE_NOOP("units", "UNIT_VEL_1/10_FT/HR"),    QT_TRANSLATE_NOOP("units", "UNIT_VEL_FT/S"),
    QT_TRANSLATE_NOOP("units", "UNIT_VEL_FT/HR"),         QT_TRANSLATE_NOOP("units", "UNIT_VEL_INCH/MIN"),
    QT_TRANSLATE_NOOP("units", "UNIT_VOL_FT3"),           QT_TRANSLATE_NOOP("units", "UNIT_VOL_BBL"),
    QT_TRANSLATE_NOOP("units", "UNIT_VOL_IMPGAL"),        QT_TRANSLATE_NOOP("units", "UNIT_VOL_YD3"),
    QT_TRANSLATE_NOOP("units", "UNIT_VOL_INCH3"),         QT_TRANSLATE_NOOP("units", "UNIT_PRES_BAR"),
    QT_TRANSLATE_NOOP("units", "UNIT_PRES_MBAR"),         QT_TRANSLATE_NOOP("units", "UNIT_VOLFLOW_BBL/HR"),
    QT_TRANSLATE_NOOP("units", "UNIT_OTHER_DEBYE"),       QT_TRANSLATE_NOOP("units", "UNIT_OTHER_OHM"),
};

// What the library's reader says of forms.
const char* const kOfForms[] = {
    QT_TRANSLATE_NOOP("texts", "the form is too large"),
    QT_TRANSLATE_NOOP("texts", "a character that XML does not have"),
    QT_TRANSLATE_NOOP("texts", "%1 is not closed"),
    QT_TRANSLATE_NOOP("texts", "there is no form in it"),
    QT_TRANSLATE_NOOP("texts", "a name is missing"),
    QT_TRANSLATE_NOOP("texts", "text outside the form"),
    QT_TRANSLATE_NOOP("texts", "document type definitions are not read"),
    QT_TRANSLATE_NOOP("texts", "only UTF-8 is read"),
    QT_TRANSLATE_NOOP("texts", "a second root element"),
    QT_TRANSLATE_NOOP("texts", "the form has too many elements"),
    QT_TRANSLATE_NOOP("texts", "%1 is not a whole tag"),
    QT_TRANSLATE_NOOP("texts", "a tag that does not end"),
    QT_TRANSLATE_NOOP("texts", "elements are nested too deeply"),
    QT_TRANSLATE_NOOP("texts", "an attribute without a value"),
    QT_TRANSLATE_NOOP("texts", "an attribute's value without quotes"),
    QT_TRANSLATE_NOOP("texts", "an attribute's value that does not end"),
    QT_TRANSLATE_NOOP("texts", "%1 closes nothing"),
    QT_TRANSLATE_NOOP("texts", "%1 closes %2"),
    QT_TRANSLATE_NOOP("texts", "an entity that XML does not know"),
    QT_TRANSLATE_NOOP("texts", "the form is not in UTF-8"),
    QT_TRANSLATE_NOOP("texts", "is no form of Qt Designer"),
    QT_TRANSLATE_NOOP("texts", "a comment that does not end"),
    QT_TRANSLATE_NOOP("texts", "a CDATA section that does not end"),
    QT_TRANSLATE_NOOP("texts", "an instruction that does not end"),
    QT_TRANSLATE_NOOP("texts", "unknown class %1"),
    QT_TRANSLATE_NOOP("texts", "%1: no such property"),
    QT_TRANSLATE_NOOP("texts", "%1: %2 holds no value of the kind %3"),
    QT_TRANSLATE_NOOP("texts", "%1: follows from other properties and is not set"),
    QT_TRANSLATE_NOOP("texts", "%1: a rectangle of whole pixels is expected"),
};

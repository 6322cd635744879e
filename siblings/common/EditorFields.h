#pragma once

#include "Choices.h"

#include <QString>

#include <optional>
#include <vector>

// How an editor of the siblings shows one field of its record.
enum class FieldKind {
    Text,      // line edit, maxLength characters
    Integer,   // whole number between minimum and maximum
    Decimal,   // number with decimals between minimum and maximum
    Date,      // date, may stay empty
    Choice,    // fixed drop-down list of keyed entries
    Flag,      // check box, 1 when checked
};

struct EditorField
{
    QString name;      // the widget's objectName: "edNazwisko", "cbKraj"
    QString caption;   // the label beside it, the check box's own text for a flag
    FieldKind kind = FieldKind::Text;
    int group = 0;     // index into the editor's groups
    int maxLength = 0;
    double minimum = 0.0;
    double maximum = 0.0;
    int decimals = 0;
    ChoiceSource choices;
    bool noneChoice = false;   // a choice list that starts with an empty entry (key 0)
    bool inverted = false;     // a flag stored as 0 when checked
    bool required = false;     // an empty text, a choice of 0 or no date is refused
};

struct FieldGroup
{
    QString title;
    int column = 0;   // 0 left, 1 right, -1 across both
};

// A field whose value cannot be saved, and what to tell the user.
struct FieldProblem
{
    QString field;   // EditorField::name
    QString message;
};

using Problem = std::optional<FieldProblem>;

// Field descriptions, one line each in the editors' definitions.
namespace Fields {

inline EditorField make(const QString &name, const QString &caption, FieldKind kind, int group)
{
    EditorField field;
    field.name = name;
    field.caption = caption;
    field.kind = kind;
    field.group = group;
    return field;
}

inline EditorField text(const QString &name, const QString &caption, int group, int maxLength,
                      bool required = false)
{
    EditorField field = make(name, caption, FieldKind::Text, group);
    field.maxLength = maxLength;
    field.required = required;
    return field;
}

inline EditorField integer(const QString &name, const QString &caption, int group, int minimum,
                         int maximum)
{
    EditorField field = make(name, caption, FieldKind::Integer, group);
    field.minimum = minimum;
    field.maximum = maximum;
    return field;
}

inline EditorField decimal(const QString &name, const QString &caption, int group, double maximum,
                         int decimals = 2)
{
    EditorField field = make(name, caption, FieldKind::Decimal, group);
    field.maximum = maximum;
    field.decimals = decimals;
    return field;
}

inline EditorField date(const QString &name, const QString &caption, int group,
                      bool required = false)
{
    EditorField field = make(name, caption, FieldKind::Date, group);
    field.required = required;
    return field;
}

// noneChoice: the list starts with an empty entry that stands for key 0.
inline EditorField choice(const QString &name, const QString &caption, int group,
                        ChoiceSource source, bool noneChoice = false, bool required = false)
{
    EditorField field = make(name, caption, FieldKind::Choice, group);
    field.choices = std::move(source);
    field.noneChoice = noneChoice;
    field.required = required;
    return field;
}

// inverted: the column says the opposite of the check box (NIEAKTYWNY
// under "Aktywny").
inline EditorField flag(const QString &name, const QString &caption, int group,
                      bool inverted = false)
{
    EditorField field = make(name, caption, FieldKind::Flag, group);
    field.inverted = inverted;
    return field;
}

} // namespace Fields

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

struct FieldSpec
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
    QString field;   // FieldSpec::name
    QString message;
};

using Problem = std::optional<FieldProblem>;

// Field descriptions, one line each in the editors' definitions.
namespace Fields {

inline FieldSpec field(const QString &name, const QString &caption, FieldKind kind, int group)
{
    FieldSpec spec;
    spec.name = name;
    spec.caption = caption;
    spec.kind = kind;
    spec.group = group;
    return spec;
}

inline FieldSpec text(const QString &name, const QString &caption, int group, int maxLength,
                      bool required = false)
{
    FieldSpec spec = field(name, caption, FieldKind::Text, group);
    spec.maxLength = maxLength;
    spec.required = required;
    return spec;
}

inline FieldSpec integer(const QString &name, const QString &caption, int group, int minimum,
                         int maximum)
{
    FieldSpec spec = field(name, caption, FieldKind::Integer, group);
    spec.minimum = minimum;
    spec.maximum = maximum;
    return spec;
}

inline FieldSpec decimal(const QString &name, const QString &caption, int group, double maximum,
                         int decimals = 2)
{
    FieldSpec spec = field(name, caption, FieldKind::Decimal, group);
    spec.maximum = maximum;
    spec.decimals = decimals;
    return spec;
}

inline FieldSpec date(const QString &name, const QString &caption, int group,
                      bool required = false)
{
    FieldSpec spec = field(name, caption, FieldKind::Date, group);
    spec.required = required;
    return spec;
}

// noneChoice: the list starts with an empty entry that stands for key 0.
inline FieldSpec choice(const QString &name, const QString &caption, int group,
                        ChoiceSource source, bool noneChoice = false, bool required = false)
{
    FieldSpec spec = field(name, caption, FieldKind::Choice, group);
    spec.choices = std::move(source);
    spec.noneChoice = noneChoice;
    spec.required = required;
    return spec;
}

// inverted: the column says the opposite of the check box (NIEAKTYWNY
// under "Aktywny").
inline FieldSpec flag(const QString &name, const QString &caption, int group,
                      bool inverted = false)
{
    FieldSpec spec = field(name, caption, FieldKind::Flag, group);
    spec.inverted = inverted;
    return spec;
}

} // namespace Fields

#include "FieldWidgets.h"

#include "DateTime.h"
#include "TLimitedFloatEdit.h"
#include "TLimitedSpinEdit.h"
#include "TDateEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <cmath>

namespace {

int digitsOf(double maximum)
{
    return int(QString::number(std::llround(std::abs(maximum))).size());
}

QWidget *createChoice(const EditorField &field, const std::vector<Choice> &choices, QWidget *parent)
{
    auto *combo = new QComboBox(parent);
    if (field.noneChoice)
        combo->addItem(QString(), 0);
    for (const Choice &choice : choices)
        combo->addItem(choice.text, choice.key);
    combo->setMaxVisibleItems(20);
    return combo;
}

} // namespace

QWidget *FieldWidgets::create(const EditorField &field, const std::vector<Choice> &choices,
                              QWidget *parent)
{
    QWidget *widget = nullptr;
    switch (field.kind) {
    case FieldKind::Text: {
        auto *edit = new QLineEdit(parent);
        edit->setMaxLength(field.maxLength);
        widget = edit;
        break;
    }
    case FieldKind::Integer: {
        auto *edit = new TLimitedSpinEdit(parent);
        edit->setRange(int(field.minimum), int(field.maximum));
        edit->setMaxLength(digitsOf(field.maximum) + (field.minimum < 0 ? 1 : 0));
        widget = edit;
        break;
    }
    case FieldKind::Decimal: {
        auto *edit = new TLimitedFloatEdit(parent);
        edit->setDecimals(field.decimals);
        edit->setRange(field.minimum, field.maximum);
        edit->setMaxLength(digitsOf(field.maximum) + field.decimals + 1);
        widget = edit;
        break;
    }
    case FieldKind::Date:
        widget = new TDateEdit(parent);
        break;
    case FieldKind::Choice:
        widget = createChoice(field, choices, parent);
        break;
    case FieldKind::Flag:
        widget = new QCheckBox(field.caption, parent);
        break;
    }
    widget->setObjectName(field.name);
    return widget;
}

void FieldWidgets::show(QWidget *widget, const EditorField &field, const QVariant &value)
{
    switch (field.kind) {
    case FieldKind::Text:
        static_cast<QLineEdit *>(widget)->setText(value.toString());
        break;
    case FieldKind::Integer:
        static_cast<TLimitedSpinEdit *>(widget)->setValue(value.toInt());
        break;
    case FieldKind::Decimal:
        static_cast<TLimitedFloatEdit *>(widget)->setValue(value.toDouble());
        break;
    case FieldKind::Date:
        static_cast<TDateEdit *>(widget)->setValue(value.value<DateTime>());
        break;
    case FieldKind::Choice: {
        auto *combo = static_cast<QComboBox *>(widget);
        const int key = value.toInt();
        int index = combo->findData(key);
        // A key the list does not offer (a record since deleted, a value
        // of another program) is shown by number and kept.
        if (index < 0 && key != 0) {
            combo->addItem(QStringLiteral("(%1)").arg(key), key);
            index = combo->count() - 1;
        }
        combo->setCurrentIndex(index);
        break;
    }
    case FieldKind::Flag:
        static_cast<QCheckBox *>(widget)->setChecked((value.toInt() != 0) != field.inverted);
        break;
    }
}

QVariant FieldWidgets::value(const QWidget *widget, const EditorField &field)
{
    switch (field.kind) {
    case FieldKind::Text:
        return static_cast<const QLineEdit *>(widget)->text();
    case FieldKind::Integer:
        return static_cast<const TLimitedSpinEdit *>(widget)->value();
    case FieldKind::Decimal:
        return static_cast<const TLimitedFloatEdit *>(widget)->value();
    case FieldKind::Date:
        return QVariant::fromValue(static_cast<const TDateEdit *>(widget)->value());
    case FieldKind::Choice: {
        const auto *combo = static_cast<const QComboBox *>(widget);
        return combo->currentIndex() < 0 ? 0 : combo->currentData().toInt();
    }
    case FieldKind::Flag:
        return static_cast<const QCheckBox *>(widget)->isChecked() != field.inverted ? 1 : 0;
    }
    return QVariant();
}

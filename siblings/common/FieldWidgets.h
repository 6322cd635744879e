#pragma once

#include "EditorFields.h"

#include <QVariant>

class QWidget;

// The widget of each kind of editor field, and the typed values in and out
// of it (see RecordEditing::value for the types).
namespace FieldWidgets {

QWidget *create(const EditorField &field, const std::vector<Choice> &choices, QWidget *parent);
void show(QWidget *widget, const EditorField &field, const QVariant &value);
QVariant value(const QWidget *widget, const EditorField &field);

} // namespace FieldWidgets

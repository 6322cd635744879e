#pragma once

class QAction;
class QLineEdit;
class QString;

// Puts the "..." button of an edit-with-button field at the field's right
// end; the returned action (parented by the field) is what the button runs.
QAction *addPickerButton(QLineEdit *edit, const QString &objectName);

#pragma once

#include <QPushButton>

// A push button with a picture that may close its dialog with a modal
// result. The accelerator check of the base form leaves these buttons out.
class TBitBtn : public QPushButton
{
    Q_OBJECT

public:
    explicit TBitBtn(const QString &caption, QWidget *parent = nullptr);

    // A named TBitBtn made by namedButton.
    static TBitBtn *create(const QString &caption, const QString &name, QWidget *parent);

    // 0: the button does not close its dialog.
    int modalResult() const { return m_modalResult; }
    void setModalResult(int result) { m_modalResult = result; }

private:
    int m_modalResult = 0;
};

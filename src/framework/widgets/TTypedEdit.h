#pragma once

#include <QAbstractSpinBox>

// The base of the fields whose text is read as a value (numbers, dates).
// What is on the screen is what counts: a text the field can read becomes
// its value as it is typed, whichever way the form is closed afterwards.
// A text it cannot read is kept as typed and marked, the field says why
// in a Polish message when the user leaves it by keyboard, and the form
// refuses to act on it (TfrmRODefault asks commit() before a button acts).
// Nothing is corrected or clipped behind the user's back, and leaving the
// field is never refused.
class TTypedEdit : public QAbstractSpinBox
{
    Q_OBJECT

public:
    explicit TTypedEdit(QWidget *parent = nullptr);

    // Why the text on the screen cannot be taken, naming the field; empty
    // when it can.
    QString problem() const;
    // Takes the text on the screen; false, with the text kept and marked,
    // when it cannot be taken.
    bool commit();

    void setMaxLength(int characters);
    int maxLength() const;

    QValidator::State validate(QString &input, int &position) const override;
    void fixup(QString &input) const override;
    void clear() override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    // Whether every character of a text can belong to a value of the field.
    virtual bool fits(const QString &text) const = 0;
    // Why the field cannot take a text, without naming the field; empty
    // when it can.
    virtual QString textProblem(const QString &text) const = 0;
    // Makes a text the field can take its value.
    virtual void take(const QString &text) = 0;
    // The value as the field shows it, and as it is edited.
    virtual QString shownText() const = 0;
    virtual QString editedText() const { return shownText(); }
    // The widest text the field shows, for its size.
    virtual QString widestText() const = 0;

    // Shows the value after the descendant changed it; the mark goes.
    void showValue();
    // Pixels the field needs beyond its text (a button inside it).
    virtual int extraWidth() const { return 0; }

    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void edited(const QString &text);
    void setMarked(bool marked);
    void reportAfterLeaving();

    bool m_edited = false;   // the text is the user's, not the value's own
    bool m_marked = false;
};

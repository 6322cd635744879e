#pragma once

#include <QGroupBox>
#include <QList>
#include <QStringList>

class QButtonGroup;
class QRadioButton;

// A framed group of radio buttons in columns with one chosen index.
class TRadioGroup : public QGroupBox
{
    Q_OBJECT

public:
    TRadioGroup(const QStringList &items, int columns, QWidget *parent = nullptr);

    int itemIndex() const;
    // -1 chooses none.
    void setItemIndex(int index);
    QRadioButton *button(int index) const { return m_buttons.value(index); }
    int count() const { return static_cast<int>(m_buttons.size()); }

Q_SIGNALS:
    // The user clicked one of the buttons.
    void clicked(int index);

private:
    QButtonGroup *m_group;
    QList<QRadioButton *> m_buttons;
};

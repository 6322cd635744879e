#pragma once

#include <QFrame>

// The search bar of the list frame: a row that is always visible and a
// part below it that the panel shows by growing from 40 to 100 pixels.
class TSearchPanel : public QFrame
{
    Q_OBJECT

public:
    static constexpr int CollapsedHeight = 40;
    static constexpr int ExpandedHeight = 100;

    explicit TSearchPanel(QWidget *parent = nullptr);

    QWidget *topRow() const { return m_topRow; }
    QWidget *expandedPart() const { return m_expandedPart; }
    bool isExpanded() const { return height() >= ExpandedHeight; }

    // Grows to 100 or shrinks to 40 in steps of 5 pixels, repainting after
    // each step; silver when open, the button colour when closed.
    void toggle();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void setPanelHeight(int height);

    QWidget *m_topRow;
    QWidget *m_expandedPart;
};

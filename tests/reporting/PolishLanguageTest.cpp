#include "PolishLanguage.h"
#include "QtMessageService.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QTranslator>

#include <gtest/gtest.h>

#include <memory>

TEST(PolishLanguage, AQuestionOnScreenHasPolishButtons)
{
    const std::unique_ptr<QTranslator> translations(usePolishLanguage());
    ASSERT_TRUE(translations) << "Qt's Polish translations are not installed "
                                 "(package qt6-translations-l10n)";
    EXPECT_EQ(QLocale().language(), QLocale::Polish);

    // The box the programs show, read while it is open and answered "Nie".
    QStringList captions;
    QTimer::singleShot(0, [&captions] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        for (QAbstractButton *button : box->buttons())
            captions << button->text();
        box->button(QMessageBox::No)->click();
    });
    QtMessageService service;
    const MessageService::Button answer
        = service.ask(QStringLiteral("Usuwanie"), QStringLiteral("Usunąć wybraną pozycję"),
                      MessageService::Icon::Question, MessageService::Yes | MessageService::No,
                      MessageService::Yes);
    EXPECT_EQ(answer, MessageService::No);
    captions.sort();
    EXPECT_EQ(captions, (QStringList{QStringLiteral("&Nie"), QStringLiteral("&Tak")}));
}

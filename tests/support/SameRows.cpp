#include "SameRows.h"

#include "EngineRows.h"
#include "Statement.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

bool beyondAscii(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0x7F; });
}

} // namespace

SameRowsSeen expectSameRows(Connection &connection,
                            const std::function<void(Statement &)> &prepare)
{
    Statement driver(connection);
    prepare(driver);
    driver.exec();
    Statement engineStatement(connection);
    prepare(engineStatement);
    EngineRows engine(engineStatement);
    SameRowsSeen seen;
    EXPECT_EQ(engine.columnCount(), driver.columnCount());
    if (engine.columnCount() != driver.columnCount())
        return seen;
    for (int c = 0; c < driver.columnCount(); ++c) {
        EXPECT_EQ(engine.columnName(c), driver.columnName(c));
        EXPECT_EQ(engine.columnIndex(driver.columnName(c).toLower()),
                  driver.columnIndex(driver.columnName(c)));
    }
    for (; !driver.atEnd(); driver.next(), ++seen.rows) {
        EXPECT_TRUE(engine.next()) << "row " << seen.rows;
        for (int c = 0; c < driver.columnCount(); ++c) {
            const std::string where = "row " + std::to_string(seen.rows) + ", column "
                + driver.columnName(c).toStdString();
            EXPECT_EQ(engine.isNull(c), driver.isNull(c)) << where;
            EXPECT_EQ(engine.integer(c), driver.integer(c)) << where;
            // Bit for bit: NUMERIC goes through the same double.
            EXPECT_EQ(engine.number(c), driver.number(c)) << where;
            EXPECT_EQ(engine.string(c), driver.string(c)) << where;
            EXPECT_EQ(engine.dateTime(c), driver.dateTime(c)) << where;
            EXPECT_EQ(engine.value(c), driver.value(c)) << where;
            EXPECT_EQ(engine.value(c).metaType(), driver.value(c).metaType()) << where;
            QString appended = QStringLiteral("<");
            engine.appendString(c, appended);
            EXPECT_EQ(appended, u'<' + driver.string(c)) << where;
            seen.nulls += driver.isNull(c) ? 1 : 0;
            seen.nonAsciiTexts += beyondAscii(driver.string(c)) ? 1 : 0;
        }
    }
    EXPECT_FALSE(engine.next());
    return seen;
}

#include "OrderGoods.h"

#include "Format.h"
#include "Statement.h"

QString OrderGoodsItem::text() const
{
    if (quantity <= 0.0)
        return name;
    QString result = name + u' ' + Format::number(quantity, u"#,##0.###");
    if (!unit.isEmpty())
        result += u' ' + unit;
    return result;
}

std::vector<OrderGoodsItem> OrderGoods::of(Connection &connection, int orderKey)
{
    Statement st(connection);
    st.add(QStringLiteral(
        "SELECT t.NAZWA, t.ILOSC, t.ILOSC_DEKLAROWANA, t.NUMER1, t.NUMER2, m.SKROT"));
    st.add(QStringLiteral("FROM TOWARY t LEFT JOIN MIARY m ON m.ID_MIARY = t.ID_JEDNOSTKI_MIARY"));
    st.add(QStringLiteral("WHERE t.ID_ZLECENIA = :aID_ZLECENIA ORDER BY t.ID_TOWARU"));
    st.bind(QStringLiteral("aID_ZLECENIA"), orderKey);
    st.exec();
    std::vector<OrderGoodsItem> goods;
    for (; !st.atEnd(); st.next())
        goods.push_back({st.string(0), st.number(1), st.number(2), st.string(5), st.string(3),
                         st.string(4)});
    return goods;
}

#include "store/selection.h"

#include "runtime/runtime_error.h"
#include "runtime/shown_value.h"
#include "store/sql_text.h"

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void throwRefusal(const QString& problem) {
    throw RuntimeError(RuntimeError::QueryFailure, u"查询无法执行："_s + problem);
}

class Translator {
public:
    Translator(const Query& query, const TableColumns& columns, const ThisYear& thisYear)
        : m_query(query), m_columns(columns), m_thisYear(thisYear) {}

    Selection selection() {
        const bool summed = std::ranges::any_of(m_query.items, &SelectItem::isSum);
        if (summed || !m_query.groupBy.empty())
            grouped();
        else
            plain();
        return std::move(m_result);
    }

private:
    void plain() {
        m_result.shape.table = m_query.table;
        m_result.shape.distinct = m_query.distinct;
        if (m_query.items.empty())
            std::ranges::for_each(m_columns, [this](const Column& column) { addColumn(column.name, column.name); });
        for (const SelectItem& item : m_query.items)
            addColumn(item.column, item.name);
        if (m_query.distinct && m_result.shape.columns.size() != 1)
            throwRefusal(u"distinct 只能用于一列。"_s);
        const QByteArray order = m_query.distinct ? m_sqlItems.first() + ",rowid" : "rowid";
        m_sqlItems.prepend("rowid");
        compose(" ORDER BY " + order);
    }

    void grouped() {
        if (m_query.distinct || m_query.items.empty())
            throwRefusal(u"分组查询要写明各列，并且不能用 distinct。"_s);
        for (const SelectItem& item : m_query.items)
            item.isSum ? addSum(item) : addGroupColumn(item);
        QByteArrayList keys;
        for (const QString& key : m_query.groupBy)
            keys += quotedName(columnNamed(key).name);
        const QByteArray list = keys.join(',');
        compose(keys.isEmpty() ? QByteArray() : " GROUP BY " + list + " ORDER BY " + list);
    }

    void addColumn(const QString& name, const QString& shownName) {
        const Column& column = columnNamed(name);
        m_result.shape.columns.push_back({shownName, column.kind});
        m_result.shape.ordinals.push_back(static_cast<int>(&column - m_columns.data()));
        m_sqlItems += quotedName(column.name);
    }

    void addGroupColumn(const SelectItem& item) {
        if (std::ranges::find(m_query.groupBy, item.column) == m_query.groupBy.end())
            throwRefusal(u"“%1”既不是合计，也不在 group by 中。"_s.arg(shownValue(item.column)));
        addColumn(item.column, item.name);
    }

    /// Adds floating point numbers only, so that large whole amounts can not overflow.
    void addSum(const SelectItem& item) {
        const Column& column = columnNamed(item.column);
        if (column.kind != ColumnKind::Number && column.kind != ColumnKind::Integer)
            throwRefusal(u"“%1”不是数字，不能合计。"_s.arg(shownValue(item.column)));
        m_result.shape.columns.push_back({item.name, ColumnKind::Number});
        m_sqlItems += "sum(" + quotedName(column.name) + "+0.0)";
    }

    void compose(const QByteArray& tail) {
        m_result.sql = "SELECT " + m_sqlItems.join(',') + " FROM " + quotedName(m_query.table);
        if (m_query.where)
            m_result.sql += " WHERE " + condition(*m_query.where);
        m_result.sql += tail;
    }

    QByteArray condition(const Comparison& comparison) {
        const Column& column = columnNamed(comparison.column);
        for (const Literal& literal : comparison.literals)
            m_result.bound.push_back(boundText(column, comparison.leading > 0, literal));
        const QByteArray operand =
            comparison.leading > 0 ? leftSql(column, comparison.leading) : quotedName(column.name);
        return operand + ' ' + comparison.sign.toLatin1() + (comparison.literals.size() > 1 ? " ? AND ?" : " ?");
    }

    QString boundText(const Column& column, bool cut, const Literal& literal) const {
        const bool dated = column.kind == ColumnKind::Date;
        if ((!dated && column.kind != ColumnKind::Text) || literal.isDate != (dated && !cut))
            throwRefusal(u"“%1”一栏不能与“%2”比较，类型不符。"_s.arg(column.name, shownValue(literal.text)));
        return literal.isDate ? dateText(column, literal.text) : literal.text;
    }

    QString dateText(const Column& column, const QString& text) const {
        if (!parseDate(text, m_thisYear))
            throwRefusal(u"“%1”不是日期，日期应写成 2024-5-3 的样子。"_s.arg(shownValue(text)));
        return std::get<DateValue>(converted(column, text, m_thisYear).data()).iso();
    }

    const Column& columnNamed(const QString& name) const {
        const auto found = std::ranges::find(m_columns, name, &Column::name);
        if (found == m_columns.end())
            throwRefusal(u"表“%1”里没有“%2”这一栏。"_s.arg(shownValue(m_query.table), shownValue(name)));
        return *found;
    }

    const Query& m_query;
    const TableColumns& m_columns;
    const ThisYear& m_thisYear;
    Selection m_result;
    QByteArrayList m_sqlItems;
};

} // namespace

Selection selectionOf(const Query& query, const TableColumns& columns, const ThisYear& thisYear) {
    return Translator(query, columns, thisYear).selection();
}

} // namespace qinghe

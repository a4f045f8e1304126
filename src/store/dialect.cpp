#include "store/dialect.h"

#include "runtime/runtime_error.h"
#include "runtime/shown_value.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

enum class TokenKind { Name, Number, Text, Date, Symbol, End };

struct Token {
    TokenKind kind = TokenKind::End;
    QStringView text; ///< without quotes or marks
    qsizetype at = 0;
    qsizetype end = 0;
};

[[noreturn]] void throwRefusal(QStringView source, qsizetype at, const QString& problem) {
    constexpr qsizetype LongestSource = 200; ///< shown whole: as long as queries are but for a name in them
    const QStringView rest = source.mid(at);
    QString text = u"查询无法执行："_s + problem;
    if (!rest.trimmed().isEmpty())
        text += u"，问题出在“%1”处"_s.arg(shownValue(rest));
    text += u'。';
    if (source.contains(u'\''))
        text += u"用于查询的文字里不能有英文单引号（'）。"_s;
    throw RuntimeError(RuntimeError::QueryFailure, text + u"\r\n查询内容：%1"_s.arg(shownValue(source, LongestSource)));
}

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

bool isNamePart(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

template<typename Predicate>
qsizetype endOfRun(QStringView source, qsizetype at, Predicate belongs) {
    while (at < source.size() && belongs(source[at]))
        ++at;
    return at;
}

/// Everything up to the next mark of the same kind; there is no way to write the mark itself.
Token enclosed(QStringView source, qsizetype at) {
    const QChar mark = source[at];
    const qsizetype close = source.indexOf(mark, at + 1);
    if (close < 0)
        throwRefusal(source, at, u"“%1”没有成对"_s.arg(mark));
    const TokenKind kind = mark == u'#' ? TokenKind::Date : TokenKind::Text;
    return {kind, source.sliced(at + 1, close - at - 1), at, close + 1};
}

Token run(TokenKind kind, QStringView source, qsizetype at, qsizetype end) {
    return {kind, source.sliced(at, end - at), at, end};
}

Token tokenAt(QStringView source, qsizetype from) {
    const qsizetype at = endOfRun(source, from, isBlank);
    if (at == source.size())
        return {TokenKind::End, {}, at, at};
    const QChar c = source[at];
    if (c == u'\'' || c == u'#')
        return enclosed(source, at);
    if (isDigit(c))
        return run(TokenKind::Number, source, at, endOfRun(source, at, isDigit));
    if (isNamePart(c))
        return run(TokenKind::Name, source, at, endOfRun(source, at, isNamePart));
    if (QStringView(u"(),*<>=").contains(c))
        return run(TokenKind::Symbol, source, at, at + 1);
    throwRefusal(source, at, u"不能出现“%1”"_s.arg(c));
}

class Parser {
public:
    explicit Parser(const QString& source) : m_source(source), m_next(tokenAt(m_source, 0)) {}

    Query query() {
        Query result;
        if (takeWord(u"select"))
            select(result);
        else
            result.table = name(u"应为表名或 select 查询"_s);
        expectEnd();
        return result;
    }

    Comparison onlyComparison() {
        const Comparison result = comparison();
        expectEnd();
        return result;
    }

private:
    template<typename Element>
    auto list(Element element) {
        std::vector<decltype(element())> result{element()};
        while (takeSymbol(u','))
            result.push_back(element());
        return result;
    }

    void select(Query& result) {
        result.distinct = takeWord(u"distinct");
        if (!takeSymbol(u'*'))
            result.items = list([this] { return item(); });
        expectWord(u"from");
        result.table = name(u"应为表名"_s);
        if (takeWord(u"where"))
            result.where = comparison();
        if (!takeWord(u"group"))
            return;
        expectWord(u"by");
        result.groupBy = list([this] { return column(); });
    }

    SelectItem item() {
        SelectItem result{.column = column()};
        result.isSum = result.column.compare(u"sum", Qt::CaseInsensitive) == 0 && takeSymbol(u'(');
        if (result.isSum) {
            result.column = column();
            expectSymbol(u')');
        }
        const bool renamed = takeWord(u"as");
        if (result.isSum && !renamed)
            fail(u"sum( ) 后应为 as"_s);
        result.name = renamed ? column() : result.column;
        return result;
    }

    Comparison comparison() {
        Comparison result{.column = column()};
        if (result.column.compare(u"left", Qt::CaseInsensitive) == 0 && takeSymbol(u'(')) {
            result.column = column();
            expectSymbol(u',');
            result.leading = length();
            expectSymbol(u')');
        }
        result.sign = sign();
        result.literals.push_back(literal());
        if (result.sign == u"between") {
            expectWord(u"and");
            result.literals.push_back(literal());
        }
        return result;
    }

    QString sign() {
        if (takeWord(u"between"))
            return u"between"_s;
        if (takeSymbol(u'='))
            return u"="_s;
        if (takeSymbol(u'>'))
            return takeSymbol(u'=') ? u">="_s : u">"_s;
        if (!takeSymbol(u'<'))
            fail(u"应为比较符号"_s);
        if (takeSymbol(u'>'))
            return u"<>"_s;
        return takeSymbol(u'=') ? u"<="_s : u"<"_s;
    }

    Literal literal() {
        if (m_next.kind != TokenKind::Text && m_next.kind != TokenKind::Date)
            fail(u"应为引号中的文字或 # 号中的日期"_s);
        const Token token = take();
        const bool isDate = token.kind == TokenKind::Date;
        return {isDate, (isDate ? token.text.trimmed() : token.text).toString()};
    }

    int length() {
        bool valid = m_next.kind == TokenKind::Number;
        const int result = valid ? m_next.text.toInt(&valid) : 0;
        if (!valid || result == 0)
            fail(u"应为字符数"_s);
        take();
        return result;
    }

    QString column() { return name(u"应为列名"_s); }

    QString name(const QString& problem) {
        if (m_next.kind != TokenKind::Name)
            fail(problem);
        return take().text.toString();
    }

    Token take() {
        const Token token = m_next;
        m_next = tokenAt(m_source, token.end);
        return token;
    }

    bool takeWord(QStringView word) {
        const bool found = m_next.kind == TokenKind::Name && m_next.text.compare(word, Qt::CaseInsensitive) == 0;
        if (found)
            take();
        return found;
    }

    bool takeSymbol(QChar symbol) {
        const bool found = m_next.kind == TokenKind::Symbol && m_next.text == symbol;
        if (found)
            take();
        return found;
    }

    void expectWord(QStringView word) {
        if (!takeWord(word))
            fail(u"应为 %1"_s.arg(word));
    }

    void expectSymbol(QChar symbol) {
        if (!takeSymbol(symbol))
            fail(u"应为“%1”"_s.arg(symbol));
    }

    void expectEnd() {
        if (m_next.kind != TokenKind::End)
            fail(u"后面多出了内容"_s);
    }

    [[noreturn]] void fail(const QString& problem) const { throwRefusal(m_source, m_next.at, problem); }

    const QString m_source;
    Token m_next;
};

} // namespace

Query parsedQuery(const QString& source) {
    return Parser(source).query();
}

Comparison parsedComparison(const QString& criterion) {
    return Parser(criterion).onlyComparison();
}

} // namespace qinghe

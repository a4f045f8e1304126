#include "delivery/manual.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace qinghe {
namespace {

using namespace Qt::StringLiterals;

QString project(const QString& name) {
    return QStringLiteral(QINGHE_PROJECT) + u'/' + name;
}

QString textOf(const QString& name) {
    QFile file(project(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}

QStringList filesBelow(const QString& folder, const QStringList& names) {
    QStringList found;
    for (QDirIterator all(project(folder), names, QDir::Files, QDirIterator::Subdirectories); all.hasNext();)
        found << QDir(project({})).relativeFilePath(all.next());
    found.sort();
    return found;
}

QStringList captured(const QString& text, const QString& pattern) {
    QStringList found;
    for (const QRegularExpressionMatch& match :
         QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text))
        found << match.captured(1);
    return found;
}

/// What people read; the documents at the root and those in docs.
QStringList documents() {
    QStringList names = filesBelow(u"docs"_s, {u"*.md"_s});
    for (const QString& name : QDir(project({})).entryList({u"*.md"_s}, QDir::Files))
        names << name;
    return names;
}

const QString Manual = u"docs/使用说明.md"_s;

QStringList titles() {
    QStringList found;
    for (const ManualPage& page : pagesOf(textOf(Manual)))
        found << page.title;
    return found.mid(1); // the contents are no chapter
}

/// The words that the program has, adjacent literals joined, without blanks around and without marks for keys.
QSet<QString> wordsOfTheProgram() {
    QSet<QString> words;
    static const QRegularExpression joined(u"\"(?:_s)?\\s*(?:u|u8)?\""_s), literal(u"\"((?:[^\"\\\\\\n]|\\\\.)*)\""_s);
    for (const QString& file : filesBelow(u"src"_s, {u"*.cpp"_s, u"*.h"_s})) {
        const QString code = textOf(file);
        for (const QString& text : {code, QString(code).remove(joined)})
            for (const QRegularExpressionMatch& match : literal.globalMatch(text))
                words << match.captured(1).trimmed();
    }
    return words;
}

bool saysSo(const QSet<QString>& words, const QString& quoted) {
    constexpr qsizetype Sentence = 8; // characters; one may be quoted in part
    return words.contains(quoted) || (quoted.size() >= Sentence && std::ranges::any_of(words, [&](const QString& text) {
                                          return text.contains(quoted);
                                      }));
}

TEST(UserManual, HasAChapterForEveryPageOfTheProgram) {
    QStringList captions;
    for (const QString& file : filesBelow(u"src"_s, {u"*_page.cpp"_s}))
        captions << captured(textOf(file), u"\\{u\"Label[^\"]*\", u\" *([^\"]+)\", \\d+, PageCode::"_s);
    EXPECT_EQ(captions.size(), 11) << captions.join(u' ').toStdString();
    captions << u"收支分类"_s; // which has no label
    const QString all = titles().join(u'\n');
    for (const QString& caption : captions)
        EXPECT_TRUE(all.contains(caption)) << caption.toStdString();
}

TEST(UserManual, ListsItsChaptersInTheirOrder) {
    const std::vector<ManualPage> pages = pagesOf(textOf(Manual));
    EXPECT_EQ(captured(pages.front().markdown, u"^\\d+\\. \\[(.*)\\]\\(#"_s), titles());
    QSet<QString> files;
    for (const ManualPage& page : pages)
        files << page.file;
    EXPECT_EQ(files.size(), qsizetype(pages.size())) << "two chapters go to one file";
    EXPECT_EQ(textOf(Manual).count(u"\n## "_s), qsizetype(pages.size())) << "a chapter without its file's name";
}

TEST(UserManual, AnswersTwentyQuestionsAndMore) {
    EXPECT_GE(captured(pagesOf(textOf(Manual)).back().markdown, u"^### (.*)$"_s).size(), 20);
}

QString chapter(const QString& title) {
    for (const ManualPage& page : pagesOf(textOf(Manual)))
        if (page.title == title)
            return page.markdown;
    ADD_FAILURE() << title.toStdString();
    return {};
}

TEST(UserManual, TellsTheKeyOfEveryPage) {
    QStringList told, theirs;
    for (const QRegularExpressionMatch& row :
         QRegularExpression(u"\\| `Alt\\+(.)` \\| (\\S+) \\|"_s).globalMatch(chapter(u"用键盘"_s)))
        told << row.captured(1) + row.captured(2);
    QHash<QString, QString> captions;
    for (const QString& file : filesBelow(u"src"_s, {u"*_page.cpp"_s}))
        for (const QRegularExpressionMatch& tab :
             QRegularExpression(u"u\"Label[^\"]*\", u\" *([^\"]+)\", \\d+, PageCode::(\\w+)"_s)
                 .globalMatch(textOf(file)))
            captions[tab.captured(2)] = tab.captured(1);
    for (const QRegularExpressionMatch& key :
         QRegularExpression(u"\\{PageCode::(\\w+), '(.)'\\}"_s).globalMatch(textOf(u"src/core/page_keys.h"_s)))
        theirs << key.captured(2) + captions.value(key.captured(1));
    EXPECT_EQ(theirs.size(), captions.size());
    EXPECT_EQ(told, theirs);
}

TEST(UserManual, ListsNoKeyThatTheProgramDoesNotKnow) {
    const QStringList qtsOwn{u"Tab"_s, u"Shift+Tab"_s, u"Ctrl+F"_s, u"Ctrl+Z"_s};
    const QHash<QString, QString> inCode{{u"PgUp"_s, u"PageUp"_s}, {u"PgDn"_s, u"PageDown"_s}, {u"Esc"_s, u"Escape"_s},
                                         {u"←"_s, u"Left"_s},      {u"→"_s, u"Right"_s},       {u"↑"_s, u"Up"_s},
                                         {u"↓"_s, u"Down"_s},      {u"回车"_s, u"Enter"_s},    {u"空格"_s, u"Space"_s}};
    QString code;
    for (const QString& file : filesBelow(u"src"_s, {u"*.cpp"_s, u"*.h"_s}))
        code += textOf(file);
    QSet<QString> told;
    for (const QString& row : captured(chapter(u"用键盘"_s), u"^\\| ([^|]*`[^|]*) \\|"_s))
        for (const QString& key : captured(row, u"`([^`]+)`"_s))
            if ((key[0].isLetter() || inCode.contains(key)) &&
                !key.startsWith(u"Alt+"_s)) // not a page's, nor what the calculator's keys bear
                told << key;
    EXPECT_GE(told.size(), 20);
    for (const QString& keys : told) {
        const QString key = keys.section(u'+', -1);
        EXPECT_TRUE(qtsOwn.contains(keys) ||
                    code.contains(QRegularExpression(u"Key_%1\\b"_s.arg(inCode.value(key, key)))))
            << keys.toStdString();
    }
}

/// “…” is kept for what stands on the screen.
TEST(UserManual, QuotesNothingThatTheProgramDoesNotSay) {
    const QSet<QString> words = wordsOfTheProgram();
    EXPECT_GT(words.size(), 1000);
    EXPECT_FALSE(saysSo(words, u"储存全部"_s));
    for (const QString& document : {Manual, u"README.md"_s})
        for (const QString& quoted : captured(textOf(document), u"“([^”]*)”"_s))
            EXPECT_TRUE(quoted == u" "_s || saysSo(words, quoted))
                << document.toStdString() << " quotes " << quoted.toStdString();
}

TEST(Documents, LeadNowhereButToWhatIsThere) {
    for (const QString& document : documents()) {
        const QString folder = QFileInfo(project(document)).path();
        for (const QString& target : captured(textOf(document), u"\\]\\(([^)]*)\\)"_s)) {
            if (target.startsWith(u"http"_s))
                continue;
            const QString file = target.section(u'#', 0, 0), anchor = target.section(u'#', 1);
            const QString path = file.isEmpty() ? project(document) : QDir(folder).filePath(file);
            EXPECT_TRUE(QFile::exists(path)) << document.toStdString() << " -> " << target.toStdString();
            if (anchor.isEmpty() || !path.endsWith(u".md"_s))
                continue;
            QStringList anchors;
            const QString other = QDir(project({})).relativeFilePath(path);
            for (const QString& heading : captured(textOf(other), u"^#+ (.*)$"_s))
                anchors << anchorOf(heading);
            EXPECT_EQ(anchors.count(anchor), 1) << document.toStdString() << " -> " << target.toStdString();
        }
    }
}

/// Whether a stored picture is still what the program looks like, docs/pictures/make shows; here, that each comes from
/// one of its scenes, is shown somewhere, and is small.
TEST(Documents, ShowThePicturesThatTheScenesMakeAndNoOthers) {
    const QString scenes = textOf(u"tests/pictures/scenes.cpp"_s);
    QStringList made = captured(scenes, u"\"([a-z-]+\\.png)\""_s);
    for (const QString& name : captured(scenes, u", manual\\(\"([a-z-]+)\"\\)"_s))
        made << u"manual/"_s + name + u".png"_s;
    QString read;
    for (const QString& document : documents())
        read += textOf(document);
    const QStringList files = filesBelow(u"docs/pictures"_s, {u"*.png"_s});
    EXPECT_EQ(files.size(), made.size());
    for (const QString& name : made) {
        const QString file = u"docs/pictures/"_s + name;
        EXPECT_TRUE(files.contains(file)) << file.toStdString() << " is missing: docs/pictures/make";
        EXPECT_TRUE(read.contains(u"pictures/"_s + name)) << file.toStdString() << " is shown nowhere";
        EXPECT_LE(QFileInfo(project(file)).size(), 60'000) << file.toStdString();
        EXPECT_LE(QImage(project(file)).width(), 800) << file.toStdString();
    }
}

} // namespace
} // namespace qinghe

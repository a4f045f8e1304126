#include "core/last_words.h"

#include "core/rescued_texts.h"
#include "platform/files.h"
#include "runtime/runtime_error.h"

#include <QDir>

#include <algorithm>
#include <array>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// The truth about the book. Nothing is promised of one that is gone or cannot be read, nor by a disk that fails.
QString aboutBook(const Shared& shared, const RuntimeError& error) {
    constexpr std::array Uncertain{RuntimeError::StoreFailure, RuntimeError::FileNotFound, RuntimeError::DeviceFailure};
    if (std::ranges::find(Uncertain, error.number()) != Uncertain.end())
        return {};
    const bool undone = shared.store.hasUndone();
    if (const auto& saving = shared.saving)
        return undone ? u"保存没有完成，已经撤销：这一页原有的 %1 条都还在账本里。"_s.arg(saving->had)
                      : u"保存没有完成：这一页原有 %1 条，已写回 %2 条。"_s.arg(saving->had).arg(saving->written);
    return undone ? u"这一步没有做成，已经撤销；以前写入账本的内容都还在。"_s : u"出错以前写入账本的内容都已保留。"_s;
}

/// A save that was undone needs no way back.
QString aboutCopy(const Shared& shared) {
    return shared.store.hasUndone() ? QString() : shared.safety.aboutFailedSave();
}

QString asFile(const Shared& shared, const RuntimeError& error, const QString& book, const QStringList& rescued) {
    QStringList lines{
        u"%1：没有存进账本的内容"_s.arg(productName()),
        {},
        u"%1，程序因为出错而关闭，关闭以前把屏幕上还没有存进账本的内容写在这里。"_s.arg(
            shared.services.clock->now().toString(u"yyyy年M月d日 H:mm:ss"_s)),
        u"运行时错误 %1：%2"_s.arg(error.number()).arg(error.text()),
    };
    if (!book.isEmpty())
        lines << book;
    lines << u"这个文件只有您自己能读。重新启动程序，照着它补记以后，就可以删掉它。"_s << rescued;
    return lines.join(u'\n').remove(u'\r') + u'\n';
}

/// A page that fails at it takes nothing of the others with it.
RescuedTexts gathered(Shared& shared, const std::vector<Page*>& pages) {
    RescuedTexts texts(shared);
    for (const Page* page : pages) {
        try {
            page->rescue(texts);
        } catch (const RuntimeError&) {
        }
    }
    return texts;
}

/// Puts the texts into a file of a new name and says where they are.
QString keep(const Shared& shared, const QString& text) {
    const QString path =
        shared.beside(u"没有保存的内容 %1.txt"_s.arg(shared.services.clock->now().toString(u"yyyy-MM-dd HHmmss"_s)));
    try {
        const QString made = files::writeNewForOwner(path, text.toUtf8());
        return u"屏幕上还没有存进账本的内容，已经写进下面这个文件，只有您自己能读：\n"_s +
               QDir::toNativeSeparators(made);
    } catch (const RuntimeError& error) {
        return u"屏幕上还没有存进账本的内容没有写成文件：%1请先把它们抄下来，再按“确定”。"_s.arg(error.text());
    }
}

} // namespace

QString lastWords(Shared& shared, const std::vector<Page*>& pages, const RuntimeError& error) {
    try {
        const QString book = aboutBook(shared, error);
        const RescuedTexts texts = gathered(shared, pages);
        QStringList words;
        for (const QString& told : {book, aboutCopy(shared)})
            if (!told.isEmpty())
                words << told;
        if (!texts.lines().isEmpty())
            words << keep(shared, asFile(shared, error, book, texts.lines()));
        return words.join(u"\n\n"_s);
    } catch (...) {
        return {};
    }
}

} // namespace qinghe

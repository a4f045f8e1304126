#pragma once

#include "controls/combo_box.h"
#include "settings_rig.h"

namespace qinghe::testing {

inline const ShownMessage Kept{u"设置已保存"_s, 64, u"提示"_s};

/// A program on whose settings page a skin can be chosen.
class SkinChoiceTest : public SettingsTest {
protected:
    static QByteArray picture(const QColor& colour, const char* format = "JPG", QSize size = {16, 12}) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, format, 100);
        return buffer.data();
    }
    /// As the window that stores pictures does, with one zero byte behind.
    void offer(const QString& name, const QByteArray& skin) {
        rig.sql(u"insert into 软件皮肤 values('%1',%2,x'%3')"_s.arg(name)
                    .arg(skin.size())
                    .arg(QString::fromLatin1((skin + '\0').toHex())));
    }
    void offerThree() {
        offer(u"春"_s, picture(Qt::red));
        offer(u"夏"_s, picture(Qt::blue));
        offer(u"秋"_s, picture(Qt::white));
    }

    CheckBox& change() { return box(settings::ChangeSkin); }
    ComboBox& list() { return rig.at(settings::Skins); }
    CommandButton& keep() { return rig.at(settings::KeepSkin); }
    QStringList listed() {
        QStringList names;
        for (int i = 0; i < list().count(); ++i)
            names << list().itemText(i);
        return names;
    }
    /// With one press of an arrow key, on an open list of skins.
    void choose(const QString& name) {
        const int index = list().findText(name);
        ASSERT_GE(index, 0);
        list().setCurrentIndex(index - 1);
        rig.press(list(), Qt::Key_Down);
    }
    void openAndChoose(const QString& name) {
        tick(change());
        choose(name);
    }

    QColor shown() { return rig.mainWindow().picture().pixelColor(5, 5); }
    void expectShown(const QColor& colour) {
        EXPECT_NEAR(shown().red(), colour.red(), 4);
        EXPECT_NEAR(shown().green(), colour.green(), 4);
        EXPECT_NEAR(shown().blue(), colour.blue(), 4);
    }
    QStringList chosen() { return rig.sql(u"select 皮肤名,文件大小,hex(皮肤文件) from 皮肤选择"_s); }
    static QString row(const QByteArray& skin) {
        return u"|%1|%2"_s.arg(skin.size()).arg(QString::fromLatin1(skin.toHex().toUpper()));
    }
    void expectClosed() {
        EXPECT_FALSE(change().Value());
        EXPECT_FALSE(list().Visible());
        EXPECT_FALSE(keep().Visible());
        EXPECT_EQ(list().count(), 0);
        EXPECT_EQ(list().Text(), QString());
    }

    const QColor delivered = Qt::green;
};

} // namespace qinghe::testing

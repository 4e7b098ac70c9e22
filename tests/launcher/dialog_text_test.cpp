// The dialog in each of the 20 languages: its title and its two label texts are drawn with
// real glyphs of installed fonts (no empty boxes) and fit in the dialog's fixed width.

#include "processing-progress-dialog.h"
#include "str-table.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QGlyphRun>
#include <QLabel>
#include <QTextLayout>
#include <QTranslator>

namespace {

// The window manager puts an icon and its buttons beside the title; leave them 80 pixels.
constexpr int kTitleRoom = 400 - 80;
// The size the texts are measured at, the one Qt 5's offscreen platform gives the dialog. Qt 6's
// gives 12 pixels, at which a label half again too long would still fit.
constexpr int kTextPixels = 17;

// True when every character of the text gets a glyph of a real font, after the same font
// fallback that the widgets go through; glyph 0 is the font's empty box (.notdef).
bool AllDrawn(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    while (layout.createLine().isValid()) {}
    layout.endLayout();
    int glyphs = 0;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        if (!run.rawFont().isValid()) return false;
        for (const quint32 glyph : run.glyphIndexes())
            if (glyph == 0) return false;
        glyphs += run.glyphIndexes().size();
    }
    return glyphs > 0 || text.isEmpty();
}

class DialogText : public ::testing::TestWithParam<const char*> {};

TEST_P(DialogText, EveryTextIsDrawnAndFits) {
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/%1.qm").arg(GetParam())));
    QCoreApplication::installTranslator(&translator);
    QFont font = QApplication::font();  // the dialog's font takes its size from this one
    font.setPixelSize(kTextPixels);
    QApplication::setFont(font);
    ProcessingProgressDialog dialog;
    dialog.show();  // lays out the label inside the fixed width
    auto* label = dialog.findChild<QLabel*>();
    ASSERT_NE(label, nullptr);
    ASSERT_EQ(QFontInfo(label->font()).pixelSize(), kTextPixels);
    const QString title = dialog.windowTitle();
    EXPECT_TRUE(AllDrawn(title, dialog.font())) << title.toStdString();
    EXPECT_LE(QFontMetrics(dialog.font()).horizontalAdvance(title), kTitleRoom);
    for (const int id : {57, 56}) {  // desc_skld_env_preparing, desc_skld_env_preparation_done
        dialog.setLabelText(StrTable::LoadStr(id));
        const QString text = label->text();
        const int needed = std::max(label->fontMetrics().horizontalAdvance(text),
                                    label->sizeHint().width());
        EXPECT_TRUE(AllDrawn(text, label->font())) << text.toStdString();
        EXPECT_LE(needed, label->width()) << text.toStdString() << " in "
                                          << QFontInfo(label->font()).family().toStdString();
    }
    QCoreApplication::removeTranslator(&translator);
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogText,
                         ::testing::Values("chs", "cht", "csy", "dan", "enu", "fre", "ger",
                                           "hun", "ita", "jpn", "krn", "nld", "nor", "plk",
                                           "ptb", "ptg", "rus", "spn", "sve", "trk"),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace

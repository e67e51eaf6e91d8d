// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/SettingsDialog.h"

#include "app/ColorPicker.h"
#include "app/MfcSettingsWidget.h"
#include "app/kit/SettingsSingleton.h"
#include "support/DialogAnswer.h"
#include "support/Texts.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

namespace {
class Settings : public ::testing::Test
{
protected:
    void SetUp() override { settings.ClearAllSettings(); }
    void TearDown() override { settings.ClearAllSettings(); }

    template <class Widget>
    static Widget* Find(QWidget& parent, char const* name)
    {
        Widget* const widget = parent.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    /// Changes every control, to values that are no defaults.
    static void ChangeAll(SettingsDialog& dialog)
    {
        Find<QRadioButton>(dialog, "separator_alternative_international")->click();
        Find<QComboBox>(dialog, "depth_unit")->setCurrentText("m");
        Find<ColorPicker>(dialog, "background_color")->SetColor(QColor(10, 20, 30));
        Find<ColorPicker>(dialog, "splitter_handle_color")->SetColor(QColor(0xA1, 0xB2, 0xC3));
        Find<QCheckBox>(dialog, "override_splitter_handle_color")->click();
        Find<QCheckBox>(dialog, "check_for_updates")->click();
        Find<QCheckBox>(dialog, "display_mfc_windows")->click();
        Find<QLineEdit>(dialog, "new_mnem")->setText("ARM");
        Find<QPushButton>(dialog, "insert_mnem")->click();
    }

    static QStringList Mnems(QWidget& parent)
    {
        return IndexedTexts(*Find<QListWidget>(parent, "mfc_mnems"),
                            [](QListWidget const& list, int row) { return list.item(row)->text(); });
    }

    /// What the dialog sets, but for the number format.
    [[nodiscard]] auto Stored() const
    {
        return std::tuple(settings.IsMetricDepth(), settings.GetBackgroundColor().name(),
                          settings.GetSplitterHandleColor(), settings.GetOverrideDefaultSplitterHandleColor(),
                          settings.GetAutomaticCheckForUpdates(), settings.GetDisplayMfcWindows(),
                          settings.GetMfcMnems());
    }

    SettingsSingleton& settings = SettingsSingleton::Instance();
};
} // namespace

TEST_F(Settings, DialogNamesItsTabsAndChoices)
{
    SettingsDialog const dialog;
    EXPECT_EQ(dialog.windowTitle(), "Application Settings");
    EXPECT_EQ(dialog.objectName(), "SettingsDialog");
    EXPECT_EQ(SettingsDialog::SPACE_SEPARATOR_DISPLAY, "(space)");
    EXPECT_EQ(IndexedTexts(*dialog.findChild<QTabWidget*>(), &QTabWidget::tabText),
              (QStringList{"Separators", "Units", "Misc", "MF Cal."}));

    QStringList const texts = Texts(dialog.findChildren<QAbstractButton*>(), &QAbstractButton::text) +
                              Texts(dialog.findChildren<QLabel*>(), &QLabel::text) +
                              Texts(dialog.findChildren<QGroupBox*>(), &QGroupBox::title);
    for (char const* text :
         {"US", "1,234,567.89", "International", "1.234.567,89", "Alternative International", "1 234 567,89",
          "Depth Unit", "View-Widget Background Color", "Splitter Handle Color (applys after restart)",
          "Override Default Color", "Updates", "Check for updates on start-up",
          "Automatically display MFC Windows (3D + Cross-Section)",
          "MFC Radius Mnems (will generate MFC View after adding log-file) - Case Insensitive", "Delete",
          "Reset", "Insert"}) {
        EXPECT_TRUE(texts.contains(text)) << text;
    }
}

TEST_F(Settings, DialogShowsThePresentSettings)
{
    settings.SetSeparatorSelection(International);
    settings.SetMetricDepth(true);
    settings.SetBackgroundColor(QColor(1, 2, 3));
    settings.SetSplitterHandleColor("00ff00"); // without "#", like the default
    settings.SetOverrideDefaultSplitterHandleColor(true);
    settings.SetAutomaticCheckForUpdates(false);
    SettingsDialog dialog;
    EXPECT_TRUE(Find<QRadioButton>(dialog, "separator_international")->isChecked());
    EXPECT_EQ(Find<QComboBox>(dialog, "depth_unit")->currentText(), "m");
    EXPECT_EQ(Find<ColorPicker>(dialog, "background_color")->GetColor(), QColor(1, 2, 3));
    EXPECT_EQ(Find<ColorPicker>(dialog, "splitter_handle_color")->GetColor(), QColor(0, 255, 0));
    EXPECT_TRUE(Find<QCheckBox>(dialog, "override_splitter_handle_color")->isChecked());
    EXPECT_FALSE(Find<QCheckBox>(dialog, "check_for_updates")->isChecked());
    EXPECT_FALSE(Find<QCheckBox>(dialog, "display_mfc_windows")->isChecked());
}

TEST_F(Settings, AcceptStoresEverythingBeforeItTellsAndCloses)
{
    SettingsDialog dialog;
    ChangeAll(dialog);
    bool stored_when_told = false;
    bool closed_when_told = true;
    QObject::connect(&dialog, &SettingsDialog::UpdateColumnWindow_Signal, [&] {
        stored_when_told = settings.IsMetricDepth() && settings.GetOverrideDefaultSplitterHandleColor();
        closed_when_told = dialog.result() == QDialog::Accepted;
    });
    dialog.accept();
    EXPECT_TRUE(stored_when_told);
    EXPECT_FALSE(closed_when_told);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);

    EXPECT_EQ(settings.GetSeparatorSelection(), AlternativeInternational);
    EXPECT_EQ(Stored(), std::tuple(true, "#0a141e", "#a1b2c3", true, false, true,
                                   QStringList{"ARM", "CRAD[", "FING", "R", "RADI["}));
}

TEST_F(Settings, CancelChangesNothing)
{
    auto const before = Stored();
    SettingsDialog dialog;
    ChangeAll(dialog);
    bool told = false;
    QObject::connect(&dialog, &SettingsDialog::UpdateColumnWindow_Signal, [&told] { told = true; });
    dialog.reject();
    EXPECT_FALSE(told);
    EXPECT_EQ(settings.GetSeparatorSelection(), US);
    EXPECT_EQ(Stored(), before);

    settings.SetSeparatorSelection(static_cast<Separator_Selection>(7));
    SettingsDialog().accept();
    EXPECT_EQ(settings.GetSeparatorSelection(), 7) << "an unknown selection survives the dialog";
}

TEST_F(Settings, MnemonicsAreInsertedOnceTrimmedAndSorted)
{
    MfcSettingsWidget widget;
    auto* const list = Find<QListWidget>(widget, "mfc_mnems");
    auto* const edit = Find<QLineEdit>(widget, "new_mnem");
    QStringList const sorted_defaults{"CRAD[", "FING", "R", "RADI["};
    EXPECT_EQ(Mnems(widget), sorted_defaults);

    for (char const* text : {"  MID ", "MID", "", "   "}) {
        edit->setText(text);
        widget.OnInsert();
        EXPECT_EQ(edit->text(), "");
    }
    EXPECT_EQ(Mnems(widget), (QStringList{"CRAD[", "FING", "MID", "R", "RADI["}));

    list->setCurrentRow(1);
    widget.OnDelete();
    EXPECT_EQ(widget.GetMfcMnems(), (QStringList{"CRAD[", "MID", "R", "RADI["}));
    list->setCurrentRow(-1);
    widget.OnDelete();
    EXPECT_EQ(list->count(), 4);
    widget.OnReset();
    EXPECT_EQ(widget.GetMfcMnems(), sorted_defaults);
    EXPECT_EQ(settings.GetMfcMnems(), SettingsSingleton::GetDefaultMfcMnems());
}

TEST_F(Settings, ReturnInTheMnemonicFieldInsertsAndKeepsTheDialogOpen)
{
    SettingsDialog dialog;
    dialog.show();
    dialog.findChild<QTabWidget*>()->setCurrentIndex(3);
    auto* const edit = Find<QLineEdit>(dialog, "new_mnem");
    QApplication::setActiveWindow(&dialog);
    edit->setFocus();
    ASSERT_TRUE(edit->hasFocus());
    edit->setText("ARM");
    QTest::keyPress(edit, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(Mnems(dialog).contains("ARM"));
}

TEST_F(Settings, ColorPickerTakesTheChosenColorOnly)
{
    ColorPicker picker(QColor(Qt::red));
    QList<QColor> changes;
    QObject::connect(&picker, &ColorPicker::ColorChanged_Signal,
                     [&](QColor const& color) { changes.append(color); });
    auto const answer = [&picker](QColor const& color, bool accept) {
        DialogAnswer const dialogs({[color, accept](QDialog* dialog) {
            qobject_cast<QColorDialog*>(dialog)->setCurrentColor(color);
            accept ? dialog->accept() : dialog->reject();
        }});
        picker.click();
    };
    answer(Qt::blue, false);
    EXPECT_EQ(picker.GetColor(), QColor(Qt::red));
    answer(Qt::blue, true);
    EXPECT_EQ(picker.GetColor(), QColor(Qt::blue));
    EXPECT_EQ(picker.text(), "#0000ff");
    EXPECT_EQ(changes, QList<QColor>{QColor(Qt::blue)});
    QImage const swatch = picker.icon().pixmap(picker.iconSize()).toImage();
    EXPECT_EQ(swatch.pixelColor(swatch.width() / 2, swatch.height() / 2), QColor(Qt::blue));
}

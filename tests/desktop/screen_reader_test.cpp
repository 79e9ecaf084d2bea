// What a screen reader finds in the windows, asked the way the toolkit asks.
#include <gtest/gtest.h>
#include <set>
#include <vector>

#include <QAccessible>

#include "controls/spoken.h"
#include "desktop/widgets/file_list_widget.h"
#include "desktop/windows/menu_strip.h"
#include "narration/atom_walk.h"
#include "narration/picture_words.h"
#include "narration/spoken_words.h"
#include "program_fixture.h"

namespace orvane {
namespace {

QAccessibleInterface* InterfaceOf(QWidget& widget) {
  return QAccessible::queryAccessibleInterface(&widget);
}
QString NameOf(QAccessibleInterface* reader) { return reader->text(QAccessible::Name); }

void Do(QAccessibleInterface* reader, const QString& action) {
  ASSERT_NE(reader->actionInterface(), nullptr);
  ASSERT_TRUE(reader->actionInterface()->actionNames().contains(action)) << qPrintable(action);
  reader->actionInterface()->doAction(action);
  QCoreApplication::processEvents();
}

const QString kPress = QAccessibleActionInterface::pressAction();
const QString kToggle = QAccessibleActionInterface::toggleAction();

// Nothing is announced if nobody listens. screen_reader.sh runs these tests on a screen whose
// accessibility bus is on, and fails if any of them is skipped.
class AListeningReader : public testing::Test {
 protected:
  void SetUp() override {
    const bool expected = qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON");
    const bool listens =
        QTest::qWaitFor([] { return QAccessible::isActive(); }, expected ? 20000 : 0);
    if (!listens) GTEST_SKIP() << "nobody listens here";
  }
};

// Keeps what screen readers are told while it exists.
struct Told {
  struct Word {
    QAccessible::Event Kind;
    QObject* Object;
    QString Name;
  };
  static std::vector<Word>& Words() {
    static std::vector<Word> words;
    return words;
  }
  QAccessible::UpdateHandler before;

  Told() : before(QAccessible::installUpdateHandler(Hear)) { Words().clear(); }
  ~Told() { QAccessible::installUpdateHandler(before); }
  static void Hear(QAccessibleEvent* event) {
    QAccessibleInterface* from = event->accessibleInterface();
    Words().push_back({event->type(), event->object(), from == nullptr ? "" : NameOf(from)});
  }
  static int Count(QAccessible::Event kind, const QString& name) {
    int count = 0;
    for (const Word& word : Words()) count += word.Kind == kind && word.Name == name;
    return count;
  }
  static QString LastFocus() {
    QString last;
    for (const Word& word : Words()) {
      if (word.Kind == QAccessible::Focus) last = word.Name;
    }
    return last;
  }
};

TEST(ScreenReader, EveryControlOfEveryWindowHasANameARoleAndItsTip) {
  const std::set<QAccessible::Role> mute{QAccessible::NoRole, QAccessible::Client,
                                         QAccessible::Whitespace};
  ProgramAtWork program;
  int controls = 0;
  for (Window* window : program.desk.windows) {
    WindowWidget& shown = program.WindowOf(*window);
    EXPECT_EQ(NameOf(InterfaceOf(shown)).toStdString(), window->Caption.Get());
    EXPECT_EQ(InterfaceOf(shown)->role(), QAccessible::Window);
    for (const Control* control : window->Controls) {
      ControlView* view = shown.ViewOf(*control);
      if (view == nullptr) continue;
      QAccessibleInterface* reader = InterfaceOf(view->widget);
      EXPECT_EQ(NameOf(reader).toStdString(), NameNow(program.desk, *control))
          << control->FullName();
      EXPECT_FALSE(NameOf(reader).isEmpty()) << control->FullName();
      EXPECT_FALSE(mute.contains(reader->role())) << control->FullName();
      EXPECT_EQ(reader->text(QAccessible::Description).toStdString(), control->Row.Tip)
          << control->FullName();
      ++controls;
    }
  }
  EXPECT_GT(controls, 150);
}

void Collect(QAccessibleInterface* reader, std::set<QObject*>& found) {
  for (int i = 0; i < reader->childCount(); ++i) {
    QAccessibleInterface* child = reader->child(i);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(child->parent(), reader) << qPrintable(NameOf(child));
    EXPECT_EQ(reader->indexOfChild(child), i) << qPrintable(NameOf(child));
    if (child->object() != nullptr) found.insert(child->object());
    if (child->role() != QAccessible::MenuBar) Collect(child, found);
  }
}

TEST(ScreenReader, TheTreeOfAWindowHoldsEveryControlButTheOrnaments) {
  ProgramAtWork program;
  for (Window* window : program.desk.windows) {
    WindowWidget& shown = program.WindowOf(*window);
    std::set<QObject*> found;
    Collect(InterfaceOf(shown), found);
    for (const Control* control : window->Controls) {
      ControlView* view = shown.ViewOf(*control);
      if (view == nullptr) continue;
      const bool speaks = RoleOf(*control) != SpokenRole::Decoration;
      const bool below =
          control->Parent != nullptr && RoleOf(*control->Parent) == SpokenRole::Decoration;
      EXPECT_TRUE(below || found.contains(&view->widget) == speaks) << control->FullName();
    }
  }
}

TEST(ScreenReader, AListSpeaksItsRows) {
  WindowAtWork work;
  List& list = work.main.Pro_Lst;
  QAccessibleInterface* reader = InterfaceOf(work.WidgetOf(list));

  EXPECT_EQ(reader->role(), QAccessible::List);
  ASSERT_EQ(reader->childCount(), static_cast<int>(list.Rows.Get().size()));
  for (int row = 0; row < reader->childCount(); ++row) {
    QAccessibleInterface* item = reader->child(row);
    const QString text = QString::fromStdString(list.Rows.Get()[static_cast<std::size_t>(row)]);
    EXPECT_EQ(NameOf(item), text.simplified());
    EXPECT_EQ(item->role(), QAccessible::ListItem);
    EXPECT_TRUE(item->state().selectable);
    EXPECT_FALSE(item->state().selected);
    EXPECT_EQ(item->state().offscreen, row >= 5) << row;  // the list shows five rows
  }
}

TEST(ScreenReader, ARowIsFoundUnderThePointer) {
  WindowAtWork work;
  QAccessibleInterface* list = InterfaceOf(work.WidgetOf(work.main.AA_Lst));
  const QPoint middle = list->child(3)->rect().center();

  EXPECT_EQ(list->childAt(middle.x(), middle.y()), list->child(3));
  EXPECT_TRUE(list->rect().contains(list->child(3)->rect()));
}

TEST_F(AListeningReader, ChoosingARowIsAClickOnItAndIsAnnounced) {
  WindowAtWork work;
  List& list = work.main.AA_Lst;
  Heard clicks(list, EventKind::Click);
  QAccessibleInterface* reader = InterfaceOf(work.WidgetOf(list));
  Do(reader->child(1), kPress);
  Told told;

  Do(reader->child(2), kPress);

  EXPECT_EQ(list.ListIndex, 2);
  EXPECT_EQ(clicks.Count, 2);
  EXPECT_TRUE(reader->child(2)->state().selected);
  EXPECT_TRUE(reader->child(2)->state().focused);
  EXPECT_EQ(reader->focusChild(), reader->child(2));
  EXPECT_EQ(Told::Count(QAccessible::SelectionRemove, NameOf(reader->child(1))), 1);
  EXPECT_EQ(Told::Count(QAccessible::Selection, NameOf(reader->child(2))), 1);
  EXPECT_EQ(Told::Count(QAccessible::Focus, NameOf(reader->child(2))), 1);
}

TEST_F(AListeningReader, TheKeyboardOnAListGoesOnToItsRow) {
  WindowAtWork work;
  SelectRow(work.desk, work.main.Pro_Lst, 1);
  work.WidgetOf(work.main.Bt3_Dts).setFocus();
  Told told;

  work.WidgetOf(work.main.Pro_Lst).setFocus();
  QCoreApplication::processEvents();

  QAccessibleInterface* row = InterfaceOf(work.WidgetOf(work.main.Pro_Lst))->child(1);
  EXPECT_EQ(Told::Count(QAccessible::Focus, NameOf(row)), 1);
  EXPECT_EQ(Told::LastFocus(), NameOf(row));
}

TEST(ScreenReader, AButtonIsPressed) {
  WindowAtWork work;
  Heard presses(work.main.Sz_Balls[0], EventKind::Press);
  Heard clicks(work.main.Bt3_Dts, EventKind::Click);

  Do(InterfaceOf(work.WidgetOf(work.main.Sz_Balls[0])), kPress);
  Do(InterfaceOf(work.WidgetOf(work.main.Bt3_Dts)), kPress);

  EXPECT_EQ(presses.Count, 1);
  EXPECT_EQ(clicks.Count, 1);
}

TEST(ScreenReader, WhatIsDisabledCannotBeDone) {
  WindowAtWork work;
  ASSERT_FALSE(work.main.Bt3_Isomers.Enabled);
  QAccessibleInterface* reader = InterfaceOf(work.WidgetOf(work.main.Bt3_Isomers));

  EXPECT_TRUE(reader->state().disabled);
  EXPECT_TRUE(reader->actionInterface()->actionNames().isEmpty());
}

TEST_F(AListeningReader, AToggleAnnouncesItsStateWhenItChanges) {
  WindowAtWork work;
  SelectRow(work.desk, work.main.AA_Lst, 2);
  QAccessibleInterface* reader = InterfaceOf(work.WidgetOf(work.main.Bt3_Label));
  ASSERT_FALSE(reader->state().checked);
  Told told;

  Do(reader, kToggle);

  EXPECT_EQ(reader->role(), QAccessible::CheckBox);
  EXPECT_TRUE(reader->state().checkable);
  EXPECT_TRUE(reader->state().checked);
  EXPECT_EQ(Told::Count(QAccessible::NameChanged, "Label On"), 1);
  EXPECT_EQ(Told::Count(QAccessible::StateChanged, "Label On"), 1);
}

TEST(ScreenReader, OneOfTheAxesIsChosen) {
  WindowAtWork work;
  const auto axis = [&](int index) {
    return InterfaceOf(work.WidgetOf(work.main.X_Tag[static_cast<std::size_t>(index)]));
  };

  Do(axis(2), kToggle);

  EXPECT_EQ(axis(2)->role(), QAccessible::RadioButton);
  EXPECT_FALSE(axis(0)->state().checked);
  EXPECT_FALSE(axis(1)->state().checked);
  EXPECT_TRUE(axis(2)->state().checked);
}

// ZoomBar goes from -100 to 100 in steps of 5.
TEST(ScreenReader, ABarHasAValueThatCanBeSet) {
  WindowAtWork work;
  ScrollBar& bar = work.main.ZoomBar;
  Heard changes(bar, EventKind::Change);
  QAccessibleInterface* reader = InterfaceOf(work.WidgetOf(bar));
  QAccessibleValueInterface* value = reader->valueInterface();
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(value->minimumValue().toInt(), -100);
  EXPECT_EQ(value->maximumValue().toInt(), 100);
  EXPECT_EQ(value->minimumStepSize().toInt(), 5);

  value->setCurrentValue(30);
  QCoreApplication::processEvents();
  EXPECT_EQ(bar.Value, 30);
  Do(reader, QAccessibleActionInterface::decreaseAction());

  EXPECT_EQ(bar.Value, 25);
  EXPECT_EQ(value->currentValue().toInt(), 25);
  EXPECT_EQ(changes.Count, 2);
}

// A step may open a box, and the reader would wait in its call until the user closes the box.
TEST(ScreenReader, ABarStepsWhenTheReadersCallIsOver) {
  WindowAtWork work;
  ScrollBar& bar = work.main.ZoomBar;
  QAccessibleInterface* reader = InterfaceOf(work.WidgetOf(bar));
  const QString increase = QAccessibleActionInterface::increaseAction();

  reader->valueInterface()->setCurrentValue(30);
  EXPECT_EQ(bar.Value, 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(bar.Value, 30);

  // Two steps of 5, both asked for before the first is done.
  reader->actionInterface()->doAction(increase);
  reader->actionInterface()->doAction(increase);
  EXPECT_EQ(bar.Value, 30);
  QCoreApplication::processEvents();
  EXPECT_EQ(bar.Value, 40);
}

TEST(ScreenReader, ABarThatIsDisabledMeanwhileDoesNotStep) {
  WindowAtWork work;
  ScrollBar& bar = work.main.ZoomBar;

  InterfaceOf(work.WidgetOf(bar))->valueInterface()->setCurrentValue(30);
  bar.Enabled = false;
  QCoreApplication::processEvents();

  EXPECT_EQ(bar.Value, 0);
}

TEST(ScreenReader, ABoxForTypingIsReadAndTypedInto) {
  WindowAtWork work;
  work.main.V_RGB_H.Visible = true;
  QAccessibleInterface* reader = InterfaceOf(work.WidgetOf(work.main.RGB_V[1]));

  EXPECT_EQ(reader->role(), QAccessible::EditableText);
  EXPECT_EQ(NameOf(reader), "Green");
  ASSERT_NE(reader->textInterface(), nullptr);
  EXPECT_EQ(reader->textInterface()->text(0, 1), "0");
}

TEST_F(AListeningReader, TheResultIsAnnouncedWhenItChanges) {
  WindowAtWork work;
  QAccessibleInterface* reader = InterfaceOf(work.WidgetOf(work.main.P_Dst_Show));
  EXPECT_EQ(reader->role(), QAccessible::Notification);
  Told told;

  work.main.P_Dst_Show.Caption = "N - CA : 1.46 Angs\n   ALA 1 - ALA 1";

  const QString words = "N - CA : 1.46 Angs, ALA 1 - ALA 1";
  EXPECT_EQ(Told::Count(QAccessible::NameChanged, words), 1);
  EXPECT_EQ(Told::Count(QAccessible::ObjectShow, words), 1);
  EXPECT_EQ(Told::Count(QAccessible::Alert, words), 1);

  work.main.P_Dst_Show.Caption = "";

  EXPECT_EQ(NameOf(reader), "Result of the measure");
  EXPECT_EQ(Told::Count(QAccessible::Alert, NameOf(reader)), 0);
}

// Alanine has 13 atoms, and the first of its records is the nitrogen of the backbone.
TEST(ScreenReader, ThePictureSaysWhatItShowsAndWhereTheWalkIs) {
  WindowAtWork work;
  QAccessibleInterface* picture = InterfaceOf(work.WidgetOf(work.main.Picture1));
  EXPECT_EQ(picture->role(), QAccessible::Graphic);
  EXPECT_EQ(NameOf(picture), "Empty picture");
  SelectRow(work.desk, work.main.AA_Lst, 2);
  Click(work.desk, work.main.Bt_BlS);

  EXPECT_TRUE(NameOf(picture).startsWith("Alanine, 13 atoms, ")) << qPrintable(NameOf(picture));
  Do(picture, "Go to the next atom");

  EXPECT_EQ(work.desk.walk.Number, 1);
  EXPECT_TRUE(picture->text(QAccessible::Description).startsWith("Nitrogen N of alanine, atom 1"))
      << qPrintable(picture->text(QAccessible::Description));
  EXPECT_EQ(picture->actionInterface()->actionNames().count(), 6);  // five steps and the focus
  EXPECT_TRUE(
      picture->actionInterface()->keyBindingsForAction("Go to the next atom").contains("N"));
}

TEST_F(AListeningReader, EachStepOfTheWalkIsAnnounced) {
  WindowAtWork work;
  QAccessibleInterface* picture = InterfaceOf(work.WidgetOf(work.main.Picture1));
  Told told;
  const auto announced = [](const std::string& words) {
    return [name = QString::fromStdString(words)] {
      return Told::Count(QAccessible::Alert, name) > 0;
    };
  };
  SelectRow(work.desk, work.main.AA_Lst, 2);
  ASSERT_TRUE(QTest::qWaitFor(announced(PictureWords(work.desk))));
  Told::Words().clear();

  Do(picture, "Go to the first atom");

  ASSERT_NE(WalkWords(work.desk), "");
  EXPECT_TRUE(QTest::qWaitFor(announced(WalkWords(work.desk))));
  EXPECT_EQ(Told::Count(QAccessible::DescriptionChanged, NameOf(picture)), 1);
  EXPECT_EQ(Told::Count(QAccessible::NameChanged, NameOf(picture)), 0);
}

TEST_F(AListeningReader, WhatThePictureShowsIsAnnouncedWhenItChanges) {
  WindowAtWork work;
  Told told;
  SelectRow(work.desk, work.main.AA_Lst, 2);

  const QString shown = QString::fromStdString(PictureWords(work.desk));
  const auto heard = [&] { return Told::Count(QAccessible::Alert, shown) > 0; };
  EXPECT_TRUE(QTest::qWaitFor(heard));
  EXPECT_EQ(Told::Count(QAccessible::Alert, shown), 1);
}

// Keys bring the names one after the other, so all of them are heard.
TEST_F(AListeningReader, ANameThatAppearsOnTheMapIsAnnounced) {
  ProgramAtWork program;
  program.GoToTheDesk();
  SelectRow(program.desk, program.desk.main.Pro_Lst, 1);
  Click(program.desk, program.desk.main.RCDP);
  program.WaitFor(program.desk.plot);
  Told told;

  program.desk.plot.b_sheet[1].Visible = true;
  program.desk.plot.b_sheet[2].Visible = true;

  const QString name = "beta pleated sheet, Parallel";
  EXPECT_TRUE(QTest::qWaitFor([&] { return Told::Count(QAccessible::Alert, name) > 0; }));
  EXPECT_EQ(Told::Count(QAccessible::Alert, name), 1);
}

TEST(ScreenReader, MenusAreReadWithoutTheirMnemonics) {
  WindowAtWork work;
  QAccessibleInterface* strip = InterfaceOf(*work.window.strip);
  EXPECT_FALSE(NameOf(strip).isEmpty());
  QStringList names;
  for (int i = 0; i < strip->childCount(); ++i) {
    names.append(NameOf(strip->child(i)));
    EXPECT_EQ(strip->child(i)->role(), QAccessible::MenuItem);
  }
  EXPECT_TRUE(names.contains("Draw in"));
  EXPECT_TRUE(names.contains("Author in brief"));
}

TEST(ScreenReader, TheMusicChooserSpeaksDriveFoldersAndFiles) {
  WindowAtWork work;
  work.main.P_Dir_Holder.Visible = true;
  QCoreApplication::processEvents();
  QAccessibleInterface* drives = InterfaceOf(work.WidgetOf(work.main.Drive1));
  EXPECT_EQ(drives->role(), QAccessible::ComboBox);
  EXPECT_EQ(drives->text(QAccessible::Value), DriveWidget::Drives().first());

  QAccessibleInterface* folders = InterfaceOf(work.WidgetOf(work.main.Dir1));
  ASSERT_GT(folders->childCount(), 0);
  EXPECT_EQ(NameOf(folders->child(0)), "/");
  Do(folders->child(0), "Open");

  EXPECT_EQ(work.main.Dir1.Path.Get(), "/");
}

}  // namespace
}  // namespace orvane

#include "shell/toolkit/mirror.h"

#include <QFileInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <limits>
#include <utility>

#include "base/paths.h"
#include "shell/toolkit/entry.h"
#include "shell/toolkit/style.h"
#include "shell/toolkit/widgets.h"

namespace glonks {
namespace {

constexpr i32 labelIndent = 60;   // twips; brings a label's text in line with that of lists
constexpr i32 narrowIndent = 30;  // of a label that needs all the room there is
constexpr int smallestFont = 7;   // logical pixels; smaller ones can't be read
constexpr int afterAllOthers = std::numeric_limits<int>::max();  // place of a tab stop

// `View` is the widget's class. `shown` holds the data as the widget shows it.
template <typename Data, typename View>
class MirrorOf : public Mirror {
 public:
  MirrorOf(Data& data, QWidget& parent) : data_(data), view_(*new View(&parent)) {
    view_.setGeometry(0, 0, 0, 0);
    view_.setVisible(true);
  }

  void refresh() override {
    refreshBounds();
    refreshContents();
    if (differs(&Control::name)) view_.setAccessibleName(shownText(data_.name));
    if (differs(&Control::description)) {
      view_.setAccessibleDescription(shownText(data_.description));
    }
    if (differs(&Control::enabled)) view_.setEnabled(data_.enabled != False);
    if (view_.isHidden() == isOnShow()) view_.setVisible(isOnShow());
  }

  View& view() { return view_; }

 protected:
  virtual void refreshContents() = 0;
  virtual bool isOnShow() const { return data_.visible != False; }
  virtual i32 overhang() const { return 0; }

  // Whether the widget doesn't show the field as it is now. Afterwards it counts as shown.
  template <typename Owner, typename Field>
  bool differs(Field Owner::*field) {
    if (shown_.*field == data_.*field) return false;
    shown_.*field = data_.*field;
    return true;
  }

  Data& data_;
  View& view_;

 private:
  void refreshBounds() {
    const QRect bounds(pixels(data_.left), pixels(data_.top), pixels(data_.width + overhang()),
                       pixels(data_.height));
    if (view_.geometry() != bounds) view_.setGeometry(bounds);
  }

  Data shown_;
};

class LabelMirror : public MirrorOf<Label, QLabel> {
 public:
  LabelMirror(Label& data, QWidget& parent) : MirrorOf(data, parent) {
    view_.setTextFormat(Qt::PlainText);
    view_.setWordWrap(true);
  }

 protected:
  i32 overhang() const override { return data_.overhang; }

  void refreshContents() override {
    if (!differs(&Label::caption)) return;
    const bool isNarrow = data_.overhang > 0;
    view_.setIndent(pixels(isNarrow ? narrowIndent : labelIndent));
    view_.setAlignment((data_.centred != False ? Qt::AlignHCenter : Qt::AlignLeft) |
                       (isNarrow ? Qt::AlignVCenter : Qt::AlignTop));
    view_.setText(shownText(data_.caption));
    fitFont();
  }

 private:
  void fitFont() {
    QFont font = QApplication::font();
    const QRect room(0, 0, view_.width() - view_.indent(), view_.height());
    const auto isCut = [&] {
      const QFontMetrics metrics(font);
      return metrics.boundingRect(room, Qt::TextWordWrap, view_.text()).width() > room.width();
    };
    while (isCut() && font.pixelSize() > smallestFont * scaleFactor()) {
      font.setPixelSize(font.pixelSize() - 1);
    }
    view_.setFont(font);
  }
};

class TextBoxMirror : public MirrorOf<TextBox, QPlainTextEdit> {
 public:
  TextBoxMirror(TextBox& data, QWidget& parent) : MirrorOf(data, parent) {
    view_.setReadOnly(true);
    view_.setTabChangesFocus(true);
    view_.verticalScrollBar()->setAccessibleName("Scroll");
    view_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }

 protected:
  void refreshContents() override {
    if (differs(&TextBox::fontHeight)) {
      QFont font = view_.font();
      font.setPixelSize(pixels(data_.fontHeight));
      view_.setFont(font);
    }
    if (differs(&TextBox::text)) view_.setPlainText(shownText(data_.text));
  }
};

QString pictureFile(const std::string& path) {
  QString text = shownText(path);
  if (text.isEmpty() || text.startsWith(":/")) return text;
  return QFileInfo(nativePath(pictureFileOf(path))).filePath();
}

class ImageMirror : public MirrorOf<Image, PictureView> {
 public:
  ImageMirror(Image& data, QWidget& parent) : MirrorOf(data, parent) {
    view_.setUse(data.click != nullptr, data.tabIndex >= 0);
    QObject::connect(&view_, &PictureView::clicked,
                     [this] { enterFromQt([this] { run(data_.click); }); });
  }

 protected:
  void refreshContents() override {
    if (differs(&Image::picture)) view_.setFile(pictureFile(data_.picture));
    if (differs(&Image::hint)) {
      view_.setAccessibleName(shownText(data_.hint));
      view_.setToolTip(shownText(data_.hint));
    }
    if (differs(&Image::click)) view_.setUse(data_.click != nullptr, data_.tabIndex >= 0);
  }
};

QStringList shownItems(const Choices& list) {
  QStringList texts;
  for (const std::string& item : list.items) texts.append(shownText(item));
  return texts;
}

// The player's choice. The row may be gone from the data already, but not yet from the widget.
void choose(Choices& list, int row) {
  enterFromQt([&list, row] {
    if (row < static_cast<int>(list.items.size())) setListIndex(list, row);
  });
}

template <typename Data, typename View>
class ChoicesMirror : public MirrorOf<Data, View> {
 public:
  using MirrorOf<Data, View>::MirrorOf;

 protected:
  void refreshContents() override {
    View& view = this->view_;
    if (this->differs(&Choices::items)) {
      view.clear();
      view.addItems(shownItems(this->data_));
    }
    if (view.selectedRow() != this->data_.listIndex) view.selectRow(this->data_.listIndex);
  }
};

class ComboBoxMirror : public ChoicesMirror<ComboBox, DropDown> {
 public:
  ComboBoxMirror(ComboBox& data, QWidget& parent) : ChoicesMirror(data, parent) {
    view_.setMaxVisibleItems(12);
    QObject::connect(&view_, &QComboBox::activated, [this](int row) { choose(data_, row); });
  }
};

class ListBoxMirror : public ChoicesMirror<ListBox, ChoiceList> {
 public:
  ListBoxMirror(ListBox& data, QWidget& parent) : ChoicesMirror(data, parent) {
    view_.chosen = [this](int row) { choose(data_, row); };
  }
};

class ScrollBarMirror : public MirrorOf<HScrollBar, QScrollBar> {
 public:
  ScrollBarMirror(HScrollBar& data, QWidget& parent) : MirrorOf(data, parent) {
    view_.setOrientation(Qt::Horizontal);
    view_.setInvertedControls(false);  // Qt's default has the right arrow key go left
    QObject::connect(&view_, &QScrollBar::sliderPressed, [this] { dragStart_ = data_.value; });
    QObject::connect(&view_, &QScrollBar::valueChanged, [this](int value) { moved(value); });
    QObject::connect(&view_, &QScrollBar::sliderReleased, [this] { dragged(); });
  }

 protected:
  void refreshContents() override {
    const QSignalBlocker silence(view_);
    view_.setSingleStep(data_.smallChange);
    view_.setPageStep(data_.largeChange);
    view_.setRange(data_.min, data_.max);
    view_.setValue(data_.value);
  }

 private:
  void moved(int value) {
    enterFromQt([this, value] {
      data_.value = static_cast<i16>(value);
      run(view_.isSliderDown() ? data_.scroll : data_.change);
    });
  }

  void dragged() {
    enterFromQt([this] {
      if (data_.value != dragStart_) run(data_.change);
    });
  }

  i16 dragStart_ = 0;
};

// `inFront` are the frames that may cover it.
class FrameMirror : public MirrorOf<Frame, PageView> {
 public:
  FrameMirror(Frame& data, std::vector<const Frame*> inFront, QWidget& parent,
              std::vector<TabStop>& stops)
      : MirrorOf(data, parent),
        inFront_(std::move(inFront)),
        inside_(makeMirrors(data.controls, view_, stops)) {}

 protected:
  // The controls of a hidden page wait until it is shown.
  void refreshContents() override {
    if (!isOnShow()) return;
    for (const auto& mirror : inside_) mirror->refresh();
  }

  // A page that is covered doesn't show, so that its controls can't get the focus.
  bool isOnShow() const override {
    return MirrorOf::isOnShow() && std::none_of(inFront_.begin(), inFront_.end(),
                                                [this](const Frame* f) { return isCoveredBy(*f); });
  }

 private:
  bool isCoveredBy(const Frame& other) const {
    return other.visible != False && other.left <= data_.left && other.top <= data_.top &&
           other.left + other.width >= data_.left + data_.width &&
           other.top + other.height >= data_.top + data_.height;
  }

  std::vector<const Frame*> inFront_;
  Mirrors inside_;
};

// One routine for each kind of control, to make its mirror.
class Maker {
 public:
  Maker(const std::vector<ControlRef>& controls, QWidget& parent, std::vector<TabStop>& stops)
      : controls_(controls), parent_(parent), stops_(stops) {}

  std::unique_ptr<Mirror> operator()(Label* data) const {
    return std::make_unique<LabelMirror>(*data, parent_);
  }
  std::unique_ptr<Mirror> operator()(Frame* data) const {
    return std::make_unique<FrameMirror>(*data, framesInFrontOf(*data), parent_, stops_);
  }
  std::unique_ptr<Mirror> operator()(Image* data) const {
    auto mirror = std::make_unique<ImageMirror>(*data, parent_);
    const int place = data->tabIndex >= 0 ? data->tabIndex : afterAllOthers;
    if (mirror->view().focusPolicy() != Qt::NoFocus) stops_.push_back({place, &mirror->view()});
    return mirror;
  }
  std::unique_ptr<Mirror> operator()(TextBox* data) const { return stop<TextBoxMirror>(*data); }
  std::unique_ptr<Mirror> operator()(ComboBox* data) const { return stop<ComboBoxMirror>(*data); }
  std::unique_ptr<Mirror> operator()(ListBox* data) const { return stop<ListBoxMirror>(*data); }
  std::unique_ptr<Mirror> operator()(HScrollBar* data) const {
    return stop<ScrollBarMirror>(*data);
  }

 private:
  template <typename Kind, typename Data>
  std::unique_ptr<Mirror> stop(Data& data) const {
    auto mirror = std::make_unique<Kind>(data, parent_);
    const bool takesFocus = data.tabIndex >= 0;
    mirror->view().setFocusPolicy(takesFocus ? Qt::StrongFocus : Qt::NoFocus);
    if (takesFocus) stops_.push_back({data.tabIndex, &mirror->view()});
    return mirror;
  }

  std::vector<const Frame*> framesInFrontOf(const Frame& frame) const {
    std::vector<const Frame*> frames;
    for (const ControlRef& control : controls_) {
      if (Frame* const* other = std::get_if<Frame*>(&control)) frames.push_back(*other);
    }
    frames.erase(frames.begin(), std::find(frames.begin(), frames.end(), &frame) + 1);
    return frames;
  }

  const std::vector<ControlRef>& controls_;
  QWidget& parent_;
  std::vector<TabStop>& stops_;
};

}  // namespace

Mirrors makeMirrors(const std::vector<ControlRef>& controls, QWidget& parent,
                    std::vector<TabStop>& stops) {
  Mirrors mirrors;
  for (const ControlRef& control : controls) {
    mirrors.push_back(std::visit(Maker(controls, parent, stops), control));
  }
  return mirrors;
}

void orderTabStops(std::vector<TabStop>& stops) {
  std::stable_sort(stops.begin(), stops.end(),
                   [](const TabStop& a, const TabStop& b) { return a.place < b.place; });
  for (std::size_t i = 1; i < stops.size(); ++i) {
    QWidget::setTabOrder(stops[i - 1].widget, stops[i].widget);
  }
}

}  // namespace glonks

#include "shell/toolkit/widgets.h"

#include <QFileInfo>
#include <QHelpEvent>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "shell/toolkit/style.h"

namespace glonks {

PictureView::PictureView(QWidget* parent) : QAbstractButton(parent) {
  setAttribute(Qt::WA_Hover);
  setUse(false, false);
}

void PictureView::setUse(bool clickable, bool tabStop) {
  setAttribute(Qt::WA_TransparentForMouseEvents, !clickable);
  setCursor(clickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
  // Not by the mouse: a click leaves the focus with the list that it is about.
  setFocusPolicy(clickable || tabStop ? Qt::TabFocus : Qt::NoFocus);
}

void PictureView::setFile(const QString& file) {
  file_ = file;
  fittedTo_ = QSize();
  update();
}

void PictureView::fitTo(const QSize& size) {
  if (size == fittedTo_) return;
  fittedTo_ = size;
  fitted_ = QPixmap();
  if (!QFileInfo(file_).isFile()) return;  // reading a pipe or a device might never end
  QImageReader reader(file_);
  reader.setDecideFormatFromContent(true);
  // Scaled in full colour: a picture with a palette would be dithered back to it.
  const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return;
  fitted_.convertFromImage(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void PictureView::keyPressEvent(QKeyEvent* event) {
  if (!isClickable()) return event->ignore();
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) return QAbstractButton::keyPressEvent(event);
  if (!event->isAutoRepeat()) click();
}

void PictureView::paintEvent(QPaintEvent*) {
  fitTo(size() * devicePixelRatioF());
  QPainter painter(this);
  if (!fitted_.isNull()) painter.drawPixmap(rect(), fitted_);
  if (isClickable() && isEnabled() && (hasFocus() || underMouse())) paintFrame(painter);
}

void PictureView::paintFrame(QPainter& painter) const {
  const qreal pixel = scaleFactor();
  const QRectF inside = QRectF(rect()).adjusted(pixel, pixel, -pixel, -pixel);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(isDown() ? QColor(0, 0, 0, 60) : QColor(255, 255, 255, 26));
  painter.setPen(QPen(QColor(255, 255, 255, 60), 2 * pixel));
  painter.drawRoundedRect(inside, 5 * pixel, 5 * pixel);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(255, 255, 255, hasFocus() ? 220 : 130), pixel));
  painter.drawRoundedRect(inside, 5 * pixel, 5 * pixel);
}

void DropDown::paintEvent(QPaintEvent* event) {
  QComboBox::paintEvent(event);
  const qreal pixel = scaleFactor();
  const QPointF tip(width() - 10 * pixel, height() / 2.0 + 1.75 * pixel);
  const QPointF arrow[] = {tip + QPointF(-3.5, -3.5) * pixel, tip,
                           tip + QPointF(3.5, -3.5) * pixel};
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor colour = palette().color(isEnabled() ? QPalette::Highlight : QPalette::Mid);
  painter.setPen(QPen(colour, 1.5 * pixel, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(arrow, 3);
}

namespace {

// Logical pixels.
constexpr int rowHeight = 17;
constexpr int smallestRowHeight = 12;
constexpr int secondColumn = 92;
constexpr int rowMargin = 5;

// Paints the rows of a ChoiceList.
class ListRow : public QStyledItemDelegate {
 public:
  explicit ListRow(QAbstractItemView& list) : QStyledItemDelegate(&list), list_(list) {}

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    const int fitting = list_.viewport()->height() / std::max(list_.model()->rowCount(), 1);
    const bool allFit = fitting >= smallestRowHeight * scaleFactor();
    const int natural = rowHeight * scaleFactor();
    return {0, allFit ? std::min(fitting, natural) : natural};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStringList columns = std::exchange(row.text, {}).split('\t');
    const QStyle* style = list_.style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, &list_);
    painter->setFont(row.font);
    painter->setPen(colourOf(row));
    for (int i = 0; i < columns.size(); ++i) {
      const QRect place = placeOf(i, row);
      const QString shown = row.fontMetrics.elidedText(columns[i], Qt::ElideRight, place.width());
      painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    }
  }

  // Shows the last column whole if it is too long for the list.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const QStringList columns = index.data().toString().split('\t');
    const int room = placeOf(static_cast<int>(columns.size()) - 1, option).width();
    const bool fits = option.fontMetrics.horizontalAdvance(columns.last()) <= room;
    QToolTip::showText(event->globalPos(), fits ? QString() : columns.last(), view);
    return true;
  }

 private:
  static QRect placeOf(int column, const QStyleOptionViewItem& row) {
    const int margin = rowMargin * scaleFactor();
    const int left = column == 0 ? margin : secondColumn * scaleFactor();
    return row.rect.adjusted(left, 0, -margin, 0);
  }

  static QColor colourOf(const QStyleOptionViewItem& row) {
    const bool enabled = (row.state & QStyle::State_Enabled) != 0;
    const bool selected = (row.state & QStyle::State_Selected) != 0;
    const bool inFocus = (row.state & QStyle::State_HasFocus) != 0;
    const auto role = enabled && selected && inFocus ? QPalette::HighlightedText : QPalette::Text;
    return row.palette.color(enabled ? QPalette::Active : QPalette::Disabled, role);
  }

  QAbstractItemView& list_;
};

}  // namespace

ChoiceList::ChoiceList(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setItemDelegate(new ListRow(*this));
  verticalScrollBar()->setAccessibleName("Scroll");
}

int ChoiceList::selectedRow() const {
  const QModelIndexList rows = selectionModel()->selectedRows();
  return rows.isEmpty() ? -1 : rows.front().row();
}

void ChoiceList::selectRow(int row) {
  setCurrentRow(row);
  if (row < 0) clearSelection();
}

void ChoiceList::keyPressEvent(QKeyEvent* event) {
  const int before = selectedRow();
  const bool move = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (before < 0 && move) {  // Qt would pass over the first row, which the focus is on
    setCurrentRow(0);
  } else {
    QListWidget::keyPressEvent(event);
  }
  const int now = selectedRow();
  if (now >= 0 && now != before) chosen(now);
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = indexAt(event->position().toPoint()).isValid();
  QListWidget::mousePressEvent(event);
}

void ChoiceList::mouseReleaseEvent(QMouseEvent* event) {
  QListWidget::mouseReleaseEvent(event);
  if (std::exchange(pressed_, false) && selectedRow() >= 0) chosen(selectedRow());
}

}  // namespace glonks

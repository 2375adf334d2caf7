// Reading any control's properties by name, as a script's `print` and `expect` name them.
#include <functional>
#include <unordered_map>

#include "platform/Controls.h"
#include "platform/FileControls.h"
#include "platform/Form.h"
#include "platform/Timer.h"
#include "script/Value.h"
#include "surface/PictureBox.h"

namespace qp::script {

namespace {

template <class T>
using Getter = std::function<Value(const T&)>;
template <class T>
using Table = std::unordered_map<QString, Getter<T>>;

Value v(const Prop<int>& p) { return Value::of(p.get()); }
Value v(const Prop<bool>& p) { return Value::boolean(p.get()); }
Value v(const Prop<Single>& p) { return Value::single(p.get()); }
Value v(const Prop<QString>& p) { return Value::string(p.get()); }
Value c(const Prop<Colour>& p) { return Value::colour(p.get()); }

template <class T>
std::optional<Value> lookup(const Table<T>& table, const Control& ctl, const QString& name) {
  const auto* t = dynamic_cast<const T*>(&ctl);
  if (!t) return std::nullopt;
  const auto it = table.find(name);
  if (it == table.end()) return std::nullopt;
  return it->second(*t);
}

const Table<Control>& controlTable() {
  static const Table<Control> t{
      {"Visible", [](const Control& x) { return v(x.Visible); }},
      {"Enabled", [](const Control& x) { return v(x.Enabled); }},
      {"Tag", [](const Control& x) { return v(x.Tag); }},
      {"Name", [](const Control& x) { return Value::string(x.Name()); }},
      {"Index", [](const Control& x) { return Value::of(x.Index()); }},
  };
  return t;
}

const Table<VisualControl>& visualTable() {
  static const Table<VisualControl> t{
      {"Left", [](const VisualControl& x) { return v(x.Left); }},
      {"Top", [](const VisualControl& x) { return v(x.Top); }},
      {"Width", [](const VisualControl& x) { return v(x.Width); }},
      {"Height", [](const VisualControl& x) { return v(x.Height); }},
      {"ToolTipText", [](const VisualControl& x) { return v(x.ToolTipText); }},
      {"BackColor", [](const VisualControl& x) { return c(x.BackColor); }},
      {"ForeColor", [](const VisualControl& x) { return c(x.ForeColor); }},
      {"MousePointer", [](const VisualControl& x) { return v(x.MousePointer); }},
      {"TabStop", [](const VisualControl& x) { return v(x.TabStop); }},
      {"OLEDropEnabled", [](const VisualControl& x) { return v(x.OLEDropEnabled); }},
  };
  return t;
}

const Table<Form>& formTable() {
  static const Table<Form> t{
      {"Caption", [](const Form& x) { return v(x.Caption); }},
      {"WindowState", [](const Form& x) { return v(x.WindowState); }},
      {"KeyPreview", [](const Form& x) { return v(x.KeyPreview); }},
      {"BorderStyle", [](const Form& x) { return v(x.BorderStyle); }},
      {"ActiveControl", [](const Form& x) {
         return Value::string(x.ActiveControl() ? x.ActiveControl()->key() : QString());
       }},
  };
  return t;
}

const Table<Label>& labelTable() {
  static const Table<Label> t{
      {"Caption", [](const Label& x) { return v(x.Caption); }},
      {"Alignment", [](const Label& x) { return v(x.Alignment); }},
      {"BackStyle", [](const Label& x) { return v(x.BackStyle); }},
      {"FontName", [](const Label& x) { return v(x.FontName); }},
      {"FontSize", [](const Label& x) { return v(x.FontSize); }},
      {"FontBold", [](const Label& x) { return v(x.FontBold); }},
  };
  return t;
}

const Table<Frame>& frameTable() {
  static const Table<Frame> t{
      {"Caption", [](const Frame& x) { return v(x.Caption); }},
      {"BorderStyle", [](const Frame& x) { return v(x.BorderStyle); }},
  };
  return t;
}

const Table<Shape>& shapeTable() {
  static const Table<Shape> t{
      {"Shape", [](const Shape& x) { return v(x.Shape_); }},
      {"BorderColor", [](const Shape& x) { return c(x.BorderColor); }},
      {"BorderStyle", [](const Shape& x) { return v(x.BorderStyle); }},
      {"BorderWidth", [](const Shape& x) { return v(x.BorderWidth); }},
      {"FillColor", [](const Shape& x) { return c(x.FillColor); }},
      {"FillStyle", [](const Shape& x) { return v(x.FillStyle); }},
      {"BackStyle", [](const Shape& x) { return v(x.BackStyle); }},
  };
  return t;
}

const Table<Line>& lineTable() {
  static const Table<Line> t{
      {"X1", [](const Line& x) { return v(x.X1); }},
      {"Y1", [](const Line& x) { return v(x.Y1); }},
      {"X2", [](const Line& x) { return v(x.X2); }},
      {"Y2", [](const Line& x) { return v(x.Y2); }},
      {"BorderColor", [](const Line& x) { return c(x.BorderColor); }},
      {"BorderWidth", [](const Line& x) { return v(x.BorderWidth); }},
      {"BorderStyle", [](const Line& x) { return v(x.BorderStyle); }},
  };
  return t;
}

const Table<ScrollBar>& scrollTable() {
  static const Table<ScrollBar> t{
      {"Min", [](const ScrollBar& x) { return v(x.Min); }},
      {"Max", [](const ScrollBar& x) { return v(x.Max); }},
      {"Value", [](const ScrollBar& x) { return v(x.Value); }},
      {"SmallChange", [](const ScrollBar& x) { return v(x.SmallChange); }},
      {"LargeChange", [](const ScrollBar& x) { return v(x.LargeChange); }},
  };
  return t;
}

const Table<CheckBox>& checkTable() {
  static const Table<CheckBox> t{
      {"Value", [](const CheckBox& x) { return v(x.Value); }},
      {"Caption", [](const CheckBox& x) { return v(x.Caption); }},
  };
  return t;
}

const Table<OptionButton>& optionTable() {
  static const Table<OptionButton> t{
      {"Value", [](const OptionButton& x) { return v(x.Value); }},
      {"Caption", [](const OptionButton& x) { return v(x.Caption); }},
  };
  return t;
}

const Table<CommandButton>& buttonTable() {
  static const Table<CommandButton> t{{"Caption", [](const CommandButton& x) { return v(x.Caption); }}};
  return t;
}

const Table<TextBox>& textTable() {
  static const Table<TextBox> t{
      {"Text", [](const TextBox& x) { return v(x.Text); }},
      {"SelStart", [](const TextBox& x) { return v(x.SelStart); }},
      {"SelLength", [](const TextBox& x) { return v(x.SelLength); }},
      {"MultiLine", [](const TextBox& x) { return v(x.MultiLine); }},
  };
  return t;
}

const Table<ListBox>& listTable() {
  static const Table<ListBox> t{
      {"ListIndex", [](const ListBox& x) { return v(x.ListIndex); }},
      {"ListCount", [](const ListBox& x) { return Value::of(x.ListCount()); }},
      {"Text", [](const ListBox& x) { return Value::string(x.Text()); }},
  };
  return t;
}

const Table<DriveListBox>& driveTable() {
  static const Table<DriveListBox> t{{"Drive", [](const DriveListBox& x) { return v(x.Drive); }}};
  return t;
}

const Table<DirListBox>& dirTable() {
  static const Table<DirListBox> t{{"Path", [](const DirListBox& x) { return v(x.Path); }}};
  return t;
}

const Table<FileListBox>& fileTable() {
  static const Table<FileListBox> t{
      {"Path", [](const FileListBox& x) { return v(x.Path); }},
      {"Pattern", [](const FileListBox& x) { return v(x.Pattern); }},
      {"FileName", [](const FileListBox& x) { return Value::string(x.FileName()); }},
  };
  return t;
}

const Table<Menu>& menuTable() {
  static const Table<Menu> t{
      {"Caption", [](const Menu& x) { return v(x.Caption); }},
      {"Checked", [](const Menu& x) { return v(x.Checked); }},
  };
  return t;
}

const Table<Timer>& timerTable() {
  static const Table<Timer> t{{"Interval", [](const Timer& x) { return v(x.Interval); }}};
  return t;
}

const Table<PictureBox>& pictureTable() {
  static const Table<PictureBox> t{
      {"AutoRedraw", [](const PictureBox& x) { return v(x.AutoRedraw); }},
      {"ScaleMode", [](const PictureBox& x) { return v(x.ScaleMode); }},
      {"ScaleWidth", [](const PictureBox& x) { return v(x.ScaleWidth); }},
      {"ScaleHeight", [](const PictureBox& x) { return v(x.ScaleHeight); }},
      {"ScaleLeft", [](const PictureBox& x) { return v(x.ScaleLeft); }},
      {"ScaleTop", [](const PictureBox& x) { return v(x.ScaleTop); }},
      {"FillColor", [](const PictureBox& x) { return c(x.FillColor); }},
      {"FillStyle", [](const PictureBox& x) { return v(x.FillStyle); }},
      {"DrawWidth", [](const PictureBox& x) { return v(x.DrawWidth); }},
      {"DrawMode", [](const PictureBox& x) { return v(x.DrawMode); }},
      {"DrawStyle", [](const PictureBox& x) { return v(x.DrawStyle); }},
      {"CurrentX", [](const PictureBox& x) { return v(x.CurrentX); }},
      {"CurrentY", [](const PictureBox& x) { return v(x.CurrentY); }},
      {"FontName", [](const PictureBox& x) { return v(x.FontName); }},
      {"FontSize", [](const PictureBox& x) { return v(x.FontSize); }},
      {"FontBold", [](const PictureBox& x) { return v(x.FontBold); }},
      {"FontItalic", [](const PictureBox& x) { return v(x.FontItalic); }},
      {"FontTransparent", [](const PictureBox& x) { return v(x.FontTransparent); }},
      {"BorderStyle", [](const PictureBox& x) { return v(x.BorderStyle); }},
      // The size of the bitmap, which the window's arithmetic in twips does not show directly.
      {"PixelWidth", [](const PictureBox& x) { return Value::of(x.pixelWidth()); }},
      {"PixelHeight", [](const PictureBox& x) { return Value::of(x.pixelHeight()); }},
  };
  return t;
}

}  // namespace

std::optional<Value> readProperty(const Control& ctl, const QString& name) {
  // The most particular kind answers first: a form's Caption before a control's, and so on.
  for (auto r : {lookup(pictureTable(), ctl, name), lookup(formTable(), ctl, name),
                 lookup(labelTable(), ctl, name), lookup(frameTable(), ctl, name),
                 lookup(shapeTable(), ctl, name), lookup(lineTable(), ctl, name),
                 lookup(scrollTable(), ctl, name), lookup(checkTable(), ctl, name),
                 lookup(optionTable(), ctl, name), lookup(buttonTable(), ctl, name),
                 lookup(textTable(), ctl, name), lookup(driveTable(), ctl, name),
                 lookup(dirTable(), ctl, name), lookup(fileTable(), ctl, name), lookup(listTable(), ctl, name),
                 lookup(menuTable(), ctl, name), lookup(timerTable(), ctl, name),
                 lookup(visualTable(), ctl, name), lookup(controlTable(), ctl, name)}) {
    if (r) return r;
  }
  return std::nullopt;
}

}  // namespace qp::script

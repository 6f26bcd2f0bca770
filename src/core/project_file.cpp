#include "core/project_file.h"

#include <cerrno>
#include <cstdio>
#include <sstream>

#include "core/format.h"
#include "core/safe_file.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/rolled_i.h"

namespace vn {

namespace {

// ---- Writing: one value to a line in the portable text form ----

class Writer {
 public:
  void Int(int v) { out_ << v << "\r\n"; }
  void Sgl(Single v) { out_ << FloatFileText(v) << "\r\n"; }
  void Num(double v) { out_ << DoubleFileText(v) << "\r\n"; }
  void Str(const std::string& v) { out_ << '"' << v << '"' << "\r\n"; }
  void Bool(Boolean v) { out_ << (v != 0 ? "#TRUE#" : "#FALSE#") << "\r\n"; }
  void Raw(const std::string& v) { out_ << v << "\r\n"; }
  std::string Text() const { return out_.str(); }

 private:
  std::ostringstream out_;
};

// ---- Reading: values separated by commas or line ends ----

struct PastEndError {};
struct MismatchError {};

class Reader {
 public:
  explicit Reader(std::string text) : t_(std::move(text)) {}

  // A raw line: the text as it is, up to the line end.
  std::string Line() {
    if (pos_ >= t_.size()) throw PastEndError{};
    size_t end = t_.find_first_of("\r\n", pos_);
    std::string line = t_.substr(pos_, end == std::string::npos ? std::string::npos : end - pos_);
    pos_ = end == std::string::npos ? t_.size() : end;
    SkipLineEnd();
    return line;
  }

  // One value: a quoted text or the characters up to the next comma or line end.
  std::string Token(bool* quoted = nullptr) {
    while (pos_ < t_.size() && (t_[pos_] == ' ' || t_[pos_] == '\t')) ++pos_;
    // Line ends before a value are skipped as empty lines are.
    while (pos_ < t_.size() && (t_[pos_] == '\r' || t_[pos_] == '\n')) {
      ++pos_;
      while (pos_ < t_.size() && (t_[pos_] == ' ' || t_[pos_] == '\t')) ++pos_;
    }
    if (pos_ >= t_.size()) throw PastEndError{};
    std::string v;
    if (t_[pos_] == '"') {
      size_t close = t_.find('"', pos_ + 1);
      if (close == std::string::npos) close = t_.size();
      v = t_.substr(pos_ + 1, close - pos_ - 1);
      pos_ = close < t_.size() ? close + 1 : close;
      if (quoted) *quoted = true;
      // Up to the delimiter after the closing quote.
      while (pos_ < t_.size() && t_[pos_] != ',' && t_[pos_] != '\r' && t_[pos_] != '\n') ++pos_;
    } else {
      size_t end = t_.find_first_of(",\r\n", pos_);
      if (end == std::string::npos) end = t_.size();
      v = t_.substr(pos_, end - pos_);
      while (!v.empty() && (v.back() == ' ' || v.back() == '\t')) v.pop_back();
      pos_ = end;
      if (quoted) *quoted = false;
    }
    if (pos_ < t_.size() && t_[pos_] == ',')
      ++pos_;
    else
      SkipLineEnd();
    return v;
  }

  double Number() {
    std::string v = Token();
    if (v == "#TRUE#") return -1;
    if (v == "#FALSE#") return 0;
    if (v.empty()) return 0;
    bool mismatch = false, overflow = false;
    // The file's numbers use '.' whatever the locale; the whole text must be a number.
    std::string comma = v;
    for (char& ch : comma)
      if (ch == '.') ch = ',';
    double d = ParseNumberD(comma, true, &mismatch, &overflow);
    if (mismatch || overflow) throw MismatchError{};
    return d;
  }
  Integer Int() {
    double d = Number();
    bool overflow = false;
    Integer i = RoundToInteger(d, &overflow);
    if (overflow) throw MismatchError{};
    return i;
  }
  Single Sgl() {
    double d = Number();
    if (std::fabs(d) > 3.4028234663852886e38) throw MismatchError{};
    return static_cast<Single>(d);
  }
  Boolean Bool() {
    std::string v = Token();
    if (v == "#TRUE#") return True;
    if (v == "#FALSE#") return False;
    bool mismatch = false;
    std::string comma = v;
    for (char& ch : comma)
      if (ch == '.') ch = ',';
    double d = ParseNumberD(comma, true, &mismatch);
    if (mismatch) throw MismatchError{};
    return d != 0 ? True : False;
  }
  std::string Str() { return Token(); }

 private:
  void SkipLineEnd() {
    if (pos_ < t_.size() && t_[pos_] == '\r') ++pos_;
    if (pos_ < t_.size() && t_[pos_] == '\n') ++pos_;
  }
  std::string t_;
  size_t pos_ = 0;
};

int BritishICatalogue(int kind) { return kind == 2 ? catUc : (kind == 3 ? catUbp : catUb); }
int ChannelCatalogue(int kind) { return kind == 2 ? catCh : catPfc; }

// Both directions walk the record in one order: `io` reads or writes each value in its slot.
template <class IO>
void WalkProject(IO& io, State& s, int version) {
  Project& p = s.project;
  io.Raw(p.projectName);
  io.Raw(p.projectIdent);
  io.Str(p.codeId);
  io.Num(p.gammaM0);
  io.Sgl(p.gammaM1);
  io.Sgl(p.neta);
  io.Int(p.interactionMethod);
  io.Int(p.steelGrade);
  io.Sgl(p.fyk);
  io.Sgl(p.E);
  io.Sgl(p.uflimit);
  io.Bool(p.elasticClass12);
  io.Bool(p.conserControl);
  io.Bool(p.noFlangeBuckling);
  io.Bool(p.noWebBuckling);
  io.Int(p.LoadCombMode);
  if (IO::kReading && version < 119) p.LoadCombMode = static_cast<Integer>(p.LoadCombMode + 1);
  io.Int(p.deflectionLimit);
  io.Int(p.safetyClass);
  io.Int(p.psiQ1Index);
  io.Int(p.psiQ2Index);
  io.Sgl(p.LfULS_G);
  io.Sgl(p.LfULS_Q1);
  io.Sgl(p.LfULS_Q2);
  io.Sgl(p.LfSLS_G);
  io.Sgl(p.LfSLS_Q1);
  io.Sgl(p.LfSLS_Q2);
  io.Bool(p.checkSLS);
  io.Int(p.rhsTurned);
  io.Bool(p.conserControl);  // the same field a second time, a fixed slot of the format
  io.Int(p.rigidEndPost);
  io.Int(p.webStiffeners);
  io.Int(p.bucklingCurveY);
  io.Int(p.bucklingCurveZ);
  io.Int(p.bucklingCaseY);
  io.Int(p.bucklingCaseZ);
  io.Int(p.hsqKind);
  io.Int(p.angleOption);
  io.Int(p.chModal);
  io.Int(p.SupportType);
  io.Int(p.SpringPct);
  io.Int(p.AnalysisMode);
  io.Int(p.ltbLoadLevel);
  io.Int(p.ltbOn);
  io.Int(p.ltbCase);
  io.Int(p.ltbRestraints);
  io.Int(p.ltbPart);
  io.Bool(p.ltbUserC);
  io.Bool(p.ltbUserC1);
  io.Int(p.ltbCurve);
  io.Num(p.ltbC1);
  io.Num(p.ltbC2);
  io.Num(p.ltbC3);
  io.Sgl(p.L);
  io.Sgl(p.a);
  io.Sgl(p.ltbFactor);
  io.Sgl(p.bucklingFactorY);
  io.Sgl(p.bucklingFactorZ);

  if (p.AnalysisMode == 0) {
    io.Sgl(p.NEndForce);
    io.Sgl(p.My12[1]);
    io.Sgl(p.My12[2]);
    io.Sgl(p.Vy12[1]);
    io.Sgl(p.Vy12[2]);
    io.Sgl(p.Mz12[1]);
    io.Sgl(p.Mz12[2]);
    io.Sgl(p.Vz12[1]);
    io.Sgl(p.Vz12[2]);
  } else if (p.AnalysisMode == 1) {
    Loads& l = s.loads;
    for (int i = 1; i <= 3; ++i) {
      io.Sgl(l.axial[i].N);
      io.Sgl(l.axial[i].Case);
      io.Bool(l.axial[i].Checked);
    }
    for (int i = 1; i <= 4; ++i) {
      io.Sgl(l.uniform[i].q);
      io.Int(l.uniform[i].Case);
      io.Int(l.uniform[i].Dir);
      io.Bool(l.uniform[i].Checked);
    }
    for (int i = 1; i <= 3; ++i) {
      TrapezoidLoad& t = l.trapezoid[i];
      io.Sgl(t.q1);
      io.Sgl(t.q2);
      io.Sgl(t.x1);
      io.Sgl(t.x2);
      io.Sgl(t.Case);
      io.Sgl(t.Dir);
      io.Bool(t.Checked);
    }
    for (int i = 1; i <= 8; ++i) {
      PointLoad& pt = l.point[i];
      io.Int(pt.Kind);
      io.Sgl(pt.Value);
      io.Sgl(pt.x);
      io.Int(pt.Case);
      io.Int(pt.Dir);
      io.Bool(pt.Checked);
    }
  }

  io.Int(p.ProfileType);
  const int type = p.ProfileType;
  // The catalogue families keep their row here; the British ones keep theirs with their sub-family.
  const CatalogueId cat = type == 101 || type == 103 ? catCount : CatalogueOfType(s, type);
  if (cat != catCount) {
    io.Int(p.SelectedRow[static_cast<size_t>(cat)]);
    if (type == 52) {
      io.Num(p.p52.istb1);
      io.Sgl(p.p52.istt1);
    } else if (type == 54) {
      io.Num(p.p54.istb1);
      io.Sgl(p.p54.istt1);
    }
  } else {
    switch (type) {
      case 21: {
        auto& q = p.p21;
        io.Sgl(q.isth);
        io.Sgl(q.istb1);
        io.Sgl(q.isttw);
        io.Sgl(q.isttf);
        break;
      }
      case 22: {
        auto& q = p.p22;
        io.Sgl(q.isth);
        io.Sgl(q.istb1);
        io.Sgl(q.istb2);
        io.Sgl(q.isttw);
        io.Sgl(q.isttf1);
        io.Sgl(q.isttf2);
        break;
      }
      case 23: {
        auto& q = p.p23;
        io.Sgl(q.isth);
        io.Sgl(q.istb1);
        io.Sgl(q.isttw);
        io.Sgl(q.isttf);
        io.Sgl(q.ista);
        io.Int(q.oweld);
        break;
      }
      case 24: {
        auto& q = p.p24;
        io.Sgl(q.isth);
        io.Sgl(q.istb1);
        io.Sgl(q.istb2);
        io.Sgl(q.isttw);
        io.Sgl(q.isttf1);
        io.Sgl(q.isttf2);
        // The slot after tf2 holds family 25's c: written from it, read into family 24's c.
        if (IO::kReading)
          io.Sgl(q.c);
        else
          io.Sgl(p.p25.istc);
        io.Sgl(q.iload);
        if (IO::kReading && version < 120)
          q.classOption = 1;
        else
          io.Int(q.classOption);
        break;
      }
      case 25: {
        auto& q = p.p25;
        io.Sgl(q.isth);
        io.Sgl(q.istb1);
        io.Sgl(q.istb2);
        io.Sgl(q.isttw);
        io.Sgl(q.isttf1);
        io.Sgl(q.isttf2);
        io.Sgl(q.istc);
        if (IO::kReading && version < 120)
          q.classOption = 1;
        else
          io.Int(q.classOption);
        break;
      }
      case 26: {
        auto& q = p.p26;
        io.Num(q.isth);
        io.Num(q.istb1);
        io.Num(q.isttw);
        io.Sgl(q.isttf1);
        break;
      }
      case 27: {
        auto& q = p.p27;
        io.Num(q.isth);
        io.Num(q.istb1);
        io.Num(q.istb2);
        io.Num(q.isttw);
        io.Num(q.isttf1);
        io.Num(q.isttf2);
        io.Sgl(q.istc);
        break;
      }
      case 28:
        io.Sgl(p.p28.isth);
        io.Sgl(p.p28.isttw);
        break;
      case 31:
        io.Sgl(p.p31.istd);
        io.Sgl(p.p31.isttw);
        io.Int(p.p31.hotCold);
        break;
      case 41: {
        auto& q = p.p41;
        io.Str(q.name);
        io.Int(q.classN);
        io.Int(q.classMy);
        io.Int(q.classMz);
        io.Sgl(q.istax);
        io.Sgl(q.istay);
        io.Sgl(q.istaz);
        io.Sgl(q.istix);
        io.Sgl(q.istiy);
        io.Sgl(q.istiz);
        io.Sgl(q.istiw);
        io.Sgl(q.istwely);
        io.Sgl(q.istwelz);
        io.Sgl(q.istwply);
        io.Sgl(q.istwplz);
        break;
      }
      case 51: {
        auto& q = p.p51;
        io.Num(q.isth);
        io.Num(q.istb1);
        io.Num(q.isttw);
        io.Sgl(q.isttf1);
        break;
      }
      case 53:
      case 56: {
        auto& q = type == 53 ? p.p53 : p.p56;
        io.Num(q.isth);
        io.Num(q.istb1);
        io.Num(q.istb2);
        io.Num(q.isttw);
        io.Num(q.isttf1);
        io.Sgl(q.isttf2);
        break;
      }
      case 55: {
        auto& q = p.p55;
        io.Num(q.v1);
        io.Num(q.v2);
        io.Num(q.v3);
        io.Sgl(q.v4);
        io.Num(q.v5);
        io.Num(q.v6);
        break;
      }
      case 101:
        io.Int(p.subFamily101);
        io.Int(p.SelectedRow[static_cast<size_t>(BritishICatalogue(p.subFamily101))]);
        break;
      case 103:
        io.Int(p.subFamily103);
        io.Int(p.SelectedRow[static_cast<size_t>(ChannelCatalogue(p.subFamily103))]);
        break;
      default: break;  // no block
    }
  }

  io.Int(p.SelfweightOn);
  io.Int(p.ChPointMode);
  io.Int(p.ChPointCount);
  io.Sgl(p.ChPointX[1]);
  io.Sgl(p.ChPointX[2]);
  io.Sgl(p.ChPointX[3]);
  io.Num(p.ltbZa);
  io.Num(p.reserved1);
  io.Num(p.reserved2);
  io.Int(p.reserved3);
  io.Num(p.reserved4);
  io.Num(p.reserved5);
  io.Sgl(p.reserved6);
}

struct WriteIO {
  static constexpr bool kReading = false;
  Writer w;
  void Raw(const std::string& v) { w.Raw(v); }
  void Str(const std::string& v) { w.Str(v); }
  void Num(double v) { w.Num(v); }
  void Sgl(Single v) { w.Sgl(v); }
  void Int(Integer v) { w.Int(v); }
  void Bool(Boolean v) { w.Bool(v); }
};

struct ReadIO {
  static constexpr bool kReading = true;
  Reader& r;
  void Raw(std::string& v) { v = r.Line(); }
  void Str(std::string& v) { v = r.Str(); }
  void Num(double& v) { v = r.Number(); }
  void Sgl(Single& v) { v = r.Sgl(); }
  void Int(Integer& v) { v = r.Int(); }
  void Bool(Boolean& v) { v = r.Bool(); }
};

}  // namespace

std::string ProjectFileText(State& s) {
  s.project.codeId = CodeIdFromIndex(s.project.codeIndex);
  WriteIO io;
  io.Int(static_cast<Integer>(kProjectVersion));
  WalkProject(io, s, kProjectVersion);
  // The rules follow the last value of the format, and only when they are not the default: a
  // reader that stops at the last value never sees them, and a project in the default rules is
  // written exactly as before.
  if (s.project.strictRules != 0) io.Str(kStrictRulesMark);
  // The method of Mcr likewise: after the rules, and only when it is the eigenvalue analysis.
  if (s.project.ltbMcrMethod == 1) io.Str(kMcrEigenMark);
  return io.w.Text();
}

FileResult ReadProject(State& s, const std::string& path, std::string* reason) {
  std::string text;
  const ReadStatus read = ReadFileBounded(path, kProjectFileLimit, &text, reason);
  if (read == ReadStatus::TooLarge) return FileResult::TooLarge;
  if (read != ReadStatus::Ok) return FileResult::NotFound;
  return ReadProjectText(s, text);
}

FileResult ReadProjectText(State& s, const std::string& text) {
  Reader reader(text);
  ReadIO io{reader};
  try {
    Integer version = 0;
    io.Int(version);
    // A project file begins with its version number (the format's own, or an earlier one): a
    // text that begins with any other number is no project, however many values follow.
    if (version < 1 || version > kProjectVersion) return FileResult::OtherError;
    WalkProject(io, s, version);
    // A file without the marks, or with anything else there, is in the default rules and takes Mcr
    // from the C factors. Each mark stands at most once, the rules' first.
    s.project.strictRules = False;
    s.project.ltbMcrMethod = 0;
    try {
      for (int i = 0; i < 2; ++i) {
        bool quoted = false;
        const std::string mark = reader.Token(&quoted);
        if (!quoted) break;
        if (i == 0 && mark == kStrictRulesMark) s.project.strictRules = True;
        if (mark == kMcrEigenMark) s.project.ltbMcrMethod = 1;
      }
    } catch (const PastEndError&) {
    }
  } catch (const PastEndError&) {
    return FileResult::PastEnd;
  } catch (const MismatchError&) {
    return FileResult::OtherError;
  } catch (const std::exception&) {
    return FileResult::OtherError;
  }
  Project& p = s.project;
  p.psiQ1 = static_cast<Single>((p.psiQ1Index + 1) * 0.1);
  p.psiQ2 = static_cast<Single>((p.psiQ2Index + 1) * 0.1);
  p.codeIndex = CodeIndexFromId(p.codeId);
  SetCodeFactors(s, p.codeIndex);
  SetCombinationFactors(s, p.codeIndex);
  return FileResult::Ok;
}

FileResult WriteProject(State& s, const std::string& path, std::string* reason) {
  // Any failure, from a missing folder to a full disk, leaves the previous file as it was.
  return ReplaceFile(path, ProjectFileText(s), reason) ? FileResult::Ok : FileResult::NotFound;
}

}  // namespace vn

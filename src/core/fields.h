// Every field of the records under its own name, for the JSON view of the state and for tests that
// set a field by name. A record lists its fields once, here; a new field is added to its visitor.
#pragma once

#include "core/state.h"

namespace vn {

#define VN_F(rec, name) v(#name, rec.name)

template <class V, class P>
void VisitProject(V& v, P& p) {
  VN_F(p, fileName);
  VN_F(p, projectName);
  VN_F(p, projectIdent);
  VN_F(p, ProfileType);
  VN_F(p, profileName);
  VN_F(p, figureNotToScale);
  VN_F(p, rhsTurned);
  VN_F(p, hsqKind);
  VN_F(p, angleOption);
  VN_F(p, SelectedRow);
  VN_F(p, subFamily101);
  VN_F(p, subFamily103);
  v.Object("p21", [&] {
    VN_F(p.p21, isth);
    VN_F(p.p21, istb1);
    VN_F(p.p21, isttw);
    VN_F(p.p21, isttf);
  });
  v.Object("p22", [&] {
    auto& q = p.p22;
    VN_F(q, isth);
    VN_F(q, istb1);
    VN_F(q, istb2);
    VN_F(q, isttw);
    VN_F(q, isttf1);
    VN_F(q, isttf2);
  });
  v.Object("p23", [&] {
    auto& q = p.p23;
    VN_F(q, isth);
    VN_F(q, istb1);
    VN_F(q, isttw);
    VN_F(q, isttf);
    VN_F(q, ista);
    VN_F(q, oweld);
  });
  v.Object("p24", [&] {
    auto& q = p.p24;
    VN_F(q, isth);
    VN_F(q, istb1);
    VN_F(q, istb2);
    VN_F(q, isttw);
    VN_F(q, isttf1);
    VN_F(q, isttf2);
    VN_F(q, c);
    VN_F(q, iload);
    VN_F(q, classOption);
  });
  v.Object("p25", [&] {
    auto& q = p.p25;
    VN_F(q, isth);
    VN_F(q, istb1);
    VN_F(q, istb2);
    VN_F(q, isttw);
    VN_F(q, isttf1);
    VN_F(q, isttf2);
    VN_F(q, istc);
    VN_F(q, classOption);
  });
  v.Object("p26", [&] {
    auto& q = p.p26;
    VN_F(q, isth);
    VN_F(q, istb1);
    VN_F(q, isttw);
    VN_F(q, isttf1);
  });
  v.Object("p27", [&] {
    auto& q = p.p27;
    VN_F(q, isth);
    VN_F(q, istb1);
    VN_F(q, istb2);
    VN_F(q, isttw);
    VN_F(q, isttf1);
    VN_F(q, isttf2);
    VN_F(q, istc);
  });
  v.Object("p28", [&] {
    auto& q = p.p28;
    VN_F(q, isth);
    VN_F(q, isttw);
  });
  v.Object("p31", [&] {
    auto& q = p.p31;
    VN_F(q, istd);
    VN_F(q, isttw);
    VN_F(q, hotCold);
  });
  v.Object("p41", [&] {
    auto& q = p.p41;
    VN_F(q, name);
    VN_F(q, classN);
    VN_F(q, classMy);
    VN_F(q, classMz);
    VN_F(q, istax);
    VN_F(q, istay);
    VN_F(q, istaz);
    VN_F(q, istix);
    VN_F(q, istiy);
    VN_F(q, istiz);
    VN_F(q, istiw);
    VN_F(q, istwely);
    VN_F(q, istwelz);
    VN_F(q, istwply);
    VN_F(q, istwplz);
  });
  v.Object("p51", [&] {
    auto& q = p.p51;
    VN_F(q, isth);
    VN_F(q, istb1);
    VN_F(q, isttw);
    VN_F(q, isttf1);
  });
  v.Object("p52", [&] {
    auto& q = p.p52;
    VN_F(q, istb1);
    VN_F(q, istt1);
  });
  v.Object("p53", [&] {
    auto& q = p.p53;
    VN_F(q, isth);
    VN_F(q, istb1);
    VN_F(q, istb2);
    VN_F(q, isttw);
    VN_F(q, isttf1);
    VN_F(q, isttf2);
  });
  v.Object("p54", [&] {
    auto& q = p.p54;
    VN_F(q, istb1);
    VN_F(q, istt1);
  });
  v.Object("p55", [&] {
    auto& q = p.p55;
    VN_F(q, v1);
    VN_F(q, v2);
    VN_F(q, v3);
    VN_F(q, v4);
    VN_F(q, v5);
    VN_F(q, v6);
  });
  v.Object("p56", [&] {
    auto& q = p.p56;
    VN_F(q, isth);
    VN_F(q, istb1);
    VN_F(q, istb2);
    VN_F(q, isttw);
    VN_F(q, isttf1);
    VN_F(q, isttf2);
  });

  VN_F(p, steelGrade);
  VN_F(p, fyk);
  VN_F(p, E);
  VN_F(p, rho);
  VN_F(p, epsilon);
  VN_F(p, fyd);
  VN_F(p, L);
  VN_F(p, bucklingFactorY);
  VN_F(p, bucklingFactorZ);
  VN_F(p, bucklingCaseY);
  VN_F(p, bucklingCaseZ);
  VN_F(p, bucklingCurveY);
  VN_F(p, bucklingCurveZ);
  VN_F(p, SupportType);
  VN_F(p, SpringPct);
  VN_F(p, rigidEndPost);
  VN_F(p, webStiffeners);
  VN_F(p, a);
  VN_F(p, ltbOn);
  VN_F(p, ltbCase);
  VN_F(p, ltbFactor);
  VN_F(p, ltbRestraints);
  VN_F(p, ltbPart);
  VN_F(p, ltbUserC);
  VN_F(p, ltbUserC1);
  VN_F(p, ltbCurve);
  VN_F(p, ltbLoadLevel);
  VN_F(p, ltbZa);
  VN_F(p, ltbC1);
  VN_F(p, ltbC2);
  VN_F(p, ltbC3);
  VN_F(p, ltbMcrMethod);
  VN_F(p, AnalysisMode);
  VN_F(p, chModal);
  VN_F(p, checkSLS);
  VN_F(p, deflectionLimit);
  VN_F(p, LoadCombMode);
  VN_F(p, SelfweightOn);
  VN_F(p, ChPointMode);
  VN_F(p, ChPointCount);
  VN_F(p, ChPointRelative);
  VN_F(p, ChPointX);
  VN_F(p, NEndForce);
  VN_F(p, My12);
  VN_F(p, Mz12);
  VN_F(p, Vy12);
  VN_F(p, Vz12);
  VN_F(p, reserved1);
  VN_F(p, reserved2);
  VN_F(p, reserved3);
  VN_F(p, reserved4);
  VN_F(p, reserved5);
  VN_F(p, reserved6);
  VN_F(p, codeId);
  VN_F(p, codeIndex);
  VN_F(p, gammaM0);
  VN_F(p, gammaM1);
  VN_F(p, neta);
  VN_F(p, interactionMethod);
  VN_F(p, lamdaLT0);
  VN_F(p, beta);
  VN_F(p, lamdaLT0w);
  VN_F(p, betaw);
  VN_F(p, uflimit);
  VN_F(p, elasticClass12);
  VN_F(p, conserControl);
  VN_F(p, noFlangeBuckling);
  VN_F(p, noWebBuckling);
  VN_F(p, strictRules);
  VN_F(p, safetyClass);
  VN_F(p, psiQ1Index);
  VN_F(p, psiQ2Index);
  VN_F(p, psiQ1);
  VN_F(p, psiQ2);
  VN_F(p, LfULS_G);
  VN_F(p, LfULS_Q1);
  VN_F(p, LfULS_Q2);
  VN_F(p, LfSLS_G);
  VN_F(p, LfSLS_Q1);
  VN_F(p, LfSLS_Q2);
  VN_F(p, calcError);
}

template <class V, class L>
void VisitLoads(V& v, L& l) {
  v.Array("AxialLoad", l.axial, [&](auto& r) {
    VN_F(r, N);
    VN_F(r, Case);
    VN_F(r, Checked);
  });
  v.Array("UniformLoad", l.uniform, [&](auto& r) {
    VN_F(r, q);
    VN_F(r, Case);
    VN_F(r, Dir);
    VN_F(r, Checked);
  });
  v.Array("TrapezoidLoad", l.trapezoid, [&](auto& r) {
    VN_F(r, q1);
    VN_F(r, q2);
    VN_F(r, x1);
    VN_F(r, x2);
    VN_F(r, Case);
    VN_F(r, Dir);
    VN_F(r, Checked);
  });
  v.Array("PointLoad", l.point, [&](auto& r) {
    VN_F(r, Kind);
    VN_F(r, Value);
    VN_F(r, x);
    VN_F(r, Case);
    VN_F(r, Dir);
    VN_F(r, Checked);
  });
  VN_F(l, PointLoadXRelative);
  VN_F(l, TrapezoidXRelative);
}

template <class V, class S>
void VisitSection(V& v, S& c) {
  VN_F(c, h);
  VN_F(c, b);
  VN_F(c, tf);
  VN_F(c, tw);
  VN_F(c, r);
  VN_F(c, ri);
  VN_F(c, r1);
  VN_F(c, r2);
  VN_F(c, hw);
  VN_F(c, d);
  VN_F(c, c);
  VN_F(c, tmax);
  VN_F(c, b1);
  VN_F(c, tf1);
  VN_F(c, b2);
  VN_F(c, tf2);
  VN_F(c, hweb);
  VN_F(c, ey);
  VN_F(c, em);
  VN_F(c, A);
  VN_F(c, Af);
  VN_F(c, Aw);
  VN_F(c, Iy);
  VN_F(c, Iz);
  VN_F(c, IzDefl);
  VN_F(c, Ix);
  VN_F(c, Iw);
  VN_F(c, Iu);
  VN_F(c, Iv);
  VN_F(c, alfa);
  VN_F(c, Wely);
  VN_F(c, Welz);
  VN_F(c, Wply);
  VN_F(c, Wplz);
  VN_F(c, Wyt);
  VN_F(c, Wyb);
  VN_F(c, Wzl);
  VN_F(c, Wzr);
  VN_F(c, Wumin);
  VN_F(c, Wvmin);
  VN_F(c, Wy);
  VN_F(c, Wz);
  VN_F(c, Aeff);
  VN_F(c, Weffy);
  VN_F(c, Weffz);
  VN_F(c, Avy);
  VN_F(c, Avz);
  VN_F(c, ez);
  VN_F(c, eyc);
  VN_F(c, g);
  VN_F(c, S);
  VN_F(c, classN);
  VN_F(c, classMy);
  VN_F(c, classMz);
  VN_F(c, classFlange);
  VN_F(c, classWeb);
  VN_F(c, NcRd);
  VN_F(c, NtRd);
  VN_F(c, MplyRd);
  VN_F(c, MplzRd);
  VN_F(c, MelyRd);
  VN_F(c, MelzRd);
  VN_F(c, MeffyRd);
  VN_F(c, MeffzRd);
  VN_F(c, MyRdClass);
  VN_F(c, MzRdClass);
  VN_F(c, MfyRd);
  VN_F(c, MfzRd);
  VN_F(c, VyRd);
  VN_F(c, VzRd);
  VN_F(c, VplRd);
  VN_F(c, VplyRd);
  VN_F(c, VbyRd);
  VN_F(c, VbzRd);
  VN_F(c, NRdBuck);
  VN_F(c, MyRdBuck);
  VN_F(c, MzRdBuck);
  VN_F(c, c1);
  VN_F(c, c2);
  VN_F(c, zpl);
  VN_F(c, WeffyTop);
  VN_F(c, WeffyBot);
  VN_F(c, WeffyTop2);
  VN_F(c, WeffyBot2);
  VN_F(c, Weffy1);
  VN_F(c, Weffy2);
  VN_F(c, MeffyRd1);
  VN_F(c, MeffyRd2);
  VN_F(c, classMyPos);
  VN_F(c, classMyNeg);
  VN_F(c, WyPos);
  VN_F(c, WyNeg);
  VN_F(c, MyRdPos);
  VN_F(c, MyRdNeg);
  VN_F(c, MyRdBuckPos);
  VN_F(c, MyRdBuckNeg);
  VN_F(c, betaf);
  VN_F(c, betaf2);
  VN_F(c, zs);
  VN_F(c, psif);
  VN_F(c, psif2);
  VN_F(c, zj);
  VN_F(c, zj2);
  VN_F(c, WplyTop);
  VN_F(c, WplyBot);
  VN_F(c, FlangeLoadFactor);
  VN_F(c, MyRdPosUnloaded);
  VN_F(c, MyRdNegUnloaded);
  VN_F(c, FlangeLoadRatio);
  v.Array("Outline", c.Outline, [&](auto& pt) {
    VN_F(pt, x);
    VN_F(pt, y);
  });
  VN_F(c, OutlineCount);
  VN_F(c, OutlineInnerLast);
  VN_F(c, OutlineRects);
  VN_F(c, FigHeight);
  VN_F(c, FigWidth);
  VN_F(c, FigCentroidZ);
  VN_F(c, FigCentroidY);
  VN_F(c, ltbRelevant);
  VN_F(c, channelKind);
}

template <class V, class A>
void VisitAnalysis(V& v, A& a) {
  VN_F(a, NPoints);
  VN_F(a, ChPointXrel);
  VN_F(a, MyGrid);
  VN_F(a, VzGrid);
  VN_F(a, MzGrid);
  VN_F(a, VyGrid);
  VN_F(a, dzGrid);
  VN_F(a, dyGrid);
  VN_F(a, MyPt);
  VN_F(a, VzPt);
  VN_F(a, VyPt);
  VN_F(a, MzPt);
  VN_F(a, NEd);
  VN_F(a, qTotal);
  VN_F(a, MyMax);
  VN_F(a, MyMin);
  VN_F(a, MzMax);
  VN_F(a, MzMin);
  VN_F(a, VzMax);
  VN_F(a, VzMin);
  VN_F(a, VyMax);
  VN_F(a, VyMin);
  VN_F(a, MyMaxPos);
  VN_F(a, MyMinPos);
  VN_F(a, MzMaxPos);
  VN_F(a, MzMinPos);
  VN_F(a, VzMaxPos);
  VN_F(a, VzMinPos);
  VN_F(a, VyMaxPos);
  VN_F(a, VyMinPos);
  VN_F(a, dzMax);
  VN_F(a, dzMin);
  VN_F(a, dyMax);
  VN_F(a, dyMin);
  VN_F(a, dzAbs);
  VN_F(a, dyAbs);
  VN_F(a, MyAbs);
  VN_F(a, MzAbs);
  auto points = [&](const char* name, auto& f) {
    v.Object(name, [&] {
      VN_F(f, M1);
      VN_F(f, M2);
      VN_F(f, M3);
      VN_F(f, M4);
      VN_F(f, M5);
    });
  };
  points("PointsY", a.PointsY);
  points("PointsZ", a.PointsZ);
  auto shape = [&](const char* name, auto& f) {
    v.Object(name, [&] {
      VN_F(f, Curved);
      VN_F(f, MidDominates);
      VN_F(f, Linear);
      VN_F(f, Psi);
      VN_F(f, AlphaS);
      VN_F(f, AlphaH);
    });
  };
  shape("ShapeY", a.ShapeY);
  shape("ShapeZ", a.ShapeZ);
  VN_F(a, InflectionY1);
  VN_F(a, InflectionY2);
  VN_F(a, InflectionZ1);
  VN_F(a, InflectionZ2);
  VN_F(a, MyGov);
  VN_F(a, MzGov);
  VN_F(a, GoverningEquation);
  auto text = [&](const char* name, auto& f) {
    v.Object(name, [&] {
      VN_F(f, Formula);
      VN_F(f, Numbers);
      VN_F(f, Ratio);
      VN_F(f, Limit);
    });
  };
  text("deflTextZ", a.deflTextZ);
  text("deflTextY", a.deflTextY);
  VN_F(a, colDeflZ);
  VN_F(a, colDeflY);
  VN_F(a, IRdeflZ);
  VN_F(a, IRdeflY);
  VN_F(a, IRsection);
  VN_F(a, IRbuckling);
  VN_F(a, IRlimit);
  VN_F(a, ModalMass);
  VN_F(a, ModalFreq);
  VN_F(a, hasLoadY);
  VN_F(a, hasLoadZ);
}

template <class V, class C>
void VisitCombination(V& v, C& c) {
  VN_F(c, gammaG_610);
  VN_F(c, gammaQ1_610);
  VN_F(c, gammaQ2_610);
  VN_F(c, gammaG_610a);
  VN_F(c, gammaQ1_610a);
  VN_F(c, gammaQ2_610a);
  VN_F(c, gammaG_610b);
  VN_F(c, xi);
  VN_F(c, KFIG);
  VN_F(c, KFI);
  VN_F(c, text610);
  VN_F(c, text610a);
  VN_F(c, text610b);
  VN_F(c, textSLS);
  VN_F(c, textULSUser);
  VN_F(c, textSLSUser);
  VN_F(c, textBasic);
}

template <class V, class T>
void VisitControlText(V& v, const char* name, T& t) {
  v.Object(name, [&] {
    VN_F(t, Formula);
    VN_F(t, Numbers);
    VN_F(t, Ratio);
    VN_F(t, Limit);
  });
}

template <class V, class C>
void VisitChecks(V& v, C& c) {
  VN_F(c, IRsec);
  for (int i = 1; i <= 6; ++i) {
    static const char* const names[7] = {"",         "secText1", "secText2", "secText3",
                                         "secText4", "secText5", "secText6"};
    VisitControlText(v, names[i], c.secText[static_cast<size_t>(i)]);
  }
  VN_F(c, colSec);
  VN_F(c, IRbuckY);
  VN_F(c, IRbuckZ);
  VN_F(c, IRbuckLT);
  VisitControlText(v, "buckTextY", c.buckTextY);
  VisitControlText(v, "buckTextZ", c.buckTextZ);
  VisitControlText(v, "buckTextLT", c.buckTextLT);
  VN_F(c, colBuckY);
  VN_F(c, colBuckZ);
  VN_F(c, colLT);
  VN_F(c, Mcr);
  VN_F(c, C1);
  VN_F(c, C2);
  VN_F(c, C3);
  VN_F(c, lamdaLT);
  VN_F(c, Mcr0);
  VN_F(c, lamda0);
  VN_F(c, XLt);
  VN_F(c, xLT);
  VN_F(c, kc);
  VN_F(c, fLT);
  VN_F(c, McrByEigen);
  VN_F(c, McrFactor);
  VN_F(c, McrNote);
  VN_F(c, Ncry);
  VN_F(c, lamday);
  VN_F(c, chiy);
  VN_F(c, Ncrz);
  VN_F(c, lamdaz);
  VN_F(c, chiz);
  VN_F(c, NcrT);
  VN_F(c, NcrTF);
  VN_F(c, kyy);
  VN_F(c, kyz);
  VN_F(c, kzz);
  VN_F(c, kzy);
  VN_F(c, Cmy);
  VN_F(c, Cmy0);
  VN_F(c, Cmz);
  VN_F(c, CmLt);
  VN_F(c, Cyy);
  VN_F(c, Cyz);
  VN_F(c, Czy);
  VN_F(c, Czz);
  VN_F(c, aLt);
  VN_F(c, bLt);
  VN_F(c, cLt);
  VN_F(c, dLt);
  VN_F(c, eLt);
  VN_F(c, npl);
  VN_F(c, uy);
  VN_F(c, uz);
  VN_F(c, wy);
  VN_F(c, wz);
  VN_F(c, ey);
  VN_F(c, curveTextY);
  VN_F(c, curveTextZ);
  VN_F(c, MyEd);
  VN_F(c, MzEd);
  VN_F(c, VyEd);
  VN_F(c, VzEd);
  VN_F(c, MyRd);
  VN_F(c, MzRd);
  VN_F(c, MNyRd);
  VN_F(c, MNzRd);
  VN_F(c, rhoY);
  VN_F(c, rhoZ);
  VN_F(c, classCur);
  VN_F(c, classNMy);
  VN_F(c, classNMz);
  VN_F(c, NRd);
  VN_F(c, alfa);
  VN_F(c, betaN);
  VN_F(c, VbSuffix);
  VN_F(c, alphaY);
  VN_F(c, alphaZ);
  VN_F(c, lamdaMax);
  VN_F(c, NbyRd);
  VN_F(c, NbzRd);
  VN_F(c, LTlength);
  VN_F(c, McrWork);
  VN_F(c, MyLT);
  VN_F(c, MyRdLT);
  VN_F(c, Cmz0);
  VN_F(c, ltbPartLabel);
  VN_F(c, hasLoadY);
  VN_F(c, hasLoadZ);
  VN_F(c, zs);
  VN_F(c, zjTop);
  VN_F(c, zjBot);
  VN_F(c, psifTop);
  VN_F(c, psifBot);
  VN_F(c, ezb);
  VN_F(c, hpl);
  VN_F(c, bpl);
  VN_F(c, MyRdBuckPos);
  VN_F(c, MyRdBuckNeg);
}

}  // namespace vn

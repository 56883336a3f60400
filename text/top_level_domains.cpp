// SPDX-License-Identifier: MIT
#include "text/top_level_domains.h"

namespace tolvo {

namespace {

constexpr QStringView shortList =
    u",ac,ad,ae,aero,af,ag,ai,al,ao,aq,ar,arpa,au,aw,az,ba,bb,bd,bf,bg,bh,bi,biz,bj,bl,bm,bn,"
    u"bo,bq,br,bs,bt,bv,bw,bz,ca,cc,cd,cf,cg,ch,ci,ck,cl,cm,cn,co,com,cr,cu,cv,cw,cx,cy,cz,de,"
    u"dj,dk,dm,dz,ec,edu,ee,eg,eh,er,es,et,eu,fi,fj,fk,fm,fo,fr,ga,gb,gd,ge,gf,gg,gh,gi,gl,gm,"
    u"gn,gp,gq,gr,gs,gt,gu,gw,gy,hk,hm,hn,hr,ht,hu,id,ie,il,im,int,io,iq,ir,je,jm,jo,jp,ke,kg,"
    u"kh,ki,km,kn,kp,kr,kw,ky,kz,la,lb,lc,li,lk,lr,ls,lt,lu,lv,ly,mc,md,mf,mg,mh,mil,mk,ml,mm,"
    u"mn,mo,mobi,mp,mq,mr,ms,mt,mu,mv,mw,mx,my,mz,na,nc,ne,net,nf,ng,ni,nl,no,np,nr,nu,nz,om,"
    u"org,pa,pe,pf,pg,ph,pk,pl,pm,pn,pr,pt,pw,py,qa,re,ro,rs,ru,rw,sa,sb,sc,sd,se,sg,sh,si,sj,"
    u"sk,sl,sm,sn,sr,ss,st,su,sv,sx,sy,sz,tc,td,tf,tg,th,tj,tk,tl,tm,tn,tp,tr,tt,tv,tw,tz,ua,"
    u"ug,um,uy,uz,va,vc,ve,vg,vi,vn,vu,wf,ws,xxx,yt,za,zm,zw,";

// These are also English words or common abbreviations. "no" stands in the short list too; that does no harm.
constexpr QStringView englishWords =
    u"am,an,as,asia,at,ax,be,by,cat,coop,do,gov,in,info,is,it,jobs,ma,me,museum,name,no,post,"
    u"pro,ps,so,tel,to,travel,uk,us,ye,";

} // namespace

QString shortTopLevelDomains() {
    return shortList.toString();
}

QString longTopLevelDomains() {
    QString list = shortList.toString();
    list += englishWords;
    return list;
}

} // namespace tolvo

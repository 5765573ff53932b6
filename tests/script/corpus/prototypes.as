// versions: 6-8
// Classes as texts that assign prototypes, the form in which class symbols are written.
function Base(n) { this.n = n; }
Base.prototype.show = function () { return "base " + this.n; };
if(!a.b.C){
if(!a){
_global.a = new Object();
}
if(!a.b){
_global.a.b = new Object();
}
_global.a.b.C=function(x:Number){ super(x); this.x = x; };
_global.a.b.C.prototype.__proto__=Base.prototype;
_global.a.b.C.prototype.__constructor__=Base;
Object.registerClass("sym",a.b.C);
var v1=_global.a.b.C.prototype;
v1.twice=function(){ return this.x * 2; };
ASSetPropFlags(v1,null,1);
v1.level=7;
}
made = new a.b.C(4);
trace(made.twice());  //= 8
trace(made.show());   //= base 4
trace(made.level);    //= 7
var seen = "";
for (var k in made) { if (k == "twice") seen += "hidden "; if (k == "level") seen += "level"; }
trace(seen);          //= level
if(!D){
_global.D=function(){
super();
};
_global.D.prototype.__proto__=a.b.C.prototype;
_global.D.prototype.__constructor__=a.b.C;
}
trace(new D() instanceof Base); //= true

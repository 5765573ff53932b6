// versions: 6-8
// Classes stand behind what uses them, behind what extends them, and in other frames than their base.
trace(Tally.made + " " + Tally.list.length + Tally.list[1].v); //= 3 22
trace(new Top().go() + early()); //= TopMiddleBottomfn
class Top extends Middle { function go() { return "Top" + super.go(); } }
class Tally { static var made = Thing.count() + 1; static var list = [new Thing(1), new Thing(2)]; var z = -1; }
class Middle extends Bottom implements Second { function go() { return "Middle" + super.go(); } }
class Bottom implements First { var kept = "k"; function go() { return "Bottom"; } }
class Thing { static var n = 2; var v; function Thing(v) { this.v = v; } static function count() { return n; } }
interface Second extends First { function go(); }
interface First { }
function early() { return "fn"; }
trace(new Tally().z + new Top().kept); //= -1k
var names = "";
for (var name in Tally) names += name + " ";
trace(names);                          //= list made 
t = new Top();
trace((t instanceof First) + " " + (t instanceof Second)); //=-6 false false
                                       //=7+ true true
if (Tally.made > 0) { class Inner { var w = 5; static var t = 9; } }
trace(new Inner().w + Inner.t);        //= 14

// A static is its class's, however it is reached.
class pkg.Base { static var c = 1; static function up() { return ++c; } static function get twice() { return c * 2; } static function set twice(v) { c = v / 2; } }
class pkg.Sub extends pkg.Base { static var own = 5; function all() { return Sub.c + Sub.up() + Sub.twice + pkg.Sub.c; } }
import pkg.Sub;
Sub.c = 5; Sub.c++; Sub.c += 2;
trace(Sub.c + " " + pkg.Base.c + " " + Sub.up() + " " + Sub.twice); //= 8 8 9 18
Sub.twice = 40;
trace(pkg.Sub.c);                      //= 20
trace(new Sub().all());                //= 104
trace(Sub.own++ + Sub["own"]);         //= 11
function within(Sub) { return Sub.c; }
trace(within({ c: 77 }));              //= 77

// An object may be called like its class where the case of names counts for nothing.
class Ball { static var n = 0; var id; function Ball() { id = ++n; } function twin() { return new Ball(); } function total() { return Ball.n; } }
ball = new Ball();
ball2 = new Ball();
trace(ball2.id + " " + ball.twin().id + " " + Ball.n + " " + ball.total()); //= 2 3 3 3
trace((ball instanceof Ball) + typeof Ball); //= truefunction

// What a class takes from the script's code stands above it.
Old = function(n) { this.n = n; };
Old.prototype.twice = function() { return this.n * 2; };
class New extends Old { var m = 1; function New(n) { super(n); } function all() { return n + twice() + m; } }
class Newer extends New { function Newer() { super(5); } static var one = new Newer(); }
trace(new New(3).all() + " " + Newer.one.all()); //= 10 16
var width = 550;
class Field { static var right = width - 20; static var list = [right, width]; var half = Field.right / 2; }
trace(Field.list + " " + new Field().half); //= 530,550 265

class lib.Base { var v = 4; var u; function Base() { u = 1; } function m() { return "m" + v; } function plus(n) { return v + n; } }
score = 50;
function helper(x) { return "h" + x; }
//@ frame 2
class lib.Der extends lib.Base {
  var own = 2;
  function sum() { return v + m() + this.v; }
  function put(n) { v = n; return this.v; }
  function step() { v++; v += 2; ++v; return v; }
  function both() { return score + helper(own) + plus(3) + Math.max(1, 2) + isNaN("x") + typeof nothing; }
  function within(o) { with (o) { return v + own + zz; } }
  function make() { return new Made(3).t; }
}
Made = function(t) { this.t = t; };
d = new lib.Der();
trace(d.put(7) + " " + d.sum());       //= 7 7m77
trace(d.step());                       //= 11
trace(d.both());                       //= 50h2142trueundefined
trace(d.within({ zz: 5 }) + " " + d.within({ v: 1, own: 1, zz: 1 })); //= 18 3
trace(d.make() + typeof v);            //= 3undefined

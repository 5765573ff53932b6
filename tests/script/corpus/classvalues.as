// versions: 6-8
// Values of fields: when they are worked out, and what their names mean.
class Bag { var list = new Array(); var own; function Bag() { own = 1; } }
names = "";
for (k in new Bag()) names += k + " ";
trace(names);                              //= own 
trace(Half.v + " " + Last.x);              //= 180 13
class Half { static var v = Full.v * 90; }
class Full { static var v = Math.max(1, 2); }
class Last { static var x = Mid.q + 1; }
class Mid { static var n = 4; static var q = n * 3; }
class App { static var store = new Store(); }
class Store { var items = new Array(); function Store() { items.push("a"); } }
trace(App.store.items.length);             //= 1
trace(Area.total + " " + Area.options.w);  //= 12 4
class Area { static var size = 4; static var total = Area.size * 3; static var options = { w: size }; var w = 3; var double = w * 2; }
size = 10;
trace(new Area().double);                  //= 6
var names2 = "";
class Seen { static var at = list(); static function list() { var s = ""; for (var k in Bag) s += k; return s; } }
trace("[" + Seen.at + "]");                //= []

intrinsic dynamic class MovieClip { var _x:Number; function play():Void; }
class Mover extends MovieClip { var go = function() { _x = 33; }; function up() { _y = 4; return this._y; } }
Object.registerClass("Sym", Mover);
m = attachMovie("Sym", "mover", 1);
m.go();
trace(m.up() + " " + m._x + " " + _x + _y); //= 4 33 00

class far.Base extends MovieClip { var a = "a"; var n = 4; }
class Enemy { var hp = 2; }
enemy = new Enemy();
score = 50;
//@ frame 2
b = new far.Second();
trace(b.f());                              //= CBa
class far.Second extends far.First { function f() { return "C" + super.f(); } }
class far.First extends far.Base { function f() { return "B" + a; } }
class far.Sum extends far.Base {
  function grow() { n += 10; n++; return n; }
  function total() { return score + n; }
  function above() { _parent.tag = 4; return _parent._name; }
}
Object.registerClass("Sym", far.Sum);
createEmptyMovieClip("holder", 7);
var inner = holder.attachMovie("Sym", "inner", 1);
trace(inner.grow() + " " + inner.total()); //= 15 65
trace(inner.above() + holder.tag);         //= holder4
class Imp extends Enemy { function go() { return hp; } }
trace(new Imp().go());                     //= 2
class Table { var v = 3; var rows = { go: function() { return this.v + typeof v; }, v: 8 }; static function make() { return { f: function() { return typeof v; } }; } }
trace(new Table().rows.go() + " " + Table.make().f()); //= 8number undefined
// Names that mean something else than a member of an object.
class Log { var x = 1; var said; var hits; function trace(m) { said = m; } static function out(m) { trace(m); } static function put(o) { with (o) { x = 7; } return o.x + hits; } var func; function func(t) { return t * 2; } }
hits = 2;
Log.out("told");                           //= told
trace(Log.put({ x: 0 }) + new Log().func(4)); //= 17
class pack.Sound extends Sound { function kind() { return "pack"; } }
trace(new pack.Sound(this).kind());        //= pack
intrinsic class Told { var a; }
class Teller { function z() { return "z"; } }
class Told extends Teller { function q() { return z(); } }
trace(new Told().q());                     //= z
class Config { var v = 3; static var n = 4; }
class SubConfig extends Config { }
_global.SubConfig = SubConfig;
trace(Config(new Config()).v + SubConfig.n); //= 7
typed = { x: 1 };
typed.x:Number = 5;
typed.list:pack.Sound = null;
trace(typed.x + " " + typed.list);         //= 5 null
class Game { var score = 0; static var h = function() { return typeof score; }; static function start(o) { o.go = function() { score = 5; }; o.go(); return o.score + "," + score2; } }
score2 = 7;
trace(Game.start({ score: 1 }) + "," + score + Game.h()); //= 1,7,5number
intrinsic class Math { static function max(a, b); static var PI; }
class Calc extends Math { static function f() { return max(1, 2); } static var two = PI > 3; }
trace(Calc.f() + " " + Calc.two);          //= 2 true
this.XML = function(x) { return "own" + x; };
trace(XML(3));                             //= own3

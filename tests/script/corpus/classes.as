// versions: 6-8
// Classes, interfaces, inheritance, statics, getters and setters, packages, types.
interface zoo.Named { function getName():String; }
class zoo.Animal implements zoo.Named {
  private var name:String;
  public var legs:Number = 4;
  static var count:Number = 0;
  function Animal(name:String) { this.name = name; count++; }
  function getName():String { return name; }
  function speak():String { return getName() + " makes " + sound(); }
  function sound():String { return "noise"; }
  function get label():String { return "<" + name + ">"; }
  function set label(v:String):Void { name = v; }
  static function total():Number { return count; }
}
class zoo.Dog extends zoo.Animal {
  var tricks:Array;
  function Dog(name:String, trick:String) { super(name); tricks = [trick]; }
  function sound():String { return "woof"; }
  function speak():String { return super.speak() + "!"; }
  function learn(t:String):Number { tricks.push(t); return tricks.length; }
  function walk():Number { return legs; }
}
class zoo.Puppy extends zoo.Dog { }
var a:zoo.Animal = new zoo.Animal("Bo");
trace(a.speak());          //= Bo makes noise
var d:zoo.Dog = new zoo.Dog("Rex", "sit");
trace(d.speak());          //= Rex makes woof!
trace(d.learn("roll"));    //= 2
trace(d.walk());           //= 4
trace(zoo.Animal.total()); //= 2
trace(zoo.Animal.count);   //= 2
trace(d.label);            //= <Rex>
d.label = "Max";
trace(d.getName());        //= Max
trace(d instanceof zoo.Animal); //= true
trace(a instanceof zoo.Dog);    //= false
trace(new zoo.Puppy("x", "y") instanceof zoo.Dog); //= true
trace(d instanceof zoo.Named);  //=-6 false
                           //=7+ true
n = 0;
for (var k in a) n++;
trace(n);                  //= 1
import zoo.Dog;
var e:Dog = new Dog("Im", "t");
trace(e.getName());        //= Im
trace(Dog(e).walk());      //= 4
trace(zoo.Dog(a) == null); //=-6 false
                           //=7+ true
function typed(a:Number, b:String):String { var c:Number = a; return b + c; }
trace(typed(1, "t"));      //= t1
class Shape extends MovieClip {
  var hits:Number = 0;
  function Shape() { hits = 3; }
  function hit():Number { hits++; return hits; }
}
Object.registerClass("Sym", Shape);
var s = attachMovie("Sym", "made", 5);
trace(s.hit());            //= 4
trace(made._currentframe); //= 1
intrinsic class TextSnapshot { var x:Number; function getCount():Number; static function make(a:Object):TextSnapshot; }
intrinsic dynamic class Unknown extends MovieClip { function Unknown(); function get size():Number; private var y; }
trace(typeof Unknown);     //= undefined
[Event("change")]
[IconFile("box.png")] class Box {
  [Inspectable(defaultValue="a", type=String)]
  var label:String = "plain";
  [Inspectable(name="Size", enumeration="1,2")] public function get size():Number { return 2; }
  [Bindable] [ChangeEvent("change")] static function kind():String { return "box"; }
  function Button(x) { return "member " + x; }
  function call(x) { return Button(x); }
}
trace(new Box().label + new Box().size + Box.kind()); //= plain2box
trace(new Box().call(1));  //= member 1
trace(MovieClip(this) == this); //= true
// A class in a package knows itself by its short name.
class com.foo.Mgr {
  private static var inst:Mgr;
  static var count = 0;
  var v = 3;
  static function getInstance():Mgr { if (inst == null) inst = new Mgr(); Mgr.count++; return inst; }
}
trace(com.foo.Mgr.getInstance().v + com.foo.Mgr.getInstance().v + com.foo.Mgr.count); //= 8
trace(typeof Mgr);               //= undefined
// A constructor that does not call its base's has it called first.
class Listed { var list; function Listed() { list = [1]; } function size() { return list.length; } }
class Filled extends Listed { var z; function Filled(n) { z = n; list.push(z); } }
class Told extends Listed { function Told() { trace("told " + super.size()); } }
trace(new Filled(2).list.join("|")); //= 1|2
trace(new Filled(3).list.join("|")); //= 1|3
t = new Told();                  //= told 1
class Const { static var A:Number = 2; static var B:Number = A * 3; var own = A + B + made(); static var LIST:Array = [A, B, made()]; function f() { return LIST.length; } static function made() { return B * 10; } }
trace(new Const().own + "," + Const.LIST + "," + new Const().f()); //= 68,2,6,60,3
